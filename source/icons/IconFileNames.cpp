// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "IconFileNames.h"

#include "PYXIconLoader.h"

#include <QtCore/QFileInfo>

namespace PYXRuntime {
namespace {

struct struModeWord
{
    QIcon::Mode mode;
    QLatin1String word;
};

struct struStateWord
{
    QIcon::State state;
    QLatin1String word;
};

const struModeWord ModeWords[] = {{QIcon::Normal, QLatin1String("normal")},
                                  {QIcon::Disabled, QLatin1String("disabled")},
                                  {QIcon::Active, QLatin1String("active")},
                                  {QIcon::Selected, QLatin1String("selected")}};
const struStateWord StateWords[] = {{QIcon::On, QLatin1String("on")}, {QIcon::Off, QLatin1String("off")}};

bool isSeparator(QChar c)
{
    return c == QLatin1Char('_') || c == QLatin1Char('.') || c == QLatin1Char('-');
}

int endOfDigits(const QString &text, int from)
{
    while (from < text.size() && text.at(from).isDigit())
        ++from;
    return from;
}

/** The length of a separator and a size ("_32x32") that begin there; else 0. */
int sizeTagLength(const QString &text, int at)
{
    const int x = endOfDigits(text, at + 1);
    if (x == at + 1 || x >= text.size() || text.at(x).toLower() != QLatin1Char('x'))
        return 0;
    const int end = endOfDigits(text, x + 1);
    return end == x + 1 ? 0 : end - at;
}

/** Removes, from left to right, what @p tagLength finds at a separator. */
template <typename Length>
void removeTags(QString &text, Length tagLength)
{
    for (int i = 0; i < text.size();) {
        const int length = isSeparator(text.at(i)) ? tagLength(text, i) : 0;
        if (length == 0)
            ++i;
        else
            text.remove(i, length);
    }
}

void removeWord(QString &text, QLatin1String word)
{
    removeTags(text, [word](const QString &where, int at) {
        return where.midRef(at + 1).startsWith(word, Qt::CaseInsensitive) ? word.size() + 1 : 0;
    });
}

} // namespace

QHash<QIcon::Mode, QString> _iconModeNames()
{
    QHash<QIcon::Mode, QString> names;
    for (const struModeWord &word : ModeWords)
        names.insert(word.mode, word.word);
    return names;
}

QHash<QIcon::State, QString> _iconStateNames()
{
    QHash<QIcon::State, QString> names;
    for (const struStateWord &word : StateWords)
        names.insert(word.state, word.word);
    return names;
}

QString _iconModeName(QIcon::Mode mode)
{
    return _iconModeNames().value(mode, QStringLiteral("unknown"));
}

QString _iconStateName(QIcon::State state)
{
    return _iconStateNames().value(state, QStringLiteral("unknown"));
}

const QVector<struIconFileTag> &iconFileTags()
{
    static const QVector<struIconFileTag> tags = [] {
        const QLatin1Char separator('_');
        QVector<struIconFileTag> pairs;
        for (const struModeWord &mode : ModeWords) {
            for (const struStateWord &state : StateWords)
                pairs += {{mode.mode, state.state},
                          separator + mode.word,
                          separator + state.word,
                          mode.word + (separator + state.word)};
        }
        return pairs;
    }();
    return tags;
}

QString _baseName(const QString &path)
{
    QString name = QFileInfo(path).baseName();
    removeTags(name, sizeTagLength);
    for (const struModeWord &word : ModeWords)
        removeWord(name, word.word);
    for (const struStateWord &word : StateWords)
        removeWord(name, word.word);
    return name;
}

} // namespace PYXRuntime
