// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "IStringPoolPopulator.h"
#include "PYXStringPool.h"
#include "PYXStrings.h"
#include "RecordingTracer.h"

#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>

#include <atomic>
#include <thread>

using namespace PYXRuntime;

namespace {

class Populator : public QObject, public IStringPoolPopulator
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IStringPoolPopulator)
public:
    Populator(const QString &key, const QString &text)
        : m_key(key)
        , m_text(text)
    {}
    void populateStringPool(QHash<QString, QString> &texts) override
    {
        texts.insert(m_key, m_text + QString::number(++calls));
        texts.insert("Twin", texts.value(m_key));
    }
    int calls = 0;

private:
    const QString m_key;
    const QString m_text;
};

} // namespace

class tst_PYXStringPool : public QObject
{
    Q_OBJECT
private slots:
    void hasEverySharedText();
    void asksItsPopulators();
    void readersSeeWholeFillings();
};

void tst_PYXStringPool::hasEverySharedText()
{
    QCOMPARE(PYXStrings::text(PYXStrings::ekText_Level), QString()); // not filled yet
    PYXStringPool::populate();
    const auto ids = QMetaEnum::fromType<PYXStrings::eText>();
    QSet<QString> texts;
    for (int i = 0; i < ids.keyCount(); ++i)
        texts += PYXStrings::text(PYXStrings::eText(ids.value(i)));
    QCOMPARE(texts.size(), ids.keyCount());
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(PYXStrings::text(PYXStrings::ekText_CentreFrequency), QString("Centre frequency"));
}

void tst_PYXStringPool::asksItsPopulators()
{
    QObject stranger;
    const QStringList traces = tracesOf([&] { QVERIFY(!PYXStringPool::addPopulator(&stranger)); });
    QCOMPARE(traces.size(), 1);
    Populator first("First", "1:");
    QVERIFY(PYXStringPool::addPopulator(&first));
    QVERIFY(PYXStringPool::addPopulator(&first));
    QCOMPARE(PYXStringPool::text("First"), QString("1:1"));
    {
        Populator second("Second", "2:");
        PYXStringPool::addPopulator(&second);
        QCOMPARE(PYXStringPool::text("Twin"), QString("2:1")); // the later one has the last word
    }
    QVERIFY(PYXStringPool::contains("Second"));
    PYXStringPool::populate();
    QVERIFY(!PYXStringPool::contains("Second"));
    PYXStringPool::removePopulator(&first);
    QVERIFY(!PYXStringPool::contains("First"));
    QVERIFY(PYXStringPool::contains(PYXStrings::key(PYXStrings::ekText_Level)));
}

void tst_PYXStringPool::readersSeeWholeFillings()
{
    Populator populator("Count", QString());
    PYXStringPool::addPopulator(&populator);
    std::atomic<bool> bStop{false};
    std::atomic<int> faults{0};
    std::thread reader([&] {
        while (!bStop)
            faults += PYXStringPool::text("Count").toInt() > PYXStringPool::text("Twin").toInt() ? 1 : 0;
    });
    for (int i = 0; i < 300; ++i)
        PYXStringPool::populate();
    bStop = true;
    reader.join();
    QCOMPARE(faults.load(), 0);
    PYXStringPool::removePopulator(&populator);
}

QTEST_GUILESS_MAIN(tst_PYXStringPool)
#include "tst_PYXStringPool.moc"
