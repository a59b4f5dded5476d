<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CountTexts</name>
    <message>
        <source>1 parameter</source>
        <translation>1 Parameter</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters</source>
        <translation>
            <numerusform>%n Parameter</numerusform>
            <numerusform>%n Parameter</numerusform>
        </translation>
    </message>
    <message>
        <source>1 object</source>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n Objekte</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>1 parameter found</source>
        <translation>1 Parameter gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters found</source>
        <translation>
            <numerusform>%n Parameter gefunden</numerusform>
            <numerusform>%n Parameter gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>Nächstes oder voriges Bedienelement</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>Leave a text of several lines</source>
        <translation>Einen mehrzeiligen Text verlassen</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Shift+Tab</source>
        <translation>Strg+Tab, Strg+Umschalt+Tab</translation>
    </message>
    <message>
        <source>Change a slider, or go through choices</source>
        <translation>Einen Regler verstellen oder durch die Auswahl gehen</translation>
    </message>
    <message>
        <source>Arrow keys, Page Up, Page Down</source>
        <translation>Pfeiltasten, Bild auf, Bild ab</translation>
    </message>
    <message>
        <source>Lowest or highest value</source>
        <translation>Kleinster oder größter Wert</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <source>Press a button, or switch a check box</source>
        <translation>Einen Knopf drücken oder ein Kästchen umschalten</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Enter what was typed</source>
        <translation>Übernehmen, was getippt wurde</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Take back a typed number</source>
        <translation>Eine getippte Zahl zurücknehmen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Take back a drag while the button is held</source>
        <translation>Ein Ziehen zurücknehmen, solange die Maustaste gedrückt ist</translation>
    </message>
    <message>
        <source>Change the value of the control with the focus</source>
        <translation>Den Wert des Bedienelements mit dem Fokus ändern</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menü der Zeile</translation>
    </message>
    <message>
        <source>Menu key, right mouse button</source>
        <translation>Menütaste, rechte Maustaste</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Anderswo</translation>
    </message>
    <message>
        <source>Filter: go to the first row that is found</source>
        <translation>Filter: zur ersten gefundenen Zeile gehen</translation>
    </message>
    <message>
        <source>Filter: show all</source>
        <translation>Filter: alle zeigen</translation>
    </message>
    <message>
        <source>History: go to the chosen state</source>
        <translation>Verlauf: zum gewählten Stand gehen</translation>
    </message>
    <message>
        <source>Cancel the computing</source>
        <translation>Die Berechnung abbrechen</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Andere Befehle</translation>
    </message>
</context>
<context>
    <name>MessageTexts</name>
    <message>
        <source>Action %1.%2 was fired in pool %3.</source>
        <translation>Die Aktion %1.%2 wurde im Pool %3 ausgelöst.</translation>
    </message>
    <message>
        <source>(no object)</source>
        <translation>(kein Objekt)</translation>
    </message>
    <message>
        <source>(no parameter)</source>
        <translation>(kein Parameter)</translation>
    </message>
    <message>
        <source>(no pool)</source>
        <translation>(kein Pool)</translation>
    </message>
    <message>
        <source>%1[*] – Talo panel</source>
        <translation>%1[*] – Talo-Bedienfeld</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Talo panel</source>
        <translation>%1[*] – %2 – Talo-Bedienfeld</translation>
    </message>
