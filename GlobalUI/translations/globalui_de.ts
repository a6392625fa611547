<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AcquireProgressUI</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Converting to TIF : </source>
        <translation>Umwandlung in TIF : </translation>
    </message>
    <message>
        <source>To RAM : </source>
        <translation>In den Speicher : </translation>
    </message>
    <message>
        <source>Record : </source>
        <translation>Aufzeichnung : </translation>
    </message>
    <message>
        <source>To Disk : </source>
        <translation>Auf die Platte : </translation>
    </message>
    <message>
        <source>Delaying : </source>
        <translation>Verzögerung : </translation>
    </message>
    <message>
        <source>Total Time : </source>
        <translation>Gesamtzeit : </translation>
    </message>
</context>
<context>
    <name>CameraUI</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Acquisition</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Histogram(Live)</source>
        <translation>Histogramm (live)</translation>
    </message>
    <message>
        <source>Camera Panels</source>
        <translation>Kamerabedienfelder</translation>
    </message>
</context>
<context>
    <name>CapturePreviewUI</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>CenterStackedWidget</name>
    <message>
        <source>Left Panel</source>
        <translation>Linkes Bedienfeld</translation>
    </message>
    <message>
        <source>Hide the Right Panel</source>
        <translation>Rechtes Bedienfeld ausblenden</translation>
    </message>
    <message>
        <source>Show the Right Panel</source>
        <translation>Rechtes Bedienfeld einblenden</translation>
    </message>
    <message>
        <source>Bottom Panel</source>
        <translation>Unteres Bedienfeld</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnehmen</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message numerus="yes">
        <source>Move %n file(s) to Trash</source>
        <translation>
            <numerusform>%n Datei in den Papierkorb</numerusform>
            <numerusform>%n Dateien in den Papierkorb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) moved to the trash. Undo brings them back.</source>
        <translation>
            <numerusform>%n Datei liegt im Papierkorb. Rückgängig holt sie zurück.</numerusform>
            <numerusform>%n Dateien liegen im Papierkorb. Rückgängig holt sie zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weiterer.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileListModel</name>
    <message>
        <source>A link to a file that is not there any more.</source>
        <translation>Ein Verweis auf eine Datei, die es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, geändert %2</translation>
    </message>
    <message>
        <source>Its name is written in another encoding, as on old disks, and the file cannot be reached by it. Give it another name, for example in a terminal.</source>
        <translation>Der Name ist anders kodiert, wie auf alten Datenträgern, und die Datei ist unter ihm nicht zu erreichen. Die Datei umbenennen, etwa in einem Terminal.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>there is a file of that name already. Choose another name</source>
        <translation>es gibt schon eine Datei dieses Namens. Einen anderen Namen wählen</translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>die Datei ist nicht mehr da</translation>
    </message>
    <message>
        <source>you have no right to change this folder. Ask its owner for it</source>
        <translation>das Recht, diesen Ordner zu ändern, fehlt. Den Eigentümer darum bitten</translation>
    </message>
    <message>
        <source>its disk is write-protected</source>
        <translation>die Platte ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the name is too long. Choose a shorter one</source>
        <translation>der Name ist zu lang. Einen kürzeren wählen</translation>
    </message>
    <message>
        <source>A file needs a name. Type one.</source>
        <translation>Eine Datei braucht einen Namen. Einen eingeben.</translation>
    </message>
    <message>
        <source>“%1” is the name of a folder. Choose another name.</source>
        <translation>„%1“ ist der Name eines Ordners. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash. Choose another name.</source>
        <translation>Ein Name kann keinen Schrägstrich enthalten. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>“%1” was not renamed to “%2”: %3.</source>
        <translation>„%1“ wurde nicht in „%2“ umbenannt: %3.</translation>
    </message>
    <message>
        <source>“%1” was not moved to the trash: %2.</source>
        <translation>„%1“ wurde nicht in den Papierkorb gelegt: %2.</translation>
    </message>
    <message>
        <source>“%1” was not moved to the trash: the disk has none, or you have no right to change this folder. Copy it elsewhere, or delete it with a file manager.</source>
        <translation>„%1“ wurde nicht in den Papierkorb gelegt: Die Platte hat keinen, oder das Recht, diesen Ordner zu ändern, fehlt. Die Datei anderswohin kopieren oder mit einer Dateiverwaltung löschen.</translation>
    </message>
    <message>
        <source>“%1” was not taken out of the trash: %2.</source>
        <translation>„%1“ wurde nicht aus dem Papierkorb geholt: %2.</translation>
    </message>
