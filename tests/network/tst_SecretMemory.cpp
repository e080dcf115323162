// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Looks through the memory of another process for a password that it has wiped.

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtTest/QtTest>

namespace {

const QString Password = "correct horse battery staple";

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

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), 2 * text.size()};
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
    probe.start(QDir(QCoreApplication::applicationDirPath()).filePath("secretprobe"), QStringList());
    const auto saysNext = [&probe] {
        while (!probe.canReadLine()) {
            if (!probe.waitForReadyRead())
                return QByteArray("nothing");
        }
        return probe.readLine().trimmed();
    };
    QCOMPARE(saysNext(), QByteArray("held"));
    const QByteArray before = writableMemory(probe.processId());
    if (before.isEmpty())
        QSKIP("the memory of other processes cannot be read here");
    QVERIFY(before.contains(utf16(Password))); // so it would be found
    probe.write("\n");
    QCOMPARE(saysNext(), QByteArray("wiped"));
    const QByteArray after = writableMemory(probe.processId());
    QVERIFY(after.contains("proxy.example"));
    // Only texts can be wiped to the last: of bytes, the digest and the compression leave some behind.
    QCOMPARE(after.count(utf16(Password)), 0);
    probe.write("\n");
    QVERIFY(probe.waitForFinished());
    QCOMPARE(probe.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_SecretMemory)
#include "tst_SecretMemory.moc"
