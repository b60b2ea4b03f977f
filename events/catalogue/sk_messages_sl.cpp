// Slovenian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesSlovenian[SK_MESSAGE_COUNT] = {
    L"Prostor za sporočila je inicializiran, beleženje sporočil se je začelo.", // 1001
    L"Najden je prostor za sporočila, beleženje sporočil se nadaljuje od zadnjega vnosa.", // 1002
    L"Neujemanje različic je povzročilo inicializacijo, nekatera sporočila so morda izgubljena.", // 1003
    L"Neujemanje velikosti pomnilnika za sporočila je povzročilo inicializacijo, nekatera sporočila so morda izgubljena.", // 1004
    L"Neujemanje največje velikosti indeksa sporočil je povzročilo inicializacijo, nekatera sporočila so morda izgubljena.", // 1005
    L"Poškodovan kazalec za zapis sporočil je povzročil inicializacijo, nekatera sporočila so morda izgubljena.", // 1006
    L"Izgubljeni so kritični vnosi uporabniških informacij.", // 1008
    L"Sporočila z ID-jem %1!d! (0x%1!x!) ni bilo mogoče najti za prevod, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Prejet je ukaz za ponovno pregledovanje jedra.", // 1012
    L"Okvara pogona na krmilniku %1!d!, kanal %2!d!.", // 1013
    L"Polje %1!d! je izbrisano.", // 1014
    L"Polje %1!d! je prešlo v kritično stanje.", // 1015
    L"Polje %1!d! je prešlo v stanje brez povezave.", // 1016
    L"Opravilo ponovne izgradnje v polju %1!d! se je nadaljevalo.", // 1017
    L"Opravilo ponovne izgradnje v polju %1!d! je bilo dokončano.", // 1018
    L"Opravilo ponovne izgradnje v polju %1!d! ni uspelo.", // 1019
    L"Opravilo preoblikovanja v polju %1!d! se je nadaljevalo.", // 1020
    L"Opravilo preoblikovanja v polju %1!d! je bilo dokončano.", // 1021
    L"Opravilo preoblikovanja v polju %1!d! ni uspelo.", // 1022
    L"Opravilo preverjanja skladnosti v polju %1!d! se je nadaljevalo.", // 1023
    L"Opravilo preverjanja skladnosti v polju %1!d! je bilo dokončano.", // 1024
    L"Opravilo preverjanja skladnosti v polju %1!d! ni uspelo.", // 1025
    L"Opravilo ustvarjanja polja %1!d! se je nadaljevalo.", // 1026
    L"Opravilo ustvarjanja polja %1!d! je bilo dokončano.", // 1027
    L"Opravilo ustvarjanja polja %1!d! ni uspelo.", // 1028
    L"Pogon je inicializiran na krmilniku %1!d!, kanal %2!d!.", // 1029
    L"Prednost opravil polja %1!d! je spremenjena.", // 1030
    L"Polje %1!d! je razdeljeno, novo polje %2!d!.", // 1031
    L"Pravilnik predpomnilnika polja %1!d! je spremenjen v BRANJE.", // 1034
    L"Pravilnik predpomnilnika polja %1!d! je spremenjen v PISANJE.", // 1035
    L"Pravilnik predpomnilnika polja %1!d! je spremenjen v BREZ PREDPOMNILNIKA.", // 1036
    L"Sprememba konfiguracije.", // 1037
    L"Priključen je nov pogon.", // 1038
    L"Pogon je odklopljen.", // 1039
    L"Časovna omejitev IO je potekla na krmilniku %1!d!, kanal %2!d!.", // 1040
    L"Napaka naprave na krmilniku %1!d!, kanal %2!d!.", // 1041
    L"Naprava je priključena na krmilniku %1!d!, kanal %2!d!.", // 1042
    L"Naprava je odklopljena na krmilniku %1!d!, kanal %2!d!.", // 1043
    L"Napaka medija na krmilniku %1!d!, kanal %2!d!.", // 1047
    L"Polje %1!d!: podatki odloženega pisanja so izgubljeni.", // 1048
    L"Okvara naprave na krmilniku %1!d!, kanal %2!d!, vrstica %3!d!.", // 1049
    L"Drugi poskus BBR ni uspel, krmilnik %1!d!, kanal %2!d!.", // 1050
    L"Preveč napak BBR, I/O ne uspe, krmilnik %1!d!, kanal %2!d!.", // 1051
    L"Številka bloka: nižji del=0x%1!x!, višji del=0x%2!x!.", // 1052
    L"Opravilo kopiranja v polju %1!d! se je nadaljevalo.", // 1053
    L"Opravilo kopiranja v polju %1!d! je bilo dokončano.", // 1054
    L"Opravilo kopiranja v polju %1!d! ni uspelo.", // 1055
    L"Nepopravljiva napaka medija v polju %1!d!, podatki so morda izgubljeni.", // 1056
    L"Zaznana je vstavitev naprave na krmilniku %1!d!, kanal %2!d!.", // 1057
    L"NAPAKA PRESLIKAVE POMNILNIKA na krmilniku %1!d!, kanal %2!d!, KANAL BO ONEMOGOČEN.", // 1060
    L"Naprava SMART poroča o PREKORAČITVI PRAGU na krmilniku %1!d!, kanal %2!d!.", // 1061
    L"Pravilnik predpomnilnika polja %1!d! je spremenjen v BRANJE/PISANJE.", // 1067
    L"Sistem se upravlja na daljavo z naslova %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Upravljanje na daljavo z naslova %1!d!.%2!d!.%3!d!.%4!d! je končano.", // 1069
    L"Opravilo preoblikovanja v polju %1!d! je bilo začasno ustavljeno.", // 1097
    L"Opravilo preverjanja skladnosti v polju %1!d! je bilo začasno ustavljeno.", // 1098
    L"Opravilo ponovne izgradnje v polju %1!d! je bilo začasno ustavljeno.", // 1099
    L"Opravilo ustvarjanja polja %1!d! je bilo začasno ustavljeno.", // 1100
    L"Opravilo kopiranja v polju %1!d! je bilo začasno ustavljeno.", // 1101
    L"Opravilo preoblikovanja v polju %1!d! je bilo odstranjeno.", // 1102
    L"Opravilo preverjanja skladnosti v polju %1!d! je bilo odstranjeno.", // 1103
    L"Opravilo ponovne izgradnje v polju %1!d! je bilo odstranjeno.", // 1104
    L"Opravilo ustvarjanja polja %1!d! je bilo odstranjeno.", // 1105
    L"Opravilo kopiranja v polju %1!d! je bilo odstranjeno, prekinitev povezave je uspela.", // 1106
    L"Opravilo preoblikovanja v polju %1!d! je bilo zaustavljeno.", // 1107
    L"Opravilo preverjanja skladnosti v polju %1!d! je bilo zaustavljeno.", // 1108
    L"Opravilo ponovne izgradnje v polju %1!d! je bilo zaustavljeno.", // 1109
    L"Opravilo ustvarjanja polja %1!d! je bilo zaustavljeno.", // 1110
    L"Opravilo kopiranja v polju %1!d! je bilo zaustavljeno.", // 1111
    L"Polje %1!d! je razdeljeno.", // 1112
    L"V polju %2!d! se je začel prehod %1!d! pregledovanja polja.", // 1114
    L"V polju %2!d! je končan prehod %1!d! pregledovanja polja.", // 1115
    L"Pregledovanje polja %1!d! je omogočeno.", // 1116
    L"Pregledovanje polja %1!d! je onemogočeno.", // 1117
    L"Prenos slike flash v krmilnik %1!x!, dokončano %2!d! odstotkov.", // 1128
    L"Prenos slike flash v IOC krmilnika %1!x! je končan.", // 1129
    L"Napaka medija v polju %1!x! je popravljena.", // 1130
    L"Pogon je dodeljen kot globalni rezervni disk na krmilniku %1!d!, kanal %2!d!.", // 1132
    L"Pogon je odstranjen s seznama globalnih rezervnih diskov na krmilniku %1!d!, kanal %2!d!.", // 1133
    L"Neskladnost v polju %1!x! je popravljena.", // 1134
    L"Polje %1!d! je skrito.", // 1135
    L"Polje %1!d! ni več skrito.", // 1136
    L"Ponovna izgradnja polja %1!d! ni uspela zaradi napake pri branju z izvornega diska.", // 1137
    L"Opravilo ustvarjanja polja %1!d! je bilo zagnano.", // 1138
    L"Opravilo ponovne izgradnje v polju %1!d! je bilo zagnano.", // 1139
    L"Opravilo preoblikovanja v polju %1!d! je bilo zagnano.", // 1140
    L"Opravilo preverjanja skladnosti v polju %1!d! je bilo zagnano.", // 1141
    L"Predpomnilnik diska s povratnim pisanjem (write-back) je omogočen na krmilniku %1!d!, kanal %2!d!.", // 1142
    L"Predpomnilnik diska s povratnim pisanjem (write-back) je onemogočen na krmilniku %1!d!, kanal %2!d!.", // 1143
    L"Vnaprejšnje branje diska je omogočeno na krmilniku %1!d!, kanal %2!d!.", // 1144
    L"Vnaprejšnje branje diska je onemogočeno na krmilniku %1!d!, kanal %2!d!.", // 1145
    L"Na krmilniku %1!d! je zaznana napaka pri prenosu slike vdelane programske opreme IOC pri odmiku %2!x!.", // 1147
    L"Izpuščena sprememba stanja LED naprave na krmilniku %1!d!, kanal %2!d!.", // 1148
    L"Izpuščena sprememba stanja LED polja %1!d!.", // 1149
    L"Uporabniška zahteva je nastavila stanje identifikacije: krmilnik %1!d!, reža %2!d!.", // 1150
    L"Uporabniška zahteva je nastavila identifikacijo nosilca: krmilnik %1!d!, reža %2!d!.", // 1151
    L"Uporabniška zahteva je počistila stanje identifikacije: krmilnik %1!d!, reža %2!d!.", // 1152
    L"Prisilna obnovitev polja %1!d! brez povezave.", // 1153
    L"Polju %3!d! je dodeljen namenski rezervni disk na krmilniku %1!d!, kanal %2!d!.", // 1154
    L"Iz polja %3!d! je odstranjen namenski rezervni disk na krmilniku %1!d!, kanal %2!d!.", // 1155
    L"Upravljanje ohišja za krmilnik %1!d! ni podprto.", // 1156
    L"Počiščena je osirotela zahteva za stanje identifikacije: krmilnik %1!d!, reža %2!d!.", // 1157
    L"Uporabnik je odstranil opravilo ponovne izgradnje v polju %1!d!.", // 1158
    L"Disk je označen kot preluknjan (puncture) na krmilniku %1!d!, kanal %2!d!.", // 1159
    L"Diska ni bilo mogoče označiti kot preluknjanega (puncture) na krmilniku %1!d!, kanal %2!d!.", // 1160
    L"Opravilo varnega brisanja v polju %1!d! je bilo začasno ustavljeno.", // 1165
    L"Opravilo varnega brisanja v polju %1!d! se je nadaljevalo.", // 1166
    L"Opravilo varnega brisanja v polju %1!d! ni uspelo.", // 1167
    L"Opravilo varnega brisanja v polju %1!d! je bilo dokončano.", // 1168
    L"Opravilo varnega brisanja v polju %1!d! je bilo zaustavljeno.", // 1169
    L"Opravilo varnega brisanja v polju %1!d! je bilo odstranjeno.", // 1170
    L"Vstavljena je nova neznana naprava na krmilniku %1!d!, kanal %2!d!.", // 1171
    L"Opravilo qsync v polju %1!d! se je nadaljevalo.", // 1172
    L"Opravilo qsync v polju %1!d! je bilo dokončano.", // 1173
    L"Opravilo qsync v polju %1!d! ni uspelo.", // 1174
    L"Opravilo qsync v polju %1!d! je bilo zaustavljeno.", // 1175
    L"Opravilo qsync v polju %1!d! je bilo odstranjeno.", // 1176
    L"Opravilo qsync v polju %1!d! je bilo začasno ustavljeno.", // 1177
    L"Opravilo qsync v polju %1!d! je bilo zagnano.", // 1178
    L"V polju %1!d! je omogočen qsync.", // 1179
    L"V polju %1!d! je onemogočen qsync.", // 1180
    L"Metapodatki pogona so počiščeni na krmilniku %1!d!, kanal %2!d!.", // 1181
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 1 (OK): krmilnik %1!d!, reža %2!d!.", // 1182
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 2 (PONOVNA IZGRADNJA): krmilnik %1!d!, reža %2!d!.", // 1183
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 3 (OKVARA): krmilnik %1!d!, reža %2!d!.", // 1184
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 4 (IDENTIFIKACIJA): krmilnik %1!d!, reža %2!d!.", // 1185
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 5 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1186
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 6 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1187
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 7 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1188
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 8 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1189
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 9 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1190
    L"Uporabniška zahteva je nastavila razširjeno stanje LED 10 (NEDOLOČENO): krmilnik %1!d!, reža %2!d!.", // 1191
    L"Uporabniška zahteva je obnovila stanje LED: krmilnik %1!d!, reža %2!d!.", // 1192
};
// clang-format on
