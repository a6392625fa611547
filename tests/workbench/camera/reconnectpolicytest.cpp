// SPDX-License-Identifier: GPL-3.0-or-later
#include "reconnectpolicy.h"
#include "guardedtest.h"

class ReconnectPolicyTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void WaitsLongerAndGivesUp();
    void StartsShortAgainAfterASuccess();
};

void ReconnectPolicyTest::WaitsLongerAndGivesUp()
{
    ReconnectPolicy policy(8);
    QVector<int> delays;
    while (const std::optional<int> delayMs = policy.NextDelayMs())
        delays.append(*delayMs);
    QCOMPARE(delays, QVector<int>({ 1000, 2000, 4000, 8000, 15000, 30000, 30000, 30000 }));
    QCOMPARE(policy.TriesMade(), 8);
    QVERIFY(!policy.NextDelayMs());
}

void ReconnectPolicyTest::StartsShortAgainAfterASuccess()
{
    ReconnectPolicy policy;
    policy.NextDelayMs();
    QCOMPARE(policy.NextDelayMs().value(), 2000);
    policy.Reset();
    QCOMPARE(policy.TriesMade(), 0);
    QCOMPARE(policy.NextDelayMs().value(), 1000);
}

GUARDED_TEST_MAIN(ReconnectPolicyTest)
#include "reconnectpolicytest.moc"
