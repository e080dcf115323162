// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "DialogRun.h"
#include "FieldPage.h"
#include "PYXBrokerRegistration.h"
#include "PYXInterfaceIdentifiers.h"

#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace PYXRuntime;
using Box = QDialogButtonBox;

namespace {

/** What a translation or help connector has that the dialog needs. */
class Connector : public QObject
{
    Q_OBJECT
public:
    int helps = 0;
public slots:
    void sl_onHelpRequested() { ++helps; }
signals:
    void si_localeChanged();
};

/** A dialog with the pages A and B in the category "Z", C in "Y", and D without one. */
class Fixture : public DialogRun
{
public:
    Fixture()
    {
        for (FieldPage *const page : {b, a, c, d})
            dialog.registerSettingsHandler(page);
    }
    ~Fixture()
    {
        if (dialog.isVisible())
            qFatal("still running");
    }

    QTreeWidget *tree() { return dialog.findChild<QTreeWidget *>("m_SettingsTree"); }
    QTreeWidgetItem *item(const QString &text)
    {
        return tree()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void click(const QString &text)
    {
        tree()->scrollToItem(item(text));
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                          tree()->visualItemRect(item(text)).center());
    }
    QString current()
    {
        return tree()->currentItem() != nullptr ? tree()->currentItem()->text(0) : QString();
    }
    /** The tree as text: "D Y(C) Z(A B)". */
    QString treeText()
    {
        QStringList texts;
        for (int i = 0; i < tree()->topLevelItemCount(); ++i) {
            const auto *const top = tree()->topLevelItem(i);
            QStringList children;
            for (int j = 0; j < top->childCount(); ++j)
                children += top->child(j)->isHidden() ? QString() : top->child(j)->text(0);
            children.removeAll(QString());
            if (!top->isHidden())
                texts += top->text(0) + (children.isEmpty() ? QString() : '(' + children.join(' ') + ')');
        }
        return texts.join(' ');
    }

    /** Names of the buttons that are enabled and shown; those of the page in small letters. */
    QString usableButtons()
    {
        const std::tuple<const char *, Box::StandardButton, const char *> buttons[] = {
            {"Page", Box::Apply, "apply"},
            {"Page", Box::Reset, "reset"},
            {"Page", Box::RestoreDefaults, "defaults"},
            {"Dialog", Box::Ok, "OK"},
            {"Dialog", Box::Close, "Close"},
            {"Dialog", Box::Discard, "Discard"},
            {"Dialog", Box::Apply, "Apply"},
            {"Dialog", Box::Reset, "Reset"},
            {"Dialog", Box::RestoreDefaults, "Defaults"}};
        QStringList names;
        for (const auto &[box, which, name] : buttons) {
            if (button(box, which)->isVisible() && button(box, which)->isEnabled())
                names += name;
        }
        return names.join(' ');
    }
    void press(const QString &box, Box::StandardButton which) { button(box, which)->click(); }
    void changeStyle()
    {
        QEvent styleChange(QEvent::StyleChange);
        auto widgets = dialog.findChildren<QWidget *>();
        widgets += &dialog;
        for (QWidget *const widget : qAsConst(widgets))
            QCoreApplication::sendEvent(widget, &styleChange);
        QCoreApplication::sendPostedEvents(&dialog);
    }

    FieldPage *const a = new FieldPage("Z", "A");
    FieldPage *const b = new FieldPage("Z", "B");
    FieldPage *const c = new FieldPage("Y", "C");
    FieldPage *const d = new FieldPage("", "D");
};

class DyingPage : public FieldPage
{
public:
    using FieldPage::FieldPage;
    bool applyChanges() override
    {
        delete this;
        return true;
    }
};

/** Answers the next message box from inside its loop, and keeps what it said. */
struct Answer : QObject
{
    explicit Answer(int button)
    {
        QTimer::singleShot(0, this, [this, button] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            title = box->windowTitle();
            text = box->text();
            details = box->informativeText();
            buttons = box->standardButtons();
            box->button(QMessageBox::StandardButton(button))->click();
        });
    }
    QString title;
    QString text;
    QString details;
    QMessageBox::StandardButtons buttons;
};

} // namespace

