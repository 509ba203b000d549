// The lists of the grid: their titles, their rows as painted, and the texts over them.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/grid/ListInput.h"

#include "core/RowLists.h"

namespace {

using ListGrid = GridTest;

constexpr const char* Mark = "\xC2\xAE"; // the sign that the store's character 174 is

QStringList Titles(const std::vector<PictureBox*>& headers) {
    QStringList titles;
    for (const PictureBox* header : headers) {
        if (!header->isHidden()) {
            titles.append(DrawnTexts(*header));
        }
    }
    return titles;
}

} // namespace

TEST_F(ListGrid, HomeworkShowsItsCells) {
    AddAssignmentRecord({.date = "2009/10/16",
                         .desc = "Page 12",
                         .type = " Reading ",
                         .priority = "True",
                         .time_left = "01 : 30",
                         .grade = " 95% ",
                         .reminder = "True"});
    ShowHomeworkMode(*window);
    EXPECT_EQ(RowTexts(ListKind::Homework, 1),
              (QStringList{"1", Mark, "!", "Algebra ", "Reading", "Page 12 ", "01:30", "16-Oct-09",
                           "picStashUnchecked.svg", "95%"}));
    for (std::size_t column = 1; column < 10; ++column) {
        EXPECT_EQ(Cell(ListKind::Homework, 1, column).backcolor, 0x112233) << column;
    }
    EXPECT_EQ(Cell(ListKind::Homework, 1, 3).forecolor, 0xFFFFFF);
    EXPECT_EQ(Cell(ListKind::Homework, 1, 0).forecolor, 0x000000);
    EXPECT_EQ(Cell(ListKind::Homework, 1, 0).backcolor, -1);
}

TEST_F(ListGrid, HomeworkWithoutMarksOrDescription) {
    AddAssignmentRecord({.desc = "", .type = "", .done = "True"});
    ShowHomeworkMode(*window);
    EXPECT_EQ(RowTexts(ListKind::Homework, 1),
              (QStringList{"1", "", "", "Algebra ", "", "New Assignment", "01:00", "14-Oct-09",
                           "picStashChecked.svg", ""}));
}

TEST_F(ListGrid, StudySessionsShowTheirCells) {
    AddAssignmentRecord({.date = "2009/10/16", .desc = "Page 12", .priority = "True"});
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add("1");
    log.time.Add("00 : 45");
    log.date.Add("2009/10/14");
    ShowStudySessionsMode(*window);
    window->MenuCalendar->setChecked(false); // an entry from Calendar mode leaves it checked
    window->RefreshFor(ReasonModeChange);
    EXPECT_EQ(RowTexts(ListKind::StudySessions, 1),
              (QStringList{"1", "Algebra ", "Reading", "Page 12 ", "!", "00:45", "14-Oct-09", "16-Oct-09"}));
    EXPECT_EQ(Cell(ListKind::StudySessions, 1, 1).backcolor, 0x112233);
    EXPECT_EQ(window->TextBoxStudySessions->text(), "1");
    EXPECT_EQ(window->TextboxStudyTime->text(), "00:45");
}

TEST_F(ListGrid, TasksShowTheirCells) {
    AddTaskRecord({.date = "2009/10/16",
                   .desc = "Call",
                   .type = "Custom1",
                   .priority = "High",
                   .done = "True",
                   .reminder = "True"});
    const int type = TypeRow("Task", "Custom1");
    TypeTable.customname.Replace(type, "Way");
    TypeTable.forecolor.Replace(type, "255");
    TypeTable.backcolor.Replace(type, "65280");
    ShowTaskMode(*window);
    EXPECT_EQ(RowTexts(ListKind::Tasks, 1),
              (QStringList{"1", Mark, "Call ", "Way ", "High", "16-Oct-09", "picStashChecked.svg"}));
    EXPECT_EQ(Cell(ListKind::Tasks, 1, 2).backcolor, 65280);
    EXPECT_EQ(Cell(ListKind::Tasks, 1, 2).forecolor, 255);
}

TEST_F(ListGrid, TasksWithoutValuesShowNone) {
    AddTaskRecord({.desc = "", .date_exists = "False"});
    ShowTaskMode(*window);
    EXPECT_EQ(RowTexts(ListKind::Tasks, 1),
              (QStringList{"1", "", "New Task", " ", "", "", "picStashUnchecked.svg"}));
}