</context>
<context>
    <name>FilePageBar</name>
    <message>
        <source>Filter names</source>
        <translation>Namen filtern</translation>
    </message>
    <message>
        <source>Part of the names, or a pattern with * and ? (Ctrl+F)</source>
        <translation>Teil der Namen oder ein Muster mit * und ? (Strg+F)</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>What the files are sorted by</source>
        <translation>Wonach die Dateien sortiert werden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Hide the message</source>
        <translation>Meldung ausblenden</translation>
    </message>
    <message>
        <source>Pictures: %1</source>
        <translation>Bilder: %1</translation>
    </message>
    <message>
        <source>Pictures: %1 of %2</source>
        <translation>Bilder: %1 von %2</translation>
    </message>
    <message>
        <source>%1, selected: %2</source>
        <translation>%1, ausgewählt: %2</translation>
    </message>
    <message>
        <source>Sorted downwards. Click to sort upwards.</source>
        <translation>Absteigend sortiert. Klicken für aufsteigend.</translation>
    </message>
    <message>
        <source>Sorted upwards. Click to sort downwards.</source>
        <translation>Aufsteigend sortiert. Klicken für absteigend.</translation>
    </message>
</context>
<context>
    <name>FileSystemView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to the view before (Ctrl+P)</source>
        <translation>Zurück zur vorigen Ansicht (Strg+P)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Path of a folder</source>
        <translation>Pfad eines Ordners</translation>
    </message>
    <message>
        <source>Type the path of a folder and press Enter</source>
        <translation>Den Pfad eines Ordners eingeben und Eingabe drücken</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>FileThumbnail</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Compare the two selected pictures side by side</source>
        <translation>Die beiden ausgewählten Bilder nebeneinander vergleichen</translation>
    </message>
    <message>
        <source>&amp;Merge</source>
        <translation>&amp;Zusammenfügen</translation>
    </message>
    <message>
        <source>Put the selected pictures into one file, one behind the other</source>
        <translation>Die ausgewählten Bilder hintereinander in eine Datei legen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Move to &amp;Trash</source>
        <translation>In den &amp;Papierkorb</translation>
    </message>
    <message>
        <source>Convert to CS&amp;V</source>
        <translation>In &amp;CSV umwandeln</translation>
    </message>
    <message>
        <source>Modify &amp;DPI…</source>
        <translation>&amp;DPI ändern…</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Read the Folder &amp;Again</source>
        <translation>Ordner neu &amp;lesen</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>Bilder des Ordners</translation>
    </message>
    <message>
        <source>Reading the folder…</source>
        <translation>Der Ordner wird gelesen…</translation>
    </message>
    <message>
        <source>No picture&apos;s name fits “%1”.</source>
        <translation>Kein Bildname passt zu „%1“.</translation>
    </message>
    <message>
        <source>There is no picture in this folder.</source>
        <translation>In diesem Ordner ist kein Bild.</translation>
    </message>
    <message>
        <source>%1 pictures are selected; at most %2 are opened at once. Select fewer.</source>
        <translation>%1 Bilder sind ausgewählt; höchstens %2 werden auf einmal geöffnet. Weniger auswählen.</translation>
    </message>
    <message>
        <source>Open the selected pictures (Return)</source>
        <translation>Die gewählten Bilder öffnen (Eingabe)</translation>
    </message>
</context>
<context>
    <name>FolderReading</name>
    <message>
        <source>The folder “%1” is not there. It may have been moved, renamed or deleted, or its disk is not connected. Choose another folder.</source>
        <translation>Der Ordner „%1“ ist nicht da. Vielleicht wurde er verschoben, umbenannt oder gelöscht, oder seine Platte ist nicht angeschlossen. Einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>You have no right to look into the folder “%1”. Ask its owner for it, or choose another folder.</source>
        <translation>Das Recht, in den Ordner „%1“ zu sehen, fehlt. Den Eigentümer darum bitten oder einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Choose the folder that it lies in.</source>
        <translation>„%1“ ist eine Datei, kein Ordner. Den Ordner wählen, in dem sie liegt.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached: its name is too long, or its links lead in a circle. Choose another folder.</source>
        <translation>Der Ordner „%1“ ist nicht erreichbar: Sein Name ist zu lang, oder seine Verweise führen im Kreis. Einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read: %2. Look whether its disk or network is connected.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden: %2. Prüfen, ob seine Platte oder das Netz verbunden ist.</translation>
    </message>
