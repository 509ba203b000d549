// The boxes beside the counters, which take what the rules have worked out.
#include "mainwindow/modes/Modes.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/rows/Colors.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

namespace {

class CounterBoxes : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp(); // 14 October 2009
        LoadWindow();
    }

    // What the boxes show, each with the name of its ground.
    static std::string Shown(std::initializer_list<const QLineEdit*> boxes) {
        QStringList shown;
        for (const QLineEdit* box : boxes) {
            const QColor ground = box->palette().color(QPalette::Base);
            const char* name = ground == QColor(Qt::white)        ? "white"
                               : ground == ToQColor(ColorDone)    ? "done"
                               : ground == ToQColor(ColorNotDone) ? "not done"
                                                                  : "other";
            EXPECT_TRUE(box->isVisible());
            shown.append(box->text() + " " + name);
        }
        return shown.join(", ").toStdString();
    }
};

} // namespace

TEST_F(CounterBoxes, OfHomeworkTurnWithWhatIsLeftOfTheDay) {
    ShowHomeworkMode(*window);
    EXPECT_EQ(Shown({window->TextBoxTotalAssignments, window->TextBoxFinishedAssignments,
                     window->TextBoxTimeRemaining}),
              "0 white, 0 white, 00:00 white");
    AddAssignmentRecord({.done = "True"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(Shown({window->TextBoxTotalAssignments, window->TextBoxFinishedAssignments,
                     window->TextBoxTimeRemaining}),
              "1 white, 0 done, 00:00 done");
    AddAssignmentRecord({.time_left = "01 : 30"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(Shown({window->TextBoxTotalAssignments, window->TextBoxFinishedAssignments,
                     window->TextBoxTimeRemaining}),
              "2 white, 1 not done, 01:30 not done");
}

TEST_F(CounterBoxes, OfStudySessionsCountTheLog) {
    ShowTaskMode(*window); // entered from Calendar they would leave it checked
    AddAssignmentRecord({});
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add("1");
    log.time.Add("00 : 45");
    log.date.Add("2009/10/14");
    ShowStudySessionsMode(*window);
    EXPECT_EQ(Shown({window->TextBoxStudySessions, window->TextboxStudyTime}), "1 white, 00:45 white");
}

TEST_F(CounterBoxes, OfTasksCountThoseOfTheRangeAndTheUndatedOnes) {
    AddTaskRecord({});
    AddTaskRecord({.done = "True"});
    for (int i = 0; i < 3; ++i) {
        AddTaskRecord({.date_exists = "False"});
    }
    ShowTaskMode(*window);
    EXPECT_EQ(Shown({window->TextBoxTotalTasks, window->TextBoxFinishedTasks, window->TextBoxUndatedTasks}),
              "2 white, 1 not done, 3 not done");
}

TEST_F(CounterBoxes, OfEventsCountThoseOfTheDay) {
    AddEventRecord({.duration = "2 Hours", .type = "Study Time"});
    AddEventRecord({.type = "Sports"});
    AddEventRecord({.date = "2009/10/15", .type = "Sports"});
    ShowEventMode(*window);
    EXPECT_EQ(Shown({window->TextBoxClasses, window->TextBoxOtherEvents, window->TextBoxSchedStudy}),
              "0 white, 1 white, 02:00 white");
}

TEST_F(CounterBoxes, OfRemindersCountEachSource) {
    ShowTaskMode(*window);
    AddAssignmentRecord({.date = "2009/10/12", .est_time = "00 : 45"});
    AddAssignmentRecord({.date = "2009/10/13", .est_time = "00 : 45"});
    AddEventRecord({});
    ShowReminderMode(*window);
    EXPECT_EQ(Shown({window->TextboxAssignments, window->TextBoxTasks, window->TextBoxEvents}),
              "2 not done, 0 white, 1 white");
    EXPECT_EQ(Shown({window->TextBoxMinimum, window->TextBoxSuggested}), "01:30 not done, 01:30 white");
}

TEST_F(CounterBoxes, AreNamedAsTheLabelsBeforeThem) {
    EXPECT_EQ(window->TextBoxTimeRemaining->accessibleName(), "Study Time Left");
    EXPECT_EQ(window->TextboxStudyTime->accessibleName(), "Study Time");
    EXPECT_EQ(window->TextBoxUndatedTasks->accessibleName(), "Undated Tasks Left");
    EXPECT_EQ(window->TextBoxOtherEvents->accessibleName(), "Other Events");
    EXPECT_EQ(window->TextboxAssignments->accessibleName(), "Assignments");
}

TEST(ShownBox, TakesTheTextAndTheBackColor) {
    QLineEdit box;
    ShowBox(&box, {"01:30", ColorNotDone});
    EXPECT_EQ(box.text(), "01:30");
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(0xFF, 0xE5, 0xE5));
    ShowBox(&box, {"00:00", ColorWhite});
    EXPECT_EQ(box.text(), "00:00");
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(Qt::white));
}
