<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>ComponentState</name>
    <message>
        <source>Starting</source>
        <translation>בהפעלה</translation>
    </message>
    <message>
        <source>The component is starting.</source>
        <translation>הרכיב מופעל.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>מוכן</translation>
    </message>
    <message>
        <source>The component is at work.</source>
        <translation>הרכיב פועל.</translation>
    </message>
    <message>
        <source>Restarting</source>
        <translation>מופעל מחדש</translation>
    </message>
    <message>
        <source>The component ended and will be started again.</source>
        <translation>הרכיב נסגר ויופעל מחדש.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>נכשל</translation>
    </message>
    <message>
        <source>The component ended too often and is not started again.</source>
        <translation>הרכיב נסגר פעמים רבות מדי ולא יופעל שוב מעצמו.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>עצור</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>הרכיב אינו פועל.</translation>
    </message>
</context>
<context>
    <name>DeviceForm</name>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>שם יכול לכלול עד 64 תווים.</translation>
    </message>
    <message>
        <source>Another device has this name.</source>
        <translation>להתקן אחר יש את השם הזה.</translation>
    </message>
    <message>
        <source>Enter a host name or an IP address.</source>
        <translation>הזן שם מארח או כתובת IP.</translation>
    </message>
    <message>
        <source>This is neither a host name nor an IP address.</source>
        <translation>זה אינו שם מארח וגם לא כתובת IP.</translation>
    </message>
    <message>
        <source>Enter the user of the device.</source>
        <translation>הזן את משתמש ההתקן.</translation>
    </message>
