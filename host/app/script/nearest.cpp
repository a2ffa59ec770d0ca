// SPDX-License-Identifier: MIT
#include "nearest.h"

#include "words.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

const int MostListed = 20;

/// How many letters have to be inserted, removed or replaced to make one text of the other.
int editDistance(const QString &a, const QString &b)
{
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < b.size(); ++j) {
            const auto column = static_cast<std::size_t>(j) + 1;
            const int replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString nearestOf(const QString &wanted, const QStringList &names)
{
    QString nearest;
    int least = 0;
    for (const QString &name : names) {
        const int distance = editDistance(wanted.toLower(), name.toLower());
        const int longest = static_cast<int>(std::max(wanted.size(), name.size()));
        if (2 * distance <= longest && (nearest.isEmpty() || distance < least)) {
            nearest = name;
            least = distance;
        }
    }
    return nearest;
}

QString whatThereIs(const QString &wanted, const QStringList &names)
{
    if (names.isEmpty())
        return QStringLiteral("; there is none at all");
    QStringList listed;
    for (const QString &name : names.mid(0, MostListed))
        listed.append(quoted(name));
    QString result = QStringLiteral("; there is %1").arg(listed.join(QLatin1String(", ")));
    if (names.size() > MostListed)
        result += QStringLiteral(" and %1 more").arg(names.size() - MostListed);
    const QString nearest = nearestOf(wanted, names);
    if (!nearest.isEmpty())
        result += QStringLiteral("; is it %1?").arg(quoted(nearest));
    return result;
}
