// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeservices.h"
#include "guardedtest.h"
#include "plotpage.h"
#include "spectrum3ddrawframebase.h"
#include "spectrum3ddrawviewbase.h"
#include "spectrumzoomui.h"

#include <QLabel>
#include <QPushButton>

#include <qwt3d_surfaceplot.h>

/// The 3D page on a display that offers no OpenGL at all.
class TestSpectrum3DNoOpenGL : public GuardedTest
{
    Q_OBJECT

private slots:
    void pageSaysSo();
    void everythingElseGoesOn();
};

void TestSpectrum3DNoOpenGL::pageSaysSo()
{
    FakeServices services;
    Spectrum3DDrawFrameBase page(nullptr);
    page.resize(600, 400);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QVERIFY(!page.findChild<Qwt3D::SurfacePlot *>());
    const auto *notice = page.findChild<QLabel *>();
    QVERIFY(notice && notice->isVisible());
    QCOMPARE(notice->text(), QString("The 3D plot can't be shown: this display offers no OpenGL."));
    QVERIFY(notice->width() > 400);
}

void TestSpectrum3DNoOpenGL::everythingElseGoesOn()
{
    FakeServices services;
    services.spectrumUI.displayMode3D = true;
    services.spectrumUI.multiTrackList = { QRectF(0, 0, 3, 1) };
    Spectrum3DDrawFrameBase page(nullptr);
    LinePayload payload({ 1, 2, 3 });
    page.findChild<Spectrum3DDrawViewBase *>()->SlotUpdateMultiTrack(payload.Param());
    const QList<QPushButton *> buttons = page.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 6);
    for (QPushButton *button : buttons)
        button->click();
    emit services.spectrumUI.SignalSpectralPropertyChanged();
    QCOMPARE(CallLog::Count("SpectrumUIManager::SetZoomAutoFlag(true)"), 2);
}

int main(int argc, char **argv)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    TestSpectrum3DNoOpenGL test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_spectrum3dnoopengl.moc"
