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
        <source>%1 runs were interrupted in %2, none of them of this job</source>
        <translation>%1 Läufe wurden in %2 unterbrochen, keiner davon gehört zu diesem Auftrag</translation>
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
        <source>which metadata is kept</source>
        <translation>welche Metadaten erhalten bleiben</translation>
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
</context>
</TS>
