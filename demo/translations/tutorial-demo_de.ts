<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DatabaseDialog</name>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>New hero</source>
        <translation>Neuer Held</translation>
    </message>
    <message>
        <source>Class:</source>
        <translation>Klasse:</translation>
    </message>
    <message>
        <source>Fighter</source>
        <translation>Kämpferin</translation>
    </message>
    <message>
        <source>Healer</source>
        <translation>Heiler</translation>
    </message>
    <message>
        <source>Mage</source>
        <translation>Magierin</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Stufe:</translation>
    </message>
    <message>
        <source>Joins at the start</source>
        <translation>Von Anfang an dabei</translation>
    </message>
    <message>
        <source>New item</source>
        <translation>Neuer Gegenstand</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Food</source>
        <translation>Nahrung</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Weapon</source>
        <translation>Waffe</translation>
    </message>
    <message>
        <source>Price:</source>
        <translation>Preis:</translation>
    </message>
    <message>
        <source>Is used up</source>
        <translation>Wird verbraucht</translation>
    </message>
    <message>
        <source>Heroes</source>
        <translation>Helden</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Gegenstände</translation>
    </message>
</context>
<context>
    <name>EntryPage</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>EventDialog</name>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Trigger:</source>
        <translation>Auslöser:</translation>
    </message>
    <message>
        <source>Action key</source>
        <translation>Aktionstaste</translation>
    </message>
    <message>
        <source>Player touches</source>
        <translation>Berührung durch den Spieler</translation>
    </message>
    <message>
        <source>Event touches</source>
        <translation>Berührung durch das Ereignis</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Von selbst</translation>
    </message>
    <message>
        <source>In parallel</source>
        <translation>Nebenher</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>Walking animation</source>
        <translation>Laufanimation</translation>
    </message>
    <message>
        <source>Walks through walls</source>
        <translation>Geht durch Wände</translation>
    </message>
    <message>
        <source>Add Text</source>
        <translation>Neuer Text</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Show text: Hello!</source>
        <translation>Text zeigen: Hallo!</translation>
    </message>
</context>
<context>
    <name>FormDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>There is no data “%1”.</source>
        <translation type="vanished">Es gibt keine Daten „%1“.</translation>
    </message>
    <message>
        <source>You have finished the tutorial.</source>
        <translation>Die Einführung ist geschafft.</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt …</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;New Map…</source>
        <translation>&amp;Neue Karte …</translation>
    </message>
    <message>
        <source>&amp;Edit Map…</source>
        <translation>Karte &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>&amp;Delete Map…</source>
        <translation>Karte &amp;löschen …</translation>
    </message>
    <message>
        <source>Edit &amp;Event…</source>
        <translation>Ereignis &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>Delete E&amp;vent</source>
        <translation>Ereignis &amp;löschen</translation>
    </message>
    <message>
        <source>Player &amp;Starts Here</source>
        <translation>&amp;Spieler beginnt hier</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Database…</source>
        <translation>&amp;Datenbank …</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>&amp;Optionen …</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Über …</translation>
    </message>
    <message>
        <source>&amp;First Steps</source>
        <translation>&amp;Erste Schritte</translation>
    </message>
    <message>
        <source>&amp;All Conditions</source>
        <translation>&amp;Alle Bedingungen</translation>
    </message>
    <message>
        <source>&amp;Open a Scenario…</source>
        <translation>Szenario ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a Scenario</source>
        <translation>Szenario öffnen</translation>
    </message>
    <message>
        <source>Scenarios (*.js)</source>
        <translation>Szenarien (*.js)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Ab&amp;brechen</translation>
    </message>
    <message>
        <source>Draw the &amp;Map</source>
        <translation>&amp;Karte malen</translation>
    </message>
    <message>
        <source>Place &amp;Events</source>
        <translation>&amp;Ereignisse setzen</translation>
    </message>
    <message>
        <source>&amp;Pencil</source>
        <translation>&amp;Stift</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>&amp;Flood Fill</source>
        <translation>E&amp;imer</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>T&amp;utorial</source>
        <translation>&amp;Einführung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Events on this map</source>
        <translation>Ereignisse auf dieser Karte</translation>
    </message>
    <message>
        <source>%1 – Map Workshop</source>
        <translation>%1 – Kartenwerkstatt</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>Edit Map</source>
        <translation>Karte bearbeiten</translation>
    </message>
    <message>
        <source>Delete Map</source>
        <translation>Karte löschen</translation>
    </message>
    <message>
        <source>Shall the map “%1” be deleted?</source>
        <translation>Soll die Karte „%1“ gelöscht werden?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>A small map editor that shows how a host drives the tutorial.</source>
        <translation>Ein kleiner Karteneditor, der zeigt, wie ein Programm die Einführung steuert.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation type="vanished">„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>New &amp;Tutorial…</source>
        <translation>Neue &amp;Einführung …</translation>
    </message>
    <message>
        <source>&amp;Edit Tutorial…</source>
        <translation>Einführung bea&amp;rbeiten …</translation>
    </message>
    <message>
        <source>&amp;Record Condition</source>
        <translation>Bedingung auf&amp;nehmen</translation>
    </message>
    <message>
        <source>New Tutorial</source>
        <translation>Neue Einführung</translation>
    </message>
    <message>
        <source>Edit Tutorial</source>
        <translation>Einführung bearbeiten</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
