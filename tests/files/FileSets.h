// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

/** A set whose files are called "<base>1", "<base>2" ... */
template <typename Set>
class Numbered : public Set
{
public:
    using Set::_getWeightOfData;
    explicit Numbered(const QString &directory, quint64 maximum = 0)
    {
        this->setBaseDirectory(directory);
        this->setMaximumWeightPerFile(maximum);
    }

protected:
    QString _getNextFileName() override { return this->baseFileName() + QString::number(++m_number); }

private:
    int m_number = 0;
};
