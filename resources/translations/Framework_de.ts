<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ComponentState</name>
    <message>
        <source>Starting</source>
        <translation>Startet</translation>
    </message>
    <message>
        <source>The component is starting.</source>
        <translation>Die Komponente startet.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>The component is at work.</source>
        <translation>Die Komponente arbeitet.</translation>
    </message>
    <message>
        <source>Restarting</source>
        <translation>Startet neu</translation>
    </message>
    <message>
        <source>The component ended and will be started again.</source>
        <translation>Die Komponente wurde beendet und wird neu gestartet.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ausgefallen</translation>
    </message>
    <message>
        <source>The component ended too often and is not started again.</source>
        <translation>Die Komponente wurde zu oft beendet und startet nicht mehr von selbst.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>Die Komponente läuft nicht.</translation>
    </message>
</context>
<context>
    <name>DeviceForm</name>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>Ein Name hat höchstens 64 Zeichen.</translation>
    </message>
    <message>
        <source>Another device has this name.</source>
        <translation>Ein anderes Gerät hat diesen Namen.</translation>
    </message>
    <message>
        <source>Enter a host name or an IP address.</source>
        <translation>Geben Sie einen Hostnamen oder eine IP-Adresse ein.</translation>
    </message>
    <message>
        <source>This is neither a host name nor an IP address.</source>
        <translation>Das ist weder ein Hostname noch eine IP-Adresse.</translation>
    </message>
    <message>
        <source>Enter the user of the device.</source>
        <translation>Geben Sie den Benutzer des Geräts ein.</translation>
    </message>
