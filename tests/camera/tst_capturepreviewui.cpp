// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturepreviewui.h"

#include "applicationstylesheet.h"
#include "displayscale.h"
#include "fakecameraconfigmanager.h"
#include "fakecameramainmanager.h"
#include "fakeframesavemanager.h"
#include "fakepreviewmanager.h"
#include "guardedtest.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QThread>

namespace {

/// The two buttons and captions of the widget, whatever names the buttons have just now.
struct Parts
{
    explicit Parts(const CapturePreviewUI &ui)
        : row(qobject_cast<QHBoxLayout *>(ui.layout()))
        , captureColumn(qobject_cast<QVBoxLayout *>(row->itemAt(1)->layout()))
        , previewColumn(qobject_cast<QVBoxLayout *>(row->itemAt(3)->layout()))
        , capture(qobject_cast<QPushButton *>(captureColumn->itemAt(0)->widget()))
        , preview(qobject_cast<QPushButton *>(previewColumn->itemAt(0)->widget()))
        , captureCaption(qobject_cast<QLabel *>(captureColumn->itemAt(1)->widget()))
        , live(qobject_cast<QLabel *>(previewColumn->itemAt(1)->widget()))
    {
    }

    QHBoxLayout *row;
    QVBoxLayout *captureColumn;
    QVBoxLayout *previewColumn;
    QPushButton *capture;
    QPushButton *preview;
    QLabel *captureCaption;
    QLabel *live;
};

/// Starts and stops its thread when asked to, like a real preview.
class ObeyingPreviewManager : public FakePreviewManager
{
public:
    bool StartPreview() override
    {
        SetRunning(true);
        return FakePreviewManager::StartPreview();
    }
    bool StopPreview() override
    {
        SetRunning(false);
        return FakePreviewManager::StopPreview();
    }
};

struct Services
{
    Services() { CallLog::Clear(); }

    ObeyingPreviewManager preview;
    FakeFrameSaveManager frameSave;
    FakeCameraConfigManager cameraConfig;
};

} // namespace

class TestCapturePreviewUI : public GuardedTest
{
    Q_OBJECT

private slots:
    void form_data();
    void form();
    void showsTheStateAtBirth_data();
    void showsTheStateAtBirth();
    void withoutACameraDisabledAndAsBefore();
    void parentDisabledStillFollows();
    void captureSavesFrames();
    void previewToggles();
    void previewIsToggledThoughTheResultsAreBad_data();
    void previewIsToggledThoughTheResultsAreBad();
    void previewLogsItsWay();
    void savingShowsInTheCaptureButton();
    void savingWithoutACameraLeavesTheButton();
    void saveThreadIsFollowedInTheGuiThread();
    void updateIsLogged();
    void namesSelectTheLook();
};

void TestCapturePreviewUI::form_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("iconSize");
    QTest::newRow("design size") << 1.0 << 45;
    QTest::newRow("twice") << 2.0 << 90;
}

