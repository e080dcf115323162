// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "PYXExternalConfig.h"

#include <QtTest/QtTest>

#include <thread>

using PYXRuntime::PYXExternalConfig;

namespace {

int destroyElsewhere(int, char **)
{
    std::thread([] { PYXExternalConfig::getInstance(); }).join();
    PYXExternalConfig::destroyInstance();
    return PYXExternalConfig::hasInstance() == nullptr ? 0 : 1;
}

} // namespace

class tst_PYXExternalConfig : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { PYXExternalConfig::destroyInstance(); }
    void keepsValuesUntilItIsDestroyed();
    void destroyingElsewhereWorksWithAMessage();
};

void tst_PYXExternalConfig::keepsValuesUntilItIsDestroyed()
{
    PYXExternalConfig *const config = PYXExternalConfig::getInstance();
    QCOMPARE(config->value("Antenna", 7).toInt(), 7);
    config->setValue("Antenna", 2);
    config->setValue("Site", QVariant());
    QCOMPARE(config->value("Antenna", 7).toInt(), 2);
    QVERIFY(config->contains("Site") && !config->value("Site", 7).isValid());
    config->remove("Site");
    QCOMPARE(config->allKeys(), QStringList("Antenna"));
    // Who hears of its end may ask for it.
    PYXExternalConfig *answer = config;
    connect(config, &QObject::destroyed, this, [&answer] { answer = PYXExternalConfig::hasInstance(); });
    PYXExternalConfig::destroyInstance();
    QCOMPARE(answer, nullptr);
    QVERIFY(!PYXExternalConfig::getInstance()->contains("Antenna"));
}

void tst_PYXExternalConfig::destroyingElsewhereWorksWithAMessage()
{
    const ChildResult child = runOwnProbe("destroy elsewhere");
    QCOMPARE(child.exitCode, 0);
    const QString message = "PYXRuntime::PYXExternalConfig::destroyInstance: MUST be called in the same "
                            "thread that called the first getInstance";
    QCOMPARE(child.errors.count(message), 1);
}

PYX_TEST_MAIN_WITH_PROBE(tst_PYXExternalConfig, destroyElsewhere)
#include "tst_PYXExternalConfig.moc"
