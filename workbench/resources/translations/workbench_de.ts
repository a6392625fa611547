<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AcquisitionPanel</name>
    <message>
        <source>This program does not let panels set up its recordings.</source>
        <translation>Dieses Programm lässt Bedienfelder seine Aufzeichnungen nicht einstellen.</translation>
    </message>
</context>
<context>
    <name>CameraControls</name>
    <message>
        <source>%1 could not be set: %2. Choose another value, or open the camera again.</source>
        <translation>%1 ließ sich nicht einstellen: %2. Einen anderen Wert wählen oder die Kamera neu öffnen.</translation>
    </message>
    <message>
        <source>Automatic exposure</source>
        <translation>Belichtungsautomatik</translation>
    </message>
    <message>
        <source>Automatic gain</source>
        <translation>Verstärkungsautomatik</translation>
    </message>
    <message>
        <source>%1 could not be set: the camera does not answer. Check its cable and power.</source>
        <translation>%1 ließ sich nicht einstellen: Die Kamera antwortet nicht. Kabel und Strom prüfen.</translation>
    </message>
    <message>
        <source>The exposure</source>
        <translation>Die Belichtung</translation>
    </message>
    <message>
        <source>The gain</source>
        <translation>Die Verstärkung</translation>
    </message>
    <message>
        <source>The frame rate</source>
        <translation>Die Bildrate</translation>
    </message>
</context>
<context>
    <name>CameraFeatureTree</name>
    <message>
        <source>Do</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Set in the panel Camera.</source>
        <translation>Wird im Bedienfeld Kamera eingestellt.</translation>
    </message>
    <message>
        <source>The camera does not let it be changed now.</source>
        <translation>Die Kamera lässt es jetzt nicht ändern.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Merkmal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
</context>
<context>
    <name>CameraFeatures</name>
    <message>
        <source>%1 could not be set: %2</source>
        <translation>%1 ließ sich nicht einstellen: %2</translation>
    </message>
    <message>
        <source>%1 could not be set: the camera does not answer.</source>
        <translation>%1 ließ sich nicht einstellen: Die Kamera antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>CameraFields</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Refresh List</source>
        <translation>Liste auffrischen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source> frames/s</source>
        <translation> Bilder/s</translation>
    </message>
    <message>
        <source>A long exposure lowers it.</source>
        <translation>Eine lange Belichtung senkt sie.</translation>
    </message>
    <message>
        <source>%1 x %1</source>
        <translation>%1 x %1</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Bildformat</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>Im Bild zeichnen</translation>
    </message>
    <message>
        <source>Drag a frame over the live picture.</source>
        <translation>Einen Rahmen über das Livebild ziehen.</translation>
    </message>
    <message>
        <source>Full Sensor</source>
        <translation>Ganzer Sensor</translation>
    </message>
    <message>
        <source>Region on the sensor</source>
        <translation>Bereich des Sensors</translation>
    </message>
</context>
<context>
    <name>CameraFormat</name>
    <message>
        <source>The pixel format %1 could not be set: %2. Choose another one.</source>
        <translation>Das Pixelformat %1 ließ sich nicht einstellen: %2. Ein anderes wählen.</translation>
    </message>
    <message>
        <source>The region %1 x %2</source>
        <translation>Der Bereich %1 x %2</translation>
    </message>
    <message>
        <source>The camera can&apos;t bin %1 x %1 pixels. Choose another binning.</source>
        <translation>Die Kamera kann nicht %1 x %1 Pixel zusammenfassen. Ein anderes Binning wählen.</translation>
    </message>
    <message>
        <source>The binning</source>
        <translation>Das Binning</translation>
    </message>
    <message>
        <source>%1 could not be set: %2. Choose another one.</source>
        <translation>%1 ließ sich nicht einstellen: %2. Etwas anderes wählen.</translation>
    </message>
