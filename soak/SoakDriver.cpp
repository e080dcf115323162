// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SoakDriver.h"

#include "SoakWorker.h"

#include <Announcement.h>
#include <ApplicationSettings.h>
#include <MainWindow.h>
#include <SHW_Display_Window.h>
#include <SignalMonitor.h>

#include <PYXBroker.h>
#include <PYXBrokerRegistration.h>
#include <PYXHostAddressHelpers.h>
#include <PYXIApplicationInfo.h>
#include <PYXITransConnector.h>
#include <PYXNotification.h>
#include <PYXPopupNotification.h>
#include <PYXProxyManager.h>
#include <PYXRuntimeCenter.h>
#include <PYXSettings.h>
#include <PYXSettingsTransfer.h>
#include <PYXStandardIcons.h>
#include <PYXStatusHash.h>
#include <PYXTraceWrapper.h>

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <algorithm>

using namespace PYXRuntime;
using BandMonitor::MainWindow;
using BandMonitor::SignalMonitor;
using BandMonitor::struAnnouncement;

namespace {

constexpr int BlocksPerWrittenOne = 10;
constexpr std::size_t MostStations = 8;
constexpr std::size_t MostRegistered = 20;
constexpr int MostResults = 20; // files of the recorder, which keeps all
constexpr int DialogStep = 60;  // in ms

/** Of so many kinds there are some: what is kept for each has an end. */
constexpr int Kinds = 16;

PYXFileTracer::struFiles traceFiles(const QString &directory)
{
    return {directory, QStringLiteral("soak.txt"), 65536, 5, QStringLiteral("Soak"), true};
}

/** The file list is as full as it gets: what its growing takes is not to be seen afterwards. */
void fillFileList(const QString &directory)
{
    auto *const list = PYXBroker::getInstance()->topObject<PYXIFileList>();
    for (int i = 0; list != nullptr && i < 1000; ++i)
        list->registerFile(QStringLiteral("%1/before_%2.txt").arg(directory).arg(i), PYXIFileList::ekFT_TEXT,
                           QStringLiteral("Before"), {}, {});
}

} // namespace

SoakDriver::SoakDriver(MainWindow &window, PYXAppInternalsSimple &internals,
                       std::shared_ptr<const LoopedBand::Samples> band, const QString &directory)
    : m_window(window)
    , m_internals(internals)
    , m_directory(directory)
    , m_band(std::move(band))
    , m_tracer(traceFiles(directory))
{
    m_sampleFiles.setBaseDirectory(directory);
    m_sampleFiles.setBaseFileName(QStringLiteral("samples.iq"));
    m_sampleFiles.setMaximumWeightPerFile(1U << 20);
    m_sampleFiles.setMaximumNumberOfFiles(4);
    m_lineFiles.setBaseDirectory(directory);
    m_lineFiles.setBaseFileName(QStringLiteral("spectra.csv"));
    m_lineFiles.setCountedWeight(PYXRetainingFileSet::ekWeight_Lines);
    m_lineFiles.setMaximumWeightPerFile(500);
    m_lineFiles.setMaximumNumberOfFiles(5);
    m_lineFiles.setRegisterWrittenFiles(true);
    m_lineFiles.setRegisterFileComponentName(QStringLiteral("Soak"));
    if (m_tracer.open())
        PYXTraceWrapper::addTracer(&m_tracer);
    for (PYXRetainingFileSet *const files : {&m_sampleFiles, &m_lineFiles})
        if (!files->open(QIODevice::WriteOnly))
            qFatal("%s", qUtf8Printable(files->errorString()));
}

SoakDriver::~SoakDriver()
{
    PYXTraceWrapper::removeTracer(&m_tracer);
}

