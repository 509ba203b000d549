// The items of the context menus and of the tray menu.
#include "mainwindow/menus/PopupCaptions.h"

#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

// One line an item: its caption and its tag.
std::string Listed(const PopupItems& items) {
    std::string text;
    for (const PopupItem& item : items) {
        text += item.caption + (item.tag.empty() ? "" : " (" + item.tag + ")") + "\n";
    }
    return text;
}

class DayMenus : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        for (NumberList* list : {&HomeworkRows, &TaskRows, &EventRows}) {
            list->Clear();
        }
        for (TextList* list : {&RowClass, &TaskRowType, &EventRowType}) {
            list->Clear();
        }
    }

    static std::string HomeworkCaption(const AssignmentTexts& record) {
        HomeworkRows.Add(AddAssignmentRecord(record));
        RowClass.Add("Algebra");
        return HomeworkDayMenuItems()[static_cast<std::size_t>(HomeworkRows.Count()) - 1].caption;
    }

    static std::string TaskCaption(const TaskTexts& record, const std::string& type = "None") {
        TaskRows.Add(AddTaskRecord(record));
        TaskRowType.Add(type);
        return TaskDayMenuItems()[static_cast<std::size_t>(TaskRows.Count()) - 1].caption;
    }

    static std::string EventCaption(const EventTexts& record, const std::string& type = "") {
        EventRows.Add(AddEventRecord(record));
        EventRowType.Add(type);
        return EventDayMenuItems()[static_cast<std::size_t>(EventRows.Count()) - 1].caption;
    }
};

} // namespace

TEST(FixedMenus, CalendarOffersNewItemsAndTheOtherViews) {
    EXPECT_EQ(Listed(CalendarMenuItems()), "Add new assignment... (homework new)\n"
                                           "Add new event... (event new)\n"
                                           "Add new task... (task new)\n"
                                           "-\n"
                                           "See all assignments... (homework view)\n"
                                           "See this day's events... (event view)\n"
                                           "See all tasks... (task view)\n");
}

TEST(FixedMenus, HomeworkList) {
    EXPECT_EQ(Listed(HomeworkListMenuItems()), "Add new assignment... (homework new)\n"
                                               "Customize colors... (homework custom)\n"
                                               "See GPA... (homework GPA)\n"
                                               "-\n"
                                               "See this day's events... (event view)\n"
                                               "See all tasks... (task view)\n"
                                               "See the Calendar... (calendar view)\n");
}

TEST(FixedMenus, EventList) {
    EXPECT_EQ(Listed(EventListMenuItems()), "Add new event... (event new)\n"
                                            "Customize colors... (event custom)\n"
                                            "-\n"
                                            "See all assignments... (homework view)\n"
                                            "See all tasks... (task view)\n"
                                            "See the Calendar... (calendar view)\n");
}

TEST(FixedMenus, TaskList) {
    EXPECT_EQ(Listed(TaskListMenuItems()), "Add new task... (task new)\n"
                                           "Customize colors... (task custom)\n"
                                           "-\n"
                                           "See all assignments... (homework view)\n"
                                           "See this day's events... (event view)\n"
                                           "See the Calendar... (calendar view)\n");
}

TEST(FixedMenus, TrayOffersTheWindowOnlyWhileItIsNotOpen) {
    EXPECT_EQ(Listed(TrayMenuItems(true)), "Show Popup Reminders... (tray reminders)\n"
                                           "-\n"
                                           "Shutdown Planovarium (tray shutdown)\n");
    EXPECT_EQ(Listed(TrayMenuItems(false)), "Show Popup Reminders... (tray reminders)\n"
                                            "-\n"
                                            "Open Planovarium... (tray view)\n"
                                            "Shutdown Planovarium (tray shutdown)\n");
}

TEST_F(DayMenus, ADayWithoutItemsShowsWhatStandsBehindThem) {
    EXPECT_EQ(Listed(HomeworkDayMenuItems()), "-\n"
                                              "Add new assignment... (homework new)\n"
                                              "See all assignments... (homework view)\n"
                                              "See GPA... (homework GPA)\n");
    EXPECT_EQ(Listed(TaskDayMenuItems()), "-\n"
                                          "Add new task... (task new)\n"
                                          "See all tasks... (task view)\n");
    EXPECT_EQ(Listed(EventDayMenuItems()), "-\n"
                                           "Add new event... (event new)\n"
                                           "See this day's events... (event view)\n");
}

TEST_F(DayMenus, RowsAreNumberedFromOne) {
    HomeworkCaption({.desc = "One"});
    HomeworkCaption({.desc = "Two"});
    TaskCaption({.desc = "One"});
    EventCaption({.desc = "One"});
    EXPECT_EQ(HomeworkDayMenuItems()[0].tag, "homework 1");
    EXPECT_EQ(HomeworkDayMenuItems()[1].tag, "homework 2");
    EXPECT_EQ(TaskDayMenuItems()[0].tag, "task 1");
    EXPECT_EQ(EventDayMenuItems()[0].tag, "event 1");
}

