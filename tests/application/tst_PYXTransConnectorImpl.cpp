// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "IStringPoolPopulator.h"
#include "PYXBroker.h"
#include "PYXStringPool.h"
#include "PYXTransConnectorImpl.h"
#include "PYXTranslatableModuleImpl.h"
#include "QmBytes.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace PYXRuntime;

namespace {

constexpr const char *Stems[] = {"Viewer", "qt", "PYXPlugin", "PYXExtra"};

/** What a text of each file is in the current language, with the pool's; all the same if nothing is mixed. */
QSet<QString> languagesNow()
{
    QSet<QString> languages{PYXStringPool::text("Test::Language")};
    for (const char *stem : Stems)
        languages += QCoreApplication::translate(stem, "en");
    return languages;
}

/** Bytes that are allocated; 0 where that cannot be told. */
size_t memoryInUse()
{
#ifdef __GLIBC__
    return mallinfo2().uordblks;
#else
    return 0;
#endif
}

class Populator : public QObject, public IStringPoolPopulator
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IStringPoolPopulator)
public:
    void populateStringPool(QHash<QString, QString> &texts) override
    {
        texts.insert("Test::Language", QCoreApplication::translate("Viewer", "en"));
    }
};

/** Writes down every moment in which the language is announced: "<who>:<locale>:<languages seen>". */
class Observer : public QWidget
{
    Q_OBJECT
public:
    Observer()
    {
        qApp->installEventFilter(this);
        connect(PYXTransConnectorImpl::getInstance(), &PYXTransConnectorImpl::si_localeChanged, this,
                [this] { note("signal"); });
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange && (watched == qApp || watched == this))
            note(watched == qApp ? "application" : "widget");
        return false;
    }
    void note(const char *who)
    {
        notes += QStringList{who, PYXTransConnectorImpl::getInstance()->getLocaleName(),
                             QStringList(languagesNow().values()).join('+')}
                     .join(':');
    }
    QStringList notes;
};

class CountedModule : public PYXTranslatableModuleImpl
{
public:
    using PYXTranslatableModuleImpl::PYXTranslatableModuleImpl;
    bool loadTranslations(const QString &locale, bool searchResources) override
    {
        ++loads;
        return PYXTranslatableModuleImpl::loadTranslations(locale, searchResources);
    }
    int loads = 0;
};

} // namespace

class tst_PYXTransConnectorImpl : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void findsItsDirectory();
    void changes_data();
    void changes();
    void offersWhatItCouldLoad();
    void modules();
    void modulesInResources();
    void nobodySeesAMixture();
    void everyChangeIsAnnouncedOnce();

private:
    void writeFiles(const QString &locale,
                    const QByteArrayList &stems = {"Viewer", "qt", "PYXPlugin", "PYXExtra"})
    {
        for (const QByteArray &stem : stems) {
            QmBytes file;
            file.add(stem.constData(), "en", locale);
            file.write(m_directory->filePath(stem + '_' + locale + ".qm"));
        }
    }

    QScopedPointer<QTemporaryDir> m_directory;
    QScopedPointer<Populator> m_populator;
    PYXTransConnectorImpl *m_connector = nullptr;
};

void tst_PYXTransConnectorImpl::init()
{
    QCoreApplication::setApplicationName("Viewer");
    m_directory.reset(new QTemporaryDir);
    m_populator.reset(new Populator);
    m_connector = PYXTransConnectorImpl::getInstance();
    m_connector->setTransDirPath(m_directory->path());
    m_connector->registerModuleByName("PYXPlugin", false);
    m_connector->registerModuleByName("PYXExtra", true);
    PYXStringPool::addPopulator(m_populator.data());
    PYXStringPool::populate();
}

void tst_PYXTransConnectorImpl::cleanup()
{
    PYXTransConnectorImpl::destroyInstance();
    m_populator.reset();
}

void tst_PYXTransConnectorImpl::findsItsDirectory()
{
    QCOMPARE(PYXBroker::getInstance()->topObject<PYXITransConnector>(), m_connector);
    m_connector->setTransDirPath(QString());
    QCOMPARE(m_connector->getTransDirPath(), QCoreApplication::applicationDirPath() + "/translations");
    // The library's own texts are there without further ado.
    writeFiles("de", {"Viewer", "qt", "PYXPlugin"});
    m_connector->setTransDirPath(m_directory->path());
    QFile::copy(QCoreApplication::applicationDirPath() + "/translations/PYXRuntime_de.qm",
                m_directory->filePath("PYXRuntime_de.qm"));
    QVERIFY(m_connector->changeLocale("de"));
    QCOMPARE(PYXStringPool::text("PYXStrings::ekText_Frequency"), QString("Frequenz"));
}

