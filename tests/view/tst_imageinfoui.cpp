// SPDX-License-Identifier: GPL-3.0-or-later
#include "imageinfoui.h"

#include "displayscale.h"
#include "globalclass.h"
#include "guardedtest.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QValidator>

namespace {

const QString restingStyle = "background: transparent; border-width: 0; border-style: outset;";
const QString editingStyle = "background-color: rgb(55, 55, 55); border-width: 0;";
const QString degree = QString(QChar(0xB0));

/// While it lives, texts are as large as those of a display with so many dots per inch more.
class TextScale
{
public:
    explicit TextScale(double scale)
    {
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * scale);
        QApplication::setFont(font);
    }
    ~TextScale() { QApplication::setFont(m_font); }

private:
    Q_DISABLE_COPY(TextScale)
    const QFont m_font = QApplication::font();
};

/// The panel at the bottom of a view's host that is 800 x 600.
struct Host
{
    explicit Host(bool showFileName, double scale = 1.0)
        : displayScale(scale)
        , panel(new ImageInfoUI(&window, showFileName))
        , zoom(panel->findChild<QLineEdit *>("lineEditZoom"))
        , frame(panel->findChild<QFrame *>("FrameInfoUIFrame"))
    {
        window.resize(800, 600);
        panel->move(0, window.height() - panel->height());
    }

    bool Show()
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }
    QLabel *Label(const char *name) const { return panel->findChild<QLabel *>(name); }
    QString Text(const char *name) const { return Label(name)->text(); }
    bool IsShown(const char *name) const { return !Label(name)->isHidden(); }

    DisplayScale displayScale;
    QWidget window;
    ImageInfoUI *panel;
    QLineEdit *zoom;
    QFrame *frame;
};

} // namespace

class TestImageInfoUI : public GuardedTest
{
    Q_OBJECT

private slots:
    void form();
    void captions_data();
    void captions();
    void shownAtBirth_data();
    void shownAtBirth();
    void everythingFits_data();
    void everythingFits();
    void zoomBoxTakesDigitsPointsAndPercentSigns_data();
    void zoomBoxTakesDigitsPointsAndPercentSigns();
    void zoomIsShown_data();
    void zoomIsShown();
    void shownZoomEndsEditing();
    void typedZoom_data();
    void typedZoom();
    void leavingTheBoxAppliesTheZoom();
    void editingStyleWhileTheCursorMoves();
    void depthScale_data();
    void depthScale();
    void rotation_data();
    void rotation();
    void imageSizeText();
    void imageSizeNumbers_data();
    void imageSizeNumbers();
    void pixelInfo_data();
    void pixelInfo();
    void pixelTextKeepsThePosition();
    void fileName_data();
    void fileName();
    void panelWidthFollowsTheName();
    void reset();
    void passThrough_data();
    void passThrough();
    void mouseOnThePanelPassesThrough();
    void zoomBoxIsReachedByTheMouse();
};

void TestImageInfoUI::form()
{
    Host host(true);
    QVERIFY(host.frame);
    QCOMPARE(host.frame->parentWidget(), host.panel);
    QCOMPARE(host.frame->styleSheet(), QString("color:white;"));
    QCOMPARE(host.panel->layout()->objectName(), QString("gridLayout"));
    QVERIFY(qobject_cast<QGridLayout *>(host.panel->layout()));
    QCOMPARE(host.frame->layout()->objectName(), QString("gridLayout_2"));
    QVERIFY(qobject_cast<QGridLayout *>(host.frame->layout()));
    QVERIFY(host.panel->hasMouseTracking());
    QVERIFY(host.frame->hasMouseTracking());
    QVERIFY(host.panel->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
    QCOMPARE(host.zoom->parentWidget(), host.frame);
}

void TestImageInfoUI::captions_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::newRow("position") << "label_5" << "Pos :" << "labelPos";
    QTest::newRow("size") << "labelSize" << "Size :" << "labelSizeValue";
    QTest::newRow("name") << "labelFileNameText" << "Name :" << "labelFileName";
    QTest::newRow("grey value") << "labelGray" << "Value :" << "labelGrayValue";
    QTest::newRow("colour") << "labelRGB" << "RGB :" << "labelRGBValue";
    QTest::newRow("rotation") << "labelRotate" << "Rotate :" << "labelRotateValue";
    QTest::newRow("depth scale") << "labelDepthScale" << "32bit Depth Scale :" << "labelDepthScaleValue";
    QTest::newRow("zoom") << "label_2" << "Zoom :" << "lineEditZoom";
}

