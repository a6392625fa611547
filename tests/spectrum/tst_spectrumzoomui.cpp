// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumzoomui.h"

#include "applicationstylesheet.h"
#include "displayscale.h"
#include "fakeservices.h"
#include "guardedtest.h"

#include <QMetaMethod>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QStringList buttonNames{ "pushButtonRescaleAuto", "pushButton2DHZoomIn", "pushButton2DHZoomOut",
                               "pushButton2DZoomIn",    "pushButton2DZoomOut", "pushButton2DScaleReset" };

/// Writes the bar's signals into the call log, with the flag that a receiver sees.
void LogSignals(SpectrumZoomUI *bar, const FakeSpectrumUIManager *settings)
{
    const QVector<QPair<void (SpectrumZoomUI::*)(), QString>> all{
        { &SpectrumZoomUI::SignalZoomIn, "SignalZoomIn" },
        { &SpectrumZoomUI::SignalZoomOut, "SignalZoomOut" },
        { &SpectrumZoomUI::SignalZoomReset, "SignalZoomReset" },
        { &SpectrumZoomUI::SignalHorizontalZoomIn, "SignalHorizontalZoomIn" },
        { &SpectrumZoomUI::SignalHorizontalZoomOut, "SignalHorizontalZoomOut" },
        { &SpectrumZoomUI::SignalZoomAuto, "SignalZoomAuto" },
    };
    for (const auto &signal : all) {
        const QString name = signal.second;
        QObject::connect(bar, signal.first, bar,
                         [=] { CallLog::Add(name, { Text(settings->GetZoomAutoFlag()) }); });
    }
}

} // namespace

class TestSpectrumZoomUI : public GuardedTest
{
    Q_OBJECT

private slots:
    void methodsInOrder();
    void form();
    void sizes_data();
    void sizes();
    void buttons_data();
    void buttons();
    void autoButtonToggles();
    void autoButtonStartsAsTheFlagStands();
    void lookFollowsTheFlag();
    void barWithoutAutoButtonDoesNotFollow();
};

void TestSpectrumZoomUI::methodsInOrder()
{
    const QMetaObject &meta = SpectrumZoomUI::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(
        methods,
        QStringList({ "SignalZoomIn()", "SignalZoomOut()", "SignalZoomReset()", "SignalHorizontalZoomIn()",
                      "SignalHorizontalZoomOut()", "SignalZoomAuto()", "SlotDisplayModePropertyChange()",
                      "on_pushButton2DZoomIn_clicked(bool)", "on_pushButton2DZoomOut_clicked(bool)",
                      "on_pushButton2DScaleReset_clicked(bool)", "on_pushButton2DHZoomIn_clicked(bool)",
                      "on_pushButton2DHZoomOut_clicked(bool)", "on_pushButtonRescaleAuto_clicked(bool)" }));
}

void TestSpectrumZoomUI::form()
{
    FakeServices services;
    SpectrumZoomUI bar(nullptr, true);
    QCOMPARE(bar.objectName(), QString("SpectrumZoomUI"));
    QCOMPARE(bar.size(), QSize(73, 225));
    auto *column = qobject_cast<QVBoxLayout *>(bar.layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QString("verticalLayout"));
    QWidget widget;
    QCOMPARE(column->contentsMargins(), QMargins(1, 9, 1, QVBoxLayout(&widget).contentsMargins().bottom()));
    QStringList names;
    for (int i = 0; i < column->count(); ++i)
        names << column->itemAt(i)->widget()->objectName();
    QCOMPARE(names, buttonNames);
}

void TestSpectrumZoomUI::sizes_data()
{
    QTest::addColumn<bool>("withAutoButton");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("iconSide");
    QTest::newRow("2D") << true << 1.0 << 30 << 20;
    QTest::newRow("2D, large display") << true << 2.0 << 60 << 40;
    QTest::newRow("3D") << false << 1.0 << 30 << 20;
}

void TestSpectrumZoomUI::sizes()
{
    QFETCH(bool, withAutoButton);
    QFETCH(double, scale);
    QFETCH(int, side);
    QFETCH(int, iconSide);
    DisplayScale displayScale(scale);
    FakeServices services;
    SpectrumZoomUI bar(nullptr, withAutoButton);
    for (const QString &name : buttonNames) {
        const auto *button = bar.findChild<QPushButton *>(name);
        const bool isAuto = name == "pushButtonRescaleAuto";
        QCOMPARE(button->isVisibleTo(&bar), withAutoButton || !isAuto);
        if (isAuto && !withAutoButton)
            continue;
        QCOMPARE(button->minimumSize(), QSize(side, side));
        QCOMPARE(button->maximumSize(), QSize(side, side));
        QCOMPARE(button->iconSize(), QSize(iconSide, iconSide));
    }
}

