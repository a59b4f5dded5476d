<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Kolt::VQStringFileNameInput</name>
    <message>
        <source>Select File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
</context>
<context>
    <name>Kolt::qVMultipleStringList</name>
    <message>
        <source>Removes selections specified by Wildcard of by Numbers if checked. </source>
        <translation>Nimmt aus der Auswahl, was Muster oder Nummern bezeichnen, wenn angekreuzt. </translation>
    </message>
    <message>
        <source>Use a common wildcard for selection: e.g. *foo*004*. Enter triggers the selection.</source>
        <translation>Wählt mit einem Muster mit Platzhaltern aus, z. B. *foo*004*. Die Eingabetaste löst die Auswahl aus.</translation>
    </message>
    <message>
        <source>Use numbers of items for selection. e.g. 0-5,9 selects the range from 0 to 5 and item number 9. Also use 2nd, 3rd, 4th, etc to select every 2nd and so on. This can be shifted by adding a number: e.g. 4th+2 selects every forth item and starting with the 3rd. Enter triggers the selection.</source>
        <translation>Wählt nach Nummern aus. 0-5,9 etwa wählt den Bereich von 0 bis 5 und den Eintrag Nummer 9. Mit 2nd, 3rd, 4th usw. wird jeder zweite, dritte, vierte usw. gewählt. Eine angehängte Zahl verschiebt das: 4th+2 wählt jeden vierten Eintrag, beginnend mit dem dritten. Die Eingabetaste löst die Auswahl aus.</translation>
    </message>
</context>
<context>
    <name>NumberToolTip</name>
    <message>
        <source>outside %1 to %2</source>
        <translation>außerhalb %1 bis %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Arrow keys: one step
Page Up, Page Down: a page
Home, End: to the ends</source>
        <translation>Pfeiltasten: ein Schritt
Bild auf, Bild ab: eine Seite
Pos1, Ende: an die Enden</translation>
    </message>
    <message>
        <source>Right: one step up
Left, Home, End: one step down
Up, Down: coarser and finer steps
+, -: wider and narrower around the value
1, 2, 3, 4: to 10, 33, 66, 90 per cent</source>
        <translation>Rechts: ein Schritt aufwärts
Links, Pos1, Ende: ein Schritt abwärts
Auf, Ab: gröbere und feinere Schritte
+, -: weiter und enger um den Wert
1, 2, 3, 4: auf 10, 33, 66, 90 Prozent</translation>
    </message>
    <message>
        <source>Return: enter
Escape: restore</source>
        <translation>Eingabe: übernehmen
Esc: wiederherstellen</translation>
    </message>
</context>
</TS>
