// SPDX-License-Identifier: GPL-3.0-or-later
// recordsample PATH FORMAT LAYOUT WIDTH HEIGHT FRAMES: records the sample frames, and says each one on the output. With 0
// frames it goes on until it is killed.
#include "runsample.h"
#include "runwriter.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 7)
        return 2;
    const auto format = RunFormat(atoi(argv[2]));
    const auto layout = PixelLayout(atoi(argv[3]));
    const QSize size(atoi(argv[4]), atoi(argv[5]));
    const int frames = atoi(argv[6]);
    const std::unique_ptr<RunWriter> writer = CreateRunWriter(format, QString::fromLocal8Bit(argv[1]));
    QString error;
    if (!writer->Begin(RunSample::Facts(size, layout), &error)) {
        fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    for (int frame = 0; frames == 0 || frame < frames; ++frame) {
        if (!writer->Write(RunSample::Frame(size, layout, frame), &error)) {
            fprintf(stderr, "%s\n", qPrintable(error));
            return 1;
        }
        printf("%d\n", frame + 1);
        fflush(stdout);
    }
    RunOutcome outcome;
    outcome.counts.captured = quint64(frames);
    outcome.counts.saved = quint64(frames);
    if (writer->Finish(&outcome, &error))
        return 0;
    fprintf(stderr, "%s\n", qPrintable(error));
    return 1;
}
