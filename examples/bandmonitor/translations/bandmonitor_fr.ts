<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BandMonitor::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Shows the signals in a recording, or in a band of its own.</source>
        <translation>Affiche les signaux d’un enregistrement ou d’une bande interne.</translation>
    </message>
    <message>
        <source>Settings, portable:
%1

Qt %2</source>
        <translation>Paramètres, mode portable&#xa0;:
%1

Qt %2</translation>
    </message>
    <message>
        <source>Settings:
%1

Qt %2</source>
        <translation>Paramètres&#xa0;:
%1

Qt %2</translation>
    </message>
</context>
<context>
    <name>BandMonitor::BandGenerator</name>
    <message>
        <source>Own band</source>
        <translation>Bande interne</translation>
    </message>
    <message>
        <source>generated</source>
        <translation>synthétique</translation>
    </message>
</context>
<context>
    <name>BandMonitor::CommandLine</name>
    <message>
        <source>Shows the signals in a recording, or in a band of its own.

++expert and ++debug switch modes on, --expert and --debug switch them off.</source>
        <translation>Affiche les signaux d’un enregistrement ou d’une bande interne.

++expert et ++debug activent des modes, --expert et --debug les désactivent.</translation>
    </message>
    <message>
        <source>WAV file: one channel of real samples, or two of I/Q.</source>
        <translation>Fichier WAV&#xa0;: un canal d’échantillons réels ou deux canaux I/Q.</translation>
    </message>
    <message>
        <source>Print the detected signals instead of showing a window.</source>
        <translation>Afficher les signaux détectés dans le terminal, sans fenêtre.</translation>
    </message>
    <message>
        <source>Process everything, save a picture of the window, and end.</source>
        <translation>Tout traiter, enregistrer une image de la fenêtre et quitter.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Taille de la fenêtre.</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>LARGEURxHAUTEUR</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>Utiliser des couleurs sombres.</translation>
    </message>
    <message>
        <source>Language of the texts: en, de or fr.</source>
        <translation>Langue des textes&#xa0;: en, de ou fr.</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>LANGUE</translation>
    </message>
    <message>
        <source>Keep settings beside the program, not in the user&apos;s directories.</source>
        <translation>Conserver les paramètres à côté du programme et non dans les dossiers de l’utilisateur.</translation>
    </message>
    <message>
        <source>Open a window of its own, even if one is open that could show this.</source>
        <translation>Ouvrir une nouvelle fenêtre même si une autre est déjà ouverte.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DetectionDock</name>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Detected signals</source>
        <translation>Signaux détectés</translation>
    </message>
    <message>
        <source>No signals have been found yet.</source>
        <translation>Aucun signal n’a encore été détecté.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DetectionModel</name>
    <message>
        <source>On air</source>
        <translation>En émission</translation>
    </message>
    <message>
        <source>Off air since %1</source>
        <translation>Hors émission depuis %1</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Largeur de bande</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>First seen</source>
        <translation>Première détection</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Dernière détection</translation>
    </message>
</context>
<context>
    <name>BandMonitor::DeveloperDocks</name>
    <message>
        <source>Runtime Scopes</source>
        <translation>Domaines d’exécution</translation>
    </message>
    <message>
        <source>Broker</source>
        <translation>Courtier</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FetchDialog</name>
    <message>
        <source>Open URL</source>
        <translation>Ouvrir une URL</translation>
    </message>
    <message>
        <source>Fetching %1</source>
        <translation>Téléchargement de %1</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileCommands</name>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Comma-separated tables</source>
        <translation>Tableaux séparés par des virgules</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Ouvrir un enregistrement</translation>
    </message>
    <message>
        <source>Open URL</source>
        <translation>Ouvrir une URL</translation>
    </message>
    <message>
        <source>Address of the recording:</source>
        <translation>Adresse de l’enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>This recording cannot be fetched.</source>
        <translation>Cet enregistrement ne peut pas être téléchargé.</translation>
    </message>
    <message>
        <source>Save Signals</source>
        <translation>Enregistrer les signaux</translation>
    </message>
    <message>
        <source>The signals cannot be saved.</source>
        <translation>Les signaux ne peuvent pas être enregistrés.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileDock</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Written files</source>
        <translation>Fichiers écrits</translation>
    </message>
    <message>
        <source>Open F&amp;ile</source>
        <translation>Ouvrir le fic&amp;hier</translation>
    </message>
    <message>
        <source>Open F&amp;older</source>
        <translation>Ouvrir le d&amp;ossier</translation>
    </message>
    <message>
        <source>No files have been written yet.</source>
        <translation>Aucun fichier n’a encore été écrit.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::FileModel</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Detections</source>
        <translation>Détections</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Extraits</translation>
    </message>
