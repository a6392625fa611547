// SPDX-License-Identifier: GPL-3.0-or-later
// Opens what the fuzzer makes up as a picture file, reads its first frames and its last one. The readers
// may refuse it, in words; they may not crash, hang or take memory that a file of its size does not need.
#include "openpicture.h"

#include <QString>

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

constexpr int framesToRead = 3;

/// A file in memory that every run fills anew.
const std::string &InputPath()
{
    static const std::string path = "/dev/shm/fuzzpicture." + std::to_string(::getpid());
    return path;
}

void WriteInput(const uint8_t *data, size_t size)
{
    const int fd = ::open(InputPath().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0 || ::write(fd, data, size) != ssize_t(size))
        std::abort();
    ::close(fd);
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
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::atexit([] { ::unlink(InputPath().c_str()); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray start(reinterpret_cast<const char *>(data), int(std::min(size, size_t(FormatSignatureBytes))));
    if (FormatOfContent(start) != PictureFormat::FUZZED_FORMAT)
        return 0;
    WriteInput(data, size);
    QString error;
    const auto file = OpenPicture(QString::fromStdString(InputPath()), error);
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
