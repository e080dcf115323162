// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>
#include <vector>

/** Takes figures once in a while and judges at the end what has become of them after the warm-up. */
class SoakReport final
{
public:
    enum eRule {
        ekRule_Slope,  ///< the bound is how much it may grow in an hour
        ekRule_Growth, ///< the bound is how much its median may grow from the first third to the last
        ekRule_Limit   ///< the bound is its largest value
    };

    struct struFigure
    {
        QString name;
        eRule rule = ekRule_Limit;
        double bound = 0;
        std::function<double()> read;
    };

    explicit SoakReport(double warmUpSeconds)
        : m_warmUp(warmUpSeconds)
    {}

    void add(const struFigure &figure) { m_figures.push_back(figure); }
    void takeSample(double seconds);
    double value(int figure) const { return m_rows.back().values.at(figure); }

    /** What has become of each figure, as a table in Markdown. */
    QString table() const;
    /** The names of those that have grown too much. */
    QStringList failures() const;
    /** All samples, as comma-separated values with headings. */
    QString samples() const;

private:
    struct struRow
    {
        double seconds = 0;
        QVector<double> values;
    };

    struct struVerdict
    {
        double first = 0; ///< median of the first third
        double last = 0;  ///< of the last third
        double largest = 0;
        double perHour = 0;
        bool bGood = false;
    };

    struVerdict _verdict(int figure) const;

    double m_warmUp;
    std::vector<struFigure> m_figures;
    std::vector<struRow> m_rows;
};
