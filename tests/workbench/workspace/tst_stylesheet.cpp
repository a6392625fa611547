// SPDX-License-Identifier: GPL-3.0-or-later
#include "applicationlook.h"
#include "guardedtest.h"
#include "restyle.h"
#include "stylesheet.h"

#include <QFile>
#include <QFrame>
#include <QPalette>
#include <QPushButton>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTabBar>
#include <QTabWidget>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

/// Stand-ins: rules of the sheet select on these class names.
class ViewToolBar : public QFrame
{
    Q_OBJECT
};

class SpectrumZoomUI : public QWidget
{
    Q_OBJECT
};

class StyleSheetTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void tokensReplaceTheirNames();
    void faultyFilesSayWhatIsWrong_data();
    void faultyFilesSayWhatIsWrong();
    void everyLookIsComplete_data();
    void everyLookIsComplete();
    void looksHaveTheSameTokens();
    void textIsReadable_data();
    void textIsReadable();
    void everyIconCanBeDrawn_data();
    void everyIconCanBeDrawn();
    void everyButtonHasAnIconOfItsOwn_data();
    void everyButtonHasAnIconOfItsOwn();
    void renamedButtonChangesItsIcon();
    void chosenLookIsWornAndKept();
    void sizesFollowTheScreen_data();
    void sizesFollowTheScreen();
    void disabledIconIsFaded();
    void panelTabTextsFitTheirTabs_data();
    void panelTabTextsFitTheirTabs();

private:
    QString Write(const QString &name, const QByteArray &content);

    QTemporaryDir m_dir;
};

namespace {

QImage IconImage(const QAbstractButton &button, QIcon::Mode mode = QIcon::Normal)
{
    return button.icon().pixmap(QSize(32, 32), mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

QStringList PushButtons(const QString &names)
{
    QStringList objectNames;
    for (const QString &name : names.split(' '))
        objectNames << "pushButton" + name;
    return objectNames;
}

/// Of WCAG 2.1, "relative luminance".
double Luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor &a, const QColor &b)
{
    const double light = qMax(Luminance(a), Luminance(b));
    const double dark = qMin(Luminance(a), Luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

int StrongestAlpha(const QImage &image)
{
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            strongest = qMax(strongest, qAlpha(image.pixel(x, y)));
    }
    return strongest;
}

} // namespace

void StyleSheetTest::initTestCase()
{
    QVERIFY(m_dir.isValid());
    qApp->setProperty("globalui.scale", 1.0); // whatever the screen says
    StyleSheet::Named("dark").Apply(*qApp);
}

void StyleSheetTest::cleanupTestCase() { qApp->setStyleSheet(QString()); }

QString StyleSheetTest::Write(const QString &name, const QByteArray &content)
{
    const QString fileName = m_dir.filePath(name);
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(fileName));
    return fileName;
}

void StyleSheetTest::tokensReplaceTheirNames()
{
    const QString tokens = Write("look.tokens", "# colours\n\nfield = #22262E\nglass = rgba(1, 2, 3, 200)\n");
    const QString sheet =
        Write("look.qss.in", "A { color: @field@; background: @glass@; } B { color: @field@; }");

    const StyleSheet look = StyleSheet::Load(sheet, tokens);

    QCOMPARE(look.ErrorText(), QString());
    QCOMPARE(look.Text(),
             QString("A { color: #22262E; background: rgba(1, 2, 3, 200); } B { color: #22262E; }"));
    QCOMPARE(look.Token("glass"), QString("rgba(1, 2, 3, 200)"));
    QCOMPARE(look.Token("nothing"), QString());
}

void StyleSheetTest::faultyFilesSayWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("tokens");
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QString>("errorPattern");

    QTest::newRow("unknown token") << QByteArray("field = #000000\n") << QByteArray("A { color: @text@; }")
                                   << "look\\.qss\\.in: .*\"text\"";
    QTest::newRow("line without a value")
        << QByteArray("field = #000000\n\ntext\n") << QByteArray("A {}") << "look\\.tokens:3: ";
}

void StyleSheetTest::faultyFilesSayWhatIsWrong()
{
    QFETCH(QByteArray, tokens);
    QFETCH(QByteArray, sheet);
    QFETCH(QString, errorPattern);

    const StyleSheet look = StyleSheet::Load(Write("look.qss.in", sheet), Write("look.tokens", tokens));

    QCOMPARE(look.Text(), QString());
    QVERIFY2(QRegularExpression(errorPattern).match(look.ErrorText()).hasMatch(),
             qPrintable(look.ErrorText()));

    const QString missing = m_dir.filePath("missing.tokens");
    QVERIFY(StyleSheet::Load(m_dir.filePath("look.qss.in"), missing).ErrorText().startsWith(missing));
}

void StyleSheetTest::everyLookIsComplete_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ApplicationLook::Names())
        QTest::newRow(qPrintable(name)) << name;
}

