// SPDX-License-Identifier: GPL-3.0-or-later
#include "shellfixture.h"

#include "camerastackedwidget.h"
#include "compareframe.h"
#include "globalui.h"
#include "imagestackedwidget.h"
#include "viewcodes.h"

#include <QApplication>
#include <QDockWidget>
#include <QMetaMethod>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

namespace {

/// How many connections a signal has, of any object.
struct ReceiverCount : QObject
{
    static int Of(const QObject *sender, const char *signal)
    {
        return (sender->*(&ReceiverCount::receivers))(signal);
    }
};

} // namespace

NamedImageManager::NamedImageManager(const QString &name)
    : m_name(name)
{
}

void NamedImageManager::Log(const QString &operation, const QStringList &arguments)
{
    CallLog::Add(m_name + " " + operation, arguments);
}

void NamedImageManager::CloseImage() { Log("CloseImage"); }
void NamedImageManager::SetProcessType(int type) { Log("SetProcessType", { QString::number(type) }); }
void NamedImageManager::SetAdjustApply(int type) { Log("SetAdjustApply", { QString::number(type) }); }

void NamedImageManager::ConnectWidthDrawView(QObject *view, bool spectrum)
{
    connectedViews << view;
    Log("ConnectWidthDrawView", { Text(spectrum) });
    if (atConnection)
        atConnection(view);
}

void NamedImageManager::slotFinishSetBrush() { Log("slotFinishSetBrush"); }
void NamedImageManager::slotSaveImageAs() { Log("slotSaveImageAs"); }
void NamedImageManager::slotRotateImage(int type) { Log("slotRotateImage", { QString::number(type) }); }
void NamedImageManager::slotImageCrop() { Log("slotImageCrop"); }
void NamedImageManager::slotImageInfo() { Log("slotImageInfo"); }

void NamedImageManager::slotCrop(int x, int y, int width, int height, bool apply)
{
    Log("slotCrop", { Text(QRect(x, y, width, height)), Text(apply) });
}

void NamedImageManager::slotNewImageCopy(void *) { Log("slotNewImageCopy"); }
void NamedImageManager::slotMouseMoveEvent(QMouseEvent *) { Log("slotMouseMoveEvent"); }
void NamedImageManager::slotMousePressEvent(QMouseEvent *, QPointF pos)
{
    Log("slotMousePressEvent", { Text(pos) });
}
void NamedImageManager::slotMouseReleaseEvent(QMouseEvent *) { Log("slotMouseReleaseEvent"); }
void NamedImageManager::slotMouseDoubleClickEvent(QMouseEvent *) { Log("slotMouseDoubleClickEvent"); }

ShellServices::ShellServices()
{
    for (NamedImageManager *image : { &active, &main, &compare }) {
        image->measureManager = &mainMeasure;
        image->imageCore = &imageCore;
    }
    global.activeImageManager = &active;
    global.mainImageManager = &main;
    global.compareImageManager = &compare;
}

ShellHost::ShellHost(Panels panels)
{
    UsePanels(panels);
    qApp->setProperty("panelUpdates", QVariantList());
    window.resize(1200, 800);
    ui = GlobalUI::GetInstance();
}

ShellHost::~ShellHost() { delete ui; }

void ShellHost::UsePanels(Panels panels)
{
    qputenv("GLOBALUI_PLUGIN_PATH", panels == WithPanels ? TEST_PANEL_ROOT : "");
}

void ShellHost::Build()
{
    ui->InitMainUI(&window);
    window.setCentralWidget(ui->GetCenterStackedWidget());
    const auto dock = [this](Qt::DockWidgetArea area, QWidget *content) {
        auto *dockWidget = new QDockWidget(&window);
        dockWidget->setWidget(content);
        window.addDockWidget(area, dockWidget);
    };
    dock(Qt::LeftDockWidgetArea, ui->GetLeftStackedWidget());
    dock(Qt::RightDockWidgetArea, ui->GetRightTabWidget());
    dock(Qt::BottomDockWidgetArea, ui->GetBottomTabWidget());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void ShellHost::SwitchTo(int view)
{
    // The pages that belong to the views.
    const int leftPages[] = { 0, 1, 2, 0, 1 };
    const int centerPages[] = { 0, 1, 2, 0, 1 };
    services.uiConfig.currentView = view;
    services.uiConfig.leftStackedWidgetIndex = leftPages[view];
    services.uiConfig.centerStackedWidgetIndex = centerPages[view];
    emit services.uiConfig.signalSwitchView();
}

CameraStackedWidget *ShellHost::CameraStack() const { return window.findChild<CameraStackedWidget *>(); }

ImageStackedWidget *ShellHost::ImageStack() const { return window.findChild<ImageStackedWidget *>(); }

CompareFrame *ShellHost::Compare() const
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *frame = qobject_cast<CompareFrame *>(widget))
            return frame;
    }
    return nullptr;
}

bool TakeConnection(QObject *sender, const char *signal, QObject *receiver, const char *slot)
{
    if (!sender || !receiver)
        return false;
    const int before = ReceiverCount::Of(sender, signal);
    // Takes away all equal connections at once.
    return QObject::disconnect(sender, signal, receiver, slot)
           && ReceiverCount::Of(sender, signal) == before - 1;
}

QStringList MissingWires(const QVector<Wire> &wires)
{
    QStringList missing;
    for (const Wire &wire : wires) {
        if (!TakeConnection(wire.sender, wire.signal, wire.receiver, wire.slot))
            missing << QString("%1 -> %2").arg(wire.signal + 1, wire.slot + 1);
    }
    return missing;
}

QStringList OwnMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << QString::fromLatin1(metaObject.method(i).methodSignature());
    return methods;
}

QObject *PanelRoot(const QWidget &window, int id)
{
    const auto *panel = window.findChild<QWidget *>("panel" + QString::number(id));
    return panel ? panel->property("plugin").value<QObject *>() : nullptr;
}

QStringList TabTexts(const QTabWidget *tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts << tabs->tabText(i);
    return texts;
}

QVector<int> TakePanelUpdates()
{
    QVector<int> updates;
    for (const QVariant &id : qApp->property("panelUpdates").toList())
        updates << id.toInt();
    qApp->setProperty("panelUpdates", QVariantList());
    return updates;
}
