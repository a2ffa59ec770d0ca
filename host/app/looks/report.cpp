// SPDX-License-Identifier: MIT
#include "report.h"

#include "../files.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject toJson(const Look &look)
{
    QJsonArray findings;
    for (const Finding &finding : look.findings) {
        findings.append(QJsonObject{{QStringLiteral("widget"), finding.widget},
                                    {QStringLiteral("problem"), finding.problem},
                                    {QStringLiteral("pixels"), finding.pixels}});
    }
    return {{QStringLiteral("dialog"), look.dialog},
            {QStringLiteral("page"), look.page},
            {QStringLiteral("picture"), look.picture},
            {QStringLiteral("findings"), findings}};
}

Look fromJson(const QJsonObject &object)
{
    const auto text = [](const QJsonObject &from, const char *key) {
        return from.value(QLatin1String(key)).toString();
    };
    Look look{text(object, "dialog"), text(object, "page"), text(object, "picture"), {}};
    const QJsonArray findings = object.value(QLatin1String("findings")).toArray();
    for (const auto &value : findings) {
        const QJsonObject finding = value.toObject();
        look.findings.push_back(
            {text(finding, "widget"), text(finding, "problem"), finding.value(QLatin1String("pixels")).toInt()});
    }
    return look;
}

} // namespace

QString titleOf(const Look &look)
{
    return look.page.isEmpty() ? look.dialog : QStringLiteral("%1, page %2").arg(look.dialog, look.page);
}

QString problemOf(const Finding &finding)
{
    if (finding.pixels == 0)
        return finding.problem;
    return QStringLiteral("%1 by %2 pixels").arg(finding.problem, QString::number(finding.pixels));
}

bool writeReport(const QString &file, const std::vector<Look> &looks)
{
    QJsonArray array;
    for (const Look &look : looks)
        array.append(toJson(look));
    return writeFile(file, QJsonDocument(array).toJson()).isEmpty();
}

bool readReport(const QString &file, std::vector<Look> &looks)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(input.readAll());
    const QJsonArray array = document.array();
    for (const auto &value : array)
        looks.push_back(fromJson(value.toObject()));
    return document.isArray();
}
