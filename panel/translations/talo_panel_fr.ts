<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CountTexts</name>
    <message>
        <source>1 parameter</source>
        <translation>1 paramètre</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters</source>
        <translation>
            <numerusform>%n paramètres</numerusform>
            <numerusform>%n paramètres</numerusform>
        </translation>
    </message>
    <message>
        <source>1 object</source>
        <translation>1 objet</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n objets</numerusform>
            <numerusform>%n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>1 parameter found</source>
        <translation>1 paramètre trouvé</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters found</source>
        <translation>
            <numerusform>%n paramètres trouvés</numerusform>
            <numerusform>%n paramètres trouvés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>Contrôle suivant ou précédent</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Maj+Tab</translation>
    </message>
    <message>
        <source>Leave a text of several lines</source>
        <translation>Quitter un texte de plusieurs lignes</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Shift+Tab</source>
        <translation>Ctrl+Tab, Ctrl+Maj+Tab</translation>
    </message>
    <message>
        <source>Change a slider, or go through choices</source>
        <translation>Déplacer un curseur ou parcourir les choix</translation>
    </message>
    <message>
        <source>Arrow keys, Page Up, Page Down</source>
        <translation>Flèches, Page précédente, Page suivante</translation>
    </message>
    <message>
        <source>Lowest or highest value</source>
        <translation>Valeur la plus petite ou la plus grande</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Début, Fin</translation>
    </message>
    <message>
        <source>Press a button, or switch a check box</source>
        <translation>Appuyer sur un bouton ou basculer une case</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Enter what was typed</source>
        <translation>Valider ce qui a été tapé</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Take back a typed number</source>
        <translation>Annuler un nombre tapé</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Take back a drag while the button is held</source>
        <translation>Annuler un déplacement tant que le bouton est enfoncé</translation>
    </message>
    <message>
        <source>Change the value of the control with the focus</source>
        <translation>Modifier la valeur du contrôle qui a le focus</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menu de la ligne</translation>
    </message>
    <message>
        <source>Menu key, right mouse button</source>
        <translation>Touche Menu, bouton droit de la souris</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Ailleurs</translation>
    </message>
    <message>
        <source>Filter: go to the first row that is found</source>
        <translation>Filtre : aller à la première ligne trouvée</translation>
    </message>
    <message>
        <source>Filter: show all</source>
        <translation>Filtre : tout afficher</translation>
    </message>
    <message>
        <source>History: go to the chosen state</source>
        <translation>Historique : aller à l&apos;état choisi</translation>
    </message>
    <message>
        <source>Cancel the computing</source>
        <translation>Annuler le calcul</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Autres commandes</translation>
    </message>
</context>
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
    <message>
        <source>Loads this plug-in file as well. Those beside qtalo_inputs.talo, and in the folders that TALO_PLUGIN_PATH names, are loaded anyway. May be repeated.</source>
        <translation>Charge aussi ce fichier de greffon. Ceux qui se trouvent à côté de qtalo_inputs.talo et dans les dossiers que nomme TALO_PLUGIN_PATH sont chargés de toute façon. Peut être répété.</translation>
    </message>
    <message>
        <source>Loads this plug-in file instead of those that are found. May be repeated.</source>
        <translation>Charge ce fichier de greffon à la place de ceux qui sont trouvés. Peut être répété.</translation>
    </message>
</context>
<context>
    <name>Panel::ComparisonDock</name>
    <message>
        <source>Compare pools</source>
        <translation>Comparer les pools</translation>
    </message>
</context>
<context>
    <name>Panel::ComparisonView</name>
    <message>
        <source>First pool</source>
        <translation>Premier pool</translation>
    </message>
    <message>
        <source>Second pool</source>
        <translation>Second pool</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Compares the values of now</source>
        <translation>Compare les valeurs actuelles</translation>
    </message>
    <message>
        <source>Parameters that differ</source>
        <translation>Paramètres qui diffèrent</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>1 parameter differs.</source>
        <translation>1 paramètre diffère.</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters differ.</source>
        <translation>
            <numerusform>%n paramètres diffèrent.</numerusform>
            <numerusform>%n paramètres diffèrent.</numerusform>
        </translation>
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
    <name>Panel::EditorsMenu</name>
    <message>
        <source>&amp;Editors</source>
        <translation>&amp;Éditeurs</translation>
    </message>
