// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "PYXTraceWrapper.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"
#include "WarningRecorder.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

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
    void changesReachTheFile();
    void checksFiles();
    void keepsADamagedFileOnce();
    void keepsTheNewestThreeDamagedFiles();

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

void tst_PYXXmlSettings::changesReachTheFile()
{
    QCOMPARE(PYXXmlSettings::format(), PYXXmlSettings::format());
    {
        QSettings settings(m_path, PYXXmlSettings::format());
        settings.setValue("Group/Key", "first");
        settings.setValue("Gone", 1);
    }
    QVERIFY(get(m_path).contains("<name>Gone</name>"));
    {
        QSettings settings(m_path, PYXXmlSettings::format());
        settings.setValue("group/key", "other case");
        settings.remove("Gone");
    }
    QVERIFY(!get(m_path).contains("<name>Gone</name>"));
    const QSettings settings(m_path, PYXXmlSettings::format());
    QCOMPARE(settings.allKeys(), QStringList({"Group/Key", "group/key"}));
    QCOMPARE(settings.status(), QSettings::NoError);
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files), QStringList("store"));
    QCOMPARE(m_tracer->calls + m_warnings->texts(), QStringList());
}

void tst_PYXXmlSettings::checksFiles()
{
    const QString prefix("PYXXmlSettingsPrivate::isPYXXmlSettingsFile: ");
    const struct
    {
        const char *content;
        QString version; ///< null: no settings file
        QStringList warnings;
    } rows[] = {
        {"<pyxxmlsettings/>", "1.0", {}},
        {"<PYXXMLSETTINGS version='7'><entry/></PYXXMLSETTINGS>", "7", {}},
        {"<x version='1.0'/>", {}, {prefix + "not a PYXXml settings file"}},
        {"<PYXXmlSettings/><x/>", {}, {prefix + "error setting content"}},
    };
    for (const auto &row : rows) {
        put(m_path, row.content);
        QString found;
        WarningRecorder::texts().clear();
        QCOMPARE(PYXXmlSettings::isPYXXmlSettingsFile(m_path, found), !row.version.isNull());
        QCOMPARE(found, row.version);
        for (const QString &none : {QString(), m_path + "x", m_directory->path()})
            QVERIFY(!PYXXmlSettings::isPYXXmlSettingsFile(none, found));
        QCOMPARE(m_warnings->texts(), row.warnings);
    }
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

QTEST_GUILESS_MAIN(tst_PYXXmlSettings)
#include "tst_PYXXmlSettings.moc"
