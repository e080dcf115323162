// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "IconEntry.h"
#include "SheetPainter.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace IconSheet {

class SheetView;

/** The sheet with a line that filters by name and a choice of the ground. */
class SheetWindow final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SheetWindow)
public:
    explicit SheetWindow(const QVector<struIconEntry> &entries, QWidget *parent = nullptr);

    void setFilter(const QString &filter);
    void setGround(eGround ground);

private Q_SLOTS:
    void _sl_filterEdit_textChanged(const QString &a_text);
    void _sl_groundBox_activated(int a_index);

private:
    QWidget *_createBar();

    QVector<struIconEntry> m_entries;
    SheetView *m_view;
    QLineEdit *m_filterEdit;
    QComboBox *m_groundBox;
    QLabel *m_countLabel;
};

} // namespace IconSheet
