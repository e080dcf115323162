// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_Network_Entries.h"

#include "NetworkEntriesModel.h"
#include "PageTable.h"
#include "PageTexts.h"
#include "PYXSettings.h"
#include "PYXStandardIcons.h"
#include "PYXXmlSettings.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

constexpr int NarrowestColumn = 12; // in characters

QString fileFilter()
{
    return SHW_Network_Entries::tr("Network entries (*.PYXXml)");
}

bool isSame(const PYXNetworkEntryList &left, const PYXNetworkEntryList &right)
{
    return static_cast<const QList<PYXNetworkEntry> &>(left) == right &&
           left.defaultEntryName() == right.defaultEntryName();
}

} // namespace

SHW_Network_Entries::SHW_Network_Entries(const PYXNetworkEntryList &keys, QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_keys(keys)
    , m_model(new NetworkEntriesModel(this))
    , m_table(new QTableView)
    , m_result(new QLabel)
    , m_add(new QPushButton)
    , m_remove(new QPushButton)
    , m_import(new QPushButton)
    , m_export(new QPushButton)
{
    setObjectName(QStringLiteral("SHW_Network_Entries"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Network_Computer));
    m_keys.clear();
    prepareTable(*m_table);
    m_table->setModel(m_model);
    QHeaderView *const header = m_table->horizontalHeader();
    header->setMinimumSectionSize(NarrowestColumn * m_table->fontMetrics().averageCharWidth());
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(NetworkEntriesModel::ekColumn_Name, QHeaderView::Stretch);
    m_result->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_result);
    auto *const buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    for (QPushButton *const button : {m_add, m_remove, m_import, m_export}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->insertStretch(2);
    connect(m_model, &NetworkEntriesModel::si_edited, this, &SHW_Network_Entries::sl_modified);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { m_remove->setEnabled(current.isValid()); });
    connect(m_add, &QPushButton::clicked, this, &SHW_Network_Entries::_sl_add_clicked);
    connect(m_remove, &QPushButton::clicked, this, &SHW_Network_Entries::_sl_remove_clicked);
    connect(m_import, &QPushButton::clicked, this, &SHW_Network_Entries::_sl_import_clicked);
    connect(m_export, &QPushButton::clicked, this, &SHW_Network_Entries::_sl_export_clicked);
    m_remove->setEnabled(false);
    SHW_Network_Entries::sl_retranslateUi();
}

SHW_Network_Entries::~SHW_Network_Entries() = default;

PYXNetworkEntryList SHW_Network_Entries::usualKeys()
{
    PYXNetworkEntryList keys;
    keys.setGroupKey(QStringLiteral("NetworkEntries"));
    keys.setDefaultEntryNameKey(QLatin1String("NetworkEntries/") +
                                PYXNetworkEntryList::defaultEntryNameKeyName());
    return keys;
}

bool SHW_Network_Entries::verifyContents(QStringList &errors)
{
    const int before = errors.size();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        for (int column = 0; column < NetworkEntriesModel::ekColumn_Default; ++column) {
            const QString error = m_model->errorOf(row, column);
            if (!error.isEmpty())
                errors += tr("Row %1: %2").arg(QString::number(row + 1), error);
        }
    }
    return errors.size() == before;
}

bool SHW_Network_Entries::applyChanges()
{
    if (settings() == nullptr || checkUnmodified(settings()))
        return true;
    PYXNetworkEntryList list = _stored(settings()); // with the values that the page does not show
    m_model->fill(list);
    return list.save(*settings());
}

bool SHW_Network_Entries::checkUnmodified(PYXSettings *settings) const
{
    if (settings == nullptr)
        return true;
    PYXNetworkEntryList shown(m_keys);
    m_model->fill(shown);
    const PYXNetworkEntryList stored = _stored(settings);
    if (!stored.containsDefaultEntry() && shown.defaultEntryName().isEmpty())
        shown.setDefaultEntryName(stored.defaultEntryName()); // which names nothing
    return isSame(shown, stored);
}

