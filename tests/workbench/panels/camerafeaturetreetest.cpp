// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerafeaturetree.h"
#include "cameralink.h"
#include "camerasession.h"
#include "devicelist.h"
#include "guardedtest.h"

#include <QAbstractItemModel>
#include <QSemaphore>
#include <QSignalSpy>

#include <memory>

Q_DECLARE_METATYPE(FeatureTree::Editor)

class CameraFeatureTreeTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_link = std::make_unique<CameraLink>();
        m_tree = std::make_unique<CameraFeatureTree>(m_link.get());
    }

    void cleanup() override
    {
        m_tree.reset();
        m_link.reset();
        QVERIFY(CameraSession::WaitForTeardown(5000));
        EndGuard();
    }

    void isFoundByPanels()
    {
        QCOMPARE(FeatureTree::GetInstance(), static_cast<FeatureTree *>(m_tree.get()));
        m_tree.reset();
        QVERIFY(!FeatureTree::GetInstance());
    }

    void nothingIsReadUntilSomebodyLooks()
    {
        OpenCamera();
        QCOMPARE(Model()->rowCount(), 0);
        m_tree->SetWatched(true);
        QTRY_VERIFY(Model()->rowCount() > 0);
        m_link->Close();
        QTRY_COMPARE(Model()->rowCount(), 0);
    }

    void valuesAndEditorsAreTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<FeatureTree::Editor>("editor");
        QTest::newRow("read only") << "SensorWidth" << "2048" << FeatureTree::Editor::None;
        QTest::newRow("choice") << "TriggerMode" << "Off" << FeatureTree::Editor::Choice;
        QTest::newRow("number") << "TestRegister" << "305419896" << FeatureTree::Editor::Number;
        QTest::newRow("command") << "TriggerSoftware" << "Do" << FeatureTree::Editor::Command;
        QTest::newRow("of another panel") << "Width" << "2048" << FeatureTree::Editor::None;
    }

    void valuesAndEditorsAreTold()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(FeatureTree::Editor, editor);
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value(name).isValid());
        QCOMPARE(Value(name).data().toString(), text);
        QCOMPARE(FeatureTree::Editor(Value(name).data(FeatureTree::EditorRole).toInt()), editor);
        QVERIFY(Value(name).data(Qt::ToolTipRole).toString().startsWith(name));
    }

    void changeIsReadBack()
    {
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("TestRegister").isValid());
        QSignalSpy fault(m_tree.get(), &FeatureTree::signalFault);
        m_tree->Set(Value("TestRegister"), 1e15); // beyond its 32 bits
        QTRY_COMPARE(Value("TestRegister").data().toString(), QString("4294967295"));
        m_tree->Set(Value("TriggerSource"), "Software");
        QTRY_COMPARE(Value("TriggerSource").data().toString(), QString("Software"));
        QVERIFY(fault.count() >= 2);
        QVERIFY(fault.last().first().toString().isEmpty());
        m_tree->Set(Value("TriggerSource"), "NoSuchSource");
        QTRY_VERIFY(!fault.last().first().toString().isEmpty());
        QCOMPARE(Value("TriggerSource").data().toString(), QString("Software"));
    }

    void rowsStayWhileTheyAreReadAgain()
    {
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("TestRegister").isValid());
        const QPersistentModelIndex index = Value("TestRegister");
        m_tree->Set(index, 7);
        QTRY_COMPARE(index.data().toString(), QString("7"));
    }

    void whatOtherPanelsSetIsLeftAlone()
    {
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("Width").isValid());
        m_tree->Set(Value("Width"), 100);
        m_tree->Set(Value("TestRegister"), 9);
        QTRY_COMPARE(Value("TestRegister").data().toString(), QString("9"));
        QCOMPARE(m_link->Session()->Format().region.width(), 2048);
        QCOMPARE(Value("Width").data().toString(), QString("2048"));
    }

    /// What this program does in the simulated camera's place is not mistaken for a change.
    void changeLeavesOtherSettingsAlone()
    {
        OpenCamera();
        CameraSession *session = m_link->Session();
        m_link->SetPixelLayout(PixelLayout::Mono12);
        m_link->SetBinning(2);
        m_link->SetRegion(QRect(64, 32, 256, 128));
        session->SetExposureUs(200000);
        session->SetFrameRate(50); // as fast as the exposure lets it
        QTRY_VERIFY(!session->IsSetting());
        const FormatValues format = session->Format();
        const ControlValues controls = session->Controls();
        QCOMPARE(format.layout, PixelLayout::Mono12);
        QCOMPARE(controls.frameRate, 5.0);
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("TestRegister").isValid());
        QSignalSpy formats(m_link.get(), &CameraLink::signalFormatChanged);
        QSignalSpy changed(m_link.get(), &CameraLink::signalControlsChanged);
        m_tree->Set(Value("TestRegister"), 11);
        QTRY_COMPARE(Value("TestRegister").data().toString(), QString("11"));
        m_tree->Set(Value("TriggerSoftware"), QVariant());
        bool isDone = false;
        QVERIFY(session->TakeTurn(nullptr, this, [&isDone] { isDone = true; }));
        QTRY_VERIFY(isDone);
        QVERIFY(session->Format() == format);
        QVERIFY(session->Controls() == controls);
        QCOMPARE(formats.count(), 0);
        QCOMPARE(changed.count(), 0);
    }

    /// Both talk to the camera; neither call comes in the middle of the other's.
    void settingsAndReadingTakeTurns()
    {
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("TestRegister").isValid());
        for (int i = 1; i <= 200; ++i) {
            m_link->Session()->SetExposureUs(1000 + i);
            m_tree->Set(Value("TestRegister"), i);
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(Value("TestRegister").data().toString(), QString("200"));
        QTRY_VERIFY(Value("ExposureTimeAbs").data(FeatureTree::ValueRole).toDouble() == 1200.0);
        QCOMPARE(m_link->Session()->Controls().exposureUs, 1200.0);
    }

    void commandsAreAllCarriedOutAndOfValuesTheNewest()
    {
        OpenCamera();
        m_tree->SetWatched(true);
        QTRY_VERIFY(Value("TestRegister").isValid());
        QSemaphore answer;
        QVERIFY(m_link->Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        QSignalSpy fault(m_tree.get(), &FeatureTree::signalFault); // one for each that was carried out
        for (int i = 1; i <= 20; ++i)
            m_tree->Set(Value("TestRegister"), i);
        for (int i = 0; i < 3; ++i)
            m_tree->Set(Value("TriggerSoftware"), QVariant());
        QCOMPARE(fault.count(), 0);
        answer.release();
        QTRY_COMPARE(Value("TestRegister").data().toString(), QString("20"));
        QTRY_COMPARE(fault.count(), 4);
    }

    /// Nobody waits for what is being read.
    void treeMayGoWhileTheCameraDoesNotAnswer()
    {
        OpenCamera();
        QSemaphore answer;
        QVERIFY(m_link->Session()->TakeTurn([&answer](ArvCamera *) { answer.acquire(); }, this, [] {}));
        m_tree->SetWatched(true);
        m_tree.reset();
        bool isDone = false;
        QVERIFY(m_link->Session()->TakeTurn(nullptr, this, [&isDone] { isDone = true; }));
        answer.release();
        QTRY_VERIFY(isDone);
    }

    void cameraMayGoWhileItIsRead()
    {
        OpenCamera();
        for (int i = 0; i < 4; ++i) {
            m_tree->SetWatched(true);
            m_link->Close();
            QCOMPARE(Model()->rowCount(), 0);
            OpenCamera();
        }
        QTRY_VERIFY(Model()->rowCount() > 0);
    }

private:
    QAbstractItemModel *Model() const { return m_tree->Model(); }

    void OpenCamera()
    {
        m_link->Open(SimulatedCameraInfo().id);
        QTRY_COMPARE(m_link->GetState(), CameraLink::State::Open);
    }

    QModelIndex Value(const QString &name) const
    {
        for (int i = 0; i < Model()->rowCount(); ++i) {
            const QModelIndex category = Model()->index(i, 0);
            for (int j = 0; j < Model()->rowCount(category); ++j) {
                // Its text is the camera's; the tool tip begins with its name.
                if (Model()->index(j, 0, category).data(Qt::ToolTipRole).toString().section('\n', 0, 0) == name)
                    return Model()->index(j, FeatureTree::ValueColumn, category);
            }
        }
        return QModelIndex();
    }

    std::unique_ptr<CameraLink> m_link;
    std::unique_ptr<CameraFeatureTree> m_tree;
};

GUARDED_TEST_MAIN(CameraFeatureTreeTest)
#include "camerafeaturetreetest.moc"
