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
        <translation>Le trousseau du système ne peut pas être utilisé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::KeychainVault</name>
    <message>
        <source>Another program is holding the key in the system&apos;s secret store.</source>
        <translation>Un autre programme utilise en ce moment la clé du trousseau du système.</translation>
    </message>
    <message>
        <source>The key is being fetched from the system&apos;s secret store already.</source>
        <translation>La clé est déjà en cours de lecture dans le trousseau du système.</translation>
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
    <name>PYXRuntime::LiveTable</name>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filter the table</source>
        <translation>Filtrer le tableau</translation>
    </message>
    <message>
        <source>Shows the rows that have this text in any column</source>
        <translation>Affiche les lignes dont une colonne contient ce texte</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NetworkEntriesModel</name>
    <message>
        <source>The name is missing.</source>
        <translation>Le nom manque.</translation>
    </message>
    <message>
        <source>Another entry has this name.</source>
        <translation>Une autre entrée porte ce nom.</translation>
    </message>
    <message>
        <source>This is no IPv4 or IPv6 address.</source>
        <translation>Ce n’est pas une adresse IPv4 ou IPv6.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Un port est un nombre de 1 à 65535.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
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
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::NewIntegrationVersionChecker</name>
    <message>
        <source>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Current version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Latest version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Location: %3&lt;/HTML&gt;</source>
        <translation>&lt;HTML&gt;&lt;TABLE&gt;&lt;TR&gt;&lt;TH&gt;Version installée&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%1&lt;/TD&gt;&lt;/TR&gt;&lt;TR&gt;&lt;TH&gt;Dernière version&lt;/TH&gt;&lt;TD&amp;nbsp;&lt;/TD&gt;&lt;TD&gt;%2&lt;/TD&gt;&lt;/TR&gt;&lt;/TABLE&gt;&lt;P&gt;Emplacement&#xa0;: %3&lt;/HTML&gt;</translation>
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
        <translation>Adresse IPv4&#xa0;: quatre nombres de 0 à 255 séparés par des points</translation>
    </message>
    <message>
        <source>IPv6 address: eight groups of up to four hexadecimal digits with colons between; &quot;::&quot; stands for groups of zeros</source>
        <translation>Adresse IPv6&#xa0;: huit groupes d’au plus quatre chiffres hexadécimaux séparés par des deux-points&#xa0;; «&#xa0;::&#xa0;» remplace des groupes de zéros</translation>
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
    <name>PYXRuntime::PYXRecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSettingsDialog</name>
    <message>
        <source>Errors in Settings</source>
        <translation>Erreurs dans les paramètres</translation>
    </message>
    <message>
        <source>There are errors in the settings</source>
        <translation>Les paramètres contiennent des erreurs</translation>
    </message>
    <message>
        <source>The settings have been modified.</source>
        <translation>Les paramètres ont été modifiés.</translation>
    </message>
    <message>
        <source>Do you really want to discard the changes?</source>
        <translation>Voulez-vous vraiment abandonner les modifications ?</translation>
    </message>
    <message>
        <source>Settings Modified</source>
        <translation>Paramètres modifiés</translation>
    </message>
    <message>
        <source>PYX Settings</source>
        <translation>Paramètres PYX</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Rechercher dans les paramètres</translation>
    </message>
    <message>
        <source>Shows the pages with these words in their titles, labels or tool tips</source>
        <translation>Affiche les pages dont le titre, les libellés ou les infobulles contiennent ces mots</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Pages de paramètres</translation>
    </message>
    <message>
        <source>No page has these words.</source>
        <translation>Aucune page ne contient ces mots.</translation>
    </message>
    <message>
        <source>Apply the changes from this settings page</source>
        <translation>Appliquer les modifications de cette page de paramètres</translation>
    </message>
    <message>
        <source>Undo the changes on this settings page</source>
        <translation>Annuler les modifications de cette page de paramètres</translation>
    </message>
    <message>
        <source>Reset the settings from this page to their default values</source>
        <translation>Remettre les paramètres de cette page à leurs valeurs par défaut</translation>
    </message>
    <message>
        <source>Close the dialog, applying any pending changes</source>
        <translation>Fermer la fenêtre en appliquant les modifications en attente</translation>
    </message>
    <message>
        <source>Close the dialog</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Close the dialog, discarding any changes that have not been applied yet</source>
        <translation>Fermer la fenêtre en abandonnant les modifications qui n’ont pas encore été appliquées</translation>
    </message>
    <message>
        <source>Display help for the current settings page (if available)</source>
        <translation>Afficher l’aide de cette page de paramètres (si disponible)</translation>
    </message>
    <message>
        <source>Apply the changes made on any settings page</source>
        <translation>Appliquer les modifications de toutes les pages de paramètres</translation>
    </message>
    <message>
        <source>Restore all settings in all pages to their default values</source>
        <translation>Remettre tous les paramètres de toutes les pages à leurs valeurs par défaut</translation>
    </message>
    <message>
        <source>Undo all changes made on any of the settings pages</source>
        <translation>Annuler toutes les modifications de toutes les pages de paramètres</translation>
    </message>
    <message>
        <source>Apply this page</source>
        <translation>Appliquer cette page</translation>
    </message>
    <message>
        <source>Reset this page</source>
        <translation>Réinitialiser cette page</translation>
    </message>
    <message>
        <source>Restore the defaults of this page</source>
        <translation>Restaurer les valeurs par défaut de cette page</translation>
    </message>
    <message>
        <source>Apply all pages</source>
        <translation>Appliquer toutes les pages</translation>
    </message>
    <message>
        <source>Reset all pages</source>
        <translation>Réinitialiser toutes les pages</translation>
    </message>
    <message>
        <source>Restore the defaults of all pages</source>
        <translation>Restaurer les valeurs par défaut de toutes les pages</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::PYXSettingsTransfer</name>
    <message>
        <source>The settings cannot be written to &quot;%1&quot;: %2</source>
        <translation>Les paramètres ne peuvent pas être enregistrés dans «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no settings file, or is damaged.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de paramètres ou est endommagé.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; cannot be written.</source>
        <translation>Le fichier de paramètres «&#xa0;%1&#xa0;» ne peut pas être enregistré.</translation>
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
        <translation>Impossible d’écouter les autres instances&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be locked.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être verrouillé.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; is too long for a socket.</source>
        <translation>Le chemin «&#xa0;%1&#xa0;» est trop long pour un socket.</translation>
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
        <translation>Configuration du proxy&#xa0;: échec de la restauration</translation>
    </message>
    <message>
        <source>Proxy Configuration: password was encrypted with different encryption and might not decrypt properly</source>
        <translation>Configuration du proxy&#xa0;: le mot de passe a été chiffré par une autre méthode et risque de ne pas pouvoir être déchiffré correctement</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::ProxyTestDialog</name>
    <message>
        <source>&amp;Start Test</source>
        <translation>&amp;Démarrer le test</translation>
    </message>
    <message>
        <source>&amp;Add Site</source>
        <translation>&amp;Ajouter un site</translation>
    </message>
    <message>
        <source>&amp;Remove Site</source>
        <translation>&amp;Supprimer le site</translation>
    </message>
    <message>
        <source>Proxy Test</source>
        <translation>Test du proxy</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Sites and results</source>
        <translation>Sites et résultats</translation>
    </message>
    <message>
        <source>Tries to reach these sites through the proxy of the system.</source>
        <translation>Essaie d’atteindre ces sites par le proxy du système.</translation>
    </message>
    <message>
        <source>Tries to reach these sites through the proxy %1, port %2.</source>
        <translation>Essaie d’atteindre ces sites par le proxy %1, port %2.</translation>
    </message>
    <message>
        <source>Tries to reach these sites without a proxy.</source>
        <translation>Essaie d’atteindre ces sites sans proxy.</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>En attente...</translation>
    </message>
    <message>
        <source>The test is running.</source>
        <translation>Le test est en cours.</translation>
    </message>
    <message>
        <source>%1 of %2 sites were reached.</source>
        <translation>%1 sites sur %2 ont été atteints.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::ProxyTester</name>
    <message>
        <source>This is no web address.</source>
        <translation>Ce n’est pas une adresse web.</translation>
    </message>
    <message>
        <source>Reached in %1 ms (status %2)</source>
        <translation>Atteint en %1 ms (statut %2)</translation>
    </message>
    <message>
        <source>The proxy does not accept the user name and password.</source>
        <translation>Le proxy n’accepte pas le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>No answer within %1 seconds</source>
        <translation>Pas de réponse en %1 secondes</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::RuntimeScopes</name>
    <message>
        <source>Application information and special directories</source>
        <translation>Informations sur l’application et répertoires particuliers</translation>
    </message>
    <message>
        <source>Name filters and places of file dialogs</source>
        <translation>Filtres de noms et emplacements des dialogues de fichiers</translation>
    </message>
    <message>
        <source>Files that counting file sets open and close</source>
        <translation>Fichiers ouverts et fermés par les séries de fichiers</translation>
    </message>
    <message>
        <source>How often icons are asked for</source>
        <translation>Fréquence des demandes d’icônes</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_AppMode</name>
    <message>
        <source>Application Mode</source>
        <translation>Mode de l’application</translation>
    </message>
    <message>
        <source>&amp;Debug mode</source>
        <translation>Mode &amp;débogage</translation>
    </message>
    <message>
        <source>Shows what helps to find faults in the application</source>
        <translation>Affiche ce qui aide à trouver les défauts de l’application</translation>
    </message>
    <message>
        <source>&amp;Expert mode</source>
        <translation>Mode &amp;expert</translation>
    </message>
    <message>
        <source>Offers functions that need experience</source>
        <translation>Offre des fonctions qui demandent de l’expérience</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_Broker</name>
    <message>
        <source>destroyed</source>
        <translation>détruit</translation>
    </message>
    <message>
        <source>Broker</source>
        <translation>Courtier</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Registrations with the broker</source>
        <translation>Enregistrements auprès du courtier</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Debug_RuntimeScopes</name>
    <message>
        <source>Runtime Scopes</source>
        <translation>Domaines d’exécution</translation>
    </message>
    <message>
        <source>Changes take effect at once and last until the application ends.</source>
        <translation>Les changements prennent effet immédiatement et jusqu’à la fin de l’application.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Débogage</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Runtime scopes</source>
        <translation>Domaines d’exécution</translation>
    </message>
    <message>
        <source>Copy &amp;debug messages to the trace</source>
        <translation>Copier les messages de &amp;débogage dans la trace</translation>
    </message>
    <message>
        <source>Otherwise they only go to the debugger or the standard error output</source>
        <translation>Sinon, ils ne vont qu’au débogueur ou à la sortie d’erreur standard</translation>
    </message>
    <message>
        <source>Copy &amp;warnings to the trace</source>
        <translation>Copier les a&amp;vertissements dans la trace</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Language</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>The language of all texts; changes at once</source>
        <translation>La langue de tous les textes ; change immédiatement</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>&amp;Style :</translation>
    </message>
    <message>
        <source>How buttons, lists and other controls look</source>
        <translation>L’aspect des boutons, des listes et des autres éléments</translation>
    </message>
    <message>
        <source>As the system has it</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>This language could not be loaded; the application speaks English instead.</source>
        <translation>Cette langue n’a pas pu être chargée ; l’application parle anglais à la place.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Messages</name>
    <message>
        <source>always</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>this time</source>
        <translation>cette fois</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>&amp;These messages are not shown. Clear the mark of those that you want to see again.</source>
        <translation>&amp;Ces messages ne sont pas affichés. Décochez ceux que vous voulez revoir.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Messages that are not shown</source>
        <translation>Messages qui ne sont pas affichés</translation>
    </message>
    <message>
        <source>Show &amp;All Again</source>
        <translation>Tout &amp;afficher de nouveau</translation>
    </message>
    <message>
        <source>Clears all marks; Apply shows the messages again</source>
        <translation>Décoche tout ; « Appliquer » affiche de nouveau les messages</translation>
    </message>
    <message>
        <source>No messages are hidden.</source>
        <translation>Aucun message n’est masqué.</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_General_Paths</name>
    <message>
        <source>Choose Directory</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no complete path.</source>
        <translation>%1 : « %2 » n’est pas un chemin complet.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is a file, not a directory.</source>
        <translation>%1 : « %2 » est un fichier, pas un dossier.</translation>
    </message>
    <message>
        <source>The directory for: %1</source>
        <translation>Le dossier pour : %1</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Chooses the directory for: %1</source>
        <translation>Choisit le dossier pour : %1</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Chemins</translation>
    </message>
    <message>
        <source>&amp;Collections:</source>
        <translation>&amp;Collections :</translation>
    </message>
    <message>
        <source>&amp;Detector profiles:</source>
        <translation>Profils de &amp;détecteur :</translation>
    </message>
    <message>
        <source>&amp;Scripts:</source>
        <translation>&amp;Scripts :</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Network_Entries</name>
    <message>
        <source>Network entries (*.PYXXml)</source>
        <translation>Entrées réseau (*.PYXXml)</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Import Network Entries</source>
        <translation>Importer des entrées réseau</translation>
    </message>
    <message>
        <source>There are no network entries in %1.</source>
        <translation>Il n’y a pas d’entrées réseau dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were added.</source>
        <translation>
            <numerusform>%n entrée a été ajoutée.</numerusform>
            <numerusform>%n entrées ont été ajoutées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Network Entries</source>
        <translation>Exporter les entrées réseau</translation>
    </message>
    <message>
        <source>The entries were written to %1.</source>
        <translation>Les entrées ont été écrites dans %1.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Network entries</source>
        <translation>Entrées réseau</translation>
    </message>
    <message>
        <source>Adds an entry and begins to edit it</source>
        <translation>Ajoute une entrée et commence à la modifier</translation>
    </message>
    <message>
        <source>Removes the current entry</source>
        <translation>Supprime l’entrée courante</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Adds the entries of a file</source>
        <translation>Ajoute les entrées d’un fichier</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Writes all entries to a file</source>
        <translation>Écrit toutes les entrées dans un fichier</translation>
    </message>
    <message>
        <source>There are no entries yet.</source>
        <translation>Il n’y a pas encore d’entrées.</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Suppri&amp;mer</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Network_Proxy</name>
    <message>
        <source>The name or address of the proxy server is missing.</source>
        <translation>Le nom ou l’adresse du serveur proxy manque.</translation>
    </message>
    <message>
        <source>The proxy server is to be a plain name or address, such as proxy.example.com.</source>
        <translation>Le serveur proxy doit être un simple nom ou une adresse, par exemple proxy.example.com.</translation>
    </message>
    <message>
        <source>The user name for the proxy is missing.</source>
        <translation>Le nom d’utilisateur pour le proxy manque.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>&amp;No proxy</source>
        <translation>Aucu&amp;n proxy</translation>
    </message>
    <message>
        <source>As the s&amp;ystem has it</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
    <message>
        <source>&amp;This proxy:</source>
        <translation>&amp;Ce proxy :</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
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
        <translation>&amp;Type :</translation>
    </message>
    <message>
        <source>The protocol that the proxy speaks</source>
        <translation>Le protocole que parle le proxy</translation>
    </message>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;veur :</translation>
    </message>
    <message>
        <source>Name or address of the proxy server</source>
        <translation>Nom ou adresse du serveur proxy</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort :</translation>
    </message>
    <message>
        <source>The port on which the proxy listens, often 8080</source>
        <translation>Le port sur lequel le proxy écoute, souvent 8080</translation>
    </message>
    <message>
        <source>The proxy asks for a &amp;user name</source>
        <translation>Le proxy demande un nom d’&amp;utilisateur</translation>
    </message>
    <message>
        <source>Us&amp;er name:</source>
        <translation>Nom d’utilisat&amp;eur :</translation>
    </message>
    <message>
        <source>The name that the proxy asks for</source>
        <translation>Le nom que le proxy demande</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>Is never shown; stored by: %1</source>
        <translation>N’est jamais affiché ; enregistré par : %1</translation>
    </message>
    <message>
        <source>Te&amp;st...</source>
        <translation>Te&amp;ster...</translation>
    </message>
    <message>
        <source>Tries web sites through this proxy; nothing needs to be applied before</source>
        <translation>Essaie des sites web par ce proxy ; rien ne doit être appliqué avant</translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SettingsPages</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Débogage</translation>
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
