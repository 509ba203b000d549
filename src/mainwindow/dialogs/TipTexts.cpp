// The tips of the day.
#include "mainwindow/dialogs/TipTexts.h"

#include "core/ProgramFacts.h"

#include <array>
#include <string_view>

namespace {

constexpr std::array<std::string_view, TotalTips + 1> Tips{
    "Create a new Term and Class Schedule before adding assignments.",
    "Can't find the answer? Visit the Planovarium website for support.",
    "Have a question? Click the blue question mark button at the top right of each window. Try it right now!",
    "Click on a day in the Calendar to change the current day.",
    "To edit an assignment, just click on the assignment in the List View.",
    "Get immediate answers to questions by selecting 'Help' from the 'Help' menu.",
    "Click the Calendar, Homework, Tasks and Events buttons to switch between modes. The current mode is "
    "shown in the Status Bar.",
    "Click on the column names in the List View to sort by that column. Click again to reverse the sort "
    "order.",
    "Use the List Menu and Range Menu to control what appears in the List View.",
    "Visit the Planovarium website to check for updates to the program.",
    "Choose 'Term' in the Range Menu to see all assignments for the current Term.",
    "The days remaining in the current term are shown in Calendar Mode.",
    "You can advance the calendar one day at a time by holding down the buttons on either side of the Title "
    "Bar.",
    "Today's date has a black box around it in the Calendar.",
    "Drag the handle at the bottom right corner of the screen to change the size.",
    "In Homework Mode, you can see the number of assignments and total study time required for the selected "
    "day.",
    "Print out a calendar with the 'Export for Printing' command in the File Menu.",
    "Add your score for completed assignments in the Edit Assignment window.",
    "The GPA window shows your current GPA and your grade for each class.",
    "A collection of Study Tips is available in the Help.",
    "See the Help Menu for details on how to calculate your grade point average with Planovarium.",
    "You can export your Planovarium assignments to another program for printing.",
    "Planovarium has an online homework help feature. Click the 'Online Homework Help' button to see it.",
    "You can change the Start Day of the Week in the Calendar. Click on the Options Menu and try it.",
    "You can have more than one Planovarium user on the same computer.",
    "Check the Reminder box in the Edit Assignment window to create a popup reminder.",
    "Use the Events feature to add your classes to your daily schedule.",
    "Make sure to schedule Study Time to complete your homework.",
    "Right-click on the Calendar View and List View to access the context menus.",
    "Customize the colors of your assignments. Select 'Colors and Names...' from the Options Menu.",
    "Do you know all the features now? Uncheck the box below to turn off the Tip of the Day feature.",
};

} // namespace

std::string TipText(int number) {
    if (number < 0 || number > TotalTips) {
        return "Have any questions? Please ask! Just go to " + ContactPage();
    }
    return std::string(Tips[static_cast<std::size_t>(number)]);
}

int NumberAfter(int tip) {
    return tip >= TotalTips ? 0 : tip + 1;
}
