// SPDX-License-Identifier: GPL-3.0-or-later
// The program in a language that makes every text longer: nothing is cut off.
#include "camerasession.h"
#include "guardedtest.h"
#include "runningworkbench.h"
#include "stylesheet.h"
#include "uimanagerbase.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTimer>
#include <QTranslator>

#include <memory>

namespace {

/// Four tenths longer, which is what German needs of English, and marked at both ends.
class PseudoLanguage : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        if (text.trimmed().isEmpty())
            return text;
        return '[' + text + QString(text.size() * 4 / 10, QChar(0x0101)) + ']';
    }
    bool isEmpty() const override { return false; }
};

/// What the text of a widget needs and has, in pixels.
struct Room
{
    int needed = 0;
    int there = 0;
};

int TextWidth(const QWidget *widget, const QString &text)
{
    int width = 0;
    for (const QString &line : QString(text).remove('&').split('\n'))
        width = qMax(width, widget->fontMetrics().horizontalAdvance(line));
    return width;
}

Room RoomOf(const QWidget *widget)
{
    if (auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->wordWrap() || Qt::mightBeRichText(label->text()))
            return {};
        return {TextWidth(label, label->text()), label->contentsRect().width()};
    }
    if (auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        if (button->text().isEmpty())
            return {};
        return {TextWidth(button, button->text()), button->contentsRect().width()};
    }
    if (auto *box = qobject_cast<const QGroupBox *>(widget))
        return {TextWidth(box, box->title()), box->width()};
    return {};
}

/// Names of the widgets in `window` whose text does not fit.
QStringList CutOff(const QWidget *window)
{
    QStringList names;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const Room room = RoomOf(widget);
        if (widget->isVisible() && room.needed > room.there)
            names << QString("%1 of %2: needs %3, has %4")
                         .arg(widget->objectName(), widget->parentWidget()->metaObject()->className())
                         .arg(room.needed)
                         .arg(room.there);
    }
    return names;
}

} // namespace

class LongTexts : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_language = std::make_unique<PseudoLanguage>();
        QCoreApplication::installTranslator(m_language.get());
        m_folder = std::make_unique<QTemporaryDir>();
        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
    }

    void cleanup() override
    {
        m_workbench.reset();
        QVERIFY(CameraSession::WaitForTeardown(5000));
        m_folder.reset();
        QCoreApplication::removeTranslator(m_language.get());
        EndGuard();
    }

    void panelsFitTheirColumn()
    {
        WorkspaceConfig *config = m_workbench->services.Config();
        for (const CameraPanel panel :
             {CameraPanel::Camera, CameraPanel::Adjustment, CameraPanel::Hardware, CameraPanel::Acquisition}) {
            config->ShowCameraPanel(panel);
            auto *tabs = m_workbench->window.findChild<QTabWidget *>("CameraTabWidget");
            QTRY_COMPARE(tabs->currentIndex(), int(panel));
            auto *page = qobject_cast<QScrollArea *>(tabs->currentWidget());
            QVERIFY(page);
            QTRY_COMPARE(page->widget()->width(), page->viewport()->width());
            QCOMPARE(CutOff(tabs), QStringList());
        }
    }

    void windowAndMenusHaveRoom()
    {
        QCOMPARE(CutOff(m_workbench->window.statusBar()), QStringList());
        int width = 0;
        for (QAction *action : m_workbench->window.menuBar()->actions()) {
            QVERIFY2(action->text().contains('['), qPrintable(action->text()));
            width += m_workbench->window.menuBar()->actionGeometry(action).width();
        }
        QVERIFY(width < m_workbench->window.width());
    }

    /// A text that no translator sees stays English for everybody.
    void everyMenuTextIsTranslated()
    {
        QStringList untranslated;
        for (QMenu *menu : m_workbench->window.findChildren<QMenu *>()) {
            for (QAction *action : menu->actions()) {
                const bool isData = action->data().isValid(); // names of cameras, formats, scenes and languages
                if (!action->isSeparator() && !action->text().isEmpty() && !isData && !action->text().contains('['))
                    untranslated << action->text();
            }
        }
        QCOMPARE(untranslated, QStringList());
    }

    void everyPanelsTitleIsTranslated()
    {
        for (const UIPluginReport &report : UIManagerBase::PluginReports())
            QVERIFY2(report.title.startsWith('['), qPrintable(report.title));
    }

    void dialogsHaveRoom_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("levels") << "Levels…";
        QTest::newRow("plug-ins") << "Plug-ins…";
    }

    void dialogsHaveRoom()
    {
        QFETCH(QString, action);
        QAction *found = nullptr;
        for (QMenu *menu : m_workbench->window.findChildren<QMenu *>()) {
            for (QAction *candidate : menu->actions()) {
                if (QString(candidate->text()).remove('&').startsWith('[' + action))
                    found = candidate;
            }
        }
        QVERIFY(found);
        QStringList cutOff;
        bool isSeen = false;
        const auto look = [&] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                auto *dialog = qobject_cast<QDialog *>(widget);
                if (!dialog || !dialog->isVisible())
                    continue;
                isSeen = true;
                cutOff = CutOff(dialog);
                dialog->close();
            }
        };
        QTimer::singleShot(500, this, look); // a dialog may be modal
        found->trigger();
        QTRY_VERIFY(isSeen);
        QCOMPARE(cutOff, QStringList());
    }

private:
    std::unique_ptr<PseudoLanguage> m_language;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    LongTexts test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_longtexts.moc"