</context>
<context>
    <name>Panel::FileDrop</name>
    <message>
        <source>Only one network file can be opened at a time.</source>
        <translation>Un seul fichier de réseau peut être ouvert à la fois.</translation>
    </message>
    <message>
        <source>%1 is no file of this computer.</source>
        <translation>%1 n&apos;est pas un fichier de cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
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
    <message>
        <source>Re&amp;vert to the file</source>
        <translation>Re&amp;venir au fichier</translation>
    </message>
    <message>
        <source>%1 is gone. It is not listed any more.</source>
        <translation>%1 n&apos;existe plus. Le fichier n&apos;est plus dans la liste.</translation>
    </message>
    <message>
        <source>They become those of the file. The changes are lost, and so is the history.</source>
        <translation>Elles redeviennent celles du fichier. Les modifications sont perdues, ainsi que l&apos;historique.</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;venir</translation>
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
        <source>Only changed</source>
        <translation>Modifiés seulement</translation>
    </message>
    <message>
        <source>Shows the parameters whose name, label, help, object, kind or value has all of these words</source>
        <translation>Affiche les paramètres dont le nom, le libellé, l&apos;aide, l&apos;objet, le type ou la valeur contient tous ces mots</translation>
    </message>
    <message>
        <source>Shows only the parameters whose value differs from the default</source>
        <translation>N&apos;affiche que les paramètres dont la valeur diffère de la valeur par défaut</translation>
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
    <message>
        <source>Editors</source>
        <translation>Éditeurs</translation>
    </message>
    <message>
        <source>Pool</source>
        <translation>Pool</translation>
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
    <name>Panel::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>&amp;About the Talo panel</source>
        <translation>À &amp;propos du panneau Talo</translation>
    </message>
    <message>
        <source>About the Talo panel</source>
        <translation>À propos du panneau Talo</translation>
    </message>
    <message>
        <source>Talo panel %1</source>
        <translation>Panneau Talo %1</translation>
    </message>
    <message>
        <source>The panel shows and edits the parameters of a network.

It is under the MIT licence; the file LICENSE has its text.

It runs with Qt %1.</source>
        <translation>Le panneau affiche et modifie les paramètres d&apos;un réseau.

Il est sous licence MIT ; son texte se trouve dans le fichier LICENSE.

Il fonctionne avec Qt %1.</translation>
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
    <name>Panel::IconPlace</name>
    <message>
        <source>%1 = %2</source>
        <extracomment>A parameter and its value.</extracomment>
        <translation>%1 = %2</translation>
    </message>
</context>
<context>
    <name>Panel::KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>&amp;Copier comme texte</translation>
    </message>
</context>
<context>
    <name>Panel::LookMenu</name>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;Text size</source>
        <translation>&amp;Taille du texte</translation>
    </message>
    <message>
        <source>&amp;Larger text</source>
        <translation>Texte plus &amp;grand</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>Texte plus &amp;petit</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Usual text size</source>
        <translation>Taille &amp;habituelle</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>Comme le s&amp;ystème</translation>
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
    <message>
        <source>1 line of output was left out, because it came too fast.</source>
        <translation>1 ligne de la sortie a été omise, car elle arrivait trop vite.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines of output were left out, because they came too fast.</source>
        <translation>
            <numerusform>%n ligne de la sortie a été omise, car elle arrivait trop vite.</numerusform>
            <numerusform>%n lignes de la sortie ont été omises, car elles arrivaient trop vite.</numerusform>
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
    <name>Panel::ObjectColumn</name>
    <message>
        <source>Order of the objects</source>
        <translation>Ordre des objets</translation>
    </message>
    <message>
        <source>The order in which the objects are listed</source>
        <translation>L&apos;ordre dans lequel les objets sont listés</translation>
    </message>
    <message>
        <source>In &amp;file order</source>
        <translation>Dans l&apos;ordre du &amp;fichier</translation>
    </message>
    <message>
        <source>By &amp;name</source>
        <translation>Par &amp;nom</translation>
    </message>
    <message>
        <source>By &amp;kind</source>
        <translation>Par &amp;type</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectCommands</name>
    <message>
        <source>Reset s&amp;ection to default</source>
        <translation>Réinitialiser la s&amp;ection</translation>
    </message>
    <message>
        <source>Reset &amp;object to default</source>
        <translation>Réinitialiser l&apos;o&amp;bjet</translation>
    </message>
    <message>
        <source>Reset &amp;all objects to default</source>
        <translation>Réinitialiser &amp;tous les objets</translation>
    </message>
    <message>
        <source>Copy sectio&amp;n</source>
        <translation>Copier la sectio&amp;n</translation>
    </message>
    <message>
        <source>Copy o&amp;bjects</source>
        <translation>Copier les ob&amp;jets</translation>
    </message>
    <message>
        <source>Paste into ob&amp;jects</source>
        <translation>Coller dans &amp;les objets</translation>
    </message>
    <message>
        <source>Ctrl+Alt+C</source>
        <translation>Ctrl+Alt+C</translation>
    </message>
    <message>
        <source>Ctrl+Alt+V</source>
        <translation>Ctrl+Alt+V</translation>
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
    <name>Panel::ObjectModel</name>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Parameters found</source>
        <translation>Paramètres trouvés</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectView</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n de plus</numerusform>
            <numerusform>%1 et %n de plus</numerusform>
        </translation>
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
    <message>
        <source>%1

