<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Fractal::ComputingBar</name>
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
    <name>Fractal::FractalController</name>
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
    <name>Fractal::GimpPalette</name>
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
    <message>
        <source>expected the first line &quot;GIMP Palette&quot;, found an empty line</source>
        <translation>première ligne &quot;GIMP Palette&quot; attendue, ligne vide trouvée</translation>
    </message>
    <message>
        <source>expected the first line &quot;GIMP Palette&quot;, found &quot;%1&quot;</source>
        <translation>première ligne &quot;GIMP Palette&quot; attendue, &quot;%1&quot; trouvé</translation>
    </message>
    <message>
        <source>expected red, green and blue from 0 to 255, found &quot;%1&quot;</source>
        <translation>rouge, vert et bleu de 0 à 255 attendus, &quot;%1&quot; trouvé</translation>
    </message>
    <message>
        <source>expected at most %1 colours, found &quot;%2&quot;</source>
        <translation>au plus %1 couleurs attendues, &quot;%2&quot; trouvé</translation>
    </message>
    <message>
        <source>expected at least one colour, found an empty line</source>
        <translation>au moins une couleur attendue, ligne vide trouvée</translation>
    </message>
    <message>
        <source>expected at least one colour, found &quot;%1&quot;</source>
        <translation>au moins une couleur attendue, &quot;%1&quot; trouvé</translation>
    </message>
</context>
<context>
    <name>Fractal::Picture</name>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la page ne peut pas être dessinée</translation>
    </message>
</context>
<context>
    <name>Fractal::PictureJob</name>
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
    <message>
        <source>Computing %1</source>
        <translation>Calcul de %1</translation>
    </message>
    <message>
        <source>Computing the picture of %1</source>
        <translation>Calcul de l&apos;image de %1</translation>
    </message>
    <message>
        <source>Computing the picture</source>
        <translation>Calcul de l&apos;image</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture of %1.</source>
        <translation>La mémoire ne suffit pas pour l&apos;image de %1.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>La mémoire ne suffit pas pour l&apos;image.</translation>
    </message>
    <message>
        <source>Given up: %1.</source>
        <translation>Abandon : %1.</translation>
    </message>
    <message>
        <source>Given up: the picture of %1.</source>
        <translation>Abandon : l&apos;image de %1.</translation>
    </message>
    <message>
        <source>Given up: the picture.</source>
        <translation>Abandon : l&apos;image.</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Annulé : %1.</translation>
    </message>
    <message>
        <source>Cancelled: the picture of %1.</source>
        <translation>Annulé : l&apos;image de %1.</translation>
    </message>
    <message>
        <source>Cancelled: the picture.</source>
        <translation>Annulé : l&apos;image.</translation>
    </message>
    <message>
        <source>Wrote %1.</source>
        <translation>%1 a été écrit.</translation>
    </message>
    <message>
        <source>Computed the picture of %1.</source>
        <translation>L&apos;image de %1 est calculée.</translation>
    </message>
    <message>
        <source>Computed the picture.</source>
        <translation>L&apos;image est calculée.</translation>
    </message>
    <message>
        <source>%1: %2 %.</source>
        <extracomment>What is computed, and how much of it is done.</extracomment>
        <translation>%1 : %2 %.</translation>
    </message>
</context>
<context>
    <name>Fractal::Preview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>Fractal::RenderQueue</name>
    <message>
        <source>%1: there is no formula in the network, and so no picture to be written</source>
        <translation>%1 : le réseau n’a pas de formule, il n’y a donc pas d’image à écrire</translation>
    </message>
    <message>
        <source>Nothing is being computed.</source>
        <translation>Aucun calcul en cours.</translation>
    </message>
    <message>
        <source>%1 is still being written.</source>
        <translation>%1 est encore en cours d’écriture.</translation>
    </message>
</context>
<context>
    <name>Fractal::Worker</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Il n’y a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>The system refuses: %1.</source>
        <translation>Le système refuse : %1.</translation>
    </message>
    <message>
        <source>The system has no thread for it.</source>
        <translation>Le système n’a pas de thread pour cela.</translation>
    </message>
</context>
</TS>
