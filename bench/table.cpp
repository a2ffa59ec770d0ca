// SPDX-License-Identifier: MIT
#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace bench {

namespace {

std::string format(const char *pattern, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, value);
    return text;
}

std::string figure(double value, Meter meter)
{
    if (meter != Meter::Time)
        return value < 10000 ? format("%.0f B", value) : format("%.0f KiB", value / 1024);
    if (value < 1e-6)
        return format("%.1f ns", value * 1e9);
    if (value < 1e-3)
        return format("%.1f us", value * 1e6);
    return value < 1 ? format("%.1f ms", value * 1e3) : format("%.2f s", value);
}

std::string written(const Goal &goal, Meter meter)
{
    switch (goal.kind) {
    case Goal::Ratio:
        return goal.limit < 0.1 ? format("<= 1/%.0f", 1 / goal.limit) : format("<= %.2f", goal.limit);
    case Goal::Difference:
        return "<= +" + figure(goal.limit, meter);
    case Goal::Most:
        return "<= " + figure(goal.limit, meter);
    case Goal::None:
        break;
    }
    return {};
}

bool isMet(const Goal &goal, const Row &row)
{
    switch (goal.kind) {
    case Goal::Ratio:
        return row.ratio <= goal.limit;
    case Goal::Difference:
        return row.library - row.bare <= goal.limit;
    case Goal::Most:
        return row.library <= goal.limit;
    case Goal::None:
        break;
    }
    return true;
}

} // namespace

double growth(const std::vector<Row> &rows, double Row::*figure)
{
    const auto count = double(rows.size());
    double x = 0;
    double y = 0;
    double xx = 0;
    double xy = 0;
    for (const Row &row : rows) {
        const double logSize = std::log(row.size);
        const double logFigure = std::log(row.*figure);
        x += logSize;
        y += logFigure;
        xx += logSize * logSize;
        xy += logSize * logFigure;
    }
    return (count * xy - x * y) / (count * xx - x * x);
}

Table::Table()
{
    std::printf("%-44s %9s %10s %10s %7s  %s\n", "", "size", "library", "bare", "ratio", "goal");
}

void Table::add(const Case &tested, const Row &row)
{
    if (tested.name != m_name)
        endCase();
    m_name = tested.name;
    m_isGrowing = tested.sizes.size() > 1;
    m_rows.push_back(row);
    const bool hasBare = row.bare > 0;
    std::printf("%-44s %9s %10s %10s %7s  ", tested.name.c_str(), row.size > 0 ? std::to_string(row.size).c_str() : "",
                figure(row.library, tested.meter).c_str(), hasBare ? figure(row.bare, tested.meter).c_str() : "",
                !hasBare ? "" : format(row.ratio < 0.1 ? "%.5f" : "%.3f", row.ratio).c_str());
    judge(written(tested.goal, tested.meter), isMet(tested.goal, row), tested.toolkitsLimit);
}

void Table::endCase()
{
    if (m_isGrowing && m_rows.size() > 1) {
        const double library = growth(m_rows);
        const double bare = m_rows.front().bare > 0 ? growth(m_rows, &Row::bare) : 0;
        std::printf("%-44s %9s %10s %10s %7s  ", m_name.c_str(), "growth", format("n^%.2f", library).c_str(),
                    bare > 0 ? format("n^%.2f", bare).c_str() : "", "");
        // Caches make even work that is strictly linear grow a little faster, and the toolkit's with it.
        const bool isNeverSlower =
            bare > 0 && std::all_of(m_rows.begin(), m_rows.end(), [](const Row &row) { return row.ratio <= 1; });
        const char *toolkitsLimit = nullptr;
        if (bare > kLargestGrowth)
            toolkitsLimit = "bare grows faster than that, too";
        else if (isNeverSlower)
            toolkitsLimit = "bare takes longer at every size";
        judge(format("<= n^%.1f", kLargestGrowth), library <= kLargestGrowth, toolkitsLimit);
    }
    m_rows.clear();
}

void Table::judge(const std::string &goal, bool isMet, const char *toolkitsLimit)
{
    std::string outcome;
    if (!isMet && toolkitsLimit) {
        outcome = std::string("  toolkit's limit: ") + toolkitsLimit;
        ++m_beyondReach;
    } else if (!isMet) {
        outcome = "  MISSED";
        ++m_missed;
    }
    std::printf("%s%s\n", goal.c_str(), outcome.c_str());
    std::fflush(stdout);
}

bool Table::finish()
{
    endCase();
    std::printf("\n%d goals missed, %d out of reach because of the toolkit\n", m_missed, m_beyondReach);
    return m_missed == 0;
}

} // namespace bench
