// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsDialog.h"

#include "LocaleChange.h"
#include "PYXBroker.h"
#include "PYXInterfaceIdentifiers.h"
#include "PYXSettings.h"
#include "PYXSettingsHandlerWidget.h"
#include "PYXTraceWrapper.h"
#include "SettingsDialogForm.h"
#include "SettingsTree.h"
#include "WindowPlacement.h"

#include <QtCore/QDynamicPropertyChangeEvent>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QSplitter>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXSettingsDialog";
const QLatin1String NoHelpConnector("Help connector interface not found");
const QLatin1String AlreadyRunning("The settings dialog is running already");
const QLatin1String GeometryKey("SettingsDialog/Geometry");
const QLatin1String SplitterKey("SettingsDialog/SplitterState");
constexpr QSize FirstSize(880, 620);

QString helpActionName(const QObject *page)
{
    return QLatin1String("PYXSettingsDialog::") + page->objectName() + QLatin1String("::ContextHelpAction");
}

QAction *helpActionOf(const QObject *page)
{
    return page->findChild<QAction *>(helpActionName(page), Qt::FindDirectChildrenOnly);
}

void giveHelpAction(QWidget *page, const QObject *connector)
{
    QAction *action = helpActionOf(page);
    if (action == nullptr) {
        action = new QAction(page);
        action->setObjectName(helpActionName(page));
        // Of the window: the key works wherever the focus is, as long as the page is shown.
        action->setShortcut(Qt::Key_F1);
        action->setShortcutContext(Qt::WindowShortcut);
        page->addAction(action);
    }
    // Unique: the connector may be another one than last time.
    QObject::connect(action, SIGNAL(triggered()), connector, SLOT(sl_onHelpRequested()),
                     Qt::UniqueConnection);
}

void showTitle(QTreeWidgetItem &item, const QString &title)
{
    item.setText(0, title);
    item.setToolTip(0, title);
}

// Setting what is there already would write the whole file again.
void storeIfNew(PYXSettings &settings, const QString &key, const QByteArray &value)
{
    if (settings.byteArrayValue(key) != value)
        settings.setValue(key, value);
}

QObject *helpConnector()
{
    return PYXBroker::getInstance()->topObject(InterfaceIdentifiers::helpConnector(), 0);
}

} // namespace

PYXSettingsDialog::PYXSettingsDialog(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<SettingsDialogForm>(*this))
{
    connect(m_form->tree, &QTreeWidget::currentItemChanged, this,
            &PYXSettingsDialog::_sl_SettingsTree_currentItemChanged);
    connect(m_form->tree, &QTreeWidget::itemSelectionChanged, this,
            &PYXSettingsDialog::_sl_SettingsTree_itemSelectionChanged);
    connect(m_form->pageBox, &QDialogButtonBox::clicked, this, &PYXSettingsDialog::_sl_ButtonBoxPage_clicked);
    connect(m_form->dialogBox, &QDialogButtonBox::clicked, this,
            &PYXSettingsDialog::_sl_ButtonBoxDialog_clicked);
    connect(m_form->searchLine, &QLineEdit::textChanged, this,
            &PYXSettingsDialog::_sl_SearchLine_textChanged);
    const auto *const find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_form->searchLine, [this] {
        m_form->searchLine->setFocus(Qt::ShortcutFocusReason);
        m_form->searchLine->selectAll();
    });
    connectToLocaleChange(this, SLOT(sl_retranslateUi()));
    _showItem(nullptr);
}

PYXSettingsDialog::~PYXSettingsDialog()
{
    m_bClosing = true;
    m_form->tree->disconnect(this);
    const auto pages = m_pages;
    m_pages.clear();
    for (PYXSettingsHandlerWidget *const page : pages) {
        page->disconnect(this);
        page->setSettingsToUse(nullptr, nullptr);
        page->setSharedSettingsToUse(nullptr, nullptr);
        page->detachFromDialog();
    }
}

bool PYXSettingsDialog::registerSettingsHandler(PYXSettingsHandlerWidget *page)
{
    if (page == nullptr || page->dialog() != nullptr || _itemOf(page) != nullptr)
        return false;
    const int category = page->category().isEmpty() ? -1 : addCategory(page->category());
    auto *const item = new QTreeWidgetItem(SettingsTree::ekItem_Page);
    showTitle(*item, page->title());
    item->setIcon(0, page->icon());
    m_form->add(page);
    m_pages.insert(item, page);
    if (category >= 0)
        m_categories.at(category)->addChild(item);
    else
        m_form->tree->addTopLevelItem(item);
    connect(page, &PYXSettingsHandlerWidget::si_madeModifications, this,
            &PYXSettingsDialog::_sl_pageCleanStateChanged);
    connect(page, &QObject::destroyed, this, &PYXSettingsDialog::_sl_page_destroyed);
    page->installEventFilter(this);
    page->attachToDialog(this);
    _connectServices(page);
    if (helpActionOf(page) == nullptr)
        PYXTraceWrapper::staticTraceWarn(NoHelpConnector, TraceFile, __LINE__);
    if (m_settings != nullptr) {
        _bindPage(page);
        page->initContents();
        page->sl_modified();
        _sortSoon();
    }
    return true;
}

