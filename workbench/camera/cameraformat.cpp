// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "cameraformat.h"

#include "simulatedsensor.h"

#include <QStringList>
#include <algorithm>

namespace {
constexpr int LargestSimulatedBinning = 4;
constexpr int LargestBinning = 16;

int OnStep(int value, int step) { return value - value % std::max(step, 1); }

/// Start and length along one axis.
struct Span
{
    int start;
    int length;
};

Span FittedSpan(Span wished, int sensor, int minimum, int lengthStep, int startStep)
{
    // Steps of the length are counted from the smallest one.
    const int length =
        minimum + OnStep(std::clamp(wished.length, minimum, std::max(sensor, minimum)) - minimum, lengthStep);
    const int start = OnStep(std::clamp(wished.start, 0, std::max(sensor - length, 0)), startStep);
    return { start, length };
}

// What the camera leaves unanswered stays as it was known.
bool ReadPair(void (*read)(ArvCamera *, int *, int *, GError **), ArvCamera *camera, int *first, int *second)
{
    int firstTold = 0;
    int secondTold = 0;
    AravisError failure;
    read(camera, &firstTold, &secondTold, failure.Receive());
    if (failure.IsSet())
        return false;
    *first = firstTold;
    *second = secondTold;
    return true;
}

bool ReadStep(int (*read)(ArvCamera *, GError **), ArvCamera *camera, int *step)
{
    AravisError failure;
    const int told = read(camera, failure.Receive());
    if (failure.IsSet())
        return false;
    *step = told;
    return true;
}

QStringList AvailableFormats(ArvCamera *camera, AravisError *failure)
{
    unsigned int count = 0;
    const char **names = arv_camera_dup_available_pixel_formats_as_strings(camera, &count, failure->Receive());
    QStringList formats;
    for (unsigned int i = 0; i < count; ++i)
        formats.append(QString::fromUtf8(names[i]));
    g_free(names);
    return formats;
}
} // namespace

QRect FittedRegion(const QRect &wished, const RegionLimits &limits)
{
    const Span x = FittedSpan({ wished.x(), wished.width() }, limits.sensorSize.width(),
                              limits.minimumSize.width(), limits.sizeStep.width(), limits.offsetStep.width());
    const Span y =
        FittedSpan({ wished.y(), wished.height() }, limits.sensorSize.height(), limits.minimumSize.height(),
                   limits.sizeStep.height(), limits.offsetStep.height());
    return QRect(x.start, y.start, x.length, y.length);
}

CameraFormat::CameraFormat(ArvCamera *camera, SimulatedSensor *sensor)
    : m_camera(camera)
    , m_sensor(sensor)
{
    ReadAgain();
}

/// False when the camera has another one than these; one that does not answer has the one that was known.
bool CameraFormat::ReadLayouts()
{
    AravisError failure;
    const QStringList formats = AvailableFormats(m_camera, &failure);
    if (failure.IsSet())
        return true;
    const QString current =
        QString::fromUtf8(arv_camera_get_pixel_format_as_string(m_camera, failure.Receive()));
    bool isKnown = failure.IsSet();
    m_values.layouts.clear();
    for (const PixelLayout layout :
         { PixelLayout::Mono8, PixelLayout::Mono12, PixelLayout::Mono16, PixelLayout::Rgb8 }) {
        const bool isSimulated12 = m_sensor && layout == PixelLayout::Mono12
                                   && formats.contains(PixelLayoutName(PixelLayout::Mono16));
        if (!formats.contains(PixelLayoutName(layout)) && !isSimulated12)
            continue;
        m_values.layouts.append(layout);
        if (PixelLayoutName(layout) != current)
            continue;
        isKnown = true;
        // The simulated camera's 16-bit format may carry 12 bits.
        if (!(m_sensor && layout == PixelLayout::Mono16 && m_values.layout == PixelLayout::Mono12))
            m_values.layout = layout;
    }
    return isKnown;
}

bool CameraFormat::ReadAgain()
{
    const bool isKnown = ReadLayouts();
    ReadLimits();
    ReadBinnings();
    TakeBinning(m_values.binning);
    ReadRegion();
    return isKnown;
}

bool CameraFormat::TakeBack(PixelLayout layout, QString *error)
{
    if (!SetLayout(layout, error))
        return false;
    *error = tr("The camera has chosen a pixel format that can't be shown. It is %1 again.")
                 .arg(PixelLayoutName(layout));
    return true;
}

