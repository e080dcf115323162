// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettings.h"

#include "FileContents.h"
#include "PYXBrokerRegistration.h"
#include "PYXIFileDialogPlaces.h"
#include "PYXStatusHash.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtGui/QBrush>
#include <QtTest/QtTest>

using PYXRuntime::PYXSettings;

namespace {

class Places : public QObject, public PYXRuntime::PYXIFileDialogPlaces
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::PYXIFileDialogPlaces)
public:
    void resetLastFileOrDir(uint specialDir, const QString &directory) override
    {
        calls += QString("%1 %2").arg(QString::number(specialDir), directory);
    }
    QStringList calls;
};

QString flagsOf(const QSettings *settings)
{
    QString flags;
    flags += PYXSettings::isUserSettings(settings) ? 'u' : '-';
    flags += PYXSettings::isSharedSettings(settings) ? 's' : '-';
    flags += PYXSettings::isDefaultSettings(settings) ? 'd' : '-';
    flags += PYXSettings::isApplicationSettings(settings) ? 'a' : '-';
    flags += PYXSettings::isThisRunOnly(settings) ? 't' : '-';
    return flags;
}

/** Writes a value, and tells whether it is read. */
struct struValue
{
    const char *name;
    std::function<void(PYXSettings &)> write;
    std::function<bool(const PYXSettings &)> isRead;
};

} // namespace

class tst_PYXSettings : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_home.reset(new SettingsHome); }
    void constructorsOpenTheirStores();
    void queriesReadTheProperty();
    void fallbacksCanBeLeftOut();
    void valuesComeBackFromTheFile();
    void cloningKeepsTheRestOfTheTarget();
    void differencesAreThoseOfTheCurrent();
    void changedPathsAreToldAndHandled();

private:
    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXSettings::constructorsOpenTheirStores()
{
    m_home->hold(QSettings::IniFormat);
    const auto opens = [this](PYXSettings &&settings, const QString &file) {
        QCOMPARE(settings.property("pyx__purpose__"), QVariant(false)); // the flag has replaced the purpose
        QCOMPARE(QDir(m_home->path({})).relativeFilePath(settings.fileName()), file);
        QVERIFY(!QFile::exists(settings.fileName()) || QFile::remove(settings.fileName()));
        settings.setValue("Key", 1);
        settings.sync();
        QVERIFY(!get(settings.fileName()).isEmpty());
        QCOMPARE(get(settings.fileName()).contains("PYXXmlSettings"), !file.endsWith("ini"));
    };
    const auto ini = QSettings::IniFormat;
    const char *const purposes[] = {
        "user/Organisation/Application",      "user/Organisation/Application",
        "user/Organisation/SharedSettings",   "system/Organisation/Application",
        "system/Organisation/SharedSettings", "system/Organisation/SharedSettings"};
    for (int i = 0; i < 6; ++i) {
        opens(PYXSettings(PYXSettings::ePurpose(i)), purposes[i] + QString(".PYXXml"));
        opens(PYXSettings(ini, PYXSettings::ePurpose(i)), purposes[i] + QString(".ini"));
    }
    opens(PYXSettings(QSettings::UserScope), "user/Organisation/Application.PYXXml");
    opens(PYXSettings(QSettings::SystemScope), "system/Organisation/Application.PYXXml");
    opens(PYXSettings(ini, QSettings::SystemScope), "system/Organisation/Application.ini");
    opens(PYXSettings(m_home->path("own.file")), "own.file");
    opens(PYXSettings(m_home->path("own.ini"), ini), "own.ini");
}

void tst_PYXSettings::queriesReadTheProperty()
{
    const std::tuple<QVariant, int, const char *> rows[] = {
        {QVariant(), 0, "-----"}, {1, 1, "u--at"}, {2, 2, "us--t"},   {3, 3, "--dat"},
        {4, 4, "-sd-t"},          {5, 5, "----t"}, {true, 1, "u--at"}};
    for (const auto &[property, purpose, flags] : rows) {
        QSettings plain(m_home->path("plain.ini"), QSettings::IniFormat);
        plain.setProperty("pyx__purpose__", property);
        QCOMPARE(PYXSettings::purpose(&plain), purpose);
        QCOMPARE(flagsOf(&plain), QString(flags));
    }
    QCOMPARE(flagsOf(nullptr), QString("-----"));
}

