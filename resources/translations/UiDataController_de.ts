<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>DeviceErrors</name>
    <message>
        <source>No error has occurred.</source>
        <translation>Es ist kein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Communication with devices has not been started.</source>
        <translation>Die Kommunikation mit Geräten wurde noch nicht gestartet.</translation>
    </message>
    <message>
        <source>The request to the device is not valid.</source>
        <translation>Die Anfrage an das Gerät ist ungültig.</translation>
    </message>
    <message>
        <source>The login to the device has ended.</source>
        <translation>Die Anmeldung am Gerät ist beendet.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genügend Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
        <source>Too many devices are connected at the same time.</source>
        <translation>Es sind zu viele Geräte gleichzeitig verbunden.</translation>
    </message>
    <message>
        <source>The connection to the device was closed during the operation.</source>
        <translation>Die Verbindung zum Gerät wurde während des Vorgangs geschlossen.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is larger than expected (%1 bytes).</source>
        <translation>Die Antwort des Geräts ist größer als erwartet (%1 Byte).</translation>
    </message>
    <message>
        <source>The file of known device certificates cannot be read or written (system error %1).</source>
        <translation>Die Datei der bekannten Gerätezertifikate kann nicht gelesen oder geschrieben werden (Systemfehler %1).</translation>
    </message>
    <message>
        <source>The device&apos;s host name cannot be found. Check its address.</source>
        <translation>Der Hostname des Geräts wurde nicht gefunden. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>The device cannot be reached. Check its address, its port and the network.</source>
        <translation>Das Gerät ist nicht erreichbar. Prüfen Sie Adresse, Port und Netzwerk.</translation>
    </message>
    <message>
        <source>Connecting to the device took too long. Check whether it is switched on and its address is right.</source>
        <translation>Der Verbindungsaufbau zum Gerät hat zu lange gedauert. Prüfen Sie, ob es eingeschaltet ist und die Adresse stimmt.</translation>
    </message>
    <message>
        <source>The device did not answer in time.</source>
        <translation>Das Gerät hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>Die Verbindung zum Gerät ist abgebrochen.</translation>
    </message>
    <message>
        <source>A secure connection to the device cannot be established.</source>
        <translation>Eine sichere Verbindung zum Gerät kann nicht hergestellt werden.</translation>
    </message>
    <message>
        <source>The device&apos;s certificate has changed. It was replaced, or another device answers at its address.</source>
        <translation>Das Zertifikat des Geräts hat sich geändert. Es wurde ersetzt, oder unter der Adresse antwortet ein anderes Gerät.</translation>
    </message>
    <message>
        <source>There is no supported device at this address. Check the address and the port.</source>
        <translation>Unter dieser Adresse gibt es kein unterstütztes Gerät. Prüfen Sie Adresse und Port.</translation>
    </message>
    <message>
        <source>The device uses version %1 of the protocol, which is not supported.</source>
        <translation>Das Gerät verwendet Version %1 des Protokolls, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The device&apos;s answer is too long.</source>
        <translation>Die Antwort des Geräts ist zu lang.</translation>
    </message>
    <message>
        <source>The device&apos;s answer has an unexpected size (%1 bytes).</source>
        <translation>Die Antwort des Geräts hat eine unerwartete Größe (%1 Byte).</translation>
    </message>
    <message>
        <source>The device&apos;s answer cannot be understood.</source>
        <translation>Die Antwort des Geräts ist nicht verständlich.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Benutzername oder Passwort ist falsch.</translation>
    </message>
    <message>
        <source>The device has locked the user after too many wrong passwords. Try again later.</source>
        <translation>Das Gerät hat den Benutzer nach zu vielen falschen Passwörtern gesperrt. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The device does not allow this to the user.</source>
        <translation>Das Gerät erlaubt dies dem Benutzer nicht.</translation>
    </message>
    <message>
        <source>The device does not accept any more logins at the moment.</source>
        <translation>Das Gerät nimmt zurzeit keine weiteren Anmeldungen an.</translation>
    </message>
    <message>
        <source>The device does not support this function.</source>
        <translation>Das Gerät unterstützt diese Funktion nicht.</translation>
    </message>
    <message>
        <source>The device does not have this channel.</source>
        <translation>Das Gerät hat diesen Kanal nicht.</translation>
    </message>
    <message>
        <source>The device does not accept one of the values.</source>
        <translation>Das Gerät akzeptiert einen der Werte nicht.</translation>
    </message>
    <message>
        <source>The device is busy. Try again later.</source>
        <translation>Das Gerät ist beschäftigt. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The device reports an internal fault (module %1).</source>
        <translation>Das Gerät meldet eine interne Störung (Modul %1).</translation>
    </message>
    <message>
        <source>The device cannot save the change.</source>
        <translation>Das Gerät kann die Änderung nicht speichern.</translation>
    </message>
    <message>
        <source>No microphone or other sound input can be used.</source>
        <translation>Es kann kein Mikrofon oder anderer Toneingang verwendet werden.</translation>
    </message>
    <message>
        <source>The sound input is already being captured.</source>
        <translation>Der Toneingang wird bereits aufgenommen.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding (number %1) is not supported.</source>
        <translation>Die Audiokodierung des Geräts (Nummer %1) wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Somebody else is speaking through this voice channel.</source>
        <translation>Über diesen Sprachkanal spricht bereits jemand anderes.</translation>
    </message>
    <message>
        <source>The operation succeeded.</source>
        <translation>Der Vorgang war erfolgreich.</translation>
    </message>
    <message>
        <source>The device&apos;s audio encoding is not supported for broadcasts.</source>
        <translation>Die Audiokodierung des Geräts wird für Durchsagen nicht unterstützt.</translation>
    </message>
    <message>
        <source>Error %1 (%2)</source>
        <translation>Fehler %1 (%2)</translation>
    </message>
</context>
</TS>
