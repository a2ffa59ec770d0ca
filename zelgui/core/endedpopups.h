// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_ENDEDPOPUPS_H
#define ZELGUI_CORE_ENDEDPOPUPS_H

#include <QObject>
#include <QPointer>

#include <vector>

namespace orvane::zelgui {

/// Keeps popup menus that are about to be deleted while a callback runs from inside the toolkit's work with a popup,
/// with which it goes on afterwards: a loop inside the callback must not delete it until then. Such callbacks may nest.
class EndedPopups : public QObject
{
public:
    EndedPopups();
    ~EndedPopups() override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool isKept(const QObject *popup) const;
    static void deleteUnlessKept(QObject *popup);

    inline static EndedPopups *s_innermost = nullptr;
    EndedPopups *const m_outer;
    std::vector<QPointer<QObject>> m_popups;
    std::vector<QPointer<QObject>> m_ended;
};

} // namespace orvane::zelgui

#endif
