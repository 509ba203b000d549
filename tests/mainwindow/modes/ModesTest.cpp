// The mode entries: what each mode checks, shows, enables and offers, and what it leaves as it was.
#include "mainwindow/modes/Modes.h"
#include "core/Module1.h"
#include "mainwindow/modes/ModeTables.h"
#include "support/WindowTest.h"
#include "toolkit/Text.h"

#include <fstream>
#include <map>

namespace {

struct ModeCase {
    Mode mode;
    QString caption;
    QStringList checked;
    QStringList panels;       // shown
    QStringList smallButtons; // shown and enabled
    QStringList largeButtons; // shown
    QStringList enabled;      // items of the Edit menu
    QStringList exports;      // enabled and visible
    QStringList labels;       // of the counters, an empty one hidden
    QStringList boxes;        // shown
    QStringList list, range;  // items of the filter menus
};

class Modes : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        std::ofstream(drive / "Planovarium" / "HelpTopics.txt") << "153\tHomework List\n";
    }

    void Enter(Mode mode) {
        switch (mode) {
        case Mode::Homework:
            return ShowHomeworkMode(*window);
        case Mode::Calendar:
            return ShowCalendarMode(*window);
        case Mode::StudySessions:
            return ShowStudySessionsMode(*window);
        case Mode::Tasks:
            return ShowTaskMode(*window);
        case Mode::Events:
            return ShowEventMode(*window);
        case Mode::Reminders:
            return ShowReminderMode(*window);
        case Mode::None:
            return;
        }
    }

    QStringList Checked() const {
        QStringList names;
        for (const auto& [item, name] : std::map<QAction*, QString>{{window->MenuHomework, "Homework"},
                                                                    {window->MenuCalendar, "Calendar"},
                                                                    {window->MenuStudySessions, "Study"},
                                                                    {window->MenuTasks, "Tasks"},
                                                                    {window->MenuEvents, "Events"},
                                                                    {window->MenuReminders, "Reminders"}}) {
            if (item->isChecked()) {
                names.append(name);
            }
        }
        names.sort();
        return names;
    }

    using Named = std::vector<std::pair<const QWidget*, QString>>;

    static QStringList Shown(const Named& widgets) {
        QStringList names;
        for (const auto& [widget, name] : widgets) {
            if (!widget->isHidden()) {
                names.append(name);
            }
        }
        return names;
    }

    QStringList Panels() const {
        return Shown({{window->PictureBoxTerm, "Term"},
                      {window->PictureBoxViewMenus, "ViewMenus"},
                      {window->PictureBoxStudySessions, "StudySessions"},
                      {window->PictureBoxReminders, "Reminders"},
                      {window->PictureBoxStudyTime, "StudyTime"}});
    }

    QStringList SmallButtons() const {
        const Named buttons{{window->ButtonNewAssignmentSmall, "Assignment"},
                            {window->ButtonNewEventSmall, "Event"},
                            {window->ButtonNewTaskSmall, "Task"}};
        for (const auto& [button, name] : buttons) {
            EXPECT_EQ(button->isEnabled(), !button->isHidden()) << name.toStdString();
        }
        return Shown(buttons);
    }

    QStringList LargeButtons() const {
        return Shown({{window->ButtonNewAssignment, "Assignment"},
                      {window->ButtonNewTask, "Task"},
                      {window->ButtonNewEvent, "Event"}});
    }

    QStringList EnabledItems() const {
        QStringList captions;
        for (const QAction* item : {window->MenuClassSchedule, window->MenuNewAssignment, window->MenuNewTask,
                                    window->MenuNewEvent}) {
            if (item->isEnabled()) {
                captions.append(WithoutMnemonics(item->text()));
            }
        }
        return captions;
    }

    QStringList Exports() const {
        QStringList captions;
        for (const QAction* item :
             {window->MenuExportCalendarAS, window->MenuExportCalendarEV, window->MenuExportCalendarTA,
              window->MenuExportListAS, window->MenuExportListTA}) {
            EXPECT_EQ(item->isEnabled(), item->isVisible()) << item->text().toStdString();
            if (item->isVisible()) {
                captions.append(WithoutMnemonics(item->text()));
            }
        }
        return captions;
    }

    QStringList Labels() const {
        QStringList texts;
        for (const QLabel* label :
             {window->LabelTotalAssignments, window->LabelFinishedAssignments, window->LabelTimeRemaining}) {
            texts.append(label->isHidden() ? QString() : label->text());
        }
        return texts;
    }

    QStringList Boxes() const {
        return Shown({{window->TextBoxTotalAssignments, "TextBoxTotalAssignments"},
                      {window->TextBoxFinishedAssignments, "TextBoxFinishedAssignments"},
                      {window->TextBoxTimeRemaining, "TextBoxTimeRemaining"},
                      {window->TextBoxStudySessions, "TextBoxStudySessions"},
                      {window->TextboxStudyTime, "TextboxStudyTime"},
                      {window->TextBoxTotalTasks, "TextBoxTotalTasks"},
                      {window->TextBoxFinishedTasks, "TextBoxFinishedTasks"},
                      {window->TextBoxUndatedTasks, "TextBoxUndatedTasks"},
                      {window->TextBoxClasses, "TextBoxClasses"},
                      {window->TextBoxOtherEvents, "TextBoxOtherEvents"},
                      {window->TextBoxSchedStudy, "TextBoxSchedStudy"},
                      {window->TextboxAssignments, "TextboxAssignments"},
                      {window->TextBoxTasks, "TextBoxTasks"},
                      {window->TextBoxEvents, "TextBoxEvents"}});
    }

    static QStringList Items(const QComboBox* menu) {
        QStringList items;
        for (int i = 0; i < menu->count(); ++i) {
            items.append(menu->itemText(i));
        }
        return items;
    }

    static QString PictureOf(const PictureBox* box) {
        return box->Drawn().empty() ? QString() : box->Drawn().front().text;
    }

    QStringList DownPictures() const {
        QStringList names;
        for (const PictureBox* box :
             {window->PictureBarCalendar, window->PictureBarHomework, window->PictureBarStudySessions,
              window->PictureBarTasks, window->PictureBarEvents, window->PictureBarReminders}) {
            const QString name = PictureOf(box);
            EXPECT_TRUE(name.endsWith("Down.svg") || name.endsWith("Up.svg")) << name.toStdString();
            if (name.endsWith("Down.svg")) {
                names.append(name);
            }
        }
        return names;
    }

    QStringList WhiteWords() const {
        QStringList words;
        for (const ClickLabel* word : {window->LabelBarCalendar, window->LabelBarHomework,
                                       window->LabelBarTasks, window->LabelBarEvents}) {
            const QColor color = word->palette().color(QPalette::WindowText);
            EXPECT_TRUE(color == QColor(255, 255, 255) || color == QColor(192, 192, 192));
            if (color == QColor(255, 255, 255)) {
                words.append(word->text());
            }
        }
        return words;
    }

    static int Topic(const QWidget* control) { return control->property("helpTopic").toInt(); }
};

