// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasessionfixture.h"

void CameraSessionFixture::init()
{
    StartGuard();
    m_session = std::make_unique<CameraSession>();
    m_frames.Clear();
    m_faults.clear();
    const auto keepFault = [this](const QString &error) {
        if (!error.isEmpty())
            m_faults << error;
    };
    connect(m_session.get(), &CameraSession::signalControlSet, this, keepFault);
    connect(m_session.get(), &CameraSession::signalFormatSet, this, keepFault);
    connect(m_session.get(), &CameraSession::signalFramesFailed, this, keepFault);
}

void CameraSessionFixture::cleanup()
{
    m_session.reset();
    m_frames.Clear();
    QVERIFY(CameraSession::WaitForTeardown(10000));
    EndGuard();
}

void CameraSessionFixture::OpenWithChart()
{
    QVERIFY(m_session->SetScene("testchart"));
    QString error;
    QVERIFY2(m_session->Open("Fake_1", &error), qPrintable(error));
}

void CameraSessionFixture::Settle()
{
    QTRY_VERIFY_WITH_TIMEOUT(!m_session->IsSetting(), 20000);
    QCOMPARE(m_faults, QStringList());
}