bool PYXSettingsDialog::unregisterSettingsHandler(PYXSettingsHandlerWidget *page)
{
    QTreeWidgetItem *const item = _itemOf(page);
    if (item == nullptr)
        return false;
    page->removeEventFilter(this);
    page->disconnect(this);
    page->detachFromDialog();
    page->setSettingsToUse(nullptr, nullptr);
    page->setSharedSettingsToUse(nullptr, nullptr);
    m_form->remove(page);
    _removeItem(item);
    return true;
}

void PYXSettingsDialog::_connectServices(PYXSettingsHandlerWidget *page)
{
    connectToLocaleChange(page, SLOT(sl_retranslateUi()));
    if (const QObject *const connector = helpConnector())
        giveHelpAction(page, connector);
}

void PYXSettingsDialog::_sl_page_destroyed(QObject *a_page)
{
    if (QTreeWidgetItem *const item = _itemOf(a_page)) {
        m_form->removeEmptyAreas();
        _removeItem(item);
    }
}

void PYXSettingsDialog::_removeItem(QTreeWidgetItem *item)
{
    m_pages.remove(item);
    QTreeWidgetItem *const category = item->parent();
    {
        const QSignalBlocker blocker(m_form->tree);
        delete item;
        if (category != nullptr && category->childCount() == 0)
            category->setHidden(true);
        QTreeWidgetItem *const current = m_form->tree->currentItem();
        if (SettingsTree::isCategory(current))
            m_form->tree->setCurrentItem(SettingsTree::firstPageOf(current));
    }
    _showItem(m_form->tree->currentItem());
}

int PYXSettingsDialog::addCategory(const QString &name)
{
    const int known = categoryIndex(name);
    if (known >= 0) {
        m_categories.at(known)->setHidden(false);
        return known;
    }
    auto *const item = new QTreeWidgetItem(SettingsTree::ekItem_Category);
    showTitle(*item, name);
    m_form->tree->addTopLevelItem(item);
    m_categories.append(item);
    return m_categories.size() - 1;
}

void PYXSettingsDialog::renameCategory(int index, const QString &name)
{
    if (index < 0 || index >= m_categories.size())
        return;
    showTitle(*m_categories.at(index), name);
    _sortSoon();
}

int PYXSettingsDialog::categoryIndex(const QString &name) const
{
    for (int i = 0; i < m_categories.size(); ++i) {
        if (m_categories.at(i)->text(0) == name)
            return i;
    }
    return -1;
}

int PYXSettingsDialog::categoryIndex(PYXSettingsHandlerWidget *page) const
{
    const QTreeWidgetItem *const item = _itemOf(page);
    return item != nullptr ? m_categories.indexOf(item->parent()) : -1;
}

int PYXSettingsDialog::exec(PYXSettings &settings, PYXSettings &defaults, PYXSettings &shared,
                            PYXSettings &sharedDefaults, PYXSettingsHandlerWidget *pageToShow)
{
    if (m_settings != nullptr) {
        PYXTraceWrapper::staticTraceWarn(AlreadyRunning, TraceFile, __LINE__);
        return Rejected;
    }
    const bool bFallbacks = settings.fallbacksEnabled();
    settings.setFallbacksEnabled(true);
    m_bClosing = false;
    m_settings = &settings;
    m_defaults = &defaults;
    m_shared = &shared;
    m_sharedDefaults = &sharedDefaults;
    _showConfigurableButtons();
    _fillPages();
    _sortTree();
    _showFirstPage(pageToShow);
    _restoreWindow();
    sl_retranslateUi();
    const QPointer<PYXSettingsDialog> self(this);
    const int result = QDialog::exec();
    if (!self.isNull()) {
        _storeWindow(settings);
        m_settings = m_defaults = m_shared = m_sharedDefaults = nullptr;
        _bindPages();
    }
    settings.setFallbacksEnabled(bFallbacks);
    return result;
}

int PYXSettingsDialog::exec(PYXSettings &settings, PYXSettings &defaults,
                            PYXSettingsHandlerWidget *pageToShow)
{
    PYXSettings shared(PYXSettings::eUserSharedSettings);
    PYXSettings sharedDefaults(PYXSettings::eDefaultSharedSettings);
    return exec(settings, defaults, shared, sharedDefaults, pageToShow);
}

int PYXSettingsDialog::exec()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXSettings defaults(PYXSettings::eDefaultApplicationSettings);
    return exec(settings, defaults);
}

