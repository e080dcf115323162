// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAddressEdit.h"

#include "AddressEditValidator.h"
#include "AddressText.h"

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace PYXRuntime {
namespace {

// The widest text, apart from a scope: digits are as wide as any.
const QLatin1String WidestIPv4("000.000.000.000");
const QLatin1String WidestIPv6("0000:0000:0000:0000:0000:0000:0000:0000");
// How many "x" QLineEdit makes room for.
constexpr int UsualLength = 17;

bool isSame(const QHostAddress &left, const QHostAddress &right)
{
    return left == right && left.scopeId() == right.scopeId();
}

} // namespace

PYXAddressEdit::PYXAddressEdit(QAbstractSocket::NetworkLayerProtocol protocol, QWidget *parent)
    : QLineEdit(parent)
    , m_validator(new AddressEditValidator(this))
    , m_sign(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition))
{
    m_validator->setProtocol(protocol);
    setValidator(m_validator);
    setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase | Qt::ImhPreferNumbers);
    connect(this, &QLineEdit::textChanged, this, &PYXAddressEdit::_sl_self_textChanged);
    connect(this, &QLineEdit::editingFinished, this, &PYXAddressEdit::_sl_self_editingFinished);
    connect(this, &QLineEdit::inputRejected, this, &PYXAddressEdit::_sl_self_inputRejected);
    _showValidity();
}

PYXAddressEdit::~PYXAddressEdit() = default;

bool PYXAddressEdit::setAddress(const QHostAddress &address)
{
    QHostAddress fitting = address;
    bool bIsMapped = false;
    const quint32 ipv4 = address.toIPv4Address(&bIsMapped);
    if (protocol() == QAbstractSocket::IPv4Protocol && bIsMapped)
        fitting.setAddress(ipv4);
    if (!address.isNull() && !m_validator->accepts(fitting))
        return false;
    if (!isSame(fitting, m_address) || fitting.isNull())
        setText(fitting.toString());
    return true;
}

QAbstractSocket::NetworkLayerProtocol PYXAddressEdit::protocol() const
{
    return m_validator->protocol();
}

void PYXAddressEdit::_setProtocol(QAbstractSocket::NetworkLayerProtocol protocol)
{
    if (protocol == m_validator->protocol() || protocol == QAbstractSocket::UnknownNetworkLayerProtocol)
        return;
    m_textOfProtocol.insert(m_validator->protocol(), text());
    m_validator->setProtocol(protocol);
    if (!m_validator->accepts(addressFromTypedText(text())))
        setText(m_textOfProtocol.value(protocol));
    updateGeometry();
    _sl_self_textChanged(text()); // the same text may be an address now
}

QSize PYXAddressEdit::sizeHint() const
{
    const QString widest = protocol() == QAbstractSocket::IPv4Protocol ? WidestIPv4 : WidestIPv6;
    QSize hint = QLineEdit::sizeHint();
    hint.rwidth() += fontMetrics().horizontalAdvance(widest) -
                     UsualLength * fontMetrics().horizontalAdvance(QLatin1Char('x'));
    // What the line edit adds for a sign that is there: the width must not depend on what is typed.
    if (!m_sign->isVisible())
        hint.rwidth() += style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) * 5 / 4 + 6;
    return hint;
}

QSize PYXAddressEdit::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(WidestIPv4), QLineEdit::minimumSizeHint().height()};
}

void PYXAddressEdit::keyPressEvent(QKeyEvent *event)
{
    // A whole address replaces what is there: there is nothing that it could be inserted into.
    if (event->matches(QKeySequence::Paste) && _replaceByClipboard())
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
}

void PYXAddressEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto *const paste = new QAction(tr("Replace by Address from Clipboard"), menu);
    paste->setEnabled(!isReadOnly() &&
                      m_validator->accepts(addressFromText(QGuiApplication::clipboard()->text())));
    connect(paste, &QAction::triggered, this, &PYXAddressEdit::_replaceByClipboard);
    menu->insertAction(menu->actions().value(0), paste);
    menu->popup(event->globalPos());
}

bool PYXAddressEdit::_replaceByClipboard()
{
    const QHostAddress address = addressFromText(QGuiApplication::clipboard()->text());
    if (isReadOnly() || !m_validator->accepts(address))
        return false;
    selectAll();
    insert(address.toString());
    return true;
}

void PYXAddressEdit::_sl_self_textChanged(const QString &a_text)
{
    const QHostAddress typed = addressFromTypedText(a_text);
    const QHostAddress address = m_validator->accepts(typed) ? typed : QHostAddress();
    _showValidity();
    if (isSame(address, m_address))
        return;
    m_address = address;
    Q_EMIT si_addressChanged(address);
}

void PYXAddressEdit::_sl_self_editingFinished()
{
    if (!m_address.isNull() && text() != m_address.toString())
        setText(m_address.toString());
}

void PYXAddressEdit::_sl_self_inputRejected()
{
    if (isVisible())
        QToolTip::showText(mapToGlobal(rect().bottomLeft()), _format(), this);
}

QString PYXAddressEdit::_format() const
{
    switch (protocol()) {
    case QAbstractSocket::IPv4Protocol:
        return tr("IPv4 address: four numbers from 0 to 255 with points between");
    case QAbstractSocket::IPv6Protocol:
        return tr("IPv6 address: eight groups of up to four hexadecimal digits with colons between; "
                  "\"::\" stands for groups of zeros");
    default:
        return tr("IPv4 or IPv6 address, such as 192.168.1.10 or fd00::10");
    }
}

void PYXAddressEdit::_showValidity()
{
    const bool bWrong = !text().isEmpty() && !hasAcceptableInput();
    const QString complaint = tr("Not a complete address");
    const QString description = bWrong ? complaint + QLatin1String(". ") + _format() : _format();
    m_sign->setVisible(bWrong);
    m_sign->setText(complaint);
    m_sign->setToolTip(description);
    // An application's own description stays.
    if (accessibleDescription() == m_description && description != m_description)
        setAccessibleDescription(description);
    m_description = description;
}

void PYXAddressEdit::showEvent(QShowEvent *event)
{
    _nameItself();
    QLineEdit::showEvent(event);
}

void PYXAddressEdit::_nameItself()
{
    const QList<QLabel *> labels = window()->findChildren<QLabel *>();
    const bool bHasLabel = std::any_of(labels.cbegin(), labels.cend(),
                                       [this](const QLabel *label) { return label->buddy() == this; });
    if (bHasLabel || accessibleName() != m_ownName)
        return;
    m_ownName = tr("IP address");
    setAccessibleName(m_ownName);
}

void PYXAddressEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        m_sign->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    if (event->type() == QEvent::LanguageChange) {
        _showValidity();
        if (!m_ownName.isEmpty())
            _nameItself();
    }
}

} // namespace PYXRuntime
