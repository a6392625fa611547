// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumpage.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

namespace {

QString LogText(bool value) { return Text(value); }
QString LogText(double value) { return QString::number(value, 'g', 10); }
QString LogText(const QPointF &value) { return Text(value); }
QString LogText(const QRectF &value) { return Text(value); }
QString LogText(const QSize &value) { return QString("%1x%2").arg(value.width()).arg(value.height()); }

template <class... Arguments>
void LogSignal(SpectrumDrawViewBase *view, void (SpectrumDrawViewBase::*signal)(Arguments...),
               const QString &name)
{
    QObject::connect(view, signal,
                     [name](Arguments... arguments) { CallLog::Add(name, { LogText(arguments)... }); });
}

} // namespace

SpectrumPage::SpectrumPage(const QSize &pageSize, const Preparation &prepare)
{
    if (prepare)
        prepare(services);
    page = new SpectrumView(&window);
    frame = page->findChild<SpectrumDrawFrameBase *>();
    view = page->GetDrawView();
    window.setWindowFlag(Qt::FramelessWindowHint);
    Resize(pageSize);
    CallLog::Clear();
}

void SpectrumPage::Resize(const QSize &pageSize)
{
    window.resize(pageSize);
    page->resize(pageSize);
}

bool SpectrumPage::Show()
{
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

void SpectrumPage::LogSignals()
{
    LogSignal(view, &SpectrumDrawViewBase::SignalImageChange, "SignalImageChange");
    LogSignal(view, &SpectrumDrawViewBase::SignalPressPosChange, "SignalPressPosChange");
    LogSignal(view, &SpectrumDrawViewBase::SignalPressPosChangeStatic, "SignalPressPosChangeStatic");
    LogSignal(view, &SpectrumDrawViewBase::SignalDrawArea, "SignalDrawArea");
    LogSignal(view, &SpectrumDrawViewBase::SignalAnchorPosChange, "SignalAnchorPosChange");
    LogSignal(view, &SpectrumDrawViewBase::SignalSetSliderPosition, "SignalSetSliderPosition");
    LogSignal(view, &SpectrumDrawViewBase::SignalChangeHShowValueRange, "SignalChangeHShowValueRange");
    LogSignal(view, &SpectrumDrawViewBase::SignalChangeVShowValueRange, "SignalChangeVShowValueRange");
    LogSignal(view, &SpectrumDrawViewBase::SignalNewRect, "SignalNewRect");
    CallLog::Clear();
}

QStringList SpectrumPage::TakeSignals(const QString &name)
{
    QStringList taken;
    for (const QString &call : CallLog::Calls()) {
        if (call.startsWith(name))
            taken << call;
    }
    CallLog::Clear();
    return taken;
}

QImage SpectrumPage::Picture(const QSize &size)
{
    QImage picture(size, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = picture.scanLine(y);
        for (int x = 0; x < size.width(); ++x)
            row[x] = uchar((x / 8 + y / 4) % 200);
    }
    return picture;
}

void SpectrumPage::Drag(const QPointF &from, const QPointF &to)
{
    Press(from);
    Move(to);
    Release(to);
}

void SpectrumPage::DragInPicture(const QPointF &from, const QPointF &to)
{
    Drag(view->mapFromScene(from), view->mapFromScene(to));
}

void SpectrumPage::SendMouse(QEvent::Type type, const QPointF &viewPos, Qt::MouseButtons buttons,
                             Qt::MouseButton button)
{
    QWidget *viewport = view->viewport();
    QMouseEvent event(type, viewPos, viewport->mapToGlobal(viewPos.toPoint()),
                      type == QEvent::MouseMove ? Qt::NoButton : button, buttons, Qt::NoModifier);
    QApplication::sendEvent(viewport, &event);
}

QPoint SpectrumPage::FrameScroll() const
{
    return QPoint(frame->horizontalScrollBar()->value(), frame->verticalScrollBar()->value());
}
