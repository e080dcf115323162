// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "LogTracer.h"

#include <QtWidgets/QDockWidget>

class QPlainTextEdit;
class QTextBlock;

namespace BandMonitor {

/** Shows what the library and the program trace, as long as it lives. */
class LogDock final : public QDockWidget
{
    Q_OBJECT
public:
    /** The oldest lines beyond so many are removed. */
    static constexpr int MaximumLines = 2000;

    explicit LogDock(QWidget *parent = nullptr);
    ~LogDock() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void _retranslate();
    void _showLines();
    void _showLine(const LogTracer::struLine &line);
    /** As its severity and the present palette want it. */
    void _colour(const QTextBlock &block) const;

    LogTracer m_tracer;
    QPlainTextEdit *m_view;
};

} // namespace BandMonitor