// Of the modes that leave nothing as it was, each entered from another one.
const std::vector<ModeCase> FullModes{
    {Mode::Calendar,
     "Calendar Mode",
     {"Calendar"},
     {"Term"},
     {"Assignment", "Event", "Task"},
     {},
     {"Class Schedule...", "New Assignment...", "New Task...", "New Event..."},
     {"Homework Calendar...", "Event Calendar...", "Task Calendar..."},
     {"", "", ""},
     {},
     {"All", "Homework", "Tasks", "Events"}, // those of the mode before
     {"Today"}},
    {Mode::Homework,
     "Homework Mode",
     {"Homework"},
     {"ViewMenus"},
     {"Assignment"},
     {},
     {"Class Schedule...", "New Assignment..."},
     {"Homework Calendar...", "This Homework List..."},
     {"Total Assignments:", "Assignments Left:", "Study Time Left:"},
     {"TextBoxTotalAssignments", "TextBoxFinishedAssignments", "TextBoxTimeRemaining"},
     {"All", "Done", "Not Done"},
     {"Day", "Term"}},
    {Mode::Tasks,
     "Task Mode",
     {"Tasks"},
     {"ViewMenus"},
     {"Task"},
     {},
     {"New Task..."},
     {"Task Calendar...", "This Task List..."},
     {"Total Tasks:", "Tasks Left:", "Undated Tasks Left:"},
     {"TextBoxTotalTasks", "TextBoxFinishedTasks", "TextBoxUndatedTasks"},
     {"All", "Done", "Not Done"},
     {"Day", "All", "With Date", "Without Date"}},
    {Mode::Events,
     "Event Mode",
     {"Events"},
     {},
     {"Event"},
     {},
     {"New Event..."},
     {"Event Calendar..."},
     {"Classes:", "Other Events:", "Study Time:"},
     {"TextBoxClasses", "TextBoxOtherEvents", "TextBoxSchedStudy"},
     {"All", "Classes", "Other Events"},
     {"Day", "Week", "Month", "Year"}},
};

