<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AccessibilityTexts</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Protokoll kopieren</translation>
    </message>
    <message>
        <source>Writing firmware</source>
        <translation>Firmware wird geschrieben</translation>
    </message>
    <message>
        <source>Uploading configuration</source>
        <translation>Konfiguration wird hochgeladen</translation>
    </message>
    <message>
        <source>Reading the machine&apos;s configuration</source>
        <translation>Konfiguration der Maschine wird gelesen</translation>
    </message>
    <message>
        <source>Checking that the machine starts</source>
        <translation>Start der Maschine wird geprüft</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>Machine config saved to %1 (%2 bytes)</source>
        <translation>Maschinenkonfiguration gespeichert unter %1 (%2 Bytes)</translation>
    </message>
    <message>
        <source>Could not save the machine config to %1: %2</source>
        <translation>Die Maschinenkonfiguration konnte nicht unter %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Could not read config.yaml from the machine: %1</source>
        <translation>config.yaml konnte nicht von der Maschine gelesen werden: %1</translation>
    </message>
    <message>
        <source>Failed to open port</source>
        <translation>Anschluss konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>XModem download: invalid arguments</source>
        <translation>XModem-Download: ungültige Argumente</translation>
    </message>
    <message>
        <source>XModem download: invalid file name</source>
        <translation>XModem-Download: ungültiger Dateiname</translation>
    </message>
    <message>
        <source>XModem download: could not send the command</source>
        <translation>XModem-Download: Befehl konnte nicht gesendet werden</translation>
    </message>
    <message>
        <source>XModem download: no block received</source>
        <translation>XModem-Download: kein Block empfangen</translation>
    </message>
    <message>
        <source>XModem download: cancelled by the device</source>
        <translation>XModem-Download: vom Gerät abgebrochen</translation>
    </message>
    <message>
        <source>XModem download: file larger than 16 MiB</source>
        <translation>XModem-Download: Datei größer als 16 MiB</translation>
    </message>
    <message>
        <source>XModem download: block %1 failed 25 times</source>
        <translation>XModem-Download: Block %1 ist 25-mal fehlgeschlagen</translation>
    </message>
    <message>
        <source>XModem download: could not answer the device</source>
        <translation>XModem-Download: Antwort an das Gerät konnte nicht gesendet werden</translation>
    </message>
    <message>
        <source>XModem download: out of memory</source>
        <translation>XModem-Download: kein Speicher mehr frei</translation>
    </message>
    <message>
        <source>XModem download: failed (%1)</source>
        <translation>XModem-Download: fehlgeschlagen (%1)</translation>
    </message>
    <message>
        <source>Could not back up the machine config; the upload did not start: %1</source>
        <translation>Die Maschinenkonfiguration konnte nicht gesichert werden; das Hochladen wurde nicht begonnen: %1</translation>
    </message>
    <message>
        <source>Machine config saved</source>
        <translation>Maschinenkonfiguration gespeichert</translation>
    </message>
    <message>
        <source>Machine config compared</source>
        <translation>Maschinenkonfiguration verglichen</translation>
    </message>
    <message>
        <source>Machine config matches %1 by key</source>
        <translation>Die Maschinenkonfiguration stimmt Schlüssel für Schlüssel mit %1 überein</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in 1 key</source>
        <translation>Die Maschinenkonfiguration weicht in 1 Schlüssel von %1 ab</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in %2 keys</source>
        <translation>Die Maschinenkonfiguration weicht in %2 Schlüsseln von %1 ab</translation>
    </message>
    <message>
        <source>Equal by key</source>
        <translation>Schlüssel für Schlüssel gleich</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>Verschieden</translation>
    </message>
    <message>
        <source>Could not prepare the backups folder %1 as a folder only you can read</source>
        <translation>Der Sicherungsordner %1 konnte nicht als Ordner eingerichtet werden, den nur Sie lesen können</translation>
    </message>
    <message>
        <source>Could not write the backup %1: %2</source>
        <translation>Die Sicherung %1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>No backup was kept: %1</source>
        <translation>Es wurde keine Sicherung aufbewahrt: %1</translation>
    </message>
    <message>
        <source>Skipped the backup record %1: %2</source>
        <translation>Sicherungseintrag %1 übersprungen: %2</translation>
    </message>
    <message>
        <source>not a backup record</source>
        <translation>kein Sicherungseintrag</translation>
    </message>
    <message>
        <source>its copy %1 is missing</source>
        <translation>ihre Kopie %1 fehlt</translation>
    </message>
    <message>
        <source>its copy %1 has changed</source>
        <translation>ihre Kopie %1 wurde verändert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Verglichen</translation>
    </message>
    <message>
        <source>Before upload</source>
        <translation>Vor dem Hochladen</translation>
    </message>
    <message>
        <source>Before erase</source>
        <translation>Vor dem Löschen</translation>
    </message>
    <message>
        <source>%1  %2  %3  %4 bytes  %5  %6</source>
        <translation>%1  %2  %3  %4 Bytes  %5  %6</translation>
    </message>
    <message>
        <source>No backups in %1</source>
        <translation>Keine Sicherungen in %1</translation>
    </message>
    <message>
        <source>1 backup in %1</source>
        <translation>1 Sicherung in %1</translation>
    </message>
    <message>
        <source>%1 backups in %2</source>
        <translation>%1 Sicherungen in %2</translation>
    </message>
    <message>
        <source>No backup of the machine %1 in %2</source>
        <translation>Keine Sicherung der Maschine %1 in %2</translation>
    </message>
    <message>
        <source>No backup %1 in %2</source>
        <translation>Keine Sicherung %1 in %2</translation>
    </message>
    <message>
        <source>Every configuration read from a machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Jede von einer Maschine gelesene Konfiguration wird in %1 aufbewahrt. Die der angeschlossenen Maschine stehen oben, die neueste zuerst.</translation>
    </message>
    <message>
        <source>No configuration has been kept yet. Every configuration read from a machine (Save Machine Config, Compare With Machine, the backup before an upload, the save before Erase All Flash) is kept in %1.</source>
        <translation>Es wurde noch keine Konfiguration aufbewahrt. Jede von einer Maschine gelesene Konfiguration (Maschinenkonfiguration speichern, Mit Maschine vergleichen, die Sicherung vor dem Hochladen, das Speichern vor „Gesamten Flash löschen“) wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>%1 (this machine)</source>
        <translation>%1 (diese Maschine)</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Saving the machine&apos;s settings before Erase All Flash…</source>
        <translation>Die Einstellungen der Maschine werden vor „Gesamten Flash löschen“ gespeichert…</translation>
    </message>
    <message>
        <source>The machine&apos;s firmware does not answer, so its settings cannot be saved.</source>
        <translation>Die Firmware der Maschine antwortet nicht, daher können ihre Einstellungen nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Erasing all flash without saving the settings.</source>
        <translation>Der gesamte Flash wird gelöscht, ohne die Einstellungen zu speichern.</translation>
    </message>
    <message>
        <source>Nothing was erased: %1</source>
        <translation>Es wurde nichts gelöscht: %1</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with Config &gt; Restore Machine Config….</source>
        <translation>Die vor dem Löschen gelesenen Einstellungen wurden nicht zurückgespielt; sie liegen in %1. Sobald die Maschine läuft, stellen Sie sie mit Konfiguration &gt; Maschinenkonfiguration wiederherstellen… wieder her.</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with: teskal-flash restore-config --port %2 %3</source>
        <translation>Die vor dem Löschen gelesenen Einstellungen wurden nicht zurückgespielt; sie liegen in %1. Sobald die Maschine läuft, stellen Sie sie so wieder her: teskal-flash restore-config --port %2 %3</translation>
    </message>
    <message>
        <source>To put back the configuration the machine had before: teskal-flash restore-config --port %1 %2</source>
        <translation>So spielen Sie die vorherige Konfiguration der Maschine zurück: teskal-flash restore-config --port %1 %2</translation>
    </message>
    <message>
        <source>Settings restored from the backup of %1.</source>
        <translation>Einstellungen aus der Sicherung vom %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running, with your settings restored from the backup of %2.</source>
        <translation>Firmware %1 installiert und läuft; Ihre Einstellungen wurden aus der Sicherung vom %2 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Firmware installed and running, with your settings restored from the backup of %1.</source>
        <translation>Firmware installiert und läuft; Ihre Einstellungen wurden aus der Sicherung vom %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>your settings from %1</source>
        <translation>Ihre Einstellungen vom %1</translation>
    </message>
    <message>
        <source>your current settings, saved first</source>
        <translation>Ihre aktuellen Einstellungen, vorher gespeichert</translation>
    </message>
    <message>
        <source>the stock configuration of %1</source>
        <translation>die Standardkonfiguration von %1</translation>
    </message>
    <message>
        <source>Erase the machine, install %1, then put back %2.</source>
        <translation>Die Maschine wird gelöscht, %1 installiert und danach werden %2 zurückgespielt.</translation>
    </message>
    <message>
        <source>Erase the machine and install %1, without a configuration.</source>
        <translation>Die Maschine wird gelöscht und %1 installiert, ohne Konfiguration.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1 with %2.</source>
        <translation>Maschine repariert: Sie läuft mit %1; zurückgespielt: %2.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1, without a configuration.</source>
        <translation>Maschine repariert: Sie läuft mit %1, ohne Konfiguration.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>Es wurde nichts gelöscht: Es gibt keine Sicherung der Maschine %1, die nach der Reparatur zurückgespielt werden könnte. Keine Sicherungen in %2. Wählen Sie im Dialog „Maschine reparieren“ eine andere Sicherung, die Standardkonfiguration eines Produkts oder keine.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>Es wurde nichts gelöscht: Es gibt keine Sicherung der Maschine %1, die nach der Reparatur zurückgespielt werden könnte. Keine Sicherungen in %2. Wählen Sie mit --backup FILE, --product NAME oder --no-config, was zurückgespielt wird.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>Es wurde nichts gelöscht: Es gibt keine Sicherung der Maschine %1, die nach der Reparatur zurückgespielt werden könnte. Sicherungen in %2: %3. Wählen Sie im Dialog „Maschine reparieren“ eine andere Sicherung, die Standardkonfiguration eines Produkts oder keine.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>Es wurde nichts gelöscht: Es gibt keine Sicherung der Maschine %1, die nach der Reparatur zurückgespielt werden könnte. Sicherungen in %2: %3. Wählen Sie mit --backup FILE, --product NAME oder --no-config, was zurückgespielt wird.</translation>
    </message>
    <message>
        <source>This machine has no backup of its settings. Choose what goes back after the erase.</source>
        <translation>Für diese Maschine gibt es keine Sicherung ihrer Einstellungen. Wählen Sie, was nach dem Löschen zurückgespielt wird.</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Komplettsicherung</translation>
    </message>
    <message>
        <source>Before update</source>
        <translation>Vor der Aktualisierung</translation>
    </message>
    <message>
        <source>Before repair</source>
        <translation>Vor der Reparatur</translation>
    </message>
