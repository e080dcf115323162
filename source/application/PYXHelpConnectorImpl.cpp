// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXHelpConnectorImpl.h"

#include "HelpEntries.h"
#include "PYXBroker.h"
#include "PYXITransConnector.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"

#include <QtCore/QFileInfo>
#include <QtGui/QDesktopServices>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXHelpConnectorImpl>;

constexpr const char *TraceFile = "source\\PYXHelpConnectorImpl";
constexpr uint BrokerName = 0;
const QLatin1String ActionSuffix("Action");

/** The file for the current language if there is one. */
QString fileForLocale(const QString &path)
{
    const auto *const translations = PYXBroker::getInstance()->topObject<PYXITransConnector>();
    if (path.isEmpty() || translations == nullptr)
        return path;
    const QFileInfo file(path);
    QString translated = file.path() + QLatin1Char('/') + file.completeBaseName() + QLatin1Char('_') +
                         translations->getLocaleName();
    if (!file.suffix().isEmpty())
        translated += QLatin1Char('.') + file.suffix();
    return QFileInfo::exists(translated) ? translated : path;
}

bool isMissing(const QUrl &page)
{
    return page.isLocalFile() && !QFileInfo::exists(page.toLocalFile());
}

bool openPage(const QUrl &page)
{
    if (QDesktopServices::openUrl(page))
        return true;
    PYXTraceWrapper::staticTraceWarn(
        QStringLiteral("Help page \"%1\" cannot be opened.").arg(page.toDisplayString()), TraceFile,
        __LINE__);
    return false;
}

bool isHelpKey(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

} // namespace

PYXHelpConnectorImpl::PYXHelpConnectorImpl()
    : m_entries(std::make_unique<struHelpEntries>())
{
    setObjectName(QStringLiteral("PYXRuntime::PYXHelpConnectorImpl"));
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

PYXHelpConnectorImpl::~PYXHelpConnectorImpl() = default;

PYXHelpConnectorImpl *PYXHelpConnectorImpl::getInstance()
{
    if (PYXHelpConnectorImpl *const connector = Holder::existing())
        return connector;
    PYXHelpConnectorImpl *const connector = Holder::instance([] { return new PYXHelpConnectorImpl; });
    connector->m_registration =
        PYXBrokerRegistration(InterfaceIdentifiers::helpConnector(), BrokerName, connector);
    return connector;
}

bool PYXHelpConnectorImpl::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXHelpConnectorImpl::makeSureInitialized()
{
    getInstance();
}

void PYXHelpConnectorImpl::destroyInstance()
{
    delete Holder::take();
}

void PYXHelpConnectorImpl::setHelpEntryFile(const QString &path)
{
    m_helpEntryFile = path;
}

bool PYXHelpConnectorImpl::hasHelp(const QString &context) const
{
    return _entries().pages.contains(context);
}

bool PYXHelpConnectorImpl::showHelp(const QString &context)
{
    const struHelpEntries &entries = _entries();
    const QUrl page = entries.pages.value(context);
    if (page.isValid() && !isMissing(page))
        return openPage(page);
    const QString reason = page.isValid()
                               ? QStringLiteral("Help page \"%1\" is missing").arg(page.toDisplayString())
                               : QStringLiteral("There is no help page for \"%1\"").arg(context);
    const bool bStart = entries.start.isValid() && !isMissing(entries.start);
    PYXTraceWrapper::staticTraceWarn(
        reason + (bStart ? QLatin1String(": opening the start page") : QLatin1String(", and no start page")),
        TraceFile, __LINE__);
    return bStart && openPage(entries.start);
}

bool PYXHelpConnectorImpl::showHelpFor(const QObject *object)
{
    QString first;
    for (const QObject *at = object; at != nullptr; at = at->parent()) {
        const QString context = _contextOf(at);
        if (hasHelp(context))
            return showHelp(context);
        if (first.isEmpty())
            first = context;
    }
    return showHelp(first);
}

bool PYXHelpConnectorImpl::eventFilter(QObject *watched, QEvent *event)
{
    // The key comes to a window when no widget in it has taken it.
    if (!isHelpKey(*event) || m_helpEntryFile.isEmpty() || !watched->isWidgetType())
        return false;
    const auto *const window = static_cast<QWidget *>(watched);
    if (!window->isWindow())
        return false;
    const QWidget *const focus = QApplication::focusWidget();
    showHelpFor(focus != nullptr && focus->window() == window ? focus : window);
    return true;
}

void PYXHelpConnectorImpl::sl_onHelpRequested()
{
    showHelpFor(sender() != nullptr ? sender() : QApplication::focusWidget());
}

const struHelpEntries &PYXHelpConnectorImpl::_entries() const
{
    const QString path = fileForLocale(m_helpEntryFile);
    const QDateTime changed = path.isEmpty() ? QDateTime() : QFileInfo(path).lastModified();
    if (path != m_readFile || changed != m_readFileChanged) {
        m_readFile = path;
        m_readFileChanged = changed;
        *m_entries = path.isEmpty() ? struHelpEntries() : readHelpEntries(path);
    }
    return *m_entries;
}

/** What the object asks help for; the name of an action may end in "Action". */
QString PYXHelpConnectorImpl::_contextOf(const QObject *object) const
{
    QString context = object->property(ContextProperty).toString();
    if (!context.isEmpty())
        return context;
    const QString name = object->objectName();
    const bool bShorter = name.endsWith(ActionSuffix) && !hasHelp(name);
    return bShorter ? name.left(name.size() - ActionSuffix.size()) : name;
}

} // namespace PYXRuntime
