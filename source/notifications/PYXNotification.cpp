// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNotification.h"

#include "PYXTraceWrapper.h"
#include "SuppressedMessages.h"

#include <QtCore/QEvent>
#include <QtCore/QMetaEnum>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStyle>

namespace PYXRuntime {
namespace {

using StandardButton = PYXNotification::StandardButton;
using StandardButtons = PYXNotification::StandardButtons;

constexpr const char *TraceFile = "source\\PYXNotification";
constexpr int MinimumCharactersPerLine = 30;
constexpr int MaximumCharactersPerLine = 70;
/** Nobody reads more, and laying out megabytes takes minutes. */
constexpr int MaximumShownCharacters = 20'000;
const QChar Ellipsis(0x2026);

/** What the four kinds of dialogs have in common. */
struct struRequest
{
    QWidget *parent;
    QString title;
    QString text;
    QString firstKey;
    QString secondKey;
    StandardButtons buttons;
    StandardButton defaultButton;
    bool bPersistent;
};

bool canShowDialogs()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return qobject_cast<const QApplication *>(application) != nullptr &&
           application->thread() == QThread::currentThread();
}

/** @return false if the dialog went while it was shown */
bool run(const QPointer<PYXNotification> &dialog, QMessageBox::Icon icon, const struRequest &request)
{
    const bool bNone = request.buttons == QDialogButtonBox::NoButton;
    dialog->setStandardButtons(bNone ? QDialogButtonBox::Ok : request.buttons);
    dialog->setDefaultButton(request.defaultButton);
    dialog->setIcon(icon);
    dialog->setWindowTitle(request.title);
    dialog->setText(request.text);
    dialog->exec();
    return !dialog.isNull();
}

StandardButton show(QMessageBox::Icon icon, const struRequest &request)
{
    if (!PYXNotification::willShowMessage(request.firstKey, request.secondKey))
        return PYXNotification::hiddenMessageReturnButton(request.firstKey, request.secondKey);
    if (!canShowDialogs()) {
        PYXTraceWrapper::staticTraceError(QStringLiteral("A message can only be shown in the GUI thread: ") +
                                              request.text,
                                          TraceFile, __LINE__);
        return QDialogButtonBox::NoButton;
    }
    const QPointer<PYXNotification> dialog(new PYXNotification(request.parent));
    if (!run(dialog, icon, request))
        return QDialogButtonBox::NoButton;
    const StandardButton clicked = dialog->clickedButton();
    const bool bShowAgain = dialog->showAgain();
    delete dialog.data();
    if (clicked != QDialogButtonBox::NoButton)
        PYXNotification::setWillShowMessage(request.firstKey, request.secondKey, bShowAgain, clicked,
                                            request.bPersistent, request.title, request.text);
    return clicked;
}

} // namespace

PYXNotification::PYXNotification(QWidget *parent)
    : QDialog(parent)
    , m_iconLabel(new QLabel(this))
    , m_textLabel(new QLabel)
    , m_textArea(new QScrollArea(this))
    , m_showAgainBox(new QCheckBox(this))
    , m_buttonBox(new QDialogButtonBox(this))
{
    setObjectName(QStringLiteral("PYXNotificationClass"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    _build();
    setIcon(QMessageBox::NoIcon);
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &PYXNotification::_sl_buttonBox_clicked);
}

PYXNotification::~PYXNotification() = default;

void PYXNotification::_build()
{
    m_iconLabel->setObjectName(QStringLiteral("iconLabel"));
    m_textLabel->setObjectName(QStringLiteral("textLabel"));
    m_textLabel->setTextFormat(Qt::PlainText);
    m_textLabel->setWordWrap(true);
    m_textLabel->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_textLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_textArea->setFrameShape(QFrame::NoFrame);
    m_textArea->setWidgetResizable(true);
    m_textArea->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // what _fitText() says holds
    m_textArea->setWidget(m_textLabel);
    m_showAgainBox->setObjectName(QStringLiteral("showAgainBox"));
    m_showAgainBox->setChecked(true);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));

    auto *const grid = new QGridLayout(this);
    grid->addWidget(m_iconLabel, 0, 0, Qt::AlignTop);
    grid->addWidget(m_textArea, 0, 1);
    grid->addWidget(m_showAgainBox, 1, 1);
    grid->addWidget(m_buttonBox, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
}

