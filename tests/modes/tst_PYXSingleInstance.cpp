// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAppInternalsSimple.h"
#include "PYXSingleInstance.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace PYXRuntime;

namespace {

/** Instances of one test belong together, those of tests that run beside it do not. */
QString ownId()
{
    return QString("%1 %2").arg(QTest::currentTestFunction()).arg(QCoreApplication::applicationPid());
}

std::unique_ptr<QProcess> startedProbe(const QStringList &arguments, const QString &directory = {})
{
    auto probe = std::make_unique<QProcess>();
    probe->setWorkingDirectory(directory);
    probe->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    probe->start(QCoreApplication::applicationDirPath() + "/instanceprobe", QStringList(ownId()) + arguments);
    return probe;
}

QString nextLine(QProcess &probe)
{
    if (!QTest::qWaitFor([&] { return probe.canReadLine(); }, 30'000))
        return "nothing";
    return QString::fromUtf8(probe.readLine()).trimmed();
}

} // namespace

class tst_PYXSingleInstance : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void makesExactlyOneOfManyTheFirst();
    void handsArgumentsToTheModesOfTheFirst();
    void takesNothingFromWhoHasGivenUp();
    void tellsWhatIsWrong();

private:
    QTemporaryDir m_directory;
};

void tst_PYXSingleInstance::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", m_directory.path().toLocal8Bit());
    // Where the probe finds the libraries on Windows.
    qputenv("PATH", QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toLocal8Bit() +
                        QByteArray(1, QDir::listSeparator().toLatin1()) + qgetenv("PATH"));
}

void tst_PYXSingleInstance::makesExactlyOneOfManyTheFirst()
{
    std::vector<std::unique_ptr<QProcess>> probes;
    probes.reserve(6);
    for (int i = 0; i < 6; ++i)
        probes.push_back(startedProbe({QString::number(i)}));
    QStringList results;
    for (const auto &probe : probes)
        results += nextLine(*probe);
    QCOMPARE(results.count("ekFirst"), 1);
    QCOMPARE(results.count("ekHandedOver"), 5);
    const int firstIndex = results.indexOf("ekFirst");
    QProcess &first = *probes[std::size_t(firstIndex)];
    QStringList given;
    for (int i = 0; i < 5; ++i)
        given += nextLine(first);
    given += QString::number(firstIndex);
    given.sort();
    QCOMPARE(given.join(' '), QString("0 1 2 3 4 5"));

    first.kill();
    QVERIFY(first.waitForFinished());
    PYXSingleInstance next(ownId());
    next.setTimeout(0); // at the first attempt, or not
    QCOMPARE(next.start(), PYXSingleInstance::ekFirst);
    QCOMPARE(next.start(), PYXSingleInstance::ekFirst);
    next.stop();
    QCOMPARE(next.start(), PYXSingleInstance::ekFirst);
}

void tst_PYXSingleInstance::handsArgumentsToTheModesOfTheFirst()
{
    PYXAppInternalsSimple internals;
    PYXSingleInstance instance(ownId());
    internals.connectSingleInstance(&instance);
    internals.connectSingleInstance(&instance);
    QCOMPARE(instance.start(), PYXSingleInstance::ekFirst);
    QStringList argumentsThen;
    connect(&instance, &PYXSingleInstance::si_argumentsReceived, this,
            [&] { argumentsThen = internals.cmdLineArgs_withoutStandard(); });
    const QSignalSpy spy(&instance, &PYXSingleInstance::si_argumentsReceived);
    const QTemporaryDir elsewhere;
    const QStringList arguments{"App.exe", "", "../\u00e4 \u20ac.wav", "++Debug", "-x=\"y\""};
    const auto probe = startedProbe(arguments, elsewhere.path());
    QCOMPARE(nextLine(*probe), QString("ekHandedOver"));
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(QFileInfo(spy[0][1].toString()).canonicalFilePath(),
             QFileInfo(elsewhere.path()).canonicalFilePath());
    QCOMPARE(internals.cmdLineArgs(), arguments);
    QVERIFY(internals.appIsInDebugMode());
    QStringList rest = arguments;
    rest.removeAt(3);
    QCOMPARE(argumentsThen, rest);
}

void tst_PYXSingleInstance::takesNothingFromWhoHasGivenUp()
{
    auto *const first = new PYXSingleInstance(ownId());
    QCOMPARE(first->start(), PYXSingleInstance::ekFirst);
    // This thread runs no event loop meanwhile.
    PYXSingleInstance second(ownId());
    second.setTimeout(100);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(second.start({"lost"}), PYXSingleInstance::ekFirstDoesNotAnswer);
    QVERIFY(timer.elapsed() >= 100);
    QVERIFY(!second.errorString().isEmpty());
    QVERIFY(!second.isFirst());
    QStringList given;
    connect(first, &PYXSingleInstance::si_argumentsReceived, this, [&](const QStringList &arguments) {
        given += arguments;
        delete first;
    });
    const auto probe = startedProbe({"kept"});
    QCOMPARE(nextLine(*probe), QString("ekHandedOver"));
    QTRY_COMPARE(given, QStringList("kept"));
    // Deleted, it is in nobody's way.
    QCOMPARE(second.start(), PYXSingleInstance::ekFirst);
}

void tst_PYXSingleInstance::tellsWhatIsWrong()
{
    PYXSingleInstance instance(ownId());
    const QStringList traces =
        tracesOf([&] { QCOMPARE(instance.start({QString(5'000'000, 'x')}), PYXSingleInstance::ekError); });
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces[0].startsWith("Warn|There are too many arguments.|source\\PYXSingleInstance|"));
    QCOMPARE(instance.errorString(), QString("There are too many arguments."));
    QCOMPARE(instance.start({"few"}), PYXSingleInstance::ekFirst);
    QVERIFY(instance.errorString().isEmpty());
}

QTEST_GUILESS_MAIN(tst_PYXSingleInstance)
#include "tst_PYXSingleInstance.moc"
