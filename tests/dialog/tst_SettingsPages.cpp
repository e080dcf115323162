// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "DialogRun.h"
#include "FileContents.h"
#include "PYXNotification.h"
#include "PYXProxyManager.h"
#include "PYXRuntimeCenter.h"
#include "SHW_Debug_AppMode.h"
#include "SHW_Debug_Broker.h"
#include "SHW_Debug_RuntimeScopes.h"
#include "SHW_General_Language.h"
#include "SHW_General_Messages.h"
#include "SHW_General_Paths.h"
#include "SHW_Network_Entries.h"
#include "SHW_Network_Proxy.h"

#include <QtGui/QAccessible>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace PYXRuntime;

namespace {

/** With one page, or more. */
class Fixture : public DialogRun
{
public:
    template <typename Page>
    Page *add()
    {
        auto *const page = new Page;
        dialog.registerSettingsHandler(page);
        return page;
    }
    using DialogRun::button;
    QPushButton *button(QDialogButtonBox::StandardButton which) { return button("Dialog", which); }
    bool isModified() { return button(QDialogButtonBox::Apply)->isEnabled(); }
    void apply() { button(QDialogButtonBox::Apply)->click(); }
};

/** The control whose label, text or title reads so, without mnemonics. */
template <typename Control>
Control *control(const QWidget &page, const QString &name)
{
    const auto labels = page.findChildren<QLabel *>();
    for (const QLabel *const label : labels) { // on Linux, a combo box calls itself after its value
        if (label->text().remove('&').remove(':') == name &&
            qobject_cast<Control *>(label->buddy()) != nullptr)
            return qobject_cast<Control *>(label->buddy());
    }
    const auto controls = page.findChildren<Control *>();
    for (Control *const found : controls) {
        if (QAccessible::queryAccessibleInterface(found)->text(QAccessible::Name).remove(':') == name)
            return found;
    }
    qFatal("no control %s", qPrintable(name));
    return nullptr;
}

class Shouter : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString(text).toUpper();
    }
};

int rowWith(const QAbstractItemView &view, const QString &text)
{
    const auto *const model = view.model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->index(row, 0).data().toString() == text)
            return row;
    }
    return -1;
}

QStringList errorsOf(PYXSettingsHandlerWidget &page)
{
    QStringList errors;
    if (page.verifyContents(errors) != errors.isEmpty())
        qFatal("result and errors differ");
    return errors;
}

} // namespace

class tst_SettingsPages : public QObject
{
    Q_OBJECT
private slots:
    void everyPageOpensUntouchedAndNamed();
    void modesAndStyle();
    void runtimeScopes();
    void directories();
    void proxyIsStoredEncrypted();
    void proxyErrors();
    void proxyTest();
    void networkEntries();
    void suppressedMessages();
};

void tst_SettingsPages::everyPageOpensUntouchedAndNamed()
{
    Fixture f;
    QList<PYXSettingsHandlerWidget *> pages{f.add<SHW_General_Language>(), f.add<SHW_General_Paths>(),
                                            f.add<SHW_General_Messages>(), f.add<SHW_Network_Proxy>(),
                                            f.add<SHW_Network_Entries>(),  f.add<SHW_Debug_RuntimeScopes>(),
                                            f.add<SHW_Debug_Broker>(),     f.add<SHW_Debug_AppMode>()};
    f.shared.setValue("Paths/Scripts", "/tmp");
    f.run([&] {
        QVERIFY(!f.isModified());
        const auto widgets = f.dialog.findChildren<QWidget *>();
        for (QWidget *const widget : widgets) {
            if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->objectName().startsWith("qt_"))
                continue;
            QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
        }
        for (const auto *const page : qAsConst(pages)) {
            QVERIFY(f.dialog.categoryIndex(const_cast<PYXSettingsHandlerWidget *>(page)) >= 0);
            QVERIFY(page->minimumSizeHint().width() < 560); // beside the tree, on a screen of 800
            QVERIFY(!page->property("::ICON::").value<QIcon>().isNull());
        }
    });
    QStringList keys = f.settings.allKeys(true);
    keys.removeAll("SettingsDialog/Geometry");
    keys.removeAll("SettingsDialog/SplitterState");
    QCOMPARE(keys, QStringList());
}

