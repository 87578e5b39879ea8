// The end of the raw-buffer pool: shutdownInstance() with buffers waiting
// in the pool and a frame still holding one, and frames made after it.
#include "Gliv/CQtHybridFrame.h"
#include "Gliv/CRawBufferPool.h"
#include "Gliv/PixelFormats.h"

#include <QtTest>

#include <vector>

using namespace Gliv;

class TestPoolShutdown : public QObject
{
    Q_OBJECT

private slots:
    void endsThePool();
};

void TestPoolShutdown::endsThePool()
{
    std::vector<uint8_t> pixels(64 * 32, 0x5A);
    SFrameInfo info;
    info.width = 64;
    info.height = 32;
    info.pixelFormat = PixelFormat::Mono8;
    info.payloadType = 1;
    info.imageSize = pixels.size();
    info.rawData = pixels.data();

    CRawBufferPool& pool = CRawBufferPool::instance();
    auto held = std::make_unique<CQtHybridFrame>(info);
    { CQtHybridFrame released(info); }
    QCOMPARE(pool.freeCount(), size_t(1));

    CRawBufferPool::shutdownInstance();
    QCOMPARE(pool.freeCount(), size_t(0));   // what waited is freed
    CRawBufferPool::shutdownInstance();      // idempotent

    // A frame that outlived the pool still has its pixels; released, its
    // buffer is freed rather than kept.
    QVERIFY(held->isHybridFrameValid());
    QCOMPARE(int(held->getRawData()[0]), 0x5A);
    held.reset();
    QCOMPARE(pool.freeCount(), size_t(0));

    // Afterwards the pool hands out nothing: a frame holds no pixels.
    QVERIFY(!pool.acquire(100));
    CQtHybridFrame late(info);
    QVERIFY(!late.isHybridFrameValid() && late.getRawData() == nullptr);
    QCOMPARE(pool.freeCount(), size_t(0));
}

QTEST_GUILESS_MAIN(TestPoolShutdown)
#include "tst_gliv_pool_shutdown.moc"
