// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TranslationFile.h"

#include "QmFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace PYXRuntime {
namespace {

const QLatin1String Suffix(".qm");
constexpr qint64 MaximumFileSize = 64LL * 1024 * 1024;
// Real files name a handful of others, which name none; one that names itself must end somewhere.
constexpr int MaximumDepth = 1;
constexpr int MaximumDependencies = 32;

bool isReadableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isReadable() && file.isFile();
}

/** With and without suffix, then the same with the name cut before its last "_" or ".", as QTranslator does.
 */
QString findFile(QString name, const QString &directory)
{
    const QString prefix =
        QFileInfo(name).isRelative() && !directory.isEmpty() ? directory + QLatin1Char('/') : QString();
    while (true) {
        for (const QString &path : {prefix + name + Suffix, prefix + name}) {
            if (isReadableFile(path))
                return path;
        }
        const int cut = qMax(name.lastIndexOf(QLatin1Char('_')), name.lastIndexOf(QLatin1Char('.')));
        if (cut <= 0)
            return {};
        name.truncate(cut);
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly) || file.size() > MaximumFileSize)
        return {};
    return file.read(file.size()); // not more: it is allocated before it is read
}

} // namespace

TranslationFile::~TranslationFile()
{
    // The base class would do it when the texts are gone already.
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::removeTranslator(this);
}

std::unique_ptr<TranslationFile> TranslationFile::open(const QString &stem, const QString &locale,
                                                       const QString &directory)
{
    return _open(stem + QLatin1Char('_') + locale, directory, 0);
}

std::unique_ptr<TranslationFile> TranslationFile::_open(const QString &name, const QString &directory,
                                                        int depth)
{
    const std::optional<struQmFile> file = checkedQmFile(contentOf(findFile(name, directory)));
    if (!file)
        return nullptr;
    std::unique_ptr<TranslationFile> opened(new TranslationFile);
    opened->m_content = file->content;
    if (file->bHasMessages && !opened->load(reinterpret_cast<const uchar *>(opened->m_content.constData()),
                                            opened->m_content.size()))
        return nullptr;
    return opened->_openDependencies(file->dependencies, directory, depth) ? std::move(opened) : nullptr;
}

bool TranslationFile::_openDependencies(const QStringList &names, const QString &directory, int depth)
{
    if (names.isEmpty())
        return true;
    if (depth == MaximumDepth || names.size() > MaximumDependencies)
        return false;
    for (const QString &name : names) {
        m_dependencies.push_back(_open(name, directory, depth + 1));
        if (m_dependencies.back() == nullptr)
            return false;
    }
    return true;
}

bool TranslationFile::isEmpty() const
{
    return m_dependencies.empty() && QTranslator::isEmpty();
}

QString TranslationFile::translate(const char *context, const char *sourceText, const char *disambiguation,
                                   int n) const
{
    QString text = QTranslator::translate(context, sourceText, disambiguation, n);
    if (!text.isNull())
        return text;
    for (const auto &dependency : m_dependencies) {
        QString found = dependency->translate(context, sourceText, disambiguation, n);
        if (!found.isNull())
            return found;
    }
    return {};
}

} // namespace PYXRuntime