TEST_F(ListGrid, RemindersShowTheirCells) {
    AddAssignmentRecord({.date = "2009/10/12", .desc = "Page 12", .reminder = "True"});
    ShowReminderMode(*window);
    window->MenuCalendar->setChecked(false);
    window->RefreshFor(ReasonModeChange);
    EXPECT_EQ(RowTexts(ListKind::Reminders, 1),
              (QStringList{"1", "Homework", "Algebra", "Reading", "Page 12", "2 Days Ago", "12-Oct-09"}));
    EXPECT_EQ(window->TextboxAssignments->text(), "1");
}

TEST_F(ListGrid, EventListShowsItsCells) {
    window->ComboList->addItem("All");
    window->ComboDateRange->addItem("Day");
    AddEventRecord({.time = "1:30 pm", .desc = "Chess", .recurrence = "Week", .repeat_daily = "FFTFFFF"});
    window->LayoutEventList();
    window->FillEventList();
    EXPECT_EQ(Titles(window->picColHeader), (QStringList{"#", "Name", "Type", "Date", "Time", "Recurrence"}));
    EXPECT_EQ(RowTexts(ListKind::Events, 1),
              (QStringList{"1", "Chess ", "", "14-Oct-09", "01:30 PM", "Week"}));
    EXPECT_EQ(window->LabelTop->text(), "Events for Wednesday, October 14, 2009");
}

TEST_F(ListGrid, TitlesAreThoseOfTheMode) {
    ShowHomeworkMode(*window);
    EXPECT_EQ(Titles(window->picColHeader), (QStringList{" #", Mark, " !", "Class", "Type", "Description",
                                                         "Time", "Due", "Done", "Score"}));
    ShowTaskMode(*window);
    EXPECT_EQ(Titles(window->picColHeader),
              (QStringList{"#", Mark, "Name", "Type", "Priority", "Date", "Done"}));
    ShowEventMode(*window);
    EXPECT_EQ(Titles(window->picColHeader), QStringList{});
    ShowStudySessionsMode(*window);
    EXPECT_EQ(Titles(window->picColHeader),
              (QStringList{"#", "Class", "Type", "Description", "Priority", "Time", "Done On", "Due"}));
    window->MenuStudySessions->setChecked(false);
    ShowReminderMode(*window);
    EXPECT_EQ(Titles(window->picColHeader),
              (QStringList{"#", "For", "Class", "Type", "Description", "When", "Date"}));
}

TEST_F(ListGrid, TitlesStandInBoldVerdanaFromTheCorner) {
    ShowHomeworkMode(*window);
    const DrawnItem title = window->picColHeader[3]->Drawn().back();
    EXPECT_EQ(title.left, 45);
    EXPECT_EQ(title.top, 45);
    EXPECT_EQ(title.color, 0);
    EXPECT_EQ(title.font, (SurfaceFont{Face::Title, 8, true}));
}

TEST_F(ListGrid, RowsAreInArialNine) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    const DrawnItem last = window->picGrid->Drawn().back();
    ASSERT_EQ(last.kind, DrawnKind::Rectangle); // the empty score
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text) {
            EXPECT_EQ(item.font, (SurfaceFont{Face::List, 9, false}));
        }
    }
}

TEST_F(ListGrid, NumbersEndAtTheSamePlace) {
    AddAssignments(12);
    ShowHomeworkMode(*window);
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.left < 345) {
            EXPECT_EQ(item.left + TextWidth(item.text, item.font), 345);
        }
    }
    EXPECT_EQ(RowsPainted(), 12);
}

TEST_F(ListGrid, TheSortColumnCarriesTheArrowEvenOverAnEmptyList) {
    ShowHomeworkMode(*window);
    ASSERT_EQ(window->SortColumn, 8);
    EXPECT_EQ(SortPicture(8), "picStashGridTitleUp.svg");
    for (std::size_t column : {0U, 1U, 5U, 7U, 9U}) {
        EXPECT_EQ(SortPicture(column), "") << column;
    }
    ColumnClicked(*window, 8);
    EXPECT_EQ(SortPicture(8), "picStashGridTitleDown.svg");
    EXPECT_EQ(RowsPainted(), 0);
}

TEST_F(ListGrid, AnEmptyListPaintsTitlesAndLinesOnly) {
    ShowTaskMode(*window);
    EXPECT_EQ(DrawnTexts(*window->picGrid), QStringList{});
    int lines = 0;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        lines += item.kind == DrawnKind::Line ? 1 : 0;
    }
    EXPECT_GT(lines, window->RowsVisible);
}

