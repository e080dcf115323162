// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXApplicationInfoImpl.h"
#include "SpecialDirTable.h"

namespace PYXRuntime {

/** Puts one path together; what it builds on is asked for through the virtual operation. */
class PYXApplicationInfoImpl::Resolver final
{
public:
    explicit Resolver(PYXApplicationInfoImpl &info)
        : m_info(info)
    {}

    QString path(const SpecialDirTable::struSpecialDir &dir) const;

private:
    QString _other(uint code) const { return m_info.getSpecialDirPath(code, false); }
    QString _diskCache(const SpecialDirTable::struSpecialDir &dir) const;
    QString _shellFolder(const SpecialDirTable::struSpecialDir &dir) const;
    QString _portableTree() const;

    PYXApplicationInfoImpl &m_info;
};

} // namespace PYXRuntime
