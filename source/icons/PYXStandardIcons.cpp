// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStandardIcons.h"

#include "CompositeIcons.h"
#include "ImageIconEngine.h"
#include "PYXIconLoader.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"
#include "StandardIconCallbacks.h"
#include "StandardIconTable.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXStandardIcons";
constexpr int MinimumBatchSize = 5;
constexpr uint FirstOrdinaryId = PYXStandardIcons::ekIcon_IconNotRegisteredIcon + 1;
const QLatin1String Root(":/PYXRuntime/StandardIcons/");

using Holder = SingletonHolder<PYXStandardIcons>;

/** A batch of icons to be loaded. */
class BatchEvent final : public QEvent
{
public:
    explicit BatchEvent(const QSet<uint> &ids)
        : QEvent(batchType())
        , m_ids(ids)
    {}

    static Type batchType()
    {
        static const int type = registerEventType();
        return Type(type);
    }
    QSet<uint> ids() const { return m_ids; }

private:
    QSet<uint> m_ids;
};

QHash<uint, QString> builtinPaths()
{
    QHash<uint, QString> paths;
    for (const struStandardIcon &icon : standardIconTable()) {
        if (icon.path != nullptr)
            paths.insert(icon.id, Root + QLatin1String(icon.path));
    }
    return paths;
}

} // namespace

PYXStandardIcons::PYXStandardIcons(QObject *parent)
    : QObject(parent)
    , m_loader(new PYXIconLoader(this))
    , m_builtinPaths(builtinPaths())
    , m_callbacks(std::make_unique<StandardIconCallbacks>())
    , m_delayLoadBatchSize(MinimumBatchSize)
{}

PYXStandardIcons::~PYXStandardIcons() = default;

PYXStandardIcons *PYXStandardIcons::getInstance()
{
    return Holder::instance([] { return new PYXStandardIcons; });
}

bool PYXStandardIcons::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXStandardIcons::makeSureInitialized()
{
    getInstance();
}

void PYXStandardIcons::destroyInstance()
{
    delete Holder::take();
}

QHash<QString, uint> PYXStandardIcons::standardIconsEnum()
{
    QHash<QString, uint> ids;
    for (const struStandardIcon &icon : standardIconTable())
        ids.insert(QString::fromLatin1(icon.name), icon.id);
    return ids;
}

QHash<uint, QString> PYXStandardIcons::standardIconsEnumReverse()
{
    QHash<uint, QString> names;
    for (const struStandardIcon &icon : standardIconTable())
        names.insert(icon.id, QString::fromLatin1(icon.name));
    return names;
}

QIcon PYXStandardIcons::registeredIcon(uint id)
{
    return _registeredIcon(id, ekMissing_ShownAsSuch);
}

QIcon PYXStandardIcons::registeredIcon(uint id, QIcon::Mode mode, QIcon::State state)
{
    return slicedIcon(id, {{mode, state}});
}

QIcon PYXStandardIcons::rawRegisteredIcon(uint id)
{
    return _registeredIcon(id, ekMissing_Empty);
}

QString PYXStandardIcons::registeredIconPath(uint id) const
{
    const auto registered = m_registeredPaths.constFind(id);
    return registered == m_registeredPaths.constEnd() ? builtinIconPath(id) : *registered;
}

QPixmap PYXStandardIcons::registeredIconPixmap(uint id, const QSize &size, QIcon::Mode mode,
                                               QIcon::State state)
{
    return registeredIcon(id).pixmap(size, mode, state);
}

QPixmap PYXStandardIcons::registeredIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state)
{
    return registeredIconPixmap(id, QSize(extent, extent), mode, state);
}

QIcon PYXStandardIcons::builtinIcon(uint id)
{
    return id < FirstOrdinaryId ? _specialIcon(id) : _builtinIcon(id, ekMissing_ShownAsSuch, ekParts_Builtin);
}

QIcon PYXStandardIcons::builtinIcon(uint id, QIcon::Mode mode, QIcon::State state)
{
    return PYXRuntime::slicedIcon(builtinIcon(id), {{mode, state}});
}

