<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL" sourcelanguage="en">
<context>
    <name>UiDataController::CResourceTree</name>
    <message>
        <source>No devices yet</source>
        <translation>אין עדיין התקנים</translation>
    </message>
    <message>
        <source>Devices that are added appear here with their cameras.</source>
        <translation>התקנים שיתווספו יופיעו כאן עם המצלמות שלהם.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>לא נמצא דבר</translation>
    </message>
    <message>
        <source>No camera, device or group has such a name.</source>
        <translation>אין מצלמה, התקן או קבוצה בשם כזה.</translation>
    </message>
    <message>
        <source>Devices and cameras</source>
        <translation>התקנים ומצלמות</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>תוצאה אחת</numerusform>
            <numerusform>%Ln תוצאות</numerusform>
            <numerusform>%Ln תוצאות</numerusform>
            <numerusform>%Ln תוצאות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>מצלמה אחת</numerusform>
            <numerusform>%Ln מצלמות</numerusform>
            <numerusform>%Ln מצלמות</numerusform>
            <numerusform>%Ln מצלמות</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResourceTree</name>
    <message>
        <source>Offline</source>
        <translation>לא מקוון</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>מקוון</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מקליט</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>לא נתמך</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>מתחבר</translation>
    </message>
</context>
</TS>
