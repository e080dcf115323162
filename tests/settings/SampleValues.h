// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtCore>
#include <QtGui/QtGui>

/** Values whose only form in a file is a streamed QVariant: one or more of every type that can be streamed.
 */
inline QVariantList streamedSamples()
{
    QImage image(5, 4, QImage::Format_ARGB32);
    image.fill(Qt::cyan);
    QImage blank(256, 256, QImage::Format_ARGB32);
    blank.fill(Qt::transparent);
    QBitmap bitmap(4, 4);
    bitmap.fill(Qt::color1);
    QLinearGradient gradient(1, 2, 3, 4);
    gradient.setStops({{0.0, Qt::red}, {0.5, Qt::blue}, {1.0, Qt::green}});
    QPen pen(QBrush(QConicalGradient(1, 1, 45)), 2.5, Qt::CustomDashLine);
    pen.setDashPattern({1, 2, 3, 4});
    QTextCharFormat format;
    format.setFontPointSize(12);
    format.setForeground(QBrush(QRadialGradient(0, 0, 5)));
    const QVariantMap map{{"list", QVariantList{1, "two", QVariantList()}}, {"none", QVariant()}};
    const QVariant inner = map;
    return {
        1.5f,
        QChar(0x20AC),
        QVariant::fromValue<long>(-7),
        QVariant::fromValue<short>(-7),
        QVariant::fromValue<char>('x'),
        QVariant::fromValue<signed char>(-7),
        QVariant::fromValue<ulong>(7),
        QVariant::fromValue<ushort>(7),
        QVariant::fromValue<uchar>(7),
        QVariant::fromValue(nullptr),
        map,
        QVariantHash{{"k", map}},
        QVariantList{map},
        QVariantList{QStringList{"a", "b"}},
        QVariant(QMetaType::QVariant, &inner),
        QBitArray(11, true),
        QUrl("https://example.com/a%20b?c=d"),
        QLine(1, 2, 3, 4),
        QLineF(1, 2, 3, 4),
        QRegExp("a[bc]+(d|e)*"),
        QRegularExpression("x{2,3}", QRegularExpression::CaseInsensitiveOption),
        QUuid("{67C8770B-44F1-410A-AB9A-F9B5446F13EE}"),
        QJsonValue("text"),
        QJsonValue(true),
        QJsonObject{{"k", QJsonArray{1, 2}}},
        QJsonArray{1, "x"},
        QJsonDocument(QJsonArray{1}),
        QVariant::fromValue(QByteArrayList{"a", "b"}),
        QVariant::fromValue(QCborValue(7)),
        QVariant::fromValue(QCborArray{1, "x"}),
        QVariant::fromValue(QCborMap{{1, "x"}}),
        QFont("Courier", 11, QFont::Bold, true),
        QPixmap::fromImage(image),
        image,
        blank,
        QImage(),
        bitmap,
        QIcon(QPixmap::fromImage(image)),
        QBrush(Qt::red, Qt::DiagCrossPattern),
        QBrush(gradient),
        QBrush(QPixmap::fromImage(image)),
        pen,
        QPalette(Qt::darkGray),
        QPolygon(QVector<QPoint>{{1, 2}, {3, 4}, {5, 6}}),
        QPolygonF(QVector<QPointF>{{1, 2}, {3, 4}}),
        QRegion(0, 0, 10, 10) + QRegion(20, 5, 3, 3),
        QCursor(Qt::WaitCursor),
        QCursor(QPixmap::fromImage(image), 1, 1),
        QVariant::fromValue(QTextLength(QTextLength::PercentageLength, 50)),
        QVariant::fromValue<QTextFormat>(format),
        QMatrix(1, 2, 3, 4, 5, 6),
        QTransform(1, 2, 3, 4, 5, 6, 7, 8, 9),
        QMatrix4x4(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16),
        QVector2D(1, 2),
        QVector3D(1, 2, 3),
        QVector4D(1, 2, 3, 4),
        QQuaternion(1, 2, 3, 4),
        QVariant::fromValue(QColorSpace(QColorSpace::SRgb)),
    };
}

inline QByteArray streamed(const QVariant &value, int version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

/** Not null: files do not tell the two apart. */
inline QString randomText(QRandomGenerator &random)
{
    QString text("");
    for (int length = random.bounded(12); length > 0; --length) {
        const int kind = random.bounded(4);
        text += QChar(kind == 0 ? random.bounded(0x10000) : " ,@~#&;<a()1\n"[random.bounded(13)]);
    }
    return text;
}

inline QVariant randomValue(QRandomGenerator &random, int level)
{
    static const QVariantList streamedValues = [] {
        QVariantList samples = streamedSamples();
        // Its image comes back with the colours of its table exchanged: the same bitmap in other bytes.
        const auto isBitmap = [](const QVariant &value) { return value.userType() == QMetaType::QBitmap; };
        samples.erase(std::remove_if(samples.begin(), samples.end(), isBitmap), samples.end());
        return samples;
    }();
    const int number = int(random.generate());
    switch (random.bounded(level > 2 ? 9 : 13)) {
    case 0:
        return number;
    case 1:
        return double(number) / 7;
    case 2:
        return number < 0;
    case 3:
        return QRect(number % 1000, 1, 2, random.bounded(99));
    case 4:
        return QByteArray::number(number) + '\0' + char(number);
    case 5:
        return QDateTime(QDate(2000, 1, 1).addDays(number % 99999), QTime(12, 1), Qt::OffsetFromUTC,
                         level == 0 ? number % 50000 : 0);
    case 6:
        return streamedValues.at(random.bounded(streamedValues.size()));
    case 7:
        return QColor::fromRgb(QRgb(number));
    case 8:
        return randomText(random);
    case 9:
        return QStringList{randomText(random), randomText(random)};
    case 10:
        return QVariantMap{{randomText(random), randomValue(random, level + 1)}};
    default: {
        QVariantList list;
        for (int length = random.bounded(4); length > 0; --length)
            list.append(randomValue(random, level + 1));
        return list;
    }
    }
}