</context>
<context>
    <name>CatalogueTexts</name>
    <message>
        <source>&quot;%1&quot; is not a firmware catalogue: give an http:// or https:// address, a catalogue.json file or a folder that holds one.</source>
        <translation>„%1“ ist kein Firmware-Katalog: Geben Sie eine http://- oder https://-Adresse, eine catalogue.json-Datei oder einen Ordner an, der eine solche Datei enthält.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is missing, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>Der Katalogschlüssel %1 fehlt, daher kann kein Firmware-Katalog geprüft werden. Installieren Sie das Programm neu oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>Der Katalogschlüssel %1 ist kein öffentlicher Ed25519-Schlüssel, daher kann kein Firmware-Katalog geprüft werden. Installieren Sie das Programm neu oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is the development key, which only the simulated plotter trusts. Reinstall the updater, or use the bundled firmware.</source>
        <translation>Der Katalogschlüssel %1 ist der Entwicklungsschlüssel, dem nur der simulierte Plotter vertraut. Installieren Sie das Programm neu oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The firmware catalogue could not be read from %1 (%2). Check the address and the network connection and try again, or use the bundled firmware.</source>
        <translation>Der Firmware-Katalog konnte nicht von %1 gelesen werden (%2). Prüfen Sie die Adresse und die Netzwerkverbindung und versuchen Sie es erneut, oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 did not arrive within %2 s. Check the network connection and try again, or use the bundled firmware.</source>
        <translation>Der Firmware-Katalog von %1 ist nicht innerhalb von %2 s eingetroffen. Prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut, oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>%1 is larger than a firmware catalogue can be (%2 bytes), so it was not read. Check the catalogue&apos;s address.</source>
        <translation>%1 ist größer, als ein Firmware-Katalog sein kann (%2 Bytes), und wurde daher nicht gelesen. Prüfen Sie die Adresse des Katalogs.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 does not carry a valid signature of this updater&apos;s publisher, so it was not used. Ask its publisher for a signed catalogue, or use the bundled firmware.</source>
        <translation>Der Firmware-Katalog unter %1 trägt keine gültige Signatur des Herausgebers dieses Programms und wurde daher nicht verwendet. Bitten Sie seinen Herausgeber um einen signierten Katalog oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 cannot be used: %2. Ask its publisher to correct it, or use the bundled firmware.</source>
        <translation>Der Firmware-Katalog unter %1 kann nicht verwendet werden: %2. Bitten Sie seinen Herausgeber, ihn zu korrigieren, oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 was published %2, before the one already seen (%3), so it was not used: an old catalogue could bring back a withdrawn version. Use the current catalogue.</source>
        <translation>Der Firmware-Katalog unter %1 wurde am %2 veröffentlicht, also vor dem bereits bekannten (%3), und wurde daher nicht verwendet: Ein alter Katalog könnte eine zurückgezogene Version zurückbringen. Verwenden Sie den aktuellen Katalog.</translation>
    </message>
    <message>
        <source>Offline: the firmware catalogue published %1, as last seen, is shown. Connect to the network to see newer versions.</source>
        <translation>Offline: Angezeigt wird der zuletzt abgerufene Firmware-Katalog, veröffentlicht am %1. Stellen Sie eine Netzwerkverbindung her, um neuere Versionen zu sehen.</translation>
    </message>
    <message>
        <source>it is not JSON (%1)</source>
        <translation>er ist kein JSON (%1)</translation>
    </message>
    <message>
        <source>schema %1 is not supported</source>
        <translation>Schema %1 wird nicht unterstützt</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 is not a field of a catalogue</source>
        <translation>%1 ist kein Feld eines Katalogs</translation>
    </message>
    <message>
        <source>%1 is not valid</source>
        <translation>%1 ist ungültig</translation>
    </message>
    <message>
        <source>firmware %1 is listed twice</source>
        <translation>Firmware %1 ist doppelt aufgeführt</translation>
    </message>
    <message>
        <source>Firmware %1 is not in the firmware catalogue. Choose one of the versions it lists.</source>
        <translation>Firmware %1 ist nicht im Firmware-Katalog enthalten. Wählen Sie eine der dort aufgeführten Versionen.</translation>
    </message>
    <message>
        <source>Firmware %1 was withdrawn by its publisher and is not installed. Choose another version.</source>
        <translation>Firmware %1 wurde von ihrem Herausgeber zurückgezogen und wird nicht installiert. Wählen Sie eine andere Version.</translation>
    </message>
    <message>
        <source>The image of firmware %1 could not be read from %2 (%3). Check the network connection and try again.</source>
        <translation>Das Abbild der Firmware %1 konnte nicht von %2 gelesen werden (%3). Prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The download of firmware %1 stopped: nothing arrived for %2 s. Check the network connection and try again.</source>
        <translation>Das Herunterladen der Firmware %1 ist stehen geblieben: %2 s lang kam nichts an. Prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The image of firmware %1 is larger than the %2 bytes the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>Das Abbild der Firmware %1 ist größer als die %2 Bytes, die der Katalog angibt, und wurde daher nicht verwendet. Wählen Sie eine andere Version oder versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The image of firmware %1 ended after %2 of its %3 bytes. Check the network connection and try again.</source>
        <translation>Das Abbild der Firmware %1 brach nach %2 von %3 Bytes ab. Prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The image of firmware %1 does not match the SHA-256 the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>Das Abbild der Firmware %1 stimmt nicht mit der SHA-256-Prüfsumme überein, die der Katalog angibt, und wurde daher nicht verwendet. Wählen Sie eine andere Version oder versuchen Sie es später erneut.</translation>
    </message>
