<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BatchHost::Messages</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltan %1</translation>
    </message>
    <message>
        <source>No more input: this file and all that follow with questions are skipped.</source>
        <translation>No hay más entrada: se omiten este archivo y los siguientes que planteen preguntas.</translation>
    </message>
    <message>
        <source>%1? (add &quot;all&quot; for all that follow)</source>
        <translation>¿%1? (añada «all» para todos los siguientes)</translation>
    </message>
    <message>
        <source>the server ended unexpectedly; a new one continues.</source>
        <translation>el servidor terminó inesperadamente; continúa uno nuevo.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly.</source>
        <translation>el servidor terminó inesperadamente.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1; a new one continues.</source>
        <translation>el servidor terminó inesperadamente mientras procesaba %1; continúa uno nuevo.</translation>
    </message>
    <message>
        <source>the server ended unexpectedly while it worked on %1.</source>
        <translation>el servidor terminó inesperadamente mientras procesaba %1.</translation>
    </message>
    <message>
        <source>Starting the server</source>
        <translation>Iniciando el servidor</translation>
    </message>
    <message>
        <source>Cancelling; interrupt again to end at once.</source>
        <translation>Cancelando; interrumpa otra vez para terminar de inmediato.</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Cancelando</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Escritas</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidas</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Con error</translation>
    </message>
    <message>
        <source>Not processed</source>
        <translation>Sin procesar</translation>
    </message>
    <message>
        <source>Written with a warning</source>
        <translation>Escrita con una advertencia</translation>
    </message>
    <message>
        <source>1 file with another extension was left out, but begins like a picture; --verbose names them, --include takes them.</source>
        <translation>Se dejó fuera 1 archivo con otra extensión, pero empieza como una imagen; --verbose los nombra, --include los incluye.</translation>
    </message>
    <message>
        <source>%1 files with other extensions were left out, but begin like pictures; --verbose names them, --include takes them.</source>
        <translation>Se dejaron fuera %1 archivos con otras extensiones, pero empiezan como imágenes; --verbose los nombra, --include los incluye.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>to %1, in %2 (%3 a second)</source>
        <translation>en %1, en %2 (%3 por segundo)</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, is missing now: %2</source>
        <translation>%1 de ellas, escrita antes de la interrupción, falta ahora: %2</translation>
    </message>
    <message>
        <source>%1 of them, written before the interruption, are missing now: %2</source>
        <translation>%1 de ellas, escritas antes de la interrupción, faltan ahora: %2</translation>
    </message>
    <message>
        <source>1 warning:</source>
        <translation>1 advertencia:</translation>
    </message>
    <message>
        <source>%1 warnings:</source>
        <translation>%1 advertencias:</translation>
    </message>
    <message>
        <source>and %1 more; use --report FILE for all</source>
        <translation>y %1 más; use --report FILE para verlas todas</translation>
    </message>