</context>
<context>
    <name>DeviceText</name>
    <message>
        <source>Device</source>
        <translation>התקן</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>מקודד</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>מקליט</translation>
    </message>
    <message>
        <source>Storage server</source>
        <translation>שרת אחסון</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>מקוון</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>לא מקוון</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>מתחבר</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מקליט</translation>
    </message>
    <message>
        <source>Not supported by its device</source>
        <translation>אינה נתמכת בהתקן שלה</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Alarm</source>
        <translation>אזעקה</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>התקן</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>רכיב</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>חלון</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Live view</source>
        <translation>תצוגה חיה</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>הפעלה חוזרת</translation>
    </message>
    <message>
        <source>Clips and pictures</source>
        <translation>קטעי וידאו ותמונות</translation>
    </message>
    <message>
        <source>Recording schedules</source>
        <translation>לוחות הקלטה</translation>
    </message>
    <message>
        <source>Storage plans</source>
        <translation>תוכניות אחסון</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>התקנים</translation>
    </message>
    <message>
        <source>Broadcast</source>
        <translation>שידור</translation>
    </message>
    <message>
        <source>Alarm outputs</source>
        <translation>יציאות אזעקה</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>מגבים</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>משתמשים</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>The component was started.</source>
        <translation>הרכיב הופעל.</translation>
    </message>
    <message>
        <source>The component has joined.</source>
        <translation>הרכיב הצטרף.</translation>
    </message>
    <message>
        <source>The component is ready.</source>
        <translation>הרכיב מוכן.</translation>
    </message>
    <message>
        <source>The component has left.</source>
        <translation>הרכיב התנתק.</translation>
    </message>
    <message>
        <source>The component was asked to end.</source>
        <translation>הרכיב התבקש להיסגר.</translation>
    </message>
    <message>
        <source>The component is not started again.</source>
        <translation>הרכיב לא יופעל שוב.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1. It is started again in %2 s.</source>
        <translation>הרכיב נסגר עם קוד יציאה %1. הוא יופעל מחדש בעוד %2 שנ׳.</translation>
    </message>
    <message>
        <source>The component ended with signal %1. It is started again in %2 s.</source>
        <translation>הרכיב נסגר על ידי האות %1. הוא יופעל מחדש בעוד %2 שנ׳.</translation>
    </message>
    <message>
        <source>The component ended with %1. It was started %2 times within a minute and is given up.</source>
        <translation>הרכיב נסגר (%1). הוא הופעל %2 פעמים בתוך דקה ולא יופעל שוב.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1.</source>
        <translation>הרכיב נסגר עם קוד יציאה %1.</translation>
    </message>
    <message>
        <source>The component ended with signal %1.</source>
        <translation>הרכיב נסגר על ידי האות %1.</translation>
    </message>
    <message>
        <source>The component cannot be started: %1.</source>
        <translation>לא ניתן להפעיל את הרכיב: %1.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was added.</source>
        <translation>ההתקן &quot;%1&quot; נוסף.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was changed.</source>
        <translation>ההתקן &quot;%1&quot; שונה.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was removed.</source>
        <translation>ההתקן &quot;%1&quot; הוסר.</translation>
    </message>
    <message>
        <source>Test alarm of %1</source>
        <translation>אזעקת ניסיון מ-%1</translation>
    </message>
    <message>
        <source>Changed settings: %1.</source>
        <translation>הגדרות ששונו: %1.</translation>
    </message>
    <message>
        <source>The users were changed.</source>
        <translation>המשתמשים שונו.</translation>
    </message>
    <message>
        <source>User &quot;%1&quot; took over from &quot;%2&quot;.</source>
        <translation>המשתמש &quot;%1&quot; החליף את &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The address and port belong to another device.</source>
        <translation>הכתובת והיציאה שייכות להתקן אחר.</translation>
    </message>
    <message>
        <source>The devices cannot be saved.</source>
        <translation>לא ניתן לשמור את ההתקנים.</translation>
    </message>
    <message>
        <source>There are too many devices.</source>
        <translation>יש יותר מדי התקנים.</translation>
    </message>
    <message>
        <source>The users cannot be saved.</source>
        <translation>לא ניתן לשמור את המשתמשים.</translation>
    </message>
    <message>
        <source>There are too many users.</source>
        <translation>יש יותר מדי משתמשים.</translation>
    </message>
    <message>
        <source>Somebody must be allowed to manage users.</source>
        <translation>מישהו חייב להיות רשאי לנהל משתמשים.</translation>
    </message>
    <message>
        <source>The user is at work.</source>
        <translation>המשתמש עובד כעת.</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>ערכת נושא</translation>
    </message>
    <message>
        <source>language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>edition</source>
        <translation>מהדורה</translation>
    </message>
    <message>
        <source>date format</source>
        <translation>תבנית התאריך</translation>
    </message>
    <message>
        <source>time format</source>
        <translation>תבנית השעה</translation>
    </message>
    <message>
        <source>folder of clips</source>
        <translation>תיקיית קטעי הווידאו</translation>
    </message>
    <message>
        <source>folder of pictures</source>
        <translation>תיקיית התמונות</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is online.</source>
        <translation>ההתקן &quot;%1&quot; מקוון.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is offline.</source>
        <translation>ההתקן &quot;%1&quot; אינו מקוון.</translation>
    </message>
    <message>
        <source>The user name must have at most 127 bytes.</source>
        <translation>שם המשתמש יכול לכלול עד 127 בתים.</translation>
    </message>
    <message>
        <source>The password must have at most 127 bytes.</source>
        <translation>הסיסמה יכולה לכלול עד 127 בתים.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Live View</source>
        <translation>תצוגה חיה</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>הפעלה חוזרת</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>הקלטה</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>התקנים</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>כלים</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>בית</translation>
    </message>
    <message>
        <source>Main View</source>
        <translation>תצוגה ראשית</translation>
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
        <source>Remote Playback</source>
        <translation>הפעלה מרחוק</translation>
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
        <source>Recording Schedule</source>
        <translation>לוח זמנים להקלטה</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>תוכנית אחסון</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>רשימת התקנים</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>התקני קידוד</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>שרתי הזרמת מדיה</translation>
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
        <source>Widget Gallery</source>
        <translation>גלריית רכיבים</translation>
    </message>
    <message>
        <source>Notification Centre</source>
        <translation>מרכז ההודעות</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <translation>יומן פעולות</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>משתמשים</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Local Files</source>
        <translation>קבצים מקומיים</translation>
    </message>
