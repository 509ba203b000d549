// The status bar with its clock, the term panel, and the boxes that take what the rules have worked out.
#include "mainwindow/ShowBox.h"
#include "planner/Colors.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

#include <QSizeGrip>

namespace {

class StatusBar : public WindowTest {
protected:
    std::vector<DrawnItem> Drawn(DrawnKind kind) const {
        std::vector<DrawnItem> items;
        for (const DrawnItem& item : window->picStatusBar->Drawn()) {
            if (item.kind == kind) {
                items.push_back(item);
            }
        }
        return items;
    }

    QString ClockText() const { return Drawn(DrawnKind::Text).back().text; }
};

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

TEST_F(StatusBar, ShowsTheModeAtTheLeftAndTheClockAtTheRight) {
    LoadWindow();
    const std::vector<DrawnItem> texts = Drawn(DrawnKind::Text);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "Calendar Mode");
    EXPECT_EQ(texts[0].left, 150);
    EXPECT_EQ(texts[1].text, "Wednesday, October 14, 2009      12:00 PM");
    EXPECT_EQ(texts[1].left + TextWidth(texts[1].text, texts[1].font),
              window->picStatusBar->WidthInUnits() - 150);
    for (const DrawnItem& text : texts) {
        EXPECT_EQ(text.top, 90);
        EXPECT_EQ(text.color, 0x000000);
        EXPECT_EQ(text.font, (SurfaceFont{Face::Status, 8, false}));
    }
}

TEST_F(StatusBar, IsFramedByTwoGreyAndTwoWhiteLines) {
    LoadWindow();
    const std::vector<DrawnItem> lines = Drawn(DrawnKind::Line);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].color, 0xA0A0A0);
    EXPECT_EQ(lines[1].color, 0xA0A0A0);
    EXPECT_EQ(lines[2].color, 0xFFFFFF);
    EXPECT_EQ(lines[3].color, 0xFFFFFF);
}

TEST_F(StatusBar, IsPaintedByItsTimerEveryTenSeconds) {
    LoadWindow();
    EXPECT_TRUE(window->TimerStatusBar->isActive());
    EXPECT_EQ(window->TimerStatusBar->interval(), 10000);
    SetClock(2009, 10, 15, 9, 5);
    EXPECT_EQ(ClockText(), "Wednesday, October 14, 2009      12:00 PM") << "it stands still until then";
    FireTimer(window->TimerStatusBar);
    EXPECT_EQ(ClockText(), "Thursday, October 15, 2009      09:05 AM");
}

TEST_F(StatusBar, IsPaintedByAModeEntry) {
    LoadWindow();
    SetClock(2009, 10, 14, 15, 30);
    window->ShowTaskMode();
    EXPECT_EQ(DrawnTexts(*window->picStatusBar),
              (QStringList{"Task Mode", "Wednesday, October 14, 2009      03:30 PM"}));
}

TEST_F(StatusBar, IsPaintedByTheLayoutOfEveryMode) {
    LoadWindow();
    int minute = 0;
    for (const auto& enter :
         {&frmMain::ShowHomeworkMode, &frmMain::ShowTaskMode, &frmMain::ShowEventMode,
          &frmMain::ShowCalendarMode, &frmMain::ShowStudySessionsMode, &frmMain::ShowReminderMode}) {
        (window.get()->*enter)();
        SetClock(2009, 10, 14, 15, ++minute);
        window->LayoutGrid();
        EXPECT_EQ(ClockText(), QStringLiteral("Wednesday, October 14, 2009      03:0%1 PM").arg(minute));
    }
}

TEST_F(StatusBar, GoesOnWhileADialogIsOpen) {
    LoadWindow();
    bool painted = false;
    WhenDialogOpens([this, &painted](QWidget* dialog) {
        SetClock(2009, 10, 14, 15, 30);
        FireTimer(window->TimerStatusBar);
        painted = window->TimerStatusBar->isActive() && ClockText().endsWith("03:30 PM");
        dialog->close();
    });
    window->ShowAlertMessage(3);
    EXPECT_TRUE(painted);
}

TEST_F(StatusBar, SizeGripStandsBesideTheClock) {
    LoadWindow();
    QCoreApplication::sendPostedEvents();
    const auto* grip = window->picStatusBar->findChild<QSizeGrip*>();
    ASSERT_NE(grip, nullptr);
    const DrawnItem clock = Drawn(DrawnKind::Text).back();
    EXPECT_GE(grip->x() * UnitsPerPixel, clock.left + TextWidth(clock.text, clock.font));
    EXPECT_EQ(grip->geometry().right(), window->picStatusBar->rect().right());
}

TEST_F(StatusBar, FollowsTheWidthOfTheWindow) {
    LoadWindow();
    window->resize(1000, 700);
    ASSERT_TRUE(WaitUntil([this] { return window->picStatusBar->width() == 1000; }));
    const DrawnItem clock = Drawn(DrawnKind::Text).back();
    EXPECT_EQ(clock.left + TextWidth(clock.text, clock.font), 1000 * 15 - 150);
}

TEST_F(CounterBoxes, OfHomeworkTurnWithWhatIsLeftOfTheDay) {
    window->ShowHomeworkMode();
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
    window->ShowTaskMode(); // entered from Calendar they would leave it checked
    AddAssignmentRecord({});
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add("1");
    log.time.Add("00 : 45");
    log.date.Add("2009/10/14");
    window->ShowStudySessionsMode();
    EXPECT_EQ(Shown({window->TextBoxStudySessions, window->TextboxStudyTime}), "1 white, 00:45 white");
}

TEST_F(CounterBoxes, OfTasksCountThoseOfTheRangeAndTheUndatedOnes) {
    AddTaskRecord({});
    AddTaskRecord({.done = "True"});
    for (int i = 0; i < 3; ++i) {
        AddTaskRecord({.date_exists = "False"});
    }
    window->ShowTaskMode();
    EXPECT_EQ(Shown({window->TextBoxTotalTasks, window->TextBoxFinishedTasks, window->TextBoxUndatedTasks}),
              "2 white, 1 not done, 3 not done");
}

TEST_F(CounterBoxes, OfEventsCountThoseOfTheDay) {
    AddEventRecord({.duration = "2 Hours", .type = "Study Time"});
    AddEventRecord({.type = "Sports"});
    AddEventRecord({.date = "2009/10/15", .type = "Sports"});
    window->ShowEventMode();
    EXPECT_EQ(Shown({window->TextBoxClasses, window->TextBoxOtherEvents, window->TextBoxSchedStudy}),
              "0 white, 1 white, 02:00 white");
}

TEST_F(CounterBoxes, OfRemindersCountEachSource) {
    window->ShowTaskMode();
    AddAssignmentRecord({.date = "2009/10/12", .est_time = "00 : 45"});
    AddAssignmentRecord({.date = "2009/10/13", .est_time = "00 : 45"});
    AddEventRecord({});
    window->ShowReminderMode();
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
