// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumpipeline.h"

#include "picturemaker.h"
#include "pixelmove.h"
#include "takenspectrumstep.h"

#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace {

/// The frame as it is laid on the screen; `memory` holds it when it is turned.
SampleView OrientedView(const CameraFrame &frame, const Orientation &orientation, std::vector<uchar> *memory)
{
    SampleView view = PictureMaker::ViewOf(frame);
    if (orientation == Orientation())
        return view;
    const int bytesPerPixel = BytesPerPixel(frame.layout);
    const QSize size = orientation.Map(QSize(frame.width, frame.height));
    memory->resize(size_t(size.width()) * size_t(size.height()) * size_t(bytesPerPixel));
    view.strideBytes = size.width() * bytesPerPixel;
    MovePixels({frame.pixels.get(), QSize(frame.width, frame.height), frame.strideBytes, bytesPerPixel}, orientation, memory->data(),
               view.strideBytes);
    view.samples = memory->data();
    view.width = size.width();
    view.height = size.height();
    return view;
}

QList<QRectF> TracksOf(const SampleView &picture)
{
    QList<QRectF> tracks;
    for (const RowBand &band : FindBands(CrossProfile(picture, true)))
        tracks << QRectF(0, band.top, picture.width, band.bottom - band.top);
    return tracks;
}

} // namespace

SpectrumPipeline::SpectrumPipeline(std::function<Orientation()> orientation, QObject *parent)
    : SpectrumManager(parent)
    , m_orientation(std::move(orientation))
    , m_thread([this] { Run(); })
{
    m_noTracks.lock = &m_noTracksLock;
}

SpectrumPipeline::~SpectrumPipeline()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stops = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

void SpectrumPipeline::SetRecipe(const SpectrumRecipe &recipe)
{
    m_isBinning = recipe.isBinning;
    m_hasTracks = recipe.hasTracks;
    m_isHorizontal = recipe.isHorizontal;
    ChangeEngine([recipe](SpectrumEngine *engine) { engine->SetRecipe(recipe); });
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWanted = recipe.IsAnythingWanted();
        if (!m_isWanted) {
            m_ledger.dropped += size_t(std::count_if(m_queue.begin(), m_queue.end(), [](const Waiting &one) { return !one.isAgain; }));
            m_queue.clear();
        }
    }
    const bool hadTracks = !m_shown.tracks.empty();
    if (ForgetUnwanted(&m_shown))
        emit signalSpectrumShown();
    if (!m_shown.HasSpectrum())
        m_meaning = SpectrumMeaning(); // something else may be drawn until there is one
    if (hadTracks && m_shown.tracks.empty())
        AnnounceNoTracks();
    MakeStandingAgain();
}

bool SpectrumPipeline::IsStandingWanted()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_isLive && m_isWanted;
}

void SpectrumPipeline::MakeStandingAgain()
{
    if (!m_standingFrame || !IsStandingWanted())
        return;
    const CameraFrame frame = m_standingFrame();
    if (frame.IsNull())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_queue.empty() && m_queue.back().isAgain)
            m_queue.pop_back(); // changes that follow each other fast are made at once
        m_queue.push_back({frame, true, m_newestExposureUs});
    }
    m_wake.notify_one();
}

/// What is no longer made is no longer shown, exported or taken as dark. True when there was any.
bool SpectrumPipeline::ForgetUnwanted(SpectrumProduct *product) const
{
    const bool had = (!m_isBinning && product->raw.Count() > 0) || (!m_hasTracks && !product->tracks.empty());
    if (!m_isBinning)
        product->ForgetBinned();
    if (!m_hasTracks)
        product->ForgetTracks();
    return had;
}

bool SpectrumPipeline::TakeDark()
{
    if (m_shown.averaged.values.empty())
        return false;
    Do(std::make_unique<TakenSpectrumStep>(tr("Take Dark Spectrum"), m_dark, m_shown.averaged,
                                           [this](const Spectrum &dark) { SetDark(dark); }));
    return true;
}

bool SpectrumPipeline::TakeReference()
{
    if (m_shown.averaged.values.empty())
        return false;
    Do(std::make_unique<TakenSpectrumStep>(tr("Take Reference Spectrum"), m_reference, m_shown.averaged,
                                           [this](const Spectrum &reference) { SetReference(reference); }));
    return true;
}

