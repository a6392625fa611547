<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CameraControls</name>
    <message>
        <source>%1 could not be set: %2. Choose another value, or open the camera again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be set: the camera does not answer. Check its cable and power.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame rate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraDialog</name>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure and Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frame rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> frames/s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraFormat</name>
    <message>
        <source>The pixel format %1 could not be set: %2. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The region %1 x %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera can&apos;t bin %1 x %1 pixels. Choose another binning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The binning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be set: %2. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraLink</name>
    <message>
        <source>Simulated Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera &quot;%1&quot; is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera &quot;%1&quot; is back, but not as it was: check its %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size and format of the frames stay as they are while a recording runs. Stop it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixel format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame rate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraMenu</name>
    <message>
        <source>Simulated Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera &amp;Information…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exposure and Gain…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pixel Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Binning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select Region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull Sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another camera ends it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing the camera ends it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraNotice</name>
    <message>
        <source>No camera is open.
Choose one in the Camera menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening the camera %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraSession</name>
    <message>
        <source>The camera %1 could not be opened: %2. Check that it is connected and powered, and that no other program uses it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera offers none of the pixel formats Mono8, Mono12, Mono16 and RGB8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera %1 does not answer. Check its cable and power.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera %1 sends no pictures: %2. Close it and open it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera %1 did not start: %2. Close it and open it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreatePicture</name>
    <message>
        <source>its name ends in no format that can be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the name in .tif, .fits, .png or .jpg.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrawingGuard</name>
    <message>
        <source>OpenGL can&apos;t be started: %1. The picture is drawn by the CPU.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenGL has failed. The picture is drawn by the CPU from here on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FaultNotice</name>
    <message>
        <source>Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FitsPictureWriter</name>
    <message>
        <source>frame %1 could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of the file could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameSaving</name>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the memory is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frame came from the camera.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InformationDialog</name>
    <message>
        <source>Camera Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Workbench %1&lt;/h3&gt;&lt;p&gt;An open workspace for scientific cameras: live view, zoom, panels and measurement around any GenICam camera.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later. There is no warranty.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LevelsDialog</name>
    <message>
        <source>Levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic (0.1 % to 99.9 %)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum and maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bit samples, 0 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LevelsSource</name>
    <message>
        <source>There is no live picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Levels are found from samples of this kind.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing the program ends it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenGLProbe</name>
    <message>
        <source>the display offers none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver gives no context</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenedPicture</name>
    <message>
        <source>Frame %1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture is open that could be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureDesk</name>
    <message>
        <source>that is no file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a file of that name already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not renamed to “%2”: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a picture first: the live picture is compared with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a second picture first: two are compared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureDialogs</name>
    <message>
        <source>Pictures (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 compared</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureDocument</name>
    <message>
        <source>RGB, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>there is no frame %1 among its %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a frame that is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory for frame %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureList</name>
    <message>
        <source>No picture is open. Drop files here, or choose File &gt; Open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in File &amp;Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Comparison…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureLoader</name>
    <message>
        <source>There is not enough memory for “%1”. Close other pictures or programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 is too small to be cropped like the others. Undo the crop to see it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureMenus</name>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Image As…	F8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image &amp;Information…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The settings were not used: %1. They were kept as %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RasterPictureFile</name>
    <message>
        <source>it cannot be decoded</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReceiptDialog</name>
    <message>
        <source>&amp;Verify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the files back and compare them with what was captured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files hold exactly what was captured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files do NOT hold what was captured: checksum %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingDesk</name>
    <message>
        <source>A recording is running already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no camera to record from. Choose one in the Camera menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera was lost before the recording could begin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the camera could not be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was discarded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames saved as %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, none lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 LOST.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingForm</name>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To memory, then to disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FITS cube</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4} are filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory for frames that wait while the disk is busy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delay before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;lder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Waiting frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for Recordings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingGuard</name>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording is running. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep what was recorded until now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go On Recording</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingMenu</name>
    <message>
        <source>&amp;Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture &amp;One Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last Recording…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record What Fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record &amp;Anyway</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingStatus</name>
    <message>
        <source>saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  LOST %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  waiting %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  queue full in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last recording LOST %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunSummary</name>
    <message>
        <source>never arrived from the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>arrived incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk was too slow and the queue full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not be written to the disk</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SampleType</name>
    <message>
        <source>%1-bit floating point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1-bit signed integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1-bit unsigned integer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save Image As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 frames</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StackOrder</name>
    <message>
        <source>channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Camera &quot;%1&quot; was lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and did not come back. Check its cable and power, then choose Camera &gt; Reconnect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; trying again now (%2 of %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; trying again in %2 s (%3 of %4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (lost)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB 8 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown %1  lost %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TiffPictureWriter</name>
    <message>
        <source>the file could not be begun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame %1 could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of the file could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bottom Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;evels…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mark Saturated Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Draw on Live Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;CPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;GPU (OpenGL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated &amp;Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bl&amp;ack Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore &amp;Default Layout</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkbenchServices</name>
    <message>
        <source>A recording that was cut off could not be repaired: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording that was cut off held no whole frame: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording that was cut off was repaired: %1 frames in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>There is no comparison to be saved: choose View &gt; Compare first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkspaceConfig</name>
    <message>
        <source>Pictures can&apos;t be converted to CSV by this version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The DPI of a picture can&apos;t be changed by this version.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
