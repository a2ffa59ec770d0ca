// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_RANDOM_H
#define TESTS_TORTURE_RANDOM_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace torture {

/// Numbers that look random and are the same everywhere for the same seed (SplitMix64). Each step of a round has a
/// stream of its own, so what one step draws doesn't shift what the next ones get.
class Random
{
public:
    explicit Random(std::uint64_t seed, std::uint64_t stream = 0, std::uint64_t serial = 0)
        : m_state(mixed(seed) ^ mixed(stream * 0x9E3779B97F4A7C15U + 1) ^ mixed(serial * 0xD1B54A32D192ED03U + 2))
    {}

    std::uint64_t next() { return mixed(m_state += 0x9E3779B97F4A7C15U); }
    /// From 0 to count - 1; 0 also for a count of 0.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : static_cast<std::size_t>(next() % count); }
    int between(int least, int most)
    {
        return static_cast<int>(least + static_cast<std::int64_t>(below(std::size_t(std::int64_t{most} - least) + 1)));
    }
    /// True once in so many times.
    bool oneIn(std::size_t count) { return below(count) == 0; }

    template <typename Container>
    const auto &of(const Container &container)
    {
        return *(container.begin() + static_cast<std::ptrdiff_t>(below(container.size())));
    }
    template <typename T>
    T of(std::initializer_list<T> choices)
    {
        return *(choices.begin() + below(choices.size()));
    }

private:
    static std::uint64_t mixed(std::uint64_t value)
    {
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
        return value ^ (value >> 31);
    }

    std::uint64_t m_state;
};

} // namespace torture

#endif
