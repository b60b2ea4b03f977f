// Czech texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesCzech[SK_MESSAGE_COUNT] = {
    L"Prostor pro zprávy byl inicializován, spouští se protokolování zpráv.", // 1001
    L"Byl nalezen prostor pro zprávy, protokolování zpráv pokračuje od poslední položky.", // 1002
    L"Neshoda verzí způsobila inicializaci, některé zprávy mohly být ztraceny.", // 1003
    L"Neshoda velikosti paměti zpráv způsobila inicializaci, některé zprávy mohly být ztraceny.", // 1004
    L"Neshoda maximální velikosti indexu zpráv způsobila inicializaci, některé zprávy mohly být ztraceny.", // 1005
    L"Poškozený ukazatel zápisu zpráv způsobil inicializaci, některé zprávy mohly být ztraceny.", // 1006
    L"Byly ztraceny kritické položky informací o uživateli.", // 1008
    L"ID zprávy %1!d! (0x%1!x!) nebylo pro překlad nalezeno, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Byl přijat příkaz jádra k novému prohledání.", // 1012
    L"Selhání jednotky na řadiči %1!d!, kanál %2!d!.", // 1013
    L"Pole %1!d! bylo odstraněno.", // 1014
    L"Pole %1!d! přešlo do kritického stavu.", // 1015
    L"Pole %1!d! přešlo do stavu offline.", // 1016
    L"Úloha opětovného sestavení na poli %1!d! pokračuje.", // 1017
    L"Úloha opětovného sestavení na poli %1!d! byla dokončena.", // 1018
    L"Úloha opětovného sestavení na poli %1!d! selhala.", // 1019
    L"Úloha transformace na poli %1!d! pokračuje.", // 1020
    L"Úloha transformace na poli %1!d! byla dokončena.", // 1021
    L"Úloha transformace na poli %1!d! selhala.", // 1022
    L"Úloha kontroly konzistence na poli %1!d! pokračuje.", // 1023
    L"Úloha kontroly konzistence na poli %1!d! byla dokončena.", // 1024
    L"Úloha kontroly konzistence na poli %1!d! selhala.", // 1025
    L"Úloha vytvoření pole %1!d! pokračuje.", // 1026
    L"Úloha vytvoření pole %1!d! byla dokončena.", // 1027
    L"Úloha vytvoření pole %1!d! selhala.", // 1028
    L"Jednotka byla inicializována na řadiči %1!d!, kanál %2!d!.", // 1029
    L"Priorita úloh pole %1!d! byla změněna.", // 1030
    L"Pole %1!d! bylo rozděleno, nové pole %2!d!.", // 1031
    L"Zásady mezipaměti pole %1!d! byly změněny na ČTENÍ.", // 1034
    L"Zásady mezipaměti pole %1!d! byly změněny na ZÁPIS.", // 1035
    L"Zásady mezipaměti pole %1!d! byly změněny na BEZ MEZIPAMĚTI.", // 1036
    L"Změna konfigurace.", // 1037
    L"Byla připojena nová jednotka.", // 1038
    L"Jednotka byla odpojena.", // 1039
    L"Vypršel časový limit IO na řadiči %1!d!, kanál %2!d!.", // 1040
    L"Chyba zařízení na řadiči %1!d!, kanál %2!d!.", // 1041
    L"Zařízení bylo připojeno na řadiči %1!d!, kanál %2!d!.", // 1042
    L"Zařízení bylo odpojeno na řadiči %1!d!, kanál %2!d!.", // 1043
    L"Chyba média na řadiči %1!d!, kanál %2!d!.", // 1047
    L"Pole %1!d!: data odloženého zápisu byla ztracena.", // 1048
    L"Selhání zařízení na řadiči %1!d!, kanál %2!d!, řádek %3!d!.", // 1049
    L"Druhý pokus BBR se nezdařil, řadič %1!d!, kanál %2!d!.", // 1050
    L"Příliš mnoho selhání BBR, I/O selhává, řadič %1!d!, kanál %2!d!.", // 1051
    L"Číslo bloku dolní=0x%1!x!, horní=0x%2!x!.", // 1052
    L"Úloha kopírování pro pole %1!d! pokračuje.", // 1053
    L"Úloha kopírování pro pole %1!d! byla dokončena.", // 1054
    L"Úloha kopírování pro pole %1!d! selhala.", // 1055
    L"Neopravitelná chyba média na poli %1!d!, data mohla být ztracena.", // 1056
    L"Bylo zjištěno vložení zařízení na řadiči %1!d!, kanál %2!d!.", // 1057
    L"SELHÁNÍ MAPOVÁNÍ PAMĚTI na řadiči %1!d!, kanál %2!d!, KANÁL SE ZAKAZUJE.", // 1060
    L"Zařízení SMART hlásí PŘEKROČENÍ PRAHOVÉ HODNOTY na řadiči %1!d!, kanál %2!d!.", // 1061
    L"Zásady mezipaměti pole %1!d! byly změněny na ČTENÍ/ZÁPIS.", // 1067
    L"Systém je vzdáleně spravován z adresy %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Vzdálená správa z adresy %1!d!.%2!d!.%3!d!.%4!d! byla ukončena.", // 1069
    L"Úloha transformace na poli %1!d! byla pozastavena.", // 1097
    L"Úloha kontroly konzistence na poli %1!d! byla pozastavena.", // 1098
    L"Úloha opětovného sestavení na poli %1!d! byla pozastavena.", // 1099
    L"Úloha vytvoření na poli %1!d! byla pozastavena.", // 1100
    L"Úloha kopírování na poli %1!d! byla pozastavena.", // 1101
    L"Úloha transformace na poli %1!d! byla odebrána.", // 1102
    L"Úloha kontroly konzistence na poli %1!d! byla odebrána.", // 1103
    L"Úloha opětovného sestavení na poli %1!d! byla odebrána.", // 1104
    L"Úloha vytvoření na poli %1!d! byla odebrána.", // 1105
    L"Úloha kopírování na poli %1!d! byla odebrána, odpojení proběhlo úspěšně.", // 1106
    L"Úloha transformace na poli %1!d! byla ukončena.", // 1107
    L"Úloha kontroly konzistence na poli %1!d! byla ukončena.", // 1108
    L"Úloha opětovného sestavení na poli %1!d! byla ukončena.", // 1109
    L"Úloha vytvoření na poli %1!d! byla ukončena.", // 1110
    L"Úloha kopírování na poli %1!d! byla ukončena.", // 1111
    L"Pole %1!d! bylo rozděleno.", // 1112
    L"Průchod %1!d! skenování pole byl zahájen na poli %2!d!.", // 1114
    L"Průchod %1!d! skenování pole byl dokončen na poli %2!d!.", // 1115
    L"Skenování pole bylo povoleno na poli %1!d!.", // 1116
    L"Skenování pole bylo zakázáno na poli %1!d!.", // 1117
    L"Stahování obrazu flash do řadiče %1!x!, dokončeno procent: %2!d!.", // 1128
    L"Stahování obrazu flash do IOC bylo dokončeno pro řadič %1!x!.", // 1129
    L"Chyba média na poli %1!x! byla opravena.", // 1130
    L"Jednotka byla přiřazena jako globální náhradní disk na řadiči %1!d!, kanál %2!d!.", // 1132
    L"Jednotka byla odebrána ze seznamu globálních náhradních disků na řadiči %1!d!, kanál %2!d!.", // 1133
    L"Nekonzistence na poli %1!x! byla opravena.", // 1134
    L"Pole %1!d! bylo skryto.", // 1135
    L"Pole %1!d! bylo znovu zobrazeno.", // 1136
    L"Opětovné sestavení pole %1!d! selhalo kvůli chybě čtení na zdrojovém disku.", // 1137
    L"Úloha vytvoření pole %1!d! byla zahájena.", // 1138
    L"Úloha opětovného sestavení pole %1!d! byla zahájena.", // 1139
    L"Úloha transformace pole %1!d! byla zahájena.", // 1140
    L"Úloha kontroly konzistence pole %1!d! byla zahájena.", // 1141
    L"Mezipaměť disku se zpětným zápisem byla povolena na řadiči %1!d!, kanál %2!d!.", // 1142
    L"Mezipaměť disku se zpětným zápisem byla zakázána na řadiči %1!d!, kanál %2!d!.", // 1143
    L"Čtení s předstihem na disku bylo povoleno na řadiči %1!d!, kanál %2!d!.", // 1144
    L"Čtení s předstihem na disku bylo zakázáno na řadiči %1!d!, kanál %2!d!.", // 1145
    L"Bylo zjištěno selhání stahování obrazu firmwaru IOC na řadiči %1!d! na posunu %2!x!.", // 1147
    L"Zmeškaná změna stavu LED pro zařízení na řadiči %1!d!, kanál %2!d!.", // 1148
    L"Zmeškaná změna stavu LED pro pole %1!d!.", // 1149
    L"Požadavek uživatele nastavil stav identifikace pro řadič %1!d!, slot %2!d!.", // 1150
    L"Požadavek uživatele nastavil identifikaci svazku na řadiči %1!d!, slot %2!d!.", // 1151
    L"Požadavek uživatele zrušil stav identifikace pro řadič %1!d!, slot %2!d!.", // 1152
    L"Vynucené obnovení pole %1!d! ve stavu offline.", // 1153
    L"Poli %3!d! byl přiřazen vyhrazený náhradní disk na řadiči %1!d!, kanál %2!d!.", // 1154
    L"Z pole %3!d! byl odebrán vyhrazený náhradní disk na řadiči %1!d!, kanál %2!d!.", // 1155
    L"Správa skříně není pro řadič %1!d! podporována.", // 1156
    L"Byl zrušen osiřelý požadavek na stav identifikace pro řadič %1!d!, slot %2!d!.", // 1157
    L"Úloha opětovného sestavení na poli %1!d! byla odebrána uživatelem.", // 1158
    L"Disk na řadiči %1!d!, kanál %2!d! byl proražen.", // 1159
    L"Proražení disku na řadiči %1!d!, kanál %2!d! se nezdařilo.", // 1160
    L"Úloha bezpečného vymazání na poli %1!d! byla pozastavena.", // 1165
    L"Úloha bezpečného vymazání na poli %1!d! pokračuje.", // 1166
    L"Úloha bezpečného vymazání pro pole %1!d! selhala.", // 1167
    L"Úloha bezpečného vymazání pro pole %1!d! byla dokončena.", // 1168
    L"Úloha bezpečného vymazání na poli %1!d! byla ukončena.", // 1169
    L"Úloha bezpečného vymazání na poli %1!d! byla odebrána.", // 1170
    L"Na řadiči %1!d!, kanál %2!d! bylo vloženo nové neznámé zařízení.", // 1171
    L"Úloha qsync na poli %1!d! pokračuje.", // 1172
    L"Úloha qsync na poli %1!d! byla dokončena.", // 1173
    L"Úloha qsync na poli %1!d! selhala.", // 1174
    L"Úloha qsync na poli %1!d! byla ukončena.", // 1175
    L"Úloha qsync na poli %1!d! byla odebrána.", // 1176
    L"Úloha qsync na poli %1!d! byla pozastavena.", // 1177
    L"Úloha qsync pro pole %1!d! byla zahájena.", // 1178
    L"Funkce qsync byla na poli %1!d! povolena.", // 1179
    L"Funkce qsync byla na poli %1!d! zakázána.", // 1180
    L"Metadata jednotky byla vymazána na řadiči %1!d!, kanál %2!d!.", // 1181
    L"Požadavek uživatele nastavil rozšířený stav LED 1 (OKAY) pro řadič %1!d!, slot %2!d!.", // 1182
    L"Požadavek uživatele nastavil rozšířený stav LED 2 (REBUILDING) pro řadič %1!d!, slot %2!d!.", // 1183
    L"Požadavek uživatele nastavil rozšířený stav LED 3 (FAILED) pro řadič %1!d!, slot %2!d!.", // 1184
    L"Požadavek uživatele nastavil rozšířený stav LED 4 (IDENTIFY) pro řadič %1!d!, slot %2!d!.", // 1185
    L"Požadavek uživatele nastavil rozšířený stav LED 5 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1186
    L"Požadavek uživatele nastavil rozšířený stav LED 6 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1187
    L"Požadavek uživatele nastavil rozšířený stav LED 7 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1188
    L"Požadavek uživatele nastavil rozšířený stav LED 8 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1189
    L"Požadavek uživatele nastavil rozšířený stav LED 9 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1190
    L"Požadavek uživatele nastavil rozšířený stav LED 10 (UNDEFINED) pro řadič %1!d!, slot %2!d!.", // 1191
    L"Požadavek uživatele obnovil stav LED pro řadič %1!d!, slot %2!d!.", // 1192
};
// clang-format on
