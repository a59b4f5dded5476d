<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EditorCell</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>EditorMenu</name>
    <message>
        <source>&amp;Usual</source>
        <translation>&amp;Üblicher</translation>
    </message>
    <message>
        <source>%1 is not loaded</source>
        <translation>%1 ist nicht geladen</translation>
    </message>
    <message>
        <source>No parameter is chosen</source>
        <translation>Es ist kein Parameter gewählt</translation>
    </message>
    <message>
        <source>This &amp;parameter</source>
        <translation>Dieser &amp;Parameter</translation>
    </message>
    <message>
        <source>All parameters of this &amp;type</source>
        <translation>Alle Parameter dieses &amp;Typs</translation>
    </message>
</context>
<context>
    <name>HostTexts</name>
    <message>
        <source>No creator is registered for %1.</source>
        <translation>Für %1 ist kein Erzeuger eingetragen.</translation>
    </message>
    <message>
        <source>There is no parameter.</source>
        <translation>Es gibt keinen Parameter.</translation>
    </message>
    <message>
        <source>%1 holds all of the wanted %2. Creators for %4: %3.</source>
        <translation>%1 enthält alle gewünschten %2. Erzeuger für %4: %3.</translation>
    </message>
    <message>
        <source>%1 shares most with the wanted %2. Creators for %4: %3.</source>
        <translation>%1 hat am meisten mit den gewünschten %2 gemeinsam. Erzeuger für %4: %3.</translation>
    </message>
    <message>
        <source>Without a pool source the editor drops every edit.</source>
        <translation>Ohne eine Quelle für Pools verwirft der Editor jede Eingabe.</translation>
    </message>
    <message>
        <source>The editor drops every edit as long as its source has no pool.</source>
        <translation>Der Editor verwirft jede Eingabe, solange seine Quelle keinen Pool hat.</translation>
    </message>
    <message>
        <source>This creator makes no Qt widgets.</source>
        <translation>Dieser Erzeuger macht keine Qt-Widgets.</translation>
    </message>
    <message>
        <source>The plug-in %1 is loaded already.</source>
        <translation>Das Plug-in %1 ist schon geladen.</translation>
    </message>
    <message>
        <source>Cannot open the plug-in %1: %2</source>
        <translation>Das Plug-in %1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>Cannot find the export %1 in the plug-in %2: %3</source>
        <translation>Im Plug-in %2 fehlt der Export %1: %3</translation>
    </message>
    <message>
        <source>The plug-in %1 says that it is not compatible with this host (%2).</source>
        <translation>Das Plug-in %1 sagt, dass es nicht zu diesem Programm passt (%2).</translation>
    </message>
    <message>
        <source>The plug-in %1 is not loaded.</source>
        <translation>Das Plug-in %1 ist nicht geladen.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded. Editors in use: %2.</source>
        <translation>Das Plug-in %1 lässt sich nicht entladen. Editoren in Gebrauch: %2.</translation>
    </message>
    <message>
        <source>Cannot close the plug-in %1: %2</source>
        <translation>Das Plug-in %1 lässt sich nicht schließen: %2</translation>
    </message>
    <message>
        <source>The editor edits a value of type %1 and not %2.</source>
        <translation>Der Editor bearbeitet einen Wert vom Typ %1 und nicht %2.</translation>
    </message>
    <message>
        <source>Its creator made no widget.</source>
        <translation>Sein Erzeuger hat kein Widget gemacht.</translation>
    </message>
    <message>
        <source>Its creator handed out a widget of the program&apos;s own.</source>
        <translation>Sein Erzeuger hat ein Widget des Programms selbst herausgegeben.</translation>
    </message>
    <message>
        <source>Its creator ended with an exception: %1.</source>
        <translation>Sein Erzeuger endete mit einer Ausnahme: %1.</translation>
    </message>
    <message>
        <source>The editor of the parameter &quot;%1&quot;, of %2, ended with an exception: %3.</source>
        <translation>Der Editor des Parameters „%1“ aus %2 endete mit einer Ausnahme: %3.</translation>
    </message>
    <message>
        <source>An editor of %1 ended with an exception: %2.</source>
        <translation>Ein Editor aus %1 endete mit einer Ausnahme: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is loaded already, as %2.</source>
        <translation>Das Plug-in %1 ist schon geladen, als %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 does not say for which interface of the host it was built.</source>
        <translation>Das Plug-in %1 sagt nicht, für welche Schnittstelle des Programms es gebaut wurde.</translation>
    </message>
    <message>
        <source>The plug-in %1 was built for another interface of the host (%2, not %3). Build it again.</source>
        <translation>Das Plug-in %1 wurde für eine andere Schnittstelle des Programms gebaut (%2 statt %3). Es muss neu gebaut werden.</translation>
    </message>
    <message>
        <source>The plug-in %1 ended with an exception: %2</source>
        <translation>Das Plug-in %1 endete mit einer Ausnahme: %2</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded while its own code is running.</source>
        <translation>Das Plug-in %1 kann nicht entladen werden, während sein eigener Code läuft.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be unloaded while these are in use: %2.</source>
        <translation>Das Plug-in %1 kann nicht entladen werden, solange dies verwendet wird: %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 was closed and is still in memory, because something else holds it.</source>
        <translation>Das Plug-in %1 wurde geschlossen und ist noch im Speicher, weil etwas anderes es festhält.</translation>
    </message>
    <message>
        <source>The plug-in %1 left behind what was removed now: %2</source>
        <translation>Das Plug-in %1 hat zurückgelassen, was nun entfernt wurde: %2</translation>
    </message>