StandardButton PYXNotification::information(QWidget *parent, const QString &title, const QString &text,
                                            const QString &firstKey, const QString &secondKey,
                                            StandardButtons buttons, StandardButton defaultButton,
                                            bool persistent)
{
    return PYXRuntime::show(QMessageBox::Information,
                            {parent, title, text, firstKey, secondKey, buttons, defaultButton, persistent});
}

StandardButton PYXNotification::warning(QWidget *parent, const QString &title, const QString &text,
                                        const QString &firstKey, const QString &secondKey,
                                        StandardButtons buttons, StandardButton defaultButton,
                                        bool persistent)
{
    return PYXRuntime::show(QMessageBox::Warning,
                            {parent, title, text, firstKey, secondKey, buttons, defaultButton, persistent});
}

StandardButton PYXNotification::critical(QWidget *parent, const QString &title, const QString &text,
                                         const QString &firstKey, const QString &secondKey,
                                         StandardButtons buttons, StandardButton defaultButton,
                                         bool persistent)
{
    return PYXRuntime::show(QMessageBox::Critical,
                            {parent, title, text, firstKey, secondKey, buttons, defaultButton, persistent});
}

StandardButton PYXNotification::question(QWidget *parent, const QString &title, const QString &text,
                                         const QString &firstKey, const QString &secondKey,
                                         StandardButtons buttons, StandardButton defaultButton,
                                         bool persistent)
{
    return PYXRuntime::show(QMessageBox::Question,
                            {parent, title, text, firstKey, secondKey, buttons, defaultButton, persistent});
}

bool PYXNotification::willShowMessage(const QString &firstKey, const QString &secondKey)
{
    return !SuppressedMessages::instance().contains(firstKey, secondKey);
}

StandardButton PYXNotification::hiddenMessageReturnButton(const QString &firstKey, const QString &secondKey)
{
    return SuppressedMessages::instance().returnButton(firstKey, secondKey);
}

void PYXNotification::setWillShowMessage(const QString &firstKey, const QString &secondKey, bool show,
                                         StandardButton returnButton, bool persistent, const QString &title,
                                         const QString &text)
{
    if (show)
        SuppressedMessages::instance().remove(firstKey, secondKey);
    else
        SuppressedMessages::instance().suppress({firstKey, secondKey, title, text, returnButton, persistent});
}

void PYXNotification::fixHiddenForAbsurdReturnButton(const QString &firstKey, const QString &secondKey,
                                                     StandardButton button)
{
    SuppressedMessages::instance().removeIfReturning(firstKey, secondKey, button);
}

void PYXNotification::fixHiddenForAbsurdReturnButtons(const QString &firstKey, const QString &secondKey,
                                                      StandardButtons buttons)
{
    const auto names = QMetaEnum::fromType<StandardButtons>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto button = StandardButton(names.value(i));
        if (buttons.testFlag(button))
            fixHiddenForAbsurdReturnButton(firstKey, secondKey, button);
    }
}

QList<PYXNotification::struSuppressedMessage> PYXNotification::suppressedMessages()
{
    return SuppressedMessages::instance().all();
}

void PYXNotification::showAllMessagesAgain()
{
    SuppressedMessages::instance().clear();
}

void PYXNotification::setText(const QString &text)
{
    m_text = text;
    const bool bCut = text.size() > MaximumShownCharacters;
    const QString shown = bCut ? text.left(MaximumShownCharacters) + Ellipsis : text;
    m_textLabel->setText(shown);
    setAccessibleDescription(shown);
    _fitText();
}

void PYXNotification::setIcon(QMessageBox::Icon icon)
{
    m_icon = icon;
    m_bOwnPixmap = false;
    m_iconLabel->setPixmap(standardPixmap(icon));
    m_iconLabel->setVisible(icon != QMessageBox::NoIcon);
    _translate();
}

void PYXNotification::_translate()
{
    m_showAgainBox->setText(m_icon == QMessageBox::Question ? tr("Ask this question again")
                                                            : tr("Show this message again"));
}

