// The commands of the menu bar, the mode bar and the buttons.
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "reminders/frmReminders.h"
#include "toolkit/Text.h"

#include <QMenuBar>

namespace {

class Commands : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
    }

    // Each item, a submenu by its caption and what it holds in brackets; "-" is a separator. Hidden items are
    // left out, or stand in parentheses.
    static QString Captions(const QMenu* menu, bool withHidden = false) {
        QStringList captions;
        for (const QAction* item : menu->actions()) {
            if (item->isSeparator()) {
                captions.append("-");
            } else if (item->isVisible() || withHidden) {
                const QString caption = WithoutMnemonics(item->text());
                captions.append(item->isVisible() ? caption : "(" + caption + ")");
                if (item->menu() != nullptr) {
                    captions.last() += " [" + Captions(item->menu(), withHidden) + "]";
                }
            }
        }
        return captions.join(", ");
    }

    // Keys of items reach the active window alone.
    void ComeBack() {
        window->activateWindow();
        ASSERT_TRUE(WaitUntil([this] { return QApplication::activeWindow() == window.get(); }));
    }

    void Press(Qt::Key key) { QTest::keyClick(window->picGrid, key, Qt::ControlModifier); }
};

using NewItems = GridTest; // with a term and a class

} // namespace

TEST_F(Commands, FileMenu) {
    EXPECT_EQ(Captions(window->mnuFile),
              "Calendar, Homework, Events, Tasks, Reminders, -, GPA, -, Print Screen..., Export for Printing "
              "[Homework Calendar..., Event Calendar..., Task Calendar...], -, Exit");
    EXPECT_EQ(WithoutMnemonics(window->MenuReminders->text()), "Today's Reminders");
    EXPECT_EQ(WithoutMnemonics(window->MenuStudySessions->text()), "Study Sessions");
    EXPECT_EQ(WithoutMnemonics(window->MenuExportCalendar->text()), "Calendar...");
    EXPECT_EQ(WithoutMnemonics(window->MenuExportList->text()), "Current List...");
}

TEST_F(Commands, EditMenu) {
    EXPECT_EQ(Captions(window->MenuEdit),
              "New Assignment..., New Event..., New Task..., -, Class Schedule...");
}

TEST_F(Commands, OptionsMenu) {
    EXPECT_EQ(Captions(window->MenuOptions),
              "Colors and Names..., Start Day of Week [Saturday, Sunday, Monday]");
    EXPECT_EQ(Captions(window->MenuStartup),
              "Yes - Open Full, Yes - Open Minimized, Yes - Stay in System Tray, No");
}

TEST_F(Commands, HelpMenu) {
    EXPECT_EQ(Captions(window->MenuHelp),
              "Help, Online Homework Help, Show Tips at Startup..., About Planovarium..., -");
    EXPECT_EQ(WithoutMnemonics(window->MenuData->text()), "Open Planovarium Data Folder");
}

TEST_F(Commands, HiddenItemsStandInTheirPlaces) {
    EXPECT_EQ(
        Captions(window->mnuFile, true),
        "Calendar, Homework, Events, Tasks, Reminders, -, GPA, (Today's Reminders), (Study Sessions), -, "
        "Print Screen..., Export for Printing [Homework Calendar..., Event Calendar..., Task Calendar..., "
        "(This Homework List...), (This Task List...), (Calendar...), (Current List...)], -, Exit");
    EXPECT_EQ(Captions(window->MenuOptions, true),
              "Colors and Names..., Start Day of Week [Saturday, Sunday, Monday], (Launch on System Startup) "
              "[Yes - Open Full, Yes - Open Minimized, Yes - Stay in System Tray, No]");
    EXPECT_EQ(Captions(window->MenuHelp, true),
              "Help, Online Homework Help, Show Tips at Startup..., About Planovarium..., -, "
              "(Open Planovarium Data Folder)");
    QStringList menus;
    for (const QAction* menu : window->menuBar()->actions()) {
        menus.append(WithoutMnemonics(menu->text()));
    }
    EXPECT_EQ(menus.join(", "), "File, Edit, Options, Help");
}

