// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SheetPainter.h"

#include <QtWidgets/QWidget>

namespace IconSheet {

/** The sheet as a widget: as many columns as fit, as high as they need. For a scroll area. */
class SheetView final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SheetView)
public:
    explicit SheetView(QWidget *parent = nullptr);

    void setEntries(const QVector<struIconEntry> &entries);
    void setGround(eGround ground);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void _layOut();

    SheetPainter m_sheet;
};

} // namespace IconSheet
