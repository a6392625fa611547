// SPDX-License-Identifier: GPL-3.0-or-later
#include "applicationlook.h"
#include "cameralink.h"
#include "commandline.h"
#include "devicelist.h"
#include "language.h"
#include "mainwindow.h"
#include "picturedesk.h"
#include "pluginlist.h"
#include "recordrun.h"
#include "settingsfile.h"
#include "timedrun.h"
#include "workbenchservices.h"

#include <QApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstdio>

namespace {

/// Only a camera that was asked for is looked for before the window is there.
bool IsCameraThere(const QString &id, QString *error)
{
    if (id.isEmpty() || IsSimulatedCamera(id))
        return true;
    QStringList ids;
    for (const CameraInfo &camera : ReadDeviceList())
        ids << camera.id;
    *error = CommandLine::NoSuchText("camera", id, ids);
    return ids.contains(id);
}

int Fail(const QString &text)
{
    fprintf(stderr, "%s\n", qPrintable(text));
    return CommandLine::UsageExitCode;
}

RecordingSettings SettingsOf(const CommandLine &line)
{
    RecordingSettings settings;
    settings.mode = line.frames > 0 ? RecordingSettings::Mode::Count : RecordingSettings::Mode::Duration;
    settings.frames = qMax(1, line.frames);
    settings.seconds = qMax(1, line.seconds);
    settings.format = line.format;
    return settings;
}

int Record(const CommandLine &line)
{
    SettingsFile settings(SettingsFile::StandardPath());
    Language(settings.Settings()).Install();
    CameraLink link;
    link.SetScene(line.scene);
    WorkbenchServices services(settings.Settings(), &link);
    QObject::connect(&services, &WorkbenchServices::signalRepaired,
                     [](const QString &text) { fprintf(stderr, "workbench: %s\n", qPrintable(text)); });
    const RecordRun run(&link, services.Recording(), SettingsOf(line), line.record,
                        line.frames > 0 ? line.seconds : 0);
    link.Open(line.cameraId.isEmpty() ? SimulatedCameraInfo().id : line.cameraId);
    const int exitCode = QApplication::exec();
    services.FinishRepair();
    return exitCode;
}

int ListPlugins()
{
    SettingsFile settings(SettingsFile::StandardPath());
    CameraLink link;
    WorkbenchServices services(settings.Settings(), &link);
    return PluginList::Print() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int RunWorkbench(const CommandLine &line)
{
    SettingsFile settings(SettingsFile::StandardPath());
    Language(settings.Settings()).Install();
    CameraLink link;
    link.SetScene(line.scene);
    WorkbenchServices services(settings.Settings(), &link);
    services.Look()->Apply();
    // The camera opens in its worker while the window is being built.
    link.Open(line.cameraId.isEmpty() ? SimulatedCameraInfo().id : line.cameraId);
    MainWindow window(&services, settings.Settings());
    window.show();
    if (!settings.KeptAside().isEmpty())
        window.slotShowMessage(QObject::tr("The settings were not used: %1. They were kept as %2.")
                                   .arg(settings.Fault(), settings.KeptAside()));
    if (line.frames > 0 || !line.screenshot.isEmpty()) {
        auto *run = new TimedRun(&link, window.Shown(), &window, line.frames, line.screenshot, &window);
        QObject::connect(services.Desk(), SIGNAL(signalOpened()), run, SLOT(slotPictureOpened()));
        QObject::connect(services.Desk(), SIGNAL(signalFault(QString)), run, SLOT(slotPictureFailed(QString)));
    }
    if (!line.files.isEmpty())
        services.Desk()->Open(line.files, services.Desk()->MainPicture());
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    setlocale(LC_ALL, ""); // the arguments are in the user's character set
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const CommandLine line = CommandLine::Parse(arguments);
    if (line.action == CommandLine::Action::Fail)
        return Fail(line.text);
    if (line.action == CommandLine::Action::Print) {
        printf("%s", qPrintable(line.text));
        return EXIT_SUCCESS;
    }
    QString error;
    if (!IsCameraThere(line.cameraId, &error))
        return Fail("workbench: " + error);

    // QT_LOGGING_RULES="default.debug=true" shows the diagnostic lines.
    QLoggingCategory::setFilterRules("default.debug=false");
    QCoreApplication::setApplicationName("workbench");
    QCoreApplication::setApplicationVersion(WORKBENCH_VERSION);
    const bool hasWindow = line.record.isEmpty() && !line.listPlugins;
    if (!hasWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing is shown, and there may be no display
    // Widgets follow the dots per inch of the screen, pictures stay at its pixels; so Qt does not scale by itself.
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    application.setWindowIcon(QIcon(":/icons/workbench.svg"));
    if (line.listPlugins)
        return ListPlugins();
    return hasWindow ? RunWorkbench(line) : Record(line);
}
