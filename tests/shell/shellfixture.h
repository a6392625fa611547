// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displayscale.h"
#include "fakecameramainmanager.h"
#include "fakeservices.h"

#include <QMainWindow>
#include <QVector>

#include <functional>

class CameraStackedWidget;
class CompareFrame;
class GlobalUI;
class ImageStackedWidget;
class QTabWidget;

/// An image manager whose calls carry its own name in the log: "main slotSaveImageAs()".
class NamedImageManager : public FakeImageManager
{
public:
    explicit NamedImageManager(const QString &name);

    void CloseImage() override;
    void SetProcessType(int type) override;
    void SetAdjustApply(int type) override;
    void ConnectWidthDrawView(QObject *view, bool spectrum) override;
    void slotFinishSetBrush() override;
    void slotSaveImageAs() override;
    void slotRotateImage(int type) override;
    void slotImageCrop() override;
    void slotImageInfo() override;
    void slotCrop(int x, int y, int width, int height, bool apply) override;
    void slotNewImageCopy(void *image) override;
    void slotMouseMoveEvent(QMouseEvent *event) override;
    void slotMousePressEvent(QMouseEvent *event, QPointF scenePos) override;
    void slotMouseReleaseEvent(QMouseEvent *event) override;
    void slotMouseDoubleClickEvent(QMouseEvent *event) override;

    /// The views handed to ConnectWidthDrawView().
    QVector<QObject *> connectedViews;
    /// What else is done with each of them then.
    std::function<void(QObject *)> atConnection;

private:
    void Log(const QString &operation, const QStringList &arguments = {});

    QString m_name;
};

/// All services as fakes, with an active, a main and a compare image manager that can be told apart.
struct ShellServices : FakeServices
{
    ShellServices();

    NamedImageManager active{ "active" };
    NamedImageManager main{ "main" };
    NamedImageManager compare{ "compare" };
};

/// A host as it is meant: services, a main window, and the facade in it.
struct ShellHost
{
    enum Panels
    {
        WithoutPanels,
        WithPanels
    };

    explicit ShellHost(Panels panels = WithoutPanels);
    ~ShellHost();

    /// Builds the areas, docks them as a host does, and shows the window.
    void Build();
    /// Changes the view like UIConfigManager does.
    void SwitchTo(int view);
    /// Connects the tests' own panels' folder, or takes it away.
    static void UsePanels(Panels panels);

    CameraStackedWidget *CameraStack() const;
    ImageStackedWidget *ImageStack() const;
    CompareFrame *Compare() const;

    DisplayScale scale{ 1.0 };
    ShellServices services;
    QMainWindow window;
    GlobalUI *ui = nullptr;
};

/// True when this connection exists, and only once; it does not exist afterwards.
bool TakeConnection(QObject *sender, const char *signal, QObject *receiver, const char *slot);
/// A row of a table of wires.
struct Wire
{
    QObject *sender;
    const char *signal;
    QObject *receiver;
    const char *slot;
};
/// Those wires that do not exist exactly once, as text; takes away the ones that do.
QStringList MissingWires(const QVector<Wire> &wires);
/// What the class adds to its base: signals and slots in their order.
QStringList OwnMethods(const QMetaObject &metaObject);
/// The root object of the plug-in with this id.
QObject *PanelRoot(const QWidget &window, int id);
/// The texts of all tabs.
QStringList TabTexts(const QTabWidget *tabs);
/// The ids of the panels updated since the last call.
QVector<int> TakePanelUpdates();
