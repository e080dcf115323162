<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BandMonitor::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Shows the signals in a recording, or in a band of its own.</source>
        <translation>Zeigt die Signale in einer Aufnahme oder in einem eigenen Band.</translation>
    </message>
    <message>
        <source>Settings, portable:
%1

Qt %2</source>
        <translation>Einstellungen, portabel:
%1

Qt %2</translation>
    </message>
    <message>
        <source>Settings:
%1

Qt %2</source>
        <translation>Einstellungen:
%1

Qt %2</translation>
    </message>
</context>
<context>
    <name>BandMonitor::BandGenerator</name>
    <message>
        <source>Own band</source>
        <translation>Eigenes Band</translation>
    </message>
    <message>
        <source>generated</source>
        <translation>erzeugt</translation>
    </message>
</context>
<context>
    <name>BandMonitor::CommandLine</name>
    <message>
        <source>Shows the signals in a recording, or in a band of its own.

++expert and ++debug switch modes on, --expert and --debug switch them off.</source>
        <translation>Zeigt die Signale in einer Aufnahme oder in einem eigenen Band.

++expert und ++debug schalten Modi ein, --expert und --debug schalten sie aus.</translation>
    </message>
    <message>
        <source>WAV file: one channel of real samples, or two of I/Q.</source>
        <translation>WAV-Datei: ein Kanal mit reellen Abtastwerten oder zwei mit I/Q.</translation>
    </message>
    <message>
        <source>Print the detected signals instead of showing a window.</source>
        <translation>Die erkannten Signale ausgeben, statt ein Fenster zu zeigen.</translation>
    </message>
    <message>
        <source>Process everything, save a picture of the window, and end.</source>
        <translation>Alles verarbeiten, ein Bild des Fensters speichern und beenden.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Größe des Fensters.</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>BREITExHÖHE</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>Dunkle Farben verwenden.</translation>
    </message>
    <message>
        <source>Language of the texts: en, de or fr.</source>
        <translation>Sprache der Texte: en, de oder fr.</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>SPRACHE</translation>
    </message>
    <message>
        <source>Keep settings beside the program, not in the user&apos;s directories.</source>
        <translation>Einstellungen neben dem Programm ablegen, nicht in den Verzeichnissen des Benutzers.</translation>
    </message>
    <message>
        <source>Open a window of its own, even if one is open that could show this.</source>
        <translation>Ein eigenes Fenster öffnen, auch wenn schon eines offen ist.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DetectionDock</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Detected signals</source>
        <translation>Erkannte Signale</translation>
    </message>
    <message>
        <source>No signals have been found yet.</source>
        <translation>Es wurden noch keine Signale gefunden.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DetectionModel</name>
    <message>
        <source>On air</source>
        <translation>Auf Sendung</translation>
    </message>
    <message>
        <source>Off air since %1</source>
        <translation>Seit %1 nicht mehr auf Sendung</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>First seen</source>
        <translation>Zuerst gesehen</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Zuletzt gesehen</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DeveloperDocks</name>
    <message>
        <source>Runtime Scopes</source>
        <translation>Laufzeitbereiche</translation>
    </message>
    <message>
        <source>Broker</source>
        <translation>Vermittler</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FetchDialog</name>
    <message>
        <source>Open URL</source>
        <translation>URL öffnen</translation>
    </message>
    <message>
        <source>Fetching %1</source>
        <translation>%1 wird abgerufen</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileCommands</name>
    <message>
        <source>Recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Comma-separated tables</source>
        <translation>Tabellen mit Trennzeichen</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Aufnahme öffnen</translation>
    </message>
    <message>
        <source>Open URL</source>
        <translation>URL öffnen</translation>
    </message>
    <message>
        <source>Address of the recording:</source>
        <translation>Adresse der Aufnahme:</translation>
    </message>
    <message>
        <source>This recording cannot be fetched.</source>
        <translation>Diese Aufnahme kann nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Save Signals</source>
        <translation>Signale speichern</translation>
    </message>
    <message>
        <source>The signals cannot be saved.</source>
        <translation>Die Signale können nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileDock</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Written files</source>
        <translation>Geschriebene Dateien</translation>
    </message>
    <message>
        <source>Open F&amp;ile</source>
        <translation>Date&amp;i öffnen</translation>
    </message>
    <message>
        <source>Open F&amp;older</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>No files have been written yet.</source>
        <translation>Es wurden noch keine Dateien geschrieben.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileModel</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Detections</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Ausschnitte</translation>
    </message>
