// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "linepayload.h"

#include <QFile>

#include <unistd.h>

namespace {

constexpr int MostLines = 256;

Spectrum LineOf(std::vector<double> values)
{
    Spectrum line;
    line.values = std::move(values);
    return line;
}

/// What a plot does: takes the filled buffer.
const unsigned int *Taken(SpectrumLinePayload *record)
{
    std::swap(record->fill, record->show);
    return record->show;
}

/// Memory that this process holds, MiB.
double ResidentMiB()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

} // namespace

class LinePayloadTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void linesFollowEachOther();
    void aLongerListReadsNothingThatIsNotThere();
    void moreThanThereIsRoomFor();
    void costsWhatIsFilled();
};

void LinePayloadTest::linesFollowEachOther()
{
    LinePayload payload(MostLines);
    const Spectrum first = LineOf({3, 1, 2});
    const Spectrum second = LineOf({7, 5});
    SpectrumLinePayload *record = payload.Fill({&first, &second}, 3, SpectrumQuantity::Counts);
    QCOMPARE(record->minimum, 0);
    QCOMPARE(record->maximum, 7);
    const unsigned int *values = Taken(record);
    QCOMPARE(std::vector<unsigned int>(values, values + 6), std::vector<unsigned int>({3, 1, 2, 7, 5, 0}));
    QCOMPARE(payload.Fill({}, 3, SpectrumQuantity::Counts)->minimum, 0);
    QVERIFY(record->fill != values); // what is drawn stays as it is
}

/// The track list and the frame may have grown since.
void LinePayloadTest::aLongerListReadsNothingThatIsNotThere()
{
    LinePayload payload(MostLines);
    const Spectrum line = LineOf({9, 9});
    SpectrumLinePayload *record = payload.Fill({&line}, 2, SpectrumQuantity::Counts);
    for (int buffer = 0; buffer < 2; ++buffer) {
        const unsigned int *values = Taken(record);
        quint64 sum = 0;
        for (size_t i = 0; i < size_t(MostLines) * LinePayload::WidestFrame; ++i)
            sum += values[i];
        QCOMPARE(sum, quint64(buffer == 0 ? 18 : 0));
    }
}

void LinePayloadTest::moreThanThereIsRoomFor()
{
    LinePayload payload(1);
    const Spectrum line = LineOf({4, 4});
    const Spectrum brighter = LineOf({8, 8});
    SpectrumLinePayload *record = payload.Fill({&line, &brighter}, LinePayload::WidestFrame + 1, SpectrumQuantity::Counts);
    QCOMPARE(record->maximum, 4);
    const unsigned int *values = Taken(record);
    QCOMPARE(values[1], 4u);
    QCOMPARE(values[LinePayload::WidestFrame - 1], 0u);
    QCOMPARE(payload.Fill({&line}, -1, SpectrumQuantity::Counts)->maximum, 0);
}

/// Twenty tracks of 2048 samples are 160 KiB, not 20 lines of the widest frame, twice.
void LinePayloadTest::costsWhatIsFilled()
{
    const double before = ResidentMiB();
    QVERIFY(before > 0);
    LinePayload payload(MostLines);
    const Spectrum line = LineOf(std::vector<double>(2048, 5));
    Taken(payload.Fill(std::vector<const Spectrum *>(20, &line), 2048, SpectrumQuantity::Counts));
    payload.Fill(std::vector<const Spectrum *>(20, &line), 2048, SpectrumQuantity::Counts);
    const double grown = ResidentMiB() - before;
    QVERIFY2(grown < 32, qPrintable(QString::number(grown)));
}

GUARDED_TEST_MAIN(LinePayloadTest)
#include "linepayloadtest.moc"
