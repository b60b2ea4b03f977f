<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>SK_AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Application Version:</source>
        <translation>Anwendungsversion:</translation>
    </message>
    <message>
        <source>skraid.sys:</source>
        <translation>skraid.sys:</translation>
    </message>
    <message>
        <source>skcfg.sys:</source>
        <translation>skcfg.sys:</translation>
    </message>
    <message>
        <source>skbottom.sys:</source>
        <translation>skbottom.sys:</translation>
    </message>
</context>
<context>
    <name>SK_ArrayNameDialog</name>
    <message>
        <source>Array Name</source>
        <translation>Array-Name</translation>
    </message>
    <message>
        <source>Enter an array name of up to 30 characters.</source>
        <translation>Neuer Array-Name (bis zu 30 Zeichen):</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source> Array Name</source>
        <translation> Array-Name</translation>
    </message>
    <message>
        <source>Invalid name: array names may not be the same as existing array names or contain the following characters: ()^,.=|&quot;-[]</source>
        <translation>Ungültiger Name: Array-Namen dürfen nicht mit vorhandenen Array-Namen übereinstimmen und keines der folgenden Zeichen enthalten: ()^,.=|&quot;-[]</translation>
    </message>
</context>
<context>
    <name>SK_ClearMetadataDialog</name>
    <message>
        <source>Clear Metadata</source>
        <translation>Metadaten löschen</translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation>Datenträgerliste:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SK_CreateDialog</name>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Array Options</source>
        <translation>Array-Optionen</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Organized As:</source>
        <translation>Organisiert als:</translation>
    </message>
    <message>
        <source>Max Capacity:</source>
        <translation>Max. Kapazität:</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Kapazität:</translation>
    </message>
    <message>
        <source>Max Capacity</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Cache Options:</source>
        <translation>Cache-Optionen:</translation>
    </message>
    <message>
        <source>Cache Tag Size:</source>
        <translation>Cache-Tag-Größe:</translation>
    </message>
    <message>
        <source>Trim:</source>
        <translation>Trim:</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Background Array Scan</source>
        <translation>Hintergrundprüfung</translation>
    </message>
    <message>
        <source>Skip Initialize  (Not Recommended)</source>
        <translation>Initialisierung überspringen  (nicht empfohlen)</translation>
    </message>
    <message>
        <source>Leave Existing Data Intact</source>
        <translation>Vorhandene Daten erhalten</translation>
    </message>
    <message>
        <source>Zero Create</source>
        <translation>Mit Nullen initialisieren</translation>
    </message>
    <message>
        <source>Array Name:</source>
        <translation>Array-Name:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All NVMe</source>
        <translation>Alle NVMe</translation>
    </message>
    <message>
        <source>All SATA SSD</source>
        <translation>Alle SATA-SSDs</translation>
    </message>
    <message>
        <source>All HDD</source>
        <translation>Alle HDDs</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Volume  (JBOD)</source>
        <translation>Volume  (JBOD)</translation>
    </message>
    <message>
        <source>RAID 0  (Stripe)</source>
        <translation>RAID 0  (Striping)</translation>
    </message>
    <message>
        <source>RAID 1  (Mirror)</source>
        <translation>RAID 1  (Spiegelung)</translation>
    </message>
    <message>
        <source>RAID 10 (Stripe of Mirrors)</source>
        <translation>RAID 10 (Striping über Spiegel)</translation>
    </message>
    <message>
        <source>RAID 5   (Stripe with Parity)</source>
        <translation>RAID 5   (Striping mit Parität)</translation>
    </message>
    <message>
        <source>RAID 6   (Stripe with 2 Parities)</source>
        <translation>RAID 6   (Striping mit doppelter Parität)</translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation>Lesecache + Write-Back-Cache</translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation>Lesecache</translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation>Write-Back-Cache</translation>
    </message>
    <message>
        <source>No Cache</source>
        <translation>Kein Cache</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>64 KB</source>
        <translation>64 KB</translation>
    </message>
    <message>
        <source>128 KB</source>
        <translation>128 KB</translation>
    </message>
    <message>
        <source>256 KB</source>
        <translation>256 KB</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Anschlusstyp</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Largest Free </source>
        <translation>Größter freier Bereich </translation>
    </message>
    <message>
        <source>GS</source>
        <translation>GE</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trim</translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation>Angekündigter Hot-Swap</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware Version</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Invalid Configuration: </source>
        <translation>Ungültige Konfiguration: </translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source> Create</source>
        <translation> Erstellen</translation>
    </message>
    <message>
        <source>Invalid name: array names may not be the same as existing array names or contain the following characters: ()^,.=|&quot;-[]</source>
        <translation>Ungültiger Name: Array-Namen dürfen nicht mit vorhandenen Array-Namen übereinstimmen und keines der folgenden Zeichen enthalten: ()^,.=|&quot;-[]</translation>
    </message>
    <message>
        <source>Confirm Create</source>
        <translation>Erstellen bestätigen</translation>
    </message>
    <message>
        <source>Warning: You have included a spare in the array. Would you like to continue?</source>
        <translation>Warnung: Sie haben ein Ersatzlaufwerk in das Array aufgenommen. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to create anyway?</source>
        <translation>Warnung: Gemischte Laufwerke erkannt! Für die beste Leistung wird nicht empfohlen, Laufwerke mit deutlich unterschiedlicher Leistung zu mischen. Möchten Sie das Array trotzdem erstellen?</translation>
    </message>
    <message>
        <source>Create failed</source>
        <translation>Erstellen fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>SK_DeleteForm</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation>NORMAL</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>BEREIT</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>KRITISCH</translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation>OFFLINE</translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation>VERALTET</translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation>CACHE OFFLINE</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation>BS-Name</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Partition</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation>Array-Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation>Gesamtkapazität</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Array </source>
        <translation>Array </translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Deleting an array may cause data loss. Are you sure you want to delete the selected Array(s): </source>
        <translation>Das Löschen eines Arrays kann zu Datenverlust führen. Möchten Sie die ausgewählten Arrays wirklich löschen: </translation>
    </message>
    <message>
        <source>Confirm Action</source>
        <translation>Aktion bestätigen</translation>
    </message>
    <message>
        <source>Deleting arrays...</source>
        <translation>Arrays werden gelöscht...</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SK_DiskProperites</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Disk Properties</source>
        <translation>Datenträgereigenschaften</translation>
    </message>
    <message>
        <source>Disk Write Back Caching:</source>
        <translation>Write-Back-Cache des Datenträgers:</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Disk Read Ahead:</source>
        <translation>Vorauslesen (Read-Ahead):</translation>
    </message>
    <message>
        <source>SMART Polling:</source>
        <translation>SMART-Abfrage:</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Note: Turning Disk Write Back Caching on may increase the likelihood of data corruption if the system power were to fail.</source>
        <translation>Hinweis: Ein eingeschalteter Write-Back-Cache des Datenträgers erhöht bei einem Stromausfall die Gefahr beschädigter Daten.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation>Write-Back-Cache</translation>
    </message>
    <message>
        <source>Read Ahead</source>
        <translation>Vorauslesen</translation>
    </message>
    <message>
        <source>SMART Poll</source>
        <translation>SMART-Abfrage</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Anschlusstyp</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source> is a NVMe device and cannot change disk cache settings.</source>
        <translation> ist ein NVMe-Gerät; seine Cache-Einstellungen lassen sich nicht ändern.</translation>
    </message>
