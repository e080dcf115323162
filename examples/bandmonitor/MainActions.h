// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>

class QAction;
class QComboBox;
class QDockWidget;
class QMainWindow;
class QMenu;
class QToolBar;

namespace BandMonitor {

/**
 * The menus and the tool bar of the window, and what their entries say and look like. The icons of the tool
 * bar are there at once; the others are loaded when the window has come up, or when their menu is opened.
 */
class MainActions final : public QObject
{
    Q_OBJECT
public:
    enum eAction {
        ekAction_Open,
        ekAction_OpenUrl,
        ekAction_OwnBand,
        ekAction_Save,
        ekAction_Settings,
        ekAction_Quit,
        ekAction_Play,
        ekAction_Record,
        ekAction_Detector,
        ekAction_WholeBand,
        ekAction_Dark,
        ekAction_PopUps,
        ekAction_About,
        ekAction_Count
    };

    /** @param recentMenu has its place in the file menu */
    MainActions(QMainWindow *window, QMenu *recentMenu);

    QAction *action(eAction id) const { return m_actions.at(id); }
    /** Its current data is the speed. */
    QComboBox *speedBox() const { return m_speedBox; }

    /** Lets the view menu show and hide the dock. */
    void addDock(const QDockWidget *dock, uint icon);
    /** Whether the next use of the play action pauses. */
    void showPlaying(bool bPlaying);
    /** Sets all texts, after a change of the language. */
    void retranslate();

private:
    void _createActions(QMainWindow *window);
    void _createMenus(const QMainWindow *window, QMenu *recentMenu);
    void _createToolBar(QMainWindow *window);
    void _createSpeedBox();
    QMenu *_addMenu(const QMainWindow *window, const QList<eAction> &entries);
    void _loadIconsLater();
    void _giveIcons(const QMenu *menu);

    QList<QAction *> m_actions;
    QHash<const QAction *, uint> m_iconsToGive; ///< by the actions that have none yet
    QList<QMenu *> m_menus;
    QMenu *m_viewMenu = nullptr;
    QToolBar *m_toolBar = nullptr;
    QComboBox *m_speedBox = nullptr;
    bool m_bPlaying = false;
};

} // namespace BandMonitor
