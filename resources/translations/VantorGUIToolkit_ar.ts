<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>VantorGUIToolkit::CButtonSection</name>
    <message>
        <source>Buttons and choices</source>
        <translation>الأزرار والخيارات</translation>
    </message>
    <message>
        <source>&amp;Click</source>
        <translation>انقر</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>عدد النقرات: %1</translation>
    </message>
    <message>
        <source>Show the focus</source>
        <translation>إظهار التركيز</translation>
    </message>
    <message>
        <source>Moves the focus to the first button, as Tab would.</source>
        <translation>ينقل التركيز إلى الزر الأول كما يفعل مفتاح Tab.</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>أساسي</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>هادئ</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>خطر</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>مع أيقونة</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>محدد</translation>
    </message>
    <message>
        <source>Push buttons, enabled and disabled</source>
        <translation>أزرار مفعّلة ومعطّلة</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>مع نص</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>أزرار الأدوات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>لم يتم اختيار شيء</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>إظهار التفاصيل</translation>
    </message>
    <message>
        <source>Move to screen</source>
        <translation>نقل إلى شاشة</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>الشاشة %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>A menu with icons, shortcuts and a sub-menu</source>
        <translation>قائمة بأيقونات واختصارات وقائمة فرعية</translation>
    </message>
    <message>
        <source>Check boxes, radio buttons and switches</source>
        <translation>خانات اختيار وأزرار خيار ومفاتيح</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>غير محدد</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>محدد جزئيًا</translation>
    </message>
    <message>
        <source>First</source>
        <translation>الأول</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>الثاني</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDataSection</name>
    <message>
        <source>Lists and tables</source>
        <translation>القوائم والجداول</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>Empty table</source>
        <translation>جدول فارغ</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>شجرة</translation>
    </message>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
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
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>المدخل، الطابق الثاني، كاميرا البوابة الشمالية</translation>
    </message>
    <message>
        <source>Recorder %1</source>
        <translation>المسجّل %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message>
        <source>No device has a name like this.</source>
        <translation>لا يوجد جهاز بهذا الاسم.</translation>
    </message>
    <message>
        <source>Building %1</source>
        <translation>المبنى %1</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>الكاميرا %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>الكاميرات</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialog</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialogSection</name>
    <message>
        <source>Dialogs and waiting</source>
        <translation>مربعات الحوار والانتظار</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>لا توجد إجابة بعد</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>سؤال</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>خطر</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Job of two seconds</source>
        <translation>مهمة لمدة ثانيتين</translation>
    </message>
    <message>
        <source>The job has ended</source>
        <translation>انتهت المهمة</translation>
    </message>
    <message>
        <source>The settings have been changed. Do you want to save the new settings?</source>
        <translation>تم تغيير الإعدادات. هل تريد حفظ الإعدادات الجديدة؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>The recordings of this camera are removed for good.</source>
        <translation>ستُحذف تسجيلات هذه الكاميرا نهائيًا.</translation>
    </message>
    <message>
        <source>Remove recordings</source>
        <translation>حذف التسجيلات</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>تم حفظ الإعدادات على جميع الأجهزة.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>يتعذر الوصول إلى خادم التخزين.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>إضافة جهاز</translation>
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
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>The job runs</source>
        <translation>المهمة قيد التنفيذ</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>جارٍ المعالجة</translation>
    </message>
    <message>
        <source>A job runs already</source>
        <translation>هناك مهمة قيد التنفيذ بالفعل</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CFormSection</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Name or address of the device in your network.</source>
        <translation>اسم الجهاز أو عنوانه في شبكتك.</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>الاتصال عند بدء البرنامج</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>تحقق</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>المنفذ رقم من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>Enter an address.</source>
        <translation>أدخل عنوانًا.</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CGalleryPage</name>
    <message>
        <source>Gallery</source>
        <translation>المعرض</translation>
    </message>
    <message>
        <source>Every widget in every state.</source>
        <translation>جميع عناصر التحكم بكل حالاتها.</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>ثانوي</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>أساسي</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CIconSection</name>
    <message>
        <source>Icons: normal, selected, disabled</source>
        <translation>الأيقونات: عادية، محددة، معطّلة</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CInputSection</name>
    <message>
        <source>Inputs</source>
        <translation>الإدخال</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>للقراءة فقط</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>غير صالح</translation>
    </message>
    <message>
        <source>Line edits: empty, filled, read-only, disabled, invalid</source>
        <translation>حقول النص: فارغ، مملوء، للقراءة فقط، معطّل، غير صالح</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>المدخل، الطابق الثاني، كاميرا البوابة الشمالية</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>مملوء</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>بوابة</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>مجلد التسجيلات</translation>
    </message>
    <message>
        <source>Password, search and path</source>
        <translation>كلمة المرور والبحث والمسار</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>الكاميرا %1</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>قابل للتحرير</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>الثاني</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>الثالث</translation>
    </message>
    <message>
        <source>Combo boxes: with a long list, editable, disabled, invalid</source>
        <translation>قوائم منسدلة: طويلة، قابلة للتحرير، معطّلة، غير صالحة</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>كسر عشري</translation>
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
        <source>Numbers, dates and times</source>
        <translation>الأرقام والتواريخ والأوقات</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>A text of several lines.
