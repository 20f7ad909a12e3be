<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Pages</name>
    <message>
        <source>Main View</source>
        <translation>主视图</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>远程回放</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>编码设备</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>辅助屏幕</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>第二实时画面</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>第三实时画面</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>第四实时画面</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>存储计划</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>录像计划</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>语音广播</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>报警输出</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>雨刷控制</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>流媒体服务器</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>视频文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>控件展示</translation>
    </message>
</context>
<context>
    <name>video::CUnavailablePage</name>
    <message>
        <source>This page is not available yet.</source>
        <translation>此页面暂不可用。</translation>
    </message>
</context>
</TS>
