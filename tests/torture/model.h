// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_MODEL_H
#define TESTS_TORTURE_MODEL_H

#include "random.h"

#include <cstdint>
#include <vector>

namespace torture {

/// Kinds of objects, as bits, one for each creating function; kNoKinds for none.
using Kinds = std::uint32_t;
constexpr Kinds kNoKinds = 0;

/// What should be true of the identifiers: which are alive, and of which kind.
class Model
{
public:
    int size() const { return static_cast<int>(m_objects.size()); }
    bool isAlive(int id) const { return isKnown(id) && m_objects[std::size_t(id)].isAlive; }
    bool isAliveOf(int id, Kinds kinds) const { return isAlive(id) && (m_objects[std::size_t(id)].kind & kinds) != 0; }

    /// The next identifier names a new object. A parent of -1 is the main window.
    void add(Kinds kind, int parent) { m_objects.push_back({kind, parent, parent == -1 || isAlive(parent)}); }
    /// An object is gone, with everything inside it; -1 stands for the main window.
    void destroy(int id)
    {
        for (int each = 0; each < size(); ++each) {
            Object &object = m_objects[std::size_t(each)];
            object.isAlive = object.isAlive && each != id && object.parent != id &&
                             (object.parent < 0 || m_objects[std::size_t(object.parent)].isAlive);
        }
    }

    /// A living object of one of these kinds, each kind as often as any other; -2 if there is none.
    int anyOf(Kinds kinds, Random &random) const
    {
        const std::size_t start = random.below(m_objects.size());
        const Kinds wanted = oneKindOf(kinds, random);
        int other = -2;
        for (std::size_t i = 0; i < m_objects.size(); ++i) {
            const auto id = static_cast<int>((start + i) % m_objects.size());
            if (isAliveOf(id, wanted))
                return id;
            if (isAliveOf(id, kinds))
                other = id;
        }
        return other;
    }

private:
    struct Object
    {
        Kinds kind;
        int parent;
        bool isAlive;
    };

    bool isKnown(int id) const { return id >= 0 && id < size(); }
    static Kinds oneKindOf(Kinds kinds, Random &random)
    {
        const std::size_t start = random.below(32);
        for (std::size_t i = 0; i < 32; ++i) {
            const Kinds kind = kinds & (Kinds{1} << ((start + i) % 32));
            if (kind != kNoKinds)
                return kind;
        }
        return kNoKinds;
    }

    std::vector<Object> m_objects;
};

} // namespace torture

#endif
