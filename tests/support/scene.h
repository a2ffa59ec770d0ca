// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_SCENE_H
#define TESTS_SUPPORT_SCENE_H

#include "call.h"

#include <vector>

struct SceneObject
{
    /// The function that has made it.
    const Function *creator;
    int id;

    bool isOneOf(ObjectTypes types) const { return (orvane::interface::bit(creator->created) & types) != 0; }
};

/// Makes one object with each creating function, and some more that are a case of their own, each with something in
/// it: first a modal dialog, which contains all the others.
std::vector<SceneObject> makeEveryKind(int parent);

#endif
