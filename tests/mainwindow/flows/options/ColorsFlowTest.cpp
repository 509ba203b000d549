// The flow of the colours: what OK changes in the table of the types, in the classes and on the drive, and
// what Cancel leaves.
#include "core/TypeDefaults.h"
#include "customise/ColorsFixture.h"
#include "mainwindow/flows/RunCommand.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frame/Unload.h"
#include "mainwindow/modes/Modes.h"
#include "persistence/modIO.h"

namespace {

class ColorsFlow : public ColorsFixture {
protected:
    void ExpectNoClassRows() const {
        EXPECT_EQ(TypeTable.category.Count(), TypeRows);
        EXPECT_EQ(TypeTable.key.Count(), TypeRows);
        EXPECT_EQ(TypeTable.customname.Count(), TypeRows);
        EXPECT_EQ(TypeTable.forecolor.Count(), TypeRows);
        EXPECT_EQ(TypeTable.backcolor.Count(), TypeRows);
    }
};

} // namespace

TEST_F(ColorsFlow, OkGivesTheTypesTheirColorsAndNames) {
    InDialogAndOk([] {
        ClickTitle(2); // sorts the numbers of the rows alone
        ClickTitle(2);
        ClickRow(1);
        EXPECT_EQ(NameOfRow(1), "Work");
        Choose(ColorsDialog->ButtonTextColor, 0x0000FF);
        Choose(ColorsDialog->ButtonBGColor, 0x112233);
        Rename("Job");
    });
    TypeTableLists expected = DefaultTypes();
    expected.customname.Replace(8, "Job");
    expected.forecolor.Replace(8, "255");
    expected.backcolor.Replace(8, "1122867");
    EXPECT_EQ(TypeTable.category, expected.category);
    EXPECT_EQ(TypeTable.key, expected.key);
    EXPECT_EQ(TypeTable.customname, expected.customname);
    EXPECT_EQ(TypeTable.forecolor, expected.forecolor);
    EXPECT_EQ(TypeTable.backcolor, expected.backcolor);
}

TEST_F(ColorsFlow, TypesReachTheDriveAtTheShutdown) {
    InDialogAndOk([] {
        ClickRow(3);
        Choose(ColorsDialog->ButtonBGColor, 7);
        Rename("Chores");
    });
    EXPECT_FALSE(DataExists("Prefs.ini"));
    Unload(*window);
    const std::string preferences = ReadData("Prefs.ini");
    EXPECT_NE(preferences.find("\nTaskCN_Home=Chores\n"), std::string::npos);
    EXPECT_NE(preferences.find("\nTaskBC_Home=7\n"), std::string::npos);
    EXPECT_EQ(preferences.find("Algebra"), std::string::npos);
}

TEST_F(ColorsFlow, OkGivesTheClassesTheirColorsAndWritesThem) {
    AddClassRecord({.id = "8", .term = "2", .name = "History", .backcolor = "5"});
    InDialogAndOk([] {
        ClickRow(AlgebraRow + 1);
        Choose(ColorsDialog->ButtonTextColor, 255);
        Choose(ColorsDialog->ButtonBGColor, 7);
    });
    EXPECT_EQ(Store.ClassRecord.forecolor.values, (std::vector<std::string>{"0", "255", "0"}));
    EXPECT_EQ(Store.ClassRecord.backcolor.values, (std::vector<std::string>{"16777215", "7", "5"}));
    EXPECT_EQ(ActiveClasses.backcolor.values, (std::vector<std::string>{"16777215", "7"}));
    EXPECT_NE(ReadData("classes.xml").find("<backcolor>7</backcolor>"), std::string::npos);
    EXPECT_TRUE(FileWrittenFlags.terms);
    EXPECT_TRUE(FileWrittenFlags.classes);
    ExpectNoClassRows();
}

TEST_F(ColorsFlow, OkWritesTermsAndClassesAlsoWithoutAChange) {
    InDialogAndOk([] {});
    EXPECT_NE(ReadData("terms.xml").find("Fall 2009"), std::string::npos);
    EXPECT_NE(ReadData("classes.xml").find("Algebra"), std::string::npos);
    ExpectNoClassRows();
}

TEST_F(ColorsFlow, CancelLeavesEverythingAsItWas) {
    InDialog([] {
        Choose(ColorsDialog->ButtonBGColor, 7);
        ClickRow(AlgebraRow);
        Choose(ColorsDialog->ButtonBGColor, 8);
        Script.answers = {Answer::Yes};
        Click(ColorsDialog->ButtonCancel);
    });
    ExpectNoClassRows();
    EXPECT_EQ(TypeTable.backcolor, DefaultTypes().backcolor);
    EXPECT_EQ(Store.ClassRecord.backcolor.Item(1), "16777215");
    EXPECT_FALSE(FileWrittenFlags.terms);
    EXPECT_FALSE(FileWrittenFlags.classes);
}

TEST_F(ColorsFlow, AClassOfThatNameInAnotherTermKeepsItsColors) {
    AddClassRecord({.id = "8", .term = "2", .name = "Music", .backcolor = "5"});
    AddClassRecord({.id = "9", .name = "Music", .backcolor = "6"});
    InDialogAndOk([] {
        ClickRow(AlgebraRow + 2);
        Choose(ColorsDialog->ButtonBGColor, 7);
    });
    EXPECT_EQ(Store.ClassRecord.backcolor.Item(3), "5");
    EXPECT_EQ(Store.ClassRecord.backcolor.Item(4), "7");
}

