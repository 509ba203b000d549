// The texts of a row.
#include "planner/rows/RowTexts.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "planner/rows/ClassLink.h"

#include <optional>

namespace {

std::string_view NameOf(const TextList& descriptions, int position, std::string_view instead) {
    const std::string& desc = descriptions.Item(position);
    return desc.empty() ? instead : desc;
}

std::string_view KindOfEvent(std::string_view type) {
    if (IsClassMeeting(type)) {
        return "Class";
    }
    return type == StudyTimeType ? StudyTimeType : NewEventText;
}

} // namespace

std::string_view AssignmentName(int position) {
    return NameOf(Store.Assignment.desc, position, "New Assignment");
}

std::string_view TaskName(int position) {
    return NameOf(Store.TaskRecord.desc, position, "New Task");
}

std::string_view EventName(int position) {
    return NameOf(Store.EventRecord.desc, position, KindOfEvent(Store.EventRecord.type.Item(position)));
}

std::string EventTitle(std::string_view type, std::string_view desc) {
    return OrElse(TypeAndDescription(type, desc), NewEventText);
}

std::string TypeAndDescription(std::string_view type, std::string_view desc) {
    const bool both = !type.empty() && !desc.empty();
    return std::string(type) + (both ? " - " : "") + std::string(desc);
}

std::string OrElse(std::string_view text, std::string_view other) {
    return std::string(text.empty() ? other : text);
}

std::string_view ShownChoice(std::string_view text) {
    return text == NoType ? std::string_view{} : text;
}

std::string ShownClock(std::string_view clock) {
    std::string text(clock);
    std::erase(text, ' ');
    return text;
}

std::string ShownTime(std::string_view time) {
    const std::optional<TimeOfDay> clock = TimeIn(time);
    return clock ? StoredTime(*clock) : std::string{};
}
