// The painted controls of the main window and of the date picker as a screen reader is told of them: name,
// role, state, action.
#include "editors/picker/DatePickerFixture.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include <QAccessible>

namespace {

QAccessibleInterface* Told(QWidget* control) {
    return QAccessible::queryAccessibleInterface(control);
}

QString NameOf(QWidget* control) {
    return Told(control)->text(QAccessible::Name);
}

void ExpectButton(QWidget* control, const QString& name) {
    EXPECT_EQ(Told(control)->role(), QAccessible::Button) << name.toStdString();
    EXPECT_EQ(NameOf(control), name);
    EXPECT_EQ(Told(control)->actionInterface()->actionNames(),
              QStringList{QAccessibleActionInterface::pressAction()})
        << name.toStdString();
}

void PressAsToldBy(QWidget* control) {
    Told(control)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
}

class PaintedControls : public GridTest {
protected:
    // The words of the modes in the bar, the active one with a star.
    QStringList Tabs() const {
        QStringList tabs;
        for (ClickLabel* word : {window->LabelBarCalendar, window->LabelBarHomework, window->LabelBarEvents,
                                 window->LabelBarTasks}) {
            EXPECT_EQ(Told(word)->role(), QAccessible::PageTab);
            EXPECT_TRUE(Told(word)->state().selectable);
            tabs.append(NameOf(word) + (Told(word)->state().selected ? "*" : ""));
        }
        return tabs;
    }
};

} // namespace

TEST_F(PaintedControls, TheWordsOfTheModesAreTabsOfWhichTheActiveOneIsSelected) {
    EXPECT_EQ(Tabs(), (QStringList{"Calendar*", "Homework", "Events", "Tasks"}));
    PressAsToldBy(window->LabelBarTasks);
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    EXPECT_EQ(Tabs(), (QStringList{"Calendar", "Homework", "Events", "Tasks*"}));
}

TEST_F(PaintedControls, TheOtherWordsOfTheBarAreButtons) {
    ExpectButton(window->LabelBarReminders, "Reminders");
    ExpectButton(window->LabelBarWeb, "Homework Help");
    ExpectButton(window->picHelp, "Help");
}

TEST_F(PaintedControls, TheSteppersStep) {
    const std::array<std::pair<PictureBox*, const char*>, 4> steppers{
        {{window->picCalDayUp, "One day on"},
         {window->picCalDayDown, "One day back"},
         {window->picCalMonthUp, "One month on"},
         {window->picCalMonthDown, "One month back"}}};
    const std::array<std::size_t, 4> entries{DayOnEntry, DayBackEntry, MonthOnEntry, MonthBackEntry};
    for (std::size_t i = 0; i < steppers.size(); ++i) {
        ExpectButton(steppers[i].first, steppers[i].second);
        const Date wanted = window->Month.CellDate[entries[i]];
        PressAsToldBy(steppers[i].first);
        EXPECT_EQ(window->SelectedDate, wanted) << steppers[i].second;
        EXPECT_FALSE(window->StepperHeld);
    }
}

TEST_F(PaintedControls, TodayAndTomorrowTellWhichOfThemIsShown) {
    ExpectButton(window->LabelToday, "Today");
    ExpectButton(window->LabelTomorrow, "Tomorrow");
    EXPECT_TRUE(Told(window->LabelToday)->state().checked);
    EXPECT_FALSE(Told(window->LabelTomorrow)->state().checked);
    PressAsToldBy(window->LabelTomorrow);
    EXPECT_FALSE(Told(window->LabelToday)->state().checked);
    EXPECT_TRUE(Told(window->LabelTomorrow)->state().checked);
}

TEST_F(PaintedControls, ADayTellsItsWholeDateAndWhetherItIsTheSelectedOne) {
    ClickLabel* second = window->LabelCalDate[5];
    ExpectButton(second, "Friday, October 2, 2009");
    EXPECT_FALSE(Told(second)->state().checked);
    PressAsToldBy(second);
    EXPECT_TRUE(Told(second)->state().checked);
    EXPECT_EQ(window->LabelTop->text(), "October 2009");
    EXPECT_EQ(window->LabelInfoTitle->text(), "Friday, Oct 2");
    PressAsToldBy(window->picCalMonthUp);
    EXPECT_EQ(NameOf(window->LabelCalDate[0]), "Sunday, October 25, 2009");
}

TEST_F(PaintedControls, AHeadIsAButtonWhereItStartsTheWeek) {
    ASSERT_EQ(window->StartDayOfWeek, "Sunday");
    EXPECT_EQ(Told(window->LabelCalDay[0])->role(), QAccessible::StaticText);
    EXPECT_EQ(NameOf(window->LabelCalDay[0]), "Sunday");
    ExpectButton(window->LabelCalDay[1], "Monday");
    PressAsToldBy(window->LabelCalDay[1]);
    EXPECT_EQ(window->StartDayOfWeek, "Monday");
}

TEST_F(PaintedControls, TheStatusBarTellsModeDateAndClock) {
    EXPECT_EQ(Told(window->picStatusBar)->role(), QAccessible::StatusBar);
    EXPECT_EQ(NameOf(window->picStatusBar), "Calendar Mode, Wednesday, October 14, 2009 12:00 PM");
    ShowTaskMode(*window);
    EXPECT_EQ(NameOf(window->picStatusBar), "Task Mode, Wednesday, October 14, 2009 12:00 PM");
}

TEST_F(PaintedControls, TheStudyTimerTellsItsTime) {
    EXPECT_EQ(Told(window->picTime)->role(), QAccessible::Clock);
    EXPECT_EQ(NameOf(window->picTime), "Study Timer");
    EXPECT_EQ(Told(window->picTime)->text(QAccessible::Value), "00:00:00");
    window->ButtonSeconds->click();
    EXPECT_EQ(Told(window->picTime)->text(QAccessible::Value), "00:00");
}

TEST_F(PaintedControls, NothingIsPressedBehindAModalDialog) {
    QDialog dialog(window.get());
    dialog.setModal(true);
    dialog.show();
    PressAsToldBy(window->LabelBarTasks);
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    dialog.hide();
    PressAsToldBy(window->LabelBarTasks);
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

TEST_F(Picker, ItsArrowsAndDaysAreToldToAScreenReader) {
    OpenOn("2009/10/14");
    ExpectButton(picker->LabelCalMonthUp, "One month on");
    ExpectButton(picker->LabelCalMonthDown, "One month back");
    ExpectButton(picker->LabelToday, "Today");
    EXPECT_EQ(NameOf(picker->LabelCalDate[17]), "Wednesday, October 14, 2009");
    PressAsToldBy(picker->LabelCalMonthUp);
    EXPECT_EQ(picker->LabelMonth->text(), "November 2009");
    EXPECT_TRUE(picker->MouseUpFlag);
    PressAsToldBy(picker->LabelCalMonthDown);
    EXPECT_EQ(picker->LabelMonth->text(), "October 2009");
}
