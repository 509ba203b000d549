// The order of the rows of the reminder window.
#include "planner/reminders/ReminderListRows.h"

#include "planner/rows/RowOrder.h"

namespace {

RowOrder OrderByTexts(const TextList& texts, int direction) {
    return OrderByText(texts.Count(), direction,
                       [&](int row) -> std::string_view { return texts.Item(row); });
}

RowOrder OrderOf(const ReminderListRows& rows, SortOrder order) {
    switch (static_cast<ReminderListColumn>(order.column)) {
    case ReminderListColumn::Mode:
        return OrderByTexts(rows.ReminderModes, order.direction);
    case ReminderListColumn::Type:
        return OrderByTexts(rows.ReminderTypes, order.direction);
    case ReminderListColumn::Name:
        return OrderByTexts(rows.ReminderNames, order.direction);
    case ReminderListColumn::Time:
        return OrderByNumber(rows.ReminderSortKeys.Count(), order.direction,
                             [&](int row) { return rows.ReminderSortKeys.Item(row); });
    }
    return {};
}

} // namespace

void SortReminderListRows(ReminderListRows& rows, SortOrder order) {
    const RowOrder rowOrder = OrderOf(rows, order);
    ForEachList(rows, [&](auto& list) { Reorder(list, rowOrder); });
}
