// The steps of a refresh, by reason and mode.
#include "mainwindow/modes/ModeTables.h"

#include <algorithm>

namespace {

template <class Row>
constexpr bool StandsInModeOrder(const std::array<Row, ModeCount>& rows) {
    for (std::size_t i = 0; i < ModeCount; ++i) {
        if (rows[i].mode != static_cast<Mode>(i)) {
            return false;
        }
    }
    return true;
}

static_assert(StandsInModeOrder(ModeRows) && StandsInModeOrder(PanelRows) &&
              StandsInModeOrder(NewButtonRows) && StandsInModeOrder(EditMenuRows) &&
              StandsInModeOrder(ExportRows) && StandsInModeOrder(CounterRows));

struct RefreshRow {
    std::string_view reason;
    std::array<std::string_view, ModeCount> steps;
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
    return found == RefreshRows.end() || mode == Mode::None ? std::string_view{} : RowOf(found->steps, mode);
}
