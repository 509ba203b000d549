// The event editor and its recurrence dialog as the student sees them, compared with the stored pictures.
#include "core/DateText.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "mainwindow/flows/EventFlow.h"
#include "pictures/PictureTest.h"
#include "pictures/Pictures.h"
#include "support/EventRecords.h"

#include <QLineEdit>

namespace {

class DialogPictures : public PictureTest {
protected:
    // Opens the dialog of a new event and acts in it; it is cancelled behind that.
    void InNewEvent(const std::function<void()>& act) {
        window->ClickedDate = DateValue("2009/10/14");
        window->EventClickedStartTime = "2:30 PM";
        WhenDialogOpens([act](QWidget* dialog) {
            act();
            dialog->close();
        });
        NewEvent(*window);
    }

    static void ExpectPicture(QWidget& dialog, const char* name) {
        dialog.activateWindow();
        ASSERT_TRUE(WaitUntil([&dialog] { return dialog.isActiveWindow(); }));
        // Whether the toolkit moves the caret depends on when the window system activates the dialog.
        if (auto* const field = qobject_cast<QLineEdit*>(dialog.focusWidget())) {
            field->end(false);
        }
        ExpectAsStored(QLatin1String(name), dialog.grab().toImage());
    }
};

} // namespace

TEST_F(DialogPictures, OfANewEventAndOfASeriesAreAsStored) {
    InNewEvent([] { ExpectPicture(*EventDialog, "NewEvent"); });
    Store.EventRecord = {};
    AddEventRecord({.date = "2009/10/14",
                    .time = "10:00 AM",
                    .duration = "1.5 Hours",
                    .desc = "Lecture and laboratory",
                    .type = "TermID1-ClassID2",
                    .recurrence = "Day",
                    .repeat_daily = "FFTFTFF",
                    .reminder = "True",
                    .reminder_time = "15 Minutes",
                    .notes = "Room 7\r\nBring the goggles."});
    Script.answers = {Answer::Yes};
    WhenDialogOpens([](QWidget* dialog) {
        ExpectPicture(*dialog, "EditEvent");
        dialog->close();
    });
    EditEvent(*window, 1);
}

TEST_F(DialogPictures, OfEachKindOfRecurrenceAreAsStored) {
    InNewEvent([] {
        WhenDialogOpens([](QWidget* dialog) {
            ExpectPicture(*dialog, "RecurrenceNone");
            RecurrenceDialog->RadioRepeatDaily->click();
            RecurrenceDialog->CheckBoxFriday->click();
            ExpectPicture(*dialog, "RecurrenceDaily");
            RecurrenceDialog->RadioRepeatMonthly->click();
            RecurrenceDialog->CheckboxRepeatEndDate->click();
            ExpectPicture(*dialog, "RecurrenceMonthly");
            RecurrenceDialog->RadioRepeatYearly->click();
            ExpectPicture(*dialog, "RecurrenceYearly");
            dialog->close();
        });
        EventDialog->ButtonOpenRecur->click();
    });
}