class tst_PYXSettingsDialog : public QObject
{
    Q_OBJECT
private slots:
    void pagesAndCategories();
    void buttonsFollowTheState_data();
    void buttonsFollowTheState();
    void movingThroughTheTree();
    void aPageWithErrorsIsNotLeft();
    void applying();
    void resettingAndRestoring();
    void discarding_data();
    void discarding();
    void windowIsRemembered();
    void searching();
    void helpAndLanguage();
    void pagesComeAndGoWhileRunning();
    void theDialogGoesWhileItAsks();
    void everyControlHasANameAndItsTurn();
    void modificationsCanBeIgnored();
    void blockingLeavesThePageItself();
    void textsComeWithTheEventLoop();
};

void tst_PYXSettingsDialog::pagesAndCategories()
{
    Fixture f;
    QVERIFY(!f.dialog.registerSettingsHandler(nullptr) && !f.dialog.registerSettingsHandler(f.a));
    QCOMPARE(f.treeText(), QString("Z(B A) Y(C) D"));
    QCOMPARE(f.item("Z")->type(), int(QTreeWidgetItem::UserType));
    QCOMPARE(f.dialog.categoryIndex("Y"), 1);
    QCOMPARE(f.dialog.categoryIndex(f.c), 1);
    QCOMPARE(f.dialog.categoryIndex(f.d), -1);
    QCOMPARE(f.dialog.categoryIndex("X"), -1);
    f.a->setTitle("AA");
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    f.a->setIcon(QIcon(pixmap));
    QVERIFY(f.item("AA") != nullptr && !f.item("AA")->icon(0).isNull());
    f.run([&] {
        QCOMPARE(f.treeText(), QString("D Y(C) Z(AA B)"));
        QCOMPARE(f.dialog.activePage(), f.d);
    });
    f.dialog.renameCategory(0, "ZZ");
    f.dialog.renameCategory(7, "none");
    QVERIFY(f.dialog.unregisterSettingsHandler(f.c) && !f.dialog.unregisterSettingsHandler(f.c));
    QVERIFY(f.c->parent() == nullptr && f.c->isHidden());
    QCOMPARE(f.treeText(), QString("D ZZ(AA B)"));
    QCOMPARE(f.dialog.addCategory("Y"), 1); // which was hidden, not deleted
    QVERIFY(f.dialog.registerSettingsHandler(f.c));
    delete f.c;
    QCOMPARE(f.treeText(), QString("D ZZ(AA B)"));
    PYXSettingsDialog other;
    QVERIFY(!other.registerSettingsHandler(f.a));
}

void tst_PYXSettingsDialog::buttonsFollowTheState_data()
{
    const QString all = "apply reset defaults OK Discard Apply Reset Defaults";
    // Of A, which is shown, and of C; the usable buttons.
    const Rows<QString, QString, QString> rows = {
        {"as stored and as by default", "same", "same", "Close"},
        {"as stored", "stored", "same", "defaults Close Defaults"},
        {"this page modified", "new", "same", all},
        {"another page modified", "same", "new", "OK Discard Apply Reset Defaults"},
        {"another page not by default", "same", "stored", "Close Defaults"},
        {"this page brought to its defaults", "default", "same", "apply reset OK Discard Apply Reset"},
        {"ApplyPage", "new", "same", QString(all).remove("apply ")},
        {"ResetPage", "new", "same", QString(all).remove("reset ")},
        {"ApplyAll", "new", "same", QString(all).remove("Apply ")},
        {"ResetAll", "new", "same", QString(all).remove("Reset ")},
        {"RestoreDefaultsAll", "new", "same", QString(all).remove(" Defaults")}};
    addRows({"valueOfA", "valueOfC", "usable"}, rows);
}

void tst_PYXSettingsDialog::buttonsFollowTheState()
{
    QFETCH(QString, valueOfA);
    QFETCH(QString, valueOfC);
    Fixture f;
    const std::pair<FieldPage *, QString> pages[] = {{f.a, valueOfA}, {f.c, valueOfC}};
    for (const auto &[page, value] : pages) {
        f.settings.setValue(page->key, value == "same" ? "same" : "stored");
        f.defaults.setValue(page->key, value == "same" ? "same" : "default");
    }
    f.settings.setValue(QString("::PYXSettingsDialog::/hide%1Button").arg(QTest::currentDataTag()), true);
    f.run(
        [&] {
            for (const auto &[page, value] : pages)
                page->field->setText(value);
            QTEST(f.usableButtons(), "usable");
            f.changeStyle(); // button boxes show all their buttons then
            QTEST(f.usableButtons(), "usable");
        },
        f.a);
    f.a->field->setText("outside of a run");
    QVERIFY(!f.button("Dialog", Box::Apply)->isEnabled());
}

