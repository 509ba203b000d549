// How the keys move the selected day.
#include "mainwindow/grid/DateMoves.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace std::chrono_literals;

namespace {

constexpr Date LeapJanuary{std::chrono::year{2008} / 1 / 31};

// By GridMove.
constexpr std::array<const char*, 8> MoveNames{"Up",     "Down",     "Left", "Right",
                                               "PageUp", "PageDown", "Home", "End"};

std::string NameOf(GridMove move) {
    return MoveNames[static_cast<std::size_t>(move)];
}

struct DateCase {
    GridMove move;
    Date target;
};

class DateMoves : public testing::TestWithParam<DateCase> {};

} // namespace

TEST_P(DateMoves, FromTheLastOfJanuaryInALeapYear) {
    EXPECT_EQ(MovedDate(GetParam().move, LeapJanuary), GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(Keys, DateMoves,
                         testing::Values(DateCase{GridMove::Left, Date{2008y / 1 / 30}},
                                         DateCase{GridMove::Right, Date{2008y / 2 / 1}},
                                         DateCase{GridMove::Up, Date{2008y / 1 / 24}},
                                         DateCase{GridMove::Down, Date{2008y / 2 / 7}},
                                         DateCase{GridMove::PageUp, Date{2007y / 12 / 31}},
                                         DateCase{GridMove::PageDown, Date{2008y / 2 / 29}},
                                         DateCase{GridMove::Home, Date{2008y / 1 / 1}},
                                         DateCase{GridMove::End, Date{2008y / 1 / 31}}),
                         [](const auto& each) { return NameOf(each.param.move); });