</context>
<context>
    <name>NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Name of your game</source>
        <translation>Name deines Spiels</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Ground:</source>
        <translation>Untergrund:</translation>
    </message>
    <message>
        <source>Start with the example world</source>
        <translation>Mit der Beispielwelt beginnen</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Map:</source>
        <translation>Karte:</translation>
    </message>
    <message>
        <source>Show the grid</source>
        <translation>Gitter zeigen</translation>
    </message>
    <message>
        <source>Grid strength:</source>
        <translation>Gitterstärke:</translation>
    </message>
    <message>
        <source>Cells:</source>
        <translation>Felder:</translation>
    </message>
    <message>
        <source>Counted from 0</source>
        <translation>Gezählt ab 0</translation>
    </message>
    <message>
        <source>Counted from 1</source>
        <translation>Gezählt ab 1</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>Meadow Tale</source>
        <translation>Wiesenmärchen</translation>
    </message>
    <message>
        <source>Meadow Island</source>
        <translation>Wieseninsel</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Wegweiserin</translation>
    </message>
    <message>
        <source>Show text: Welcome to the island!</source>
        <translation>Text zeigen: Willkommen auf der Insel!</translation>
    </message>
    <message>
        <source>Show text: The bridge leads east.</source>
        <translation>Text zeigen: Die Brücke führt nach Osten.</translation>
    </message>
    <message>
        <source>Give item: Old Map</source>
        <translation>Gegenstand geben: Alte Karte</translation>
    </message>
    <message>
        <source>Treasure</source>
        <translation>Schatz</translation>
    </message>
    <message>
        <source>Give item: Silver Key</source>
        <translation>Gegenstand geben: Silberschlüssel</translation>
    </message>
    <message>
        <source>Guide&apos;s House</source>
        <translation>Haus der Wegweiserin</translation>
    </message>
    <message>
        <source>Sandbank</source>
        <translation>Sandbank</translation>
    </message>
    <message>
        <source>Alma</source>
        <translation>Alma</translation>
    </message>
    <message>
        <source>Bruno</source>
        <translation>Bruno</translation>
    </message>
    <message>
        <source>Cleo</source>
        <translation>Cleo</translation>
    </message>
    <message>
        <source>Apple</source>
        <translation>Apfel</translation>
    </message>
    <message>
        <source>Old Map</source>
        <translation>Alte Karte</translation>
    </message>
    <message>
        <source>Silver Key</source>
        <translation>Silberschlüssel</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>First Map</source>
        <translation>Erste Karte</translation>
    </message>
    <message>
        <source>Hero</source>
        <translation>Heldin</translation>
    </message>
    <message>
        <source>Grass</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Flowers</source>
        <translation>Blumen</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Hills</source>
        <translation>Berge</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Brücke</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>Fence</source>
        <translation>Zaun</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Authoring</name>
    <message>
        <source>The condition is “%1”.</source>
        <translation>Die Bedingung ist „%1“.</translation>
    </message>
    <message>
        <source>The point is %1, %2.</source>
        <translation>Der Punkt ist %1, %2.</translation>
    </message>
    <message>
        <source>The point is %1, %2 in “%3”.</source>
        <translation>Der Punkt ist %1, %2 in „%3“.</translation>
    </message>
    <message>
        <source>No point was picked.</source>
        <translation>Es wurde kein Punkt gewählt.</translation>
    </message>
    <message>
        <source>No tutorial is being edited.</source>
        <translation>Es wird keine Einführung bearbeitet.</translation>
    </message>
    <message>
        <source>Do now what the step is to wait for.</source>
        <translation>Tun Sie jetzt, worauf der Schritt warten soll.</translation>
    </message>
    <message>
        <source>Click the point that the step shows; Escape leaves it as it is.</source>
        <translation>Klicken Sie auf den Punkt, den der Schritt zeigt; Escape lässt ihn, wie er ist.</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>Bildschirm</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Condition</name>
    <message>
        <source>unknown condition “%1”</source>
        <translation>unbekannte Bedingung „%1“</translation>
    </message>
    <message>
        <source>wrong parameters in “%1”</source>
        <translation>falsche Parameter in „%1“</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Host</name>
    <message>
        <source>“%1” could not be done with “%2”.</source>
        <translation>„%1“ ließ sich mit „%2“ nicht ausführen.</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Link</name>
    <message>
        <source>The tutorial “%1” could not be started: %2</source>
        <translation>Die Einführung „%1“ ließ sich nicht starten: %2</translation>
    </message>
    <message>
        <source>The tutorial has ended unexpectedly.</source>
        <translation>Die Einführung wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>The tutorial has not connected.</source>
        <translation>Die Einführung hat sich nicht verbunden.</translation>
    </message>
    <message>
        <source>The tutorial&apos;s server could not be opened: %1</source>
        <translation>Der Server für die Einführung ließ sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>The tutorial has left the link.</source>
        <translation>Die Einführung hat die Verbindung getrennt.</translation>
    </message>
    <message>
        <source>The tutorial “%1” is not of version %2 (it says “%3”).</source>
        <translation>Die Einführung „%1“ hat nicht die Version %2 (sie nennt „%3“).</translation>
    </message>
    <message>
        <source>The tutorial has given no sign of life.</source>
        <translation>Die Einführung hat kein Lebenszeichen gegeben.</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Player</name>
    <message>
        <source>Step %1 waits for “%2”.</source>
        <translation>Schritt %1 wartet auf „%2“.</translation>
    </message>
    <message>
        <source>Step %1 waits for the window “%2”.</source>
        <translation>Schritt %1 wartet auf das Fenster „%2“.</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>Schritt %1: %2</translation>
    </message>
    <message>
        <source>Step %1: nothing in the window is called “%2”.</source>
        <translation>Schritt %1: Nichts im Fenster heißt „%2“.</translation>
    </message>
    <message>
        <source>Step %1: there is no label “%2”.</source>
        <translation>Schritt %1: Es gibt keine Marke „%2“.</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Scenario</name>
    <message>
        <source>unknown %1 “%2”</source>
        <translation>%1 „%2“ ist unbekannt</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Session</name>
    <message>
        <source>There is no scenario to play in “%1”.</source>
        <translation>In „%1“ gibt es kein Szenario zu spielen.</translation>
    </message>