void PYXSettingsDialog::_showConfigurableButtons()
{
    using Box = QDialogButtonBox;
    const std::pair<QPushButton *, QLatin1String> switches[] = {
        {m_form->pageButton(Box::Apply), QLatin1String("hideApplyPageButton")},
        {m_form->pageButton(Box::Reset), QLatin1String("hideResetPageButton")},
        {m_form->dialogButton(Box::Apply), QLatin1String("hideApplyAllButton")},
        {m_form->dialogButton(Box::Reset), QLatin1String("hideResetAllButton")},
        {m_form->dialogButton(Box::RestoreDefaults), QLatin1String("hideRestoreDefaultsAllButton")},
    };
    for (const auto &[button, key] : switches)
        button->setVisible(!m_settings->boolValue(QLatin1String("::PYXSettingsDialog::/") + key));
}

void PYXSettingsDialog::_bindPage(PYXSettingsHandlerWidget *page)
{
    page->setSettingsToUse(m_settings, m_defaults);
    page->setSharedSettingsToUse(m_shared, m_sharedDefaults);
}

void PYXSettingsDialog::_bindPages()
{
    for (PYXSettingsHandlerWidget *const page : qAsConst(m_pages))
        _bindPage(page);
}

void PYXSettingsDialog::_fillPages()
{
    _bindPages();
    connectToLocaleChange(this, SLOT(sl_retranslateUi()));
    m_bCollectingChanges = true;
    const auto pages = _pagesInTreeOrder();
    for (PYXSettingsHandlerWidget *const page : pages) {
        if (_itemOf(page) == nullptr)
            continue;           // another page has destroyed it
        _connectServices(page); // which may have come after the page
        page->initContents();
        page->sl_modified();
    }
    m_bCollectingChanges = false;
}

void PYXSettingsDialog::_sortTree()
{
    m_form->tree->resizeColumnToContents(0);
    m_form->tree->sortPages();
}

void PYXSettingsDialog::_sortSoon()
{
    if (m_settings == nullptr || m_bSortsSoon)
        return; // the next run sorts, or all of a new language are sorted at once
    m_bSortsSoon = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_bSortsSoon = false;
            _sortTree();
        },
        Qt::QueuedConnection);
}

void PYXSettingsDialog::_showFirstPage(PYXSettingsHandlerWidget *pageToShow)
{
    QTreeWidgetItem *item = _itemOf(pageToShow);
    if (item == nullptr)
        item = m_form->tree->currentItem();
    if (item == nullptr)
        item = m_form->tree->firstPage();
    m_form->searchLine->clear();
    {
        const QSignalBlocker blocker(m_form->tree);
        m_form->tree->setCurrentItem(item);
        if (item != nullptr && item->parent() != nullptr)
            item->parent()->setExpanded(true);
    }
    _showItem(item);
}

void PYXSettingsDialog::_restoreWindow()
{
    const bool bRestored =
        m_settings->contains(GeometryKey) && restoreGeometry(m_settings->byteArrayValue(GeometryKey));
    if (bRestored) {
        WindowPlacement::clampToScreen(*this);
    } else {
        resize(FirstSize.expandedTo(minimumSizeHint()));
        WindowPlacement::centre(*this);
    }
    if (m_settings->contains(SplitterKey))
        m_form->splitter->restoreState(m_settings->byteArrayValue(SplitterKey));
    else
        m_form->fitTree(width());
}

void PYXSettingsDialog::_storeWindow(PYXSettings &settings) const
{
    storeIfNew(settings, GeometryKey, saveGeometry());
    storeIfNew(settings, SplitterKey, m_form->splitter->saveState());
}

PYXSettingsHandlerWidget *PYXSettingsDialog::activePage() const
{
    return qobject_cast<PYXSettingsHandlerWidget *>(m_form->shownPage());
}

void PYXSettingsDialog::sl_retranslateUi()
{
    m_form->retranslate();
}

bool PYXSettingsDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange) {
        QTreeWidgetItem *const item = _itemOf(watched);
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
        if (item != nullptr && name == "::TITLE::") {
            showTitle(*item, m_pages.value(item)->title());
            _sortSoon();
        } else if (item != nullptr && name == "::ICON::") {
            item->setIcon(0, m_pages.value(item)->icon());
        }
    }
    return QDialog::eventFilter(watched, event);
}

QAction *PYXSettingsDialog::_helpAction() const
{
    const PYXSettingsHandlerWidget *const page = activePage();
    return page != nullptr ? helpActionOf(page) : nullptr;
}

QTreeWidgetItem *PYXSettingsDialog::_itemOf(const QObject *page) const
{
    if (page == nullptr)
        return nullptr;
    for (auto known = m_pages.begin(); known != m_pages.end(); ++known) {
        if (known.value() == page)
            return known.key();
    }
    return nullptr;
}

QList<PYXSettingsHandlerWidget *> PYXSettingsDialog::_pagesInTreeOrder() const
{
    QList<PYXSettingsHandlerWidget *> pages;
    const auto items = m_form->tree->pageItems();
    for (QTreeWidgetItem *const item : items) {
        if (PYXSettingsHandlerWidget *const page = m_pages.value(item))
            pages += page;
    }
    return pages;
}

} // namespace PYXRuntime
