<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddCurveOperation</name>
    <message>
        <source>Add Curve</source>
        <translation>Kurve hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddGeometryOperation</name>
    <message>
        <source>Add Geometry</source>
        <translation>Geometrie hinzufügen</translation>
    </message>
</context>
<context>
    <name>DeleteCurveOperation</name>
    <message>
        <source>Delete Curve</source>
        <translation>Kurve löschen</translation>
    </message>
</context>
<context>
    <name>DeleteGeometryOperation</name>
    <message>
        <source>Delete Geometry</source>
        <translation>Geometrie löschen</translation>
    </message>
</context>
<context>
    <name>EditCurveOperation</name>
    <message>
        <source>Edit Curve</source>
        <translation>Kurve bearbeiten</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>%1 - Help</source>
        <translation>%1 – Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>Nothing was made</source>
        <translation>Es wurde nichts erzeugt</translation>
    </message>
</context>
<context>
    <name>RenameOperation</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>SelectAllOperation</name>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>SelectOperation</name>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>ShowOperation</name>
    <message>
        <source>Show or Hide</source>
        <translation>Ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>TransformOperation</name>
    <message>
        <source>the transformation flattens the geometry or leads too far</source>
        <translation>Geometrie würde flach gedrückt oder zu weit versetzt</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformieren</translation>
    </message>
</context>
<context>
    <name>orvane::HelpBrowser</name>
    <message>
        <source>A page&apos;s name holds no folder.</source>
        <translation>Der Name einer Seite enthält keinen Ordner.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source># No help on this yet

There is no page for %1. %2</source>
        <translation># Noch keine Hilfe dazu

Es gibt keine Seite für %1. %2</translation>
    </message>
</context>
</TS>
