// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editedframes.h"
#include "nextframes.h"
#include "picturedisplay.h"
#include "picturerequest.h"
#include "savetask.h"

#include <QMap>
#include <QThread>
#include <QVector>

#include <condition_variable>
#include <deque>
#include <mutex>

/// Opens, reads, shows and saves picture files in a thread of its own, so that neither a slow disk nor a
/// large file ever holds up the GUI. What is to be seen comes first, then a step of a save, then
/// thumbnails; who has nothing to do reads the frame that is likely to be asked for next. The operations are called by the GUI thread and return at once; the answers are signals.
class PictureLoader : public QThread
{
    Q_OBJECT

public:
    /// `levels` is borrowed and outlives this object.
    explicit PictureLoader(const LevelsModel *levels, QObject *parent = nullptr);
    /// Saves that were begun are brought to an end first; everything else is dropped.
    ~PictureLoader() override;

    /// Gives the request its ticket, which its answer bears.
    quint64 Load(PictureRequest request);
    void MakeThumbnail(const PictureAccess::FileName &file);
    void Save(const SaveRequest &request);
    /// The file was closed, or is to be opened anew.
    void Close(quint64 id);
    void Rename(quint64 id, const QString &path);

signals:
    void signalLoaded(LoadedPicture picture);
    void signalThumbnail(PictureThumbnail thumbnail);
    /// `error` is empty when the file is saved.
    void signalSaved(SaveRequest request, QString error);
    /// Nothing was left to do but to read a frame that nobody has asked for yet; it is at hand now if there is room.
    void signalReadAhead(int frame);

protected:
    void run() override;

private:
    enum class Work
    {
        None,
        Files,
        Show,
        Save,
        Thumbnail,
        Ahead,
        End
    };

    Work NextWork() const;
    Work WaitForWork();
    void ChangeFiles();
    void LoadNext();
    void SaveStep();
    void ThumbnailNext();
    void ReadAhead();
    bool IsReplaced(const PictureRequest &request);
    LoadedPicture Loaded(const PictureRequest &request);
    static void Count(LoadedPicture &loaded);
    PictureThumbnail Thumbnail(const PictureAccess::FileName &file);

    std::mutex m_mutex; ///< guards the queues, which come next
    std::condition_variable m_changed;
    QVector<PictureAccess::FileName> m_fileChanges; ///< new names; an empty one closes the file
    QMap<int, PictureRequest> m_requests;           ///< by place
    std::deque<SaveTask> m_saves;
    std::deque<PictureAccess::FileName> m_thumbnails;
    bool m_ends = false;
    quint64 m_lastTicket = 0;

    /// The worker's own.
    PictureAccess m_access;
    EditedFrames m_frames;
    PictureDisplay m_display;
    NextFrames m_nextFrames;
};
