<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AccessibilityTexts</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Copiar registro</translation>
    </message>
    <message>
        <source>Writing firmware</source>
        <translation>Escribiendo el firmware</translation>
    </message>
    <message>
        <source>Uploading configuration</source>
        <translation>Subiendo la configuración</translation>
    </message>
    <message>
        <source>Reading the machine&apos;s configuration</source>
        <translation>Leyendo la configuración de la máquina</translation>
    </message>
    <message>
        <source>Checking that the machine starts</source>
        <translation>Comprobando que la máquina arranca</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>Machine config saved to %1 (%2 bytes)</source>
        <translation>Configuración de la máquina guardada en %1 (%2 bytes)</translation>
    </message>
    <message>
        <source>Could not save the machine config to %1: %2</source>
        <translation>No se pudo guardar la configuración de la máquina en %1: %2</translation>
    </message>
    <message>
        <source>Could not read config.yaml from the machine: %1</source>
        <translation>No se pudo leer config.yaml de la máquina: %1</translation>
    </message>
    <message>
        <source>Failed to open port</source>
        <translation>No se pudo abrir el puerto</translation>
    </message>
    <message>
        <source>XModem download: invalid arguments</source>
        <translation>Descarga XModem: argumentos no válidos</translation>
    </message>
    <message>
        <source>XModem download: invalid file name</source>
        <translation>Descarga XModem: nombre de archivo no válido</translation>
    </message>
    <message>
        <source>XModem download: could not send the command</source>
        <translation>Descarga XModem: no se pudo enviar la orden</translation>
    </message>
    <message>
        <source>XModem download: no block received</source>
        <translation>Descarga XModem: no se recibió ningún bloque</translation>
    </message>
    <message>
        <source>XModem download: cancelled by the device</source>
        <translation>Descarga XModem: cancelada por el dispositivo</translation>
    </message>
    <message>
        <source>XModem download: file larger than 16 MiB</source>
        <translation>Descarga XModem: archivo de más de 16 MiB</translation>
    </message>
    <message>
        <source>XModem download: block %1 failed 25 times</source>
        <translation>Descarga XModem: el bloque %1 falló 25 veces</translation>
    </message>
    <message>
        <source>XModem download: could not answer the device</source>
        <translation>Descarga XModem: no se pudo responder al dispositivo</translation>
    </message>
    <message>
        <source>XModem download: out of memory</source>
        <translation>Descarga XModem: memoria insuficiente</translation>
    </message>
    <message>
        <source>XModem download: failed (%1)</source>
        <translation>Descarga XModem: error (%1)</translation>
    </message>
    <message>
        <source>Could not back up the machine config; the upload did not start: %1</source>
        <translation>No se pudo hacer una copia de seguridad de la configuración de la máquina; la subida no empezó: %1</translation>
    </message>
    <message>
        <source>Machine config saved</source>
        <translation>Configuración de la máquina guardada</translation>
    </message>
    <message>
        <source>Machine config compared</source>
        <translation>Configuración de la máquina comparada</translation>
    </message>
    <message>
        <source>Machine config matches %1 by key</source>
        <translation>La configuración de la máquina coincide con %1 clave por clave</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in 1 key</source>
        <translation>La configuración de la máquina difiere de %1 en 1 clave</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in %2 keys</source>
        <translation>La configuración de la máquina difiere de %1 en %2 claves</translation>
    </message>
    <message>
        <source>Equal by key</source>
        <translation>Igual clave por clave</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>Distinta</translation>
    </message>
    <message>
        <source>Could not prepare the backups folder %1 as a folder only you can read</source>
        <translation>No se pudo preparar la carpeta de copias %1 como una carpeta que solo usted pueda leer</translation>
    </message>
    <message>
        <source>Could not write the backup %1: %2</source>
        <translation>No se pudo escribir la copia %1: %2</translation>
    </message>
    <message>
        <source>No backup was kept: %1</source>
        <translation>No se conservó ninguna copia: %1</translation>
    </message>
    <message>
        <source>Skipped the backup record %1: %2</source>
        <translation>Se omitió el registro de copia %1: %2</translation>
    </message>
    <message>
        <source>not a backup record</source>
        <translation>no es un registro de copia</translation>
    </message>
    <message>
        <source>its copy %1 is missing</source>
        <translation>falta su copia %1</translation>
    </message>
    <message>
        <source>its copy %1 has changed</source>
        <translation>su copia %1 ha cambiado</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparada</translation>
    </message>
    <message>
        <source>Before upload</source>
        <translation>Antes de subir</translation>
    </message>
    <message>
        <source>Before erase</source>
        <translation>Antes de borrar</translation>
    </message>
    <message>
        <source>%1  %2  %3  %4 bytes  %5  %6</source>
        <translation>%1  %2  %3  %4 bytes  %5  %6</translation>
    </message>
    <message>
        <source>No backups in %1</source>
        <translation>No hay copias en %1</translation>
    </message>
    <message>
        <source>1 backup in %1</source>
        <translation>1 copia en %1</translation>
    </message>
    <message>
        <source>%1 backups in %2</source>
        <translation>%1 copias en %2</translation>
    </message>
    <message>
        <source>No backup of the machine %1 in %2</source>
        <translation>No hay ninguna copia de la máquina %1 en %2</translation>
    </message>
    <message>
        <source>No backup %1 in %2</source>
        <translation>No hay ninguna copia %1 en %2</translation>
    </message>
    <message>
        <source>Every configuration read from a machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Cada configuración leída de una máquina se conserva en %1. Las de la máquina conectada aparecen arriba, las más recientes primero.</translation>
    </message>
    <message>
        <source>No configuration has been kept yet. Every configuration read from a machine (Save Machine Config, Compare With Machine, the backup before an upload, the save before Erase All Flash) is kept in %1.</source>
        <translation>Todavía no se ha conservado ninguna configuración. Cada configuración leída de una máquina (Guardar configuración de la máquina, Comparar con la máquina, la copia antes de una subida, el guardado antes de «Borrar toda la flash») se conserva en %1.</translation>
    </message>
    <message>
        <source>%1 (this machine)</source>
        <translation>%1 (esta máquina)</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>Saving the machine&apos;s settings before Erase All Flash…</source>
        <translation>Guardando los ajustes de la máquina antes de «Borrar toda la flash»…</translation>
    </message>
    <message>
        <source>The machine&apos;s firmware does not answer, so its settings cannot be saved.</source>
        <translation>El firmware de la máquina no responde, así que no se pueden guardar sus ajustes.</translation>
    </message>
    <message>
        <source>Erasing all flash without saving the settings.</source>
        <translation>Borrando toda la flash sin guardar los ajustes.</translation>
    </message>
    <message>
        <source>Nothing was erased: %1</source>
        <translation>No se borró nada: %1</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with Config &gt; Restore Machine Config….</source>
        <translation>Los ajustes leídos antes del borrado no se restauraron; se conservan en %1. Cuando la máquina funcione, restáurelos con Configuración &gt; Restaurar configuración de la máquina….</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with: teskal-flash restore-config --port %2 %3</source>
        <translation>Los ajustes leídos antes del borrado no se restauraron; se conservan en %1. Cuando la máquina funcione, restáurelos con: teskal-flash restore-config --port %2 %3</translation>
    </message>
    <message>
        <source>To put back the configuration the machine had before: teskal-flash restore-config --port %1 %2</source>
        <translation>Para restaurar la configuración que tenía antes la máquina: teskal-flash restore-config --port %1 %2</translation>
    </message>
    <message>
        <source>Settings restored from the backup of %1.</source>
        <translation>Ajustes restaurados desde la copia del %1.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running, with your settings restored from the backup of %2.</source>
        <translation>Firmware %1 instalado y en funcionamiento, con sus ajustes restaurados desde la copia del %2.</translation>
    </message>
    <message>
        <source>Firmware installed and running, with your settings restored from the backup of %1.</source>
        <translation>Firmware instalado y en funcionamiento, con sus ajustes restaurados desde la copia del %1.</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>el firmware %1</translation>
    </message>
    <message>
        <source>your settings from %1</source>
        <translation>sus ajustes del %1</translation>
    </message>
    <message>
        <source>your current settings, saved first</source>
        <translation>sus ajustes actuales, guardados antes</translation>
    </message>
    <message>
        <source>the stock configuration of %1</source>
        <translation>la configuración de fábrica de %1</translation>
    </message>
    <message>
        <source>Erase the machine, install %1, then put back %2.</source>
        <translation>Borrar la máquina, instalar %1 y después restaurar %2.</translation>
    </message>
    <message>
        <source>Erase the machine and install %1, without a configuration.</source>
        <translation>Borrar la máquina e instalar %1, sin configuración.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1 with %2.</source>
        <translation>Máquina reparada: funciona con %1 y %2.</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1, without a configuration.</source>
        <translation>Máquina reparada: funciona con %1, sin configuración.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>No se borró nada: no hay ninguna copia de la máquina %1 para restaurar después de la reparación. No hay copias en %2. Elija otra copia, la configuración de fábrica de un producto o ninguna en el diálogo «Reparar máquina».</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>No se borró nada: no hay ninguna copia de la máquina %1 para restaurar después de la reparación. No hay copias en %2. Elija qué se restaura con --backup FILE, --product NAME o --no-config.</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>No se borró nada: no hay ninguna copia de la máquina %1 para restaurar después de la reparación. Copias en %2: %3. Elija otra copia, la configuración de fábrica de un producto o ninguna en el diálogo «Reparar máquina».</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>No se borró nada: no hay ninguna copia de la máquina %1 para restaurar después de la reparación. Copias en %2: %3. Elija qué se restaura con --backup FILE, --product NAME o --no-config.</translation>
    </message>
    <message>
        <source>This machine has no backup of its settings. Choose what goes back after the erase.</source>
        <translation>Esta máquina no tiene ninguna copia de sus ajustes. Elija qué se restaura después del borrado.</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Copia completa</translation>
    </message>
    <message>
        <source>Before update</source>
        <translation>Antes de actualizar</translation>
    </message>
    <message>
        <source>Before repair</source>
        <translation>Antes de reparar</translation>
    </message>
