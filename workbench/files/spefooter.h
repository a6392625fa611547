// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spelayout.h"

#include <QByteArray>
#include <QHash>

/// Calibrations of an SPE 3 file by their ids, and those that its regions refer to.
struct SpeCalibrations
{
    QHash<QString, QVector<double>> wavelengths; ///< nm, one for each column of the sensor
    QHash<QString, SpeSensorRegion> mappings;
    QHash<QString, double> lasers;
    QStringList ofFrame; ///< ids that hold for every region
    QVector<QStringList> ofRegions;
};

/// What the XML at the end of an SPE 3 file says of the data: fills frames, stride, sample type, regions and metadata as
/// written there; nothing is checked against the file's size, so nothing is made of the calibrations yet.
bool ReadSpeFooter(const QByteArray &xml, SpeLayout &layout, SpeCalibrations &calibrations, FileFault &fault);
/// Gives the regions their places on the sensor and their axes, which have a value for each column: the sizes of the
/// regions have to be checked before.
void CalibrateRegions(const SpeCalibrations &calibrations, SpeLayout &layout);
