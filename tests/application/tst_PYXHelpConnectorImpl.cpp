// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "FileContents.h"
#include "PYXBroker.h"
#include "PYXHelpConnectorImpl.h"
#include "PYXTransConnectorImpl.h"
#include "QmBytes.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace PYXRuntime;

class tst_PYXHelpConnectorImpl : public QObject
{
    Q_OBJECT
public slots:
    void open(const QUrl &page)
    {
        m_opened += page.fileName() + (page.hasFragment() ? '#' + page.fragment() : "");
    }
private slots:
    void init();
    void cleanup();
    void f1OpensThePageOfTheFocus();
    void actionsAskByName();
    void leavesTheKeyToOthers();
    void missingAndDamagedFiles();
    void followsTheLanguage();

private:
    void write(const QString &name, const QByteArray &content) { put(m_directory->filePath(name), content); }
    QString openedNow()
    {
        QString opened = m_opened.join(',');
        m_opened.clear();
        return opened;
    }

    QScopedPointer<QTemporaryDir> m_directory;
    PYXHelpConnectorImpl *m_help = nullptr;
    QStringList m_opened;
};

void tst_PYXHelpConnectorImpl::init()
{
    m_directory.reset(new QTemporaryDir);
    QDesktopServices::setUrlHandler("file", this, "open");
    m_help = PYXHelpConnectorImpl::getInstance();
    QCOMPARE(PYXBroker::getInstance()->topObject<PYXIHelpConnector>(), m_help);
    for (const char *page : {"index.html", "window.html", "edit.html", "page one.html"})
        write(page, "help");
    write("help.xml", R"(<?xml version="1.0"?>
        <HelpEntries start="index.html">
            <Entry context="MainWindow" page="window.html#top"/>
            <Entry context="Frequency" page="edit.html"/>
            <Entry context="PYXSettingsDialog::One::ContextHelp" page="page one.html"/>
            <Entry context="Lost" page="gone.html"/>
        </HelpEntries>)");
    m_help->setHelpEntryFile(m_directory->filePath("help.xml"));
}

void tst_PYXHelpConnectorImpl::cleanup()
{
    PYXHelpConnectorImpl::destroyInstance();
    QDesktopServices::unsetUrlHandler("file");
    m_opened.clear();
}

void tst_PYXHelpConnectorImpl::f1OpensThePageOfTheFocus()
{
    // Names of the window and of the edit, its property, the page, whether it is traced.
    const Rows<QString, QString, QString, QString, bool> rows = {
        {"own name", "MainWindow", "Frequency", "", "edit.html", false},
        {"property before name", "MainWindow", "MainWindow", "Frequency", "edit.html", false},
        {"the window's", "MainWindow", "other", "", "window.html#top", false},
        {"start page", "Other", "other", "", "index.html", true},
        {"page is gone", "MainWindow", "Lost", "", "index.html", true}};
    forRows(rows, [this](const QString &window, const QString &edit, const QString &property,
                         const QString &page, bool bTraced) {
        QWidget widget;
        widget.setObjectName(window);
        auto *const line = new QLineEdit(&widget);
        line->setObjectName(edit);
        line->setProperty(PYXHelpConnectorImpl::ContextProperty, property);
        widget.show();
        QApplication::setActiveWindow(&widget);
        line->setFocus();
        QCOMPARE(QApplication::focusWidget(), line);
        QCOMPARE(tracesOf([&] { QTest::keyClick(line, Qt::Key_F1); }).size(), bTraced ? 1 : 0);
        QCOMPARE(openedNow(), page);
        QTest::keyClick(line, Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(openedNow(), QString());
    });
}

void tst_PYXHelpConnectorImpl::actionsAskByName()
{
    QWidget page;
    page.setObjectName("MainWindow");
    QAction action(&page);
    connect(&action, &QAction::triggered, m_help, &PYXIHelpConnector::sl_onHelpRequested);
    action.setObjectName("PYXSettingsDialog::One::ContextHelpAction");
    action.trigger();
    QCOMPARE(openedNow(), QString("page one.html"));
    action.setObjectName("PYXSettingsDialog::Two::ContextHelpAction");
    action.trigger();
    QCOMPARE(openedNow(), QString("window.html#top"));
}

void tst_PYXHelpConnectorImpl::leavesTheKeyToOthers()
{
    class OwnKey : public QWidget
    {
    public:
        using QWidget::QWidget;
        int presses = 0;

    protected:
        void keyPressEvent(QKeyEvent *) override { ++presses; }
    };
    QWidget window;
    OwnKey own(&window);
    QTest::keyClick(&own, Qt::Key_F1);
    QCOMPARE(own.presses, 1);
    QCOMPARE(openedNow(), QString());
    QLineEdit line(&window);
    m_help->setHelpEntryFile(QString()); // no help, no traces
    QCOMPARE(tracesOf([&] { QTest::keyClick(&line, Qt::Key_F1); }), QStringList());
}

void tst_PYXHelpConnectorImpl::missingAndDamagedFiles()
{
    const QString cannotRead = "Cannot read help-entry file \"";
    const Rows<QByteArray, QString> rows = {
        {"missing", QByteArray(), "Cannot open help-entry file \""},
        {"empty", "", cannotRead},
        {"cut off", "<HelpEntries start='index.html'><Entry context='A' page='index.html'/>", cannotRead},
        {"something else", "<html/>", cannotRead},
        {"no context", "<HelpEntries><Entry page='index.html'/></HelpEntries>",
         "Help entry in line 1 has no context or no page."}};
    forRows(rows, [this](const QByteArray &content, const QString &complaint) {
        m_help->setHelpEntryFile(QString());
        QVERIFY(!m_help->hasHelp("A")); // nor is anything left of the file before
        if (!content.isNull())
            write("bad.xml", content);
        m_help->setHelpEntryFile(m_directory->filePath("bad.xml"));
        const QStringList traces = tracesOf([&] {
            QVERIFY(!m_help->hasHelp("A"));
            QVERIFY(!m_help->showHelp("A")); // does not complain about the file again
        });
        QCOMPARE(traces.size(), 2);
        QVERIFY2(traces.at(0).startsWith("Warn|" + complaint), qPrintable(traces.at(0)));
        QVERIFY(traces.at(1).startsWith(
            "Warn|There is no help page for \"A\", and no start page|source\\PYXHelp"));
        QCOMPARE(openedNow(), QString());
    });
}

void tst_PYXHelpConnectorImpl::followsTheLanguage()
{
    QCoreApplication::setApplicationName("Viewer");
    auto *const translations = PYXTransConnectorImpl::getInstance();
    translations->setTransDirPath(m_directory->path());
    for (const QString stem : {"Viewer", "qt"})
        QmBytes().write(m_directory->filePath(stem + "_de.qm"));
    write("help_de.xml", "<HelpEntries><Entry context='MainWindow' page='edit.html'/></HelpEntries>");
    QVERIFY(m_help->showHelp("MainWindow"));
    QVERIFY(translations->changeLocale("de"));
    QVERIFY(m_help->showHelp("MainWindow"));
    QVERIFY(translations->changeLocale("en"));
    QVERIFY(m_help->showHelp("MainWindow"));
    QCOMPARE(openedNow(), QString("window.html#top,edit.html,window.html#top"));
    PYXTransConnectorImpl::destroyInstance();
}

QTEST_MAIN(tst_PYXHelpConnectorImpl)
#include "tst_PYXHelpConnectorImpl.moc"
