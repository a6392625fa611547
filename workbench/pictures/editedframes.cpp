// SPDX-License-Identifier: GPL-3.0-or-later
#include "editedframes.h"

#include "processing.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace {

constexpr qint64 MostKeptBytes = qint64(256) << 20;

/// Opened apart: the file may be another one each time.
bool ReadFirstFrame(const QString &path, Picture &frame, QString &error)
{
    PictureAccess access(1, 0);
    return access.ReadFrame({ 0, path }, 0, frame, error);
}

} // namespace

EditedFrames::EditedFrames(PictureAccess *access)
    : m_access(access)
{
}

bool EditedFrames::Read(const PictureAccess::FileName &file, int frame, const PictureEdit &edit,
                        const IsUnwanted &isUnwanted, Picture &seen, QSize &fileSize, QString &error, FrameRows *rows)
{
    const Wish wish{ file, edit, isUnwanted, fileSize, error, edit.IsNone() ? rows : nullptr };
    return ReadBeforeStep(wish, frame, edit.StepCount(), true, seen);
}

/// Turned and cropped until `step`, or at the end.
bool EditedFrames::ReadBeforeStep(const Wish &wish, int frame, int step, bool keeps, Picture &picture)
{
    Picture processed;
    if (!ReadAfterSteps(wish, frame, step, keeps, processed))
        return false;
    picture = wish.edit.Applied(processed, step);
    if (!picture.IsNull())
        return true;
    wish.error = QCoreApplication::translate(
                     "EditedFrames", "Frame %1 is too small to be cropped like the others. Undo the crop to see it.")
                     .arg(frame + 1);
    return false;
}

bool EditedFrames::ReadAfterSteps(const Wish &wish, int frame, int steps, bool keeps, Picture &picture)
{
    if (steps == 0) {
        if (!m_access->ReadFrame(wish.file, frame, picture, wish.error, wish.rows))
            return false;
        wish.fileSize = picture.Size();
        return true;
    }
    const PictureEdit done = wish.edit.FirstSteps(steps);
    const int index = done.SeenFrames(frame + 1) - 1; // the only one after a projection
    if (FindKept(wish, index, done, picture))
        return true;
    const ProcessSettings &step = wish.edit.Step(steps - 1);
    if (IsProjection(step)) {
        if (!Project(wish, steps - 1, picture))
            return false;
    } else {
        Picture before;
        if (!ReadBeforeStep(wish, index, steps - 1, keeps, before) || wish.isUnwanted())
            return false;
        picture = Processed(before, step, ReadFirstFrame, wish.isUnwanted, wish.error);
    }
    if (picture.IsNull())
        return false;
    if (keeps)
        Keep({ wish.file.id, index, done, wish.fileSize, picture });
    return true;
}

bool EditedFrames::Project(const Wish &wish, int step, Picture &picture)
{
    const PictureFile *file = m_access->Open(wish.file, wish.error);
    if (!file)
        return false;
    const int frames = wish.edit.FirstSteps(step).SeenFrames(file->Info().frames);
    const auto read = [&](int index, Picture &frame, QString &error) {
        const Wish one{ wish.file, wish.edit, wish.isUnwanted, wish.fileSize, error, nullptr };
        return ReadBeforeStep(one, index, step, false, frame);
    };
    picture = Projected(std::get<ProjectionSettings>(wish.edit.Step(step)), frames, read, wish.isUnwanted, wish.error);
    return !picture.IsNull();
}

bool EditedFrames::FindKept(const Wish &wish, int frame, const PictureEdit &steps, Picture &picture)
{
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept &one) {
        return one.id == wish.file.id && one.frame == frame && one.steps == steps;
    });
    if (kept == m_kept.end())
        return false;
    m_kept.splice(m_kept.begin(), m_kept, kept);
    picture = kept->picture;
    wish.fileSize = kept->fileSize;
    return true;
}

void EditedFrames::Keep(const Kept &kept)
{
    m_kept.push_front(kept);
    const auto bytes = [this] {
        return std::accumulate(m_kept.begin(), m_kept.end(), qint64(0),
                               [](qint64 sum, const Kept &one) { return sum + one.picture.ByteCount(); });
    };
    while (m_kept.size() > 1 && bytes() > MostKeptBytes)
        m_kept.pop_back();
}

void EditedFrames::Forget(quint64 id)
{
    m_kept.remove_if([id](const Kept &kept) { return kept.id == id; });
}
