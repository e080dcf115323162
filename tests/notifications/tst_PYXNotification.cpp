// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "PYXNotification.h"
#include "PYXSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"
#include "SuppressedMessages.h"

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>

#include <functional>
#include <thread>
#include <vector>

using namespace PYXRuntime;
using Box = QDialogButtonBox;

namespace {

/** Runs once the next dialog is up. */
void whenShown(const std::function<void(PYXNotification &)> &act)
{
    QTimer::singleShot(0, [act] {
        auto *const dialog = qobject_cast<PYXNotification *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        act(*dialog);
    });
}

QPushButton *buttonOf(PYXNotification &dialog, Box::StandardButton button)
{
    return dialog.findChild<Box *>()->button(button);
}

Box::StandardButton ask(bool persistent = false)
{
    return PYXNotification::question(nullptr, "Title", "Stop?", "module", "stop", Box::Yes | Box::No, Box::No,
                                     persistent);
}

/** Lets the next question be answered, and not be asked again. */
void answerOnce(Box::StandardButton button)
{
    whenShown([button](PYXNotification &dialog) {
        QTest::mouseClick(dialog.findChild<QCheckBox *>(), Qt::LeftButton, {}, QPoint(8, 8));
        QVERIFY(!dialog.showAgain());
        QTest::mouseClick(buttonOf(dialog, button), Qt::LeftButton);
    });
}

} // namespace

class tst_PYXNotification : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_home.reset(new SettingsHome); }
    void init() { PYXNotification::showAllMessagesAgain(); }
    void cleanupTestCase() { m_home.reset(); }
    void kinds();
    void remembersTheAnswer();
    void closedWithoutAButton();
    void choosesTheDefaultButton();
    void fitsItsText();
    void keepsSuppressionsForTheNextRun();
    void ignoresGarbageInTheSettings();
    void tracersMayAsk();
    void threadsMayAsk();

private:
    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXNotification::kinds()
{
    const std::pair<decltype(&PYXNotification::warning), QMessageBox::Icon> kinds[] = {
        {&PYXNotification::information, QMessageBox::Information},
        {&PYXNotification::warning, QMessageBox::Warning},
        {&PYXNotification::critical, QMessageBox::Critical},
        {&PYXNotification::question, QMessageBox::Question}};
    for (const auto &kind : kinds) {
        const auto icon = kind.second;
        bool bShown = false;
        whenShown([&](PYXNotification &dialog) {
            bShown = true;
            QCOMPARE(dialog.icon(), icon);
            QVERIFY(!dialog.iconPixmap().isNull());
            QCOMPARE(dialog.findChild<QCheckBox *>()->text(),
                     QString(icon == QMessageBox::Question ? "Ask this question again"
                                                           : "Show this message again"));
            QCOMPARE(dialog.windowTitle() + dialog.text(), QString("Title<b>text</b>"));
            QCOMPARE(dialog.standardButtons(), Box::Ok | Box::Cancel);
            QVERIFY(dialog.isModal() && dialog.showAgain());
            QTest::mouseClick(buttonOf(dialog, Box::Cancel), Qt::LeftButton);
        });
        const auto clicked = kind.first(nullptr, "Title", "<b>text</b>", "a", "b", Box::Ok | Box::Cancel,
                                        Box::NoButton, false);
        QCOMPARE(clicked, Box::Cancel);
        QVERIFY(bShown && PYXNotification::willShowMessage("a", "b"));
    }
}

