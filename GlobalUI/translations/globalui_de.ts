<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AcquireProgressUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting to TIF : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To RAM : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Disk : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delaying : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Time : </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraUI</name>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquisition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram(Live)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapturePreviewUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Live</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileSystemView</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileThumbnail</name>
    <message>
        <source>Merge</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GPUDrawFrame</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GlobalUI</name>
    <message>
        <source>USB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Serial No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SDK Serial No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram(Live)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageInfoUI</name>
    <message>
        <source>Pos :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32bit Depth Scale :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageNavigateUI</name>
    <message>
        <source>Return Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageUI</name>
    <message>
        <source>Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Counting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasureUI</name>
    <message>
        <source>Calibration Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class Counting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Counting Table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MultiImageToolUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Spectrum2DDrawFrameBase</name>
    <message>
        <source>Counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pos : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value : </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Spectrum3DDrawViewBase</name>
    <message>
        <source>The 3D plot can&apos;t be shown: this display offers no OpenGL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Number</source>
        <translation>Pixelnummer</translation>
    </message>
    <message>
        <source>Series Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counts</source>
        <translation type="unfinished"></translation>
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
        <source>it has no panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UIPluginLoader</name>
    <message>
        <source>its root object is not a panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UIPluginMetaData</name>
    <message>
        <source>it is not a plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a plug-in for another interface: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;id&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another plug-in has the id %1 already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;place&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its metadata has no &quot;title&quot; for the bottom page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its metadata has no valid &quot;page&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewToolBar</name>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Image As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSwitchUI</name>
    <message>
        <source>Show File Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify DPI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert to CSV</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZoomUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