void TestImageInfoUI::captions()
{
    QFETCH(QString, caption);
    QFETCH(QString, text);
    QFETCH(QString, value);
    ImageInfoUI panel(nullptr, true);
    const auto *label = panel.findChild<QLabel *>(caption);
    QVERIFY(label);
    QCOMPARE(label->text(), text);
    QVERIFY(panel.findChild<QWidget *>(value));
}

void TestImageInfoUI::shownAtBirth_data()
{
    QTest::addColumn<bool>("showFileName");
    QTest::newRow("file") << true;
    QTest::newRow("live") << false;
}

void TestImageInfoUI::shownAtBirth()
{
    QFETCH(bool, showFileName);
    Host host(showFileName);
    QCOMPARE(host.IsShown("labelFileNameText"), showFileName);
    QCOMPARE(host.IsShown("labelFileName"), showFileName);
    for (const char *name : {"labelRotate", "labelRotateValue", "labelDepthScale", "labelDepthScaleValue"})
        QVERIFY2(!host.IsShown(name), name);
    for (const char *name : {"label_5", "labelPos", "labelSize", "labelSizeValue", "label_2"})
        QVERIFY2(host.IsShown(name), name);
    QVERIFY(!host.zoom->isHidden());
}

void TestImageInfoUI::everythingFits_data()
{
    QTest::addColumn<bool>("showFileName");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("pixel");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<double>("depthScale");
    QTest::addColumn<double>("scale");
    const QString longName = "abcdefghijklmnopqrstuvwxyz.tiff";
    for (const double scale : {1.0, 1.5, 2.0}) {
        const auto row = [scale](const char *name) -> QTestData & {
            return QTest::newRow(qPrintable(QString("%1, %2 times").arg(name).arg(scale)));
        };
        row("live, colour") << false << "" << "(255, 255, 255)" << 270 << 0.0 << scale;
        row("live, 16 bit") << false << "" << "65535" << 270 << 0.0 << scale;
        row("live, 16 bit colour") << false << "" << "(65535, 65535, 65535)" << 270 << 0.0 << scale;
        row("file, colour") << true << longName << "(255, 255, 255)" << 270 << 0.0 << scale;
        row("file, 16 bit") << true << longName << "65535" << 270 << 0.0 << scale;
        row("file, 16 bit colour") << true << longName << "(65535, 65535, 65535)" << 270 << 0.0 << scale;
        row("file, 32 bit") << true << "cells.tif" << "0.12345" << 0 << 0.00002 << scale;
    }
}

void TestImageInfoUI::everythingFits()
{
    QFETCH(bool, showFileName);
    QFETCH(QString, fileName);
    QFETCH(QString, pixel);
    QFETCH(int, rotation);
    QFETCH(double, depthScale);
    QFETCH(double, scale);
    const TextScale textScale(scale);
    Host host(showFileName, scale);
    QVERIFY(host.Show());
    host.panel->slotUpdateImageSize("4096x4096");
    if (showFileName)
        host.panel->slotUpdateFileName(fileName);
    host.panel->slotUpdatePixelInfo(QPointF(4095, 4095), pixel);
    host.panel->slotUpdateScaleFactor(32);
    host.panel->slotUpdateRotateDegree(rotation);
    host.panel->slotUpdateDepthScale(depthScale);
    QCoreApplication::processEvents();
    for (const QLabel *label : host.panel->findChildren<QLabel *>()) {
        if (!label->isVisible())
            continue;
        const QRect place(label->mapTo(host.panel, QPoint(0, 0)), label->size());
        QVERIFY2(host.panel->rect().contains(place), qPrintable(label->objectName()));
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
        QVERIFY2(label->height() >= label->sizeHint().height(), qPrintable(label->objectName()));
    }
    QVERIFY(host.panel->rect().contains(QRect(host.zoom->mapTo(host.panel, QPoint(0, 0)), host.zoom->size())));
}

void TestImageInfoUI::zoomBoxTakesDigitsPointsAndPercentSigns_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    QTest::newRow("percentage") << "12.5%" << "12.5%";
    QTest::newRow("letters") << "a1b2" << "12";
    QTest::newRow("signs") << "-1+2e3" << "123";
    QTest::newRow("points and percent signs") << ".%.%" << ".%.%";
}

void TestImageInfoUI::zoomBoxTakesDigitsPointsAndPercentSigns()
{
    QFETCH(QString, typed);
    QFETCH(QString, taken);
    ImageInfoUI panel(nullptr, true);
    auto *zoom = panel.findChild<QLineEdit *>("lineEditZoom");
    QTest::keyClicks(zoom, typed);
    QCOMPARE(zoom->text(), taken);
}

