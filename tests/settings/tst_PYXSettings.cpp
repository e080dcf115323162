// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettings.h"

#include "PYXBrokerRegistration.h"
#include "PYXIFileDialogPlaces.h"
#include "PYXStatusHash.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtGui/QBrush>
#include <QtTest/QtTest>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXTraceWrapper;

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

using Maker = std::function<PYXSettings *()>;
using Check = std::function<bool(PYXSettings &)>;

} // namespace
Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(Check)

class tst_PYXSettings : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void constructorsOpenTheirStores_data();
    void constructorsOpenTheirStores();
    void queriesReadTheProperty_data();
    void queriesReadTheProperty();
    void fallbacksCanBeLeftOut();
    void defaultValuesAreNoFlags();
    void valuesComeBackFromTheFile_data();
    void valuesComeBackFromTheFile();
    void whatIsMissingIsEmpty();
    void cloningKeepsTheRestOfTheTarget();
    void oneSeparatorAtTheEndIsDropped();
    void differencesAreThoseOfTheCurrent();
    void changedPathsAreToldAndHandled();
    void unchangedPathsAreToldToo();

private:
    QStringList takeTraces();

    QScopedPointer<SettingsHome> m_home;
    RecordingTracer m_tracer;
};

void tst_PYXSettings::init()
{
    m_home.reset(new SettingsHome);
    PYXTraceWrapper::addTracer(&m_tracer);
}

void tst_PYXSettings::cleanup()
{
    PYXTraceWrapper::removeTracer(&m_tracer);
    m_tracer.calls.clear();
}

/** Without their lines. */
QStringList tst_PYXSettings::takeTraces()
{
    QStringList traces;
    for (const QString &call : qAsConst(m_tracer.calls))
        traces += call.left(call.lastIndexOf('|'));
    m_tracer.calls.clear();
    return traces;
}

void tst_PYXSettings::constructorsOpenTheirStores_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *name, const Maker &make, const QString &file) {
        QTest::newRow(name) << make << file;
    };
    const auto ini = QSettings::IniFormat;
    const auto purpose = [](int value) {
        return Maker([value] { return new PYXSettings(PYXSettings::ePurpose(value)); });
    };
    row("no purpose", purpose(0), "user/Organisation/Application.PYXXml");
    row("user application", purpose(1), "user/Organisation/Application.PYXXml");
    row("user shared", purpose(2), "user/Organisation/SharedSettings.PYXXml");
    row("default application", purpose(3), "system/Organisation/Application.PYXXml");
    row("default shared", purpose(4), "system/Organisation/SharedSettings.PYXXml");
    row("above all", purpose(9), "system/Organisation/SharedSettings.PYXXml");
    row(
        "user scope", [] { return new PYXSettings(QSettings::UserScope); },
        "user/Organisation/Application.PYXXml");
    row(
        "system scope", [] { return new PYXSettings(QSettings::SystemScope); },
        "system/Organisation/Application.PYXXml");
    row(
        "format and scope", [=] { return new PYXSettings(ini, QSettings::SystemScope); },
        "system/Organisation/Application.ini");
    row(
        "format and purpose", [=] { return new PYXSettings(ini, PYXSettings::eUserSharedSettings); },
        "user/Organisation/SharedSettings.ini");
    row(
        "file", [this] { return new PYXSettings(m_home->path("own.file")); }, "own.file");
    row(
        "file and format", [=] { return new PYXSettings(m_home->path("own.ini"), ini); }, "own.ini");
}

void tst_PYXSettings::constructorsOpenTheirStores()
{
    QFETCH(Maker, make);
    QFETCH(QString, file);
    m_home->hold(QSettings::IniFormat);
    QScopedPointer<PYXSettings> settings(make());
    QCOMPARE(settings->purpose(), 0); // the flag has replaced it
    QCOMPARE(flagsOf(settings.data()), QString("-----"));
    QCOMPARE(settings->property("pyx__purpose__"), QVariant(false));
    settings->setValue("Key", 1);
    settings.reset();
    QCOMPARE(m_home->files(), QStringList(file));
    const bool bXml = !file.endsWith("ini");
    QFile written(m_home->path(file));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll().contains("PYXXmlSettings"), bXml);
}

void tst_PYXSettings::queriesReadTheProperty_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<int>("purpose");
    QTest::addColumn<QString>("flags");
    QTest::newRow("none") << QVariant() << 0 << "-----";
    QTest::newRow("user application") << QVariant(1) << 1 << "u--at";
    QTest::newRow("user shared") << QVariant(2) << 2 << "us--t";
    QTest::newRow("default application") << QVariant(3) << 3 << "--dat";
    QTest::newRow("default shared") << QVariant(4) << 4 << "-sd-t";
    QTest::newRow("above all") << QVariant(5) << 5 << "----t";
    QTest::newRow("this run only") << QVariant(true) << 1 << "u--at";
}