void SoakDriver::start(double speed)
{
    fillFileList(m_directory);
    m_speed = speed;
    m_window.findChild<QComboBox *>()->addItem(QString::number(speed), speed);
    m_window.findChild<QAction *>(QStringLiteral("popUpsAction"))->setChecked(true);
    PYXPopupNotification::connect_queueEmpty(this, SLOT(_sl_popUps_queueEmpty()));
    m_sinceQueueEmpty.start();
    m_sinceStart.start();
    _playAnew();
    _keepPace();
    _every(500, QStringLiteral("speeds set"), [this] { _keepPace(); });
    _every(60'000, QStringLiteral("sources begun"), [this] { _playAnew(); });
    _every(3000, QStringLiteral("languages switched"), [this] { _switchLanguage(); });
    _every(4000, QStringLiteral("modes switched"), [this] { _switchModes(); });
    _every(1000, QStringLiteral("settings written and synchronised"), [this] { _syncSettings(); });
    _every(10'000, QStringLiteral("settings exported and imported"), [this] { _transferSettings(); });
    _every(700, QStringLiteral("stations come and gone"), [this] { _changeStations(); });
    _every(5000, QStringLiteral("receivers started"), [this] { _restartReceiver(); });
    _every(9000, QStringLiteral("recordings begun"), [this] { _restartRecorder(); });
    _every(200, QStringLiteral("registrations changed"), [this] { _changeRegistrations(); });
    _every(5000, QStringLiteral("proxies applied"), [this] { _applyProxy(); });
    _every(500, QStringLiteral("icons drawn"), [this] { _drawIcons(); });
    _every(6000, QStringLiteral("threads begun"), [this] { _startWorker(); });
    _every(7000, QStringLiteral("questions asked"), [this] { _ask(); });
    _every(5000, QStringLiteral("pop-ups queued"),
           [this] { PYXPopupNotification::queueQuickNotification(QStringLiteral("A pop-up"), &m_window); });
    _every(13'000, QStringLiteral("settings dialogs opened"), [this] { _openOwnDialog(); });
    _every(17'000, QStringLiteral("settings dialogs made"), [this] { _openNewDialog(); });
}

void SoakDriver::stop()
{
    const auto timers = findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer *const timer : timers)
        timer->stop();
    m_window.setPlaying(false);
    m_window.setRecording(false);
    if (m_worker != nullptr)
        m_worker->wait();
}

void SoakDriver::_every(int milliseconds, const QString &name, const std::function<void()> &work)
{
    m_counts[name] = 0;
    auto *const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this, name, work] {
        ++m_counts[name];
        work();
    });
    timer->start(milliseconds);
}

double SoakDriver::playedSeconds() const
{
    return m_playedBefore + (m_window.monitor() != nullptr ? m_window.monitor()->time() : 0);
}

double SoakDriver::secondsSincePopUpQueueWasEmpty() const
{
    return double(m_sinceQueueEmpty.elapsed()) / 1000;
}

void SoakDriver::_playAnew()
{
    m_playedBefore = playedSeconds();
    m_window.play(std::make_unique<LoopedBand>(m_band));
    const SignalMonitor *const monitor = m_window.monitor();
    connect(monitor, &SignalMonitor::si_samples, this, [this](const BandMonitor::struSampleBlock &block) {
        if (++m_blocks % BlocksPerWrittenOne == 0)
            m_sampleFiles.write(reinterpret_cast<const char *>(block.samples()),
                                qint64(block.count) * qint64(sizeof(BandMonitor::Sample)));
    });
    connect(monitor, &SignalMonitor::si_spectrum, this, [this](const BandMonitor::struSpectrum &spectrum) {
        m_lineFiles.write(QByteArray::number(spectrum.time) + '\n');
    });
}

/** What the window leaves out while it has other things to do is caught up with. */
void SoakDriver::_keepPace()
{
    const double behind = m_speed * double(m_sinceStart.elapsed()) / 1000 - playedSeconds();
    auto *const speedBox = m_window.findChild<QComboBox *>();
    const int last = speedBox->count() - 1;
    speedBox->setItemData(last, m_speed + std::clamp(behind, 0.0, m_speed));
    speedBox->setCurrentIndex(0);
    speedBox->setCurrentIndex(last);
}

void SoakDriver::_switchLanguage()
{
    const QString locales[] = {QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("en")};
    auto *const translations = PYXBroker::getInstance()->topObject<PYXITransConnector>();
    const QString &locale = locales[m_counts.value(QStringLiteral("languages switched")) % 3];
    if (!translations->changeLocale(locale))
        qFatal("The language \"%s\" is missing.", qUtf8Printable(locale));
}

void SoakDriver::_switchModes()
{
    const int count = m_counts.value(QStringLiteral("modes switched"));
    m_internals.overrideAppModes(quint64(count % 4));
    const bool bDebug = count % 2 == 1;
    PYXRuntimeCenter::setEnabled_pyxDebug(bDebug);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(bDebug);
}

void SoakDriver::_syncSettings()
{
    const int count = m_counts.value(QStringLiteral("settings written and synchronised"));
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXStatusHash hash;
    hash.insert(QStringLiteral("count"), count);
    settings.setValue(QStringLiteral("Soak/Hash"), hash);
    for (int i = 0; i < Kinds; ++i)
        settings.setValue(QStringLiteral("Soak/Value%1").arg(i),
                          QStringLiteral("%1 <&> %2").arg(count).arg(i));
    settings.setValue(QStringLiteral("Soak/List"), QStringList{QStringLiteral("a"), QString::number(count)});
    settings.remove(QStringLiteral("Soak/Value%1").arg(count % Kinds));
    settings.sync();
    PYXSettings shared(PYXSettings::eUserSharedSettings);
    shared.setValue(QStringLiteral("Soak/Count"), count);
    PYXSettings(PYXSettings::eThisRunOnlyUserApplication).setValue(QStringLiteral("Soak/Count"), count);
    m_watcher = std::make_unique<PYXSettingsWatcher>(settings);
}

void SoakDriver::_transferSettings()
{
    const QString path = QStringLiteral("%1/export_%2.PYXXml")
                             .arg(m_directory)
                             .arg(m_counts.value(QStringLiteral("settings exported and imported")));
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    if (!PYXSettingsTransfer::exportTo(path, settings).bOk ||
        !PYXSettingsTransfer::importFrom(path, settings, QStringLiteral("Soak")).bOk)
        qFatal("The settings cannot be exported to %s and imported again.", qUtf8Printable(path));
    QFile::remove(path);
}

void SoakDriver::_changeStations()
{
    const int count = m_counts.value(QStringLiteral("stations come and gone"));
    const struAnnouncement station{QUuid::createUuid(), QStringLiteral("Station %1").arg(count), 1000};
    m_stations.push_back(std::make_unique<BroadcastSender>());
    m_stations.back()->start(station.toDatagram(), struAnnouncement::Port, station.interval, {});
    if (m_stations.size() > MostStations)
        m_stations.pop_front();
    const QHostAddress peer(QStringLiteral("198.51.100.%1").arg(count % Kinds + 1));
    PYXHostAddressHelpers::belongsToALocalSubnet(peer);
    PYXHostAddressHelpers::decideOwnAddressForPeer(peer);
    if (count % 10 == 0)
        PYXHostAddressHelpers::refresh();
}

void SoakDriver::_restartReceiver()
{
    m_receiver.start(struAnnouncement::Port, this);
}

void SoakDriver::parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &, quint16)
{
    if (struAnnouncement::fromDatagram(datagram))
        ++m_counts[QStringLiteral("announcements heard")];
}