</context>
<context>
    <name>DeviceText</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Rekorder</translation>
    </message>
    <message>
        <source>Storage server</source>
        <translation>Speicherserver</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Wird verbunden</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nimmt auf</translation>
    </message>
    <message>
        <source>Not supported by its device</source>
        <translation>Vom Gerät nicht unterstützt</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Live view</source>
        <translation>Live-Ansicht</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Clips and pictures</source>
        <translation>Videoclips und Bilder</translation>
    </message>
    <message>
        <source>Recording schedules</source>
        <translation>Aufnahmezeitpläne</translation>
    </message>
    <message>
        <source>Storage plans</source>
        <translation>Speicherpläne</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Broadcast</source>
        <translation>Durchsagen</translation>
    </message>
    <message>
        <source>Alarm outputs</source>
        <translation>Alarmausgänge</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Wischer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>The component was started.</source>
        <translation>Die Komponente wurde gestartet.</translation>
    </message>
    <message>
        <source>The component has joined.</source>
        <translation>Die Komponente hat sich angemeldet.</translation>
    </message>
    <message>
        <source>The component is ready.</source>
        <translation>Die Komponente ist bereit.</translation>
    </message>
    <message>
        <source>The component has left.</source>
        <translation>Die Komponente hat sich abgemeldet.</translation>
    </message>
    <message>
        <source>The component was asked to end.</source>
        <translation>Die Komponente wurde gebeten, sich zu beenden.</translation>
    </message>
    <message>
        <source>The component is not started again.</source>
        <translation>Die Komponente wird nicht wieder gestartet.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1. It is started again in %2 s.</source>
        <translation>Die Komponente endete mit Exitcode %1. Sie startet in %2 s neu.</translation>
    </message>
    <message>
        <source>The component ended with signal %1. It is started again in %2 s.</source>
        <translation>Die Komponente endete durch Signal %1. Sie startet in %2 s neu.</translation>
    </message>
    <message>
        <source>The component ended with %1. It was started %2 times within a minute and is given up.</source>
        <translation>Die Komponente endete (%1). Sie wurde innerhalb einer Minute %2-mal gestartet und wird aufgegeben.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1.</source>
        <translation>Die Komponente endete mit Exitcode %1.</translation>
    </message>
    <message>
        <source>The component ended with signal %1.</source>
        <translation>Die Komponente endete durch Signal %1.</translation>
    </message>
    <message>
        <source>The component cannot be started: %1.</source>
        <translation>Die Komponente lässt sich nicht starten: %1.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was added.</source>
        <translation>Gerät „%1“ wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was changed.</source>
        <translation>Gerät „%1“ wurde geändert.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was removed.</source>
        <translation>Gerät „%1“ wurde entfernt.</translation>
    </message>
    <message>
        <source>Test alarm of %1</source>
        <translation>Testalarm von %1</translation>
    </message>
    <message>
        <source>Changed settings: %1.</source>
        <translation>Geänderte Einstellungen: %1.</translation>
    </message>
    <message>
        <source>The users were changed.</source>
        <translation>Die Benutzer wurden geändert.</translation>
    </message>
    <message>
        <source>User &quot;%1&quot; took over from &quot;%2&quot;.</source>
        <translation>Benutzer „%1“ hat „%2“ abgelöst.</translation>
    </message>
    <message>
        <source>The address and port belong to another device.</source>
        <translation>Adresse und Port gehören zu einem anderen Gerät.</translation>
    </message>
    <message>
        <source>The devices cannot be saved.</source>
        <translation>Die Geräte lassen sich nicht speichern.</translation>
    </message>
    <message>
        <source>There are too many devices.</source>
        <translation>Es gibt zu viele Geräte.</translation>
    </message>
    <message>
        <source>The users cannot be saved.</source>
        <translation>Die Benutzer lassen sich nicht speichern.</translation>
    </message>
    <message>
        <source>There are too many users.</source>
        <translation>Es gibt zu viele Benutzer.</translation>
    </message>
    <message>
        <source>Somebody must be allowed to manage users.</source>
        <translation>Jemand muss die Benutzer verwalten dürfen.</translation>
    </message>
    <message>
        <source>The user is at work.</source>
        <translation>Der Benutzer arbeitet gerade.</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>edition</source>
        <translation>Edition</translation>
    </message>
    <message>
        <source>date format</source>
        <translation>Datumsformat</translation>
    </message>
    <message>
        <source>time format</source>
        <translation>Zeitformat</translation>
    </message>
    <message>
        <source>folder of clips</source>
        <translation>Ordner für Videoclips</translation>
    </message>
    <message>
        <source>folder of pictures</source>
        <translation>Ordner für Bilder</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is online.</source>
        <translation>Das Gerät „%1“ ist online.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is offline.</source>
        <translation>Das Gerät „%1“ ist offline.</translation>
    </message>
    <message>
        <source>The user name must have at most 127 bytes.</source>
        <translation>Der Benutzername darf höchstens 127 Byte lang sein.</translation>
    </message>
    <message>
        <source>The password must have at most 127 bytes.</source>
        <translation>Das Passwort darf höchstens 127 Byte lang sein.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Live View</source>
        <translation>Live-Ansicht</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Main View</source>
        <translation>Hauptansicht</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>Zusatzbildschirm</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>Zweite Live-Ansicht</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>Dritte Live-Ansicht</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>Vierte Live-Ansicht</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>Fernwiedergabe</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Videodateien</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>Aufnahmezeitplan</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>Speicherplan</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Geräteliste</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>Streaming-Server</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>Sprachdurchsage</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>Alarmausgänge</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>Wischersteuerung</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>Galerie der Bedienelemente</translation>
    </message>
    <message>
        <source>Notification Centre</source>
        <translation>Mitteilungszentrale</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <translation>Betriebsprotokoll</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Local Files</source>
        <translation>Lokale Dateien</translation>
    </message>
</context>
<context>
    <name>framework::CCameraBox</name>
    <message>
        <source>Camera, group or identifier</source>
        <translation>Kamera, Gruppe oder Kennung</translation>
    </message>
</context>
<context>
    <name>framework::CComponentTab</name>
    <message>
        <source>Waiting for the component…</source>
        <translation>Warten auf die Komponente …</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>The component ended. It is being restarted…</source>
        <translation>Die Komponente wurde beendet. Sie wird neu gestartet …</translation>
    </message>
    <message>
        <source>Your tabs come back by themselves.</source>
        <translation>Ihre Registerkarten kommen von selbst zurück.</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>Die Komponente läuft nicht.</translation>
    </message>
    <message>
        <source>Start the component</source>
        <translation>Komponente starten</translation>
    </message>
    <message>
        <source>The component did not answer in time, or it cannot show this page.</source>
        <translation>Die Komponente hat nicht rechtzeitig geantwortet oder kann diese Seite nicht anzeigen.</translation>
    </message>
    <message>
        <source>It ended too often. The operation log has the details.</source>
        <translation>Sie wurde zu oft beendet. Einzelheiten stehen im Betriebsprotokoll.</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDetails</name>
    <message>
        <source>Try now</source>
        <translation>Jetzt versuchen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Alarm inputs and outputs</source>
        <translation>Alarmein- und -ausgänge</translation>
    </message>
    <message>
        <source>%1, encrypted</source>
        <translation>%1, verschlüsselt</translation>
    </message>
    <message>
        <source>%1, online %2</source>
        <translation>%1, davon online: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>Kanal %1: %2</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDialog</name>
    <message>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>Gerät bearbeiten</translation>
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
        <source>Save</source>
        <translation>Speichern</translation>
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
        <source>Host name or IP address</source>
        <translation>Hostname oder IP-Adresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The device does not exist any more.</source>
        <translation>Das Gerät gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Encrypted connection (TLS)</source>
        <translation>Verschlüsselte Verbindung (TLS)</translation>
    </message>
    <message>
        <source>Empty: the name that the device has</source>
        <translation>Leer: der Name, den das Gerät hat</translation>
    </message>
    <message>
        <source>Connecting to the device…</source>
        <translation>Verbindung zum Gerät wird hergestellt …</translation>
    </message>
    <message>
        <source>Add anyway</source>
        <translation>Trotzdem hinzufügen</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
