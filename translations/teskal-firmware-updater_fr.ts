<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AccessibilityTexts</name>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Copier le journal</translation>
    </message>
    <message>
        <source>Writing firmware</source>
        <translation>Écriture du firmware</translation>
    </message>
    <message>
        <source>Uploading configuration</source>
        <translation>Envoi de la configuration</translation>
    </message>
    <message>
        <source>Reading the machine&apos;s configuration</source>
        <translation>Lecture de la configuration de la machine</translation>
    </message>
    <message>
        <source>Checking that the machine starts</source>
        <translation>Vérification du démarrage de la machine</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>Machine config saved to %1 (%2 bytes)</source>
        <translation>Configuration de la machine enregistrée dans %1 (%2 octets)</translation>
    </message>
    <message>
        <source>Could not save the machine config to %1: %2</source>
        <translation>Impossible d&apos;enregistrer la configuration de la machine dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not read config.yaml from the machine: %1</source>
        <translation>Impossible de lire config.yaml sur la machine&#xa0;: %1</translation>
    </message>
    <message>
        <source>Failed to open port</source>
        <translation>Impossible d&apos;ouvrir le port</translation>
    </message>
    <message>
        <source>XModem download: invalid arguments</source>
        <translation>Téléchargement XModem&#xa0;: arguments non valides</translation>
    </message>
    <message>
        <source>XModem download: invalid file name</source>
        <translation>Téléchargement XModem&#xa0;: nom de fichier non valide</translation>
    </message>
    <message>
        <source>XModem download: could not send the command</source>
        <translation>Téléchargement XModem&#xa0;: impossible d&apos;envoyer la commande</translation>
    </message>
    <message>
        <source>XModem download: no block received</source>
        <translation>Téléchargement XModem&#xa0;: aucun bloc reçu</translation>
    </message>
    <message>
        <source>XModem download: cancelled by the device</source>
        <translation>Téléchargement XModem&#xa0;: annulé par l&apos;appareil</translation>
    </message>
    <message>
        <source>XModem download: file larger than 16 MiB</source>
        <translation>Téléchargement XModem&#xa0;: fichier de plus de 16 Mio</translation>
    </message>
    <message>
        <source>XModem download: block %1 failed 25 times</source>
        <translation>Téléchargement XModem&#xa0;: le bloc %1 a échoué 25 fois</translation>
    </message>
    <message>
        <source>XModem download: could not answer the device</source>
        <translation>Téléchargement XModem&#xa0;: impossible de répondre à l&apos;appareil</translation>
    </message>
    <message>
        <source>XModem download: out of memory</source>
        <translation>Téléchargement XModem&#xa0;: mémoire insuffisante</translation>
    </message>
    <message>
        <source>XModem download: failed (%1)</source>
        <translation>Téléchargement XModem&#xa0;: échec (%1)</translation>
    </message>
    <message>
        <source>Could not back up the machine config; the upload did not start: %1</source>
        <translation>Impossible de sauvegarder la configuration de la machine&#xa0;; l&apos;envoi n&apos;a pas commencé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Machine config saved</source>
        <translation>Configuration de la machine enregistrée</translation>
    </message>
    <message>
        <source>Machine config compared</source>
        <translation>Configuration de la machine comparée</translation>
    </message>
    <message>
        <source>Machine config matches %1 by key</source>
        <translation>La configuration de la machine correspond à %1, clé par clé</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in 1 key</source>
        <translation>La configuration de la machine diffère de %1 sur 1 clé</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in %2 keys</source>
        <translation>La configuration de la machine diffère de %1 sur %2 clés</translation>
    </message>
    <message>
        <source>Equal by key</source>
        <translation>Identique clé par clé</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>Différente</translation>
    </message>
    <message>
        <source>Could not prepare the backups folder %1 as a folder only you can read</source>
        <translation>Impossible de préparer le dossier de sauvegardes %1 pour que vous seul puissiez le lire</translation>
    </message>
    <message>
        <source>Could not write the backup %1: %2</source>
        <translation>Impossible d&apos;écrire la sauvegarde %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No backup was kept: %1</source>
        <translation>Aucune sauvegarde n&apos;a été conservée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Skipped the backup record %1: %2</source>
        <translation>Fiche de sauvegarde %1 ignorée&#xa0;: %2</translation>
    </message>
    <message>
        <source>not a backup record</source>
        <translation>ce n&apos;est pas une fiche de sauvegarde</translation>
    </message>
    <message>
        <source>its copy %1 is missing</source>
        <translation>sa copie %1 est introuvable</translation>
    </message>
    <message>
        <source>its copy %1 has changed</source>
        <translation>sa copie %1 a été modifiée</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistrée</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparée</translation>
    </message>
    <message>
        <source>Before upload</source>
        <translation>Avant un envoi</translation>
    </message>
    <message>
        <source>Before erase</source>
        <translation>Avant un effacement</translation>
    </message>
    <message>
        <source>%1  %2  %3  %4 bytes  %5  %6</source>
        <translation>%1  %2  %3  %4 octets  %5  %6</translation>
    </message>
    <message>
        <source>No backups in %1</source>
        <translation>Aucune sauvegarde dans %1</translation>
    </message>
    <message>
        <source>1 backup in %1</source>
        <translation>1 sauvegarde dans %1</translation>
    </message>
    <message>
        <source>%1 backups in %2</source>
        <translation>%1 sauvegardes dans %2</translation>
    </message>
    <message>
        <source>No backup of the machine %1 in %2</source>
        <translation>Aucune sauvegarde de la machine %1 dans %2</translation>
    </message>
    <message>
        <source>No backup %1 in %2</source>
        <translation>Aucune sauvegarde %1 dans %2</translation>
    </message>
    <message>
        <source>Every configuration read from a machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Chaque configuration lue sur une machine est conservée dans %1. Celles de la machine connectée sont en haut, les plus récentes d&apos;abord.</translation>
    </message>
    <message>
        <source>No configuration has been kept yet. Every configuration read from a machine (Save Machine Config, Compare With Machine, the backup before an upload, the save before Erase All Flash) is kept in %1.</source>
        <translation>Aucune configuration n&apos;a encore été conservée. Chaque configuration lue sur une machine (Enregistrer la configuration de la machine, Comparer avec la machine, la sauvegarde avant un envoi, l&apos;enregistrement avant «&#xa0;Effacer toute la mémoire flash&#xa0;») est conservée dans %1.</translation>
    </message>
    <message>
        <source>%1 (this machine)</source>
        <translation>%1 (cette machine)</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>Saving the machine&apos;s settings before Erase All Flash…</source>
        <translation>Enregistrement des réglages de la machine avant «&#xa0;Effacer toute la mémoire flash&#xa0;»…</translation>
    </message>
    <message>
        <source>The machine&apos;s firmware does not answer, so its settings cannot be saved.</source>
        <translation>Le firmware de la machine ne répond pas&#xa0;: ses réglages ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>Erasing all flash without saving the settings.</source>
        <translation>Effacement de toute la mémoire flash sans enregistrer les réglages.</translation>
    </message>
    <message>
        <source>Nothing was erased: %1</source>
        <translation>Rien n&apos;a été effacé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with Config &gt; Restore Machine Config….</source>
        <translation>Les réglages lus avant l&apos;effacement n&apos;ont pas été remis&#xa0;; ils sont conservés dans %1. Une fois la machine en marche, restaurez-les avec Configuration &gt; Restaurer la configuration de la machine….</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with: teskal-flash restore-config --port %2 %3</source>
        <translation>Les réglages lus avant l&apos;effacement n&apos;ont pas été remis&#xa0;; ils sont conservés dans %1. Une fois la machine en marche, restaurez-les avec&#xa0;: teskal-flash restore-config --port %2 %3</translation>
    </message>
    <message>
        <source>To put back the configuration the machine had before: teskal-flash restore-config --port %1 %2</source>
        <translation>Pour remettre la configuration que la machine avait avant&#xa0;: teskal-flash restore-config --port %1 %2</translation>
    </message>
    <message>
        <source>Settings restored from the backup of %1.</source>
        <translation>Réglages restaurés à partir de la sauvegarde du %1.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running, with your settings restored from the backup of %2.</source>
        <translation>Firmware %1 installé et en marche, avec vos réglages restaurés à partir de la sauvegarde du %2.</translation>
    </message>
    <message>
        <source>Firmware installed and running, with your settings restored from the backup of %1.</source>
        <translation>Firmware installé et en marche, avec vos réglages restaurés à partir de la sauvegarde du %1.</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>le firmware %1</translation>
    </message>
    <message>
        <source>your settings from %1</source>
        <translation>vos réglages du %1</translation>
    </message>
    <message>
        <source>your current settings, saved first</source>
        <translation>vos réglages actuels, enregistrés d&apos;abord</translation>
    </message>
    <message>
        <source>the stock configuration of %1</source>
        <translation>la configuration d&apos;origine de %1</translation>
    </message>
    <message>
        <source>Erase the machine, install %1, then put back %2.</source>
        <translation>Effacer la machine, installer %1, puis remettre %2.</translation>
    </message>
    <message>
        <source>Erase the machine and install %1, without a configuration.</source>
        <translation>Effacer la machine et installer %1, sans configuration.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1 with %2.</source>
        <translation>Machine réparée&#xa0;: elle fonctionne avec %1 et %2.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1, without a configuration.</source>
        <translation>Machine réparée&#xa0;: elle fonctionne avec %1, sans configuration.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>Rien n&apos;a été effacé&#xa0;: il n&apos;existe aucune sauvegarde de la machine %1 à remettre après la réparation. Aucune sauvegarde dans %2. Choisissez une autre sauvegarde, la configuration d&apos;origine d&apos;un produit, ou aucune, dans la fenêtre «&#xa0;Réparer la machine&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>Rien n&apos;a été effacé&#xa0;: il n&apos;existe aucune sauvegarde de la machine %1 à remettre après la réparation. Aucune sauvegarde dans %2. Choisissez ce qui sera remis avec --backup FILE, --product NAME ou --no-config.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>Rien n&apos;a été effacé&#xa0;: il n&apos;existe aucune sauvegarde de la machine %1 à remettre après la réparation. Sauvegardes dans %2&#xa0;: %3. Choisissez une autre sauvegarde, la configuration d&apos;origine d&apos;un produit, ou aucune, dans la fenêtre «&#xa0;Réparer la machine&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>Rien n&apos;a été effacé&#xa0;: il n&apos;existe aucune sauvegarde de la machine %1 à remettre après la réparation. Sauvegardes dans %2&#xa0;: %3. Choisissez ce qui sera remis avec --backup FILE, --product NAME ou --no-config.</translation>
    </message>
    <message>
        <source>This machine has no backup of its settings. Choose what goes back after the erase.</source>
        <translation>Cette machine n&apos;a aucune sauvegarde de ses réglages. Choisissez ce qui sera remis après l&apos;effacement.</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Sauvegarde complète</translation>
    </message>
    <message>
        <source>Before update</source>
        <translation>Avant une mise à jour</translation>
    </message>
    <message>
        <source>Before repair</source>
        <translation>Avant une réparation</translation>
    </message>
</context>
<context>
    <name>CatalogueTexts</name>
    <message>
        <source>&quot;%1&quot; is not a firmware catalogue: give an http:// or https:// address, a catalogue.json file or a folder that holds one.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un catalogue de firmwares&#xa0;: indiquez une adresse http:// ou https://, un fichier catalogue.json ou un dossier qui en contient un.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is missing, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>La clé de catalogue %1 est introuvable&#xa0;: aucun catalogue de firmwares ne peut donc être vérifié. Réinstallez le programme de mise à jour, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>La clé de catalogue %1 n&apos;est pas une clé publique Ed25519&#xa0;: aucun catalogue de firmwares ne peut donc être vérifié. Réinstallez le programme de mise à jour, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is the development key, which only the simulated plotter trusts. Reinstall the updater, or use the bundled firmware.</source>
        <translation>La clé de catalogue %1 est la clé de développement, à laquelle seul le traceur simulé fait confiance. Réinstallez le programme de mise à jour, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The firmware catalogue could not be read from %1 (%2). Check the address and the network connection and try again, or use the bundled firmware.</source>
        <translation>Impossible de lire le catalogue de firmwares depuis %1 (%2). Vérifiez l&apos;adresse et la connexion réseau, puis réessayez, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 did not arrive within %2 s. Check the network connection and try again, or use the bundled firmware.</source>
        <translation>Le catalogue de firmwares situé à %1 n&apos;est pas arrivé dans un délai de %2 s. Vérifiez la connexion réseau, puis réessayez, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>%1 is larger than a firmware catalogue can be (%2 bytes), so it was not read. Check the catalogue&apos;s address.</source>
        <translation>%1 est plus grand qu&apos;un catalogue de firmwares ne peut l&apos;être (%2 octets)&#xa0;: il n&apos;a donc pas été lu. Vérifiez l&apos;adresse du catalogue.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 does not carry a valid signature of this updater&apos;s publisher, so it was not used. Ask its publisher for a signed catalogue, or use the bundled firmware.</source>
        <translation>Le catalogue de firmwares situé à %1 ne porte pas de signature valide de l&apos;éditeur de ce programme&#xa0;: il n&apos;a donc pas été utilisé. Demandez un catalogue signé à son éditeur, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 cannot be used: %2. Ask its publisher to correct it, or use the bundled firmware.</source>
        <translation>Le catalogue de firmwares situé à %1 ne peut pas être utilisé&#xa0;: %2. Demandez à son éditeur de le corriger, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 was published %2, before the one already seen (%3), so it was not used: an old catalogue could bring back a withdrawn version. Use the current catalogue.</source>
        <translation>Le catalogue de firmwares situé à %1 a été publié le %2, avant celui déjà vu (%3)&#xa0;: il n&apos;a donc pas été utilisé, car un ancien catalogue pourrait faire revenir une version retirée. Utilisez le catalogue actuel.</translation>
    </message>
    <message>
        <source>Offline: the firmware catalogue published %1, as last seen, is shown. Connect to the network to see newer versions.</source>
        <translation>Hors ligne&#xa0;: voici le dernier catalogue de firmwares reçu, publié le %1. Connectez-vous au réseau pour voir les versions plus récentes.</translation>
    </message>
    <message>
        <source>it is not JSON (%1)</source>
        <translation>ce n&apos;est pas du JSON (%1)</translation>
    </message>
    <message>
        <source>schema %1 is not supported</source>
        <translation>le schéma %1 n&apos;est pas pris en charge</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 est absent</translation>
    </message>
    <message>
        <source>%1 is not a field of a catalogue</source>
        <translation>%1 n&apos;est pas un champ de catalogue</translation>
    </message>
    <message>
        <source>%1 is not valid</source>
        <translation>%1 n&apos;est pas valide</translation>
    </message>
    <message>
        <source>firmware %1 is listed twice</source>
        <translation>le firmware %1 figure deux fois</translation>
    </message>
    <message>
        <source>Firmware %1 is not in the firmware catalogue. Choose one of the versions it lists.</source>
        <translation>Le firmware %1 ne figure pas dans le catalogue de firmwares. Choisissez l&apos;une des versions qu&apos;il propose.</translation>
    </message>
    <message>
        <source>Firmware %1 was withdrawn by its publisher and is not installed. Choose another version.</source>
        <translation>Le firmware %1 a été retiré par son éditeur et n&apos;est pas installé. Choisissez une autre version.</translation>
    </message>
    <message>
        <source>The image of firmware %1 could not be read from %2 (%3). Check the network connection and try again.</source>
        <translation>Impossible de lire l&apos;image du firmware %1 depuis %2 (%3). Vérifiez la connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The download of firmware %1 stopped: nothing arrived for %2 s. Check the network connection and try again.</source>
        <translation>Le téléchargement du firmware %1 s&apos;est arrêté&#xa0;: rien n&apos;est arrivé pendant %2 s. Vérifiez la connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The image of firmware %1 is larger than the %2 bytes the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>L&apos;image du firmware %1 dépasse les %2 octets annoncés par le catalogue&#xa0;: elle n&apos;a donc pas été utilisée. Choisissez une autre version, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The image of firmware %1 ended after %2 of its %3 bytes. Check the network connection and try again.</source>
        <translation>L&apos;image du firmware %1 s&apos;est interrompue après %2 de ses %3 octets. Vérifiez la connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>The image of firmware %1 does not match the SHA-256 the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>L&apos;image du firmware %1 ne correspond pas à l&apos;empreinte SHA-256 annoncée par le catalogue&#xa0;: elle n&apos;a donc pas été utilisée. Choisissez une autre version, ou réessayez plus tard.</translation>
    </message>
</context>
<context>
    <name>FileTexts</name>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 ne peut pas être utilisé&#xa0;: %2</translation>
    </message>
    <message>
        <source>it could not be read (%1)</source>
        <translation>il n&apos;a pas pu être lu (%1)</translation>
    </message>
    <message>
        <source>Firmware image refused: %1</source>
        <translation>Image de firmware refusée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bundled %1.bin refused: a development image, not firmware</source>
        <translation>%1.bin fourni refusé&#xa0;: une image de développement, pas un firmware</translation>
    </message>
    <message>
        <source>Firmware image: version %1, project %2, built %3</source>
        <translation>Image de firmware&#xa0;: version %1, projet %2, compilée le %3</translation>
    </message>
    <message>
        <source>Could not read file: %1</source>
        <translation>Impossible de lire le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is not a valid machine configuration: %2</source>
        <translation>%1 n&apos;est pas une configuration de machine valide&#xa0;: %2</translation>
    </message>
    <message>
        <source>The development set&apos;s configurations are only for simulated plotters</source>
        <translation>Les configurations du jeu de développement sont réservées aux traceurs simulés</translation>
    </message>
    <message>
        <source>  size: %1 bytes</source>
        <translation>  taille&#xa0;: %1 octets</translation>
    </message>
    <message>
        <source>  chip: %1 (chip id %2)</source>
        <translation>  puce&#xa0;: %1 (identifiant de puce %2)</translation>
    </message>
    <message>
        <source>  version: %1</source>
        <translation>  version&#xa0;: %1</translation>
    </message>
    <message>
        <source>  project: %1</source>
        <translation>  projet&#xa0;: %1</translation>
    </message>
    <message>
        <source>  built: %1</source>
        <translation>  compilée le&#xa0;: %1</translation>
    </message>
    <message>
        <source>  partition: fits (the application partition holds %1 bytes)</source>
        <translation>  partition&#xa0;: tient (la partition d&apos;application contient %1 octets)</translation>
    </message>
    <message>
        <source>  partition: too large (the application partition holds %1 bytes)</source>
        <translation>  partition&#xa0;: trop grande (la partition d&apos;application contient %1 octets)</translation>
    </message>
    <message>
        <source>  partition: unknown (no partition table in the resources)</source>
        <translation>  partition&#xa0;: inconnue (aucune table de partitions dans les ressources)</translation>
    </message>
    <message>
        <source>  meta: none</source>
        <translation>  meta&#xa0;: aucune</translation>
    </message>
    <message>
        <source>  result: passes</source>
        <translation>  résultat&#xa0;: accepté</translation>
    </message>
    <message>
        <source>  result: refused</source>
        <translation>  résultat&#xa0;: refusé</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)</source>
        <translation>%1 n&apos;est ni une image de firmware (.bin) ni une configuration de machine (.yaml, .yml)</translation>
    </message>
    <message>
        <source>All files pass</source>
        <translation>Tous les fichiers sont acceptés</translation>
    </message>
    <message>
        <source>%1 of %2 files refused</source>
        <translation>%1 fichiers sur %2 refusés</translation>
    </message>
    <message>
        <source>Could not save log: %1</source>
        <translation>Impossible d&apos;enregistrer le journal&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FirmwareJobTexts</name>
    <message>
        <source>Device connected</source>
        <translation>Appareil connecté</translation>
    </message>
    <message>
        <source>Waiting for device…</source>
        <translation>En attente de l&apos;appareil…</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Aucun appareil connecté</translation>
    </message>
    <message>
        <source>Another operation is already running</source>
        <translation>Une autre opération est déjà en cours</translation>
    </message>
    <message>
        <source>Updating firmware v%1…</source>
        <translation>Mise à jour du firmware v%1…</translation>
    </message>
    <message>
        <source>Updating firmware (custom: %1)…</source>
        <translation>Mise à jour du firmware (personnalisé&#xa0;: %1)…</translation>
    </message>
    <message>
        <source>Failed to load custom firmware: %1</source>
        <translation>Impossible de charger le firmware personnalisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bundled firmware not found</source>
        <translation>Firmware fourni introuvable</translation>
    </message>
    <message>
        <source>Checking device status…</source>
        <translation>Vérification de l&apos;état de l&apos;appareil…</translation>
    </message>
    <message>
        <source>Device not responding — writing boot partitions + firmware.</source>
        <translation>L&apos;appareil ne répond pas — écriture des partitions de démarrage et du firmware.</translation>
    </message>
    <message>
        <source>Device running firmware %1 — updating firmware only.</source>
        <translation>L&apos;appareil fonctionne avec le firmware %1 — mise à jour du firmware seul.</translation>
    </message>
    <message>
        <source>Flash stub not found in bundle</source>
        <translation>Programme d&apos;écriture flash (stub) introuvable dans le paquet</translation>
    </message>
    <message>
        <source>Missing bootloader resources for full flash</source>
        <translation>Ressources du chargeur de démarrage manquantes pour une écriture complète</translation>
    </message>
    <message>
        <source>Firmware update complete.</source>
        <translation>Mise à jour du firmware terminée.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Use Config &gt; Update Config to upload the configuration for your machine.</source>
        <translation>REMARQUE&#xa0;: la mémoire flash a été effacée. Utilisez Configuration &gt; Mettre à jour la configuration pour envoyer la configuration de votre machine.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for your machine.</source>
        <translation>REMARQUE&#xa0;: la mémoire flash a été effacée. Lancez teskal-flash upload-config pour envoyer la configuration de votre machine.</translation>
    </message>
    <message>
        <source>Once the machine runs, %1 will be put back.</source>
        <translation>Une fois la machine en marche, ceci sera remis&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>Version du firmware %1</translation>
    </message>
    <message>
        <source>Using bundled firmware</source>
        <translation>Utilisation du firmware fourni</translation>
    </message>
    <message>
        <source>Custom firmware: %1</source>
        <translation>Firmware personnalisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Custom firmware: unknown</source>
        <translation>Firmware personnalisé&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>Checking that the machine starts…</source>
        <translation>Vérification du démarrage de la machine…</translation>
    </message>
    <message>
        <source>Config file not found in bundle: %1</source>
        <translation>Fichier de configuration introuvable dans le paquet&#xa0;: %1</translation>
    </message>
    <message>
        <source>Preparing %1 config%2</source>
        <translation>Préparation de la configuration %1%2</translation>
    </message>
    <message>
        <source>Preparing %1%2</source>
        <translation>Préparation de %1%2</translation>
    </message>
    <message>
        <source>Uploading config file...</source>
        <translation>Envoi du fichier de configuration...</translation>
    </message>
    <message>
        <source>Upload successful; restarting machine.</source>
        <translation>Envoi réussi&#xa0;; redémarrage de la machine.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again to stop.</source>
        <translation>Écriture du firmware&#xa0;: arrêter maintenant peut empêcher la machine de démarrer. Appuyez de nouveau sur Ctrl+C pour arrêter.</translation>
    </message>
    <message>
        <source>Partition table: present</source>
        <translation>Table de partitions&#xa0;: présente</translation>
    </message>
    <message>
        <source>Partition table: absent</source>
        <translation>Table de partitions&#xa0;: absente</translation>
    </message>
    <message>
        <source>1 plotter connected</source>
        <translation>1 traceur connecté</translation>
    </message>
    <message>
        <source>%1 plotters connected</source>
        <translation>%1 traceurs connectés</translation>
    </message>
    <message>
        <source>Could not start the simulated plotter: %1</source>
        <translation>Impossible de démarrer le traceur simulé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>OutcomeTexts</name>
    <message>
        <source>No device found. Is it connected?</source>
        <translation>Aucun appareil trouvé. Est-il branché&#xa0;?</translation>
    </message>
    <message>
        <source>No device found. Is it connected? Run teskal-flash doctor to see why.</source>
        <translation>Aucun appareil trouvé. Est-il branché&#xa0;? Lancez teskal-flash doctor pour savoir pourquoi.</translation>
    </message>
    <message>
        <source>Could not open serial port. Is another app using it?</source>
        <translation>Impossible d&apos;ouvrir le port série. Une autre application l&apos;utilise-t-elle&#xa0;?</translation>
    </message>
    <message>
        <source>Failed to sync with device. Try unplugging and reconnecting.</source>
        <translation>Impossible de communiquer avec l&apos;appareil. Débranchez-le puis rebranchez-le.</translation>
    </message>
    <message>
        <source>Unexpected chip detected. Verify hardware.</source>
        <translation>Puce inattendue détectée. Vérifiez le matériel.</translation>
    </message>
    <message>
        <source>Failed to upload communication stub.</source>
        <translation>Impossible d&apos;envoyer le programme de communication (stub).</translation>
    </message>
    <message>
        <source>Flash write failed. Try again.</source>
        <translation>L&apos;écriture en mémoire flash a échoué. Réessayez.</translation>
    </message>
    <message>
        <source>Verification failed. Flash may be corrupted — try again.</source>
        <translation>La vérification a échoué. La mémoire flash est peut-être corrompue — réessayez.</translation>
    </message>
    <message>
        <source>Config upload failed.</source>
        <translation>L&apos;envoi de la configuration a échoué.</translation>
    </message>
    <message>
        <source>Operation timed out. Try unplugging and reconnecting.</source>
        <translation>L&apos;opération a expiré. Débranchez l&apos;appareil puis rebranchez-le.</translation>
    </message>
    <message>
        <source>Device disconnected during operation.</source>
        <translation>L&apos;appareil a été déconnecté pendant l&apos;opération.</translation>
    </message>
    <message>
        <source>Unknown error (code %1)</source>
        <translation>Erreur inconnue (code %1)</translation>
    </message>
    <message>
        <source>Close any other program that uses the port, unplug and reconnect the machine, and try again.</source>
        <translation>Fermez tout autre programme qui utilise le port, débranchez puis rebranchez la machine, et réessayez.</translation>
    </message>
    <message>
        <source>Unplug the machine, plug it in again, and try again.</source>
        <translation>Débranchez la machine, rebranchez-la, puis réessayez.</translation>
    </message>
    <message>
        <source>This controller cannot take this firmware; contact support before trying again.</source>
        <translation>Ce contrôleur ne peut pas recevoir ce firmware&#xa0;; contactez l&apos;assistance avant de réessayer.</translation>
    </message>
    <message>
        <source>Try again; if it fails again, use another USB cable or port.</source>
        <translation>Réessayez&#xa0;; en cas de nouvel échec, utilisez un autre câble ou port USB.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running.</source>
        <translation>Firmware %1 installé et en marche.</translation>
    </message>
    <message>
        <source>Firmware installed and running.</source>
        <translation>Firmware installé et en marche.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine reports version %1, not %2.</source>
        <translation>Firmware écrit et vérifié, mais la machine indique la version %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine did not answer to confirm that it runs.</source>
        <translation>Firmware écrit et vérifié, mais la machine n&apos;a pas répondu pour confirmer qu&apos;elle fonctionne.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it restarts in a loop.</source>
        <translation>Firmware écrit, mais la machine ne démarre pas&#xa0;: elle redémarre en boucle.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it crashed at start-up.</source>
        <translation>Firmware écrit, mais la machine ne démarre pas&#xa0;: elle a planté au démarrage.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it finds no firmware to start.</source>
        <translation>Firmware écrit, mais la machine ne démarre pas&#xa0;: elle ne trouve aucun firmware à lancer.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: its power supply is too weak.</source>
        <translation>Firmware écrit, mais la machine ne démarre pas&#xa0;: son alimentation est trop faible.</translation>
    </message>
    <message>
        <source>Configuration uploaded; the machine restarted with it.</source>
        <translation>Configuration envoyée&#xa0;; la machine a redémarré avec elle.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine did not answer after its restart.</source>
        <translation>Configuration envoyée, mais la machine n&apos;a pas répondu après son redémarrage.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it restarts in a loop.</source>
        <translation>Configuration envoyée, mais la machine ne démarre pas&#xa0;: elle redémarre en boucle.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it crashed at start-up.</source>
        <translation>Configuration envoyée, mais la machine ne démarre pas&#xa0;: elle a planté au démarrage.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it finds no firmware to start.</source>
        <translation>Configuration envoyée, mais la machine ne démarre pas&#xa0;: elle ne trouve aucun firmware à lancer.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: its power supply is too weak.</source>
        <translation>Configuration envoyée, mais la machine ne démarre pas&#xa0;: son alimentation est trop faible.</translation>
    </message>
    <message>
        <source>The machine rejected its configuration:</source>
        <translation>La machine a refusé sa configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Plug in the machine&apos;s own power supply (USB power is not enough), then try again.</source>
        <translation>Branchez l&apos;alimentation propre à la machine (l&apos;alimentation USB ne suffit pas), puis réessayez.</translation>
    </message>
    <message>
        <source>Correct the configuration and upload it again, or upload a product&apos;s configuration from Config &gt; Update Config.</source>
        <translation>Corrigez la configuration et envoyez-la de nouveau, ou envoyez la configuration d&apos;un produit depuis Configuration &gt; Mettre à jour la configuration.</translation>
    </message>
    <message>
        <source>Correct the configuration and run teskal-flash upload-config again, or upload a product&apos;s with --product NAME.</source>
        <translation>Corrigez la configuration et relancez teskal-flash upload-config, ou envoyez celle d&apos;un produit avec --product NAME.</translation>
    </message>
    <message>
        <source>Run the update again.</source>
        <translation>Relancez la mise à jour.</translation>
    </message>
    <message>
        <source>Run teskal-flash flash again.</source>
        <translation>Relancez teskal-flash flash.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected; if it still does not answer, run the update again.</source>
        <translation>Vérifiez que la machine est allumée et branchée&#xa0;; si elle ne répond toujours pas, relancez la mise à jour.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected, then run teskal-flash version.</source>
        <translation>Vérifiez que la machine est allumée et branchée, puis lancez teskal-flash version.</translation>
    </message>
    <message>
        <source>Press Repair… to erase the machine, install the firmware again and put back your settings. If it keeps happening, save the log (File &gt; Save Log…) for support.</source>
        <translation>Cliquez sur «&#xa0;Réparer…&#xa0;» pour effacer la machine, réinstaller le firmware et remettre vos réglages. Si cela se reproduit, enregistrez le journal (Fichier &gt; Enregistrer le journal…) pour l&apos;assistance.</translation>
    </message>
    <message>
        <source>Run teskal-flash repair to erase the machine, install the firmware again and put back your settings. If it keeps happening, keep this output for support.</source>
        <translation>Lancez teskal-flash repair pour effacer la machine, réinstaller le firmware et remettre vos réglages. Si cela se reproduit, gardez cette sortie pour l&apos;assistance.</translation>
    </message>
    <message>
        <source>ended without a result</source>
        <translation>terminé sans résultat</translation>
    </message>
    <message>
        <source>ended abnormally after its result</source>
        <translation>terminé anormalement après son résultat</translation>
    </message>
    <message>
        <source>ended abnormally after its result: %1</source>
        <translation>terminé anormalement après son résultat&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PortTexts</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 n&apos;est pas un port série.</translation>
    </message>
    <message>
        <source>Permission denied on %1 (group %2).</source>
        <translation>Permission refusée sur %1 (groupe %2).</translation>
    </message>
    <message>
        <source>Permission denied on %1 (owner %2, mode %3).</source>
        <translation>Permission refusée sur %1 (propriétaire %2, mode %3).</translation>
    </message>
    <message>
        <source>Permission denied on %1.</source>
        <translation>Permission refusée sur %1.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (pid %3).</source>
        <translation>%1 est utilisé par %2 (pid %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>%1 does not answer: its device has gone.</source>
        <translation>%1 ne répond pas&#xa0;: son appareil a disparu.</translation>
    </message>
    <message>
        <source>%1 can be used.</source>
        <translation>%1 peut être utilisé.</translation>
    </message>
    <message>
        <source>Plug the plotter in, or name another port.</source>
        <translation>Branchez le traceur, ou indiquez un autre port.</translation>
    </message>
    <message>
        <source>Name the plotter&apos;s port, for example /dev/ttyACM0.</source>
        <translation>Indiquez le port du traceur, par exemple /dev/ttyACM0.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1).</source>
        <translation>Installez la règle d&apos;autorisation (%1).</translation>
    </message>
    <message>
        <source>You are in the group %1, but this session began before you joined it: log out and in again.</source>
        <translation>Vous faites partie du groupe %1, mais cette session a commencé avant que vous le rejoigniez&#xa0;: déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, then log out and in again.</source>
        <translation>Installez la règle d&apos;autorisation (%1), ou rejoignez le groupe&#xa0;: sudo usermod -aG %2 $USER, puis déconnectez-vous et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Close that program and try again.</source>
        <translation>Fermez ce programme et réessayez.</translation>
    </message>
    <message>
        <source>Close it and try again.</source>
        <translation>Fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>Unplug the plotter, plug it in again and try again.</source>
        <translation>Débranchez le traceur, rebranchez-le et réessayez.</translation>
    </message>
    <message>
        <source>Connection Check</source>
        <translation>Vérification de la connexion</translation>
    </message>
    <message>
        <source>button below</source>
        <translation>bouton ci-dessous</translation>
    </message>
    <message>
        <source>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</source>
        <translation>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</translation>
    </message>
    <message>
        <source>60-teskal-firmware-updater.rules in /etc/udev/rules.d</source>
        <translation>60-teskal-firmware-updater.rules dans /etc/udev/rules.d</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001).</source>
        <translation>Traceur détecté sur l&apos;USB (303a:1001).</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001, serial %1).</source>
        <translation>Traceur détecté sur l&apos;USB (303a:1001, numéro de série %1).</translation>
    </message>
    <message>
        <source>No plotter seen on USB.</source>
        <translation>Aucun traceur détecté sur l&apos;USB.</translation>
    </message>
    <message>
        <source>Switch it on, try another USB port, and use a cable that carries data: some cables only charge.</source>
        <translation>Allumez-le, essayez un autre port USB et utilisez un câble qui transmet les données&#xa0;: certains câbles ne font que charger.</translation>
    </message>
    <message>
        <source>Serial port %1 made for it by %2.</source>
        <translation>Port série %1 créé pour lui par %2.</translation>
    </message>
    <message>
        <source>No serial port made for it: the kernel&apos;s cdc_acm driver is missing.</source>
        <translation>Aucun port série créé pour lui&#xa0;: le pilote cdc_acm du noyau est absent.</translation>
    </message>
    <message>
        <source>Install your system&apos;s extra kernel modules, or load the driver: sudo modprobe cdc_acm</source>
        <translation>Installez les modules supplémentaires du noyau de votre système, ou chargez le pilote&#xa0;: sudo modprobe cdc_acm</translation>
    </message>
    <message>
        <source>No serial port made for it yet.</source>
        <translation>Aucun port série créé pour lui pour l&apos;instant.</translation>
    </message>
    <message>
        <source>Wait a moment; if it stays so, unplug the plotter and plug it in again.</source>
        <translation>Patientez un instant&#xa0;; si rien ne change, débranchez le traceur et rebranchez-le.</translation>
    </message>
    <message>
        <source>You may open %1.</source>
        <translation>Vous pouvez ouvrir %1.</translation>
    </message>
    <message>
        <source>No other program is using %1.</source>
        <translation>Aucun autre programme n&apos;utilise %1.</translation>
    </message>
    <message>
        <source>Another plotter: %1.</source>
        <translation>Un autre traceur&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Another plotter (serial %1): %2.</source>
        <translation>Un autre traceur (numéro de série %1)&#xa0;: %2.</translation>
    </message>
    <message>
        <source>without a port</source>
        <translation>sans port</translation>
    </message>
    <message>
        <source>Not a plotter: %1 on %2.</source>
        <translation>Pas un traceur&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Ready: the plotter on %1 can be used.</source>
        <translation>Prêt&#xa0;: le traceur sur %1 peut être utilisé.</translation>
    </message>
    <message>
        <source>No plotter is ready to use.</source>
        <translation>Aucun traceur n&apos;est prêt à l&apos;emploi.</translation>
    </message>
    <message>
        <source>The plotter keeps restarting.</source>
        <translation>Le traceur redémarre sans cesse.</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then press Repair.</source>
        <translation>Si la carte contrôleur a un bouton BOOT, maintenez-le enfoncé pendant que vous branchez le traceur, puis cliquez sur «&#xa0;Réparer&#xa0;».</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then run teskal-flash repair.</source>
        <translation>Si la carte contrôleur a un bouton BOOT, maintenez-le enfoncé pendant que vous branchez le traceur, puis lancez teskal-flash repair.</translation>
    </message>
    <message>
        <source>Plotter not found?</source>
        <translation>Traceur introuvable&#xa0;?</translation>
    </message>
    <message>
        <source>Checked again every second. This window closes once the plotter can be used.</source>
        <translation>Vérifié de nouveau chaque seconde. Cette fenêtre se ferme dès que le traceur peut être utilisé.</translation>
    </message>
    <message>
        <source>&amp;Install Permission Rule…</source>
        <translation>&amp;Installer la règle d&apos;autorisation…</translation>
    </message>
    <message>
        <source>pkexec or the rule&apos;s installer is missing. Run by hand: %1</source>
        <translation>pkexec ou l&apos;installateur de la règle est absent. Lancez à la main&#xa0;: %1</translation>
    </message>
    <message>
        <source>The permission rule&apos;s installer could not be started.</source>
        <translation>Impossible de lancer l&apos;installateur de la règle d&apos;autorisation.</translation>
    </message>