</context>
<context>
    <name>TutorialHost::Target</name>
    <message>
        <source>no button and no menu shows the action now</source>
        <translation>keine Schaltfläche und kein Menü zeigt die Aktion gerade</translation>
    </message>
    <message>
        <source>it is outside of what can be seen</source>
        <translation>es liegt außerhalb dessen, was zu sehen ist</translation>
    </message>
</context>
<context>
    <name>TutorialHost::TargetPath</name>
    <message>
        <source>something stands behind its end</source>
        <translation type="vanished">hinter seinem Ende steht noch etwas</translation>
    </message>
    <message>
        <source>nothing follows the last “\”</source>
        <translation type="vanished">auf das letzte „\“ folgt nichts</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation type="vanished">ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>a name is missing</source>
        <translation type="vanished">ein Name fehlt</translation>
    </message>
    <message>
        <source>a “[” has no “]”</source>
        <translation type="vanished">zu einem „[“ fehlt das „]“</translation>
    </message>
    <message>
        <source>nothing stands between “[” and “]”</source>
        <translation type="vanished">zwischen „[“ und „]“ steht nichts</translation>
    </message>
    <message>
        <source>behind “@” stand two numbers from 0 to 1, with a comma between them</source>
        <translation type="vanished">hinter „@“ stehen zwei Zahlen von 0 bis 1 mit einem Komma dazwischen</translation>
    </message>