class FullMode : public Modes, public testing::WithParamInterface<ModeCase> {
protected:
    // The last mode before is one that leaves the filter menus filled with its own items.
    void EnterIt() {
        LoadWindow();
        for (const Mode before : {Mode::Homework, Mode::StudySessions, Mode::Reminders}) {
            Enter(before);
        }
        Enter(GetParam().mode);
    }
};

} // namespace

TEST_P(FullMode, ChecksItsItemAlone) {
    EnterIt();
    EXPECT_EQ(Checked(), GetParam().checked);
    EXPECT_EQ(window->CurrentMode(), GetParam().mode);
}

TEST_P(FullMode, ShowsItsPictureDownAndItsWordWhite) {
    EnterIt();
    const QString name = GetParam().checked.front();
    EXPECT_EQ(DownPictures(), QStringList{"picStash" + name + "Down.svg"});
    EXPECT_EQ(WhiteWords(), QStringList{name});
}

TEST_P(FullMode, ShowsItsPanels) {
    EnterIt();
    EXPECT_EQ(Panels(), GetParam().panels);
    EXPECT_FALSE(window->PictureBoxTimer->isHidden());
    EXPECT_TRUE(window->picLock->isHidden());
}

TEST_P(FullMode, ShowsItsNewButtonsFromTheLeftEdge) {
    EnterIt();
    EXPECT_EQ(SmallButtons(), GetParam().smallButtons);
    EXPECT_EQ(LargeButtons(), GetParam().largeButtons);
    ASSERT_TRUE(WaitUntil([this] { return window->ButtonNewAssignmentSmall->parentWidget()->height() > 0; }));
    QCoreApplication::sendPostedEvents();
    int place = 0;
    for (const QToolButton* button :
         {window->ButtonNewAssignmentSmall, window->ButtonNewEventSmall, window->ButtonNewTaskSmall}) {
        if (!button->isHidden()) {
            EXPECT_EQ(button->x() * UnitsPerPixel, place);
            place += 750;
        }
    }
}

TEST_P(FullMode, EnablesItsItemsOfTheEditMenu) {
    EnterIt();
    EXPECT_EQ(EnabledItems(), GetParam().enabled);
}

TEST_P(FullMode, OffersItsExports) {
    EnterIt();
    EXPECT_EQ(Exports(), GetParam().exports);
}

TEST_P(FullMode, ShowsItsCounters) {
    EnterIt();
    EXPECT_EQ(Labels(), GetParam().labels);
    EXPECT_EQ(Boxes(), GetParam().boxes);
}

TEST_P(FullMode, FillsTheFilterMenus) {
    EnterIt();
    EXPECT_EQ(Items(window->ComboList), GetParam().list);
    EXPECT_EQ(Items(window->ComboDateRange), GetParam().range);
}

TEST_P(FullMode, SaysItsNameInTheStatusBar) {
    EnterIt();
    EXPECT_EQ(window->ModeCaption, GetParam().caption.toStdString());
    EXPECT_EQ(DrawnTexts(*window->picStatusBar).front(), GetParam().caption);
}

TEST_P(FullMode, LooksTheSameWhateverModeWasBefore) {
    LoadWindow();
    for (const ModeRow& before : ModeRows) {
        SCOPED_TRACE(before.caption);
        Enter(before.mode);
        Enter(GetParam().mode);
        EXPECT_EQ(Checked(), GetParam().checked);
        EXPECT_EQ(DownPictures(), QStringList{"picStash" + GetParam().checked.front() + "Down.svg"});
        EXPECT_EQ(WhiteWords(), GetParam().checked);
        EXPECT_EQ(Panels(), GetParam().panels);
        EXPECT_EQ(SmallButtons(), GetParam().smallButtons);
        EXPECT_EQ(LargeButtons(), GetParam().largeButtons);
        EXPECT_EQ(EnabledItems(), GetParam().enabled);
        EXPECT_EQ(Exports(), GetParam().exports);
        EXPECT_EQ(Labels(), GetParam().labels);
        EXPECT_EQ(Boxes(), GetParam().boxes);
        EXPECT_TRUE(window->picLock->isHidden());
    }
}