</context>
<context>
    <name>ReleaseTexts</name>
    <message>
        <source>No firmware catalogue is configured. Choose one with File &gt; Firmware Catalogue…, or use the bundled firmware.</source>
        <translation>Aucun catalogue de firmwares n&apos;est configuré. Choisissez-en un avec Fichier &gt; Catalogue de firmwares…, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured. Name one with --catalogue URL|FILE|FOLDER, or use the bundled firmware.</source>
        <translation>Aucun catalogue de firmwares n&apos;est configuré. Indiquez-en un avec --catalogue URL|FILE|FOLDER, ou utilisez le firmware fourni.</translation>
    </message>
    <message>
        <source>Fetching firmware %1 from the catalogue at %2…</source>
        <translation>Récupération du firmware %1 depuis le catalogue situé à %2…</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Updating firmware %1 from the catalogue…</source>
        <translation>Mise à jour du firmware %1 depuis le catalogue…</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written.</source>
        <translation>Le firmware %1 est plus ancien que le firmware %2 avec lequel fonctionne cette machine&#xa0;: rien n&apos;a donc été écrit.</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written. Add --allow-older to install it anyway.</source>
        <translation>Le firmware %1 est plus ancien que le firmware %2 avec lequel fonctionne cette machine&#xa0;: rien n&apos;a donc été écrit. Ajoutez --allow-older pour l&apos;installer quand même.</translation>
    </message>
    <message>
        <source>bundled</source>
        <translation>fourni</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>catalogue</translation>
    </message>
    <message>
        <source>stable</source>
        <translation>stable</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>bêta</translation>
    </message>
    <message>
        <source>1 firmware version can be installed.</source>
        <translation>1 version du firmware peut être installée.</translation>
    </message>
    <message>
        <source>%1 firmware versions can be installed.</source>
        <translation>%1 versions du firmware peuvent être installées.</translation>
    </message>
    <message>
        <source>Firmware &amp;Catalogue…</source>
        <translation>&amp;Catalogue de firmwares…</translation>
    </message>
    <message>
        <source>Choose Firmware &amp;Version…</source>
        <translation>Choisir la &amp;version du firmware…</translation>
    </message>
    <message>
        <source>Firmware version %1 from the catalogue</source>
        <translation>Version du firmware %1, issue du catalogue</translation>
    </message>
    <message>
        <source>Firmware %1 is available</source>
        <translation>Le firmware %1 est disponible</translation>
    </message>
    <message>
        <source>Firmware Catalogue</source>
        <translation>Catalogue de firmwares</translation>
    </message>
    <message>
        <source>Where the firmware catalogue is: an http:// or https:// address, a catalogue.json file, or a folder that holds one (for instance on a USB stick).</source>
        <translation>Emplacement du catalogue de firmwares&#xa0;: une adresse http:// ou https://, un fichier catalogue.json, ou un dossier qui en contient un (par exemple sur une clé USB).</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Choisir un &amp;fichier…</translation>
    </message>
    <message>
        <source>Choose F&amp;older…</source>
        <translation>Choisir un &amp;dossier…</translation>
    </message>
    <message>
        <source>Firmware catalogue: %1</source>
        <translation>Catalogue de firmwares&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose Firmware Version</source>
        <translation>Choisir la version du firmware</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Show &amp;beta versions</source>
        <translation>Afficher les versions &amp;bêta</translation>
    </message>
    <message>
        <source>&amp;Use This Version</source>
        <translation>&amp;Utiliser cette version</translation>
    </message>
    <message>
        <source>ran on this machine</source>
        <translation>a fonctionné sur cette machine</translation>
    </message>
    <message>
        <source>Reading the firmware catalogue…</source>
        <translation>Lecture du catalogue de firmwares…</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured: only the bundled firmware is listed. Choose a catalogue with File &gt; Firmware Catalogue….</source>
        <translation>Aucun catalogue de firmwares n&apos;est configuré&#xa0;: seul le firmware fourni est proposé. Choisissez un catalogue avec Fichier &gt; Catalogue de firmwares….</translation>
    </message>
    <message>
        <source>Firmware %1 from the catalogue will be written.</source>
        <translation>Le firmware %1 du catalogue sera écrit.</translation>
    </message>
    <message>
        <source>Install an Older Version?</source>
        <translation>Installer une version plus ancienne&#xa0;?</translation>
    </message>
    <message>
        <source>This machine runs firmware %1. Install the older firmware %2 in its place?</source>
        <translation>Cette machine fonctionne avec le firmware %1. Installer à sa place le firmware plus ancien %2&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Install Older Version</source>
        <translation>&amp;Installer la version plus ancienne</translation>
    </message>
