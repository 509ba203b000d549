// Rows in the row lists for the tests of the sorts: each is put there with a record of its own in the store.
// Their colours tell their places: 1 and 10 for the first row, 2 and 20 for the second.
#pragma once

#include "core/RowLists.h"
#include "planner/lists/RowSorts.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

inline constexpr Date Wednesday{std::chrono::year{2009} / 10 / 14};

class RowSorts : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

void AddHomeworkRow(const AssignmentTexts& assignment, const std::string& className = "Algebra");
void AddStudyRow(const AssignmentTexts& assignment, const std::string& className, const std::string& time,
                 const std::string& date);
void AddTaskRow(const TaskTexts& task, const std::string& shownType = "None");
void AddEventRowOf(const EventTexts& event, const std::string& shownType = "", Date date = Wednesday);
void AddReminderRow(const std::string& kind, const std::string& className, const std::string& type,
                    const std::string& text, int days);

template <class Column>
SortOrder Up(Column column) {
    return {static_cast<int>(column), Ascending};
}

template <class Column>
SortOrder Down(Column column) {
    return {static_cast<int>(column), Descending};
}
