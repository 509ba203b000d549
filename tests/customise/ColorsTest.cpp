// frmColors: the list of types and classes, and what its buttons do with the selected row.
#include "customise/ColorsFixture.h"

#include <QWheelEvent>

namespace {

class Colors : public ColorsFixture {
protected:
    static QString TitleText(int column) {
        return DrawnTexts(*ColorsDialog->picColHeader[static_cast<std::size_t>(column)]).value(0);
    }

    // The columns that have an arrow, with its picture.
    static QStringList Arrows() {
        QStringList arrows;
        for (std::size_t column = 0; column < ColorsDialog->picColHeader.size(); ++column) {
            for (const DrawnItem& item : ColorsDialog->picColHeader[column]->Drawn()) {
                if (item.kind == DrawnKind::Picture && item.text != "picStashGridTitle.svg") {
                    arrows.append(QString::number(column) + " " + item.text);
                }
            }
        }
        return arrows;
    }

    // The colour of the ground and of the text of a cell that is painted.
    static std::pair<int, int> PaintedColors(int number) {
        const int top = RowTop(PlaceOfRow(number, ColorsDialog->FirstRow)) + UnitsPerPixel;
        std::pair<int, int> colors{-1, -1};
        for (const DrawnItem& item : ColorsDialog->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Rectangle && item.top == top) {
                colors.second = item.color;
            }
            if (item.kind == DrawnKind::Text && item.text == NameOfRow(number) && item.top > top &&
                item.top < top + RowUnits) {
                colors.first = item.color;
            }
        }
        return colors;
    }

    static bool IsFramed(int number) {
        const int top = RowTop(PlaceOfRow(number, ColorsDialog->FirstRow));
        return std::ranges::any_of(ColorsDialog->picGrid->Drawn(), [top](const DrawnItem& item) {
            return item.kind == DrawnKind::Frame && item.top == top;
        });
    }

    static QStringList Cells(int number) {
        QStringList texts;
        for (const GridCell& cell : ColorsDialog->ListRow(number).cells) {
            texts.append(cell.text);
        }
        return texts;
    }

    static void Leave() { Click(ColorsDialog->ButtonCancel); }
};

} // namespace

// --- The list ----------------------------------------------------------------------------------------------

TEST_F(Colors, ListHoldsTasksEventsAndTheClassesOfTheTerm) {
    AddClassRecord({.id = "8", .term = "2", .name = "Of another term"});
    AddClassRecord({.id = "9", .name = "DELETED RECORD"});
    TypeTable.customname.Replace(3, "Chores");
    InDialog([] {
        EXPECT_EQ(ColorsDialog->windowTitle(), "Planovarium - Colors and Names");
        EXPECT_EQ(ColorsDialog->LabelDescription->text(),
                  "Select a Default Name to customize the name or color.");
        EXPECT_EQ((QStringList{TitleText(0), TitleText(1), TitleText(2), TitleText(3)}),
                  (QStringList{"#", "Type", "Default Name", "Custom Name"}));
        EXPECT_EQ(ColorsDialog->RowCount, TypeRows + 2);
        EXPECT_EQ(Cells(1), (QStringList{"Task", "School", ""}));
        EXPECT_EQ(Cells(3), (QStringList{"Task", "Home", "Chores"}));
        EXPECT_EQ(Cells(StudyTimeRow), (QStringList{"Event", "Study Time", "Study Time"}));
        EXPECT_EQ(Cells(AlgebraRow), (QStringList{"Class", "Algebra", ""}));
        EXPECT_EQ(Cells(AlgebraRow + 1), (QStringList{"Class", "History", ""}));
        Leave();
    });
}

TEST_F(Colors, WithoutATermThereAreNoClasses) {
    Store.Term = {};
    ChooseActiveTerm("");
    InDialog([] {
        EXPECT_EQ(ColorsDialog->RowCount, TypeRows);
        Leave();
    });
}

