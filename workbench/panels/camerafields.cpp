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
    connect(link, &CameraLink::signalStateChanged, this, &CameraFields::slotCameraStateChanged);
    connect(link, &CameraLink::signalControlSet, this, &CameraFields::slotAnswered);
    connect(link, &CameraLink::signalControlsChanged, this, &CameraFields::signalChanged);
    connect(link, &CameraLink::signalFormatChanged, this, &CameraFields::slotFormatAnswered);
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
    if (session && (session->Controls().isAutoExposure || session->Controls().isAutoGain))
        session->Refresh();
}

void CameraFields::slotCameraStateChanged()
{
    m_faults.clear();
    emit signalFault(QString());
    slotFormatAnswered();
}

/// What was refused is shown until that control is taken: the answer to another one may come right after it.
void CameraFields::slotAnswered(QString error, QString control)
{
    m_faults.remove(control);
    if (!error.isEmpty())
        m_faults.insert(control, error);
    emit signalFault(QStringList(m_faults.values()).join('\n'));
    slotFormatAnswered();
}

void CameraFields::slotFormatAnswered()
{
    if (!m_link->Session() || !m_link->Session()->IsSetting())
        m_wishes.clear();
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
    for (PanelField &field : fields)
        ShowWish(field);
    return fields;
}

/// Until the camera has answered, so that a step on an arrow counts from the step before.
void CameraFields::ShowWish(PanelField &field) const
{
    const auto wish = m_wishes.constFind(field.key);
    if (wish == m_wishes.cend())
        return;
    field.value = *wish;
    if (field.kind == PanelField::Kind::Number)
        field.value = qBound(field.minimum, wish->toDouble(), field.maximum);
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
    const ControlValues &controls = m_link->Session()->Controls();
    const ValueRange exposure = controls.exposureRangeUs;
    fields << Number("exposure", tr("Exposure"), controls.exposureUs / UsPerMs,
                     {exposure.minimum / UsPerMs, exposure.maximum / UsPerMs}, 3, tr(" ms"));
    fields.last().isEnabled &= !controls.isAutoExposure;
    fields << Automatic("autoExposure", controls.isAutoExposure, controls.hasAutoExposure);
    fields << Number("gain", tr("Gain"), controls.gain, controls.gainRange, 2);
    fields.last().isEnabled &= !controls.isAutoGain;
    fields << Automatic("autoGain", controls.isAutoGain, controls.hasAutoGain);
    fields << Number("frameRate", tr("Frame rate"), controls.frameRate, controls.frameRateRange, 2,
                     tr(" frames/s"));
    fields.last().toolTip = tr("A long exposure lowers it.");
    SetGroup(fields, first, tr("Exposure"));
}

void CameraFields::AddFrame(PanelFields &fields) const
{
    const int first = fields.size();
    const FormatValues &format = m_link->Session()->Format();
    QStringList layouts;
    for (const PixelLayout layout : format.layouts)
        layouts << PixelLayoutName(layout);
    QStringList binnings;
    for (const int binning : format.binnings)
        binnings << tr("%1 x %1").arg(binning);
    fields << Choice("pixelFormat", tr("Pixel format"), layouts, format.layouts.indexOf(format.layout));
    fields << Choice("binning", tr("Binning"), binnings, format.binnings.indexOf(format.binning));
    SetGroup(fields, first, tr("Frame"));
}

void CameraFields::AddRegion(PanelFields &fields) const
{
    const int first = fields.size();
    const FormatValues &format = m_link->Session()->Format();
    const RegionLimits &limits = format.limits;
    const QRect region = format.region;
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
    if (key == "drawRegion")
        m_region->SetManualROIChecked(value.toBool());
    else if (key == "fullSensor")
        m_link->SetRegion(QRect(QPoint(0, 0), session->Format().limits.sensorSize));
    else
        SetFormat(key, value);
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
    CameraSession *session = m_link->Session();
    if (key == "exposure")
        session->SetExposureUs(value.toDouble() * UsPerMs);
    else if (key == "gain")
        session->SetGain(value.toDouble());
    else if (key == "frameRate")
        session->SetFrameRate(value.toDouble());
    else if (key == "autoExposure")
        session->SetAutoExposure(value.toBool());
    else if (key == "autoGain")
        session->SetAutoGain(value.toBool());
    else
        return false;
    m_wishes.insert(key, value);
    return true;
}

void CameraFields::SetFormat(const QString &key, const QVariant &value)
{
    const FormatValues &format = m_link->Session()->Format();
    const int index = value.toInt();
    m_wishes.insert(key, value); // before it is refused
    if (key == "pixelFormat" && index >= 0 && index < format.layouts.size())
        m_link->SetPixelLayout(format.layouts.at(index));
    else if (key == "binning" && index >= 0 && index < format.binnings.size())
        m_link->SetBinning(format.binnings.at(index));
    else if (!SetRegionSide(key, index))
        m_wishes.remove(key);
}

/// Of the region that the camera has by then: another side of it may be about to change. True when the key was one.
bool CameraFields::SetRegionSide(const QString &key, int value)
{
    static const QHash<QString, void (*)(QRect &, int)> sides{
        { "left", [](QRect &region, int side) { region.moveLeft(side); } },
        { "top", [](QRect &region, int side) { region.moveTop(side); } },
        { "width", [](QRect &region, int side) { region.setWidth(side); } },
        { "height", [](QRect &region, int side) { region.setHeight(side); } },
    };
    const auto change = sides.value(key, nullptr);
    if (change)
        m_link->ChangeRegion(key, [change, value](QRect region) {
            change(region, value);
            return region;
        });
    return change;
}