void tst_PYXTransConnectorImpl::changes_data()
{
    const QByteArrayList all{"Viewer", "qt", "PYXPlugin", "PYXExtra"};
    const auto without = [&all](int file) { return all.mid(0, file) + all.mid(file + 1); };
    // What cannot be loaded; what is reached from English: the locale and the number of signals.
    const Rows<QByteArrayList, QString, QString, QString> rows = {
        {"all there", all, "de", "", "de 1"},
        {"English without files", {}, "en", "", "en 1"},
        {"by the language of a country", all, "de_AT", "", "de_AT 1"},
        {"no application's", without(0), "de", "the application's translation file for locale \"de\".",
         "en 0"},
        {"no Qt's", without(1), "de", "Qt's translation file for locale \"de\".", "en 0"},
        {"no required module's", without(2), "de",
         "translation file for module \"PYXPlugin\" and locale \"de\".", "en 1"},
        {"no optional module's", without(3), "de", "", "de 1"}};
    addRows({"files", "locale", "errors", "reached"}, rows);
}

void tst_PYXTransConnectorImpl::changes()
{
    QFETCH(QByteArrayList, files);
    QFETCH(QString, locale);
    QFETCH(QString, errors);
    QFETCH(QString, reached);
    writeFiles("de", files);
    writeFiles("fr");
    const bool bSucceeds = errors.isEmpty();
    for (const QString previous : {"en", "fr"}) {
        QVERIFY(m_connector->changeLocale(previous));
        QSignalSpy spy(m_connector, &PYXTransConnectorImpl::si_localeChanged);
        const QStringList traces = tracesOf([&] { QCOMPARE(m_connector->changeLocale(locale), bSucceeds); });
        QCOMPARE(traces.join('\n').section('|', 0, 2),
                 bSucceeds ? QString() : "Error|Cannot load " + errors + "|source\\PYXTransConnectorImpl");
        const int signalCount = previous == "fr" ? 1 : reached.section(' ', 1).toInt();
        QCOMPARE(m_connector->getLocaleName() + ' ' + QString::number(spy.size()),
                 reached.section(' ', 0, 0) + ' ' + QString::number(signalCount));
        QSet<QString> expected{reached.left(2)};
        if (bSucceeds && files.size() == 3)
            expected += "en"; // the texts of the optional module
        QCOMPARE(languagesNow(), expected);
    }
}

void tst_PYXTransConnectorImpl::offersWhatItCouldLoad()
{
    for (const char *locale : {"de", "nl", "pt_BR", "en"})
        writeFiles(locale);
    writeFiles("fr", {"Viewer", "PYXPlugin"});
    writeFiles("it", {"Viewer", "qt"});
    writeFiles("es");
    QVERIFY(QFile::resize(m_directory->filePath("Viewer_es.qm"), 40)); // damaged
    QmBytes library;
    library.add("PYXTransConnectorImpl", "English", "Deutsch!",
                "Please enter the language for which you are doing the translations.");
    library.write(m_directory->filePath("PYXRuntime_de.qm"));

    QStringList offered;
    const QStringList traces = tracesOf([&] {
        const auto locales = m_connector->getSupportedLocales();
        for (const auto &locale : locales)
            offered += locale.localeName + '=' + locale.displayName;
    });
    QCOMPARE(offered, (QStringList{"en=English", "de=Deutsch!", "nl=Nederlands", "pt_BR=Português"}));
    QCOMPARE(traces.size(), 2);
    QVERIFY(traces.at(0).startsWith(
        "Warn|Cannot load Qt's translation file for locale \"fr\".|source\\PYXTrans"));
    QVERIFY(traces.at(1).startsWith(
        "Warn|Cannot load translation file for module \"PYXPlugin\" and locale \"it\".|source\\PYXTrans"));
    QCOMPARE(languagesNow(), QSet<QString>{"en"});
}

