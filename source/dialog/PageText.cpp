// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PageText.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>

#include <algorithm>

namespace PYXRuntime::PageText {
namespace {

QString withoutMarkUp(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

// "&Server" is found by "server", "R&&D" by "r&d".
QString withoutMnemonics(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&'))
            text.remove(i, 1);
    }
    return text;
}

QString ownText(const QWidget &widget)
{
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() != nullptr ? withoutMnemonics(label->text()) : withoutMarkUp(label->text());
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return withoutMnemonics(button->text());
    if (const auto *const group = qobject_cast<const QGroupBox *>(&widget))
        return withoutMnemonics(group->title());
    QString texts;
    if (const auto *const tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts += withoutMnemonics(tabs->tabText(i)) + QLatin1Char('\n');
    }
    return texts;
}

} // namespace

QString of(const QWidget &page)
{
    QString text = withoutMarkUp(page.toolTip()) + QLatin1Char('\n');
    const auto widgets = page.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        text += ownText(*widget) + QLatin1Char('\n');
        text += withoutMarkUp(widget->toolTip()) + QLatin1Char('\n');
    }
    return text;
}

Words::Words(const QString &text)
    : m_words(text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
{}

bool Words::areIn(const QString &title, const QWidget &page) const
{
    if (m_words.isEmpty())
        return true;
    const QString text = title + QLatin1Char('\n') + of(page);
    return std::all_of(m_words.begin(), m_words.end(),
                       [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace PYXRuntime::PageText
