// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PopupInset.h"

#include "PopupContent.h"
#include "PopupPlace.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>

namespace PYXRuntime {

PopupInset::PopupInset(QWidget *host, const QWidget *area, const QString &text, const QPixmap &pixmap)
    : QWidget(host)
    , m_area(area)
    , m_text(text)
    , m_pixmap(pixmap)
{
    setObjectName(QStringLiteral("PYXPopupNotificationInset"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(text);
    host->installEventFilter(this);
    _place();
}

void PopupInset::setOpacity(qreal opacity)
{
    m_opacity = opacity;
    update();
}

PopupContent PopupInset::_content() const
{
    return PopupContent(m_text, m_pixmap, parentWidget()->size(), this);
}

void PopupInset::_place()
{
    const auto *const host = parentWidget();
    QRect reference = host->rect();
    if (!m_area.isNull() && m_area->isVisible() && m_area->window() == host && m_area != host)
        reference = QRect(m_area->mapTo(host, QPoint()), m_area->size());
    setGeometry(centred(_content().size(), reference));
}

bool PopupInset::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        _place();
    return QWidget::eventFilter(watched, event);
}

void PopupInset::paintEvent(QPaintEvent * /*event*/)
{
    QPixmap layer(size() * devicePixelRatioF());
    layer.setDevicePixelRatio(devicePixelRatioF());
    layer.fill(Qt::transparent);
    {
        // As one picture: painted one over the other, half transparent, border and ground would mix.
        QPainter painter(&layer);
        painter.setFont(font());
        _content().paint(&painter, this);
    }
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    painter.drawPixmap(0, 0, layer);
}

} // namespace PYXRuntime
