<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatchHost::Messages</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>No more input: this file and all that follow with questions are skipped.</source>
        <translation>Keine weitere Eingabe: Diese Datei und alle folgenden mit Fragen werden übersprungen.</translation>
    </message>
    <message>
        <source>%1? (add &quot;all&quot; for all that follow)</source>
        <translation>%1? („all“ anhängen für alle folgenden)</translation>
    </message>
    <message>
        <source>the server ended unexpectedly; a new one continues.</source>
        <translation>der Server wurde unerwartet beendet; ein neuer macht weiter.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly.</source>
        <translation>der Server wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1; a new one continues.</source>
        <translation>der Server wurde bei der Arbeit an %1 unerwartet beendet; ein neuer macht weiter.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1.</source>
        <translation>der Server wurde bei der Arbeit an %1 unerwartet beendet.</translation>
    </message>
    <message>
        <source>Starting the server</source>
        <translation>Server wird gestartet</translation>
    </message>
    <message>
        <source>Cancelling; interrupt again to end at once.</source>
        <translation>Wird abgebrochen; noch einmal unterbrechen, um sofort zu beenden.</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Wird abgebrochen</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Not processed</source>
        <translation>Nicht verarbeitet</translation>
    </message>
    <message>
        <source>Written with a warning</source>
        <translation>Mit einer Warnung geschrieben</translation>
    </message>
    <message>
        <source>1 file with another extension was left out, but begins like a picture; --verbose names them, --include takes them.</source>
        <translation>1 Datei mit anderer Endung wurde ausgelassen, beginnt aber wie ein Bild; --verbose nennt solche Dateien, --include nimmt sie auf.</translation>
    </message>
    <message>
        <source>%1 files with other extensions were left out, but begin like pictures; --verbose names them, --include takes them.</source>
        <translation>%1 Dateien mit anderen Endungen wurden ausgelassen, beginnen aber wie Bilder; --verbose nennt sie, --include nimmt sie auf.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>to %1, in %2 (%3 a second)</source>
        <translation>nach %1, in %2 (%3 pro Sekunde)</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, is missing now: %2</source>
        <translation>%1 davon, vor der Unterbrechung geschrieben, fehlt jetzt: %2</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, are missing now: %2</source>
        <translation>%1 davon, vor der Unterbrechung geschrieben, fehlen jetzt: %2</translation>
    </message>
    <message>
        <source>1 warning:</source>
        <translation>1 Warnung:</translation>
    </message>
    <message>
        <source>%1 warnings:</source>
        <translation>%1 Warnungen:</translation>
    </message>
    <message>
        <source>and %1 more; use --report FILE for all</source>
        <translation>und %1 weitere; --report FILE nennt alle</translation>
    </message>
    <message>
        <source>required</source>
        <translation>erforderlich</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>optional</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>Standard %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>%1 bits a channel; transparency: %2; CMYK: %3; longest side %4 pixels</source>
        <translation>%1 Bit pro Kanal; Transparenz: %2; CMYK: %3; längste Seite %4 Pixel</translation>
    </message>
    <message>
        <source>Files that can be read: %1</source>
        <translation>Lesbare Dateien: %1</translation>
    </message>
    <message>
        <source>%1: a job without pictures; give them to run or plan, after the job.</source>
        <translation>%1: ein Auftrag ohne Bilder; sie werden bei run oder plan nach dem Auftrag angegeben.</translation>
    </message>
    <message>
        <source>%1: a job without pictures and output folder; give them to run or plan.</source>
        <translation>%1: ein Auftrag ohne Bilder und ohne Ausgabeordner; beides wird bei run oder plan angegeben.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture.</source>
        <translation>%1: ein Auftrag mit 1 Bild.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture, without an output folder; give --output to run or plan.</source>
        <translation>%1: ein Auftrag mit 1 Bild, ohne Ausgabeordner; --output wird bei run oder plan angegeben.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures.</source>
        <translation>%1: ein Auftrag mit %2 Bildern.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures, without an output folder; give --output to run or plan.</source>
        <translation>%1: ein Auftrag mit %2 Bildern, ohne Ausgabeordner; --output wird bei run oder plan angegeben.</translation>
    </message>
    <message>
        <source>Looking at pictures: %1 of %2</source>
        <translation>Bilder werden geprüft: %1 von %2</translation>
    </message>
    <message>
        <source>%1 is left out: it begins like a %2 file, but its extension is not known.</source>
        <translation>%1 wird ausgelassen: Die Datei beginnt wie eine %2-Datei, aber ihre Endung ist unbekannt.</translation>
    </message>
    <message>
        <source>Folders read: %1, pictures found: %2, now in %3</source>
        <translation>Gelesene Ordner: %1, gefundene Bilder: %2, jetzt in %3</translation>
    </message>
    <message>
        <source>1 picture</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>Inputs: %1</source>
        <translation>Eingaben: %1</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Planning %1 files</source>
        <translation>%1 Dateien werden geplant</translation>
    </message>
    <message>
        <source>replaces the original</source>
        <translation>ersetzt das Original</translation>
    </message>
    <message>
        <source>sizes in pixels are not known: %1.</source>
        <translation>Größen in Pixeln sind nicht bekannt: %1.</translation>
    </message>
    <message>
        <source>%1 file: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 Datei: %2 ohne Probleme, %3 in Klammern. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%1 files: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 Dateien: %2 ohne Probleme, %3 in Klammern. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>comes along</source>
        <translation>mitgeliefert</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>the preset %1 in %2 cannot be used: %3</source>
        <translation>die Vorgabe %1 in %2 ist nicht verwendbar: %3</translation>
    </message>
    <message>
        <source>%1: the preset %2.</source>
        <translation>%1: die Vorgabe %2.</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1.</source>
        <translation>die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>%1: name files, or folders with pictures that can be read</source>
        <translation>%1: Dateien oder Ordner mit lesbaren Bildern angeben</translation>
    </message>
    <message>
        <source>%1: use --output DIR</source>
        <translation>%1: --output DIR verwenden</translation>
    </message>
    <message>
        <source>%1; use --force to replace it</source>
        <translation>%1; --force ersetzt die Datei</translation>
    </message>
    <message>
        <source>%1. Use --resume with --output alone to resume that run, or run this job without --resume</source>
        <translation>%1. Mit --resume und nur --output wird jener Lauf fortgesetzt; ohne --resume wird dieser Auftrag ausgeführt</translation>
    </message>
    <message>
        <source>%1; use --resume --run NAME with one of these names</source>
        <translation>%1; --resume --run NAME mit einem dieser Namen verwenden</translation>
    </message>
    <message>
        <source>an earlier run of this job was interrupted; this run starts anew. Use --resume to continue an interrupted run.</source>
        <translation>ein früherer Lauf dieses Auftrags wurde unterbrochen; dieser Lauf beginnt von vorn. --resume setzt einen unterbrochenen Lauf fort.</translation>
    </message>
    <message>
        <source>1 other run was interrupted in %1; it can still be resumed: %2</source>
        <translation>1 anderer Lauf wurde in %1 unterbrochen; er kann noch fortgesetzt werden: %2</translation>
    </message>
    <message>
        <source>%3 other runs were interrupted in %1; they can still be resumed: %2</source>
        <translation>%3 andere Läufe wurden in %1 unterbrochen; sie können noch fortgesetzt werden: %2</translation>
    </message>
    <message>
        <source>should it be interrupted, the run cannot be resumed: %1.</source>
        <translation>nach einer Unterbrechung kann der Lauf nicht fortgesetzt werden: %1.</translation>
    </message>
    <message>
        <source>another batch server is running, and this system has only one pipe for it; try again when that run is over.</source>
        <translation>ein anderer Batch-Server läuft, und dieses System hat nur eine Pipe dafür; nach dem Ende jenes Laufs erneut versuchen.</translation>
    </message>
    <message>
        <source>To resume: %1</source>
        <translation>Zum Fortsetzen: %1</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: 1 picture was left out.</source>
        <translation>ohne Terminal konnte niemand gefragt werden: 1 Bild wurde ausgelassen.</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: %1 pictures were left out.</source>
        <translation>ohne Terminal konnte niemand gefragt werden: %1 Bilder wurden ausgelassen.</translation>
    </message>
    <message>
        <source>%1 decides such cases.</source>
        <translation>%1 entscheidet solche Fälle.</translation>
    </message>
    <message>
        <source>%1 and %2 decide such cases.</source>
        <translation>%1 und %2 entscheiden solche Fälle.</translation>
    </message>
    <message>
        <source>1 result was renamed, because other sources of the job have such names.</source>
        <translation>1 Ergebnis wurde umbenannt, weil andere Quellen des Auftrags so heißen.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because other sources of the job have such names.</source>
        <translation>%1 Ergebnisse wurden umbenannt, weil andere Quellen des Auftrags so heißen.</translation>
    </message>
    <message>
        <source>1 result was renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>1 Ergebnis wurde umbenannt, weil ein Original so heißt; --in-place ersetzt Originale.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>%1 Ergebnisse wurden umbenannt, weil Originale so heißen; --in-place ersetzt Originale.</translation>
    </message>
    <message>
        <source>no worker can be started; VelkoraBatchWorker belongs beside %1.</source>
        <translation>kein Worker-Prozess kann gestartet werden; VelkoraBatchWorker gehört neben %1.</translation>
    </message>
    <message>
        <source>No picture was processed. --structure input keeps the folders of the inputs, --on-name-exists rename numbers such names, and another --name, --prefix or --suffix tells them apart.</source>
        <translation>Es wurde kein Bild verarbeitet. --structure input behält die Ordner der Eingaben, --on-name-exists rename nummeriert solche Namen, und --name, --prefix oder --suffix können sie unterscheiden.</translation>
    </message>
    <message>
        <source>the server ended before it had processed anything; see its messages above.</source>
        <translation>der Server endete, bevor er etwas verarbeitet hatte; siehe seine Meldungen oben.</translation>
    </message>
    <message>
        <source>the server cannot be started; VelkoraBatchProcessing belongs beside %1.</source>
        <translation>der Server kann nicht gestartet werden; VelkoraBatchProcessing gehört neben %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>More: velkora-batch --help, or velkora-batch help COMMAND</source>
        <translation>Mehr: velkora-batch --help oder velkora-batch help COMMAND</translation>
    </message>
    <message>
        <source>velkora-batch %1.</source>
        <translation>velkora-batch %1.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>prints this text; after a command, the help of that command</source>
        <translation>gibt diesen Text aus; nach einem Befehl die Hilfe zu diesem Befehl</translation>
    </message>
    <message>
        <source>prints the version; with --verbose, also how this system confines the processes that read pictures</source>
        <translation>gibt die Version aus; mit --verbose auch, wie dieses System die Prozesse einschränkt, die Bilder lesen</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1. Values: %2</source>
        <translation>%1. Werte: %2</translation>
    </message>
    <message>
        <source>%1. May be given several times</source>
        <translation>%1. Mehrfach verwendbar</translation>
    </message>
    <message>
        <source>(%1 bytes in the job)</source>
        <translation>(%1 Bytes im Auftrag)</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
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
        <translation>1 Bild.</translation>
    </message>
    <message>
        <source>%1 pictures.</source>
        <translation>%1 Bilder.</translation>
    </message>
    <message>
        <source>1 picture, %1 new.</source>
        <translation>1 Bild, %1 neu.</translation>
    </message>
    <message>
        <source>%1 pictures, %2 new.</source>
        <translation>%1 Bilder, %2 neu.</translation>
    </message>
    <message>
        <source>1 name is taken.</source>
        <translation>1 Name ist vergeben.</translation>
    </message>
    <message>
        <source>%1 names are taken.</source>
        <translation>%1 Namen sind vergeben.</translation>
    </message>
    <message>
        <source>1 file that exists will be replaced.</source>
        <translation>1 vorhandene Datei wird ersetzt.</translation>
    </message>
    <message>
        <source>%1 files that exist will be replaced.</source>
        <translation>%1 vorhandene Dateien werden ersetzt.</translation>
    </message>
    <message>
        <source>1 picture cannot be written.</source>
        <translation>1 Bild kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 pictures cannot be written.</source>
        <translation>%1 Bilder können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is too little room: the results take %1, but only %2 are free.</source>
        <translation>Der Platz reicht nicht: Die Ergebnisse benötigen %1, frei sind nur %2.</translation>
    </message>
    <message>
        <source>There may be too little room: the results take about %1 (± %2 %), but only %3 are free.</source>
        <translation>Der Platz reicht vielleicht nicht: Die Ergebnisse benötigen etwa %1 (± %2 %), frei sind nur %3.</translation>
    </message>
    <message>
        <source>The results take %1.</source>
        <translation>Die Ergebnisse benötigen %1.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %).</source>
        <translation>Die Ergebnisse benötigen etwa %1 (± %2 %).</translation>
    </message>
    <message>
        <source>The results take %1; %2 are free.</source>
        <translation>Die Ergebnisse benötigen %1; %2 sind frei.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %); %3 are free.</source>
        <translation>Die Ergebnisse benötigen etwa %1 (± %2 %); %3 sind frei.</translation>
    </message>
    <message>
        <source>Add pictures to begin.</source>
        <translation>Zum Beginnen Bilder hinzufügen.</translation>
    </message>
    <message>
        <source>What you edit cannot be kept in %1; save the job before the window ends.</source>
        <translation>Die Bearbeitung kann nicht in %1 gesichert werden; den Auftrag speichern, bevor das Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>The command line that does the same is on the clipboard.</source>
        <translation>Die Befehlszeile, die dasselbe tut, ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>&amp;New job</source>
        <translation>&amp;Neuer Auftrag</translation>
    </message>
    <message>
        <source>Open &amp;job…</source>
        <translation>Auftrag ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>R&amp;ecent jobs</source>
        <translation>&amp;Zuletzt verwendete Aufträge</translation>
    </message>
    <message>
        <source>&amp;Save job</source>
        <translation>Auftrag &amp;speichern</translation>
    </message>
    <message>
        <source>Save job &amp;as…</source>
        <translation>Auftrag speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>Als Befehl &amp;kopieren</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Save as preset…</source>
        <translation>Als Vorgabe &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Rename preset…</source>
        <translation>Vorgabe &amp;umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete preset</source>
        <translation>Vorgabe &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Import preset…</source>
        <translation>Vorgabe &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export preset…</source>
        <translation>Vorgabe &amp;exportieren…</translation>
    </message>
    <message>
        <source>The job before this one was not saved.</source>
        <translation>Der vorherige Auftrag wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>The window did not end as it should; this is what was edited last.</source>
        <translation>Das Fenster wurde nicht ordnungsgemäß beendet; dies ist der letzte Stand der Bearbeitung.</translation>
    </message>
    <message>
        <source>Import preset</source>
        <translation>Vorgabe importieren</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Export preset</source>
        <translation>Vorgabe exportieren</translation>
    </message>
    <message>
        <source>The settings are saved in %1.</source>
        <translation>Die Einstellungen sind in %1 gespeichert.</translation>
    </message>
    <message>
        <source>The preset %1 is deleted; the settings stay as they are.</source>
        <translation>Die Vorgabe %1 ist gelöscht; die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Batch jobs (%1)</source>
        <translation>Stapelaufträge (%1)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The job &quot;%1&quot; has changes that are not saved.</source>
        <translation>Der Auftrag „%1“ enthält Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>Änderungen &amp;verwerfen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Neuer Auftrag</translation>
    </message>
    <message>
        <source>Open job</source>
        <translation>Auftrag öffnen</translation>
    </message>
    <message>
        <source>Save job</source>
        <translation>Auftrag speichern</translation>
    </message>
    <message>
        <source>%1 exists; choose it to replace it.</source>
        <translation>%1 existiert bereits; zum Ersetzen diese Datei wählen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Hinweis schließen</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Keine Vorgabe</translation>
    </message>
    <message>
        <source>This preset cannot be used as it is: %1</source>
        <translation>Diese Vorgabe ist so nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Vorgabe %1</translation>
    </message>
    <message>
        <source>The preset %1 cannot be used as it is: %2</source>
        <translation>Die Vorgabe %1 ist so nicht verwendbar: %2</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Vorgabe</translation>
    </message>
    <message>
        <source>Cancel the naming of the preset</source>
        <translation>Benennen der Vorgabe abbrechen</translation>
    </message>
    <message>
        <source>Save the settings as the preset</source>
        <translation>Einstellungen speichern als Vorgabe</translation>
    </message>
    <message>
        <source>New name of the preset %1</source>
        <translation>Neuer Name der Vorgabe %1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Replace the preset %1</source>
        <translation>Vorgabe %1 ersetzen</translation>
    </message>
    <message>
        <source>You have a preset of this name; it would be replaced.</source>
        <translation>Eine eigene Vorgabe dieses Namens ist vorhanden; sie würde ersetzt.</translation>
    </message>
    <message>
        <source>Processes pictures in batches, in a window.</source>
        <translation>Verarbeitet Bilder stapelweise, in einem Fenster.</translation>
    </message>
    <message>
        <source>Pictures and folders to add.</source>
        <translation>Bilder und Ordner, die hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Hinzufügen stoppen</translation>
    </message>
    <message>
        <source>Adding pictures…</source>
        <translation>Bilder werden hinzugefügt…</translation>
    </message>
    <message>
        <source>Problems of this kind: %1; point here to read them.</source>
        <translation>Probleme dieser Art: %1; zum Lesen hierher zeigen.</translation>
    </message>
    <message>
        <source>Add pictures</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>%1 does not exist any more</source>
        <translation>%1 existiert nicht mehr</translation>
    </message>
    <message>
        <source>Add &amp;files…</source>
        <translation>&amp;Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>Add f&amp;older…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>S&amp;how in folder</source>
        <translation>&amp;Im Ordner anzeigen</translation>
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
        <translation>Bild</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Grid of pictures</source>
        <translation>Bilder als Raster</translation>
    </message>
    <message>
        <source>List of pictures</source>
        <translation>Bilder als Liste</translation>
    </message>
    <message>
        <source>1 picture in 1 folder</source>
        <translation>1 Bild in 1 Ordner</translation>
    </message>
    <message>
        <source>%1 pictures in 1 folder</source>
        <translation>%1 Bilder in 1 Ordner</translation>
    </message>
    <message>
        <source>%1 pictures in %2 folders</source>
        <translation>%1 Bilder in %2 Ordnern</translation>
    </message>
    <message>
        <source>Drop pictures and folders here, or add them with the buttons below.</source>
        <translation>Bilder und Ordner hierher ziehen oder mit den Schaltflächen unten hinzufügen.</translation>
    </message>
    <message>
        <source>Show only pictures whose names contain</source>
        <translation>Nur Bilder zeigen, deren Name dies enthält</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only pictures with the state</source>
        <translation>Nur Bilder mit diesem Status zeigen</translation>
    </message>
    <message>
        <source>All pictures</source>
        <translation>Alle Bilder</translation>
    </message>
    <message>
        <source>Name taken</source>
        <translation>Name vergeben</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Remove pictures</source>
        <translation>Bilder entfernen</translation>
    </message>
    <message>
        <source>%1 of %2 pictures</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>Cannot be written</source>
        <translation>Kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>This file cannot be shown.</source>
        <translation>Diese Datei kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Folder %1, pictures: %2</source>
        <translation>Ordner %1, Bilder: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, written as %2</source>
        <translation>%1, wird als %2 geschrieben</translation>
    </message>
    <message>
        <source>%1, written as %2: %3</source>
        <translation>%1, wird als %2 geschrieben: %3</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Trennlinie zwischen vorher und nachher</translation>
    </message>
    <message>
        <source>Sizes before and after</source>
        <translation>Größe vorher und nachher</translation>
    </message>
    <message>
        <source>State of the preview</source>
        <translation>Status der Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Wird aktualisiert</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ganz</translation>
    </message>
    <message>
        <source>Show all of the picture (1)</source>
        <translation>Das ganze Bild zeigen (1)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One pixel of the result on one pixel of the screen (2)</source>
        <translation>Ein Pixel des Ergebnisses auf einem Pixel des Bildschirms (2)</translation>
    </message>
    <message>
        <source>&amp;200 %</source>
        <translation>&amp;200 %</translation>
    </message>
    <message>
        <source>One pixel of the result on four pixels of the screen (3)</source>
        <translation>Ein Pixel des Ergebnisses auf vier Pixeln des Bildschirms (3)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Linie</translation>
    </message>
    <message>
        <source>Before and after with a line between them (4)</source>
        <translation>Vorher und nachher mit einer Linie dazwischen (4)</translation>
    </message>
    <message>
        <source>&amp;Side by side</source>
        <translation>&amp;Paarweise</translation>
    </message>
    <message>
        <source>Before and after side by side (5)</source>
        <translation>Vorher und nachher nebeneinander (5)</translation>
    </message>
    <message>
        <source>Preview &amp;anew</source>
        <translation>Vorschau &amp;aktualisieren</translation>
    </message>
    <message>
        <source>Make the preview anew from the file on the disk (F5)</source>
        <translation>Die Vorschau aus der Datei auf dem Datenträger neu erstellen (F5)</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>Vor&amp;her</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Show the picture before as long as this is held (space bar on the picture)</source>
        <translation>Solange gedrückt, das Bild vorher zeigen (Leertaste auf dem Bild)</translation>
    </message>
    <message>
        <source>Choose a picture to see what becomes of it.</source>
        <translation>Ein Bild auswählen, um zu sehen, was daraus wird.</translation>
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
        <translation>Exakt: %1 mit %2 Bytes, wie ein Lauf es schreibt; erstellt in %3 s</translation>
    </message>
    <message>
        <source>The result is too large to be shown here.</source>
        <translation>Das Ergebnis ist zu groß, um hier gezeigt zu werden.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vorher</translation>
    </message>
    <message>
        <source>after</source>
        <translation>nachher</translation>
    </message>
    <message>
        <source>Another program is running a batch on this computer: close it, and start this one anew.</source>
        <translation>Ein anderes Programm führt auf diesem Computer gerade einen Lauf aus: jenes schließen und dieses neu starten.</translation>
    </message>
    <message>
        <source>&amp;Do this for the rest of the run</source>
        <translation>Auch für &amp;jeden weiteren Fall in diesem Lauf</translation>
    </message>
    <message>
        <source>Question about a picture</source>
        <translation>Frage zu einem Bild</translation>
    </message>
    <message>
        <source>The file that exists</source>
        <translation>Die vorhandene Datei</translation>
    </message>
    <message>
        <source>The picture whose result would have its name</source>
        <translation>Das Bild, dessen Ergebnis so heißen würde</translation>
    </message>
    <message>
        <source>Interrupted run</source>
        <translation>Unterbrochener Lauf</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>Fort&amp;setzen</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>Ver&amp;werfen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pau&amp;se</translation>
    </message>
    <message>
        <source>&amp;Cancel the run</source>
        <translation>Lauf abbre&amp;chen</translation>
    </message>
    <message>
        <source>Resu&amp;me the run</source>
        <translation>Lauf for&amp;tsetzen</translation>
    </message>
    <message>
        <source>S&amp;how failed</source>
        <translation>Fehlgeschlagene anz&amp;eigen</translation>
    </message>
    <message>
        <source>Retr&amp;y failed</source>
        <translation>Fehlgeschlagene erneut ausf&amp;ühren</translation>
    </message>
    <message>
        <source>Open fo&amp;lder</source>
        <translation>Ordner &amp;öffnen</translation>
    </message>
    <message>
        <source>Sa&amp;ve report</source>
        <translation>Ber&amp;icht speichern</translation>
    </message>
    <message>
        <source>Put &amp;away</source>
        <translation>Wegr&amp;äumen</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Laufs</translation>
    </message>
    <message>
        <source>The batch server has ended unexpectedly; a new one goes on.</source>
        <translation>Der Batch-Server wurde unerwartet beendet; ein neuer macht weiter.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: its journal cannot be read.</source>
        <translation>Der Lauf kann nicht fortgesetzt werden: Sein Journal ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The failed pictures cannot be tried again: the journal of their run cannot be used.</source>
        <translation>Die fehlgeschlagenen Bilder können nicht erneut versucht werden: Das Journal ihres Laufs ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>Fort&amp;setzen</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 von %2 fertig</translation>
    </message>
    <message>
        <source>%1 of %2 done, %3 left</source>
        <translation>%1 von %2 fertig, noch %3</translation>
    </message>
    <message>
        <source>Pausing: pictures in work are finished first</source>
        <translation>Pause folgt: begonnene Bilder werden noch fertig bearbeitet</translation>
    </message>
    <message>
        <source>Paused, %1 of %2 done</source>
        <translation>Pausiert, %1 von %2 fertig</translation>
    </message>
    <message>
        <source>%1 written, %2 skipped, %3 failed</source>
        <translation>%1 geschrieben, %2 übersprungen, %3 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Finished in %1: all %2 pictures were written.</source>
        <translation>Fertig in %1: alle %2 Bilder wurden geschrieben.</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 skipped, %4 failed.</source>
        <translation>Fertig in %1: %2 geschrieben, %3 übersprungen, %4 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Nothing was written: %1.</source>
        <translation>Nichts wurde geschrieben: %1.</translation>
    </message>
    <message>
        <source>Nothing can be written: the program VelkoraBatchWorker is missing or cannot be started.</source>
        <translation>Es kann nichts geschrieben werden: Das Programm VelkoraBatchWorker fehlt oder lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>The batch server was lost after %1 of %2 pictures. The run can be resumed.</source>
        <translation>Der Batch-Server ging nach %1 von %2 Bildern verloren. Der Lauf kann fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Cancelled after %1 of %2 pictures. The run can be resumed.</source>
        <translation>Nach %1 von %2 Bildern abgebrochen. Der Lauf kann fortgesetzt werden.</translation>
    </message>
    <message>
        <source>A run was interrupted after %1 of %2 pictures. Its results go to %3.</source>
        <translation>Ein Lauf wurde nach %1 von %2 Bildern unterbrochen. Seine Ergebnisse gehen nach %3.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The result of %1 cannot be written: %2.</source>
        <translation>Das Ergebnis von %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be processed: %2.</source>
        <translation>%1 kann nicht verarbeitet werden: %2.</translation>
    </message>
    <message>
        <source>The name %1, for the result of %2, is taken.</source>
        <translation>Der Name %1 für das Ergebnis von %2 ist vergeben.</translation>
    </message>
    <message>
        <source>%1 cannot be written in this format: %2.</source>
        <translation>%1 kann in diesem Format nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>S&amp;kip it</source>
        <translation>Überspr&amp;ingen</translation>
    </message>
    <message>
        <source>Stop t&amp;he run</source>
        <translation>Lauf s&amp;toppen</translation>
    </message>
    <message>
        <source>Over&amp;write</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>Number t&amp;he new one</source>
        <translation>Neue Dat&amp;ei nummerieren</translation>
    </message>
    <message>
        <source>Wr&amp;ite the nearest format</source>
        <translation>Ähnlichstes Format v&amp;erwenden</translation>
    </message>
    <message>
        <source>%1, switched off</source>
        <translation>%1, ausgeschaltet</translation>
    </message>
    <message>
        <source>Switch on %1</source>
        <translation>„%1“ einschalten</translation>
    </message>
    <message>
        <source>Switch off %1</source>
        <translation>„%1“ ausschalten</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Remove %1 effects</source>
        <translation>%1 Effekte entfernen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>„%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>„%1“ duplizieren</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message>
        <source>Effects in the order in which they are applied</source>
        <translation>Effekte in der Reihenfolge ihrer Anwendung</translation>
    </message>
    <message>
        <source>Effec&amp;ts</source>
        <translation>Effe&amp;kte</translation>
    </message>
    <message>
        <source>Add an effect</source>
        <translation>Effekt hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate the effect</source>
        <translation>Effekt duplizieren</translation>
    </message>
    <message>
        <source>Remove the effect</source>
        <translation>Effekt entfernen</translation>
    </message>
    <message>
        <source>Apply the effect earlier</source>
        <translation>Effekt früher anwenden</translation>
    </message>
    <message>
        <source>Apply the effect later</source>
        <translation>Effekt später anwenden</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>No effects</source>
        <translation>Keine Effekte</translation>
    </message>
    <message>
        <source>All effects are switched off</source>
        <translation>Alle Effekte sind ausgeschaltet</translation>
    </message>
    <message>
        <source>Choose a colour for %1</source>
        <translation>Farbe wählen: %1</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 becomes %4</source>
        <translation>Punkt %1 von %2: %3 wird zu %4</translation>
    </message>
    <message>
        <source>Click to add a point and drag to move it; a double click removes it. With keys: Page Up and Page Down choose a point, arrows move it, Insert adds one, Delete removes it.</source>
        <translation>Klicken fügt einen Punkt hinzu, Ziehen verschiebt ihn, ein Doppelklick entfernt ihn. Mit Tasten: Bild auf und Bild ab wählen einen Punkt, die Pfeiltasten verschieben ihn, Einfg fügt einen hinzu, Entf entfernt ihn.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>%1 wählen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no complete path; it must begin at the root, such as %2.</source>
        <translation>„%1“ ist kein vollständiger Pfad; er muss bei der Wurzel beginnen, etwa %2.</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1 festlegen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Automatic levels</source>
        <translation>Automatische Tonwerte</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness and contrast</source>
        <translation>Helligkeit und Kontrast</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Chroma subsampling</source>
        <translation>Farbunterabtastung</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>Klarheit</translation>
    </message>
    <message>
        <source>Clipped share</source>
        <translation>Beschnittener Anteil</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>Compression level</source>
        <translation>Komprimierungsstufe</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Creator and rights</source>
        <translation>Urheber und Rechte</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Gradationskurve</translation>
    </message>
    <message>
        <source>Deflate</source>
        <translation>Deflate</translation>
    </message>
    <message>
        <source>Denoise</source>
        <translation>Entrauschen</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Each on its own</source>
        <translation>Jeder für sich</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>Aufwand</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Interpolation</source>
        <translation>Interpolation</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Kept metadata</source>
        <translation>Behaltene Metadaten</translation>
    </message>
    <message>
        <source>Keep the time of the file</source>
        <translation>Zeit der Datei behalten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanz</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Abstand vom Rand</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Posterize</source>
        <translation>Tontrennung</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Radius (sigma)</source>
        <translation>Radius (Sigma)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weichheit</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Beginnt bei</translation>
    </message>
    <message>
        <source>Stops</source>
        <translation>Blendenstufen</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Tetrahedral</source>
        <translation>Tetraedrisch</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Gemeinsam</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Trilinear</source>
        <translation>Trilinear</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Lebendigkeit</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Watermark with a picture</source>
        <translation>Wasserzeichen mit Bild</translation>
    </message>
    <message>
        <source>Watermark with a text</source>
        <translation>Wasserzeichen mit Text</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Zstandard</source>
        <translation>Zstandard</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschnitt</translation>
    </message>
    <message>
        <source>Kind of crop</source>
        <translation>Art des Zuschnitts</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Ratio %1 : %2</source>
        <translation>Verhältnis %1 : %2</translation>
    </message>
    <message>
        <source>Ratio %1 : %2, turned with the picture</source>
        <translation>Verhältnis %1 : %2, mit dem Bild gedreht</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2</source>
        <translation>Auffälligster Ausschnitt, Verhältnis %1 : %2</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2, turned with the picture</source>
        <translation>Auffälligster Ausschnitt, Verhältnis %1 : %2, mit dem Bild gedreht</translation>
    </message>
    <message>
        <source>Scaled and cut to %1 × %2 px</source>
        <translation>Skaliert und zugeschnitten auf %1 × %2 px</translation>
    </message>
    <message>
        <source>Cut to %1 × %2 px</source>
        <translation>Zugeschnitten auf %1 × %2 px</translation>
    </message>
    <message>
        <source>Borders of one colour are cut off</source>
        <translation>Einfarbige Ränder werden abgeschnitten</translation>
    </message>
    <message>
        <source>No crop</source>
        <translation>Kein Zuschnitt</translation>
    </message>
    <message>
        <source>Error&amp;s</source>
        <translation>Feh&amp;ler</translation>
    </message>
    <message>
        <source>A picture that cannot be read</source>
        <translation>Ein Bild, das nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>A result that cannot be written</source>
        <translation>Ein Ergebnis, das nicht geschrieben werden kann</translation>
    </message>
    <message>
        <source>A picture that cannot be processed</source>
        <translation>Ein Bild, das nicht verarbeitet werden kann</translation>
    </message>
    <message>
        <source>A name that is taken</source>
        <translation>Ein Name, der vergeben ist</translation>
    </message>
    <message>
        <source>A format that cannot hold the picture</source>
        <translation>Ein Format, das das Bild nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>You are asked</source>
        <translation>Nachfrage in jedem Fall</translation>
    </message>
    <message>
        <source>Decided in advance</source>
        <translation>Im Voraus entschieden</translation>
    </message>
    <message>
        <source>You are asked in %1 of %2 cases</source>
        <translation>Nachfrage in %1 von %2 Fällen</translation>
    </message>
    <message>
        <source>O&amp;utput folder</source>
        <translation>Ausgabe&amp;ordner</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Ordner für die Ergebnisse</translation>
    </message>
    <message>
        <source>The format of each input</source>
        <translation>Format wie Eingabe</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1, quality %2</source>
        <translation>%1, Qualität %2</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>Lay pictures on a frame</source>
        <translation>Bilder auf einen Rahmen legen</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Abstand links</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Abstand oben</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Abstand rechts</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Abstand unten</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Opacity of the picture</source>
        <translation>Deckkraft des Bildes</translation>
    </message>
    <message>
        <source>A frame of its own size</source>
        <translation>Rahmen mit eigener Größe</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Breite des Rahmens</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Höhe des Rahmens</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Farbe des Hintergrunds</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Scale of the pattern</source>
        <translation>Maßstab des Musters</translation>
    </message>
    <message>
        <source>Picture of the background</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>Opacity of the background</source>
        <translation>Deckkraft des Hintergrunds</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>Art des Schattens</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Farbe des Schattens</translation>
    </message>
    <message>
        <source>Opacity of the shadow</source>
        <translation>Deckkraft des Schattens</translation>
    </message>
    <message>
        <source>Direction of the light</source>
        <translation>Richtung des Lichts</translation>
    </message>
    <message>
        <source>Distance of the shadow</source>
        <translation>Abstand des Schattens</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>Weichheit des Schattens</translation>
    </message>
    <message>
        <source>Fr&amp;ame</source>
        <translation>&amp;Rahmen</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>Kein Rahmen</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px with a shadow</source>
        <translation>Rahmen von %1 × %2 px mit Schatten</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px</source>
        <translation>Rahmen von %1 × %2 px</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px with a shadow</source>
        <translation>Abstände %1, %2, %3, %4 px mit Schatten</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px</source>
        <translation>Abstände %1, %2, %3, %4 px</translation>
    </message>
    <message>
        <source>&amp;Metadata</source>
        <translation>&amp;Metadaten</translation>
    </message>
    <message>
        <source>All metadata is kept</source>
        <translation>Alle Metadaten bleiben erhalten</translation>
    </message>
    <message>
        <source>No metadata is kept</source>
        <translation>Keine Metadaten bleiben erhalten</translation>
    </message>
    <message>
        <source>Kept are %1</source>
        <translation>Erhalten bleiben: %1</translation>
    </message>
    <message>
        <source>First part</source>
        <translation>Erster Teil</translation>
    </message>
    <message>
        <source>Text of the first part</source>
        <translation>Text des ersten Teils</translation>
    </message>
    <message>
        <source>First number of the first part</source>
        <translation>Erste Nummer des ersten Teils</translation>
    </message>
    <message>
        <source>Digits of the first part</source>
        <translation>Stellenzahl des ersten Teils</translation>
    </message>
    <message>
        <source>Between the first and the middle part</source>
        <translation>Zwischen erstem und mittlerem Teil</translation>
    </message>
    <message>
        <source>Middle part</source>
        <translation>Mittlerer Teil</translation>
    </message>
    <message>
        <source>Text of the middle part</source>
        <translation>Text des mittleren Teils</translation>
    </message>
    <message>
        <source>First number of the middle part</source>
        <translation>Erste Nummer des mittleren Teils</translation>
    </message>
    <message>
        <source>Digits of the middle part</source>
        <translation>Stellenzahl des mittleren Teils</translation>
    </message>
    <message>
        <source>Between the middle and the last part</source>
        <translation>Zwischen mittlerem und letztem Teil</translation>
    </message>
    <message>
        <source>Last part</source>
        <translation>Letzter Teil</translation>
    </message>
    <message>
        <source>Text of the last part</source>
        <translation>Text des letzten Teils</translation>
    </message>
    <message>
        <source>First number of the last part</source>
        <translation>Erste Nummer des letzten Teils</translation>
    </message>
    <message>
        <source>Digits of the last part</source>
        <translation>Stellenzahl des letzten Teils</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Namen</translation>
    </message>
    <message>
        <source>Example, as if it had been taken on 2024-07-31 at 14:05:09: %1</source>
        <translation>Beispiel, als wäre es am 2024-07-31 um 14:05:09 aufgenommen: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Beispiel: %1</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Standard des Formats</translation>
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
        <source>Co&amp;lour profile</source>
        <translation>Farb&amp;profil</translation>
    </message>
    <message>
        <source>Choose the file of a colour profile</source>
        <translation>Datei eines Farbprofils wählen</translation>
    </message>
    <message>
        <source>Remove the colour profile</source>
        <translation>Farbprofil entfernen</translation>
    </message>
    <message>
        <source>A profile of %1 bytes without a name</source>
        <translation>Profil ohne Namen mit %1 Bytes</translation>
    </message>
    <message>
        <source>The profile of each input</source>
        <translation>Profil wie Eingabe</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 in at %2 dpi</source>
        <translation>%1 Zoll bei %2 dpi</translation>
    </message>
    <message>
        <source>%1 cm at %2 dpi</source>
        <translation>%1 cm bei %2 dpi</translation>
    </message>
    <message>
        <source>%1 mm at %2 dpi</source>
        <translation>%1 mm bei %2 dpi</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Breite %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>Short side %1</source>
        <translation>Kurze Seite %1</translation>
    </message>
    <message>
        <source>Long side %1</source>
        <translation>Lange Seite %1</translation>
    </message>
    <message>
        <source>Width %1, only smaller</source>
        <translation>Breite %1, nur verkleinern</translation>
    </message>
    <message>
        <source>Height %1, only smaller</source>
        <translation>Höhe %1, nur verkleinern</translation>
    </message>
    <message>
        <source>Short side %1, only smaller</source>
        <translation>Kurze Seite %1, nur verkleinern</translation>
    </message>
    <message>
        <source>Long side %1, only smaller</source>
        <translation>Lange Seite %1, nur verkleinern</translation>
    </message>
    <message>
        <source>Width %1, only larger</source>
        <translation>Breite %1, nur vergrößern</translation>
    </message>
    <message>
        <source>Height %1, only larger</source>
        <translation>Höhe %1, nur vergrößern</translation>
    </message>
    <message>
        <source>Short side %1, only larger</source>
        <translation>Kurze Seite %1, nur vergrößern</translation>
    </message>
    <message>
        <source>Long side %1, only larger</source>
        <translation>Lange Seite %1, nur vergrößern</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>The size stays</source>
        <translation>Größe bleibt unverändert</translation>
    </message>
    <message>
        <source>Pictures that are added now are for the next run.</source>
        <translation>Jetzt hinzugefügte Bilder gehören zum nächsten Lauf.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>Ergebnisse gehen nach %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Previous picture</source>
        <translation>&amp;Vorheriges Bild</translation>
    </message>
    <message>
        <source>&amp;Next picture</source>
        <translation>Nächstes B&amp;ild</translation>
    </message>
    <message>
        <source>Ne&amp;xt pane</source>
        <translation>Nächster Be&amp;reich</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>V&amp;orheriger Bereich</translation>
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
        <translation>La&amp;uf</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>St&amp;arten</translation>
    </message>
    <message>
        <source>The run cannot be started: %1.</source>
        <translation>Der Lauf kann nicht gestartet werden: %1.</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>JSON files (*.json)</source>
        <translation>JSON-Dateien (*.json)</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>The report was saved as %1.</source>
        <translation>Der Bericht wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The report was not saved: %1.</source>
        <translation>Der Bericht wurde nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>The run cannot be forgotten: %1.</source>
        <translation>Der Lauf kann nicht verworfen werden: %1.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: %1.</source>
        <translation>Der Lauf kann nicht fortgesetzt werden: %1.</translation>
    </message>
    <message>
        <source>All pictures are written</source>
        <translation>Alle Bilder sind geschrieben</translation>
    </message>
    <message>
        <source>The run is finished, some pictures are left out</source>
        <translation>Der Lauf ist fertig, einige Bilder wurden ausgelassen</translation>
    </message>
    <message>
        <source>The run is cancelled</source>
        <translation>Der Lauf ist abgebrochen</translation>
    </message>
    <message>
        <source>The run has stopped</source>
        <translation>Der Lauf wurde angehalten</translation>
    </message>
    <message>
        <source>Pictures are being written</source>
        <translation>Bilder werden geschrieben</translation>
    </message>
    <message>
        <source>A picture needs your decision</source>
        <translation>Ein Bild erfordert eine Entscheidung</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Show failures</source>
        <translation>Fehlgeschlagene anzeigen</translation>
    </message>
    <message>
        <source>Begins with a new job.</source>
        <translation>Beginnt mit einem neuen Auftrag.</translation>
    </message>
    <message>
        <source>The grid shows all pictures; the list can be filtered.</source>
        <translation>Das Raster zeigt alle Bilder; die Liste lässt sich filtern.</translation>
    </message>
    <message>
        <source>Written as %1</source>
        <translation>Wird zu %1</translation>
    </message>
    <message>
        <source>Let other programs go &amp;first</source>
        <translation>Anderen Programmen den &amp;Vortritt lassen</translation>
    </message>
    <message>
        <source>Largest file</source>
        <translation>Größte Datei</translation>
    </message>
    <message>
        <source>May get smaller</source>
        <translation>Darf kleiner werden</translation>
    </message>
    <message>
        <source>Least quality</source>
        <translation>Geringste Qualität</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>the record of earlier results was ignored: %1. They were not recognised, and not replaced.</source>
        <translation>das Verzeichnis früherer Ergebnisse wurde nicht beachtet: %1. Sie wurden nicht erkannt und nicht ersetzt.</translation>
    </message>
    <message>
        <source>the results of this update cannot be recorded: %1. The next one tries again.</source>
        <translation>die Ergebnisse dieser Aktualisierung können nicht verzeichnet werden: %1. Die nächste versucht es noch einmal.</translation>
    </message>
    <message>
        <source>1 result is left from an input that is gone; --delete-orphans removes it:</source>
        <translation>1 Ergebnis ist von einer Eingabe übrig, die es nicht mehr gibt; --delete-orphans entfernt es:</translation>
    </message>
    <message>
        <source>%1 results are left from inputs that are gone; --delete-orphans removes them:</source>
        <translation>%1 Ergebnisse sind von Eingaben übrig, die es nicht mehr gibt; --delete-orphans entfernt sie:</translation>
    </message>
    <message>
        <source>not all inputs could be read, so nothing is removed of what seems to be left from inputs that are gone:</source>
        <translation>nicht alle Eingaben konnten gelesen werden; darum wird nichts von dem entfernt, was von verschwundenen Eingaben übrig scheint:</translation>
    </message>
    <message>
        <source>1 result was removed, because its input is gone.</source>
        <translation>1 Ergebnis wurde entfernt, weil es seine Eingabe nicht mehr gibt.</translation>
    </message>
    <message>
        <source>%1 results were removed, because their inputs are gone.</source>
        <translation>%1 Ergebnisse wurden entfernt, weil es ihre Eingaben nicht mehr gibt.</translation>
    </message>
    <message>
        <source>these results could not be removed:</source>
        <translation>diese Ergebnisse konnten nicht entfernt werden:</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 were up to date.</source>
        <translation>Fertig in %1: %2 geschrieben, %3 waren aktuell.</translation>
    </message>
    <message>
        <source>Make only &amp;what has changed</source>
        <translation>Nur &amp;Geändertes erzeugen</translation>
    </message>
    <message>
        <source>%1. Saved jobs may be given: as the first arguments of run and plan, one as the first argument of show, or to create with --from</source>
        <translation>%1. Gespeicherte Aufträge können angegeben werden: als erste Argumente von run und plan, einer als erstes Argument von show, oder bei create mit --from</translation>
    </message>
    <message>
        <source>%1 can no longer be read: %2</source>
        <translation>%1 kann nicht mehr gelesen werden: %2</translation>
    </message>
    <message>
        <source>watching %1; results go to %2. Ctrl-C ends it.</source>
        <translation>%1 wird überwacht; Ergebnisse kommen nach %2. Strg-C beendet es.</translation>
    </message>
    <message>
        <source>warning %1: %2</source>
        <translation>Warnung %1: %2</translation>
    </message>
    <message>
        <source>watching ends, as a policy says; the next start tries these pictures again.</source>
        <translation>die Überwachung endet, wie es eine Regel verlangt; der nächste Start versucht diese Bilder noch einmal.</translation>
    </message>
    <message>
        <source>Written: %1, skipped: %2, failed: %3.</source>
        <translation>Geschrieben: %1, ausgelassen: %2, fehlgeschlagen: %3.</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Nachweis</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Metadaten schreiben</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Text has tokens</source>
        <translation>Text hat Platzhalter</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Urheberrechtsvermerk</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Example, with what a picture might say: %1</source>
        <translation>Beispiel mit dem, was ein Bild sagen könnte: %1</translation>
    </message>
    <message>
        <source>Parts done: %1 of %2. Written: %3, skipped: %4, failed: %5, not processed: %6.</source>
        <translation>Fertige Teile: %1 von %2. Geschrieben: %3, übersprungen: %4, fehlgeschlagen: %5, nicht bearbeitet: %6.</translation>
    </message>
    <message>
        <source>Parts to run again, as they are not done: %1</source>
        <translation>Erneut zu startende Teile, da sie nicht fertig sind: %1</translation>
    </message>
    <message>
        <source>Parts to run again, as pictures have failed: %1</source>
        <translation>Erneut zu startende Teile, da Bilder fehlgeschlagen sind: %1</translation>
    </message>
    <message>
        <source>the plan %1 or its journals cannot be removed.</source>
        <translation>der Plan %1 oder seine Journale können nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Part %1 of %2 is not done; run it again to go on.</source>
        <translation>Teil %1 von %2 ist nicht fertig; starten Sie ihn erneut, um fortzufahren.</translation>
    </message>
    <message>
        <source>Part %1: pictures: %2, %3</source>
        <translation>Teil %1: Bilder: %2, %3</translation>
    </message>
    <message>
        <source>The plan of %1 parts is in %2. For each of them: velkora-batch run --plan %2 --part NUMBER. At the end: velkora-batch collect %2</source>
        <translation>Der Plan mit %1 Teilen ist in %2. Für jeden davon: velkora-batch run --plan %2 --part NUMBER. Am Ende: velkora-batch collect %2</translation>
    </message>
    <message>
        <source>Several presets</source>
        <translation>Mehrere Vorgaben</translation>
    </message>
    <message>
        <source>Each picture gets a result of each preset. They go to folders with the names of the presets, in %1.</source>
        <translation>Jedes Bild bekommt von jeder Vorgabe ein Ergebnis. Die Ergebnisse kommen in Ordner mit den Namen der Vorgaben, in %1.</translation>
    </message>
    <message>
        <source>Start with several p&amp;resets...</source>
        <translation>&amp;Mit mehreren Vorgaben starten ...</translation>
    </message>
    <message>
        <source>part %1 was made with %2, but the plan with %3; its pictures may differ.</source>
        <translation>Teil %1 wurde mit %2 gemacht, der Plan aber mit %3; seine Bilder können abweichen.</translation>
    </message>
    <message>
        <source>no temporary folder can be made: %1. Set %2 to another folder.</source>
        <translation>ein temporärer Ordner kann nicht angelegt werden: %1. %2 auf einen anderen Ordner setzen.</translation>
    </message>