void tst_PYXTransConnectorImpl::modules()
{
    writeFiles("de");
    CountedModule module("PYXExtra", "nowhere", true);
    m_connector->unregisterModuleByName("PYXExtra");
    m_connector->registerModule(&module);
    m_connector->registerModule(&module);
    m_connector->registerModuleByName("PYXExtra", false); // that name is taken
    QCOMPARE(module.getTranslationsDir(), m_directory->path());
    QVERIFY(m_connector->changeLocale("de"));
    QCOMPARE(module.loads, 1);
    const auto text = [] { return QCoreApplication::translate("PYXExtra", "en"); };
    {
        // A copy has nothing loaded, so nothing goes with it.
        QCOMPARE(PYXTranslatableModuleImpl(module).getModuleBaseName(), QString("PYXExtra"));
        PYXTranslatableModuleImpl assigned("PYXPlugin", m_directory->path());
        QVERIFY(assigned.loadTranslations("de", false));
        assigned = module;
        QVERIFY(assigned.isTranslationOptional());
    }
    QCOMPARE(text(), QString("de"));
    m_connector->setTransDirPath(m_directory->filePath("elsewhere"));
    QCOMPARE(module.getTranslationsDir(), m_directory->filePath("elsewhere"));
    m_connector->unregisterModule(&module);
    QCOMPARE(text(), QString("en"));
}

void tst_PYXTransConnectorImpl::modulesInResources()
{
    PYXTranslatableModuleImpl module("PYXRuntime", m_directory->path());
    const QString text = "<undeclared interface>";
    const auto translated = [&] {
        return QCoreApplication::translate("PYXRuntime::PYXBroker", qPrintable(text));
    };
    for (const QString root : {"/PYXRuntime/translations", "/translations", "/"}) {
        QVERIFY(QResource::registerResource(TEST_RESOURCE, root));
        QVERIFY(!module.loadTranslations("de", false));
        QVERIFY2(module.loadTranslations("de", true), qPrintable(root));
        QVERIFY(translated() != text);
        module.unloadTranslations();
        QCOMPARE(translated(), text);
        QVERIFY(QResource::unregisterResource(TEST_RESOURCE, root));
    }
    QVERIFY(!module.loadTranslations("de", true));
}

void tst_PYXTransConnectorImpl::nobodySeesAMixture()
{
    writeFiles("de");
    writeFiles("fr");
    Observer observer;
    const char *const locales[] = {"de", "fr", "xx", "en"};
    size_t memoryBefore = 0;
    for (int i = 0; i < 1000; ++i) {
        const QString locale = locales[i % 4];
        const QString result = locale == "xx" ? "en" : locale;
        tracesOf([&] { QCOMPARE(m_connector->changeLocale(locale), locale != "xx"); });
        QCoreApplication::sendPostedEvents();
        QStringList expected;
        // After a failure there is nothing to remove, and no event of Qt's, when English follows.
        for (const char *who : {"application", "signal", "widget"}) {
            if (i % 4 != 3 || qstrcmp(who, "signal") == 0)
                expected += QStringList{who, result, result}.join(':');
        }
        QCOMPARE(observer.notes, expected);
        observer.notes.clear();
        if (i == 199)
            memoryBefore = memoryInUse();
    }
    // The allocator's own bookkeeping varies; the smallest object kept from each of the 800 changes takes 32.
    QVERIFY2(memoryInUse() < memoryBefore + 800UL * 16 || memoryBefore == 0,
             qPrintable(QString::number(memoryBefore)));
}

void tst_PYXTransConnectorImpl::everyChangeIsAnnouncedOnce()
{
    writeFiles("de");
    // A listener that changes back, and one that ends the connector in the midst.
    QStringList seen;
    connect(m_connector, &PYXTransConnectorImpl::si_localeChanged, this, [&] {
        seen += m_connector->getLocaleName();
        if (seen.size() == 1)
            m_connector->changeLocale("en");
    });
    QVERIFY(m_connector->changeLocale("de"));
    QCOMPARE(seen, (QStringList{"de", "en"}));
    connect(m_connector, &PYXTransConnectorImpl::si_localeChanged, this,
            &PYXTransConnectorImpl::destroyInstance);
    QVERIFY(m_connector->changeLocale("de"));
    QVERIFY(!PYXTransConnectorImpl::hasInstance());
    QCOMPARE(languagesNow() - QSet<QString>{"de"}, QSet<QString>{"en"});
}

QTEST_MAIN(tst_PYXTransConnectorImpl)
#include "tst_PYXTransConnectorImpl.moc"
