// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FieldPage.h"

#include <QtGui/QAccessible>
#include <QtTest/QtTest>

using namespace PYXRuntime;

class tst_PYXSettingsHandlerWidget : public QObject
{
    Q_OBJECT
private slots:
    void aPlainPageIsAlwaysContent();
    void modificationsCanBeIgnored();
    void blockingLeavesThePageItself();
    void textsComeWithTheEventLoop();
};

void tst_PYXSettingsHandlerWidget::aPlainPageIsAlwaysContent()
{
    class Plain : public PYXSettingsHandlerWidget
    {
    public:
        bool isContent() const { return !isDirty() && isInCleanState() && isInDefaultState(); }
    } page;
    page.initContents();
    page.resetContents();
    page.restoreDefaultsContents();
    QStringList errors;
    QVERIFY(page.isContent() && page.applyChanges() && page.discardChanges());
    QVERIFY(page.verifyContents(errors) && errors.isEmpty());
    QCOMPARE(page.focusPolicy(), Qt::WheelFocus);
}

void tst_PYXSettingsHandlerWidget::modificationsCanBeIgnored()
{
    FieldPage page("", "Page");
    QSignalSpy made(&page, &PYXSettingsHandlerWidget::si_madeModifications);
    page.setIgnoreModified(true);
    QTest::keyClicks(page.field, "a");
    QVERIFY(page.modifications == 0 && made.isEmpty());
    page.setIgnoreModified(false);
    QTest::keyClicks(page.field, "b");
    QVERIFY(page.modifications == 1 && made.size() == 1);
}

void tst_PYXSettingsHandlerWidget::blockingLeavesThePageItself()
{
    FieldPage page("", "Page");
    QObject plain(&page);
    QWidget group(&page);
    QLineEdit nested(&group);
    page.blockControlsSignals(true);
    QVERIFY(page.field->signalsBlocked() && nested.signalsBlocked());
    QVERIFY(!page.signalsBlocked() && !plain.signalsBlocked() && !page.layout()->signalsBlocked());
    page.blockControlsSignals(false);
    QVERIFY(!page.field->signalsBlocked() && !nested.signalsBlocked());
    page.recursiveBlockSignals(true);
    QVERIFY(page.signalsBlocked() && nested.signalsBlocked() && !plain.signalsBlocked());
}

void tst_PYXSettingsHandlerWidget::textsComeWithTheEventLoop()
{
    FieldPage page("", "Page");
    QVERIFY(page.calls.isEmpty());
    QTRY_COMPARE(page.calls, QStringList("retranslate"));
    page.setTitle("Another");
    QCOMPARE(QAccessible::queryAccessibleInterface(&page)->text(QAccessible::Name), QString("Another"));
    QCOMPARE(page.property("::TITLE::").toString(), QString("Another"));
}

QTEST_MAIN(tst_PYXSettingsHandlerWidget)
#include "tst_PYXSettingsHandlerWidget.moc"
