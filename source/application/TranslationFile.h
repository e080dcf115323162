// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QTranslator>

#include <memory>
#include <vector>

namespace PYXRuntime {

/**
 * A translator that only takes sound files, and holds them in memory: a file that is replaced while the
 * program runs changes nothing. Finds files as QTranslator::load() does.
 */
class TranslationFile final : public QTranslator
{
public:
    ~TranslationFile() override;

    /** The file "<stem>_<locale>" in the directory. @return null if there is none, or it is damaged. */
    static std::unique_ptr<TranslationFile> open(const QString &stem, const QString &locale,
                                                 const QString &directory);

    bool isEmpty() const override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

private:
    TranslationFile() = default;
    static std::unique_ptr<TranslationFile> _open(const QString &name, const QString &directory, int depth);
    bool _openDependencies(const QStringList &names, const QString &directory, int depth);

    QByteArray m_content;
    std::vector<std::unique_ptr<TranslationFile>> m_dependencies;
};

} // namespace PYXRuntime