</context>
<context>
    <name>CameraLink</name>
    <message>
        <source>Simulated Camera</source>
        <translation>Simulierte Kamera</translation>
    </message>
    <message>
        <source>Camera &quot;%1&quot; is back.</source>
        <translation>Die Kamera „%1“ ist wieder da.</translation>
    </message>
    <message>
        <source>Camera &quot;%1&quot; is back, but not as it was: check its %2.</source>
        <translation>Die Kamera „%1“ ist wieder da, aber nicht wie zuvor. Zu prüfen: %2.</translation>
    </message>
    <message>
        <source>The size and format of the frames stay as they are while a recording runs. Stop it first.</source>
        <translation>Größe und Format der Bilder bleiben, solange eine Aufzeichnung läuft. Sie zuerst beenden.</translation>
    </message>
    <message>
        <source>pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>frame rate</source>
        <translation>Bildrate</translation>
    </message>
</context>
<context>
    <name>CameraMenu</name>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>Camera &amp;Information…</source>
        <translation>Kamera&amp;information…</translation>
    </message>
    <message>
        <source>&amp;Refresh List</source>
        <translation>Liste auf&amp;frischen</translation>
    </message>
    <message>
        <source>Re&amp;connect</source>
        <translation>Wieder &amp;verbinden</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>Kamera &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Exposure and Gain…</source>
        <translation>&amp;Belichtung und Verstärkung…</translation>
    </message>
    <message>
        <source>&amp;Pixel Format</source>
        <translation>&amp;Pixelformat</translation>
    </message>
    <message>
        <source>&amp;Binning</source>
        <translation>B&amp;inning</translation>
    </message>
    <message>
        <source>&amp;Select Region</source>
        <translation>Bereich &amp;wählen</translation>
    </message>
    <message>
        <source>F&amp;ull Sensor</source>
        <translation>&amp;Ganzer Sensor</translation>
    </message>
    <message>
        <source>%1 x %1</source>
        <translation>%1 x %1</translation>
    </message>
    <message>
        <source>Another camera ends it.</source>
        <translation>Eine andere Kamera beendet sie.</translation>
    </message>
    <message>
        <source>Closing the camera ends it.</source>
        <translation>Das Schließen der Kamera beendet sie.</translation>
    </message>
</context>
<context>
    <name>CameraNotice</name>
    <message>
        <source>No camera is open.
Choose one in the Camera menu.</source>
        <translation>Es ist keine Kamera offen.
Im Menü Kamera eine wählen.</translation>
    </message>
    <message>
        <source>Opening the camera %1…</source>
        <translation>Die Kamera %1 wird geöffnet…</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>This program does not let panels control its camera.</source>
        <translation>Dieses Programm lässt Bedienfelder seine Kamera nicht steuern.</translation>
    </message>
</context>
<context>
    <name>CameraSession</name>
    <message>
        <source>The camera %1 could not be opened: %2. Check that it is connected and powered, and that no other program uses it.</source>
        <translation>Die Kamera %1 ließ sich nicht öffnen: %2. Prüfen, ob sie angeschlossen ist, Strom hat und kein anderes Programm sie benutzt.</translation>
    </message>
    <message>
        <source>The camera offers none of the pixel formats Mono8, Mono12, Mono16 and RGB8.</source>
        <translation>Die Kamera bietet keines der Pixelformate Mono8, Mono12, Mono16 und RGB8.</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Es ist keine Kamera offen.</translation>
    </message>
    <message>
        <source>The camera %1 does not answer. Check its cable and power.</source>
        <translation>Die Kamera %1 antwortet nicht. Kabel und Strom prüfen.</translation>
    </message>
    <message>
        <source>The camera %1 sends no pictures: %2. Close it and open it again.</source>
        <translation>Die Kamera %1 schickt keine Bilder: %2. Schließen und neu öffnen.</translation>
    </message>
    <message>
        <source>The camera %1 did not start: %2. Close it and open it again.</source>
        <translation>Die Kamera %1 lief nicht an: %2. Schließen und neu öffnen.</translation>
    </message>
