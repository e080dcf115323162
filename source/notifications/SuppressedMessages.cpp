// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SuppressedMessages.h"

#include "PYXSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QMetaEnum>

#include <algorithm>
#include <mutex>
#include <optional>
#include <tuple>

namespace PYXRuntime {
namespace {

using Lock = std::lock_guard<DataMutex>;
using StoreLock = std::lock_guard<std::recursive_mutex>;
using struMessage = SuppressedMessages::struMessage;

constexpr int MaximumTextLength = 200;
constexpr uint HashSeed = 0;

const QLatin1String StoreGroup("::PYXRuntime::/SuppressedMessages");
const QLatin1String GroupPrefix("Message_");
const QLatin1String FirstKeyName("FirstKey");
const QLatin1String SecondKeyName("SecondKey");
const QLatin1String TitleName("Title");
const QLatin1String TextName("Text");
const QLatin1String ButtonName("Button");

QMetaEnum buttonEnumeration()
{
    return QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
}

QString groupOf(const QString &firstKey, const QString &secondKey)
{
    const QByteArray digest =
        QCryptographicHash::hash((firstKey + secondKey).toUtf8(), QCryptographicHash::Sha1);
    return StoreGroup + u'/' + GroupPrefix + QLatin1String(digest.toHex());
}

void write(const struMessage &message)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.beginGroup(groupOf(message.firstKey, message.secondKey));
    settings.setValue(FirstKeyName, message.firstKey);
    settings.setValue(SecondKeyName, message.secondKey);
    settings.setValue(TitleName, message.title);
    settings.setValue(TextName, message.text);
    settings.setValue(ButtonName, QString::fromLatin1(buttonEnumeration().valueToKey(message.returnButton)));
}

std::optional<struMessage> read(const PYXSettings &settings, const QString &group)
{
    const auto text = [&](QLatin1String name) { return settings.stringValue(group + u'/' + name, true); };
    bool bKnown = false;
    const int button = buttonEnumeration().keyToValue(text(ButtonName).toLatin1().constData(), &bKnown);
    struMessage message;
    if (!bKnown || !settings.contains(group + u'/' + FirstKeyName, true))
        return std::nullopt;
    message.firstKey = text(FirstKeyName);
    message.secondKey = text(SecondKeyName);
    message.title = text(TitleName);
    message.text = text(TextName);
    message.returnButton = SuppressedMessages::StandardButton(button);
    message.bPersistent = true;
    return message;
}

QList<struMessage> readAll()
{
    QList<struMessage> messages;
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.beginGroup(StoreGroup);
    const QStringList groups = settings.childGroups(true);
    for (const QString &group : groups) {
        if (const std::optional<struMessage> message = read(settings, group))
            messages += *message;
    }
    return messages;
}

QString beginningOf(const QString &text)
{
    const QString line = text.left(4 * MaximumTextLength).simplified();
    return line.size() <= MaximumTextLength ? line : line.left(MaximumTextLength - 1) + QChar(0x2026);
}

} // namespace

SuppressedMessages &SuppressedMessages::instance()
{
    static auto *const messages = new SuppressedMessages;
    return *messages;
}

bool SuppressedMessages::contains(const QString &firstKey, const QString &secondKey)
{
    _loadOnce();
    const Lock lock(m_mutex);
    return m_messages.contains(_hashKey(firstKey, secondKey));
}

SuppressedMessages::StandardButton SuppressedMessages::returnButton(const QString &firstKey,
                                                                    const QString &secondKey)
{
    _loadOnce();
    const Lock lock(m_mutex);
    return m_messages.value(_hashKey(firstKey, secondKey)).returnButton;
}

QList<struMessage> SuppressedMessages::all()
{
    _loadOnce();
    QList<struMessage> messages;
    {
        const Lock lock(m_mutex);
        messages = m_messages.values();
    }
    const auto rank = [](const struMessage &message) {
        return std::tie(message.title, message.text, message.firstKey, message.secondKey);
    };
    std::sort(messages.begin(), messages.end(),
              [&](const struMessage &left, const struMessage &right) { return rank(left) < rank(right); });
    return messages;
}

void SuppressedMessages::suppress(struMessage message)
{
    message.text = beginningOf(message.text);
    message.title = beginningOf(message.title);
    _loadOnce();
    const StoreLock storeLock(m_storeMutex);
    const bool bWrite = message.bPersistent;
    {
        const Lock lock(m_mutex);
        struMessage &known = m_messages[_hashKey(message.firstKey, message.secondKey)];
        message.bPersistent = bWrite || known.bPersistent;
        known = message;
    }
    if (bWrite)
        write(message);
}

void SuppressedMessages::remove(const QString &firstKey, const QString &secondKey)
{
    _removeIf(firstKey, secondKey, [](StandardButton) { return true; });
}

void SuppressedMessages::removeIfReturning(const QString &firstKey, const QString &secondKey,
                                           StandardButton button)
{
    if (button != QDialogButtonBox::NoButton)
        _removeIf(firstKey, secondKey, [button](StandardButton returned) { return returned == button; });
}

void SuppressedMessages::clear()
{
    const StoreLock storeLock(m_storeMutex);
    {
        const Lock lock(m_mutex);
        m_messages.clear();
        m_bLoaded = true;
    }
    PYXSettings(PYXSettings::eUserApplicationSettings).remove(StoreGroup);
}

uint SuppressedMessages::_hashKey(const QString &firstKey, const QString &secondKey)
{
    return qHash(firstKey + secondKey, HashSeed);
}

bool SuppressedMessages::_isLoaded()
{
    const Lock lock(m_mutex);
    return m_bLoaded;
}

void SuppressedMessages::_loadOnce()
{
    if (_isLoaded() || QCoreApplication::instance() == nullptr)
        return; // without an application it is not known yet whose settings these are
    const StoreLock storeLock(m_storeMutex);
    if (m_bLoading || _isLoaded())
        return;
    m_bLoading = true;
    const QList<struMessage> messages = readAll();
    m_bLoading = false;
    const Lock lock(m_mutex);
    if (m_bLoaded)
        return;
    m_bLoaded = true;
    for (const struMessage &message : messages) {
        const uint key = _hashKey(message.firstKey, message.secondKey);
        if (!m_messages.contains(key))
            m_messages.insert(key, message);
    }
}

template <typename Predicate>
void SuppressedMessages::_removeIf(const QString &firstKey, const QString &secondKey, Predicate matches)
{
    _loadOnce();
    const StoreLock storeLock(m_storeMutex);
    struMessage removed;
    {
        const Lock lock(m_mutex);
        const auto message = m_messages.find(_hashKey(firstKey, secondKey));
        if (message == m_messages.end() || !matches(message->returnButton))
            return;
        removed = *message;
        m_messages.erase(message);
    }
    if (removed.bPersistent)
        PYXSettings(PYXSettings::eUserApplicationSettings)
            .remove(groupOf(removed.firstKey, removed.secondKey));
}

} // namespace PYXRuntime