void TestImageInfoUI::zoomIsShown_data()
{
    QTest::addColumn<double>("scaleFactor");
    QTest::addColumn<QString>("text");
    QTest::newRow("one to one") << 1.0 << "100.00%";
    QTest::newRow("largest") << 32.0 << "3200.00%";
    QTest::newRow("smallest of 4096 pixels") << 0.0625 << "6.25%";
    QTest::newRow("single precision") << double(0.1F) << "10.00%";
}

void TestImageInfoUI::zoomIsShown()
{
    QFETCH(double, scaleFactor);
    QFETCH(QString, text);
    Host host(true);
    host.panel->slotUpdateScaleFactor(scaleFactor);
    QCOMPARE(host.zoom->text(), text);
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
    QCOMPARE(host.zoom->minimumWidth(), GlobalClass::GetStringWidth(text));
    QCOMPARE(host.zoom->maximumWidth(), GlobalClass::GetStringWidth(text));
}

void TestImageInfoUI::shownZoomEndsEditing()
{
    Host host(true);
    QVERIFY(host.Show());
    host.zoom->setFocus();
    QTest::keyClicks(host.zoom, "12");
    QVERIFY(host.zoom->hasFocus());
    QCOMPARE(host.zoom->styleSheet(), editingStyle);
    const QSignalSpy ratios(host.panel, SIGNAL(signalSetZoomRatio(double)));
    host.panel->slotUpdateScaleFactor(2);
    QCOMPARE(ratios.count(), 0); // a zoom that is shown was not typed
    QVERIFY(!host.zoom->hasFocus());
    QCOMPARE(host.zoom->text(), QString("200.00%"));
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
}

void TestImageInfoUI::typedZoom_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("ratio");
    QTest::newRow("150%") << "150%" << 1.5;
    QTest::newRow("150") << "150" << 1.5;
    QTest::newRow("150%%") << "150%%" << 1.5;
    QTest::newRow("5000") << "5000" << 32.0;
    QTest::newRow("lone point") << "." << 0.0;
    QTest::newRow("below every minimum") << "0.01" << 0.0001;
}

void TestImageInfoUI::typedZoom()
{
    QFETCH(QString, typed);
    QFETCH(double, ratio);
    Host host(true);
    QVERIFY(host.Show());
    host.zoom->setFocus();
    QTest::keyClicks(host.zoom, typed);
    QSignalSpy ratios(host.panel, SIGNAL(signalSetZoomRatio(double)));
    QTest::keyClick(host.zoom, Qt::Key_Return);
    QVERIFY(ratios.count() >= 1);
    for (const auto &arguments : ratios) // return ends editing too: each time the same zoom
        QCOMPARE(arguments.first().toDouble(), ratio);
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
    QVERIFY(!host.zoom->hasFocus());
}

void TestImageInfoUI::leavingTheBoxAppliesTheZoom()
{
    Host host(true);
    QVERIFY(host.Show());
    host.zoom->setFocus();
    QTest::keyClicks(host.zoom, "75");
    QSignalSpy ratios(host.panel, SIGNAL(signalSetZoomRatio(double)));
    host.zoom->clearFocus();
    QCOMPARE(ratios.count(), 1);
    QCOMPARE(ratios.first().first().toDouble(), 0.75);
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
}

void TestImageInfoUI::editingStyleWhileTheCursorMoves()
{
    Host host(true);
    host.panel->slotUpdateScaleFactor(1);
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
    host.zoom->setCursorPosition(1);
    QCOMPARE(host.zoom->styleSheet(), editingStyle);
}

void TestImageInfoUI::depthScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("text");
    QTest::newRow("positive") << 0.5 << true << "0.50000";
    QTest::newRow("rounded to five places") << 1.0 / 65535 << true << "0.00002";
    QTest::newRow("large") << 1234.5 << true << "1234.50000";
    QTest::newRow("zero") << 0.0 << false << "0.00000";
    QTest::newRow("negative") << -1.0 << false << "-1.00000";
}

void TestImageInfoUI::depthScale()
{
    QFETCH(double, scale);
    QFETCH(bool, shown);
    QFETCH(QString, text);
    Host host(true);
    host.panel->slotUpdateDepthScale(7);
    host.panel->slotUpdateDepthScale(scale);
    QCOMPARE(host.IsShown("labelDepthScale"), shown);
    QCOMPARE(host.IsShown("labelDepthScaleValue"), shown);
    QCOMPARE(host.Text("labelDepthScaleValue"), text);
}

