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
    <name>AdjustmentFields</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Above 1 it brightens the middle.</source>
        <translation>Über 1 wird die Mitte heller.</translation>
    </message>
    <message>
        <source>Reset Levels</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Of mono pictures; colour pictures keep their own colours.</source>
        <translation>Für Graustufenbilder; Farbbilder behalten ihre Farben.</translation>
    </message>
    <message>
        <source>Mark saturated pixels</source>
        <translation>Gesättigte Pixel markieren</translation>
    </message>
    <message>
        <source>Pixels at full scale are shown red (Ctrl+M).</source>
        <translation>Pixel am oberen Anschlag werden rot gezeigt (Strg+M).</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Spiegeln ↔</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Strg+H</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Spiegeln ↕</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation>Strg+V</translation>
    </message>
    <message>
        <source>Rotate by 90°</source>
        <translation>Um 90° drehen</translation>
    </message>
    <message>
        <source>Clockwise (Ctrl+R)</source>
        <translation>Im Uhrzeigersinn (Strg+R)</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Lage</translation>
    </message>
</context>
<context>
    <name>AnalysisFields</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>AnalysisPanel</name>
    <message>
        <source>This program has no analysis.</source>
        <translation>Dieses Programm hat keine Auswertung.</translation>
    </message>
</context>
<context>
    <name>AppliedCorrections</name>
    <message>
        <source>average of fewer than %1 so far</source>
        <translation>Mittel aus bisher weniger als %1</translation>
    </message>
    <message>
        <source>average of %1</source>
        <translation>Mittel aus %1</translation>
    </message>
    <message>
        <source>no reference spectrum of this part of the picture</source>
        <translation>kein Referenzspektrum von diesem Teil des Bildes</translation>
    </message>
    <message>
        <source>transmission in 1/100 %</source>
        <translation>Transmission in 1/100 %</translation>
    </message>
    <message>
        <source>absorbance in 1/10000</source>
        <translation>Absorbanz in 1/10000</translation>
    </message>
    <message>
        <source>reference subtracted</source>
        <translation>Referenz abgezogen</translation>
    </message>
    <message>
        <source>dark and reference not of tracks</source>
        <translation>Dunkelspektrum und Referenz nicht bei Spuren</translation>
    </message>
    <message>
        <source>dark subtracted</source>
        <translation>Dunkelspektrum abgezogen</translation>
    </message>
    <message>
        <source>no dark spectrum of this part of the picture to subtract</source>
        <translation>kein Dunkelspektrum von diesem Teil des Bildes zum Abziehen</translation>
    </message>
    <message>
        <source>cosmic rays removed</source>
        <translation>kosmische Strahlung entfernt</translation>
    </message>
    <message>
        <source>baseline removed</source>
        <translation>Basislinie entfernt</translation>
    </message>
    <message>
        <source>smoothed over %1 samples</source>
        <translation>über %1 Werte geglättet</translation>
    </message>
    <message>
        <source>No correction is on.</source>
        <translation>Keine Korrektur ist an.</translation>
    </message>
    <message>
        <source>Corrections: %1.</source>
        <translation>Korrekturen: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>dark of another exposure subtracted: take it anew</source>
        <translation>Dunkelspektrum anderer Belichtung abgezogen: neu aufnehmen</translation>
    </message>
</context>
<context>
    <name>AutoCountPanel</name>
    <message>
        <source>This program does not count by itself.</source>
        <translation>Dieses Programm zählt nicht von selbst.</translation>
    </message>
</context>
<context>
    <name>Binning</name>
    <message>
        <source>The picture, %1x%2 pixels, is smaller than %3x%3.</source>
        <translation>Das Bild mit %1x%2 Pixeln ist kleiner als %3x%3.</translation>
    </message>
</context>
<context>
    <name>CalibratedAxis</name>
    <message>
        <source>Wavelength [nm]</source>
        <translation>Wellenlänge [nm]</translation>
    </message>
    <message>
        <source>Wavenumber [1/cm]</source>
        <translation>Wellenzahl [1/cm]</translation>
    </message>
    <message>
        <source>Raman Shift [1/cm]</source>
        <translation>Raman-Verschiebung [1/cm]</translation>
    </message>
    <message>
        <source>Pixel Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>The calibration was made for spectra of %1 pixels and this one has %2: positions are in pixels.</source>
        <translation>Die Kalibrierung gilt für Spektren mit %1 Pixeln und dieses hat %2: Positionen sind in Pixeln.</translation>
    </message>
    <message>
        <source>The calibration was made along the other side of the sensor: positions are in pixels. Change the direction or rotate the picture back, or calibrate anew.</source>
        <translation>Die Kalibrierung gilt längs der anderen Seite des Sensors: Positionen sind in Pixeln. Die Richtung ändern oder das Bild zurückdrehen oder neu kalibrieren.</translation>
    </message>
    <message>
        <source>The calibration was made for the sensor&apos;s pixels %1 to %2, and this spectrum has others too: positions are in pixels. Choose a region among those, or calibrate anew.</source>
        <translation>Die Kalibrierung gilt für die Pixel %1 bis %2 des Sensors, und dieses Spektrum hat auch andere: Positionen sind in Pixeln. Einen Bereich unter jenen wählen oder neu kalibrieren.</translation>
    </message>
    <message>
        <source>The calibration was made on an opened picture, which does not say what pixels of the sensor it shows: live spectra stay in pixels. Calibrate on a live one to have it there too.</source>
        <translation>Die Kalibrierung stammt von einem geöffneten Bild, das nicht sagt, welche Pixel des Sensors es zeigt: Live-Spektren bleiben in Pixeln. An einem Live-Spektrum kalibrieren, damit sie auch dort gilt.</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibrate the Spectrum</source>
        <translation>Spektrum kalibrieren</translation>
    </message>
    <message>
        <source>Lamps:</source>
        <translation>Lampen:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>A&amp;ssign Lines by Itself</source>
        <translation>Linien &amp;selbst zuordnen</translation>
    </message>
    <message>
        <source>First and last pixel, about:</source>
        <translation>Erstes und letztes Pixel, etwa:</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Linie:</translation>
    </message>
    <message>
        <source>Degree of the polynomial:</source>
        <translation>Grad des Polynoms:</translation>
    </message>
    <message>
        <source>pixel </source>
        <translation>Pixel </translation>
    </message>
    <message>
        <source>Add &amp;Line</source>
        <translation>&amp;Linie hinzufügen</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Wavelength [nm]</source>
        <translation>Wellenlänge [nm]</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Residual [pixel]</source>
        <translation>Abweichung [Pixel]</translation>
    </message>
    <message>
        <source>&amp;New Spectrum</source>
        <translation>&amp;Neues Spektrum</translation>
    </message>
    <message>
        <source>&amp;Remove Line</source>
        <translation>Linie &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>No &amp;Calibration</source>
        <translation>&amp;Keine Kalibrierung</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 nm %2</source>
        <translation>%1 nm %2</translation>
    </message>
    <message>
        <source>Lines are being assigned…</source>
        <translation>Die Linien werden zugeordnet…</translation>
    </message>
    <message>
        <source>No assignment fits: choose the lamps, say about which wavelengths the ends have, or add lines by hand.</source>
        <translation>Keine Zuordnung passt: die Lampen wählen, angeben, welche Wellenlängen die Enden etwa haben, oder Linien von Hand hinzufügen.</translation>
    </message>
    <message>
        <source>Choose a line from the list, or write its wavelength in nanometres.</source>
        <translation>Eine Linie aus der Liste wählen oder ihre Wellenlänge in Nanometern eingeben.</translation>
    </message>
    <message>
        <source>%1 peaks in a spectrum of %2 pixels. Click a peak, choose its line, and add it.</source>
        <translation>%1 Linien in einem Spektrum von %2 Pixeln. Eine anklicken, ihre Wellenlänge wählen und hinzufügen.</translation>
    </message>
    <message>
        <source>There is no spectrum: switch vertical binning on, or open a spectrum and click into it, then press New Spectrum.</source>
        <translation>Es gibt kein Spektrum: vertikales Binning einschalten oder ein Spektrum öffnen und hineinklicken, dann „Neues Spektrum“ drücken.</translation>
    </message>
    <message>
        <source>Residual %1 pixels (%2 nm) rms; with one more line the error of leaving one out is known.</source>
        <translation>Abweichung %1 Pixel (%2 nm) rms; mit einer weiteren Linie ist auch der Fehler beim Weglassen einer Linie bekannt.</translation>
    </message>
    <message>
        <source>Residual %1 pixels (%2 nm) rms; leaving one out: %3 pixels.</source>
        <translation>Abweichung %1 Pixel (%2 nm) rms; beim Weglassen je einer Linie: %3 Pixel.</translation>
    </message>
    <message>
        <source>%1 It is applied.</source>
        <translation>%1 Sie ist angewendet.</translation>
    </message>
    <message>
        <source>%1 Left out: peaks broader or narrower than a line: %2, two lines in one: %3, off the curve: %4.</source>
        <translation>%1 Ausgelassen: breiter oder schmaler als eine Linie: %2, zwei Linien in einer: %3, neben der Kurve: %4.</translation>
    </message>
    <message>
        <source>This spectrum has other pixels than the one before: its %1 lines, which were not applied, are gone.</source>
        <translation>Dieses Spektrum hat andere Pixel als das vorige: dessen %1 Linien, die nicht übernommen waren, sind weg.</translation>
    </message>
</context>
<context>
    <name>CalibrationFit</name>
    <message>
        <source>Two points lie at pixel %1 (%2 nm and %3 nm): remove one of them.</source>
        <translation>Zwei Punkte liegen bei Pixel %1 (%2 nm und %3 nm): einen davon entfernen.</translation>
    </message>
    <message>
        <source>Two points have the wavelength %1 nm (at pixel %2 and %3): give one of them another line.</source>
        <translation>Zwei Punkte haben die Wellenlänge %1 nm (bei Pixel %2 und %3): einem davon eine andere Linie geben.</translation>
    </message>
    <message>
        <source>The degree must be from %1 to %2.</source>
        <translation>Der Grad muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The point at pixel %1 lies outside the spectrum of %2 pixels: remove it.</source>
        <translation>Der Punkt bei Pixel %1 liegt außerhalb des Spektrums mit %2 Pixeln: ihn entfernen.</translation>
    </message>
    <message>
        <source>A polynomial of degree %1 needs at least %2 points and there are %3: assign more lines or choose a lower degree.</source>
        <translation>Ein Polynom vom Grad %1 braucht mindestens %2 Punkte, und es gibt %3: mehr Linien zuordnen oder einen niedrigeren Grad wählen.</translation>
    </message>
    <message>
        <source>With these points the wavelength does not rise or fall steadily (it turns at pixel %1): check which line each point has, or choose a lower degree.</source>
        <translation>Mit diesen Punkten steigt oder fällt die Wellenlänge nicht stetig (sie kehrt bei Pixel %1 um): prüfen, welche Linie jeder Punkt hat, oder einen niedrigeren Grad wählen.</translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>This program does not calibrate.</source>
        <translation>Dieses Programm kalibriert nicht.</translation>
    </message>