void StyleSheetTest::everyLookIsComplete()
{
    QFETCH(QString, name);
    const StyleSheet look = StyleSheet::Named(name);

    QCOMPARE(look.ErrorText(), QString());
    QVERIFY(!look.Text().isEmpty());
    QVERIFY(!look.Text().contains('@'));
    // The module paints its canvas in this grey itself.
    QCOMPARE(QColor(look.Token("canvas")), QColor(68, 73, 86));
    // The bottom panel writes its selected tab in black.
    QVERIFY(QColor(look.Token("accent")).lightness() > 128);
    QCOMPARE(look.Palette().color(QPalette::Window), QColor(look.Token("window")));
    QCOMPARE(look.Palette().color(QPalette::Disabled, QPalette::Text), QColor(look.Token("text-disabled")));
}

void StyleSheetTest::looksHaveTheSameTokens()
{
    QStringList names[2];
    for (int i = 0; i < 2; ++i) {
        QFile file(QString(":/style/%1.tokens").arg(ApplicationLook::Names().at(i)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.contains('=') && !line.startsWith('#'))
                names[i] << QString::fromUtf8(line).section('=', 0, 0).trimmed();
        }
    }
    QVERIFY(names[0].size() > 20);
    QCOMPARE(names[0], names[1]);
}

void StyleSheetTest::textIsReadable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    // 4.5 for text and 3 for large or disabled text are the bounds of WCAG 2.1, success criterion 1.4.3.
    for (const char *ground : {"field", "window", "panel", "raised", "hover", "accent-tint"})
        QTest::addRow("text on %s", ground) << "text" << ground << 4.5;
    for (const char *ground : {"glass-lit", "glass-sunk", "glass-field", "glass-accent-tint"})
        QTest::addRow("text on %s", ground) << "text-on-glass" << ground << 4.5;
    for (const char *ground : {"window", "panel"})
        QTest::addRow("muted text on %s", ground) << "text-muted" << ground << 4.5;
    QTest::newRow("text on the accent") << "text-on-accent" << "accent" << 4.5;
    QTest::newRow("accent beside the window") << "accent" << "window" << 2.5;
    QTest::newRow("recording mark") << "record" << "record-tint" << 2.5;
}

void StyleSheetTest::textIsReadable()
{
    QFETCH(QString, text);
    QFETCH(QString, ground);
    QFETCH(double, least);
    for (const QString &name : ApplicationLook::Names()) {
        const StyleSheet look = StyleSheet::Named(name);
        const double contrast = Contrast(QColor(look.Token(text)), QColor(look.Token(ground)));
        QVERIFY2(contrast >= least, qPrintable(QString("%1: %2").arg(name).arg(contrast)));
    }
}

void StyleSheetTest::everyIconCanBeDrawn_data()
{
    everyLookIsComplete_data();
}

void StyleSheetTest::everyIconCanBeDrawn()
{
    QFETCH(QString, name);
    const QString text = StyleSheet::Named(name).Text();
    static const QRegularExpression url("url\\((:/[^)]+)\\)");
    int count = 0;
    for (QRegularExpressionMatchIterator it = url.globalMatch(text); it.hasNext(); ++count) {
        const QString icon = it.next().captured(1);
        QVERIFY2(icon.startsWith(":/icons/" + name + '/') || icon.startsWith(":/icons/dark/"), qPrintable(icon));
        QVERIFY2(QSvgRenderer(icon).isValid(), qPrintable(icon));
    }
    QVERIFY(count > 30);
    QVERIFY(QSvgRenderer(QString(":/icons/workbench.svg")).isValid());
}

void StyleSheetTest::everyButtonHasAnIconOfItsOwn_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("tool bar") << "ViewToolBar"
                              << PushButtons("Show Hide ZoomIn ZoomOut Fit 1vs1 BlackBackground FullScreen "
                                             "HorizontalMirror VerticalMirror Rotate90 SaveAs Crop ImageInfo "
                                             "CloseCompare");
    QTest::newRow("spectrum zoom bar") << "SpectrumZoomUI"
                                       << PushButtons("RescaleAuto AutoRescaleClose 2DHZoomIn 2DHZoomOut "
                                                      "2DZoomIn 2DZoomOut 2DScaleReset");
    QTest::newRow("panel edges") << ""
                                 << PushButtons("Left Right Top Bottom") + QStringList("analysisPushButton");
    QTest::newRow("capture") << "" << PushButtons("Capture CaptureChecked Preview PreviewChecked");
    QTest::newRow("floating capture") << "" << PushButtons("CustomCapture CustomCaptureChecked");
    QTest::newRow("navigation") << ""
                                << PushButtons("Camera NewImageCopy ShowFileDirTreeView Return ModifyDPI "
                                               "ConvertCSV");
}

