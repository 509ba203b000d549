// The colour by which the view menus' panel and the marked days tell which word is chosen in ComboList.
#include "planner/lists/ViewMenuColor.h"

#include "planner/rows/Colors.h"

#include <array>

namespace {

struct WordColor {
    std::string_view word;
    int color;
};

constexpr std::array<WordColor, 8> WordColors{{
    {"All", ColorAll},
    {"Done", ColorDone},
    {"Other Events", ColorDone},
    {"Events", ColorDone},
    {"Not Done", ColorNotDone},
    {"Homework", ColorNotDone},
    {"Classes", ColorTasks},
    {"Tasks", ColorTasks},
}};

} // namespace

std::optional<int> ViewMenuColor(std::string_view comboList) {
    for (const WordColor& row : WordColors) {
        if (row.word == comboList) {
            return row.color;
        }
    }
    return std::nullopt;
}
