// SPDX-License-Identifier: GPL-3.0-or-later
// Every panel that is loaded, whichever it is: what can be used in it has a name for those who do not see it, the Tab key
// goes down it, and the window comes back with the tabs and panels that it had. What stands around the panels has names,
// too.
#include "openedpicture.h"
#include "panelscenario.h"
#include "picturedesk.h"
#include "stylesheet.h"
#include "uimanagerbase.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr int WaitMs = 10000;

/// Something the user works with, and not a part of such a thing.
bool IsUsable(const QWidget *widget)
{
    if (widget->objectName().startsWith("qt_") || qobject_cast<const QScrollBar *>(widget)
        || qobject_cast<const QHeaderView *>(widget))
        return false;
    if (qobject_cast<const QAbstractSpinBox *>(widget->parentWidget())
        || qobject_cast<const QComboBox *>(widget->parentWidget())
        || widget->window()->windowType() == Qt::Popup
        || qobject_cast<const QLineEdit *>(widget->parentWidget())
        || qobject_cast<const QAbstractItemView *>(widget->parentWidget()))
        return false;
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget)
        || qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QAbstractSlider *>(widget);
}

bool IsBuddy(const QWidget *panel, const QWidget *widget)
{
    for (const QLabel *label : panel->findChildren<QLabel *>()) {
        for (const QWidget *buddy = label->buddy(); buddy; buddy = buddy->focusProxy()) {
            if (buddy == widget)
                return true;
        }
    }
    return false;
}

bool HasName(const QWidget *panel, const QWidget *widget)
{
    auto *button = qobject_cast<const QAbstractButton *>(widget);
    return !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()) || IsBuddy(panel, widget);
}

QString Caption(const QWidget *widget)
{
    return QString("%1 (%2)").arg(widget->objectName(), widget->metaObject()->className());
}

/// In the order of the Tab key.
QVector<QWidget *> TabStops(QWidget *panel)
{
    QVector<QWidget *> stops;
    for (QWidget *widget = panel->nextInFocusChain(); widget != panel; widget = widget->nextInFocusChain()) {
        const bool isStop = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled();
        if (isStop && widget->isVisible() && panel->isAncestorOf(widget) && IsUsable(widget))
            stops << widget;
    }
    return stops;
}

/// As one reads: downwards, and in a row to the right.
bool IsAfter(const QRect &next, const QRect &before)
{
    const bool isSameRow = next.top() < before.bottom() && before.top() < next.bottom();
    return isSameRow ? next.left() > before.left() : next.top() >= before.bottom();
}

} // namespace

class PanelAccess : public PanelScenario
{
    Q_OBJECT

private slots:
    void everyPanelHasNamesAndGoesDownwards()
    {
        QStringList visited;
        VisitTabs(Tabs("CameraTabWidget"), &visited);
        VisitTabs(RightTabs(), &visited);
        VisitTabs(BottomTabs(), &visited);
        OpenPicture();
        VisitTabs(Tabs("ImageTabWidget"), &visited);
        VisitTabs(BottomTabs(), &visited);
        int loaded = 0;
        for (const UIPluginReport &report : UIManagerBase::PluginReports()) {
            loaded += report.loaded ? 1 : 0;
            QCOMPARE(report.reason, QString()); // each is where it is seen
        }
        QCOMPARE(visited.size(), loaded);
    }

    /// Whichever was visited before, and whatever was built anew since.
    void tabKeyGoesFromTheTabsIntoTheirPanel()
    {
        EnterPanels(Tabs("CameraTabWidget"));
        QCOMPARE(m_entered.value("CameraPanel"), QString("choiceDevice"));
        EnterPanels(RightTabs());
        EnterPanels(BottomTabs());
        EnterPanels(Tabs("CameraTabWidget"));
        OpenPicture();
        EnterPanels(Tabs("ImageTabWidget"));
        Config()->SetCameraView();
        EnterPanels(Tabs("CameraTabWidget"));
        QCOMPARE(m_entered.value("CameraPanel"), QString("choiceDevice"));
    }

