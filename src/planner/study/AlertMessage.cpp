// What the window behind each alert button says.
#include "planner/study/AlertMessage.h"

#include "core/RunTimeError.h"

#include <string>
#include <utility>

namespace {

constexpr std::string_view HowToSchedule =
    "Study Time can be scheduled in Calendar Mode or Event Mode. To schedule Study Time:\r\n"
    "\r\n"
    "- Create a new event\r\n"
    "- In the 'Type' Menu select 'Study Time'\r\n"
    "- Select the 'Date', 'Time' and 'Length' of time you will study\r\n"
    "- Click OK\r\n"
    "\r\n"
    "When you have scheduled enough Study Time to finish all of your assignments, the Study Time Alert "
    "button will disappear. For details on how Study Time is calculated, select the 'Help' option from the "
    "'Help Menu'.";

constexpr std::string_view HowToFinish = "- Open the assignment\r\n"
                                         "- Click the 'Done' checkbox at the bottom\r\n"
                                         "- Click OK";

constexpr std::string_view DueTomorrowText =
    "You have homework due tomorrow.\r\n"
    "\r\n"
    "The reminder button will disappear when you have finished your assignments and marked them as 'Done'. "
    "To do this:\r\n"
    "\r\n";

constexpr std::string_view DueTodayText =
    "You have homework due today.\r\n"
    "\r\n"
    "Remember to mark your assignments as 'Done' when you have finished them. To do this:\r\n"
    "\r\n";

constexpr std::string_view LateText =
    "You have one or more late assignments.\r\n"
    "\r\n"
    "Remember to mark your assignments as 'Done' when you have finished them.\r\n"
    "\r\n"
    "Unfinished assignments appear in red in Calendar mode. You can also find unfinished assignments in "
    "Homework mode. Click on the 'Due' column in the Homework List to sort assignments by Due date. When "
    "you have finished an assignment:\r\n"
    "\r\n";

std::string StudyTimeAlertText() {
    return "You have not scheduled enough Study Time to finish homework due " + AlertWhen.utf8 +
           ". You need to schedule at least " + AlertAmount + " more Study Time " + AlertBefore +
           ".\r\n\r\n" + std::string(HowToSchedule);
}

std::string AlertText(Alert alert) {
    switch (alert) {
    case StudyTimeAlert:
        return StudyTimeAlertText();
    case HomeworkDueTomorrow:
        return std::string(DueTomorrowText) + std::string(HowToFinish);
    case HomeworkDueToday:
        return std::string(DueTodayText) + std::string(HowToFinish);
    case LateAssignment:
        return std::string(LateText) + std::string(HowToFinish);
    case AlertCount:
        break;
    }
    throw RunTimeError("No such alert", std::to_string(alert));
}

} // namespace

AlertWindow AlertMessage(Alert alert) {
    ScreenText text{AlertText(alert)};
    return {AlertTitles[alert].title, std::move(text)};
}