void tst_SettingsPages::modesAndStyle()
{
    Fixture f;
    auto *const modes = f.add<SHW_Debug_AppMode>();
    auto *const language = f.add<SHW_General_Language>();
    QSignalSpy applied(modes, &SHW_Debug_AppMode::si_appModesApplied);
    const QString systemStyle = QApplication::style()->objectName();
    f.run([&] {
        control<QCheckBox>(*modes, "Expert mode")->click();
        auto *const style = control<QComboBox>(*language, "Style");
        style->setCurrentIndex(style->findData("Windows"));
        f.apply();
        QVERIFY(!f.isModified());
    });
    QCOMPARE(applied, QList<QVariantList>{QVariantList{quint64(2)}});
    QVERIFY(f.settings.boolValue("/Debug/AppMode/Expert") && !f.settings.contains("/Debug/AppMode/Debug"));
    QCOMPARE(SHW_Debug_AppMode::storedAppModes(f.settings), quint64(2));
    QCOMPARE(QApplication::style()->objectName(), QString("windows"));
    f.settings.remove(SHW_General_Language::styleKey());
    SHW_General_Language::applyStored(f.settings);
    QCOMPARE(QApplication::style()->objectName(), systemStyle);
}

void tst_SettingsPages::runtimeScopes()
{
    const uint scope = PYXRuntimeCenter::registerRuntimeScope("APageTest", "for the test");
    Fixture f;
    auto *const page = f.add<SHW_Debug_RuntimeScopes>();
    f.run([&] {
        auto *const view = page->findChild<QAbstractItemView *>();
        const int row = rowWith(*view, "APageTest");
        QVERIFY(row >= 0);
        view->setCurrentIndex(view->model()->index(row, 1));
        QTest::keyClick(view, Qt::Key_Space);
        QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(scope));
        PYXRuntimeCenter::setEnabled_pyxDebug(scope, false);
        QTRY_COMPARE(view->model()->index(row, 1).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QTest::keyClicks(control<QLineEdit>(*page, "Filter the table"), "for the TEST");
        QCOMPARE(view->model()->rowCount(), 1);
        control<QCheckBox>(*page, "Copy debug messages to the trace")->click();
        QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebugToTrace() && !f.isModified());
    });
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(false);
}

void tst_SettingsPages::directories()
{
    Fixture f;
    auto *const page = f.add<SHW_General_Paths>();
    page->addDirectory("Paths/Recordings", "&Recordings:");
    QSignalSpy changed(page, &SHW_General_Paths::si_pathsChanged);
    put(f.home.path("file"), {});
    f.run([&] {
        auto *const scripts = control<QLineEdit>(*page, "Scripts");
        auto *const recordings = control<QLineEdit>(*page, "Recordings");
        scripts->setText(" " + f.home.path("scripts")); // is stored as it is
        recordings->setText(f.home.path("file"));
        QCOMPARE(errorsOf(*page).size(), 2);
        scripts->setText(f.home.path("scripts"));
        recordings->setText(f.home.path("recordings"));
        f.apply();
        QCOMPARE(changed, QList<QVariantList>{
                              (QVariantList{QStringList("Paths/Recordings"), QStringList("Paths/Scripts")})});
        scripts->setText(f.home.path("others"));
        f.apply();
        QCOMPARE(changed.value(1), (QVariantList{QStringList(), QStringList("Paths/Scripts")}));
        f.apply(); // nothing new
        QCOMPARE(changed.size(), 2);
    });
    QCOMPARE(PYXSettings(f.shared.fileName()).stringValue("Paths/Scripts"), f.home.path("others"));
}