</context>
<context>
    <name>CalibrationPlot</name>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Zählwert</translation>
    </message>
    <message>
        <source>Residual [pixel]</source>
        <translation>Abweichung [Pixel]</translation>
    </message>
</context>
<context>
    <name>CalibrationPoint</name>
    <message>
        <source>saturated</source>
        <translation>gesättigt</translation>
    </message>
    <message>
        <source>%1 (saturated)</source>
        <translation>%1 (gesättigt)</translation>
    </message>
</context>
<context>
    <name>CalibrationTable</name>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Wavelength [nm]</source>
        <translation>Wellenlänge [nm]</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Residual [px]</source>
        <translation>Abweichung [px]</translation>
    </message>
    <message>
        <source>Not calibrated: positions are in pixels. Spectrum &gt; Calibrate… (Ctrl+Shift+L) takes the lines of a lamp.</source>
        <translation>Nicht kalibriert: Positionen in Pixeln. Spektrum &gt; Kalibrieren… (Strg+Umschalt+L) nimmt die Linien einer Lampe.</translation>
    </message>
    <message>
        <source>“%1” was saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
</context>
<context>
    <name>CameraAdjustmentPanel</name>
    <message>
        <source>This program does not let panels adjust its live picture.</source>
        <translation>Dieses Programm lässt Bedienfelder sein Livebild nicht anpassen.</translation>
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
    <name>CameraDevice</name>
    <message>
        <source>The camera %1 could not be opened: %2. Check that it is connected and powered, and that no other program uses it.</source>
        <translation>Die Kamera %1 ließ sich nicht öffnen: %2. Prüfen, ob sie angeschlossen ist, Strom hat und kein anderes Programm sie benutzt.</translation>
    </message>
    <message>
        <source>The camera offers none of the pixel formats Mono8, Mono12, Mono16 and RGB8.</source>
        <translation>Die Kamera bietet keines der Pixelformate Mono8, Mono12, Mono16 und RGB8.</translation>
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
    <message>
        <source>its frames have no size</source>
        <translation>ihre Bilder haben keine Größe</translation>
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
    <message>
        <source>The camera has chosen a pixel format that can&apos;t be shown. It is %1 again.</source>
        <translation>Die Kamera hatte ein Pixelformat gewählt, das nicht gezeigt werden kann. Es ist wieder %1.</translation>
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
    <message>
        <source>automatic exposure</source>
        <translation>automatische Belichtung</translation>
    </message>
    <message>
        <source>automatic gain</source>
        <translation>automatische Verstärkung</translation>
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
        <translation>Bi&amp;nning</translation>
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
    <name>ClassCountPanel</name>
    <message>
        <source>This program does not count by class.</source>
        <translation>Dieses Programm zählt nicht nach Klassen.</translation>
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
    <name>CopyWithResolution</name>
    <message>
        <source>its header makes no sense</source>
        <translation>der Dateikopf ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>this old kind of BMP has no place for a resolution</source>
        <translation>diese alte Art von BMP hat keinen Platz für eine Auflösung</translation>
    </message>
    <message>
        <source>Save the picture as TIFF or PNG first.</source>
        <translation>Das Bild zuerst als TIFF oder PNG speichern.</translation>
    </message>
    <message>
        <source>a JPEG file holds at most %1 pixels an inch</source>
        <translation>eine JPEG-Datei fasst höchstens %1 Pixel je Zoll</translation>
    </message>
    <message>
        <source>Choose a lower resolution.</source>
        <translation>Eine niedrigere Auflösung wählen.</translation>
    </message>
    <message>
        <source>this format has no place for a resolution</source>
        <translation>dieses Format hat keinen Platz für eine Auflösung</translation>
    </message>
</context>
<context>
    <name>CorrectionsLine</name>
    <message>
        <source>None: an opened file is shown as it was saved.</source>
        <translation>Keine: Eine geöffnete Datei wird gezeigt, wie sie gespeichert wurde.</translation>
    </message>
    <message>
        <source>There is no spectrum yet.</source>
        <translation>Es gibt noch kein Spektrum.</translation>
    </message>
    <message>
        <source>%1 Values below zero are drawn at zero.</source>
        <translation>%1 Werte unter null werden bei null gezeichnet.</translation>
    </message>
</context>
<context>
    <name>CountFields</name>
    <message>
        <source>Find the level</source>
        <translation>Schwelle bestimmen</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Objects are darker</source>
        <translation>Objekte sind dunkler</translation>
    </message>
    <message>
        <source>Fill holes</source>
        <translation>Löcher füllen</translation>
    </message>
    <message>
        <source>Split objects that touch</source>
        <translation>Berührende Objekte trennen</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Einschnürung</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>How much narrower, on each side, a waist is than the parts that it parts.</source>
        <translation>Um wie viel schmaler, auf jeder Seite, eine Einschnürung ist als die Teile, die sie trennt.</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Area from</source>
        <translation>Fläche ab</translation>
    </message>
    <message>
        <source>Area to</source>
        <translation>Fläche bis</translation>
    </message>
    <message>
        <source>Circularity from</source>
        <translation>Zirkularität ab</translation>
    </message>
    <message>
        <source>4π area / perimeter²: 1 for a disc, less the longer or rougher an object is.</source>
        <translation>4π Fläche / Umfang²: 1 für eine Scheibe, weniger, je länger oder rauer ein Objekt ist.</translation>
    </message>
    <message>
        <source>Circularity to</source>
        <translation>Zirkularität bis</translation>
    </message>
    <message>
        <source>Leave out objects at the edge</source>
        <translation>Objekte am Rand weglassen</translation>
    </message>
    <message>
        <source>What counts</source>
        <translation>Was zählt</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Pixelgröße</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Side of a pixel in the specimen; areas and lengths of the table are in this unit.</source>
        <translation>Seite eines Pixels in der Probe; Flächen und Längen der Tabelle stehen in dieser Einheit.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>&amp;End Counting</source>
        <translation>Zählung &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Count</source>
        <translation>&amp;Zählen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>Es ist kein Bild offen.</translation>
    </message>
    <message>
        <source>Nothing is being counted.</source>
        <translation>Es wird nichts gezählt.</translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
</context>
<context>
    <name>CountingPanel</name>
    <message>
        <source>This program does not let panels count in its pictures.</source>
        <translation>Dieses Programm lässt Bedienfelder nicht in seinen Bildern zählen.</translation>
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
    <name>CurveStatus</name>
    <message>
        <source>curves of one line</source>
        <translation>Kurven einer Zeile</translation>
    </message>
    <message>
        <source>curves: mean of %1 lines</source>
        <translation>Kurven: Mittel aus %1 Zeilen</translation>
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
    <name>EditedFrames</name>
    <message>
        <source>Frame %1 is too small to be cropped like the others. Undo the crop to see it.</source>
        <translation>Das Bild %1 ist zu klein, um wie die anderen zugeschnitten zu werden. Den Zuschnitt rückgängig machen, um es zu sehen.</translation>
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
    <name>FileFault</name>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>“%1” was not saved: %2</source>
        <translation>„%1“ wurde nicht gespeichert: %2</translation>
    </message>
    <message>
        <source>The file is damaged or was cut short: copy it again from where it came from.</source>
        <translation>Die Datei ist beschädigt oder abgeschnitten: sie noch einmal von ihrem Ursprung kopieren.</translation>
    </message>
    <message>
        <source>Save it from the program that made it as an ordinary TIFF, FITS or PNG file.</source>
        <translation>Das Bild in dem Programm, das es erzeugt hat, als gewöhnliche TIFF-, FITS- oder PNG-Datei speichern.</translation>
    </message>
    <message>
        <source>Check the free space and your rights in that folder, or choose another one; the old file is unchanged.</source>
        <translation>Den freien Platz und die Rechte in diesem Ordner prüfen oder einen anderen wählen; die alte Datei ist unverändert.</translation>
    </message>
    <message>
        <source>Close other pictures or programs and try again.</source>
        <translation>Andere Bilder oder Programme schließen und noch einmal versuchen.</translation>
    </message>
</context>
<context>
    <name>FileJobs</name>
    <message>
        <source>There is not enough memory for “%1”. Close other pictures or programs.</source>
        <translation>Der Speicher reicht nicht für „%1“. Andere Bilder oder Programme schließen.</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3, channels: %4</source>
        <translation>%1 x %2 Pixel, %3, Kanäle: %4</translation>
    </message>
    <message>
        <source>“%1” was written as “%2”.</source>
        <translation>„%1“ wurde als „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels an inch now.</source>
        <translation>„%1“ hat jetzt %2 Pixel je Zoll.</translation>
    </message>
    <message>
        <source>%1 pictures were merged into “%2”.</source>
        <translation>%1 Bilder wurden in „%2“ zusammengefügt.</translation>
    </message>
    <message>
        <source>The pictures were not merged: “%1” (%2) and “%3” (%4) differ. Choose pictures of one size and one kind of samples.</source>
        <translation>Die Bilder wurden nicht zusammengefügt: „%1“ (%2) und „%3“ (%4) unterscheiden sich. Bilder gleicher Größe mit Werten gleicher Art wählen.</translation>
    </message>
</context>
<context>
    <name>FilePageCommands</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more</source>
        <translation>
            <numerusform>„%1“ und %n weiteres</numerusform>
            <numerusform>„%1“ und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a picture first: its samples are written as CSV.</source>
        <translation>Zuerst ein Bild öffnen: Seine Werte werden als CSV geschrieben.</translation>
    </message>
    <message>
        <source>Select pictures first: their samples are written as CSV.</source>
        <translation>Zuerst Bilder auswählen: Ihre Werte werden als CSV geschrieben.</translation>
    </message>
    <message>
        <source>Select pictures first: their resolution is changed.</source>
        <translation>Zuerst Bilder auswählen: Ihre Auflösung wird geändert.</translation>
    </message>
    <message>
        <source>Open a picture first: its resolution is changed.</source>
        <translation>Zuerst ein Bild öffnen: Seine Auflösung wird geändert.</translation>
    </message>
    <message>
        <source>Modify DPI</source>
        <translation>DPI ändern</translation>
    </message>
    <message>
        <source>Pixels an inch (DPI) of %1. The file is written anew; its samples stay.</source>
        <translation>Pixel je Zoll (DPI) von %1. Die Datei wird neu geschrieben; ihre Werte bleiben.</translation>
    </message>
    <message>
        <source>Select two or more pictures first: they are merged into one file.</source>
        <translation>Zuerst zwei oder mehr Bilder auswählen: Sie werden in eine Datei zusammengefügt.</translation>
    </message>
    <message numerus="yes">
        <source>Merge %n Pictures</source>
        <translation>
            <numerusform>%n Bild zusammenfügen</numerusform>
            <numerusform>%n Bilder zusammenfügen</numerusform>
        </translation>
    </message>
    <message>
        <source>TIFF (*.tif *.tiff)</source>
        <translation>TIFF (*.tif *.tiff)</translation>
    </message>
    <message>
        <source>%1 merged.tif</source>
        <translation>%1 zusammengefügt.tif</translation>
    </message>
