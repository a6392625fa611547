// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldform.h"
#include "fieldsource.h"
#include "guardedtest.h"
#include "numberbox.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

#include <memory>

namespace {

PanelField Field(PanelField::Kind kind, const QString &key, const QVariant &value, const QString &group = "First")
{
    PanelField field;
    field.key = key;
    field.text = "Label of " + key;
    field.kind = kind;
    field.value = value;
    field.group = group;
    return field;
}

/// Takes what it is told, and keeps a list of it.
class Recorder : public FieldSource
{
public:
    explicit Recorder(const QString &name)
        : FieldSource(name)
    {
        PanelField number = Field(PanelField::Kind::Number, "width", 20);
        number.minimum = 10;
        number.maximum = 500;
        PanelField choice = Field(PanelField::Kind::Choice, "mode", 1);
        choice.choices = QStringList{"one", "two", "three"};
        PanelField check = Field(PanelField::Kind::Check, "automatic", true, "Second");
        check.isEnabled = false;
        fields << number << choice << check << Field(PanelField::Kind::Text, "name", "run", "Second")
               << Field(PanelField::Kind::Folder, "folder", "/there", "Second")
               << Field(PanelField::Kind::Action, "begin", QVariant(), "Second")
               << Field(PanelField::Kind::Note, "note", "so it is", "Second");
    }

    PanelFields Fields() const override { return fields; }
    void Set(const QString &key, const QVariant &value) override { told << key + '=' + value.toString(); }
    void SetWatched(bool isWatched) override { watched << isWatched; }

    PanelFields fields;
    QStringList told;
    QVector<bool> watched;
};

} // namespace

class FieldFormTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void sourcesAreFoundByName();
    void fieldsAreShownInOrder();
    void whatIsSetIsPassedOn();
    void valuesFollowAndWidgetsStay();
    void namesFollowAndWidgetsStay();
    void emptiedLineIsFilledWhenTheEditingIsFinished();
    void wheelChangesOnlyWhatHasTheFocus();
    void aNumberMayBecomeFiner();
    void otherFieldsMakeOtherWidgets();
    void tabKeyFindsTheFieldsWhereTheFormStands();
    void faultIsShownUntilItIsOver();
    void watchedOnlyWhileShown();
    void minimisingIsNoTurningAway();
    void withoutASourceItSaysSo();
    void sourceMayGoFirst();
};

void FieldFormTest::sourcesAreFoundByName()
{
    QVERIFY(!FieldSource::Find("there"));
    {
        Recorder there("there");
        QCOMPARE(FieldSource::Find("there"), static_cast<FieldSource *>(&there));
        QVERIFY(!FieldSource::Find("elsewhere"));
        {
            Recorder later("there");
            QCOMPARE(FieldSource::Find("there"), static_cast<FieldSource *>(&later));
        }
        QCOMPARE(FieldSource::Find("there"), static_cast<FieldSource *>(&there));
    }
    QVERIFY(!FieldSource::Find("there"));
}

void FieldFormTest::fieldsAreShownInOrder()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    const QList<QGroupBox *> boxes = form.findChildren<QGroupBox *>();
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(boxes.at(0)->title(), QString("First"));
    QCOMPARE(boxes.at(1)->title(), QString("Second"));
    auto *number = form.findChild<NumberBox *>("numberWidth");
    QCOMPARE(number->value(), 20.0);
    QCOMPARE(number->maximum(), 500.0);
    QVERIFY(number->toolTip().contains("10") && number->toolTip().contains("500"));
    QCOMPARE(number->accessibleName(), QString("Label of width"));
    QCOMPARE(form.findChild<QComboBox *>("choiceMode")->currentText(), QString("two"));
    QVERIFY(form.findChild<QCheckBox *>("checkAutomatic")->isChecked());
    QVERIFY(!form.findChild<QCheckBox *>("checkAutomatic")->isEnabled());
    QCOMPARE(form.findChild<QLineEdit *>("textFolder")->text(), QString("/there"));
    QCOMPARE(form.findChild<QLabel *>("noteNote")->text(), QString("so it is"));
    QVERIFY(source.told.isEmpty());
}

