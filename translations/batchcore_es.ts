<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>No error.</source>
        <translation>Sin errores.</translation>
    </message>
    <message>
        <source>Unsupported input format.</source>
        <translation>Formato de entrada no compatible.</translation>
    </message>
    <message>
        <source>Error reading file.</source>
        <translation>Error al leer el archivo.</translation>
    </message>
    <message>
        <source>Unsupported output format.</source>
        <translation>Formato de salida no compatible.</translation>
    </message>
    <message>
        <source>Error writing output format.</source>
        <translation>Error al escribir en el formato de salida.</translation>
    </message>
    <message>
        <source>Empty batch document.</source>
        <translation>El documento de lote está vacío.</translation>
    </message>
    <message>
        <source>Error reading output settings.</source>
        <translation>Error al leer los ajustes de salida.</translation>
    </message>
    <message>
        <source>Adjustment manager does not exist.</source>
        <translation>El gestor de ajustes no existe.</translation>
    </message>
    <message>
        <source>Adjustment does not exist.</source>
        <translation>El ajuste no existe.</translation>
    </message>
    <message>
        <source>Apply adjustment error.</source>
        <translation>Error al aplicar el ajuste.</translation>
    </message>
    <message>
        <source>Image too large.</source>
        <translation>La imagen es demasiado grande.</translation>
    </message>
    <message>
        <source>File name already exists.</source>
        <translation>El nombre de archivo ya existe.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Error desconocido.</translation>
    </message>
</context>
<context>
    <name>ZTBatchDocument</name>
    <message>
        <source>Warning! Some files are not found and skipped:</source>
        <translation>¡Advertencia! Algunos archivos no se han encontrado y se han omitido:</translation>
    </message>
    <message>
        <source>Warning! There are duplicate files:</source>
        <translation>¡Advertencia! Hay archivos duplicados:</translation>
    </message>
    <message>
        <source>Warning! These files of unsupported format cannot be processed:</source>
        <translation>¡Advertencia! Estos archivos tienen un formato no compatible y no se pueden procesar:</translation>
    </message>
</context>
<context>
    <name>ZTBatchManager</name>
    <message>
        <source>Abnormal process termination.</source>
        <translation>El proceso ha terminado de forma anómala.</translation>
    </message>
</context>
<context>
    <name>ZTBatchOutputSettings</name>
    <message>
        <source>Image</source>
        <extracomment>The default text in the names of results, as in &quot;Image001&quot;.</extracomment>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Original</source>
        <extracomment>Appears among the names of file formats and means that each picture keeps its own format.</extracomment>
        <translation>Original</translation>
    </message>
</context>
</TS>
