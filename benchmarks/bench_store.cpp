// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What applications do most: open the store, read one key, let the store go, while nobody has changed the
// file. Against plain QSettings on the same file in the same format, and on an INI file with the same keys.

#include "PYXSettings.h"
#include "PYXXmlSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXXmlSettings;

namespace {

constexpr int Keys = 200;

const QString &wantedKey()
{
    static const QString key = QStringLiteral("Group3/Key7");
    return key;
}

void fill(QSettings::Format format)
{
    QSettings settings(format, QSettings::UserScope, QCoreApplication::organizationName(),
                       QCoreApplication::applicationName());
    for (int i = 0; i < Keys; ++i)
        settings.setValue(QString("Group%1/Key%2").arg(i / 10).arg(i % 10), QString("value %1").arg(i));
}

const QString WantedValue = QStringLiteral("value 37");

void readWithPYX(benchmark::State &state)
{
    QString value;
    for (auto _ : state) {
        const PYXSettings settings(PYXSettings::eUserApplicationSettings);
        value = settings.stringValue(wantedKey());
        benchmark::DoNotOptimize(value);
    }
    if (value != WantedValue)
        state.SkipWithError("the value is missing");
}

void readWithQt(benchmark::State &state, QSettings::Format format)
{
    QString value;
    for (auto _ : state) {
        const QSettings settings(format, QSettings::UserScope, QCoreApplication::organizationName(),
                                 QCoreApplication::applicationName());
        value = settings.value(wantedKey()).toString();
        benchmark::DoNotOptimize(value);
    }
    if (value != WantedValue)
        state.SkipWithError("the value is missing");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName("Benchmarks");
    QCoreApplication::setApplicationName("Store");
    const QTemporaryDir directory;
    const QSettings::Format xml = PYXXmlSettings::format();
    QSettings::setDefaultFormat(xml);
    for (const QSettings::Format format : {xml, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, directory.filePath("user"));
        QSettings::setPath(format, QSettings::SystemScope, directory.filePath("system"));
        fill(format);
    }
    benchmark::RegisterBenchmark("store/open, read one key/PYX", readWithPYX);
    benchmark::RegisterBenchmark("store/open, read one key/QSettings", readWithQt, xml);
    benchmark::RegisterBenchmark("store/open, read one key/Ini", readWithQt, QSettings::IniFormat);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
