// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QStringList>
#include <QtWidgets/QMenu>

namespace PYXRuntime {

/**
 * A menu of the files that were used last, the newest first, kept in the user's application settings.
 * @code
 * auto *recent = new PYXRecentFilesMenu("RecentRecordings", this);
 * fileMenu->addMenu(recent);
 * connect(recent, &PYXRecentFilesMenu::si_fileChosen, this, &MainWindow::open);
 * recent->addFile(path); // whenever one has been opened
 * @endcode
 * Menus with one key, also those of other processes, show the same files when they are opened next. GUI
 * thread only.
 */
class PYXRUNTIME_EXPORT PYXRecentFilesMenu final : public QMenu
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXRecentFilesMenu)
public:
    /** What becomes of a file that is not there. */
    enum eMissingFiles {
        ekMissingFiles_Disable, ///< it may come back, as one on a removable drive
        ekMissingFiles_Remove   ///< from the list too, when the menu is opened
    };
    Q_ENUM(eMissingFiles)

    explicit PYXRecentFilesMenu(const QString &key, QWidget *parent = nullptr);
    ~PYXRecentFilesMenu() override;

    /** Whole paths, the newest first. */
    QStringList files() const;
    /** Puts a file on top; what is beyond the maximum goes. */
    void addFile(const QString &path);
    void removeFile(const QString &path);
    void clearFiles();

    /** 10 at first; at least 1. */
    void setMaximumCount(int count);
    int maximumCount() const { return m_maximumCount; }
    void setMissingFiles(eMissingFiles missing) { m_missing = missing; }

Q_SIGNALS:
    void si_fileChosen(const QString &a_path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void _fill();
    void _store(const QStringList &files);
    void _addAction(int number, const QString &path, bool bNameIsUnique);

    const QString m_key;
    int m_maximumCount = 10;
    eMissingFiles m_missing = ekMissingFiles_Disable;
};

} // namespace PYXRuntime