void tst_PYXSettings::fallbacksCanBeLeftOut()
{
    PYXSettings(PYXSettings::eDefaultApplicationSettings).setValue("Machine/Key", "fallback");
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("User/Key", 1);
    for (const bool bEnabled : {true, false}) {
        settings.setFallbacksEnabled(bEnabled);
        QVERIFY(!settings.contains("Machine/Key", true));
        QVERIFY(!settings.value("Machine/Key", true).isValid());
        QCOMPARE(settings.stringValue("Machine/Key", true), QString());
        QCOMPARE(settings.allKeys(true), QStringList("User/Key"));
        QCOMPARE(settings.childGroups(true), QStringList("User"));
        QCOMPARE(settings.fallbacksEnabled(), bEnabled);
        QCOMPARE(settings.contains("Machine/Key", false), bEnabled);
        QCOMPARE(settings.childGroups(false).size(), bEnabled ? 2 : 1);
    }
    settings.setFallbacksEnabled(true);
    settings.beginGroup("Machine");
    QCOMPARE(settings.childKeys(true), QStringList());
    QCOMPARE(settings.childKeys(false), QStringList("Key"));
    QCOMPARE(settings.stringValue("Key"), QString("fallback"));
    // Default values are no flags.
    QCOMPARE(settings.value("Missing", 5), QVariant(5));
    QCOMPARE(settings.value("Missing", QString("text")), QVariant("text"));
    QCOMPARE(settings.value("Missing", "text"), QVariant("text"));
    QCOMPARE(settings.value("Missing", QVariant(true)), QVariant(true));
    QVERIFY(!settings.value("Missing", true).isValid());
    QVERIFY(!settings.value("Missing").isValid());
}

