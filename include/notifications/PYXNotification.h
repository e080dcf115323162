// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QPixmap>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QMessageBox>

class QCheckBox;
class QLabel;
class QScrollArea;

namespace PYXRuntime {

/**
 * A modal message that its user can suppress with a check box: it is then not shown again, and the button
 * that was pressed is returned at once.
 *
 * A message is identified by two texts, e.g. a module and a name. They are joined, so ("ab", "c") and
 * ("a", "bc") are the same message. All texts are plain, never HTML.
 *
 * Dialogs run in the GUI thread; everything about suppressed messages may be called from any thread.
 */
class PYXRUNTIME_EXPORT PYXNotification final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXNotification)
public:
    using StandardButton = QDialogButtonBox::StandardButton;
    using StandardButtons = QDialogButtonBox::StandardButtons;

    /** A message that is not shown. Title and text are those of the dialog, empty where it had none. */
    struct struSuppressedMessage
    {
        QString firstKey;
        QString secondKey;
        QString title;
        QString text; ///< its beginning, in one line
        StandardButton returnButton = QDialogButtonBox::NoButton;
        bool bPersistent = false; ///< suppressed in the next run too
    };

    explicit PYXNotification(QWidget *parent = nullptr);
    ~PYXNotification() override;

    /**
     * Shows a message, unless it is suppressed.
     * @param buttons if none, Ok
     * @param defaultButton if none, or one that is not among @p buttons, the dialog chooses
     * @param persistent whether a suppression outlives this run, in the user's application settings
     * @return the pressed button, now or when the message was suppressed. NoButton if the dialog was closed
     * without a button (by Escape, or with its parent): then nothing is suppressed. Also NoButton, with an
     * error trace, outside of the GUI thread.
     */
    static StandardButton information(QWidget *parent, const QString &title, const QString &text,
                                      const QString &firstKey, const QString &secondKey,
                                      StandardButtons buttons = QDialogButtonBox::Ok,
                                      StandardButton defaultButton = QDialogButtonBox::NoButton,
                                      bool persistent = false);
    static StandardButton warning(QWidget *parent, const QString &title, const QString &text,
                                  const QString &firstKey, const QString &secondKey,
                                  StandardButtons buttons = QDialogButtonBox::Ok,
                                  StandardButton defaultButton = QDialogButtonBox::NoButton,
                                  bool persistent = false);
    static StandardButton critical(QWidget *parent, const QString &title, const QString &text,
                                   const QString &firstKey, const QString &secondKey,
                                   StandardButtons buttons = QDialogButtonBox::Ok,
                                   StandardButton defaultButton = QDialogButtonBox::NoButton,
                                   bool persistent = false);
    static StandardButton question(QWidget *parent, const QString &title, const QString &text,
                                   const QString &firstKey, const QString &secondKey,
                                   StandardButtons buttons = QDialogButtonBox::Yes | QDialogButtonBox::No,
                                   StandardButton defaultButton = QDialogButtonBox::NoButton,
                                   bool persistent = false);

    static bool willShowMessage(const QString &firstKey, const QString &secondKey);
    /** NoButton for a message that is not suppressed. */
    static StandardButton hiddenMessageReturnButton(const QString &firstKey, const QString &secondKey);
    /**
     * Suppresses a message, or shows it again: then also in later runs, whatever @p persistent says.
     * @param title and @p text tell a user which message that is; see suppressedMessages()
     */
    static void setWillShowMessage(const QString &firstKey, const QString &secondKey, bool show,
                                   StandardButton returnButton, bool persistent = false,
                                   const QString &title = QString(), const QString &text = QString());

    /**
     * Shows a message again that is suppressed with that button, for callers to whom the answer makes no
     * sense (any more): asked to stop or to go on, nobody can want "stop" for ever. NoButton does nothing.
     */
    static void fixHiddenForAbsurdReturnButton(const QString &firstKey, const QString &secondKey,
                                               StandardButton button);
    static void fixHiddenForAbsurdReturnButtons(const QString &firstKey, const QString &secondKey,
                                                StandardButtons buttons);

    /** All that is suppressed, sorted by title and text: for a page that lists it. */
    static QList<struSuppressedMessage> suppressedMessages();
    /** Ends all suppressions, of this run and of later ones. */
    static void showAllMessagesAgain();

    /** Of a text of more than 20 000 characters only these are shown. */
    void setText(const QString &text);
    QString text() const { return m_text; }

    /** Also sets its pixmap, and whether the check box asks about a message or a question. */
    void setIcon(QMessageBox::Icon icon);
    QMessageBox::Icon icon() const { return m_icon; }
    void setIconPixmap(const QPixmap &pixmap);
    QPixmap iconPixmap() const;
    /** The application style's pixmap; null for NoIcon, and outside of the GUI thread. */
    static QPixmap standardPixmap(QMessageBox::Icon icon);

    void setStandardButtons(StandardButtons buttons);
    StandardButtons standardButtons() const;
    /** A button that the dialog does not have (yet) becomes its default when it gets it. */
    void setDefaultButton(StandardButton button);
    StandardButton defaultButton() const { return m_defaultButton; }

    /** NoButton until one was clicked since the dialog was shown. */
    StandardButton clickedButton() const { return m_clickedButton; }
    /** The state of the check box; at first true. */
    bool showAgain() const;

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void _build();
    void _translate();
    void _fitText();
    void _applyDefaultButton();
    void _sl_buttonBox_clicked(QAbstractButton *a_button);

    QString m_text;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
    bool m_bOwnPixmap = false;
    StandardButton m_defaultButton = QDialogButtonBox::NoButton;
    StandardButton m_clickedButton = QDialogButtonBox::NoButton;
    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QScrollArea *m_textArea;
    QCheckBox *m_showAgainBox;
    QDialogButtonBox *m_buttonBox;
};

} // namespace PYXRuntime
