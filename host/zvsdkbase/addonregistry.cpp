// SPDX-License-Identifier: MIT
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/hostcontrol.h>
#include <zvsdkbase/zelutil.h>

namespace {

std::vector<orvane::host::AddOn> &registry()
{
    static std::vector<orvane::host::AddOn> addOns;
    return addOns;
}

} // namespace

namespace orvane {
namespace host {

std::vector<AddOn> registeredAddOns()
{
    return registry();
}

} // namespace host
} // namespace orvane

void ZelUtilAddOnRegister(const char *name, const char *summary, ZelUtilAddOnCallback launch)
{
    // An entry that can't be seen or does nothing would only confuse the user.
    if (!name || !*name || !launch)
        return;
    orvane::host::guarded(false, 1, [name, summary, launch] {
        using orvane::host::observer;
        const ZelUtilAddOnCallback launched = observer() ? observer()->registering(name, launch) : launch;
        registry().push_back({name, summary ? summary : "", launched});
        return true;
    });
}
