// The rows of the Homework and the Study Sessions lists.
#include "planner/lists/HomeworkSelection.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/rows/RowLook.h"
#include "planner/study/StudyLog.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace {

// Clears the rows of both kinds. The names of the classes stay allocated: AddClassLooks writes over them.
void ClearRows() {
    TextList names = std::move(RowClass);
    ClearLists(HomeworkRowLists);
    ClearLists(StudyRowLists);
    RowClass = std::move(names);
}

bool IsOfDay(std::string_view date, Date day) {
    return day == AllDates || DateValue(date) == day;
}

Date RangeDay(const ListFilter& filter) {
    return filter.comboDateRange == "Day" ? filter.clickedDate : AllDates;
}

// The position of each row's class in the store. A row whose class has gone takes that of the row after it,
// and the last one none, as is meant.
std::vector<int> ClassOfRows() {
    const ClassPositions classes = ClassPositionsById();
    std::vector<int> positions;
    positions.reserve(HomeworkRows.values.size());
    for (const int position : HomeworkRows) {
        positions.push_back(ClassPositionOf(classes, Store.Assignment.class_.Item(position)));
    }
    for (std::size_t i = positions.size(); i-- > 1;) {
        if (positions[i - 1] == 0) {
            positions[i - 1] = positions[i];
        }
    }
    return positions;
}

// Gives each of HomeworkRows the name and colours of its class. The names are written over those of the last
// selection.
void AddClassLooks() {
    const std::vector<int> positions = ClassOfRows();
    // Of the classes met so far, by their positions.
    std::vector<std::optional<RowLook>> looks(static_cast<std::size_t>(Store.ClassRecord.id.Count()) + 1);
    RowClass.values.resize(positions.size());
    for (std::size_t i = 0; i < positions.size(); ++i) {
        std::optional<RowLook>& look = looks[static_cast<std::size_t>(positions[i])];
        if (!look) {
            look = ClassLook(positions[i]);
        }
        RowClass.values[i] = look->name;
        RowForeColor.Add(look->forecolor);
        RowBackColor.Add(look->backcolor);
    }
}

std::unordered_map<int, int> AssignmentPositionsById() {
    const TextList& ids = Store.Assignment.id;
    std::unordered_map<int, int> positions;
    for (int position = 1, records = WholeRecords(Store.Assignment); position <= records; ++position) {
        if (const std::optional<int> id = IdIn(ids.Item(position))) {
            positions.emplace(*id, position);
        }
    }
    return positions;
}

} // namespace

HomeworkCounts HomeworkDayList(Date day, const ListFilter& filter) {
    const AssignmentLists& assignments = Store.Assignment;
    const LoggedMinutes logged = LoggedMinutesById();
    HomeworkCounts counts;
    ClearRows();
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) == DeletedRecord ||
            !IsOfDay(assignments.date.Item(position), day)) {
            continue;
        }
        const bool done = IsTrue(assignments.done.Item(position));
        ++counts.total;
        counts.left += done ? 0 : 1;
        if (filter.comboList == (done ? "Not Done" : "Done")) {
            continue;
        }
        HomeworkRows.Add(position);
        RowTimeLeft.Add(MinutesToClock(done ? 0 : RemainingMinutes(position, logged)));
    }
    AddClassLooks();
    return counts;
}

HomeworkCounts SelectHomeworkRows(const ListFilter& filter) {
    return HomeworkDayList(RangeDay(filter), filter);
}

StudySessionBoxes StudySessionDayList(Date day) {
    const StudySessionLists& log = Store.StudySessionRecord;
    const std::unordered_map<int, int> assignments = AssignmentPositionsById();
    int minutes = 0;
    ClearRows();
    for (int entry = 1; entry <= log.assignment.Count(); ++entry) {
        // The id -1 of an entry that no longer counts is no assignment's.
        const std::optional<int> id = IdIn(log.assignment.Item(entry));
        const auto assignment = id ? assignments.find(*id) : assignments.end();
        if (assignment == assignments.end() || !IsOfDay(log.date.Item(entry), day)) {
            continue;
        }
        StudyRowTime.Add(entry);
        StudyRowDate.Add(entry);
        HomeworkRows.Add(assignment->second);
        minutes += ClockToMinutes(log.time.Item(entry));
    }
    AddClassLooks();
    return {{std::to_string(StudyRowTime.Count())}, {MinutesToClock(minutes)}};
}

StudySessionBoxes SelectStudyRows(const ListFilter& filter) {
    return StudySessionDayList(RangeDay(filter));
}
