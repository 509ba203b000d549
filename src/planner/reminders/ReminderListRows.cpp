// The rows of the reminder window: what they are about, and their order.
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

ReminderItem ItemOfRow(const ReminderListRows& rows, int row) {
    return row == 0 ? ReminderItem{} : ReminderItem{rows.ReminderModes.Item(row), rows.ReminderIds.Item(row)};
}

int RowOfItem(const ReminderListRows& rows, const ReminderItem& item) {
    for (int row = 1; row <= rows.ReminderIds.Count(); ++row) {
        if (rows.ReminderIds.Item(row) == item.id && rows.ReminderModes.Item(row) == item.mode) {
            return row;
        }
    }
    return 0;
}

void SortReminderListRows(ReminderListRows& rows, SortOrder order) {
    const RowOrder rowOrder = OrderOf(rows, order);
    ForEachList(rows, [&](auto& list) { Reorder(list, rowOrder); });
}
