<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ComponentState</name>
    <message>
        <source>Starting</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>The component is starting.</source>
        <translation>المكوِّن قيد التشغيل.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>The component is at work.</source>
        <translation>المكوِّن يعمل.</translation>
    </message>
    <message>
        <source>Restarting</source>
        <translation>إعادة تشغيل</translation>
    </message>
    <message>
        <source>The component ended and will be started again.</source>
        <translation>توقّف المكوِّن وسيُعاد تشغيله.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>The component ended too often and is not started again.</source>
        <translation>توقّف المكوِّن مرات كثيرة ولن يُشغَّل تلقائيًّا.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>المكوِّن لا يعمل.</translation>
    </message>
</context>
<context>
    <name>DeviceForm</name>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>الاسم لا يتجاوز 64 حرفًا.</translation>
    </message>
    <message>
        <source>Another device has this name.</source>
        <translation>يوجد جهاز آخر بهذا الاسم.</translation>
    </message>
    <message>
        <source>Enter a host name or an IP address.</source>
        <translation>أدخل اسم مضيف أو عنوان IP.</translation>
    </message>
    <message>
        <source>This is neither a host name nor an IP address.</source>
        <translation>ليس هذا اسم مضيف ولا عنوان IP.</translation>
    </message>
    <message>
        <source>Enter the user of the device.</source>
        <translation>أدخل مستخدم الجهاز.</translation>
    </message>
</context>
<context>
    <name>DeviceText</name>
    <message>
        <source>Device</source>
        <translation>جهاز</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>جهاز ترميز</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>جهاز تسجيل</translation>
    </message>
    <message>
        <source>Storage server</source>
        <translation>خادم تخزين</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>قيد التسجيل</translation>
    </message>
    <message>
        <source>Not supported by its device</source>
        <translation>لا يدعمها جهازها</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Alarm</source>
        <translation>إنذار</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>جهاز</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>المكوِّن</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>نافذة</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Live view</source>
        <translation>العرض المباشر</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>التشغيل</translation>
    </message>
    <message>
        <source>Clips and pictures</source>
        <translation>المقاطع والصور</translation>
    </message>
    <message>
        <source>Recording schedules</source>
        <translation>جداول التسجيل</translation>
    </message>
    <message>
        <source>Storage plans</source>
        <translation>خطط التخزين</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Broadcast</source>
        <translation>البث</translation>
    </message>
    <message>
        <source>Alarm outputs</source>
        <translation>مخارج الإنذار</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>المسّاحات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>المستخدمون</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>The component was started.</source>
        <translation>تم تشغيل المكوِّن.</translation>
    </message>
    <message>
        <source>The component has joined.</source>
        <translation>انضمّ المكوِّن.</translation>
    </message>
    <message>
        <source>The component is ready.</source>
        <translation>المكوِّن جاهز.</translation>
    </message>
    <message>
        <source>The component has left.</source>
        <translation>غادر المكوِّن.</translation>
    </message>
    <message>
        <source>The component was asked to end.</source>
        <translation>طُلب من المكوِّن الانتهاء.</translation>
    </message>
    <message>
        <source>The component is not started again.</source>
        <translation>لن يُعاد تشغيل المكوِّن.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1. It is started again in %2 s.</source>
        <translation>انتهى المكوِّن برمز الخروج %1. يُعاد تشغيله خلال %2 ث.</translation>
    </message>
    <message>
        <source>The component ended with signal %1. It is started again in %2 s.</source>
        <translation>انتهى المكوِّن بسبب الإشارة %1. يُعاد تشغيله خلال %2 ث.</translation>
    </message>
    <message>
        <source>The component ended with %1. It was started %2 times within a minute and is given up.</source>
        <translation>انتهى المكوِّن (%1). شُغِّل %2 مرات خلال دقيقة ولن تُعاد المحاولة.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1.</source>
        <translation>انتهى المكوِّن برمز الخروج %1.</translation>
    </message>
    <message>
        <source>The component ended with signal %1.</source>
        <translation>انتهى المكوِّن بسبب الإشارة %1.</translation>
    </message>
    <message>
        <source>The component cannot be started: %1.</source>
        <translation>تعذّر تشغيل المكوِّن: %1.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was added.</source>
        <translation>تمت إضافة الجهاز «%1».</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was changed.</source>
        <translation>تم تغيير الجهاز «%1».</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was removed.</source>
        <translation>تمت إزالة الجهاز «%1».</translation>
    </message>
    <message>
        <source>Test alarm of %1</source>
        <translation>إنذار تجريبي من %1</translation>
    </message>
    <message>
        <source>Changed settings: %1.</source>
        <translation>إعدادات تم تغييرها: %1.</translation>
    </message>
    <message>
        <source>The users were changed.</source>
        <translation>تم تغيير المستخدمين.</translation>
    </message>
    <message>
        <source>User &quot;%1&quot; took over from &quot;%2&quot;.</source>
        <translation>تولّى المستخدم «%1» العمل بدلًا من «%2».</translation>
    </message>
    <message>
        <source>The address and port belong to another device.</source>
        <translation>العنوان والمنفذ يخصّان جهازًا آخر.</translation>
    </message>
    <message>
        <source>The devices cannot be saved.</source>
        <translation>تعذّر حفظ الأجهزة.</translation>
    </message>
    <message>
        <source>There are too many devices.</source>
        <translation>عدد الأجهزة كبير جدًّا.</translation>
    </message>
    <message>
        <source>The users cannot be saved.</source>
        <translation>تعذّر حفظ المستخدمين.</translation>
    </message>
    <message>
        <source>There are too many users.</source>
        <translation>عدد المستخدمين كبير جدًّا.</translation>
    </message>
    <message>
        <source>Somebody must be allowed to manage users.</source>
        <translation>يجب أن يُسمح لأحد بإدارة المستخدمين.</translation>
    </message>
    <message>
        <source>The user is at work.</source>
        <translation>المستخدم قيد العمل حاليًّا.</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>edition</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>date format</source>
        <translation>تنسيق التاريخ</translation>
    </message>
    <message>
        <source>time format</source>
        <translation>تنسيق الوقت</translation>
    </message>
    <message>
        <source>folder of clips</source>
        <translation>مجلد المقاطع</translation>
    </message>
    <message>
        <source>folder of pictures</source>
        <translation>مجلد الصور</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is online.</source>
        <translation>الجهاز &quot;%1&quot; متصل.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is offline.</source>
        <translation>الجهاز &quot;%1&quot; غير متصل.</translation>
    </message>
    <message>
        <source>The user name must have at most 127 bytes.</source>
        <translation>يجب ألا يتجاوز اسم المستخدم 127 بايت.</translation>
    </message>
    <message>
        <source>The password must have at most 127 bytes.</source>
        <translation>يجب ألا تتجاوز كلمة المرور 127 بايت.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Live View</source>
        <translation>العرض المباشر</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>التشغيل</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Main View</source>
        <translation>العرض الرئيسي</translation>
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
        <source>Remote Playback</source>
        <translation>التشغيل عن بُعد</translation>
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
        <source>Recording Schedule</source>
        <translation>جدول التسجيل</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>خطة التخزين</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>قائمة الأجهزة</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>أجهزة الترميز</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>خوادم بث الوسائط</translation>
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
        <source>Widget Gallery</source>
        <translation>معرض عناصر الواجهة</translation>
    </message>
    <message>
        <source>Notification Centre</source>
        <translation>مركز الإشعارات</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <translation>سجل العمليات</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>المستخدمون</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Local Files</source>
        <translation>الملفات المحلية</translation>
    </message>
