<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>UiDataController::CResourceTree</name>
    <message>
        <source>No devices yet</source>
        <translation>No devices yet</translation>
    </message>
    <message>
        <source>Devices that are added appear here with their cameras.</source>
        <translation>Devices that are added appear here with their cameras.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message>
        <source>No camera, device or group has such a name.</source>
        <translation>No camera, device or group has such a name.</translation>
    </message>
    <message>
        <source>Devices and cameras</source>
        <translation>Devices and cameras</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln found</numerusform>
            <numerusform>%Ln found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln camera</numerusform>
            <numerusform>%Ln cameras</numerusform>
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
        <translation>Recording</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Not supported</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connecting</translation>
    </message>
</context>
</TS>
