// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtNetwork/QHostAddress>
#include <QtWidgets/QLineEdit>

namespace PYXRuntime {

class AddressEditValidator;

/**
 * The common part of the edits of addresses: a line edit that takes an address as it is typed, and pasted in
 * any common form (with blanks or brackets around, a port, a prefix length, within a URL).
 *
 * hasAcceptableInput() tells whether it holds a complete address. Where it does not, a sign stands at the end
 * of the line, whose tool tip says why, and so does the accessible description; an empty line has no sign.
 * When the edit is left, what is missing is filled in and the address gets its canonical form: IPv4 numbers
 * are decimal, so "010.1.2.3" becomes "10.1.2.3".
 *
 * Without an accessible name or a label that is its buddy, the edit names itself. GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXAddressEdit : public QLineEdit
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXAddressEdit)
public:
    ~PYXAddressEdit() override;

    /** Null where the text is no complete address. */
    QHostAddress address() const { return m_address; }
    /**
     * A null address clears the text. An IPv4 address that is written as an IPv6 one ("::ffff:10.0.0.1") does
     * for an IPv4 edit.
     * @return false where the address is of another protocol; then nothing changes.
     */
    bool setAddress(const QHostAddress &address);

    /** IPv4, IPv6, or AnyIPProtocol for both. */
    QAbstractSocket::NetworkLayerProtocol protocol() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** @param a_address null where the text has become incomplete */
    void si_addressChanged(const QHostAddress &a_address);

protected:
    PYXAddressEdit(QAbstractSocket::NetworkLayerProtocol protocol, QWidget *parent);

    /** Brings back the text that was there when the edit last had this protocol, if the present one does not
     * fit. */
    void _setProtocol(QAbstractSocket::NetworkLayerProtocol protocol);

    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void _sl_self_textChanged(const QString &a_text);
    void _sl_self_editingFinished();
    void _sl_self_inputRejected();

private:
    bool _replaceByClipboard();
    void _showValidity();
    void _nameItself();
    QString _format() const;

    AddressEditValidator *m_validator;
    QAction *m_sign;
    QHostAddress m_address;
    QHash<int, QString> m_textOfProtocol;
    QString m_description;
    QString m_ownName;
};

} // namespace PYXRuntime
