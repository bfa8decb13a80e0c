<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BatchHost::Messages</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltan %1</translation>
    </message>
    <message>
        <source>No more input: this file and all that follow with questions are skipped.</source>
        <translation>No hay más entrada: se omiten este archivo y los siguientes que planteen preguntas.</translation>
    </message>
    <message>
        <source>%1? (add &quot;all&quot; for all that follow)</source>
        <translation>¿%1? (añada «all» para todos los siguientes)</translation>
    </message>
    <message>
        <source>the server ended unexpectedly; a new one continues.</source>
        <translation>el servidor terminó inesperadamente; continúa uno nuevo.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly.</source>
        <translation>el servidor terminó inesperadamente.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1; a new one continues.</source>
        <translation>el servidor terminó inesperadamente mientras procesaba %1; continúa uno nuevo.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1.</source>
        <translation>el servidor terminó inesperadamente mientras procesaba %1.</translation>
    </message>
    <message>
        <source>Starting the server</source>
        <translation>Iniciando el servidor</translation>
    </message>
    <message>
        <source>Cancelling; interrupt again to end at once.</source>
        <translation>Cancelando; interrumpa otra vez para terminar de inmediato.</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Cancelando</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Escritas</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidas</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Con error</translation>
    </message>
    <message>
        <source>Not processed</source>
        <translation>Sin procesar</translation>
    </message>
    <message>
        <source>Written with a warning</source>
        <translation>Escrita con una advertencia</translation>
    </message>
    <message>
        <source>1 file with another extension was left out, but begins like a picture; --verbose names them, --include takes them.</source>
        <translation>Se dejó fuera 1 archivo con otra extensión, pero empieza como una imagen; --verbose los nombra, --include los incluye.</translation>
    </message>
    <message>
        <source>%1 files with other extensions were left out, but begin like pictures; --verbose names them, --include takes them.</source>
        <translation>Se dejaron fuera %1 archivos con otras extensiones, pero empiezan como imágenes; --verbose los nombra, --include los incluye.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>to %1, in %2 (%3 a second)</source>
        <translation>en %1, en %2 (%3 por segundo)</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, is missing now: %2</source>
        <translation>%1 de ellas, escrita antes de la interrupción, falta ahora: %2</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, are missing now: %2</source>
        <translation>%1 de ellas, escritas antes de la interrupción, faltan ahora: %2</translation>
    </message>
    <message>
        <source>1 warning:</source>
        <translation>1 advertencia:</translation>
    </message>
    <message>
        <source>%1 warnings:</source>
        <translation>%1 advertencias:</translation>
    </message>
    <message>
        <source>and %1 more; use --report FILE for all</source>
        <translation>y %1 más; use --report FILE para verlas todas</translation>
    </message>
    <message>
        <source>required</source>
        <translation>obligatorio</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>opcional</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>valor predeterminado %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>%1 bits a channel; transparency: %2; CMYK: %3; longest side %4 pixels</source>
        <translation>%1 bits por canal; transparencia: %2; CMYK: %3; lado más largo: %4 píxeles</translation>
    </message>
    <message>
        <source>Files that can be read: %1</source>
        <translation>Archivos que se pueden leer: %1</translation>
    </message>
    <message>
        <source>%1: a job without pictures; give them to run or plan, after the job.</source>
        <translation>%1: un trabajo sin imágenes; se indican a run o plan, después del trabajo.</translation>
    </message>
    <message>
        <source>%1: a job without pictures and output folder; give them to run or plan.</source>
        <translation>%1: un trabajo sin imágenes ni carpeta de salida; se indican a run o plan.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture.</source>
        <translation>%1: un trabajo de 1 imagen.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture, without an output folder; give --output to run or plan.</source>
        <translation>%1: un trabajo de 1 imagen, sin carpeta de salida; indique --output a run o plan.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures.</source>
        <translation>%1: un trabajo de %2 imágenes.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures, without an output folder; give --output to run or plan.</source>
        <translation>%1: un trabajo de %2 imágenes, sin carpeta de salida; indique --output a run o plan.</translation>
    </message>
    <message>
        <source>Looking at pictures: %1 of %2</source>
        <translation>Examinando imágenes: %1 de %2</translation>
    </message>
    <message>
        <source>%1 is left out: it begins like a %2 file, but its extension is not known.</source>
        <translation>%1 se deja fuera: empieza como un archivo %2, pero su extensión es desconocida.</translation>
    </message>
    <message>
        <source>Folders read: %1, pictures found: %2, now in %3</source>
        <translation>Carpetas leídas: %1, imágenes encontradas: %2, ahora en %3</translation>
    </message>
    <message>
        <source>1 picture</source>
        <translation>1 imagen</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>%1 imágenes</translation>
    </message>
    <message>
        <source>Inputs: %1</source>
        <translation>Entradas: %1</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Planning %1 files</source>
        <translation>Planificando %1 archivos</translation>
    </message>
    <message>
        <source>replaces the original</source>
        <translation>reemplaza el original</translation>
    </message>
    <message>
        <source>sizes in pixels are not known: %1.</source>
        <translation>no se conocen los tamaños en píxeles: %1.</translation>
    </message>
    <message>
        <source>%1 file: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 archivo: %2 sin problemas, %3 entre corchetes. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>%1 files: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 archivos: %2 sin problemas, %3 entre corchetes. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>comes along</source>
        <translation>incluido</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>the preset %1 in %2 cannot be used: %3</source>
        <translation>el ajuste %1 en %2 no se puede usar: %3</translation>
    </message>
    <message>
        <source>%1: the preset %2.</source>
        <translation>%1: el ajuste %2.</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1.</source>
        <translation>no se puede escribir en la salida estándar: %1.</translation>
    </message>
    <message>
        <source>%1: name files, or folders with pictures that can be read</source>
        <translation>%1: indique archivos o carpetas con imágenes que se puedan leer</translation>
    </message>
    <message>
        <source>%1: use --output DIR</source>
        <translation>%1: use --output DIR</translation>
    </message>
    <message>
        <source>%1; use --force to replace it</source>
        <translation>%1; use --force para reemplazarlo</translation>
    </message>
    <message>
        <source>%1. Use --resume with --output alone to resume that run, or run this job without --resume</source>
        <translation>%1. Use --resume solo con --output para reanudar esa ejecución, o ejecute este trabajo sin --resume</translation>
    </message>
    <message>
        <source>%1; use --resume --run NAME with one of these names</source>
        <translation>%1; use --resume --run NAME con uno de estos nombres</translation>
    </message>
    <message>
        <source>an earlier run of this job was interrupted; this run starts anew. Use --resume to continue an interrupted run.</source>
        <translation>una ejecución anterior de este trabajo se interrumpió; esta empieza de nuevo. Use --resume para continuar una ejecución interrumpida.</translation>
    </message>
    <message>
        <source>1 other run was interrupted in %1; it can still be resumed: %2</source>
        <translation>1 ejecución más se interrumpió en %1; aún se puede reanudar: %2</translation>
    </message>
    <message>
        <source>%3 other runs were interrupted in %1; they can still be resumed: %2</source>
        <translation>%3 ejecuciones más se interrumpieron en %1; aún se pueden reanudar: %2</translation>
    </message>
    <message>
        <source>should it be interrupted, the run cannot be resumed: %1.</source>
        <translation>si se interrumpe, la ejecución no se podrá reanudar: %1.</translation>
    </message>
    <message>
        <source>another batch server is running, and this system has only one pipe for it; try again when that run is over.</source>
        <translation>hay otro servidor de lotes en marcha, y este sistema solo tiene un canal para él; inténtelo de nuevo cuando termine esa ejecución.</translation>
    </message>
    <message>
        <source>To resume: %1</source>
        <translation>Para reanudar: %1</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: 1 picture was left out.</source>
        <translation>sin un terminal no se pudo preguntar a nadie: se omitió 1 imagen.</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: %1 pictures were left out.</source>
        <translation>sin un terminal no se pudo preguntar a nadie: se omitieron %1 imágenes.</translation>
    </message>
    <message>
        <source>%1 decides such cases.</source>
        <translation>%1 decide estos casos.</translation>
    </message>
    <message>
        <source>%1 and %2 decide such cases.</source>
        <translation>%1 y %2 deciden estos casos.</translation>
    </message>
    <message>
        <source>1 result was renamed, because other sources of the job have such names.</source>
        <translation>Se cambió el nombre de 1 resultado, porque otros originales del trabajo se llaman así.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because other sources of the job have such names.</source>
        <translation>Se cambió el nombre de %1 resultados, porque otros originales del trabajo se llaman así.</translation>
    </message>
    <message>
        <source>1 result was renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>Se cambió el nombre de 1 resultado, porque un original se llama así; --in-place reemplaza los originales.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>Se cambió el nombre de %1 resultados, porque hay originales que se llaman así; --in-place reemplaza los originales.</translation>
    </message>
    <message>
        <source>no worker can be started; VelkoraBatchWorker belongs beside %1.</source>
        <translation>no se puede iniciar ningún proceso de trabajo; VelkoraBatchWorker debe estar junto a %1.</translation>
    </message>
    <message>
        <source>No picture was processed. --structure input keeps the folders of the inputs, --on-name-exists rename numbers such names, and another --name, --prefix or --suffix tells them apart.</source>
        <translation>No se procesó ninguna imagen. --structure input conserva las carpetas de las entradas, --on-name-exists rename numera esos nombres, y otro --name, --prefix o --suffix los distingue.</translation>
    </message>
    <message>
        <source>the server ended before it had processed anything; see its messages above.</source>
        <translation>el servidor terminó antes de procesar nada; vea sus mensajes más arriba.</translation>
    </message>
    <message>
        <source>the server cannot be started; VelkoraBatchProcessing belongs beside %1.</source>
        <translation>no se puede iniciar el servidor; VelkoraBatchProcessing debe estar junto a %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>More: velkora-batch --help, or velkora-batch help COMMAND</source>
        <translation>Más: velkora-batch --help o velkora-batch help COMMAND</translation>
    </message>
    <message>
        <source>velkora-batch %1.</source>
        <translation>velkora-batch %1.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>prints this text; after a command, the help of that command</source>
        <translation>muestra este texto; después de una orden, la ayuda de esa orden</translation>
    </message>
    <message>
        <source>prints the version; with --verbose, also how this system confines the processes that read pictures</source>
        <translation>muestra la versión; con --verbose, también cómo limita este sistema los procesos que leen imágenes</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1. Values: %2</source>
        <translation>%1. Valores: %2</translation>
    </message>
    <message>
        <source>%1. May be given several times</source>
        <translation>%1. Se puede indicar varias veces</translation>
    </message>
    <message>
        <source>(%1 bytes in the job)</source>
        <translation>(%1 bytes en el trabajo)</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>1 picture.</source>
        <translation>1 imagen.</translation>
    </message>
    <message>
        <source>%1 pictures.</source>
        <translation>%1 imágenes.</translation>
    </message>
    <message>
        <source>1 picture, %1 new.</source>
        <translation>1 imagen, %1 nueva.</translation>
    </message>
    <message>
        <source>%1 pictures, %2 new.</source>
        <translation>%1 imágenes, %2 nuevas.</translation>
    </message>
    <message>
        <source>1 name is taken.</source>
        <translation>1 nombre está ocupado.</translation>
    </message>
    <message>
        <source>%1 names are taken.</source>
        <translation>%1 nombres están ocupados.</translation>
    </message>
    <message>
        <source>1 file that exists will be replaced.</source>
        <translation>Se reemplazará 1 archivo existente.</translation>
    </message>
    <message>
        <source>%1 files that exist will be replaced.</source>
        <translation>Se reemplazarán %1 archivos existentes.</translation>
    </message>
    <message>
        <source>1 picture cannot be written.</source>
        <translation>1 imagen no se puede escribir.</translation>
    </message>
    <message>
        <source>%1 pictures cannot be written.</source>
        <translation>%1 imágenes no se pueden escribir.</translation>
    </message>
    <message>
        <source>There is too little room: the results take %1, but only %2 are free.</source>
        <translation>No hay espacio suficiente: los resultados ocupan %1, pero solo hay %2 libres.</translation>
    </message>
    <message>
        <source>There may be too little room: the results take about %1 (± %2 %), but only %3 are free.</source>
        <translation>Puede que no haya espacio suficiente: los resultados ocupan unos %1 (± %2 %), pero solo hay %3 libres.</translation>
    </message>
    <message>
        <source>The results take %1.</source>
        <translation>Los resultados ocupan %1.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %).</source>
        <translation>Los resultados ocupan unos %1 (± %2 %).</translation>
    </message>
    <message>
        <source>The results take %1; %2 are free.</source>
        <translation>Los resultados ocupan %1; hay %2 libres.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %); %3 are free.</source>
        <translation>Los resultados ocupan unos %1 (± %2 %); hay %3 libres.</translation>
    </message>
    <message>
        <source>Add pictures to begin.</source>
        <translation>Añada imágenes para empezar.</translation>
    </message>
    <message>
        <source>What you edit cannot be kept in %1; save the job before the window ends.</source>
        <translation>No se puede conservar en %1 lo que se edita; guarde el trabajo antes de cerrar la ventana.</translation>
    </message>
    <message>
        <source>The command line that does the same is on the clipboard.</source>
        <translation>La línea de comandos que hace lo mismo está en el portapapeles.</translation>
    </message>
    <message>
        <source>&amp;New job</source>
        <translation>&amp;Nuevo trabajo</translation>
    </message>
    <message>
        <source>Open &amp;job…</source>
        <translation>Abrir &amp;trabajo…</translation>
    </message>
    <message>
        <source>R&amp;ecent jobs</source>
        <translation>Trabajos &amp;recientes</translation>
    </message>
    <message>
        <source>&amp;Save job</source>
        <translation>&amp;Guardar trabajo</translation>
    </message>
    <message>
        <source>Save job &amp;as…</source>
        <translation>Guardar trabajo c&amp;omo…</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>Co&amp;piar como comando</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (no existe)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>&amp;Save as preset…</source>
        <translation>&amp;Guardar como ajuste…</translation>
    </message>
    <message>
        <source>&amp;Rename preset…</source>
        <translation>Cambiar &amp;nombre del ajuste…</translation>
    </message>
    <message>
        <source>&amp;Delete preset</source>
        <translation>&amp;Eliminar ajuste</translation>
    </message>
    <message>
        <source>&amp;Import preset…</source>
        <translation>&amp;Importar ajuste…</translation>
    </message>
    <message>
        <source>&amp;Export preset…</source>
        <translation>E&amp;xportar ajuste…</translation>
    </message>
    <message>
        <source>The job before this one was not saved.</source>
        <translation>El trabajo anterior no se guardó.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Recuperarlo</translation>
    </message>
    <message>
        <source>The window did not end as it should; this is what was edited last.</source>
        <translation>La ventana no se cerró correctamente; esto es lo último que se editó.</translation>
    </message>
    <message>
        <source>Import preset</source>
        <translation>Importar ajuste</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Export preset</source>
        <translation>Exportar ajuste</translation>
    </message>
    <message>
        <source>The settings are saved in %1.</source>
        <translation>La configuración se ha guardado en %1.</translation>
    </message>
    <message>
        <source>The preset %1 is deleted; the settings stay as they are.</source>
        <translation>El ajuste %1 se ha eliminado; la configuración no cambia.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Batch jobs (%1)</source>
        <translation>Trabajos por lotes (%1)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The job &quot;%1&quot; has changes that are not saved.</source>
        <translation>El trabajo «%1» tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>&amp;Descartar cambios</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nuevo trabajo</translation>
    </message>
    <message>
        <source>Open job</source>
        <translation>Abrir trabajo</translation>
    </message>
    <message>
        <source>Save job</source>
        <translation>Guardar trabajo</translation>
    </message>
    <message>
        <source>%1 exists; choose it to replace it.</source>
        <translation>%1 ya existe; elíjalo para reemplazarlo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Cerrar el aviso</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Sin ajuste</translation>
    </message>
    <message>
        <source>This preset cannot be used as it is: %1</source>
        <translation>Este ajuste no se puede usar tal como está: %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Ajuste %1</translation>
    </message>
    <message>
        <source>The preset %1 cannot be used as it is: %2</source>
        <translation>El ajuste %1 no se puede usar tal como está: %2</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nombre del ajuste</translation>
    </message>
    <message>
        <source>Cancel the naming of the preset</source>
        <translation>Cancelar la asignación de nombre al ajuste</translation>
    </message>
    <message>
        <source>Save the settings as the preset</source>
        <translation>Guardar la configuración como ajuste</translation>
    </message>
    <message>
        <source>New name of the preset %1</source>
        <translation>Nuevo nombre del ajuste %1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Replace the preset %1</source>
        <translation>Reemplazar el ajuste %1</translation>
    </message>
    <message>
        <source>You have a preset of this name; it would be replaced.</source>
        <translation>Ya hay un ajuste propio con este nombre; se reemplazaría.</translation>
    </message>
    <message>
        <source>Processes pictures in batches, in a window.</source>
        <translation>Procesa imágenes por lotes, en una ventana.</translation>
    </message>
    <message>
        <source>Pictures and folders to add.</source>
        <translation>Imágenes y carpetas que se añaden.</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Dejar de añadir</translation>
    </message>
    <message>
        <source>Adding pictures…</source>
        <translation>Añadiendo imágenes…</translation>
    </message>
    <message>
        <source>Problems of this kind: %1; point here to read them.</source>
        <translation>Problemas de este tipo: %1; pase el puntero por aquí para leerlos.</translation>
    </message>
    <message>
        <source>Add pictures</source>
        <translation>Añadir imágenes</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>%1 does not exist any more</source>
        <translation>%1 ya no existe</translation>
    </message>
    <message>
        <source>Add &amp;files…</source>
        <translation>Añadir &amp;archivos…</translation>
    </message>
    <message>
        <source>Add f&amp;older…</source>
        <translation>Añadir &amp;carpeta…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>S&amp;how in folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>▾ %1 (%2)</source>
        <translation>▾ %1 (%2)</translation>
    </message>
    <message>
        <source>▸ %1 (%2)</source>
        <translation>▸ %1 (%2)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Grid of pictures</source>
        <translation>Cuadrícula de imágenes</translation>
    </message>
    <message>
        <source>List of pictures</source>
        <translation>Lista de imágenes</translation>
    </message>
    <message>
        <source>1 picture in 1 folder</source>
        <translation>1 imagen en 1 carpeta</translation>
    </message>
    <message>
        <source>%1 pictures in 1 folder</source>
        <translation>%1 imágenes en 1 carpeta</translation>
    </message>
    <message>
        <source>%1 pictures in %2 folders</source>
        <translation>%1 imágenes en %2 carpetas</translation>
    </message>
    <message>
        <source>Drop pictures and folders here, or add them with the buttons below.</source>
        <translation>Arrastre aquí imágenes y carpetas, o añádalas con los botones de abajo.</translation>
    </message>
    <message>
        <source>Show only pictures whose names contain</source>
        <translation>Mostrar solo imágenes cuyo nombre contenga</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Show only pictures with the state</source>
        <translation>Mostrar solo imágenes con el estado</translation>
    </message>
    <message>
        <source>All pictures</source>
        <translation>Todas las imágenes</translation>
    </message>
    <message>
        <source>Name taken</source>
        <translation>Nombre ocupado</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Remove pictures</source>
        <translation>Quitar imágenes</translation>
    </message>
    <message>
        <source>%1 of %2 pictures</source>
        <translation>%1 de %2 imágenes</translation>
    </message>
    <message>
        <source>Cannot be written</source>
        <translation>No se puede escribir</translation>
    </message>
    <message>
        <source>This file cannot be shown.</source>
        <translation>No se puede mostrar este archivo.</translation>
    </message>
    <message>
        <source>Folder %1, pictures: %2</source>
        <translation>Carpeta %1, imágenes: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, written as %2</source>
        <translation>%1, se escribe como %2</translation>
    </message>
    <message>
        <source>%1, written as %2: %3</source>
        <translation>%1, se escribe como %2: %3</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En proceso</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Línea entre antes y después</translation>
    </message>
    <message>
        <source>Sizes before and after</source>
        <translation>Tamaño antes y después</translation>
    </message>
    <message>
        <source>State of the preview</source>
        <translation>Estado de la vista previa</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Actualizando</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>Show all of the picture (1)</source>
        <translation>Mostrar toda la imagen (1)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One pixel of the result on one pixel of the screen (2)</source>
        <translation>Un píxel del resultado en un píxel de la pantalla (2)</translation>
    </message>
    <message>
        <source>&amp;200 %</source>
        <translation>&amp;200 %</translation>
    </message>
    <message>
        <source>One pixel of the result on four pixels of the screen (3)</source>
        <translation>Un píxel del resultado en cuatro píxeles de la pantalla (3)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Línea</translation>
    </message>
    <message>
        <source>Before and after with a line between them (4)</source>
        <translation>Antes y después con una línea en medio (4)</translation>
    </message>
    <message>
        <source>&amp;Side by side</source>
        <translation>La&amp;do a lado</translation>
    </message>
    <message>
        <source>Before and after side by side (5)</source>
        <translation>Antes y después lado a lado (5)</translation>
    </message>
    <message>
        <source>Preview &amp;anew</source>
        <translation>Actualizar &amp;vista previa</translation>
    </message>
    <message>
        <source>Make the preview anew from the file on the disk (F5)</source>
        <translation>Rehacer la vista previa a partir del archivo en el disco (F5)</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>A&amp;ntes</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Show the picture before as long as this is held (space bar on the picture)</source>
        <translation>Mostrar la imagen de antes mientras se mantiene pulsado (barra espaciadora sobre la imagen)</translation>
    </message>
    <message>
        <source>Choose a picture to see what becomes of it.</source>
        <translation>Elija una imagen para ver en qué se convierte.</translation>
    </message>
    <message>
        <source>%1 × %2 px, %3</source>
        <translation>%1 × %2 px, %3</translation>
    </message>
    <message>
        <source>%1 × %2 px, %3 → %4 × %5 px, %6</source>
        <translation>%1 × %2 px, %3 → %4 × %5 px, %6</translation>
    </message>
    <message>
        <source>Exact: %1 of %2 bytes, as a run writes it; made in %3 s</source>
        <translation>Exacto: %1 de %2 bytes, como lo escribe una ejecución; hecho en %3 s</translation>
    </message>
    <message>
        <source>The result is too large to be shown here.</source>
        <translation>El resultado es demasiado grande para mostrarlo aquí.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes</translation>
    </message>
    <message>
        <source>after</source>
        <translation>después</translation>
    </message>
    <message>
        <source>Another program is running a batch on this computer: close it, and start this one anew.</source>
        <translation>Otro programa está procesando un lote en este equipo: ciérrelo y vuelva a iniciar este.</translation>
    </message>
    <message>
        <source>&amp;Do this for the rest of the run</source>
        <translation>&amp;Hacer lo mismo en el resto de la ejecución</translation>
    </message>
    <message>
        <source>Question about a picture</source>
        <translation>Pregunta sobre una imagen</translation>
    </message>
    <message>
        <source>The file that exists</source>
        <translation>El archivo existente</translation>
    </message>
    <message>
        <source>The picture whose result would have its name</source>
        <translation>La imagen cuyo resultado tendría ese nombre</translation>
    </message>
    <message>
        <source>Interrupted run</source>
        <translation>Ejecución interrumpida</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>O&amp;lvidar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
    </message>
    <message>
        <source>&amp;Cancel the run</source>
        <translation>&amp;Cancelar la ejecución</translation>
    </message>
    <message>
        <source>Resu&amp;me the run</source>
        <translation>Reanudar &amp;la ejecución</translation>
    </message>
    <message>
        <source>S&amp;how failed</source>
        <translation>Mostrar las &amp;que fallaron</translation>
    </message>
    <message>
        <source>Retr&amp;y failed</source>
        <translation>Relan&amp;zar fallidas</translation>
    </message>
    <message>
        <source>Open fo&amp;lder</source>
        <translation>E&amp;xplorar carpeta</translation>
    </message>
    <message>
        <source>Sa&amp;ve report</source>
        <translation>&amp;Guardar informe</translation>
    </message>
    <message>
        <source>Put &amp;away</source>
        <translation>&amp;Hecho</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso de la ejecución</translation>
    </message>
    <message>
        <source>The batch server has ended unexpectedly; a new one goes on.</source>
        <translation>El servidor de lotes terminó inesperadamente; continúa uno nuevo.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: its journal cannot be read.</source>
        <translation>No se puede reanudar la ejecución: su diario no se puede leer.</translation>
    </message>
    <message>
        <source>The failed pictures cannot be tried again: the journal of their run cannot be used.</source>
        <translation>No se pueden volver a procesar las imágenes que fallaron: el diario de su ejecución no se puede usar.</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>&amp;Proseguir</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 de %2 procesadas</translation>
    </message>
    <message>
        <source>%1 of %2 done, %3 left</source>
        <translation>%1 de %2 procesadas, faltan %3</translation>
    </message>
    <message>
        <source>Pausing: pictures in work are finished first</source>
        <translation>Pausando: antes se terminan las imágenes en proceso</translation>
    </message>
    <message>
        <source>Paused, %1 of %2 done</source>
        <translation>En pausa, %1 de %2 procesadas</translation>
    </message>
    <message>
        <source>%1 written, %2 skipped, %3 failed</source>
        <translation>%1 escritas, %2 omitidas, %3 con error</translation>
    </message>
    <message>
        <source>Finished in %1: all %2 pictures were written.</source>
        <translation>Terminado en %1: se escribieron las %2 imágenes.</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 skipped, %4 failed.</source>
        <translation>Terminado en %1: %2 escritas, %3 omitidas, %4 con error.</translation>
    </message>
    <message>
        <source>Nothing was written: %1.</source>
        <translation>No se escribió nada: %1.</translation>
    </message>
    <message>
        <source>Nothing can be written: the program VelkoraBatchWorker is missing or cannot be started.</source>
        <translation>No se puede escribir nada: el programa VelkoraBatchWorker falta o no se puede iniciar.</translation>
    </message>
    <message>
        <source>The batch server was lost after %1 of %2 pictures. The run can be resumed.</source>
        <translation>El servidor de lotes se perdió tras %1 de %2 imágenes. La ejecución se puede reanudar.</translation>
    </message>
    <message>
        <source>Cancelled after %1 of %2 pictures. The run can be resumed.</source>
        <translation>Cancelado tras %1 de %2 imágenes. La ejecución se puede reanudar.</translation>
    </message>
    <message>
        <source>A run was interrupted after %1 of %2 pictures. Its results go to %3.</source>
        <translation>Se interrumpió una ejecución tras %1 de %2 imágenes. Sus resultados van a %3.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>The result of %1 cannot be written: %2.</source>
        <translation>No se puede escribir el resultado de %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be processed: %2.</source>
        <translation>No se puede procesar %1: %2.</translation>
    </message>
    <message>
        <source>The name %1, for the result of %2, is taken.</source>
        <translation>El nombre %1, para el resultado de %2, está ocupado.</translation>
    </message>
    <message>
        <source>%1 cannot be written in this format: %2.</source>
        <translation>No se puede escribir %1 en este formato: %2.</translation>
    </message>
    <message>
        <source>S&amp;kip it</source>
        <translation>Omitir &amp;la imagen</translation>
    </message>
    <message>
        <source>Stop t&amp;he run</source>
        <translation>Finali&amp;zar la ejecución</translation>
    </message>
    <message>
        <source>Over&amp;write</source>
        <translation>Sobrescribir el e&amp;xistente</translation>
    </message>
    <message>
        <source>Number t&amp;he new one</source>
        <translation>A&amp;gregar un número al nuevo</translation>
    </message>
    <message>
        <source>Wr&amp;ite the nearest format</source>
        <translation>Usar el formato más pró&amp;ximo</translation>
    </message>
    <message>
        <source>%1, switched off</source>
        <translation>%1, desactivado</translation>
    </message>
    <message>
        <source>Switch on %1</source>
        <translation>Activar «%1»</translation>
    </message>
    <message>
        <source>Switch off %1</source>
        <translation>Desactivar «%1»</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar «%1»</translation>
    </message>
    <message>
        <source>Remove %1 effects</source>
        <translation>Quitar %1 efectos</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Añadir «%1»</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Duplicar «%1»</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Mover «%1»</translation>
    </message>
    <message>
        <source>Effects in the order in which they are applied</source>
        <translation>Efectos en el orden en que se aplican</translation>
    </message>
    <message>
        <source>Effec&amp;ts</source>
        <translation>E&amp;fectos</translation>
    </message>
    <message>
        <source>Add an effect</source>
        <translation>Añadir un efecto</translation>
    </message>
    <message>
        <source>Duplicate the effect</source>
        <translation>Duplicar el efecto</translation>
    </message>
    <message>
        <source>Remove the effect</source>
        <translation>Quitar el efecto</translation>
    </message>
    <message>
        <source>Apply the effect earlier</source>
        <translation>Aplicar antes el efecto</translation>
    </message>
    <message>
        <source>Apply the effect later</source>
        <translation>Aplicar después el efecto</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>No effects</source>
        <translation>Sin efectos</translation>
    </message>
    <message>
        <source>All effects are switched off</source>
        <translation>Todos los efectos están desactivados</translation>
    </message>
    <message>
        <source>Choose a colour for %1</source>
        <translation>Elegir color: %1</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 becomes %4</source>
        <translation>Punto %1 de %2: %3 pasa a %4</translation>
    </message>
    <message>
        <source>Click to add a point and drag to move it; a double click removes it. With keys: Page Up and Page Down choose a point, arrows move it, Insert adds one, Delete removes it.</source>
        <translation>Haga clic para añadir un punto y arrástrelo para moverlo; un doble clic lo quita. Con el teclado: Re Pág y Av Pág eligen un punto, las flechas lo mueven, Insertar añade uno, Suprimir lo quita.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>Elegir: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no complete path; it must begin at the root, such as %2.</source>
        <translation>«%1» no es una ruta completa; debe empezar en la raíz, como %2.</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Definir: %1</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Automatic levels</source>
        <translation>Niveles automáticos</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>Profundidad de bits</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desenfocar</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Brightness and contrast</source>
        <translation>Brillo y contraste</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Chroma subsampling</source>
        <translation>Submuestreo de color</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>Claridad</translation>
    </message>
    <message>
        <source>Clipped share</source>
        <translation>Parte recortada</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Compression level</source>
        <translation>Nivel de compresión</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Creator and rights</source>
        <translation>Autor y derechos</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Deflate</source>
        <translation>Deflate</translation>
    </message>
    <message>
        <source>Denoise</source>
        <translation>Reducir ruido</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Each on its own</source>
        <translation>Cada uno por separado</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>Esfuerzo</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Interpolation</source>
        <translation>Interpolación</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Kept metadata</source>
        <translation>Metadatos que se conservan</translation>
    </message>
    <message>
        <source>Keep the time of the file</source>
        <translation>Conservar la fecha del archivo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveles</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminancia</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>Tabla de color</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margen</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Por ciento</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Posterize</source>
        <translation>Posterizar</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progresivo</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Radius (sigma)</source>
        <translation>Radio (sigma)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidad</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Empieza en</translation>
    </message>
    <message>
        <source>Stops</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Tetrahedral</source>
        <translation>Tetraédrica</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Juntos</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Trilinear</source>
        <translation>Trilineal</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Vivacidad</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Viñeta</translation>
    </message>
    <message>
        <source>Watermark with a picture</source>
        <translation>Marca de agua con imagen</translation>
    </message>
    <message>
        <source>Watermark with a text</source>
        <translation>Marca de agua con texto</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance de blancos</translation>
    </message>
    <message>
        <source>Zstandard</source>
        <translation>Zstandard</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recorte</translation>
    </message>
    <message>
        <source>Kind of crop</source>
        <translation>Tipo de recorte</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>Ratio %1 : %2</source>
        <translation>Proporción %1 : %2</translation>
    </message>
    <message>
        <source>Ratio %1 : %2, turned with the picture</source>
        <translation>Proporción %1 : %2, girada con la imagen</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2</source>
        <translation>Lo que atrae la vista, proporción %1 : %2</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2, turned with the picture</source>
        <translation>Lo que atrae la vista, proporción %1 : %2, girada con la imagen</translation>
    </message>
    <message>
        <source>Scaled and cut to %1 × %2 px</source>
        <translation>Escalado y recortado a %1 × %2 px</translation>
    </message>
    <message>
        <source>Cut to %1 × %2 px</source>
        <translation>Recortado a %1 × %2 px</translation>
    </message>
    <message>
        <source>Borders of one colour are cut off</source>
        <translation>Se cortan los bordes de un solo color</translation>
    </message>
    <message>
        <source>No crop</source>
        <translation>Sin recorte</translation>
    </message>
    <message>
        <source>Error&amp;s</source>
        <translation>Errore&amp;s</translation>
    </message>
    <message>
        <source>A picture that cannot be read</source>
        <translation>Una imagen que no se puede leer</translation>
    </message>
    <message>
        <source>A result that cannot be written</source>
        <translation>Un resultado que no se puede escribir</translation>
    </message>
    <message>
        <source>A picture that cannot be processed</source>
        <translation>Una imagen que no se puede procesar</translation>
    </message>
    <message>
        <source>A name that is taken</source>
        <translation>Un nombre ocupado</translation>
    </message>
    <message>
        <source>A format that cannot hold the picture</source>
        <translation>Un formato que no admite la imagen</translation>
    </message>
    <message>
        <source>You are asked</source>
        <translation>Se pregunta siempre</translation>
    </message>
    <message>
        <source>Decided in advance</source>
        <translation>Decidido de antemano</translation>
    </message>
    <message>
        <source>You are asked in %1 of %2 cases</source>
        <translation>Se pregunta en %1 de %2 casos</translation>
    </message>
    <message>
        <source>O&amp;utput folder</source>
        <translation>Carpe&amp;ta de salida</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Carpeta de los resultados</translation>
    </message>
    <message>
        <source>The format of each input</source>
        <translation>Mismo formato que la entrada</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>%1, quality %2</source>
        <translation>%1, calidad %2</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormato</translation>
    </message>
    <message>
        <source>Lay pictures on a frame</source>
        <translation>Colocar las imágenes sobre un marco</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Margen izquierdo</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margen superior</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Margen derecho</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Margen inferior</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Modo de fusión</translation>
    </message>
    <message>
        <source>Opacity of the picture</source>
        <translation>Opacidad de la imagen</translation>
    </message>
    <message>
        <source>A frame of its own size</source>
        <translation>Marco con tamaño propio</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Ancho del marco</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Alto del marco</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Color del fondo</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Scale of the pattern</source>
        <translation>Escala del motivo</translation>
    </message>
    <message>
        <source>Picture of the background</source>
        <translation>Imagen de fondo</translation>
    </message>
    <message>
        <source>Opacity of the background</source>
        <translation>Opacidad del fondo</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>Tipo de sombra</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Opacity of the shadow</source>
        <translation>Opacidad de la sombra</translation>
    </message>
    <message>
        <source>Direction of the light</source>
        <translation>Dirección de la luz</translation>
    </message>
    <message>
        <source>Distance of the shadow</source>
        <translation>Distancia de la sombra</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>Suavidad de la sombra</translation>
    </message>
    <message>
        <source>Fr&amp;ame</source>
        <translation>&amp;Marco</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>Sin marco</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px with a shadow</source>
        <translation>Marco de %1 × %2 px con sombra</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px</source>
        <translation>Marco de %1 × %2 px</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px with a shadow</source>
        <translation>Márgenes %1, %2, %3, %4 px con sombra</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px</source>
        <translation>Márgenes %1, %2, %3, %4 px</translation>
    </message>
    <message>
        <source>&amp;Metadata</source>
        <translation>Meta&amp;datos</translation>
    </message>
    <message>
        <source>All metadata is kept</source>
        <translation>Se conservan todos los metadatos</translation>
    </message>
    <message>
        <source>No metadata is kept</source>
        <translation>No se conserva ningún metadato</translation>
    </message>
    <message>
        <source>Kept are %1</source>
        <translation>Se conservan: %1</translation>
    </message>
    <message>
        <source>First part</source>
        <translation>Primera parte</translation>
    </message>
    <message>
        <source>Text of the first part</source>
        <translation>Texto de la primera parte</translation>
    </message>
    <message>
        <source>First number of the first part</source>
        <translation>Primer número de la primera parte</translation>
    </message>
    <message>
        <source>Digits of the first part</source>
        <translation>Dígitos de la primera parte</translation>
    </message>
    <message>
        <source>Between the first and the middle part</source>
        <translation>Entre la primera parte y la central</translation>
    </message>
    <message>
        <source>Middle part</source>
        <translation>Parte central</translation>
    </message>
    <message>
        <source>Text of the middle part</source>
        <translation>Texto de la parte central</translation>
    </message>
    <message>
        <source>First number of the middle part</source>
        <translation>Primer número de la parte central</translation>
    </message>
    <message>
        <source>Digits of the middle part</source>
        <translation>Dígitos de la parte central</translation>
    </message>
    <message>
        <source>Between the middle and the last part</source>
        <translation>Entre la parte central y la última</translation>
    </message>
    <message>
        <source>Last part</source>
        <translation>Última parte</translation>
    </message>
    <message>
        <source>Text of the last part</source>
        <translation>Texto de la última parte</translation>
    </message>
    <message>
        <source>First number of the last part</source>
        <translation>Primer número de la última parte</translation>
    </message>
    <message>
        <source>Digits of the last part</source>
        <translation>Dígitos de la última parte</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>Nom&amp;bres</translation>
    </message>
    <message>
        <source>Example, as if it had been taken on 2024-07-31 at 14:05:09: %1</source>
        <translation>Ejemplo, como si se hubiera tomado el 2024-07-31 a las 14:05:09: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Ejemplo: %1</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Según el formato</translation>
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
        <source>Co&amp;lour profile</source>
        <translation>Perf&amp;il de color</translation>
    </message>
    <message>
        <source>Choose the file of a colour profile</source>
        <translation>Elegir el archivo de un perfil de color</translation>
    </message>
    <message>
        <source>Remove the colour profile</source>
        <translation>Quitar el perfil de color</translation>
    </message>
    <message>
        <source>A profile of %1 bytes without a name</source>
        <translation>Perfil sin nombre de %1 bytes</translation>
    </message>
    <message>
        <source>The profile of each input</source>
        <translation>Mismo perfil que la entrada</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Perfil de color</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 in at %2 dpi</source>
        <translation>%1 pulgadas a %2 ppp</translation>
    </message>
    <message>
        <source>%1 cm at %2 dpi</source>
        <translation>%1 cm a %2 ppp</translation>
    </message>
    <message>
        <source>%1 mm at %2 dpi</source>
        <translation>%1 mm a %2 ppp</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Ancho %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Alto %1</translation>
    </message>
    <message>
        <source>Short side %1</source>
        <translation>Lado corto %1</translation>
    </message>
    <message>
        <source>Long side %1</source>
        <translation>Lado largo %1</translation>
    </message>
    <message>
        <source>Width %1, only smaller</source>
        <translation>Ancho %1, solo reducir</translation>
    </message>
    <message>
        <source>Height %1, only smaller</source>
        <translation>Alto %1, solo reducir</translation>
    </message>
    <message>
        <source>Short side %1, only smaller</source>
        <translation>Lado corto %1, solo reducir</translation>
    </message>
    <message>
        <source>Long side %1, only smaller</source>
        <translation>Lado largo %1, solo reducir</translation>
    </message>
    <message>
        <source>Width %1, only larger</source>
        <translation>Ancho %1, solo ampliar</translation>
    </message>
    <message>
        <source>Height %1, only larger</source>
        <translation>Alto %1, solo ampliar</translation>
    </message>
    <message>
        <source>Short side %1, only larger</source>
        <translation>Lado corto %1, solo ampliar</translation>
    </message>
    <message>
        <source>Long side %1, only larger</source>
        <translation>Lado largo %1, solo ampliar</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>Tama&amp;ño</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escalado</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Lado</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>The size stays</source>
        <translation>El tamaño no cambia</translation>
    </message>
    <message>
        <source>Pictures that are added now are for the next run.</source>
        <translation>Las imágenes que se añadan ahora son para la próxima ejecución.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>Los resultados van a %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>Aj&amp;uste</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Previous picture</source>
        <translation>Imagen &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next picture</source>
        <translation>Imagen &amp;siguiente</translation>
    </message>
    <message>
        <source>Ne&amp;xt pane</source>
        <translation>Panel si&amp;guiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>&amp;Panel anterior</translation>
    </message>
    <message>
        <source>%1[*] - Velkora Batch</source>
        <translation>%1[*] - Velkora Batch</translation>
    </message>
    <message>
        <source>%1 % - %2[*] - Velkora Batch</source>
        <translation>%1 % - %2[*] - Velkora Batch</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecución</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>The run cannot be started: %1.</source>
        <translation>No se puede iniciar la ejecución: %1.</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>Paneles</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>JSON files (*.json)</source>
        <translation>Archivos JSON (*.json)</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Guardar el informe</translation>
    </message>
    <message>
        <source>The report was saved as %1.</source>
        <translation>El informe se guardó como %1.</translation>
    </message>
    <message>
        <source>The report was not saved: %1.</source>
        <translation>El informe no se guardó: %1.</translation>
    </message>
    <message>
        <source>The run cannot be forgotten: %1.</source>
        <translation>No se puede olvidar la ejecución: %1.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: %1.</source>
        <translation>No se puede reanudar la ejecución: %1.</translation>
    </message>
    <message>
        <source>All pictures are written</source>
        <translation>Todas las imágenes están escritas</translation>
    </message>
    <message>
        <source>The run is finished, some pictures are left out</source>
        <translation>La ejecución ha terminado; faltan algunas imágenes</translation>
    </message>
    <message>
        <source>The run is cancelled</source>
        <translation>La ejecución se ha cancelado</translation>
    </message>
    <message>
        <source>The run has stopped</source>
        <translation>La ejecución se ha detenido</translation>
    </message>
    <message>
        <source>Pictures are being written</source>
        <translation>Se están escribiendo imágenes</translation>
    </message>
    <message>
        <source>A picture needs your decision</source>
        <translation>Una imagen requiere una decisión</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Show failures</source>
        <translation>Mostrar las que fallaron</translation>
    </message>
    <message>
        <source>Begins with a new job.</source>
        <translation>Empieza con un trabajo nuevo.</translation>
    </message>
    <message>
        <source>The grid shows all pictures; the list can be filtered.</source>
        <translation>La cuadrícula muestra todas las imágenes; la lista se puede filtrar.</translation>
    </message>
    <message>
        <source>Written as %1</source>
        <translation>Se escribe como %1</translation>
    </message>
    <message>
        <source>Let other programs go &amp;first</source>
        <translation>&amp;Dar prioridad a otros programas</translation>
    </message>
    <message>
        <source>Largest file</source>
        <translation>Archivo más grande</translation>
    </message>
    <message>
        <source>May get smaller</source>
        <translation>Puede reducirse</translation>
    </message>
    <message>
        <source>Least quality</source>
        <translation>Calidad mínima</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>the record of earlier results was ignored: %1. They were not recognised, and not replaced.</source>
        <translation>no se ha tenido en cuenta el registro de resultados anteriores: %1. No se han reconocido ni reemplazado.</translation>
    </message>
    <message>
        <source>the results of this update cannot be recorded: %1. The next one tries again.</source>
        <translation>los resultados de esta actualización no se pueden registrar: %1. La próxima lo intentará de nuevo.</translation>
    </message>
    <message>
        <source>1 result is left from an input that is gone; --delete-orphans removes it:</source>
        <translation>queda 1 resultado de una entrada que ya no existe; --delete-orphans lo elimina:</translation>
    </message>
    <message>
        <source>%1 results are left from inputs that are gone; --delete-orphans removes them:</source>
        <translation>quedan %1 resultados de entradas que ya no existen; --delete-orphans los elimina:</translation>
    </message>
    <message>
        <source>not all inputs could be read, so nothing is removed of what seems to be left from inputs that are gone:</source>
        <translation>no se han podido leer todas las entradas, así que no se elimina nada de lo que parece quedar de entradas desaparecidas:</translation>
    </message>
    <message>
        <source>1 result was removed, because its input is gone.</source>
        <translation>se ha eliminado 1 resultado porque su entrada ya no existe.</translation>
    </message>
    <message>
        <source>%1 results were removed, because their inputs are gone.</source>
        <translation>se han eliminado %1 resultados porque sus entradas ya no existen.</translation>
    </message>
    <message>
        <source>these results could not be removed:</source>
        <translation>no se han podido eliminar estos resultados:</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 were up to date.</source>
        <translation>Terminado en %1: %2 escritas, %3 ya estaban al día.</translation>
    </message>
    <message>
        <source>Make only &amp;what has changed</source>
        <translation>Hacer &amp;solo lo que ha cambiado</translation>
    </message>
    <message>
        <source>%1. Saved jobs may be given: as the first arguments of run and plan, one as the first argument of show, or to create with --from</source>
        <translation>%1. Se pueden indicar trabajos guardados: como primeros argumentos de run y plan, uno como primer argumento de show, o en create con --from</translation>
    </message>
    <message>
        <source>%1 can no longer be read: %2</source>
        <translation>ya no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>watching %1; results go to %2. Ctrl-C ends it.</source>
        <translation>vigilando %1; los resultados van a %2. Ctrl-C lo termina.</translation>
    </message>
    <message>
        <source>warning %1: %2</source>
        <translation>aviso %1: %2</translation>
    </message>
    <message>
        <source>watching ends, as a policy says; the next start tries these pictures again.</source>
        <translation>la vigilancia termina, como dice una regla; el próximo inicio vuelve a intentar estas imágenes.</translation>
    </message>
    <message>
        <source>Written: %1, skipped: %2, failed: %3.</source>
        <translation>Escritas: %1, omitidas: %2, fallidas: %3.</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédito</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Escribir metadatos</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Text has tokens</source>
        <translation>El texto tiene marcadores</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Aviso de derechos de autor</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Example, with what a picture might say: %1</source>
        <translation>Ejemplo, con lo que podría decir una imagen: %1</translation>
    </message>
    <message>
        <source>Parts done: %1 of %2. Written: %3, skipped: %4, failed: %5, not processed: %6.</source>
        <translation>Partes hechas: %1 de %2. Escritas: %3, omitidas: %4, fallidas: %5, sin procesar: %6.</translation>
    </message>
    <message>
        <source>Parts to run again, as they are not done: %1</source>
        <translation>Partes que ejecutar otra vez, pues no están hechas: %1</translation>
    </message>
    <message>
        <source>Parts to run again, as pictures have failed: %1</source>
        <translation>Partes que ejecutar otra vez, pues han fallado imágenes: %1</translation>
    </message>
    <message>
        <source>the plan %1 or its journals cannot be removed.</source>
        <translation>el plan %1 o sus diarios no se pueden eliminar.</translation>
    </message>
    <message>
        <source>Part %1 of %2 is not done; run it again to go on.</source>
        <translation>La parte %1 de %2 no está hecha; ejecútela otra vez para seguir.</translation>
    </message>
    <message>
        <source>Part %1: pictures: %2, %3</source>
        <translation>Parte %1: imágenes: %2, %3</translation>
    </message>
    <message>
        <source>The plan of %1 parts is in %2. For each of them: velkora-batch run --plan %2 --part NUMBER. At the end: velkora-batch collect %2</source>
        <translation>El plan de %1 partes está en %2. Para cada una: velkora-batch run --plan %2 --part NUMBER. Al final: velkora-batch collect %2</translation>
    </message>
    <message>
        <source>Several presets</source>
        <translation>Varios ajustes</translation>
    </message>
    <message>
        <source>Each picture gets a result of each preset. They go to folders with the names of the presets, in %1.</source>
        <translation>Cada imagen recibe un resultado de cada ajuste. Van a carpetas con los nombres de los ajustes, en %1.</translation>
    </message>
    <message>
        <source>Start with several p&amp;resets...</source>
        <translation>Iniciar con &amp;varios ajustes...</translation>
    </message>
    <message>
        <source>part %1 was made with %2, but the plan with %3; its pictures may differ.</source>
        <translation>la parte %1 se hizo con %2, pero el plan con %3; sus imágenes pueden ser distintas.</translation>
    </message>
    <message>
        <source>no temporary folder can be made: %1. Set %2 to another folder.</source>
        <translation>no se puede crear una carpeta temporal: %1. Asigne a %2 otra carpeta.</translation>
    </message>