</context>
<context>
    <name>TutorialHost::TargetResolver</name>
    <message>
        <source>its row is not on show</source>
        <translation>seine Zeile wird nicht gezeigt</translation>
    </message>
    <message>
        <source>“%1” has no “%2”</source>
        <translation>„%1“ hat kein „%2“</translation>
    </message>
    <message>
        <source>“%1” is hidden, and nothing there shows it</source>
        <translation>„%1“ ist verborgen, und nichts dort zeigt es</translation>
    </message>
    <message>
        <source>there is no action “%1”</source>
        <translation>es gibt keine Aktion „%1“</translation>
    </message>
    <message>
        <source>nothing is called “%1”</source>
        <translation>nichts heißt „%1“</translation>
    </message>
    <message>
        <source>the window “%1” is not open</source>
        <translation>das Fenster „%1“ ist nicht offen</translation>
    </message>
    <message>
        <source>nothing in “%1” is called “%2”</source>
        <translation>nichts in „%1“ heißt „%2“</translation>
    </message>
</context>
<context>
    <name>all-conditions</name>
    <message>
        <source>This tour meets every condition once. &lt;b&gt;Wait&lt;/b&gt; three seconds.</source>
        <translation>Diese Rundfahrt begegnet jeder Bedingung einmal. &lt;b&gt;Warte&lt;/b&gt; drei Sekunden.</translation>
    </message>
    <message>
        <source>The map</source>
        <translation>Die Karte</translation>
    </message>
    <message>
        <source>&lt;b&gt;Click&lt;/b&gt; the map in the corner. Here the arrow points up and the hint stands on its left.</source>
        <translation>&lt;b&gt;Klicke&lt;/b&gt; in die Ecke der Karte. Hier zeigt der Pfeil nach oben, und der Hinweis steht links von ihm.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Double-click&lt;/b&gt; near the right edge.</source>
        <translation>&lt;b&gt;Doppelklicke&lt;/b&gt; nahe am rechten Rand.</translation>
    </message>
    <message>
        <source>Open the map’s &lt;b&gt;context menu&lt;/b&gt; with a right click.</source>
        <translation>Öffne mit einem Rechtsklick das &lt;b&gt;Kontextmenü&lt;/b&gt; der Karte.</translation>
    </message>
    <message>
        <source>Choose &lt;b&gt;Edit Event&lt;/b&gt;.</source>
        <translation>Wähle &lt;b&gt;Ereignis bearbeiten&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The event</source>
        <translation>Das Ereignis</translation>
    </message>
    <message>
        <source>Type a &lt;b&gt;name&lt;/b&gt; of three letters.</source>
        <translation>Tippe einen &lt;b&gt;Namen&lt;/b&gt; mit drei Buchstaben ein.</translation>
    </message>
    <message>
        <source>Choose the &lt;b&gt;first trigger&lt;/b&gt;.</source>
        <translation>Wähle den &lt;b&gt;ersten Auslöser&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Make it &lt;b&gt;fast&lt;/b&gt;: five or more.</source>
        <translation>Mach es &lt;b&gt;schnell&lt;/b&gt;: fünf oder mehr.</translation>
    </message>
    <message>
        <source>Turn the &lt;b&gt;animation&lt;/b&gt; on.</source>
        <translation>Schalte die &lt;b&gt;Animation&lt;/b&gt; ein.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;OK&lt;/b&gt;.</source>
        <translation>Drücke &lt;b&gt;OK&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The panel</source>
        <translation>Die Leiste</translation>
    </message>
    <message>
        <source>Choose the &lt;b&gt;sixth tile&lt;/b&gt;.</source>
        <translation>Wähle die &lt;b&gt;sechste Kachel&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Click an &lt;b&gt;event&lt;/b&gt; in the list.</source>
        <translation>Klicke in der Liste auf ein &lt;b&gt;Ereignis&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Right-click a &lt;b&gt;map&lt;/b&gt; in the tree.</source>
        <translation>Klicke im Baum mit rechts auf eine &lt;b&gt;Karte&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Choose &lt;b&gt;Delete Map&lt;/b&gt;. Nothing is lost yet.</source>
        <translation>Wähle &lt;b&gt;Karte löschen&lt;/b&gt;. Noch geht nichts verloren.</translation>
    </message>
    <message>
        <source>Better press &lt;b&gt;Keep&lt;/b&gt;.</source>
        <translation>Drücke lieber &lt;b&gt;Behalten&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The windows</source>
        <translation>Die Fenster</translation>
    </message>
    <message>
        <source>Open the &lt;b&gt;options&lt;/b&gt;. The arrow points up here.</source>
        <translation>Öffne die &lt;b&gt;Optionen&lt;/b&gt;. Hier zeigt der Pfeil nach oben.</translation>
    </message>
    <message>
        <source>Turn the &lt;b&gt;grid&lt;/b&gt; off.</source>
        <translation>Schalte das &lt;b&gt;Gitter&lt;/b&gt; aus.</translation>
    </message>
    <message>
        <source>And leave it as it was: &lt;b&gt;Cancel&lt;/b&gt;.</source>
        <translation>Und lass doch alles, wie es war: &lt;b&gt;Abbrechen&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Open the &lt;b&gt;first menu&lt;/b&gt;.</source>
        <translation>Öffne das &lt;b&gt;erste Menü&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Choose &lt;b&gt;New Project&lt;/b&gt;.</source>
        <translation>Wähle &lt;b&gt;Neues Projekt&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>This step hides its &lt;b&gt;arrow&lt;/b&gt;. Wait again.</source>
        <translation>Dieser Schritt verbirgt seinen &lt;b&gt;Pfeil&lt;/b&gt;. Warte noch einmal.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Close&lt;/b&gt; the window.</source>
        <translation>&lt;b&gt;Schließe&lt;/b&gt; das Fenster.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;Next&lt;/b&gt;.</source>
        <translation>Drücke &lt;b&gt;Next&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Once more? &lt;b&gt;Yes&lt;/b&gt; goes back by a step, &lt;b&gt;No&lt;/b&gt; goes on.</source>
        <translation>Noch einmal? Mit &lt;b&gt;Yes&lt;/b&gt; geht es einen Schritt zurück, mit &lt;b&gt;No&lt;/b&gt; weiter.</translation>
    </message>
    <message>
        <source>&lt;b&gt;That was all.&lt;/b&gt; Press &lt;b&gt;Next&lt;/b&gt; to end.</source>
        <translation>&lt;b&gt;Das war alles.&lt;/b&gt; Mit &lt;b&gt;Next&lt;/b&gt; ist Schluss.</translation>
    </message>