QString PYXStandardIcons::builtinIconPath(uint id) const
{
    return m_builtinPaths.value(id);
}

QPixmap PYXStandardIcons::builtinIconPixmap(uint id, const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return builtinIcon(id).pixmap(size, mode, state);
}

QPixmap PYXStandardIcons::builtinIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state)
{
    return builtinIconPixmap(id, QSize(extent, extent), mode, state);
}

QString PYXStandardIcons::registerIcon(uint id, const QString &baseFilePath)
{
    if (id < FirstOrdinaryId) {
        PYXTraceWrapper::staticTraceWarn(
            QStringLiteral("PYXStandardIcons::registerIcon: the id %1 is reserved").arg(id), TraceFile,
            __LINE__);
        return {};
    }
    return baseFilePath.isEmpty() ? unregisterIcon(id) : std::exchange(m_registeredPaths[id], baseFilePath);
}

QString PYXStandardIcons::unregisterIcon(uint id)
{
    return m_registeredPaths.take(id);
}

QIcon PYXStandardIcons::setOverrideIcon(uint id, const QIcon &icon)
{
    return id == ekIcon_NullIcon ? QIcon() : std::exchange(m_overrideIcons[id], icon);
}

QIcon PYXStandardIcons::setOverrideIcon(uint id, uint otherId)
{
    return setOverrideIcon(id, registeredIcon(otherId));
}

QIcon PYXStandardIcons::removeOverrideIcon(uint id)
{
    return m_overrideIcons.take(id);
}

void PYXStandardIcons::removeOverrideIcons(const QSet<uint> &ids)
{
    for (const uint id : ids)
        m_overrideIcons.remove(id);
}

void PYXStandardIcons::removeOverrideIcons(uint firstId, uint lastId)
{
    for (auto it = m_overrideIcons.begin(); it != m_overrideIcons.end();)
        it = it.key() >= firstId && it.key() <= lastId ? m_overrideIcons.erase(it) : std::next(it);
}

bool PYXStandardIcons::hasOverrideIcon(uint id) const
{
    return m_overrideIcons.contains(id);
}

QIcon PYXStandardIcons::overrideIcon(uint id) const
{
    return m_overrideIcons.value(id);
}

void PYXStandardIcons::clearOverrideIcons()
{
    m_overrideIcons.clear();
}

QIcon PYXStandardIcons::iconInvisibleIcon()
{
    return registeredIcon(ekIcon_IconInvisibleIcon);
}

QIcon PYXStandardIcons::iconNotFoundIcon()
{
    return registeredIcon(ekIcon_IconNotFoundIcon);
}

QIcon PYXStandardIcons::iconNotRegisteredIcon()
{
    return registeredIcon(ekIcon_IconNotRegisteredIcon);
}

void PYXStandardIcons::directEnsureRegisteredIconsAreCached(const QSet<uint> &ids)
{
    for (const uint id : ids)
        rawRegisteredIcon(id);
}

void PYXStandardIcons::delayedEnsureRegisteredIconsAreCached(const QSet<uint> &ids)
{
    QSet<uint> batch;
    for (const uint id : ids) {
        batch += id;
        if (batch.size() == m_delayLoadBatchSize)
            m_batches += std::exchange(batch, {});
    }
    if (!batch.isEmpty())
        m_batches += batch;
    if (!m_bBatchUnderway)
        _postNextBatch();
}

int PYXStandardIcons::delayLoadBatchSize() const
{
    return m_delayLoadBatchSize;
}

void PYXStandardIcons::setDelayLoadBatchSize(int size)
{
    m_delayLoadBatchSize = std::max(size, MinimumBatchSize);
}

void PYXStandardIcons::resetDelayLoadBatchSize()
{
    m_delayLoadBatchSize = MinimumBatchSize;
}

void PYXStandardIcons::setSizesForSVGIcons(const QList<QSize> &sizes)
{
    m_loader->setSizesForSVGIcons(sizes);
}

void PYXStandardIcons::resetSizesForSVGIcons()
{
    m_loader->resetSizesForSVGIcons();
}