TEST_F(ColorsFlow, OfTwoClassesOfOneNameTheFirstTakesTheColors) {
    Store.ClassRecord.name.Replace(2, "Algebra");
    InDialogAndOk([] {
        ClickRow(AlgebraRow + 1);
        Choose(ColorsDialog->ButtonBGColor, 7);
    });
    EXPECT_EQ(Store.ClassRecord.backcolor.values, (std::vector<std::string>{"7", "16777215"}));
}

TEST_F(ColorsFlow, AColorThatIsNoneIsPutRightByOk) {
    TypeTable.backcolor.Replace(17, "orange");
    InDialog([] { Click(ColorsDialog->ButtonCancel); });
    EXPECT_EQ(TypeTable.backcolor.Item(17), "orange");
    InDialogAndOk([] {});
    EXPECT_EQ(TypeTable.backcolor.Item(17), "55807");
}

TEST_F(ColorsFlow, TheListShowsTheNewColorsAtOnce) {
    AddTaskRecord({.desc = "Dishes", .type = "Home"});
    ShowTaskMode(*window);
    InDialogAndOk([] {
        ClickRow(3);
        Choose(ColorsDialog->ButtonBGColor, 0x112233);
        Rename("Chores");
    });
    EXPECT_TRUE(DrawnTexts(*window->picGrid).contains("Chores "));
    EXPECT_TRUE(std::ranges::any_of(window->picGrid->Drawn(), [](const DrawnItem& item) {
        return item.kind == DrawnKind::Rectangle && item.color == 0x112233;
    }));
    EXPECT_EQ(window->RefreshReason, "None");
}

TEST_F(ColorsFlow, ACutFileOfClassesLosesItsUnfinishedRecordBefore) {
    WriteTermsAndClasses();
    const std::string whole = ReadData("classes.xml");
    const std::string cut = whole.substr(0, whole.rfind("</name>")); // of History
    WriteData("classes.xml", cut);
    Store = {};
    FileWrittenFlags = {};
    ReadTermsAndClasses();
    SetActiveTerm(*window, "Fall 2009");
    InDialogAndOk([] {
        EXPECT_EQ(ColorsDialog->RowCount, TypeRows + 1);
        ClickRow(AlgebraRow);
        Choose(ColorsDialog->ButtonBGColor, 7);
    });
    EXPECT_EQ(Store.ClassRecord.id.values, std::vector<std::string>{"4"});
    EXPECT_NE(ReadData("classes.xml").find("<backcolor>7</backcolor>"), std::string::npos);
    EXPECT_EQ(ReadData("classes.xml").find("<id>7</id>"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/classes_damaged.xml"), cut);
}

TEST_F(ColorsFlow, ACutFileOfTermsLosesItsUnfinishedRecordBefore) {
    WriteTermsAndClasses();
    const std::string whole = TermsFile({{}, {.id = 3, .name = "Winter 2010"}});
    const std::string cut = whole.substr(0, whole.rfind("</name>")); // of the winter
    WriteData("terms.xml", cut);
    Store = {};
    FileWrittenFlags = {};
    ReadTermsAndClasses();
    SetActiveTerm(*window, "Fall 2009");
    InDialogAndOk([] {
        ClickRow(AlgebraRow);
        Choose(ColorsDialog->ButtonBGColor, 7);
    });
    EXPECT_EQ(Store.Term.id.values, std::vector<std::string>{"1"});
    EXPECT_EQ(ReadData("terms.xml").find("<id>3</id>"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/terms_damaged.xml"), cut);
}

// A type of a category that is a class's would be there after an error in the dialog's flow.
TEST_F(ColorsFlow, ClassesThatStandAmongTheTypesGoBeforeThoseOfTheTermCome) {
    TypeTable.category.Add("Class");
    TypeTable.key.Add("Latin");
    TypeTable.customname.Add("");
    TypeTable.forecolor.Add("0");
    TypeTable.backcolor.Add("0");
    InDialogAndOk([] {
        EXPECT_EQ(ColorsDialog->RowCount, TypeRows + 2);
        EXPECT_EQ(NameOfRow(AlgebraRow), "Algebra");
    });
    ExpectNoClassRows();
}

TEST_F(ColorsFlow, AFileThatCannotBeWrittenIsReported) {
    std::filesystem::create_directories(data / "classes.xml.tmp" / "in the way");
    InDialogAndOk([] {});
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_FALSE(FileWrittenFlags.classes);
}

TEST_F(ColorsFlow, ShutdownWhileTheDialogsAreOpenWritesNothing) {
    InDialog([this] {
        ClickRow(3);
        Choose(ColorsDialog->ButtonBGColor, 7);
        WhenDialogOpens([this](QWidget*) {
            Type(ColorsNameDialog->TextBoxCustomName, "Chores");
            Unload(*window);
        });
        Click(ColorsDialog->ButtonName);
    });
    EXPECT_FALSE(FileWrittenFlags.classes);
    EXPECT_EQ(ReadData("classes.xml").find("Algebra"), std::string::npos);
    EXPECT_NE(ReadData("Prefs.ini").find("\nTaskCN_Home=\n"), std::string::npos);
    EXPECT_NE(ReadData("Prefs.ini").find("\nTaskBC_Home=13035519\n"), std::string::npos);
    ExpectNoClassRows();
}

TEST_F(ColorsFlow, TheMenuAndThePopupsOpenIt) {
    for (const auto& open : std::vector<std::function<void()>>{
             [this] { window->MenuColors->trigger(); },
             [this] { RunPopupItem(*window, "homework custom"); },
             [this] { RunPopupItem(*window, "task custom"); },
             [this] { RunPopupItem(*window, "event custom"); },
         }) {
        bool opened = false;
        WhenDialogOpens([&opened](QWidget* shown) {
            opened = shown == ColorsDialog;
            Click(ColorsDialog->ButtonCancel);
        });
        open();
        EXPECT_TRUE(opened);
    }
}
