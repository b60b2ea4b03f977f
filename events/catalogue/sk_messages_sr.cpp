// Serbian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesSerbian[SK_MESSAGE_COUNT] = {
    L"Prostor za poruke je inicijalizovan, započeto je evidentiranje poruka.", // 1001
    L"Pronađen je prostor za poruke, evidentiranje poruka se nastavlja od poslednjeg unosa.", // 1002
    L"Neusklađenost verzija je izazvala inicijalizaciju, neke poruke su možda izgubljene.", // 1003
    L"Neusklađenost veličine memorije za poruke je izazvala inicijalizaciju, neke poruke su možda izgubljene.", // 1004
    L"Neusklađenost maksimalne veličine indeksa poruka je izazvala inicijalizaciju, neke poruke su možda izgubljene.", // 1005
    L"Oštećen pokazivač upisa poruka je izazvao inicijalizaciju, neke poruke su možda izgubljene.", // 1006
    L"Izgubljeni su kritični unosi korisničkih informacija.", // 1008
    L"Nije pronađena poruka sa ID-om %1!d! (0x%1!x!) za prevod, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Primljena je komanda za ponovno skeniranje jezgra.", // 1012
    L"Otkaz diska na kontroleru %1!d!, kanal %2!d!.", // 1013
    L"Niz %1!d! je izbrisan.", // 1014
    L"Niz %1!d! je prešao u kritično stanje.", // 1015
    L"Niz %1!d! je prešao u režim van mreže.", // 1016
    L"Zadatak ponovne izgradnje na nizu %1!d! je nastavljen.", // 1017
    L"Zadatak ponovne izgradnje na nizu %1!d! je završen.", // 1018
    L"Zadatak ponovne izgradnje na nizu %1!d! nije uspeo.", // 1019
    L"Zadatak transformacije na nizu %1!d! je nastavljen.", // 1020
    L"Zadatak transformacije na nizu %1!d! je završen.", // 1021
    L"Zadatak transformacije na nizu %1!d! nije uspeo.", // 1022
    L"Zadatak provere konzistentnosti na nizu %1!d! je nastavljen.", // 1023
    L"Zadatak provere konzistentnosti na nizu %1!d! je završen.", // 1024
    L"Zadatak provere konzistentnosti na nizu %1!d! nije uspeo.", // 1025
    L"Zadatak kreiranja niza %1!d! je nastavljen.", // 1026
    L"Zadatak kreiranja niza %1!d! je završen.", // 1027
    L"Zadatak kreiranja niza %1!d! nije uspeo.", // 1028
    L"Disk je inicijalizovan na kontroleru %1!d!, kanal %2!d!.", // 1029
    L"Prioritet zadataka niza %1!d! je promenjen.", // 1030
    L"Niz %1!d! je podeljen, novi niz %2!d!.", // 1031
    L"Smernica keširanja niza %1!d! je promenjena u ČITANJE.", // 1034
    L"Smernica keširanja niza %1!d! je promenjena u UPISIVANJE.", // 1035
    L"Smernica keširanja niza %1!d! je promenjena u BEZ KEŠA.", // 1036
    L"Promena konfiguracije.", // 1037
    L"Povezan je novi disk.", // 1038
    L"Disk je isključen.", // 1039
    L"Isteklo je vreme za IO na kontroleru %1!d!, kanal %2!d!.", // 1040
    L"Greška uređaja na kontroleru %1!d!, kanal %2!d!.", // 1041
    L"Uređaj je povezan na kontroleru %1!d!, kanal %2!d!.", // 1042
    L"Uređaj je isključen na kontroleru %1!d!, kanal %2!d!.", // 1043
    L"Greška medijuma na kontroleru %1!d!, kanal %2!d!.", // 1047
    L"Niz %1!d!: izgubljeni su podaci odloženog upisa.", // 1048
    L"Otkaz uređaja na kontroleru %1!d!, kanal %2!d!, red %3!d!.", // 1049
    L"Drugi BBR pokušaj nije uspeo, kontroler %1!d!, kanal %2!d!.", // 1050
    L"Previše BBR grešaka, I/O ne uspeva, kontroler %1!d!, kanal %2!d!.", // 1051
    L"Broj bloka: niži deo=0x%1!x!, viši deo=0x%2!x!.", // 1052
    L"Zadatak kopiranja na nizu %1!d! je nastavljen.", // 1053
    L"Zadatak kopiranja na nizu %1!d! je završen.", // 1054
    L"Zadatak kopiranja na nizu %1!d! nije uspeo.", // 1055
    L"Nepopravljiva greška medijuma na nizu %1!d!, podaci su možda izgubljeni.", // 1056
    L"Otkriveno je umetanje uređaja na kontroleru %1!d!, kanal %2!d!.", // 1057
    L"GREŠKA MAPIRANJA MEMORIJE na kontroleru %1!d!, kanal %2!d!, KANAL SE ONEMOGUĆAVA.", // 1060
    L"SMART uređaj prijavljuje PREKORAČENJE PRAGA na kontroleru %1!d!, kanal %2!d!.", // 1061
    L"Smernica keširanja niza %1!d! je promenjena u ČITANJE/UPISIVANJE.", // 1067
    L"Sistemom se daljinski upravlja sa adrese %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Daljinsko upravljanje sa adrese %1!d!.%2!d!.%3!d!.%4!d! je završeno.", // 1069
    L"Zadatak transformacije na nizu %1!d! je pauziran.", // 1097
    L"Zadatak provere konzistentnosti na nizu %1!d! je pauziran.", // 1098
    L"Zadatak ponovne izgradnje na nizu %1!d! je pauziran.", // 1099
    L"Zadatak kreiranja niza %1!d! je pauziran.", // 1100
    L"Zadatak kopiranja na nizu %1!d! je pauziran.", // 1101
    L"Zadatak transformacije na nizu %1!d! je uklonjen.", // 1102
    L"Zadatak provere konzistentnosti na nizu %1!d! je uklonjen.", // 1103
    L"Zadatak ponovne izgradnje na nizu %1!d! je uklonjen.", // 1104
    L"Zadatak kreiranja niza %1!d! je uklonjen.", // 1105
    L"Zadatak kopiranja na nizu %1!d! je uklonjen, raskidanje veze je uspelo.", // 1106
    L"Zadatak transformacije na nizu %1!d! je zaustavljen.", // 1107
    L"Zadatak provere konzistentnosti na nizu %1!d! je zaustavljen.", // 1108
    L"Zadatak ponovne izgradnje na nizu %1!d! je zaustavljen.", // 1109
    L"Zadatak kreiranja niza %1!d! je zaustavljen.", // 1110
    L"Zadatak kopiranja na nizu %1!d! je zaustavljen.", // 1111
    L"Niz %1!d! je podeljen.", // 1112
    L"Na nizu %2!d! je započet prolaz %1!d! skeniranja niza.", // 1114
    L"Na nizu %2!d! je završen prolaz %1!d! skeniranja niza.", // 1115
    L"Skeniranje niza %1!d! je omogućeno.", // 1116
    L"Skeniranje niza %1!d! je onemogućeno.", // 1117
    L"Preuzimanje fleš slike na kontroler %1!x!, završeno %2!d! procenata.", // 1128
    L"Preuzimanje fleš slike na IOC kontrolera %1!x! je završeno.", // 1129
    L"Greška medijuma na nizu %1!x! je popravljena.", // 1130
    L"Disk je dodeljen kao globalni rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1132
    L"Disk je uklonjen sa liste globalnih rezervnih diskova na kontroleru %1!d!, kanal %2!d!.", // 1133
    L"Nedoslednost na nizu %1!x! je popravljena.", // 1134
    L"Niz %1!d! je sakriven.", // 1135
    L"Niz %1!d! više nije sakriven.", // 1136
    L"Ponovna izgradnja niza %1!d! nije uspela zbog greške čitanja na izvornom disku.", // 1137
    L"Zadatak kreiranja niza %1!d! je pokrenut.", // 1138
    L"Zadatak ponovne izgradnje na nizu %1!d! je pokrenut.", // 1139
    L"Zadatak transformacije na nizu %1!d! je pokrenut.", // 1140
    L"Zadatak provere konzistentnosti na nizu %1!d! je pokrenut.", // 1141
    L"Keš diska sa povratnim upisivanjem (write-back) je omogućen na kontroleru %1!d!, kanal %2!d!.", // 1142
    L"Keš diska sa povratnim upisivanjem (write-back) je onemogućen na kontroleru %1!d!, kanal %2!d!.", // 1143
    L"Čitanje unapred na disku je omogućeno na kontroleru %1!d!, kanal %2!d!.", // 1144
    L"Čitanje unapred na disku je onemogućeno na kontroleru %1!d!, kanal %2!d!.", // 1145
    L"Na kontroleru %1!d! otkrivena je greška pri preuzimanju slike firmvera IOC na pomaku %2!x!.", // 1147
    L"Propuštena je promena stanja LED indikatora uređaja na kontroleru %1!d!, kanal %2!d!.", // 1148
    L"Propuštena je promena stanja LED indikatora niza %1!d!.", // 1149
    L"Korisnički zahtev je postavio stanje identifikacije: kontroler %1!d!, slot %2!d!.", // 1150
    L"Korisnički zahtev je postavio identifikaciju volumena: kontroler %1!d!, slot %2!d!.", // 1151
    L"Korisnički zahtev je obrisao stanje identifikacije: kontroler %1!d!, slot %2!d!.", // 1152
    L"Prinudni oporavak niza %1!d! koji je van mreže.", // 1153
    L"Nizu %3!d! je dodeljen namenski rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1154
    L"Sa niza %3!d! je uklonjen namenski rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1155
    L"Upravljanje kućištem nije podržano za kontroler %1!d!.", // 1156
    L"Obrisan je napušteni zahtev za stanje identifikacije: kontroler %1!d!, slot %2!d!.", // 1157
    L"Korisnik je uklonio zadatak ponovne izgradnje na nizu %1!d!.", // 1158
    L"Disk je označen kao probušen (puncture) na kontroleru %1!d!, kanal %2!d!.", // 1159
    L"Označavanje diska kao probušenog (puncture) nije uspelo na kontroleru %1!d!, kanal %2!d!.", // 1160
    L"Zadatak bezbednog brisanja na nizu %1!d! je pauziran.", // 1165
    L"Zadatak bezbednog brisanja na nizu %1!d! je nastavljen.", // 1166
    L"Zadatak bezbednog brisanja na nizu %1!d! nije uspeo.", // 1167
    L"Zadatak bezbednog brisanja na nizu %1!d! je završen.", // 1168
    L"Zadatak bezbednog brisanja na nizu %1!d! je zaustavljen.", // 1169
    L"Zadatak bezbednog brisanja na nizu %1!d! je uklonjen.", // 1170
    L"Umetnut je novi nepoznati uređaj na kontroleru %1!d!, kanal %2!d!.", // 1171
    L"Zadatak qsync na nizu %1!d! je nastavljen.", // 1172
    L"Zadatak qsync na nizu %1!d! je završen.", // 1173
    L"Zadatak qsync na nizu %1!d! nije uspeo.", // 1174
    L"Zadatak qsync na nizu %1!d! je zaustavljen.", // 1175
    L"Zadatak qsync na nizu %1!d! je uklonjen.", // 1176
    L"Zadatak qsync na nizu %1!d! je pauziran.", // 1177
    L"Zadatak qsync na nizu %1!d! je pokrenut.", // 1178
    L"Na nizu %1!d! je omogućen qsync.", // 1179
    L"Na nizu %1!d! je onemogućen qsync.", // 1180
    L"Metapodaci diska su obrisani na kontroleru %1!d!, kanal %2!d!.", // 1181
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 1 (OK): kontroler %1!d!, slot %2!d!.", // 1182
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 2 (PONOVNA IZGRADNJA): kontroler %1!d!, slot %2!d!.", // 1183
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 3 (OTKAZ): kontroler %1!d!, slot %2!d!.", // 1184
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 4 (IDENTIFIKACIJA): kontroler %1!d!, slot %2!d!.", // 1185
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 5 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1186
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 6 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1187
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 7 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1188
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 8 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1189
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 9 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1190
    L"Korisnički zahtev je postavio prošireno stanje LED indikatora 10 (NEDEFINISANO): kontroler %1!d!, slot %2!d!.", // 1191
    L"Korisnički zahtev je vratio stanje LED indikatora: kontroler %1!d!, slot %2!d!.", // 1192
};
// clang-format on