void TestImageInfoUI::rotation_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("quarter") << 90 << true;
    QTest::newRow("three quarters") << 270 << true;
    QTest::newRow("backwards") << -90 << true;
}

void TestImageInfoUI::rotation()
{
    QFETCH(int, degrees);
    QFETCH(bool, shown);
    Host host(false);
    host.panel->slotUpdateRotateDegree(180);
    host.panel->slotUpdateRotateDegree(degrees);
    QCOMPARE(host.IsShown("labelRotate"), shown);
    QCOMPARE(host.IsShown("labelRotateValue"), shown);
    QCOMPARE(host.Text("labelRotateValue"), QString::number(degrees) + degree);
}

void TestImageInfoUI::imageSizeText()
{
    Host host(false);
    host.panel->slotUpdateImageSize("2048x1536");
    QCOMPARE(host.Text("labelSizeValue"), QString("2048x1536"));
}

void TestImageInfoUI::imageSizeNumbers_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 640.0 << 480.0 << "640x480";
    QTest::newRow("cut off, not rounded") << 640.9 << 480.5 << "640x480";
    QTest::newRow("no width") << 0.0 << 480.0 << "1x1";
    QTest::newRow("no height") << 640.0 << 0.0 << "1x1";
    QTest::newRow("nothing") << 0.0 << 0.0 << "1x1";
}

void TestImageInfoUI::imageSizeNumbers()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(QString, text);
    Host host(false);
    host.panel->slotUpdateImageSize("1x1");
    host.panel->UpdateImageSize(width, height);
    QCOMPARE(host.Text("labelSizeValue"), text);
}

void TestImageInfoUI::pixelInfo_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QString>("info");
    QTest::addColumn<QString>("posText");
    QTest::addColumn<bool>("isColour");
    QTest::newRow("grey") << QPointF(12, 34) << "4095" << "(12, 34)" << false;
    QTest::newRow("colour") << QPointF(12, 34) << "(1, 2, 3)" << "(12, 34)" << true;
    QTest::newRow("position is cut off") << QPointF(12.99, 34.5) << "0" << "(12, 34)" << false;
    QTest::newRow("left of and above the picture") << QPointF(-0.7, -3.9) << "0" << "(0, -3)" << false;
    QTest::newRow("no value") << QPointF(0, 0) << "" << "(0, 0)" << false;
}

void TestImageInfoUI::pixelInfo()
{
    QFETCH(QPointF, pos);
    QFETCH(QString, info);
    QFETCH(QString, posText);
    QFETCH(bool, isColour);
    Host host(true);
    host.panel->slotUpdatePixelInfo(QPointF(5, 5), isColour ? "77" : "(7, 7, 7)"); // the other kind before
    host.panel->slotUpdatePixelInfo(pos, info);
    QCOMPARE(host.Text("labelPos"), posText);
    QCOMPARE(host.panel->GetMousePosition(), pos);
    for (const char *name : {"labelRGB", "labelRGBValue"})
        QCOMPARE(host.IsShown(name), isColour);
    for (const char *name : {"labelGray", "labelGrayValue"})
        QCOMPARE(host.IsShown(name), !isColour);
    QCOMPARE(host.Text(isColour ? "labelRGBValue" : "labelGrayValue"), info);
    QCOMPARE(host.Text(isColour ? "labelGrayValue" : "labelRGBValue"), QString(isColour ? "77" : "(7, 7, 7)"));
}

void TestImageInfoUI::pixelTextKeepsThePosition()
{
    Host host(true);
    host.panel->slotUpdatePixelInfo(QPointF(5, 6), "77");
    host.panel->UpdatePixelText("(1, 2, 3)");
    QCOMPARE(host.Text("labelPos"), QString("(5, 6)"));
    QCOMPARE(host.Text("labelRGBValue"), QString("(1, 2, 3)"));
    QVERIFY(host.IsShown("labelRGBValue") && !host.IsShown("labelGrayValue"));
    host.panel->UpdatePixelText("78");
    QCOMPARE(host.Text("labelGrayValue"), QString("78"));
    QVERIFY(!host.IsShown("labelRGBValue") && host.IsShown("labelGrayValue"));
}

void TestImageInfoUI::fileName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("shown");
    QTest::newRow("20 characters") << "abcdefghijklmnopqrst.tif" << "abcdefghijklmnopqrst.tif";
    QTest::newRow("21 characters") << "abcdefghijklmnopqrstu.tif" << "abcdefghijklmnop...rstu.tif";
}