void FieldFormTest::whatIsSetIsPassedOn()
{
    Recorder source("test");
    source.fields[2].isEnabled = true;
    FieldForm form(&source, "absent");
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    auto *number = form.findChild<NumberBox *>("numberWidth");
    number->selectAll();
    QTest::keyClicks(number, "1000");
    QTest::keyClick(number, Qt::Key_Return);
    // The source did not take it, so its own value is back.
    QCOMPARE(number->value(), 20.0);
    QTest::keyClick(form.findChild<QComboBox *>("choiceMode"), Qt::Key_Down);
    QCOMPARE(form.findChild<QComboBox *>("choiceMode")->currentIndex(), 1);
    form.findChild<QCheckBox *>("checkAutomatic")->click();
    QTest::keyClicks(form.findChild<QLineEdit *>("textName"), "x");
    form.findChild<QPushButton *>("actionBegin")->click();
    QCOMPARE(source.told, QStringList({"width=500", "mode=2", "automatic=false", "name=runx", "begin="}));
}

void FieldFormTest::valuesFollowAndWidgetsStay()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    auto *number = form.findChild<NumberBox *>("numberWidth");
    source.fields[0].value = 30;
    source.fields[0].isEnabled = false;
    source.fields[1].choices = QStringList{"four", "five"};
    source.fields[1].value = 0;
    emit source.signalChanged();
    QCOMPARE(form.findChild<NumberBox *>("numberWidth"), number);
    QCOMPARE(number->value(), 30.0);
    QVERIFY(!number->isEnabled());
    QCOMPARE(form.findChild<QComboBox *>("choiceMode")->currentText(), QString("four"));
    QVERIFY(source.told.isEmpty());
    // A source that takes spaces off does not take them from who is still typing.
    auto *name = form.findChild<QLineEdit *>("textName");
    name->setText("my ");
    source.fields[3].value = "my";
    emit source.signalChanged();
    QCOMPARE(name->text(), QString("my "));
    source.fields[3].value = "yours";
    emit source.signalChanged();
    QCOMPARE(name->text(), QString("yours"));
}

void FieldFormTest::namesFollowAndWidgetsStay()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    auto *number = form.findChild<NumberBox *>("numberWidth");
    auto *choice = form.findChild<QComboBox *>("choiceMode");
    source.fields[0].text = "&Columns";
    source.fields[1].text = "Side";
    emit source.signalChanged();
    QCOMPARE(form.findChild<NumberBox *>("numberWidth"), number);
    QCOMPARE(number->accessibleName(), QString("Columns"));
    QCOMPARE(choice->accessibleName(), QString("Side"));
    QStringList names;
    for (const QLabel *label : form.findChildren<QLabel *>()) {
        if (label->buddy() == number || label->buddy() == choice)
            names << label->text();
    }
    QCOMPARE(names, QStringList({"Columns", "Side"}));
}

void FieldFormTest::emptiedLineIsFilledWhenTheEditingIsFinished()
{
    Recorder source("test"); // has "/there" whatever it is told
    FieldForm form(&source, "absent");
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    auto *folder = form.findChild<QLineEdit *>("textFolder");
    folder->setFocus();
    folder->selectAll();
    QTest::keyClick(folder, Qt::Key_Delete);
    QCOMPARE(source.told, QStringList("folder="));
    QCOMPARE(folder->text(), QString());
    emit source.signalChanged();
    QCOMPARE(folder->text(), QString());
    QTest::keyClick(folder, Qt::Key_Return);
    QCOMPARE(folder->text(), QString("/there"));
    folder->selectAll();
    QTest::keyClick(folder, Qt::Key_Delete);
    QCOMPARE(folder->text(), QString());
    QTest::keyClick(folder, Qt::Key_Tab);
    QCOMPARE(folder->text(), QString("/there"));
}

void FieldFormTest::wheelChangesOnlyWhatHasTheFocus()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.findChild<QLineEdit *>("textName")->setFocus();
    for (const char *name : { "numberWidth", "choiceMode" }) {
        auto *widget = form.findChild<QWidget *>(name);
        QWheelEvent before(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                           Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &before);
        QVERIFY2(source.told.isEmpty(), name);
        QVERIFY(!before.isAccepted()); // the area around it scrolls
    }
    auto *number = form.findChild<NumberBox *>("numberWidth");
    number->setFocus();
    QWheelEvent turned(QPointF(5, 5), number->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(number, &turned);
    QCOMPARE(source.told, QStringList("width=19"));
}

