// The link of an event to a class: a type of the form "TermID4-ClassID12", which makes it a class meeting.
#include "planner/rows/ClassLink.h"

#include "core/Module1.h"
#include "core/Values.h"

#include <algorithm>

namespace {

constexpr std::string_view TermWord = "TermID";
constexpr std::string_view ClassWord = "ClassID";

// The id behind the word with which the piece of a link begins.
std::optional<int> IdBehind(std::string_view word, std::string_view piece) {
    return piece.starts_with(word) ? IdIn(piece.substr(word.size())) : std::nullopt;
}

} // namespace

bool IsClassMeeting(std::string_view type) {
    return type.find(TermWord) != std::string_view::npos && type.find(ClassWord) != std::string_view::npos;
}

std::optional<ClassLink> ClassLinkIn(std::string_view type) {
    const std::size_t hyphen = type.find('-');
    if (hyphen == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<int> term = IdBehind(TermWord, type.substr(0, hyphen));
    const std::optional<int> class_ = IdBehind(ClassWord, type.substr(hyphen + 1));
    if (!term || !class_) {
        return std::nullopt;
    }
    return ClassLink{*term, *class_};
}

std::string ClassLinkText(int term, std::string_view class_) {
    return std::string(TermWord) + std::to_string(term) + "-" + std::string(ClassWord) + std::string(class_);
}

int FindClass(const ClassSought& sought, int from) {
    const ClassLists& classes = Store.ClassRecord;
    for (int position = from, records = WholeRecords(classes); position <= records; ++position) {
        if (NumberIn(classes.id.Item(position)) == sought.id &&
            (!sought.term || NumberIn(classes.term.Item(position)) == *sought.term) &&
            (sought.deletedToo || classes.name.Item(position) != DeletedRecord)) {
            return position;
        }
    }
    return 0;
}

int ClassPosition(const ClassLink& link) {
    return FindClass({.id = static_cast<double>(link.class_), .term = link.term});
}

std::vector<int> ActiveClassIds() {
    const ClassLists& classes = Store.ClassRecord;
    std::vector<int> ids;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        const std::optional<int> id = IdIn(classes.id.Item(position));
        if (id && IsActiveClass(position)) {
            ids.push_back(*id);
        }
    }
    return ids;
}

bool BelongsToActiveTerm(std::string_view type) {
    return !IsClassMeeting(type) || BelongsToActiveTerm(type, ActiveClassIds());
}

bool BelongsToActiveTerm(std::string_view type, const std::vector<int>& activeClassIds) {
    if (!IsClassMeeting(type)) {
        return true;
    }
    const std::optional<ClassLink> link = ClassLinkIn(type);
    return link && link->term == ActiveTermID && std::ranges::count(activeClassIds, link->class_) > 0;
}
