<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MoreInputs::Formula</name>
    <message>
        <source>&quot;%1&quot; was not expected.</source>
        <translation>« %1 » n’était pas attendu.</translation>
    </message>
    <message>
        <source>The result is too large.</source>
        <translation>Le résultat est trop grand.</translation>
    </message>
    <message>
        <source>A division by zero has no result.</source>
        <translation>Une division par zéro n’a pas de résultat.</translation>
    </message>
    <message>
        <source>There are too many parentheses.</source>
        <translation>Il y a trop de parenthèses.</translation>
    </message>
    <message>
        <source>A closing parenthesis is missing.</source>
        <translation>Il manque une parenthèse fermante.</translation>
    </message>
    <message>
        <source>A number is missing before &quot;%1&quot;.</source>
        <translation>Il manque un nombre avant « %1 ».</translation>
    </message>
    <message>
        <source>A number is missing at the end.</source>
        <translation>Il manque un nombre à la fin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>« %1 » n’est pas un nombre.</translation>
    </message>
</context>
<context>
    <name>MoreInputs::NumberField</name>
    <message>
        <source>%1 is no whole number.</source>
        <translation>%1 n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>%1 is below %2.</source>
        <translation>%1 est inférieur à %2.</translation>
    </message>
    <message>
        <source>%1 is above %2.</source>
        <translation>%1 est supérieur à %2.</translation>
    </message>
    <message>
        <source>%1 does not lie between %2 and %3.</source>
        <translation>%1 n’est pas compris entre %2 et %3.</translation>
    </message>
    <message>
        <source>Drag to change the number: with Shift finely, with Ctrl coarsely. Formulas such as 2*3 are computed.</source>
        <translation>Glisser pour changer le nombre : finement avec Maj, grossièrement avec Ctrl. Les formules comme 2*3 sont calculées.</translation>
    </message>
</context>
</TS>
