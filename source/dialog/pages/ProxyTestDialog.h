// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ProxyConfiguration.h"

#include <QtWidgets/QDialog>

#include <memory>

class QLabel;
class QPushButton;
class QTableWidget;

namespace PYXRuntime {

class ProxyTester;

/** Lets the user try a list of sites through a proxy, and shows what has happened. */
class ProxyTestDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(ProxyTestDialog)
public:
    ProxyTestDialog(const ProxyConfiguration &configuration, const QStringList &sites,
                    QWidget *parent = nullptr);
    ~ProxyTestDialog() override;

    /** The list as the user has left it. */
    QStringList sites() const;

private Q_SLOTS:
    void _sl_start_clicked();
    void _sl_add_clicked();
    void _sl_remove_clicked();
    void _sl_tester_finished(int a_row, bool a_reached, const QString &a_result);

private:
    void _makeForm();
    void _addSite(const QString &site);
    void _setResult(int row, const QString &text);
    QString _description() const;
    void _showState();

    const ProxyConfiguration m_configuration;
    QTableWidget *m_table;
    QLabel *m_summary;
    QPushButton *m_start;
    QPushButton *m_add;
    QPushButton *m_remove;
    std::unique_ptr<ProxyTester> m_tester;
    int m_pending = 0;
    int m_reached = 0;
};

} // namespace PYXRuntime
