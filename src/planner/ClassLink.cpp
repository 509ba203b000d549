// The link of an event to a class: a type of the form "TermID4-ClassID12", which makes it a class meeting.
#include "planner/ClassLink.h"

#include "core/Module1.h"
#include "core/Values.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view TermWord = "TermID";
constexpr std::string_view ClassWord = "ClassID";
constexpr std::size_t GreatestIdLength = 5;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// The id in a text. Nearly every id is bare digits, which are read without the detour over a fraction.
std::optional<int> IdIn(std::string_view text) {
    if (!text.empty() && text.size() <= GreatestIdLength && std::ranges::all_of(text, IsDigit)) {
        int id = 0;
        std::from_chars(text.data(), text.data() + text.size(), id);
        return id;
    }
    const std::optional<double> number = NumberIn(text);
    const bool fits = number && *number >= LeastInt16 && *number <= GreatestInt16;
    if (!fits || static_cast<int>(*number) != *number) {
        return std::nullopt;
    }
    return static_cast<int>(*number);
}

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

int ClassPosition(const ClassLink& link) {
    const ClassLists& classes = Store.ClassRecord;
    for (int position = 1; position <= classes.id.Count(); ++position) {
        if (IdIn(classes.id.Item(position)) == link.class_ &&
            IdIn(classes.term.Item(position)) == link.term && classes.name.Item(position) != DeletedRecord) {
            return position;
        }
    }
    return 0;
}

int ActiveClassPosition(std::string_view type) {
    const std::optional<ClassLink> link = ClassLinkIn(type);
    const bool ofActiveTerm = link && ActiveTermID != 0 && link->term == ActiveTermID;
    return ofActiveTerm ? ClassPosition(*link) : 0;
}

bool BelongsToActiveTerm(std::string_view type) {
    return !IsClassMeeting(type) || ActiveClassPosition(type) != 0;
}