</context>
<context>
    <name>SK_MainWindow</name>
    <message>
        <source>Confirm Action</source>
        <translation>Aktion bestätigen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>The total number of arrays is limited to </source>
        <translation>Die Anzahl der Arrays ist begrenzt auf </translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Caching</source>
        <translation>Caching</translation>
    </message>
    <message>
        <source>Task Priority</source>
        <translation>Aufgabenpriorität</translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation>Array-Name</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>If enabled Write Back Cache can increase the likelihood of data corruption if the system experiences an unexpected shutdown, do you wish to enable?</source>
        <translation>Ein aktivierter Write-Back-Cache erhöht bei einem unerwarteten Herunterfahren des Systems die Gefahr beschädigter Daten. Möchten Sie ihn aktivieren?</translation>
    </message>
    <message>
        <source>Un-Hide</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source> Array </source>
        <translation> von Array </translation>
    </message>
    <message>
        <source>Identify Array</source>
        <translation>Array identifizieren</translation>
    </message>
    <message>
        <source>The LEDs representing the Disk(s) in the selected Array are now lit. Click &apos;OK&apos; to stop identifying.</source>
        <translation>Die LEDs der Datenträger im ausgewählten Array leuchten jetzt. Klicken Sie auf &apos;OK&apos;, um die Identifizierung zu beenden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remove all Spares from </source>
        <translation>Alle Ersatzlaufwerke entfernen von </translation>
    </message>
    <message>
        <source>Array </source>
        <translation>Array </translation>
    </message>
    <message>
        <source>Do you want to delete Array </source>
        <translation>Möchten Sie wirklich löschen: Array </translation>
    </message>
    <message>
        <source>WARNING: All data will be lost and unrecoverable. Continue with Secure Erase on Array </source>
        <translation>WARNUNG: Alle Daten gehen unwiederbringlich verloren. Sicheres Löschen ausführen für Array </translation>
    </message>
    <message>
        <source>This operation will make the array invisible to the operating system and may cause DATA LOSS. Would you like to continue with the Prepare to Remove operation?</source>
        <translation>Dieser Vorgang macht das Array für das Betriebssystem unsichtbar und kann zu DATENVERLUST führen. Möchten Sie mit &quot;Zum Entfernen vorbereiten&quot; fortfahren?</translation>
    </message>
    <message>
        <source>Array Removal</source>
        <translation>Array entfernen</translation>
    </message>
    <message>
        <source> has been removed from the configuration, the device&apos;s disconnected and are now ready to be physically removed from the system. It is important that no DISK RESCANs be performed until all of the disks in the array have been disconnected</source>
        <translation> wurde aus der Konfiguration entfernt; die Geräte sind getrennt und können jetzt physisch aus dem System entfernt werden. Führen Sie KEIN erneutes Einlesen der Datenträger durch, bevor alle Datenträger des Arrays getrennt wurden</translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>There is an overlap between the selected array and another array. Operation canceled.</source>
        <translation>Das ausgewählte Array überschneidet sich mit einem anderen Array. Vorgang abgebrochen.</translation>
    </message>
    <message>
        <source>This device is currently in use. Close any program or windows that might be using this device, and then try again.</source>
        <translation>Dieses Gerät wird zurzeit verwendet. Schließen Sie alle Programme und Fenster, die das Gerät verwenden könnten, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Initialize Disks</source>
        <translation>Datenträger initialisieren</translation>
    </message>
    <message>
        <source>Clear Metadata</source>
        <translation>Metadaten löschen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Overview</source>
        <translation>S.M.A.R.T.-Übersicht</translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation>Controller</translation>
    </message>
    <message>
        <source>Restart %1 and change language to %2?</source>
        <translation>%1 neu starten und die Sprache auf %2 umstellen?</translation>
    </message>
    <message>
        <source>Very Low</source>
        <translation>Sehr niedrig</translation>
    </message>
    <message>
        <source>Informational</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Schwerwiegend</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Event Notification</source>
        <translation>Ereignisbenachrichtigung</translation>
    </message>
    <message>
        <source>Event View Filter</source>
        <translation>Filter der Ereignisanzeige</translation>
    </message>
    <message>
        <source>Please enter the minimum event number you wish to see:</source>
        <translation>Geben Sie die kleinste Ereignisnummer ein, die angezeigt werden soll:</translation>
    </message>
    <message>
        <source>May have been unable to open file: </source>
        <translation>Die Datei konnte möglicherweise nicht geöffnet werden: </translation>
    </message>
    <message>
        <source> please make sure to have a proper document reader selected as the default application for the file extension type or try to open manually if still unable to open.</source>
        <translation> Bitte stellen Sie sicher, dass ein geeignetes Anzeigeprogramm als Standardanwendung für diesen Dateityp festgelegt ist, oder öffnen Sie die Datei manuell.</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Info über </translation>
    </message>
    <message>
        <source>May have been unable to open link: </source>
        <translation>Der Link konnte möglicherweise nicht geöffnet werden: </translation>
    </message>
    <message>
        <source>. If so, please try to open manually.</source>
        <translation>. Öffnen Sie ihn in diesem Fall bitte manuell.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Anschlusstyp</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Largest Free</source>
        <translation>Größter freier Bereich</translation>
    </message>
    <message>
        <source>Global Spare</source>
        <translation>Globales Ersatzlaufwerk</translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation>Angekündigter Hot-Swap</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation>BS-Name</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Partition</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation>Gesamtkapazität</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Task State</source>
        <translation>Aufgabenstatus</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Pri</source>
        <translation>Prio.</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Hintergrundprüfung</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>CTS</source>
        <translation>CTS</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trim</translation>
    </message>
    <message>
        <source>Ded Spare</source>
        <translation>Ded. Ersatz</translation>
    </message>
    <message>
        <source>#</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Unable to find the VOR RAID drivers, please confirm your BIOS settings have RAID enabled.