</context>
<context>
    <name>framework::CDevicesPage</name>
    <message>
        <source>Cameras, recorders and storage servers that the client works with.</source>
        <translation>Kameras, Rekorder und Speicherserver, mit denen der Client arbeitet.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot; with its channels?</source>
        <translation>Gerät „%1“ mit seinen Kanälen entfernen?</translation>
    </message>
    <message>
        <source>Remove device</source>
        <translation>Gerät entfernen</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>Entfernen …</translation>
    </message>
    <message>
        <source>Simulate an alarm</source>
        <translation>Alarm simulieren</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>Kein Gerät gewählt</translation>
    </message>
    <message>
        <source>Choose a device or a camera to see more about it.</source>
        <translation>Wählen Sie ein Gerät oder eine Kamera, um mehr darüber zu sehen.</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Jetzt versuchen</translation>
    </message>
</context>
<context>
    <name>framework::CHomePage</name>
    <message>
        <source>Your devices and the client at a glance.</source>
        <translation>Ihre Geräte und der Client auf einen Blick.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Video component</source>
        <translation>Videokomponente</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Letzte Ereignisse</translation>
    </message>
    <message>
        <source>No devices</source>
        <translation>Keine Geräte</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 von %2 online</translation>
    </message>
    <message>
        <source>Add the first one in the device list.</source>
        <translation>Fügen Sie das erste in der Geräteliste hinzu.</translation>
    </message>
    <message>
        <source>All devices are reached.</source>
        <translation>Alle Geräte sind erreichbar.</translation>
    </message>
    <message>
        <source>Some devices are not reached.</source>
        <translation>Einige Geräte sind nicht erreichbar.</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>Bisher ist nichts geschehen.</translation>
    </message>
</context>
<context>
    <name>framework::CJournalPage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Nothing has happened yet</source>
        <translation>Bisher ist nichts geschehen</translation>
    </message>
    <message>
        <source>What happens is listed here, the newest first.</source>
        <translation>Hier steht, was geschieht, das Neueste zuerst.</translation>
    </message>
</context>
<context>
    <name>framework::CListPage</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileChoices</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Camera or group</source>
        <translation>Kamera oder Gruppe</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>Alle Tage</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileModel</name>
    <message>
        <source>under 1 KiB</source>
        <translation>unter 1 KiB</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFilesPage</name>
    <message>
        <source>Pictures and clips on this computer, as the component has catalogued them.</source>
        <translation>Bilder und Clips auf diesem Rechner, wie die Komponente sie verzeichnet hat.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>The component is asked for its records.</source>
        <translation>Die Komponente wird nach ihren Einträgen gefragt.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No file has this text.</source>
        <translation>Keine Datei enthält diesen Text.</translation>
    </message>
    <message>
        <source>No camera yet</source>
        <translation>Noch keine Kamera</translation>
    </message>
    <message>
        <source>Add a device, or enter a camera&apos;s identifier.</source>
        <translation>Fügen Sie ein Gerät hinzu oder geben Sie die Kennung einer Kamera ein.</translation>
    </message>
    <message>
        <source>The component did not answer in time.</source>
        <translation>Die Komponente hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The component answered with an error.</source>
        <translation>Die Komponente hat mit einem Fehler geantwortet.</translation>
    </message>
    <message>
        <source>The answer of the component cannot be read.</source>
        <translation>Die Antwort der Komponente ist nicht lesbar.</translation>
    </message>
    <message>
        <source>No pictures</source>
        <translation>Keine Bilder</translation>
    </message>
    <message>
        <source>No clips</source>
        <translation>Keine Clips</translation>
    </message>
    <message>
        <source>Nothing was catalogued for this camera or group in these days.</source>
        <translation>Für diese Kamera oder Gruppe wurde in diesen Tagen nichts verzeichnet.</translation>
    </message>
    <message>
        <source>The list cannot be shown</source>
        <translation>Die Liste kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Pictures: %1 (%2)</source>
        <translation>Bilder: %1 (%2)</translation>
    </message>
    <message>
        <source>Clips: %1 (%2)</source>
        <translation>Clips: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The component did not tell where the file is.</source>
        <translation>Die Komponente hat nicht gesagt, wo die Datei liegt.</translation>
    </message>
    <message>
        <source>The file is no longer in the catalogue.</source>
        <translation>Die Datei steht nicht mehr im Verzeichnis.</translation>
    </message>
    <message>
        <source>The file is gone: %1</source>
        <translation>Die Datei ist nicht mehr da: %1</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>Kein Programm öffnet %1</translation>
    </message>