TEST_F(Colors, RowsArePaintedInTheirColors) {
    Store.ClassRecord.forecolor.Replace(1, "255");
    Store.ClassRecord.backcolor.Replace(1, "65280");
    InDialog([] {
        EXPECT_EQ(PaintedColors(1), std::pair(0, 0xA3C4DE));
        ShowRow(*ColorsDialog, AlgebraRow);
        EXPECT_EQ(PaintedColors(AlgebraRow), std::pair(0x0000FF, 0x00FF00));
        Leave();
    });
}

TEST_F(Colors, OpensUnsortedOnTheFirstRowEachTime) {
    for (int opening = 1; opening <= 2; ++opening) {
        SCOPED_TRACE(opening);
        InDialog([] {
            EXPECT_EQ(Arrows(), QStringList{});
            EXPECT_EQ(ColorsDialog->SortDirection, Ascending);
            EXPECT_EQ(ColorsDialog->CurrentRow, 1);
            EXPECT_EQ(ColorsDialog->FirstRow, 1);
            EXPECT_EQ(NameOfRow(1), "School");
            EXPECT_TRUE(IsFramed(1));
            EXPECT_EQ(ColorsDialog->focusWidget(), ColorsDialog->picGrid);
            EXPECT_FALSE(ColorsDialog->ChangeFlag);
            EXPECT_FALSE(ColorsDialog->CancelledFlag) << "of the last opening";
            ClickTitle(2);
            ClickTitle(2);
            ClickRow(20);
            EXPECT_GT(ColorsDialog->FirstRow, 1);
            Choose(ColorsDialog->ButtonBGColor, 7);
            Script.answers = {Answer::Yes};
            Leave();
        });
    }
}

TEST_F(Colors, OpensBesideTheCornerAndThenWhereItWasLeft) {
    QPoint left;
    InDialog([&] {
        EXPECT_EQ(ColorsDialog->pos(), window->pos() + QPoint(150, 115));
        ColorsDialog->move(31, 42);
        left = ColorsDialog->pos();
        Leave();
    });
    InDialog([&] {
        EXPECT_EQ(ColorsDialog->pos(), left);
        Leave();
    });
}

TEST_F(Colors, AClickSelectsAndOneRowStaysSelected) {
    InDialog([] {
        ClickRow(4);
        EXPECT_EQ(ColorsDialog->CurrentRow, 4);
        EXPECT_TRUE(IsFramed(4));
        EXPECT_FALSE(IsFramed(1));
        ClickRow(5, Qt::RightButton);
        EXPECT_EQ(ColorsDialog->CurrentRow, 5) << "there is no menu";
        ColorsDialog->resize(ColorsDialog->width(), 1000);
        QCoreApplication::processEvents();
        QTest::mouseClick(ColorsDialog->picGrid, Qt::LeftButton, {},
                          QPoint(200, ColorsDialog->picGrid->height() - 5)); // past the rows
        EXPECT_EQ(ColorsDialog->CurrentRow, 5);
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Leave();
    });
}

TEST_F(Colors, KeysSelectAndEnterIsOk) {
    InDialog([] {
        QTest::keyClick(ColorsDialog->picGrid, Qt::Key_Down);
        EXPECT_EQ(ColorsDialog->CurrentRow, 2);
        QTest::keyClick(ColorsDialog->picGrid, Qt::Key_End);
        EXPECT_EQ(ColorsDialog->CurrentRow, TypeRows + 2);
        Choose(ColorsDialog->ButtonBGColor, 7);
        GoTo(ColorsDialog->picGrid); // the button had become the one that Enter presses
        QTest::keyClick(ColorsDialog->picGrid, Qt::Key_Return);
    });
    EXPECT_FALSE(ColorsDialog->CancelledFlag);
    EXPECT_EQ(Store.ClassRecord.backcolor.Item(2), "7");
}

