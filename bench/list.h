// SPDX-License-Identifier: MIT
#ifndef BENCH_LIST_H
#define BENCH_LIST_H

#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QListWidget>

namespace bench {

inline const std::vector<int> kToAMillion = {1000, 10000, 100000, 1000000};
inline const std::vector<int> kToAHundredThousand = {1000, 10000, 100000};
constexpr Goal kNoGoal = {Goal::None, 0};

/// A list and what an add-on has in hand for it.
class List
{
public:
    List(int count, bool isVisible);
    ~List() { ZelUtilStringListDealloc(&texts); }
    List(const List &) = delete;
    List &operator=(const List &) = delete;

    void fill();
    void fillAndSelect();
    /// Selects the positions in one call.
    void select(const std::vector<int> &which);
    void read();
    /// What the list still has to do to be seen as it is.
    void settle();

private:
    Dialog m_dialog;

public:
    int size;
    int id;
    QListWidget *widget;
    StringList_s *texts;
    /// Every other position, in order and scattered.
    std::vector<int> alternate;
    std::vector<int> scattered;
};

using Action = void (*)(List &);

/// The library's work, and the toolkit's if there is one to compare with, on lists of several sizes.
Case listCase(const char *name, Goal goal, const std::vector<int> &sizes, Action prepare, Action library,
              Action bare = nullptr, bool isVisible = false);

} // namespace bench

#endif