void tst_PYXSettings::queriesReadTheProperty()
{
    QFETCH(QVariant, property);
    QSettings plain(m_home->path("plain.ini"), QSettings::IniFormat);
    if (property.isValid())
        plain.setProperty("pyx__purpose__", property);
    QTEST(PYXSettings::purpose(&plain), "purpose");
    QTEST(flagsOf(&plain), "flags");
    QCOMPARE(PYXSettings::purpose(nullptr), 0);
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
}

void tst_PYXSettings::defaultValuesAreNoFlags()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QCOMPARE(settings.value("Missing", 5), QVariant(5));
    QCOMPARE(settings.value("Missing", QString("text")), QVariant("text"));
    QCOMPARE(settings.value("Missing", "text"), QVariant("text"));
    QCOMPARE(settings.value("Missing", QVariant(true)), QVariant(true));
    QVERIFY(!settings.value("Missing", true).isValid());
    QVERIFY(!settings.value("Missing").isValid());
}

void tst_PYXSettings::valuesComeBackFromTheFile_data()
{
    QTest::addColumn<Check>("write");
    QTest::addColumn<Check>("isRead");
    const auto row = [](const char *name, const Check &write, const Check &isRead) {
        QTest::newRow(name) << write << isRead;
    };
#define ROW(name, stored, getter, expected)                                                                  \
    row(                                                                                                     \
        name, [](PYXSettings &s) { return s.setValue("Group/Key", stored), true; },                          \
        [](PYXSettings &s) { return s.getter("Group/Key") == (expected); })
    const QUuid id("{0a1b2c3d-4e5f-6a7b-8c9d-0e1f2a3b4c5d}");
    row(
        "uuid", [id](PYXSettings &s) { return s.setValue("Group/Key", id), true; },
        [id](PYXSettings &s) {
            return s.uuidValue("Group/Key") == id &&
                   s.stringValue("Group/Key") == "{0A1B2C3D-4E5F-6A7B-8C9D-0E1F2A3B4C5D}";
        });
    ROW("bool", true, boolValue, true);
    ROW("int", -5, intValue, -5);
    ROW("uint", 4'000'000'000U, uintValue, 4'000'000'000U);
    ROW("qlonglong", Q_INT64_C(-5'000'000'000), qlonglongValue, Q_INT64_C(-5'000'000'000));
    ROW("qulonglong", ~Q_UINT64_C(0), qulonglongValue, ~Q_UINT64_C(0));
    ROW("double", 0.1, doubleValue, 0.1);
    ROW("Latin-1 text", "caf\xe9", stringValue, QString("caf") + QChar(0xe9));
    ROW("text", QString(QChar(0x20ac)), stringValue, QString(QChar(0x20ac)));
    ROW("texts", QStringList({"a,b", "c"}), stringListValue, QStringList({"a,b", "c"}));
    ROW("bytes", QByteArray("\0\xff", 2), byteArrayValue, QByteArray("\0\xff", 2));
    ROW("date", QDate(2026, 2, 28), dateValue, QDate(2026, 2, 28));
    ROW("time", QTime(1, 2, 3, 4), timeValue, QTime(1, 2, 3, 4));
    ROW("date and time", QDateTime(QDate(2026, 2, 28), QTime(1, 2), Qt::UTC), dateTimeValue,
        QDateTime(QDate(2026, 2, 28), QTime(1, 2), Qt::UTC));
    ROW("url", QUrl("http://example.org/a?b"), urlValue, QUrl("http://example.org/a?b"));
    ROW("locale", QLocale("de_AT"), localeValue, QLocale("de_AT"));
    ROW("regular expression", QRegExp("a+"), regexpValue, QRegExp("a+"));
    ROW("point", QPoint(1, -2), pointValue, QPoint(1, -2));
    ROW("real point", QPointF(0.5, 1), pointFValue, QPointF(0.5, 1));
    ROW("size", QSize(3, 4), sizeValue, QSize(3, 4));
    ROW("real size", QSizeF(0.5, 1), sizeFValue, QSizeF(0.5, 1));
    ROW("rectangle", QRect(1, 2, 3, 4), rectValue, QRect(1, 2, 3, 4));
    ROW("real rectangle", QRectF(0.5, 2, 3, 4), rectFValue, QRectF(0.5, 2, 3, 4));
    ROW("font", QFont("Some Family", 13), fontValue, QFont("Some Family", 13));
    ROW("colour", QColor(1, 2, 3, 4), colorValue, QColor(1, 2, 3, 4));
    ROW("global colour", Qt::darkRed, colorValue, QColor(Qt::darkRed));
    ROW("name of a colour", QString("steelblue"), colorValue, QColor(70, 130, 180));
    ROW("brush as colour", QVariant(QBrush(Qt::red)), colorValue, QColor(Qt::red));
    ROW("no colour", QString("no colour"), colorValue, QColor());
    ROW("checked", Qt::Checked, checkStateValue, Qt::Checked);
    ROW("text of a check state", Qt::PartiallyChecked, stringValue, QString("PartiallyChecked"));
    ROW("check state by name", "Checked", checkStateValue, Qt::Checked);
    ROW("no check state", "checked", checkStateValue, Qt::Unchecked);
    PYXRuntime::PYXStatusHash inner(0x12);
    inner.insert("Threshold", 0.5);
    PYXRuntime::PYXStatusHash hash;
    hash.insert("Inner", inner);
    row(
        "status hash", [hash](PYXSettings &s) { return s.setValue("Group/Key", hash), true; },
        [hash](PYXSettings &s) { return s.statusHashValue("Group/Key") == hash; });
    ROW("no status hash", 1, statusHashValue, PYXRuntime::PYXStatusHash());
#undef ROW
}

