// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PopupContent.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace PYXRuntime {
namespace {

constexpr int CharactersPerLine = 50;
constexpr std::size_t MaximumLines = 10;
/** More than fits; what is behind is not even looked at. */
constexpr int MaximumCharacters = 4 * CharactersPerLine * int(MaximumLines);
constexpr int DefaultPixmapLines = 2;
constexpr int MaximumPixmapLines = 5;
const QChar Ellipsis(0x2026);

QColor mixed(const QColor &ground, const QColor &ink, double share)
{
    const auto mix = [share](double from, double to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(ground.redF(), ink.redF()), mix(ground.greenF(), ink.greenF()),
                            mix(ground.blueF(), ink.blueF()));
}

} // namespace

PopupContent::PopupContent(const QString &text, const QPixmap &pixmap, const QWidget *widget)
    : m_pixmap(pixmap.isNull() ? defaultPixmap(widget) : pixmap)
    , m_lineHeight(widget->fontMetrics().lineSpacing())
    , m_maximumWidth(widget->fontMetrics().averageCharWidth() * CharactersPerLine)
    , m_margin(m_lineHeight * 2 / 3)
{
    _breakLines(text, widget);
    _fitPixmap(widget);
    const int gap = m_pixmapSize.isEmpty() || m_textSize.isEmpty() ? 0 : m_margin;
    m_size = QSize(m_pixmapSize.width() + gap + m_textSize.width(),
                   qMax(m_pixmapSize.height(), m_textSize.height())) +
             QSize(2 * m_margin, 2 * m_margin);
}

QPixmap PopupContent::defaultPixmap(const QWidget *widget)
{
    const int extent = widget->fontMetrics().lineSpacing() * DefaultPixmapLines;
    const QIcon icon = widget->style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, widget);
    QPixmap pixmap = icon.pixmap(QSize(extent, extent) * widget->devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget->devicePixelRatioF());
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
        bMore = m_lines.size() + 1 < MaximumLines;
        if (bMore || (isLast && end == paragraph.size()))
            _append(paragraph.mid(line.textStart(), line.textLength()).trimmed(), widget);
        else
            _elideLastLine(paragraph.mid(line.textStart()), widget);
    }
    layout.endLayout();
    if (paragraph.isEmpty() && !isLast)
        _append(QString(), widget);
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
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
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
    QRect line = place(m_textSize, m_pixmapSize.isEmpty() ? Qt::AlignLeft : Qt::AlignRight);
    for (const struLine &each : m_lines) {
        line.setHeight(m_lineHeight);
        painter->setLayoutDirection(each.bRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(line, Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft, each.text);
        line.translate(0, m_lineHeight);
    }
}

} // namespace PYXRuntime