void tst_PYXSettings::valuesComeBackFromTheFile()
{
#define VALUE(name, stored, getter, expected)                                                                \
    {                                                                                                        \
        name, [&](PYXSettings &s) { s.setValue(name, stored); },                                             \
            [&](const PYXSettings &s) { return s.getter(name) == (expected); }                               \
    }
    const QUuid id("{0a1b2c3d-4e5f-6a7b-8c9d-0e1f2a3b4c5d}");
    PYXRuntime::PYXStatusHash hash(0x12);
    hash.insert("Threshold", 0.5);
    hash.insert("Inner", hash);
    const struValue values[] = {
        VALUE("uuid", id, uuidValue, id),
        VALUE("text of a uuid", id, stringValue, QString("{0A1B2C3D-4E5F-6A7B-8C9D-0E1F2A3B4C5D}")),
        VALUE("bool", true, boolValue, true),
        VALUE("int", -5, intValue, -5),
        VALUE("uint", 4'000'000'000U, uintValue, 4'000'000'000U),
        VALUE("qlonglong", Q_INT64_C(-5'000'000'000), qlonglongValue, Q_INT64_C(-5'000'000'000)),
        VALUE("qulonglong", ~Q_UINT64_C(0), qulonglongValue, ~Q_UINT64_C(0)),
        VALUE("double", 0.1, doubleValue, 0.1),
        VALUE("Latin-1 text", "caf\xe9", stringValue, QString("caf") + QChar(0xe9)),
        VALUE("text", QString(QChar(0x20ac)), stringValue, QString(QChar(0x20ac))),
        VALUE("texts", QStringList({"a,b", "c"}), stringListValue, QStringList({"a,b", "c"})),
        VALUE("bytes", QByteArray("\0\xff", 2), byteArrayValue, QByteArray("\0\xff", 2)),
        VALUE("date", QDate(2026, 2, 28), dateValue, QDate(2026, 2, 28)),
        VALUE("time", QTime(1, 2, 3, 4), timeValue, QTime(1, 2, 3, 4)),
        VALUE("date and time", QDateTime(QDate(2026, 2, 28), QTime(1, 2), Qt::UTC), dateTimeValue,
              QDateTime(QDate(2026, 2, 28), QTime(1, 2), Qt::UTC)),
        VALUE("url", QUrl("http://example.org/a?b"), urlValue, QUrl("http://example.org/a?b")),
        VALUE("locale", QLocale("de_AT"), localeValue, QLocale("de_AT")),
        VALUE("regular expression", QRegExp("a+"), regexpValue, QRegExp("a+")),
        VALUE("point", QPoint(1, -2), pointValue, QPoint(1, -2)),
        VALUE("real point", QPointF(0.5, 1), pointFValue, QPointF(0.5, 1)),
        VALUE("size", QSize(3, 4), sizeValue, QSize(3, 4)),
        VALUE("real size", QSizeF(0.5, 1), sizeFValue, QSizeF(0.5, 1)),
        VALUE("rectangle", QRect(1, 2, 3, 4), rectValue, QRect(1, 2, 3, 4)),
        VALUE("real rectangle", QRectF(0.5, 2, 3, 4), rectFValue, QRectF(0.5, 2, 3, 4)),
        VALUE("font", QFont("Some Family", 13), fontValue, QFont("Some Family", 13)),
        VALUE("colour", QColor(1, 2, 3, 4), colorValue, QColor(1, 2, 3, 4)),
        VALUE("global colour", Qt::darkRed, colorValue, QColor(Qt::darkRed)),
        VALUE("name of a colour", QString("steelblue"), colorValue, QColor(70, 130, 180)),
        VALUE("brush as colour", QVariant(QBrush(Qt::red)), colorValue, QColor(Qt::red)),
        VALUE("no colour", QString("no colour"), colorValue, QColor()),
        VALUE("checked", Qt::Checked, checkStateValue, Qt::Checked),
        VALUE("text of a check state", Qt::PartiallyChecked, stringValue, QString("PartiallyChecked")),
        VALUE("check state by name", "Checked", checkStateValue, Qt::Checked),
        VALUE("no check state", "checked", checkStateValue, Qt::Unchecked),
        VALUE("status hash", hash, statusHashValue, hash),
        VALUE("no status hash", 1, statusHashValue, PYXRuntime::PYXStatusHash()),
    };
#undef VALUE
    const QString kept = m_home->path("kept");
    {
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        for (const struValue &value : values)
            value.write(settings);
        settings.sync();
        // Another file, for this process remembers what it has written.
        QVERIFY(QFile::copy(settings.fileName(), kept));
    }
    const PYXSettings settings(kept);
    for (const struValue &value : values)
        QVERIFY2(value.isRead(settings), value.name);
    QVERIFY(settings.uuidValue("Missing").isNull());
}

void tst_PYXSettings::cloningKeepsTheRestOfTheTarget()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("A", "at the group's own key");
    settings.setValue("A/x", 1);
    settings.setValue("A/deep/er/y", 2);
    settings.setValue("B/x", 0);
    settings.setValue("B/kept", 3);
    settings.cloneSubTree("A", "B");
    QCOMPARE(settings.allKeys(true),
             QStringList({"A", "A/deep/er/y", "A/x", "B/deep/er/y", "B/kept", "B/x"}));
    QCOMPARE(settings.intValue("B/x"), 1);
    QCOMPARE(settings.intValue("B/deep/er/y"), 2);
    settings.cloneSubTree("B", "B/deep"); // below itself: what was there before
    QCOMPARE(settings.intValue("B/deep/deep/er/y"), 2);
    QVERIFY(!settings.contains("B/deep/deep/deep/er/y"));
    settings.removeSubTree("B");
    QCOMPARE(settings.allKeys(true), QStringList({"A", "A/deep/er/y", "A/x"}));
    // One separator at the end of a name is dropped.
    settings.cloneSubTree("A/", "B\\");
    QCOMPARE(settings.allKeys(true), QStringList({"A", "A/deep/er/y", "A/x", "B/deep/er/y", "B/x"}));
    QCOMPARE(settings.diffClonedSubTrees("A\\", "B/"), QStringList());
    settings.removeSubTree("B\\\\"); // that is B with one backslash, which there is not
    QVERIFY(settings.contains("B/x"));
    settings.removeSubTree("B\\");
    QVERIFY(!settings.contains("B/x"));
}