</context>
<context>
    <name>Panel::CommandLine</name>
    <message>
        <source>A control panel for networks of objects with typed parameters.</source>
        <translation>Ein Bedienfeld für Netze von Objekten mit typisierten Parametern.</translation>
    </message>
    <message>
        <source>Shows the object of this name.</source>
        <translation>Zeigt das Objekt dieses Namens.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Chooses the value pool of this name.</source>
        <translation>Wählt den Wertepool dieses Namens.</translation>
    </message>
    <message>
        <source>Sets a value as the host would, in the chosen pool. May be repeated.</source>
        <translation>Setzt einen Wert im gewählten Pool, wie das Wirtsprogramm es täte. Darf mehrfach stehen.</translation>
    </message>
    <message>
        <source>OBJECT.PARAMETER=TEXT</source>
        <translation>OBJEKT.PARAMETER=TEXT</translation>
    </message>
    <message>
        <source>Shows the raw values beside the editors.</source>
        <translation>Zeigt die Rohwerte neben den Editoren.</translation>
    </message>
    <message>
        <source>FILE.png</source>
        <translation>DATEI.png</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>BREITExHÖHE</translation>
    </message>
    <message>
        <source>Uses light or dark colours.</source>
        <translation>Verwendet helle oder dunkle Farben.</translation>
    </message>
    <message>
        <source>light|dark</source>
        <translation>light|dark</translation>
    </message>
    <message>
        <source>FACTOR</source>
        <translation>FAKTOR</translation>
    </message>
    <message>
        <source>Lays the panel out from right to left.</source>
        <translation>Ordnet das Bedienfeld von rechts nach links an.</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>SPRACHE</translation>
    </message>
    <message>
        <source>Shows each kind of editor twice on one value, in every state, instead of a network.</source>
        <translation>Zeigt statt eines Netzes jede Art von Editor zweimal an einem Wert, in jedem Zustand.</translation>
    </message>
    <message>
        <source>Shows this state of the gallery first: normal, per-pool, dead-parameter, no-pool or wrong-type.</source>
        <translation>Zeigt diesen Zustand der Galerie zuerst: normal, per-pool, dead-parameter, no-pool oder wrong-type.</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ZUSTAND</translation>
    </message>
    <message>
        <source>Prints all values as JSON and ends.</source>
        <translation>Gibt alle Werte als JSON aus und endet.</translation>
    </message>
    <message>
        <source>Prints the value type, name and preference set of each input creator, separated by tabs, and ends.</source>
        <translation>Gibt zu jedem Eingabe-Erzeuger Wertetyp, Namen und Vorgaben aus, durch Tabulatoren getrennt, und endet.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>More than one network is named: %1.</source>
        <translation>Mehr als ein Netz ist genannt: %1.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Die Option --%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>--set wants OBJECT.PARAMETER=TEXT and found &quot;%1&quot;.</source>
        <translation>--set erwartet OBJEKT.PARAMETER=TEXT und fand „%1“.</translation>
    </message>
    <message>
        <source>--size wants a size as in 1200x800 and found &quot;%1&quot;.</source>
        <translation>--size erwartet eine Größe wie 1200x800 und fand „%1“.</translation>
    </message>
    <message>
        <source>--palette wants light or dark and found &quot;%1&quot;.</source>
        <translation>--palette erwartet light oder dark und fand „%1“.</translation>
    </message>
    <message>
        <source>--scale wants a factor from 0.5 to 4 and found &quot;%1&quot;.</source>
        <translation>--scale erwartet einen Faktor von 0.5 bis 4 und fand „%1“.</translation>
    </message>
    <message>
        <source>--language wants a language as in de or fr and found &quot;%1&quot;.</source>
        <translation>--language erwartet eine Sprache wie de oder fr und fand „%1“.</translation>
    </message>
    <message>
        <source>--state wants one of %1 and found &quot;%2&quot;.</source>
        <translation>--state erwartet eines von %1 und fand „%2“.</translation>
    </message>
    <message>
        <source>The network to open; examples/networks/fractal.json by default.</source>
        <translation>Das Netz, das geöffnet wird; ohne Angabe examples/networks/fractal.json.</translation>
    </message>
    <message>
        <source>Prints this help and ends.</source>
        <translation>Gibt diese Hilfe aus und endet.</translation>
    </message>
    <message>
        <source>Prints the version and ends.</source>
        <translation>Gibt die Version aus und endet.</translation>
    </message>
    <message>
        <source>Draws the panel into an image file and ends; needs no display.</source>
        <translation>Zeichnet das Bedienfeld in eine Bilddatei und endet; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>Sets the size of the window, as in 1200x800.</source>
        <translation>Setzt die Größe des Fensters, etwa 1200x800.</translation>
    </message>
    <message>
        <source>Scales the panel by this factor, from 0.5 to 4.</source>
        <translation>Skaliert das Bedienfeld mit diesem Faktor, von 0.5 bis 4.</translation>
    </message>
    <message>
        <source>Uses this language instead of the system&apos;s, as in de or fr.</source>
        <translation>Verwendet diese Sprache statt der des Systems, etwa de oder fr.</translation>
    </message>
    <message>
        <source>Does not restore or save the session.</source>
        <translation>Stellt die Sitzung nicht wieder her und speichert sie nicht.</translation>
    </message>
    <message>
        <source>--state needs --gallery.</source>
        <translation>--state braucht --gallery.</translation>
    </message>
    <message>
        <source>The gallery opens no network, so --%1 cannot be used with --gallery.</source>
        <translation>Die Galerie öffnet kein Netz, daher kann --%1 nicht mit --gallery verwendet werden.</translation>
    </message>
    <message>
        <source>The gallery opens no network, so %1 cannot be used with --gallery.</source>
        <translation>Die Galerie öffnet kein Netz, daher kann %1 nicht mit --gallery verwendet werden.</translation>
    </message>
    <message>
        <source>The name of a network is empty.</source>
        <translation>Der Name eines Netzes ist leer.</translation>
    </message>
    <message>
        <source>Loads this plug-in file as well. Those beside qtalo_inputs.talo, and in the folders that TALO_PLUGIN_PATH names, are loaded anyway. May be repeated.</source>
        <translation>Lädt auch diese Plug-in-Datei. Die Dateien neben qtalo_inputs.talo und in den Ordnern, die TALO_PLUGIN_PATH nennt, werden ohnehin geladen. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>Loads this plug-in file instead of those that are found. May be repeated.</source>
        <translation>Lädt diese Plug-in-Datei anstelle der gefundenen. Mehrfach möglich.</translation>
    </message>
