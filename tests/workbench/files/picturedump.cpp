// SPDX-License-Identifier: GPL-3.0-or-later
// Shows what the readers and writers make of a file, for checks with other programs:
//   picturedump dump FILE SAMPLES       facts as JSON on the output, all samples to SAMPLES
//   picturedump convert FILE NEW [compress]
#include "createpicture.h"
#include "openpicture.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

const char *TypeCode(SampleType type)
{
    static const char *const codes[] = {"u1", "i1", "u2", "i2", "u4", "i4", "f4", "f8"};
    return codes[int(type)];
}

int Fail(const QString &error)
{
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return 1;
}

int Dump(const QString &path, const QString &samplesPath)
{
    QString error;
    const auto file = OpenPicture(path, error);
    if (!file)
        return Fail(error);
    QFile samples(samplesPath);
    if (!samples.open(QIODevice::WriteOnly))
        return Fail(samples.errorString());
    QJsonArray frames;
    Picture picture;
    for (int i = 0; i < file->Info().frames; ++i) {
        if (!file->ReadFrame(i, picture, error))
            return Fail(error);
        const SpectralAxis axis = file->AxisOf(i);
        QJsonArray columns;
        for (const double value : axis.values)
            columns.append(value);
        frames.append(QJsonObject{{"axis", columns}, {"raman", axis.unit == SpectralUnit::RamanShift},
                                  {"width", picture.Width()}, {"height", picture.Height()}, {"channels", picture.Channels()},
                                  {"type", TypeCode(picture.Type())}, {"description", file->FrameDescription(i)}});
        samples.write(reinterpret_cast<const char *>(picture.Data()), picture.ByteCount());
    }
    QJsonArray metadata;
    for (const MetadataEntry &entry : file->Info().metadata)
        metadata.append(QJsonArray{entry.key, entry.value, entry.comment});
    const QJsonObject facts{{"frames", frames}, {"metadata", metadata}, {"detail", file->Info().formatDetail},
                            {"dpiX", file->Info().dpiX}, {"dpiY", file->Info().dpiY}, {"warning", file->Info().warning}};
    std::printf("%s", QJsonDocument(facts).toJson().constData());
    return 0;
}

int Convert(const QString &path, const QString &newPath, bool compress)
{
    QString error;
    const auto file = OpenPicture(path, error);
    if (!file)
        return Fail(error);
    SaveOptions options;
    options.frameCount = file->Info().frames;
    options.compress = compress;
    options.dpiX = file->Info().dpiX;
    options.dpiY = file->Info().dpiY;
    options.metadata = file->Info().metadata;
    const auto writer = CreatePicture(newPath, options, error);
    if (!writer)
        return Fail(error);
    Picture picture;
    for (int i = 0; i < options.frameCount; ++i) {
        if (!file->ReadFrame(i, picture, error) || !writer->Append(picture, error))
            return Fail(error);
    }
    return writer->Commit(error) ? 0 : Fail(error);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4 && arguments[1] == "dump")
        return Dump(arguments[2], arguments[3]);
    if (arguments.size() >= 4 && arguments[1] == "convert")
        return Convert(arguments[2], arguments[3], arguments.value(4) == "compress");
    return Fail("usage: picturedump dump FILE SAMPLES | convert FILE NEW [compress]");
}
