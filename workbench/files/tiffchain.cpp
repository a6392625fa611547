// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffchain.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSet>
#include <QtEndian>

#include <unistd.h>

namespace {

constexpr quint16 newSubfileTypeTag = 254;
constexpr quint16 shortType = 3;
constexpr quint32 reducedImageFlag = 1;
constexpr quint32 maskFlag = 4;
/// Covers the directory of an ordinary page in one read.
constexpr int usualDirectoryBytes = 1024;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TiffChain)
};

/// One directory as it lies in the file.
struct Directory
{
    quint64 next = 0;
    bool isFullPage = true;
};

class ChainReader
{
public:
    ChainReader(int fd, qint64 fileSize)
        : m_fd(fd)
        , m_fileSize(quint64(fileSize))
    {
    }

    TiffChain Read();

private:
    bool ReadHeader(quint64 &first);
    bool ReadDirectory(quint64 offset, Directory &directory);
    bool EnsureBytes(quint64 offset, quint64 count);
    bool IsFullPage(const uchar *entries, quint64 count) const;

    template <typename T>
    T Number(const uchar *bytes) const
    {
        return m_chain.isBigEndian ? qFromBigEndian<T>(bytes) : qFromLittleEndian<T>(bytes);
    }
    /// An offset of this file's width.
    quint64 Offset(const uchar *bytes) const { return m_chain.isBigTiff ? Number<quint64>(bytes) : Number<quint32>(bytes); }
    int OffsetBytes() const { return m_chain.isBigTiff ? 8 : 4; }
    int CountBytes() const { return m_chain.isBigTiff ? 8 : 2; }
    int EntryBytes() const { return m_chain.isBigTiff ? 20 : 12; }
    const uchar *Bytes() const { return reinterpret_cast<const uchar *>(m_buffer.constData()); }

    const int m_fd;
    const quint64 m_fileSize;
    TiffChain m_chain;
    QByteArray m_buffer; ///< from the offset last asked for
};

TiffChain ChainReader::Read()
{
    QVector<quint64> reduced;
    QSet<quint64> seen;
    quint64 offset = 0;
    if (!ReadHeader(offset))
        return m_chain;
    while (offset != 0) {
        const int page = seen.size() + 1;
        if (seen.contains(offset)) {
            m_chain.fault = Text::tr("the chain of its pages runs in a circle after page %1").arg(page - 1);
            break;
        }
        // Directories that overlap one another would make more pages than the file has room for.
        if (quint64(page) > m_fileSize / quint64(CountBytes() + EntryBytes() + OffsetBytes()) + 1) {
            m_chain.fault = Text::tr("it names more pages than it can hold");
            break;
        }
        Directory directory;
        if (!ReadDirectory(offset, directory)) {
            m_chain.fault = Text::tr("the description of page %1 (at byte %2) lies beyond the end of the file (%3 bytes)")
                                .arg(page).arg(offset).arg(m_fileSize);
            break;
        }
        seen.insert(offset);
        (directory.isFullPage ? m_chain.pages : reduced).append(offset);
        offset = directory.next;
    }
    if (m_chain.pages.isEmpty())
        m_chain.pages = reduced;
    return m_chain;
}

bool ChainReader::ReadHeader(quint64 &first)
{
    if (!EnsureBytes(0, 8)) {
        m_chain.fault = Text::tr("it ends within its header");
        return false;
    }
    m_chain.isBigEndian = Bytes()[0] == 'M';
    m_chain.isBigTiff = Number<quint16>(Bytes() + 2) == 43;
    if (m_chain.isBigTiff && !EnsureBytes(0, 16)) {
        m_chain.fault = Text::tr("it ends within its header");
        return false;
    }
    first = Offset(Bytes() + (m_chain.isBigTiff ? 8 : 4));
    if (first == 0)
        m_chain.fault = Text::tr("it has no page; its writer did not finish it");
    return first != 0;
}

bool ChainReader::ReadDirectory(quint64 offset, Directory &directory)
{
    if (!EnsureBytes(offset, quint64(CountBytes())))
        return false;
    const quint64 count = m_chain.isBigTiff ? Number<quint64>(Bytes()) : Number<quint16>(Bytes());
    if (count > m_fileSize / quint64(EntryBytes()))
        return false;
    const quint64 entriesEnd = quint64(CountBytes()) + count * quint64(EntryBytes());
    if (!EnsureBytes(offset, entriesEnd + quint64(OffsetBytes())))
        return false;
    directory.isFullPage = IsFullPage(Bytes() + CountBytes(), count);
    directory.next = Offset(Bytes() + entriesEnd);
    return true;
}

bool ChainReader::IsFullPage(const uchar *entries, quint64 count) const
{
    for (quint64 i = 0; i < count; ++i) {
        const uchar *entry = entries + i * quint64(EntryBytes());
        if (Number<quint16>(entry) != newSubfileTypeTag)
            continue;
        const uchar *value = entry + 4 + OffsetBytes();
        const quint32 kind = Number<quint16>(entry + 2) == shortType ? Number<quint16>(value) : Number<quint32>(value);
        return (kind & (reducedImageFlag | maskFlag)) == 0;
    }
    return true;
}

bool ChainReader::EnsureBytes(quint64 offset, quint64 count)
{
    if (offset > m_fileSize || count > m_fileSize - offset)
        return false;
    const quint64 wanted = qMin(qMax(count, quint64(usualDirectoryBytes)), m_fileSize - offset);
    if (wanted > quint64(INT_MAX))
        return false;
    m_buffer.resize(int(wanted));
    const ssize_t got = ::pread(m_fd, m_buffer.data(), wanted, off_t(offset));
    return got >= 0 && quint64(got) >= count;
}

} // namespace

TiffChain ReadTiffChain(int fd, qint64 fileSize)
{
    return ChainReader(fd, fileSize).Read();
}