</context>
<context>
    <name>BatchJob::Phrase</name>
    <message>
        <source>Spreads the values that a picture has from black to white</source>
        <translation>Extiende los valores de la imagen de negro a blanco</translation>
    </message>
    <message>
        <source>Blurs evenly</source>
        <translation>Desenfoca de forma uniforme</translation>
    </message>
    <message>
        <source>Adds a border around a picture</source>
        <translation>Añade un borde alrededor de la imagen</translation>
    </message>
    <message>
        <source>Shifts all values, then spreads them around the middle</source>
        <translation>Desplaza todos los valores y luego los extiende alrededor del centro</translation>
    </message>
    <message>
        <source>Raises or lowers the contrast of larger structures, mostly in the middle tones</source>
        <translation>Aumenta o reduce el contraste de las estructuras grandes, sobre todo en los medios tonos</translation>
    </message>
    <message>
        <source>a second size; one table is needed, of one or of three dimensions</source>
        <translation>un segundo tamaño; se necesita una sola tabla, de una o de tres dimensiones</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs a whole number from 2 to %3</source>
        <translation>«%1»; %2 necesita un número entero de 2 a %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs three numbers</source>
        <translation>«%1»; %2 necesita tres números</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; %2 needs two numbers</source>
        <translation>«%1»; %2 necesita dos números</translation>
    </message>
    <message>
        <source>&quot;%1&quot;; three numbers or a known keyword are needed</source>
        <translation>«%1»; se necesitan tres números o una palabra clave conocida</translation>
    </message>
    <message>
        <source>an entry before LUT_1D_SIZE or LUT_3D_SIZE</source>
        <translation>una entrada antes de LUT_1D_SIZE o LUT_3D_SIZE</translation>
    </message>
    <message>
        <source>one entry more than the %1 that the size says</source>
        <translation>una entrada más de las %1 que indica el tamaño</translation>
    </message>
    <message>
        <source>no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file</source>
        <translation>ni LUT_1D_SIZE ni LUT_3D_SIZE; no es un archivo .cube</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 entries</source>
        <translation>el archivo termina tras %1 de %2 entradas</translation>
    </message>
    <message>
        <source>DOMAIN_MIN must be less than DOMAIN_MAX in every channel</source>
        <translation>DOMAIN_MIN debe ser menor que DOMAIN_MAX en todos los canales</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>%1 does not exist</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; a .cube file has at most %3</source>
        <translation>%1 tiene %2 bytes; un archivo .cube tiene como máximo %3</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
    <message>
        <source>input and output, from black to white; between them the curve never turns, beyond them it is level</source>
        <translation>entrada y salida, de negro a blanco; entre los puntos la curva nunca se invierte, fuera de ellos es horizontal</translation>
    </message>
    <message>
        <source>Maps values along a smooth curve through points</source>
        <translation>Asigna los valores según una curva suave que pasa por puntos</translation>
    </message>
    <message>
        <source>Smooths noise and keeps edges</source>
        <translation>Suaviza el ruido y conserva los bordes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 percent; it must be at most 100, or the unit pixels</source>
        <translation>«%1» es %2 por ciento; debe ser como máximo 100, o la unidad pixels</translation>
    </message>
    <message>
        <source>Brightens or darkens as a longer or shorter exposure would</source>
        <translation>Aclara u oscurece como lo haría una exposición más larga o más corta</translation>
    </message>
    <message>
        <source>Mirrors a picture</source>
        <translation>Refleja la imagen</translation>
    </message>
    <message>
        <source>Takes all colour away</source>
        <translation>Elimina todo el color</translation>
    </message>
    <message>
        <source>Turns all colours around the colour circle</source>
        <translation>Gira todos los colores en el círculo cromático</translation>
    </message>
    <message>
        <source>Turns a picture into its negative</source>
        <translation>Convierte la imagen en su negativo</translation>
    </message>
    <message>
        <source>&quot;black&quot; is %1 and &quot;white&quot; is %2; black must be less than white</source>
        <translation>«black» es %1 y «white» es %2; black debe ser menor que white</translation>
    </message>
    <message>
        <source>Sets what becomes black, what becomes white, and the tone between them</source>
        <translation>Define qué se vuelve negro, qué se vuelve blanco y el tono intermedio</translation>
    </message>
    <message>
        <source>Maps colours by the table of a .cube file; a grey picture becomes a colour picture</source>
        <translation>Asigna los colores según la tabla de un archivo .cube; una imagen en escala de grises pasa a ser en color</translation>
    </message>
    <message>
        <source>Leaves few steps of each colour</source>
        <translation>Deja pocos niveles de cada color</translation>
    </message>
    <message>
        <source>Turns a picture clockwise; the result is as large as it needs</source>
        <translation>Gira la imagen en el sentido de las agujas del reloj; el resultado es tan grande como haga falta</translation>
    </message>
    <message>
        <source>Makes all colours stronger or weaker</source>
        <translation>Hace todos los colores más intensos o más débiles</translation>
    </message>
    <message>
        <source>Tones a picture brown; a grey picture becomes a colour picture</source>
        <translation>Da a la imagen un tono marrón; una imagen en escala de grises pasa a ser en color</translation>
    </message>
    <message>
        <source>Sharpens edges by an unsharp mask</source>
        <translation>Enfoca los bordes con una máscara de enfoque</translation>
    </message>
    <message>
        <source>Makes weak colours stronger or weaker, and spares those that are strong</source>
        <translation>Hace los colores débiles más intensos o más débiles y respeta los intensos</translation>
    </message>
    <message>
        <source>Darkens or brightens towards the corners</source>
        <translation>Oscurece o aclara hacia las esquinas</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 does not exist</source>
        <translation>«file»: %1 no existe</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a file</source>
        <translation>«file»: %1 no es un archivo</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 cannot be read: %2</source>
        <translation>«file»: no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>&quot;file&quot;: %1 is not a picture of a known format</source>
        <translation>«file»: %1 no es una imagen de un formato conocido</translation>
    </message>
    <message>
        <source>Lays another picture, such as a logo, over a picture</source>
        <translation>Superpone otra imagen, como un logotipo, a la imagen</translation>
    </message>
    <message>
        <source>what is written; it may have several lines</source>
        <translation>lo que se escribe; puede tener varias líneas</translation>
    </message>
    <message>
        <source>family and style, without a size; a family that is missing is replaced</source>
        <translation>familia y estilo, sin tamaño; una familia que falte se sustituye</translation>
    </message>
    <message>
        <source>Writes a text over a picture</source>
        <translation>Escribe un texto sobre la imagen</translation>
    </message>
    <message>
        <source>Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance</source>
        <translation>Hace la imagen más cálida o fría, más verde o más magenta; los grises conservan su luminancia</translation>
    </message>
    <message>
        <source>very small files for the web in up to 12 bits, slow to write</source>
        <translation>archivos muy pequeños para la web de hasta 12 bits, lentos de escribir</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; %2 takes %3</source>
        <translation>«bitDepth» es %1; %2 admite %3</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; it must be 8, 10, 12 or 16</source>
        <translation>«bitDepth» es %1; debe ser 8, 10, 12 o 16</translation>
    </message>
    <message>
        <source>the format &quot;%1&quot; is unknown</source>
        <translation>el formato «%1» es desconocido</translation>
    </message>
    <message>
        <source>&quot;bitDepth&quot; is %1; &quot;compression&quot; jpeg takes 8</source>
        <translation>«bitDepth» es %1; «compression» jpeg admite 8</translation>
    </message>
    <message>
        <source>at most 256 colours, each pixel opaque or transparent</source>
        <translation>como máximo 256 colores, cada píxel opaco o transparente</translation>
    </message>
    <message>
        <source>small files of photos in up to 12 bits, as phones write them</source>
        <translation>archivos pequeños de fotos de hasta 12 bits, como los de los teléfonos</translation>
    </message>
    <message>
        <source>archives and films, in up to 16 bits, also without loss</source>
        <translation>archivos históricos y películas, de hasta 16 bits, también sin pérdida</translation>
    </message>
    <message>
        <source>small files of photos, which every program reads</source>
        <translation>archivos pequeños de fotos que lee cualquier programa</translation>
    </message>
    <message>
        <source>small files of photos in up to 16 bits, also without loss</source>
        <translation>archivos pequeños de fotos de hasta 16 bits, también sin pérdida</translation>
    </message>
    <message>
        <source>every pixel as it is, with transparency; for graphics and for editing</source>
        <translation>cada píxel tal cual, con transparencia; para gráficos y edición</translation>
    </message>
    <message>
        <source>higher is slower and smaller</source>
        <translation>más alto es más lento y más pequeño</translation>
    </message>
    <message>
        <source>what the sensor of a camera saw, in the formats of many makers</source>
        <translation>lo que vio el sensor de una cámara, en los formatos de muchos fabricantes</translation>
    </message>
    <message>
        <source>every pixel as it is, also CMYK and very large; for printing and for archives</source>
        <translation>cada píxel tal cual, también CMYK y muy grandes; para imprenta y archivo</translation>
    </message>
    <message>
        <source>how the pixels are compressed</source>
        <translation>cómo se comprimen los píxeles</translation>
    </message>
    <message>
        <source>small files for the web, with transparency</source>
        <translation>archivos pequeños para la web, con transparencia</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>es un enlace</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>it has more than one name</source>
        <translation>tiene más de un nombre</translation>
    </message>
    <message>
        <source>other users may write it</source>
        <translation>otros usuarios pueden modificarlo</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>its own format cannot be written</source>
        <translation>su propio formato no se puede escribir</translation>
    </message>
    <message>
        <source>its own format, %1, cannot be written</source>
        <translation>su propio formato, %1, no se puede escribir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already</source>
        <translation>«%1» ya existe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a source of this job</source>
        <translation>«%1» es un original de este trabajo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the result of &quot;%2&quot;</source>
        <translation>«%1» es el resultado de «%2»</translation>
    </message>
    <message>
        <source>written as &quot;%1&quot; (naming policy)</source>
        <translation>escrito como «%1» (regla de nombres)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was overwritten (naming policy)</source>
        <translation>«%1» se sobrescribió (regla de nombres)</translation>
    </message>
    <message>
        <source>written as %1 (write-to-format policy)</source>
        <translation>escrito como %1 (regla de formatos)</translation>
    </message>
    <message>
        <source>The format</source>
        <translation>El formato</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>uno de %1</translation>
    </message>
    <message>
        <source>The options of the format %1: %2</source>
        <translation>Las opciones del formato %1: %2</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;, does not exist</source>
        <translation>El efecto %1, «%2», no existe</translation>
    </message>
    <message>
        <source>; there are %1</source>
        <translation>; hay %1</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; ¿quiso decir «%1»?</translation>
    </message>
    <message>
        <source>Effect %1, &quot;%2&quot;: %3</source>
        <translation>Efecto %1, «%2»: %3</translation>
    </message>
    <message>
        <source>The job has no files</source>
        <translation>El trabajo no tiene archivos</translation>
    </message>
    <message>
        <source>The input policy</source>
        <translation>La regla de entrada</translation>
    </message>
    <message>
        <source>The output policy</source>
        <translation>La regla de salida</translation>
    </message>
    <message>
        <source>The processing policy</source>
        <translation>La regla de procesamiento</translation>
    </message>
    <message>
        <source>The naming policy</source>
        <translation>La regla de nombres</translation>
    </message>
    <message>
        <source>The write-to-format policy</source>
        <translation>La regla de formatos</translation>
    </message>
    <message>
        <source>The shadow&apos;s mode</source>
        <translation>El modo de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s opacity</source>
        <translation>La opacidad de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s distance</source>
        <translation>La distancia de la sombra</translation>
    </message>
    <message>
        <source>The shadow&apos;s size</source>
        <translation>El tamaño de la sombra</translation>
    </message>
    <message>
        <source>The background&apos;s type</source>
        <translation>El tipo de fondo</translation>
    </message>
    <message>
        <source>The background&apos;s opacity</source>
        <translation>La opacidad del fondo</translation>
    </message>
    <message>
        <source>The background&apos;s pattern</source>
        <translation>El motivo del fondo</translation>
    </message>
    <message>
        <source>The scale of the background&apos;s pattern</source>
        <translation>La escala del motivo del fondo</translation>
    </message>
    <message>
        <source>The background&apos;s image</source>
        <translation>La imagen de fondo</translation>
    </message>
    <message>
        <source>the absolute path of a file that exists</source>
        <translation>la ruta absoluta de un archivo existente</translation>
    </message>
    <message>
        <source>The frame&apos;s width</source>
        <translation>El ancho del marco</translation>
    </message>
    <message>
        <source>The frame&apos;s height</source>
        <translation>El alto del marco</translation>
    </message>
    <message>
        <source>The output folder</source>
        <translation>La carpeta de salida</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>una ruta absoluta</translation>
    </message>
    <message>
        <source>The folder structure</source>
        <translation>La estructura de carpetas</translation>
    </message>
    <message>
        <source>The name&apos;s prefix</source>
        <translation>El prefijo del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s prefix</source>
        <translation>El número de dígitos del prefijo del nombre</translation>
    </message>
    <message>
        <source>The name&apos;s middle</source>
        <translation>La parte central del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s middle</source>
        <translation>El número de dígitos de la parte central del nombre</translation>
    </message>
    <message>
        <source>The name&apos;s suffix</source>
        <translation>El sufijo del nombre</translation>
    </message>
    <message>
        <source>The number of digits in the name&apos;s suffix</source>
        <translation>El número de dígitos del sufijo del nombre</translation>
    </message>
    <message>
        <source>The image size&apos;s restriction</source>
        <translation>La restricción del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s resolution</source>
        <translation>La resolución del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s side</source>
        <translation>El lado del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size&apos;s unit</source>
        <translation>La unidad del tamaño de imagen</translation>
    </message>
    <message>
        <source>The image size</source>
        <translation>El tamaño de imagen</translation>
    </message>
    <message>
        <source>a number above 0, up to %1</source>
        <translation>un número mayor que 0, hasta %1</translation>
    </message>
    <message>
        <source>The crop&apos;s type</source>
        <translation>El tipo de recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s width</source>
        <translation>El ancho del recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s height</source>
        <translation>El alto del recorte</translation>
    </message>
    <message>
        <source>The crop&apos;s alignment</source>
        <translation>La alineación del recorte</translation>
    </message>
    <message>
        <source>a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)</source>
        <translation>una suma de 1 (izquierda), 2 (derecha), 4 (centro), 32 (arriba), 64 (abajo), 128 (centro)</translation>
    </message>
    <message>
        <source>The frame&apos;s margin</source>
        <translation>El margen del marco</translation>
    </message>
    <message>
        <source>The frame&apos;s blending</source>
        <translation>El modo de fusión del marco</translation>
    </message>
    <message>
        <source>The picture&apos;s opacity</source>
        <translation>La opacidad de la imagen</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>un número entero %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>un número de 0 a 1</translation>
    </message>
    <message>
        <source>%1 is %2; it must be %3</source>
        <translation>%1 es %2; debe ser %3</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>renombrado</translation>
    </message>
    <message>
        <source>overwritten</source>
        <translation>sobrescrito</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>convertido</translation>
    </message>
    <message>
        <source>from %1 to %2 (%3)</source>
        <translation>de %1 a %2 (%3)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown</source>
        <translation>«%1» es desconocido</translation>
    </message>
    <message>
        <source>; none is taken here</source>
        <translation>; aquí no se admite ninguno</translation>
    </message>
    <message>
        <source>; known are %1</source>
        <translation>; se conocen %1</translation>
    </message>
    <message>
        <source>not valid JSON at byte %1: %2</source>
        <translation>JSON no válido en el byte %1: %2</translation>
    </message>
    <message>
        <source>a JSON object is needed, such as {&quot;name&quot;: value}</source>
        <translation>se necesita un objeto JSON, como {&quot;name&quot;: value}</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing; it must be %2</source>
        <translation>falta «%1»; debe ser %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be %3</source>
        <translation>«%1» es %2; debe ser %3</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>; ¿quiso decir %1?</translation>
    </message>
    <message>
        <source>a number %1</source>
        <translation>un número %1</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>una lista de %1</translation>
    </message>
    <message>
        <source>a colour, #rrggbb or #rrggbbaa</source>
        <translation>un color, #rrggbb o #rrggbbaa</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texto de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>the absolute path of a file</source>
        <translation>la ruta absoluta de un archivo</translation>
    </message>
    <message>
        <source>a list of 2 to %1 points [x, y] with ascending x, numbers %2</source>
        <translation>una lista de 2 a %1 puntos [x, y] con x creciente, números %2</translation>
    </message>
    <message>
        <source>written</source>
        <translation>escrito</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>only the first page</source>
        <translation>solo la primera página</translation>
    </message>
    <message>
        <source>the file lacks its end</source>
        <translation>falta el final del archivo</translation>
    </message>
    <message>
        <source>colour profile not used</source>
        <translation>perfil de color no utilizado</translation>
    </message>
    <message>
        <source>colours converted</source>
        <translation>colores convertidos</translation>
    </message>
    <message>
        <source>metadata lost</source>
        <translation>metadatos perdidos</translation>
    </message>
    <message>
        <source>gain map lost</source>
        <translation>mapa de ganancia perdido</translation>
    </message>
    <message>
        <source>framing without effect</source>
        <translation>marco sin efecto</translation>
    </message>
    <message>
        <source>the decoder found a fault</source>
        <translation>el decodificador encontró un fallo</translation>
    </message>
    <message>
        <source>%1 does not lie in the output folder %2</source>
        <translation>%1 no está en la carpeta de salida %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>no se puede crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>%1 is a link; results are not written through it unless links are followed</source>
        <translation>%1 es un enlace; los resultados no se escriben a través de él si no se permite seguir enlaces</translation>
    </message>
    <message>
        <source>the worker&apos;s report is invalid: %1</source>
        <translation>el informe del proceso de trabajo no es válido: %1</translation>
    </message>
    <message>
        <source>it takes more memory than the limit of %1 MiB</source>
        <translation>necesita más memoria que el límite de %1 MiB</translation>
    </message>
    <message>
        <source>it takes longer than the limit of %1 seconds</source>
        <translation>tarda más que el límite de %1 segundos</translation>
    </message>
    <message>
        <source>the worker wrote more than %1 MiB of messages</source>
        <translation>el proceso de trabajo escribió más de %1 MiB de mensajes</translation>
    </message>
    <message>
        <source>the worker sent an invalid answer</source>
        <translation>el proceso de trabajo envió una respuesta no válida</translation>
    </message>
    <message>
        <source>the worker %1</source>
        <translation>el proceso de trabajo %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be started: %2</source>
        <translation>no se puede iniciar «%1»: %2</translation>
    </message>
    <message>
        <source>ended by exception 0x%1</source>
        <translation>terminó por la excepción 0x%1</translation>
    </message>
    <message>
        <source>ended by signal %1</source>
        <translation>terminó por la señal %1</translation>
    </message>
    <message>
        <source>%1; its last output: %2</source>
        <translation>%1; su última salida: %2</translation>
    </message>
    <message>
        <source>ended with exit code %1</source>
        <translation>terminó con el código de salida %1</translation>
    </message>
    <message>
        <source>The job is not a batch document</source>
        <translation>El trabajo no es un documento por lotes</translation>
    </message>
    <message>
        <source>The job cannot be read: its reader failed</source>
        <translation>No se puede leer el trabajo: falló su lector</translation>
    </message>
    <message>
        <source>the server crashed %1 times while it worked on the file</source>
        <translation>el servidor falló %1 veces mientras procesaba el archivo</translation>
    </message>
    <message>
        <source>the worker reported a result that is not there</source>
        <translation>el proceso de trabajo informó de un resultado que no existe</translation>
    </message>
    <message>
        <source>each of %1 names for the result was taken when it was to be written</source>
        <translation>los %1 nombres probados para el resultado estaban ocupados al escribirlo</translation>
    </message>
    <message>
        <source>the journal %1 cannot be used: %2</source>
        <translation>no se puede usar el diario %1: %2</translation>
    </message>
    <message>
        <source>another server holds %1</source>
        <translation>otro servidor tiene %1</translation>
    </message>
    <message>
        <source>%1 cannot be written; the disk may be full</source>
        <translation>no se puede escribir %1; puede que el disco esté lleno</translation>
    </message>
    <message>
        <source>the embedded colour profile is damaged and is not used</source>
        <translation>el perfil de color incrustado está dañado y no se utiliza</translation>
    </message>
    <message>
        <source>the embedded colour profile does not fit the picture and is not used</source>
        <translation>el perfil de color incrustado no corresponde a la imagen y no se utiliza</translation>
    </message>
    <message>
        <source>the embedded colour profile cannot be used</source>
        <translation>no se puede utilizar el perfil de color incrustado</translation>
    </message>
    <message>
        <source>its colour profile is one for storing colours only; the result is sRGB</source>
        <translation>su perfil de color solo sirve para guardar colores; el resultado es sRGB</translation>
    </message>
    <message>
        <source>the job&apos;s colour profile does not describe pictures; the colours are not converted</source>
        <translation>el perfil de color del trabajo no describe imágenes; los colores no se convierten</translation>
    </message>
    <message>
        <source>the colour profile cannot be used; the colours are not converted</source>
        <translation>no se puede utilizar el perfil de color; los colores no se convierten</translation>
    </message>
    <message>
        <source>the colours cannot be converted to sRGB; their values are taken for sRGB as they are</source>
        <translation>no se pueden convertir los colores a sRGB; sus valores se toman tal cual como sRGB</translation>
    </message>
    <message>
        <source>the file is HDR; the result has the brightness of common screens</source>
        <translation>el archivo es HDR; el resultado tiene el brillo de las pantallas habituales</translation>
    </message>
    <message>
        <source>its values are complex numbers, which are no colours</source>
        <translation>sus valores son números complejos, que no son colores</translation>
    </message>
    <message>
        <source>its kind of colours is not supported: %1</source>
        <translation>su tipo de color no es compatible: %1</translation>
    </message>
    <message>
        <source>its kind of colours is not supported</source>
        <translation>su tipo de color no es compatible</translation>
    </message>
    <message>
        <source>what the file says of its colours is damaged or unknown and is not used</source>
        <translation>los datos de color del archivo están dañados o son desconocidos y no se utilizan</translation>
    </message>
    <message>
        <source>the file&apos;s header is damaged</source>
        <translation>la cabecera del archivo está dañada</translation>
    </message>
    <message>
        <source>the file holds no picture data, or refers to another file for them</source>
        <translation>el archivo no contiene datos de imagen o remite a otro archivo</translation>
    </message>
    <message>
        <source>the file&apos;s header does not fit its picture</source>
        <translation>la cabecera del archivo no corresponde a su imagen</translation>
    </message>
    <message>
        <source>colour space %1</source>
        <translation>espacio de color %1</translation>
    </message>
    <message>
        <source>colours of method %1</source>
        <translation>colores del método %1</translation>
    </message>
    <message>
        <source>its colours are of a kind that is not supported (%1)</source>
        <translation>sus colores son de un tipo no compatible (%1)</translation>
    </message>
    <message>
        <source>it has %1 channels and does not say what they are</source>
        <translation>tiene %1 canales y no indica cuáles son</translation>
    </message>
    <message>
        <source>the transparency of a CMYK picture is left out</source>
        <translation>se omite la transparencia de una imagen CMYK</translation>
    </message>
    <message>
        <source>it has %1 channels; only the first %2 are used</source>
        <translation>tiene %1 canales; solo se utilizan los primeros %2</translation>
    </message>
    <message>
        <source>the header of the picture data is damaged</source>
        <translation>la cabecera de los datos de imagen está dañada</translation>
    </message>
    <message>
        <source>it uses %1, which is not supported</source>
        <translation>utiliza algo no compatible: %1</translation>
    </message>
    <message>
        <source>the file ends after %1 % of the picture</source>
        <translation>el archivo termina tras el %1 % de la imagen</translation>
    </message>
    <message>
        <source>an extension of JPEG 2000 (marker %1)</source>
        <translation>una extensión de JPEG 2000 (marcador %1)</translation>
    </message>
    <message>
        <source>two kinds of coding in one picture</source>
        <translation>dos tipos de codificación en una imagen</translation>
    </message>
    <message>
        <source>an unknown kind of coding</source>
        <translation>un tipo de codificación desconocido</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canales</translation>
    </message>
    <message>
        <source>%1 bits a channel</source>
        <translation>%1 bits por canal</translation>
    </message>
    <message>
        <source>the file ends before the picture does</source>
        <translation>el archivo termina antes que la imagen</translation>
    </message>
    <message>
        <source>the picture data are damaged</source>
        <translation>los datos de imagen están dañados</translation>
    </message>
    <message>
        <source>%1 % of the picture are missing</source>
        <translation>falta el %1 % de la imagen</translation>
    </message>
    <message>
        <source>packed headers of tiles that are not in order</source>
        <translation>cabeceras empaquetadas de teselas desordenadas</translation>
    </message>
    <message>
        <source>out of memory while decoding (%1)</source>
        <translation>memoria insuficiente al decodificar (%1)</translation>
    </message>
    <message>
        <source>it is coded in a way that is not supported (%1)</source>
        <translation>está codificado de un modo no compatible (%1)</translation>
    </message>
    <message>
        <source>the picture data are damaged (%1)</source>
        <translation>los datos de imagen están dañados (%1)</translation>
    </message>
    <message>
        <source>it has %1 pages; only the first is used</source>
        <translation>tiene %1 páginas; solo se utiliza la primera</translation>
    </message>
    <message>
        <source>the file lacks its last bytes, but all of the picture is there</source>
        <translation>al archivo le faltan los últimos bytes, pero la imagen está completa</translation>
    </message>
    <message>
        <source>decoding takes %1 MiB of memory%2; a worker may use %3 MiB</source>
        <translation>decodificar necesita %1 MiB de memoria%2; un proceso de trabajo puede usar %3 MiB</translation>
    </message>
    <message>
        <source>, because the picture is not divided into tiles</source>
        <translation>, porque la imagen no está dividida en teselas</translation>
    </message>
    <message>
        <source>it is a lossless or hierarchical JPEG file, which is not supported</source>
        <translation>es un archivo JPEG sin pérdida o jerárquico, que no es compatible</translation>
    </message>
    <message>
        <source>it is a JPEG file of %1 bits a channel; only 8 are supported</source>
        <translation>es un archivo JPEG de %1 bits por canal; solo se admiten 8</translation>
    </message>
    <message>
        <source>the file ends before all details of the picture</source>
        <translation>el archivo termina antes de completar los detalles de la imagen</translation>
    </message>
    <message>
        <source>the file ends before its picture begins</source>
        <translation>el archivo termina antes de que empiece la imagen</translation>
    </message>
    <message>
        <source>the file lacks its last bytes; the picture is whole</source>
        <translation>al archivo le faltan los últimos bytes; la imagen está completa</translation>
    </message>
    <message>
        <source>the picture has more pixels than any limit</source>
        <translation>la imagen tiene más píxeles que cualquier límite</translation>
    </message>
    <message>
        <source>the file is damaged: its picture cannot be decoded</source>
        <translation>el archivo está dañado: no se puede decodificar la imagen</translation>
    </message>
    <message>
        <source>the file ends before its picture is complete</source>
        <translation>el archivo termina antes de que la imagen esté completa</translation>
    </message>
    <message>
        <source>the file is damaged: it has no picture</source>
        <translation>el archivo está dañado: no contiene ninguna imagen</translation>
    </message>
    <message>
        <source>decoding %1 x %2 pixels takes more than a worker may use</source>
        <translation>decodificar %1 x %2 píxeles necesita más de lo que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>no decoder knows this kind of file</source>
        <translation>ningún decodificador conoce este tipo de archivo</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are more than the limit of %3 megapixels</source>
        <translation>%1 x %2 píxeles superan el límite de %3 megapíxeles</translation>
    </message>
    <message>
        <source>the decoder does not know this camera&apos;s files</source>
        <translation>el decodificador no conoce los archivos de esta cámara</translation>
    </message>
    <message>
        <source>the file ends before its picture data does, or the data is damaged</source>
        <translation>el archivo termina antes que los datos de imagen, o los datos están dañados</translation>
    </message>
    <message>
        <source>the file lacks picture data: it is cut off, or has been emptied</source>
        <translation>al archivo le faltan datos de imagen: está cortado o se ha vaciado</translation>
    </message>
    <message>
        <source>its header gives no size of the picture</source>
        <translation>su cabecera no indica el tamaño de la imagen</translation>
    </message>
    <message>
        <source>its sides of %1 and %2 pixels are too long</source>
        <translation>sus lados de %1 y %2 píxeles son demasiado largos</translation>
    </message>
    <message>
        <source>its tiles have no size</source>
        <translation>sus teselas no tienen tamaño</translation>
    </message>
    <message>
        <source>its tiles are too large</source>
        <translation>sus teselas son demasiado grandes</translation>
    </message>
    <message>
        <source>channels of %1 bits are not supported</source>
        <translation>no se admiten canales de %1 bits</translation>
    </message>
    <message>
        <source>its compression (number %1) is not supported</source>
        <translation>su compresión (número %1) no es compatible</translation>
    </message>
    <message>
        <source>JPEG compression of %1 bits a channel is not supported</source>
        <translation>no se admite la compresión JPEG de %1 bits por canal</translation>
    </message>
    <message>
        <source>it holds undeveloped data of a camera; such files are read under the name .dng</source>
        <translation>contiene datos de cámara sin revelar; esos archivos se leen con la extensión .dng</translation>
    </message>
    <message>
        <source>its kind of colours (number %1) is not supported</source>
        <translation>su tipo de color (número %1) no es compatible</translation>
    </message>
    <message>
        <source>it has %1 channels beside its colours and its transparency, which are left out</source>
        <translation>tiene %1 canales además de sus colores y su transparencia, que se omiten</translation>
    </message>
    <message>
        <source>it has inks of its own; only cyan, magenta, yellow and black can be read</source>
        <translation>tiene tintas propias; solo se pueden leer cian, magenta, amarillo y negro</translation>
    </message>
    <message>
        <source>it has fewer channels than its kind of colours needs</source>
        <translation>tiene menos canales de los que necesita su tipo de color</translation>
    </message>
    <message>
        <source>Lab colours of %1 bits a channel are not supported</source>
        <translation>no se admiten colores Lab de %1 bits por canal</translation>
    </message>
    <message>
        <source>palettes of %1 bits are not supported</source>
        <translation>no se admiten paletas de %1 bits</translation>
    </message>
    <message>
        <source>its way of storing colours (colour differences in uncompressed tiles) is not supported</source>
        <translation>su forma de guardar los colores (diferencias de color en teselas sin comprimir) no es compatible</translation>
    </message>
    <message>
        <source>its way of storing colours is not supported: %1</source>
        <translation>su forma de guardar los colores no es compatible: %1</translation>
    </message>
    <message>
        <source>its strips or tiles have no size that makes sense</source>
        <translation>sus tiras o teselas no tienen un tamaño razonable</translation>
    </message>
    <message>
        <source>its strips or tiles need more memory than a worker may use</source>
        <translation>sus tiras o teselas necesitan más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>its palette is missing</source>
        <translation>falta su paleta de colores</translation>
    </message>
    <message>
        <source>the picture %1 cannot be read: %2</source>
        <translation>no se puede leer la imagen %1: %2</translation>
    </message>
    <message>
        <source>the text would be too large at a size of %1 pixels</source>
        <translation>el texto sería demasiado grande con un tamaño de %1 píxeles</translation>
    </message>
    <message>
        <source>the text has no letters that could be drawn</source>
        <translation>el texto no tiene caracteres que se puedan dibujar</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as %3 needs more memory than a worker may use</source>
        <translation>escribir %1 x %2 píxeles como %3 necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use</source>
        <translation>escribir %1 x %2 píxeles como JPEG XL necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>the background picture %1 cannot be read: %2</source>
        <translation>no se puede leer la imagen de fondo %1: %2</translation>
    </message>
    <message>
        <source>the frame of %1 x %2 pixels is above the limit of %3 pixels</source>
        <translation>el marco de %1 x %2 píxeles supera el límite de %3 píxeles</translation>
    </message>
    <message>
        <source>the margins leave nothing of the frame free and have no effect</source>
        <translation>los márgenes no dejan libre nada del marco y no tienen efecto</translation>
    </message>
    <message>
        <source>metadata is left out: %1</source>
        <translation>se omiten los metadatos: %1</translation>
    </message>
    <message>
        <source>%1 files cannot hold metadata; it is left out</source>
        <translation>los archivos %1 no admiten metadatos; se omiten</translation>
    </message>
    <message>
        <source>%1 metadata of %2 bytes does not fit into a %3 file and is left out</source>
        <translation>los metadatos %1 de %2 bytes no caben en un archivo %3 y se omiten</translation>
    </message>
    <message>
        <source>EXIF cannot be removed from the result</source>
        <translation>no se puede eliminar EXIF del resultado</translation>
    </message>
    <message>
        <source>the result may have its EXIF block twice</source>
        <translation>el resultado puede tener dos veces su bloque EXIF</translation>
    </message>
    <message>
        <source>the result is too large for all of its metadata to be added; some is left out</source>
        <translation>el resultado es demasiado grande para añadir todos sus metadatos; algunos se omiten</translation>
    </message>
    <message>
        <source>metadata cannot be written: %1</source>
        <translation>no se pueden escribir los metadatos: %1</translation>
    </message>
    <message>
        <source>%1 cannot be written and are left out</source>
        <translation>no se pueden escribir y se omiten: %1</translation>
    </message>
    <message>
        <source>the notes of the camera&apos;s maker</source>
        <translation>las notas del fabricante de la cámara</translation>
    </message>
    <message>
        <source>EXIF metadata</source>
        <translation>metadatos EXIF</translation>
    </message>
    <message>
        <source>IPTC metadata</source>
        <translation>metadatos IPTC</translation>
    </message>
    <message>
        <source>XMP metadata</source>
        <translation>metadatos XMP</translation>
    </message>
    <message>
        <source>metadata cannot be read and is left out: %1</source>
        <translation>no se pueden leer los metadatos y se omiten: %1</translation>
    </message>
    <message>
        <source>effect &quot;%1&quot;: %2</source>
        <translation>efecto «%1»: %2</translation>
    </message>
    <message>
        <source>it cannot be applied to the picture</source>
        <translation>no se puede aplicar a la imagen</translation>
    </message>
    <message>
        <source>an effect or the frame cannot be applied to the picture</source>
        <translation>no se puede aplicar un efecto o el marco a la imagen</translation>
    </message>
    <message>
        <source>the encoder for %1 failed</source>
        <translation>falló el codificador de %1</translation>
    </message>
    <message>
        <source>this installation has no encoder for %1, or not for this depth</source>
        <translation>esta instalación no tiene codificador de %1, o no para esta profundidad de bits</translation>
    </message>
    <message>
        <source>%1 cannot hold CMYK, which the job&apos;s colour profile asks for</source>
        <translation>%1 no admite CMYK, que exige el perfil de color del trabajo</translation>
    </message>
    <message>
        <source>%1 x %2 pixels: %3 holds at most %4 on a side</source>
        <translation>%1 x %2 píxeles: %3 admite como máximo %4 por lado</translation>
    </message>
    <message>
        <source>the colour profile does not fit into the %1 file; the result is sRGB</source>
        <translation>el perfil de color no cabe en el archivo %1; el resultado es sRGB</translation>
    </message>
    <message>
        <source>it has %1 pages; only the main one is used</source>
        <translation>tiene %1 páginas; solo se utiliza la principal</translation>
    </message>
    <message>
        <source>it has a gain map, which the result lacks: highlights are no longer brighter on HDR screens</source>
        <translation>tiene un mapa de ganancia que falta en el resultado: las luces ya no son más brillantes en pantallas HDR</translation>
    </message>
    <message>
        <source>the result of %1 x %2 pixels would be above the limit of %3 megapixels</source>
        <translation>el resultado de %1 x %2 píxeles superaría el límite de %3 megapíxeles</translation>
    </message>
    <message>
        <source>%1 files cannot hold a colour profile; the result is sRGB</source>
        <translation>los archivos %1 no admiten un perfil de color; el resultado es sRGB</translation>
    </message>
    <message>
        <source>the result is sRGB instead of CMYK</source>
        <translation>el resultado es sRGB en lugar de CMYK</translation>
    </message>
    <message>
        <source>the file is stored in a way that its decoder cannot read</source>
        <translation>el archivo está guardado de un modo que su decodificador no puede leer</translation>
    </message>
    <message>
        <source>the file ends before the picture is complete</source>
        <translation>el archivo termina antes de que la imagen esté completa</translation>
    </message>
    <message>
        <source>the file is damaged after %1 % of the picture</source>
        <translation>el archivo está dañado a partir del %1 % de la imagen</translation>
    </message>
    <message>
        <source>the file is damaged; no part of the picture can be read</source>
        <translation>el archivo está dañado; no se puede leer ninguna parte de la imagen</translation>
    </message>
    <message>
        <source>the file is damaged; its header cannot be read</source>
        <translation>el archivo está dañado; no se puede leer su cabecera</translation>
    </message>
    <message>
        <source>it needs more memory than a worker may use</source>
        <translation>necesita más memoria de la que puede usar un proceso de trabajo</translation>
    </message>
    <message>
        <source>its data make no sense</source>
        <translation>sus datos no tienen sentido</translation>
    </message>
    <message>
        <source>the picture cannot be processed</source>
        <translation>no se puede procesar la imagen</translation>
    </message>
    <message>
        <source>the job cannot be read</source>
        <translation>no se puede leer el trabajo</translation>
    </message>
    <message>
        <source>no worker can be started to look at the pictures: %1</source>
        <translation>no se puede iniciar ningún proceso de trabajo para examinar las imágenes: %1</translation>
    </message>
    <message>
        <source>the folder cannot be opened</source>
        <translation>no se puede abrir la carpeta</translation>
    </message>
    <message>
        <source>%1 is a dangling link</source>
        <translation>%1 es un enlace sin destino</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder</source>
        <translation>%1 no es ni un archivo ni una carpeta</translation>
    </message>
    <message>
        <source>%1 is in the job already.</source>
        <translation>%1 ya está en el trabajo.</translation>
    </message>
    <message>
        <source>%1 is nested too deeply for a job.</source>
        <translation>%1 está anidado demasiado profundamente para un trabajo.</translation>
    </message>
    <message>
        <source>%1 has a name that is not valid UTF-8; rename it to use it.</source>
        <translation>%1 tiene un nombre que no es UTF-8 válido; cámbielo para usarlo.</translation>
    </message>
    <message>
        <source>%1 has a name with a character that a job cannot hold; rename it to use it.</source>
        <translation>%1 tiene en su nombre un carácter que un trabajo no admite; cámbielo para usarlo.</translation>
    </message>
    <message>
        <source>%1 is a dangling link.</source>
        <translation>%1 es un enlace sin destino.</translation>
    </message>
    <message>
        <source>%1 leads back to %2; it is not followed.</source>
        <translation>%1 vuelve a %2; no se sigue.</translation>
    </message>
    <message>
        <source>%1 is the folder %2, which is in the job already.</source>
        <translation>%1 es la carpeta %2, que ya está en el trabajo.</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>se ignora %1: %2</translation>
    </message>
    <message>
        <source>its results go to %1</source>
        <translation>sus resultados van a %1</translation>
    </message>
    <message>
        <source>there is no interrupted run in %1</source>
        <translation>no hay ninguna ejecución interrumpida en %1</translation>
    </message>
    <message>
        <source>the run that was interrupted in %1 is of another job: its inputs, options or files differ</source>
        <translation>la ejecución interrumpida en %1 es de otro trabajo: difieren sus entradas, opciones o archivos</translation>
    </message>
    <message>
        <source>%1 runs were interrupted in %2, none of them of this job</source>
        <translation>se interrumpieron %1 ejecuciones en %2, ninguna de este trabajo</translation>
    </message>
    <message>
        <source>%1 is damaged; remove it to start the run anew</source>
        <translation>%1 está dañado; elimínelo para empezar la ejecución de nuevo</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>its XML is nested too deeply, or declares what a job must not declare</source>
        <translation>su XML está anidado demasiado profundamente o declara algo que un trabajo no puede declarar</translation>
    </message>
    <message>
        <source>it does not begin with &lt;!DOCTYPE batch&gt;</source>
        <translation>no empieza con &lt;!DOCTYPE batch&gt;</translation>
    </message>
    <message>
        <source>the job %1 cannot be read: %2</source>
        <translation>no se puede leer el trabajo %1: %2</translation>
    </message>
    <message>
        <source>the job %1 is larger than %2 MiB</source>
        <translation>el trabajo %1 ocupa más de %2 MiB</translation>
    </message>
    <message>
        <source>%1 is not a batch job: it is not UTF-8 text</source>
        <translation>%1 no es un trabajo por lotes: no es texto UTF-8</translation>
    </message>
    <message>
        <source>%1 is not a batch job: %2</source>
        <translation>%1 no es un trabajo por lotes: %2</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 ya existe</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>no output folder</source>
        <translation>falta la carpeta de salida</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>no hay imágenes</translation>
    </message>
    <message>
        <source>the run in %1 has just been finished</source>
        <translation>la ejecución en %1 acaba de terminar</translation>
    </message>
    <message>
        <source>it is still running</source>
        <translation>todavía está en curso</translation>
    </message>
    <message>
        <source>the folder cannot be written</source>
        <translation>no se puede escribir en la carpeta</translation>
    </message>
    <message>
        <source>the same job is already running into %1</source>
        <translation>el mismo trabajo ya se está ejecutando en %1</translation>
    </message>
    <message>
        <source>the run in %1 cannot be resumed: %2</source>
        <translation>no se puede reanudar la ejecución en %1: %2</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; must end with .csv or .json</source>
        <translation>el nombre «%1» debe terminar en .csv o .json</translation>
    </message>
    <message>
        <source>it begins like a %1 file, but its extension is not known</source>
        <translation>empieza como un archivo %1, pero su extensión no se conoce</translation>
    </message>
    <message>
        <source>the report %1 cannot be written: %2</source>
        <translation>no se puede escribir el informe %1: %2</translation>
    </message>
    <message>
        <source>written with a warning: %1</source>
        <translation>escrito con una advertencia: %1</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operación no permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>No es una carpeta</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nombre de archivo demasiado largo</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tubería rota</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Demasiados niveles de enlaces simbólicos</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>por ciento</translation>
    </message>
    <message>
        <source>how many of the darkest and of the brightest pixels may clip</source>
        <translation>cuántos de los píxeles más oscuros y más claros pueden recortarse</translation>
    </message>
    <message>
        <source>together keeps colours as they are; each for itself removes a cast</source>
        <translation>together conserva los colores; each elimina una dominante</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>standard deviation of the blur in the result; 0 does nothing</source>
        <translation>desviación estándar del desenfoque en el resultado; 0 no hace nada</translation>
    </message>
    <message>
        <source>width on the left</source>
        <translation>ancho a la izquierda</translation>
    </message>
    <message>
        <source>height at the top</source>
        <translation>alto arriba</translation>
    </message>
    <message>
        <source>width on the right</source>
        <translation>ancho a la derecha</translation>
    </message>
    <message>
        <source>height at the bottom</source>
        <translation>alto abajo</translation>
    </message>
    <message>
        <source>of the four; percent is of the picture&apos;s short side, at most 100</source>
        <translation>de los cuatro; percent se refiere al lado corto de la imagen, como máximo 100</translation>
    </message>
    <message>
        <source>of the border; with transparency the result has an alpha channel</source>
        <translation>del borde; con transparencia el resultado tiene canal alfa</translation>
    </message>
    <message>
        <source>shift of every value; 100 turns black into white</source>
        <translation>desplazamiento de cada valor; 100 convierte el negro en blanco</translation>
    </message>
    <message>
        <source>-100 is flat grey, 50 doubles all differences</source>
        <translation>-100 es gris uniforme, 50 duplica todas las diferencias</translation>
    </message>
    <message>
        <source>below 0 softens</source>
        <translation>por debajo de 0 suaviza</translation>
    </message>
    <message>
        <source>size of the structures in the result</source>
        <translation>tamaño de las estructuras en el resultado</translation>
    </message>
    <message>
        <source>which values are mapped; a grey picture has no single colours and stays as it is</source>
        <translation>qué valores se transforman; una imagen en escala de grises no tiene colores separados y queda igual</translation>
    </message>
    <message>
        <source>differences of this size begin to count as edges</source>
        <translation>las diferencias de este tamaño empiezan a contar como bordes</translation>
    </message>
    <message>
        <source>how far neighbours are taken in, in the result</source>
        <translation>hasta dónde se incluyen los píxeles vecinos, en el resultado</translation>
    </message>
    <message>
        <source>stops</source>
        <translation>pasos</translation>
    </message>
    <message>
        <source>how much; 1 doubles the light</source>
        <translation>cuánto; 1 duplica la luz</translation>
    </message>
    <message>
        <source>horizontal swaps left and right</source>
        <translation>horizontal intercambia izquierda y derecha</translation>
    </message>
    <message>
        <source>luminance weighs the light, luma the stored values, average is their plain mean</source>
        <translation>luminance pondera la luz, luma los valores guardados, average es su media simple</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>grados</translation>
    </message>
    <message>
        <source>120 turns red towards green</source>
        <translation>120 gira el rojo hacia el verde</translation>
    </message>
    <message>
        <source>this value and those below become black</source>
        <translation>este valor y los inferiores se vuelven negros</translation>
    </message>
    <message>
        <source>this value and those above become white</source>
        <translation>este valor y los superiores se vuelven blancos</translation>
    </message>
    <message>
        <source>above 1 brightens the tones between them</source>
        <translation>por encima de 1 aclara los tonos intermedios</translation>
    </message>
    <message>
        <source>the .cube file, with a table of one or three dimensions</source>
        <translation>el archivo .cube, con una tabla de una o tres dimensiones</translation>
    </message>
    <message>
        <source>0 leaves the picture as it is</source>
        <translation>0 deja la imagen tal cual</translation>
    </message>
    <message>
        <source>between the entries of a table of three dimensions</source>
        <translation>entre las entradas de una tabla de tres dimensiones</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>niveles</translation>
    </message>
    <message>
        <source>steps from black to white</source>
        <translation>niveles de negro a blanco</translation>
    </message>
    <message>
        <source>multiples of 90 keep every pixel as it is</source>
        <translation>los múltiplos de 90 conservan cada píxel tal cual</translation>
    </message>
    <message>
        <source>fills the corners; with transparency the result has an alpha channel</source>
        <translation>rellena las esquinas; con transparencia el resultado tiene canal alfa</translation>
    </message>
    <message>
        <source>-100 leaves grey, 100 doubles the strength</source>
        <translation>-100 deja solo gris, 100 duplica la intensidad</translation>
    </message>
    <message>
        <source>standard deviation of the mask in the result</source>
        <translation>desviación estándar de la máscara en el resultado</translation>
    </message>
    <message>
        <source>how much of the difference to the mask is added</source>
        <translation>cuánto se suma de la diferencia con la máscara</translation>
    </message>
    <message>
        <source>differences below stay as they are</source>
        <translation>las diferencias menores no cambian</translation>
    </message>
    <message>
        <source>how much the weakest colours change</source>
        <translation>cuánto cambian los colores más débiles</translation>
    </message>
    <message>
        <source>of the corners; -100 is black, 100 is white</source>
        <translation>de las esquinas; -100 es negro, 100 es blanco</translation>
    </message>
    <message>
        <source>where it begins on the way from the centre to a corner</source>
        <translation>dónde empieza en el recorrido del centro a una esquina</translation>
    </message>
    <message>
        <source>length of the transition on the same way</source>
        <translation>longitud de la transición en el mismo recorrido</translation>
    </message>
    <message>
        <source>the picture that is laid over, best with transparency</source>
        <translation>la imagen que se superpone, mejor con transparencia</translation>
    </message>
    <message>
        <source>width of the mark; in percent of the picture&apos;s width</source>
        <translation>ancho de la marca; en porcentaje del ancho de la imagen</translation>
    </message>
    <message>
        <source>space to the sides of the picture, and between tiles</source>
        <translation>espacio hasta los lados de la imagen y entre repeticiones</translation>
    </message>
    <message>
        <source>of size and margin; a margin in percent is of the picture&apos;s short side; percent is at most 100</source>
        <translation>de size y margin; margin en porcentaje se refiere al lado corto de la imagen; percent es como máximo 100</translation>
    </message>
    <message>
        <source>0 is invisible</source>
        <translation>0 es invisible</translation>
    </message>
    <message>
        <source>where the mark stands</source>
        <translation>dónde está la marca</translation>
    </message>
    <message>
        <source>repeats the mark over the whole picture</source>
        <translation>repite la marca por toda la imagen</translation>
    </message>
    <message>
        <source>of the letters</source>
        <translation>de las letras</translation>
    </message>
    <message>
        <source>height of a line of text; in percent of the picture&apos;s short side</source>
        <translation>altura de una línea de texto; en porcentaje del lado corto de la imagen</translation>
    </message>
    <message>
        <source>above 0 warmer, below 0 cooler</source>
        <translation>por encima de 0 más cálido, por debajo más frío</translation>
    </message>
    <message>
        <source>above 0 more magenta, below 0 greener</source>
        <translation>por encima de 0 más magenta, por debajo más verde</translation>
    </message>
    <message>
        <source>keep every pixel, but for a last step of rounding</source>
        <translation>conservar cada píxel, salvo un último redondeo</translation>
    </message>
    <message>
        <source>higher is slower and better</source>
        <translation>más alto es más lento y mejor</translation>
    </message>
    <message>
        <source>keep every pixel as it is</source>
        <translation>conservar cada píxel tal cual</translation>
    </message>
    <message>
        <source>higher is better and larger</source>
        <translation>más alto es mejor y más grande</translation>
    </message>
    <message>
        <source>shows a coarse picture first while it loads</source>
        <translation>muestra primero una imagen aproximada mientras se carga</translation>
    </message>
    <message>
        <source>resolution of colour; auto is 4:4:4 from quality 90</source>
        <translation>resolución del color; auto es 4:4:4 a partir de calidad 90</translation>
    </message>
    <message>
        <source>bits a channel; by default those of the input, as far as the format has them: %1</source>
        <translation>bits por canal; por omisión los de la entrada, si el formato los admite: %1</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>bits</translation>
    </message>
    <message>
        <source>which metadata is kept</source>
        <translation>qué metadatos se conservan</translation>
    </message>
    <message>
        <source>colour under transparency that the format cannot hold</source>
        <translation>color bajo la transparencia que el formato no admite</translation>
    </message>
    <message>
        <source>gives the result the input&apos;s modification time</source>
        <translation>da al resultado la fecha de modificación de la entrada</translation>
    </message>
    <message>
        <source>keep every pixel that can be seen</source>
        <translation>conservar cada píxel visible</translation>
    </message>
</context>
</TS>
