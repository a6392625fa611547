// SPDX-License-Identifier: GPL-3.0-or-later
// The program in a language that makes every text longer: nothing is cut off.
#include "cutofftexts.h"
#include "scenariotest.h"
#include "scenecatalogue.h"
#include "stylesheet.h"
#include "uimanagerbase.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QSet>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QTranslator>

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

} // namespace

class LongTexts : public ScenarioTest
{
    Q_OBJECT

private slots:
    void cleanup() override
    {
        ScenarioTest::cleanup();
        QCoreApplication::removeTranslator(m_language.get());
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
            QCOMPARE(CutOffTexts(tabs), QStringList());
        }
    }

    void windowAndMenusHaveRoom()
    {
        QCOMPARE(CutOffTexts(m_workbench->window.statusBar()), QStringList());
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
                const bool isData = action->data().isValid(); // names of cameras, formats and languages
                if (!action->isSeparator() && !action->text().isEmpty() && !isData && !action->text().contains('['))
                    untranslated << action->text();
            }
        }
        QCOMPARE(untranslated, QStringList());
    }

    void everySceneHasATitle()
    {
        const QStringList names = SceneCatalogue::Names();
        QSet<QString> titled;
        for (QMenu *menu : m_workbench->window.findChildren<QMenu *>()) {
            for (QAction *action : menu->actions()) {
                if (names.contains(action->data().toString()) && action->text().contains('['))
                    titled << action->data().toString();
            }
        }
        QCOMPARE(titled, QSet<QString>(names.begin(), names.end()));
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
                cutOff = CutOffTexts(dialog);
                dialog->close();
            }
        };
        QTimer::singleShot(500, this, look); // a dialog may be modal
        found->trigger();
        QTRY_VERIFY(isSeen);
        QCOMPARE(cutOff, QStringList());
    }

protected:
    void Prepare() override
    {
        m_language = std::make_unique<PseudoLanguage>();
        QCoreApplication::installTranslator(m_language.get());
    }

private:
    std::unique_ptr<PseudoLanguage> m_language;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    LongTexts test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_longtexts.moc"
