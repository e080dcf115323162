// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ApplicationSettings.h"

#include "DataRows.h"
#include "FileContents.h"
#include "LocaleFollower.h"
#include "MainWindow.h"
#include "SettingsHome.h"

#include <PYXSettings.h>
#include <PYXSettingsDialog.h>
#include <PYXSettingsHandlerWidget.h>
#include <PYXTransConnectorImpl.h>
#include <SHW_General_Language.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>

using namespace BandMonitor;
using PYXRuntime::PYXSettings;
using PYXRuntime::PYXSettingsDialog;
using PYXRuntime::PYXSettingsHandlerWidget;
using PYXRuntime::PYXTransConnectorImpl;

namespace {

/** What a language says for English texts, of the program and of the library. */
class Dictionary final
{
public:
    explicit Dictionary(const QString &locale)
    {
        for (const char *const stem :
             {"examples/bandmonitor/translations/bandmonitor_", "resources/translations/PYXRuntime_"})
            read(QString(PYX_SOURCE_DIR "/") + stem + locale + ".ts");
    }

    /** Of these texts, those that are English and have to be said otherwise. */
    QStringList english(const QStringList &texts) const
    {
        QStringList found;
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(found), [this](const QString &text) {
            return m_english.contains(text) && !m_foreign.contains(text);
        });
        return found;
    }

private:
    void read(const QString &path)
    {
        QXmlStreamReader xml(get(path));
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == QString("source"))
                m_english += xml.readElementText();
            else if (xml.isStartElement() && xml.name() == QString("translation"))
                m_foreign += xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }

    QSet<QString> m_english;
    QSet<QString> m_foreign;
};

/** Every text below a window, shown at present or not. */
QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    for (const auto *const widget : window.findChildren<QWidget *>())
        texts += {widget->windowTitle(), widget->toolTip(), widget->accessibleName()};
    for (const auto *const action : window.findChildren<QAction *>())
        texts += {action->text(), action->iconText(), action->toolTip()};
    for (const auto *const label : window.findChildren<QLabel *>())
        texts += label->text();
    for (const auto *const button : window.findChildren<QAbstractButton *>())
        texts += button->text();
    for (const auto *const table : window.findChildren<QTableView *>())
        for (int column = 0; column < table->model()->columnCount(); ++column)
            texts += table->model()->headerData(column, Qt::Horizontal).toString();
    for (const auto *const tree : window.findChildren<QTreeWidget *>())
        for (const auto *const item : tree->findItems("*", Qt::MatchWildcard | Qt::MatchRecursive))
            texts += item->text(0);
    return texts;
}

/** Opens the dialog by the menu, and clicks OK when that has been done. */
void withDialog(MainWindow &window, const std::function<void(PYXSettingsDialog &)> &work)
{
    QTimer::singleShot(0, &window, [&] {
        auto *const dialog = window.findChild<PYXSettingsDialog *>();
        work(*dialog);
        auto *const buttons = dialog->findChild<QDialogButtonBox *>("m_ButtonBoxDialog");
        const bool bModified = buttons->button(QDialogButtonBox::Ok)->isVisible();
        buttons->button(bModified ? QDialogButtonBox::Ok : QDialogButtonBox::Close)->click();
    });
    window.findChild<QAction *>("settingsAction")->trigger();
}

} // namespace

class tst_ApplicationSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<SettingsHome>();
        QCoreApplication::setApplicationName("Band Monitor");
        PYXTransConnectorImpl::makeSureInitialized();
    }
    void cleanup()
    {
        PYXTransConnectorImpl::destroyInstance();
        m_home.reset();
    }
    void appliesAtOnce();
    void leavesNoEnglish_data();
    void leavesNoEnglish();

private:
    std::unique_ptr<SettingsHome> m_home;
};

void tst_ApplicationSettings::appliesAtOnce()
{
    const LocaleFollower follower;
    MainWindow window;
    window.restoreSettings();
    window.openOwnBand();
    withDialog(window, [](const PYXSettingsDialog &dialog) {
        dialog.findChild<QCheckBox *>("darkBox")->click();
        auto *const locales = dialog.findChild<QWidget *>("SHW_General_Language")->findChild<QComboBox *>();
        locales->setCurrentIndex(locales->findData("de"));
    });
    QVERIFY(window.findChild<QAction *>("darkAction")->isChecked());
    QVERIFY(QApplication::palette().color(QPalette::Base).lightness() < 128);
    QTRY_COMPARE(window.findChild<QAction *>("aboutAction")->text(), QString("Ü&ber Band Monitor"));
    QCOMPARE(QLocale().decimalPoint(), QChar(','));

    PYXTransConnectorImpl::getInstance()->changeLocale("en");
    QCOMPARE(QLocale().decimalPoint(), QChar('.'));
    PYXRuntime::SHW_General_Language::applyStored(PYXSettings(PYXSettings::eUserApplicationSettings));
    QCOMPARE(PYXTransConnectorImpl::getInstance()->getLocaleName(), QString("de"));
    window.findChild<QAction *>("darkAction")->trigger(); // kept as well
    MainWindow another;
    another.restoreSettings();
    QVERIFY(!another.findChild<QAction *>("darkAction")->isChecked());
}

void tst_ApplicationSettings::leavesNoEnglish_data()
{
    const Rows<QString, QString> rows = {{"German, switched", "en", "de"},
                                         {"French, switched", "en", "fr"},
                                         {"German, from the start", "de", "de"},
                                         {"German to French", "de", "fr"}};
    addRows({"openedIn", "thenIn"}, rows);
}

void tst_ApplicationSettings::leavesNoEnglish()
{
    QFETCH(QString, openedIn);
    QFETCH(QString, thenIn);
    auto *const connector = PYXTransConnectorImpl::getInstance();
    QVERIFY(connector->changeLocale(openedIn));
    const LocaleFollower follower;
    MainWindow window;
    window.openOwnBand();
    window.setPlaying(false);
    withDialog(window, [](const PYXSettingsDialog &dialog) {
        QCOMPARE(dialog.findChildren<PYXSettingsHandlerWidget *>().size(), 10);
    });
    const Dictionary dictionary(thenIn);
    if (openedIn == "en")
        QVERIFY(dictionary.english(textsOf(window)).size() > 100);
    QVERIFY(connector->changeLocale(thenIn));
    QCoreApplication::processEvents();
    const QStringList texts = textsOf(window);
    QCOMPARE(dictionary.english(texts), QStringList());
    QVERIFY(texts.contains(thenIn == "de" ? "Gegenstellen" : "Correspondants"));
    QVERIFY(connector->changeLocale("en"));
    QCoreApplication::processEvents();
    QVERIFY(dictionary.english(textsOf(window)).size() > 100);
}

QTEST_MAIN(tst_ApplicationSettings)
#include "tst_ApplicationSettings.moc"
