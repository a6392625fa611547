// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewtoolbar.h"

#include "displayscale.h"
#include "globalnotify.h"
#include "guardedtest.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Writes down what the bar asks for: "signalSetZoomType(0)", "notification 65".
class Listener : public QObject, public LxObserver
{
    Q_OBJECT

public:
    explicit Listener(ViewToolBar *bar)
    {
        connect(bar, &ViewToolBar::signalSetZoomType, this, [this](int type) { Note("signalSetZoomType(%1)", type); });
        connect(bar, &ViewToolBar::signalRotateImage, this, [this](int type) { Note("signalRotateImage(%1)", type); });
        connect(bar, &ViewToolBar::signalSaveAs, this, [this] { heard << "signalSaveAs()"; });
        connect(bar, &ViewToolBar::signalCrop, this, [this] { heard << "signalCrop()"; });
        connect(bar, &ViewToolBar::signalImageInfo, this, [this] { heard << "signalImageInfo()"; });
        connect(bar, &ViewToolBar::signalCloseCompare, this, [this] { heard << "signalCloseCompare()"; });
        connect(bar, &ViewToolBar::signalUpdatePos, this, [this] { heard << "signalUpdatePos()"; });
        GlobalAttachObserver(this);
    }
    ~Listener() override { GlobalDetachObserver(this); }

    void UpdateObserver(int id, void *data) override
    {
        Note(data ? "notification %1 with data" : "notification %1", id);
    }

    QStringList heard;

private:
    void Note(const char *text, int number) { heard << QString(text).arg(number); }
};

const QString degree = QString(QChar(0xB0));

} // namespace

class TestViewToolBar : public GuardedTest
{
    Q_OBJECT

private slots:
    void form();
    void buttons_data();
    void buttons();
    void names();
    void sizes_data();
    void sizes();
    void visibleAtBirth_data();
    void visibleAtBirth();
    void height_data();
    void height();
    void optionalButtons_data();
    void optionalButtons();
    void rotateCanBeDisabled();
    void folding();
    void foldedBarKeepsTheStripHeight();
    void keys_data();
    void keys();
    void buttonsFillTheBar();
    void clicksLeaveTheKeysWhereTheyWere();
};

void TestViewToolBar::form()
{
    ViewToolBar bar(nullptr, true);
    QCOMPARE(bar.windowTitle(), QString("Form"));
    auto *outer = qobject_cast<QVBoxLayout *>(bar.layout());
    QVERIFY(outer);
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->itemAt(0)->widget()->objectName(), QString("pushButtonShow"));
    QWidget *widget = outer->itemAt(1)->widget();
    QCOMPARE(widget->objectName(), QString("widget"));

    auto *column = qobject_cast<QVBoxLayout *>(widget->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QString("verticalLayout_2"));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins());
    QStringList names;
    for (int i = 0; i + 1 < column->count(); ++i)
        names << column->itemAt(i)->widget()->objectName();
    QCOMPARE(names, QStringList({"pushButtonHide", "pushButtonZoomIn", "pushButtonZoomOut", "pushButtonFit",
                                 "pushButton1vs1", "pushButtonBlackBackground", "pushButtonFullScreen",
                                 "pushButtonHorizontalMirror", "pushButtonVerticalMirror", "pushButtonRotate90",
                                 "pushButtonSaveAs", "pushButtonCrop", "pushButtonImageInfo",
                                 "pushButtonCloseCompare"}));
    QVERIFY(column->itemAt(column->count() - 1)->spacerItem());
}

