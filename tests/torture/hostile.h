// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_HOSTILE_H
#define TESTS_TORTURE_HOSTILE_H

#include "random.h"

#include <zvsdkbase/zelutil.h>

#include <string>
#include <vector>

/// Arguments as a careless, confused or malicious add-on might pass them, with enough sane ones between to get far.
namespace torture {

/// What arguments are taken from: made before the calls, released after the last.
class Pool
{
public:
    Pool();
    ~Pool();
    Pool(const Pool &) = delete;
    Pool &operator=(const Pool &) = delete;

    /// Any text, be it a label, a number, a format or rubbish; null at times.
    const char *text(Random &random) const;
    /// Null and empty ones are among them.
    IndexSet set(Random &random) const { return random.of(m_sets); }
    StringList_s *list(Random &random) const { return random.of(m_lists); }

private:
    std::vector<std::string> m_texts;
    /// So long that only a few calls can have one.
    std::vector<std::string> m_longTexts;
    std::vector<IndexSet> m_sets;
    std::vector<StringList_s *> m_lists;
};

/// A size, position, count or colour.
int anyInt(Random &random);
double anyDouble(Random &random);
LgIndex anyIndex(Random &random);
ZelBoolean anyBoolean(Random &random);

/// Whether a text is valid UTF-8, as everything that the library hands out has to be.
bool isUtf8(const char *text);

} // namespace torture

#endif
