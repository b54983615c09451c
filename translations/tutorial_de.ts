<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ObjYesNoBox</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>QStandardItemModel</name>
    <message>
        <source>step %1</source>
        <translation>Schritt %1</translation>
    </message>
    <message>
        <source>%1 is not UTF-8 text: what could not be read was replaced</source>
        <translation>%1 ist kein UTF-8-Text: Was nicht lesbar war, wurde ersetzt</translation>
    </message>
    <message>
        <source>json is not array</source>
        <translation>JSON ist keine Liste</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>closeMarker(%1) not found (l:%3): %2</source>
        <translation>Endmarke (%1) nicht gefunden (Z. %3): %2</translation>
    </message>
    <message>
        <source>lines end with CR LF instead of LF</source>
        <translation>Zeilen enden mit CR LF statt mit LF</translation>
    </message>
    <message>
        <source>No close &quot; found: %1</source>
        <translation>Kein schließendes " gefunden: %1</translation>
    </message>
    <message>
        <source>qsTr/QT_TRANSLATE_NOOP not closed: %1</source>
        <translation>qsTr/QT_TRANSLATE_NOOP nicht geschlossen: %1</translation>
    </message>
    <message>
        <source>No CR/NF found: %1</source>
        <translation>Kein Zeilenende gefunden: %1</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::Dialog</name>
    <message>
        <source>Add field</source>
        <translation>Feld hinzufügen</translation>
    </message>
    <message>
        <source>Shows a field that the step does not use yet</source>
        <translation>Zeigt ein Feld, das der Schritt noch nicht benutzt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Writes the scenario to its file</source>
        <translation>Schreibt das Szenario in seine Datei</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>The steps of the tutorial. Space starts it from the selected step.</source>
        <translation>Die Schritte der Einführung. Die Leertaste startet sie beim gewählten Schritt.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Start from here</source>
        <translation>Von hier an starten</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>Cut item(s)</source>
        <translation>Schritte ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy item(s)</source>
        <translation>Schritte kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste item(s)</source>
        <translation>Schritte einfügen</translation>
    </message>
    <message>
        <source>&amp;Grouping</source>
        <translation>&amp;Gruppieren</translation>
    </message>
    <message>
        <source>Move item(s) into a new group</source>
        <translation>Schritte in eine neue Gruppe legen</translation>
    </message>
    <message>
        <source>&amp;Ungrouping</source>
        <translation>Gruppe auf&amp;lösen</translation>
    </message>
    <message>
        <source>Take item(s) out of the group</source>
        <translation>Schritte aus der Gruppe nehmen</translation>
    </message>
    <message>
        <source>Pixels from the left edge of the followed window to the point that the step shows</source>
        <translation>Pixel vom linken Rand des Fensters, dem gefolgt wird, bis zum Punkt, den der Schritt zeigt</translation>
    </message>
    <message>
        <source>Pixels from the top edge of the followed window to the point that the step shows</source>
        <translation>Pixel vom oberen Rand des Fensters, dem gefolgt wird, bis zum Punkt, den der Schritt zeigt</translation>
    </message>
    <message>
        <source>The window of the editor that the indicator follows</source>
        <translation>Das Fenster des Editors, dem der Pfeil folgt</translation>
    </message>
    <message>
        <source>RefWindow</source>
        <translation>Bezugsfenster</translation>
    </message>
    <message>
        <source>Follows the window of the editor that was in front last</source>
        <translation>Folgt dem Fenster des Editors, das zuletzt vorn war</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>A note of the author&apos;s</source>
        <translation>Eine Notiz für die Autoren</translation>
    </message>
    <message>
        <source>The note, translated</source>
        <translation>Die Notiz, übersetzt</translation>
    </message>
    <message>
        <source>log comment:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>What the balloon says; qsTr(&quot;…&quot;) around it makes it translatable</source>
        <translation>Was die Sprechblase sagt; qsTr("…") darum macht es übersetzbar</translation>
    </message>
    <message>
        <source>The hint as the learner sees it, translated by the editor</source>
        <translation>Der Hinweis, wie ihn die Lernenden sehen, vom Editor übersetzt</translation>
    </message>
    <message>
        <source>hint:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>What the learner has to do before the next step comes</source>
        <translation>Was zu tun ist, bevor der nächste Schritt kommt</translation>
    </message>
    <message>
        <source>The window that is waited for</source>
        <translation>Das Fenster, auf das gewartet wird</translation>
    </message>
    <message>
        <source>What has to happen to the window</source>
        <translation>Was mit dem Fenster geschehen muss</translation>
    </message>
    <message>
        <source>Where the mouse has to be used</source>
        <translation>Wo die Maus zu benutzen ist</translation>
    </message>
    <message>
        <source>What the mouse has to do</source>
        <translation>Was die Maus zu tun hat</translation>
    </message>
    <message>
        <source>How the value has to compare with the number beside</source>
        <translation>Wie sich der Wert zur Zahl daneben verhalten muss</translation>
    </message>
    <message>
        <source>The action that has to be chosen</source>
        <translation>Die Aktion, die zu wählen ist</translation>
    </message>
    <message>
        <source>condition:</source>
        <translation>Bedingung:</translation>
    </message>
    <message>
        <source>The picture beside the arrow</source>
        <translation>Das Bild neben dem Pfeil</translation>
    </message>
    <message>
        <source>What the editor does when the step begins; the empty row is nothing</source>
        <translation>Was der Editor tut, wenn der Schritt beginnt; die leere Zeile heißt nichts</translation>
    </message>
    <message>
        <source>What the command works on</source>
        <translation>Worauf der Befehl wirkt</translation>
    </message>
    <message>
        <source>icon:</source>
        <translation>Symbol:</translation>
    </message>
    <message>
        <source>command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>The name by which other steps go to this one</source>
        <translation>Der Name, unter dem andere Schritte zu diesem springen</translation>
    </message>
    <message>
        <source>Show arrow</source>
        <translation>Pfeil zeigen</translation>
    </message>
    <message>
        <source>Whether the arrow points at the step&apos;s point</source>
        <translation>Ob der Pfeil auf den Punkt des Schritts zeigt</translation>
    </message>
    <message>
        <source>label:</source>
        <translation>Marke:</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Followed window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Hidden arrow</source>
        <translation>Verborgener Pfeil</translation>
    </message>
    <message>
        <source>Copy error</source>
        <translation>Fehler beim Kopieren</translation>
    </message>
    <message>
        <source>Failed to copy into Clipboard</source>
        <translation>Das Kopieren in die Zwischenablage ist misslungen</translation>
    </message>
    <message>
        <source>Parse error</source>
        <translation>Fehler beim Lesen</translation>
    </message>
    <message>
        <source>All fields are shown</source>
        <translation>Alle Felder werden gezeigt</translation>
    </message>
    <message>
        <source>Save OK?</source>
        <translation>Speichern?</translation>
    </message>
    <message>
        <source>The scenario could not be saved.</source>
        <translation>Das Szenario konnte nicht gespeichert werden.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TutorialEditor::Item</name>
    <message>
        <source>c.b.</source>
        <translation>c.b.</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::Manager</name>
    <message>
        <source>there is none</source>
        <translation>es gibt keine</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>The tool ended before changes of %1 were saved.

Changes: %2
Saved file: %3

Recover the changes?</source>
        <translation>Das Werkzeug endete, bevor Änderungen an %1 gespeichert waren.

Änderungen: %2
Gespeicherte Datei: %3

Sollen die Änderungen wiederhergestellt werden?</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The scenario was saved, but it cannot be read again as it is. The former file was kept as %1.bak.

%2</source>
        <translation>Das Szenario wurde gespeichert, ist aber so nicht wieder lesbar. Die vorige Datei wurde als %1.bak aufgehoben.

%2</translation>
    </message>
    <message>
        <source>Step %1 would be read as something else.</source>
        <translation>Schritt %1 würde anders gelesen.</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::Model</name>
    <message>
        <source>&lt;&gt;</source>
        <translation>&lt;&gt;</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>Schritt %1</translation>
    </message>
    <message>
        <source>step is not an object</source>
        <translation>Schritt ist kein Objekt</translation>
    </message>
    <message>
        <source>group is not an array</source>
        <translation>Gruppe ist keine Liste</translation>
    </message>
    <message>
        <source>unknown icon: </source>
        <translation>unbekanntes Symbol: </translation>
    </message>
</context>
<context>
    <name>TutorialTooltip</name>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
</TS>