</context>
<context>
    <name>GPUDrawFrame</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>GlobalUI</name>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No Camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>VID</source>
        <translation>VID</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>Firmware Serial No.</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>SN</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>SDK Serial No.</source>
        <translation>SDK-Version</translation>
    </message>
    <message>
        <source>Histogram(Live)</source>
        <translation>Histogramm (live)</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Tool Properties</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>File Preview</source>
        <translation>Dateivorschau</translation>
    </message>
    <message>
        <source>Right Panels</source>
        <translation>Rechte Bedienfelder</translation>
    </message>
    <message>
        <source>Bottom Panels</source>
        <translation>Untere Bedienfelder</translation>
    </message>
</context>
<context>
    <name>ImageInfoUI</name>
    <message>
        <source>Pos :</source>
        <translation>Pos :</translation>
    </message>
    <message>
        <source>Size :</source>
        <translation>Größe :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert :</translation>
    </message>
    <message>
        <source>RGB :</source>
        <translation>RGB :</translation>
    </message>
    <message>
        <source>Rotate :</source>
        <translation>Drehung :</translation>
    </message>
    <message>
        <source>32bit Depth Scale :</source>
        <translation>32-Bit-Skala :</translation>
    </message>
    <message>
        <source>Zoom :</source>
        <translation>Zoom :</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>ImageNavigateUI</name>
    <message>
        <source>Return Camera</source>
        <translation>Zurück zur Kamera</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>ImageUI</name>
    <message>
        <source>Adjustment</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Verarbeitung</translation>
    </message>
    <message>
        <source>Automatic Counting</source>
        <translation>Automatisch zählen</translation>
    </message>
    <message>
        <source>Image Panels</source>
        <translation>Bildbedienfelder</translation>
    </message>
</context>
<context>
    <name>MeasureUI</name>
    <message>
        <source>Calibration Table</source>
        <translation>Kalibriertabelle</translation>
    </message>
    <message>
        <source>Class Counting</source>
        <translation>Klassenzählung</translation>
    </message>
    <message>
        <source>Automatic Counting Table</source>
        <translation>Tabelle der automatischen Zählung</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Tool Properties</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
</context>
<context>
    <name>MultiImageToolUI</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>Spectrum2DDrawFrameBase</name>
    <message>
        <source>Counts</source>
        <translation>Zählwert</translation>
    </message>
    <message>
        <source>Pos : </source>
        <translation>Pos : </translation>
    </message>
    <message>
        <source>Value : </source>
        <translation>Wert : </translation>
    </message>
</context>
<context>
    <name>Spectrum3DDrawViewBase</name>
    <message>
        <source>The 3D plot can&apos;t be shown: this display offers no OpenGL.</source>
        <translation>Das 3D-Diagramm kann nicht gezeigt werden: Diese Anzeige bietet kein OpenGL.</translation>
    </message>
    <message>
        <source>Pixel Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>Series Position</source>
        <translation>Spurposition</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Zählwert</translation>
    </message>
    <message>
        <source>There are no tracks to show: draw them on the picture or have them found.</source>
        <translation>Es gibt keine Spuren zu zeigen: Spuren ins Bild zeichnen oder suchen lassen.</translation>
    </message>
    <message>
        <source>The tracks are switched off.</source>
        <translation>Die Spuren sind ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>Pixel Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
</context>
<context>
    <name>SpectrumZoomUI</name>
    <message>
        <source>Automatic Range</source>
        <translation>Automatischer Bereich</translation>
    </message>
    <message>
        <source>Zoom In Horizontally</source>
        <translation>Waagrecht vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out Horizontally</source>
        <translation>Waagrecht verkleinern</translation>
    </message>
    <message>
        <source>Zoom In Vertically</source>
        <translation>Senkrecht vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out Vertically</source>
        <translation>Senkrecht verkleinern</translation>
    </message>
    <message>
        <source>Reset Zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
</context>
<context>
    <name>UIManagerBase</name>
    <message>
        <source>The panel &quot;%1&quot; is not installed.</source>
        <translation>Das Bedienfeld „%1“ ist nicht installiert.</translation>
    </message>
    <message>
        <source>no plug-in brings this panel</source>
        <translation>kein Plug-in bringt dieses Bedienfeld mit</translation>
    </message>
    <message>
        <source>no page here has a tab with the id %1; give it the place &quot;bottom&quot; and a title</source>
        <translation>keine Seite hat hier einen Reiter mit der Nummer %1; ihm den Platz &quot;bottom&quot; und einen Titel geben</translation>
    </message>