void SpectrumPipeline::SetExposure(double exposureUs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_exposureUs = exposureUs;
}

void SpectrumPipeline::FindBandAgain()
{
    ChangeEngine([](SpectrumEngine *engine) { engine->FindBandAgain(); });
    MakeStandingAgain();
}

void SpectrumPipeline::FindTracks()
{
    bool isLive = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        isLive = m_isLive;
        m_findsTracks = isLive;
    }
    if (!isLive)
        emit signalMessage(tr("There is no live picture to find tracks in."));
}

void SpectrumPipeline::SetLive(bool live)
{
    bool isGivenUp = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isLive = live;
        isGivenUp = !live && std::exchange(m_findsTracks, false);
    }
    if (isGivenUp)
        emit signalMessage(tr("There is no live picture to find tracks in."));
}

void SpectrumPipeline::SetDark(const Spectrum &dark)
{
    m_dark = dark;
    ChangeEngine([dark](SpectrumEngine *engine) { engine->SetDark(dark); });
    MakeStandingAgain();
}

void SpectrumPipeline::SetReference(const Spectrum &reference)
{
    m_reference = reference;
    ChangeEngine([reference](SpectrumEngine *engine) { engine->SetReference(reference); });
    MakeStandingAgain();
}

void SpectrumPipeline::Do(std::unique_ptr<QUndoCommand> step)
{
    if (m_undo)
        m_undo->push(step.release()); // which does it
    else
        step->redo();
}

void SpectrumPipeline::ChangeEngine(const std::function<void(SpectrumEngine *)> &change)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_change = [before = std::move(m_change), change](SpectrumEngine *engine) {
        if (before)
            before(engine);
        change(engine);
    };
}

// The camera's and our own thread

void SpectrumPipeline::OnFrame(const CameraFrame &frame)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_newestExposureUs = m_exposureUs; // it may stand, and be wanted then
        if (!m_isWanted && !m_findsTracks)
            return;
        ++m_ledger.taken;
        if (m_queue.size() >= MostWaiting) {
            ++m_ledger.missed;
            return;
        }
        m_queue.push_back({frame, false, m_exposureUs});
    }
    m_wake.notify_one();
}

void SpectrumPipeline::Run()
{
    for (;;) {
        Waiting next;
        std::function<void(SpectrumEngine *)> change;
        bool findsTracks = false;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait(lock, [this] { return m_stops || !m_queue.empty(); });
            if (m_stops)
                return;
            next = std::move(m_queue.front());
            m_queue.pop_front();
            change = std::exchange(m_change, nullptr);
            findsTracks = std::exchange(m_findsTracks, false);
        }
        if (next.isAgain)
            m_engine.TakeBack(next.frame.frameId);
        m_engine.SetExposure(next.exposureUs);
        Work(next, change, findsTracks);
    }
}

void SpectrumPipeline::Work(const Waiting &next, const std::function<void(SpectrumEngine *)> &change, bool findsTracks)
{
    if (change)
        change(&m_engine);
    const CameraFrame &frame = next.frame;
    const Orientation orientation = m_orientation ? m_orientation() : Orientation();
    const SampleView picture = OrientedView(frame, orientation, &m_turned);
    if (findsTracks) {
        QMetaObject::invokeMethod(this, [this, tracks = TracksOf(picture)] { emit signalTracksFound(tracks); }, Qt::QueuedConnection);
    }
    const SensorFrame sensor{frame.origin.region, frame.origin.binning, orientation};
    SpectrumProduct product = m_engine.Make(picture, frame.frameId, sensor, frame.origin.camera);
    product.takenMs = frame.hostTimeNs / 1000000;
    Deliver(std::move(product));
    m_ledger.computed += next.isAgain ? 0 : 1;
}

/// What a spectrum found that nobody has seen yet is handed on with the newer one that takes its place.
void SpectrumPipeline::Deliver(SpectrumProduct product)
{
    const std::lock_guard<std::mutex> lock(m_deliveryMutex);
    product.isBandNew = product.isBandNew || (m_isNew && m_newest.isBandNew);
    if (!product.areLinesNew && m_isNew && m_newest.areLinesNew) {
        product.lines = std::move(m_newest.lines);
        product.areLinesNew = true;
    }
    m_newest = std::move(product);
    m_isNew = true;
    if (!std::exchange(m_isOnItsWay, true))
        QMetaObject::invokeMethod(this, &SpectrumPipeline::slotAnnounce, Qt::QueuedConnection);
}

