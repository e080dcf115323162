// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIconLoader.h"
#include "PYXStandardIcons.h"

#ifdef PYX_HAS_KICONTHEMES
#include <KIconLoader>
#include <KIconTheme>
#endif

#include <QtCore/QDirIterator>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <vector>

using namespace PYXRuntime;

namespace {

constexpr int IconCount = 200;
constexpr int Sides[] = {48, 32, 24, 16};
const QString ThemeName = QStringLiteral("bench");

/** A theme of 200 of the library's own drawings, named as all contestants find them. */
class Theme
{
public:
    Theme()
    {
        const QString images = m_data.filePath(QStringLiteral("icons/bench/scalable/actions/"));
        QDir().mkpath(images);
        QStringList drawings;
        for (QDirIterator files(QStringLiteral(":/PYXRuntime/StandardIcons"), {QStringLiteral("*.svg")},
                                QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();)
            drawings += files.next();
        drawings.sort();
        for (int i = 0; i < IconCount; ++i) {
            m_bases += images + QStringLiteral("bench%1").arg(i, 3, 10, QLatin1Char('0'));
            m_files += m_bases.last() + QStringLiteral("_normal_off.svg");
            m_names += QFileInfo(m_files.last()).completeBaseName();
            QFile::copy(drawings.at(i % drawings.size()), m_files.last());
        }
        writeIndex();
        // As on a machine where the theme was installed some time ago.
        namespace fs = std::filesystem;
        fs::last_write_time(images.toStdString(), fs::file_time_type::clock::now() - std::chrono::hours(1));
    }

    QString data() const { return m_data.path(); }
    QString icons() const { return m_data.filePath(QStringLiteral("icons")); }
    const QStringList &bases() const { return m_bases; }
    const QStringList &files() const { return m_files; }
    const QStringList &names() const { return m_names; }

private:
    void writeIndex() const
    {
        QFile index(m_data.filePath(QStringLiteral("icons/bench/index.theme")));
        if (!index.open(QIODevice::WriteOnly))
            qFatal("cannot write the theme");
        index.write(
            "[Icon Theme]\nName=Bench\nComment=Bench\nDirectories=scalable/actions\n\n[scalable/actions]\n"
            "Size=48\nMinSize=8\nMaxSize=512\nType=Scalable\nContext=Actions\n");
    }

    QTemporaryDir m_data;
    QStringList m_bases;
    QStringList m_files;
    QStringList m_names;
};

const Theme &theme()
{
    static const Theme theme;
    return theme;
}

/** Times one pass over all icons from nothing; @p draw gets the index and the side. */
template <typename Forget, typename Draw>
void timeColdPass(benchmark::State &state, Forget forget, Draw draw)
{
    for (auto _ : state) {
        QPixmapCache::clear();
        forget();
        std::vector<QPixmap> pixmaps;
        pixmaps.reserve(std::size_t(IconCount) * 4);
        const auto begin = std::chrono::steady_clock::now();
        for (int i = 0; i < IconCount; ++i) {
            for (const int side : Sides)
                pixmaps.push_back(draw(i, side));
        }
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        for (const QPixmap &pixmap : pixmaps) {
            if (pixmap.isNull())
                state.SkipWithError("an icon is missing");
        }
    }
}

void loadCold(benchmark::State &state)
{
    PYXIconLoader loader;
    timeColdPass(
        state, [&] { loader.clearCache(); },
        [&](int i, int side) { return loader.load(theme().bases().at(i)).pixmap(side); });
}

void loadFromTheme(benchmark::State &state)
{
    QIcon::setThemeSearchPaths({theme().icons()});
    timeColdPass(
        state,
        [] {
            QIcon::setThemeName(QStringLiteral("none"));
            QIcon::setThemeName(ThemeName);
        },
        [](int i, int side) { return QIcon::fromTheme(theme().names().at(i)).pixmap(side); });
}

#ifdef PYX_HAS_KICONTHEMES
/** Its cache, which outlives the process, is as empty as on the first start. */
void loadWithKIconLoader(benchmark::State &state)
{
    std::unique_ptr<QTemporaryDir> cache;
    std::unique_ptr<KIconLoader> loader;
    timeColdPass(
        state,
        [&] {
            loader.reset();
            cache = std::make_unique<QTemporaryDir>();
            qputenv("XDG_CACHE_HOME", QFile::encodeName(cache->path()));
            loader = std::make_unique<KIconLoader>();
        },
        [&](int i, int side) {
            return loader->loadIcon(theme().names().at(i), KIconLoader::NoGroup, side,
                                    KIconLoader::DefaultState, {}, nullptr, true);
        });
}
#endif

/** Parsed once, rendered four times, and nothing else. The drawings are kept, as those of the loader are. */
void renderBare(benchmark::State &state)
{
    std::vector<std::unique_ptr<QSvgRenderer>> renderers;
    timeColdPass(
        state, [&] { renderers.clear(); },
        [&](int i, int side) {
            if (side == Sides[0])
                renderers.push_back(std::make_unique<QSvgRenderer>(theme().files().at(i)));
            QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            renderers.back()->render(&painter);
            painter.end();
            return QPixmap::fromImage(std::move(image));
        });
}

void askLoader(benchmark::State &state)
{
    PYXIconLoader loader;
    for (const QString &base : theme().bases())
        loader.load(base);
    for (auto _ : state) {
        for (const QString &base : theme().bases())
            benchmark::DoNotOptimize(loader.load(base));
    }
}

/** The same number of look-ups, by id. */
void askStandardIcons(benchmark::State &state)
{
    QList<uint> ids = PYXStandardIcons::standardIconsEnum().values();
    while (ids.size() < IconCount)
        ids += ids.at(ids.size() / 2);
    ids = ids.mid(0, IconCount);
    PYXStandardIcons &icons = *PYXStandardIcons::getInstance();
    icons.directEnsureRegisteredIconsAreCached(QSet<uint>(ids.begin(), ids.end()));
    for (auto _ : state) {
        for (const uint id : qAsConst(ids))
            benchmark::DoNotOptimize(icons.registeredIcon(id));
    }
}

void askHash(benchmark::State &state)
{
    QHash<QString, QIcon> icons;
    for (const QString &base : theme().bases())
        icons.insert(base, QIcon(base));
    for (auto _ : state) {
        for (const QString &base : theme().bases())
            benchmark::DoNotOptimize(icons.value(base));
    }
}

/** The longest time in which a timer of the event loop does not get its turn. */
class HeartBeat : public QObject
{
public:
    HeartBeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            m_longest = qMax(m_longest, m_sinceBeat.nsecsElapsed());
            m_sinceBeat.start();
        });
        m_timer.start(1);
        m_sinceBeat.start();
    }
    double longest_s() const { return double(m_longest) / 1e9; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    qint64 m_longest = 0;
};

