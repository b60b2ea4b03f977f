// Italian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesItalian[SK_MESSAGE_COUNT] = {
    L"Spazio messaggi inizializzato, avvio della registrazione dei messaggi.", // 1001
    L"Spazio messaggi trovato, ripresa della registrazione dei messaggi dall'ultima voce.", // 1002
    L"Una mancata corrispondenza di versione ha causato l'inizializzazione, alcuni messaggi potrebbero essere andati persi.", // 1003
    L"Una mancata corrispondenza della dimensione della memoria messaggi ha causato l'inizializzazione, alcuni messaggi potrebbero essere andati persi.", // 1004
    L"Una mancata corrispondenza della dimensione massima dell'indice messaggi ha causato l'inizializzazione, alcuni messaggi potrebbero essere andati persi.", // 1005
    L"Un puntatore di scrittura dei messaggi danneggiato ha causato l'inizializzazione, alcuni messaggi potrebbero essere andati persi.", // 1006
    L"Voci critiche di informazioni utente perse.", // 1008
    L"ID messaggio %1!d! (0x%1!x!) non trovato per la traduzione, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Ricevuto il comando di nuova scansione del core.", // 1012
    L"Guasto dell'unità sul controller %1!d! canale %2!d!.", // 1013
    L"L'array %1!d! è stato eliminato.", // 1014
    L"L'array %1!d! è passato allo stato critico.", // 1015
    L"L'array %1!d! è passato offline.", // 1016
    L"Un'attività di ricostruzione è stata ripresa sull'array %1!d!.", // 1017
    L"Un'attività di ricostruzione è stata completata sull'array %1!d!.", // 1018
    L"Un'attività di ricostruzione non è riuscita sull'array %1!d!.", // 1019
    L"Un'attività di trasformazione è stata ripresa sull'array %1!d!.", // 1020
    L"Un'attività di trasformazione è stata completata sull'array %1!d!.", // 1021
    L"Un'attività di trasformazione non è riuscita sull'array %1!d!.", // 1022
    L"Un'attività di verifica della coerenza è stata ripresa sull'array %1!d!.", // 1023
    L"Un'attività di verifica della coerenza è stata completata sull'array %1!d!.", // 1024
    L"Un'attività di verifica della coerenza non è riuscita sull'array %1!d!.", // 1025
    L"Un'attività di creazione è stata ripresa per l'array %1!d!.", // 1026
    L"Un'attività di creazione è stata completata per l'array %1!d!.", // 1027
    L"Un'attività di creazione non è riuscita per l'array %1!d!.", // 1028
    L"Unità inizializzata sul controller %1!d! canale %2!d!.", // 1029
    L"La priorità delle attività dell'array %1!d! è cambiata.", // 1030
    L"Array %1!d! diviso, nuovo array %2!d!.", // 1031
    L"Criterio di cache dell'array %1!d! cambiato in LETTURA.", // 1034
    L"Criterio di cache dell'array %1!d! cambiato in SCRITTURA.", // 1035
    L"Criterio di cache dell'array %1!d! cambiato in NESSUNA CACHE.", // 1036
    L"Modifica della configurazione.", // 1037
    L"Nuova unità collegata.", // 1038
    L"Unità scollegata.", // 1039
    L"Timeout di IO sul controller %1!d! canale %2!d!.", // 1040
    L"Errore del dispositivo sul controller %1!d! canale %2!d!.", // 1041
    L"Dispositivo collegato sul controller %1!d! canale %2!d!.", // 1042
    L"Dispositivo scollegato sul controller %1!d! canale %2!d!.", // 1043
    L"Errore del supporto sul controller %1!d! canale %2!d!.", // 1047
    L"Array %1!d!: dati di scrittura differita persi.", // 1048
    L"Guasto del dispositivo sul controller %1!d! canale %2!d! riga %3!d!.", // 1049
    L"Secondo tentativo BBR non riuscito, controller %1!d! canale %2!d!.", // 1050
    L"Troppi errori BBR, I/O non riuscito, controller %1!d! canale %2!d!.", // 1051
    L"Numero di blocco basso=0x%1!x!, alto=0x%2!x!.", // 1052
    L"Un'attività di copia è stata ripresa per l'array %1!d!.", // 1053
    L"Un'attività di copia è stata completata per l'array %1!d!.", // 1054
    L"Un'attività di copia non è riuscita per l'array %1!d!.", // 1055
    L"Errore del supporto irreversibile sull'array %1!d!, i dati potrebbero essere andati persi.", // 1056
    L"Rilevato inserimento di un dispositivo sul controller %1!d! canale %2!d!.", // 1057
    L"ERRORE DI MAPPATURA DELLA MEMORIA sul controller %1!d! canale %2!d!, DISATTIVAZIONE DEL CANALE.", // 1060
    L"Il dispositivo SMART segnala SOGLIA SUPERATA sul controller %1!d! canale %2!d!.", // 1061
    L"Criterio di cache dell'array %1!d! cambiato in LETTURA/SCRITTURA.", // 1067
    L"Il sistema è gestito in remoto da %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"La gestione remota da %1!d!.%2!d!.%3!d!.%4!d! è terminata.", // 1069
    L"Un'attività di trasformazione è stata sospesa sull'array %1!d!.", // 1097
    L"Un'attività di verifica della coerenza è stata sospesa sull'array %1!d!.", // 1098
    L"Un'attività di ricostruzione è stata sospesa sull'array %1!d!.", // 1099
    L"Un'attività di creazione è stata sospesa sull'array %1!d!.", // 1100
    L"Un'attività di copia è stata sospesa sull'array %1!d!.", // 1101
    L"Un'attività di trasformazione è stata rimossa sull'array %1!d!.", // 1102
    L"Un'attività di verifica della coerenza è stata rimossa sull'array %1!d!.", // 1103
    L"Un'attività di ricostruzione è stata rimossa sull'array %1!d!.", // 1104
    L"Un'attività di creazione è stata rimossa sull'array %1!d!.", // 1105
    L"Un'attività di copia è stata rimossa, scollegamento riuscito sull'array %1!d!.", // 1106
    L"Un'attività di trasformazione è stata arrestata sull'array %1!d!.", // 1107
    L"Un'attività di verifica della coerenza è stata arrestata sull'array %1!d!.", // 1108
    L"Un'attività di ricostruzione è stata arrestata sull'array %1!d!.", // 1109
    L"Un'attività di creazione è stata arrestata sull'array %1!d!.", // 1110
    L"Un'attività di copia è stata arrestata sull'array %1!d!.", // 1111
    L"Array %1!d! diviso.", // 1112
    L"Il passaggio %1!d! della scansione array è stato avviato sull'array %2!d!.", // 1114
    L"Il passaggio %1!d! della scansione array è stato completato sull'array %2!d!.", // 1115
    L"Scansione array attivata sull'array %1!d!.", // 1116
    L"Scansione array disattivata sull'array %1!d!.", // 1117
    L"Download dell'immagine flash sul controller %1!x! in corso, percentuale completata: %2!d!.", // 1128
    L"Download dell'immagine flash sull'IOC completato per il controller %1!x!.", // 1129
    L"Errore del supporto riparato sull'array %1!x!.", // 1130
    L"Unità assegnata come riserva globale sul controller %1!d! canale %2!d!.", // 1132
    L"Unità rimossa dall'elenco delle riserve globali sul controller %1!d! canale %2!d!.", // 1133
    L"Incoerenza riparata sull'array %1!x!.", // 1134
    L"Array %1!d! nascosto.", // 1135
    L"Array %1!d! reso di nuovo visibile.", // 1136
    L"Ricostruzione non riuscita sull'array %1!d! a causa di un errore di lettura sul disco di origine.", // 1137
    L"Un'attività di creazione è stata avviata per l'array %1!d!.", // 1138
    L"Un'attività di ricostruzione è stata avviata per l'array %1!d!.", // 1139
    L"Un'attività di trasformazione è stata avviata per l'array %1!d!.", // 1140
    L"Un'attività di verifica della coerenza è stata avviata per l'array %1!d!.", // 1141
    L"Cache write-back del disco attivata sul controller %1!d! canale %2!d!.", // 1142
    L"Cache write-back del disco disattivata sul controller %1!d! canale %2!d!.", // 1143
    L"Lettura anticipata del disco attivata sul controller %1!d! canale %2!d!.", // 1144
    L"Lettura anticipata del disco disattivata sul controller %1!d! canale %2!d!.", // 1145
    L"Rilevato errore nel download dell'immagine firmware dell'IOC sul controller %1!d! all'offset %2!x!.", // 1147
    L"Cambio di stato del LED non rilevato per il dispositivo sul controller %1!d! canale %2!d!.", // 1148
    L"Cambio di stato del LED non rilevato per l'array %1!d!.", // 1149
    L"Una richiesta dell'utente ha impostato lo stato di identificazione per il controller %1!d!, slot %2!d!.", // 1150
    L"Una richiesta dell'utente ha impostato l'identificazione per un volume sul controller %1!d!, slot %2!d!.", // 1151
    L"Una richiesta dell'utente ha annullato lo stato di identificazione per il controller %1!d!, slot %2!d!.", // 1152
    L"Ripristino forzato dell'array offline %1!d!.", // 1153
    L"Riserva dedicata assegnata all'array %3!d! sul controller %1!d! canale %2!d!.", // 1154
    L"Riserva dedicata rimossa dall'array %3!d! sul controller %1!d! canale %2!d!.", // 1155
    L"Gestione del contenitore non supportata per il controller %1!d!.", // 1156
    L"Annullata la richiesta orfana di stato di identificazione per il controller %1!d!, slot %2!d!.", // 1157
    L"Un'attività di ricostruzione è stata rimossa dall'utente sull'array %1!d!.", // 1158
    L"Disco perforato sul controller %1!d! canale %2!d!.", // 1159
    L"Perforazione del disco non riuscita sul controller %1!d! canale %2!d!.", // 1160
    L"Un'attività di cancellazione sicura è stata sospesa sull'array %1!d!.", // 1165
    L"Un'attività di cancellazione sicura è stata ripresa sull'array %1!d!.", // 1166
    L"Un'attività di cancellazione sicura non è riuscita per l'array %1!d!.", // 1167
    L"Un'attività di cancellazione sicura è stata completata per l'array %1!d!.", // 1168
    L"Un'attività di cancellazione sicura è stata arrestata sull'array %1!d!.", // 1169
    L"Un'attività di cancellazione sicura è stata rimossa sull'array %1!d!.", // 1170
    L"Un nuovo dispositivo sconosciuto è stato inserito sul controller %1!d! canale %2!d!.", // 1171
    L"Un'attività qsync è stata ripresa sull'array %1!d!.", // 1172
    L"Un'attività qsync è stata completata sull'array %1!d!.", // 1173
    L"Un'attività qsync non è riuscita sull'array %1!d!.", // 1174
    L"Un'attività qsync è stata arrestata sull'array %1!d!.", // 1175
    L"Un'attività qsync è stata rimossa sull'array %1!d!.", // 1176
    L"Un'attività qsync è stata sospesa sull'array %1!d!.", // 1177
    L"Un'attività qsync è stata avviata per l'array %1!d!.", // 1178
    L"qsync attivato sull'array %1!d!.", // 1179
    L"qsync disattivato sull'array %1!d!.", // 1180
    L"Metadati dell'unità cancellati sul controller %1!d! canale %2!d!.", // 1181
    L"Una richiesta dell'utente ha impostato lo stato esteso 1 (OKAY) del LED per il controller %1!d!, slot %2!d!.", // 1182
    L"Una richiesta dell'utente ha impostato lo stato esteso 2 (REBUILDING) del LED per il controller %1!d!, slot %2!d!.", // 1183
    L"Una richiesta dell'utente ha impostato lo stato esteso 3 (FAILED) del LED per il controller %1!d!, slot %2!d!.", // 1184
    L"Una richiesta dell'utente ha impostato lo stato esteso 4 (IDENTIFY) del LED per il controller %1!d!, slot %2!d!.", // 1185
    L"Una richiesta dell'utente ha impostato lo stato esteso 5 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1186
    L"Una richiesta dell'utente ha impostato lo stato esteso 6 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1187
    L"Una richiesta dell'utente ha impostato lo stato esteso 7 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1188
    L"Una richiesta dell'utente ha impostato lo stato esteso 8 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1189
    L"Una richiesta dell'utente ha impostato lo stato esteso 9 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1190
    L"Una richiesta dell'utente ha impostato lo stato esteso 10 (UNDEFINED) del LED per il controller %1!d!, slot %2!d!.", // 1191
    L"Una richiesta dell'utente ha ripristinato lo stato del LED per il controller %1!d!, slot %2!d!.", // 1192
};
// clang-format on
