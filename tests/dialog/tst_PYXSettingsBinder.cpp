// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettings.h"
#include "PYXSettingsBinder.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>

using namespace PYXRuntime;

/** One widget of every kind that can be bound. */
struct Widgets
{
    Widgets()
    {
        group.setCheckable(true);
        for (const char *const name : {"red", "green", "blue"}) {
            byData.addItem(QString("Item %1").arg(name), name);
            byText.addItem(name);
            byIndex.addItem(name);
            colours.addButton(new QRadioButton(name, &group), byText.count());
        }
        number.setRange(-10, 10);
        real.setDecimals(2);
        time.setDateTimeRange(QDateTime(QDate(2000, 1, 1), {}), QDateTime(QDate(2100, 1, 1), {}));
        binder.bind(&check, "Check", true);
        binder.bind(&group, "Group");
        binder.bind(&line, "Line", "text");
        binder.bind(&plain, "Plain");
        binder.bind(&number, "Number", 3);
        binder.bind(&real, "Real", 1.5);
        binder.bind(&slider, "Slider", 7);
        binder.bind(&time, "Time", QDateTime(QDate(2020, 2, 2), {}));
        binder.bind(&byData, "Data", "green");
        binder.bind(&byText, "Text", "green", PYXSettingsBinder::ekCombo_Text);
        binder.bind(&byIndex, "Index", 1, PYXSettingsBinder::ekCombo_Index);
        binder.bind(&font, "Font");
        binder.bind(&colours, "Colour", 2);
    }

    QCheckBox check;
    QGroupBox group;
    QLineEdit line;
    QPlainTextEdit plain;
    QSpinBox number;
    QDoubleSpinBox real;
    QSlider slider;
    QDateTimeEdit time;
    QComboBox byData;
    QComboBox byText;
    QComboBox byIndex;
    QFontComboBox font;
    QButtonGroup colours;
    PYXSettingsBinder binder;
};

Q_DECLARE_METATYPE(std::function<void(Widgets &)>)

class tst_PYXSettingsBinder : public QObject
{
    Q_OBJECT
private slots:
    void everyKindOfWidget_data();
    void everyKindOfWidget();
    void whatCannotBeShown_data();
    void whatCannotBeShown();
    void untouchedValuesFollowTheDefaults();
    void whatCannotBeBound();
};

void tst_PYXSettingsBinder::everyKindOfWidget_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<std::function<void(Widgets &)>>("edit");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *key, const QVariant &value, auto edit) {
        QTest::newRow(key) << key << std::function<void(Widgets &)>(edit) << value;
    };
    row("Check", false, [](Widgets &w) { w.check.click(); });
    row("Group", true, [](Widgets &w) { w.group.setChecked(true); });
    row("Line", "textx", [](Widgets &w) { QTest::keyClicks(&w.line, "x"); });
    row("Plain", "y", [](Widgets &w) { QTest::keyClicks(&w.plain, "y"); });
    row("Number", 4, [](Widgets &w) { w.number.stepUp(); });
    row("Real", 0.5, [](Widgets &w) { w.real.stepDown(); });
    row("Slider", 8, [](Widgets &w) { w.slider.setValue(8); });
    row("Time", QDateTime(QDate(2021, 2, 2), {}), [](Widgets &w) { w.time.setDate(QDate(2021, 2, 2)); });
    row("Data", "blue", [](Widgets &w) { QTest::keyClick(&w.byData, Qt::Key_Down); });
    row("Text", "blue", [](Widgets &w) { QTest::keyClick(&w.byText, Qt::Key_Down); });
    row("Index", 2, [](Widgets &w) { QTest::keyClick(&w.byIndex, Qt::Key_Down); });
    row("Font", "Nowhere", [](Widgets &w) { w.font.setEditText("Nowhere"); });
    row("Colour", 3, [](Widgets &w) { w.colours.button(3)->setChecked(true); });
}

