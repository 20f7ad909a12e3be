<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>DeviceErrors</name>
    <message>
        <source>No error has occurred.</source>
        <translation>No error has occurred.</translation>
    </message>
    <message>
        <source>Communication with devices has not been started.</source>
        <translation>Communication with devices has not been started.</translation>
    </message>
    <message>
        <source>The request to the device is not valid.</source>
        <translation>The request to the device is not valid.</translation>
    </message>
    <message>
        <source>The login to the device has ended.</source>
        <translation>The login to the device has ended.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>There is not enough memory.</translation>
    </message>
    <message>
        <source>Too many devices are connected at the same time.</source>
        <translation>Too many devices are connected at the same time.</translation>
    </message>
    <message>
        <source>The connection to the device was closed during the operation.</source>
        <translation>The connection to the device was closed during the operation.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is larger than expected (%1 bytes).</source>
        <translation>The device&apos;s answer is larger than expected (%1 bytes).</translation>
    </message>
    <message>
        <source>The file of known device certificates cannot be read or written (system error %1).</source>
        <translation>The file of known device certificates cannot be read or written (system error %1).</translation>
    </message>
    <message>
        <source>The device&apos;s host name cannot be found. Check its address.</source>
        <translation>The device&apos;s host name cannot be found. Check its address.</translation>
    </message>
    <message>
        <source>The device cannot be reached. Check its address, its port and the network.</source>
        <translation>The device cannot be reached. Check its address, its port and the network.</translation>
    </message>
    <message>
        <source>Connecting to the device took too long. Check whether it is switched on and its address is right.</source>
        <translation>Connecting to the device took too long. Check whether it is switched on and its address is right.</translation>
    </message>
    <message>
        <source>The device did not answer in time.</source>
        <translation>The device did not answer in time.</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>The connection to the device was lost.</translation>
    </message>
    <message>
        <source>A secure connection to the device cannot be established.</source>
        <translation>A secure connection to the device cannot be established.</translation>
    </message>
    <message>
        <source>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</source>
        <translation>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</translation>
    </message>
    <message>
        <source>There is no supported device at this address. Check the address and the port.</source>
        <translation>There is no supported device at this address. Check the address and the port.</translation>
    </message>
    <message>
        <source>The device uses version %1 of the protocol, which is not supported.</source>
        <translation>The device uses version %1 of the protocol, which is not supported.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is too long.</source>
        <translation>The device&apos;s answer is too long.</translation>
    </message>
    <message>
        <source>The device&apos;s answer has an unexpected size (%1 bytes).</source>
        <translation>The device&apos;s answer has an unexpected size (%1 bytes).</translation>
    </message>
    <message>
        <source>The device&apos;s answer cannot be understood.</source>
        <translation>The device&apos;s answer cannot be understood.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>The user name or the password is wrong.</translation>
    </message>
    <message>
        <source>The device has locked the user after too many wrong passwords. Try again later.</source>
        <translation>The device has locked the user after too many wrong passwords. Try again later.</translation>
    </message>
    <message>
        <source>The device does not allow this to the user.</source>
        <translation>The device does not allow this to the user.</translation>
    </message>
    <message>
        <source>The device does not accept any more logins at the moment.</source>
        <translation>The device does not accept any more logins at the moment.</translation>
    </message>
    <message>
        <source>The device does not support this function.</source>
        <translation>The device does not support this function.</translation>
    </message>
    <message>
        <source>The device does not have this channel.</source>
        <translation>The device does not have this channel.</translation>
    </message>
    <message>
        <source>The device does not accept one of the values.</source>
        <translation>The device does not accept one of the values.</translation>
    </message>
    <message>
        <source>The device is busy. Try again later.</source>
        <translation>The device is busy. Try again later.</translation>
    </message>
    <message>
        <source>The device reports an internal fault (module %1).</source>
        <translation>The device reports an internal fault (module %1).</translation>
    </message>
    <message>
        <source>The device cannot save the change.</source>
        <translation>The device cannot save the change.</translation>
    </message>
    <message>
        <source>No microphone or other sound input can be used.</source>
        <translation>No microphone or other sound input can be used.</translation>
    </message>
    <message>
        <source>The sound input is already being captured.</source>
        <translation>The sound input is already being captured.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding (number %1) is not supported.</source>
        <translation>The device&apos;s audio encoding (number %1) is not supported.</translation>
    </message>
    <message>
        <source>Somebody else is speaking through this voice channel.</source>
        <translation>Somebody else is speaking through this voice channel.</translation>
    </message>
    <message>
        <source>The operation succeeded.</source>
        <translation>The operation succeeded.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding is not supported for broadcasts.</source>
        <translation>The device&apos;s audio encoding is not supported for broadcasts.</translation>
    </message>
    <message>
        <source>Error %1 (%2)</source>
        <translation>Error %1 (%2)</translation>
    </message>
</context>
</TS>
