// The dialog of a term, opened for a new term or on a saved one with two classes.
#pragma once

#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"

class TermEditor : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        dialog = TermDialog;
    }

    void Show(const std::string& mode) {
        PrepareEditor(*dialog, *window, mode);
        dialog->Fill();
        ShowAlone(*dialog);
    }

    void OpenNew() {
        for (TextList* list :
             {&dialog->tempClassIDArray, &dialog->tempClassTermLinkArray, &dialog->tempClassNameArray,
              &dialog->tempClassCreditsArray, &dialog->tempClassForeColorArray,
              &dialog->tempClassBackColorArray, &dialog->tempClassNotesArray}) {
            list->Clear();
        }
        dialog->tempPreviousTermNamesArray.values = {"Fall 2009"};
        dialog->NextClassID = 8;
        Show("New");
    }

    // A saved term of two classes and a deleted one between them.
    void OpenEdit() {
        dialog->tempTermName = "Fall 2009";
        dialog->tempTermStart = "2009/09/01";
        dialog->tempTermEnd = "2009/12/20";
        dialog->tempClassIDArray.values = {"4", "5", "7"};
        dialog->tempClassTermLinkArray.values = {"1", "1", "1"};
        dialog->tempClassNameArray.values = {"Algebra", "DELETED RECORD", "History"};
        dialog->tempClassCreditsArray.values = {"3", "1", "2"};
        dialog->tempClassForeColorArray.values = {"0", "0", "255"};
        dialog->tempClassBackColorArray.values = {"16777215", "16777215", "65280"};
        dialog->tempClassNotesArray.values = {"", "", "Room 12\r\nMondays"};
        dialog->tempPreviousTermNamesArray.values = {"Fall 2009", "Spring 2010"};
        dialog->ThisTermsPreviousName = "Fall 2009";
        dialog->NextClassID = 8;
        Show("Edit");
    }

    void AddClass(const QString& name) {
        Click(dialog->ButtonAddClass);
        Type(dialog->TextBoxClassName, name);
        Click(dialog->ButtonOKClass);
    }

    void OpenClass(int row) {
        dialog->ComboBoxClassList->setCurrentIndex(row);
        Click(dialog->ButtonEditClass);
    }

    QStringList ClassRows() const {
        QStringList rows;
        for (int row = 0; row < dialog->ComboBoxClassList->count(); ++row) {
            rows.append(dialog->ComboBoxClassList->itemText(row));
        }
        return rows;
    }

    bool PanelIsOpen() const { return dialog->TextBoxClassName->isEnabled(); }

    frmCourseSchedule* dialog = nullptr;
};
