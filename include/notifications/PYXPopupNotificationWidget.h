// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QPointer>
#include <QtCore/QSequentialAnimationGroup>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace PYXRuntime {

class PopupContent;
class PopupInset;

/**
 * A small frameless box with a pixmap and a text that fades in, stays and fades out over a window.
 *
 * It never takes the focus, lets the mouse through, is announced to assistive technology, and follows font
 * and palette. The text is plain; a long one is wrapped, a very long one elided. Where the system gives
 * windows neither a place nor an opacity (Wayland), this widget stays hidden, and what it shows is painted
 * inside the window it would have been centred over.
 *
 * The GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXPopupNotificationWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXPopupNotificationWidget)
    Q_PROPERTY(qreal insetOpacity READ _insetOpacity WRITE _setInsetOpacity)
public:
    explicit PYXPopupNotificationWidget(QWidget *parent = nullptr);
    ~PYXPopupNotificationWidget() override;

    /**
     * Shows the box, from the beginning if it is being shown; finished() then comes once. Times are in
     * milliseconds; one of zero or less is replaced by 500, 1000 and 500.
     * @param parent what the box is centred over: the frame of a window, or the area of another widget; if
     * null, the active window, else the desktop. It may go while the box is shown.
     */
    void popup(int fadeInMs, int showMs, int fadeOutMs, QWidget *parent);
    void popup(int showMs, QWidget *parent);
    void popup(QWidget *parent);
    void popup();

    void setText(const QString &text);
    QString text() const { return m_text; }

    /** A large pixmap is shown scaled down; a null one brings the default back. */
    void setPixmap(const QPixmap &pixmap);
    /** The pixmap that was set; else the default one, an "i" in the palette's
     * highlight colour. */
    QPixmap pixmap() const;

    /** Whether nothing is being shown. */
    bool isFinished() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /** The box has faded out. */
    void finished();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    PopupContent _content() const;
    qreal _insetOpacity() const;
    void _setInsetOpacity(qreal opacity);
    void _stop();
    void _place(const QWidget *parent);
    void _placeInset(QWidget *parent);
    void _animate(int fadeInMs, int showMs, int fadeOutMs, const QByteArray &property);
    void _sl_animation_finished();

    QString m_text;
    QPixmap m_pixmap;
    QPointer<QSequentialAnimationGroup> m_animation;
    QPointer<PopupInset> m_inset;
};

} // namespace PYXRuntime
