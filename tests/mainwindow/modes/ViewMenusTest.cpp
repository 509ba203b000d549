// The filter menus: the filters kept from mode to mode, the colour of their panel, and what a choice does.
#include "core/Module1.h"
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
    window->ShowHomeworkMode();
    EXPECT_EQ(List() + "/" + Range(), "All/Term");
    window->ShowStudySessionsMode();
    EXPECT_EQ(List() + "/" + Range(), "All/Term");
    window->ShowTaskMode();
    EXPECT_EQ(List() + "/" + Range(), "All/All");
    window->ShowEventMode();
    EXPECT_EQ(List() + "/" + Range(), "All/Month");
    window->ShowReminderMode();
    EXPECT_EQ(List() + "/" + Range(), "All/Today");
}

TEST_F(ViewMenus, FirstModeEntryOfARunSavesNothing) {
    LoadWindow();
    EXPECT_FALSE(StartupComplete) << "cleared by the entry of Calendar";
    window->InitViewMenus();
    StartupComplete = true;
    window->ShowTaskMode();
    Choose("Done", "Day");
    StartupComplete = true;
    window->ShowHomeworkMode();
    window->ShowTaskMode();
    EXPECT_EQ(List() + "/" + Range(), "All/All");
}

TEST_F(ViewMenus, ModeComesBackWithTheFiltersThatWereLeft) {
    LoadWindow();
    window->ShowHomeworkMode();
    Choose("Not Done", "Day");
    window->ShowTaskMode();
    Choose("Done", "Without Date");
    window->ShowHomeworkMode();
    EXPECT_EQ(List() + "/" + Range(), "Not Done/Day");
    window->ShowTaskMode();
    EXPECT_EQ(List() + "/" + Range(), "Done/Without Date");
}

TEST_F(ViewMenus, CalendarStoresTheFiltersOfTheModeLeftAndTouchesNothingElse) {
    LoadWindow();
    window->ShowTaskMode();
    Choose("Done", "Day");
    window->ShowCalendarMode();
    EXPECT_EQ(List() + "/" + Range(), "Done/Day") << "the hidden menus are left as they are";
    EXPECT_EQ(ChosenFilters[2].list + "/" + ChosenFilters[2].range, "Done/Day");
    window->ShowHomeworkMode();
    EXPECT_EQ(List() + "/" + Range(), "All/Term") << "Calendar itself has stored nothing";
    window->ShowTaskMode();
    EXPECT_EQ(List() + "/" + Range(), "Done/Day");
}

TEST_F(ViewMenus, StudySessionsKeepTheirFilterEvenWhenEnteredFromCalendar) {
    LoadWindow();
    window->ShowStudySessionsMode();
    Choose("All", "Day");
    window->ShowTaskMode();
    window->ShowStudySessionsMode();
    EXPECT_EQ(Range(), "Day");
}

TEST_F(ViewMenus, PanelTakesTheColorOfTheWord) {
    LoadWindow();
    window->ShowHomeworkMode();
    EXPECT_EQ(PanelColor(), ToQColor(ColorAll));
    window->ComboList->setCurrentText("Done");
    EXPECT_EQ(PanelColor(), ToQColor(ColorDone));
    window->ComboList->setCurrentText("Not Done");
    EXPECT_EQ(PanelColor(), ToQColor(ColorNotDone));
    window->ShowReminderMode();
    window->ComboList->setCurrentText("Tasks");
    EXPECT_EQ(PanelColor(), ToQColor(ColorTasks));
    window->ShowHomeworkMode();
    EXPECT_EQ(PanelColor(), ToQColor(ColorNotDone)) << "restored with the mode";
}

TEST_F(ViewMenus, EmptyWordLeavesTheColor) {
    LoadWindow();
    window->ShowHomeworkMode();
    window->ComboList->setCurrentText("Done");
    window->ComboList->setCurrentIndex(-1);
    EXPECT_EQ(PanelColor(), ToQColor(ColorDone));
}

TEST_F(ViewMenus, ListPaintsThePanelEvenWhereItCannotRefresh) {
    LoadWindow();
    window->ShowEventMode();
    window->ComboList->setCurrentText("Classes");
    EXPECT_EQ(PanelColor(), ToQColor(ColorTasks));
}

TEST_F(ViewMenus, RangeDoesNotPaintThePanel) {
    LoadWindow();
    window->ShowHomeworkMode();
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
    window->ShowHomeworkMode();
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboList->setCurrentText("Done"); }));
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboDateRange->setCurrentText("Day"); }));
    EXPECT_EQ(window->RefreshReason, "None");
}

TEST_F(ViewMenus, ChoiceRefreshesStudySessionsAndReminders) {
    LoadWindow();
    window->ShowTaskMode(); // entered from Calendar they would leave it checked
    window->ShowStudySessionsMode();
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboDateRange->setCurrentText("Day"); }));
    window->ShowReminderMode();
    EXPECT_TRUE(RefreshesWhen([this] { window->ComboList->setCurrentText("Tasks"); }));
}

TEST_F(ViewMenus, ChoiceByKeyRefreshesTheView) {
    LoadWindow();
    window->ShowTaskMode();
    EXPECT_TRUE(RefreshesWhen([this] { QTest::keyClick(window->ComboDateRange, Qt::Key_Down); }));
    EXPECT_EQ(Range(), "With Date");
}

TEST_F(ViewMenus, NeitherRefreshesInEventsMode) {
    LoadWindow();
    window->ShowEventMode();
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Classes", "Day"); }));
}

TEST_F(ViewMenus, NeitherRefreshesWhileCalendarIsChecked) {
    LoadWindow();
    window->ShowReminderMode(); // Calendar stays checked
    EXPECT_FALSE(RefreshesWhen([this] { window->ComboList->setCurrentText("Tasks"); }));
}

TEST_F(ViewMenus, NeitherRefreshesWhileAModeIsEntered) {
    LoadWindow();
    window->ShowHomeworkMode();
    window->ChangingMode = true;
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Done", "Day"); }));
}

TEST_F(ViewMenus, NeitherRefreshesDuringARefresh) {
    LoadWindow();
    window->ShowHomeworkMode();
    window->RefreshReason = "NewRecord";
    EXPECT_FALSE(RefreshesWhen([this] { Choose("Done", "Day"); }));
    EXPECT_EQ(window->RefreshReason, "NewRecord");
}
