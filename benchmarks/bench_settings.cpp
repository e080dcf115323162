// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Settings files against QSettings' own text format and KConfig: the same keys and values in the same
// directory. Every round of a read takes another of many equal files, each of which was read before (so
// that all come from the system's cache), and a store too large for the cache that QSettings has of files.

#include "PYXXmlSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <vector>

#ifdef PYX_HAS_KCONFIG
#include <KConfig>
#include <KConfigGroup>
#endif

namespace {

constexpr int ReadKeys = 10000;
constexpr int WrittenKeys = 1000;
constexpr int KeysPerGroup = 20;
constexpr int FileCount = 8;

QStringList numberedNames(const QString &pattern, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(pattern.arg(i));
    return names;
}

// Made once, so that no contender is charged for them.
const QString &groupName(int group)
{
    static const QStringList names = numberedNames(QStringLiteral("Group%1"), ReadKeys / KeysPerGroup);
    return names.at(group);
}

const QString &keyName(int key)
{
    static const QStringList names = numberedNames(QStringLiteral("Key%1"), KeysPerGroup);
    return names.at(key);
}

QString valueText(int group, int key)
{
    return QStringLiteral("value of key %1 in group %2").arg(key).arg(group);
}

struct QtStore
{
    QSettings settings;

    QtStore(const QString &path, QSettings::Format format)
        : settings(path, format)
    {}
    void set(int group, int key, const QString &value)
    {
        settings.setValue(groupName(group) + QLatin1Char('/') + keyName(key), value);
    }
    qint64 readAll(int groups)
    {
        qint64 length = 0;
        for (int group = 0; group < groups; ++group) {
            settings.beginGroup(groupName(group));
            for (int key = 0; key < KeysPerGroup; ++key)
                length += settings.value(keyName(key)).toString().size();
            settings.endGroup();
        }
        return length;
    }
    bool sync()
    {
        settings.sync();
        return settings.status() == QSettings::NoError;
    }
};

struct XmlStore : QtStore
{
    explicit XmlStore(const QString &path)
        : QtStore(path, PYXRuntime::PYXXmlSettings::format())
    {}
};

struct IniStore : QtStore
{
    explicit IniStore(const QString &path)
        : QtStore(path, QSettings::IniFormat)
    {}
};

/** The keys and values of the read race, as any format would have to hand them to QSettings. */
const QSettings::SettingsMap &readyMap()
{
    static const QSettings::SettingsMap map = [] {
        std::vector<QString> keys; // one after the other in memory, as our reader makes them
        keys.reserve(ReadKeys);
        for (int i = 0; i < ReadKeys; ++i)
            keys.push_back(groupName(i / KeysPerGroup) + QLatin1Char('/') + keyName(i % KeysPerGroup));
        QSettings::SettingsMap made;
        for (int i = 0; i < ReadKeys; ++i)
            made.insert(keys[std::size_t(i)], valueText(i / KeysPerGroup, i % KeysPerGroup));
        return made;
    }();
    return map;
}

/** Costs QSettings what every format costs it that is not its own, and nothing besides. */
struct ReadyStore : QtStore
{
    static QSettings::Format format()
    {
        static const QSettings::Format registered = QSettings::registerFormat(
            QStringLiteral("ready"),
            [](QIODevice &, QSettings::SettingsMap &map) {
                map = readyMap();
                return true;
            },
            [](QIODevice &device, const QSettings::SettingsMap &) { return device.write("ready") == 5; },
            Qt::CaseSensitive);
        return registered;
    }
    explicit ReadyStore(const QString &path)
        : QtStore(path, format())
    {}
};

#ifdef PYX_HAS_KCONFIG
struct KStore
{
    KConfig config;

    explicit KStore(const QString &path)
        : config(path, KConfig::SimpleConfig)
    {}
    void set(int group, int key, const QString &value)
    {
        config.group(groupName(group)).writeEntry(keyName(key), value);
    }
    qint64 readAll(int groups)
    {
        qint64 length = 0;
        for (int group = 0; group < groups; ++group) {
            const KConfigGroup entries = config.group(groupName(group));
            for (int key = 0; key < KeysPerGroup; ++key)
                length += entries.readEntry(keyName(key), QString()).size();
        }
        return length;
    }
    bool sync() { return config.sync(); }
};
#endif

template <typename Store>
void fill(const QString &path, int keys)
{
    Store store(path);
    for (int i = 0; i < keys; ++i)
        store.set(i / KeysPerGroup, i % KeysPerGroup, valueText(i / KeysPerGroup, i % KeysPerGroup));
    store.sync();
}

qint64 expectedLength(int keys)
{
    qint64 length = 0;
    for (int i = 0; i < keys; ++i)
        length += valueText(i / KeysPerGroup, i % KeysPerGroup).size();
    return length;
}

template <typename Store>
void readStore(benchmark::State &state)
{
    const QTemporaryDir directory;
    for (int i = 0; i < FileCount; ++i)
        fill<Store>(directory.filePath(QString::number(i)), ReadKeys);
    const qint64 expected = expectedLength(ReadKeys);
    int round = 0;
    for (auto _ : state) {
        Store store(directory.filePath(QString::number(round++ % FileCount)));
        if (store.readAll(ReadKeys / KeysPerGroup) != expected) {
            state.SkipWithError("values are missing");
            break;
        }
    }
}

template <typename Store>
void changeStore(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("store"));
    fill<Store>(path, WrittenKeys);
    Store store(path);
    store.readAll(WrittenKeys / KeysPerGroup);
    int round = 0;
    for (auto _ : state) {
        store.set(7, 11, QString::number(++round));
        if (!store.sync()) {
            state.SkipWithError("the file is not written");
            break;
        }
    }
}

/** The bytes of our store, made before, to the same file in the same safe way. */
void saveBytes(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("store"));
    fill<XmlStore>(path, WrittenKeys);
    QFile stored(path);
    if (!stored.open(QIODevice::ReadOnly))
        state.SkipWithError("there is no file");
    const QByteArray bytes = stored.readAll();
    for (auto _ : state) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
            state.SkipWithError("the file is not written");
            break;
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::RegisterBenchmark("settings/read/PYXXml", readStore<XmlStore>)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("settings/read/Ini", readStore<IniStore>)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("settings/read/floor", readStore<ReadyStore>)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("settings/sync/floor", saveBytes)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("settings/sync/PYXXml", changeStore<XmlStore>)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("settings/sync/Ini", changeStore<IniStore>)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
#ifdef PYX_HAS_KCONFIG
    benchmark::RegisterBenchmark("settings/read/KConfig", readStore<KStore>)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("settings/sync/KConfig", changeStore<KStore>)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
