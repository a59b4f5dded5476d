<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>EditorCell</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>EditorMenu</name>
    <message>
        <source>&amp;Usual</source>
        <translation>&amp;Habituel</translation>
    </message>
    <message>
        <source>%1 is not loaded</source>
        <translation>%1 n’est pas chargé</translation>
    </message>
    <message>
        <source>No parameter is chosen</source>
        <translation>Aucun paramètre n’est choisi</translation>
    </message>
    <message>
        <source>This &amp;parameter</source>
        <translation>Ce &amp;paramètre</translation>
    </message>
    <message>
        <source>All parameters of this &amp;type</source>
        <translation>Tous les paramètres de ce &amp;type</translation>
    </message>
</context>
<context>
    <name>HostTexts</name>
    <message>
        <source>No creator is registered for %1.</source>
        <translation>Aucun créateur n&apos;est enregistré pour %1.</translation>
    </message>
    <message>
        <source>There is no parameter.</source>
        <translation>Il n&apos;y a pas de paramètre.</translation>
    </message>
    <message>
        <source>%1 holds all of the wanted %2. Creators for %4: %3.</source>
        <translation>%1 contient toutes les préférences voulues %2. Créateurs pour %4 : %3.</translation>
    </message>
    <message>
        <source>%1 shares most with the wanted %2. Creators for %4: %3.</source>
        <translation>%1 partage le plus avec les préférences voulues %2. Créateurs pour %4 : %3.</translation>
    </message>
    <message>
        <source>Without a pool source the editor drops every edit.</source>
        <translation>Sans source de pools, l&apos;éditeur ignore toute modification.</translation>
    </message>
    <message>
        <source>The editor drops every edit as long as its source has no pool.</source>
        <translation>L&apos;éditeur ignore toute modification tant que sa source n&apos;a pas de pool.</translation>
    </message>
    <message>
        <source>This creator makes no Qt widgets.</source>
        <translation>Ce créateur ne produit pas de widgets Qt.</translation>
    </message>
    <message>
        <source>The plug-in %1 is loaded already.</source>
        <translation>Le greffon %1 est déjà chargé.</translation>
    </message>
    <message>
        <source>Cannot open the plug-in %1: %2</source>
        <translation>Impossible d&apos;ouvrir le greffon %1 : %2</translation>
    </message>
    <message>
        <source>Cannot find the export %1 in the plug-in %2: %3</source>
        <translation>L&apos;export %1 est introuvable dans le greffon %2 : %3</translation>
    </message>
    <message>
        <source>The plug-in %1 says that it is not compatible with this host (%2).</source>
        <translation>Le greffon %1 indique qu&apos;il n&apos;est pas compatible avec ce programme (%2).</translation>
    </message>
    <message>
        <source>The plug-in %1 is not loaded.</source>
        <translation>Le greffon %1 n&apos;est pas chargé.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded. Editors in use: %2.</source>
        <translation>Impossible de décharger le greffon %1. Éditeurs utilisés : %2.</translation>
    </message>
    <message>
        <source>Cannot close the plug-in %1: %2</source>
        <translation>Impossible de fermer le greffon %1 : %2</translation>
    </message>
    <message>
        <source>The editor edits a value of type %1 and not %2.</source>
        <translation>L’éditeur modifie une valeur de type %1 et non %2.</translation>
    </message>
    <message>
        <source>Its creator made no widget.</source>
        <translation>Son créateur n’a pas fait de widget.</translation>
    </message>
    <message>
        <source>Its creator handed out a widget of the program&apos;s own.</source>
        <translation>Son créateur a remis un widget du programme lui-même.</translation>
    </message>
    <message>
        <source>Its creator ended with an exception: %1.</source>
        <translation>Son créateur s’est terminé par une exception : %1.</translation>
    </message>
    <message>
        <source>The editor of the parameter &quot;%1&quot;, of %2, ended with an exception: %3.</source>
        <translation>L’éditeur du paramètre « %1 », de %2, s’est terminé par une exception : %3.</translation>
    </message>
    <message>
        <source>An editor of %1 ended with an exception: %2.</source>
        <translation>Un éditeur de %1 s’est terminé par une exception : %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is loaded already, as %2.</source>
        <translation>Le plug-in %1 est déjà chargé, sous le nom %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not say for which interface of the host it was built.</source>
        <translation>Le plug-in %1 ne dit pas pour quelle interface du programme il a été construit.</translation>
    </message>
    <message>
        <source>The plug-in %1 was built for another interface of the host (%2, not %3). Build it again.</source>
        <translation>Le plug-in %1 a été construit pour une autre interface du programme (%2 au lieu de %3). Il doit être reconstruit.</translation>
    </message>
    <message>
        <source>The plug-in %1 ended with an exception: %2</source>
        <translation>Le plug-in %1 s&apos;est terminé par une exception : %2</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded while its own code is running.</source>
        <translation>Le plug-in %1 ne peut pas être déchargé pendant que son propre code s&apos;exécute.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded while these are in use: %2.</source>
        <translation>Le plug-in %1 ne peut pas être déchargé tant que ceci est utilisé : %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 was closed and is still in memory, because something else holds it.</source>
        <translation>Le plug-in %1 a été fermé et reste en mémoire, parce qu&apos;autre chose le retient.</translation>
    </message>
    <message>
        <source>The plug-in %1 left behind what was removed now: %2</source>
        <translation>Le plug-in %1 a laissé derrière lui ce qui vient d&apos;être retiré : %2</translation>
    </message>
