// SPDX-License-Identifier: MIT
#ifndef BENCH_TABLE_H
#define BENCH_TABLE_H

#include "comparison.h"

namespace bench {

/// The result of one case at one size: seconds or bytes for each call, and the library's for one of the toolkit's.
/// Medians all, so the ratio is not quite that of the other two. Without anything to compare with, the last two are 0.
struct Row
{
    int size;
    double library;
    double bare;
    double ratio;
};

/// The power of the size with which the library's figures grow: the slope of the line through their logarithms.
double growth(const std::vector<Row> &rows, double Row::*figure = &Row::library);

/// Prints results beside the goals.
class Table
{
public:
    Table();
    void add(const Case &tested, const Row &row);
    /// Ends the table; true if all goals are met.
    bool finish();

private:
    void endCase();
    void judge(const std::string &goal, bool isMet, const char *toolkitsLimit = nullptr);

    std::string m_name;
    bool m_isGrowing = false;
    std::vector<Row> m_rows;
    int m_missed = 0;
    int m_beyondReach = 0;
};

} // namespace bench

#endif