TEST_F(Commands, OneItemOfTheFileMenuIsCheckedInEachMode) {
    for (QAction* item :
         {window->MenuHomework, window->MenuEvents, window->MenuTasks, window->MenuCalendar}) {
        item->trigger();
        for (const QAction* other : window->mnuFile->actions()) {
            EXPECT_EQ(other->isChecked(), other == item) << other->text().toStdString();
            EXPECT_TRUE(other->isEnabled() || !other->isVisible()) << other->text().toStdString();
        }
    }
}

TEST_F(Commands, ModeItemsEnterTheirModes) {
    window->MenuHomework->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
    window->MenuTasks->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    window->MenuEvents->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    window->MenuStudySessions->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::StudySessions);
    window->MenuReminders->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::Reminders);
    window->MenuCalendar->trigger();
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(Commands, ModeItemsFindTheMarksAsTheyWere) {
    window->MenuHomework->trigger();
    window->ComboList->setCurrentText("Done");
    window->MenuTasks->trigger(); // must still see Homework checked, to keep its filter
    EXPECT_EQ(ChosenFilters[0].list, "Done");
}

TEST_F(Commands, CheckedModeItemDoesNothing) {
    window->MenuHomework->trigger();
    window->SortColumn = 3;
    window->MenuHomework->trigger();
    EXPECT_TRUE(window->MenuHomework->isChecked());
    EXPECT_EQ(window->SortColumn, 3);
}

TEST_F(Commands, PicturesAndWordsOfTheModeBarEnterTheirModes) {
    const std::array<std::pair<PictureBox*, Mode>, 5> pictures{{
        {window->PictureBarHomework, Mode::Homework},
        {window->PictureBarTasks, Mode::Tasks},
        {window->PictureBarEvents, Mode::Events},
        {window->PictureBarCalendar, Mode::Calendar},
        {window->PictureBarStudySessions, Mode::Calendar}, // which stays checked and is tested first
    }};
    for (const auto& [picture, mode] : pictures) {
        QTest::mouseClick(picture, Qt::LeftButton);
        EXPECT_EQ(window->CurrentMode(), mode);
    }
    EXPECT_TRUE(window->MenuStudySessions->isChecked());
    const std::array<std::pair<ClickLabel*, Mode>, 4> words{{
        {window->LabelBarHomework, Mode::Homework},
        {window->LabelBarTasks, Mode::Tasks},
        {window->LabelBarEvents, Mode::Events},
        {window->LabelBarCalendar, Mode::Calendar},
    }};
    for (const auto& [word, mode] : words) {
        QTest::mouseClick(word, Qt::LeftButton);
        EXPECT_EQ(window->CurrentMode(), mode);
    }
}

TEST_F(Commands, RemindersInTheModeBarDoNotChangeTheMode) {
    QTest::mouseClick(window->PictureBarReminders, Qt::LeftButton);
    QTest::mouseClick(window->LabelBarReminders, Qt::LeftButton);
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    EXPECT_FALSE(window->MenuReminders->isChecked());
}