TEST_P(FullMode, IsIdleWhenItIsEntered) {
    EnterIt();
    EXPECT_FALSE(window->ChangingMode);
    EXPECT_EQ(window->RefreshReason, "None");
}

INSTANTIATE_TEST_SUITE_P(Modes, FullMode, testing::ValuesIn(FullModes),
                         [](const auto& each) { return each.param.checked.front().toStdString(); });

TEST_F(Modes, LoadEndsInCalendarModeOnToday) {
    LoadWindow();
    EXPECT_EQ(Checked(), QStringList{"Calendar"});
    EXPECT_EQ(window->ModeCaption, "Calendar Mode");
    EXPECT_EQ(window->ClickedDate, Today());
    EXPECT_EQ(window->SelectedDate, Today());
}

TEST_F(Modes, StudySessionsEnteredFromHomework) {
    LoadWindow();
    Enter(Mode::Homework);
    const QStringList exports = Exports();
    Enter(Mode::StudySessions);
    EXPECT_EQ(Checked(), QStringList{"Study"});
    EXPECT_EQ(DownPictures(), QStringList{"picStashSessionsDown.svg"});
    EXPECT_EQ(WhiteWords(), QStringList{"Homework"}) << "left as they were";
    EXPECT_EQ(Panels(), (QStringList{"Term", "ViewMenus", "StudySessions"}));
    EXPECT_EQ(SmallButtons(), QStringList{"Assignment"}) << "left as they were";
    EXPECT_EQ(LargeButtons(), QStringList{"Assignment"});
    EXPECT_EQ(EnabledItems(), QStringList{});
    EXPECT_EQ(Exports(), exports);
    EXPECT_EQ(window->MenuExportCalendar->text(), "Homework Calendar...");
    EXPECT_EQ(window->MenuExportList->text(), "This Study List...");
    EXPECT_EQ(Labels(), (QStringList{"Study Sessions:", "", "Study Time:"}));
    EXPECT_EQ(Boxes(), (QStringList{"TextBoxStudySessions", "TextboxStudyTime"}));
    EXPECT_EQ(Items(window->ComboList), QStringList{"All"});
    EXPECT_EQ(Items(window->ComboDateRange), (QStringList{"Day", "Term"}));
    EXPECT_EQ(window->ModeCaption, "Study Session Mode");
    EXPECT_TRUE(window->picLock->isHidden());
}

TEST_F(Modes, RemindersEnteredFromTasks) {
    LoadWindow();
    Enter(Mode::Tasks);
    const QStringList exports = Exports();
    Enter(Mode::Reminders);
    EXPECT_EQ(Checked(), QStringList{"Reminders"});
    EXPECT_EQ(DownPictures(), QStringList{"picStashRemindersDown.svg"});
    EXPECT_EQ(WhiteWords(), QStringList{"Tasks"}) << "left as they were";
    EXPECT_EQ(Panels(), (QStringList{"ViewMenus", "Reminders", "StudyTime"}));
    EXPECT_EQ(SmallButtons(), QStringList{"Task"}) << "left as they were";
    EXPECT_EQ(LargeButtons(), QStringList{});
    EXPECT_EQ(EnabledItems(), QStringList{});
    EXPECT_EQ(Exports(), exports);
    EXPECT_EQ(window->MenuExportCalendar->text(), "Homework Calendar...");
    EXPECT_EQ(window->MenuExportList->text(), "This Reminder List...");
    EXPECT_EQ(Labels(), (QStringList{"Assignments:", "Tasks:", "Events:"}));
    EXPECT_EQ(Boxes(), (QStringList{"TextboxAssignments", "TextBoxTasks", "TextBoxEvents"}));
    EXPECT_EQ(Items(window->ComboList), (QStringList{"All", "Homework", "Tasks", "Events"}));
    EXPECT_EQ(Items(window->ComboDateRange), QStringList{"Today"});
    EXPECT_EQ(window->ModeCaption, "Today's Reminders");
    EXPECT_FALSE(window->picLock->isHidden());
}