</context>
<context>
    <name>BandMonitor::HeadlessRun</name>
    <message>
        <source>%1 (%2, %3), signals: %4</source>
        <translation>%1 (%2, %3), Signale: %4</translation>
    </message>
</context>
<context>
    <name>BandMonitor::LogDock</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Protokollmeldungen</translation>
    </message>
</context>
<context>
    <name>BandMonitor::MainActions</name>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Open &amp;URL...</source>
        <translation>&amp;URL öffnen ...</translation>
    </message>
    <message>
        <source>Own &amp;Band</source>
        <translation>Eigenes &amp;Band</translation>
    </message>
    <message>
        <source>&amp;Save Signals...</source>
        <translation>Signale &amp;speichern ...</translation>
    </message>
    <message>
        <source>Se&amp;ttings...</source>
        <translation>&amp;Einstellungen ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Been&amp;den</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Record Detections</source>
        <translation>Signale auf&amp;zeichnen</translation>
    </message>
    <message>
        <source>&amp;Detector...</source>
        <translation>&amp;Detektor ...</translation>
    </message>
    <message>
        <source>Whole &amp;Band</source>
        <translation>Ganzes &amp;Band</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>&amp;Announce New Signals</source>
        <translation>&amp;Neue Signale melden</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>Ü&amp;ber %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
</context>
<context>
    <name>BandMonitor::MainWindow</name>
    <message>
        <source> [expert]</source>
        <translation> [Experte]</translation>
    </message>
    <message>
        <source> [debug]</source>
        <translation> [Debug]</translation>
    </message>
    <message>
        <source>Detections are being recorded. Stop that and quit?</source>
        <translation>Es werden Signale aufgezeichnet. Aufzeichnung anhalten und beenden?</translation>
    </message>
    <message>
        <source>This recording cannot be opened.</source>
        <translation>Diese Aufnahme kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Detections cannot be recorded.</source>
        <translation>Die Signale können nicht aufgezeichnet werden.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::PeerModel</name>
    <message>
        <source>Default peer</source>
        <translation>Standard-Gegenstelle</translation>
    </message>
    <message>
        <source>on air</source>
        <translation>auf Sendung</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Gegenstelle</translation>
    </message>
    <message>
        <source>Address and port</source>
        <translation>Adresse und Port</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>BandMonitor::PoolDock</name>
    <message>
        <source>Sample Buffers</source>
        <translation>Abtastpuffer</translation>
    </message>
    <message>
        <source>In use: %1, free: %2</source>
        <translation>Belegt: %1, frei: %2</translation>
    </message>
    <message>
        <source>Memory: %1, at most %2</source>
        <translation>Speicher: %1, höchstens %2</translation>
    </message>
    <message>
        <source>Reused: %1, made: %2</source>
        <translation>Wiederverwendet: %1, angelegt: %2</translation>
    </message>
