// SPDX-License-Identifier: MIT
#include <zvsdkbase/hostcontrol.h>

#include <dlfcn.h>

namespace orvane {
namespace host {

namespace {

Observation wanted;
Observer *installed = nullptr;

} // namespace

std::string libraryFolder()
{
    Dl_info info{};
    if (dladdr(&installed, &info) == 0)
        return {};
    const std::string file = info.dli_fname;
    const auto slash = file.rfind('/');
    return slash == std::string::npos ? "." : file.substr(0, slash);
}

void requestObservation(Observation observation)
{
    wanted = observation;
}

Observation requestedObservation()
{
    return wanted;
}

void setObserver(Observer *observer)
{
    installed = observer;
}

Observer *observer()
{
    return installed;
}

} // namespace host
} // namespace orvane