</context>
<context>
    <name>BatchJob::Phrase</name>
    <message>
        <source>Spreads the values that a picture has from black to white</source>
        <translation>Extiende los valores de la imagen de negro a blanco</translation>
    </message>
    <message>
        <source>Blurs evenly</source>
        <translation>Desenfoca de forma uniforme</translation>
    </message>
    <message>
        <source>Adds a border around a picture</source>
        <translation>Añade un borde alrededor de la imagen</translation>
    </message>
    <message>
        <source>Shifts all values, then spreads them around the middle</source>
        <translation>Desplaza todos los valores y luego los extiende alrededor del centro</translation>
    </message>
    <message>
        <source>Raises or lowers the contrast of larger structures, mostly in the middle tones</source>
        <translation>Aumenta o reduce el contraste de las estructuras grandes, sobre todo en los medios tonos</translation>
    </message>
    <message>
        <source>a second size; one table is needed, of one or of three dimensions</source>
        <translation>un segundo tamaño; se necesita una sola tabla, de una o de tres dimensiones</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs a whole number from 2 to %3</source>
        <translation>«%1»; %2 necesita un número entero de 2 a %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs three numbers</source>
        <translation>«%1»; %2 necesita tres números</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs two numbers</source>
        <translation>«%1»; %2 necesita dos números</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; three numbers or a known keyword are needed</source>
        <translation>«%1»; se necesitan tres números o una palabra clave conocida</translation>
    </message>
    <message>
        <source>an entry before LUT_1D_SIZE or LUT_3D_SIZE</source>
        <translation>una entrada antes de LUT_1D_SIZE o LUT_3D_SIZE</translation>
    </message>
    <message>
        <source>one entry more than the %1 that the size says</source>
        <translation>una entrada más de las %1 que indica el tamaño</translation>
    </message>
    <message>
        <source>no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file</source>
        <translation>ni LUT_1D_SIZE ni LUT_3D_SIZE; no es un archivo .cube</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 entries</source>
        <translation>el archivo termina tras %1 de %2 entradas</translation>
    </message>
    <message>
        <source>DOMAIN_MIN must be less than DOMAIN_MAX in every channel</source>
        <translation>DOMAIN_MIN debe ser menor que DOMAIN_MAX en todos los canales</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; a .cube file has at most %3</source>
        <translation>%1 tiene %2 bytes; un archivo .cube tiene como máximo %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
    <message>
        <source>input and output, from black to white; between them the curve never turns, beyond them it is level</source>
        <translation>entrada y salida, de negro a blanco; entre los puntos la curva nunca se invierte, fuera de ellos es horizontal</translation>
    </message>
    <message>
        <source>Maps values along a smooth curve through points</source>
        <translation>Asigna los valores según una curva suave que pasa por puntos</translation>
    </message>
    <message>
        <source>Smooths noise and keeps edges</source>
        <translation>Suaviza el ruido y conserva los bordes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 percent; it must be at most 100, or the unit pixels</source>
        <translation>«%1» es %2 por ciento; debe ser como máximo 100, o la unidad pixels</translation>
    </message>
    <message>
        <source>Brightens or darkens as a longer or shorter exposure would</source>
        <translation>Aclara u oscurece como lo haría una exposición más larga o más corta</translation>
    </message>
    <message>
        <source>Mirrors a picture</source>
        <translation>Refleja la imagen</translation>
    </message>
    <message>
        <source>Takes all colour away</source>
        <translation>Elimina todo el color</translation>
    </message>
    <message>
        <source>Turns all colours around the colour circle</source>
        <translation>Gira todos los colores en el círculo cromático</translation>
    </message>
    <message>
        <source>Turns a picture into its negative</source>
        <translation>Convierte la imagen en su negativo</translation>
    </message>
    <message>
        <source>&quot;black&quot; is %1 and &quot;white&quot; is %2; black must be less than white</source>
        <translation>«black» es %1 y «white» es %2; black debe ser menor que white</translation>
    </message>
    <message>
        <source>Sets what becomes black, what becomes white, and the tone between them</source>
        <translation>Define qué se vuelve negro, qué se vuelve blanco y el tono intermedio</translation>
    </message>
    <message>
        <source>Maps colours by the table of a .cube file; a grey picture becomes a colour picture</source>
        <translation>Asigna los colores según la tabla de un archivo .cube; una imagen en escala de grises pasa a ser en color</translation>
    </message>
    <message>
        <source>Leaves few steps of each colour</source>
        <translation>Deja pocos niveles de cada color</translation>
    </message>
    <message>
        <source>Turns a picture clockwise; the result is as large as it needs</source>
        <translation>Gira la imagen en el sentido de las agujas del reloj; el resultado es tan grande como haga falta</translation>
    </message>
    <message>
        <source>Makes all colours stronger or weaker</source>
        <translation>Hace todos los colores más intensos o más débiles</translation>
    </message>
    <message>
        <source>Tones a picture brown; a grey picture becomes a colour picture</source>
        <translation>Da a la imagen un tono marrón; una imagen en escala de grises pasa a ser en color</translation>
    </message>
    <message>
        <source>Sharpens edges by an unsharp mask</source>
        <translation>Enfoca los bordes con una máscara de enfoque</translation>
    </message>
    <message>
        <source>Makes weak colours stronger or weaker, and spares those that are strong</source>
        <translation>Hace los colores débiles más intensos o más débiles y respeta los intensos</translation>
    </message>
    <message>
        <source>Darkens or brightens towards the corners</source>
        <translation>Oscurece o aclara hacia las esquinas</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 does not exist</source>
        <translation>«file»: %1 no existe</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a file</source>
        <translation>«file»: %1 no es un archivo</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 cannot be read: %2</source>
        <translation>«file»: no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a picture of a known format</source>
        <translation>«file»: %1 no es una imagen de un formato conocido</translation>
    </message>
    <message>
        <source>Lays another picture, such as a logo, over a picture</source>
        <translation>Superpone otra imagen, como un logotipo, a la imagen</translation>
    </message>
    <message>
        <source>what is written; it may have several lines</source>
        <translation>lo que se escribe; puede tener varias líneas</translation>
    </message>
    <message>
        <source>family and style, without a size; a family that is missing is replaced</source>
        <translation>familia y estilo, sin tamaño; una familia que falte se sustituye</translation>
    </message>
    <message>
        <source>Writes a text over a picture</source>
        <translation>Escribe un texto sobre la imagen</translation>
    </message>
    <message>
        <source>Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance</source>
        <translation>Hace la imagen más cálida o fría, más verde o más magenta; los grises conservan su luminancia</translation>
    </message>
    <message>
        <source>very small files for the web in up to 12 bits, slow to write</source>
        <translation>archivos muy pequeños para la web de hasta 12 bits, lentos de escribir</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; %2 takes %3</source>
        <translation>«bitDepth» es %1; %2 admite %3</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; it must be 8, 10, 12 or 16</source>
        <translation>«bitDepth» es %1; debe ser 8, 10, 12 o 16</translation>
    </message>
    <message>
        <source>the format &quot;%1&quot; is unknown</source>
        <translation>el formato «%1» es desconocido</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; &quot;compression&quot; jpeg takes 8</source>
        <translation>«bitDepth» es %1; «compression» jpeg admite 8</translation>
    </message>
    <message>
        <source>at most 256 colours, each pixel opaque or transparent</source>
        <translation>como máximo 256 colores, cada píxel opaco o transparente</translation>
    </message>
    <message>
        <source>small files of photos in up to 12 bits, as phones write them</source>
        <translation>archivos pequeños de fotos de hasta 12 bits, como los de los teléfonos</translation>
    </message>
    <message>
        <source>archives and films, in up to 16 bits, also without loss</source>
        <translation>archivos históricos y películas, de hasta 16 bits, también sin pérdida</translation>
    </message>
    <message>
        <source>small files of photos, which every program reads</source>
        <translation>archivos pequeños de fotos que lee cualquier programa</translation>
    </message>
    <message>
        <source>small files of photos in up to 16 bits, also without loss</source>
        <translation>archivos pequeños de fotos de hasta 16 bits, también sin pérdida</translation>
    </message>
    <message>
        <source>every pixel as it is, with transparency; for graphics and for editing</source>
        <translation>cada píxel tal cual, con transparencia; para gráficos y edición</translation>
    </message>
    <message>
        <source>higher is slower and smaller</source>
        <translation>más alto es más lento y más pequeño</translation>
    </message>
    <message>
        <source>what the sensor of a camera saw, in the formats of many makers</source>
        <translation>lo que vio el sensor de una cámara, en los formatos de muchos fabricantes</translation>
    </message>
    <message>
        <source>every pixel as it is, also CMYK and very large; for printing and for archives</source>
        <translation>cada píxel tal cual, también CMYK y muy grandes; para imprenta y archivo</translation>
    </message>
    <message>
        <source>how the pixels are compressed</source>
        <translation>cómo se comprimen los píxeles</translation>
    </message>
    <message>
        <source>small files for the web, with transparency</source>
        <translation>archivos pequeños para la web, con transparencia</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>es un enlace</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>tiene más de un nombre</translation>
    </message>
    <message>
        <source>other users may write it</source>
        <translation>otros usuarios pueden modificarlo</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>its own format cannot be written</source>
        <translation>su propio formato no se puede escribir</translation>
    </message>
    <message>
        <source>its own format, %1, cannot be written</source>
        <translation>su propio formato, %1, no se puede escribir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already</source>
        <translation>«%1» ya existe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a source of this job</source>
        <translation>«%1» es un original de este trabajo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the result of &quot;%2&quot;</source>
        <translation>«%1» es el resultado de «%2»</translation>
    </message>
    <message>
        <source>written as &quot;%1&quot; (naming policy)</source>
        <translation>escrito como «%1» (regla de nombres)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was overwritten (naming policy)</source>
        <translation>«%1» se sobrescribió (regla de nombres)</translation>
    </message>
    <message>
        <source>written as %1 (write-to-format policy)</source>
        <translation>escrito como %1 (regla de formatos)</translation>
    </message>
    <message>
        <source>The format</source>
        <translation>El formato</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>uno de %1</translation>
    </message>
    <message>
        <source>The options of the format %1: %2</source>
        <translation>Las opciones del formato %1: %2</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;, does not exist</source>
        <translation>El efecto %1, «%2», no existe</translation>
    </message>
    <message>
        <source>; there are %1</source>
        <translation>; hay %1</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; ¿quiso decir «%1»?</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;: %3</source>
        <translation>Efecto %1, «%2»: %3</translation>
    </message>
    <message>
        <source>The job has no files</source>
        <translation>El trabajo no tiene archivos</translation>
    </message>
    <message>
        <source>The input policy</source>
        <translation>La regla de entrada</translation>
    </message>
    <message>
        <source>The output policy</source>
        <translation>La regla de salida</translation>
    </message>
    <message>
        <source>The processing policy</source>
        <translation>La regla de procesamiento</translation>
    </message>
    <message>
        <source>The naming policy</source>
        <translation>La regla de nombres</translation>
    </message>
    <message>
        <source>The write-to-format policy</source>
        <translation>La regla de formatos</translation>
    </message>
    <message>
        <source>The shadow&apos;s mode</source>
        <translation>El modo de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s opacity</source>
        <translation>La opacidad de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s distance</source>
        <translation>La distancia de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s size</source>
        <translation>El tamaño de la sombra</translation>
    </message>
    <message>
        <source>The background&apos;s type</source>
        <translation>El tipo de fondo</translation>
    </message>
    <message>
        <source>The background&apos;s opacity</source>
        <translation>La opacidad del fondo</translation>
    </message>
    <message>
        <source>The background&apos;s pattern</source>
        <translation>El motivo del fondo</translation>
    </message>
    <message>
        <source>The scale of the background&apos;s pattern</source>
        <translation>La escala del motivo del fondo</translation>
    </message>
    <message>
        <source>The background&apos;s image</source>
        <translation>La imagen de fondo</translation>
    </message>
    <message>
        <source>the absolute path of a file that exists</source>
        <translation>la ruta absoluta de un archivo existente</translation>
    </message>
    <message>
        <source>The frame&apos;s width</source>
        <translation>El ancho del marco</translation>
    </message>
    <message>
        <source>The frame&apos;s height</source>
        <translation>El alto del marco</translation>
    </message>
    <message>
        <source>The output folder</source>
        <translation>La carpeta de salida</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>una ruta absoluta</translation>
    </message>
    <message>
        <source>The folder structure</source>
        <translation>La estructura de carpetas</translation>
    </message>
    <message>
        <source>The name&apos;s prefix</source>
        <translation>El prefijo del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s prefix</source>
        <translation>El número de dígitos del prefijo del nombre</translation>
    </message>
    <message>
        <source>The name&apos;s middle</source>
        <translation>La parte central del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s middle</source>
        <translation>El número de dígitos de la parte central del nombre</translation>
    </message>
    <message>
        <source>The name&apos;s suffix</source>
        <translation>El sufijo del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s suffix</source>
        <translation>El número de dígitos del sufijo del nombre</translation>
    </message>
    <message>
        <source>The image size&apos;s restriction</source>
        <translation>La restricción del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s resolution</source>
        <translation>La resolución del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s side</source>
        <translation>El lado del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s unit</source>
        <translation>La unidad del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size</source>
        <translation>El tamaño de imagen</translation>
    </message>
    <message>
        <source>a number above 0, up to %1</source>
        <translation>un número mayor que 0, hasta %1</translation>
    </message>
    <message>
        <source>The crop&apos;s type</source>
        <translation>El tipo de recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s width</source>
        <translation>El ancho del recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s height</source>
        <translation>El alto del recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s alignment</source>
        <translation>La alineación del recorte</translation>
    </message>
    <message>
        <source>a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)</source>
        <translation>una suma de 1 (izquierda), 2 (derecha), 4 (centro), 32 (arriba), 64 (abajo), 128 (centro)</translation>
    </message>
    <message>
        <source>The frame&apos;s margin</source>
        <translation>El margen del marco</translation>
    </message>
    <message>
        <source>The frame&apos;s blending</source>
        <translation>El modo de fusión del marco</translation>
    </message>
    <message>
        <source>The picture&apos;s opacity</source>
        <translation>La opacidad de la imagen</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>un número entero %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>un número de 0 a 1</translation>
    </message>
    <message>
        <source>%1 is %2; it must be %3</source>
        <translation>%1 es %2; debe ser %3</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>renombrado</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>sobrescrito</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>convertido</translation>
    </message>
    <message>
        <source>from %1 to %2 (%3)</source>
        <translation>de %1 a %2 (%3)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown</source>
        <translation>«%1» es desconocido</translation>
    </message>
    <message>
        <source>; none is taken here</source>
        <translation>; aquí no se admite ninguno</translation>
    </message>
    <message>
        <source>; known are %1</source>
        <translation>; se conocen %1</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1: %2</source>
        <translation>JSON no válido en el byte %1: %2</translation>
    </message>
    <message>
        <source>a JSON object is needed, such as {&quot;name&quot;: value}</source>
        <translation>se necesita un objeto JSON, como {&quot;name&quot;: value}</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing; it must be %2</source>
        <translation>falta «%1»; debe ser %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be %3</source>
        <translation>«%1» es %2; debe ser %3</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>; ¿quiso decir %1?</translation>
    </message>
    <message>
        <source>a number %1</source>
        <translation>un número %1</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>una lista de %1</translation>
    </message>
    <message>
        <source>a colour, #rrggbb or #rrggbbaa</source>
        <translation>un color, #rrggbb o #rrggbbaa</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texto de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>the absolute path of a file</source>
        <translation>la ruta absoluta de un archivo</translation>
    </message>
    <message>
        <source>a list of 2 to %1 points [x, y] with ascending x, numbers %2</source>
        <translation>una lista de 2 a %1 puntos [x, y] con x creciente, números %2</translation>
    </message>
    <message>
        <source>written</source>
        <translation>escrito</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>only the first page</source>
        <translation>solo la primera página</translation>
    </message>
    <message>
        <source>the file lacks its end</source>
        <translation>falta el final del archivo</translation>
    </message>
    <message>
        <source>colour profile not used</source>
        <translation>perfil de color no utilizado</translation>
    </message>
    <message>
        <source>colours converted</source>
        <translation>colores convertidos</translation>
    </message>
    <message>
        <source>metadata lost</source>
        <translation>metadatos perdidos</translation>
    </message>
    <message>
        <source>gain map lost</source>
        <translation>mapa de ganancia perdido</translation>
    </message>
    <message>
        <source>framing without effect</source>
        <translation>marco sin efecto</translation>
    </message>
    <message>
        <source>the decoder found a fault</source>
        <translation>el decodificador encontró un fallo</translation>
    </message>
    <message>
        <source>%1 does not lie in the output folder %2</source>
        <translation>%1 no está en la carpeta de salida %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>no se puede crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>%1 is a link; results are not written through it unless links are followed</source>
        <translation>%1 es un enlace; los resultados no se escriben a través de él si no se permite seguir enlaces</translation>
    </message>
    <message>
        <source>the worker&apos;s report is invalid: %1</source>
        <translation>el informe del proceso de trabajo no es válido: %1</translation>
    </message>
    <message>
        <source>it takes more memory than the limit of %1 MiB</source>
        <translation>necesita más memoria que el límite de %1 MiB</translation>
    </message>
    <message>
        <source>it takes longer than the limit of %1 seconds</source>
        <translation>tarda más que el límite de %1 segundos</translation>
    </message>
    <message>
        <source>the worker wrote more than %1 MiB of messages</source>
        <translation>el proceso de trabajo escribió más de %1 MiB de mensajes</translation>
    </message>
    <message>
        <source>the worker sent an invalid answer</source>
        <translation>el proceso de trabajo envió una respuesta no válida</translation>
    </message>
    <message>
        <source>the worker %1</source>
        <translation>el proceso de trabajo %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2</source>
        <translation>no se puede iniciar «%1»: %2</translation>
    </message>
    <message>
        <source>ended by exception 0x%1</source>
        <translation>terminó por la excepción 0x%1</translation>
    </message>
    <message>
        <source>ended by signal %1</source>
        <translation>terminó por la señal %1</translation>
    </message>
    <message>
        <source>%1; its last output: %2</source>
        <translation>%1; su última salida: %2</translation>
    </message>
    <message>
        <source>ended with exit code %1</source>
        <translation>terminó con el código de salida %1</translation>
    </message>
    <message>
        <source>The job is not a batch document</source>
        <translation>El trabajo no es un documento por lotes</translation>
    </message>
    <message>
        <source>The job cannot be read: its reader failed</source>
        <translation>No se puede leer el trabajo: falló su lector</translation>
    </message>
    <message>
        <source>the server crashed %1 times while it worked on the file</source>
        <translation>el servidor falló %1 veces mientras procesaba el archivo</translation>
    </message>
    <message>
        <source>the worker reported a result that is not there</source>
        <translation>el proceso de trabajo informó de un resultado que no existe</translation>
    </message>
    <message>
        <source>each of %1 names for the result was taken when it was to be written</source>
        <translation>los %1 nombres probados para el resultado estaban ocupados al escribirlo</translation>
    </message>
    <message>
        <source>the journal %1 cannot be used: %2</source>
        <translation>no se puede usar el diario %1: %2</translation>
    </message>
    <message>
        <source>another server holds %1</source>
        <translation>otro servidor tiene %1</translation>
    </message>
    <message>
        <source>%1 cannot be written; the disk may be full</source>
        <translation>no se puede escribir %1; puede que el disco esté lleno</translation>
    </message>
    <message>
        <source>the embedded colour profile is damaged and is not used</source>
        <translation>el perfil de color incrustado está dañado y no se utiliza</translation>
    </message>
    <message>
        <source>the embedded colour profile does not fit the picture and is not used</source>
        <translation>el perfil de color incrustado no corresponde a la imagen y no se utiliza</translation>
    </message>
    <message>
        <source>the embedded colour profile cannot be used</source>
        <translation>no se puede utilizar el perfil de color incrustado</translation>
    </message>
    <message>
        <source>its colour profile is one for storing colours only; the result is sRGB</source>
        <translation>su perfil de color solo sirve para guardar colores; el resultado es sRGB</translation>
    </message>
    <message>
        <source>the job&apos;s colour profile does not describe pictures; the colours are not converted</source>
        <translation>el perfil de color del trabajo no describe imágenes; los colores no se convierten</translation>
    </message>
    <message>
        <source>the colour profile cannot be used; the colours are not converted</source>
        <translation>no se puede utilizar el perfil de color; los colores no se convierten</translation>
    </message>
    <message>
        <source>the colours cannot be converted to sRGB; their values are taken for sRGB as they are</source>
        <translation>no se pueden convertir los colores a sRGB; sus valores se toman tal cual como sRGB</translation>
    </message>
    <message>
        <source>the file is HDR; the result has the brightness of common screens</source>
        <translation>el archivo es HDR; el resultado tiene el brillo de las pantallas habituales</translation>
    </message>
    <message>
        <source>its values are complex numbers, which are no colours</source>
        <translation>sus valores son números complejos, que no son colores</translation>
    </message>
    <message>
        <source>its kind of colours is not supported: %1</source>
        <translation>su tipo de color no es compatible: %1</translation>
    </message>
    <message>
        <source>its kind of colours is not supported</source>
        <translation>su tipo de color no es compatible</translation>
    </message>
    <message>
        <source>what the file says of its colours is damaged or unknown and is not used</source>
        <translation>los datos de color del archivo están dañados o son desconocidos y no se utilizan</translation>
    </message>
    <message>
        <source>the file&apos;s header is damaged</source>
        <translation>la cabecera del archivo está dañada</translation>
    </message>
    <message>
        <source>the file holds no picture data, or refers to another file for them</source>
        <translation>el archivo no contiene datos de imagen o remite a otro archivo</translation>
    </message>
    <message>
        <source>the file&apos;s header does not fit its picture</source>
        <translation>la cabecera del archivo no corresponde a su imagen</translation>
    </message>
    <message>
        <source>colour space %1</source>
        <translation>espacio de color %1</translation>
    </message>
    <message>
        <source>colours of method %1</source>
        <translation>colores del método %1</translation>
    </message>
    <message>
        <source>its colours are of a kind that is not supported (%1)</source>
        <translation>sus colores son de un tipo no compatible (%1)</translation>
    </message>
    <message>
        <source>it has %1 channels and does not say what they are</source>
        <translation>tiene %1 canales y no indica cuáles son</translation>
    </message>
    <message>
        <source>the transparency of a CMYK picture is left out</source>
        <translation>se omite la transparencia de una imagen CMYK</translation>
    </message>
    <message>
        <source>it has %1 channels; only the first %2 are used</source>
        <translation>tiene %1 canales; solo se utilizan los primeros %2</translation>
    </message>
    <message>
        <source>the header of the picture data is damaged</source>
        <translation>la cabecera de los datos de imagen está dañada</translation>
    </message>
    <message>
        <source>it uses %1, which is not supported</source>
        <translation>utiliza algo no compatible: %1</translation>
    </message>
    <message>
        <source>the file ends after %1 % of the picture</source>
        <translation>el archivo termina tras el %1 % de la imagen</translation>
    </message>
    <message>
        <source>an extension of JPEG 2000 (marker %1)</source>
        <translation>una extensión de JPEG 2000 (marcador %1)</translation>
    </message>
    <message>
        <source>two kinds of coding in one picture</source>
        <translation>dos tipos de codificación en una imagen</translation>
    </message>
    <message>
        <source>an unknown kind of coding</source>
        <translation>un tipo de codificación desconocido</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canales</translation>
    </message>
    <message>
        <source>%1 bits a channel</source>
        <translation>%1 bits por canal</translation>
    </message>
    <message>
        <source>the file ends before the picture does</source>
        <translation>el archivo termina antes que la imagen</translation>
    </message>
    <message>
        <source>the picture data are damaged</source>
        <translation>los datos de imagen están dañados</translation>
    </message>
    <message>
        <source>%1 % of the picture are missing</source>
        <translation>falta el %1 % de la imagen</translation>
    </message>
    <message>
        <source>packed headers of tiles that are not in order</source>
        <translation>cabeceras empaquetadas de teselas desordenadas</translation>
    </message>
    <message>
        <source>out of memory while decoding (%1)</source>
        <translation>memoria insuficiente al decodificar (%1)</translation>
    </message>
    <message>
        <source>it is coded in a way that is not supported (%1)</source>
        <translation>está codificado de un modo no compatible (%1)</translation>
    </message>
    <message>
        <source>the picture data are damaged (%1)</source>
        <translation>los datos de imagen están dañados (%1)</translation>
    </message>
    <message>
        <source>it has %1 pages; only the first is used</source>
        <translation>tiene %1 páginas; solo se utiliza la primera</translation>
    </message>
    <message>
        <source>the file lacks its last bytes, but all of the picture is there</source>
        <translation>al archivo le faltan los últimos bytes, pero la imagen está completa</translation>
    </message>
    <message>
        <source>decoding takes %1 MiB of memory%2; a worker may use %3 MiB</source>
        <translation>decodificar necesita %1 MiB de memoria%2; un proceso de trabajo puede usar %3 MiB</translation>
    </message>
    <message>
        <source>, because the picture is not divided into tiles</source>
        <translation>, porque la imagen no está dividida en teselas</translation>
    </message>
    <message>
        <source>it is a lossless or hierarchical JPEG file, which is not supported</source>
        <translation>es un archivo JPEG sin pérdida o jerárquico, que no es compatible</translation>
    </message>
    <message>
        <source>it is a JPEG file of %1 bits a channel; only 8 are supported</source>
        <translation>es un archivo JPEG de %1 bits por canal; solo se admiten 8</translation>
    </message>
    <message>
        <source>the file ends before all details of the picture</source>
        <translation>el archivo termina antes de completar los detalles de la imagen</translation>
    </message>
    <message>
        <source>the file ends before its picture begins</source>
        <translation>el archivo termina antes de que empiece la imagen</translation>
    </message>
    <message>
        <source>the file lacks its last bytes; the picture is whole</source>
        <translation>al archivo le faltan los últimos bytes; la imagen está completa</translation>
    </message>
    <message>
        <source>the picture has more pixels than any limit</source>
        <translation>la imagen tiene más píxeles que cualquier límite</translation>
    </message>
    <message>
        <source>the file is damaged: its picture cannot be decoded</source>
        <translation>el archivo está dañado: no se puede decodificar la imagen</translation>
    </message>
    <message>
        <source>the file ends before its picture is complete</source>
        <translation>el archivo termina antes de que la imagen esté completa</translation>
    </message>
    <message>
        <source>the file is damaged: it has no picture</source>
        <translation>el archivo está dañado: no contiene ninguna imagen</translation>
    </message>
    <message>
        <source>decoding %1 x %2 pixels takes more than a worker may use</source>
        <translation>decodificar %1 x %2 píxeles necesita más de lo que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>no decoder knows this kind of file</source>
        <translation>ningún decodificador conoce este tipo de archivo</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are more than the limit of %3 megapixels</source>
        <translation>%1 x %2 píxeles superan el límite de %3 megapíxeles</translation>
    </message>
    <message>
        <source>the decoder does not know this camera&apos;s files</source>
        <translation>el decodificador no conoce los archivos de esta cámara</translation>
    </message>
    <message>
        <source>the file ends before its picture data does, or the data is damaged</source>
        <translation>el archivo termina antes que los datos de imagen, o los datos están dañados</translation>
    </message>
    <message>
        <source>the file lacks picture data: it is cut off, or has been emptied</source>
        <translation>al archivo le faltan datos de imagen: está cortado o se ha vaciado</translation>
    </message>
    <message>
        <source>its header gives no size of the picture</source>
        <translation>su cabecera no indica el tamaño de la imagen</translation>
    </message>
    <message>
        <source>its sides of %1 and %2 pixels are too long</source>
        <translation>sus lados de %1 y %2 píxeles son demasiado largos</translation>
    </message>
    <message>
        <source>its tiles have no size</source>
        <translation>sus teselas no tienen tamaño</translation>
    </message>
    <message>
        <source>its tiles are too large</source>
        <translation>sus teselas son demasiado grandes</translation>
    </message>
    <message>
        <source>channels of %1 bits are not supported</source>
        <translation>no se admiten canales de %1 bits</translation>
    </message>
    <message>
        <source>its compression (number %1) is not supported</source>
        <translation>su compresión (número %1) no es compatible</translation>
    </message>
    <message>
        <source>JPEG compression of %1 bits a channel is not supported</source>
        <translation>no se admite la compresión JPEG de %1 bits por canal</translation>
    </message>
    <message>
        <source>it holds undeveloped data of a camera; such files are read under the name .dng</source>
        <translation>contiene datos de cámara sin revelar; esos archivos se leen con la extensión .dng</translation>
    </message>
    <message>
        <source>its kind of colours (number %1) is not supported</source>
        <translation>su tipo de color (número %1) no es compatible</translation>
    </message>
    <message>
        <source>it has %1 channels beside its colours and its transparency, which are left out</source>
        <translation>tiene %1 canales además de sus colores y su transparencia, que se omiten</translation>
    </message>
    <message>
        <source>it has inks of its own; only cyan, magenta, yellow and black can be read</source>
        <translation>tiene tintas propias; solo se pueden leer cian, magenta, amarillo y negro</translation>
    </message>
    <message>
        <source>it has fewer channels than its kind of colours needs</source>
        <translation>tiene menos canales de los que necesita su tipo de color</translation>
    </message>
    <message>
        <source>Lab colours of %1 bits a channel are not supported</source>
        <translation>no se admiten colores Lab de %1 bits por canal</translation>
    </message>
    <message>
        <source>palettes of %1 bits are not supported</source>
        <translation>no se admiten paletas de %1 bits</translation>
    </message>
    <message>
        <source>its way of storing colours (colour differences in uncompressed tiles) is not supported</source>
        <translation>su forma de guardar los colores (diferencias de color en teselas sin comprimir) no es compatible</translation>
    </message>
    <message>
        <source>its way of storing colours is not supported: %1</source>
        <translation>su forma de guardar los colores no es compatible: %1</translation>
    </message>
    <message>
        <source>its strips or tiles have no size that makes sense</source>
        <translation>sus tiras o teselas no tienen un tamaño razonable</translation>
    </message>
    <message>
        <source>its strips or tiles need more memory than a worker may use</source>
        <translation>sus tiras o teselas necesitan más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>its palette is missing</source>
        <translation>falta su paleta de colores</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>no se puede leer la imagen %1: %2</translation>
    </message>
    <message>
        <source>the text would be too large at a size of %1 pixels</source>
        <translation>el texto sería demasiado grande con un tamaño de %1 píxeles</translation>
    </message>
    <message>
        <source>the text has no letters that could be drawn</source>
        <translation>el texto no tiene caracteres que se puedan dibujar</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as %3 needs more memory than a worker may use</source>
        <translation>escribir %1 x %2 píxeles como %3 necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use</source>
        <translation>escribir %1 x %2 píxeles como JPEG XL necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>the background picture %1 cannot be read: %2</source>
        <translation>no se puede leer la imagen de fondo %1: %2</translation>
    </message>
    <message>
        <source>the frame of %1 x %2 pixels is above the limit of %3 pixels</source>
        <translation>el marco de %1 x %2 píxeles supera el límite de %3 píxeles</translation>
    </message>
    <message>
        <source>the margins leave nothing of the frame free and have no effect</source>
        <translation>los márgenes no dejan libre nada del marco y no tienen efecto</translation>
    </message>
    <message>
        <source>metadata is left out: %1</source>
        <translation>se omiten los metadatos: %1</translation>
    </message>
    <message>
        <source>%1 files cannot hold metadata; it is left out</source>
        <translation>los archivos %1 no admiten metadatos; se omiten</translation>
    </message>
    <message>
        <source>%1 metadata of %2 bytes does not fit into a %3 file and is left out</source>
        <translation>los metadatos %1 de %2 bytes no caben en un archivo %3 y se omiten</translation>
    </message>
    <message>
        <source>EXIF cannot be removed from the result</source>
        <translation>no se puede eliminar EXIF del resultado</translation>
    </message>
    <message>
        <source>the result may have its EXIF block twice</source>
        <translation>el resultado puede tener dos veces su bloque EXIF</translation>
    </message>
    <message>
        <source>the result is too large for all of its metadata to be added; some is left out</source>
        <translation>el resultado es demasiado grande para añadir todos sus metadatos; algunos se omiten</translation>
    </message>
    <message>
        <source>metadata cannot be written: %1</source>
        <translation>no se pueden escribir los metadatos: %1</translation>
    </message>
    <message>
        <source>%1 cannot be written and are left out</source>
        <translation>no se pueden escribir y se omiten: %1</translation>
    </message>
    <message>
        <source>the notes of the camera&apos;s maker</source>
        <translation>las notas del fabricante de la cámara</translation>
    </message>
    <message>
        <source>EXIF metadata</source>
        <translation>metadatos EXIF</translation>
    </message>
    <message>
        <source>IPTC metadata</source>
        <translation>metadatos IPTC</translation>
    </message>
    <message>
        <source>XMP metadata</source>
        <translation>metadatos XMP</translation>
    </message>
    <message>
        <source>metadata cannot be read and is left out: %1</source>
        <translation>no se pueden leer los metadatos y se omiten: %1</translation>
    </message>
    <message>
        <source>effect &quot;%1&quot;: %2</source>
        <translation>efecto «%1»: %2</translation>
    </message>
    <message>
        <source>it cannot be applied to the picture</source>
        <translation>no se puede aplicar a la imagen</translation>
    </message>
    <message>
        <source>an effect or the frame cannot be applied to the picture</source>
        <translation>no se puede aplicar un efecto o el marco a la imagen</translation>
    </message>
    <message>
        <source>the encoder for %1 failed</source>
        <translation>falló el codificador de %1</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1, or not for this depth</source>
        <translation>esta instalación no tiene codificador de %1, o no para esta profundidad de bits</translation>
    </message>
    <message>
        <source>%1 cannot hold CMYK, which the job&apos;s colour profile asks for</source>
        <translation>%1 no admite CMYK, que exige el perfil de color del trabajo</translation>
    </message>
    <message>
        <source>%1 x %2 pixels: %3 holds at most %4 on a side</source>
        <translation>%1 x %2 píxeles: %3 admite como máximo %4 por lado</translation>
    </message>
    <message>
        <source>the colour profile does not fit into the %1 file; the result is sRGB</source>
        <translation>el perfil de color no cabe en el archivo %1; el resultado es sRGB</translation>
    </message>
    <message>
        <source>it has %1 pages; only the main one is used</source>
        <translation>tiene %1 páginas; solo se utiliza la principal</translation>
    </message>
    <message>
        <source>it has a gain map, which the result lacks: highlights are no longer brighter on HDR screens</source>
        <translation>tiene un mapa de ganancia que falta en el resultado: las luces ya no son más brillantes en pantallas HDR</translation>
    </message>
    <message>
        <source>the result of %1 x %2 pixels would be above the limit of %3 megapixels</source>
        <translation>el resultado de %1 x %2 píxeles superaría el límite de %3 megapíxeles</translation>
    </message>
    <message>
        <source>%1 files cannot hold a colour profile; the result is sRGB</source>
        <translation>los archivos %1 no admiten un perfil de color; el resultado es sRGB</translation>
    </message>
    <message>
        <source>the result is sRGB instead of CMYK</source>
        <translation>el resultado es sRGB en lugar de CMYK</translation>
    </message>
    <message>
        <source>the file is stored in a way that its decoder cannot read</source>
        <translation>el archivo está guardado de un modo que su decodificador no puede leer</translation>
    </message>
    <message>
        <source>the file ends before the picture is complete</source>
        <translation>el archivo termina antes de que la imagen esté completa</translation>
    </message>
    <message>
        <source>the file is damaged after %1 % of the picture</source>
        <translation>el archivo está dañado a partir del %1 % de la imagen</translation>
    </message>
    <message>
        <source>the file is damaged; no part of the picture can be read</source>
        <translation>el archivo está dañado; no se puede leer ninguna parte de la imagen</translation>
    </message>
    <message>
        <source>the file is damaged; its header cannot be read</source>
        <translation>el archivo está dañado; no se puede leer su cabecera</translation>
    </message>
    <message>
        <source>it needs more memory than a worker may use</source>
        <translation>necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>its data make no sense</source>
        <translation>sus datos no tienen sentido</translation>
    </message>
    <message>
        <source>the picture cannot be processed</source>
        <translation>no se puede procesar la imagen</translation>
    </message>
    <message>
        <source>the job cannot be read</source>
        <translation>no se puede leer el trabajo</translation>
    </message>
    <message>
        <source>no worker can be started to look at the pictures: %1</source>
        <translation>no se puede iniciar ningún proceso de trabajo para examinar las imágenes: %1</translation>
    </message>
    <message>
        <source>the folder cannot be opened</source>
        <translation>no se puede abrir la carpeta</translation>
    </message>
    <message>
        <source>%1 is a dangling link</source>
        <translation>%1 es un enlace sin destino</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder</source>
        <translation>%1 no es ni un archivo ni una carpeta</translation>
    </message>
    <message>
        <source>%1 is in the job already.</source>
        <translation>%1 ya está en el trabajo.</translation>
    </message>
    <message>
        <source>%1 is nested too deeply for a job.</source>
        <translation>%1 está anidado demasiado profundamente para un trabajo.</translation>
    </message>
    <message>
        <source>%1 has a name that is not valid UTF-8; rename it to use it.</source>
        <translation>%1 tiene un nombre que no es UTF-8 válido; cámbielo para usarlo.</translation>
    </message>
    <message>
        <source>%1 has a name with a character that a job cannot hold; rename it to use it.</source>
        <translation>%1 tiene en su nombre un carácter que un trabajo no admite; cámbielo para usarlo.</translation>
    </message>
    <message>
        <source>%1 is a dangling link.</source>
        <translation>%1 es un enlace sin destino.</translation>
    </message>
    <message>
        <source>%1 leads back to %2; it is not followed.</source>
        <translation>%1 vuelve a %2; no se sigue.</translation>
    </message>
    <message>
        <source>%1 is the folder %2, which is in the job already.</source>
        <translation>%1 es la carpeta %2, que ya está en el trabajo.</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>se ignora %1: %2</translation>
    </message>
    <message>
        <source>its results go to %1</source>
        <translation>sus resultados van a %1</translation>
    </message>
    <message>
        <source>there is no interrupted run in %1</source>
        <translation>no hay ninguna ejecución interrumpida en %1</translation>
    </message>
    <message>
        <source>the run that was interrupted in %1 is of another job: its inputs, options or files differ</source>
        <translation>la ejecución interrumpida en %1 es de otro trabajo: difieren sus entradas, opciones o archivos</translation>
    </message>
    <message>
        <source>%1 is damaged; remove it to start the run anew</source>
        <translation>%1 está dañado; elimínelo para empezar la ejecución de nuevo</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>its XML is nested too deeply, or declares what a job must not declare</source>
        <translation>su XML está anidado demasiado profundamente o declara algo que un trabajo no puede declarar</translation>
    </message>
    <message>
        <source>it does not begin with &lt;!DOCTYPE batch&gt;</source>
        <translation>no empieza con &lt;!DOCTYPE batch&gt;</translation>
    </message>
    <message>
        <source>the job %1 cannot be read: %2</source>
        <translation>no se puede leer el trabajo %1: %2</translation>
    </message>
    <message>
        <source>the job %1 is larger than %2 MiB</source>
        <translation>el trabajo %1 ocupa más de %2 MiB</translation>
    </message>
    <message>
        <source>%1 is not a batch job: it is not UTF-8 text</source>
        <translation>%1 no es un trabajo por lotes: no es texto UTF-8</translation>
    </message>
    <message>
        <source>%1 is not a batch job: %2</source>
        <translation>%1 no es un trabajo por lotes: %2</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 ya existe</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>no output folder</source>
        <translation>falta la carpeta de salida</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>no hay imágenes</translation>
    </message>
    <message>
        <source>the run in %1 has just been finished</source>
        <translation>la ejecución en %1 acaba de terminar</translation>
    </message>
    <message>
        <source>it is still running</source>
        <translation>todavía está en curso</translation>
    </message>
    <message>
        <source>the folder cannot be written</source>
        <translation>no se puede escribir en la carpeta</translation>
    </message>
    <message>
        <source>the same job is already running into %1</source>
        <translation>el mismo trabajo ya se está ejecutando en %1</translation>
    </message>
    <message>
        <source>the run in %1 cannot be resumed: %2</source>
        <translation>no se puede reanudar la ejecución en %1: %2</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; must end with .csv or .json</source>
        <translation>el nombre «%1» debe terminar en .csv o .json</translation>
    </message>
    <message>
        <source>it begins like a %1 file, but its extension is not known</source>
        <translation>empieza como un archivo %1, pero su extensión no se conoce</translation>
    </message>
    <message>
        <source>the report %1 cannot be written: %2</source>
        <translation>no se puede escribir el informe %1: %2</translation>
    </message>
    <message>
        <source>written with a warning: %1</source>
        <translation>escrito con una advertencia: %1</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operación no permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>No es una carpeta</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nombre de archivo demasiado largo</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tubería rota</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Demasiados niveles de enlaces simbólicos</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>por ciento</translation>
    </message>
    <message>
        <source>how many of the darkest and of the brightest pixels may clip</source>
        <translation>cuántos de los píxeles más oscuros y más claros pueden recortarse</translation>
    </message>
    <message>
        <source>together keeps colours as they are; each for itself removes a cast</source>
        <translation>together conserva los colores; each elimina una dominante</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>standard deviation of the blur in the result; 0 does nothing</source>
        <translation>desviación estándar del desenfoque en el resultado; 0 no hace nada</translation>
    </message>
    <message>
        <source>width on the left</source>
        <translation>ancho a la izquierda</translation>
    </message>
    <message>
        <source>height at the top</source>
        <translation>alto arriba</translation>
    </message>
    <message>
        <source>width on the right</source>
        <translation>ancho a la derecha</translation>
    </message>
    <message>
        <source>height at the bottom</source>
        <translation>alto abajo</translation>
    </message>
    <message>
        <source>of the four; percent is of the picture&apos;s short side, at most 100</source>
        <translation>de los cuatro; percent se refiere al lado corto de la imagen, como máximo 100</translation>
    </message>
    <message>
        <source>of the border; with transparency the result has an alpha channel</source>
        <translation>del borde; con transparencia el resultado tiene canal alfa</translation>
    </message>
    <message>
        <source>shift of every value; 100 turns black into white</source>
        <translation>desplazamiento de cada valor; 100 convierte el negro en blanco</translation>
    </message>
    <message>
        <source>-100 is flat grey, 50 doubles all differences</source>
        <translation>-100 es gris uniforme, 50 duplica todas las diferencias</translation>
    </message>
    <message>
        <source>below 0 softens</source>
        <translation>por debajo de 0 suaviza</translation>
    </message>
    <message>
        <source>size of the structures in the result</source>
        <translation>tamaño de las estructuras en el resultado</translation>
    </message>
    <message>
        <source>which values are mapped; a grey picture has no single colours and stays as it is</source>
        <translation>qué valores se transforman; una imagen en escala de grises no tiene colores separados y queda igual</translation>
    </message>
    <message>
        <source>differences of this size begin to count as edges</source>
        <translation>las diferencias de este tamaño empiezan a contar como bordes</translation>
    </message>
    <message>
        <source>how far neighbours are taken in, in the result</source>
        <translation>hasta dónde se incluyen los píxeles vecinos, en el resultado</translation>
    </message>
    <message>
        <source>stops</source>
        <translation>pasos</translation>
    </message>
    <message>
        <source>how much; 1 doubles the light</source>
        <translation>cuánto; 1 duplica la luz</translation>
    </message>
    <message>
        <source>horizontal swaps left and right</source>
        <translation>horizontal intercambia izquierda y derecha</translation>
    </message>
    <message>
        <source>luminance weighs the light, luma the stored values, average is their plain mean</source>
        <translation>luminance pondera la luz, luma los valores guardados, average es su media simple</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>grados</translation>
    </message>
    <message>
        <source>120 turns red towards green</source>
        <translation>120 gira el rojo hacia el verde</translation>
    </message>
    <message>
        <source>this value and those below become black</source>
        <translation>este valor y los inferiores se vuelven negros</translation>
    </message>
    <message>
        <source>this value and those above become white</source>
        <translation>este valor y los superiores se vuelven blancos</translation>
    </message>
    <message>
        <source>above 1 brightens the tones between them</source>
        <translation>por encima de 1 aclara los tonos intermedios</translation>
    </message>
    <message>
        <source>the .cube file, with a table of one or three dimensions</source>
        <translation>el archivo .cube, con una tabla de una o tres dimensiones</translation>
    </message>
    <message>
        <source>0 leaves the picture as it is</source>
        <translation>0 deja la imagen tal cual</translation>
    </message>
    <message>
        <source>between the entries of a table of three dimensions</source>
        <translation>entre las entradas de una tabla de tres dimensiones</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>niveles</translation>
    </message>
    <message>
        <source>steps from black to white</source>
        <translation>niveles de negro a blanco</translation>
    </message>
    <message>
        <source>multiples of 90 keep every pixel as it is</source>
        <translation>los múltiplos de 90 conservan cada píxel tal cual</translation>
    </message>
    <message>
        <source>fills the corners; with transparency the result has an alpha channel</source>
        <translation>rellena las esquinas; con transparencia el resultado tiene canal alfa</translation>
    </message>
    <message>
        <source>-100 leaves grey, 100 doubles the strength</source>
        <translation>-100 deja solo gris, 100 duplica la intensidad</translation>
    </message>
    <message>
        <source>standard deviation of the mask in the result</source>
        <translation>desviación estándar de la máscara en el resultado</translation>
    </message>
    <message>
        <source>how much of the difference to the mask is added</source>
        <translation>cuánto se suma de la diferencia con la máscara</translation>
    </message>
    <message>
        <source>differences below stay as they are</source>
        <translation>las diferencias menores no cambian</translation>
    </message>
    <message>
        <source>how much the weakest colours change</source>
        <translation>cuánto cambian los colores más débiles</translation>
    </message>
    <message>
        <source>of the corners; -100 is black, 100 is white</source>
        <translation>de las esquinas; -100 es negro, 100 es blanco</translation>
    </message>
    <message>
        <source>where it begins on the way from the centre to a corner</source>
        <translation>dónde empieza en el recorrido del centro a una esquina</translation>
    </message>
    <message>
        <source>length of the transition on the same way</source>
        <translation>longitud de la transición en el mismo recorrido</translation>
    </message>
    <message>
        <source>the picture that is laid over, best with transparency</source>
        <translation>la imagen que se superpone, mejor con transparencia</translation>
    </message>
    <message>
        <source>width of the mark; in percent of the picture&apos;s width</source>
        <translation>ancho de la marca; en porcentaje del ancho de la imagen</translation>
    </message>
    <message>
        <source>space to the sides of the picture, and between tiles</source>
        <translation>espacio hasta los lados de la imagen y entre repeticiones</translation>
    </message>
    <message>
        <source>of size and margin; a margin in percent is of the picture&apos;s short side; percent is at most 100</source>
        <translation>de size y margin; margin en porcentaje se refiere al lado corto de la imagen; percent es como máximo 100</translation>
    </message>
    <message>
        <source>0 is invisible</source>
        <translation>0 es invisible</translation>
    </message>
    <message>
        <source>where the mark stands</source>
        <translation>dónde está la marca</translation>
    </message>
    <message>
        <source>repeats the mark over the whole picture</source>
        <translation>repite la marca por toda la imagen</translation>
    </message>
    <message>
        <source>of the letters</source>
        <translation>de las letras</translation>
    </message>
    <message>
        <source>height of a line of text; in percent of the picture&apos;s short side</source>
        <translation>altura de una línea de texto; en porcentaje del lado corto de la imagen</translation>
    </message>
    <message>
        <source>above 0 warmer, below 0 cooler</source>
        <translation>por encima de 0 más cálido, por debajo más frío</translation>
    </message>
    <message>
        <source>above 0 more magenta, below 0 greener</source>
        <translation>por encima de 0 más magenta, por debajo más verde</translation>
    </message>
    <message>
        <source>keep every pixel, but for a last step of rounding</source>
        <translation>conservar cada píxel, salvo un último redondeo</translation>
    </message>
    <message>
        <source>higher is slower and better</source>
        <translation>más alto es más lento y mejor</translation>
    </message>
    <message>
        <source>keep every pixel as it is</source>
        <translation>conservar cada píxel tal cual</translation>
    </message>
    <message>
        <source>higher is better and larger</source>
        <translation>más alto es mejor y más grande</translation>
    </message>
    <message>
        <source>shows a coarse picture first while it loads</source>
        <translation>muestra primero una imagen aproximada mientras se carga</translation>
    </message>
    <message>
        <source>resolution of colour; auto is 4:4:4 from quality 90</source>
        <translation>resolución del color; auto es 4:4:4 a partir de calidad 90</translation>
    </message>
    <message>
        <source>bits a channel; by default those of the input, as far as the format has them: %1</source>
        <translation>bits por canal; por omisión los de la entrada, si el formato los admite: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>bits</translation>
    </message>
    <message>
        <source>colour under transparency that the format cannot hold</source>
        <translation>color bajo la transparencia que el formato no admite</translation>
    </message>
    <message>
        <source>gives the result the input&apos;s modification time</source>
        <translation>da al resultado la fecha de modificación de la entrada</translation>
    </message>
    <message>
        <source>keep every pixel that can be seen</source>
        <translation>conservar cada píxel visible</translation>
    </message>
    <message>
        <source>which metadata is kept; copyright is creator and rights from all of it</source>
        <translation>qué metadatos se conservan; copyright es el autor y los derechos de todos ellos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both be &quot;%3&quot;</source>
        <translation>«%1» y «%2» serían ambos «%3»</translation>
    </message>
    <message>
        <source>and so on</source>
        <translation>etcétera</translation>
    </message>
    <message>
        <source>1 result would get the name of another</source>
        <translation>1 resultado recibiría el nombre de otro</translation>
    </message>
    <message>
        <source>%1 results would get the names of others</source>
        <translation>%1 resultados recibirían los nombres de otros</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>el atributo «%1» de «%2»</translation>
    </message>
    <message>
        <source>the element &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>el elemento «%1» en «%2»</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #rrggbbaa, or a name such as white</source>
        <translation>un color: #rrggbb, #rrggbbaa o un nombre como white</translation>
    </message>
    <message>
        <source>%1, joined with +, or none</source>
        <translation>%1, unidos con +, o none</translation>
    </message>
    <message>
        <source>2 to %1 points x:y with ascending x, joined with +, numbers %2</source>
        <translation>de 2 a %1 puntos x:y con x ascendente, unidos con +, números %2</translation>
    </message>
    <message>
        <source>workers: not confined on this system</source>
        <translation>procesos de trabajo: sin restricciones en este sistema</translation>
    </message>
    <message>
        <source>files of workers: not restricted, as the kernel has no Landlock</source>
        <translation>archivos de los procesos de trabajo: sin restricciones, pues el núcleo no tiene Landlock</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, with scopes for signals and sockets</source>
        <translation>archivos de los procesos de trabajo: los del trabajo, mediante Landlock %1, con ámbitos para señales y sockets</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, without scopes for signals and sockets</source>
        <translation>archivos de los procesos de trabajo: los del trabajo, mediante Landlock %1, sin ámbitos para señales y sockets</translation>
    </message>
    <message>
        <source>system calls of workers: a list of allowed ones, by seccomp</source>
        <translation>llamadas al sistema de los procesos de trabajo: una lista de permitidas, mediante seccomp</translation>
    </message>
    <message>
        <source>system calls of workers: not restricted, as the kernel has no seccomp</source>
        <translation>llamadas al sistema de los procesos de trabajo: sin restricciones, pues el núcleo no tiene seccomp</translation>
    </message>
    <message>
        <source>memory of the supervisor: closed to other processes of the user (not dumpable)</source>
        <translation>memoria del supervisor: cerrada a otros procesos del usuario (no volcable)</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2, which is not kept; keep=copyright keeps it</source>
        <translation>el aviso de copyright «%1» solo está en %2, que no se conserva; keep=copyright lo conserva</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2 and %3, which are not kept; keep=copyright keeps it</source>
        <translation>el aviso de copyright «%1» solo está en %2 y %3, que no se conservan; keep=copyright lo conserva</translation>
    </message>
    <message>
        <source>the format of each input</source>
        <translation>el formato de cada entrada</translation>
    </message>
    <message>
        <source>--dry-run and %1 cannot be combined; remove one of them</source>
        <translation>--dry-run y %1 no se pueden combinar; quite uno de los dos</translation>
    </message>
    <message>
        <source>%1 and --preset exclude each other: give one of them to start from</source>
        <translation>%1 y --preset se excluyen: indique solo uno como punto de partida</translation>
    </message>
    <message>
        <source>no file name for the job: velkora-batch create JOB.xml INPUT...</source>
        <translation>falta el nombre de archivo del trabajo: velkora-batch create JOB.xml INPUT...</translation>
    </message>
    <message>
        <source>the first argument must be the file of the job, with a name that ends with .xml, but is &quot;%1&quot;</source>
        <translation>el primer argumento debe ser el archivo del trabajo, con un nombre terminado en .xml, pero es «%1»</translation>
    </message>
    <message>
        <source>there is no file &quot;-&quot;; to read names from standard input, use --files-from -</source>
        <translation>no existe el archivo «-»; para leer nombres de la entrada estándar, use --files-from -</translation>
    </message>
    <message>
        <source>--null needs %1</source>
        <translation>--null requiere %1</translation>
    </message>
    <message>
        <source>%1 -: standard input is a terminal; pipe a list into it, or name a file</source>
        <translation>%1 -: la entrada estándar es un terminal; envíele una lista o indique un archivo</translation>
    </message>
    <message>
        <source>%1 cannot be used with --in-place without --output: results go to the folders of their originals</source>
        <translation>%1 no se puede usar con --in-place sin --output: los resultados van a las carpetas de sus originales</translation>
    </message>
    <message>
        <source>no pictures: %1 matches nothing</source>
        <translation>no hay imágenes: %1 no coincide con nada</translation>
    </message>
    <message>
        <source>no pictures: %1 and %2 match nothing</source>
        <translation>no hay imágenes: %1 y %2 no coinciden con nada</translation>
    </message>
    <message>
        <source>no inputs</source>
        <translation>no hay entradas</translation>
    </message>
    <message>
        <source>%1 is not for &quot;presets %2&quot;, but for &quot;presets %3&quot;</source>
        <translation>%1 no es de «presets %2», sino de «presets %3»</translation>
    </message>
    <message>
        <source>the name of the preset is missing: velkora-batch presets %1 NAME</source>
        <translation>falta el nombre del ajuste: velkora-batch presets %1 NAME</translation>
    </message>
    <message>
        <source>a preset has no inputs, but &quot;%1&quot; is given behind its name</source>
        <translation>un ajuste no tiene entradas, pero tras su nombre se indica «%1»</translation>
    </message>
    <message>
        <source>one preset at a time, but &quot;%1&quot; is given behind its name</source>
        <translation>un solo ajuste cada vez, pero tras su nombre se indica «%1»</translation>
    </message>
    <message>
        <source>list takes no name, but &quot;%1&quot; is given; &quot;velkora-batch show --preset NAME&quot; prints a preset</source>
        <translation>list no admite nombres, pero se indica «%1»; «velkora-batch show --preset NAME» muestra un ajuste</translation>
    </message>
    <message>
        <source>%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it</source>
        <translation>%1/BatchExceptionPolicy.ini contiene el valor %2, que no es válido; use %3 en su lugar</translation>
    </message>
    <message>
        <source>unknown option %1; %2</source>
        <translation>opción desconocida %1; %2</translation>
    </message>
    <message>
        <source>it is an option of %1; &quot;velkora-batch %2 --help&quot; lists the options</source>
        <translation>es una opción de %1; «velkora-batch %2 --help» muestra las opciones</translation>
    </message>
    <message>
        <source>&quot;velkora-batch %1 --help&quot; lists the options</source>
        <translation>«velkora-batch %1 --help» muestra las opciones</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>¿quiso decir «%1»?</translation>
    </message>
    <message>
        <source>%1 is a folder, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 es una carpeta, no una orden; ¿quiso decir «velkora-batch run %1»?</translation>
    </message>
    <message>
        <source>%1 is a file, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 es un archivo, no una orden; ¿quiso decir «velkora-batch run %1»?</translation>
    </message>
    <message>
        <source>%1 is no command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 no es una orden; ¿quiso decir «velkora-batch run %1»?</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; did you mean &quot;velkora-batch %2&quot;?</source>
        <translation>orden desconocida «%1»; ¿quiso decir «velkora-batch %2»?</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>orden desconocida: %1</translation>
    </message>
    <message>
        <source>no command: use one of %1, or &quot;velkora-batch --help&quot;</source>
        <translation>falta la orden: use una de %1, o «velkora-batch --help»</translation>
    </message>
    <message>
        <source>%1 is not allowed before the command, only %2</source>
        <translation>%1 no se admite antes de la orden, solo %2</translation>
    </message>
    <message>
        <source>help takes one command, but got %1</source>
        <translation>help admite una orden, pero recibió %1</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, contains a character that a job cannot hold</source>
        <translation>el argumento %1, «%2», contiene un carácter que un trabajo no puede guardar</translation>
    </message>
    <message>
        <source>%1 is a switch and takes no value; type %1 alone, or leave it out</source>
        <translation>%1 es un interruptor y no admite valor; escriba solo %1, u omítalo</translation>
    </message>
    <message>
        <source>an input of %1 has an empty name</source>
        <translation>una entrada de %1 tiene el nombre vacío</translation>
    </message>
    <message>
        <source>%1 is given %2 times, but takes one value; remove &quot;%3&quot; or &quot;%4&quot;</source>
        <translation>%1 se indica %2 veces, pero admite un solo valor; quite «%3» o «%4»</translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation>%1: falta el valor %2</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>drops the inputs of the saved job first</source>
        <translation>descarta primero las entradas del trabajo guardado</translation>
    </message>
    <message>
        <source>also takes the files and folders that a file names, one a line, or standard input for &quot;-&quot;. Relative names start at the current folder</source>
        <translation>toma también los archivos y carpetas que nombra un archivo, uno por línea; «-» es la entrada estándar. Los nombres relativos parten de la carpeta actual</translation>
    </message>
    <message>
        <source>the names of --files-from are separated by NUL, not by line ends</source>
        <translation>los nombres de --files-from están separados por NUL, no por finales de línea</translation>
    </message>
    <message>
        <source>takes only files whose names match, such as &quot;*.{nef,cr2}&quot;, or whose paths in the given folders match, such as &quot;2024/**/*.jpg&quot;; default: all that can be read. Files that are given by name are always taken</source>
        <translation>toma solo archivos cuyo nombre coincide, como «*.{nef,cr2}», o cuya ruta en las carpetas indicadas coincide, como «2024/**/*.jpg»; valor predeterminado: todos los que se pueden leer. Los archivos indicados por su nombre se toman siempre</translation>
    </message>
    <message>
        <source>leaves out files and folders whose names or paths match, inside the given folders</source>
        <translation>deja fuera, en las carpetas indicadas, los archivos y carpetas cuyo nombre o ruta coincide</translation>
    </message>
    <message>
        <source>leaves out folders inside folders</source>
        <translation>deja fuera las subcarpetas</translation>
    </message>
    <message>
        <source>includes files and folders whose names begin with a dot</source>
        <translation>incluye archivos y carpetas cuyo nombre empieza por un punto</translation>
    </message>
    <message>
        <source>the order of the pictures, which numbers in names follow: taken, by capture time, and by the file&apos;s own time where there is none; name, folder by folder; given, as the command line names them. The default is name, or the order of the saved job</source>
        <translation>el orden de las imágenes, que siguen los números de los nombres: taken, por la hora de la toma, y si no la hay, por la del archivo; name, carpeta por carpeta; given, como en la línea de órdenes. El valor predeterminado es name, o el orden del trabajo guardado</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>prints problems only</source>
        <translation>muestra solo los problemas</translation>
    </message>
    <message>
        <source>also prints details for finding faults</source>
        <translation>muestra también detalles para buscar fallos</translation>
    </message>
    <message>
        <source>prints this text</source>
        <translation>muestra este texto</translation>
    </message>
    <message>
        <source>prints the help of a command</source>
        <translation>muestra la ayuda de una orden</translation>
    </message>
    <message>
        <source>prints JSON</source>
        <translation>muestra JSON</translation>
    </message>
    <message>
        <source>writes a job with these inputs and options to a file, or to standard output for &quot;-&quot;</source>
        <translation>escribe un trabajo con estas entradas y opciones en un archivo, o en la salida estándar con «-»</translation>
    </message>
    <message>
        <source>prints a job: its inputs as a tree, its effects, and its output in the words of the options</source>
        <translation>muestra un trabajo: sus entradas en árbol, sus efectos y su salida en las palabras de las opciones</translation>
    </message>
    <message>
        <source>prints every input with its output and its size in pixels, and writes nothing. A problem is printed in brackets, with what the policy would do about it. Exit status: 1 when there are problems</source>
        <translation>muestra cada entrada con su salida y su tamaño en píxeles, y no escribe nada. Un problema se muestra entre corchetes, con lo que la regla haría. Código de salida: 1 si hay problemas</translation>
    </message>
    <message>
        <source>does not look at every picture for its size in pixels, which takes time for many</source>
        <translation>no examina cada imagen para conocer su tamaño en píxeles, lo que tarda si son muchas</translation>
    </message>
    <message>
        <source>prints one JSON object for each input</source>
        <translation>muestra un objeto JSON por entrada</translation>
    </message>
    <message>
        <source>lists the effects with their parameters</source>
        <translation>muestra los efectos con sus parámetros</translation>
    </message>
    <message>
        <source>lists the output formats with their options, and the files that can be read</source>
        <translation>muestra los formatos de salida con sus opciones, y los archivos que se pueden leer</translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other; remove one of them</source>
        <translation>%1 y %2 se contradicen; quite uno de los dos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT with an optional unit, such as 800x600, 15x10cm or 6x4in</source>
        <translation>«%1» no tiene la forma WIDTHxHEIGHT con una unidad opcional, como 800x600, 15x10cm o 6x4in</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers, such as %3; or add a unit, as in %4cm</source>
        <translation>«%1» significa %2 píxeles, porque el punto separa los decimales, pero los píxeles se cuentan en números enteros, como %3; o añada una unidad, como en %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large; each side must be from 1 to %2 pixels</source>
        <translation>«%1» es demasiado grande; cada lado debe tener de 1 a %2 píxeles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a resolution; add --resolution, as in --resolution 300</source>
        <translation>«%1» requiere una resolución; añada --resolution, como en --resolution 300</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 pixels at %3 dots per inch; each side must be from 1 to %4</source>
        <translation>«%1» son %2 píxeles a %3 puntos por pulgada; cada lado debe tener de 1 a %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels, but the size is %4: type %5 for the unit of the size, or %6 for pixels</source>
        <translation>«%1» son %2 x %3 píxeles, pero el tamaño es %4: escriba %5 para la unidad del tamaño, o %6 para píxeles</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; needs a size, such as %1:3x2%2</source>
        <translation>«%1:%2» requiere un tamaño, como %1:3x2%2</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; has a unit, but a ratio has no unit: type %1:%3, or fill:%2 for that size</source>
        <translation>«%1:%2» tiene una unidad, pero una proporción no la tiene: escriba %1:%3, o fill:%2 para ese tamaño</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with &quot;!&quot;, but only ratio and interesting turn with the picture; remove the &quot;!&quot;</source>
        <translation>«%1» termina en «!», pero solo ratio e interesting giran con la imagen; quite el «!»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point, as in %2</source>
        <translation>«%1» tiene una coma; los decimales se escriben con punto, como en %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no size</source>
        <translation>«%1» no admite tamaño</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a size, such as %1:3x2</source>
        <translation>«%1» requiere un tamaño, como %1:3x2</translation>
    </message>
    <message>
        <source>Pictures for the web, at most 1600 pixels long</source>
        <translation>Imágenes para la web, de 1600 píxeles de largo como máximo</translation>
    </message>
    <message>
        <source>Names by capture date, in a folder for each day</source>
        <translation>Nombres por fecha de la toma, una carpeta por día</translation>
    </message>
    <message>
        <source>A saved job over other pictures</source>
        <translation>Un trabajo guardado sobre otras imágenes</translation>
    </message>
    <message>
        <source>Files that another program lists</source>
        <translation>Archivos que enumera otro programa</translation>
    </message>
    <message>
        <source>Camera RAW files in all subfolders</source>
        <translation>Archivos RAW de cámara en todas las subcarpetas</translation>
    </message>
    <message>
        <source>What would be written</source>
        <translation>Lo que se escribiría</translation>
    </message>
    <message>
        <source>A preset over other pictures</source>
        <translation>Un ajuste sobre otras imágenes</translation>
    </message>
    <message>
        <source>A run that was interrupted</source>
        <translation>Una ejecución interrumpida</translation>
    </message>
    <message>
        <source>A job for pictures to come</source>
        <translation>Un trabajo para imágenes futuras</translation>
    </message>
    <message>
        <source>A job with one value changed</source>
        <translation>Un trabajo con un valor cambiado</translation>
    </message>
    <message>
        <source>A saved job, in the words of the options</source>
        <translation>Un trabajo guardado, en las palabras de las opciones</translation>
    </message>
    <message>
        <source>Every result&apos;s name, and what is in the way</source>
        <translation>El nombre de cada resultado, y lo que lo impide</translation>
    </message>
    <message>
        <source>The same for programs</source>
        <translation>Lo mismo para programas</translation>
    </message>
    <message>
        <source>One effect with its parameters</source>
        <translation>Un efecto con sus parámetros</translation>
    </message>
    <message>
        <source>One format with its options</source>
        <translation>Un formato con sus opciones</translation>
    </message>
    <message>
        <source>folders are always read with their subfolders, so leave it out</source>
        <translation>las carpetas siempre se leen con sus subcarpetas, así que omítala</translation>
    </message>
    <message>
        <source>name files and folders without an option</source>
        <translation>indique archivos y carpetas sin opción</translation>
    </message>
    <message>
        <source>use --files-from FILE, or --files-from -</source>
        <translation>use --files-from FILE o --files-from -</translation>
    </message>
    <message>
        <source>use --hidden for files and folders whose names begin with a dot</source>
        <translation>use --hidden para archivos y carpetas cuyo nombre empieza por un punto</translation>
    </message>
    <message>
        <source>use --quality N, or --format-option compression=WORD or compressionLevel=N</source>
        <translation>use --quality N, o --format-option compression=WORD o compressionLevel=N</translation>
    </message>
    <message>
        <source>metadata is kept unless --format-option keep=WORD+WORD says which</source>
        <translation>los metadatos se conservan, salvo que --format-option keep=WORD+WORD diga cuáles</translation>
    </message>
    <message>
        <source>use --size %1, with % for a percentage</source>
        <translation>use --size %1, con % para un porcentaje</translation>
    </message>
    <message>
        <source>pictures are always turned upright, so leave it out</source>
        <translation>las imágenes siempre se enderezan, así que omítala</translation>
    </message>
    <message>
        <source>use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE</source>
        <translation>use --effect watermark-text:text=TEXT o --effect watermark-image:file=FILE</translation>
    </message>
    <message>
        <source>use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken</source>
        <translation>use --name, --prefix y --suffix, o --on-name-exists rename para nombres ocupados</translation>
    </message>
    <message>
        <source>&quot;velkora-batch plan&quot; prints what a run would write</source>
        <translation>«velkora-batch plan» muestra lo que escribiría una ejecución</translation>
    </message>
    <message>
        <source>name a saved job as the first input</source>
        <translation>indique un trabajo guardado como primera entrada</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch formats&quot;</source>
        <translation>use «velkora-batch formats»</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch effects&quot;</source>
        <translation>use «velkora-batch effects»</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch --version&quot;</source>
        <translation>use «velkora-batch --version»</translation>
    </message>
    <message>
        <source>use --%1</source>
        <translation>use --%1</translation>
    </message>
    <message>
        <source>use --effect %1; &quot;velkora-batch effects %1&quot; lists its parameters</source>
        <translation>use --effect %1; «velkora-batch effects %1» muestra sus parámetros</translation>
    </message>
    <message>
        <source>processes pictures in batches: effects, size, crop, frame, format and names</source>
        <translation>procesa imágenes por lotes: efectos, tamaño, recorte, marco, formato y nombres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a shadow; add --shadow</source>
        <translation>«%1» no tiene efecto sin una sombra; añada --shadow</translation>
    </message>
    <message>
        <source>%1 is not an ICC profile</source>
        <translation>%1 no es un perfil ICC</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>the name of the saved job</source>
        <translation>el nombre del trabajo guardado</translation>
    </message>
    <message>
        <source>the folder for the results; it is created when it does not exist, and a relative one starts at the current folder</source>
        <translation>la carpeta de los resultados; se crea si no existe, y una relativa parte de la carpeta actual</translation>
    </message>
    <message>
        <source>the name of the folder is empty</source>
        <translation>el nombre de la carpeta está vacío</translation>
    </message>
    <message>
        <source>the folders below it: flat, none; input, as in the inputs; date, by capture date, or that of the file where a picture has none</source>
        <translation>las carpetas dentro de ella: flat, ninguna; input, como en las entradas; date, por fecha de la toma, o la del archivo si una imagen no la tiene</translation>
    </message>
    <message>
        <source>the format of results, by name or extension; Original keeps that of each input. Changing the format of a saved job drops its format options</source>
        <translation>el formato de los resultados, por nombre o extensión; Original conserva el de cada entrada. Al cambiar el formato de un trabajo guardado se descartan sus opciones de formato</translation>
    </message>
    <message>
        <source>an option of the format, such as quality=90; &quot;velkora-batch formats&quot; lists them</source>
        <translation>una opción del formato, como quality=90; «velkora-batch formats» las muestra</translation>
    </message>
    <message>
        <source>an ICC profile to convert results to and to embed; none keeps each input&apos;s own</source>
        <translation>un perfil ICC al que convertir los resultados y que incrustar; none conserva el de cada entrada</translation>
    </message>
    <message>
        <source>Names of results</source>
        <translation>Nombres de los resultados</translation>
    </message>
    <message>
        <source>what a name begins with; PART is the same as for --name</source>
        <translation>con qué empieza un nombre; PART es como en --name</translation>
    </message>
    <message>
        <source>what a name ends with</source>
        <translation>con qué termina un nombre</translation>
    </message>
    <message>
        <source>the text between prefix and middle</source>
        <translation>el texto entre el prefijo y el centro</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a prefix; add --prefix</source>
        <translation>«%1» no tiene efecto sin un prefijo; añada --prefix</translation>
    </message>
    <message>
        <source>the text between middle and suffix</source>
        <translation>el texto entre el centro y el sufijo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a suffix; add --suffix</source>
        <translation>«%1» no tiene efecto sin un sufijo; añada --suffix</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a size, and this option says which pictures change; use --size %2</source>
        <translation>«%1» es un tamaño, y esta opción dice qué imágenes cambian; use --size %2</translation>
    </message>
    <message>
        <source>Size and crop</source>
        <translation>Tamaño y recorte</translation>
    </message>
    <message>
        <source>scales pictures to a length of one side, such as 1600, 50%, 8in, 20cm or 200mm; none keeps the size</source>
        <translation>escala las imágenes a una longitud de un lado, como 1600, 50%, 8in, 20cm o 200mm; none conserva el tamaño</translation>
    </message>
    <message>
        <source>the side that --size sets</source>
        <translation>el lado que fija --size</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a size; add --size</source>
        <translation>«%1» no tiene efecto sin un tamaño; añada --size</translation>
    </message>
    <message>
        <source>which pictures --size changes: reduce, only larger ones (default); enlarge, only smaller ones; fit, both; none</source>
        <translation>qué imágenes cambia --size: reduce, solo las más grandes (predeterminado); enlarge, solo las más pequeñas; fit, ambas; none</translation>
    </message>
    <message>
        <source>dots per inch, for lengths in in, cm and mm; also written into results</source>
        <translation>puntos por pulgada, para longitudes en in, cm y mm; también se escribe en los resultados</translation>
    </message>
    <message>
        <source>none; trim, cuts off a border of one colour; or with WIDTHxHEIGHT: ratio:3x2, the largest frame of that ratio, upright in upright pictures, or ratio:3x2!, never turned; interesting:3x2, the frame of that ratio that draws the eye; fill:800x600 or fill:15x10cm, scales to cover, then cuts; exact:800x600, that many pixels. in, cm and mm become pixels by --resolution</source>
        <translation>none; trim, corta un borde de un solo color; o con WIDTHxHEIGHT: ratio:3x2, el mayor encuadre de esa proporción, vertical en imágenes verticales, o ratio:3x2!, nunca girado; interesting:3x2, el encuadre de esa proporción que atrae la vista; fill:800x600 o fill:15x10cm, escala hasta cubrir y luego corta; exact:800x600, esa cantidad de píxeles. in, cm y mm pasan a píxeles según --resolution</translation>
    </message>
    <message>
        <source>where ratio, fill and exact place the frame in the picture</source>
        <translation>dónde colocan ratio, fill y exact el encuadre en la imagen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without --crop ratio, fill or exact; add one of them</source>
        <translation>«%1» no tiene efecto sin --crop ratio, fill o exact; añada uno de ellos</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>puts pictures on a frame with margins in pixels: one number for all sides, or LEFT,TOP,RIGHT,BOTTOM; none removes the frame. Each of the options below adds a frame</source>
        <translation>coloca las imágenes en un marco con márgenes en píxeles: un número para todos los lados, o LEFT,TOP,RIGHT,BOTTOM; none quita el marco. Cada una de las opciones siguientes añade un marco</translation>
    </message>
    <message>
        <source>the size of the frame in pixels; picture: the size of each picture</source>
        <translation>el tamaño del marco en píxeles; picture: el tamaño de cada imagen</translation>
    </message>
    <message>
        <source>turns the picture on its frame, clockwise</source>
        <translation>gira la imagen sobre su marco, en sentido horario</translation>
    </message>
    <message>
        <source>the opacity of the picture</source>
        <translation>la opacidad de la imagen</translation>
    </message>
    <message>
        <source>how the picture is laid over its background</source>
        <translation>cómo se superpone la imagen a su fondo</translation>
    </message>
    <message>
        <source>the background of the frame: none; colour:#rrggbb; pattern:0 to pattern:7, with :PERCENT for its scale; image:FILE</source>
        <translation>el fondo del marco: none; colour:#rrggbb; pattern:0 a pattern:7, con :PERCENT para su escala; image:FILE</translation>
    </message>
    <message>
        <source>the opacity of the background</source>
        <translation>la opacidad del fondo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a background; add --background</source>
        <translation>«%1» no tiene efecto sin un fondo; añada --background</translation>
    </message>
    <message>
        <source>the shadow of the picture: drop; glow, around it; none</source>
        <translation>la sombra de la imagen: drop; glow, alrededor; none</translation>
    </message>
    <message>
        <source>#rrggbb or a name</source>
        <translation>#rrggbb o un nombre</translation>
    </message>
    <message>
        <source>the opacity of the shadow</source>
        <translation>la opacidad de la sombra</translation>
    </message>
    <message>
        <source>where the light comes from: 0 from the right, 90 from above</source>
        <translation>de dónde viene la luz: 0 desde la derecha, 90 desde arriba</translation>
    </message>
    <message>
        <source>how far the shadow lies from the picture</source>
        <translation>a qué distancia de la imagen está la sombra</translation>
    </message>
    <message>
        <source>how soft the shadow is</source>
        <translation>lo suave que es la sombra</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>drops the effects of the saved job first</source>
        <translation>descarta primero los efectos del trabajo guardado</translation>
    </message>
    <message>
        <source>adds an effect after those of the job, such as blur:sigma=2. NAME:{JSON} works as well; off:NAME adds the effect disabled. &quot;velkora-batch effects&quot; lists all effects</source>
        <translation>añade un efecto tras los del trabajo, como blur:sigma=2. También sirve NAME:{JSON}; off:NAME añade el efecto desactivado. «velkora-batch effects» muestra todos los efectos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length above 0 and up to %2, such as 1600, 50%, 8in, 20cm or 200mm; &quot;none&quot; keeps the size</source>
        <translation>«%1» no es una longitud mayor que 0 y hasta %2, como 1600, 50%, 8in, 20cm o 200mm; «none» conserva el tamaño</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; a size is one length, such as 1600 or 20.5cm</source>
        <translation>«%1» tiene una coma; un tamaño es una sola longitud, como 1600 o 20.5cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point: type %2</source>
        <translation>«%1» tiene una coma; los decimales se escriben con punto: escriba %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma, which no number has: type %2 for that many pixels, %3cm for decimals, or --crop fill:%4 for a width and a height</source>
        <translation>«%1» tiene una coma, que ningún número lleva: escriba %2 para esa cantidad de píxeles, %3cm para decimales, o --crop fill:%4 para un ancho y un alto</translation>
    </message>
    <message>
        <source>type %1 for that many pixels</source>
        <translation>escriba %1 para esa cantidad de píxeles</translation>
    </message>
    <message>
        <source>type %1 for that</source>
        <translation>escriba %1 para eso</translation>
    </message>
    <message>
        <source>type 1</source>
        <translation>escriba 1</translation>
    </message>
    <message>
        <source>type 1px</source>
        <translation>escriba 1px</translation>
    </message>
    <message>
        <source>type %1 or %2</source>
        <translation>escriba %1 o %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a width and a height, but a size is the length of one side: type one of them, with --side to say which, or --crop fill:%2 for exactly that</source>
        <translation>«%1» es un ancho y un alto, pero un tamaño es la longitud de un lado: escriba uno de ellos, con --side para decir cuál, o --crop fill:%2 para exactamente eso</translation>
    </message>
    <message>
        <source>%1 (unit %2)</source>
        <translation>%1 (unidad %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form KEY=VALUE</source>
        <translation>«%1» no tiene la forma KEY=VALUE</translation>
    </message>
    <message>
        <source>it takes no parameters, but &quot;%1&quot; is given</source>
        <translation>no admite parámetros, pero se indica «%1»</translation>
    </message>
    <message>
        <source>unknown effect &quot;%1&quot;; the effects are %2</source>
        <translation>efecto desconocido «%1»; los efectos son %2</translation>
    </message>
    <message>
        <source>effect %1</source>
        <translation>efecto %1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>formato %1</translation>
    </message>
    <message>
        <source>when a file is missing, damaged, too large or not a picture: skip it, stop the run, or ask</source>
        <translation>si un archivo falta, está dañado, es demasiado grande o no es una imagen: skip lo omite, stop detiene la ejecución, ask pregunta</translation>
    </message>
    <message>
        <source>when a result cannot be written, because of a full disk or missing rights: skip, stop or ask</source>
        <translation>si un resultado no se puede escribir por falta de espacio o de permisos: skip, stop o ask</translation>
    </message>
    <message>
        <source>when an effect fails, or a picture takes too long or crashes its worker: skip, stop or ask</source>
        <translation>si un efecto falla, o una imagen tarda demasiado o hace caer su proceso de trabajo: skip, stop o ask</translation>
    </message>
    <message>
        <source>when a result&apos;s name is taken, on disk, by another result or by a source: skip, overwrite, rename (&quot; (2)&quot; is appended) or ask</source>
        <translation>si el nombre de un resultado está ocupado, en el disco, por otro resultado o por un original: skip, overwrite, rename (se añade « (2)») o ask</translation>
    </message>
    <message>
        <source>when a picture cannot be written in the wanted format: skip, stop, ask, or nearest, to write the nearest format that can hold it</source>
        <translation>si una imagen no se puede escribir en el formato deseado: skip, stop, ask, o nearest, para escribir el formato más próximo que la admita</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Excepciones</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them</source>
        <translation>parte de un ajuste; «velkora-batch presets» los muestra</translation>
    </message>
    <message>
        <source>the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)</source>
        <translation>la carpeta con BatchExceptionPolicy.ini (reglas predeterminadas) y presets/ (ajustes propios)</translation>
    </message>
    <message>
        <source>starts from a saved job</source>
        <translation>parte de un trabajo guardado</translation>
    </message>
    <message>
        <source>replaces an existing file</source>
        <translation>reemplaza un archivo existente</translation>
    </message>
    <message>
        <source>prints the list as JSON</source>
        <translation>muestra la lista como JSON</translation>
    </message>
    <message>
        <source>lists the presets, saves the options as a preset, or removes one. A preset is a job without inputs that run, plan, show and create take by --preset NAME; a relative --output starts where it is run. Exit status: 1 when a preset cannot be used</source>
        <translation>muestra los ajustes, guarda las opciones como ajuste, o quita uno. Un ajuste es un trabajo sin entradas que run, plan, show y create toman con --preset NAME; un --output relativo parte de donde se ejecuta. Código de salida: 1 si un ajuste no se puede usar</translation>
    </message>
    <message>
        <source>%1 files have no quality; %2 have one</source>
        <translation>los archivos %1 no tienen calidad; la tienen %2</translation>
    </message>
    <message>
        <source>the quality of results in formats that have one; the same as %1 %2=N</source>
        <translation>la calidad de los resultados en los formatos que la tienen; lo mismo que %1 %2=N</translation>
    </message>
    <message>
        <source>how many pictures are processed at a time; default: one for each core</source>
        <translation>cuántas imágenes se procesan a la vez; valor predeterminado: una por núcleo</translation>
    </message>
    <message>
        <source>larger pictures are not read; default: 400</source>
        <translation>las imágenes mayores no se leen; valor predeterminado: 400</translation>
    </message>
    <message>
        <source>memory that one picture may take; default: 2048</source>
        <translation>memoria que puede ocupar una imagen; valor predeterminado: 2048</translation>
    </message>
    <message>
        <source>time that one picture may take; default: 300</source>
        <translation>tiempo que puede tardar una imagen; valor predeterminado: 300</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecución</translation>
    </message>
    <message>
        <source>lets results replace their own originals. Without --output, results go to the folders of their originals. Without this option no original is ever replaced</source>
        <translation>permite que los resultados reemplacen sus propios originales. Sin --output, los resultados van a las carpetas de sus originales. Sin esta opción nunca se reemplaza un original</translation>
    </message>
    <message>
        <source>ends with 0, not with 5, when there is no picture among the inputs</source>
        <translation>termina con 0, no con 5, si no hay ninguna imagen entre las entradas</translation>
    </message>
    <message>
        <source>prints what the run would write, as &quot;velkora-batch plan&quot; does, and writes nothing</source>
        <translation>muestra lo que escribiría la ejecución, como «velkora-batch plan», y no escribe nada</translation>
    </message>
    <message>
        <source>writes the result of every input to a file, as CSV or JSON by the extension of its name</source>
        <translation>escribe el resultado de cada entrada en un archivo, como CSV o JSON según la extensión de su nombre</translation>
    </message>
    <message>
        <source>resumes the run that was interrupted in the output folder, with its job and its policies</source>
        <translation>reanuda la ejecución que se interrumpió en la carpeta de salida, con su trabajo y sus reglas</translation>
    </message>
    <message>
        <source>says which run to resume if several were interrupted; --resume lists their names</source>
        <translation>dice qué ejecución reanudar si se interrumpieron varias; --resume muestra sus nombres</translation>
    </message>
    <message>
        <source>counts a picture with a warning as failed; its result is kept</source>
        <translation>cuenta como fallida una imagen con advertencia; su resultado se conserva</translation>
    </message>
    <message>
        <source>prints each event of the run to standard output, as one line of JSON</source>
        <translation>muestra cada evento de la ejecución en la salida estándar, como una línea de JSON</translation>
    </message>
    <message>
        <source>lets results go through links to folders below the output folder; otherwise such a link is an error of output</source>
        <translation>permite que los resultados pasen por enlaces a carpetas dentro de la carpeta de salida; si no, ese enlace es un error de salida</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from %2 to %3</source>
        <translation>«%1» no es un número de %2 a %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from %2 to %3</source>
        <translation>«%1» no es un número entero de %2 a %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT, with whole numbers from 1 to %2, such as 800x600</source>
        <translation>«%1» no tiene la forma WIDTHxHEIGHT, con números enteros de 1 a %2, como 800x600</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a number of pixels, such as 40, nor LEFT,TOP,RIGHT,BOTTOM; &quot;none&quot; means no frame</source>
        <translation>«%1» no es un número de píxeles, como 40, ni LEFT,TOP,RIGHT,BOTTOM; «none» significa sin marco</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour; use #rrggbb or a name</source>
        <translation>«%1» no es un color; use #rrggbb o un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is incomplete; complete it as in %2</source>
        <translation>«%1» está incompleto; complételo como en %2</translation>
    </message>
    <message>
        <source>; write a text of your own as text:%1</source>
        <translation>; escriba un texto propio como text:%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no value</source>
        <translation>«%1» no admite valor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>«%1» no es uno de %2</translation>
    </message>
    <message>
        <source>argument %1 (%2) is not valid UTF-8</source>
        <translation>el argumento %1 (%2) no es UTF-8 válido</translation>
    </message>
    <message>
        <source>the inputs do not lie in one folder: use --in-place for one folder after the other, or name the folder of the results with --output</source>
        <translation>las entradas no están en una misma carpeta: use --in-place carpeta por carpeta, o indique la carpeta de los resultados con --output</translation>
    </message>
    <message>
        <source>the result of %1 would not go to the folder of its original; name the folder of the results with --output</source>
        <translation>el resultado de %1 no iría a la carpeta de su original; indique la carpeta de los resultados con --output</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture</source>
        <translation>%1 es un trabajo guardado, no una imagen</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture; it is left out.</source>
        <translation>%1 es un trabajo guardado, no una imagen; se deja fuera.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>on standard input</source>
        <translation>en la entrada estándar</translation>
    </message>
    <message>
        <source>the list %1 cannot be read: %2</source>
        <translation>no se puede leer la lista %1: %2</translation>
    </message>
    <message>
        <source>the list %1 is larger than %2 MiB; divide it</source>
        <translation>la lista %1 supera %2 MiB; divídala</translation>
    </message>
    <message>
        <source>it has %1 bytes, and no name is that long</source>
        <translation>tiene %1 bytes, y ningún nombre es tan largo</translation>
    </message>
    <message>
        <source>it contains a NUL byte; use -0 for names that are separated by NUL</source>
        <translation>contiene un byte NUL; use -0 para nombres separados por NUL</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid UTF-8; rename it to use it</source>
        <translation>«%1» no es UTF-8 válido; cámbiele el nombre para usarlo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job cannot hold</source>
        <translation>«%1» contiene un carácter que un trabajo no puede guardar</translation>
    </message>
    <message>
        <source>it contains line ends; names in lines are read without -0</source>
        <translation>contiene finales de línea; los nombres en líneas se leen sin -0</translation>
    </message>
    <message>
        <source>%1, name %2</source>
        <translation>%1, nombre %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link</source>
        <translation>%1, línea %2: %3 es un enlace sin destino</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist</source>
        <translation>%1, línea %2: %3 no existe</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link</source>
        <translation>%1, nombre %2: %3 es un enlace sin destino</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist</source>
        <translation>%1, nombre %2: %3 no existe</translation>
    </message>
    <message>
        <source>the list %1 is UTF-16 text; save it as UTF-8</source>
        <translation>la lista %1 es texto UTF-16; guárdela como UTF-8</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2</source>
        <translation>se interrumpieron %1 ejecuciones en %2</translation>
    </message>
    <message>
        <source>no run in %1 is called &quot;%2&quot;</source>
        <translation>ninguna ejecución en %1 se llama «%2»</translation>
    </message>
    <message>
        <source>%1  %2 is damaged</source>
        <translation>%1  %2 está dañado</translation>
    </message>
    <message>
        <source>%1  %2  %3 of 1 picture  %4</source>
        <translation>%1  %2  %3 de 1 imagen  %4</translation>
    </message>
    <message>
        <source>%1  %2  %3 of %4 pictures  %5</source>
        <translation>%1  %2  %3 de %4 imágenes  %5</translation>
    </message>
    <message>
        <source>%1, line %2: this version does not know %3, and ignores it.</source>
        <translation>%1, línea %2: esta versión no conoce %3 y lo ignora.</translation>
    </message>
    <message>
        <source>%1: this version does not know %2 other elements and attributes, and ignores them.</source>
        <translation>%1: esta versión no conoce otros %2 elementos y atributos, y los ignora.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a path, but the name of a preset is needed</source>
        <translation>«%1» es una ruta, pero hace falta el nombre de un ajuste</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>no existe el ajuste «%1»</translation>
    </message>
    <message>
        <source>the name of the preset is empty</source>
        <translation>el nombre del ajuste está vacío</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a dot, which the name of a preset must not</source>
        <translation>«%1» empieza por un punto, lo que no se admite en el nombre de un ajuste</translation>
    </message>
    <message>
        <source>the name of a preset has no extension: use &quot;%1&quot;</source>
        <translation>el nombre de un ajuste no lleva extensión: use «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a file on every system; &quot;%2&quot; would be one</source>
        <translation>«%1» no es un nombre de archivo en todos los sistemas; «%2» sí lo sería</translation>
    </message>
    <message>
        <source>the name of the preset is longer than %1 bytes</source>
        <translation>el nombre del ajuste supera los %1 bytes</translation>
    </message>
    <message>
        <source>the preset %1</source>
        <translation>el ajuste %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>the preset %1 comes with the program and cannot be removed; a preset of yours with that name is used instead of it</source>
        <translation>el ajuste %1 viene con el programa y no se puede quitar; si usted crea uno con ese nombre, se usará en su lugar</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>no se puede quitar %1: %2</translation>
    </message>
    <message>
        <source>Archive: TIFF without loss, with all metadata and the time of the file</source>
        <translation>Archivo: TIFF sin pérdida, con todos los metadatos y la fecha del archivo</translation>
    </message>
    <message>
        <source>Mail: small JPEG of at most 1024 pixels, sRGB, with creator and rights</source>
        <translation>Correo: JPEG pequeño de 1024 píxeles como máximo, sRGB, con autor y derechos</translation>
    </message>
    <message>
        <source>Print: 15 cm long at 300 dpi, with a white border of 5 mm</source>
        <translation>Impresión: 15 cm de largo a 300 ppp, con un borde blanco de 5 mm</translation>
    </message>
    <message>
        <source>Thumbnails: squares of 256 pixels, JPEG without metadata</source>
        <translation>Miniaturas: cuadrados de 256 píxeles, JPEG sin metadatos</translation>
    </message>
    <message>
        <source>Web: JPEG of at most 1600 pixels, sRGB, with creator and rights</source>
        <translation>Web: JPEG de 1600 píxeles como máximo, sRGB, con autor y derechos</translation>
    </message>
    <message>
        <source>The journal %1 cannot be written: %2.</source>
        <translation>No se puede escribir el diario %1: %2.</translation>
    </message>
    <message>
        <source>the braces of a wildcard are nested too deeply</source>
        <translation>las llaves de un comodín están anidadas a demasiada profundidad</translation>
    </message>
    <message>
        <source>a wildcard is longer than %1 characters: %2...</source>
        <translation>un comodín supera los %1 caracteres: %2...</translation>
    </message>
    <message>
        <source>the wildcard &quot;%1&quot; is invalid: %2</source>
        <translation>el comodín «%1» no es válido: %2</translation>
    </message>
    <message>
        <source>the braces in &quot;%1&quot; stand for more than %2 names</source>
        <translation>las llaves de «%1» equivalen a más de %2 nombres</translation>
    </message>
    <message>
        <source>%1 matches no file</source>
        <translation>%1 no coincide con ningún archivo</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>el nombre está vacío</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixel, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>«%1» significa %2 píxel, porque el punto separa los decimales, pero los píxeles se cuentan en números enteros: %3, o una unidad, como en %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>«%1» significa %2 píxeles, porque el punto separa los decimales, pero los píxeles se cuentan en números enteros: %3, o una unidad, como en %4cm</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, nombre %2: %3 es un enlace sin destino (y %4 más)</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist (and %4 more)</source>
        <translation>%1, nombre %2: %3 no existe (y %4 más)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, línea %2: %3 es un enlace sin destino (y %4 más)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist (and %4 more)</source>
        <translation>%1, línea %2: %3 no existe (y %4 más)</translation>
    </message>
    <message>
        <source>Start tag expected.</source>
        <translation>Se esperaba una etiqueta de inicio.</translation>
    </message>
    <message>
        <source>Opening and ending tag mismatch.</source>
        <translation>Las etiquetas de inicio y de cierre no coinciden.</translation>
    </message>
    <message>
        <source>Premature end of document.</source>
        <translation>Fin prematuro del documento.</translation>
    </message>
    <message>
        <source>Extra content at end of document.</source>
        <translation>Contenido sobrante al final del documento.</translation>
    </message>
    <message>
        <source>Expected %1, but got &apos;%2&apos;.</source>
        <translation>Se esperaba %1, pero hay ‘%2’.</translation>
    </message>
    <message>
        <source>range out of order in character class</source>
        <translation>intervalo desordenado en una clase de caracteres</translation>
    </message>
    <message>
        <source>the input&apos;s name without its extension</source>
        <translation>el nombre de la entrada sin extensión</translation>
    </message>
    <message>
        <source>a number that counts the job&apos;s files</source>
        <translation>un número que cuenta los archivos del trabajo</translation>
    </message>
    <message>
        <source>the capture date, YYYYMMDD</source>
        <translation>la fecha de captura, YYYYMMDD</translation>
    </message>
    <message>
        <source>the capture time, HHMMSS</source>
        <translation>la hora de captura, HHMMSS</translation>
    </message>
    <message>
        <source>a text of your own</source>
        <translation>un texto propio</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>everything in the output folder</source>
        <translation>todo en la carpeta de salida</translation>
    </message>
    <message>
        <source>folders as in the input</source>
        <translation>carpetas como en la entrada</translation>
    </message>
    <message>
        <source>a folder for each capture date, YYYY/YYYY-MM-DD</source>
        <translation>una carpeta por fecha de captura, YYYY/YYYY-MM-DD</translation>
    </message>
    <message>
        <source>the size stays</source>
        <translation>el tamaño no cambia</translation>
    </message>
    <message>
        <source>enlarge or reduce</source>
        <translation>ampliar o reducir</translation>
    </message>
    <message>
        <source>only reduce</source>
        <translation>solo reducir</translation>
    </message>
    <message>
        <source>only enlarge</source>
        <translation>solo ampliar</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>el ancho</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>el alto</translation>
    </message>
    <message>
        <source>the long side</source>
        <translation>el lado largo</translation>
    </message>
    <message>
        <source>the short side</source>
        <translation>el lado corto</translation>
    </message>
    <message>
        <source>percent of the picture</source>
        <translation>porcentaje de la imagen</translation>
    </message>
    <message>
        <source>inches at the resolution</source>
        <translation>pulgadas según la resolución</translation>
    </message>
    <message>
        <source>centimetres at the resolution</source>
        <translation>centímetros según la resolución</translation>
    </message>
    <message>
        <source>millimetres at the resolution</source>
        <translation>milímetros según la resolución</translation>
    </message>
    <message>
        <source>no crop</source>
        <translation>sin recorte</translation>
    </message>
    <message>
        <source>the largest frame of the ratio width : height</source>
        <translation>el mayor encuadre de la proporción ancho : alto</translation>
    </message>
    <message>
        <source>cut off a border of one colour</source>
        <translation>cortar un borde de un solo color</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye</source>
        <translation>el encuadre de la proporción que atrae la vista</translation>
    </message>
    <message>
        <source>scale to cover width x height, then cut</source>
        <translation>escalar hasta cubrir ancho x alto y luego cortar</translation>
    </message>
    <message>
        <source>width x height pixels</source>
        <translation>ancho x alto en píxeles</translation>
    </message>
    <message>
        <source>the largest frame of the ratio, turned with the picture</source>
        <translation>el mayor encuadre de la proporción, girado con la imagen</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye, turned with the picture</source>
        <translation>el encuadre de la proporción que atrae la vista, girado con la imagen</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>en el centro</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>at the top left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>at the top right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>at the bottom left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>at the bottom right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>transparent where the format allows it, else white</source>
        <translation>transparente si el formato lo permite; si no, blanco</translation>
    </message>
    <message>
        <source>one colour</source>
        <translation>un color</translation>
    </message>
    <message>
        <source>a built-in pattern</source>
        <translation>un motivo integrado</translation>
    </message>
    <message>
        <source>an image file, scaled to cover</source>
        <translation>un archivo de imagen, escalado hasta cubrir</translation>
    </message>
    <message>
        <source>the picture covers its background</source>
        <translation>la imagen cubre el fondo</translation>
    </message>
    <message>
        <source>multiply</source>
        <translation>multiplicar</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>trama</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>superponer</translation>
    </message>
    <message>
        <source>the darker of the two</source>
        <translation>el más oscuro de los dos</translation>
    </message>
    <message>
        <source>the lighter of the two</source>
        <translation>el más claro de los dos</translation>
    </message>
    <message>
        <source>soft light</source>
        <translation>luz suave</translation>
    </message>
    <message>
        <source>hard light</source>
        <translation>luz fuerte</translation>
    </message>
    <message>
        <source>the difference of the two</source>
        <translation>la diferencia de los dos</translation>
    </message>
    <message>
        <source>a drop shadow</source>
        <translation>una sombra paralela</translation>
    </message>
    <message>
        <source>a glow around the picture, without offset</source>
        <translation>un resplandor alrededor de la imagen, sin desplazamiento</translation>
    </message>
    <message>
        <source>skip the file</source>
        <translation>omitir el archivo</translation>
    </message>
    <message>
        <source>stop the run</source>
        <translation>finalizar la ejecución</translation>
    </message>
    <message>
        <source>ask</source>
        <translation>preguntar</translation>
    </message>
    <message>
        <source>overwrite what is there</source>
        <translation>sobrescribir lo que haya</translation>
    </message>
    <message>
        <source>append &quot; (2)&quot;, &quot; (3)&quot; and so on to the name</source>
        <translation>añadir « (2)», « (3)», etc. al nombre</translation>
    </message>
    <message>
        <source>write the nearest format that can hold the picture</source>
        <translation>escribir el formato más próximo que admita la imagen</translation>
    </message>
    <message>
        <source>reported only</source>
        <translation>solo notificado</translation>
    </message>
    <message>
        <source>the file was skipped</source>
        <translation>el archivo se omitió</translation>
    </message>
    <message>
        <source>the run was stopped</source>
        <translation>la ejecución se detuvo</translation>
    </message>
    <message>
        <source>the option %1 cannot say what the job holds</source>
        <translation>la opción %1 no puede expresar lo que contiene el trabajo</translation>
    </message>
    <message>
        <source>%1 is a picture (%2) with another extension; it is added only if it is named.</source>
        <translation>%1 es una imagen (%2) con otra extensión; solo se añade si se elige el propio archivo.</translation>
    </message>
    <message>
        <source>no private folder can be made for previews: %1</source>
        <translation>no se puede crear una carpeta privada para las vistas previas: %1</translation>
    </message>
    <message>
        <source>the picture that was made for the screen cannot be read</source>
        <translation>no se puede leer la imagen creada para la pantalla</translation>
    </message>
    <message>
        <source>The effect &quot;%1&quot; does not exist</source>
        <translation>El efecto «%1» no existe</translation>
    </message>
    <message>
        <source>shares the processor equally with other programs; otherwise they come first</source>
        <translation>comparte el procesador por igual con otros programas; si no, estos tienen prioridad</translation>
    </message>
    <message>
        <source>&quot;maxBytes&quot; lowers the quality, and &quot;lossless&quot; has none</source>
        <translation>&quot;maxBytes&quot; baja la calidad, y &quot;lossless&quot; no tiene</translation>
    </message>
    <message>
        <source>&quot;minQuality&quot; is %1, above &quot;quality&quot;, which is %2</source>
        <translation>&quot;minQuality&quot; es %1, más que &quot;quality&quot;, que es %2</translation>
    </message>
    <message>
        <source>the largest file; the best quality up to &quot;quality&quot; is found whose file is not larger</source>
        <translation>el archivo más grande; se busca la mejor calidad hasta &quot;quality&quot; cuyo archivo no sea mayor</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>what &quot;maxBytes&quot; may lower the quality to</source>
        <translation>hasta dónde puede bajar la calidad &quot;maxBytes&quot;</translation>
    </message>
    <message>
        <source>makes pictures smaller where &quot;minQuality&quot; is not enough for &quot;maxBytes&quot;</source>
        <translation>reduce las imágenes en las que &quot;minQuality&quot; no basta para &quot;maxBytes&quot;</translation>
    </message>
    <message>
        <source>the file would have %1 bytes with quality %2 and %3 x %4 pixels; at most %5 bytes are wanted</source>
        <translation>el archivo tendría %1 bytes con calidad %2 y %3 x %4 píxeles; se quieren como máximo %5 bytes</translation>
    </message>
    <message>
        <source>the size of %1 files follows from their pixels; %2 can have a limit</source>
        <translation>el tamaño de los archivos %1 depende de sus píxeles; se pueden limitar %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of bytes; write it like 500kB, 1.5MB or 300KiB</source>
        <translation>&quot;%1&quot; no es un número de bytes; escríbalo como 500kB, 1.5MB o 300KiB</translation>
    </message>
    <message>
        <source>the largest file, such as 500kB; the best quality that is not larger is found. The format options minQuality and mayShrink say how far it may go</source>
        <translation>el archivo más grande, por ejemplo 500kB; se busca la mejor calidad que no sea mayor. Las opciones de formato minQuality y mayShrink dicen hasta dónde</translation>
    </message>
    <message>
        <source>it is damaged, or of another version</source>
        <translation>está dañado o es de otra versión</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>makes only what has changed since the last update into the output folder: its input, the job&apos;s settings, or a file that they name. All other results stay as they are</source>
        <translation>hace solo lo que ha cambiado desde la última actualización en la carpeta de salida: su entrada, los ajustes del trabajo o un archivo que estos nombran. Todos los demás resultados quedan como están</translation>
    </message>
    <message>
        <source>lets an update compare the contents of files, not only their sizes and times</source>
        <translation>hace que una actualización compare el contenido de los archivos, no solo su tamaño y su fecha</translation>
    </message>
    <message>
        <source>lets an update remove results that it has made earlier and whose inputs are gone</source>
        <translation>hace que una actualización elimine los resultados que hizo antes y cuyas entradas ya no existen</translation>
    </message>
    <message>
        <source>the folder cannot be written, or another process keeps the record</source>
        <translation>no se puede escribir en la carpeta, u otro proceso tiene el registro</translation>
    </message>
    <message>
        <source>who made the picture</source>
        <translation>quién hizo la imagen</translation>
    </message>
    <message>
        <source>the notice that says whose the picture is</source>
        <translation>el aviso que dice de quién es la imagen</translation>
    </message>
    <message>
        <source>who is to be named where the picture is shown</source>
        <translation>a quién hay que nombrar donde se muestra la imagen</translation>
    </message>
    <message>
        <source>a short name of the picture</source>
        <translation>un nombre corto de la imagen</translation>
    </message>
    <message>
        <source>separated by commas or semicolons</source>
        <translation>separadas por comas o puntos y coma</translation>
    </message>
    <message>
        <source>how the picture may be used</source>
        <translation>cómo se puede usar la imagen</translation>
    </message>
    <message>
        <source>Writes creator, rights, title and keywords into the metadata</source>
        <translation>Escribe autor, derechos, título y palabras clave en los metadatos</translation>
    </message>
    <message>
        <source>the text has tokens, such as {date:YYYY-MM-DD}</source>
        <translation>el texto tiene marcadores como {date:YYYY-MM-DD}</translation>
    </message>
    <message>
        <source>it holds no job</source>
        <translation>no contiene ningún trabajo</translation>
    </message>
    <message>
        <source>its output folder is &quot;%1&quot;, but has to be an absolute path</source>
        <translation>su carpeta de salida es «%1», pero debe ser una ruta absoluta</translation>
    </message>
    <message>
        <source>a job has no name</source>
        <translation>un trabajo no tiene nombre</translation>
    </message>
    <message>
        <source>two jobs have the name &quot;%1&quot;</source>
        <translation>dos trabajos se llaman «%1»</translation>
    </message>
    <message>
        <source>the job &quot;%1&quot; writes to &quot;%2&quot;, which is not in the output folder, &quot;%3&quot;</source>
        <translation>el trabajo «%1» escribe en «%2», que no está en la carpeta de salida «%3»</translation>
    </message>
    <message>
        <source>it holds more than %1 jobs</source>
        <translation>contiene más de %1 trabajos</translation>
    </message>
    <message>
        <source>it is no bundle of jobs</source>
        <translation>no es un conjunto de trabajos</translation>
    </message>
    <message>
        <source>it takes nothing after a colon</source>
        <translation>no admite nada tras dos puntos</translation>
    </message>
    <message>
        <source>the number of digits must be a whole number from 1 to %1</source>
        <translation>el número de cifras debe ser un número entero de 1 a %1</translation>
    </message>
    <message>
        <source>a date is made of YYYY, YY, MM and DD, with no other letters between them</source>
        <translation>una fecha se compone de YYYY, YY, MM y DD, sin otras letras entre ellos</translation>
    </message>
    <message>
        <source>a time is made of HH, MM and SS, with no other letters between them</source>
        <translation>una hora se compone de HH, MM y SS, sin otras letras entre ellos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; the tokens are %3, and {{ is a brace</source>
        <translation>«%1» en el carácter %2 no es un marcador; los marcadores son %3, y {{ es una llave</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; did you mean &quot;{%3}&quot;?</source>
        <translation>«%1» en el carácter %2 no es un marcador; ¿quería decir «{%3}»?</translation>
    </message>
    <message>
        <source>&quot;}&quot; at character %1 closes no token; write }} for a brace</source>
        <translation>«}» en el carácter %1 no cierra ningún marcador; escriba }} para una llave</translation>
    </message>
    <message>
        <source>&quot;{&quot; at character %1 begins a token that has no end; write {{ for a brace</source>
        <translation>«{» en el carácter %1 empieza un marcador sin final; escriba {{ para una llave</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 cannot be used: %3</source>
        <translation>«%1» en el carácter %2 no se puede usar: %3</translation>
    </message>
    <message>
        <source>a text with tokens, such as {date}_{number:4}</source>
        <translation>un texto con marcadores como {date}_{number:4}</translation>
    </message>
    <message>
        <source>depth map lost</source>
        <translation>mapa de profundidad perdido</translation>
    </message>
    <message>
        <source>film lost</source>
        <translation>vídeo perdido</translation>
    </message>
    <message>
        <source>audio lost</source>
        <translation>audio perdido</translation>
    </message>
    <message>
        <source>It has inputs, but those of a bundle belong in its first job</source>
        <translation>Tiene entradas, pero las de un conjunto van en su primer trabajo</translation>
    </message>
    <message>
        <source>The bundle of jobs cannot be read: %1</source>
        <translation>No se puede leer el conjunto de trabajos: %1</translation>
    </message>
    <message>
        <source>Job &quot;%1&quot;: %2</source>
        <translation>Trabajo «%1»: %2</translation>
    </message>
    <message>
        <source>Its output folder is &quot;%1&quot;, but the bundle says &quot;%2&quot;</source>
        <translation>Su carpeta de salida es «%1», pero el conjunto dice «%2»</translation>
    </message>
    <message>
        <source>Several results of one picture cannot replace their original</source>
        <translation>Varios resultados de una imagen no pueden reemplazar su original</translation>
    </message>
    <message>
        <source>it has a depth map, which the result lacks</source>
        <translation>tiene un mapa de profundidad que falta en el resultado</translation>
    </message>
    <message>
        <source>it has a film, which the result lacks</source>
        <translation>tiene un vídeo que falta en el resultado</translation>
    </message>
    <message>
        <source>it has audio, which the result lacks</source>
        <translation>tiene audio que falta en el resultado</translation>
    </message>
    <message>
        <source>--in-place makes one result of each picture, but several presets or jobs are given; remove --in-place, or all but one of them</source>
        <translation>--in-place hace un resultado de cada imagen, pero se indican varios ajustes o trabajos; quite --in-place o todos menos uno</translation>
    </message>
    <message>
        <source>several presets or jobs need one output folder, in which each gets a folder of its name</source>
        <translation>varios ajustes o trabajos necesitan una carpeta de salida, en la que cada uno tiene una carpeta con su nombre</translation>
    </message>
    <message>
        <source>%1 has other inputs than %2; results of one run have the same inputs, and --no-inputs drops those of saved jobs</source>
        <translation>%1 tiene otras entradas que %2; los resultados de una ejecución tienen las mismas entradas, y --no-inputs descarta las de los trabajos guardados</translation>
    </message>
    <message>
        <source>%1 needs --resume</source>
        <translation>%1 requiere --resume</translation>
    </message>
    <message>
        <source>one folder to watch is needed</source>
        <translation>hace falta una carpeta que vigilar</translation>
    </message>
    <message>
        <source>the results would come into the watched folder %1; write them to a folder in it, or elsewhere</source>
        <translation>los resultados llegarían a la carpeta vigilada %1; escríbalos en una carpeta dentro de ella o en otro lugar</translation>
    </message>
    <message>
        <source>processes a saved job, files and folders, or both; options override the job. Several jobs make several results of each picture, each in a folder of its name. Exit status: 0 when all pictures were written, or left out by a policy that an option names; 1 when some failed or were left out otherwise; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 4 when the run was cancelled; 5 when there is no picture among the inputs; 6 when this run is going on already; 7 when there is nothing to resume</source>
        <translation>procesa un trabajo guardado, archivos y carpetas, o ambas cosas; las opciones prevalecen sobre el trabajo. Varios trabajos hacen varios resultados de cada imagen, cada uno en una carpeta con su nombre. Código de salida: 0 si todas las imágenes se escribieron o se omitieron por una regla indicada en una opción; 1 si alguna falló o se omitió por otra causa; 2 si los argumentos o el trabajo son incorrectos; 3 si el servidor no se pudo iniciar o se perdió; 4 si la ejecución se canceló; 5 si no hay ninguna imagen entre las entradas; 6 si esta ejecución ya está en marcha; 7 si no hay nada que reanudar</translation>
    </message>
    <message>
        <source>processes the pictures in a folder and its subfolders, and those that come, until it is ended. Pictures are taken when they have arrived whole, and each once, also over restarts; numbers in names go on. Nobody is asked: ask becomes rename for names, stop for the output, and skip otherwise. Exit status: 0 when it was ended between pictures; 4 when it was ended while pictures were in work, which the next start finishes; 1 when the folder is gone or the output cannot be written; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 6 when the output folder is used for watching already</source>
        <translation>procesa las imágenes de una carpeta y sus subcarpetas, y las que lleguen, hasta que se termine. Las imágenes se toman cuando han llegado enteras, y cada una una vez, también tras reiniciar; los números de los nombres continúan. No se pregunta a nadie: ask pasa a ser rename para los nombres, stop para la salida y skip en lo demás. Código de salida: 0 si se terminó entre imágenes; 4 si se terminó con imágenes en curso, que el próximo inicio acaba; 1 si la carpeta ya no está o no se puede escribir la salida; 2 si los argumentos o el trabajo son incorrectos; 3 si el servidor no se pudo iniciar o se perdió; 6 si ya se vigila para la carpeta de salida</translation>
    </message>
    <message>
        <source>Every picture that comes into a folder</source>
        <translation>Cada imagen que llega a una carpeta</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them. Given several times, each picture gets a result of each preset, in a folder of its name in the output folder</source>
        <translation>parte de un ajuste; «velkora-batch presets» los muestra. Si se indica varias veces, cada imagen tiene un resultado de cada ajuste, en una carpeta con su nombre dentro de la carpeta de salida</translation>
    </message>
    <message>
        <source>Watching</source>
        <translation>Vigilancia</translation>
    </message>
    <message>
        <source>how long a picture has to stay the same before it is taken; default: 2. Pictures that are moved into the folder are taken at once</source>
        <translation>cuánto tiempo tiene que permanecer igual una imagen antes de tomarla; por omisión: 2. Las imágenes que se mueven a la carpeta se toman enseguida</translation>
    </message>
    <message>
        <source>looks for pictures every so many seconds, in place of waiting for the system&apos;s word; default: 5 where the system tells nothing, as for network folders</source>
        <translation>busca imágenes cada tantos segundos, en lugar de esperar el aviso del sistema; por omisión: 5 donde el sistema no avisa, como en carpetas de red</translation>
    </message>
    <message>
        <source>%1 needs --update</source>
        <translation>%1 requiere --update</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice; remove one of them</source>
        <translation>«%1» se indica dos veces; quite una de ellas</translation>
    </message>
    <message>
        <source>the results of &quot;%1&quot; and &quot;%2&quot; would go to one folder, &quot;%3&quot;; give one of them another name</source>
        <translation>los resultados de «%1» y «%2» irían a una misma carpeta, «%3»; dé otro nombre a uno de ellos</translation>
    </message>
    <message>
        <source>at most %1 results can be made of one picture</source>
        <translation>de una imagen se pueden hacer como máximo %1 resultados</translation>
    </message>
    <message>
        <source>what {number} in names begins with; 1, unless it is given</source>
        <translation>con qué empieza {number} en los nombres; 1 si no se indica</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without {number} in a name; add it to --name</source>
        <translation>«%1» no tiene efecto sin {number} en un nombre; añádalo a --name</translation>
    </message>
    <message>
        <source>the middle of a name: original, the input&apos;s name; number, number:START or number:START:DIGITS; date and time, those of the capture, or of the file where a picture has none; text:TEXT; nothing; or a text with tokens, such as {date:YYYY-MM-DD}_{number:4}</source>
        <translation>el centro de un nombre: original, el nombre de la entrada; number, number:START o number:START:DIGITS; date y time, los de la toma, o los del archivo si una imagen no los tiene; text:TEXT; nothing; o un texto con marcadores como {date:YYYY-MM-DD}_{number:4}</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be made</source>
        <translation>no se puede crear la carpeta de salida %1</translation>
    </message>
    <message>
        <source>another process watches a folder for %1 already</source>
        <translation>otro proceso ya vigila una carpeta para %1</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be written</source>
        <translation>no se puede escribir en la carpeta de salida %1</translation>
    </message>
    <message>
        <source>it is no record of a watched folder that this version reads</source>
        <translation>no es un registro de una carpeta vigilada que esta versión lea</translation>
    </message>
    <message>
        <source>what was watched before cannot be read and written: %1: %2</source>
        <translation>no se puede leer y escribir lo vigilado hasta ahora: %1: %2</translation>
    </message>
    <message>
        <source>a newer version of the program has made it; use that version for all parts</source>
        <translation>lo ha hecho una versión más nueva del programa; use esa versión para todas las partes</translation>
    </message>
    <message>
        <source>it is no plan; &quot;velkora-batch split&quot; makes one</source>
        <translation>no es un plan; «velkora-batch split» hace uno</translation>
    </message>
    <message>
        <source>it is damaged; split the job again</source>
        <translation>está dañado; divida el trabajo otra vez</translation>
    </message>
    <message>
        <source>collect takes one plan, the file that split has written</source>
        <translation>collect toma un plan, el archivo que ha escrito split</translation>
    </message>
    <message>
        <source>%1: there is no part &quot;%2&quot;; the plan has the parts %3 to %4</source>
        <translation>%1: no hay parte «%2»; el plan tiene las partes %3 a %4</translation>
    </message>
    <message>
        <source>which part is not said; use --part with a number from 1 to %1</source>
        <translation>no se dice qué parte; use --part con un número de 1 a %1</translation>
    </message>
    <message>
        <source>%1 and %2 both say which part to make; use --part</source>
        <translation>%1 y %2 dicen ambos qué parte hacer; use --part</translation>
    </message>
    <message>
        <source>split needs %1; &quot;velkora-batch help split&quot; says more</source>
        <translation>split necesita %1; «velkora-batch help split» explica más</translation>
    </message>
    <message>
        <source>%1: %2. Nobody can be asked about it while parts are made; decide with %3</source>
        <translation>%1: %2. No se puede preguntar a nadie mientras se hacen las partes; decida con %3</translation>
    </message>
    <message>
        <source>%1: %2. By %3 stop, the job would end there; it was not split</source>
        <translation>%1: %2. Con %3 stop, el trabajo terminaría ahí; no se ha dividido</translation>
    </message>
    <message>
        <source>not all inputs could be read, as said above; nothing was split</source>
        <translation>no se pudieron leer todas las entradas, como se dice arriba; no se ha dividido nada</translation>
    </message>
    <message>
        <source>%1 pictures cannot be cut into %2 parts; each needs a picture</source>
        <translation>%1 imágenes no se pueden dividir en %2 partes; cada una necesita una imagen</translation>
    </message>
    <message>
        <source>the plan %1 cannot be written: %2</source>
        <translation>el plan %1 no se puede escribir: %2</translation>
    </message>
    <message>
        <source>cuts a job into parts that can be made at once, on many machines, by &quot;velkora-batch run --plan&quot;: writes a plan with every input and the name of every result, and nothing else. Clashes of names are settled by the policies. Exit status: 2 when the job cannot be split; 5 when there is no picture among the inputs</source>
        <translation>divide un trabajo en partes que «velkora-batch run --plan» puede hacer a la vez en muchos equipos: escribe un plan con cada entrada y el nombre de cada resultado, y nada más. Las políticas deciden los conflictos de nombres. Estado de salida: 2 si el trabajo no se puede dividir; 5 si no hay ninguna imagen entre las entradas</translation>
    </message>
    <message>
        <source>says what the parts of a plan have done and which are to be run again. When all are done without failures, the plan and its journals are removed. Exit status: 0 when all pictures were written; 1 when some failed, were left out or are not made yet; 2 when the plan cannot be used</source>
        <translation>dice qué han hecho las partes de un plan y cuáles hay que ejecutar otra vez. Cuando todas están hechas sin fallos, se eliminan el plan y sus diarios. Estado de salida: 0 si se escribieron todas las imágenes; 1 si algunas fallaron, se omitieron o aún no están hechas; 2 si el plan no se puede usar</translation>
    </message>
    <message>
        <source>A job for eight machines</source>
        <translation>Un trabajo para ocho equipos</translation>
    </message>
    <message>
        <source>What the parts have done</source>
        <translation>Lo que han hecho las partes</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>the folder FROM of the plan is the folder TO on this machine; both are absolute</source>
        <translation>la carpeta FROM del plan es la carpeta TO en este equipo; ambas son absolutas</translation>
    </message>
    <message>
        <source>makes it an error, not a warning, when parts are made by other versions than the plan</source>
        <translation>hace que sea un error, no un aviso, si las partes se hacen con otras versiones que el plan</translation>
    </message>
    <message>
        <source>how many parts to cut the job into; each gets about as many bytes of pictures</source>
        <translation>en cuántas partes se divide el trabajo; cada una recibe más o menos los mismos bytes de imágenes</translation>
    </message>
    <message>
        <source>the file to write the plan to; it is replaced</source>
        <translation>el archivo en el que se escribe el plan; se reemplaza</translation>
    </message>
    <message>
        <source>makes one part of the job that &quot;velkora-batch split&quot; has written to a file</source>
        <translation>hace una parte del trabajo que «velkora-batch split» ha escrito en un archivo</translation>
    </message>
    <message>
        <source>which part, from 1; default: what the environment says in SLURM_ARRAY_TASK_ID, JOB_COMPLETION_INDEX, which counts from 0, or PARALLEL_SEQ</source>
        <translation>qué parte, desde 1; por omisión, lo que dice el entorno en SLURM_ARRAY_TASK_ID, en JOB_COMPLETION_INDEX, que cuenta desde 0, o en PARALLEL_SEQ</translation>
    </message>
    <message>
        <source>removes the plan and its journals also when pictures have failed; without this option they stay until all parts are done without failures</source>
        <translation>elimina el plan y sus diarios también si han fallado imágenes; sin esta opción se quedan hasta que todas las partes estén hechas sin fallos</translation>
    </message>
    <message>
        <source>%1 is for a part of a job; name its plan with --plan</source>
        <translation>%1 es para una parte de un trabajo; indique su plan con --plan</translation>
    </message>
    <message>
        <source>the plan has a job and pictures of its own; leave out &quot;%1&quot;</source>
        <translation>el plan tiene su propio trabajo e imágenes; omita «%1»</translation>
    </message>
    <message>
        <source>%1 is missing here, but was there when the job was split; --map names folders that are elsewhere on this machine</source>
        <translation>%1 falta aquí, pero estaba cuando se dividió el trabajo; --map nombra carpetas que están en otro lugar en este equipo</translation>
    </message>
    <message>
        <source>%1 has changed since the job was split; split the job again</source>
        <translation>%1 ha cambiado desde que se dividió el trabajo; divida el trabajo otra vez</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be two absolute folders with &quot;=&quot; between them</source>
        <translation>«%1» debe ser dos carpetas absolutas con «=» entre ellas</translation>
    </message>
    <message>
        <source>the plan %1 cannot be used: %2</source>
        <translation>el plan %1 no se puede usar: %2</translation>
    </message>
    <message>
        <source>the journal of the part, %1, cannot be written: %2. It belongs beside the plan</source>
        <translation>el diario de la parte, %1, no se puede escribir: %2. Va junto al plan</translation>
    </message>
    <message>
        <source>%1 says that process %2 of %3 holds it, and the file system has no locks to tell whether that process is still there; if it is not, remove that file</source>
        <translation>%1 indica que el proceso %2 de %3 lo tiene, y el sistema de archivos no tiene bloqueos para saber si ese proceso sigue ahí; si no es así, elimine ese archivo</translation>
    </message>
    <message>
        <source>%1 unfinished files stay beside the results: the file system has no locks to tell whether they are in work. Remove .velkora-*.tmp there when nothing runs.</source>
        <translation>%1 archivos sin terminar se quedan junto a los resultados: el sistema de archivos no tiene bloqueos para saber si se está trabajando en ellos. Elimine allí .velkora-*.tmp cuando no haya nada en marcha.</translation>
    </message>
    <message>
        <source>made by other versions than the plan</source>
        <translation>hechas con otras versiones que el plan</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>it does not say them</source>
        <translation>no las indica</translation>
    </message>
    <message>
        <source>the same job is already running into %1: %2</source>
        <translation>el mismo trabajo ya se está ejecutando en %1: %2</translation>
    </message>
    <message>
        <source>%1 was asked for the versions of its libraries: %2</source>
        <translation>se pidieron a %1 las versiones de sus bibliotecas: %2</translation>
    </message>
    <message>
        <source>the plan was made with %1, but here are %2</source>
        <translation>el plan se hizo con %1, pero aquí hay %2</translation>
    </message>
    <message>
        <source>made with %1, but the plan with %2</source>
        <translation>hecha con %1, pero el plan con %2</translation>
    </message>
    <message>
        <source>it is open in another program</source>
        <translation>está abierto en otro programa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is open in another program</source>
        <translation>no se puede reemplazar «%1»: está abierto en otro programa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is read-only</source>
        <translation>no se puede reemplazar «%1»: es de solo lectura</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1 with the compression %2</source>
        <translation>esta instalación no tiene codificador de %1 con la compresión %2</translation>
    </message>
</context>
</TS>
