// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastReceiver.h"
#include "BroadcastSender.h"
#include "Flags.h"
#include "NewIntegrationVersionChecker.h"
#include "PYXAppInternalsSimple.h"
#include "PYXBrokerRegistration.h"
#include "PYXEncryptionManager.h"
#include "PYXFileListImpl.h"
#include "PYXFileTracer.h"
#include "PYXHelpConnectorImpl.h"
#include "PYXIconLoader.h"
#include "PYXMemoryPool.h"
#include "PYXNotification.h"
#include "PYXPopupNotification.h"
#include "PYXProxyManager.h"
#include "PYXRetainingFileSet.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "PYXSettingsDialog.h"
#include "PYXStandardIcons.h"
#include "PYXTraceWrapper.h"
#include "PYXTransConnectorImpl.h"
#include "SHW_Debug_Broker.h"
#include "SHW_General_Language.h"
#include "SHW_Network_Proxy.h"

#include "FileContents.h"
#include "ProcessFigures.h"
#include "SettingsHome.h"

#include <QtGui/QPixmapCache>
#include <QtTest/QtTest>

#include <thread>

using namespace PYXRuntime;

namespace {

constexpr int Rounds = 100;
constexpr int WarmUpRounds = 10;
// For ninety rounds: what one leaves behind, however little, is more.
constexpr double HeapSlack = 2; // in KiB

ePYXInitializeFlags flagsOf(int round)
{
    return ePYXInitializeFlags(QFlag(round % 16));
}

} // namespace

/** Whoever starts and stops the library again and again ends with what he began with. */
class tst_Rounds : public QObject
{
    Q_OBJECT
private slots:
    void leaveNothing();
    void keepNothingOfEveryFile();

private:
    void round(int number);
    void useFiles();
    void useStores(int number);
    void useNetwork();
    void useWindows();

    SettingsHome m_home;
};

