// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefault.h"

#include "filenametext.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileFault)
};

/// Libraries quote what stands in a damaged file.
QString Printable(QString text)
{
    for (QChar &letter : text) {
        if (!letter.isPrint())
            letter = '?';
    }
    return text;
}

QString FaultText(const QString &verb, const QString &path, const FileFault &fault)
{
    QString text = verb.arg(FileNameTextOf(path), fault.what);
    if (!fault.detail.isEmpty())
        text += QString(" (%1)").arg(Printable(fault.detail));
    return text + ". " + fault.advice;
}

} // namespace

bool FileFault::Set(const QString &newWhat, const QString &newAdvice, const QString &newDetail)
{
    what = newWhat;
    advice = newAdvice;
    detail = newDetail;
    isDiskFull = false;
    isNameTaken = false;
    return false;
}

QString ReadFaultText(const QString &path, const FileFault &fault)
{
    return FaultText(Text::tr("\u201c%1\u201d cannot be read: %2"), path, fault);
}

QString WriteFaultText(const QString &path, const FileFault &fault)
{
    return FaultText(Text::tr("\u201c%1\u201d was not saved: %2"), path, fault);
}

QString DamagedAdvice()
{
    return Text::tr("The file is damaged or was cut short: copy it again from where it came from.");
}

QString UnsupportedAdvice()
{
    return Text::tr("Save it from the program that made it as an ordinary TIFF, FITS or PNG file.");
}

QString DiskAdvice()
{
    return Text::tr("Check the free space and your rights in that folder, or choose another one; the old file is unchanged.");
}

QString MemoryAdvice()
{
    return Text::tr("Close other pictures or programs and try again.");
}
