// Slovak texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesSlovak[SK_MESSAGE_COUNT] = {
    L"Priestor správ bol inicializovaný, spustilo sa zaznamenávanie správ.", // 1001
    L"Našiel sa priestor správ, zaznamenávanie správ pokračuje od posledného záznamu.", // 1002
    L"Nesúlad verzií spôsobil inicializáciu, niektoré správy sa mohli stratiť.", // 1003
    L"Nesúlad veľkosti pamäte správ spôsobil inicializáciu, niektoré správy sa mohli stratiť.", // 1004
    L"Nesúlad maximálnej veľkosti indexu správ spôsobil inicializáciu, niektoré správy sa mohli stratiť.", // 1005
    L"Poškodený ukazovateľ zápisu správ spôsobil inicializáciu, niektoré správy sa mohli stratiť.", // 1006
    L"Stratili sa kritické záznamy informácií pre používateľa.", // 1008
    L"Nepodarilo sa nájsť správu s ID %1!d! (0x%1!x!) na preklad, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Prijal sa príkaz na opätovné prehľadanie jadra.", // 1012
    L"Zlyhanie disku na radiči %1!d!, kanál %2!d!.", // 1013
    L"Pole %1!d! bolo odstránené.", // 1014
    L"Pole %1!d! prešlo do kritického stavu.", // 1015
    L"Pole %1!d! prešlo do režimu offline.", // 1016
    L"Úloha prebudovania v poli %1!d! bola obnovená.", // 1017
    L"Úloha prebudovania v poli %1!d! bola dokončená.", // 1018
    L"Úloha prebudovania v poli %1!d! zlyhala.", // 1019
    L"Úloha transformácie v poli %1!d! bola obnovená.", // 1020
    L"Úloha transformácie v poli %1!d! bola dokončená.", // 1021
    L"Úloha transformácie v poli %1!d! zlyhala.", // 1022
    L"Úloha kontroly konzistencie v poli %1!d! bola obnovená.", // 1023
    L"Úloha kontroly konzistencie v poli %1!d! bola dokončená.", // 1024
    L"Úloha kontroly konzistencie v poli %1!d! zlyhala.", // 1025
    L"Úloha vytvárania poľa %1!d! bola obnovená.", // 1026
    L"Úloha vytvárania poľa %1!d! bola dokončená.", // 1027
    L"Úloha vytvárania poľa %1!d! zlyhala.", // 1028
    L"Disk bol inicializovaný na radiči %1!d!, kanál %2!d!.", // 1029
    L"Priorita úloh poľa %1!d! sa zmenila.", // 1030
    L"Pole %1!d! bolo rozdelené, nové pole %2!d!.", // 1031
    L"Politika vyrovnávacej pamäte poľa %1!d! bola zmenená na ČÍTANIE.", // 1034
    L"Politika vyrovnávacej pamäte poľa %1!d! bola zmenená na ZÁPIS.", // 1035
    L"Politika vyrovnávacej pamäte poľa %1!d! bola zmenená na BEZ VYROVNÁVACEJ PAMÄTE.", // 1036
    L"Zmena konfigurácie.", // 1037
    L"Pripojil sa nový disk.", // 1038
    L"Disk bol odpojený.", // 1039
    L"Uplynul časový limit IO na radiči %1!d!, kanál %2!d!.", // 1040
    L"Chyba zariadenia na radiči %1!d!, kanál %2!d!.", // 1041
    L"Zariadenie bolo pripojené na radiči %1!d!, kanál %2!d!.", // 1042
    L"Zariadenie bolo odpojené na radiči %1!d!, kanál %2!d!.", // 1043
    L"Chyba média na radiči %1!d!, kanál %2!d!.", // 1047
    L"Pole %1!d!: stratili sa údaje oneskoreného zápisu.", // 1048
    L"Zlyhanie zariadenia na radiči %1!d!, kanál %2!d!, riadok %3!d!.", // 1049
    L"Druhý pokus BBR zlyhal, radič %1!d!, kanál %2!d!.", // 1050
    L"Príliš veľa zlyhaní BBR, I/O zlyháva, radič %1!d!, kanál %2!d!.", // 1051
    L"Číslo bloku: nižšia časť=0x%1!x!, vyššia časť=0x%2!x!.", // 1052
    L"Úloha kopírovania v poli %1!d! bola obnovená.", // 1053
    L"Úloha kopírovania v poli %1!d! bola dokončená.", // 1054
    L"Úloha kopírovania v poli %1!d! zlyhala.", // 1055
    L"Neopraviteľná chyba média v poli %1!d!, údaje sa mohli stratiť.", // 1056
    L"Zistilo sa vloženie zariadenia na radiči %1!d!, kanál %2!d!.", // 1057
    L"ZLYHANIE MAPOVANIA PAMÄTE na radiči %1!d!, kanál %2!d!, KANÁL SA VYPÍNA.", // 1060
    L"Zariadenie SMART hlási PREKROČENIE PRAHU na radiči %1!d!, kanál %2!d!.", // 1061
    L"Politika vyrovnávacej pamäte poľa %1!d! bola zmenená na ČÍTANIE/ZÁPIS.", // 1067
    L"Systém je spravovaný na diaľku z adresy %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Vzdialená správa z adresy %1!d!.%2!d!.%3!d!.%4!d! sa skončila.", // 1069
    L"Úloha transformácie v poli %1!d! bola pozastavená.", // 1097
    L"Úloha kontroly konzistencie v poli %1!d! bola pozastavená.", // 1098
    L"Úloha prebudovania v poli %1!d! bola pozastavená.", // 1099
    L"Úloha vytvárania poľa %1!d! bola pozastavená.", // 1100
    L"Úloha kopírovania v poli %1!d! bola pozastavená.", // 1101
    L"Úloha transformácie v poli %1!d! bola odstránená.", // 1102
    L"Úloha kontroly konzistencie v poli %1!d! bola odstránená.", // 1103
    L"Úloha prebudovania v poli %1!d! bola odstránená.", // 1104
    L"Úloha vytvárania poľa %1!d! bola odstránená.", // 1105
    L"Úloha kopírovania v poli %1!d! bola odstránená, odpojenie prebehlo úspešne.", // 1106
    L"Úloha transformácie v poli %1!d! bola ukončená.", // 1107
    L"Úloha kontroly konzistencie v poli %1!d! bola ukončená.", // 1108
    L"Úloha prebudovania v poli %1!d! bola ukončená.", // 1109
    L"Úloha vytvárania poľa %1!d! bola ukončená.", // 1110
    L"Úloha kopírovania v poli %1!d! bola ukončená.", // 1111
    L"Pole %1!d! bolo rozdelené.", // 1112
    L"V poli %2!d! sa začal prechod %1!d! skenovania poľa.", // 1114
    L"V poli %2!d! sa dokončil prechod %1!d! skenovania poľa.", // 1115
    L"Skenovanie poľa %1!d! bolo povolené.", // 1116
    L"Skenovanie poľa %1!d! bolo zakázané.", // 1117
    L"Sťahovanie obrazu flash do radiča %1!x!, dokončených %2!d! percent.", // 1128
    L"Sťahovanie obrazu flash do IOC radiča %1!x! sa dokončilo.", // 1129
    L"Chyba média v poli %1!x! bola opravená.", // 1130
    L"Disk bol priradený ako globálny náhradný disk na radiči %1!d!, kanál %2!d!.", // 1132
    L"Disk bol odstránený zo zoznamu globálnych náhradných diskov na radiči %1!d!, kanál %2!d!.", // 1133
    L"Nekonzistencia v poli %1!x! bola opravená.", // 1134
    L"Pole %1!d! bolo skryté.", // 1135
    L"Skrytie poľa %1!d! bolo zrušené.", // 1136
    L"Prebudovanie poľa %1!d! zlyhalo pre chybu čítania na zdrojovom disku.", // 1137
    L"Úloha vytvárania poľa %1!d! bola spustená.", // 1138
    L"Úloha prebudovania v poli %1!d! bola spustená.", // 1139
    L"Úloha transformácie v poli %1!d! bola spustená.", // 1140
    L"Úloha kontroly konzistencie v poli %1!d! bola spustená.", // 1141
    L"Vyrovnávacia pamäť disku so spätným zápisom (write-back) bola povolená na radiči %1!d!, kanál %2!d!.", // 1142
    L"Vyrovnávacia pamäť disku so spätným zápisom (write-back) bola zakázaná na radiči %1!d!, kanál %2!d!.", // 1143
    L"Predčítanie disku bolo povolené na radiči %1!d!, kanál %2!d!.", // 1144
    L"Predčítanie disku bolo zakázané na radiči %1!d!, kanál %2!d!.", // 1145
    L"Na radiči %1!d! sa zistilo zlyhanie sťahovania obrazu firmvéru IOC na posune %2!x!.", // 1147
    L"Vynechaná zmena stavu LED zariadenia na radiči %1!d!, kanál %2!d!.", // 1148
    L"Vynechaná zmena stavu LED poľa %1!d!.", // 1149
    L"Požiadavka používateľa nastavila stav identifikácie: radič %1!d!, slot %2!d!.", // 1150
    L"Požiadavka používateľa nastavila identifikáciu zväzku: radič %1!d!, slot %2!d!.", // 1151
    L"Požiadavka používateľa zrušila stav identifikácie: radič %1!d!, slot %2!d!.", // 1152
    L"Vynútená obnova poľa %1!d! v režime offline.", // 1153
    L"Poľu %3!d! bol priradený vyhradený náhradný disk na radiči %1!d!, kanál %2!d!.", // 1154
    L"Z poľa %3!d! bol odstránený vyhradený náhradný disk na radiči %1!d!, kanál %2!d!.", // 1155
    L"Správa skrine nie je pre radič %1!d! podporovaná.", // 1156
    L"Zrušená osirelá požiadavka na stav identifikácie: radič %1!d!, slot %2!d!.", // 1157
    L"Používateľ odstránil úlohu prebudovania v poli %1!d!.", // 1158
    L"Disk bol označený ako prepichnutý (puncture) na radiči %1!d!, kanál %2!d!.", // 1159
    L"Disk sa nepodarilo označiť ako prepichnutý (puncture) na radiči %1!d!, kanál %2!d!.", // 1160
    L"Úloha bezpečného vymazania v poli %1!d! bola pozastavená.", // 1165
    L"Úloha bezpečného vymazania v poli %1!d! bola obnovená.", // 1166
    L"Úloha bezpečného vymazania v poli %1!d! zlyhala.", // 1167
    L"Úloha bezpečného vymazania v poli %1!d! bola dokončená.", // 1168
    L"Úloha bezpečného vymazania v poli %1!d! bola ukončená.", // 1169
    L"Úloha bezpečného vymazania v poli %1!d! bola odstránená.", // 1170
    L"Bolo vložené nové neznáme zariadenie na radiči %1!d!, kanál %2!d!.", // 1171
    L"Úloha qsync v poli %1!d! bola obnovená.", // 1172
    L"Úloha qsync v poli %1!d! bola dokončená.", // 1173
    L"Úloha qsync v poli %1!d! zlyhala.", // 1174
    L"Úloha qsync v poli %1!d! bola ukončená.", // 1175
    L"Úloha qsync v poli %1!d! bola odstránená.", // 1176
    L"Úloha qsync v poli %1!d! bola pozastavená.", // 1177
    L"Úloha qsync v poli %1!d! bola spustená.", // 1178
    L"V poli %1!d! bol povolený qsync.", // 1179
    L"V poli %1!d! bol zakázaný qsync.", // 1180
    L"Metaúdaje disku boli vymazané na radiči %1!d!, kanál %2!d!.", // 1181
    L"Požiadavka používateľa nastavila rozšírený stav LED 1 (OK): radič %1!d!, slot %2!d!.", // 1182
    L"Požiadavka používateľa nastavila rozšírený stav LED 2 (PREBUDOVANIE): radič %1!d!, slot %2!d!.", // 1183
    L"Požiadavka používateľa nastavila rozšírený stav LED 3 (ZLYHANIE): radič %1!d!, slot %2!d!.", // 1184
    L"Požiadavka používateľa nastavila rozšírený stav LED 4 (IDENTIFIKÁCIA): radič %1!d!, slot %2!d!.", // 1185
    L"Požiadavka používateľa nastavila rozšírený stav LED 5 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1186
    L"Požiadavka používateľa nastavila rozšírený stav LED 6 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1187
    L"Požiadavka používateľa nastavila rozšírený stav LED 7 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1188
    L"Požiadavka používateľa nastavila rozšírený stav LED 8 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1189
    L"Požiadavka používateľa nastavila rozšírený stav LED 9 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1190
    L"Požiadavka používateľa nastavila rozšírený stav LED 10 (NEDEFINOVANÝ): radič %1!d!, slot %2!d!.", // 1191
    L"Požiadavka používateľa obnovila stav LED: radič %1!d!, slot %2!d!.", // 1192
};
// clang-format on