</context>
<context>
    <name>CatalogueTexts</name>
    <message>
        <source>&quot;%1&quot; is not a firmware catalogue: give an http:// or https:// address, a catalogue.json file or a folder that holds one.</source>
        <translation>«%1» no es un catálogo de firmware: indique una dirección http:// o https://, un archivo catalogue.json o una carpeta que lo contenga.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is missing, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>Falta la clave del catálogo %1, así que no se puede comprobar ningún catálogo de firmware. Vuelva a instalar el programa de actualización o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>La clave del catálogo %1 no es una clave pública Ed25519, así que no se puede comprobar ningún catálogo de firmware. Vuelva a instalar el programa de actualización o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The catalogue key %1 is the development key, which only the simulated plotter trusts. Reinstall the updater, or use the bundled firmware.</source>
        <translation>La clave del catálogo %1 es la clave de desarrollo, en la que solo confía el plóter simulado. Vuelva a instalar el programa de actualización o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The firmware catalogue could not be read from %1 (%2). Check the address and the network connection and try again, or use the bundled firmware.</source>
        <translation>No se pudo leer el catálogo de firmware desde %1 (%2). Compruebe la dirección y la conexión de red e inténtelo de nuevo, o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 did not arrive within %2 s. Check the network connection and try again, or use the bundled firmware.</source>
        <translation>El catálogo de firmware de %1 no llegó en un plazo de %2 s. Compruebe la conexión de red e inténtelo de nuevo, o use el firmware incluido.</translation>
    </message>
    <message>
        <source>%1 is larger than a firmware catalogue can be (%2 bytes), so it was not read. Check the catalogue&apos;s address.</source>
        <translation>%1 es más grande de lo que puede ser un catálogo de firmware (%2 bytes), así que no se leyó. Compruebe la dirección del catálogo.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 does not carry a valid signature of this updater&apos;s publisher, so it was not used. Ask its publisher for a signed catalogue, or use the bundled firmware.</source>
        <translation>El catálogo de firmware de %1 no lleva una firma válida del editor de este programa, así que no se usó. Pida a su editor un catálogo firmado o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 cannot be used: %2. Ask its publisher to correct it, or use the bundled firmware.</source>
        <translation>El catálogo de firmware de %1 no se puede usar: %2. Pida a su editor que lo corrija o use el firmware incluido.</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 was published %2, before the one already seen (%3), so it was not used: an old catalogue could bring back a withdrawn version. Use the current catalogue.</source>
        <translation>El catálogo de firmware de %1 se publicó el %2, antes que el ya visto (%3), así que no se usó: un catálogo antiguo podría traer de vuelta una versión retirada. Use el catálogo actual.</translation>
    </message>
    <message>
        <source>Offline: the firmware catalogue published %1, as last seen, is shown. Connect to the network to see newer versions.</source>
        <translation>Sin conexión: se muestra el último catálogo de firmware recibido, publicado el %1. Conéctese a la red para ver versiones más recientes.</translation>
    </message>
    <message>
        <source>it is not JSON (%1)</source>
        <translation>no es JSON (%1)</translation>
    </message>
    <message>
        <source>schema %1 is not supported</source>
        <translation>el esquema %1 no es compatible</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>%1 is not a field of a catalogue</source>
        <translation>%1 no es un campo de un catálogo</translation>
    </message>
    <message>
        <source>%1 is not valid</source>
        <translation>%1 no es válido</translation>
    </message>
    <message>
        <source>firmware %1 is listed twice</source>
        <translation>el firmware %1 aparece dos veces</translation>
    </message>
    <message>
        <source>Firmware %1 is not in the firmware catalogue. Choose one of the versions it lists.</source>
        <translation>El firmware %1 no está en el catálogo de firmware. Elija una de las versiones que incluye.</translation>
    </message>
    <message>
        <source>Firmware %1 was withdrawn by its publisher and is not installed. Choose another version.</source>
        <translation>El firmware %1 fue retirado por su editor y no se instala. Elija otra versión.</translation>
    </message>
    <message>
        <source>The image of firmware %1 could not be read from %2 (%3). Check the network connection and try again.</source>
        <translation>No se pudo leer la imagen del firmware %1 desde %2 (%3). Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The download of firmware %1 stopped: nothing arrived for %2 s. Check the network connection and try again.</source>
        <translation>La descarga del firmware %1 se detuvo: no llegó nada durante %2 s. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The image of firmware %1 is larger than the %2 bytes the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>La imagen del firmware %1 supera los %2 bytes que indica el catálogo, así que no se usó. Elija otra versión o inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The image of firmware %1 ended after %2 of its %3 bytes. Check the network connection and try again.</source>
        <translation>La imagen del firmware %1 se cortó tras %2 de sus %3 bytes. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The image of firmware %1 does not match the SHA-256 the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>La imagen del firmware %1 no coincide con el SHA-256 que indica el catálogo, así que no se usó. Elija otra versión o inténtelo de nuevo más tarde.</translation>
    </message>