void tst_PYXSettingsDialog::movingThroughTheTree()
{
    Fixture f;
    f.run([&] {
        f.click("Z"); // closed yet
        QCOMPARE(f.dialog.activePage(), f.a);
        f.click("B");
        f.click("Z");
        QVERIFY(f.current() == "B" && f.dialog.activePage() == f.b);
        QCOMPARE(f.tree()->selectedItems(), QList<QTreeWidgetItem *>{f.item("B")});
        f.click("Y");
        QVERIFY(f.current() == "C" && f.dialog.activePage() == f.c);
        f.tree()->setCurrentItem(nullptr);
        QVERIFY(f.dialog.activePage() == nullptr);
        QCOMPARE(f.dialog.findChild<QStackedWidget *>()->currentWidget()->objectName(), QString("page"));
        QVERIFY(!f.dialog.findChild<Box *>("m_ButtonBoxPage")->isVisible());
    });
    Fixture keys;
    keys.run([&] {
        QVERIFY(keys.tree()->hasFocus());
        QStringList way;
        for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Home,
                              Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}) {
            QTest::keyClick(keys.tree(), Qt::Key(key));
            way += keys.current();
        }
        QCOMPARE(way.join(' '), QString("C A B B D B A C D D"));
    });
}

void tst_PYXSettingsDialog::aPageWithErrorsIsNotLeft()
{
    Fixture f;
    f.a->errors = QStringList{"first", "second"};
    f.b->errors = QStringList{"third"};
    QSignalSpy applied(&f.dialog, SIGNAL(si_settingsApplied()));
    f.run(
        [&] {
            Answer answer(QMessageBox::Ok);
            f.click("C");
            QVERIFY(f.current() == "A" && f.dialog.activePage() == f.a);
            QCOMPARE(f.tree()->selectedItems(), QList<QTreeWidgetItem *>{f.item("A")});
            QCOMPARE(answer.title, QString("Errors in Settings"));
            QCOMPARE(answer.text, QString("<h4>There are errors in the settings</h4>"));
            QCOMPARE(answer.details, QString("<ul><li>first</li>\n<li>second</li></ul>"));
            QCOMPARE(answer.buttons, QMessageBox::Ok);
            f.a->field->setText("new");
            Answer pageAnswer(QMessageBox::Ok);
            f.press("Page", Box::Apply);
            QCOMPARE(pageAnswer.details, answer.details);
            for (const auto which : {Box::Apply, Box::Ok}) {
                Answer allAnswer(QMessageBox::Ok);
                f.press("Dialog", which);
                QCOMPARE(allAnswer.details,
                         "<h6>A</h6>\n" + answer.details + "\n<h6>B</h6>\n<ul><li>third</li></ul>\n");
            }
            QVERIFY(f.dialog.isVisible() && applied.isEmpty() && !f.a->calls.contains("apply"));
        },
        f.a);
}

void tst_PYXSettingsDialog::applying()
{
    Fixture f;
    QStringList signalled;
    connect(&f.dialog, qOverload<>(&PYXSettingsDialog::si_settingsApplied), [&] { signalled += "all"; });
    connect(&f.dialog, qOverload<PYXSettingsHandlerWidget *>(&PYXSettingsDialog::si_settingsApplied),
            [&](auto *page) { signalled += "alone " + page->objectName(); });
    connect(&f.dialog, &PYXSettingsDialog::si_settingsPageApplied,
            [&](auto *page) { signalled += page->objectName(); });
    const int result = f.run(
        [&] {
            f.a->field->setText("a");
            f.c->field->setText("c");
            f.press("Page", Box::Apply);
            QCOMPARE(signalled.join(','), QString("A,alone A"));
            QVERIFY(f.usableButtons().contains("OK") && !f.usableButtons().contains("apply"));
            QCOMPARE(PYXSettings(f.settings.fileName()).stringValue("Pages/A"), QString("a"));
            signalled.clear();
            f.b->bFails = true;
            f.press("Dialog", Box::Ok);
            QVERIFY(f.dialog.isVisible());
            QCOMPARE(signalled.join(','), QString("D,C,A")); // before B, which ends it
            signalled.clear();
            f.b->bFails = false;
            f.b->field->setText("b");
            f.press("Dialog", Box::Ok);
        },
        f.a);
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(signalled.join(','), QString("D,C,A,B,all"));
    QCOMPARE(f.settings.stringValue("Pages/B"), QString("b"));
    QVERIFY(f.a->settings() == nullptr);
    QCOMPARE(f.run([&] { f.press("Dialog", Box::Close); }), int(QDialog::Accepted));
}

