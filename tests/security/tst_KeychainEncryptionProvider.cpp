// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "KeychainEncryptionProvider.h"
#include "RecordingTracer.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using PYXRuntime::KeychainEncryptionProvider;

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
    void refusesWhatItCannotRead();
    void tellsThatThereIsNoStore();
};

void tst_KeychainEncryptionProvider::keepsItsKeyInTheStore()
{
    QByteArray stored;
    {
        KeychainEncryptionProvider first("keeps");
        QString error;
        QString nestedError;
        QTimer::singleShot(0, &first, [&] { KeychainEncryptionProvider("keeps").open(&nestedError); });
        QVERIFY2(first.open(&error), qPrintable(error));
        QCOMPARE(nestedError, "The key is being fetched from the system's secret store already.");
        stored = first.encrypt(Secret);
        QVERIFY(!QByteArray::fromBase64(stored).contains(Secret.toUtf8()));
        QVERIFY(stored != first.encrypt(Secret)); // another random number each time
    }
    KeychainEncryptionProvider second("keeps");
    QVERIFY(second.open());
    QCOMPARE(second.decryptToQString(stored), Secret);
    const QByteArray binary("\0\xFF secret", 9);
    QCOMPARE(second.decrypt(second.encrypt(binary)), binary);
    QCOMPARE(second.encrypt(QByteArray()) + second.decrypt(QByteArray()), QByteArray());
}

void tst_KeychainEncryptionProvider::refusesWhatItCannotRead()
{
    KeychainEncryptionProvider provider("refuses");
    KeychainEncryptionProvider stranger("another service");
    QVERIFY(provider.open() && stranger.open());
    const QByteArray stored = provider.encrypt(Secret);
    const QByteArray record = QByteArray::fromBase64(stored);
    QStringList traces = tracesOf([&] {
        for (int i = 0; i < record.size(); ++i) {
            QByteArray damaged = record;
            damaged[i] = char(damaged.at(i) ^ 1);
            QCOMPARE(provider.decrypt(damaged.toBase64()) + provider.decrypt(record.left(i).toBase64()), "");
        }
    });
    QCOMPARE(traces.size(), 2 * record.size() - 1); // nothing at all is no fault
    provider.close();
    traces = tracesOf([&] {
        QCOMPARE(stranger.decrypt(stored) + provider.encrypt(Secret) + provider.decrypt(stored), "");
    });
    traces.sort();
    QCOMPARE(traces.size(), 3);
    const QString prefix = "|KeychainEncryptionProvider: ";
    QVERIFY(traces.at(0).startsWith("Debug" + prefix + "damaged, or encrypted with another key|"));
    QVERIFY(traces.at(1).startsWith("Debug" + prefix + "not open|"));
    QVERIFY(traces.at(2).startsWith("Warn" + prefix + "not open, nothing is encrypted|"));
}

/** Last: takes the bus away. */
void tst_KeychainEncryptionProvider::tellsThatThereIsNoStore()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const ChildResult result = runOwnProbe("nowhere");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.startsWith("The system's secret store cannot be used: "));
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