TEST_F(ListGrid, LinesRunAtEveryRowAndColumn) {
    ShowTaskMode(*window);
    const auto lineAt = [this](int left, int top, int color) {
        return std::ranges::any_of(window->picGrid->Drawn(), [=](const DrawnItem& item) {
            return item.kind == DrawnKind::Line && item.left == left && item.top == top &&
                   item.color == color;
        });
    };
    for (int row = 2; row <= window->RowsVisible; ++row) {
        EXPECT_TRUE(lineAt(0, RowTop(row), 0xE0E0E0)) << row;
    }
    for (const ColumnPlace& place :
         PlaceColumns(ColumnsOf(ListKind::Tasks), window->picGrid->WidthInUnits())) {
        EXPECT_TRUE(lineAt(place.left + place.width - 15, TitleUnits, 0xE0E0E0));
    }
    for (const auto& [width, height] : {std::pair{window->picGrid->WidthInUnits() - ScrollStripWidth, 0},
                                        std::pair{0, window->picGrid->HeightInUnits() - TitleUnits}}) {
        EXPECT_TRUE(std::ranges::any_of(window->picGrid->Drawn(), [=](const DrawnItem& item) {
            return item.kind == DrawnKind::Line && item.left == 0 && item.top == TitleUnits &&
                   item.width == width && item.height == height && item.color == 0x808080;
        })) << width;
    }
}

TEST_F(ListGrid, TextsAndChecksStandInTheirColumns) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    const std::vector<ColumnPlace> places =
        PlaceColumns(ColumnsOf(ListKind::Homework), window->picGrid->WidthInUnits());
    std::vector<int> texts;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.left > RowNumberRight) {
            texts.push_back(item.left);
        } else if (item.kind == DrawnKind::Picture && item.top > 0) {
            EXPECT_EQ(2 * item.left + item.width, 2 * places[8].left + places[8].width);
        }
    }
    EXPECT_EQ(texts, (std::vector<int>{places[3].left + 75, places[4].left + 75, places[5].left + 75,
                                       places[6].left + 75, places[7].left + 75}));
}

TEST_F(ListGrid, TheLayoutLeavesEmptyTitles) {
    ShowHomeworkMode(*window);
    window->LayoutTaskGrid();
    for (std::size_t column = 0; column < ColumnsOf(ListKind::Tasks).size(); ++column) {
        const PictureBox& header = *window->picColHeader[column];
        ASSERT_EQ(header.Drawn().size(), 1U) << column;
        EXPECT_EQ(header.Drawn()[0].text, "picStashGridTitle.svg");
        EXPECT_EQ(header.Drawn()[0].width, header.WidthInUnits());
    }
}

TEST_F(ListGrid, TheGridStandsBesideAPanelOfThreeThousandUnits) {
    const QPoint panel = window->PictureBoxCalendar->mapTo(window.get(), QPoint());
    EXPECT_EQ(window->PictureBoxCalendar->width() * UnitsPerPixel, 3000);
    EXPECT_EQ(window->picGrid->mapTo(window.get(), QPoint()).x(),
              panel.x() + window->PictureBoxCalendar->width() + 7); // 100 units are not quite 7 pixels
}

TEST_F(ListGrid, TheDayStandsOverEveryMode) {
    for (const auto& enter : {&ShowCalendarMode, &ShowHomeworkMode, &ShowTaskMode, &ShowEventMode,
                              &ShowStudySessionsMode, &ShowReminderMode}) {
        window->LabelInfoTitle->clear();
        enter(*window);
        EXPECT_EQ(window->LabelInfoTitle->text(), "Wednesday, Oct 14");
    }
}

TEST_F(ListGrid, ATextWiderThanItsColumnLosesItsTail) {
    AddAssignmentRecord({.desc = std::string(300, 'm')});
    ShowHomeworkMode(*window);
    const ColumnPlace column =
        PlaceColumns(ColumnsOf(ListKind::Homework), window->picGrid->WidthInUnits())[5];
    const QString text = Cell(ListKind::Homework, 1, 5).text;
    const SurfaceFont font{Face::List, 9, false};
    EXPECT_FALSE(text.isEmpty());
    EXPECT_EQ(text, QString(text.size(), QLatin1Char('m')));
    EXPECT_LE(TextWidth(text, font), column.width - 105);
    EXPECT_GT(TextWidth(text + "m", font), column.width - 105);
}

