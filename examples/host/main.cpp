// SPDX-License-Identifier: GPL-3.0-or-later
//
// The smallest host: services, the module, four areas in docks, and a live picture.
#include "hostservices.h"
#include "hostwindow.h"

#include <globalui.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {
constexpr int FramesBeforeScreenshot = 25;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption screenshot("screenshot", "Save a picture of the window and end.", "file");
    parser.addOption(screenshot);
    parser.process(application);

    HostServices services; // before the module: it asks for them while it is built
    HostCamera camera;     // lives as long as the camera is open
    HostWindow window;
    window.resize(1280, 800);
    window.show();

    int frames = 0;
    QObject::connect(&services.preview, &PreviewManager::signalPreviewImage, &window, [&](const QImage &) {
        if (++frames != FramesBeforeScreenshot || !parser.isSet(screenshot))
            return;
        const bool saved = window.grab().save(parser.value(screenshot));
        QTextStream(stdout) << frames << " frames went through the embedded module\n";
        application.exit(saved ? 0 : 1);
    });

    GlobalUI::GetInstance()->UpdateUI();
    services.config.SetCameraView(); // starts the preview
    const int result = application.exec();
    services.preview.StopPreview();
    delete GlobalUI::GetInstance();
    return result;
}