</context>
<context>
    <name>FileTexts</name>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>No se puede usar %1: %2</translation>
    </message>
    <message>
        <source>it could not be read (%1)</source>
        <translation>no se pudo leer (%1)</translation>
    </message>
    <message>
        <source>Firmware image refused: %1</source>
        <translation>Imagen de firmware rechazada: %1</translation>
    </message>
    <message>
        <source>Bundled %1.bin refused: a development image, not firmware</source>
        <translation>%1.bin incluido rechazado: es una imagen de desarrollo, no firmware</translation>
    </message>
    <message>
        <source>Firmware image: version %1, project %2, built %3</source>
        <translation>Imagen de firmware: versión %1, proyecto %2, compilada el %3</translation>
    </message>
    <message>
        <source>Could not read file: %1</source>
        <translation>No se pudo leer el archivo: %1</translation>
    </message>
    <message>
        <source>%1 is not a valid machine configuration: %2</source>
        <translation>%1 no es una configuración de máquina válida: %2</translation>
    </message>
    <message>
        <source>The development set&apos;s configurations are only for simulated plotters</source>
        <translation>Las configuraciones del conjunto de desarrollo son solo para plóteres simulados</translation>
    </message>
    <message>
        <source>  size: %1 bytes</source>
        <translation>  tamaño: %1 bytes</translation>
    </message>
    <message>
        <source>  chip: %1 (chip id %2)</source>
        <translation>  chip: %1 (id de chip %2)</translation>
    </message>
    <message>
        <source>  version: %1</source>
        <translation>  versión: %1</translation>
    </message>
    <message>
        <source>  project: %1</source>
        <translation>  proyecto: %1</translation>
    </message>
    <message>
        <source>  built: %1</source>
        <translation>  compilada: %1</translation>
    </message>
    <message>
        <source>  partition: fits (the application partition holds %1 bytes)</source>
        <translation>  partición: cabe (la partición de la aplicación admite %1 bytes)</translation>
    </message>
    <message>
        <source>  partition: too large (the application partition holds %1 bytes)</source>
        <translation>  partición: demasiado grande (la partición de la aplicación admite %1 bytes)</translation>
    </message>
    <message>
        <source>  partition: unknown (no partition table in the resources)</source>
        <translation>  partición: desconocida (no hay tabla de particiones en los recursos)</translation>
    </message>
    <message>
        <source>  meta: none</source>
        <translation>  meta: ninguna</translation>
    </message>
    <message>
        <source>  result: passes</source>
        <translation>  resultado: aceptado</translation>
    </message>
    <message>
        <source>  result: refused</source>
        <translation>  resultado: rechazado</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)</source>
        <translation>%1 no es ni una imagen de firmware (.bin) ni una configuración de máquina (.yaml, .yml)</translation>
    </message>
    <message>
        <source>All files pass</source>
        <translation>Todos los archivos son aceptados</translation>
    </message>
    <message>
        <source>%1 of %2 files refused</source>
        <translation>%1 de %2 archivos rechazados</translation>
    </message>
    <message>
        <source>Could not save log: %1</source>
        <translation>No se pudo guardar el registro: %1</translation>
    </message>
</context>
<context>
    <name>FirmwareJobTexts</name>
    <message>
        <source>Device connected</source>
        <translation>Dispositivo conectado</translation>
    </message>
    <message>
        <source>Waiting for device…</source>
        <translation>Esperando al dispositivo…</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Ningún dispositivo conectado</translation>
    </message>
    <message>
        <source>Another operation is already running</source>
        <translation>Ya hay otra operación en curso</translation>
    </message>
    <message>
        <source>Updating firmware v%1…</source>
        <translation>Actualizando el firmware a v%1…</translation>
    </message>
    <message>
        <source>Updating firmware (custom: %1)…</source>
        <translation>Actualizando el firmware (personalizado: %1)…</translation>
    </message>
    <message>
        <source>Failed to load custom firmware: %1</source>
        <translation>No se pudo cargar el firmware personalizado: %1</translation>
    </message>
    <message>
        <source>Bundled firmware not found</source>
        <translation>No se encontró el firmware incluido</translation>
    </message>
    <message>
        <source>Checking device status…</source>
        <translation>Comprobando el estado del dispositivo…</translation>
    </message>
    <message>
        <source>Device not responding — writing boot partitions + firmware.</source>
        <translation>El dispositivo no responde: se escribirán las particiones de arranque y el firmware.</translation>
    </message>
    <message>
        <source>Device running firmware %1 — updating firmware only.</source>
        <translation>El dispositivo ejecuta el firmware %1: solo se actualizará el firmware.</translation>
    </message>
    <message>
        <source>Flash stub not found in bundle</source>
        <translation>No se encontró el programa de escritura (stub) en el paquete</translation>
    </message>
    <message>
        <source>Missing bootloader resources for full flash</source>
        <translation>Faltan los recursos del cargador de arranque para la escritura completa</translation>
    </message>
    <message>
        <source>Firmware update complete.</source>
        <translation>Actualización del firmware completada.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Use Config &gt; Update Config to upload the configuration for your machine.</source>
        <translation>NOTA: La flash se ha borrado. Use Configuración &gt; Actualizar configuración para subir la configuración de su máquina.</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for your machine.</source>
        <translation>NOTA: La flash se ha borrado. Ejecute teskal-flash upload-config para subir la configuración de su máquina.</translation>
    </message>
    <message>
        <source>Once the machine runs, %1 will be put back.</source>
        <translation>Cuando la máquina funcione, se restaurará lo siguiente: %1.</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>Versión del firmware %1</translation>
    </message>
    <message>
        <source>Using bundled firmware</source>
        <translation>Usando el firmware incluido</translation>
    </message>
    <message>
        <source>Custom firmware: %1</source>
        <translation>Firmware personalizado: %1</translation>
    </message>
    <message>
        <source>Custom firmware: unknown</source>
        <translation>Firmware personalizado: desconocido</translation>
    </message>
    <message>
        <source>Checking that the machine starts…</source>
        <translation>Comprobando que la máquina arranca…</translation>
    </message>
    <message>
        <source>Config file not found in bundle: %1</source>
        <translation>No se encontró el archivo de configuración en el paquete: %1</translation>
    </message>
    <message>
        <source>Preparing %1 config%2</source>
        <translation>Preparando la configuración de %1%2</translation>
    </message>
    <message>
        <source>Preparing %1%2</source>
        <translation>Preparando %1%2</translation>
    </message>
    <message>
        <source>Uploading config file...</source>
        <translation>Subiendo el archivo de configuración...</translation>
    </message>
    <message>
        <source>Upload successful; restarting machine.</source>
        <translation>Subida correcta; reiniciando la máquina.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again to stop.</source>
        <translation>Escribiendo el firmware: detenerlo ahora puede dejar la máquina sin arrancar. Pulse Ctrl+C otra vez para detenerlo.</translation>
    </message>
    <message>
        <source>Partition table: present</source>
        <translation>Tabla de particiones: presente</translation>
    </message>
    <message>
        <source>Partition table: absent</source>
        <translation>Tabla de particiones: ausente</translation>
    </message>
    <message>
        <source>1 plotter connected</source>
        <translation>1 plóter conectado</translation>
    </message>
    <message>
        <source>%1 plotters connected</source>
        <translation>%1 plóteres conectados</translation>
    </message>
    <message>
        <source>Could not start the simulated plotter: %1</source>
        <translation>No se pudo iniciar el plóter simulado: %1</translation>
    </message>
