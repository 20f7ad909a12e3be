<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>UiDataController::CResourceTree</name>
    <message>
        <source>No devices yet</source>
        <translation>Noch keine Geräte</translation>
    </message>
    <message>
        <source>Devices that are added appear here with their cameras.</source>
        <translation>Hinzugefügte Geräte erscheinen hier mit ihren Kameras.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No camera, device or group has such a name.</source>
        <translation>Keine Kamera, kein Gerät und keine Gruppe heißt so.</translation>
    </message>
    <message>
        <source>Devices and cameras</source>
        <translation>Geräte und Kameras</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln gefunden</numerusform>
            <numerusform>%Ln gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln Kamera</numerusform>
            <numerusform>%Ln Kameras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResourceTree</name>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nimmt auf</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Wird verbunden</translation>
    </message>
</context>
</TS>
