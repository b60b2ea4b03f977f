// Dutch texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesDutch[SK_MESSAGE_COUNT] = {
    L"Berichtenruimte geïnitialiseerd, berichtregistratie wordt gestart.", // 1001
    L"Berichtenruimte gevonden, berichtregistratie wordt voortgezet vanaf de laatste vermelding.", // 1002
    L"Initialisatie door versieconflict, mogelijk zijn enkele berichten verloren gegaan.", // 1003
    L"Initialisatie door afwijkende grootte van het berichtengeheugen, mogelijk zijn enkele berichten verloren gegaan.", // 1004
    L"Initialisatie door afwijkende maximale indexgrootte van berichten, mogelijk zijn enkele berichten verloren gegaan.", // 1005
    L"Initialisatie door beschadigde schrijfpointer van berichten, mogelijk zijn enkele berichten verloren gegaan.", // 1006
    L"Kritieke gebruikersinformatievermeldingen zijn verloren gegaan.", // 1008
    L"Bericht-ID %1!d! (0x%1!x!) niet gevonden voor vertaling, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Opdracht voor opnieuw scannen van de kern ontvangen.", // 1012
    L"Station defect op controller %1!d! kanaal %2!d!.", // 1013
    L"Array %1!d! is verwijderd.", // 1014
    L"Array %1!d! is kritiek geworden.", // 1015
    L"Array %1!d! is offline gegaan.", // 1016
    L"Een taak voor opnieuw opbouwen is hervat op array %1!d!.", // 1017
    L"Een taak voor opnieuw opbouwen is voltooid op array %1!d!.", // 1018
    L"Een taak voor opnieuw opbouwen is mislukt op array %1!d!.", // 1019
    L"Een transformatietaak is hervat op array %1!d!.", // 1020
    L"Een transformatietaak is voltooid op array %1!d!.", // 1021
    L"Een transformatietaak is mislukt op array %1!d!.", // 1022
    L"Een consistentiecontrole is hervat op array %1!d!.", // 1023
    L"Een consistentiecontrole is voltooid op array %1!d!.", // 1024
    L"Een consistentiecontrole is mislukt op array %1!d!.", // 1025
    L"Een aanmaaktaak is hervat voor array %1!d!.", // 1026
    L"Een aanmaaktaak is voltooid voor array %1!d!.", // 1027
    L"Een aanmaaktaak is mislukt voor array %1!d!.", // 1028
    L"Station geïnitialiseerd op controller %1!d! kanaal %2!d!.", // 1029
    L"De taakprioriteit van array %1!d! is gewijzigd.", // 1030
    L"Array %1!d! gesplitst, nieuwe array %2!d!.", // 1031
    L"Cachebeleid van array %1!d! gewijzigd in LEZEN.", // 1034
    L"Cachebeleid van array %1!d! gewijzigd in SCHRIJVEN.", // 1035
    L"Cachebeleid van array %1!d! gewijzigd in GEEN CACHE.", // 1036
    L"Configuratiewijziging.", // 1037
    L"Nieuw station aangesloten.", // 1038
    L"Station losgekoppeld.", // 1039
    L"IO-time-out op controller %1!d! kanaal %2!d!.", // 1040
    L"Apparaatfout op controller %1!d! kanaal %2!d!.", // 1041
    L"Apparaat aangesloten op controller %1!d! kanaal %2!d!.", // 1042
    L"Apparaat losgekoppeld op controller %1!d! kanaal %2!d!.", // 1043
    L"Mediumfout op controller %1!d! kanaal %2!d!.", // 1047
    L"Array %1!d!: gegevens van vertraagd schrijven verloren gegaan.", // 1048
    L"Apparaat defect op controller %1!d! kanaal %2!d! regel %3!d!.", // 1049
    L"Tweede BBR-poging mislukt, controller %1!d! kanaal %2!d!.", // 1050
    L"Te veel BBR-fouten, I/O mislukt, controller %1!d! kanaal %2!d!.", // 1051
    L"Bloknummer laag=0x%1!x!, hoog=0x%2!x!.", // 1052
    L"Een kopieertaak is hervat voor array %1!d!.", // 1053
    L"Een kopieertaak is voltooid voor array %1!d!.", // 1054
    L"Een kopieertaak is mislukt voor array %1!d!.", // 1055
    L"Onherstelbare mediumfout op array %1!d!, mogelijk zijn gegevens verloren gegaan.", // 1056
    L"Plaatsing van apparaat gedetecteerd op controller %1!d! kanaal %2!d!.", // 1057
    L"GEHEUGENTOEWIJZING MISLUKT op controller %1!d! kanaal %2!d!, KANAAL WORDT UITGESCHAKELD.", // 1060
    L"SMART-apparaat meldt DREMPELWAARDE OVERSCHREDEN op controller %1!d! kanaal %2!d!.", // 1061
    L"Cachebeleid van array %1!d! gewijzigd in LEZEN/SCHRIJVEN.", // 1067
    L"Het systeem wordt op afstand beheerd door %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Beheer op afstand door %1!d!.%2!d!.%3!d!.%4!d! is beëindigd.", // 1069
    L"Een transformatietaak is onderbroken op array %1!d!.", // 1097
    L"Een consistentiecontrole is onderbroken op array %1!d!.", // 1098
    L"Een taak voor opnieuw opbouwen is onderbroken op array %1!d!.", // 1099
    L"Een aanmaaktaak is onderbroken op array %1!d!.", // 1100
    L"Een kopieertaak is onderbroken op array %1!d!.", // 1101
    L"Een transformatietaak is verwijderd op array %1!d!.", // 1102
    L"Een consistentiecontrole is verwijderd op array %1!d!.", // 1103
    L"Een taak voor opnieuw opbouwen is verwijderd op array %1!d!.", // 1104
    L"Een aanmaaktaak is verwijderd op array %1!d!.", // 1105
    L"Een kopieertaak is verwijderd, ontkoppelen gelukt op array %1!d!.", // 1106
    L"Een transformatietaak is afgesloten op array %1!d!.", // 1107
    L"Een consistentiecontrole is afgesloten op array %1!d!.", // 1108
    L"Een taak voor opnieuw opbouwen is afgesloten op array %1!d!.", // 1109
    L"Een aanmaaktaak is afgesloten op array %1!d!.", // 1110
    L"Een kopieertaak is afgesloten op array %1!d!.", // 1111
    L"Array %1!d! gesplitst.", // 1112
    L"Arrayscan-doorgang %1!d! is gestart op array %2!d!.", // 1114
    L"Arrayscan-doorgang %1!d! is voltooid op array %2!d!.", // 1115
    L"Arrayscan ingeschakeld op array %1!d!.", // 1116
    L"Arrayscan uitgeschakeld op array %1!d!.", // 1117
    L"Flash-image wordt gedownload naar controller %1!x!, percentage voltooid: %2!d!.", // 1128
    L"Downloaden van flash-image naar IOC voltooid voor controller %1!x!.", // 1129
    L"Mediumfout hersteld op array %1!x!.", // 1130
    L"Station toegewezen als globale reserveschijf op controller %1!d! kanaal %2!d!.", // 1132
    L"Station verwijderd uit de lijst met globale reserveschijven op controller %1!d! kanaal %2!d!.", // 1133
    L"Inconsistentie hersteld op array %1!x!.", // 1134
    L"Array %1!d! verborgen.", // 1135
    L"Array %1!d! weer zichtbaar gemaakt.", // 1136
    L"Opnieuw opbouwen mislukt op array %1!d! door een leesfout op de bronschijf.", // 1137
    L"Een aanmaaktaak is gestart voor array %1!d!.", // 1138
    L"Een taak voor opnieuw opbouwen is gestart voor array %1!d!.", // 1139
    L"Een transformatietaak is gestart voor array %1!d!.", // 1140
    L"Een consistentiecontrole is gestart voor array %1!d!.", // 1141
    L"Write-back-cache van schijf ingeschakeld op controller %1!d! kanaal %2!d!.", // 1142
    L"Write-back-cache van schijf uitgeschakeld op controller %1!d! kanaal %2!d!.", // 1143
    L"Vooruitlezen van schijf ingeschakeld op controller %1!d! kanaal %2!d!.", // 1144
    L"Vooruitlezen van schijf uitgeschakeld op controller %1!d! kanaal %2!d!.", // 1145
    L"Fout bij downloaden van IOC-firmware-image gedetecteerd op controller %1!d! bij offset %2!x!.", // 1147
    L"Gemiste wijziging van LED-status voor apparaat op controller %1!d! kanaal %2!d!.", // 1148
    L"Gemiste wijziging van LED-status voor array %1!d!.", // 1149
    L"Op verzoek van een gebruiker is de identificatiestatus ingesteld voor controller %1!d!, sleuf %2!d!.", // 1150
    L"Op verzoek van een gebruiker is identificatie ingesteld voor een volume op controller %1!d!, sleuf %2!d!.", // 1151
    L"Op verzoek van een gebruiker is de identificatiestatus gewist voor controller %1!d!, sleuf %2!d!.", // 1152
    L"Geforceerd herstel van offline array %1!d!.", // 1153
    L"Toegewezen reserveschijf op controller %1!d! kanaal %2!d! toegekend aan array %3!d!.", // 1154
    L"Toegewezen reserveschijf op controller %1!d! kanaal %2!d! verwijderd van array %3!d!.", // 1155
    L"Behuizingsbeheer voor controller %1!d! wordt niet ondersteund.", // 1156
    L"Verweesde aanvraag voor identificatiestatus gewist voor controller %1!d!, sleuf %2!d!.", // 1157
    L"Een taak voor opnieuw opbouwen is door de gebruiker verwijderd op array %1!d!.", // 1158
    L"Schijf gepunctureerd op controller %1!d! kanaal %2!d!.", // 1159
    L"Puncturen van schijf mislukt op controller %1!d! kanaal %2!d!.", // 1160
    L"Een taak voor veilig wissen is onderbroken op array %1!d!.", // 1165
    L"Een taak voor veilig wissen is hervat op array %1!d!.", // 1166
    L"Een taak voor veilig wissen is mislukt voor array %1!d!.", // 1167
    L"Een taak voor veilig wissen is voltooid voor array %1!d!.", // 1168
    L"Een taak voor veilig wissen is afgesloten op array %1!d!.", // 1169
    L"Een taak voor veilig wissen is verwijderd op array %1!d!.", // 1170
    L"Er is een nieuw onbekend apparaat geplaatst op controller %1!d! kanaal %2!d!.", // 1171
    L"Een qsync-taak is hervat op array %1!d!.", // 1172
    L"Een qsync-taak is voltooid op array %1!d!.", // 1173
    L"Een qsync-taak is mislukt op array %1!d!.", // 1174
    L"Een qsync-taak is afgesloten op array %1!d!.", // 1175
    L"Een qsync-taak is verwijderd op array %1!d!.", // 1176
    L"Een qsync-taak is onderbroken op array %1!d!.", // 1177
    L"Een qsync-taak is gestart voor array %1!d!.", // 1178
    L"qsync ingeschakeld op array %1!d!.", // 1179
    L"qsync uitgeschakeld op array %1!d!.", // 1180
    L"Metagegevens van station gewist op controller %1!d! kanaal %2!d!.", // 1181
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 1 (OKAY) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1182
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 2 (REBUILDING) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1183
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 3 (FAILED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1184
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 4 (IDENTIFY) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1185
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 5 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1186
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 6 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1187
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 7 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1188
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 8 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1189
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 9 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1190
    L"Op verzoek van een gebruiker is de uitgebreide LED-status 10 (UNDEFINED) ingesteld voor controller %1!d!, sleuf %2!d!.", // 1191
    L"Op verzoek van een gebruiker is de LED-status hersteld voor controller %1!d!, sleuf %2!d!.", // 1192
};
// clang-format on
