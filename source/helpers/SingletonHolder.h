// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QPointer>

namespace PYXRuntime {

/**
 * Holds the one object of a QObject class: created on first use, noticed when somebody else deletes it.
 * The pointer is never destroyed, since scopes and interfaces register while the library loads and may
 * be asked for while it unloads. Creation is not locked.
 */
template <typename T>
class SingletonHolder final
{
public:
    SingletonHolder() = delete;

    /** The object; @p create makes it where there is none. */
    template <typename Create>
    static T *instance(Create create)
    {
        if (pointer().isNull())
            pointer() = create();
        return pointer().data();
    }

    static T *existing() { return pointer().data(); }

    static void destroy() { delete pointer().data(); }

    /** The object, for the caller to delete; while that happens, there is none here. */
    static T *take()
    {
        QPointer<T> taken;
        taken.swap(pointer());
        return taken.data();
    }

private:
    static QPointer<T> &pointer()
    {
        static auto *const guarded = new QPointer<T>;
        return *guarded;
    }
};

} // namespace PYXRuntime
