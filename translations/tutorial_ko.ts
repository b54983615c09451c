<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>TutorialLog</name>
    <message>
        <source>Tutorial</source>
        <translation>튜토리얼</translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>힌트</translation>
    </message>
</context>
</TS>
