// SPDX-License-Identifier: MIT
#include "host.h"
#include "scenarios.h"

#include <zvsdkbase/hostcontrol.h>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace torture {

namespace {

constexpr int kSteps = 60;
constexpr int kCallSteps = 500;
/// Rounds of random calls that are scenarios too, besides one for each entry of the examples.
constexpr int kCallScenarios = 2;

using Limits = std::numeric_limits<double>;
/// What a host may say of its screen.
constexpr std::array<std::pair<double, double>, 8> kResolutions = {{{96, 96},
                                                                    {0, 0},
                                                                    {-96, 96},
                                                                    {96, Limits::quiet_NaN()},
                                                                    {Limits::infinity(), 96},
                                                                    {Limits::infinity(), Limits::infinity()},
                                                                    {Limits::max(), Limits::denorm_min()},
                                                                    {Limits::denorm_min(), Limits::max()}}};

int entryCount()
{
    return static_cast<int>(orvane::host::registeredAddOns().size());
}

std::string commandOf(std::uint64_t seed, const FaultCase &faultCase, const char *program)
{
    return std::string(program) + " faults --seed " + std::to_string(seed) + " --scenario " +
           std::to_string(faultCase.scenario) + " --resolution " + std::to_string(faultCase.resolution) + " --fault " +
           std::to_string(faultCase.fault) + " --occasion " + std::to_string(faultCase.occasion);
}

void play(std::uint64_t seed, const FaultCase &faultCase)
{
    const auto &[horizontal, vertical] = kResolutions[std::size_t(faultCase.resolution)];
    orvane::host::overrideDotsPerInch(horizontal, vertical);
    plan(static_cast<Fault>(faultCase.fault), faultCase.occasion);
    if (faultCase.scenario < entryCount())
        useAtRandom(seed, kSteps, faultCase.scenario);
    else
        callAtRandom(seed + std::uint64_t(faultCase.scenario), kCallSteps);
}

} // namespace

bool failOnce(std::uint64_t seed, const FaultCase &faultCase, const char *program)
{
    return runRound([&] { play(seed, faultCase); }, [&] { return commandOf(seed, faultCase, program); });
}

bool failEverywhere(std::uint64_t seed, int share, const char *program)
{
    bool isWell = true;
    std::uint64_t cases = 0;
    std::uint64_t played = 0;
    const auto run = [&](const FaultCase &faultCase) {
        ++cases;
        // Allocations are few beside the moments at which a GUI can be lost, so all of them fail.
        const bool isMoment = faultCase.fault == int(Fault::WindowGone) || faultCase.fault == int(Fault::BatchMode);
        if (isMoment && (cases + seed) % std::uint64_t(share) != 0)
            return;
        ++played;
        isWell = failOnce(seed, faultCase, program) && isWell;
    };
    for (int scenario = 0; scenario < entryCount() + kCallScenarios; ++scenario) {
        for (int resolution = 1; resolution < int(kResolutions.size()); ++resolution)
            run({scenario, resolution, int(Fault::None), 0});
        // Without a fault, how often there could be one is counted.
        isWell = failOnce(seed, {scenario, 0, int(Fault::None), 0}, program) && isWell;
        std::array<std::int64_t, int(Fault::Count)> occasions{};
        for (int fault = 0; fault < int(Fault::Count); ++fault)
            occasions[std::size_t(fault)] = progress().occasions[fault];
        for (int fault = int(Fault::None) + 1; fault < int(Fault::Count); ++fault) {
            for (std::int64_t occasion = 1; occasion <= occasions[std::size_t(fault)]; ++occasion)
                run({scenario, 0, fault, occasion});
        }
    }
    std::printf("%llu of %llu faults\n", static_cast<unsigned long long>(played),
                static_cast<unsigned long long>(cases));
    return isWell;
}

} // namespace torture
