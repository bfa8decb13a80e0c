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
        <source>%1 runs were interrupted in %2, none of them of this job</source>
        <translation>%2 で %1 件の実行が中断されましたが、このジョブのものはありません</translation>
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
        <source>which metadata is kept</source>
        <translation>残すメタデータ</translation>
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
</context>
</TS>