It scrolls when it is too long for its field.</source>
        <translation>نص من عدة أسطر.
يمكن تمريره عندما يطول عن حقله.</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>نصوص من عدة أسطر</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CMessageSection</name>
    <message>
        <source>Texts and messages</source>
        <translation>النصوص والرسائل</translation>
    </message>
    <message>
        <source>Title of a page</source>
        <translation>عنوان صفحة</translation>
    </message>
    <message>
        <source>Heading of a section</source>
        <translation>عنوان قسم</translation>
    </message>
    <message>
        <source>A sentence of plain text.</source>
        <translation>جملة من نص عادي.</translation>
    </message>
    <message>
        <source>A hint that helps with a field.</source>
        <translation>تلميح يساعد في تعبئة حقل.</translation>
    </message>
    <message>
        <source>What is wrong with a field.</source>
        <translation>ما الخطأ في الحقل.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Weak signal</source>
        <translation>إشارة ضعيفة</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>قيد التسجيل</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>غير مستخدم</translation>
    </message>
    <message>
        <source>Badges</source>
        <translation>الشارات</translation>
    </message>
    <message>
        <source>Banners</source>
        <translation>أشرطة الرسائل</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>تم حفظ الإعدادات على جميع الأجهزة.</translation>
    </message>
    <message>
        <source>Less than 5 GB are free in the folder for recordings.</source>
        <translation>المساحة الحرة في مجلد التسجيلات أقل من 5 غيغابايت.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>يتعذر الوصول إلى خادم التخزين.</translation>
    </message>
    <message>
        <source>A new version is available.</source>
        <translation>يتوفر إصدار جديد.</translation>
    </message>
    <message>
        <source>No schedule is active.</source>
        <translation>لا يوجد جدول زمني مفعّل.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Starting the broadcast succeeded.</source>
        <translation>بدأ البث بنجاح.</translation>
    </message>
    <message>
        <source>The picture is saved, but the folder is nearly full.</source>
        <translation>تم حفظ الصورة، لكن المجلد ممتلئ تقريبًا.</translation>
    </message>
    <message>
        <source>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</source>
        <translation>تعذرت كتابة الإعدادات على ثلاثة من الأجهزة الثمانية. تأكد من أنها تعمل ويمكن الوصول إليها عبر الشبكة ثم احفظ مرة أخرى.</translation>
    </message>
    <message>
        <source>Camera 07 is connected again.</source>
        <translation>عادت الكاميرا 07 إلى الاتصال.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>لم يتغير شيء.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>نجاح</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>محايد</translation>
    </message>
    <message>
        <source>Notices at the bottom right of the screen</source>
        <translation>إشعارات أسفل يمين الشاشة</translation>
    </message>
    <message>
        <source>No cameras</source>
        <translation>لا توجد كاميرات</translation>
    </message>
    <message>
        <source>Add a device to see its cameras here.</source>
        <translation>أضف جهازًا لعرض كاميراته هنا.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>إضافة جهاز</translation>
    </message>
    <message>
        <source>Where nothing is to be shown</source>
        <translation>عندما لا يوجد ما يُعرض</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CNotice</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>إخفاء كلمة المرور</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPathComboBox</name>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>اختيار ملف</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CSearchEdit</name>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CWarningDlg</name>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>gallery::GalleryWindow</name>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>عناصر الواجهة</translation>
    </message>
    <message>
        <source>Resource tree</source>
        <translation>شجرة الموارد</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Scale: start again with QT_SCALE_FACTOR=1.5</source>
        <translation>الحجم: أعد التشغيل مع QT_SCALE_FACTOR=1.5</translation>
    </message>
</context>
<context>
    <name>gallery::TreePage</name>
    <message>
        <source>Resource tree</source>
        <translation>شجرة الموارد</translation>
    </message>
    <message>
        <source>By devices</source>
        <translation>حسب الأجهزة</translation>
    </message>
    <message>
        <source>By groups</source>
        <translation>حسب المجموعات</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Ten thousand</source>
        <translation>عشرة آلاف</translation>
    </message>
    <message>
        <source>Without devices</source>
        <translation>بلا أجهزة</translation>
    </message>
    <message>
        <source>Without hits</source>
        <translation>بلا نتائج</translation>
    </message>
</context>
</TS>