TEST_F(Colors, TitlesSortAndTurnTheOrder) {
    InDialog([] {
        ClickTitle(0);
        EXPECT_EQ(Arrows(), QStringList{}) << "the number does not sort";
        ClickTitle(2);
        EXPECT_EQ(Arrows(), QStringList{"2 picStashGridTitleUp.svg"});
        EXPECT_EQ(NameOfRow(1), "Algebra");
        ClickTitle(2);
        EXPECT_EQ(Arrows(), QStringList{"2 picStashGridTitleDown.svg"});
        EXPECT_EQ(NameOfRow(1), "Work");
        ClickTitle(1);
        EXPECT_EQ(Arrows(), QStringList{"1 picStashGridTitleDown.svg"}) << "the direction stays";
        EXPECT_EQ(Cells(1).front(), "Task");
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Leave();
    });
}

TEST_F(Colors, SortingKeepsTheSelectedTypeSelectedAndInView) {
    InDialog([] {
        ClickRow(11); // Custom1 of the tasks
        ClickTitle(2);
        ClickTitle(2);
        EXPECT_EQ(NameOfRow(ColorsDialog->CurrentRow), "Custom1");
        EXPECT_EQ(Cells(ColorsDialog->CurrentRow).front(), "Task");
        EXPECT_GE(ColorsDialog->CurrentRow, ColorsDialog->FirstRow);
        EXPECT_LT(ColorsDialog->CurrentRow, ColorsDialog->FirstRow + ColorsDialog->RowsVisible);
        EXPECT_GT(ColorsDialog->FirstRow, 1);
        EXPECT_TRUE(IsFramed(ColorsDialog->CurrentRow));
        Choose(ColorsDialog->ButtonBGColor, 7); // and is what the buttons act on
        EXPECT_EQ(ColorsDialog->tempColorsBackColorArray.Item(11), 7);
        Script.answers = {Answer::Yes};
        Leave();
    });
}