    /// Shown or not: what waits for its page is built with the window.
    void allThatCanBeUsedHasAName()
    {
        OpenPicture();
        const QWidget *window = &m_workbench->window;
        for (const char *name :
             { "pushButtonReturn", "pushButton2DHZoomIn", "pushButtonRotate90", "listPictures" })
            QVERIFY2(window->findChild<QWidget *>(name), name);
        QStringList nameless;
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            const bool isTabBar = qobject_cast<const QTabBar *>(widget);
            if ((IsUsable(widget) || isTabBar) && !HasName(window, widget))
                nameless << Caption(widget);
        }
        QCOMPARE(nameless.join(", "), QString());
    }

    void tabsAndPanelsComeBack()
    {
        Tabs("CameraTabWidget")->setCurrentIndex(3);
        RightTabs()->setCurrentIndex(1);
        BottomTabs()->setCurrentIndex(2);
        Config()->SetLeftUIChecked(true);
        Config()->SetBottomUIChecked(false);
        Config()->UpdateCameraControlUI();
        OpenPicture();
        Tabs("ImageTabWidget")->setCurrentIndex(2);
        Config()->SetCameraView();
        Stop();
        Start();
        QCOMPARE(Tabs("CameraTabWidget")->currentIndex(), 3);
        QCOMPARE(Tabs("ImageTabWidget")->currentIndex(), 2);
        QCOMPARE(RightTabs()->tabText(RightTabs()->currentIndex()), QString("Analysis"));
        QCOMPARE(BottomTabs()->tabText(BottomTabs()->currentIndex()), QString("Class Counting"));
        QVERIFY(Dock("DockLeft")->isVisible());
        QVERIFY(Dock("DockRight")->isVisible());
        QVERIFY(!Dock("DockBottom")->isVisible());
    }

protected:
    void Prepare() override { OpenAllPanels(Spectrometer); }

private:
    void VisitTabs(QTabWidget *tabs, QStringList *visited)
    {
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
            QWidget *panel = area ? area->widget() : tabs->widget(i);
            const bool isPlugin = panel->objectName().endsWith("Panel");
            if (!isPlugin || visited->contains(panel->objectName()))
                continue;
            *visited << panel->objectName();
            QTRY_VERIFY2(panel->isVisible(), qPrintable(panel->objectName()));
            CheckNames(panel);
            CheckTabOrder(panel);
        }
    }

    static void CheckNames(const QWidget *panel)
    {
        for (const QWidget *widget : panel->findChildren<QWidget *>()) {
            if (IsUsable(widget) && widget->isVisible())
                QVERIFY2(HasName(panel, widget), qPrintable(panel->objectName() + ": " + Caption(widget)));
        }
    }

    static void CheckTabOrder(QWidget *panel)
    {
        QTRY_VERIFY(QTest::qWaitForWindowActive(panel->window()));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QVector<QWidget *> stops = TabStops(panel);
        for (int i = 1; i < stops.size(); ++i) {
            const auto place = [&](const QWidget *widget) {
                return QRect(widget->mapTo(panel, QPoint(0, 0)), widget->size());
            };
            QVERIFY2(IsAfter(place(stops[i]), place(stops[i - 1])),
                     qPrintable(QString("%1: %2 comes after %3")
                                    .arg(panel->objectName(), Caption(stops[i]), Caption(stops[i - 1]))));
        }
    }

    /// With the Tab key, from each of the tabs.
    void EnterPanels(QTabWidget *tabs)
    {
        QVERIFY(QTest::qWaitForWindowActive(&m_workbench->window));
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
            QWidget *panel = area ? area->widget() : tabs->widget(i);
            QTRY_VERIFY2(panel->isVisible(), qPrintable(panel->objectName()));
            const QVector<QWidget *> stops = TabStops(panel);
            if (stops.isEmpty())
                continue;
            tabs->tabBar()->setFocus();
            QTest::keyClick(tabs->tabBar(), Qt::Key_Tab);
            QVERIFY2(QApplication::focusWidget() == stops.first(),
                     qPrintable(QString("%1: %2 instead of %3")
                                    .arg(panel->objectName(), Caption(QApplication::focusWidget()),
                                         Caption(stops.first()))));
            m_entered[panel->objectName()] = stops.first()->objectName();
        }
    }

    void OpenPicture()
    {
        const QString path = m_folder->filePath("picture.png");
        QImage picture(64, 48, QImage::Format_Grayscale8);
        picture.fill(99);
        QVERIFY(picture.save(path));
        OpenedPicture *opened = m_workbench->services.Desk()->MainPicture();
        m_workbench->services.Desk()->Open({path}, opened);
        QTRY_VERIFY_WITH_TIMEOUT(!opened->IsNonImage(), WaitMs);
        QTRY_VERIFY(Tabs("ImageTabWidget")->isVisible());
    }

    WorkspaceConfig *Config() const { return m_workbench->services.Config(); }

    QHash<QString, QString> m_entered; ///< the first stop in each panel
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    PanelAccess test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_panelaccess.moc"
