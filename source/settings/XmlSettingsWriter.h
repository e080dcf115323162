// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>

#include <vector>

class QIODevice;

namespace PYXRuntime {

class XmlSettingsNode;

/** Writes maps of settings as XML. */
class XmlSettingsWriter final
{
public:
    /**
     * The write callback of the format.
     * @return false where the device did not take all bytes, so that QSettings keeps the old file.
     */
    static bool write(QIODevice &device, const QSettings::SettingsMap &map);

    /** The bytes of a whole file for a classified tree. */
    static QByteArray document(const XmlSettingsNode &root);

private:
    void _emitNode(const XmlSettingsNode &node, int indentation);
    void _emitOpening(const XmlSettingsNode &node, const QByteArray &tag, int indentation);
    void _emitValue(const XmlSettingsNode &node, int indentation);
    void _beginLine(int indentation);
    QString _key() const;

    QByteArray m_bytes;
    std::vector<const XmlSettingsNode *> m_path; ///< from the root to the node being written
};

} // namespace PYXRuntime
