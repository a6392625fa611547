// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "fakeservices.h"
#include "gpudrawframe.h"

#include <QByteArray>
#include <QEvent>
#include <QImage>
#include <QStringList>

struct RawCameraFrame;

/// A draw view in its frame and host, without a window manager's decoration, and the services around
/// it. The view reports to its own report manager; another one is the application's active one.
class DrawViewFixture
{
public:
    explicit DrawViewFixture(const QSize &hostSize = QSize(400, 300));

    FakeServices services;
    FakeReportManager report;
    GPUDrawFrame host;
    DrawFrameBase *frame = nullptr;
    DrawViewBase *view = nullptr;

    /// Shows the host and waits until its window is there.
    bool Show();
    /// From here on the view's signals and what it tells the services come into the call log.
    void LogSignals();

    double Scale() const { return view->transform().m11(); }
    QPoint FrameScroll() const;
    QPoint ViewScroll() const;
    /// A mouse or wheel event at a place of the view, as the window system sends it.
    void SendMouse(QEvent::Type type, const QPoint &viewPos, Qt::MouseButtons buttons = Qt::NoButton);
    void SendWheel(const QPoint &viewPos, const QPoint &angleDelta,
                   Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

/// A grey picture in which neighbouring pixels differ: (17 x + 29 y + seed) mod 256.
QImage GreyPicture(const QSize &size, int seed = 0);
/// A colour picture in which neighbouring pixels differ in each channel.
QImage ColourPicture(const QSize &size, int seed = 0);

/// A raw frame with the pixels of an 8-bit grey or an RGB888 picture, packed behind a header.
class RawFrame
{
public:
    explicit RawFrame(const QImage &picture);
    ~RawFrame();

    const RawCameraFrame *Record() const { return m_record.get(); }

private:
    QByteArray m_buffer;
    std::unique_ptr<RawCameraFrame> m_record;
};

/// Starts the OpenGL driver, whose threads then run to the program's end; for initTestCase().
void StartOpenGLDriver();

/// What stands on the screen where the widget is, as 32-bit RGB.
QImage GrabFromScreen(QWidget *widget);
