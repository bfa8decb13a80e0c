<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>No error.</source>
        <translation>エラーはありません。</translation>
    </message>
    <message>
        <source>Unsupported input format.</source>
        <translation>入力形式がサポートされていません。</translation>
    </message>
    <message>
        <source>Error reading file.</source>
        <translation>ファイルの読み込み中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Unsupported output format.</source>
        <translation>出力形式がサポートされていません。</translation>
    </message>
    <message>
        <source>Error writing output format.</source>
        <translation>出力形式での書き込み中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Empty batch document.</source>
        <translation>バッチドキュメントが空です。</translation>
    </message>
    <message>
        <source>Error reading output settings.</source>
        <translation>出力設定の読み込み中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Adjustment manager does not exist.</source>
        <translation>調整マネージャーが存在しません。</translation>
    </message>
    <message>
        <source>Adjustment does not exist.</source>
        <translation>調整が存在しません。</translation>
    </message>
    <message>
        <source>Apply adjustment error.</source>
        <translation>調整の適用中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Image too large.</source>
        <translation>画像が大きすぎます。</translation>
    </message>
    <message>
        <source>File name already exists.</source>
        <translation>ファイル名は既に存在します。</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>不明なエラーです。</translation>
    </message>
</context>
<context>
    <name>ZTBatchDocument</name>
    <message>
        <source>Warning! Some files are not found and skipped:</source>
        <translation>警告：一部のファイルが見つからないため、スキップされました：</translation>
    </message>
    <message>
        <source>Warning! There are duplicate files:</source>
        <translation>警告：重複するファイルがあります：</translation>
    </message>
    <message>
        <source>Warning! These files of unsupported format cannot be processed:</source>
        <translation>警告：次のファイルはサポートされていない形式のため処理できません：</translation>
    </message>
</context>
<context>
    <name>ZTBatchManager</name>
    <message>
        <source>Abnormal process termination.</source>
        <translation>プロセスが異常終了しました。</translation>
    </message>
</context>
<context>
    <name>ZTBatchOutputSettings</name>
    <message>
        <source>Image</source>
        <extracomment>The default text in the names of results, as in &quot;Image001&quot;.</extracomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>Original</source>
        <extracomment>Appears among the names of file formats and means that each picture keeps its own format.</extracomment>
        <translation>元の形式</translation>
    </message>
</context>
</TS>