</context>
<context>
    <name>framework::CCameraBox</name>
    <message>
        <source>Camera, group or identifier</source>
        <translation>كاميرا أو مجموعة أو معرّف</translation>
    </message>
</context>
<context>
    <name>framework::CComponentTab</name>
    <message>
        <source>Waiting for the component…</source>
        <translation>في انتظار المكوِّن…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>The component ended. It is being restarted…</source>
        <translation>توقّف المكوِّن، وتجري إعادة تشغيله…</translation>
    </message>
    <message>
        <source>Your tabs come back by themselves.</source>
        <translation>ستعود علامات التبويب من تلقاء نفسها.</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>المكوِّن لا يعمل.</translation>
    </message>
    <message>
        <source>Start the component</source>
        <translation>تشغيل المكوِّن</translation>
    </message>
    <message>
        <source>The component did not answer in time, or it cannot show this page.</source>
        <translation>لم يستجب المكوِّن في الوقت المناسب، أو لا يمكنه عرض هذه الصفحة.</translation>
    </message>
    <message>
        <source>It ended too often. The operation log has the details.</source>
        <translation>لقد توقف مرات كثيرة. التفاصيل في سجل العمليات.</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDetails</name>
    <message>
        <source>Try now</source>
        <translation>المحاولة الآن</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>البرنامج الثابت</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>Alarm inputs and outputs</source>
        <translation>مداخل الإنذار ومخارجه</translation>
    </message>
    <message>
        <source>%1, encrypted</source>
        <translation>%1، مشفّر</translation>
    </message>
    <message>
        <source>%1, online %2</source>
        <translation>%1، المتصل منها %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>القناة %1: %2</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDialog</name>
    <message>
        <source>Add device</source>
        <translation>إضافة جهاز</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>تعديل الجهاز</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>اسم المضيف أو عنوان IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>The device does not exist any more.</source>
        <translation>لم يعد الجهاز موجودًا.</translation>
    </message>
    <message>
        <source>Encrypted connection (TLS)</source>
        <translation>اتصال مشفّر (TLS)</translation>
    </message>
    <message>
        <source>Empty: the name that the device has</source>
        <translation>فارغ: الاسم الذي يحمله الجهاز</translation>
    </message>
    <message>
        <source>Connecting to the device…</source>
        <translation>جارٍ الاتصال بالجهاز…</translation>
    </message>
    <message>
        <source>Add anyway</source>
        <translation>إضافة على أي حال</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>حفظ على أي حال</translation>
    </message>
