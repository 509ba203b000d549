// What a row shows of its record's class or type: the name and the two colours.
#include "planner/rows/RowLook.h"

#include "core/Module1.h"
#include "core/Values.h"
#include "planner/rows/ClassLink.h"

namespace {

RowLook TypeLook(std::string_view category, std::string_view key) {
    const int row = TypeRow(category, key);
    if (row == 0) {
        return {};
    }
    return {TypeDisplayName(row), ToColor(TypeTable.forecolor.Item(row)),
            ToColor(TypeTable.backcolor.Item(row))};
}

} // namespace

ClassPositions ClassPositionsById() {
    const ClassLists& classes = Store.ClassRecord;
    ClassPositions positions;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        const std::optional<int> id = IdIn(classes.id.Item(position));
        if (id && classes.name.Item(position) != DeletedRecord) {
            positions.emplace(*id, position);
        }
    }
    return positions;
}

int ClassPositionOf(const ClassPositions& classes, std::string_view id) {
    const std::optional<int> number = IdIn(id);
    const auto found = number ? classes.find(*number) : classes.end();
    return found == classes.end() ? 0 : found->second;
}

RowLook ClassLook(int position) {
    if (position == 0) {
        return {};
    }
    const ClassLists& classes = Store.ClassRecord;
    return {classes.name.Item(position), ToColor(classes.forecolor.Item(position)),
            ToColor(classes.backcolor.Item(position))};
}

RowLook TaskTypeLook(std::string_view type) {
    return type == NoType ? RowLook{std::string(NoType)} : TypeLook("Task", type);
}

RowLook EventTypeLook(std::string_view type) {
    if (IsClassMeeting(type)) {
        const std::optional<ClassLink> link = ClassLinkIn(type);
        return ClassLook(link ? ClassPosition(*link) : 0);
    }
    return TypeLook("Event", type);
}