void tst_PYXSettingsDialog::resettingAndRestoring()
{
    Fixture f;
    f.settings.setFallbacksEnabled(false);
    for (const FieldPage *const page : {f.a, f.b}) {
        f.settings.setValue(page->key, "stored");
        f.defaults.setValue(page->key, "default");
    }
    const auto values = [&] { return f.a->field->text() + ' ' + f.b->field->text(); };
    f.run(
        [&] {
            QVERIFY(f.settings.fallbacksEnabled());
            const auto change = [&] {
                f.a->field->setText("new");
                f.b->field->setText("new");
                f.a->modifications = 0;
            };
            const std::tuple<const char *, Box::StandardButton, QString> buttons[] = {
                {"Page", Box::Reset, "stored new"},
                {"Dialog", Box::Reset, "stored stored"},
                {"Page", Box::RestoreDefaults, "default new"},
                {"Dialog", Box::RestoreDefaults, "default default"}};
            for (const auto &[box, which, expected] : buttons) {
                change();
                f.press(box, which);
                QCOMPARE(values(), expected);
                QCOMPARE(f.a->modifications, 1); // the page's fields were not heard meanwhile
            }
            QVERIFY(f.usableButtons().startsWith("apply reset OK"));
            QCOMPARE(f.settings.stringValue(f.a->key), QString("stored"));
        },
        f.a);
    QVERIFY(!f.settings.fallbacksEnabled());
}

void tst_PYXSettingsDialog::discarding_data()
{
    constexpr int None = QMessageBox::NoButton; // not asked: nothing is modified
    // How; what is answered; whether the page refuses; whether the dialog closes.
    const Rows<QString, int, bool, bool> rows = {
        {"button, no", "button", QMessageBox::No, false, false},
        {"button, yes", "button", QMessageBox::Yes, false, true},
        {"button, page refuses", "button", QMessageBox::Yes, true, false},
        {"window, no", "window", QMessageBox::No, false, false},
        {"window, yes", "window", QMessageBox::Yes, false, true},
        {"window, nothing modified", "window", None, false, true},
        {"escape, yes", "escape", QMessageBox::Yes, false, true},
        {"escape, nothing modified", "escape", None, false, true}};
    addRows({"way", "answer", "bFails", "bCloses"}, rows);
}

void tst_PYXSettingsDialog::discarding()
{
    QFETCH(QString, way);
    QFETCH(int, answer);
    QFETCH(bool, bFails);
    QFETCH(bool, bCloses);
    Fixture f;
    f.run([&] {
        f.a->bFails = bFails;
        const QString value = answer == QMessageBox::NoButton ? "" : "new";
        f.a->field->setText(value);
        Answer box(answer);
        if (way == "button")
            f.press("Dialog", Box::Discard);
        else if (way == "window")
            f.dialog.close();
        else
            QTest::keyClick(f.a->field, Qt::Key_Escape);
        QCOMPARE(f.dialog.isVisible(), !bCloses);
        QCOMPARE(f.dialog.result(), int(QDialog::Rejected));
        QCOMPARE(f.a->calls.contains("discard"), answer == int(QMessageBox::Yes));
        QCOMPARE(f.a->field->text(), value);
        QCOMPARE(box.title, value.isEmpty() ? QString() : QString("Settings Modified"));
    });
    QVERIFY(!f.settings.contains("Pages/A"));
    // What was closed once asks again in the next run.
    f.run([&] {
        f.a->bFails = false;
        f.a->field->setText("newer");
        Answer box(QMessageBox::No);
        f.dialog.close();
        QVERIFY(f.dialog.isVisible());
        QCOMPARE(box.text, QString("The settings have been modified.\n"
                                   "Do you really want to discard the changes?"));
    });
}