</context>
<context>
    <name>ConnectedCameras</name>
    <message>
        <source>Simulated Camera</source>
        <translation>Simulierte Kamera</translation>
    </message>
</context>
<context>
    <name>CreatePicture</name>
    <message>
        <source>its name ends in no format that can be written</source>
        <translation>sein Name endet auf kein Format, das geschrieben werden kann</translation>
    </message>
    <message>
        <source>End the name in .tif, .fits, .png or .jpg.</source>
        <translation>Den Namen auf .tif, .fits, .png oder .jpg enden lassen.</translation>
    </message>
</context>
<context>
    <name>DrawingGuard</name>
    <message>
        <source>OpenGL can&apos;t be started: %1. The picture is drawn by the CPU.</source>
        <translation>OpenGL lässt sich nicht starten: %1. Das Bild zeichnet die CPU.</translation>
    </message>
    <message>
        <source>OpenGL has failed. The picture is drawn by the CPU from here on.</source>
        <translation>OpenGL ist ausgefallen. Das Bild zeichnet von nun an die CPU.</translation>
    </message>
</context>
<context>
    <name>FaultNotice</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
</context>
<context>
    <name>FeatureView</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>For experts too</source>
        <translation>Auch für Fachleute</translation>
    </message>
    <message>
        <source>This program does not show panels its camera&apos;s features.</source>
        <translation>Dieses Programm zeigt Bedienfeldern die Merkmale seiner Kamera nicht.</translation>
    </message>
    <message>
        <source>Features of the camera</source>
        <translation>Merkmale der Kamera</translation>
    </message>
</context>
<context>
    <name>FieldForm</name>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 bis %2%3</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
</context>
<context>
    <name>FitsPictureWriter</name>
    <message>
        <source>frame %1 could not be written</source>
        <translation>das Bild %1 ließ sich nicht schreiben</translation>
    </message>
    <message>
        <source>the end of the file could not be written</source>
        <translation>das Ende der Datei ließ sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>FrameSaving</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>the memory is full</source>
        <translation>der Speicher ist voll</translation>
    </message>
    <message>
        <source>No frame came from the camera.</source>
        <translation>Von der Kamera kam kein Bild.</translation>
    </message>
</context>
<context>
    <name>InformationDialog</name>
    <message>
        <source>Camera Information</source>
        <translation>Kamerainformation</translation>
    </message>
    <message>
        <source>About the Workbench</source>
        <translation>Über die Workbench</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Workbench %1&lt;/h3&gt;&lt;p&gt;An open workspace for scientific cameras: live view, zoom, panels and measurement around any GenICam camera.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later. There is no warranty.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Workbench %1&lt;/h3&gt;&lt;p&gt;Ein offener Arbeitsplatz für wissenschaftliche Kameras: Livebild, Zoom, Bedienfelder und Messung um jede GenICam-Kamera.&lt;/p&gt;&lt;p&gt;Freie Software unter der GNU General Public License, Version 3 oder später. Ohne Gewähr.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Image Information</source>
        <translation>Bildinformation</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>LevelsDialog</name>
    <message>
        <source>Levels</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>Automatic (0.1 % to 99.9 %)</source>
        <translation>Automatisch (0,1 % bis 99,9 %)</translation>
    </message>
    <message>
        <source>Minimum and maximum</source>
        <translation>Minimum und Maximum</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Full range</source>
        <translation>Ganzer Bereich</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Art</translation>
    </message>
    <message>
        <source>&amp;Black</source>
        <translation>&amp;Schwarz</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Weiß</translation>
    </message>
    <message>
        <source>&amp;Gamma</source>
        <translation>&amp;Gamma</translation>
    </message>
    <message>
        <source>%1 bit floating point samples</source>
        <translation>Gleitkommawerte mit %1 Bit</translation>
    </message>
    <message>
        <source>%1 bit samples, %2 to %3</source>
        <translation>Werte mit %1 Bit, %2 bis %3</translation>
    </message>
