// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "camerafeatures.h"

#include "cameralink.h"
#include "camerasession.h"

#include <QSet>

#include <utility>

namespace {
constexpr int RefreshMs = 3000;
/// So many are read before somebody else may talk to the camera.
constexpr int FeaturesAtATime = 4;
}

/// One reading of the whole tree.
struct CameraFeatures::Reading
{
    bool isListed = false;
    QVector<CameraFeatureAccess::Place> places;
    int next = 0;
    QVector<CameraFeature> features;
};

CameraFeatures::CameraFeatures(CameraLink *link, QObject *parent)
    : QObject(parent)
    , m_link(link)
{
    m_timer.setInterval(RefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &CameraFeatures::slotRead);
    connect(link, &CameraLink::signalStateChanged, this, &CameraFeatures::slotCameraStateChanged);
}

bool CameraFeatures::IsSetElsewhere(const QString &name)
{
    static const QSet<QString> names{
        "Width", "Height", "OffsetX", "OffsetY", "PixelFormat", "BinningHorizontal", "BinningVertical",
        "AcquisitionMode", "AcquisitionStart", "AcquisitionStop", "AcquisitionAbort", "AcquisitionFrameRate",
        "AcquisitionFrameRateAbs", "AcquisitionFrameRateEnable", "ExposureTime", "ExposureTimeAbs", "ExposureAuto",
        "Gain", "GainRaw", "GainAbs", "GainAuto", "TLParamsLocked"};
    return names.contains(name);
}

void CameraFeatures::SetWatched(bool watched)
{
    m_isWatched = watched;
    if (!watched)
        return m_timer.stop();
    m_timer.start();
    slotRead();
}

void CameraFeatures::slotCameraStateChanged()
{
    m_isReading = false;
    if (m_link->Session())
        slotRead();
    else
        emit signalRead({});
}

bool CameraFeatures::TakeTurn(const std::function<void(ArvCamera *)> &task, const std::function<void()> &done)
{
    return m_link->Session() && m_link->Session()->TakeTurn(task, this, done);
}

void CameraFeatures::slotRead()
{
    m_isStale = m_isReading;
    if (!m_isWatched || m_isReading)
        return;
    ReadSome(std::make_shared<Reading>());
}

void CameraFeatures::ReadSome(const std::shared_ptr<Reading> &reading)
{
    const auto read = [reading](ArvCamera *camera) {
        ArvDevice *const device = arv_camera_get_device(camera);
        if (!reading->isListed)
            reading->places = CameraFeatureAccess::List(device);
        reading->isListed = true;
        const int end = qMin(reading->next + FeaturesAtATime, reading->places.size());
        for (; reading->next < end; ++reading->next) {
            CameraFeature feature;
            if (CameraFeatureAccess::Read(device, reading->places.at(reading->next), &feature))
                reading->features.append(feature);
        }
    };
    m_isReading = TakeTurn(read, [this, reading] { TakeSome(reading); });
}

void CameraFeatures::TakeSome(const std::shared_ptr<Reading> &reading)
{
    if (reading->next < reading->places.size())
        return ReadSome(reading);
    m_isReading = false;
    // What a command does may come after its answer.
    if (std::exchange(m_isSet, false) && m_link->Session())
        m_link->Session()->TakeChangingTurn(nullptr, this, nullptr);
    emit signalRead(reading->features);
    if (m_isStale)
        slotRead();
}

void CameraFeatures::Set(const CameraFeature &feature, const QVariant &value)
{
    if (IsSetElsewhere(feature.name) || !feature.isWritable)
        return;
    const auto error = std::make_shared<QString>();
    const auto write = [feature, value, error](ArvCamera *camera) {
        CameraFeatureAccess::Write(arv_camera_get_device(camera), feature, value, error.get());
    };
    const auto written = [this, feature, error] {
        emit signalFault(error->isEmpty() ? QString() : tr("%1 could not be set: %2").arg(feature.text, *error));
        m_isSet = true;
        slotRead();
    };
    // Each command is carried out; of values the newest is enough.
    const bool isCommand = feature.kind == CameraFeature::Kind::Command;
    CameraSession *const session = m_link->Session();
    if (!session || !session->TakeChangingTurn(write, this, written, isCommand ? QString() : feature.name))
        emit signalFault(tr("%1 could not be set: the camera does not answer.").arg(feature.text));
}