</context>
<context>
    <name>FitsHeader</name>
    <message>
        <source>the header that begins at byte %1 has no end</source>
        <translation>der Kopf, der bei Byte %1 beginnt, hat kein Ende</translation>
    </message>
</context>
<context>
    <name>FitsLayout</name>
    <message>
        <source>its samples of %1 bits make no sense</source>
        <translation>die Werte mit %1 Bit ergeben keinen Sinn</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels in %3 frames, makes no sense</source>
        <translation>die Größe, %1 x %2 Pixel in %3 Bildern, ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels in %3 frames, is more than its %4 compressed bytes can hold</source>
        <translation>die Größe, %1 x %2 Pixel in %3 Bildern, ist mehr, als die %4 komprimierten Byte fassen können</translation>
    </message>
    <message>
        <source>a frame of %1 x %2 pixels takes %3 bytes, but the file has only %4 after its header</source>
        <translation>ein Bild mit %1 x %2 Pixeln braucht %3 Byte, aber die Datei hat nach ihrem Kopf nur %4</translation>
    </message>
    <message>
        <source>its header describes no picture</source>
        <translation>der Dateikopf beschreibt kein Bild</translation>
    </message>
</context>
<context>
    <name>FitsPictureFile</name>
    <message>
        <source>there is no picture in it, only tables or nothing</source>
        <translation>es ist kein Bild darin, nur Tabellen oder nichts</translation>
    </message>
    <message>
        <source>compressed</source>
        <translation>komprimiert</translation>
    </message>
    <message>
        <source>in extension %1</source>
        <translation>in Erweiterung %1</translation>
    </message>
    <message>
        <source>only the first %1 of its %2 frames are there</source>
        <translation>nur die ersten %1 von %2 Bildern sind da</translation>
    </message>
    <message>
        <source>frame %1 of %2 is not whole</source>
        <translation>das Bild %1 von %2 ist nicht vollständig</translation>
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
    <name>FitsRunWriter</name>
    <message>
        <source>a FITS cube holds frames of one channel, not colour</source>
        <translation>ein FITS-Würfel fasst Bilder mit einem Kanal, keine Farbe</translation>
    </message>
    <message>
        <source>Record colour as TIFF or PNG.</source>
        <translation>Farbe als TIFF oder PNG aufzeichnen.</translation>
    </message>
    <message>
        <source>its header or its table of frames could not be written</source>
        <translation>der Dateikopf oder die Tabelle der Bilder ließ sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>FitsTiles</name>
    <message>
        <source>Unpack it with funpack.</source>
        <translation>Mit funpack entpacken.</translation>
    </message>
    <message>
        <source>the table of its tiles has no size</source>
        <translation>die Tabelle der Kacheln hat keine Größe</translation>
    </message>
    <message>
        <source>the table of its tiles is not whole</source>
        <translation>die Tabelle der Kacheln ist nicht vollständig</translation>
    </message>
    <message>
        <source>its compression (%1) is not supported</source>
        <translation>die Kompression (%1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>its compression has parameters that make no sense</source>
        <translation>die Kompression hat Parameter, die keinen Sinn ergeben</translation>
    </message>
    <message>
        <source>its compressed tiles reach over several frames, which is not supported</source>
        <translation>die komprimierten Kacheln reichen über mehrere Bilder, was nicht unterstützt wird</translation>
    </message>
    <message>
        <source>frame %1 of %2: tile %3 cannot be decoded</source>
        <translation>Bild %1 von %2: Die Kachel %3 lässt sich nicht entschlüsseln</translation>
    </message>
    <message>
        <source>its packed data is damaged</source>
        <translation>ihre gepackten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>it has no data in the file</source>
        <translation>sie hat keine Daten in der Datei</translation>
    </message>
</context>
<context>
    <name>FlatField</name>
    <message>
        <source>The reference is %1 pixels and the picture %2. Choose a reference of the same size, and correct the picture before it is cropped, turned or binned.</source>
        <translation>Die Referenz misst %1 Pixel und das Bild %2. Eine Referenz gleicher Größe wählen und das Bild korrigieren, bevor es zugeschnitten, gedreht oder gebinnt wird.</translation>
    </message>
</context>
<context>
    <name>FrameSaving</name>
    <message>
        <source>the memory is full</source>
        <translation>der Speicher ist voll</translation>
    </message>
    <message>
        <source>No frame came from the camera.</source>
        <translation>Von der Kamera kam kein Bild.</translation>
    </message>
    <message>
        <source>No whole frame came from the camera: %1 were lost on the way.</source>
        <translation>Von der Kamera kam kein vollständiges Bild: %1 gingen unterwegs verloren.</translation>
    </message>
</context>
<context>
    <name>HistogramFields</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
</context>
<context>
    <name>HistogramPage</name>
    <message>
        <source>Histogram of the live picture</source>
        <translation>Histogramm des Livebilds</translation>
    </message>
</context>
<context>
    <name>HistogramPanel</name>
    <message>
        <source>This program tells nothing of its live samples.</source>
        <translation>Dieses Programm sagt nichts über seine Livewerte.</translation>
    </message>
</context>
<context>
    <name>ImageAdjustmentPanel</name>
    <message>
        <source>This program does not let panels adjust its pictures.</source>
        <translation>Dieses Programm lässt Bedienfelder seine Bilder nicht anpassen.</translation>
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
    <name>LedgerLine</name>
    <message>
        <source>Spectra of %1 of %2 frames, none missed.</source>
        <translation>Spektren von %1 der %2 Bilder, keines verpasst.</translation>
    </message>
    <message>
        <source>Spectra of %1 of %2 frames; %3 came too fast and were missed.</source>
        <translation>Spektren von %1 der %2 Bilder; %3 kamen zu schnell und wurden verpasst.</translation>
    </message>
</context>
<context>
    <name>LevelsDialog</name>
    <message>
        <source>Levels</source>
        <translation>Tonwerte</translation>
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
    <name>LevelsTexts</name>
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
        <source>%1 bit floating point samples</source>
        <translation>Gleitkommawerte mit %1 Bit</translation>
    </message>
    <message>
        <source>%1 bit samples, %2 to %3</source>
        <translation>Werte mit %1 Bit, %2 bis %3</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Grau</translation>
    </message>
    <message>
        <source>&amp;Inverted</source>
        <translation>&amp;Invertiert</translation>
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
    <name>NamePattern</name>
    <message>
        <source>&quot;{%1}&quot; is not known. There are {camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4}.</source>
        <translation>„{%1}“ ist unbekannt. Es gibt {camera}, {date}, {time}, {exposure}, {gain}, {number} und {number:4}.</translation>
    </message>
    <message>
        <source>A brace is left open. Write {date}, for instance.</source>
        <translation>Eine Klammer ist offen geblieben. Zum Beispiel {date} schreiben.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
</context>
<context>
    <name>ObjectCount</name>
    <message>
        <source>There is no picture whose objects could be counted.</source>
        <translation>Es gibt kein Bild, dessen Objekte gezählt werden könnten.</translation>
    </message>
    <message>
        <source>The objects could not be counted: %1.</source>
        <translation>Die Objekte ließen sich nicht zählen: %1.</translation>
    </message>
</context>
<context>
    <name>ObjectTable</name>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Area (%1)</source>
        <translation>Fläche (%1)</translation>
    </message>
    <message>
        <source>Area (px)</source>
        <translation>Fläche (px)</translation>
    </message>
    <message>
        <source>X (%1)</source>
        <translation>X (%1)</translation>
    </message>
    <message>
        <source>Y (%1)</source>
        <translation>Y (%1)</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Diameter (%1)</source>
        <translation>Durchmesser (%1)</translation>
    </message>
    <message>
        <source>Perimeter (%1)</source>
        <translation>Umfang (%1)</translation>
    </message>
    <message>
        <source>Circularity</source>
        <translation>Zirkularität</translation>
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
    <name>OpenPicture</name>
    <message>
        <source>Look whether it was moved or renamed.</source>
        <translation>Prüfen, ob die Datei verschoben oder umbenannt wurde.</translation>
    </message>
    <message>
        <source>Ask its owner for the right to read it, or copy it to a folder of yours.</source>
        <translation>Den Eigentümer um das Leserecht bitten oder die Datei in einen eigenen Ordner kopieren.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>Choose the picture files in it.</source>
        <translation>Die Bilddateien darin wählen.</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Choose a picture file.</source>
        <translation>Eine Bilddatei wählen.</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it is a compressed archive</source>
        <translation>es ist ein komprimiertes Archiv</translation>
    </message>
    <message>
        <source>Unpack it first.</source>
        <translation>Zuerst entpacken.</translation>
    </message>
    <message>
        <source>its content is none of TIFF, FITS, PNG, JPEG, BMP or SPE</source>
        <translation>der Inhalt ist weder TIFF, FITS, PNG, JPEG, BMP noch SPE</translation>
    </message>
    <message>
        <source>“%1” is a %2 file, though its name does not end in “.%3”.</source>
        <translation>„%1“ ist eine %2-Datei, obwohl der Name nicht auf „.%3“ endet.</translation>
    </message>
    <message>
        <source>there is not enough memory to open it</source>
        <translation>der Speicher reicht nicht, um es zu öffnen</translation>
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
    <name>OpenedTracksNotice</name>
    <message>
        <source>An opened file has no tracks: go to the camera.</source>
        <translation>Eine geöffnete Datei hat keine Spuren: Wechseln Sie zur Kamera.</translation>
    </message>
</context>
<context>
    <name>PanelSources</name>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No tool is chosen.</source>
        <translation>Kein Werkzeug ist gewählt.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Nothing was counted by class.</source>
        <translation>Nach Klassen wurde nichts gezählt.</translation>
    </message>
</context>
<context>
    <name>PictureAccess</name>
    <message>
        <source>“%1” was deleted or moved. It stays open; save it to keep it.</source>
        <translation>„%1“ wurde gelöscht oder verschoben. Das Bild bleibt offen; speichern, um es zu behalten.</translation>
    </message>
    <message>
        <source>“%1” was changed on the disk. Open it again to see it as it is now.</source>
        <translation>„%1“ wurde auf der Platte geändert. Neu öffnen, um den jetzigen Stand zu sehen.</translation>
    </message>
    <message>
        <source>“%1” was replaced by another file. What you see is the old one; open it again to see the new one.</source>
        <translation>„%1“ wurde durch eine andere Datei ersetzt. Zu sehen ist die alte; neu öffnen, um die neue zu sehen.</translation>
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
    <message>
        <source>“%1” was changed while it was saved onto its own file: what was done meanwhile is lost. Do it again.</source>
        <translation>„%1“ wurde geändert, während es in die eigene Datei gespeichert wurde: Was inzwischen getan wurde, ist verloren. Noch einmal tun.</translation>
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
    <message>
        <source>“%1”: %2. %3</source>
        <translation>„%1“: %2. %3</translation>
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
    <message>
        <source>Opened pictures</source>
        <translation>Geöffnete Bilder</translation>
    </message>
</context>
<context>
    <name>PictureLoader</name>
    <message>
        <source>There is not enough memory for “%1”. Close other pictures or programs.</source>
        <translation>Der Speicher reicht nicht für „%1“. Andere Bilder oder Programme schließen.</translation>
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
    <message>
        <source>&amp;Save Image As…</source>
        <translation>Bild speichern &amp;unter…</translation>
    </message>
</context>
<context>
    <name>PictureNotes</name>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
</context>
<context>
    <name>PictureThumbnails</name>
    <message>
        <source>“%1” is too large for a thumbnail. It can still be opened.</source>
        <translation>„%1“ ist zu groß für ein Vorschaubild. Öffnen lässt es sich trotzdem.</translation>
    </message>
    <message>
        <source>There is not enough memory for a thumbnail of “%1”.</source>
        <translation>Der Speicher reicht nicht für ein Vorschaubild von „%1“.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>frame %1 of %2 was to be written</source>
        <translation>das Bild %1 von %2 sollte geschrieben werden</translation>
    </message>
    <message>
        <source>Save it again.</source>
        <translation>Noch einmal speichern.</translation>
    </message>
    <message>
        <source>frame %1 has another size or sample type than the first one</source>
        <translation>das Bild %1 hat eine andere Größe oder Art von Werten als das erste</translation>
    </message>
    <message>
        <source>Save the frames to files of their own.</source>
        <translation>Die Bilder in eigene Dateien speichern.</translation>
    </message>
    <message>
        <source>only %1 of its %2 frames were written</source>
        <translation>nur %1 von %2 Bildern wurden geschrieben</translation>
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
    <message>
        <source>Loaded, but not seen: %1</source>
        <translation>Geladen, aber nicht zu sehen: %1</translation>
    </message>
</context>
<context>
    <name>PngRunWriter</name>
    <message>
        <source>a sequence of that name is there already</source>
        <translation>es gibt schon eine Folge dieses Namens</translation>
    </message>
    <message>
        <source>Choose another name; recordings never replace a file.</source>
        <translation>Einen anderen Namen wählen; Aufzeichnungen ersetzen nie eine Datei.</translation>
    </message>
    <message>
        <source>frame %1 could not be compressed</source>
        <translation>das Bild %1 ließ sich nicht komprimieren</translation>
    </message>
    <message>
        <source>its first frame could not be read again</source>
        <translation>das erste Bild ließ sich nicht wieder lesen</translation>
    </message>
</context>
<context>
    <name>ProcessChoices</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Keep fractions</source>
        <translation>Nachkommastellen behalten</translation>
    </message>
    <message>
        <source>The result is floating point instead of the kind of samples of the frames.</source>
        <translation>Das Ergebnis ist Gleitkomma statt der Art der Werte der Bilder.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Flat field</source>
        <translation>Flachfeld</translation>
    </message>
    <message>
        <source>Denoise</source>
        <translation>Entrauschen</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>Morphology</source>
        <translation>Morphologie</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Band pass</source>
        <translation>Bandpass</translation>
    </message>
    <message>
        <source>Projection of the stack</source>
        <translation>Projektion des Stapels</translation>
    </message>
    <message>
        <source>Merge pictures</source>
        <translation>Bilder zusammenfügen</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>A level</source>
        <translation>Fester Tonwert</translation>
    </message>
    <message>
        <source>Wide structures</source>
        <translation>Breite Strukturen</translation>
    </message>
    <message>
        <source>A slope</source>
        <translation>Gefälle</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Tonwert</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Structures that are narrower than twice the radius stay.</source>
        <translation>Strukturen, die schmaler als der doppelte Radius sind, bleiben.</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>An opened picture of an evenly lit field, of the same size.</source>
        <translation>Ein offenes Bild eines gleichmäßig beleuchteten Feldes, von gleicher Größe.</translation>
    </message>
    <message>
        <source>Open a picture of an evenly lit field beside this one.</source>
        <translation>Neben diesem ein Bild eines gleichmäßig beleuchteten Feldes öffnen.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gauß</translation>
    </message>
    <message>
        <source>Bilateral</source>
        <translation>Bilateral</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Edge height</source>
        <translation>Kantenhöhe</translation>
    </message>
    <message>
        <source>Steps that are higher than this, in units of the samples, stay sharp.</source>
        <translation>Stufen, die höher als dies sind, in Einheiten der Werte, bleiben scharf.</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Find the level</source>
        <translation>Schwelle bestimmen</translation>
    </message>
    <message>
        <source>Take what is darker</source>
        <translation>Dunkleres nehmen</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Erodieren</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Dilatieren</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Top hat</source>
        <translation>Top-Hat</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Scheibe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>all small ones</source>
        <translation>alle kleinen</translation>
    </message>
    <message>
        <source>Smaller structures are taken away.</source>
        <translation>Kleinere Strukturen werden entfernt.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>all large ones</source>
        <translation>alle großen</translation>
    </message>
    <message>
        <source>Larger structures are taken away.</source>
        <translation>Größere Strukturen werden entfernt.</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Check the other pictures to merge in the list of opened pictures.</source>
        <translation>Die übrigen Bilder zum Zusammenfügen in der Liste der offenen Bilder ankreuzen.</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Mit</translation>
    </message>
</context>
<context>
    <name>ProcessFields</name>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Schritt</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Verarbeitung</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>Es ist kein Bild offen.</translation>
    </message>
    <message>
        <source>Choose a step to try it on the picture.</source>
        <translation>Einen Schritt wählen, um ihn am Bild zu erproben.</translation>
    </message>
    <message>
        <source>Tried on the picture, not applied yet.</source>
        <translation>Am Bild erprobt, noch nicht übernommen.</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>Wird berechnet…</translation>
    </message>
    <message>
        <source>There is nothing to apply: choose a step in the panel Process first.</source>
        <translation>Es gibt nichts zu übernehmen: zuerst im Bedienfeld Verarbeitung einen Schritt wählen.</translation>
    </message>
</context>
<context>
    <name>ProcessPanel</name>
    <message>
        <source>This program does not let panels process its pictures.</source>
        <translation>Dieses Programm lässt Bedienfelder seine Bilder nicht verarbeiten.</translation>
    </message>
</context>
<context>
    <name>Processing</name>
    <message>
        <source>Choose a reference: a picture of an evenly lit field.</source>
        <translation>Eine Referenz wählen: ein Bild eines gleichmäßig beleuchteten Feldes.</translation>
    </message>
    <message>
        <source>Check the other pictures to merge in the list of opened pictures.</source>
        <translation>Die übrigen Bilder zum Zusammenfügen in der Liste der offenen Bilder ankreuzen.</translation>
    </message>
    <message>
        <source>There is no picture that could be processed.</source>
        <translation>Es gibt kein Bild, das verarbeitet werden könnte.</translation>
    </message>
    <message>
        <source>The picture could not be processed: %1.</source>
        <translation>Das Bild ließ sich nicht verarbeiten: %1.</translation>
    </message>
    <message>
        <source>This needs %1 of memory, and %2 is free. Close other pictures or programs.</source>
        <translation>Das braucht %1 Speicher, und %2 sind frei. Andere Bilder oder Programme schließen.</translation>
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
    <name>RasterHeader</name>
    <message>
        <source>it ends in the middle of its %1 (from byte %2)</source>
        <translation>die Datei endet mitten in %1 (ab Byte %2)</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels, is more than its %3 bytes of picture data can hold</source>
        <translation>die Größe, %1 x %2 Pixel, ist mehr, als %3 Byte Bilddaten fassen können</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels, makes no sense</source>
        <translation>die Größe, %1 x %2 Pixel, ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>its header makes no sense</source>
        <translation>der Dateikopf ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>its colour type %1 with %2 bits makes no sense</source>
        <translation>der Farbtyp %1 mit %2 Bit ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>list of parts</source>
        <translation>der Teileliste</translation>
    </message>
    <message>
        <source>part %1</source>
        <translation>Teil %1</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>der Dateikopf fehlt</translation>
    </message>
    <message>
        <source>its samples of %1 bits are not supported</source>
        <translation>Werte mit %1 Bit werden nicht unterstützt</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation>die Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>picture data</source>
        <translation>den Bilddaten</translation>
    </message>
    <message>
        <source>header</source>
        <translation>dem Dateikopf</translation>
    </message>
    <message>
        <source>it is of an early kind of BMP that is not supported</source>
        <translation>es ist eine frühe Art von BMP, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>a picture of %1 x %2 pixels takes %3 bytes, but the file has only %4 after its header</source>
        <translation>ein Bild mit %1 x %2 Pixeln braucht %3 Byte, aber die Datei hat nach ihrem Kopf nur %4</translation>
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
    <name>RasterPictureWriter</name>
    <message>
        <source>%1 cannot hold %2 frames of %3 samples</source>
        <translation>%1 kann dies nicht fassen (Bilder: %2, Werte: %3)</translation>
    </message>
    <message>
        <source>Save it as TIFF or FITS, or save a single frame with fewer bits.</source>
        <translation>Als TIFF oder FITS speichern oder ein einzelnes Bild mit weniger Bit speichern.</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>it could not be encoded</source>
        <translation>es ließ sich nicht kodieren</translation>
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
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>RecordRun</name>
    <message>
        <source>No frame came from the camera.</source>
        <translation>Von der Kamera kam kein Bild.</translation>
    </message>
    <message>
        <source>The recording did not begin: the camera was lost, or did not answer in time.</source>
        <translation>Die Aufzeichnung hat nicht begonnen: Die Kamera ging verloren oder antwortete nicht rechtzeitig.</translation>
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
    <message>
        <source>The recording ended early: %1. %2</source>
        <translation>Die Aufzeichnung endete vorzeitig: %1. %2</translation>
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
        <translation>Auf&amp;zeichnung</translation>
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
        <translation>Ei&amp;nstellungen</translation>
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
    <message>
        <source>in memory %1</source>
        <translation>im Speicher %1</translation>
    </message>
    <message>
        <source>  memory full in %1 s</source>
        <translation>  Speicher voll in %1 s</translation>
    </message>
    <message>
        <source>  disk full in %1 s</source>
        <translation>  Platte voll in %1 s</translation>
    </message>
</context>
<context>
    <name>ReplacingFile</name>
    <message>
        <source>a folder has that name</source>
        <translation>ein Ordner hat diesen Namen</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>the file of that name is write-protected</source>
        <translation>die Datei dieses Namens ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Choose another name, or lift the protection.</source>
        <translation>Einen anderen Namen wählen oder den Schutz aufheben.</translation>
    </message>
</context>
<context>
    <name>ReportPanel</name>
    <message>
        <source>This program makes no reports.</source>
        <translation>Dieses Programm macht keine Berichte.</translation>
    </message>
</context>
<context>
    <name>RunDisk</name>
    <message>
        <source>the disk is full</source>
        <translation>die Platte ist voll</translation>
    </message>
    <message>
        <source>Free some space or record to another disk; the frames before are kept.</source>
        <translation>Platz schaffen oder auf eine andere Platte aufzeichnen; die Bilder davor bleiben erhalten.</translation>
    </message>
    <message>
        <source>the file has become larger than this disk allows</source>
        <translation>die Datei ist größer geworden, als diese Platte erlaubt</translation>
    </message>
    <message>
        <source>Record fewer frames, or to another disk; the frames before are kept.</source>
        <translation>Weniger Bilder oder auf eine andere Platte aufzeichnen; die Bilder davor bleiben erhalten.</translation>
    </message>
    <message>
        <source>a file of that name is there already</source>
        <translation>es gibt schon eine Datei dieses Namens</translation>
    </message>
    <message>
        <source>Choose another name; recordings never replace a file.</source>
        <translation>Einen anderen Namen wählen; Aufzeichnungen ersetzen nie eine Datei.</translation>
    </message>
    <message>
        <source>you may not write in that folder</source>
        <translation>in diesem Ordner fehlt das Schreibrecht</translation>
    </message>
    <message>
        <source>Choose another folder, or ask for the right to write there.</source>
        <translation>Einen anderen Ordner wählen oder um das Schreibrecht bitten.</translation>
    </message>
    <message>
        <source>that folder does not exist</source>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Choose a folder that is there.</source>
        <translation>Einen Ordner wählen, den es gibt.</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>die Platte antwortet nicht</translation>
    </message>
    <message>
        <source>Check that it is still connected; what was written before may be readable.</source>
        <translation>Prüfen, ob sie noch angeschlossen ist; was zuvor geschrieben wurde, ist vielleicht lesbar.</translation>
    </message>
    <message>
        <source>Check the disk, or record to another one.</source>
        <translation>Die Platte prüfen oder auf eine andere aufzeichnen.</translation>
    </message>
</context>
<context>
    <name>RunEstimate</name>
    <message>
        <source>memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>The run needs %1, and the %2 has %3 free, of which %4 are left to the system: room for %5 frames.</source>
        <translation>Die Aufzeichnung braucht %1. Frei (%2) sind %3, davon bleiben %4 dem System: Platz für %5 Bilder.</translation>
    </message>
    <message>
        <source>more than one frame</source>
        <translation>mehr als ein Bild</translation>
    </message>
    <message>
        <source>The run needs %1 frames, and a recording holds %2 at most.</source>
        <translation>Die Aufzeichnung braucht %1 Bilder, und sie fasst höchstens %2.</translation>
    </message>
</context>
<context>
    <name>RunFacts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>automatic, %1</source>
        <translation>automatisch, %1</translation>
    </message>
    <message>
        <source>From about frame %1 on</source>
        <translation>Etwa ab Bild %1</translation>
    </message>
    <message>
        <source>exposure %1, gain %2, %3 frames/s</source>
        <translation>Belichtung %1, Verstärkung %2, %3 Bilder/s</translation>
    </message>
    <message>
        <source>%1 us</source>
        <translation>%1 us</translation>
    </message>
    <message>
        <source>Later changes</source>
        <translation>Weitere Änderungen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
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
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>%1 x %2 from (%3, %4)</source>
        <translation>%1 x %2 ab (%3, %4)</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>Bildformat</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>Time-lapse</source>
        <translation>Zeitraffer</translation>
    </message>
    <message>
        <source>one frame each %1 ms</source>
        <translation>alle %1 ms ein Bild</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Pixelgröße</translation>
    </message>
    <message>
        <source>%1 um</source>
        <translation>%1 um</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Aufgezeichnet mit</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>stopped by the user</source>
        <translation>vom Benutzer beendet</translation>
    </message>
    <message>
        <source>the camera was lost</source>
        <translation>die Kamera ging verloren</translation>
    </message>
    <message>
        <source>ended by a fault</source>
        <translation>durch einen Fehler beendet</translation>
    </message>
    <message>
        <source>the program had ended in mid-run; repaired later</source>
        <translation>das Programm endete mitten in der Aufzeichnung; später wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>RunJournal</name>
    <message>
        <source>it is still being recorded</source>
        <translation>die Aufzeichnung läuft noch</translation>
    </message>
    <message>
        <source>Wait until that run has ended.</source>
        <translation>Warten, bis die Aufzeichnung beendet ist.</translation>
    </message>
    <message>
        <source>the journal beside it makes no sense</source>
        <translation>das Journal daneben ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>Keep the file and ask for help; its frames may be readable by hand.</source>
        <translation>Die Datei behalten und um Hilfe bitten; ihre Bilder sind vielleicht von Hand lesbar.</translation>
    </message>
</context>
<context>
    <name>RunReceipt</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>RunRegister</name>
    <message>
        <source>the file with its frames is gone</source>
        <translation>die Datei mit den Bildern ist weg</translation>
    </message>
    <message>
        <source>If you have moved it, move its journal beside it and ask for help.</source>
        <translation>Wurde sie verschoben, das Journal daneben legen und um Hilfe bitten.</translation>
    </message>
    <message>
        <source>not one of its frames is whole</source>
        <translation>kein einziges Bild ist vollständig</translation>
    </message>
    <message>
        <source>Keep the file and ask for help; parts of its frames may be readable by hand.</source>
        <translation>Die Datei behalten und um Hilfe bitten; Teile ihrer Bilder sind vielleicht von Hand lesbar.</translation>
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
    <message>
        <source>the memory was full</source>
        <translation>der Speicher war voll</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>not known, at least %1</source>
        <translation>unbekannt, mindestens %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>frame	frame id	camera time (ns)	host time (ns)</source>
        <translation>Bild	Bild-ID	Kamerazeit (ns)	Rechnerzeit (ns)</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Durchlauf</translation>
    </message>
    <message>
        <source>Frames captured</source>
        <translation>Aufgenommene Bilder</translation>
    </message>
    <message>
        <source>Frames saved</source>
        <translation>Gespeicherte Bilder</translation>
    </message>
    <message>
        <source>Frames lost</source>
        <translation>Verlorene Bilder</translation>
    </message>
    <message>
        <source>Frame ids missing</source>
        <translation>Fehlende Bild-IDs</translation>
    </message>
    <message>
        <source>Average rate</source>
        <translation>Mittlere Bildrate</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>Checksum (XXH3)</source>
        <translation>Prüfsumme (XXH3)</translation>
    </message>
    <message>
        <source>its summary could not be written</source>
        <translation>die Zusammenfassung ließ sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>RunWriter</name>
    <message>
        <source>a file of that name is there already</source>
        <translation>es gibt schon eine Datei dieses Namens</translation>
    </message>
    <message>
        <source>Choose another name; recordings never replace a file.</source>
        <translation>Einen anderen Namen wählen; Aufzeichnungen ersetzen nie eine Datei.</translation>
    </message>
    <message>
        <source>a frame of another size or pixel format came (%1 x %2, %3)</source>
        <translation>es kam ein Bild anderer Größe oder mit anderem Pixelformat (%1 x %2, %3)</translation>
    </message>
    <message>
        <source>Change the camera&apos;s format between recordings only.</source>
        <translation>Das Format der Kamera nur zwischen Aufzeichnungen ändern.</translation>
    </message>
    <message>
        <source>a recording holds %1 frames at most</source>
        <translation>eine Aufzeichnung fasst höchstens %1 Bilder</translation>
    </message>
    <message>
        <source>The frames before are kept; go on with another recording.</source>
        <translation>Die Bilder davor bleiben; mit einer weiteren Aufzeichnung fortfahren.</translation>
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
    <name>SaveTask</name>
    <message>
        <source>The %1 samples become 8 bits, with the levels of the screen.</source>
        <translation>Die Werte (%1) werden zu 8 Bit, mit den Tonwerten des Bildschirms.</translation>
    </message>
    <message>
        <source>JPEG changes every sample a little.</source>
        <translation>JPEG ändert jeden Wert ein wenig.</translation>
    </message>
    <message>
        <source>FITS has no colour: red, green and blue become three frames.</source>
        <translation>FITS kennt keine Farbe: Rot, Grün und Blau werden drei Bilder.</translation>
    </message>
</context>
<context>
    <name>SetPictureResolution</name>
    <message>
        <source>the resolution of page %1 could not be written</source>
        <translation>die Auflösung der Seite %1 ließ sich nicht schreiben</translation>
    </message>
    <message>
        <source>%1 files have no place for a resolution</source>
        <translation>%1-Dateien haben keinen Platz für eine Auflösung</translation>
    </message>
    <message>
        <source>Save the picture as TIFF or PNG first.</source>
        <translation>Das Bild zuerst als TIFF oder PNG speichern.</translation>
    </message>
    <message>
        <source>its OME description gives the size of a pixel, which a resolution would contradict</source>
        <translation>die OME-Beschreibung nennt die Größe eines Pixels, der eine Auflösung widerspräche</translation>
    </message>
    <message>
        <source>Change the size of a pixel in the program that recorded it.</source>
        <translation>Die Größe eines Pixels in dem Programm ändern, das es aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>its copy with another resolution was not the same picture</source>
        <translation>die Kopie mit anderer Auflösung war nicht dasselbe Bild</translation>
    </message>
</context>
<context>
    <name>SpeCalibration</name>
    <message>
        <source>its calibration is in a unit that is not known (“%1”, code %2) and is left out</source>
        <translation>ihre Kalibrierung hat eine unbekannte Einheit („%1“, Nummer %2) und wird weggelassen</translation>
    </message>
    <message>
        <source>its calibration is a polynomial of degree %1, where 1 to %2 are possible, and is left out</source>
        <translation>ihre Kalibrierung ist ein Polynom vom Grad %1, möglich sind 1 bis %2, und wird weggelassen</translation>
    </message>
</context>
<context>
    <name>SpeFooter</name>
    <message>
        <source>its list of wavelengths does not fit its columns and is left out</source>
        <translation>die Liste der Wellenlängen passt nicht zu den Spalten und wird weggelassen</translation>
    </message>
    <message>
        <source>its samples (%1) are of a kind that is not supported</source>
        <translation>die Werte (%1) sind von einer Art, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>its description (XML at the end) breaks off or is damaged in line %1</source>
        <translation>die Beschreibung (XML am Ende) bricht ab oder ist in Zeile %1 beschädigt</translation>
    </message>
    <message>
        <source>its description (XML at the end) tells of no frames</source>
        <translation>die Beschreibung (XML am Ende) nennt keine Bilder</translation>
    </message>
</context>
<context>
    <name>SpeLayout</name>
    <message>
        <source>its samples are of an unknown kind (code %1)</source>
        <translation>die Werte sind von unbekannter Art (Code %1)</translation>
    </message>
    <message>
        <source>its header gives a size of %1 x %2 pixels</source>
        <translation>der Dateikopf nennt eine Größe von %1 x %2 Pixeln</translation>
    </message>
    <message>
        <source>its description (XML at the end) is larger than any such file needs</source>
        <translation>die Beschreibung (XML am Ende) ist größer, als eine solche Datei sie braucht</translation>
    </message>
    <message>
        <source>its description (XML at the end) is missing</source>
        <translation>die Beschreibung (XML am Ende) fehlt</translation>
    </message>
    <message>
        <source>its description (XML at the end) is missing, and with it the wavelengths</source>
        <translation>die Beschreibung (XML am Ende) fehlt und mit ihr die Wellenlängen</translation>
    </message>
    <message>
        <source>region %1 of %2</source>
        <translation>Bereich %1 von %2</translation>
    </message>
    <message>
        <source>%1 has a size of %2 x %3 pixels</source>
        <translation>%1 hat eine Größe von %2 x %3 Pixeln</translation>
    </message>
    <message>
        <source>%1 does not fit into its frame</source>
        <translation>%1 passt nicht in sein Bild</translation>
    </message>
    <message>
        <source>not even its first frame of %1 x %2 pixels is whole</source>
        <translation>nicht einmal das erste Bild mit %1 x %2 Pixeln ist vollständig</translation>
    </message>
    <message>
        <source>its header is cut short</source>
        <translation>der Dateikopf ist abgeschnitten</translation>
    </message>
    <message>
        <source>its calibration does not rise or fall steadily (it turns at pixel %1) and is left out</source>
        <translation>die Kalibrierung steigt oder fällt nicht stetig (sie kehrt bei Pixel %1 um) und wird weggelassen</translation>
    </message>
    <message>
        <source>its header has room for %1 of them</source>
        <translation>ihr Kopf hat nur Platz für %1 davon</translation>
    </message>
    <message>
        <source>its frames were turned or mirrored after they had been read out</source>
        <translation>ihre Bilder wurden nach dem Auslesen gedreht oder gespiegelt</translation>
    </message>
</context>
<context>
    <name>SpePictureFile</name>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>, %1 regions</source>
        <translation>, %1 Bereiche</translation>
    </message>
    <message>
        <source>“%1”: %2. %3</source>
        <translation>„%1“: %2. %3</translation>
    </message>
    <message>
        <source>only the first %1 of its %2 frames are there</source>
        <translation>nur die ersten %1 von %2 Bildern sind da</translation>
    </message>
    <message>
        <source>exposure %1 of %2, region %3 of %4, from column %5 and row %6 of the sensor</source>
        <translation>Belichtung %1 von %2, Bereich %3 von %4, ab Spalte %5 und Zeile %6 des Sensors</translation>
    </message>
    <message>
        <source>frame %1 of %2 is not whole</source>
        <translation>das Bild %1 von %2 ist nicht vollständig</translation>
    </message>
    <message>
        <source>“%1”: its %2 regions are shown as one picture, with the filler that lies between them, as %3.</source>
        <translation>„%1“: Die %2 Bereiche werden als ein Bild gezeigt, mit dem Füller zwischen ihnen, denn %3.</translation>
    </message>
</context>
<context>
    <name>SpeRegions</name>
    <message>
        <source>what it says of region %1 makes no sense</source>
        <translation>was sie über Bereich %1 sagt, ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>it says that regions %1 and %2 overlap</source>
        <translation>nach ihren Angaben überlappen sich die Bereiche %1 und %2</translation>
    </message>
    <message>
        <source>they neither fill its frames of %1 x %2 pixels nor lie in them as on the sensor</source>
        <translation>sie füllen ihre Bilder von %1 x %2 Pixeln nicht und liegen darin auch nicht wie auf dem Sensor</translation>
    </message>
    <message>
        <source>they may lie in the order of their numbers or in that of the sensor</source>
        <translation>sie können in der Reihenfolge ihrer Nummern oder in der des Sensors liegen</translation>
    </message>
</context>
<context>
    <name>SpectralMetadata</name>
    <message>
        <source>its calibration is damaged and is left out</source>
        <translation>die Kalibrierung ist beschädigt und wird weggelassen</translation>
    </message>
    <message>
        <source>its calibration is that of “%1” (SPECSIDE), which are neither columns nor rows, and is left out</source>
        <translation>ihre Kalibrierung ist die von „%1“ (SPECSIDE), weder Spalten noch Zeilen, und wird weggelassen</translation>
    </message>
</context>
<context>
    <name>SpectrometerMenu</name>
    <message>
        <source>&amp;Spectrum</source>
        <translation>&amp;Spektrum</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Sensor &amp;Image</source>
        <translation>&amp;Sensorbild</translation>
    </message>
    <message>
        <source>&amp;Curve</source>
        <translation>&amp;Kurve</translation>
    </message>
    <message>
        <source>Curve with Pea&amp;ks</source>
        <translation>Kurve &amp;mit Linien</translation>
    </message>
    <message>
        <source>Tracks in &amp;3D</source>
        <translation>Spuren in &amp;3D</translation>
    </message>
    <message>
        <source>&amp;Vertical Binning</source>
        <translation>&amp;Vertikales Binning</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Aus</translation>
    </message>
    <message>
        <source>&amp;All Rows</source>
        <translation>Alle &amp;Zeilen</translation>
    </message>
    <message>
        <source>Band &amp;Found by Itself</source>
        <translation>Band au&amp;tomatisch</translation>
    </message>
    <message>
        <source>Band by &amp;Hand</source>
        <translation>Band von &amp;Hand</translation>
    </message>
    <message>
        <source>Find the Band Aga&amp;in</source>
        <translation>Band &amp;neu suchen</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Richtung</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>&amp;Waagrecht</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Senkrecht</translation>
    </message>
    <message>
        <source>&amp;Tracks</source>
        <translation>S&amp;puren</translation>
    </message>
    <message>
        <source>&amp;Find Tracks</source>
        <translation>Spuren &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Show Tracks</source>
        <translation>Spuren &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Focus Assistance</source>
        <translation>&amp;Fokushilfe</translation>
    </message>
    <message>
        <source>C&amp;orrections</source>
        <translation>K&amp;orrekturen</translation>
    </message>
    <message>
        <source>Take &amp;Dark Spectrum</source>
        <translation>&amp;Dunkelspektrum aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Subtract Dark</source>
        <translation>D&amp;unkelspektrum abziehen</translation>
    </message>
    <message>
        <source>Take &amp;Reference Spectrum</source>
        <translation>&amp;Referenzspektrum aufnehmen</translation>
    </message>
    <message>
        <source>Subtract R&amp;eference</source>
        <translation>R&amp;eferenz abziehen</translation>
    </message>
    <message>
        <source>&amp;Counts</source>
        <translation>&amp;Zählwerte</translation>
    </message>
    <message>
        <source>&amp;Transmission</source>
        <translation>&amp;Transmission</translation>
    </message>
    <message>
        <source>&amp;Absorbance</source>
        <translation>&amp;Absorbanz</translation>
    </message>
    <message>
        <source>Remove Cosmic Ra&amp;ys</source>
        <translation>&amp;Kosmische Strahlung entfernen</translation>
    </message>
    <message>
        <source>Remove &amp;Baseline</source>
        <translation>&amp;Basislinie entfernen</translation>
    </message>
    <message>
        <source>%1 Spectra</source>
        <translation>%1 Spektren</translation>
    </message>
    <message>
        <source>A&amp;verage</source>
        <translation>&amp;Mittelung</translation>
    </message>
    <message>
        <source>%1 Samples</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>S&amp;mooth</source>
        <translation>&amp;Glättung</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>&amp;Einheit</translation>
    </message>
    <message>
        <source>&amp;Nanometres</source>
        <translation>&amp;Nanometer</translation>
    </message>
    <message>
        <source>&amp;Wavenumbers</source>
        <translation>&amp;Wellenzahlen</translation>
    </message>
    <message>
        <source>&amp;Pixels</source>
        <translation>&amp;Pixel</translation>
    </message>
    <message>
        <source>Ca&amp;librate…</source>
        <translation>Ka&amp;librieren…</translation>
    </message>
    <message>
        <source>&amp;Export Spectrum…</source>
        <translation>Spektrum e&amp;xportieren…</translation>
    </message>
    <message>
        <source>E&amp;xport Plot…</source>
        <translation>&amp;Diagramm exportieren…</translation>
    </message>
    <message>
        <source>There is no spectrum yet: switch vertical binning on first.</source>
        <translation>Es gibt noch kein Spektrum: zuerst das vertikale Binning einschalten.</translation>
    </message>
    <message>
        <source>The spectrum shown is the dark spectrum now.</source>
        <translation>Das gezeigte Spektrum ist jetzt das Dunkelspektrum.</translation>
    </message>
    <message>
        <source>The spectrum shown is the reference spectrum now.</source>
        <translation>Das gezeigte Spektrum ist jetzt das Referenzspektrum.</translation>
    </message>
    <message>
        <source>&amp;Draw on the Picture</source>
        <translation>&amp;Ins Bild zeichnen</translation>
    </message>
    <message>
        <source>&amp;Add Track</source>
        <translation>Spur &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove Track</source>
        <translation>Spur &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear Tracks</source>
        <translation>&amp;Alle Spuren entfernen</translation>
    </message>
    <message>
        <source>An opened file is shown: go to the camera first.</source>
        <translation>Eine geöffnete Datei wird gezeigt: zuerst zur Kamera gehen.</translation>
    </message>
    <message>
        <source>&amp;All Columns</source>
        <translation>Alle &amp;Spalten</translation>
    </message>
</context>
<context>
    <name>SpectrumDialogs</name>
    <message>
        <source>There is no spectrum to export: switch vertical binning or tracks on, or open a spectrum.</source>
        <translation>Es gibt kein Spektrum zum Exportieren: vertikales Binning oder Spuren einschalten oder ein Spektrum öffnen.</translation>
    </message>
    <message>
        <source>Export Spectrum</source>
        <translation>Spektrum exportieren</translation>
    </message>
    <message>
        <source>Table with commented header (*.csv)</source>
        <translation>Tabelle mit kommentiertem Kopf (*.csv)</translation>
    </message>
    <message>
        <source>There is no plot to export: show the curve or the tracks in 3D first.</source>
        <translation>Es gibt kein Diagramm zum Exportieren: zuerst die Kurve oder die Spuren in 3D zeigen.</translation>
    </message>
    <message>
        <source>Export Plot</source>
        <translation>Diagramm exportieren</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>PDF page (*.pdf)</source>
        <translation>PDF-Seite (*.pdf)</translation>
    </message>
    <message>
        <source>%1 spectrum</source>
        <translation>%1 Spektrum</translation>
    </message>
    <message>
        <source>spectrum %1</source>
        <translation>Spektrum %1</translation>
    </message>
    <message>
        <source>“%1” was saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>“%1” was not saved: there is not enough memory to draw the plot. Close opened pictures or other programs, and export it again.</source>
        <translation>„%1“ wurde nicht gespeichert: Der Speicher reicht nicht, um das Diagramm zu zeichnen. Schließen Sie geöffnete Bilder oder andere Programme und exportieren Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>SpectrumFields</name>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sensor image</source>
        <translation>Sensorbild</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Curve with peaks</source>
        <translation>Kurve mit Linien</translation>
    </message>
    <message>
        <source>Tracks in 3D</source>
        <translation>Spuren in 3D</translation>
    </message>
    <message>
        <source>Ctrl+1 to Ctrl+5</source>
        <translation>Strg+1 bis Strg+5</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>waagrecht</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>senkrecht</translation>
    </message>
    <message>
        <source>The direction in which the wavelength changes on the sensor.</source>
        <translation>Die Richtung, in der sich auf dem Sensor die Wellenlänge ändert.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>nanometres</source>
        <translation>Nanometer</translation>
    </message>
    <message>
        <source>wavenumbers</source>
        <translation>Wellenzahlen</translation>
    </message>
    <message>
        <source>Without a calibration spectra are shown over pixels.</source>
        <translation>Ohne Kalibrierung werden Spektren über Pixeln gezeigt.</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>alle Zeilen</translation>
    </message>
    <message>
        <source>band found by itself</source>
        <translation>Band automatisch</translation>
    </message>
    <message>
        <source>band by hand</source>
        <translation>Band von Hand</translation>
    </message>
    <message>
        <source>First row</source>
        <translation>Erste Zeile</translation>
    </message>
    <message>
        <source>Last row</source>
        <translation>Letzte Zeile</translation>
    </message>
    <message>
        <source>Find the Band Again</source>
        <translation>Band neu suchen</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>Vertikales Binning</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Find Tracks</source>
        <translation>Spuren suchen</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>Spuren zeigen</translation>
    </message>
    <message>
        <source>Focus assistance</source>
        <translation>Fokushilfe</translation>
    </message>
    <message>
        <source>There is no spectrum yet: switch vertical binning on first.</source>
        <translation>Es gibt noch kein Spektrum: zuerst das vertikale Binning einschalten.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Take Dark</source>
        <translation>Dunkel aufnehmen</translation>
    </message>
    <message>
        <source>The spectrum shown becomes the dark spectrum.</source>
        <translation>Das gezeigte Spektrum wird das Dunkelspektrum.</translation>
    </message>
    <message>
        <source>subtract</source>
        <translation>abziehen</translation>
    </message>
    <message>
        <source>Take Reference</source>
        <translation>Referenz aufnehmen</translation>
    </message>
    <message>
        <source>The spectrum shown becomes the reference spectrum.</source>
        <translation>Das gezeigte Spektrum wird das Referenzspektrum.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>counts</source>
        <translation>Zählwerte</translation>
    </message>
    <message>
        <source>transmission</source>
        <translation>Transmission</translation>
    </message>
    <message>
        <source>absorbance</source>
        <translation>Absorbanz</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mitteln</translation>
    </message>
    <message>
        <source> spectra</source>
        <translation> Spektren</translation>
    </message>
    <message>
        <source>Smooth over</source>
        <translation>Glätten über</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> Werte</translation>
    </message>
    <message>
        <source>Remove cosmic rays</source>
        <translation>Kosmische Strahlung entfernen</translation>
    </message>
    <message>
        <source>Remove the baseline</source>
        <translation>Basislinie entfernen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Kurvenbreite</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Kurvenart</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>durchgezogen</translation>
    </message>
    <message>
        <source>dashes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>dash dot</source>
        <translation>Strich Punkt</translation>
    </message>
    <message>
        <source>dash dot dot</source>
        <translation>Strich Punkt Punkt</translation>
    </message>
    <message>
        <source>Peaks</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Peak size</source>
        <translation>Größe der Marken</translation>
    </message>
    <message>
        <source>Most peaks</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Free above</source>
        <translation>Oben frei</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Part of the height that stays free above the highest value.</source>
        <translation>Teil der Höhe, der über dem höchsten Wert frei bleibt.</translation>
    </message>
    <message>
        <source>Look of the plots</source>
        <translation>Aussehen der Diagramme</translation>
    </message>
    <message>
        <source>Draw on the picture</source>
        <translation>Ins Bild zeichnen</translation>
    </message>
    <message>
        <source>Drag over rows of the live picture for a new track; drag a track or its edges to change it.</source>
        <translation>Über Zeilen des Livebilds ziehen für eine neue Spur; eine Spur oder ihre Ränder ziehen, um sie zu ändern.</translation>
    </message>
    <message>
        <source>Add Track</source>
        <translation>Spur hinzufügen</translation>
    </message>
    <message>
        <source>Remove Track</source>
        <translation>Spur entfernen</translation>
    </message>
    <message>
        <source>Clear Tracks</source>
        <translation>Alle Spuren entfernen</translation>
    </message>
    <message>
        <source>Chosen track</source>
        <translation>Gewählte Spur</translation>
    </message>
    <message>
        <source>Its first row</source>
        <translation>Ihre erste Zeile</translation>
    </message>
    <message>
        <source>Its last row</source>
        <translation>Ihre letzte Zeile</translation>
    </message>
    <message>
        <source>Saturated</source>
        <translation>Gesättigt</translation>
    </message>
    <message>
        <source>Pixels are at the end of their range: peaks are cut off there. Shorten the exposure.</source>
        <translation>Pixel sind am Ende ihres Bereichs: Linien sind dort abgeschnitten. Die Belichtung verkürzen.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>all columns</source>
        <translation>alle Spalten</translation>
    </message>
    <message>
        <source>First column</source>
        <translation>Erste Spalte</translation>
    </message>
    <message>
        <source>Last column</source>
        <translation>Letzte Spalte</translation>
    </message>
    <message>
        <source>An opened file is shown: go to the camera first.</source>
        <translation>Eine geöffnete Datei wird gezeigt: zuerst zur Kamera gehen.</translation>
    </message>
    <message>
        <source>Pixels are at the end of their range: peaks are cut off there.</source>
        <translation>Pixel sind am Ende ihres Bereichs: Linien sind dort abgeschnitten.</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verpasst</translation>
    </message>
    <message>
        <source>Lengthen the exposure, or bin fewer rows, to have a spectrum of every frame.</source>
        <translation>Länger belichten oder weniger Zeilen binnen, um von jedem Bild ein Spektrum zu haben.</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>%1 of %2 lines</source>
        <translation>%1 von %2 Linien</translation>
    </message>
</context>
<context>
    <name>SpectrumMenu</name>
    <message>
        <source>S&amp;pectrum</source>
        <translation>Spektrumsa&amp;nzeige</translation>
    </message>
    <message>
        <source>&amp;Spectrum Page</source>
        <translation>&amp;Spektrumseite</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>&amp;Intensity Curves</source>
        <translation>&amp;Intensitätskurven</translation>
    </message>
    <message>
        <source>&amp;Colour Bar</source>
        <translation>&amp;Farbbalken</translation>
    </message>
    <message>
        <source>Curves of &amp;Lines</source>
        <translation>Linien je &amp;Kurve</translation>
    </message>
    <message>
        <source>One row, one column</source>
        <translation>Eine Zeile, eine Spalte</translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation>Mittel aus %1</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>This program shows no spectra.</source>
        <translation>Dieses Programm zeigt keine Spektren.</translation>
    </message>
</context>
<context>
    <name>SpectrumPipeline</name>
    <message>
        <source>There is no live picture to find tracks in.</source>
        <translation>Es gibt kein Livebild, um darin Spuren zu suchen.</translation>
    </message>
    <message>
        <source>Take Dark Spectrum</source>
        <translation>Dunkelspektrum aufnehmen</translation>
    </message>
    <message>
        <source>Take Reference Spectrum</source>
        <translation>Referenzspektrum aufnehmen</translation>
    </message>
</context>
<context>
    <name>SpectrumSettings</name>
    <message>
        <source>The band set by hand lay outside of the picture, which has %1 lines now: all of them are binned. Set the band again.</source>
        <translation>Das von Hand gesetzte Band lag außerhalb des Bildes, das jetzt %1 Linien hat: Alle werden zusammengefasst. Das Band neu setzen.</translation>
    </message>
    <message>
        <source>The band set by hand went beyond the picture, which has %1 lines now, and was cut.</source>
        <translation>Das von Hand gesetzte Band ging über das Bild hinaus, das jetzt %1 Linien hat, und wurde gekürzt.</translation>
    </message>
    <message>
        <source>A wavelength of 0 lies in this spectrum, which has no wavenumber: it is shown in nanometres.</source>
        <translation>In diesem Spektrum liegt die Wellenlänge 0, die keine Wellenzahl hat: Es wird in Nanometern gezeigt.</translation>
    </message>
    <message>
        <source>%1, by the calibration in use</source>
        <translation>%1, nach der geltenden Kalibrierung</translation>
    </message>
    <message>
        <source>The picture shows other rows of the sensor now, and the tracks stay where they are in the picture: move them, or have them found again.</source>
        <translation>Das Bild zeigt jetzt andere Zeilen des Sensors, und die Spuren bleiben, wo sie im Bild sind: Verschieben Sie sie oder lassen Sie sie neu finden.</translation>
    </message>
    <message>
        <source>The calibration was made with the camera %1: calibrate anew if this one does not stand in its place.</source>
        <translation>Die Kalibrierung wurde mit der Kamera %1 gemacht: Kalibrieren Sie neu, wenn diese nicht an deren Stelle steht.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
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
    <name>StackProjection</name>
    <message>
        <source>Picture %1 is not like the first one: it needs the same size, as many colours and samples of the same kind.</source>
        <translation>Das Bild %1 ist nicht wie das erste: Es braucht die gleiche Größe, ebenso viele Farben und Werte gleicher Art.</translation>
    </message>
    <message>
        <source>There is no picture that could be projected.</source>
        <translation>Es gibt kein Bild, das projiziert werden könnte.</translation>
    </message>
</context>
<context>
    <name>StatisticsNotes</name>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>%1 bit, 0 to %2</source>
        <translation>%1 Bit, 0 bis %2</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Saturated</source>
        <translation>Gesättigt</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
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
    <name>TablePage</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all (Ctrl+C)</source>
        <translation>Kopiert die gewählten Zeilen, oder alle (Strg+C)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Saves the table as CSV</source>
        <translation>Speichert die Tabelle als CSV</translation>
    </message>
    <message>
        <source>Save Table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
</context>
<context>
    <name>TiffChain</name>
    <message>
        <source>the chain of its pages runs in a circle after page %1</source>
        <translation>die Kette der Seiten läuft nach Seite %1 im Kreis</translation>
    </message>
    <message>
        <source>it names more pages than it can hold</source>
        <translation>die Datei nennt mehr Seiten, als sie fassen kann</translation>
    </message>
    <message>
        <source>the description of page %1 (at byte %2) lies beyond the end of the file (%3 bytes)</source>
        <translation>die Beschreibung der Seite %1 (bei Byte %2) liegt hinter dem Dateiende (%3 Byte)</translation>
    </message>
    <message>
        <source>it ends within its header</source>
        <translation>die Datei endet in ihrem Kopf</translation>
    </message>
    <message>
        <source>it has no page; its writer did not finish it</source>
        <translation>die Datei hat keine Seite; das schreibende Programm hat sie nicht fertiggestellt</translation>
    </message>
</context>
<context>
    <name>TiffDecode</name>
    <message>
        <source>its colour palette is missing</source>
        <translation>die Farbpalette fehlt</translation>
    </message>
    <message>
        <source>tile %1 cannot be decoded</source>
        <translation>die Kachel %1 lässt sich nicht entschlüsseln</translation>
    </message>
    <message>
        <source>strip %1 cannot be decoded</source>
        <translation>der Streifen %1 lässt sich nicht entschlüsseln</translation>
    </message>
</context>
<context>
    <name>TiffPage</name>
    <message>
        <source>it is marked as RGB but has %1 samples a pixel</source>
        <translation>sie ist als RGB gekennzeichnet, hat aber %1 Werte je Pixel</translation>
    </message>
    <message>
        <source>its colour palette does not fit its samples</source>
        <translation>die Farbpalette passt nicht zu den Werten</translation>
    </message>
    <message>
        <source>its colours are of a kind (%1) that is not supported</source>
        <translation>die Farben sind von einer Art (%1), die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>its strips or tiles have the size %1 x %2</source>
        <translation>die Streifen oder Kacheln haben die Größe %1 x %2</translation>
    </message>
    <message>
        <source>its rows have a layout that is not supported</source>
        <translation>die Zeilen haben eine Anordnung, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>sie hat keine Größe</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels, is beyond any picture</source>
        <translation>die Größe, %1 x %2 Pixel, übersteigt jedes Bild</translation>
    </message>
    <message>
        <source>its compression (%1) is not supported</source>
        <translation>die Kompression (%1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>its samples of %1 bits (sample format %2) are not supported</source>
        <translation>Werte mit %1 Bit (Werteformat %2) werden nicht unterstützt</translation>
    </message>
    <message>
        <source>its size, %1 x %2 pixels, is more than the %3 bytes of the file can hold</source>
        <translation>die Größe, %1 x %2 Pixel, ist mehr, als die %3 Byte der Datei fassen können</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>Kachel %1</translation>
    </message>
    <message>
        <source>strip %1</source>
        <translation>Streifen %1</translation>
    </message>
    <message>
        <source>%1 has no data</source>
        <translation>%1 hat keine Daten</translation>
    </message>
    <message>
        <source>%1 (%2 bytes from byte %3) lies beyond the end of the file (%4 bytes)</source>
        <translation>%1 (%2 Byte ab Byte %3) liegt hinter dem Dateiende (%4 Byte)</translation>
    </message>
    <message>
        <source>%1 has %2 bytes and needs %3</source>
        <translation>%1 hat %2 Byte und braucht %3</translation>
    </message>
</context>
<context>
    <name>TiffPictureFile</name>
    <message>
        <source>its header makes no sense</source>
        <translation>der Dateikopf ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>its description cannot be read</source>
        <translation>die Beschreibung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>page %1 of %2: %3</source>
        <translation>Seite %1 von %2: %3</translation>
    </message>
    <message>
        <source>only its first %1 pages are there: %2</source>
        <translation>nur die ersten %1 Seiten sind da: %2</translation>
    </message>
    <message>
        <source>Only the first of the %1 samples of each pixel is shown.</source>
        <translation>Nur der erste der %1 Werte jedes Pixels wird gezeigt.</translation>
    </message>
    <message>
        <source>only the first %1 of its %2 frames are there</source>
        <translation>nur die ersten %1 von %2 Bildern sind da</translation>
    </message>
    <message>
        <source>frame %1 of %2 is not whole</source>
        <translation>das Bild %1 von %2 ist nicht vollständig</translation>
    </message>
    <message>
        <source>its samples are not whole</source>
        <translation>die Werte sind nicht vollständig</translation>
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
    <name>ToolPanel</name>
    <message>
        <source>This program has no tools.</source>
        <translation>Dieses Programm hat keine Werkzeuge.</translation>
    </message>
</context>
<context>
    <name>TrackDesk</name>
    <message>
        <source>Drag over rows of the live picture for a new track; drag a track or its edges to change it.</source>
        <translation>Über Zeilen des Livebilds ziehen für eine neue Spur; eine Spur oder ihre Ränder ziehen, um sie zu ändern.</translation>
    </message>
    <message>
        <source>There is no live picture to lay a track on.</source>
        <translation>Es gibt kein Livebild, auf das eine Spur gelegt werden könnte.</translation>
    </message>
    <message>
        <source>There is no room for another track: make one smaller or remove it.</source>
        <translation>Für eine weitere Spur ist kein Platz: eine verkleinern oder entfernen.</translation>
    </message>
    <message>
        <source>Remove Track</source>
        <translation>Spur entfernen</translation>
    </message>
    <message>
        <source>Clear Tracks</source>
        <translation>Alle Spuren entfernen</translation>
    </message>
    <message>
        <source>Find Tracks</source>
        <translation>Spuren suchen</translation>
    </message>
    <message>
        <source>Add Track</source>
        <translation>Spur hinzufügen</translation>
    </message>
    <message>
        <source>Change Track</source>
        <translation>Spur ändern</translation>
    </message>
    <message>
        <source>Remove Track %1</source>
        <translation>Spur %1 entfernen</translation>
    </message>
</context>
<context>
    <name>TrackFinder</name>
    <message>
        <source>There are no tracks: draw them on the picture or have them found.</source>
        <translation>Es gibt keine Spuren: sie ins Bild zeichnen oder suchen lassen.</translation>
    </message>
    <message>
        <source>There are %1 tracks and the plot shows %2 at most: take some away.</source>
        <translation>Es gibt %1 Spuren, und das Diagramm zeigt höchstens %2: einige entfernen.</translation>
    </message>
    <message>
        <source>Track %1 (rows %2 to %3) lies outside the sensor of %4 rows: move or remove it.</source>
        <translation>Die Spur %1 (Zeilen %2 bis %3) liegt außerhalb des Sensors mit %4 Zeilen: sie verschieben oder entfernen.</translation>
    </message>
    <message>
        <source>Tracks %1 and %2 overlap: move or remove one of them.</source>
        <translation>Die Spuren %1 und %2 überlappen: eine davon verschieben oder entfernen.</translation>
    </message>
</context>
<context>
    <name>UnsavedGuard</name>
    <message>
        <source>&amp;Discard All</source>
        <translation>&amp;Alle verwerfen</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Speichern unter…</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures have changes that are not saved.</source>
        <translation>
            <numerusform>%n Bild hat Änderungen, die nicht gespeichert sind.</numerusform>
            <numerusform>%n Bilder haben Änderungen, die nicht gespeichert sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Closing loses what was done.</source>
        <translation>Beim Schließen geht verloren, was getan wurde.</translation>
    </message>
</context>
<context>
    <name>ValueAxis</name>
    <message>
        <source>Transmission [1/100 %]</source>
        <translation>Transmission [1/100 %]</translation>
    </message>
    <message>
        <source>Absorbance [1/10000]</source>
        <translation>Absorbanz [1/10000]</translation>
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
        <translation>Date&amp;ien</translation>
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
        <translation>Zei&amp;chnen</translation>
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
        <translation>V&amp;ollbild</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Die Sprache ändert sich beim nächsten Start.</translation>
    </message>
    <message>
        <source>Pale&amp;tte</source>
        <translation>P&amp;alette</translation>
    </message>
    <message>
        <source>Co&amp;ver</source>
        <translation>Ab&amp;deckung</translation>
    </message>
    <message>
        <source>Restore Default La&amp;yout</source>
        <translation>Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Specimen</source>
        <translation>&amp;Präparat</translation>
    </message>
    <message>
        <source>S&amp;pectrograph</source>
        <translation>&amp;Spektrograph</translation>
    </message>
    <message>
        <source>&amp;Test Chart</source>
        <translation>&amp;Testbild</translation>
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
    <message>
        <source>A recording that was cut off waits until its disk is back: %1</source>
        <translation>Eine abgebrochene Aufzeichnung wartet, bis ihre Platte wieder da ist: %1</translation>
    </message>
    <message>
        <source>A recording that was cut off was repaired: %1 frames in %2, and %3 that were torn are lost</source>
        <translation>Eine abgebrochene Aufzeichnung wurde wiederhergestellt: %1 Bilder in %2, und %3, die zerrissen waren, sind verloren</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>There is no comparison to be saved: choose View &gt; Compare first.</source>
        <translation>Es gibt keinen Vergleich zu speichern: zuerst Ansicht &gt; Vergleichen wählen.</translation>
    </message>
</context>
</TS>