</context>
<context>
    <name>LevelsSource</name>
    <message>
        <source>There is no live picture.</source>
        <translation>Es gibt kein Livebild.</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>Es ist kein Bild offen.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>Closing the program ends it.</source>
        <translation>Das Schließen des Programms beendet sie.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins…</source>
        <translation>&amp;Plug-ins…</translation>
    </message>
</context>
<context>
    <name>OpenGLProbe</name>
    <message>
        <source>the display offers none</source>
        <translation>die Anzeige bietet keines</translation>
    </message>
    <message>
        <source>the driver cannot build the program that draws</source>
        <translation>der Treiber kann das Programm zum Zeichnen nicht bauen</translation>
    </message>
    <message>
        <source>the driver gives no context</source>
        <translation>der Treiber gibt keinen Kontext</translation>
    </message>
</context>
<context>
    <name>OpenedPicture</name>
    <message>
        <source>Frame %1 of %2: %3</source>
        <translation>Bild %1 von %2: %3</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>No picture is open that could be saved.</source>
        <translation>Es ist kein Bild offen, das gespeichert werden könnte.</translation>
    </message>
</context>
<context>
    <name>PictureDesk</name>
    <message>
        <source>that is no file name</source>
        <translation>das ist kein Dateiname</translation>
    </message>
    <message>
        <source>there is a file of that name already</source>
        <translation>es gibt schon eine Datei dieses Namens</translation>
    </message>
    <message>
        <source>“%1” was not renamed to “%2”: %3.</source>
        <translation>„%1“ wurde nicht in „%2“ umbenannt: %3.</translation>
    </message>
    <message>
        <source>Open a picture first: the live picture is compared with it.</source>
        <translation>Zuerst ein Bild öffnen: Mit ihm wird das Livebild verglichen.</translation>
    </message>
    <message>
        <source>Open a second picture first: two are compared.</source>
        <translation>Zuerst ein zweites Bild öffnen: Zwei werden verglichen.</translation>
    </message>
    <message>
        <source>“%1” was saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
</context>
<context>
    <name>PictureDialogs</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Open Pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 compared</source>
        <translation>%1 verglichen</translation>
    </message>
</context>
<context>
    <name>PictureDocument</name>
    <message>
        <source>RGB, %1</source>
        <translation>RGB, %1</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Bilder</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>there is no frame %1 among its %2</source>
        <translation>es gibt kein Bild %1 unter seinen %2</translation>
    </message>
    <message>
        <source>Choose a frame that is there.</source>
        <translation>Ein Bild wählen, das da ist.</translation>
    </message>
    <message>
        <source>there is not enough memory for frame %1</source>
        <translation>der Speicher reicht nicht für das Bild %1</translation>
    </message>
</context>
<context>
    <name>PictureList</name>
    <message>
        <source>No picture is open. Drop files here, or choose File &gt; Open.</source>
        <translation>Es ist kein Bild offen. Dateien hierher ziehen oder Datei &gt; Öffnen wählen.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Show in File &amp;Directory</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Save Comparison…</source>
        <translation>Vergleich &amp;speichern…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>&amp;Alle schließen</translation>
    </message>
</context>
<context>
    <name>PictureLoader</name>
    <message>
        <source>There is not enough memory for “%1”. Close other pictures or programs.</source>
        <translation>Der Speicher reicht nicht für „%1“. Andere Bilder oder Programme schließen.</translation>
    </message>
    <message>
        <source>Frame %1 is too small to be cropped like the others. Undo the crop to see it.</source>
        <translation>Das Bild %1 ist zu klein, um wie die anderen zugeschnitten zu werden. Den Zuschnitt rückgängig machen, um es zu sehen.</translation>
    </message>
</context>
<context>
    <name>PictureMenus</name>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save Image As…	F8</source>
        <translation>Bild &amp;speichern unter…	F8</translation>
    </message>
    <message>
        <source>Image &amp;Information…</source>
        <translation>Bild&amp;information…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>&amp;Alle schließen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
