// French texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesFrench[SK_MESSAGE_COUNT] = {
    L"Espace des messages initialisé, démarrage de la journalisation des messages.", // 1001
    L"Espace des messages trouvé, reprise de la journalisation des messages à partir de la dernière entrée.", // 1002
    L"Une incompatibilité de version a provoqué une initialisation, certains messages ont peut-être été perdus.", // 1003
    L"Une incompatibilité de taille de la mémoire des messages a provoqué une initialisation, certains messages ont peut-être été perdus.", // 1004
    L"Une incompatibilité de taille d'index maximale des messages a provoqué une initialisation, certains messages ont peut-être été perdus.", // 1005
    L"Un pointeur d'écriture des messages corrompu a provoqué une initialisation, certains messages ont peut-être été perdus.", // 1006
    L"Des entrées critiques d'informations utilisateur ont été perdues.", // 1008
    L"ID de message %1!d! (0x%1!x!) introuvable pour la traduction, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Commande de nouvelle analyse du noyau reçue.", // 1012
    L"Défaillance du lecteur sur le contrôleur %1!d! canal %2!d!.", // 1013
    L"La grappe %1!d! a été supprimée.", // 1014
    L"La grappe %1!d! est passée à l'état critique.", // 1015
    L"La grappe %1!d! est passée hors ligne.", // 1016
    L"Une tâche de reconstruction a repris sur la grappe %1!d!.", // 1017
    L"Une tâche de reconstruction s'est terminée sur la grappe %1!d!.", // 1018
    L"Une tâche de reconstruction a échoué sur la grappe %1!d!.", // 1019
    L"Une tâche de transformation a repris sur la grappe %1!d!.", // 1020
    L"Une tâche de transformation s'est terminée sur la grappe %1!d!.", // 1021
    L"Une tâche de transformation a échoué sur la grappe %1!d!.", // 1022
    L"Une tâche de vérification de cohérence a repris sur la grappe %1!d!.", // 1023
    L"Une tâche de vérification de cohérence s'est terminée sur la grappe %1!d!.", // 1024
    L"Une tâche de vérification de cohérence a échoué sur la grappe %1!d!.", // 1025
    L"Une tâche de création a repris pour la grappe %1!d!.", // 1026
    L"Une tâche de création s'est terminée pour la grappe %1!d!.", // 1027
    L"Une tâche de création a échoué pour la grappe %1!d!.", // 1028
    L"Lecteur initialisé sur le contrôleur %1!d! canal %2!d!.", // 1029
    L"La priorité des tâches de la grappe %1!d! a été modifiée.", // 1030
    L"Grappe %1!d! scindée, nouvelle grappe %2!d!.", // 1031
    L"Stratégie de cache de la grappe %1!d! modifiée en LECTURE.", // 1034
    L"Stratégie de cache de la grappe %1!d! modifiée en ÉCRITURE.", // 1035
    L"Stratégie de cache de la grappe %1!d! modifiée en SANS CACHE.", // 1036
    L"Modification de la configuration.", // 1037
    L"Nouveau lecteur connecté.", // 1038
    L"Lecteur déconnecté.", // 1039
    L"Délai d'attente IO dépassé sur le contrôleur %1!d! canal %2!d!.", // 1040
    L"Erreur de périphérique sur le contrôleur %1!d! canal %2!d!.", // 1041
    L"Périphérique connecté sur le contrôleur %1!d! canal %2!d!.", // 1042
    L"Périphérique déconnecté sur le contrôleur %1!d! canal %2!d!.", // 1043
    L"Erreur de support sur le contrôleur %1!d! canal %2!d!.", // 1047
    L"Grappe %1!d! : données en écriture différée perdues.", // 1048
    L"Défaillance du périphérique sur le contrôleur %1!d! canal %2!d! ligne %3!d!.", // 1049
    L"Échec de la deuxième tentative BBR, contrôleur %1!d! canal %2!d!.", // 1050
    L"Trop d'échecs BBR, échec de l'I/O, contrôleur %1!d! canal %2!d!.", // 1051
    L"Numéro de bloc bas=0x%1!x!, haut=0x%2!x!.", // 1052
    L"Une tâche de copie a repris pour la grappe %1!d!.", // 1053
    L"Une tâche de copie s'est terminée pour la grappe %1!d!.", // 1054
    L"Une tâche de copie a échoué pour la grappe %1!d!.", // 1055
    L"Erreur de support irrécupérable sur la grappe %1!d!, des données ont peut-être été perdues.", // 1056
    L"Insertion d'un périphérique détectée sur le contrôleur %1!d! canal %2!d!.", // 1057
    L"ÉCHEC DU MAPPAGE MÉMOIRE sur le contrôleur %1!d! canal %2!d!, DÉSACTIVATION DU CANAL.", // 1060
    L"Le périphérique SMART signale un SEUIL DÉPASSÉ sur le contrôleur %1!d! canal %2!d!.", // 1061
    L"Stratégie de cache de la grappe %1!d! modifiée en LECTURE/ÉCRITURE.", // 1067
    L"Le système est géré à distance par %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"La gestion à distance par %1!d!.%2!d!.%3!d!.%4!d! est terminée.", // 1069
    L"Une tâche de transformation a été suspendue sur la grappe %1!d!.", // 1097
    L"Une tâche de vérification de cohérence a été suspendue sur la grappe %1!d!.", // 1098
    L"Une tâche de reconstruction a été suspendue sur la grappe %1!d!.", // 1099
    L"Une tâche de création a été suspendue sur la grappe %1!d!.", // 1100
    L"Une tâche de copie a été suspendue sur la grappe %1!d!.", // 1101
    L"Une tâche de transformation a été supprimée sur la grappe %1!d!.", // 1102
    L"Une tâche de vérification de cohérence a été supprimée sur la grappe %1!d!.", // 1103
    L"Une tâche de reconstruction a été supprimée sur la grappe %1!d!.", // 1104
    L"Une tâche de création a été supprimée sur la grappe %1!d!.", // 1105
    L"Une tâche de copie a été supprimée, dissociation réussie sur la grappe %1!d!.", // 1106
    L"Une tâche de transformation a été arrêtée sur la grappe %1!d!.", // 1107
    L"Une tâche de vérification de cohérence a été arrêtée sur la grappe %1!d!.", // 1108
    L"Une tâche de reconstruction a été arrêtée sur la grappe %1!d!.", // 1109
    L"Une tâche de création a été arrêtée sur la grappe %1!d!.", // 1110
    L"Une tâche de copie a été arrêtée sur la grappe %1!d!.", // 1111
    L"Grappe %1!d! scindée.", // 1112
    L"La passe d'analyse de grappe %1!d! a démarré sur la grappe %2!d!.", // 1114
    L"La passe d'analyse de grappe %1!d! s'est terminée sur la grappe %2!d!.", // 1115
    L"Analyse de grappe activée sur la grappe %1!d!.", // 1116
    L"Analyse de grappe désactivée sur la grappe %1!d!.", // 1117
    L"Téléchargement de l'image flash vers le contrôleur %1!x!, pourcentage effectué : %2!d!.", // 1128
    L"Téléchargement de l'image flash vers l'IOC terminé pour le contrôleur %1!x!.", // 1129
    L"Erreur de support réparée sur la grappe %1!x!.", // 1130
    L"Lecteur affecté comme disque de secours global sur le contrôleur %1!d! canal %2!d!.", // 1132
    L"Lecteur retiré de la liste des disques de secours globaux sur le contrôleur %1!d! canal %2!d!.", // 1133
    L"Incohérence réparée sur la grappe %1!x!.", // 1134
    L"Grappe %1!d! masquée.", // 1135
    L"Grappe %1!d! affichée.", // 1136
    L"Échec de la reconstruction sur la grappe %1!d! en raison d'une erreur de lecture sur le disque source.", // 1137
    L"Une tâche de création a été lancée pour la grappe %1!d!.", // 1138
    L"Une tâche de reconstruction a été lancée pour la grappe %1!d!.", // 1139
    L"Une tâche de transformation a été lancée pour la grappe %1!d!.", // 1140
    L"Une tâche de vérification de cohérence a été lancée pour la grappe %1!d!.", // 1141
    L"Cache en écriture différée (write-back) du disque activé sur le contrôleur %1!d! canal %2!d!.", // 1142
    L"Cache en écriture différée (write-back) du disque désactivé sur le contrôleur %1!d! canal %2!d!.", // 1143
    L"Lecture anticipée du disque activée sur le contrôleur %1!d! canal %2!d!.", // 1144
    L"Lecture anticipée du disque désactivée sur le contrôleur %1!d! canal %2!d!.", // 1145
    L"Échec du téléchargement de l'image du micrologiciel IOC détecté sur le contrôleur %1!d! à l'offset %2!x!.", // 1147
    L"Changement d'état de LED manqué pour le périphérique sur le contrôleur %1!d! canal %2!d!.", // 1148
    L"Changement d'état de LED manqué pour la grappe %1!d!.", // 1149
    L"Une demande de l'utilisateur a activé l'état d'identification pour le contrôleur %1!d!, emplacement %2!d!.", // 1150
    L"Une demande de l'utilisateur a activé l'identification d'un volume sur le contrôleur %1!d!, emplacement %2!d!.", // 1151
    L"Une demande de l'utilisateur a effacé l'état d'identification pour le contrôleur %1!d!, emplacement %2!d!.", // 1152
    L"Récupération forcée de la grappe hors ligne %1!d!.", // 1153
    L"Disque de secours dédié affecté à la grappe %3!d! sur le contrôleur %1!d! canal %2!d!.", // 1154
    L"Disque de secours dédié retiré de la grappe %3!d! sur le contrôleur %1!d! canal %2!d!.", // 1155
    L"La gestion du boîtier n'est pas prise en charge pour le contrôleur %1!d!.", // 1156
    L"Demande d'état d'identification orpheline effacée pour le contrôleur %1!d!, emplacement %2!d!.", // 1157
    L"Une tâche de reconstruction a été supprimée par l'utilisateur sur la grappe %1!d!.", // 1158
    L"Disque perforé sur le contrôleur %1!d! canal %2!d!.", // 1159
    L"Échec de la perforation du disque sur le contrôleur %1!d! canal %2!d!.", // 1160
    L"Une tâche d'effacement sécurisé a été suspendue sur la grappe %1!d!.", // 1165
    L"Une tâche d'effacement sécurisé a repris sur la grappe %1!d!.", // 1166
    L"Une tâche d'effacement sécurisé a échoué pour la grappe %1!d!.", // 1167
    L"Une tâche d'effacement sécurisé s'est terminée pour la grappe %1!d!.", // 1168
    L"Une tâche d'effacement sécurisé a été arrêtée sur la grappe %1!d!.", // 1169
    L"Une tâche d'effacement sécurisé a été supprimée sur la grappe %1!d!.", // 1170
    L"Un nouveau périphérique inconnu a été inséré sur le contrôleur %1!d! canal %2!d!.", // 1171
    L"Une tâche qsync a repris sur la grappe %1!d!.", // 1172
    L"Une tâche qsync s'est terminée sur la grappe %1!d!.", // 1173
    L"Une tâche qsync a échoué sur la grappe %1!d!.", // 1174
    L"Une tâche qsync a été arrêtée sur la grappe %1!d!.", // 1175
    L"Une tâche qsync a été supprimée sur la grappe %1!d!.", // 1176
    L"Une tâche qsync a été suspendue sur la grappe %1!d!.", // 1177
    L"Une tâche qsync a été lancée pour la grappe %1!d!.", // 1178
    L"qsync activé sur la grappe %1!d!.", // 1179
    L"qsync désactivé sur la grappe %1!d!.", // 1180
    L"Métadonnées du lecteur effacées sur le contrôleur %1!d! canal %2!d!.", // 1181
    L"Une demande de l'utilisateur a défini l'état étendu 1 (OKAY) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1182
    L"Une demande de l'utilisateur a défini l'état étendu 2 (REBUILDING) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1183
    L"Une demande de l'utilisateur a défini l'état étendu 3 (FAILED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1184
    L"Une demande de l'utilisateur a défini l'état étendu 4 (IDENTIFY) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1185
    L"Une demande de l'utilisateur a défini l'état étendu 5 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1186
    L"Une demande de l'utilisateur a défini l'état étendu 6 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1187
    L"Une demande de l'utilisateur a défini l'état étendu 7 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1188
    L"Une demande de l'utilisateur a défini l'état étendu 8 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1189
    L"Une demande de l'utilisateur a défini l'état étendu 9 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1190
    L"Une demande de l'utilisateur a défini l'état étendu 10 (UNDEFINED) de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1191
    L"Une demande de l'utilisateur a restauré l'état de la LED pour le contrôleur %1!d!, emplacement %2!d!.", // 1192
};
// clang-format on
