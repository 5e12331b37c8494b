<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PanelItems</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Start terminal here</source>
        <translation>Terminal hier starten</translation>
    </message>
    <message>
        <source>Open in %1</source>
        <translation>In %1 öffnen</translation>
    </message>
    <message>
        <source>Open repo on remote</source>
        <translation>Repo im Web öffnen</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Push</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Pull</translation>
    </message>
    <message>
        <source>Stash</source>
        <translation>Stash</translation>
    </message>
    <message>
        <source>add link</source>
        <translation>Link hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>... %n more</source>
        <translation>
            <numerusform>... %n weitere</numerusform>
            <numerusform>... %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartialFile</name>
    <message>
        <source>The folder does not exist.</source>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>tarnwick::AppDelegate</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>tarnwick::ApplicationMenu</name>
    <message>
        <source>Add links</source>
        <translation>Links hinzufügen</translation>
    </message>
    <message>
        <source>Actions for %1</source>
        <translation>Aktionen für %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>tarnwick::CheckForUpdatesView</name>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>tarnwick::EmptyStateView</name>
    <message>
        <source>Open the settings (%1) and add some repositories to get started!</source>
        <translation>Öffnen Sie die Einstellungen (%1) und fügen Sie Repositorys hinzu, um loszulegen!</translation>
    </message>
    <message>
        <source>the gear</source>
        <translation>das Zahnrad</translation>
    </message>
</context>
<context>
    <name>tarnwick::GeneralOptionsView</name>
    <message>
        <source>Launch on startup</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Use only icons in repo statuses</source>
        <translation>Nur Symbole im Status der Repos</translation>
    </message>
    <message>
        <source>Refresh repos automatically when menu is opened</source>
        <translation>Repos beim Öffnen des Menüs aktualisieren</translation>
    </message>
    <message>
        <source>Show clean repo status</source>
        <translation>Auch „Repo ist sauber“ zeigen</translation>
    </message>
</context>
<context>
    <name>tarnwick::HttpTransfer</name>
    <message>
        <source>The server %1 refused the request (error %2).</source>
        <translation>Der Server %1 hat die Anfrage abgelehnt (Fehler %2).</translation>
    </message>
    <message>
        <source>The server %1 does not answer.</source>
        <translation>Der Server %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>The server %1 cannot be found. Is there a network connection?</source>
        <translation>Der Server %1 ist nicht zu finden. Besteht eine Netzwerkverbindung?</translation>
    </message>
    <message>
        <source>The server %1 accepts no connection.</source>
        <translation>Der Server %1 nimmt keine Verbindung an.</translation>
    </message>
    <message>
        <source>The server %1 broke the connection off.</source>
        <translation>Der Server %1 hat die Verbindung abgebrochen.</translation>
    </message>
    <message>
        <source>There is no secure connection to the server %1.</source>
        <translation>Zum Server %1 kommt keine sichere Verbindung zustande.</translation>
    </message>
    <message>
        <source>The network reports: %1</source>
        <translation>Das Netzwerk meldet: %1</translation>
    </message>
    <message>
        <source>The address is not secure: %1</source>
        <translation>Die Adresse ist nicht sicher: %1</translation>
    </message>
    <message>
        <source>The server %1 gives an unexpected answer (%2).</source>
        <translation>Der Server %1 gibt eine unerwartete Antwort (%2).</translation>
    </message>
    <message>
        <source>The server %1 redirects to an address that is not secure: %2</source>
        <translation>Der Server %1 leitet an eine Adresse weiter, die nicht sicher ist: %2</translation>
    </message>
    <message>
        <source>The server %1 redirects without end.</source>
        <translation>Der Server %1 leitet endlos weiter.</translation>
    </message>
    <message>
        <source>The server %1 sends more than it should.</source>
        <translation>Der Server %1 sendet mehr, als er sollte.</translation>
    </message>
