// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_SCENE_H
#define TESTS_SUPPORT_SCENE_H

#include <QVector>

struct SceneObject
{
    const char *kind;
    int id;
};

/// Makes one object of every kind that has an identifier, each with something in it: first a modal dialog, which
/// contains all the others but for a modeless dialog.
QVector<SceneObject> makeEveryKind(int parent);

#endif
