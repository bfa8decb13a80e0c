<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>No error.</source>
        <translation>Kein Fehler.</translation>
    </message>
    <message>
        <source>Unsupported input format.</source>
        <translation>Das Eingabeformat wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Error reading file.</source>
        <translation>Fehler beim Lesen der Datei.</translation>
    </message>
    <message>
        <source>Unsupported output format.</source>
        <translation>Das Ausgabeformat wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Error writing output format.</source>
        <translation>Fehler beim Schreiben im Ausgabeformat.</translation>
    </message>
    <message>
        <source>Empty batch document.</source>
        <translation>Der Stapelauftrag ist leer.</translation>
    </message>
    <message>
        <source>Error reading output settings.</source>
        <translation>Fehler beim Lesen der Ausgabeeinstellungen.</translation>
    </message>
    <message>
        <source>Adjustment manager does not exist.</source>
        <translation>Die Anpassungsverwaltung ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Adjustment does not exist.</source>
        <translation>Die Anpassung ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Apply adjustment error.</source>
        <translation>Fehler beim Anwenden der Anpassung.</translation>
    </message>
    <message>
        <source>Image too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>File name already exists.</source>
        <translation>Der Dateiname ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
</context>
<context>
    <name>ZTBatchDocument</name>
    <message>
        <source>Warning! Some files are not found and skipped:</source>
        <translation>Warnung! Einige Dateien wurden nicht gefunden und übersprungen:</translation>
    </message>
    <message>
        <source>Warning! There are duplicate files:</source>
        <translation>Warnung! Es gibt doppelte Dateien:</translation>
    </message>
    <message>
        <source>Warning! These files of unsupported format cannot be processed:</source>
        <translation>Warnung! Diese Dateien haben ein nicht unterstütztes Format und können nicht verarbeitet werden:</translation>
    </message>
</context>
<context>
    <name>ZTBatchManager</name>
    <message>
        <source>Abnormal process termination.</source>
        <translation>Der Prozess wurde unerwartet beendet.</translation>
    </message>
</context>
<context>
    <name>ZTBatchOutputSettings</name>
    <message>
        <source>Image</source>
        <extracomment>The default text in the names of results, as in &quot;Image001&quot;.</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Original</source>
        <extracomment>Appears among the names of file formats and means that each picture keeps its own format.</extracomment>
        <translation>Original</translation>
    </message>
</context>
</TS>
