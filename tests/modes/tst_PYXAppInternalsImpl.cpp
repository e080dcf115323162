// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AppInternals.h"
#include "DataRows.h"
#include "PYXAppInternalsSimple.h"
#include "PYXBroker.h"
#include "PYXPopupNotification.h"
#include "PYXPopupNotificationWidget.h"
#include "PYXRuntimeCenter.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

using namespace PYXRuntime;

namespace {

constexpr quint64 Debug = 1;
constexpr quint64 Expert = 2;
const char *const DebugChord = "Ctrl+Shift+A,Ctrl+Shift+M,Ctrl+Shift+D";

class Internals : public PYXAppInternalsSimple
{
public:
    using PYXAppInternalsSimple::_handleCmdLineArgsFromRunningApp;
};

/** Writes every change down as "<set> <old> <new>". */
class Listener : public QObject
{
    Q_OBJECT
public:
    QStringList changes;

Q_SIGNALS:
    void heard();

public Q_SLOTS:
    void modes(quint64 oldValue, quint64 newValue) { note('m', oldValue, newValue); }
    void internal(quint64 oldValue, quint64 newValue) { note('i', oldValue, newValue); }
    void special(quint64 oldValue, quint64 newValue) { note('s', oldValue, newValue); }

private:
    void note(char set, quint64 oldValue, quint64 newValue)
    {
        changes += QString("%1 %2 %3").arg(set).arg(oldValue, 0, 16).arg(newValue, 0, 16);
        Q_EMIT heard();
    }
};

/** An active window, in which chords work. */
struct Window : QWidget
{
    Window()
    {
        show();
        QApplication::setActiveWindow(this);
        if (!QTest::qWaitForWindowActive(this))
            qFatal("The window does not become active.");
    }
};

/** What is popped up; empty if nothing has been since the last test. */
QString popupText()
{
    for (const QWidget *const widget : QApplication::allWidgets()) {
        if (const auto *const popup = qobject_cast<const PYXPopupNotificationWidget *>(widget))
            return popup->text();
    }
    return {};
}

} // namespace

class tst_PYXAppInternalsImpl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { PYXPopupNotification::destroyInstance(); }
    void isFoundByTheBroker();
    void warnsOfAnOwnerThatIsNoInterface();
    void takesSwitchesFromArguments();
    void tellsOfChangesOnly();
    void togglesModesByChords();
    void keepsNoChordsWithoutTheirWidget();
    void survivesListenersThatDestroyIt();
};

void tst_PYXAppInternalsImpl::isFoundByTheBroker()
{
    QCOMPARE(appInternals::appModes(), 0ULL);
    auto *const internals = new PYXAppInternalsSimple;
    internals->setAppModes(Debug);
    QVERIFY(!appInternals::appIsInDebugMode());
    internals->initialize_PYXAppInternalsImpl();
    QVERIFY(appInternals::appIsInDebugMode() && !appInternals::appIsInExpertMode());
    QObject *const found =
        PYXBroker::getInstance()->topObject(QUuid("{84AAAD84-7DFA-416c-92AD-D7194317C86E}"), 0);
    QCOMPARE(found, internals);
    QCOMPARE(found->qt_metacast("com.varnholt.PYXRuntime.PYXIAppInternals/1.1"),
             static_cast<void *>(static_cast<PYXIAppInternals *>(internals)));
    QCOMPARE(internals->arguments(), QCoreApplication::arguments());
    QVERIFY(!internals->cmdLineArgs_withoutStandard().isEmpty());
    internals->setAppModes(Expert | 0x8000000000000000);
    QVERIFY(appInternals::appIsInExpertMode());
    QCOMPARE(appInternals::appModes(), 0x8000000000000003ULL);
    // Who hears of it can still ask it.
    connect(PYXBroker::getInstance(), &PYXBroker::si_aboutToUnregister, this,
            [&] { QVERIFY(appInternals::appIsInExpertMode()); });
    delete internals;
    PYXBroker::getInstance()->disconnect(this);
    QVERIFY(PYXBroker::getInstance()->registeredNames(InterfaceIdentifiers::appInternals()).isEmpty());
}

