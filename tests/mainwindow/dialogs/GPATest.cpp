// frmGPA: the grades of the active term in a window that is only read.
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Shown {
    QString credits, percent, letter, assignments, time;

    friend bool operator==(const Shown&, const Shown&) = default;
};

std::ostream& operator<<(std::ostream& out, const Shown& shown) {
    for (const QString& text : {shown.credits, shown.percent, shown.letter, shown.assignments, shown.time}) {
        out << text.toStdString() << " | ";
    }
    return out;
}

class GPAWindow : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        Store.Term.id.Add("1");
        Store.Term.name.Add("Fall 2009");
        Store.Term.start.Add("2009/08/24");
        Store.Term.end.Add("2009/12/18");
        ChooseActiveTerm("Fall 2009");
    }

    // Algebra with 3 credits at 95 percent, History with 1 credit at 85 percent.
    void AddTwoClasses() {
        AddClassRecord({.id = "1", .name = "Algebra", .credits = "3"});
        AddClassRecord({.id = "2", .name = "History", .credits = "1"});
        AddAssignmentRecord({.class_ = "1", .est_time = "01 : 30", .score = "95", .total = "100"});
        AddAssignmentRecord({.class_ = "2", .est_time = "02 : 00", .score = "17", .total = "20"});
        AddAssignmentRecord({.class_ = "2", .est_time = "00 : 15"});
    }

    void TearDown() override { ResetStore(); }

    void Open() {
        dialog.Fill();
        dialog.show();
    }

    Shown Row() const {
        return {dialog.TextBoxCredits->text(), dialog.TextboxPercent->text(), dialog.TextboxGPA->text(),
                dialog.TextboxAssignments->text(), dialog.TextboxStudyTime->text()};
    }

    QStringList Labels() const {
        return {dialog.LabelCredits->text(), dialog.LabelScore->text(), dialog.LabelGPA->text(),
                dialog.LabelAssignments->text(), dialog.LabelStudyTime->text()};
    }

    QStringList Names() const {
        QStringList names;
        for (int row = 0; row < dialog.ComboClassNameList->count(); ++row) {
            names.append(dialog.ComboClassNameList->itemText(row));
        }
        return names;
    }

    frmGPA dialog{nullptr};
};

} // namespace

TEST_F(GPAWindow, OpensWithTheTotals) {
    AddTwoClasses();
    Open();
    EXPECT_EQ(Names(), (QStringList{"Total", "Algebra", "History"}));
    EXPECT_EQ(dialog.ComboClassNameList->currentIndex(), 0);
    EXPECT_EQ(
        Labels(),
        (QStringList{"Total Credits:", "GPA:", "Letter Grade:", "Total Assignments:", "Total Study Time:"}));
    EXPECT_EQ(Row(), (Shown{"4", "3.75", "B", "3", "03:45"}));
}

TEST_F(GPAWindow, ShowsTheClassThatIsChosen) {
    AddTwoClasses();
    Open();
    dialog.ComboClassNameList->setCurrentIndex(1);
    EXPECT_EQ(Labels(),
              (QStringList{"Credits:", "Average Score:", "Letter Grade:", "Assignments:", "Study Time:"}));
    EXPECT_EQ(Row(), (Shown{"3", "95%", "A", "1", "01:30"}));
    dialog.ComboClassNameList->setCurrentIndex(2);
    EXPECT_EQ(Row(), (Shown{"1", "85%", "B", "2", "02:15"}));
}

TEST_F(GPAWindow, FollowsTheKeysInTheCombo) {
    AddTwoClasses();
    Open();
    QTest::keyClick(dialog.ComboClassNameList, Qt::Key_Down);
    EXPECT_EQ(Row().percent, "95%");
    QTest::keyClick(dialog.ComboClassNameList, Qt::Key_End);
    EXPECT_EQ(Row().percent, "85%");
    QTest::keyClick(dialog.ComboClassNameList, Qt::Key_T);
    EXPECT_EQ(Row().percent, "3.75");
}

TEST_F(GPAWindow, PlusAndMinusChangeTheLettersAndKeepTheRow) {
    AddTwoClasses();
    Store.Assignment.score.Replace(2, "16.2");
    Open();
    dialog.ComboClassNameList->setCurrentIndex(2);
    EXPECT_EQ(Row().letter, "B");
    dialog.CheckBoxChroma->click();
    EXPECT_EQ(dialog.ComboClassNameList->currentIndex(), 2);
    EXPECT_EQ(Row().letter, "B-");
    dialog.CheckBoxChroma->click();
    EXPECT_EQ(dialog.ComboClassNameList->currentIndex(), 2);
    EXPECT_EQ(Row().letter, "B");
}

