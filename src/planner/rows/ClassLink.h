// The link of an event to a class: a type of the form "TermID4-ClassID12", which makes it a class meeting.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

// Which class is looked for. Ids are read as numbers: "13.0" is 13.
struct ClassSought {
    double id = 0;
    std::optional<int> term{}; // id of its term; without, a class of any term will do
    bool deletedToo = false;   // a deleted class is as good as one that lives
};

// The first such position in Store.ClassRecord from this one on; 0 when there is none.
int FindClass(const ClassSought& sought, int from = 1);

// The living class that the link names, in whichever term; 0 when there is none.
int ClassPosition(const ClassLink& link);

// The ids of the active term's classes, deleted ones left out; none without a term.
std::vector<int> ActiveClassIds();

// False for a class meeting whose class is none of the active term's, be it gone or deleted, and for one
// whose link has another form; true for every other event. Who asks for many events gets the ids once and
// hands them in.
bool BelongsToActiveTerm(std::string_view type);
bool BelongsToActiveTerm(std::string_view type, const std::vector<int>& activeClassIds);