void StyleSheetTest::everyButtonHasAnIconOfItsOwn()
{
    QFETCH(QString, place);
    QFETCH(QStringList, names);
    ViewToolBar toolBar;
    SpectrumZoomUI zoomBar;
    QWidget anywhere;
    QWidget *parent = place == "ViewToolBar" ? &toolBar : place == "SpectrumZoomUI" ? &zoomBar : &anywhere;

    QVector<QImage> seen;
    for (const QString &name : names) {
        QPushButton button(parent);
        button.setObjectName(name);
        button.ensurePolished();
        QVERIFY2(!button.icon().isNull(), qPrintable(name));
        const QImage image = IconImage(button);
        QVERIFY2(StrongestAlpha(image) > 200, qPrintable(name));
        QVERIFY2(!seen.contains(image), qPrintable(name));
        seen << image;
    }
}

void StyleSheetTest::renamedButtonChangesItsIcon()
{
    QPushButton button;
    button.setObjectName("pushButtonPreview");
    button.ensurePolished();
    const QImage idle = IconImage(button);

    RenameAndRestyle(&button, "pushButtonPreviewChecked");
    QVERIFY(IconImage(button) != idle);

    RenameAndRestyle(&button, "pushButtonPreview");
    QCOMPARE(IconImage(button), idle);
}

void StyleSheetTest::chosenLookIsWornAndKept()
{
    QSettings settings(m_dir.filePath("look.ini"), QSettings::IniFormat);
    ApplicationLook look(&settings);
    QCOMPARE(look.Name(), QString("dark"));
    look.Apply();
    QPushButton button;
    button.setObjectName("pushButtonPreview");
    button.ensurePolished();
    const QImage darkIcon = IconImage(button);
    const QColor darkWindow = qApp->palette().color(QPalette::Window);
    QSignalSpy changed(&look, &ApplicationLook::signalChanged);

    look.Choose("light");
    QCOMPARE(changed.count(), 1);
    QVERIFY(qApp->palette().color(QPalette::Window).lightness() > darkWindow.lightness() + 100);
    QVERIFY(IconImage(button) != darkIcon);
    QCOMPARE(ApplicationLook(&settings).Name(), QString("light"));

    look.Choose("no such look");
    look.Choose("light");
    QCOMPARE(changed.count(), 1);
    settings.setValue("window/look", "from another version");
    QCOMPARE(ApplicationLook(&settings).Name(), QString("dark"));

    look.Choose("dark");
    QCOMPARE(IconImage(button), darkIcon);
}

void StyleSheetTest::sizesFollowTheScreen_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("tabHeight");
    QTest::newRow("one") << 1.0 << 25;
    QTest::newRow("one and a half") << 1.5 << 38;
    QTest::newRow("two") << 2.0 << 50;
}

void StyleSheetTest::sizesFollowTheScreen()
{
    QFETCH(double, scale);
    QFETCH(int, tabHeight);
    qApp->setProperty("globalui.scale", scale);
    StyleSheet::Named("dark").Apply(*qApp);
    {
        QTabWidget tabs;
        tabs.addTab(new QWidget, "Camera");
        tabs.ensurePolished();
        tabs.tabBar()->ensurePolished();
        QCOMPARE(tabs.tabBar()->tabRect(0).height(), tabHeight);
    }
    qApp->setProperty("globalui.scale", 1.0);
    StyleSheet::Named("dark").Apply(*qApp);
}

void StyleSheetTest::disabledIconIsFaded()
{
    QPushButton button;
    button.setObjectName("pushButtonCapture");
    button.ensurePolished();

    const int normal = StrongestAlpha(IconImage(button));
    const int disabled = StrongestAlpha(IconImage(button, QIcon::Disabled));
    QCOMPARE(normal, 255);
    QVERIFY2(disabled > 60 && disabled < 120, qPrintable(QString::number(disabled)));
}

void StyleSheetTest::panelTabTextsFitTheirTabs_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("width");

    const QStringList right{ "Spectrum", "Analysis", "Tool Properties", "Report" };
    const QStringList camera{ "Camera", "Adjustment", "Hardware", "Acquisition" };
    QTest::newRow("right panel, four tabs") << right << 93;
    QTest::newRow("right panel, three tabs") << QStringList(right.mid(1)) << 124;
    QTest::newRow("camera panel, four tabs") << camera << 93;
}

void StyleSheetTest::panelTabTextsFitTheirTabs()
{
    QFETCH(QStringList, texts);
    QFETCH(int, width);
    QTabWidget tabs;
    for (const QString &text : texts)
        tabs.addTab(new QWidget, text);
    tabs.setStyleSheet(
        QString("QTabBar::tab{ height: 25; width: %1; border-right: 2px solid white;}").arg(width));
    tabs.ensurePolished();
    tabs.tabBar()->ensurePolished();

    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(tabs.tabBar()->tabRect(i).width(), width + 2);
        QVERIFY2(tabs.tabBar()->fontMetrics().horizontalAdvance(texts[i]) <= width, qPrintable(texts[i]));
    }
}

GUARDED_TEST_MAIN(StyleSheetTest)
#include "tst_stylesheet.moc"
