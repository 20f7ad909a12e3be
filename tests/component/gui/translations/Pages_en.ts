<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
    <context>
        <name>uiSystemFileWidget</name>
        <message>
            <source>SavingPathOfVideoFiles</source>
            <translation>Video folder</translation>
        </message>
        <message>
            <source>Information</source>
            <translation>Information</translation>
        </message>
        <message>
            <source>Clips</source>
            <translation>Clips</translation>
        </message>
    </context>
</TS>