void PYXNotification::setIconPixmap(const QPixmap &pixmap)
{
    m_bOwnPixmap = true;
    m_iconLabel->setPixmap(pixmap);
    m_iconLabel->setVisible(!pixmap.isNull());
}

QPixmap PYXNotification::iconPixmap() const
{
    return m_iconLabel->pixmap(Qt::ReturnByValue);
}

QPixmap PYXNotification::standardPixmap(QMessageBox::Icon icon)
{
    if (!canShowDialogs())
        return {};
    const auto standardIcon = [icon]() -> QIcon {
        const QStyle *const style = QApplication::style();
        switch (icon) {
        case QMessageBox::Information:
            return style->standardIcon(QStyle::SP_MessageBoxInformation);
        case QMessageBox::Warning:
            return style->standardIcon(QStyle::SP_MessageBoxWarning);
        case QMessageBox::Critical:
            return style->standardIcon(QStyle::SP_MessageBoxCritical);
        case QMessageBox::Question:
            return style->standardIcon(QStyle::SP_MessageBoxQuestion);
        case QMessageBox::NoIcon:
            break;
        }
        return {};
    };
    const int extent = QApplication::style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    return standardIcon().pixmap(extent, extent);
}

void PYXNotification::setStandardButtons(StandardButtons buttons)
{
    m_buttonBox->setStandardButtons(buttons);
    _applyDefaultButton();
}

StandardButtons PYXNotification::standardButtons() const
{
    return m_buttonBox->standardButtons();
}

void PYXNotification::setDefaultButton(StandardButton button)
{
    m_defaultButton = button;
    _applyDefaultButton();
}

void PYXNotification::_applyDefaultButton()
{
    QPushButton *const button = m_buttonBox->button(m_defaultButton);
    if (button != nullptr)
        button->setDefault(true);
}

bool PYXNotification::showAgain() const
{
    return m_showAgainBox->isChecked();
}

void PYXNotification::_fitText()
{
    const QFontMetrics metrics = m_textLabel->fontMetrics();
    const int character = metrics.averageCharWidth();
    const QScreen *const screen = QDialog::screen();
    const QSize room = screen == nullptr ? QSize(640, 480) : screen->availableSize();
    const QRect natural =
        metrics.boundingRect(QRect(0, 0, qMin(character * MaximumCharactersPerLine, room.width() / 2), 1),
                             Qt::TextWordWrap, m_textLabel->text());
    const int width = qMax(natural.width() + character, character * MinimumCharactersPerLine);
    const int height = qMax(0, m_textLabel->heightForWidth(width)); // -1 of an empty text
    // A word may be wider than the lines, a path for instance.
    const bool bScrollsAside = width > room.width() * 2 / 3;
    const bool bScrolls = height > room.height() / 2;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_textArea->setHorizontalScrollBarPolicy(bScrollsAside ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    m_textArea->setFocusPolicy(bScrolls || bScrollsAside ? Qt::TabFocus
                                                         : Qt::NoFocus); // for those who scroll by keys
    m_textArea->setMinimumSize((bScrollsAside ? room.width() * 2 / 3 : width) + (bScrolls ? bar : 0),
                               (bScrolls ? room.height() / 2 : height) + (bScrollsAside ? bar : 0));
}

void PYXNotification::_sl_buttonBox_clicked(QAbstractButton *a_button)
{
    m_clickedButton = m_buttonBox->standardButton(a_button);
    done(m_clickedButton);
}

void PYXNotification::setVisible(bool visible)
{
    if (visible && isHidden())
        m_clickedButton = QDialogButtonBox::NoButton; // of an earlier time
    QDialog::setVisible(visible);
    if (!visible)
        return;
    // The first in the tab order would be the check box, which the space bar clears.
    const auto buttons = m_buttonBox->findChildren<QPushButton *>();
    for (QPushButton *const button : buttons) {
        if (button->isDefault())
            button->setFocus();
    }
}

void PYXNotification::showEvent(QShowEvent *event)
{
    _fitText();
    QDialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void PYXNotification::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        if (!m_bOwnPixmap)
            m_iconLabel->setPixmap(standardPixmap(m_icon));
        _fitText();
    } else if (event->type() == QEvent::LanguageChange) {
        _translate();
    }
}

} // namespace PYXRuntime
