<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BatchHost::Messages</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>No more input: this file and all that follow with questions are skipped.</source>
        <translation>Plus d’entrée&#xa0;: ce fichier et les suivants qui posent une question sont ignorés.</translation>
    </message>
    <message>
        <source>%1? (add &quot;all&quot; for all that follow)</source>
        <translation>%1&#x202f;? (ajoutez «&#xa0;all&#xa0;» pour tous les suivants)</translation>
    </message>
    <message>
        <source>the server ended unexpectedly; a new one continues.</source>
        <translation>le serveur s’est arrêté de façon inattendue&#x202f;; un nouveau prend le relais.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly.</source>
        <translation>le serveur s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1; a new one continues.</source>
        <translation>le serveur s’est arrêté de façon inattendue pendant le traitement de %1&#x202f;; un nouveau prend le relais.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1.</source>
        <translation>le serveur s’est arrêté de façon inattendue pendant le traitement de %1.</translation>
    </message>
    <message>
        <source>Starting the server</source>
        <translation>Démarrage du serveur</translation>
    </message>
    <message>
        <source>Cancelling; interrupt again to end at once.</source>
        <translation>Annulation en cours&#x202f;; interrompez à nouveau pour quitter immédiatement.</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Annulation</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Écrites</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorées</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>En échec</translation>
    </message>
    <message>
        <source>Not processed</source>
        <translation>Non traitées</translation>
    </message>
    <message>
        <source>Written with a warning</source>
        <translation>Écrite avec un avertissement</translation>
    </message>
    <message>
        <source>1 file with another extension was left out, but begins like a picture; --verbose names them, --include takes them.</source>
        <translation>1 fichier avec une autre extension a été laissé de côté, mais il commence comme une image&#x202f;; --verbose les nomme, --include les prend.</translation>
    </message>
    <message>
        <source>%1 files with other extensions were left out, but begin like pictures; --verbose names them, --include takes them.</source>
        <translation>%1 fichiers avec d’autres extensions ont été laissés de côté, mais ils commencent comme des images&#x202f;; --verbose les nomme, --include les prend.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>to %1, in %2 (%3 a second)</source>
        <translation>vers %1, en %2 (%3 par seconde)</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, is missing now: %2</source>
        <translation>%1 d’entre elles, écrite avant l’interruption, manque à présent&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, are missing now: %2</source>
        <translation>%1 d’entre elles, écrites avant l’interruption, manquent à présent&#xa0;: %2</translation>
    </message>
    <message>
        <source>1 warning:</source>
        <translation>1 avertissement&#xa0;:</translation>
    </message>
    <message>
        <source>%1 warnings:</source>
        <translation>%1 avertissements&#xa0;:</translation>
    </message>
    <message>
        <source>and %1 more; use --report FILE for all</source>
        <translation>et %1 autres&#x202f;; --report FILE les donne toutes</translation>
    </message>
