// Latvian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesLatvian[SK_MESSAGE_COUNT] = {
    L"Ziņojumu apgabals inicializēts, sākta ziņojumu reģistrēšana.", // 1001
    L"Atrasts ziņojumu apgabals, ziņojumu reģistrēšana turpinās no pēdējā ieraksta.", // 1002
    L"Versiju neatbilstības dēļ veikta inicializācija, daži ziņojumi var būt zaudēti.", // 1003
    L"Ziņojumu atmiņas lieluma neatbilstības dēļ veikta inicializācija, daži ziņojumi var būt zaudēti.", // 1004
    L"Ziņojumu maksimālā indeksa lieluma neatbilstības dēļ veikta inicializācija, daži ziņojumi var būt zaudēti.", // 1005
    L"Bojāta ziņojumu ierakstīšanas rādītāja dēļ veikta inicializācija, daži ziņojumi var būt zaudēti.", // 1006
    L"Zaudēti kritiski lietotāja informācijas ieraksti.", // 1008
    L"Tulkošanai netika atrasts ziņojuma ID %1!d! (0x%1!x!), p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Saņemta kodola atkārtotas skenēšanas komanda.", // 1012
    L"Diska kļūme kontrollera %1!d! kanālā %2!d!.", // 1013
    L"Masīvs %1!d! ir izdzēsts.", // 1014
    L"Masīvs %1!d! ir nonācis kritiskā stāvoklī.", // 1015
    L"Masīvs %1!d! ir pārgājis bezsaistē.", // 1016
    L"Atjaunošanas uzdevums masīvā %1!d! ir atsākts.", // 1017
    L"Atjaunošanas uzdevums masīvā %1!d! ir pabeigts.", // 1018
    L"Atjaunošanas uzdevums masīvā %1!d! neizdevās.", // 1019
    L"Transformācijas uzdevums masīvā %1!d! ir atsākts.", // 1020
    L"Transformācijas uzdevums masīvā %1!d! ir pabeigts.", // 1021
    L"Transformācijas uzdevums masīvā %1!d! neizdevās.", // 1022
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir atsākts.", // 1023
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir pabeigts.", // 1024
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! neizdevās.", // 1025
    L"Izveides uzdevums masīvam %1!d! ir atsākts.", // 1026
    L"Izveides uzdevums masīvam %1!d! ir pabeigts.", // 1027
    L"Izveides uzdevums masīvam %1!d! neizdevās.", // 1028
    L"Disks inicializēts kontrollera %1!d! kanālā %2!d!.", // 1029
    L"Masīva %1!d! uzdevumu prioritāte ir mainīta.", // 1030
    L"Masīvs %1!d! sadalīts, jauns masīvs %2!d!.", // 1031
    L"Masīva %1!d! kešatmiņas politika mainīta: LASĪŠANA.", // 1034
    L"Masīva %1!d! kešatmiņas politika mainīta: RAKSTĪŠANA.", // 1035
    L"Masīva %1!d! kešatmiņas politika mainīta: BEZ KEŠATMIŅAS.", // 1036
    L"Konfigurācijas izmaiņas.", // 1037
    L"Pievienots jauns disks.", // 1038
    L"Disks atvienots.", // 1039
    L"IO noildze kontrollera %1!d! kanālā %2!d!.", // 1040
    L"Ierīces kļūda kontrollera %1!d! kanālā %2!d!.", // 1041
    L"Ierīce pievienota kontrollera %1!d! kanālā %2!d!.", // 1042
    L"Ierīce atvienota kontrollera %1!d! kanālā %2!d!.", // 1043
    L"Datu nesēja kļūda kontrollera %1!d! kanālā %2!d!.", // 1047
    L"Masīvs %1!d!: zaudēti aizkavētās rakstīšanas dati.", // 1048
    L"Ierīces kļūme kontrollera %1!d! kanālā %2!d!, rinda %3!d!.", // 1049
    L"BBR otrais mēģinājums neizdevās, kontrolleris %1!d!, kanāls %2!d!.", // 1050
    L"Pārāk daudz BBR kļūmju, I/O neizdodas, kontrolleris %1!d!, kanāls %2!d!.", // 1051
    L"Bloka numurs: zemākā daļa=0x%1!x!, augstākā daļa=0x%2!x!.", // 1052
    L"Kopēšanas uzdevums masīvā %1!d! ir atsākts.", // 1053
    L"Kopēšanas uzdevums masīvā %1!d! ir pabeigts.", // 1054
    L"Kopēšanas uzdevums masīvā %1!d! neizdevās.", // 1055
    L"Neatkopjama datu nesēja kļūda masīvā %1!d!, dati var būt zaudēti.", // 1056
    L"Konstatēta ierīces ievietošana kontrollera %1!d! kanālā %2!d!.", // 1057
    L"ATMIŅAS KARTĒŠANAS KĻŪME kontrollera %1!d! kanālā %2!d!, KANĀLS TIEK ATSPĒJOTS.", // 1060
    L"SMART ierīce ziņo par SLIEKŠŅA PĀRSNIEGŠANU kontrollera %1!d! kanālā %2!d!.", // 1061
    L"Masīva %1!d! kešatmiņas politika mainīta: LASĪŠANA/RAKSTĪŠANA.", // 1067
    L"Sistēmu attālināti pārvalda no adreses %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Attālinātā pārvaldība no adreses %1!d!.%2!d!.%3!d!.%4!d! ir beigusies.", // 1069
    L"Transformācijas uzdevums masīvā %1!d! ir pauzēts.", // 1097
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir pauzēts.", // 1098
    L"Atjaunošanas uzdevums masīvā %1!d! ir pauzēts.", // 1099
    L"Izveides uzdevums masīvam %1!d! ir pauzēts.", // 1100
    L"Kopēšanas uzdevums masīvā %1!d! ir pauzēts.", // 1101
    L"Transformācijas uzdevums masīvā %1!d! ir noņemts.", // 1102
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir noņemts.", // 1103
    L"Atjaunošanas uzdevums masīvā %1!d! ir noņemts.", // 1104
    L"Izveides uzdevums masīvam %1!d! ir noņemts.", // 1105
    L"Kopēšanas uzdevums masīvā %1!d! ir noņemts, atsaiste veiksmīga.", // 1106
    L"Transformācijas uzdevums masīvā %1!d! ir apturēts.", // 1107
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir apturēts.", // 1108
    L"Atjaunošanas uzdevums masīvā %1!d! ir apturēts.", // 1109
    L"Izveides uzdevums masīvam %1!d! ir apturēts.", // 1110
    L"Kopēšanas uzdevums masīvā %1!d! ir apturēts.", // 1111
    L"Masīvs %1!d! sadalīts.", // 1112
    L"Masīvā %2!d! ir sākta masīva skenēšanas caurlaide %1!d!.", // 1114
    L"Masīvā %2!d! ir pabeigta masīva skenēšanas caurlaide %1!d!.", // 1115
    L"Masīvā %1!d! iespējota masīva skenēšana.", // 1116
    L"Masīvā %1!d! atspējota masīva skenēšana.", // 1117
    L"Notiek zibatmiņas attēla lejupielāde kontrollerī %1!x!, pabeigti %2!d! procenti.", // 1128
    L"Zibatmiņas attēla lejupielāde kontrollera %1!x! IOC ir pabeigta.", // 1129
    L"Masīvā %1!x! novērsta datu nesēja kļūda.", // 1130
    L"Disks piešķirts kā globālais rezerves disks kontrollera %1!d! kanālā %2!d!.", // 1132
    L"Disks noņemts no globālo rezerves disku saraksta kontrollera %1!d! kanālā %2!d!.", // 1133
    L"Masīvā %1!x! novērsta nekonsekvence.", // 1134
    L"Masīvs %1!d! paslēpts.", // 1135
    L"Masīvs %1!d! vairs nav paslēpts.", // 1136
    L"Masīva %1!d! atjaunošana neizdevās avota diska lasīšanas kļūdas dēļ.", // 1137
    L"Izveides uzdevums masīvam %1!d! ir uzsākts.", // 1138
    L"Atjaunošanas uzdevums masīvā %1!d! ir uzsākts.", // 1139
    L"Transformācijas uzdevums masīvā %1!d! ir uzsākts.", // 1140
    L"Konsekvences pārbaudes uzdevums masīvā %1!d! ir uzsākts.", // 1141
    L"Diska atpakaļrakstīšanas kešatmiņa (write-back) iespējota kontrollera %1!d! kanālā %2!d!.", // 1142
    L"Diska atpakaļrakstīšanas kešatmiņa (write-back) atspējota kontrollera %1!d! kanālā %2!d!.", // 1143
    L"Diska iepriekšējā lasīšana iespējota kontrollera %1!d! kanālā %2!d!.", // 1144
    L"Diska iepriekšējā lasīšana atspējota kontrollera %1!d! kanālā %2!d!.", // 1145
    L"Kontrollerī %1!d! konstatēta IOC aparātprogrammatūras attēla lejupielādes kļūme nobīdē %2!x!.", // 1147
    L"Izlaista ierīces LED stāvokļa maiņa kontrollera %1!d! kanālā %2!d!.", // 1148
    L"Izlaista masīva %1!d! LED stāvokļa maiņa.", // 1149
    L"Pēc lietotāja pieprasījuma iestatīts identificēšanas stāvoklis: kontrolleris %1!d!, slots %2!d!.", // 1150
    L"Pēc lietotāja pieprasījuma iestatīta sējuma identificēšana: kontrolleris %1!d!, slots %2!d!.", // 1151
    L"Pēc lietotāja pieprasījuma notīrīts identificēšanas stāvoklis: kontrolleris %1!d!, slots %2!d!.", // 1152
    L"Bezsaistes masīva %1!d! piespiedu atkopšana.", // 1153
    L"Masīvam %3!d! piešķirts piesaistīts rezerves disks kontrollera %1!d! kanālā %2!d!.", // 1154
    L"No masīva %3!d! noņemts piesaistītais rezerves disks kontrollera %1!d! kanālā %2!d!.", // 1155
    L"Kontrollerim %1!d! korpusa pārvaldība netiek atbalstīta.", // 1156
    L"Notīrīts pamests identificēšanas stāvokļa pieprasījums: kontrolleris %1!d!, slots %2!d!.", // 1157
    L"Lietotājs noņēma atjaunošanas uzdevumu masīvā %1!d!.", // 1158
    L"Disks atzīmēts kā caurdurts (puncture) kontrollera %1!d! kanālā %2!d!.", // 1159
    L"Neizdevās atzīmēt disku kā caurdurtu (puncture) kontrollera %1!d! kanālā %2!d!.", // 1160
    L"Drošās dzēšanas uzdevums masīvā %1!d! ir pauzēts.", // 1165
    L"Drošās dzēšanas uzdevums masīvā %1!d! ir atsākts.", // 1166
    L"Drošās dzēšanas uzdevums masīvā %1!d! neizdevās.", // 1167
    L"Drošās dzēšanas uzdevums masīvā %1!d! ir pabeigts.", // 1168
    L"Drošās dzēšanas uzdevums masīvā %1!d! ir apturēts.", // 1169
    L"Drošās dzēšanas uzdevums masīvā %1!d! ir noņemts.", // 1170
    L"Ievietota jauna nezināma ierīce kontrollera %1!d! kanālā %2!d!.", // 1171
    L"qsync uzdevums masīvā %1!d! ir atsākts.", // 1172
    L"qsync uzdevums masīvā %1!d! ir pabeigts.", // 1173
    L"qsync uzdevums masīvā %1!d! neizdevās.", // 1174
    L"qsync uzdevums masīvā %1!d! ir apturēts.", // 1175
    L"qsync uzdevums masīvā %1!d! ir noņemts.", // 1176
    L"qsync uzdevums masīvā %1!d! ir pauzēts.", // 1177
    L"qsync uzdevums masīvā %1!d! ir uzsākts.", // 1178
    L"Masīvā %1!d! iespējots qsync.", // 1179
    L"Masīvā %1!d! atspējots qsync.", // 1180
    L"Notīrīti diska metadati kontrollera %1!d! kanālā %2!d!.", // 1181
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 1 (OK): kontrolleris %1!d!, slots %2!d!.", // 1182
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 2 (ATJAUNOŠANA): kontrolleris %1!d!, slots %2!d!.", // 1183
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 3 (KĻŪME): kontrolleris %1!d!, slots %2!d!.", // 1184
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 4 (IDENTIFICĒŠANA): kontrolleris %1!d!, slots %2!d!.", // 1185
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 5 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1186
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 6 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1187
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 7 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1188
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 8 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1189
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 9 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1190
    L"Pēc lietotāja pieprasījuma iestatīts LED paplašinātais stāvoklis 10 (NAV DEFINĒTS): kontrolleris %1!d!, slots %2!d!.", // 1191
    L"Pēc lietotāja pieprasījuma atjaunots LED stāvoklis: kontrolleris %1!d!, slots %2!d!.", // 1192
};
// clang-format on
