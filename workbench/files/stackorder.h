// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// How the frames of a microscope stack follow each other: which of channel, slice and time changes
/// first. Read from the descriptions that ImageJ and OME write into TIFF files.
class StackOrder
{
public:
    /// An empty order when the description does not fit the number of frames.
    static StackOrder FromImageJ(const QString &description, int frames);
    static StackOrder FromOme(const QString &xml, int frames);

    bool IsEmpty() const { return m_axes.isEmpty(); }
    /// "channel 2 of 3, slice 5 of 7"; empty for an empty order.
    QString Describe(int frame) const;

private:
    struct Axis
    {
        QString name;
        int size;
        QStringList labels; ///< names of the channels, if given
    };

    void Append(const QString &name, int size, const QStringList &labels = QStringList());
    void ClearUnlessFits(int frames);

    QVector<Axis> m_axes; ///< the one that changes first comes first
};

/// Value of a "key=value" line of an ImageJ description; empty without it.
QString ImageJValue(const QString &description, const QString &key);
bool IsImageJDescription(const QString &description);
bool IsOmeDescription(const QString &description);
