// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIPv4Validator.h"
#include "PYXIPv6Validator.h"

#include <QtNetwork/QAbstractSocket>

namespace PYXRuntime {

/**
 * What an address edit accepts: addresses of its protocol as they are typed, and a text that holds one in
 * another common form, which becomes the plain address. An empty text stays empty when the edit is left.
 */
class AddressEditValidator final : public QValidator
{
    Q_OBJECT
public:
    explicit AddressEditValidator(QObject *parent);

    QAbstractSocket::NetworkLayerProtocol protocol() const { return m_protocol; }
    void setProtocol(QAbstractSocket::NetworkLayerProtocol protocol) { m_protocol = protocol; }
    bool accepts(const QHostAddress &address) const;

    State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;

private:
    State _validatePlain(QString &text, int &pos) const;

    QAbstractSocket::NetworkLayerProtocol m_protocol = QAbstractSocket::IPv4Protocol;
    PYXIPv4Validator m_ipv4;
    PYXIPv6Validator m_ipv6;
};

} // namespace PYXRuntime
