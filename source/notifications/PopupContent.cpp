// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PopupContent.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace PYXRuntime {
namespace {

constexpr int CharactersPerLine = 50;
constexpr int MinimumCharactersPerLine = 8;
constexpr int MaximumLines = 10;
/** More than fits; what is behind is not even looked at. */
constexpr int MaximumCharacters = 4 * CharactersPerLine * MaximumLines;
constexpr int MaximumPixmapLines = 5;
const QChar Ellipsis(0x2026);

QColor mixed(const QColor &ground, const QColor &ink, double share)
{
    const auto mix = [share](double from, double to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(ground.redF(), ink.redF()), mix(ground.greenF(), ink.greenF()),
                            mix(ground.blueF(), ink.blueF()));
}

} // namespace

PopupContent::PopupContent(const QString &text, const QPixmap &pixmap, QSize available, const QWidget *widget)
    : m_pixmap(pixmap.isNull() ? defaultPixmap(widget) : pixmap)
    , m_lineHeight(qMax(1, widget->fontMetrics().lineSpacing()))
    , m_margin(m_lineHeight * 2 / 3)
{
    _fitPixmap(widget);
    const QFontMetrics metrics = widget->fontMetrics();
    const int beside = m_pixmapSize.width() + 3 * m_margin;
    m_maximumWidth = qMax(metrics.averageCharWidth() * MinimumCharactersPerLine,
                          qMin(metrics.averageCharWidth() * CharactersPerLine, available.width() - beside));
    const int roomForLines = (available.height() - 2 * m_margin) / m_lineHeight;
    m_maximumLines = std::size_t(qBound(1, roomForLines, MaximumLines));
    _breakLines(text, widget);
    const int gap = m_textSize.isEmpty() ? 0 : m_margin;
    m_size = QSize(m_pixmapSize.width() + gap + m_textSize.width(),
                   qMax(m_pixmapSize.height(), m_textSize.height())) +
             QSize(2 * m_margin, 2 * m_margin);
}

QPixmap PopupContent::defaultPixmap(const QWidget *widget)
{
    const double ratio = widget->devicePixelRatioF();
    const int extent = widget->fontMetrics().lineSpacing() * 3 / 2;
    QPixmap pixmap(qRound(extent * ratio), qRound(extent * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(extent / 24.0, extent / 24.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(widget->palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawEllipse(QRectF(1, 1, 22, 22));
    painter.setBrush(widget->palette().color(QPalette::Active, QPalette::HighlightedText));
    painter.drawEllipse(QRectF(10.25, 5.25, 3.5, 3.5));
    painter.drawRoundedRect(QRectF(10.5, 10.5, 3, 8.5), 1, 1);
    return pixmap;
}

QStringList PopupContent::lines() const
{
    QStringList texts;
    for (const struLine &line : m_lines)
        texts += line.text;
    return texts;
}

void PopupContent::_breakLines(QString text, const QWidget *widget)
{
    const bool bCut = text.size() > MaximumCharacters;
    text.truncate(MaximumCharacters);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\t', u' ').replace(u'\0', u' ');
    const QStringList paragraphs = text.split(u'\n');
    for (int i = 0; i < paragraphs.size(); ++i) {
        const bool bLast = i == paragraphs.size() - 1 && !bCut;
        if (!_breakParagraph(paragraphs[i], widget, bLast))
            break;
    }
    m_textSize.setHeight(int(m_lines.size()) * m_lineHeight);
}

bool PopupContent::_breakParagraph(const QString &paragraph, const QWidget *widget, bool isLast)
{
    QTextLayout layout(paragraph, widget->font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    bool bMore = true;
    for (QTextLine line = layout.createLine(); line.isValid() && bMore; line = layout.createLine()) {
        line.setLineWidth(m_maximumWidth);
        const int end = line.textStart() + line.textLength();
        bMore = m_lines.size() + 1 < m_maximumLines;
        if (bMore || (isLast && end == paragraph.size()))
            _append(paragraph.mid(line.textStart(), line.textLength()).trimmed(), widget);
        else
            _elideLastLine(paragraph.mid(line.textStart()), widget);
    }
    layout.endLayout();
    return bMore;
}

void PopupContent::_append(const QString &text, const QWidget *widget)
{
    m_lines.push_back({text, text.isRightToLeft()});
    m_textSize.setWidth(qMax(m_textSize.width(), widget->fontMetrics().horizontalAdvance(text)));
}

void PopupContent::_elideLastLine(const QString &rest, const QWidget *widget)
{
    const QString cut = rest.trimmed() + Ellipsis;
    _append(widget->fontMetrics().elidedText(cut, Qt::ElideRight, m_maximumWidth), widget);
}

void PopupContent::_fitPixmap(const QWidget *widget)
{
    const int limit = m_lineHeight * MaximumPixmapLines;
    const double ratio = m_pixmap.devicePixelRatioF();
    m_pixmapSize = (QSizeF(m_pixmap.size()) / ratio).toSize();
    if (m_pixmapSize.width() <= limit && m_pixmapSize.height() <= limit)
        return;
    m_pixmapSize.scale(limit, limit, Qt::KeepAspectRatio);
    const double screenRatio = widget->devicePixelRatioF();
    m_pixmap = m_pixmap.scaled((QSizeF(m_pixmapSize) * screenRatio).toSize(), Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
}

void PopupContent::paint(QPainter *painter, const QWidget *widget) const
{
    // Window and its text are the one pair that every palette keeps apart; tool-tip colours are not.
    const QPalette palette = widget->palette();
    const QColor &ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor &ink = palette.color(QPalette::Active, QPalette::WindowText);
    const QRect box(QPoint(), widget->size());

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setPen(Qt::NoPen);
    painter->setBrush(mixed(ground, ink, 0.6));
    painter->drawRoundedRect(box, radius(), radius());
    painter->setBrush(mixed(ground, ink, 0.06));
    painter->drawRoundedRect(box.adjusted(1, 1, -1, -1), radius() - 1, radius() - 1);

    const QRect inner = box.adjusted(m_margin, m_margin, -m_margin, -m_margin);
    const auto place = [&](QSize size, Qt::Alignment side) {
        return QStyle::alignedRect(widget->layoutDirection(), side | Qt::AlignVCenter, size, inner);
    };
    painter->drawPixmap(place(m_pixmapSize, Qt::AlignLeft), m_pixmap);
    painter->setPen(ink);
    QRect line = place(m_textSize, Qt::AlignRight);
    for (const struLine &each : m_lines) {
        line.setHeight(m_lineHeight);
        painter->setLayoutDirection(each.bRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(line, int(Qt::TextSingleLine) | int(Qt::AlignVCenter | Qt::AlignLeft), each.text);
        line.translate(0, m_lineHeight);
    }
}

} // namespace PYXRuntime
