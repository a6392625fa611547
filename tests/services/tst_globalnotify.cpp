// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "globalnotify.h"

#include <QThread>
#include <QVector>

#include <functional>
#include <memory>

namespace {

/// One delivery as an observer saw it.
struct Delivery
{
    QString observer;
    int id;
    void *data;
    QThread *thread;
};

class NamedObserver : public LxObserver
{
public:
    NamedObserver(const QString &name, QVector<Delivery> *deliveries)
        : m_name(name)
        , m_deliveries(deliveries)
    {
    }

    void UpdateObserver(int id, void *data) override
    {
        m_deliveries->append({m_name, id, data, QThread::currentThread()});
        if (onUpdate)
            onUpdate();
    }

    std::function<void()> onUpdate;

private:
    QString m_name;
    QVector<Delivery> *m_deliveries;
};

QStringList Names(const QVector<Delivery> &deliveries)
{
    QStringList names;
    for (const Delivery &delivery : deliveries)
        names << delivery.observer;
    return names;
}

} // namespace

class TestGlobalNotify : public GuardedTest
{
    Q_OBJECT

private slots:
    void HasTheIdsThatOtherModulesSend()
    {
        QCOMPARE(int(NotifyRaiseCalibrationTable), 12);
        QCOMPARE(int(NotifyRaiseClassCounting), 15);
        QCOMPARE(int(NotifyFullScreen), 64);
        QCOMPARE(int(NotifyBlackBackground), 65);
        QCOMPARE(int(NotifyRefreshOverlays), 71);
        QCOMPARE(int(NotifyFVBBandChanged), 90);
    }

    void DeliversIdAndDataInOrderOfAttaching()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        NamedObserver second("second", &deliveries);
        GlobalAttachObserver(&second);
        GlobalAttachObserver(&first);
        int payload = 7;

        GlobalNotifyObserver(71, &payload);

        QCOMPARE(Names(deliveries), QStringList({"second", "first"}));
        QCOMPARE(deliveries.at(0).id, 71);
        QCOMPARE(deliveries.at(0).data, static_cast<void *>(&payload));
        QCOMPARE(deliveries.at(1).id, 71);
    }

    void CallsAnObserverOnceThatIsAttachedTwice()
    {
        QVector<Delivery> deliveries;
        NamedObserver observer("observer", &deliveries);
        GlobalAttachObserver(&observer);
        GlobalAttachObserver(&observer);

        GlobalNotifyObserver(12, nullptr);
        QCOMPARE(deliveries.size(), 1);

        GlobalDetachObserver(&observer);
        GlobalNotifyObserver(12, nullptr);
        QCOMPARE(deliveries.size(), 1);
    }

    void NoObserverIsIgnored()
    {
        GlobalAttachObserver(nullptr);
        GlobalDetachObserver(nullptr);
        QVector<Delivery> deliveries;
        NamedObserver observer("observer", &deliveries);
        GlobalAttachObserver(&observer);
        GlobalNotifyObserver(15, nullptr);
        QCOMPARE(deliveries.size(), 1);
    }

    void LeavesOutAnObserverThatIsDetachedDuringTheDelivery()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        NamedObserver second("second", &deliveries);
        NamedObserver third("third", &deliveries);
        for (NamedObserver *observer : {&first, &second, &third})
            GlobalAttachObserver(observer);
        first.onUpdate = [&] { GlobalDetachObserver(&second); };

        GlobalNotifyObserver(90, nullptr);

        QCOMPARE(Names(deliveries), QStringList({"first", "third"}));
    }

    void AnObserverMayDetachItself()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        NamedObserver second("second", &deliveries);
        GlobalAttachObserver(&first);
        GlobalAttachObserver(&second);
        first.onUpdate = [&] { GlobalDetachObserver(&first); };

        GlobalNotifyObserver(90, nullptr);
        GlobalNotifyObserver(90, nullptr);

        QCOMPARE(Names(deliveries), QStringList({"first", "second", "second"}));
    }

    void AnObserverAttachedDuringTheDeliveryWaitsForTheNext()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        NamedObserver late("late", &deliveries);
        GlobalAttachObserver(&first);
        first.onUpdate = [&] { GlobalAttachObserver(&late); };

        GlobalNotifyObserver(90, nullptr);
        QCOMPARE(Names(deliveries), QStringList({"first"}));

        GlobalNotifyObserver(90, nullptr);
        QCOMPARE(Names(deliveries), QStringList({"first", "first", "late"}));
    }

    void AnObserverThatIsGoneIsNotCalled()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        auto second = std::make_unique<NamedObserver>("second", &deliveries);
        GlobalAttachObserver(&first);
        GlobalAttachObserver(second.get());
        first.onUpdate = [&] { second.reset(); };

        GlobalNotifyObserver(64, nullptr);
        GlobalNotifyObserver(65, nullptr);

        QCOMPARE(Names(deliveries), QStringList({"first", "first"}));
    }

    void DeliversANotificationWithinADelivery()
    {
        QVector<Delivery> deliveries;
        NamedObserver first("first", &deliveries);
        NamedObserver second("second", &deliveries);
        GlobalAttachObserver(&first);
        GlobalAttachObserver(&second);
        first.onUpdate = [&] {
            first.onUpdate = nullptr;
            GlobalNotifyObserver(65, nullptr);
        };

        GlobalNotifyObserver(64, nullptr);

        QCOMPARE(Names(deliveries), QStringList({"first", "first", "second", "second"}));
        QCOMPARE(deliveries.at(2).id, 65);
        QCOMPARE(deliveries.at(3).id, 64);
    }

    void DeliversOnTheGuiThreadWhateverThreadNotifies()
    {
        QVector<Delivery> deliveries;
        NamedObserver observer("observer", &deliveries);
        GlobalAttachObserver(&observer);
        int payload = 3;
        std::unique_ptr<QThread> sender(QThread::create([&payload] {
            GlobalNotifyObserver(90, &payload);
            GlobalNotifyObserver(71, nullptr);
        }));
        sender->start();
        QVERIFY(sender->wait());
        QVERIFY(deliveries.isEmpty()); // the events of this thread have not run yet

        QTRY_COMPARE(deliveries.size(), 2);

        QCOMPARE(deliveries.at(0).id, 90);
        QCOMPARE(deliveries.at(0).data, static_cast<void *>(&payload));
        QCOMPARE(deliveries.at(1).id, 71);
        for (const Delivery &delivery : qAsConst(deliveries))
            QCOMPARE(delivery.thread, QThread::currentThread());
    }

    void ManyThreadsMayNotifyAtOnce()
    {
        constexpr int Threads = 4;
        constexpr int PerThread = 250;
        QVector<Delivery> deliveries;
        NamedObserver observer("observer", &deliveries);
        GlobalAttachObserver(&observer);
        std::vector<std::unique_ptr<QThread>> senders;
        for (int i = 0; i < Threads; ++i) {
            senders.emplace_back(QThread::create([] {
                for (int n = 0; n < PerThread; ++n)
                    GlobalNotifyObserver(71, nullptr);
            }));
            senders.back()->start();
        }
        for (const auto &sender : senders)
            QVERIFY(sender->wait());

        QTRY_COMPARE(deliveries.size(), Threads * PerThread);
    }
};

GUARDED_TEST_MAIN(TestGlobalNotify)
#include "tst_globalnotify.moc"
