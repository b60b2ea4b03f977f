// Romanian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesRomanian[SK_MESSAGE_COUNT] = {
    L"Spațiul pentru mesaje a fost inițializat, se pornește înregistrarea mesajelor.", // 1001
    L"S-a găsit spațiul pentru mesaje, înregistrarea mesajelor continuă de la ultima intrare.", // 1002
    L"O nepotrivire de versiune a cauzat inițializarea, este posibil ca unele mesaje să se fi pierdut.", // 1003
    L"O nepotrivire a dimensiunii memoriei pentru mesaje a cauzat inițializarea, este posibil ca unele mesaje să se fi pierdut.", // 1004
    L"O nepotrivire a dimensiunii maxime a indexului de mesaje a cauzat inițializarea, este posibil ca unele mesaje să se fi pierdut.", // 1005
    L"Un indicator deteriorat de scriere a mesajelor a cauzat inițializarea, este posibil ca unele mesaje să se fi pierdut.", // 1006
    L"S-au pierdut intrări critice cu informații pentru utilizator.", // 1008
    L"Nu s-a găsit mesajul cu ID-ul %1!d! (0x%1!x!) pentru traducere, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"S-a primit comanda de rescanare a nucleului.", // 1012
    L"Defecțiune a unității pe controlerul %1!d!, canalul %2!d!.", // 1013
    L"Matricea %1!d! a fost ștearsă.", // 1014
    L"Matricea %1!d! a trecut în stare critică.", // 1015
    L"Matricea %1!d! a trecut în modul offline.", // 1016
    L"Sarcina de reconstruire pe matricea %1!d! a fost reluată.", // 1017
    L"Sarcina de reconstruire pe matricea %1!d! a fost finalizată.", // 1018
    L"Sarcina de reconstruire pe matricea %1!d! a eșuat.", // 1019
    L"Sarcina de transformare pe matricea %1!d! a fost reluată.", // 1020
    L"Sarcina de transformare pe matricea %1!d! a fost finalizată.", // 1021
    L"Sarcina de transformare pe matricea %1!d! a eșuat.", // 1022
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost reluată.", // 1023
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost finalizată.", // 1024
    L"Sarcina de verificare a consistenței pe matricea %1!d! a eșuat.", // 1025
    L"Sarcina de creare a matricei %1!d! a fost reluată.", // 1026
    L"Sarcina de creare a matricei %1!d! a fost finalizată.", // 1027
    L"Sarcina de creare a matricei %1!d! a eșuat.", // 1028
    L"Unitate inițializată pe controlerul %1!d!, canalul %2!d!.", // 1029
    L"Prioritatea sarcinilor matricei %1!d! s-a modificat.", // 1030
    L"Matricea %1!d! a fost divizată, matrice nouă %2!d!.", // 1031
    L"Politica de cache a matricei %1!d! a fost schimbată în CITIRE.", // 1034
    L"Politica de cache a matricei %1!d! a fost schimbată în SCRIERE.", // 1035
    L"Politica de cache a matricei %1!d! a fost schimbată în FĂRĂ CACHE.", // 1036
    L"Modificare a configurației.", // 1037
    L"A fost conectată o unitate nouă.", // 1038
    L"Unitate deconectată.", // 1039
    L"Timp de așteptare IO expirat pe controlerul %1!d!, canalul %2!d!.", // 1040
    L"Eroare de dispozitiv pe controlerul %1!d!, canalul %2!d!.", // 1041
    L"Dispozitiv conectat pe controlerul %1!d!, canalul %2!d!.", // 1042
    L"Dispozitiv deconectat pe controlerul %1!d!, canalul %2!d!.", // 1043
    L"Eroare de mediu de stocare pe controlerul %1!d!, canalul %2!d!.", // 1047
    L"Matricea %1!d!: s-au pierdut datele scrierii întârziate.", // 1048
    L"Defecțiune a dispozitivului pe controlerul %1!d!, canalul %2!d!, linia %3!d!.", // 1049
    L"A doua încercare BBR a eșuat, controler %1!d!, canal %2!d!.", // 1050
    L"Prea multe erori BBR, operațiunea I/O eșuează, controler %1!d!, canal %2!d!.", // 1051
    L"Număr de bloc: partea inferioară=0x%1!x!, partea superioară=0x%2!x!.", // 1052
    L"Sarcina de copiere pe matricea %1!d! a fost reluată.", // 1053
    L"Sarcina de copiere pe matricea %1!d! a fost finalizată.", // 1054
    L"Sarcina de copiere pe matricea %1!d! a eșuat.", // 1055
    L"Eroare irecuperabilă de mediu de stocare pe matricea %1!d!, este posibil ca datele să se fi pierdut.", // 1056
    L"S-a detectat introducerea unui dispozitiv pe controlerul %1!d!, canalul %2!d!.", // 1057
    L"EROARE DE MAPARE A MEMORIEI pe controlerul %1!d!, canalul %2!d!, SE DEZACTIVEAZĂ CANALUL.", // 1060
    L"Dispozitivul SMART raportează PRAG DEPĂȘIT pe controlerul %1!d!, canalul %2!d!.", // 1061
    L"Politica de cache a matricei %1!d! a fost schimbată în CITIRE/SCRIERE.", // 1067
    L"Sistemul este gestionat de la distanță de la adresa %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Gestionarea de la distanță de la adresa %1!d!.%2!d!.%3!d!.%4!d! s-a încheiat.", // 1069
    L"Sarcina de transformare pe matricea %1!d! a fost întreruptă temporar.", // 1097
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost întreruptă temporar.", // 1098
    L"Sarcina de reconstruire pe matricea %1!d! a fost întreruptă temporar.", // 1099
    L"Sarcina de creare a matricei %1!d! a fost întreruptă temporar.", // 1100
    L"Sarcina de copiere pe matricea %1!d! a fost întreruptă temporar.", // 1101
    L"Sarcina de transformare pe matricea %1!d! a fost eliminată.", // 1102
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost eliminată.", // 1103
    L"Sarcina de reconstruire pe matricea %1!d! a fost eliminată.", // 1104
    L"Sarcina de creare a matricei %1!d! a fost eliminată.", // 1105
    L"Sarcina de copiere pe matricea %1!d! a fost eliminată, dezlegarea a reușit.", // 1106
    L"Sarcina de transformare pe matricea %1!d! a fost oprită.", // 1107
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost oprită.", // 1108
    L"Sarcina de reconstruire pe matricea %1!d! a fost oprită.", // 1109
    L"Sarcina de creare a matricei %1!d! a fost oprită.", // 1110
    L"Sarcina de copiere pe matricea %1!d! a fost oprită.", // 1111
    L"Matricea %1!d! a fost divizată.", // 1112
    L"A început trecerea %1!d! de scanare a matricei %2!d!.", // 1114
    L"S-a finalizat trecerea %1!d! de scanare a matricei %2!d!.", // 1115
    L"Scanarea matricei %1!d! a fost activată.", // 1116
    L"Scanarea matricei %1!d! a fost dezactivată.", // 1117
    L"Se descarcă imaginea flash pe controlerul %1!x!, finalizat %2!d! la sută.", // 1128
    L"Descărcarea imaginii flash pe IOC-ul controlerului %1!x! s-a finalizat.", // 1129
    L"Eroare de mediu de stocare reparată pe matricea %1!x!.", // 1130
    L"Unitate atribuită ca disc de rezervă global pe controlerul %1!d!, canalul %2!d!.", // 1132
    L"Unitate eliminată din lista discurilor de rezervă globale pe controlerul %1!d!, canalul %2!d!.", // 1133
    L"Inconsecvență reparată pe matricea %1!x!.", // 1134
    L"Matricea %1!d! a fost ascunsă.", // 1135
    L"Matricea %1!d! nu mai este ascunsă.", // 1136
    L"Reconstruirea matricei %1!d! a eșuat din cauza unei erori de citire pe discul sursă.", // 1137
    L"Sarcina de creare a matricei %1!d! a fost inițiată.", // 1138
    L"Sarcina de reconstruire pe matricea %1!d! a fost inițiată.", // 1139
    L"Sarcina de transformare pe matricea %1!d! a fost inițiată.", // 1140
    L"Sarcina de verificare a consistenței pe matricea %1!d! a fost inițiată.", // 1141
    L"Cache-ul de scriere întârziată (write-back) al discului a fost activat pe controlerul %1!d!, canalul %2!d!.", // 1142
    L"Cache-ul de scriere întârziată (write-back) al discului a fost dezactivat pe controlerul %1!d!, canalul %2!d!.", // 1143
    L"Citirea anticipată a discului a fost activată pe controlerul %1!d!, canalul %2!d!.", // 1144
    L"Citirea anticipată a discului a fost dezactivată pe controlerul %1!d!, canalul %2!d!.", // 1145
    L"S-a detectat o eroare la descărcarea imaginii de firmware IOC pe controlerul %1!d!, la deplasamentul %2!x!.", // 1147
    L"Modificare omisă a stării LED pentru dispozitivul pe controlerul %1!d!, canalul %2!d!.", // 1148
    L"Modificare omisă a stării LED pentru matricea %1!d!.", // 1149
    L"O solicitare a utilizatorului a setat starea de identificare: controler %1!d!, slot %2!d!.", // 1150
    L"O solicitare a utilizatorului a setat identificarea unui volum: controler %1!d!, slot %2!d!.", // 1151
    L"O solicitare a utilizatorului a șters starea de identificare: controler %1!d!, slot %2!d!.", // 1152
    L"Recuperare forțată a matricei offline %1!d!.", // 1153
    L"Matricei %3!d! i s-a atribuit un disc de rezervă dedicat pe controlerul %1!d!, canalul %2!d!.", // 1154
    L"Matricei %3!d! i s-a eliminat discul de rezervă dedicat pe controlerul %1!d!, canalul %2!d!.", // 1155
    L"Gestionarea carcasei nu este acceptată pentru controlerul %1!d!.", // 1156
    L"S-a șters o solicitare orfană de stare de identificare: controler %1!d!, slot %2!d!.", // 1157
    L"Sarcina de reconstruire pe matricea %1!d! a fost eliminată de utilizator.", // 1158
    L"Disc marcat ca perforat (puncture) pe controlerul %1!d!, canalul %2!d!.", // 1159
    L"Marcarea discului ca perforat (puncture) a eșuat pe controlerul %1!d!, canalul %2!d!.", // 1160
    L"Sarcina de ștergere securizată pe matricea %1!d! a fost întreruptă temporar.", // 1165
    L"Sarcina de ștergere securizată pe matricea %1!d! a fost reluată.", // 1166
    L"Sarcina de ștergere securizată pe matricea %1!d! a eșuat.", // 1167
    L"Sarcina de ștergere securizată pe matricea %1!d! a fost finalizată.", // 1168
    L"Sarcina de ștergere securizată pe matricea %1!d! a fost oprită.", // 1169
    L"Sarcina de ștergere securizată pe matricea %1!d! a fost eliminată.", // 1170
    L"A fost introdus un dispozitiv nou necunoscut pe controlerul %1!d!, canalul %2!d!.", // 1171
    L"Sarcina de qsync pe matricea %1!d! a fost reluată.", // 1172
    L"Sarcina de qsync pe matricea %1!d! a fost finalizată.", // 1173
    L"Sarcina de qsync pe matricea %1!d! a eșuat.", // 1174
    L"Sarcina de qsync pe matricea %1!d! a fost oprită.", // 1175
    L"Sarcina de qsync pe matricea %1!d! a fost eliminată.", // 1176
    L"Sarcina de qsync pe matricea %1!d! a fost întreruptă temporar.", // 1177
    L"Sarcina de qsync pe matricea %1!d! a fost inițiată.", // 1178
    L"qsync a fost activat pe matricea %1!d!.", // 1179
    L"qsync a fost dezactivat pe matricea %1!d!.", // 1180
    L"Metadatele unității au fost șterse pe controlerul %1!d!, canalul %2!d!.", // 1181
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 1 (OK): controler %1!d!, slot %2!d!.", // 1182
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 2 (RECONSTRUIRE): controler %1!d!, slot %2!d!.", // 1183
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 3 (DEFECT): controler %1!d!, slot %2!d!.", // 1184
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 4 (IDENTIFICARE): controler %1!d!, slot %2!d!.", // 1185
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 5 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1186
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 6 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1187
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 7 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1188
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 8 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1189
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 9 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1190
    L"O solicitare a utilizatorului a setat starea extinsă a LED-ului 10 (NEDEFINIT): controler %1!d!, slot %2!d!.", // 1191
    L"O solicitare a utilizatorului a restabilit starea LED-ului: controler %1!d!, slot %2!d!.", // 1192
};
// clang-format on
