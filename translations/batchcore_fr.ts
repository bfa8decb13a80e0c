<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>No error.</source>
        <translation>Aucune erreur.</translation>
    </message>
    <message>
        <source>Unsupported input format.</source>
        <translation>Format d’entrée non pris en charge.</translation>
    </message>
    <message>
        <source>Error reading file.</source>
        <translation>Erreur lors de la lecture du fichier.</translation>
    </message>
    <message>
        <source>Unsupported output format.</source>
        <translation>Format de sortie non pris en charge.</translation>
    </message>
    <message>
        <source>Error writing output format.</source>
        <translation>Erreur lors de l’écriture au format de sortie.</translation>
    </message>
    <message>
        <source>Empty batch document.</source>
        <translation>Le document de traitement par lot est vide.</translation>
    </message>
    <message>
        <source>Error reading output settings.</source>
        <translation>Erreur lors de la lecture des paramètres de sortie.</translation>
    </message>
    <message>
        <source>Adjustment manager does not exist.</source>
        <translation>Le gestionnaire de réglages n’existe pas.</translation>
    </message>
    <message>
        <source>Adjustment does not exist.</source>
        <translation>Le réglage n’existe pas.</translation>
    </message>
    <message>
        <source>Apply adjustment error.</source>
        <translation>Erreur lors de l’application du réglage.</translation>
    </message>
    <message>
        <source>Image too large.</source>
        <translation>L’image est trop grande.</translation>
    </message>
    <message>
        <source>File name already exists.</source>
        <translation>Le nom de fichier existe déjà.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Erreur inconnue.</translation>
    </message>
</context>
<context>
    <name>ZTBatchDocument</name>
    <message>
        <source>Warning! Some files are not found and skipped:</source>
        <translation>Attention&#x202f;! Certains fichiers sont introuvables et ont été ignorés&#xa0;:</translation>
    </message>
    <message>
        <source>Warning! There are duplicate files:</source>
        <translation>Attention&#x202f;! Il y a des fichiers en double&#xa0;:</translation>
    </message>
    <message>
        <source>Warning! These files of unsupported format cannot be processed:</source>
        <translation>Attention&#x202f;! Ces fichiers, dont le format n’est pas pris en charge, ne peuvent pas être traités&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ZTBatchManager</name>
    <message>
        <source>Abnormal process termination.</source>
        <translation>Le processus s’est terminé de façon anormale.</translation>
    </message>
</context>
<context>
    <name>ZTBatchOutputSettings</name>
    <message>
        <source>Image</source>
        <extracomment>The default text in the names of results, as in &quot;Image001&quot;.</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Original</source>
        <extracomment>Appears among the names of file formats and means that each picture keeps its own format.</extracomment>
        <translation>Original</translation>
    </message>
</context>
</TS>