</context>
<context>
    <name>PluginDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Panels are looked for in camera/ui, image/ui, measure/ui, report/ui and spectrum/ui below these folders, the first one that brings an id wins:
%1
More folders can be named in the variable GLOBALUI_PLUGIN_PATH.</source>
        <translation>Bedienfelder werden in camera/ui, image/ui, measure/ui, report/ui und spectrum/ui unter diesen Ordnern gesucht, das erste mit einer Nummer gilt:
%1
Weitere Ordner kann die Variable GLOBALUI_PLUGIN_PATH nennen.</translation>
    </message>
    <message>
        <source>Plug-ins that were found</source>
        <translation>Gefundene Plug-ins</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Bedienfeld</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>PluginList</name>
    <message>
        <source>Loaded</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>Nicht geladen: %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The settings were not used: %1. They were kept as %2.</source>
        <translation>Die Einstellungen wurden nicht benutzt: %1. Sie wurden als %2 aufgehoben.</translation>
    </message>
</context>
<context>
    <name>RasterPictureFile</name>
    <message>
        <source>it cannot be decoded</source>
        <translation>es lässt sich nicht entschlüsseln</translation>
    </message>
</context>
<context>
    <name>ReceiptDialog</name>
    <message>
        <source>&amp;Verify</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Read the files back and compare them with what was captured</source>
        <translation>Die Dateien zurücklesen und mit dem Aufgenommenen vergleichen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Reading the files…</source>
        <translation>Die Dateien werden gelesen…</translation>
    </message>
    <message>
        <source>The files hold exactly what was captured.</source>
        <translation>Die Dateien enthalten genau das Aufgenommene.</translation>
    </message>
    <message>
        <source>The files do NOT hold what was captured: checksum %1.</source>
        <translation>Die Dateien enthalten NICHT das Aufgenommene: Prüfsumme %1.</translation>
    </message>
</context>
<context>
    <name>RecordingDesk</name>
    <message>
        <source>A recording is running already.</source>
        <translation>Es läuft schon eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>There is no camera to record from. Choose one in the Camera menu.</source>
        <translation>Es gibt keine Kamera, von der aufgezeichnet werden könnte. Im Menü Kamera eine wählen.</translation>
    </message>
    <message>
        <source>The camera was lost before the recording could begin.</source>
        <translation>Die Kamera ging verloren, bevor die Aufzeichnung beginnen konnte.</translation>
    </message>
    <message>
        <source>the camera could not be started</source>
        <translation>die Kamera ließ sich nicht starten</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>The recording was discarded.</source>
        <translation>Die Aufzeichnung wurde verworfen.</translation>
    </message>
    <message>
        <source>%1 frames saved as %2</source>
        <translation>%1 Bilder gespeichert als %2</translation>
    </message>
    <message>
        <source>%1, none lost.</source>
        <translation>%1, keines verloren.</translation>
    </message>
    <message>
        <source>%1, %2 LOST.</source>
        <translation>%1, %2 VERLOREN.</translation>
    </message>
