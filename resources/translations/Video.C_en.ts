<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Main View</source>
        <translation>Main View</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>Remote Playback</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>Encoding Devices</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>Auxiliary Screen</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>Second Live View</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>Third Live View</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>Fourth Live View</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>Storage Plan</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>Recording Schedule</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>Voice Broadcast</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>Alarm Outputs</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>Wiper Control</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>Streaming Media Servers</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Video Files</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>Widget Gallery</translation>
    </message>
</context>
<context>
    <name>video::CUnavailablePage</name>
    <message>
        <source>This page is not available yet.</source>
        <translation>This page is not available yet.</translation>
    </message>
</context>
</TS>
