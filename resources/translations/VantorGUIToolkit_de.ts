<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>VantorGUIToolkit::CButtonSection</name>
    <message>
        <source>Buttons and choices</source>
        <translation>Schaltflächen und Auswahl</translation>
    </message>
    <message>
        <source>&amp;Click</source>
        <translation>&amp;Klicken</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>Klicks: %1</translation>
    </message>
    <message>
        <source>Show the focus</source>
        <translation>Fokus zeigen</translation>
    </message>
    <message>
        <source>Moves the focus to the first button, as Tab would.</source>
        <translation>Setzt den Fokus auf die erste Schaltfläche, wie die Tabulatortaste.</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primär</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Zurückhaltend</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Gefahr</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Mit Symbol</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Push buttons, enabled and disabled</source>
        <translation>Schaltflächen, aktiv und inaktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>Mit Text</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Werkzeugschaltflächen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nichts gewählt</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Move to screen</source>
        <translation>Auf Bildschirm verschieben</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>Bildschirm %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>A menu with icons, shortcuts and a sub-menu</source>
        <translation>Ein Menü mit Symbolen, Tastenkürzeln und Untermenü</translation>
    </message>
    <message>
        <source>Check boxes, radio buttons and switches</source>
        <translation>Kontrollkästchen, Optionsfelder und Schalter</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Nicht gewählt</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Teilweise gewählt</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erste</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweite</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDataSection</name>
    <message>
        <source>Lists and tables</source>
        <translation>Listen und Tabellen</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Empty table</source>
        <translation>Leere Tabelle</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>Eingang, zweiter Stock, Kamera am Nordtor</translation>
    </message>
    <message>
        <source>Recorder %1</source>
        <translation>Rekorder %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No device has a name like this.</source>
        <translation>Kein Gerät hat einen solchen Namen.</translation>
    </message>
    <message>
        <source>Building %1</source>
        <translation>Gebäude %1</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialogSection</name>
    <message>
        <source>Dialogs and waiting</source>
        <translation>Dialoge und Warten</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>Noch keine Antwort</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Gefahr</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Job of two seconds</source>
        <translation>Aufgabe von zwei Sekunden</translation>
    </message>
    <message>
        <source>The job has ended</source>
        <translation>Die Aufgabe ist beendet</translation>
    </message>
    <message>
        <source>The settings have been changed. Do you want to save the new settings?</source>
        <translation>Die Einstellungen wurden geändert. Möchten Sie die neuen Einstellungen speichern?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>The recordings of this camera are removed for good.</source>
        <translation>Die Aufnahmen dieser Kamera werden endgültig entfernt.</translation>
    </message>
    <message>
        <source>Remove recordings</source>
        <translation>Aufnahmen entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>Die Einstellungen sind auf allen Geräten gespeichert.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>Der Speicherserver ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>The job runs</source>
        <translation>Die Aufgabe läuft</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Wird verarbeitet</translation>
    </message>
    <message>
        <source>A job runs already</source>
        <translation>Es läuft bereits eine Aufgabe</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CFormSection</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Name or address of the device in your network.</source>
        <translation>Name oder Adresse des Geräts in Ihrem Netzwerk.</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Beim Programmstart verbinden</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Der Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>Enter an address.</source>
        <translation>Geben Sie eine Adresse ein.</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CGalleryPage</name>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Every widget in every state.</source>
        <translation>Jedes Bedienelement in jedem Zustand.</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Sekundär</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primär</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CIconSection</name>
    <message>
        <source>Icons: normal, selected, disabled</source>
        <translation>Symbole: normal, ausgewählt, inaktiv</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CInputSection</name>
    <message>
        <source>Inputs</source>
        <translation>Eingaben</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Line edits: empty, filled, read-only, disabled, invalid</source>
        <translation>Eingabefelder: leer, gefüllt, schreibgeschützt, inaktiv, ungültig</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>Eingang, zweiter Stock, Kamera am Nordtor</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Ordner für Aufnahmen</translation>
    </message>
    <message>
        <source>Password, search and path</source>
        <translation>Passwort, Suche und Pfad</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Bearbeitbar</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweite</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Dritte</translation>
    </message>
    <message>
        <source>Combo boxes: with a long list, editable, disabled, invalid</source>
        <translation>Auswahlfelder: mit langer Liste, bearbeitbar, inaktiv, ungültig</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Dezimalzahl</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Numbers, dates and times</source>
        <translation>Zahlen, Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>A text of several lines.
