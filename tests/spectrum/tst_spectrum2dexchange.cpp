// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "payloadlocker.h"
#include "plotpage.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>

namespace {

constexpr int width = 2000;

/// Writes one number all over the fill buffer, then the next one, from a thread of its own.
class Producer
{
public:
    using Write = std::function<void(unsigned int number)>;

    Producer(QMutex *lock, const Write &write)
        : m_thread([this, lock, write] {
            while (!m_stop) {
                const PayloadLocker locker(lock);
                write(++m_written);
            }
        })
    {
    }
    ~Producer()
    {
        m_stop = true;
        m_thread.join();
    }

    bool WaitForFirst() const
    {
        return QTest::qWaitFor([this] { return m_written > 0; });
    }

private:
    std::atomic<bool> m_stop{ false };
    std::atomic<unsigned int> m_written{ 0 };
    std::thread m_thread;
};

/// Draws again and again what `feed` brings; the curves that are not one number all over.
QStringList TornCurves(const PlotPage &page, const std::function<void()> &feed)
{
    QStringList torn;
    for (int drawn = 0; drawn < 200 && torn.isEmpty(); ++drawn) {
        feed();
        const QVector<double> values = page.DrawnValues();
        if (values.size() != width || values.count(values.first()) != width)
            torn << QString("curve %1").arg(drawn);
    }
    return torn;
}

} // namespace

/// The 2D page takes what another thread is writing.
class TestSpectrum2DExchange : public GuardedTest
{
    Q_OBJECT

private slots:
    void drawnLineIsNeverHalfWritten_data();
    void drawnLineIsNeverHalfWritten();
    void drawnProfileIsNeverHalfWritten_data();
    void drawnProfileIsNeverHalfWritten();
};

void TestSpectrum2DExchange::drawnLineIsNeverHalfWritten_data()
{
    QTest::addColumn<bool>("isTrack");
    QTest::newRow("binned line") << false;
    QTest::newRow("track") << true;
}

void TestSpectrum2DExchange::drawnLineIsNeverHalfWritten()
{
    QFETCH(bool, isTrack);
    PlotPage page;
    page.services.frame.frameWidth = width;
    LinePayload payload(Values(width, 0));
    const Producer producer(&payload.lock,
                            [&](unsigned int number) { std::fill_n(payload.record.fill, width, number); });
    QVERIFY(producer.WaitForFirst());
    QCOMPARE(TornCurves(page,
                        [&] {
                            if (isTrack)
                                page.page->SlotUpdateMultiTrack(payload.Param());
                            else
                                page.page->SlotUpdateFVB(payload.Param());
                        }),
             QStringList());
}

void TestSpectrum2DExchange::drawnProfileIsNeverHalfWritten_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::newRow("row") << true;
    QTest::newRow("column") << false;
}

void TestSpectrum2DExchange::drawnProfileIsNeverHalfWritten()
{
    QFETCH(bool, horizontal);
    PlotPage page;
    page.services.spectrumUI.directionHorinzontal = horizontal;
    page.services.frame.frameWidth = width;
    page.services.frame.frameHeight = width;
    CurvePayload payload(std::vector<int>(width, 0), std::vector<int>(width, 0));
    const Producer producer(&payload.lock, [&](unsigned int number) {
        std::fill_n(payload.record.horizontalFill, width, int(number));
        std::fill_n(payload.record.verticalFill, width, int(number));
    });
    QVERIFY(producer.WaitForFirst());
    QCOMPARE(TornCurves(page, [&] { page.page->SlotUpdateCurve(payload.Param()); }), QStringList());
}

GUARDED_TEST_MAIN(TestSpectrum2DExchange)
#include "tst_spectrum2dexchange.moc"
