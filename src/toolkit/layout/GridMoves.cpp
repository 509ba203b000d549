// How the keys move in a list.
#include "toolkit/layout/GridMoves.h"

#include <algorithm>

namespace {

int RowAfter(GridMove move, int row, const ListView& view) {
    switch (move) {
    case GridMove::Up:
        return row - 1;
    case GridMove::Down:
        return row + 1;
    case GridMove::PageUp:
        return row - std::max(view.rowsVisible, 1);
    case GridMove::PageDown:
        return row + std::max(view.rowsVisible, 1);
    case GridMove::Home:
        return 1;
    case GridMove::End:
        return view.rowCount;
    case GridMove::Left:
    case GridMove::Right:
        return row;
    }
    return row;
}

} // namespace

int MovedRow(GridMove move, int row, const ListView& view) {
    const bool aside = move == GridMove::Left || move == GridMove::Right;
    const bool toAnEnd = move == GridMove::Home || move == GridMove::End;
    if (aside || view.rowCount == 0) {
        return row;
    }
    const int target = row == 0 && !toAnEnd ? view.firstRow : RowAfter(move, row, view);
    return std::clamp(target, 1, view.rowCount);
}
