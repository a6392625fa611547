// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "picturedesk.h"
#include "scenariotest.h"
#include "savedialog.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

#include <memory>

namespace {

/// A picture of one grey.
void WriteGrey(const QString &path, const QSize &size, int grey)
{
    Picture picture(size.width(), size.height(), 1, SampleType::U8);
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(grey));
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

} // namespace

/// A person compares pictures, comes from the spectrum page and goes back to it, and saves.
class ComparingScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        WriteGrey(Path("one.tif"), QSize(64, 48), 50);
        WriteGrey(Path("two.tif"), QSize(80, 60), 200);
        for (const char *name : { "one.tif", "two.tif" })
            QVERIFY(Open(name));
    }

    void comparisonTakesThePlaceOfTheSpectrumPage_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<int>("compareView");
        QTest::newRow("live") << int(CameraView) << int(CameraCompareView);
        QTest::newRow("two files") << int(ImageView) << int(ImageCompareView);
    }

    void comparisonTakesThePlaceOfTheSpectrumPage()
    {
        QFETCH(int, view);
        QFETCH(int, compareView);
        QGraphicsView *picture = GoTo(view);
        QTRY_VERIFY(picture->isVisible());
        const double fitted = picture->transform().m11();
        m_workbench->Action("Spectrum Page")->trigger();
        QTRY_VERIFY(IsSpectrumSeen());
        QVERIFY(!picture->isVisible());

        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), compareView);
        QVERIFY(!IsSpectrumSeen());
        QCOMPARE(SeenHalves(), 2);
        QVERIFY(picture->isVisible()); // the left half

        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), view);
        QTRY_VERIFY(IsSpectrumSeen());
        QCOMPARE(SeenHalves(), 0);

        m_workbench->Action("Spectrum Page")->trigger();
        QTRY_VERIFY(picture->isVisible());
        QVERIFY(!IsSpectrumSeen());
        QTRY_COMPARE(picture->transform().m11(), fitted);
        if (view == CameraView)
            QVERIFY(m_workbench->WaitForNextPicture());
    }

    void spectrumPageEndsTheComparison_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<QString>("command");
        QTest::newRow("live") << int(CameraView) << "Spectrum Page";
        QTest::newRow("two files") << int(ImageView) << "Spectrum Page";
        QTest::newRow("live, a curve") << int(CameraView) << "Curve";
        QTest::newRow("two files, the sensor") << int(ImageView) << "Sensor Image";
    }

    void spectrumPageEndsTheComparison()
    {
        QFETCH(int, view);
        QFETCH(QString, command);
        QGraphicsView *picture = GoTo(view);
        m_workbench->Action("Compare")->trigger();
        QCOMPARE(SeenHalves(), 2);
        m_workbench->Action(command)->trigger();
        QCOMPARE(CurrentView(), view);
        QCOMPARE(SeenHalves(), 0);
        QVERIFY(!m_workbench->Action("Compare")->isChecked());
        QTRY_VERIFY(IsSpectrumPageShown());
        m_workbench->Action("Picture")->trigger();
        QTRY_VERIFY(picture->isVisible());
        QVERIFY(!IsSpectrumPageShown());
    }

    /// The key saves the left picture, the menu the half that is worked on.
    void savingBearsItsKeyWhereBothAreTheSame()
    {
        QVERIFY(m_workbench->Action("Save Image As…\tF8"));
        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), int(ImageCompareView));
        QVERIFY(!m_workbench->Action("Save Image As…\tF8"));
        QVERIFY(m_workbench->Action("Save Image As…")->isEnabled());
        m_workbench->Action("Compare")->trigger();
        QVERIFY(m_workbench->Action("Save Image As…\tF8"));
    }

    /// Another picture comes while the user chooses the name.
    void whatWasShownWhenHeAskedIsSaved()
    {
        QTest::keyClick(&m_workbench->window, Qt::Key_F8);
        auto *dialog = m_workbench->window.findChild<SaveDialog *>();
        QVERIFY(dialog && QTest::qWaitForWindowExposed(dialog));
        QVERIFY(Open("one.tif"));
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(Path("saved.tif"));
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_COMPARE(m_workbench->StatusText(), QString("\u201csaved.tif\u201d was saved."));
        QString error;
        const auto saved = OpenPicture(Path("saved.tif"), error);
        QVERIFY2(saved, qPrintable(error));
        QCOMPARE(saved->Info().size, QSize(80, 60));
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    PictureDesk *Desk() const { return m_workbench->services.Desk(); }
    int CurrentView() const { return m_workbench->services.Config()->GetCurrentView(); }

    bool Open(const QString &name) const
    {
        Desk()->Open({ Path(name) }, Desk()->MainPicture());
        return QTest::qWaitFor([&] { return Desk()->MainPicture()->GetFileName() == name && CurrentView() == ImageView; },
                               10000);
    }

    /// To the live page or that of the opened picture; the view of its picture.
    QGraphicsView *GoTo(int page) const
    {
        if (page == CameraView) {
            m_workbench->services.Config()->SetCameraView();
            return m_workbench->View();
        }
        const auto *centre = qobject_cast<QStackedWidget *>(m_workbench->window.centralWidget());
        for (QGraphicsView *view : centre->widget(ImageControlPage)->findChildren<QGraphicsView *>()) {
            if (view->inherits("DrawViewBase"))
                return view;
        }
        return nullptr;
    }

    /// Any of the spectrum pages takes the centre.
    bool IsSpectrumPageShown() const
    {
        for (const QWidget *widget : m_workbench->window.findChildren<QWidget *>()) {
            if (widget->inherits("SpectrumStackedWidgetBase") && widget->isVisible())
                return true;
        }
        return false;
    }

    bool IsSpectrumSeen() const
    {
        for (const QGraphicsView *view : m_workbench->window.findChildren<QGraphicsView *>()) {
            if (view->inherits("SpectrumDrawViewBase") && view->isVisible())
                return true;
        }
        return false;
    }

    /// Halves of the comparison with a picture that is seen.
    int SeenHalves() const
    {
        int halves = 0;
        for (const QWidget *half : m_workbench->window.findChildren<QWidget *>()) {
            if (!half->inherits("CompareChildFrame"))
                continue;
            for (const QGraphicsView *view : half->findChildren<QGraphicsView *>())
                halves += view->inherits("DrawViewBase") && view->isVisible() ? 1 : 0;
        }
        return halves;
    }

};

GUARDED_TEST_MAIN(ComparingScenario)
#include "tst_comparing.moc"
