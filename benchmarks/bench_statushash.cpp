// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The state of a window or a detector, as a status hash and as what one would use without it. All contenders
// hold the same keys and values, only of types that JSON has too.

#include "PYXStatusHash.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <benchmark/benchmark.h>
#include <vector>

using PYXRuntime::PYXStatusHash;

namespace {

constexpr int Groups = 5;
constexpr int KeysPerGroup = 20;
constexpr auto StreamVersion = QDataStream::Qt_4_6;
const QString ChangedKey = QStringLiteral("Changed");

QVariant someValue(int key)
{
    switch (key % 4) {
    case 0:
        return key * 1001;
    case 1:
        return key / 7.0;
    case 2:
        return key % 8 < 4;
    default:
        return QStringLiteral("value of key %1").arg(key);
    }
}

/** Half of the values lie directly in the hash, half in hashes in it. */
QVariantHash content()
{
    QVariantHash hash;
    for (int group = 0; group < Groups; ++group) {
        QVariantHash inner;
        for (int key = 0; key < KeysPerGroup / 2; ++key) {
            inner.insert(QStringLiteral("Key%1").arg(key), someValue(key));
            hash.insert(QStringLiteral("Group%1Key%2").arg(group).arg(key), someValue(key + group));
        }
        hash.insert(QStringLiteral("Group%1").arg(group), inner);
    }
    return hash;
}

PYXStatusHash statusHash()
{
    PYXStatusHash hash(1, StreamVersion);
    const QVariantHash values = content();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        hash.insert(value.key(), value.value());
    return hash;
}

QByteArray streamed(const QVariantHash &hash)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << hash;
    return bytes;
}

// Every round changes a value, so that nobody can answer from a cache.

void saveStatusHash(benchmark::State &state)
{
    PYXStatusHash hash = statusHash();
    int round = 0;
    for (auto _ : state) {
        hash.insert(ChangedKey, ++round);
        benchmark::DoNotOptimize(hash.serialize());
    }
}

void saveStream(benchmark::State &state)
{
    QVariantHash hash = content();
    int round = 0;
    for (auto _ : state) {
        hash.insert(ChangedKey, ++round);
        benchmark::DoNotOptimize(streamed(hash));
    }
}

void restoreStatusHash(benchmark::State &state)
{
    const QByteArray bytes = statusHash().serialize();
    for (auto _ : state) {
        PYXStatusHash hash(1, StreamVersion);
        if (!hash.restoreFrom(bytes))
            state.SkipWithError("not restored");
        benchmark::DoNotOptimize(hash.isEmpty());
    }
}

void restoreStream(benchmark::State &state)
{
    const QByteArray bytes = streamed(content());
    for (auto _ : state) {
        QDataStream stream(bytes);
        stream.setVersion(StreamVersion);
        QVariantHash hash;
        stream >> hash;
        if (stream.status() != QDataStream::Ok)
            state.SkipWithError("not restored");
        benchmark::DoNotOptimize(hash.isEmpty());
    }
}

void saveXml(benchmark::State &state)
{
    PYXStatusHash hash = statusHash();
    int round = 0;
    for (auto _ : state) {
        hash.insert(ChangedKey, ++round);
        benchmark::DoNotOptimize(hash.toXml());
    }
}

void saveJson(benchmark::State &state)
{
    QVariantHash hash = content();
    int round = 0;
    for (auto _ : state) {
        hash.insert(ChangedKey, ++round);
        benchmark::DoNotOptimize(QJsonDocument(QJsonObject::fromVariantHash(hash)).toJson());
    }
}

void restoreXml(benchmark::State &state)
{
    const QByteArray xml = statusHash().toXml();
    for (auto _ : state) {
        PYXStatusHash hash(1, StreamVersion);
        if (!hash.restoreFromXml(xml))
            state.SkipWithError("not restored");
        benchmark::DoNotOptimize(hash.isEmpty());
    }
}

void restoreJson(benchmark::State &state)
{
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantHash(content())).toJson();
    for (auto _ : state) {
        const QVariantHash hash = QJsonDocument::fromJson(json).object().toVariantHash();
        if (hash.isEmpty())
            state.SkipWithError("not restored");
        benchmark::DoNotOptimize(hash.isEmpty());
    }
}

/** The elements of a document with nothing but their texts, which are there already. */
void writeElements(benchmark::State &state)
{
    struct struElement
    {
        bool bStart;
        QString name;
        QXmlStreamAttributes attributes;
        QString text;
    };
    std::vector<struElement> elements;
    for (QXmlStreamReader xml(statusHash().toXml()); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() || xml.isEndElement())
            elements.push_back({xml.isStartElement(), xml.name().toString(), xml.attributes(), QString()});
        else if (xml.isCharacters() && !xml.isWhitespace())
            elements.back().text = xml.text().toString();
    }
    for (auto _ : state) {
        QByteArray xml;
        QXmlStreamWriter writer(&xml);
        writer.setAutoFormatting(true);
        for (const struElement &element : elements) {
            if (!element.bStart) {
                writer.writeEndElement();
                continue;
            }
            writer.writeStartElement(element.name);
            writer.writeAttributes(element.attributes);
            if (!element.text.isEmpty())
                writer.writeCharacters(element.text);
        }
        benchmark::DoNotOptimize(xml);
    }
}

void readElements(benchmark::State &state)
{
    const QByteArray bytes = statusHash().toXml();
    for (auto _ : state) {
        QXmlStreamReader xml(bytes);
        while (!xml.atEnd())
            xml.readNext();
        if (xml.hasError())
            state.SkipWithError("not read");
    }
}

} // namespace

BENCHMARK(saveStatusHash)->Name("statushash/binary save/PYX");
BENCHMARK(saveStream)->Name("statushash/binary save/QDataStream");
BENCHMARK(restoreStatusHash)->Name("statushash/binary restore/PYX");
BENCHMARK(restoreStream)->Name("statushash/binary restore/QDataStream");
BENCHMARK(saveXml)->Name("statushash/xml save/PYX");
BENCHMARK(saveJson)->Name("statushash/xml save/QJsonDocument");
BENCHMARK(writeElements)->Name("statushash/xml save/floor");
BENCHMARK(restoreXml)->Name("statushash/xml restore/PYX");
BENCHMARK(restoreJson)->Name("statushash/xml restore/QJsonDocument");
BENCHMARK(readElements)->Name("statushash/xml restore/floor");
BENCHMARK_MAIN();
