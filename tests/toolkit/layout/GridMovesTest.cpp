// How the keys move in a list.
#include "toolkit/layout/GridMoves.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

constexpr ListView Forty{.rowCount = 40, .firstRow = 11, .rowsVisible = 10};

// By GridMove.
constexpr std::array<const char*, 8> MoveNames{"Up",     "Down",     "Left", "Right",
                                               "PageUp", "PageDown", "Home", "End"};

std::string NameOf(GridMove move) {
    return MoveNames[static_cast<std::size_t>(move)];
}

struct RowCase {
    GridMove move;
    int row;
    int target;
};

class RowMoves : public testing::TestWithParam<RowCase> {};

} // namespace

TEST_P(RowMoves, LeadToTheRow) {
    EXPECT_EQ(MovedRow(GetParam().move, GetParam().row, Forty), GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(GridMoves, RowMoves,
                         testing::Values(RowCase{GridMove::Down, 12, 13}, RowCase{GridMove::Up, 12, 11},
                                         RowCase{GridMove::PageDown, 12, 22},
                                         RowCase{GridMove::PageUp, 12, 2}, RowCase{GridMove::Home, 12, 1},
                                         RowCase{GridMove::End, 12, 40}, RowCase{GridMove::Left, 12, 12},
                                         RowCase{GridMove::Right, 12, 12}, RowCase{GridMove::Up, 1, 1},
                                         RowCase{GridMove::Down, 40, 40}, RowCase{GridMove::PageUp, 5, 1},
                                         RowCase{GridMove::PageDown, 35, 40}, RowCase{GridMove::Down, 0, 11},
                                         RowCase{GridMove::Up, 0, 11}, RowCase{GridMove::PageDown, 0, 11},
                                         RowCase{GridMove::Home, 0, 1}, RowCase{GridMove::End, 0, 40},
                                         RowCase{GridMove::Left, 0, 0}),
                         [](const auto& each) {
                             return NameOf(each.param.move) + "From" + std::to_string(each.param.row);
                         });

TEST(GridMoves, AnEmptyListHasNoRowToMoveTo) {
    for (const GridMove move : {GridMove::Down, GridMove::Home, GridMove::End, GridMove::PageDown}) {
        EXPECT_EQ(MovedRow(move, 0, {.rowCount = 0}), 0);
    }
}

TEST(GridMoves, APageIsARowAtLeast) {
    EXPECT_EQ(MovedRow(GridMove::PageDown, 1, {.rowCount = 5, .firstRow = 1, .rowsVisible = 0}), 2);
}