</context>
<context>
    <name>OutcomeTexts</name>
    <message>
        <source>No device found. Is it connected?</source>
        <translation>No se encontró ningún dispositivo. ¿Está conectado?</translation>
    </message>
    <message>
        <source>No device found. Is it connected? Run teskal-flash doctor to see why.</source>
        <translation>No se encontró ningún dispositivo. ¿Está conectado? Ejecute teskal-flash doctor para ver por qué.</translation>
    </message>
    <message>
        <source>Could not open serial port. Is another app using it?</source>
        <translation>No se pudo abrir el puerto serie. ¿Lo está usando otra aplicación?</translation>
    </message>
    <message>
        <source>Failed to sync with device. Try unplugging and reconnecting.</source>
        <translation>No se pudo comunicar con el dispositivo. Desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>Unexpected chip detected. Verify hardware.</source>
        <translation>Se detectó un chip inesperado. Revise el hardware.</translation>
    </message>
    <message>
        <source>Failed to upload communication stub.</source>
        <translation>No se pudo subir el programa de comunicación (stub).</translation>
    </message>
    <message>
        <source>Flash write failed. Try again.</source>
        <translation>Falló la escritura en la flash. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Verification failed. Flash may be corrupted — try again.</source>
        <translation>Falló la verificación. Puede que la flash esté dañada: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Config upload failed.</source>
        <translation>Falló la subida de la configuración.</translation>
    </message>
    <message>
        <source>Operation timed out. Try unplugging and reconnecting.</source>
        <translation>Se agotó el tiempo de espera. Desconecte el dispositivo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>Device disconnected during operation.</source>
        <translation>El dispositivo se desconectó durante la operación.</translation>
    </message>
    <message>
        <source>Unknown error (code %1)</source>
        <translation>Error desconocido (código %1)</translation>
    </message>
    <message>
        <source>Close any other program that uses the port, unplug and reconnect the machine, and try again.</source>
        <translation>Cierre cualquier otro programa que use el puerto, desconecte y vuelva a conectar la máquina, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Unplug the machine, plug it in again, and try again.</source>
        <translation>Desconecte la máquina, vuelva a conectarla e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This controller cannot take this firmware; contact support before trying again.</source>
        <translation>Este controlador no admite este firmware; contacte con el soporte antes de volver a intentarlo.</translation>
    </message>
    <message>
        <source>Try again; if it fails again, use another USB cable or port.</source>
        <translation>Inténtelo de nuevo; si vuelve a fallar, use otro cable USB u otro puerto.</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running.</source>
        <translation>Firmware %1 instalado y en funcionamiento.</translation>
    </message>
    <message>
        <source>Firmware installed and running.</source>
        <translation>Firmware instalado y en funcionamiento.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine reports version %1, not %2.</source>
        <translation>Firmware escrito y verificado, pero la máquina indica la versión %1, no la %2.</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine did not answer to confirm that it runs.</source>
        <translation>Firmware escrito y verificado, pero la máquina no respondió para confirmar que funciona.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it restarts in a loop.</source>
        <translation>Firmware escrito, pero la máquina no arranca: se reinicia en bucle.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it crashed at start-up.</source>
        <translation>Firmware escrito, pero la máquina no arranca: se bloqueó al arrancar.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it finds no firmware to start.</source>
        <translation>Firmware escrito, pero la máquina no arranca: no encuentra ningún firmware que arrancar.</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: its power supply is too weak.</source>
        <translation>Firmware escrito, pero la máquina no arranca: su fuente de alimentación es demasiado débil.</translation>
    </message>
    <message>
        <source>Configuration uploaded; the machine restarted with it.</source>
        <translation>Configuración subida; la máquina se reinició con ella.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine did not answer after its restart.</source>
        <translation>Configuración subida, pero la máquina no respondió tras reiniciarse.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it restarts in a loop.</source>
        <translation>Configuración subida, pero la máquina no arranca: se reinicia en bucle.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it crashed at start-up.</source>
        <translation>Configuración subida, pero la máquina no arranca: se bloqueó al arrancar.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it finds no firmware to start.</source>
        <translation>Configuración subida, pero la máquina no arranca: no encuentra ningún firmware que arrancar.</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: its power supply is too weak.</source>
        <translation>Configuración subida, pero la máquina no arranca: su fuente de alimentación es demasiado débil.</translation>
    </message>
    <message>
        <source>The machine rejected its configuration:</source>
        <translation>La máquina rechazó su configuración:</translation>
    </message>
    <message>
        <source>Plug in the machine&apos;s own power supply (USB power is not enough), then try again.</source>
        <translation>Conecte la fuente de alimentación propia de la máquina (la alimentación USB no basta) y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Correct the configuration and upload it again, or upload a product&apos;s configuration from Config &gt; Update Config.</source>
        <translation>Corrija la configuración y súbala de nuevo, o suba la configuración de un producto desde Configuración &gt; Actualizar configuración.</translation>
    </message>
    <message>
        <source>Correct the configuration and run teskal-flash upload-config again, or upload a product&apos;s with --product NAME.</source>
        <translation>Corrija la configuración y vuelva a ejecutar teskal-flash upload-config, o suba la de un producto con --product NAME.</translation>
    </message>
    <message>
        <source>Run the update again.</source>
        <translation>Vuelva a ejecutar la actualización.</translation>
    </message>
    <message>
        <source>Run teskal-flash flash again.</source>
        <translation>Vuelva a ejecutar teskal-flash flash.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected; if it still does not answer, run the update again.</source>
        <translation>Compruebe que la máquina esté encendida y conectada; si sigue sin responder, vuelva a ejecutar la actualización.</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected, then run teskal-flash version.</source>
        <translation>Compruebe que la máquina esté encendida y conectada, y luego ejecute teskal-flash version.</translation>
    </message>
    <message>
        <source>Press Repair… to erase the machine, install the firmware again and put back your settings. If it keeps happening, save the log (File &gt; Save Log…) for support.</source>
        <translation>Pulse «Reparar…» para borrar la máquina, volver a instalar el firmware y restaurar sus ajustes. Si vuelve a ocurrir, guarde el registro (Archivo &gt; Guardar registro…) para el soporte.</translation>
    </message>
    <message>
        <source>Run teskal-flash repair to erase the machine, install the firmware again and put back your settings. If it keeps happening, keep this output for support.</source>
        <translation>Ejecute teskal-flash repair para borrar la máquina, volver a instalar el firmware y restaurar sus ajustes. Si vuelve a ocurrir, guarde esta salida para el soporte.</translation>
    </message>
    <message>
        <source>ended without a result</source>
        <translation>terminó sin resultado</translation>
    </message>
    <message>
        <source>ended abnormally after its result</source>
        <translation>terminó de forma anómala después de su resultado</translation>
    </message>
    <message>
        <source>ended abnormally after its result: %1</source>
        <translation>terminó de forma anómala después de su resultado: %1</translation>
    </message>