void tst_SettingsPages::proxyIsStoredEncrypted()
{
    Fixture f;
    auto *const page = f.add<SHW_Network_Proxy>();
    auto *const password = control<QLineEdit>(*page, "Password");
    f.run([&] {
        QVERIFY(!f.isModified() && !control<QLineEdit>(*page, "Server")->isEnabled());
        control<QRadioButton>(*page, "This proxy")->click();
        control<QGroupBox>(*page, "The proxy asks for a user name")->setChecked(true);
        QTest::keyClicks(control<QLineEdit>(*page, "Server"), "proxy.example.com");
        control<QSpinBox>(*page, "Port")->setValue(3128);
        control<QLineEdit>(*page, "User name")->setText("operator");
        QTest::keyClicks(password, "topsecret");
        QVERIFY(f.isModified() && password->displayText() != "topsecret");
        f.apply();
        QVERIFY(!f.isModified());
    });
    QVERIFY(password->text().isEmpty());
    QCOMPARE(PYXProxyManager::currentProxyConfigurationWithoutPassword().proxyPort(), quint16(3128));
    const QByteArray stored = get(f.settings.fileName());
    QVERIFY(stored.contains("ProxyPassword") && !stored.contains("topsecret"));
    QCOMPARE(f.tracer.calls.filter("topsecret"), QStringList());
    f.run([&] {
        QVERIFY(!f.isModified());
        const QString buffer = password->text(); // shared
        QCOMPARE(buffer, QString("topsecret"));
        f.button(QDialogButtonBox::RestoreDefaults)->click();
        QVERIFY(f.isModified() && password->text().isEmpty());
        QVERIFY(buffer != QString("topsecret"));
    });
}

void tst_SettingsPages::proxyErrors()
{
    // The type, the server, whether it asks for a user, errors.
    const Rows<QString, QString, bool, int> rows = {{"none", "No proxy", "", true, 0},
                                                    {"system", "As the system has it", "", false, 0},
                                                    {"system, no user", "As the system has it", "", true, 1},
                                                    {"no server", "This proxy", " ", false, 1},
                                                    {"URL", "This proxy", "http://proxy", false, 1},
                                                    {"server, no user", "This proxy", "proxy", true, 1},
                                                    {"server", "This proxy", "proxy", false, 0}};
    forRows(rows, [](const QString &type, const QString &server, bool bCredentials, int errors) {
        SHW_Network_Proxy page;
        control<QRadioButton>(page, type)->click();
        control<QLineEdit>(page, "Server")->setText(server);
        control<QGroupBox>(page, "The proxy asks for a user name")->setChecked(bCredentials);
        QCOMPARE(errorsOf(page).size(), errors);
    });
}

void tst_SettingsPages::proxyTest()
{
    QTcpServer proxy;
    QVERIFY(proxy.listen(QHostAddress::LocalHost));
    connect(&proxy, &QTcpServer::newConnection, [&] {
        QTcpSocket *const socket = proxy.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            const QByteArray request = socket->readAll();
            const bool bGood = request.startsWith("HEAD http://good.test/");
            socket->write(bGood ? "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"
                                : "HTTP/1.1 502 Bad Gateway\r\nContent-Length: 0\r\n\r\n");
            socket->disconnectFromHost();
        });
    });
    Fixture f;
    f.settings.setValue("::PYXRuntime::/ProxyConfigurationTestSites",
                        QStringList{"http://good.test/", "http://bad.test/", "ftp://no.web"});
    auto *const page = f.add<SHW_Network_Proxy>();
    QStringList results;
    f.run([&] {
        control<QRadioButton>(*page, "This proxy")->click();
        control<QLineEdit>(*page, "Server")->setText("127.0.0.1");
        control<QSpinBox>(*page, "Port")->setValue(proxy.serverPort());
        QTimer::singleShot(0, page, [&] {
            QWidget *const test = QApplication::activeModalWidget();
            auto *const table = test->findChild<QTableWidget *>();
            control<QPushButton>(*test, "Start Test")->click();
            QTRY_VERIFY(control<QPushButton>(*test, "Start Test")->isEnabled());
            for (int row = 0; row < table->rowCount(); ++row)
                results += table->item(row, 1)->text();
            control<QLabel>(*test, "1 of 3 sites were reached.");
            table->selectRow(2);
            control<QPushButton>(*test, "Remove Site")->click();
            test->close();
        });
        control<QPushButton>(*page, "Test...")->click();
    });
    QCOMPARE(results.size(), 3);
    QVERIFY2(results.at(0).startsWith("Reached in"), qPrintable(results.at(0)));
    QVERIFY2(results.at(1).contains("Bad Gateway"), qPrintable(results.at(1)));
    QCOMPARE(results.at(2), QString("This is no web address."));
    QCOMPARE(f.settings.stringListValue("::PYXRuntime::/ProxyConfigurationTestSites").size(), 2);
    f.run([&] {
        QTimer::singleShot(0, &f.dialog, [&] { delete page; });
        control<QPushButton>(*page, "Test...")->click();
        QVERIFY(f.dialog.activePage() == nullptr);
    });
}