void TestViewToolBar::buttons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("heard");
    const auto row = [](const char *name, const QString &toolTip, const char *shortcut, const char *heard) {
        QTest::newRow(name) << name << toolTip << shortcut << heard;
    };
    row("pushButtonShow", "Tool Bar", "", "signalUpdatePos()");
    row("pushButtonHide", "", "", "signalUpdatePos()");
    row("pushButtonZoomIn", "Zoom In(Ctrl++)(Ctrl+=)", "Ctrl+=", "signalSetZoomType(0)");
    row("pushButtonZoomOut", "Zoom Out(Ctrl+-)", "Ctrl+-", "signalSetZoomType(1)");
    row("pushButton1vs1", "1 : 1(Ctrl+O)", "Ctrl+O", "signalSetZoomType(2)");
    row("pushButtonFit", "Fit(Ctrl+F)", "Ctrl+F", "signalSetZoomType(3)");
    row("pushButtonBlackBackground", "Black Background(Ctrl+B)", "Ctrl+B", "notification 65");
    row("pushButtonFullScreen", "Full Screen(Ctrl+S)", "Ctrl+S", "notification 64");
    row("pushButtonHorizontalMirror", "Horizontal Flip(Ctrl+H)", "Ctrl+H", "signalRotateImage(1)");
    row("pushButtonVerticalMirror", "Vertical Flip(Ctrl+V)", "Ctrl+V", "signalRotateImage(2)");
    row("pushButtonRotate90", "Rotate 90" + degree + "(Ctrl+R)", "Ctrl+R", "signalRotateImage(0)");
    row("pushButtonSaveAs", "Save Image As...", "", "signalSaveAs()");
    row("pushButtonCrop", "Image Crop", "", "signalCrop()");
    row("pushButtonImageInfo", "Image Info", "", "signalImageInfo()");
    row("pushButtonCloseCompare", "Close Compare", "", "signalCloseCompare()");
}

void TestViewToolBar::buttons()
{
    QFETCH(QString, name);
    QFETCH(QString, toolTip);
    QFETCH(QString, shortcut);
    QFETCH(QString, heard);
    ViewToolBar bar(nullptr, false);
    auto *button = bar.findChild<QPushButton *>(name);
    QVERIFY(button);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), toolTip);
    QCOMPARE(button->shortcut(), QKeySequence(shortcut));

    Listener listener(&bar);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(listener.heard, QStringList(heard));
}

/// For those who do not see the icons; the keys are told apart.
void TestViewToolBar::names()
{
    ViewToolBar bar(nullptr, false);
    QStringList names;
    for (const QPushButton *button : bar.findChildren<QPushButton *>())
        names << button->accessibleName();
    names.sort();
    QCOMPARE(names, QStringList({ "1 : 1", "Black Background", "Close Compare", "Fit", "Full Screen",
                                  "Hide the Tool Bar", "Horizontal Flip", "Image Crop", "Image Info",
                                  "Rotate 90" + degree, "Save Image As...", "Show the Tool Bar",
                                  "Vertical Flip", "Zoom In", "Zoom Out" }));
}

void TestViewToolBar::sizes_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("buttonSize");
    QTest::addColumn<int>("stripSize");
    QTest::newRow("design size") << 1.0 << 35 << 10;
    QTest::newRow("twice") << 2.0 << 70 << 20;
}

void TestViewToolBar::sizes()
{
    QFETCH(double, scale);
    QFETCH(int, buttonSize);
    QFETCH(int, stripSize);
    const DisplayScale displayScale(scale);
    ViewToolBar bar(nullptr, false);
    QCOMPARE(bar.minimumWidth(), buttonSize);
    QCOMPARE(bar.maximumWidth(), buttonSize);
    const auto buttons = bar.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 15);
    for (const QPushButton *button : buttons) {
        if (button->objectName() == "pushButtonShow" || button->objectName() == "pushButtonHide") {
            QCOMPARE(button->minimumHeight(), stripSize);
            QCOMPARE(button->maximumHeight(), stripSize);
            QCOMPARE(button->iconSize(), QSize(stripSize, stripSize));
        } else {
            QCOMPARE(button->minimumSize(), QSize(buttonSize, buttonSize));
            QCOMPARE(button->maximumSize(), QSize(buttonSize, buttonSize));
            QCOMPARE(button->iconSize(), QSize(buttonSize, buttonSize));
        }
    }
}

