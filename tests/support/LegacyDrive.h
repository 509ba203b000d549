// The older release's files for the tests: records of fixed length, made of the texts at their offsets.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>

struct LegacyText {
    std::size_t offset;
    std::string text;
};

// The bytes of a record in each file.
inline constexpr std::size_t TermBytes = 100;
inline constexpr std::size_t ClassBytes = 615;
inline constexpr std::size_t NoteBytes = 1500;
inline constexpr std::size_t AssignmentBytes = 160;
inline constexpr std::size_t TaskBytes = 1000;
inline constexpr std::size_t EventBytes = 1000;

// A record of blanks, or of the filler, with the texts in it.
inline std::string LegacyRecord(std::size_t length, std::initializer_list<LegacyText> texts,
                                char filler = ' ') {
    std::string record(length, filler);
    for (const LegacyText& text : texts) {
        record.replace(text.offset, text.text.size(), text.text);
    }
    return record;
}

inline std::string LegacyTerm(const std::string& id, const std::string& name,
                              const std::string& start = "2009-08-24",
                              const std::string& end = "2009.12.18") {
    return LegacyRecord(TermBytes, {{0, id}, {5, name}, {40, start}, {55, end}});
}

inline std::string LegacyClass(const std::string& id, const std::string& term, const std::string& name,
                               const std::string& notes = {}) {
    return LegacyRecord(ClassBytes, {{0, id}, {5, term}, {10, name}, {75, notes}});
}

inline std::string LegacyNote(const std::string& owner, const std::string& text) {
    return LegacyRecord(NoteBytes, {{0, "9"}, {5, owner}, {50, text}});
}

struct LegacyAssignmentTexts {
    std::string id = "1";
    std::string class_ = "1";
    std::string date = "2009-10-14";
    std::string type = "Reading";
    std::string est_time = "01 : 30";
    std::string desc = "Old work";
    std::string done = "False";
};

inline std::string LegacyAssignment(const LegacyAssignmentTexts& texts) {
    return LegacyRecord(AssignmentBytes, {{5, texts.id},
                                          {10, texts.class_},
                                          {15, texts.date},
                                          {30, texts.type},
                                          {50, texts.est_time},
                                          {57, texts.desc},
                                          {107, texts.done}});
}

struct LegacyTaskTexts {
    std::string id = "1";
    std::string desc = "Old task";
    std::string date_exists = "True";
    std::string date = "2009-10-14";
    std::string type = "Home";
    std::string priority = "Low";
    std::string done = "False";
    std::string notes{};
};

inline std::string LegacyTask(const LegacyTaskTexts& texts) {
    return LegacyRecord(TaskBytes, {{5, texts.id},
                                    {10, texts.desc},
                                    {70, texts.date_exists},
                                    {75, texts.date},
                                    {90, texts.type},
                                    {100, texts.priority},
                                    {110, texts.done},
                                    {115, texts.notes}});
}

struct LegacyEventTexts {
    std::string id = "1";
    std::string date = "2009-10-14";
    std::string desc = "Old event";
    std::string type = "School";
    std::string time = "10:30 AM";
    std::string recurrence = "None";
    std::string same_date = "False";
    std::string repeat_number = "First";
    std::string repeat_day = "Day";
    std::string repeat_daily = "FFFFFFF";
    std::string end = "False";
    std::string end_date = "2009-10-14";
    std::string notes{};
};

inline std::string LegacyEvent(const LegacyEventTexts& texts) {
    return LegacyRecord(EventBytes, {{5, texts.id},
                                     {10, texts.date},
                                     {25, texts.desc},
                                     {85, texts.type},
                                     {95, texts.time},
                                     {105, texts.recurrence},
                                     {110, texts.same_date},
                                     {115, texts.repeat_number},
                                     {125, texts.repeat_day},
                                     {135, texts.repeat_daily},
                                     {145, texts.end},
                                     {150, texts.end_date},
                                     {165, texts.notes}});
}
