<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>braucht %1, was dieser Drucker nicht hat</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>nicht mit %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 würde auf %2 gestellt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>eine Broschüre wird beidseitig gedruckt</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Drucke&amp;r:</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Voreinst&amp;ellung:</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>Ganze Sätze nacheinander statt aller Exemplare einer Seite</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>Von 1 bis %1; es gilt %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 gilt weiterhin</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>Papierbreite</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Papierhöhe</translation>
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
        <translation>%1: nur Ziffern</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2 Zeichen</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: %2 bis %3 Zeichen</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
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
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(Standardeingabe)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>Dokumente hinzufügen und entfernen</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>&amp;Andere Dateien auswählen …</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>%1. %2 entfernen</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>Dieses Passwort öffnet %1 nicht.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 ist mit einem Passwort geschützt.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>ist leer, daher wurde kein Auftrag gesendet</translation>
    </message>
    <message>
        <source>job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>kann nur einmal gedruckt werden, und „-“ ist mehrmals angegeben</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>ist ein Ordner, keine PPD-Datei</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>die Filter haben daraus nichts erzeugt</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>nicht gefunden, daher entsteht keine Broschüre; installieren Sie auch diesen Filter</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>nicht gefunden; installieren Sie das Paket „cups“</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>ist leer, daher gibt es nichts zu drucken</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>vor dem Abbruch wurde nur ein Teil gelesen</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>der Filter %1 endete mit Status %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>der Filter %1 stürzte mit Signal %2 ab</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>der Filter %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>der Filter %1 hat unsichere Zugriffsrechte</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>der Filter %1 ist nicht verfügbar: %2</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>unbekannter Dateityp; drucken Sie eine PDF-, PostScript-, Text- oder Bilddatei</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>kein Filter druckt den Typ %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>die Filter endeten mit Status %1</translation>
    </message>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>der Druckserver verlangt ein Passwort, und keines wurde angegeben</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Datenübergabe unterbrochen</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindungsaufbau abgelehnt</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Verbindung von der Gegenseite beendet</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Wartezeit für die Verbindung abgelaufen</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei ist zu groß</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>das Netzwerk ist nicht erreichbar</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>kein Weg zum Rechner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>auf dem Gerät ist kein Platz mehr</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>der Vorgang läuft noch</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>der Vorgang ist nicht erlaubt</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Dateisystem ist nur lesbar</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>keine Voreinstellung: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>„%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>„%1“ muss ein Objekt sein</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>die Option „%1“ muss eine Auswahl als Text haben</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>keine Voreinstellung: ein JSON-Objekt wird erwartet</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>Voreinstellung „%1“</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>die vorhandene ist beschädigt und bleibt, wie sie ist (%1); löschen Sie sie zuerst</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>enthält eine Voreinstellung mit anderem Namen: „%1“</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>es gibt schon eine mit diesem Namen</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>ist leer; geben Sie der Voreinstellung einen Namen</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>darf keine Zeilenumbrüche oder Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>der Druckserver verlangt ein Passwort</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>der Druckserver hat das Passwort von „%1“ nicht angenommen, das %2-mal angegeben wurde</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>der Druckserver gibt die Druckerbeschreibung nicht heraus (%1)</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>nennt einen Drucker, den es nicht gibt: „%1“</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>der Druckserver hat keine solche Warteschlange und keinen solchen Auftrag</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>der Druckserver erlaubt es „%1“ nicht</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>die Warteschlange nimmt zurzeit keine Aufträge an</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>der Druckserver hat nicht geantwortet</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>dort antwortet kein Druckserver (%1)</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>der Druckserver antwortet nicht mehr; versuchen Sie es erneut, sobald er läuft</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>die Verbindung zum Druckserver ist abgebrochen (%1)</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>kein Ticket: JSON wird erwartet (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>eine Zahl mit Nachkommastellen</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>kein Ticket: ein JSON-Objekt wird erwartet</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>der Schlüssel „%1“ muss ein Text oder eine ganze Zahl sein, nicht %2</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>kein Seitenbereich; Beispiel: 1-3,7</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>keine gültige PPD-Datei (%1)</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>„PluginInterface“ muss eine Zahl sein</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>für die Plug-in-Schnittstelle %1 gemacht, dieses Programm hat %2: installieren Sie das passende Plug-in</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>„Executable“ muss die Programmdatei des Plug-ins nennen</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>„Executable“ muss eine Datei im Bündel sein, nicht „%1“</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>die Programmdatei des Plug-ins fehlt</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>kein solches Plug-in-Bündel (ein Ordner)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>„PrincipalClass“ muss die Klasse des Plug-ins nennen</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>die Programmdatei des Plug-ins kann nicht geladen werden (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>hat keine Fabrik für die Klasse „%1“</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>die Fabrik des Plug-ins hat ihr Bündel abgelehnt</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>ist größer als 1 MB, was kein Ticket und keine Voreinstellung ist</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>gehört einem anderen Benutzer, dessen Programm unter Ihrem Namen liefe; ein Plug-in muss Ihnen oder dem Systemverwalter gehören</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>kann von anderen beschrieben werden, deren Programm unter Ihrem Namen liefe; nehmen Sie ihnen dieses Recht (chmod go-w)</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>Dateideskriptor ist ungültig</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>hat keine Seite %1: die Zahl seiner Seiten ist %2</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>ist das Dokument selbst, das dabei verloren ginge; geben Sie eine andere Datei an</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>es braucht ein Kennwort; drucken Sie es aus einem Programm, das es mit dem Kennwort öffnet</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>wer es erstellt hat, hat es verschlüsselt und erlaubt das Drucken nicht</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1; drucken Sie noch einmal, dann entstehen die Bögen auf diesem Rechner</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>der Treiber des Servers kann keine Broschüren herstellen</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>dem Server fehlt der Treiber des Druckers, und er hält jeden Auftrag an</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>der Druckserver verlangt sie noch einmal; drucken Sie stattdessen aus einer Datei</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>der Druckserver hat eine Antwort gesendet, die sich nicht lesen lässt</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>der Druckserver ist mit seiner Antwort nicht fertig geworden; versuchen Sie es später erneut, oder fragen Sie, wer ihn betreibt</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>kein Druckserver trägt diesen Namen</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>dort antwortet kein Druckserver</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>die Verbindung zum Druckserver ist abgebrochen</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>ist nicht reparierbar beschädigt</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>hat keine Seiten, es gibt also nichts zu drucken</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>eine Kopie, die die Filter öffnen können, kann nicht geschrieben werden; schaffen Sie Platz für temporäre Dateien</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>die Blätter mehrerer Dokumente können nicht zu einem PDF zusammengefügt werden; drucken Sie sie einzeln</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>auf %1 gibt es keinen solchen Drucker; wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>es gibt keinen Standarddrucker; wählen Sie einen Drucker aus</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>es gibt keine dieses Namens; wählen Sie eine andere</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>hat keine Seite, die %1 meint: die Zahl der bedruckten Seiten ist %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>„%1“ hat in der Liste eine eigene Bedeutung; wählen Sie einen anderen</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierzufuhr</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
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
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>Wie der Auftrag</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>Seitenrahmen</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>Bundsteg</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Bundzuwachs</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>Zielpapierformat</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Andere Einstellungen</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
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
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>In &amp;Datei drucken…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>Hält den Auftrag an</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>Schließt das Fenster, ohne zu drucken</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>Der Auftrag wird angehalten</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>Datei auswählen oder hier ablegen</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Wird geöffnet …</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>Mit Passwort geschützt</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>Kann nicht gedruckt werden</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>Es gibt noch kein Dokument</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 braucht sein Passwort</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 ist nicht reparierbar beschädigt</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 hat keine Seiten</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Passwort eingeben …</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Datei auswählen …</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Dokumente auswählen</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>Dokumente hinzufügen</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>Auftrag %1 auf %2 wurde abgebrochen</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>An %1 gesendet, Auftrag %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Vorige Blattseite</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Nächste Blattseite</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>Mehrere Blätter zugleich (Strg und Mausrad: Zoom)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>Mehrere Blätter zugleich</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>Keine Seite des Dokuments wird gedruckt.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Das Dokument wird gelesen …</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>Seiten des Dokuments unbekannt: ein Beispiel</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 Blatt</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 Blatt</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n Blatt</numerusform>
            <numerusform>%1 × %n Blatt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blatt</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>Es gibt noch kein Dokument: ein Beispiel</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Zweiseitig</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Zweiseitig</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>Eine Broschüre wird beidseitig gedruckt, was sich nicht mit %1 verträgt</translation>
    </message>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 bei unsortierten Exemplaren: Es würden gleiche Seiten zusammengeheftet</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Eine Broschüre aus %1 Blatt ist mehr, als der Drucker auf einmal falzt: höchstens %2</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>Das Dokument hat keine Seite %1: die Zahl seiner Seiten ist %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>Keine der gewünschten Seiten gibt es: die Zahl der bedruckten Seiten ist %1</translation>
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
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Hinweis schließen</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>Früherer Hinweis</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>Späterer Hinweis</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>%n Schritt &amp;rückgängig</numerusform>
            <numerusform>%n Schritte &amp;rückgängig</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>Nimmt die Wahl mit allem zurück, was sie geändert hat, und was danach kam</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Geändert; sonst: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>Nur geänderte</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Optionen suchen</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 Option geändert</translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>Keine Option geändert</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>Keine Option gefunden</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>Dieser Drucker hat keine weiteren Optionen</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n Option geändert</numerusform>
            <numerusform>%n Optionen geändert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Eingabe öffnet die Auswahl einer Option oder schaltet sie um, Entf setzt sie zurück</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Hochformat, kopfüber</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Querformat, kopfüber</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Wie im Dokument</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>Ein Seitenbereich</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Seitenbereich</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>z. B. 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>Geben Sie die Seiten an, zum Beispiel 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>Der Druckserver %1 verlangt einen Namen und ein Passwort.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>Der Druckserver hat diesen Namen mit diesem Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Anmelden</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>Voreinstellungen sichern und verwalten</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Sichern als…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Name der Voreinstellung:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung sichern</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Es gibt schon eine Voreinstellung „%1“. Ersetzen?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Voreinstellung „%1“ löschen?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>Letzte &amp;Einstellungen merken</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>dieser Drucker hat keine Option „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>„%1“ ist eingebaute Ausstattung; eine Voreinstellung ändert sie nicht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>„%1“ hat bei diesem Drucker keine Auswahl „%2“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>„%1“ nimmt bei diesem Drucker %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>dieser Drucker stellt keine Broschüren her</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>Trotzdem drucken?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Der Auftrag wurde abgebrochen.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>In eine Datei lässt sich weiterhin drucken: Wählen Sie Datei als Drucker.</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>Nicht alles passt zu diesem Drucker:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>Nicht die ganze Voreinstellung passt zu diesem Drucker:</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>Druckerbeschreibung öffnen</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>Druckerbeschreibungen (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>the default printer</source>
        <translation>der Standarddrucker</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>%1 wird gefragt …</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>Trennseiten entfielen dabei.</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>Die Bögen können auf diesem Rechner hergestellt und fertig gesendet werden.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>&amp;Hier ausschießen und drucken</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>&amp;Hier vorbereiten und drucken</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>Es ist kein Drucker ausgewählt</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>In %1 gedruckt</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>An %1 gesendet, Auftrag %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>Der Drucker ist nicht mehr da</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 ist nicht mehr auf dem Druckserver. Wählen Sie einen anderen Drucker.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>Datei (%1)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>Keine Drucker: %1</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Druckt in eine Datei</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>Datei (braucht eine Druckerbeschreibung)</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>Druckerbeschreibung öffnen…</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>Drucker wählen oder Druckerbeschreibung öffnen</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>Die Drucker werden abgefragt …</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>Nicht mehr auf dem Druckserver</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>kürzlich verwendet</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>Kein Drucker passt dazu</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>Name, Beschreibung oder Standort suchen</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>Druckt …</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Druckt: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Druckt Dokument %1 von %2: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>Verbindung zum Drucker wird hergestellt</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>Eine Abdeckung ist offen</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>Der Filter des Druckers kann von anderen geändert werden und läuft nicht</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>Der Filter des Druckers fehlt</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Eine Klappe ist offen</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Ein Papierfach fehlt</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>Toner oder Tinte ist leer</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>Toner oder Tinte geht zur Neige</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>Der Resttonerbehälter ist fast voll</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>Der Resttonerbehälter ist voll</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Kein Papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Wenig Papier</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>Papier muss eingelegt werden</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Wird angehalten</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>Der Drucker ist offline</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>Der Drucker meldet ein Problem</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>Das Ausgabefach ist fast voll</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>Das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Das Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>Der Drucker ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>Der Speicher des Druckers ist voll</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>Ein Teil des Druckers steht still</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>Der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>Toner ist leer</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Toner geht zur Neige</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, nimmt keine Aufträge an</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>In eine Datei drucken</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>PDF der Blätter (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>In der Sprache des Druckers (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>In %1 gedruckt.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>Broschüre wurde auf „Aus“ gestellt: nicht vereinbar mit mehreren Seiten pro Blatt</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, hinten</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>Seite %1 links</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>Seite %1 rechts</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Blatt %1 von %2, vorn</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Blatt %1 von %2, hinten</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 Klammer</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>Blatt %1, vorn: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>Blatt %1, hinten: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>Sattelfalz</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>Einfachfalz</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n Klammer</numerusform>
            <numerusform>%n Klammern</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 Loch</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n Loch</numerusform>
            <numerusform>%n Löcher</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>Eine Klammer, Hochformat</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>Eine Klammer, Querformat</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>Zwei Klammern, Hochformat</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>Zwei Klammern, Querformat</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Rückenheftung</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Zickzackfalz</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doppelter Fensterfalz</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Fensterfalz</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Halbfalz</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Halber Z-Falz</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Fensterfalz links</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Wickelfalz</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Parallelfalz</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Posterfalz</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Fensterfalz rechts</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-Falz</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Z-Falz für Pläne</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>Sattelfalz</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Kantenheftung</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>Beschichtung</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>Laminierung</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Zwei Klammern</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Drei Klammern</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>Eine Klammer</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>Zwei Löcher</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>Drei Löcher</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>Vier Löcher</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>Viele Löcher</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>Ein Loch</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Nach jeder Seite</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Nach jedem Dokument</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Nach jedem Exemplar</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Nach dem Auftrag</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
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
        <translation>Papierformat bei manueller Zufuhr</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>Installierte Ausstattung</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Zweiseitig</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Oberes Fach</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mittleres Fach</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Unteres Fach</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Hinteres Fach</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Seitliches Fach</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Linkes Fach</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Rechtes Fach</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Fach in der Mitte</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manuelle Zufuhr</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Zusatzzufuhr</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>Mehrzweckfach</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Großraumfach</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Umschlagzufuhr</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Ausweichfach</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofach</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Fach für Datenträger</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kassette</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>Traktorzufuhr</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fach %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kassette %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>Standardfach</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Stapler</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Mailbox</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>Finisherfach</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>Broschürenfach</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stapler %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Mailbox %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Recyclingpapier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefkopf</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Vorgelocht</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Vorgedruckt</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bond-Papier</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Schweres Papier</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Dünnes Papier</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Gestrichen</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Umschläge</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Glanzpapier</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Hochglanz-Fotopapier</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Mattes Fotopapier</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Seidenmattes Fotopapier</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Matt</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Farbiges Papier</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>Raues Papier</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Registerblätter</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>Velin</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Endlospapier</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Feinpapier</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Baumwollpapier</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US-Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US-Legal</translation>
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
        <translation>US-Statement</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>US-Executive</translation>
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
        <translation>Postkarte</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Doppelpostkarte</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>Umschlag Nr. 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>Umschlag Nr. 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Umschlag DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Umschlag C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Umschlag C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Umschlag C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Umschlag B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Umschlag Monarch</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>Umschlag A2</translation>
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
        <translation>A3 mit Überformat</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 Zoll</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 Zoll</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 Zoll</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 Zoll</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 Zoll</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>US-Foolscap</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, randlos</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, gedreht</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, Überformat</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, breite Ränder</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>Reines Schwarzweiß</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Farbe (CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>Farbe (CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Farbe (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>Farbe (16 Bit)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>Schwarzweiß (16 Bit)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
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
        <translation>Erste Seite zuerst</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderes</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierzufuhr</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Heftung</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Falzung</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Lochung</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Endverarbeitung</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Seitenfolge</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>Fachwechsel</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Spiegelbild</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>Trennblätter</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>Toner sparen</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>Papierfarbe</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>Papiergewicht</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Nur ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Nur gerade Seiten</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>An Seite anpassen</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Seite ausfüllen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>Nach rechts, dann abwärts</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Nach links, dann abwärts</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>Nach rechts, dann aufwärts</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>Nach links, dann aufwärts</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Abwärts, dann nach rechts</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Abwärts, dann nach links</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Aufwärts, dann nach rechts</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Aufwärts, dann nach links</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Verschlusssache</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Nach Freigabe</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Am Abend</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>In der Nacht</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In der zweiten Schicht</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In der dritten Schicht</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Dringend</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Gerade und ungerade</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>Anordnung auf dem Blatt</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Trennseite</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>Druckbeginn</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>Satz für Satz</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Seite für Seite</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Reihenfolge der Exemplare</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Seitenfolge</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (geändert)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>Alle Einstellungen des Auftrags, geänderte zuerst</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>Die Zahl der Exemplare wurde auf 1 gesetzt: weniger ist kein Auftrag</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>Die Zahl der Exemplare wurde auf %1 gesetzt: mehr macht kein Auftrag</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 gilt weiterhin</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>„%1“ wurde als %2 gelesen</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 wurde auf „%2“ gestellt: nicht vereinbar mit „%3“</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 wurde nicht auf „%2“ gestellt: nicht vereinbar mit „%3“</translation>
    </message>
</context>
</TS>
