// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlValueCodec.h"

#include "VariantStreamChecker.h"
#include "XmlTextCodec.h"
#include "XmlTypedForms.h"

#include <QtCore/QVector>

namespace PYXRuntime::XmlValueCodec {
namespace {

const QLatin1Char Marker('@');
const QLatin1Char Comma(',');
const QLatin1Char Blank(' ');
const QLatin1String EmptyList("@EmptyStringList()");
constexpr char ListSeparator[] = " , ";

QString marked(const QString &text)
{
    return text.startsWith(Marker) ? Marker + text : text;
}

/** The text of a value that is no list, not escaped yet. @return false where there is none. */
bool encodeSingle(const QVariant &value, QString &text)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QKeySequence:
        text = marked(value.toString());
        return true;
    default:
        return XmlTypedForms::encode(value, text);
    }
}

bool appendList(QByteArray &out, const QVariantList &list)
{
    QByteArray encoded;
    for (const QVariant &element : list) {
        QString text;
        if (!encodeSingle(element, text))
            return false;
        if (!encoded.isEmpty() || &element != &list.first())
            encoded.append(ListSeparator);
        XmlTextCodec::appendEscapedValue(encoded, text);
    }
    out.append(encoded);
    return true;
}

void appendStringList(QByteArray &out, const QStringList &list)
{
    for (int i = 0; i < list.size(); ++i) {
        if (i > 0)
            out.append(ListSeparator);
        XmlTextCodec::appendEscapedValue(out, marked(list.at(i)));
    }
}

QVariant decodeSingle(const QString &text)
{
    if (!text.startsWith(Marker))
        return text;
    if (text.size() > 1 && text.at(1) == Marker)
        return text.mid(1);
    QVariant value;
    return XmlTypedForms::decode(text, value) ? value : QVariant(text);
}

/**
 * Whether the blanks around the commas are those of the writer, exactly one on each side of each, and
 * every further blank belongs to an element. Other white space only stands in texts written by hand.
 */
bool isWritersList(QStringView text)
{
    qsizetype previous = -2;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace() && text[i] != Blank)
            return false;
        if (text[i] != Comma)
            continue;
        const bool bOwnBlanks =
            i >= previous + 3 && text[i - 1] == Blank && i + 1 < text.size() && text[i + 1] == Blank;
        if (!bOwnBlanks)
            return false;
        previous = i;
    }
    return true;
}

QVector<QStringView> listPieces(QStringView text)
{
    const bool bWritersList = isWritersList(text);
    QVector<QStringView> pieces;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != Comma)
            continue;
        const qsizetype leading = bWritersList && start > 0 ? 1 : 0;
        const qsizetype trailing = bWritersList && i < text.size() ? 1 : 0;
        const QStringView piece = text.mid(start + leading, i - trailing - start - leading);
        pieces.append(bWritersList ? piece : piece.trimmed());
        start = i + 1;
    }
    return pieces;
}

QVariant decodedList(QStringView text)
{
    QVariantList values;
    QStringList texts;
    const QVector<QStringView> pieces = listPieces(text);
    for (const QStringView piece : pieces) {
        const QVariant value = decodeSingle(XmlTextCodec::unescaped(piece));
        if (value.userType() == QMetaType::QString)
            texts.append(value.toString());
        values.append(value);
    }
    return texts.size() == values.size() ? QVariant(texts) : QVariant(values);
}

} // namespace

bool appendEncoded(QByteArray &out, const QVariant &value)
{
    const int type = value.userType();
    const bool bStrings = type == QMetaType::QStringList;
    const bool bList = bStrings || (type == QMetaType::QVariantList && value.toList().size() != 1);
    if (bList && value.toList().isEmpty()) {
        XmlTextCodec::appendEscapedValue(out, QString(EmptyList));
        return true;
    }
    if (bStrings) {
        appendStringList(out, value.toStringList());
        return true;
    }
    if (bList)
        return appendList(out, value.toList());
    QString text;
    if (!encodeSingle(value, text))
        return false;
    XmlTextCodec::appendEscapedValue(out, text);
    return true;
}

QVariant decoded(QStringView text)
{
    for (const QChar c : text) {
        if (c == Comma)
            return decodedList(text);
    }
    return decodeSingle(XmlTextCodec::unescaped(text));
}

} // namespace PYXRuntime::XmlValueCodec
