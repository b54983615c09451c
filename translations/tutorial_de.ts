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
        <translation type="vanished">Zeilen enden mit CR LF statt mit LF</translation>
    </message>
    <message>
        <source>No close &quot; found: %1</source>
        <translation>Kein schließendes &quot; gefunden: %1</translation>
    </message>
    <message>
        <source>qsTr/QT_TRANSLATE_NOOP not closed: %1</source>
        <translation>qsTr/QT_TRANSLATE_NOOP nicht geschlossen: %1</translation>
    </message>
    <message>
        <source>No CR/NF found: %1</source>
        <translation>Kein Zeilenende gefunden: %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
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
    <message>
        <source>It cannot be read as a scenario.</source>
        <translation>Als Szenario ist sie nicht lesbar.</translation>
    </message>
    <message>
        <source>Its steps are the same as here.</source>
        <translation>Ihre Schritte sind dieselben wie hier.</translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is no file now.</source>
        <translation>%1 ist keine Datei mehr.</translation>
    </message>
    <message>
        <source>Another tool is saving %1. Try again.</source>
        <translation>Ein anderes Werkzeug speichert gerade %1. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The former file could not be kept, so that it was not replaced: %1</source>
        <translation>Die vorige Datei konnte nicht aufgehoben werden und wurde deshalb nicht ersetzt: %1</translation>
    </message>
    <message>
        <source>%1 was not read whole. Before it is replaced it will be kept as %2.</source>
        <translation>%1 wurde nicht vollständig gelesen. Bevor sie ersetzt wird, wird sie als %2 aufgehoben.</translation>
    </message>
    <message>
        <source>%1 was changed by another program.

Changed: %2
%3</source>
        <translation>%1 wurde von einem anderen Programm geändert.

Geändert: %2
%3</translation>
    </message>
    <message>
        <source>Overwrite keeps that file as %1. Reload gives up the changes here.</source>
        <translation type="vanished">„Überschreiben“ hebt jene Datei als %1 auf. „Neu laden“ gibt die Änderungen hier auf.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Steps that differ from those here: %1</source>
        <translation>Schritte, die sich von denen hier unterscheiden: %1</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen:</translation>
    </message>
    <message>
        <source>%1 of a Step</source>
        <translation>%1 eines Schritts</translation>
    </message>
    <message>
        <source>%1 of %2 Steps</source>
        <translation>%1 von %2 Schritten</translation>
    </message>
    <message>
        <source>New Step</source>
        <translation>Neuer Schritt</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Auflösen der Gruppe</translation>
    </message>
    <message>
        <source>Added Field: %1</source>
        <translation>Neues Feld: %1</translation>
    </message>
    <message>
        <source>Change of Field: %1</source>
        <translation>Änderung im Feld %1</translation>
    </message>
    <message>
        <source>Picked Point</source>
        <translation>Gewählter Punkt</translation>
    </message>
    <message>
        <source>Recorded Condition</source>
        <translation>Aufgezeichnete Bedingung</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>%1 has changed on disk. Save asks which changes to keep.</source>
        <translation>%1 hat sich auf der Platte geändert. „Speichern“ fragt, welche Änderungen bleiben sollen.</translation>
    </message>
    <message>
        <source>%1 has changed on disk.</source>
        <translation>%1 hat sich auf der Platte geändert.</translation>
    </message>
    <message>
        <source>%1 has changed on disk, and cannot be read.</source>
        <translation>%1 hat sich auf der Platte geändert und kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is gone. Save writes it again.</source>
        <translation>%1 ist nicht mehr da. „Speichern“ schreibt sie neu.</translation>
    </message>
    <message>
        <source>Overwrite keeps that file as %1. Reload takes it in place of the steps here; Undo brings these back.</source>
        <translation>„Überschreiben“ hebt jene Datei als %1 auf. „Neu laden“ nimmt sie anstelle der Schritte hier; „Rückgängig“ holt diese zurück.</translation>
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
        <source>Step %1 would be read as something else.</source>
        <translation>Schritt %1 würde anders gelesen.</translation>
    </message>
    <message>
        <source>The scenario was saved, but it cannot be read again as it is.</source>
        <translation>Das Szenario wurde gespeichert, ist aber so nicht wieder lesbar.</translation>
    </message>
    <message>
        <source>The former file was kept as %1.</source>
        <translation>Die vorige Datei wurde als %1 aufgehoben.</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>In Gebrauch</translation>
    </message>
    <message>
        <source>%1 is open in another tool.

When both save, the second one is asked what to do.</source>
        <translation>%1 ist in einem anderen Werkzeug geöffnet.

