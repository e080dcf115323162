// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "DataRows.h"
#include "PYXPopupNotification.h"
#include "PYXPopupNotificationWidget.h"
#include "RecordingTracer.h"

#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <thread>
#include <vector>

using namespace PYXRuntime;

namespace {

bool isPopup(const QObject *object)
{
    return object->objectName().startsWith("PYXPopupNotification");
}

/** A pop-up that is a window of its own, or, on Wayland, one inside a window. */
QWidget *shownPopup()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *const widget : widgets) {
        if (widget->isVisible() && isPopup(widget))
            return widget;
    }
    return nullptr;
}

QString shownText()
{
    const QWidget *const popup = shownPopup();
    return popup == nullptr ? QString() : popup->accessibleName();
}

bool onWayland()
{
    return QGuiApplication::platformName().startsWith("wayland");
}

/** Durations of the animation of the singleton's widget, e.g. "500 1000 500". */
QString runningTimes()
{
    QStringList times;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *const widget : widgets) {
        const auto *const group = widget->findChild<QSequentialAnimationGroup *>();
        for (int i = 0; group != nullptr && i < group->animationCount(); ++i)
            times += QString::number(group->animationAt(i)->duration());
    }
    return times.join(' ');
}

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

struct Window : QWidget
{
    Window()
        : edit(new QLineEdit(this))
    {
        edit->setGeometry(300, 150, 80, 30);
        setGeometry(100, 80, 500, 300);
        show();
        activateWindow();
        edit->setFocus();
    }
    QLineEdit *edit;
};

} // namespace

class tst_PYXPopupNotification : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { qApp->installEventFilter(this); }
    void init() { m_shown.clear(); }
    void cleanup() { PYXPopupNotification::destroyInstance(); }
    void showsOneAfterAnother();
    void times();
    void isCentredOver();
    void takesNoFocusAndIsAnAlert();
    void outlivesItsParent();
    void startsAgain();
    void survivesListeners();
    void fitsItsText();
    void isReadable();
    void queuesFromFourThreads();
    void doesWithoutWidgets();

private:
    /** Writes down the texts that assistive technology is given for what comes up. */
    bool eventFilter(QObject *object, QEvent *event) override;

    QStringList m_shown;
};

bool tst_PYXPopupNotification::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show && isPopup(object)) {
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(object);
        if (accessible != nullptr && accessible->role() == QAccessible::AlertMessage)
            m_shown += accessible->text(QAccessible::Name);
    }
    return QObject::eventFilter(object, event);
}

void tst_PYXPopupNotification::showsOneAfterAnother()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTimer receiver;
    QSignalSpy empty(&receiver, &QTimer::timeout);
    QVERIFY(PYXPopupNotification::connect_queueEmpty(&receiver, SIGNAL(timeout())));
    PYXPopupNotification::queueNotification("first", 40, 60, 40, &window);
    PYXPopupNotification::queueNotification("second", 40, 60, 40, nullptr);
    QVERIFY(shownPopup() == nullptr); // only from the event loop
    QTRY_COMPARE(shownText(), QString("first"));
    QTRY_COMPARE(shownText(), QString("second"));
    QCOMPARE(empty.count(), 0);
    QTRY_COMPARE(empty.count(), 1);
    QVERIFY(shownPopup() == nullptr);

    QVERIFY(PYXPopupNotification::disconnect_queueEmpty(&receiver, SIGNAL(timeout())));
    QVERIFY(!PYXPopupNotification::disconnect_queueEmpty(&receiver, SIGNAL(timeout())));
    QVERIFY(!PYXPopupNotification::connect_queueEmpty(nullptr, SIGNAL(timeout())));
}

void tst_PYXPopupNotification::times()
{
    using Popups = PYXPopupNotification;
    const int most = std::numeric_limits<int>::max();
    const std::pair<std::function<void()>, const char *> rows[] = {
        {[] { Popups::queueNotification("text", 1, 2, 3, nullptr); }, "1 2 3"},
        {[] { Popups::queueNotification("text", 0, -1, 0, nullptr); }, "500 1000 500"},
        {[=] { Popups::queueNotification("text", most, most, most, nullptr); },
         "715827882 715827882 715827882"},
        {[] { Popups::queueNotification("text", 70, nullptr); }, "500 70 500"},
        {[] { Popups::queueNotification("text"); }, "500 1000 500"},
        {[] { Popups::queueQuickNotification("text"); }, "250 500 250"},
        {[] { Popups::queueQuickNotification("text", 70, nullptr); }, "250 70 250"}};
    for (const auto &[queue, expected] : rows) {
        queue();
        QTRY_VERIFY(!runningTimes().isEmpty());
        QCOMPARE(runningTimes(), QString(expected));
        PYXPopupNotification::destroyInstance();
    }
}