</context>
<context>
    <name>framework::CCameraBox</name>
    <message>
        <source>Camera, group or identifier</source>
        <translation>מצלמה, קבוצה או מזהה</translation>
    </message>
</context>
<context>
    <name>framework::CComponentTab</name>
    <message>
        <source>Waiting for the component…</source>
        <translation>ממתין לרכיב…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>נסו שוב</translation>
    </message>
    <message>
        <source>The component ended. It is being restarted…</source>
        <translation>הרכיב נסגר. הוא מופעל מחדש…</translation>
    </message>
    <message>
        <source>Your tabs come back by themselves.</source>
        <translation>הכרטיסיות יחזרו מעצמן.</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>הרכיב אינו פועל.</translation>
    </message>
    <message>
        <source>Start the component</source>
        <translation>הפעל את הרכיב</translation>
    </message>
    <message>
        <source>The component did not answer in time, or it cannot show this page.</source>
        <translation>הרכיב לא הגיב בזמן, או שאינו יכול להציג דף זה.</translation>
    </message>
    <message>
        <source>It ended too often. The operation log has the details.</source>
        <translation>הוא הסתיים פעמים רבות מדי. הפרטים ביומן הפעולות.</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDetails</name>
    <message>
        <source>Try now</source>
        <translation>לנסות כעת</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>סוג</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>מספר סידורי</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>קושחה</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>ערוצים</translation>
    </message>
    <message>
        <source>Alarm inputs and outputs</source>
        <translation>כניסות ויציאות אזעקה</translation>
    </message>
    <message>
        <source>%1, encrypted</source>
        <translation>%1, מוצפן</translation>
    </message>
    <message>
        <source>%1, online %2</source>
        <translation>%1, מקוונים: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 ו-%2</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>ערוץ %1: %2</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDialog</name>
    <message>
        <source>Add device</source>
        <translation>הוסף התקן</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>ערוך התקן</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>הוסף</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>שמור</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>שם מארח או כתובת IP</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>The device does not exist any more.</source>
        <translation>ההתקן אינו קיים עוד.</translation>
    </message>
    <message>
        <source>Encrypted connection (TLS)</source>
        <translation>חיבור מוצפן (TLS)</translation>
    </message>
    <message>
        <source>Empty: the name that the device has</source>
        <translation>ריק: השם שיש להתקן</translation>
    </message>
    <message>
        <source>Connecting to the device…</source>
        <translation>מתחבר להתקן…</translation>
    </message>
    <message>
        <source>Add anyway</source>
        <translation>להוסיף בכל זאת</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>לשמור בכל זאת</translation>
    </message>
</context>
<context>
    <name>framework::CDevicesPage</name>
    <message>
        <source>Cameras, recorders and storage servers that the client works with.</source>
        <translation>המצלמות, המקליטים ושרתי האחסון שהתוכנה עובדת איתם.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>ערוך</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסר</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>הוסף התקן</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot; with its channels?</source>
        <translation>להסיר את ההתקן &quot;%1&quot; עם הערוצים שלו?</translation>
    </message>
    <message>
        <source>Remove device</source>
        <translation>הסרת התקן</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>ערוך…</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>הסר…</translation>
    </message>
    <message>
        <source>Simulate an alarm</source>
        <translation>הדמה אזעקה</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>לא נבחר התקן</translation>
    </message>
    <message>
        <source>Choose a device or a camera to see more about it.</source>
        <translation>בחר התקן או מצלמה כדי לראות פרטים.</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>לנסות כעת</translation>
    </message>