void SoakDriver::_restartRecorder()
{
    m_window.setRecording(false);
    _deleteOldResults();
    m_window.setRecording(true);
}

void SoakDriver::_deleteOldResults()
{
    auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    const QDir results(info->getSpecialDirPath(PYXIApplicationInfo::eApplicationResultsDir, true));
    const QFileInfoList files = results.entryInfoList(QDir::Files, QDir::Time); // the newest first
    for (int i = MostResults; i < files.size(); ++i)
        QFile::remove(files.at(i).filePath());
}

/** Objects that go in every way: unregistered, or destroyed while they are registered. */
void SoakDriver::_changeRegistrations()
{
    PYXBroker *const broker = PYXBroker::getInstance();
    const int count = m_counts.value(QStringLiteral("registrations changed"));
    m_registered.push_back(std::make_unique<QObject>());
    const QUuid slot = PYXBrokerInterface<PYXIFileList>::id();
    const auto name = uint(1 + count % Kinds);
    broker->registerObject(slot, name, m_registered.back().get());
    { // a slot that has never been there and will never be again
        const PYXBrokerRegistration passing(QUuid::createUuid(), uint(count), m_registered.back().get());
    }
    if (m_registered.size() > MostRegistered)
        m_registered.pop_front();
    broker->topObject(slot, name);
    broker->unregisterObject(slot, name, nullptr);
}