</context>
<context>
    <name>BandMonitor::HeadlessRun</name>
    <message>
        <source>%1 (%2, %3), signals: %4</source>
        <translation>%1 (%2, %3), signaux&#xa0;: %4</translation>
    </message>
</context>
<context>
    <name>BandMonitor::LogDock</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Messages du journal</translation>
    </message>
</context>
<context>
    <name>BandMonitor::MainActions</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;URL...</source>
        <translation>Ouvrir une &amp;URL...</translation>
    </message>
    <message>
        <source>Own &amp;Band</source>
        <translation>&amp;Bande interne</translation>
    </message>
    <message>
        <source>&amp;Save Signals...</source>
        <translation>&amp;Enregistrer les signaux...</translation>
    </message>
    <message>
        <source>Se&amp;ttings...</source>
        <translation>&amp;Paramètres...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Record Detections</source>
        <translation>&amp;Enregistrer les détections</translation>
    </message>
    <message>
        <source>&amp;Detector...</source>
        <translation>&amp;Détecteur...</translation>
    </message>
    <message>
        <source>Whole &amp;Band</source>
        <translation>&amp;Bande entière</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>Couleurs &amp;sombres</translation>
    </message>
    <message>
        <source>&amp;Announce New Signals</source>
        <translation>&amp;Annoncer les nouveaux signaux</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
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
        <translation> [expert]</translation>
    </message>
    <message>
        <source> [debug]</source>
        <translation> [débogage]</translation>
    </message>
    <message>
        <source>Detections are being recorded. Stop that and quit?</source>
        <translation>Des détections sont en cours d’enregistrement. Arrêter et quitter&#x202f;?</translation>
    </message>
    <message>
        <source>This recording cannot be opened.</source>
        <translation>Cet enregistrement ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Detections cannot be recorded.</source>
        <translation>Les détections ne peuvent pas être enregistrées.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::PeerModel</name>
    <message>
        <source>Default peer</source>
        <translation>Correspondant par défaut</translation>
    </message>
    <message>
        <source>on air</source>
        <translation>en émission</translation>
    </message>
    <message>
        <source>Peer</source>
        <translation>Correspondant</translation>
    </message>
    <message>
        <source>Address and port</source>
        <translation>Adresse et port</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>BandMonitor::PoolDock</name>
    <message>
        <source>Sample Buffers</source>
        <translation>Tampons d’échantillons</translation>
    </message>
    <message>
        <source>In use: %1, free: %2</source>
        <translation>Utilisés&#xa0;: %1, libres&#xa0;: %2</translation>
    </message>
    <message>
        <source>Memory: %1, at most %2</source>
        <translation>Mémoire&#xa0;: %1, maximum %2</translation>
    </message>
    <message>
        <source>Reused: %1, made: %2</source>
        <translation>Réutilisés&#xa0;: %1, créés&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>BandMonitor::RecordingFetcher</name>
    <message>
        <source>The connection was closed before the end of the file.</source>
        <translation>La connexion a été fermée avant la fin du fichier.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::SHW_Detector_Parameters</name>
    <message>
        <source>Detector</source>
        <translation>Détecteur</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>&amp;Threshold above the noise:</source>
        <translation>&amp;Seuil au-dessus du bruit&#xa0;:</translation>
    </message>
    <message>
        <source>A signal is found when it stands so far out of the noise.</source>
        <translation>Un signal est détecté lorsqu’il dépasse le bruit de cette valeur.</translation>
    </message>
    <message>
        <source>&amp;Hysteresis:</source>
        <translation>&amp;Hystérésis&#xa0;:</translation>
    </message>
    <message>
        <source>A signal is lost when it has fallen so far below the threshold.</source>
        <translation>Un signal est perdu lorsqu’il est descendu de cette valeur sous le seuil.</translation>
    </message>
    <message>
        <source>&amp;Gaps within a signal up to:</source>
        <translation>&amp;Trous dans un signal jusqu’à&#xa0;:</translation>
    </message>
    <message>
        <source>Parts that are no farther apart make one signal.</source>
        <translation>Les parties qui ne sont pas plus éloignées forment un seul signal.</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source> bins</source>
        <translation> raies</translation>
    </message>