void tst_PYXSettingsDialog::windowIsRemembered()
{
    Fixture f;
    QWidget parent;
    parent.setGeometry(40, 30, 700, 500);
    f.dialog.setParent(&parent, f.dialog.windowFlags());
    QRect geometry;
    QByteArray splitter;
    f.run([&] {
        QVERIFY((f.dialog.geometry().center() - parent.geometry().center()).manhattanLength() < 80);
        geometry = QRect(20, 40, 700, 480);
        f.dialog.setGeometry(geometry);
        f.dialog.findChild<QSplitter *>("splitter")->setSizes({300, 400});
        splitter = f.dialog.findChild<QSplitter *>("splitter")->saveState();
    });
    PYXSettingsDialog second;
    second.registerSettingsHandler(new FieldPage("", "E"));
    QTimer::singleShot(0, &second, [&] {
        QCOMPARE(second.geometry(), geometry);
        QCOMPARE(second.findChild<QSplitter *>("splitter")->saveState(), splitter);
        second.setGeometry(5000, 4000, 3000, 2000);
        second.done(0);
    });
    second.exec(f.settings, f.defaults);
    f.run([&] {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(f.dialog.frameGeometry()));
    });
    f.dialog.setParent(nullptr);
}

void tst_PYXSettingsDialog::searching()
{
    Fixture f;
    f.b->field->setToolTip("<b>Waterfall</b> colours");
    f.a->field->setToolTip("Detector");
    auto *const line = f.dialog.findChild<QLineEdit *>("m_SearchLine");
    f.run([&] {
        QTest::keySequence(&f.dialog, QKeySequence::Find);
        QVERIFY(line->hasFocus());
        const std::pair<const char *, const char *> searches[] = {{"WATER colours", "Z(B)"},
                                                                  {"of c", "Y(C) Z(A B)"},
                                                                  {"z", "Z(A B)"},
                                                                  {"nothing", ""},
                                                                  {"detector value", "Z(A)"}};
        for (const auto &[words, tree] : searches) {
            line->clear();
            QTest::keyClicks(line, words);
            QCOMPARE(f.treeText(), QString(tree));
        }
        QCOMPARE(f.dialog.activePage(), f.d); // shown although it is not found
        QTest::keyClick(line, Qt::Key_Return);
        QVERIFY(f.dialog.activePage() == f.a && f.dialog.isVisible());
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(f.treeText(), QString("D Y(C) Z(A B)"));
        f.dialog.addCategory("Empty");
        line->setText("z");
        line->clear();
        QVERIFY(f.treeText().endsWith("Empty"));
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(!f.dialog.isVisible());
    });
}

void tst_PYXSettingsDialog::helpAndLanguage()
{
    const QStringList calls = tracesOf([] { Fixture f; });
    QCOMPARE(calls.filter("Warn|Help connector interface not found|source\\PYXSettingsDialog").size(), 4);
    Connector connector;
    const PYXBrokerRegistration help(InterfaceIdentifiers::helpConnector(), 0, &connector);
    const PYXBrokerRegistration translation(InterfaceIdentifiers::transConnector(), 0, &connector);
    Fixture f;
    f.run([&] {
        auto *const action = f.d->findChild<QAction *>("PYXSettingsDialog::D::ContextHelpAction");
        QVERIFY(action != nullptr && action->shortcut() == QKeySequence("F1"));
        QTest::keyClick(f.tree(), Qt::Key_F1);
        QCOMPARE(connector.helps, 1);
        f.press("Dialog", Box::Help);
        QCOMPARE(connector.helps, 2);
        f.d->calls.clear();
        emit connector.si_localeChanged();
        QCOMPARE(f.d->calls, QStringList("retranslate"));
        f.a->setTitle("Last");
        QTRY_COMPARE(f.treeText(), QString("D Y(C) Z(B Last)"));
    });
}

