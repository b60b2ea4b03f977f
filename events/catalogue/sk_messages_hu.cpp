// Hungarian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesHungarian[SK_MESSAGE_COUNT] = {
    L"Az üzenetterület inicializálva, az üzenetek naplózása elindult.", // 1001
    L"Az üzenetterület megtalálva, az üzenetek naplózása az utolsó bejegyzéstől folytatódik.", // 1002
    L"Verzióeltérés miatt inicializálás történt, egyes üzenetek elveszhettek.", // 1003
    L"Az üzenetmemória méretének eltérése miatt inicializálás történt, egyes üzenetek elveszhettek.", // 1004
    L"Az üzenetek maximális indexméretének eltérése miatt inicializálás történt, egyes üzenetek elveszhettek.", // 1005
    L"Sérült üzenetírási mutató miatt inicializálás történt, egyes üzenetek elveszhettek.", // 1006
    L"Kritikus felhasználói információs bejegyzések vesztek el.", // 1008
    L"Nem található a(z) %1!d! (0x%1!x!) azonosítójú üzenet a fordításhoz, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Megérkezett a mag újravizsgálati parancsa.", // 1012
    L"Meghajtó meghibásodott (vezérlő: %1!d!, csatorna: %2!d!).", // 1013
    L"A(z) %1!d! számú tömb törölve.", // 1014
    L"A(z) %1!d! számú tömb kritikus állapotba került.", // 1015
    L"A(z) %1!d! számú tömb offline állapotba került.", // 1016
    L"A(z) %1!d! számú tömbön folytatódott az újraépítési feladat.", // 1017
    L"A(z) %1!d! számú tömbön befejeződött az újraépítési feladat.", // 1018
    L"A(z) %1!d! számú tömbön meghiúsult az újraépítési feladat.", // 1019
    L"A(z) %1!d! számú tömbön folytatódott az átalakítási feladat.", // 1020
    L"A(z) %1!d! számú tömbön befejeződött az átalakítási feladat.", // 1021
    L"A(z) %1!d! számú tömbön meghiúsult az átalakítási feladat.", // 1022
    L"A(z) %1!d! számú tömbön folytatódott a konzisztencia-ellenőrzési feladat.", // 1023
    L"A(z) %1!d! számú tömbön befejeződött a konzisztencia-ellenőrzési feladat.", // 1024
    L"A(z) %1!d! számú tömbön meghiúsult a konzisztencia-ellenőrzési feladat.", // 1025
    L"A(z) %1!d! számú tömbön folytatódott a létrehozási feladat.", // 1026
    L"A(z) %1!d! számú tömbön befejeződött a létrehozási feladat.", // 1027
    L"A(z) %1!d! számú tömbön meghiúsult a létrehozási feladat.", // 1028
    L"Meghajtó inicializálva (vezérlő: %1!d!, csatorna: %2!d!).", // 1029
    L"A(z) %1!d! számú tömb feladatprioritása megváltozott.", // 1030
    L"A(z) %1!d! számú tömb szétválasztva, új tömb: %2!d!.", // 1031
    L"A(z) %1!d! számú tömb gyorsítótár-házirendje megváltozott: OLVASÁS.", // 1034
    L"A(z) %1!d! számú tömb gyorsítótár-házirendje megváltozott: ÍRÁS.", // 1035
    L"A(z) %1!d! számú tömb gyorsítótár-házirendje megváltozott: NINCS GYORSÍTÓTÁR.", // 1036
    L"Konfigurációváltozás.", // 1037
    L"Új meghajtó csatlakoztatva.", // 1038
    L"Meghajtó leválasztva.", // 1039
    L"IO-időtúllépés (vezérlő: %1!d!, csatorna: %2!d!).", // 1040
    L"Eszközhiba (vezérlő: %1!d!, csatorna: %2!d!).", // 1041
    L"Eszköz csatlakoztatva (vezérlő: %1!d!, csatorna: %2!d!).", // 1042
    L"Eszköz leválasztva (vezérlő: %1!d!, csatorna: %2!d!).", // 1043
    L"Adathordozó-hiba (vezérlő: %1!d!, csatorna: %2!d!).", // 1047
    L"A(z) %1!d! számú tömb késleltetett írási adatai elvesztek.", // 1048
    L"Eszköz meghibásodott (vezérlő: %1!d!, csatorna: %2!d!, sor: %3!d!).", // 1049
    L"A BBR második kísérlete sikertelen (vezérlő: %1!d!, csatorna: %2!d!).", // 1050
    L"Túl sok BBR-hiba, az I/O sikertelen (vezérlő: %1!d!, csatorna: %2!d!).", // 1051
    L"Blokkszám: alsó=0x%1!x!, felső=0x%2!x!.", // 1052
    L"A(z) %1!d! számú tömbön folytatódott a másolási feladat.", // 1053
    L"A(z) %1!d! számú tömbön befejeződött a másolási feladat.", // 1054
    L"A(z) %1!d! számú tömbön meghiúsult a másolási feladat.", // 1055
    L"Helyreállíthatatlan adathordozó-hiba a(z) %1!d! számú tömbön, adatok veszhettek el.", // 1056
    L"Eszköz behelyezése észlelve (vezérlő: %1!d!, csatorna: %2!d!).", // 1057
    L"MEMÓRIALEKÉPEZÉSI HIBA (vezérlő: %1!d!, csatorna: %2!d!), A CSATORNA LETILTÁSA.", // 1060
    L"Egy SMART-eszköz KÜSZÖBÉRTÉK-TÚLLÉPÉST jelez (vezérlő: %1!d!, csatorna: %2!d!).", // 1061
    L"A(z) %1!d! számú tömb gyorsítótár-házirendje megváltozott: OLVASÁS/ÍRÁS.", // 1067
    L"A rendszer távoli felügyelete folyik a következő címről: %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"A(z) %1!d!.%2!d!.%3!d!.%4!d! címről történő távoli felügyelet véget ért.", // 1069
    L"A(z) %1!d! számú tömbön szüneteltetésre került az átalakítási feladat.", // 1097
    L"A(z) %1!d! számú tömbön szüneteltetésre került a konzisztencia-ellenőrzési feladat.", // 1098
    L"A(z) %1!d! számú tömbön szüneteltetésre került az újraépítési feladat.", // 1099
    L"A(z) %1!d! számú tömbön szüneteltetésre került a létrehozási feladat.", // 1100
    L"A(z) %1!d! számú tömbön szüneteltetésre került a másolási feladat.", // 1101
    L"A(z) %1!d! számú tömbön eltávolításra került az átalakítási feladat.", // 1102
    L"A(z) %1!d! számú tömbön eltávolításra került a konzisztencia-ellenőrzési feladat.", // 1103
    L"A(z) %1!d! számú tömbön eltávolításra került az újraépítési feladat.", // 1104
    L"A(z) %1!d! számú tömbön eltávolításra került a létrehozási feladat.", // 1105
    L"A(z) %1!d! számú tömbön eltávolításra került a másolási feladat, a kapcsolat bontása sikeres.", // 1106
    L"A(z) %1!d! számú tömbön leállt az átalakítási feladat.", // 1107
    L"A(z) %1!d! számú tömbön leállt a konzisztencia-ellenőrzési feladat.", // 1108
    L"A(z) %1!d! számú tömbön leállt az újraépítési feladat.", // 1109
    L"A(z) %1!d! számú tömbön leállt a létrehozási feladat.", // 1110
    L"A(z) %1!d! számú tömbön leállt a másolási feladat.", // 1111
    L"A(z) %1!d! számú tömb szétválasztva.", // 1112
    L"A(z) %2!d! számú tömbön elindult a tömbvizsgálat %1!d!. menete.", // 1114
    L"A(z) %2!d! számú tömbön befejeződött a tömbvizsgálat %1!d!. menete.", // 1115
    L"Tömbvizsgálat engedélyezve a(z) %1!d! számú tömbön.", // 1116
    L"Tömbvizsgálat letiltva a(z) %1!d! számú tömbön.", // 1117
    L"A flash-kép letöltése a(z) %1!x! számú vezérlőre folyamatban, %2!d! százalék kész.", // 1128
    L"A flash-kép letöltése a(z) %1!x! számú vezérlő IOC-jére befejeződött.", // 1129
    L"Adathordozó-hiba kijavítva a(z) %1!x! számú tömbön.", // 1130
    L"Meghajtó globális tartalékként hozzárendelve (vezérlő: %1!d!, csatorna: %2!d!).", // 1132
    L"Meghajtó eltávolítva a globális tartalékok listájáról (vezérlő: %1!d!, csatorna: %2!d!).", // 1133
    L"Inkonzisztencia kijavítva a(z) %1!x! számú tömbön.", // 1134
    L"A(z) %1!d! számú tömb elrejtve.", // 1135
    L"A(z) %1!d! számú tömb elrejtése megszüntetve.", // 1136
    L"A(z) %1!d! számú tömb újraépítése meghiúsult a forráslemez olvasási hibája miatt.", // 1137
    L"A(z) %1!d! számú tömbön elindult a létrehozási feladat.", // 1138
    L"A(z) %1!d! számú tömbön elindult az újraépítési feladat.", // 1139
    L"A(z) %1!d! számú tömbön elindult az átalakítási feladat.", // 1140
    L"A(z) %1!d! számú tömbön elindult a konzisztencia-ellenőrzési feladat.", // 1141
    L"Lemez visszaírásos gyorsítótára (write-back) engedélyezve (vezérlő: %1!d!, csatorna: %2!d!).", // 1142
    L"Lemez visszaírásos gyorsítótára (write-back) letiltva (vezérlő: %1!d!, csatorna: %2!d!).", // 1143
    L"Lemez előreolvasása engedélyezve (vezérlő: %1!d!, csatorna: %2!d!).", // 1144
    L"Lemez előreolvasása letiltva (vezérlő: %1!d!, csatorna: %2!d!).", // 1145
    L"IOC-firmwarekép letöltési hibája észlelve a(z) %1!d! számú vezérlőn, eltolás: %2!x!.", // 1147
    L"Elmaradt egy eszköz LED-állapotának változása (vezérlő: %1!d!, csatorna: %2!d!).", // 1148
    L"Elmaradt a(z) %1!d! számú tömb LED-állapotának változása.", // 1149
    L"Felhasználói kérés beállította az azonosítási állapotot: vezérlő: %1!d!, foglalat: %2!d!.", // 1150
    L"Felhasználói kérés beállította egy kötet azonosítását: vezérlő: %1!d!, foglalat: %2!d!.", // 1151
    L"Felhasználói kérés törölte az azonosítási állapotot: vezérlő: %1!d!, foglalat: %2!d!.", // 1152
    L"Az offline állapotú, %1!d! számú tömb kényszerített helyreállítása.", // 1153
    L"A(z) %3!d! számú tömbhöz dedikált tartalék rendelve (vezérlő: %1!d!, csatorna: %2!d!).", // 1154
    L"A(z) %3!d! számú tömbről eltávolítva a dedikált tartalék (vezérlő: %1!d!, csatorna: %2!d!).", // 1155
    L"A házkezelés nem támogatott a(z) %1!d! számú vezérlőn.", // 1156
    L"Árva azonosítási állapotkérés törölve: vezérlő: %1!d!, foglalat: %2!d!.", // 1157
    L"A felhasználó eltávolította az újraépítési feladatot a(z) %1!d! számú tömbön.", // 1158
    L"Lemez átszúrtként (puncture) megjelölve (vezérlő: %1!d!, csatorna: %2!d!).", // 1159
    L"A lemez átszúrtként (puncture) való megjelölése sikertelen (vezérlő: %1!d!, csatorna: %2!d!).", // 1160
    L"A(z) %1!d! számú tömbön szüneteltetésre került a biztonságos törlési feladat.", // 1165
    L"A(z) %1!d! számú tömbön folytatódott a biztonságos törlési feladat.", // 1166
    L"A(z) %1!d! számú tömbön meghiúsult a biztonságos törlési feladat.", // 1167
    L"A(z) %1!d! számú tömbön befejeződött a biztonságos törlési feladat.", // 1168
    L"A(z) %1!d! számú tömbön leállt a biztonságos törlési feladat.", // 1169
    L"A(z) %1!d! számú tömbön eltávolításra került a biztonságos törlési feladat.", // 1170
    L"Új, ismeretlen eszközt helyeztek be (vezérlő: %1!d!, csatorna: %2!d!).", // 1171
    L"A(z) %1!d! számú tömbön folytatódott a qsync-feladat.", // 1172
    L"A(z) %1!d! számú tömbön befejeződött a qsync-feladat.", // 1173
    L"A(z) %1!d! számú tömbön meghiúsult a qsync-feladat.", // 1174
    L"A(z) %1!d! számú tömbön leállt a qsync-feladat.", // 1175
    L"A(z) %1!d! számú tömbön eltávolításra került a qsync-feladat.", // 1176
    L"A(z) %1!d! számú tömbön szüneteltetésre került a qsync-feladat.", // 1177
    L"A(z) %1!d! számú tömbön elindult a qsync-feladat.", // 1178
    L"qsync engedélyezve a(z) %1!d! számú tömbön.", // 1179
    L"qsync letiltva a(z) %1!d! számú tömbön.", // 1180
    L"Meghajtó metaadatai törölve (vezérlő: %1!d!, csatorna: %2!d!).", // 1181
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 1 (OK), vezérlő: %1!d!, foglalat: %2!d!.", // 1182
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 2 (ÚJRAÉPÍTÉS), vezérlő: %1!d!, foglalat: %2!d!.", // 1183
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 3 (HIBÁS), vezérlő: %1!d!, foglalat: %2!d!.", // 1184
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 4 (AZONOSÍTÁS), vezérlő: %1!d!, foglalat: %2!d!.", // 1185
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 5 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1186
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 6 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1187
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 7 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1188
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 8 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1189
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 9 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1190
    L"Felhasználói kérés beállította a kiterjesztett LED-állapotot: 10 (NEM DEFINIÁLT), vezérlő: %1!d!, foglalat: %2!d!.", // 1191
    L"Felhasználói kérés visszaállította a LED-állapotot: vezérlő: %1!d!, foglalat: %2!d!.", // 1192
};
// clang-format on