</context>
<context>
    <name>ObjectClipboard</name>
    <message>
        <source>There are no values of objects on the clipboard.</source>
        <translation>In der Zwischenablage sind keine Werte von Objekten.</translation>
    </message>
    <message>
        <source>No values of %1 were copied.</source>
        <translation>Es wurden keine Werte von %1 kopiert.</translation>
    </message>
    <message>
        <source>%1 keeps a value: %2.</source>
        <translation>%1 behält einen Wert: %2.</translation>
    </message>
</context>
<context>
    <name>ObjectValues</name>
    <message>
        <source>there is no such parameter</source>
        <translation>diesen Parameter gibt es nicht</translation>
    </message>
    <message>
        <source>it cannot be changed here</source>
        <translation>er kann hier nicht geändert werden</translation>
    </message>
    <message>
        <source>it is of another type</source>
        <translation>er hat einen anderen Typ</translation>
    </message>
    <message>
        <source>it does not take a value in this pool</source>
        <translation>er nimmt in diesem Pool keinen Wert an</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RefusedNumber</name>
    <message>
        <source>Write a whole number without separators.</source>
        <translation>Schreiben Sie eine ganze Zahl ohne Trennzeichen.</translation>
    </message>
    <message>
        <source>Write the number without group separators and with a point before the decimals.</source>
        <translation>Schreiben Sie die Zahl ohne Tausendertrennzeichen und mit einem Punkt vor den Nachkommastellen.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>This is no number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;. %3</source>
        <translation>%1 nimmt „%2“ nicht an. %3</translation>
    </message>
</context>
<context>
    <name>RowCommands</name>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Auf &amp;Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Copy value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Paste value</source>
        <translation>Wert &amp;einfügen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>&amp;Set as default</source>
        <translation>Als Sta&amp;ndard setzen</translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Die Zwischenablage ist leer.</translation>
    </message>
    <message>
        <source>%1 does not take a value in this pool.</source>
        <translation>%1 nimmt in diesem Pool keinen Wert an.</translation>
    </message>
    <message>
        <source>%1 cannot be changed here.</source>
        <translation>%1 kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>S&amp;how help</source>
        <translation>&amp;Hilfe zeigen</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>&amp;Editors</source>
        <translation>E&amp;ditoren</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>Bereich: %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>This value cannot be changed here.</source>
        <translation>Dieser Wert kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message>
        <source>Preferences: %1</source>
        <translation>Vorgaben: %1</translation>
    </message>
    <message>
        <source>Editor: %1</source>
        <translation>Editor: %1</translation>
    </message>
    <message>
        <source>%1, type %2</source>
        <translation>%1, Typ %2</translation>
    </message>
    <message>
        <source>%1, type %2, no pool</source>
        <translation>%1, Typ %2, kein Pool</translation>
    </message>
    <message>
        <source>%1, type %2, in pool %3</source>
        <translation>%1, Typ %2, im Pool %3</translation>
    </message>
    <message>
        <source>was removed</source>
        <translation>wurde entfernt</translation>
    </message>
    <message>
        <source>in pool %1</source>
        <translation>im Pool %1</translation>
    </message>
    <message>
        <source>no pool</source>
        <translation>kein Pool</translation>
    </message>
</context>
<context>
    <name>Talo::FileButtonText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Talo::HelpView</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>F1 in a row shows what its parameter does.</source>
        <translation>F1 in einer Zeile zeigt, was ihr Parameter tut.</translation>
    </message>
</context>
<context>
    <name>Talo::HistoryView</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Before all steps</source>
        <translation>Vor allen Schritten</translation>
    </message>
    <message>
        <source>The undo steps. Return goes to the state after the chosen step.</source>
        <translation>Die Schritte, die rückgängig gemacht werden können. Die Eingabetaste führt zum Zustand nach dem gewählten Schritt.</translation>
    </message>
    <message>
        <source>%1, undone</source>
        <translation>%1, rückgängig gemacht</translation>
    </message>
    <message>
        <source>Oldest state that is kept</source>
        <translation>Ältester Zustand, der behalten wird</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <comment>start, memory</comment>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Older steps were forgotten, as the history was full.</source>
        <translation>Ältere Schritte wurden vergessen, weil der Verlauf voll war.</translation>
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
        <translation>verschieden</translation>
    </message>
    <message>
        <source>%1: mixed values</source>
        <translation>%1: verschiedene Werte</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Set all to</source>
        <translation>Alle setzen auf</translation>
    </message>