If running AHCI/Native mode, nothing needs to be done. Exiting application.</source>
        <translation>Die VOR-RAID-Treiber wurden nicht gefunden. Bitte prüfen Sie, ob RAID in den BIOS-Einstellungen aktiviert ist.

Im AHCI-/Native-Modus ist nichts zu tun. Die Anwendung wird beendet.</translation>
    </message>
    <message>
        <source>Unable to find skcfg RAID driver, please ensure all required RAID drivers are installed.</source>
        <translation>Der RAID-Treiber skcfg wurde nicht gefunden. Bitte stellen Sie sicher, dass alle erforderlichen RAID-Treiber installiert sind.</translation>
    </message>
    <message>
        <source>Please run application as Administrator.</source>
        <translation>Bitte führen Sie die Anwendung als Administrator aus.</translation>
    </message>
    <message>
        <source>While running this application at your current user privileges you will not be able to:</source>
        <translation>Mit Ihren aktuellen Benutzerrechten können Sie in dieser Anwendung Folgendes nicht:</translation>
    </message>
    <message>
        <source>  (1) Perform destructive commands.</source>
        <translation>  (1) Zerstörende Befehle ausführen.</translation>
    </message>
    <message>
        <source>  (2) View array partitions and system array information.</source>
        <translation>  (2) Partitionen der Arrays und Angaben zum System-Array anzeigen.</translation>
    </message>
    <message>
        <source>Value displays current MBs per second of performance between the OS and the VOR-RAID Driver.</source>
        <translation>Zeigt die aktuelle Leistung in MB pro Sekunde zwischen Betriebssystem und VOR-RAID-Treiber.</translation>
    </message>
    <message>
        <source>Value displays current MBs per second  performance between the VOR-RAID Driver and the storage device.</source>
        <translation>Zeigt die aktuelle Leistung in MB pro Sekunde zwischen VOR-RAID-Treiber und Speichergerät.</translation>
    </message>
    <message>
        <source>Value displays current IOs per second performance between the OS and the VOR-RAID Driver.</source>
        <translation>Zeigt die aktuelle Leistung in E/A-Vorgängen pro Sekunde zwischen Betriebssystem und VOR-RAID-Treiber.</translation>
    </message>
    <message>
        <source>Value displays current IOs per second performance between the VOR-RAID Driver and the storage devices.</source>
        <translation>Zeigt die aktuelle Leistung in E/A-Vorgängen pro Sekunde zwischen VOR-RAID-Treiber und Speichergeräten.</translation>
    </message>
    <message>
        <source>Value displays total Bytes between the OS and the VOR-RAID Driver.</source>
        <translation>Zeigt die insgesamt übertragenen Bytes zwischen Betriebssystem und VOR-RAID-Treiber.</translation>
    </message>
    <message>
        <source>Value displays total Bytes between the VOR-RAID Driver and the storage device.</source>
        <translation>Zeigt die insgesamt übertragenen Bytes zwischen VOR-RAID-Treiber und Speichergerät.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>Create RAID array</source>
        <translation>RAID-Array erstellen</translation>
    </message>
    <message>
        <source>&amp;Transform</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message>
        <source>Transform an existing RAID array</source>
        <translation>Ein vorhandenes RAID-Array umwandeln</translation>
    </message>
    <message>
        <source>Create a cached array between two existing RAID arrays</source>
        <translation>Ein Cache-Array aus zwei vorhandenen RAID-Arrays erstellen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>No Cache</source>
        <translation>Kein Cache</translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation>Lesecache</translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation>Write-Back-Cache</translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation>Lesecache + Write-Back-Cache</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Change Array Name of Selected Array</source>
        <translation>Namen des ausgewählten Arrays ändern</translation>
    </message>
    <message>
        <source>Hide/Un-Hide an existing Array</source>
        <translation>Ein vorhandenes Array aus- oder einblenden</translation>
    </message>
    <message>
        <source>Light LED(s) representing the selected Array</source>
        <translation>Die LEDs des ausgewählten Arrays leuchten lassen</translation>
    </message>
    <message>
        <source>&amp;Prepare To Remove</source>
        <translation>Zum Entfernen &amp;vorbereiten</translation>
    </message>
    <message>
        <source>Make the array invisible to the operating system for preparation of removal</source>
        <translation>Das Array zur Vorbereitung des Entfernens für das Betriebssystem unsichtbar machen</translation>
    </message>
    <message>
        <source>Remove Spares</source>
        <translation>Ersatzlaufwerke entfernen</translation>
    </message>
    <message>
        <source>Remove all dedicated spares assigned to this array</source>
        <translation>Alle diesem Array zugewiesenen dedizierten Ersatzlaufwerke entfernen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete an existing RAID array</source>
        <translation>Ein vorhandenes RAID-Array löschen</translation>
    </message>
    <message>
        <source>Delete &amp;Multiple Arrays</source>
        <translation>&amp;Mehrere Arrays löschen</translation>
    </message>
    <message>
        <source>Select multiple existing RAID arrays for deletion</source>
        <translation>Mehrere vorhandene RAID-Arrays zum Löschen auswählen</translation>
    </message>
    <message>
        <source>&amp;Secure Erase</source>
        <translation>&amp;Sicheres Löschen</translation>
    </message>
    <message>
        <source>Secure Erase an existing RAID array</source>
        <translation>Ein vorhandenes RAID-Array sicher löschen</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Rescan all channels to detect new or removed physical disks and arrays.</source>
        <translation>Alle Kanäle neu einlesen, um neue oder entfernte physische Datenträger und Arrays zu erkennen.</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Initialisieren</translation>
    </message>
    <message>
        <source>&amp;Clear Metadata</source>
        <translation>&amp;Metadaten löschen</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;S.M.A.R.T. Overview</source>
        <translation>&amp;S.M.A.R.T.-Übersicht</translation>
    </message>
    <message>
        <source>S.M.A.R.T. (Self-Monitoring, Analysis and Reporting Technology) is a monitoring system by the drive to detect and report various indicators of drive reliability.</source>
        <translation>S.M.A.R.T. (Self-Monitoring, Analysis and Reporting Technology) ist ein Überwachungssystem des Laufwerks, das verschiedene Kennwerte seiner Zuverlässigkeit erfasst und meldet.</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Manage spares for the selected disk.</source>
        <translation>Ersatzlaufwerke für den ausgewählten Datenträger verwalten.</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Application Log</source>
        <translation>Anwendungs&amp;protokoll</translation>
    </message>
    <message>
        <source>View application log information.</source>
        <translation>Das Anwendungsprotokoll anzeigen.</translation>
    </message>
    <message>
        <source>&amp;View Controllers</source>
        <translation>&amp;Controller anzeigen</translation>
    </message>
    <message>
        <source>View Controller List</source>
        <translation>Die Controller-Liste anzeigen</translation>
    </message>
    <message>
        <source>&amp;Event View</source>
        <translation>&amp;Ereignisanzeige</translation>
    </message>
    <message>
        <source>Collapse Event View</source>
        <translation>Ereignisanzeige ein- oder ausklappen</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Display Application and RAID Driver versions</source>
        <translation>Versionen der Anwendung und der RAID-Treiber anzeigen</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>Benutzer&amp;handbuch</translation>
    </message>
    <message>
        <source>Link to User Guide</source>
        <translation>Das Benutzerhandbuch öffnen</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Support</translation>
    </message>
    <message>
        <source>Link to VOR Support Site</source>
        <translation>Die Support-Website von VOR öffnen</translation>
    </message>
    <message>
        <source>&amp;EULA</source>
        <translation>&amp;EULA</translation>
    </message>
    <message>
        <source>View End User License Agreement (EULA).</source>
        <translation>Den Endbenutzer-Lizenzvertrag (EULA) anzeigen.</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Array</source>
        <translation>&amp;Array</translation>
    </message>
    <message>
        <source>Check Consistency</source>
        <translation>Konsistenzprüfung</translation>
    </message>
    <message>
        <source>Background Array Scan</source>
        <translation>Hintergrundprüfung</translation>
    </message>
    <message>
        <source>Modify Cache Settings</source>
        <translation>Cache-Einstellungen ändern</translation>
    </message>
    <message>
        <source>&amp;Disk</source>
        <translation>Daten&amp;träger</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>Change Application Color Theme</source>
        <translation>Das Farbschema der Anwendung ändern</translation>
    </message>
    <message>
        <source>&amp;Icon Size</source>
        <translation>&amp;Symbolgröße</translation>
    </message>
    <message>
        <source>Change Application&apos;s Icon Sizes</source>
        <translation>Die Symbolgröße der Anwendung ändern</translation>
    </message>
    <message>
        <source>&amp;Font Size</source>
        <translation>Schrift&amp;größe</translation>
    </message>
    <message>
        <source>Change Application&apos;s Font Sizes</source>
        <translation>Die Schriftgröße der Anwendung ändern</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation>NORMAL</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>BEREIT</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>KRITISCH</translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation>OFFLINE</translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation>VERALTET</translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation>CACHE OFFLINE</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>NoError</source>
        <translation>Kein Fehler</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ausgefallen</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Failed Offline</source>
        <translation>Ausgefallen, offline</translation>
    </message>
    <message>
        <source>NOT ACTIVE</source>
        <translation>NICHT AKTIV</translation>
    </message>
    <message>
        <source>TRANSFORM</source>
        <translation>UMWANDLUNG</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>ERSTELLUNG</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>PRÜFUNG</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPIEREN</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>WIEDERHERSTELLUNG</translation>
    </message>
    <message>
        <source>CHECK BITMAP</source>
        <translation>BITMAP-PRÜFUNG</translation>
    </message>
    <message>
        <source>FLUSH BITMAP</source>
        <translation>BITMAP SCHREIBEN</translation>
    </message>
    <message>
        <source>SECURE ERASE</source>
        <translation>SICHERES LÖSCHEN</translation>
    </message>
    <message>
        <source>PAGE MOVE</source>
        <translation>SEITENVERSCHIEBUNG</translation>
    </message>
    <message>
        <source>TIER MOVE</source>
        <translation>TIER-VERSCHIEBUNG</translation>
    </message>
    <message>
        <source>ZERO CREATE</source>
        <translation>NULLINITIALISIERUNG</translation>
    </message>
    <message>
        <source>STARTED</source>
        <translation>GESTARTET</translation>
    </message>
    <message>
        <source>PAUSED</source>
        <translation>ANGEHALTEN</translation>
    </message>
    <message>
        <source>SHUTDOWN</source>
        <translation>HERUNTERGEFAHREN</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FEHLGESCHLAGEN</translation>
    </message>
    <message>
        <source>STOPPED</source>
        <translation>GESTOPPT</translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation>ABGESCHLOSSEN</translation>
    </message>
    <message>
        <source>REMOVED</source>
        <translation>ENTFERNT</translation>
    </message>
    <message>
        <source>NOT COMPLETED</source>
        <translation>NICHT ABGESCHLOSSEN</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>(Hidden)</source>
        <translation>(Ausgeblendet)</translation>
    </message>
    <message>
        <source> (Source)</source>
        <translation> (Quelle)</translation>
    </message>
    <message>
        <source> (Destination)</source>
        <translation> (Ziel)</translation>
    </message>
    <message>
        <source> Dedicated Spares</source>
        <translation> Dedizierte Ersatzlaufwerke</translation>
    </message>
    <message>
        <source>Disk </source>
        <translation>Datenträger </translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>k. A.</translation>
    </message>