void TestCapturePreviewUI::form()
{
    QFETCH(double, scale);
    QFETCH(int, iconSize);
    const DisplayScale displayScale(scale);
    Services services;
    CapturePreviewUI ui;
    const Parts parts(ui);
    const QMargins usual = [] {
        QWidget widget;
        return QHBoxLayout(&widget).contentsMargins();
    }();

    const QMargins inner = [] { // of a layout in another one
        QWidget widget;
        auto *row = new QHBoxLayout(&widget);
        auto *column = new QVBoxLayout;
        row->addLayout(column);
        return column->contentsMargins();
    }();

    QCOMPARE(ui.objectName(), QString("CapturePreviewUI"));
    QCOMPARE(ui.windowTitle(), QString("Form"));
    QCOMPARE(ui.size(), QSize(400, 78));
    QCOMPARE(parts.row->objectName(), QString("horizontalLayout"));
    QCOMPARE(parts.row->contentsMargins(), QMargins(usual.left(), 6, usual.right(), 6));
    QCOMPARE(parts.row->count(), 5);
    const QVector<QPair<int, QSize>> spacers{{0, QSize(68, 20)}, {2, QSize(40, 20)}, {4, QSize(68, 20)}};
    for (const auto &expected : spacers) {
        const QSpacerItem *spacer = parts.row->itemAt(expected.first)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), expected.second);
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }
    QCOMPARE(parts.captureColumn->objectName(), QString("verticalLayout"));
    QCOMPARE(parts.previewColumn->objectName(), QString("verticalLayout_2"));
    for (const QVBoxLayout *column : {parts.captureColumn, parts.previewColumn}) {
        QCOMPARE(column->spacing(), 0);
        QCOMPARE(column->contentsMargins(), QMargins(inner.left(), inner.top(), 0, inner.bottom()));
    }
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCapture"));
    QCOMPARE(parts.capture->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(parts.capture->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(parts.capture->toolTip(), QString("F10"));
    QCOMPARE(parts.preview->objectName(), QString("pushButtonPreview"));
    QCOMPARE(parts.preview->sizePolicy(), QPushButton().sizePolicy());
    for (const QPushButton *button : {parts.capture, parts.preview}) {
        QCOMPARE(button->minimumSize(), QSize(0, 40));
        QCOMPARE(button->iconSize(), QSize(iconSize, iconSize));
        QVERIFY(!button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(button->text(), QString());
    }
    QCOMPARE(parts.captureCaption->objectName(), QString("labelCapture"));
    QCOMPARE(parts.captureCaption->text(), QString("Capture"));
    QCOMPARE(parts.captureCaption->alignment(), Qt::AlignCenter);
    QCOMPARE(parts.capture->accessibleName(), QString("Capture"));
    QCOMPARE(parts.live->objectName(), QString("labelLive"));
    QCOMPARE(parts.live->text(), QString("Live"));
    QCOMPARE(parts.live->alignment(), Qt::AlignCenter);
    QCOMPARE(parts.preview->accessibleName(), QString("Live"));
}

void TestCapturePreviewUI::showsTheStateAtBirth_data()
{
    QTest::addColumn<bool>("previewing");
    QTest::addColumn<bool>("saving");
    QTest::addColumn<QString>("previewName");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("captureName");
    QTest::newRow("idle") << false << false << "pushButtonPreview" << "Live" << "pushButtonCapture";
    QTest::newRow("previewing") << true << false << "pushButtonPreviewChecked" << "Stop" << "pushButtonCapture";
    QTest::newRow("saving") << false << true << "pushButtonPreview" << "Live" << "pushButtonCaptureChecked";
    QTest::newRow("both") << true << true << "pushButtonPreviewChecked" << "Stop" << "pushButtonCaptureChecked";
}

void TestCapturePreviewUI::showsTheStateAtBirth()
{
    QFETCH(bool, previewing);
    QFETCH(bool, saving);
    QFETCH(QString, previewName);
    QFETCH(QString, caption);
    QFETCH(QString, captureName);
    Services services;
    FakeCameraMainManager camera;
    services.preview.SetRunning(previewing);
    services.frameSave.SetRunning(saving);
    CapturePreviewUI ui;
    const Parts parts(ui);
    QVERIFY(ui.isEnabled());
    QCOMPARE(parts.preview->objectName(), previewName);
    QCOMPARE(parts.live->text(), caption);
    QCOMPARE(parts.capture->objectName(), captureName);
}

void TestCapturePreviewUI::withoutACameraDisabledAndAsBefore()
{
    Services services;
    QScopedPointer<FakeCameraMainManager> camera(new FakeCameraMainManager);
    services.preview.SetRunning(true);
    services.frameSave.SetRunning(true);
    CapturePreviewUI ui;
    const Parts parts(ui);

    camera.reset();
    services.preview.SetRunning(false);
    services.frameSave.SetRunning(false);
    emit services.cameraConfig.signalPreviewStateChanged();
    QVERIFY(!ui.isEnabled());
    QCOMPARE(parts.preview->objectName(), QString("pushButtonPreviewChecked"));
    QCOMPARE(parts.live->text(), QString("Stop"));
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCaptureChecked"));

    camera.reset(new FakeCameraMainManager);
    emit services.cameraConfig.signalPreviewStateChanged();
    QVERIFY(ui.isEnabled());
    QCOMPARE(parts.preview->objectName(), QString("pushButtonPreview"));
    QCOMPARE(parts.live->text(), QString("Live"));
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCapture"));
}

void TestCapturePreviewUI::parentDisabledStillFollows()
{
    Services services;
    FakeCameraMainManager camera;
    QWidget page;
    page.setEnabled(false);
    CapturePreviewUI ui(&page);
    services.preview.SetRunning(true);
    emit services.cameraConfig.signalPreviewStateChanged();
    QCOMPARE(Parts(ui).preview->objectName(), QString("pushButtonPreviewChecked"));
}

void TestCapturePreviewUI::captureSavesFrames()
{
    Services services;
    FakeCameraMainManager camera;
    CapturePreviewUI ui;
    const Parts parts(ui);
    QTest::mouseClick(parts.capture, Qt::LeftButton);
    QCOMPARE(CallLog::Calls(), QStringList("PreviewManager::FrameSave(false, false)"));
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCapture")); // the look follows later
}

void TestCapturePreviewUI::previewToggles()
{
    Services services;
    FakeCameraMainManager camera;
    CapturePreviewUI ui;
    const Parts parts(ui);
    QSignalSpy stateChanges(&services.cameraConfig, SIGNAL(signalPreviewStateChanged()));

    QTest::mouseClick(parts.preview, Qt::LeftButton);
    QCOMPARE(CallLog::Calls(), QStringList("PreviewManager::StartPreview()"));
    QCOMPARE(stateChanges.count(), 1);
    QCOMPARE(parts.live->text(), QString("Stop"));
    QCOMPARE(parts.preview->accessibleName(), QString("Stop"));
    QCOMPARE(parts.preview->objectName(), QString("pushButtonPreviewChecked"));

    QTest::mouseClick(parts.preview, Qt::LeftButton); // found by its first name still
    QCOMPARE(CallLog::Calls(), QStringList({"PreviewManager::StartPreview()", "PreviewManager::StopPreview()"}));
    QCOMPARE(stateChanges.count(), 2);
    QCOMPARE(parts.live->text(), QString("Live"));
    QCOMPARE(parts.preview->objectName(), QString("pushButtonPreview"));
}

void TestCapturePreviewUI::previewIsToggledThoughTheResultsAreBad_data()
{
    QTest::addColumn<bool>("result");
    QTest::newRow("good") << true;
    QTest::newRow("bad") << false;
}

void TestCapturePreviewUI::previewIsToggledThoughTheResultsAreBad()
{
    QFETCH(bool, result);
    Services services;
    FakeCameraMainManager camera;
    services.preview.startPreviewResult = result;
    services.preview.stopPreviewResult = result;
    CapturePreviewUI ui;
    QSignalSpy stateChanges(&services.cameraConfig, SIGNAL(signalPreviewStateChanged()));
    for (int click = 1; click <= 2; ++click) {
        QTest::mouseClick(Parts(ui).preview, Qt::LeftButton);
        QCOMPARE(stateChanges.count(), click);
    }
}

void TestCapturePreviewUI::previewLogsItsWay()
{
    Services services;
    FakeCameraMainManager camera;
    CapturePreviewUI ui;
    const int before = DebugLines().size();
    QTest::mouseClick(Parts(ui).preview, Qt::LeftButton);

    const QStringList lines = DebugLines().mid(before);
    QCOMPARE(lines.size(), 3);
    const QRegularExpression way(
        R"(^\[capturepreviewui\.cpp:(\d+) CapturePreviewUI::on_pushButtonPreview_clicked\] $)");
    const auto in = way.match(lines.first());
    const auto out = way.match(lines.last());
    QVERIFY2(in.hasMatch(), qPrintable(lines.first()));
    QVERIFY2(out.hasMatch(), qPrintable(lines.last()));
    QVERIFY(out.captured(1).toInt() > in.captured(1).toInt());
    QCOMPARE(lines.at(1), QString("CapturePreviewUI::UpdateUI()")); // between the two: the round trip
}

void TestCapturePreviewUI::savingShowsInTheCaptureButton()
{
    Services services;
    FakeCameraMainManager camera;
    CapturePreviewUI ui;
    const Parts parts(ui);
    emit services.frameSave.signalSaveThreadRunningChanged(true);
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCaptureChecked"));
    QVERIFY(!parts.capture->isChecked());
    emit services.frameSave.signalSaveThreadRunningChanged(false);
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCapture"));
}

void TestCapturePreviewUI::savingWithoutACameraLeavesTheButton()
{
    Services services;
    QScopedPointer<FakeCameraMainManager> camera(new FakeCameraMainManager);
    CapturePreviewUI ui;
    const Parts parts(ui);
    emit services.frameSave.signalSaveThreadRunningChanged(true);
    camera.reset();
    emit services.frameSave.signalSaveThreadRunningChanged(false);
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCaptureChecked"));
}

void TestCapturePreviewUI::saveThreadIsFollowedInTheGuiThread()
{
    Services services;
    FakeCameraMainManager camera;
    CapturePreviewUI ui;
    const Parts parts(ui);
    QScopedPointer<QThread> saveThread(
        QThread::create([&services] { emit services.frameSave.signalSaveThreadRunningChanged(true); }));
    saveThread->start();
    QVERIFY(saveThread->wait());
    QCOMPARE(parts.capture->objectName(), QString("pushButtonCapture")); // nothing is touched from the other thread
    QTRY_COMPARE(parts.capture->objectName(), QString("pushButtonCaptureChecked"));
}

void TestCapturePreviewUI::updateIsLogged()
{
    Services services;
    CapturePreviewUI ui;
    QCOMPARE(DebugLines(), QStringList("CapturePreviewUI::UpdateUI()"));
    emit services.cameraConfig.signalPreviewStateChanged();
    QCOMPARE(DebugLines().size(), 2);
}

void TestCapturePreviewUI::namesSelectTheLook()
{
    Services services;
    FakeCameraMainManager camera;
    const ApplicationStyleSheet sheet("QPushButton { border: none; background: rgb(10, 20, 30); }"
                                      "QPushButton#pushButtonCaptureChecked { background: rgb(200, 0, 0); }"
                                      "QPushButton#pushButtonPreviewChecked { background: rgb(0, 200, 0); }");
    QWidget window;
    auto *ui = new CapturePreviewUI(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const Parts parts(*ui);
    const auto colour = [](QPushButton *button) { return button->grab().toImage().pixelColor(5, 5); };

    QCOMPARE(colour(parts.capture), QColor(10, 20, 30));
    QCOMPARE(colour(parts.preview), QColor(10, 20, 30));
    emit services.frameSave.signalSaveThreadRunningChanged(true);
    services.preview.SetRunning(true);
    services.frameSave.SetRunning(true);
    emit services.cameraConfig.signalPreviewStateChanged();
    QCOMPARE(colour(parts.capture), QColor(200, 0, 0));
    QCOMPARE(colour(parts.preview), QColor(0, 200, 0));
    services.preview.SetRunning(false);
    services.frameSave.SetRunning(false);
    emit services.cameraConfig.signalPreviewStateChanged();
    QCOMPARE(colour(parts.capture), QColor(10, 20, 30));
    QCOMPARE(colour(parts.preview), QColor(10, 20, 30));
}

GUARDED_TEST_MAIN(TestCapturePreviewUI)
#include "tst_capturepreviewui.moc"