It scrolls when it is too long for its field.</source>
        <translation>Ein Text aus mehreren Zeilen.
Er lässt sich scrollen, wenn er für sein Feld zu lang ist.</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>Texte aus mehreren Zeilen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CMessageSection</name>
    <message>
        <source>Texts and messages</source>
        <translation>Texte und Meldungen</translation>
    </message>
    <message>
        <source>Title of a page</source>
        <translation>Titel einer Seite</translation>
    </message>
    <message>
        <source>Heading of a section</source>
        <translation>Überschrift eines Abschnitts</translation>
    </message>
    <message>
        <source>A sentence of plain text.</source>
        <translation>Ein Satz gewöhnlicher Text.</translation>
    </message>
    <message>
        <source>A hint that helps with a field.</source>
        <translation>Ein Hinweis, der bei einem Feld hilft.</translation>
    </message>
    <message>
        <source>What is wrong with a field.</source>
        <translation>Was an einem Feld falsch ist.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Weak signal</source>
        <translation>Schwaches Signal</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>Badges</source>
        <translation>Statusmarken</translation>
    </message>
    <message>
        <source>Banners</source>
        <translation>Meldungsleisten</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>Die Einstellungen sind auf allen Geräten gespeichert.</translation>
    </message>
    <message>
        <source>Less than 5 GB are free in the folder for recordings.</source>
        <translation>Im Ordner für Aufnahmen sind weniger als 5 GB frei.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>Der Speicherserver ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>A new version is available.</source>
        <translation>Eine neue Version ist verfügbar.</translation>
    </message>
    <message>
        <source>No schedule is active.</source>
        <translation>Kein Zeitplan ist aktiv.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Starting the broadcast succeeded.</source>
        <translation>Die Durchsage wurde gestartet.</translation>
    </message>
    <message>
        <source>The picture is saved, but the folder is nearly full.</source>
        <translation>Das Bild ist gespeichert, aber der Ordner ist fast voll.</translation>
    </message>
    <message>
        <source>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</source>
        <translation>Die Einstellungen konnten auf drei der acht Geräte nicht geschrieben werden. Prüfen Sie, ob sie eingeschaltet und im Netzwerk erreichbar sind, und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>Camera 07 is connected again.</source>
        <translation>Kamera 07 ist wieder verbunden.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Notices at the bottom right of the screen</source>
        <translation>Mitteilungen unten rechts auf dem Bildschirm</translation>
    </message>
    <message>
        <source>No cameras</source>
        <translation>Keine Kameras</translation>
    </message>
    <message>
        <source>Add a device to see its cameras here.</source>
        <translation>Fügen Sie ein Gerät hinzu, um seine Kameras hier zu sehen.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Where nothing is to be shown</source>
        <translation>Wo es nichts zu zeigen gibt</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CNotice</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Passwort verbergen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPathComboBox</name>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CSearchEdit</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CWarningDlg</name>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>gallery::GalleryWindow</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Resource tree</source>
        <translation>Ressourcenbaum</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Scale: start again with QT_SCALE_FACTOR=1.5</source>
        <translation>Größe: mit QT_SCALE_FACTOR=1.5 neu starten</translation>
    </message>
</context>
<context>
    <name>gallery::TreePage</name>
    <message>
        <source>Resource tree</source>
        <translation>Ressourcenbaum</translation>
    </message>
    <message>
        <source>By devices</source>
        <translation>Nach Geräten</translation>
    </message>
    <message>
        <source>By groups</source>
        <translation>Nach Gruppen</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>Durchsucht</translation>
    </message>
    <message>
        <source>Ten thousand</source>
        <translation>Zehntausend</translation>
    </message>
    <message>
        <source>Without devices</source>
        <translation>Ohne Geräte</translation>
    </message>
    <message>
        <source>Without hits</source>
        <translation>Ohne Treffer</translation>
    </message>
</context>
</TS>