</context>
<context>
    <name>RecordingFields</name>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>One frame</source>
        <translation>Ein Bild</translation>
    </message>
    <message>
        <source>Number of frames</source>
        <translation>Anzahl Bilder</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Until stopped</source>
        <translation>Bis zum Stopp</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source> frames</source>
        <translation> Bilder</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Delay before it</source>
        <translation>Verzögerung davor</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>every frame</source>
        <translation>jedes Bild</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>To disk</source>
        <translation>Auf die Platte</translation>
    </message>
    <message>
        <source>To memory, then to disk</source>
        <translation>In den Speicher, dann auf die Platte</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>FITS cube</source>
        <translation>FITS-Würfel</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG-Folge</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>{camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4} are filled in.</source>
        <translation>{camera}, {date}, {time}, {exposure}, {gain}, {number} und {number:4} werden ersetzt.</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Nächste Datei</translation>
    </message>
    <message>
        <source>Waiting frames</source>
        <translation>Wartende Bilder</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Memory for frames that wait while the disk is busy.</source>
        <translation>Speicher für Bilder, die warten, solange die Platte beschäftigt ist.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>RecordingGuard</name>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>A recording is running. %1</source>
        <translation>Eine Aufzeichnung läuft. %1</translation>
    </message>
    <message>
        <source>&amp;Finish It</source>
        <translation>&amp;Abschließen</translation>
    </message>
    <message>
        <source>Keep what was recorded until now</source>
        <translation>Behalten, was bis jetzt aufgezeichnet ist</translation>
    </message>
    <message>
        <source>&amp;Discard It</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Go On Recording</source>
        <translation>&amp;Weiter aufzeichnen</translation>
    </message>
</context>
<context>
    <name>RecordingMenu</name>
    <message>
        <source>&amp;Recording</source>
        <translation>&amp;Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Aufnahme</translation>
    </message>
    <message>
        <source>Capture &amp;One Frame</source>
        <translation>&amp;Ein Bild aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Last Recording…</source>
        <translation>&amp;Letzte Aufzeichnung…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;Record What Fits</source>
        <translation>&amp;Aufzeichnen, was passt</translation>
    </message>
    <message>
        <source>Record &amp;Anyway</source>
        <translation>&amp;Trotzdem aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
</context>
<context>
    <name>RecordingStatus</name>
    <message>
        <source>saved %1</source>
        <translation>gespeichert %1</translation>
    </message>
    <message>
        <source>  LOST %1</source>
        <translation>  VERLOREN %1</translation>
    </message>
    <message>
        <source>  waiting %1 (%2)</source>
        <translation>  wartend %1 (%2)</translation>
    </message>
    <message>
        <source>  queue full in %1 s</source>
        <translation>  Schlange voll in %1 s</translation>
    </message>
    <message>
        <source>last recording LOST %1</source>
        <translation>letzte Aufzeichnung VERLOR %1</translation>
    </message>
</context>
<context>
    <name>RunSummary</name>
    <message>
        <source>never arrived from the camera</source>
        <translation>kamen nie von der Kamera an</translation>
    </message>
    <message>
        <source>arrived incomplete</source>
        <translation>kamen unvollständig an</translation>
    </message>
    <message>
        <source>the disk was too slow and the queue full</source>
        <translation>die Platte war zu langsam und die Schlange voll</translation>
    </message>
    <message>
        <source>could not be written to the disk</source>
        <translation>ließen sich nicht auf die Platte schreiben</translation>
    </message>
</context>
<context>
    <name>SampleType</name>
    <message>
        <source>%1-bit floating point</source>
        <translation>Gleitkomma mit %1 Bit</translation>
    </message>
    <message>
        <source>%1-bit signed integer</source>
        <translation>Ganzzahl mit Vorzeichen, %1 Bit</translation>
    </message>
    <message>
        <source>%1-bit unsigned integer</source>
        <translation>Ganzzahl ohne Vorzeichen, %1 Bit</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save Image As</source>
        <translation>Bild speichern unter</translation>
    </message>
    <message>
        <source>All %1 frames</source>
        <translation>Alle %1 Bilder</translation>
    </message>
</context>
<context>
    <name>StackOrder</name>
    <message>
        <source>channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>slice</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 von %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Camera &quot;%1&quot; was lost</source>
        <translation>Die Kamera „%1“ ging verloren</translation>
    </message>
    <message>
        <source>%1 and did not come back. Check its cable and power, then choose Camera &gt; Reconnect.</source>
        <translation>%1 und kam nicht zurück. Kabel und Strom prüfen, dann Kamera &gt; Wieder verbinden wählen.</translation>
    </message>
    <message>
        <source>%1; trying again now (%2 of %3)</source>
        <translation>%1; neuer Versuch läuft (%2 von %3)</translation>
    </message>
    <message>
        <source>%1; trying again in %2 s (%3 of %4)</source>
        <translation>%1; neuer Versuch in %2 s (%3 von %4)</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>%1 (lost)</source>
        <translation>%1 (verloren)</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>RGB 8 bit</source>
        <translation>RGB 8 Bit</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>shown %1  lost %2</source>
        <translation>gezeigt %1  verloren %2</translation>
    </message>