Wenn beide speichern, wird das zweite gefragt, was geschehen soll.</translation>
    </message>
    <message>
        <source>&amp;Open anyway</source>
        <translation>&amp;Trotzdem öffnen</translation>
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
    <name>TutorialEditor::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Loads what the file holds now</source>
        <translation>Lädt, was die Datei jetzt enthält</translation>
    </message>
    <message>
        <source>Hi&amp;de</source>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>Hides this line until something else happens</source>
        <translation>Blendet diese Zeile aus, bis wieder etwas geschieht</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::Problem</name>
    <message>
        <source>Lines end with CR LF, behind an expression too</source>
        <translation>Zeilen enden mit CR LF, auch hinter einem Ausdruck</translation>
    </message>
    <message>
        <source>Let your text editor write LF</source>
        <translation>Lassen Sie Ihren Texteditor LF schreiben</translation>
    </message>
    <message>
        <source>A line that ends with “),” is expected behind this expression</source>
        <translation>Hinter diesem Ausdruck wird eine Zeile erwartet, die mit „),“ endet</translation>
    </message>
    <message>
        <source>Begin each key on a line of its own</source>
        <translation>Beginnen Sie jeden Schlüssel auf einer eigenen Zeile</translation>
    </message>
    <message>
        <source>This text begins like an expression, and no line after it ends with “&quot;,”</source>
        <translation>Dieser Text beginnt wie ein Ausdruck, und keine Zeile danach endet mit „&quot;,“</translation>
    </message>
    <message>
        <source>Write the expression without quotation marks</source>
        <translation>Schreiben Sie den Ausdruck ohne Anführungszeichen</translation>
    </message>
    <message>
        <source>A line end is expected behind the last key</source>
        <translation>Hinter dem letzten Schlüssel wird ein Zeilenende erwartet</translation>
    </message>
    <message>
        <source>Lists and objects lie in each other deeper than can be read</source>
        <translation>Listen und Objekte liegen tiefer ineinander, als gelesen werden kann</translation>
    </message>
    <message>
        <source>Take groups apart</source>
        <translation>Lösen Sie Gruppen auf</translation>
    </message>
    <message>
        <source>There is no list of steps</source>
        <translation>Es gibt keine Liste von Schritten</translation>
    </message>
    <message>
        <source>This cannot be read</source>
        <translation>Das kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Other text stands behind the steps</source>
        <translation>Hinter den Schritten steht anderer Text</translation>
    </message>
    <message>
        <source>Begin with “%1”, end with “];”</source>
        <translation>Beginnen Sie mit „%1“, enden Sie mit „];“</translation>
    </message>
    <message>
        <source>The frame does not begin with “%1”</source>
        <translation>Der Rahmen beginnt nicht mit „%1“</translation>
    </message>
    <message>
        <source>Write it exactly so, to the blank</source>
        <translation>Schreiben Sie es genau so, bis aufs Leerzeichen</translation>
    </message>
    <message>
        <source>Other text stands before the list</source>
        <translation>Vor der Liste steht anderer Text</translation>
    </message>
    <message>
        <source>Take it out, or make it a comment</source>
        <translation>Nehmen Sie ihn heraus, oder machen Sie einen Kommentar daraus</translation>
    </message>
    <message>
        <source>The frame does not end with “];”</source>
        <translation>Der Rahmen endet nicht mit „];“</translation>
    </message>
    <message>
        <source>Other text stands behind the list</source>
        <translation>Hinter der Liste steht anderer Text</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>Write it in decimal digits, without a unit, or as a text</source>
        <translation>Schreiben Sie sie in Dezimalziffern, ohne Einheit, oder als Text</translation>
    </message>
    <message>
        <source>The text has no opening quotation mark</source>
        <translation>Dem Text fehlt das öffnende Anführungszeichen</translation>
    </message>
    <message>
        <source>Write &quot;%1&quot;</source>
        <translation>Schreiben Sie &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Between %1 and ( may be no blank</source>
        <translation>Zwischen %1 und ( darf kein Leerzeichen stehen</translation>
    </message>
    <message>
        <source>“%1” is no translation</source>
        <translation>„%1“ ist keine Übersetzung</translation>
    </message>
    <message>
        <source>Write qsTr(&quot;…&quot;)</source>
        <translation>Schreiben Sie qsTr(&quot;…&quot;)</translation>
    </message>
    <message>
        <source>“%1” is no value</source>
        <translation>„%1“ ist kein Wert</translation>
    </message>
    <message>
        <source>Write a text in quotation marks</source>
        <translation>Schreiben Sie einen Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>A value is missing</source>
        <translation>Ein Wert fehlt</translation>
    </message>
    <message>
        <source>Write &quot;&quot; for an empty text</source>
        <translation>Schreiben Sie &quot;&quot; für einen leeren Text</translation>
    </message>
    <message>
        <source>“%1” is neither a text nor a number</source>
        <translation>„%1“ ist weder ein Text noch eine Zahl</translation>
    </message>
    <message>
        <source>The key “%1” has no opening quotation mark</source>
        <translation>Dem Schlüssel „%1“ fehlt das öffnende Anführungszeichen</translation>
    </message>
    <message>
        <source>The key “%1” has no quotation marks</source>
        <translation>Der Schlüssel „%1“ steht nicht in Anführungszeichen</translation>
    </message>
    <message>
        <source>A key in quotation marks is expected instead of “%1”</source>
        <translation>Statt „%1“ wird ein Schlüssel in Anführungszeichen erwartet</translation>
    </message>
    <message>
        <source>A colon is expected behind the key %1</source>
        <translation>Hinter dem Schlüssel %1 wird ein Doppelpunkt erwartet</translation>
    </message>
    <message>
        <source>Write &quot;key&quot;: value</source>
        <translation>Schreiben Sie &quot;Schlüssel&quot;: Wert</translation>
    </message>
    <message>
        <source>A comma is expected instead of the semicolon</source>
        <translation>Statt des Semikolons wird ein Komma erwartet</translation>
    </message>
    <message>
        <source>This quotation mark ends the text</source>
        <translation>Dieses Anführungszeichen beendet den Text</translation>
    </message>
    <message>
        <source>Write \&quot; for one that is a part of the text</source>
        <translation>Schreiben Sie \&quot; für eines, das zum Text gehört</translation>
    </message>
    <message>
        <source>A comma is missing here: the expression runs on</source>
        <translation>Hier fehlt ein Komma: Der Ausdruck läuft weiter</translation>
    </message>
    <message>
        <source>A comma is missing here</source>
        <translation>Hier fehlt ein Komma</translation>
    </message>
    <message>
        <source>Write one behind each value but the last</source>
        <translation>Schreiben Sie eines hinter jeden Wert außer dem letzten</translation>
    </message>
    <message>
        <source>Texts cannot be put together with +</source>
        <translation>Texte lassen sich nicht mit + zusammensetzen</translation>
    </message>
    <message>
        <source>Write one text between one pair of quotation marks</source>
        <translation>Schreiben Sie einen Text zwischen ein Paar Anführungszeichen</translation>
    </message>
    <message>
        <source>This %1 has no partner</source>
        <translation>Diese %1 hat kein Gegenstück</translation>
    </message>
    <message>
        <source>Take it out, or write its partner</source>
        <translation>Nehmen Sie sie heraus, oder schreiben Sie ihr Gegenstück</translation>
    </message>
    <message>
        <source>This bracket has no partner</source>
        <translation>Diese Klammer hat kein Gegenstück</translation>
    </message>
    <message>
        <source>A %1 is missing here</source>
        <translation>Hier fehlt eine %1</translation>
    </message>
    <message>
        <source>Write a %1 where it belongs</source>
        <translation>Schreiben Sie eine %1, wo sie hingehört</translation>
    </message>
    <message>
        <source>Nothing stands behind this comma</source>
        <translation>Hinter diesem Komma steht nichts</translation>
    </message>
    <message>
        <source>Take it out</source>
        <translation>Nehmen Sie es heraus</translation>
    </message>
    <message>
        <source>A character that only looks like a blank stands here (U+%1)</source>
        <translation>Hier steht ein Zeichen, das nur wie ein Leerzeichen aussieht (U+%1)</translation>
    </message>
    <message>
        <source>Type a blank instead</source>
        <translation>Tippen Sie stattdessen ein Leerzeichen</translation>
    </message>
    <message>
        <source>A // comment stands behind other text</source>
        <translation>Ein Kommentar mit // steht hinter anderem Text</translation>
    </message>
    <message>
        <source>Put it on a line of its own, or write /* … */</source>
        <translation>Setzen Sie ihn auf eine eigene Zeile, oder schreiben Sie /* … */</translation>
    </message>
    <message>
        <source>A // comment needs a line end behind it</source>
        <translation>Ein Kommentar mit // braucht ein Zeilenende hinter sich</translation>
    </message>
    <message>
        <source>End the file with an empty line</source>
        <translation>Beenden Sie die Datei mit einer leeren Zeile</translation>
    </message>
    <message>
        <source>This /* begins a comment, although a // stands before it</source>
        <translation>Dieses /* beginnt einen Kommentar, obwohl // davorsteht</translation>
    </message>
    <message>
        <source>Take it out of the // comment</source>
        <translation>Nehmen Sie es aus dem Kommentar mit // heraus</translation>
    </message>
    <message>
        <source>This comment has no end</source>
        <translation>Dieser Kommentar hat kein Ende</translation>
    </message>
    <message>
        <source>Write */ where it ends</source>
        <translation>Schreiben Sie */, wo er endet</translation>
    </message>
    <message>
        <source>Four hexadecimal digits are expected behind \u</source>
        <translation>Hinter \u werden vier Hexadezimalziffern erwartet</translation>
    </message>
    <message>
        <source>Write a backslash as \\</source>
        <translation>Schreiben Sie einen Rückstrich als \\</translation>
    </message>
    <message>
        <source>\%1 does not stand for a backslash and “%1”</source>
        <translation>\%1 steht nicht für einen Rückstrich und „%1“</translation>
    </message>
    <message>
        <source>\%1 means “%1”, without the backslash</source>
        <translation>\%1 bedeutet „%1“, ohne den Rückstrich</translation>
    </message>
    <message>
        <source>The text %1 runs over the end of its line</source>
        <translation>Der Text %1 läuft über das Ende seiner Zeile hinaus</translation>
    </message>
    <message>
        <source>Write a line end as \n</source>
        <translation>Schreiben Sie ein Zeilenende als \n</translation>
    </message>
    <message>
        <source>The text %1 has no closing quotation mark</source>
        <translation>Dem Text %1 fehlt das schließende Anführungszeichen</translation>
    </message>
    <message>
        <source>Close it in its line</source>
        <translation>Schließen Sie ihn in seiner Zeile</translation>
    </message>
    <message>
        <source>The backslash makes this quotation mark a part of the text</source>
        <translation>Der Rückstrich macht dieses Anführungszeichen zu einem Teil des Textes</translation>
    </message>
    <message>
        <source>The key “%1” has no closing quotation mark</source>
        <translation>Dem Schlüssel „%1“ fehlt das schließende Anführungszeichen</translation>
    </message>
    <message>
        <source>Close it before the colon</source>
        <translation>Schließen Sie ihn vor dem Doppelpunkt</translation>
    </message>
    <message>
        <source>This quotation mark ends the text %1</source>
        <translation>Dieses Anführungszeichen beendet den Text %1</translation>
    </message>
    <message>
        <source>A template string is not understood</source>
        <translation>Eine Vorlagenzeichenkette wird nicht verstanden</translation>
    </message>
    <message>
        <source>Write the text in quotation marks, &quot;…&quot;, with \n for a line end</source>
        <translation>Schreiben Sie den Text in Anführungszeichen, &quot;…&quot;, mit \n für ein Zeilenende</translation>
    </message>
    <message>
        <source>The quotation marks are not &quot;</source>
        <translation>Die Anführungszeichen sind nicht &quot;</translation>
    </message>
    <message>
        <source>Write &quot;…&quot;</source>
        <translation>Schreiben Sie &quot;…&quot;</translation>
    </message>
    <message>
        <source>A comment inside an expression is taken for a part of it</source>
        <translation>Ein Kommentar in einem Ausdruck wird für einen Teil davon gehalten</translation>
    </message>
    <message>
        <source>Put it on a line of its own above the key</source>
        <translation>Setzen Sie ihn auf eine eigene Zeile über dem Schlüssel</translation>
    </message>
    <message>
        <source>Between ( and the quotation mark may be no blank</source>
        <translation>Zwischen ( und dem Anführungszeichen darf kein Leerzeichen stehen</translation>
    </message>
    <message>
        <source>The ) of the expression is missing: it runs on</source>
        <translation>Die ) des Ausdrucks fehlt: Er läuft weiter</translation>
    </message>
    <message>
        <source>Close it behind the text</source>
        <translation>Schließen Sie ihn hinter dem Text</translation>
    </message>
    <message>
        <source>An expression has two texts at most</source>
        <translation>Ein Ausdruck hat höchstens zwei Texte</translation>
    </message>
    <message>
        <source>Write qsTr(&quot;text&quot;, &quot;note&quot;)</source>
        <translation>Schreiben Sie qsTr(&quot;Text&quot;, &quot;Bemerkung&quot;)</translation>
    </message>
    <message>
        <source>Write QT_TRANSLATE_NOOP(&quot;context&quot;, &quot;text&quot;)</source>
        <translation>Schreiben Sie QT_TRANSLATE_NOOP(&quot;Kontext&quot;, &quot;Text&quot;)</translation>
    </message>
    <message>
        <source>Only texts in quotation marks can stand in an expression</source>
        <translation>In einem Ausdruck können nur Texte in Anführungszeichen stehen</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text</source>
        <translation>Die Datei ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>Let your text editor convert it</source>
        <translation>Lassen Sie sie von Ihrem Texteditor umwandeln</translation>
    </message>
    <message>
        <source>There is no format “%1”</source>
        <translation>Es gibt kein Format „%1“</translation>
    </message>
    <message>
        <source>No file is named; --help tells more</source>
        <translation>Es ist keine Datei genannt; mehr sagt --help</translation>
    </message>
    <message>
        <source>There is no rule “%1”</source>
        <translation>Es gibt keine Regel „%1“</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Yes and No lead to the same step</source>
        <translation>Ja und Nein führen zum selben Schritt</translation>
    </message>
    <message>
        <source>Give one of them another label</source>
        <translation>Geben Sie einem davon eine andere Marke</translation>
    </message>
    <message>
        <source>No question leads to the label “%1”</source>
        <translation>Keine Frage führt zur Marke „%1“</translation>
    </message>
    <message>
        <source>The label “%1” stands before as well</source>
        <translation>Die Marke „%1“ steht schon weiter vorn</translation>
    </message>
    <message>
        <source>Only the first one is found: write another</source>
        <translation>Nur die erste wird gefunden: Schreiben Sie eine andere</translation>
    </message>
    <message>
        <source>No step has the label “%1”</source>
        <translation>Kein Schritt hat die Marke „%1“</translation>
    </message>
    <message>
        <source>This step is never reached</source>
        <translation>Dieser Schritt wird nie erreicht</translation>
    </message>
    <message>
        <source>Give it a label, and let a question lead there</source>
        <translation>Geben Sie ihm eine Marke, und lassen Sie eine Frage dorthin führen</translation>
    </message>
    <message>
        <source>From here there is no way to the end</source>
        <translation>Von hier führt kein Weg zum Ende</translation>
    </message>
    <message>
        <source>Let one of the answers lead out of the loop</source>
        <translation>Lassen Sie eine der Antworten aus der Schleife herausführen</translation>
    </message>
    <message>
        <source>The group holds no step</source>
        <translation>Die Gruppe enthält keinen Schritt</translation>
    </message>
    <message>
        <source>Put steps into it, or take it out</source>
        <translation>Legen Sie Schritte hinein, oder nehmen Sie sie heraus</translation>
    </message>
    <message>
        <source>It is no JSON object</source>
        <translation>Es ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>“%1” is no list of names</source>
        <translation>„%1“ ist keine Liste von Namen</translation>
    </message>
    <message>
        <source>Saving in the tool drops the comments: there are %1</source>
        <translation>Das Speichern im Werkzeug verwirft die Kommentare: Es sind %1</translation>
    </message>
    <message>
        <source>Put what is to stay into a step&apos;s “comment”</source>
        <translation>Schreiben Sie, was bleiben soll, in „comment“ eines Schritts</translation>
    </message>
    <message>
        <source>A step is an object, {…}</source>
        <translation>Ein Schritt ist ein Objekt, {…}</translation>
    </message>
    <message>
        <source>A step without keys is dropped</source>
        <translation>Ein Schritt ohne Schlüssel wird verworfen</translation>
    </message>
    <message>
        <source>The key “%1” stands twice in the step</source>
        <translation>Der Schlüssel „%1“ steht zweimal im Schritt</translation>
    </message>
    <message>
        <source>Only the last one counts: take the others out</source>
        <translation>Nur der letzte zählt: Nehmen Sie die anderen heraus</translation>
    </message>
    <message>
        <source>lupdate leaves out an expression in quotation marks</source>
        <translation>lupdate lässt einen Ausdruck in Anführungszeichen aus</translation>
    </message>
    <message>
        <source>Perhaps “%1” is meant</source>
        <translation>Vielleicht ist „%1“ gemeint</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>The number stands in quotation marks, and is read as 0</source>
        <translation>Die Zahl steht in Anführungszeichen und wird als 0 gelesen</translation>
    </message>
    <message>
        <source>Write it without them</source>
        <translation>Schreiben Sie sie ohne</translation>
    </message>
    <message>
        <source>“%1” is a whole number, not %2</source>
        <translation>„%1“ ist eine ganze Zahl, nicht: %2</translation>
    </message>
    <message>
        <source>“%1” is no whole number, and is read as 0</source>
        <translation>„%1“ ist keine ganze Zahl und wird als 0 gelesen</translation>
    </message>
    <message>
        <source>Write a whole number</source>
        <translation>Schreiben Sie eine ganze Zahl</translation>
    </message>
    <message>
        <source>“option” is 0, or 1 to hide the arrow</source>
        <translation>„option“ ist 0, oder 1, um den Pfeil zu verbergen</translation>
    </message>
    <message>
        <source>Saving makes this number %1</source>
        <translation>Das Speichern macht aus dieser Zahl %1</translation>
    </message>
    <message>
        <source>Write six digits at most, or a text</source>
        <translation>Schreiben Sie höchstens sechs Ziffern, oder einen Text</translation>
    </message>
    <message>
        <source>Nothing looks at the key “%1”</source>
        <translation>Den Schlüssel „%1“ beachtet nichts</translation>
    </message>
    <message>
        <source>“%1” is no key that is known</source>
        <translation>„%1“ ist kein bekannter Schlüssel</translation>
    </message>
    <message>
        <source>There is “%1”, but no “%2”</source>
        <translation>Es gibt „%1“, aber kein „%2“</translation>
    </message>
    <message>
        <source>Give both or none</source>
        <translation>Geben Sie beide an oder keins</translation>
    </message>
    <message>
        <source>The point is outside of every screen</source>
        <translation>Der Punkt liegt außerhalb jedes Bildschirms</translation>
    </message>
    <message>
        <source>Pick it again</source>
        <translation>Wählen Sie ihn neu</translation>
    </message>
    <message>
        <source>“%1” means nothing in a group, and saving drops it</source>
        <translation>„%1“ bedeutet in einer Gruppe nichts, und das Speichern verwirft es</translation>
    </message>
    <message>
        <source>Put it into the group&apos;s steps</source>
        <translation>Schreiben Sie es in die Schritte der Gruppe</translation>
    </message>
    <message>
        <source>“group” is a list of steps, not %1</source>
        <translation>„group“ ist eine Liste von Schritten, nicht: %1</translation>
    </message>
    <message>
        <source>“%1” is a text, not %2</source>
        <translation>„%1“ ist ein Text, nicht: %2</translation>
    </message>
    <message>
        <source>Write it in quotation marks</source>
        <translation>Schreiben Sie ihn in Anführungszeichen</translation>
    </message>
    <message>
        <source>The host has no window “%1”</source>
        <translation>Der Host hat kein Fenster „%1“</translation>
    </message>
    <message>
        <source>There is no window “%1”</source>
        <translation>Es gibt kein Fenster „%1“</translation>
    </message>
    <message>
        <source>The condition lacks a parameter</source>
        <translation>Der Bedingung fehlt ein Parameter</translation>
    </message>
    <message>
        <source>The condition is never met with “%1”</source>
        <translation>Mit „%1“ wird die Bedingung nie erfüllt</translation>
    </message>
    <message>
        <source>Expected is %1</source>
        <translation>Erwartet wird: %1</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>The host has no list “%1”</source>
        <translation>Der Host hat keine Liste „%1“</translation>
    </message>
    <message>
        <source>There is no list “%1”</source>
        <translation>Es gibt keine Liste „%1“</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a row, counted from 0, or -1 for any</source>
        <translation>eine Zeile, ab 0 gezählt, oder -1 für jede</translation>
    </message>
    <message>
        <source>a number, counted from 0</source>
        <translation>eine Nummer, ab 0 gezählt</translation>
    </message>
    <message>
        <source>The host has no action “%1”</source>
        <translation>Der Host hat keine Aktion „%1“</translation>
    </message>
    <message>
        <source>The host has no combo box “%1”</source>
        <translation>Der Host hat kein Kombinationsfeld „%1“</translation>
    </message>
    <message>
        <source>The host has no check box “%1”</source>
        <translation>Der Host hat kein Kontrollkästchen „%1“</translation>
    </message>
    <message>
        <source>1 for on or 0 for off</source>
        <translation>1 für an oder 0 für aus</translation>
    </message>
    <message>
        <source>The step has no condition</source>
        <translation>Der Schritt hat keine Bedingung</translation>
    </message>
    <message>
        <source>Write click, for one that ends with Next</source>
        <translation>Schreiben Sie click, für einen, der mit Weiter endet</translation>
    </message>
    <message>
        <source>There is no condition “%1”</source>
        <translation>Es gibt keine Bedingung „%1“</translation>
    </message>
    <message>
        <source>No text has such a length</source>
        <translation>Kein Text hat eine solche Länge</translation>
    </message>
    <message>
        <source>The condition was left as the form begins it</source>
        <translation>Die Bedingung blieb so, wie das Formular sie beginnt</translation>
    </message>
    <message>
        <source>Say what is waited for</source>
        <translation>Sagen Sie, worauf gewartet wird</translation>
    </message>
    <message>
        <source>There is no command “%1”</source>
        <translation>Es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>The command lacks its parameter</source>
        <translation>Dem Befehl fehlt sein Parameter</translation>
    </message>
    <message>
        <source>Write %1,NAME</source>
        <translation>Schreiben Sie %1,NAME</translation>
    </message>
    <message>
        <source>The host knows no “%1”</source>
        <translation>Der Host kennt kein „%1“</translation>
    </message>
    <message>
        <source>“%1” is no target</source>
        <translation>„%1“ ist kein Ziel</translation>
    </message>
    <message>
        <source>Write window/widget, window/widget[row], or action:NAME</source>
        <translation>Schreiben Sie Fenster/Widget, Fenster/Widget[Zeile] oder action:NAME</translation>
    </message>
    <message>
        <source>The host has no target “%1”</source>
        <translation>Der Host hat kein Ziel „%1“</translation>
    </message>
    <message>
        <source>There is no icon “%1”</source>
        <translation>Es gibt kein Symbol „%1“</translation>
    </message>
    <message>
        <source>Close each tag</source>
        <translation>Schließen Sie jedes Tag</translation>
    </message>
    <message>
        <source>The tag &lt;%1 lacks its &gt;</source>
        <translation>Dem Tag &lt;%1 fehlt sein &gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not closed</source>
        <translation>&lt;%1&gt; ist nicht geschlossen</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; closes no tag</source>
        <translation>&lt;/%1&gt; schließt kein Tag</translation>
    </message>
    <message>
        <source>The hint is too long for the balloon: about %1 lines</source>
        <translation>Der Hinweis ist zu lang für die Sprechblase: etwa %1 Zeilen</translation>
    </message>
    <message>
        <source>Tell it in %1 lines, or in several steps</source>
        <translation>Sagen Sie es in %1 Zeilen oder in mehreren Schritten</translation>
    </message>
    <message>
        <source>This begins like a translation, but is none</source>
        <translation>Das beginnt wie eine Übersetzung, ist aber keine</translation>
    </message>
    <message>
        <source>lupdate leaves out QT_TRANSLATE_NOOP with one text</source>
        <translation>lupdate lässt QT_TRANSLATE_NOOP mit nur einem Text aus</translation>
    </message>
    <message>
        <source>%1 has no translation of the hint</source>
        <translation>%1 hat keine Übersetzung des Hinweises</translation>
    </message>
    <message>
        <source>Run lupdate, and translate it</source>
        <translation>Rufen Sie lupdate auf, und übersetzen Sie ihn</translation>
    </message>
    <message>
        <source>The hint cannot be translated</source>
        <translation>Der Hinweis kann nicht übersetzt werden</translation>
    </message>
    <message>
        <source>“%1” is never translated</source>
        <translation>„%1“ wird nie übersetzt</translation>
    </message>
    <message>
        <source>Write a plain text</source>
        <translation>Schreiben Sie einen einfachen Text</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::StepForm</name>
    <message>
        <source>condition:</source>
        <translation>Bedingung:</translation>
    </message>
    <message>
        <source>What the learner has to do before the next step comes</source>
        <translation>Was zu tun ist, bevor der nächste Schritt kommt</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>The window that is waited for</source>
        <translation>Das Fenster, auf das gewartet wird</translation>
    </message>
    <message>
        <source>Where the mouse has to be used</source>
        <translation>Wo die Maus zu benutzen ist</translation>
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
        <source>What has to happen to the window</source>
        <translation>Was mit dem Fenster geschehen muss</translation>
    </message>
    <message>
        <source>What the mouse has to do</source>
        <translation>Was die Maus zu tun hat</translation>
    </message>
    <message>
        <source>icon:</source>
        <translation>Symbol:</translation>
    </message>
    <message>
        <source>The picture beside the arrow</source>
        <translation>Das Bild neben dem Pfeil</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>What the editor does when the step begins; the empty row is nothing</source>
        <translation>Was der Editor tut, wenn der Schritt beginnt; die leere Zeile heißt nichts</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>What the command works on</source>
        <translation>Worauf der Befehl wirkt</translation>
    </message>
    <message>
        <source>label:</source>
        <translation>Marke:</translation>
    </message>
    <message>
        <source>The name by which other steps go to this one</source>
        <translation>Der Name, unter dem andere Schritte zu diesem springen</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Marke</translation>
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
        <source>Hidden arrow</source>
        <translation>Verborgener Pfeil</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Pixels from the left edge of the followed window to the point that the step shows</source>
        <translation>Pixel vom linken Rand des Fensters, dem gefolgt wird, bis zum Punkt, den der Schritt zeigt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
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
        <source>Followed window</source>
        <translation>Fenster</translation>
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
        <source>target:</source>
        <translation>Ziel:</translation>
    </message>
    <message>
        <source>The name of what the step shows, such as find/closeButton or action:Find; where the editor finds it, the position counts for nothing</source>
        <translation>Der Name dessen, was der Schritt zeigt, etwa find/closeButton oder action:Find; findet der Editor es, so zählt die Position nicht</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>log comment:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>A note of the author&apos;s</source>
        <translation>Eine Notiz für die Autoren</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>The note, translated</source>
        <translation>Die Notiz, übersetzt</translation>
    </message>
    <message>
        <source>hint:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>What the balloon says; qsTr(&quot;…&quot;) around it makes it translatable</source>
        <translation>Was die Sprechblase sagt; qsTr(&quot;…&quot;) darum macht es übersetzbar</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>The hint as the learner sees it, translated by the editor</source>
        <translation>Der Hinweis, wie ihn die Lernenden sehen, vom Editor übersetzt</translation>
    </message>
    <message>
        <source>All fields are shown</source>
        <translation>Alle Felder werden gezeigt</translation>
    </message>
    <message>
        <source>How long the step is shown, in seconds</source>
        <translation>Wie lange der Schritt gezeigt wird, in Sekunden</translation>
    </message>
    <message>
        <source>The number of characters</source>
        <translation>Die Zahl der Zeichen</translation>
    </message>
    <message>
        <source>The list whose menu has to open; * is any</source>
        <translation>Die Liste, deren Menü sich öffnen muss; * ist jede</translation>
    </message>
    <message>
        <source>The row that has to be chosen, counted from 0</source>
        <translation>Die Zeile, die gewählt werden muss, von 0 an gezählt</translation>
    </message>
    <message>
        <source>Nothing: Next is what has to be pressed</source>
        <translation>Nichts: Gedrückt werden muss „Weiter“</translation>
    </message>
    <message>
        <source>The page of the button, counted from 0</source>
        <translation>Die Seite der Schaltfläche, von 0 an gezählt</translation>
    </message>
    <message>
        <source>The button that has to be pressed, counted from 0</source>
        <translation>Die Schaltfläche, die gedrückt werden muss, von 0 an gezählt</translation>
    </message>
    <message>
        <source>The name of the combo box</source>
        <translation>Der Name des Auswahlfeldes</translation>
    </message>
    <message>
        <source>The row that it has to show, counted from 0</source>
        <translation>Die Zeile, die es zeigen muss, von 0 an gezählt</translation>
    </message>
    <message>
        <source>The name of the check box</source>
        <translation>Der Name des Kontrollkästchens</translation>
    </message>
    <message>
        <source>1 when it has to be checked, 0 when not</source>
        <translation>1, wenn es angekreuzt sein muss, 0, wenn nicht</translation>
    </message>
    <message>
        <source>The value</source>
        <translation>Der Wert</translation>
    </message>
    <message>
        <source>The label of the step after Yes; empty for the next step</source>
        <translation>Die Marke des Schritts nach „Ja“; leer für den nächsten Schritt</translation>
    </message>
    <message>
        <source>The label of the step after No; empty for the next step</source>
        <translation>Die Marke des Schritts nach „Nein“; leer für den nächsten Schritt</translation>
    </message>
</context>
<context>
    <name>TutorialEditor::TargetPath</name>
    <message>
        <source>something stands behind its end</source>
        <translation>hinter seinem Ende steht noch etwas</translation>
    </message>
    <message>
        <source>nothing follows the last “\”</source>
        <translation>auf das letzte „\“ folgt nichts</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>ein Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>a name is missing</source>
        <translation>ein Name fehlt</translation>
    </message>
    <message>
        <source>a “[” has no “]”</source>
        <translation>zu einer „[“ fehlt die „]“</translation>
    </message>
    <message>
        <source>nothing stands between “[” and “]”</source>
        <translation>zwischen „[“ und „]“ steht nichts</translation>
    </message>
    <message>
        <source>behind “@” stand two numbers from 0 to 1, with a comma between them</source>
        <translation>hinter „@“ stehen zwei Zahlen von 0 bis 1, durch ein Komma getrennt</translation>
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
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
</context>
</TS>
