<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PYXRuntime::KeychainEncryptionProvider</name>
    <message>
        <source>System Keychain</source>
        <translation>Trousseau du système</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::KeychainEntry</name>
    <message>
        <source>It has not answered in time.</source>
        <translation>Il n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The system&apos;s secret store cannot be used: %1</source>
        <translation>Le trousseau du système ne peut pas être utilisé : %1</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::KeychainVault</name>
    <message>
        <source>Another program is holding the key in the system&apos;s secret store.</source>
        <translation>Un autre programme utilise en ce moment la clé du trousseau du système.</translation>
    </message>
    <message>
        <source>The key in the system&apos;s secret store is damaged.</source>
        <translation>La clé du trousseau du système est endommagée.</translation>
    </message>
    <message>
        <source>The encryption library does not work on this system.</source>
        <translation>La bibliothèque de chiffrement ne fonctionne pas sur ce système.</translation>
    </message>
    <message>
        <source>This program was built without the system&apos;s secret store.</source>
        <translation>Ce programme a été compilé sans prise en charge du trousseau du système.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NewIntegrationVersionChecker</name>
    <message>
        <source>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Current version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Latest version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Location: %3&lt;/HTML&gt;</source>
        <translation>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Version installée&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Dernière version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Emplacement : %3&lt;/HTML&gt;</translation>
    </message>
    <message>
        <source>%1 - Newer Version Found</source>
        <translation>%1 – Nouvelle version disponible</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Ignore Version</source>
        <translation>Ignorer cette version</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NullEncryptionProvider</name>
    <message>
        <source>Null Encryption Provider</source>
        <translation>Chiffrement nul (aucun)</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAddressEdit</name>
    <message>
        <source>Replace by Address from Clipboard</source>
        <translation>Remplacer par l’adresse du presse-papiers</translation>
    </message>
    <message>
        <source>IPv4 address: four numbers from 0 to 255 with points between</source>
        <translation>Adresse IPv4 : quatre nombres de 0 à 255 séparés par des points</translation>
    </message>
    <message>
        <source>IPv6 address: eight groups of up to four hexadecimal digits with colons between; &quot;::&quot; stands for groups of zeros</source>
        <translation>Adresse IPv6 : huit groupes d’au plus quatre chiffres hexadécimaux séparés par des deux-points ; « :: » remplace des groupes de zéros</translation>
    </message>
    <message>
        <source>IPv4 or IPv6 address, such as 192.168.1.10 or fd00::10</source>
        <translation>Adresse IPv4 ou IPv6, par exemple 192.168.1.10 ou fd00::10</translation>
    </message>
    <message>
        <source>Not a complete address</source>
        <translation>Adresse incomplète</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAppInternalsImpl</name>
    <message>
        <source>Application is running in DEBUG MODE</source>
        <translation>L&apos;application s&apos;exécute en MODE DÉBOGAGE</translation>
    </message>
    <message>
        <source>Application is running in EXPERT MODE</source>
        <translation>L&apos;application s&apos;exécute en MODE EXPERT</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXAppInternalsImpl_private</name>
    <message>
        <source>++debug mode activated</source>
        <translation>++mode débogage activé</translation>
    </message>
    <message>
        <source>++debug mode deactivated</source>
        <translation>++mode débogage désactivé</translation>
    </message>
    <message>
        <source>++expert mode activated</source>
        <translation>++mode expert activé</translation>
    </message>
    <message>
        <source>++expert mode deactivated</source>
        <translation>++mode expert désactivé</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXBroker</name>
    <message>
        <source>&lt;undeclared interface&gt;</source>
        <translation>&lt;interface non déclarée&gt;</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXCountingFileSet</name>
    <message numerus="yes">
        <source>%n byte(s) could not be written.</source>
        <translation>
            <numerusform>%n octet n’a pas pu être écrit.</numerusform>
            <numerusform>%n octets n’ont pas pu être écrits.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is gone.</source>
        <translation>Le fichier n’existe plus.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXFileFilter</name>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXNotification</name>
    <message>
        <source>Ask this question again</source>
        <translation>Poser de nouveau cette question</translation>
    </message>
    <message>
        <source>Show this message again</source>
        <translation>Afficher de nouveau ce message</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSettingsTransfer</name>
    <message>
        <source>The settings cannot be written to &quot;%1&quot;: %2</source>
        <translation>Les paramètres ne peuvent pas être enregistrés dans « %1 » : %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2</source>
        <translation>Le fichier « %1 » ne peut pas être ouvert : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no settings file, or is damaged.</source>
        <translation>« %1 » n’est pas un fichier de paramètres ou est endommagé.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; cannot be written.</source>
        <translation>Le fichier de paramètres « %1 » ne peut pas être enregistré.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSingleInstance</name>
    <message>
        <source>Another user&apos;s program stands in for this application.</source>
        <translation>Le programme d&apos;un autre utilisateur se fait passer pour cette application.</translation>
    </message>
    <message>
        <source>Other instances cannot be listened to: %1</source>
        <translation>Impossible d’écouter les autres instances : %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be locked.</source>
        <translation>Le fichier « %1 » ne peut pas être verrouillé.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; is too long for a socket.</source>
        <translation>Le chemin « %1 » est trop long pour un socket.</translation>
    </message>
    <message>
        <source>The running instance does not accept the arguments.</source>
        <translation>L&apos;instance en cours n&apos;accepte pas les arguments.</translation>
    </message>
    <message>
        <source>The running instance does not answer.</source>
        <translation>L&apos;instance en cours ne répond pas.</translation>
    </message>
    <message>
        <source>There are too many arguments.</source>
        <translation>Il y a trop d&apos;arguments.</translation>
    </message>
    <message>
        <source>There is no directory for what only lasts as long as the session.</source>
        <translation>Il n&apos;y a pas de répertoire pour ce qui ne dure que le temps de la session.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXStatusHash</name>
    <message>
        <source>Invalid Xml</source>
        <translation>XML non valide</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::ProxyConfiguration</name>
    <message>
        <source>Proxy Configuration: restore failed</source>
        <translation>Configuration du proxy : échec de la restauration</translation>
    </message>
    <message>
        <source>Proxy Configuration: password was encrypted with different encryption and might not decrypt properly</source>
        <translation>Configuration du proxy : le mot de passe a été chiffré par une autre méthode et risque de ne pas pouvoir être déchiffré correctement</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SimpleEncryptionProvider</name>
    <message>
        <source>Simple Encryption Provider</source>
        <extracomment>It does not protect anything, it only obfuscates; the translation must not promise more.</extracomment>
        <translation>Dissimulation simple</translation>
    </message>
</context>
<context>
    <name>PYXStrings</name>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Centre frequency</source>
        <translation>Fréquence centrale</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bande passante</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Signal-to-noise ratio</source>
        <translation>Rapport signal sur bruit</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation>Modulation</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
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
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>PYXTransConnectorImpl</name>
    <message>
        <source>English</source>
        <comment>Please enter the language for which you are doing the translations.</comment>
        <translation>Français</translation>
    </message>
</context>
</TS>
