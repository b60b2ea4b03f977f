// Swedish texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesSwedish[SK_MESSAGE_COUNT] = {
    L"Meddelandeutrymmet har initierats, meddelandeloggningen startar.", // 1001
    L"Meddelandeutrymmet hittades, meddelandeloggningen fortsätter från den senaste posten.", // 1002
    L"En versionskonflikt orsakade initiering, vissa meddelanden kan ha gått förlorade.", // 1003
    L"En avvikande storlek på meddelandeminnet orsakade initiering, vissa meddelanden kan ha gått förlorade.", // 1004
    L"En avvikande maximal indexstorlek för meddelanden orsakade initiering, vissa meddelanden kan ha gått förlorade.", // 1005
    L"En skadad skrivpekare för meddelanden orsakade initiering, vissa meddelanden kan ha gått förlorade.", // 1006
    L"Kritiska poster med användarinformation har gått förlorade.", // 1008
    L"Meddelande-ID %1!d! (0x%1!x!) hittades inte för översättning, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Kommando för ny genomsökning i kärnan har tagits emot.", // 1012
    L"Enhet har fallerat på styrenhet %1!d! kanal %2!d!.", // 1013
    L"Array %1!d! har tagits bort.", // 1014
    L"Array %1!d! har blivit kritisk.", // 1015
    L"Array %1!d! har gått offline.", // 1016
    L"En återuppbyggnadsuppgift har återupptagits på array %1!d!.", // 1017
    L"En återuppbyggnadsuppgift har slutförts på array %1!d!.", // 1018
    L"En återuppbyggnadsuppgift har misslyckats på array %1!d!.", // 1019
    L"En transformeringsuppgift har återupptagits på array %1!d!.", // 1020
    L"En transformeringsuppgift har slutförts på array %1!d!.", // 1021
    L"En transformeringsuppgift har misslyckats på array %1!d!.", // 1022
    L"En konsekvenskontroll har återupptagits på array %1!d!.", // 1023
    L"En konsekvenskontroll har slutförts på array %1!d!.", // 1024
    L"En konsekvenskontroll har misslyckats på array %1!d!.", // 1025
    L"En skapandeuppgift har återupptagits för array %1!d!.", // 1026
    L"En skapandeuppgift har slutförts för array %1!d!.", // 1027
    L"En skapandeuppgift har misslyckats för array %1!d!.", // 1028
    L"Enhet initierad på styrenhet %1!d! kanal %2!d!.", // 1029
    L"Uppgiftsprioriteten för array %1!d! har ändrats.", // 1030
    L"Array %1!d! delad, ny array %2!d!.", // 1031
    L"Cacheprincipen för array %1!d! har ändrats till LÄSNING.", // 1034
    L"Cacheprincipen för array %1!d! har ändrats till SKRIVNING.", // 1035
    L"Cacheprincipen för array %1!d! har ändrats till INGEN CACHE.", // 1036
    L"Konfigurationsändring.", // 1037
    L"Ny enhet ansluten.", // 1038
    L"Enhet frånkopplad.", // 1039
    L"IO-tidsgräns överskreds på styrenhet %1!d! kanal %2!d!.", // 1040
    L"Enhetsfel på styrenhet %1!d! kanal %2!d!.", // 1041
    L"Enhet ansluten på styrenhet %1!d! kanal %2!d!.", // 1042
    L"Enhet frånkopplad på styrenhet %1!d! kanal %2!d!.", // 1043
    L"Mediefel på styrenhet %1!d! kanal %2!d!.", // 1047
    L"Array %1!d!: data från fördröjd skrivning har gått förlorade.", // 1048
    L"Enheten har fallerat på styrenhet %1!d! kanal %2!d! rad %3!d!.", // 1049
    L"Andra BBR-försöket misslyckades, styrenhet %1!d! kanal %2!d!.", // 1050
    L"För många BBR-fel, I/O misslyckas, styrenhet %1!d! kanal %2!d!.", // 1051
    L"Blocknummer låg=0x%1!x!, hög=0x%2!x!.", // 1052
    L"En kopieringsuppgift har återupptagits för array %1!d!.", // 1053
    L"En kopieringsuppgift har slutförts för array %1!d!.", // 1054
    L"En kopieringsuppgift har misslyckats för array %1!d!.", // 1055
    L"Oåterkalleligt mediefel på array %1!d!, data kan ha gått förlorade.", // 1056
    L"Isättning av enhet identifierad på styrenhet %1!d! kanal %2!d!.", // 1057
    L"MINNESMAPPNINGSFEL på styrenhet %1!d! kanal %2!d!, KANALEN INAKTIVERAS.", // 1060
    L"SMART-enhet rapporterar TRÖSKELVÄRDE ÖVERSKRIDET på styrenhet %1!d! kanal %2!d!.", // 1061
    L"Cacheprincipen för array %1!d! har ändrats till LÄSNING/SKRIVNING.", // 1067
    L"Systemet fjärrhanteras av %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Fjärrhanteringen från %1!d!.%2!d!.%3!d!.%4!d! har avslutats.", // 1069
    L"En transformeringsuppgift har pausats på array %1!d!.", // 1097
    L"En konsekvenskontroll har pausats på array %1!d!.", // 1098
    L"En återuppbyggnadsuppgift har pausats på array %1!d!.", // 1099
    L"En skapandeuppgift har pausats på array %1!d!.", // 1100
    L"En kopieringsuppgift har pausats på array %1!d!.", // 1101
    L"En transformeringsuppgift har tagits bort på array %1!d!.", // 1102
    L"En konsekvenskontroll har tagits bort på array %1!d!.", // 1103
    L"En återuppbyggnadsuppgift har tagits bort på array %1!d!.", // 1104
    L"En skapandeuppgift har tagits bort på array %1!d!.", // 1105
    L"En kopieringsuppgift har tagits bort, frånkopplingen lyckades på array %1!d!.", // 1106
    L"En transformeringsuppgift har stängts av på array %1!d!.", // 1107
    L"En konsekvenskontroll har stängts av på array %1!d!.", // 1108
    L"En återuppbyggnadsuppgift har stängts av på array %1!d!.", // 1109
    L"En skapandeuppgift har stängts av på array %1!d!.", // 1110
    L"En kopieringsuppgift har stängts av på array %1!d!.", // 1111
    L"Array %1!d! delad.", // 1112
    L"Arraygenomsökning, pass %1!d!, har startat på array %2!d!.", // 1114
    L"Arraygenomsökning, pass %1!d!, har slutförts på array %2!d!.", // 1115
    L"Arraygenomsökning aktiverad på array %1!d!.", // 1116
    L"Arraygenomsökning inaktiverad på array %1!d!.", // 1117
    L"Flashavbildningen hämtas till styrenhet %1!x!, procent slutfört: %2!d!.", // 1128
    L"Hämtningen av flashavbildningen till IOC har slutförts för styrenhet %1!x!.", // 1129
    L"Mediefel reparerat på array %1!x!.", // 1130
    L"Enhet tilldelad som global reservdisk på styrenhet %1!d! kanal %2!d!.", // 1132
    L"Enhet borttagen från listan över globala reservdiskar på styrenhet %1!d! kanal %2!d!.", // 1133
    L"Inkonsekvens reparerad på array %1!x!.", // 1134
    L"Array %1!d! dold.", // 1135
    L"Array %1!d! visas igen.", // 1136
    L"Återuppbyggnaden misslyckades på array %1!d! på grund av ett läsfel på källdisken.", // 1137
    L"En skapandeuppgift har startats för array %1!d!.", // 1138
    L"En återuppbyggnadsuppgift har startats för array %1!d!.", // 1139
    L"En transformeringsuppgift har startats för array %1!d!.", // 1140
    L"En konsekvenskontroll har startats för array %1!d!.", // 1141
    L"Diskens write-back-cache aktiverad på styrenhet %1!d! kanal %2!d!.", // 1142
    L"Diskens write-back-cache inaktiverad på styrenhet %1!d! kanal %2!d!.", // 1143
    L"Diskens förhandsläsning aktiverad på styrenhet %1!d! kanal %2!d!.", // 1144
    L"Diskens förhandsläsning inaktiverad på styrenhet %1!d! kanal %2!d!.", // 1145
    L"Fel vid hämtning av IOC-firmwareavbildning identifierat på styrenhet %1!d! vid förskjutning %2!x!.", // 1147
    L"Missad ändring av LED-tillstånd för enhet på styrenhet %1!d! kanal %2!d!.", // 1148
    L"Missad ändring av LED-tillstånd för array %1!d!.", // 1149
    L"En användarbegäran har angett identifieringsstatus för styrenhet %1!d!, fack %2!d!.", // 1150
    L"En användarbegäran har angett identifiering för en volym på styrenhet %1!d!, fack %2!d!.", // 1151
    L"En användarbegäran har rensat identifieringsstatus för styrenhet %1!d!, fack %2!d!.", // 1152
    L"Tvingad återställning av offline-array %1!d!.", // 1153
    L"Array %3!d! har tilldelats en dedikerad reservdisk på styrenhet %1!d! kanal %2!d!.", // 1154
    L"Den dedikerade reservdisken på styrenhet %1!d! kanal %2!d! har tagits bort från array %3!d!.", // 1155
    L"Kabinetthantering stöds inte för styrenhet %1!d!.", // 1156
    L"Överbliven begäran om identifieringsstatus rensad för styrenhet %1!d!, fack %2!d!.", // 1157
    L"En återuppbyggnadsuppgift har tagits bort av användaren på array %1!d!.", // 1158
    L"Disken har punkterats på styrenhet %1!d! kanal %2!d!.", // 1159
    L"Det gick inte att punktera disken på styrenhet %1!d! kanal %2!d!.", // 1160
    L"En uppgift för säker radering har pausats på array %1!d!.", // 1165
    L"En uppgift för säker radering har återupptagits på array %1!d!.", // 1166
    L"En uppgift för säker radering har misslyckats för array %1!d!.", // 1167
    L"En uppgift för säker radering har slutförts för array %1!d!.", // 1168
    L"En uppgift för säker radering har stängts av på array %1!d!.", // 1169
    L"En uppgift för säker radering har tagits bort på array %1!d!.", // 1170
    L"En ny okänd enhet har satts in på styrenhet %1!d! kanal %2!d!.", // 1171
    L"En qsync-uppgift har återupptagits på array %1!d!.", // 1172
    L"En qsync-uppgift har slutförts på array %1!d!.", // 1173
    L"En qsync-uppgift har misslyckats på array %1!d!.", // 1174
    L"En qsync-uppgift har stängts av på array %1!d!.", // 1175
    L"En qsync-uppgift har tagits bort på array %1!d!.", // 1176
    L"En qsync-uppgift har pausats på array %1!d!.", // 1177
    L"En qsync-uppgift har startats för array %1!d!.", // 1178
    L"qsync aktiverat på array %1!d!.", // 1179
    L"qsync inaktiverat på array %1!d!.", // 1180
    L"Enhetens metadata har rensats på styrenhet %1!d! kanal %2!d!.", // 1181
    L"En användarbegäran har angett utökat LED-tillstånd 1 (OKAY) för styrenhet %1!d!, fack %2!d!.", // 1182
    L"En användarbegäran har angett utökat LED-tillstånd 2 (REBUILDING) för styrenhet %1!d!, fack %2!d!.", // 1183
    L"En användarbegäran har angett utökat LED-tillstånd 3 (FAILED) för styrenhet %1!d!, fack %2!d!.", // 1184
    L"En användarbegäran har angett utökat LED-tillstånd 4 (IDENTIFY) för styrenhet %1!d!, fack %2!d!.", // 1185
    L"En användarbegäran har angett utökat LED-tillstånd 5 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1186
    L"En användarbegäran har angett utökat LED-tillstånd 6 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1187
    L"En användarbegäran har angett utökat LED-tillstånd 7 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1188
    L"En användarbegäran har angett utökat LED-tillstånd 8 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1189
    L"En användarbegäran har angett utökat LED-tillstånd 9 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1190
    L"En användarbegäran har angett utökat LED-tillstånd 10 (UNDEFINED) för styrenhet %1!d!, fack %2!d!.", // 1191
    L"En användarbegäran har återställt LED-tillståndet för styrenhet %1!d!, fack %2!d!.", // 1192
};
// clang-format on
