// Estonian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesEstonian[SK_MESSAGE_COUNT] = {
    L"Sõnumiala lähtestati, sõnumite logimine algas.", // 1001
    L"Sõnumiala leiti, sõnumite logimine jätkub viimasest kirjest.", // 1002
    L"Versioonide mittevastavus põhjustas lähtestamise, mõned sõnumid võisid kaduma minna.", // 1003
    L"Sõnumimälu suuruse mittevastavus põhjustas lähtestamise, mõned sõnumid võisid kaduma minna.", // 1004
    L"Sõnumite maksimaalse indeksisuuruse mittevastavus põhjustas lähtestamise, mõned sõnumid võisid kaduma minna.", // 1005
    L"Rikutud sõnumite kirjutusviit põhjustas lähtestamise, mõned sõnumid võisid kaduma minna.", // 1006
    L"Kriitilised kasutajateabe kirjed läksid kaduma.", // 1008
    L"Tõlkimiseks ei leitud sõnumi ID-d %1!d! (0x%1!x!), p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Saadi tuuma uuesti skannimise käsk.", // 1012
    L"Ketta rike kontrolleri %1!d! kanalil %2!d!.", // 1013
    L"Massiiv %1!d! on kustutatud.", // 1014
    L"Massiiv %1!d! on läinud kriitilisse olekusse.", // 1015
    L"Massiiv %1!d! on läinud võrguühenduseta olekusse.", // 1016
    L"Massiivi %1!d! taastamistoiming jätkus.", // 1017
    L"Massiivi %1!d! taastamistoiming lõppes.", // 1018
    L"Massiivi %1!d! taastamistoiming nurjus.", // 1019
    L"Massiivi %1!d! teisendamistoiming jätkus.", // 1020
    L"Massiivi %1!d! teisendamistoiming lõppes.", // 1021
    L"Massiivi %1!d! teisendamistoiming nurjus.", // 1022
    L"Massiivi %1!d! järjepidevuskontrolli toiming jätkus.", // 1023
    L"Massiivi %1!d! järjepidevuskontrolli toiming lõppes.", // 1024
    L"Massiivi %1!d! järjepidevuskontrolli toiming nurjus.", // 1025
    L"Massiivi %1!d! loomistoiming jätkus.", // 1026
    L"Massiivi %1!d! loomistoiming lõppes.", // 1027
    L"Massiivi %1!d! loomistoiming nurjus.", // 1028
    L"Ketas lähtestati kontrolleri %1!d! kanalil %2!d!.", // 1029
    L"Massiivi %1!d! toimingute prioriteet on muutunud.", // 1030
    L"Massiiv %1!d! poolitati, uus massiiv %2!d!.", // 1031
    L"Massiivi %1!d! vahemälupoliitikaks määrati LUGEMINE.", // 1034
    L"Massiivi %1!d! vahemälupoliitikaks määrati KIRJUTAMINE.", // 1035
    L"Massiivi %1!d! vahemälupoliitikaks määrati VAHEMÄLUTA.", // 1036
    L"Konfiguratsiooni muudatus.", // 1037
    L"Ühendati uus ketas.", // 1038
    L"Ketas ühendati lahti.", // 1039
    L"IO ajalõpp kontrolleri %1!d! kanalil %2!d!.", // 1040
    L"Seadme tõrge kontrolleri %1!d! kanalil %2!d!.", // 1041
    L"Seade ühendati kontrolleri %1!d! kanalil %2!d!.", // 1042
    L"Seade ühendati lahti kontrolleri %1!d! kanalil %2!d!.", // 1043
    L"Andmekandja tõrge kontrolleri %1!d! kanalil %2!d!.", // 1047
    L"Massiiv %1!d!: viivitusega kirjutamise andmed läksid kaduma.", // 1048
    L"Seadme rike kontrolleri %1!d! kanalil %2!d!, rida %3!d!.", // 1049
    L"BBR-i teine katse nurjus, kontroller %1!d!, kanal %2!d!.", // 1050
    L"Liiga palju BBR-i tõrkeid, I/O nurjub, kontroller %1!d!, kanal %2!d!.", // 1051
    L"Ploki number: alumine osa=0x%1!x!, ülemine osa=0x%2!x!.", // 1052
    L"Massiivi %1!d! kopeerimistoiming jätkus.", // 1053
    L"Massiivi %1!d! kopeerimistoiming lõppes.", // 1054
    L"Massiivi %1!d! kopeerimistoiming nurjus.", // 1055
    L"Parandamatu andmekandja tõrge massiivil %1!d!, andmed võisid kaduma minna.", // 1056
    L"Tuvastati seadme sisestamine kontrolleri %1!d! kanalil %2!d!.", // 1057
    L"MÄLU VASTENDAMISE TÕRGE kontrolleri %1!d! kanalil %2!d!, KANAL KEELATAKSE.", // 1060
    L"SMART-seade teatab LÄVENDI ÜLETAMISEST kontrolleri %1!d! kanalil %2!d!.", // 1061
    L"Massiivi %1!d! vahemälupoliitikaks määrati LUGEMINE/KIRJUTAMINE.", // 1067
    L"Süsteemi hallatakse eemalt aadressilt %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Kaughaldus aadressilt %1!d!.%2!d!.%3!d!.%4!d! on lõppenud.", // 1069
    L"Massiivi %1!d! teisendamistoiming peatati ajutiselt.", // 1097
    L"Massiivi %1!d! järjepidevuskontrolli toiming peatati ajutiselt.", // 1098
    L"Massiivi %1!d! taastamistoiming peatati ajutiselt.", // 1099
    L"Massiivi %1!d! loomistoiming peatati ajutiselt.", // 1100
    L"Massiivi %1!d! kopeerimistoiming peatati ajutiselt.", // 1101
    L"Massiivi %1!d! teisendamistoiming eemaldati.", // 1102
    L"Massiivi %1!d! järjepidevuskontrolli toiming eemaldati.", // 1103
    L"Massiivi %1!d! taastamistoiming eemaldati.", // 1104
    L"Massiivi %1!d! loomistoiming eemaldati.", // 1105
    L"Massiivi %1!d! kopeerimistoiming eemaldati, lahtilinkimine õnnestus.", // 1106
    L"Massiivi %1!d! teisendamistoiming seiskati.", // 1107
    L"Massiivi %1!d! järjepidevuskontrolli toiming seiskati.", // 1108
    L"Massiivi %1!d! taastamistoiming seiskati.", // 1109
    L"Massiivi %1!d! loomistoiming seiskati.", // 1110
    L"Massiivi %1!d! kopeerimistoiming seiskati.", // 1111
    L"Massiiv %1!d! poolitati.", // 1112
    L"Massiivi %2!d! skannimise läbikäik %1!d! algas.", // 1114
    L"Massiivi %2!d! skannimise läbikäik %1!d! lõppes.", // 1115
    L"Massiivi %1!d! skannimine lubati.", // 1116
    L"Massiivi %1!d! skannimine keelati.", // 1117
    L"Välkmälu tõmmise laadimine kontrollerisse %1!x!, valmis %2!d! protsenti.", // 1128
    L"Välkmälu tõmmise laadimine kontrolleri %1!x! IOC-sse on lõpetatud.", // 1129
    L"Massiivil %1!x! parandati andmekandja tõrge.", // 1130
    L"Ketas määrati globaalseks varukettaks kontrolleri %1!d! kanalil %2!d!.", // 1132
    L"Ketas eemaldati globaalsete varuketaste loendist kontrolleri %1!d! kanalil %2!d!.", // 1133
    L"Massiivil %1!x! parandati ebakõla.", // 1134
    L"Massiiv %1!d! peideti.", // 1135
    L"Massiiv %1!d! tehti taas nähtavaks.", // 1136
    L"Massiivi %1!d! taastamine nurjus lähteketta lugemistõrke tõttu.", // 1137
    L"Massiivi %1!d! loomistoiming käivitati.", // 1138
    L"Massiivi %1!d! taastamistoiming käivitati.", // 1139
    L"Massiivi %1!d! teisendamistoiming käivitati.", // 1140
    L"Massiivi %1!d! järjepidevuskontrolli toiming käivitati.", // 1141
    L"Ketta tagasikirjutusega vahemälu (write-back) lubati kontrolleri %1!d! kanalil %2!d!.", // 1142
    L"Ketta tagasikirjutusega vahemälu (write-back) keelati kontrolleri %1!d! kanalil %2!d!.", // 1143
    L"Ketta ettelugemine lubati kontrolleri %1!d! kanalil %2!d!.", // 1144
    L"Ketta ettelugemine keelati kontrolleri %1!d! kanalil %2!d!.", // 1145
    L"Kontrolleril %1!d! tuvastati IOC püsivara tõmmise laadimise tõrge nihkel %2!x!.", // 1147
    L"Seadme LED-i oleku muutus jäi vahele kontrolleri %1!d! kanalil %2!d!.", // 1148
    L"Massiivi %1!d! LED-i oleku muutus jäi vahele.", // 1149
    L"Kasutaja taotlusel seati tuvastusolek: kontroller %1!d!, pesa %2!d!.", // 1150
    L"Kasutaja taotlusel seati köite tuvastamine: kontroller %1!d!, pesa %2!d!.", // 1151
    L"Kasutaja taotlusel tühistati tuvastusolek: kontroller %1!d!, pesa %2!d!.", // 1152
    L"Võrguühenduseta massiiv %1!d! taastati sunniviisiliselt.", // 1153
    L"Massiivile %3!d! määrati pühendatud varuketas kontrolleri %1!d! kanalil %2!d!.", // 1154
    L"Massiivilt %3!d! eemaldati pühendatud varuketas kontrolleri %1!d! kanalil %2!d!.", // 1155
    L"Kontrolleri %1!d! korpuse haldust ei toetata.", // 1156
    L"Tühistati orvuks jäänud tuvastusoleku taotlus: kontroller %1!d!, pesa %2!d!.", // 1157
    L"Kasutaja eemaldas massiivi %1!d! taastamistoimingu.", // 1158
    L"Ketas märgiti läbistatuks (puncture) kontrolleri %1!d! kanalil %2!d!.", // 1159
    L"Ketta läbistatuks (puncture) märkimine nurjus kontrolleri %1!d! kanalil %2!d!.", // 1160
    L"Massiivi %1!d! turvalise kustutamise toiming peatati ajutiselt.", // 1165
    L"Massiivi %1!d! turvalise kustutamise toiming jätkus.", // 1166
    L"Massiivi %1!d! turvalise kustutamise toiming nurjus.", // 1167
    L"Massiivi %1!d! turvalise kustutamise toiming lõppes.", // 1168
    L"Massiivi %1!d! turvalise kustutamise toiming seiskati.", // 1169
    L"Massiivi %1!d! turvalise kustutamise toiming eemaldati.", // 1170
    L"Sisestati uus tundmatu seade kontrolleri %1!d! kanalil %2!d!.", // 1171
    L"Massiivi %1!d! qsync-toiming jätkus.", // 1172
    L"Massiivi %1!d! qsync-toiming lõppes.", // 1173
    L"Massiivi %1!d! qsync-toiming nurjus.", // 1174
    L"Massiivi %1!d! qsync-toiming seiskati.", // 1175
    L"Massiivi %1!d! qsync-toiming eemaldati.", // 1176
    L"Massiivi %1!d! qsync-toiming peatati ajutiselt.", // 1177
    L"Massiivi %1!d! qsync-toiming käivitati.", // 1178
    L"Massiivil %1!d! lubati qsync.", // 1179
    L"Massiivil %1!d! keelati qsync.", // 1180
    L"Ketta metaandmed tühjendati kontrolleri %1!d! kanalil %2!d!.", // 1181
    L"Kasutaja taotlusel seati LED-i laiendatud olek 1 (OK): kontroller %1!d!, pesa %2!d!.", // 1182
    L"Kasutaja taotlusel seati LED-i laiendatud olek 2 (TAASTAMINE): kontroller %1!d!, pesa %2!d!.", // 1183
    L"Kasutaja taotlusel seati LED-i laiendatud olek 3 (RIKE): kontroller %1!d!, pesa %2!d!.", // 1184
    L"Kasutaja taotlusel seati LED-i laiendatud olek 4 (TUVASTAMINE): kontroller %1!d!, pesa %2!d!.", // 1185
    L"Kasutaja taotlusel seati LED-i laiendatud olek 5 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1186
    L"Kasutaja taotlusel seati LED-i laiendatud olek 6 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1187
    L"Kasutaja taotlusel seati LED-i laiendatud olek 7 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1188
    L"Kasutaja taotlusel seati LED-i laiendatud olek 8 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1189
    L"Kasutaja taotlusel seati LED-i laiendatud olek 9 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1190
    L"Kasutaja taotlusel seati LED-i laiendatud olek 10 (MÄÄRAMATA): kontroller %1!d!, pesa %2!d!.", // 1191
    L"Kasutaja taotlusel taastati LED-i olek: kontroller %1!d!, pesa %2!d!.", // 1192
};
// clang-format on
