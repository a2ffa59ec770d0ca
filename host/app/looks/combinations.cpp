// SPDX-License-Identifier: MIT
#include "combinations.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLocale>
#include <QStyleFactory>

#include <algorithm>

namespace {

constexpr double Sizes[] = {8, 10, 14, 20};

/// Families that desktops use for dialogs. Among the rest are symbols, scripts and display faces, which nobody does.
constexpr const char *DialogFamilies[] = {"Adwaita Sans",
                                          "Arial",
                                          "Arial Narrow",
                                          "Cantarell",
                                          "DejaVu Sans",
                                          "Inter",
                                          "DejaVu Sans Condensed",
                                          "Helvetica",
                                          "Noto Sans",
                                          "Lucida Grande",
                                          "Liberation Sans Narrow",
                                          "Liberation Sans",
                                          "Noto Sans UI",
                                          "Open Sans",
                                          "Nimbus Sans",
                                          "Nimbus Sans Narrow",
                                          "Segoe UI",
                                          "Roboto",
                                          "Tahoma",
                                          "Trebuchet MS",
                                          "Ubuntu",
                                          "Verdana"};

double widthOf(const QString &family)
{
    const double size = 100.0;
    QFont font(family);
    font.setPixelSize(static_cast<int>(size));
    return QFontMetricsF(font).horizontalAdvance(
        QStringLiteral("The quick brown fox jumps over the lazy dog: 0123456789"));
}

QStringList installedFamilies()
{
    const QFontDatabase database;
    const QStringList all = database.families();
    QStringList known;
    for (const char *const family : DialogFamilies) {
        if (all.contains(QLatin1String(family)))
            known.append(QLatin1String(family));
    }
    return known.isEmpty() ? QStringList(QFont().family()) : known;
}

/// The narrowest and the widest family, or a single one.
QStringList extremeFamilies()
{
    QStringList families = installedFamilies();
    std::stable_sort(families.begin(), families.end(),
                     [](const QString &a, const QString &b) { return widthOf(a) < widthOf(b); });
    return families.size() < 2 ? families : QStringList{families.constFirst(), families.constLast()};
}

std::vector<Options::Font> fontsFor(const Options &options)
{
    if (options.font)
        return {*options.font};
    std::vector<Options::Font> fonts;
    for (const QString &family : extremeFamilies()) {
        for (const double points : Sizes)
            fonts.push_back({family, points});
    }
    return fonts;
}

std::vector<Options::Resolution> resolutionsFor(const Options &options)
{
    if (options.dotsPerInch)
        return {*options.dotsPerInch};
    return {{96, 96}, {144, 96}};
}

} // namespace

std::vector<Combination> combinationsFor(const Options &options)
{
    const QStringList styles = options.style.isEmpty() ? QStyleFactory::keys() : QStringList(options.style);
    const std::vector<Options::Font> fonts = fontsFor(options);
    std::vector<Combination> combinations;
    for (const QString &style : styles) {
        for (const Options::Resolution &resolution : resolutionsFor(options)) {
            for (const Options::Font &font : fonts)
                combinations.push_back({style, font, resolution});
        }
    }
    return combinations;
}

QString titleOf(const Combination &combination)
{
    return QStringLiteral("%1, %2 %3, %4x%5 dpi")
        .arg(combination.style, combination.font.family, QString::number(combination.font.points),
             QString::number(combination.resolution.horizontal), QString::number(combination.resolution.vertical));
}

QStringList argumentsFor(const Combination &combination)
{
    const auto pair = [](const QString &first, double second) {
        return QStringLiteral("%1,%2").arg(first, QString::number(second, 'g', QLocale::FloatingPointShortest));
    };
    const Options::Resolution &resolution = combination.resolution;
    return {QStringLiteral("--style"),
            combination.style,
            QStringLiteral("--font"),
            pair(combination.font.family, combination.font.points),
            QStringLiteral("--dpi"),
            pair(QString::number(resolution.horizontal, 'g', QLocale::FloatingPointShortest), resolution.vertical)};
}