</context>
<context>
    <name>PortTexts</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 no es un puerto serie.</translation>
    </message>
    <message>
        <source>Permission denied on %1 (group %2).</source>
        <translation>Permiso denegado en %1 (grupo %2).</translation>
    </message>
    <message>
        <source>Permission denied on %1 (owner %2, mode %3).</source>
        <translation>Permiso denegado en %1 (propietario %2, modo %3).</translation>
    </message>
    <message>
        <source>Permission denied on %1.</source>
        <translation>Permiso denegado en %1.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (pid %3).</source>
        <translation>%1 lo está usando %2 (pid %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 lo está usando otro programa.</translation>
    </message>
    <message>
        <source>%1 does not answer: its device has gone.</source>
        <translation>%1 no responde: su dispositivo ya no está.</translation>
    </message>
    <message>
        <source>%1 can be used.</source>
        <translation>Se puede usar %1.</translation>
    </message>
    <message>
        <source>Plug the plotter in, or name another port.</source>
        <translation>Conecte el plóter o indique otro puerto.</translation>
    </message>
    <message>
        <source>Name the plotter&apos;s port, for example /dev/ttyACM0.</source>
        <translation>Indique el puerto del plóter, por ejemplo /dev/ttyACM0.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1).</source>
        <translation>Instale la regla de permisos (%1).</translation>
    </message>
    <message>
        <source>You are in the group %1, but this session began before you joined it: log out and in again.</source>
        <translation>Pertenece al grupo %1, pero esta sesión empezó antes de que se uniera: cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, then log out and in again.</source>
        <translation>Instale la regla de permisos (%1) o únase al grupo: sudo usermod -aG %2 $USER, y después cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>Close that program and try again.</source>
        <translation>Cierre ese programa e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Close it and try again.</source>
        <translation>Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Unplug the plotter, plug it in again and try again.</source>
        <translation>Desconecte el plóter, vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Connection Check</source>
        <translation>Comprobación de conexión</translation>
    </message>
    <message>
        <source>button below</source>
        <translation>botón de abajo</translation>
    </message>
    <message>
        <source>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</source>
        <translation>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</translation>
    </message>
    <message>
        <source>60-teskal-firmware-updater.rules in /etc/udev/rules.d</source>
        <translation>60-teskal-firmware-updater.rules en /etc/udev/rules.d</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001).</source>
        <translation>Plóter detectado por USB (303a:1001).</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001, serial %1).</source>
        <translation>Plóter detectado por USB (303a:1001, número de serie %1).</translation>
    </message>
    <message>
        <source>No plotter seen on USB.</source>
        <translation>No se detecta ningún plóter por USB.</translation>
    </message>
    <message>
        <source>Switch it on, try another USB port, and use a cable that carries data: some cables only charge.</source>
        <translation>Enciéndalo, pruebe otro puerto USB y use un cable que transmita datos: algunos cables solo cargan.</translation>
    </message>
    <message>
        <source>Serial port %1 made for it by %2.</source>
        <translation>%2 creó para él el puerto serie %1.</translation>
    </message>
    <message>
        <source>No serial port made for it: the kernel&apos;s cdc_acm driver is missing.</source>
        <translation>No se creó ningún puerto serie para él: falta el controlador cdc_acm del núcleo.</translation>
    </message>
    <message>
        <source>Install your system&apos;s extra kernel modules, or load the driver: sudo modprobe cdc_acm</source>
        <translation>Instale los módulos adicionales del núcleo de su sistema o cargue el controlador: sudo modprobe cdc_acm</translation>
    </message>
    <message>
        <source>No serial port made for it yet.</source>
        <translation>Todavía no se ha creado ningún puerto serie para él.</translation>
    </message>
    <message>
        <source>Wait a moment; if it stays so, unplug the plotter and plug it in again.</source>
        <translation>Espere un momento; si sigue igual, desconecte el plóter y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>You may open %1.</source>
        <translation>Puede abrir %1.</translation>
    </message>
    <message>
        <source>No other program is using %1.</source>
        <translation>Ningún otro programa está usando %1.</translation>
    </message>
    <message>
        <source>Another plotter: %1.</source>
        <translation>Otro plóter: %1.</translation>
    </message>
    <message>
        <source>Another plotter (serial %1): %2.</source>
        <translation>Otro plóter (número de serie %1): %2.</translation>
    </message>
    <message>
        <source>without a port</source>
        <translation>sin puerto</translation>
    </message>
    <message>
        <source>Not a plotter: %1 on %2.</source>
        <translation>No es un plóter: %1 en %2.</translation>
    </message>
    <message>
        <source>Ready: the plotter on %1 can be used.</source>
        <translation>Listo: se puede usar el plóter en %1.</translation>
    </message>
    <message>
        <source>No plotter is ready to use.</source>
        <translation>Ningún plóter está listo para usarse.</translation>
    </message>
    <message>
        <source>The plotter keeps restarting.</source>
        <translation>El plóter se reinicia una y otra vez.</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then press Repair.</source>
        <translation>Si la placa controladora tiene un botón BOOT, manténgalo pulsado mientras conecta el plóter y después pulse «Reparar».</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then run teskal-flash repair.</source>
        <translation>Si la placa controladora tiene un botón BOOT, manténgalo pulsado mientras conecta el plóter y después ejecute teskal-flash repair.</translation>
    </message>
    <message>
        <source>Plotter not found?</source>
        <translation>¿No se encuentra el plóter?</translation>
    </message>
    <message>
        <source>Checked again every second. This window closes once the plotter can be used.</source>
        <translation>Se comprueba cada segundo. Esta ventana se cierra en cuanto se pueda usar el plóter.</translation>
    </message>
    <message>
        <source>&amp;Install Permission Rule…</source>
        <translation>&amp;Instalar regla de permisos…</translation>
    </message>
    <message>
        <source>pkexec or the rule&apos;s installer is missing. Run by hand: %1</source>
        <translation>Falta pkexec o el instalador de la regla. Ejecútelo a mano: %1</translation>
    </message>
    <message>
        <source>The permission rule&apos;s installer could not be started.</source>
        <translation>No se pudo iniciar el instalador de la regla de permisos.</translation>
    </message>