</context>
<context>
    <name>FileTexts</name>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>it could not be read (%1)</source>
        <translation>sie konnte nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Firmware image refused: %1</source>
        <translation>Firmware-Abbild abgelehnt: %1</translation>
    </message>
    <message>
        <source>Bundled %1.bin refused: a development image, not firmware</source>
        <translation>Mitgeliefertes %1.bin abgelehnt: ein Entwicklungsabbild, keine Firmware</translation>
    </message>
    <message>
        <source>Firmware image: version %1, project %2, built %3</source>
        <translation>Firmware-Abbild: Version %1, Projekt %2, erstellt %3</translation>
    </message>
    <message>
        <source>Could not read file: %1</source>
        <translation>Datei konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 is not a valid machine configuration: %2</source>
        <translation>%1 ist keine gültige Maschinenkonfiguration: %2</translation>
    </message>
    <message>
        <source>The development set&apos;s configurations are only for simulated plotters</source>
        <translation>Die Konfigurationen des Entwicklungssatzes sind nur für simulierte Plotter gedacht</translation>
    </message>
    <message>
        <source>  size: %1 bytes</source>
        <translation>  Größe: %1 Bytes</translation>
    </message>
    <message>
        <source>  chip: %1 (chip id %2)</source>
        <translation>  Chip: %1 (Chip-ID %2)</translation>
    </message>
    <message>
        <source>  version: %1</source>
        <translation>  Version: %1</translation>
    </message>
    <message>
        <source>  project: %1</source>
        <translation>  Projekt: %1</translation>
    </message>
    <message>
        <source>  built: %1</source>
        <translation>  erstellt: %1</translation>
    </message>
    <message>
        <source>  partition: fits (the application partition holds %1 bytes)</source>
        <translation>  Partition: passt (die Anwendungspartition fasst %1 Bytes)</translation>
    </message>
    <message>
        <source>  partition: too large (the application partition holds %1 bytes)</source>
        <translation>  Partition: zu groß (die Anwendungspartition fasst %1 Bytes)</translation>
    </message>
    <message>
        <source>  partition: unknown (no partition table in the resources)</source>
        <translation>  Partition: unbekannt (keine Partitionstabelle in den Ressourcen)</translation>
    </message>
    <message>
        <source>  meta: none</source>
        <translation>  meta: keine</translation>
    </message>
    <message>
        <source>  result: passes</source>
        <translation>  Ergebnis: bestanden</translation>
    </message>
    <message>
        <source>  result: refused</source>
        <translation>  Ergebnis: abgelehnt</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)</source>
        <translation>%1 ist weder ein Firmware-Abbild (.bin) noch eine Maschinenkonfiguration (.yaml, .yml)</translation>
    </message>
    <message>
        <source>All files pass</source>
        <translation>Alle Dateien bestanden</translation>
    </message>
    <message>
        <source>%1 of %2 files refused</source>
        <translation>%1 von %2 Dateien abgelehnt</translation>
    </message>
    <message>
        <source>Could not save log: %1</source>
        <translation>Protokoll konnte nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>FirmwareJobTexts</name>
    <message>
        <source>Device connected</source>
        <translation>Gerät verbunden</translation>
    </message>
    <message>
        <source>Waiting for device…</source>
        <translation>Warte auf Gerät…</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Kein Gerät verbunden</translation>
    </message>
    <message>
        <source>Another operation is already running</source>
        <translation>Ein anderer Vorgang läuft bereits</translation>
    </message>
    <message>
        <source>Updating firmware v%1…</source>
        <translation>Firmware wird auf v%1 aktualisiert…</translation>
    </message>
    <message>
        <source>Updating firmware (custom: %1)…</source>
        <translation>Firmware wird aktualisiert (eigene: %1)…</translation>
    </message>
    <message>
        <source>Failed to load custom firmware: %1</source>
        <translation>Eigene Firmware konnte nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>Bundled firmware not found</source>
        <translation>Mitgelieferte Firmware nicht gefunden</translation>
    </message>
    <message>
        <source>Checking device status…</source>
        <translation>Gerätestatus wird geprüft…</translation>
    </message>
    <message>
        <source>Device not responding — writing boot partitions + firmware.</source>
        <translation>Gerät antwortet nicht – Boot-Partitionen und Firmware werden geschrieben.</translation>
    </message>
    <message>
        <source>Device running firmware %1 — updating firmware only.</source>
        <translation>Auf dem Gerät läuft Firmware %1 – nur die Firmware wird aktualisiert.</translation>
    </message>
    <message>
        <source>Flash stub not found in bundle</source>
        <translation>Flash-Stub im Programmpaket nicht gefunden</translation>
    </message>
    <message>
        <source>Missing bootloader resources for full flash</source>
        <translation>Bootloader-Ressourcen für das vollständige Schreiben fehlen</translation>
    </message>
    <message>
        <source>Firmware update complete.</source>
        <translation>Firmware-Aktualisierung abgeschlossen.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Use Config &gt; Update Config to upload the configuration for your machine.</source>
        <translation>HINWEIS: Der Flash wurde gelöscht. Laden Sie über Konfiguration &gt; Konfiguration aktualisieren die Konfiguration für Ihre Maschine hoch.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for your machine.</source>
        <translation>HINWEIS: Der Flash wurde gelöscht. Führen Sie teskal-flash upload-config aus, um die Konfiguration für Ihre Maschine hochzuladen.</translation>
    </message>
    <message>
        <source>Once the machine runs, %1 will be put back.</source>
        <translation>Sobald die Maschine läuft, wird Folgendes zurückgespielt: %1.</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>Firmware-Version %1</translation>
    </message>
    <message>
        <source>Using bundled firmware</source>
        <translation>Mitgelieferte Firmware wird verwendet</translation>
    </message>
    <message>
        <source>Custom firmware: %1</source>
        <translation>Eigene Firmware: %1</translation>
    </message>
    <message>
        <source>Custom firmware: unknown</source>
        <translation>Eigene Firmware: unbekannt</translation>
    </message>
    <message>
        <source>Checking that the machine starts…</source>
        <translation>Start der Maschine wird geprüft…</translation>
    </message>
    <message>
        <source>Config file not found in bundle: %1</source>
        <translation>Konfigurationsdatei im Programmpaket nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Preparing %1 config%2</source>
        <translation>Konfiguration für %1%2 wird vorbereitet</translation>
    </message>
    <message>
        <source>Preparing %1%2</source>
        <translation>%1%2 wird vorbereitet</translation>
    </message>
    <message>
        <source>Uploading config file...</source>
        <translation>Konfigurationsdatei wird hochgeladen...</translation>
    </message>
    <message>
        <source>Upload successful; restarting machine.</source>
        <translation>Hochladen erfolgreich; die Maschine startet neu.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Vorbereitung</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again to stop.</source>
        <translation>Firmware wird geschrieben: Ein Abbruch jetzt kann die Maschine startunfähig machen. Drücken Sie erneut Strg+C, um abzubrechen.</translation>
    </message>
    <message>
        <source>Partition table: present</source>
        <translation>Partitionstabelle: vorhanden</translation>
    </message>
    <message>
        <source>Partition table: absent</source>
        <translation>Partitionstabelle: fehlt</translation>
    </message>
    <message>
        <source>1 plotter connected</source>
        <translation>1 Plotter verbunden</translation>
    </message>
    <message>
        <source>%1 plotters connected</source>
        <translation>%1 Plotter verbunden</translation>
    </message>
    <message>
        <source>Could not start the simulated plotter: %1</source>
        <translation>Der simulierte Plotter konnte nicht gestartet werden: %1</translation>
    </message>
