// SPDX-License-Identifier: MIT
#ifndef ZELHOST_INTERFACELOADER_H
#define ZELHOST_INTERFACELOADER_H

#include <QString>

/// Loads, for the rest of the process's life, the library that add-ons call: zelgui, or the layer in front of it that
/// observes them. Has to be done before an add-on is loaded. Returns why that failed, or an empty string.
QString loadInterface(bool observed);

#endif