void tst_Rounds::useFiles()
{
    PYXFileTracer tracer({m_home.path("traces"), "trace.txt", 1024, 2, "Trace"});
    QVERIFY2(tracer.open(), qPrintable(tracer.errorString()));
    PYXTraceWrapper::addTracer(&tracer);
    PYXRetainingFileSet files;
    files.setBaseDirectory(m_home.path("files"));
    files.setBaseFileName("set.txt");
    files.setMaximumNumberOfFiles(2);
    files.setRegisterWrittenFiles(true);
    QVERIFY(files.open(QIODevice::WriteOnly));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(files.write("line\n"), 5LL);
    PYXTraceWrapper::staticTraceError("an error", "tst_Rounds", __LINE__);
    QVERIFY(!PYXFileListImpl::getInstance()->fileList().isEmpty());
    PYXMemoryPool pool(nullptr);
    const auto block = pool.acquire(100'000);
    std::thread([&pool] { pool.acquire(50'000); }).join();
    PYXTraceWrapper::removeTracer(&tracer);
}

void tst_Rounds::useStores(int number)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("Rounds/Number", number);
    settings.sync();
    PYXSettings passing(PYXSettings::eThisRunOnlyUserShared);
    passing.setValue("Number", number);
    passing.sync();
    PYXEncryptionManager::staticSetSimpleEncryptionProviderAsDefault();
    ProxyConfiguration proxy("198.51.100.1", 8080, "user", "password");
    proxy.setProxyType(PYXRuntime::Enums::ekProxy_ManualConfiguration);
    proxy.save(&settings, PYXProxyManager::settingsKey(), true);
    PYXProxyManager::applyProxyConfiguration(proxy);
}

void tst_Rounds::useNetwork()
{
    BroadcastReceiver receiver;
    receiver.start(0, nullptr);
    QVERIFY(receiver.isListening());
    BroadcastSender sender;
    sender.start("datagram", receiver.port(), 1000, {QHostAddress(QHostAddress::LocalHost)});
}

void tst_Rounds::useWindows()
{
    PYXAppInternalsSimple internals;
    internals.initialize_PYXAppInternalsImpl();
    QWidget window;
    internals.installShortcuts_AppModes(&window);
    internals.setAppModes(PYXIAppInternals::ekAppMode_Debug);
    const PYXBrokerRegistration registration(QUuid::createUuid(), 1, &window);
    PYXHelpConnectorImpl::getInstance()->setHelpEntryFile(m_home.path("help.xml"));
    window.setWindowIcon(PYXStandardIcons::staticRegisteredIconOverlaid(PYXStandardIcons::ekIcon_Save,
                                                                        PYXStandardIcons::ekIcon_Info));
    QVERIFY(!window.windowIcon().pixmap(16).isNull());
    auto *const translations = PYXTransConnectorImpl::getInstance();
    translations->setTransDirPath(m_home.path("translations"));
    QVERIFY(translations->changeLocale("de"));
    PYXPopupNotification::queueNotification("a pop-up that is cut off", 100, &window);
    PYXSettingsDialog dialog(&window);
    dialog.registerSettingsHandler(new SHW_General_Language);
    dialog.registerSettingsHandler(new SHW_Network_Proxy);
    dialog.registerSettingsHandler(new SHW_Debug_Broker);
    QTimer::singleShot(0, &dialog, [&dialog] { dialog.reject(); });
    dialog.exec();
    PYXNotification::setWillShowMessage("Rounds", "one", false, QDialogButtonBox::Ok);
    QCOMPARE(PYXNotification::information(&window, "Rounds", "text", "Rounds", "one"), QDialogButtonBox::Ok);
    PYXNotification::showAllMessagesAgain();
}

void tst_Rounds::round(int number)
{
    initialize_PYXRuntime(flagsOf(number));
    useFiles();
    useStores(number);
    useNetwork();
    useWindows();
    NewIntegrationVersionChecker::queueCheckForAndAnnounceNewerBuildVersion(1, m_home.path("builds"), "b");
    uninitialize_PYXRuntime();
    QCOMPARE(initializitationCount_PYXRuntime(), 0);
    QVERIFY(!PYXIconLoader::hasInstance() && !Flags::hasInstance() && !PYXPopupNotification::hasInstance());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void tst_Rounds::leaveNothing()
{
    for (const char *const directory : {"traces", "files", "builds", "translations"})
        QVERIFY(QDir().mkpath(m_home.path(directory)));
    const QString built = QCoreApplication::applicationDirPath() + "/translations/";
    QVERIFY(QFile::copy(built + "qt_de.qm", m_home.path("translations/qt_de.qm")));
    QVERIFY(QFile::copy(built + "PYXRuntime_de.qm", m_home.path("translations/Application_de.qm")));
    put(m_home.path("help.xml"), R"(<HelpEntries start="a.html"/>)");
    QPixmapCache::setCacheLimit(0); // keeps drawings, and the names of more of them, of icons that are gone
    int descriptors = 0;
    int threads = 0;
    double heap = 0;
    for (int number = 1; number <= Rounds; ++number) {
        round(number);
        if (QTest::currentTestFailed())
            return;
        if (number == WarmUpRounds) {
            descriptors = ProcessFigures::descriptors();
            threads = ProcessFigures::threads();
            heap = ProcessFigures::heapInUse();
        }
    }
    QCOMPARE(ProcessFigures::descriptors(), descriptors);
    QCOMPARE(ProcessFigures::threads(), threads);
    const double grown = ProcessFigures::heapInUse() - heap;
    QVERIFY2(grown <= HeapSlack, qPrintable(QString("%1 KiB more").arg(grown)));
}

/** A program that exports its settings to a new file every minute runs for months. */
void tst_Rounds::keepNothingOfEveryFile()
{
    const auto writeFiles = [this](int first, int count) {
        for (int i = first; i < first + count; ++i) {
            const QString path = m_home.path(QString("export %1.PYXXml").arg(i, 6, 10, QChar('0')));
            PYXSettings(path).setValue("Number", i);
            QVERIFY(QFile::remove(path));
            QCoreApplication::processEvents();
        }
    };
    writeFiles(0, 1100);
    const double heap = ProcessFigures::heapInUse();
    writeFiles(1100, 300);
    const double grown = ProcessFigures::heapInUse() - heap;
    QVERIFY2(grown <= HeapSlack, qPrintable(QString("%1 KiB more").arg(grown)));
}

QTEST_MAIN(tst_Rounds)
#include "tst_Rounds.moc"
