// SPDX-License-Identifier: MIT
// Random and injected trouble: see docs/reliability.md.
#include "host.h"
#include "scenarios.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>

using namespace torture;

namespace {

/// Rounds are short, since objects are never forgotten and mostly live until the end.
constexpr std::int64_t kRoundSteps = 20000;
constexpr std::int64_t kUserRoundSteps = 2500;

using Scenario = void (*)(std::uint64_t seed, std::int64_t steps);

void useEverything(std::uint64_t seed, std::int64_t steps)
{
    useAtRandom(seed, steps);
}

bool playRound(const char *program, const std::string &mode, Scenario scenario, std::uint64_t seed, std::int64_t steps)
{
    // The whole round, though it fails earlier: where it ends, the host is closed.
    return runRound([&] { scenario(seed, steps); },
                    [&] {
                        return std::string(program) + " " + mode + " --seed " + std::to_string(seed) + " --steps " +
                               std::to_string(steps);
                    });
}

/// Rounds of increasing seeds, until enough has been done in sum, as `done` tells.
bool playRounds(const char *program, const std::string &mode, Scenario scenario, std::uint64_t seed, std::int64_t steps,
                std::int64_t total)
{
    bool isWell = true;
    std::int64_t done = 0;
    int rounds = 0;
    while (done < total) {
        isWell = playRound(program, mode, scenario, seed++, steps) && isWell;
        done = scenario == callAtRandom ? progress().calls.load() : done + progress().step;
        // Not even started: there is nothing to count.
        if (progress().step == 0)
            return false;
        ++rounds;
    }
    std::printf("%lld %s in %d rounds\n", static_cast<long long>(done), mode.c_str(), rounds);
    return isWell;
}

} // namespace

int main(int argc, char **argv)
{
    // Hashes in an order of their own would make each round another one.
    qputenv("QT_HASH_SEED", "0");
    auto *const application = new QApplication(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("mode"),
                                 QStringLiteral("calls, user or faults: what is to happen, see docs/reliability.md"));
    const auto option = [&parser](const char *name, const char *text, const char *value) {
        const QString key = QString::fromLatin1(name);
        parser.addOption({key, QString::fromLatin1(text), QStringLiteral("number"), QString::fromLatin1(value)});
        return [&parser, key] { return parser.value(key).toLongLong(); };
    };
    const auto seed = option("seed", "of the first round", "1");
    const auto steps = option("steps", "of a round; fewer play only its start", "0");
    const auto total = option("total", "calls or events, in as many rounds as that takes; 0: one round", "0");
    const auto share = option("share", "plays one fault of so many", "1");
    const auto scenario = option("scenario", "of one single fault", "-1");
    const auto resolution = option("resolution", "of one single fault", "0");
    const auto fault = option("fault", "the single one", "0");
    const auto occasion = option("occasion", "at which the fault happens", "0");
    parser.process(*application);

    const char *const program = argv[0];
    const auto first = std::uint64_t(seed());
    const QString mode = parser.positionalArguments().value(0);
    bool isWell = false;
    if (mode == QLatin1String("calls")) {
        isWell = playRounds(program, "calls", callAtRandom, first, steps() > 0 ? steps() : kRoundSteps,
                            std::max(total(), 1LL));
    } else if (mode == QLatin1String("user")) {
        loadExamples();
        isWell = playRounds(program, "user", useEverything, first, steps() > 0 ? steps() : kUserRoundSteps,
                            std::max(total(), 1LL));
    } else if (mode == QLatin1String("faults")) {
        loadExamples();
        isWell = scenario() < 0
                     ? failEverywhere(first, int(share()), program)
                     : failOnce(first, {int(scenario()), int(resolution()), int(fault()), occasion()}, program);
    } else {
        parser.showHelp(2);
    }
    delete application;
    return isWell ? 0 : 1;
}