TEST_F(GPAWindow, BoxIsOffAtFirstAndKeepsItsStateBetweenOpenings) {
    AddTwoClasses();
    EXPECT_FALSE(dialog.CheckBoxChroma->isChecked());
    Open();
    dialog.CheckBoxChroma->click();
    dialog.ComboClassNameList->setCurrentIndex(2);
    dialog.hide();
    Open();
    EXPECT_TRUE(dialog.CheckBoxChroma->isChecked());
    EXPECT_EQ(dialog.ComboClassNameList->currentIndex(), 0);
    EXPECT_EQ(Row(), (Shown{"4", "3.75", "A-", "3", "03:45"}));
}

TEST_F(GPAWindow, SecondOpeningShowsWhatHasChanged) {
    AddTwoClasses();
    Open();
    dialog.hide();
    AddAssignmentRecord({.class_ = "2", .est_time = "10 : 00"});
    Store.ClassRecord.name.Replace(1, "Geometry");
    Open();
    EXPECT_EQ(Names(), (QStringList{"Total", "Geometry", "History"}));
    EXPECT_EQ(Row().time, "13:45");
}

TEST_F(GPAWindow, SecondOpeningHasTheKeysInTheCombo) {
    AddTwoClasses();
    Open();
    EXPECT_EQ(dialog.focusWidget(), dialog.ComboClassNameList);
    dialog.ButtonOK->setFocus();
    dialog.hide();
    Open();
    EXPECT_EQ(dialog.focusWidget(), dialog.ComboClassNameList);
}

TEST_F(GPAWindow, WithoutATermTotalStandsAlone) {
    ResetStore();
    Open();
    EXPECT_EQ(Names(), QStringList{"Total"});
    EXPECT_EQ(Row(), (Shown{"0", "0.00", "0", "0", "00:00"}));
}

TEST_F(GPAWindow, SecondOfTwoClassesOfOneNameShowsTheFirst) {
    AddTwoClasses();
    Store.ClassRecord.name.Replace(2, "Algebra");
    Open();
    dialog.ComboClassNameList->setCurrentIndex(2);
    EXPECT_EQ(Row().percent, "95%");
}

TEST_F(GPAWindow, BadScoreIsTheErrorBeforeAnythingShows) {
    AddTwoClasses();
    Store.Assignment.score.Replace(1, "many");
    EXPECT_THROW(dialog.Fill(), RunTimeError);
}

TEST_F(GPAWindow, NumbersAreOnlyReadAndCanBeCopied) {
    AddTwoClasses();
    Open();
    for (QLineEdit* box : dialog.findChildren<QLineEdit*>()) {
        SCOPED_TRACE(box->objectName().toStdString());
        const QString text = box->text();
        EXPECT_TRUE(box->isReadOnly());
        EXPECT_NE(box->focusPolicy() & Qt::TabFocus, 0);
        QTest::keyClicks(box, "7");
        EXPECT_EQ(box->text(), text);
        box->selectAll();
        EXPECT_EQ(box->selectedText(), text);
    }
}

TEST_F(GPAWindow, LongNameDoesNotWidenIt) {
    AddTwoClasses();
    Open();
    const int width = dialog.minimumSizeHint().width();
    Store.ClassRecord.name.Replace(1, std::string(200, 'W'));
    Open();
    EXPECT_EQ(dialog.minimumSizeHint().width(), width);
}

TEST_F(GPAWindow, OkEscapeAndTheCloseBoxHideIt) {
    Open();
    QTest::mouseClick(dialog.ButtonOK, Qt::LeftButton);
    EXPECT_TRUE(dialog.isHidden());
    Open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isHidden());
    Open();
    EXPECT_FALSE(dialog.close());
    EXPECT_TRUE(dialog.isHidden());
}

TEST_F(GPAWindow, QuestionMarkAsksForTheHelpBook) {
    Open();
    const QSignalSpy asked(&dialog, &frmGPA::HelpAsked);
    dialog.picHelp->click();
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(GPAWindow, CaptionsAreTheToldWords) {
    EXPECT_EQ(dialog.windowTitle(), "Grade Point Average");
    EXPECT_EQ(dialog.LabelClassName->text(), "&Class Name:");
    EXPECT_EQ(dialog.LabelChroma->text().remove('&'), "Calculate with \"+\" and \"-\":");
    EXPECT_EQ(dialog.LabelChroma->buddy(), dialog.CheckBoxChroma);
}
