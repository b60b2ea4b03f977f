// Lithuanian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesLithuanian[SK_MESSAGE_COUNT] = {
    L"Pranešimų sritis inicijuota, pradėtas pranešimų registravimas.", // 1001
    L"Rasta pranešimų sritis, pranešimų registravimas tęsiamas nuo paskutinio įrašo.", // 1002
    L"Dėl versijų neatitikimo atliktas inicijavimas, kai kurie pranešimai galėjo būti prarasti.", // 1003
    L"Dėl pranešimų atminties dydžio neatitikimo atliktas inicijavimas, kai kurie pranešimai galėjo būti prarasti.", // 1004
    L"Dėl didžiausio pranešimų indekso dydžio neatitikimo atliktas inicijavimas, kai kurie pranešimai galėjo būti prarasti.", // 1005
    L"Dėl sugadintos pranešimų rašymo rodyklės atliktas inicijavimas, kai kurie pranešimai galėjo būti prarasti.", // 1006
    L"Prarasti kritiniai naudotojo informacijos įrašai.", // 1008
    L"Vertimui nerastas pranešimas, kurio ID %1!d! (0x%1!x!), p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Gauta branduolio pakartotinio nuskaitymo komanda.", // 1012
    L"Disko gedimas valdiklio %1!d! kanale %2!d!.", // 1013
    L"Masyvas %1!d! panaikintas.", // 1014
    L"Masyvas %1!d! perėjo į kritinę būseną.", // 1015
    L"Masyvas %1!d! perėjo į neprisijungusią būseną.", // 1016
    L"Masyvo %1!d! atkūrimo užduotis vėl tęsiama.", // 1017
    L"Masyvo %1!d! atkūrimo užduotis baigta.", // 1018
    L"Masyvo %1!d! atkūrimo užduotis baigėsi nesėkmingai.", // 1019
    L"Masyvo %1!d! transformavimo užduotis vėl tęsiama.", // 1020
    L"Masyvo %1!d! transformavimo užduotis baigta.", // 1021
    L"Masyvo %1!d! transformavimo užduotis baigėsi nesėkmingai.", // 1022
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis vėl tęsiama.", // 1023
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis baigta.", // 1024
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis baigėsi nesėkmingai.", // 1025
    L"Masyvo %1!d! kūrimo užduotis vėl tęsiama.", // 1026
    L"Masyvo %1!d! kūrimo užduotis baigta.", // 1027
    L"Masyvo %1!d! kūrimo užduotis baigėsi nesėkmingai.", // 1028
    L"Diskas inicijuotas valdiklio %1!d! kanale %2!d!.", // 1029
    L"Pakeistas masyvo %1!d! užduočių prioritetas.", // 1030
    L"Masyvas %1!d! padalytas, naujas masyvas %2!d!.", // 1031
    L"Masyvo %1!d! podėlio politika pakeista: SKAITYMAS.", // 1034
    L"Masyvo %1!d! podėlio politika pakeista: RAŠYMAS.", // 1035
    L"Masyvo %1!d! podėlio politika pakeista: BE PODĖLIO.", // 1036
    L"Konfigūracijos pakeitimas.", // 1037
    L"Prijungtas naujas diskas.", // 1038
    L"Diskas atjungtas.", // 1039
    L"Baigėsi IO laukimo laikas valdiklio %1!d! kanale %2!d!.", // 1040
    L"Įrenginio klaida valdiklio %1!d! kanale %2!d!.", // 1041
    L"Įrenginys prijungtas valdiklio %1!d! kanale %2!d!.", // 1042
    L"Įrenginys atjungtas valdiklio %1!d! kanale %2!d!.", // 1043
    L"Laikmenos klaida valdiklio %1!d! kanale %2!d!.", // 1047
    L"Masyvas %1!d!: prarasti atidėtojo rašymo duomenys.", // 1048
    L"Įrenginio gedimas valdiklio %1!d! kanale %2!d!, eilutė %3!d!.", // 1049
    L"Antrasis BBR bandymas nepavyko, valdiklis %1!d!, kanalas %2!d!.", // 1050
    L"Per daug BBR klaidų, I/O nepavyksta, valdiklis %1!d!, kanalas %2!d!.", // 1051
    L"Bloko numeris: žemesnioji dalis=0x%1!x!, aukštesnioji dalis=0x%2!x!.", // 1052
    L"Masyvo %1!d! kopijavimo užduotis vėl tęsiama.", // 1053
    L"Masyvo %1!d! kopijavimo užduotis baigta.", // 1054
    L"Masyvo %1!d! kopijavimo užduotis baigėsi nesėkmingai.", // 1055
    L"Nepataisoma laikmenos klaida masyve %1!d!, duomenys galėjo būti prarasti.", // 1056
    L"Aptiktas įrenginio įdėjimas valdiklio %1!d! kanale %2!d!.", // 1057
    L"ATMINTIES SUSIEJIMO KLAIDA valdiklio %1!d! kanale %2!d!, KANALAS IŠJUNGIAMAS.", // 1060
    L"SMART įrenginys praneša apie VIRŠYTĄ SLENKSTĮ valdiklio %1!d! kanale %2!d!.", // 1061
    L"Masyvo %1!d! podėlio politika pakeista: SKAITYMAS/RAŠYMAS.", // 1067
    L"Sistema nuotoliniu būdu valdoma iš adreso %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Nuotolinis valdymas iš adreso %1!d!.%2!d!.%3!d!.%4!d! baigtas.", // 1069
    L"Masyvo %1!d! transformavimo užduotis pristabdyta.", // 1097
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis pristabdyta.", // 1098
    L"Masyvo %1!d! atkūrimo užduotis pristabdyta.", // 1099
    L"Masyvo %1!d! kūrimo užduotis pristabdyta.", // 1100
    L"Masyvo %1!d! kopijavimo užduotis pristabdyta.", // 1101
    L"Masyvo %1!d! transformavimo užduotis pašalinta.", // 1102
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis pašalinta.", // 1103
    L"Masyvo %1!d! atkūrimo užduotis pašalinta.", // 1104
    L"Masyvo %1!d! kūrimo užduotis pašalinta.", // 1105
    L"Masyvo %1!d! kopijavimo užduotis pašalinta, atsiejimas sėkmingas.", // 1106
    L"Masyvo %1!d! transformavimo užduotis sustabdyta.", // 1107
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis sustabdyta.", // 1108
    L"Masyvo %1!d! atkūrimo užduotis sustabdyta.", // 1109
    L"Masyvo %1!d! kūrimo užduotis sustabdyta.", // 1110
    L"Masyvo %1!d! kopijavimo užduotis sustabdyta.", // 1111
    L"Masyvas %1!d! padalytas.", // 1112
    L"Masyve %2!d! pradėtas masyvo nuskaitymo ciklas %1!d!.", // 1114
    L"Masyve %2!d! baigtas masyvo nuskaitymo ciklas %1!d!.", // 1115
    L"Masyve %1!d! įjungtas masyvo nuskaitymas.", // 1116
    L"Masyve %1!d! išjungtas masyvo nuskaitymas.", // 1117
    L"Į valdiklį %1!x! įkeliamas flash atvaizdis, atlikta %2!d! procentų.", // 1128
    L"Flash atvaizdžio įkėlimas į valdiklio %1!x! IOC baigtas.", // 1129
    L"Masyve %1!x! ištaisyta laikmenos klaida.", // 1130
    L"Diskas priskirtas kaip visuotinis atsarginis diskas valdiklio %1!d! kanale %2!d!.", // 1132
    L"Diskas pašalintas iš visuotinių atsarginių diskų sąrašo valdiklio %1!d! kanale %2!d!.", // 1133
    L"Masyve %1!x! ištaisytas nenuoseklumas.", // 1134
    L"Masyvas %1!d! paslėptas.", // 1135
    L"Masyvo %1!d! paslėpimas atšauktas.", // 1136
    L"Masyvo %1!d! atkūrimas nepavyko dėl šaltinio disko skaitymo klaidos.", // 1137
    L"Masyvo %1!d! kūrimo užduotis pradėta.", // 1138
    L"Masyvo %1!d! atkūrimo užduotis pradėta.", // 1139
    L"Masyvo %1!d! transformavimo užduotis pradėta.", // 1140
    L"Masyvo %1!d! nuoseklumo tikrinimo užduotis pradėta.", // 1141
    L"Disko atgalinio rašymo podėlis (write-back) įjungtas valdiklio %1!d! kanale %2!d!.", // 1142
    L"Disko atgalinio rašymo podėlis (write-back) išjungtas valdiklio %1!d! kanale %2!d!.", // 1143
    L"Disko išankstinis skaitymas įjungtas valdiklio %1!d! kanale %2!d!.", // 1144
    L"Disko išankstinis skaitymas išjungtas valdiklio %1!d! kanale %2!d!.", // 1145
    L"Valdiklyje %1!d! aptikta IOC programinės aparatinės įrangos atvaizdžio įkėlimo klaida, poslinkis %2!x!.", // 1147
    L"Praleistas įrenginio LED būsenos pakeitimas valdiklio %1!d! kanale %2!d!.", // 1148
    L"Praleistas masyvo %1!d! LED būsenos pakeitimas.", // 1149
    L"Naudotojo užklausa nustatė identifikavimo būseną: valdiklis %1!d!, lizdas %2!d!.", // 1150
    L"Naudotojo užklausa nustatė tomo identifikavimą: valdiklis %1!d!, lizdas %2!d!.", // 1151
    L"Naudotojo užklausa išvalė identifikavimo būseną: valdiklis %1!d!, lizdas %2!d!.", // 1152
    L"Neprisijungęs masyvas %1!d! priverstinai atkurtas.", // 1153
    L"Masyvui %3!d! priskirtas skirtasis atsarginis diskas valdiklio %1!d! kanale %2!d!.", // 1154
    L"Iš masyvo %3!d! pašalintas skirtasis atsarginis diskas valdiklio %1!d! kanale %2!d!.", // 1155
    L"Valdiklio %1!d! korpuso valdymas nepalaikomas.", // 1156
    L"Išvalyta pamesta identifikavimo būsenos užklausa: valdiklis %1!d!, lizdas %2!d!.", // 1157
    L"Naudotojas pašalino masyvo %1!d! atkūrimo užduotį.", // 1158
    L"Diskas pažymėtas kaip pradurtas (puncture) valdiklio %1!d! kanale %2!d!.", // 1159
    L"Nepavyko pažymėti disko kaip pradurto (puncture) valdiklio %1!d! kanale %2!d!.", // 1160
    L"Masyvo %1!d! saugaus ištrynimo užduotis pristabdyta.", // 1165
    L"Masyvo %1!d! saugaus ištrynimo užduotis vėl tęsiama.", // 1166
    L"Masyvo %1!d! saugaus ištrynimo užduotis baigėsi nesėkmingai.", // 1167
    L"Masyvo %1!d! saugaus ištrynimo užduotis baigta.", // 1168
    L"Masyvo %1!d! saugaus ištrynimo užduotis sustabdyta.", // 1169
    L"Masyvo %1!d! saugaus ištrynimo užduotis pašalinta.", // 1170
    L"Įdėtas naujas nežinomas įrenginys valdiklio %1!d! kanale %2!d!.", // 1171
    L"Masyvo %1!d! qsync užduotis vėl tęsiama.", // 1172
    L"Masyvo %1!d! qsync užduotis baigta.", // 1173
    L"Masyvo %1!d! qsync užduotis baigėsi nesėkmingai.", // 1174
    L"Masyvo %1!d! qsync užduotis sustabdyta.", // 1175
    L"Masyvo %1!d! qsync užduotis pašalinta.", // 1176
    L"Masyvo %1!d! qsync užduotis pristabdyta.", // 1177
    L"Masyvo %1!d! qsync užduotis pradėta.", // 1178
    L"Masyve %1!d! įjungtas qsync.", // 1179
    L"Masyve %1!d! išjungtas qsync.", // 1180
    L"Išvalyti disko metaduomenys valdiklio %1!d! kanale %2!d!.", // 1181
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 1 (OK): valdiklis %1!d!, lizdas %2!d!.", // 1182
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 2 (ATKŪRIMAS): valdiklis %1!d!, lizdas %2!d!.", // 1183
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 3 (GEDIMAS): valdiklis %1!d!, lizdas %2!d!.", // 1184
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 4 (IDENTIFIKAVIMAS): valdiklis %1!d!, lizdas %2!d!.", // 1185
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 5 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1186
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 6 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1187
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 7 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1188
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 8 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1189
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 9 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1190
    L"Naudotojo užklausa nustatė išplėstinę LED būseną 10 (NEAPIBRĖŽTA): valdiklis %1!d!, lizdas %2!d!.", // 1191
    L"Naudotojo užklausa atkūrė LED būseną: valdiklis %1!d!, lizdas %2!d!.", // 1192
};
// clang-format on