</context>
<context>
    <name>BandMonitor::RecordingFetcher</name>
    <message>
        <source>The connection was closed before the end of the file.</source>
        <translation>Die Verbindung wurde vor dem Ende der Datei geschlossen.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::SHW_Detector_Parameters</name>
    <message>
        <source>Detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>&amp;Threshold above the noise:</source>
        <translation>&amp;Schwelle über dem Rauschen:</translation>
    </message>
    <message>
        <source>A signal is found when it stands so far out of the noise.</source>
        <translation>Ein Signal wird erkannt, wenn es so weit aus dem Rauschen herausragt.</translation>
    </message>
    <message>
        <source>&amp;Hysteresis:</source>
        <translation>&amp;Hysterese:</translation>
    </message>
    <message>
        <source>A signal is lost when it has fallen so far below the threshold.</source>
        <translation>Ein Signal gilt als beendet, wenn es so weit unter die Schwelle gefallen ist.</translation>
    </message>
    <message>
        <source>&amp;Gaps within a signal up to:</source>
        <translation>&amp;Lücken innerhalb eines Signals bis:</translation>
    </message>
    <message>
        <source>Parts that are no farther apart make one signal.</source>
        <translation>Teile, die nicht weiter auseinanderliegen, bilden ein Signal.</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source> bins</source>
        <translation> Linien</translation>
    </message>
</context>
<context>
    <name>BandMonitor::SHW_Display_Window</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>Light text on dark ground, for rooms with little light</source>
        <translation>Heller Text auf dunklem Grund, für Räume mit wenig Licht</translation>
    </message>
    <message>
        <source>A&amp;nnounce new signals</source>
        <translation>&amp;Neue Signale melden</translation>
    </message>
    <message>
        <source>A pop-up tells the frequencies of signals that have just been found</source>
        <translation>Eine Einblendung nennt die Frequenzen soeben erkannter Signale</translation>
    </message>
</context>
<context>
    <name>BandMonitor::SignalPopups</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>New signals at %1 and %2 more</source>
        <translation>Neue Signale bei %1 und %2 weitere</translation>
    </message>
    <message>
        <source>New signals at %1</source>
        <translation>Neue Signale bei %1</translation>
    </message>
    <message>
        <source>New signal at %1</source>
        <translation>Neues Signal bei %1</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StateBar</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Noise %1</source>
        <translation>Rauschen %1</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StationDock</name>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
    <message>
        <source>Stations on air</source>
        <translation>Stationen auf Sendung</translation>
    </message>
    <message>
        <source>Peers</source>
        <translation>Gegenstellen</translation>
    </message>
    <message>
        <source>&amp;Keep as Peer</source>
        <translation>Gegenstelle &amp;merken</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Port %1 cannot be listened on: no stations will be shown.</source>
        <translation>Auf Port %1 kann nicht empfangen werden: Es werden keine Stationen angezeigt.</translation>
    </message>
    <message>
        <source>New peer</source>
        <translation>Neue Gegenstelle</translation>
    </message>
    <message>
        <source>No other Band Monitor has been heard yet.</source>
        <translation>Es wurde noch kein anderer Band Monitor gehört.</translation>
    </message>
    <message>
        <source>There are no peers yet: keep a station, or add one.</source>
        <translation>Es gibt noch keine Gegenstellen: eine Station merken oder eine hinzufügen.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StationModel</name>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Heard</source>
        <translation>Gehört</translation>
    </message>
</context>
<context>
    <name>BandMonitor::Units</name>
    <message>
        <source>%1 I/Q, %2</source>
        <translation>%1 I/Q, %2</translation>
    </message>
    <message>
        <source>%1 real, %2</source>
        <translation>%1 reell, %2</translation>
    </message>
</context>
<context>
    <name>BandMonitor::WaterfallView</name>
    <message>
        <source>min:s</source>
        <translation>min:s</translation>
    </message>