void tst_PYXSettingsDialog::pagesComeAndGoWhileRunning()
{
    Fixture f;
    f.settings.setValue("Pages/E", "stored");
    f.run(
        [&] {
            auto *const e = new FieldPage("Y", "E");
            QVERIFY(f.dialog.registerSettingsHandler(e));
            QCOMPARE(e->field->text(), QString("stored"));
            f.click("E");
            e->field->setText("new");
            QVERIFY(f.usableButtons().contains("OK"));
            delete e;
            QVERIFY(f.usableButtons().contains("Close") && f.dialog.activePage() != nullptr);
            connect(&f.dialog, &PYXSettingsDialog::si_settingsPageApplied, [&](auto *page) {
                if (page == f.c)
                    delete f.a;
            });
            QVERIFY(f.dialog.registerSettingsHandler(new DyingPage("X", "F")));
            f.b->field->setText("new");
            f.press("Dialog", Box::Apply);
            QCOMPARE(f.treeText(), QString("D Y(C) Z(B)"));
            QCOMPARE(f.settings.stringValue("Pages/B"), QString("new"));
        },
        f.a);
    auto *const dialog = new PYXSettingsDialog;
    QTimer::singleShot(0, dialog, [&] {
        PYXSettingsDialog *const running = dialog;
        QVERIFY(tracesOf([&] { running->exec(f.settings, f.defaults); }).filter("running already").size() ==
                1);
        delete running;
    });
    QCOMPARE(dialog->exec(f.settings, f.defaults), int(QDialog::Rejected));
}

void tst_PYXSettingsDialog::theDialogGoesWhileItAsks()
{
    for (const QString title : {"Errors in Settings", "Settings Modified", ""}) { // the last: after applying
        Fixture f;
        const QPointer<PYXSettingsDialog> dialog = new PYXSettingsDialog;
        auto *const page = new FieldPage("", "E");
        dialog->registerSettingsHandler(page);
        connect(dialog, qOverload<>(&PYXSettingsDialog::si_settingsApplied), [&] { delete dialog; });
        if (title.startsWith("Errors"))
            page->errors += "first";
        QString found;
        QTimer::singleShot(0, dialog, [&] {
            page->field->setText("new");
            QTimer::singleShot(0, dialog, [&] {
                if (const QWidget *const box = QApplication::activeModalWidget())
                    found = box->windowTitle();
                delete dialog;
            });
            auto *const buttons = dialog->findChild<Box *>("m_ButtonBoxDialog");
            buttons->button(title == "Settings Modified" ? Box::Discard : Box::Ok)->click();
        });
        QCOMPARE(dialog->exec(f.settings, f.defaults), int(QDialog::Rejected));
        QVERIFY(dialog.isNull());
        QCOMPARE(found, title);
    }
}

void tst_PYXSettingsDialog::everyControlHasANameAndItsTurn()
{
    Fixture f;
    f.run([&] {
        f.d->field->setText("new");
        f.changeStyle(); // which lays button boxes out anew
        QSet<const QWidget *> expected;
        QSet<QString> names;
        const auto widgets = f.dialog.findChildren<QWidget *>();
        for (QWidget *const widget : widgets) {
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled())
                continue;
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty() && !names.contains(name),
                     qPrintable(widget->metaObject()->className() + name));
            names += name;
            expected += widget;
        }
        QStringList order;
        for (int i = 3 * expected.size(); i > 0 && !expected.isEmpty(); --i) {
            expected -= QApplication::focusWidget();
            order +=
                QAccessible::queryAccessibleInterface(QApplication::focusWidget())->text(QAccessible::Name);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY2(expected.isEmpty(), qPrintable(order.join(',')));
        QVERIFY2(order.indexOf("Value of D") < order.indexOf("Apply this page") &&
                     order.indexOf("Apply this page") < order.indexOf("Apply all pages"),
                 qPrintable(order.join(',')));
    });
}

void tst_PYXSettingsDialog::modificationsCanBeIgnored()
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

void tst_PYXSettingsDialog::blockingLeavesThePageItself()
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

void tst_PYXSettingsDialog::textsComeWithTheEventLoop()
{
    FieldPage page("", "Page");
    QVERIFY(page.calls.isEmpty());
    QTRY_COMPARE(page.calls, QStringList("retranslate"));
    page.setTitle("Another");
    QCOMPARE(QAccessible::queryAccessibleInterface(&page)->text(QAccessible::Name), QString("Another"));
    QCOMPARE(page.property("::TITLE::").toString(), QString("Another"));
}

QTEST_MAIN(tst_PYXSettingsDialog)
#include "tst_PYXSettingsDialog.moc"