void tst_SettingsPages::networkEntries()
{
    Fixture f;
    auto *const page = f.add<SHW_Network_Entries>();
    auto *const model = page->findChild<QAbstractItemView *>()->model();
    const auto set = [&](int row, const QStringList &texts) {
        for (int column = 0; column < texts.size(); ++column)
            model->setData(model->index(row, column), texts.at(column));
    };
    f.run([&] {
        control<QPushButton>(*page, "Add")->click();
        control<QPushButton>(*page, "Add")->click();
        set(0, {"North", "10.0.0.5", "8080"});
        set(1, {"North", "10.0.0.500", "70000"});
        QCOMPARE(errorsOf(*page).size(), 4); // the name in both rows
        set(1, {"South", "fd00::5", "1"});
        QVERIFY(errorsOf(*page).isEmpty());
        model->setData(model->index(1, 3), Qt::Checked, Qt::CheckStateRole);
        QVERIFY(f.isModified());
        f.apply();
        QVERIFY(!f.isModified());
        const QString file = f.home.path("entries.PYXXml");
        QVERIFY(page->exportTo(file) && !page->exportTo(file + "/below/a/file"));
        model->setData(model->index(0, 0), "West");
        QCOMPARE(page->importFrom(file), 1);
        QCOMPARE(model->index(2, 0).data().toString(), QString("North"));
        QCOMPARE(page->importFrom(f.home.path("missing")), -1);
        f.button(QDialogButtonBox::Reset)->click();
        QCOMPARE(model->rowCount(), 2);
    });
    PYXNetworkEntryList stored = SHW_Network_Entries::usualKeys();
    stored.restore(f.settings);
    QCOMPARE(stored.names(), QStringList({"North", "South"}));
    QCOMPARE(stored.defaultEntry().address(), QHostAddress("fd00::5"));
}

void tst_SettingsPages::suppressedMessages()
{
    Fixture f;
    auto *const page = f.add<SHW_General_Messages>();
    for (const char *const name : {"one", "two", "three"})
        PYXNotification::setWillShowMessage("Test", name, false, QDialogButtonBox::Ok, true, name, "text");
    f.run([&] {
        auto *const list = page->findChild<QTreeWidget *>();
        QVERIFY(list->topLevelItemCount() == 3 && !f.isModified());
        list->setCurrentItem(list->findItems("one", Qt::MatchExactly).value(0));
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(f.isModified() && !PYXNotification::willShowMessage("Test", "one"));
        f.apply();
        QVERIFY(!f.isModified() && PYXNotification::willShowMessage("Test", "one"));
        QCOMPARE(list->topLevelItemCount(), 2);
        {
            Shouter translator;
            QCoreApplication::installTranslator(&translator);
            page->sl_retranslateUi();
            QCOMPARE(list->topLevelItem(1)->text(2), QString("ALWAYS"));
        }
        page->sl_retranslateUi();
        QVERIFY(!f.isModified());
        f.button(QDialogButtonBox::RestoreDefaults)->click();
        QVERIFY(f.isModified() && !f.button(QDialogButtonBox::RestoreDefaults)->isEnabled());
        f.button(QDialogButtonBox::Reset)->click();
        QVERIFY(!f.isModified());
        control<QPushButton>(*page, "Show All Again")->click();
        f.apply();
        QVERIFY(list->topLevelItemCount() == 0 && PYXNotification::suppressedMessages().isEmpty());
    });
}

QTEST_MAIN(tst_SettingsPages)
#include "tst_SettingsPages.moc"
