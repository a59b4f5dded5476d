<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Panel::CommandLine</name>
    <message>
        <source>A control panel for networks of objects with typed parameters.</source>
        <translation>Un panneau de commande pour des réseaux d’objets à paramètres typés.</translation>
    </message>
    <message>
        <source>The network to open; examples/fractal.json unless given.</source>
        <translation>Le réseau à ouvrir ; examples/fractal.json à défaut.</translation>
    </message>
    <message>
        <source>Says how to start the program.</source>
        <translation>Indique comment lancer le programme.</translation>
    </message>
    <message>
        <source>Says which version this is.</source>
        <translation>Indique la version du programme.</translation>
    </message>
    <message>
        <source>Shows the object of this name.</source>
        <translation>Montre l’objet de ce nom.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Chooses the value pool of this name.</source>
        <translation>Choisit le pool de valeurs de ce nom.</translation>
    </message>
    <message>
        <source>Sets a value as the host would, in the chosen pool. May be repeated.</source>
        <translation>Fixe une valeur dans le pool choisi, comme le ferait l’hôte. Peut être répété.</translation>
    </message>
    <message>
        <source>OBJECT.PARAMETER=TEXT</source>
        <translation>OBJET.PARAMÈTRE=TEXTE</translation>
    </message>
    <message>
        <source>Shows the raw values beside the editors.</source>
        <translation>Montre les valeurs brutes à côté des éditeurs.</translation>
    </message>
    <message>
        <source>Draws the panel into an image file, without a display, and ends.</source>
        <translation>Dessine le panneau dans un fichier image, sans écran, et se termine.</translation>
    </message>
    <message>
        <source>FILE.png</source>
        <translation>FICHIER.png</translation>
    </message>
    <message>
        <source>Gives the panel this size, as in 1200x800.</source>
        <translation>Donne cette taille au panneau, par exemple 1200x800.</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>LARGEURxHAUTEUR</translation>
    </message>
    <message>
        <source>Uses light or dark colours.</source>
        <translation>Utilise des couleurs claires ou sombres.</translation>
    </message>
    <message>
        <source>light|dark</source>
        <translation>light|dark</translation>
    </message>
    <message>
        <source>Draws everything larger by this factor, from 0.5 to 4.</source>
        <translation>Agrandit tout de ce facteur, de 0.5 à 4.</translation>
    </message>
    <message>
        <source>FACTOR</source>
        <translation>FACTEUR</translation>
    </message>
    <message>
        <source>Lays the panel out from right to left.</source>
        <translation>Dispose le panneau de droite à gauche.</translation>
    </message>
    <message>
        <source>Speaks this language instead of the system&apos;s, as in de or fr.</source>
        <translation>Parle cette langue au lieu de celle du système, par exemple de ou fr.</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>LANGUE</translation>
    </message>
    <message>
        <source>Shows each kind of editor twice on one value, in every state, instead of a network.</source>
        <translation>Montre, au lieu d’un réseau, chaque sorte d’éditeur deux fois sur une même valeur, dans chaque état.</translation>
    </message>
    <message>
        <source>Shows this state of the gallery first: normal, per-pool, dead-parameter, no-pool or wrong-type.</source>
        <translation>Montre d’abord cet état de la galerie : normal, per-pool, dead-parameter, no-pool ou wrong-type.</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <source>Neither brings the last session back nor keeps this one.</source>
        <translation>Ne rétablit pas la dernière session et ne garde pas celle-ci.</translation>
    </message>
    <message>
        <source>Prints all values as JSON and ends.</source>
        <translation>Imprime toutes les valeurs en JSON et se termine.</translation>
    </message>
    <message>
        <source>Prints the value type, name and preference set of each input creator, separated by tabs, and ends.</source>
        <translation>Imprime le type de valeur, le nom et les préférences de chaque créateur d’entrées, séparés par des tabulations, et se termine.</translation>
    </message>
    <message>
        <source>Loads this plug-in file instead of qtalo_inputs.talo. May be repeated.</source>
        <translation>Charge ce fichier de greffon au lieu de qtalo_inputs.talo. Peut être répété.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>More than one network is named: %1.</source>
        <translation>Plus d’un réseau est nommé : %1.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>L’option --%1 demande une valeur.</translation>
    </message>
    <message>
        <source>--set wants OBJECT.PARAMETER=TEXT and found &quot;%1&quot;.</source>
        <translation>--set attend OBJET.PARAMÈTRE=TEXTE et a trouvé « %1 ».</translation>
    </message>
    <message>
        <source>--size wants a size as in 1200x800 and found &quot;%1&quot;.</source>
        <translation>--size attend une taille comme 1200x800 et a trouvé « %1 ».</translation>
    </message>
    <message>
        <source>--palette wants light or dark and found &quot;%1&quot;.</source>
        <translation>--palette attend light ou dark et a trouvé « %1 ».</translation>
    </message>
    <message>
        <source>--scale wants a factor from 0.5 to 4 and found &quot;%1&quot;.</source>
        <translation>--scale attend un facteur de 0.5 à 4 et a trouvé « %1 ».</translation>
    </message>
    <message>
        <source>--language wants a language as in de or fr and found &quot;%1&quot;.</source>
        <translation>--language attend une langue comme de ou fr et a trouvé « %1 ».</translation>
    </message>
    <message>
        <source>The gallery opens no network, so --%1 says nothing beside --gallery.</source>
        <translation>La galerie n’ouvre pas de réseau ; --%1 ne dit donc rien à côté de --gallery.</translation>
    </message>
    <message>
        <source>The gallery opens no network, so %1 says nothing beside --gallery.</source>
        <translation>La galerie n’ouvre pas de réseau ; %1 ne dit donc rien à côté de --gallery.</translation>
    </message>
    <message>
        <source>--state wants one of %1 and found &quot;%2&quot;.</source>
        <translation>--state attend l’un de %1 et a trouvé « %2 ».</translation>
    </message>
    <message>
        <source>--state says nothing without --gallery.</source>
        <translation>--state ne dit rien sans --gallery.</translation>
    </message>
