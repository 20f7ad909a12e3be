<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Main View</source>
        <translation>Hauptansicht</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>Fernwiedergabe</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>Encoder</translation>
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
        <source>Storage Plan</source>
        <translation>Speicherplan</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>Aufnahmezeitplan</translation>
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
        <source>Streaming Media Servers</source>
        <translation>Streaming-Server</translation>
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
        <source>Widget Gallery</source>
        <translation>Galerie der Bedienelemente</translation>
    </message>
</context>
<context>
    <name>video::CUnavailablePage</name>
    <message>
        <source>This page is not available yet.</source>
        <translation>Diese Seite ist noch nicht verfügbar.</translation>
    </message>
</context>
</TS>