</context>
<context>
    <name>tarnwick::ItemMenu</name>
    <message>
        <source>Show repositories</source>
        <translation>Repositorys zeigen</translation>
    </message>
    <message>
        <source>Refresh all</source>
        <translation>Alle aktualisieren</translation>
    </message>
    <message>
        <source>Fetch all</source>
        <translation>Alle abrufen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarnwick::LinkSettingsView</name>
    <message>
        <source>Add links for &apos;%1&apos;</source>
        <translation>Links für „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Copy/Paste with keyboard seems to be broken in Monterey, but you can use the mouse!</source>
        <translation>Kopieren und Einfügen per Tastatur scheint in Monterey nicht zu gehen, aber mit der Maus klappt es!</translation>
    </message>
    <message>
        <source>Enter the links, one per line, in this format: &apos;url @@ title&apos;</source>
        <translation>Ein Link je Zeile, in dieser Form: „url @@ titel“</translation>
    </message>
    <message>
        <source>Example:
 http://www.example.com @@ title in repo menu
 http://search.example.org @@ search</source>
        <translation>Beispiel:
 http://www.example.com @@ Titel im Menü des Repos
 http://search.example.org @@ Suche</translation>
    </message>
    <message>
        <source>Tip: with file:// you can link to a local folder</source>
        <translation>Tipp: file:// verweist auf einen lokalen Ordner</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
</context>
<context>
    <name>tarnwick::PathField</name>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose a folder (%1)</source>
        <translation>Ordner auswählen (%1)</translation>
    </message>
</context>
<context>
    <name>tarnwick::RefreshView</name>
    <message>
        <source>Tarnwick %1</source>
        <translation>Tarnwick %1</translation>
    </message>
    <message>
        <source>Refresh all repositories</source>
        <translation>Alle Repositorys aktualisieren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Quit Tarnwick</source>
        <translation>Tarnwick beenden</translation>
    </message>
    <message>
        <source>Refresh all repositories: %1</source>
        <translation>Alle Repositorys aktualisieren: %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
</context>
<context>
    <name>tarnwick::RepoOverview</name>
    <message>
        <source>no repositories watched</source>
        <translation>keine Repositorys beobachtet</translation>
    </message>
    <message>
        <source>1 repository watched</source>
        <translation>1 Repository beobachtet</translation>
    </message>
    <message>
        <source>, all clean</source>
        <translation>, alle sauber</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message numerus="yes">
        <source>%n repositories watched</source>
        <translation>
            <numerusform>%n Repository beobachtet</numerusform>
            <numerusform>%n Repositorys beobachtet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n not clean</source>
        <translation>
            <numerusform>, %n nicht sauber</numerusform>
            <numerusform>, %n nicht sauber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still being asked</source>
        <translation>
            <numerusform>%n wird noch abgefragt</numerusform>
            <numerusform>%n werden noch abgefragt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarnwick::RepoStatusView</name>
    <message>
        <source>Repository</source>
        <translation>Repository</translation>
    </message>
    <message>
        <source>Branch</source>
        <translation>Branch</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Sauber</translation>
    </message>
    <message>
        <source>branch %1</source>
        <translation>Branch %1</translation>
    </message>
    <message>
        <source>Repo is clean</source>
        <translation>Repo ist sauber</translation>
    </message>
    <message>
        <source>detached head</source>
        <translation>losgelöster HEAD</translation>
    </message>
    <message>
        <source>no upstream</source>
        <translation>kein Upstream</translation>
    </message>
    <message>
        <source>upstream gone</source>
        <translation>Upstream verschwunden</translation>
    </message>
    <message numerus="yes">
        <source>%n in conflict</source>
        <translation>
            <numerusform>%n im Konflikt</numerusform>
            <numerusform>%n im Konflikt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renamed</source>
        <translation>
            <numerusform>%n umbenannt</numerusform>
            <numerusform>%n umbenannt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarnwick::RepositoriesView</name>
    <message>
        <source>add repo</source>
        <translation>Repo hinzufügen</translation>
    </message>
    <message>
        <source>Example: /Users/yourname/path/to/your/repo</source>
        <translation>Beispiel: /Users/ihrname/pfad/zum/repo</translation>
    </message>
    <message>
        <source>Path of a repository</source>
        <translation>Pfad eines Repositorys</translation>
    </message>
    <message>
        <source>Please confirm the removal</source>
        <translation>Bitte bestätigen Sie das Entfernen</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>tarnwick::RepositoryRow</name>
    <message>
        <source>Handle</source>
        <translation>Griff</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>tarnwick::SaveButton</name>
    <message>
        <source>Save and close settings</source>
        <translation>Einstellungen speichern und schließen</translation>
    </message>
