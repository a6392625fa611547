// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "uiplugin.h"
#include "uipluginmetadata.h"

#include <QJsonDocument>

namespace {

/// What the file of a plug-in with these texts says.
UIPluginMetaData MetaData(const QByteArray &json, const QString &iid = GLOBALUI_UIPLUGIN_IID, int qt = 0x050f00)
{
    return UIPluginMetaData({ { "IID", iid }, { "version", qt }, { "MetaData", QJsonDocument::fromJson(json).object() } });
}

} // namespace

class TestUIPluginMetaData : public GuardedTest
{
    Q_OBJECT

private slots:
    void TellsWhatIsWrong_data();
    void TellsWhatIsWrong();
    void AnIdIsAWholeNumber_data();
    void AnIdIsAWholeNumber();
    void TellsWhereThePanelBelongs_data();
    void TellsWhereThePanelBelongs();
    void TellsTitleAndVersion();
    void AnEmptyFileIsNoPlugin();
    void AnotherInterfaceIsNamed();
    void TellsWhichQtFits_data();
    void TellsWhichQtFits();
};

void TestUIPluginMetaData::TellsWhatIsWrong_data()
{
    const QString place = "its metadata has no valid \"place\"";
    const QString title = "its metadata has no \"title\" for the bottom page";
    const QString page = "its metadata has no valid \"page\"";
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("fault");
    QTest::newRow("tab") << QByteArray(R"({"id":4,"place":"tab"})") << "";
    QTest::newRow("bottom page") << QByteArray(R"({"id":4,"place":"bottom","title":"Table"})") << "";
    QTest::newRow("no id") << QByteArray(R"({"place":"tab"})") << "its metadata has no valid \"id\"";
    QTest::newRow("id taken") << QByteArray(R"({"id":7,"place":"tab"})")
                              << "another plug-in has the id 7 already";
    QTest::newRow("no place") << QByteArray(R"({"id":4})") << place;
    QTest::newRow("unknown place") << QByteArray(R"({"id":4,"place":"top"})") << place;
    QTest::newRow("place, other case") << QByteArray(R"({"id":4,"place":"Tab"})") << place;
    QTest::newRow("no title") << QByteArray(R"({"id":4,"place":"bottom"})") << title;
    QTest::newRow("empty title") << QByteArray(R"({"id":4,"place":"bottom","title":""})") << title;
    QTest::newRow("title is a number") << QByteArray(R"({"id":4,"place":"bottom","title":3})") << title;
    QTest::newRow("unknown page") << QByteArray(R"({"id":4,"place":"tab","page":"file"})") << page;
    QTest::newRow("empty page") << QByteArray(R"({"id":4,"place":"tab","page":""})") << page;
}

void TestUIPluginMetaData::TellsWhatIsWrong()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, fault);
    QCOMPARE(MetaData(json).Fault({ 7, 8 }), fault);
}

void TestUIPluginMetaData::AnIdIsAWholeNumber_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("id");
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("number") << QByteArray("64") << 64;
    QTest::newRow("whole number with a point") << QByteArray("64.0") << 64;
    QTest::newRow("fraction") << QByteArray("4.5") << -1;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("very negative") << QByteArray("-20") << -1;
    QTest::newRow("too large") << QByteArray("1e12") << -1;
    QTest::newRow("text") << QByteArray("\"4\"") << -1;
    QTest::newRow("nothing") << QByteArray("null") << -1;
}

void TestUIPluginMetaData::AnIdIsAWholeNumber()
{
    QFETCH(QByteArray, value);
    QFETCH(int, id);
    const UIPluginMetaData metaData = MetaData(R"({"place":"tab","id":)" + value + "}");
    QCOMPARE(metaData.Id(), id);
    QCOMPARE(metaData.Fault({}).isEmpty(), id >= 0);
}

void TestUIPluginMetaData::TellsWhereThePanelBelongs_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("bottom");
    QTest::addColumn<bool>("camera");
    QTest::addColumn<bool>("image");
    QTest::newRow("camera") << QByteArray(R"({"place":"bottom","page":"camera"})") << true << true << false;
    QTest::newRow("image") << QByteArray(R"({"place":"bottom","page":"image"})") << true << false << true;
    QTest::newRow("both") << QByteArray(R"({"place":"bottom","page":"both"})") << true << true << true;
    QTest::newRow("not said") << QByteArray(R"({"place":"tab"})") << false << true << true;
}

void TestUIPluginMetaData::TellsWhereThePanelBelongs()
{
    QFETCH(QByteArray, json);
    const UIPluginMetaData metaData = MetaData(json);
    QTEST(metaData.IsBottomPage(), "bottom");
    QTEST(metaData.BelongsToCamera(), "camera");
    QTEST(metaData.BelongsToImage(), "image");
}

void TestUIPluginMetaData::TellsTitleAndVersion()
{
    const UIPluginMetaData metaData = MetaData(R"({"title":"Class Counting","version":"1.2"})");
    QCOMPARE(metaData.Title(), QString("Class Counting"));
    QCOMPARE(metaData.Version(), QString("1.2"));
    QCOMPARE(MetaData("{}").Title(), QString());
    QCOMPARE(MetaData("{}").Version(), QString());
}

void TestUIPluginMetaData::AnEmptyFileIsNoPlugin()
{
    QCOMPARE(UIPluginMetaData(QJsonObject()).Fault({}), QString("it is not a plug-in"));
    QCOMPARE(UIPluginMetaData(QJsonObject(), "it is cut off").Fault({}),
             QString("it is not a plug-in: it is cut off"));
}

void TestUIPluginMetaData::AnotherInterfaceIsNamed()
{
    QCOMPARE(MetaData(R"({"id":4,"place":"tab"})", "other/2").Fault({}),
             QString("it is a plug-in for another interface: \"other/2\""));
}

void TestUIPluginMetaData::TellsWhichQtFits_data()
{
    QTest::addColumn<int>("qt");
    QTest::addColumn<QString>("builtFor");
    QTest::newRow("this one") << 0x050f00 << "";
    QTest::newRow("its patch release does not matter") << 0x050fff << "";
    QTest::newRow("earlier") << 0x050900 << "";
    QTest::newRow("later") << 0x051000 << "Qt 5.16,";
    QTest::newRow("the one before") << 0x040807 << "Qt 4.8,";
    QTest::newRow("the next") << 0x060000 << "Qt 6.0,";
    QTest::newRow("none is said") << 0 << "Qt 0.0,";
}

void TestUIPluginMetaData::TellsWhichQtFits()
{
    QFETCH(int, qt);
    QFETCH(QString, builtFor);
    const QString fault = MetaData(R"({"id":4,"place":"tab"})", GLOBALUI_UIPLUGIN_IID, qt).Fault({});
    if (builtFor.isEmpty())
        QCOMPARE(fault, QString());
    else
        QVERIFY2(fault.contains(builtFor), qPrintable(fault));
}

GUARDED_TEST_MAIN(TestUIPluginMetaData)
#include "tst_uipluginmetadata.moc"
