// The dialogs of the editors, each opened in turn for the same expectations.
#pragma once

#include "core/DateText.h"
#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"

class DialogsTest : public EditorTest {
protected:
    void OpenTerm() {
        TermDialog->tempTermStart = "2009/09/01";
        TermDialog->tempTermEnd = "2009/12/20";
        TermDialog->tempTermName = "Fall 2009";
        TermDialog->tempClassIDArray.values = {"4", "7"};
        TermDialog->tempClassNameArray.values = {ClassName, "History"};
        TermDialog->tempClassCreditsArray.values = {"3", "3"};
        TermDialog->tempClassForeColorArray.values = {"0", "0"};
        TermDialog->tempClassBackColorArray.values = {"16777215", "16777215"};
        TermDialog->tempClassNotesArray.values = {"", ""};
        PrepareEditor(*TermDialog, *window, "Edit");
        TermDialog->Fill();
        ShowAlone(*TermDialog);
    }

    void OpenChooser() {
        TermChooser->ComboTermList->clear();
        TermChooser->ComboTermList->addItem(FromStore(ClassName));
        TermChooser->ButtonActive->setEnabled(true);
        TermChooser->ButtonEdit->setEnabled(true);
        ShowAlone(*TermChooser);
    }

    void OpenEvent() {
        EventDialog->EventClickedStartTime = "9:00 AM";
        EventDialog->tempEventExceptions.clear();
        EventDialog->tempEventParentID.clear();
        Open(*EventDialog, "New");
    }

    // With the panel of that kind.
    void OpenRecurrence(QRadioButton* kind) {
        EventDialog->tempClickedDate = DateValue("2009/10/20");
        EventDialog->Fill();
        kind->setChecked(true);
        RecurrenceDialog->Prepare();
        ShowAlone(*RecurrenceDialog);
    }

    // Opens each dialog in turn for the expectations.
    void InEach(const std::function<void(QDialog&)>& expect) {
        Open(*AssignmentDialog, "New");
        Expect(*AssignmentDialog, expect);
        Open(*TaskDialog, "New");
        Expect(*TaskDialog, expect);
        OpenTerm();
        TermDialog->ButtonEditClass->click();
        Expect(*TermDialog, expect);
        OpenEvent();
        Expect(*EventDialog, expect);
        OpenRecurrence(RecurrenceDialog->RadioRepeatDaily);
        Expect(*RecurrenceDialog, expect);
        OpenRecurrence(RecurrenceDialog->RadioRepeatMonthly);
        Expect(*RecurrenceDialog, expect);
        OpenChooser();
        Expect(*TermChooser, expect);
    }

    static void Expect(QDialog& dialog, const std::function<void(QDialog&)>& expect) {
        SCOPED_TRACE(dialog.objectName().toStdString());
        QCoreApplication::processEvents();
        expect(dialog);
        dialog.hide();
    }

    static QList<QWidget*> Inputs(const QDialog& dialog) {
        QList<QWidget*> inputs;
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            const bool own = !widget->objectName().startsWith(QLatin1String("qt_"));
            const bool input = qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget) ||
                               qobject_cast<QPlainTextEdit*>(widget);
            if (own && input && qobject_cast<QComboBox*>(widget->parentWidget()) == nullptr) {
                inputs.append(widget);
            }
        }
        return inputs;
    }

    std::string ClassName = "Algebra";
};
