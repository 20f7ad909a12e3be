<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
    <context>
        <name>uiSystemFileWidget</name>
        <message>
            <source>SavingPathOfVideoFiles</source>
            <translation>Videoordner</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Hinweis</translation>
        </message>
    </context>
</TS>