/// The levels of a picture of whole numbers, then those of one from 0 to 1.
void FieldFormTest::aNumberMayBecomeFiner()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    auto *number = form.findChild<NumberBox *>("numberWidth");
    QCOMPARE(number->text(), number->locale().toString(20));
    PanelField &width = source.fields[0];
    width.minimum = 0;
    width.maximum = 1;
    width.value = 0.5;
    width.decimals = 3;
    width.step = 0.001;
    width.unit = " mm";
    emit source.signalChanged();
    QCOMPARE(form.findChild<NumberBox *>("numberWidth"), number);
    QCOMPARE(number->text(), number->locale().toString(0.5, 'f', 3) + " mm");
    number->selectAll();
    QTest::keyClicks(number, "0.25");
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(source.told, QStringList("width=0.25"));

    width.decimals = 0;
    width.maximum = 500;
    width.value = 123;
    width.unit = QString();
    emit source.signalChanged();
    QCOMPARE(number->text(), QString("123"));
    width.value = 0;
    width.zeroText = "automatic";
    emit source.signalChanged();
    QCOMPARE(number->text(), QString("automatic"));
}

void FieldFormTest::otherFieldsMakeOtherWidgets()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    source.fields.remove(0);
    emit source.signalChanged();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!form.findChild<NumberBox *>("numberWidth"));
    QVERIFY(form.findChild<QComboBox *>("choiceMode"));
}

void FieldFormTest::tabKeyFindsTheFieldsWhereTheFormStands()
{
    Recorder source("test");
    QWidget window;
    QVBoxLayout column(&window);
    QLineEdit above;
    FieldForm form(&source, "absent");
    QLineEdit below;
    for (QWidget *widget : QVector<QWidget *>{ &above, &form, &below })
        column.addWidget(widget);
    window.show(); // the fields are made now
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto passed = [&] {
        QStringList names;
        above.setFocus();
        QTest::keyClick(&above, Qt::Key_Tab);
        for (int i = 0; i < 20 && !below.hasFocus() && !above.hasFocus(); ++i) {
            names << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return names;
    };
    QCOMPARE(passed(), QStringList({ "numberWidth", "choiceMode", "textName", "textFolder", "chooseFolder",
                                     "actionBegin" }));
    source.fields.remove(0);
    emit source.signalChanged();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(form.findChild<QComboBox *>("choiceMode")->isVisible());
    QCOMPARE(passed(),
             QStringList({ "choiceMode", "textName", "textFolder", "chooseFolder", "actionBegin" }));
    QVERIFY(below.hasFocus());
}

void FieldFormTest::faultIsShownUntilItIsOver()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    auto *fault = form.findChild<QLabel *>("labelFault");
    QVERIFY(!fault->isVisible());
    emit source.signalFault("The camera said no.");
    QVERIFY(fault->isVisible());
    QCOMPARE(fault->text(), QString("The camera said no."));
    emit source.signalFault(QString());
    QVERIFY(!fault->isVisible());
}

void FieldFormTest::watchedOnlyWhileShown()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    QVERIFY(source.watched.isEmpty());
    form.show();
    form.hide();
    QCOMPARE(source.watched, QVector<bool>({true, false}));
}

void FieldFormTest::minimisingIsNoTurningAway()
{
    Recorder source("test");
    FieldForm form(&source, "absent");
    form.show();
    QHideEvent minimised;
    QSpontaneKeyEvent::setSpontaneous(&minimised);
    qApp->notify(&form, &minimised);
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    qApp->notify(&form, &restored);
    QCOMPARE(source.watched, QVector<bool>({true}));
}

void FieldFormTest::withoutASourceItSaysSo()
{
    FieldForm form(nullptr, "There is no camera service.");
    form.show();
    QVERIFY(form.findChild<QLabel *>("labelFault")->isVisible());
    QCOMPARE(form.findChild<QLabel *>("labelFault")->text(), QString("There is no camera service."));
    form.slotUpdate();
}

void FieldFormTest::sourceMayGoFirst()
{
    auto source = std::make_unique<Recorder>("test");
    FieldForm form(source.get(), "absent");
    form.show();
    source.reset();
    QVERIFY(!form.findChild<NumberBox *>("numberWidth")->isEnabled());
    form.slotUpdate();
    form.hide();
}

GUARDED_TEST_MAIN(FieldFormTest)
#include "fieldformtest.moc"
