// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"

#include "fakecameramainmanager.h"
#include "fakeservices.h"
#include "spectrumcurvepayload.h"
#include "spectrumdrawviewbase.h"
#include "spectrumview.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMutex>

#include <memory>
#include <vector>

namespace {

constexpr double SpectrumFrameBound = 1.3;
constexpr int Rounds = 200;
constexpr QSize PageSize(1200, 900);
constexpr QSize FrameSize(2048, 512);
constexpr int RightLevel = 4095;

/// The spectrum page in a window of its own, with all its aids, and what it is fed with.
class SpectrumWindow
{
public:
    SpectrumWindow()
    {
        m_services.frame.frameWidth = quint16(FrameSize.width());
        m_services.frame.frameHeight = quint16(FrameSize.height());
        m_services.spectrumUI.displayModePhysics = true;
        m_page = std::make_unique<SpectrumView>(nullptr);
        m_page->setFixedSize(PageSize);
        m_page->show();
        m_payload.region = QRectF(0, 0, 1, 1);
        m_payload.horizontalSize = FrameSize.width();
        m_payload.verticalSize = FrameSize.height();
        m_payload.horizontalFill = m_rows[0].data();
        m_payload.horizontalShow = m_rows[1].data();
        m_payload.verticalFill = m_columns[0].data();
        m_payload.verticalShow = m_columns[1].data();
        m_payload.lock = &m_lock;
        m_payload.rightLevel = RightLevel;
        for (size_t i = 0; i < m_rows[0].size(); ++i) {
            m_rows[0][i] = int(i * 37 % RightLevel);
            m_rows[1][i] = int(i * 41 % RightLevel);
        }
    }

    QSize ImageSize() const { return m_page->GetDrawView()->size(); }
    QTransform Transform() const { return m_page->GetDrawView()->transform(); }

    void Show(const QImage &frame)
    {
        m_page->GetDrawView()->slotPaintPreview(frame);
        m_page->SlotUpdateCurve(&m_payload);
        QApplication::processEvents();
    }

private:
    FakeServices m_services;
    FakeCameraMainManager m_camera;
    QMutex m_lock;
    std::vector<int> m_rows[2] = { std::vector<int>(2048), std::vector<int>(2048) };
    std::vector<int> m_columns[2] = { std::vector<int>(512), std::vector<int>(512) };
    SpectrumCurvePayload m_payload{};
    std::unique_ptr<SpectrumView> m_page;
};

/// The picture alone, as large: a graphics view whose scene has the frame as its background brush.
class PictureWindow
{
public:
    PictureWindow(const QSize &size, const QTransform &transform)
    {
        m_view.setScene(&m_scene);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_scene.setSceneRect(0, 0, FrameSize.width(), FrameSize.height());
        m_view.setFixedSize(size);
        m_view.setTransform(transform);
        m_view.show();
    }

    void Show(const QImage &frame)
    {
        m_scene.setBackgroundBrush(QBrush(QPixmap::fromImage(frame, Qt::NoFormatConversion)));
        QApplication::processEvents();
    }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};

} // namespace

QVector<BenchmarkResult> BenchmarkSpectrumFrame()
{
    const QVector<QImage> frames = RandomFrames(FrameSize, QImage::Format_Grayscale8);
    SpectrumWindow spectrum;
    spectrum.Show(frames.first());
    PictureWindow picture(spectrum.ImageSize(), spectrum.Transform());
    QApplication::processEvents();
    int n = 0;
    return { MeasureRatio(
        "live frame, 2048 x 512, spectrum mode", SpectrumFrameBound, Rounds,
        [&] { picture.Show(frames.at(n++ % frames.size())); },
        [&] { spectrum.Show(frames.at(n++ % frames.size())); }) };
}
