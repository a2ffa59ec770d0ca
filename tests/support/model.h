// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_MODEL_H
#define TESTS_SUPPORT_MODEL_H

#include "call.h"

#include <functional>
#include <string>
#include <vector>

/// What should be true of the identifiers: which are alive, and of which type. With it, every call has an outcome that
/// is right or wrong.
class Model
{
public:
    /// Identifiers are counted from `first`; `hasGui` tells whether there is one.
    explicit Model(std::function<bool()> hasGui, int first = 0) : m_hasGui(std::move(hasGui)), m_first(first) {}

    int end() const { return m_first + static_cast<int>(m_objects.size()); }
    bool isAlive(int id) const { return id >= m_first && id < end() && at(id).isAlive; }
    bool isAliveOf(int id, ObjectTypes types) const { return isAlive(id) && (bit(at(id).type) & types) != 0; }
    /// Whether a parameter's identifier names something that the function works with.
    bool isRight(const Parameter &parameter, int id) const;

    /// The next identifier names a new object. A parent of -1 is the main window.
    void add(ObjectType type, int parent) { m_objects.push_back({type, parent, parent == -1 || isAlive(parent)}); }
    /// An object is gone, with everything inside it; -1 stands for the main window.
    void destroy(int id);

    /// Makes a call, and tells what is wrong with its outcome: nothing if all is well.
    std::string faultOf(Call &call, const std::function<void()> &run);

private:
    struct Object
    {
        ObjectType type;
        int parent;
        bool isAlive;
    };

    static ObjectTypes bit(ObjectType type) { return orvane::interface::bit(type); }
    const Object &at(int id) const { return m_objects[static_cast<std::size_t>(id - m_first)]; }
    std::string faultAfter(const Call &call, bool hadGui, bool wasRight);

    const std::function<bool()> m_hasGui;
    const int m_first;
    std::vector<Object> m_objects;
};

#endif
