// The flow of a term over files that were cut short or lack a field: what is whole is all that it sees, and
// no homework goes because a class is missing.
#include "mainwindow/flows/TermFlowFixture.h"

namespace {

void AddTerm(const std::string& id, const std::string& name) {
    Store.Term.id.Add(id);
    Store.Term.name.Add(name);
    Store.Term.start.Add("2010/01/11");
    Store.Term.end.Add("2010/05/14");
}

void TakeLast(TextList& list) {
    list.Remove(list.Count());
}

template <class Lists>
void ExpectCounts(const Lists& lists, TextList Lists::*shortList, int count) {
    for (const Field<Lists>& field : FieldTable(lists)) {
        EXPECT_EQ((lists.*field.list).Count(), field.list == shortList ? count - 1 : count) << field.tag;
    }
}

// What the fault box says of the error that the action raises.
std::string FaultOf(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::exception& error) {
        return FaultText(error);
    }
    return "no error";
}

std::string PlaceOf(const std::string& file, const std::string& record, const std::string& field,
                    const std::string& value) {
    return "\n\nFile: " + file + "\nRecord: " + record + "\nField: " + field + "\nValue: \"" + value +
           "\"\n\n";
}

} // namespace

TEST_F(TermFlow, ACutFileOfClassesTakesNoHomeworkAlong) {
    AddAssignment("4", "Sets");
    AddAssignment("7", "Rome");
    StartWithFileCutBefore("classes.xml", "</name>"); // of History, which is 7
    EXPECT_EQ(ActiveClasses.name.values, (std::vector<std::string>{"Algebra"}));
    ChooseAndAct(TermChooser->ButtonEdit, [] { Click(TermDialog->ButtonOK); });
    EXPECT_EQ(Store.Assignment.desc.values, (std::vector<std::string>{"Sets", "Rome"}));
    EXPECT_NE(ReadData("assignments_1.xml").find("Rome"), std::string::npos);
    EXPECT_TRUE(FileWrittenFlags.classes);
    EXPECT_EQ(ReadData("Backup/classes_damaged.xml"), cut);
}

TEST_F(TermFlow, ANewClassTakesNeitherTheIdNorTheHomeworkOfOneThatWasCut) {
    AddAssignment("9", "Rome"); // of a class that was cut off whole
    for (const char* end : {"</name>", "<id>7"}) {
        StartWithFileCutBefore("classes.xml", end);
        ChooseAndAct(TermChooser->ButtonEdit, [] {
            Click(TermDialog->ButtonAddClass);
            Type(TermDialog->TextBoxClassName, "Latin");
            Click(TermDialog->ButtonOKClass);
            Click(TermDialog->ButtonOK);
        });
        EXPECT_EQ(Store.ClassRecord.id.values, (std::vector<std::string>{"4", "10"})) << end;
        EXPECT_EQ(ActiveClasses.name.values, (std::vector<std::string>{"Algebra", "Latin"})) << end;
        Store.ClassRecord.id.Replace(2, "7");
    }
}

TEST_F(TermFlow, ANewClassDoesNotTakeTheIdOfOneThatWasCutThoughNoHomeworkHasIt) {
    StartWithFileCutBefore("classes.xml", "</name>"); // of History, which is 7
    EditAndOk([] { EXPECT_EQ(TermDialog->NextClassID, 8); });
}

TEST_F(TermFlow, HomeworkOfTheGreatestIdLeavesIdsForNewClasses) {
    for (const char* greatest : {"32766", "32767"}) {
        Store.Assignment = {};
        AddAssignment("7", "Rome");
        AddAssignment(greatest, "Verbs");
        LastReads.classes.cutShort = true;
        EditAndOk([] { EXPECT_EQ(TermDialog->NextClassID, 8); });
    }
}

TEST_F(TermFlow, TermsThatWereNotReadKeepTheirClassesAside) {
    WriteTermsAndClasses();
    const std::string classes = ReadData("classes.xml");
    WriteData("terms.xml", "cut");
    Store = {};
    ReadTermsAndClasses();
    SetActiveTerm(*window, "");
    MakeTerm("Spring 2010");
    EXPECT_EQ(ActiveTermName, "Spring 2010");
    EXPECT_EQ(ReadData("Backup/classes_damaged.xml"), classes);
    EXPECT_EQ(ReadData("Backup/terms_damaged.xml"), "cut");
}

