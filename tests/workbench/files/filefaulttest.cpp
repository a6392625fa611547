// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefault.h"
#include "guardedtest.h"

/// The sentences that tell why a file could not be read or written.
class FileFaultTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aNameWithALineBreakStaysOnOneLine()
    {
        FileFault fault;
        fault.Set("the file is empty", "Copy it again.");
        QCOMPARE(ReadFaultText("/data/a\nb.tif", fault),
                 QString("\u201ca\u23ceb.tif\u201d cannot be read: the file is empty. Copy it again."));
        QCOMPARE(WriteFaultText("/data/a\r\x1b[2Jb.tif", fault),
                 QString("\u201ca\u23ce\ufffd[2Jb.tif\u201d was not saved: the file is empty. Copy it again."));
    }
};

GUARDED_TEST_MAIN(FileFaultTest)
#include "filefaulttest.moc"