void tst_PYXAppInternalsImpl::warnsOfAnOwnerThatIsNoInterface()
{
    QObject owner;
    PYXAppInternalsImpl internals(&owner);
    PYXAppInternalsSimple sound;
    const QStringList traces = tracesOf([&] {
        internals.initialize_PYXAppInternalsImpl();
        sound.initialize_PYXAppInternalsImpl();
        QCoreApplication::processEvents();
    });
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces[0].contains("lacks PYXIAppInternals: QObject|source\\PYXAppInternalsImpl"));
}

void tst_PYXAppInternalsImpl::takesSwitchesFromArguments()
{
    // Modes before, arguments, modes after, the arguments that are left, messages.
    const Rows<quint64, QString, quint64, QString, QString> rows = {
        {"capitals", 0, "App.exe ++EXPERT foo", Expert, "App.exe foo", "++expert: switching expert mode ON"},
        {"the later one wins", 0, "+d -D", 0, "", "+d: switching debug mode ON,-d: switching debug mode OFF"},
        {"only changes count", Debug, "++debug -e --expert +d", Debug, "", ""},
        {"all", Expert, "App --EXPERT +e ++debug", Debug | Expert, "App",
         "--expert: switching expert mode OFF,+e: switching expert mode ON,++debug: switching debug mode ON"},
        {"nearly", 16, "e +ee -debug ++d x+d --expert=1", 16, "e +ee -debug ++d x+d --expert=1", ""}};
    PYXRuntimeCenter::setEnabled_pyxDebug("PYXRuntime", true);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    forRows(rows, [](quint64 before, const QString &arguments, quint64 after, const QString &rest,
                     const QString &messages) {
        Internals internals;
        internals.overrideAppModes(before);
        const QStringList traces =
            tracesOf([&] { internals._handleCmdLineArgsFromRunningApp(arguments.split(' ')); });
        QCOMPARE(internals.appModes(), after);
        QCOMPARE(internals.cmdLineArgs(), arguments.split(' '));
        QCOMPARE(internals.cmdLineArgs_withoutStandard(), rest.split(' ', Qt::SkipEmptyParts));
        QStringList expected;
        for (const QString &message : messages.split(',', Qt::SkipEmptyParts))
            expected += "Debug|" + QString(message).replace(": ", " found: ") + "|PYXRuntime|0";
        QCOMPARE(traces, expected);
        // Its own list, which goes meanwhile.
        internals._handleCmdLineArgsFromRunningApp(internals.cmdLineArgs_withoutStandard());
        QCOMPARE(internals.cmdLineArgs(), rest.split(' ', Qt::SkipEmptyParts));
    });
    PYXRuntimeCenter::setEnabled_pyxDebug("PYXRuntime", false);
}

void tst_PYXAppInternalsImpl::tellsOfChangesOnly()
{
    PYXAppInternalsSimple internals;
    Listener listener;
    QVERIFY(internals.connectSignal_appModesChanged(&listener, SLOT(modes(quint64, quint64))));
    QVERIFY(internals.connectSignal_internalFlagsChanged(&listener, SLOT(internal(quint64, quint64))));
    QVERIFY(internals.connectSignal_specialModeFlagsChanged(&listener, SLOT(special(quint64, quint64)),
                                                            Qt::QueuedConnection));
    internals.setAppModes(2);
    internals.setAppModes(2);
    internals.setAppModes(1);
    internals.unsetAppModes(4);
    internals.overrideAppModes(0);
    internals.overrideInternalFlags(0xf00);
    internals.unsetInternalFlags(0x500);
    internals.setInternalFlags(0x1);
    internals.setSpecialModeFlags(0x3);
    internals.overrideSpecialModeFlags(0x3);
    internals.unsetSpecialModeFlags(0x3);
    QCOMPARE(listener.changes.join(", "), QString("m 0 2, m 2 3, m 3 0, i 0 f00, i f00 a00, i a00 a01"));
    QCoreApplication::processEvents();
    QCOMPARE(listener.changes.mid(6).join(", "), QString("s 0 3, s 3 0"));

    internals.disconnectSignals(nullptr);
    internals.disconnectSignal_appModesChanged(&listener, SLOT(modes(quint64, quint64)));
    internals.setAppModes(1);
    internals.overrideInternalFlags(0);
    QCOMPARE(listener.changes.last(), QString("i a01 0"));
    internals.disconnectSignals(&listener);
    internals.setInternalFlags(1);
    internals.setSpecialModeFlags(1);
    QCoreApplication::processEvents();
    QCOMPARE(listener.changes.last(), QString("i a01 0"));
}

