// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"

#include "rawcameraframe.h"

#include <QApplication>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace {

QString ArgumentText(int value) { return QString::number(value); }
QString ArgumentText(double value) { return QString::number(value); }
QString ArgumentText(const QString &value) { return value; }
QString ArgumentText(bool value) { return Text(value); }
QString ArgumentText(const QPoint &value) { return Text(value); }
QString ArgumentText(const QPointF &value) { return Text(value); }

template <class Argument>
void Append(QStringList &texts, const Argument &argument)
{
    texts << ArgumentText(argument);
}

template <class Pointed>
void Append(QStringList &, Pointed *const &)
{
    // pointers are left out
}

template <class Sender, class... Arguments>
void LogSignal(Sender *sender, void (Sender::*signal)(Arguments...), const QString &name)
{
    QObject::connect(sender, signal, [name](Arguments... arguments) {
        QStringList texts;
        (Append(texts, arguments), ...);
        CallLog::Add(name, texts);
    });
}

constexpr int headerLength = 64; // bytes

} // namespace

DrawViewFixture::DrawViewFixture(const QSize &hostSize)
{
    frame = host.GetDrawFrame();
    view = frame->GetDrawView();
    view->SetViewManager(&report);
    report.measureManager = &services.mainMeasure;
    host.setWindowFlag(Qt::FramelessWindowHint);
    host.resize(hostSize);
}

bool DrawViewFixture::Show()
{
    host.show();
    return QTest::qWaitForWindowExposed(&host);
}

void DrawViewFixture::LogSignals()
{
    CallLog::Clear();
    LogSignal(view, &DrawViewBase::signalCompareScale, "signalCompareScale");
    LogSignal(view, &DrawViewBase::signalCompareMove, "signalCompareMove");
    LogSignal(view, &DrawViewBase::signalMoveImage, "signalMoveImage");
    LogSignal(view, &DrawViewBase::signalSetSliderPosition, "signalSetSliderPosition");
    LogSignal(view, &DrawViewBase::signalUpdateMousePosition, "signalUpdateMousePosition");
    LogSignal(view, &DrawViewBase::signalUpdateImageGrayValueInfo, "signalUpdateImageGrayValueInfo");
    LogSignal(view, &DrawViewBase::signalScaleFactorChanged, "signalScaleFactorChanged");
    LogSignal(view, &DrawViewBase::signalEnableScaleFactor, "signalEnableScaleFactor");
    LogSignal(view, &DrawViewBase::signalUpdateImageSize, "signalUpdateImageSize");
    LogSignal(view, &DrawViewBase::signalGraphicsViewPressed, "signalGraphicsViewPressed");
    LogSignal(view, &DrawViewBase::signalMouseMoveEvent, "signalMouseMoveEvent");
    LogSignal(view, &DrawViewBase::signalMousePressEvent, "signalMousePressEvent");
    LogSignal(view, &DrawViewBase::signalMouseReleaseEvent, "signalMouseReleaseEvent");
    LogSignal(view, &DrawViewBase::signalMouseDoubleClickEvent, "signalMouseDoubleClickEvent");
    LogSignal(view, &DrawViewBase::signalSetHorizontalScrollBarVisible,
              "signalSetHorizontalScrollBarVisible");
    LogSignal(view, &DrawViewBase::signalSetVerticalScrollBarVisible, "signalSetVerticalScrollBarVisible");
    LogSignal(view, &DrawViewBase::signalUpdateHorizontalScrollBar, "signalUpdateHorizontalScrollBar");
    LogSignal(view, &DrawViewBase::signalUpdateVerticalScrollBar, "signalUpdateVerticalScrollBar");
    LogSignal(view, &DrawViewBase::signalFinishSetBrush, "signalFinishSetBrush");
    LogSignal(view, &DrawViewBase::signalImageSizeChanged, "signalImageSizeChanged");
    LogSignal(static_cast<UIConfigManager *>(&services.uiConfig), &UIConfigManager::signalImageInfoChanged,
              "UIConfigManager::signalImageInfoChanged");
    LogSignal(static_cast<MeasureConfigManager *>(&services.measureConfig),
              &MeasureConfigManager::signalUpdateScaleUI, "MeasureConfigManager::signalUpdateScaleUI");
}

QPoint DrawViewFixture::FrameScroll() const
{
    return QPoint(frame->horizontalScrollBar()->value(), frame->verticalScrollBar()->value());
}

QPoint DrawViewFixture::ViewScroll() const
{
    return QPoint(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value());
}

void DrawViewFixture::SendMouse(QEvent::Type type, const QPoint &viewPos, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QWidget *viewport = view->viewport();
    QMouseEvent event(type, viewPos, viewport->mapToGlobal(viewPos), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(viewport, &event);
}

void DrawViewFixture::SendWheel(const QPoint &viewPos, const QPoint &angleDelta,
                                Qt::KeyboardModifiers modifiers)
{
    QWidget *viewport = view->viewport();
    QWheelEvent event(viewPos, viewport->mapToGlobal(viewPos), QPoint(), angleDelta, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    // Only such an event goes on to the parent when it is not accepted.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(viewport, &event);
}

QImage GreyPicture(const QSize &size, int seed)
{
    QImage picture(size, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = picture.scanLine(y);
        for (int x = 0; x < size.width(); ++x)
            row[x] = uchar(17 * x + 29 * y + seed);
    }
    return picture;
}

QImage ColourPicture(const QSize &size, int seed)
{
    QImage picture(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = picture.scanLine(y);
        for (int x = 0; x < size.width(); ++x) {
            row[3 * x] = uchar(17 * x + 29 * y + seed);
            row[3 * x + 1] = uchar(41 * x + 7 * y + seed);
            row[3 * x + 2] = uchar(5 * x + 97 * y + seed);
        }
    }
    return picture;
}

RawFrame::RawFrame(const QImage &picture)
    : m_buffer(headerLength, '\xab')
    , m_record(std::make_unique<RawCameraFrame>())
{
    const int channels = picture.format() == QImage::Format_RGB888 ? 3 : 1;
    for (int y = 0; y < picture.height(); ++y)
        m_buffer.append(reinterpret_cast<const char *>(picture.constScanLine(y)), picture.width() * channels);
    m_record->headerLength = headerLength;
    m_record->width = quint16(picture.width());
    m_record->height = quint16(picture.height());
    m_record->channels = quint8(channels);
    m_record->buffer = reinterpret_cast<uchar *>(m_buffer.data());
}

RawFrame::~RawFrame() = default;

void StartOpenGLDriver()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create());
    QVERIFY(context.makeCurrent(&surface));
    context.doneCurrent();
}

QImage GrabFromScreen(QWidget *widget)
{
    const QPoint pos = widget->mapToGlobal(QPoint(0, 0));
    return widget->screen()
        ->grabWindow(0, pos.x(), pos.y(), widget->width(), widget->height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}
