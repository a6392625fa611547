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
    <name>FileSystemView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>FileThumbnail</name>
    <message>
        <source>Merge</source>
        <translation>Zusammenfügen</translation>
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
</context>
<context>
    <name>MultiImageToolUI</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
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
    <name>UIManagerBase</name>
    <message>
        <source>The panel &quot;%1&quot; is not installed.</source>
        <translation>Das Bedienfeld „%1“ ist nicht installiert.</translation>
    </message>
    <message>
        <source>no plug-in brings this panel</source>
        <translation>kein Plug-in bringt dieses Bedienfeld mit</translation>
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