</context>
<context>
    <name>SK_SmartDiskDialog</name>
    <message>
        <source>S.M.A.R.T. Overview</source>
        <translation>S.M.A.R.T.-Übersicht</translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation>Datenträgerliste:</translation>
    </message>
    <message>
        <source>Query Selected S.M.A.R.T. Data</source>
        <translation>S.M.A.R.T.-Daten der Auswahl abfragen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Anschlusstyp</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Power on Hours</source>
        <translation>Betriebsstunden</translation>
    </message>
    <message>
        <source>Power Cycle</source>
        <translation>Einschaltvorgänge</translation>
    </message>
    <message>
        <source>Temperature (Celsius)</source>
        <translation>Temperatur (Celsius)</translation>
    </message>
</context>
<context>
    <name>SK_TaskPriorityDialog</name>
    <message>
        <source>Task Priority</source>
        <translation>Aufgabenpriorität</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>TRANSFORM</source>
        <translation>UMWANDLUNG</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>ERSTELLUNG</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>PRÜFUNG</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPIEREN</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>WIEDERHERSTELLUNG</translation>
    </message>
    <message>
        <source>NOT ACTIVE</source>
        <translation>NICHT AKTIV</translation>
    </message>
    <message>
        <source>CHECK BITMAP</source>
        <translation>BITMAP-PRÜFUNG</translation>
    </message>
    <message>
        <source>FLUSH BITMAP</source>
        <translation>BITMAP SCHREIBEN</translation>
    </message>
    <message>
        <source>SECURE ERASE</source>
        <translation>SICHERES LÖSCHEN</translation>
    </message>
    <message>
        <source>PAGE MOVE</source>
        <translation>SEITENVERSCHIEBUNG</translation>
    </message>
    <message>
        <source>TIER MOVE</source>
        <translation>TIER-VERSCHIEBUNG</translation>
    </message>
    <message>
        <source>ZERO CREATE</source>
        <translation>NULLINITIALISIERUNG</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>New priority: </source>
        <translation>Neue Priorität: </translation>
    </message>
    <message>
        <source>Current priority of the &apos;</source>
        <translation>Aktuelle Priorität der Aufgabe &apos;</translation>
    </message>
    <message>
        <source>&apos; task: </source>
        <translation>&apos;: </translation>
    </message>
    <message>
        <source>Use the slider to choose a new priority for the &apos;</source>
        <translation>Wählen Sie mit dem Schieberegler eine neue Priorität für die Aufgabe &apos;</translation>
    </message>
    <message>
        <source>&apos; task on array &apos;</source>
        <translation>&apos; auf Array &apos;</translation>
    </message>
