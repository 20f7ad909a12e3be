<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL" sourcelanguage="en">
<context>
    <name>VantorGUIToolkit::CButtonSection</name>
    <message>
        <source>Buttons and choices</source>
        <translation>לחצנים ובחירות</translation>
    </message>
    <message>
        <source>&amp;Click</source>
        <translation>לחיצה</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>לחיצות: %1</translation>
    </message>
    <message>
        <source>Show the focus</source>
        <translation>הצגת המיקוד</translation>
    </message>
    <message>
        <source>Moves the focus to the first button, as Tab would.</source>
        <translation>מעביר את המיקוד ללחצן הראשון, כמו מקש Tab.</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>ראשי</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>רגיל</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>שקט</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>סכנה</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>עם סמל</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>מסומן</translation>
    </message>
    <message>
        <source>Push buttons, enabled and disabled</source>
        <translation>לחצנים, פעילים ומושבתים</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>מושבת</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>עם טקסט</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>לחצני כלים</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>לא נבחר דבר</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>הוספה</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>עריכה</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>לא זמין</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>הצגת פרטים</translation>
    </message>
    <message>
        <source>Move to screen</source>
        <translation>העברה למסך</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>מסך %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>תפריט</translation>
    </message>
    <message>
        <source>A menu with icons, shortcuts and a sub-menu</source>
        <translation>תפריט עם סמלים, קיצורי מקשים ותפריט משנה</translation>
    </message>
    <message>
        <source>Check boxes, radio buttons and switches</source>
        <translation>תיבות סימון, לחצני בחירה ומתגים</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>לא מסומן</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>מסומן חלקית</translation>
    </message>
    <message>
        <source>First</source>
        <translation>ראשון</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>שני</translation>
    </message>
    <message>
        <source>On</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>כבוי</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDataSection</name>
    <message>
        <source>Lists and tables</source>
        <translation>רשימות וטבלאות</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>טבלה</translation>
    </message>
    <message>
        <source>Empty table</source>
        <translation>טבלה ריקה</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>עץ</translation>
    </message>
    <message>
        <source>List</source>
        <translation>רשימה</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>מושבת</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>מכשירים</translation>
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
        <source>Channels</source>
        <translation>ערוצים</translation>
    </message>
    <message>
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>כניסה, קומה שנייה, מצלמה בשער הצפוני</translation>
    </message>
    <message>
        <source>Recorder %1</source>
        <translation>מקליט %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>לא מקוון</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>מקוון</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>לא נמצא דבר</translation>
    </message>
    <message>
        <source>No device has a name like this.</source>
        <translation>אין מכשיר בשם כזה.</translation>
    </message>
    <message>
        <source>Building %1</source>
        <translation>בניין %1</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>מצלמה %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>מצלמות</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialog</name>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialogSection</name>
    <message>
        <source>Dialogs and waiting</source>
        <translation>תיבות דו-שיח והמתנה</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>אין תשובה עדיין</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>שאלה</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>סכנה</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>מידע</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>שגיאה</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>טופס</translation>
    </message>
    <message>
        <source>Job of two seconds</source>
        <translation>משימה של שתי שניות</translation>
    </message>
    <message>
        <source>The job has ended</source>
        <translation>המשימה הסתיימה</translation>
    </message>
    <message>
        <source>The settings have been changed. Do you want to save the new settings?</source>
        <translation>ההגדרות שונו. האם לשמור את ההגדרות החדשות?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>The recordings of this camera are removed for good.</source>
        <translation>ההקלטות של מצלמה זו יימחקו לצמיתות.</translation>
    </message>
    <message>
        <source>Remove recordings</source>
        <translation>מחיקת הקלטות</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>ההגדרות נשמרו בכל המכשירים.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>אין גישה לשרת האחסון.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>הוספת מכשיר</translation>
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
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message>
        <source>The job runs</source>
        <translation>המשימה פועלת</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>מתבצע עיבוד</translation>
    </message>
    <message>
        <source>A job runs already</source>
        <translation>משימה כבר פועלת</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CFormSection</name>
    <message>
        <source>Form</source>
        <translation>טופס</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>חיבור</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>Name or address of the device in your network.</source>
        <translation>שם המכשיר או כתובתו ברשת.</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>התחברות עם הפעלת התוכנית</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>בדיקה</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>היציאה היא מספר בין 1 ל-65535.</translation>
    </message>
    <message>
        <source>Enter an address.</source>
        <translation>יש להזין כתובת.</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CGalleryPage</name>
    <message>
        <source>Gallery</source>
        <translation>גלריה</translation>
    </message>
    <message>
        <source>Every widget in every state.</source>
        <translation>כל הפקדים בכל המצבים.</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>משני</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>ראשי</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CIconSection</name>
    <message>
        <source>Icons: normal, selected, disabled</source>
        <translation>סמלים: רגיל, נבחר, מושבת</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CInputSection</name>
    <message>
        <source>Inputs</source>
        <translation>קלט</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>לקריאה בלבד</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>מושבת</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>לא תקין</translation>
    </message>
    <message>
        <source>Line edits: empty, filled, read-only, disabled, invalid</source>
        <translation>שדות טקסט: ריק, מלא, לקריאה בלבד, מושבת, לא תקין</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>כניסה, קומה שנייה, מצלמה בשער הצפוני</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>מלא</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>שער</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>תיקיית ההקלטות</translation>
    </message>
    <message>
        <source>Password, search and path</source>
        <translation>סיסמה, חיפוש ונתיב</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>ערוץ</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>מצלמה %1</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>ניתן לעריכה</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>שני</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>שלישי</translation>
    </message>
    <message>
        <source>Combo boxes: with a long list, editable, disabled, invalid</source>
        <translation>תיבות בחירה: רשימה ארוכה, ניתנת לעריכה, מושבתת, לא תקינה</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>מספר</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>שבר עשרוני</translation>
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
        <source>Numbers, dates and times</source>
        <translation>מספרים, תאריכים ושעות</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>עוצמת קול</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>התקדמות</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>הערות</translation>
    </message>
    <message>
        <source>A text of several lines.
