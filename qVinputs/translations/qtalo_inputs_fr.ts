<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Kolt::VQStringFileNameInput</name>
    <message>
        <source>Select File</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
</context>
<context>
    <name>Kolt::qVMultipleStringList</name>
    <message>
        <source>Removes selections specified by Wildcard of by Numbers if checked. </source>
        <translation>Si coché, retire de la sélection ce que désignent le motif ou les numéros. </translation>
    </message>
    <message>
        <source>Use a common wildcard for selection: e.g. *foo*004*. Enter triggers the selection.</source>
        <translation>Sélectionne par un motif à jokers, par exemple *foo*004*. Entrée lance la sélection.</translation>
    </message>
    <message>
        <source>Use numbers of items for selection. e.g. 0-5,9 selects the range from 0 to 5 and item number 9. Also use 2nd, 3rd, 4th, etc to select every 2nd and so on. This can be shifted by adding a number: e.g. 4th+2 selects every forth item and starting with the 3rd. Enter triggers the selection.</source>
        <translation>Sélectionne par numéros. 0-5,9 choisit par exemple la plage de 0 à 5 et l’élément numéro 9. Avec 2nd, 3rd, 4th, etc., un élément sur deux, trois, quatre, etc. est choisi. Un nombre ajouté décale ce choix : 4th+2 choisit un élément sur quatre à partir du troisième. Entrée lance la sélection.</translation>
    </message>
</context>
<context>
    <name>NumberToolTip</name>
    <message>
        <source>outside %1 to %2</source>
        <translation>hors de %1 à %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Arrow keys: one step
Page Up, Page Down: a page
Home, End: to the ends</source>
        <translation>Flèches : un pas
Page préc., Page suiv. : une page
Début, Fin : aux extrémités</translation>
    </message>
    <message>
        <source>Right: one step up
Left, Home, End: one step down
Up, Down: coarser and finer steps
+, -: wider and narrower around the value
1, 2, 3, 4: to 10, 33, 66, 90 per cent</source>
        <translation>Droite : un pas vers le haut
Gauche, Début, Fin : un pas vers le bas
Haut, Bas : pas plus grands et plus petits
+, - : plus large et plus étroit autour de la valeur
1, 2, 3, 4 : à 10, 33, 66, 90 pour cent</translation>
    </message>
    <message>
        <source>Return: enter
Escape: restore</source>
        <translation>Entrée : valider
Échap : restaurer</translation>
    </message>
</context>
</TS>
