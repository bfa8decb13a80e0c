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
    <message>
        <source>required</source>
        <translation>obligatoire</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>facultatif</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>par défaut %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>%1 bits a channel; transparency: %2; CMYK: %3; longest side %4 pixels</source>
        <translation>%1 bits par canal&#x202f;; transparence&#xa0;: %2&#x202f;; CMJN&#xa0;: %3&#x202f;; côté le plus long&#xa0;: %4 pixels</translation>
    </message>
    <message>
        <source>Files that can be read: %1</source>
        <translation>Fichiers lisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: a job without pictures; give them to run or plan, after the job.</source>
        <translation>%1&#xa0;: un travail sans images&#x202f;; elles se donnent à run ou plan, après le travail.</translation>
    </message>
    <message>
        <source>%1: a job without pictures and output folder; give them to run or plan.</source>
        <translation>%1&#xa0;: un travail sans images ni dossier de sortie&#x202f;; ils se donnent à run ou plan.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture.</source>
        <translation>%1&#xa0;: un travail de 1 image.</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture, without an output folder; give --output to run or plan.</source>
        <translation>%1&#xa0;: un travail de 1 image, sans dossier de sortie&#x202f;; --output se donne à run ou plan.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures.</source>
        <translation>%1&#xa0;: un travail de %2 images.</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures, without an output folder; give --output to run or plan.</source>
        <translation>%1&#xa0;: un travail de %2 images, sans dossier de sortie&#x202f;; --output se donne à run ou plan.</translation>
    </message>
    <message>
        <source>Looking at pictures: %1 of %2</source>
        <translation>Examen des images&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 is left out: it begins like a %2 file, but its extension is not known.</source>
        <translation>%1 est laissé de côté&#xa0;: il commence comme un fichier %2, mais son extension est inconnue.</translation>
    </message>
    <message>
        <source>Folders read: %1, pictures found: %2, now in %3</source>
        <translation>Dossiers lus&#xa0;: %1, images trouvées&#xa0;: %2, maintenant dans %3</translation>
    </message>
    <message>
        <source>1 picture</source>
        <translation>1 image</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>Inputs: %1</source>
        <translation>Entrées&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>Planning %1 files</source>
        <translation>Planification de %1 fichiers</translation>
    </message>
    <message>
        <source>replaces the original</source>
        <translation>remplace l’original</translation>
    </message>
    <message>
        <source>sizes in pixels are not known: %1.</source>
        <translation>les tailles en pixels sont inconnues&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 file: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 fichier&#xa0;: %2 sans problème, %3 entre crochets. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>%1 files: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 fichiers&#xa0;: %2 sans problème, %3 entre crochets. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>comes along</source>
        <translation>fourni</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>personnel</translation>
    </message>
    <message>
        <source>the preset %1 in %2 cannot be used: %3</source>
        <translation>le préréglage %1 dans %2 est inutilisable&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: the preset %2.</source>
        <translation>%1&#xa0;: le préréglage %2.</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1.</source>
        <translation>impossible d’écrire sur la sortie standard&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1: name files, or folders with pictures that can be read</source>
        <translation>%1&#xa0;: indiquez des fichiers, ou des dossiers avec des images lisibles</translation>
    </message>
    <message>
        <source>%1: use --output DIR</source>
        <translation>%1&#xa0;: utilisez --output DIR</translation>
    </message>
    <message>
        <source>%1; use --force to replace it</source>
        <translation>%1&#x202f;; utilisez --force pour le remplacer</translation>
    </message>
    <message>
        <source>%1. Use --resume with --output alone to resume that run, or run this job without --resume</source>
        <translation>%1. Utilisez --resume avec --output seul pour reprendre cette exécution, ou exécutez ce travail sans --resume</translation>
    </message>
    <message>
        <source>%1; use --resume --run NAME with one of these names</source>
        <translation>%1&#x202f;; utilisez --resume --run NAME avec un de ces noms</translation>
    </message>
    <message>
        <source>an earlier run of this job was interrupted; this run starts anew. Use --resume to continue an interrupted run.</source>
        <translation>une exécution précédente de ce travail a été interrompue&#x202f;; celle-ci recommence du début. --resume reprend une exécution interrompue.</translation>
    </message>
    <message>
        <source>1 other run was interrupted in %1; it can still be resumed: %2</source>
        <translation>1 autre exécution a été interrompue dans %1&#x202f;; elle peut encore être reprise&#xa0;: %2</translation>
    </message>
    <message>
        <source>%3 other runs were interrupted in %1; they can still be resumed: %2</source>
        <translation>%3 autres exécutions ont été interrompues dans %1&#x202f;; elles peuvent encore être reprises&#xa0;: %2</translation>
    </message>
    <message>
        <source>should it be interrupted, the run cannot be resumed: %1.</source>
        <translation>en cas d’interruption, l’exécution ne pourra pas être reprise&#xa0;: %1.</translation>
    </message>
    <message>
        <source>another batch server is running, and this system has only one pipe for it; try again when that run is over.</source>
        <translation>un autre serveur de traitement est actif, et ce système n’a qu’un tube pour lui&#x202f;; réessayez quand cette exécution sera finie.</translation>
    </message>
    <message>
        <source>To resume: %1</source>
        <translation>Pour reprendre&#xa0;: %1</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: 1 picture was left out.</source>
        <translation>sans terminal, il n’y avait personne à interroger&#xa0;: 1 image a été ignorée.</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: %1 pictures were left out.</source>
        <translation>sans terminal, il n’y avait personne à interroger&#xa0;: %1 images ont été ignorées.</translation>
    </message>
    <message>
        <source>%1 decides such cases.</source>
        <translation>%1 décide de ces cas.</translation>
    </message>
    <message>
        <source>%1 and %2 decide such cases.</source>
        <translation>%1 et %2 décident de ces cas.</translation>
    </message>
    <message>
        <source>1 result was renamed, because other sources of the job have such names.</source>
        <translation>1 résultat a été renommé, car d’autres sources du travail portent ces noms.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because other sources of the job have such names.</source>
        <translation>%1 résultats ont été renommés, car d’autres sources du travail portent ces noms.</translation>
    </message>
    <message>
        <source>1 result was renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>1 résultat a été renommé, car un original porte ce nom&#x202f;; --in-place remplace les originaux.</translation>
    </message>
    <message>
        <source>%1 results were renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>%1 résultats ont été renommés, car des originaux portent ces noms&#x202f;; --in-place remplace les originaux.</translation>
    </message>
    <message>
        <source>no worker can be started; VelkoraBatchWorker belongs beside %1.</source>
        <translation>impossible de lancer un processus de traitement&#x202f;; VelkoraBatchWorker doit être à côté de %1.</translation>
    </message>
    <message>
        <source>No picture was processed. --structure input keeps the folders of the inputs, --on-name-exists rename numbers such names, and another --name, --prefix or --suffix tells them apart.</source>
        <translation>Aucune image n’a été traitée. --structure input conserve les dossiers des entrées, --on-name-exists rename numérote ces noms, et --name, --prefix ou --suffix peuvent les distinguer.</translation>
    </message>
    <message>
        <source>the server ended before it had processed anything; see its messages above.</source>
        <translation>le serveur s’est arrêté avant d’avoir traité quoi que ce soit&#x202f;; voir ses messages ci-dessus.</translation>
    </message>
    <message>
        <source>the server cannot be started; VelkoraBatchProcessing belongs beside %1.</source>
        <translation>impossible de lancer le serveur&#x202f;; VelkoraBatchProcessing doit être à côté de %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>More: velkora-batch --help, or velkora-batch help COMMAND</source>
        <translation>En savoir plus&#xa0;: velkora-batch --help, ou velkora-batch help COMMAND</translation>
    </message>
    <message>
        <source>velkora-batch %1.</source>
        <translation>velkora-batch %1.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>prints this text; after a command, the help of that command</source>
        <translation>affiche ce texte&#x202f;; après une commande, l’aide de cette commande</translation>
    </message>
    <message>
        <source>prints the version; with --verbose, also how this system confines the processes that read pictures</source>
        <translation>affiche la version&#x202f;; avec --verbose, aussi la façon dont ce système isole les processus qui lisent les images</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1. Values: %2</source>
        <translation>%1. Valeurs&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1. May be given several times</source>
        <translation>%1. Peut être donné plusieurs fois</translation>
    </message>
    <message>
        <source>(%1 bytes in the job)</source>
        <translation>(%1 octets dans le travail)</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>1 picture.</source>
        <translation>1 image.</translation>
    </message>
    <message>
        <source>%1 pictures.</source>
        <translation>%1 images.</translation>
    </message>
    <message>
        <source>1 picture, %1 new.</source>
        <translation>1 image, dont %1 nouvelle.</translation>
    </message>
    <message>
        <source>%1 pictures, %2 new.</source>
        <translation>%1 images, dont %2 nouvelles.</translation>
    </message>
    <message>
        <source>1 name is taken.</source>
        <translation>1 nom est déjà pris.</translation>
    </message>
    <message>
        <source>%1 names are taken.</source>
        <translation>%1 noms sont déjà pris.</translation>
    </message>
    <message>
        <source>1 file that exists will be replaced.</source>
        <translation>1 fichier existant sera remplacé.</translation>
    </message>
    <message>
        <source>%1 files that exist will be replaced.</source>
        <translation>%1 fichiers existants seront remplacés.</translation>
    </message>
    <message>
        <source>1 picture cannot be written.</source>
        <translation>1 image ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>%1 pictures cannot be written.</source>
        <translation>%1 images ne peuvent pas être écrites.</translation>
    </message>
    <message>
        <source>There is too little room: the results take %1, but only %2 are free.</source>
        <translation>L’espace manque&#xa0;: les résultats prennent %1, mais seuls %2 sont libres.</translation>
    </message>
    <message>
        <source>There may be too little room: the results take about %1 (± %2 %), but only %3 are free.</source>
        <translation>L’espace manque peut-être&#xa0;: les résultats prennent environ %1 (± %2 %), mais seuls %3 sont libres.</translation>
    </message>
    <message>
        <source>The results take %1.</source>
        <translation>Les résultats prennent %1.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %).</source>
        <translation>Les résultats prennent environ %1 (± %2 %).</translation>
    </message>
    <message>
        <source>The results take %1; %2 are free.</source>
        <translation>Les résultats prennent %1&#x202f;; %2 sont libres.</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %); %3 are free.</source>
        <translation>Les résultats prennent environ %1 (± %2 %)&#x202f;; %3 sont libres.</translation>
    </message>
    <message>
        <source>Add pictures to begin.</source>
        <translation>Ajoutez des images pour commencer.</translation>
    </message>
    <message>
        <source>What you edit cannot be kept in %1; save the job before the window ends.</source>
        <translation>Impossible de conserver dans %1 ce qui est modifié&#x202f;; enregistrez le travail avant de fermer la fenêtre.</translation>
    </message>
    <message>
        <source>The command line that does the same is on the clipboard.</source>
        <translation>La ligne de commande qui fait la même chose est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>&amp;New job</source>
        <translation>&amp;Nouveau travail</translation>
    </message>
    <message>
        <source>Open &amp;job…</source>
        <translation>&amp;Ouvrir un travail…</translation>
    </message>
    <message>
        <source>R&amp;ecent jobs</source>
        <translation>&amp;Travaux récents</translation>
    </message>
    <message>
        <source>&amp;Save job</source>
        <translation>&amp;Enregistrer le travail</translation>
    </message>
    <message>
        <source>Save job &amp;as…</source>
        <translation>Enregistrer le travail &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>&amp;Copier comme commande</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (introuvable)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Save as preset…</source>
        <translation>&amp;Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>&amp;Rename preset…</source>
        <translation>&amp;Renommer le préréglage…</translation>
    </message>
    <message>
        <source>&amp;Delete preset</source>
        <translation>&amp;Supprimer le préréglage</translation>
    </message>
    <message>
        <source>&amp;Import preset…</source>
        <translation>&amp;Importer un préréglage…</translation>
    </message>
    <message>
        <source>&amp;Export preset…</source>
        <translation>E&amp;xporter le préréglage…</translation>
    </message>
    <message>
        <source>The job before this one was not saved.</source>
        <translation>Le travail précédent n’a pas été enregistré.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Le récupérer</translation>
    </message>
    <message>
        <source>The window did not end as it should; this is what was edited last.</source>
        <translation>La fenêtre ne s’est pas fermée normalement&#x202f;; voici le dernier état du travail.</translation>
    </message>
    <message>
        <source>Import preset</source>
        <translation>Importer un préréglage</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Export preset</source>
        <translation>Exporter le préréglage</translation>
    </message>
    <message>
        <source>The settings are saved in %1.</source>
        <translation>Les réglages sont enregistrés dans %1.</translation>
    </message>
    <message>
        <source>The preset %1 is deleted; the settings stay as they are.</source>
        <translation>Le préréglage %1 est supprimé&#x202f;; les réglages restent tels quels.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Batch jobs (%1)</source>
        <translation>Travaux par lots (%1)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The job &quot;%1&quot; has changes that are not saved.</source>
        <translation>Le travail «&#xa0;%1&#xa0;» contient des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>Abandonner les &amp;modifications</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nouveau travail</translation>
    </message>
    <message>
        <source>Open job</source>
        <translation>Ouvrir un travail</translation>
    </message>
    <message>
        <source>Save job</source>
        <translation>Enregistrer le travail</translation>
    </message>
    <message>
        <source>%1 exists; choose it to replace it.</source>
        <translation>%1 existe déjà&#x202f;; choisissez ce fichier pour le remplacer.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Aucun préréglage</translation>
    </message>
    <message>
        <source>This preset cannot be used as it is: %1</source>
        <translation>Ce préréglage est inutilisable en l’état&#xa0;: %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Préréglage %1</translation>
    </message>
    <message>
        <source>The preset %1 cannot be used as it is: %2</source>
        <translation>Le préréglage %1 est inutilisable en l’état&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>Cancel the naming of the preset</source>
        <translation>Annuler le choix du nom du préréglage</translation>
    </message>
    <message>
        <source>Save the settings as the preset</source>
        <translation>Enregistrer les réglages comme préréglage</translation>
    </message>
    <message>
        <source>New name of the preset %1</source>
        <translation>Nouveau nom du préréglage %1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Replace the preset %1</source>
        <translation>Remplacer le préréglage %1</translation>
    </message>
    <message>
        <source>You have a preset of this name; it would be replaced.</source>
        <translation>Un préréglage personnel de ce nom existe déjà&#x202f;; il serait remplacé.</translation>
    </message>
    <message>
        <source>Processes pictures in batches, in a window.</source>
        <translation>Traite des images par lots, dans une fenêtre.</translation>
    </message>
    <message>
        <source>Pictures and folders to add.</source>
        <translation>Images et dossiers à ajouter.</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Arrêter l’ajout</translation>
    </message>
    <message>
        <source>Adding pictures…</source>
        <translation>Ajout des images…</translation>
    </message>
    <message>
        <source>Problems of this kind: %1; point here to read them.</source>
        <translation>Problèmes de ce genre&#xa0;: %1&#x202f;; survolez ce texte pour les lire.</translation>
    </message>
    <message>
        <source>Add pictures</source>
        <translation>Ajouter des images</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>%1 does not exist any more</source>
        <translation>%1 n’existe plus</translation>
    </message>
    <message>
        <source>Add &amp;files…</source>
        <translation>Ajouter des &amp;fichiers…</translation>
    </message>
    <message>
        <source>Add f&amp;older…</source>
        <translation>Ajouter un &amp;dossier…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>S&amp;how in folder</source>
        <translation>&amp;Afficher dans le dossier</translation>
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
        <translation>Image</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Grid of pictures</source>
        <translation>Grille des images</translation>
    </message>
    <message>
        <source>List of pictures</source>
        <translation>Liste des images</translation>
    </message>
    <message>
        <source>1 picture in 1 folder</source>
        <translation>1 image dans 1 dossier</translation>
    </message>
    <message>
        <source>%1 pictures in 1 folder</source>
        <translation>%1 images dans 1 dossier</translation>
    </message>
    <message>
        <source>%1 pictures in %2 folders</source>
        <translation>%1 images dans %2 dossiers</translation>
    </message>
    <message>
        <source>Drop pictures and folders here, or add them with the buttons below.</source>
        <translation>Déposez ici des images et des dossiers, ou ajoutez-les avec les boutons ci-dessous.</translation>
    </message>
    <message>
        <source>Show only pictures whose names contain</source>
        <translation>Afficher seulement les images dont le nom contient</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Show only pictures with the state</source>
        <translation>Afficher seulement les images dans l’état</translation>
    </message>
    <message>
        <source>All pictures</source>
        <translation>Toutes les images</translation>
    </message>
    <message>
        <source>Name taken</source>
        <translation>Nom déjà pris</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Remove pictures</source>
        <translation>Retirer des images</translation>
    </message>
    <message>
        <source>%1 of %2 pictures</source>
        <translation>%1 images sur %2</translation>
    </message>
    <message>
        <source>Cannot be written</source>
        <translation>Impossible à écrire</translation>
    </message>
    <message>
        <source>This file cannot be shown.</source>
        <translation>Impossible d’afficher ce fichier.</translation>
    </message>
    <message>
        <source>Folder %1, pictures: %2</source>
        <translation>Dossier %1, images&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, written as %2</source>
        <translation>%1, écrit sous le nom %2</translation>
    </message>
    <message>
        <source>%1, written as %2: %3</source>
        <translation>%1, écrit sous le nom %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>Ligne entre avant et après</translation>
    </message>
    <message>
        <source>Sizes before and after</source>
        <translation>Taille avant et après</translation>
    </message>
    <message>
        <source>State of the preview</source>
        <translation>État de l’aperçu</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>Show all of the picture (1)</source>
        <translation>Afficher toute l’image (1)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One pixel of the result on one pixel of the screen (2)</source>
        <translation>Un pixel du résultat sur un pixel de l’écran (2)</translation>
    </message>
    <message>
        <source>&amp;200 %</source>
        <translation>&amp;200 %</translation>
    </message>
    <message>
        <source>One pixel of the result on four pixels of the screen (3)</source>
        <translation>Un pixel du résultat sur quatre pixels de l’écran (3)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>Before and after with a line between them (4)</source>
        <translation>Avant et après avec une ligne entre les deux (4)</translation>
    </message>
    <message>
        <source>&amp;Side by side</source>
        <translation>&amp;Côte à côte</translation>
    </message>
    <message>
        <source>Before and after side by side (5)</source>
        <translation>Avant et après côte à côte (5)</translation>
    </message>
    <message>
        <source>Preview &amp;anew</source>
        <translation>&amp;Actualiser l’aperçu</translation>
    </message>
    <message>
        <source>Make the preview anew from the file on the disk (F5)</source>
        <translation>Refaire l’aperçu à partir du fichier sur le disque (F5)</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>A&amp;vant</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Show the picture before as long as this is held (space bar on the picture)</source>
        <translation>Afficher l’image avant traitement tant que ce bouton est maintenu (barre d’espace sur l’image)</translation>
    </message>
    <message>
        <source>Choose a picture to see what becomes of it.</source>
        <translation>Choisissez une image pour voir ce qu’elle devient.</translation>
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
        <translation>Exact&#xa0;: %1 de %2 octets, tel qu’une exécution l’écrit&#x202f;; fait en %3 s</translation>
    </message>
    <message>
        <source>The result is too large to be shown here.</source>
        <translation>Le résultat est trop grand pour être affiché ici.</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>after</source>
        <translation>après</translation>
    </message>
    <message>
        <source>Another program is running a batch on this computer: close it, and start this one anew.</source>
        <translation>Un autre programme traite déjà un lot sur cet ordinateur&#xa0;: fermez-le, puis relancez celui-ci.</translation>
    </message>
    <message>
        <source>&amp;Do this for the rest of the run</source>
        <translation>Appli&amp;quer aussi au reste de l’exécution</translation>
    </message>
    <message>
        <source>Question about a picture</source>
        <translation>Question au sujet d’une image</translation>
    </message>
    <message>
        <source>The file that exists</source>
        <translation>Le fichier existant</translation>
    </message>
    <message>
        <source>The picture whose result would have its name</source>
        <translation>L’image dont le résultat porterait ce nom</translation>
    </message>
    <message>
        <source>Interrupted run</source>
        <translation>Exécution interrompue</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>Re&amp;prendre</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>Ou&amp;blier</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Cancel the run</source>
        <translation>A&amp;bandonner l’exécution</translation>
    </message>
    <message>
        <source>Resu&amp;me the run</source>
        <translation>&amp;Reprendre l’exécution</translation>
    </message>
    <message>
        <source>S&amp;how failed</source>
        <translation>Affic&amp;her les échecs</translation>
    </message>
    <message>
        <source>Retr&amp;y failed</source>
        <translation>Réessa&amp;yer les échecs</translation>
    </message>
    <message>
        <source>Open fo&amp;lder</source>
        <translation>Ouvr&amp;ir le dossier</translation>
    </message>
    <message>
        <source>Sa&amp;ve report</source>
        <translation>Enre&amp;gistrer le rapport</translation>
    </message>
    <message>
        <source>Put &amp;away</source>
        <translation>Mas&amp;quer</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progression de l’exécution</translation>
    </message>
    <message>
        <source>The batch server has ended unexpectedly; a new one goes on.</source>
        <translation>Le serveur de traitement s’est arrêté de façon inattendue&#x202f;; un nouveau prend le relais.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: its journal cannot be read.</source>
        <translation>Impossible de reprendre l’exécution&#xa0;: son journal est illisible.</translation>
    </message>
    <message>
        <source>The failed pictures cannot be tried again: the journal of their run cannot be used.</source>
        <translation>Impossible de réessayer les images en échec&#xa0;: le journal de leur exécution est inutilisable.</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>&amp;Poursuivre</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 sur %2 traitées</translation>
    </message>
    <message>
        <source>%1 of %2 done, %3 left</source>
        <translation>%1 sur %2 traitées, reste %3</translation>
    </message>
    <message>
        <source>Pausing: pictures in work are finished first</source>
        <translation>Mise en pause&#xa0;: les images en cours sont d’abord terminées</translation>
    </message>
    <message>
        <source>Paused, %1 of %2 done</source>
        <translation>En pause, %1 sur %2 traitées</translation>
    </message>
    <message>
        <source>%1 written, %2 skipped, %3 failed</source>
        <translation>%1 écrites, %2 ignorées, %3 en échec</translation>
    </message>
    <message>
        <source>Finished in %1: all %2 pictures were written.</source>
        <translation>Terminé en %1&#xa0;: les %2 images ont toutes été écrites.</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 skipped, %4 failed.</source>
        <translation>Terminé en %1&#xa0;: %2 écrites, %3 ignorées, %4 en échec.</translation>
    </message>
    <message>
        <source>Nothing was written: %1.</source>
        <translation>Rien n’a été écrit&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing can be written: the program VelkoraBatchWorker is missing or cannot be started.</source>
        <translation>Impossible d’écrire&#xa0;: le programme VelkoraBatchWorker manque ou ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>The batch server was lost after %1 of %2 pictures. The run can be resumed.</source>
        <translation>Le serveur de traitement a été perdu après %1 images sur %2. L’exécution peut être reprise.</translation>
    </message>
    <message>
        <source>Cancelled after %1 of %2 pictures. The run can be resumed.</source>
        <translation>Annulé après %1 images sur %2. L’exécution peut être reprise.</translation>
    </message>
    <message>
        <source>A run was interrupted after %1 of %2 pictures. Its results go to %3.</source>
        <translation>Une exécution a été interrompue après %1 images sur %2. Ses résultats vont dans %3.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The result of %1 cannot be written: %2.</source>
        <translation>Impossible d’écrire le résultat de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be processed: %2.</source>
        <translation>Impossible de traiter %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The name %1, for the result of %2, is taken.</source>
        <translation>Le nom %1, pour le résultat de %2, est déjà pris.</translation>
    </message>
    <message>
        <source>%1 cannot be written in this format: %2.</source>
        <translation>Impossible d’écrire %1 dans ce format&#xa0;: %2.</translation>
    </message>
    <message>
        <source>S&amp;kip it</source>
        <translation>I&amp;gnorer l’image</translation>
    </message>
    <message>
        <source>Stop t&amp;he run</source>
        <translation>Arrêter l’exécut&amp;ion</translation>
    </message>
    <message>
        <source>Over&amp;write</source>
        <translation>Remplacer le fic&amp;hier</translation>
    </message>
    <message>
        <source>Number t&amp;he new one</source>
        <translation>A&amp;jouter un numéro au nouveau</translation>
    </message>
    <message>
        <source>Wr&amp;ite the nearest format</source>
        <translation>Utiliser le format le plus proc&amp;he</translation>
    </message>
    <message>
        <source>%1, switched off</source>
        <translation>%1, désactivé</translation>
    </message>
    <message>
        <source>Switch on %1</source>
        <translation>Activer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Switch off %1</source>
        <translation>Désactiver «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Remove %1 effects</source>
        <translation>Retirer %1 effets</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Dupliquer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Déplacer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Effects in the order in which they are applied</source>
        <translation>Effets dans l’ordre où ils sont appliqués</translation>
    </message>
    <message>
        <source>Effec&amp;ts</source>
        <translation>&amp;Effets</translation>
    </message>
    <message>
        <source>Add an effect</source>
        <translation>Ajouter un effet</translation>
    </message>
    <message>
        <source>Duplicate the effect</source>
        <translation>Dupliquer l’effet</translation>
    </message>
    <message>
        <source>Remove the effect</source>
        <translation>Retirer l’effet</translation>
    </message>
    <message>
        <source>Apply the effect earlier</source>
        <translation>Appliquer l’effet plus tôt</translation>
    </message>
    <message>
        <source>Apply the effect later</source>
        <translation>Appliquer l’effet plus tard</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>No effects</source>
        <translation>Aucun effet</translation>
    </message>
    <message>
        <source>All effects are switched off</source>
        <translation>Tous les effets sont désactivés</translation>
    </message>
    <message>
        <source>Choose a colour for %1</source>
        <translation>Choisir une couleur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 becomes %4</source>
        <translation>Point %1 sur %2&#xa0;: %3 devient %4</translation>
    </message>
    <message>
        <source>Click to add a point and drag to move it; a double click removes it. With keys: Page Up and Page Down choose a point, arrows move it, Insert adds one, Delete removes it.</source>
        <translation>Cliquez pour ajouter un point et faites-le glisser pour le déplacer&#x202f;; un double clic le retire. Au clavier&#xa0;: Page haut et Page bas choisissent un point, les flèches le déplacent, Inser en ajoute un, Suppr le retire.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>Choisir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no complete path; it must begin at the root, such as %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un chemin complet&#x202f;; il doit partir de la racine, par exemple %2.</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Définir&#xa0;: %1</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Automatic levels</source>
        <translation>Niveaux automatiques</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>Profondeur de couleur</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Brightness and contrast</source>
        <translation>Luminosité et contraste</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Chroma subsampling</source>
        <translation>Sous-échantillonnage des couleurs</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>Clarté</translation>
    </message>
    <message>
        <source>Clipped share</source>
        <translation>Part écrêtée</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Compression level</source>
        <translation>Niveau de compression</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Creator and rights</source>
        <translation>Auteur et droits</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Deflate</source>
        <translation>Deflate</translation>
    </message>
    <message>
        <source>Denoise</source>
        <translation>Réduction du bruit</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Each on its own</source>
        <translation>Chacun séparément</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>Effort</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Retourner</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontale</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Interpolation</source>
        <translation>Interpolation</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Kept metadata</source>
        <translation>Métadonnées conservées</translation>
    </message>
    <message>
        <source>Keep the time of the file</source>
        <translation>Garder la date du fichier</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveaux</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>Table de couleurs</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Posterize</source>
        <translation>Postériser</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>Progressif</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sépia</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Radius (sigma)</source>
        <translation>Rayon (sigma)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Douceur</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Commence à</translation>
    </message>
    <message>
        <source>Stops</source>
        <translation>Diaphragmes</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Tetrahedral</source>
        <translation>Tétraédrique</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Nuance</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Ensemble</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Trilinear</source>
        <translation>Trilinéaire</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Vibrance</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Watermark with a picture</source>
        <translation>Filigrane avec image</translation>
    </message>
    <message>
        <source>Watermark with a text</source>
        <translation>Filigrane avec texte</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>Zstandard</source>
        <translation>Zstandard</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recadrage</translation>
    </message>
    <message>
        <source>Kind of crop</source>
        <translation>Type de recadrage</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Ratio %1 : %2</source>
        <translation>Rapport %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Ratio %1 : %2, turned with the picture</source>
        <translation>Rapport %1&#xa0;: %2, tourné avec l’image</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2</source>
        <translation>Ce qui attire l’œil, rapport %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2, turned with the picture</source>
        <translation>Ce qui attire l’œil, rapport %1&#xa0;: %2, tourné avec l’image</translation>
    </message>
    <message>
        <source>Scaled and cut to %1 × %2 px</source>
        <translation>Redimensionné et coupé à %1 × %2 px</translation>
    </message>
    <message>
        <source>Cut to %1 × %2 px</source>
        <translation>Coupé à %1 × %2 px</translation>
    </message>
    <message>
        <source>Borders of one colour are cut off</source>
        <translation>Les bordures d’une seule couleur sont coupées</translation>
    </message>
    <message>
        <source>No crop</source>
        <translation>Aucun recadrage</translation>
    </message>
    <message>
        <source>Error&amp;s</source>
        <translation>Erre&amp;urs</translation>
    </message>
    <message>
        <source>A picture that cannot be read</source>
        <translation>Une image impossible à lire</translation>
    </message>
    <message>
        <source>A result that cannot be written</source>
        <translation>Un résultat impossible à écrire</translation>
    </message>
    <message>
        <source>A picture that cannot be processed</source>
        <translation>Une image impossible à traiter</translation>
    </message>
    <message>
        <source>A name that is taken</source>
        <translation>Un nom déjà pris</translation>
    </message>
    <message>
        <source>A format that cannot hold the picture</source>
        <translation>Un format qui ne peut pas contenir l’image</translation>
    </message>
    <message>
        <source>You are asked</source>
        <translation>Question dans tous les cas</translation>
    </message>
    <message>
        <source>Decided in advance</source>
        <translation>Décidé d’avance</translation>
    </message>
    <message>
        <source>You are asked in %1 of %2 cases</source>
        <translation>Question dans %1 cas sur %2</translation>
    </message>
    <message>
        <source>O&amp;utput folder</source>
        <translation>Dossier de &amp;sortie</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Dossier des résultats</translation>
    </message>
    <message>
        <source>The format of each input</source>
        <translation>Même format que l’entrée</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1, quality %2</source>
        <translation>%1, qualité %2</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>Lay pictures on a frame</source>
        <translation>Placer les images sur un cadre</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge du haut</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Marge du bas</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Opacity of the picture</source>
        <translation>Opacité de l’image</translation>
    </message>
    <message>
        <source>A frame of its own size</source>
        <translation>Cadre de taille indépendante</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Largeur du cadre</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Hauteur du cadre</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Couleur de l’arrière-plan</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Scale of the pattern</source>
        <translation>Échelle du motif</translation>
    </message>
    <message>
        <source>Picture of the background</source>
        <translation>Image d’arrière-plan</translation>
    </message>
    <message>
        <source>Opacity of the background</source>
        <translation>Opacité de l’arrière-plan</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>Type d’ombre</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>Couleur de l’ombre</translation>
    </message>
    <message>
        <source>Opacity of the shadow</source>
        <translation>Opacité de l’ombre</translation>
    </message>
    <message>
        <source>Direction of the light</source>
        <translation>Direction de la lumière</translation>
    </message>
    <message>
        <source>Distance of the shadow</source>
        <translation>Distance de l’ombre</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>Douceur de l’ombre</translation>
    </message>
    <message>
        <source>Fr&amp;ame</source>
        <translation>&amp;Cadre</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>Aucun cadre</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px with a shadow</source>
        <translation>Cadre de %1 × %2 px avec ombre</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px</source>
        <translation>Cadre de %1 × %2 px</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px with a shadow</source>
        <translation>Marges %1, %2, %3, %4 px avec ombre</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px</source>
        <translation>Marges %1, %2, %3, %4 px</translation>
    </message>
    <message>
        <source>&amp;Metadata</source>
        <translation>&amp;Métadonnées</translation>
    </message>
    <message>
        <source>All metadata is kept</source>
        <translation>Toutes les métadonnées sont conservées</translation>
    </message>
    <message>
        <source>No metadata is kept</source>
        <translation>Aucune métadonnée n’est conservée</translation>
    </message>
    <message>
        <source>Kept are %1</source>
        <translation>Sont conservés&#xa0;: %1</translation>
    </message>
    <message>
        <source>First part</source>
        <translation>Première partie</translation>
    </message>
    <message>
        <source>Text of the first part</source>
        <translation>Texte de la première partie</translation>
    </message>
    <message>
        <source>First number of the first part</source>
        <translation>Premier numéro de la première partie</translation>
    </message>
    <message>
        <source>Digits of the first part</source>
        <translation>Chiffres de la première partie</translation>
    </message>
    <message>
        <source>Between the first and the middle part</source>
        <translation>Entre la première partie et la partie centrale</translation>
    </message>
    <message>
        <source>Middle part</source>
        <translation>Partie centrale</translation>
    </message>
    <message>
        <source>Text of the middle part</source>
        <translation>Texte de la partie centrale</translation>
    </message>
    <message>
        <source>First number of the middle part</source>
        <translation>Premier numéro de la partie centrale</translation>
    </message>
    <message>
        <source>Digits of the middle part</source>
        <translation>Chiffres de la partie centrale</translation>
    </message>
    <message>
        <source>Between the middle and the last part</source>
        <translation>Entre la partie centrale et la dernière partie</translation>
    </message>
    <message>
        <source>Last part</source>
        <translation>Dernière partie</translation>
    </message>
    <message>
        <source>Text of the last part</source>
        <translation>Texte de la dernière partie</translation>
    </message>
    <message>
        <source>First number of the last part</source>
        <translation>Premier numéro de la dernière partie</translation>
    </message>
    <message>
        <source>Digits of the last part</source>
        <translation>Chiffres de la dernière partie</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Noms</translation>
    </message>
    <message>
        <source>Example, as if it had been taken on 2024-07-31 at 14:05:09: %1</source>
        <translation>Exemple, comme si l’image avait été prise le 2024-07-31 à 14:05:09&#xa0;: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Exemple&#xa0;: %1</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Selon le format</translation>
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
        <source>Co&amp;lour profile</source>
        <translation>Profi&amp;l de couleurs</translation>
    </message>
    <message>
        <source>Choose the file of a colour profile</source>
        <translation>Choisir le fichier d’un profil de couleurs</translation>
    </message>
    <message>
        <source>Remove the colour profile</source>
        <translation>Retirer le profil de couleurs</translation>
    </message>
    <message>
        <source>A profile of %1 bytes without a name</source>
        <translation>Profil sans nom de %1 octets</translation>
    </message>
    <message>
        <source>The profile of each input</source>
        <translation>Même profil que l’entrée</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Profil de couleurs</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 in at %2 dpi</source>
        <translation>%1 pouces à %2 ppp</translation>
    </message>
    <message>
        <source>%1 cm at %2 dpi</source>
        <translation>%1 cm à %2 ppp</translation>
    </message>
    <message>
        <source>%1 mm at %2 dpi</source>
        <translation>%1 mm à %2 ppp</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Largeur %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Hauteur %1</translation>
    </message>
    <message>
        <source>Short side %1</source>
        <translation>Petit côté %1</translation>
    </message>
    <message>
        <source>Long side %1</source>
        <translation>Grand côté %1</translation>
    </message>
    <message>
        <source>Width %1, only smaller</source>
        <translation>Largeur %1, réduire seulement</translation>
    </message>
    <message>
        <source>Height %1, only smaller</source>
        <translation>Hauteur %1, réduire seulement</translation>
    </message>
    <message>
        <source>Short side %1, only smaller</source>
        <translation>Petit côté %1, réduire seulement</translation>
    </message>
    <message>
        <source>Long side %1, only smaller</source>
        <translation>Grand côté %1, réduire seulement</translation>
    </message>
    <message>
        <source>Width %1, only larger</source>
        <translation>Largeur %1, agrandir seulement</translation>
    </message>
    <message>
        <source>Height %1, only larger</source>
        <translation>Hauteur %1, agrandir seulement</translation>
    </message>
    <message>
        <source>Short side %1, only larger</source>
        <translation>Petit côté %1, agrandir seulement</translation>
    </message>
    <message>
        <source>Long side %1, only larger</source>
        <translation>Grand côté %1, agrandir seulement</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Redimensionnement</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Côté</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>The size stays</source>
        <translation>La taille ne change pas</translation>
    </message>
    <message>
        <source>Pictures that are added now are for the next run.</source>
        <translation>Les images ajoutées maintenant sont pour la prochaine exécution.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>Résultats dans %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>Pr&amp;éréglage</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Previous picture</source>
        <translation>Image &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next picture</source>
        <translation>Image &amp;suivante</translation>
    </message>
    <message>
        <source>Ne&amp;xt pane</source>
        <translation>Volet s&amp;uivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>&amp;Volet précédent</translation>
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
        <translation>E&amp;xécution</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>The run cannot be started: %1.</source>
        <translation>Impossible de démarrer l’exécution&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>Volets</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tableaux (*.csv)</translation>
    </message>
    <message>
        <source>JSON files (*.json)</source>
        <translation>Fichiers JSON (*.json)</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>The report was saved as %1.</source>
        <translation>Le rapport a été enregistré sous %1.</translation>
    </message>
    <message>
        <source>The report was not saved: %1.</source>
        <translation>Le rapport n’a pas été enregistré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The run cannot be forgotten: %1.</source>
        <translation>Impossible d’oublier l’exécution&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The run cannot be resumed: %1.</source>
        <translation>Impossible de reprendre l’exécution&#xa0;: %1.</translation>
    </message>
    <message>
        <source>All pictures are written</source>
        <translation>Toutes les images sont écrites</translation>
    </message>
    <message>
        <source>The run is finished, some pictures are left out</source>
        <translation>L’exécution est terminée, des images ont été laissées de côté</translation>
    </message>
    <message>
        <source>The run is cancelled</source>
        <translation>L’exécution est annulée</translation>
    </message>
    <message>
        <source>The run has stopped</source>
        <translation>L’exécution s’est arrêtée</translation>
    </message>
    <message>
        <source>Pictures are being written</source>
        <translation>Des images sont en cours d’écriture</translation>
    </message>
    <message>
        <source>A picture needs your decision</source>
        <translation>Une image demande une décision</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Show failures</source>
        <translation>Afficher les échecs</translation>
    </message>
    <message>
        <source>Begins with a new job.</source>
        <translation>Commence par un nouveau travail.</translation>
    </message>
    <message>
        <source>The grid shows all pictures; the list can be filtered.</source>
        <translation>La grille montre toutes les images&#x202f;; la liste peut être filtrée.</translation>
    </message>
    <message>
        <source>Written as %1</source>
        <translation>Écrit sous le nom %1</translation>
    </message>
    <message>
        <source>Let other programs go &amp;first</source>
        <translation>Laisser la priorité aux au&amp;tres programmes</translation>
    </message>
    <message>
        <source>Largest file</source>
        <translation>Plus grand fichier</translation>
    </message>
    <message>
        <source>May get smaller</source>
        <translation>Peut être réduite</translation>
    </message>
    <message>
        <source>Least quality</source>
        <translation>Qualité minimale</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>the record of earlier results was ignored: %1. They were not recognised, and not replaced.</source>
        <translation>le registre des résultats précédents a été ignoré : %1. Ils n’ont été ni reconnus ni remplacés.</translation>
    </message>
    <message>
        <source>the results of this update cannot be recorded: %1. The next one tries again.</source>
        <translation>les résultats de cette mise à jour ne peuvent pas être enregistrés : %1. La prochaine réessaiera.</translation>
    </message>
    <message>
        <source>1 result is left from an input that is gone; --delete-orphans removes it:</source>
        <translation>il reste 1 résultat d’une entrée qui n’existe plus ; --delete-orphans le supprime :</translation>
    </message>
    <message>
        <source>%1 results are left from inputs that are gone; --delete-orphans removes them:</source>
        <translation>il reste %1 résultats d’entrées qui n’existent plus ; --delete-orphans les supprime :</translation>
    </message>
    <message>
        <source>not all inputs could be read, so nothing is removed of what seems to be left from inputs that are gone:</source>
        <translation>toutes les entrées n’ont pas pu être lues ; rien n’est donc supprimé de ce qui semble rester d’entrées disparues :</translation>
    </message>
    <message>
        <source>1 result was removed, because its input is gone.</source>
        <translation>1 résultat a été supprimé, car son entrée n’existe plus.</translation>
    </message>
    <message>
        <source>%1 results were removed, because their inputs are gone.</source>
        <translation>%1 résultats ont été supprimés, car leurs entrées n’existent plus.</translation>
    </message>
    <message>
        <source>these results could not be removed:</source>
        <translation>ces résultats n’ont pas pu être supprimés :</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangés</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 were up to date.</source>
        <translation>Terminé en %1 : %2 écrites, %3 étaient à jour.</translation>
    </message>
    <message>
        <source>Make only &amp;what has changed</source>
        <translation>Ne &amp;faire que ce qui a changé</translation>
    </message>
    <message>
        <source>%1. Saved jobs may be given: as the first arguments of run and plan, one as the first argument of show, or to create with --from</source>
        <translation>%1. On peut indiquer des travaux enregistrés : comme premiers arguments de run et plan, un comme premier argument de show, ou à create avec --from</translation>
    </message>
    <message>
        <source>%1 can no longer be read: %2</source>
        <translation>impossible de lire encore %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>watching %1; results go to %2. Ctrl-C ends it.</source>
        <translation>surveillance de %1&#x202f;; les résultats vont dans %2. Ctrl-C y met fin.</translation>
    </message>
    <message>
        <source>warning %1: %2</source>
        <translation>avertissement %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>watching ends, as a policy says; the next start tries these pictures again.</source>
        <translation>la surveillance s’arrête, comme le veut une règle&#x202f;; le prochain lancement réessaie ces images.</translation>
    </message>
    <message>
        <source>Written: %1, skipped: %2, failed: %3.</source>
        <translation>Écrites&#xa0;: %1, ignorées&#xa0;: %2, échouées&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Écrire des métadonnées</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Text has tokens</source>
        <translation>Le texte a des jetons</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Example, with what a picture might say: %1</source>
        <translation>Exemple, avec ce qu’une image pourrait dire&#xa0;: %1</translation>
    </message>
    <message>
        <source>Parts done: %1 of %2. Written: %3, skipped: %4, failed: %5, not processed: %6.</source>
        <translation>Parties faites : %1 sur %2. Écrites : %3, ignorées : %4, échouées : %5, non traitées : %6.</translation>
    </message>
    <message>
        <source>Parts to run again, as they are not done: %1</source>
        <translation>Parties à relancer, car elles ne sont pas faites : %1</translation>
    </message>
    <message>
        <source>Parts to run again, as pictures have failed: %1</source>
        <translation>Parties à relancer, car des images ont échoué : %1</translation>
    </message>
    <message>
        <source>the plan %1 or its journals cannot be removed.</source>
        <translation>le plan %1 ou ses journaux ne peuvent pas être supprimés.</translation>
    </message>
    <message>
        <source>Part %1 of %2 is not done; run it again to go on.</source>
        <translation>La partie %1 sur %2 n&apos;est pas faite ; relancez-la pour continuer.</translation>
    </message>
    <message>
        <source>Part %1: pictures: %2, %3</source>
        <translation>Partie %1 : images : %2, %3</translation>
    </message>
    <message>
        <source>The plan of %1 parts is in %2. For each of them: velkora-batch run --plan %2 --part NUMBER. At the end: velkora-batch collect %2</source>
        <translation>Le plan de %1 parties est dans %2. Pour chacune : velkora-batch run --plan %2 --part NUMBER. À la fin : velkora-batch collect %2</translation>
    </message>
    <message>
        <source>Several presets</source>
        <translation>Plusieurs préréglages</translation>
    </message>
    <message>
        <source>Each picture gets a result of each preset. They go to folders with the names of the presets, in %1.</source>
        <translation>Chaque image reçoit un résultat de chaque préréglage. Ils vont dans des dossiers aux noms des préréglages, dans %1.</translation>
    </message>
    <message>
        <source>Start with several p&amp;resets...</source>
        <translation>Démarrer avec p&amp;lusieurs préréglages...</translation>
    </message>
    <message>
        <source>part %1 was made with %2, but the plan with %3; its pictures may differ.</source>
        <translation>la partie %1 a été faite avec %2, mais le plan avec %3 ; ses images peuvent différer.</translation>
    </message>
    <message>
        <source>no temporary folder can be made: %1. Set %2 to another folder.</source>
        <translation>impossible de créer un dossier temporaire&#xa0;: %1. Donnez un autre dossier à %2.</translation>
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
        <translation>diaphragmes</translation>
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
    <message>
        <source>which metadata is kept; copyright is creator and rights from all of it</source>
        <translation>quelles métadonnées sont conservées&#x202f;; copyright désigne l’auteur et les droits de l’ensemble</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both be &quot;%3&quot;</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» seraient tous deux «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>and so on</source>
        <translation>et ainsi de suite</translation>
    </message>
    <message>
        <source>1 result would get the name of another</source>
        <translation>1 résultat prendrait le nom d’un autre</translation>
    </message>
    <message>
        <source>%1 results would get the names of others</source>
        <translation>%1 résultats prendraient les noms d’autres</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>l’attribut «&#xa0;%1&#xa0;» de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the element &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>l’élément «&#xa0;%1&#xa0;» dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #rrggbbaa, or a name such as white</source>
        <translation>une couleur&#xa0;: #rrggbb, #rrggbbaa, ou un nom comme white</translation>
    </message>
    <message>
        <source>%1, joined with +, or none</source>
        <translation>%1, reliés par +, ou none</translation>
    </message>
    <message>
        <source>2 to %1 points x:y with ascending x, joined with +, numbers %2</source>
        <translation>de 2 à %1 points x:y avec x croissant, reliés par +, nombres %2</translation>
    </message>
    <message>
        <source>workers: not confined on this system</source>
        <translation>processus de traitement&#xa0;: non isolés sur ce système</translation>
    </message>
    <message>
        <source>files of workers: not restricted, as the kernel has no Landlock</source>
        <translation>fichiers des processus de traitement&#xa0;: sans restriction, car le noyau n’a pas Landlock</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, with scopes for signals and sockets</source>
        <translation>fichiers des processus de traitement&#xa0;: ceux du travail, par Landlock %1, avec cloisonnement des signaux et sockets</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, without scopes for signals and sockets</source>
        <translation>fichiers des processus de traitement&#xa0;: ceux du travail, par Landlock %1, sans cloisonnement des signaux et sockets</translation>
    </message>
    <message>
        <source>system calls of workers: a list of allowed ones, by seccomp</source>
        <translation>appels système des processus de traitement&#xa0;: une liste autorisée, par seccomp</translation>
    </message>
    <message>
        <source>system calls of workers: not restricted, as the kernel has no seccomp</source>
        <translation>appels système des processus de traitement&#xa0;: sans restriction, car le noyau n’a pas seccomp</translation>
    </message>
    <message>
        <source>memory of the supervisor: closed to other processes of the user (not dumpable)</source>
        <translation>mémoire du superviseur&#xa0;: fermée aux autres processus de l’utilisateur (non lisible)</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2, which is not kept; keep=copyright keeps it</source>
        <translation>la mention de copyright «&#xa0;%1&#xa0;» n’est que dans %2, qui n’est pas conservé&#x202f;; keep=copyright la conserve</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2 and %3, which are not kept; keep=copyright keeps it</source>
        <translation>la mention de copyright «&#xa0;%1&#xa0;» n’est que dans %2 et %3, qui ne sont pas conservés&#x202f;; keep=copyright la conserve</translation>
    </message>
    <message>
        <source>the format of each input</source>
        <translation>le format de chaque entrée</translation>
    </message>
    <message>
        <source>--dry-run and %1 cannot be combined; remove one of them</source>
        <translation>--dry-run et %1 ne peuvent pas être combinés&#x202f;; retirez l’un des deux</translation>
    </message>
    <message>
        <source>%1 and --preset exclude each other: give one of them to start from</source>
        <translation>%1 et --preset s’excluent&#xa0;: n’en donnez qu’un comme point de départ</translation>
    </message>
    <message>
        <source>no file name for the job: velkora-batch create JOB.xml INPUT...</source>
        <translation>pas de nom de fichier pour le travail&#xa0;: velkora-batch create JOB.xml INPUT...</translation>
    </message>
    <message>
        <source>the first argument must be the file of the job, with a name that ends with .xml, but is &quot;%1&quot;</source>
        <translation>le premier argument doit être le fichier du travail, avec un nom en .xml, mais c’est «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is no file &quot;-&quot;; to read names from standard input, use --files-from -</source>
        <translation>il n’y a pas de fichier «&#xa0;-&#xa0;»&#x202f;; pour lire des noms sur l’entrée standard, utilisez --files-from -</translation>
    </message>
    <message>
        <source>--null needs %1</source>
        <translation>--null exige %1</translation>
    </message>
    <message>
        <source>%1 -: standard input is a terminal; pipe a list into it, or name a file</source>
        <translation>%1 -&#xa0;: l’entrée standard est un terminal&#x202f;; envoyez-y une liste, ou indiquez un fichier</translation>
    </message>
    <message>
        <source>%1 cannot be used with --in-place without --output: results go to the folders of their originals</source>
        <translation>%1 ne va pas avec --in-place sans --output&#xa0;: les résultats vont dans les dossiers de leurs originaux</translation>
    </message>
    <message>
        <source>no pictures: %1 matches nothing</source>
        <translation>pas d’images&#xa0;: %1 ne correspond à rien</translation>
    </message>
    <message>
        <source>no pictures: %1 and %2 match nothing</source>
        <translation>pas d’images&#xa0;: %1 et %2 ne correspondent à rien</translation>
    </message>
    <message>
        <source>no inputs</source>
        <translation>pas d’entrées</translation>
    </message>
    <message>
        <source>%1 is not for &quot;presets %2&quot;, but for &quot;presets %3&quot;</source>
        <translation>%1 ne va pas avec «&#xa0;presets %2&#xa0;», mais avec «&#xa0;presets %3&#xa0;»</translation>
    </message>
    <message>
        <source>the name of the preset is missing: velkora-batch presets %1 NAME</source>
        <translation>le nom du préréglage manque&#xa0;: velkora-batch presets %1 NAME</translation>
    </message>
    <message>
        <source>a preset has no inputs, but &quot;%1&quot; is given behind its name</source>
        <translation>un préréglage n’a pas d’entrées, mais «&#xa0;%1&#xa0;» suit son nom</translation>
    </message>
    <message>
        <source>one preset at a time, but &quot;%1&quot; is given behind its name</source>
        <translation>un seul préréglage à la fois, mais «&#xa0;%1&#xa0;» suit son nom</translation>
    </message>
    <message>
        <source>list takes no name, but &quot;%1&quot; is given; &quot;velkora-batch show --preset NAME&quot; prints a preset</source>
        <translation>list ne prend pas de nom, mais «&#xa0;%1&#xa0;» est donné&#x202f;; «&#xa0;velkora-batch show --preset NAME&#xa0;» affiche un préréglage</translation>
    </message>
    <message>
        <source>%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it</source>
        <translation>%1/BatchExceptionPolicy.ini contient la valeur %2, qui est invalide&#x202f;; %3 passe avant elle</translation>
    </message>
    <message>
        <source>unknown option %1; %2</source>
        <translation>option inconnue %1&#x202f;; %2</translation>
    </message>
    <message>
        <source>it is an option of %1; &quot;velkora-batch %2 --help&quot; lists the options</source>
        <translation>c’est une option de %1&#x202f;; «&#xa0;velkora-batch %2 --help&#xa0;» liste les options</translation>
    </message>
    <message>
        <source>&quot;velkora-batch %1 --help&quot; lists the options</source>
        <translation>«&#xa0;velkora-batch %1 --help&#xa0;» liste les options</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>vouliez-vous dire «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>%1 is a folder, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 est un dossier, pas une commande&#x202f;; vouliez-vous dire «&#xa0;velkora-batch run %1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>%1 is a file, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 est un fichier, pas une commande&#x202f;; vouliez-vous dire «&#xa0;velkora-batch run %1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>%1 is no command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 n’est pas une commande&#x202f;; vouliez-vous dire «&#xa0;velkora-batch run %1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; did you mean &quot;velkora-batch %2&quot;?</source>
        <translation>commande inconnue «&#xa0;%1&#xa0;»&#x202f;; vouliez-vous dire «&#xa0;velkora-batch %2&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>commande inconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>no command: use one of %1, or &quot;velkora-batch --help&quot;</source>
        <translation>pas de commande&#xa0;: utilisez %1, ou «&#xa0;velkora-batch --help&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is not allowed before the command, only %2</source>
        <translation>%1 n’est pas permis avant la commande, seulement %2</translation>
    </message>
    <message>
        <source>help takes one command, but got %1</source>
        <translation>help prend une commande, mais a reçu %1</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, contains a character that a job cannot hold</source>
        <translation>l’argument %1, «&#xa0;%2&#xa0;», contient un caractère qu’un travail ne peut pas contenir</translation>
    </message>
    <message>
        <source>%1 is a switch and takes no value; type %1 alone, or leave it out</source>
        <translation>%1 est un commutateur sans valeur&#x202f;; tapez %1 seul, ou omettez-le</translation>
    </message>
    <message>
        <source>an input of %1 has an empty name</source>
        <translation>une entrée de %1 a un nom vide</translation>
    </message>
    <message>
        <source>%1 is given %2 times, but takes one value; remove &quot;%3&quot; or &quot;%4&quot;</source>
        <translation>%1 est donné %2 fois, mais ne prend qu’une valeur&#x202f;; retirez «&#xa0;%3&#xa0;» ou «&#xa0;%4&#xa0;»</translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation>%1&#xa0;: la valeur %2 manque</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>drops the inputs of the saved job first</source>
        <translation>écarte d’abord les entrées du travail enregistré</translation>
    </message>
    <message>
        <source>also takes the files and folders that a file names, one a line, or standard input for &quot;-&quot;. Relative names start at the current folder</source>
        <translation>prend aussi les fichiers et dossiers que nomme un fichier, un par ligne&#x202f;; «&#xa0;-&#xa0;» désigne l’entrée standard. Les noms relatifs partent du dossier courant</translation>
    </message>
    <message>
        <source>the names of --files-from are separated by NUL, not by line ends</source>
        <translation>les noms de --files-from sont séparés par NUL, pas par des fins de ligne</translation>
    </message>
    <message>
        <source>takes only files whose names match, such as &quot;*.{nef,cr2}&quot;, or whose paths in the given folders match, such as &quot;2024/**/*.jpg&quot;; default: all that can be read. Files that are given by name are always taken</source>
        <translation>ne prend que les fichiers dont le nom correspond, comme «&#xa0;*.{nef,cr2}&#xa0;», ou dont le chemin dans les dossiers donnés correspond, comme «&#xa0;2024/**/*.jpg&#xa0;»&#x202f;; par défaut&#xa0;: tous ceux qui sont lisibles. Les fichiers donnés par leur nom sont toujours pris</translation>
    </message>
    <message>
        <source>leaves out files and folders whose names or paths match, inside the given folders</source>
        <translation>laisse de côté, dans les dossiers donnés, les fichiers et dossiers dont le nom ou le chemin correspond</translation>
    </message>
    <message>
        <source>leaves out folders inside folders</source>
        <translation>laisse de côté les sous-dossiers</translation>
    </message>
    <message>
        <source>includes files and folders whose names begin with a dot</source>
        <translation>inclut les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>the order of the pictures, which numbers in names follow: taken, by capture time, and by the file&apos;s own time where there is none; name, folder by folder; given, as the command line names them. The default is name, or the order of the saved job</source>
        <translation>l’ordre des images, que suivent les numéros dans les noms&#xa0;: taken, par date de prise de vue, à défaut par date du fichier&#x202f;; name, dossier par dossier&#x202f;; given, comme sur la ligne de commande. Par défaut&#xa0;: name, ou l’ordre du travail enregistré</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>prints problems only</source>
        <translation>n’affiche que les problèmes</translation>
    </message>
    <message>
        <source>also prints details for finding faults</source>
        <translation>affiche aussi des détails pour chercher des pannes</translation>
    </message>
    <message>
        <source>prints this text</source>
        <translation>affiche ce texte</translation>
    </message>
    <message>
        <source>prints the help of a command</source>
        <translation>affiche l’aide d’une commande</translation>
    </message>
    <message>
        <source>prints JSON</source>
        <translation>affiche du JSON</translation>
    </message>
    <message>
        <source>writes a job with these inputs and options to a file, or to standard output for &quot;-&quot;</source>
        <translation>écrit un travail avec ces entrées et options dans un fichier, ou sur la sortie standard pour «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>prints a job: its inputs as a tree, its effects, and its output in the words of the options</source>
        <translation>affiche un travail&#xa0;: ses entrées en arbre, ses effets, et sa sortie dans les mots des options</translation>
    </message>
    <message>
        <source>prints every input with its output and its size in pixels, and writes nothing. A problem is printed in brackets, with what the policy would do about it. Exit status: 1 when there are problems</source>
        <translation>affiche chaque entrée avec sa sortie et sa taille en pixels, et n’écrit rien. Un problème est affiché entre crochets, avec ce que la règle en ferait. Code de sortie&#xa0;: 1 s’il y a des problèmes</translation>
    </message>
    <message>
        <source>does not look at every picture for its size in pixels, which takes time for many</source>
        <translation>n’examine pas chaque image pour sa taille en pixels, ce qui est long s’il y en a beaucoup</translation>
    </message>
    <message>
        <source>prints one JSON object for each input</source>
        <translation>affiche un objet JSON par entrée</translation>
    </message>
    <message>
        <source>lists the effects with their parameters</source>
        <translation>liste les effets avec leurs paramètres</translation>
    </message>
    <message>
        <source>lists the output formats with their options, and the files that can be read</source>
        <translation>liste les formats de sortie avec leurs options, et les fichiers lisibles</translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other; remove one of them</source>
        <translation>%1 et %2 se contredisent&#x202f;; retirez l’un des deux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT with an optional unit, such as 800x600, 15x10cm or 6x4in</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas la forme WIDTHxHEIGHT avec une unité facultative, comme 800x600, 15x10cm ou 6x4in</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers, such as %3; or add a unit, as in %4cm</source>
        <translation>«&#xa0;%1&#xa0;» signifie %2 pixels, car un point précède les décimales, mais les pixels se comptent en nombres entiers, comme %3&#x202f;; ou ajoutez une unité, comme dans %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large; each side must be from 1 to %2 pixels</source>
        <translation>«&#xa0;%1&#xa0;» est trop grand&#x202f;; chaque côté doit mesurer de 1 à %2 pixels</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a resolution; add --resolution, as in --resolution 300</source>
        <translation>«&#xa0;%1&#xa0;» exige une résolution&#x202f;; ajoutez --resolution, comme dans --resolution 300</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 pixels at %3 dots per inch; each side must be from 1 to %4</source>
        <translation>«&#xa0;%1&#xa0;» fait %2 pixels à %3 points par pouce&#x202f;; chaque côté doit mesurer de 1 à %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels, but the size is %4: type %5 for the unit of the size, or %6 for pixels</source>
        <translation>«&#xa0;%1&#xa0;» fait %2 x %3 pixels, mais la taille est %4&#xa0;: tapez %5 pour l’unité de la taille, ou %6 pour des pixels</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; needs a size, such as %1:3x2%2</source>
        <translation>«&#xa0;%1:%2&#xa0;» exige une taille, comme %1:3x2%2</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; has a unit, but a ratio has no unit: type %1:%3, or fill:%2 for that size</source>
        <translation>«&#xa0;%1:%2&#xa0;» a une unité, mais un rapport n’en a pas&#xa0;: tapez %1:%3, ou fill:%2 pour cette taille</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with &quot;!&quot;, but only ratio and interesting turn with the picture; remove the &quot;!&quot;</source>
        <translation>«&#xa0;%1&#xa0;» finit par «&#x202f;!&#xa0;», mais seuls ratio et interesting tournent avec l’image&#x202f;; retirez le «&#x202f;!&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point, as in %2</source>
        <translation>«&#xa0;%1&#xa0;» a une virgule&#x202f;; les décimales s’écrivent avec un point, comme dans %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no size</source>
        <translation>«&#xa0;%1&#xa0;» ne prend pas de taille</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a size, such as %1:3x2</source>
        <translation>«&#xa0;%1&#xa0;» exige une taille, comme %1:3x2</translation>
    </message>
    <message>
        <source>Pictures for the web, at most 1600 pixels long</source>
        <translation>Images pour le web, de 1600 pixels de long au plus</translation>
    </message>
    <message>
        <source>Names by capture date, in a folder for each day</source>
        <translation>Noms par date de prise de vue, un dossier par jour</translation>
    </message>
    <message>
        <source>A saved job over other pictures</source>
        <translation>Un travail enregistré sur d’autres images</translation>
    </message>
    <message>
        <source>Files that another program lists</source>
        <translation>Fichiers que liste un autre programme</translation>
    </message>
    <message>
        <source>Camera RAW files in all subfolders</source>
        <translation>Fichiers RAW dans tous les sous-dossiers</translation>
    </message>
    <message>
        <source>What would be written</source>
        <translation>Ce qui serait écrit</translation>
    </message>
    <message>
        <source>A preset over other pictures</source>
        <translation>Un préréglage sur d’autres images</translation>
    </message>
    <message>
        <source>A run that was interrupted</source>
        <translation>Une exécution interrompue</translation>
    </message>
    <message>
        <source>A job for pictures to come</source>
        <translation>Un travail pour des images à venir</translation>
    </message>
    <message>
        <source>A job with one value changed</source>
        <translation>Un travail avec une valeur changée</translation>
    </message>
    <message>
        <source>A saved job, in the words of the options</source>
        <translation>Un travail enregistré, dans les mots des options</translation>
    </message>
    <message>
        <source>Every result&apos;s name, and what is in the way</source>
        <translation>Le nom de chaque résultat, et ce qui gêne</translation>
    </message>
    <message>
        <source>The same for programs</source>
        <translation>La même chose pour des programmes</translation>
    </message>
    <message>
        <source>One effect with its parameters</source>
        <translation>Un effet avec ses paramètres</translation>
    </message>
    <message>
        <source>One format with its options</source>
        <translation>Un format avec ses options</translation>
    </message>
    <message>
        <source>folders are always read with their subfolders, so leave it out</source>
        <translation>les dossiers sont toujours lus avec leurs sous-dossiers, donc omettez-la</translation>
    </message>
    <message>
        <source>name files and folders without an option</source>
        <translation>indiquez les fichiers et dossiers sans option</translation>
    </message>
    <message>
        <source>use --files-from FILE, or --files-from -</source>
        <translation>utilisez --files-from FILE, ou --files-from -</translation>
    </message>
    <message>
        <source>use --hidden for files and folders whose names begin with a dot</source>
        <translation>utilisez --hidden pour les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>use --quality N, or --format-option compression=WORD or compressionLevel=N</source>
        <translation>utilisez --quality N, ou --format-option compression=WORD ou compressionLevel=N</translation>
    </message>
    <message>
        <source>metadata is kept unless --format-option keep=WORD+WORD says which</source>
        <translation>les métadonnées sont conservées, sauf si --format-option keep=WORD+WORD dit lesquelles</translation>
    </message>
    <message>
        <source>use --size %1, with % for a percentage</source>
        <translation>utilisez --size %1, avec % pour un pourcentage</translation>
    </message>
    <message>
        <source>pictures are always turned upright, so leave it out</source>
        <translation>les images sont toujours redressées, donc omettez-la</translation>
    </message>
    <message>
        <source>use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE</source>
        <translation>utilisez --effect watermark-text:text=TEXT ou --effect watermark-image:file=FILE</translation>
    </message>
    <message>
        <source>use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken</source>
        <translation>utilisez --name, --prefix et --suffix, ou --on-name-exists rename pour les noms déjà pris</translation>
    </message>
    <message>
        <source>&quot;velkora-batch plan&quot; prints what a run would write</source>
        <translation>«&#xa0;velkora-batch plan&#xa0;» affiche ce qu’une exécution écrirait</translation>
    </message>
    <message>
        <source>name a saved job as the first input</source>
        <translation>indiquez un travail enregistré comme première entrée</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch formats&quot;</source>
        <translation>utilisez «&#xa0;velkora-batch formats&#xa0;»</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch effects&quot;</source>
        <translation>utilisez «&#xa0;velkora-batch effects&#xa0;»</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch --version&quot;</source>
        <translation>utilisez «&#xa0;velkora-batch --version&#xa0;»</translation>
    </message>
    <message>
        <source>use --%1</source>
        <translation>utilisez --%1</translation>
    </message>
    <message>
        <source>use --effect %1; &quot;velkora-batch effects %1&quot; lists its parameters</source>
        <translation>utilisez --effect %1&#x202f;; «&#xa0;velkora-batch effects %1&#xa0;» liste ses paramètres</translation>
    </message>
    <message>
        <source>processes pictures in batches: effects, size, crop, frame, format and names</source>
        <translation>traite des images par lots&#xa0;: effets, taille, recadrage, cadre, format et noms</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a shadow; add --shadow</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans ombre&#x202f;; ajoutez --shadow</translation>
    </message>
    <message>
        <source>%1 is not an ICC profile</source>
        <translation>%1 n’est pas un profil ICC</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>the name of the saved job</source>
        <translation>le nom du travail enregistré</translation>
    </message>
    <message>
        <source>the folder for the results; it is created when it does not exist, and a relative one starts at the current folder</source>
        <translation>le dossier des résultats&#x202f;; il est créé s’il n’existe pas, et un dossier relatif part du dossier courant</translation>
    </message>
    <message>
        <source>the name of the folder is empty</source>
        <translation>le nom du dossier est vide</translation>
    </message>
    <message>
        <source>the folders below it: flat, none; input, as in the inputs; date, by capture date, or that of the file where a picture has none</source>
        <translation>les dossiers à l’intérieur&#xa0;: flat, aucun&#x202f;; input, comme dans les entrées&#x202f;; date, par date de prise de vue, ou celle du fichier si une image n’en a pas</translation>
    </message>
    <message>
        <source>the format of results, by name or extension; Original keeps that of each input. Changing the format of a saved job drops its format options</source>
        <translation>le format des résultats, par nom ou extension&#x202f;; Original garde celui de chaque entrée. Changer le format d’un travail enregistré écarte ses options de format</translation>
    </message>
    <message>
        <source>an option of the format, such as quality=90; &quot;velkora-batch formats&quot; lists them</source>
        <translation>une option du format, comme quality=90&#x202f;; «&#xa0;velkora-batch formats&#xa0;» les liste</translation>
    </message>
    <message>
        <source>an ICC profile to convert results to and to embed; none keeps each input&apos;s own</source>
        <translation>un profil ICC vers lequel convertir les résultats et à incorporer&#x202f;; none garde celui de chaque entrée</translation>
    </message>
    <message>
        <source>Names of results</source>
        <translation>Noms des résultats</translation>
    </message>
    <message>
        <source>what a name begins with; PART is the same as for --name</source>
        <translation>ce par quoi un nom commence&#x202f;; PART est comme pour --name</translation>
    </message>
    <message>
        <source>what a name ends with</source>
        <translation>ce par quoi un nom finit</translation>
    </message>
    <message>
        <source>the text between prefix and middle</source>
        <translation>le texte entre le préfixe et le milieu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a prefix; add --prefix</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans préfixe&#x202f;; ajoutez --prefix</translation>
    </message>
    <message>
        <source>the text between middle and suffix</source>
        <translation>le texte entre le milieu et le suffixe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a suffix; add --suffix</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans suffixe&#x202f;; ajoutez --suffix</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a size, and this option says which pictures change; use --size %2</source>
        <translation>«&#xa0;%1&#xa0;» est une taille, et cette option dit quelles images changent&#x202f;; utilisez --size %2</translation>
    </message>
    <message>
        <source>Size and crop</source>
        <translation>Taille et recadrage</translation>
    </message>
    <message>
        <source>scales pictures to a length of one side, such as 1600, 50%, 8in, 20cm or 200mm; none keeps the size</source>
        <translation>met les images à une longueur d’un côté, comme 1600, 50%, 8in, 20cm ou 200mm&#x202f;; none garde la taille</translation>
    </message>
    <message>
        <source>the side that --size sets</source>
        <translation>le côté que fixe --size</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a size; add --size</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans taille&#x202f;; ajoutez --size</translation>
    </message>
    <message>
        <source>which pictures --size changes: reduce, only larger ones (default); enlarge, only smaller ones; fit, both; none</source>
        <translation>quelles images --size change&#xa0;: reduce, seulement les plus grandes (par défaut)&#x202f;; enlarge, seulement les plus petites&#x202f;; fit, les deux&#x202f;; none</translation>
    </message>
    <message>
        <source>dots per inch, for lengths in in, cm and mm; also written into results</source>
        <translation>points par pouce, pour les longueurs en in, cm et mm&#x202f;; aussi écrits dans les résultats</translation>
    </message>
    <message>
        <source>none; trim, cuts off a border of one colour; or with WIDTHxHEIGHT: ratio:3x2, the largest frame of that ratio, upright in upright pictures, or ratio:3x2!, never turned; interesting:3x2, the frame of that ratio that draws the eye; fill:800x600 or fill:15x10cm, scales to cover, then cuts; exact:800x600, that many pixels. in, cm and mm become pixels by --resolution</source>
        <translation>none&#x202f;; trim, coupe une bordure unie&#x202f;; ou avec WIDTHxHEIGHT&#xa0;: ratio:3x2, le plus grand cadrage de ce rapport, vertical pour les images verticales, ou ratio:3x2!, jamais tourné&#x202f;; interesting:3x2, le cadrage de ce rapport qui attire l’œil&#x202f;; fill:800x600 ou fill:15x10cm, met à l’échelle pour couvrir, puis coupe&#x202f;; exact:800x600, autant de pixels. in, cm et mm deviennent des pixels par --resolution</translation>
    </message>
    <message>
        <source>where ratio, fill and exact place the frame in the picture</source>
        <translation>où ratio, fill et exact placent le cadrage dans l’image</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without --crop ratio, fill or exact; add one of them</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans --crop ratio, fill ou exact&#x202f;; ajoutez l’un d’eux</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>puts pictures on a frame with margins in pixels: one number for all sides, or LEFT,TOP,RIGHT,BOTTOM; none removes the frame. Each of the options below adds a frame</source>
        <translation>place les images sur un cadre avec des marges en pixels&#xa0;: un nombre pour tous les côtés, ou LEFT,TOP,RIGHT,BOTTOM&#x202f;; none retire le cadre. Chacune des options suivantes ajoute un cadre</translation>
    </message>
    <message>
        <source>the size of the frame in pixels; picture: the size of each picture</source>
        <translation>la taille du cadre en pixels&#x202f;; picture&#xa0;: la taille de chaque image</translation>
    </message>
    <message>
        <source>turns the picture on its frame, clockwise</source>
        <translation>tourne l’image sur son cadre, dans le sens horaire</translation>
    </message>
    <message>
        <source>the opacity of the picture</source>
        <translation>l’opacité de l’image</translation>
    </message>
    <message>
        <source>how the picture is laid over its background</source>
        <translation>comment l’image est posée sur son arrière-plan</translation>
    </message>
    <message>
        <source>the background of the frame: none; colour:#rrggbb; pattern:0 to pattern:7, with :PERCENT for its scale; image:FILE</source>
        <translation>l’arrière-plan du cadre&#xa0;: none&#x202f;; colour:#rrggbb&#x202f;; pattern:0 à pattern:7, avec&#xa0;:PERCENT pour son échelle&#x202f;; image:FILE</translation>
    </message>
    <message>
        <source>the opacity of the background</source>
        <translation>l’opacité de l’arrière-plan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a background; add --background</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans arrière-plan&#x202f;; ajoutez --background</translation>
    </message>
    <message>
        <source>the shadow of the picture: drop; glow, around it; none</source>
        <translation>l’ombre de l’image&#xa0;: drop&#x202f;; glow, tout autour&#x202f;; none</translation>
    </message>
    <message>
        <source>#rrggbb or a name</source>
        <translation>#rrggbb ou un nom</translation>
    </message>
    <message>
        <source>the opacity of the shadow</source>
        <translation>l’opacité de l’ombre</translation>
    </message>
    <message>
        <source>where the light comes from: 0 from the right, 90 from above</source>
        <translation>d’où vient la lumière&#xa0;: 0 de droite, 90 d’en haut</translation>
    </message>
    <message>
        <source>how far the shadow lies from the picture</source>
        <translation>à quelle distance de l’image se trouve l’ombre</translation>
    </message>
    <message>
        <source>how soft the shadow is</source>
        <translation>le flou de l’ombre</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>drops the effects of the saved job first</source>
        <translation>écarte d’abord les effets du travail enregistré</translation>
    </message>
    <message>
        <source>adds an effect after those of the job, such as blur:sigma=2. NAME:{JSON} works as well; off:NAME adds the effect disabled. &quot;velkora-batch effects&quot; lists all effects</source>
        <translation>ajoute un effet après ceux du travail, comme blur:sigma=2. NAME:{JSON} convient aussi&#x202f;; off:NAME ajoute l’effet désactivé. «&#xa0;velkora-batch effects&#xa0;» liste tous les effets</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length above 0 and up to %2, such as 1600, 50%, 8in, 20cm or 200mm; &quot;none&quot; keeps the size</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une longueur au-dessus de 0 et jusqu’à %2, comme 1600, 50%, 8in, 20cm ou 200mm&#x202f;; «&#xa0;none&#xa0;» garde la taille</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; a size is one length, such as 1600 or 20.5cm</source>
        <translation>«&#xa0;%1&#xa0;» a une virgule&#x202f;; une taille est une seule longueur, comme 1600 ou 20.5cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point: type %2</source>
        <translation>«&#xa0;%1&#xa0;» a une virgule&#x202f;; les décimales s’écrivent avec un point&#xa0;: tapez %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma, which no number has: type %2 for that many pixels, %3cm for decimals, or --crop fill:%4 for a width and a height</source>
        <translation>«&#xa0;%1&#xa0;» a une virgule, qu’aucun nombre n’a&#xa0;: tapez %2 pour autant de pixels, %3cm pour des décimales, ou --crop fill:%4 pour une largeur et une hauteur</translation>
    </message>
    <message>
        <source>type %1 for that many pixels</source>
        <translation>tapez %1 pour autant de pixels</translation>
    </message>
    <message>
        <source>type %1 for that</source>
        <translation>tapez %1 pour cela</translation>
    </message>
    <message>
        <source>type 1</source>
        <translation>tapez 1</translation>
    </message>
    <message>
        <source>type 1px</source>
        <translation>tapez 1px</translation>
    </message>
    <message>
        <source>type %1 or %2</source>
        <translation>tapez %1 ou %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a width and a height, but a size is the length of one side: type one of them, with --side to say which, or --crop fill:%2 for exactly that</source>
        <translation>«&#xa0;%1&#xa0;» est une largeur et une hauteur, mais une taille est la longueur d’un côté&#xa0;: tapez l’une des deux, avec --side pour dire laquelle, ou --crop fill:%2 pour exactement cela</translation>
    </message>
    <message>
        <source>%1 (unit %2)</source>
        <translation>%1 (unité %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form KEY=VALUE</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas la forme KEY=VALUE</translation>
    </message>
    <message>
        <source>it takes no parameters, but &quot;%1&quot; is given</source>
        <translation>il ne prend pas de paramètres, mais «&#xa0;%1&#xa0;» est donné</translation>
    </message>
    <message>
        <source>unknown effect &quot;%1&quot;; the effects are %2</source>
        <translation>effet inconnu «&#xa0;%1&#xa0;»&#x202f;; les effets sont %2</translation>
    </message>
    <message>
        <source>effect %1</source>
        <translation>effet %1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>format %1</translation>
    </message>
    <message>
        <source>when a file is missing, damaged, too large or not a picture: skip it, stop the run, or ask</source>
        <translation>si un fichier manque, est endommagé, trop grand ou n’est pas une image&#xa0;: skip l’ignore, stop arrête l’exécution, ask interroge</translation>
    </message>
    <message>
        <source>when a result cannot be written, because of a full disk or missing rights: skip, stop or ask</source>
        <translation>si un résultat ne peut pas être écrit, faute de place ou de droits&#xa0;: skip, stop ou ask</translation>
    </message>
    <message>
        <source>when an effect fails, or a picture takes too long or crashes its worker: skip, stop or ask</source>
        <translation>si un effet échoue, ou si une image prend trop de temps ou fait tomber son processus de traitement&#xa0;: skip, stop ou ask</translation>
    </message>
    <message>
        <source>when a result&apos;s name is taken, on disk, by another result or by a source: skip, overwrite, rename (&quot; (2)&quot; is appended) or ask</source>
        <translation>si le nom d’un résultat est pris, sur le disque, par un autre résultat ou par une source&#xa0;: skip, overwrite, rename (ajoute (2) au nom) ou ask</translation>
    </message>
    <message>
        <source>when a picture cannot be written in the wanted format: skip, stop, ask, or nearest, to write the nearest format that can hold it</source>
        <translation>si une image ne peut pas être écrite dans le format voulu&#xa0;: skip, stop, ask, ou nearest, pour le format le plus proche qui peut la contenir</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Exceptions</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them</source>
        <translation>part d’un préréglage&#x202f;; «&#xa0;velkora-batch presets&#xa0;» les liste</translation>
    </message>
    <message>
        <source>the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)</source>
        <translation>le dossier avec BatchExceptionPolicy.ini (règles par défaut) et presets/ (préréglages personnels)</translation>
    </message>
    <message>
        <source>starts from a saved job</source>
        <translation>part d’un travail enregistré</translation>
    </message>
    <message>
        <source>replaces an existing file</source>
        <translation>remplace un fichier existant</translation>
    </message>
    <message>
        <source>prints the list as JSON</source>
        <translation>affiche la liste en JSON</translation>
    </message>
    <message>
        <source>lists the presets, saves the options as a preset, or removes one. A preset is a job without inputs that run, plan, show and create take by --preset NAME; a relative --output starts where it is run. Exit status: 1 when a preset cannot be used</source>
        <translation>liste les préréglages, enregistre les options comme préréglage, ou en supprime un. Un préréglage est un travail sans entrées que run, plan, show et create prennent par --preset NAME&#x202f;; un --output relatif part de là où il est exécuté. Code de sortie&#xa0;: 1 si un préréglage est inutilisable</translation>
    </message>
    <message>
        <source>%1 files have no quality; %2 have one</source>
        <translation>les fichiers %1 n’ont pas de qualité&#x202f;; %2 en ont une</translation>
    </message>
    <message>
        <source>the quality of results in formats that have one; the same as %1 %2=N</source>
        <translation>la qualité des résultats dans les formats qui en ont une&#x202f;; comme %1 %2=N</translation>
    </message>
    <message>
        <source>how many pictures are processed at a time; default: one for each core</source>
        <translation>combien d’images sont traitées à la fois&#x202f;; par défaut&#xa0;: une par cœur</translation>
    </message>
    <message>
        <source>larger pictures are not read; default: 400</source>
        <translation>les images plus grandes ne sont pas lues&#x202f;; par défaut&#xa0;: 400</translation>
    </message>
    <message>
        <source>memory that one picture may take; default: 2048</source>
        <translation>mémoire qu’une image peut prendre&#x202f;; par défaut&#xa0;: 2048</translation>
    </message>
    <message>
        <source>time that one picture may take; default: 300</source>
        <translation>temps qu’une image peut prendre&#x202f;; par défaut&#xa0;: 300</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécution</translation>
    </message>
    <message>
        <source>lets results replace their own originals. Without --output, results go to the folders of their originals. Without this option no original is ever replaced</source>
        <translation>laisse les résultats remplacer leurs propres originaux. Sans --output, les résultats vont dans les dossiers de leurs originaux. Sans cette option, aucun original n’est jamais remplacé</translation>
    </message>
    <message>
        <source>ends with 0, not with 5, when there is no picture among the inputs</source>
        <translation>se termine par 0, pas par 5, s’il n’y a pas d’image parmi les entrées</translation>
    </message>
    <message>
        <source>prints what the run would write, as &quot;velkora-batch plan&quot; does, and writes nothing</source>
        <translation>affiche ce que l’exécution écrirait, comme «&#xa0;velkora-batch plan&#xa0;», et n’écrit rien</translation>
    </message>
    <message>
        <source>writes the result of every input to a file, as CSV or JSON by the extension of its name</source>
        <translation>écrit le résultat de chaque entrée dans un fichier, en CSV ou JSON selon l’extension de son nom</translation>
    </message>
    <message>
        <source>resumes the run that was interrupted in the output folder, with its job and its policies</source>
        <translation>reprend l’exécution interrompue dans le dossier de sortie, avec son travail et ses règles</translation>
    </message>
    <message>
        <source>says which run to resume if several were interrupted; --resume lists their names</source>
        <translation>dit quelle exécution reprendre si plusieurs ont été interrompues&#x202f;; --resume liste leurs noms</translation>
    </message>
    <message>
        <source>counts a picture with a warning as failed; its result is kept</source>
        <translation>compte comme échec une image avec avertissement&#x202f;; son résultat est gardé</translation>
    </message>
    <message>
        <source>prints each event of the run to standard output, as one line of JSON</source>
        <translation>affiche chaque événement de l’exécution sur la sortie standard, en une ligne de JSON</translation>
    </message>
    <message>
        <source>lets results go through links to folders below the output folder; otherwise such a link is an error of output</source>
        <translation>laisse les résultats passer par des liens vers des dossiers sous le dossier de sortie&#x202f;; sinon un tel lien est une erreur de sortie</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from %2 to %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de %2 à %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from %2 to %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier de %2 à %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT, with whole numbers from 1 to %2, such as 800x600</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas la forme WIDTHxHEIGHT, avec des nombres entiers de 1 à %2, comme 800x600</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a number of pixels, such as 40, nor LEFT,TOP,RIGHT,BOTTOM; &quot;none&quot; means no frame</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un nombre de pixels, comme 40, ni LEFT,TOP,RIGHT,BOTTOM&#x202f;; «&#xa0;none&#xa0;» signifie sans cadre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour; use #rrggbb or a name</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur&#x202f;; utilisez #rrggbb ou un nom</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is incomplete; complete it as in %2</source>
        <translation>«&#xa0;%1&#xa0;» est incomplet&#x202f;; complétez-le comme dans %2</translation>
    </message>
    <message>
        <source>; write a text of your own as text:%1</source>
        <translation>&#x202f;; écrivez un texte à vous comme text:%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no value</source>
        <translation>«&#xa0;%1&#xa0;» ne prend pas de valeur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas parmi %2</translation>
    </message>
    <message>
        <source>argument %1 (%2) is not valid UTF-8</source>
        <translation>l’argument %1 (%2) n’est pas de l’UTF-8 valide</translation>
    </message>
    <message>
        <source>the inputs do not lie in one folder: use --in-place for one folder after the other, or name the folder of the results with --output</source>
        <translation>les entrées ne sont pas dans un même dossier&#xa0;: utilisez --in-place un dossier après l’autre, ou indiquez le dossier des résultats avec --output</translation>
    </message>
    <message>
        <source>the result of %1 would not go to the folder of its original; name the folder of the results with --output</source>
        <translation>le résultat de %1 n’irait pas dans le dossier de son original&#x202f;; indiquez le dossier des résultats avec --output</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture</source>
        <translation>%1 est un travail enregistré, pas une image</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture; it is left out.</source>
        <translation>%1 est un travail enregistré, pas une image&#x202f;; il est laissé de côté.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>on standard input</source>
        <translation>sur l’entrée standard</translation>
    </message>
    <message>
        <source>the list %1 cannot be read: %2</source>
        <translation>impossible de lire la liste %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the list %1 is larger than %2 MiB; divide it</source>
        <translation>la liste %1 dépasse %2 Mio&#x202f;; divisez-la</translation>
    </message>
    <message>
        <source>it has %1 bytes, and no name is that long</source>
        <translation>il a %1 octets, et aucun nom n’est aussi long</translation>
    </message>
    <message>
        <source>it contains a NUL byte; use -0 for names that are separated by NUL</source>
        <translation>il contient un octet NUL&#x202f;; utilisez -0 pour des noms séparés par NUL</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid UTF-8; rename it to use it</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas de l’UTF-8 valide&#x202f;; renommez-le pour l’utiliser</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job cannot hold</source>
        <translation>«&#xa0;%1&#xa0;» contient un caractère qu’un travail ne peut pas contenir</translation>
    </message>
    <message>
        <source>it contains line ends; names in lines are read without -0</source>
        <translation>il contient des fins de ligne&#x202f;; les noms en lignes se lisent sans -0</translation>
    </message>
    <message>
        <source>%1, name %2</source>
        <translation>%1, nom %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link</source>
        <translation>%1, ligne %2&#xa0;: %3 est un lien sans cible</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist</source>
        <translation>%1, ligne %2&#xa0;: %3 n’existe pas</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link</source>
        <translation>%1, nom %2&#xa0;: %3 est un lien sans cible</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist</source>
        <translation>%1, nom %2&#xa0;: %3 n’existe pas</translation>
    </message>
    <message>
        <source>the list %1 is UTF-16 text; save it as UTF-8</source>
        <translation>la liste %1 est du texte UTF-16&#x202f;; enregistrez-la en UTF-8</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2</source>
        <translation>%1 exécutions ont été interrompues dans %2</translation>
    </message>
    <message>
        <source>no run in %1 is called &quot;%2&quot;</source>
        <translation>aucune exécution dans %1 ne s’appelle «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1  %2 is damaged</source>
        <translation>%1  %2 est endommagé</translation>
    </message>
    <message>
        <source>%1  %2  %3 of 1 picture  %4</source>
        <translation>%1  %2  %3 sur 1 image  %4</translation>
    </message>
    <message>
        <source>%1  %2  %3 of %4 pictures  %5</source>
        <translation>%1  %2  %3 sur %4 images  %5</translation>
    </message>
    <message>
        <source>%1, line %2: this version does not know %3, and ignores it.</source>
        <translation>%1, ligne %2&#xa0;: cette version ne connaît pas %3, et l’ignore.</translation>
    </message>
    <message>
        <source>%1: this version does not know %2 other elements and attributes, and ignores them.</source>
        <translation>%1&#xa0;: cette version ne connaît pas %2 autres éléments et attributs, et les ignore.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a path, but the name of a preset is needed</source>
        <translation>«&#xa0;%1&#xa0;» est un chemin, mais il faut le nom d’un préréglage</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>il n’y a pas de préréglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the name of the preset is empty</source>
        <translation>le nom du préréglage est vide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a dot, which the name of a preset must not</source>
        <translation>«&#xa0;%1&#xa0;» commence par un point, ce que le nom d’un préréglage ne doit pas faire</translation>
    </message>
    <message>
        <source>the name of a preset has no extension: use &quot;%1&quot;</source>
        <translation>le nom d’un préréglage n’a pas d’extension&#xa0;: utilisez «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a file on every system; &quot;%2&quot; would be one</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de fichier sur tous les systèmes&#x202f;; «&#xa0;%2&#xa0;» en serait un</translation>
    </message>
    <message>
        <source>the name of the preset is longer than %1 bytes</source>
        <translation>le nom du préréglage dépasse %1 octets</translation>
    </message>
    <message>
        <source>the preset %1</source>
        <translation>le préréglage %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>the preset %1 comes with the program and cannot be removed; a preset of yours with that name is used instead of it</source>
        <translation>le préréglage %1 est fourni avec le programme et ne peut pas être supprimé&#x202f;; un préréglage personnel de ce nom passe avant lui</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>impossible de supprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Archive: TIFF without loss, with all metadata and the time of the file</source>
        <translation>Archives&#xa0;: TIFF sans perte, avec toutes les métadonnées et la date du fichier</translation>
    </message>
    <message>
        <source>Mail: small JPEG of at most 1024 pixels, sRGB, with creator and rights</source>
        <translation>Courriel&#xa0;: petit JPEG de 1024 pixels au plus, sRGB, avec auteur et droits</translation>
    </message>
    <message>
        <source>Print: 15 cm long at 300 dpi, with a white border of 5 mm</source>
        <translation>Impression&#xa0;: 15 cm de long à 300 ppp, avec une bordure blanche de 5 mm</translation>
    </message>
    <message>
        <source>Thumbnails: squares of 256 pixels, JPEG without metadata</source>
        <translation>Vignettes&#xa0;: carrés de 256 pixels, JPEG sans métadonnées</translation>
    </message>
    <message>
        <source>Web: JPEG of at most 1600 pixels, sRGB, with creator and rights</source>
        <translation>Web&#xa0;: JPEG de 1600 pixels au plus, sRGB, avec auteur et droits</translation>
    </message>
    <message>
        <source>The journal %1 cannot be written: %2.</source>
        <translation>Impossible d’écrire le journal %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>the braces of a wildcard are nested too deeply</source>
        <translation>les accolades d’un motif sont imbriquées trop profondément</translation>
    </message>
    <message>
        <source>a wildcard is longer than %1 characters: %2...</source>
        <translation>un motif dépasse %1 caractères&#xa0;: %2...</translation>
    </message>
    <message>
        <source>the wildcard &quot;%1&quot; is invalid: %2</source>
        <translation>le motif «&#xa0;%1&#xa0;» est invalide&#xa0;: %2</translation>
    </message>
    <message>
        <source>the braces in &quot;%1&quot; stand for more than %2 names</source>
        <translation>les accolades de «&#xa0;%1&#xa0;» donnent plus de %2 noms</translation>
    </message>
    <message>
        <source>%1 matches no file</source>
        <translation>%1 ne correspond à aucun fichier</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>le nom est vide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixel, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>«&#xa0;%1&#xa0;» signifie %2 pixel, car un point précède les décimales, mais les pixels se comptent en nombres entiers&#xa0;: %3, ou une unité, comme dans %4cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>«&#xa0;%1&#xa0;» signifie %2 pixels, car un point précède les décimales, mais les pixels se comptent en nombres entiers&#xa0;: %3, ou une unité, comme dans %4cm</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, nom %2&#xa0;: %3 est un lien sans cible (et %4 de plus)</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist (and %4 more)</source>
        <translation>%1, nom %2&#xa0;: %3 n’existe pas (et %4 de plus)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1, ligne %2&#xa0;: %3 est un lien sans cible (et %4 de plus)</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist (and %4 more)</source>
        <translation>%1, ligne %2&#xa0;: %3 n’existe pas (et %4 de plus)</translation>
    </message>
    <message>
        <source>Start tag expected.</source>
        <translation>Balise ouvrante attendue.</translation>
    </message>
    <message>
        <source>Opening and ending tag mismatch.</source>
        <translation>Les balises ouvrante et fermante ne correspondent pas.</translation>
    </message>
    <message>
        <source>Premature end of document.</source>
        <translation>Fin prématurée du document.</translation>
    </message>
    <message>
        <source>Extra content at end of document.</source>
        <translation>Contenu en trop à la fin du document.</translation>
    </message>
    <message>
        <source>Expected %1, but got &apos;%2&apos;.</source>
        <translation>%1 attendu, mais «&#xa0;%2&#xa0;» trouvé.</translation>
    </message>
    <message>
        <source>range out of order in character class</source>
        <translation>intervalle en désordre dans une classe de caractères</translation>
    </message>
    <message>
        <source>the input&apos;s name without its extension</source>
        <translation>le nom de l’entrée sans son extension</translation>
    </message>
    <message>
        <source>a number that counts the job&apos;s files</source>
        <translation>un numéro qui compte les fichiers du travail</translation>
    </message>
    <message>
        <source>the capture date, YYYYMMDD</source>
        <translation>la date de prise de vue, YYYYMMDD</translation>
    </message>
    <message>
        <source>the capture time, HHMMSS</source>
        <translation>l’heure de prise de vue, HHMMSS</translation>
    </message>
    <message>
        <source>a text of your own</source>
        <translation>un texte à vous</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>everything in the output folder</source>
        <translation>tout dans le dossier de sortie</translation>
    </message>
    <message>
        <source>folders as in the input</source>
        <translation>dossiers comme dans l’entrée</translation>
    </message>
    <message>
        <source>a folder for each capture date, YYYY/YYYY-MM-DD</source>
        <translation>un dossier par date de prise de vue, YYYY/YYYY-MM-DD</translation>
    </message>
    <message>
        <source>the size stays</source>
        <translation>la taille ne change pas</translation>
    </message>
    <message>
        <source>enlarge or reduce</source>
        <translation>agrandir ou réduire</translation>
    </message>
    <message>
        <source>only reduce</source>
        <translation>réduire seulement</translation>
    </message>
    <message>
        <source>only enlarge</source>
        <translation>agrandir seulement</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>la largeur</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>la hauteur</translation>
    </message>
    <message>
        <source>the long side</source>
        <translation>le grand côté</translation>
    </message>
    <message>
        <source>the short side</source>
        <translation>le petit côté</translation>
    </message>
    <message>
        <source>percent of the picture</source>
        <translation>pour cent de l’image</translation>
    </message>
    <message>
        <source>inches at the resolution</source>
        <translation>pouces selon la résolution</translation>
    </message>
    <message>
        <source>centimetres at the resolution</source>
        <translation>centimètres selon la résolution</translation>
    </message>
    <message>
        <source>millimetres at the resolution</source>
        <translation>millimètres selon la résolution</translation>
    </message>
    <message>
        <source>no crop</source>
        <translation>aucun recadrage</translation>
    </message>
    <message>
        <source>the largest frame of the ratio width : height</source>
        <translation>le plus grand cadrage du rapport largeur&#xa0;: hauteur</translation>
    </message>
    <message>
        <source>cut off a border of one colour</source>
        <translation>couper une bordure d’une seule couleur</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye</source>
        <translation>le cadrage du rapport qui attire l’œil</translation>
    </message>
    <message>
        <source>scale to cover width x height, then cut</source>
        <translation>mettre à l’échelle pour couvrir largeur x hauteur, puis couper</translation>
    </message>
    <message>
        <source>width x height pixels</source>
        <translation>largeur x hauteur en pixels</translation>
    </message>
    <message>
        <source>the largest frame of the ratio, turned with the picture</source>
        <translation>le plus grand cadrage du rapport, tourné avec l’image</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye, turned with the picture</source>
        <translation>le cadrage du rapport qui attire l’œil, tourné avec l’image</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>au centre</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>at the top left</source>
        <translation>en haut à gauche</translation>
    </message>
    <message>
        <source>at the top right</source>
        <translation>en haut à droite</translation>
    </message>
    <message>
        <source>at the bottom left</source>
        <translation>en bas à gauche</translation>
    </message>
    <message>
        <source>at the bottom right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <source>transparent where the format allows it, else white</source>
        <translation>transparent si le format le permet, sinon blanc</translation>
    </message>
    <message>
        <source>one colour</source>
        <translation>une couleur</translation>
    </message>
    <message>
        <source>a built-in pattern</source>
        <translation>un motif intégré</translation>
    </message>
    <message>
        <source>an image file, scaled to cover</source>
        <translation>un fichier d’image, mis à l’échelle pour couvrir</translation>
    </message>
    <message>
        <source>the picture covers its background</source>
        <translation>l’image couvre l’arrière-plan</translation>
    </message>
    <message>
        <source>multiply</source>
        <translation>produit</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>superposition</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>incrustation</translation>
    </message>
    <message>
        <source>the darker of the two</source>
        <translation>le plus sombre des deux</translation>
    </message>
    <message>
        <source>the lighter of the two</source>
        <translation>le plus clair des deux</translation>
    </message>
    <message>
        <source>soft light</source>
        <translation>lumière tamisée</translation>
    </message>
    <message>
        <source>hard light</source>
        <translation>lumière crue</translation>
    </message>
    <message>
        <source>the difference of the two</source>
        <translation>la différence des deux</translation>
    </message>
    <message>
        <source>a drop shadow</source>
        <translation>une ombre portée</translation>
    </message>
    <message>
        <source>a glow around the picture, without offset</source>
        <translation>une lueur autour de l’image, sans décalage</translation>
    </message>
    <message>
        <source>skip the file</source>
        <translation>ignorer le fichier</translation>
    </message>
    <message>
        <source>stop the run</source>
        <translation>arrêter l’exécution</translation>
    </message>
    <message>
        <source>ask</source>
        <translation>demander</translation>
    </message>
    <message>
        <source>overwrite what is there</source>
        <translation>remplacer l’existant</translation>
    </message>
    <message>
        <source>append &quot; (2)&quot;, &quot; (3)&quot; and so on to the name</source>
        <translation>ajouter (2), (3), etc. au nom</translation>
    </message>
    <message>
        <source>write the nearest format that can hold the picture</source>
        <translation>écrire le format le plus proche qui peut contenir l’image</translation>
    </message>
    <message>
        <source>reported only</source>
        <translation>seulement signalé</translation>
    </message>
    <message>
        <source>the file was skipped</source>
        <translation>le fichier a été ignoré</translation>
    </message>
    <message>
        <source>the run was stopped</source>
        <translation>l’exécution a été arrêtée</translation>
    </message>
    <message>
        <source>the option %1 cannot say what the job holds</source>
        <translation>l’option %1 ne peut pas exprimer ce que contient le travail</translation>
    </message>
    <message>
        <source>%1 is a picture (%2) with another extension; it is added only if it is named.</source>
        <translation>%1 est une image (%2) avec une autre extension&#x202f;; elle n’est ajoutée que si le fichier lui-même est choisi.</translation>
    </message>
    <message>
        <source>no private folder can be made for previews: %1</source>
        <translation>impossible de créer un dossier privé pour les aperçus&#xa0;: %1</translation>
    </message>
    <message>
        <source>the picture that was made for the screen cannot be read</source>
        <translation>l’image créée pour l’écran est illisible</translation>
    </message>
    <message>
        <source>The effect &quot;%1&quot; does not exist</source>
        <translation>L’effet «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>shares the processor equally with other programs; otherwise they come first</source>
        <translation>partage le processeur à égalité avec les autres programmes ; sinon, ceux-ci passent d&apos;abord</translation>
    </message>
    <message>
        <source>&quot;maxBytes&quot; lowers the quality, and &quot;lossless&quot; has none</source>
        <translation>&quot;maxBytes&quot; baisse la qualité, et &quot;lossless&quot; n&apos;en a pas</translation>
    </message>
    <message>
        <source>&quot;minQuality&quot; is %1, above &quot;quality&quot;, which is %2</source>
        <translation>&quot;minQuality&quot; vaut %1, plus que &quot;quality&quot;, qui vaut %2</translation>
    </message>
    <message>
        <source>the largest file; the best quality up to &quot;quality&quot; is found whose file is not larger</source>
        <translation>le plus grand fichier ; la meilleure qualité jusqu&apos;à &quot;quality&quot; dont le fichier n&apos;est pas plus grand est cherchée</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>what &quot;maxBytes&quot; may lower the quality to</source>
        <translation>jusqu&apos;où &quot;maxBytes&quot; peut baisser la qualité</translation>
    </message>
    <message>
        <source>makes pictures smaller where &quot;minQuality&quot; is not enough for &quot;maxBytes&quot;</source>
        <translation>réduit les images pour lesquelles &quot;minQuality&quot; ne suffit pas à &quot;maxBytes&quot;</translation>
    </message>
    <message>
        <source>the file would have %1 bytes with quality %2 and %3 x %4 pixels; at most %5 bytes are wanted</source>
        <translation>le fichier aurait %1 octets avec la qualité %2 et %3 x %4 pixels ; au plus %5 octets sont voulus</translation>
    </message>
    <message>
        <source>the size of %1 files follows from their pixels; %2 can have a limit</source>
        <translation>la taille des fichiers %1 dépend de leurs pixels ; %2 peuvent avoir une limite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of bytes; write it like 500kB, 1.5MB or 300KiB</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre d&apos;octets ; écrivez-le comme 500kB, 1.5MB ou 300KiB</translation>
    </message>
    <message>
        <source>the largest file, such as 500kB; the best quality that is not larger is found. The format options minQuality and mayShrink say how far it may go</source>
        <translation>le plus grand fichier, par exemple 500kB ; la meilleure qualité qui n&apos;est pas plus grande est cherchée. Les options de format minQuality et mayShrink disent jusqu&apos;où</translation>
    </message>
    <message>
        <source>it is damaged, or of another version</source>
        <translation>il est endommagé ou d’une autre version</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangé</translation>
    </message>
    <message>
        <source>makes only what has changed since the last update into the output folder: its input, the job&apos;s settings, or a file that they name. All other results stay as they are</source>
        <translation>ne fait que ce qui a changé depuis la dernière mise à jour dans le dossier de sortie : l’entrée, les réglages du travail ou un fichier qu’ils nomment. Tous les autres résultats restent tels quels</translation>
    </message>
    <message>
        <source>lets an update compare the contents of files, not only their sizes and times</source>
        <translation>fait comparer à une mise à jour le contenu des fichiers, pas seulement leur taille et leur date</translation>
    </message>
    <message>
        <source>lets an update remove results that it has made earlier and whose inputs are gone</source>
        <translation>fait supprimer à une mise à jour les résultats qu’elle a faits auparavant et dont l’entrée n’existe plus</translation>
    </message>
    <message>
        <source>the folder cannot be written, or another process keeps the record</source>
        <translation>le dossier ne peut pas être écrit, ou un autre processus tient le registre</translation>
    </message>
    <message>
        <source>who made the picture</source>
        <translation>qui a fait l’image</translation>
    </message>
    <message>
        <source>the notice that says whose the picture is</source>
        <translation>la mention qui dit à qui est l’image</translation>
    </message>
    <message>
        <source>who is to be named where the picture is shown</source>
        <translation>qui doit être nommé là où l’image est montrée</translation>
    </message>
    <message>
        <source>a short name of the picture</source>
        <translation>un nom court de l’image</translation>
    </message>
    <message>
        <source>separated by commas or semicolons</source>
        <translation>séparés par des virgules ou des points-virgules</translation>
    </message>
    <message>
        <source>how the picture may be used</source>
        <translation>comment l’image peut être utilisée</translation>
    </message>
    <message>
        <source>Writes creator, rights, title and keywords into the metadata</source>
        <translation>Écrit le créateur, les droits, le titre et les mots-clés dans les métadonnées</translation>
    </message>
    <message>
        <source>the text has tokens, such as {date:YYYY-MM-DD}</source>
        <translation>le texte a des jetons comme {date:YYYY-MM-DD}</translation>
    </message>
    <message>
        <source>it holds no job</source>
        <translation>il ne contient aucun travail</translation>
    </message>
    <message>
        <source>its output folder is &quot;%1&quot;, but has to be an absolute path</source>
        <translation>son dossier de sortie est « %1 », mais doit être un chemin absolu</translation>
    </message>
    <message>
        <source>a job has no name</source>
        <translation>un travail n’a pas de nom</translation>
    </message>
    <message>
        <source>two jobs have the name &quot;%1&quot;</source>
        <translation>deux travaux portent le nom « %1 »</translation>
    </message>
    <message>
        <source>the job &quot;%1&quot; writes to &quot;%2&quot;, which is not in the output folder, &quot;%3&quot;</source>
        <translation>le travail « %1 » écrit dans « %2 », qui n’est pas dans le dossier de sortie « %3 »</translation>
    </message>
    <message>
        <source>it holds more than %1 jobs</source>
        <translation>il contient plus de %1 travaux</translation>
    </message>
    <message>
        <source>it is no bundle of jobs</source>
        <translation>ce n’est pas un ensemble de travaux</translation>
    </message>
    <message>
        <source>it takes nothing after a colon</source>
        <translation>il n’admet rien après un deux-points</translation>
    </message>
    <message>
        <source>the number of digits must be a whole number from 1 to %1</source>
        <translation>le nombre de chiffres doit être un nombre entier de 1 à %1</translation>
    </message>
    <message>
        <source>a date is made of YYYY, YY, MM and DD, with no other letters between them</source>
        <translation>une date se compose de YYYY, YY, MM et DD, sans autres lettres entre eux</translation>
    </message>
    <message>
        <source>a time is made of HH, MM and SS, with no other letters between them</source>
        <translation>une heure se compose de HH, MM et SS, sans autres lettres entre eux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; the tokens are %3, and {{ is a brace</source>
        <translation>«&#xa0;%1&#xa0;» au caractère %2 n’est pas un jeton&#x202f;; les jetons sont %3, et {{ est une accolade</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; did you mean &quot;{%3}&quot;?</source>
        <translation>«&#xa0;%1&#xa0;» au caractère %2 n’est pas un jeton&#x202f;; vouliez-vous dire «&#xa0;{%3}&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>&quot;}&quot; at character %1 closes no token; write }} for a brace</source>
        <translation>«&#xa0;}&#xa0;» au caractère %1 ne ferme aucun jeton&#x202f;; écrivez }} pour une accolade</translation>
    </message>
    <message>
        <source>&quot;{&quot; at character %1 begins a token that has no end; write {{ for a brace</source>
        <translation>«&#xa0;{&#xa0;» au caractère %1 commence un jeton sans fin&#x202f;; écrivez {{ pour une accolade</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 cannot be used: %3</source>
        <translation>«&#xa0;%1&#xa0;» au caractère %2 ne peut pas être utilisé&#xa0;: %3</translation>
    </message>
    <message>
        <source>a text with tokens, such as {date}_{number:4}</source>
        <translation>un texte avec des jetons comme {date}_{number:4}</translation>
    </message>
    <message>
        <source>depth map lost</source>
        <translation>carte de profondeur perdue</translation>
    </message>
    <message>
        <source>film lost</source>
        <translation>film perdu</translation>
    </message>
    <message>
        <source>audio lost</source>
        <translation>son perdu</translation>
    </message>
    <message>
        <source>It has inputs, but those of a bundle belong in its first job</source>
        <translation>Il a des entrées, mais celles d’un ensemble vont dans son premier travail</translation>
    </message>
    <message>
        <source>The bundle of jobs cannot be read: %1</source>
        <translation>L’ensemble de travaux ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>Job &quot;%1&quot;: %2</source>
        <translation>Travail « %1 » : %2</translation>
    </message>
    <message>
        <source>Its output folder is &quot;%1&quot;, but the bundle says &quot;%2&quot;</source>
        <translation>Son dossier de sortie est « %1 », mais l’ensemble indique « %2 »</translation>
    </message>
    <message>
        <source>Several results of one picture cannot replace their original</source>
        <translation>Plusieurs résultats d’une image ne peuvent pas remplacer leur original</translation>
    </message>
    <message>
        <source>it has a depth map, which the result lacks</source>
        <translation>il a une carte de profondeur que le résultat n’a pas</translation>
    </message>
    <message>
        <source>it has a film, which the result lacks</source>
        <translation>il a un film que le résultat n’a pas</translation>
    </message>
    <message>
        <source>it has audio, which the result lacks</source>
        <translation>il a du son que le résultat n’a pas</translation>
    </message>
    <message>
        <source>--in-place makes one result of each picture, but several presets or jobs are given; remove --in-place, or all but one of them</source>
        <translation>--in-place fait un résultat de chaque image, mais plusieurs préréglages ou travaux sont indiqués ; retirez --in-place, ou tous sauf un</translation>
    </message>
    <message>
        <source>several presets or jobs need one output folder, in which each gets a folder of its name</source>
        <translation>plusieurs préréglages ou travaux ont besoin d’un dossier de sortie, dans lequel chacun a un dossier à son nom</translation>
    </message>
    <message>
        <source>%1 has other inputs than %2; results of one run have the same inputs, and --no-inputs drops those of saved jobs</source>
        <translation>%1 a d’autres entrées que %2 ; les résultats d’une exécution ont les mêmes entrées, et --no-inputs retire celles des travaux enregistrés</translation>
    </message>
    <message>
        <source>%1 needs --resume</source>
        <translation>%1 exige --resume</translation>
    </message>
    <message>
        <source>one folder to watch is needed</source>
        <translation>il faut un dossier à surveiller</translation>
    </message>
    <message>
        <source>the results would come into the watched folder %1; write them to a folder in it, or elsewhere</source>
        <translation>les résultats arriveraient dans le dossier surveillé %1&#x202f;; écrivez-les dans un dossier qu’il contient, ou ailleurs</translation>
    </message>
    <message>
        <source>processes a saved job, files and folders, or both; options override the job. Several jobs make several results of each picture, each in a folder of its name. Exit status: 0 when all pictures were written, or left out by a policy that an option names; 1 when some failed or were left out otherwise; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 4 when the run was cancelled; 5 when there is no picture among the inputs; 6 when this run is going on already; 7 when there is nothing to resume</source>
        <translation>traite un travail enregistré, des fichiers et dossiers, ou les deux&#x202f;; les options passent avant le travail. Plusieurs travaux font plusieurs résultats de chaque image, chacun dans un dossier à son nom. Code de sortie&#xa0;: 0 si toutes les images ont été écrites, ou ignorées par une règle nommée dans une option&#x202f;; 1 si certaines ont échoué ou ont été ignorées autrement&#x202f;; 2 si les arguments ou le travail sont incorrects&#x202f;; 3 si le serveur n’a pas pu être lancé ou a été perdu&#x202f;; 4 si l’exécution a été annulée&#x202f;; 5 s’il n’y a pas d’image parmi les entrées&#x202f;; 6 si cette exécution est déjà en cours&#x202f;; 7 s’il n’y a rien à reprendre</translation>
    </message>
    <message>
        <source>processes the pictures in a folder and its subfolders, and those that come, until it is ended. Pictures are taken when they have arrived whole, and each once, also over restarts; numbers in names go on. Nobody is asked: ask becomes rename for names, stop for the output, and skip otherwise. Exit status: 0 when it was ended between pictures; 4 when it was ended while pictures were in work, which the next start finishes; 1 when the folder is gone or the output cannot be written; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 6 when the output folder is used for watching already</source>
        <translation>traite les images d’un dossier et de ses sous-dossiers, et celles qui arrivent, jusqu’à ce qu’on y mette fin. Les images sont prises quand elles sont arrivées en entier, et chacune une fois, même après un redémarrage&#x202f;; les numéros des noms continuent. Personne n’est interrogé&#xa0;: ask devient rename pour les noms, stop pour la sortie, et skip sinon. Code de sortie&#xa0;: 0 si la fin est venue entre deux images&#x202f;; 4 si des images étaient en cours, que le prochain lancement termine&#x202f;; 1 si le dossier a disparu ou si la sortie ne peut pas être écrite&#x202f;; 2 si les arguments ou le travail sont incorrects&#x202f;; 3 si le serveur n’a pas pu être lancé ou a été perdu&#x202f;; 6 si une surveillance utilise déjà le dossier de sortie</translation>
    </message>
    <message>
        <source>Every picture that comes into a folder</source>
        <translation>Chaque image qui arrive dans un dossier</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them. Given several times, each picture gets a result of each preset, in a folder of its name in the output folder</source>
        <translation>part d’un préréglage ; « velkora-batch presets » les liste. Indiqué plusieurs fois, chaque image a un résultat de chaque préréglage, dans un dossier à son nom du dossier de sortie</translation>
    </message>
    <message>
        <source>Watching</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>how long a picture has to stay the same before it is taken; default: 2. Pictures that are moved into the folder are taken at once</source>
        <translation>combien de temps une image doit rester la même avant d’être prise&#x202f;; par défaut&#xa0;: 2. Les images déplacées dans le dossier sont prises aussitôt</translation>
    </message>
    <message>
        <source>looks for pictures every so many seconds, in place of waiting for the system&apos;s word; default: 5 where the system tells nothing, as for network folders</source>
        <translation>cherche des images toutes les tant de secondes, au lieu d’attendre l’avis du système&#x202f;; par défaut&#xa0;: 5 là où le système ne dit rien, comme pour les dossiers réseau</translation>
    </message>
    <message>
        <source>%1 needs --update</source>
        <translation>%1 exige --update</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice; remove one of them</source>
        <translation>« %1 » est indiqué deux fois ; retirez l’un des deux</translation>
    </message>
    <message>
        <source>the results of &quot;%1&quot; and &quot;%2&quot; would go to one folder, &quot;%3&quot;; give one of them another name</source>
        <translation>les résultats de « %1 » et « %2 » iraient dans un même dossier, « %3 » ; donnez un autre nom à l’un des deux</translation>
    </message>
    <message>
        <source>at most %1 results can be made of one picture</source>
        <translation>on peut faire au plus %1 résultats d’une image</translation>
    </message>
    <message>
        <source>what {number} in names begins with; 1, unless it is given</source>
        <translation>par quoi {number} commence dans les noms&#x202f;; 1 sans indication</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without {number} in a name; add it to --name</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’effet sans {number} dans un nom&#x202f;; ajoutez-le à --name</translation>
    </message>
    <message>
        <source>the middle of a name: original, the input&apos;s name; number, number:START or number:START:DIGITS; date and time, those of the capture, or of the file where a picture has none; text:TEXT; nothing; or a text with tokens, such as {date:YYYY-MM-DD}_{number:4}</source>
        <translation>le milieu d’un nom&#xa0;: original, le nom de l’entrée&#x202f;; number, number:START ou number:START:DIGITS&#x202f;; date et time, ceux de la prise de vue, ou du fichier si une image n’en a pas&#x202f;; text:TEXT&#x202f;; nothing&#x202f;; ou un texte avec des jetons comme {date:YYYY-MM-DD}_{number:4}</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be made</source>
        <translation>impossible de créer le dossier de sortie %1</translation>
    </message>
    <message>
        <source>another process watches a folder for %1 already</source>
        <translation>un autre processus surveille déjà un dossier pour %1</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be written</source>
        <translation>impossible d’écrire dans le dossier de sortie %1</translation>
    </message>
    <message>
        <source>it is no record of a watched folder that this version reads</source>
        <translation>ce n’est pas un relevé de dossier surveillé que cette version sait lire</translation>
    </message>
    <message>
        <source>what was watched before cannot be read and written: %1: %2</source>
        <translation>impossible de lire et d’écrire ce qui a été surveillé jusqu’ici&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a newer version of the program has made it; use that version for all parts</source>
        <translation>une version plus récente du programme l&apos;a fait ; utilisez cette version pour toutes les parties</translation>
    </message>
    <message>
        <source>it is no plan; &quot;velkora-batch split&quot; makes one</source>
        <translation>ce n&apos;est pas un plan ; « velkora-batch split » en fait un</translation>
    </message>
    <message>
        <source>it is damaged; split the job again</source>
        <translation>il est endommagé ; divisez le travail à nouveau</translation>
    </message>
    <message>
        <source>collect takes one plan, the file that split has written</source>
        <translation>collect prend un plan, le fichier que split a écrit</translation>
    </message>
    <message>
        <source>%1: there is no part &quot;%2&quot;; the plan has the parts %3 to %4</source>
        <translation>%1 : il n&apos;y a pas de partie « %2 » ; le plan a les parties %3 à %4</translation>
    </message>
    <message>
        <source>which part is not said; use --part with a number from 1 to %1</source>
        <translation>la partie n&apos;est pas indiquée ; utilisez --part avec un nombre de 1 à %1</translation>
    </message>
    <message>
        <source>%1 and %2 both say which part to make; use --part</source>
        <translation>%1 et %2 disent tous deux quelle partie faire ; utilisez --part</translation>
    </message>
    <message>
        <source>split needs %1; &quot;velkora-batch help split&quot; says more</source>
        <translation>split a besoin de %1 ; « velkora-batch help split » en dit plus</translation>
    </message>
    <message>
        <source>%1: %2. Nobody can be asked about it while parts are made; decide with %3</source>
        <translation>%1 : %2. On ne peut interroger personne pendant que les parties sont faites ; décidez avec %3</translation>
    </message>
    <message>
        <source>%1: %2. By %3 stop, the job would end there; it was not split</source>
        <translation>%1 : %2. Avec %3 stop, le travail s&apos;arrêterait là ; il n&apos;a pas été divisé</translation>
    </message>
    <message>
        <source>not all inputs could be read, as said above; nothing was split</source>
        <translation>toutes les entrées n&apos;ont pas pu être lues, comme dit ci-dessus ; rien n&apos;a été divisé</translation>
    </message>
    <message>
        <source>%1 pictures cannot be cut into %2 parts; each needs a picture</source>
        <translation>%1 images ne peuvent pas être divisées en %2 parties ; chacune a besoin d&apos;une image</translation>
    </message>
    <message>
        <source>the plan %1 cannot be written: %2</source>
        <translation>le plan %1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>cuts a job into parts that can be made at once, on many machines, by &quot;velkora-batch run --plan&quot;: writes a plan with every input and the name of every result, and nothing else. Clashes of names are settled by the policies. Exit status: 2 when the job cannot be split; 5 when there is no picture among the inputs</source>
        <translation>divise un travail en parties que « velkora-batch run --plan » peut faire en même temps sur plusieurs machines : écrit un plan avec chaque entrée et le nom de chaque résultat, et rien d&apos;autre. Les règles décident des conflits de noms. Code de sortie : 2 quand le travail ne peut pas être divisé ; 5 quand il n&apos;y a pas d&apos;image parmi les entrées</translation>
    </message>
    <message>
        <source>says what the parts of a plan have done and which are to be run again. When all are done without failures, the plan and its journals are removed. Exit status: 0 when all pictures were written; 1 when some failed, were left out or are not made yet; 2 when the plan cannot be used</source>
        <translation>dit ce que les parties d&apos;un plan ont fait et lesquelles relancer. Quand toutes sont faites sans échec, le plan et ses journaux sont supprimés. Code de sortie : 0 quand toutes les images ont été écrites ; 1 quand certaines ont échoué, ont été laissées de côté ou ne sont pas encore faites ; 2 quand le plan ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>A job for eight machines</source>
        <translation>Un travail pour huit machines</translation>
    </message>
    <message>
        <source>What the parts have done</source>
        <translation>Ce que les parties ont fait</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parties</translation>
    </message>
    <message>
        <source>the folder FROM of the plan is the folder TO on this machine; both are absolute</source>
        <translation>le dossier FROM du plan est le dossier TO sur cette machine ; les deux sont absolus</translation>
    </message>
    <message>
        <source>makes it an error, not a warning, when parts are made by other versions than the plan</source>
        <translation>en fait une erreur, non un avertissement, quand des parties sont faites par d&apos;autres versions que le plan</translation>
    </message>
    <message>
        <source>how many parts to cut the job into; each gets about as many bytes of pictures</source>
        <translation>en combien de parties le travail est divisé ; chacune reçoit à peu près autant d&apos;octets d&apos;images</translation>
    </message>
    <message>
        <source>the file to write the plan to; it is replaced</source>
        <translation>le fichier où écrire le plan ; il est remplacé</translation>
    </message>
    <message>
        <source>makes one part of the job that &quot;velkora-batch split&quot; has written to a file</source>
        <translation>fait une partie du travail que « velkora-batch split » a écrit dans un fichier</translation>
    </message>
    <message>
        <source>which part, from 1; default: what the environment says in SLURM_ARRAY_TASK_ID, JOB_COMPLETION_INDEX, which counts from 0, or PARALLEL_SEQ</source>
        <translation>quelle partie, à partir de 1 ; par défaut, ce que dit l&apos;environnement dans SLURM_ARRAY_TASK_ID, dans JOB_COMPLETION_INDEX, qui compte à partir de 0, ou dans PARALLEL_SEQ</translation>
    </message>
    <message>
        <source>removes the plan and its journals also when pictures have failed; without this option they stay until all parts are done without failures</source>
        <translation>supprime le plan et ses journaux même si des images ont échoué ; sans cette option, ils restent jusqu&apos;à ce que toutes les parties soient faites sans échec</translation>
    </message>
    <message>
        <source>%1 is for a part of a job; name its plan with --plan</source>
        <translation>%1 concerne une partie d&apos;un travail ; nommez son plan avec --plan</translation>
    </message>
    <message>
        <source>the plan has a job and pictures of its own; leave out &quot;%1&quot;</source>
        <translation>le plan a son propre travail et ses images ; omettez « %1 »</translation>
    </message>
    <message>
        <source>%1 is missing here, but was there when the job was split; --map names folders that are elsewhere on this machine</source>
        <translation>%1 manque ici, mais était là quand le travail a été divisé ; --map nomme les dossiers qui sont ailleurs sur cette machine</translation>
    </message>
    <message>
        <source>%1 has changed since the job was split; split the job again</source>
        <translation>%1 a changé depuis que le travail a été divisé ; divisez le travail à nouveau</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be two absolute folders with &quot;=&quot; between them</source>
        <translation>« %1 » doit être deux dossiers absolus séparés par « = »</translation>
    </message>
    <message>
        <source>the plan %1 cannot be used: %2</source>
        <translation>le plan %1 ne peut pas être utilisé : %2</translation>
    </message>
    <message>
        <source>the journal of the part, %1, cannot be written: %2. It belongs beside the plan</source>
        <translation>le journal de la partie, %1, ne peut pas être écrit : %2. Sa place est à côté du plan</translation>
    </message>
    <message>
        <source>%1 says that process %2 of %3 holds it, and the file system has no locks to tell whether that process is still there; if it is not, remove that file</source>
        <translation>%1 indique que le processus %2 de %3 le détient, et le système de fichiers n’a pas de verrous pour savoir si ce processus existe encore ; sinon, supprimez ce fichier</translation>
    </message>
    <message>
        <source>%1 unfinished files stay beside the results: the file system has no locks to tell whether they are in work. Remove .velkora-*.tmp there when nothing runs.</source>
        <translation>%1 fichiers inachevés restent à côté des résultats : le système de fichiers n’a pas de verrous pour savoir s’ils sont en cours. Supprimez-y .velkora-*.tmp quand rien ne tourne.</translation>
    </message>
    <message>
        <source>made by other versions than the plan</source>
        <translation>faites par d’autres versions que le plan</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>il ne répond pas</translation>
    </message>
    <message>
        <source>it does not say them</source>
        <translation>il ne les indique pas</translation>
    </message>
    <message>
        <source>the same job is already running into %1: %2</source>
        <translation>le même travail est déjà en cours vers %1 : %2</translation>
    </message>
    <message>
        <source>%1 was asked for the versions of its libraries: %2</source>
        <translation>les versions de ses bibliothèques ont été demandées à %1 : %2</translation>
    </message>
    <message>
        <source>the plan was made with %1, but here are %2</source>
        <translation>le plan a été fait avec %1, mais ici il y a %2</translation>
    </message>
    <message>
        <source>made with %1, but the plan with %2</source>
        <translation>faite avec %1, mais le plan avec %2</translation>
    </message>
    <message>
        <source>it is open in another program</source>
        <translation>il est ouvert dans un autre programme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is open in another program</source>
        <translation>impossible de remplacer «&#xa0;%1&#xa0;»&#xa0;: il est ouvert dans un autre programme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is read-only</source>
        <translation>impossible de remplacer «&#xa0;%1&#xa0;»&#xa0;: il est en lecture seule</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1 with the compression %2</source>
        <translation>cette installation n’a pas d’encodeur %1 avec la compression %2</translation>
    </message>
</context>
</TS>