</context>
<context>
    <name>OutcomeTexts</name>
    <message>
        <source>No device found. Is it connected?</source>
        <translation>Kein Gerät gefunden. Ist es angeschlossen?</translation>
    </message>
    <message>
        <source>No device found. Is it connected? Run teskal-flash doctor to see why.</source>
        <translation>Kein Gerät gefunden. Ist es angeschlossen? Führen Sie teskal-flash doctor aus, um den Grund zu sehen.</translation>
    </message>
    <message>
        <source>Could not open serial port. Is another app using it?</source>
        <translation>Die serielle Schnittstelle konnte nicht geöffnet werden. Verwendet ein anderes Programm sie?</translation>
    </message>
    <message>
        <source>Failed to sync with device. Try unplugging and reconnecting.</source>
        <translation>Keine Verbindung zum Gerät. Ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>Unexpected chip detected. Verify hardware.</source>
        <translation>Unerwarteter Chip erkannt. Prüfen Sie die Hardware.</translation>
    </message>
    <message>
        <source>Failed to upload communication stub.</source>
        <translation>Das Kommunikationsprogramm (Stub) konnte nicht übertragen werden.</translation>
    </message>
    <message>
        <source>Flash write failed. Try again.</source>
        <translation>Schreiben in den Flash fehlgeschlagen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Verification failed. Flash may be corrupted — try again.</source>
        <translation>Überprüfung fehlgeschlagen. Der Flash ist möglicherweise beschädigt – versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Config upload failed.</source>
        <translation>Hochladen der Konfiguration fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Operation timed out. Try unplugging and reconnecting.</source>
        <translation>Zeitüberschreitung. Ziehen Sie das Gerät ab und schließen Sie es wieder an.</translation>
    </message>
    <message>
        <source>Device disconnected during operation.</source>
        <translation>Die Verbindung zum Gerät wurde während des Vorgangs getrennt.</translation>
    </message>
    <message>
        <source>Unknown error (code %1)</source>
        <translation>Unbekannter Fehler (Code %1)</translation>
    </message>
    <message>
        <source>Close any other program that uses the port, unplug and reconnect the machine, and try again.</source>
        <translation>Schließen Sie alle anderen Programme, die den Anschluss verwenden, ziehen Sie die Maschine ab, schließen Sie sie wieder an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unplug the machine, plug it in again, and try again.</source>
        <translation>Ziehen Sie die Maschine ab, schließen Sie sie wieder an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This controller cannot take this firmware; contact support before trying again.</source>
        <translation>Diese Steuerung kann diese Firmware nicht aufnehmen; wenden Sie sich an den Support, bevor Sie es erneut versuchen.</translation>
    </message>
    <message>
        <source>Try again; if it fails again, use another USB cable or port.</source>
        <translation>Versuchen Sie es erneut; schlägt es wieder fehl, verwenden Sie ein anderes USB-Kabel oder einen anderen USB-Anschluss.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running.</source>
        <translation>Firmware %1 installiert und läuft.</translation>
    </message>
    <message>
        <source>Firmware installed and running.</source>
        <translation>Firmware installiert und läuft.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine reports version %1, not %2.</source>
        <translation>Firmware geschrieben und überprüft, aber die Maschine meldet Version %1 statt %2.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine did not answer to confirm that it runs.</source>
        <translation>Firmware geschrieben und überprüft, aber die Maschine hat nicht geantwortet, um zu bestätigen, dass sie läuft.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it restarts in a loop.</source>
        <translation>Firmware geschrieben, aber die Maschine startet nicht: Sie startet immer wieder neu.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it crashed at start-up.</source>
        <translation>Firmware geschrieben, aber die Maschine startet nicht: Sie ist beim Start abgestürzt.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it finds no firmware to start.</source>
        <translation>Firmware geschrieben, aber die Maschine startet nicht: Sie findet keine Firmware zum Starten.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: its power supply is too weak.</source>
        <translation>Firmware geschrieben, aber die Maschine startet nicht: Ihr Netzteil ist zu schwach.</translation>
    </message>
    <message>
        <source>Configuration uploaded; the machine restarted with it.</source>
        <translation>Konfiguration hochgeladen; die Maschine ist damit neu gestartet.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine did not answer after its restart.</source>
        <translation>Konfiguration hochgeladen, aber die Maschine hat nach dem Neustart nicht geantwortet.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it restarts in a loop.</source>
        <translation>Konfiguration hochgeladen, aber die Maschine startet nicht: Sie startet immer wieder neu.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it crashed at start-up.</source>
        <translation>Konfiguration hochgeladen, aber die Maschine startet nicht: Sie ist beim Start abgestürzt.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it finds no firmware to start.</source>
        <translation>Konfiguration hochgeladen, aber die Maschine startet nicht: Sie findet keine Firmware zum Starten.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: its power supply is too weak.</source>
        <translation>Konfiguration hochgeladen, aber die Maschine startet nicht: Ihr Netzteil ist zu schwach.</translation>
    </message>
    <message>
        <source>The machine rejected its configuration:</source>
        <translation>Die Maschine hat ihre Konfiguration abgelehnt:</translation>
    </message>
    <message>
        <source>Plug in the machine&apos;s own power supply (USB power is not enough), then try again.</source>
        <translation>Schließen Sie das eigene Netzteil der Maschine an (USB-Strom reicht nicht aus) und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Correct the configuration and upload it again, or upload a product&apos;s configuration from Config &gt; Update Config.</source>
        <translation>Korrigieren Sie die Konfiguration und laden Sie sie erneut hoch, oder laden Sie die Konfiguration eines Produkts über Konfiguration &gt; Konfiguration aktualisieren hoch.</translation>
    </message>
    <message>
        <source>Correct the configuration and run teskal-flash upload-config again, or upload a product&apos;s with --product NAME.</source>
        <translation>Korrigieren Sie die Konfiguration und führen Sie teskal-flash upload-config erneut aus, oder laden Sie die eines Produkts mit --product NAME hoch.</translation>
    </message>
    <message>
        <source>Run the update again.</source>
        <translation>Führen Sie die Aktualisierung erneut aus.</translation>
    </message>
    <message>
        <source>Run teskal-flash flash again.</source>
        <translation>Führen Sie teskal-flash flash erneut aus.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected; if it still does not answer, run the update again.</source>
        <translation>Prüfen Sie, ob die Maschine eingeschaltet und angeschlossen ist; antwortet sie weiterhin nicht, führen Sie die Aktualisierung erneut aus.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected, then run teskal-flash version.</source>
        <translation>Prüfen Sie, ob die Maschine eingeschaltet und angeschlossen ist, und führen Sie dann teskal-flash version aus.</translation>
    </message>
    <message>
        <source>Press Repair… to erase the machine, install the firmware again and put back your settings. If it keeps happening, save the log (File &gt; Save Log…) for support.</source>
        <translation>Drücken Sie „Reparieren…“, um die Maschine zu löschen, die Firmware neu zu installieren und Ihre Einstellungen zurückzuspielen. Passiert es wieder, speichern Sie das Protokoll (Datei &gt; Protokoll speichern…) für den Support.</translation>
    </message>
    <message>
        <source>Run teskal-flash repair to erase the machine, install the firmware again and put back your settings. If it keeps happening, keep this output for support.</source>
        <translation>Führen Sie teskal-flash repair aus, um die Maschine zu löschen, die Firmware neu zu installieren und Ihre Einstellungen zurückzuspielen. Passiert es wieder, bewahren Sie diese Ausgabe für den Support auf.</translation>
    </message>
    <message>
        <source>ended without a result</source>
        <translation>ohne Ergebnis beendet</translation>
    </message>
    <message>
        <source>ended abnormally after its result</source>
        <translation>nach seinem Ergebnis abnormal beendet</translation>
    </message>
    <message>
        <source>ended abnormally after its result: %1</source>
        <translation>nach seinem Ergebnis abnormal beendet: %1</translation>
    </message>