</context>
<context>
    <name>BatchJob::Phrase</name>
    <message>
        <source>Spreads the values that a picture has from black to white</source>
        <translation>Spreizt die Tonwerte eines Bildes von Schwarz bis Weiß</translation>
    </message>
    <message>
        <source>Blurs evenly</source>
        <translation>Zeichnet gleichmäßig weich</translation>
    </message>
    <message>
        <source>Adds a border around a picture</source>
        <translation>Fügt einen Rand um das Bild hinzu</translation>
    </message>
    <message>
        <source>Shifts all values, then spreads them around the middle</source>
        <translation>Verschiebt alle Tonwerte und spreizt sie dann um die Mitte</translation>
    </message>
    <message>
        <source>Raises or lowers the contrast of larger structures, mostly in the middle tones</source>
        <translation>Hebt oder senkt den Kontrast größerer Strukturen, vor allem in den Mitteltönen</translation>
    </message>
    <message>
        <source>a second size; one table is needed, of one or of three dimensions</source>
        <translation>eine zweite Größe; nötig ist eine einzige Tabelle mit einer oder drei Dimensionen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs a whole number from 2 to %3</source>
        <translation>„%1“; %2 benötigt eine ganze Zahl von 2 bis %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs three numbers</source>
        <translation>„%1“; %2 benötigt drei Zahlen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs two numbers</source>
        <translation>„%1“; %2 benötigt zwei Zahlen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; three numbers or a known keyword are needed</source>
        <translation>„%1“; nötig sind drei Zahlen oder ein bekanntes Schlüsselwort</translation>
    </message>
    <message>
        <source>an entry before LUT_1D_SIZE or LUT_3D_SIZE</source>
        <translation>ein Eintrag vor LUT_1D_SIZE oder LUT_3D_SIZE</translation>
    </message>
    <message>
        <source>one entry more than the %1 that the size says</source>
        <translation>ein Eintrag mehr als die %1, die die Größe angibt</translation>
    </message>
    <message>
        <source>no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file</source>
        <translation>weder LUT_1D_SIZE noch LUT_3D_SIZE; das ist keine .cube-Datei</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 entries</source>
        <translation>die Datei endet nach %1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>DOMAIN_MIN must be less than DOMAIN_MAX in every channel</source>
        <translation>DOMAIN_MIN muss in jedem Kanal kleiner als DOMAIN_MAX sein</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 existiert nicht</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; a .cube file has at most %3</source>
        <translation>%1 hat %2 Bytes; eine .cube-Datei hat höchstens %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>länger als %1 Bytes</translation>
    </message>
    <message>
        <source>input and output, from black to white; between them the curve never turns, beyond them it is level</source>
        <translation>Eingang und Ausgang, von Schwarz bis Weiß; dazwischen kehrt die Kurve nie um, außerhalb verläuft sie waagerecht</translation>
    </message>
    <message>
        <source>Maps values along a smooth curve through points</source>
        <translation>Bildet Tonwerte entlang einer glatten Kurve durch Punkte ab</translation>
    </message>
    <message>
        <source>Smooths noise and keeps edges</source>
        <translation>Glättet Rauschen und erhält Kanten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 percent; it must be at most 100, or the unit pixels</source>
        <translation>„%1“ ist %2 Prozent; erlaubt sind höchstens 100 oder die Einheit pixels</translation>
    </message>
    <message>
        <source>Brightens or darkens as a longer or shorter exposure would</source>
        <translation>Hellt auf oder dunkelt ab wie eine längere oder kürzere Belichtung</translation>
    </message>
    <message>
        <source>Mirrors a picture</source>
        <translation>Spiegelt ein Bild</translation>
    </message>
    <message>
        <source>Takes all colour away</source>
        <translation>Entfernt alle Farben</translation>
    </message>
    <message>
        <source>Turns all colours around the colour circle</source>
        <translation>Dreht alle Farben im Farbkreis</translation>
    </message>
    <message>
        <source>Turns a picture into its negative</source>
        <translation>Wandelt ein Bild in sein Negativ um</translation>
    </message>
    <message>
        <source>&quot;black&quot; is %1 and &quot;white&quot; is %2; black must be less than white</source>
        <translation>„black“ ist %1 und „white“ ist %2; black muss kleiner als white sein</translation>
    </message>
    <message>
        <source>Sets what becomes black, what becomes white, and the tone between them</source>
        <translation>Legt fest, was schwarz wird, was weiß wird, und den Ton dazwischen</translation>
    </message>
    <message>
        <source>Maps colours by the table of a .cube file; a grey picture becomes a colour picture</source>
        <translation>Bildet Farben nach der Tabelle einer .cube-Datei ab; ein Graustufenbild wird ein Farbbild</translation>
    </message>
    <message>
        <source>Leaves few steps of each colour</source>
        <translation>Lässt wenige Stufen jeder Farbe übrig</translation>
    </message>
    <message>
        <source>Turns a picture clockwise; the result is as large as it needs</source>
        <translation>Dreht ein Bild im Uhrzeigersinn; das Ergebnis ist so groß wie nötig</translation>
    </message>
    <message>
        <source>Makes all colours stronger or weaker</source>
        <translation>Macht alle Farben kräftiger oder schwächer</translation>
    </message>
    <message>
        <source>Tones a picture brown; a grey picture becomes a colour picture</source>
        <translation>Tönt ein Bild braun; ein Graustufenbild wird ein Farbbild</translation>
    </message>
    <message>
        <source>Sharpens edges by an unsharp mask</source>
        <translation>Schärft Kanten durch Unscharfmaskieren</translation>
    </message>
    <message>
        <source>Makes weak colours stronger or weaker, and spares those that are strong</source>
        <translation>Macht schwache Farben kräftiger oder schwächer und schont kräftige</translation>
    </message>
    <message>
        <source>Darkens or brightens towards the corners</source>
        <translation>Dunkelt zu den Ecken hin ab oder hellt auf</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 does not exist</source>
        <translation>„file“: %1 existiert nicht</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a file</source>
        <translation>„file“: %1 ist keine Datei</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 cannot be read: %2</source>
        <translation>„file“: %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a picture of a known format</source>
        <translation>„file“: %1 ist kein Bild eines bekannten Formats</translation>
    </message>
    <message>
        <source>Lays another picture, such as a logo, over a picture</source>
        <translation>Legt ein anderes Bild, etwa ein Logo, über das Bild</translation>
    </message>
    <message>
        <source>what is written; it may have several lines</source>
        <translation>der Text; mehrere Zeilen sind möglich</translation>
    </message>
    <message>
        <source>family and style, without a size; a family that is missing is replaced</source>
        <translation>Familie und Schnitt, ohne Größe; eine fehlende Familie wird ersetzt</translation>
    </message>
    <message>
        <source>Writes a text over a picture</source>
        <translation>Schreibt einen Text über das Bild</translation>
    </message>
    <message>
        <source>Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance</source>
        <translation>Macht ein Bild wärmer oder kühler, grüner oder mehr magenta; Grautöne behalten ihre Luminanz</translation>
    </message>
    <message>
        <source>very small files for the web in up to 12 bits, slow to write</source>
        <translation>sehr kleine Dateien fürs Web mit bis zu 12 Bit, langsam zu schreiben</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; %2 takes %3</source>
        <translation>„bitDepth“ ist %1; %2 erlaubt %3</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; it must be 8, 10, 12 or 16</source>
        <translation>„bitDepth“ ist %1; erlaubt sind 8, 10, 12 oder 16</translation>
    </message>
    <message>
        <source>the format &quot;%1&quot; is unknown</source>
        <translation>das Format „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; &quot;compression&quot; jpeg takes 8</source>
        <translation>„bitDepth“ ist %1; „compression“ jpeg erlaubt 8</translation>
    </message>
    <message>
        <source>at most 256 colours, each pixel opaque or transparent</source>
        <translation>höchstens 256 Farben, jedes Pixel deckend oder transparent</translation>
    </message>
    <message>
        <source>small files of photos in up to 12 bits, as phones write them</source>
        <translation>kleine Fotodateien mit bis zu 12 Bit, wie Smartphones sie schreiben</translation>
    </message>
    <message>
        <source>archives and films, in up to 16 bits, also without loss</source>
        <translation>Archive und Filme, mit bis zu 16 Bit, auch verlustfrei</translation>
    </message>
    <message>
        <source>small files of photos, which every program reads</source>
        <translation>kleine Fotodateien, die jedes Programm liest</translation>
    </message>
    <message>
        <source>small files of photos in up to 16 bits, also without loss</source>
        <translation>kleine Fotodateien mit bis zu 16 Bit, auch verlustfrei</translation>
    </message>
    <message>
        <source>every pixel as it is, with transparency; for graphics and for editing</source>
        <translation>jedes Pixel unverändert, mit Transparenz; für Grafiken und zur Bearbeitung</translation>
    </message>
    <message>
        <source>higher is slower and smaller</source>
        <translation>höher ist langsamer und kleiner</translation>
    </message>
    <message>
        <source>what the sensor of a camera saw, in the formats of many makers</source>
        <translation>was der Sensor einer Kamera sah, in den Formaten vieler Hersteller</translation>
    </message>
    <message>
        <source>every pixel as it is, also CMYK and very large; for printing and for archives</source>
        <translation>jedes Pixel unverändert, auch CMYK und sehr groß; für Druck und Archiv</translation>
    </message>
    <message>
        <source>how the pixels are compressed</source>
        <translation>wie die Pixel komprimiert werden</translation>
    </message>
    <message>
        <source>small files for the web, with transparency</source>
        <translation>kleine Dateien fürs Web, mit Transparenz</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>die Datei ist ein Link</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>die Datei gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>die Datei hat mehr als einen Namen</translation>
    </message>
    <message>
        <source>other users may write it</source>
        <translation>andere Benutzer dürfen sie ändern</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>die Datei existiert nicht</translation>
    </message>
    <message>
        <source>its own format cannot be written</source>
        <translation>das eigene Format der Datei kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>its own format, %1, cannot be written</source>
        <translation>das eigene Format der Datei, %1, kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already</source>
        <translation>„%1“ existiert bereits</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a source of this job</source>
        <translation>„%1“ ist eine Quelldatei dieses Auftrags</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the result of &quot;%2&quot;</source>
        <translation>„%1“ ist das Ergebnis von „%2“</translation>
    </message>
    <message>
        <source>written as &quot;%1&quot; (naming policy)</source>
        <translation>als „%1“ geschrieben (Regel für Namen)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was overwritten (naming policy)</source>
        <translation>„%1“ wurde überschrieben (Regel für Namen)</translation>
    </message>
    <message>
        <source>written as %1 (write-to-format policy)</source>
        <translation>als %1 geschrieben (Regel für Formate)</translation>
    </message>
    <message>
        <source>The format</source>
        <translation>Das Format</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>The options of the format %1: %2</source>
        <translation>Die Optionen des Formats %1: %2</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;, does not exist</source>
        <translation>Den Effekt %1, „%2“, gibt es nicht</translation>
    </message>
    <message>
        <source>; there are %1</source>
        <translation>; vorhanden sind %1</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;: %3</source>
        <translation>Effekt %1, „%2“: %3</translation>
    </message>
    <message>
        <source>The job has no files</source>
        <translation>Der Auftrag enthält keine Dateien</translation>
    </message>
    <message>
        <source>The input policy</source>
        <translation>Die Regel für Eingaben</translation>
    </message>
    <message>
        <source>The output policy</source>
        <translation>Die Regel für Ausgaben</translation>
    </message>
    <message>
        <source>The processing policy</source>
        <translation>Die Regel für die Verarbeitung</translation>
    </message>
    <message>
        <source>The naming policy</source>
        <translation>Die Regel für Namen</translation>
    </message>
    <message>
        <source>The write-to-format policy</source>
        <translation>Die Regel für Formate</translation>
    </message>
    <message>
        <source>The shadow&apos;s mode</source>
        <translation>Der Modus des Schattens</translation>
    </message>
    <message>
        <source>The shadow&apos;s opacity</source>
        <translation>Die Deckkraft des Schattens</translation>
    </message>
    <message>
        <source>The shadow&apos;s distance</source>
        <translation>Der Abstand des Schattens</translation>
    </message>
    <message>
        <source>The shadow&apos;s size</source>
        <translation>Die Größe des Schattens</translation>
    </message>
    <message>
        <source>The background&apos;s type</source>
        <translation>Die Art des Hintergrunds</translation>
    </message>
    <message>
        <source>The background&apos;s opacity</source>
        <translation>Die Deckkraft des Hintergrunds</translation>
    </message>
    <message>
        <source>The background&apos;s pattern</source>
        <translation>Das Muster des Hintergrunds</translation>
    </message>
    <message>
        <source>The scale of the background&apos;s pattern</source>
        <translation>Der Maßstab des Hintergrundmusters</translation>
    </message>
    <message>
        <source>The background&apos;s image</source>
        <translation>Das Hintergrundbild</translation>
    </message>
    <message>
        <source>the absolute path of a file that exists</source>
        <translation>der absolute Pfad einer vorhandenen Datei</translation>
    </message>
    <message>
        <source>The frame&apos;s width</source>
        <translation>Die Breite des Rahmens</translation>
    </message>
    <message>
        <source>The frame&apos;s height</source>
        <translation>Die Höhe des Rahmens</translation>
    </message>
    <message>
        <source>The output folder</source>
        <translation>Der Ausgabeordner</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>ein absoluter Pfad</translation>
    </message>
    <message>
        <source>The folder structure</source>
        <translation>Die Ordnerstruktur</translation>
    </message>
    <message>
        <source>The name&apos;s prefix</source>
        <translation>Das Präfix des Namens</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s prefix</source>
        <translation>Die Stellenzahl im Präfix des Namens</translation>
    </message>
    <message>
        <source>The name&apos;s middle</source>
        <translation>Der Mittelteil des Namens</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s middle</source>
        <translation>Die Stellenzahl im Mittelteil des Namens</translation>
    </message>
    <message>
        <source>The name&apos;s suffix</source>
        <translation>Das Suffix des Namens</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s suffix</source>
        <translation>Die Stellenzahl im Suffix des Namens</translation>
    </message>
    <message>
        <source>The image size&apos;s restriction</source>
        <translation>Die Einschränkung der Bildgröße</translation>
    </message>
    <message>
        <source>The image size&apos;s resolution</source>
        <translation>Die Auflösung der Bildgröße</translation>
    </message>
    <message>
        <source>The image size&apos;s side</source>
        <translation>Die Seite der Bildgröße</translation>
    </message>
    <message>
        <source>The image size&apos;s unit</source>
        <translation>Die Einheit der Bildgröße</translation>
    </message>
    <message>
        <source>The image size</source>
        <translation>Die Bildgröße</translation>
    </message>
    <message>
        <source>a number above 0, up to %1</source>
        <translation>eine Zahl über 0, höchstens %1</translation>
    </message>
    <message>
        <source>The crop&apos;s type</source>
        <translation>Die Art des Zuschnitts</translation>
    </message>
    <message>
        <source>The crop&apos;s width</source>
        <translation>Die Breite des Zuschnitts</translation>
    </message>
    <message>
        <source>The crop&apos;s height</source>
        <translation>Die Höhe des Zuschnitts</translation>
    </message>
    <message>
        <source>The crop&apos;s alignment</source>
        <translation>Die Ausrichtung des Zuschnitts</translation>
    </message>
    <message>
        <source>a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)</source>
        <translation>eine Summe aus 1 (links), 2 (rechts), 4 (Mitte), 32 (oben), 64 (unten), 128 (Mitte)</translation>
    </message>
    <message>
        <source>The frame&apos;s margin</source>
        <translation>Der Abstand zum Rahmen</translation>
    </message>
    <message>
        <source>The frame&apos;s blending</source>
        <translation>Der Mischmodus des Rahmens</translation>
    </message>
    <message>
        <source>The picture&apos;s opacity</source>
        <translation>Die Deckkraft des Bildes</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>eine ganze Zahl %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>eine Zahl von 0 bis 1</translation>
    </message>
    <message>
        <source>%1 is %2; it must be %3</source>
        <translation>%1 ist %2; erlaubt ist %3</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>umbenannt</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>überschrieben</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>umgewandelt</translation>
    </message>
    <message>
        <source>from %1 to %2 (%3)</source>
        <translation>von %1 bis %2 (%3)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown</source>
        <translation>„%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>; none is taken here</source>
        <translation>; hier sind keine erlaubt</translation>
    </message>
    <message>
        <source>; known are %1</source>
        <translation>; bekannt sind %1</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1: %2</source>
        <translation>kein gültiges JSON bei Byte %1: %2</translation>
    </message>
    <message>
        <source>a JSON object is needed, such as {&quot;name&quot;: value}</source>
        <translation>nötig ist ein JSON-Objekt, etwa {&quot;name&quot;: value}</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing; it must be %2</source>
        <translation>„%1“ fehlt; erlaubt ist %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be %3</source>
        <translation>„%1“ ist %2; erlaubt ist %3</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>; meinten Sie %1?</translation>
    </message>
    <message>
        <source>a number %1</source>
        <translation>eine Zahl %1</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>eine Liste aus %1</translation>
    </message>
    <message>
        <source>a colour, #rrggbb or #rrggbbaa</source>
        <translation>eine Farbe, #rrggbb oder #rrggbbaa</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>ein Text von %1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>the absolute path of a file</source>
        <translation>der absolute Pfad einer Datei</translation>
    </message>
    <message>
        <source>a list of 2 to %1 points [x, y] with ascending x, numbers %2</source>
        <translation>eine Liste von 2 bis %1 Punkten [x, y] mit aufsteigendem x, Zahlen %2</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>übersprungen</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>only the first page</source>
        <translation>nur die erste Seite</translation>
    </message>
    <message>
        <source>the file lacks its end</source>
        <translation>das Ende der Datei fehlt</translation>
    </message>
    <message>
        <source>colour profile not used</source>
        <translation>Farbprofil nicht verwendet</translation>
    </message>
    <message>
        <source>colours converted</source>
        <translation>Farben umgewandelt</translation>
    </message>
    <message>
        <source>metadata lost</source>
        <translation>Metadaten verloren</translation>
    </message>
    <message>
        <source>gain map lost</source>
        <translation>Gain-Map verloren</translation>
    </message>
    <message>
        <source>framing without effect</source>
        <translation>Rahmen ohne Wirkung</translation>
    </message>
    <message>
        <source>the decoder found a fault</source>
        <translation>der Decoder hat einen Fehler gefunden</translation>
    </message>
    <message>
        <source>%1 does not lie in the output folder %2</source>
        <translation>%1 liegt nicht im Ausgabeordner %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>der Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>%1 is a link; results are not written through it unless links are followed</source>
        <translation>%1 ist ein Link; Ergebnisse werden nur durch Links geschrieben, wenn das Folgen von Links erlaubt ist</translation>
    </message>
    <message>
        <source>the worker&apos;s report is invalid: %1</source>
        <translation>die Meldung des Worker-Prozesses ist ungültig: %1</translation>
    </message>
    <message>
        <source>it takes more memory than the limit of %1 MiB</source>
        <translation>das Bild benötigt mehr Speicher als die Grenze von %1 MiB</translation>
    </message>
    <message>
        <source>it takes longer than the limit of %1 seconds</source>
        <translation>die Verarbeitung dauert länger als die Grenze von %1 Sekunden</translation>
    </message>
    <message>
        <source>the worker wrote more than %1 MiB of messages</source>
        <translation>der Worker-Prozess hat mehr als %1 MiB Meldungen geschrieben</translation>
    </message>
    <message>
        <source>the worker sent an invalid answer</source>
        <translation>der Worker-Prozess hat eine ungültige Antwort gesendet</translation>
    </message>
    <message>
        <source>the worker %1</source>
        <translation>der Worker-Prozess %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2</source>
        <translation>„%1“ kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>ended by exception 0x%1</source>
        <translation>wurde durch die Ausnahme 0x%1 beendet</translation>
    </message>
    <message>
        <source>ended by signal %1</source>
        <translation>wurde durch das Signal %1 beendet</translation>
    </message>
    <message>
        <source>%1; its last output: %2</source>
        <translation>%1; letzte Ausgabe: %2</translation>
    </message>
    <message>
        <source>ended with exit code %1</source>
        <translation>wurde mit dem Exit-Code %1 beendet</translation>
    </message>
    <message>
        <source>The job is not a batch document</source>
        <translation>Der Auftrag ist kein Stapeldokument</translation>
    </message>
    <message>
        <source>The job cannot be read: its reader failed</source>
        <translation>Der Auftrag kann nicht gelesen werden: das Leseprogramm ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>the server crashed %1 times while it worked on the file</source>
        <translation>der Server ist bei der Arbeit an der Datei %1-mal abgestürzt</translation>
    </message>
    <message>
        <source>the worker reported a result that is not there</source>
        <translation>der Worker-Prozess hat ein Ergebnis gemeldet, das nicht vorhanden ist</translation>
    </message>
    <message>
        <source>each of %1 names for the result was taken when it was to be written</source>
        <translation>jeder von %1 Namen für das Ergebnis war beim Schreiben vergeben</translation>
    </message>
    <message>
        <source>the journal %1 cannot be used: %2</source>
        <translation>das Journal %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>another server holds %1</source>
        <translation>ein anderer Server hält %1</translation>
    </message>
    <message>
        <source>%1 cannot be written; the disk may be full</source>
        <translation>%1 kann nicht geschrieben werden; der Datenträger ist vielleicht voll</translation>
    </message>
    <message>
        <source>the embedded colour profile is damaged and is not used</source>
        <translation>das eingebettete Farbprofil ist beschädigt und wird nicht verwendet</translation>
    </message>
    <message>
        <source>the embedded colour profile does not fit the picture and is not used</source>
        <translation>das eingebettete Farbprofil passt nicht zum Bild und wird nicht verwendet</translation>
    </message>
    <message>
        <source>the embedded colour profile cannot be used</source>
        <translation>das eingebettete Farbprofil kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>its colour profile is one for storing colours only; the result is sRGB</source>
        <translation>das Farbprofil dient nur zum Speichern von Farben; das Ergebnis ist sRGB</translation>
    </message>
    <message>
        <source>the job&apos;s colour profile does not describe pictures; the colours are not converted</source>
        <translation>das Farbprofil des Auftrags beschreibt keine Bilder; die Farben werden nicht umgewandelt</translation>
    </message>
    <message>
        <source>the colour profile cannot be used; the colours are not converted</source>
        <translation>das Farbprofil kann nicht verwendet werden; die Farben werden nicht umgewandelt</translation>
    </message>
    <message>
        <source>the colours cannot be converted to sRGB; their values are taken for sRGB as they are</source>
        <translation>die Farben können nicht in sRGB umgewandelt werden; ihre Werte gelten unverändert als sRGB</translation>
    </message>
    <message>
        <source>the file is HDR; the result has the brightness of common screens</source>
        <translation>die Datei ist HDR; das Ergebnis hat die Helligkeit üblicher Bildschirme</translation>
    </message>
    <message>
        <source>its values are complex numbers, which are no colours</source>
        <translation>die Werte sind komplexe Zahlen und keine Farben</translation>
    </message>
    <message>
        <source>its kind of colours is not supported: %1</source>
        <translation>die Art der Farben wird nicht unterstützt: %1</translation>
    </message>
    <message>
        <source>its kind of colours is not supported</source>
        <translation>die Art der Farben wird nicht unterstützt</translation>
    </message>
    <message>
        <source>what the file says of its colours is damaged or unknown and is not used</source>
        <translation>die Farbangaben der Datei sind beschädigt oder unbekannt und werden nicht verwendet</translation>
    </message>
    <message>
        <source>the file&apos;s header is damaged</source>
        <translation>der Dateikopf ist beschädigt</translation>
    </message>
    <message>
        <source>the file holds no picture data, or refers to another file for them</source>
        <translation>die Datei enthält keine Bilddaten oder verweist dafür auf eine andere Datei</translation>
    </message>
    <message>
        <source>the file&apos;s header does not fit its picture</source>
        <translation>der Dateikopf passt nicht zum Bild</translation>
    </message>
    <message>
        <source>colour space %1</source>
        <translation>Farbraum %1</translation>
    </message>
    <message>
        <source>colours of method %1</source>
        <translation>Farben nach Methode %1</translation>
    </message>
    <message>
        <source>its colours are of a kind that is not supported (%1)</source>
        <translation>die Art der Farben wird nicht unterstützt (%1)</translation>
    </message>
    <message>
        <source>it has %1 channels and does not say what they are</source>
        <translation>die Datei hat %1 Kanäle und sagt nicht, wofür sie stehen</translation>
    </message>
    <message>
        <source>the transparency of a CMYK picture is left out</source>
        <translation>die Transparenz eines CMYK-Bildes wird weggelassen</translation>
    </message>
    <message>
        <source>it has %1 channels; only the first %2 are used</source>
        <translation>die Datei hat %1 Kanäle; nur die ersten %2 werden verwendet</translation>
    </message>
    <message>
        <source>the header of the picture data is damaged</source>
        <translation>der Kopf der Bilddaten ist beschädigt</translation>
    </message>
    <message>
        <source>it uses %1, which is not supported</source>
        <translation>nicht unterstützt: %1</translation>
    </message>
    <message>
        <source>the file ends after %1 % of the picture</source>
        <translation>die Datei endet nach %1 % des Bildes</translation>
    </message>
    <message>
        <source>an extension of JPEG 2000 (marker %1)</source>
        <translation>eine Erweiterung von JPEG 2000 (Marker %1)</translation>
    </message>
    <message>
        <source>two kinds of coding in one picture</source>
        <translation>zwei Arten der Codierung in einem Bild</translation>
    </message>
    <message>
        <source>an unknown kind of coding</source>
        <translation>eine unbekannte Art der Codierung</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>%1 bits a channel</source>
        <translation>%1 Bit pro Kanal</translation>
    </message>
    <message>
        <source>the file ends before the picture does</source>
        <translation>die Datei endet vor dem Ende des Bildes</translation>
    </message>
    <message>
        <source>the picture data are damaged</source>
        <translation>die Bilddaten sind beschädigt</translation>
    </message>
    <message>
        <source>%1 % of the picture are missing</source>
        <translation>%1 % des Bildes fehlen</translation>
    </message>
    <message>
        <source>packed headers of tiles that are not in order</source>
        <translation>gepackte Köpfe von Kacheln in falscher Reihenfolge</translation>
    </message>
    <message>
        <source>out of memory while decoding (%1)</source>
        <translation>zu wenig Speicher beim Decodieren (%1)</translation>
    </message>
    <message>
        <source>it is coded in a way that is not supported (%1)</source>
        <translation>die Codierung wird nicht unterstützt (%1)</translation>
    </message>
    <message>
        <source>the picture data are damaged (%1)</source>
        <translation>die Bilddaten sind beschädigt (%1)</translation>
    </message>
    <message>
        <source>it has %1 pages; only the first is used</source>
        <translation>die Datei hat %1 Seiten; nur die erste wird verwendet</translation>
    </message>
    <message>
        <source>the file lacks its last bytes, but all of the picture is there</source>
        <translation>der Datei fehlen die letzten Bytes, aber das ganze Bild ist vorhanden</translation>
    </message>
    <message>
        <source>decoding takes %1 MiB of memory%2; a worker may use %3 MiB</source>
        <translation>das Decodieren benötigt %1 MiB Speicher%2; ein Worker-Prozess darf %3 MiB nutzen</translation>
    </message>
    <message>
        <source>, because the picture is not divided into tiles</source>
        <translation>, weil das Bild nicht in Kacheln unterteilt ist</translation>
    </message>
    <message>
        <source>it is a lossless or hierarchical JPEG file, which is not supported</source>
        <translation>verlustfreie oder hierarchische JPEG-Dateien werden nicht unterstützt</translation>
    </message>
    <message>
        <source>it is a JPEG file of %1 bits a channel; only 8 are supported</source>
        <translation>die JPEG-Datei hat %1 Bit pro Kanal; nur 8 werden unterstützt</translation>
    </message>
    <message>
        <source>the file ends before all details of the picture</source>
        <translation>die Datei endet vor den letzten Details des Bildes</translation>
    </message>
    <message>
        <source>the file ends before its picture begins</source>
        <translation>die Datei endet, bevor das Bild beginnt</translation>
    </message>
    <message>
        <source>the file lacks its last bytes; the picture is whole</source>
        <translation>der Datei fehlen die letzten Bytes; das Bild ist vollständig</translation>
    </message>
    <message>
        <source>the picture has more pixels than any limit</source>
        <translation>das Bild hat mehr Pixel, als jede Grenze zulässt</translation>
    </message>
    <message>
        <source>the file is damaged: its picture cannot be decoded</source>
        <translation>die Datei ist beschädigt: das Bild kann nicht decodiert werden</translation>
    </message>
    <message>
        <source>the file ends before its picture is complete</source>
        <translation>die Datei endet, bevor das Bild vollständig ist</translation>
    </message>
    <message>
        <source>the file is damaged: it has no picture</source>
        <translation>die Datei ist beschädigt: sie enthält kein Bild</translation>
    </message>
    <message>
        <source>decoding %1 x %2 pixels takes more than a worker may use</source>
        <translation>%1 x %2 Pixel zu decodieren benötigt mehr, als ein Worker-Prozess nutzen darf</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>no decoder knows this kind of file</source>
        <translation>kein Decoder kennt diese Art von Datei</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are more than the limit of %3 megapixels</source>
        <translation>%1 x %2 Pixel sind mehr als die Grenze von %3 Megapixeln</translation>
    </message>
    <message>
        <source>the decoder does not know this camera&apos;s files</source>
        <translation>der Decoder kennt die Dateien dieser Kamera nicht</translation>
    </message>
    <message>
        <source>the file ends before its picture data does, or the data is damaged</source>
        <translation>die Datei endet vor dem Ende der Bilddaten, oder die Daten sind beschädigt</translation>
    </message>
    <message>
        <source>the file lacks picture data: it is cut off, or has been emptied</source>
        <translation>der Datei fehlen Bilddaten: sie ist abgeschnitten oder wurde geleert</translation>
    </message>
    <message>
        <source>its header gives no size of the picture</source>
        <translation>der Dateikopf nennt keine Bildgröße</translation>
    </message>
    <message>
        <source>its sides of %1 and %2 pixels are too long</source>
        <translation>die Seiten von %1 und %2 Pixeln sind zu lang</translation>
    </message>
    <message>
        <source>its tiles have no size</source>
        <translation>die Kacheln haben keine Größe</translation>
    </message>
    <message>
        <source>its tiles are too large</source>
        <translation>die Kacheln sind zu groß</translation>
    </message>
    <message>
        <source>channels of %1 bits are not supported</source>
        <translation>Kanäle mit %1 Bit werden nicht unterstützt</translation>
    </message>
    <message>
        <source>its compression (number %1) is not supported</source>
        <translation>die Komprimierung (Nummer %1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>JPEG compression of %1 bits a channel is not supported</source>
        <translation>JPEG-Komprimierung mit %1 Bit pro Kanal wird nicht unterstützt</translation>
    </message>
    <message>
        <source>it holds undeveloped data of a camera; such files are read under the name .dng</source>
        <translation>die Datei enthält unentwickelte Kameradaten; solche Dateien werden unter der Endung .dng gelesen</translation>
    </message>
    <message>
        <source>its kind of colours (number %1) is not supported</source>
        <translation>die Art der Farben (Nummer %1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>it has %1 channels beside its colours and its transparency, which are left out</source>
        <translation>die Datei hat neben Farben und Transparenz %1 weitere Kanäle, die weggelassen werden</translation>
    </message>
    <message>
        <source>it has inks of its own; only cyan, magenta, yellow and black can be read</source>
        <translation>die Datei verwendet eigene Druckfarben; nur Cyan, Magenta, Gelb und Schwarz können gelesen werden</translation>
    </message>
    <message>
        <source>it has fewer channels than its kind of colours needs</source>
        <translation>die Datei hat weniger Kanäle, als ihre Art der Farben braucht</translation>
    </message>
    <message>
        <source>Lab colours of %1 bits a channel are not supported</source>
        <translation>Lab-Farben mit %1 Bit pro Kanal werden nicht unterstützt</translation>
    </message>
    <message>
        <source>palettes of %1 bits are not supported</source>
        <translation>Farbpaletten mit %1 Bit werden nicht unterstützt</translation>
    </message>
    <message>
        <source>its way of storing colours (colour differences in uncompressed tiles) is not supported</source>
        <translation>die Speicherung der Farben (Farbdifferenzen in unkomprimierten Kacheln) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>its way of storing colours is not supported: %1</source>
        <translation>die Speicherung der Farben wird nicht unterstützt: %1</translation>
    </message>
    <message>
        <source>its strips or tiles have no size that makes sense</source>
        <translation>die Streifen oder Kacheln haben keine sinnvolle Größe</translation>
    </message>
    <message>
        <source>its strips or tiles need more memory than a worker may use</source>
        <translation>die Streifen oder Kacheln benötigen mehr Speicher, als ein Worker-Prozess nutzen darf</translation>
    </message>
    <message>
        <source>its palette is missing</source>
        <translation>die Farbpalette fehlt</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>das Bild %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the text would be too large at a size of %1 pixels</source>
        <translation>der Text wäre bei einer Größe von %1 Pixeln zu groß</translation>
    </message>
    <message>
        <source>the text has no letters that could be drawn</source>
        <translation>der Text enthält keine darstellbaren Zeichen</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as %3 needs more memory than a worker may use</source>
        <translation>%1 x %2 Pixel als %3 zu schreiben benötigt mehr Speicher, als ein Worker-Prozess nutzen darf</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use</source>
        <translation>%1 x %2 Pixel als JPEG XL zu schreiben benötigt mehr Speicher, als ein Worker-Prozess nutzen darf</translation>
    </message>
    <message>
        <source>the background picture %1 cannot be read: %2</source>
        <translation>das Hintergrundbild %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the frame of %1 x %2 pixels is above the limit of %3 pixels</source>
        <translation>der Rahmen von %1 x %2 Pixeln liegt über der Grenze von %3 Pixeln</translation>
    </message>
    <message>
        <source>the margins leave nothing of the frame free and have no effect</source>
        <translation>die Abstände lassen vom Rahmen nichts frei und haben keine Wirkung</translation>
    </message>
    <message>
        <source>metadata is left out: %1</source>
        <translation>Metadaten werden weggelassen: %1</translation>
    </message>
    <message>
        <source>%1 files cannot hold metadata; it is left out</source>
        <translation>%1-Dateien können keine Metadaten enthalten; sie werden weggelassen</translation>
    </message>
    <message>
        <source>%1 metadata of %2 bytes does not fit into a %3 file and is left out</source>
        <translation>%1-Metadaten von %2 Bytes passen nicht in eine %3-Datei und werden weggelassen</translation>
    </message>
    <message>
        <source>EXIF cannot be removed from the result</source>
        <translation>EXIF kann nicht aus dem Ergebnis entfernt werden</translation>
    </message>
    <message>
        <source>the result may have its EXIF block twice</source>
        <translation>das Ergebnis enthält den EXIF-Block vielleicht doppelt</translation>
    </message>
    <message>
        <source>the result is too large for all of its metadata to be added; some is left out</source>
        <translation>das Ergebnis ist zu groß für alle Metadaten; einige werden weggelassen</translation>
    </message>
    <message>
        <source>metadata cannot be written: %1</source>
        <translation>Metadaten können nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>%1 cannot be written and are left out</source>
        <translation>%1 können nicht geschrieben werden und werden weggelassen</translation>
    </message>
    <message>
        <source>the notes of the camera&apos;s maker</source>
        <translation>die Herstellerangaben der Kamera</translation>
    </message>
    <message>
        <source>EXIF metadata</source>
        <translation>EXIF-Metadaten</translation>
    </message>
    <message>
        <source>IPTC metadata</source>
        <translation>IPTC-Metadaten</translation>
    </message>
    <message>
        <source>XMP metadata</source>
        <translation>XMP-Metadaten</translation>
    </message>
    <message>
        <source>metadata cannot be read and is left out: %1</source>
        <translation>Metadaten können nicht gelesen werden und werden weggelassen: %1</translation>
    </message>
    <message>
        <source>effect &quot;%1&quot;: %2</source>
        <translation>Effekt „%1“: %2</translation>
    </message>
    <message>
        <source>it cannot be applied to the picture</source>
        <translation>der Effekt kann nicht auf das Bild angewendet werden</translation>
    </message>
    <message>
        <source>an effect or the frame cannot be applied to the picture</source>
        <translation>ein Effekt oder der Rahmen kann nicht auf das Bild angewendet werden</translation>
    </message>
    <message>
        <source>the encoder for %1 failed</source>
        <translation>der Encoder für %1 ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1, or not for this depth</source>
        <translation>diese Installation hat keinen Encoder für %1 oder nicht für diese Farbtiefe</translation>
    </message>
    <message>
        <source>%1 cannot hold CMYK, which the job&apos;s colour profile asks for</source>
        <translation>%1 kann kein CMYK enthalten, das das Farbprofil des Auftrags verlangt</translation>
    </message>
    <message>
        <source>%1 x %2 pixels: %3 holds at most %4 on a side</source>
        <translation>%1 x %2 Pixel: %3 erlaubt höchstens %4 pro Seite</translation>
    </message>
    <message>
        <source>the colour profile does not fit into the %1 file; the result is sRGB</source>
        <translation>das Farbprofil passt nicht in die %1-Datei; das Ergebnis ist sRGB</translation>
    </message>
    <message>
        <source>it has %1 pages; only the main one is used</source>
        <translation>die Datei hat %1 Seiten; nur die Hauptseite wird verwendet</translation>
    </message>
    <message>
        <source>it has a gain map, which the result lacks: highlights are no longer brighter on HDR screens</source>
        <translation>die Datei hat eine Gain-Map, die dem Ergebnis fehlt: Lichter sind auf HDR-Bildschirmen nicht mehr heller</translation>
    </message>
    <message>
        <source>the result of %1 x %2 pixels would be above the limit of %3 megapixels</source>
        <translation>das Ergebnis von %1 x %2 Pixeln läge über der Grenze von %3 Megapixeln</translation>
    </message>
    <message>
        <source>%1 files cannot hold a colour profile; the result is sRGB</source>
        <translation>%1-Dateien können kein Farbprofil enthalten; das Ergebnis ist sRGB</translation>
    </message>
    <message>
        <source>the result is sRGB instead of CMYK</source>
        <translation>das Ergebnis ist sRGB statt CMYK</translation>
    </message>
    <message>
        <source>the file is stored in a way that its decoder cannot read</source>
        <translation>die Datei ist in einer Form gespeichert, die der Decoder nicht lesen kann</translation>
    </message>
    <message>
        <source>the file ends before the picture is complete</source>
        <translation>die Datei endet, bevor das Bild vollständig ist</translation>
    </message>
    <message>
        <source>the file is damaged after %1 % of the picture</source>
        <translation>die Datei ist nach %1 % des Bildes beschädigt</translation>
    </message>
    <message>
        <source>the file is damaged; no part of the picture can be read</source>
        <translation>die Datei ist beschädigt; kein Teil des Bildes ist lesbar</translation>
    </message>
    <message>
        <source>the file is damaged; its header cannot be read</source>
        <translation>die Datei ist beschädigt; ihr Kopf ist nicht lesbar</translation>
    </message>
    <message>
        <source>it needs more memory than a worker may use</source>
        <translation>das Bild benötigt mehr Speicher, als ein Worker-Prozess nutzen darf</translation>
    </message>
    <message>
        <source>its data make no sense</source>
        <translation>die Daten ergeben keinen Sinn</translation>
    </message>
    <message>
        <source>the picture cannot be processed</source>
        <translation>das Bild kann nicht verarbeitet werden</translation>
    </message>
    <message>
        <source>the job cannot be read</source>
        <translation>der Auftrag kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>no worker can be started to look at the pictures: %1</source>
        <translation>es kann kein Worker-Prozess gestartet werden, um die Bilder anzusehen: %1</translation>
    </message>
    <message>
        <source>the folder cannot be opened</source>
        <translation>der Ordner kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 is a dangling link</source>
        <translation>%1 ist ein Link ohne Ziel</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder</source>
        <translation>%1 ist weder eine Datei noch ein Ordner</translation>
    </message>
    <message>
        <source>%1 is in the job already.</source>
        <translation>%1 ist bereits im Auftrag.</translation>
    </message>
    <message>
        <source>%1 is nested too deeply for a job.</source>
        <translation>%1 ist für einen Auftrag zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>%1 has a name that is not valid UTF-8; rename it to use it.</source>
        <translation>%1 hat einen Namen, der kein gültiges UTF-8 ist; bitte zur Verwendung umbenennen.</translation>
    </message>
    <message>
        <source>%1 has a name with a character that a job cannot hold; rename it to use it.</source>
        <translation>%1 hat einen Namen mit einem Zeichen, das ein Auftrag nicht enthalten kann; bitte zur Verwendung umbenennen.</translation>
    </message>
    <message>
        <source>%1 is a dangling link.</source>
        <translation>%1 ist ein Link ohne Ziel.</translation>
    </message>
    <message>
        <source>%1 leads back to %2; it is not followed.</source>
        <translation>%1 führt zurück zu %2; dem Link wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>%1 is the folder %2, which is in the job already.</source>
        <translation>%1 ist der Ordner %2, der bereits im Auftrag ist.</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 wird ignoriert: %2</translation>
    </message>
    <message>
        <source>its results go to %1</source>
        <translation>die Ergebnisse gehen nach %1</translation>
    </message>
    <message>
        <source>there is no interrupted run in %1</source>
        <translation>in %1 gibt es keinen unterbrochenen Lauf</translation>
    </message>
    <message>
        <source>the run that was interrupted in %1 is of another job: its inputs, options or files differ</source>
        <translation>der in %1 unterbrochene Lauf gehört zu einem anderen Auftrag: Eingaben, Optionen oder Dateien sind anders</translation>
    </message>
    <message>
        <source>%1 is damaged; remove it to start the run anew</source>
        <translation>%1 ist beschädigt; entfernen Sie die Datei, um den Lauf neu zu beginnen</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>its XML is nested too deeply, or declares what a job must not declare</source>
        <translation>das XML ist zu tief verschachtelt oder deklariert, was ein Auftrag nicht deklarieren darf</translation>
    </message>
    <message>
        <source>it does not begin with &lt;!DOCTYPE batch&gt;</source>
        <translation>die Datei beginnt nicht mit &lt;!DOCTYPE batch&gt;</translation>
    </message>
    <message>
        <source>the job %1 cannot be read: %2</source>
        <translation>der Auftrag %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the job %1 is larger than %2 MiB</source>
        <translation>der Auftrag %1 ist größer als %2 MiB</translation>
    </message>
    <message>
        <source>%1 is not a batch job: it is not UTF-8 text</source>
        <translation>%1 ist kein Stapelauftrag: die Datei ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>%1 is not a batch job: %2</source>
        <translation>%1 ist kein Stapelauftrag: %2</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 existiert bereits</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>no output folder</source>
        <translation>kein Ausgabeordner</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>keine Bilder</translation>
    </message>
    <message>
        <source>the run in %1 has just been finished</source>
        <translation>der Lauf in %1 wurde soeben beendet</translation>
    </message>
    <message>
        <source>it is still running</source>
        <translation>er läuft noch</translation>
    </message>
    <message>
        <source>the folder cannot be written</source>
        <translation>in den Ordner kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the same job is already running into %1</source>
        <translation>derselbe Auftrag läuft bereits nach %1</translation>
    </message>
    <message>
        <source>the run in %1 cannot be resumed: %2</source>
        <translation>der Lauf in %1 kann nicht fortgesetzt werden: %2</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; must end with .csv or .json</source>
        <translation>der Name „%1“ muss mit .csv oder .json enden</translation>
    </message>
    <message>
        <source>it begins like a %1 file, but its extension is not known</source>
        <translation>die Datei beginnt wie eine %1-Datei, aber ihre Endung ist nicht bekannt</translation>
    </message>
    <message>
        <source>the report %1 cannot be written: %2</source>
        <translation>der Bericht %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>written with a warning: %1</source>
        <translation>mit einer Warnung geschrieben: %1</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Datei existiert bereits</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Ordner</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Ordner</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Speicherplatz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Unterbrochene Pipe</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele symbolische Links hintereinander</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>how many of the darkest and of the brightest pixels may clip</source>
        <translation>wie viele der dunkelsten und hellsten Pixel beschnitten werden dürfen</translation>
    </message>
    <message>
        <source>together keeps colours as they are; each for itself removes a cast</source>
        <translation>together erhält die Farben; each entfernt einen Farbstich</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>standard deviation of the blur in the result; 0 does nothing</source>
        <translation>Standardabweichung der Unschärfe im Ergebnis; 0 bewirkt nichts</translation>
    </message>
    <message>
        <source>width on the left</source>
        <translation>Breite links</translation>
    </message>
    <message>
        <source>height at the top</source>
        <translation>Höhe oben</translation>
    </message>
    <message>
        <source>width on the right</source>
        <translation>Breite rechts</translation>
    </message>
    <message>
        <source>height at the bottom</source>
        <translation>Höhe unten</translation>
    </message>
    <message>
        <source>of the four; percent is of the picture&apos;s short side, at most 100</source>
        <translation>der vier; percent bezieht sich auf die kurze Bildseite, höchstens 100</translation>
    </message>
    <message>
        <source>of the border; with transparency the result has an alpha channel</source>
        <translation>des Randes; mit Transparenz hat das Ergebnis einen Alphakanal</translation>
    </message>
    <message>
        <source>shift of every value; 100 turns black into white</source>
        <translation>Verschiebung aller Werte; 100 macht Schwarz zu Weiß</translation>
    </message>
    <message>
        <source>-100 is flat grey, 50 doubles all differences</source>
        <translation>-100 ist einheitliches Grau, 50 verdoppelt alle Unterschiede</translation>
    </message>
    <message>
        <source>below 0 softens</source>
        <translation>unter 0 wird das Bild weicher</translation>
    </message>
    <message>
        <source>size of the structures in the result</source>
        <translation>Größe der Strukturen im Ergebnis</translation>
    </message>
    <message>
        <source>which values are mapped; a grey picture has no single colours and stays as it is</source>
        <translation>welche Werte abgebildet werden; ein Graustufenbild hat keine einzelnen Farben und bleibt unverändert</translation>
    </message>
    <message>
        <source>differences of this size begin to count as edges</source>
        <translation>ab dieser Größe gelten Unterschiede als Kanten</translation>
    </message>
    <message>
        <source>how far neighbours are taken in, in the result</source>
        <translation>wie weit Nachbarpixel einbezogen werden, im Ergebnis</translation>
    </message>
    <message>
        <source>stops</source>
        <translation>Blendenstufen</translation>
    </message>
    <message>
        <source>how much; 1 doubles the light</source>
        <translation>wie viel; 1 verdoppelt das Licht</translation>
    </message>
    <message>
        <source>horizontal swaps left and right</source>
        <translation>horizontal vertauscht links und rechts</translation>
    </message>
    <message>
        <source>luminance weighs the light, luma the stored values, average is their plain mean</source>
        <translation>luminance gewichtet das Licht, luma die gespeicherten Werte, average ist ihr einfacher Mittelwert</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>120 turns red towards green</source>
        <translation>120 dreht Rot nach Grün</translation>
    </message>
    <message>
        <source>this value and those below become black</source>
        <translation>dieser und niedrigere Werte werden schwarz</translation>
    </message>
    <message>
        <source>this value and those above become white</source>
        <translation>dieser und höhere Werte werden weiß</translation>
    </message>
    <message>
        <source>above 1 brightens the tones between them</source>
        <translation>über 1 hellt die Töne dazwischen auf</translation>
    </message>
    <message>
        <source>the .cube file, with a table of one or three dimensions</source>
        <translation>die .cube-Datei mit einer ein- oder dreidimensionalen Tabelle</translation>
    </message>
    <message>
        <source>0 leaves the picture as it is</source>
        <translation>0 lässt das Bild unverändert</translation>
    </message>
    <message>
        <source>between the entries of a table of three dimensions</source>
        <translation>zwischen den Einträgen einer dreidimensionalen Tabelle</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>steps from black to white</source>
        <translation>Stufen von Schwarz bis Weiß</translation>
    </message>
    <message>
        <source>multiples of 90 keep every pixel as it is</source>
        <translation>Vielfache von 90 erhalten jedes Pixel unverändert</translation>
    </message>
    <message>
        <source>fills the corners; with transparency the result has an alpha channel</source>
        <translation>füllt die Ecken; mit Transparenz hat das Ergebnis einen Alphakanal</translation>
    </message>
    <message>
        <source>-100 leaves grey, 100 doubles the strength</source>
        <translation>-100 lässt nur Grau übrig, 100 verdoppelt die Sättigung</translation>
    </message>
    <message>
        <source>standard deviation of the mask in the result</source>
        <translation>Standardabweichung der Maske im Ergebnis</translation>
    </message>
    <message>
        <source>how much of the difference to the mask is added</source>
        <translation>wie viel vom Unterschied zur Maske hinzukommt</translation>
    </message>
    <message>
        <source>differences below stay as they are</source>
        <translation>kleinere Unterschiede bleiben unverändert</translation>
    </message>
    <message>
        <source>how much the weakest colours change</source>
        <translation>wie stark sich die schwächsten Farben ändern</translation>
    </message>
    <message>
        <source>of the corners; -100 is black, 100 is white</source>
        <translation>der Ecken; -100 ist schwarz, 100 ist weiß</translation>
    </message>
    <message>
        <source>where it begins on the way from the centre to a corner</source>
        <translation>wo sie auf dem Weg von der Mitte zur Ecke beginnt</translation>
    </message>
    <message>
        <source>length of the transition on the same way</source>
        <translation>Länge des Übergangs auf demselben Weg</translation>
    </message>
    <message>
        <source>the picture that is laid over, best with transparency</source>
        <translation>das Bild, das darübergelegt wird, am besten mit Transparenz</translation>
    </message>
    <message>
        <source>width of the mark; in percent of the picture&apos;s width</source>
        <translation>Breite des Wasserzeichens; in Prozent der Bildbreite</translation>
    </message>
    <message>
        <source>space to the sides of the picture, and between tiles</source>
        <translation>Abstand zu den Bildrändern und zwischen Wiederholungen</translation>
    </message>
    <message>
        <source>of size and margin; a margin in percent is of the picture&apos;s short side; percent is at most 100</source>
        <translation>von size und margin; margin in Prozent bezieht sich auf die kurze Bildseite; höchstens 100 Prozent</translation>
    </message>
    <message>
        <source>0 is invisible</source>
        <translation>0 ist unsichtbar</translation>
    </message>
    <message>
        <source>where the mark stands</source>
        <translation>wo das Wasserzeichen steht</translation>
    </message>
    <message>
        <source>repeats the mark over the whole picture</source>
        <translation>wiederholt das Wasserzeichen über das ganze Bild</translation>
    </message>
    <message>
        <source>of the letters</source>
        <translation>der Buchstaben</translation>
    </message>
    <message>
        <source>height of a line of text; in percent of the picture&apos;s short side</source>
        <translation>Höhe einer Textzeile; in Prozent der kurzen Bildseite</translation>
    </message>
    <message>
        <source>above 0 warmer, below 0 cooler</source>
        <translation>über 0 wärmer, unter 0 kühler</translation>
    </message>
    <message>
        <source>above 0 more magenta, below 0 greener</source>
        <translation>über 0 mehr Magenta, unter 0 grüner</translation>
    </message>
    <message>
        <source>keep every pixel, but for a last step of rounding</source>
        <translation>jedes Pixel bis auf eine letzte Rundung erhalten</translation>
    </message>
    <message>
        <source>higher is slower and better</source>
        <translation>höher ist langsamer und besser</translation>
    </message>
    <message>
        <source>keep every pixel as it is</source>
        <translation>jedes Pixel unverändert erhalten</translation>
    </message>
    <message>
        <source>higher is better and larger</source>
        <translation>höher ist besser und größer</translation>
    </message>
    <message>
        <source>shows a coarse picture first while it loads</source>
        <translation>zeigt beim Laden zuerst ein grobes Bild</translation>
    </message>
    <message>
        <source>resolution of colour; auto is 4:4:4 from quality 90</source>
        <translation>Auflösung der Farbe; auto ist 4:4:4 ab Qualität 90</translation>
    </message>
    <message>
        <source>bits a channel; by default those of the input, as far as the format has them: %1</source>
        <translation>Bit pro Kanal; Standard sind die der Eingabe, soweit das Format sie kennt: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>colour under transparency that the format cannot hold</source>
        <translation>Farbe unter Transparenz, die das Format nicht speichern kann</translation>
    </message>
    <message>
        <source>gives the result the input&apos;s modification time</source>
        <translation>gibt dem Ergebnis das Änderungsdatum der Eingabe</translation>
    </message>
    <message>
        <source>keep every pixel that can be seen</source>
        <translation>jedes sichtbare Pixel erhalten</translation>
    </message>
    <message>
        <source>which metadata is kept; copyright is creator and rights from all of it</source>
        <translation>welche Metadaten erhalten bleiben; copyright sind Urheber und Rechte aus allen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both be &quot;%3&quot;</source>
        <translation>„%1“ und „%2“ hießen beide „%3“</translation>
    </message>
    <message>
        <source>and so on</source>
        <translation>und so weiter</translation>
    </message>
    <message>
        <source>1 result would get the name of another</source>
        <translation>1 Ergebnis bekäme den Namen eines anderen</translation>
    </message>
    <message>
        <source>%1 results would get the names of others</source>
        <translation>%1 Ergebnisse bekämen die Namen anderer</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>das Attribut „%1“ von „%2“</translation>
    </message>
    <message>
        <source>the element &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>das Element „%1“ in „%2“</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #rrggbbaa, or a name such as white</source>
        <translation>eine Farbe: #rrggbb, #rrggbbaa oder ein Name wie white</translation>
    </message>
    <message>
        <source>%1, joined with +, or none</source>
        <translation>%1, verbunden durch +, oder none</translation>
    </message>
    <message>
        <source>2 to %1 points x:y with ascending x, joined with +, numbers %2</source>
        <translation>2 bis %1 Punkte x:y mit steigendem x, verbunden durch +, Zahlen %2</translation>
    </message>
    <message>
        <source>workers: not confined on this system</source>
        <translation>Worker-Prozesse: auf diesem System nicht eingeschränkt</translation>
    </message>
    <message>
        <source>files of workers: not restricted, as the kernel has no Landlock</source>
        <translation>Dateien der Worker-Prozesse: nicht eingeschränkt, da der Kernel kein Landlock hat</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, with scopes for signals and sockets</source>
        <translation>Dateien der Worker-Prozesse: die des Auftrags, durch Landlock %1, mit Bereichen für Signale und Sockets</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, without scopes for signals and sockets</source>
        <translation>Dateien der Worker-Prozesse: die des Auftrags, durch Landlock %1, ohne Bereiche für Signale und Sockets</translation>
    </message>
    <message>
        <source>system calls of workers: a list of allowed ones, by seccomp</source>
        <translation>Systemaufrufe der Worker-Prozesse: eine Liste erlaubter, durch seccomp</translation>
    </message>
    <message>
        <source>system calls of workers: not restricted, as the kernel has no seccomp</source>
        <translation>Systemaufrufe der Worker-Prozesse: nicht eingeschränkt, da der Kernel kein seccomp hat</translation>
    </message>
    <message>
        <source>memory of the supervisor: closed to other processes of the user (not dumpable)</source>
        <translation>Speicher des Supervisors: für andere Prozesse des Benutzers gesperrt (nicht auslesbar)</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2, which is not kept; keep=copyright keeps it</source>
        <translation>der Copyright-Vermerk „%1“ steht nur in %2, das nicht erhalten bleibt; keep=copyright erhält ihn</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2 and %3, which are not kept; keep=copyright keeps it</source>
        <translation>der Copyright-Vermerk „%1“ steht nur in %2 und %3, die nicht erhalten bleiben; keep=copyright erhält ihn</translation>
    </message>
    <message>
        <source>the format of each input</source>
        <translation>das Format jeder Eingabe</translation>
    </message>
    <message>
        <source>--dry-run and %1 cannot be combined; remove one of them</source>
        <translation>--dry-run und %1 sind nicht kombinierbar; eines davon entfernen</translation>
    </message>
    <message>
        <source>%1 and --preset exclude each other: give one of them to start from</source>
        <translation>%1 und --preset schließen einander aus: nur eines davon als Ausgangspunkt angeben</translation>
    </message>
    <message>
        <source>no file name for the job: velkora-batch create JOB.xml INPUT...</source>
        <translation>kein Dateiname für den Auftrag: velkora-batch create JOB.xml INPUT...</translation>
    </message>
    <message>
        <source>the first argument must be the file of the job, with a name that ends with .xml, but is &quot;%1&quot;</source>
        <translation>das erste Argument muss die Datei des Auftrags sein, mit einem Namen auf .xml, ist aber „%1“</translation>
    </message>
    <message>
        <source>there is no file &quot;-&quot;; to read names from standard input, use --files-from -</source>
        <translation>die Datei „-“ gibt es nicht; --files-from - liest Namen von der Standardeingabe</translation>
    </message>
    <message>
        <source>--null needs %1</source>
        <translation>--null benötigt %1</translation>
    </message>
    <message>
        <source>%1 -: standard input is a terminal; pipe a list into it, or name a file</source>
        <translation>%1 -: die Standardeingabe ist ein Terminal; eine Liste hineinleiten oder eine Datei angeben</translation>
    </message>
    <message>
        <source>%1 cannot be used with --in-place without --output: results go to the folders of their originals</source>
        <translation>%1 ist mit --in-place ohne --output nicht möglich: Ergebnisse kommen in die Ordner ihrer Originale</translation>
    </message>
    <message>
        <source>no pictures: %1 matches nothing</source>
        <translation>keine Bilder: %1 trifft auf nichts zu</translation>
    </message>
    <message>
        <source>no pictures: %1 and %2 match nothing</source>
        <translation>keine Bilder: %1 und %2 treffen auf nichts zu</translation>
    </message>
    <message>
        <source>no inputs</source>
        <translation>keine Eingaben</translation>
    </message>
    <message>
        <source>%1 is not for &quot;presets %2&quot;, but for &quot;presets %3&quot;</source>
        <translation>%1 gehört nicht zu „presets %2“, sondern zu „presets %3“</translation>
    </message>
    <message>
        <source>the name of the preset is missing: velkora-batch presets %1 NAME</source>
        <translation>der Name der Vorgabe fehlt: velkora-batch presets %1 NAME</translation>
    </message>
    <message>
        <source>a preset has no inputs, but &quot;%1&quot; is given behind its name</source>
        <translation>eine Vorgabe hat keine Eingaben, aber nach ihrem Namen steht „%1“</translation>
    </message>
    <message>
        <source>one preset at a time, but &quot;%1&quot; is given behind its name</source>
        <translation>nur eine Vorgabe auf einmal, aber nach ihrem Namen steht „%1“</translation>
    </message>
    <message>
        <source>list takes no name, but &quot;%1&quot; is given; &quot;velkora-batch show --preset NAME&quot; prints a preset</source>
        <translation>list nimmt keinen Namen, aber „%1“ ist angegeben; „velkora-batch show --preset NAME“ zeigt eine Vorgabe</translation>
    </message>
    <message>
        <source>%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it</source>
        <translation>%1/BatchExceptionPolicy.ini enthält den ungültigen Wert %2; %3 hat Vorrang davor</translation>
    </message>
    <message>
        <source>unknown option %1; %2</source>
        <translation>unbekannte Option %1; %2</translation>
    </message>
    <message>
        <source>it is an option of %1; &quot;velkora-batch %2 --help&quot; lists the options</source>
        <translation>sie gehört zu %1; „velkora-batch %2 --help“ listet die Optionen auf</translation>
    </message>
    <message>
        <source>&quot;velkora-batch %1 --help&quot; lists the options</source>
        <translation>„velkora-batch %1 --help“ listet die Optionen auf</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>%1 is a folder, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 ist ein Ordner und kein Befehl; meinten Sie „velkora-batch run %1“?</translation>
    </message>
    <message>
        <source>%1 is a file, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 ist eine Datei und kein Befehl; meinten Sie „velkora-batch run %1“?</translation>
    </message>
    <message>
        <source>%1 is no command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 ist kein Befehl; meinten Sie „velkora-batch run %1“?</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; did you mean &quot;velkora-batch %2&quot;?</source>
        <translation>unbekannter Befehl „%1“; meinten Sie „velkora-batch %2“?</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>unbekannter Befehl: %1</translation>
    </message>
    <message>
        <source>no command: use one of %1, or &quot;velkora-batch --help&quot;</source>
        <translation>kein Befehl: möglich sind %1 oder „velkora-batch --help“</translation>
    </message>
    <message>
        <source>%1 is not allowed before the command, only %2</source>
        <translation>%1 ist vor dem Befehl nicht erlaubt, nur %2</translation>
    </message>
    <message>
        <source>help takes one command, but got %1</source>
        <translation>help nimmt einen Befehl, angegeben sind aber %1</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, contains a character that a job cannot hold</source>
        <translation>Argument %1, „%2“, enthält ein Zeichen, das ein Auftrag nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>%1 is a switch and takes no value; type %1 alone, or leave it out</source>
        <translation>%1 ist ein Schalter ohne Wert; nur %1 eingeben oder weglassen</translation>
    </message>
    <message>
        <source>an input of %1 has an empty name</source>
        <translation>eine Eingabe von %1 hat einen leeren Namen</translation>
    </message>
    <message>
        <source>%1 is given %2 times, but takes one value; remove &quot;%3&quot; or &quot;%4&quot;</source>
        <translation>%1 steht %2-mal da, nimmt aber nur einen Wert; „%3“ oder „%4“ entfernen</translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation>%1: der Wert %2 fehlt</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingaben</translation>
    </message>
    <message>
        <source>drops the inputs of the saved job first</source>
        <translation>verwirft zuerst die Eingaben des gespeicherten Auftrags</translation>
    </message>
    <message>
        <source>also takes the files and folders that a file names, one a line, or standard input for &quot;-&quot;. Relative names start at the current folder</source>
        <translation>nimmt auch die Dateien und Ordner, die eine Datei nennt, je Zeile einen Namen; „-“ steht für die Standardeingabe. Relative Namen beginnen beim aktuellen Ordner</translation>
    </message>
    <message>
        <source>the names of --files-from are separated by NUL, not by line ends</source>
        <translation>die Namen von --files-from sind durch NUL getrennt, nicht durch Zeilenenden</translation>
    </message>
    <message>
        <source>takes only files whose names match, such as &quot;*.{nef,cr2}&quot;, or whose paths in the given folders match, such as &quot;2024/**/*.jpg&quot;; default: all that can be read. Files that are given by name are always taken</source>
        <translation>nimmt nur Dateien mit passenden Namen wie „*.{nef,cr2}“ oder mit passenden Pfaden in den angegebenen Ordnern wie „2024/**/*.jpg“; Standard: alle lesbaren. Namentlich angegebene Dateien werden immer genommen</translation>
    </message>
    <message>
        <source>leaves out files and folders whose names or paths match, inside the given folders</source>
        <translation>lässt in den angegebenen Ordnern Dateien und Ordner mit passenden Namen oder Pfaden aus</translation>
    </message>
    <message>
        <source>leaves out folders inside folders</source>
        <translation>lässt Unterordner aus</translation>
    </message>
    <message>
        <source>includes files and folders whose names begin with a dot</source>
        <translation>nimmt auch Dateien und Ordner, deren Namen mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>the order of the pictures, which numbers in names follow: taken, by capture time, and by the file&apos;s own time where there is none; name, folder by folder; given, as the command line names them. The default is name, or the order of the saved job</source>
        <translation>die Reihenfolge der Bilder, der Nummern in Namen folgen: taken, nach Aufnahmezeit, ohne diese nach der Zeit der Datei; name, Ordner für Ordner; given, wie auf der Befehlszeile. Standard ist name oder die Reihenfolge des gespeicherten Auftrags</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>prints problems only</source>
        <translation>gibt nur Probleme aus</translation>
    </message>
    <message>
        <source>also prints details for finding faults</source>
        <translation>gibt auch Einzelheiten zur Fehlersuche aus</translation>
    </message>
    <message>
        <source>prints this text</source>
        <translation>gibt diesen Text aus</translation>
    </message>
    <message>
        <source>prints the help of a command</source>
        <translation>gibt die Hilfe zu einem Befehl aus</translation>
    </message>
    <message>
        <source>prints JSON</source>
        <translation>gibt JSON aus</translation>
    </message>
    <message>
        <source>writes a job with these inputs and options to a file, or to standard output for &quot;-&quot;</source>
        <translation>schreibt einen Auftrag mit diesen Eingaben und Optionen in eine Datei, bei „-“ auf die Standardausgabe</translation>
    </message>
    <message>
        <source>prints a job: its inputs as a tree, its effects, and its output in the words of the options</source>
        <translation>zeigt einen Auftrag: seine Eingaben als Baum, seine Effekte und seine Ausgabe in den Worten der Optionen</translation>
    </message>
    <message>
        <source>prints every input with its output and its size in pixels, and writes nothing. A problem is printed in brackets, with what the policy would do about it. Exit status: 1 when there are problems</source>
        <translation>zeigt jede Eingabe mit ihrer Ausgabe und ihrer Größe in Pixeln und schreibt nichts. Ein Problem steht in Klammern, mit dem, was die Regel vorsieht. Exit-Status: 1, wenn es Probleme gibt</translation>
    </message>
    <message>
        <source>does not look at every picture for its size in pixels, which takes time for many</source>
        <translation>prüft nicht jedes Bild auf seine Größe in Pixeln, was bei vielen dauert</translation>
    </message>
    <message>
        <source>prints one JSON object for each input</source>
        <translation>gibt je Eingabe ein JSON-Objekt aus</translation>
    </message>
    <message>
        <source>lists the effects with their parameters</source>
        <translation>listet die Effekte mit ihren Parametern auf</translation>
    </message>
    <message>
        <source>lists the output formats with their options, and the files that can be read</source>
        <translation>listet die Ausgabeformate mit ihren Optionen und die lesbaren Dateien auf</translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other; remove one of them</source>
        <translation>%1 und %2 widersprechen einander; eines davon entfernen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT with an optional unit, such as 800x600, 15x10cm or 6x4in</source>
        <translation>„%1“ hat nicht die Form WIDTHxHEIGHT, eventuell mit einer Einheit, wie 800x600, 15x10cm oder 6x4in</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers, such as %3; or add a unit, as in %4cm</source>
        <translation>„%1“ bedeutet %2 Pixel, denn ein Punkt leitet Dezimalstellen ein, Pixel sind aber ganze Zahlen wie %3; oder eine Einheit anfügen wie in %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large; each side must be from 1 to %2 pixels</source>
        <translation>„%1“ ist zu groß; jede Seite muss 1 bis %2 Pixel lang sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a resolution; add --resolution, as in --resolution 300</source>
        <translation>„%1“ benötigt eine Auflösung; --resolution anfügen, etwa --resolution 300</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 pixels at %3 dots per inch; each side must be from 1 to %4</source>
        <translation>„%1“ sind %2 Pixel bei %3 Punkten pro Zoll; jede Seite muss 1 bis %4 Pixel lang sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels, but the size is %4: type %5 for the unit of the size, or %6 for pixels</source>
        <translation>„%1“ sind %2 x %3 Pixel, die Größe ist aber %4: %5 für die Einheit der Größe eingeben oder %6 für Pixel</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; needs a size, such as %1:3x2%2</source>
        <translation>„%1:%2“ benötigt eine Größe, etwa %1:3x2%2</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; has a unit, but a ratio has no unit: type %1:%3, or fill:%2 for that size</source>
        <translation>„%1:%2“ hat eine Einheit, ein Seitenverhältnis aber nicht: %1:%3 eingeben oder fill:%2 für diese Größe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with &quot;!&quot;, but only ratio and interesting turn with the picture; remove the &quot;!&quot;</source>
        <translation>„%1“ endet mit „!“, aber nur ratio und interesting drehen sich mit dem Bild; das „!“ entfernen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point, as in %2</source>
        <translation>„%1“ hat ein Komma; Dezimalstellen stehen nach einem Punkt, wie in %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no size</source>
        <translation>„%1“ nimmt keine Größe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a size, such as %1:3x2</source>
        <translation>„%1“ benötigt eine Größe, etwa %1:3x2</translation>
    </message>
    <message>
        <source>Pictures for the web, at most 1600 pixels long</source>
        <translation>Bilder für das Web, höchstens 1600 Pixel lang</translation>
    </message>
    <message>
        <source>Names by capture date, in a folder for each day</source>
        <translation>Namen nach Aufnahmedatum, ein Ordner je Tag</translation>
    </message>
    <message>
        <source>A saved job over other pictures</source>
        <translation>Ein gespeicherter Auftrag für andere Bilder</translation>
    </message>
    <message>
        <source>Files that another program lists</source>
        <translation>Dateien, die ein anderes Programm auflistet</translation>
    </message>
    <message>
        <source>Camera RAW files in all subfolders</source>
        <translation>RAW-Dateien in allen Unterordnern</translation>
    </message>
    <message>
        <source>What would be written</source>
        <translation>Was geschrieben würde</translation>
    </message>
    <message>
        <source>A preset over other pictures</source>
        <translation>Eine Vorgabe für andere Bilder</translation>
    </message>
    <message>
        <source>A run that was interrupted</source>
        <translation>Ein unterbrochener Lauf</translation>
    </message>
    <message>
        <source>A job for pictures to come</source>
        <translation>Ein Auftrag für künftige Bilder</translation>
    </message>
    <message>
        <source>A job with one value changed</source>
        <translation>Ein Auftrag mit einem geänderten Wert</translation>
    </message>
    <message>
        <source>A saved job, in the words of the options</source>
        <translation>Ein gespeicherter Auftrag in den Worten der Optionen</translation>
    </message>
    <message>
        <source>Every result&apos;s name, and what is in the way</source>
        <translation>Der Name jedes Ergebnisses, und was im Weg steht</translation>
    </message>
    <message>
        <source>The same for programs</source>
        <translation>Dasselbe für Programme</translation>
    </message>
    <message>
        <source>One effect with its parameters</source>
        <translation>Ein Effekt mit seinen Parametern</translation>
    </message>
    <message>
        <source>One format with its options</source>
        <translation>Ein Format mit seinen Optionen</translation>
    </message>
    <message>
        <source>folders are always read with their subfolders, so leave it out</source>
        <translation>Ordner werden immer mit Unterordnern gelesen, daher weglassen</translation>
    </message>
    <message>
        <source>name files and folders without an option</source>
        <translation>Dateien und Ordner ohne Option angeben</translation>
    </message>
    <message>
        <source>use --files-from FILE, or --files-from -</source>
        <translation>--files-from FILE oder --files-from - verwenden</translation>
    </message>
    <message>
        <source>use --hidden for files and folders whose names begin with a dot</source>
        <translation>--hidden nimmt Dateien und Ordner auf, deren Namen mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>use --quality N, or --format-option compression=WORD or compressionLevel=N</source>
        <translation>--quality N oder --format-option compression=WORD oder compressionLevel=N verwenden</translation>
    </message>
    <message>
        <source>metadata is kept unless --format-option keep=WORD+WORD says which</source>
        <translation>Metadaten bleiben erhalten, wenn nicht --format-option keep=WORD+WORD sagt, welche</translation>
    </message>
    <message>
        <source>use --size %1, with % for a percentage</source>
        <translation>--size %1 verwenden, mit % für Prozent</translation>
    </message>
    <message>
        <source>pictures are always turned upright, so leave it out</source>
        <translation>Bilder werden immer aufrecht gedreht, daher weglassen</translation>
    </message>
    <message>
        <source>use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE</source>
        <translation>--effect watermark-text:text=TEXT oder --effect watermark-image:file=FILE verwenden</translation>
    </message>
    <message>
        <source>use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken</source>
        <translation>--name, --prefix und --suffix verwenden, oder --on-name-exists rename für vergebene Namen</translation>
    </message>
    <message>
        <source>&quot;velkora-batch plan&quot; prints what a run would write</source>
        <translation>„velkora-batch plan“ zeigt, was ein Lauf schreiben würde</translation>
    </message>
    <message>
        <source>name a saved job as the first input</source>
        <translation>einen gespeicherten Auftrag als erste Eingabe angeben</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch formats&quot;</source>
        <translation>„velkora-batch formats“ verwenden</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch effects&quot;</source>
        <translation>„velkora-batch effects“ verwenden</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch --version&quot;</source>
        <translation>„velkora-batch --version“ verwenden</translation>
    </message>
    <message>
        <source>use --%1</source>
        <translation>--%1 verwenden</translation>
    </message>
    <message>
        <source>use --effect %1; &quot;velkora-batch effects %1&quot; lists its parameters</source>
        <translation>--effect %1 verwenden; „velkora-batch effects %1“ listet die Parameter auf</translation>
    </message>
    <message>
        <source>processes pictures in batches: effects, size, crop, frame, format and names</source>
        <translation>verarbeitet Bilder stapelweise: Effekte, Größe, Zuschnitt, Rahmen, Format und Namen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a shadow; add --shadow</source>
        <translation>„%1“ bewirkt nichts ohne einen Schatten; --shadow anfügen</translation>
    </message>
    <message>
        <source>%1 is not an ICC profile</source>
        <translation>%1 ist kein ICC-Profil</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>the name of the saved job</source>
        <translation>der Name des gespeicherten Auftrags</translation>
    </message>
    <message>
        <source>the folder for the results; it is created when it does not exist, and a relative one starts at the current folder</source>
        <translation>der Ordner für die Ergebnisse; er wird bei Bedarf angelegt, und ein relativer beginnt beim aktuellen Ordner</translation>
    </message>
    <message>
        <source>the name of the folder is empty</source>
        <translation>der Name des Ordners ist leer</translation>
    </message>
    <message>
        <source>the folders below it: flat, none; input, as in the inputs; date, by capture date, or that of the file where a picture has none</source>
        <translation>die Ordner darin: flat, keine; input, wie bei den Eingaben; date, nach Aufnahmedatum, ohne dieses nach dem der Datei</translation>
    </message>
    <message>
        <source>the format of results, by name or extension; Original keeps that of each input. Changing the format of a saved job drops its format options</source>
        <translation>das Format der Ergebnisse, nach Name oder Endung; Original behält das jeder Eingabe. Ein anderes Format als im gespeicherten Auftrag verwirft dessen Formatoptionen</translation>
    </message>
    <message>
        <source>an option of the format, such as quality=90; &quot;velkora-batch formats&quot; lists them</source>
        <translation>eine Option des Formats, etwa quality=90; „velkora-batch formats“ listet sie auf</translation>
    </message>
    <message>
        <source>an ICC profile to convert results to and to embed; none keeps each input&apos;s own</source>
        <translation>ein ICC-Profil, in das Ergebnisse umgewandelt werden und das eingebettet wird; none behält das jeder Eingabe</translation>
    </message>
    <message>
        <source>Names of results</source>
        <translation>Namen der Ergebnisse</translation>
    </message>
    <message>
        <source>what a name begins with; PART is the same as for --name</source>
        <translation>womit ein Name beginnt; PART ist wie bei --name</translation>
    </message>
    <message>
        <source>what a name ends with</source>
        <translation>womit ein Name endet</translation>
    </message>
    <message>
        <source>the text between prefix and middle</source>
        <translation>der Text zwischen Präfix und Mitte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a prefix; add --prefix</source>
        <translation>„%1“ bewirkt nichts ohne ein Präfix; --prefix anfügen</translation>
    </message>
    <message>
        <source>the text between middle and suffix</source>
        <translation>der Text zwischen Mitte und Suffix</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a suffix; add --suffix</source>
        <translation>„%1“ bewirkt nichts ohne ein Suffix; --suffix anfügen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a size, and this option says which pictures change; use --size %2</source>
        <translation>„%1“ ist eine Größe, diese Option sagt aber, welche Bilder sich ändern; --size %2 verwenden</translation>
    </message>
    <message>
        <source>Size and crop</source>
        <translation>Größe und Zuschnitt</translation>
    </message>
    <message>
        <source>scales pictures to a length of one side, such as 1600, 50%, 8in, 20cm or 200mm; none keeps the size</source>
        <translation>skaliert Bilder auf eine Seitenlänge wie 1600, 50%, 8in, 20cm oder 200mm; none behält die Größe</translation>
    </message>
    <message>
        <source>the side that --size sets</source>
        <translation>die Seite, die --size bestimmt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a size; add --size</source>
        <translation>„%1“ bewirkt nichts ohne eine Größe; --size anfügen</translation>
    </message>
    <message>
        <source>which pictures --size changes: reduce, only larger ones (default); enlarge, only smaller ones; fit, both; none</source>
        <translation>welche Bilder --size ändert: reduce, nur größere (Standard); enlarge, nur kleinere; fit, beide; none</translation>
    </message>
    <message>
        <source>dots per inch, for lengths in in, cm and mm; also written into results</source>
        <translation>Punkte pro Zoll, für Längen in in, cm und mm; auch in Ergebnisse geschrieben</translation>
    </message>
    <message>
        <source>none; trim, cuts off a border of one colour; or with WIDTHxHEIGHT: ratio:3x2, the largest frame of that ratio, upright in upright pictures, or ratio:3x2!, never turned; interesting:3x2, the frame of that ratio that draws the eye; fill:800x600 or fill:15x10cm, scales to cover, then cuts; exact:800x600, that many pixels. in, cm and mm become pixels by --resolution</source>
        <translation>none; trim, schneidet einen einfarbigen Rand ab; oder mit WIDTHxHEIGHT: ratio:3x2, der größte Ausschnitt in diesem Verhältnis, bei Hochformat hochkant, oder ratio:3x2!, nie gedreht; interesting:3x2, der auffälligste Ausschnitt in diesem Verhältnis; fill:800x600 oder fill:15x10cm, skaliert füllend und schneidet dann; exact:800x600, genau so viele Pixel. in, cm und mm werden durch --resolution zu Pixeln</translation>
    </message>
    <message>
        <source>where ratio, fill and exact place the frame in the picture</source>
        <translation>wo ratio, fill und exact den Ausschnitt im Bild ansetzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without --crop ratio, fill or exact; add one of them</source>
        <translation>„%1“ bewirkt nichts ohne --crop ratio, fill oder exact; eines davon anfügen</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>puts pictures on a frame with margins in pixels: one number for all sides, or LEFT,TOP,RIGHT,BOTTOM; none removes the frame. Each of the options below adds a frame</source>
        <translation>setzt Bilder auf einen Rahmen mit Rändern in Pixeln: eine Zahl für alle Seiten oder LEFT,TOP,RIGHT,BOTTOM; none entfernt den Rahmen. Jede der folgenden Optionen fügt einen Rahmen hinzu</translation>
    </message>
    <message>
        <source>the size of the frame in pixels; picture: the size of each picture</source>
        <translation>die Größe des Rahmens in Pixeln; picture: die Größe jedes Bildes</translation>
    </message>
    <message>
        <source>turns the picture on its frame, clockwise</source>
        <translation>dreht das Bild auf seinem Rahmen, im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>the opacity of the picture</source>
        <translation>die Deckkraft des Bildes</translation>
    </message>
    <message>
        <source>how the picture is laid over its background</source>
        <translation>wie das Bild über seinen Hintergrund gelegt wird</translation>
    </message>
    <message>
        <source>the background of the frame: none; colour:#rrggbb; pattern:0 to pattern:7, with :PERCENT for its scale; image:FILE</source>
        <translation>der Hintergrund des Rahmens: none; colour:#rrggbb; pattern:0 bis pattern:7, mit :PERCENT für den Maßstab; image:FILE</translation>
    </message>
    <message>
        <source>the opacity of the background</source>
        <translation>die Deckkraft des Hintergrunds</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a background; add --background</source>
        <translation>„%1“ bewirkt nichts ohne einen Hintergrund; --background anfügen</translation>
    </message>
    <message>
        <source>the shadow of the picture: drop; glow, around it; none</source>
        <translation>der Schatten des Bildes: drop; glow, ringsum; none</translation>
    </message>
    <message>
        <source>#rrggbb or a name</source>
        <translation>#rrggbb oder ein Name</translation>
    </message>
    <message>
        <source>the opacity of the shadow</source>
        <translation>die Deckkraft des Schattens</translation>
    </message>
    <message>
        <source>where the light comes from: 0 from the right, 90 from above</source>
        <translation>woher das Licht kommt: 0 von rechts, 90 von oben</translation>
    </message>
    <message>
        <source>how far the shadow lies from the picture</source>
        <translation>wie weit der Schatten vom Bild entfernt liegt</translation>
    </message>
    <message>
        <source>how soft the shadow is</source>
        <translation>wie weich der Schatten ist</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>drops the effects of the saved job first</source>
        <translation>verwirft zuerst die Effekte des gespeicherten Auftrags</translation>
    </message>
    <message>
        <source>adds an effect after those of the job, such as blur:sigma=2. NAME:{JSON} works as well; off:NAME adds the effect disabled. &quot;velkora-batch effects&quot; lists all effects</source>
        <translation>fügt nach den Effekten des Auftrags einen Effekt hinzu, etwa blur:sigma=2. Auch NAME:{JSON} ist möglich; off:NAME fügt den Effekt abgeschaltet hinzu. „velkora-batch effects“ listet alle Effekte auf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length above 0 and up to %2, such as 1600, 50%, 8in, 20cm or 200mm; &quot;none&quot; keeps the size</source>
        <translation>„%1“ ist keine Länge über 0 und bis %2, wie 1600, 50%, 8in, 20cm oder 200mm; „none“ behält die Größe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; a size is one length, such as 1600 or 20.5cm</source>
        <translation>„%1“ hat ein Komma; eine Größe ist eine einzige Länge wie 1600 oder 20.5cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point: type %2</source>
        <translation>„%1“ hat ein Komma; Dezimalstellen stehen nach einem Punkt: %2 eingeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma, which no number has: type %2 for that many pixels, %3cm for decimals, or --crop fill:%4 for a width and a height</source>
        <translation>„%1“ hat ein Komma, das in keiner Zahl steht: %2 für so viele Pixel eingeben, %3cm für Dezimalstellen oder --crop fill:%4 für Breite und Höhe</translation>
    </message>
    <message>
        <source>type %1 for that many pixels</source>
        <translation>%1 für so viele Pixel eingeben</translation>
    </message>
    <message>
        <source>type %1 for that</source>
        <translation>dafür %1 eingeben</translation>
    </message>
    <message>
        <source>type 1</source>
        <translation>1 eingeben</translation>
    </message>
    <message>
        <source>type 1px</source>
        <translation>1px eingeben</translation>
    </message>
    <message>
        <source>type %1 or %2</source>
        <translation>%1 oder %2 eingeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a width and a height, but a size is the length of one side: type one of them, with --side to say which, or --crop fill:%2 for exactly that</source>
        <translation>„%1“ sind Breite und Höhe, eine Größe ist aber die Länge einer Seite: eine davon eingeben, dazu --side für die Seite, oder --crop fill:%2 für genau dieses Maß</translation>
    </message>
    <message>
        <source>%1 (unit %2)</source>
        <translation>%1 (Einheit %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form KEY=VALUE</source>
        <translation>„%1“ hat nicht die Form KEY=VALUE</translation>
    </message>
    <message>
        <source>it takes no parameters, but &quot;%1&quot; is given</source>
        <translation>er nimmt keine Parameter, aber „%1“ ist angegeben</translation>
    </message>
    <message>
        <source>unknown effect &quot;%1&quot;; the effects are %2</source>
        <translation>unbekannter Effekt „%1“; die Effekte sind %2</translation>
    </message>
    <message>
        <source>effect %1</source>
        <translation>Effekt %1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>Format %1</translation>
    </message>
    <message>
        <source>when a file is missing, damaged, too large or not a picture: skip it, stop the run, or ask</source>
        <translation>wenn eine Datei fehlt, beschädigt, zu groß oder kein Bild ist: skip überspringt sie, stop beendet den Lauf, ask fragt</translation>
    </message>
    <message>
        <source>when a result cannot be written, because of a full disk or missing rights: skip, stop or ask</source>
        <translation>wenn ein Ergebnis nicht geschrieben werden kann, weil der Datenträger voll ist oder Rechte fehlen: skip, stop oder ask</translation>
    </message>
    <message>
        <source>when an effect fails, or a picture takes too long or crashes its worker: skip, stop or ask</source>
        <translation>wenn ein Effekt fehlschlägt, ein Bild zu lange dauert oder seinen Worker-Prozess abstürzen lässt: skip, stop oder ask</translation>
    </message>
    <message>
        <source>when a result&apos;s name is taken, on disk, by another result or by a source: skip, overwrite, rename (&quot; (2)&quot; is appended) or ask</source>
        <translation>wenn der Name eines Ergebnisses vergeben ist, auf dem Datenträger, durch ein anderes Ergebnis oder eine Quelle: skip, overwrite, rename (hängt „ (2)“ an) oder ask</translation>
    </message>
    <message>
        <source>when a picture cannot be written in the wanted format: skip, stop, ask, or nearest, to write the nearest format that can hold it</source>
        <translation>wenn ein Bild nicht im gewünschten Format geschrieben werden kann: skip, stop, ask oder nearest für das nächstliegende Format, das es aufnehmen kann</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Ausnahmen</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them</source>
        <translation>geht von einer Vorgabe aus; „velkora-batch presets“ listet sie auf</translation>
    </message>
    <message>
        <source>the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)</source>
        <translation>der Ordner mit BatchExceptionPolicy.ini (Standardregeln) und presets/ (eigene Vorgaben)</translation>
    </message>
    <message>
        <source>starts from a saved job</source>
        <translation>geht von einem gespeicherten Auftrag aus</translation>
    </message>
    <message>
        <source>replaces an existing file</source>
        <translation>ersetzt eine vorhandene Datei</translation>
    </message>
    <message>
        <source>prints the list as JSON</source>
        <translation>gibt die Liste als JSON aus</translation>
    </message>
    <message>
        <source>lists the presets, saves the options as a preset, or removes one. A preset is a job without inputs that run, plan, show and create take by --preset NAME; a relative --output starts where it is run. Exit status: 1 when a preset cannot be used</source>
        <translation>listet die Vorgaben auf, speichert die Optionen als Vorgabe oder entfernt eine. Eine Vorgabe ist ein Auftrag ohne Eingaben, den run, plan, show und create mit --preset NAME nehmen; ein relatives --output beginnt dort, wo sie ausgeführt wird. Exit-Status: 1, wenn eine Vorgabe nicht verwendbar ist</translation>
    </message>
    <message>
        <source>%1 files have no quality; %2 have one</source>
        <translation>%1-Dateien haben keine Qualität; eine haben %2</translation>
    </message>
    <message>
        <source>the quality of results in formats that have one; the same as %1 %2=N</source>
        <translation>die Qualität der Ergebnisse in Formaten, die eine haben; dasselbe wie %1 %2=N</translation>
    </message>
    <message>
        <source>how many pictures are processed at a time; default: one for each core</source>
        <translation>wie viele Bilder gleichzeitig verarbeitet werden; Standard: eines je Kern</translation>
    </message>
    <message>
        <source>larger pictures are not read; default: 400</source>
        <translation>größere Bilder werden nicht gelesen; Standard: 400</translation>
    </message>
    <message>
        <source>memory that one picture may take; default: 2048</source>
        <translation>Speicher, den ein Bild belegen darf; Standard: 2048</translation>
    </message>
    <message>
        <source>time that one picture may take; default: 300</source>
        <translation>Zeit, die ein Bild brauchen darf; Standard: 300</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>lets results replace their own originals. Without --output, results go to the folders of their originals. Without this option no original is ever replaced</source>
        <translation>lässt Ergebnisse ihre eigenen Originale ersetzen. Ohne --output kommen Ergebnisse in die Ordner ihrer Originale. Ohne diese Option wird nie ein Original ersetzt</translation>
    </message>
    <message>
        <source>ends with 0, not with 5, when there is no picture among the inputs</source>
        <translation>endet mit 0 statt 5, wenn unter den Eingaben kein Bild ist</translation>
    </message>
    <message>
        <source>prints what the run would write, as &quot;velkora-batch plan&quot; does, and writes nothing</source>
        <translation>zeigt wie „velkora-batch plan“, was der Lauf schreiben würde, und schreibt nichts</translation>
    </message>
    <message>
        <source>writes the result of every input to a file, as CSV or JSON by the extension of its name</source>
        <translation>schreibt das Ergebnis jeder Eingabe in eine Datei, je nach Endung des Namens als CSV oder JSON</translation>
    </message>
    <message>
        <source>resumes the run that was interrupted in the output folder, with its job and its policies</source>
        <translation>setzt den Lauf fort, der im Ausgabeordner unterbrochen wurde, mit seinem Auftrag und seinen Regeln</translation>
    </message>
    <message>
        <source>says which run to resume if several were interrupted; --resume lists their names</source>
        <translation>sagt, welcher Lauf fortgesetzt wird, wenn mehrere unterbrochen wurden; --resume listet ihre Namen auf</translation>
    </message>
    <message>
        <source>counts a picture with a warning as failed; its result is kept</source>
        <translation>zählt ein Bild mit Warnung als fehlgeschlagen; sein Ergebnis bleibt</translation>
    </message>
    <message>
        <source>prints each event of the run to standard output, as one line of JSON</source>
        <translation>gibt jedes Ereignis des Laufs als JSON-Zeile auf der Standardausgabe aus</translation>
    </message>
    <message>
        <source>lets results go through links to folders below the output folder; otherwise such a link is an error of output</source>
        <translation>lässt Ergebnisse durch Links auf Ordner unterhalb des Ausgabeordners; sonst ist ein solcher Link ein Ausgabefehler</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from %2 to %3</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from %2 to %3</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT, with whole numbers from 1 to %2, such as 800x600</source>
        <translation>„%1“ hat nicht die Form WIDTHxHEIGHT mit ganzen Zahlen von 1 bis %2, wie 800x600</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a number of pixels, such as 40, nor LEFT,TOP,RIGHT,BOTTOM; &quot;none&quot; means no frame</source>
        <translation>„%1“ ist weder eine Anzahl Pixel wie 40 noch LEFT,TOP,RIGHT,BOTTOM; „none“ bedeutet kein Rahmen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour; use #rrggbb or a name</source>
        <translation>„%1“ ist keine Farbe; #rrggbb oder einen Namen verwenden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is incomplete; complete it as in %2</source>
        <translation>„%1“ ist unvollständig; ergänzen wie in %2</translation>
    </message>
    <message>
        <source>; write a text of your own as text:%1</source>
        <translation>; eigener Text wird als text:%1 geschrieben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no value</source>
        <translation>„%1“ nimmt keinen Wert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>„%1“ ist keines von %2</translation>
    </message>
    <message>
        <source>argument %1 (%2) is not valid UTF-8</source>
        <translation>Argument %1 (%2) ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>the inputs do not lie in one folder: use --in-place for one folder after the other, or name the folder of the results with --output</source>
        <translation>die Eingaben liegen nicht in einem Ordner: --in-place für einen Ordner nach dem anderen verwenden oder den Ordner der Ergebnisse mit --output angeben</translation>
    </message>
    <message>
        <source>the result of %1 would not go to the folder of its original; name the folder of the results with --output</source>
        <translation>das Ergebnis von %1 käme nicht in den Ordner seines Originals; den Ordner der Ergebnisse mit --output angeben</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture</source>
        <translation>%1 ist ein gespeicherter Auftrag und kein Bild</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture; it is left out.</source>
        <translation>%1 ist ein gespeicherter Auftrag und kein Bild; die Datei wird ausgelassen.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>on standard input</source>
        <translation>auf der Standardeingabe</translation>
    </message>
    <message>
        <source>the list %1 cannot be read: %2</source>
        <translation>die Liste %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the list %1 is larger than %2 MiB; divide it</source>
        <translation>die Liste %1 ist größer als %2 MiB; aufteilen</translation>
    </message>
    <message>
        <source>it has %1 bytes, and no name is that long</source>
        <translation>er hat %1 Bytes, so lang ist kein Name</translation>
    </message>
    <message>
        <source>it contains a NUL byte; use -0 for names that are separated by NUL</source>
        <translation>er enthält ein NUL-Byte; -0 für Namen verwenden, die durch NUL getrennt sind</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid UTF-8; rename it to use it</source>
        <translation>„%1“ ist kein gültiges UTF-8; zur Verwendung umbenennen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job cannot hold</source>
        <translation>„%1“ enthält ein Zeichen, das ein Auftrag nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>it contains line ends; names in lines are read without -0</source>
        <translation>er enthält Zeilenenden; Namen in Zeilen werden ohne -0 gelesen</translation>
    </message>
    <message>
        <source>%1, name %2</source>
        <translation>%1, Name %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link</source>
        <translation>%1, Zeile %2: %3 ist ein Link ohne Ziel</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist</source>
        <translation>%1, Zeile %2: %3 existiert nicht</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link</source>
        <translation>%1, Name %2: %3 ist ein Link ohne Ziel</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist</source>
        <translation>%1, Name %2: %3 existiert nicht</translation>
    </message>
    <message>
        <source>the list %1 is UTF-16 text; save it as UTF-8</source>
        <translation>die Liste %1 ist UTF-16-Text; als UTF-8 speichern</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2</source>
        <translation>in %2 wurden %1 Läufe unterbrochen</translation>
    </message>
    <message>
        <source>no run in %1 is called &quot;%2&quot;</source>
        <translation>kein Lauf in %1 heißt „%2“</translation>
    </message>
    <message>
        <source>%1  %2 is damaged</source>
        <translation>%1  %2 ist beschädigt</translation>
    </message>
    <message>
        <source>%1  %2  %3 of 1 picture  %4</source>
        <translation>%1  %2  %3 von 1 Bild  %4</translation>
    </message>
    <message>
        <source>%1  %2  %3 of %4 pictures  %5</source>
        <translation>%1  %2  %3 von %4 Bildern  %5</translation>
    </message>
    <message>
        <source>%1, line %2: this version does not know %3, and ignores it.</source>
        <translation>%1, Zeile %2: diese Version kennt %3 nicht und ignoriert es.</translation>
    </message>
    <message>
        <source>%1: this version does not know %2 other elements and attributes, and ignores them.</source>
        <translation>%1: diese Version kennt %2 weitere Elemente und Attribute nicht und ignoriert sie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a path, but the name of a preset is needed</source>
        <translation>„%1“ ist ein Pfad, nötig ist aber der Name einer Vorgabe</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>die Vorgabe „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>the name of the preset is empty</source>
        <translation>der Name der Vorgabe ist leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a dot, which the name of a preset must not</source>
        <translation>„%1“ beginnt mit einem Punkt, was beim Namen einer Vorgabe nicht erlaubt ist</translation>
    </message>
    <message>
        <source>the name of a preset has no extension: use &quot;%1&quot;</source>
        <translation>der Name einer Vorgabe hat keine Endung: „%1“ verwenden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a file on every system; &quot;%2&quot; would be one</source>
        <translation>„%1“ ist nicht auf jedem System ein Dateiname; „%2“ wäre einer</translation>
    </message>
    <message>
        <source>the name of the preset is longer than %1 bytes</source>
        <translation>der Name der Vorgabe ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>the preset %1</source>
        <translation>die Vorgabe %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the preset %1 comes with the program and cannot be removed; a preset of yours with that name is used instead of it</source>
        <translation>die Vorgabe %1 gehört zum Programm und kann nicht entfernt werden; eine eigene Vorgabe dieses Namens hat Vorrang</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>Archive: TIFF without loss, with all metadata and the time of the file</source>
        <translation>Archiv: TIFF ohne Verlust, mit allen Metadaten und der Zeit der Datei</translation>
    </message>
    <message>
        <source>Mail: small JPEG of at most 1024 pixels, sRGB, with creator and rights</source>
        <translation>E-Mail: kleines JPEG mit höchstens 1024 Pixeln, sRGB, mit Urheber und Rechten</translation>
    </message>
    <message>
        <source>Print: 15 cm long at 300 dpi, with a white border of 5 mm</source>
        <translation>Druck: 15 cm lang bei 300 dpi, mit weißem Rand von 5 mm</translation>
    </message>
    <message>
        <source>Thumbnails: squares of 256 pixels, JPEG without metadata</source>
        <translation>Miniaturen: Quadrate von 256 Pixeln, JPEG ohne Metadaten</translation>
    </message>
    <message>
        <source>Web: JPEG of at most 1600 pixels, sRGB, with creator and rights</source>
        <translation>Web: JPEG mit höchstens 1600 Pixeln, sRGB, mit Urheber und Rechten</translation>
    </message>
    <message>
        <source>The journal %1 cannot be written: %2.</source>
        <translation>Das Journal %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>the braces of a wildcard are nested too deeply</source>
        <translation>die Klammern eines Platzhalters sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>a wildcard is longer than %1 characters: %2...</source>
        <translation>ein Platzhalter ist länger als %1 Zeichen: %2...</translation>
    </message>
    <message>
        <source>the wildcard &quot;%1&quot; is invalid: %2</source>
        <translation>der Platzhalter „%1“ ist ungültig: %2</translation>
    </message>
    <message>
        <source>the braces in &quot;%1&quot; stand for more than %2 names</source>
        <translation>die Klammern in „%1“ stehen für mehr als %2 Namen</translation>
    </message>
    <message>
        <source>%1 matches no file</source>
        <translation>%1 trifft auf keine Datei zu</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixel, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>„%1“ bedeutet %2 Pixel, denn ein Punkt leitet Dezimalstellen ein, Pixel sind aber ganze Zahlen: %3, oder mit einer Einheit wie in %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>„%1“ bedeutet %2 Pixel, denn ein Punkt leitet Dezimalstellen ein, Pixel sind aber ganze Zahlen: %3, oder mit einer Einheit wie in %4cm</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, Name %2: %3 ist ein Link ohne Ziel (und %4 weitere)</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist (and %4 more)</source>
        <translation>%1, Name %2: %3 existiert nicht (und %4 weitere)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, Zeile %2: %3 ist ein Link ohne Ziel (und %4 weitere)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist (and %4 more)</source>
        <translation>%1, Zeile %2: %3 existiert nicht (und %4 weitere)</translation>
    </message>
    <message>
        <source>Start tag expected.</source>
        <translation>Start-Tag erwartet.</translation>
    </message>
    <message>
        <source>Opening and ending tag mismatch.</source>
        <translation>Start- und End-Tag passen nicht zusammen.</translation>
    </message>
    <message>
        <source>Premature end of document.</source>
        <translation>Vorzeitiges Ende des Dokuments.</translation>
    </message>
    <message>
        <source>Extra content at end of document.</source>
        <translation>Überzähliger Inhalt am Ende des Dokuments.</translation>
    </message>
    <message>
        <source>Expected %1, but got &apos;%2&apos;.</source>
        <translation>%1 erwartet, aber ‚%2‘ gefunden.</translation>
    </message>
    <message>
        <source>range out of order in character class</source>
        <translation>Bereich in einer Zeichenklasse in falscher Reihenfolge</translation>
    </message>
    <message>
        <source>the input&apos;s name without its extension</source>
        <translation>der Name der Eingabe ohne Endung</translation>
    </message>
    <message>
        <source>a number that counts the job&apos;s files</source>
        <translation>eine laufende Nummer der Dateien des Auftrags</translation>
    </message>
    <message>
        <source>the capture date, YYYYMMDD</source>
        <translation>das Aufnahmedatum, YYYYMMDD</translation>
    </message>
    <message>
        <source>the capture time, HHMMSS</source>
        <translation>die Aufnahmezeit, HHMMSS</translation>
    </message>
    <message>
        <source>a text of your own</source>
        <translation>ein eigener Text</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>everything in the output folder</source>
        <translation>alles im Ausgabeordner</translation>
    </message>
    <message>
        <source>folders as in the input</source>
        <translation>Ordner wie in der Eingabe</translation>
    </message>
    <message>
        <source>a folder for each capture date, YYYY/YYYY-MM-DD</source>
        <translation>ein Ordner je Aufnahmedatum, YYYY/YYYY-MM-DD</translation>
    </message>
    <message>
        <source>the size stays</source>
        <translation>die Größe bleibt unverändert</translation>
    </message>
    <message>
        <source>enlarge or reduce</source>
        <translation>vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>only reduce</source>
        <translation>nur verkleinern</translation>
    </message>
    <message>
        <source>only enlarge</source>
        <translation>nur vergrößern</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>die Breite</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>die Höhe</translation>
    </message>
    <message>
        <source>the long side</source>
        <translation>die lange Seite</translation>
    </message>
    <message>
        <source>the short side</source>
        <translation>die kurze Seite</translation>
    </message>
    <message>
        <source>percent of the picture</source>
        <translation>Prozent des Bildes</translation>
    </message>
    <message>
        <source>inches at the resolution</source>
        <translation>Zoll bei der Auflösung</translation>
    </message>
    <message>
        <source>centimetres at the resolution</source>
        <translation>Zentimeter bei der Auflösung</translation>
    </message>
    <message>
        <source>millimetres at the resolution</source>
        <translation>Millimeter bei der Auflösung</translation>
    </message>
    <message>
        <source>no crop</source>
        <translation>kein Zuschnitt</translation>
    </message>
    <message>
        <source>the largest frame of the ratio width : height</source>
        <translation>der größte Ausschnitt im Verhältnis Breite : Höhe</translation>
    </message>
    <message>
        <source>cut off a border of one colour</source>
        <translation>einfarbigen Rand abschneiden</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye</source>
        <translation>der auffälligste Ausschnitt im Verhältnis</translation>
    </message>
    <message>
        <source>scale to cover width x height, then cut</source>
        <translation>auf Breite x Höhe füllend skalieren, dann schneiden</translation>
    </message>
    <message>
        <source>width x height pixels</source>
        <translation>Breite x Höhe Pixel</translation>
    </message>
    <message>
        <source>the largest frame of the ratio, turned with the picture</source>
        <translation>der größte Ausschnitt im Verhältnis, mit dem Bild gedreht</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye, turned with the picture</source>
        <translation>der auffälligste Ausschnitt im Verhältnis, mit dem Bild gedreht</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>in der Mitte</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>at the top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>at the top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>at the bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>at the bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>transparent where the format allows it, else white</source>
        <translation>transparent, wo das Format es erlaubt, sonst weiß</translation>
    </message>
    <message>
        <source>one colour</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>a built-in pattern</source>
        <translation>ein eingebautes Muster</translation>
    </message>
    <message>
        <source>an image file, scaled to cover</source>
        <translation>eine Bilddatei, füllend skaliert</translation>
    </message>
    <message>
        <source>the picture covers its background</source>
        <translation>das Bild deckt den Hintergrund ab</translation>
    </message>
    <message>
        <source>multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>Ineinanderkopieren</translation>
    </message>
    <message>
        <source>the darker of the two</source>
        <translation>das Dunklere von beiden</translation>
    </message>
    <message>
        <source>the lighter of the two</source>
        <translation>das Hellere von beiden</translation>
    </message>
    <message>
        <source>soft light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>hard light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>the difference of the two</source>
        <translation>die Differenz von beiden</translation>
    </message>
    <message>
        <source>a drop shadow</source>
        <translation>ein Schlagschatten</translation>
    </message>
    <message>
        <source>a glow around the picture, without offset</source>
        <translation>ein Schein um das Bild, ohne Versatz</translation>
    </message>
    <message>
        <source>skip the file</source>
        <translation>die Datei überspringen</translation>
    </message>
    <message>
        <source>stop the run</source>
        <translation>den Lauf stoppen</translation>
    </message>
    <message>
        <source>ask</source>
        <translation>nachfragen</translation>
    </message>
    <message>
        <source>overwrite what is there</source>
        <translation>Vorhandenes überschreiben</translation>
    </message>
    <message>
        <source>append &quot; (2)&quot;, &quot; (3)&quot; and so on to the name</source>
        <translation>„ (2)“, „ (3)“ usw. an den Namen anhängen</translation>
    </message>
    <message>
        <source>write the nearest format that can hold the picture</source>
        <translation>das ähnlichste Format schreiben, das das Bild aufnehmen kann</translation>
    </message>
    <message>
        <source>reported only</source>
        <translation>nur gemeldet</translation>
    </message>
    <message>
        <source>the file was skipped</source>
        <translation>die Datei wurde übersprungen</translation>
    </message>
    <message>
        <source>the run was stopped</source>
        <translation>der Lauf wurde angehalten</translation>
    </message>
    <message>
        <source>the option %1 cannot say what the job holds</source>
        <translation>die Option %1 kann nicht ausdrücken, was der Auftrag enthält</translation>
    </message>
    <message>
        <source>%1 is a picture (%2) with another extension; it is added only if it is named.</source>
        <translation>%1 ist ein Bild (%2) mit anderer Endung; es wird nur hinzugefügt, wenn die Datei selbst gewählt wird.</translation>
    </message>
    <message>
        <source>no private folder can be made for previews: %1</source>
        <translation>für Vorschauen kann kein privater Ordner angelegt werden: %1</translation>
    </message>
    <message>
        <source>the picture that was made for the screen cannot be read</source>
        <translation>das für den Bildschirm erstellte Bild kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The effect &quot;%1&quot; does not exist</source>
        <translation>Den Effekt „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>shares the processor equally with other programs; otherwise they come first</source>
        <translation>teilt den Prozessor gleichmäßig mit anderen Programmen; sonst haben diese Vorrang</translation>
    </message>
    <message>
        <source>&quot;maxBytes&quot; lowers the quality, and &quot;lossless&quot; has none</source>
        <translation>&quot;maxBytes&quot; senkt die Qualität, und &quot;lossless&quot; hat keine</translation>
    </message>
    <message>
        <source>&quot;minQuality&quot; is %1, above &quot;quality&quot;, which is %2</source>
        <translation>&quot;minQuality&quot; ist %1 und damit höher als &quot;quality&quot; mit %2</translation>
    </message>
    <message>
        <source>the largest file; the best quality up to &quot;quality&quot; is found whose file is not larger</source>
        <translation>die größte Datei; gesucht wird die beste Qualität bis &quot;quality&quot;, deren Datei nicht größer ist</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>what &quot;maxBytes&quot; may lower the quality to</source>
        <translation>wie weit &quot;maxBytes&quot; die Qualität senken darf</translation>
    </message>
    <message>
        <source>makes pictures smaller where &quot;minQuality&quot; is not enough for &quot;maxBytes&quot;</source>
        <translation>verkleinert Bilder, bei denen &quot;minQuality&quot; für &quot;maxBytes&quot; nicht reicht</translation>
    </message>
    <message>
        <source>the file would have %1 bytes with quality %2 and %3 x %4 pixels; at most %5 bytes are wanted</source>
        <translation>die Datei hätte %1 Bytes mit Qualität %2 und %3 x %4 Pixeln; gewünscht sind höchstens %5 Bytes</translation>
    </message>
    <message>
        <source>the size of %1 files follows from their pixels; %2 can have a limit</source>
        <translation>die Größe von %1-Dateien folgt aus ihren Pixeln; begrenzen lassen sich %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of bytes; write it like 500kB, 1.5MB or 300KiB</source>
        <translation>&quot;%1&quot; ist keine Zahl von Bytes; Schreibweise: 500kB, 1.5MB oder 300KiB</translation>
    </message>
    <message>
        <source>the largest file, such as 500kB; the best quality that is not larger is found. The format options minQuality and mayShrink say how far it may go</source>
        <translation>die größte Datei, etwa 500kB; gesucht wird die beste Qualität, die nicht größer ist. Die Formatoptionen minQuality und mayShrink sagen, wie weit das gehen darf</translation>
    </message>
    <message>
        <source>it is damaged, or of another version</source>
        <translation>es ist beschädigt oder von einer anderen Version</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>makes only what has changed since the last update into the output folder: its input, the job&apos;s settings, or a file that they name. All other results stay as they are</source>
        <translation>erzeugt nur, was sich seit der letzten Aktualisierung in den Ausgabeordner geändert hat: die Eingabe, die Einstellungen des Auftrags oder eine Datei, die sie nennen. Alle anderen Ergebnisse bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>lets an update compare the contents of files, not only their sizes and times</source>
        <translation>lässt eine Aktualisierung die Inhalte von Dateien vergleichen, nicht nur Größen und Zeiten</translation>
    </message>
    <message>
        <source>lets an update remove results that it has made earlier and whose inputs are gone</source>
        <translation>lässt eine Aktualisierung Ergebnisse entfernen, die sie früher erzeugt hat und deren Eingaben es nicht mehr gibt</translation>
    </message>
    <message>
        <source>the folder cannot be written, or another process keeps the record</source>
        <translation>in den Ordner kann nicht geschrieben werden, oder ein anderer Prozess hält das Verzeichnis</translation>
    </message>
    <message>
        <source>who made the picture</source>
        <translation>wer das Bild gemacht hat</translation>
    </message>
    <message>
        <source>the notice that says whose the picture is</source>
        <translation>der Vermerk, wem das Bild gehört</translation>
    </message>
    <message>
        <source>who is to be named where the picture is shown</source>
        <translation>wer genannt werden soll, wo das Bild gezeigt wird</translation>
    </message>
    <message>
        <source>a short name of the picture</source>
        <translation>ein kurzer Name des Bildes</translation>
    </message>
    <message>
        <source>separated by commas or semicolons</source>
        <translation>durch Kommas oder Semikolons getrennt</translation>
    </message>
    <message>
        <source>how the picture may be used</source>
        <translation>wie das Bild verwendet werden darf</translation>
    </message>
    <message>
        <source>Writes creator, rights, title and keywords into the metadata</source>
        <translation>Schreibt Urheber, Rechte, Titel und Stichwörter in die Metadaten</translation>
    </message>
    <message>
        <source>the text has tokens, such as {date:YYYY-MM-DD}</source>
        <translation>der Text hat Platzhalter wie {date:YYYY-MM-DD}</translation>
    </message>
    <message>
        <source>it holds no job</source>
        <translation>er enthält keinen Auftrag</translation>
    </message>
    <message>
        <source>its output folder is &quot;%1&quot;, but has to be an absolute path</source>
        <translation>sein Ausgabeordner ist „%1“, muss aber ein absoluter Pfad sein</translation>
    </message>
    <message>
        <source>a job has no name</source>
        <translation>ein Auftrag hat keinen Namen</translation>
    </message>
    <message>
        <source>two jobs have the name &quot;%1&quot;</source>
        <translation>zwei Aufträge heißen „%1“</translation>
    </message>
    <message>
        <source>the job &quot;%1&quot; writes to &quot;%2&quot;, which is not in the output folder, &quot;%3&quot;</source>
        <translation>der Auftrag „%1“ schreibt nach „%2“, was nicht im Ausgabeordner „%3“ liegt</translation>
    </message>
    <message>
        <source>it holds more than %1 jobs</source>
        <translation>er enthält mehr als %1 Aufträge</translation>
    </message>
    <message>
        <source>it is no bundle of jobs</source>
        <translation>es ist kein Bündel von Aufträgen</translation>
    </message>
    <message>
        <source>it takes nothing after a colon</source>
        <translation>nach einem Doppelpunkt nimmt er nichts</translation>
    </message>
    <message>
        <source>the number of digits must be a whole number from 1 to %1</source>
        <translation>die Zahl der Stellen muss eine ganze Zahl von 1 bis %1 sein</translation>
    </message>
    <message>
        <source>a date is made of YYYY, YY, MM and DD, with no other letters between them</source>
        <translation>ein Datum besteht aus YYYY, YY, MM und DD ohne andere Buchstaben dazwischen</translation>
    </message>
    <message>
        <source>a time is made of HH, MM and SS, with no other letters between them</source>
        <translation>eine Uhrzeit besteht aus HH, MM und SS ohne andere Buchstaben dazwischen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; the tokens are %3, and {{ is a brace</source>
        <translation>„%1“ an Zeichen %2 ist kein Platzhalter; die Platzhalter sind %3, und {{ ist eine Klammer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; did you mean &quot;{%3}&quot;?</source>
        <translation>„%1“ an Zeichen %2 ist kein Platzhalter; war „{%3}“ gemeint?</translation>
    </message>
    <message>
        <source>&quot;}&quot; at character %1 closes no token; write }} for a brace</source>
        <translation>„}“ an Zeichen %1 schließt keinen Platzhalter; }} ist eine Klammer</translation>
    </message>
    <message>
        <source>&quot;{&quot; at character %1 begins a token that has no end; write {{ for a brace</source>
        <translation>„{“ an Zeichen %1 beginnt einen Platzhalter ohne Ende; {{ ist eine Klammer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 cannot be used: %3</source>
        <translation>„%1“ an Zeichen %2 kann nicht verwendet werden: %3</translation>
    </message>
    <message>
        <source>a text with tokens, such as {date}_{number:4}</source>
        <translation>ein Text mit Platzhaltern wie {date}_{number:4}</translation>
    </message>
    <message>
        <source>depth map lost</source>
        <translation>Tiefenkarte verloren</translation>
    </message>
    <message>
        <source>film lost</source>
        <translation>Film verloren</translation>
    </message>
    <message>
        <source>audio lost</source>
        <translation>Ton verloren</translation>
    </message>
    <message>
        <source>It has inputs, but those of a bundle belong in its first job</source>
        <translation>Er hat Eingaben, aber die eines Bündels gehören in seinen ersten Auftrag</translation>
    </message>
    <message>
        <source>The bundle of jobs cannot be read: %1</source>
        <translation>Das Bündel von Aufträgen kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Job &quot;%1&quot;: %2</source>
        <translation>Auftrag „%1“: %2</translation>
    </message>
    <message>
        <source>Its output folder is &quot;%1&quot;, but the bundle says &quot;%2&quot;</source>
        <translation>Sein Ausgabeordner ist „%1“, aber das Bündel nennt „%2“</translation>
    </message>
    <message>
        <source>Several results of one picture cannot replace their original</source>
        <translation>Mehrere Ergebnisse eines Bildes können ihr Original nicht ersetzen</translation>
    </message>
    <message>
        <source>it has a depth map, which the result lacks</source>
        <translation>die Datei hat eine Tiefenkarte, die dem Ergebnis fehlt</translation>
    </message>
    <message>
        <source>it has a film, which the result lacks</source>
        <translation>die Datei hat einen Film, der dem Ergebnis fehlt</translation>
    </message>
    <message>
        <source>it has audio, which the result lacks</source>
        <translation>die Datei hat Ton, der dem Ergebnis fehlt</translation>
    </message>
    <message>
        <source>--in-place makes one result of each picture, but several presets or jobs are given; remove --in-place, or all but one of them</source>
        <translation>--in-place macht ein Ergebnis von jedem Bild, aber mehrere Vorgaben oder Aufträge sind angegeben; entfernen Sie --in-place oder alle bis auf eine Angabe</translation>
    </message>
    <message>
        <source>several presets or jobs need one output folder, in which each gets a folder of its name</source>
        <translation>mehrere Vorgaben oder Aufträge brauchen einen gemeinsamen Ausgabeordner, in dem jede einen Ordner ihres Namens bekommt</translation>
    </message>
    <message>
        <source>%1 has other inputs than %2; results of one run have the same inputs, and --no-inputs drops those of saved jobs</source>
        <translation>%1 hat andere Eingaben als %2; Ergebnisse eines Laufs haben dieselben Eingaben, und --no-inputs lässt die gespeicherter Aufträge weg</translation>
    </message>
    <message>
        <source>%1 needs --resume</source>
        <translation>%1 benötigt --resume</translation>
    </message>
    <message>
        <source>one folder to watch is needed</source>
        <translation>ein Ordner zum Überwachen ist nötig</translation>
    </message>
    <message>
        <source>the results would come into the watched folder %1; write them to a folder in it, or elsewhere</source>
        <translation>die Ergebnisse kämen in den überwachten Ordner %1; schreiben Sie sie in einen Ordner darin oder anderswohin</translation>
    </message>
    <message>
        <source>processes a saved job, files and folders, or both; options override the job. Several jobs make several results of each picture, each in a folder of its name. Exit status: 0 when all pictures were written, or left out by a policy that an option names; 1 when some failed or were left out otherwise; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 4 when the run was cancelled; 5 when there is no picture among the inputs; 6 when this run is going on already; 7 when there is nothing to resume</source>
        <translation>verarbeitet einen gespeicherten Auftrag, Dateien und Ordner oder beides; Optionen haben Vorrang vor dem Auftrag. Mehrere Aufträge machen mehrere Ergebnisse von jedem Bild, jedes in einem Ordner ihres Namens. Exit-Status: 0, wenn alle Bilder geschrieben oder durch eine Regel ausgelassen wurden, die eine Option nennt; 1, wenn welche fehlschlugen oder sonst ausgelassen wurden; 2 bei falschen Argumenten oder falschem Auftrag; 3, wenn der Server nicht gestartet werden konnte oder verloren ging; 4, wenn der Lauf abgebrochen wurde; 5, wenn unter den Eingaben kein Bild ist; 6, wenn dieser Lauf schon im Gange ist; 7, wenn es nichts fortzusetzen gibt</translation>
    </message>
    <message>
        <source>processes the pictures in a folder and its subfolders, and those that come, until it is ended. Pictures are taken when they have arrived whole, and each once, also over restarts; numbers in names go on. Nobody is asked: ask becomes rename for names, stop for the output, and skip otherwise. Exit status: 0 when it was ended between pictures; 4 when it was ended while pictures were in work, which the next start finishes; 1 when the folder is gone or the output cannot be written; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 6 when the output folder is used for watching already</source>
        <translation>verarbeitet die Bilder in einem Ordner und seinen Unterordnern und die, die noch kommen, bis es beendet wird. Bilder werden genommen, wenn sie ganz angekommen sind, und jedes einmal, auch über Neustarts; Nummern in Namen zählen weiter. Niemand wird gefragt: aus ask wird rename bei Namen, stop bei der Ausgabe und sonst skip. Exit-Status: 0, wenn es zwischen Bildern beendet wurde; 4, wenn dabei Bilder in Arbeit waren, die der nächste Start fertigstellt; 1, wenn der Ordner fort ist oder die Ausgabe nicht geschrieben werden kann; 2 bei falschen Argumenten oder falschem Auftrag; 3, wenn der Server nicht gestartet werden konnte oder verloren ging; 6, wenn für den Ausgabeordner schon überwacht wird</translation>
    </message>
    <message>
        <source>Every picture that comes into a folder</source>
        <translation>Jedes Bild, das in einen Ordner kommt</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them. Given several times, each picture gets a result of each preset, in a folder of its name in the output folder</source>
        <translation>geht von einer Vorgabe aus; „velkora-batch presets“ listet sie auf. Mehrmals angegeben, bekommt jedes Bild ein Ergebnis jeder Vorgabe, in einem Ordner ihres Namens im Ausgabeordner</translation>
    </message>
    <message>
        <source>Watching</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>how long a picture has to stay the same before it is taken; default: 2. Pictures that are moved into the folder are taken at once</source>
        <translation>wie lange ein Bild gleich bleiben muss, bevor es genommen wird; Standard: 2. Bilder, die in den Ordner verschoben werden, werden sofort genommen</translation>
    </message>
    <message>
        <source>looks for pictures every so many seconds, in place of waiting for the system&apos;s word; default: 5 where the system tells nothing, as for network folders</source>
        <translation>sieht alle so vielen Sekunden nach Bildern, statt auf die Nachricht des Systems zu warten; Standard: 5, wo das System nichts meldet, wie bei Netzwerkordnern</translation>
    </message>
    <message>
        <source>%1 needs --update</source>
        <translation>%1 benötigt --update</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice; remove one of them</source>
        <translation>„%1“ ist zweimal angegeben; entfernen Sie eine Angabe</translation>
    </message>
    <message>
        <source>the results of &quot;%1&quot; and &quot;%2&quot; would go to one folder, &quot;%3&quot;; give one of them another name</source>
        <translation>die Ergebnisse von „%1“ und „%2“ kämen in einen Ordner, „%3“; geben Sie einem davon einen anderen Namen</translation>
    </message>
    <message>
        <source>at most %1 results can be made of one picture</source>
        <translation>von einem Bild können höchstens %1 Ergebnisse gemacht werden</translation>
    </message>
    <message>
        <source>what {number} in names begins with; 1, unless it is given</source>
        <translation>womit {number} in Namen beginnt; 1, wenn es nicht angegeben ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without {number} in a name; add it to --name</source>
        <translation>„%1“ bewirkt nichts ohne {number} in einem Namen; in --name einfügen</translation>
    </message>
    <message>
        <source>the middle of a name: original, the input&apos;s name; number, number:START or number:START:DIGITS; date and time, those of the capture, or of the file where a picture has none; text:TEXT; nothing; or a text with tokens, such as {date:YYYY-MM-DD}_{number:4}</source>
        <translation>die Mitte eines Namens: original, der Name der Eingabe; number, number:START oder number:START:DIGITS; date und time, die der Aufnahme, ohne diese die der Datei; text:TEXT; nothing; oder ein Text mit Platzhaltern wie {date:YYYY-MM-DD}_{number:4}</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be made</source>
        <translation>der Ausgabeordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>another process watches a folder for %1 already</source>
        <translation>ein anderer Prozess überwacht bereits einen Ordner für %1</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be written</source>
        <translation>in den Ausgabeordner %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>it is no record of a watched folder that this version reads</source>
        <translation>es ist keine Aufzeichnung eines überwachten Ordners, die diese Version liest</translation>
    </message>
    <message>
        <source>what was watched before cannot be read and written: %1: %2</source>
        <translation>was bisher überwacht wurde, kann nicht gelesen und geschrieben werden: %1: %2</translation>
    </message>
    <message>
        <source>a newer version of the program has made it; use that version for all parts</source>
        <translation>eine neuere Version des Programms hat ihn gemacht; verwenden Sie diese Version für alle Teile</translation>
    </message>
    <message>
        <source>it is no plan; &quot;velkora-batch split&quot; makes one</source>
        <translation>es ist kein Plan; „velkora-batch split“ macht einen</translation>
    </message>
    <message>
        <source>it is damaged; split the job again</source>
        <translation>er ist beschädigt; teilen Sie den Auftrag neu auf</translation>
    </message>
    <message>
        <source>collect takes one plan, the file that split has written</source>
        <translation>collect nimmt einen Plan, die Datei, die split geschrieben hat</translation>
    </message>
    <message>
        <source>%1: there is no part &quot;%2&quot;; the plan has the parts %3 to %4</source>
        <translation>%1: es gibt keinen Teil „%2“; der Plan hat die Teile %3 bis %4</translation>
    </message>
    <message>
        <source>which part is not said; use --part with a number from 1 to %1</source>
        <translation>welcher Teil, ist nicht gesagt; verwenden Sie --part mit einer Zahl von 1 bis %1</translation>
    </message>
    <message>
        <source>%1 and %2 both say which part to make; use --part</source>
        <translation>%1 und %2 sagen beide, welcher Teil zu machen ist; verwenden Sie --part</translation>
    </message>
    <message>
        <source>split needs %1; &quot;velkora-batch help split&quot; says more</source>
        <translation>split braucht %1; „velkora-batch help split“ sagt mehr</translation>
    </message>
    <message>
        <source>%1: %2. Nobody can be asked about it while parts are made; decide with %3</source>
        <translation>%1: %2. Während Teile gemacht werden, kann niemand dazu gefragt werden; entscheiden Sie mit %3</translation>
    </message>
    <message>
        <source>%1: %2. By %3 stop, the job would end there; it was not split</source>
        <translation>%1: %2. Mit %3 stop würde der Auftrag dort enden; er wurde nicht aufgeteilt</translation>
    </message>
    <message>
        <source>not all inputs could be read, as said above; nothing was split</source>
        <translation>nicht alle Eingaben konnten gelesen werden, wie oben gesagt; nichts wurde aufgeteilt</translation>
    </message>
    <message>
        <source>%1 pictures cannot be cut into %2 parts; each needs a picture</source>
        <translation>%1 Bilder können nicht in %2 Teile aufgeteilt werden; jeder braucht ein Bild</translation>
    </message>
    <message>
        <source>the plan %1 cannot be written: %2</source>
        <translation>der Plan %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cuts a job into parts that can be made at once, on many machines, by &quot;velkora-batch run --plan&quot;: writes a plan with every input and the name of every result, and nothing else. Clashes of names are settled by the policies. Exit status: 2 when the job cannot be split; 5 when there is no picture among the inputs</source>
        <translation>teilt einen Auftrag in Teile auf, die „velkora-batch run --plan“ zugleich auf vielen Rechnern machen kann: schreibt einen Plan mit jeder Eingabe und dem Namen jedes Ergebnisses, sonst nichts. Die Richtlinien entscheiden über gleiche Namen. Exit-Status: 2, wenn der Auftrag nicht aufgeteilt werden kann; 5, wenn unter den Eingaben kein Bild ist</translation>
    </message>
    <message>
        <source>says what the parts of a plan have done and which are to be run again. When all are done without failures, the plan and its journals are removed. Exit status: 0 when all pictures were written; 1 when some failed, were left out or are not made yet; 2 when the plan cannot be used</source>
        <translation>sagt, was die Teile eines Plans getan haben und welche erneut zu starten sind. Sind alle ohne Fehler fertig, werden der Plan und seine Journale entfernt. Exit-Status: 0, wenn alle Bilder geschrieben wurden; 1, wenn welche fehlgeschlagen, ausgelassen oder noch nicht gemacht sind; 2, wenn der Plan nicht verwendet werden kann</translation>
    </message>
    <message>
        <source>A job for eight machines</source>
        <translation>Ein Auftrag für acht Rechner</translation>
    </message>
    <message>
        <source>What the parts have done</source>
        <translation>Was die Teile getan haben</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>the folder FROM of the plan is the folder TO on this machine; both are absolute</source>
        <translation>der Ordner FROM des Plans ist auf diesem Rechner der Ordner TO; beide sind absolut</translation>
    </message>
    <message>
        <source>makes it an error, not a warning, when parts are made by other versions than the plan</source>
        <translation>macht es zum Fehler statt zur Warnung, wenn Teile von anderen Versionen als der Plan gemacht werden</translation>
    </message>
    <message>
        <source>how many parts to cut the job into; each gets about as many bytes of pictures</source>
        <translation>in wie viele Teile der Auftrag aufgeteilt wird; jeder bekommt etwa gleich viele Bytes an Bildern</translation>
    </message>
    <message>
        <source>the file to write the plan to; it is replaced</source>
        <translation>die Datei, in die der Plan geschrieben wird; sie wird ersetzt</translation>
    </message>
    <message>
        <source>makes one part of the job that &quot;velkora-batch split&quot; has written to a file</source>
        <translation>macht einen Teil des Auftrags, den „velkora-batch split“ in eine Datei geschrieben hat</translation>
    </message>
    <message>
        <source>which part, from 1; default: what the environment says in SLURM_ARRAY_TASK_ID, JOB_COMPLETION_INDEX, which counts from 0, or PARALLEL_SEQ</source>
        <translation>welcher Teil, ab 1; Vorgabe: was die Umgebung in SLURM_ARRAY_TASK_ID, in JOB_COMPLETION_INDEX, das ab 0 zählt, oder in PARALLEL_SEQ sagt</translation>
    </message>
    <message>
        <source>removes the plan and its journals also when pictures have failed; without this option they stay until all parts are done without failures</source>
        <translation>entfernt den Plan und seine Journale auch, wenn Bilder fehlgeschlagen sind; ohne diese Option bleiben sie, bis alle Teile ohne Fehler fertig sind</translation>
    </message>
    <message>
        <source>%1 is for a part of a job; name its plan with --plan</source>
        <translation>%1 ist für einen Teil eines Auftrags; nennen Sie dessen Plan mit --plan</translation>
    </message>
    <message>
        <source>the plan has a job and pictures of its own; leave out &quot;%1&quot;</source>
        <translation>der Plan hat seinen eigenen Auftrag und eigene Bilder; lassen Sie „%1“ weg</translation>
    </message>
    <message>
        <source>%1 is missing here, but was there when the job was split; --map names folders that are elsewhere on this machine</source>
        <translation>%1 fehlt hier, war aber da, als der Auftrag aufgeteilt wurde; --map nennt Ordner, die auf diesem Rechner anderswo sind</translation>
    </message>
    <message>
        <source>%1 has changed since the job was split; split the job again</source>
        <translation>%1 hat sich geändert, seit der Auftrag aufgeteilt wurde; teilen Sie den Auftrag neu auf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be two absolute folders with &quot;=&quot; between them</source>
        <translation>„%1“ muss aus zwei absoluten Ordnern mit „=“ dazwischen bestehen</translation>
    </message>
    <message>
        <source>the plan %1 cannot be used: %2</source>
        <translation>der Plan %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>the journal of the part, %1, cannot be written: %2. It belongs beside the plan</source>
        <translation>das Journal des Teils, %1, kann nicht geschrieben werden: %2. Es gehört neben den Plan</translation>
    </message>
    <message>
        <source>%1 says that process %2 of %3 holds it, and the file system has no locks to tell whether that process is still there; if it is not, remove that file</source>
        <translation>%1 besagt, dass der Prozess %2 auf %3 ihn hält, und das Dateisystem hat keine Sperren, um zu erkennen, ob es diesen Prozess noch gibt; wenn nicht, entfernen Sie diese Datei</translation>
    </message>
    <message>
        <source>%1 unfinished files stay beside the results: the file system has no locks to tell whether they are in work. Remove .velkora-*.tmp there when nothing runs.</source>
        <translation>%1 unfertige Dateien bleiben neben den Ergebnissen: Das Dateisystem hat keine Sperren, um zu erkennen, ob sie in Arbeit sind. Entfernen Sie dort .velkora-*.tmp, wenn nichts läuft.</translation>
    </message>
    <message>
        <source>made by other versions than the plan</source>
        <translation>von anderen Versionen gemacht als der Plan</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>es antwortet nicht</translation>
    </message>
    <message>
        <source>it does not say them</source>
        <translation>es nennt sie nicht</translation>
    </message>
    <message>
        <source>the same job is already running into %1: %2</source>
        <translation>derselbe Auftrag läuft bereits nach %1: %2</translation>
    </message>
    <message>
        <source>%1 was asked for the versions of its libraries: %2</source>
        <translation>%1 wurde nach den Versionen seiner Bibliotheken gefragt: %2</translation>
    </message>
    <message>
        <source>the plan was made with %1, but here are %2</source>
        <translation>der Plan wurde mit %1 gemacht, hier aber sind %2</translation>
    </message>
    <message>
        <source>made with %1, but the plan with %2</source>
        <translation>mit %1 gemacht, der Plan aber mit %2</translation>
    </message>
    <message>
        <source>it is open in another program</source>
        <translation>sie ist in einem anderen Programm geöffnet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is open in another program</source>
        <translation>„%1“ kann nicht ersetzt werden: Die Datei ist in einem anderen Programm geöffnet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is read-only</source>
        <translation>„%1“ kann nicht ersetzt werden: Die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1 with the compression %2</source>
        <translation>diese Installation hat keinen Encoder für %1 mit der Komprimierung %2</translation>
    </message>
</context>
</TS>