</context>
<context>
    <name>SnapshotTexts</name>
    <message>
        <source>Taking a snapshot of the whole machine…</source>
        <translation>Sauvegarde complète de la machine en cours…</translation>
    </message>
    <message>
        <source>Snapshot of the whole machine saved to %1 (%2 bytes).</source>
        <translation>Sauvegarde complète de la machine enregistrée dans %1 (%2 octets).</translation>
    </message>
    <message>
        <source>the machine&apos;s flash holds nothing worth keeping (no bootloader and no partition table)</source>
        <translation>la mémoire flash de la machine ne contient rien qui vaille la peine d&apos;être conservé (ni chargeur de démarrage ni table de partitions)</translation>
    </message>
    <message>
        <source>No snapshot of the whole machine could be taken: %1</source>
        <translation>Aucune sauvegarde complète de la machine n&apos;a pu être faite&#xa0;: %1</translation>
    </message>
    <message>
        <source>the flasher stub refused to read the flash</source>
        <translation>le programme d&apos;écriture flash (stub) a refusé de lire la mémoire flash</translation>
    </message>
    <message>
        <source>the machine sent nothing for 5 s while its flash was read</source>
        <translation>la machine n&apos;a rien envoyé pendant 5 s lors de la lecture de sa mémoire flash</translation>
    </message>
    <message>
        <source>what the machine sent of its flash arrived damaged</source>
        <translation>les données de mémoire flash envoyées par la machine sont arrivées endommagées</translation>
    </message>
    <message>
        <source>the MD5 the machine computed differs from that of the bytes received</source>
        <translation>l&apos;empreinte MD5 calculée par la machine diffère de celle des octets reçus</translation>
    </message>
    <message>
        <source>the snapshot could not be written on this computer</source>
        <translation>la sauvegarde complète n&apos;a pas pu être écrite sur cet ordinateur</translation>
    </message>
    <message>
        <source>the flash could not be read (%1)</source>
        <translation>la mémoire flash n&apos;a pas pu être lue (%1)</translation>
    </message>
    <message>
        <source>.</source>
        <comment>the full stop that ends a sentence</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>%1 Nothing was written.</source>
        <translation>%1 Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>The machine was left as it was. Check the USB cable and try again.</source>
        <translation>La machine a été laissée telle quelle. Vérifiez le câble USB, puis réessayez.</translation>
    </message>
    <message>
        <source>No snapshot is needed: the machine&apos;s flash holds nothing worth keeping.</source>
        <translation>Aucune sauvegarde complète n&apos;est nécessaire&#xa0;: la mémoire flash de la machine ne contient rien qui vaille la peine d&apos;être conservé.</translation>
    </message>
    <message>
        <source>Whole machine backed up</source>
        <translation>Machine entière sauvegardée</translation>
    </message>
    <message>
        <source>application</source>
        <translation>application</translation>
    </message>
    <message>
        <source>data</source>
        <translation>données</translation>
    </message>
    <message>
        <source>Putting back the snapshot of the whole machine from %1 (%2)…</source>
        <translation>Remise en place de la sauvegarde complète de la machine du %1 (%2)…</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 ne peut pas être utilisé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not read the snapshot %1: %2</source>
        <translation>Impossible de lire la sauvegarde complète %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No snapshot of the machine %1 in %2</source>
        <translation>Aucune sauvegarde complète de la machine %1 dans %2</translation>
    </message>
    <message>
        <source>No snapshot %1 in %2</source>
        <translation>Aucune sauvegarde complète %1 dans %2</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1, not of %2; it carries that machine&apos;s settings and network credentials. Add --other-machine to put it on %2 anyway.</source>
        <translation>Cette sauvegarde complète a été faite sur la machine %1, pas sur %2&#xa0;; elle contient les réglages et les identifiants réseau de cette machine-là. Ajoutez --other-machine pour la mettre quand même sur %2.</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1. It carries that machine&apos;s settings and network credentials. Put it on this machine (%2) anyway?</source>
        <translation>Cette sauvegarde complète a été faite sur la machine %1. Elle contient les réglages et les identifiants réseau de cette machine-là. La mettre quand même sur cette machine (%2)&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Restore Anyway</source>
        <translation>&amp;Restaurer quand même</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs firmware %2.</source>
        <translation>Machine remise dans l&apos;état où elle était le %1&#xa0;: elle fonctionne avec le firmware %2.</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs.</source>
        <translation>Machine remise dans l&apos;état où elle était le %1&#xa0;: elle fonctionne.</translation>
    </message>
    <message>
        <source>Press Undo Update to put the machine back as it was before the update, or Repair… to erase it and install the firmware again.</source>
        <translation>Cliquez sur «&#xa0;Annuler la mise à jour&#xa0;» pour remettre la machine dans l&apos;état où elle était avant la mise à jour, ou sur «&#xa0;Réparer…&#xa0;» pour l&apos;effacer et réinstaller le firmware.</translation>
    </message>
    <message>
        <source>To put the machine back as it was before the update, run: teskal-flash restore-machine %1</source>
        <translation>Pour remettre la machine dans l&apos;état où elle était avant la mise à jour, lancez&#xa0;: teskal-flash restore-machine %1</translation>
    </message>
    <message>
        <source>The machine was put back as it was before the update.</source>
        <translation>La machine a été remise dans l&apos;état où elle était avant la mise à jour.</translation>
    </message>
    <message>
        <source>Putting the machine back as it was before the update…</source>
        <translation>Remise de la machine dans l&apos;état où elle était avant la mise à jour…</translation>
    </message>
    <message>
        <source>The machine could not be put back: %1</source>
        <translation>La machine n&apos;a pas pu être remise dans son état précédent&#xa0;: %1</translation>
    </message>
    <message>
        <source>Back Up &amp;Whole Machine…</source>
        <translation>&amp;Sauvegarder toute la machine…</translation>
    </message>
    <message>
        <source>Restore W&amp;hole Machine…</source>
        <translation>Restaurer &amp;toute la machine…</translation>
    </message>
    <message>
        <source>&amp;Snapshot Before Writing</source>
        <translation>Sauvegarde &amp;complète avant l&apos;écriture</translation>
    </message>
    <message>
        <source>Undo Update</source>
        <translation>Annuler la mise à jour</translation>
    </message>
    <message>
        <source>Take a &amp;snapshot of the whole machine first</source>
        <translation>Faire d&apos;abord une &amp;sauvegarde complète de la machine</translation>
    </message>
    <message>
        <source>Restore Whole Machine</source>
        <translation>Restaurer toute la machine</translation>
    </message>
    <message>
        <source>Ran</source>
        <translation>Fonctionnait</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Every snapshot of a whole machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Chaque sauvegarde complète d&apos;une machine est conservée dans %1. Celles de la machine connectée sont en haut, les plus récentes d&apos;abord.</translation>
    </message>
    <message>
        <source>No snapshot has been taken yet. Config &gt; Back Up Whole Machine… takes one, and so does every firmware write with Options &gt; Snapshot Before Writing; they are kept in %1.</source>
        <translation>Aucune sauvegarde complète n&apos;a encore été faite. Configuration &gt; Sauvegarder toute la machine… en fait une, tout comme chaque écriture du firmware avec Options &gt; Sauvegarde complète avant l&apos;écriture&#xa0;; elles sont conservées dans %1.</translation>
    </message>