void tst_PYXNotification::remembersTheAnswer()
{
    answerOnce(Box::Yes);
    QCOMPARE(ask(), Box::Yes);
    QCOMPARE(ask(), Box::Yes); // nobody answers any more
    QVERIFY(!PYXNotification::willShowMessage("module", "stop"));
    QVERIFY(PYXNotification::willShowMessage("module", "start"));
    QCOMPARE(PYXNotification::hiddenMessageReturnButton("module", "start"), Box::NoButton);

    PYXNotification::fixHiddenForAbsurdReturnButton("module", "stop", Box::No);
    PYXNotification::fixHiddenForAbsurdReturnButton("module", "stop", Box::NoButton);
    PYXNotification::fixHiddenForAbsurdReturnButtons("module", "stop", Box::No | Box::Cancel);
    QVERIFY(!PYXNotification::willShowMessage("module", "stop"));
    PYXNotification::fixHiddenForAbsurdReturnButtons("module", "stop", Box::No | Box::Yes);
    QVERIFY(PYXNotification::willShowMessage("module", "stop"));

    PYXNotification::setWillShowMessage("module", "stop", false, Box::Yes);
    PYXNotification::fixHiddenForAbsurdReturnButton("module", "stop", Box::Yes);
    QVERIFY(PYXNotification::willShowMessage("module", "stop"));
    QCOMPARE(m_home->files(), QStringList());
}

void tst_PYXNotification::closedWithoutAButton()
{
    for (auto *const parent : {static_cast<QWidget *>(nullptr), new QWidget}) {
        whenShown([parent](PYXNotification &dialog) {
            dialog.findChild<QCheckBox *>()->setChecked(false);
            if (parent == nullptr)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            delete parent;
        });
        QCOMPARE(PYXNotification::warning(parent, "Title", "text", "a", "b"), Box::NoButton);
        QVERIFY(PYXNotification::willShowMessage("a", "b"));
    }
}

