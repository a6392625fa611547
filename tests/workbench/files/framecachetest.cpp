// SPDX-License-Identifier: GPL-3.0-or-later
#include "framecache.h"
#include "guardedtest.h"

class FrameCacheTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void keepsAFrame();
    void theFrameNotUsedForLongestGoesFirst();
    void neverHoldsMoreThanItsBytes();
    void theFrameThatHasToGoGivesItsMemory();
    void aFileCanBeKeptToAFewFrames();
    void whatNobodyAskedForGoesFirst();
    void aFrameLargerThanTheCacheIsNotKept();
    void aFrameThatIsKeptAgainReplacesTheOldOne();
    void framesOfAClosedFileAreDropped();
    void writingToACopyLeavesTheKeptFrameAlone();
};

namespace {

Picture Filled(int bytes, uchar value)
{
    Picture picture(bytes, 1, 1, SampleType::U8);
    std::fill_n(picture.Data(), bytes, value);
    return picture;
}

bool Has(FrameCache &cache, quint64 file, int frame)
{
    Picture picture;
    return cache.Find(file, frame, picture);
}

} // namespace

void FrameCacheTest::keepsAFrame()
{
    FrameCache cache(100);
    cache.Insert(1, 5, Filled(10, 42));
    Picture picture;
    QVERIFY(cache.Find(1, 5, picture));
    QVERIFY(picture == Filled(10, 42));
    QVERIFY(!cache.Find(1, 4, picture));
    QVERIFY(!cache.Find(2, 5, picture));
    QCOMPARE(cache.UsedBytes(), qint64(10));
}

void FrameCacheTest::theFrameNotUsedForLongestGoesFirst()
{
    FrameCache cache(30);
    for (int frame = 0; frame < 3; ++frame)
        cache.Insert(1, frame, Filled(10, uchar(frame)));
    QVERIFY(Has(cache, 1, 0)); // looked at again: frame 1 is the oldest now
    cache.Insert(1, 3, Filled(10, 3));
    QVERIFY(Has(cache, 1, 0));
    QVERIFY(!Has(cache, 1, 1));
    QVERIFY(Has(cache, 1, 2));
    QVERIFY(Has(cache, 1, 3));
}

void FrameCacheTest::neverHoldsMoreThanItsBytes()
{
    FrameCache cache(1000);
    for (int frame = 0; frame < 500; ++frame) {
        cache.Insert(1, frame, Filled(1 + frame * 7 % 300, 0));
        QVERIFY(cache.UsedBytes() <= cache.CapacityBytes());
        QVERIFY(Has(cache, 1, frame));
    }
}

void FrameCacheTest::theFrameThatHasToGoGivesItsMemory()
{
    FrameCache cache(25);
    QVERIFY(cache.TakeOldest(10).IsNull());
    cache.Insert(1, 0, Filled(10, 0));
    QVERIFY(cache.TakeOldest(10).IsNull()); // there is room for both
    cache.Insert(1, 1, Filled(10, 1));
    QVERIFY(cache.TakeOldest(5).IsNull());
    QVERIFY(cache.TakeOldest(26).IsNull()); // would not be kept
    Picture oldest = cache.TakeOldest(6);
    QVERIFY(oldest == Filled(10, 0));
    QVERIFY(!Has(cache, 1, 0));
    QVERIFY(Has(cache, 1, 1));
    QCOMPARE(cache.UsedBytes(), qint64(10));
    const uchar *memory = static_cast<const Picture &>(oldest).Data();
    oldest.Reshape(10, 1, 1, SampleType::U8);
    QCOMPARE(static_cast<const Picture &>(oldest).Data(), memory); // nobody else has it
}

void FrameCacheTest::aFileCanBeKeptToAFewFrames()
{
    FrameCache cache(1000);
    cache.Insert(1, 0, Filled(10, 10));
    cache.Insert(2, 0, Filled(10, 20));
    QVERIFY(cache.TakeOldestOf(1, 2).IsNull());
    QVERIFY(cache.TakeOldestOf(3, 1).IsNull());
    cache.Insert(1, 1, Filled(10, 11));
    QVERIFY(Has(cache, 1, 0)); // looked at again: frame 1 is the oldest of the file now
    QVERIFY(cache.TakeOldestOf(1, 2) == Filled(10, 11));
    QVERIFY(!Has(cache, 1, 1));
    QVERIFY(Has(cache, 1, 0));
    QVERIFY(Has(cache, 2, 0));
    QCOMPARE(cache.UsedBytes(), qint64(20));
}

void FrameCacheTest::whatNobodyAskedForGoesFirst()
{
    FrameCache cache(30);
    cache.Insert(1, 0, Filled(10, 0));
    cache.Insert(1, 1, Filled(10, 1));
    cache.Insert(1, 2, Filled(10, 2), FrameCache::Use::Perhaps);
    QVERIFY(cache.TakeOldest(10) == Filled(10, 2));
    cache.Insert(1, 2, Filled(10, 2), FrameCache::Use::Perhaps);
    QVERIFY(Has(cache, 1, 2)); // now somebody did
    QVERIFY(cache.TakeOldest(10) == Filled(10, 0));
}

void FrameCacheTest::aFrameLargerThanTheCacheIsNotKept()
{
    FrameCache cache(30);
    cache.Insert(1, 0, Filled(10, 0));
    cache.Insert(1, 1, Filled(31, 0));
    QVERIFY(Has(cache, 1, 0));
    QVERIFY(!Has(cache, 1, 1));
    QCOMPARE(cache.UsedBytes(), qint64(10));
}

void FrameCacheTest::aFrameThatIsKeptAgainReplacesTheOldOne()
{
    FrameCache cache(30);
    cache.Insert(1, 0, Filled(10, 1));
    cache.Insert(1, 0, Filled(20, 2));
    Picture picture;
    QVERIFY(cache.Find(1, 0, picture));
    QVERIFY(picture == Filled(20, 2));
    QCOMPARE(cache.UsedBytes(), qint64(20));
}

void FrameCacheTest::framesOfAClosedFileAreDropped()
{
    FrameCache cache(100);
    cache.Insert(1, 0, Filled(10, 0));
    cache.Insert(2, 0, Filled(10, 0));
    cache.Insert(1, 1, Filled(10, 0));
    cache.RemoveFile(1);
    QVERIFY(!Has(cache, 1, 0));
    QVERIFY(!Has(cache, 1, 1));
    QVERIFY(Has(cache, 2, 0));
    QCOMPARE(cache.UsedBytes(), qint64(10));
}

void FrameCacheTest::writingToACopyLeavesTheKeptFrameAlone()
{
    FrameCache cache(100);
    Picture picture = Filled(10, 1);
    cache.Insert(1, 0, picture);
    picture.Data()[0] = 99;
    Picture kept;
    QVERIFY(cache.Find(1, 0, kept));
    QVERIFY(kept == Filled(10, 1));
    picture = kept;
    picture.Reshape(10, 1, 1, SampleType::U8); // a shared buffer is not written over
    picture.Data()[0] = 77;
    QVERIFY(kept == Filled(10, 1));
}

GUARDED_TEST_MAIN(FrameCacheTest)
#include "framecachetest.moc"
