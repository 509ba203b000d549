// The alert buttons' captions and messages, word for word.
#include "planner/study/AlertMessage.h"
#include "core/RunTimeError.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* Steps = "- Open the assignment\r\n"
                              "- Click the 'Done' checkbox at the bottom\r\n"
                              "- Click OK";

void ExpectAlert(Alert alert, std::string_view caption, std::string_view title, const std::string& text) {
    EXPECT_EQ(AlertTitles[alert].caption, caption);
    const AlertWindow window = AlertMessage(alert);
    EXPECT_EQ(window.title, title);
    EXPECT_EQ(window.text.utf8, text);
}

} // namespace

TEST(AlertMessages, OfStudyTimeTellWhenHowMuchAndHow) {
    AlertWhen = {"Friday, Oct 16"};
    AlertAmount = "30 minutes";
    AlertBefore = "before then";
    ExpectAlert(
        StudyTimeAlert, "Study Time Alert", "Planovarium - Study Time Alert",
        "You have not scheduled enough Study Time to finish homework due Friday, Oct 16. You need to "
        "schedule at least 30 minutes more Study Time before then.\r\n\r\n"
        "Study Time can be scheduled in Calendar Mode or Event Mode. To schedule Study Time:\r\n\r\n"
        "- Create a new event\r\n- In the 'Type' Menu select 'Study Time'\r\n"
        "- Select the 'Date', 'Time' and 'Length' of time you will study\r\n- Click OK\r\n\r\n"
        "When you have scheduled enough Study Time to finish all of your assignments, the Study Time Alert "
        "button will disappear. For details on how Study Time is calculated, select the 'Help' option from "
        "the 'Help Menu'.");
}

TEST(AlertMessages, OfHomeworkDueTomorrow) {
    ExpectAlert(
        HomeworkDueTomorrow, "Homework Due Tomorrow", "Planovarium - Homework Due Tomorrow",
        std::string("You have homework due tomorrow.\r\n\r\nThe reminder button will disappear when you have "
                    "finished your assignments and marked them as 'Done'. To do this:\r\n\r\n") +
            Steps);
}

TEST(AlertMessages, OfHomeworkDueToday) {
    ExpectAlert(
        HomeworkDueToday, "Homework Due Today", "Planovarium - Homework Due Today",
        std::string(
            "You have homework due today.\r\n\r\nRemember to mark your assignments as 'Done' when you "
            "have finished them. To do this:\r\n\r\n") +
            Steps);
}

TEST(AlertMessages, OfLateHomeworkHaveATitleOfTheirOwn) {
    ExpectAlert(
        LateAssignment, "Late Assignment", "Planovarium - Late Homework",
        std::string("You have one or more late assignments.\r\n\r\n"
                    "Remember to mark your assignments as 'Done' when you have finished them.\r\n\r\n"
                    "Unfinished assignments appear in red in Calendar mode. You can also find unfinished "
                    "assignments in Homework mode. Click on the 'Due' column in the Homework List to sort "
                    "assignments by Due date. When you have finished an assignment:\r\n\r\n") +
            Steps);
}

TEST(AlertMessages, OfNoAlertAreTheRunTimeError) {
    EXPECT_THROW(AlertMessage(AlertCount), RunTimeError);
}
