<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
    <context>
        <name>uiSystemFileWidget</name>
        <message>
            <source>Clips</source>
            <translation>Aufnahmen</translation>
        </message>
    </context>
</TS>
