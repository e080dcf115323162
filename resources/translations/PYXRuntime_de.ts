<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PYXRuntime::KeychainEncryptionProvider</name>
    <message>
        <source>System Keychain</source>
        <translation>Schlüsselbund des Systems</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::KeychainEntry</name>
    <message>
        <source>It has not answered in time.</source>
        <translation>Er hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The system&apos;s secret store cannot be used: %1</source>
        <translation>Der Schlüsselbund des Systems kann nicht verwendet werden: %1</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::KeychainVault</name>
    <message>
        <source>Another program is holding the key in the system&apos;s secret store.</source>
        <translation>Ein anderes Programm verwendet gerade den Schlüssel im Schlüsselbund des Systems.</translation>
    </message>
    <message>
        <source>The key in the system&apos;s secret store is damaged.</source>
        <translation>Der Schlüssel im Schlüsselbund des Systems ist beschädigt.</translation>
    </message>
    <message>
        <source>The encryption library does not work on this system.</source>
        <translation>Die Verschlüsselungsbibliothek funktioniert auf diesem System nicht.</translation>
    </message>
    <message>
        <source>This program was built without the system&apos;s secret store.</source>
        <translation>Dieses Programm wurde ohne Unterstützung für den Schlüsselbund des Systems erstellt.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NewIntegrationVersionChecker</name>
    <message>
        <source>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Current version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Latest version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Location: %3&lt;/HTML&gt;</source>
        <translation>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Installierte Version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Neueste Version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Ort: %3&lt;/HTML&gt;</translation>
    </message>
    <message>
        <source>%1 - Newer Version Found</source>
        <translation>%1 – Neuere Version gefunden</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Ignore Version</source>
        <translation>Version ignorieren</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NullEncryptionProvider</name>
    <message>
        <source>Null Encryption Provider</source>
        <translation>Null-Verschlüsselung (keine)</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAddressEdit</name>
    <message>
        <source>Replace by Address from Clipboard</source>
        <translation>Durch Adresse aus der Zwischenablage ersetzen</translation>
    </message>
    <message>
        <source>IPv4 address: four numbers from 0 to 255 with points between</source>
        <translation>IPv4-Adresse: vier Zahlen von 0 bis 255, durch Punkte getrennt</translation>
    </message>
    <message>
        <source>IPv6 address: eight groups of up to four hexadecimal digits with colons between; &quot;::&quot; stands for groups of zeros</source>
        <translation>IPv6-Adresse: acht Gruppen von bis zu vier Hexadezimalziffern, durch Doppelpunkte getrennt; „::“ steht für Gruppen aus Nullen</translation>
    </message>
    <message>
        <source>IPv4 or IPv6 address, such as 192.168.1.10 or fd00::10</source>
        <translation>IPv4- oder IPv6-Adresse, z. B. 192.168.1.10 oder fd00::10</translation>
    </message>
    <message>
        <source>Not a complete address</source>
        <translation>Keine vollständige Adresse</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAppInternalsImpl</name>
    <message>
        <source>Application is running in DEBUG MODE</source>
        <translation>Die Anwendung läuft im DEBUG-MODUS</translation>
    </message>
    <message>
        <source>Application is running in EXPERT MODE</source>
        <translation>Die Anwendung läuft im EXPERTENMODUS</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAppInternalsImpl_private</name>
    <message>
        <source>++debug mode activated</source>
        <translation>++Debug-Modus eingeschaltet</translation>
    </message>
    <message>
        <source>++debug mode deactivated</source>
        <translation>++Debug-Modus ausgeschaltet</translation>
    </message>
    <message>
        <source>++expert mode activated</source>
        <translation>++Expertenmodus eingeschaltet</translation>
    </message>
    <message>
        <source>++expert mode deactivated</source>
        <translation>++Expertenmodus ausgeschaltet</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXBroker</name>
    <message>
        <source>&lt;undeclared interface&gt;</source>
        <translation>&lt;nicht deklarierte Schnittstelle&gt;</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXCountingFileSet</name>
    <message numerus="yes">
        <source>%n byte(s) could not be written.</source>
        <translation>
            <numerusform>%n Byte konnte nicht geschrieben werden.</numerusform>
            <numerusform>%n Bytes konnten nicht geschrieben werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>Die Datei ist nicht mehr vorhanden.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXFileFilter</name>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXNotification</name>
    <message>
        <source>Ask this question again</source>
        <translation>Diese Frage wieder stellen</translation>
    </message>
    <message>
        <source>Show this message again</source>
        <translation>Diese Meldung wieder anzeigen</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSettingsTransfer</name>
    <message>
        <source>The settings cannot be written to &quot;%1&quot;: %2</source>
        <translation>Die Einstellungen können nicht in „%1“ geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no settings file, or is damaged.</source>
        <translation>„%1“ ist keine Einstellungsdatei oder ist beschädigt.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; cannot be written.</source>
        <translation>Die Einstellungsdatei „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSingleInstance</name>
    <message>
        <source>Another user&apos;s program stands in for this application.</source>
        <translation>Das Programm eines anderen Benutzers gibt sich als diese Anwendung aus.</translation>
    </message>
    <message>
        <source>Other instances cannot be listened to: %1</source>
        <translation>Andere Instanzen können nicht gehört werden: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be locked.</source>
        <translation>Die Datei „%1“ kann nicht gesperrt werden.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; is too long for a socket.</source>
        <translation>Der Pfad „%1“ ist zu lang für einen Socket.</translation>
    </message>
    <message>
        <source>The running instance does not accept the arguments.</source>
        <translation>Die laufende Instanz nimmt die Argumente nicht an.</translation>
    </message>
    <message>
        <source>The running instance does not answer.</source>
        <translation>Die laufende Instanz antwortet nicht.</translation>
    </message>
    <message>
        <source>There are too many arguments.</source>
        <translation>Es sind zu viele Argumente.</translation>
    </message>
    <message>
        <source>There is no directory for what only lasts as long as the session.</source>
        <translation>Es gibt kein Verzeichnis für das, was nur so lange besteht wie die Sitzung.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXStatusHash</name>
    <message>
        <source>Invalid Xml</source>
        <translation>Ungültiges XML</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::ProxyConfiguration</name>
    <message>
        <source>Proxy Configuration: restore failed</source>
        <translation>Proxy-Konfiguration: Wiederherstellung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Proxy Configuration: password was encrypted with different encryption and might not decrypt properly</source>
        <translation>Proxy-Konfiguration: Das Passwort wurde mit einem anderen Verfahren verschlüsselt und lässt sich möglicherweise nicht richtig entschlüsseln</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SimpleEncryptionProvider</name>
    <message>
        <source>Simple Encryption Provider</source>
        <extracomment>It does not protect anything, it only obfuscates; the translation must not promise more.</extracomment>
        <translation>Einfache Verschleierung</translation>
    </message>
</context>
<context>
    <name>PYXStrings</name>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Centre frequency</source>
        <translation>Mittenfrequenz</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Signal-to-noise ratio</source>
        <translation>Signal-Rausch-Verhältnis</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation>Modulation</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>PYXTransConnectorImpl</name>
    <message>
        <source>English</source>
        <comment>Please enter the language for which you are doing the translations.</comment>
        <translation>Deutsch</translation>
    </message>
</context>
</TS>
