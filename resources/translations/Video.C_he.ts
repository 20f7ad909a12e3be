<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Main View</source>
        <translation>תצוגה ראשית</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>הפעלה מרחוק</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>התקני קידוד</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>מסך עזר</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>תצוגה חיה שנייה</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>תצוגה חיה שלישית</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>תצוגה חיה רביעית</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>תוכנית אחסון</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>לוח זמנים להקלטה</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>שידור קולי</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>יציאות אזעקה</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>בקרת מגב</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>שרתי הזרמת מדיה</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>קובצי וידאו</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>גלריית רכיבים</translation>
    </message>
</context>
<context>
    <name>video::CUnavailablePage</name>
    <message>
        <source>This page is not available yet.</source>
        <translation>דף זה אינו זמין עדיין.</translation>
    </message>
</context>
</TS>