</context>
<context>
    <name>Panel::ComputingBar</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculé</translation>
    </message>
    <message>
        <source>Ends the computing (Esc)</source>
        <translation>Arrête le calcul (Échap)</translation>
    </message>
</context>
<context>
    <name>Panel::DefaultMarker</name>
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
    <name>Panel::Gallery</name>
    <message>
        <source>Gallery – Talo panel</source>
        <translation>Galerie – Panneau Talo</translation>
    </message>
    <message>
        <source>States</source>
        <translation>États</translation>
    </message>
    <message>
        <source>Action %1 was fired.</source>
        <translation>L’action %1 a été déclenchée.</translation>
    </message>
</context>
<context>
    <name>Panel::GalleryPage</name>
    <message>
        <source>P&amp;ool:</source>
        <translation>P&amp;ool :</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>First editor</source>
        <translation>Premier éditeur</translation>
    </message>
    <message>
        <source>Second editor</source>
        <translation>Second éditeur</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>Valeur brute</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
</context>
<context>
    <name>Panel::GalleryRow</name>
    <message>
        <source>Nobody can make a value of this type.</source>
        <translation>Personne ne sait créer une valeur de ce type.</translation>
    </message>
    <message>
        <source>For these preferences %1 is chosen.</source>
        <translation>Pour ces préférences, %1 est choisi.</translation>
    </message>
    <message>
        <source>No creator is chosen for these preferences.</source>
        <translation>Aucun créateur n’est choisi pour ces préférences.</translation>
    </message>
    <message>
        <source>%1, editor %2</source>
        <translation>%1, éditeur %2</translation>
    </message>
