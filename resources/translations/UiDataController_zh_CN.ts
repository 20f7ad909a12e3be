<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DeviceErrors</name>
    <message>
        <source>No error has occurred.</source>
        <translation>没有发生错误。</translation>
    </message>
    <message>
        <source>Communication with devices has not been started.</source>
        <translation>与设备的通信尚未启动。</translation>
    </message>
    <message>
        <source>The request to the device is not valid.</source>
        <translation>发送给设备的请求无效。</translation>
    </message>
    <message>
        <source>The login to the device has ended.</source>
        <translation>设备登录已结束。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>Too many devices are connected at the same time.</source>
        <translation>同时连接的设备过多。</translation>
    </message>
    <message>
        <source>The connection to the device was closed during the operation.</source>
        <translation>操作过程中与设备的连接被关闭。</translation>
    </message>
    <message>
        <source>The device&apos;s answer is larger than expected (%1 bytes).</source>
        <translation>设备的应答比预期大（%1 字节）。</translation>
    </message>
    <message>
        <source>The file of known device certificates cannot be read or written (system error %1).</source>
        <translation>无法读取或写入已知设备证书文件（系统错误 %1）。</translation>
    </message>
    <message>
        <source>The device&apos;s host name cannot be found. Check its address.</source>
        <translation>找不到设备的主机名。请检查地址。</translation>
    </message>
    <message>
        <source>The device cannot be reached. Check its address, its port and the network.</source>
        <translation>无法连接到设备。请检查其地址、端口和网络。</translation>
    </message>
    <message>
        <source>Connecting to the device took too long. Check whether it is switched on and its address is right.</source>
        <translation>连接设备超时。请检查设备是否已开机以及地址是否正确。</translation>
    </message>
    <message>
        <source>The device did not answer in time.</source>
        <translation>设备未在规定时间内应答。</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>与设备的连接已断开。</translation>
    </message>
    <message>
        <source>A secure connection to the device cannot be established.</source>
        <translation>无法与设备建立安全连接。</translation>
    </message>
    <message>
        <source>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</source>
        <translation>设备的证书已更改。可能证书已被更换，或者该地址上应答的是另一台设备。</translation>
    </message>
    <message>
        <source>There is no supported device at this address. Check the address and the port.</source>
        <translation>此地址上没有受支持的设备。请检查地址和端口。</translation>
    </message>
    <message>
        <source>The device uses version %1 of the protocol, which is not supported.</source>
        <translation>设备使用的协议版本 %1 不受支持。</translation>
    </message>
    <message>
        <source>The device&apos;s answer is too long.</source>
        <translation>设备的应答过长。</translation>
    </message>
    <message>
        <source>The device&apos;s answer has an unexpected size (%1 bytes).</source>
        <translation>设备应答的大小与预期不符（%1 字节）。</translation>
    </message>
    <message>
        <source>The device&apos;s answer cannot be understood.</source>
        <translation>无法识别设备的应答。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message>
        <source>The device has locked the user after too many wrong passwords. Try again later.</source>
        <translation>由于密码错误次数过多，设备已锁定该用户。请稍后重试。</translation>
    </message>
    <message>
        <source>The device does not allow this to the user.</source>
        <translation>该用户在设备上没有执行此操作的权限。</translation>
    </message>
    <message>
        <source>The device does not accept any more logins at the moment.</source>
        <translation>设备目前不再接受新的登录。</translation>
    </message>
    <message>
        <source>The device does not support this function.</source>
        <translation>设备不支持此功能。</translation>
    </message>
    <message>
        <source>The device does not have this channel.</source>
        <translation>设备没有此通道。</translation>
    </message>
    <message>
        <source>The device does not accept one of the values.</source>
        <translation>设备不接受其中某个值。</translation>
    </message>
    <message>
        <source>The device is busy. Try again later.</source>
        <translation>设备忙。请稍后重试。</translation>
    </message>
    <message>
        <source>The device reports an internal fault (module %1).</source>
        <translation>设备报告内部故障（模块 %1）。</translation>
    </message>
    <message>
        <source>The device cannot save the change.</source>
        <translation>设备无法保存更改。</translation>
    </message>
    <message>
        <source>No microphone or other sound input can be used.</source>
        <translation>没有可用的麦克风或其他声音输入设备。</translation>
    </message>
    <message>
        <source>The sound input is already being captured.</source>
        <translation>声音输入已在采集中。</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding (number %1) is not supported.</source>
        <translation>不支持设备的音频编码（编号 %1）。</translation>
    </message>
    <message>
        <source>Somebody else is speaking through this voice channel.</source>
        <translation>其他人正在使用此语音通道讲话。</translation>
    </message>
    <message>
        <source>The operation succeeded.</source>
        <translation>操作成功。</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding is not supported for broadcasts.</source>
        <translation>设备的音频编码不支持广播。</translation>
    </message>
    <message>
        <source>Error %1 (%2)</source>
        <translation>错误 %1（%2）</translation>
    </message>
</context>
</TS>