TEST_F(Modes, StudySessionsAndRemindersKeepWhatTheyDoNotTurn) {
    LoadWindow();
    for (const ModeRow& before : ModeRows) {
        for (const Mode mode : {Mode::StudySessions, Mode::Reminders}) {
            SCOPED_TRACE(before.caption);
            Enter(before.mode);
            const bool menus = Panels().contains("ViewMenus");
            const QStringList buttons = SmallButtons();
            const QStringList exports = Exports();
            const QStringList words = WhiteWords();
            Enter(mode);
            EXPECT_EQ(Panels().contains("ViewMenus"), menus);
            EXPECT_EQ(SmallButtons(), buttons);
            EXPECT_EQ(Exports(), exports);
            EXPECT_EQ(WhiteWords(), words);
            EXPECT_EQ(window->MenuCalendar->isChecked(), before.mode == Mode::Calendar);
            Enter(Mode::Homework); // which unchecks all others
        }
    }
}

TEST_F(Modes, EachStartsWithItsFirstSortUpwards) {
    LoadWindow();
    const std::array<std::pair<Mode, int>, 5> sorts{{
        {Mode::Homework, 8},
        {Mode::StudySessions, 6},
        {Mode::Tasks, 5},
        {Mode::Events, 3},
        {Mode::Reminders, 5},
    }};
    for (const auto& [mode, column] : sorts) {
        window->SortColumn = 2;
        window->SortDirection = Descending;
        Enter(mode);
        EXPECT_EQ(window->SortColumn, column);
        EXPECT_EQ(window->SortDirection, Ascending);
    }
}

TEST_F(Modes, ModeThatIsCheckedIsNotEnteredAgain) {
    LoadWindow();
    const std::array<std::tuple<Mode, PictureBox*, ClickLabel*>, 5> controls{{
        {Mode::Homework, window->PictureBarHomework, window->LabelBarHomework},
        {Mode::Tasks, window->PictureBarTasks, window->LabelBarTasks},
        {Mode::Events, window->PictureBarEvents, window->LabelBarEvents},
        {Mode::Calendar, window->PictureBarCalendar, window->LabelBarCalendar},
        {Mode::StudySessions, window->PictureBarStudySessions, nullptr},
    }};
    for (const auto& [mode, picture, word] : controls) {
        Enter(mode);
        window->ModeCaption = "as it was";
        QTest::mouseClick(picture, Qt::LeftButton);
        if (word != nullptr) {
            QTest::mouseClick(word, Qt::LeftButton);
        }
        EXPECT_EQ(window->ModeCaption, "as it was");
    }
}

TEST_F(Modes, LockGoesWithTheReminders) {
    LoadWindow();
    EXPECT_TRUE(window->picLock->isHidden());
    Enter(Mode::Reminders);
    EXPECT_FALSE(window->picLock->isHidden());
    Enter(Mode::Tasks);
    EXPECT_TRUE(window->picLock->isHidden());
}

TEST_F(Modes, LargeButtonGoesWithTheStudySessions) {
    LoadWindow();
    Enter(Mode::StudySessions);
    EXPECT_EQ(LargeButtons(), QStringList{"Assignment"});
    Enter(Mode::Reminders);
    EXPECT_EQ(LargeButtons(), QStringList{});
}

TEST_F(Modes, EventsGiveTheHiddenExportsTheirCaptions) {
    LoadWindow();
    Enter(Mode::Events);
    EXPECT_EQ(window->MenuExportCalendar->text(), "Event Calendar...");
    EXPECT_EQ(window->MenuExportList->text(), "This Event List...");
    for (const Mode mode : {Mode::Tasks, Mode::Homework, Mode::Calendar}) {
        Enter(mode);
        EXPECT_EQ(window->MenuExportList->text(), "This Event List...") << "kept";
    }
    EXPECT_FALSE(window->MenuExportCalendar->isVisible());
    EXPECT_FALSE(window->MenuExportList->isVisible());
}

TEST_F(Modes, HelpTopicsFollowTheMode) {
    LoadWindow();
    EXPECT_EQ(Topic(window->picGrid), 154);
    Enter(Mode::Homework);
    EXPECT_EQ(Topic(window->picGrid), 153);
    EXPECT_EQ(Topic(window->ComboDateRange), 112);
    EXPECT_EQ(Topic(window->ComboList), 114);
    EXPECT_EQ(window->picGrid->whatsThis(), "<p>Homework List</p>");
    Enter(Mode::StudySessions);
    EXPECT_EQ(Topic(window->picGrid), 153) << "kept";
    Enter(Mode::Tasks);
    EXPECT_EQ(Topic(window->picGrid), 156);
    EXPECT_EQ(Topic(window->ComboDateRange), 113);
    EXPECT_EQ(Topic(window->ComboList), 115);
    Enter(Mode::Events);
    EXPECT_EQ(Topic(window->picGrid), 155);
    EXPECT_EQ(Topic(window->ComboList), 115) << "kept";
    Enter(Mode::Reminders);
    EXPECT_EQ(Topic(window->picGrid), 155) << "kept";
}

