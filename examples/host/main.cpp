// SPDX-License-Identifier: GPL-3.0-or-later
//
// The smallest host: services, the module, four areas in docks, and a live picture.
// `host --frames N` ends with 0 once N pictures went by; without that it runs until it is closed.
#include "hostservices.h"
#include "hostwindow.h"

#include <globalui.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    HostServices services; // before the module: it asks for them while it is built
    HostCamera camera;     // lives as long as the camera is open
    HostWindow window;
    window.resize(1280, 800);
    window.show();

    const QStringList arguments = application.arguments();
    const int limit = arguments.value(1) == "--frames" ? arguments.value(2).toInt() : 0;
    int frames = 0;
    QObject::connect(&services.preview, &PreviewManager::signalPreviewImage, &application, [&](const QImage &) {
        if (++frames == limit) {
            QTextStream(stdout) << frames << " frames shown by the embedded module\n";
            application.quit();
        }
    });

    GlobalUI::GetInstance()->UpdateUI();
    services.config.SetCameraView(); // starts the preview
    const int result = application.exec();
    services.preview.StopPreview();
    delete GlobalUI::GetInstance();
    return result;
}