TEST_F(ListGrid, OnlyVisibleRowsArePainted) {
    AddAssignments(500);
    ShowHomeworkMode(*window);
    EXPECT_GE(RowsPainted(), window->RowsVisible);
    EXPECT_LE(RowsPainted(), window->RowsVisible + 1);
    EXPECT_LT(window->picGrid->Drawn().size(), 800U);
}

TEST_F(ListGrid, RowsVisibleFollowTheHeight) {
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->HeaderHeight, 21);
    EXPECT_EQ(window->RowsVisible, (window->picGrid->height() - 21) / 22);
    window->resize(900, 800);
    ASSERT_TRUE(WaitUntil([this] { return window->RowsVisible == (window->picGrid->height() - 21) / 22; }));
    EXPECT_GT(window->RowsVisible, 20);
}

TEST_F(ListGrid, ColumnsFollowTheWidth) {
    ShowHomeworkMode(*window);
    window->resize(1200, 700);
    const auto expected = [this] {
        return PlaceColumns(ColumnsOf(ListKind::Homework), window->picGrid->WidthInUnits())[5].left / 15;
    };
    ASSERT_TRUE(WaitUntil([&] { return window->picColHeader[5]->x() == expected(); }));
    EXPECT_EQ(window->VSGridScroll->geometry(),
              QRect(window->picGrid->width() - 17, 0, 17, window->picGrid->height()));
}

TEST_F(ListGrid, HomeworkIsNamedForItsTermOrItsDay) {
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->LabelTop->text(), "Homework for Fall 2009");
    EXPECT_EQ(window->LabelInfoTitle->text(), "Wednesday, Oct 14");
    window->ComboDateRange->setCurrentText("Day");
    Refresh();
    EXPECT_EQ(window->LabelTop->text(), "Homework for Wednesday, October 14, 2009");
}

TEST_F(ListGrid, HomeworkWithoutATermHasNoName) {
    Store.Term = {};
    ChooseActiveTerm("");
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->LabelTop->text(), "");
    window->ComboDateRange->setCurrentText("Day");
    Refresh();
    EXPECT_EQ(window->LabelTop->text(), "");
}

TEST_F(ListGrid, StudyIsNamedForItsTermOrItsDay) {
    window->MenuCalendar->setChecked(false);
    ShowStudySessionsMode(*window);
    EXPECT_EQ(window->LabelTop->text(), "Study for Fall 2009");
    window->ComboDateRange->setCurrentText("Day");
    Refresh();
    EXPECT_EQ(window->LabelTop->text(), "Study on Wednesday, October 14, 2009");
    Store.Term = {};
    ChooseActiveTerm("");
    Refresh();
    EXPECT_EQ(window->LabelTop->text(), "");
}

TEST_F(ListGrid, TasksAreNamedForTheirRange) {
    ShowTaskMode(*window);
    const std::array<std::pair<const char*, const char*>, 4> names{{
        {"Day", "Tasks for Wednesday, October 14, 2009"},
        {"All", "All Tasks"},
        {"With Date", "All Tasks with Dates"},
        {"Without Date", "All Tasks without Dates"},
    }};
    for (const auto& [range, name] : names) {
        window->ComboDateRange->setCurrentText(range);
        Refresh();
        EXPECT_EQ(window->LabelTop->text(), name);
    }
}

TEST_F(ListGrid, RemindersAndEventsAreNamedForTheDay) {
    ShowEventMode(*window);
    EXPECT_EQ(window->LabelTop->text(), "Events for Wednesday, October 14, 2009");
    window->MenuEvents->setChecked(false);
    ShowReminderMode(*window);
    EXPECT_EQ(window->LabelTop->text(), "Reminders for Wednesday, October 14, 2009");
}

TEST_F(ListGrid, CountersFollowTheFill) {
    AddAssignmentRecord({.time_left = "01 : 30"});
    AddAssignmentRecord({.done = "True"});
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->TextBoxTotalAssignments->text(), "2");
    EXPECT_EQ(window->TextBoxFinishedAssignments->text(), "1");
    EXPECT_EQ(window->TextBoxTimeRemaining->text(), "01:30");
    AddTaskRecord({});
    ShowTaskMode(*window);
    EXPECT_EQ(window->TextBoxTotalTasks->text(), "1");
    AddEventRecord({});
    ShowEventMode(*window);
    EXPECT_EQ(window->TextBoxOtherEvents->text(), "1");
}
