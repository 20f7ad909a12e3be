<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>UiDataController::CResourceTree</name>
    <message>
        <source>No devices yet</source>
        <translation>尚无设备</translation>
    </message>
    <message>
        <source>Devices that are added appear here with their cameras.</source>
        <translation>添加的设备及其摄像机将显示在此处。</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>No camera, device or group has such a name.</source>
        <translation>没有摄像机、设备或分组使用这样的名称。</translation>
    </message>
    <message>
        <source>Devices and cameras</source>
        <translation>设备和摄像机</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>找到 %Ln 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln camera(s)</source>
        <translation>
            <numerusform>%Ln 台摄像机</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResourceTree</name>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录像</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
</context>
</TS>