</context>
<context>
    <name>ReleaseTexts</name>
    <message>
        <source>No firmware catalogue is configured. Choose one with File &gt; Firmware Catalogue…, or use the bundled firmware.</source>
        <translation>No hay ningún catálogo de firmware configurado. Elija uno en Archivo &gt; Catálogo de firmware… o use el firmware incluido.</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured. Name one with --catalogue URL|FILE|FOLDER, or use the bundled firmware.</source>
        <translation>No hay ningún catálogo de firmware configurado. Indique uno con --catalogue URL|FILE|FOLDER o use el firmware incluido.</translation>
    </message>
    <message>
        <source>Fetching firmware %1 from the catalogue at %2…</source>
        <translation>Obteniendo el firmware %1 del catálogo de %2…</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>Updating firmware %1 from the catalogue…</source>
        <translation>Actualizando el firmware a %1 desde el catálogo…</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written.</source>
        <translation>El firmware %1 es más antiguo que el firmware %2 con el que funciona esta máquina, así que no se escribió nada.</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written. Add --allow-older to install it anyway.</source>
        <translation>El firmware %1 es más antiguo que el firmware %2 con el que funciona esta máquina, así que no se escribió nada. Añada --allow-older para instalarlo de todos modos.</translation>
    </message>
    <message>
        <source>bundled</source>
        <translation>incluido</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>catálogo</translation>
    </message>
    <message>
        <source>stable</source>
        <translation>estable</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>beta</translation>
    </message>
    <message>
        <source>1 firmware version can be installed.</source>
        <translation>Se puede instalar 1 versión del firmware.</translation>
    </message>
    <message>
        <source>%1 firmware versions can be installed.</source>
        <translation>Se pueden instalar %1 versiones del firmware.</translation>
    </message>
    <message>
        <source>Firmware &amp;Catalogue…</source>
        <translation>&amp;Catálogo de firmware…</translation>
    </message>
    <message>
        <source>Choose Firmware &amp;Version…</source>
        <translation>Elegir &amp;versión del firmware…</translation>
    </message>
    <message>
        <source>Firmware version %1 from the catalogue</source>
        <translation>Versión del firmware %1 del catálogo</translation>
    </message>
    <message>
        <source>Firmware %1 is available</source>
        <translation>Firmware %1 disponible</translation>
    </message>
    <message>
        <source>Firmware Catalogue</source>
        <translation>Catálogo de firmware</translation>
    </message>
    <message>
        <source>Where the firmware catalogue is: an http:// or https:// address, a catalogue.json file, or a folder that holds one (for instance on a USB stick).</source>
        <translation>Dónde está el catálogo de firmware: una dirección http:// o https://, un archivo catalogue.json o una carpeta que lo contenga (por ejemplo, en una memoria USB).</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Elegir &amp;archivo…</translation>
    </message>
    <message>
        <source>Choose F&amp;older…</source>
        <translation>Elegir &amp;carpeta…</translation>
    </message>
    <message>
        <source>Firmware catalogue: %1</source>
        <translation>Catálogo de firmware: %1</translation>
    </message>
    <message>
        <source>Choose Firmware Version</source>
        <translation>Elegir versión del firmware</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Show &amp;beta versions</source>
        <translation>Mostrar versiones &amp;beta</translation>
    </message>
    <message>
        <source>&amp;Use This Version</source>
        <translation>&amp;Usar esta versión</translation>
    </message>
    <message>
        <source>ran on this machine</source>
        <translation>funcionó en esta máquina</translation>
    </message>
    <message>
        <source>Reading the firmware catalogue…</source>
        <translation>Leyendo el catálogo de firmware…</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured: only the bundled firmware is listed. Choose a catalogue with File &gt; Firmware Catalogue….</source>
        <translation>No hay ningún catálogo de firmware configurado: solo se muestra el firmware incluido. Elija un catálogo en Archivo &gt; Catálogo de firmware….</translation>
    </message>
    <message>
        <source>Firmware %1 from the catalogue will be written.</source>
        <translation>Se escribirá el firmware %1 del catálogo.</translation>
    </message>
    <message>
        <source>Install an Older Version?</source>
        <translation>¿Instalar una versión anterior?</translation>
    </message>
    <message>
        <source>This machine runs firmware %1. Install the older firmware %2 in its place?</source>
        <translation>Esta máquina funciona con el firmware %1. ¿Instalar en su lugar el firmware anterior %2?</translation>
    </message>
    <message>
        <source>&amp;Install Older Version</source>
        <translation>&amp;Instalar versión anterior</translation>
    </message>
