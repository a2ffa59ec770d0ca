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

/// The size of a string or an array that was handed out and not released yet; 0 for any other pointer.
std::size_t heldBytes(const void *item);

/// The folder that this library is in, and the host's other libraries with it.
std::string libraryFolder();

/// Watches what add-ons register, get and release. A caller is an address in the code that has called. Memory that the
/// host hands out to its own libraries is told as well.
class Observer
{
public:
    Observer() = default;
    Observer(const Observer &) = delete;
    Observer &operator=(const Observer &) = delete;
    virtual ~Observer() = default;

    /// A new entry of the menu. Answers the function that the host is to launch it by.
    virtual ZelUtilAddOnCallback registering(const char *name, ZelUtilAddOnCallback launch) = 0;
    /// `function` hands out a string, an array, a set or a list.
    virtual void handedOut(const void *item, const char *function, const void *caller) = 0;
    /// `function` is asked to release what is not null; it was not held if the host does not know it.
    virtual void released(const void *item, bool wasHeld, const char *function, const void *caller) = 0;
    /// The program ends. Answers how many faults were found.
    virtual int finish() = 0;
};

/// What an observer is to do, told before there is one: to print every call, to name faults.
struct Observation
{
    bool trace = false;
    bool strict = false;
};
void requestObservation(Observation observation);
Observation requestedObservation();

/// There is none at first. It stays its creator's and has to live as long as the process.
void setObserver(Observer *observer);
Observer *observer();

} // namespace host
} // namespace orvane

#endif
