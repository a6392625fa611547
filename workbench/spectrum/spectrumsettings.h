// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibratedaxis.h"
#include "displaymode.h"
#include "plotstyle.h"
#include "rulerrange.h"
#include "spectralpicture.h"
#include "spectrumrecipe.h"
#include "spectrumuimanager.h"

#include <QSize>

class CentreDisplay;

/// What the spectrum pages show and what is made of every frame for them: display mode, rows that are binned, tracks,
/// direction, corrections, calibration, style, and the ranges of the rulers. GUI thread.
class SpectrumSettings : public SpectrumUIManager
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object: the announcer of the rulers' value ranges, and what knows the mode.
    SpectrumSettings(DisplayModeManager *ranges, CentreDisplay *centre, QObject *parent = nullptr);

    DisplayMode Mode() const;
    void SetMode(DisplayMode mode);

    const SpectrumRecipe &Recipe() const { return m_recipe; }
    void SetBinnedRows(BinnedRows rows);
    /// Of the live picture, across the spectrum: its rows or its columns; 0 before there is one.
    int LinesAcross() const;
    /// Of what is on the screen: an opened picture has a direction of its own, from when one is chosen for it. Refused, in
    /// words, while the plot is shown and has no room for all tracks in that direction.
    void SetHorizontal(bool horizontal);
    /// Replaces the list; refused, in words, when it is empty, overlaps or leaves the frame.
    bool SetTracks(const QList<QRectF> &tracks);
    /// No tracks, none shown.
    void ClearTracks();
    void SetCorrections(const CorrectionSettings &corrections);
    /// Of spectra within `frame`, that of the spectrum it was made with: live ones, or those of files of that size that
    /// say nothing themselves. One that was made live is that of such files as wide as it, too. Null takes it away. Made
    /// on a file with an axis of its own, which is shown, it takes the place of that.
    /// `camera` is the name of the one it was made with, empty when that is not known.
    void SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame, const QString &camera = QString());
    /// Of the live picture; empty before there is one.
    void SetCamera(const QString &name);
    const QString &Camera() const { return m_camera; }
    /// The calibration in use on live spectra was made with another camera, for the user; empty otherwise.
    QString CameraNote() const;
    const SpectralCalibration &Calibration() const { return m_liveAxis.Calibration(); }
    /// Where the samples of the spectrum on the screen lie on the sensor, or in the file of the opened one.
    SpectralFrame ShownFrame() const;
    /// nm, wavenumbers or pixels, as far as there is a calibration.
    void SetUnit(SpectralUnit unit);
    SpectralUnit Unit() const { return m_unit; }
    /// The opened picture as it is seen; of no size without one.
    void SetImage(const SpectralPicture &picture);
    /// How the frame came to be that the spectrum on the screen was made of, or the picture when there is no spectrum. A
    /// calibration follows, or is said not to hold.
    void SetSensorFrame(const SensorFrame &frame);
    /// What files of live pictures, or of the opened one, carry of our calibration: that of the side that the spectrum lies
    /// along.
    QVector<MetadataEntry> LiveCalibration(const SensorFrame &frames) const;
    QVector<MetadataEntry> ImageCalibration() const;
    /// The axis of what is on the screen.
    const CalibratedAxis &ShownAxis() const;
    /// That of live spectra so wide, wherever those that are shown lie now.
    CalibratedAxis LiveAxis(int width, const SpectralFrame &frame) const;
    /// An opened picture is on the screen, rather than the live one.
    bool IsImageShown() const { return m_isImageShown; }
    PlotStyle Style() const { return m_style; }
    void SetStyle(const PlotStyle &style);

    int GetDisplayMode() const override;
    bool IsDisplayModeGeneral() const override;
    bool IsDisplayMode2D() const override;
    bool IsDisplayMode2DPeak() const override;
    bool IsDisplayMode3D() const override;
    bool IsDisplayModePhysics() const override;
    void SetDisplayModeGeneral() override;
    void UpdateDisplayModeProperty() override;
    DisplayModeManager *GetDisplayModeManager() const override;
    int GetFVBOnFlag() const override;
    void SetFVBOnFlag(int on) override;
    bool IsFVBModeAll() const override;
    bool IsFVBModeAuto() const override;
    bool GetManualFlag() const override;
    int GetTop() const override;
    void SetTop(int row) override;
    int GetBottom() const override;
    void SetBottom(int row) override;
    bool GetMultiTrackOnFlag() const override;
    void SetMultiTrackOnFlag(bool on) override;
    QList<QRectF> GetMultiTrackList() const override;
    bool GetSpeSelectionFlag() const override;
    int GetSpectrumSelectionMode() const override;
    bool GetFocusAssitanceFlag() const override;
    void SetFocusAssitanceFlag(bool on) override;
    bool IsDirectionHorinzontal() const override;
    /// Of opened pictures.
    void SetDirectionHorizontal() override;
    void SlotNewArea(double xmin, double xmax, double ymin, double ymax) override;
    void SlotImageNewArea(double xmin, double xmax, double ymin, double ymax) override;
    void CalculateImageArea() override;
    bool Calculate(int pixel, double &x) const override;
    bool IsValidConversation(QString *text) const override;
    QPen GetLinePen() const override;
    QColor GetLineColor() const override;
    double GetLineWidth() const override;
    int GetLineStyle() const override;
    QPen GetPeakPen() const override;
    QColor GetPeakColor() const override;
    double GetPeakSize() const override;
    int GetPeakNumber() const override;
    QColor GetBackgroundColor() const override;
    double GetBlankRatio() const override;
    QString GetTitleName() const override;
    bool GetZoomAutoFlag() const override;
    void SetZoomAutoFlag(bool on) override;

