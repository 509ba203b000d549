// The steps of a refresh, by reason and mode.
#include "mainwindow/modes/ModeTables.h"

#include <algorithm>

namespace {

static_assert(StandsInModeOrder(ModeRows) && StandsInModeOrder(ViewRows) && StandsInModeOrder(PanelRows) &&
              StandsInModeOrder(NewButtonRows) && StandsInModeOrder(EditMenuRows) &&
              StandsInModeOrder(ExportRows) && StandsInModeOrder(CounterRows));

constexpr bool IsStep(RefreshStep step) {
    switch (step) {
    case RefreshStep::ClickSelectedDay:
    case RefreshStep::ClickToday:
    case RefreshStep::DropMarks:
    case RefreshStep::BuildMonth:
    case RefreshStep::BuildMonthAnew:
    case RefreshStep::LayOut:
    case RefreshStep::Fill:
    case RefreshStep::Alerts:
    case RefreshStep::StudyTime:
    case RefreshStep::OpenAtMorning:
        return true;
    }
    return false;
}

// The letters of steps; one that is none does not compile, nor does a row without the letters of a mode.
struct StepLetters {
    std::string_view letters;

    // NOLINTNEXTLINE(google-explicit-constructor): the letters stand for the steps
    consteval StepLetters(const char* text) : letters(text) {
        for (const char letter : letters) {
            if (!IsStep(RefreshStep{letter})) {
                throw "no step has this letter";
            }
        }
    }
};

struct RefreshRow {
    std::string_view reason;
    std::array<StepLetters, ModeCount> steps;
};

constexpr std::array<RefreshRow, 8> RefreshRows{{
    // The calendar's layout paints the month, so a mode change lays it out once more when the month is built.
    {ReasonModeChange, {"LBFA", "LBLFA", "LBF", "LBF", "LBFAS", "LDMFbT"}},
    {ReasonViewChange, {"BLF", "BLF", "BLF", "BLF", "BLF", "CMLFbT"}},
    {ReasonCalendar, {"bLF", "bLF", "bLF", "bLF", "bLF", "MLFbT"}},
    {ReasonStartDayOfWeek, {"B", "BLF", "B", "B", "B", "B"}},
    {ReasonNewRecord, {"BLFA", "BLFA", "BLF", "BLF", "BLFA", "CMLFbT"}},
    {ReasonNewTerm, {"BLFA", "BLFA", "BLF", "", "", ""}},
    {ReasonColorChange, {"LF", "LF", "LF", "LF", "LF", "LF"}},
    {ReasonResize, {"LF", "LF", "LF", "LF", "LF", "LF"}},
}};

} // namespace

std::string_view RefreshSteps(std::string_view reason, Mode mode) {
    const auto found = std::ranges::find(RefreshRows, reason, &RefreshRow::reason);
    if (found == RefreshRows.end() || mode == Mode::None) {
        return {};
    }
    return RowOf(found->steps, mode).letters;
}
