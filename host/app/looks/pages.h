// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_PAGES_H
#define ZELHOST_LOOKS_PAGES_H

#include <QString>

#include <functional>

class QWidget;

/// Calls `visit` for each page of the window's tabs and forms while that page is shown, with the titles or numbers of
/// the pages that lead there; or once, with nothing, for a window without pages. Afterwards everything is as before.
///
/// The window's owner doesn't hear of it: no page reports that it is shown, and no field that it has lost the focus.
void visitPages(QWidget &window, const std::function<void(const QString &page)> &visit);

#endif
