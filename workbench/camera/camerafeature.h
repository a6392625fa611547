// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

typedef struct _ArvDevice ArvDevice;

/// A feature of a camera as its own GenICam description tells it.
struct CameraFeature
{
    enum class Kind { Integer, Float, Choice, Check, Text, Command };

    QString name;     ///< GenICam's, "ExposureTime"
    QString text;     ///< for people; the name where the camera has no better one
    QString category; ///< of the top level
    QString toolTip;
    Kind kind = Kind::Text;
    bool isExpert = false; ///< not for beginners
    bool isReadable = false;
    bool isWritable = false;
    QVariant value; ///< qint64, double, QString (choice and text) or bool; invalid when it can't be read
    double minimum = 0;
    double maximum = 0;
    double step = 0; ///< 0: any value
    QString unit;
    QStringList choices; ///< that are possible now
};

/// Reading and writing a camera's own features. Each call talks to the camera and may block; never in the GUI thread,
/// and one call at a time.
namespace CameraFeatureAccess {

/// A feature's name and the category it stands in.
struct Place
{
    QString category;
    QString name;
};

/// All features that are meant for people, in the camera's order.
QVector<Place> List(ArvDevice *device);
/// False when the camera does not have the feature, or not now.
bool Read(ArvDevice *device, const Place &place, CameraFeature *feature);
/// Numbers are moved to the nearest limit and step; a command is carried out. On failure `error` says what the camera
/// said.
bool Write(ArvDevice *device, const CameraFeature &feature, const QVariant &value, QString *error);
/// The value of a number that the feature can have, nearest to `value`.
double Fitted(const CameraFeature &feature, double value);

} // namespace CameraFeatureAccess