</context>
<context>
    <name>framework::CDevicesPage</name>
    <message>
        <source>Cameras, recorders and storage servers that the client works with.</source>
        <translation>الكاميرات وأجهزة التسجيل وخوادم التخزين التي يعمل معها البرنامج.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تعديل</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>إضافة جهاز</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot; with its channels?</source>
        <translation>هل تريد إزالة الجهاز «%1» مع قنواته؟</translation>
    </message>
    <message>
        <source>Remove device</source>
        <translation>إزالة الجهاز</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>تعديل…</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>إزالة…</translation>
    </message>
    <message>
        <source>Simulate an alarm</source>
        <translation>محاكاة إنذار</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>لم يُختر أي جهاز</translation>
    </message>
    <message>
        <source>Choose a device or a camera to see more about it.</source>
        <translation>اختر جهازًا أو كاميرا لعرض التفاصيل.</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>المحاولة الآن</translation>
    </message>
</context>
<context>
    <name>framework::CHomePage</name>
    <message>
        <source>Your devices and the client at a glance.</source>
        <translation>أجهزتك والبرنامج في لمحة.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة التشغيل</translation>
    </message>
    <message>
        <source>Video component</source>
        <translation>مكوِّن الفيديو</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>اختصارات</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>آخر الأحداث</translation>
    </message>
    <message>
        <source>No devices</source>
        <translation>لا أجهزة</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 من %2 متصلة</translation>
    </message>
    <message>
        <source>Add the first one in the device list.</source>
        <translation>أضف أول جهاز من قائمة الأجهزة.</translation>
    </message>
    <message>
        <source>All devices are reached.</source>
        <translation>كل الأجهزة يمكن الوصول إليها.</translation>
    </message>
    <message>
        <source>Some devices are not reached.</source>
        <translation>بعض الأجهزة يتعذّر الوصول إليها.</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>لم يحدث شيء بعد.</translation>
    </message>
</context>
<context>
    <name>framework::CJournalPage</name>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>الحدث</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>كل الأنواع</translation>
    </message>
    <message>
        <source>Nothing has happened yet</source>
        <translation>لم يحدث شيء بعد</translation>
    </message>
    <message>
        <source>What happens is listed here, the newest first.</source>
        <translation>يُعرض هنا ما يحدث، الأحدث أولًا.</translation>
    </message>
</context>
<context>
    <name>framework::CListPage</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileChoices</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Camera or group</source>
        <translation>كاميرا أو مجموعة</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>الأيام</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>آخر ٧ أيام</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>آخر ٣٠ يومًا</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>كل الأيام</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>المقاطع</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileModel</name>
    <message>
        <source>under 1 KiB</source>
        <translation>أقل من ١ KiB</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>المسار</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFilesPage</name>
    <message>
        <source>Pictures and clips on this computer, as the component has catalogued them.</source>
        <translation>الصور والمقاطع الموجودة على هذا الجهاز كما فهرسها المكوّن.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>إظهار المجلد</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>The component is asked for its records.</source>
        <translation>يجري طلب السجلات من المكوّن.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message>
        <source>No file has this text.</source>
        <translation>لا يوجد ملف يحتوي على هذا النص.</translation>
    </message>
    <message>
        <source>No camera yet</source>
        <translation>لا توجد كاميرا بعد</translation>
    </message>
    <message>
        <source>Add a device, or enter a camera&apos;s identifier.</source>
        <translation>أضف جهازًا أو أدخل معرّف كاميرا.</translation>
    </message>
    <message>
        <source>The component did not answer in time.</source>
        <translation>لم يُجب المكوّن في الوقت المحدد.</translation>
    </message>
    <message>
        <source>The component answered with an error.</source>
        <translation>أجاب المكوّن بخطأ.</translation>
    </message>
    <message>
        <source>The answer of the component cannot be read.</source>
        <translation>تتعذر قراءة إجابة المكوّن.</translation>
    </message>
    <message>
        <source>No pictures</source>
        <translation>لا توجد صور</translation>
    </message>
    <message>
        <source>No clips</source>
        <translation>لا توجد مقاطع</translation>
    </message>
    <message>
        <source>Nothing was catalogued for this camera or group in these days.</source>
        <translation>لم يُفهرس شيء لهذه الكاميرا أو المجموعة في هذه الأيام.</translation>
    </message>
    <message>
        <source>The list cannot be shown</source>
        <translation>تعذّر عرض القائمة</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Pictures: %1 (%2)</source>
        <translation>الصور: %1 (%2)</translation>
    </message>
    <message>
        <source>Clips: %1 (%2)</source>
        <translation>المقاطع: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>The component did not tell where the file is.</source>
        <translation>لم يذكر المكوّن مكان الملف.</translation>
    </message>
    <message>
        <source>The file is no longer in the catalogue.</source>
        <translation>لم يعد الملف موجودًا في الفهرس.</translation>
    </message>
    <message>
        <source>The file is gone: %1</source>
        <translation>الملف غير موجود: %1</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>لا يوجد برنامج يفتح %1</translation>
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
        <translation>جارٍ الإنهاء…</translation>
    </message>
