// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QPointer>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace PYXRuntime {

class PopupContent;

/** A pop-up painted inside a window, which owns it; it stays in the middle of that window or a part of it. */
class PopupInset final : public QWidget
{
    Q_OBJECT
public:
    /** @param area the part; if null, all of @p host */
    PopupInset(QWidget *host, const QWidget *area, const QString &text, const QPixmap &pixmap);

    qreal opacity() const { return m_opacity; }
    void setOpacity(qreal opacity);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    PopupContent _content() const;
    void _place();

    QPointer<const QWidget> m_area;
    QString m_text;
    QPixmap m_pixmap;
    qreal m_opacity = 0.0;
};

} // namespace PYXRuntime