</context>
<context>
    <name>TiffPictureWriter</name>
    <message>
        <source>the file could not be begun</source>
        <translation>die Datei ließ sich nicht beginnen</translation>
    </message>
    <message>
        <source>frame %1 could not be written</source>
        <translation>das Bild %1 ließ sich nicht schreiben</translation>
    </message>
    <message>
        <source>the end of the file could not be written</source>
        <translation>das Ende der Datei ließ sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>&amp;File Directory</source>
        <translation>&amp;Dateien</translation>
    </message>
    <message>
        <source>&amp;Left Panel</source>
        <translation>&amp;Linkes Bedienfeld</translation>
    </message>
    <message>
        <source>&amp;Right Panel</source>
        <translation>&amp;Rechtes Bedienfeld</translation>
    </message>
    <message>
        <source>&amp;Bottom Panel</source>
        <translation>&amp;Unteres Bedienfeld</translation>
    </message>
    <message>
        <source>L&amp;evels…</source>
        <translation>&amp;Tonwerte…</translation>
    </message>
    <message>
        <source>&amp;Mark Saturated Pixels</source>
        <translation>Gesättigte Pixel &amp;markieren</translation>
    </message>
    <message>
        <source>C&amp;over</source>
        <translation>Ab&amp;deckung</translation>
    </message>
    <message>
        <source>&amp;Draw on Live Picture</source>
        <translation>Ins &amp;Livebild zeichnen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>%1 % dark</source>
        <translation>%1 % dunkel</translation>
    </message>
    <message>
        <source>&amp;Drawing</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;CPU</source>
        <translation>&amp;CPU</translation>
    </message>
    <message>
        <source>&amp;GPU (OpenGL)</source>
        <translation>&amp;GPU (OpenGL)</translation>
    </message>
    <message>
        <source>Simulated &amp;Scene</source>
        <translation>Simulierte &amp;Szene</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>Auss&amp;ehen</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Bl&amp;ack Background</source>
        <translation>Sch&amp;warzer Hintergrund</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Restore &amp;Default Layout</source>
        <translation>Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Die Sprache ändert sich beim nächsten Start.</translation>
    </message>
</context>
<context>
    <name>WorkbenchServices</name>
    <message>
        <source>A recording that was cut off could not be repaired: %1</source>
        <translation>Eine abgebrochene Aufzeichnung ließ sich nicht wiederherstellen: %1</translation>
    </message>
    <message>
        <source>A recording that was cut off held no whole frame: %1</source>
        <translation>Eine abgebrochene Aufzeichnung enthielt kein ganzes Bild: %1</translation>
    </message>
    <message>
        <source>A recording that was cut off was repaired: %1 frames in %2</source>
        <translation>Eine abgebrochene Aufzeichnung wurde wiederhergestellt: %1 Bilder in %2</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>There is no comparison to be saved: choose View &gt; Compare first.</source>
        <translation>Es gibt keinen Vergleich zu speichern: zuerst Ansicht &gt; Vergleichen wählen.</translation>
    </message>
</context>
<context>
    <name>WorkspaceConfig</name>
    <message>
        <source>Pictures can&apos;t be converted to CSV by this version.</source>
        <translation>Diese Version kann Bilder nicht in CSV umwandeln.</translation>
    </message>
    <message>
        <source>The DPI of a picture can&apos;t be changed by this version.</source>
        <translation>Diese Version kann die DPI eines Bildes nicht ändern.</translation>
    </message>
</context>
</TS>