Load it anyway? Unsaved values may be lost.</source>
        <translation>%1

Le charger quand même ? Des valeurs non enregistrées peuvent être perdues.</translation>
    </message>
</context>
<context>
    <name>Panel::PluginSearch</name>
    <message>
        <source>%1 is not loaded again: it is the file %2.</source>
        <translation>%1 n’est pas chargé une nouvelle fois : c’est le fichier %2.</translation>
    </message>
    <message>
        <source>%1 is loaded once only.</source>
        <translation>%1 n’est chargé qu’une fois.</translation>
    </message>
    <message>
        <source>%1 is not loaded: %2 has the same name and comes first.</source>
        <translation>%1 n’est pas chargé : %2 porte le même nom et vient en premier.</translation>
    </message>
    <message>
        <source>The folder %1 of TALO_PLUGIN_PATH cannot be read.</source>
        <translation>Impossible de lire le dossier %1 de TALO_PLUGIN_PATH.</translation>
    </message>
</context>
<context>
    <name>Panel::PoolDifferences</name>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>In pool %1</source>
        <translation>Dans le pool %1</translation>
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
    <name>Panel::PresetMenu</name>
    <message>
        <source>Prese&amp;ts</source>
        <translation>Prérégla&amp;ges</translation>
    </message>
    <message>
        <source>The presets could not be copied to %1: %2</source>
        <translation>Les préréglages n&apos;ont pas pu être copiés dans %1 : %2</translation>
    </message>
    <message>
        <source>&amp;Save as preset...</source>
        <translation>&amp;Enregistrer comme préréglage...</translation>
    </message>
    <message>
        <source>Presets are kept beside the network file. Save the network first.</source>
        <translation>Les préréglages sont rangés à côté du fichier du réseau. Enregistrez d&apos;abord le réseau.</translation>
    </message>
    <message>
        <source>The file with the presets cannot be read.</source>
        <translation>Le fichier des préréglages ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Re&amp;move preset</source>
        <translation>S&amp;upprimer un préréglage</translation>
    </message>
    <message>
        <source>There is no preset “%1” any more.</source>
        <translation>Le préréglage « %1 » n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Applied the preset “%1” to %2.</source>
        <translation>Le préréglage « %1 » a été appliqué à %2.</translation>
    </message>
    <message>
        <source>Not all values of the preset could be applied</source>
        <translation>Certaines valeurs du préréglage n&apos;ont pas pu être appliquées</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nom du préréglage :</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage a besoin d&apos;un nom.</translation>
    </message>
    <message>
        <source>Saved the preset “%1” in %2.</source>
        <translation>Le préréglage « %1 » a été enregistré dans %2.</translation>
    </message>
    <message>
        <source>There is a preset “%1” already.</source>
        <translation>Le préréglage « %1 » existe déjà.</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Removed the preset “%1”.</source>
        <translation>Le préréglage « %1 » a été supprimé.</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
</context>
<context>
    <name>Panel::RecentMenu</name>
    <message>
        <source>Open &amp;recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>Panel::Recovery</name>
    <message>
        <source>The unsaved values cannot be kept in %1: %2</source>
        <translation>Les valeurs non enregistrées ne peuvent pas être conservées dans %1 : %2</translation>
    </message>
    <message>
        <source>The unsaved values cannot be kept in %1.</source>
        <translation>Les valeurs non enregistrées ne peuvent pas être conservées dans %1.</translation>
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
    <name>Panel::ViewDock</name>
    <message>
        <source>Pool of this view</source>
        <translation>Pool de cette vue</translation>
    </message>
    <message>
        <source>The pool whose values this view shows and edits</source>
        <translation>Le pool dont cette vue affiche et modifie les valeurs</translation>
    </message>
    <message>
        <source>Pool of the window</source>
        <translation>Pool de la fenêtre</translation>
    </message>
    <message>
        <source>%1 in pool %2</source>
        <translation>%1 dans le pool %2</translation>
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
    <name>Panel::ViewPoolMenu</name>
    <message>
        <source>New view on &amp;pool</source>
        <translation>Nouvelle vue sur un &amp;pool</translation>
    </message>
</context>
<context>
    <name>PluginTrial</name>
    <message>
        <source>The plug-in %1 was not loaded, because loading it takes more than %2 seconds.</source>
        <translation>Le greffon %1 n’a pas été chargé, car son chargement dure plus de %2 secondes.</translation>
    </message>
    <message>
        <source>The plug-in %1 was not loaded, because it ends the program while it is loaded.</source>
        <translation>Le greffon %1 n’a pas été chargé, car il met fin au programme pendant son chargement.</translation>
    </message>
    <message>
        <source>The plug-in %1 was not loaded, because it crashes while it is loaded (%2).</source>
        <translation>Le greffon %1 n’a pas été chargé, car il plante pendant son chargement (%2).</translation>
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