void tst_PYXNotification::choosesTheDefaultButton()
{
    for (const auto given : {Box::No, Box::NoButton, Box::Help}) {
        PYXNotification dialog;
        dialog.setDefaultButton(given);
        dialog.setStandardButtons(Box::No | Box::Yes);
        dialog.show();
        const auto expected = given == Box::No ? Box::No : Box::Yes;
        QVERIFY(buttonOf(dialog, expected)->isDefault());
        QCOMPARE(dialog.focusWidget(), buttonOf(dialog, expected)); // not the check box
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(dialog.clickedButton(), expected);
        dialog.show();
        QCOMPARE(dialog.clickedButton(), Box::NoButton); // not that of the last time
    }
    whenShown([](PYXNotification &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    QCOMPARE(PYXNotification::critical(nullptr, "Title", "text", "a", "b", Box::NoButton), Box::Ok);
}

void tst_PYXNotification::fitsItsText()
{
    const auto sizeOf = [](const QString &text, int points) {
        PYXNotification dialog;
        QFont font = dialog.font();
        font.setPointSize(points);
        dialog.setFont(font);
        dialog.setStandardButtons(Box::Ok);
        dialog.setText(text);
        dialog.show();
        return dialog.size();
    };
    const QSize one = sizeOf("text", 9);
    const QSize three = sizeOf("text\ntext\ntext", 9);
    QVERIFY(three.height() > one.height() && three.width() == one.width());
    // Without any font, as under Wine, all sizes are one.
    const bool bFontsGrow = QFontMetrics(QFont("", 18)).height() > QFontMetrics(QFont("", 9)).height();
    QVERIFY(!bFontsGrow || sizeOf("text", 18).height() > one.height() * 4 / 3);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    for (const QString &text : {QString("word ").repeated(2'000'000), QString(10'000'000, 'w'),
                                QString(10'000'000, '\n'), QString(1'000, 'w')}) {
        const QSize huge = sizeOf(text, 18);
        QVERIFY(huge.width() < screen.width() && huge.height() < screen.height());
    }
}

void tst_PYXNotification::keepsSuppressionsForTheNextRun()
{
    const auto nextRunHas = [] { return SuppressedMessages().contains("module", "stop"); };
    answerOnce(Box::Yes);
    QCOMPARE(ask(true), Box::Yes);
    PYXNotification::setWillShowMessage("other", "message", false, Box::Ok, false, "Another", "this run");
    SuppressedMessages nextRun;
    QCOMPARE(nextRun.returnButton("module", "stop"), Box::Yes);
    QCOMPARE(nextRun.all().size(), 1);

    const auto messages = PYXNotification::suppressedMessages();
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages[0].title + messages[0].text, QString("Anotherthis run"));
    QVERIFY(!messages[0].bPersistent && messages[1].bPersistent);
    QCOMPARE(messages[1].firstKey + messages[1].secondKey + messages[1].title + messages[1].text,
             QString("modulestopTitleStop?"));

    PYXNotification::fixHiddenForAbsurdReturnButton("module", "stop", Box::Yes);
    QVERIFY(!nextRunHas());
    PYXNotification::setWillShowMessage("module", "stop", false, Box::No, true);
    QVERIFY(nextRunHas());
    PYXNotification::setWillShowMessage("module", "stop", true, Box::NoButton); // forgotten for good
    QVERIFY(!nextRunHas());
    PYXNotification::setWillShowMessage("module", "stop", false, Box::No, true);
    PYXNotification::showAllMessagesAgain();
    QVERIFY(!nextRunHas() && PYXNotification::suppressedMessages().isEmpty());
}

void tst_PYXNotification::ignoresGarbageInTheSettings()
{
    PYXNotification::setWillShowMessage("module", "stop", false, Box::No, true, "Title",
                                        QString("two\nlines ").repeated(1000));
    const QString root = "::PYXRuntime::/SuppressedMessages/";
    {
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        settings.setValue(root + "x1/Button", QString("Yes")); // of which message?
        settings.setValue(root + "x2/FirstKey", QString("first"));
        settings.setValue(root + "x2/Button", QString("Perhaps"));
        settings.setValue(root + "x3/FirstKey", QByteArray("\0\xff", 2));
        settings.setValue(root + "x3/Button", 16384);
        settings.setValue(root + "x4", QString("no group"));
    }
    SuppressedMessages nextRun;
    const auto messages = nextRun.all();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].text.size() <= 200 && messages[0].text.startsWith("two lines two"));
    nextRun.clear();
    QVERIFY(!PYXSettings(PYXSettings::eUserApplicationSettings).contains(root + "x2/FirstKey"));
}

/** A tracer that shows messages wants to know whether it may while the settings trace what is wrong. */
void tst_PYXNotification::tracersMayAsk()
{
    struct AskingTracer : RecordingTracer
    {
        using RecordingTracer::traceWarn;
        void traceWarn(const QString &text, const char *file, ushort line) override
        {
            RecordingTracer::traceWarn(text, file, line);
            willShow = messages.contains("module", "stop") ? 0 : 1;
        }
        SuppressedMessages messages;
        int willShow = -1;
    };
    const QString path = PYXSettings(PYXSettings::eUserApplicationSettings).fileName();
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    put(path, "<PYX");
    AskingTracer tracer;
    PYXTraceWrapper::addTracer(&tracer);
    QVERIFY(!tracer.messages.contains("module", "start"));
    QCOMPARE(tracer.willShow, 1);
    QVERIFY(QFile::remove(path));
}

void tst_PYXNotification::threadsMayAsk()
{
    constexpr int Threads = 4;
    std::vector<std::thread> threads;
    threads.reserve(Threads);
    for (int i = 0; i < Threads; ++i) {
        threads.emplace_back([i] {
            const QString own = QString::number(i);
            for (int k = 0; k < 100; ++k) {
                PYXNotification::setWillShowMessage("shared", "", k % 2 == 0, Box::Ok);
                PYXNotification::setWillShowMessage("own", own, false, Box::Yes);
                QCOMPARE(PYXNotification::hiddenMessageReturnButton("own", own), Box::Yes);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(PYXNotification::suppressedMessages().size(), 5);

    auto returned = Box::Ok;
    const QStringList traces = tracesOf([&] {
        std::thread([&] { returned = ask(); }).join(); // no dialog there
    });
    QCOMPARE(returned, Box::NoButton);
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces[0].startsWith("Error|") && traces[0].contains("Stop?"));
}

QTEST_MAIN(tst_PYXNotification)
#include "tst_PYXNotification.moc"
