// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_FUZZINPUT_H
#define TESTS_FUZZ_FUZZINPUT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

/// Arguments made of bytes. Behind the end of the bytes all is 0, so that each prefix of an input is an input.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size) : m_at(data), m_end(data + size) {}

    bool isAtEnd() const { return m_at == m_end; }

    std::uint8_t byte() { return isAtEnd() ? std::uint8_t{0} : *m_at++; }

    template <typename Number>
    Number raw()
    {
        Number number{};
        const std::size_t size = std::min(sizeof(Number), static_cast<std::size_t>(m_end - m_at));
        std::copy_n(m_at, size, reinterpret_cast<std::uint8_t *>(&number));
        m_at += size;
        return number;
    }

    /// Small, at a limit, or anything.
    template <typename Number>
    Number number()
    {
        using Limits = std::numeric_limits<Number>;
        static const Number limits[] = {Limits::max(),      Limits::lowest(),   Limits::min(), Number(2147483647),
                                        Number(-1),         Number(-2),         Number(32767), Number(8192),
                                        Limits::infinity(), Limits::quiet_NaN()};
        const std::uint8_t choice = byte();
        if (choice < 0xe0)
            return Number(choice) * Number(choice % 2 ? 1 : 20);
        const std::size_t limit = choice - 0xe0U;
        return limit < std::size(limits) ? limits[limit] : raw<Number>();
    }

    /// Up to a zero byte or the end.
    std::string text()
    {
        const std::uint8_t *const end = std::find(m_at, m_end, std::uint8_t{0});
        std::string text(m_at, end);
        m_at = end == m_end ? end : end + 1;
        return text;
    }

private:
    const std::uint8_t *m_at;
    const std::uint8_t *m_end;
};

#endif
