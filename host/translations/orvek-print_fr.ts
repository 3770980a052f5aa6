<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>nécessite %1, que cette imprimante n’a pas</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>pas avec %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 passerait à %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>un livret s’imprime recto verso</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante&#xa0;:</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Préré&amp;glage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>Jeux entiers l’un après l’autre, et non toutes les copies de chaque page</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>De 1 à %1&#xa0;; %2 est en vigueur</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 reste en vigueur</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Hauteur du papier</translation>
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
        <translation>%1&#xa0;: chiffres uniquement</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1&#xa0;: %2 caractères</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1&#xa0;: %2 à %3 caractères</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1&#xa0;: %2 à %3</translation>
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
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(entrée standard)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>Ajouter et retirer des documents</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>&amp;Choisir d’autres fichiers…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>Retirer %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>Ce mot de passe n’ouvre pas %1.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>est vide, donc aucun travail n’a été envoyé</translation>
    </message>
    <message>
        <source>job</source>
        <translation>travail</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>ne peut être imprimée qu’une fois, et «&#xa0;-&#xa0;» est donné plusieurs fois</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>sortie standard</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>est un dossier, pas un fichier PPD</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>les filtres n’en ont rien tiré</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>introuvable, donc pas de livret possible&#xa0;; installez aussi ce filtre</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>introuvable&#xa0;; installez le paquet «&#xa0;cups&#xa0;»</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>est vide, donc il n’y a rien à imprimer</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>seule une partie a été lue avant l’annulation</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>le filtre %1 s’est arrêté avec l’état %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>le filtre %1 s’est interrompu sur le signal %2</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>le filtre %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>le filtre %1 a des droits d’accès non sûrs</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>le filtre %1 n’est pas disponible&#xa0;: %2</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>type de fichier inconnu&#xa0;; imprimez un fichier PDF, PostScript, texte ou image</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>aucun filtre n’imprime le type %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>les filtres se sont arrêtés avec l’état %1</translation>
    </message>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>le serveur d’impression demande un mot de passe, et aucun n’a été donné</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>relais brisé</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>connexion refusée</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>connexion fermée par le correspondant</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>délai de connexion dépassé</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>fichier trop grand</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>le réseau n’est pas accessible</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>aucun chemin vers l’hôte</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>il n’y a plus de place sur le périphérique</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>n’est pas un dossier</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>l’opération est en cours</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>opération non permise</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>pas un préréglage&#xa0;: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>«&#xa0;%1&#xa0;» doit être un texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>«&#xa0;%1&#xa0;» doit être un objet</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>l’option «&#xa0;%1&#xa0;» doit avoir un choix sous forme de texte</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>pas un préréglage&#xa0;: un objet JSON est attendu</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>préréglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>ne peut pas être créé</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>celui qui existe est endommagé et reste tel quel (%1)&#xa0;; supprimez-le d’abord</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>contient un préréglage d’un autre nom&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>il y en a déjà un de ce nom</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>nom du préréglage</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>est vide&#xa0;; donnez un nom au préréglage</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>ne peut contenir ni saut de ligne ni caractère de commande</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>le serveur d’impression demande un mot de passe</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>le serveur d’impression n’a pas accepté le mot de passe de l’utilisateur «&#xa0;%1&#xa0;», donné %2 fois</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>le serveur d’impression ne donne pas la description de l’imprimante (%1)</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>désigne une imprimante qui n’existe pas&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>le serveur d’impression n’a pas de file ni de travail de ce nom</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>le serveur d’impression ne le permet pas à l’utilisateur «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>la file n’accepte pas de travaux pour le moment</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>le serveur d’impression n’a pas répondu</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>aucun serveur d’impression n’y répond (%1)</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>le serveur d’impression ne répond plus&#xa0;; réessayez quand il fonctionnera</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>la connexion au serveur d’impression s’est rompue (%1)</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>pas un ticket&#xa0;: du JSON est attendu (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vrai ou faux</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>un nombre à virgule</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>pas un ticket&#xa0;: un objet JSON est attendu</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>la clé «&#xa0;%1&#xa0;» doit être un texte ou un entier, pas %2</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>n’est pas une plage de pages&#xa0;; exemple&#xa0;: 1-3,7</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>pas un fichier PPD valide (%1)</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>«&#xa0;PluginInterface&#xa0;» doit être un nombre</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>fait pour l’interface de module %1, ce programme a %2&#xa0;: installez le module qui lui correspond</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>«&#xa0;Executable&#xa0;» doit nommer le fichier de code du module</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>«&#xa0;Executable&#xa0;» doit être un fichier du paquet, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>le code du module manque</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>pas de paquet de module de ce nom (un dossier)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>«&#xa0;PrincipalClass&#xa0;» doit nommer la classe du module</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>le code du module ne peut pas être chargé (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>n’a pas de fabrique pour la classe «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>la fabrique du module a refusé son paquet</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>dépasse 1 Mo, ce qu’aucun ticket ni préréglage ne fait</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>appartient à un autre utilisateur, dont le code s’exécuterait en votre nom&#xa0;; un module doit être à vous ou à l’administrateur</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>peut être modifié par d’autres, dont le code s’exécuterait en votre nom&#xa0;; retirez-leur ce droit (chmod go-w)</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>descripteur de fichier non valide</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>n’a pas de page %1&#xa0;: le nombre de ses pages est %2</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>est le document lui-même, qui serait perdu&#xa0;; indiquez un autre fichier</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>il faut un mot de passe&#xa0;; imprimez-le depuis un programme qui l’ouvre avec ce mot de passe</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>son auteur l’a chiffré et ne permet pas de l’imprimer</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1&#xa0;; imprimez encore une fois, et les feuilles seront préparées sur cet ordinateur</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>le pilote du serveur ne sait pas faire de livrets</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>le serveur n’a pas le pilote de l’imprimante et arrête chaque tâche</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>le serveur d’impression la redemande&#xa0;; imprimez plutôt à partir d’un fichier</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>le serveur d’impression a envoyé une réponse illisible</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>le serveur d’impression n’a pas terminé sa réponse&#xa0;; réessayez plus tard ou adressez-vous à son administrateur</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>aucun serveur d’impression ne porte ce nom</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>aucun serveur d’impression n’y répond</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>la connexion au serveur d’impression s’est rompue</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>est endommagé et irréparable</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>n’a aucune page, il n’y a donc rien à imprimer</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>impossible d’écrire une copie que les filtres peuvent ouvrir&#xa0;; libérez de la place pour les fichiers temporaires</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>les feuilles de plusieurs documents ne peuvent être réunies en un seul PDF&#xa0;; imprimez-les un par un</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>aucune imprimante de ce nom sur %1&#xa0;; choisissez-en une autre</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>il n’y a pas d’imprimante par défaut&#xa0;; choisissez-en une</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>il n’en existe pas de ce nom&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>n’a aucune face que demande %1&#xa0;: le nombre de ses faces est %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>«&#xa0;%1&#xa0;» a un sens particulier dans la liste&#xa0;; choisissez-en un autre</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