TEST_F(Colors, TheWheelScrollsThreeRowsAndKeepsTheSelection) {
    InDialog([] {
        const QPointF place = ColorsDialog->picGrid->rect().center();
        QWheelEvent turn(place, ColorsDialog->picGrid->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(ColorsDialog->picGrid, &turn);
        EXPECT_EQ(ColorsDialog->FirstRow, 4);
        EXPECT_EQ(ColorsDialog->CurrentRow, 1);
        ColorsDialog->VSGridScroll->setValue(2);
        EXPECT_EQ(ColorsDialog->FirstRow, 2);
        Leave();
    });
}

TEST_F(Colors, LongNamesAreCutAndWholeInTheDialogOfTheName) {
    int width = 0;
    InDialog([&width] {
        width = ColorsDialog->sizeHint().width();
        Leave();
    });
    const std::string name(200, 'W');
    TypeTable.customname.Replace(1, name);
    Store.ClassRecord.name.Replace(1, name);
    InDialog([&] {
        EXPECT_EQ(ColorsDialog->sizeHint().width(), width);
        for (const QString& text : DrawnTexts(*ColorsDialog->picGrid)) {
            EXPECT_LT(text.size(), 60);
        }
        WhenDialogOpens([&name](QWidget*) {
            EXPECT_EQ(TextOf(ColorsNameDialog->TextBoxCustomName), name);
            Click(ColorsNameDialog->ButtonCancel);
        });
        Click(ColorsDialog->ButtonName);
        Leave();
    });
}

// --- Colours -----------------------------------------------------------------------------------------------

TEST_F(Colors, ButtonsOpenTheColorDialogOnTheColorOfTheRow) {
    InDialog([] {
        ClickRow(3);
        Choose(ColorsDialog->ButtonTextColor, 0x123456);
        Choose(ColorsDialog->ButtonBGColor, 0x654321);
        EXPECT_EQ(Script.colorDialogs[0].color, 0);
        EXPECT_EQ(Script.colorDialogs[1].color, 0xC6E7FF);
        EXPECT_EQ(PaintedColors(3), std::pair(0x123456, 0x654321));
        EXPECT_EQ(PaintedColors(2), std::pair(0, 0x9797F9));
        EXPECT_TRUE(ColorsDialog->ChangeFlag);
        Click(ColorsDialog->ButtonTextColor);
        EXPECT_EQ(Script.colorDialogs[2].color, 0x123456);
        Script.answers = {Answer::Yes};
        Leave();
    });
}

TEST_F(Colors, ACancelledColorChangesNothing) {
    InDialog([] {
        Click(ColorsDialog->ButtonTextColor);
        Click(ColorsDialog->ButtonBGColor);
        EXPECT_EQ(PaintedColors(1), std::pair(0, 0xA3C4DE));
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Leave();
    });
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(Colors, CustomColorsStayBetweenOpenings) {
    CustomColors mixed = NoCustomColors;
    mixed[15] = 0x112233;
    Script.customColors = mixed;
    InDialog([] {
        Click(ColorsDialog->ButtonTextColor); // cancelled, and they stay all the same
        Leave();
    });
    InDialog([] {
        Click(ColorsDialog->ButtonBGColor);
        Leave();
    });
    ASSERT_EQ(Script.colorDialogs.size(), 2U);
    EXPECT_EQ(Script.colorDialogs[0].custom, NoCustomColors);
    EXPECT_EQ(Script.colorDialogs[1].custom, mixed);
}

// --- Names -------------------------------------------------------------------------------------------------

TEST_F(Colors, TheNameIsAskedForAndStored) {
    InDialog([this] {
        ClickRow(3);
        WhenDialogOpens([this](QWidget* shown) {
            EXPECT_EQ(shown, ColorsNameDialog);
            EXPECT_EQ(shown->pos(), window->pos() + QPoint(250, 50));
            EXPECT_EQ(ColorsNameDialog->TextBoxDefaultName->text(), "Home");
            EXPECT_EQ(ColorsNameDialog->TextBoxCustomName->text(), "");
            Type(ColorsNameDialog->TextBoxCustomName, " Chores ");
            Click(ColorsNameDialog->ButtonOK);
        });
        Click(ColorsDialog->ButtonName);
        EXPECT_EQ(Cells(3), (QStringList{"Task", "Home", "Chores"}));
        EXPECT_TRUE(DrawnTexts(*ColorsDialog->picGrid).contains("Chores"));
        EXPECT_TRUE(ColorsDialog->ChangeFlag);
        Rename("");
        EXPECT_EQ(Cells(3), (QStringList{"Task", "Home", ""}));
        Rename("Work");
        EXPECT_EQ(Cells(3)[2], "Work") << "that of another type is allowed";
        Script.answers = {Answer::Yes};
        Leave();
    });
}

TEST_F(Colors, OkWithoutTypingIsAChangeAndCancelIsNone) {
    InDialog([] {
        WhenDialogOpens([](QWidget*) { Click(ColorsNameDialog->ButtonCancel); });
        Click(ColorsDialog->ButtonName);
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        WhenDialogOpens([](QWidget*) { Click(ColorsNameDialog->ButtonOK); });
        Click(ColorsDialog->ButtonName);
        EXPECT_TRUE(ColorsDialog->ChangeFlag);
        EXPECT_EQ(Cells(1)[2], "");
        Script.answers = {Answer::Yes};
        Leave();
    });
}

TEST_F(Colors, ACancelledNameIsNotTaken) {
    InDialog([] {
        WhenDialogOpens([](QWidget*) {
            Type(ColorsNameDialog->TextBoxCustomName, "Chores");
            Script.answers = {Answer::Yes};
            Click(ColorsNameDialog->ButtonCancel);
        });
        Click(ColorsDialog->ButtonName);
        EXPECT_EQ(Cells(1)[2], "");
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Leave();
    });
}

TEST_F(Colors, ClassesAndStudyTimeKeepTheirNames) {
    InDialog([] {
        ClickRow(AlgebraRow);
        Click(ColorsDialog->ButtonName);
        ClickRow(StudyTimeRow);
        Click(ColorsDialog->ButtonName);
        EXPECT_EQ(Script.boxes,
                  (std::vector{Message("To change a class name, use the 'Class Schedule' feature."),
                               Message("'Study Time' is a special event name that can't be changed.")}));
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Choose(ColorsDialog->ButtonTextColor, 5);
        EXPECT_EQ(ColorsDialog->tempColorsForeColorArray.Item(StudyTimeRow), 5) << "but not its colours";
        Script.answers = {Answer::Yes};
        Leave();
    });
}

TEST_F(Colors, TheTypesCalledClassAreNoClasses) {
    InDialog([] {
        ClickRow(2); // of the tasks
        Rename("Lessons");
        EXPECT_EQ(Cells(2), (QStringList{"Task", "Class", "Lessons"}));
        EXPECT_TRUE(Script.boxes.empty());
        Script.answers = {Answer::Yes};
        Leave();
    });
}

// --- Restoring and closing ---------------------------------------------------------------------------------

TEST_F(Colors, RestoringAsksAndLeavesTheClasses) {
    InDialog([] {
        Choose(ColorsDialog->ButtonBGColor, 7);
        Rename("Mine");
        ClickRow(AlgebraRow);
        Choose(ColorsDialog->ButtonBGColor, 8);
        ClickRow(1);
        Script.answers = {Answer::No};
        Click(ColorsDialog->ButtonRestore);
        EXPECT_EQ(PaintedColors(1), std::pair(0, 7));
        Script.answers = {Answer::Yes};
        Click(ColorsDialog->ButtonRestore);
        EXPECT_EQ(PaintedColors(1), std::pair(0, 0xA3C4DE));
        EXPECT_EQ(Cells(1)[2], "");
        EXPECT_EQ(ColorsDialog->tempColorsBackColorArray.Item(AlgebraRow), 8);
        Script.answers = {Answer::Yes};
        Leave();
    });
    EXPECT_EQ(Script.boxes, (std::vector{Question("Are you sure you want to restore the default colors for "
                                                  "Tasks and Events?"),
                                         Question("Are you sure you want to restore the default colors for "
                                                  "Tasks and Events?"),
                                         Question("Cancel all changes?")}));
}

TEST_F(Colors, RestoringIsAChangeOnlyOnYes) {
    InDialog([] {
        Script.answers = {Answer::No};
        Click(ColorsDialog->ButtonRestore);
        EXPECT_FALSE(ColorsDialog->ChangeFlag);
        Script.answers = {Answer::Yes, Answer::Yes};
        Click(ColorsDialog->ButtonRestore);
        EXPECT_TRUE(ColorsDialog->ChangeFlag);
        Leave();
    });
}

TEST_F(Colors, CancelEscapeAndTheCloseBoxAskOnlyAfterAChange) {
    const std::vector<std::function<void()>> ways{
        [] { Leave(); },
        [] { QTest::keyClick(ColorsDialog->picGrid, Qt::Key_Escape); },
        [] { PressCloseBox(*ColorsDialog); },
    };
    for (const auto& leave : ways) {
        Script.boxes.clear();
        InDialog(leave);
        EXPECT_TRUE(ColorsDialog->CancelledFlag);
        EXPECT_TRUE(Script.boxes.empty());
        InDialog([&leave] {
            Choose(ColorsDialog->ButtonTextColor, 9);
            Script.answers = {Answer::No};
            leave();
            EXPECT_TRUE(ColorsDialog->isVisible());
            Script.answers = {Answer::Yes};
            leave();
        });
        EXPECT_TRUE(ColorsDialog->CancelledFlag);
        EXPECT_EQ(Script.boxes, std::vector(2, Question("Cancel all changes?")));
    }
}

TEST_F(Colors, QuestionMarkOpensTheHelpBook) {
    InDialog([] {
        Click(ColorsDialog->picHelp);
        Leave();
    });
    ASSERT_EQ(Script.processes.size(), 1U);
    EXPECT_EQ(Script.processes[0].arguments, std::vector<std::string>{HelpFile.string()});
}
