// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_Debug_Broker.h"

#include "LiveTable.h"
#include "PageTexts.h"
#include "PYXBroker.h"
#include "PYXStandardIcons.h"

#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {

SHW_Debug_Broker::SHW_Debug_Broker(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_table(new LiveTable(5, [] {
        QVector<LiveRow> rows;
        const auto registrations = PYXBroker::getInstance()->registrations();
        for (const auto &entry : registrations)
            rows.append({{entry.declaredName},
                         {QString::number(entry.name)},
                         {entry.bAlive ? entry.className : tr("destroyed")},
                         {entry.objectName},
                         {entry.identifier.toString()}});
        return rows;
    }))
{
    setObjectName(QStringLiteral("SHW_Debug_Broker"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Link));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    SHW_Debug_Broker::sl_retranslateUi();
}

SHW_Debug_Broker::~SHW_Debug_Broker() = default;

void SHW_Debug_Broker::sl_retranslateUi()
{
    setHeading(PageTexts::debug(), tr("Broker"));
    m_table->setTexts({tr("Interface"), tr("Name"), tr("Class"), tr("Object"), tr("Identifier")},
                      tr("Registrations with the broker"));
}

} // namespace PYXRuntime
