// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

namespace PYXRuntime {

class StreamCursor;

/**
 * Looks through the bytes of a streamed QVariant before QVariant loads them. QVariant believes what it
 * reads: it reserves whatever a count claims, recurses as deep as the bytes say and takes pointers from
 * them. What passes here does not do that.
 *
 * Known are the types that QtCore and QtGui can stream, but QEasingCurve (it streams the address of a
 * function). A registered type of the application is known too; its own operator reads its bytes and has
 * to bear whatever they are. Pixmaps are unknown where no QGuiApplication could hold them.
 */
class VariantStreamChecker final
{
public:
    /**
     * @p streamVersion from QDataStream::Qt_4_0 to Qt_5_15; with any other nothing passes, and with those of
     * Qt 4.2 to 4.5 no type of QtGui.
     */
    explicit VariantStreamChecker(QDataStream::Version streamVersion);

    /** Whether @p bytes are one well-formed QVariant and nothing more. */
    bool accepts(const QByteArray &bytes) const;

    /** Length of the QVariant that starts at @p offset; -1 where there is no well-formed one. */
    int variantLength(const QByteArray &bytes, int offset) const;

    /** Length of the QHash<QString, QVariant> that starts at @p offset; -1 where there is no well-formed one.
     */
    int hashLength(const QByteArray &bytes, int offset) const;

private:
    bool _isKnownVersion() const;
    bool _walkVariant(StreamCursor &cursor, int level) const;
    bool _walkType(StreamCursor &cursor, int typeId, int level) const;
    bool _walkContainer(StreamCursor &cursor, int typeId, int level) const;
    bool _walkNamedType(StreamCursor &cursor, int level) const;
    bool _walkStatusHash(StreamCursor &cursor, int level) const;
    bool _walkUserType(StreamCursor &cursor, int typeId) const;

    const QDataStream::Version m_version;
};

} // namespace PYXRuntime