void tst_PYXPopupNotification::isCentredOver()
{
    for (const QByteArray parent : {"window", "edit", "active", "none"}) {
        QScopedPointer<Window> window(new Window);
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
        QWidget *over = nullptr;
        if (parent == "window")
            over = window.data();
        else if (parent == "edit")
            over = window->edit;
        QRect reference(window->edit->mapToGlobal(QPoint()), window->edit->size());
        if (parent == "none") {
            if (onWayland()) // there is no place for it
                return;
            window.reset();
            reference = QGuiApplication::primaryScreen()->availableGeometry();
        } else if (parent != "edit") {
            reference = window->frameGeometry();
            if (!onWayland())
                QVERIFY(QTest::qWaitForWindowActive(window.data()));
        }
        PYXPopupNotificationWidget widget;
        widget.setText("text");
        widget.popup(1, 60'000, 1, over);
        QTRY_VERIFY(shownPopup() != nullptr);
        const QWidget *const popup = shownPopup();
        QVERIFY2(QRect(popup->mapToGlobal(QPoint()), popup->size()).center() == reference.center(), parent);
        QCOMPARE(popup->isWindow(), !onWayland());
    }
}

void tst_PYXPopupNotification::takesNoFocusAndIsAnAlert()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    if (!onWayland()) // without a seat, nothing is ever active
        QVERIFY(QTest::qWaitForWindowActive(&window));
    const QWidget *const active = QApplication::activeWindow();
    PYXPopupNotificationWidget widget;
    QSignalSpy finished(&widget, &PYXPopupNotificationWidget::finished);
    widget.setText("Expert mode");
    widget.popup(1, 50, 1, &window);
    QCOMPARE(m_shown, QStringList{"Expert mode"});
    QVERIFY(finished.wait());
    QCOMPARE(QApplication::activeWindow(), active);
    QCOMPARE(window.focusWidget(), window.edit);
    QVERIFY(shownPopup() == nullptr && widget.isFinished());
}

void tst_PYXPopupNotification::outlivesItsParent()
{
    QTimer receiver;
    QSignalSpy empty(&receiver, &QTimer::timeout);
    QScopedPointer<Window> window(new Window);
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    PYXPopupNotification::connect_queueEmpty(&receiver, SIGNAL(timeout()));
    PYXPopupNotification::queueNotification("goes while shown", 1, 50, 1, window.data());
    PYXPopupNotification::queueNotification("goes before", 1, 50, 1, window.data());
    QTRY_COMPARE(shownText(), QString("goes while shown"));
    window.reset();
    QTRY_COMPARE(empty.count(), 1);
    QCOMPARE(m_shown.size(), onWayland() ? 1 : 2);
}

void tst_PYXPopupNotification::startsAgain()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PYXPopupNotificationWidget widget;
    QSignalSpy finished(&widget, &PYXPopupNotificationWidget::finished);
    widget.popup(60'000, &window);
    widget.popup(1, 20, 1, &window);
    QVERIFY(!widget.isFinished());
    QVERIFY(finished.wait());
    QTRY_VERIFY(widget.findChildren<QSequentialAnimationGroup *>().isEmpty()); // does not pile up
    QCOMPARE(finished.count(), 1);

    PYXPopupNotification::queueNotification("dropped", 60'000, &window);
    PYXPopupNotification::queueNotification("dropped too", 60'000, &window);
    QTRY_COMPARE(shownText(), QString("dropped"));
    PYXPopupNotification::destroyInstance();
    QVERIFY(!PYXPopupNotification::hasInstance() && shownPopup() == nullptr);
    PYXPopupNotification::queueNotification("next", 1, 1, 1, &window);
    QTRY_VERIFY(m_shown.contains("next"));
}

void tst_PYXPopupNotification::survivesListeners()
{
    QPointer<PYXPopupNotificationWidget> widget(new PYXPopupNotificationWidget);
    bool bStillRuns = false;
    connect(widget.data(), &PYXPopupNotificationWidget::finished, this, [&] {
        const QPointer<QObject> animation(sender()->property("animation").value<QObject *>());
        delete widget.data();
        bStillRuns = !animation.isNull(); // Qt looks into it once more
    });
    widget->popup(1, 1, 1, nullptr);
    widget->setProperty("animation",
                        QVariant::fromValue<QObject *>(widget->findChild<QSequentialAnimationGroup *>()));
    QTRY_VERIFY(widget.isNull());
    QVERIFY(bStillRuns);

    // What Qt warns of may be shown in turn.
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            PYXPopupNotification::queueNotification(text);
        });
    const bool bConnected = PYXPopupNotification::connect_queueEmpty(this, SIGNAL(nothing()));
    qInstallMessageHandler(previous);
    QVERIFY(!bConnected);
}

