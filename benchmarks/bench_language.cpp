// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// A change of the language in a window with 1 000 labels, with the files of an application, of Qt and of ten
// modules. Both contestants load the same files; the labels follow QEvent::LanguageChange and set their texts
// again. "labels alone" is what the labels cost: one such event while the files stay.
#include "PYXTransConnectorImpl.h"
#include "QmBytes.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int Labels = 1000;
constexpr int Modules = 10;
constexpr int TextsOfAModule = 200;
const char *const Locales[] = {"de", "fr"};

QString stemOf(int module)
{
    return QStringLiteral("PYXModule%1").arg(module);
}

class Label : public QLabel
{
public:
    Label(int number, QWidget *parent)
        : QLabel(parent)
        , m_context(stemOf(number % Modules).toLatin1())
        , m_source("Text " + QByteArray::number(number / Modules))
    {}

    static QString s_addition; ///< lets a text change though the language does not

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            setText(QCoreApplication::translate(m_context.constData(), m_source.constData()) + s_addition);
    }

private:
    const QByteArray m_context;
    const QByteArray m_source;
};

QString Label::s_addition;

/** The files, and the window. */
class Scene
{
public:
    Scene()
    {
        const QString built = QCoreApplication::applicationDirPath() + "/translations/";
        for (const QString locale : Locales) {
            for (int module = 0; module < Modules; ++module)
                writeModule(stemOf(module), locale);
            writeModule("Viewer", locale);
            if (!QFile::copy(built + "qt_" + locale + ".qm", path() + "/qt_" + locale + ".qm"))
                qFatal("there is no translation of Qt in %s", qPrintable(built));
        }
        for (int i = 0; i < Labels; ++i)
            new Label(i, &m_window);
    }
    QString path() const { return m_directory.path(); }
    QWidget &window() { return m_window; }

private:
    void writeModule(const QString &stem, const QString &locale) const
    {
        QmBytes file;
        for (int i = 0; i < TextsOfAModule; ++i)
            file.add(stem.toLatin1().constData(), ("Text " + QByteArray::number(i)).constData(),
                     QStringLiteral("%1 %2 %3").arg(locale, stem).arg(i));
        file.write(path() + '/' + stem + '_' + locale + ".qm");
    }

    QTemporaryDir m_directory;
    QWidget m_window;
};

Scene &scene()
{
    static auto *const scene = new Scene;
    return *scene;
}

void switchByConnector(benchmark::State &state)
{
    auto *const connector = PYXRuntime::PYXTransConnectorImpl::getInstance();
    connector->unregisterModuleByName("PYXRuntime");
    connector->setTransDirPath(scene().path());
    for (int module = 0; module < Modules; ++module)
        connector->registerModuleByName(stemOf(module), false);
    int turn = 0;
    for (auto _ : state) {
        if (!connector->changeLocale(Locales[++turn % 2]))
            state.SkipWithError("the language could not be loaded");
        QCoreApplication::sendPostedEvents();
    }
    PYXRuntime::PYXTransConnectorImpl::destroyInstance();
}

/** What one writes without a connector. */
class Translators
{
public:
    Translators()
    {
        for (int module = 0; module < Modules; ++module)
            m_stems += stemOf(module);
    }
    bool load(const QString &locale)
    {
        for (const auto &translator : m_translators)
            QCoreApplication::removeTranslator(translator.get());
        m_translators.clear();
        bool bLoaded = true;
        for (const QString &stem : qAsConst(m_stems)) {
            m_translators.push_back(std::make_unique<QTranslator>());
            bLoaded = m_translators.back()->load(stem + '_' + locale, scene().path()) && bLoaded;
            QCoreApplication::installTranslator(m_translators.back().get());
        }
        QCoreApplication::sendPostedEvents();
        return bLoaded;
    }

private:
    QStringList m_stems{"Viewer", "qt"};
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

void switchByHand(benchmark::State &state)
{
    Translators translators;
    int turn = 0;
    for (auto _ : state) {
        if (!translators.load(Locales[++turn % 2]))
            state.SkipWithError("the language could not be loaded");
    }
}

/** They look their texts up among as many files, and get other ones each time. */
void labelsAlone(benchmark::State &state)
{
    Translators translators;
    translators.load(Locales[0]);
    int turn = 0;
    for (auto _ : state) {
        Label::s_addition = ++turn % 2 == 0 ? QString() : QStringLiteral("!");
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&scene().window(), &event);
        QCoreApplication::sendPostedEvents();
    }
    Label::s_addition.clear();
}

} // namespace

BENCHMARK(switchByConnector)->Name("language/switch with 1000 labels/PYX")->Unit(benchmark::kMillisecond);
BENCHMARK(switchByHand)->Name("language/switch with 1000 labels/QTranslator")->Unit(benchmark::kMillisecond);
BENCHMARK(labelsAlone)->Name("language/switch with 1000 labels/labels alone")->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Viewer");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