void TestSpectrumZoomUI::buttons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QString>("flag");
    QTest::newRow("horizontal in") << "pushButton2DHZoomIn"
                                   << "SignalHorizontalZoomIn"
                                   << "false";
    QTest::newRow("horizontal out") << "pushButton2DHZoomOut"
                                    << "SignalHorizontalZoomOut"
                                    << "false";
    QTest::newRow("reset") << "pushButton2DScaleReset"
                           << "SignalZoomReset"
                           << "true";
    QTest::newRow("in") << "pushButton2DZoomIn"
                        << "SignalZoomIn"
                        << "false";
    QTest::newRow("out") << "pushButton2DZoomOut"
                         << "SignalZoomOut"
                         << "false";
    QTest::newRow("auto") << "pushButtonRescaleAuto"
                          << "SignalZoomAuto"
                          << "true";
}

void TestSpectrumZoomUI::buttons()
{
    QFETCH(QString, button);
    QFETCH(QString, signal);
    QFETCH(QString, flag);
    FakeServices services;
    services.spectrumUI.zoomAutoFlag = false;
    SpectrumZoomUI bar(nullptr, true);
    services.spectrumUI.zoomAutoFlag = flag == "false";
    LogSignals(&bar, &services.spectrumUI);
    CallLog::Clear();
    bar.findChild<QPushButton *>(button)->click();
    QCOMPARE(CallLog::Calls(),
             QStringList({ "SpectrumUIManager::SetZoomAutoFlag(" + flag + ")", signal + "(" + flag + ")" }));
}

void TestSpectrumZoomUI::autoButtonToggles()
{
    FakeServices services;
    SpectrumZoomUI bar(nullptr, true);
    auto *button = bar.findChild<QPushButton *>("pushButtonRescaleAuto");
    button->click();
    QVERIFY(services.spectrumUI.zoomAutoFlag);
    QCOMPARE(button->objectName(), QString("pushButtonRescaleAuto"));
    button->click();
    QVERIFY(!services.spectrumUI.zoomAutoFlag);
    QCOMPARE(button->objectName(), QString("pushButtonAutoRescaleClose"));
    button->click(); // still the same button, whatever it is called
    QVERIFY(services.spectrumUI.zoomAutoFlag);
    QCOMPARE(button->objectName(), QString("pushButtonRescaleAuto"));
}

void TestSpectrumZoomUI::autoButtonStartsAsTheFlagStands()
{
    FakeServices services;
    services.spectrumUI.zoomAutoFlag = true;
    SpectrumZoomUI bar(nullptr, true);
    bar.findChild<QPushButton *>("pushButtonRescaleAuto")->click();
    QVERIFY(!services.spectrumUI.zoomAutoFlag);
}

void TestSpectrumZoomUI::lookFollowsTheFlag()
{
    ApplicationStyleSheet style("#pushButtonRescaleAuto { color: #010203 }"
                                "#pushButtonAutoRescaleClose { color: #040506 }");
    FakeServices services;
    SpectrumZoomUI first(nullptr, true);
    SpectrumZoomUI second(nullptr, true);
    const auto *firstButton = first.findChild<QPushButton *>("pushButtonRescaleAuto");
    const auto *secondButton = second.findChild<QPushButton *>("pushButtonRescaleAuto");
    for (bool automatic : { false, true, false }) {
        services.spectrumUI.zoomAutoFlag = automatic;
        emit services.spectrumUI.SignalZoomAutoFlagChange();
        for (const QPushButton *button : { firstButton, secondButton }) {
            QCOMPARE(button->objectName(),
                     QString(automatic ? "pushButtonRescaleAuto" : "pushButtonAutoRescaleClose"));
            QCOMPARE(button->isChecked(), automatic);
            button->ensurePolished();
            QCOMPARE(button->palette().color(QPalette::ButtonText),
                     QColor(automatic ? "#010203" : "#040506"));
        }
    }
}

void TestSpectrumZoomUI::barWithoutAutoButtonDoesNotFollow()
{
    FakeServices services;
    SpectrumZoomUI bar(nullptr, false);
    services.spectrumUI.zoomAutoFlag = false;
    emit services.spectrumUI.SignalZoomAutoFlagChange();
    QVERIFY(bar.findChild<QPushButton *>("pushButtonRescaleAuto"));
}

GUARDED_TEST_MAIN(TestSpectrumZoomUI)
#include "tst_spectrumzoomui.moc"