</context>
<context>
    <name>framework::CHomePage</name>
    <message>
        <source>Your devices and the client at a glance.</source>
        <translation>ההתקנים והתוכנה במבט אחד.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>התקנים</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>הפעל מחדש</translation>
    </message>
    <message>
        <source>Video component</source>
        <translation>רכיב הווידאו</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>קיצורי דרך</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>אירועים אחרונים</translation>
    </message>
    <message>
        <source>No devices</source>
        <translation>אין התקנים</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 מתוך %2 מקוונים</translation>
    </message>
    <message>
        <source>Add the first one in the device list.</source>
        <translation>הוסף את הראשון ברשימת ההתקנים.</translation>
    </message>
    <message>
        <source>All devices are reached.</source>
        <translation>כל ההתקנים זמינים.</translation>
    </message>
    <message>
        <source>Some devices are not reached.</source>
        <translation>חלק מההתקנים אינם זמינים.</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>עדיין לא קרה דבר.</translation>
    </message>
</context>
<context>
    <name>framework::CJournalPage</name>
    <message>
        <source>Time</source>
        <translation>שעה</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>סוג</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>אירוע</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>כל הסוגים</translation>
    </message>
    <message>
        <source>Nothing has happened yet</source>
        <translation>עדיין לא קרה דבר</translation>
    </message>
    <message>
        <source>What happens is listed here, the newest first.</source>
        <translation>כאן מופיע כל מה שקורה, החדש ביותר תחילה.</translation>
    </message>
</context>
<context>
    <name>framework::CListPage</name>
    <message>
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileChoices</name>
    <message>
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
    <message>
        <source>Camera or group</source>
        <translation>מצלמה או קבוצה</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>ימים</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>היום</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 הימים האחרונים</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 הימים האחרונים</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>כל הימים</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>סרטונים</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileModel</name>
    <message>
        <source>under 1 KiB</source>
        <translation>פחות מ־1 KiB</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>מצלמה</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>קבוצה</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>זמן</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>משך</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>גודל</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>נתיב</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFilesPage</name>
    <message>
        <source>Pictures and clips on this computer, as the component has catalogued them.</source>
        <translation>תמונות וסרטונים במחשב זה, כפי שהרכיב רשם אותם.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>הצגת התיקייה</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>בטעינה</translation>
    </message>
    <message>
        <source>The component is asked for its records.</source>
        <translation>הרכיב נשאל על הרשומות שלו.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>רענון</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>לא נמצא דבר</translation>
    </message>
    <message>
        <source>No file has this text.</source>
        <translation>אין קובץ עם הטקסט הזה.</translation>
    </message>
    <message>
        <source>No camera yet</source>
        <translation>אין עדיין מצלמה</translation>
    </message>
    <message>
        <source>Add a device, or enter a camera&apos;s identifier.</source>
        <translation>הוסיפו התקן או הזינו מזהה של מצלמה.</translation>
    </message>
    <message>
        <source>The component did not answer in time.</source>
        <translation>הרכיב לא ענה בזמן.</translation>
    </message>
    <message>
        <source>The component answered with an error.</source>
        <translation>הרכיב ענה בשגיאה.</translation>
    </message>
    <message>
        <source>The answer of the component cannot be read.</source>
        <translation>לא ניתן לקרוא את תשובת הרכיב.</translation>
    </message>
    <message>
        <source>No pictures</source>
        <translation>אין תמונות</translation>
    </message>
    <message>
        <source>No clips</source>
        <translation>אין סרטונים</translation>
    </message>
    <message>
        <source>Nothing was catalogued for this camera or group in these days.</source>
        <translation>לא נרשם דבר עבור המצלמה או הקבוצה בימים אלה.</translation>
    </message>
    <message>
        <source>The list cannot be shown</source>
        <translation>לא ניתן להציג את הרשימה</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>נסו שוב</translation>
    </message>
    <message>
        <source>Pictures: %1 (%2)</source>
        <translation>תמונות: %1 (%2)</translation>
    </message>
    <message>
        <source>Clips: %1 (%2)</source>
        <translation>סרטונים: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>The component did not tell where the file is.</source>
        <translation>הרכיב לא מסר היכן הקובץ.</translation>
    </message>
    <message>
        <source>The file is no longer in the catalogue.</source>
        <translation>הקובץ כבר אינו רשום בקטלוג.</translation>
    </message>
    <message>
        <source>The file is gone: %1</source>
        <translation>הקובץ איננו: %1</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>אין תוכנית שפותחת את %1</translation>
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
        <translation>מסיים…</translation>
    </message>