void SHW_Network_Entries::initFromSettings(const PYXSettings *settings)
{
    m_model->setList(_stored(settings));
    m_result->clear();
    m_remove->setEnabled(false);
}

PYXNetworkEntryList SHW_Network_Entries::_stored(const PYXSettings *settings) const
{
    PYXNetworkEntryList list(m_keys);
    // Reading enters the list's group and leaves it again.
    if (settings != nullptr)
        list.restore(*const_cast<PYXSettings *>(settings)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    return list;
}

void SHW_Network_Entries::locallyHandleModifications()
{
    m_result->setText(m_model->rowCount() == 0 ? tr("There are no entries yet.") : QString());
}

int SHW_Network_Entries::importFrom(const QString &fileName)
{
    // Opening what is no file, a pipe, may wait for ever.
    if (!QFileInfo(fileName).isFile() || !QFileInfo(fileName).isReadable())
        return -1;
    QSettings file(fileName, PYXXmlSettings::format());
    PYXNetworkEntryList found(m_keys);
    if (file.status() != QSettings::NoError)
        return -1;
    found.restore(file);
    if (found.isEmpty())
        return -1;
    PYXNetworkEntryList shown;
    m_model->fill(shown);
    int added = 0;
    setIgnoreModified(true); // the page is compared with the store once, not for every entry
    for (const PYXNetworkEntry &entry : qAsConst(found)) {
        if (shown.contains(entry))
            continue;
        m_model->append(entry);
        ++added;
    }
    setIgnoreModified(false);
    if (added > 0)
        sl_modified();
    return added;
}

bool SHW_Network_Entries::exportTo(const QString &fileName)
{
    PYXNetworkEntryList list(m_keys);
    m_model->fill(list);
    return list.save(fileName, PYXXmlSettings::format());
}

void SHW_Network_Entries::_select(int row)
{
    m_table->setCurrentIndex(m_model->index(row, NetworkEntriesModel::ekColumn_Name));
    m_table->setFocus();
}

void SHW_Network_Entries::_sl_add_clicked()
{
    m_model->append(PYXNetworkEntry());
    _select(m_model->rowCount() - 1);
    m_table->edit(m_table->currentIndex());
}

void SHW_Network_Entries::_sl_remove_clicked()
{
    const int row = m_table->currentIndex().row();
    m_model->remove(row);
    _select(qMin(row, m_model->rowCount() - 1));
}

void SHW_Network_Entries::_sl_import_clicked()
{
    const QString name =
        QFileDialog::getOpenFileName(this, tr("Import Network Entries"), QString(), fileFilter());
    if (name.isEmpty())
        return;
    const int added = importFrom(name);
    m_result->setText(added < 0 ? tr("There are no network entries in %1.").arg(name)
                                : tr("%n entries were added.", nullptr, added));
}

void SHW_Network_Entries::_sl_export_clicked()
{
    QString name = QFileDialog::getSaveFileName(this, tr("Export Network Entries"),
                                                QStringLiteral("NetworkEntries.PYXXml"), fileFilter());
    if (!name.isEmpty())
        m_result->setText(exportTo(name) ? tr("The entries were written to %1.").arg(name)
                                         : tr("%1 could not be written.").arg(name));
}

void SHW_Network_Entries::sl_retranslateUi()
{
    setHeading(PageTexts::network(), tr("Entries"));
    m_table->setAccessibleName(tr("Network entries"));
    m_add->setText(tr("A&dd"));
    m_add->setToolTip(tr("Adds an entry and begins to edit it"));
    m_remove->setText(tr("Remo&ve"));
    m_remove->setToolTip(tr("Removes the current entry"));
    m_import->setText(tr("&Import..."));
    m_import->setToolTip(tr("Adds the entries of a file"));
    m_export->setText(tr("E&xport..."));
    m_export->setToolTip(tr("Writes all entries to a file"));
    Q_EMIT m_model->headerDataChanged(Qt::Horizontal, 0, NetworkEntriesModel::ekColumn_Count - 1);
    locallyHandleModifications();
}

} // namespace PYXRuntime