</context>
<context>
    <name>Panel::ComparisonDock</name>
    <message>
        <source>Compare pools</source>
        <translation>Pools vergleichen</translation>
    </message>
</context>
<context>
    <name>Panel::ComparisonView</name>
    <message>
        <source>First pool</source>
        <translation>Erster Pool</translation>
    </message>
    <message>
        <source>Second pool</source>
        <translation>Zweiter Pool</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Compares the values of now</source>
        <translation>Vergleicht die jetzigen Werte</translation>
    </message>
    <message>
        <source>Parameters that differ</source>
        <translation>Parameter, die sich unterscheiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>1 parameter differs.</source>
        <translation>1 Parameter unterscheidet sich.</translation>
    </message>
    <message numerus="yes">
        <source>%n parameters differ.</source>
        <translation>
            <numerusform>%n Parameter unterscheiden sich.</numerusform>
            <numerusform>%n Parameter unterscheiden sich.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::Document</name>
    <message>
        <source>No network is open.</source>
        <translation>Kein Netz ist geöffnet.</translation>
    </message>
</context>
<context>
    <name>Panel::EditorsMenu</name>
    <message>
        <source>&amp;Editors</source>
        <translation>E&amp;ditoren</translation>
    </message>
</context>
<context>
    <name>Panel::FileDrop</name>
    <message>
        <source>Only one network file can be opened at a time.</source>
        <translation>Es kann immer nur eine Netzwerkdatei geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 is no file of this computer.</source>
        <translation>%1 ist keine Datei dieses Rechners.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>Panel::FileMenu</name>
    <message>
        <source>Networks (*.json);;All files (*)</source>
        <translation>Netze (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save values</source>
        <translation>Werte &amp;speichern</translation>
    </message>
    <message>
        <source>Save values &amp;as...</source>
        <translation>Werte speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Open a network</source>
        <translation>Ein Netz öffnen</translation>
    </message>
    <message>
        <source>The network cannot be opened</source>
        <translation>Das Netz lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Save the values</source>
        <translation>Die Werte speichern</translation>
    </message>
    <message>
        <source>The values cannot be saved</source>
        <translation>Die Werte lassen sich nicht speichern</translation>
    </message>
    <message>
        <source>Unsaved values</source>
        <translation>Nicht gespeicherte Werte</translation>
    </message>
    <message>
        <source>The values of “%1” were changed.</source>
        <translation>Die Werte von „%1“ wurden geändert.</translation>
    </message>
    <message>
        <source>Unless they are saved, the changes are lost.</source>
        <translation>Werden sie nicht gespeichert, gehen die Änderungen verloren.</translation>
    </message>
    <message>
        <source>The file is gone</source>
        <translation>Die Datei ist weg</translation>
    </message>
    <message>
        <source>The file was changed</source>
        <translation>Die Datei wurde geändert</translation>
    </message>
    <message>
        <source>%1 is gone since it was opened or saved here.</source>
        <translation>%1 gibt es nicht mehr, seit die Datei hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here.</source>
        <translation>Ein anderes Programm hat %1 geändert, seit die Datei hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Shall it be written again?</source>
        <translation>Soll sie neu geschrieben werden?</translation>
    </message>
    <message>
        <source>Saving overwrites what the other program wrote.</source>
        <translation>Speichern überschreibt, was das andere Programm geschrieben hat.</translation>
    </message>
    <message>
        <source>Unfinished work</source>
        <translation>Unfertige Arbeit</translation>
    </message>
    <message>
        <source>It ends with the network, and its file is not written.</source>
        <translation>Sie endet mit dem Netzwerk, und ihre Datei wird nicht geschrieben.</translation>
    </message>
    <message>
        <source>&amp;End it</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Re&amp;vert to the file</source>
        <translation>Auf die &amp;Datei zurücksetzen</translation>
    </message>
    <message>
        <source>%1 is gone. It is not listed any more.</source>
        <translation>%1 ist nicht mehr da. Die Datei wird nicht mehr aufgeführt.</translation>
    </message>
    <message>
        <source>They become those of the file. The changes are lost, and so is the history.</source>
        <translation>Sie werden zu denen der Datei. Die Änderungen gehen verloren, und der Verlauf auch.</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Zu&amp;rücksetzen</translation>
    </message>
</context>
<context>
    <name>Panel::FileNotices</name>
    <message>
        <source>%1 is gone. The values are still here; saving writes the file again.</source>
        <translation>%1 gibt es nicht mehr. Die Werte sind noch hier; Speichern schreibt die Datei neu.</translation>
    </message>
    <message>
        <source>Another program has changed %1. Saving will ask before it overwrites the file.</source>
        <translation>Ein anderes Programm hat %1 geändert. Speichern fragt, bevor es die Datei überschreibt.</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Ein anderes Programm hat %1 geändert.</translation>
    </message>
    <message>
        <source>&amp;Load it again</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>The network cannot be opened</source>
        <translation>Das Netzwerk kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 is open in another panel, too. Who saves last overwrites what the other one saved.</source>
        <translation>%1 ist auch in einem anderen Panel offen. Wer zuletzt speichert, überschreibt, was der andere gespeichert hat.</translation>
    </message>
    <message>
        <source>Unsaved values</source>
        <translation>Ungespeicherte Werte</translation>
    </message>
    <message>
        <source>The panel ended while values of “%1” were not saved.</source>
        <translation>Das Panel wurde beendet, während Werte von „%1“ nicht gespeichert waren.</translation>
    </message>
    <message>
        <source>They were kept on %1. Shall they be restored?</source>
        <translation>Sie wurden am %1 aufgehoben. Sollen sie wiederhergestellt werden?</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Restored unsaved values.</source>
        <translation>Ungespeicherte Werte wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>Not all values could be restored</source>
        <translation>Nicht alle Werte konnten wiederhergestellt werden</translation>
    </message>
</context>
<context>
    <name>Panel::FilterField</name>
    <message>
        <source>&amp;Find a parameter</source>
        <translation>&amp;Parameter suchen</translation>
    </message>
    <message>
        <source>Filter by name, object or value</source>
        <translation>Nach Name, Objekt oder Wert filtern</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Nur Geändertes</translation>
    </message>
    <message>
        <source>Shows the parameters whose name, label, help, object, kind or value has all of these words</source>
        <translation>Zeigt die Parameter, in deren Namen, Beschriftung, Hilfe, Objekt, Art oder Wert alle diese Wörter vorkommen</translation>
    </message>
    <message>
        <source>Shows only the parameters whose value differs from the default</source>
        <translation>Zeigt nur die Parameter, deren Wert vom Standardwert abweicht</translation>
    </message>
</context>
<context>
    <name>Panel::Gallery</name>
    <message>
        <source>Gallery – Talo panel</source>
        <translation>Galerie – Talo-Bedienfeld</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>Action %1 was fired.</source>
        <translation>Die Aktion %1 wurde ausgelöst.</translation>
    </message>
</context>
<context>
    <name>Panel::GalleryPage</name>
    <message>
        <source>P&amp;ool:</source>
        <translation>P&amp;ool:</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Erzeuger</translation>
    </message>
    <message>
        <source>First editor</source>
        <translation>Erster Editor</translation>
    </message>
    <message>
        <source>Second editor</source>
        <translation>Zweiter Editor</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>Rohwert</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Editors</source>
        <translation>Editoren</translation>
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
        <translation>Niemand kann einen Wert dieses Typs anlegen.</translation>
    </message>
    <message>
        <source>For these preferences %1 is chosen.</source>
        <translation>Zu diesen Vorgaben wird %1 gewählt.</translation>
    </message>
    <message>
        <source>No creator is chosen for these preferences.</source>
        <translation>Zu diesen Vorgaben wird kein Erzeuger gewählt.</translation>
    </message>
    <message>
        <source>%1, editor %2</source>
        <translation>%1, Editor %2</translation>
    </message>
</context>
<context>
    <name>Panel::GalleryState</name>
    <message>
        <source>Per pool</source>
        <translation>Je Pool</translation>
    </message>
    <message>
        <source>Dead parameter</source>
        <translation>Toter Parameter</translation>
    </message>
    <message>
        <source>No pool</source>
        <translation>Kein Pool</translation>
    </message>
    <message>
        <source>Wrong type</source>
        <translation>Falscher Typ</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Each parameter keeps a value per pool. Editors show and change the value of the chosen pool.</source>
        <translation>Jeder Parameter hält je Pool einen Wert. Die Editoren zeigen und ändern den Wert des gewählten Pools.</translation>
    </message>
    <message>
        <source>Each parameter was deleted after its editors were made. An edit finds nothing to write to and says so.</source>
        <translation>Jeder Parameter wurde gelöscht, nachdem seine Editoren angelegt waren. Eine Änderung findet kein Ziel und sagt das.</translation>
    </message>
    <message>
        <source>No pool is chosen. An edit stores nothing and tells nobody.</source>
        <translation>Kein Pool ist gewählt. Eine Änderung speichert nichts und meldet nichts.</translation>
    </message>
    <message>
        <source>Each parameter holds a value of another type than it declares. Editors leave that value alone.</source>
        <translation>Jeder Parameter hält einen Wert von anderem Typ, als er angibt. Die Editoren lassen diesen Wert unberührt.</translation>
    </message>
    <message>
        <source>Each parameter has one value. What one editor changes, the other one shows at once.</source>
        <translation>Jeder Parameter hat einen Wert. Was ein Editor ändert, zeigt der andere sofort.</translation>
    </message>
</context>
<context>
    <name>Panel::HelpDock</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>Panel::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>&amp;About the Talo panel</source>
        <translation>Ü&amp;ber das Talo-Panel</translation>
    </message>
    <message>
        <source>About the Talo panel</source>
        <translation>Über das Talo-Panel</translation>
    </message>
    <message>
        <source>Talo panel %1</source>
        <translation>Talo-Panel %1</translation>
    </message>
    <message>
        <source>The panel shows and edits the parameters of a network.

It is under the MIT licence; the file LICENSE has its text.

It runs with Qt %1.</source>
        <translation>Das Panel zeigt und bearbeitet die Parameter eines Netzwerks.

Es steht unter der MIT-Lizenz; ihr Text ist in der Datei LICENSE.

Es läuft mit Qt %1.</translation>
    </message>
</context>
<context>
    <name>Panel::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
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
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>Panel::LookMenu</name>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Text size</source>
        <translation>&amp;Textgröße</translation>
    </message>
    <message>
        <source>&amp;Larger text</source>
        <translation>&amp;Größerer Text</translation>
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
        <translation>&amp;Kleinerer Text</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Usual text size</source>
        <translation>&amp;Übliche Textgröße</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
</context>
<context>
    <name>Panel::MainWindow</name>
    <message>
        <source>Talo panel</source>
        <translation>Talo-Bedienfeld</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 wurde geöffnet.</translation>
    </message>
    <message>
        <source>Saved the values to %1.</source>
        <translation>Die Werte wurden in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
</context>
<context>
    <name>Panel::MessageDock</name>
    <message>
        <source>Shows or hides what the panel and its plug-ins print.</source>
        <translation>Zeigt oder verbirgt, was das Bedienfeld und seine Plug-ins ausgeben.</translation>
    </message>
    <message>
        <source>1 line of output</source>
        <translation>1 Zeile Ausgabe</translation>
    </message>
    <message numerus="yes">
        <source>%n lines of output</source>
        <translation>
            <numerusform>%n Zeile Ausgabe</numerusform>
            <numerusform>%n Zeilen Ausgabe</numerusform>
        </translation>
    </message>
    <message>
        <source>1 line of output was left out, because it came too fast.</source>
        <translation>1 Zeile der Ausgabe wurde ausgelassen, weil sie zu schnell kam.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines of output were left out, because they came too fast.</source>
        <translation>
            <numerusform>%n Zeile der Ausgabe wurde ausgelassen, weil sie zu schnell kam.</numerusform>
            <numerusform>%n Zeilen der Ausgabe wurden ausgelassen, weil sie zu schnell kamen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::MessageList</name>
    <message>
        <source>output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>Bedienfeld</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>Panel::NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Diesen Hinweis schließen</translation>
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
        <translation>Benachrichtigungen von %1: %2</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectColumn</name>
    <message>
        <source>Order of the objects</source>
        <translation>Reihenfolge der Objekte</translation>
    </message>
    <message>
        <source>The order in which the objects are listed</source>
        <translation>Die Reihenfolge, in der die Objekte aufgelistet sind</translation>
    </message>
    <message>
        <source>In &amp;file order</source>
        <translation>Wie in der &amp;Datei</translation>
    </message>
    <message>
        <source>By &amp;name</source>
        <translation>Nach &amp;Namen</translation>
    </message>
    <message>
        <source>By &amp;kind</source>
        <translation>Nach &amp;Art</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectCommands</name>
    <message>
        <source>Reset s&amp;ection to default</source>
        <translation>A&amp;bschnitt zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;object to default</source>
        <translation>&amp;Objekt zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;all objects to default</source>
        <translation>&amp;Alle Objekte zurücksetzen</translation>
    </message>
    <message>
        <source>Copy sectio&amp;n</source>
        <translation>Abschn&amp;itt kopieren</translation>
    </message>
    <message>
        <source>Copy o&amp;bjects</source>
        <translation>Objek&amp;te kopieren</translation>
    </message>
    <message>
        <source>Paste into ob&amp;jects</source>
        <translation>In Ob&amp;jekte einfügen</translation>
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
        <translation>Objekte</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectModel</name>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Parameters found</source>
        <translation>Gefundene Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Panel::ObjectView</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::PluginMenu</name>
    <message>
        <source>&amp;Plug-ins</source>
        <translation>&amp;Plug-ins</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden …</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Entladen</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Plug-ins: %1, kinds of editors: %2</source>
        <translation>Plug-ins: %1, Arten von Editoren: %2</translation>
    </message>
    <message>
        <source>Load a plug-in</source>
        <translation>Ein Plug-in laden</translation>
    </message>
    <message>
        <source>Plug-ins (*.talo);;All files (*)</source>
        <translation>Plug-ins (*.talo);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>Das Plug-in lässt sich nicht laden</translation>
    </message>
    <message>
        <source>The plug-ins were unloaded.</source>
        <translation>Die Plug-ins wurden entladen.</translation>
    </message>
    <message>
        <source>The plug-ins cannot be unloaded</source>
        <translation>Die Plug-ins lassen sich nicht entladen</translation>
    </message>
    <message>
        <source>The plug-ins were loaded again.</source>
        <translation>Die Plug-ins wurden neu geladen.</translation>
    </message>
    <message>
        <source>The plug-ins cannot be loaded again</source>
        <translation>Die Plug-ins lassen sich nicht neu laden</translation>
    </message>
    <message>
        <source>%1

Load it anyway? Unsaved values may be lost.</source>
        <translation>%1

Trotzdem laden? Ungespeicherte Werte können verloren gehen.</translation>
    </message>
</context>
<context>
    <name>Panel::PluginSearch</name>
    <message>
        <source>%1 is not loaded again: it is the file %2.</source>
        <translation>%1 wird nicht noch einmal geladen: Es ist die Datei %2.</translation>
    </message>
    <message>
        <source>%1 is loaded once only.</source>
        <translation>%1 wird nur einmal geladen.</translation>
    </message>
    <message>
        <source>%1 is not loaded: %2 has the same name and comes first.</source>
        <translation>%1 wird nicht geladen: %2 hat denselben Namen und kommt zuerst.</translation>
    </message>
    <message>
        <source>The folder %1 of TALO_PLUGIN_PATH cannot be read.</source>
        <translation>Der Ordner %1 aus TALO_PLUGIN_PATH kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Panel::PoolDifferences</name>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>In pool %1</source>
        <translation>Im Pool %1</translation>
    </message>
</context>
<context>
    <name>Panel::PoolToolBar</name>
    <message>
        <source>Pool and filter</source>
        <translation>Pool und Filter</translation>
    </message>
    <message>
        <source>P&amp;ool:</source>
        <translation>P&amp;ool:</translation>
    </message>
    <message>
        <source>Pool</source>
        <translation>Pool</translation>
    </message>
    <message>
        <source>The pool whose values are edited</source>
        <translation>Der Pool, dessen Werte bearbeitet werden</translation>
    </message>
</context>
<context>
    <name>Panel::PresetMenu</name>
    <message>
        <source>Prese&amp;ts</source>
        <translation>Voreinste&amp;llungen</translation>
    </message>
    <message>
        <source>The presets could not be copied to %1: %2</source>
        <translation>Die Voreinstellungen konnten nicht nach %1 kopiert werden: %2</translation>
    </message>
    <message>
        <source>&amp;Save as preset...</source>
        <translation>Als Voreinstellung &amp;speichern ...</translation>
    </message>
    <message>
        <source>Presets are kept beside the network file. Save the network first.</source>
        <translation>Voreinstellungen liegen neben der Netzwerkdatei. Speichern Sie zuerst das Netzwerk.</translation>
    </message>
    <message>
        <source>The file with the presets cannot be read.</source>
        <translation>Die Datei mit den Voreinstellungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Re&amp;move preset</source>
        <translation>Voreinstellung &amp;entfernen</translation>
    </message>
    <message>
        <source>There is no preset “%1” any more.</source>
        <translation>Die Voreinstellung „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Applied the preset “%1” to %2.</source>
        <translation>Die Voreinstellung „%1“ wurde auf %2 angewendet.</translation>
    </message>
    <message>
        <source>Not all values of the preset could be applied</source>
        <translation>Nicht alle Werte der Voreinstellung konnten angewendet werden</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Name der Voreinstellung:</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>Saved the preset “%1” in %2.</source>
        <translation>Die Voreinstellung „%1“ wurde in %2 gespeichert.</translation>
    </message>
    <message>
        <source>There is a preset “%1” already.</source>
        <translation>Die Voreinstellung „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>Removed the preset “%1”.</source>
        <translation>Die Voreinstellung „%1“ wurde entfernt.</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
</context>
<context>
    <name>Panel::RecentMenu</name>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Panel::Recovery</name>
    <message>
        <source>The unsaved values cannot be kept in %1: %2</source>
        <translation>Die ungespeicherten Werte können nicht in %1 aufgehoben werden: %2</translation>
    </message>
    <message>
        <source>The unsaved values cannot be kept in %1.</source>
        <translation>Die ungespeicherten Werte können nicht in %1 aufgehoben werden.</translation>
    </message>
</context>
<context>
    <name>Panel::Session</name>
    <message>
        <source>The session cannot be kept in %1.</source>
        <translation>Die Sitzung lässt sich nicht in %1 behalten.</translation>
    </message>
</context>
<context>
    <name>Panel::ViewDock</name>
    <message>
        <source>Pool of this view</source>
        <translation>Pool dieser Ansicht</translation>
    </message>
    <message>
        <source>The pool whose values this view shows and edits</source>
        <translation>Der Pool, dessen Werte diese Ansicht zeigt und bearbeitet</translation>
    </message>
    <message>
        <source>Pool of the window</source>
        <translation>Pool des Fensters</translation>
    </message>
    <message>
        <source>%1 in pool %2</source>
        <translation>%1 im Pool %2</translation>
    </message>
</context>
<context>
    <name>Panel::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Raw values</source>
        <translation>&amp;Rohwerte</translation>
    </message>
    <message>
        <source>&amp;New view</source>
        <translation>&amp;Neue Ansicht</translation>
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
        <translation>&amp;Erweiterte Parameter</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Fold all sections</source>
        <translation>Alle Abschnitte &amp;zuklappen</translation>
    </message>
    <message>
        <source>&amp;Open all sections</source>
        <translation>Alle Abschnitte &amp;aufklappen</translation>
    </message>
</context>
<context>
    <name>Panel::ViewPoolMenu</name>
    <message>
        <source>New view on &amp;pool</source>
        <translation>Neue Ansicht auf &amp;Pool</translation>
    </message>
</context>
<context>
    <name>PluginTrial</name>
    <message>
        <source>The plug-in %1 was not loaded, because loading it takes more than %2 seconds.</source>
        <translation>Das Plug-in %1 wurde nicht geladen, weil das Laden länger als %2 Sekunden dauert.</translation>
    </message>
    <message>
        <source>The plug-in %1 was not loaded, because it ends the program while it is loaded.</source>
        <translation>Das Plug-in %1 wurde nicht geladen, weil es das Programm beim Laden beendet.</translation>
    </message>
    <message>
        <source>The plug-in %1 was not loaded, because it crashes while it is loaded (%2).</source>
        <translation>Das Plug-in %1 wurde nicht geladen, weil es beim Laden abstürzt (%2).</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--help says how to start the program.</source>
        <translation>--help sagt, wie das Programm gestartet wird.</translation>
    </message>
    <message>
        <source>%1 has no pool &quot;%2&quot;, only %3.</source>
        <translation>%1 hat keinen Pool „%2“, nur %3.</translation>
    </message>
    <message>
        <source>%1 has no object &quot;%2&quot;.</source>
        <translation>%1 hat kein Objekt „%2“.</translation>
    </message>
    <message>
        <source>Cannot write the image %1.</source>
        <translation>Das Bild %1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>examples/networks/fractal.json is missing; name a network to open.</source>
        <translation>examples/networks/fractal.json fehlt; nennen Sie ein Netz, das geöffnet werden soll.</translation>
    </message>
    <message>
        <source>Talo panel</source>
        <translation>Talo-Bedienfeld</translation>
    </message>
    <message>
        <source>There is no display, so the panel was drawn into %1.</source>
        <translation>Es gibt keinen Bildschirm, daher wurde das Bedienfeld in %1 gezeichnet.</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The display is gone.</source>
        <translation>Die Anzeige ist weg.</translation>
    </message>
</context>
</TS>