void CameraFormat::ReadLimits()
{
    RegionLimits &limits = m_frameLimits;
    int largest = 0;
    ReadPair(arv_camera_get_sensor_size, m_camera, &limits.sensorSize.rwidth(), &limits.sensorSize.rheight());
    ReadPair(arv_camera_get_width_bounds, m_camera, &limits.minimumSize.rwidth(), &largest);
    ReadPair(arv_camera_get_height_bounds, m_camera, &limits.minimumSize.rheight(), &largest);
    ReadStep(arv_camera_get_width_increment, m_camera, &limits.sizeStep.rwidth());
    ReadStep(arv_camera_get_height_increment, m_camera, &limits.sizeStep.rheight());
    if (!arv_camera_is_region_offset_available(m_camera, nullptr))
        return;
    ReadStep(arv_camera_get_x_offset_increment, m_camera, &limits.offsetStep.rwidth());
    ReadStep(arv_camera_get_y_offset_increment, m_camera, &limits.offsetStep.rheight());
}

void CameraFormat::ReadRegion()
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    AravisError failure;
    arv_camera_get_region(m_camera, &x, &y, &width, &height, failure.Receive());
    if (failure.IsSet())
        return; // what was known stays
    const int binning = m_values.binning;
    m_values.region = QRect(x * binning, y * binning, width * binning, height * binning);
}

bool CameraFormat::SetLayout(PixelLayout layout, QString *error)
{
    // The simulated camera has no 12-bit format of its own; its 16-bit one carries 12 bits then.
    const bool isSimulated12 = m_sensor && layout == PixelLayout::Mono12;
    const QString format = PixelLayoutName(isSimulated12 ? PixelLayout::Mono16 : layout);
    AravisError failure;
    arv_camera_set_pixel_format_from_string(m_camera, format.toUtf8().constData(), failure.Receive());
    if (failure.IsSet()) {
        if (error)
            *error = tr("The pixel format %1 could not be set: %2. Choose another one.")
                         .arg(PixelLayoutName(layout), failure.Text());
        return false;
    }
    if (m_sensor)
        m_sensor->SetBitDepthOf16BitSamples(isSimulated12 ? 12 : 16);
    m_values.layout = layout;
    return true;
}

bool CameraFormat::SetRegion(const QRect &region, QString *error)
{
    const QRect fitted = FittedRegion(region, m_values.limits);
    const int binning = m_values.binning;
    AravisError failure;
    arv_camera_set_region(m_camera, fitted.x() / binning, fitted.y() / binning, fitted.width() / binning,
                          fitted.height() / binning, failure.Receive());
    ReadRegion();
    return Report(tr("The region %1 x %2").arg(fitted.width()).arg(fitted.height()), failure, error);
}

void CameraFormat::ReadBinnings()
{
    if (m_sensor) {
        m_values.binnings = { 1 };
        for (int binning = 2; binning <= LargestSimulatedBinning; binning *= 2)
            m_values.binnings.append(binning);
        return;
    }
    AravisError failure;
    const bool isAvailable = arv_camera_is_binning_available(m_camera, failure.Receive());
    int ignored = 1;
    int mostAcross = 1;
    int mostDown = 1;
    int step = 1;
    if (failure.IsSet()
        || (isAvailable
            && !(ReadPair(arv_camera_get_x_binning_bounds, m_camera, &ignored, &mostAcross)
                 && ReadPair(arv_camera_get_y_binning_bounds, m_camera, &ignored, &mostDown)
                 && ReadStep(arv_camera_get_x_binning_increment, m_camera, &step))))
        return;
    step = std::max(step, 1);
    m_values.binnings = { 1 };
    for (int binning = 1 + step; binning <= std::min({ mostAcross, mostDown, LargestBinning }); binning += step)
        m_values.binnings.append(binning);
    if (isAvailable && ReadPair(arv_camera_get_binning, m_camera, &m_values.binning, &ignored))
        m_values.binning = std::max(m_values.binning, 1);
}

/// The limits of a region are told in pixels of the sensor.
void CameraFormat::TakeBinning(int binning)
{
    m_values.binning = binning;
    m_values.limits = m_frameLimits;
    m_values.limits.minimumSize *= binning;
    m_values.limits.sizeStep *= binning;
    m_values.limits.offsetStep *= binning;
}

bool CameraFormat::SetBinning(int binning, QString *error)
{
    const QRect region = m_values.region;
    AravisError failure;
    if (!m_values.binnings.contains(binning)) {
        if (error)
            *error = tr("The camera can't bin %1 x %1 pixels. Choose another binning.").arg(binning);
        return false;
    }
    if (m_sensor)
        m_sensor->SetBinning(binning);
    else
        arv_camera_set_binning(m_camera, binning, binning, failure.Receive());
    if (!Report(tr("The binning"), failure, error))
        return false;
    TakeBinning(binning);
    return SetRegion(region, error);
}

bool CameraFormat::Report(const QString &setting, const AravisError &failure, QString *error) const
{
    if (!failure.IsSet())
        return true;
    if (error)
        *error = tr("%1 could not be set: %2. Choose another one.").arg(setting, failure.Text());
    return false;
}

size_t CameraFormat::FrameBytes(AravisError *failure) const
{
    const size_t bytes = arv_camera_get_payload(m_camera, failure->Receive());
    return failure->IsSet() ? 0 : bytes;
}