</context>
<context>
    <name>Talo::ModifiedIndicator</name>
    <message>
        <source>Reset %1 to its default</source>
        <translation>%1 auf den Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standardwert: %1</translation>
    </message>
    <message>
        <source>Click to reset the value.</source>
        <translation>Ein Klick setzt den Wert zurück.</translation>
    </message>
</context>
<context>
    <name>Talo::ParameterPanel</name>
    <message>
        <source>No parameter of this object is found by the filter.</source>
        <translation>Der Filter findet keinen Parameter dieses Objekts.</translation>
    </message>
    <message>
        <source>Reset &amp;all to default</source>
        <translation>&amp;Alle auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>All parameters of this object are advanced, or of no use now.</source>
        <translation>Alle Parameter dieses Objekts sind erweitert oder zurzeit ohne Bedeutung.</translation>
    </message>
    <message>
        <source>No parameter of this object differs from its default.</source>
        <translation>Kein Parameter dieses Objekts weicht von seinem Standardwert ab.</translation>
    </message>
    <message>
        <source>The objects have no parameter in common that could be shown now.</source>
        <translation>Die Objekte haben keinen gemeinsamen Parameter, der jetzt gezeigt werden könnte.</translation>
    </message>
    <message>
        <source>Reset s&amp;ection to default</source>
        <translation>A&amp;bschnitt zurücksetzen</translation>
    </message>
</context>
<context>
    <name>Talo::ParameterRow</name>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message>
        <source>%1 has no default to go back to.</source>
        <translation>%1 hat keinen Standardwert, auf den sich zurücksetzen ließe.</translation>
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
        <translation>Für den Typ %1 ohne Vorgaben ist kein Editor angemeldet.</translation>
    </message>
    <message>
        <source>No editor is registered for the type %1 with the preferences %2.</source>
        <translation>Für den Typ %1 mit den Vorgaben %2 ist kein Editor angemeldet.</translation>
    </message>
    <message>
        <source>The editor of the type %1 needs a value of type %2.</source>
        <translation>Der Editor des Typs %1 braucht einen Wert vom Typ %2.</translation>
    </message>
</context>
<context>
    <name>Talo::RawValueLabel</name>
    <message>
        <source>age %1</source>
        <translation>Alter %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Raw value of %1</source>
        <translation>Rohwert von %1</translation>
    </message>
    <message>
        <source>age %1, pool %2</source>
        <translation>Alter %1, Pool %2</translation>
    </message>
    <message>
        <source>age %1, not set in pool %2</source>
        <translation>Alter %1, im Pool %2 nicht gesetzt</translation>
    </message>
</context>
<context>
    <name>Talo::UndoActions</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Can no longer be undone: %1</source>
        <translation>Kann nicht mehr rückgängig gemacht werden: %1</translation>
    </message>
    <message>
        <source>Can no longer be redone: %1</source>
        <translation>Kann nicht mehr wiederholt werden: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>Talo::UnenteredMark</name>
    <message>
        <source>The text is incomplete, so it was not entered. The value is still empty.</source>
        <translation>Der Text ist unvollständig und wurde daher nicht übernommen. Der Wert ist weiterhin leer.</translation>
    </message>
    <message>
        <source>The text is incomplete, so it was not entered. The value is still %1.</source>
        <translation>Der Text ist unvollständig und wurde daher nicht übernommen. Der Wert ist weiterhin %1.</translation>
    </message>
</context>
<context>
    <name>UndoText</name>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: %2 → %3 (%4)</source>
        <translation>%1: %2 → %3 (%4)</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more</source>
        <translation>
            <numerusform>%1 und eine weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, alpha %2</source>
        <translation>%1, Alpha %2</translation>
    </message>
</context>
<context>
    <name>ValueClipboard</name>
    <message>
        <source>it has other flags</source>
        <translation>er hat andere Schalter</translation>
    </message>
    <message>
        <source>The copied value does not fit %1: %2.</source>
        <translation>Der kopierte Wert passt nicht zu %1: %2.</translation>
    </message>
    <message>
        <source>There is no value to paste into %1.</source>
        <translation>Es gibt keinen Wert, der sich in %1 einfügen ließe.</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is of type %3.</source>
        <translation>%1 ist kein Wert für %2 vom Typ %3.</translation>
    </message>
</context>
</TS>