</context>
<context>
    <name>UIPluginLoader</name>
    <message>
        <source>its root object is not a panel</source>
        <translation>sein Wurzelobjekt ist kein Bedienfeld</translation>
    </message>
    <message>
        <source>it failed when it was made: %1</source>
        <translation>es scheiterte beim Anlegen: %1</translation>
    </message>
    <message>
        <source>it failed when it was made</source>
        <translation>es scheiterte beim Anlegen</translation>
    </message>
    <message>
        <source>it has no panel</source>
        <translation>es hat kein Bedienfeld</translation>
    </message>
    <message>
        <source>the file is missing: it is a link to %1</source>
        <translation>die Datei fehlt: Sie ist ein Verweis auf %1</translation>
    </message>
    <message>
        <source>it failed when it was brought up to date</source>
        <translation>es scheiterte, als es aufgefrischt wurde</translation>
    </message>
    <message>
        <source>it failed when it was brought up to date: %1</source>
        <translation>es scheiterte, als es aufgefrischt wurde: %1</translation>
    </message>
</context>
<context>
    <name>UIPluginMetaData</name>
    <message>
        <source>it is not a plug-in</source>
        <translation>es ist kein Plug-in</translation>
    </message>
    <message>
        <source>it is a plug-in for another interface: &quot;%1&quot;</source>
        <translation>es ist ein Plug-in für eine andere Schnittstelle: „%1“</translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;id&quot;</source>
        <translation>seine Metadaten haben keine gültige „id“</translation>
    </message>
    <message>
        <source>another plug-in has the id %1 already</source>
        <translation>ein anderes Plug-in hat die Nummer %1 schon</translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;place&quot;</source>
        <translation>seine Metadaten haben keinen gültigen „place“</translation>
    </message>
    <message>
        <source>its metadata has no &quot;title&quot; for the bottom page</source>
        <translation>seine Metadaten haben keinen „title“ für die untere Seite</translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;page&quot;</source>
        <translation>seine Metadaten haben keine gültige „page“</translation>
    </message>
    <message>
        <source>it was built for the interface &quot;%1&quot;, but this program has &quot;%2&quot;: build it anew</source>
        <translation>es wurde für die Schnittstelle „%1“ gebaut, dieses Programm hat aber „%2“: neu bauen</translation>
    </message>
    <message>
        <source>it was built for Qt %1.%2, but this program has Qt %3.%4: build it anew</source>
        <translation>es wurde für Qt %1.%2 gebaut, dieses Programm hat aber Qt %3.%4: neu bauen</translation>
    </message>
    <message>
        <source>it is not a plug-in: %1</source>
        <translation>es ist kein Plug-in: %1</translation>
    </message>
</context>
<context>
    <name>ViewToolBar</name>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>1 : 1</source>
        <translation>1 : 1</translation>
    </message>
    <message>
        <source>Black Background</source>
        <translation>Schwarzer Hintergrund</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Horizontal Flip</source>
        <translation>Waagrecht spiegeln</translation>
    </message>
    <message>
        <source>Vertical Flip</source>
        <translation>Senkrecht spiegeln</translation>
    </message>
    <message>
        <source>Save Image As...</source>
        <translation>Bild speichern unter...</translation>
    </message>
    <message>
        <source>Image Crop</source>
        <translation>Bild zuschneiden</translation>
    </message>
    <message>
        <source>Image Info</source>
        <translation>Bildinformation</translation>
    </message>
    <message>
        <source>Close Compare</source>
        <translation>Vergleich schließen</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Show the Tool Bar</source>
        <translation>Werkzeugleiste einblenden</translation>
    </message>
    <message>
        <source>Hide the Tool Bar</source>
        <translation>Werkzeugleiste ausblenden</translation>
    </message>
</context>
<context>
    <name>WidgetSwitchUI</name>
    <message>
        <source>Show File Directory</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Modify DPI</source>
        <translation>DPI ändern</translation>
    </message>
    <message>
        <source>Convert to CSV</source>
        <translation>In CSV umwandeln</translation>
    </message>
    <message>
        <source>Back to the View Before</source>
        <translation>Zurück zur vorigen Ansicht</translation>
    </message>
</context>
<context>
    <name>ZoomUI</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>1 : 1</source>
        <translation>1 : 1</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
</context>
</TS>
