// The link of an event to a class: a type of the form "TermID4-ClassID12", which makes it a class meeting.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct ClassLink {
    int term = 0;   // id of the term
    int class_ = 0; // id of the class
};

// True when the type of an event holds both "TermID" and "ClassID".
bool IsClassMeeting(std::string_view type);

// The ids that a class meeting's type names; nothing for any other type, and for a link of any other form.
std::optional<ClassLink> ClassLinkIn(std::string_view type);

// The type of a meeting of the class.
std::string ClassLinkText(int term, std::string_view class_);

// Position in Store.ClassRecord of the class with that term and id, in whichever term; 0 when there is none.
// Deleted classes are none.
int ClassPosition(const ClassLink& link);

// Position in Store.ClassRecord of the class of the active term that an event's type names; 0 when the type
// is no class meeting, its link has another form, or its class is gone, deleted or of another term.
int ActiveClassPosition(std::string_view type);

// False for a class meeting whose class is none of the active term's; true for every other event.
bool BelongsToActiveTerm(std::string_view type);
