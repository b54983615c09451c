<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>TutorialLog</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Suggerimento</translation>
    </message>
</context>
</TS>
