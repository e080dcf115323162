// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Looks through the memory of another process for a password that it has wiped.

#include "ChildProcess.h"
#include "PYXProxyManager.h"
#include "PYXSettings.h"
#include "PYXStringHelpers.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

#include <cstdio>

using namespace PYXRuntime;

namespace {

/** Its own text never stands in the memory of the process that is looked at. */
QString password()
{
    constexpr char Masked[] = "&*77 &1e-*76 e'$11 7<e61$5) ";
    const volatile char mask = 0x45; // the compiler must not work it out
    QString text;
    text.reserve(int(sizeof Masked)); // one buffer
    for (const char *character = Masked; *character != 0; ++character)
        text += QLatin1Char(char(*character ^ mask));
    return text;
}

/** Sanitizers reserve terabytes. */
constexpr qint64 LargestRegion = 256 << 20;

/** Whatever a process may write: heap, stacks, data; as far as it can be read. */
QByteArray writableMemory(qint64 process)
{
    QFile maps(QString("/proc/%1/maps").arg(process));
    QFile memory(QString("/proc/%1/mem").arg(process));
    QByteArray all;
    if (!maps.open(QIODevice::ReadOnly) || !memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return all;
    const QRegularExpression writable("^([0-9a-f]+)-([0-9a-f]+) rw");
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const QRegularExpressionMatch match = writable.match(QString::fromLatin1(line));
        const qint64 start = match.captured(1).toLongLong(nullptr, 16);
        const qint64 size = match.captured(2).toLongLong(nullptr, 16) - start;
        if (match.hasMatch() && size < LargestRegion && memory.seek(start))
            all += memory.read(size);
    }
    return all;
}

/** Tells the test how far the process is, and waits for it. */
void say(const char *state)
{
    std::puts(state);
    std::fflush(stdout);
    std::getchar();
}

/** Puts a proxy with a password in force. In the end only the factory has it still. */
int handlePassword(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const SettingsHome home;
    {
        QString plain = password();
        ProxyConfiguration configuration("proxy.example", 3128, "user", plain);
        PYXStringHelpers::safeOverwriteAndClear(plain);
        say("held");
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        configuration.save(&settings, PYXProxyManager::settingsKey(), true);
        PYXProxyManager::applyProxyConfiguration(configuration);
        auto restored = ProxyConfiguration::restoredFrom(&settings, PYXProxyManager::settingsKey(), nullptr);
        restored = configuration;
        configuration.obfuscateProxyPassword();
        configuration.unobfuscateProxyPassword();
    }
    say("wiped");
    return 0;
}

} // namespace

class tst_SecretMemory : public QObject
{
    Q_OBJECT
private slots:
    void wipedTextsAreGone();
};

void tst_SecretMemory::wipedTextsAreGone()
{
    QProcess probe;
    probe.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    probe.start(QCoreApplication::applicationFilePath(), {"--probe", "password"});
    QByteArray said;
    const auto memoryWhenItSpeaks = [&] {
        while (!probe.canReadLine() && probe.waitForReadyRead())
            continue;
        said = probe.readLine().trimmed();
        QByteArray memory = writableMemory(probe.processId());
        probe.write("\n");
        return memory;
    };
    const QByteArray secret(reinterpret_cast<const char *>(password().utf16()), 2 * password().size());
    const QByteArray before = memoryWhenItSpeaks();
    QCOMPARE(said, "held");
    if (before.isEmpty())
        QSKIP("the memory of other processes cannot be read here");
    QVERIFY(before.contains(secret)); // so it would be found
    const QByteArray after = memoryWhenItSpeaks();
    QCOMPARE(said, "wiped");
    QVERIFY(after.contains("proxy.example"));
    // Only texts can be wiped to the last: of bytes, the digest and the compression leave some behind.
    QCOMPARE(after.count(secret), 0);
    QVERIFY(probe.waitForFinished());
    QCOMPARE(probe.exitCode(), 0);
}

PYX_TEST_MAIN_WITH_PROBE(tst_SecretMemory, handlePassword)
#include "tst_SecretMemory.moc"
