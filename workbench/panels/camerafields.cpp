// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerafields.h"

#include "cameralink.h"
#include "camerasession.h"
#include "connectedcameras.h"
#include "regionofinterest.h"

#include <cmath>

namespace {

constexpr int RefreshMs = 500;
constexpr int SearchMs = 10000;
constexpr double UsPerMs = 1000.0;

/// A tenth of the value's own order of magnitude, so that a step is felt at 20 us and at 2 s alike.
double StepOf(double value, double smallest)
{
    return value > 0 ? qMax(smallest, std::pow(10.0, std::floor(std::log10(value)) - 1)) : smallest;
}

PanelField Number(const QString &key, const QString &text, double value, const ValueRange &range, int decimals,
                  const QString &unit = QString())
{
    PanelField field = PanelField::MakeNumber(key, text, value, range.minimum, range.maximum, decimals, unit);
    field.isEnabled = range.IsAdjustable();
    field.step = StepOf(value, std::pow(10.0, -decimals));
    return field;
}

PanelField Automatic(const QString &key, bool value, bool isThere)
{
    PanelField field = PanelField::Make(PanelField::Kind::Check, key, CameraFields::tr("automatic"), value);
    field.isEnabled = isThere;
    field.isBeside = true;
    return field;
}

PanelField Choice(const QString &key, const QString &text, const QStringList &choices, int index)
{
    PanelField field = PanelField::MakeChoice(key, text, index, choices);
    field.isEnabled = choices.size() > 1;
    return field;
}

} // namespace

CameraFields::CameraFields(CameraLink *link, ConnectedCameras *cameras, RegionOfInterest *region, QObject *parent)
    : FieldSource(CameraName, parent)
    , m_link(link)
    , m_cameras(cameras)
    , m_region(region)
{
    m_refresh.setInterval(RefreshMs);
    m_search.setInterval(SearchMs);
    connect(&m_refresh, &QTimer::timeout, this, &CameraFields::slotRefresh);
    connect(&m_search, &QTimer::timeout, this, &CameraFields::signalSearchWanted);
    connect(link, &CameraLink::signalStateChanged, this, [this] {
        emit signalFault(QString());
        emit signalChanged();
    });
    connect(link, &CameraLink::signalFormatChanged, this, &CameraFields::signalChanged);
    connect(cameras, &ConnectedCameras::signalUpdateCameraList, this, &CameraFields::signalChanged);
    connect(region, &RegionOfInterest::signalCheckedChanged, this, &CameraFields::signalChanged);
}

void CameraFields::SetWatched(bool watched)
{
    if (watched) {
        m_refresh.start();
        m_search.start();
    } else {
        m_refresh.stop();
        m_search.stop();
    }
}

/// Only what the camera changes by itself needs to be asked for again.
void CameraFields::slotRefresh()
{
    CameraSession *session = m_link->Session();
    if (!session || !(session->Controls().IsAutoExposure() || session->Controls().IsAutoGain()))
        return;
    session->Controls().Refresh();
    emit signalChanged();
}

PanelFields CameraFields::Fields() const
{
    PanelFields fields;
    AddCamera(fields);
    if (!m_link->Session())
        return fields;
    AddExposure(fields);
    AddFrame(fields);
    AddRegion(fields);
    return fields;
}

void CameraFields::AddCamera(PanelFields &fields) const
{
    const int first = fields.size();
    QStringList names;
    int current = -1;
    for (const CameraInfo &camera : m_cameras->Cameras()) {
        if (m_link->GetState() != CameraLink::State::NoCamera && camera.id == m_link->Info().id)
            current = names.size();
        names << ConnectedCameras::Caption(camera);
    }
    fields << Choice("device", tr("Device"), names, current);
    fields.last().isEnabled = true;
    fields << PanelField::Make(PanelField::Kind::Action, "search", tr("Refresh List"));
    SetGroup(fields, first, tr("Camera"));
}

void CameraFields::AddExposure(PanelFields &fields) const
{
    const int first = fields.size();
    const CameraControls &controls = m_link->Session()->Controls();
    const ValueRange exposure = controls.ExposureRangeUs();
    fields << Number("exposure", tr("Exposure"), controls.ExposureUs() / UsPerMs,
                     {exposure.minimum / UsPerMs, exposure.maximum / UsPerMs}, 3, tr(" ms"));
    fields.last().isEnabled &= !controls.IsAutoExposure();
    fields << Automatic("autoExposure", controls.IsAutoExposure(), controls.HasAutoExposure());
    fields << Number("gain", tr("Gain"), controls.Gain(), controls.GainRange(), 2);
    fields.last().isEnabled &= !controls.IsAutoGain();
    fields << Automatic("autoGain", controls.IsAutoGain(), controls.HasAutoGain());
    fields << Number("frameRate", tr("Frame rate"), controls.FrameRate(), controls.FrameRateRange(), 2,
                     tr(" frames/s"));
    fields.last().toolTip = tr("A long exposure lowers it.");
    SetGroup(fields, first, tr("Exposure"));
}