</context>
<context>
    <name>BandMonitor::SHW_Display_Window</name>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>&amp;Couleurs sombres</translation>
    </message>
    <message>
        <source>Light text on dark ground, for rooms with little light</source>
        <translation>Texte clair sur fond sombre, pour les pièces peu éclairées</translation>
    </message>
    <message>
        <source>A&amp;nnounce new signals</source>
        <translation>A&amp;nnoncer les nouveaux signaux</translation>
    </message>
    <message>
        <source>A pop-up tells the frequencies of signals that have just been found</source>
        <translation>Une notification indique les fréquences des signaux qui viennent d’être détectés</translation>
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
        <translation>Nouveaux signaux à %1 et %2 autres</translation>
    </message>
    <message>
        <source>New signals at %1</source>
        <translation>Nouveaux signaux à %1</translation>
    </message>
    <message>
        <source>New signal at %1</source>
        <translation>Nouveau signal à %1</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StateBar</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Noise %1</source>
        <translation>Bruit %1</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StationDock</name>
    <message>
        <source>Stations</source>
        <translation>Stations</translation>
    </message>
    <message>
        <source>Stations on air</source>
        <translation>Stations en émission</translation>
    </message>
    <message>
        <source>Peers</source>
        <translation>Correspondants</translation>
    </message>
    <message>
        <source>&amp;Keep as Peer</source>
        <translation>&amp;Conserver</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Port %1 cannot be listened on: no stations will be shown.</source>
        <translation>Impossible d’écouter sur le port %1&#xa0;: aucune station ne sera affichée.</translation>
    </message>
    <message>
        <source>New peer</source>
        <translation>Nouveau correspondant</translation>
    </message>
    <message>
        <source>No other Band Monitor has been heard yet.</source>
        <translation>Aucun autre Band Monitor n’a encore été entendu.</translation>
    </message>
    <message>
        <source>There are no peers yet: keep a station, or add one.</source>
        <translation>Il n’y a pas encore de correspondants&#xa0;: gardez une station ou ajoutez-en un.</translation>
    </message>
