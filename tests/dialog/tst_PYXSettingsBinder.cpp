// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "PYXSettings.h"
#include "PYXSettingsBinder.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

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

class tst_PYXSettingsBinder : public QObject
{
    Q_OBJECT
private slots:
    void everyKindOfWidget();
    void whatCannotBeShown();
    void untouchedValuesFollowTheDefaults();
    void whatCannotBeBound();
};

void tst_PYXSettingsBinder::everyKindOfWidget()
{
    using Edit = std::function<void(Widgets &)>;
    // The key, its value afterwards.
    const Rows<QVariant, Edit> rows = {
        {"Check", false, [](Widgets &w) { w.check.click(); }},
        {"Group", true, [](Widgets &w) { w.group.setChecked(true); }},
        {"Line", "textx", [](Widgets &w) { QTest::keyClicks(&w.line, "x"); }},
        {"Plain", "y", [](Widgets &w) { QTest::keyClicks(&w.plain, "y"); }},
        {"Number", 4, [](Widgets &w) { w.number.stepUp(); }},
        {"Real", 0.5, [](Widgets &w) { w.real.stepDown(); }},
        {"Slider", 8, [](Widgets &w) { w.slider.setValue(8); }},
        {"Time", QDateTime(QDate(2021, 2, 2), {}), [](Widgets &w) { w.time.setDate(QDate(2021, 2, 2)); }},
        {"Data", "blue", [](Widgets &w) { QTest::keyClick(&w.byData, Qt::Key_Down); }},
        {"Text", "blue", [](Widgets &w) { QTest::keyClick(&w.byText, Qt::Key_Down); }},
        {"Index", 2, [](Widgets &w) { QTest::keyClick(&w.byIndex, Qt::Key_Down); }},
        {"Font", "Nowhere", [](Widgets &w) { w.font.setEditText("Nowhere"); }},
        {"Colour", 3, [](Widgets &w) { w.colours.button(3)->setChecked(true); }}};
    for (const auto &[key, value, edit] : rows) {
        const SettingsHome home;
        PYXSettings store(PYXSettings::eUserApplicationSettings);
        Widgets widgets;
        QSignalSpy modified(&widgets.binder, &PYXSettingsBinder::si_modified);
        widgets.binder.load(&store);
        QVERIFY2(modified.isEmpty() && widgets.binder.isUnmodified(&store), key);
        QVERIFY2(store.allKeys(true).isEmpty(), key);
        edit(widgets);
        QVERIFY2(!modified.isEmpty() && !widgets.binder.isUnmodified(&store), key);
        QCOMPARE(widgets.binder.store(&store), QStringList(key));
        QCOMPARE(store.value(key), value);
        QVERIFY2(widgets.binder.isUnmodified(&store), key);
        store.sync();
        Widgets others; // and from the file
        PYXSettings sameStore(store.fileName());
        others.binder.load(&sameStore);
        QVERIFY2(others.binder.isUnmodified(&store), key);
        widgets.binder.load(nullptr);
        QVERIFY2(!widgets.binder.isUnmodified(&store), key);
    }
}

void tst_PYXSettingsBinder::whatCannotBeShown()
{
    const std::pair<const char *, QVariant> values[] = {{"Number", 500},   // out of range
                                                        {"Number", "5"},   // as a text
                                                        {"Real", 0.12345}, // more digits than are shown
                                                        {"Time", QDateTime(QDate(1900, 1, 1), {})},
                                                        {"Time", "never"}, // no date
                                                        {"Data", "mauve"}, // no such item
                                                        {"Text", "mauve"},
                                                        {"Index", 17},
                                                        {"Colour", 17}, // no such button
                                                        {"Check", "false"}};
    for (const auto &[key, value] : values) {
        const SettingsHome home;
        PYXSettings store(PYXSettings::eUserApplicationSettings);
        store.setValue(key, value);
        Widgets widgets;
        widgets.binder.load(&store);
        QVERIFY2(widgets.binder.isUnmodified(&store), qPrintable(key + value.toString()));
        QVERIFY(widgets.binder.store(&store).isEmpty());
        QCOMPARE(store.value(key), value); // nothing lost that the user has not touched
    }
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