void tst_PYXSettings::valuesComeBackFromTheFile()
{
    QFETCH(Check, write);
    QFETCH(Check, isRead);
    const QString kept = m_home->path("kept");
    {
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        write(settings);
        settings.sync();
        // Another file, for this process remembers what it has written.
        QVERIFY(QFile::copy(settings.fileName(), kept));
    }
    PYXSettings settings(kept);
    QVERIFY2(isRead(settings), qPrintable(settings.stringValue("Group/Key")));
}

void tst_PYXSettings::whatIsMissingIsEmpty()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QCOMPARE(settings.intValue("Missing"), 0);
    QCOMPARE(settings.stringListValue("Missing"), QStringList());
    QVERIFY(!settings.colorValue("Missing").isValid());
    QVERIFY(settings.uuidValue("Missing").isNull());
    QCOMPARE(settings.checkStateValue("Missing"), Qt::Unchecked);
    QVERIFY(!settings.dateTimeValue("Missing").isValid());
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
}

void tst_PYXSettings::oneSeparatorAtTheEndIsDropped()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("A/x", 1);
    settings.cloneSubTree("A/", "B\\");
    QCOMPARE(settings.allKeys(true), QStringList({"A/x", "B/x"}));
    QCOMPARE(settings.diffClonedSubTrees("A\\", "B/"), QStringList());
    settings.removeSubTree("B\\\\"); // that is B with one backslash, which there is not
    QVERIFY(settings.contains("B/x"));
    settings.removeSubTree("B\\");
    QCOMPARE(settings.allKeys(true), QStringList("A/x"));
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
    m_tracer.calls.clear();
    QStringList user("old"), shared("old");
    QVERIFY(PYXSettings::diffUserAndSharedSubTreesForPaths_handleShared("Mine", "Mine old", user, shared));
    QCOMPARE(user, QStringList("Mine/Logs"));
    QCOMPARE(shared,
             QStringList({"Paths/Collections", "Paths/DetectorProfiles", "Paths/Other", "Paths/Scripts"}));
    QCOMPARE(places.calls, QStringList({"27 /c", "28 /d", "26 /s %1 %2"}));
    const QString tag = "|source\\PYXSettings";
    QCOMPARE(
        takeTraces(),
        QStringList({"Debug|1 user paths entries changed" + tag, "Debug|4 shared paths entries changed" + tag,
                     "Debug|shared path [Paths/Collections] changed: /c" + tag,
                     "Debug|shared path [Paths/DetectorProfiles] changed: /d" + tag,
                     "Debug|shared path [Paths/Other] changed: /o" + tag,
                     "Debug|MainWindow::sl_onSettingsApplied: unhandeled shared path" + tag,
                     "Debug|shared path [Paths/Scripts] changed: /s %1 %2" + tag,
                     "Debug|4 shared paths entries changed" + tag}));
}

void tst_PYXSettings::unchangedPathsAreToldToo()
{
    PYXSettings(PYXSettings::eDefaultSharedSettings).setValue("Paths/Scripts", "/machine");
    PYXSettings::cloneUserAndSharedSubTreesForPaths("Mine", "Mine old");
    QStringList user("old"), shared("old");
    QVERIFY(!PYXSettings::diffUserAndSharedSubTreesForPaths_handleShared("Mine", "Mine old", user, shared));
    QVERIFY(user.isEmpty() && shared.isEmpty());
    QCOMPARE(takeTraces(), QStringList("Debug|no paths entries changed|source\\PYXSettings"));
    // Without anybody who remembers places, and against the machine's default.
    PYXSettings(PYXSettings::eUserSharedSettings).setValue("Paths/Scripts", "/user");
    QCOMPARE(PYXSettings::diffAndHandleSharedSubTreesForPaths(), QStringList("Paths/Scripts"));
}

QTEST_MAIN(tst_PYXSettings)
#include "tst_PYXSettings.moc"
