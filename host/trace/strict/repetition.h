// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_REPETITION_H
#define ZELGUI_TRACE_STRICT_REPETITION_H

#include "strict/faults.h"
#include "strict/objects.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace orvane::trace {

/// Dialogs and widgets are created once. Nothing destroys them, so what a launch or a callback creates each time piles
/// up.
///
/// The same is created again if the same code asks for the same, but in another run of the add-on's; within one run, a
/// loop may well create several of the same. What is in use beside the other is not the same thing again: a dialog
/// while the earlier one is up, and a widget in place of one that was hidden.
class Repetition : public Listener
{
public:
    Repetition(Faults &faults, const Objects &objects) : m_faults(faults), m_objects(objects) {}

    void returned(const Call &call) override;
    void entered(const Run &run) override { m_runs.push_back(run.number); }
    void left(const Run &) override { m_runs.pop_back(); }

private:
    struct Created
    {
        int id;
        int run;
    };

    /// The function, the code that has called it, its numbers and its texts.
    using Signature = std::tuple<std::string, const void *, std::vector<int>, std::vector<std::string>>;

    static Signature signatureOf(const Call &call);
    bool isReplaced(int id) const;

    Faults &m_faults;
    const Objects &m_objects;
    std::map<Signature, Created> m_created;
    /// Numbers of the runs that are going on, the innermost last.
    std::vector<int> m_runs;
};

} // namespace orvane::trace

#endif
