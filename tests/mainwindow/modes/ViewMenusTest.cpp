// The filter menus: the filters kept from mode to mode, the colour of their panel, and what a choice does.
#include "mainwindow/modes/ViewMenus.h"
#include "core/Module1.h"
#include "mainwindow/modes/Modes.h"
#include "planner/rows/Colors.h"
#include "support/WindowTest.h"

namespace {

class ViewMenus : public WindowTest {
protected:
    QString List() const { return window->ComboList->currentText(); }

    QString Range() const { return window->ComboDateRange->currentText(); }

    void Choose(const QString& list, const QString& range) {
        window->ComboList->setCurrentText(list);
        window->ComboDateRange->setCurrentText(range);
    }

    QColor PanelColor() const { return window->PictureBoxViewMenus->palette().color(QPalette::Window); }

    // A refresh for the view's sake makes the clicked day the selected one; without one they differ still.
    bool RefreshesWhen(const std::function<void()>& act) {
        window->SelectedDate = Today();
        window->ClickedDate = Today() + std::chrono::days{40};
        act();
        return window->ClickedDate == Today();
    }
};

} // namespace

TEST_F(ViewMenus, StartWithTheFirstFiltersOfEachMode) {
    LoadWindow();
    ShowHomeworkMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/Term");
    ShowStudySessionsMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/Term");
    ShowTaskMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/All");
    ShowEventMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/Month");
    ShowReminderMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/Today");
}

TEST_F(ViewMenus, FirstModeEntryOfARunSavesNothing) {
    LoadWindow();
    EXPECT_FALSE(StartupComplete) << "cleared by the entry of Calendar";
    InitViewMenus();
    StartupComplete = true;
    ShowTaskMode(*window);
    Choose("Done", "Day");
    StartupComplete = true;
    ShowHomeworkMode(*window);
    ShowTaskMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/All");
}

TEST_F(ViewMenus, ModeComesBackWithTheFiltersThatWereLeft) {
    LoadWindow();
    ShowHomeworkMode(*window);
    Choose("Not Done", "Day");
    ShowTaskMode(*window);
    Choose("Done", "Without Date");
    ShowHomeworkMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "Not Done/Day");
    ShowTaskMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "Done/Without Date");
}

TEST_F(ViewMenus, CalendarStoresTheFiltersOfTheModeLeftAndTouchesNothingElse) {
    LoadWindow();
    ShowTaskMode(*window);
    Choose("Done", "Day");
    ShowCalendarMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "Done/Day") << "the hidden menus are left as they are";
    EXPECT_EQ(ChosenFilters[2].list + "/" + ChosenFilters[2].range, "Done/Day");
    ShowHomeworkMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "All/Term") << "Calendar itself has stored nothing";
    ShowTaskMode(*window);
    EXPECT_EQ(List() + "/" + Range(), "Done/Day");
}

TEST_F(ViewMenus, StudySessionsKeepTheirFilterEvenWhenEnteredFromCalendar) {
    LoadWindow();
    ShowStudySessionsMode(*window);
    Choose("All", "Day");
    ShowTaskMode(*window);
    ShowStudySessionsMode(*window);
    EXPECT_EQ(Range(), "Day");
}

TEST_F(ViewMenus, PanelTakesTheColorOfTheWord) {
    LoadWindow();
    ShowHomeworkMode(*window);
    EXPECT_EQ(PanelColor(), ToQColor(ColorAll));
    window->ComboList->setCurrentText("Done");
    EXPECT_EQ(PanelColor(), ToQColor(ColorDone));
    window->ComboList->setCurrentText("Not Done");
    EXPECT_EQ(PanelColor(), ToQColor(ColorNotDone));
    ShowReminderMode(*window);
    window->ComboList->setCurrentText("Tasks");
    EXPECT_EQ(PanelColor(), ToQColor(ColorTasks));
    ShowHomeworkMode(*window);
    EXPECT_EQ(PanelColor(), ToQColor(ColorNotDone)) << "restored with the mode";
}

TEST_F(ViewMenus, EmptyWordLeavesTheColor) {
    LoadWindow();
    ShowHomeworkMode(*window);
    window->ComboList->setCurrentText("Done");
    window->ComboList->setCurrentIndex(-1);
    EXPECT_EQ(PanelColor(), ToQColor(ColorDone));
}

TEST_F(ViewMenus, ListPaintsThePanelEvenWhereItCannotRefresh) {
    LoadWindow();
    ShowEventMode(*window);
    window->ComboList->setCurrentText("Classes");
    EXPECT_EQ(PanelColor(), ToQColor(ColorTasks));
}

TEST_F(ViewMenus, RangeDoesNotPaintThePanel) {
    LoadWindow();
    ShowHomeworkMode(*window);
    QPalette colors = window->PictureBoxViewMenus->palette();
    colors.setColor(QPalette::Window, Qt::magenta);
    window->PictureBoxViewMenus->setPalette(colors);
    window->ComboDateRange->setCurrentText("Day");
    EXPECT_EQ(PanelColor(), QColor(Qt::magenta));
    window->ComboList->setCurrentText("Done");
    EXPECT_NE(PanelColor(), QColor(Qt::magenta));
}

TEST_F(ViewMenus, ChoiceRefreshesTheView) {
    LoadWindow();
    ShowHomeworkMode(*window);
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboList->setCurrentText("Done"); }));
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboDateRange->setCurrentText("Day"); }));
    EXPECT_EQ(window->RefreshReason, "None");
}

TEST_F(ViewMenus, ChoiceRefreshesStudySessionsAndReminders) {
    LoadWindow();
    ShowTaskMode(*window); // entered from Calendar they would leave it checked
    ShowStudySessionsMode(*window);
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboDateRange->setCurrentText("Day"); }));
    ShowReminderMode(*window);
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboList->setCurrentText("Tasks"); }));
}

TEST_F(ViewMenus, ChoiceByKeyRefreshesTheView) {
    LoadWindow();
    ShowTaskMode(*window);
    EXPECT_TRUE(RefreshesWhen([this] { QTest::keyClick(window->ComboDateRange, Qt::Key_Down); }));
    EXPECT_EQ(Range(), "With Date");
}

TEST_F(ViewMenus, NeitherRefreshesInEventsMode) {
    LoadWindow();
    ShowEventMode(*window);
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Classes", "Day"); }));
}

TEST_F(ViewMenus, NeitherRefreshesWhileCalendarIsChecked) {
    LoadWindow();
    ShowReminderMode(*window); // Calendar stays checked
    EXPECT_FALSE(RefreshesWhen([this] { window->ComboList->setCurrentText("Tasks"); }));
}

TEST_F(ViewMenus, NeitherRefreshesWhileAModeIsEntered) {
    LoadWindow();
    ShowHomeworkMode(*window);
    window->ChangingMode = true;
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Done", "Day"); }));
}

TEST_F(ViewMenus, NeitherRefreshesDuringARefresh) {
    LoadWindow();
    ShowHomeworkMode(*window);
    window->RefreshReason = "NewRecord";
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Done", "Day"); }));
    EXPECT_EQ(window->RefreshReason, "NewRecord");
}