/** Ends the loop soon after the standard icons have got their last batch. */
class LastBatch : public QObject
{
public:
    LastBatch(QEventLoop &loop, int ids, int batchSize)
        : m_loop(loop)
        , m_batches((ids + batchSize - 1) / batchSize)
    {}
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() >= QEvent::User && --m_batches == 0)
            QTimer::singleShot(5, &m_loop, &QEventLoop::quit);
        return false;
    }

private:
    QEventLoop &m_loop;
    int m_batches;
};

/** The loop as it is, as long as the loading takes about. */
void idleEventLoop(benchmark::State &state)
{
    for (auto _ : state) {
        QEventLoop loop;
        HeartBeat heartBeat;
        QTimer::singleShot(50, &loop, &QEventLoop::quit);
        loop.exec();
        state.SetIterationTime(heartBeat.longest_s());
    }
}

/** Caches all standard icons while an event loop runs; the time is the longest hold of that loop. */
void holdEventLoop(benchmark::State &state, bool bInBatches)
{
    const QList<uint> ids = PYXStandardIcons::standardIconsEnum().values();
    const QSet<uint> all(ids.begin(), ids.end());
    double longest_s = 0;
    for (auto _ : state) {
        PYXStandardIcons::destroyInstance();
        QPixmapCache::clear();
        PYXStandardIcons &icons = *PYXStandardIcons::getInstance();
        QEventLoop loop;
        HeartBeat heartBeat;
        LastBatch lastBatch(loop, all.size(), icons.delayLoadBatchSize());
        if (bInBatches) {
            icons.installEventFilter(&lastBatch);
            icons.delayedEnsureRegisteredIconsAreCached(all);
        } else {
            QTimer::singleShot(1, &icons, [&] {
                icons.directEnsureRegisteredIconsAreCached(all);
                QTimer::singleShot(5, &loop, &QEventLoop::quit);
            });
        }
        loop.exec();
        state.SetIterationTime(heartBeat.longest_s());
        longest_s = qMax(longest_s, heartBeat.longest_s());
    }
    state.counters["longest hold in ms"] = longest_s * 1e3;
}

} // namespace

BENCHMARK(loadCold)->Name("icons/200 SVG icons at four sizes, cold/PYXIconLoader")->UseManualTime();
BENCHMARK(loadFromTheme)->Name("icons/200 SVG icons at four sizes, cold/QIcon::fromTheme")->UseManualTime();
#ifdef PYX_HAS_KICONTHEMES
BENCHMARK(loadWithKIconLoader)->Name("icons/200 SVG icons at four sizes, cold/KIconLoader")->UseManualTime();
#endif
BENCHMARK(renderBare)->Name("icons/200 SVG icons at four sizes, cold/parsed once, rendered")->UseManualTime();
BENCHMARK(askLoader)->Name("icons/200 cached look-ups/PYXIconLoader");
BENCHMARK(askStandardIcons)->Name("icons/200 cached look-ups/PYXStandardIcons");
BENCHMARK(askHash)->Name("icons/200 cached look-ups/QHash");
BENCHMARK_CAPTURE(holdEventLoop, batches, true)
    ->Name("icons/longest hold while all are cached/PYXStandardIcons")
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(holdEventLoop, atOnce, false)
    ->Name("icons/longest hold while all are cached/all at once")
    ->UseManualTime()
    ->Iterations(1);

BENCHMARK(idleEventLoop)
    ->Name("icons/longest hold while all are cached/floor")
    ->UseManualTime()
    ->Iterations(1);

int main(int argc, char **argv)
{
    qputenv("XDG_DATA_DIRS", QFile::encodeName(theme().data()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(theme().data()));
#ifdef PYX_HAS_KICONTHEMES
    KIconTheme::forceThemeForTests(ThemeName);
#endif
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    PYXStandardIcons::destroyInstance();
    return 0;
}