</context>
<context>
    <name>SnapshotTexts</name>
    <message>
        <source>Taking a snapshot of the whole machine…</source>
        <translation>Haciendo una copia completa de la máquina…</translation>
    </message>
    <message>
        <source>Snapshot of the whole machine saved to %1 (%2 bytes).</source>
        <translation>Copia completa de la máquina guardada en %1 (%2 bytes).</translation>
    </message>
    <message>
        <source>the machine&apos;s flash holds nothing worth keeping (no bootloader and no partition table)</source>
        <translation>la flash de la máquina no contiene nada que merezca la pena conservar (ni cargador de arranque ni tabla de particiones)</translation>
    </message>
    <message>
        <source>No snapshot of the whole machine could be taken: %1</source>
        <translation>No se pudo hacer una copia completa de la máquina: %1</translation>
    </message>
    <message>
        <source>the flasher stub refused to read the flash</source>
        <translation>el programa de escritura flash se negó a leer la flash</translation>
    </message>
    <message>
        <source>the machine sent nothing for 5 s while its flash was read</source>
        <translation>la máquina no envió nada durante 5 s mientras se leía su flash</translation>
    </message>
    <message>
        <source>what the machine sent of its flash arrived damaged</source>
        <translation>lo que la máquina envió de su flash llegó dañado</translation>
    </message>
    <message>
        <source>the MD5 the machine computed differs from that of the bytes received</source>
        <translation>el MD5 calculado por la máquina no coincide con el de los bytes recibidos</translation>
    </message>
    <message>
        <source>the snapshot could not be written on this computer</source>
        <translation>no se pudo escribir la copia completa en este ordenador</translation>
    </message>
    <message>
        <source>the flash could not be read (%1)</source>
        <translation>no se pudo leer la flash (%1)</translation>
    </message>
    <message>
        <source>.</source>
        <comment>the full stop that ends a sentence</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>%1 Nothing was written.</source>
        <translation>%1 No se escribió nada.</translation>
    </message>
    <message>
        <source>The machine was left as it was. Check the USB cable and try again.</source>
        <translation>La máquina se ha dejado como estaba. Compruebe el cable USB e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>No snapshot is needed: the machine&apos;s flash holds nothing worth keeping.</source>
        <translation>No hace falta una copia completa: la flash de la máquina no contiene nada que merezca la pena conservar.</translation>
    </message>
    <message>
        <source>Whole machine backed up</source>
        <translation>Copia completa de la máquina guardada</translation>
    </message>
    <message>
        <source>application</source>
        <translation>aplicación</translation>
    </message>
    <message>
        <source>data</source>
        <translation>datos</translation>
    </message>
    <message>
        <source>Putting back the snapshot of the whole machine from %1 (%2)…</source>
        <translation>Restaurando la copia completa de la máquina del %1 (%2)…</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>No se puede usar %1: %2</translation>
    </message>
    <message>
        <source>Could not read the snapshot %1: %2</source>
        <translation>No se pudo leer la copia completa %1: %2</translation>
    </message>
    <message>
        <source>No snapshot of the machine %1 in %2</source>
        <translation>No hay ninguna copia completa de la máquina %1 en %2</translation>
    </message>
    <message>
        <source>No snapshot %1 in %2</source>
        <translation>No hay ninguna copia completa %1 en %2</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1, not of %2; it carries that machine&apos;s settings and network credentials. Add --other-machine to put it on %2 anyway.</source>
        <translation>Esta copia completa se hizo de la máquina %1, no de %2; contiene los ajustes y las credenciales de red de esa máquina. Añada --other-machine para ponerla en %2 de todos modos.</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1. It carries that machine&apos;s settings and network credentials. Put it on this machine (%2) anyway?</source>
        <translation>Esta copia completa se hizo de la máquina %1. Contiene los ajustes y las credenciales de red de esa máquina. ¿Ponerla de todos modos en esta máquina (%2)?</translation>
    </message>
    <message>
        <source>&amp;Restore Anyway</source>
        <translation>&amp;Restaurar de todos modos</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs firmware %2.</source>
        <translation>Máquina restaurada tal como estaba el %1: funciona con el firmware %2.</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs.</source>
        <translation>Máquina restaurada tal como estaba el %1: funciona.</translation>
    </message>
    <message>
        <source>Press Undo Update to put the machine back as it was before the update, or Repair… to erase it and install the firmware again.</source>
        <translation>Pulse «Deshacer la actualización» para dejar la máquina como estaba antes de la actualización, o «Reparar…» para borrarla y volver a instalar el firmware.</translation>
    </message>
    <message>
        <source>To put the machine back as it was before the update, run: teskal-flash restore-machine %1</source>
        <translation>Para dejar la máquina como estaba antes de la actualización, ejecute: teskal-flash restore-machine %1</translation>
    </message>
    <message>
        <source>The machine was put back as it was before the update.</source>
        <translation>La máquina ha vuelto a quedar como estaba antes de la actualización.</translation>
    </message>
    <message>
        <source>Putting the machine back as it was before the update…</source>
        <translation>Devolviendo la máquina al estado anterior a la actualización…</translation>
    </message>
    <message>
        <source>The machine could not be put back: %1</source>
        <translation>No se pudo devolver la máquina a su estado anterior: %1</translation>
    </message>
    <message>
        <source>Back Up &amp;Whole Machine…</source>
        <translation>&amp;Hacer una copia completa de la máquina…</translation>
    </message>
    <message>
        <source>Restore W&amp;hole Machine…</source>
        <translation>Restaurar &amp;toda la máquina…</translation>
    </message>
    <message>
        <source>&amp;Snapshot Before Writing</source>
        <translation>Copia completa antes de &amp;escribir</translation>
    </message>
    <message>
        <source>Undo Update</source>
        <translation>Deshacer la actualización</translation>
    </message>
    <message>
        <source>Take a &amp;snapshot of the whole machine first</source>
        <translation>&amp;Hacer antes una copia completa de la máquina</translation>
    </message>
    <message>
        <source>Restore Whole Machine</source>
        <translation>Restaurar toda la máquina</translation>
    </message>
    <message>
        <source>Ran</source>
        <translation>Funcionaba</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Every snapshot of a whole machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>Cada copia completa de una máquina se conserva en %1. Las de la máquina conectada aparecen arriba, las más recientes primero.</translation>
    </message>
    <message>
        <source>No snapshot has been taken yet. Config &gt; Back Up Whole Machine… takes one, and so does every firmware write with Options &gt; Snapshot Before Writing; they are kept in %1.</source>
        <translation>Todavía no se ha hecho ninguna copia completa. Configuración &gt; Hacer una copia completa de la máquina… crea una, igual que cada escritura del firmware con Opciones &gt; Copia completa antes de escribir; se conservan en %1.</translation>
    </message>
