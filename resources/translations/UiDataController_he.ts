<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL" sourcelanguage="en">
<context>
    <name>DeviceErrors</name>
    <message>
        <source>No error has occurred.</source>
        <translation>לא אירעה שגיאה.</translation>
    </message>
    <message>
        <source>Communication with devices has not been started.</source>
        <translation>התקשורת עם ההתקנים טרם הופעלה.</translation>
    </message>
    <message>
        <source>The request to the device is not valid.</source>
        <translation>הבקשה להתקן אינה תקינה.</translation>
    </message>
    <message>
        <source>The login to the device has ended.</source>
        <translation>ההתחברות להתקן הסתיימה.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>אין די זיכרון.</translation>
    </message>
    <message>
        <source>Too many devices are connected at the same time.</source>
        <translation>יותר מדי התקנים מחוברים בו-זמנית.</translation>
    </message>
    <message>
        <source>The connection to the device was closed during the operation.</source>
        <translation>החיבור להתקן נסגר במהלך הפעולה.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is larger than expected (%1 bytes).</source>
        <translation>תשובת ההתקן גדולה מהצפוי (%1 בתים).</translation>
    </message>
    <message>
        <source>The file of known device certificates cannot be read or written (system error %1).</source>
        <translation>לא ניתן לקרוא את קובץ האישורים המוכרים של ההתקנים או לכתוב אליו (שגיאת מערכת %1).</translation>
    </message>
    <message>
        <source>The device&apos;s host name cannot be found. Check its address.</source>
        <translation>שם המארח של ההתקן לא נמצא. יש לבדוק את הכתובת.</translation>
    </message>
    <message>
        <source>The device cannot be reached. Check its address, its port and the network.</source>
        <translation>לא ניתן להגיע אל ההתקן. יש לבדוק את הכתובת, את היציאה ואת הרשת.</translation>
    </message>
    <message>
        <source>Connecting to the device took too long. Check whether it is switched on and its address is right.</source>
        <translation>ההתחברות להתקן ארכה זמן רב מדי. יש לבדוק שהוא מופעל ושכתובתו נכונה.</translation>
    </message>
    <message>
        <source>The device did not answer in time.</source>
        <translation>ההתקן לא השיב בזמן.</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>החיבור להתקן אבד.</translation>
    </message>
    <message>
        <source>A secure connection to the device cannot be established.</source>
        <translation>לא ניתן ליצור חיבור מאובטח להתקן.</translation>
    </message>
    <message>
        <source>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</source>
        <translation>אישור ההתקן השתנה. ייתכן שהוחלף, או שהתקן אחר משיב בכתובתו.</translation>
    </message>
    <message>
        <source>There is no supported device at this address. Check the address and the port.</source>
        <translation>אין התקן נתמך בכתובת זו. יש לבדוק את הכתובת ואת היציאה.</translation>
    </message>
    <message>
        <source>The device uses version %1 of the protocol, which is not supported.</source>
        <translation>ההתקן משתמש בגרסה %1 של הפרוטוקול, שאינה נתמכת.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is too long.</source>
        <translation>תשובת ההתקן ארוכה מדי.</translation>
    </message>
    <message>
        <source>The device&apos;s answer has an unexpected size (%1 bytes).</source>
        <translation>לתשובת ההתקן גודל לא צפוי (%1 בתים).</translation>
    </message>
    <message>
        <source>The device&apos;s answer cannot be understood.</source>
        <translation>לא ניתן להבין את תשובת ההתקן.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>שם המשתמש או הסיסמה שגויים.</translation>
    </message>
    <message>
        <source>The device has locked the user after too many wrong passwords. Try again later.</source>
        <translation>ההתקן נעל את המשתמש לאחר יותר מדי סיסמאות שגויות. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The device does not allow this to the user.</source>
        <translation>ההתקן אינו מתיר זאת למשתמש.</translation>
    </message>
    <message>
        <source>The device does not accept any more logins at the moment.</source>
        <translation>ההתקן אינו מקבל כעת התחברויות נוספות.</translation>
    </message>
    <message>
        <source>The device does not support this function.</source>
        <translation>ההתקן אינו תומך בפעולה זו.</translation>
    </message>
    <message>
        <source>The device does not have this channel.</source>
        <translation>אין בהתקן ערוץ זה.</translation>
    </message>
    <message>
        <source>The device does not accept one of the values.</source>
        <translation>ההתקן אינו מקבל אחד מהערכים.</translation>
    </message>
    <message>
        <source>The device is busy. Try again later.</source>
        <translation>ההתקן עסוק. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The device reports an internal fault (module %1).</source>
        <translation>ההתקן מדווח על תקלה פנימית (מודול %1).</translation>
    </message>
    <message>
        <source>The device cannot save the change.</source>
        <translation>ההתקן אינו יכול לשמור את השינוי.</translation>
    </message>
    <message>
        <source>No microphone or other sound input can be used.</source>
        <translation>אין מיקרופון או קלט קול אחר שניתן להשתמש בו.</translation>
    </message>
    <message>
        <source>The sound input is already being captured.</source>
        <translation>קלט הקול כבר נקלט.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding (number %1) is not supported.</source>
        <translation>קידוד השמע של ההתקן (מספר %1) אינו נתמך.</translation>
    </message>
    <message>
        <source>Somebody else is speaking through this voice channel.</source>
        <translation>מישהו אחר מדבר בערוץ קול זה.</translation>
    </message>
    <message>
        <source>The operation succeeded.</source>
        <translation>הפעולה הצליחה.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding is not supported for broadcasts.</source>
        <translation>קידוד השמע של ההתקן אינו נתמך לשידורי כריזה.</translation>
    </message>
    <message>
        <source>Error %1 (%2)</source>
        <translation>שגיאה %1 (%2)</translation>
    </message>
</context>
</TS>