TEST_F(TermFlow, ATermThatWasCutDoesNotMergeWithTheOneThatIsSaved) {
    AddTerm("2", "Spring 2010");
    StartWithFileCutBefore("terms.xml", "</name>");
    EditAndOk([] { Type(TermDialog->TextBoxTermName, "Fall"); });
    EXPECT_EQ(Store.Term.id.values, (std::vector<std::string>{"1"}));
    EXPECT_EQ(Store.Term.name.values, (std::vector<std::string>{"Fall"}));
    EXPECT_TRUE(FileWrittenFlags.terms);
    EXPECT_NE(ReadData("terms.xml").find("<name>Fall</name>"), std::string::npos);
    EXPECT_EQ(ReadData("terms.xml").find("<id>2"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/terms_damaged.xml"), cut);
}

TEST_F(TermFlow, HomeworkThatWasCutIsDroppedAsThatOfADeletedClassGoes) {
    AddAssignment("4", "Sets");
    AddAssignment("7", "Rome");
    AddAssignment("7", "Gaul");
    StartWithFileCutBefore("assignments_1.xml", "</type>");
    Script.answers = {Answer::Yes, Answer::Yes};
    EditAndOk([] {
        Click(TermDialog->ButtonEditClass); // Algebra
        Click(TermDialog->ButtonDeleteClass);
    });
    EXPECT_TRUE(FileWrittenFlags.assignments);
    ExpectCounts<AssignmentLists>(Store.Assignment, nullptr, 1);
    EXPECT_EQ(ReadData("assignments_1.xml").find("Sets"), std::string::npos);
    EXPECT_NE(ReadData("assignments_1.xml").find("Rome"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/assignments_1_damaged.xml"), cut);
}

TEST_F(TermFlow, ACutFileOfTermsAloneTakesNoHomeworkAlong) {
    AddTerm("2", "Spring 2010");
    AddClassRecord({.id = "9", .term = "2", .name = "Latin"});
    AddAssignment("9", "Verbs");
    AddAssignment("7", "Rome");
    StartWithFileCutBefore("terms.xml", "<term>"); // between two records, which the reader takes for the end
    EXPECT_TRUE(LastReads.terms.cutShort);
    EXPECT_FALSE(LastReads.classes.cutShort);
    EditAndOk([] {});
    EXPECT_EQ(Store.Assignment.desc.values, (std::vector<std::string>{"Verbs", "Rome"}));
}

TEST_F(TermFlow, ATermThatLacksAFieldIsNone) {
    const PlannerStore whole = Store;
    for (const Field<TermLists>& field : TermFields) {
        SCOPED_TRACE(field.tag);
        Store = whole;
        SetActiveTerm(*window, "Fall 2009");
        AddTerm("1", "Cut");
        TakeLast(Store.Term.*field.list);
        WhenDialogOpens([](QWidget*) {
            EXPECT_EQ(TermChooser->ComboTermList->count(), 1);
            EXPECT_EQ(TermChooser->tempTermIDArray.values, (std::vector<std::string>{"1"}));
            WhenDialogOpens([](QWidget*) {
                EXPECT_EQ(TermDialog->tempTermName, "Fall 2009");
                EXPECT_EQ(TermDialog->tempPreviousTermIDsArray.Count(), 1);
                EXPECT_EQ(TermDialog->tempPreviousTermNamesArray.values,
                          (std::vector<std::string>{"Fall 2009"}));
                Click(TermDialog->ButtonOK);
            });
            Click(TermChooser->ButtonEdit);
        });
        ClassSchedule(*window);
        ExpectCounts(Store.Term, field.list, 2);
    }
}

TEST_F(TermFlow, AClassThatLacksAFieldIsNone) {
    const PlannerStore whole = Store;
    for (const Field<ClassLists>& field : ClassFields) {
        SCOPED_TRACE(field.tag);
        Store = whole;
        SetActiveTerm(*window, "Fall 2009");
        AddClassRecord({.id = "20", .name = "Cut"});
        TakeLast(Store.ClassRecord.*field.list);
        EditAndOk([] {
            EXPECT_EQ(TermDialog->tempClassIDArray.values, (std::vector<std::string>{"4", "7"}));
            EXPECT_EQ(TermDialog->NextClassID, 8);
        });
        ExpectCounts(Store.ClassRecord, field.list, 3);
    }
}

TEST_F(TermFlow, HomeworkThatLacksAFieldIsNone) {
    const PlannerStore whole = Store;
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        SCOPED_TRACE(field.tag);
        for (const bool classesCut : {false, true}) {
            Store = whole;
            SetActiveTerm(*window, "Fall 2009");
            LastReads = {};
            LastReads.classes.cutShort = classesCut;
            AddAssignment("4", "Sets");
            AddAssignment("30", "Cut");
            TakeLast(Store.Assignment.*field.list);
            EXPECT_NO_THROW(EditAndOk([] { EXPECT_EQ(TermDialog->NextClassID, 8); }));
            EXPECT_FALSE(FileWrittenFlags.assignments) << "none has gone";
        }
    }
}

TEST_F(TermFlow, NoHomeworkGoesWhileATermOrAClassLacksAField) {
    const PlannerStore whole = Store;
    for (const bool ofATerm : {true, false}) {
        Store = whole;
        SetActiveTerm(*window, "Fall 2009");
        AddAssignment("99", "Verbs");
        AddAssignment("7", "Rome");
        WriteAssignments();
        FileWrittenFlags = {};
        if (ofATerm) {
            AddTerm("2", "Spring 2010");
            TakeLast(Store.Term.end);
        } else {
            AddClassRecord({.id = "20"});
            TakeLast(Store.ClassRecord.notes);
        }
        EditAndOk([] {});
        EXPECT_NE(ReadData("assignments_1.xml").find("Verbs"), std::string::npos);
        EXPECT_NE(ReadData("assignments_1.xml").find("Rome"), std::string::npos);
    }
}

TEST_F(TermFlow, AColourThatIsNoneIsToldByItsPlaceInTheFileOfClasses) {
    struct Row {
        TextList ClassLists::*list;
        std::string tag;
    };

    for (const Row& row : {Row{&ClassLists::forecolor, "forecolor"}, {&ClassLists::backcolor, "backcolor"}}) {
        for (const std::string value : {"", "pink", "a colour of more than fifteen letters"}) {
            Store.ClassRecord = {};
            AddClassRecord({.id = "3", .term = "2", .name = "Latin"});
            AddClassRecord({.id = "4", .name = "Algebra"});
            AddClassRecord({.id = "7", .name = "History"});
            (Store.ClassRecord.*row.list).Replace(1, value); // of another class, which is not asked for
            (Store.ClassRecord.*row.list).Replace(3, value);
            std::string text;
            Script.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
            ChooseAndAct(TermChooser->ButtonEdit, [&text] {
                Click(TermDialog->ButtonEditClass); // Algebra goes, so History stands elsewhere in the dialog
                Click(TermDialog->ButtonDeleteClass);
                // The signal alone: an error that passes through a button's own code leaves its guard behind.
                text = FaultOf([] { emit TermDialog->ButtonEditClass->clicked(); });
                TermDialog->ButtonCancelClass->click();
                TermDialog->hide();
            });
            EXPECT_NE(text.find(PlaceOf("classes.xml", "3, \"History\"", row.tag, value)), std::string::npos)
                << text;
        }
    }
}

TEST_F(TermFlow, AColourOfTheSecondOfTwoClassesOfOneIdIsToldByItsOwnPlace) {
    Store.ClassRecord = {};
    AddClassRecord({.id = "7", .name = "Algebra"});
    AddClassRecord({.id = "7", .name = "History"});
    Store.ClassRecord.backcolor.Replace(2, "pink");
    std::string text;
    ChooseAndAct(TermChooser->ButtonEdit, [&text] {
        TermDialog->ComboBoxClassList->setCurrentIndex(1);
        text = FaultOf([] { TermDialog->ButtonEditClass->click(); });
        TermDialog->ButtonCancelClass->click();
        TermDialog->hide();
    });
    EXPECT_NE(text.find(PlaceOf("classes.xml", "2, \"History\"", "backcolor", "pink")), std::string::npos)
        << text;
}

TEST_F(TermFlow, ADateThatIsNoneIsToldByItsPlaceInTheFileOfTerms) {
    struct Row {
        TextList TermLists::*list;
        std::string tag;
    };

    for (const Row& row : {Row{&TermLists::start, "start"}, {&TermLists::end, "end"}}) {
        const std::string before = (Store.Term.*row.list).Item(1);
        (Store.Term.*row.list).Replace(1, "someday");
        const std::string text = FaultOf([this] { Choose(TermChooser->ButtonEdit); });
        EXPECT_NE(text.find(PlaceOf("terms.xml", "1, \"Fall 2009\"", row.tag, "someday")), std::string::npos)
            << text;
        (Store.Term.*row.list).Replace(1, before);
    }
}