</context>
<context>
    <name>WindowTexts</name>
    <message>
        <source>%1 %2, built %3, bundled firmware %4</source>
        <translation>%1 %2, compilado el %3, firmware incluido %4</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater — simulated plotter</source>
        <translation>Teskal Firmware Updater — plóter simulado</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater is already running.</source>
        <translation>Teskal Firmware Updater ya está en ejecución.</translation>
    </message>
    <message>
        <source>&amp;Teskal Firmware Updater</source>
        <translation>&amp;Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>About Teskal Firmware Updater</source>
        <translation>Acerca de Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;About Teskal Firmware Updater</source>
        <translation>&amp;Acerca de Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open Firmware File…</source>
        <translation>&amp;Abrir archivo de firmware…</translation>
    </message>
    <message>
        <source>&amp;Use Bundled Firmware</source>
        <translation>&amp;Usar el firmware incluido</translation>
    </message>
    <message>
        <source>&amp;Save Log…</source>
        <translation>&amp;Guardar registro…</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Detailed Logging</source>
        <translation>Registro &amp;detallado</translation>
    </message>
    <message>
        <source>&amp;Write Boot Partitions</source>
        <translation>Escribir particiones de &amp;arranque</translation>
    </message>
    <message>
        <source>&amp;Erase All Flash</source>
        <translation>&amp;Borrar toda la flash</translation>
    </message>
    <message>
        <source>&amp;Back Up Machine Config Before Upload</source>
        <translation>&amp;Copia de seguridad de la configuración antes de subirla</translation>
    </message>
    <message>
        <source>&amp;Config</source>
        <translation>&amp;Configuración</translation>
    </message>
    <message>
        <source>&amp;Update Config</source>
        <translation>&amp;Actualizar configuración</translation>
    </message>
    <message>
        <source>No products configured</source>
        <translation>No hay productos configurados</translation>
    </message>
    <message>
        <source>Select from &amp;Disk...</source>
        <translation>Seleccionar del &amp;disco...</translation>
    </message>
    <message>
        <source>&amp;Save Machine Config…</source>
        <translation>&amp;Guardar configuración de la máquina…</translation>
    </message>
    <message>
        <source>&amp;Compare With Machine…</source>
        <translation>&amp;Comparar con la máquina…</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Elegir &amp;archivo…</translation>
    </message>
    <message>
        <source>&amp;Restore Machine Config…</source>
        <translation>&amp;Restaurar configuración de la máquina…</translation>
    </message>
    <message>
        <source>Re&amp;pair Machine…</source>
        <translation>Re&amp;parar máquina…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Connection Check…</source>
        <translation>&amp;Comprobación de conexión…</translation>
    </message>
    <message>
        <source>&amp;Simulated Plotter</source>
        <translation>Plóter &amp;simulado</translation>
    </message>
    <message>
        <source>Starts: %1</source>
        <translation>Arranca: %1</translation>
    </message>
    <message>
        <source>Select a firmware binary (.bin)</source>
        <translation>Seleccione un archivo de firmware (.bin)</translation>
    </message>
    <message>
        <source>Select a configuration file (.yaml)</source>
        <translation>Seleccione un archivo de configuración (.yaml)</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Guardar registro</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Archivos de texto (*.txt)</translation>
    </message>
    <message>
        <source>Save Machine Config</source>
        <translation>Guardar configuración de la máquina</translation>
    </message>
    <message>
        <source>YAML files (*.yaml *.yml)</source>
        <translation>Archivos YAML (*.yaml *.yml)</translation>
    </message>
    <message>
        <source>Choose a %1 file.</source>
        <translation>Elija un archivo %1.</translation>
    </message>
    <message>
        <source>Choose a %1 or %2 file.</source>
        <translation>Elija un archivo %1 o %2.</translation>
    </message>
    <message>
        <source>Update Firmware</source>
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>Copy log to clipboard</source>
        <translation>Copiar el registro al portapapeles</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>Restaurar la configuración anterior</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparar…</translation>
    </message>
    <message>
        <source>Erase All Flash also erases the machine&apos;s settings (config.yaml). Save them now and put them back after the update?</source>
        <translation>«Borrar toda la flash» también borra los ajustes de la máquina (config.yaml). ¿Guardarlos ahora y restaurarlos después de la actualización?</translation>
    </message>
    <message>
        <source>Erase all flash anyway? The settings will be lost.</source>
        <translation>¿Borrar toda la flash de todos modos? Se perderán los ajustes.</translation>
    </message>
    <message>
        <source>Try reading them again?</source>
        <translation>¿Intentar leerlos de nuevo?</translation>
    </message>
    <message>
        <source>&amp;Save and Restore</source>
        <translation>&amp;Guardar y restaurar</translation>
    </message>
    <message>
        <source>&amp;Erase Without Saving</source>
        <translation>&amp;Borrar sin guardar</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>An update is running. Quitting now can leave the machine unable to start. Quit anyway?</source>
        <translation>Hay una actualización en curso. Si sale ahora, puede que la máquina no vuelva a arrancar. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>&amp;Mantener en marcha</translation>
    </message>
    <message>
        <source>&amp;Quit Anyway</source>
        <translation>&amp;Salir de todos modos</translation>
    </message>
    <message>
        <source>Restore Machine Config</source>
        <translation>Restaurar configuración de la máquina</translation>
    </message>
    <message>
        <source>Co&amp;mpare With Machine</source>
        <translation>Co&amp;mparar con la máquina</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>Repair Machine</source>
        <translation>Reparar máquina</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Put back:</source>
        <translation>Restaurar:</translation>
    </message>
    <message>
        <source>Newest backup of this machine (%1)</source>
        <translation>Copia más reciente de esta máquina (%1)</translation>
    </message>
    <message>
        <source>Current settings of this machine, saved first</source>
        <translation>Ajustes actuales de esta máquina, guardados antes</translation>
    </message>
    <message>
        <source>Choose what goes back…</source>
        <translation>Elija qué se restaura…</translation>
    </message>
    <message>
        <source>Backup of %1 (%2)</source>
        <translation>Copia del %1 (%2)</translation>
    </message>
    <message>
        <source>Stock configuration: %1</source>
        <translation>Configuración de fábrica: %1</translation>
    </message>
    <message>
        <source>No configuration</source>
        <translation>Ninguna configuración</translation>
    </message>
    <message>
        <source>Asking the machine&apos;s firmware whether it answers…</source>
        <translation>Preguntando si el firmware de la máquina responde…</translation>
    </message>
    <message>
        <source>Compare With Machine — %1</source>
        <translation>Comparar con la máquina — %1</translation>
    </message>
    <message>
        <source>&amp;Upload This Configuration</source>
        <translation>&amp;Subir esta configuración</translation>
    </message>
    <message>
        <source>By Key</source>
        <translation>Por clave</translation>
    </message>
    <message>
        <source>By Line</source>
        <translation>Por línea</translation>
    </message>
    <message>
        <source>No key differs.</source>
        <translation>Ninguna clave difiere.</translation>
    </message>
    <message>
        <source>The files are the same line by line.</source>
        <translation>Los archivos son iguales línea por línea.</translation>
    </message>
    <message>
        <source>The two configurations could not be compared by key; &quot;By Line&quot; shows how their texts differ.</source>
        <translation>No se pudieron comparar las dos configuraciones clave por clave; «Por línea» muestra en qué difieren sus textos.</translation>
    </message>
    <message>
        <source>The machine&apos;s config matches %1 by key: an upload would change no setting.</source>
        <translation>La configuración de la máquina coincide con %1 clave por clave: una subida no cambiaría ningún ajuste.</translation>
    </message>
    <message>
        <source>1 setting differs between the machine&apos;s config and %1. Each line shows the machine&apos;s value → the new one; + marks a key only in %1, - a key only on the machine.</source>
        <translation>1 ajuste difiere entre la configuración de la máquina y %1. Cada línea muestra el valor de la máquina → el nuevo; + marca una clave que solo está en %1, - una que solo está en la máquina.</translation>
    </message>
    <message>
        <source>%1 settings differ between the machine&apos;s config and %2. Each line shows the machine&apos;s value → the new one; + marks a key only in %2, - a key only on the machine.</source>
        <translation>%1 ajustes difieren entre la configuración de la máquina y %2. Cada línea muestra el valor de la máquina → el nuevo; + marca una clave que solo está en %2, - una que solo está en la máquina.</translation>
    </message>
    <message>
        <source>Firmware v%1 (build %2)</source>
        <translation>Firmware v%1 (compilación %2)</translation>
    </message>
    <message>
        <source>Program version %1</source>
        <translation>Versión del programa %1</translation>
    </message>
    <message>
        <source>Supported products:</source>
        <translation>Productos compatibles:</translation>
    </message>
    <message>
        <source>Licenses:</source>
        <translation>Licencias:</translation>
    </message>
    <message>
        <source>Firmware: GPL v3 (based on FluidNC)</source>
        <translation>Firmware: GPL v3 (basado en FluidNC)</translation>
    </message>
    <message>
        <source>Flash stub: Apache License 2.0</source>
        <translation>Programa de escritura flash: Apache License 2.0</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Código fuente:</translation>
    </message>
    <message>
        <source>© 2026 Corvane. All rights reserved.</source>
        <translation>© 2026 Corvane. Todos los derechos reservados.</translation>
    </message>
</context>
</TS>