It scrolls when it is too long for its field.</source>
        <translation>טקסט של כמה שורות.
אפשר לגלול אותו כשהוא ארוך מהשדה.</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>טקסטים של כמה שורות</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CMessageSection</name>
    <message>
        <source>Texts and messages</source>
        <translation>טקסטים והודעות</translation>
    </message>
    <message>
        <source>Title of a page</source>
        <translation>כותרת עמוד</translation>
    </message>
    <message>
        <source>Heading of a section</source>
        <translation>כותרת מקטע</translation>
    </message>
    <message>
        <source>A sentence of plain text.</source>
        <translation>משפט של טקסט רגיל.</translation>
    </message>
    <message>
        <source>A hint that helps with a field.</source>
        <translation>הסבר שעוזר במילוי שדה.</translation>
    </message>
    <message>
        <source>What is wrong with a field.</source>
        <translation>מה שגוי בשדה.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>מקוון</translation>
    </message>
    <message>
        <source>Weak signal</source>
        <translation>אות חלש</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>לא מקוון</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מקליט</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>לא בשימוש</translation>
    </message>
    <message>
        <source>Badges</source>
        <translation>תגיות</translation>
    </message>
    <message>
        <source>Banners</source>
        <translation>שורות הודעה</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>ההגדרות נשמרו בכל המכשירים.</translation>
    </message>
    <message>
        <source>Less than 5 GB are free in the folder for recordings.</source>
        <translation>בתיקיית ההקלטות נותרו פחות מ-5 GB פנויים.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>אין גישה לשרת האחסון.</translation>
    </message>
    <message>
        <source>A new version is available.</source>
        <translation>גרסה חדשה זמינה.</translation>
    </message>
    <message>
        <source>No schedule is active.</source>
        <translation>אין לוח זמנים פעיל.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ניסיון נוסף</translation>
    </message>
    <message>
        <source>Starting the broadcast succeeded.</source>
        <translation>השידור הופעל בהצלחה.</translation>
    </message>
    <message>
        <source>The picture is saved, but the folder is nearly full.</source>
        <translation>התמונה נשמרה, אבל התיקייה כמעט מלאה.</translation>
    </message>
    <message>
        <source>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</source>
        <translation>לא ניתן היה לכתוב את ההגדרות לשלושה מתוך שמונת המכשירים. יש לוודא שהם פועלים ונגישים ברשת ולשמור שוב.</translation>
    </message>
    <message>
        <source>Camera 07 is connected again.</source>
        <translation>מצלמה 07 מחוברת שוב.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>דבר לא שונה.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>הצלחה</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>אזהרה</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>שגיאה</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>מידע</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>ניטרלי</translation>
    </message>
    <message>
        <source>Notices at the bottom right of the screen</source>
        <translation>התראות בפינה הימנית התחתונה של המסך</translation>
    </message>
    <message>
        <source>No cameras</source>
        <translation>אין מצלמות</translation>
    </message>
    <message>
        <source>Add a device to see its cameras here.</source>
        <translation>יש להוסיף מכשיר כדי לראות כאן את המצלמות שלו.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>הוספת מכשיר</translation>
    </message>
    <message>
        <source>Where nothing is to be shown</source>
        <translation>כשאין מה להציג</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CNotice</name>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>הצגת הסיסמה</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>הסתרת הסיסמה</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPathComboBox</name>
    <message>
        <source>Browse</source>
        <translation>עיון</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>בחירת תיקייה</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>בחירת קובץ</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CSearchEdit</name>
    <message>
        <source>Clear</source>
        <translation>ניקוי</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CWarningDlg</name>
    <message>
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
</context>
<context>
    <name>gallery::GalleryWindow</name>
    <message>
        <source>Page</source>
        <translation>עמוד</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>פקדים</translation>
    </message>
    <message>
        <source>Resource tree</source>
        <translation>עץ המשאבים</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>Scale: start again with QT_SCALE_FACTOR=1.5</source>
        <translation>גודל: הפעלה מחדש עם QT_SCALE_FACTOR=1.5</translation>
    </message>
</context>
<context>
    <name>gallery::TreePage</name>
    <message>
        <source>Resource tree</source>
        <translation>עץ המשאבים</translation>
    </message>
    <message>
        <source>By devices</source>
        <translation>לפי התקנים</translation>
    </message>
    <message>
        <source>By groups</source>
        <translation>לפי קבוצות</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>בחיפוש</translation>
    </message>
    <message>
        <source>Ten thousand</source>
        <translation>עשרת אלפים</translation>
    </message>
    <message>
        <source>Without devices</source>
        <translation>ללא התקנים</translation>
    </message>
    <message>
        <source>Without hits</source>
        <translation>ללא תוצאות</translation>
    </message>
</context>
</TS>
