<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn't have</source>
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
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pages</translation>
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
    <name>orvek::GeneralPage</name>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
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
        <source>As in the document</source>
        <translation>Comme dans le document</translation>
    </message>
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
        <source>Two-sided</source>
        <translation>Recto verso</translation>
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
    <name>orvek::JobRunner</name>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>seule une partie a été lue avant l’annulation</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Impression : %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Impression du document %1 sur %2 : %3</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 avec des copies non assemblées : des pages identiques seraient agrafées ensemble</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Un livret de %1 feuilles dépasse ce que l’imprimante plie en une fois : %2 au plus</translation>
    </message>
</context>
<context>
    <name>orvek::NoticeBar</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler la modification</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler la modification</translation>
    </message>
    <message>
        <source>Takes back the last choice with all that it changed</source>
        <translation>Annule le dernier choix et tout ce qu’il a modifié</translation>
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
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Modifié ; sinon : %1</translation>
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
        <source>%1 options changed</source>
        <translation>%1 options modifiées</translation>
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
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Return opens an option's choices, Delete sets it back</source>
        <translation>Entrée ouvre les choix d’une option, Suppr la rétablit</translation>
    </message>
</context>
<context>
    <name>orvek::PageRanges</name>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>n’est pas une plage de pages ; exemple : 1-3,7</translation>
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
        <translation>Nom du préréglage :</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Un préréglage « %1 » existe déjà. Le remplacer ?</translation>
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
        <translation>Supprimer le préréglage « %1 » ?</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Préré&amp;glage :</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>Imprimer quand même ?</translation>
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
        <translation>Vous pouvez toujours imprimer dans un fichier : choisissez Fichier comme imprimante.</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>Tout ne convient pas à cette imprimante :</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>Le préréglage ne convient pas entièrement à cette imprimante :</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
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
        <translation>Aucune imprimante : %1</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Imprime dans un fichier</translation>
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
    <name>orvek::SummaryLines</name>
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
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
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
        <translation>%1 : %2 (modifié)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
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
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can't be combined with %3</source>
        <translation>%1 : passé à « %2 », incompatible avec « %3 »</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can't be combined with %3</source>
        <translation>%1 : « %2 » refusé, incompatible avec « %3 »</translation>
    </message>
</context>
</TS>