void tst_PYXSettingsBinder::everyKindOfWidget()
{
    QFETCH(QString, key);
    QFETCH(std::function<void(Widgets &)>, edit);
    const SettingsHome home;
    PYXSettings store(PYXSettings::eUserApplicationSettings);
    Widgets widgets;
    QSignalSpy modified(&widgets.binder, &PYXSettingsBinder::si_modified);
    widgets.binder.load(&store);
    QVERIFY(modified.isEmpty() && widgets.binder.isUnmodified(&store) && store.allKeys(true).isEmpty());
    edit(widgets);
    QVERIFY(!modified.isEmpty() && !widgets.binder.isUnmodified(&store));
    QCOMPARE(widgets.binder.store(&store), QStringList(key));
    QTEST(store.value(key), "value");
    QVERIFY(widgets.binder.isUnmodified(&store));
    store.sync();
    Widgets others; // and from the file
    PYXSettings sameStore(store.fileName());
    others.binder.load(&sameStore);
    QVERIFY(others.binder.isUnmodified(&store));
    widgets.binder.load(nullptr);
    QVERIFY(!widgets.binder.isUnmodified(&store));
}

void tst_PYXSettingsBinder::whatCannotBeShown_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number out of range") << "Number" << QVariant(500);
    QTest::newRow("number as text") << "Number" << QVariant("5");
    QTest::newRow("more digits than shown") << "Real" << QVariant(0.12345);
    QTest::newRow("date out of range") << "Time" << QVariant(QDateTime(QDate(1900, 1, 1), {}));
    QTest::newRow("no date") << "Time" << QVariant("never");
    QTest::newRow("unknown item") << "Data" << QVariant("mauve");
    QTest::newRow("unknown text") << "Text" << QVariant("mauve");
    QTest::newRow("no such index") << "Index" << QVariant(17);
    QTest::newRow("no such button") << "Colour" << QVariant(17);
    QTest::newRow("truth as text") << "Check" << QVariant("false");
}

void tst_PYXSettingsBinder::whatCannotBeShown()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const SettingsHome home;
    PYXSettings store(PYXSettings::eUserApplicationSettings);
    store.setValue(key, value);
    Widgets widgets;
    widgets.binder.load(&store);
    QVERIFY(widgets.binder.isUnmodified(&store));
    QVERIFY(widgets.binder.store(&store).isEmpty());
    QCOMPARE(store.value(key), value); // nothing lost that the user has not touched
}

void tst_PYXSettingsBinder::untouchedValuesFollowTheDefaults()
{
    const SettingsHome home;
    PYXSettings defaults(PYXSettings::eDefaultApplicationSettings);
    defaults.setValue("Number", 5);
    defaults.sync();
    PYXSettings user(PYXSettings::eUserApplicationSettings);
    Widgets widgets;
    widgets.binder.load(&user);
    QCOMPARE(widgets.number.value(), 5);
    widgets.line.setText("mine");
    QCOMPARE(widgets.binder.store(&user), QStringList("Line"));
    QCOMPARE(user.allKeys(true), QStringList("Line"));
}

void tst_PYXSettingsBinder::whatCannotBeBound()
{
    PYXSettingsBinder binder;
    QLabel label;
    bool bBound = true;
    const QStringList traces = tracesOf([&] { bBound = binder.bind(&label, "Label"); });
    QCOMPARE(traces.filter("Warn|No value to bind to the key Label|").size(), 1);
    QVERIFY(!bBound && !binder.bind(static_cast<QWidget *>(nullptr), "None"));
    {
        QLineEdit edit;
        QVERIFY(binder.bind(&edit, "Edit"));
    }
    binder.load(nullptr);
    QVERIFY(binder.isUnmodified(nullptr) && binder.store(nullptr).isEmpty());
}

QTEST_MAIN(tst_PYXSettingsBinder)
#include "tst_PYXSettingsBinder.moc"
