// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationstore.h"

#include <QSettings>

namespace {
constexpr char Group[] = "spectrum/calibration";
constexpr char PointsKey[] = "points";
constexpr char DegreeKey[] = "degree";
constexpr char WidthKey[] = "width";
constexpr char PixelKey[] = "pixel";
constexpr char WavelengthKey[] = "nm";
constexpr char LineKey[] = "line";
constexpr char SaturatedKey[] = "saturated";
constexpr char FrameKey[] = "frame"; // along rows, reversed, first, binning, extent of the file, horizontal
constexpr char CameraKey[] = "camera";
constexpr int mostPoints = 1000;
constexpr int widestFrame = 65535;

QVariantList Numbers(const SpectralFrame &frame) 
{
    return { int(frame.isAlongRows), int(frame.isReversed), frame.first,
             frame.binning,          frame.fileExtent,      int(frame.isHorizontal) };
}

/// Null for what makes no sense.
SpectralFrame Frame(const QVariantList &numbers, int width)
{
    SpectralFrame frame;
    if (numbers.size() < 4)
        return frame;
    frame.isAlongRows = numbers[0].toInt() != 0;
    frame.isReversed = numbers[1].toInt() != 0;
    frame.first = numbers[2].toInt();
    frame.binning = numbers[3].toInt();
    frame.fileExtent = numbers.value(4).toInt(); // those that were kept before are of a sensor
    frame.isHorizontal = numbers.value(5, frame.isAlongRows).toInt() != 0; // most pictures are upright
    const bool makesSense = frame.first >= 0 && frame.first <= widestFrame && frame.binning >= 1 && frame.binning <= widestFrame
        && frame.fileExtent >= 0 && frame.fileExtent <= widestFrame;
    frame.count = makesSense ? width : 0;
    return frame;
}
} // namespace

StoredCalibration LoadCalibration(QSettings &settings)
{
    StoredCalibration calibration;
    settings.beginGroup(Group);
    calibration.degree = settings.value(DegreeKey).toInt();
    calibration.width = settings.value(WidthKey).toInt();
    calibration.frame = Frame(settings.value(FrameKey).toList(), calibration.width);
    calibration.camera = settings.value(CameraKey).toString();
    const int count = qMin(settings.beginReadArray(PointsKey), mostPoints);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        calibration.points.append({settings.value(PixelKey).toDouble(), settings.value(WavelengthKey).toDouble(),
                                   settings.value(LineKey).toString(), settings.value(SaturatedKey).toBool()});
    }
    settings.endArray();
    settings.endGroup();
    return calibration.width > 0 && calibration.width <= widestFrame ? calibration : StoredCalibration();
}

void StoreCalibration(const StoredCalibration &calibration, QSettings *settings)
{
    settings->remove(Group);
    if (calibration.points.isEmpty())
        return;
    settings->beginGroup(Group);
    settings->setValue(DegreeKey, calibration.degree);
    settings->setValue(WidthKey, calibration.width);
    if (!calibration.frame.IsNull())
        settings->setValue(FrameKey, Numbers(calibration.frame));
    if (!calibration.camera.isEmpty())
        settings->setValue(CameraKey, calibration.camera);
    settings->beginWriteArray(PointsKey, calibration.points.size());
    for (int i = 0; i < calibration.points.size(); ++i) {
        settings->setArrayIndex(i);
        settings->setValue(PixelKey, calibration.points[i].pixel);
        settings->setValue(WavelengthKey, calibration.points[i].nm);
        settings->setValue(LineKey, calibration.points[i].line);
        settings->setValue(SaturatedKey, calibration.points[i].isSaturated);
    }
    settings->endArray();
    settings->endGroup();
}
