// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_LIST_H
#define ZELGUI_WIDGETS_LIST_H

#include <zelgui/zelgui.h>

#include <QListWidget>

namespace orvane::zelgui {

class PendingSelection;

/// A scrolling list of texts, which reports all selected positions at every change that the user makes.
class ZelGUIList : public QListWidget
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUIList(QWidget *parent, int x, int y, int width, int height, bool isMultiSelection, ZelGUIIntCallback callback);

    ~ZelGUIList() override;

    PendingSelection &pendingSelection();
    /// Tells the toolkit of everything that the add-on has selected. For before anybody looks.
    void settleSelection() noexcept;

    void selectAll() override;
    void keyboardSearch(const QString &search) override;

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private Q_SLOTS:
    void onItemSelectedChanged();

private:
    ZelGUIIntCallback m_callback;
    PendingSelection *m_pendingSelection = nullptr;
};

} // namespace orvane::zelgui

#endif