</context>
<context>
    <name>tarnwick::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Repositories</source>
        <translation>Repositorys</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
</context>
<context>
    <name>tarnwick::Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>tarnwick::StatusItem</name>
    <message>
        <source>Tarnwick: %1</source>
        <translation>Tarnwick: %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::UpdateDownload</name>
    <message>
        <source>The download is damaged or was not made by the people who make Tarnwick. It has been deleted.</source>
        <translation>Der Download ist beschädigt oder stammt nicht von denen, die Tarnwick herausgeben. Er wurde gelöscht.</translation>
    </message>
    <message>
        <source>The download cannot be saved in %1. %2</source>
        <translation>Der Download kann nicht in %1 gespeichert werden. %2</translation>
    </message>
</context>
<context>
    <name>tarnwick::UpdateSession</name>
    <message>
        <source>This copy of Tarnwick was made without the key that tells a genuine version from a forged one.</source>
        <translation>Diesem Tarnwick fehlt der Schlüssel, der eine echte Version von einer gefälschten unterscheidet.</translation>
    </message>
    <message>
        <source>The server&apos;s list of updates was not signed by the people who make Tarnwick.</source>
        <translation>Die Updateliste des Servers ist nicht von denen signiert, die Tarnwick herausgeben.</translation>
    </message>
    <message>
        <source>The server&apos;s list of updates cannot be read.</source>
        <translation>Die Updateliste des Servers ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Tarnwick %1 is available, but its download is not signed, so it cannot be told from a forged one.</source>
        <translation>Tarnwick %1 ist verfügbar, aber sein Download ist nicht signiert und daher nicht von einem gefälschten zu unterscheiden.</translation>
    </message>
    <message>
        <source>Tarnwick %1 is available, but there is no secure address to download it from.</source>
        <translation>Tarnwick %1 ist verfügbar, aber es gibt keine sichere Adresse für den Download.</translation>
    </message>
    <message>
        <source>Tarnwick %1 is available, but the size of its download is missing or not credible.</source>
        <translation>Tarnwick %1 ist verfügbar, aber die Größe des Downloads fehlt oder ist nicht glaubhaft.</translation>
    </message>
</context>
<context>
    <name>tarnwick::UpdateWindow</name>
    <message>
        <source>Tarnwick %1 is available</source>
        <translation>Tarnwick %1 ist verfügbar</translation>
    </message>
    <message>
        <source>This is build %1, you have build %2. The download takes %3.</source>
        <translation>Das ist Build %1, Sie haben Build %2. Der Download umfasst %3.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Downloading Tarnwick %1 …</source>
        <translation>Tarnwick %1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Your desktop has been asked to open it.</source>
        <translation>Ihr Desktop wurde gebeten, sie zu öffnen.</translation>
    </message>
    <message>
        <source>Your file manager has been asked to show it.</source>
        <translation>Ihr Dateimanager wurde gebeten, sie zu zeigen.</translation>
    </message>
    <message>
        <source>Tarnwick %1 has been downloaded</source>
        <translation>Tarnwick %1 wurde heruntergeladen</translation>
    </message>
    <message>
        <source>The file “%1” is in the folder %2. %3</source>
        <translation>Die Datei „%1“ liegt im Ordner %2. %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Checking for updates …</source>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>You are up to date</source>
        <translation>Sie sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Tarnwick %1 is the newest version.</source>
        <translation>Tarnwick %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Verifying the download …</source>
        <translation>Der Download wird geprüft …</translation>
    </message>
    <message>
        <source>The new version could not be downloaded</source>
        <translation>Die neue Version konnte nicht heruntergeladen werden</translation>
    </message>
    <message>
        <source>The check for updates failed</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Release notes on the web</source>
        <translation>Versionshinweise im Web</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareupdate</translation>
    </message>
</context>
</TS>
