// Danish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesDanish[SK_MESSAGE_COUNT] = {
    L"Meddelelsesområdet er initialiseret, meddelelseslogning startes.", // 1001
    L"Meddelelsesområdet blev fundet, meddelelseslogning fortsætter fra den seneste post.", // 1002
    L"En versionsuoverensstemmelse medførte initialisering, nogle meddelelser kan være gået tabt.", // 1003
    L"En uoverensstemmelse i meddelelseshukommelsens størrelse medførte initialisering, nogle meddelelser kan være gået tabt.", // 1004
    L"En uoverensstemmelse i meddelelsernes maksimale indeksstørrelse medførte initialisering, nogle meddelelser kan være gået tabt.", // 1005
    L"En beskadiget skrivepointer for meddelelser medførte initialisering, nogle meddelelser kan være gået tabt.", // 1006
    L"Kritiske poster med brugeroplysninger er gået tabt.", // 1008
    L"Meddelelses-id %1!d! (0x%1!x!) blev ikke fundet til oversættelse, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Kommando til ny scanning af kernen er modtaget.", // 1012
    L"Drev fejlet på controller %1!d! kanal %2!d!.", // 1013
    L"Array %1!d! er slettet.", // 1014
    L"Array %1!d! er blevet kritisk.", // 1015
    L"Array %1!d! er gået offline.", // 1016
    L"En genopbygningsopgave er genoptaget på array %1!d!.", // 1017
    L"En genopbygningsopgave er fuldført på array %1!d!.", // 1018
    L"En genopbygningsopgave er mislykkedes på array %1!d!.", // 1019
    L"En transformationsopgave er genoptaget på array %1!d!.", // 1020
    L"En transformationsopgave er fuldført på array %1!d!.", // 1021
    L"En transformationsopgave er mislykkedes på array %1!d!.", // 1022
    L"En konsistenskontrol er genoptaget på array %1!d!.", // 1023
    L"En konsistenskontrol er fuldført på array %1!d!.", // 1024
    L"En konsistenskontrol er mislykkedes på array %1!d!.", // 1025
    L"En oprettelsesopgave er genoptaget for array %1!d!.", // 1026
    L"En oprettelsesopgave er fuldført for array %1!d!.", // 1027
    L"En oprettelsesopgave er mislykkedes for array %1!d!.", // 1028
    L"Drev initialiseret på controller %1!d! kanal %2!d!.", // 1029
    L"Opgaveprioriteten for array %1!d! er ændret.", // 1030
    L"Array %1!d! opdelt, nyt array %2!d!.", // 1031
    L"Cachepolitikken for array %1!d! er ændret til LÆSNING.", // 1034
    L"Cachepolitikken for array %1!d! er ændret til SKRIVNING.", // 1035
    L"Cachepolitikken for array %1!d! er ændret til INGEN CACHE.", // 1036
    L"Konfigurationsændring.", // 1037
    L"Nyt drev tilsluttet.", // 1038
    L"Drev frakoblet.", // 1039
    L"IO-timeout på controller %1!d! kanal %2!d!.", // 1040
    L"Enhedsfejl på controller %1!d! kanal %2!d!.", // 1041
    L"Enhed tilsluttet på controller %1!d! kanal %2!d!.", // 1042
    L"Enhed frakoblet på controller %1!d! kanal %2!d!.", // 1043
    L"Mediefejl på controller %1!d! kanal %2!d!.", // 1047
    L"Array %1!d!: data fra forsinket skrivning er gået tabt.", // 1048
    L"Enhed fejlet på controller %1!d! kanal %2!d! linje %3!d!.", // 1049
    L"Andet BBR-forsøg mislykkedes, controller %1!d! kanal %2!d!.", // 1050
    L"For mange BBR-fejl, I/O mislykkes, controller %1!d! kanal %2!d!.", // 1051
    L"Bloknummer lav=0x%1!x!, høj=0x%2!x!.", // 1052
    L"En kopieringsopgave er genoptaget for array %1!d!.", // 1053
    L"En kopieringsopgave er fuldført for array %1!d!.", // 1054
    L"En kopieringsopgave er mislykkedes for array %1!d!.", // 1055
    L"Uoprettelig mediefejl på array %1!d!, data kan være gået tabt.", // 1056
    L"Indsættelse af enhed registreret på controller %1!d! kanal %2!d!.", // 1057
    L"FEJL VED HUKOMMELSESTILKNYTNING på controller %1!d! kanal %2!d!, KANALEN DEAKTIVERES.", // 1060
    L"SMART-enhed rapporterer TÆRSKELVÆRDI OVERSKREDET på controller %1!d! kanal %2!d!.", // 1061
    L"Cachepolitikken for array %1!d! er ændret til LÆSNING/SKRIVNING.", // 1067
    L"Systemet fjernadministreres af %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Fjernadministration fra %1!d!.%2!d!.%3!d!.%4!d! er afsluttet.", // 1069
    L"En transformationsopgave er sat på pause på array %1!d!.", // 1097
    L"En konsistenskontrol er sat på pause på array %1!d!.", // 1098
    L"En genopbygningsopgave er sat på pause på array %1!d!.", // 1099
    L"En oprettelsesopgave er sat på pause på array %1!d!.", // 1100
    L"En kopieringsopgave er sat på pause på array %1!d!.", // 1101
    L"En transformationsopgave er fjernet på array %1!d!.", // 1102
    L"En konsistenskontrol er fjernet på array %1!d!.", // 1103
    L"En genopbygningsopgave er fjernet på array %1!d!.", // 1104
    L"En oprettelsesopgave er fjernet på array %1!d!.", // 1105
    L"En kopieringsopgave er fjernet, frakobling gennemført på array %1!d!.", // 1106
    L"En transformationsopgave er lukket ned på array %1!d!.", // 1107
    L"En konsistenskontrol er lukket ned på array %1!d!.", // 1108
    L"En genopbygningsopgave er lukket ned på array %1!d!.", // 1109
    L"En oprettelsesopgave er lukket ned på array %1!d!.", // 1110
    L"En kopieringsopgave er lukket ned på array %1!d!.", // 1111
    L"Array %1!d! opdelt.", // 1112
    L"Array-scanning, gennemløb %1!d!, er startet på array %2!d!.", // 1114
    L"Array-scanning, gennemløb %1!d!, er fuldført på array %2!d!.", // 1115
    L"Array-scanning aktiveret på array %1!d!.", // 1116
    L"Array-scanning deaktiveret på array %1!d!.", // 1117
    L"Flash-image overføres til controller %1!x!, procent fuldført: %2!d!.", // 1128
    L"Overførsel af flash-image til IOC er fuldført for controller %1!x!.", // 1129
    L"Mediefejl repareret på array %1!x!.", // 1130
    L"Drev tildelt som globalt reservedrev på controller %1!d! kanal %2!d!.", // 1132
    L"Drev fjernet fra listen over globale reservedrev på controller %1!d! kanal %2!d!.", // 1133
    L"Inkonsistens repareret på array %1!x!.", // 1134
    L"Array %1!d! skjult.", // 1135
    L"Array %1!d! vises igen.", // 1136
    L"Genopbygning mislykkedes på array %1!d! på grund af en læsefejl på kildedisken.", // 1137
    L"En oprettelsesopgave er startet for array %1!d!.", // 1138
    L"En genopbygningsopgave er startet for array %1!d!.", // 1139
    L"En transformationsopgave er startet for array %1!d!.", // 1140
    L"En konsistenskontrol er startet for array %1!d!.", // 1141
    L"Diskens write-back-cache aktiveret på controller %1!d! kanal %2!d!.", // 1142
    L"Diskens write-back-cache deaktiveret på controller %1!d! kanal %2!d!.", // 1143
    L"Diskens forudlæsning aktiveret på controller %1!d! kanal %2!d!.", // 1144
    L"Diskens forudlæsning deaktiveret på controller %1!d! kanal %2!d!.", // 1145
    L"Fejl ved overførsel af IOC-firmwareimage registreret på controller %1!d! ved offset %2!x!.", // 1147
    L"Ændring af LED-tilstand blev ikke registreret for enhed på controller %1!d! kanal %2!d!.", // 1148
    L"Ændring af LED-tilstand blev ikke registreret for array %1!d!.", // 1149
    L"En brugeranmodning har angivet identifikationstilstand for controller %1!d!, slot %2!d!.", // 1150
    L"En brugeranmodning har angivet identifikation for en diskenhed på controller %1!d!, slot %2!d!.", // 1151
    L"En brugeranmodning har ryddet identifikationstilstand for controller %1!d!, slot %2!d!.", // 1152
    L"Gennemtvunget gendannelse af offline array %1!d!.", // 1153
    L"Array %3!d! har fået tildelt et dedikeret reservedrev på controller %1!d! kanal %2!d!.", // 1154
    L"Det dedikerede reservedrev på controller %1!d! kanal %2!d! er fjernet fra array %3!d!.", // 1155
    L"Kabinetstyring understøttes ikke for controller %1!d!.", // 1156
    L"Forældreløs anmodning om identifikationstilstand ryddet for controller %1!d!, slot %2!d!.", // 1157
    L"En genopbygningsopgave er fjernet af brugeren på array %1!d!.", // 1158
    L"Disk punkteret på controller %1!d! kanal %2!d!.", // 1159
    L"Disken kunne ikke punkteres på controller %1!d! kanal %2!d!.", // 1160
    L"En opgave til sikker sletning er sat på pause på array %1!d!.", // 1165
    L"En opgave til sikker sletning er genoptaget på array %1!d!.", // 1166
    L"En opgave til sikker sletning er mislykkedes for array %1!d!.", // 1167
    L"En opgave til sikker sletning er fuldført for array %1!d!.", // 1168
    L"En opgave til sikker sletning er lukket ned på array %1!d!.", // 1169
    L"En opgave til sikker sletning er fjernet på array %1!d!.", // 1170
    L"En ny ukendt enhed er indsat på controller %1!d! kanal %2!d!.", // 1171
    L"En qsync-opgave er genoptaget på array %1!d!.", // 1172
    L"En qsync-opgave er fuldført på array %1!d!.", // 1173
    L"En qsync-opgave er mislykkedes på array %1!d!.", // 1174
    L"En qsync-opgave er lukket ned på array %1!d!.", // 1175
    L"En qsync-opgave er fjernet på array %1!d!.", // 1176
    L"En qsync-opgave er sat på pause på array %1!d!.", // 1177
    L"En qsync-opgave er startet for array %1!d!.", // 1178
    L"qsync aktiveret på array %1!d!.", // 1179
    L"qsync deaktiveret på array %1!d!.", // 1180
    L"Drevets metadata ryddet på controller %1!d! kanal %2!d!.", // 1181
    L"En brugeranmodning har angivet udvidet LED-tilstand 1 (OKAY) for controller %1!d!, slot %2!d!.", // 1182
    L"En brugeranmodning har angivet udvidet LED-tilstand 2 (REBUILDING) for controller %1!d!, slot %2!d!.", // 1183
    L"En brugeranmodning har angivet udvidet LED-tilstand 3 (FAILED) for controller %1!d!, slot %2!d!.", // 1184
    L"En brugeranmodning har angivet udvidet LED-tilstand 4 (IDENTIFY) for controller %1!d!, slot %2!d!.", // 1185
    L"En brugeranmodning har angivet udvidet LED-tilstand 5 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1186
    L"En brugeranmodning har angivet udvidet LED-tilstand 6 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1187
    L"En brugeranmodning har angivet udvidet LED-tilstand 7 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1188
    L"En brugeranmodning har angivet udvidet LED-tilstand 8 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1189
    L"En brugeranmodning har angivet udvidet LED-tilstand 9 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1190
    L"En brugeranmodning har angivet udvidet LED-tilstand 10 (UNDEFINED) for controller %1!d!, slot %2!d!.", // 1191
    L"En brugeranmodning har gendannet LED-tilstanden for controller %1!d!, slot %2!d!.", // 1192
};
// clang-format on
