<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>TutorialLog</name>
    <message>
        <source>Tutorial</source>
        <translation>チュートリアル</translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>ヒント</translation>
    </message>
</context>
</TS>
