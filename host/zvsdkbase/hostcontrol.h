// SPDX-License-Identifier: MIT
#ifndef ZVSDKBASE_HOSTCONTROL_H
#define ZVSDKBASE_HOSTCONTROL_H

/// @file
/// The host program's side of what zelutil.h offers to add-ons. Not for add-ons.

#include <zvsdkbase/zelutil.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orvane {
namespace host {

/// What ZelUtilMacroIsBatchModeActive answers; at first 0.
void setBatchModeActive(bool active);

/// Has ZelUtilInterfaceGetDotsPerInch answer these numbers, as they are, instead of the screen's.
void overrideDotsPerInch(double horizontal, double vertical);
/// Ends overrideDotsPerInch.
void useScreenDotsPerInch();

/// One entry of the "Add-Ons" menu. The texts are UTF-8, `name` is not empty and `launch` not null.
struct AddOn
{
    std::string name;
    std::string summary;
    ZelUtilAddOnCallback launch;
};

/// What ZelUtilAddOnRegister was told, in the order of the calls.
std::vector<AddOn> registeredAddOns();

/// What was handed out under one label and not released yet.
struct Unreleased
{
    std::string label;
    std::size_t count;
    std::size_t bytes;
};

/// Strings and arrays by the label of their allocation, index sets as "index set" and string lists as "string list";
/// sorted by label.
std::vector<Unreleased> unreleased();

} // namespace host
} // namespace orvane

#endif
