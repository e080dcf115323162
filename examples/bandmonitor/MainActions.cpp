// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "MainActions.h"

#include <PYXStandardIcons.h>

#include <QtCore/QLocale>
#include <QtCore/QTimer>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

using PYXRuntime::PYXStandardIcons;

namespace BandMonitor {
namespace {

constexpr int ToolBarIconSize = 20;
constexpr double Speeds[] = {0.5, 1.0, 2.0, 4.0, 8.0, 16.0};
constexpr int UsualSpeed = 1; // index

struct struEntry
{
    const char *name;
    const char *text;
    uint icon;
    QKeySequence::StandardKey key = QKeySequence::UnknownKey;
    bool bCheckable = false;
};

// In the order of MainActions::eAction.
constexpr struEntry Entries[] = {
    {"openAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Open..."), PYXStandardIcons::ekIcon_Open,
     QKeySequence::Open},
    {"openUrlAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "Open &URL..."),
     PYXStandardIcons::ekIcon_Download},
    {"ownBandAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "Own &Band"),
     PYXStandardIcons::ekIcon_InputSource_Tuner},
    {"saveAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Save Signals..."),
     PYXStandardIcons::ekIcon_Save, QKeySequence::Save},
    {"settingsAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "Se&ttings..."),
     PYXStandardIcons::ekIcon_Settings, QKeySequence::Preferences},
    {"quitAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Quit"), PYXStandardIcons::ekIcon_Exit,
     QKeySequence::Quit},
    {"playAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Play"),
     PYXStandardIcons::ekIcon_Player_Start},
    {"recordAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Record Detections"),
     PYXStandardIcons::ekIcon_Player_Recording, QKeySequence::UnknownKey, true},
    {"detectorAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Detector..."),
     PYXStandardIcons::ekIcon_Display_Tool_Level},
    {"wholeBandAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "Whole &Band"),
     PYXStandardIcons::ekIcon_Display_Auto_XScale},
    {"darkAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Dark Colours"),
     PYXStandardIcons::ekIcon_Color_Select, QKeySequence::UnknownKey, true},
    {"popUpsAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Announce New Signals"),
     PYXStandardIcons::ekIcon_Info, QKeySequence::UnknownKey, true},
    {"aboutAction", QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&About %1"),
     PYXStandardIcons::ekIcon_About},
};
static_assert(std::size(Entries) == MainActions::ekAction_Count, "every action has its entry");

// In the order of the menu bar.
constexpr const char *MenuTitles[] = {QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&File"),
                                      QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Play"),
                                      QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&View"),
                                      QT_TRANSLATE_NOOP("BandMonitor::MainActions", "&Help")};

} // namespace

MainActions::MainActions(QMainWindow *window, QMenu *recentMenu)
    : QObject(window)
{
    _createActions(window);
    _createSpeedBox();
    _createMenus(window, recentMenu);
    _createToolBar(window);
    showPlaying(false);
    retranslate();
    // Not before the docks have told theirs.
    QTimer::singleShot(0, this, &MainActions::_loadIconsLater);
}

void MainActions::_createActions(QMainWindow *window)
{
    for (const struEntry &entry : Entries) {
        auto *const action = new QAction(window);
        action->setObjectName(QLatin1String(entry.name));
        action->setCheckable(entry.bCheckable);
        action->setShortcuts(entry.key);
        m_actions += action;
        m_iconsToGive.insert(action, entry.icon);
    }
    action(ekAction_Play)->setShortcut(Qt::Key_Space);
    if (action(ekAction_Settings)->shortcut().isEmpty()) // not every system has one
        action(ekAction_Settings)->setShortcut(Qt::CTRL + Qt::Key_Comma);
    action(ekAction_Settings)->setMenuRole(QAction::PreferencesRole);
    action(ekAction_Quit)->setMenuRole(QAction::QuitRole);
    action(ekAction_About)->setMenuRole(QAction::AboutRole);
}