</context>
<context>
    <name>SK_TieringDialog</name>
    <message>
        <source>Caching</source>
        <translation>Caching</translation>
    </message>
    <message>
        <source>Tiering Options:</source>
        <translation>Tiering-Optionen:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Cache:</source>
        <translation>Cache:</translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation>Lesecache + Write-Back-Cache</translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation>Lesecache</translation>
    </message>
    <message>
        <source>Array Name:</source>
        <translation>Array-Name:</translation>
    </message>
    <message>
        <source>Hot Arrays:</source>
        <translation>Schnelle Arrays (Hot):</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation>BS-Name</translation>
    </message>
    <message>
        <source>Partition</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation>Array-Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation>Gesamtkapazität</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>CTS</source>
        <translation>CTS</translation>
    </message>
    <message>
        <source>Cold Arrays:</source>
        <translation>Langsame Arrays (Cold):</translation>
    </message>
    <message>
        <source>Commit</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation>NORMAL</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>BEREIT</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>KRITISCH</translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation>OFFLINE</translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation>VERALTET</translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation>CACHE OFFLINE</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>RAID CACHE</source>
        <translation>RAID-CACHE</translation>
    </message>
    <message>
        <source>RAID TIER</source>
        <translation>RAID-TIER</translation>
    </message>
    <message>
        <source>Array </source>
        <translation>Array </translation>
    </message>
    <message>
        <source>Tier command failed</source>
        <translation>Tiering-Befehl fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>SK_TransformDialog</name>
    <message>
        <source>Transform</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Array Options</source>
        <translation>Array-Optionen</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Organized As:</source>
        <translation>Organisiert als:</translation>
    </message>
    <message>
        <source>Current Capacity:</source>
        <translation>Aktuelle Kapazität:</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>Max Capacity:</source>
        <translation>Max. Kapazität:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Kapazität:</translation>
    </message>
    <message>
        <source>Max Capacity</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>All HDD</source>
        <translation>Alle HDDs</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>Gleiche</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>All SATA SSD</source>
        <translation>Alle SATA-SSDs</translation>
    </message>
    <message>
        <source>All NVMe</source>
        <translation>Alle NVMe</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Commit</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Volume  (JBOD)</source>
        <translation>Volume  (JBOD)</translation>
    </message>
    <message>
        <source>RAID 0  (Stripe)</source>
        <translation>RAID 0  (Striping)</translation>
    </message>
    <message>
        <source>RAID 1  (Mirror)</source>
        <translation>RAID 1  (Spiegelung)</translation>
    </message>
    <message>
        <source>RAID 10 (Stripe of Mirrors)</source>
        <translation>RAID 10 (Striping über Spiegel)</translation>
    </message>
    <message>
        <source>RAID 5   (Stripe with Parity)</source>
        <translation>RAID 5   (Striping mit Parität)</translation>
    </message>
    <message>
        <source>RAID 6   (Stripe with 2 Parities)</source>
        <translation>RAID 6   (Striping mit doppelter Parität)</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Anschlusstyp</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Largest Free </source>
        <translation>Größter freier Bereich </translation>
    </message>
    <message>
        <source>GS</source>
        <translation>GE</translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation>Angekündigter Hot-Swap</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware Version</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Array </source>
        <translation>Array </translation>
    </message>
    <message>
        <source>Invalid Configuration: </source>
        <translation>Ungültige Konfiguration: </translation>
    </message>
    <message>
        <source>Confirm Transform</source>
        <translation>Umwandeln bestätigen</translation>
    </message>
    <message>
        <source>Warning: You have included a spare in the array. Would you like to continue?</source>
        <translation>Warnung: Sie haben ein Ersatzlaufwerk in das Array aufgenommen. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Warning: This array transform includes a hot swappable device. After the transform completes a system reboot must be performed to notify the OS of the array&apos;s underlying device changes. Would you like to continue?</source>
        <translation>Warnung: Diese Umwandlung umfasst ein Hot-Swap-fähiges Gerät. Nach Abschluss der Umwandlung muss das System neu gestartet werden, damit das Betriebssystem die geänderten Geräte des Arrays erkennt. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Confirm Create</source>
        <translation>Erstellen bestätigen</translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to create anyway?</source>
        <translation>Warnung: Gemischte Laufwerke erkannt! Für die beste Leistung wird nicht empfohlen, Laufwerke mit deutlich unterschiedlicher Leistung zu mischen. Möchten Sie das Array trotzdem erstellen?</translation>
    </message>
    <message>
        <source>Transform command failed</source>
        <translation>Umwandlungsbefehl fehlgeschlagen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>SK_diskSpareDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Assign as Dedicated Spare</source>
        <translation>Dediziertes Ersatzlaufwerk</translation>
    </message>
    <message>
        <source>Assign as Global Spare</source>
        <translation>Globales Ersatzlaufwerk</translation>
    </message>
    <message>
        <source>Identify Disk using LEDs</source>
        <translation>Per LED identifizieren</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Gerät entfernen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Prepare to Remove</source>
        <translation>Zum Entfernen vorbereiten</translation>
    </message>
    <message>
        <source>Remove as Global Spare</source>
        <translation>Als Ersatzlaufwerk entfernen</translation>
    </message>
    <message>
        <source>Remove as Dedicated Spare</source>
        <translation>Als Ersatzlaufwerk entfernen</translation>
    </message>
    <message>
        <source>Confirm Spare Assignment</source>
        <translation>Ersatzlaufwerk-Zuweisung bestätigen</translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to continue with spare assignment?</source>
        <translation>Warnung: Gemischte Laufwerke erkannt! Für die beste Leistung wird nicht empfohlen, Laufwerke mit deutlich unterschiedlicher Leistung zu mischen. Möchten Sie das Ersatzlaufwerk trotzdem zuweisen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Identify Disk</source>
        <translation>Datenträger identifizieren</translation>
    </message>
    <message>
        <source>The LEDs representing the selected Disk are now lit. Click &apos;OK&apos; to stop identifying.</source>
        <translation>Die LEDs des ausgewählten Datenträgers leuchten jetzt. Klicken Sie auf &apos;OK&apos;, um die Identifizierung zu beenden.</translation>
    </message>
