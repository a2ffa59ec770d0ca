// SPDX-License-Identifier: MIT
#include "randomsource.h"

#include <limits>

namespace torture {

namespace {

constexpr std::size_t kMegabyte = 1U << 20U;

std::string repeated(const std::string &text, std::size_t bytes)
{
    std::string result;
    while (result.size() < bytes)
        result += text;
    return result;
}

/// Labels, numbers, formats and rubbish.
const std::vector<std::string> &allTexts()
{
    static const std::vector<std::string> all = {"",
                                                 "Label",
                                                 "&Go",
                                                 "A, B,,C",
                                                 "&&",
                                                 "&",
                                                 "%1 %2 %n",
                                                 "12",
                                                 "-3.75",
                                                 "1e400",
                                                 "nan",
                                                 "0x1F",
                                                 "MX",
                                                 "mx - 7",
                                                 "MX-99999999999999999999",
                                                 "1-9:2,12",
                                                 "[3-5]",
                                                 "[",
                                                 "9999999999",
                                                 "1-9999999999",
                                                 "5-1",
                                                 "1-3:0",
                                                 "%g",
                                                 "%.3f mm",
                                                 "%s",
                                                 "%n%n%n",
                                                 "%d",
                                                 "%*f",
                                                 "%999.999e",
                                                 "%1001f",
                                                 "%f %f",
                                                 "%",
                                                 "%%%a%%",
                                                 "%-+ #08.2lf",
                                                 "%Lf",
                                                 "%.99999999999g",
                                                 "<b>bold</b>",
                                                 "<img src='nowhere.png'>",
                                                 "<table><tr><td>1</table></b></p>",
                                                 "<a href=''>x",
                                                 "\t\v\f \r\n",
                                                 "\x01\x02\x1b[31m\x7f",
                                                 "\xff\xfe",
                                                 "\xc3",
                                                 "\xe2\x82",
                                                 "\xf4\x90\x80\x80",
                                                 "\xed\xa0\x80",
                                                 "\xc0\x80",
                                                 "\xef\xbb\xbf\xef\xbb\xbf",
                                                 "\xe2\x80\xae\xd7\x90\xd7\x91",
                                                 "\xd9\xa3",
                                                 "e\xcc\x81\xcc\x81\xcc\x81",
                                                 "\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x9a\x80",
                                                 "line\nline\r\nline\xe2\x80\xa8line\xef\xb7\x90",
                                                 repeated("<ul><li>", 400),
                                                 repeated("&", 300),
                                                 repeated(",", 200),
                                                 repeated("x", 2000)};
    return all;
}

/// So long that only a few calls can have one.
const std::vector<std::string> &longTexts()
{
    static const std::vector<std::string> all = {repeated("word ", kMegabyte), repeated("\xff", kMegabyte),
                                                 repeated("9", kMegabyte)};
    return all;
}

} // namespace

bool RandomSource::isNull(const Parameter &parameter)
{
    switch (parameter.kind) {
    case Kind::Output:
    case Kind::Rgb:
    case Kind::Positions:
        return m_random.oneIn(6);
    case Kind::Set:
    case Kind::Told:
        return m_random.oneIn(4);
    default:
        return m_random.oneIn(20);
    }
}

int RandomSource::integer(const Parameter &parameter)
{
    const bool isOfPicture = parameter.kind == Kind::Columns || parameter.kind == Kind::Rows;
    if (parameter.kind == Kind::Id)
        return identifier(parameter);
    return isOfPicture && !m_random.oneIn(8) ? m_random.between(-1, 9) : anyInteger();
}

int RandomSource::anyInteger()
{
    using Limits = std::numeric_limits<int>;
    if (m_random.oneIn(25))
        return m_random.of(
            {Limits::min(), Limits::max(), Limits::min() + 1, Limits::max() - 1, -100000, 100000, 1 << 30});
    return m_random.oneIn(4) ? m_random.between(-3, 12) : m_random.between(1, 2500);
}

int RandomSource::identifier(const Parameter &parameter)
{
    using Limits = std::numeric_limits<int>;
    const bool isMainWindow = (parameter.accepted & orvane::interface::bit(ObjectType::MainWindow)) != 0;
    if (m_random.oneIn(16))
        return m_random.of({Limits::min(), Limits::max(), -2});
    if (m_random.oneIn(5))
        return m_random.between(-3, m_model.end() + 3);
    return isMainWindow && m_random.oneIn(2) ? ZELGUI_MAIN_WINDOW : anyOf(workingTypes(parameter));
}

int RandomSource::anyOf(ObjectTypes types)
{
    const std::size_t firstType = m_random.below(32);
    const std::size_t first = m_random.below(std::size_t(m_model.end()));
    for (std::size_t i = 0; i < 32; ++i) {
        const ObjectTypes type = types & (ObjectTypes{1} << ((firstType + i) % 32));
        for (std::size_t j = 0; type != 0 && j < std::size_t(m_model.end()); ++j) {
            const int id = int((first + j) % std::size_t(m_model.end()));
            if (m_model.isAliveOf(id, type))
                return id;
        }
    }
    return ZELGUI_INVALID_ID;
}

unsigned char RandomSource::byte()
{
    return static_cast<unsigned char>(m_random.oneIn(8) ? m_random.next() : m_random.below(2));
}

double RandomSource::number()
{
    using Limits = std::numeric_limits<double>;
    if (m_random.oneIn(3))
        return m_random.of({Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
                            Limits::lowest(), Limits::denorm_min(), -0.0, 1e18, 9.3e18, -2147483649.0});
    return m_random.between(-100000, 100000) / 100.0;
}

LgIndex RandomSource::index()
{
    using Limits = std::numeric_limits<LgIndex>;
    if (m_random.oneIn(3))
        return m_random.of({Limits::min(), Limits::max(), LgIndex{1} << 32U, -(LgIndex{1} << 31U), LgIndex{-1}});
    return m_random.between(-1000, 1000);
}

std::string RandomSource::text(const Parameter &)
{
    return m_random.of(m_random.oneIn(100000) ? longTexts() : allTexts());
}

std::vector<int> RandomSource::positions(const Parameter &)
{
    std::vector<int> all(30);
    for (int &position : all)
        position = anyInteger();
    return all;
}

std::vector<std::pair<LgIndex, LgIndex>> RandomSource::runs(const Parameter &)
{
    using Runs = std::vector<std::pair<LgIndex, LgIndex>>;
    constexpr auto most = std::numeric_limits<LgIndex>::max();
    return m_random.of({Runs(), Runs{{1, 100000000}, {most, most}}, Runs{{1, 1}, {4, 4}, {7, 8}}});
}

std::vector<std::string> RandomSource::texts(const Parameter &)
{
    return m_random.oneIn(2) ? allTexts() : std::vector<std::string>();
}

} // namespace torture
