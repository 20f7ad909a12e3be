<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
    <context>
        <name>uiSystemFileWidget</name>
        <message>
            <source>SavingPathOfVideoFiles</source>
            <translation>مجلد الفيديو</translation>
        </message>
    </context>
</TS>
