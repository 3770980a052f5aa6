<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>necesita %1, que esta impresora no tiene</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>no con %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 pasaría a %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>un folleto se imprime por las dos caras</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;resora:</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Pr&amp;eajuste:</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>Juegos completos uno tras otro, no todas las copias de cada página</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>De 1 a %1; se aplica %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 sigue vigente</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>Ancho del papel</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Alto del papel</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValue</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1: digits only</source>
        <translation>%1: solo cifras</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2 caracteres</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: de %2 a %3 caracteres</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: de %2 a %3</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValueForm</name>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(entrada estándar)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>Añadir y quitar documentos</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>&amp;Elegir otros archivos…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>Quitar %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>Esa contraseña no abre %1.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 está protegido con una contraseña.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>el servidor de impresión pide una contraseña y no se dio ninguna</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>no se encuentra, así que no se puede crear ningún folleto; instale también este filtro</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>está vacío, así que no hay nada que imprimir</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>solo se puede imprimir una vez, y «-» aparece más de una vez</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>es una carpeta, no un archivo PPD</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>no tiene la página %1: su número de páginas es %2</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>salida estándar</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>es el propio documento, que se perdería; indique otro archivo</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>no se encuentra; instale el paquete «cups»</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>el filtro %1 terminó con el estado %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>el filtro %1 se interrumpió por la señal %2</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>el filtro %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>el filtro %1 tiene permisos poco seguros</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>el filtro %1 no está disponible: %2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>necesita una contraseña; imprímalo desde un programa que lo abra con esa contraseña</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>quien lo creó lo cifró y no permite que se imprima</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>su tipo es desconocido; imprima un archivo PDF, PostScript, de texto o de imagen</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>ningún filtro imprime el tipo %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>los filtros terminaron con el estado %1</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>los filtros no produjeron nada con él</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>solo se leyó una parte antes de que se cancelara el trabajo</translation>
    </message>
    <message>
        <source>job</source>
        <translation>trabajo</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>está vacío, así que no se ha enviado ningún trabajo</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1; imprima otra vez y sus hojas se crearán en este equipo</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>el servidor de impresión la pide otra vez; imprima desde un archivo</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>el controlador del servidor no puede crear folletos</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>al servidor le falta el controlador de la impresora y detiene todos los trabajos</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>«PluginInterface» debe ser un número</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>hecho para la interfaz de complementos %1, este programa tiene la %2: instale el complemento que le corresponde</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>«Executable» debe indicar el archivo de código del complemento</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>«Executable» debe ser un archivo dentro del paquete, no «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>falta el código del complemento</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>no existe ese paquete de complemento (una carpeta)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>«PrincipalClass» debe nombrar la clase del complemento</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>no se puede cargar el código del complemento (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>no tiene fábrica para la clase «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>la fábrica del complemento rechazó su paquete</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>pertenece a otro usuario, cuyo código se ejecutaría como suyo; un complemento debe ser de usted o del administrador</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>otros pueden escribirlo, y su código se ejecutaría como suyo; quíteles ese derecho (chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>no es un archivo PPD válido (%1)</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>no es un preajuste: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>«%1» debe ser un texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>«%1» debe ser un objeto</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>la opción «%1» debe tener una elección en forma de texto</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>no es un preajuste: se espera un objeto JSON</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>nombre del preajuste</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>está vacío; dé un nombre al preajuste</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>no puede contener saltos de línea ni caracteres de control</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>preajuste «%1»</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>no se puede crear</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>el actual está dañado y se deja como está (%1); bórrelo antes</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>contiene un preajuste con otro nombre: «%1»</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>ya hay uno con ese nombre</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>el servidor de impresión pide una contraseña</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>el servidor de impresión no aceptó la contraseña del usuario «%1», dada %2 veces</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>el servidor de impresión envió una respuesta que no se puede leer</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>el servidor de impresión dejó de responder; inténtelo de nuevo cuando funcione</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>el servidor de impresión no terminó su respuesta; inténtelo más tarde o pregunte a quien lo administra</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>nombra una impresora que no existe: «%1»</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>el servidor de impresión no da la descripción de la impresora (%1)</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>ningún servidor de impresión tiene ese nombre</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>allí no responde ningún servidor de impresión</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>allí no responde ningún servidor de impresión (%1)</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>se cortó la conexión con el servidor de impresión</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>se cortó la conexión con el servidor de impresión (%1)</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>el servidor de impresión no tiene esa cola ni ese trabajo</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>el servidor de impresión no lo permite al usuario «%1»</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>la cola no acepta trabajos por ahora</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>el servidor de impresión no respondió</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>no es un intervalo de páginas; escriba por ejemplo 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>no es un tique: se espera JSON (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadero o falso</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>un número con decimales</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>no es un tique: se espera un objeto JSON</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>la clave «%1» debe ser un texto o un número entero, no %2</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>ocupa más de 1 MB, más que cualquier tique o preajuste</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>el descriptor de archivo no es válido</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>tubería rota</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>conexión rechazada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>el otro extremo cerró la conexión</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>error de entrada/salida</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>no se puede llegar a la red</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>no hay ruta hasta el equipo</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>no queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>el archivo o la carpeta no existe</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>la operación sigue en curso</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>la operación no está permitida</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>el sistema de archivos es de solo lectura</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>está dañado sin remedio</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>no tiene páginas, así que no hay nada que imprimir</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>no se puede escribir una copia que los filtros puedan abrir; libere espacio para archivos temporales</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>las hojas de varios documentos no se pueden reunir en un PDF; imprímalos uno por uno</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>no existe esa impresora en %1; elija otra</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>no hay impresora predeterminada; elija una</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>no hay ninguno con ese nombre; elija otro</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>no tiene ninguna cara de las que pide %1: su número de caras es %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>«%1» tiene un significado propio en la lista; elija otro</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
</context>
<context>
    <name>orvek::History</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>Como el trabajo</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>Bordes de página</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>Medianil</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Compensación</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>Papel de destino</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Otros ajustes</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::HistoryButtons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>&amp;Imprimir en un archivo…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>Detiene el trabajo</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>Cierra la ventana sin imprimir</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>Deteniendo el trabajo</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>Elija un archivo o suéltelo aquí</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abriendo…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>Protegido con una contraseña</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>No se puede imprimir</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>Aún no hay ningún documento</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 necesita su contraseña</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 está dañado sin remedio</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 no tiene páginas</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 no se puede leer</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Introducir contraseña…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Elegir archivo…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Elegir documentos</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>Añadir documentos</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>Se canceló el trabajo %1 en %2</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Enviado a %1, trabajo %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Cara anterior</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Cara siguiente</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>Varias hojas a la vez (Ctrl y rueda: zoom)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>Varias hojas a la vez</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>No se imprime ninguna página del documento.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Leyendo el documento…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>No se conocen las páginas del documento: una muestra</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 hoja</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n hoja</numerusform>
            <numerusform>%1 × %n hojas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 hoja</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n hoja</numerusform>
            <numerusform>%n hojas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>Aún no hay ningún documento: una muestra</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Doble cara</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Doble cara</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 con copias sin intercalar: se graparían juntas páginas iguales</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Un folleto de %1 hojas es más de lo que la impresora pliega a la vez: como máximo %2</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>Un folleto se imprime por las dos caras, lo que no se puede combinar con %1</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>El documento no tiene la página %1: su número de páginas es %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>No existe ninguna de las caras pedidas: el número de caras es %1</translation>
    </message>
</context>
<context>
    <name>orvek::LabelText</name>
    <message>
        <source>%1:</source>
        <comment>a label before its field</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>orvek::NoticeBar</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Cerrar el aviso</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>Aviso anterior</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>Aviso siguiente</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>&amp;Deshacer %n paso</numerusform>
            <numerusform>&amp;Deshacer %n pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>Deshace la elección con todo lo que cambió y lo que vino después</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Cambiado; por sí mismo: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Elección</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>Solo cambiadas</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Buscar opciones</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 opción cambiada</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n opción cambiada</numerusform>
            <numerusform>%n opciones cambiadas</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>Ninguna opción cambiada</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>No se encontró ninguna opción</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>Esta impresora no tiene más opciones</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Intro abre las elecciones de una opción o la conmuta, Supr la restablece</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Vertical, invertido</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Horizontal, invertido</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Como en el documento</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>Un intervalo de páginas</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Intervalo de páginas</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>p. ej. 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>Escriba las páginas que desea imprimir, por ejemplo 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>El servidor de impresión %1 pide un nombre y una contraseña.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>El servidor de impresión no aceptó ese nombre y esa contraseña.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Iniciar sesión</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>Guardar y administrar preajustes</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Cambiar nombre…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último usado</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Ya hay un preajuste «%1». ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Cambiar nombre del preajuste</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>¿Eliminar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>Recordar los &amp;últimos ajustes</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>esta impresora no tiene la opción «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>«%1» es equipamiento instalado, que un preajuste no cambia</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>«%1» no tiene la elección «%2» en esta impresora</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>«%1» admite en esta impresora %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>esta impresora no hace folletos</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>la impresora predeterminada</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>¿Imprimir de todos modos?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>Las hojas se pueden crear en este equipo y enviarse terminadas.</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>Las páginas de separación se omitirían.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>&amp;Imponer aquí e imprimir</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>&amp;Preparar aquí e imprimir</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>El trabajo se canceló.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>Aún se puede imprimir en un archivo: elija Archivo como impresora.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Preguntando a %1…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>Abrir una descripción de impresora</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>Descripciones de impresora (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>No todo es compatible con esta impresora:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>No todo el preajuste es compatible con esta impresora:</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>No se ha elegido ninguna impresora</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Ningún documento</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>Impreso en %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Enviado a %1, trabajo %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>La impresora ya no existe</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 ya no está en el servidor de impresión. Elija otra impresora.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predeterminada)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>Archivo (%1)</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>Archivo (necesita una descripción de impresora)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>No hay impresoras: %1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>Abrir descripción de impresora…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Imprime en un archivo</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>Elija una impresora o abra una descripción de impresora</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>Preguntando por las impresoras…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>Ya no está en el servidor de impresión</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>usada recientemente</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>Ninguna impresora coincide</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>Buscar nombre, descripción o ubicación</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Imprimiendo: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Imprimiendo el documento %1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>Conectando con la impresora</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>Hay una cubierta abierta</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>Otros pueden cambiar el filtro de la impresora, y no se ejecuta</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>Falta el filtro de la impresora</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Hay una puerta abierta</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Falta una bandeja de papel</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>El tóner o la tinta se han agotado</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>Queda poco tóner o tinta</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>El contenedor de residuos está casi lleno</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>El contenedor de residuos está lleno</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>No hay papel</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Atasco de papel</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Queda poco papel</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>Hay que poner papel</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Deteniéndose</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>La impresora está desconectada</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>La impresora informa de un problema</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>La bandeja de salida está casi llena</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>La bandeja de salida está llena</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Falta la bandeja de salida</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>La impresora está apagada</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La memoria de la impresora está llena</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>Una parte de la impresora está detenida</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>La impresora no responde</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>El tóner se ha agotado</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Queda poco tóner</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Estado desconocido</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, no acepta trabajos</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>Imprimir en un archivo</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>PDF de las hojas (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>En el lenguaje de la impresora (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>Impreso en %1.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>Folleto se cambió a «Desactivado»: no se puede combinar con varias páginas por hoja</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, reverso</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>página %1 a la izquierda</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>página %1 a la derecha</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>en blanco</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Hoja %1 de %2, anverso</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Hoja %1 de %2, reverso</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 grapa</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n grapa</numerusform>
            <numerusform>%n grapas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 agujero</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n agujero</numerusform>
            <numerusform>%n agujeros</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>Hoja %1, anverso: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>Hoja %1, reverso: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>plegado a caballete</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>plegado simple</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>Una grapa, vertical</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>Una grapa, horizontal</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>Dos grapas, vertical</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>Dos grapas, horizontal</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Grapado a caballete</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Plegado en acordeón</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Plegado de doble ventana</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Plegado de ventana</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Plegado por la mitad</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Medio plegado en Z</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Plegado de ventana a la izquierda</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Plegado de carta</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Plegado paralelo</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Plegado de póster</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Plegado de ventana a la derecha</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Plegado en Z</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Plegado en Z para planos</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>Plegado a caballete</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapar</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforar</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Portada</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Encuadernación</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Grapado en el borde</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>Recubrimiento</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>Laminado</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dos grapas</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tres grapas</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>Una grapa</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>Dos agujeros</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>Tres agujeros</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>Cuatro agujeros</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>Varios agujeros</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>Un agujero</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Después de cada página</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Después de cada documento</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Después de cada copia</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Después del trabajo</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 ppp</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 ppp</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>Tamaño del papel para alimentación manual</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>Equipamiento instalado</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Otras opciones</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Doble cara</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja intermedia</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bandeja trasera</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bandeja izquierda</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bandeja derecha</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bandeja especial</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>Bandeja multiuso</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bandeja de gran capacidad</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentador de sobres</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bandeja principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bandeja alternativa</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja de fotos</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja de discos</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Casete</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>Alimentación por tractor</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Casete %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollo %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>Bandeja estándar</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Cara abajo</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Cara arriba</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Apilador</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Buzón</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>Bandeja del finalizador</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>Bandeja de folletos</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Apilador %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Buzón %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Reciclado</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Membretado</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Perforado</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Preimpreso</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bond</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Grueso</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fino</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Estucado</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Cartulina</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Transparencias</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Sobres</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Brillante</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papel fotográfico</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico de alto brillo</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico mate</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico satinado</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Mate</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>De color</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>Rugoso</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>Vitela</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Algodón</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>Carta (EE. UU.)</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>Legal (EE. UU.)</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Ejecutivo</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>Folio</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Postal</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Postal doble</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>Sobre n.º 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>Sobre n.º 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Sobre DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Sobre C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Sobre C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Sobre C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Sobre B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Sobre Monarch</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>Sobre A2</translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation>B4 (ISO)</translation>
    </message>
    <message>
        <source>B5 (ISO)</source>
        <translation>B5 (ISO)</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4 (JIS)</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>B6 (JIS)</source>
        <translation>B6 (JIS)</translation>
    </message>
    <message>
        <source>A3 oversize</source>
        <translation>A3 extra</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 pulg.</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 pulg.</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 pulg.</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 pulg.</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 pulg.</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>Foolscap (EE. UU.)</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sin bordes</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, girado</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, extra</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, márgenes anchos</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>Blanco y negro puro</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Color (CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>Color (CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Color (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>Color (16 bits)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>Blanco y negro (16 bits)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Óptima</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Primera página primero</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>Predeterminado de la impresora</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Grapado</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Plegado</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perforación</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Orden de páginas</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>Cambio de bandeja</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>Hojas separadoras</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>Ahorro de tóner</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>Color del papel</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>Gramaje del papel</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo páginas impares</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo páginas pares</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Llenar la página</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>A la derecha y hacia abajo</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>A la izquierda y hacia abajo</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>A la derecha y hacia arriba</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>A la izquierda y hacia arriba</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Hacia abajo y a la derecha</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Hacia abajo y a la izquierda</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Hacia arriba y a la derecha</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Hacia arriba y a la izquierda</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Clasificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Alto secreto</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>No clasificado</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>De inmediato</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Al liberarse</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>De día</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Por la tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>El fin de semana</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>En el segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>En el tercer turno</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Páginas pares e impares</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>Orden en la hoja</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Página de separación</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>Comenzar a imprimir</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>Juego por juego</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Página por página</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Orden de las copias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Orden de páginas</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (cambiado)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>Todos los ajustes del trabajo; primero los que se cambiaron</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>Las copias se fijaron en 1: con menos no hay trabajo</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>Las copias se fijaron en %1: ningún trabajo hace más</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 sigue vigente</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>«%1» se leyó como %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 se cambió a «%2»: no se puede combinar con «%3»</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 no se cambió a «%2»: no se puede combinar con «%3»</translation>
    </message>
</context>
</TS>
