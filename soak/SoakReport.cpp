// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SoakReport.h"

#include <algorithm>

namespace {

constexpr double SecondsPerHour = 3600;
constexpr std::size_t MostPoints = 1000; // whose pairs are compared

using Values = std::vector<double>;

double median(Values values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** The median of the slopes between any two points: an open dialog now and then does not move it. */
double slope(const Values &times, const Values &values)
{
    const std::size_t step = times.size() / MostPoints + 1;
    Values slopes;
    for (std::size_t i = 0; i < times.size(); i += step)
        for (std::size_t j = i + step; j < times.size(); j += step)
            slopes.push_back((values[j] - values[i]) / (times[j] - times[i]));
    return median(std::move(slopes));
}

QString number(double value)
{
    return QString::number(value, 'f', 0);
}

QString boundText(SoakReport::eRule rule, double bound)
{
    switch (rule) {
    case SoakReport::ekRule_Slope:
        return QStringLiteral("+%1 per hour").arg(number(bound));
    case SoakReport::ekRule_Growth:
        return QStringLiteral("+%1").arg(number(bound));
    default:
        return QStringLiteral("%1 at most").arg(number(bound));
    }
}

} // namespace

void SoakReport::takeSample(double seconds)
{
    struRow row{seconds, {}};
    for (const struFigure &figure : m_figures)
        row.values += figure.read();
    m_rows.push_back(row);
}

SoakReport::struVerdict SoakReport::_verdict(int figure) const
{
    Values times;
    Values values;
    for (const struRow &row : m_rows) {
        if (row.seconds < m_warmUp)
            continue;
        times.push_back(row.seconds);
        values.push_back(row.values.at(figure));
    }
    struVerdict verdict;
    if (values.size() < 3)
        return verdict;
    const auto third = std::ptrdiff_t(values.size() / 3);
    verdict.first = median({values.begin(), values.begin() + third});
    verdict.last = median({values.end() - third, values.end()});
    verdict.largest = *std::max_element(values.begin(), values.end());
    verdict.perHour = slope(times, values) * SecondsPerHour;
    const struFigure &judged = m_figures[std::size_t(figure)];
    const double found = judged.rule == ekRule_Slope    ? verdict.perHour
                         : judged.rule == ekRule_Growth ? verdict.last - verdict.first
                                                        : verdict.largest;
    verdict.bGood = found <= judged.bound;
    return verdict;
}

QString SoakReport::table() const
{
    QString table = QStringLiteral("| Figure | First third | Last third | Largest | Per hour | Bound | |\n"
                                   "|---|---|---|---|---|---|---|\n");
    for (int i = 0; i < int(m_figures.size()); ++i) {
        const struFigure &figure = m_figures[std::size_t(i)];
        const struVerdict verdict = _verdict(i);
        table += QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 |\n")
                     .arg(figure.name, number(verdict.first), number(verdict.last), number(verdict.largest),
                          number(verdict.perHour), boundText(figure.rule, figure.bound),
                          verdict.bGood ? QStringLiteral("kept") : QStringLiteral("**exceeded**"));
    }
    return table;
}

QStringList SoakReport::failures() const
{
    QStringList names;
    for (int i = 0; i < int(m_figures.size()); ++i)
        if (!_verdict(i).bGood)
            names += m_figures[std::size_t(i)].name;
    return names;
}

QString SoakReport::samples() const
{
    QString text = QStringLiteral("seconds");
    for (const struFigure &figure : m_figures)
        text += QLatin1Char(',') + figure.name;
    for (const struRow &row : m_rows) {
        text += QLatin1Char('\n') + QString::number(row.seconds, 'f', 1);
        for (const double value : row.values)
            text += QLatin1Char(',') + number(value);
    }
    return text + QLatin1Char('\n');
}
