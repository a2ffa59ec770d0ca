// SPDX-License-Identifier: MIT
#include "contactsheet.h"

#include <QHash>
#include <QUrl>

namespace {

const char *const Head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>How the dialogs look</title>
<style>
body { font-family: sans-serif; margin: 2em; color: #222; background: #fafafa; }
h1 { font-size: 1.5em; }
h2 { font-size: 1.1em; margin: 0; padding: .4em .6em; border-radius: .3em; background: #e4ece4; }
section.bad h2 { background: #f6d5d0; }
section { margin: 1.5em 0; }
ul.contents { columns: 18em; padding-left: 1.2em; }
li.bad a { color: #b02a1a; font-weight: bold; }
div.pictures { display: flex; flex-wrap: wrap; gap: 1em; align-items: flex-start; padding: 1em 0; }
figure { margin: 0; padding: .5em; background: #fff; border: 1px solid #ccc; border-radius: .3em; max-width: 28em; }
figure.bad { border: 3px solid #c0392b; }
figure img { max-width: 100%; height: auto; display: block; }
figcaption { font-size: .85em; margin-bottom: .4em; }
figure ul { font-size: .85em; color: #b02a1a; margin: .5em 0 0; padding-left: 1.2em; }
</style>
</head>
<body>
<h1>How the dialogs look</h1>
)";

/// A page of a dialog in all its combinations.
struct Row
{
    struct Cell
    {
        QString combination;
        const Look *look;
    };

    QString title;
    std::vector<Cell> cells;
    std::size_t problems = 0;
};

std::vector<Row> rowsOf(const std::vector<SweptCombination> &swept)
{
    std::vector<Row> rows;
    QHash<QString, std::size_t> places;
    for (const SweptCombination &combination : swept) {
        for (const Look &look : combination.looks) {
            const QString title = titleOf(look);
            if (!places.contains(title)) {
                places.insert(title, rows.size());
                rows.push_back({title, {}, 0});
            }
            Row &row = rows[places.value(title)];
            row.cells.push_back({combination.title, &look});
            row.problems += look.findings.size();
        }
    }
    return rows;
}

QString badClass(bool isBad)
{
    return isBad ? QStringLiteral(" class=\"bad\"") : QString();
}

QString count(std::size_t number, const char *what)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(number), QLatin1String(what),
                                         number == 1 ? QString() : QStringLiteral("s"));
}

QString contents(const std::vector<Row> &rows)
{
    QString html = QStringLiteral("<ul class=\"contents\">\n");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString problems =
            rows[i].problems > 0 ? QStringLiteral(": %1").arg(count(rows[i].problems, "problem")) : QString();
        html += QStringLiteral("<li%1><a href=\"#row%2\">%3</a>%4</li>\n")
                    .arg(badClass(rows[i].problems > 0), QString::number(i), rows[i].title.toHtmlEscaped(), problems);
    }
    return html + QStringLiteral("</ul>\n");
}

QString figure(const Row::Cell &cell)
{
    const QString source = QString::fromLatin1(QUrl::toPercentEncoding(cell.look->picture, "/"));
    QString html = QStringLiteral("<figure%1><figcaption>%2</figcaption><a href=\"%3\"><img src=\"%3\" alt=\"%4\" "
                                  "loading=\"lazy\"></a>")
                       .arg(badClass(!cell.look->findings.empty()), cell.combination.toHtmlEscaped(), source,
                            titleOf(*cell.look).toHtmlEscaped());
    if (!cell.look->findings.empty())
        html += QStringLiteral("<ul>");
    for (const Finding &finding : cell.look->findings)
        html +=
            QStringLiteral("<li>%1 %2</li>").arg(finding.widget.toHtmlEscaped(), problemOf(finding).toHtmlEscaped());
    if (!cell.look->findings.empty())
        html += QStringLiteral("</ul>");
    return html + QStringLiteral("</figure>\n");
}

} // namespace

QString contactSheet(const std::vector<SweptCombination> &swept)
{
    const std::vector<Row> rows = rowsOf(swept);
    std::size_t problems = 0;
    for (const Row &row : rows)
        problems += row.problems;
    QString html = QString::fromLatin1(Head);
    html += QStringLiteral("<p>%1 in %2, %3.</p>\n")
                .arg(count(rows.size(), "page"), count(swept.size(), "combination"), count(problems, "problem"));
    html += contents(rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        html += QStringLiteral("<section%1 id=\"row%2\">\n<h2>%3</h2>\n<div class=\"pictures\">\n")
                    .arg(badClass(rows[i].problems > 0), QString::number(i), rows[i].title.toHtmlEscaped());
        for (const Row::Cell &cell : rows[i].cells)
            html += figure(cell);
        html += QStringLiteral("</div>\n</section>\n");
    }
    return html + QStringLiteral("</body>\n</html>\n");
}