</context>
<context>
    <name>orvek::History</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>Comme le travail</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Pages de droite à gauche</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>Cadre des pages</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>Petit fond</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Chasse</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Autres réglages</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::HistoryButtons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>Im&amp;primer dans un fichier…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>Arrête le travail</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>Ferme la fenêtre sans imprimer</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>Arrêt du travail</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>Choisissez un fichier ou déposez-le ici</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Ouverture…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>Protégé par un mot de passe</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>Ne peut pas être imprimé</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>Il n’y a pas encore de document</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 demande son mot de passe</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 est endommagé et irréparable</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 n’a aucune page</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 est illisible</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Saisir le mot de passe…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Choisir des documents</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>Ajouter des documents</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>La tâche %1 sur %2 a été annulée</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Envoyé à %1, tâche %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Face précédente</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Face suivante</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>Plusieurs feuilles à la fois (Ctrl et molette&#xa0;: zoom)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>Plusieurs feuilles à la fois</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>Aucune page du document n’est imprimée.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lecture du document…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>Pages du document inconnues&#xa0;: un exemple</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 feuille</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 feuille</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n feuille</numerusform>
            <numerusform>%1 × %n feuilles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n feuille</numerusform>
            <numerusform>%n feuilles</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>Il n’y a pas encore de document&#xa0;: un exemple</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>Un livret est imprimé recto verso, ce qui est incompatible avec %1</translation>
    </message>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 avec des copies non assemblées&#xa0;: des pages identiques seraient agrafées ensemble</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Un livret de %1 feuilles dépasse ce que l’imprimante plie en une fois&#xa0;: %2 au plus</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>Le document n’a pas de page %1&#xa0;: le nombre de ses pages est %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>Aucune des faces demandées n’existe&#xa0;: le nombre de faces est %1</translation>
    </message>
</context>
<context>
    <name>orvek::LabelText</name>
    <message>
        <source>%1:</source>
        <comment>a label before its field</comment>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>orvek::NoticeBar</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler la modification</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>Avis précédent</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>Avis suivant</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>Ann&amp;uler %n étape</numerusform>
            <numerusform>Ann&amp;uler %n étapes</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>Annule le choix avec tout ce qu’il a modifié et ce qui a suivi</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Modifié&#xa0;; sinon&#xa0;: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choix</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>Modifiées seulement</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>Tout rétablir</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Rechercher une option</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 option modifiée</translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>Aucune option modifiée</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>Aucune option trouvée</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>Cette imprimante n’a pas d’autres options</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n option modifiée</numerusform>
            <numerusform>%n options modifiées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Entrée ouvre les choix d’une option ou la bascule, Suppr la rétablit</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Portrait, retourné</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Paysage, retourné</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Comme dans le document</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>Une plage de pages</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Plage de pages</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>p. ex. 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>Indiquez les pages à imprimer, par exemple 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>Le serveur d’impression %1 demande un nom et un mot de passe.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>Le serveur d’impression n’a pas accepté ce nom et ce mot de passe.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Se connecter</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>Enregistrer et gérer les préréglages</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>Enregi&amp;strer sous…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernier utilisé</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Un préréglage «&#xa0;%1&#xa0;» existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Supprimer le préréglage «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>&amp;Mémoriser les derniers réglages</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>cette imprimante n’a pas d’option «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>«&#xa0;%1&#xa0;» est un équipement installé, qu’un préréglage ne change pas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de choix «&#xa0;%2&#xa0;» sur cette imprimante</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>«&#xa0;%1&#xa0;» de cette imprimante accepte %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>cette imprimante ne fait pas de livrets</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>Imprimer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primer</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Le travail a été annulé.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>Vous pouvez toujours imprimer dans un fichier&#xa0;: choisissez Fichier comme imprimante.</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>Tout ne convient pas à cette imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>Le préréglage ne convient pas entièrement à cette imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>Ouvrir une description d’imprimante</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>Descriptions d’imprimante (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>the default printer</source>
        <translation>l’imprimante par défaut</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Interrogation de %1…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>Les pages de séparation seraient omises.</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>Les feuilles peuvent être préparées sur cet ordinateur et envoyées toutes faites.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>&amp;Imposer ici et imprimer</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>&amp;Préparer ici et imprimer</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>Aucune imprimante n’est choisie</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>Imprimé dans %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Envoyé à %1, travail %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>L’imprimante n’existe plus</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 n’est plus sur le serveur d’impression. Choisissez une autre imprimante.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (par défaut)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>Fichier (%1)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>Aucune imprimante&#xa0;: %1</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Imprime dans un fichier</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>Fichier (nécessite une description d’imprimante)</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>Ouvrir une description d’imprimante…</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>Choisissez une imprimante ou ouvrez une description</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>Recherche des imprimantes…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>N’est plus sur le serveur d’impression</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>utilisée récemment</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>Aucune imprimante ne correspond</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>Chercher un nom, une description ou un lieu</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Impression&#xa0;: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Impression du document %1 sur %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>Connexion à l’imprimante</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>Un capot est ouvert</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>Le filtre de l’imprimante est modifiable par d’autres et n’est pas exécuté</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>Le filtre de l’imprimante manque</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Une porte est ouverte</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Un bac à papier manque</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>Plus de toner ni d’encre</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>Toner ou encre presque épuisé</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>Le bac de récupération est presque plein</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>Le bac de récupération est plein</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Plus de papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Bourrage papier</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Peu de papier</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>Du papier doit être chargé</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Arrêt en cours</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>L’imprimante est hors ligne</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>L’imprimante signale un problème</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>Le bac de sortie est presque plein</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>Le bac de sortie est plein</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Le bac de sortie manque</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>L’imprimante est éteinte</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La mémoire de l’imprimante est pleine</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>Une partie de l’imprimante est arrêtée</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>L’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>Plus de toner</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Toner presque épuisé</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, n’accepte pas de travaux</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>Imprimé</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>PDF des feuilles (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>Dans le langage de l’imprimante (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>Imprimé dans %1.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>Livret&#xa0;: passé à «&#xa0;Désactivé&#xa0;», incompatible avec plusieurs pages par feuille</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, verso</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>page %1 à gauche</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>page %1 à droite</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>vierge</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Feuille %1 sur %2, recto</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Feuille %1 sur %2, verso</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 agrafe</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>Feuille %1, recto&#xa0;: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>Feuille %1, verso&#xa0;: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>pli à cheval</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>pli simple</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n agrafe</numerusform>
            <numerusform>%n agrafes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 trou</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n trou</numerusform>
            <numerusform>%n trous</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>Une agrafe, portrait</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>Une agrafe, paysage</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>Deux agrafes, portrait</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>Deux agrafes, paysage</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Piqûre à cheval</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Pli accordéon</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Double pli fenêtre</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Pli fenêtre</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Pli en deux</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Demi-pli en Z</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Pli fenêtre à gauche</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Pli roulé</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Pli parallèle</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Pli affiche</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Pli fenêtre à droite</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Pli en Z</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Pli en Z pour plans</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>Pli à cheval</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafer</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforer</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Reliure</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Piqûre à plat</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>Vernissage</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>Plastification</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Deux agrafes</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Trois agrafes</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>Une agrafe</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>Deux trous</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>Trois trous</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>Quatre trous</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>Plusieurs trous</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>Un trou</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Après chaque page</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Après chaque document</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Après chaque exemplaire</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Après le travail</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>en haut à gauche</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>en haut à droite</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>en bas à gauche</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>en bas</translation>
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
        <translation>Format du papier en alimentation manuelle</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>Équipements installés</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bac supérieur</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bac central</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bac inférieur</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bac arrière</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bac latéral</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bac gauche</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bac droit</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bac du milieu</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Départ manuel</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>Bac polyvalent</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bac grande capacité</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Chargeur d’enveloppes</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bac principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bac alternatif</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bac photo</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Plateau pour disques</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Cassette</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>Alimentation par tracteur</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Magasin %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassette %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rouleau %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>Bac standard</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face imprimée vers le bas</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face imprimée vers le haut</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Empileur</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Boîte aux lettres</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>Bac du finisseur</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>Bac à livrets</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Empileur %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Boîte aux lettres %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Ordinaire</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Recyclé</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Perforé</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Préimprimé</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Papier bond</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Épais</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Couché</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Cartonné</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Transparents</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Enveloppes</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Brillant</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papier photo</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papier photo très brillant</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papier photo mat</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papier photo satiné</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Mat</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Papier couleur</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>Rugueux</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Intercalaires</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>Vélin</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papier fin</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Coton</translation>
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
        <translation>Tabloïd</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>US Statement</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>US Executive</translation>
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
        <translation>Carte postale</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Double carte postale</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>Enveloppe nº 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>Enveloppe nº 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Enveloppe DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Enveloppe C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Enveloppe C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Enveloppe C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Enveloppe B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Enveloppe Monarch</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>Enveloppe A2</translation>
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
        <translation>A3 allongé</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 po</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 po</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 po</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 po</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 po</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>US Foolscap</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sans marges</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, pivoté</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, grand format</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, grandes marges</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>Noir et blanc pur</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Couleur (CMJN)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>Couleur (CMJ)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Couleur (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>Couleur (16 bits)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>Noir et blanc (16 bits)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Optimale</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Première page en premier</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>Valeur de l’imprimante</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Agrafage</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Pliage</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordre des pages</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>Changement de bac</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Image miroir</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Négatif</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Lissage</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>Feuilles intercalaires</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>Économie de toner</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>Couleur du papier</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>Grammage</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Pages impaires seulement</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Pages paires seulement</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Remplir la page</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>À droite, puis vers le bas</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>À gauche, puis vers le bas</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>À droite, puis vers le haut</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>À gauche, puis vers le haut</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Vers le bas, puis à droite</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Vers le bas, puis à gauche</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Vers le haut, puis à droite</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Vers le haut, puis à gauche</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Tout de suite</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Après libération</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Dans la journée</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Le soir</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Pendant la deuxième équipe</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Pendant la troisième équipe</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Pages paires et impaires</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>Ordre sur la feuille</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Page de séparation</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>Début d’impression</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>Jeu par jeu</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Page par page</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordre des copies</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordre des pages</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1&#xa0;: %2 (modifié)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>Tous les réglages du travail, ceux modifiés en premier</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>Le nombre de copies a été mis à 1&#xa0;: il en faut au moins une</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>Le nombre de copies a été mis à %1&#xa0;: aucune tâche n’en fait plus</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 reste en vigueur</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>«&#xa0;%1&#xa0;» a été lu comme %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1&#xa0;: passé à «&#xa0;%2&#xa0;», incompatible avec «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» refusé, incompatible avec «&#xa0;%3&#xa0;»</translation>
    </message>
</context>
</TS>