</context>
<context>
    <name>framework::CMainWindow</name>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>Wird beendet …</translation>
    </message>
</context>
<context>
    <name>framework::CNoticesPage</name>
    <message>
        <source>Alarms and messages of devices and of the system.</source>
        <translation>Alarme und Meldungen der Geräte und des Systems.</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Alle gelesen</translation>
    </message>
    <message>
        <source>No notices</source>
        <translation>Keine Mitteilungen</translation>
    </message>
    <message>
        <source>Alarms of your devices appear here.</source>
        <translation>Hier erscheinen die Alarme Ihrer Geräte.</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Gelesen</translation>
    </message>
</context>
<context>
    <name>framework::CPages</name>
    <message>
        <source>What users did, and what happened to the component.</source>
        <translation>Was Benutzer taten und was mit der Komponente geschah.</translation>
    </message>
</context>
<context>
    <name>framework::CSettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>These hold for the whole client, whoever works with it.</source>
        <translation>Sie gelten für den ganzen Client, wer auch immer damit arbeitet.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Another skin or language restarts the video component; open tabs come back.</source>
        <translation>Eine andere Oberfläche oder Sprache startet die Videokomponente neu; offene Registerkarten kommen zurück.</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Default folders</source>
        <translation>Standardordner</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Videoclips</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>framework::CSkinPicker</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutral</translation>
    </message>
</context>
<context>
    <name>framework::CStartDialog</name>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Choose how the client looks. Both can be changed later in the settings.</source>
        <translation>Wählen Sie, wie der Client aussieht. Beides lässt sich später in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
</context>
<context>
    <name>framework::CStatusBar</name>
    <message>
        <source>Video component</source>
        <translation>Videokomponente</translation>
    </message>
</context>
<context>
    <name>framework::CSwitchUserDialog</name>
    <message>
        <source>Switch user</source>
        <translation>Benutzer wechseln</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
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
        <source>Switch</source>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Das Passwort ist falsch.</translation>
    </message>
</context>
<context>
    <name>framework::CTabStrip</name>
    <message>
        <source>All open tabs</source>
        <translation>Alle offenen Registerkarten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the others</source>
        <translation>Andere schließen</translation>
    </message>
    <message>
        <source>Close all</source>
        <translation>Alle schließen</translation>
    </message>
</context>
<context>
    <name>framework::CTopBar</name>
    <message>
        <source>Show or hide the navigation</source>
        <translation>Navigation ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Switch user…</source>
        <translation>Benutzer wechseln …</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>%1+</source>
        <translation>%1+</translation>
    </message>
</context>
<context>
    <name>framework::CUsersPage</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Who works with the client, and what each may do.</source>
        <translation>Wer mit dem Client arbeitet und was jeder darf.</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Benutzer hinzufügen</translation>
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
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>May use</source>
        <translation>Darf benutzen</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>There is a user of this name.</source>
        <translation>Es gibt schon einen Benutzer dieses Namens.</translation>
    </message>
    <message>
        <source>The user was saved.</source>
        <translation>Der Benutzer wurde gespeichert.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Benutzer „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Remove user</source>
        <translation>Benutzer entfernen</translation>
    </message>
    <message>
        <source>The user was removed.</source>
        <translation>Der Benutzer wurde entfernt.</translation>
    </message>
</context>
</TS>