</context>
<context>
    <name>BandMonitor::StationModel</name>
    <message>
        <source>%1 s ago</source>
        <translation>il y a %1 s</translation>
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
        <translation>Reçue</translation>
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
        <translation>%1 réel, %2</translation>
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
        <translation>n’a pas de bloc de format</translation>
    </message>
    <message>
        <source>has no data chunk</source>
        <translation>n’a pas de bloc de données</translation>
    </message>
    <message>
        <source>ends inside its chunk &quot;%1&quot;, before any samples</source>
        <translation>se termine dans le bloc «&#xa0;%1&#xa0;», avant tout échantillon</translation>
    </message>
    <message>
        <source>has more than %1 chunks before its samples</source>
        <translation>a plus de %1 blocs avant ses échantillons</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is a big-endian WAV file, which is not supported</source>
        <translation>est un fichier WAV gros-boutiste, qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>is not a WAV file</source>
        <translation>n’est pas un fichier WAV</translation>
    </message>
    <message>
        <source>is cut off within its first %1 bytes</source>
        <translation>est tronqué dans ses %1 premiers octets</translation>
    </message>
    <message>
        <source>is a RIFF file of type &quot;%1&quot;, not a WAV file</source>
        <translation>est un fichier RIFF de type «&#xa0;%1&#xa0;», pas un fichier WAV</translation>
    </message>
    <message>
        <source>has a format chunk of only %1 bytes</source>
        <translation>a un bloc de format de seulement %1 octets</translation>
    </message>
    <message>
        <source>has an extensible format chunk of only %1 bytes</source>
        <translation>a un bloc de format étendu de seulement %1 octets</translation>
    </message>
    <message>
        <source>has samples in an unknown coding</source>
        <translation>contient des échantillons dans un codage inconnu</translation>
    </message>
    <message>
        <source>is compressed (%1); only PCM and float samples can be read</source>
        <translation>est compressé (%1)&#x202f;; seuls les échantillons PCM et flottants peuvent être lus</translation>
    </message>
    <message>
        <source>has %1 channels; it takes one (real) or two (I/Q)</source>
        <translation>a %1 canaux&#x202f;; il en faut un (réel) ou deux (I/Q)</translation>
    </message>
    <message>
        <source>claims a sample rate of zero</source>
        <translation>indique une fréquence d’échantillonnage nulle</translation>
    </message>
    <message>
        <source>has float samples of %1 bits</source>
        <translation>contient des échantillons flottants de %1 bits</translation>
    </message>
    <message>
        <source>has PCM samples of %1 bits</source>
        <translation>contient des échantillons PCM de %1 bits</translation>
    </message>
    <message>
        <source>claims %1 bytes for samples that take %2</source>
        <translation>indique %1 octets pour des échantillons qui en occupent %2</translation>
    </message>
    <message>
        <source>has no format chunk before its samples</source>
        <translation>n’a pas de bloc de format avant ses échantillons</translation>
    </message>
    <message>
        <source>holds no samples</source>
        <translation>ne contient aucun échantillon</translation>
    </message>
</context>
<context>
    <name>BandMonitor::WavReader</name>
    <message>
        <source>&quot;%1&quot; ends before its header says, %2 samples are left</source>
        <translation>«&#xa0;%1&#xa0;» se termine plus tôt que ne l’indique son en-tête, il reste %2 échantillons</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2.</source>
        <translation>«&#xa0;%1&#xa0;» %2.</translation>
    </message>
    <message>
        <source>%1 bit float</source>
        <translation>flottants %1 bits</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 bits</translation>
    </message>
</context>
<context>
    <name>BandMonitor::main</name>
    <message>
        <source>Trace</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>bandmonitor: No trace file can be written: %1
</source>
        <translation>bandmonitor&#xa0;: impossible d’écrire un fichier journal&#xa0;: %1
</translation>
    </message>
    <message>
        <source>bandmonitor: The picture &quot;%1&quot; cannot be written.
</source>
        <translation>bandmonitor&#xa0;: impossible d’écrire l’image «&#xa0;%1&#xa0;».
</translation>
    </message>
    <message>
        <source>%1 is running already, but cannot be reached. This is a window of its own.</source>
        <translation>%1 est déjà en cours d’exécution, mais ne répond pas. Cette fenêtre est indépendante.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::RuntimeScopes</name>
    <message>
        <source>State of the signal detector, once a second</source>
        <translation>État du détecteur de signaux, une fois par seconde</translation>
    </message>
</context>
</TS>
