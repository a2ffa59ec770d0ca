// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_DEPARTURE_H
#define ZELGUI_CORE_DEPARTURE_H

#include <cstddef>

class QObject;
class QWidget;

/// How dialogs leave when they are destroyed, be it by the end of the host's main window or of a parent dialog.
///
/// The toolkit does not survive the end of a widget whose signal it is just sending, and callbacks are called from
/// signals. So while any callback runs, a window that dies gives up the dialogs inside it: they are hidden at once,
/// which ends their modal loops, lose their parent, answer as destroyed, and are deleted when the last callback has
/// returned. Nothing is reported any more about what is leaving.
namespace orvane::zelgui {

/// Lives while an add-on's callback runs.
class CallbackInProgress
{
public:
    CallbackInProgress();
    ~CallbackInProgress();
    CallbackInProgress(const CallbackInProgress &) = delete;
    CallbackInProgress &operator=(const CallbackInProgress &) = delete;
};

/// Lets a dialog outlive its parent until the running callbacks have returned. For the dialog's constructor.
void outliveParentDuringCallbacks(QWidget *dialog);

/// Takes leave of a dialog that is being destroyed; if a callback is running, what it contains stays until that has
/// returned. For the dialog's destructor, while it still is a complete dialog.
void depart(QWidget *dialog);

/// How many windows are leaving: nearly always none.
extern std::size_t leavingCount;
bool isInsideLeaving(const QObject *object);

/// Whether an object is in something that is leaving. Its identifier finds nothing any more.
inline bool isLeaving(const QObject *object)
{
    return leavingCount > 0 && isInsideLeaving(object);
}

/// Whether nothing may be reported about an object any more: it is leaving, or the GUI is
/// gone.
bool isDeparting(const QObject *object);

} // namespace orvane::zelgui

#endif
