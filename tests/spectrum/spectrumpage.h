// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "displayscale.h"
#include "fakecameramainmanager.h"
#include "fakeservices.h"
#include "spectrumdrawframebase.h"
#include "spectrumdrawviewbase.h"
#include "spectrumview.h"

#include <QImage>

#include <functional>

/// The spectrum page in a window, among its services and with an open camera. One design pixel is one
/// screen pixel, so all aids together take 140 x 180 of the page: of 740 x 580 the image has 600 x 400.
class SpectrumPage
{
public:
    using Preparation = std::function<void(FakeServices &)>;

    explicit SpectrumPage(const QSize &pageSize = QSize(740, 580), const Preparation &prepare = {});

    /// As a stack does it, but without a refit.
    void Resize(const QSize &pageSize);

    /// Shows the page and waits until its window is there.
    bool Show();
    /// From here on the image view's signals come into the call log, in the order they are emitted.
    void LogSignals();
    /// What came into the log since, without other calls; clears the log.
    static QStringList TakeSignals(const QString &name = "Signal");

    /// A grey picture of this size, announced as the preview does.
    void ShowLive(const QSize &size) { view->slotPaintPreview(Picture(size)); }
    static QImage Picture(const QSize &size);

    void Press(const QPointF &viewPos) { SendMouse(QEvent::MouseButtonPress, viewPos, Qt::LeftButton); }
    void Move(const QPointF &viewPos) { SendMouse(QEvent::MouseMove, viewPos, Qt::LeftButton); }
    void Release(const QPointF &viewPos) { SendMouse(QEvent::MouseButtonRelease, viewPos, Qt::NoButton); }
    void Drag(const QPointF &from, const QPointF &to);
    /// The same in picture pixels, which the view must show.
    void DragInPicture(const QPointF &from, const QPointF &to);
    void SendMouse(QEvent::Type type, const QPointF &viewPos, Qt::MouseButtons buttons,
                   Qt::MouseButton button = Qt::LeftButton);

    double Scale() const { return view->transform().m11(); }
    QPoint FrameScroll() const;

    template <class Item>
    Item *Find() const
    {
        return page->findChild<Item *>();
    }

    DisplayScale scale{ 1.0 };
    FakeServices services;
    FakeCameraMainManager camera;
    QWidget window;
    SpectrumView *page = nullptr; ///< child of the window
    SpectrumDrawFrameBase *frame = nullptr;
    SpectrumDrawViewBase *view = nullptr;
};