</context>
<context>
    <name>BandMonitor::WavHeader</name>
    <message>
        <source>has no format chunk</source>
        <translation>hat keinen Formatabschnitt</translation>
    </message>
    <message>
        <source>has no data chunk</source>
        <translation>hat keinen Datenabschnitt</translation>
    </message>
    <message>
        <source>ends inside its chunk &quot;%1&quot;, before any samples</source>
        <translation>endet im Abschnitt „%1“, vor allen Abtastwerten</translation>
    </message>
    <message>
        <source>has more than %1 chunks before its samples</source>
        <translation>hat mehr als %1 Abschnitte vor den Abtastwerten</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is a big-endian WAV file, which is not supported</source>
        <translation>ist eine Big-Endian-WAV-Datei, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>is not a WAV file</source>
        <translation>ist keine WAV-Datei</translation>
    </message>
    <message>
        <source>is cut off within its first %1 bytes</source>
        <translation>bricht innerhalb der ersten %1 Bytes ab</translation>
    </message>
    <message>
        <source>is a RIFF file of type &quot;%1&quot;, not a WAV file</source>
        <translation>ist eine RIFF-Datei vom Typ „%1“, keine WAV-Datei</translation>
    </message>
    <message>
        <source>has a format chunk of only %1 bytes</source>
        <translation>hat einen Formatabschnitt von nur %1 Bytes</translation>
    </message>
    <message>
        <source>has an extensible format chunk of only %1 bytes</source>
        <translation>hat einen erweiterten Formatabschnitt von nur %1 Bytes</translation>
    </message>
    <message>
        <source>has samples in an unknown coding</source>
        <translation>hat Abtastwerte in einer unbekannten Codierung</translation>
    </message>
    <message>
        <source>is compressed (%1); only PCM and float samples can be read</source>
        <translation>ist komprimiert (%1); nur PCM- und Gleitkommawerte können gelesen werden</translation>
    </message>
    <message>
        <source>has %1 channels; it takes one (real) or two (I/Q)</source>
        <translation>hat %1 Kanäle; nötig sind einer (reell) oder zwei (I/Q)</translation>
    </message>
    <message>
        <source>claims a sample rate of zero</source>
        <translation>gibt eine Abtastrate von null an</translation>
    </message>
    <message>
        <source>has float samples of %1 bits</source>
        <translation>hat Gleitkommawerte mit %1 Bit</translation>
    </message>
    <message>
        <source>has PCM samples of %1 bits</source>
        <translation>hat PCM-Werte mit %1 Bit</translation>
    </message>
    <message>
        <source>claims %1 bytes for samples that take %2</source>
        <translation>gibt %1 Bytes für Abtastwerte an, die %2 belegen</translation>
    </message>
    <message>
        <source>has no format chunk before its samples</source>
        <translation>hat keinen Formatabschnitt vor den Abtastwerten</translation>
    </message>
    <message>
        <source>holds no samples</source>
        <translation>enthält keine Abtastwerte</translation>
    </message>
</context>
<context>
    <name>BandMonitor::WavReader</name>
    <message>
        <source>&quot;%1&quot; ends before its header says, %2 samples are left</source>
        <translation>„%1“ endet früher, als der Dateikopf angibt, %2 Abtastwerte sind vorhanden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>„%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2.</source>
        <translation>„%1“ %2.</translation>
    </message>
    <message>
        <source>%1 bit float</source>
        <translation>%1 Bit Gleitkomma</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
</context>
<context>
    <name>BandMonitor::main</name>
    <message>
        <source>Trace</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>bandmonitor: No trace file can be written: %1
</source>
        <translation>bandmonitor: Es kann keine Protokolldatei geschrieben werden: %1
</translation>
    </message>
    <message>
        <source>bandmonitor: The picture &quot;%1&quot; cannot be written.
</source>
        <translation>bandmonitor: Das Bild „%1“ kann nicht geschrieben werden.
</translation>
    </message>
    <message>
        <source>%1 is running already, but cannot be reached. This is a window of its own.</source>
        <translation>%1 läuft bereits, ist aber nicht erreichbar. Dies ist ein eigenes Fenster.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::RuntimeScopes</name>
    <message>
        <source>State of the signal detector, once a second</source>
        <translation>Zustand des Signaldetektors, einmal in der Sekunde</translation>
    </message>
</context>
</TS>