void tst_PYXPopupNotification::fitsItsText()
{
    PYXPopupNotificationWidget widget;
    const auto sizeOf = [&](const QString &text) {
        widget.setText(text);
        return widget.sizeHint();
    };
    const QSize one = sizeOf("text");
    QVERIFY(sizeOf("<b>text</b>").width() > one.width()); // no markup
    QVERIFY(sizeOf("text\ntext\ntext").height() > one.height());
    const QSize huge = sizeOf(QString("word ").repeated(1'000'000));
    QCOMPARE(sizeOf(QString(10'000, 'w')).height(), huge.height());
    QCOMPARE(sizeOf(QString(10'000, '\n')).height(), huge.height());
    QVERIFY(huge.height() < 20 * widget.fontMetrics().lineSpacing());
    QVERIFY(huge.width() < 80 * widget.fontMetrics().averageCharWidth());

    QFont font = widget.font();
    font.setPointSize(font.pointSize() * 2);
    widget.setFont(font);
    QVERIFY(sizeOf("text").height() > one.height() * 3 / 2);

    QPixmap pixmap(2000, 1000);
    pixmap.fill(Qt::red);
    widget.setPixmap(pixmap);
    QCOMPARE(widget.pixmap().size(), pixmap.size());
    QVERIFY(sizeOf("text").width() < 20 * widget.fontMetrics().lineSpacing());
    widget.setPixmap(QPixmap());
    QVERIFY(!widget.pixmap().isNull());
}

void tst_PYXPopupNotification::isReadable()
{
    const Rows<QColor, QColor> rows = {{"light", {239, 239, 239}, Qt::black},
                                       {"dark", {49, 54, 59}, {239, 240, 241}},
                                       {"high contrast", Qt::black, Qt::yellow}};
    forRows(rows, [](const QColor &window, const QColor &text) {
        PYXPopupNotificationWidget widget;
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::ToolTipBase, text); // as in many a dark theme
        palette.setColor(QPalette::ToolTipText, text);
        widget.setPalette(palette);
        QPixmap blank(1, 1);
        blank.fill(Qt::transparent);
        widget.setPixmap(blank);
        widget.setText(QString(20, QChar(0x2588))); // full blocks: the ink is sure to cover a pixel
        widget.resize(widget.sizeHint());
        const QImage image = widget.grab().toImage();
        const double ink = luminance(image.pixelColor(image.rect().center()));
        const double ground = luminance(image.pixelColor(image.width() / 2, 3));
        QVERIFY((qMax(ink, ground) + 0.05) / (qMin(ink, ground) + 0.05) >= 7.0);
    });
}

void tst_PYXPopupNotification::queuesFromFourThreads()
{
    constexpr int Threads = 4;
    constexpr int PerThread = 4;
    Window window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    std::vector<std::thread> threads;
    threads.reserve(Threads);
    for (int i = 0; i < Threads; ++i) {
        threads.emplace_back([i] {
            for (int k = 0; k < PerThread; ++k) // one of them makes the singleton
                PYXPopupNotification::queueNotification(QString::number(i * PerThread + k), 1, 1, 1, nullptr);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QTRY_COMPARE_WITH_TIMEOUT(m_shown.size(), Threads * PerThread, 20'000);
    m_shown.removeDuplicates();
    QCOMPARE(m_shown.size(), Threads * PerThread);
}

void tst_PYXPopupNotification::doesWithoutWidgets()
{
    for (const char *probe : {"no widgets", "quits early"}) {
        const ChildResult result = runOwnProbe(probe);
        QVERIFY2(result.exitCode == 0, qPrintable(probe + result.errors));
    }
}

namespace {

/** Shows every trace. */
struct ShowingTracer : RecordingTracer
{
    using RecordingTracer::traceInfo;
    void traceInfo(const QString &text, const char *, ushort) override
    {
        PYXPopupNotification::queueNotification(text);
    }
};

int withoutWidgets(int count, char **arguments)
{
    const QCoreApplication application(count, arguments);
    ShowingTracer showing;
    PYXTraceWrapper::addTracer(&showing);
    const QStringList traces = tracesOf([] {
        PYXPopupNotification::makeSureInitialized();
        PYXPopupNotification::queueNotification("nowhere to go");
    });
    const bool bTraced = traces.size() == 1 && traces[0].startsWith("Info|nowhere to go|");
    return bTraced && !PYXPopupNotification::hasInstance() ? 0 : 1;
}

/** The application goes while pop-ups are shown and queued, before anybody has shut the library down. */
int quitsEarly(int count, char **arguments)
{
    {
        const QApplication application(count, arguments);
        const Window window;
        PYXPopupNotification::queueNotification("shown", 60'000, nullptr);
        PYXPopupNotification::queueNotification("queued", 60'000, nullptr);
        QTimer::singleShot(100, &application, &QCoreApplication::quit);
        QCoreApplication::exec();
        if (!PYXPopupNotification::hasInstance())
            return 1;
    }
    PYXPopupNotification::queueNotification("too late");
    return PYXPopupNotification::hasInstance() ? 1 : 0;
}

} // namespace

int main(int count, char **arguments)
{
    if (count == 3)
        return QByteArray(arguments[2]) == "no widgets" ? withoutWidgets(count, arguments)
                                                        : quitsEarly(count, arguments);
    QApplication application(count, arguments);
    tst_PYXPopupNotification test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_PYXPopupNotification.moc"
