<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MessageTexts</name>
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
        <source>%1[*] – Talo panel</source>
        <translation>%1[*] – Panneau Talo</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Talo panel</source>
        <translation>%1[*] – %2 – Panneau Talo</translation>
    </message>
</context>
<context>
    <name>Panel::CommandLine</name>
    <message>
        <source>A control panel for networks of objects with typed parameters.</source>
        <translation>Un panneau de commande pour des réseaux d’objets à paramètres typés.</translation>
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
        <source>FILE.png</source>
        <translation>FICHIER.png</translation>
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
        <source>FACTOR</source>
        <translation>FACTEUR</translation>
    </message>
    <message>
        <source>Lays the panel out from right to left.</source>
        <translation>Dispose le panneau de droite à gauche.</translation>
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
        <source>--state wants one of %1 and found &quot;%2&quot;.</source>
        <translation>--state attend l’un de %1 et a trouvé « %2 ».</translation>
    </message>
    <message>
        <source>The network to open; examples/networks/fractal.json by default.</source>
        <translation>Le réseau à ouvrir ; examples/networks/fractal.json par défaut.</translation>
    </message>
    <message>
        <source>Prints this help and ends.</source>
        <translation>Affiche cette aide et se termine.</translation>
    </message>
    <message>
        <source>Prints the version and ends.</source>
        <translation>Affiche la version et se termine.</translation>
    </message>
    <message>
        <source>Draws the panel into an image file and ends; needs no display.</source>
        <translation>Dessine le panneau dans un fichier image et se termine ; n’a pas besoin d’écran.</translation>
    </message>
    <message>
        <source>Sets the size of the window, as in 1200x800.</source>
        <translation>Fixe la taille de la fenêtre, par exemple 1200x800.</translation>
    </message>
    <message>
        <source>Scales the panel by this factor, from 0.5 to 4.</source>
        <translation>Met le panneau à l’échelle de ce facteur, de 0.5 à 4.</translation>
    </message>
    <message>
        <source>Uses this language instead of the system&apos;s, as in de or fr.</source>
        <translation>Utilise cette langue au lieu de celle du système, par exemple de ou fr.</translation>
    </message>
    <message>
        <source>Does not restore or save the session.</source>
        <translation>Ne rétablit pas la session et ne l’enregistre pas.</translation>
    </message>
    <message>
        <source>--state needs --gallery.</source>
        <translation>--state demande --gallery.</translation>
    </message>
    <message>
        <source>The gallery opens no network, so --%1 cannot be used with --gallery.</source>
        <translation>La galerie n’ouvre pas de réseau, donc --%1 ne peut pas être utilisé avec --gallery.</translation>
    </message>
    <message>
        <source>The gallery opens no network, so %1 cannot be used with --gallery.</source>
        <translation>La galerie n’ouvre pas de réseau, donc %1 ne peut pas être utilisé avec --gallery.</translation>
    </message>
    <message>
        <source>The name of a network is empty.</source>
        <translation>Le nom d’un réseau est vide.</translation>
    </message>
</context>
<context>
    <name>Panel::Document</name>
    <message>
        <source>No network is open.</source>
        <translation>Aucun réseau n’est ouvert.</translation>
    </message>
</context>
<context>
    <name>Panel::FileMenu</name>
    <message>
        <source>Networks (*.json);;All files (*)</source>
        <translation>Réseaux (*.json);;Tous les fichiers (*)</translation>
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
        <source>The file is gone</source>
        <translation>Le fichier a disparu</translation>
    </message>
    <message>
        <source>The file was changed</source>
        <translation>Le fichier a été modifié</translation>
    </message>
    <message>
        <source>%1 is gone since it was opened or saved here.</source>
        <translation>%1 a disparu depuis son ouverture ou son enregistrement ici.</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here.</source>
        <translation>Un autre programme a modifié %1 depuis son ouverture ou son enregistrement ici.</translation>
    </message>
    <message>
        <source>Shall it be written again?</source>
        <translation>Faut-il l’écrire à nouveau ?</translation>
    </message>
    <message>
        <source>Saving overwrites what the other program wrote.</source>
        <translation>Enregistrer écrase ce que l’autre programme a écrit.</translation>
    </message>
    <message>
        <source>Unfinished work</source>
        <translation>Travail inachevé</translation>
    </message>
    <message>
        <source>It ends with the network, and its file is not written.</source>
        <translation>Il s’arrête avec le réseau, et son fichier n’est pas écrit.</translation>
    </message>
    <message>
        <source>&amp;End it</source>
        <translation>&amp;Arrêter</translation>
    </message>
