// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_Debug_RuntimeScopes.h"

#include "LiveTable.h"
#include "PageTexts.h"
#include "PYXRuntimeCenter.h"
#include "PYXStandardIcons.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

enum eColumn { ekColumn_Debug = 1, ekColumn_Warning = 2 };

struLiveCell mark(bool bOn)
{
    return {QString(), bOn ? Qt::Checked : Qt::Unchecked};
}

QString translatedPurpose(const PYXRuntimeCenter::RuntimeScope &scope)
{
    return QCoreApplication::translate("PYXRuntime::RuntimeScopes", scope.purpose.toUtf8().constData());
}

} // namespace

SHW_Debug_RuntimeScopes::SHW_Debug_RuntimeScopes(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_note(new QLabel)
    , m_table(new LiveTable(1,
                            [] {
                                QVector<LiveRow> rows;
                                const auto scopes = PYXRuntimeCenter::runtimeScopes();
                                for (const auto &scope : scopes)
                                    rows.append({{scope.name},
                                                 mark(scope.debugEnabled),
                                                 mark(scope.warningEnabled),
                                                 {translatedPurpose(scope)}});
                                return rows;
                            }))
    , m_debugToTrace(new QCheckBox)
    , m_warningToTrace(new QCheckBox)
{
    setObjectName(QStringLiteral("SHW_Debug_RuntimeScopes"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_GenericTool));
    m_note->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_note);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_debugToTrace);
    layout->addWidget(m_warningToTrace);
    connect(m_table, &LiveTable::si_checked, this, &SHW_Debug_RuntimeScopes::_sl_table_checked);
    connect(m_debugToTrace, &QCheckBox::clicked, this,
            [](bool bOn) { PYXRuntimeCenter::setEnabled_pyxDebugToTrace(bOn); });
    connect(m_warningToTrace, &QCheckBox::clicked, this,
            [](bool bOn) { PYXRuntimeCenter::setEnabled_pyxWarningToTrace(bOn); });
    SHW_Debug_RuntimeScopes::sl_retranslateUi();
}

SHW_Debug_RuntimeScopes::~SHW_Debug_RuntimeScopes() = default;

void SHW_Debug_RuntimeScopes::initContents()
{
    m_debugToTrace->setChecked(PYXRuntimeCenter::isEnabled_pyxDebugToTrace());
    m_warningToTrace->setChecked(PYXRuntimeCenter::isEnabled_pyxWarningToTrace());
}

void SHW_Debug_RuntimeScopes::sl_retranslateUi()
{
    setHeading(PageTexts::debug(), tr("Runtime Scopes"));
    m_note->setText(tr("Changes take effect at once and last until the application ends."));
    m_table->setTexts({tr("Scope"), tr("Debug"), tr("Warnings"), tr("Purpose")}, tr("Runtime scopes"));
    m_debugToTrace->setText(tr("Copy &debug messages to the trace"));
    m_debugToTrace->setToolTip(tr("Otherwise they only go to the debugger or the standard error output"));
    m_warningToTrace->setText(tr("Copy &warnings to the trace"));
    m_warningToTrace->setToolTip(m_debugToTrace->toolTip());
}

void SHW_Debug_RuntimeScopes::_sl_table_checked(const QString &a_scope, int a_column, bool a_checked)
{
    if (a_column == ekColumn_Debug)
        PYXRuntimeCenter::setEnabled_pyxDebug(a_scope, a_checked);
    else if (a_column == ekColumn_Warning)
        PYXRuntimeCenter::setEnabled_pyxWarning(a_scope, a_checked);
}

} // namespace PYXRuntime
