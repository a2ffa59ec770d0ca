// SPDX-License-Identifier: MIT
#include "util/selectionorder.h"

#include <QItemSelectionModel>

#include <algorithm>
#include <cstddef>

/// The selection of a list is a sequence of ranges that don't overlap; their order is the one in which add-ons see what
/// is selected. When the toolkit selects one row, then
///
/// - the row becomes a range of its own at the end, even if its neighbours are selected too;
/// - the range that held it before, if any, leaves its place. What was above the row goes to the end, then what was
///   below it, and then comes the row.
///
/// So a piece of a divided range ends up where the later one of the two rows beside it was selected first: before that
/// the piece was part of a longer one, and afterwards nothing touches it. A row ends up where it was selected last.
namespace orvane::zelgui {

namespace {

using RowIterator = std::vector<int>::const_iterator;

/// A row to be selected, and at which of the steps, counted from 0, that happens.
struct Mention
{
    int row;
    std::size_t first;
    std::size_t last;
};

/// The mentions in the order of the rows, each row once.
std::vector<Mention> mentionsOf(RowIterator begin, RowIterator end)
{
    std::vector<Mention> mentions;
    mentions.reserve(static_cast<std::size_t>(end - begin));
    for (auto it = begin; it != end; ++it)
        mentions.push_back({*it, mentions.size(), mentions.size()});
    std::sort(mentions.begin(), mentions.end(), [](const Mention &left, const Mention &right) {
        return left.row != right.row ? left.row < right.row : left.first < right.first;
    });
    std::size_t kept = 0;
    for (const Mention &mention : mentions) {
        if (kept > 0 && mentions[kept - 1].row == mention.row)
            mentions[kept - 1].last = mention.last;
        else
            mentions[kept++] = mention;
    }
    mentions.resize(kept);
    return mentions;
}

/// Consecutive rows; none, if `bottom` is less than `top`.
struct Piece
{
    int top = 0;
    int bottom = -1;
};

/// What one step sends to the end, unless a later step sends it there again.
struct Step
{
    Piece above;
    Piece below;
    Piece row;
};

using MentionIterator = std::vector<Mention>::const_iterator;

/// Divides a range at the rows mentioned in it, of which there is at least one, and hands its pieces to the steps that
/// move them.
void divide(const QItemSelectionRange &range, MentionIterator begin, MentionIterator end, std::vector<Step> &steps)
{
    steps[begin->first].above = {range.top(), begin->row - 1};
    for (auto next = begin + 1; next != end; ++next) {
        const auto previous = next - 1;
        const Piece between = {previous->row + 1, next->row - 1};
        if (previous->first < next->first)
            steps[next->first].above = between;
        else
            steps[previous->first].below = between;
    }
    const auto last = end - 1;
    steps[last->first].below = {last->row + 1, range.bottom()};
}

/// The selection that has come of `standing` when the rows have been selected as well.
QItemSelection joined(const QAbstractItemModel &model, const QItemSelection &standing, RowIterator begin,
                      RowIterator end)
{
    const std::vector<Mention> mentions = mentionsOf(begin, end);
    std::vector<Step> steps(static_cast<std::size_t>(end - begin));
    for (const Mention &mention : mentions)
        steps[mention.last].row = {mention.row, mention.row};

    QItemSelection result;
    for (const QItemSelectionRange &range : standing) {
        const auto isAbove = [](const Mention &mention, int row) { return mention.row < row; };
        const auto first = std::lower_bound(mentions.begin(), mentions.end(), range.top(), isAbove);
        const auto behind = std::lower_bound(first, mentions.end(), range.bottom() + 1, isAbove);
        if (first == behind)
            result.append(range);
        else
            divide(range, first, behind, steps);
    }
    const auto append = [&model, &result](const Piece &piece) {
        if (piece.top <= piece.bottom)
            result.append(QItemSelectionRange(model.index(piece.top, 0), model.index(piece.bottom, 0)));
    };
    for (const Step &step : steps) {
        append(step.above);
        append(step.below);
        append(step.row);
    }
    return result;
}

} // namespace

void selectInTurn(QItemSelectionModel &model, const std::vector<int> &rows)
{
    // The last row is left to the toolkit, which keeps it apart: the user's next click with Shift takes it back, unless
    // it had been selected before.
    const RowIterator last = rows.end() - 1;
    const QModelIndex lastIndex = model.model()->index(*last, 0);
    QItemSelection selection = model.selection();
    if (rows.size() > 1)
        selection = joined(*model.model(), selection, rows.begin(), last);
    const bool isRepeated = selection.contains(lastIndex);
    if (isRepeated)
        selection = joined(*model.model(), selection, last, rows.end());
    // The toolkit compares the old ranges with the new ones. That costs the square of their number, unless there were
    // none, or the new ones follow behind the old ones.
    if (isRepeated || rows.size() > 1) {
        model.clearSelection();
        model.select(selection, QItemSelectionModel::Select);
    }
    model.select(lastIndex, QItemSelectionModel::Select);
}

} // namespace orvane::zelgui
