// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

class QWidget;

namespace PYXRuntime::PageText {

/** What a user can read on a page: labels, titles, tool tips; without mnemonics and mark-up. */
QString of(const QWidget &page);

/** What is looked for, word by word and regardless of case. */
class Words final
{
public:
    explicit Words(const QString &text);

    bool isEmpty() const { return m_words.isEmpty(); }
    /** Whether every word is in the title or on the page. */
    bool areIn(const QString &title, const QWidget &page) const;

private:
    QStringList m_words;
};

} // namespace PYXRuntime::PageText