void tst_PYXSettings::differencesAreThoseOfTheCurrent()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("A/x", 1);
    settings.setValue("A/y", 2);
    settings.setValue("A/sub/z", 3);
    settings.cloneSubTree("A", "B");
    QCOMPARE(settings.diffClonedSubTrees("A", "B"), QStringList());
    settings.setValue("A/x", 5);
    settings.setValue("A/sub/z", 5);
    QCOMPARE(settings.diffClonedSubTrees("A", "B"), QStringList({"A/x", "A/sub/z"}));
    settings.remove("A/x");
    settings.remove("A/sub");
    QCOMPARE(settings.diffClonedSubTrees("A", "B"), QStringList());
    settings.remove("B/y");
    QCOMPARE(settings.diffClonedSubTrees("A", "B"), QStringList("A/y"));
}

void tst_PYXSettings::changedPathsAreToldAndHandled()
{
    Places places;
    const PYXRuntime::PYXBrokerRegistration registration(
        PYXRuntime::PYXBrokerInterface<PYXRuntime::PYXIFileDialogPlaces>::id(), 0, &places);
    {
        PYXSettings user(PYXSettings::eUserApplicationSettings);
        user.setValue("Mine/Logs", "/a");
        user.setValue("Mine old/Gone", "/gone");
        PYXSettings shared(PYXSettings::eUserSharedSettings);
        shared.setValue("Paths/Scripts", "/s");
        shared.setValue("SavedPaths/Gone", "/gone");
    }
    PYXSettings::cloneUserAndSharedSubTreesForPaths("Mine/", "Mine old/");
    QVERIFY(!PYXSettings(PYXSettings::eUserApplicationSettings).contains("Mine old/Gone"));
    QVERIFY(!PYXSettings(PYXSettings::eUserSharedSettings).contains("SavedPaths/Gone"));
    {
        PYXSettings(PYXSettings::eUserApplicationSettings).setValue("Mine/Logs", "/b");
        PYXSettings shared(PYXSettings::eUserSharedSettings);
        shared.setValue("Paths/Scripts", "/s %1 %2");
        shared.setValue("Paths/DetectorProfiles", "/d");
        shared.setValue("Paths/Collections", "/c");
        shared.setValue("Paths/Other", "/o");
    }
    QStringList user("old"), shared("old");
    const QStringList traces = withoutLines(tracesOf([&] {
        QVERIFY(
            PYXSettings::diffUserAndSharedSubTreesForPaths_handleShared("Mine", "Mine old", user, shared));
    }));
    QCOMPARE(user, QStringList("Mine/Logs"));
    QCOMPARE(shared,
             QStringList({"Paths/Collections", "Paths/DetectorProfiles", "Paths/Other", "Paths/Scripts"}));
    QCOMPARE(places.calls, QStringList({"27 /c", "28 /d", "26 /s %1 %2"}));
    const QString tag = "|source\\PYXSettings";
    QCOMPARE(traces, QStringList({"Debug|1 user paths entries changed" + tag,
                                  "Debug|4 shared paths entries changed" + tag,
                                  "Debug|shared path [Paths/Collections] changed: /c" + tag,
                                  "Debug|shared path [Paths/DetectorProfiles] changed: /d" + tag,
                                  "Debug|shared path [Paths/Other] changed: /o" + tag,
                                  "Debug|MainWindow::sl_onSettingsApplied: unhandeled shared path" + tag,
                                  "Debug|shared path [Paths/Scripts] changed: /s %1 %2" + tag,
                                  "Debug|4 shared paths entries changed" + tag}));
}

QTEST_MAIN(tst_PYXSettings)
#include "tst_PYXSettings.moc"
