// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QString>

namespace PYXRuntime {

/** Care for secrets in texts. Any thread, as far as the texts themselves allow it. */
class PYXRUNTIME_EXPORT PYXStringHelpers final
{
public:
    PYXStringHelpers() = delete;

    /**
     * Overwrites the characters with random ones where they lie, then clears the text.
     *
     * The buffer is not detached: every text that shares it reads random characters afterwards. Whoever
     * goes on using a secret must hold a trueCopy() of it. A buffer that does not belong to QString (a
     * literal, QString::fromRawData) is left as it is; the text is only cleared.
     */
    static void safeOverwriteAndClear(QString &text);

    /** A copy that shares its buffer with no other text; null stays null. */
    static QString trueCopy(const QString &text);

    /**
     * A form of the text that does not show it at a glance: the Base64 text of its compressed UTF-8 bytes.
     * It keeps nobody from reading it who wants to. What is made on the way is wiped, apart from what the
     * compression leaves in freed memory of its own.
     */
    static QString obfuscateString(const QString &text);
    /** The text that was obfuscated; an empty one for a text that obfuscateString() does not write. */
    static QString unobfuscateString(const QString &obfuscated);
};

} // namespace PYXRuntime