TEST_F(DayMenus, HomeworkTellsTheTimeLeft) {
    EXPECT_EQ(HomeworkCaption({.desc = "Page 12", .time_left = "01 : 30"}),
              "(01:30 left)  Algebra - Page 12 ...");
}

TEST_F(DayMenus, HomeworkTellsThatItIsDone) {
    EXPECT_EQ(HomeworkCaption({.desc = "Page 12", .done = "True"}), "(Done)  Algebra - Page 12 ...");
}

TEST_F(DayMenus, HomeworkCarriesTheMarksOfReminderAndPriorityInFront) {
    EXPECT_EQ(HomeworkCaption({.desc = "Page 12", .priority = "True", .reminder = "True"}),
              "\xAE ! (01:00 left)  Algebra - Page 12 ...");
}

TEST_F(DayMenus, HomeworkWithoutADescriptionIsANewAssignment) {
    EXPECT_EQ(HomeworkCaption({.desc = ""}), "(01:00 left)  Algebra - New Assignment ...");
}

TEST_F(DayMenus, TaskTellsWhetherItIsDone) {
    EXPECT_EQ(TaskCaption({.desc = "Call"}), "(Not Done)  Call ...");
    EXPECT_EQ(TaskCaption({.desc = "Call", .done = "True"}), "(Done)  Call ...");
}

TEST_F(DayMenus, TaskShowsItsTypeUnlessItHasNone) {
    EXPECT_EQ(TaskCaption({.desc = "Call"}, "Errand"), "(Not Done)  Errand - Call ...");
    EXPECT_EQ(TaskCaption({.desc = "Call"}, ""), "(Not Done)  Call ...");
}

TEST_F(DayMenus, TaskCarriesTheMarkOfAReminder) {
    EXPECT_EQ(TaskCaption({.desc = "Call", .reminder = "True"}, "Errand"),
              "(Not Done)  \xAE Errand - Call ...");
}

TEST_F(DayMenus, TaskWithoutADescriptionIsANewTask) {
    EXPECT_EQ(TaskCaption({.desc = ""}), "(Not Done)  New Task ...");
}

TEST_F(DayMenus, EventTellsItsTimeTypeAndDescription) {
    EXPECT_EQ(EventCaption({.time = "1:30 pm", .desc = "Club"}, "Meeting"), "(01:30 PM)  Meeting - Club ...");
}

TEST_F(DayMenus, EventWithOneOfTypeAndDescriptionShowsThatOne) {
    EXPECT_EQ(EventCaption({.desc = "Club"}), "(09:00 AM)  Club ...");
    EXPECT_EQ(EventCaption({.desc = ""}, "Meeting"), "(09:00 AM)  Meeting ...");
}

TEST_F(DayMenus, EventWithNeitherIsANewEvent) {
    EXPECT_EQ(EventCaption({.desc = ""}), "(09:00 AM)  New Event ...");
}

TEST_F(DayMenus, EventWithoutATimeTellsNone) {
    EXPECT_EQ(EventCaption({.time = "", .desc = "Club"}), "Club ...");
}

TEST_F(DayMenus, EventCarriesTheMarksOfReminderAndSeries) {
    EXPECT_EQ(EventCaption({.desc = "Club", .recurrence = "Week", .reminder = "True"}),
              "(09:00 AM)  \xAE \xA7 Club ...");
    EXPECT_EQ(EventCaption({.desc = "Club", .recurrence = "Day"}), "(09:00 AM)  \xA7 Club ...");
}

TEST_F(DayMenus, CaptionsAreCutToSeventyFiveCharactersBeforeTheDots) {
    const std::string longText(200, 'x');
    for (const std::string& caption : {HomeworkCaption({.desc = longText}), TaskCaption({.desc = longText}),
                                       EventCaption({.desc = longText})}) {
        EXPECT_EQ(caption.size(), 79U) << caption;
        EXPECT_EQ(caption.substr(75), " ...");
        EXPECT_EQ(caption[74], 'x');
    }
}

TEST_F(DayMenus, ACaptionOfSeventyFiveCharactersIsWholeAndOneOfSeventySixLosesTheLast) {
    const std::string head = "(Not Done)  ";
    const std::string whole = std::string(75 - head.size() - 3, 'x') + "\"&\"";
    EXPECT_EQ(TaskCaption({.desc = whole}), head + whole + " ...");
    EXPECT_EQ(TaskCaption({.desc = whole + "y"}), head + whole + " ...");
}

TEST_F(DayMenus, AFlagThatIsNoneIsAnError) {
    HomeworkRows.Add(AddAssignmentRecord({.done = "perhaps"}));
    RowClass.Add("Algebra");
    EXPECT_THROW(HomeworkDayMenuItems(), RunTimeError);
}