QList<QSize> PYXStandardIcons::sizesForSVGIcons() const
{
    return m_loader->sizesForSVGIcons();
}

QList<QSize> PYXStandardIcons::defaultSizesForSVGIcons()
{
    return PYXIconLoader::defaultSizesForSVGIcons();
}

bool PYXStandardIcons::registerCallback(uint firstId, uint lastId, IStandardIconsCallback *callback)
{
    return m_callbacks->add(firstId, lastId, callback);
}

bool PYXStandardIcons::registerCallback(IStandardIconsCallback *callback)
{
    return m_callbacks->add(FirstOrdinaryId, std::numeric_limits<uint>::max(), callback);
}

bool PYXStandardIcons::unregisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback)
{
    return m_callbacks->remove(firstId, lastId, callback);
}

bool PYXStandardIcons::unregisterCallback(IStandardIconsCallback *callback)
{
    return m_callbacks->removeAll(callback);
}

bool PYXStandardIcons::event(QEvent *event)
{
    if (event->type() != BatchEvent::batchType())
        return QObject::event(event);
    // Posted events are all handled before anything else is: the next batch comes when the loop is idle.
    QTimer::singleShot(0, this, &PYXStandardIcons::_postNextBatch);
    directEnsureRegisteredIconsAreCached(static_cast<BatchEvent *>(event)->ids());
    return true;
}

void PYXStandardIcons::_postNextBatch()
{
    m_bBatchUnderway = !m_batches.isEmpty();
    if (m_bBatchUnderway)
        QCoreApplication::postEvent(this, new BatchEvent(m_batches.takeFirst()));
}

QIcon PYXStandardIcons::_registeredIcon(uint id, eMissing missing)
{
    if (id == ekIcon_NullIcon)
        return {};
    const auto overriding = m_overrideIcons.constFind(id);
    if (overriding != m_overrideIcons.constEnd())
        return *overriding;
    if (id < FirstOrdinaryId)
        return id == ekIcon_IconInvisibleIcon || missing == ekMissing_ShownAsSuch ? _specialIcon(id)
                                                                                  : QIcon();
    if (!m_callbacks->isEmpty()) {
        const StandardIconCallbacks::struAnswer answer = m_callbacks->ask(id);
        if (!answer.icon.isNull())
            return answer.icon;
        if (!answer.path.isEmpty())
            return _loadedIcon(answer.path, missing);
    }
    const auto registered = m_registeredPaths.constFind(id);
    if (registered != m_registeredPaths.constEnd())
        return _loadedIcon(*registered, missing);
    return _builtinIcon(id, missing, ekParts_Registered);
}

QIcon PYXStandardIcons::_builtinIcon(uint id, eMissing missing, eParts parts)
{
    QIcon made = _madeIcon(id, parts);
    if (!made.isNull())
        return made;
    const auto path = m_builtinPaths.constFind(id);
    if (path != m_builtinPaths.constEnd())
        return _loadedIcon(*path, missing);
    return missing == ekMissing_Empty ? QIcon() : iconNotRegisteredIcon();
}

QIcon PYXStandardIcons::_loadedIcon(const QString &baseFilePath, eMissing missing)
{
    const QIcon icon = m_loader->load(baseFilePath);
    return icon.isNull() && missing == ekMissing_ShownAsSuch ? iconNotFoundIcon() : icon;
}

QIcon PYXStandardIcons::_specialIcon(uint id)
{
    static const QHash<uint, QLatin1String> files{
        {ekIcon_IconInvisibleIcon, QLatin1String("icon_invisible.ico")},
        {ekIcon_IconNotFoundIcon, QLatin1String("icon_not_found.ico")},
        {ekIcon_IconNotRegisteredIcon, QLatin1String("icon_not_registered.ico")}};
    const auto file = files.constFind(id);
    if (file == files.constEnd())
        return {};
    QIcon &icon = m_specialIcons[id];
    if (icon.isNull()) {
        auto engine = std::make_unique<ImageIconEngine>();
        engine->add(readIconImageFile(Root + *file, {}), {}, {});
        icon = QIcon(engine.release());
    }
    return icon;
}

} // namespace PYXRuntime
