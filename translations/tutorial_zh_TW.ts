<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>TutorialLog</name>
    <message>
        <source>Tutorial</source>
        <translation>教學</translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
</context>
</TS>