</context>
<context>
    <name>PortTexts</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 existiert nicht.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 ist keine serielle Schnittstelle.</translation>
    </message>
    <message>
        <source>Permission denied on %1 (group %2).</source>
        <translation>Zugriff auf %1 verweigert (Gruppe %2).</translation>
    </message>
    <message>
        <source>Permission denied on %1 (owner %2, mode %3).</source>
        <translation>Zugriff auf %1 verweigert (Besitzer %2, Modus %3).</translation>
    </message>
    <message>
        <source>Permission denied on %1.</source>
        <translation>Zugriff auf %1 verweigert.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (pid %3).</source>
        <translation>%1 wird von %2 verwendet (PID %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>%1 does not answer: its device has gone.</source>
        <translation>%1 antwortet nicht: Das Gerät ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>%1 can be used.</source>
        <translation>%1 kann verwendet werden.</translation>
    </message>
    <message>
        <source>Plug the plotter in, or name another port.</source>
        <translation>Schließen Sie den Plotter an oder geben Sie einen anderen Anschluss an.</translation>
    </message>
    <message>
        <source>Name the plotter&apos;s port, for example /dev/ttyACM0.</source>
        <translation>Geben Sie den Anschluss des Plotters an, zum Beispiel /dev/ttyACM0.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1).</source>
        <translation>Installieren Sie die Berechtigungsregel (%1).</translation>
    </message>
    <message>
        <source>You are in the group %1, but this session began before you joined it: log out and in again.</source>
        <translation>Sie sind in der Gruppe %1, aber diese Sitzung begann, bevor Sie ihr beigetreten sind: Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, then log out and in again.</source>
        <translation>Installieren Sie die Berechtigungsregel (%1) oder treten Sie der Gruppe bei: sudo usermod -aG %2 $USER, dann melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>Close that program and try again.</source>
        <translation>Schließen Sie dieses Programm und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Close it and try again.</source>
        <translation>Schließen Sie es und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unplug the plotter, plug it in again and try again.</source>
        <translation>Ziehen Sie den Plotter ab, schließen Sie ihn wieder an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Connection Check</source>
        <translation>Verbindungsprüfung</translation>
    </message>
    <message>
        <source>button below</source>
        <translation>Schaltfläche unten</translation>
    </message>
    <message>
        <source>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</source>
        <translation>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</translation>
    </message>
    <message>
        <source>60-teskal-firmware-updater.rules in /etc/udev/rules.d</source>
        <translation>60-teskal-firmware-updater.rules in /etc/udev/rules.d</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001).</source>
        <translation>Plotter an USB erkannt (303a:1001).</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001, serial %1).</source>
        <translation>Plotter an USB erkannt (303a:1001, Seriennummer %1).</translation>
    </message>
    <message>
        <source>No plotter seen on USB.</source>
        <translation>Kein Plotter an USB erkannt.</translation>
    </message>
    <message>
        <source>Switch it on, try another USB port, and use a cable that carries data: some cables only charge.</source>
        <translation>Schalten Sie ihn ein, versuchen Sie einen anderen USB-Anschluss und verwenden Sie ein Kabel, das Daten überträgt: Manche Kabel laden nur.</translation>
    </message>
    <message>
        <source>Serial port %1 made for it by %2.</source>
        <translation>Serielle Schnittstelle %1 von %2 dafür eingerichtet.</translation>
    </message>
    <message>
        <source>No serial port made for it: the kernel&apos;s cdc_acm driver is missing.</source>
        <translation>Keine serielle Schnittstelle dafür eingerichtet: Der Kerneltreiber cdc_acm fehlt.</translation>
    </message>
    <message>
        <source>Install your system&apos;s extra kernel modules, or load the driver: sudo modprobe cdc_acm</source>
        <translation>Installieren Sie die zusätzlichen Kernelmodule Ihres Systems oder laden Sie den Treiber: sudo modprobe cdc_acm</translation>
    </message>
    <message>
        <source>No serial port made for it yet.</source>
        <translation>Noch keine serielle Schnittstelle dafür eingerichtet.</translation>
    </message>
    <message>
        <source>Wait a moment; if it stays so, unplug the plotter and plug it in again.</source>
        <translation>Warten Sie einen Moment; bleibt es so, ziehen Sie den Plotter ab und schließen Sie ihn wieder an.</translation>
    </message>
    <message>
        <source>You may open %1.</source>
        <translation>Sie dürfen %1 öffnen.</translation>
    </message>
    <message>
        <source>No other program is using %1.</source>
        <translation>Kein anderes Programm verwendet %1.</translation>
    </message>
    <message>
        <source>Another plotter: %1.</source>
        <translation>Ein anderer Plotter: %1.</translation>
    </message>
    <message>
        <source>Another plotter (serial %1): %2.</source>
        <translation>Ein anderer Plotter (Seriennummer %1): %2.</translation>
    </message>
    <message>
        <source>without a port</source>
        <translation>ohne Anschluss</translation>
    </message>
    <message>
        <source>Not a plotter: %1 on %2.</source>
        <translation>Kein Plotter: %1 an %2.</translation>
    </message>
    <message>
        <source>Ready: the plotter on %1 can be used.</source>
        <translation>Bereit: Der Plotter an %1 kann verwendet werden.</translation>
    </message>
    <message>
        <source>No plotter is ready to use.</source>
        <translation>Kein Plotter ist einsatzbereit.</translation>
    </message>
    <message>
        <source>The plotter keeps restarting.</source>
        <translation>Der Plotter startet immer wieder neu.</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then press Repair.</source>
        <translation>Hat die Steuerplatine eine BOOT-Taste, halten Sie sie gedrückt, während Sie den Plotter anschließen, und drücken Sie dann „Reparieren“.</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then run teskal-flash repair.</source>
        <translation>Hat die Steuerplatine eine BOOT-Taste, halten Sie sie gedrückt, während Sie den Plotter anschließen, und führen Sie dann teskal-flash repair aus.</translation>
    </message>
    <message>
        <source>Plotter not found?</source>
        <translation>Plotter nicht gefunden?</translation>
    </message>
    <message>
        <source>Checked again every second. This window closes once the plotter can be used.</source>
        <translation>Wird jede Sekunde erneut geprüft. Dieses Fenster schließt sich, sobald der Plotter verwendet werden kann.</translation>
    </message>
    <message>
        <source>&amp;Install Permission Rule…</source>
        <translation>Berechtigungsregel &amp;installieren…</translation>
    </message>
    <message>
        <source>pkexec or the rule&apos;s installer is missing. Run by hand: %1</source>
        <translation>pkexec oder das Installationsprogramm der Regel fehlt. Von Hand ausführen: %1</translation>
    </message>
    <message>
        <source>The permission rule&apos;s installer could not be started.</source>
        <translation>Das Installationsprogramm der Berechtigungsregel konnte nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>ReleaseTexts</name>
    <message>
        <source>No firmware catalogue is configured. Choose one with File &gt; Firmware Catalogue…, or use the bundled firmware.</source>
        <translation>Es ist kein Firmware-Katalog eingerichtet. Wählen Sie einen über Datei &gt; Firmware-Katalog… oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured. Name one with --catalogue URL|FILE|FOLDER, or use the bundled firmware.</source>
        <translation>Es ist kein Firmware-Katalog eingerichtet. Geben Sie einen mit --catalogue URL|FILE|FOLDER an oder verwenden Sie die mitgelieferte Firmware.</translation>
    </message>
    <message>
        <source>Fetching firmware %1 from the catalogue at %2…</source>
        <translation>Firmware %1 wird aus dem Katalog unter %2 geholt…</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Updating firmware %1 from the catalogue…</source>
        <translation>Firmware wird aus dem Katalog auf %1 aktualisiert…</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written.</source>
        <translation>Firmware %1 ist älter als die Firmware %2, mit der diese Maschine läuft; daher wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written. Add --allow-older to install it anyway.</source>
        <translation>Firmware %1 ist älter als die Firmware %2, mit der diese Maschine läuft; daher wurde nichts geschrieben. Fügen Sie --allow-older hinzu, um sie trotzdem zu installieren.</translation>
    </message>
    <message>
        <source>bundled</source>
        <translation>mitgeliefert</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>stable</source>
        <translation>stabil</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <source>1 firmware version can be installed.</source>
        <translation>1 Firmware-Version kann installiert werden.</translation>
    </message>
    <message>
        <source>%1 firmware versions can be installed.</source>
        <translation>%1 Firmware-Versionen können installiert werden.</translation>
    </message>
    <message>
        <source>Firmware &amp;Catalogue…</source>
        <translation>Firmware-&amp;Katalog…</translation>
    </message>
    <message>
        <source>Choose Firmware &amp;Version…</source>
        <translation>Firmware-&amp;Version wählen…</translation>
    </message>
    <message>
        <source>Firmware version %1 from the catalogue</source>
        <translation>Firmware-Version %1 aus dem Katalog</translation>
    </message>
    <message>
        <source>Firmware %1 is available</source>
        <translation>Firmware %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Firmware Catalogue</source>
        <translation>Firmware-Katalog</translation>
    </message>
    <message>
        <source>Where the firmware catalogue is: an http:// or https:// address, a catalogue.json file, or a folder that holds one (for instance on a USB stick).</source>
        <translation>Wo der Firmware-Katalog liegt: eine http://- oder https://-Adresse, eine catalogue.json-Datei oder ein Ordner, der eine solche Datei enthält (zum Beispiel auf einem USB-Stick).</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>&amp;Datei wählen…</translation>
    </message>
    <message>
        <source>Choose F&amp;older…</source>
        <translation>&amp;Ordner wählen…</translation>
    </message>
    <message>
        <source>Firmware catalogue: %1</source>
        <translation>Firmware-Katalog: %1</translation>
    </message>
    <message>
        <source>Choose Firmware Version</source>
        <translation>Firmware-Version wählen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Show &amp;beta versions</source>
        <translation>&amp;Beta-Versionen anzeigen</translation>
    </message>
    <message>
        <source>&amp;Use This Version</source>
        <translation>Diese &amp;Version verwenden</translation>
    </message>
    <message>
        <source>ran on this machine</source>
        <translation>lief auf dieser Maschine</translation>
    </message>
    <message>
        <source>Reading the firmware catalogue…</source>
        <translation>Firmware-Katalog wird gelesen…</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured: only the bundled firmware is listed. Choose a catalogue with File &gt; Firmware Catalogue….</source>
        <translation>Es ist kein Firmware-Katalog eingerichtet: Nur die mitgelieferte Firmware wird aufgeführt. Wählen Sie einen Katalog über Datei &gt; Firmware-Katalog….</translation>
    </message>
    <message>
        <source>Firmware %1 from the catalogue will be written.</source>
        <translation>Firmware %1 aus dem Katalog wird geschrieben.</translation>
    </message>
    <message>
        <source>Install an Older Version?</source>
        <translation>Ältere Version installieren?</translation>
    </message>
    <message>
        <source>This machine runs firmware %1. Install the older firmware %2 in its place?</source>
        <translation>Auf dieser Maschine läuft Firmware %1. Stattdessen die ältere Firmware %2 installieren?</translation>
    </message>
    <message>
        <source>&amp;Install Older Version</source>
        <translation>Ältere Version &amp;installieren</translation>
    </message>
