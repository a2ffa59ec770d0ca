// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_CALLS_H
#define TESTS_TORTURE_CALLS_H

#include "hostile.h"
#include "model.h"

#include <zelgui/zelgui.h>

#include <tuple>
#include <vector>

/// Every function of the interface, callable with arguments drawn at random, as their types say.
namespace torture {

/// The add-on's callbacks of the round.
struct Callbacks
{
    ZelGUIVoidCallback done;
    ZelGUIIntCallback changed;
    ZelGUITextCallback edited;
};

/// Output arguments, with what they held before.
struct Outputs
{
    double number = 77;
    LgIndex index = 77;
    int count = 77;
    ZelBoolean flag = 77;
    int *array = &count;
    IndexSet set = reinterpret_cast<IndexSet>(this);

    bool areUntouched() const
    {
        return number == 77 && index == 77 && count == 77 && flag == 77 && array == &count &&
               set == reinterpret_cast<const IndexSet_s *>(this);
    }
    /// Releases what was handed out.
    void release();
};

/// What a call draws its arguments from. Arguments are drawn in their order.
struct Draw
{
    Random &random;
    const Pool &pool;
    const Callbacks &callbacks;
    Outputs &outputs;

    operator int() const { return anyInt(random); }
    operator double() const { return anyDouble(random); }
    operator LgIndex() const { return anyIndex(random); }
    operator ZelBoolean() const { return anyBoolean(random); }
    operator const char *() const { return pool.text(random); }
    operator IndexSet() const { return pool.set(random); }
    operator StringList_s *() const { return pool.list(random); }
    operator ZelGUIVoidCallback() const { return random.oneIn(4) ? nullptr : callbacks.done; }
    operator ZelGUIIntCallback() const { return random.oneIn(4) ? nullptr : callbacks.changed; }
    operator ZelGUITextCallback() const { return random.oneIn(4) ? nullptr : callbacks.edited; }
    operator double *() const { return orNull(&outputs.number); }
    operator LgIndex *() const { return orNull(&outputs.index); }
    operator int *() const { return orNull(&outputs.count); }
    operator int **() const { return orNull(&outputs.array); }
    operator ZelBoolean *() const { return orNull(&outputs.flag); }
    operator IndexSet *() const { return orNull(&outputs.set); }

    template <typename T>
    T *orNull(T *output) const
    {
        return random.oneIn(6) ? nullptr : output;
    }
};

struct Call
{
    const char *name;
    /// Calls it for an object. A text that it answers is looked at and released; 0 stands for null then, 1 for any.
    long long (*call)(int id, const Draw &draw);
    /// What it works on; none: it looks no object up.
    Kinds accepts;
    /// What it makes; none: nothing.
    Kinds creates;
    bool takesMainWindow;
    /// What it answers for other objects, and without a GUI.
    long long neutral;
    long long neutralWithoutGui;
    /// No callback may be called by it.
    bool isSilent;
};

const std::vector<Call> &calls();

} // namespace torture

#endif