</context>
<context>
    <name>WindowTexts</name>
    <message>
        <source>%1 %2, built %3, bundled firmware %4</source>
        <translation>%1 %2, compilé le %3, firmware fourni %4</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater — simulated plotter</source>
        <translation>Teskal Firmware Updater — traceur simulé</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater is already running.</source>
        <translation>Teskal Firmware Updater est déjà ouvert.</translation>
    </message>
    <message>
        <source>&amp;Teskal Firmware Updater</source>
        <translation>&amp;Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>About Teskal Firmware Updater</source>
        <translation>À propos de Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;About Teskal Firmware Updater</source>
        <translation>À &amp;propos de Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open Firmware File…</source>
        <translation>&amp;Ouvrir un fichier de firmware…</translation>
    </message>
    <message>
        <source>&amp;Use Bundled Firmware</source>
        <translation>&amp;Utiliser le firmware fourni</translation>
    </message>
    <message>
        <source>&amp;Save Log…</source>
        <translation>&amp;Enregistrer le journal…</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Detailed Logging</source>
        <translation>&amp;Journal détaillé</translation>
    </message>
    <message>
        <source>&amp;Write Boot Partitions</source>
        <translation>Écrire les partitions de &amp;démarrage</translation>
    </message>
    <message>
        <source>&amp;Erase All Flash</source>
        <translation>&amp;Effacer toute la mémoire flash</translation>
    </message>
    <message>
        <source>&amp;Back Up Machine Config Before Upload</source>
        <translation>&amp;Sauvegarder la configuration de la machine avant l&apos;envoi</translation>
    </message>
    <message>
        <source>&amp;Config</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>&amp;Update Config</source>
        <translation>&amp;Mettre à jour la configuration</translation>
    </message>
    <message>
        <source>No products configured</source>
        <translation>Aucun produit configuré</translation>
    </message>
    <message>
        <source>Select from &amp;Disk...</source>
        <translation>Choisir sur le &amp;disque...</translation>
    </message>
    <message>
        <source>&amp;Save Machine Config…</source>
        <translation>&amp;Enregistrer la configuration de la machine…</translation>
    </message>
    <message>
        <source>&amp;Compare With Machine…</source>
        <translation>&amp;Comparer avec la machine…</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Choisir un &amp;fichier…</translation>
    </message>
    <message>
        <source>&amp;Restore Machine Config…</source>
        <translation>&amp;Restaurer la configuration de la machine…</translation>
    </message>
    <message>
        <source>Re&amp;pair Machine…</source>
        <translation>Ré&amp;parer la machine…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Connection Check…</source>
        <translation>Vérification de la &amp;connexion…</translation>
    </message>
    <message>
        <source>&amp;Simulated Plotter</source>
        <translation>Traceur &amp;simulé</translation>
    </message>
    <message>
        <source>Starts: %1</source>
        <translation>Démarre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Select a firmware binary (.bin)</source>
        <translation>Choisir un fichier de firmware (.bin)</translation>
    </message>
    <message>
        <source>Select a configuration file (.yaml)</source>
        <translation>Choisir un fichier de configuration (.yaml)</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
    <message>
        <source>Save Machine Config</source>
        <translation>Enregistrer la configuration de la machine</translation>
    </message>
    <message>
        <source>YAML files (*.yaml *.yml)</source>
        <translation>Fichiers YAML (*.yaml *.yml)</translation>
    </message>
    <message>
        <source>Choose a %1 file.</source>
        <translation>Choisissez un fichier %1.</translation>
    </message>
    <message>
        <source>Choose a %1 or %2 file.</source>
        <translation>Choisissez un fichier %1 ou %2.</translation>
    </message>
    <message>
        <source>Update Firmware</source>
        <translation>Mettre à jour le firmware</translation>
    </message>
    <message>
        <source>Copy log to clipboard</source>
        <translation>Copier le journal dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>Restaurer la configuration précédente</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Réparer…</translation>
    </message>
    <message>
        <source>Erase All Flash also erases the machine&apos;s settings (config.yaml). Save them now and put them back after the update?</source>
        <translation>«&#xa0;Effacer toute la mémoire flash&#xa0;» efface aussi les réglages de la machine (config.yaml). Les enregistrer maintenant et les remettre après la mise à jour&#xa0;?</translation>
    </message>
    <message>
        <source>Erase all flash anyway? The settings will be lost.</source>
        <translation>Effacer quand même toute la mémoire flash&#xa0;? Les réglages seront perdus.</translation>
    </message>
    <message>
        <source>Try reading them again?</source>
        <translation>Essayer de les relire&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Save and Restore</source>
        <translation>&amp;Enregistrer et remettre</translation>
    </message>
    <message>
        <source>&amp;Erase Without Saving</source>
        <translation>E&amp;ffacer sans enregistrer</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>An update is running. Quitting now can leave the machine unable to start. Quit anyway?</source>
        <translation>Une mise à jour est en cours. Quitter maintenant peut empêcher la machine de démarrer. Quitter quand même&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>&amp;Quit Anyway</source>
        <translation>&amp;Quitter quand même</translation>
    </message>
    <message>
        <source>Restore Machine Config</source>
        <translation>Restaurer la configuration de la machine</translation>
    </message>
    <message>
        <source>Co&amp;mpare With Machine</source>
        <translation>Co&amp;mparer avec la machine</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Repair Machine</source>
        <translation>Réparer la machine</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Put back:</source>
        <translation>Remettre&#xa0;:</translation>
    </message>
    <message>
        <source>Newest backup of this machine (%1)</source>
        <translation>Dernière sauvegarde de cette machine (%1)</translation>
    </message>
    <message>
        <source>Current settings of this machine, saved first</source>
        <translation>Réglages actuels de cette machine, enregistrés d&apos;abord</translation>
    </message>
    <message>
        <source>Choose what goes back…</source>
        <translation>Choisissez ce qui sera remis…</translation>
    </message>
    <message>
        <source>Backup of %1 (%2)</source>
        <translation>Sauvegarde du %1 (%2)</translation>
    </message>
    <message>
        <source>Stock configuration: %1</source>
        <translation>Configuration d&apos;origine&#xa0;: %1</translation>
    </message>
    <message>
        <source>No configuration</source>
        <translation>Aucune configuration</translation>
    </message>
    <message>
        <source>Asking the machine&apos;s firmware whether it answers…</source>
        <translation>Le firmware de la machine répond-il&#xa0;? Vérification…</translation>
    </message>
    <message>
        <source>Compare With Machine — %1</source>
        <translation>Comparer avec la machine — %1</translation>
    </message>
    <message>
        <source>&amp;Upload This Configuration</source>
        <translation>&amp;Envoyer cette configuration</translation>
    </message>
    <message>
        <source>By Key</source>
        <translation>Par clé</translation>
    </message>
    <message>
        <source>By Line</source>
        <translation>Par ligne</translation>
    </message>
    <message>
        <source>No key differs.</source>
        <translation>Aucune clé ne diffère.</translation>
    </message>
    <message>
        <source>The files are the same line by line.</source>
        <translation>Les fichiers sont identiques ligne par ligne.</translation>
    </message>
    <message>
        <source>The two configurations could not be compared by key; &quot;By Line&quot; shows how their texts differ.</source>
        <translation>Les deux configurations n&apos;ont pas pu être comparées clé par clé&#xa0;; «&#xa0;Par ligne&#xa0;» montre en quoi leurs textes diffèrent.</translation>
    </message>
    <message>
        <source>The machine&apos;s config matches %1 by key: an upload would change no setting.</source>
        <translation>La configuration de la machine correspond à %1, clé par clé&#xa0;: un envoi ne changerait aucun réglage.</translation>
    </message>
    <message>
        <source>1 setting differs between the machine&apos;s config and %1. Each line shows the machine&apos;s value → the new one; + marks a key only in %1, - a key only on the machine.</source>
        <translation>1 réglage diffère entre la configuration de la machine et %1. Chaque ligne montre la valeur de la machine → la nouvelle&#xa0;; + marque une clé présente seulement dans %1, - une clé présente seulement sur la machine.</translation>
    </message>
    <message>
        <source>%1 settings differ between the machine&apos;s config and %2. Each line shows the machine&apos;s value → the new one; + marks a key only in %2, - a key only on the machine.</source>
        <translation>%1 réglages diffèrent entre la configuration de la machine et %2. Chaque ligne montre la valeur de la machine → la nouvelle&#xa0;; + marque une clé présente seulement dans %2, - une clé présente seulement sur la machine.</translation>
    </message>
    <message>
        <source>Firmware v%1 (build %2)</source>
        <translation>Firmware v%1 (compilation %2)</translation>
    </message>
    <message>
        <source>Program version %1</source>
        <translation>Version du programme %1</translation>
    </message>
    <message>
        <source>Supported products:</source>
        <translation>Produits pris en charge&#xa0;:</translation>
    </message>
    <message>
        <source>Licenses:</source>
        <translation>Licences&#xa0;:</translation>
    </message>
    <message>
        <source>Firmware: GPL v3 (based on FluidNC)</source>
        <translation>Firmware&#xa0;: GPL v3 (basé sur FluidNC)</translation>
    </message>
    <message>
        <source>Flash stub: Apache License 2.0</source>
        <translation>Programme d&apos;écriture flash&#xa0;: Apache License 2.0</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Source&#xa0;:</translation>
    </message>
    <message>
        <source>© 2026 Corvane. All rights reserved.</source>
        <translation>© 2026 Corvane. Tous droits réservés.</translation>
    </message>
</context>
</TS>
