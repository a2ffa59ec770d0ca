// SPDX-License-Identifier: MIT
#include "hostile.h"

#include <QString>

#include <cmath>
#include <cstdint>
#include <cstring>
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

} // namespace

Pool::Pool()
    : m_texts{"",
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
              repeated("x", 2000)},
      m_longTexts{repeated("word ", kMegabyte), repeated("\xff", kMegabyte), repeated("9", kMegabyte)},
      m_sets{nullptr, ZelUtilSetAlloc(0), ZelUtilSetAlloc(0), ZelUtilSetAlloc(0)},
      m_lists{nullptr, ZelUtilStringListAlloc(), ZelUtilStringListAlloc()}
{
    ZelUtilSetAddRange(m_sets[2], 1, 100000000, 1, 0);
    ZelUtilSetAddMember(m_sets[2], std::numeric_limits<LgIndex>::max(), 0);
    ZelUtilSetAddRange(m_sets[3], 1, 500, 3, 0);
    for (const std::string &text : m_texts)
        ZelUtilStringListAppendString(m_lists[2], text.c_str());
}

Pool::~Pool()
{
    for (IndexSet &set : m_sets)
        ZelUtilSetDealloc(&set);
    for (StringList_s *&list : m_lists)
        ZelUtilStringListDealloc(&list);
}

const char *Pool::text(Random &random) const
{
    if (random.oneIn(20))
        return nullptr;
    return random.oneIn(100000) ? random.of(m_longTexts).c_str() : random.of(m_texts).c_str();
}

int anyInt(Random &random)
{
    using Limits = std::numeric_limits<int>;
    if (random.oneIn(25))
        return random.of(
            {Limits::min(), Limits::max(), Limits::min() + 1, Limits::max() - 1, -100000, 100000, 1 << 30});
    return random.oneIn(4) ? random.between(-3, 12) : random.between(1, 2500);
}

double anyDouble(Random &random)
{
    using Limits = std::numeric_limits<double>;
    if (random.oneIn(3))
        return random.of({Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(), Limits::lowest(),
                          Limits::denorm_min(), -0.0, 1e18, 9.3e18, -2147483649.0});
    return random.between(-100000, 100000) / 100.0;
}

LgIndex anyIndex(Random &random)
{
    using Limits = std::numeric_limits<LgIndex>;
    if (random.oneIn(3))
        return random.of({Limits::min(), Limits::max(), LgIndex{1} << 32U, -(LgIndex{1} << 31U), LgIndex{-1}});
    return random.between(-1000, 1000);
}

ZelBoolean anyBoolean(Random &random)
{
    return random.oneIn(8) ? static_cast<ZelBoolean>(random.next()) : random.next() % 2;
}

bool isUtf8(const char *text)
{
    // A byte order mark at the very start would be dropped on the way.
    const QByteArray bytes = QByteArray(".") + text;
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

} // namespace torture
