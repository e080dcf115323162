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
        <source>The key is being fetched from the system&apos;s secret store already.</source>
        <translation>Der Schlüssel wird gerade schon aus dem Schlüsselbund des Systems geholt.</translation>
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
    <name>PYXRuntime::LiveTable</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter the table</source>
        <translation>Tabelle filtern</translation>
    </message>
    <message>
        <source>Shows the rows that have this text in any column</source>
        <translation>Zeigt die Zeilen, in denen dieser Text in irgendeiner Spalte steht</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NetworkEntriesModel</name>
    <message>
        <source>The name is missing.</source>
        <translation>Der Name fehlt.</translation>
    </message>
    <message>
        <source>Another entry has this name.</source>
        <translation>Ein anderer Eintrag hat diesen Namen.</translation>
    </message>
    <message>
        <source>This is no IPv4 or IPv6 address.</source>
        <translation>Das ist keine IPv4- oder IPv6-Adresse.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Ein Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
        <source>Default</source>
        <translation>Standard</translation>
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
    <name>PYXRuntime::PYXRecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSettingsDialog</name>
    <message>
        <source>Errors in Settings</source>
        <translation>Fehler in den Einstellungen</translation>
    </message>
    <message>
        <source>There are errors in the settings</source>
        <translation>Die Einstellungen enthalten Fehler</translation>
    </message>
    <message>
        <source>The settings have been modified.</source>
        <translation>Die Einstellungen wurden geändert.</translation>
    </message>
    <message>
        <source>Do you really want to discard the changes?</source>
        <translation>Möchten Sie die Änderungen wirklich verwerfen?</translation>
    </message>
    <message>
        <source>Settings Modified</source>
        <translation>Einstellungen geändert</translation>
    </message>
    <message>
        <source>PYX Settings</source>
        <translation>PYX-Einstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Shows the pages with these words in their titles, labels or tool tips</source>
        <translation>Zeigt die Seiten mit diesen Wörtern in Titel, Beschriftungen oder Hinweisen</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>No page has these words.</source>
        <translation>Keine Seite enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Apply the changes from this settings page</source>
        <translation>Die Änderungen auf dieser Einstellungsseite anwenden</translation>
    </message>
    <message>
        <source>Undo the changes on this settings page</source>
        <translation>Die Änderungen auf dieser Einstellungsseite zurücknehmen</translation>
    </message>
    <message>
        <source>Reset the settings from this page to their default values</source>
        <translation>Die Einstellungen dieser Seite auf ihre Standardwerte setzen</translation>
    </message>
    <message>
        <source>Close the dialog, applying any pending changes</source>
        <translation>Den Dialog schließen und ausstehende Änderungen anwenden</translation>
    </message>
    <message>
        <source>Close the dialog</source>
        <translation>Den Dialog schließen</translation>
    </message>
    <message>
        <source>Close the dialog, discarding any changes that have not been applied yet</source>
        <translation>Den Dialog schließen und alle noch nicht angewendeten Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Display help for the current settings page (if available)</source>
        <translation>Hilfe zu dieser Einstellungsseite anzeigen (falls vorhanden)</translation>
    </message>
    <message>
        <source>Apply the changes made on any settings page</source>
        <translation>Die Änderungen aller Einstellungsseiten anwenden</translation>
    </message>
    <message>
        <source>Restore all settings in all pages to their default values</source>
        <translation>Alle Einstellungen aller Seiten auf ihre Standardwerte setzen</translation>
    </message>
    <message>
        <source>Undo all changes made on any of the settings pages</source>
        <translation>Alle Änderungen auf allen Einstellungsseiten zurücknehmen</translation>
    </message>
    <message>
        <source>Apply this page</source>
        <translation>Diese Seite anwenden</translation>
    </message>
    <message>
        <source>Reset this page</source>
        <translation>Diese Seite zurücksetzen</translation>
    </message>
    <message>
        <source>Restore the defaults of this page</source>
        <translation>Standardwerte dieser Seite wiederherstellen</translation>
    </message>
    <message>
        <source>Apply all pages</source>
        <translation>Alle Seiten anwenden</translation>
    </message>
    <message>
        <source>Reset all pages</source>
        <translation>Alle Seiten zurücksetzen</translation>
    </message>
    <message>
        <source>Restore the defaults of all pages</source>
        <translation>Standardwerte aller Seiten wiederherstellen</translation>
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
    <name>PYXRuntime::ProxyTestDialog</name>
    <message>
        <source>&amp;Start Test</source>
        <translation>Test &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Add Site</source>
        <translation>Seite &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove Site</source>
        <translation>Seite &amp;entfernen</translation>
    </message>
    <message>
        <source>Proxy Test</source>
        <translation>Proxy-Test</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Sites and results</source>
        <translation>Seiten und Ergebnisse</translation>
    </message>
    <message>
        <source>Tries to reach these sites through the proxy of the system.</source>
        <translation>Versucht, diese Seiten über den Proxy des Systems zu erreichen.</translation>
    </message>
    <message>
        <source>Tries to reach these sites through the proxy %1, port %2.</source>
        <translation>Versucht, diese Seiten über den Proxy %1, Port %2, zu erreichen.</translation>
    </message>
    <message>
        <source>Tries to reach these sites without a proxy.</source>
        <translation>Versucht, diese Seiten ohne Proxy zu erreichen.</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Warten ...</translation>
    </message>
    <message>
        <source>The test is running.</source>
        <translation>Der Test läuft.</translation>
    </message>
    <message>
        <source>%1 of %2 sites were reached.</source>
        <translation>%1 von %2 Seiten wurden erreicht.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::ProxyTester</name>
    <message>
        <source>This is no web address.</source>
        <translation>Das ist keine Webadresse.</translation>
    </message>
    <message>
        <source>Reached in %1 ms (status %2)</source>
        <translation>In %1 ms erreicht (Status %2)</translation>
    </message>
    <message>
        <source>The proxy does not accept the user name and password.</source>
        <translation>Der Proxy akzeptiert Benutzername und Passwort nicht.</translation>
    </message>
    <message>
        <source>No answer within %1 seconds</source>
        <translation>Keine Antwort innerhalb von %1 Sekunden</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::RuntimeScopes</name>
    <message>
        <source>Application information and special directories</source>
        <translation>Anwendungsinformation und besondere Verzeichnisse</translation>
    </message>
    <message>
        <source>Name filters and places of file dialogs</source>
        <translation>Namensfilter und Orte der Dateidialoge</translation>
    </message>
    <message>
        <source>Files that counting file sets open and close</source>
        <translation>Dateien, die von zählenden Dateisätzen geöffnet und geschlossen werden</translation>
    </message>
    <message>
        <source>How often icons are asked for</source>
        <translation>Wie oft Symbole angefordert werden</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_AppMode</name>
    <message>
        <source>Application Mode</source>
        <translation>Anwendungsmodus</translation>
    </message>
    <message>
        <source>&amp;Debug mode</source>
        <translation>&amp;Debug-Modus</translation>
    </message>
    <message>
        <source>Shows what helps to find faults in the application</source>
        <translation>Zeigt, was bei der Suche nach Fehlern in der Anwendung hilft</translation>
    </message>
    <message>
        <source>&amp;Expert mode</source>
        <translation>&amp;Expertenmodus</translation>
    </message>
    <message>
        <source>Offers functions that need experience</source>
        <translation>Bietet Funktionen an, die Erfahrung verlangen</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_Broker</name>
    <message>
        <source>destroyed</source>
        <translation>zerstört</translation>
    </message>
    <message>
        <source>Broker</source>
        <translation>Vermittler</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Registrations with the broker</source>
        <translation>Anmeldungen beim Vermittler</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_RuntimeScopes</name>
    <message>
        <source>Runtime Scopes</source>
        <translation>Laufzeitbereiche</translation>
    </message>
    <message>
        <source>Changes take effect at once and last until the application ends.</source>
        <translation>Änderungen wirken sofort und bis zum Ende der Anwendung.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Zweck</translation>
    </message>
    <message>
        <source>Runtime scopes</source>
        <translation>Laufzeitbereiche</translation>
    </message>
    <message>
        <source>Copy &amp;debug messages to the trace</source>
        <translation>Deb&amp;ug-Meldungen auch in die Ablaufverfolgung schreiben</translation>
    </message>
    <message>
        <source>Otherwise they only go to the debugger or the standard error output</source>
        <translation>Sonst gehen sie nur an den Debugger oder die Standardfehlerausgabe</translation>
    </message>
    <message>
        <source>Copy &amp;warnings to the trace</source>
        <translation>Wa&amp;rnungen auch in die Ablaufverfolgung schreiben</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Language</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>The language of all texts; changes at once</source>
        <translation>Die Sprache aller Texte; wechselt sofort</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>S&amp;til:</translation>
    </message>
    <message>
        <source>How buttons, lists and other controls look</source>
        <translation>Wie Schaltflächen, Listen und andere Bedienelemente aussehen</translation>
    </message>
    <message>
        <source>As the system has it</source>
        <translation>Wie im System eingestellt</translation>
    </message>
    <message>
        <source>This language could not be loaded; the application speaks English instead.</source>
        <translation>Diese Sprache konnte nicht geladen werden; die Anwendung spricht stattdessen Englisch.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Messages</name>
    <message>
        <source>always</source>
        <translation>immer</translation>
    </message>
    <message>
        <source>this time</source>
        <translation>diesmal</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>&amp;These messages are not shown. Clear the mark of those that you want to see again.</source>
        <translation>D&amp;iese Meldungen werden nicht angezeigt. Entfernen Sie die Markierung bei denen, die Sie wieder sehen möchten.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Messages that are not shown</source>
        <translation>Meldungen, die nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Show &amp;All Again</source>
        <translation>&amp;Alle wieder anzeigen</translation>
    </message>
    <message>
        <source>Clears all marks; Apply shows the messages again</source>
        <translation>Entfernt alle Markierungen; „Anwenden“ zeigt die Meldungen wieder an</translation>
    </message>
    <message>
        <source>No messages are hidden.</source>
        <translation>Es sind keine Meldungen ausgeblendet.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Paths</name>
    <message>
        <source>Choose Directory</source>
        <translation>Verzeichnis wählen</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no complete path.</source>
        <translation>%1: „%2“ ist kein vollständiger Pfad.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is a file, not a directory.</source>
        <translation>%1: „%2“ ist eine Datei, kein Verzeichnis.</translation>
    </message>
    <message>
        <source>The directory for: %1</source>
        <translation>Das Verzeichnis für: %1</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen ...</translation>
    </message>
    <message>
        <source>Chooses the directory for: %1</source>
        <translation>Wählt das Verzeichnis für: %1</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Pfade</translation>
    </message>
    <message>
        <source>&amp;Collections:</source>
        <translation>S&amp;ammlungen:</translation>
    </message>
    <message>
        <source>&amp;Detector profiles:</source>
        <translation>&amp;Detektorprofile:</translation>
    </message>
    <message>
        <source>&amp;Scripts:</source>
        <translation>&amp;Skripte:</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Network_Entries</name>
    <message>
        <source>Network entries (*.PYXXml)</source>
        <translation>Netzwerkeinträge (*.PYXXml)</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Import Network Entries</source>
        <translation>Netzwerkeinträge importieren</translation>
    </message>
    <message>
        <source>There are no network entries in %1.</source>
        <translation>In %1 sind keine Netzwerkeinträge.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were added.</source>
        <translation>
            <numerusform>%n Eintrag wurde hinzugefügt.</numerusform>
            <numerusform>%n Einträge wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Network Entries</source>
        <translation>Netzwerkeinträge exportieren</translation>
    </message>
    <message>
        <source>The entries were written to %1.</source>
        <translation>Die Einträge wurden in %1 geschrieben.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Network entries</source>
        <translation>Netzwerkeinträge</translation>
    </message>
    <message>
        <source>Adds an entry and begins to edit it</source>
        <translation>Fügt einen Eintrag hinzu und beginnt, ihn zu bearbeiten</translation>
    </message>
    <message>
        <source>Removes the current entry</source>
        <translation>Entfernt den aktuellen Eintrag</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>Adds the entries of a file</source>
        <translation>Fügt die Einträge einer Datei hinzu</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren ...</translation>
    </message>
    <message>
        <source>Writes all entries to a file</source>
        <translation>Schreibt alle Einträge in eine Datei</translation>
    </message>
    <message>
        <source>There are no entries yet.</source>
        <translation>Es gibt noch keine Einträge.</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>E&amp;ntfernen</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Network_Proxy</name>
    <message>
        <source>The name or address of the proxy server is missing.</source>
        <translation>Name oder Adresse des Proxyservers fehlt.</translation>
    </message>
    <message>
        <source>The proxy server is to be a plain name or address, such as proxy.example.com.</source>
        <translation>Der Proxyserver ist als einfacher Name oder Adresse anzugeben, etwa proxy.example.com.</translation>
    </message>
    <message>
        <source>The user name for the proxy is missing.</source>
        <translation>Der Benutzername für den Proxy fehlt.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>&amp;No proxy</source>
        <translation>&amp;Kein Proxy</translation>
    </message>
    <message>
        <source>As the s&amp;ystem has it</source>
        <translation>Wie im S&amp;ystem eingestellt</translation>
    </message>
    <message>
        <source>&amp;This proxy:</source>
        <translation>&amp;Dieser Proxy:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>SOCKS 5</source>
        <translation>SOCKS 5</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>The protocol that the proxy speaks</source>
        <translation>Das Protokoll, das der Proxy spricht</translation>
    </message>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;ver:</translation>
    </message>
    <message>
        <source>Name or address of the proxy server</source>
        <translation>Name oder Adresse des Proxyservers</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>The port on which the proxy listens, often 8080</source>
        <translation>Der Port, auf dem der Proxy antwortet, oft 8080</translation>
    </message>
    <message>
        <source>The proxy asks for a &amp;user name</source>
        <translation>Der Proxy verlangt einen Ben&amp;utzernamen</translation>
    </message>
    <message>
        <source>Us&amp;er name:</source>
        <translation>B&amp;enutzername:</translation>
    </message>
    <message>
        <source>The name that the proxy asks for</source>
        <translation>Der Name, den der Proxy verlangt</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>Is never shown; stored by: %1</source>
        <translation>Wird nie angezeigt; gespeichert durch: %1</translation>
    </message>
    <message>
        <source>Te&amp;st...</source>
        <translation>Te&amp;sten ...</translation>
    </message>
    <message>
        <source>Tries web sites through this proxy; nothing needs to be applied before</source>
        <translation>Probiert Webseiten über diesen Proxy; vorher muss nichts angewendet werden</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SettingsPages</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
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