void TestViewToolBar::visibleAtBirth_data()
{
    QTest::addColumn<bool>("isCamera");
    QTest::addColumn<QStringList>("hidden");
    QTest::newRow("camera") << true
                            << QStringList({"pushButtonCloseCompare", "pushButtonCrop", "pushButtonImageInfo",
                                            "pushButtonSaveAs", "pushButtonShow"});
    QTest::newRow("image") << false
                           << QStringList({"pushButtonCloseCompare", "pushButtonImageInfo", "pushButtonShow"});
}

void TestViewToolBar::visibleAtBirth()
{
    QFETCH(bool, isCamera);
    QFETCH(QStringList, hidden);
    ViewToolBar bar(nullptr, isCamera);
    QStringList found;
    for (const QPushButton *button : bar.findChildren<QPushButton *>()) {
        if (button->isHidden())
            found << button->objectName();
    }
    found.sort();
    QCOMPARE(found, hidden);
}

void TestViewToolBar::height_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isCamera");
    QTest::addColumn<int>("height");
    QTest::newRow("camera") << 1.0 << true << 10 + 10 * 35;
    QTest::newRow("image") << 1.0 << false << 10 + 12 * 35;
    QTest::newRow("camera, twice the size") << 2.0 << true << 20 + 10 * 70;
}

void TestViewToolBar::height()
{
    QFETCH(double, scale);
    QFETCH(bool, isCamera);
    QFETCH(int, height);
    const DisplayScale displayScale(scale);
    ViewToolBar bar(nullptr, isCamera);
    QCOMPARE(bar.minimumHeight(), height);
    QCOMPARE(bar.maximumHeight(), height);
}

void TestViewToolBar::optionalButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("close compare") << "pushButtonCloseCompare";
    QTest::newRow("horizontal mirror") << "pushButtonHorizontalMirror";
    QTest::newRow("vertical mirror") << "pushButtonVerticalMirror";
    QTest::newRow("rotate") << "pushButtonRotate90";
    QTest::newRow("image info") << "pushButtonImageInfo";
}

void TestViewToolBar::optionalButtons()
{
    QFETCH(QString, name);
    const DisplayScale displayScale(1.0);
    ViewToolBar bar(nullptr, true);
    const auto show = [&](bool visible) {
        if (name == "pushButtonCloseCompare")
            bar.SetCloseCompareVisible(visible);
        else if (name == "pushButtonHorizontalMirror")
            bar.SetHorizontalMirrorVisible(visible);
        else if (name == "pushButtonVerticalMirror")
            bar.SetVerticalMirrorVisible(visible);
        else if (name == "pushButtonRotate90")
            bar.SetRotateVisible(visible);
        else
            bar.slotSetImageInfoButtonVisible(visible);
    };
    const auto *button = bar.findChild<QPushButton *>(name);
    show(false);
    QVERIFY(button->isHidden());
    const int without = bar.height();
    show(true);
    QVERIFY(!button->isHidden());
    QCOMPARE(bar.height(), without + 35);
    show(true);
    QCOMPARE(bar.height(), without + 35);
    show(false);
    QCOMPARE(bar.height(), without);
}

void TestViewToolBar::rotateCanBeDisabled()
{
    ViewToolBar bar(nullptr, true);
    const auto *rotate = bar.findChild<QPushButton *>("pushButtonRotate90");
    const int height = bar.height();
    bar.SetRotateEnabled(false);
    QVERIFY(!rotate->isEnabled());
    QCOMPARE(bar.height(), height);
    bar.SetRotateEnabled(true);
    QVERIFY(rotate->isEnabled());
}

void TestViewToolBar::folding()
{
    const DisplayScale displayScale(1.0);
    ViewToolBar bar(nullptr, true);
    auto *show = bar.findChild<QPushButton *>("pushButtonShow");
    auto *hide = bar.findChild<QPushButton *>("pushButtonHide");
    const auto *column = bar.findChild<QWidget *>("widget");
    int heightWhenTold = 0;
    connect(&bar, &ViewToolBar::signalUpdatePos, &bar, [&] { heightWhenTold = bar.height(); });

    QTest::mouseClick(hide, Qt::LeftButton);
    QVERIFY(column->isHidden());
    QVERIFY(!show->isHidden());
    QCOMPARE(bar.height(), 10);
    QCOMPARE(heightWhenTold, 10); // the owner is told when the height is right

    QTest::mouseClick(show, Qt::LeftButton);
    QVERIFY(!column->isHidden());
    QVERIFY(show->isHidden());
    QCOMPARE(bar.height(), 360);
    QCOMPARE(heightWhenTold, 360);
}

