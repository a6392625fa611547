// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "liveorientation.h"
#include "mnemonics.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "scenariotest.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGraphicsView>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QStackedWidget>

#include <memory>

namespace {

const char *const ToolBarKeys[] = { "Ctrl++", "Ctrl+=", "Ctrl+-", "Ctrl+O", "Ctrl+F",
                                    "Ctrl+B", "Ctrl+S", "Ctrl+H", "Ctrl+V", "Ctrl+R" };

} // namespace

/// Every key does its one thing in the whole window, where menus and tool bars could dispute it.
class KeysScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        ScenarioTest::init();
        QString error;
        const QString path = m_folder->filePath("grey.tif");
        QVERIFY2(SavePicture(path, Picture(1200, 900, 1, SampleType::U8), SaveOptions(), error), qPrintable(error));
        PictureDesk *desk = m_workbench->services.Desk();
        desk->Open({ path }, desk->MainPicture());
        QTRY_COMPARE(m_workbench->services.Config()->GetCurrentView(), int(ImageView));
    }

    void zoomKeysZoomOnce_data() { PageRows(); }

    void zoomKeysZoomOnce()
    {
        QGraphicsView *view = GoToPage();
        QVERIFY(view);
        const auto scale = [view] { return view->transform().m11(); };
        const double fitted = scale();
        Press("Ctrl+O");
        QTRY_COMPARE(scale(), 1.0);
        Press("Ctrl++");
        QTRY_COMPARE(scale(), 2.0);
        Press("Ctrl+=");
        QTRY_COMPARE(scale(), 4.0);
        Press("Ctrl+-");
        QTRY_COMPARE(scale(), 2.0);
        Press("Ctrl+F");
        QTRY_COMPARE(scale(), fitted);
    }

    void turningKeysTurnOnce_data() { PageRows(); }

    void turningKeysTurnOnce()
    {
        QVERIFY(GoToPage());
        QCOMPARE(Shown(), Orientation());
        Press("Ctrl+H");
        QTRY_COMPARE(Shown(), Orientation().After(FlipHorizontal));
        Press("Ctrl+V");
        QTRY_COMPARE(Shown(), Orientation().After(FlipHorizontal).After(FlipVertical));
        Press("Ctrl+R");
        QTRY_COMPARE(Shown(), Orientation().After(FlipHorizontal).After(FlipVertical).After(RotateBy90));
    }

    void windowKeysSwitchOnce_data() { PageRows(); }

    void windowKeysSwitchOnce()
    {
        QVERIFY(GoToPage());
        for (const QString &key : { QString("Ctrl+B"), QString("Ctrl+S") }) {
            const QAction *state = m_workbench->Action(key == "Ctrl+B" ? "Black Background" : "Full Screen");
            const bool before = state->isChecked();
            Press(key);
            QTRY_COMPARE(state->isChecked(), !before);
            QTRY_VERIFY(m_workbench->window.isActiveWindow());
            Press(key);
            QTRY_COMPARE(state->isChecked(), before);
            QTRY_VERIFY(m_workbench->window.isActiveWindow());
        }
    }

    void noMenuTakesAKeyOfTheToolBar()
    {
        QStringList keys;
        for (const char *key : ToolBarKeys)
            keys << key;
        for (const QAction *action : m_workbench->window.actions()) {
            for (const QKeySequence &key : action->shortcuts())
                keys << key.toString();
        }
        QVERIFY(keys.size() > 30);
        keys.sort();
        for (int i = 1; i < keys.size(); ++i)
            QVERIFY2(keys.at(i) != keys.at(i - 1), qPrintable(keys.at(i)));
    }

    void mnemonicsAreNotTakenTwice()
    {
        const QStringList taken = MnemonicsTakenTwice(m_workbench->window.menuBar()->actions(), "menu bar");
        QVERIFY2(taken.isEmpty(), qPrintable(taken.join("; ")));
    }

    void everyKeyIsInTheManual()
    {
        QFile page(MANUAL_FOLDER "/shortcuts.md");
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString manual = QString::fromUtf8(page.readAll());
        QStringList keys;
        for (const QAction *action : m_workbench->window.findChildren<QAction *>()) {
            for (const QKeySequence &key : action->shortcuts())
                keys << key.toString();
        }
        for (const QShortcut *shortcut : m_workbench->window.findChildren<QShortcut *>())
            keys << shortcut->key().toString();
        for (const QAbstractButton *button : m_workbench->window.findChildren<QAbstractButton *>())
            keys << button->shortcut().toString();
        QVERIFY(keys.size() > 40);
        for (const QString &key : qAsConst(keys)) {
            const QString name = QString(key).replace("Return", "Enter");
            const QRegularExpression inTable("^\\|.*" + QRegularExpression::escape(name) + "(?![\\w+]).*\\|.*\\|$",
                                             QRegularExpression::MultilineOption);
            // The mnemonics of buttons, and keys that every program has.
            if (key.isEmpty() || key.startsWith("Alt+") || key == "Ctrl+C")
                continue;
            QVERIFY2(inTable.match(manual).hasMatch(), qPrintable(key));
        }
    }

    /// A click on the tool bar while the crop frame is over the picture.
    void escStillLeavesTheCropFrame()
    {
        m_isLive = false;
        const QGraphicsView *view = PageView();
        const QWidget *page = PageOf(ImageControlPage);
        QTest::mouseClick(page->findChild<QAbstractButton *>("pushButtonCrop"), Qt::LeftButton);
        QWidget *frame = nullptr;
        for (QWidget *child : view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->inherits("CropFrame"))
                frame = child;
        }
        QVERIFY(frame && frame->isVisible());
        QTest::mouseClick(page->findChild<QAbstractButton *>("pushButtonZoomIn"), Qt::LeftButton);
        QVERIFY(frame->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!frame->isVisible());
    }

private:
    static void PageRows()
    {
        QTest::addColumn<bool>("isLive");
        QTest::newRow("live") << true;
        QTest::newRow("opened") << false;
    }

    /// The page of the test's row; its picture's view, fitted.
    QGraphicsView *GoToPage()
    {
        QFETCH(bool, isLive);
        m_isLive = isLive;
        if (m_isLive)
            m_workbench->services.Config()->SetCameraView();
        if (m_isLive && !m_workbench->WaitForNextPicture())
            return nullptr;
        QGraphicsView *view = PageView();
        return view && QTest::qWaitFor([view] { return view->isVisible(); }) ? view : nullptr;
    }

    QWidget *PageOf(int page) const
    {
        return qobject_cast<QStackedWidget *>(m_workbench->window.centralWidget())->widget(page);
    }

    QGraphicsView *PageView() const
    {
        for (QGraphicsView *view : PageOf(m_isLive ? CameraControlPage : ImageControlPage)->findChildren<QGraphicsView *>()) {
            if (view->inherits("DrawViewBase"))
                return view;
        }
        return nullptr;
    }

    /// How the picture of the page lies.
    Orientation Shown() const
    {
        return m_isLive ? m_workbench->services.LivePosition()->Get()
                        : m_workbench->services.Desk()->MainPicture()->Document()->Edit().GetOrientation();
    }

    /// The button of a key goes down and is clicked a little later.
    void Press(const QString &key) const
    {
        const int code = QKeySequence(key)[0];
        QTest::keyClick(&m_workbench->window, Qt::Key(code & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask)));
    }

    bool m_isLive = false;
};

GUARDED_TEST_MAIN(KeysScenario)
#include "tst_keys.moc"
