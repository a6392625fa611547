// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "scenecatalogue.h"

#include <QCommandLineParser>

namespace {

QString HelpText()
{
    return QString("Usage: workbench [options] [FILE...]\n"
                   "Shows the live picture of a scientific camera, and picture files.\n"
                   "\n"
                   "  --camera ID        open this camera instead of the simulated one\n"
                   "  --scene NAME       what the simulated camera looks at: %1\n"
                   "  --frames N         end after N frames were shown and print what was measured\n"
                   "  --screenshot FILE  save a picture of the window before the end; without --frames\n"
                   "                     after the first frame or, with a FILE, when that is shown\n"
                   "  --version          print the version and end\n"
                   "  --help             print this text and end\n")
        .arg(SceneCatalogue::Names().join(", "));
}

CommandLine Failure(const QString &text)
{
    CommandLine line;
    line.action = CommandLine::Action::Fail;
    line.text = "workbench: " + text;
    return line;
}

CommandLine Printed(const QString &text)
{
    CommandLine line;
    line.action = CommandLine::Action::Print;
    line.text = text;
    return line;
}

} // namespace

CommandLine CommandLine::Parse(const QStringList &arguments)
{
    const QCommandLineOption camera("camera", QString(), "ID");
    const QCommandLineOption scene("scene", QString(), "NAME", SceneCatalogue::DefaultName());
    const QCommandLineOption frames("frames", QString(), "N");
    const QCommandLineOption screenshot("screenshot", QString(), "FILE");
    const QCommandLineOption version("version");
    const QCommandLineOption help("help");
    QCommandLineParser parser;
    parser.addOptions({camera, scene, frames, screenshot, version, help});
    if (!parser.parse(arguments))
        return Failure(parser.errorText().trimmed() + " Try --help.");
    if (parser.isSet(help))
        return Printed(HelpText());
    if (parser.isSet(version))
        return Printed("workbench " WORKBENCH_VERSION "\n");

    CommandLine line;
    line.files = parser.positionalArguments();
    line.cameraId = parser.value(camera);
    if (parser.isSet(camera) && line.cameraId.isEmpty())
        return Failure("--camera needs the id of a camera.");
    line.scene = parser.value(scene);
    if (!SceneCatalogue::Names().contains(line.scene))
        return Failure(NoSuchText("scene", line.scene, SceneCatalogue::Names()));
    line.screenshot = parser.value(screenshot);
    if (parser.isSet(screenshot) && line.screenshot.isEmpty())
        return Failure("--screenshot needs the name of a file.");
    if (parser.isSet(frames)) {
        bool isNumber = false;
        line.frames = parser.value(frames).toInt(&isNumber);
        if (!isNumber || line.frames < 1)
            return Failure(QString("--frames needs a whole number of 1 or more, not \"%1\".").arg(parser.value(frames)));
        if (!line.files.isEmpty())
            return Failure("--frames counts live pictures. Leave out either it or the files.");
    } else if (parser.isSet(screenshot) && line.files.isEmpty()) {
        line.frames = 1;
    }
    return line;
}

QString CommandLine::NoSuchText(const QString &what, const QString &name, const QStringList &choices)
{
    return QString("no %1 is called \"%2\". Choose one of: %3").arg(what, name, choices.join(", "));
}