void tst_PYXAppInternalsImpl::togglesModesByChords()
{
    const Rows<QString, quint64> rows = {{"debug", DebugChord, Debug},
                                         {"expert", "Ctrl+Shift+A,Ctrl+Shift+M,Ctrl+Shift+E", Expert}};
    forRows(rows, [](const QString &chord, quint64 mode) {
        const QKeySequence keys(chord);
        PYXAppInternalsSimple internals;
        Window window;
        QWidget inner(&window);
        internals.installShortcuts_AppModes(nullptr);
        internals.installShortcuts_AppModes(&window);
        internals.installShortcuts_AppModes(&window);
        QCOMPARE(window.findChildren<QShortcut *>().size(), 2);
        QTest::keySequence(&window, keys);
        QCOMPARE(internals.appModes(), mode);
        // Both in one window.
        internals.installShortcuts_AppModes(&inner);
        QTest::keySequence(&window, keys);
        QCOMPARE(internals.appModes(), 0ULL);
        internals.uninstallShortcuts_AppModes(&inner);
        internals.uninstallShortcuts_AppModes(&window);
        internals.uninstallShortcuts_AppModes(&window);
        QTest::keySequence(&window, keys);
        QCOMPARE(internals.appModes(), 0ULL);
        const QString text = mode == Debug ? "++debug mode %1activated" : "++expert mode %1activated";
        QTRY_COMPARE(popupText(), text.arg(QString()));
        QTRY_COMPARE(popupText(), text.arg("de"));
        PYXPopupNotification::destroyInstance();
    });
}

void tst_PYXAppInternalsImpl::keepsNoChordsWithoutTheirWidget()
{
    Window window;
    {
        PYXAppInternalsSimple internals;
        alignas(QWidget) char room[sizeof(QWidget)];
        // A widget at the same address is another one.
        for (int i = 0; i < 2; ++i) {
            auto *const widget = new (room) QWidget(&window);
            internals.installShortcuts_AppModes(widget);
            QCOMPARE(widget->findChildren<QShortcut *>().size(), 2);
            widget->~QWidget();
            internals.uninstallShortcuts_AppModes(reinterpret_cast<QWidget *>(room));
        }
        internals.installShortcuts_AppModes(&window);
    }
    QVERIFY(window.findChildren<QShortcut *>().isEmpty());
}

void tst_PYXAppInternalsImpl::survivesListenersThatDestroyIt()
{
    Window window;
    Listener listener;
    Internals *internals = nullptr;
    connect(&listener, &Listener::heard, this, [&] { delete internals; });
    const auto makeInternals = [&] {
        internals = new Internals;
        internals->installShortcuts_AppModes(&window);
        internals->connectSignal_appModesChanged(&listener, SLOT(modes(quint64, quint64)));
    };
    makeInternals();
    QTest::keySequence(&window, QKeySequence(DebugChord));
    makeInternals();
    internals->_handleCmdLineArgsFromRunningApp({"+d", "+e"});
    QCOMPARE(listener.changes.join(", "), QString("m 0 1, m 0 1"));
    QVERIFY(window.findChildren<QShortcut *>().isEmpty());
}

QTEST_MAIN(tst_PYXAppInternalsImpl)
#include "tst_PYXAppInternalsImpl.moc"
