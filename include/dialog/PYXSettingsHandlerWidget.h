// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtWidgets/QWidget>

namespace PYXRuntime {

class PYXSettings;
class PYXSettingsDialog;

/**
 * The base of every settings page: a widget that shows values of settings, tells whether the user has changed
 * them, and writes them back when it is asked to.
 *
 * A page works on two stores, the application's and the one that all applications share, each with its
 * defaults. PYXSettingsDialog gives them to the page while it runs; they are null at all other times. A page
 * of plain fields overrides applyChanges(), checkUnmodified() and initFromSettings(), and connects its
 * controls to sl_modified(); PYXSettingsBinder does this for the usual controls.
 *
 * The dialog takes the page over when it is registered, and gives it back when it is unregistered.
 * GUI thread only: all operations are called there.
 */
class PYXRUNTIME_EXPORT PYXSettingsHandlerWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSettingsHandlerWidget)
public:
    /** sl_retranslateUi() is called when the event loop runs, and whenever the language changes. */
    explicit PYXSettingsHandlerWidget(QWidget *parent = nullptr);
    ~PYXSettingsHandlerWidget() override;

    /**
     * Whether what the controls show may be stored.
     * @param errors one message per error is appended, which may hold HTML
     */
    virtual bool verifyContents(QStringList &errors);
    /** Writes what the controls show to the stores. @return false keeps the dialog open. */
    virtual bool applyChanges();
    /** Whether the controls show exactly what this store holds: that of the page, or its defaults. */
    virtual bool checkUnmodified(PYXSettings *settings) const;
    /** Fills the controls from the store of the page, or from its defaults. */
    virtual void initFromSettings(const PYXSettings *settings);
    /** The same for the shared store. */
    virtual bool checkUnmodifiedShared(PYXSettings *settings) const;
    virtual void initFromSharedSettings(const PYXSettings *settings);

public Q_SLOTS:
    /** Sets every text of the page. */
    virtual void sl_retranslateUi();

public:
    /** Back to what is stored; calls initContents(). */
    virtual void resetContents();
    /** The dialog has taken the page over; the base class keeps @p dialog for dialog(). */
    virtual void attachToDialog(PYXSettingsDialog *dialog);
    /** The dialog gives the page back, or is being destroyed. */
    virtual void detachFromDialog();
    /**
     * Takes back what the page has done beside its controls, before the dialog is closed without applying.
     * @return false keeps the dialog open.
     */
    virtual bool discardChanges();
    /** Fills the controls from both stores. */
    virtual void initContents();
    /** Fills the controls from both defaults; nothing is written. */
    virtual void restoreDefaultsContents();
    /** Called before si_madeModifications(): lets the page react to its own edits. */
    virtual void locallyHandleModifications();

Q_SIGNALS:
    /** The user, or the page itself, has changed what the controls show. */
    void si_madeModifications();

protected Q_SLOTS:
    /** What the controls' signals of change are connected to; does nothing while they are to be ignored. */
    void sl_modified();

protected:
    void setSettingsToUse(PYXSettings *settings, PYXSettings *defaults);
    void setSharedSettingsToUse(PYXSettings *shared, PYXSettings *sharedDefaults);

    /** The stores, of which the page owns none; null while no dialog runs. */
    PYXSettings *settings() const { return m_settings; }
    PYXSettings *defaultSettings() const { return m_defaultSettings; }
    PYXSettings *sharedSettings() const { return m_sharedSettings; }
    PYXSettings *sharedDefaultSettings() const { return m_sharedDefaultSettings; }
    /** Null while the page is not registered. */
    PYXSettingsDialog *dialog() const { return m_dialog; }

    /**
     * The dynamic properties "::CATEGORY::", "::TITLE::" and "::ICON::". The dialog follows a new title or
     * icon at once; the category counts when the page is registered.
     */
    void setCategory(const QString &category);
    QString category() const;
    void setTitle(const QString &title);
    QString title() const;
    void setIcon(const QIcon &icon);
    QIcon icon() const;

    /** Whether sl_modified() does nothing, as while the page fills its controls itself. */
    void setIgnoreModified(bool ignore);

    /** Whether the controls show something else than the stores hold; the opposite of isInCleanState(). */
    bool isDirty() const;
    bool isInCleanState() const;
    /** Whether the controls show the defaults. */
    bool isInDefaultState() const;

    /** Blocks or unblocks the signals of everything on the page, but not those of the page. */
    void blockControlsSignals(bool block);
    /** Of a widget and all its children; an object that is no widget is left alone, with its children. */
    void recursiveBlockSignals(QObject *object, bool block);
    /** Of the page and everything on it. */
    void recursiveBlockSignals(bool block);

private:
    friend class PYXSettingsDialog;

    bool m_bIgnoreModified = false;
    PYXSettingsDialog *m_dialog = nullptr;
    PYXSettings *m_settings = nullptr;
    PYXSettings *m_defaultSettings = nullptr;
    PYXSettings *m_sharedSettings = nullptr;
    PYXSettings *m_sharedDefaultSettings = nullptr;
};

} // namespace PYXRuntime