</context>
<context>
    <name>SnapshotTexts</name>
    <message>
        <source>Taking a snapshot of the whole machine…</source>
        <translation>Komplettsicherung der Maschine wird erstellt…</translation>
    </message>
    <message>
        <source>Snapshot of the whole machine saved to %1 (%2 bytes).</source>
        <translation>Komplettsicherung der Maschine gespeichert unter %1 (%2 Bytes).</translation>
    </message>
    <message>
        <source>the machine&apos;s flash holds nothing worth keeping (no bootloader and no partition table)</source>
        <translation>der Flash der Maschine enthält nichts, was sich aufzubewahren lohnt (kein Bootloader und keine Partitionstabelle)</translation>
    </message>
    <message>
        <source>No snapshot of the whole machine could be taken: %1</source>
        <translation>Es konnte keine Komplettsicherung der Maschine erstellt werden: %1</translation>
    </message>
    <message>
        <source>the flasher stub refused to read the flash</source>
        <translation>der Flash-Stub hat das Lesen des Flashs verweigert</translation>
    </message>
    <message>
        <source>the machine sent nothing for 5 s while its flash was read</source>
        <translation>die Maschine hat beim Lesen ihres Flashs 5 s lang nichts gesendet</translation>
    </message>
    <message>
        <source>what the machine sent of its flash arrived damaged</source>
        <translation>die Flash-Daten, die die Maschine gesendet hat, kamen beschädigt an</translation>
    </message>
    <message>
        <source>the MD5 the machine computed differs from that of the bytes received</source>
        <translation>die von der Maschine berechnete MD5-Prüfsumme weicht von der der empfangenen Bytes ab</translation>
    </message>
    <message>
        <source>the snapshot could not be written on this computer</source>
        <translation>die Komplettsicherung konnte auf diesem Computer nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the flash could not be read (%1)</source>
        <translation>der Flash konnte nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>.</source>
        <comment>the full stop that ends a sentence</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>%1 Nothing was written.</source>
        <translation>%1 Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>The machine was left as it was. Check the USB cable and try again.</source>
        <translation>Die Maschine wurde nicht verändert. Prüfen Sie das USB-Kabel und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No snapshot is needed: the machine&apos;s flash holds nothing worth keeping.</source>
        <translation>Keine Komplettsicherung nötig: Der Flash der Maschine enthält nichts, was sich aufzubewahren lohnt.</translation>
    </message>
    <message>
        <source>Whole machine backed up</source>
        <translation>Gesamte Maschine gesichert</translation>
    </message>
    <message>
        <source>application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Putting back the snapshot of the whole machine from %1 (%2)…</source>
        <translation>Komplettsicherung der Maschine vom %1 (%2) wird zurückgespielt…</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>Could not read the snapshot %1: %2</source>
        <translation>Die Komplettsicherung %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>No snapshot of the machine %1 in %2</source>
        <translation>Keine Komplettsicherung der Maschine %1 in %2</translation>
    </message>
    <message>
        <source>No snapshot %1 in %2</source>
        <translation>Keine Komplettsicherung %1 in %2</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1, not of %2; it carries that machine&apos;s settings and network credentials. Add --other-machine to put it on %2 anyway.</source>
        <translation>Diese Komplettsicherung stammt von der Maschine %1, nicht von %2; sie enthält die Einstellungen und Netzwerk-Zugangsdaten jener Maschine. Fügen Sie --other-machine hinzu, um sie trotzdem auf %2 zurückzuspielen.</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1. It carries that machine&apos;s settings and network credentials. Put it on this machine (%2) anyway?</source>
        <translation>Diese Komplettsicherung stammt von der Maschine %1. Sie enthält die Einstellungen und Netzwerk-Zugangsdaten jener Maschine. Trotzdem auf diese Maschine (%2) zurückspielen?</translation>
    </message>
    <message>
        <source>&amp;Restore Anyway</source>
        <translation>&amp;Trotzdem wiederherstellen</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs firmware %2.</source>
        <translation>Stand der Maschine vom %1 wiederhergestellt: Sie läuft mit Firmware %2.</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs.</source>
        <translation>Stand der Maschine vom %1 wiederhergestellt: Sie läuft.</translation>
    </message>
    <message>
        <source>Press Undo Update to put the machine back as it was before the update, or Repair… to erase it and install the firmware again.</source>
        <translation>Drücken Sie „Aktualisierung rückgängig machen“, um den Stand der Maschine vor der Aktualisierung wiederherzustellen, oder „Reparieren…“, um sie zu löschen und die Firmware neu zu installieren.</translation>
    </message>
    <message>
        <source>To put the machine back as it was before the update, run: teskal-flash restore-machine %1</source>
        <translation>So stellen Sie den Stand der Maschine vor der Aktualisierung wieder her: teskal-flash restore-machine %1</translation>
    </message>
    <message>
        <source>The machine was put back as it was before the update.</source>
        <translation>Der Stand der Maschine vor der Aktualisierung wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>Putting the machine back as it was before the update…</source>
        <translation>Der Stand der Maschine vor der Aktualisierung wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>The machine could not be put back: %1</source>
        <translation>Der frühere Stand der Maschine konnte nicht wiederhergestellt werden: %1</translation>
    </message>
    <message>
        <source>Back Up &amp;Whole Machine…</source>
        <translation>&amp;Gesamte Maschine sichern…</translation>
    </message>
    <message>
        <source>Restore W&amp;hole Machine…</source>
        <translation>Gesamte Maschine wieder&amp;herstellen…</translation>
    </message>
    <message>
        <source>&amp;Snapshot Before Writing</source>
        <translation>&amp;Komplettsicherung vor dem Schreiben</translation>
    </message>
    <message>
        <source>Undo Update</source>
        <translation>Aktualisierung rückgängig machen</translation>
    </message>
    <message>
        <source>Take a &amp;snapshot of the whole machine first</source>
        <translation>Zuerst eine &amp;Komplettsicherung der Maschine erstellen</translation>
    </message>
    <message>
        <source>Restore Whole Machine</source>
        <translation>Gesamte Maschine wiederherstellen</translation>
    </message>
    <message>
        <source>Ran</source>
        <translation>Lief</translation>
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
        <source>Every snapshot of a whole machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Jede Komplettsicherung einer Maschine wird in %1 aufbewahrt. Die der angeschlossenen Maschine stehen oben, die neueste zuerst.</translation>
    </message>
    <message>
        <source>No snapshot has been taken yet. Config &gt; Back Up Whole Machine… takes one, and so does every firmware write with Options &gt; Snapshot Before Writing; they are kept in %1.</source>
        <translation>Es wurde noch keine Komplettsicherung erstellt. Konfiguration &gt; Gesamte Maschine sichern… erstellt eine, ebenso jedes Schreiben der Firmware mit Optionen &gt; Komplettsicherung vor dem Schreiben; sie werden in %1 aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>WindowTexts</name>
    <message>
        <source>%1 %2, built %3, bundled firmware %4</source>
        <translation>%1 %2, erstellt %3, mitgelieferte Firmware %4</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater — simulated plotter</source>
        <translation>Teskal Firmware Updater – simulierter Plotter</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater is already running.</source>
        <translation>Teskal Firmware Updater läuft bereits.</translation>
    </message>
    <message>
        <source>&amp;Teskal Firmware Updater</source>
        <translation>&amp;Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>About Teskal Firmware Updater</source>
        <translation>Über Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;About Teskal Firmware Updater</source>
        <translation>&amp;Über Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Firmware File…</source>
        <translation>Firmware-Datei &amp;öffnen…</translation>
    </message>
    <message>
        <source>&amp;Use Bundled Firmware</source>
        <translation>&amp;Mitgelieferte Firmware verwenden</translation>
    </message>
    <message>
        <source>&amp;Save Log…</source>
        <translation>Protokoll &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Detailed Logging</source>
        <translation>&amp;Ausführliches Protokoll</translation>
    </message>
    <message>
        <source>&amp;Write Boot Partitions</source>
        <translation>&amp;Boot-Partitionen schreiben</translation>
    </message>
    <message>
        <source>&amp;Erase All Flash</source>
        <translation>Gesamten Flash &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Back Up Machine Config Before Upload</source>
        <translation>Maschinenkonfiguration vor dem Hochladen &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Config</source>
        <translation>&amp;Konfiguration</translation>
    </message>
    <message>
        <source>&amp;Update Config</source>
        <translation>Konfiguration &amp;aktualisieren</translation>
    </message>
    <message>
        <source>No products configured</source>
        <translation>Keine Produkte eingerichtet</translation>
    </message>
    <message>
        <source>Select from &amp;Disk...</source>
        <translation>Von &amp;Datenträger wählen...</translation>
    </message>
    <message>
        <source>&amp;Save Machine Config…</source>
        <translation>Maschinenkonfiguration &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Compare With Machine…</source>
        <translation>Mit Maschine &amp;vergleichen…</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>&amp;Datei wählen…</translation>
    </message>
    <message>
        <source>&amp;Restore Machine Config…</source>
        <translation>Maschinenkonfiguration &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>Re&amp;pair Machine…</source>
        <translation>Maschine &amp;reparieren…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Connection Check…</source>
        <translation>&amp;Verbindungsprüfung…</translation>
    </message>
    <message>
        <source>&amp;Simulated Plotter</source>
        <translation>&amp;Simulierter Plotter</translation>
    </message>
    <message>
        <source>Starts: %1</source>
        <translation>Startet: %1</translation>
    </message>
    <message>
        <source>Select a firmware binary (.bin)</source>
        <translation>Firmware-Datei auswählen (.bin)</translation>
    </message>
    <message>
        <source>Select a configuration file (.yaml)</source>
        <translation>Konfigurationsdatei auswählen (.yaml)</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>Save Machine Config</source>
        <translation>Maschinenkonfiguration speichern</translation>
    </message>
    <message>
        <source>YAML files (*.yaml *.yml)</source>
        <translation>YAML-Dateien (*.yaml *.yml)</translation>
    </message>
    <message>
        <source>Choose a %1 file.</source>
        <translation>Wählen Sie eine %1-Datei.</translation>
    </message>
    <message>
        <source>Choose a %1 or %2 file.</source>
        <translation>Wählen Sie eine %1- oder %2-Datei.</translation>
    </message>
    <message>
        <source>Update Firmware</source>
        <translation>Firmware aktualisieren</translation>
    </message>
    <message>
        <source>Copy log to clipboard</source>
        <translation>Protokoll in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>Vorherige Konfiguration wiederherstellen</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparieren…</translation>
    </message>
    <message>
        <source>Erase All Flash also erases the machine&apos;s settings (config.yaml). Save them now and put them back after the update?</source>
        <translation>„Gesamten Flash löschen“ löscht auch die Einstellungen der Maschine (config.yaml). Sollen sie jetzt gespeichert und nach der Aktualisierung zurückgespielt werden?</translation>
    </message>
    <message>
        <source>Erase all flash anyway? The settings will be lost.</source>
        <translation>Trotzdem den gesamten Flash löschen? Die Einstellungen gehen verloren.</translation>
    </message>
    <message>
        <source>Try reading them again?</source>
        <translation>Erneut versuchen, sie zu lesen?</translation>
    </message>
    <message>
        <source>&amp;Save and Restore</source>
        <translation>&amp;Speichern und zurückspielen</translation>
    </message>
    <message>
        <source>&amp;Erase Without Saving</source>
        <translation>&amp;Ohne Speichern löschen</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>An update is running. Quitting now can leave the machine unable to start. Quit anyway?</source>
        <translation>Eine Aktualisierung läuft. Wenn Sie jetzt beenden, startet die Maschine womöglich nicht mehr. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>&amp;Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>&amp;Quit Anyway</source>
        <translation>Trotzdem &amp;beenden</translation>
    </message>
    <message>
        <source>Restore Machine Config</source>
        <translation>Maschinenkonfiguration wiederherstellen</translation>
    </message>
    <message>
        <source>Co&amp;mpare With Machine</source>
        <translation>Mit Maschine &amp;vergleichen</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>Repair Machine</source>
        <translation>Maschine reparieren</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Put back:</source>
        <translation>Zurückspielen:</translation>
    </message>
    <message>
        <source>Newest backup of this machine (%1)</source>
        <translation>Neueste Sicherung dieser Maschine (%1)</translation>
    </message>
    <message>
        <source>Current settings of this machine, saved first</source>
        <translation>Aktuelle Einstellungen dieser Maschine, vorher gespeichert</translation>
    </message>
    <message>
        <source>Choose what goes back…</source>
        <translation>Wählen Sie, was zurückgespielt wird…</translation>
    </message>
    <message>
        <source>Backup of %1 (%2)</source>
        <translation>Sicherung vom %1 (%2)</translation>
    </message>
    <message>
        <source>Stock configuration: %1</source>
        <translation>Standardkonfiguration: %1</translation>
    </message>
    <message>
        <source>No configuration</source>
        <translation>Keine Konfiguration</translation>
    </message>
    <message>
        <source>Asking the machine&apos;s firmware whether it answers…</source>
        <translation>Es wird geprüft, ob die Firmware der Maschine antwortet…</translation>
    </message>
    <message>
        <source>Compare With Machine — %1</source>
        <translation>Mit Maschine vergleichen – %1</translation>
    </message>
    <message>
        <source>&amp;Upload This Configuration</source>
        <translation>Diese Konfiguration &amp;hochladen</translation>
    </message>
    <message>
        <source>By Key</source>
        <translation>Nach Schlüssel</translation>
    </message>
    <message>
        <source>By Line</source>
        <translation>Zeilenweise</translation>
    </message>
    <message>
        <source>No key differs.</source>
        <translation>Kein Schlüssel weicht ab.</translation>
    </message>
    <message>
        <source>The files are the same line by line.</source>
        <translation>Die Dateien sind Zeile für Zeile gleich.</translation>
    </message>
    <message>
        <source>The two configurations could not be compared by key; &quot;By Line&quot; shows how their texts differ.</source>
        <translation>Die beiden Konfigurationen ließen sich nicht nach Schlüsseln vergleichen; „Zeilenweise“ zeigt, wie sich ihre Texte unterscheiden.</translation>
    </message>
    <message>
        <source>The machine&apos;s config matches %1 by key: an upload would change no setting.</source>
        <translation>Die Konfiguration der Maschine stimmt Schlüssel für Schlüssel mit %1 überein: Ein Hochladen würde keine Einstellung ändern.</translation>
    </message>
    <message>
        <source>1 setting differs between the machine&apos;s config and %1. Each line shows the machine&apos;s value → the new one; + marks a key only in %1, - a key only on the machine.</source>
        <translation>1 Einstellung unterscheidet sich zwischen der Konfiguration der Maschine und %1. Jede Zeile zeigt den Wert der Maschine → den neuen; + markiert einen Schlüssel, der nur in %1 steht, - einen, der nur auf der Maschine steht.</translation>
    </message>
    <message>
        <source>%1 settings differ between the machine&apos;s config and %2. Each line shows the machine&apos;s value → the new one; + marks a key only in %2, - a key only on the machine.</source>
        <translation>%1 Einstellungen unterscheiden sich zwischen der Konfiguration der Maschine und %2. Jede Zeile zeigt den Wert der Maschine → den neuen; + markiert einen Schlüssel, der nur in %2 steht, - einen, der nur auf der Maschine steht.</translation>
    </message>
    <message>
        <source>Firmware v%1 (build %2)</source>
        <translation>Firmware v%1 (Build %2)</translation>
    </message>
    <message>
        <source>Program version %1</source>
        <translation>Programmversion %1</translation>
    </message>
    <message>
        <source>Supported products:</source>
        <translation>Unterstützte Produkte:</translation>
    </message>
    <message>
        <source>Licenses:</source>
        <translation>Lizenzen:</translation>
    </message>
    <message>
        <source>Firmware: GPL v3 (based on FluidNC)</source>
        <translation>Firmware: GPL v3 (basiert auf FluidNC)</translation>
    </message>
    <message>
        <source>Flash stub: Apache License 2.0</source>
        <translation>Flash-Stub: Apache License 2.0</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quellcode:</translation>
    </message>
    <message>
        <source>© 2026 Corvane. All rights reserved.</source>
        <translation>© 2026 Corvane. Alle Rechte vorbehalten.</translation>
    </message>
</context>
</TS>