</context>
<context>
    <name>Panel::GalleryState</name>
    <message>
        <source>Per pool</source>
        <translation>Par pool</translation>
    </message>
    <message>
        <source>Dead parameter</source>
        <translation>Paramètre mort</translation>
    </message>
    <message>
        <source>No pool</source>
        <translation>Sans pool</translation>
    </message>
    <message>
        <source>Wrong type</source>
        <translation>Mauvais type</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Each parameter keeps a value per pool. Editors show and change the value of the chosen pool.</source>
        <translation>Chaque paramètre garde une valeur par pool. Les éditeurs montrent et changent celle du pool choisi.</translation>
    </message>
    <message>
        <source>Each parameter was deleted after its editors were made. An edit finds nothing to write to and says so.</source>
        <translation>Chaque paramètre a été supprimé après la création de ses éditeurs. Une modification ne trouve rien où écrire et le dit.</translation>
    </message>
    <message>
        <source>No pool is chosen. An edit stores nothing and tells nobody.</source>
        <translation>Aucun pool n’est choisi. Une modification n’enregistre rien et ne prévient personne.</translation>
    </message>
    <message>
        <source>Each parameter holds a value of another type than it declares. Editors leave that value alone.</source>
        <translation>Chaque paramètre contient une valeur d’un autre type que celui qu’il déclare. Les éditeurs n’y touchent pas.</translation>
    </message>
    <message>
        <source>Each parameter has one value. What one editor changes, the other one shows at once.</source>
        <translation>Chaque paramètre a une valeur. Ce que change un éditeur, l’autre le montre aussitôt.</translation>
    </message>
</context>
<context>
    <name>Panel::GimpPalette</name>
    <message>
        <source>expected %1, found %2</source>
        <translation>attendu : %1, trouvé : %2</translation>
    </message>
    <message>
        <source>an empty line</source>
        <translation>une ligne vide</translation>
    </message>
    <message>
        <source>the first line &quot;GIMP Palette&quot;</source>
        <translation>la première ligne « GIMP Palette »</translation>
    </message>
    <message>
        <source>red, green and blue from 0 to 255</source>
        <translation>rouge, vert et bleu de 0 à 255</translation>
    </message>
    <message>
        <source>at most %1 colours</source>
        <translation>au plus %1 couleurs</translation>
    </message>
    <message>
        <source>at least one colour</source>
        <translation>au moins une couleur</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>expected a file, found something else</source>
        <translation>attendu : un fichier, trouvé : autre chose</translation>
    </message>
    <message>
        <source>expected a palette of at most one megabyte, found a longer file</source>
        <translation>attendu : une palette d’au plus un mégaoctet, trouvé : un fichier plus long</translation>
    </message>
    <message>
        <source>expected a file that can be read, found: %1</source>
        <translation>attendu : un fichier lisible, trouvé : %1</translation>
    </message>
</context>
<context>
    <name>Panel::HistoryList</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>The steps that can be taken back. Return goes to the state after the chosen step.</source>
        <translation>Les étapes qui peuvent être annulées. Entrée va à l’état qui suit l’étape choisie.</translation>
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
        <source>%1, taken back</source>
        <translation>%1, annulé</translation>
    </message>