void TestImageInfoUI::fileName()
{
    QFETCH(QString, fileName);
    QFETCH(QString, shown);
    Host host(true);
    host.panel->slotUpdateFileName(fileName);
    QCOMPARE(host.Text("labelFileName"), shown);
    QCOMPARE(host.Label("labelFileName")->minimumWidth(), GlobalClass::GetStringWidth(shown));
    QCOMPARE(host.Label("labelFileName")->maximumWidth(), GlobalClass::GetStringWidth(shown));
    QCOMPARE(host.panel->minimumWidth(), 500);
    QCOMPARE(host.panel->maximumWidth(), 500);
}

void TestImageInfoUI::panelWidthFollowsTheName()
{
    Host host(true);
    QVERIFY(host.Show());
    const QString fileName = "short." + QString(100, 'w'); // only the base name is shortened
    host.panel->slotUpdateFileName(fileName);
    const int width = host.Label("labelFileNameText")->width() + GlobalClass::GetStringWidth2(fileName);
    QVERIFY(width > 500);
    QCOMPARE(host.panel->minimumWidth(), width);
    QCOMPARE(host.panel->maximumWidth(), width);
    host.panel->slotUpdateFileName("short.tif");
    QCOMPARE(host.panel->width(), 500);
}

void TestImageInfoUI::reset()
{
    Host host(true);
    host.panel->slotUpdateFileName("cells.tif");
    host.panel->slotUpdateRotateDegree(90);
    host.panel->slotUpdateScaleFactor(1);
    host.panel->slotUpdatePixelInfo(QPointF(5, 6), "77");
    host.panel->slotUpdateImageSize("640x480");
    host.panel->slotResetImageInfo();
    QCOMPARE(host.Text("labelFileName"), QString());
    QCOMPARE(host.Text("labelRotateValue"), QString());
    QCOMPARE(host.zoom->text(), QString());
    QCOMPARE(host.zoom->styleSheet(), restingStyle);
    QCOMPARE(host.Text("labelPos"), QString());
    QCOMPARE(host.Text("labelGrayValue"), QString("77"));
    QCOMPARE(host.Text("labelSizeValue"), QString("640x480"));
}

void TestImageInfoUI::passThrough_data()
{
    QTest::addColumn<bool>("onLeft");
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("over");
    // Offsets from the box's top left or (right and bottom) from that plus its size.
    QTest::newRow("top left corner") << true << QPoint(0, 0) << true;
    QTest::newRow("left of it") << true << QPoint(-1, 0) << false;
    QTest::newRow("above it") << true << QPoint(0, -1) << false;
    QTest::newRow("bottom right corner") << false << QPoint(0, 0) << true;
    QTest::newRow("right of it") << false << QPoint(1, 0) << false;
    QTest::newRow("below it") << false << QPoint(0, 1) << false;
}

void TestImageInfoUI::passThrough()
{
    QFETCH(bool, onLeft);
    QFETCH(QPoint, offset);
    QFETCH(bool, over);
    Host host(true);
    QVERIFY(host.Show());
    host.panel->slotUpdateScaleFactor(1);
    QCoreApplication::processEvents();
    const QRect box = host.zoom->geometry();
    const QPoint topLeft(box.x(), 600 - host.frame->height() + box.y());
    QPoint point = topLeft + offset;
    if (!onLeft)
        point += QPoint(box.width(), box.height());
    host.panel->setAttribute(Qt::WA_TransparentForMouseEvents, over); // the other one before
    host.panel->slotEnableScaleFactor(point);
    QCOMPARE(host.panel->testAttribute(Qt::WA_TransparentForMouseEvents), !over);
}

void TestImageInfoUI::mouseOnThePanelPassesThrough()
{
    Host host(true);
    QVERIFY(host.Show());
    host.panel->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    QTest::mouseMove(host.panel, QPoint(host.panel->width() - 2, 2));
    QTRY_VERIFY(host.panel->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestImageInfoUI::zoomBoxIsReachedByTheMouse()
{
    Host host(false);
    QVERIFY(host.Show());
    host.panel->slotUpdateScaleFactor(1);
    QCoreApplication::processEvents();
    const QPoint onBox = host.zoom->mapTo(&host.window, host.zoom->rect().center());
    QVERIFY(host.window.childAt(onBox) != host.zoom); // the view beneath would get it
    host.panel->slotEnableScaleFactor(onBox);
    QCOMPARE(host.window.childAt(onBox), host.zoom);
    host.panel->slotEnableScaleFactor(QPoint(400, 100));
    QVERIFY(host.window.childAt(onBox) != host.zoom);
}

GUARDED_TEST_MAIN(TestImageInfoUI)
#include "tst_imageinfoui.moc"
