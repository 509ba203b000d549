// The tests of the flow of a term: the chooser and the dialog of a term as a student goes through them.
#pragma once

#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/TermFlow.h"
#include "persistence/modIO.h"

class TermFlow : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        NextTermID = 2;
    }

    // Runs the flow; the student presses one button of the chooser.
    void Choose(QPushButton* button) {
        WhenDialogOpens([button](QWidget*) { Click(button); });
        ClassSchedule(*window);
    }

    // The same, and then acts in the term's dialog.
    void ChooseAndAct(QPushButton* button, const std::function<void()>& act) {
        WhenDialogOpens([button, act](QWidget*) {
            WhenDialogOpens([act](QWidget*) { act(); });
            Click(button);
        });
        ClassSchedule(*window);
    }

    // Writes the term's files, cuts one of them before the last place of the text, and starts anew.
    void StartWithFileCutBefore(const std::string& name, const std::string& text) {
        WriteTermsAndClasses();
        WriteAssignments();
        const std::string whole = ReadData(name);
        cut = whole.substr(0, whole.rfind(text));
        WriteData(name, cut);
        Store = {};
        FileWrittenFlags = {};
        ReadTermsAndClasses();
        SetActiveTerm(*window, "Fall 2009");
    }

    // Acts with the dialog of the active term open, and leaves it by OK.
    void EditAndOk(const std::function<void()>& act) {
        ChooseAndAct(TermChooser->ButtonEdit, [act] {
            act();
            Click(TermDialog->ButtonOK);
        });
    }

    std::string cut;

    // Makes a term of one class by way of the dialogs.
    void MakeTerm(const QString& name) {
        ChooseAndAct(TermChooser->ButtonNew, [name] {
            Type(TermDialog->TextBoxTermName, name);
            Click(TermDialog->ButtonAddClass);
            Type(TermDialog->TextBoxClassName, "Latin");
            Click(TermDialog->ButtonOKClass);
            Click(TermDialog->ButtonOK);
        });
    }

    static void AddAssignment(const std::string& classId, const std::string& desc) {
        AddAssignmentRecord({.class_ = classId, .desc = desc});
    }
};
