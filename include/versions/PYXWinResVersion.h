// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"
#include "PYXVersion.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QScopedPointer>
#include <QtCore/QString>

/** PYXFixedFileInfo.h has the fields. */
struct tagVS_FIXEDFILEINFO;
using VS_FIXEDFILEINFO = tagVS_FIXEDFILEINFO;

namespace PYXRuntime {

struct struVersionData;

/**
 * The version resource of an executable or library file for Windows (PE, 32 and 64 bit), read on every system
 * and with the same answers as the version functions of Windows. Language files beside it (*.mui) are not
 * looked at.
 *
 * Of several version resources the one numbered 1 counts; of several languages the neutral one, else one of
 * the user's and the system's (Windows only), else American English, else the first in the file.
 *
 * A running program that is no such file, as on Linux, answers from QCoreApplication::applicationVersion():
 * as "FileVersion" and "ProductVersion" of one neutral language, and in the fixed part if it is a version.
 *
 * The file is read once, when first asked about; no operation reports an error but by its result. One thread
 * at a time.
 */
class PYXRUNTIME_EXPORT PYXWinResVersion final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXWinResVersion)
public:
    enum eVersionType : int { ekFileVersion = 0, ekProductVersion = 1 };
    Q_ENUM(eVersionType)

    struct LanguageCodePage
    {
        quint16 language = 0; ///< Windows' number, for instance 0x0409
        quint16 codePage = 0; ///< 0x04B0 is Unicode

        friend bool operator==(LanguageCodePage a, LanguageCodePage b)
        {
            return a.language == b.language && a.codePage == b.codePage;
        }
        friend bool operator!=(LanguageCodePage a, LanguageCodePage b) { return !(a == b); }
    };

    /** An empty path means the running program. */
    explicit PYXWinResVersion(const QString &filePath, QObject *parent = nullptr);
    ~PYXWinResVersion() override;

    QString filePath() const { return m_filePath; }
    /** Whether there is a version resource. */
    bool didLoad() const;
    /** Null where there is none. Good as long as this object. */
    const VS_FIXEDFILEINFO *fixedFileInfo() const;
    /** The languages that the resource claims to have texts in, in its own order. */
    QList<LanguageCodePage> locales() const;

    /** Empty where there is none. The case of names does not matter. */
    QString getString(LanguageCodePage locale, const QString &name) const;
    QString getStringInFirstLanguage(const QString &name) const;

    /** From the fixed part, which need not say the same as the texts. */
    bool getFixedFileInfoVersion(eVersionType type, PYXVersion &version) const;

    /**
     * All of these read the text "FileVersion" or "ProductVersion", in the first language where none is
     * given.
     * @return false where there is no such text (the result is left alone then) or where numbers are asked
     * for and it holds no version.
     */
    bool getVersion(eVersionType type, quint16 &major, quint16 &minor, quint16 &build, quint16 &priv) const;
    /** In Latin-1. */
    bool getVersion(eVersionType type, QByteArray &text) const;
    bool getVersion(eVersionType type, PYXVersion &version) const;
    bool getVersion(eVersionType type, QString &text) const;
    bool getVersion(eVersionType type, LanguageCodePage locale, PYXVersion &version) const;
    bool getVersion(eVersionType type, LanguageCodePage locale, QString &text) const;
    /** An invalid version, and *ok false, where getVersion() fails. */
    PYXVersion getPYXVersion(eVersionType type, bool *ok = nullptr) const;

private:
    const struVersionData &_data() const;

    QString m_filePath;
    bool m_bRunningProgram;
    mutable QScopedPointer<struVersionData> m_data;
};

} // namespace PYXRuntime