void SoakDriver::_applyProxy()
{
    const int count = m_counts.value(QStringLiteral("proxies applied"));
    ProxyConfiguration proxy(QStringLiteral("198.51.100.%1").arg(count % Kinds + 1), 8080,
                             QStringLiteral("user"), QStringLiteral("password %1").arg(count));
    proxy.setProxyType(count % 2 == 0 ? PYXRuntime::Enums::ekProxy_NoProxy
                                      : PYXRuntime::Enums::ekProxy_ManualConfiguration);
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    proxy.save(&settings, PYXProxyManager::settingsKey(), true);
    PYXProxyManager::applyProxyConfiguration(proxy);
}

void SoakDriver::_drawIcons()
{
    const int count = m_counts.value(QStringLiteral("icons drawn"));
    QList<uint> ids = PYXStandardIcons::standardIconsEnum().values();
    std::sort(ids.begin(), ids.end());
    const uint id = ids.at(count % Kinds);
    const uint other = ids.at((count + 1) % Kinds);
    PYXStandardIcons *const icons = PYXStandardIcons::getInstance();
    icons->registeredIconPixmap(id, 16 + 8 * (count % 3), QIcon::Normal, QIcon::Off);
    icons->registeredIconOverlaid(id, other).pixmap(24);
    icons->registeredIconAutoOverlaid(id, other, 0.5, QIconHelpers::ekOverlayRegion_Corners).pixmap(32);
    icons->setOverrideIcon(id, other);
    icons->registeredIcon(id).pixmap(16);
    icons->removeOverrideIcon(id);
}

void SoakDriver::_startWorker()
{
    if (m_worker != nullptr)
        return;
    m_worker = new SoakWorker(m_directory);
    connect(m_worker, &QThread::finished, this, [this] {
        m_worker->deleteLater();
        m_worker = nullptr;
    });
    m_worker->start();
}

/** Calls a step for the dialog that is open, until it says that it has done. */
void SoakDriver::_whileOpen(int milliseconds, const std::function<bool(QDialog &)> &step)
{
    auto *const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [timer, step] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog != nullptr && step(*dialog))
            timer->deleteLater();
    });
    timer->start(milliseconds);
}

void SoakDriver::_ask()
{
    if (m_bDialogOpen)
        return;
    m_bDialogOpen = true;
    const int count = m_counts.value(QStringLiteral("questions asked"));
    const QString key = QString::number(count % Kinds);
    _whileOpen(DialogStep, [count](QDialog &dialog) {
        dialog.findChild<QCheckBox *>()->setChecked(count % 2 == 0);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Yes)->click();
        return true;
    });
    PYXNotification::showAllMessagesAgain();
    PYXNotification::question(&m_window, QStringLiteral("Soak"), QStringLiteral("Go on with %1?").arg(count),
                              QStringLiteral("Soak"), key, QDialogButtonBox::Yes | QDialogButtonBox::No,
                              QDialogButtonBox::No, true);
    m_bDialogOpen = false;
}

/** Shows every page of the dialog that opens next, changes one, and applies. */
void SoakDriver::_visitPages()
{
    _whileOpen(DialogStep, [page = 0](QDialog &dialog) mutable {
        auto *const tree = dialog.findChild<QTreeWidget *>(QStringLiteral("m_SettingsTree"));
        const auto items = tree->findItems(QStringLiteral("*"), Qt::MatchWildcard | Qt::MatchRecursive);
        if (page < items.size()) {
            tree->setCurrentItem(items.at(page++));
            return false;
        }
        dialog.findChild<QCheckBox *>(QStringLiteral("darkBox"))->toggle();
        auto *const box = dialog.findChild<QDialogButtonBox *>(QStringLiteral("m_ButtonBoxDialog"));
        box->button(QDialogButtonBox::Ok)->click();
        return true;
    });
}

void SoakDriver::_openOwnDialog()
{
    if (m_bDialogOpen)
        return;
    m_bDialogOpen = true;
    _visitPages();
    m_window.findChild<QAction *>(QStringLiteral("settingsAction"))->trigger();
    m_bDialogOpen = false;
}

void SoakDriver::_openNewDialog()
{
    if (m_bDialogOpen)
        return;
    m_bDialogOpen = true;
    _visitPages();
    QWidget window;
    BandMonitor::ApplicationSettings(&window).run();
    m_bDialogOpen = false;
}