</context>
<context>
    <name>framework::CNoticesPage</name>
    <message>
        <source>Alarms and messages of devices and of the system.</source>
        <translation>התראות והודעות של ההתקנים ושל המערכת.</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>סמן הכול כנקרא</translation>
    </message>
    <message>
        <source>No notices</source>
        <translation>אין הודעות</translation>
    </message>
    <message>
        <source>Alarms of your devices appear here.</source>
        <translation>התראות מההתקנים שלך יופיעו כאן.</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>סימון כנקרא</translation>
    </message>
</context>
<context>
    <name>framework::CPages</name>
    <message>
        <source>What users did, and what happened to the component.</source>
        <translation>מה שעשו המשתמשים ומה שקרה לרכיב.</translation>
    </message>
</context>
<context>
    <name>framework::CSettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>These hold for the whole client, whoever works with it.</source>
        <translation>ההגדרות חלות על כל התוכנה, לכל המשתמשים.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>בטל שינויים</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>החל</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>ערכת נושא</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>Another skin or language restarts the video component; open tabs come back.</source>
        <translation>החלפת ערכת נושא או שפה מפעילה מחדש את רכיב הווידאו; הכרטיסיות הפתוחות יחזרו.</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>תאריך ושעה</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>תאריך</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>שעה</translation>
    </message>
    <message>
        <source>Default folders</source>
        <translation>תיקיות ברירת מחדל</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>קטעי וידאו</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>תמונות</translation>
    </message>
</context>
<context>
    <name>framework::CSkinPicker</name>
    <message>
        <source>Dark</source>
        <translation>כהה</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>בהיר</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>כחול</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>ניטרלי</translation>
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
        <translation>ברוך הבא</translation>
    </message>
    <message>
        <source>Choose how the client looks. Both can be changed later in the settings.</source>
        <translation>בחר כיצד התוכנה תיראה. אפשר לשנות את שניהם אחר כך בהגדרות.</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>ערכת נושא</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>התחל</translation>
    </message>
</context>
<context>
    <name>framework::CStatusBar</name>
    <message>
        <source>Video component</source>
        <translation>רכיב הווידאו</translation>
    </message>
</context>
<context>
    <name>framework::CSwitchUserDialog</name>
    <message>
        <source>Switch user</source>
        <translation>החלפת משתמש</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>החלף</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>הסיסמה שגויה.</translation>
    </message>
</context>
<context>
    <name>framework::CTabStrip</name>
    <message>
        <source>All open tabs</source>
        <translation>כל הכרטיסיות הפתוחות</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Close the others</source>
        <translation>סגירת האחרות</translation>
    </message>
    <message>
        <source>Close all</source>
        <translation>סגירת הכול</translation>
    </message>
</context>
<context>
    <name>framework::CTopBar</name>
    <message>
        <source>Show or hide the navigation</source>
        <translation>הצג או הסתר את הניווט</translation>
    </message>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Switch user…</source>
        <translation>החלף משתמש…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>סיום התוכנה</translation>
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
        <translation>הסר</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>משתמשים</translation>
    </message>
    <message>
        <source>Who works with the client, and what each may do.</source>
        <translation>מי עובד עם התוכנה, ומה כל אחד רשאי לעשות.</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>הוסף משתמש</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>ללא שינוי</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>שמור</translation>
    </message>
    <message>
        <source>May use</source>
        <translation>רשאי להשתמש ב</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>הזן שם.</translation>
    </message>
    <message>
        <source>There is a user of this name.</source>
        <translation>כבר קיים משתמש בשם זה.</translation>
    </message>
    <message>
        <source>The user was saved.</source>
        <translation>המשתמש נשמר.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>להסיר את המשתמש &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Remove user</source>
        <translation>הסרת משתמש</translation>
    </message>
    <message>
        <source>The user was removed.</source>
        <translation>המשתמש הוסר.</translation>
    </message>
</context>
</TS>