TEST_F(Commands, ModeBarIsPressedAndReleasedOnOneThing) {
    QTest::mousePress(window->LabelBarTasks, Qt::LeftButton);
    QTest::mouseRelease(window->LabelBarTasks, Qt::LeftButton, {}, QPoint(-20, 5));
    QTest::mouseClick(window->PictureBarTasks, Qt::RightButton);
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(Commands, StudySessionsAreNotShownInTheModeBar) {
    for (const auto& enter : {&ShowStudySessionsMode, &ShowTaskMode}) {
        enter(*window);
        EXPECT_TRUE(window->PictureBarStudySessions->isHidden());
    }
    EXPECT_FALSE(window->MenuStudySessions->isVisible());
    EXPECT_FALSE(window->MenuReminders->isVisible());
}

TEST_F(Commands, KeysChooseTheModes) {
    Press(Qt::Key_2);
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
    Press(Qt::Key_3);
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    Press(Qt::Key_4);
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    Press(Qt::Key_1);
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(Commands, KeysChooseTheItemsOfTheFileMenu) {
    Press(Qt::Key_P);
    EXPECT_EQ(Script.printDialogs.size(), 1U);
    bool grades = false;
    WhenDialogOpens([&grades](QWidget* dialog) {
        grades = dialog == GPADialog;
        dialog->close();
    });
    Press(Qt::Key_G);
    EXPECT_TRUE(grades);
    ComeBack();
    Press(Qt::Key_5);
    EXPECT_TRUE(ReminderListWindow->isVisible());
    ReminderListWindow->hide();
    ComeBack();
    Press(Qt::Key_Q);
    EXPECT_TRUE(window->isHidden());
}

TEST_F(Commands, NewEventsStartAtNine) {
    CancelDialogsAsTheyOpen(window.get());
    for (const auto& act : std::vector<std::function<void()>>{
             [this] { window->MenuNewEvent->trigger(); },
             [this] { QTest::mouseClick(window->ButtonNewEventSmall, Qt::LeftButton); },
             [this] { window->ButtonNewEvent->click(); }}) {
        window->EventClickedStartTime = "11:30PM";
        act();
        EXPECT_EQ(window->EventClickedStartTime, "9:00 AM");
    }
}

TEST_F(NewItems, ItemsAndButtonsAskForTheSame) {
    window->MenuNewAssignment->trigger();
    QTest::mouseClick(window->ButtonNewAssignmentSmall, Qt::LeftButton);
    window->ButtonNewAssignment->click();
    EXPECT_EQ(Opened, QStringList(3, "Planovarium - New Assignment: "));
    Opened.clear();
    window->MenuNewTask->trigger();
    QTest::mouseClick(window->ButtonNewTaskSmall, Qt::LeftButton);
    window->ButtonNewTask->click();
    EXPECT_EQ(Opened, QStringList(3, "Planovarium - New Task: "));
}

TEST_F(NewItems, KeysAskForThem) {
    window->EventClickedStartTime = "11:30PM";
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_T, Qt::Key_E}) {
        ASSERT_TRUE(WaitUntil([this] { return window->isActiveWindow(); })); // after a dialog as well
        Press(key, Qt::ControlModifier);
    }
    EXPECT_EQ(Opened, (QStringList{"Planovarium - New Assignment: ", "Planovarium - New Task: ",
                                   "Planovarium - New Event: "}));
    EXPECT_EQ(window->EventClickedStartTime, "9:00 AM"); // as of every new event of a menu
}

TEST_F(NewItems, ClassScheduleAsksForTheTerm) {
    window->MenuClassSchedule->trigger();
    window->ButtonSelectTerm->click();
    EXPECT_EQ(Opened, QStringList(2, "Planovarium - Select a Term"));
}

TEST_F(Commands, EditClassScheduleGivesTheGridTheFocus) {
    CancelDialogsAsTheyOpen(window.get());
    window->ButtonSelectTerm->setFocus();
    QTest::mouseClick(window->ButtonSelectTerm, Qt::LeftButton);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(Commands, DataFolderOpensInTheFileBrowser) {
    window->MenuData->setEnabled(true); // a drive does not offer it
    window->MenuData->trigger();
    ASSERT_EQ(Script.processes.size(), 1U);
    EXPECT_EQ(Script.processes[0].program, "xdg-open");
    EXPECT_EQ(Script.processes[0].arguments, std::vector<std::string>{DataFolder.string()});
}

TEST_F(Commands, GridHasTheFocusAfterTheLoad) {
    EXPECT_TRUE(window->picGrid->hasFocus());
}