</context>
<context>
    <name>Panel::FileNotices</name>
    <message>
        <source>%1 is gone. The values are still here; saving writes the file again.</source>
        <translation>%1 a disparu. Les valeurs sont encore là ; enregistrer écrit le fichier à nouveau.</translation>
    </message>
    <message>
        <source>Another program has changed %1. Saving will ask before it overwrites the file.</source>
        <translation>Un autre programme a modifié %1. L’enregistrement demandera avant d’écraser le fichier.</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Un autre programme a modifié %1.</translation>
    </message>
    <message>
        <source>&amp;Load it again</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>The network cannot be opened</source>
        <translation>Le réseau ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>%1 is open in another panel, too. Who saves last overwrites what the other one saved.</source>
        <translation>%1 est aussi ouvert dans un autre panneau. Le dernier qui enregistre écrase ce que l’autre a enregistré.</translation>
    </message>
    <message>
        <source>Unsaved values</source>
        <translation>Valeurs non enregistrées</translation>
    </message>
    <message>
        <source>The panel ended while values of “%1” were not saved.</source>
        <translation>Le panneau s’est arrêté alors que des valeurs de « %1 » n’étaient pas enregistrées.</translation>
    </message>
    <message>
        <source>They were kept on %1. Shall they be restored?</source>
        <translation>Elles ont été conservées le %1. Faut-il les restaurer ?</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>Restored unsaved values.</source>
        <translation>Les valeurs non enregistrées ont été restaurées.</translation>
    </message>
    <message>
        <source>Not all values could be restored</source>
        <translation>Certaines valeurs n’ont pas pu être restaurées</translation>
    </message>
</context>
<context>
    <name>Panel::FilterField</name>
    <message>
        <source>&amp;Find a parameter</source>
        <translation>Chercher un &amp;paramètre</translation>
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
    <name>Panel::HelpDock</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>Panel::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
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
        <source>Saved the values to %1.</source>
        <translation>Les valeurs ont été enregistrées dans %1.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
</context>
<context>
    <name>Panel::MessageDock</name>
    <message>
        <source>Shows or hides what the panel and its plug-ins print.</source>
        <translation>Affiche ou masque ce que le panneau et ses greffons écrivent.</translation>
    </message>
    <message>
        <source>1 line of output</source>
        <translation>1 ligne de sortie</translation>
    </message>
    <message numerus="yes">
        <source>%n lines of output</source>
        <translation>
            <numerusform>%n ligne de sortie</numerusform>
            <numerusform>%n lignes de sortie</numerusform>
        </translation>
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
    <name>Panel::NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Panel::NotificationCounter</name>
    <message>
        <source>Notifications of %1: %2</source>
        <translation>Notifications de %1 : %2</translation>
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
    <name>Panel::PluginMenu</name>
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
        <source>Plug-ins: %1, kinds of editors: %2</source>
        <translation>Greffons : %1, sortes d’éditeurs : %2</translation>
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
</context>
<context>
    <name>Panel::PoolToolBar</name>
    <message>
        <source>Pool and filter</source>
        <translation>Pool et filtre</translation>
    </message>
    <message>
        <source>P&amp;ool:</source>
        <translation>P&amp;ool :</translation>
    </message>
    <message>
        <source>Pool</source>
        <translation>Pool</translation>
    </message>
    <message>
        <source>The pool whose values are edited</source>
        <translation>Le pool dont les valeurs sont modifiées</translation>
    </message>
</context>
<context>
    <name>Panel::Recovery</name>
    <message>
        <source>The unsaved values cannot be kept in %1: %2</source>
        <translation>Les valeurs non enregistrées ne peuvent pas être conservées dans %1 : %2</translation>
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
    <name>Panel::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Raw values</source>
        <translation>Valeurs &amp;brutes</translation>
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
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>&amp;Advanced parameters</source>
        <translation>Paramètres &amp;avancés</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Fold all sections</source>
        <translation>&amp;Replier toutes les sections</translation>
    </message>
    <message>
        <source>&amp;Open all sections</source>
        <translation>&amp;Déplier toutes les sections</translation>
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
        <source>examples/networks/fractal.json is missing; name a network to open.</source>
        <translation>examples/networks/fractal.json est absent ; nommez un réseau à ouvrir.</translation>
    </message>
    <message>
        <source>Talo panel</source>
        <translation>Panneau Talo</translation>
    </message>
    <message>
        <source>There is no display, so the panel was drawn into %1.</source>
        <translation>Il n’y a pas d’écran, donc le panneau a été dessiné dans %1.</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Impossible d’écrire sur la sortie standard : %1.</translation>
    </message>
    <message>
        <source>The display is gone.</source>
        <translation>L’affichage a disparu.</translation>
    </message>
</context>
</TS>
