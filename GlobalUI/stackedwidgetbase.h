// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStackedWidget>

class DrawViewBase;
class GPUDrawFrame;
class ImageInfoUI;
class ReportManager;
class ViewToolBar;

/// The page that shows one picture source: the draw frame as page 0, with a tool bar at the right
/// edge and an information bar along the bottom floating over it. Zoom commands of the bars go out
/// stamped with the report manager that is active at that moment; each view obeys its own only.
/// The display mode says which page follows a comparison; the compare frame, which may have that
/// place, never does: it is on its way out, and the main frame is shown.
class StackedWidgetBase : public QStackedWidget
{
    Q_OBJECT

public:
    explicit StackedWidgetBase(QWidget *parent);

    /// Shows the information anew, and the bars that the use area allows.
    virtual void UpdateViewOverlays();
    /// Puts the main frame back as page 0 after a comparison.
    void RestoreMainPage();
    /// Brings the bars above whichever page is current.
    void RaiseToolBars();

    /// Null when the compare frame was destroyed with the frame in it.
    GPUDrawFrame *GetMainFrame() const;
    DrawViewBase *GetMainDrawView() const;

signals:
    /// `type` is a ZoomType.
    void signalScaleView(ReportManager *viewManager, int type);
    void signalSetScaleFactor(ReportManager *viewManager, double scaleFactor);

public slots:
    void slotUpdateToolBarPosition();
    /// Leaves the comparison, or ends automatic counting while it is going on.
    void slotCloseCompare();
    virtual void slotUpdateImageInfoUI();
    void slotScaleView(int type);
    void slotSetScaleFactor(double scaleFactor);

protected:
    /// Makes the main frame and wires it to the bars, which the subclass has made.
    virtual void CreateDrawFrame();
    void resizeEvent(QResizeEvent *event) override;

    void ShowSizeAndScale(const ReportManager &viewManager);
    /// Its height goes with the buttons that it shows. What covers it goes on covering it.
    void PlaceToolBar();

    QPointer<GPUDrawFrame> m_mainFrame;
    ImageInfoUI *m_infoBar = nullptr;
    ViewToolBar *m_toolBar = nullptr;

private:
    void PlaceInfoBar();
    QWidget *PageOfDisplayMode() const;
};