void MainActions::retranslate()
{
    for (int id = 0; id < ekAction_Count; ++id)
        m_actions.at(id)->setText(
            tr(Entries[id].text).replace(QLatin1String("%1"), QApplication::applicationName()));
    action(ekAction_Record)->setIconText(tr("Record"));
    showPlaying(m_bPlaying);
    for (int i = 0; i < m_menus.size(); ++i)
        m_menus.at(i)->setTitle(tr(MenuTitles[i]));
    m_toolBar->setWindowTitle(tr("Playing"));
    for (int i = 0; i < m_speedBox->count(); ++i)
        m_speedBox->setItemText(i,
                                tr("%1\u00d7").arg(QLocale().toString(m_speedBox->itemData(i).toDouble())));
    m_speedBox->setToolTip(tr("Speed"));
    m_speedBox->setAccessibleName(tr("Speed"));
}

void MainActions::_createSpeedBox()
{
    m_speedBox = new QComboBox;
    for (const double speed : Speeds)
        m_speedBox->addItem(QString(), speed);
    m_speedBox->setCurrentIndex(UsualSpeed);
}

QMenu *MainActions::_addMenu(const QMainWindow *window, const QList<eAction> &entries)
{
    QMenu *const menu = window->menuBar()->addMenu(QString());
    m_menus += menu;
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { _giveIcons(menu); });
    for (const eAction entry : entries)
        menu->addAction(action(entry));
    return menu;
}

void MainActions::_createMenus(const QMainWindow *window, QMenu *recentMenu)
{
    QMenu *const fileMenu = _addMenu(window, {ekAction_Open, ekAction_OpenUrl, ekAction_OwnBand,
                                              ekAction_Save, ekAction_Settings, ekAction_Quit});
    fileMenu->insertMenu(action(ekAction_OwnBand), recentMenu);
    fileMenu->insertSeparator(action(ekAction_Save));
    fileMenu->insertSeparator(action(ekAction_Settings));
    fileMenu->insertSeparator(action(ekAction_Quit));
    m_iconsToGive.insert(recentMenu->menuAction(), PYXStandardIcons::ekIcon_Player_Document);
    QMenu *const playMenu = _addMenu(window, {ekAction_Play, ekAction_Record, ekAction_Detector});
    playMenu->insertSeparator(action(ekAction_Detector));
    m_viewMenu = _addMenu(window, {ekAction_WholeBand, ekAction_Dark, ekAction_PopUps});
    m_viewMenu->addSeparator();
    _addMenu(window, {ekAction_About});
}

void MainActions::_createToolBar(QMainWindow *window)
{
    m_toolBar = new QToolBar(window);
    window->addToolBar(m_toolBar);
    m_toolBar->setObjectName(QStringLiteral("playToolBar"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize({ToolBarIconSize, ToolBarIconSize});
    for (const eAction id : {ekAction_Open, ekAction_OwnBand, ekAction_Play, ekAction_Record}) {
        action(id)->setIcon(PYXStandardIcons::staticRegisteredIcon(m_iconsToGive.take(action(id))));
        m_toolBar->addAction(action(id));
    }
    m_toolBar->addWidget(m_speedBox);
}

void MainActions::addDock(const QDockWidget *dock, uint icon)
{
    QAction *const toggle = dock->toggleViewAction();
    m_iconsToGive.insert(toggle, icon);
    m_viewMenu->addAction(toggle);
}

void MainActions::showPlaying(bool bPlaying)
{
    m_bPlaying = bPlaying;
    QAction *const play = action(ekAction_Play);
    play->setText(bPlaying ? tr("&Pause") : tr("&Play"));
    play->setIcon(PYXStandardIcons::staticRegisteredIcon(bPlaying ? PYXStandardIcons::ekIcon_Player_Pause
                                                                  : PYXStandardIcons::ekIcon_Player_Start));
}

void MainActions::_loadIconsLater()
{
    const QList<uint> icons = m_iconsToGive.values();
    PYXStandardIcons::staticDelayedEnsureRegisteredIconsAreCached({icons.begin(), icons.end()});
}

void MainActions::_giveIcons(const QMenu *menu)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *const action : actions)
        if (m_iconsToGive.contains(action))
            action->setIcon(PYXStandardIcons::staticRegisteredIcon(m_iconsToGive.take(action)));
}

} // namespace BandMonitor
