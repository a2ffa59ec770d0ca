// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_PLACING_H
#define ZELGUI_TRACE_STRICT_PLACING_H

#include "strict/faults.h"
#include "strict/objects.h"

#include <QObject>

class QWidget;

namespace orvane::trace {

/// Widgets are inside what they are in: the dialog above its strip of buttons, the page, the frame. Looked at whenever
/// a dialog comes up, since a menu bar may move things before.
class Placing : public QObject, public Listener
{
public:
    Placing(Faults &faults, const Objects &objects) : m_faults(faults), m_objects(objects) {}

    void returned(const Call &call) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void check(const Objects::Object &object);

    Faults &m_faults;
    const Objects &m_objects;
};

} // namespace orvane::trace

#endif
