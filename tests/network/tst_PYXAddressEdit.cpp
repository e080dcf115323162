// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPEdit.h"
#include "PYXIPv4Edit.h"
#include "PYXIPv6Edit.h"

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QMenu>

using namespace PYXRuntime;

namespace {

QString accessibleText(QWidget &widget, QAccessible::Text what)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(what);
}

/** Whether the sign of an incomplete address stands in the edit. */
bool hasSign(const PYXAddressEdit &edit)
{
    const auto actions = edit.findChildren<QAction *>();
    return std::any_of(actions.begin(), actions.end(),
                       [](const QAction *action) { return action->isVisible(); });
}

} // namespace

class tst_PYXAddressEdit : public QObject
{
    Q_OBJECT
private slots:
    void typing();
    void leavingCompletesTheAddress();
    void pasting();
    void switchingTheProtocol();
    void whatAScreenReaderSays();
};

void tst_PYXAddressEdit::typing()
{
    PYXIPv4Edit edit;
    QList<QHostAddress> changes;
    connect(&edit, &PYXAddressEdit::si_addressChanged,
            [&](const QHostAddress &address) { changes += address; });
    QTest::keyClicks(&edit, "10.x0. 0.");
    QCOMPARE(edit.text(), QString("10.0.0."));
    QVERIFY(!edit.hasAcceptableInput() && edit.address().isNull() && changes.isEmpty());
    QTest::keyClicks(&edit, "259");
    QTest::keyClick(&edit, Qt::Key_Backspace);
    const QHostAddress first("10.0.0.2");
    const QHostAddress second("10.0.0.25");
    QCOMPARE(changes, QList<QHostAddress>({first, second, QHostAddress(), second}));
    QVERIFY(edit.hasAcceptableInput() && edit.address() == second);
    edit.setReadOnly(true);
    QTest::keyClicks(&edit, "1");
    QGuiApplication::clipboard()->setText("1.2.3.4");
    QTest::keySequence(&edit, QKeySequence::Paste);
    QCOMPARE(edit.address(), second);
}

void tst_PYXAddressEdit::leavingCompletesTheAddress()
{
    constexpr auto IPv4 = QAbstractSocket::IPv4Protocol;
    constexpr auto IPv6 = QAbstractSocket::IPv6Protocol;
    constexpr auto Either = QAbstractSocket::AnyIPProtocol;
    const std::tuple<QAbstractSocket::NetworkLayerProtocol, QString, QString> texts[] = {
        {IPv4, "", ""},
        {IPv4, "10.1", "10.1.0.0"},
        {IPv4, "10.0.0.300", "10.0.0.255"},
        {IPv4, "010.1.2.3", "10.1.2.3"},
        {IPv6, "", ""},
        {IPv6, "FD00:0::1", "fd00::1"},
        {Either, "10.", "10.0.0.0"},
        {Either, "fd00:", "fd00::"},
        {Either, "10", "10"}, // nobody knows what is meant
    };
    for (const auto &[protocol, typed, left] : texts) {
        PYXIPEdit edit;
        edit.setProtocol(protocol);
        QTest::keyClicks(&edit, typed);
        QCOMPARE(edit.text(), typed);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.text(), left);
    }
}

void tst_PYXAddressEdit::pasting()
{
    PYXIPv4Edit edit;
    const auto paste = [&](const char *text) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&edit, QKeySequence::Paste);
        return edit.text();
    };
    edit.setText("1.2.3.4");
    edit.setCursorPosition(3);
    QCOMPARE(paste(" http://10.0.0.5:80/x "), QString("10.0.0.5"));
    edit.undo();
    QCOMPARE(paste("station"), QString("1.2.3.4"));
    QCOMPARE(paste("::1"), QString("1.2.3.4"));
    edit.setText("1.2.3."); // a part of an address goes where the cursor is
    QCOMPARE(paste("99"), QString("1.2.3.99"));
    for (const bool bUseful : {false, true}) {
        QGuiApplication::clipboard()->setText(bUseful ? "10.0.0.5/24" : "::1");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(&edit, &event);
        auto *const menu = edit.findChild<QMenu *>();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().first()->isEnabled(), bUseful);
        menu->actions().first()->trigger();
        menu->close();
        QTRY_VERIFY(edit.findChild<QMenu *>() == nullptr);
    }
    QCOMPARE(edit.text(), QString("10.0.0.5"));
    PYXIPv6Edit ipv6;
    ipv6.insert("[fe80::1%eth0]:8080"); // as a drop or an input method does
    QCOMPARE(ipv6.text(), QString("fe80::1%eth0"));
    QCOMPARE(ipv6.address().scopeId(), QString("eth0"));
}

