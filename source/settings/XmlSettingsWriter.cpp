// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlSettingsWriter.h"

#include "PYXTraceWrapper.h"
#include "XmlSettingsNode.h"
#include "XmlTextCodec.h"
#include "XmlValueCodec.h"

#include <QtCore/QFileDevice>
#include <QtCore/QtDebug>

#include <algorithm>

namespace PYXRuntime {
namespace {

constexpr char SourceTag[] = "source\\XmlSettingsWriter";
constexpr char FileStart[] = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\" ?>";
const QLatin1String NoName("unnamed");
constexpr int IndentationStep = 4;

QByteArray tagOf(const XmlSettingsNode &node)
{
    switch (node.kind()) {
    case XmlSettingsNode::ekRoot:
        return node.name().toLatin1();
    case XmlSettingsNode::ekEntry:
        return QByteArrayLiteral("entry");
    case XmlSettingsNode::ekGroup:
        return QByteArrayLiteral("group");
    case XmlSettingsNode::ekArray:
        return QByteArrayLiteral("array");
    case XmlSettingsNode::ekItem:
        return QByteArrayLiteral("item");
    case XmlSettingsNode::ekNode:
        break;
    }
    qWarning("There is still a <Node> Node");
    return QByteArrayLiteral("node");
}

bool isEntry(const XmlSettingsNode &node)
{
    return node.kind() == XmlSettingsNode::ekEntry || node.kind() == XmlSettingsNode::ekNode;
}

} // namespace

bool XmlSettingsWriter::write(QIODevice &device, const QSettings::SettingsMap &map)
{
    XmlSettingsNode root;
    for (auto it = map.constBegin(); it != map.constEnd(); ++it)
        root.insert(it.key(), it.value());
    root.classify();
    const QByteArray bytes = document(root);
    if (device.write(bytes) != bytes.size())
        return false;
    // What is still buffered is only lost or saved when QSettings no longer looks.
    auto *const file = qobject_cast<QFileDevice *>(&device);
    return file == nullptr || file->flush();
}

QByteArray XmlSettingsWriter::document(const XmlSettingsNode &root)
{
    XmlSettingsWriter writer;
    writer.m_bytes = FileStart;
    writer._emitNode(root, 0);
    writer.m_bytes.append('\n');
    return writer.m_bytes;
}

void XmlSettingsWriter::_beginLine(int indentation)
{
    const int start = m_bytes.size();
    m_bytes.resize(start + 1 + indentation);
    char *const line = m_bytes.data() + start;
    *line = '\n';
    std::fill_n(line + 1, indentation, ' ');
}

/** The key of the node that is being written, for messages. */
QString XmlSettingsWriter::_key() const
{
    QStringList segments;
    for (const XmlSettingsNode *node : m_path)
        segments.append(node->name());
    return segments.mid(1).join(QLatin1Char('/'));
}

void XmlSettingsWriter::_emitNode(const XmlSettingsNode &node, int indentation)
{
    m_path.push_back(&node);
    const QByteArray tag = tagOf(node);
    _emitOpening(node, tag, indentation);
    if (node.value().isValid())
        _emitValue(node, indentation + IndentationStep);
    for (const auto &child : node.children())
        _emitNode(*child, indentation + IndentationStep);
    _beginLine(indentation);
    m_bytes.append("</").append(tag).append('>');
    m_path.pop_back();
}

void XmlSettingsWriter::_emitOpening(const XmlSettingsNode &node, const QByteArray &tag, int indentation)
{
    _beginLine(indentation);
    m_bytes.append('<').append(tag);
    const QMap<QString, QString> &attributes = node.attributes();
    for (auto it = attributes.constBegin(); it != attributes.constEnd(); ++it) {
        m_bytes.append(' ').append(it.key().toLatin1()).append(" = \"");
        XmlTextCodec::appendEscapedKey(m_bytes, it.value());
        m_bytes.append('"');
    }
    m_bytes.append('>');
    if (!isEntry(node))
        return;
    _beginLine(indentation + IndentationStep);
    m_bytes.append("<name>");
    XmlTextCodec::appendEscapedValue(m_bytes, node.name().isEmpty() ? QString(NoName) : node.name());
    m_bytes.append("</name>");
}

void XmlSettingsWriter::_emitValue(const XmlSettingsNode &node, int indentation)
{
    const int lineStart = m_bytes.size();
    _beginLine(indentation);
    m_bytes.append("<value>");
    if (!XmlValueCodec::appendEncoded(m_bytes, node.value())) {
        m_bytes.truncate(lineStart);
        const QString message = QStringLiteral("The value of the settings key \"%1\" is not saved: its type "
                                               "\"%2\" cannot be stored in a file.");
        PYXTraceWrapper::staticTraceWarn(message.arg(_key(), QLatin1String(node.value().typeName())),
                                         SourceTag, ushort(__LINE__));
        return;
    }
    m_bytes.append("</value>");
}

} // namespace PYXRuntime