void CameraFields::AddFrame(PanelFields &fields) const
{
    const int first = fields.size();
    const CameraFormat &format = m_link->Session()->Format();
    QStringList layouts;
    for (const PixelLayout layout : format.Layouts())
        layouts << PixelLayoutName(layout);
    QStringList binnings;
    for (const int binning : format.Binnings())
        binnings << tr("%1 x %1").arg(binning);
    fields << Choice("pixelFormat", tr("Pixel format"), layouts, format.Layouts().indexOf(format.Layout()));
    fields << Choice("binning", tr("Binning"), binnings, format.Binnings().indexOf(format.Binning()));
    SetGroup(fields, first, tr("Frame"));
}

void CameraFields::AddRegion(PanelFields &fields) const
{
    const int first = fields.size();
    const CameraFormat &format = m_link->Session()->Format();
    const RegionLimits limits = format.Limits();
    const QRect region = format.Region();
    const QSize sensor = limits.sensorSize;
    const double xStep = limits.offsetStep.width();
    const double yStep = limits.offsetStep.height();
    // The ends don't depend on the other numbers: what does not fit beside them is moved.
    fields << Number("left", tr("Left"), region.left(), {0, double(sensor.width() - limits.minimumSize.width())}, 0);
    fields.last().step = xStep;
    fields << Number("top", tr("Top"), region.top(), {0, double(sensor.height() - limits.minimumSize.height())}, 0);
    fields.last().step = yStep;
    fields << Number("width", tr("Width"), region.width(),
                     {double(limits.minimumSize.width()), double(sensor.width())}, 0);
    fields.last().step = limits.sizeStep.width();
    fields << Number("height", tr("Height"), region.height(),
                     {double(limits.minimumSize.height()), double(sensor.height())}, 0);
    fields.last().step = limits.sizeStep.height();
    fields << PanelField::Make(PanelField::Kind::Check, "drawRegion", tr("Draw on picture"), m_region->IsROIChecked());
    fields.last().toolTip = tr("Drag a frame over the live picture.");
    fields << PanelField::Make(PanelField::Kind::Action, "fullSensor", tr("Full Sensor"));
    fields.last().isEnabled = region.size() != sensor;
    SetGroup(fields, first, tr("Region on the sensor"));
}

void CameraFields::Set(const QString &key, const QVariant &value)
{
    if (key == "device")
        return Choose(value.toInt());
    if (key == "search")
        return emit signalSearchWanted();
    CameraSession *session = m_link->Session();
    if (!session || SetControl(key, value))
        return;
    const CameraFormat &format = session->Format();
    if (key == "pixelFormat" && value.toInt() >= 0 && value.toInt() < format.Layouts().size())
        m_link->SetPixelLayout(format.Layouts().at(value.toInt()));
    else if (key == "binning" && value.toInt() >= 0 && value.toInt() < format.Binnings().size())
        m_link->SetBinning(format.Binnings().at(value.toInt()));
    else if (key == "drawRegion")
        m_region->SetManualROIChecked(value.toBool());
    else if (key == "fullSensor")
        m_link->SetRegion(QRect(QPoint(0, 0), format.Limits().sensorSize));
    else
        SetRegionSide(key, value.toInt());
}

void CameraFields::Choose(int index)
{
    if (index < 0 || index >= m_cameras->Cameras().size())
        return;
    emit signalCameraWanted(m_cameras->Cameras().at(index).id);
}

/// True when the key was one of these.
bool CameraFields::SetControl(const QString &key, const QVariant &value)
{
    CameraControls &controls = m_link->Session()->Controls();
    QString error;
    bool isTaken = false;
    if (key == "exposure")
        isTaken = controls.SetExposureUs(value.toDouble() * UsPerMs, &error);
    else if (key == "gain")
        isTaken = controls.SetGain(value.toDouble(), &error);
    else if (key == "frameRate")
        isTaken = controls.SetFrameRate(value.toDouble(), &error);
    else if (key == "autoExposure")
        isTaken = controls.SetAutoExposure(value.toBool(), &error);
    else if (key == "autoGain")
        isTaken = controls.SetAutoGain(value.toBool(), &error);
    else
        return false;
    emit signalFault(isTaken ? QString() : error);
    emit signalChanged();
    return true;
}

void CameraFields::SetRegionSide(const QString &key, int value)
{
    QRect region = m_link->Session()->Format().Region();
    if (key == "left")
        region.moveLeft(value);
    else if (key == "top")
        region.moveTop(value);
    else if (key == "width")
        region.setWidth(value);
    else if (key == "height")
        region.setHeight(value);
    else
        return;
    m_link->SetRegion(region);
    emit signalChanged();
}
