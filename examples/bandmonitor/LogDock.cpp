// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "LogDock.h"

#include "Scale.h"

#include <PYXTraceWrapper.h>

#include <QtCore/QDateTime>
#include <QtCore/QEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>

namespace BandMonitor {
namespace {

constexpr QRgb WarningColour = qRgb(0xa8, 0x5a, 0x00);
constexpr QRgb WarningColourOnDark = qRgb(0xf0, 0xa0, 0x30);
constexpr QRgb ErrorColour = qRgb(0xc8, 0x24, 0x1c);
constexpr QRgb ErrorColourOnDark = qRgb(0xff, 0x6f, 0x61);

QColor colourOf(LogTracer::eLevel severity, const QPalette &palette)
{
    const QColor &text = palette.color(QPalette::Text);
    const QColor &base = palette.color(QPalette::Base);
    const bool bOnDark = base.lightness() < text.lightness();
    switch (severity) {
    case LogTracer::ekLevel_Warn:
        return bOnDark ? WarningColourOnDark : WarningColour;
    case LogTracer::ekLevel_Error:
        return bOnDark ? ErrorColourOnDark : ErrorColour;
    case LogTracer::ekLevel_Debug:
        return mixed(text, base, 0.25);
    default:
        return text;
    }
}

/** The module of a trace without the folders of its source. */
QString shortOrigin(const QString &origin)
{
    return origin.mid(origin.lastIndexOf(QLatin1Char('\\')) + 1);
}

} // namespace

LogDock::LogDock(QWidget *parent)
    : QDockWidget(parent)
    , m_view(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("logDock"));
    m_view->setObjectName(QStringLiteral("logView"));
    m_view->setReadOnly(true);
    m_view->setMaximumBlockCount(MaximumLines);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFont(smallerFont(font()));
    setWidget(m_view);
    _retranslate();
    // Traces come in any thread; the dock lives in the one of the windows.
    connect(&m_tracer, &LogTracer::si_linesWaiting, this, &LogDock::_showLines, Qt::QueuedConnection);
    PYXRuntime::PYXTraceWrapper::addTracer(&m_tracer);
}

LogDock::~LogDock()
{
    PYXRuntime::PYXTraceWrapper::removeTracer(&m_tracer);
}

void LogDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QDockWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    for (QTextBlock block = m_view->document()->begin(); block.isValid(); block = block.next())
        _colour(block);
}

void LogDock::_retranslate()
{
    setWindowTitle(tr("Log"));
    m_view->setAccessibleName(tr("Traces"));
}

void LogDock::_showLines()
{
    const QVector<LogTracer::struLine> lines = m_tracer.takeLines();
    for (const LogTracer::struLine &line : lines)
        _showLine(line);
}

void LogDock::_showLine(const LogTracer::struLine &line)
{
    // Appending plain text scrolls along only if the end is in sight.
    const QString time = QDateTime::fromMSecsSinceEpoch(line.time).toString(QStringLiteral("HH:mm:ss"));
    m_view->appendPlainText(time + QLatin1String("  ") + shortOrigin(line.origin) + QLatin1String("  ") +
                            line.text);
    QTextBlock block = m_view->document()->lastBlock();
    block.setUserState(line.severity);
    _colour(block);
}

void LogDock::_colour(const QTextBlock &block) const
{
    QTextCursor cursor(block);
    cursor.select(QTextCursor::BlockUnderCursor);
    QTextCharFormat format;
    format.setForeground(colourOf(LogTracer::eLevel(block.userState()), palette()));
    cursor.mergeCharFormat(format);
}

} // namespace BandMonitor
