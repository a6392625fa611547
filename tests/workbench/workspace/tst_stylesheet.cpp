// SPDX-License-Identifier: GPL-3.0-or-later
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
#include <QTemporaryDir>

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
    void darkLookIsComplete();
    void everyIconCanBeDrawn();
    void everyButtonHasAnIconOfItsOwn_data();
    void everyButtonHasAnIconOfItsOwn();
    void renamedButtonChangesItsIcon();
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
    StyleSheet::Dark().Apply(*qApp);
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

void StyleSheetTest::darkLookIsComplete()
{
    const StyleSheet look = StyleSheet::Dark();

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

void StyleSheetTest::everyIconCanBeDrawn()
{
    const QString text = StyleSheet::Dark().Text();
    static const QRegularExpression url("url\\((:/[^)]+)\\)");
    int count = 0;
    for (QRegularExpressionMatchIterator it = url.globalMatch(text); it.hasNext(); ++count) {
        const QString icon = it.next().captured(1);
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
