// SPDX-License-Identifier: MIT
#ifndef ZELHOST_HOSTWINDOW_H
#define ZELHOST_HOSTWINDOW_H

#include <zvsdkbase/hostcontrol.h>

#include <QMainWindow>

#include <vector>

/// The main window: a plot, and the menu of the add-ons.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(QWidget *parent = nullptr);

    /// Fills the "Add-Ons" menu, once.
    void setAddOns(const std::vector<orvane::host::AddOn> &addOns);

private:
    QMenu *m_addOnsMenu;
};

#endif
