// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

class Spectrum2DDrawFrameBase;
class SpectrumView;

/// The spectrum page of a centre stack: image with curves, 2D plot and 3D plot, one page each, of
/// which the display mode shows one. The subclasses feed them.
class SpectrumStackedWidgetBase : public QStackedWidget
{
    Q_OBJECT

public:
    explicit SpectrumStackedWidgetBase(QWidget *parent);

public slots:
    void slotDisplayModeChange();

protected:
    enum SpectrumPage
    {
        PhysicsPage = 0,
        Plot2DPage = 1,
        Plot3DPage = 2
    };

    /// Makes the three pages in their order; each subclass constructor calls it first.
    virtual void CreatePages();
    /// All pages keep the stack's size, not only the current one.
    void resizeEvent(QResizeEvent *event) override;

    SpectrumView *m_spectrumView = nullptr;
    Spectrum2DDrawFrameBase *m_plot2D = nullptr;

private:
    /// The 3D plot is made when it is first shown: many never need OpenGL for it.
    void ShowPlot3D();
};
