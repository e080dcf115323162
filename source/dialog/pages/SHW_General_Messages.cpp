// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_General_Messages.h"

#include "PageTexts.h"
#include "PYXNotification.h"
#include "PYXStandardIcons.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

enum eColumn { ekColumn_Title, ekColumn_Text, ekColumn_Duration };
enum eRole { ekRole_FirstKey = Qt::UserRole, ekRole_SecondKey, ekRole_IsPersistent };

} // namespace

SHW_General_Messages::SHW_General_Messages(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_note(new QLabel)
    , m_messages(new QTreeWidget)
    , m_showAll(new QPushButton)
{
    setObjectName(QStringLiteral("SHW_General_Messages"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Info));
    m_note->setWordWrap(true);
    m_note->setBuddy(m_messages);
    m_messages->setRootIsDecorated(false);
    m_messages->setUniformRowHeights(true);
    m_messages->header()->setStretchLastSection(false);
    m_showAll->setAutoDefault(false);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_note);
    layout->addWidget(m_messages, 1);
    layout->addWidget(m_showAll, 0, Qt::AlignLeft);
    connect(m_messages, &QTreeWidget::itemChanged, this, &SHW_General_Messages::sl_modified);
    connect(m_showAll, &QPushButton::clicked, this, &SHW_General_Messages::_sl_showAll_clicked);
    SHW_General_Messages::sl_retranslateUi();
    m_messages->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_messages->header()->setSectionResizeMode(ekColumn_Text, QHeaderView::Stretch);
}

SHW_General_Messages::~SHW_General_Messages() = default;

bool SHW_General_Messages::applyChanges()
{
    for (int i = 0; i < m_messages->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *const item = m_messages->topLevelItem(i);
        if (item->checkState(ekColumn_Title) == Qt::Checked)
            continue;
        PYXNotification::setWillShowMessage(item->data(ekColumn_Title, ekRole_FirstKey).toString(),
                                            item->data(ekColumn_Title, ekRole_SecondKey).toString(), true,
                                            QDialogButtonBox::NoButton);
    }
    _list();
    return true;
}

// By default every message is shown.
bool SHW_General_Messages::_areDefaults(const PYXSettings *settings) const
{
    return settings == defaultSettings() && settings != this->settings();
}

bool SHW_General_Messages::checkUnmodified(PYXSettings *settings) const
{
    return _countOf(_areDefaults(settings) ? Qt::Checked : Qt::Unchecked) == 0;
}

void SHW_General_Messages::initFromSettings(const PYXSettings *settings)
{
    _list();
    if (_areDefaults(settings))
        _sl_showAll_clicked();
}

void SHW_General_Messages::_list()
{
    const QSignalBlocker blocker(m_messages);
    m_messages->clear();
    const auto messages = PYXNotification::suppressedMessages();
    for (const auto &message : messages) {
        const QString title = message.title.isEmpty() ? message.firstKey : message.title;
        const QString text = message.text.isEmpty() ? message.secondKey : message.text;
        auto *const item = new QTreeWidgetItem(m_messages, {title, text});
        item->setCheckState(ekColumn_Title, Qt::Checked);
        item->setToolTip(ekColumn_Text, text);
        item->setData(ekColumn_Title, ekRole_FirstKey, message.firstKey);
        item->setData(ekColumn_Title, ekRole_SecondKey, message.secondKey);
        item->setData(ekColumn_Title, ekRole_IsPersistent, message.bPersistent);
    }
    _translateDurations();
    locallyHandleModifications();
}

void SHW_General_Messages::_translateDurations()
{
    const QSignalBlocker blocker(m_messages);
    for (int i = 0; i < m_messages->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = m_messages->topLevelItem(i);
        const bool bPersistent = item->data(ekColumn_Title, ekRole_IsPersistent).toBool();
        item->setText(ekColumn_Duration, bPersistent ? tr("always") : tr("this time"));
    }
}

int SHW_General_Messages::_countOf(Qt::CheckState state) const
{
    int count = 0;
    for (int i = 0; i < m_messages->topLevelItemCount(); ++i)
        count += m_messages->topLevelItem(i)->checkState(ekColumn_Title) == state ? 1 : 0;
    return count;
}

void SHW_General_Messages::locallyHandleModifications()
{
    m_showAll->setEnabled(_countOf(Qt::Checked) > 0);
    m_note->setText(
        m_messages->topLevelItemCount() > 0
            ? tr("&These messages are not shown. Clear the mark of those that you want to see again.")
            : tr("No messages are hidden."));
}

void SHW_General_Messages::_sl_showAll_clicked()
{
    {
        const QSignalBlocker blocker(m_messages);
        for (int i = 0; i < m_messages->topLevelItemCount(); ++i)
            m_messages->topLevelItem(i)->setCheckState(ekColumn_Title, Qt::Unchecked);
    }
    sl_modified();
}

void SHW_General_Messages::sl_retranslateUi()
{
    setHeading(PageTexts::general(), tr("Messages"));
    m_messages->setHeaderLabels({tr("Title"), tr("Message"), tr("Hidden")});
    m_messages->setAccessibleName(tr("Messages that are not shown"));
    _translateDurations();
    locallyHandleModifications();
    m_showAll->setText(tr("Show &All Again"));
    m_showAll->setToolTip(tr("Clears all marks; Apply shows the messages again"));
}

} // namespace PYXRuntime
