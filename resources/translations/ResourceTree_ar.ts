<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>UiDataController::CResourceTree</name>
    <message>
        <source>No devices yet</source>
        <translation>لا توجد أجهزة بعد</translation>
    </message>
    <message>
        <source>Devices that are added appear here with their cameras.</source>
        <translation>تظهر هنا الأجهزة المضافة مع كاميراتها.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message>
        <source>No camera, device or group has such a name.</source>
        <translation>لا توجد كاميرا أو جهاز أو مجموعة بهذا الاسم.</translation>
    </message>
    <message>
        <source>Devices and cameras</source>
        <translation>الأجهزة والكاميرات</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>لا نتائج</numerusform>
            <numerusform>نتيجة واحدة</numerusform>
            <numerusform>نتيجتان</numerusform>
            <numerusform>%Ln نتائج</numerusform>
            <numerusform>%Ln نتيجة</numerusform>
            <numerusform>%Ln نتيجة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>لا كاميرات</numerusform>
            <numerusform>كاميرا واحدة</numerusform>
            <numerusform>كاميرتان</numerusform>
            <numerusform>%Ln كاميرات</numerusform>
            <numerusform>%Ln كاميرا</numerusform>
            <numerusform>%Ln كاميرا</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResourceTree</name>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>قيد التسجيل</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>غير مدعوم</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
</context>
</TS>