TEST_F(Modes, StudySessionsEnteredFromCalendarLeaveItChecked) {
    LoadWindow();
    Enter(Mode::StudySessions);
    EXPECT_EQ(Checked(), (QStringList{"Calendar", "Study"}));
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar) << "Calendar is tested first";
    EXPECT_EQ(Panels(), (QStringList{"Term", "StudySessions"}));
    EXPECT_EQ(DownPictures(), (QStringList{"picStashCalendarDown.svg", "picStashSessionsDown.svg"}));
    EXPECT_EQ(WhiteWords(), QStringList{"Calendar"});
    EXPECT_EQ(SmallButtons(), (QStringList{"Assignment", "Event", "Task"}));
}

TEST_F(Modes, EntryThatHidesTheFocusedControlGivesTheGridTheFocus) {
    LoadWindow();
    window->ButtonAlert[0]->show(); // a control that would be next
    Enter(Mode::Homework);
    window->ButtonAlert[0]->show();
    window->ComboDateRange->setFocus();
    Enter(Mode::Calendar);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
    window->ButtonSelectTerm->setFocus();
    Enter(Mode::Tasks);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
    window->ButtonReset->setFocus();
    Enter(Mode::Homework);
    EXPECT_EQ(window->focusWidget(), window->ButtonReset); // which stays on the screen
}

TEST_F(Modes, RemindersEnteredFromCalendarLeaveItChecked) {
    LoadWindow();
    Enter(Mode::Reminders);
    EXPECT_EQ(Checked(), (QStringList{"Calendar", "Reminders"}));
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    EXPECT_EQ(Panels(), (QStringList{"Reminders", "StudyTime"}));
    EXPECT_EQ(DownPictures(), (QStringList{"picStashCalendarDown.svg", "picStashRemindersDown.svg"}));
    EXPECT_EQ(WhiteWords(), QStringList{"Calendar"});
    EXPECT_EQ(SmallButtons(), (QStringList{"Assignment", "Event", "Task"}));
    EXPECT_FALSE(window->picLock->isHidden());
}

TEST_F(Modes, AnyOtherModeUnchecksCalendarAgain) {
    LoadWindow();
    Enter(Mode::Reminders);
    Enter(Mode::Events);
    EXPECT_EQ(Checked(), QStringList{"Events"});
    EXPECT_EQ(DownPictures(), QStringList{"picStashEventsDown.svg"});
    EXPECT_EQ(WhiteWords(), QStringList{"Events"});
}

TEST_F(Modes, AreTestedInTheirOrder) {
    LoadWindow();
    for (QAction* item : {window->MenuHomework, window->MenuStudySessions, window->MenuTasks,
                          window->MenuEvents, window->MenuReminders}) {
        item->setChecked(true);
    }
    const std::array<std::pair<QAction*, Mode>, 6> order{{
        {window->MenuHomework, Mode::Homework},
        {window->MenuCalendar, Mode::Calendar},
        {window->MenuStudySessions, Mode::StudySessions},
        {window->MenuTasks, Mode::Tasks},
        {window->MenuEvents, Mode::Events},
        {window->MenuReminders, Mode::Reminders},
    }};
    for (const auto& [item, mode] : order) {
        EXPECT_EQ(window->CurrentMode(), mode);
        item->setChecked(false);
    }
    EXPECT_EQ(window->CurrentMode(), Mode::None);
}

TEST_F(Modes, CalendarKeepsTheSortOfTheModeBefore) {
    LoadWindow();
    Enter(Mode::Homework);
    window->SortColumn = 3;
    window->SortDirection = Descending;
    Enter(Mode::Calendar);
    EXPECT_EQ(window->SortColumn, 3);
    EXPECT_EQ(window->SortDirection, Descending);
    Enter(Mode::Homework);
    EXPECT_EQ(window->SortColumn, 8);
    EXPECT_EQ(window->SortDirection, Ascending);
}
