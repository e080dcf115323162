// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXTraceWrapper.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"
#include "WarningRecorder.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList copies(const QTemporaryDir &directory)
{
    return QDir(directory.path()).entryList({"store.damaged-*"}, QDir::Files, QDir::Name);
}

} // namespace

class tst_PYXXmlSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void registersOneFormat();
    void changesReachTheFile();
    void checksFiles_data();
    void checksFiles();
    void keepsADamagedFileOnce();
    void keepsTheNewestThreeDamagedFiles();
    void keepsQuietOfGoodFiles();

private:
    QScopedPointer<RecordingTracer> m_tracer;
    QScopedPointer<WarningRecorder> m_warnings;
    QScopedPointer<QTemporaryDir> m_directory;
    QString m_path;
};

void tst_PYXXmlSettings::init()
{
    m_tracer.reset(new RecordingTracer);
    PYXTraceWrapper::addTracer(m_tracer.data());
    m_warnings.reset(new WarningRecorder);
    m_directory.reset(new QTemporaryDir);
    m_path = m_directory->filePath("store");
}

void tst_PYXXmlSettings::cleanup()
{
    PYXTraceWrapper::removeTracer(m_tracer.data());
    m_warnings.reset();
}

void tst_PYXXmlSettings::registersOneFormat()
{
    const QSettings::Format format = PYXXmlSettings::format();
    QVERIFY(format >= QSettings::CustomFormat1);
    QCOMPARE(PYXXmlSettings::format(), format);
    QSettings::setPath(format, QSettings::UserScope, m_directory->path());
    const QSettings settings(format, QSettings::UserScope, "Organisation", "Application");
    QCOMPARE(QFileInfo(settings.fileName()).fileName(), QString("Application.PYXXml"));
}

void tst_PYXXmlSettings::changesReachTheFile()
{
    {
        QSettings settings(m_path, PYXXmlSettings::format());
        settings.setValue("Group/Key", "first");
        settings.beginWriteArray("list", 2);
        settings.setArrayIndex(1);
        settings.setValue("point", QPoint(1, 2));
        settings.endArray();
    }
    QVERIFY(get(m_path).contains("<array name = \"list\" size = \"2\">\n        <item index = \"2\">"));
    {
        QSettings settings(m_path, PYXXmlSettings::format());
        QCOMPARE(settings.beginReadArray("list"), 2);
        settings.setArrayIndex(1);
        QCOMPARE(settings.value("point").toPoint(), QPoint(1, 2));
        settings.endArray();
        settings.setValue("group/key", "other case");
        settings.remove("list");
    }
    QSettings settings(m_path, PYXXmlSettings::format());
    QCOMPARE(settings.allKeys(), QStringList({"Group/Key", "group/key"}));
    QCOMPARE(settings.status(), QSettings::NoError);
}

void tst_PYXXmlSettings::checksFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QStringList>("warnings");
    const QString prefix("PYXXmlSettingsPrivate::isPYXXmlSettingsFile: ");
    QTest::newRow("no version") << QByteArray("<pyxxmlsettings/>") << "1.0" << QStringList();
    QTest::newRow("another version") << QByteArray("<PYXXMLSETTINGS version='7'><entry/></PYXXMLSETTINGS>")
                                     << "7" << QStringList();
    QTest::newRow("another root") << QByteArray("<x version='1.0'/>") << QString()
                                  << QStringList(prefix + "not a PYXXml settings file");
    QTest::newRow("error at the end")
        << QByteArray("<PYXXmlSettings/><x/>") << QString() << QStringList(prefix + "error setting content");
}

void tst_PYXXmlSettings::checksFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, version);
    put(m_path, content);
    QString found;
    QCOMPARE(PYXXmlSettings::isPYXXmlSettingsFile(m_path, found), !version.isEmpty());
    QCOMPARE(found, version);
    QTEST(m_warnings->texts(), "warnings");
    for (const QString &none : {QString(), m_path + "x", m_directory->path()})
        QVERIFY(!PYXXmlSettings::isPYXXmlSettingsFile(none, found));
    QTEST(m_warnings->texts(), "warnings");
}

void tst_PYXXmlSettings::keepsADamagedFileOnce()
{
    const QByteArray damaged = "<PYXXmlSettings><entry>" + QByteArray(200'000, 'x');
    put(m_path, damaged);
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
    for (int i = 0; i < 2; ++i) {
        QFile file(m_path); // QSettings does not read the same file twice
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2020, 1, 1 + i), QTime(1, 1)), QFile::FileModificationTime));
        file.close();
        QSettings settings(m_path, PYXXmlSettings::format());
        QCOMPARE(settings.status(), QSettings::FormatError);
        QCOMPARE(settings.allKeys(), QStringList());
    }
    QSettings(m_path, PYXXmlSettings::format()).setValue("a", 1);
    QVERIFY(get(m_path).contains("<name>a</name>"));
    QCOMPARE(copies(*m_directory).size(), 1);
    const QString copy = m_directory->filePath(copies(*m_directory).first());
    QVERIFY(QRegularExpression("store\\.damaged-\\d{8}T\\d{9}Z$").match(copy).hasMatch());
    QCOMPARE(get(copy), damaged);
    QCOMPARE(QFile::permissions(copy), QFile::permissions(m_path));
    QCOMPARE(m_tracer->calls.size(), 1);
    QVERIFY(m_tracer->calls.first().startsWith("Warn|The settings file \"" + m_path +
                                               "\" cannot be read; it was kept as "));
}

void tst_PYXXmlSettings::keepsTheNewestThreeDamagedFiles()
{
    const QString stranger = m_directory->filePath("store.damaged-by-me");
    put(stranger, "x");
    put(m_directory->filePath("store.damaged-20010101T000000000Z"), "old");
    for (int i = 0; i < 4; ++i) {
        put(m_path, QByteArray(10 + i, 'x')); // QSettings sees the change by the size
        QCOMPARE(QSettings(m_path, PYXXmlSettings::format()).status(), QSettings::FormatError);
    }
    QStringList names = copies(*m_directory);
    QVERIFY(names.removeOne("store.damaged-by-me"));
    QCOMPARE(names.size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(get(m_directory->filePath(names.at(i))), QByteArray(11 + i, 'x'));
}

void tst_PYXXmlSettings::keepsQuietOfGoodFiles()
{
    QSettings(m_path, PYXXmlSettings::format()).setValue("a/b", QVariantMap{{"c", 1}});
    QSettings(m_path, PYXXmlSettings::format()).setValue("a", 2);
    QCOMPARE(QSettings(m_path, PYXXmlSettings::format()).value("a/b").toMap(), QVariantMap({{"c", 1}}));
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList("store"));
    QCOMPARE(m_tracer->calls + m_warnings->texts(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PYXXmlSettings)
#include "tst_PYXXmlSettings.moc"