void tst_PYXAddressEdit::switchingTheProtocol()
{
    PYXIPEdit edit;
    int changes = 0;
    connect(&edit, &PYXAddressEdit::si_addressChanged, [&] { ++changes; });
    const QHostAddress address("10.0.0.5");
    QVERIFY(edit.setAddress(address) && edit.setAddress(QHostAddress("::ffff:10.0.0.5")));
    QVERIFY(!edit.setAddress(QHostAddress("::1")) && edit.address() == address && changes == 1);
    const int narrow = edit.sizeHint().width();
    edit.setProtocol(QAbstractSocket::IPv6Protocol);
    QVERIFY(edit.text().isEmpty() && edit.sizeHint().width() > narrow);
    edit.setText("fd00:"); // not complete, and kept all the same
    edit.setProtocol(QAbstractSocket::IPv4Protocol);
    QVERIFY(edit.address() == address && edit.sizeHint().width() == narrow && changes == 3);
    edit.setProtocol(QAbstractSocket::UnknownNetworkLayerProtocol);
    QCOMPARE(edit.protocol(), QAbstractSocket::IPv4Protocol);
    edit.setProtocol(QAbstractSocket::AnyIPProtocol);
    QVERIFY(edit.address() == address && edit.setAddress(QHostAddress("fd00::5")));
    edit.setProtocol(QAbstractSocket::IPv6Protocol);
    QVERIFY(edit.text() == "fd00::5" && changes == 4);
    QVERIFY(edit.setAddress(QHostAddress()) && edit.text().isEmpty() && changes == 5);
    // Text and protocol may come from settings, in this order.
    edit.setProtocol(QAbstractSocket::IPv4Protocol);
    edit.setText("fd00::6");
    edit.setProtocol(QAbstractSocket::IPv6Protocol);
    QCOMPARE(edit.address(), QHostAddress("fd00::6"));
}

void tst_PYXAddressEdit::whatAScreenReaderSays()
{
    QWidget form;
    QFormLayout layout(&form);
    auto *const labelled = new PYXIPv4Edit;
    auto *const alone = new PYXIPv4Edit;
    layout.addRow("&Station", labelled);
    layout.addRow(alone);
    form.show();
    QCOMPARE(accessibleText(*labelled, QAccessible::Name), QString("Station"));
    QCOMPARE(accessibleText(*alone, QAccessible::Name), QString("IP address"));
    const QString usual = accessibleText(*alone, QAccessible::Description);
    const QSize size = alone->sizeHint();
    QVERIFY(usual.contains("IPv4") && !hasSign(*alone));
    alone->setText("10.0.");
    QVERIFY(hasSign(*alone) && alone->sizeHint() == size);
    QVERIFY(accessibleText(*alone, QAccessible::Description).startsWith("Not a complete address"));
    alone->setText("10.0.0.1");
    QVERIFY(!hasSign(*alone));
    QCOMPARE(accessibleText(*alone, QAccessible::Description), usual);
    alone->setAccessibleDescription("mine");
    alone->setText("10.0.");
    QCOMPARE(accessibleText(*alone, QAccessible::Description), QString("mine"));
}

QTEST_MAIN(tst_PYXAddressEdit)
#include "tst_PYXAddressEdit.moc"
