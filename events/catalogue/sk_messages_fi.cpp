// Finnish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesFinnish[SK_MESSAGE_COUNT] = {
    L"Viestialue alustettiin, viestien kirjaaminen aloitettiin.", // 1001
    L"Viestialue löytyi, viestien kirjaamista jatketaan viimeisestä merkinnästä.", // 1002
    L"Versioristiriita aiheutti alustuksen, joitakin viestejä on voinut kadota.", // 1003
    L"Viestimuistin koon ristiriita aiheutti alustuksen, joitakin viestejä on voinut kadota.", // 1004
    L"Viestien enimmäisindeksikoon ristiriita aiheutti alustuksen, joitakin viestejä on voinut kadota.", // 1005
    L"Vioittunut viestien kirjoitusosoitin aiheutti alustuksen, joitakin viestejä on voinut kadota.", // 1006
    L"Kriittisiä käyttäjätietomerkintöjä katosi.", // 1008
    L"Viestitunnusta %1!d! (0x%1!x!) ei löytynyt käännettäväksi, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Ytimen uudelleenskannauskomento vastaanotettiin.", // 1012
    L"Asema vikaantui (ohjain %1!d!, kanava %2!d!).", // 1013
    L"Levyryhmä %1!d! on poistettu.", // 1014
    L"Levyryhmä %1!d! on siirtynyt kriittiseen tilaan.", // 1015
    L"Levyryhmä %1!d! on siirtynyt offline-tilaan.", // 1016
    L"Levyryhmän %1!d! uudelleenrakennustehtävä jatkui.", // 1017
    L"Levyryhmän %1!d! uudelleenrakennustehtävä valmistui.", // 1018
    L"Levyryhmän %1!d! uudelleenrakennustehtävä epäonnistui.", // 1019
    L"Levyryhmän %1!d! muunnostehtävä jatkui.", // 1020
    L"Levyryhmän %1!d! muunnostehtävä valmistui.", // 1021
    L"Levyryhmän %1!d! muunnostehtävä epäonnistui.", // 1022
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä jatkui.", // 1023
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä valmistui.", // 1024
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä epäonnistui.", // 1025
    L"Levyryhmän %1!d! luontitehtävä jatkui.", // 1026
    L"Levyryhmän %1!d! luontitehtävä valmistui.", // 1027
    L"Levyryhmän %1!d! luontitehtävä epäonnistui.", // 1028
    L"Asema alustettiin (ohjain %1!d!, kanava %2!d!).", // 1029
    L"Levyryhmän %1!d! tehtävien prioriteetti on muuttunut.", // 1030
    L"Levyryhmä %1!d! jaettiin, uusi levyryhmä %2!d!.", // 1031
    L"Levyryhmän %1!d! välimuistikäytännöksi muutettiin LUKU.", // 1034
    L"Levyryhmän %1!d! välimuistikäytännöksi muutettiin KIRJOITUS.", // 1035
    L"Levyryhmän %1!d! välimuistikäytännöksi muutettiin EI VÄLIMUISTIA.", // 1036
    L"Kokoonpanon muutos.", // 1037
    L"Uusi asema liitettiin.", // 1038
    L"Asema irrotettiin.", // 1039
    L"IO-aikakatkaisu (ohjain %1!d!, kanava %2!d!).", // 1040
    L"Laitevirhe (ohjain %1!d!, kanava %2!d!).", // 1041
    L"Laite liitettiin (ohjain %1!d!, kanava %2!d!).", // 1042
    L"Laite irrotettiin (ohjain %1!d!, kanava %2!d!).", // 1043
    L"Tallennusvälinevirhe (ohjain %1!d!, kanava %2!d!).", // 1047
    L"Levyryhmä %1!d!: viivästetyn kirjoituksen tietoja menetettiin.", // 1048
    L"Laite vikaantui (ohjain %1!d!, kanava %2!d!, rivi %3!d!).", // 1049
    L"BBR:n toinen yritys epäonnistui (ohjain %1!d!, kanava %2!d!).", // 1050
    L"Liian monta BBR-virhettä, I/O epäonnistuu (ohjain %1!d!, kanava %2!d!).", // 1051
    L"Lohkon numero: alaosa=0x%1!x!, yläosa=0x%2!x!.", // 1052
    L"Levyryhmän %1!d! kopiointitehtävä jatkui.", // 1053
    L"Levyryhmän %1!d! kopiointitehtävä valmistui.", // 1054
    L"Levyryhmän %1!d! kopiointitehtävä epäonnistui.", // 1055
    L"Korjaamaton tallennusvälinevirhe levyryhmässä %1!d!, tietoja on voinut kadota.", // 1056
    L"Laitteen lisääminen havaittiin (ohjain %1!d!, kanava %2!d!).", // 1057
    L"MUISTIN KUVAUSVIRHE (ohjain %1!d!, kanava %2!d!), KANAVA POISTETAAN KÄYTÖSTÄ.", // 1060
    L"SMART-laite ilmoittaa KYNNYSARVON YLITTYMISESTÄ (ohjain %1!d!, kanava %2!d!).", // 1061
    L"Levyryhmän %1!d! välimuistikäytännöksi muutettiin LUKU/KIRJOITUS.", // 1067
    L"Järjestelmää hallitaan etänä osoitteesta %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Etähallinta osoitteesta %1!d!.%2!d!.%3!d!.%4!d! on päättynyt.", // 1069
    L"Levyryhmän %1!d! muunnostehtävä keskeytettiin tilapäisesti.", // 1097
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä keskeytettiin tilapäisesti.", // 1098
    L"Levyryhmän %1!d! uudelleenrakennustehtävä keskeytettiin tilapäisesti.", // 1099
    L"Levyryhmän %1!d! luontitehtävä keskeytettiin tilapäisesti.", // 1100
    L"Levyryhmän %1!d! kopiointitehtävä keskeytettiin tilapäisesti.", // 1101
    L"Levyryhmän %1!d! muunnostehtävä poistettiin.", // 1102
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä poistettiin.", // 1103
    L"Levyryhmän %1!d! uudelleenrakennustehtävä poistettiin.", // 1104
    L"Levyryhmän %1!d! luontitehtävä poistettiin.", // 1105
    L"Levyryhmän %1!d! kopiointitehtävä poistettiin, linkityksen purku onnistui.", // 1106
    L"Levyryhmän %1!d! muunnostehtävä pysäytettiin.", // 1107
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä pysäytettiin.", // 1108
    L"Levyryhmän %1!d! uudelleenrakennustehtävä pysäytettiin.", // 1109
    L"Levyryhmän %1!d! luontitehtävä pysäytettiin.", // 1110
    L"Levyryhmän %1!d! kopiointitehtävä pysäytettiin.", // 1111
    L"Levyryhmä %1!d! jaettiin.", // 1112
    L"Levyryhmän %2!d! skannauksen kierros %1!d! on alkanut.", // 1114
    L"Levyryhmän %2!d! skannauksen kierros %1!d! on päättynyt.", // 1115
    L"Levyryhmän %1!d! skannaus otettiin käyttöön.", // 1116
    L"Levyryhmän %1!d! skannaus poistettiin käytöstä.", // 1117
    L"Flash-näköistiedostoa ladataan ohjaimeen %1!x!, valmiina %2!d! prosenttia.", // 1128
    L"Flash-näköistiedoston lataus ohjaimen %1!x! IOC:hen on valmis.", // 1129
    L"Tallennusvälinevirhe korjattiin levyryhmässä %1!x!.", // 1130
    L"Asema määritettiin yleiseksi varalevyksi (ohjain %1!d!, kanava %2!d!).", // 1132
    L"Asema poistettiin yleisten varalevyjen luettelosta (ohjain %1!d!, kanava %2!d!).", // 1133
    L"Epäyhdenmukaisuus korjattiin levyryhmässä %1!x!.", // 1134
    L"Levyryhmä %1!d! piilotettiin.", // 1135
    L"Levyryhmän %1!d! piilotus poistettiin.", // 1136
    L"Levyryhmän %1!d! uudelleenrakennus epäonnistui lähdelevyn lukuvirheen vuoksi.", // 1137
    L"Levyryhmän %1!d! luontitehtävä käynnistettiin.", // 1138
    L"Levyryhmän %1!d! uudelleenrakennustehtävä käynnistettiin.", // 1139
    L"Levyryhmän %1!d! muunnostehtävä käynnistettiin.", // 1140
    L"Levyryhmän %1!d! yhdenmukaisuuden tarkistustehtävä käynnistettiin.", // 1141
    L"Levyn takaisinkirjoitusvälimuisti (write-back) otettiin käyttöön (ohjain %1!d!, kanava %2!d!).", // 1142
    L"Levyn takaisinkirjoitusvälimuisti (write-back) poistettiin käytöstä (ohjain %1!d!, kanava %2!d!).", // 1143
    L"Levyn ennakkoluku otettiin käyttöön (ohjain %1!d!, kanava %2!d!).", // 1144
    L"Levyn ennakkoluku poistettiin käytöstä (ohjain %1!d!, kanava %2!d!).", // 1145
    L"IOC-laiteohjelmiston näköistiedoston latausvirhe havaittiin ohjaimessa %1!d! siirtymässä %2!x!.", // 1147
    L"Laitteen LED-tilan muutos jäi tekemättä (ohjain %1!d!, kanava %2!d!).", // 1148
    L"Levyryhmän %1!d! LED-tilan muutos jäi tekemättä.", // 1149
    L"Käyttäjän pyyntö asetti tunnistustilan: ohjain %1!d!, paikka %2!d!.", // 1150
    L"Käyttäjän pyyntö asetti taltion tunnistuksen: ohjain %1!d!, paikka %2!d!.", // 1151
    L"Käyttäjän pyyntö poisti tunnistustilan: ohjain %1!d!, paikka %2!d!.", // 1152
    L"Offline-tilassa olevan levyryhmän %1!d! palautus pakotettiin.", // 1153
    L"Levyryhmälle %3!d! määritettiin kohdennettu varalevy (ohjain %1!d!, kanava %2!d!).", // 1154
    L"Levyryhmältä %3!d! poistettiin kohdennettu varalevy (ohjain %1!d!, kanava %2!d!).", // 1155
    L"Ohjain %1!d! ei tue kotelon hallintaa.", // 1156
    L"Orvoksi jäänyt tunnistustilapyyntö poistettiin: ohjain %1!d!, paikka %2!d!.", // 1157
    L"Käyttäjä poisti levyryhmän %1!d! uudelleenrakennustehtävän.", // 1158
    L"Levy merkittiin puhkaistuksi (puncture) (ohjain %1!d!, kanava %2!d!).", // 1159
    L"Levyn merkitseminen puhkaistuksi (puncture) epäonnistui (ohjain %1!d!, kanava %2!d!).", // 1160
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä keskeytettiin tilapäisesti.", // 1165
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä jatkui.", // 1166
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä epäonnistui.", // 1167
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä valmistui.", // 1168
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä pysäytettiin.", // 1169
    L"Levyryhmän %1!d! suojatun tyhjennyksen tehtävä poistettiin.", // 1170
    L"Uusi tuntematon laite lisättiin (ohjain %1!d!, kanava %2!d!).", // 1171
    L"Levyryhmän %1!d! qsync-tehtävä jatkui.", // 1172
    L"Levyryhmän %1!d! qsync-tehtävä valmistui.", // 1173
    L"Levyryhmän %1!d! qsync-tehtävä epäonnistui.", // 1174
    L"Levyryhmän %1!d! qsync-tehtävä pysäytettiin.", // 1175
    L"Levyryhmän %1!d! qsync-tehtävä poistettiin.", // 1176
    L"Levyryhmän %1!d! qsync-tehtävä keskeytettiin tilapäisesti.", // 1177
    L"Levyryhmän %1!d! qsync-tehtävä käynnistettiin.", // 1178
    L"qsync otettiin käyttöön levyryhmässä %1!d!.", // 1179
    L"qsync poistettiin käytöstä levyryhmässä %1!d!.", // 1180
    L"Aseman metatiedot tyhjennettiin (ohjain %1!d!, kanava %2!d!).", // 1181
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 1 (OK): ohjain %1!d!, paikka %2!d!.", // 1182
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 2 (UUDELLEENRAKENNUS): ohjain %1!d!, paikka %2!d!.", // 1183
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 3 (VIKAANTUNUT): ohjain %1!d!, paikka %2!d!.", // 1184
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 4 (TUNNISTUS): ohjain %1!d!, paikka %2!d!.", // 1185
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 5 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1186
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 6 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1187
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 7 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1188
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 8 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1189
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 9 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1190
    L"Käyttäjän pyyntö asetti laajennetun LED-tilan 10 (MÄÄRITTÄMÄTÖN): ohjain %1!d!, paikka %2!d!.", // 1191
    L"Käyttäjän pyyntö palautti LED-tilan: ohjain %1!d!, paikka %2!d!.", // 1192
};
// clang-format on
