// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXPopupNotificationWidget.h"

#include "PopupAccessible.h"
#include "PopupContent.h"
#include "PopupInset.h"
#include "PopupPlace.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QPropertyAnimation>
#include <QtGui/QBitmap>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

#include <limits>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXPopupNotificationWidget";
constexpr int DefaultFadeMs = 500;
constexpr int DefaultShowMs = 1000;
/** The three together still fit into an int. */
constexpr int MaximumMs = std::numeric_limits<int>::max() / 3;

int orDefault(int time, int defaultTime)
{
    return time <= 0 ? defaultTime : qMin(time, MaximumMs);
}

Qt::WindowFlags popupFlags()
{
    return Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus |
           Qt::WindowTransparentForInput;
}

} // namespace

PYXPopupNotificationWidget::PYXPopupNotificationWidget(QWidget *parent)
    : QWidget(parent, popupFlags())
{
    installPopupAccessibility();
    setObjectName(QStringLiteral("PYXPopupNotificationWidget"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_QuitOnClose, false);
}

PYXPopupNotificationWidget::~PYXPopupNotificationWidget()
{
    delete m_inset;
}

void PYXPopupNotificationWidget::popup(int fadeInMs, int showMs, int fadeOutMs, QWidget *parent)
{
    _stop();
    const bool bOwnWindow = canPlaceAndFadeWindows();
    if (bOwnWindow)
        _place(parent);
    else
        _placeInset(parent);
    _animate(orDefault(fadeInMs, DefaultFadeMs), orDefault(showMs, DefaultShowMs),
             orDefault(fadeOutMs, DefaultFadeMs), bOwnWindow ? "windowOpacity" : "insetOpacity");
}

void PYXPopupNotificationWidget::popup(int showMs, QWidget *parent)
{
    popup(DefaultFadeMs, showMs, DefaultFadeMs, parent);
}

void PYXPopupNotificationWidget::popup(QWidget *parent)
{
    popup(DefaultShowMs, parent);
}

void PYXPopupNotificationWidget::popup()
{
    popup(nullptr);
}

void PYXPopupNotificationWidget::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void PYXPopupNotificationWidget::setPixmap(const QPixmap &pixmap)
{
    m_pixmap = pixmap;
    updateGeometry();
    update();
}

QPixmap PYXPopupNotificationWidget::pixmap() const
{
    return m_pixmap.isNull() ? PopupContent::defaultPixmap(this) : m_pixmap;
}

bool PYXPopupNotificationWidget::isFinished() const
{
    return m_animation.isNull() || m_animation->state() == QAbstractAnimation::Stopped;
}

PopupContent PYXPopupNotificationWidget::_content() const
{
    const QScreen *const usedScreen = screen();
    const QSize room = usedScreen == nullptr ? maximumSize() : usedScreen->availableSize();
    return PopupContent(m_text, m_pixmap, room * 3 / 4, this);
}

QSize PYXPopupNotificationWidget::sizeHint() const
{
    return _content().size();
}

void PYXPopupNotificationWidget::_stop()
{
    if (!m_animation.isNull()) {
        m_animation->disconnect(this);
        m_animation->stop();
        m_animation->deleteLater();
        m_animation.clear();
    }
    delete m_inset;
    hide();
}

void PYXPopupNotificationWidget::_place(const QWidget *parent)
{
    ensurePolished();
    const QRect rectangle = centred(sizeHint(), popupReference(parent));
    setGeometry(rectangle);
    setWindowOpacity(0.0);
    show();
    raise();
    announcePopup(this);
}

void PYXPopupNotificationWidget::_placeInset(QWidget *parent)
{
    QWidget *const host = popupHost(parent);
    if (host == nullptr) {
        // A window of its own would take the focus here.
        PYXTraceWrapper::staticTraceInfo(m_text, TraceFile, __LINE__);
        return;
    }
    m_inset = new PopupInset(host, parent, m_text, m_pixmap);
    m_inset->show();
    m_inset->raise();
    announcePopup(m_inset);
}

void PYXPopupNotificationWidget::_animate(int fadeInMs, int showMs, int fadeOutMs, const QByteArray &property)
{
    const auto addFade = [&](int duration, double from, double to) {
        auto *const fade = new QPropertyAnimation(this, property, m_animation);
        fade->setDuration(duration);
        fade->setStartValue(from);
        fade->setEndValue(to);
        fade->setEasingCurve(QEasingCurve::Linear);
        m_animation->addAnimation(fade);
    };
    m_animation = new QSequentialAnimationGroup(this);
    addFade(fadeInMs, 0.0, 1.0);
    m_animation->addPause(showMs);
    addFade(fadeOutMs, 1.0, 0.0);
    connect(m_animation, &QAbstractAnimation::finished, this,
            &PYXPopupNotificationWidget::_sl_animation_finished);
    m_animation->start();
}

void PYXPopupNotificationWidget::_sl_animation_finished()
{
    // It still runs, while whoever hears of it may delete the widget.
    m_animation->setParent(QCoreApplication::instance());
    m_animation->deleteLater();
    m_animation.clear();
    delete m_inset;
    hide();
    Q_EMIT finished();
}

qreal PYXPopupNotificationWidget::_insetOpacity() const
{
    return m_inset.isNull() ? 0.0 : m_inset->opacity();
}

void PYXPopupNotificationWidget::_setInsetOpacity(qreal opacity)
{
    if (!m_inset.isNull())
        m_inset->setOpacity(opacity);
}

void PYXPopupNotificationWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    _content().paint(&painter, this);
}

void PYXPopupNotificationWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // A mask, since not every window system mixes a window with what is behind it.
    QBitmap mask(size());
    mask.clear();
    QPainter painter(&mask);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    const int radius = _content().radius();
    painter.drawRoundedRect(rect(), radius, radius);
    painter.end();
    setMask(mask);
}

void PYXPopupNotificationWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        QRect rectangle = geometry();
        setGeometry(centred(sizeHint(), rectangle));
    }
    update();
}

} // namespace PYXRuntime
