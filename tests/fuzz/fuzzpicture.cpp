// SPDX-License-Identifier: GPL-3.0-or-later
// Opens what the fuzzer makes up as a picture file, reads its first frames and its last one. The readers
// may refuse it, in words; they may not crash, hang or take memory that a file of its size does not need.
#include "openpicture.h"

#include <QString>

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr int framesToRead = 3;

/// A file in memory that every run fills anew and that goes with the process.
int InputFile()
{
    static const int fd = ::memfd_create("fuzzpicture", MFD_CLOEXEC);
    return fd;
}

QString InputPath()
{
    return QString("/proc/self/fd/%1").arg(InputFile());
}

void WriteInput(const uint8_t *data, size_t size)
{
    if (::ftruncate(InputFile(), 0) != 0 || ::pwrite(InputFile(), data, size, 0) != ssize_t(size))
        std::abort();
}

void ReadFrame(PictureFile &file, int index)
{
    Picture picture;
    QString error;
    if (!file.ReadFrame(index, picture, error)) {
        if (error.isEmpty())
            std::abort(); // refused without a word
        return;
    }
    if (QByteArray(reinterpret_cast<const char *>(picture.Data()), int(picture.ByteCount())).size() != picture.ByteCount())
        std::abort(); // reading the whole frame finds a buffer that is too small
    file.FrameDescription(index);
    if (const SpectralAxis axis = file.AxisOf(index);
        !axis.IsEmpty() && axis.values.size() != PixelsOf(axis.side, picture.Size()))
        std::abort(); // every column, or row, has its value
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray start(reinterpret_cast<const char *>(data), int(std::min(size, size_t(FormatSignatureBytes))));
    if (FormatOfContent(start) != PictureFormat::FUZZED_FORMAT)
        return 0;
    WriteInput(data, size);
    QString error;
    const auto file = OpenPicture(InputPath(), error);
    if (!file) {
        if (error.isEmpty())
            std::abort();
        return 0;
    }
    const int frames = file->Info().frames;
    for (int i = 0; i < std::min(frames, framesToRead); ++i)
        ReadFrame(*file, i);
    if (frames > framesToRead)
        ReadFrame(*file, frames - 1);
    return 0;
}
