// Croatian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesCroatian[SK_MESSAGE_COUNT] = {
    L"Prostor za poruke inicijaliziran, pokreće se bilježenje poruka.", // 1001
    L"Pronađen je prostor za poruke, bilježenje poruka nastavlja se od posljednjeg unosa.", // 1002
    L"Nepodudaranje verzije uzrokovalo je inicijalizaciju, neke su poruke možda izgubljene.", // 1003
    L"Nepodudaranje veličine memorije poruka uzrokovalo je inicijalizaciju, neke su poruke možda izgubljene.", // 1004
    L"Nepodudaranje najveće veličine indeksa poruka uzrokovalo je inicijalizaciju, neke su poruke možda izgubljene.", // 1005
    L"Oštećeni pokazivač pisanja poruka uzrokovao je inicijalizaciju, neke su poruke možda izgubljene.", // 1006
    L"Izgubljeni su kritični unosi korisničkih informacija.", // 1008
    L"ID poruke %1!d! (0x%1!x!) nije pronađen za prijevod, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Primljena je naredba za ponovno skeniranje jezgre.", // 1012
    L"Kvar pogona na kontroleru %1!d!, kanal %2!d!.", // 1013
    L"Polje %1!d! je izbrisano.", // 1014
    L"Polje %1!d! prešlo je u kritično stanje.", // 1015
    L"Polje %1!d! prešlo je u izvanmrežno stanje.", // 1016
    L"Zadatak ponovne izgradnje nastavljen je na polju %1!d!.", // 1017
    L"Zadatak ponovne izgradnje dovršen je na polju %1!d!.", // 1018
    L"Zadatak ponovne izgradnje nije uspio na polju %1!d!.", // 1019
    L"Zadatak transformacije nastavljen je na polju %1!d!.", // 1020
    L"Zadatak transformacije dovršen je na polju %1!d!.", // 1021
    L"Zadatak transformacije nije uspio na polju %1!d!.", // 1022
    L"Zadatak provjere dosljednosti nastavljen je na polju %1!d!.", // 1023
    L"Zadatak provjere dosljednosti dovršen je na polju %1!d!.", // 1024
    L"Zadatak provjere dosljednosti nije uspio na polju %1!d!.", // 1025
    L"Zadatak stvaranja nastavljen je za polje %1!d!.", // 1026
    L"Zadatak stvaranja dovršen je za polje %1!d!.", // 1027
    L"Zadatak stvaranja nije uspio za polje %1!d!.", // 1028
    L"Pogon je inicijaliziran na kontroleru %1!d!, kanal %2!d!.", // 1029
    L"Prioritet zadataka polja %1!d! je promijenjen.", // 1030
    L"Polje %1!d! je podijeljeno, novo polje %2!d!.", // 1031
    L"Pravilo predmemorije polja %1!d! promijenjeno je u ČITANJE.", // 1034
    L"Pravilo predmemorije polja %1!d! promijenjeno je u PISANJE.", // 1035
    L"Pravilo predmemorije polja %1!d! promijenjeno je u BEZ PREDMEMORIJE.", // 1036
    L"Promjena konfiguracije.", // 1037
    L"Priključen je novi pogon.", // 1038
    L"Pogon je odspojen.", // 1039
    L"Isteklo je vrijeme čekanja za IO na kontroleru %1!d!, kanal %2!d!.", // 1040
    L"Pogreška uređaja na kontroleru %1!d!, kanal %2!d!.", // 1041
    L"Uređaj je priključen na kontroleru %1!d!, kanal %2!d!.", // 1042
    L"Uređaj je odspojen na kontroleru %1!d!, kanal %2!d!.", // 1043
    L"Pogreška medija na kontroleru %1!d!, kanal %2!d!.", // 1047
    L"Polje %1!d!: izgubljeni su podaci odgođenog pisanja.", // 1048
    L"Kvar uređaja na kontroleru %1!d!, kanal %2!d!, redak %3!d!.", // 1049
    L"Drugi pokušaj BBR-a nije uspio, kontroler %1!d!, kanal %2!d!.", // 1050
    L"Previše neuspjeha BBR-a, I/O ne uspijeva, kontroler %1!d!, kanal %2!d!.", // 1051
    L"Broj bloka niži=0x%1!x!, viši=0x%2!x!.", // 1052
    L"Zadatak kopiranja nastavljen je za polje %1!d!.", // 1053
    L"Zadatak kopiranja dovršen je za polje %1!d!.", // 1054
    L"Zadatak kopiranja nije uspio za polje %1!d!.", // 1055
    L"Nepopravljiva pogreška medija na polju %1!d!, podaci su možda izgubljeni.", // 1056
    L"Otkriveno je umetanje uređaja na kontroleru %1!d!, kanal %2!d!.", // 1057
    L"POGREŠKA MAPIRANJA MEMORIJE na kontroleru %1!d!, kanal %2!d!, KANAL SE ONEMOGUĆUJE.", // 1060
    L"SMART uređaj javlja PREKORAČEN PRAG na kontroleru %1!d!, kanal %2!d!.", // 1061
    L"Pravilo predmemorije polja %1!d! promijenjeno je u ČITANJE/PISANJE.", // 1067
    L"Sustavom se daljinski upravlja s adrese %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Daljinsko upravljanje s adrese %1!d!.%2!d!.%3!d!.%4!d! je završeno.", // 1069
    L"Zadatak transformacije pauziran je na polju %1!d!.", // 1097
    L"Zadatak provjere dosljednosti pauziran je na polju %1!d!.", // 1098
    L"Zadatak ponovne izgradnje pauziran je na polju %1!d!.", // 1099
    L"Zadatak stvaranja pauziran je na polju %1!d!.", // 1100
    L"Zadatak kopiranja pauziran je na polju %1!d!.", // 1101
    L"Zadatak transformacije uklonjen je na polju %1!d!.", // 1102
    L"Zadatak provjere dosljednosti uklonjen je na polju %1!d!.", // 1103
    L"Zadatak ponovne izgradnje uklonjen je na polju %1!d!.", // 1104
    L"Zadatak stvaranja uklonjen je na polju %1!d!.", // 1105
    L"Zadatak kopiranja uklonjen je, veza je uspješno raskinuta na polju %1!d!.", // 1106
    L"Zadatak transformacije zaustavljen je na polju %1!d!.", // 1107
    L"Zadatak provjere dosljednosti zaustavljen je na polju %1!d!.", // 1108
    L"Zadatak ponovne izgradnje zaustavljen je na polju %1!d!.", // 1109
    L"Zadatak stvaranja zaustavljen je na polju %1!d!.", // 1110
    L"Zadatak kopiranja zaustavljen je na polju %1!d!.", // 1111
    L"Polje %1!d! je podijeljeno.", // 1112
    L"Prolaz %1!d! skeniranja polja pokrenut je na polju %2!d!.", // 1114
    L"Prolaz %1!d! skeniranja polja dovršen je na polju %2!d!.", // 1115
    L"Skeniranje polja omogućeno je na polju %1!d!.", // 1116
    L"Skeniranje polja onemogućeno je na polju %1!d!.", // 1117
    L"Preuzimanje flash slike na kontroler %1!x!, dovršeno postotaka: %2!d!.", // 1128
    L"Preuzimanje flash slike na IOC dovršeno je za kontroler %1!x!.", // 1129
    L"Popravljena je pogreška medija na polju %1!x!.", // 1130
    L"Pogon je dodijeljen kao globalni rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1132
    L"Pogon je uklonjen s popisa globalnih rezervnih diskova na kontroleru %1!d!, kanal %2!d!.", // 1133
    L"Popravljena je nedosljednost na polju %1!x!.", // 1134
    L"Polje %1!d! je skriveno.", // 1135
    L"Polje %1!d! ponovno je vidljivo.", // 1136
    L"Ponovna izgradnja polja %1!d! nije uspjela zbog pogreške čitanja na izvornom disku.", // 1137
    L"Zadatak stvaranja pokrenut je za polje %1!d!.", // 1138
    L"Zadatak ponovne izgradnje pokrenut je za polje %1!d!.", // 1139
    L"Zadatak transformacije pokrenut je za polje %1!d!.", // 1140
    L"Zadatak provjere dosljednosti pokrenut je za polje %1!d!.", // 1141
    L"Predmemorija diska s odgođenim pisanjem (write-back) omogućena je na kontroleru %1!d!, kanal %2!d!.", // 1142
    L"Predmemorija diska s odgođenim pisanjem (write-back) onemogućena je na kontroleru %1!d!, kanal %2!d!.", // 1143
    L"Čitanje unaprijed na disku omogućeno je na kontroleru %1!d!, kanal %2!d!.", // 1144
    L"Čitanje unaprijed na disku onemogućeno je na kontroleru %1!d!, kanal %2!d!.", // 1145
    L"Otkrivena je pogreška preuzimanja slike firmvera IOC-a na kontroleru %1!d! na pomaku %2!x!.", // 1147
    L"Propuštena promjena stanja LED-a za uređaj na kontroleru %1!d!, kanal %2!d!.", // 1148
    L"Propuštena promjena stanja LED-a za polje %1!d!.", // 1149
    L"Korisnički zahtjev postavio je stanje identifikacije za kontroler %1!d!, utor %2!d!.", // 1150
    L"Korisnički zahtjev postavio je identifikaciju za volumen na kontroleru %1!d!, utor %2!d!.", // 1151
    L"Korisnički zahtjev poništio je stanje identifikacije za kontroler %1!d!, utor %2!d!.", // 1152
    L"Prisilni oporavak izvanmrežnog polja %1!d!.", // 1153
    L"Polju %3!d! dodijeljen je namjenski rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1154
    L"S polja %3!d! uklonjen je namjenski rezervni disk na kontroleru %1!d!, kanal %2!d!.", // 1155
    L"Upravljanje kućištem nije podržano za kontroler %1!d!.", // 1156
    L"Poništen je napušteni zahtjev za stanje identifikacije za kontroler %1!d!, utor %2!d!.", // 1157
    L"Korisnik je uklonio zadatak ponovne izgradnje na polju %1!d!.", // 1158
    L"Disk je probušen na kontroleru %1!d!, kanal %2!d!.", // 1159
    L"Probušivanje diska nije uspjelo na kontroleru %1!d!, kanal %2!d!.", // 1160
    L"Zadatak sigurnog brisanja pauziran je na polju %1!d!.", // 1165
    L"Zadatak sigurnog brisanja nastavljen je na polju %1!d!.", // 1166
    L"Zadatak sigurnog brisanja nije uspio za polje %1!d!.", // 1167
    L"Zadatak sigurnog brisanja dovršen je za polje %1!d!.", // 1168
    L"Zadatak sigurnog brisanja zaustavljen je na polju %1!d!.", // 1169
    L"Zadatak sigurnog brisanja uklonjen je na polju %1!d!.", // 1170
    L"Novi nepoznati uređaj umetnut je na kontroleru %1!d!, kanal %2!d!.", // 1171
    L"Zadatak qsync nastavljen je na polju %1!d!.", // 1172
    L"Zadatak qsync dovršen je na polju %1!d!.", // 1173
    L"Zadatak qsync nije uspio na polju %1!d!.", // 1174
    L"Zadatak qsync zaustavljen je na polju %1!d!.", // 1175
    L"Zadatak qsync uklonjen je na polju %1!d!.", // 1176
    L"Zadatak qsync pauziran je na polju %1!d!.", // 1177
    L"Zadatak qsync pokrenut je za polje %1!d!.", // 1178
    L"qsync je omogućen na polju %1!d!.", // 1179
    L"qsync je onemogućen na polju %1!d!.", // 1180
    L"Metapodaci pogona izbrisani su na kontroleru %1!d!, kanal %2!d!.", // 1181
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 1 (OKAY) za kontroler %1!d!, utor %2!d!.", // 1182
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 2 (REBUILDING) za kontroler %1!d!, utor %2!d!.", // 1183
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 3 (FAILED) za kontroler %1!d!, utor %2!d!.", // 1184
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 4 (IDENTIFY) za kontroler %1!d!, utor %2!d!.", // 1185
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 5 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1186
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 6 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1187
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 7 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1188
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 8 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1189
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 9 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1190
    L"Korisnički zahtjev postavio je prošireno stanje LED-a 10 (UNDEFINED) za kontroler %1!d!, utor %2!d!.", // 1191
    L"Korisnički zahtjev vratio je stanje LED-a za kontroler %1!d!, utor %2!d!.", // 1192
};
// clang-format on