</context>
<context>
    <name>SK_initDisksDialog</name>
    <message>
        <source>Initialize Disks</source>
        <translation>Datenträger initialisieren</translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation>Datenträgerliste:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Un-Initiliazed</source>
        <translation>Neue</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Initialize Selected</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>Sk_insertRemoveDialog</name>
    <message>
        <source>Event Notification</source>
        <translation>Ereignisbenachrichtigung</translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>Drive Inserted</source>
        <translation>Laufwerk eingesetzt</translation>
    </message>
    <message>
        <source>A RAID controller has detected the insertion of a new drive. To bring this drive on-line a controller RESCAN must be performed. If this drive is part of an array of several drives you should only rescan after the last drive that is part of the array has been inserted. </source>
        <translation>Ein RAID-Controller hat ein neu eingesetztes Laufwerk erkannt. Um das Laufwerk in Betrieb zu nehmen, muss der Controller NEU EINLESEN. Gehört das Laufwerk zu einem Array aus mehreren Laufwerken, lesen Sie erst neu ein, nachdem das letzte Laufwerk des Arrays eingesetzt wurde. </translation>
    </message>
    <message>
        <source>Drive Removed</source>
        <translation>Laufwerk entfernt</translation>
    </message>
    <message>
        <source>A RAID controller has detected the removal of a disk drive. To permanently remove the drive and sync the configuration a rescan must be performed. If this drive is part of an array that is being taken off-line, DO NOT RESCAN until the last drive included in the array has been removed.</source>
        <translation>Ein RAID-Controller hat das Entfernen eines Laufwerks erkannt. Um das Laufwerk endgültig zu entfernen und die Konfiguration abzugleichen, muss neu eingelesen werden. Gehört das Laufwerk zu einem Array, das vom Netz genommen wird, lesen Sie NICHT NEU EIN, bevor das letzte Laufwerk des Arrays entfernt wurde.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The Application is already running.</source>
        <translation>Die Anwendung wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>The emulated host could not be started:
%1

The console runs without RAID drivers.</source>
        <translation>Der emulierte Host konnte nicht gestartet werden:
%1

Die Konsole läuft ohne RAID-Treiber.</translation>
    </message>
</context>
<context>
    <name>sk_ControllerProperties</name>
    <message>
        <source>Controllers</source>
        <translation>Controller</translation>
    </message>
    <message>
        <source>Controller List:</source>
        <translation>Controller-Liste:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Port Count</source>
        <translation>Anzahl Anschlüsse</translation>
    </message>
    <message>
        <source>PCI Vendor ID</source>
        <translation>PCI-Hersteller-ID</translation>
    </message>
    <message>
        <source>PCI Device ID</source>
        <translation>PCI-Geräte-ID</translation>
    </message>
    <message>
        <source>PCI SubVendor ID</source>
        <translation>PCI-Subhersteller-ID</translation>
    </message>
    <message>
        <source>PCI SubDevice ID</source>
        <translation>PCI-Subgeräte-ID</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Slot</source>
        <translation>Steckplatz</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
</context>
</TS>