</context>
<context>
    <name>ObjectClipboard</name>
    <message>
        <source>There are no values of objects on the clipboard.</source>
        <translation>Le presse-papiers ne contient aucune valeur d&apos;objet.</translation>
    </message>
    <message>
        <source>No values of %1 were copied.</source>
        <translation>Aucune valeur de %1 n&apos;a été copiée.</translation>
    </message>
    <message>
        <source>%1 keeps a value: %2.</source>
        <translation>%1 garde une valeur : %2.</translation>
    </message>
</context>
<context>
    <name>ObjectValues</name>
    <message>
        <source>there is no such parameter</source>
        <translation>ce paramètre n&apos;existe pas</translation>
    </message>
    <message>
        <source>it cannot be changed here</source>
        <translation>il ne peut pas être modifié ici</translation>
    </message>
    <message>
        <source>it is of another type</source>
        <translation>il est d&apos;un autre type</translation>
    </message>
    <message>
        <source>it does not take a value in this pool</source>
        <translation>il n&apos;accepte pas de valeur dans ce pool</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>RefusedNumber</name>
    <message>
        <source>Write a whole number without separators.</source>
        <translation>Écrivez un nombre entier sans séparateurs.</translation>
    </message>
    <message>
        <source>Write the number without group separators and with a point before the decimals.</source>
        <translation>Écrivez le nombre sans séparateurs de milliers et avec un point devant les décimales.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Le nombre est trop grand.</translation>
    </message>
    <message>
        <source>This is no number.</source>
        <translation>Ce n’est pas un nombre.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;. %3</source>
        <translation>%1 n’accepte pas « %2 ». %3</translation>
    </message>
</context>
<context>
    <name>RowCommands</name>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Remettre la valeur par &amp;défaut</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Copy value</source>
        <translation>&amp;Copier la valeur</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Paste value</source>
        <translation>C&amp;oller la valeur</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>&amp;Set as default</source>
        <translation>Définir par dé&amp;faut</translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Le presse-papiers est vide.</translation>
    </message>
    <message>
        <source>%1 does not take a value in this pool.</source>
        <translation>%1 n’accepte pas de valeur dans ce pool.</translation>
    </message>
    <message>
        <source>%1 cannot be changed here.</source>
        <translation>%1 ne peut pas être modifié ici.</translation>
    </message>
    <message>
        <source>S&amp;how help</source>
        <translation>Afficher l’a&amp;ide</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>&amp;Editors</source>
        <translation>&amp;Éditeurs</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 à %2 %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>Plage : %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Unité : %1</translation>
    </message>
    <message>
        <source>This value cannot be changed here.</source>
        <translation>Cette valeur ne peut pas être modifiée ici.</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Type : %1</translation>
    </message>
    <message>
        <source>Preferences: %1</source>
        <translation>Préférences : %1</translation>
    </message>
    <message>
        <source>Editor: %1</source>
        <translation>Éditeur : %1</translation>
    </message>
    <message>
        <source>%1, type %2</source>
        <translation>%1, type %2</translation>
    </message>
    <message>
        <source>%1, type %2, no pool</source>
        <translation>%1, type %2, aucun pool</translation>
    </message>
    <message>
        <source>%1, type %2, in pool %3</source>
        <translation>%1, type %2, dans le pool %3</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>a été supprimé</translation>
    </message>
    <message>
        <source>in pool %1</source>
        <translation>dans le pool %1</translation>
    </message>
    <message>
        <source>no pool</source>
        <translation>aucun pool</translation>
    </message>
</context>
<context>
    <name>Talo::FileButtonText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Talo::HelpView</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>F1 in a row shows what its parameter does.</source>
        <translation>F1 dans une ligne montre ce que fait son paramètre.</translation>
    </message>
</context>
<context>
    <name>Talo::HistoryView</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Before all steps</source>
        <translation>Avant toutes les étapes</translation>
    </message>
    <message>
        <source>The undo steps. Return goes to the state after the chosen step.</source>
        <translation>Les étapes qui peuvent être annulées. La touche Entrée revient à l’état après l’étape choisie.</translation>
    </message>
    <message>
        <source>%1, undone</source>
        <translation>%1, annulé</translation>
    </message>
    <message>
        <source>Oldest state that is kept</source>
        <translation>Plus ancien état conservé</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <comment>start, memory</comment>
        <translation>%1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Older steps were forgotten, as the history was full.</source>
        <translation>Des étapes plus anciennes ont été oubliées, car l’historique était plein.</translation>
    </message>
