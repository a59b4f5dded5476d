<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Fractal::ComputingBar</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Ends the computing (Esc)</source>
        <translation>Beendet die Berechnung (Esc)</translation>
    </message>
</context>
<context>
    <name>Fractal::FractalController</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Nothing in this network computes a picture.</source>
        <translation>Nichts in diesem Netz berechnet ein Bild.</translation>
    </message>
</context>
<context>
    <name>Fractal::GimpPalette</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>expected a file, found something else</source>
        <translation>erwartet: eine Datei, gefunden: etwas anderes</translation>
    </message>
    <message>
        <source>expected a palette of at most one megabyte, found a longer file</source>
        <translation>erwartet: eine Palette von höchstens einem Megabyte, gefunden: eine längere Datei</translation>
    </message>
    <message>
        <source>expected a file that can be read, found: %1</source>
        <translation>erwartet: eine lesbare Datei, gefunden: %1</translation>
    </message>
    <message>
        <source>expected the first line &quot;GIMP Palette&quot;, found an empty line</source>
        <translation>erwartet die erste Zeile &quot;GIMP Palette&quot;, gefunden eine leere Zeile</translation>
    </message>
    <message>
        <source>expected the first line &quot;GIMP Palette&quot;, found &quot;%1&quot;</source>
        <translation>erwartet die erste Zeile &quot;GIMP Palette&quot;, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>expected red, green and blue from 0 to 255, found &quot;%1&quot;</source>
        <translation>erwartet Rot, Grün und Blau von 0 bis 255, gefunden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>expected at most %1 colours, found &quot;%2&quot;</source>
        <translation>erwartet höchstens %1 Farben, gefunden &quot;%2&quot;</translation>
    </message>
    <message>
        <source>expected at least one colour, found an empty line</source>
        <translation>erwartet mindestens eine Farbe, gefunden eine leere Zeile</translation>
    </message>
    <message>
        <source>expected at least one colour, found &quot;%1&quot;</source>
        <translation>erwartet mindestens eine Farbe, gefunden &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Fractal::Picture</name>
    <message>
        <source>the page cannot be drawn</source>
        <translation>die Seite lässt sich nicht zeichnen</translation>
    </message>
</context>
<context>
    <name>Fractal::PictureJob</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There is not enough memory for %1.</source>
        <translation>Für %1 reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>%1 × %2 points, %3 steps at most, %4 × %4 samples: %5 s. %6 % of the points stay.</source>
        <translation>%1 × %2 Punkte, höchstens %3 Schritte, %4 × %4 Proben: %5 s. %6 % der Punkte bleiben.</translation>
    </message>
    <message>
        <source>Computing %1</source>
        <translation>%1 wird berechnet</translation>
    </message>
    <message>
        <source>Computing the picture of %1</source>
        <translation>Das Bild von %1 wird berechnet</translation>
    </message>
    <message>
        <source>Computing the picture</source>
        <translation>Das Bild wird berechnet</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture of %1.</source>
        <translation>Für das Bild von %1 reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Für das Bild reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Given up: %1.</source>
        <translation>Aufgegeben: %1.</translation>
    </message>
    <message>
        <source>Given up: the picture of %1.</source>
        <translation>Aufgegeben: das Bild von %1.</translation>
    </message>
    <message>
        <source>Given up: the picture.</source>
        <translation>Aufgegeben: das Bild.</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Abgebrochen: %1.</translation>
    </message>
    <message>
        <source>Cancelled: the picture of %1.</source>
        <translation>Abgebrochen: das Bild von %1.</translation>
    </message>
    <message>
        <source>Cancelled: the picture.</source>
        <translation>Abgebrochen: das Bild.</translation>
    </message>
    <message>
        <source>Wrote %1.</source>
        <translation>%1 wurde geschrieben.</translation>
    </message>
    <message>
        <source>Computed the picture of %1.</source>
        <translation>Das Bild von %1 ist berechnet.</translation>
    </message>
    <message>
        <source>Computed the picture.</source>
        <translation>Das Bild ist berechnet.</translation>
    </message>
    <message>
        <source>%1: %2 %.</source>
        <extracomment>What is computed, and how much of it is done.</extracomment>
        <translation>%1: %2 %.</translation>
    </message>
</context>
<context>
    <name>Fractal::Preview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>Fractal::RenderQueue</name>
    <message>
        <source>%1: there is no formula in the network, and so no picture to be written</source>
        <translation>%1: das Netz hat keine Formel, also gibt es kein Bild zu schreiben</translation>
    </message>
    <message>
        <source>Nothing is being computed.</source>
        <translation>Es wird nichts berechnet.</translation>
    </message>
    <message>
        <source>%1 is still being written.</source>
        <translation>%1 wird noch geschrieben.</translation>
    </message>
</context>
<context>
    <name>Fractal::Worker</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>The system refuses: %1.</source>
        <translation>Das System lehnt ab: %1.</translation>
    </message>
    <message>
        <source>The system has no thread for it.</source>
        <translation>Das System hat keinen Thread dafür.</translation>
    </message>
</context>
</TS>
