// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "framesink.h"
#include "linepayload.h"
#include "orientation.h"
#include "spectrumengine.h"
#include "spectrumledger.h"
#include "spectrummanager.h"
#include "spectrummeaning.h"

#include <QMutex>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

class QUndoCommand;
class QUndoStack;

/// Makes spectra of the raw samples of every frame, in a thread of its own. A frame is never skipped: they wait in a
/// bounded queue, and one that finds it full is counted as missed. The screen gets the newest spectrum; at most one
/// waits for the GUI thread. While no frames come, the one that stands is made anew for each change. All but OnFrame() and
/// Run() belongs to the GUI thread.
class SpectrumPipeline : public SpectrumManager, public FrameSink
{
    Q_OBJECT

public:
    static constexpr size_t MostWaiting = 64; ///< frames

    /// `orientation` says how frames are laid on the screen, from any thread; upright without it.
    explicit SpectrumPipeline(std::function<Orientation()> orientation = {}, QObject *parent = nullptr);
    ~SpectrumPipeline() override;

    /// The frame that is on the screen, null without one: while no frames come, each change makes its spectrum anew. Asked in
    /// the GUI thread.
    using StandingFrame = std::function<CameraFrame()>;
    void SetStandingFrame(const StandingFrame &frame) { m_standingFrame = frame; }

    /// From the next frame on.
    void SetRecipe(const SpectrumRecipe &recipe);
    /// Where the next two can be undone. Borrowed; without it they cannot.
    void SetUndoStack(QUndoStack *stack) { m_undo = stack; }
    /// What is shown, as it was before dark and reference, becomes the dark or the reference spectrum; false when there
    /// is none.
    bool TakeDark();
    bool TakeReference();
    /// The band is looked for again.
    void FindBandAgain();
    /// As the camera said last; 0 when it is not known. A dark spectrum of another one is said to be that.
    void SetExposure(double exposureUs);
    /// Looks for tracks in the next frame; signalTracksFound() tells. Without live frames it says so.
    void FindTracks();
    /// Frames come. What waits for one is given up when they stop.
    void SetLive(bool live);

    /// The spectrum of the standing frame is made once more: it was turned. Nothing while frames come.
    void MakeStandingAgain();
    /// The plots get the newest spectrum once more: a page that was hidden has none. Wishes are met together.
    void ShowAgain();
    /// The plots of the camera are on the screen, and get its lines; ShowAgain() brings what came meanwhile.
    void SetPlotsSeen(bool seen) { m_arePlotsSeen = seen; }
    /// The plots are told that there are no tracks, in place of those that they show.
    void AnnounceNoTracks();

    /// The newest one that was announced.
    const SpectrumProduct &Shown() const { return m_shown; }
    const SpectrumLedger &Ledger() const { return m_ledger; }
    void ResetLedger() { m_ledger.Reset(); }

    QList<QPointF> GetEndPointList() const override;
    QList<float> GetAngleList() const override;
    QList<float> GetDistanceList() const override;
    QList<QPoint> GetLinePointList() const override;
    QList<QRect> GetExtendRectList() const override;
    void ClearFocusInfo() override;

    void OnFrame(const CameraFrame &frame) override;

signals:
    /// Shown() is a new one.
    void signalSpectrumShown();
    /// The values of Shown() are something else than those before; comes before the plots get them.
    void signalMeaningChanged();
    void signalTracksFound(QList<QRectF> tracks);
    /// A sentence for the user.
    void signalMessage(QString text);

private:
    struct Waiting
    {
        CameraFrame frame;
        bool isAgain; ///< not a new frame
        double exposureUs; ///< when it came
    };

    void Run();
    void Work(const Waiting &next, const std::function<void(SpectrumEngine *)> &change, bool findsTracks);
    bool IsStandingWanted();
    void SetDark(const Spectrum &dark);
    void SetReference(const Spectrum &reference);
    void Do(std::unique_ptr<QUndoCommand> step);
    void ChangeEngine(const std::function<void(SpectrumEngine *)> &change);
    bool ForgetUnwanted(SpectrumProduct *product) const;
    void Deliver(SpectrumProduct product);
    void slotAnnounce();
    void AnnounceMeaning();
    void AnnounceLines();
    void slotDelivered();

    const std::function<Orientation()> m_orientation;
    StandingFrame m_standingFrame;

    std::mutex m_mutex; ///< of the next ones
    std::condition_variable m_wake;
    std::deque<Waiting> m_queue;
    std::function<void(SpectrumEngine *)> m_change; ///< what is to be done before the next frame
    double m_exposureUs = 0; ///< of the frames that come
    double m_newestExposureUs = 0; ///< of the newest frame that came
    bool m_findsTracks = false;
    bool m_isLive = true;
    bool m_isWanted = false;
    bool m_stops = false;

    std::mutex m_deliveryMutex; ///< of the next ones
    SpectrumProduct m_newest;
    bool m_isNew = false;
    bool m_isAskedAgain = false; ///< ShowAgain(), since the last announcement
    bool m_isOnItsWay = false;

    SpectrumEngine m_engine; ///< of the thread
    std::vector<uchar> m_turned; ///< of the thread: the frame as it is laid on the screen

    SpectrumLedger m_ledger;
    bool m_isBinning = false; ///< by the newest recipe
    bool m_hasTracks = false;
    bool m_isHorizontal = true;
    bool m_arePlotsSeen = true;
    SpectrumProduct m_shown;
    SpectrumMeaning m_meaning; ///< of what the plots were given last; of nothing when that is gone
    QUndoStack *m_undo = nullptr;
    Spectrum m_dark; ///< the engine's after the next frame, as the next one
    Spectrum m_reference;
    RowBand m_band;
    std::vector<LineFocus> m_lines;
    LinePayload m_line{1};
    LinePayload m_tracks{MostTracksAtAll};
    QMutex m_noTracksLock;
    SpectrumLinePayload m_noTracks{}; ///< of no lines
    std::thread m_thread; ///< last: everything it uses is there before it
};