public slots:
    /// An opened picture is on the screen, or the live one.
    void slotSetImageShown(bool shown);
    /// Tracks that do not fit any more are switched off.
    void slotSetFrameSize(QSize size);

signals:
    /// Something of Recipe(), or the direction, is another.
    void signalRecipeChanged();
    void signalUnitChanged();
    /// The frame is another, and the tracks are no more, as they do not fit it.
    void signalTracksDropped();
    /// The plot is to show all of the curve. It does so with the next one.
    void signalWholeCurveWanted();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private:
    /// The visible part of a picture, picture pixels.
    struct Area
    {
        double left = 0;
        double right = 0;
        double top = 0;
        double bottom = 0;
    };
    using RangeSignal = void (DisplayModeManager::*)(qreal, qreal);

    static bool IsArea(const Area &area);
    void AnnounceArea(const Area &area, RangeSignal horizontal, RangeSignal vertical);
    void AnnounceLiveArea();
    /// Of the side that the spectrum lies along.
    RulerRange SpectralPixels(const Area &area) const;
    /// Null where a ruler has to count pixels.
    std::optional<RulerRange> SpectralValues(const Area &area) const;
    /// True when the band set by hand had to become another one; the user is told.
    bool KeepBandInPicture();
    void AnnounceBand();
    int MostTracks(bool horizontal) const;
    void TellOfTooManyTracks();
    void DropTracks(const QString &reason);
    void TellOfOtherRows(const SensorFrame &before);
    void AnnounceAxis();
    /// The plot of the camera has one value of each track: it counts these.
    bool IsAcrossTracks() const;
    /// What Calculate() does for anything else.
    bool Convert(int pixel, double &x) const;
    /// Of what Calculate() gives.
    QString AxisTitle() const;
    bool IsImageHorizontal() const;
    void SetImageHorizontal(bool horizontal);
    SpectralFrame LiveFrame() const;
    void UpdateImageSpectra();
    /// Along the direction of the spectrum.
    const CalibratedAxis &ImageAxis() const;
    bool IsAxisReplaced() const;
    void UpdateLiveSpectrum();
    void TellOfMisfit();
    void TellOfCamera();

    DisplayModeManager *m_ranges;
    CentreDisplay *m_centre;
    Area m_liveArea;
    Area m_imageArea;
    SpectrumRecipe m_recipe;
    QList<QRectF> m_tracks;
    QSize m_frameSize;
    SensorFrame m_sensorFrame;
    CalibratedAxis m_liveAxis;
    QString m_toldMisfit; ///< of m_liveAxis
    QString m_camera;
    QString m_calibratedCamera; ///< that the calibration was made with
    QString m_toldCamera;       ///< as the user was told last
    SpectralPicture m_image;
    CalibratedAxis m_imageAxis;       ///< along the rows of the opened picture, as it is seen
    CalibratedAxis m_imageColumnAxis; ///< along its columns
    SpectralPicture m_replaced;       ///< the one with an axis that ours takes the place of
    SpectralUnit m_unit = SpectralUnit::Nanometre;
    bool m_isImageShown = false;
    std::optional<bool> m_isImageHorizontal; ///< until it is chosen, as the live picture
    bool m_isZoomAutomatic = false;
    PlotStyle m_style;
};
