// SPDX-License-Identifier: GPL-3.0-or-later
#include "savingfixture.h"

#include "openpicture.h"

#include <cstring>
#include <thread>

void SavingFixture::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
    m_order = RunOrder();
    m_order.facts = RunSample::Facts(Size, PixelLayout::Mono8);
    m_order.path = m_folder->filePath("run.tif");
    m_order.settings.mode = RecordingSettings::Mode::Count;
    m_order.settings.frames = 5;
    Make(CreateRunWriter);
}

void SavingFixture::cleanup()
{
    m_ended.reset();
    m_saving.reset();
    m_folder.reset();
    EndGuard();
}

void SavingFixture::Make(const FrameSaving::WriterMaker &maker)
{
    m_saving.reset(); // one at a time
    m_saving = std::make_unique<FrameSaving>(RunRegister(m_folder->filePath("register")), maker);
    m_ended = std::make_unique<QSignalSpy>(m_saving.get(), SIGNAL(signalRunEnded(RunReceipt)));
}

void SavingFixture::SendUntilEnded()
{
    std::thread camera([this] {
        int next = 0;
        while (m_saving->isRunning() && next < 1000) {
            const quint64 before = m_saving->Counts().captured;
            m_saving->OnFrame(RunSample::Frame(Size, PixelLayout::Mono8, next));
            if (m_saving->Counts().captured > before)
                ++next;
        }
    });
    camera.join();
}

void SavingFixture::SendWhenTaken(int frames)
{
    for (int i = 0; i < frames; ++i)
        QVERIFY(SendUntilTaken(RunSample::Frame(Size, PixelLayout::Mono8, i)));
}

bool SavingFixture::SendUntilTaken(const CameraFrame &frame)
{
    const quint64 before = m_saving->Counts().captured;
    return QTest::qWaitFor(
        [&] {
            if (m_saving->Counts().captured == before)
                m_saving->OnFrame(frame);
            return m_saving->Counts().captured > before;
        },
        MsToWait);
}

RunReceipt SavingFixture::Receipt()
{
    if (m_ended->isEmpty() && !m_ended->wait(MsToWait))
        qFatal("the run did not end");
    return m_ended->takeFirst().at(0).value<RunReceipt>();
}

void SavingFixture::CompareFile(const RunReceipt &receipt, int first, int frames)
{
    QVERIFY2(!receipt.files.isEmpty(), qPrintable(receipt.error));
    QString error;
    const auto file = OpenPicture(receipt.files.first(), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, frames);
    for (int i = 0; i < frames; ++i) {
        Picture picture;
        QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
        const QByteArray expected = RunSample::Samples(Size, PixelLayout::Mono8, first + i);
        const Picture &samples = picture;
        QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
    }
}