</context>
<context>
    <name>Panel::MainWindow</name>
    <message>
        <source>Talo panel</source>
        <translation>Panneau Talo</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 a été ouvert.</translation>
    </message>
    <message>
        <source>Action %1.%2 was fired in pool %3.</source>
        <translation>L’action %1.%2 a été déclenchée dans le pool %3.</translation>
    </message>
    <message>
        <source>(no object)</source>
        <translation>(aucun objet)</translation>
    </message>
    <message>
        <source>(no parameter)</source>
        <translation>(aucun paramètre)</translation>
    </message>
    <message>
        <source>(no pool)</source>
        <translation>(aucun pool)</translation>
    </message>
    <message>
        <source>Saved the values to %1.</source>
        <translation>Les valeurs ont été enregistrées dans %1.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>No network is open.</source>
        <translation>Aucun réseau n’est ouvert.</translation>
    </message>
    <message>
        <source>Can no longer be taken back: %1</source>
        <translation>Ne peut plus être annulé : %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Networks (*.json);;All files (*)</source>
        <translation>Réseaux (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Pool</source>
        <translation>Pool</translation>
    </message>
    <message>
        <source>P&amp;ool:</source>
        <translation>P&amp;ool :</translation>
    </message>
    <message>
        <source>The pool whose values are edited</source>
        <translation>Le pool dont les valeurs sont modifiées</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save values</source>
        <translation>&amp;Enregistrer les valeurs</translation>
    </message>
    <message>
        <source>Save values &amp;as...</source>
        <translation>Enregistrer les valeurs &amp;sous…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;New view</source>
        <translation>&amp;Nouvelle vue</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Raw values</source>
        <translation>Valeurs &amp;brutes</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>&amp;Plug-ins</source>
        <translation>&amp;Greffons</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Charger…</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Décharger</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>Open a network</source>
        <translation>Ouvrir un réseau</translation>
    </message>
    <message>
        <source>The network cannot be opened</source>
        <translation>Le réseau ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Save the values</source>
        <translation>Enregistrer les valeurs</translation>
    </message>
    <message>
        <source>The values cannot be saved</source>
        <translation>Les valeurs ne peuvent pas être enregistrées</translation>
    </message>
    <message>
        <source>Load a plug-in</source>
        <translation>Charger un greffon</translation>
    </message>
    <message>
        <source>Plug-ins (*.talo);;All files (*)</source>
        <translation>Greffons (*.talo);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>Le greffon ne peut pas être chargé</translation>
    </message>
    <message>
        <source>The plug-ins were unloaded.</source>
        <translation>Les greffons ont été déchargés.</translation>
    </message>
    <message>
        <source>The plug-ins cannot be unloaded</source>
        <translation>Les greffons ne peuvent pas être déchargés</translation>
    </message>
    <message>
        <source>The plug-ins were loaded again.</source>
        <translation>Les greffons ont été rechargés.</translation>
    </message>
    <message>
        <source>The plug-ins cannot be loaded again</source>
        <translation>Les greffons ne peuvent pas être rechargés</translation>
    </message>
    <message>
        <source>Plug-ins: %1, kinds of editors: %2</source>
        <translation>Greffons : %1, sortes d’éditeurs : %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Can no longer be made again: %1</source>
        <translation>Ne peut plus être rétabli : %1</translation>
    </message>
    <message>
        <source>%1[*] – Talo panel</source>
        <translation>%1[*] – Panneau Talo</translation>
    </message>
    <message>
        <source>Unsaved values</source>
        <translation>Valeurs non enregistrées</translation>
    </message>
    <message>
        <source>The values of “%1” were changed.</source>
        <translation>Les valeurs de « %1 » ont été modifiées.</translation>
    </message>
    <message>
        <source>Unless they are saved, the changes are lost.</source>
        <translation>Si elles ne sont pas enregistrées, les modifications seront perdues.</translation>
    </message>
    <message>
        <source>Pool and filter</source>
        <translation>Pool et filtre</translation>
    </message>
    <message>
        <source>Filter by name, object or value</source>
        <translation>Filtrer par nom, objet ou valeur</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Shows the parameters whose name, object or value has all of these words</source>
        <translation>Montre les paramètres dont le nom, l’objet ou la valeur contient tous ces mots</translation>
    </message>
    <message>
        <source>&amp;Find a parameter</source>
        <translation>Chercher un &amp;paramètre</translation>
    </message>
</context>
<context>
    <name>Panel::MessageList</name>
    <message>
        <source>output</source>
        <translation>sortie</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>alerte</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panneau</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>Panel::MissingEditor</name>
    <message>
        <source>No editor is registered for the type %1 without preferences.</source>
        <translation>Aucun éditeur n’est inscrit pour le type %1 sans préférences.</translation>
    </message>
    <message>
        <source>No editor is registered for the type %1 with the preferences %2.</source>
        <translation>Aucun éditeur n’est inscrit pour le type %1 avec les préférences %2.</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectList</name>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectView</name>
    <message>
        <source>No parameter of this object is found by the filter.</source>
        <translation>Le filtre ne trouve aucun paramètre de cet objet.</translation>
    </message>
</context>
<context>
    <name>Panel::ParameterCommands</name>
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
        <source>%1 has no default to go back to.</source>
        <translation>%1 n’a pas de valeur par défaut à rétablir.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 a été supprimé.</translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Le presse-papiers est vide.</translation>
    </message>
    <message>
        <source>%1 does not take a value in this pool.</source>
        <translation>%1 n’accepte pas de valeur dans ce pool.</translation>
    </message>
</context>
<context>
    <name>Panel::ParameterRow</name>
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
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1, type %2</source>
        <translation>%1, type %2</translation>
    </message>
    <message>
        <source>%1, type %2, in pool %3</source>
        <translation>%1, type %2, dans le pool %3</translation>
    </message>
    <message>
        <source>%1, type %2, no pool</source>
        <translation>%1, type %2, aucun pool</translation>
    </message>
</context>
<context>
    <name>Panel::Picture</name>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la page ne peut pas être dessinée</translation>
    </message>
</context>
<context>
    <name>Panel::PictureJob</name>
    <message>
        <source>the picture of %1</source>
        <translation>l’image de %1</translation>
    </message>
    <message>
        <source>the picture</source>
        <translation>l’image</translation>
    </message>
    <message>
        <source>Computing %1: %2 %.</source>
        <translation>Calcul de %1 : %2 %.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>There is not enough memory for %1.</source>
        <translation>La mémoire ne suffit pas pour %1.</translation>
    </message>
    <message>
        <source>%1 × %2 points, %3 steps at most, %4 × %4 samples: %5 s. %6 % of the points stay.</source>
        <translation>%1 × %2 points, au plus %3 pas, %4 × %4 échantillons : %5 s. %6 % des points restent.</translation>
    </message>
</context>
<context>
    <name>Panel::Preview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>Panel::RawValue</name>
    <message>
        <source>age %1</source>
        <translation>âge %1</translation>
    </message>
    <message>
        <source>, pool %1</source>
        <translation>, pool %1</translation>
    </message>
    <message>
        <source>, own value</source>
        <translation>, valeur propre</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
</context>
<context>
    <name>Panel::Session</name>
    <message>
        <source>The session cannot be kept in %1.</source>
        <translation>La session ne peut pas être gardée dans %1.</translation>
    </message>
</context>
<context>
    <name>Panel::Studio</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Nothing in this network computes a picture.</source>
        <translation>Rien dans ce réseau ne calcule d’image.</translation>
    </message>
</context>
<context>
    <name>Panel::Workshop</name>
    <message>
        <source>%1: there is no formula in the network, and so no picture to be written</source>
        <translation>%1 : le réseau n’a pas de formule, il n’y a donc pas d’image à écrire</translation>
    </message>
    <message>
        <source>Nothing is being computed.</source>
        <translation>Aucun calcul en cours.</translation>
    </message>
    <message>
        <source>Computing %1</source>
        <translation>Calcul de %1</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Annulé : %1.</translation>
    </message>
    <message>
        <source>Wrote %1.</source>
        <translation>Écrit : %1.</translation>
    </message>
    <message>
        <source>Computed %1.</source>
        <translation>Calculé : %1.</translation>
    </message>
</context>
<context>
    <name>StepText</name>
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
<context>
    <name>main</name>
    <message>
        <source>--help says how to start the program.</source>
        <translation>--help indique comment lancer le programme.</translation>
    </message>
    <message>
        <source>%1 has no pool &quot;%2&quot;, only %3.</source>
        <translation>%1 n’a pas de pool « %2 », seulement %3.</translation>
    </message>
    <message>
        <source>%1 has no object &quot;%2&quot;.</source>
        <translation>%1 n’a pas d’objet « %2 ».</translation>
    </message>
    <message>
        <source>Cannot write the image %1.</source>
        <translation>L’image %1 ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>examples/fractal.json is missing; name a network to open.</source>
        <translation>examples/fractal.json est absent ; nommez un réseau à ouvrir.</translation>
    </message>
    <message>
        <source>There is no display; the panel runs unseen. --screenshot draws it into a file.</source>
        <translation>Il n’y a pas d’écran ; le panneau fonctionne sans être vu. --screenshot le dessine dans un fichier.</translation>
    </message>
    <message>
        <source>Talo panel</source>
        <translation>Panneau Talo</translation>
    </message>
</context>
</TS>
