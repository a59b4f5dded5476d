<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MoreInputs::Formula</name>
    <message>
        <source>&quot;%1&quot; was not expected.</source>
        <translation>„%1“ wurde nicht erwartet.</translation>
    </message>
    <message>
        <source>The result is too large.</source>
        <translation>Das Ergebnis ist zu groß.</translation>
    </message>
    <message>
        <source>A division by zero has no result.</source>
        <translation>Eine Division durch null hat kein Ergebnis.</translation>
    </message>
    <message>
        <source>There are too many parentheses.</source>
        <translation>Es sind zu viele Klammern.</translation>
    </message>
    <message>
        <source>A closing parenthesis is missing.</source>
        <translation>Eine schließende Klammer fehlt.</translation>
    </message>
    <message>
        <source>A number is missing before &quot;%1&quot;.</source>
        <translation>Vor „%1“ fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>A number is missing at the end.</source>
        <translation>Am Ende fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>MoreInputs::NumberField</name>
    <message>
        <source>%1 is no whole number.</source>
        <translation>%1 ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is below %2.</source>
        <translation>%1 liegt unter %2.</translation>
    </message>
    <message>
        <source>%1 is above %2.</source>
        <translation>%1 liegt über %2.</translation>
    </message>
    <message>
        <source>%1 does not lie between %2 and %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>Drag to change the number: with Shift finely, with Ctrl coarsely. Formulas such as 2*3 are computed.</source>
        <translation>Durch Ziehen ändert sich die Zahl: mit Umschalt fein, mit Strg grob. Formeln wie 2*3 werden berechnet.</translation>
    </message>
</context>
</TS>