// The GUI thread

void SpectrumPipeline::ShowAgain()
{
    const std::lock_guard<std::mutex> lock(m_deliveryMutex);
    m_isAskedAgain = true;
    if (!std::exchange(m_isOnItsWay, true))
        QMetaObject::invokeMethod(this, &SpectrumPipeline::slotAnnounce, Qt::QueuedConnection);
}

void SpectrumPipeline::AnnounceNoTracks()
{
    emit SignalUpdateMultiTrack(&m_noTracks);
}

void SpectrumPipeline::slotAnnounce()
{
    bool isNew = false;
    {
        const std::lock_guard<std::mutex> lock(m_deliveryMutex);
        isNew = std::exchange(m_isNew, false);
        m_isAskedAgain = false;
        if (isNew)
            m_shown = std::move(m_newest);
    }
    ForgetUnwanted(&m_shown);
    if (isNew && m_shown.isBandNew) {
        m_band = m_shown.band;
        emit SignalSpectralineFVB();
    }
    AnnounceMeaning();
    AnnounceLines();
    if (isNew && m_shown.areLinesNew) {
        m_lines = m_shown.lines;
        emit SignalSpectralineAutoDetectFinish();
    }
    if (isNew)
        emit signalSpectrumShown();
    QMetaObject::invokeMethod(this, &SpectrumPipeline::slotDelivered, Qt::QueuedConnection);
}

/// Not when it was chosen: spectra of before may be under way then.
void SpectrumPipeline::AnnounceMeaning()
{
    const SpectrumMeaning meaning = SpectrumMeaning::Of(m_shown, m_isHorizontal);
    if (!m_shown.HasSpectrum() || meaning == m_meaning)
        return;
    m_meaning = meaning;
    emit signalMeaningChanged();
}

/// The plots exchange the buffers in events of their own, which run before slotDelivered().
void SpectrumPipeline::AnnounceLines()
{
    if (!m_arePlotsSeen)
        return;
    if (!m_shown.corrected.values.empty())
        emit SignalUpdateFVB(m_line.Fill({&m_shown.corrected}, m_shown.corrected.Count(), m_shown.corrections.Quantity()));
    if (m_shown.tracks.empty())
        return;
    std::vector<const Spectrum *> tracks;
    for (const Spectrum &track : m_shown.tracks)
        tracks.push_back(&track);
    emit SignalUpdateMultiTrack(m_tracks.Fill(tracks, m_shown.frameSize.width(), SpectrumQuantity::Counts));
}

void SpectrumPipeline::slotDelivered()
{
    const std::lock_guard<std::mutex> lock(m_deliveryMutex);
    m_isOnItsWay = m_isNew || m_isAskedAgain;
    if (m_isOnItsWay)
        QMetaObject::invokeMethod(this, &SpectrumPipeline::slotAnnounce, Qt::QueuedConnection);
}

QList<QPointF> SpectrumPipeline::GetEndPointList() const
{
    if (m_band.bottom <= m_band.top)
        return {};
    return {QPointF(0, m_band.top), QPointF(0, m_band.bottom - 1)};
}

QList<float> SpectrumPipeline::GetAngleList() const
{
    QList<float> angles;
    for (const LineFocus &line : m_lines)
        angles << float(line.tiltDegrees);
    return angles;
}

QList<float> SpectrumPipeline::GetDistanceList() const
{
    QList<float> widths;
    for (const LineFocus &line : m_lines)
        widths << float(line.width);
    return widths;
}

QList<QPoint> SpectrumPipeline::GetLinePointList() const
{
    QList<QPoint> points;
    for (const LineFocus &line : m_lines)
        points << line.area.topRight();
    return points;
}

QList<QRect> SpectrumPipeline::GetExtendRectList() const
{
    QList<QRect> areas;
    for (const LineFocus &line : m_lines)
        areas << line.area;
    return areas;
}

void SpectrumPipeline::ClearFocusInfo()
{
    m_lines.clear();
}
