// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitspicturefile.h"

#include "fitsheader.h"
#include "fitssession.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

QString Translate(const char *text)
{
    return QCoreApplication::translate("FitsPictureFile", text);
}

void FlipRows(Picture &picture)
{
    const qint64 rowBytes = picture.BytesPerRow();
    uchar *top = picture.Data();
    uchar *bottom = top + (picture.Height() - 1) * rowBytes;
    for (; top < bottom; top += rowBytes, bottom -= rowBytes)
        std::swap_ranges(top, top + rowBytes, bottom);
}

} // namespace

FitsPictureFile::FitsPictureFile(const QString &path)
    : PictureFile(path)
{
}

FitsPictureFile::~FitsPictureFile()
{
    if (!m_fits)
        return;
    FitsSession session;
    int status = 0;
    fits_close_file(m_fits, &status);
}

bool FitsPictureFile::Open(qint64 fileSize, FileFault &fault)
{
    // The library's own file name syntax (filters, pipes, addresses) must not be reached by a name.
    const QByteArray name = QFile::encodeName(QFileInfo(Path()).absoluteFilePath());
    if (name.size() >= FLEN_FILENAME)
        return fault.Set(Translate("its path is longer than %1 bytes").arg(FLEN_FILENAME - 1), Translate("Move it to a folder with a shorter path."));

    FitsSession session;
    int status = 0;
    fits_open_diskfile(&m_fits, name.constData(), READONLY, &status);
    if (status != 0) {
        m_fits = nullptr;
        return fault.Set(Translate("its header makes no sense"), DamagedAdvice(), session.TakeMessages(status));
    }
    if (!FindPicture(status)) {
        const QString messages = session.TakeMessages(status);
        return status == END_OF_FILE ? fault.Set(Translate("there is no picture in it, only tables or nothing"), UnsupportedAdvice())
                                     : fault.Set(Translate("the header of its picture makes no sense"), DamagedAdvice(), messages);
    }
    int extension = 0;
    fits_get_hdu_num(m_fits, &extension); // from 1
    if (!ReadFitsLayout(m_fits, fileSize, m_layout, fault))
        return false;
    FillInfo(extension - 1);
    return true;
}

bool FitsPictureFile::FindPicture(int &status)
{
    while (status == 0) {
        int type = 0;
        int axes = 0;
        fits_get_hdu_type(m_fits, &type, &status);
        if (type == IMAGE_HDU)
            fits_get_img_dim(m_fits, &axes, &status);
        if (status == 0 && axes > 0)
            return true;
        fits_movrel_hdu(m_fits, 1, nullptr, &status);
    }
    return false;
}

void FitsPictureFile::FillInfo(int extension)
{
    PictureInfo &info = MutableInfo();
    info.format = PictureFormat::Fits;
    info.frames = m_layout.frames;
    info.size = QSize(m_layout.width, m_layout.height);
    info.sampleType = m_layout.type;
    info.metadata = ReadFitsCards(m_fits);
    QStringList details;
    if (m_layout.isCompressed)
        details << Translate("compressed");
    if (extension > 0)
        details << Translate("in extension %1").arg(extension);
    info.formatDetail = details.join(", ");
    if (m_layout.missingFrames > 0) {
        AddWarning(ReadFaultText(Path(), {Translate("only the first %1 of its %2 frames are there")
                                              .arg(info.frames).arg(info.frames + m_layout.missingFrames),
                                          DamagedAdvice(), QString()}));
    }
}

bool FitsPictureFile::Decode(int index, Picture &frame, FileFault &fault)
{
    frame.Reshape(m_layout.width, m_layout.height, 1, m_layout.type);
    float undefinedFloat = std::numeric_limits<float>::quiet_NaN();
    double undefinedDouble = std::numeric_limits<double>::quiet_NaN();
    void *undefined = nullptr;
    if (m_layout.marksUndefined)
        undefined = m_layout.type == SampleType::F32 ? static_cast<void *>(&undefinedFloat) : &undefinedDouble;

    FitsSession session;
    int status = 0;
    int anyUndefined = 0;
    fits_read_img(m_fits, m_layout.libraryType, 1 + index * m_layout.FrameSamples(), m_layout.FrameSamples(), undefined,
                  frame.Data(), &anyUndefined, &status);
    if (status != 0) {
        return fault.Set(Translate("frame %1 of %2 cannot be decoded").arg(index + 1).arg(m_layout.frames), DamagedAdvice(),
                         session.TakeMessages(status));
    }
    FlipRows(frame);
    return true;
}