void TestViewToolBar::foldedBarKeepsTheStripHeight()
{
    const DisplayScale displayScale(1.0);
    ViewToolBar bar(nullptr, true);
    QTest::mouseClick(bar.findChild<QPushButton *>("pushButtonHide"), Qt::LeftButton);
    bar.SetCloseCompareVisible(true);
    bar.SetHorizontalMirrorVisible(false);
    bar.slotSetImageInfoButtonVisible(true);
    QCOMPARE(bar.height(), 10);
    QTest::mouseClick(bar.findChild<QPushButton *>("pushButtonShow"), Qt::LeftButton);
    QCOMPARE(bar.height(), 10 + 11 * 35);
}

void TestViewToolBar::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("heard");
    QTest::newRow("Ctrl++") << int(Qt::Key_Plus) << "signalSetZoomType(0)";
    QTest::newRow("Ctrl+=") << int(Qt::Key_Equal) << "signalSetZoomType(0)";
    QTest::newRow("Ctrl+-") << int(Qt::Key_Minus) << "signalSetZoomType(1)";
    QTest::newRow("Ctrl+O") << int(Qt::Key_O) << "signalSetZoomType(2)";
    QTest::newRow("Ctrl+F") << int(Qt::Key_F) << "signalSetZoomType(3)";
    QTest::newRow("Ctrl+B") << int(Qt::Key_B) << "notification 65";
    QTest::newRow("Ctrl+S") << int(Qt::Key_S) << "notification 64";
    QTest::newRow("Ctrl+H") << int(Qt::Key_H) << "signalRotateImage(1)";
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << "signalRotateImage(2)";
    QTest::newRow("Ctrl+R") << int(Qt::Key_R) << "signalRotateImage(0)";
}

void TestViewToolBar::keys()
{
    QFETCH(int, key);
    QFETCH(QString, heard);
    QWidget window;
    window.resize(400, 500);
    auto *bar = new ViewToolBar(&window, false);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    Listener listener(bar);
    QTest::keyClick(&window, Qt::Key(key), Qt::ControlModifier);
    QTRY_COMPARE(listener.heard, QStringList(heard));
}

void TestViewToolBar::buttonsFillTheBar()
{
    const DisplayScale displayScale(1.0);
    QWidget window;
    window.resize(400, 600);
    auto *bar = new ViewToolBar(&window, false);
    bar->SetCloseCompareVisible(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    int lowest = 0;
    for (const QPushButton *button : bar->findChildren<QPushButton *>()) {
        if (!button->isVisible())
            continue;
        const QRect place(button->mapTo(bar, QPoint(0, 0)), button->size());
        QVERIFY2(bar->rect().contains(place), qPrintable(button->objectName()));
        lowest = qMax(lowest, place.bottom());
    }
    QVERIFY(lowest <= bar->rect().bottom());
    QVERIFY(lowest >= bar->rect().bottom() - 35); // the hide button is lower than the row it has
}

/// Of the crop frame, say: Enter and Esc are still its own after a click on the zoom.
void TestViewToolBar::clicksLeaveTheKeysWhereTheyWere()
{
    QWidget window;
    auto *tool = new QWidget(&window);
    tool->setFocusPolicy(Qt::StrongFocus);
    ViewToolBar bar(&window, false);
    window.resize(200, 700);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tool->setFocus();
    for (QPushButton *button : bar.findChildren<QPushButton *>()) {
        if (!button->isVisible() || button->objectName() == "pushButtonHide")
            continue;
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY2(tool->hasFocus(), qPrintable(button->objectName()));
        QVERIFY(button->focusPolicy() & Qt::TabFocus); // the keyboard reaches it all the same
    }
}

GUARDED_TEST_MAIN(TestViewToolBar)
#include "tst_viewtoolbar.moc"
