// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "runwriter.h"
#include "scenecatalogue.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

const RunFormat recordFormats[] = {RunFormat::Tiff, RunFormat::Fits, RunFormat::Png};

QStringList FormatNames()
{
    QStringList names;
    for (const RunFormat format : recordFormats)
        names << RunSuffix(format);
    return names;
}

/// By its usual names: "tiff" is "tif".
bool FindFormat(const QString &name, RunFormat *format)
{
    const QString suffix = name.toLower() == "tiff" ? QString("tif") : name.toLower() == "fit" ? QString("fits") : name.toLower();
    const int index = FormatNames().indexOf(suffix);
    if (index >= 0)
        *format = recordFormats[index];
    return index >= 0;
}

QString HelpText()
{
    return QString("Usage: workbench [options] [FILE...]\n"
                   "Shows the live picture of a scientific camera, and picture files.\n"
                   "\n"
                   "  --camera ID        open this camera instead of the simulated one\n"
                   "  --scene NAME       what the simulated camera looks at: %1;\n"
                   "                     a spectrograph to order: spectrograph:tracks=5,smile=6,tilt=0.01\n"
                   "  --frames N         end after N frames were shown and print what was measured\n"
                   "  --screenshot FILE  save a picture of the window before the end; without --frames\n"
                   "                     after the first frame or, with a FILE, when that is shown\n"
                   "  --record FILE      record without a window into FILE: --frames N of them, or for\n"
                   "                     --seconds S, or what comes first; print the receipt, and end\n"
                   "                     with 1 if a frame was lost\n"
                   "  --format F         of the recording: %2; without it the ending of FILE tells\n"
                   "  --list-plugins     print each plug-in that is found, where from, and why it is not loaded;\n"
                   "                     end with 1 if one is not\n"
                   "  --version          print the version and end\n"
                   "  --help             print this text and end\n")
        .arg(SceneCatalogue::Names().join(", "), FormatNames().join(", "));
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

CommandLine CommandLine::ForRecording(CommandLine line, const QString &path, const QString &format)
{
    line.record = path;
    if (path.isEmpty())
        return Failure("--record needs the name of a file.");
    if (!line.files.isEmpty() || !line.screenshot.isEmpty())
        return Failure("--record shows no window. Leave out --screenshot and other files.");
    if (line.frames == 0 && line.seconds == 0)
        return Failure("--record needs --frames N or --seconds S.");
    const QString name = format.isEmpty() ? QFileInfo(path).suffix() : format;
    if (!FindFormat(name, &line.format))
        return Failure(NoSuchText("format", name, FormatNames()));
    return line;
}

CommandLine CommandLine::Parse(const QStringList &arguments)
{
    const QCommandLineOption camera("camera", QString(), "ID");
    const QCommandLineOption scene("scene", QString(), "NAME", SceneCatalogue::DefaultName());
    const QCommandLineOption frames("frames", QString(), "N");
    const QCommandLineOption screenshot("screenshot", QString(), "FILE");
    const QCommandLineOption record("record", QString(), "FILE");
    const QCommandLineOption seconds("seconds", QString(), "S");
    const QCommandLineOption format("format", QString(), "F");
    const QCommandLineOption listPlugins("list-plugins");
    const QCommandLineOption version("version");
    const QCommandLineOption help("help");
    QCommandLineParser parser;
    parser.addOptions({camera, scene, frames, screenshot, record, seconds, format, listPlugins, version, help});
    if (!parser.parse(arguments))
        return Failure(parser.errorText().trimmed() + " Try --help.");
    if (parser.isSet(help))
        return Printed(HelpText());
    if (parser.isSet(version))
        return Printed("workbench " WORKBENCH_VERSION "\n");

    CommandLine line;
    line.listPlugins = parser.isSet(listPlugins);
    if (line.listPlugins && arguments.size() > 2)
        return Failure("--list-plugins goes alone.");
    line.files = parser.positionalArguments();
    line.cameraId = parser.value(camera);
    if (parser.isSet(camera) && line.cameraId.isEmpty())
        return Failure("--camera needs the id of a camera.");
    line.scene = parser.value(scene);
    if (!SceneCatalogue::Names().contains(SceneCatalogue::NameIn(line.scene)))
        return Failure(NoSuchText("scene", SceneCatalogue::NameIn(line.scene), SceneCatalogue::Names()));
    const QString sceneFault = SceneCatalogue::FaultIn(line.scene);
    if (!sceneFault.isEmpty())
        return Failure("--scene: " + sceneFault);
    line.screenshot = parser.value(screenshot);
    if (parser.isSet(screenshot) && line.screenshot.isEmpty())
        return Failure("--screenshot needs the name of a file.");
    for (const auto &number : {std::make_pair(&frames, &line.frames), std::make_pair(&seconds, &line.seconds)}) {
        if (!parser.isSet(*number.first))
            continue;
        bool isNumber = false;
        *number.second = parser.value(*number.first).toInt(&isNumber);
        if (!isNumber || *number.second < 1)
            return Failure(QString("--%1 needs a whole number of 1 or more, not \"%2\".")
                               .arg(number.first->names().first(), parser.value(*number.first)));
    }
    if (parser.isSet(record))
        return ForRecording(line, parser.value(record), parser.value(format));
    for (const QCommandLineOption *option : {&seconds, &format}) {
        if (parser.isSet(*option))
            return Failure(QString("--%1 goes with --record.").arg(option->names().first()));
    }
    if (parser.isSet(frames)) {
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
