<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>richiede %1, che questa stampante non ha</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>non con %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 verrebbe impostato su %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>un opuscolo viene stampato su entrambi i lati</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Sta&amp;mpante:</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Pr&amp;eimpostazione:</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>Serie complete una dopo l’altra, non tutte le copie di ogni pagina</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>Da 1 a %1; vale %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 resta valido</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>Larghezza carta</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Altezza carta</translation>
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
        <translation>%1: solo cifre</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2 caratteri</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: da %2 a %3 caratteri</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: da %2 a %3</translation>
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
        <translation>da %1 a %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 pagina</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n pagina</numerusform>
            <numerusform>%n pagine</numerusform>
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
        <translation>(standard input)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>Aggiungi e rimuovi documenti</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Aggiungi file…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>&amp;Scegli altri file…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>Rimuovi %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>Quella password non apre %1.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 è protetto da una password.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>il server di stampa chiede una password e non ne è stata data alcuna</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>non trovato, quindi non è possibile creare un opuscolo; installare anche questo filtro</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>è vuoto, quindi non c’è nulla da stampare</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>può essere stampato una sola volta, e «-» è indicato più volte</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>è una cartella, non un file PPD</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>non ha la pagina %1: il numero delle sue pagine è %2</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>è il documento stesso, che andrebbe perso; indicare un altro file</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>non trovato; installare il pacchetto «cups»</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>il filtro %1 è terminato con lo stato %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>il filtro %1 si è interrotto per il segnale %2</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>il filtro %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>il filtro %1 ha permessi non sicuri</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>il filtro %1 non è disponibile: %2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>richiede una password; stamparlo da un programma che lo apra con quella password</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>chi l’ha creato l’ha cifrato e non ne consente la stampa</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>il suo tipo è sconosciuto; stampare un file PDF, PostScript, di testo o immagine</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>nessun filtro stampa il tipo %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>i filtri sono terminati con lo stato %1</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>i filtri non ne hanno prodotto nulla</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>ne è stata letta solo una parte prima che il lavoro fosse annullato</translation>
    </message>
    <message>
        <source>job</source>
        <translation>lavoro</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>è vuoto, quindi non è stato inviato alcun lavoro</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1; stampare di nuovo e i fogli verranno preparati su questo computer</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>il server di stampa lo chiede di nuovo; stampare invece da un file</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>il driver del server non può creare opuscoli</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>al server manca il driver della stampante e ferma ogni lavoro</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>«PluginInterface» deve essere un numero</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>realizzato per l’interfaccia dei plug-in %1, questo programma ha la %2: installare il plug-in corrispondente</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>«Executable» deve indicare il file di codice del plug-in</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>«Executable» deve essere un file nel bundle, non «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>manca il codice del plug-in</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>nessun bundle di plug-in simile (una cartella)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>«PrincipalClass» deve indicare la classe del plug-in</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>impossibile caricare il codice del plug-in (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>non ha una factory per la classe «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>la factory del plug-in ha rifiutato il suo bundle</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>appartiene a un altro utente, il cui codice verrebbe eseguito a nome dell’utente attuale; un plug-in deve essere proprio o dell’amministratore</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>può essere scritto da altri, il cui codice verrebbe eseguito a nome dell’utente attuale; togliere loro questo diritto (chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>non è un file PPD valido (%1)</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>non è una preimpostazione: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>«%1» deve essere un testo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>«%1» deve essere un oggetto</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>l’opzione «%1» deve avere una scelta come testo</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>non è una preimpostazione: è atteso un oggetto JSON</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>nome della preimpostazione</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>è vuoto; dare un nome alla preimpostazione</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>non può contenere interruzioni di riga o caratteri di controllo</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>preimpostazione «%1»</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>impossibile crearlo</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>quella presente è danneggiata e resta com’è (%1); eliminarla prima</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>contiene una preimpostazione con un altro nome: «%1»</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>ne esiste già una con questo nome</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>il server di stampa chiede una password</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>il server di stampa non ha accettato la password dell’utente «%1», data %2 volte</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>il server di stampa ha inviato una risposta illeggibile</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>il server di stampa ha smesso di rispondere; riprovare quando sarà attivo</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>il server di stampa non ha concluso la risposta; riprovare più tardi o chiedere a chi lo gestisce</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>indica una stampante che non esiste: «%1»</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>il server di stampa non fornisce la descrizione della stampante (%1)</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>nessun server di stampa ha questo nome</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>lì non risponde alcun server di stampa</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>lì non risponde alcun server di stampa (%1)</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>la connessione al server di stampa si è interrotta</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>la connessione al server di stampa si è interrotta (%1)</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>il server di stampa non ha questa coda o questo lavoro</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>il server di stampa non lo consente all’utente «%1»</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>la coda al momento non accetta lavori</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>il server di stampa non ha risposto</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>non è un intervallo di pagine; scrivere per esempio 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>non è un ticket: è atteso JSON (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vero o falso</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>un elenco</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un oggetto</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>un numero con decimali</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>non è un ticket: è atteso un oggetto JSON</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>la chiave «%1» deve essere un testo o un numero intero, non %2</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>supera 1 MB, più di qualsiasi ticket o preimpostazione</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>il descrittore di file non è valido</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>pipe interrotta</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>connessione chiusa dall’altro capo</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>tempo di connessione scaduto</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>il file è troppo grande</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>errore di input/output</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>la rete non è raggiungibile</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>nessun percorso verso l’host</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>spazio esaurito sul dispositivo</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>file o cartella non trovati</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>l’operazione è ancora in corso</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>l’operazione non è consentita</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permesso negato</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>il file system è di sola lettura</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>troppi file aperti</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>è danneggiato in modo irreparabile</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>non ha pagine, quindi non c’è nulla da stampare</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>impossibile scrivere una copia che i filtri possano aprire; liberare spazio per i file temporanei</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>i fogli di più documenti non possono essere riuniti in un solo PDF; stamparli uno alla volta</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>nessuna stampante simile su %1; sceglierne un’altra</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>non c’è una stampante predefinita; sceglierne una</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>non ne esiste una con questo nome; sceglierne un’altra</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>non ha nessuna facciata richiesta da %1: il numero delle sue facciate è %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>«%1» ha un significato proprio nell’elenco; sceglierne un altro</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>Ultima pagina per prima</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Formato carta</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origine carta</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo di carta</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
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
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>Come il lavoro</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>Bordi delle pagine</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>Margine interno</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Compensazione</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>Carta finale</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Ultima pagina per prima</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Altre impostazioni</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>un altro</numerusform>
            <numerusform>altri %n</numerusform>
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
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>Stam&amp;pa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>Stam&amp;pa su file…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>Ferma il lavoro</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>Chiude la finestra senza stampare</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>Arresto del lavoro</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>Scegliere un file o rilasciarlo qui</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Apertura in corso…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>Protetto da una password</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>Impossibile stampare</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>Non c’è ancora alcun documento</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 richiede la sua password</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 è danneggiato in modo irreparabile</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 non ha pagine</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 è vuoto</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>impossibile leggere %1</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Inserisci password…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Scegli file…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Scegli documenti</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>Aggiungi documenti</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>Il lavoro %1 su %2 è stato annullato</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Inviato a %1, lavoro %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Facciata precedente</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Facciata successiva</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>Più fogli insieme (Ctrl e rotellina: zoom)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>Più fogli insieme</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>Non viene stampata alcuna pagina del documento.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lettura del documento…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>Le pagine del documento non sono note: un esempio</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 foglio</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n foglio</numerusform>
            <numerusform>%1 × %n fogli</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 foglio</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n foglio</numerusform>
            <numerusform>%n fogli</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>Non c’è ancora alcun documento: un esempio</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Fronte-retro</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Fronte-retro</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 con copie non fascicolate: verrebbero pinzate insieme pagine uguali</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Un opuscolo di %1 fogli supera quanto la stampante piega in una volta: al massimo %2</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>Un opuscolo viene stampato su entrambi i lati, il che non si può combinare con %1</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>Il documento non ha la pagina %1: il numero delle sue pagine è %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>Nessuna delle facciate richieste esiste: il numero delle facciate è %1</translation>
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
        <translation>Annu&amp;lla modifica</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Chiudi l’avviso</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>Avviso precedente</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>Avviso successivo</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>Annu&amp;lla %n modifica</numerusform>
            <numerusform>Annu&amp;lla %n modifiche</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>Annulla la scelta con tutto ciò che ha cambiato e quanto è seguito</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Modificata; di suo: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opzione</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Scelta</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>Solo modificate</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>Ripristina tutto</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Cerca opzioni</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 opzione modificata</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n opzione modificata</numerusform>
            <numerusform>%n opzioni modificate</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>Nessuna opzione modificata</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>Nessuna opzione trovata</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>Questa stampante non ha altre opzioni</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Invio apre le scelte di un’opzione o la commuta, Canc la ripristina</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Verticale, capovolto</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Orizzontale, capovolto</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Come nel documento</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Tutte le pagine</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>Un intervallo di pagine</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Intervallo di pagine</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>ad es. 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>Scrivere le pagine da stampare, per esempio 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>Il server di stampa %1 chiede un nome e una password.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>Il server di stampa non ha accettato quel nome e quella password.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>A&amp;ccedi</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>Preimpostazione</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>Salva e gestisci le preimpostazioni</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Salva con nome…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Rinomina…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ultima usata</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nome della preimpostazione:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Esiste già una preimpostazione «%1». Sostituirla?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Eliminare la preimpostazione «%1»?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>Ricorda le &amp;ultime impostazioni</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificata)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>questa stampante non ha l’opzione «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>«%1» è dotazione installata, che una preimpostazione non cambia</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>«%1» su questa stampante non ha la scelta «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>«%1» su questa stampante accetta %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>questa stampante non crea opuscoli</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>la stampante predefinita</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>Stampare comunque?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Stam&amp;pa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>I fogli possono essere preparati su questo computer e inviati finiti.</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>Le pagine di separazione verrebbero omesse.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>&amp;Imponi qui e stampa</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>&amp;Prepara qui e stampa</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Il lavoro è stato annullato.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>Si può ancora stampare su file: scegliere File come stampante.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Interrogazione di %1…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>Apri una descrizione della stampante</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>Descrizioni di stampanti (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lettura di %1…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>Non tutto è adatto a questa stampante:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>Non tutta la preimpostazione è adatta a questa stampante:</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>Nessuna stampante scelta</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Nessun documento</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>Stampato in %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Inviato a %1, lavoro %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>La stampante non è più presente</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 non è più presente sul server di stampa. Scegliere un’altra stampante.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predefinita)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>File (%1)</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>File (richiede una descrizione della stampante)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>Nessuna stampante: %1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>Apri descrizione della stampante…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Stampa su un file</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>Scegliere una stampante o aprire una descrizione della stampante</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>Ricerca delle stampanti…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>Non più presente sul server di stampa</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>usata di recente</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>Nessuna stampante corrisponde</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>Cerca nome, descrizione o posizione</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>pagina %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Stampa in corso: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Stampa del documento %1 di %2: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>Connessione alla stampante</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>Un coperchio è aperto</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>Il filtro della stampante può essere modificato da altri e non viene eseguito</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>Manca il filtro della stampante</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Uno sportello è aperto</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Manca un vassoio carta</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>Il toner o l’inchiostro è esaurito</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>Il toner o l’inchiostro sta per finire</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>Il contenitore di scarto è quasi pieno</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>Il contenitore di scarto è pieno</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Carta esaurita</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Carta inceppata</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Carta in esaurimento</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>Occorre inserire carta</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Arresto in corso</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>La stampante è offline</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>La stampante segnala un problema</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>Il vassoio di uscita è quasi pieno</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>Il vassoio di uscita è pieno</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Manca il vassoio di uscita</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>La stampante è spenta</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La memoria della stampante è piena</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>Una parte della stampante è ferma</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>La stampante non risponde</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>Il toner è esaurito</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Il toner sta per finire</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Stato sconosciuto</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, non accetta lavori</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>Stampato</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>PDF dei fogli (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>Nel linguaggio della stampante (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>Stampato in %1.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Mostra nella cartella</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>Opuscolo è stato impostato su «Disattivato»: non si può combinare con più pagine per foglio</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, retro</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>pagina %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>pagina %1 a sinistra</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>pagina %1 a destra</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>vuota</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Foglio %1 di %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Foglio %1 di %2, fronte</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Foglio %1 di %2, retro</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 punto metallico</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n punto metallico</numerusform>
            <numerusform>%n punti metallici</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 foro</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n foro</numerusform>
            <numerusform>%n fori</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>Foglio %1, fronte: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>Foglio %1, retro: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>piega a sella</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>piega singola</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>Un punto, verticale</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>Un punto, orizzontale</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>Due punti, verticale</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>Due punti, orizzontale</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Punto sella</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Piega a fisarmonica</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doppia piega a finestra</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Piega a finestra</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Piega a metà</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Mezza piega a Z</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Piega a finestra a sinistra</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Piega a lettera</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Piega parallela</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Piega a poster</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Piega a finestra a destra</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Piega a Z</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Piega a Z per disegni tecnici</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>Piega a sella</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinzatura</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Foratura</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Rilegatura</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Cucitura sul bordo</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Piegatura</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rifilatura</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Sfalsamento</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>Patinatura</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>Plastificazione</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Due punti</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tre punti</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>Un punto</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>Due fori</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>Tre fori</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>Quattro fori</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>Più fori</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>Un foro</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Dopo ogni pagina</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Dopo ogni documento</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Dopo ogni copia</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Dopo il lavoro</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>in alto a sinistra</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>in alto a destra</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>in basso a sinistra</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>in basso a destra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>a sinistra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a destra</translation>
    </message>
    <message>
        <source>top</source>
        <translation>in alto</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>in basso</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>Formato carta per alimentazione manuale</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Formato carta</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>Dotazione installata</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Vassoio superiore</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Vassoio intermedio</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Vassoio inferiore</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Vassoio posteriore</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Vassoio laterale</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Vassoio sinistro</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Vassoio destro</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Vassoio centrale</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentazione manuale</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Vassoio bypass</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>Vassoio multiuso</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Vassoio ad alta capacità</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentatore buste</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Vassoio principale</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Vassoio alternativo</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Vassoio foto</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Vassoio dischi</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Cassetto</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rotolo</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>Alimentazione a trattore</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Vassoio %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassetto %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rotolo %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>Vassoio standard</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Faccia in giù</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Faccia in su</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Impilatore</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Casella</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>Vassoio del finisher</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>Vassoio opuscoli</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Impilatore %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Casella %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Comune</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Riciclata</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Carta intestata</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Preforata</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Prestampata</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Carta bond</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Pesante</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Sottile</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Patinata</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Cartoncino</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Lucidi</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Buste</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Lucida</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Carta fotografica</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Carta fotografica extra lucida</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Carta fotografica opaca</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Carta fotografica semilucida</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Opaca</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Colorata</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>Ruvida</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Divisori</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>Velina</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Carta pregiata</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Cotone</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
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
        <translation>Executive</translation>
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
        <translation>Cartolina</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Cartolina doppia</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>Busta n. 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>Busta n. 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Busta DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Busta C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Busta C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Busta C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Busta B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Busta Monarch</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>Busta A2</translation>
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
        <translation>3 × 5 poll.</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 poll.</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 poll.</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 poll.</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 poll.</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>US Foolscap</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, senza bordi</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, ruotato</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, extra</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, margini ampi</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lato lungo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Lato corto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>Bianco e nero puro</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Colore (CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>Colore (CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Colore (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>Colore (16 bit)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>Bianco e nero (16 bit)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Bozza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Ottimale</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Veloce</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Prima pagina per prima</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Ultima pagina per prima</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>Predefinito della stampante</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origine carta</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo di carta</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Vassoio di uscita</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Pinzatura</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Piegatura</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Foratura</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Taglio</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordine delle pagine</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>Cambio vassoio</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Immagine speculare</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Levigatura</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>Fogli divisori</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>Risparmio toner</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>Colore della carta</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>Grammatura</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Tutte le pagine</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo pagine dispari</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo pagine pari</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>Adatta alla pagina</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Riempi la pagina</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Da sinistra a destra, poi in basso</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Da destra a sinistra, poi in basso</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>Da sinistra a destra, poi in alto</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>Da destra a sinistra, poi in alto</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>In basso, poi da sinistra a destra</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>In basso, poi da destra a sinistra</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>In alto, poi da sinistra a destra</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>In alto, poi da destra a sinistra</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classificato</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Riservato</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Segreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Segretissimo</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classificato</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Subito</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Al rilascio</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Di giorno</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Di sera</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Di notte</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Nel fine settimana</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Nel secondo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Nel terzo turno</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Pagine pari e dispari</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>Cambio di scala</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>Sequenza sul foglio</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Pagina di separazione</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>Inizio stampa</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>Serie per serie</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Pagina per pagina</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordine delle copie</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordine delle pagine</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Ultima pagina per prima</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (modificato)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>Tutte le impostazioni del lavoro; prima quelle modificate</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>Le copie sono state impostate su 1: con meno non c’è lavoro</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>Le copie sono state impostate su %1: nessun lavoro ne fa di più</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 resta valido</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>«%1» è stato letto come %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 è stato impostato su «%2»: non si può combinare con «%3»</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 non è stato impostato su «%2»: non si può combinare con «%3»</translation>
    </message>
</context>
</TS>
