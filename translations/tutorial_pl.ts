<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
</context>
<context>
    <name>TutorialLog</name>
    <message>
        <source>Tutorial</source>
        <translation>Samouczek</translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Wskazówka</translation>
    </message>
</context>
</TS>
