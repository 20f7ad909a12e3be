<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Main View</source>
        <translation>العرض الرئيسي</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>التشغيل عن بُعد</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>أجهزة الترميز</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>الشاشة الإضافية</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>العرض المباشر الثاني</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>العرض المباشر الثالث</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>العرض المباشر الرابع</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>خطة التخزين</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>جدول التسجيل</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>البث الصوتي</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>مخارج الإنذار</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>التحكم في المسّاحة</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>خوادم بث الوسائط</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>ملفات الفيديو</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>معرض عناصر الواجهة</translation>
    </message>
</context>
<context>
    <name>video::CUnavailablePage</name>
    <message>
        <source>This page is not available yet.</source>
        <translation>هذه الصفحة غير متاحة بعد.</translation>
    </message>
</context>
</TS>
