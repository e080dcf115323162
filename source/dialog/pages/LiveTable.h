// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <functional>

class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

namespace PYXRuntime {

class LiveTableModel;

/** A cell: a text, or a check mark that the user may change. */
struct struLiveCell
{
    QString text;
    int check = -1; ///< a Qt::CheckState; negative: none
    bool operator==(const struLiveCell &other) const { return text == other.text && check == other.check; }
};

using LiveRow = QVector<struLiveCell>;

/**
 * A table with a filter line above that shows what a function says, and asks it again while it is seen.
 * Selection and place stay as long as the same rows are there; the first cells tell a row.
 */
class LiveTable final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(LiveTable)
public:
    /** @param keyCells how many cells at the beginning of a row tell it from others */
    LiveTable(int keyCells, std::function<QVector<LiveRow>()> ask, QWidget *parent = nullptr);
    ~LiveTable() override;

    void setTexts(const QStringList &headers, const QString &accessibleName);
    /** Asks now. */
    void refresh();

Q_SIGNALS:
    void si_checked(const QString &a_firstCell, int a_column, bool a_checked);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::function<QVector<LiveRow>()> m_ask;
    LiveTableModel *m_model;
    QSortFilterProxyModel *m_proxy;
    QLineEdit *m_filter;
    QTableView *m_view;
    QTimer m_timer;
    bool m_bSized = false;
};

} // namespace PYXRuntime
