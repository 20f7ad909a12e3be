<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>DeviceErrors</name>
    <message>
        <source>No error has occurred.</source>
        <translation>لم يحدث أي خطأ.</translation>
    </message>
    <message>
        <source>Communication with devices has not been started.</source>
        <translation>لم يبدأ الاتصال بالأجهزة بعد.</translation>
    </message>
    <message>
        <source>The request to the device is not valid.</source>
        <translation>الطلب المرسل إلى الجهاز غير صالح.</translation>
    </message>
    <message>
        <source>The login to the device has ended.</source>
        <translation>انتهى تسجيل الدخول إلى الجهاز.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>الذاكرة غير كافية.</translation>
    </message>
    <message>
        <source>Too many devices are connected at the same time.</source>
        <translation>عدد الأجهزة المتصلة في الوقت نفسه كبير جدًا.</translation>
    </message>
    <message>
        <source>The connection to the device was closed during the operation.</source>
        <translation>أُغلق الاتصال بالجهاز أثناء العملية.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is larger than expected (%1 bytes).</source>
        <translation>رد الجهاز أكبر من المتوقع (%1 بايت).</translation>
    </message>
    <message>
        <source>The file of known device certificates cannot be read or written (system error %1).</source>
        <translation>تعذرت قراءة ملف شهادات الأجهزة المعروفة أو الكتابة فيه (خطأ النظام %1).</translation>
    </message>
    <message>
        <source>The device&apos;s host name cannot be found. Check its address.</source>
        <translation>تعذر العثور على اسم مضيف الجهاز. تحقق من عنوانه.</translation>
    </message>
    <message>
        <source>The device cannot be reached. Check its address, its port and the network.</source>
        <translation>تعذر الوصول إلى الجهاز. تحقق من عنوانه ومنفذه ومن الشبكة.</translation>
    </message>
    <message>
        <source>Connecting to the device took too long. Check whether it is switched on and its address is right.</source>
        <translation>استغرق الاتصال بالجهاز وقتًا طويلاً. تحقق من أنه قيد التشغيل ومن صحة عنوانه.</translation>
    </message>
    <message>
        <source>The device did not answer in time.</source>
        <translation>لم يرد الجهاز في الوقت المحدد.</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>انقطع الاتصال بالجهاز.</translation>
    </message>
    <message>
        <source>A secure connection to the device cannot be established.</source>
        <translation>تعذر إنشاء اتصال آمن بالجهاز.</translation>
    </message>
    <message>
        <source>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</source>
        <translation>تغيرت شهادة الجهاز. إما أنها استُبدلت أو أن جهازًا آخر يرد على عنوانه.</translation>
    </message>
    <message>
        <source>There is no supported device at this address. Check the address and the port.</source>
        <translation>لا يوجد جهاز مدعوم على هذا العنوان. تحقق من العنوان والمنفذ.</translation>
    </message>
    <message>
        <source>The device uses version %1 of the protocol, which is not supported.</source>
        <translation>يستخدم الجهاز الإصدار %1 من البروتوكول، وهو غير مدعوم.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is too long.</source>
        <translation>رد الجهاز طويل جدًا.</translation>
    </message>
    <message>
        <source>The device&apos;s answer has an unexpected size (%1 bytes).</source>
        <translation>حجم رد الجهاز غير متوقع (%1 بايت).</translation>
    </message>
    <message>
        <source>The device&apos;s answer cannot be understood.</source>
        <translation>تعذر فهم رد الجهاز.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>اسم المستخدم أو كلمة المرور غير صحيحة.</translation>
    </message>
    <message>
        <source>The device has locked the user after too many wrong passwords. Try again later.</source>
        <translation>قفل الجهاز المستخدم بعد إدخال كلمات مرور خاطئة مرات كثيرة. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The device does not allow this to the user.</source>
        <translation>لا يسمح الجهاز للمستخدم بهذا الإجراء.</translation>
    </message>
    <message>
        <source>The device does not accept any more logins at the moment.</source>
        <translation>لا يقبل الجهاز مزيدًا من عمليات تسجيل الدخول حاليًا.</translation>
    </message>
    <message>
        <source>The device does not support this function.</source>
        <translation>لا يدعم الجهاز هذه الوظيفة.</translation>
    </message>
    <message>
        <source>The device does not have this channel.</source>
        <translation>لا تتوفر هذه القناة في الجهاز.</translation>
    </message>
    <message>
        <source>The device does not accept one of the values.</source>
        <translation>لا يقبل الجهاز إحدى القيم.</translation>
    </message>
    <message>
        <source>The device is busy. Try again later.</source>
        <translation>الجهاز مشغول. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The device reports an internal fault (module %1).</source>
        <translation>يبلغ الجهاز عن عطل داخلي (الوحدة %1).</translation>
    </message>
    <message>
        <source>The device cannot save the change.</source>
        <translation>تعذر على الجهاز حفظ التغيير.</translation>
    </message>
    <message>
        <source>No microphone or other sound input can be used.</source>
        <translation>لا يمكن استخدام أي ميكروفون أو مدخل صوت آخر.</translation>
    </message>
    <message>
        <source>The sound input is already being captured.</source>
        <translation>يجري التقاط مدخل الصوت بالفعل.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding (number %1) is not supported.</source>
        <translation>ترميز الصوت في الجهاز (رقم %1) غير مدعوم.</translation>
    </message>
    <message>
        <source>Somebody else is speaking through this voice channel.</source>
        <translation>شخص آخر يتحدث عبر قناة الصوت هذه.</translation>
    </message>
    <message>
        <source>The operation succeeded.</source>
        <translation>نجحت العملية.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding is not supported for broadcasts.</source>
        <translation>ترميز الصوت في الجهاز غير مدعوم للبث.</translation>
    </message>
    <message>
        <source>Error %1 (%2)</source>
        <translation>خطأ %1 (%2)</translation>
    </message>
</context>
</TS>