</context>
<context>
    <name>first-steps</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Welcome to the Map Workshop!&lt;/b&gt;&lt;p&gt;In a few minutes you will start a game of your own, paint its map and bring somebody to life.&lt;/p&gt;Press &lt;b&gt;Next&lt;/b&gt; to begin.</source>
        <translation>&lt;b&gt;Willkommen in der Kartenwerkstatt!&lt;/b&gt;&lt;p&gt;In wenigen Minuten beginnst du ein eigenes Spiel, malst seine Karte und erweckst jemanden zum Leben.&lt;/p&gt;Mit &lt;b&gt;Next&lt;/b&gt; geht es los.</translation>
    </message>
    <message>
        <source>This is the &lt;b&gt;map&lt;/b&gt;, the world of your game. All that you draw appears here at once.</source>
        <translation>Das ist die &lt;b&gt;Karte&lt;/b&gt;, die Welt deines Spiels. Alles, was du malst, erscheint sofort hier.</translation>
    </message>
    <message>
        <source>A game of your own</source>
        <translation>Ein eigenes Spiel</translation>
    </message>
    <message>
        <source>Every game begins with a project. Click &lt;b&gt;New Project&lt;/b&gt;.</source>
        <translation>Jedes Spiel beginnt mit einem Projekt. Klicke auf &lt;b&gt;Neues Projekt&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Type a &lt;b&gt;title&lt;/b&gt; for your game. Six letters or more, please.</source>
        <translation>Tippe einen &lt;b&gt;Titel&lt;/b&gt; für dein Spiel ein, bitte mit sechs Buchstaben oder mehr.</translation>
    </message>
    <message>
        <source>Tick this box, and you need not start with an empty world.</source>
        <translation>Setze hier einen Haken, dann beginnst du nicht mit einer leeren Welt.</translation>
    </message>
    <message>
        <source>That is all it takes. Press &lt;b&gt;OK&lt;/b&gt;.</source>
        <translation>Mehr braucht es nicht. Drücke &lt;b&gt;OK&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>Time to paint! Choose the &lt;b&gt;flowers&lt;/b&gt; among the tiles.</source>
        <translation>Jetzt wird gemalt! Wähle unter den Kacheln die &lt;b&gt;Blumen&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Take the &lt;b&gt;bucket&lt;/b&gt;. It fills everything that is connected.</source>
        <translation>Nimm den &lt;b&gt;Eimer&lt;/b&gt;. Er füllt alles, was zusammenhängt.</translation>
    </message>
    <message>
        <source>Click the &lt;b&gt;little island&lt;/b&gt; and watch it bloom.</source>
        <translation>Klicke auf die &lt;b&gt;kleine Insel&lt;/b&gt; und sieh zu, wie sie erblüht.</translation>
    </message>
    <message>
        <source>Too many flowers? &lt;b&gt;Undo&lt;/b&gt; takes back whatever you have drawn.</source>
        <translation>Zu viele Blumen? &lt;b&gt;Rückgängig&lt;/b&gt; nimmt zurück, was du gemalt hast.</translation>
    </message>
    <message>
        <source>Somebody to meet</source>
        <translation>Eine Begegnung</translation>
    </message>
    <message>
        <source>Somebody should live here. Switch from the map to its &lt;b&gt;events&lt;/b&gt;.</source>
        <translation>Hier soll jemand wohnen. Wechsle von der Karte zu ihren &lt;b&gt;Ereignissen&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Double-click&lt;/b&gt; the spot where somebody is to stand.</source>
        <translation>&lt;b&gt;Doppelklicke&lt;/b&gt; auf die Stelle, an der jemand stehen soll.</translation>
    </message>
    <message>
        <source>Who is it? Type a &lt;b&gt;name&lt;/b&gt;.</source>
        <translation>Wer ist es? Tippe einen &lt;b&gt;Namen&lt;/b&gt; ein.</translation>
    </message>
    <message>
        <source>Nobody stands quite still: turn the &lt;b&gt;walking animation&lt;/b&gt; on.</source>
        <translation>Niemand steht ganz still: Schalte die &lt;b&gt;Laufanimation&lt;/b&gt; ein.</translation>
    </message>
    <message>
        <source>Press &lt;b&gt;OK&lt;/b&gt;, and your map has a new inhabitant.</source>
        <translation>Drücke &lt;b&gt;OK&lt;/b&gt;, und deine Karte hat eine Bewohnerin mehr.</translation>
    </message>
    <message>
        <source>Your heroes and their belongings live in the &lt;b&gt;database&lt;/b&gt;. Shall we have a look?</source>
        <translation>Deine Helden und ihre Habe stehen in der &lt;b&gt;Datenbank&lt;/b&gt;. Wollen wir hineinsehen?</translation>
    </message>
    <message>
        <source>The database</source>
        <translation>Die Datenbank</translation>
    </message>
    <message>
        <source>Open the &lt;b&gt;database&lt;/b&gt;.</source>
        <translation>Öffne die &lt;b&gt;Datenbank&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Choose one of the &lt;b&gt;heroes&lt;/b&gt;. On the right you can change everything about them.</source>
        <translation>Wähle jemanden unter den &lt;b&gt;Helden&lt;/b&gt; aus. Rechts lässt sich alles an ihnen ändern.</translation>
    </message>
    <message>
        <source>Look around as long as you like, then press &lt;b&gt;OK&lt;/b&gt;.</source>
        <translation>Sieh dich um, so lange du magst, und drücke dann &lt;b&gt;OK&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Well done!&lt;/b&gt; You have started a game, painted and met somebody.&lt;p&gt;This button brings the tutorial back at any time.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Gut gemacht!&lt;/b&gt; Du hast ein Spiel begonnen, gemalt und jemanden kennengelernt.&lt;p&gt;Dieser Knopf holt die Einführung jederzeit zurück.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
