// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeychainEncryptionProvider.h"
#include "PYXEncryptionManager.h"
#include "RecordingTracer.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using PYXRuntime::KeychainEncryptionProvider;
using PYXRuntime::PYXEncryptionManager;

namespace {

const char SessionVariable[] = "PYX_TEST_IN_KEYRING_SESSION";
const QString Secret("p\u00e4ssword");

/** What is wrong with this system for the tests; empty if they can run. */
QString obstacle()
{
    if (!KeychainEncryptionProvider::isSupported())
        return "built without QtKeychain and libsodium";
    for (const char *program : {"dbus-run-session", "gnome-keyring-daemon"}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return QString("needs the program ") + program;
    }
    return QString();
}

/** Runs this program under a bus and a keyring of its own. */
int runInSession(const QStringList &arguments)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(SessionVariable, "1");
    environment.insert("HOME", home.path());
    environment.insert("XDG_DATA_HOME", home.filePath("data"));
    environment.insert("XDG_RUNTIME_DIR", home.path());
    environment.insert("XDG_CURRENT_DESKTOP", "GNOME"); // QtKeychain chooses its store by it
    QProcess session;
    session.setProcessEnvironment(environment);
    session.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString script =
        "printf unlocked | gnome-keyring-daemon --unlock --components=secrets >/dev/null && "
        "exec \"$@\"";
    session.start("dbus-run-session", QStringList{"--", "sh", "-c", script, "sh"} + arguments);
    return session.waitForFinished(100'000) && session.exitStatus() == QProcess::NormalExit
               ? session.exitCode()
               : 1;
}

} // namespace

class tst_KeychainEncryptionProvider : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (!obstacle().isEmpty())
            QSKIP(qPrintable(obstacle()));
    }
    void keepsItsKeyInTheStore();
    void refusesWhatItHasNotWritten();
    void tellsThatItIsNotOpen();
    void tellsThatThereIsNoStore();
};

void tst_KeychainEncryptionProvider::keepsItsKeyInTheStore()
{
    QByteArray stored;
    {
        KeychainEncryptionProvider first("keeps");
        QString error;
        QVERIFY2(first.open(&error), qPrintable(error));
        QVERIFY(PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(&first));
        stored = PYXEncryptionManager::staticEncrypt(Secret);
        QVERIFY(!QByteArray::fromBase64(stored).contains(Secret.toUtf8()));
        QVERIFY(stored != first.encrypt(Secret)); // another random number each time
        PYXEncryptionManager::staticUnregisterEncryptionProvider(&first);
    }
    PYXEncryptionManager::destroyInstance();
    KeychainEncryptionProvider second("keeps");
    QVERIFY(second.open());
    QCOMPARE(second.decryptToQString(stored), Secret);
    const QByteArray binary("\0\xFF secret", 9);
    QCOMPARE(second.decrypt(second.encrypt(binary)), binary);
    QCOMPARE(second.encrypt(QByteArray()), QByteArray());
    QCOMPARE(second.decrypt(QByteArray()), QByteArray());

    KeychainEncryptionProvider stranger("another service");
    QVERIFY(stranger.open());
    const QStringList traces = tracesOf([&] { QCOMPARE(stranger.decrypt(stored), QByteArray()); });
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces.first().startsWith(
        "Debug|KeychainEncryptionProvider: damaged, or encrypted with another key|"));
}

void tst_KeychainEncryptionProvider::refusesWhatItHasNotWritten()
{
    KeychainEncryptionProvider provider("refuses");
    QVERIFY(provider.open());
    const QByteArray record = QByteArray::fromBase64(provider.encrypt(Secret));
    const QStringList traces = tracesOf([&] {
        for (int i = 0; i < record.size(); ++i) {
            QByteArray damaged = record;
            damaged[i] = char(damaged.at(i) ^ 1);
            QCOMPARE(provider.decrypt(damaged.toBase64()), QByteArray());
            QCOMPARE(provider.decrypt(record.left(i).toBase64()), QByteArray());
        }
        QCOMPARE(provider.decrypt("U01QTAEAAAABqw8AAAAQndTkYSaMgDT1yFZOFVxnpnMGAAAAEOWsnBle9PhMjbAuNm0kH94="),
                 QByteArray());
    });
    QCOMPARE(traces.size(), 2 * record.size()); // nothing was left of one: there was nothing to decrypt
}

void tst_KeychainEncryptionProvider::tellsThatItIsNotOpen()
{
    KeychainEncryptionProvider provider("closed");
    QVERIFY(provider.open());
    const QByteArray stored = provider.encrypt(Secret);
    provider.close();
    QVERIFY(!provider.isOpen());
    const QStringList traces = tracesOf([&] {
        QCOMPARE(provider.encrypt(Secret), QByteArray());
        QCOMPARE(provider.decrypt(stored), QByteArray());
    });
    QCOMPARE(traces.size(), 2);
    QVERIFY(traces.at(0).startsWith("Warn|KeychainEncryptionProvider: not open, nothing is encrypted|"));
    QVERIFY(traces.at(1).startsWith("Debug|KeychainEncryptionProvider: not open|"));
    QVERIFY(!traces.join(' ').contains(Secret));
}

/** Last: takes the bus away. */
void tst_KeychainEncryptionProvider::tellsThatThereIsNoStore()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    QProcess probe;
    probe.start(QCoreApplication::applicationFilePath(), {"--probe"});
    QVERIFY(probe.waitForFinished(60'000));
    QCOMPARE(probe.exitCode(), 0);
    QVERIFY(probe.readAllStandardOutput().startsWith("The system's secret store cannot be used: "));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains("--probe")) {
        QString error;
        const bool bOpen = KeychainEncryptionProvider("nowhere").open(&error, 10'000);
        std::puts(error.toUtf8().constData());
        return bOpen ? 1 : 0;
    }
    if (!qEnvironmentVariableIsSet(SessionVariable) && obstacle().isEmpty())
        return runInSession(QCoreApplication::arguments());
    tst_KeychainEncryptionProvider test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_KeychainEncryptionProvider.moc"
