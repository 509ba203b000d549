// What stands in the 42 days of a month's page.
#include "export/CalendarDays.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/RowTexts.h"

#include <optional>

namespace {

constexpr std::size_t HomeworkLimit = 14; // characters of a link's text
constexpr std::size_t TaskLimit = 20;
constexpr std::size_t EventLimit = 9;

// The link leads nowhere: it is there for the tip that its title gives.
std::string Anchor(const std::string& title, const std::string& text, std::size_t limit) {
    return "<a title=\"" + title + "\" href=\"#top\">" + text.substr(0, limit) + "</a>";
}

void AddDayLine(CalendarDay& day, const std::string& line) {
    if (day.lines.size() < MostLines) {
        day.lines.push_back("&nbsp;" + line);
    }
}

// The day on which a stored date falls; none where it is no date or lies outside the month's cells.
CalendarDay* DayOfDate(MonthDays& days, Date firstCell, std::string_view stored) {
    const std::optional<Date> date = DateIn(stored);
    const int cell = date ? DayDiff(firstCell, *date) : -1;
    return cell >= 0 && cell < MonthCells ? &days[static_cast<std::size_t>(cell)] : nullptr;
}

// --- Homework ------------------------------------------------------------------------------------

std::string HomeworkAnchor(const ClassPositions& classes, int position, const std::string& behind) {
    const AssignmentLists& store = Store.Assignment;
    const int class_ = ClassPositionOf(classes, store.class_.Item(position));
    return Anchor(store.type.Item(position) + ": " + store.desc.Item(position) + " (" + behind + ")",
                  class_ == 0 ? std::string{} : Store.ClassRecord.name.Item(class_), HomeworkLimit);
}

void AddHomework(CalendarDay& day, const ClassPositions& classes, int position) {
    const int minutes = ClockToMinutes(Store.Assignment.time_left.Item(position));
    const std::string time = PageClock(minutes);
    day.minutesLeft += minutes;
    day.workLeft = day.minutesLeft != 0;
    AddDayLine(day, time + "&nbsp;" + HomeworkAnchor(classes, position, time + " Study Time Left"));
}

void AddDoneHomework(CalendarDay& day, const ClassPositions& classes, int position) {
    AddDayLine(day, "<font color=\"Silver\">0:00</font>&nbsp;" + HomeworkAnchor(classes, position, "Done"));
}

void AddEachHomework(MonthDays& days, Date firstCell, bool done) {
    const AssignmentLists& store = Store.Assignment;
    const ClassPositions classes = ClassPositionsById();
    for (int position = 1, records = WholeRecords(store); position <= records; ++position) {
        CalendarDay* const day = DayOfDate(days, firstCell, store.date.Item(position));
        if (day == nullptr || store.desc.Item(position) == DeletedRecord ||
            IsTrue(store.done.Item(position)) != done) {
            continue;
        }
        (done ? AddDoneHomework : AddHomework)(*day, classes, position);
    }
}

// --- Tasks ---------------------------------------------------------------------------------------

std::string TaskTitle(int position, bool done) {
    const TaskLists& store = Store.TaskRecord;
    const std::string type = TaskTypeLook(store.type.Item(position)).name;
    const std::string& priority = store.priority.Item(position);
    return (ShownChoice(type).empty() ? "" : type + ": ") + std::string(TaskName(position)) +
           (priority == NoType ? "" : " - " + priority + " Priority") +
           (done ? " - Done" : " - " + store.percent_complete.Item(position) + " Complete");
}

// --- Events --------------------------------------------------------------------------------------

std::string EventLine(int position) {
    const EventLists& store = Store.EventRecord;
    const std::string& desc = store.desc.Item(position);
    const std::string type = EventTypeLook(store.type.Item(position)).name;
    const std::string clock = ShownClock(ShownTime(store.time.Item(position)));
    const std::string time = clock.empty() ? "" : clock + " ";
    return time + Anchor(time + EventTitle(type, desc), OrElse(OrElse(desc, type), NewEventText), EventLimit);
}

} // namespace

MonthDays HomeworkDays(Date firstCell) {
    MonthDays days;
    AddEachHomework(days, firstCell, false);
    AddEachHomework(days, firstCell, true);
    return days;
}

MonthDays TaskDays(Date firstCell) {
    const TaskLists& store = Store.TaskRecord;
    MonthDays days;
    for (int position = 1, records = WholeRecords(store); position <= records; ++position) {
        CalendarDay* const day = DayOfDate(days, firstCell, store.date.Item(position));
        if (day == nullptr || store.desc.Item(position) == DeletedRecord ||
            !IsTrue(store.date_exists.Item(position))) {
            continue;
        }
        const bool done = IsTrue(store.done.Item(position));
        day->workLeft = day->workLeft || !done;
        AddDayLine(*day, Anchor(TaskTitle(position, done), std::string(TaskName(position)), TaskLimit));
    }
    return days;
}

MonthDays EventDays(Date firstCell) {
    const EventLists& store = Store.EventRecord;
    const std::vector<DayFacts> facts = FactsOfDays(firstCell, MonthCells);
    const std::vector<int> classes = ActiveClassIds();
    MonthDays days;
    for (int position = 1, records = WholeRecords(store); position <= records; ++position) {
        if (!IsDate(store.date.Item(position)) || !BelongsToActiveTerm(store.type.Item(position), classes)) {
            continue;
        }
        const DayBits occurring = OccurringDays(facts, position);
        for (std::size_t cell = 0; cell < days.size(); ++cell) {
            if ((occurring >> cell & 1U) != 0 && days[cell].lines.size() < MostLines) {
                AddDayLine(days[cell], EventLine(position));
            }
        }
    }
    return days;
}

std::string PageClock(int minutes) {
    return std::to_string(minutes / MinutesPerHour) + ":" + TwoDigits(minutes % MinutesPerHour);
}