</context>
<context>
    <name>framework::CNoticesPage</name>
    <message>
        <source>Alarms and messages of devices and of the system.</source>
        <translation>إنذارات ورسائل الأجهزة والنظام.</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>وضع علامة مقروء على الكل</translation>
    </message>
    <message>
        <source>No notices</source>
        <translation>لا توجد إشعارات</translation>
    </message>
    <message>
        <source>Alarms of your devices appear here.</source>
        <translation>تظهر هنا إنذارات أجهزتك.</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>تعليم كمقروء</translation>
    </message>
</context>
<context>
    <name>framework::CPages</name>
    <message>
        <source>What users did, and what happened to the component.</source>
        <translation>ما فعله المستخدمون وما حدث للمكوِّن.</translation>
    </message>
</context>
<context>
    <name>framework::CSettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>These hold for the whole client, whoever works with it.</source>
        <translation>تسري على البرنامج كله أيًّا كان المستخدم.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Another skin or language restarts the video component; open tabs come back.</source>
        <translation>تغيير السمة أو اللغة يعيد تشغيل مكوِّن الفيديو، وتعود علامات التبويب المفتوحة.</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Default folders</source>
        <translation>المجلدات الافتراضية</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>المقاطع</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
</context>
<context>
    <name>framework::CSkinPicker</name>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>محايد</translation>
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
        <translation>مرحبًا</translation>
    </message>
    <message>
        <source>Choose how the client looks. Both can be changed later in the settings.</source>
        <translation>اختر مظهر البرنامج. يمكن تغيير الخيارين لاحقًا من الإعدادات.</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>ابدأ</translation>
    </message>
</context>
<context>
    <name>framework::CStatusBar</name>
    <message>
        <source>Video component</source>
        <translation>مكوِّن الفيديو</translation>
    </message>
</context>
<context>
    <name>framework::CSwitchUserDialog</name>
    <message>
        <source>Switch user</source>
        <translation>تبديل المستخدم</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>كلمة المرور غير صحيحة.</translation>
    </message>
</context>
<context>
    <name>framework::CTabStrip</name>
    <message>
        <source>All open tabs</source>
        <translation>كل علامات التبويب المفتوحة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Close the others</source>
        <translation>إغلاق الأخرى</translation>
    </message>
    <message>
        <source>Close all</source>
        <translation>إغلاق الكل</translation>
    </message>
</context>
<context>
    <name>framework::CTopBar</name>
    <message>
        <source>Show or hide the navigation</source>
        <translation>إظهار شريط التنقل أو إخفاؤه</translation>
    </message>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Switch user…</source>
        <translation>تبديل المستخدم…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>إنهاء البرنامج</translation>
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
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>المستخدمون</translation>
    </message>
    <message>
        <source>Who works with the client, and what each may do.</source>
        <translation>من يعمل بالبرنامج وما يُسمح لكل منهم.</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>إضافة مستخدم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>بدون تغيير</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>May use</source>
        <translation>يُسمح له باستخدام</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>أدخل اسمًا.</translation>
    </message>
    <message>
        <source>There is a user of this name.</source>
        <translation>يوجد مستخدم بهذا الاسم.</translation>
    </message>
    <message>
        <source>The user was saved.</source>
        <translation>تم حفظ المستخدم.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>هل تريد إزالة المستخدم «%1»؟</translation>
    </message>
    <message>
        <source>Remove user</source>
        <translation>إزالة المستخدم</translation>
    </message>
    <message>
        <source>The user was removed.</source>
        <translation>تمت إزالة المستخدم.</translation>
    </message>
</context>
</TS>
