// Norwegian texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesNorwegian[SK_MESSAGE_COUNT] = {
    L"Meldingsområdet ble initialisert, meldingsloggingen starter.", // 1001
    L"Fant meldingsområdet, meldingsloggingen fortsetter fra siste oppføring.", // 1002
    L"Versjonsavvik førte til initialisering, noen meldinger kan ha gått tapt.", // 1003
    L"Avvik i meldingsminnets størrelse førte til initialisering, noen meldinger kan ha gått tapt.", // 1004
    L"Avvik i meldingenes maksimale indeksstørrelse førte til initialisering, noen meldinger kan ha gått tapt.", // 1005
    L"Skadet skrivepeker for meldinger førte til initialisering, noen meldinger kan ha gått tapt.", // 1006
    L"Kritiske brukerinformasjonsoppføringer gikk tapt.", // 1008
    L"Fant ikke melding-ID %1!d! (0x%1!x!) for oversettelse, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Kommando for ny skanning av kjernen er mottatt.", // 1012
    L"Diskfeil på kontroller %1!d!, kanal %2!d!.", // 1013
    L"Diskgruppe %1!d! er slettet.", // 1014
    L"Diskgruppe %1!d! er i kritisk tilstand.", // 1015
    L"Diskgruppe %1!d! er frakoblet.", // 1016
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble gjenopptatt.", // 1017
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble fullført.", // 1018
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! mislyktes.", // 1019
    L"Transformeringsoppgaven på diskgruppe %1!d! ble gjenopptatt.", // 1020
    L"Transformeringsoppgaven på diskgruppe %1!d! ble fullført.", // 1021
    L"Transformeringsoppgaven på diskgruppe %1!d! mislyktes.", // 1022
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble gjenopptatt.", // 1023
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble fullført.", // 1024
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! mislyktes.", // 1025
    L"Opprettingsoppgaven for diskgruppe %1!d! ble gjenopptatt.", // 1026
    L"Opprettingsoppgaven for diskgruppe %1!d! ble fullført.", // 1027
    L"Opprettingsoppgaven for diskgruppe %1!d! mislyktes.", // 1028
    L"Disk initialisert på kontroller %1!d!, kanal %2!d!.", // 1029
    L"Oppgaveprioriteten for diskgruppe %1!d! er endret.", // 1030
    L"Diskgruppe %1!d! er delt, ny diskgruppe %2!d!.", // 1031
    L"Hurtigbufferpolicyen for diskgruppe %1!d! er endret til LESING.", // 1034
    L"Hurtigbufferpolicyen for diskgruppe %1!d! er endret til SKRIVING.", // 1035
    L"Hurtigbufferpolicyen for diskgruppe %1!d! er endret til INGEN HURTIGBUFFER.", // 1036
    L"Konfigurasjonsendring.", // 1037
    L"Ny disk tilkoblet.", // 1038
    L"Disk frakoblet.", // 1039
    L"IO-tidsavbrudd på kontroller %1!d!, kanal %2!d!.", // 1040
    L"Enhetsfeil på kontroller %1!d!, kanal %2!d!.", // 1041
    L"Enhet tilkoblet på kontroller %1!d!, kanal %2!d!.", // 1042
    L"Enhet frakoblet på kontroller %1!d!, kanal %2!d!.", // 1043
    L"Mediefeil på kontroller %1!d!, kanal %2!d!.", // 1047
    L"Diskgruppe %1!d!: data fra forsinket skriving gikk tapt.", // 1048
    L"Enhetssvikt på kontroller %1!d!, kanal %2!d!, linje %3!d!.", // 1049
    L"Andre BBR-forsøk mislyktes, kontroller %1!d!, kanal %2!d!.", // 1050
    L"For mange BBR-feil, I/O mislykkes, kontroller %1!d!, kanal %2!d!.", // 1051
    L"Blokknummer lav=0x%1!x!, høy=0x%2!x!.", // 1052
    L"Kopieringsoppgaven på diskgruppe %1!d! ble gjenopptatt.", // 1053
    L"Kopieringsoppgaven på diskgruppe %1!d! ble fullført.", // 1054
    L"Kopieringsoppgaven på diskgruppe %1!d! mislyktes.", // 1055
    L"Uopprettelig mediefeil på diskgruppe %1!d!, data kan ha gått tapt.", // 1056
    L"Innsetting av enhet oppdaget på kontroller %1!d!, kanal %2!d!.", // 1057
    L"FEIL VED MINNETILORDNING på kontroller %1!d!, kanal %2!d!, KANALEN DEAKTIVERES.", // 1060
    L"SMART-enhet rapporterer TERSKEL OVERSKREDET på kontroller %1!d!, kanal %2!d!.", // 1061
    L"Hurtigbufferpolicyen for diskgruppe %1!d! er endret til LESING/SKRIVING.", // 1067
    L"Systemet fjernadministreres fra %1!d!.%2!d!.%3!d!.%4!d!.", // 1068
    L"Fjernadministrasjonen fra %1!d!.%2!d!.%3!d!.%4!d! er avsluttet.", // 1069
    L"Transformeringsoppgaven på diskgruppe %1!d! ble satt på pause.", // 1097
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble satt på pause.", // 1098
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble satt på pause.", // 1099
    L"Opprettingsoppgaven for diskgruppe %1!d! ble satt på pause.", // 1100
    L"Kopieringsoppgaven på diskgruppe %1!d! ble satt på pause.", // 1101
    L"Transformeringsoppgaven på diskgruppe %1!d! ble fjernet.", // 1102
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble fjernet.", // 1103
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble fjernet.", // 1104
    L"Opprettingsoppgaven for diskgruppe %1!d! ble fjernet.", // 1105
    L"Kopieringsoppgaven på diskgruppe %1!d! ble fjernet, avkoblingen var vellykket.", // 1106
    L"Transformeringsoppgaven på diskgruppe %1!d! ble avsluttet.", // 1107
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble avsluttet.", // 1108
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble avsluttet.", // 1109
    L"Opprettingsoppgaven for diskgruppe %1!d! ble avsluttet.", // 1110
    L"Kopieringsoppgaven på diskgruppe %1!d! ble avsluttet.", // 1111
    L"Diskgruppe %1!d! er delt.", // 1112
    L"Skannegjennomgang %1!d! er startet på diskgruppe %2!d!.", // 1114
    L"Skannegjennomgang %1!d! er fullført på diskgruppe %2!d!.", // 1115
    L"Skanning er aktivert på diskgruppe %1!d!.", // 1116
    L"Skanning er deaktivert på diskgruppe %1!d!.", // 1117
    L"Laster ned flash-bilde til kontroller %1!x!, %2!d! prosent fullført.", // 1128
    L"Nedlastingen av flash-bilde til IOC på kontroller %1!x! er fullført.", // 1129
    L"Mediefeil reparert på diskgruppe %1!x!.", // 1130
    L"Disk tilordnet som global reservedisk på kontroller %1!d!, kanal %2!d!.", // 1132
    L"Disk fjernet fra listen over globale reservedisker på kontroller %1!d!, kanal %2!d!.", // 1133
    L"Inkonsistens reparert på diskgruppe %1!x!.", // 1134
    L"Diskgruppe %1!d! er skjult.", // 1135
    L"Diskgruppe %1!d! vises igjen.", // 1136
    L"Gjenoppbyggingen av diskgruppe %1!d! mislyktes på grunn av lesefeil på kildedisken.", // 1137
    L"Opprettingsoppgaven for diskgruppe %1!d! ble startet.", // 1138
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble startet.", // 1139
    L"Transformeringsoppgaven på diskgruppe %1!d! ble startet.", // 1140
    L"Konsistenskontrolloppgaven på diskgruppe %1!d! ble startet.", // 1141
    L"Diskens tilbakeskrivingsbuffer (write-back) er aktivert på kontroller %1!d!, kanal %2!d!.", // 1142
    L"Diskens tilbakeskrivingsbuffer (write-back) er deaktivert på kontroller %1!d!, kanal %2!d!.", // 1143
    L"Diskens forhåndslesing er aktivert på kontroller %1!d!, kanal %2!d!.", // 1144
    L"Diskens forhåndslesing er deaktivert på kontroller %1!d!, kanal %2!d!.", // 1145
    L"Feil ved nedlasting av IOC-fastvarebilde oppdaget på kontroller %1!d! ved forskyvning %2!x!.", // 1147
    L"Gikk glipp av endring av LED-tilstand for enhet på kontroller %1!d!, kanal %2!d!.", // 1148
    L"Gikk glipp av endring av LED-tilstand for diskgruppe %1!d!.", // 1149
    L"En brukerforespørsel har aktivert identifiseringstilstand for kontroller %1!d!, spor %2!d!.", // 1150
    L"En brukerforespørsel har aktivert identifisering av et volum på kontroller %1!d!, spor %2!d!.", // 1151
    L"En brukerforespørsel har fjernet identifiseringstilstanden for kontroller %1!d!, spor %2!d!.", // 1152
    L"Tvungen gjenoppretting av frakoblet diskgruppe %1!d!.", // 1153
    L"Diskgruppe %3!d! har fått tilordnet en dedikert reservedisk på kontroller %1!d!, kanal %2!d!.", // 1154
    L"Dedikert reservedisk fjernet fra diskgruppe %3!d! på kontroller %1!d!, kanal %2!d!.", // 1155
    L"Kabinettadministrasjon støttes ikke for kontroller %1!d!.", // 1156
    L"Fjernet foreldreløs forespørsel om identifiseringstilstand for kontroller %1!d!, spor %2!d!.", // 1157
    L"Gjenoppbyggingsoppgaven på diskgruppe %1!d! ble fjernet av brukeren.", // 1158
    L"Disken er merket som punktert (puncture) på kontroller %1!d!, kanal %2!d!.", // 1159
    L"Kunne ikke merke disken som punktert (puncture) på kontroller %1!d!, kanal %2!d!.", // 1160
    L"Oppgaven for sikker sletting på diskgruppe %1!d! ble satt på pause.", // 1165
    L"Oppgaven for sikker sletting på diskgruppe %1!d! ble gjenopptatt.", // 1166
    L"Oppgaven for sikker sletting på diskgruppe %1!d! mislyktes.", // 1167
    L"Oppgaven for sikker sletting på diskgruppe %1!d! ble fullført.", // 1168
    L"Oppgaven for sikker sletting på diskgruppe %1!d! ble avsluttet.", // 1169
    L"Oppgaven for sikker sletting på diskgruppe %1!d! ble fjernet.", // 1170
    L"En ny ukjent enhet ble satt inn på kontroller %1!d!, kanal %2!d!.", // 1171
    L"qsync-oppgaven på diskgruppe %1!d! ble gjenopptatt.", // 1172
    L"qsync-oppgaven på diskgruppe %1!d! ble fullført.", // 1173
    L"qsync-oppgaven på diskgruppe %1!d! mislyktes.", // 1174
    L"qsync-oppgaven på diskgruppe %1!d! ble avsluttet.", // 1175
    L"qsync-oppgaven på diskgruppe %1!d! ble fjernet.", // 1176
    L"qsync-oppgaven på diskgruppe %1!d! ble satt på pause.", // 1177
    L"qsync-oppgaven på diskgruppe %1!d! ble startet.", // 1178
    L"qsync er aktivert på diskgruppe %1!d!.", // 1179
    L"qsync er deaktivert på diskgruppe %1!d!.", // 1180
    L"Diskens metadata er tømt på kontroller %1!d!, kanal %2!d!.", // 1181
    L"En brukerforespørsel har satt utvidet LED-tilstand 1 (OK) for kontroller %1!d!, spor %2!d!.", // 1182
    L"En brukerforespørsel har satt utvidet LED-tilstand 2 (GJENOPPBYGGER) for kontroller %1!d!, spor %2!d!.", // 1183
    L"En brukerforespørsel har satt utvidet LED-tilstand 3 (SVIKTET) for kontroller %1!d!, spor %2!d!.", // 1184
    L"En brukerforespørsel har satt utvidet LED-tilstand 4 (IDENTIFISER) for kontroller %1!d!, spor %2!d!.", // 1185
    L"En brukerforespørsel har satt utvidet LED-tilstand 5 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1186
    L"En brukerforespørsel har satt utvidet LED-tilstand 6 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1187
    L"En brukerforespørsel har satt utvidet LED-tilstand 7 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1188
    L"En brukerforespørsel har satt utvidet LED-tilstand 8 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1189
    L"En brukerforespørsel har satt utvidet LED-tilstand 9 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1190
    L"En brukerforespørsel har satt utvidet LED-tilstand 10 (UDEFINERT) for kontroller %1!d!, spor %2!d!.", // 1191
    L"En brukerforespørsel har gjenopprettet LED-tilstanden for kontroller %1!d!, spor %2!d!.", // 1192
};
// clang-format on