</context>
<context>
    <name>Talo::MixedButton</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a value and the objects that have it</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>différentes</translation>
    </message>
    <message>
        <source>%1: mixed values</source>
        <translation>%1 : valeurs différentes</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>Set all to</source>
        <translation>Donner à tous</translation>
    </message>
</context>
<context>
    <name>Talo::ModifiedIndicator</name>
    <message>
        <source>Reset %1 to its default</source>
        <translation>Remettre %1 à sa valeur par défaut</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Valeur par défaut : %1</translation>
    </message>
    <message>
        <source>Click to reset the value.</source>
        <translation>Un clic rétablit cette valeur.</translation>
    </message>
</context>
<context>
    <name>Talo::ParameterPanel</name>
    <message>
        <source>No parameter of this object is found by the filter.</source>
        <translation>Le filtre ne trouve aucun paramètre de cet objet.</translation>
    </message>
    <message>
        <source>Reset &amp;all to default</source>
        <translation>&amp;Tout remettre par défaut</translation>
    </message>
    <message>
        <source>All parameters of this object are advanced, or of no use now.</source>
        <translation>Tous les paramètres de cet objet sont avancés ou sans usage pour le moment.</translation>
    </message>
    <message>
        <source>No parameter of this object differs from its default.</source>
        <translation>Aucun paramètre de cet objet ne diffère de sa valeur par défaut.</translation>
    </message>
    <message>
        <source>The objects have no parameter in common that could be shown now.</source>
        <translation>Les objets n&apos;ont aucun paramètre commun qui puisse être affiché maintenant.</translation>
    </message>
    <message>
        <source>Reset s&amp;ection to default</source>
        <translation>Réinitialiser la s&amp;ection</translation>
    </message>
</context>
<context>
    <name>Talo::ParameterRow</name>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 a été supprimé.</translation>
    </message>
    <message>
        <source>%1 has no default to go back to.</source>
        <translation>%1 n’a pas de valeur par défaut à rétablir.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>vector, component</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Talo::PlaceholderEditor</name>
    <message>
        <source>No editor is registered for the type %1 without preferences.</source>
        <translation>Aucun éditeur n’est inscrit pour le type %1 sans préférences.</translation>
    </message>
    <message>
        <source>No editor is registered for the type %1 with the preferences %2.</source>
        <translation>Aucun éditeur n’est inscrit pour le type %1 avec les préférences %2.</translation>
    </message>
    <message>
        <source>The editor of the type %1 needs a value of type %2.</source>
        <translation>L’éditeur du type %1 a besoin d’une valeur de type %2.</translation>
    </message>
</context>
<context>
    <name>Talo::RawValueLabel</name>
    <message>
        <source>age %1</source>
        <translation>âge %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>Raw value of %1</source>
        <translation>Valeur brute de %1</translation>
    </message>
    <message>
        <source>age %1, pool %2</source>
        <translation>âge %1, pool %2</translation>
    </message>
    <message>
        <source>age %1, not set in pool %2</source>
        <translation>âge %1, non définie dans le pool %2</translation>
    </message>
</context>
<context>
    <name>Talo::UndoActions</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Can no longer be undone: %1</source>
        <translation>Ne peut plus être annulé : %1</translation>
    </message>
    <message>
        <source>Can no longer be redone: %1</source>
        <translation>Ne peut plus être rétabli : %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
</context>
<context>
    <name>Talo::UnenteredMark</name>
    <message>
        <source>The text is incomplete, so it was not entered. The value is still empty.</source>
        <translation>Le texte est incomplet et n’a donc pas été repris. La valeur est toujours vide.</translation>
    </message>
    <message>
        <source>The text is incomplete, so it was not entered. The value is still %1.</source>
        <translation>Le texte est incomplet et n’a donc pas été repris. La valeur est toujours %1.</translation>
    </message>
</context>
<context>
    <name>UndoText</name>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1 : %2 → %3</translation>
    </message>
    <message>
        <source>%1: %2 → %3 (%4)</source>
        <translation>%1 : %2 → %3 (%4)</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more</source>
        <translation>
            <numerusform>%1, et %n autre</numerusform>
            <numerusform>%1, et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, alpha %2</source>
        <translation>%1, alpha %2</translation>
    </message>
</context>
<context>
    <name>ValueClipboard</name>
    <message>
        <source>it has other flags</source>
        <translation>elle a d’autres indicateurs</translation>
    </message>
    <message>
        <source>The copied value does not fit %1: %2.</source>
        <translation>La valeur copiée ne convient pas à %1 : %2.</translation>
    </message>
    <message>
        <source>There is no value to paste into %1.</source>
        <translation>Il n’y a pas de valeur à coller dans %1.</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is of type %3.</source>
        <translation>%1 n’est pas une valeur pour %2, de type %3.</translation>
    </message>
</context>
</TS>
