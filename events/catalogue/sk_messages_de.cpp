// German texts of the driver's messages, one per row of the message table, in its
// order.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const SK_MessagesGerman[SK_MESSAGE_COUNT] = {
    L"Meldungsbereich initialisiert, Meldungsprotokollierung wird gestartet.", // 1001
    L"Meldungsbereich gefunden, Meldungsprotokollierung wird ab dem letzten Eintrag fortgesetzt.", // 1002
    L"Initialisierung wegen Versionskonflikt, einige Meldungen sind möglicherweise verloren gegangen.", // 1003
    L"Initialisierung wegen abweichender Größe des Meldungsspeichers, einige Meldungen sind möglicherweise verloren gegangen.", // 1004
    L"Initialisierung wegen abweichender maximaler Indexgröße der Meldungen, einige Meldungen sind möglicherweise verloren gegangen.", // 1005
    L"Initialisierung wegen beschädigtem Schreibzeiger der Meldungen, einige Meldungen sind möglicherweise verloren gegangen.", // 1006
    L"Kritische Benutzerinformationseinträge sind verloren gegangen.", // 1008
    L"Meldungs-ID %1!d! (0x%1!x!) für die Übersetzung nicht gefunden, p1=0x%2!x!, p2=0x%3!x!, p3=0x%4!x!, p4=0x%5!x!.", // 1011
    L"Core-Befehl zum erneuten Scannen empfangen.", // 1012
    L"Laufwerk auf Controller %1!d! Kanal %2!d! ausgefallen.", // 1013
    L"Array %1!d! wurde gelöscht.", // 1014
    L"Array %1!d! ist in den kritischen Zustand gewechselt.", // 1015
    L"Array %1!d! ist offline gegangen.", // 1016
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde fortgesetzt.", // 1017
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde abgeschlossen.", // 1018
    L"Ein Neuaufbauvorgang auf Array %1!d! ist fehlgeschlagen.", // 1019
    L"Ein Transformationsvorgang auf Array %1!d! wurde fortgesetzt.", // 1020
    L"Ein Transformationsvorgang auf Array %1!d! wurde abgeschlossen.", // 1021
    L"Ein Transformationsvorgang auf Array %1!d! ist fehlgeschlagen.", // 1022
    L"Eine Konsistenzprüfung auf Array %1!d! wurde fortgesetzt.", // 1023
    L"Eine Konsistenzprüfung auf Array %1!d! wurde abgeschlossen.", // 1024
    L"Eine Konsistenzprüfung auf Array %1!d! ist fehlgeschlagen.", // 1025
    L"Ein Erstellungsvorgang für Array %1!d! wurde fortgesetzt.", // 1026
    L"Ein Erstellungsvorgang für Array %1!d! wurde abgeschlossen.", // 1027
    L"Ein Erstellungsvorgang für Array %1!d! ist fehlgeschlagen.", // 1028
    L"Laufwerk auf Controller %1!d! Kanal %2!d! initialisiert.", // 1029
    L"Die Aufgabenpriorität von Array %1!d! wurde geändert.", // 1030
    L"Array %1!d! geteilt, neues Array %2!d!.", // 1031
    L"Cache-Richtlinie von Array %1!d! geändert in LESEN.", // 1034
    L"Cache-Richtlinie von Array %1!d! geändert in SCHREIBEN.", // 1035
    L"Cache-Richtlinie von Array %1!d! geändert in KEIN CACHE.", // 1036
    L"Konfigurationsänderung.", // 1037
    L"Neues Laufwerk angeschlossen.", // 1038
    L"Laufwerk getrennt.", // 1039
    L"IO-Zeitüberschreitung auf Controller %1!d! Kanal %2!d!.", // 1040
    L"Gerätefehler auf Controller %1!d! Kanal %2!d!.", // 1041
    L"Gerät auf Controller %1!d! Kanal %2!d! angeschlossen.", // 1042
    L"Gerät auf Controller %1!d! Kanal %2!d! getrennt.", // 1043
    L"Medienfehler auf Controller %1!d! Kanal %2!d!.", // 1047
    L"Array %1!d!: Verzögert geschriebene Daten sind verloren gegangen.", // 1048
    L"Gerät auf Controller %1!d! Kanal %2!d! ausgefallen, Zeile %3!d!.", // 1049
    L"Zweiter BBR-Versuch fehlgeschlagen, Controller %1!d! Kanal %2!d!.", // 1050
    L"Zu viele BBR-Fehler, I/O wird mit Fehler beendet, Controller %1!d! Kanal %2!d!.", // 1051
    L"Blocknummer niedrig=0x%1!x!, hoch=0x%2!x!.", // 1052
    L"Ein Kopiervorgang für Array %1!d! wurde fortgesetzt.", // 1053
    L"Ein Kopiervorgang für Array %1!d! wurde abgeschlossen.", // 1054
    L"Ein Kopiervorgang für Array %1!d! ist fehlgeschlagen.", // 1055
    L"Nicht behebbarer Medienfehler auf Array %1!d!, Daten sind möglicherweise verloren.", // 1056
    L"Einsetzen eines Geräts auf Controller %1!d! Kanal %2!d! erkannt.", // 1057
    L"SPEICHERZUORDNUNGSFEHLER auf Controller %1!d! Kanal %2!d!, KANAL WIRD DEAKTIVIERT.", // 1060
    L"SMART-Gerät meldet SCHWELLENWERT ÜBERSCHRITTEN auf Controller %1!d! Kanal %2!d!.", // 1061
    L"Cache-Richtlinie von Array %1!d! geändert in LESEN/SCHREIBEN.", // 1067
    L"Das System wird per Fernzugriff von %1!d!.%2!d!.%3!d!.%4!d! verwaltet.", // 1068
    L"Die Fernverwaltung durch %1!d!.%2!d!.%3!d!.%4!d! wurde beendet.", // 1069
    L"Ein Transformationsvorgang auf Array %1!d! wurde angehalten.", // 1097
    L"Eine Konsistenzprüfung auf Array %1!d! wurde angehalten.", // 1098
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde angehalten.", // 1099
    L"Ein Erstellungsvorgang auf Array %1!d! wurde angehalten.", // 1100
    L"Ein Kopiervorgang auf Array %1!d! wurde angehalten.", // 1101
    L"Ein Transformationsvorgang auf Array %1!d! wurde entfernt.", // 1102
    L"Eine Konsistenzprüfung auf Array %1!d! wurde entfernt.", // 1103
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde entfernt.", // 1104
    L"Ein Erstellungsvorgang auf Array %1!d! wurde entfernt.", // 1105
    L"Ein Kopiervorgang auf Array %1!d! wurde entfernt, Verknüpfung erfolgreich aufgehoben.", // 1106
    L"Ein Transformationsvorgang auf Array %1!d! wurde heruntergefahren.", // 1107
    L"Eine Konsistenzprüfung auf Array %1!d! wurde heruntergefahren.", // 1108
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde heruntergefahren.", // 1109
    L"Ein Erstellungsvorgang auf Array %1!d! wurde heruntergefahren.", // 1110
    L"Ein Kopiervorgang auf Array %1!d! wurde heruntergefahren.", // 1111
    L"Array %1!d! geteilt.", // 1112
    L"Array-Scan-Durchlauf %1!d! auf Array %2!d! wurde gestartet.", // 1114
    L"Array-Scan-Durchlauf %1!d! auf Array %2!d! wurde abgeschlossen.", // 1115
    L"Array-Scan auf Array %1!d! aktiviert.", // 1116
    L"Array-Scan auf Array %1!d! deaktiviert.", // 1117
    L"Flash-Image wird auf Controller %1!x! heruntergeladen, zu %2!d! Prozent abgeschlossen.", // 1128
    L"Herunterladen des Flash-Images auf den IOC von Controller %1!x! abgeschlossen.", // 1129
    L"Medienfehler auf Array %1!x! behoben.", // 1130
    L"Laufwerk auf Controller %1!d! Kanal %2!d! als globales Ersatzlaufwerk zugewiesen.", // 1132
    L"Laufwerk auf Controller %1!d! Kanal %2!d! aus der Liste der globalen Ersatzlaufwerke entfernt.", // 1133
    L"Inkonsistenz auf Array %1!x! behoben.", // 1134
    L"Array %1!d! ausgeblendet.", // 1135
    L"Array %1!d! eingeblendet.", // 1136
    L"Neuaufbau auf Array %1!d! wegen eines Lesefehlers auf dem Quelldatenträger fehlgeschlagen.", // 1137
    L"Ein Erstellungsvorgang für Array %1!d! wurde gestartet.", // 1138
    L"Ein Neuaufbauvorgang für Array %1!d! wurde gestartet.", // 1139
    L"Ein Transformationsvorgang für Array %1!d! wurde gestartet.", // 1140
    L"Eine Konsistenzprüfung für Array %1!d! wurde gestartet.", // 1141
    L"Write-Back-Cache des Datenträgers auf Controller %1!d! Kanal %2!d! aktiviert.", // 1142
    L"Write-Back-Cache des Datenträgers auf Controller %1!d! Kanal %2!d! deaktiviert.", // 1143
    L"Vorauslesen (Read-Ahead) des Datenträgers auf Controller %1!d! Kanal %2!d! aktiviert.", // 1144
    L"Vorauslesen (Read-Ahead) des Datenträgers auf Controller %1!d! Kanal %2!d! deaktiviert.", // 1145
    L"Fehler beim Herunterladen des IOC-Firmware-Images auf Controller %1!d! bei Offset %2!x! erkannt.", // 1147
    L"Verpasste LED-Statusänderung für Gerät auf Controller %1!d! Kanal %2!d!.", // 1148
    L"Verpasste LED-Statusänderung für Array %1!d!.", // 1149
    L"Auf Benutzeranforderung wurde der Identifizierungsstatus für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1150
    L"Auf Benutzeranforderung wurde die Identifizierung für ein Volume auf Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1151
    L"Auf Benutzeranforderung wurde der Identifizierungsstatus für Controller %1!d!, Steckplatz %2!d! aufgehoben.", // 1152
    L"Erzwungene Wiederherstellung des Offline-Arrays %1!d!.", // 1153
    L"Array %3!d! wurde ein dediziertes Ersatzlaufwerk auf Controller %1!d! Kanal %2!d! zugewiesen.", // 1154
    L"Dediziertes Ersatzlaufwerk auf Controller %1!d! Kanal %2!d! von Array %3!d! entfernt.", // 1155
    L"Gehäuseverwaltung für Controller %1!d! wird nicht unterstützt.", // 1156
    L"Verwaiste Anforderung des Identifizierungsstatus für Controller %1!d!, Steckplatz %2!d! aufgehoben.", // 1157
    L"Ein Neuaufbauvorgang auf Array %1!d! wurde vom Benutzer entfernt.", // 1158
    L"Datenträger auf Controller %1!d! Kanal %2!d! punktiert.", // 1159
    L"Punktieren des Datenträgers auf Controller %1!d! Kanal %2!d! fehlgeschlagen.", // 1160
    L"Ein Vorgang zum sicheren Löschen auf Array %1!d! wurde angehalten.", // 1165
    L"Ein Vorgang zum sicheren Löschen auf Array %1!d! wurde fortgesetzt.", // 1166
    L"Ein Vorgang zum sicheren Löschen für Array %1!d! ist fehlgeschlagen.", // 1167
    L"Ein Vorgang zum sicheren Löschen für Array %1!d! wurde abgeschlossen.", // 1168
    L"Ein Vorgang zum sicheren Löschen auf Array %1!d! wurde heruntergefahren.", // 1169
    L"Ein Vorgang zum sicheren Löschen auf Array %1!d! wurde entfernt.", // 1170
    L"Ein neues unbekanntes Gerät wurde auf Controller %1!d! Kanal %2!d! eingesetzt.", // 1171
    L"Ein qsync-Vorgang auf Array %1!d! wurde fortgesetzt.", // 1172
    L"Ein qsync-Vorgang auf Array %1!d! wurde abgeschlossen.", // 1173
    L"Ein qsync-Vorgang auf Array %1!d! ist fehlgeschlagen.", // 1174
    L"Ein qsync-Vorgang auf Array %1!d! wurde heruntergefahren.", // 1175
    L"Ein qsync-Vorgang auf Array %1!d! wurde entfernt.", // 1176
    L"Ein qsync-Vorgang auf Array %1!d! wurde angehalten.", // 1177
    L"Ein qsync-Vorgang für Array %1!d! wurde gestartet.", // 1178
    L"qsync auf Array %1!d! aktiviert.", // 1179
    L"qsync auf Array %1!d! deaktiviert.", // 1180
    L"Laufwerksmetadaten auf Controller %1!d! Kanal %2!d! gelöscht.", // 1181
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 1 (OKAY) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1182
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 2 (REBUILDING) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1183
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 3 (FAILED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1184
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 4 (IDENTIFY) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1185
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 5 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1186
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 6 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1187
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 7 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1188
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 8 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1189
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 9 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1190
    L"Auf Benutzeranforderung wurde der erweiterte LED-Status 10 (UNDEFINED) für Controller %1!d!, Steckplatz %2!d! gesetzt.", // 1191
    L"Auf Benutzeranforderung wurde der LED-Status für Controller %1!d!, Steckplatz %2!d! wiederhergestellt.", // 1192
};
// clang-format on
