<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BatchHost::Messages</name>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>No more input: this file and all that follow with questions are skipped.</source>
        <translation>入力が終わりました。このファイルと、以降の確認が必要なファイルをスキップします。</translation>
    </message>
    <message>
        <source>%1? (add &quot;all&quot; for all that follow)</source>
        <translation>%1？（以降すべてに適用するには「all」を付けます）</translation>
    </message>
    <message>
        <source>the server ended unexpectedly; a new one continues.</source>
        <translation>サーバーが予期せず終了しました。新しいサーバーで続行します。</translation>
    </message>
    <message>
        <source>the server ended unexpectedly.</source>
        <translation>サーバーが予期せず終了しました。</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1; a new one continues.</source>
        <translation>%1 の処理中にサーバーが予期せず終了しました。新しいサーバーで続行します。</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1.</source>
        <translation>%1 の処理中にサーバーが予期せず終了しました。</translation>
    </message>
    <message>
        <source>Starting the server</source>
        <translation>サーバーを起動しています</translation>
    </message>
    <message>
        <source>Cancelling; interrupt again to end at once.</source>
        <translation>キャンセルしています。もう一度中断するとすぐに終了します。</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>キャンセル中</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Not processed</source>
        <translation>未処理</translation>
    </message>
    <message>
        <source>Written with a warning</source>
        <translation>警告付きで書き出し</translation>
    </message>
    <message>
        <source>1 file with another extension was left out, but begins like a picture; --verbose names them, --include takes them.</source>
        <translation>拡張子の異なる 1 個のファイルを除外しましたが、内容は画像のようです。--verbose で名前を表示し、--include で取り込めます。</translation>
    </message>
    <message>
        <source>%1 files with other extensions were left out, but begin like pictures; --verbose names them, --include takes them.</source>
        <translation>拡張子の異なる %1 個のファイルを除外しましたが、内容は画像のようです。--verbose で名前を表示し、--include で取り込めます。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>to %1, in %2 (%3 a second)</source>
        <translation>→ %1、所要時間 %2（毎秒 %3 枚）</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, is missing now: %2</source>
        <translation>そのうち中断前に書き出した %1 枚が、今は見つかりません: %2</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, are missing now: %2</source>
        <translation>そのうち中断前に書き出した %1 枚が、今は見つかりません: %2</translation>
    </message>
    <message>
        <source>1 warning:</source>
        <translation>警告 1 件:</translation>
    </message>
    <message>
        <source>%1 warnings:</source>
        <translation>警告 %1 件:</translation>
    </message>
    <message>
        <source>and %1 more; use --report FILE for all</source>
        <translation>ほか %1 件。すべてを見るには --report FILE を使ってください</translation>
    </message>
    <message>
        <source>required</source>
        <translation>必須</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>省略可</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>既定値 %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>no</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 bits a channel; transparency: %2; CMYK: %3; longest side %4 pixels</source>
        <translation>チャンネルあたり %1 ビット、透明度: %2、CMYK: %3、最長辺 %4 ピクセル</translation>
    </message>
    <message>
        <source>Files that can be read: %1</source>
        <translation>読み込めるファイル: %1</translation>
    </message>
    <message>
        <source>%1: a job without pictures; give them to run or plan, after the job.</source>
        <translation>%1: 画像のないジョブです。画像は run または plan で、ジョブの後に指定します。</translation>
    </message>
    <message>
        <source>%1: a job without pictures and output folder; give them to run or plan.</source>
        <translation>%1: 画像も出力フォルダーもないジョブです。run または plan で指定します。</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture.</source>
        <translation>%1: 画像 1 枚のジョブです。</translation>
    </message>
    <message>
        <source>%1: a job of 1 picture, without an output folder; give --output to run or plan.</source>
        <translation>%1: 画像 1 枚のジョブで、出力フォルダーがありません。run または plan で --output を指定します。</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures.</source>
        <translation>%1: 画像 %2 枚のジョブです。</translation>
    </message>
    <message>
        <source>%1: a job of %2 pictures, without an output folder; give --output to run or plan.</source>
        <translation>%1: 画像 %2 枚のジョブで、出力フォルダーがありません。run または plan で --output を指定します。</translation>
    </message>
    <message>
        <source>Looking at pictures: %1 of %2</source>
        <translation>画像を確認中: %1 / %2</translation>
    </message>
    <message>
        <source>%1 is left out: it begins like a %2 file, but its extension is not known.</source>
        <translation>%1 は対象外です。%2 ファイルのように始まりますが、拡張子が不明です。</translation>
    </message>
    <message>
        <source>Folders read: %1, pictures found: %2, now in %3</source>
        <translation>読み込んだフォルダー: %1、見つかった画像: %2、現在 %3</translation>
    </message>
    <message>
        <source>1 picture</source>
        <translation>1 枚</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>%1 枚</translation>
    </message>
    <message>
        <source>Inputs: %1</source>
        <translation>入力: %1</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Planning %1 files</source>
        <translation>%1 個のファイルを計画中</translation>
    </message>
    <message>
        <source>replaces the original</source>
        <translation>元のファイルを置き換え</translation>
    </message>
    <message>
        <source>sizes in pixels are not known: %1.</source>
        <translation>ピクセル単位のサイズは不明です: %1。</translation>
    </message>
    <message>
        <source>%1 file: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 個のファイル: 問題なし %2、角かっこ付き %3。何も書き出していません。</translation>
    </message>
    <message>
        <source>%1 files: %2 without trouble, %3 in brackets. Nothing was written.</source>
        <translation>%1 個のファイル: 問題なし %2、角かっこ付き %3。何も書き出していません。</translation>
    </message>
    <message>
        <source>comes along</source>
        <translation>付属</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>自作</translation>
    </message>
    <message>
        <source>the preset %1 in %2 cannot be used: %3</source>
        <translation>%2 にあるプリセット %1 は使用できません: %3</translation>
    </message>
    <message>
        <source>%1: the preset %2.</source>
        <translation>%1: プリセット %2。</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1.</source>
        <translation>標準出力に書き出せません: %1。</translation>
    </message>
    <message>
        <source>%1: name files, or folders with pictures that can be read</source>
        <translation>%1: 読み込める画像のファイルまたはフォルダーを指定してください</translation>
    </message>
    <message>
        <source>%1: use --output DIR</source>
        <translation>%1: --output DIR を使用してください</translation>
    </message>
    <message>
        <source>%1; use --force to replace it</source>
        <translation>%1。置き換えるには --force を使用してください</translation>
    </message>
    <message>
        <source>%1. Use --resume with --output alone to resume that run, or run this job without --resume</source>
        <translation>%1。その実行を再開するには --resume と --output だけを指定し、このジョブを実行するには --resume を外してください</translation>
    </message>
    <message>
        <source>%1; use --resume --run NAME with one of these names</source>
        <translation>%1。次の名前のどれかで --resume --run NAME を使用してください</translation>
    </message>
    <message>
        <source>an earlier run of this job was interrupted; this run starts anew. Use --resume to continue an interrupted run.</source>
        <translation>このジョブの以前の実行は中断されました。今回は最初から開始します。中断した実行を続けるには --resume を使用してください。</translation>
    </message>
    <message>
        <source>1 other run was interrupted in %1; it can still be resumed: %2</source>
        <translation>%1 でほかに 1 件の実行が中断されています。まだ再開できます: %2</translation>
    </message>
    <message>
        <source>%3 other runs were interrupted in %1; they can still be resumed: %2</source>
        <translation>%1 でほかに %3 件の実行が中断されています。まだ再開できます: %2</translation>
    </message>
    <message>
        <source>should it be interrupted, the run cannot be resumed: %1.</source>
        <translation>中断した場合、この実行は再開できません: %1。</translation>
    </message>
    <message>
        <source>another batch server is running, and this system has only one pipe for it; try again when that run is over.</source>
        <translation>別のバッチサーバーが動作中で、このシステムにはそのためのパイプが 1 つしかありません。その実行が終わってから再試行してください。</translation>
    </message>
    <message>
        <source>To resume: %1</source>
        <translation>再開するには: %1</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: 1 picture was left out.</source>
        <translation>端末がないため確認できませんでした: 画像 1 枚をスキップしました。</translation>
    </message>
    <message>
        <source>without a terminal nobody could be asked: %1 pictures were left out.</source>
        <translation>端末がないため確認できませんでした: 画像 %1 枚をスキップしました。</translation>
    </message>
    <message>
        <source>%1 decides such cases.</source>
        <translation>このような場合の扱いは %1 で決まります。</translation>
    </message>
    <message>
        <source>%1 and %2 decide such cases.</source>
        <translation>このような場合の扱いは %1 と %2 で決まります。</translation>
    </message>
    <message>
        <source>1 result was renamed, because other sources of the job have such names.</source>
        <translation>ジョブのほかの元ファイルと同じ名前になるため、結果 1 件の名前を変更しました。</translation>
    </message>
    <message>
        <source>%1 results were renamed, because other sources of the job have such names.</source>
        <translation>ジョブのほかの元ファイルと同じ名前になるため、結果 %1 件の名前を変更しました。</translation>
    </message>
    <message>
        <source>1 result was renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>元のファイルと同じ名前になるため、結果 1 件の名前を変更しました。--in-place は元のファイルを置き換えます。</translation>
    </message>
    <message>
        <source>%1 results were renamed, because originals have their names; --in-place replaces originals.</source>
        <translation>元のファイルと同じ名前になるため、結果 %1 件の名前を変更しました。--in-place は元のファイルを置き換えます。</translation>
    </message>
    <message>
        <source>no worker can be started; VelkoraBatchWorker belongs beside %1.</source>
        <translation>ワーカーを起動できません。VelkoraBatchWorker は %1 と同じ場所に必要です。</translation>
    </message>
    <message>
        <source>No picture was processed. --structure input keeps the folders of the inputs, --on-name-exists rename numbers such names, and another --name, --prefix or --suffix tells them apart.</source>
        <translation>画像は処理されませんでした。--structure input は入力のフォルダーを保ち、--on-name-exists rename は重なる名前に番号を付けます。--name、--prefix、--suffix で区別することもできます。</translation>
    </message>
    <message>
        <source>the server ended before it had processed anything; see its messages above.</source>
        <translation>サーバーは何も処理しないうちに終了しました。上のメッセージを確認してください。</translation>
    </message>
    <message>
        <source>the server cannot be started; VelkoraBatchProcessing belongs beside %1.</source>
        <translation>サーバーを起動できません。VelkoraBatchProcessing は %1 と同じ場所に必要です。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>More: velkora-batch --help, or velkora-batch help COMMAND</source>
        <translation>詳細: velkora-batch --help または velkora-batch help COMMAND</translation>
    </message>
    <message>
        <source>velkora-batch %1.</source>
        <translation>velkora-batch は%1。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>prints this text; after a command, the help of that command</source>
        <translation>この説明を表示します。コマンドの後ではそのコマンドの説明を表示します</translation>
    </message>
    <message>
        <source>prints the version; with --verbose, also how this system confines the processes that read pictures</source>
        <translation>バージョンを表示します。--verbose を付けると、画像を読むプロセスをこのシステムがどう制限するかも表示します</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>例</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1. Values: %2</source>
        <translation>%1。値: %2</translation>
    </message>
    <message>
        <source>%1. May be given several times</source>
        <translation>%1。複数回指定できます</translation>
    </message>
    <message>
        <source>(%1 bytes in the job)</source>
        <translation>（ジョブ内に %1 バイト）</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 バイト</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
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
        <translation>画像 1 枚。</translation>
    </message>
    <message>
        <source>%1 pictures.</source>
        <translation>画像 %1 枚。</translation>
    </message>
    <message>
        <source>1 picture, %1 new.</source>
        <translation>画像 1 枚、新規 %1 枚。</translation>
    </message>
    <message>
        <source>%1 pictures, %2 new.</source>
        <translation>画像 %1 枚、新規 %2 枚。</translation>
    </message>
    <message>
        <source>1 name is taken.</source>
        <translation>1 個の名前が使用済みです。</translation>
    </message>
    <message>
        <source>%1 names are taken.</source>
        <translation>%1 個の名前が使用済みです。</translation>
    </message>
    <message>
        <source>1 file that exists will be replaced.</source>
        <translation>既存のファイル 1 個を置き換えます。</translation>
    </message>
    <message>
        <source>%1 files that exist will be replaced.</source>
        <translation>既存のファイル %1 個を置き換えます。</translation>
    </message>
    <message>
        <source>1 picture cannot be written.</source>
        <translation>1 枚の画像を書き出せません。</translation>
    </message>
    <message>
        <source>%1 pictures cannot be written.</source>
        <translation>%1 枚の画像を書き出せません。</translation>
    </message>
    <message>
        <source>There is too little room: the results take %1, but only %2 are free.</source>
        <translation>空き容量が足りません: 結果に %1 必要ですが、空きは %2 しかありません。</translation>
    </message>
    <message>
        <source>There may be too little room: the results take about %1 (± %2 %), but only %3 are free.</source>
        <translation>空き容量が足りない可能性があります: 結果に約 %1（± %2 %）必要ですが、空きは %3 しかありません。</translation>
    </message>
    <message>
        <source>The results take %1.</source>
        <translation>結果の容量は %1 です。</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %).</source>
        <translation>結果の容量は約 %1（± %2 %）です。</translation>
    </message>
    <message>
        <source>The results take %1; %2 are free.</source>
        <translation>結果の容量は %1、空きは %2 です。</translation>
    </message>
    <message>
        <source>The results take about %1 (± %2 %); %3 are free.</source>
        <translation>結果の容量は約 %1（± %2 %）、空きは %3 です。</translation>
    </message>
    <message>
        <source>Add pictures to begin.</source>
        <translation>画像を追加して始めてください。</translation>
    </message>
    <message>
        <source>What you edit cannot be kept in %1; save the job before the window ends.</source>
        <translation>編集中の内容を %1 に保管できません。ウィンドウを閉じる前にジョブを保存してください。</translation>
    </message>
    <message>
        <source>The command line that does the same is on the clipboard.</source>
        <translation>同じ処理を行うコマンドラインをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>&amp;New job</source>
        <translation>新しいジョブ(&amp;N)</translation>
    </message>
    <message>
        <source>Open &amp;job…</source>
        <translation>ジョブを開く(&amp;J)…</translation>
    </message>
    <message>
        <source>R&amp;ecent jobs</source>
        <translation>最近のジョブ(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Save job</source>
        <translation>ジョブを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save job &amp;as…</source>
        <translation>名前を付けてジョブを保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>コマンドとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1（見つかりません）</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>一覧を消去(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as preset…</source>
        <translation>プリセットとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename preset…</source>
        <translation>プリセットの名前を変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete preset</source>
        <translation>プリセットを削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Import preset…</source>
        <translation>プリセットを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export preset…</source>
        <translation>プリセットを書き出す(&amp;E)…</translation>
    </message>
    <message>
        <source>The job before this one was not saved.</source>
        <translation>直前のジョブは保存されていません。</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>元のジョブに戻す</translation>
    </message>
    <message>
        <source>The window did not end as it should; this is what was edited last.</source>
        <translation>ウィンドウが正常に終了しませんでした。最後に編集していた内容を復元しました。</translation>
    </message>
    <message>
        <source>Import preset</source>
        <translation>プリセットの読み込み</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Export preset</source>
        <translation>プリセットの書き出し</translation>
    </message>
    <message>
        <source>The settings are saved in %1.</source>
        <translation>設定を %1 に保存しました。</translation>
    </message>
    <message>
        <source>The preset %1 is deleted; the settings stay as they are.</source>
        <translation>プリセット %1 を削除しました。設定はそのままです。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Batch jobs (%1)</source>
        <translation>ジョブ (%1)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存の変更</translation>
    </message>
    <message>
        <source>The job &quot;%1&quot; has changes that are not saved.</source>
        <translation>ジョブ「%1」に保存していない変更があります。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>変更を破棄(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>新しいジョブ</translation>
    </message>
    <message>
        <source>Open job</source>
        <translation>ジョブを開く</translation>
    </message>
    <message>
        <source>Save job</source>
        <translation>ジョブを保存</translation>
    </message>
    <message>
        <source>%1 exists; choose it to replace it.</source>
        <translation>%1 はすでにあります。置き換えるにはそのファイルを選んでください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>通知を閉じる</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>プリセットなし</translation>
    </message>
    <message>
        <source>This preset cannot be used as it is: %1</source>
        <translation>このプリセットはそのままでは使えません: %1</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>プリセット %1</translation>
    </message>
    <message>
        <source>The preset %1 cannot be used as it is: %2</source>
        <translation>プリセット %1 はそのままでは使えません: %2</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>Cancel the naming of the preset</source>
        <translation>プリセットの命名をキャンセル</translation>
    </message>
    <message>
        <source>Save the settings as the preset</source>
        <translation>設定を次のプリセットとして保存</translation>
    </message>
    <message>
        <source>New name of the preset %1</source>
        <translation>プリセット %1 の新しい名前</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Replace the preset %1</source>
        <translation>プリセット %1 を置き換え</translation>
    </message>
    <message>
        <source>You have a preset of this name; it would be replaced.</source>
        <translation>同じ名前の自作プリセットがあります。保存すると置き換わります。</translation>
    </message>
    <message>
        <source>Processes pictures in batches, in a window.</source>
        <translation>ウィンドウ上で画像を一括処理します。</translation>
    </message>
    <message>
        <source>Pictures and folders to add.</source>
        <translation>追加する画像とフォルダー。</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>追加を中止</translation>
    </message>
    <message>
        <source>Adding pictures…</source>
        <translation>画像を追加しています…</translation>
    </message>
    <message>
        <source>Problems of this kind: %1; point here to read them.</source>
        <translation>この種の問題: %1 件。ここにポインターを合わせると読めます。</translation>
    </message>
    <message>
        <source>Add pictures</source>
        <translation>画像の追加</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>%1 does not exist any more</source>
        <translation>%1 はもう存在しません</translation>
    </message>
    <message>
        <source>Add &amp;files…</source>
        <translation>ファイルを追加(&amp;F)…</translation>
    </message>
    <message>
        <source>Add f&amp;older…</source>
        <translation>フォルダーを追加(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>リストから削除(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;how in folder</source>
        <translation>フォルダーで表示(&amp;H)</translation>
    </message>
    <message>
        <source>▾ %1 (%2)</source>
        <translation>▾ %1（%2）</translation>
    </message>
    <message>
        <source>▸ %1 (%2)</source>
        <translation>▸ %1（%2）</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Grid of pictures</source>
        <translation>画像のグリッド</translation>
    </message>
    <message>
        <source>List of pictures</source>
        <translation>画像のリスト</translation>
    </message>
    <message>
        <source>1 picture in 1 folder</source>
        <translation>1 個のフォルダーに画像 1 枚</translation>
    </message>
    <message>
        <source>%1 pictures in 1 folder</source>
        <translation>1 個のフォルダーに画像 %1 枚</translation>
    </message>
    <message>
        <source>%1 pictures in %2 folders</source>
        <translation>%2 個のフォルダーに画像 %1 枚</translation>
    </message>
    <message>
        <source>Drop pictures and folders here, or add them with the buttons below.</source>
        <translation>画像やフォルダーをここにドロップするか、下のボタンで追加してください。</translation>
    </message>
    <message>
        <source>Show only pictures whose names contain</source>
        <translation>名前に次を含む画像だけを表示</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Show only pictures with the state</source>
        <translation>次の状態の画像だけを表示</translation>
    </message>
    <message>
        <source>All pictures</source>
        <translation>すべての画像</translation>
    </message>
    <message>
        <source>Name taken</source>
        <translation>名前が使用済み</translation>
    </message>
    <message>
        <source>List</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Remove pictures</source>
        <translation>画像の削除</translation>
    </message>
    <message>
        <source>%1 of %2 pictures</source>
        <translation>%2 枚中 %1 枚</translation>
    </message>
    <message>
        <source>Cannot be written</source>
        <translation>書き出せません</translation>
    </message>
    <message>
        <source>This file cannot be shown.</source>
        <translation>このファイルは表示できません。</translation>
    </message>
    <message>
        <source>Folder %1, pictures: %2</source>
        <translation>フォルダー %1、画像 %2 枚</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, written as %2</source>
        <translation>%1、書き出し名 %2</translation>
    </message>
    <message>
        <source>%1, written as %2: %3</source>
        <translation>%1、書き出し名 %2: %3</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Line between before and after</source>
        <translation>処理前と処理後の分割線</translation>
    </message>
    <message>
        <source>Sizes before and after</source>
        <translation>処理前と処理後のサイズ</translation>
    </message>
    <message>
        <source>State of the preview</source>
        <translation>プレビューの状態</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>更新中</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>全体表示(&amp;F)</translation>
    </message>
    <message>
        <source>Show all of the picture (1)</source>
        <translation>画像全体を表示します (1)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>One pixel of the result on one pixel of the screen (2)</source>
        <translation>結果の 1 ピクセルを画面の 1 ピクセルで表示します (2)</translation>
    </message>
    <message>
        <source>&amp;200 %</source>
        <translation>&amp;200 %</translation>
    </message>
    <message>
        <source>One pixel of the result on four pixels of the screen (3)</source>
        <translation>結果の 1 ピクセルを画面の 4 ピクセルで表示します (3)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>分割線(&amp;L)</translation>
    </message>
    <message>
        <source>Before and after with a line between them (4)</source>
        <translation>処理前と処理後を線で分けて表示します (4)</translation>
    </message>
    <message>
        <source>&amp;Side by side</source>
        <translation>並べて表示(&amp;S)</translation>
    </message>
    <message>
        <source>Before and after side by side (5)</source>
        <translation>処理前と処理後を並べて表示します (5)</translation>
    </message>
    <message>
        <source>Preview &amp;anew</source>
        <translation>プレビューを更新(&amp;A)</translation>
    </message>
    <message>
        <source>Make the preview anew from the file on the disk (F5)</source>
        <translation>ディスク上のファイルからプレビューを作り直します (F5)</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>処理前(&amp;B)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>Show the picture before as long as this is held (space bar on the picture)</source>
        <translation>押している間、処理前の画像を表示します（画像上ではスペースキー）</translation>
    </message>
    <message>
        <source>Choose a picture to see what becomes of it.</source>
        <translation>画像を選ぶと、処理後の姿が表示されます。</translation>
    </message>
    <message>
        <source>%1 × %2 px, %3</source>
        <translation>%1 × %2 px、%3</translation>
    </message>
    <message>
        <source>%1 × %2 px, %3 → %4 × %5 px, %6</source>
        <translation>%1 × %2 px、%3 → %4 × %5 px、%6</translation>
    </message>
    <message>
        <source>Exact: %1 of %2 bytes, as a run writes it; made in %3 s</source>
        <translation>正確: %1、%2 バイト。実行時に書き出すものと同じです。作成時間 %3 秒</translation>
    </message>
    <message>
        <source>The result is too large to be shown here.</source>
        <translation>結果が大きすぎて、ここには表示できません。</translation>
    </message>
    <message>
        <source>before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>after</source>
        <translation>処理後</translation>
    </message>
    <message>
        <source>Another program is running a batch on this computer: close it, and start this one anew.</source>
        <translation>このコンピューターでは別のプログラムが一括処理を実行中です。それを終了してから、このプログラムを起動し直してください。</translation>
    </message>
    <message>
        <source>&amp;Do this for the rest of the run</source>
        <translation>以降の画像にも適用(&amp;Y)</translation>
    </message>
    <message>
        <source>Question about a picture</source>
        <translation>画像についての確認</translation>
    </message>
    <message>
        <source>The file that exists</source>
        <translation>既存のファイル</translation>
    </message>
    <message>
        <source>The picture whose result would have its name</source>
        <translation>結果が同じ名前になる画像</translation>
    </message>
    <message>
        <source>Interrupted run</source>
        <translation>中断された実行</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>再開(&amp;K)</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>破棄(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Cancel the run</source>
        <translation>実行をキャンセル(&amp;X)</translation>
    </message>
    <message>
        <source>Resu&amp;me the run</source>
        <translation>実行を再開(&amp;G)</translation>
    </message>
    <message>
        <source>S&amp;how failed</source>
        <translation>失敗した画像を表示(&amp;H)</translation>
    </message>
    <message>
        <source>Retr&amp;y failed</source>
        <translation>失敗した画像を再試行(&amp;Y)</translation>
    </message>
    <message>
        <source>Open fo&amp;lder</source>
        <translation>フォルダーを開く(&amp;D)</translation>
    </message>
    <message>
        <source>Sa&amp;ve report</source>
        <translation>レポートを保存(&amp;W)</translation>
    </message>
    <message>
        <source>Put &amp;away</source>
        <translation>閉じる(&amp;Q)</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>実行の進行状況</translation>
    </message>
    <message>
        <source>The batch server has ended unexpectedly; a new one goes on.</source>
        <translation>処理サーバーが予期せず終了しました。新しいサーバーで続行します。</translation>
    </message>
    <message>
        <source>The run cannot be resumed: its journal cannot be read.</source>
        <translation>実行を再開できません: ジャーナルを読み込めません。</translation>
    </message>
    <message>
        <source>The failed pictures cannot be tried again: the journal of their run cannot be used.</source>
        <translation>失敗した画像を再試行できません: その実行のジャーナルを使えません。</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>再開(&amp;I)</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%2 枚中 %1 枚完了</translation>
    </message>
    <message>
        <source>%1 of %2 done, %3 left</source>
        <translation>%2 枚中 %1 枚完了、残り %3</translation>
    </message>
    <message>
        <source>Pausing: pictures in work are finished first</source>
        <translation>一時停止します: 処理中の画像を先に仕上げています</translation>
    </message>
    <message>
        <source>Paused, %1 of %2 done</source>
        <translation>一時停止中、%2 枚中 %1 枚完了</translation>
    </message>
    <message>
        <source>%1 written, %2 skipped, %3 failed</source>
        <translation>書き出し %1、スキップ %2、失敗 %3</translation>
    </message>
    <message>
        <source>Finished in %1: all %2 pictures were written.</source>
        <translation>%1 で完了: %2 枚の画像をすべて書き出しました。</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 skipped, %4 failed.</source>
        <translation>%1 で完了: 書き出し %2、スキップ %3、失敗 %4。</translation>
    </message>
    <message>
        <source>Nothing was written: %1.</source>
        <translation>何も書き出しませんでした: %1。</translation>
    </message>
    <message>
        <source>Nothing can be written: the program VelkoraBatchWorker is missing or cannot be started.</source>
        <translation>書き出せません: プログラム VelkoraBatchWorker がないか、起動できません。</translation>
    </message>
    <message>
        <source>The batch server was lost after %1 of %2 pictures. The run can be resumed.</source>
        <translation>%2 枚中 %1 枚の時点で処理サーバーが失われました。実行は再開できます。</translation>
    </message>
    <message>
        <source>Cancelled after %1 of %2 pictures. The run can be resumed.</source>
        <translation>%2 枚中 %1 枚の時点でキャンセルしました。実行は再開できます。</translation>
    </message>
    <message>
        <source>A run was interrupted after %1 of %2 pictures. Its results go to %3.</source>
        <translation>%2 枚中 %1 枚の時点で実行が中断されました。結果の出力先は %3 です。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>The result of %1 cannot be written: %2.</source>
        <translation>%1 の結果を書き出せません: %2。</translation>
    </message>
    <message>
        <source>%1 cannot be processed: %2.</source>
        <translation>%1 を処理できません: %2。</translation>
    </message>
    <message>
        <source>The name %1, for the result of %2, is taken.</source>
        <translation>%2 の結果に付ける名前 %1 はすでに使われています。</translation>
    </message>
    <message>
        <source>%1 cannot be written in this format: %2.</source>
        <translation>%1 をこの形式で書き出せません: %2。</translation>
    </message>
    <message>
        <source>S&amp;kip it</source>
        <translation>スキップ(&amp;K)</translation>
    </message>
    <message>
        <source>Stop t&amp;he run</source>
        <translation>実行を停止(&amp;Q)</translation>
    </message>
    <message>
        <source>Over&amp;write</source>
        <translation>上書き(&amp;W)</translation>
    </message>
    <message>
        <source>Number t&amp;he new one</source>
        <translation>新しい方に番号を付ける(&amp;G)</translation>
    </message>
    <message>
        <source>Wr&amp;ite the nearest format</source>
        <translation>最も近い形式を使用(&amp;G)</translation>
    </message>
    <message>
        <source>%1, switched off</source>
        <translation>%1、オフ</translation>
    </message>
    <message>
        <source>Switch on %1</source>
        <translation>「%1」をオン</translation>
    </message>
    <message>
        <source>Switch off %1</source>
        <translation>「%1」をオフ</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>「%1」の削除</translation>
    </message>
    <message>
        <source>Remove %1 effects</source>
        <translation>%1 個の効果の削除</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>「%1」の追加</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>「%1」の複製</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>「%1」の移動</translation>
    </message>
    <message>
        <source>Effects in the order in which they are applied</source>
        <translation>適用順に並んだ効果</translation>
    </message>
    <message>
        <source>Effec&amp;ts</source>
        <translation>効果(&amp;T)</translation>
    </message>
    <message>
        <source>Add an effect</source>
        <translation>効果を追加</translation>
    </message>
    <message>
        <source>Duplicate the effect</source>
        <translation>効果を複製</translation>
    </message>
    <message>
        <source>Remove the effect</source>
        <translation>効果を削除</translation>
    </message>
    <message>
        <source>Apply the effect earlier</source>
        <translation>効果を先に適用</translation>
    </message>
    <message>
        <source>Apply the effect later</source>
        <translation>効果を後に適用</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>No effects</source>
        <translation>効果なし</translation>
    </message>
    <message>
        <source>All effects are switched off</source>
        <translation>すべての効果がオフです</translation>
    </message>
    <message>
        <source>Choose a colour for %1</source>
        <translation>色を選択: %1</translation>
    </message>
    <message>
        <source>Point %1 of %2: %3 becomes %4</source>
        <translation>%2 点中 %1 番目: %3 が %4 になります</translation>
    </message>
    <message>
        <source>Click to add a point and drag to move it; a double click removes it. With keys: Page Up and Page Down choose a point, arrows move it, Insert adds one, Delete removes it.</source>
        <translation>クリックで点を追加、ドラッグで移動、ダブルクリックで削除します。キー操作: Page Up と Page Down で点を選択、矢印キーで移動、Insert で追加、Delete で削除。</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>%1を選択</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no complete path; it must begin at the root, such as %2.</source>
        <translation>「%1」は完全なパスではありません。%2 のようにルートから入力してください。</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1を指定</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Automatic levels</source>
        <translation>自動レベル補正</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>ビット深度</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>縁取り</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>両方</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Brightness and contrast</source>
        <translation>明るさとコントラスト</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Chroma subsampling</source>
        <translation>クロマサブサンプリング</translation>
    </message>
    <message>
        <source>Clarity</source>
        <translation>明瞭度</translation>
    </message>
    <message>
        <source>Clipped share</source>
        <translation>クリップする割合</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Compression level</source>
        <translation>圧縮レベル</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Creator and rights</source>
        <translation>作成者と権利</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>トーンカーブ</translation>
    </message>
    <message>
        <source>Deflate</source>
        <translation>Deflate</translation>
    </message>
    <message>
        <source>Denoise</source>
        <translation>ノイズ除去</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Each on its own</source>
        <translation>個別</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>処理の手間</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露出</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Interpolation</source>
        <translation>補間</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>階調の反転</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Kept metadata</source>
        <translation>残すメタデータ</translation>
    </message>
    <message>
        <source>Keep the time of the file</source>
        <translation>ファイルの日時を保つ</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>レベル補正</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>可逆圧縮</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>ルマ</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>Colour table</source>
        <translation>カラールックアップテーブル</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>パーセント</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Posterize</source>
        <translation>ポスタリゼーション</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>プログレッシブ</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>セピア</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>シャープ</translation>
    </message>
    <message>
        <source>Radius (sigma)</source>
        <translation>半径 (シグマ)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大きさ</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>ぼかし幅</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>開始位置</translation>
    </message>
    <message>
        <source>Stops</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Tetrahedral</source>
        <translation>四面体</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>タイル</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色かぶり</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>まとめて</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Trilinear</source>
        <translation>三線形</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>自然な彩度</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>周辺光量</translation>
    </message>
    <message>
        <source>Watermark with a picture</source>
        <translation>画像の透かし</translation>
    </message>
    <message>
        <source>Watermark with a text</source>
        <translation>文字の透かし</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Zstandard</source>
        <translation>Zstandard</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>切り抜き(&amp;C)</translation>
    </message>
    <message>
        <source>Kind of crop</source>
        <translation>切り抜きの種類</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置合わせ</translation>
    </message>
    <message>
        <source>Ratio %1 : %2</source>
        <translation>比率 %1 : %2</translation>
    </message>
    <message>
        <source>Ratio %1 : %2, turned with the picture</source>
        <translation>比率 %1 : %2、画像の向きに合わせる</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2</source>
        <translation>目を引く部分、比率 %1 : %2</translation>
    </message>
    <message>
        <source>What draws the eye, ratio %1 : %2, turned with the picture</source>
        <translation>目を引く部分、比率 %1 : %2、画像の向きに合わせる</translation>
    </message>
    <message>
        <source>Scaled and cut to %1 × %2 px</source>
        <translation>拡大縮小して %1 × %2 px に切り抜き</translation>
    </message>
    <message>
        <source>Cut to %1 × %2 px</source>
        <translation>%1 × %2 px に切り抜き</translation>
    </message>
    <message>
        <source>Borders of one colour are cut off</source>
        <translation>単色の縁を切り取ります</translation>
    </message>
    <message>
        <source>No crop</source>
        <translation>切り抜きなし</translation>
    </message>
    <message>
        <source>Error&amp;s</source>
        <translation>エラー(&amp;S)</translation>
    </message>
    <message>
        <source>A picture that cannot be read</source>
        <translation>読み込めない画像</translation>
    </message>
    <message>
        <source>A result that cannot be written</source>
        <translation>書き出せない結果</translation>
    </message>
    <message>
        <source>A picture that cannot be processed</source>
        <translation>処理できない画像</translation>
    </message>
    <message>
        <source>A name that is taken</source>
        <translation>すでに使われている名前</translation>
    </message>
    <message>
        <source>A format that cannot hold the picture</source>
        <translation>画像を保存できない形式</translation>
    </message>
    <message>
        <source>You are asked</source>
        <translation>毎回確認します</translation>
    </message>
    <message>
        <source>Decided in advance</source>
        <translation>事前に決めておきます</translation>
    </message>
    <message>
        <source>You are asked in %1 of %2 cases</source>
        <translation>%2 件中 %1 件の場合に確認します</translation>
    </message>
    <message>
        <source>O&amp;utput folder</source>
        <translation>出力フォルダー(&amp;U)</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>結果のフォルダー</translation>
    </message>
    <message>
        <source>The format of each input</source>
        <translation>入力と同じ形式</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>%1, quality %2</source>
        <translation>%1、品質 %2</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>形式(&amp;O)</translation>
    </message>
    <message>
        <source>Lay pictures on a frame</source>
        <translation>画像をフレームに置く</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>左の余白</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>上の余白</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>右の余白</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>下の余白</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>描画モード</translation>
    </message>
    <message>
        <source>Opacity of the picture</source>
        <translation>画像の不透明度</translation>
    </message>
    <message>
        <source>A frame of its own size</source>
        <translation>フレームのサイズを個別に指定</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>フレームの幅</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>フレームの高さ</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>背景の色</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Scale of the pattern</source>
        <translation>パターンの倍率</translation>
    </message>
    <message>
        <source>Picture of the background</source>
        <translation>背景画像</translation>
    </message>
    <message>
        <source>Opacity of the background</source>
        <translation>背景の不透明度</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>影</translation>
    </message>
    <message>
        <source>Kind of shadow</source>
        <translation>影の種類</translation>
    </message>
    <message>
        <source>Colour of the shadow</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>Opacity of the shadow</source>
        <translation>影の不透明度</translation>
    </message>
    <message>
        <source>Direction of the light</source>
        <translation>光の方向</translation>
    </message>
    <message>
        <source>Distance of the shadow</source>
        <translation>影の距離</translation>
    </message>
    <message>
        <source>Softness of the shadow</source>
        <translation>影のぼかし幅</translation>
    </message>
    <message>
        <source>Fr&amp;ame</source>
        <translation>フレーム(&amp;A)</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>フレームなし</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px with a shadow</source>
        <translation>%1 × %2 px のフレーム、影付き</translation>
    </message>
    <message>
        <source>A frame of %1 × %2 px</source>
        <translation>%1 × %2 px のフレーム</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px with a shadow</source>
        <translation>余白 %1、%2、%3、%4 px、影付き</translation>
    </message>
    <message>
        <source>Margins %1, %2, %3, %4 px</source>
        <translation>余白 %1、%2、%3、%4 px</translation>
    </message>
    <message>
        <source>&amp;Metadata</source>
        <translation>メタデータ(&amp;M)</translation>
    </message>
    <message>
        <source>All metadata is kept</source>
        <translation>すべてのメタデータを残します</translation>
    </message>
    <message>
        <source>No metadata is kept</source>
        <translation>メタデータを残しません</translation>
    </message>
    <message>
        <source>Kept are %1</source>
        <translation>残すもの: %1</translation>
    </message>
    <message>
        <source>First part</source>
        <translation>先頭部</translation>
    </message>
    <message>
        <source>Text of the first part</source>
        <translation>先頭部のテキスト</translation>
    </message>
    <message>
        <source>First number of the first part</source>
        <translation>先頭部の開始番号</translation>
    </message>
    <message>
        <source>Digits of the first part</source>
        <translation>先頭部の桁数</translation>
    </message>
    <message>
        <source>Between the first and the middle part</source>
        <translation>先頭部と中央部の間</translation>
    </message>
    <message>
        <source>Middle part</source>
        <translation>中央部</translation>
    </message>
    <message>
        <source>Text of the middle part</source>
        <translation>中央部のテキスト</translation>
    </message>
    <message>
        <source>First number of the middle part</source>
        <translation>中央部の開始番号</translation>
    </message>
    <message>
        <source>Digits of the middle part</source>
        <translation>中央部の桁数</translation>
    </message>
    <message>
        <source>Between the middle and the last part</source>
        <translation>中央部と末尾部の間</translation>
    </message>
    <message>
        <source>Last part</source>
        <translation>末尾部</translation>
    </message>
    <message>
        <source>Text of the last part</source>
        <translation>末尾部のテキスト</translation>
    </message>
    <message>
        <source>First number of the last part</source>
        <translation>末尾部の開始番号</translation>
    </message>
    <message>
        <source>Digits of the last part</source>
        <translation>末尾部の桁数</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>Example, as if it had been taken on 2024-07-31 at 14:05:09: %1</source>
        <translation>例（2024-07-31 14:05:09 に撮影したとして）: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>例: %1</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>形式の既定値</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Co&amp;lour profile</source>
        <translation>カラープロファイル(&amp;L)</translation>
    </message>
    <message>
        <source>Choose the file of a colour profile</source>
        <translation>カラープロファイルのファイルを選択</translation>
    </message>
    <message>
        <source>Remove the colour profile</source>
        <translation>カラープロファイルを削除</translation>
    </message>
    <message>
        <source>A profile of %1 bytes without a name</source>
        <translation>名前のないプロファイル（%1 バイト）</translation>
    </message>
    <message>
        <source>The profile of each input</source>
        <translation>入力と同じプロファイル</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 in at %2 dpi</source>
        <translation>%1 インチ、%2 dpi</translation>
    </message>
    <message>
        <source>%1 cm at %2 dpi</source>
        <translation>%1 cm、%2 dpi</translation>
    </message>
    <message>
        <source>%1 mm at %2 dpi</source>
        <translation>%1 mm、%2 dpi</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>幅 %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>高さ %1</translation>
    </message>
    <message>
        <source>Short side %1</source>
        <translation>短辺 %1</translation>
    </message>
    <message>
        <source>Long side %1</source>
        <translation>長辺 %1</translation>
    </message>
    <message>
        <source>Width %1, only smaller</source>
        <translation>幅 %1、縮小のみ</translation>
    </message>
    <message>
        <source>Height %1, only smaller</source>
        <translation>高さ %1、縮小のみ</translation>
    </message>
    <message>
        <source>Short side %1, only smaller</source>
        <translation>短辺 %1、縮小のみ</translation>
    </message>
    <message>
        <source>Long side %1, only smaller</source>
        <translation>長辺 %1、縮小のみ</translation>
    </message>
    <message>
        <source>Width %1, only larger</source>
        <translation>幅 %1、拡大のみ</translation>
    </message>
    <message>
        <source>Height %1, only larger</source>
        <translation>高さ %1、拡大のみ</translation>
    </message>
    <message>
        <source>Short side %1, only larger</source>
        <translation>短辺 %1、拡大のみ</translation>
    </message>
    <message>
        <source>Long side %1, only larger</source>
        <translation>長辺 %1、拡大のみ</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>サイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大縮小</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>基準辺</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>The size stays</source>
        <translation>サイズは変わりません</translation>
    </message>
    <message>
        <source>Pictures that are added now are for the next run.</source>
        <translation>今追加した画像は次の実行で処理されます。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Results go to %1</source>
        <translation>出力先: %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Previous picture</source>
        <translation>前の画像(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next picture</source>
        <translation>次の画像(&amp;N)</translation>
    </message>
    <message>
        <source>Ne&amp;xt pane</source>
        <translation>次のパネル(&amp;X)</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>前のパネル(&amp;V)</translation>
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
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>The run cannot be started: %1.</source>
        <translation>実行を開始できません: %1。</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>表 (*.csv)</translation>
    </message>
    <message>
        <source>JSON files (*.json)</source>
        <translation>JSON ファイル (*.json)</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>レポートを保存</translation>
    </message>
    <message>
        <source>The report was saved as %1.</source>
        <translation>レポートを %1 として保存しました。</translation>
    </message>
    <message>
        <source>The report was not saved: %1.</source>
        <translation>レポートを保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>The run cannot be forgotten: %1.</source>
        <translation>実行を破棄できません: %1。</translation>
    </message>
    <message>
        <source>The run cannot be resumed: %1.</source>
        <translation>実行を再開できません: %1。</translation>
    </message>
    <message>
        <source>All pictures are written</source>
        <translation>すべての画像を書き出しました</translation>
    </message>
    <message>
        <source>The run is finished, some pictures are left out</source>
        <translation>実行が完了しました。一部の画像は書き出されていません</translation>
    </message>
    <message>
        <source>The run is cancelled</source>
        <translation>実行をキャンセルしました</translation>
    </message>
    <message>
        <source>The run has stopped</source>
        <translation>実行が停止しました</translation>
    </message>
    <message>
        <source>Pictures are being written</source>
        <translation>画像を書き出しています</translation>
    </message>
    <message>
        <source>A picture needs your decision</source>
        <translation>画像について確認が必要です</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Show failures</source>
        <translation>失敗した画像を表示</translation>
    </message>
    <message>
        <source>Begins with a new job.</source>
        <translation>新しいジョブで始めます。</translation>
    </message>
    <message>
        <source>The grid shows all pictures; the list can be filtered.</source>
        <translation>グリッドにはすべての画像が表示されます。絞り込みはリストでできます。</translation>
    </message>
    <message>
        <source>Written as %1</source>
        <translation>書き出し先: %1</translation>
    </message>
    <message>
        <source>Let other programs go &amp;first</source>
        <translation>ほかのプログラムを優先する(&amp;F)</translation>
    </message>
    <message>
        <source>Largest file</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>May get smaller</source>
        <translation>縮小を許可</translation>
    </message>
    <message>
        <source>Least quality</source>
        <translation>最低品質</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>the record of earlier results was ignored: %1. They were not recognised, and not replaced.</source>
        <translation>以前の結果の記録は無視されました: %1。それらは認識されず、置き換えられていません。</translation>
    </message>
    <message>
        <source>the results of this update cannot be recorded: %1. The next one tries again.</source>
        <translation>この更新の結果を記録できません: %1。次の更新で再び試みます。</translation>
    </message>
    <message>
        <source>1 result is left from an input that is gone; --delete-orphans removes it:</source>
        <translation>なくなった入力の結果が 1 件残っています。--delete-orphans で削除します:</translation>
    </message>
    <message>
        <source>%1 results are left from inputs that are gone; --delete-orphans removes them:</source>
        <translation>なくなった入力の結果が %1 件残っています。--delete-orphans で削除します:</translation>
    </message>
    <message>
        <source>not all inputs could be read, so nothing is removed of what seems to be left from inputs that are gone:</source>
        <translation>すべての入力を読めなかったため、なくなった入力の結果と思われるものは削除しません:</translation>
    </message>
    <message>
        <source>1 result was removed, because its input is gone.</source>
        <translation>入力がなくなったため、結果 1 件を削除しました。</translation>
    </message>
    <message>
        <source>%1 results were removed, because their inputs are gone.</source>
        <translation>入力がなくなったため、結果 %1 件を削除しました。</translation>
    </message>
    <message>
        <source>these results could not be removed:</source>
        <translation>次の結果は削除できませんでした:</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>Finished in %1: %2 written, %3 were up to date.</source>
        <translation>%1 で完了: %2 件を書き込み、%3 件は最新でした。</translation>
    </message>
    <message>
        <source>Make only &amp;what has changed</source>
        <translation>変更されたものだけを作成(&amp;C)</translation>
    </message>
    <message>
        <source>%1. Saved jobs may be given: as the first arguments of run and plan, one as the first argument of show, or to create with --from</source>
        <translation>%1。保存済みジョブは、run と plan の最初の引数として、show の最初の引数として 1 つ、または create の --from で指定できます</translation>
    </message>
    <message>
        <source>%1 can no longer be read: %2</source>
        <translation>%1 を読み込めなくなりました: %2</translation>
    </message>
    <message>
        <source>watching %1; results go to %2. Ctrl-C ends it.</source>
        <translation>%1 を監視中です。結果の保存先は %2 です。Ctrl-C で終了します。</translation>
    </message>
    <message>
        <source>warning %1: %2</source>
        <translation>警告 %1: %2</translation>
    </message>
    <message>
        <source>watching ends, as a policy says; the next start tries these pictures again.</source>
        <translation>規則に従って監視を終了します。次回の起動時にこれらの画像をもう一度処理します。</translation>
    </message>
    <message>
        <source>Written: %1, skipped: %2, failed: %3.</source>
        <translation>書き出し: %1、スキップ: %2、失敗: %3。</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>メタデータを書き込む</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Text has tokens</source>
        <translation>文字列にトークンを使う</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>使用条件</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>著作権表示</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>Example, with what a picture might say: %1</source>
        <translation>例（画像の情報は仮のもの）: %1</translation>
    </message>
    <message>
        <source>Parts done: %1 of %2. Written: %3, skipped: %4, failed: %5, not processed: %6.</source>
        <translation>完了したパート: %1/%2。書き込み: %3、スキップ: %4、失敗: %5、未処理: %6。</translation>
    </message>
    <message>
        <source>Parts to run again, as they are not done: %1</source>
        <translation>未完了のため再実行するパート: %1</translation>
    </message>
    <message>
        <source>Parts to run again, as pictures have failed: %1</source>
        <translation>画像の失敗のため再実行するパート: %1</translation>
    </message>
    <message>
        <source>the plan %1 or its journals cannot be removed.</source>
        <translation>プラン %1 またはそのジャーナルを削除できません。</translation>
    </message>
    <message>
        <source>Part %1 of %2 is not done; run it again to go on.</source>
        <translation>パート %1/%2 は完了していません。続けるにはもう一度実行してください。</translation>
    </message>
    <message>
        <source>Part %1: pictures: %2, %3</source>
        <translation>パート %1: 画像: %2、%3</translation>
    </message>
    <message>
        <source>The plan of %1 parts is in %2. For each of them: velkora-batch run --plan %2 --part NUMBER. At the end: velkora-batch collect %2</source>
        <translation>%1 個のパートのプランは %2 にあります。各パート: velkora-batch run --plan %2 --part NUMBER。最後に: velkora-batch collect %2</translation>
    </message>
    <message>
        <source>Several presets</source>
        <translation>複数のプリセット</translation>
    </message>
    <message>
        <source>Each picture gets a result of each preset. They go to folders with the names of the presets, in %1.</source>
        <translation>それぞれの画像から、プリセットごとに結果を作成します。結果は %1 の中の、プリセットと同じ名前のフォルダーに入ります。</translation>
    </message>
    <message>
        <source>Start with several p&amp;resets...</source>
        <translation>複数のプリセットで開始(&amp;P)...</translation>
    </message>
    <message>
        <source>part %1 was made with %2, but the plan with %3; its pictures may differ.</source>
        <translation>パート %1 は %2 で作られましたが、計画は %3 で作られました。画像が異なることがあります。</translation>
    </message>
    <message>
        <source>no temporary folder can be made: %1. Set %2 to another folder.</source>
        <translation>一時フォルダーを作成できません: %1。%2 に別のフォルダーを設定してください。</translation>
    </message>
</context>
<context>
    <name>BatchJob::Phrase</name>
    <message>
        <source>Spreads the values that a picture has from black to white</source>
        <translation>画像の階調を黒から白まで広げます</translation>
    </message>
    <message>
        <source>Blurs evenly</source>
        <translation>均一にぼかします</translation>
    </message>
    <message>
        <source>Adds a border around a picture</source>
        <translation>画像の周りに縁を付けます</translation>
    </message>
    <message>
        <source>Shifts all values, then spreads them around the middle</source>
        <translation>すべての値をずらしてから、中間値を中心に広げます</translation>
    </message>
    <message>
        <source>Raises or lowers the contrast of larger structures, mostly in the middle tones</source>
        <translation>主に中間調で、大きな構造のコントラストを強めたり弱めたりします</translation>
    </message>
    <message>
        <source>a second size; one table is needed, of one or of three dimensions</source>
        <translation>2 つ目のサイズ指定です。1 次元または 3 次元の表が 1 つだけ必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs a whole number from 2 to %3</source>
        <translation>「%1」。%2 には 2～%3 の整数が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs three numbers</source>
        <translation>「%1」。%2 には 3 つの数値が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs two numbers</source>
        <translation>「%1」。%2 には 2 つの数値が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; three numbers or a known keyword are needed</source>
        <translation>「%1」。3 つの数値か既知のキーワードが必要です</translation>
    </message>
    <message>
        <source>an entry before LUT_1D_SIZE or LUT_3D_SIZE</source>
        <translation>LUT_1D_SIZE または LUT_3D_SIZE より前にデータがあります</translation>
    </message>
    <message>
        <source>one entry more than the %1 that the size says</source>
        <translation>サイズで示された %1 個よりデータが 1 個多くあります</translation>
    </message>
    <message>
        <source>no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file</source>
        <translation>LUT_1D_SIZE も LUT_3D_SIZE もなく、.cube ファイルではありません</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 entries</source>
        <translation>%2 個のうち %1 個でファイルが終わっています</translation>
    </message>
    <message>
        <source>DOMAIN_MIN must be less than DOMAIN_MAX in every channel</source>
        <translation>すべてのチャンネルで DOMAIN_MIN は DOMAIN_MAX より小さくなければなりません</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1、%2 行目: %3</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 は存在しません</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 はファイルではありません</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; a .cube file has at most %3</source>
        <translation>%1 は %2 バイトです。.cube ファイルは最大 %3 バイトです</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>input and output, from black to white; between them the curve never turns, beyond them it is level</source>
        <translation>黒から白までの入力値と出力値。点の間で曲線は折り返さず、両端の外側では水平です</translation>
    </message>
    <message>
        <source>Maps values along a smooth curve through points</source>
        <translation>点を通る滑らかなトーンカーブで値を変換します</translation>
    </message>
    <message>
        <source>Smooths noise and keeps edges</source>
        <translation>輪郭を保ったままノイズを滑らかにします</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 percent; it must be at most 100, or the unit pixels</source>
        <translation>「%1」が %2 パーセントです。100 以下にするか、単位を pixels にしてください</translation>
    </message>
    <message>
        <source>Brightens or darkens as a longer or shorter exposure would</source>
        <translation>露光時間を長く、または短くしたように明るさを変えます</translation>
    </message>
    <message>
        <source>Mirrors a picture</source>
        <translation>画像を反転します</translation>
    </message>
    <message>
        <source>Takes all colour away</source>
        <translation>すべての色を取り除きます</translation>
    </message>
    <message>
        <source>Turns all colours around the colour circle</source>
        <translation>すべての色を色相環に沿って回転します</translation>
    </message>
    <message>
        <source>Turns a picture into its negative</source>
        <translation>画像をネガに変えます</translation>
    </message>
    <message>
        <source>&quot;black&quot; is %1 and &quot;white&quot; is %2; black must be less than white</source>
        <translation>「black」が %1、「white」が %2 です。black は white より小さくしてください</translation>
    </message>
    <message>
        <source>Sets what becomes black, what becomes white, and the tone between them</source>
        <translation>黒になる値、白になる値、その間の調子を決めます</translation>
    </message>
    <message>
        <source>Maps colours by the table of a .cube file; a grey picture becomes a colour picture</source>
        <translation>.cube ファイルの表に従って色を変換します。グレースケール画像はカラー画像になります</translation>
    </message>
    <message>
        <source>Leaves few steps of each colour</source>
        <translation>各色の段階を少なくします</translation>
    </message>
    <message>
        <source>Turns a picture clockwise; the result is as large as it needs</source>
        <translation>画像を時計回りに回転します。結果は必要な大きさになります</translation>
    </message>
    <message>
        <source>Makes all colours stronger or weaker</source>
        <translation>すべての色を強く、または弱くします</translation>
    </message>
    <message>
        <source>Tones a picture brown; a grey picture becomes a colour picture</source>
        <translation>画像をセピア調にします。グレースケール画像はカラー画像になります</translation>
    </message>
    <message>
        <source>Sharpens edges by an unsharp mask</source>
        <translation>アンシャープマスクで輪郭をシャープにします</translation>
    </message>
    <message>
        <source>Makes weak colours stronger or weaker, and spares those that are strong</source>
        <translation>強い色を保ったまま、弱い色を強く、または弱くします</translation>
    </message>
    <message>
        <source>Darkens or brightens towards the corners</source>
        <translation>四隅に向かって暗く、または明るくします</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 does not exist</source>
        <translation>「file」: %1 は存在しません</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a file</source>
        <translation>「file」: %1 はファイルではありません</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 cannot be read: %2</source>
        <translation>「file」: %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a picture of a known format</source>
        <translation>「file」: %1 は既知の形式の画像ではありません</translation>
    </message>
    <message>
        <source>Lays another picture, such as a logo, over a picture</source>
        <translation>ロゴなど別の画像を重ねます</translation>
    </message>
    <message>
        <source>what is written; it may have several lines</source>
        <translation>書き込む文字列。複数行も可能です</translation>
    </message>
    <message>
        <source>family and style, without a size; a family that is missing is replaced</source>
        <translation>フォントファミリーとスタイル（サイズなし）。ないフォントは置き換えられます</translation>
    </message>
    <message>
        <source>Writes a text over a picture</source>
        <translation>画像に文字を書き込みます</translation>
    </message>
    <message>
        <source>Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance</source>
        <translation>画像を暖色・寒色、緑・マゼンタ寄りにします。グレーの輝度は保たれます</translation>
    </message>
    <message>
        <source>very small files for the web in up to 12 bits, slow to write</source>
        <translation>最大 12 ビットの、とても小さな Web 用ファイル。書き出しは遅め</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; %2 takes %3</source>
        <translation>「bitDepth」が %1 です。%2 で使えるのは %3 です</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; it must be 8, 10, 12 or 16</source>
        <translation>「bitDepth」が %1 です。8、10、12、16 のいずれかにしてください</translation>
    </message>
    <message>
        <source>the format &quot;%1&quot; is unknown</source>
        <translation>形式「%1」は不明です</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; &quot;compression&quot; jpeg takes 8</source>
        <translation>「bitDepth」が %1 です。「compression」が jpeg の場合は 8 です</translation>
    </message>
    <message>
        <source>at most 256 colours, each pixel opaque or transparent</source>
        <translation>最大 256 色、各ピクセルは不透明か透明</translation>
    </message>
    <message>
        <source>small files of photos in up to 12 bits, as phones write them</source>
        <translation>スマートフォンと同じ、最大 12 ビットの小さな写真ファイル</translation>
    </message>
    <message>
        <source>archives and films, in up to 16 bits, also without loss</source>
        <translation>アーカイブや映画用、最大 16 ビット、可逆圧縮も可能</translation>
    </message>
    <message>
        <source>small files of photos, which every program reads</source>
        <translation>どのソフトでも読める小さな写真ファイル</translation>
    </message>
    <message>
        <source>small files of photos in up to 16 bits, also without loss</source>
        <translation>最大 16 ビットの小さな写真ファイル、可逆圧縮も可能</translation>
    </message>
    <message>
        <source>every pixel as it is, with transparency; for graphics and for editing</source>
        <translation>すべての画素をそのまま、透明度付きで保存。グラフィックや編集向け</translation>
    </message>
    <message>
        <source>higher is slower and smaller</source>
        <translation>大きいほど遅く、小さくなります</translation>
    </message>
    <message>
        <source>what the sensor of a camera saw, in the formats of many makers</source>
        <translation>カメラのセンサーが捉えたデータ。多くのメーカーの形式</translation>
    </message>
    <message>
        <source>every pixel as it is, also CMYK and very large; for printing and for archives</source>
        <translation>すべての画素をそのまま、CMYK や非常に大きな画像も保存。印刷やアーカイブ向け</translation>
    </message>
    <message>
        <source>how the pixels are compressed</source>
        <translation>画素の圧縮方法</translation>
    </message>
    <message>
        <source>small files for the web, with transparency</source>
        <translation>透明度付きの小さな Web 用ファイル</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>リンクです</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>別のユーザーのものです</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>複数の名前を持っています</translation>
    </message>
    <message>
        <source>other users may write it</source>
        <translation>ほかのユーザーが書き込めます</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>its own format cannot be written</source>
        <translation>元の形式では書き出せません</translation>
    </message>
    <message>
        <source>its own format, %1, cannot be written</source>
        <translation>元の形式 %1 では書き出せません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already</source>
        <translation>「%1」はすでにあります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a source of this job</source>
        <translation>「%1」はこのジョブの元ファイルです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the result of &quot;%2&quot;</source>
        <translation>「%1」は「%2」の結果です</translation>
    </message>
    <message>
        <source>written as &quot;%1&quot; (naming policy)</source>
        <translation>「%1」として書き出しました（名前のルール）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was overwritten (naming policy)</source>
        <translation>「%1」を上書きしました（名前のルール）</translation>
    </message>
    <message>
        <source>written as %1 (write-to-format policy)</source>
        <translation>%1 形式で書き出しました（形式のルール）</translation>
    </message>
    <message>
        <source>The format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>次のいずれか: %1</translation>
    </message>
    <message>
        <source>The options of the format %1: %2</source>
        <translation>形式 %1 のオプション: %2</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;, does not exist</source>
        <translation>効果 %1「%2」は存在しません</translation>
    </message>
    <message>
        <source>; there are %1</source>
        <translation>。使えるのは %1</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>。「%1」のことですか？</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;: %3</source>
        <translation>効果 %1「%2」: %3</translation>
    </message>
    <message>
        <source>The job has no files</source>
        <translation>ジョブにファイルがありません</translation>
    </message>
    <message>
        <source>The input policy</source>
        <translation>入力のルール</translation>
    </message>
    <message>
        <source>The output policy</source>
        <translation>出力のルール</translation>
    </message>
    <message>
        <source>The processing policy</source>
        <translation>処理のルール</translation>
    </message>
    <message>
        <source>The naming policy</source>
        <translation>名前のルール</translation>
    </message>
    <message>
        <source>The write-to-format policy</source>
        <translation>形式のルール</translation>
    </message>
    <message>
        <source>The shadow&apos;s mode</source>
        <translation>影のモード</translation>
    </message>
    <message>
        <source>The shadow&apos;s opacity</source>
        <translation>影の不透明度</translation>
    </message>
    <message>
        <source>The shadow&apos;s distance</source>
        <translation>影の距離</translation>
    </message>
    <message>
        <source>The shadow&apos;s size</source>
        <translation>影のサイズ</translation>
    </message>
    <message>
        <source>The background&apos;s type</source>
        <translation>背景の種類</translation>
    </message>
    <message>
        <source>The background&apos;s opacity</source>
        <translation>背景の不透明度</translation>
    </message>
    <message>
        <source>The background&apos;s pattern</source>
        <translation>背景のパターン</translation>
    </message>
    <message>
        <source>The scale of the background&apos;s pattern</source>
        <translation>背景パターンの倍率</translation>
    </message>
    <message>
        <source>The background&apos;s image</source>
        <translation>背景画像</translation>
    </message>
    <message>
        <source>the absolute path of a file that exists</source>
        <translation>既存ファイルの絶対パス</translation>
    </message>
    <message>
        <source>The frame&apos;s width</source>
        <translation>フレームの幅</translation>
    </message>
    <message>
        <source>The frame&apos;s height</source>
        <translation>フレームの高さ</translation>
    </message>
    <message>
        <source>The output folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>絶対パス</translation>
    </message>
    <message>
        <source>The folder structure</source>
        <translation>フォルダー構成</translation>
    </message>
    <message>
        <source>The name&apos;s prefix</source>
        <translation>名前の先頭部</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s prefix</source>
        <translation>名前の先頭部の桁数</translation>
    </message>
    <message>
        <source>The name&apos;s middle</source>
        <translation>名前の中央部</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s middle</source>
        <translation>名前の中央部の桁数</translation>
    </message>
    <message>
        <source>The name&apos;s suffix</source>
        <translation>名前の末尾部</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s suffix</source>
        <translation>名前の末尾部の桁数</translation>
    </message>
    <message>
        <source>The image size&apos;s restriction</source>
        <translation>画像サイズの制限</translation>
    </message>
    <message>
        <source>The image size&apos;s resolution</source>
        <translation>画像サイズの解像度</translation>
    </message>
    <message>
        <source>The image size&apos;s side</source>
        <translation>画像サイズの基準辺</translation>
    </message>
    <message>
        <source>The image size&apos;s unit</source>
        <translation>画像サイズの単位</translation>
    </message>
    <message>
        <source>The image size</source>
        <translation>画像サイズ</translation>
    </message>
    <message>
        <source>a number above 0, up to %1</source>
        <translation>0 より大きく %1 以下の数値</translation>
    </message>
    <message>
        <source>The crop&apos;s type</source>
        <translation>切り抜きの種類</translation>
    </message>
    <message>
        <source>The crop&apos;s width</source>
        <translation>切り抜きの幅</translation>
    </message>
    <message>
        <source>The crop&apos;s height</source>
        <translation>切り抜きの高さ</translation>
    </message>
    <message>
        <source>The crop&apos;s alignment</source>
        <translation>切り抜きの位置合わせ</translation>
    </message>
    <message>
        <source>a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)</source>
        <translation>1（左）、2（右）、4（中央）、32（上）、64（下）、128（中央）の和</translation>
    </message>
    <message>
        <source>The frame&apos;s margin</source>
        <translation>フレームの余白</translation>
    </message>
    <message>
        <source>The frame&apos;s blending</source>
        <translation>フレームの描画モード</translation>
    </message>
    <message>
        <source>The picture&apos;s opacity</source>
        <translation>画像の不透明度</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>%1の整数</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1～%2 </translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>0～1 の数値</translation>
    </message>
    <message>
        <source>%1 is %2; it must be %3</source>
        <translation>%1が %2 です。指定できる値: %3</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>形式を変更</translation>
    </message>
    <message>
        <source>from %1 to %2 (%3)</source>
        <translation>%1～%2（%3）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown</source>
        <translation>「%1」は不明です</translation>
    </message>
    <message>
        <source>; none is taken here</source>
        <translation>。ここでは何も指定できません</translation>
    </message>
    <message>
        <source>; known are %1</source>
        <translation>。使えるのは %1</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1: %2</source>
        <translation>%1 バイト目で JSON が正しくありません: %2</translation>
    </message>
    <message>
        <source>a JSON object is needed, such as {&quot;name&quot;: value}</source>
        <translation>{&quot;name&quot;: value} のような JSON オブジェクトが必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing; it must be %2</source>
        <translation>「%1」がありません。指定できる値: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be %3</source>
        <translation>「%1」が %2 です。指定できる値: %3</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>。%1 のことですか？</translation>
    </message>
    <message>
        <source>a number %1</source>
        <translation>%1の数値</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>次のものの一覧: %1</translation>
    </message>
    <message>
        <source>a colour, #rrggbb or #rrggbbaa</source>
        <translation>色（#rrggbb または #rrggbbaa）</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>%1～%2 文字のテキスト</translation>
    </message>
    <message>
        <source>the absolute path of a file</source>
        <translation>ファイルの絶対パス</translation>
    </message>
    <message>
        <source>a list of 2 to %1 points [x, y] with ascending x, numbers %2</source>
        <translation>x が増える順に並んだ 2～%1 個の点 [x, y]、数値は %2</translation>
    </message>
    <message>
        <source>written</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>only the first page</source>
        <translation>最初のページのみ</translation>
    </message>
    <message>
        <source>the file lacks its end</source>
        <translation>ファイルの末尾がありません</translation>
    </message>
    <message>
        <source>colour profile not used</source>
        <translation>カラープロファイルを不使用</translation>
    </message>
    <message>
        <source>colours converted</source>
        <translation>色を変換</translation>
    </message>
    <message>
        <source>metadata lost</source>
        <translation>メタデータを消失</translation>
    </message>
    <message>
        <source>gain map lost</source>
        <translation>ゲインマップを消失</translation>
    </message>
    <message>
        <source>framing without effect</source>
        <translation>フレームは効果なし</translation>
    </message>
    <message>
        <source>the decoder found a fault</source>
        <translation>デコーダーが問題を検出</translation>
    </message>
    <message>
        <source>%1 does not lie in the output folder %2</source>
        <translation>%1 は出力フォルダー %2 の中にありません</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>フォルダー %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>%1 is a link; results are not written through it unless links are followed</source>
        <translation>%1 はリンクです。リンクをたどる設定でない限り、その先には書き込みません</translation>
    </message>
    <message>
        <source>the worker&apos;s report is invalid: %1</source>
        <translation>ワーカーの報告が正しくありません: %1</translation>
    </message>
    <message>
        <source>it takes more memory than the limit of %1 MiB</source>
        <translation>上限の %1 MiB を超えるメモリーが必要です</translation>
    </message>
    <message>
        <source>it takes longer than the limit of %1 seconds</source>
        <translation>上限の %1 秒を超えて時間がかかっています</translation>
    </message>
    <message>
        <source>the worker wrote more than %1 MiB of messages</source>
        <translation>ワーカーが %1 MiB を超えるメッセージを出力しました</translation>
    </message>
    <message>
        <source>the worker sent an invalid answer</source>
        <translation>ワーカーが正しくない応答を返しました</translation>
    </message>
    <message>
        <source>the worker %1</source>
        <translation>ワーカーが%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2</source>
        <translation>「%1」を起動できません: %2</translation>
    </message>
    <message>
        <source>ended by exception 0x%1</source>
        <translation>例外 0x%1 で終了しました</translation>
    </message>
    <message>
        <source>ended by signal %1</source>
        <translation>シグナル %1 で終了しました</translation>
    </message>
    <message>
        <source>%1; its last output: %2</source>
        <translation>%1。最後の出力: %2</translation>
    </message>
    <message>
        <source>ended with exit code %1</source>
        <translation>終了コード %1 で終了しました</translation>
    </message>
    <message>
        <source>The job is not a batch document</source>
        <translation>ジョブがバッチ文書ではありません</translation>
    </message>
    <message>
        <source>The job cannot be read: its reader failed</source>
        <translation>ジョブを読み込めません: 読み込み処理が失敗しました</translation>
    </message>
    <message>
        <source>the server crashed %1 times while it worked on the file</source>
        <translation>このファイルの処理中にサーバーが %1 回異常終了しました</translation>
    </message>
    <message>
        <source>the worker reported a result that is not there</source>
        <translation>ワーカーが報告した結果が見つかりません</translation>
    </message>
    <message>
        <source>each of %1 names for the result was taken when it was to be written</source>
        <translation>書き出そうとした %1 個の名前がすべて使われていました</translation>
    </message>
    <message>
        <source>the journal %1 cannot be used: %2</source>
        <translation>ジャーナル %1 を使えません: %2</translation>
    </message>
    <message>
        <source>another server holds %1</source>
        <translation>別のサーバーが %1 を使用しています</translation>
    </message>
    <message>
        <source>%1 cannot be written; the disk may be full</source>
        <translation>%1 に書き込めません。ディスクがいっぱいかもしれません</translation>
    </message>
    <message>
        <source>the embedded colour profile is damaged and is not used</source>
        <translation>埋め込みカラープロファイルが壊れているため使いません</translation>
    </message>
    <message>
        <source>the embedded colour profile does not fit the picture and is not used</source>
        <translation>埋め込みカラープロファイルが画像に合わないため使いません</translation>
    </message>
    <message>
        <source>the embedded colour profile cannot be used</source>
        <translation>埋め込みカラープロファイルを使えません</translation>
    </message>
    <message>
        <source>its colour profile is one for storing colours only; the result is sRGB</source>
        <translation>カラープロファイルが色の保存専用のため、結果は sRGB です</translation>
    </message>
    <message>
        <source>the job&apos;s colour profile does not describe pictures; the colours are not converted</source>
        <translation>ジョブのカラープロファイルは画像用ではないため、色を変換しません</translation>
    </message>
    <message>
        <source>the colour profile cannot be used; the colours are not converted</source>
        <translation>カラープロファイルを使えないため、色を変換しません</translation>
    </message>
    <message>
        <source>the colours cannot be converted to sRGB; their values are taken for sRGB as they are</source>
        <translation>色を sRGB に変換できないため、値をそのまま sRGB とみなします</translation>
    </message>
    <message>
        <source>the file is HDR; the result has the brightness of common screens</source>
        <translation>ファイルは HDR です。結果は一般的な画面の明るさになります</translation>
    </message>
    <message>
        <source>its values are complex numbers, which are no colours</source>
        <translation>値が複素数で、色を表していません</translation>
    </message>
    <message>
        <source>its kind of colours is not supported: %1</source>
        <translation>この種類の色には対応していません: %1</translation>
    </message>
    <message>
        <source>its kind of colours is not supported</source>
        <translation>この種類の色には対応していません</translation>
    </message>
    <message>
        <source>what the file says of its colours is damaged or unknown and is not used</source>
        <translation>ファイルの色情報が壊れているか不明なため使いません</translation>
    </message>
    <message>
        <source>the file&apos;s header is damaged</source>
        <translation>ファイルのヘッダーが壊れています</translation>
    </message>
    <message>
        <source>the file holds no picture data, or refers to another file for them</source>
        <translation>ファイルに画像データがないか、別のファイルを参照しています</translation>
    </message>
    <message>
        <source>the file&apos;s header does not fit its picture</source>
        <translation>ファイルのヘッダーが画像と合っていません</translation>
    </message>
    <message>
        <source>colour space %1</source>
        <translation>色空間 %1</translation>
    </message>
    <message>
        <source>colours of method %1</source>
        <translation>方式 %1 の色</translation>
    </message>
    <message>
        <source>its colours are of a kind that is not supported (%1)</source>
        <translation>対応していない種類の色です（%1）</translation>
    </message>
    <message>
        <source>it has %1 channels and does not say what they are</source>
        <translation>%1 個のチャンネルがありますが、その意味が示されていません</translation>
    </message>
    <message>
        <source>the transparency of a CMYK picture is left out</source>
        <translation>CMYK 画像の透明度は省かれます</translation>
    </message>
    <message>
        <source>it has %1 channels; only the first %2 are used</source>
        <translation>%1 個のチャンネルのうち最初の %2 個だけを使います</translation>
    </message>
    <message>
        <source>the header of the picture data is damaged</source>
        <translation>画像データのヘッダーが壊れています</translation>
    </message>
    <message>
        <source>it uses %1, which is not supported</source>
        <translation>対応していない機能を使っています: %1</translation>
    </message>
    <message>
        <source>the file ends after %1 % of the picture</source>
        <translation>画像の %1 % の位置でファイルが終わっています</translation>
    </message>
    <message>
        <source>an extension of JPEG 2000 (marker %1)</source>
        <translation>JPEG 2000 の拡張（マーカー %1）</translation>
    </message>
    <message>
        <source>two kinds of coding in one picture</source>
        <translation>1 枚の画像に 2 種類の符号化</translation>
    </message>
    <message>
        <source>an unknown kind of coding</source>
        <translation>未知の符号化</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 チャンネル</translation>
    </message>
    <message>
        <source>%1 bits a channel</source>
        <translation>チャンネルあたり %1 ビット</translation>
    </message>
    <message>
        <source>the file ends before the picture does</source>
        <translation>画像の途中でファイルが終わっています</translation>
    </message>
    <message>
        <source>the picture data are damaged</source>
        <translation>画像データが壊れています</translation>
    </message>
    <message>
        <source>%1 % of the picture are missing</source>
        <translation>画像の %1 % が欠けています</translation>
    </message>
    <message>
        <source>packed headers of tiles that are not in order</source>
        <translation>順序どおりでないタイルのパックヘッダー</translation>
    </message>
    <message>
        <source>out of memory while decoding (%1)</source>
        <translation>デコード中にメモリーが不足しました（%1）</translation>
    </message>
    <message>
        <source>it is coded in a way that is not supported (%1)</source>
        <translation>対応していない方式で符号化されています（%1）</translation>
    </message>
    <message>
        <source>the picture data are damaged (%1)</source>
        <translation>画像データが壊れています（%1）</translation>
    </message>
    <message>
        <source>it has %1 pages; only the first is used</source>
        <translation>%1 ページのうち最初のページだけを使います</translation>
    </message>
    <message>
        <source>the file lacks its last bytes, but all of the picture is there</source>
        <translation>ファイルの末尾が欠けていますが、画像はすべて揃っています</translation>
    </message>
    <message>
        <source>decoding takes %1 MiB of memory%2; a worker may use %3 MiB</source>
        <translation>デコードに %1 MiB のメモリーが必要です%2。ワーカーが使えるのは %3 MiB です</translation>
    </message>
    <message>
        <source>, because the picture is not divided into tiles</source>
        <translation>（画像がタイルに分割されていないため）</translation>
    </message>
    <message>
        <source>it is a lossless or hierarchical JPEG file, which is not supported</source>
        <translation>可逆または階層型の JPEG ファイルには対応していません</translation>
    </message>
    <message>
        <source>it is a JPEG file of %1 bits a channel; only 8 are supported</source>
        <translation>チャンネルあたり %1 ビットの JPEG ファイルです。対応しているのは 8 ビットだけです</translation>
    </message>
    <message>
        <source>the file ends before all details of the picture</source>
        <translation>画像の細部が揃う前にファイルが終わっています</translation>
    </message>
    <message>
        <source>the file ends before its picture begins</source>
        <translation>画像が始まる前にファイルが終わっています</translation>
    </message>
    <message>
        <source>the file lacks its last bytes; the picture is whole</source>
        <translation>ファイルの末尾が欠けていますが、画像は完全です</translation>
    </message>
    <message>
        <source>the picture has more pixels than any limit</source>
        <translation>画像の画素数がどの上限も超えています</translation>
    </message>
    <message>
        <source>the file is damaged: its picture cannot be decoded</source>
        <translation>ファイルが壊れています: 画像をデコードできません</translation>
    </message>
    <message>
        <source>the file ends before its picture is complete</source>
        <translation>画像が揃う前にファイルが終わっています</translation>
    </message>
    <message>
        <source>the file is damaged: it has no picture</source>
        <translation>ファイルが壊れています: 画像がありません</translation>
    </message>
    <message>
        <source>decoding %1 x %2 pixels takes more than a worker may use</source>
        <translation>%1 x %2 ピクセルのデコードには、ワーカーが使えるより多くのメモリーが必要です</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>no decoder knows this kind of file</source>
        <translation>この種類のファイルを読めるデコーダーがありません</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are more than the limit of %3 megapixels</source>
        <translation>%1 x %2 ピクセルは上限の %3 メガピクセルを超えています</translation>
    </message>
    <message>
        <source>the decoder does not know this camera&apos;s files</source>
        <translation>デコーダーがこのカメラのファイルに対応していません</translation>
    </message>
    <message>
        <source>the file ends before its picture data does, or the data is damaged</source>
        <translation>画像データの途中でファイルが終わっているか、データが壊れています</translation>
    </message>
    <message>
        <source>the file lacks picture data: it is cut off, or has been emptied</source>
        <translation>ファイルに画像データが足りません: 途中で切れているか、空にされています</translation>
    </message>
    <message>
        <source>its header gives no size of the picture</source>
        <translation>ヘッダーに画像のサイズがありません</translation>
    </message>
    <message>
        <source>its sides of %1 and %2 pixels are too long</source>
        <translation>%1 ピクセルと %2 ピクセルの辺は長すぎます</translation>
    </message>
    <message>
        <source>its tiles have no size</source>
        <translation>タイルにサイズがありません</translation>
    </message>
    <message>
        <source>its tiles are too large</source>
        <translation>タイルが大きすぎます</translation>
    </message>
    <message>
        <source>channels of %1 bits are not supported</source>
        <translation>%1 ビットのチャンネルには対応していません</translation>
    </message>
    <message>
        <source>its compression (number %1) is not supported</source>
        <translation>圧縮方式（番号 %1）に対応していません</translation>
    </message>
    <message>
        <source>JPEG compression of %1 bits a channel is not supported</source>
        <translation>チャンネルあたり %1 ビットの JPEG 圧縮には対応していません</translation>
    </message>
    <message>
        <source>it holds undeveloped data of a camera; such files are read under the name .dng</source>
        <translation>カメラの未現像データです。このようなファイルは拡張子 .dng で読み込めます</translation>
    </message>
    <message>
        <source>its kind of colours (number %1) is not supported</source>
        <translation>色の種類（番号 %1）に対応していません</translation>
    </message>
    <message>
        <source>it has %1 channels beside its colours and its transparency, which are left out</source>
        <translation>色と透明度のほかに %1 個のチャンネルがありますが、省かれます</translation>
    </message>
    <message>
        <source>it has inks of its own; only cyan, magenta, yellow and black can be read</source>
        <translation>独自のインクを使っています。読み込めるのはシアン、マゼンタ、イエロー、ブラックだけです</translation>
    </message>
    <message>
        <source>it has fewer channels than its kind of colours needs</source>
        <translation>色の種類に必要なチャンネル数が足りません</translation>
    </message>
    <message>
        <source>Lab colours of %1 bits a channel are not supported</source>
        <translation>チャンネルあたり %1 ビットの Lab カラーには対応していません</translation>
    </message>
    <message>
        <source>palettes of %1 bits are not supported</source>
        <translation>%1 ビットのパレットには対応していません</translation>
    </message>
    <message>
        <source>its way of storing colours (colour differences in uncompressed tiles) is not supported</source>
        <translation>色の保存方式（非圧縮タイル内の色差）に対応していません</translation>
    </message>
    <message>
        <source>its way of storing colours is not supported: %1</source>
        <translation>色の保存方式に対応していません: %1</translation>
    </message>
    <message>
        <source>its strips or tiles have no size that makes sense</source>
        <translation>ストリップまたはタイルのサイズが正しくありません</translation>
    </message>
    <message>
        <source>its strips or tiles need more memory than a worker may use</source>
        <translation>ストリップまたはタイルに、ワーカーが使えるより多くのメモリーが必要です</translation>
    </message>
    <message>
        <source>its palette is missing</source>
        <translation>カラーパレットがありません</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>画像 %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>the text would be too large at a size of %1 pixels</source>
        <translation>%1 ピクセルではテキストが大きすぎます</translation>
    </message>
    <message>
        <source>the text has no letters that could be drawn</source>
        <translation>描画できる文字がテキストにありません</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as %3 needs more memory than a worker may use</source>
        <translation>%1 x %2 ピクセルを %3 で書き出すには、ワーカーが使えるより多くのメモリーが必要です</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use</source>
        <translation>%1 x %2 ピクセルを JPEG XL で書き出すには、ワーカーが使えるより多くのメモリーが必要です</translation>
    </message>
    <message>
        <source>the background picture %1 cannot be read: %2</source>
        <translation>背景画像 %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>the frame of %1 x %2 pixels is above the limit of %3 pixels</source>
        <translation>%1 x %2 ピクセルのフレームは上限の %3 ピクセルを超えています</translation>
    </message>
    <message>
        <source>the margins leave nothing of the frame free and have no effect</source>
        <translation>余白がフレーム全体を占めるため、適用されません</translation>
    </message>
    <message>
        <source>metadata is left out: %1</source>
        <translation>メタデータを省きます: %1</translation>
    </message>
    <message>
        <source>%1 files cannot hold metadata; it is left out</source>
        <translation>%1 ファイルにはメタデータを保存できないため、省きます</translation>
    </message>
    <message>
        <source>%1 metadata of %2 bytes does not fit into a %3 file and is left out</source>
        <translation>%2 バイトの %1 メタデータは %3 ファイルに収まらないため、省きます</translation>
    </message>
    <message>
        <source>EXIF cannot be removed from the result</source>
        <translation>結果から EXIF を削除できません</translation>
    </message>
    <message>
        <source>the result may have its EXIF block twice</source>
        <translation>結果に EXIF ブロックが 2 つあるかもしれません</translation>
    </message>
    <message>
        <source>the result is too large for all of its metadata to be added; some is left out</source>
        <translation>結果が大きすぎてメタデータをすべて追加できないため、一部を省きます</translation>
    </message>
    <message>
        <source>metadata cannot be written: %1</source>
        <translation>メタデータを書き込めません: %1</translation>
    </message>
    <message>
        <source>%1 cannot be written and are left out</source>
        <translation>%1を書き込めないため、省きます</translation>
    </message>
    <message>
        <source>the notes of the camera&apos;s maker</source>
        <translation>カメラのメーカーノート</translation>
    </message>
    <message>
        <source>EXIF metadata</source>
        <translation>EXIF メタデータ</translation>
    </message>
    <message>
        <source>IPTC metadata</source>
        <translation>IPTC メタデータ</translation>
    </message>
    <message>
        <source>XMP metadata</source>
        <translation>XMP メタデータ</translation>
    </message>
    <message>
        <source>metadata cannot be read and is left out: %1</source>
        <translation>メタデータを読み込めないため、省きます: %1</translation>
    </message>
    <message>
        <source>effect &quot;%1&quot;: %2</source>
        <translation>効果「%1」: %2</translation>
    </message>
    <message>
        <source>it cannot be applied to the picture</source>
        <translation>画像に適用できません</translation>
    </message>
    <message>
        <source>an effect or the frame cannot be applied to the picture</source>
        <translation>効果またはフレームを画像に適用できません</translation>
    </message>
    <message>
        <source>the encoder for %1 failed</source>
        <translation>%1 のエンコーダーが失敗しました</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1, or not for this depth</source>
        <translation>この環境には %1 のエンコーダーがないか、このビット深度に対応していません</translation>
    </message>
    <message>
        <source>%1 cannot hold CMYK, which the job&apos;s colour profile asks for</source>
        <translation>%1 は、ジョブのカラープロファイルが求める CMYK を保存できません</translation>
    </message>
    <message>
        <source>%1 x %2 pixels: %3 holds at most %4 on a side</source>
        <translation>%1 x %2 ピクセル: %3 の一辺は最大 %4 です</translation>
    </message>
    <message>
        <source>the colour profile does not fit into the %1 file; the result is sRGB</source>
        <translation>カラープロファイルが %1 ファイルに収まらないため、結果は sRGB です</translation>
    </message>
    <message>
        <source>it has %1 pages; only the main one is used</source>
        <translation>%1 ページのうち主となるページだけを使います</translation>
    </message>
    <message>
        <source>it has a gain map, which the result lacks: highlights are no longer brighter on HDR screens</source>
        <translation>ゲインマップがありますが、結果には含まれません: HDR 画面でハイライトが明るく表示されなくなります</translation>
    </message>
    <message>
        <source>the result of %1 x %2 pixels would be above the limit of %3 megapixels</source>
        <translation>%1 x %2 ピクセルの結果は上限の %3 メガピクセルを超えます</translation>
    </message>
    <message>
        <source>%1 files cannot hold a colour profile; the result is sRGB</source>
        <translation>%1 ファイルにはカラープロファイルを保存できないため、結果は sRGB です</translation>
    </message>
    <message>
        <source>the result is sRGB instead of CMYK</source>
        <translation>結果は CMYK ではなく sRGB です</translation>
    </message>
    <message>
        <source>the file is stored in a way that its decoder cannot read</source>
        <translation>デコーダーが読み込めない方式で保存されています</translation>
    </message>
    <message>
        <source>the file ends before the picture is complete</source>
        <translation>画像が揃う前にファイルが終わっています</translation>
    </message>
    <message>
        <source>the file is damaged after %1 % of the picture</source>
        <translation>画像の %1 % から先が壊れています</translation>
    </message>
    <message>
        <source>the file is damaged; no part of the picture can be read</source>
        <translation>ファイルが壊れていて、画像をまったく読み込めません</translation>
    </message>
    <message>
        <source>the file is damaged; its header cannot be read</source>
        <translation>ファイルが壊れていて、ヘッダーを読み込めません</translation>
    </message>
    <message>
        <source>it needs more memory than a worker may use</source>
        <translation>ワーカーが使えるより多くのメモリーが必要です</translation>
    </message>
    <message>
        <source>its data make no sense</source>
        <translation>データの内容が正しくありません</translation>
    </message>
    <message>
        <source>the picture cannot be processed</source>
        <translation>画像を処理できません</translation>
    </message>
    <message>
        <source>the job cannot be read</source>
        <translation>ジョブを読み込めません</translation>
    </message>
    <message>
        <source>no worker can be started to look at the pictures: %1</source>
        <translation>画像を調べるワーカーを起動できません: %1</translation>
    </message>
    <message>
        <source>the folder cannot be opened</source>
        <translation>フォルダーを開けません</translation>
    </message>
    <message>
        <source>%1 is a dangling link</source>
        <translation>%1 はリンク先のないリンクです</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder</source>
        <translation>%1 はファイルでもフォルダーでもありません</translation>
    </message>
    <message>
        <source>%1 is in the job already.</source>
        <translation>%1 はすでにジョブに含まれています。</translation>
    </message>
    <message>
        <source>%1 is nested too deeply for a job.</source>
        <translation>%1 はジョブに入れるには階層が深すぎます。</translation>
    </message>
    <message>
        <source>%1 has a name that is not valid UTF-8; rename it to use it.</source>
        <translation>%1 の名前は正しい UTF-8 ではありません。使うには名前を変更してください。</translation>
    </message>
    <message>
        <source>%1 has a name with a character that a job cannot hold; rename it to use it.</source>
        <translation>%1 の名前にはジョブに保存できない文字があります。使うには名前を変更してください。</translation>
    </message>
    <message>
        <source>%1 is a dangling link.</source>
        <translation>%1 はリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>%1 leads back to %2; it is not followed.</source>
        <translation>%1 は %2 に戻るため、たどりません。</translation>
    </message>
    <message>
        <source>%1 is the folder %2, which is in the job already.</source>
        <translation>%1 はフォルダー %2 と同じで、すでにジョブに含まれています。</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 を無視します: %2</translation>
    </message>
    <message>
        <source>its results go to %1</source>
        <translation>結果の出力先は %1 です</translation>
    </message>
    <message>
        <source>there is no interrupted run in %1</source>
        <translation>%1 に中断された実行はありません</translation>
    </message>
    <message>
        <source>the run that was interrupted in %1 is of another job: its inputs, options or files differ</source>
        <translation>%1 で中断された実行は別のジョブのものです: 入力、オプション、またはファイルが異なります</translation>
    </message>
    <message>
        <source>%1 is damaged; remove it to start the run anew</source>
        <translation>%1 は壊れています。実行をやり直すには削除してください</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>%1 行 %2 列: %3</translation>
    </message>
    <message>
        <source>its XML is nested too deeply, or declares what a job must not declare</source>
        <translation>XML の入れ子が深すぎるか、ジョブで許されない宣言があります</translation>
    </message>
    <message>
        <source>it does not begin with &lt;!DOCTYPE batch&gt;</source>
        <translation>&lt;!DOCTYPE batch&gt; で始まっていません</translation>
    </message>
    <message>
        <source>the job %1 cannot be read: %2</source>
        <translation>ジョブ %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>the job %1 is larger than %2 MiB</source>
        <translation>ジョブ %1 は %2 MiB を超えています</translation>
    </message>
    <message>
        <source>%1 is not a batch job: it is not UTF-8 text</source>
        <translation>%1 はバッチジョブではありません: UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>%1 is not a batch job: %2</source>
        <translation>%1 はバッチジョブではありません: %2</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 はすでにあります</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>no output folder</source>
        <translation>出力フォルダーがありません</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>画像がありません</translation>
    </message>
    <message>
        <source>the run in %1 has just been finished</source>
        <translation>%1 の実行はちょうど完了しました</translation>
    </message>
    <message>
        <source>it is still running</source>
        <translation>まだ実行中です</translation>
    </message>
    <message>
        <source>the folder cannot be written</source>
        <translation>フォルダーに書き込めません</translation>
    </message>
    <message>
        <source>the same job is already running into %1</source>
        <translation>同じジョブがすでに %1 に対して実行中です</translation>
    </message>
    <message>
        <source>the run in %1 cannot be resumed: %2</source>
        <translation>%1 の実行を再開できません: %2</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; must end with .csv or .json</source>
        <translation>名前「%1」は .csv か .json で終わる必要があります</translation>
    </message>
    <message>
        <source>it begins like a %1 file, but its extension is not known</source>
        <translation>%1 ファイルのようですが、拡張子が不明です</translation>
    </message>
    <message>
        <source>the report %1 cannot be written: %2</source>
        <translation>レポート %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>written with a warning: %1</source>
        <translation>警告付きで書き出しました: %1</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス権がありません</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルまたはフォルダーがありません</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>ファイルがすでにあります</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>ファイル名が長すぎます</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>ディスクに空き容量がありません</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み取り専用のファイルシステムです</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラー</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>パイプが切断されました</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>シンボリックリンクの階層が多すぎます</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>パーセント</translation>
    </message>
    <message>
        <source>how many of the darkest and of the brightest pixels may clip</source>
        <translation>最も暗い画素と明るい画素のうち、切り捨ててよい割合</translation>
    </message>
    <message>
        <source>together keeps colours as they are; each for itself removes a cast</source>
        <translation>together は色を保ち、each は色かぶりを取り除きます</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>standard deviation of the blur in the result; 0 does nothing</source>
        <translation>結果でのぼかしの標準偏差。0 では何もしません</translation>
    </message>
    <message>
        <source>width on the left</source>
        <translation>左の幅</translation>
    </message>
    <message>
        <source>height at the top</source>
        <translation>上の高さ</translation>
    </message>
    <message>
        <source>width on the right</source>
        <translation>右の幅</translation>
    </message>
    <message>
        <source>height at the bottom</source>
        <translation>下の高さ</translation>
    </message>
    <message>
        <source>of the four; percent is of the picture&apos;s short side, at most 100</source>
        <translation>4 つの値の単位。percent は画像の短辺が基準で、最大 100</translation>
    </message>
    <message>
        <source>of the border; with transparency the result has an alpha channel</source>
        <translation>縁の色。透明度があると結果にアルファチャンネルが付きます</translation>
    </message>
    <message>
        <source>shift of every value; 100 turns black into white</source>
        <translation>全値のずらし量。100 で黒が白になります</translation>
    </message>
    <message>
        <source>-100 is flat grey, 50 doubles all differences</source>
        <translation>-100 で一様なグレー、50 ですべての差が 2 倍</translation>
    </message>
    <message>
        <source>below 0 softens</source>
        <translation>0 より小さいと柔らかくなります</translation>
    </message>
    <message>
        <source>size of the structures in the result</source>
        <translation>結果での構造の大きさ</translation>
    </message>
    <message>
        <source>which values are mapped; a grey picture has no single colours and stays as it is</source>
        <translation>変換する値。グレースケール画像には個別の色がないため変わりません</translation>
    </message>
    <message>
        <source>differences of this size begin to count as edges</source>
        <translation>この大きさの差から輪郭とみなします</translation>
    </message>
    <message>
        <source>how far neighbours are taken in, in the result</source>
        <translation>周辺画素を取り込む範囲（結果の画素）</translation>
    </message>
    <message>
        <source>stops</source>
        <translation>段</translation>
    </message>
    <message>
        <source>how much; 1 doubles the light</source>
        <translation>量。1 で光が 2 倍</translation>
    </message>
    <message>
        <source>horizontal swaps left and right</source>
        <translation>horizontal で左右を入れ替えます</translation>
    </message>
    <message>
        <source>luminance weighs the light, luma the stored values, average is their plain mean</source>
        <translation>luminance は光、luma は保存値に重みを付け、average は単純平均です</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>120 turns red towards green</source>
        <translation>120 で赤が緑になります</translation>
    </message>
    <message>
        <source>this value and those below become black</source>
        <translation>この値以下は黒になります</translation>
    </message>
    <message>
        <source>this value and those above become white</source>
        <translation>この値以上は白になります</translation>
    </message>
    <message>
        <source>above 1 brightens the tones between them</source>
        <translation>1 より大きいと中間調が明るくなります</translation>
    </message>
    <message>
        <source>the .cube file, with a table of one or three dimensions</source>
        <translation>1 次元または 3 次元の表を持つ .cube ファイル</translation>
    </message>
    <message>
        <source>0 leaves the picture as it is</source>
        <translation>0 では画像は変わりません</translation>
    </message>
    <message>
        <source>between the entries of a table of three dimensions</source>
        <translation>3 次元の表の値の間の補間</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>段階</translation>
    </message>
    <message>
        <source>steps from black to white</source>
        <translation>黒から白までの段階数</translation>
    </message>
    <message>
        <source>multiples of 90 keep every pixel as it is</source>
        <translation>90 の倍数では画素はそのまま保たれます</translation>
    </message>
    <message>
        <source>fills the corners; with transparency the result has an alpha channel</source>
        <translation>四隅を埋めます。透明度があると結果にアルファチャンネルが付きます</translation>
    </message>
    <message>
        <source>-100 leaves grey, 100 doubles the strength</source>
        <translation>-100 でグレー、100 で強さが 2 倍</translation>
    </message>
    <message>
        <source>standard deviation of the mask in the result</source>
        <translation>結果でのマスクの標準偏差</translation>
    </message>
    <message>
        <source>how much of the difference to the mask is added</source>
        <translation>マスクとの差を加える量</translation>
    </message>
    <message>
        <source>differences below stay as they are</source>
        <translation>これより小さい差は変わりません</translation>
    </message>
    <message>
        <source>how much the weakest colours change</source>
        <translation>最も弱い色の変化量</translation>
    </message>
    <message>
        <source>of the corners; -100 is black, 100 is white</source>
        <translation>四隅の量。-100 で黒、100 で白</translation>
    </message>
    <message>
        <source>where it begins on the way from the centre to a corner</source>
        <translation>中心から隅までのどこから始まるか</translation>
    </message>
    <message>
        <source>length of the transition on the same way</source>
        <translation>同じ経路上での移行部の長さ</translation>
    </message>
    <message>
        <source>the picture that is laid over, best with transparency</source>
        <translation>重ねる画像。透明度付きが最適です</translation>
    </message>
    <message>
        <source>width of the mark; in percent of the picture&apos;s width</source>
        <translation>重ねる画像の幅。画像の幅に対するパーセント</translation>
    </message>
    <message>
        <source>space to the sides of the picture, and between tiles</source>
        <translation>画像の端との間隔、および繰り返しの間隔</translation>
    </message>
    <message>
        <source>of size and margin; a margin in percent is of the picture&apos;s short side; percent is at most 100</source>
        <translation>size と margin の単位。パーセントの margin は画像の短辺が基準で、最大 100</translation>
    </message>
    <message>
        <source>0 is invisible</source>
        <translation>0 で見えなくなります</translation>
    </message>
    <message>
        <source>where the mark stands</source>
        <translation>配置する位置</translation>
    </message>
    <message>
        <source>repeats the mark over the whole picture</source>
        <translation>画像全体に繰り返します</translation>
    </message>
    <message>
        <source>of the letters</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>height of a line of text; in percent of the picture&apos;s short side</source>
        <translation>1 行の高さ。画像の短辺に対するパーセント</translation>
    </message>
    <message>
        <source>above 0 warmer, below 0 cooler</source>
        <translation>0 より大きいと暖かく、小さいと冷たく</translation>
    </message>
    <message>
        <source>above 0 more magenta, below 0 greener</source>
        <translation>0 より大きいとマゼンタ寄り、小さいと緑寄り</translation>
    </message>
    <message>
        <source>keep every pixel, but for a last step of rounding</source>
        <translation>最後の丸めを除き、すべての画素を保ちます</translation>
    </message>
    <message>
        <source>higher is slower and better</source>
        <translation>大きいほど遅く、高画質</translation>
    </message>
    <message>
        <source>keep every pixel as it is</source>
        <translation>すべての画素をそのまま保ちます</translation>
    </message>
    <message>
        <source>higher is better and larger</source>
        <translation>大きいほど高画質で大きなファイル</translation>
    </message>
    <message>
        <source>shows a coarse picture first while it loads</source>
        <translation>読み込み中にまず粗い画像を表示します</translation>
    </message>
    <message>
        <source>resolution of colour; auto is 4:4:4 from quality 90</source>
        <translation>色の解像度。auto は品質 90 以上で 4:4:4</translation>
    </message>
    <message>
        <source>bits a channel; by default those of the input, as far as the format has them: %1</source>
        <translation>チャンネルあたりのビット数。既定は入力と同じ（形式が対応する範囲）: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>ビット</translation>
    </message>
    <message>
        <source>colour under transparency that the format cannot hold</source>
        <translation>形式が透明度を保存できないときの背景色</translation>
    </message>
    <message>
        <source>gives the result the input&apos;s modification time</source>
        <translation>結果の更新日時を入力と同じにします</translation>
    </message>
    <message>
        <source>keep every pixel that can be seen</source>
        <translation>見える画素をすべて保ちます</translation>
    </message>
    <message>
        <source>which metadata is kept; copyright is creator and rights from all of it</source>
        <translation>保持するメタデータ。copyright は全体のうち作者と権利情報</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both be &quot;%3&quot;</source>
        <translation>「%1」と「%2」がどちらも「%3」になります</translation>
    </message>
    <message>
        <source>and so on</source>
        <translation>など</translation>
    </message>
    <message>
        <source>1 result would get the name of another</source>
        <translation>結果 1 件がほかの結果と同じ名前になります</translation>
    </message>
    <message>
        <source>%1 results would get the names of others</source>
        <translation>結果 %1 件がほかの結果と同じ名前になります</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>「%2」の属性「%1」</translation>
    </message>
    <message>
        <source>the element &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>「%2」の要素「%1」</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #rrggbbaa, or a name such as white</source>
        <translation>色: #rrggbb、#rrggbbaa、または white などの名前</translation>
    </message>
    <message>
        <source>%1, joined with +, or none</source>
        <translation>%1 を + でつなぐ、または none</translation>
    </message>
    <message>
        <source>2 to %1 points x:y with ascending x, joined with +, numbers %2</source>
        <translation>x が昇順の 2 から %1 個の点 x:y を + でつなぐ、数は %2</translation>
    </message>
    <message>
        <source>workers: not confined on this system</source>
        <translation>ワーカー: このシステムでは制限されません</translation>
    </message>
    <message>
        <source>files of workers: not restricted, as the kernel has no Landlock</source>
        <translation>ワーカーのファイル: カーネルに Landlock がないため制限されません</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, with scopes for signals and sockets</source>
        <translation>ワーカーのファイル: ジョブのものだけ（Landlock %1、シグナルとソケットの範囲制限あり）</translation>
    </message>
    <message>
        <source>files of workers: those of the job, by Landlock %1, without scopes for signals and sockets</source>
        <translation>ワーカーのファイル: ジョブのものだけ（Landlock %1、シグナルとソケットの範囲制限なし）</translation>
    </message>
    <message>
        <source>system calls of workers: a list of allowed ones, by seccomp</source>
        <translation>ワーカーのシステムコール: 許可された一覧のみ（seccomp）</translation>
    </message>
    <message>
        <source>system calls of workers: not restricted, as the kernel has no seccomp</source>
        <translation>ワーカーのシステムコール: カーネルに seccomp がないため制限されません</translation>
    </message>
    <message>
        <source>memory of the supervisor: closed to other processes of the user (not dumpable)</source>
        <translation>スーパーバイザーのメモリー: ユーザーのほかのプロセスから保護（ダンプ不可）</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2, which is not kept; keep=copyright keeps it</source>
        <translation>著作権表示「%1」は、保持されない %2 にしかありません。keep=copyright で保持されます</translation>
    </message>
    <message>
        <source>the copyright notice &quot;%1&quot; is only in %2 and %3, which are not kept; keep=copyright keeps it</source>
        <translation>著作権表示「%1」は、保持されない %2 と %3 にしかありません。keep=copyright で保持されます</translation>
    </message>
    <message>
        <source>the format of each input</source>
        <translation>各入力の形式</translation>
    </message>
    <message>
        <source>--dry-run and %1 cannot be combined; remove one of them</source>
        <translation>--dry-run と %1 は併用できません。どちらかを取り除いてください</translation>
    </message>
    <message>
        <source>%1 and --preset exclude each other: give one of them to start from</source>
        <translation>%1 と --preset は同時に使えません。出発点としてどちらか一方を指定してください</translation>
    </message>
    <message>
        <source>no file name for the job: velkora-batch create JOB.xml INPUT...</source>
        <translation>ジョブのファイル名がありません: velkora-batch create JOB.xml INPUT...</translation>
    </message>
    <message>
        <source>the first argument must be the file of the job, with a name that ends with .xml, but is &quot;%1&quot;</source>
        <translation>最初の引数は .xml で終わるジョブのファイル名でなければなりませんが、「%1」が指定されています</translation>
    </message>
    <message>
        <source>there is no file &quot;-&quot;; to read names from standard input, use --files-from -</source>
        <translation>「-」というファイルはありません。標準入力から名前を読み込むには --files-from - を使用してください</translation>
    </message>
    <message>
        <source>--null needs %1</source>
        <translation>--null には %1 が必要です</translation>
    </message>
    <message>
        <source>%1 -: standard input is a terminal; pipe a list into it, or name a file</source>
        <translation>%1 -: 標準入力が端末です。一覧をパイプで渡すか、ファイルを指定してください</translation>
    </message>
    <message>
        <source>%1 cannot be used with --in-place without --output: results go to the folders of their originals</source>
        <translation>%1 は --output なしの --in-place とは併用できません。結果は元のファイルのフォルダーに入ります</translation>
    </message>
    <message>
        <source>no pictures: %1 matches nothing</source>
        <translation>画像がありません: %1 に一致するものがありません</translation>
    </message>
    <message>
        <source>no pictures: %1 and %2 match nothing</source>
        <translation>画像がありません: %1 と %2 に一致するものがありません</translation>
    </message>
    <message>
        <source>no inputs</source>
        <translation>入力がありません</translation>
    </message>
    <message>
        <source>%1 is not for &quot;presets %2&quot;, but for &quot;presets %3&quot;</source>
        <translation>%1 は「presets %2」用ではなく「presets %3」用です</translation>
    </message>
    <message>
        <source>the name of the preset is missing: velkora-batch presets %1 NAME</source>
        <translation>プリセットの名前がありません: velkora-batch presets %1 NAME</translation>
    </message>
    <message>
        <source>a preset has no inputs, but &quot;%1&quot; is given behind its name</source>
        <translation>プリセットに入力はありませんが、名前の後に「%1」があります</translation>
    </message>
    <message>
        <source>one preset at a time, but &quot;%1&quot; is given behind its name</source>
        <translation>プリセットは一度に 1 つだけですが、名前の後に「%1」があります</translation>
    </message>
    <message>
        <source>list takes no name, but &quot;%1&quot; is given; &quot;velkora-batch show --preset NAME&quot; prints a preset</source>
        <translation>list に名前は指定できませんが、「%1」が指定されています。プリセットの表示は「velkora-batch show --preset NAME」です</translation>
    </message>
    <message>
        <source>%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it</source>
        <translation>%1/BatchExceptionPolicy.ini に無効な値 %2 があります。%3 で上書きしてください</translation>
    </message>
    <message>
        <source>unknown option %1; %2</source>
        <translation>不明なオプション %1。%2</translation>
    </message>
    <message>
        <source>it is an option of %1; &quot;velkora-batch %2 --help&quot; lists the options</source>
        <translation>%1 のオプションです。オプションの一覧は「velkora-batch %2 --help」で表示されます</translation>
    </message>
    <message>
        <source>&quot;velkora-batch %1 --help&quot; lists the options</source>
        <translation>オプションの一覧は「velkora-batch %1 --help」で表示されます</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>「%1」のことですか？</translation>
    </message>
    <message>
        <source>%1 is a folder, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 はコマンドではなくフォルダーです。「velkora-batch run %1」のことですか？</translation>
    </message>
    <message>
        <source>%1 is a file, not a command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 はコマンドではなくファイルです。「velkora-batch run %1」のことですか？</translation>
    </message>
    <message>
        <source>%1 is no command; did you mean &quot;velkora-batch run %1&quot;?</source>
        <translation>%1 はコマンドではありません。「velkora-batch run %1」のことですか？</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; did you mean &quot;velkora-batch %2&quot;?</source>
        <translation>不明なコマンド「%1」。「velkora-batch %2」のことですか？</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>不明なコマンド: %1</translation>
    </message>
    <message>
        <source>no command: use one of %1, or &quot;velkora-batch --help&quot;</source>
        <translation>コマンドがありません: %1 のどれか、または「velkora-batch --help」を使用してください</translation>
    </message>
    <message>
        <source>%1 is not allowed before the command, only %2</source>
        <translation>%1 はコマンドの前には置けません。置けるのは %2 だけです</translation>
    </message>
    <message>
        <source>help takes one command, but got %1</source>
        <translation>help に指定できるコマンドは 1 つですが、%1 が指定されています</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, contains a character that a job cannot hold</source>
        <translation>引数 %1「%2」に、ジョブに保存できない文字があります</translation>
    </message>
    <message>
        <source>%1 is a switch and takes no value; type %1 alone, or leave it out</source>
        <translation>%1 は値を取らないスイッチです。%1 だけを入力するか、省いてください</translation>
    </message>
    <message>
        <source>an input of %1 has an empty name</source>
        <translation>%1 の入力に空の名前があります</translation>
    </message>
    <message>
        <source>%1 is given %2 times, but takes one value; remove &quot;%3&quot; or &quot;%4&quot;</source>
        <translation>%1 が %2 回指定されていますが、値は 1 つだけです。「%3」か「%4」を取り除いてください</translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation>%1: 値 %2 がありません</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>drops the inputs of the saved job first</source>
        <translation>保存済みジョブの入力を先に取り除きます</translation>
    </message>
    <message>
        <source>also takes the files and folders that a file names, one a line, or standard input for &quot;-&quot;. Relative names start at the current folder</source>
        <translation>ファイルに 1 行ずつ書かれたファイルとフォルダーも入力にします。「-」は標準入力です。相対的な名前は現在のフォルダーからたどります</translation>
    </message>
    <message>
        <source>the names of --files-from are separated by NUL, not by line ends</source>
        <translation>--files-from の名前を改行ではなく NUL で区切ります</translation>
    </message>
    <message>
        <source>takes only files whose names match, such as &quot;*.{nef,cr2}&quot;, or whose paths in the given folders match, such as &quot;2024/**/*.jpg&quot;; default: all that can be read. Files that are given by name are always taken</source>
        <translation>「*.{nef,cr2}」のように名前が一致するファイル、または「2024/**/*.jpg」のように指定フォルダー内のパスが一致するファイルだけを入力にします。既定値: 読み込めるものすべて。名前で指定したファイルは常に入力になります</translation>
    </message>
    <message>
        <source>leaves out files and folders whose names or paths match, inside the given folders</source>
        <translation>指定フォルダー内で、名前またはパスが一致するファイルとフォルダーを除外します</translation>
    </message>
    <message>
        <source>leaves out folders inside folders</source>
        <translation>サブフォルダーを除外します</translation>
    </message>
    <message>
        <source>includes files and folders whose names begin with a dot</source>
        <translation>名前が点で始まるファイルとフォルダーも含めます</translation>
    </message>
    <message>
        <source>the order of the pictures, which numbers in names follow: taken, by capture time, and by the file&apos;s own time where there is none; name, folder by folder; given, as the command line names them. The default is name, or the order of the saved job</source>
        <translation>画像の順序。名前の番号もこれに従います: taken は撮影日時順（なければファイルの日時）、name はフォルダーごと、given はコマンドラインの順。既定値は name、または保存済みジョブの順序です</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>prints problems only</source>
        <translation>問題だけを表示します</translation>
    </message>
    <message>
        <source>also prints details for finding faults</source>
        <translation>不具合を調べるための詳細も表示します</translation>
    </message>
    <message>
        <source>prints this text</source>
        <translation>この説明を表示します</translation>
    </message>
    <message>
        <source>prints the help of a command</source>
        <translation>コマンドの説明を表示します</translation>
    </message>
    <message>
        <source>prints JSON</source>
        <translation>JSON を表示します</translation>
    </message>
    <message>
        <source>writes a job with these inputs and options to a file, or to standard output for &quot;-&quot;</source>
        <translation>これらの入力とオプションからなるジョブをファイルに書き出します。「-」は標準出力です</translation>
    </message>
    <message>
        <source>prints a job: its inputs as a tree, its effects, and its output in the words of the options</source>
        <translation>ジョブを表示します。入力はツリーで、効果と出力はオプションの言葉で示します</translation>
    </message>
    <message>
        <source>prints every input with its output and its size in pixels, and writes nothing. A problem is printed in brackets, with what the policy would do about it. Exit status: 1 when there are problems</source>
        <translation>各入力とその出力、ピクセル単位のサイズを表示し、何も書き出しません。問題は、規則による扱いと共に角かっこで示します。終了コード: 問題があれば 1 です</translation>
    </message>
    <message>
        <source>does not look at every picture for its size in pixels, which takes time for many</source>
        <translation>各画像のピクセル単位のサイズを調べません（枚数が多いと時間がかかります）</translation>
    </message>
    <message>
        <source>prints one JSON object for each input</source>
        <translation>入力ごとに 1 つの JSON オブジェクトを表示します</translation>
    </message>
    <message>
        <source>lists the effects with their parameters</source>
        <translation>効果とそのパラメーターの一覧を表示します</translation>
    </message>
    <message>
        <source>lists the output formats with their options, and the files that can be read</source>
        <translation>出力形式とそのオプション、読み込めるファイルの一覧を表示します</translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other; remove one of them</source>
        <translation>%1 と %2 は矛盾しています。どちらかを取り除いてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT with an optional unit, such as 800x600, 15x10cm or 6x4in</source>
        <translation>「%1」は WIDTHxHEIGHT の形ではありません。800x600、15x10cm、6x4in のように指定してください（単位は省略可）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers, such as %3; or add a unit, as in %4cm</source>
        <translation>「%1」は %2 ピクセルを意味します（点は小数点です）が、ピクセル数は %3 のような整数です。または %4cm のように単位を付けてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large; each side must be from 1 to %2 pixels</source>
        <translation>「%1」は大きすぎます。各辺は 1 から %2 ピクセルまでです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a resolution; add --resolution, as in --resolution 300</source>
        <translation>「%1」には解像度が必要です。--resolution 300 のように --resolution を加えてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 pixels at %3 dots per inch; each side must be from 1 to %4</source>
        <translation>「%1」は %3 dpi で %2 ピクセルです。各辺は 1 から %4 までです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels, but the size is %4: type %5 for the unit of the size, or %6 for pixels</source>
        <translation>「%1」は %2 x %3 ピクセルですが、サイズは %4 です。サイズと同じ単位なら %5、ピクセルなら %6 と入力してください</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; needs a size, such as %1:3x2%2</source>
        <translation>「%1:%2」には %1:3x2%2 のようなサイズが必要です</translation>
    </message>
    <message>
        <source>&quot;%1:%2&quot; has a unit, but a ratio has no unit: type %1:%3, or fill:%2 for that size</source>
        <translation>「%1:%2」に単位がありますが、比率に単位はありません。%1:%3、またはそのサイズなら fill:%2 と入力してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with &quot;!&quot;, but only ratio and interesting turn with the picture; remove the &quot;!&quot;</source>
        <translation>「%1」は「!」で終わっていますが、画像の向きに合わせるのは ratio と interesting だけです。「!」を取り除いてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point, as in %2</source>
        <translation>「%1」にコンマがあります。小数は %2 のように点で書きます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no size</source>
        <translation>「%1」にサイズは指定できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a size, such as %1:3x2</source>
        <translation>「%1」には %1:3x2 のようなサイズが必要です</translation>
    </message>
    <message>
        <source>Pictures for the web, at most 1600 pixels long</source>
        <translation>ウェブ用の画像、長辺は最大 1600 ピクセル</translation>
    </message>
    <message>
        <source>Names by capture date, in a folder for each day</source>
        <translation>撮影日による名前、日ごとのフォルダー</translation>
    </message>
    <message>
        <source>A saved job over other pictures</source>
        <translation>保存済みジョブを別の画像に適用</translation>
    </message>
    <message>
        <source>Files that another program lists</source>
        <translation>別のプログラムが一覧にしたファイル</translation>
    </message>
    <message>
        <source>Camera RAW files in all subfolders</source>
        <translation>すべてのサブフォルダーのカメラ RAW ファイル</translation>
    </message>
    <message>
        <source>What would be written</source>
        <translation>書き出されるもの</translation>
    </message>
    <message>
        <source>A preset over other pictures</source>
        <translation>プリセットを別の画像に適用</translation>
    </message>
    <message>
        <source>A run that was interrupted</source>
        <translation>中断された実行</translation>
    </message>
    <message>
        <source>A job for pictures to come</source>
        <translation>これからの画像のためのジョブ</translation>
    </message>
    <message>
        <source>A job with one value changed</source>
        <translation>値を 1 つ変えたジョブ</translation>
    </message>
    <message>
        <source>A saved job, in the words of the options</source>
        <translation>保存済みジョブをオプションの言葉で</translation>
    </message>
    <message>
        <source>Every result&apos;s name, and what is in the way</source>
        <translation>各結果の名前と、妨げになるもの</translation>
    </message>
    <message>
        <source>The same for programs</source>
        <translation>同じものをプログラム用に</translation>
    </message>
    <message>
        <source>One effect with its parameters</source>
        <translation>1 つの効果とそのパラメーター</translation>
    </message>
    <message>
        <source>One format with its options</source>
        <translation>1 つの形式とそのオプション</translation>
    </message>
    <message>
        <source>folders are always read with their subfolders, so leave it out</source>
        <translation>フォルダーは常にサブフォルダーごと読み込まれるため、不要です</translation>
    </message>
    <message>
        <source>name files and folders without an option</source>
        <translation>ファイルとフォルダーはオプションなしで指定してください</translation>
    </message>
    <message>
        <source>use --files-from FILE, or --files-from -</source>
        <translation>--files-from FILE または --files-from - を使用してください</translation>
    </message>
    <message>
        <source>use --hidden for files and folders whose names begin with a dot</source>
        <translation>名前が点で始まるファイルやフォルダーには --hidden を使用してください</translation>
    </message>
    <message>
        <source>use --quality N, or --format-option compression=WORD or compressionLevel=N</source>
        <translation>--quality N、または --format-option compression=WORD か compressionLevel=N を使用してください</translation>
    </message>
    <message>
        <source>metadata is kept unless --format-option keep=WORD+WORD says which</source>
        <translation>メタデータは、--format-option keep=WORD+WORD で絞らない限り保持されます</translation>
    </message>
    <message>
        <source>use --size %1, with % for a percentage</source>
        <translation>--size %1 を使用してください（割合には % を付けます）</translation>
    </message>
    <message>
        <source>pictures are always turned upright, so leave it out</source>
        <translation>画像は常に正しい向きに回転されるため、不要です</translation>
    </message>
    <message>
        <source>use --effect watermark-text:text=TEXT or --effect watermark-image:file=FILE</source>
        <translation>--effect watermark-text:text=TEXT または --effect watermark-image:file=FILE を使用してください</translation>
    </message>
    <message>
        <source>use --name, --prefix and --suffix, or --on-name-exists rename for names that are taken</source>
        <translation>--name、--prefix、--suffix を使用してください。既にある名前には --on-name-exists rename を使用してください</translation>
    </message>
    <message>
        <source>&quot;velkora-batch plan&quot; prints what a run would write</source>
        <translation>実行で書き出されるものは「velkora-batch plan」で表示されます</translation>
    </message>
    <message>
        <source>name a saved job as the first input</source>
        <translation>保存済みジョブは最初の入力として指定してください</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch formats&quot;</source>
        <translation>「velkora-batch formats」を使用してください</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch effects&quot;</source>
        <translation>「velkora-batch effects」を使用してください</translation>
    </message>
    <message>
        <source>use &quot;velkora-batch --version&quot;</source>
        <translation>「velkora-batch --version」を使用してください</translation>
    </message>
    <message>
        <source>use --%1</source>
        <translation>--%1 を使用してください</translation>
    </message>
    <message>
        <source>use --effect %1; &quot;velkora-batch effects %1&quot; lists its parameters</source>
        <translation>--effect %1 を使用してください。パラメーターは「velkora-batch effects %1」で表示されます</translation>
    </message>
    <message>
        <source>processes pictures in batches: effects, size, crop, frame, format and names</source>
        <translation>画像を一括処理します（効果、サイズ、切り抜き、フレーム、形式、名前）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a shadow; add --shadow</source>
        <translation>「%1」は影がないと効果がありません。--shadow を加えてください</translation>
    </message>
    <message>
        <source>%1 is not an ICC profile</source>
        <translation>%1 は ICC プロファイルではありません</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>the name of the saved job</source>
        <translation>保存済みジョブの名前</translation>
    </message>
    <message>
        <source>the folder for the results; it is created when it does not exist, and a relative one starts at the current folder</source>
        <translation>結果のフォルダー。なければ作成され、相対的な場合は現在のフォルダーからたどります</translation>
    </message>
    <message>
        <source>the name of the folder is empty</source>
        <translation>フォルダーの名前が空です</translation>
    </message>
    <message>
        <source>the folders below it: flat, none; input, as in the inputs; date, by capture date, or that of the file where a picture has none</source>
        <translation>その下のフォルダー: flat はなし、input は入力と同じ、date は撮影日（なければファイルの日付）ごと</translation>
    </message>
    <message>
        <source>the format of results, by name or extension; Original keeps that of each input. Changing the format of a saved job drops its format options</source>
        <translation>結果の形式（名前または拡張子）。Original は各入力の形式を保ちます。保存済みジョブの形式を変えると、その形式オプションは失われます</translation>
    </message>
    <message>
        <source>an option of the format, such as quality=90; &quot;velkora-batch formats&quot; lists them</source>
        <translation>quality=90 などの形式オプション。一覧は「velkora-batch formats」で表示されます</translation>
    </message>
    <message>
        <source>an ICC profile to convert results to and to embed; none keeps each input&apos;s own</source>
        <translation>結果を変換して埋め込む ICC プロファイル。none は各入力のものを保ちます</translation>
    </message>
    <message>
        <source>Names of results</source>
        <translation>結果の名前</translation>
    </message>
    <message>
        <source>what a name begins with; PART is the same as for --name</source>
        <translation>名前の先頭。PART は --name と同じです</translation>
    </message>
    <message>
        <source>what a name ends with</source>
        <translation>名前の末尾</translation>
    </message>
    <message>
        <source>the text between prefix and middle</source>
        <translation>先頭と中央の間の文字列</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a prefix; add --prefix</source>
        <translation>「%1」は接頭辞がないと効果がありません。--prefix を加えてください</translation>
    </message>
    <message>
        <source>the text between middle and suffix</source>
        <translation>中央と末尾の間の文字列</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a suffix; add --suffix</source>
        <translation>「%1」は接尾辞がないと効果がありません。--suffix を加えてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a size, and this option says which pictures change; use --size %2</source>
        <translation>「%1」はサイズですが、このオプションはどの画像を変更するかを指定するものです。--size %2 を使用してください</translation>
    </message>
    <message>
        <source>Size and crop</source>
        <translation>サイズと切り抜き</translation>
    </message>
    <message>
        <source>scales pictures to a length of one side, such as 1600, 50%, 8in, 20cm or 200mm; none keeps the size</source>
        <translation>一辺が 1600、50%、8in、20cm、200mm などの長さになるよう画像を拡大縮小します。none はサイズを保ちます</translation>
    </message>
    <message>
        <source>the side that --size sets</source>
        <translation>--size が決める辺</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a size; add --size</source>
        <translation>「%1」はサイズがないと効果がありません。--size を加えてください</translation>
    </message>
    <message>
        <source>which pictures --size changes: reduce, only larger ones (default); enlarge, only smaller ones; fit, both; none</source>
        <translation>--size で変える画像: reduce は大きい画像だけ（既定値）、enlarge は小さい画像だけ、fit は両方、none</translation>
    </message>
    <message>
        <source>dots per inch, for lengths in in, cm and mm; also written into results</source>
        <translation>in、cm、mm の長さに使う 1 インチあたりのドット数。結果にも書き込まれます</translation>
    </message>
    <message>
        <source>none; trim, cuts off a border of one colour; or with WIDTHxHEIGHT: ratio:3x2, the largest frame of that ratio, upright in upright pictures, or ratio:3x2!, never turned; interesting:3x2, the frame of that ratio that draws the eye; fill:800x600 or fill:15x10cm, scales to cover, then cuts; exact:800x600, that many pixels. in, cm and mm become pixels by --resolution</source>
        <translation>none、trim は単色の縁を切り取ります。WIDTHxHEIGHT と共に: ratio:3x2 はその比率で最大の範囲（縦長の画像では縦）、ratio:3x2! は常に同じ向き、interesting:3x2 はその比率で目を引く範囲、fill:800x600 または fill:15x10cm は覆うまで拡大縮小して切り取り、exact:800x600 はそのピクセル数。in、cm、mm は --resolution でピクセルになります</translation>
    </message>
    <message>
        <source>where ratio, fill and exact place the frame in the picture</source>
        <translation>ratio、fill、exact が切り抜く範囲の画像内での位置</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without --crop ratio, fill or exact; add one of them</source>
        <translation>「%1」は --crop の ratio、fill、exact がないと効果がありません。どれかを加えてください</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>puts pictures on a frame with margins in pixels: one number for all sides, or LEFT,TOP,RIGHT,BOTTOM; none removes the frame. Each of the options below adds a frame</source>
        <translation>余白をピクセルで指定したフレームに画像を置きます。全辺に 1 つの数、または LEFT,TOP,RIGHT,BOTTOM。none はフレームを取り除きます。以下の各オプションもフレームを加えます</translation>
    </message>
    <message>
        <source>the size of the frame in pixels; picture: the size of each picture</source>
        <translation>フレームのサイズ（ピクセル）。picture: 各画像のサイズ</translation>
    </message>
    <message>
        <source>turns the picture on its frame, clockwise</source>
        <translation>フレーム上の画像を時計回りに回転します</translation>
    </message>
    <message>
        <source>the opacity of the picture</source>
        <translation>画像の不透明度</translation>
    </message>
    <message>
        <source>how the picture is laid over its background</source>
        <translation>画像と背景の重ね方</translation>
    </message>
    <message>
        <source>the background of the frame: none; colour:#rrggbb; pattern:0 to pattern:7, with :PERCENT for its scale; image:FILE</source>
        <translation>フレームの背景: none、colour:#rrggbb、pattern:0 から pattern:7（:PERCENT で倍率）、image:FILE</translation>
    </message>
    <message>
        <source>the opacity of the background</source>
        <translation>背景の不透明度</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without a background; add --background</source>
        <translation>「%1」は背景がないと効果がありません。--background を加えてください</translation>
    </message>
    <message>
        <source>the shadow of the picture: drop; glow, around it; none</source>
        <translation>画像の影: drop、glow は周囲に広がる影、none</translation>
    </message>
    <message>
        <source>#rrggbb or a name</source>
        <translation>#rrggbb または名前</translation>
    </message>
    <message>
        <source>the opacity of the shadow</source>
        <translation>影の不透明度</translation>
    </message>
    <message>
        <source>where the light comes from: 0 from the right, 90 from above</source>
        <translation>光の方向: 0 は右から、90 は上から</translation>
    </message>
    <message>
        <source>how far the shadow lies from the picture</source>
        <translation>影と画像の距離</translation>
    </message>
    <message>
        <source>how soft the shadow is</source>
        <translation>影のぼかしの大きさ</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>drops the effects of the saved job first</source>
        <translation>保存済みジョブの効果を先に取り除きます</translation>
    </message>
    <message>
        <source>adds an effect after those of the job, such as blur:sigma=2. NAME:{JSON} works as well; off:NAME adds the effect disabled. &quot;velkora-batch effects&quot; lists all effects</source>
        <translation>blur:sigma=2 のような効果をジョブの効果の後に加えます。NAME:{JSON} も使えます。off:NAME は無効の状態で加えます。効果の一覧は「velkora-batch effects」で表示されます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length above 0 and up to %2, such as 1600, 50%, 8in, 20cm or 200mm; &quot;none&quot; keeps the size</source>
        <translation>「%1」は 0 より大きく %2 以下の長さ（1600、50%、8in、20cm、200mm など）ではありません。「none」はサイズを保ちます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; a size is one length, such as 1600 or 20.5cm</source>
        <translation>「%1」にコンマがあります。サイズは 1600 や 20.5cm のような 1 つの長さです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma; decimals are written with a point: type %2</source>
        <translation>「%1」にコンマがあります。小数は点で書きます。%2 と入力してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a comma, which no number has: type %2 for that many pixels, %3cm for decimals, or --crop fill:%4 for a width and a height</source>
        <translation>「%1」にコンマがありますが、数値にコンマは使えません。そのピクセル数なら %2、小数なら %3cm、幅と高さなら --crop fill:%4 と入力してください</translation>
    </message>
    <message>
        <source>type %1 for that many pixels</source>
        <translation>そのピクセル数なら %1 と入力してください</translation>
    </message>
    <message>
        <source>type %1 for that</source>
        <translation>それには %1 と入力してください</translation>
    </message>
    <message>
        <source>type 1</source>
        <translation>1 と入力してください</translation>
    </message>
    <message>
        <source>type 1px</source>
        <translation>1px と入力してください</translation>
    </message>
    <message>
        <source>type %1 or %2</source>
        <translation>%1 または %2 と入力してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a width and a height, but a size is the length of one side: type one of them, with --side to say which, or --crop fill:%2 for exactly that</source>
        <translation>「%1」は幅と高さですが、サイズは一辺の長さです。どちらか一方を --side と共に入力するか、その寸法ちょうどなら --crop fill:%2 と入力してください</translation>
    </message>
    <message>
        <source>%1 (unit %2)</source>
        <translation>%1（単位 %2）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form KEY=VALUE</source>
        <translation>「%1」は KEY=VALUE の形ではありません</translation>
    </message>
    <message>
        <source>it takes no parameters, but &quot;%1&quot; is given</source>
        <translation>パラメーターはありませんが、「%1」が指定されています</translation>
    </message>
    <message>
        <source>unknown effect &quot;%1&quot;; the effects are %2</source>
        <translation>不明な効果「%1」。効果は %2 です</translation>
    </message>
    <message>
        <source>effect %1</source>
        <translation>効果 %1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>形式 %1</translation>
    </message>
    <message>
        <source>when a file is missing, damaged, too large or not a picture: skip it, stop the run, or ask</source>
        <translation>ファイルがない、壊れている、大きすぎる、または画像でないとき: skip はスキップ、stop は実行を停止、ask は確認</translation>
    </message>
    <message>
        <source>when a result cannot be written, because of a full disk or missing rights: skip, stop or ask</source>
        <translation>ディスクの空きや権限がなく結果を書き出せないとき: skip、stop、ask</translation>
    </message>
    <message>
        <source>when an effect fails, or a picture takes too long or crashes its worker: skip, stop or ask</source>
        <translation>効果に失敗したとき、または画像の処理が長すぎるかワーカーが異常終了したとき: skip、stop、ask</translation>
    </message>
    <message>
        <source>when a result&apos;s name is taken, on disk, by another result or by a source: skip, overwrite, rename (&quot; (2)&quot; is appended) or ask</source>
        <translation>結果の名前がディスク上、ほかの結果、または元のファイルで既に使われているとき: skip、overwrite、rename（「 (2)」を付加）、ask</translation>
    </message>
    <message>
        <source>when a picture cannot be written in the wanted format: skip, stop, ask, or nearest, to write the nearest format that can hold it</source>
        <translation>画像を希望の形式で書き出せないとき: skip、stop、ask、または最も近い形式で書き出す nearest</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them</source>
        <translation>プリセットを出発点にします。一覧は「velkora-batch presets」で表示されます</translation>
    </message>
    <message>
        <source>the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)</source>
        <translation>BatchExceptionPolicy.ini（既定の規則）と presets/（自作プリセット）のあるフォルダー</translation>
    </message>
    <message>
        <source>starts from a saved job</source>
        <translation>保存済みジョブを出発点にします</translation>
    </message>
    <message>
        <source>replaces an existing file</source>
        <translation>既存のファイルを置き換えます</translation>
    </message>
    <message>
        <source>prints the list as JSON</source>
        <translation>一覧を JSON で表示します</translation>
    </message>
    <message>
        <source>lists the presets, saves the options as a preset, or removes one. A preset is a job without inputs that run, plan, show and create take by --preset NAME; a relative --output starts where it is run. Exit status: 1 when a preset cannot be used</source>
        <translation>プリセットの一覧表示、オプションのプリセットとしての保存、削除を行います。プリセットは入力のないジョブで、run、plan、show、create で --preset NAME により使えます。相対的な --output は実行した場所からたどります。終了コード: 使用できないプリセットがあれば 1 です</translation>
    </message>
    <message>
        <source>%1 files have no quality; %2 have one</source>
        <translation>%1 ファイルに画質の設定はありません。あるのは %2 です</translation>
    </message>
    <message>
        <source>the quality of results in formats that have one; the same as %1 %2=N</source>
        <translation>画質のある形式での結果の画質。%1 %2=N と同じです</translation>
    </message>
    <message>
        <source>how many pictures are processed at a time; default: one for each core</source>
        <translation>同時に処理する画像の数。既定値: コアごとに 1 枚</translation>
    </message>
    <message>
        <source>larger pictures are not read; default: 400</source>
        <translation>これより大きい画像は読み込みません。既定値: 400</translation>
    </message>
    <message>
        <source>memory that one picture may take; default: 2048</source>
        <translation>画像 1 枚に使えるメモリー。既定値: 2048</translation>
    </message>
    <message>
        <source>time that one picture may take; default: 300</source>
        <translation>画像 1 枚にかけられる時間。既定値: 300</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>lets results replace their own originals. Without --output, results go to the folders of their originals. Without this option no original is ever replaced</source>
        <translation>結果で元のファイルを置き換えます。--output がなければ、結果は元のファイルのフォルダーに入ります。このオプションがなければ、元のファイルが置き換えられることはありません</translation>
    </message>
    <message>
        <source>ends with 0, not with 5, when there is no picture among the inputs</source>
        <translation>入力に画像がないとき、5 ではなく 0 で終了します</translation>
    </message>
    <message>
        <source>prints what the run would write, as &quot;velkora-batch plan&quot; does, and writes nothing</source>
        <translation>「velkora-batch plan」と同様に、書き出されるものを表示し、何も書き出しません</translation>
    </message>
    <message>
        <source>writes the result of every input to a file, as CSV or JSON by the extension of its name</source>
        <translation>各入力の結果をファイルに書き出します。拡張子により CSV または JSON になります</translation>
    </message>
    <message>
        <source>resumes the run that was interrupted in the output folder, with its job and its policies</source>
        <translation>出力フォルダーで中断された実行を、そのジョブと規則で再開します</translation>
    </message>
    <message>
        <source>says which run to resume if several were interrupted; --resume lists their names</source>
        <translation>複数の実行が中断されているとき、再開するものを指定します。名前は --resume で表示されます</translation>
    </message>
    <message>
        <source>counts a picture with a warning as failed; its result is kept</source>
        <translation>警告のある画像を失敗として数えます。結果は残ります</translation>
    </message>
    <message>
        <source>prints each event of the run to standard output, as one line of JSON</source>
        <translation>実行の各イベントを 1 行の JSON として標準出力に表示します</translation>
    </message>
    <message>
        <source>lets results go through links to folders below the output folder; otherwise such a link is an error of output</source>
        <translation>出力フォルダーの下にあるフォルダーへのリンク先にも結果を書き出します。指定しなければ、そのようなリンクは出力エラーになります</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number from %2 to %3</source>
        <translation>「%1」は %2 から %3 までの数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from %2 to %3</source>
        <translation>「%1」は %2 から %3 までの整数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the form WIDTHxHEIGHT, with whole numbers from 1 to %2, such as 800x600</source>
        <translation>「%1」は 800x600 のような WIDTHxHEIGHT の形（1 から %2 までの整数）ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a number of pixels, such as 40, nor LEFT,TOP,RIGHT,BOTTOM; &quot;none&quot; means no frame</source>
        <translation>「%1」は 40 のようなピクセル数でも LEFT,TOP,RIGHT,BOTTOM でもありません。「none」はフレームなしです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour; use #rrggbb or a name</source>
        <translation>「%1」は色ではありません。#rrggbb か名前を使用してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is incomplete; complete it as in %2</source>
        <translation>「%1」は不完全です。%2 のように補ってください</translation>
    </message>
    <message>
        <source>; write a text of your own as text:%1</source>
        <translation>。自由なテキストは text:%1 と書きます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no value</source>
        <translation>「%1」に値は指定できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>「%1」は次のどれでもありません: %2</translation>
    </message>
    <message>
        <source>argument %1 (%2) is not valid UTF-8</source>
        <translation>引数 %1（%2）は正しい UTF-8 ではありません</translation>
    </message>
    <message>
        <source>the inputs do not lie in one folder: use --in-place for one folder after the other, or name the folder of the results with --output</source>
        <translation>入力が 1 つのフォルダーにありません。フォルダーごとに --in-place を使用するか、--output で結果のフォルダーを指定してください</translation>
    </message>
    <message>
        <source>the result of %1 would not go to the folder of its original; name the folder of the results with --output</source>
        <translation>%1 の結果は元のファイルのフォルダーに入りません。--output で結果のフォルダーを指定してください</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture</source>
        <translation>%1 は画像ではなく保存済みジョブです</translation>
    </message>
    <message>
        <source>%1 is a saved job, not a picture; it is left out.</source>
        <translation>%1 は画像ではなく保存済みジョブのため、対象外です。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>on standard input</source>
        <translation>（標準入力）</translation>
    </message>
    <message>
        <source>the list %1 cannot be read: %2</source>
        <translation>一覧 %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>the list %1 is larger than %2 MiB; divide it</source>
        <translation>一覧 %1 は %2 MiB を超えています。分割してください</translation>
    </message>
    <message>
        <source>it has %1 bytes, and no name is that long</source>
        <translation>%1 バイトあり、名前としては長すぎます</translation>
    </message>
    <message>
        <source>it contains a NUL byte; use -0 for names that are separated by NUL</source>
        <translation>NUL バイトがあります。NUL で区切られた名前には -0 を使用してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not valid UTF-8; rename it to use it</source>
        <translation>「%1」は正しい UTF-8 ではありません。使うには名前を変更してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains a character that a job cannot hold</source>
        <translation>「%1」に、ジョブに保存できない文字があります</translation>
    </message>
    <message>
        <source>it contains line ends; names in lines are read without -0</source>
        <translation>改行があります。1 行に 1 つの名前を読むには -0 を付けません</translation>
    </message>
    <message>
        <source>%1, name %2</source>
        <translation>%1、%2 番目の名前</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1、%2 行目</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link</source>
        <translation>%1、%2 行目: %3 はリンク先のないリンクです</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist</source>
        <translation>%1、%2 行目: %3 は存在しません</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link</source>
        <translation>%1、%2 番目の名前: %3 はリンク先のないリンクです</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist</source>
        <translation>%1、%2 番目の名前: %3 は存在しません</translation>
    </message>
    <message>
        <source>the list %1 is UTF-16 text; save it as UTF-8</source>
        <translation>一覧 %1 は UTF-16 です。UTF-8 で保存してください</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2</source>
        <translation>%2 で %1 件の実行が中断されています</translation>
    </message>
    <message>
        <source>no run in %1 is called &quot;%2&quot;</source>
        <translation>%1 に「%2」という実行はありません</translation>
    </message>
    <message>
        <source>%1  %2 is damaged</source>
        <translation>%1  %2 は壊れています</translation>
    </message>
    <message>
        <source>%1  %2  %3 of 1 picture  %4</source>
        <translation>%1  %2  %3 / 1 枚  %4</translation>
    </message>
    <message>
        <source>%1  %2  %3 of %4 pictures  %5</source>
        <translation>%1  %2  %3 / %4 枚  %5</translation>
    </message>
    <message>
        <source>%1, line %2: this version does not know %3, and ignores it.</source>
        <translation>%1、%2 行目: このバージョンは %3 を認識できず、無視します。</translation>
    </message>
    <message>
        <source>%1: this version does not know %2 other elements and attributes, and ignores them.</source>
        <translation>%1: このバージョンはほかに %2 個の要素と属性を認識できず、無視します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a path, but the name of a preset is needed</source>
        <translation>「%1」はパスですが、プリセットの名前が必要です</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>プリセット「%1」はありません</translation>
    </message>
    <message>
        <source>the name of the preset is empty</source>
        <translation>プリセットの名前が空です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a dot, which the name of a preset must not</source>
        <translation>「%1」は点で始まっていますが、プリセットの名前は点で始められません</translation>
    </message>
    <message>
        <source>the name of a preset has no extension: use &quot;%1&quot;</source>
        <translation>プリセットの名前に拡張子は付けません。「%1」を使用してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a file on every system; &quot;%2&quot; would be one</source>
        <translation>「%1」はファイル名に使えないシステムがあります。「%2」なら使えます</translation>
    </message>
    <message>
        <source>the name of the preset is longer than %1 bytes</source>
        <translation>プリセットの名前が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the preset %1</source>
        <translation>プリセット %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>the preset %1 comes with the program and cannot be removed; a preset of yours with that name is used instead of it</source>
        <translation>プリセット %1 は付属品のため削除できません。同じ名前の自作プリセットがあれば、そちらが使われます</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 を削除できません: %2</translation>
    </message>
    <message>
        <source>Archive: TIFF without loss, with all metadata and the time of the file</source>
        <translation>アーカイブ: 可逆圧縮の TIFF、すべてのメタデータとファイルの日時を保持</translation>
    </message>
    <message>
        <source>Mail: small JPEG of at most 1024 pixels, sRGB, with creator and rights</source>
        <translation>メール: 最大 1024 ピクセルの小さな JPEG、sRGB、作者と権利情報付き</translation>
    </message>
    <message>
        <source>Print: 15 cm long at 300 dpi, with a white border of 5 mm</source>
        <translation>印刷: 長さ 15 cm、300 dpi、5 mm の白い縁付き</translation>
    </message>
    <message>
        <source>Thumbnails: squares of 256 pixels, JPEG without metadata</source>
        <translation>サムネイル: 256 ピクセルの正方形、メタデータなしの JPEG</translation>
    </message>
    <message>
        <source>Web: JPEG of at most 1600 pixels, sRGB, with creator and rights</source>
        <translation>ウェブ: 最大 1600 ピクセルの JPEG、sRGB、作者と権利情報付き</translation>
    </message>
    <message>
        <source>The journal %1 cannot be written: %2.</source>
        <translation>ジャーナル %1 に書き出せません: %2。</translation>
    </message>
    <message>
        <source>the braces of a wildcard are nested too deeply</source>
        <translation>ワイルドカードの波かっこの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>a wildcard is longer than %1 characters: %2...</source>
        <translation>ワイルドカードが %1 文字を超えています: %2...</translation>
    </message>
    <message>
        <source>the wildcard &quot;%1&quot; is invalid: %2</source>
        <translation>ワイルドカード「%1」は正しくありません: %2</translation>
    </message>
    <message>
        <source>the braces in &quot;%1&quot; stand for more than %2 names</source>
        <translation>「%1」の波かっこが表す名前が %2 個を超えています</translation>
    </message>
    <message>
        <source>%1 matches no file</source>
        <translation>%1 に一致するファイルがありません</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixel, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>「%1」は %2 ピクセルを意味します（点は小数点です）が、ピクセル数は整数です: %3、または %4cm のように単位を付けます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means %2 pixels, for a point begins the decimals, but pixels are counted in whole numbers: %3, or a unit, as in %4cm</source>
        <translation>「%1」は %2 ピクセルを意味します（点は小数点です）が、ピクセル数は整数です: %3、または %4cm のように単位を付けます</translation>
    </message>
    <message>
        <source>%1, name %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1、%2 番目の名前: %3 はリンク先のないリンクです（ほか %4 件）</translation>
    </message>
    <message>
        <source>%1, name %2: %3 does not exist (and %4 more)</source>
        <translation>%1、%2 番目の名前: %3 は存在しません（ほか %4 件）</translation>
    </message>
    <message>
        <source>%1, line %2: %3 is a dangling link (and %4 more)</source>
        <translation>%1、%2 行目: %3 はリンク先のないリンクです（ほか %4 件）</translation>
    </message>
    <message>
        <source>%1, line %2: %3 does not exist (and %4 more)</source>
        <translation>%1、%2 行目: %3 は存在しません（ほか %4 件）</translation>
    </message>
    <message>
        <source>Start tag expected.</source>
        <translation>開始タグが必要です。</translation>
    </message>
    <message>
        <source>Opening and ending tag mismatch.</source>
        <translation>開始タグと終了タグが一致しません。</translation>
    </message>
    <message>
        <source>Premature end of document.</source>
        <translation>文書が途中で終わっています。</translation>
    </message>
    <message>
        <source>Extra content at end of document.</source>
        <translation>文書の末尾に余分な内容があります。</translation>
    </message>
    <message>
        <source>Expected %1, but got &apos;%2&apos;.</source>
        <translation>%1 が必要ですが、「%2」があります。</translation>
    </message>
    <message>
        <source>range out of order in character class</source>
        <translation>文字クラスの範囲の順序が逆です</translation>
    </message>
    <message>
        <source>the input&apos;s name without its extension</source>
        <translation>入力の名前（拡張子なし）</translation>
    </message>
    <message>
        <source>a number that counts the job&apos;s files</source>
        <translation>ジョブ内のファイルの連番</translation>
    </message>
    <message>
        <source>the capture date, YYYYMMDD</source>
        <translation>撮影日、YYYYMMDD</translation>
    </message>
    <message>
        <source>the capture time, HHMMSS</source>
        <translation>撮影時刻、HHMMSS</translation>
    </message>
    <message>
        <source>a text of your own</source>
        <translation>自由なテキスト</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>everything in the output folder</source>
        <translation>すべて出力フォルダーに</translation>
    </message>
    <message>
        <source>folders as in the input</source>
        <translation>入力と同じフォルダー</translation>
    </message>
    <message>
        <source>a folder for each capture date, YYYY/YYYY-MM-DD</source>
        <translation>撮影日ごとのフォルダー、YYYY/YYYY-MM-DD</translation>
    </message>
    <message>
        <source>the size stays</source>
        <translation>サイズは変わりません</translation>
    </message>
    <message>
        <source>enlarge or reduce</source>
        <translation>拡大または縮小</translation>
    </message>
    <message>
        <source>only reduce</source>
        <translation>縮小のみ</translation>
    </message>
    <message>
        <source>only enlarge</source>
        <translation>拡大のみ</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>the long side</source>
        <translation>長辺</translation>
    </message>
    <message>
        <source>the short side</source>
        <translation>短辺</translation>
    </message>
    <message>
        <source>percent of the picture</source>
        <translation>画像に対するパーセント</translation>
    </message>
    <message>
        <source>inches at the resolution</source>
        <translation>インチ（解像度による）</translation>
    </message>
    <message>
        <source>centimetres at the resolution</source>
        <translation>センチメートル（解像度による）</translation>
    </message>
    <message>
        <source>millimetres at the resolution</source>
        <translation>ミリメートル（解像度による）</translation>
    </message>
    <message>
        <source>no crop</source>
        <translation>切り抜きなし</translation>
    </message>
    <message>
        <source>the largest frame of the ratio width : height</source>
        <translation>比率 幅 : 高さ で最大の範囲</translation>
    </message>
    <message>
        <source>cut off a border of one colour</source>
        <translation>単色の縁を切り取る</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye</source>
        <translation>その比率で目を引く範囲</translation>
    </message>
    <message>
        <source>scale to cover width x height, then cut</source>
        <translation>幅 x 高さを覆うまで拡大縮小して切り取り</translation>
    </message>
    <message>
        <source>width x height pixels</source>
        <translation>幅 x 高さ ピクセル</translation>
    </message>
    <message>
        <source>the largest frame of the ratio, turned with the picture</source>
        <translation>その比率で最大の範囲、画像の向きに合わせる</translation>
    </message>
    <message>
        <source>the frame of the ratio that draws the eye, turned with the picture</source>
        <translation>その比率で目を引く範囲、画像の向きに合わせる</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>at the top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>at the top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>at the bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>at the bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>transparent where the format allows it, else white</source>
        <translation>形式が対応していれば透明、それ以外は白</translation>
    </message>
    <message>
        <source>one colour</source>
        <translation>単色</translation>
    </message>
    <message>
        <source>a built-in pattern</source>
        <translation>内蔵パターン</translation>
    </message>
    <message>
        <source>an image file, scaled to cover</source>
        <translation>画像ファイル（全体を覆うように拡大縮小）</translation>
    </message>
    <message>
        <source>the picture covers its background</source>
        <translation>画像が背景を覆います</translation>
    </message>
    <message>
        <source>multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>the darker of the two</source>
        <translation>暗い方</translation>
    </message>
    <message>
        <source>the lighter of the two</source>
        <translation>明るい方</translation>
    </message>
    <message>
        <source>soft light</source>
        <translation>ソフトライト</translation>
    </message>
    <message>
        <source>hard light</source>
        <translation>ハードライト</translation>
    </message>
    <message>
        <source>the difference of the two</source>
        <translation>両者の差</translation>
    </message>
    <message>
        <source>a drop shadow</source>
        <translation>ドロップシャドウ</translation>
    </message>
    <message>
        <source>a glow around the picture, without offset</source>
        <translation>画像の周りの光彩（ずれなし）</translation>
    </message>
    <message>
        <source>skip the file</source>
        <translation>ファイルをスキップ</translation>
    </message>
    <message>
        <source>stop the run</source>
        <translation>実行を停止</translation>
    </message>
    <message>
        <source>ask</source>
        <translation>確認する</translation>
    </message>
    <message>
        <source>overwrite what is there</source>
        <translation>既存のものを上書き</translation>
    </message>
    <message>
        <source>append &quot; (2)&quot;, &quot; (3)&quot; and so on to the name</source>
        <translation>名前に「 (2)」「 (3)」などを付加</translation>
    </message>
    <message>
        <source>write the nearest format that can hold the picture</source>
        <translation>画像を保存できる最も近い形式で書き出す</translation>
    </message>
    <message>
        <source>reported only</source>
        <translation>報告のみ</translation>
    </message>
    <message>
        <source>the file was skipped</source>
        <translation>ファイルはスキップされました</translation>
    </message>
    <message>
        <source>the run was stopped</source>
        <translation>実行が停止されました</translation>
    </message>
    <message>
        <source>the option %1 cannot say what the job holds</source>
        <translation>オプション %1 ではジョブの内容を表せません</translation>
    </message>
    <message>
        <source>%1 is a picture (%2) with another extension; it is added only if it is named.</source>
        <translation>%1 は拡張子の異なる画像（%2）です。ファイル自体を指定した場合だけ追加されます。</translation>
    </message>
    <message>
        <source>no private folder can be made for previews: %1</source>
        <translation>プレビュー用の専用フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>the picture that was made for the screen cannot be read</source>
        <translation>画面表示用に作成した画像を読み込めません</translation>
    </message>
    <message>
        <source>The effect &quot;%1&quot; does not exist</source>
        <translation>効果「%1」は存在しません</translation>
    </message>
    <message>
        <source>shares the processor equally with other programs; otherwise they come first</source>
        <translation>ほかのプログラムとプロセッサを対等に分け合います。指定しないと、ほかのプログラムが優先されます</translation>
    </message>
    <message>
        <source>&quot;maxBytes&quot; lowers the quality, and &quot;lossless&quot; has none</source>
        <translation>&quot;maxBytes&quot; は品質を下げますが、&quot;lossless&quot; に品質はありません</translation>
    </message>
    <message>
        <source>&quot;minQuality&quot; is %1, above &quot;quality&quot;, which is %2</source>
        <translation>&quot;minQuality&quot; は %1 で、&quot;quality&quot; の %2 を超えています</translation>
    </message>
    <message>
        <source>the largest file; the best quality up to &quot;quality&quot; is found whose file is not larger</source>
        <translation>ファイルの最大の大きさ。これを超えない最良の品質を &quot;quality&quot; までの範囲で探します</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>what &quot;maxBytes&quot; may lower the quality to</source>
        <translation>&quot;maxBytes&quot; が品質を下げてよい下限</translation>
    </message>
    <message>
        <source>makes pictures smaller where &quot;minQuality&quot; is not enough for &quot;maxBytes&quot;</source>
        <translation>&quot;minQuality&quot; でも &quot;maxBytes&quot; に収まらない画像を縮小します</translation>
    </message>
    <message>
        <source>the file would have %1 bytes with quality %2 and %3 x %4 pixels; at most %5 bytes are wanted</source>
        <translation>品質 %2、%3 x %4 ピクセルではファイルが %1 バイトになります。上限は %5 バイトです</translation>
    </message>
    <message>
        <source>the size of %1 files follows from their pixels; %2 can have a limit</source>
        <translation>%1 ファイルの大きさは画素で決まります。上限を設けられるのは %2 です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of bytes; write it like 500kB, 1.5MB or 300KiB</source>
        <translation>&quot;%1&quot; はバイト数ではありません。500kB、1.5MB、300KiB のように書いてください</translation>
    </message>
    <message>
        <source>the largest file, such as 500kB; the best quality that is not larger is found. The format options minQuality and mayShrink say how far it may go</source>
        <translation>ファイルの最大の大きさ（例: 500kB）。これを超えない最良の品質を探します。どこまで許すかは形式のオプション minQuality と mayShrink で決めます</translation>
    </message>
    <message>
        <source>it is damaged, or of another version</source>
        <translation>壊れているか、別のバージョンのものです</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>makes only what has changed since the last update into the output folder: its input, the job&apos;s settings, or a file that they name. All other results stay as they are</source>
        <translation>出力フォルダーへの前回の更新以降に、入力、ジョブの設定、または設定が指定するファイルが変わったものだけを作成します。ほかの結果はそのまま残ります</translation>
    </message>
    <message>
        <source>lets an update compare the contents of files, not only their sizes and times</source>
        <translation>更新のときに、サイズと時刻だけでなくファイルの内容を比べます</translation>
    </message>
    <message>
        <source>lets an update remove results that it has made earlier and whose inputs are gone</source>
        <translation>以前の更新で作成され、入力がなくなった結果を、更新のときに削除します</translation>
    </message>
    <message>
        <source>the folder cannot be written, or another process keeps the record</source>
        <translation>フォルダーに書き込めないか、別のプロセスが記録を使用しています</translation>
    </message>
    <message>
        <source>who made the picture</source>
        <translation>画像を作った人</translation>
    </message>
    <message>
        <source>the notice that says whose the picture is</source>
        <translation>画像が誰のものかを示す表示</translation>
    </message>
    <message>
        <source>who is to be named where the picture is shown</source>
        <translation>画像を掲載するときに記す名前</translation>
    </message>
    <message>
        <source>a short name of the picture</source>
        <translation>画像の短い名前</translation>
    </message>
    <message>
        <source>separated by commas or semicolons</source>
        <translation>コンマまたはセミコロンで区切る</translation>
    </message>
    <message>
        <source>how the picture may be used</source>
        <translation>画像の使い方の条件</translation>
    </message>
    <message>
        <source>Writes creator, rights, title and keywords into the metadata</source>
        <translation>作成者、権利、タイトル、キーワードをメタデータに書き込みます</translation>
    </message>
    <message>
        <source>the text has tokens, such as {date:YYYY-MM-DD}</source>
        <translation>文字列に {date:YYYY-MM-DD} のようなトークンがある</translation>
    </message>
    <message>
        <source>it holds no job</source>
        <translation>ジョブが含まれていません</translation>
    </message>
    <message>
        <source>its output folder is &quot;%1&quot;, but has to be an absolute path</source>
        <translation>出力フォルダーは「%1」ですが、絶対パスでなければなりません</translation>
    </message>
    <message>
        <source>a job has no name</source>
        <translation>名前のないジョブがあります</translation>
    </message>
    <message>
        <source>two jobs have the name &quot;%1&quot;</source>
        <translation>2 つのジョブの名前が「%1」です</translation>
    </message>
    <message>
        <source>the job &quot;%1&quot; writes to &quot;%2&quot;, which is not in the output folder, &quot;%3&quot;</source>
        <translation>ジョブ「%1」は「%2」に書き込みますが、これは出力フォルダー「%3」の中にありません</translation>
    </message>
    <message>
        <source>it holds more than %1 jobs</source>
        <translation>%1 個を超えるジョブが含まれています</translation>
    </message>
    <message>
        <source>it is no bundle of jobs</source>
        <translation>ジョブの束ではありません</translation>
    </message>
    <message>
        <source>it takes nothing after a colon</source>
        <translation>コロンの後には何も指定できません</translation>
    </message>
    <message>
        <source>the number of digits must be a whole number from 1 to %1</source>
        <translation>桁数は 1 から %1 までの整数でなければなりません</translation>
    </message>
    <message>
        <source>a date is made of YYYY, YY, MM and DD, with no other letters between them</source>
        <translation>日付は YYYY、YY、MM、DD で書き、間にほかの文字を入れません</translation>
    </message>
    <message>
        <source>a time is made of HH, MM and SS, with no other letters between them</source>
        <translation>時刻は HH、MM、SS で書き、間にほかの文字を入れません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; the tokens are %3, and {{ is a brace</source>
        <translation>%2 文字目の「%1」はトークンではありません。トークンは %3 で、{{ は波括弧です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 is not a token; did you mean &quot;{%3}&quot;?</source>
        <translation>%2 文字目の「%1」はトークンではありません。「{%3}」のことですか</translation>
    </message>
    <message>
        <source>&quot;}&quot; at character %1 closes no token; write }} for a brace</source>
        <translation>%1 文字目の「}」に対応するトークンがありません。波括弧は }} と書きます</translation>
    </message>
    <message>
        <source>&quot;{&quot; at character %1 begins a token that has no end; write {{ for a brace</source>
        <translation>%1 文字目の「{」で始まるトークンに終わりがありません。波括弧は {{ と書きます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at character %2 cannot be used: %3</source>
        <translation>%2 文字目の「%1」は使えません: %3</translation>
    </message>
    <message>
        <source>a text with tokens, such as {date}_{number:4}</source>
        <translation>{date}_{number:4} のようなトークンを含む文字列</translation>
    </message>
    <message>
        <source>depth map lost</source>
        <translation>深度マップを消失</translation>
    </message>
    <message>
        <source>film lost</source>
        <translation>動画を消失</translation>
    </message>
    <message>
        <source>audio lost</source>
        <translation>音声を消失</translation>
    </message>
    <message>
        <source>It has inputs, but those of a bundle belong in its first job</source>
        <translation>入力がありますが、束の入力は最初のジョブに置きます</translation>
    </message>
    <message>
        <source>The bundle of jobs cannot be read: %1</source>
        <translation>ジョブの束を読み取れません: %1</translation>
    </message>
    <message>
        <source>Job &quot;%1&quot;: %2</source>
        <translation>ジョブ「%1」: %2</translation>
    </message>
    <message>
        <source>Its output folder is &quot;%1&quot;, but the bundle says &quot;%2&quot;</source>
        <translation>出力フォルダーは「%1」ですが、束では「%2」となっています</translation>
    </message>
    <message>
        <source>Several results of one picture cannot replace their original</source>
        <translation>1 枚の画像の複数の結果で元の画像を置き換えることはできません</translation>
    </message>
    <message>
        <source>it has a depth map, which the result lacks</source>
        <translation>深度マップがありますが、結果には含まれません</translation>
    </message>
    <message>
        <source>it has a film, which the result lacks</source>
        <translation>動画がありますが、結果には含まれません</translation>
    </message>
    <message>
        <source>it has audio, which the result lacks</source>
        <translation>音声がありますが、結果には含まれません</translation>
    </message>
    <message>
        <source>--in-place makes one result of each picture, but several presets or jobs are given; remove --in-place, or all but one of them</source>
        <translation>--in-place は各画像から 1 つの結果を作りますが、複数のプリセットまたはジョブが指定されています。--in-place を取り除くか、1 つだけ残してください</translation>
    </message>
    <message>
        <source>several presets or jobs need one output folder, in which each gets a folder of its name</source>
        <translation>複数のプリセットまたはジョブには 1 つの出力フォルダーが必要です。その中にそれぞれの名前のフォルダーができます</translation>
    </message>
    <message>
        <source>%1 has other inputs than %2; results of one run have the same inputs, and --no-inputs drops those of saved jobs</source>
        <translation>%1 の入力は %2 と異なります。1 回の実行の結果は同じ入力から作られます。--no-inputs は保存済みジョブの入力を外します</translation>
    </message>
    <message>
        <source>%1 needs --resume</source>
        <translation>%1 には --resume が必要です</translation>
    </message>
    <message>
        <source>one folder to watch is needed</source>
        <translation>監視するフォルダーを 1 つ指定してください</translation>
    </message>
    <message>
        <source>the results would come into the watched folder %1; write them to a folder in it, or elsewhere</source>
        <translation>結果が監視中のフォルダー %1 に入ってしまいます。その中のフォルダーか別の場所に書き出してください</translation>
    </message>
    <message>
        <source>processes a saved job, files and folders, or both; options override the job. Several jobs make several results of each picture, each in a folder of its name. Exit status: 0 when all pictures were written, or left out by a policy that an option names; 1 when some failed or were left out otherwise; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 4 when the run was cancelled; 5 when there is no picture among the inputs; 6 when this run is going on already; 7 when there is nothing to resume</source>
        <translation>保存済みジョブ、ファイルやフォルダー、またはその両方を処理します。オプションはジョブより優先されます。複数のジョブは各画像から複数の結果を作り、それぞれの名前のフォルダーに入れます。終了コード: 0 はすべての画像を書き出したか、オプションで指定した規則によりスキップした場合、1 は失敗したか、それ以外の理由でスキップした画像がある場合、2 は引数またはジョブが正しくない場合、3 はサーバーを起動できないか失った場合、4 は実行を中止した場合、5 は入力に画像がない場合、6 はこの実行が既に進行中の場合、7 は再開するものがない場合です</translation>
    </message>
    <message>
        <source>processes the pictures in a folder and its subfolders, and those that come, until it is ended. Pictures are taken when they have arrived whole, and each once, also over restarts; numbers in names go on. Nobody is asked: ask becomes rename for names, stop for the output, and skip otherwise. Exit status: 0 when it was ended between pictures; 4 when it was ended while pictures were in work, which the next start finishes; 1 when the folder is gone or the output cannot be written; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 6 when the output folder is used for watching already</source>
        <translation>フォルダーとそのサブフォルダーにある画像と、後から届く画像を、終了されるまで処理します。画像は完全に届いてから、再起動をまたいでも一度だけ処理され、名前の番号は続きます。質問はしません: ask は、名前では rename、出力では stop、それ以外では skip になります。終了コード: 0 は画像の処理中でないときに終了した場合、4 は処理中の画像があるときに終了した場合 (次回の起動時に仕上げます)、1 はフォルダーがなくなったか出力を書き込めない場合、2 は引数またはジョブが正しくない場合、3 はサーバーを起動できないか失った場合、6 は出力フォルダーがすでに監視に使われている場合です</translation>
    </message>
    <message>
        <source>Every picture that comes into a folder</source>
        <translation>フォルダーに届くすべての画像</translation>
    </message>
    <message>
        <source>starts from a preset; &quot;velkora-batch presets&quot; lists them. Given several times, each picture gets a result of each preset, in a folder of its name in the output folder</source>
        <translation>プリセットを出発点にします。一覧は「velkora-batch presets」で表示されます。複数回指定すると、各画像からプリセットごとに結果が作られ、出力フォルダー内のその名前のフォルダーに入ります</translation>
    </message>
    <message>
        <source>Watching</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>how long a picture has to stay the same before it is taken; default: 2. Pictures that are moved into the folder are taken at once</source>
        <translation>画像を処理するまでに変化しないでいるべき時間。既定値: 2。フォルダーに移動された画像はすぐに処理されます</translation>
    </message>
    <message>
        <source>looks for pictures every so many seconds, in place of waiting for the system&apos;s word; default: 5 where the system tells nothing, as for network folders</source>
        <translation>システムの通知を待たずに、この秒数ごとに画像を探します。既定値: ネットワークフォルダーなど、システムが通知しない場所では 5</translation>
    </message>
    <message>
        <source>%1 needs --update</source>
        <translation>%1 には --update が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice; remove one of them</source>
        <translation>「%1」が 2 回指定されています。一方を取り除いてください</translation>
    </message>
    <message>
        <source>the results of &quot;%1&quot; and &quot;%2&quot; would go to one folder, &quot;%3&quot;; give one of them another name</source>
        <translation>「%1」と「%2」の結果が同じフォルダー「%3」に入ることになります。一方の名前を変えてください</translation>
    </message>
    <message>
        <source>at most %1 results can be made of one picture</source>
        <translation>1 枚の画像から作れる結果は最大 %1 個です</translation>
    </message>
    <message>
        <source>what {number} in names begins with; 1, unless it is given</source>
        <translation>名前の中の {number} の最初の数。指定しなければ 1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no effect without {number} in a name; add it to --name</source>
        <translation>「%1」は名前に {number} がないと効果がありません。--name に加えてください</translation>
    </message>
    <message>
        <source>the middle of a name: original, the input&apos;s name; number, number:START or number:START:DIGITS; date and time, those of the capture, or of the file where a picture has none; text:TEXT; nothing; or a text with tokens, such as {date:YYYY-MM-DD}_{number:4}</source>
        <translation>名前の中央: original は入力の名前、number、number:START または number:START:DIGITS は番号、date と time は撮影日時（なければファイルの日時）、text:TEXT、nothing、または {date:YYYY-MM-DD}_{number:4} のようなトークンを含む文字列</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be made</source>
        <translation>出力フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>another process watches a folder for %1 already</source>
        <translation>別のプロセスがすでに %1 を出力先としてフォルダーを監視しています</translation>
    </message>
    <message>
        <source>the output folder %1 cannot be written</source>
        <translation>出力フォルダー %1 に書き込めません</translation>
    </message>
    <message>
        <source>it is no record of a watched folder that this version reads</source>
        <translation>このバージョンで読める監視フォルダーの記録ではありません</translation>
    </message>
    <message>
        <source>what was watched before cannot be read and written: %1: %2</source>
        <translation>これまでの監視の記録を読み書きできません: %1: %2</translation>
    </message>
    <message>
        <source>a newer version of the program has made it; use that version for all parts</source>
        <translation>プログラムの新しいバージョンで作られています。すべてのパートにそのバージョンを使ってください</translation>
    </message>
    <message>
        <source>it is no plan; &quot;velkora-batch split&quot; makes one</source>
        <translation>プランではありません。プランは「velkora-batch split」で作ります</translation>
    </message>
    <message>
        <source>it is damaged; split the job again</source>
        <translation>破損しています。ジョブをもう一度分割してください</translation>
    </message>
    <message>
        <source>collect takes one plan, the file that split has written</source>
        <translation>collect にはプランを 1 つ指定します。split が書いたファイルです</translation>
    </message>
    <message>
        <source>%1: there is no part &quot;%2&quot;; the plan has the parts %3 to %4</source>
        <translation>%1: パート「%2」はありません。プランのパートは %3 から %4 です</translation>
    </message>
    <message>
        <source>which part is not said; use --part with a number from 1 to %1</source>
        <translation>どのパートか指定されていません。--part に 1 から %1 の数を指定してください</translation>
    </message>
    <message>
        <source>%1 and %2 both say which part to make; use --part</source>
        <translation>%1 と %2 の両方がパートを指定しています。--part を使ってください</translation>
    </message>
    <message>
        <source>split needs %1; &quot;velkora-batch help split&quot; says more</source>
        <translation>split には %1 が必要です。詳しくは「velkora-batch help split」を見てください</translation>
    </message>
    <message>
        <source>%1: %2. Nobody can be asked about it while parts are made; decide with %3</source>
        <translation>%1: %2。パートの処理中は誰にも質問できません。%3 で決めてください</translation>
    </message>
    <message>
        <source>%1: %2. By %3 stop, the job would end there; it was not split</source>
        <translation>%1: %2。%3 stop ではジョブはここで終わります。分割されませんでした</translation>
    </message>
    <message>
        <source>not all inputs could be read, as said above; nothing was split</source>
        <translation>上記のとおり、読めない入力がありました。何も分割されていません</translation>
    </message>
    <message>
        <source>%1 pictures cannot be cut into %2 parts; each needs a picture</source>
        <translation>%1 枚の画像を %2 個のパートに分割できません。各パートに画像が必要です</translation>
    </message>
    <message>
        <source>the plan %1 cannot be written: %2</source>
        <translation>プラン %1 を書き込めません: %2</translation>
    </message>
    <message>
        <source>cuts a job into parts that can be made at once, on many machines, by &quot;velkora-batch run --plan&quot;: writes a plan with every input and the name of every result, and nothing else. Clashes of names are settled by the policies. Exit status: 2 when the job cannot be split; 5 when there is no picture among the inputs</source>
        <translation>「velkora-batch run --plan」で多くのマシンで同時に処理できるパートにジョブを分割します。すべての入力と結果の名前を含むプランだけを書き込みます。名前の衝突はポリシーで解決されます。終了ステータス: ジョブを分割できない場合は 2、入力に画像がない場合は 5</translation>
    </message>
    <message>
        <source>says what the parts of a plan have done and which are to be run again. When all are done without failures, the plan and its journals are removed. Exit status: 0 when all pictures were written; 1 when some failed, were left out or are not made yet; 2 when the plan cannot be used</source>
        <translation>プランのパートが何をしたか、どのパートを再実行するかを表示します。すべてが失敗なく完了すると、プランとジャーナルは削除されます。終了ステータス: すべての画像が書き込まれた場合は 0、失敗、除外、または未処理の画像がある場合は 1、プランを使用できない場合は 2</translation>
    </message>
    <message>
        <source>A job for eight machines</source>
        <translation>8 台のマシンのためのジョブ</translation>
    </message>
    <message>
        <source>What the parts have done</source>
        <translation>パートが行ったこと</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>パート</translation>
    </message>
    <message>
        <source>the folder FROM of the plan is the folder TO on this machine; both are absolute</source>
        <translation>プランのフォルダー FROM は、このマシンではフォルダー TO です。どちらも絶対パスです</translation>
    </message>
    <message>
        <source>makes it an error, not a warning, when parts are made by other versions than the plan</source>
        <translation>パートがプランと異なるバージョンで作られるとき、警告ではなくエラーにします</translation>
    </message>
    <message>
        <source>how many parts to cut the job into; each gets about as many bytes of pictures</source>
        <translation>ジョブをいくつのパートに分割するか。各パートの画像のバイト数はほぼ同じです</translation>
    </message>
    <message>
        <source>the file to write the plan to; it is replaced</source>
        <translation>プランを書き込むファイル。置き換えられます</translation>
    </message>
    <message>
        <source>makes one part of the job that &quot;velkora-batch split&quot; has written to a file</source>
        <translation>「velkora-batch split」がファイルに書いたジョブの 1 つのパートを処理します</translation>
    </message>
    <message>
        <source>which part, from 1; default: what the environment says in SLURM_ARRAY_TASK_ID, JOB_COMPLETION_INDEX, which counts from 0, or PARALLEL_SEQ</source>
        <translation>どのパートか (1 から)。既定値は環境変数 SLURM_ARRAY_TASK_ID、0 から数える JOB_COMPLETION_INDEX、または PARALLEL_SEQ の値です</translation>
    </message>
    <message>
        <source>removes the plan and its journals also when pictures have failed; without this option they stay until all parts are done without failures</source>
        <translation>画像が失敗した場合でもプランとジャーナルを削除します。このオプションがなければ、すべてのパートが失敗なく完了するまで残ります</translation>
    </message>
    <message>
        <source>%1 is for a part of a job; name its plan with --plan</source>
        <translation>%1 はジョブのパート用です。--plan でプランを指定してください</translation>
    </message>
    <message>
        <source>the plan has a job and pictures of its own; leave out &quot;%1&quot;</source>
        <translation>プランには独自のジョブと画像があります。「%1」を省いてください</translation>
    </message>
    <message>
        <source>%1 is missing here, but was there when the job was split; --map names folders that are elsewhere on this machine</source>
        <translation>%1 はここにありませんが、ジョブの分割時にはありました。このマシンで別の場所にあるフォルダーは --map で指定します</translation>
    </message>
    <message>
        <source>%1 has changed since the job was split; split the job again</source>
        <translation>%1 はジョブの分割後に変更されました。ジョブをもう一度分割してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be two absolute folders with &quot;=&quot; between them</source>
        <translation>「%1」は「=」で区切った 2 つの絶対フォルダーでなければなりません</translation>
    </message>
    <message>
        <source>the plan %1 cannot be used: %2</source>
        <translation>プラン %1 は使用できません: %2</translation>
    </message>
    <message>
        <source>the journal of the part, %1, cannot be written: %2. It belongs beside the plan</source>
        <translation>パートのジャーナル %1 に書き込めません: %2。プランと同じ場所に置かれます</translation>
    </message>
    <message>
        <source>%1 says that process %2 of %3 holds it, and the file system has no locks to tell whether that process is still there; if it is not, remove that file</source>
        <translation>%1 によると %3 のプロセス %2 が使用中ですが、このファイルシステムにはロックがなく、そのプロセスがまだあるかどうか分かりません。もうない場合はそのファイルを削除してください</translation>
    </message>
    <message>
        <source>%1 unfinished files stay beside the results: the file system has no locks to tell whether they are in work. Remove .velkora-*.tmp there when nothing runs.</source>
        <translation>未完成のファイル %1 個が結果の隣に残っています。このファイルシステムにはロックがなく、作業中かどうか分かりません。何も実行していないときに .velkora-*.tmp を削除してください。</translation>
    </message>
    <message>
        <source>made by other versions than the plan</source>
        <translation>計画とは別のバージョンで作成</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>it does not say them</source>
        <translation>バージョンを返しません</translation>
    </message>
    <message>
        <source>the same job is already running into %1: %2</source>
        <translation>同じジョブがすでに %1 へ実行中です: %2</translation>
    </message>
    <message>
        <source>%1 was asked for the versions of its libraries: %2</source>
        <translation>%1 にライブラリのバージョンを問い合わせました: %2</translation>
    </message>
    <message>
        <source>the plan was made with %1, but here are %2</source>
        <translation>計画は %1 で作られましたが、ここにあるのは %2 です</translation>
    </message>
    <message>
        <source>made with %1, but the plan with %2</source>
        <translation>%1 で作られましたが、計画は %2 で作られました</translation>
    </message>
    <message>
        <source>it is open in another program</source>
        <translation>別のプログラムで開かれています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is open in another program</source>
        <translation>「%1」を置き換えられません: 別のプログラムで開かれています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be replaced: it is read-only</source>
        <translation>「%1」を置き換えられません: 読み取り専用です</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1 with the compression %2</source>
        <translation>この環境には、圧縮方式 %2 の %1 のエンコーダーがありません</translation>
    </message>
</context>
</TS>
