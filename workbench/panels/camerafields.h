// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

#include <QHash>
#include <QMap>
#include <QTimer>

class CameraLink;
class ConnectedCameras;
class RegionOfInterest;
struct ValueRange;

/// The camera as a panel shows it: which one, its exposure, gain and frame rate, what it sends and from where on its
/// sensor. Values and limits are the camera's own, read back after each change; until then what was wished is shown.
/// While somebody looks, new cameras are looked for and what the camera changes by itself is read again. GUI thread,
/// which never waits for the camera.
class CameraFields : public FieldSource
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    CameraFields(CameraLink *link, ConnectedCameras *cameras, RegionOfInterest *region, QObject *parent = nullptr);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;
    void SetWatched(bool watched) override;

signals:
    /// This camera is to be opened.
    void signalCameraWanted(QString id);
    /// The list of cameras is to be brought up to date.
    void signalSearchWanted();

private slots:
    void slotRefresh();
    void slotCameraStateChanged();
    void slotAnswered(QString error, QString control);
    void slotFormatAnswered();

private:
    void AddCamera(PanelFields &fields) const;
    void AddExposure(PanelFields &fields) const;
    void AddFrame(PanelFields &fields) const;
    void AddRegion(PanelFields &fields) const;
    void ShowWish(PanelField &field) const;
    void Choose(int index);
    bool SetControl(const QString &key, const QVariant &value);
    void SetFormat(const QString &key, const QVariant &value);
    bool SetRegionSide(const QString &key, int value);

    CameraLink *m_link;
    ConnectedCameras *m_cameras;
    RegionOfInterest *m_region;
    QTimer m_refresh;
    QTimer m_search;
    QHash<QString, QVariant> m_wishes; ///< not answered yet
    QMap<QString, QString> m_faults;   ///< by control: why it was not taken the last time
};