</context>
<context>
    <name>BatchJob::Phrase</name>
    <message>
        <source>Spreads the values that a picture has from black to white</source>
        <translation>Étend les valeurs de l’image du noir au blanc</translation>
    </message>
    <message>
        <source>Blurs evenly</source>
        <translation>Rend l’image uniformément floue</translation>
    </message>
    <message>
        <source>Adds a border around a picture</source>
        <translation>Ajoute une bordure autour de l’image</translation>
    </message>
    <message>
        <source>Shifts all values, then spreads them around the middle</source>
        <translation>Décale toutes les valeurs, puis les étend autour du milieu</translation>
    </message>
    <message>
        <source>Raises or lowers the contrast of larger structures, mostly in the middle tones</source>
        <translation>Augmente ou réduit le contraste des grandes structures, surtout dans les tons moyens</translation>
    </message>
    <message>
        <source>a second size; one table is needed, of one or of three dimensions</source>
        <translation>une deuxième taille&#x202f;; il faut une seule table, à une ou à trois dimensions</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs a whole number from 2 to %3</source>
        <translation>«&#xa0;%1&#xa0;»&#x202f;; %2 demande un nombre entier de 2 à %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs three numbers</source>
        <translation>«&#xa0;%1&#xa0;»&#x202f;; %2 demande trois nombres</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs two numbers</source>
        <translation>«&#xa0;%1&#xa0;»&#x202f;; %2 demande deux nombres</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; three numbers or a known keyword are needed</source>
        <translation>«&#xa0;%1&#xa0;»&#x202f;; il faut trois nombres ou un mot-clé connu</translation>
    </message>
    <message>
        <source>an entry before LUT_1D_SIZE or LUT_3D_SIZE</source>
        <translation>une entrée avant LUT_1D_SIZE ou LUT_3D_SIZE</translation>
    </message>
    <message>
        <source>one entry more than the %1 that the size says</source>
        <translation>une entrée de plus que les %1 annoncées par la taille</translation>
    </message>
    <message>
        <source>no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file</source>
        <translation>ni LUT_1D_SIZE ni LUT_3D_SIZE&#x202f;; ce n’est pas un fichier .cube</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 entries</source>
        <translation>le fichier s’arrête après %1 entrées sur %2</translation>
    </message>
    <message>
        <source>DOMAIN_MIN must be less than DOMAIN_MAX in every channel</source>
        <translation>DOMAIN_MIN doit être inférieur à DOMAIN_MAX dans chaque canal</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; a .cube file has at most %3</source>
        <translation>%1 fait %2 octets&#x202f;; un fichier .cube en fait au plus %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>input and output, from black to white; between them the curve never turns, beyond them it is level</source>
        <translation>entrée et sortie, du noir au blanc&#x202f;; entre les points, la courbe ne change jamais de sens&#x202f;; au-delà, elle est horizontale</translation>
    </message>
    <message>
        <source>Maps values along a smooth curve through points</source>
        <translation>Transforme les valeurs selon une courbe lisse passant par des points</translation>
    </message>
    <message>
        <source>Smooths noise and keeps edges</source>
        <translation>Lisse le bruit et préserve les contours</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 percent; it must be at most 100, or the unit pixels</source>
        <translation>«&#xa0;%1&#xa0;» vaut %2 pour cent&#x202f;; 100 au maximum, ou l’unité pixels</translation>
    </message>
    <message>
        <source>Brightens or darkens as a longer or shorter exposure would</source>
        <translation>Éclaircit ou assombrit comme une exposition plus longue ou plus courte</translation>
    </message>
    <message>
        <source>Mirrors a picture</source>
        <translation>Retourne l’image en miroir</translation>
    </message>
    <message>
        <source>Takes all colour away</source>
        <translation>Retire toutes les couleurs</translation>
    </message>
    <message>
        <source>Turns all colours around the colour circle</source>
        <translation>Fait tourner toutes les couleurs sur le cercle chromatique</translation>
    </message>
    <message>
        <source>Turns a picture into its negative</source>
        <translation>Transforme l’image en son négatif</translation>
    </message>
    <message>
        <source>&quot;black&quot; is %1 and &quot;white&quot; is %2; black must be less than white</source>
        <translation>«&#xa0;black&#xa0;» vaut %1 et «&#xa0;white&#xa0;» vaut %2&#x202f;; black doit être inférieur à white</translation>
    </message>
    <message>
        <source>Sets what becomes black, what becomes white, and the tone between them</source>
        <translation>Définit ce qui devient noir, ce qui devient blanc et le ton intermédiaire</translation>
    </message>
    <message>
        <source>Maps colours by the table of a .cube file; a grey picture becomes a colour picture</source>
        <translation>Transforme les couleurs selon la table d’un fichier .cube&#x202f;; une image en niveaux de gris devient une image en couleurs</translation>
    </message>
    <message>
        <source>Leaves few steps of each colour</source>
        <translation>Ne garde que quelques niveaux de chaque couleur</translation>
    </message>
    <message>
        <source>Turns a picture clockwise; the result is as large as it needs</source>
        <translation>Fait pivoter l’image dans le sens horaire&#x202f;; le résultat est aussi grand que nécessaire</translation>
    </message>
    <message>
        <source>Makes all colours stronger or weaker</source>
        <translation>Rend toutes les couleurs plus fortes ou plus faibles</translation>
    </message>
    <message>
        <source>Tones a picture brown; a grey picture becomes a colour picture</source>
        <translation>Donne à l’image une teinte brune&#x202f;; une image en niveaux de gris devient une image en couleurs</translation>
    </message>
    <message>
        <source>Sharpens edges by an unsharp mask</source>
        <translation>Accentue les contours par un masque flou</translation>
    </message>
    <message>
        <source>Makes weak colours stronger or weaker, and spares those that are strong</source>
        <translation>Rend les couleurs faibles plus fortes ou plus faibles et épargne les couleurs fortes</translation>
    </message>
    <message>
        <source>Darkens or brightens towards the corners</source>
        <translation>Assombrit ou éclaircit vers les coins</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 does not exist</source>
        <translation>«&#xa0;file&#xa0;»&#xa0;: %1 n’existe pas</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a file</source>
        <translation>«&#xa0;file&#xa0;»&#xa0;: %1 n’est pas un fichier</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 cannot be read: %2</source>
        <translation>«&#xa0;file&#xa0;»&#xa0;: impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a picture of a known format</source>
        <translation>«&#xa0;file&#xa0;»&#xa0;: %1 n’est pas une image d’un format connu</translation>
    </message>
    <message>
        <source>Lays another picture, such as a logo, over a picture</source>
        <translation>Superpose une autre image, par exemple un logo, à l’image</translation>
    </message>
    <message>
        <source>what is written; it may have several lines</source>
        <translation>ce qui est écrit&#x202f;; plusieurs lignes sont possibles</translation>
    </message>
    <message>
        <source>family and style, without a size; a family that is missing is replaced</source>
        <translation>famille et style, sans taille&#x202f;; une famille absente est remplacée</translation>
    </message>
    <message>
        <source>Writes a text over a picture</source>
        <translation>Écrit un texte sur l’image</translation>
    </message>
    <message>
        <source>Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance</source>
        <translation>Rend l’image plus chaude ou plus froide, plus verte ou plus magenta&#x202f;; les gris gardent leur luminance</translation>
    </message>
    <message>
        <source>very small files for the web in up to 12 bits, slow to write</source>
        <translation>très petits fichiers pour le web, jusqu’à 12 bits, lents à écrire</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; %2 takes %3</source>
        <translation>«&#xa0;bitDepth&#xa0;» vaut %1&#x202f;; %2 accepte %3</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; it must be 8, 10, 12 or 16</source>
        <translation>«&#xa0;bitDepth&#xa0;» vaut %1&#x202f;; valeurs possibles&#xa0;: 8, 10, 12 ou 16</translation>
    </message>
    <message>
        <source>the format &quot;%1&quot; is unknown</source>
        <translation>le format «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; &quot;compression&quot; jpeg takes 8</source>
        <translation>«&#xa0;bitDepth&#xa0;» vaut %1&#x202f;; «&#xa0;compression&#xa0;» jpeg accepte 8</translation>
    </message>
    <message>
        <source>at most 256 colours, each pixel opaque or transparent</source>
        <translation>au plus 256 couleurs, chaque pixel opaque ou transparent</translation>
    </message>
    <message>
        <source>small files of photos in up to 12 bits, as phones write them</source>
        <translation>petits fichiers de photos jusqu’à 12 bits, comme ceux des téléphones</translation>
    </message>
    <message>
        <source>archives and films, in up to 16 bits, also without loss</source>
        <translation>archives et films, jusqu’à 16 bits, aussi sans perte</translation>
    </message>
    <message>
        <source>small files of photos, which every program reads</source>
        <translation>petits fichiers de photos, lus par tous les programmes</translation>
    </message>
    <message>
        <source>small files of photos in up to 16 bits, also without loss</source>
        <translation>petits fichiers de photos jusqu’à 16 bits, aussi sans perte</translation>
    </message>
    <message>
        <source>every pixel as it is, with transparency; for graphics and for editing</source>
        <translation>chaque pixel tel quel, avec transparence&#x202f;; pour les graphiques et la retouche</translation>
    </message>
    <message>
        <source>higher is slower and smaller</source>
        <translation>plus élevé&#xa0;: plus lent et plus petit</translation>
    </message>
    <message>
        <source>what the sensor of a camera saw, in the formats of many makers</source>
        <translation>ce qu’a vu le capteur d’un appareil photo, dans les formats de nombreux fabricants</translation>
    </message>
    <message>
        <source>every pixel as it is, also CMYK and very large; for printing and for archives</source>
        <translation>chaque pixel tel quel, aussi en CMJN et très grand&#x202f;; pour l’impression et les archives</translation>
    </message>
    <message>
        <source>how the pixels are compressed</source>
        <translation>comment les pixels sont compressés</translation>
    </message>
    <message>
        <source>small files for the web, with transparency</source>
        <translation>petits fichiers pour le web, avec transparence</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>c’est un lien</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>il appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>il a plusieurs noms</translation>
    </message>
    <message>
        <source>other users may write it</source>
        <translation>d’autres utilisateurs peuvent le modifier</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>le fichier n’existe pas</translation>
    </message>
    <message>
        <source>its own format cannot be written</source>
        <translation>son propre format ne peut pas être écrit</translation>
    </message>
    <message>
        <source>its own format, %1, cannot be written</source>
        <translation>son propre format, %1, ne peut pas être écrit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a source of this job</source>
        <translation>«&#xa0;%1&#xa0;» est une source de ce travail</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the result of &quot;%2&quot;</source>
        <translation>«&#xa0;%1&#xa0;» est le résultat de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>written as &quot;%1&quot; (naming policy)</source>
        <translation>écrit sous le nom «&#xa0;%1&#xa0;» (règle des noms)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was overwritten (naming policy)</source>
        <translation>«&#xa0;%1&#xa0;» a été remplacé (règle des noms)</translation>
    </message>
    <message>
        <source>written as %1 (write-to-format policy)</source>
        <translation>écrit en %1 (règle des formats)</translation>
    </message>
    <message>
        <source>The format</source>
        <translation>Le format</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>l’un de %1</translation>
    </message>
    <message>
        <source>The options of the format %1: %2</source>
        <translation>Les options du format %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;, does not exist</source>
        <translation>L’effet %1, «&#xa0;%2&#xa0;», n’existe pas</translation>
    </message>
    <message>
        <source>; there are %1</source>
        <translation>&#x202f;; il y a %1</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>&#x202f;; vouliez-vous dire «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;: %3</source>
        <translation>Effet %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>The job has no files</source>
        <translation>Le travail ne contient aucun fichier</translation>
    </message>
    <message>
        <source>The input policy</source>
        <translation>La règle des entrées</translation>
    </message>
    <message>
        <source>The output policy</source>
        <translation>La règle des sorties</translation>
    </message>
    <message>
        <source>The processing policy</source>
        <translation>La règle du traitement</translation>
    </message>
    <message>
        <source>The naming policy</source>
        <translation>La règle des noms</translation>
    </message>
    <message>
        <source>The write-to-format policy</source>
        <translation>La règle des formats</translation>
    </message>
    <message>
        <source>The shadow&apos;s mode</source>
        <translation>Le mode de l’ombre</translation>
    </message>
    <message>
        <source>The shadow&apos;s opacity</source>
        <translation>L’opacité de l’ombre</translation>
    </message>
    <message>
        <source>The shadow&apos;s distance</source>
        <translation>La distance de l’ombre</translation>
    </message>
    <message>
        <source>The shadow&apos;s size</source>
        <translation>La taille de l’ombre</translation>
    </message>
    <message>
        <source>The background&apos;s type</source>
        <translation>Le type de fond</translation>
    </message>
    <message>
        <source>The background&apos;s opacity</source>
        <translation>L’opacité du fond</translation>
    </message>
    <message>
        <source>The background&apos;s pattern</source>
        <translation>Le motif du fond</translation>
    </message>
    <message>
        <source>The scale of the background&apos;s pattern</source>
        <translation>L’échelle du motif du fond</translation>
    </message>
    <message>
        <source>The background&apos;s image</source>
        <translation>L’image de fond</translation>
    </message>
    <message>
        <source>the absolute path of a file that exists</source>
        <translation>le chemin absolu d’un fichier existant</translation>
    </message>
    <message>
        <source>The frame&apos;s width</source>
        <translation>La largeur du cadre</translation>
    </message>
    <message>
        <source>The frame&apos;s height</source>
        <translation>La hauteur du cadre</translation>
    </message>
    <message>
        <source>The output folder</source>
        <translation>Le dossier de sortie</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>un chemin absolu</translation>
    </message>
    <message>
        <source>The folder structure</source>
        <translation>La structure des dossiers</translation>
    </message>
    <message>
        <source>The name&apos;s prefix</source>
        <translation>Le préfixe du nom</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s prefix</source>
        <translation>Le nombre de chiffres du préfixe du nom</translation>
    </message>
    <message>
        <source>The name&apos;s middle</source>
        <translation>La partie centrale du nom</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s middle</source>
        <translation>Le nombre de chiffres de la partie centrale du nom</translation>
    </message>
    <message>
        <source>The name&apos;s suffix</source>
        <translation>Le suffixe du nom</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s suffix</source>
        <translation>Le nombre de chiffres du suffixe du nom</translation>
    </message>
    <message>
        <source>The image size&apos;s restriction</source>
        <translation>La restriction de la taille d’image</translation>
    </message>
    <message>
        <source>The image size&apos;s resolution</source>
        <translation>La résolution de la taille d’image</translation>
    </message>
    <message>
        <source>The image size&apos;s side</source>
        <translation>Le côté de la taille d’image</translation>
    </message>
    <message>
        <source>The image size&apos;s unit</source>
        <translation>L’unité de la taille d’image</translation>
    </message>
    <message>
        <source>The image size</source>
        <translation>La taille d’image</translation>
    </message>
    <message>
        <source>a number above 0, up to %1</source>
        <translation>un nombre supérieur à 0, jusqu’à %1</translation>
    </message>
    <message>
        <source>The crop&apos;s type</source>
        <translation>Le type de recadrage</translation>
    </message>
    <message>
        <source>The crop&apos;s width</source>
        <translation>La largeur du recadrage</translation>
    </message>
    <message>
        <source>The crop&apos;s height</source>
        <translation>La hauteur du recadrage</translation>
    </message>
    <message>
        <source>The crop&apos;s alignment</source>
        <translation>L’alignement du recadrage</translation>
    </message>
    <message>
        <source>a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)</source>
        <translation>une somme de 1 (gauche), 2 (droite), 4 (centre), 32 (haut), 64 (bas), 128 (centre)</translation>
    </message>
    <message>
        <source>The frame&apos;s margin</source>
        <translation>La marge du cadre</translation>
    </message>
    <message>
        <source>The frame&apos;s blending</source>
        <translation>Le mode de fusion du cadre</translation>
    </message>
    <message>
        <source>The picture&apos;s opacity</source>
        <translation>L’opacité de l’image</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>un nombre entier %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>un nombre de 0 à 1</translation>
    </message>
    <message>
        <source>%1 is %2; it must be %3</source>
        <translation>%1 vaut %2&#x202f;; valeur attendue&#xa0;: %3</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>renommé</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>remplacé</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>converti</translation>
    </message>
    <message>
        <source>from %1 to %2 (%3)</source>
        <translation>de %1 à %2 (%3)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown</source>
        <translation>«&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message>
        <source>; none is taken here</source>
        <translation>&#x202f;; aucun n’est accepté ici</translation>
    </message>
    <message>
        <source>; known are %1</source>
        <translation>&#x202f;; sont connus&#xa0;: %1</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1: %2</source>
        <translation>JSON invalide à l’octet %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a JSON object is needed, such as {&quot;name&quot;: value}</source>
        <translation>il faut un objet JSON, tel que {&quot;name&quot;: value}</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing; it must be %2</source>
        <translation>«&#xa0;%1&#xa0;» manque&#x202f;; valeur attendue&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be %3</source>
        <translation>«&#xa0;%1&#xa0;» vaut %2&#x202f;; valeur attendue&#xa0;: %3</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>&#x202f;; vouliez-vous dire %1&#x202f;?</translation>
    </message>
    <message>
        <source>a number %1</source>
        <translation>un nombre %1</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>une liste de %1</translation>
    </message>
    <message>
        <source>a colour, #rrggbb or #rrggbbaa</source>
        <translation>une couleur, #rrggbb ou #rrggbbaa</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texte de %1 à %2 caractères</translation>
    </message>
    <message>
        <source>the absolute path of a file</source>
        <translation>le chemin absolu d’un fichier</translation>
    </message>
    <message>
        <source>a list of 2 to %1 points [x, y] with ascending x, numbers %2</source>
        <translation>une liste de 2 à %1 points [x, y] avec x croissant, nombres %2</translation>
    </message>
    <message>
        <source>written</source>
        <translation>écrit</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignoré</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>only the first page</source>
        <translation>seulement la première page</translation>
    </message>
    <message>
        <source>the file lacks its end</source>
        <translation>la fin du fichier manque</translation>
    </message>
    <message>
        <source>colour profile not used</source>
        <translation>profil de couleurs non utilisé</translation>
    </message>
    <message>
        <source>colours converted</source>
        <translation>couleurs converties</translation>
    </message>
    <message>
        <source>metadata lost</source>
        <translation>métadonnées perdues</translation>
    </message>
    <message>
        <source>gain map lost</source>
        <translation>carte de gain perdue</translation>
    </message>
    <message>
        <source>framing without effect</source>
        <translation>cadre sans effet</translation>
    </message>
    <message>
        <source>the decoder found a fault</source>
        <translation>le décodeur a trouvé une anomalie</translation>
    </message>
    <message>
        <source>%1 does not lie in the output folder %2</source>
        <translation>%1 ne se trouve pas dans le dossier de sortie %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>impossible de créer le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is a link; results are not written through it unless links are followed</source>
        <translation>%1 est un lien&#x202f;; les résultats ne passent par un lien que si le suivi des liens est autorisé</translation>
    </message>
    <message>
        <source>the worker&apos;s report is invalid: %1</source>
        <translation>le rapport du processus de traitement est invalide&#xa0;: %1</translation>
    </message>
    <message>
        <source>it takes more memory than the limit of %1 MiB</source>
        <translation>l’image demande plus de mémoire que la limite de %1 Mio</translation>
    </message>
    <message>
        <source>it takes longer than the limit of %1 seconds</source>
        <translation>le traitement dépasse la limite de %1 secondes</translation>
    </message>
    <message>
        <source>the worker wrote more than %1 MiB of messages</source>
        <translation>le processus de traitement a écrit plus de %1 Mio de messages</translation>
    </message>
    <message>
        <source>the worker sent an invalid answer</source>
        <translation>le processus de traitement a envoyé une réponse invalide</translation>
    </message>
    <message>
        <source>the worker %1</source>
        <translation>le processus de traitement %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2</source>
        <translation>impossible de lancer «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>ended by exception 0x%1</source>
        <translation>a été arrêté par l’exception 0x%1</translation>
    </message>
    <message>
        <source>ended by signal %1</source>
        <translation>a été arrêté par le signal %1</translation>
    </message>
    <message>
        <source>%1; its last output: %2</source>
        <translation>%1&#x202f;; sa dernière sortie&#xa0;: %2</translation>
    </message>
    <message>
        <source>ended with exit code %1</source>
        <translation>s’est terminé avec le code de sortie %1</translation>
    </message>
    <message>
        <source>The job is not a batch document</source>
        <translation>Le travail n’est pas un document de lot</translation>
    </message>
    <message>
        <source>The job cannot be read: its reader failed</source>
        <translation>Impossible de lire le travail&#xa0;: son lecteur a échoué</translation>
    </message>
    <message>
        <source>the server crashed %1 times while it worked on the file</source>
        <translation>le serveur s’est arrêté brutalement %1 fois pendant le traitement du fichier</translation>
    </message>
    <message>
        <source>the worker reported a result that is not there</source>
        <translation>le processus de traitement a annoncé un résultat qui n’existe pas</translation>
    </message>
    <message>
        <source>each of %1 names for the result was taken when it was to be written</source>
        <translation>chacun des %1 noms essayés pour le résultat était déjà pris au moment de l’écrire</translation>
    </message>
    <message>
        <source>the journal %1 cannot be used: %2</source>
        <translation>le journal %1 ne peut pas être utilisé&#xa0;: %2</translation>
    </message>
    <message>
        <source>another server holds %1</source>
        <translation>un autre serveur détient %1</translation>
    </message>
    <message>
        <source>%1 cannot be written; the disk may be full</source>
        <translation>impossible d’écrire %1&#x202f;; le disque est peut-être plein</translation>
    </message>
    <message>
        <source>the embedded colour profile is damaged and is not used</source>
        <translation>le profil de couleurs intégré est endommagé et n’est pas utilisé</translation>
    </message>
    <message>
        <source>the embedded colour profile does not fit the picture and is not used</source>
        <translation>le profil de couleurs intégré ne convient pas à l’image et n’est pas utilisé</translation>
    </message>
    <message>
        <source>the embedded colour profile cannot be used</source>
        <translation>le profil de couleurs intégré ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>its colour profile is one for storing colours only; the result is sRGB</source>
        <translation>son profil de couleurs ne sert qu’à stocker des couleurs&#x202f;; le résultat est en sRGB</translation>
    </message>
    <message>
        <source>the job&apos;s colour profile does not describe pictures; the colours are not converted</source>
        <translation>le profil de couleurs du travail ne décrit pas d’images&#x202f;; les couleurs ne sont pas converties</translation>
    </message>
    <message>
        <source>the colour profile cannot be used; the colours are not converted</source>
        <translation>le profil de couleurs ne peut pas être utilisé&#x202f;; les couleurs ne sont pas converties</translation>
    </message>
    <message>
        <source>the colours cannot be converted to sRGB; their values are taken for sRGB as they are</source>
        <translation>les couleurs ne peuvent pas être converties en sRGB&#x202f;; leurs valeurs sont prises telles quelles comme sRGB</translation>
    </message>
    <message>
        <source>the file is HDR; the result has the brightness of common screens</source>
        <translation>le fichier est en HDR&#x202f;; le résultat a la luminosité des écrans courants</translation>
    </message>
    <message>
        <source>its values are complex numbers, which are no colours</source>
        <translation>ses valeurs sont des nombres complexes, pas des couleurs</translation>
    </message>
    <message>
        <source>its kind of colours is not supported: %1</source>
        <translation>son type de couleurs n’est pas pris en charge&#xa0;: %1</translation>
    </message>
    <message>
        <source>its kind of colours is not supported</source>
        <translation>son type de couleurs n’est pas pris en charge</translation>
    </message>
    <message>
        <source>what the file says of its colours is damaged or unknown and is not used</source>
        <translation>les indications de couleurs du fichier sont endommagées ou inconnues et ne sont pas utilisées</translation>
    </message>
    <message>
        <source>the file&apos;s header is damaged</source>
        <translation>l’en-tête du fichier est endommagé</translation>
    </message>
    <message>
        <source>the file holds no picture data, or refers to another file for them</source>
        <translation>le fichier ne contient pas de données d’image ou renvoie à un autre fichier</translation>
    </message>
    <message>
        <source>the file&apos;s header does not fit its picture</source>
        <translation>l’en-tête du fichier ne correspond pas à son image</translation>
    </message>
    <message>
        <source>colour space %1</source>
        <translation>espace de couleurs %1</translation>
    </message>
    <message>
        <source>colours of method %1</source>
        <translation>couleurs selon la méthode %1</translation>
    </message>
    <message>
        <source>its colours are of a kind that is not supported (%1)</source>
        <translation>ses couleurs sont d’un type non pris en charge (%1)</translation>
    </message>
    <message>
        <source>it has %1 channels and does not say what they are</source>
        <translation>il a %1 canaux sans indiquer leur rôle</translation>
    </message>
    <message>
        <source>the transparency of a CMYK picture is left out</source>
        <translation>la transparence d’une image CMJN est omise</translation>
    </message>
    <message>
        <source>it has %1 channels; only the first %2 are used</source>
        <translation>il a %1 canaux&#x202f;; seuls les %2 premiers sont utilisés</translation>
    </message>
    <message>
        <source>the header of the picture data is damaged</source>
        <translation>l’en-tête des données d’image est endommagé</translation>
    </message>
    <message>
        <source>it uses %1, which is not supported</source>
        <translation>non pris en charge&#xa0;: %1</translation>
    </message>
    <message>
        <source>the file ends after %1 % of the picture</source>
        <translation>le fichier s’arrête après %1 % de l’image</translation>
    </message>
    <message>
        <source>an extension of JPEG 2000 (marker %1)</source>
        <translation>une extension de JPEG 2000 (marqueur %1)</translation>
    </message>
    <message>
        <source>two kinds of coding in one picture</source>
        <translation>deux types de codage dans une même image</translation>
    </message>
    <message>
        <source>an unknown kind of coding</source>
        <translation>un type de codage inconnu</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canaux</translation>
    </message>
    <message>
        <source>%1 bits a channel</source>
        <translation>%1 bits par canal</translation>
    </message>
    <message>
        <source>the file ends before the picture does</source>
        <translation>le fichier s’arrête avant la fin de l’image</translation>
    </message>
    <message>
        <source>the picture data are damaged</source>
        <translation>les données d’image sont endommagées</translation>
    </message>
    <message>
        <source>%1 % of the picture are missing</source>
        <translation>il manque %1 % de l’image</translation>
    </message>
    <message>
        <source>packed headers of tiles that are not in order</source>
        <translation>des en-têtes groupés de tuiles en désordre</translation>
    </message>
    <message>
        <source>out of memory while decoding (%1)</source>
        <translation>mémoire insuffisante pendant le décodage (%1)</translation>
    </message>
    <message>
        <source>it is coded in a way that is not supported (%1)</source>
        <translation>son codage n’est pas pris en charge (%1)</translation>
    </message>
    <message>
        <source>the picture data are damaged (%1)</source>
        <translation>les données d’image sont endommagées (%1)</translation>
    </message>
    <message>
        <source>it has %1 pages; only the first is used</source>
        <translation>il a %1 pages&#x202f;; seule la première est utilisée</translation>
    </message>
    <message>
        <source>the file lacks its last bytes, but all of the picture is there</source>
        <translation>il manque les derniers octets du fichier, mais toute l’image est là</translation>
    </message>
    <message>
        <source>decoding takes %1 MiB of memory%2; a worker may use %3 MiB</source>
        <translation>le décodage demande %1 Mio de mémoire%2&#x202f;; un processus de traitement peut en utiliser %3 Mio</translation>
    </message>
    <message>
        <source>, because the picture is not divided into tiles</source>
        <translation>, car l’image n’est pas divisée en tuiles</translation>
    </message>
    <message>
        <source>it is a lossless or hierarchical JPEG file, which is not supported</source>
        <translation>c’est un fichier JPEG sans perte ou hiérarchique, non pris en charge</translation>
    </message>
    <message>
        <source>it is a JPEG file of %1 bits a channel; only 8 are supported</source>
        <translation>c’est un fichier JPEG de %1 bits par canal&#x202f;; seuls 8 sont pris en charge</translation>
    </message>
    <message>
        <source>the file ends before all details of the picture</source>
        <translation>le fichier s’arrête avant tous les détails de l’image</translation>
    </message>
    <message>
        <source>the file ends before its picture begins</source>
        <translation>le fichier s’arrête avant le début de l’image</translation>
    </message>
    <message>
        <source>the file lacks its last bytes; the picture is whole</source>
        <translation>il manque les derniers octets du fichier&#x202f;; l’image est entière</translation>
    </message>
    <message>
        <source>the picture has more pixels than any limit</source>
        <translation>l’image a plus de pixels que toute limite possible</translation>
    </message>
    <message>
        <source>the file is damaged: its picture cannot be decoded</source>
        <translation>le fichier est endommagé&#xa0;: l’image ne peut pas être décodée</translation>
    </message>
    <message>
        <source>the file ends before its picture is complete</source>
        <translation>le fichier s’arrête avant que l’image soit complète</translation>
    </message>
    <message>
        <source>the file is damaged: it has no picture</source>
        <translation>le fichier est endommagé&#xa0;: il ne contient pas d’image</translation>
    </message>
    <message>
        <source>decoding %1 x %2 pixels takes more than a worker may use</source>
        <translation>décoder %1 x %2 pixels demande plus que ce qu’un processus de traitement peut utiliser</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>no decoder knows this kind of file</source>
        <translation>aucun décodeur ne connaît ce type de fichier</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are more than the limit of %3 megapixels</source>
        <translation>%1 x %2 pixels dépassent la limite de %3 mégapixels</translation>
    </message>
    <message>
        <source>the decoder does not know this camera&apos;s files</source>
        <translation>le décodeur ne connaît pas les fichiers de cet appareil photo</translation>
    </message>
    <message>
        <source>the file ends before its picture data does, or the data is damaged</source>
        <translation>le fichier s’arrête avant la fin des données d’image, ou les données sont endommagées</translation>
    </message>
    <message>
        <source>the file lacks picture data: it is cut off, or has been emptied</source>
        <translation>il manque des données d’image dans le fichier&#xa0;: il est tronqué ou a été vidé</translation>
    </message>
    <message>
        <source>its header gives no size of the picture</source>
        <translation>son en-tête ne donne pas la taille de l’image</translation>
    </message>
    <message>
        <source>its sides of %1 and %2 pixels are too long</source>
        <translation>ses côtés de %1 et %2 pixels sont trop longs</translation>
    </message>
    <message>
        <source>its tiles have no size</source>
        <translation>ses tuiles n’ont pas de taille</translation>
    </message>
    <message>
        <source>its tiles are too large</source>
        <translation>ses tuiles sont trop grandes</translation>
    </message>
    <message>
        <source>channels of %1 bits are not supported</source>
        <translation>les canaux de %1 bits ne sont pas pris en charge</translation>
    </message>
    <message>
        <source>its compression (number %1) is not supported</source>
        <translation>sa compression (numéro %1) n’est pas prise en charge</translation>
    </message>
    <message>
        <source>JPEG compression of %1 bits a channel is not supported</source>
        <translation>la compression JPEG de %1 bits par canal n’est pas prise en charge</translation>
    </message>
    <message>
        <source>it holds undeveloped data of a camera; such files are read under the name .dng</source>
        <translation>il contient des données brutes d’appareil photo&#x202f;; ces fichiers se lisent avec l’extension .dng</translation>
    </message>
    <message>
        <source>its kind of colours (number %1) is not supported</source>
        <translation>son type de couleurs (numéro %1) n’est pas pris en charge</translation>
    </message>
    <message>
        <source>it has %1 channels beside its colours and its transparency, which are left out</source>
        <translation>il a %1 canaux en plus de ses couleurs et de sa transparence&#x202f;; ils sont omis</translation>
    </message>
    <message>
        <source>it has inks of its own; only cyan, magenta, yellow and black can be read</source>
        <translation>il utilise ses propres encres&#x202f;; seuls le cyan, le magenta, le jaune et le noir peuvent être lus</translation>
    </message>
    <message>
        <source>it has fewer channels than its kind of colours needs</source>
        <translation>il a moins de canaux que n’en demande son type de couleurs</translation>
    </message>
    <message>
        <source>Lab colours of %1 bits a channel are not supported</source>
        <translation>les couleurs Lab de %1 bits par canal ne sont pas prises en charge</translation>
    </message>
    <message>
        <source>palettes of %1 bits are not supported</source>
        <translation>les palettes de %1 bits ne sont pas prises en charge</translation>
    </message>
    <message>
        <source>its way of storing colours (colour differences in uncompressed tiles) is not supported</source>
        <translation>sa façon de stocker les couleurs (différences de couleur dans des tuiles non compressées) n’est pas prise en charge</translation>
    </message>
    <message>
        <source>its way of storing colours is not supported: %1</source>
        <translation>sa façon de stocker les couleurs n’est pas prise en charge&#xa0;: %1</translation>
    </message>
    <message>
        <source>its strips or tiles have no size that makes sense</source>
        <translation>ses bandes ou tuiles n’ont pas de taille plausible</translation>
    </message>
    <message>
        <source>its strips or tiles need more memory than a worker may use</source>
        <translation>ses bandes ou tuiles demandent plus de mémoire qu’un processus de traitement ne peut utiliser</translation>
    </message>
    <message>
        <source>its palette is missing</source>
        <translation>sa palette de couleurs manque</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>impossible de lire l’image %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the text would be too large at a size of %1 pixels</source>
        <translation>le texte serait trop grand à une taille de %1 pixels</translation>
    </message>
    <message>
        <source>the text has no letters that could be drawn</source>
        <translation>le texte ne contient aucun caractère affichable</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as %3 needs more memory than a worker may use</source>
        <translation>écrire %1 x %2 pixels en %3 demande plus de mémoire qu’un processus de traitement ne peut utiliser</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use</source>
        <translation>écrire %1 x %2 pixels en JPEG XL demande plus de mémoire qu’un processus de traitement ne peut utiliser</translation>
    </message>
    <message>
        <source>the background picture %1 cannot be read: %2</source>
        <translation>impossible de lire l’image de fond %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the frame of %1 x %2 pixels is above the limit of %3 pixels</source>
        <translation>le cadre de %1 x %2 pixels dépasse la limite de %3 pixels</translation>
    </message>
    <message>
        <source>the margins leave nothing of the frame free and have no effect</source>
        <translation>les marges ne laissent rien de libre dans le cadre et restent sans effet</translation>
    </message>
    <message>
        <source>metadata is left out: %1</source>
        <translation>les métadonnées sont omises&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 files cannot hold metadata; it is left out</source>
        <translation>les fichiers %1 ne peuvent pas contenir de métadonnées&#x202f;; elles sont omises</translation>
    </message>
    <message>
        <source>%1 metadata of %2 bytes does not fit into a %3 file and is left out</source>
        <translation>les métadonnées %1 de %2 octets ne tiennent pas dans un fichier %3 et sont omises</translation>
    </message>
    <message>
        <source>EXIF cannot be removed from the result</source>
        <translation>impossible de retirer l’EXIF du résultat</translation>
    </message>
    <message>
        <source>the result may have its EXIF block twice</source>
        <translation>le résultat contient peut-être deux fois son bloc EXIF</translation>
    </message>
    <message>
        <source>the result is too large for all of its metadata to be added; some is left out</source>
        <translation>le résultat est trop grand pour recevoir toutes ses métadonnées&#x202f;; certaines sont omises</translation>
    </message>
    <message>
        <source>metadata cannot be written: %1</source>
        <translation>impossible d’écrire les métadonnées&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 cannot be written and are left out</source>
        <translation>impossible à écrire, donc omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>the notes of the camera&apos;s maker</source>
        <translation>les notes du fabricant de l’appareil</translation>
    </message>
    <message>
        <source>EXIF metadata</source>
        <translation>métadonnées EXIF</translation>
    </message>
    <message>
        <source>IPTC metadata</source>
        <translation>métadonnées IPTC</translation>
    </message>
    <message>
        <source>XMP metadata</source>
        <translation>métadonnées XMP</translation>
    </message>
    <message>
        <source>metadata cannot be read and is left out: %1</source>
        <translation>les métadonnées sont illisibles et donc omises&#xa0;: %1</translation>
    </message>
    <message>
        <source>effect &quot;%1&quot;: %2</source>
        <translation>effet «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>it cannot be applied to the picture</source>
        <translation>il ne peut pas être appliqué à l’image</translation>
    </message>
    <message>
        <source>an effect or the frame cannot be applied to the picture</source>
        <translation>un effet ou le cadre ne peut pas être appliqué à l’image</translation>
    </message>
    <message>
        <source>the encoder for %1 failed</source>
        <translation>l’encodeur %1 a échoué</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1, or not for this depth</source>
        <translation>cette installation n’a pas d’encodeur %1, ou pas pour cette profondeur</translation>
    </message>
    <message>
        <source>%1 cannot hold CMYK, which the job&apos;s colour profile asks for</source>
        <translation>%1 ne peut pas contenir de CMJN, que demande le profil de couleurs du travail</translation>
    </message>
    <message>
        <source>%1 x %2 pixels: %3 holds at most %4 on a side</source>
        <translation>%1 x %2 pixels&#xa0;: %3 accepte au plus %4 par côté</translation>
    </message>
    <message>
        <source>the colour profile does not fit into the %1 file; the result is sRGB</source>
        <translation>le profil de couleurs ne tient pas dans le fichier %1&#x202f;; le résultat est en sRGB</translation>
    </message>
    <message>
        <source>it has %1 pages; only the main one is used</source>
        <translation>il a %1 pages&#x202f;; seule la principale est utilisée</translation>
    </message>
    <message>
        <source>it has a gain map, which the result lacks: highlights are no longer brighter on HDR screens</source>
        <translation>il a une carte de gain que le résultat n’a pas&#xa0;: les hautes lumières ne sont plus plus vives sur les écrans HDR</translation>
    </message>
    <message>
        <source>the result of %1 x %2 pixels would be above the limit of %3 megapixels</source>
        <translation>le résultat de %1 x %2 pixels dépasserait la limite de %3 mégapixels</translation>
    </message>
    <message>
        <source>%1 files cannot hold a colour profile; the result is sRGB</source>
        <translation>les fichiers %1 ne peuvent pas contenir de profil de couleurs&#x202f;; le résultat est en sRGB</translation>
    </message>
    <message>
        <source>the result is sRGB instead of CMYK</source>
        <translation>le résultat est en sRGB au lieu de CMJN</translation>
    </message>
    <message>
        <source>the file is stored in a way that its decoder cannot read</source>
        <translation>le fichier est enregistré sous une forme que son décodeur ne sait pas lire</translation>
    </message>
    <message>
        <source>the file ends before the picture is complete</source>
        <translation>le fichier s’arrête avant que l’image soit complète</translation>
    </message>
    <message>
        <source>the file is damaged after %1 % of the picture</source>
        <translation>le fichier est endommagé après %1 % de l’image</translation>
    </message>
    <message>
        <source>the file is damaged; no part of the picture can be read</source>
        <translation>le fichier est endommagé&#x202f;; aucune partie de l’image n’est lisible</translation>
    </message>
    <message>
        <source>the file is damaged; its header cannot be read</source>
        <translation>le fichier est endommagé&#x202f;; son en-tête est illisible</translation>
    </message>
    <message>
        <source>it needs more memory than a worker may use</source>
        <translation>l’image demande plus de mémoire qu’un processus de traitement ne peut utiliser</translation>
    </message>
    <message>
        <source>its data make no sense</source>
        <translation>ses données sont incohérentes</translation>
    </message>
    <message>
        <source>the picture cannot be processed</source>
        <translation>l’image ne peut pas être traitée</translation>
    </message>
    <message>
        <source>the job cannot be read</source>
        <translation>le travail est illisible</translation>
    </message>
    <message>
        <source>no worker can be started to look at the pictures: %1</source>
        <translation>impossible de lancer un processus de traitement pour examiner les images&#xa0;: %1</translation>
    </message>
    <message>
        <source>the folder cannot be opened</source>
        <translation>impossible d’ouvrir le dossier</translation>
    </message>
    <message>
        <source>%1 is a dangling link</source>
        <translation>%1 est un lien sans cible</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder</source>
        <translation>%1 n’est ni un fichier ni un dossier</translation>
    </message>
    <message>
        <source>%1 is in the job already.</source>
        <translation>%1 est déjà dans le travail.</translation>
    </message>
    <message>
        <source>%1 is nested too deeply for a job.</source>
        <translation>%1 est imbriqué trop profondément pour un travail.</translation>
    </message>
    <message>
        <source>%1 has a name that is not valid UTF-8; rename it to use it.</source>
        <translation>%1 a un nom qui n’est pas en UTF-8 valide&#x202f;; renommez-le pour l’utiliser.</translation>
    </message>
    <message>
        <source>%1 has a name with a character that a job cannot hold; rename it to use it.</source>
        <translation>%1 a un nom avec un caractère qu’un travail ne peut pas contenir&#x202f;; renommez-le pour l’utiliser.</translation>
    </message>
    <message>
        <source>%1 is a dangling link.</source>
        <translation>%1 est un lien sans cible.</translation>
    </message>
    <message>
        <source>%1 leads back to %2; it is not followed.</source>
        <translation>%1 ramène à %2&#x202f;; il n’est pas suivi.</translation>
    </message>
    <message>
        <source>%1 is the folder %2, which is in the job already.</source>
        <translation>%1 est le dossier %2, qui est déjà dans le travail.</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 est ignoré&#xa0;: %2</translation>
    </message>
    <message>
        <source>its results go to %1</source>
        <translation>ses résultats vont dans %1</translation>
    </message>
    <message>
        <source>there is no interrupted run in %1</source>
        <translation>il n’y a pas d’exécution interrompue dans %1</translation>
    </message>
    <message>
        <source>the run that was interrupted in %1 is of another job: its inputs, options or files differ</source>
        <translation>l’exécution interrompue dans %1 est celle d’un autre travail&#xa0;: ses entrées, options ou fichiers diffèrent</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2, none of them of this job</source>
        <translation>%1 exécutions ont été interrompues dans %2, aucune de ce travail</translation>
    </message>
    <message>
        <source>%1 is damaged; remove it to start the run anew</source>
        <translation>%1 est endommagé&#x202f;; supprimez-le pour recommencer l’exécution</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>ligne %1, colonne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>its XML is nested too deeply, or declares what a job must not declare</source>
        <translation>son XML est imbriqué trop profondément, ou déclare ce qu’un travail ne doit pas déclarer</translation>
    </message>
    <message>
        <source>it does not begin with &lt;!DOCTYPE batch&gt;</source>
        <translation>il ne commence pas par &lt;!DOCTYPE batch&gt;</translation>
    </message>
    <message>
        <source>the job %1 cannot be read: %2</source>
        <translation>impossible de lire le travail %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the job %1 is larger than %2 MiB</source>
        <translation>le travail %1 dépasse %2 Mio</translation>
    </message>
    <message>
        <source>%1 is not a batch job: it is not UTF-8 text</source>
        <translation>%1 n’est pas un travail par lots&#xa0;: ce n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>%1 is not a batch job: %2</source>
        <translation>%1 n’est pas un travail par lots&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 existe déjà</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>no output folder</source>
        <translation>pas de dossier de sortie</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>pas d’images</translation>
    </message>
    <message>
        <source>the run in %1 has just been finished</source>
        <translation>l’exécution dans %1 vient de se terminer</translation>
    </message>
    <message>
        <source>it is still running</source>
        <translation>il est encore en cours</translation>
    </message>
    <message>
        <source>the folder cannot be written</source>
        <translation>impossible d’écrire dans le dossier</translation>
    </message>
    <message>
        <source>the same job is already running into %1</source>
        <translation>le même travail est déjà en cours vers %1</translation>
    </message>
    <message>
        <source>the run in %1 cannot be resumed: %2</source>
        <translation>impossible de reprendre l’exécution dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; must end with .csv or .json</source>
        <translation>le nom «&#xa0;%1&#xa0;» doit se terminer par .csv ou .json</translation>
    </message>
    <message>
        <source>it begins like a %1 file, but its extension is not known</source>
        <translation>il commence comme un fichier %1, mais son extension n’est pas connue</translation>
    </message>
    <message>
        <source>the report %1 cannot be written: %2</source>
        <translation>impossible d’écrire le rapport %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>written with a warning: %1</source>
        <translation>écrit avec un avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Opération non permise</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier inexistant</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>N’est pas un dossier</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nom de fichier trop long</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus d’espace libre sur le disque</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tube interrompu</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Trop de niveaux de liens symboliques</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>how many of the darkest and of the brightest pixels may clip</source>
        <translation>combien de pixels les plus sombres et les plus clairs peuvent être écrêtés</translation>
    </message>
    <message>
        <source>together keeps colours as they are; each for itself removes a cast</source>
        <translation>together conserve les couleurs&#x202f;; each retire une dominante</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>standard deviation of the blur in the result; 0 does nothing</source>
        <translation>écart-type du flou dans le résultat&#x202f;; 0 ne fait rien</translation>
    </message>
    <message>
        <source>width on the left</source>
        <translation>largeur à gauche</translation>
    </message>
    <message>
        <source>height at the top</source>
        <translation>hauteur en haut</translation>
    </message>
    <message>
        <source>width on the right</source>
        <translation>largeur à droite</translation>
    </message>
    <message>
        <source>height at the bottom</source>
        <translation>hauteur en bas</translation>
    </message>
    <message>
        <source>of the four; percent is of the picture&apos;s short side, at most 100</source>
        <translation>des quatre&#x202f;; percent se rapporte au petit côté de l’image, au plus 100</translation>
    </message>
    <message>
        <source>of the border; with transparency the result has an alpha channel</source>
        <translation>de la bordure&#x202f;; avec transparence, le résultat a un canal alpha</translation>
    </message>
    <message>
        <source>shift of every value; 100 turns black into white</source>
        <translation>décalage de chaque valeur&#x202f;; 100 change le noir en blanc</translation>
    </message>
    <message>
        <source>-100 is flat grey, 50 doubles all differences</source>
        <translation>-100 donne un gris uniforme, 50 double toutes les différences</translation>
    </message>
    <message>
        <source>below 0 softens</source>
        <translation>au-dessous de 0, adoucit</translation>
    </message>
    <message>
        <source>size of the structures in the result</source>
        <translation>taille des structures dans le résultat</translation>
    </message>
    <message>
        <source>which values are mapped; a grey picture has no single colours and stays as it is</source>
        <translation>quelles valeurs sont transformées&#x202f;; une image en niveaux de gris n’a pas de couleurs séparées et reste telle quelle</translation>
    </message>
    <message>
        <source>differences of this size begin to count as edges</source>
        <translation>à partir de cette taille, les différences comptent comme des contours</translation>
    </message>
    <message>
        <source>how far neighbours are taken in, in the result</source>
        <translation>jusqu’où les pixels voisins comptent, dans le résultat</translation>
    </message>
    <message>
        <source>stops</source>
        <translation>IL</translation>
    </message>
    <message>
        <source>how much; 1 doubles the light</source>
        <translation>de combien&#x202f;; 1 double la lumière</translation>
    </message>
    <message>
        <source>horizontal swaps left and right</source>
        <translation>horizontal échange gauche et droite</translation>
    </message>
    <message>
        <source>luminance weighs the light, luma the stored values, average is their plain mean</source>
        <translation>luminance pondère la lumière, luma les valeurs stockées, average est leur simple moyenne</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>120 turns red towards green</source>
        <translation>120 fait passer le rouge au vert</translation>
    </message>
    <message>
        <source>this value and those below become black</source>
        <translation>cette valeur et celles au-dessous deviennent noires</translation>
    </message>
    <message>
        <source>this value and those above become white</source>
        <translation>cette valeur et celles au-dessus deviennent blanches</translation>
    </message>
    <message>
        <source>above 1 brightens the tones between them</source>
        <translation>au-dessus de 1, éclaircit les tons intermédiaires</translation>
    </message>
    <message>
        <source>the .cube file, with a table of one or three dimensions</source>
        <translation>le fichier .cube, avec une table à une ou trois dimensions</translation>
    </message>
    <message>
        <source>0 leaves the picture as it is</source>
        <translation>0 laisse l’image telle quelle</translation>
    </message>
    <message>
        <source>between the entries of a table of three dimensions</source>
        <translation>entre les entrées d’une table à trois dimensions</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>niveaux</translation>
    </message>
    <message>
        <source>steps from black to white</source>
        <translation>niveaux du noir au blanc</translation>
    </message>
    <message>
        <source>multiples of 90 keep every pixel as it is</source>
        <translation>les multiples de 90 conservent chaque pixel tel quel</translation>
    </message>
    <message>
        <source>fills the corners; with transparency the result has an alpha channel</source>
        <translation>remplit les coins&#x202f;; avec transparence, le résultat a un canal alpha</translation>
    </message>
    <message>
        <source>-100 leaves grey, 100 doubles the strength</source>
        <translation>-100 ne laisse que du gris, 100 double l’intensité</translation>
    </message>
    <message>
        <source>standard deviation of the mask in the result</source>
        <translation>écart-type du masque dans le résultat</translation>
    </message>
    <message>
        <source>how much of the difference to the mask is added</source>
        <translation>quelle part de la différence avec le masque est ajoutée</translation>
    </message>
    <message>
        <source>differences below stay as they are</source>
        <translation>les différences inférieures restent telles quelles</translation>
    </message>
    <message>
        <source>how much the weakest colours change</source>
        <translation>de combien changent les couleurs les plus faibles</translation>
    </message>
    <message>
        <source>of the corners; -100 is black, 100 is white</source>
        <translation>des coins&#x202f;; -100 est noir, 100 est blanc</translation>
    </message>
    <message>
        <source>where it begins on the way from the centre to a corner</source>
        <translation>où cela commence sur le trajet du centre à un coin</translation>
    </message>
    <message>
        <source>length of the transition on the same way</source>
        <translation>longueur de la transition sur le même trajet</translation>
    </message>
    <message>
        <source>the picture that is laid over, best with transparency</source>
        <translation>l’image superposée, de préférence avec transparence</translation>
    </message>
    <message>
        <source>width of the mark; in percent of the picture&apos;s width</source>
        <translation>largeur de la marque&#x202f;; en pour cent de la largeur de l’image</translation>
    </message>
    <message>
        <source>space to the sides of the picture, and between tiles</source>
        <translation>espace jusqu’aux bords de l’image et entre les répétitions</translation>
    </message>
    <message>
        <source>of size and margin; a margin in percent is of the picture&apos;s short side; percent is at most 100</source>
        <translation>de size et margin&#x202f;; margin en pour cent se rapporte au petit côté de l’image&#x202f;; percent est au plus 100</translation>
    </message>
    <message>
        <source>0 is invisible</source>
        <translation>0 est invisible</translation>
    </message>
    <message>
        <source>where the mark stands</source>
        <translation>où se place la marque</translation>
    </message>
    <message>
        <source>repeats the mark over the whole picture</source>
        <translation>répète la marque sur toute l’image</translation>
    </message>
    <message>
        <source>of the letters</source>
        <translation>des lettres</translation>
    </message>
    <message>
        <source>height of a line of text; in percent of the picture&apos;s short side</source>
        <translation>hauteur d’une ligne de texte&#x202f;; en pour cent du petit côté de l’image</translation>
    </message>
    <message>
        <source>above 0 warmer, below 0 cooler</source>
        <translation>au-dessus de 0 plus chaud, au-dessous plus froid</translation>
    </message>
    <message>
        <source>above 0 more magenta, below 0 greener</source>
        <translation>au-dessus de 0 plus magenta, au-dessous plus vert</translation>
    </message>
    <message>
        <source>keep every pixel, but for a last step of rounding</source>
        <translation>conserver chaque pixel, à un dernier arrondi près</translation>
    </message>
    <message>
        <source>higher is slower and better</source>
        <translation>plus élevé&#xa0;: plus lent et meilleur</translation>
    </message>
    <message>
        <source>keep every pixel as it is</source>
        <translation>conserver chaque pixel tel quel</translation>
    </message>
    <message>
        <source>higher is better and larger</source>
        <translation>plus élevé&#xa0;: meilleur et plus gros</translation>
    </message>
    <message>
        <source>shows a coarse picture first while it loads</source>
        <translation>affiche d’abord une image grossière pendant le chargement</translation>
    </message>
    <message>
        <source>resolution of colour; auto is 4:4:4 from quality 90</source>
        <translation>résolution de la couleur&#x202f;; auto vaut 4:4:4 à partir de la qualité 90</translation>
    </message>
    <message>
        <source>bits a channel; by default those of the input, as far as the format has them: %1</source>
        <translation>bits par canal&#x202f;; par défaut ceux de l’entrée, si le format les accepte&#xa0;: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>bits</translation>
    </message>
    <message>
        <source>which metadata is kept</source>
        <translation>quelles métadonnées sont conservées</translation>
    </message>
    <message>
        <source>colour under transparency that the format cannot hold</source>
        <translation>couleur sous la transparence que le format ne peut pas contenir</translation>
    </message>
    <message>
        <source>gives the result the input&apos;s modification time</source>
        <translation>donne au résultat la date de modification de l’entrée</translation>
    </message>
    <message>
        <source>keep every pixel that can be seen</source>
        <translation>conserver chaque pixel visible</translation>
    </message>
</context>
</TS>
