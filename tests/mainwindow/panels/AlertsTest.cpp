// The alert buttons, and the window behind each.
#include "core/Module1.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/modes/Modes.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"
#include "toolkit/Modal.h"

#include <QPlainTextEdit>

namespace {

class Alerts : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        WriteData("terms.xml", TermsFile({TermText{}}));
        LoadWindow();
    }

    // The clock stands at noon of 2009-10-14.
    void AddHomework(const std::string& date, const std::string& done = "False") {
        AddAssignmentRecord({.date = date, .time_left = "01 : 30", .done = done});
        window->RefreshFor(ReasonNewRecord);
    }

    QStringList Shown() const {
        QStringList captions;
        for (const QPushButton* button : window->ButtonAlert) {
            if (!button->isHidden()) {
                captions.append(button->text());
            }
        }
        return captions;
    }

    // The shown widgets of the left panel that stand one below the other.
    std::vector<const QWidget*> Stack() const {
        std::vector<const QWidget*> shown;
        for (const QWidget* widget : std::initializer_list<const QWidget*>{
                 window->PictureBoxCalendar, window->ButtonNewAssignmentSmall->parentWidget(),
                 window->PictureBoxTerm, window->PictureBoxViewMenus, window->LabelTotalAssignments,
                 window->LabelFinishedAssignments, window->LabelTimeRemaining, window->ButtonAlert[0],
                 window->ButtonAlert[1], window->ButtonAlert[2], window->ButtonAlert[3],
                 window->PictureBoxTimer}) {
            if (widget->isVisible()) {
                shown.push_back(widget);
            }
        }
        return shown;
    }

    struct Message {
        QString title, text;
    };

    // The window that a click on the button opens, closed by its OK button.
    Message Click(std::size_t index) {
        Message message;
        WhenDialogOpens([&message](QWidget* dialog) {
            message = {dialog->windowTitle(),
                       dialog->findChild<QPlainTextEdit*>("TextBoxAlert")->toPlainText()};
            QTest::mouseClick(dialog->findChild<QPushButton*>("ButtonOK"), Qt::LeftButton);
        });
        QTest::mouseClick(window->ButtonAlert[index], Qt::LeftButton);
        return message;
    }
};

} // namespace

TEST_F(Alerts, NoneShowsWithoutHomework) {
    EXPECT_EQ(Shown(), QStringList{});
}

TEST_F(Alerts, HomeworkDueTodayShowsItsButtonAndThatOfStudyTime) {
    AddHomework("2009/10/14");
    EXPECT_EQ(Shown(), (QStringList{"Study Time Alert", "Homework Due Today"}));
}

TEST_F(Alerts, HomeworkDueTomorrowShowsItsButtonAndThatOfStudyTime) {
    AddHomework("2009/10/15");
    EXPECT_EQ(Shown(), (QStringList{"Study Time Alert", "Homework Due Tomorrow"}));
}

TEST_F(Alerts, LateHomeworkShowsItsButtonAlone) {
    AddHomework("2009/10/13");
    EXPECT_EQ(Shown(), QStringList{"Late Assignment"});
}

TEST_F(Alerts, AllFourCanStandAtOnce) {
    for (const char* date : {"2009/10/13", "2009/10/14", "2009/10/15"}) {
        AddHomework(date);
    }
    EXPECT_EQ(Shown(), (QStringList{"Study Time Alert", "Homework Due Tomorrow", "Homework Due Today",
                                    "Late Assignment"}));
}

TEST_F(Alerts, ButtonGoesWhenTheHomeworkIsDone) {
    AddHomework("2009/10/14");
    Store.Assignment.done.Replace(1, "True");
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(Shown(), QStringList{});
}

// What stands in the left panel, from top to bottom, neither overlaps nor is cut.
TEST_F(Alerts, AllFourFitIntoTheSmallestWindowInEachModeOfTheBar) {
    for (const char* date : {"2009/10/13", "2009/10/14", "2009/10/15"}) {
        AddHomework(date);
    }
    ASSERT_EQ(window->size(), QSize(780, 575));
    for (const auto& enter : {&ShowHomeworkMode, &ShowEventMode, &ShowTaskMode, &ShowCalendarMode}) {
        enter(*window);
        QCoreApplication::sendPostedEvents();
        int above = window->PictureBoxCalendar->mapTo(window.get(), QPoint(0, 0)).y();
        for (const QWidget* widget : Stack()) {
            const QPoint corner = widget->mapTo(window.get(), QPoint(0, 0));
            EXPECT_GE(corner.y(), above) << widget->accessibleName().toStdString();
            EXPECT_GE(widget->height(),
                      std::min(widget->minimumSizeHint().height(), widget->maximumHeight()));
            above = corner.y() + widget->height();
        }
        EXPECT_LE(above, window->picStatusBar->mapTo(window.get(), QPoint(0, 0)).y());
    }
    for (const QPushButton* button : window->ButtonAlert) {
        EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + button->iconSize().width(),
                  button->width());
    }
    EXPECT_LE(window->ButtonStart->fontMetrics().horizontalAdvance("Pause"), window->ButtonStart->width());
}

TEST_F(Alerts, StudyTimeMessageNamesTheShortage) {
    AddHomework("2009/10/14");
    const Message message = Click(0);
    EXPECT_EQ(message.title, "Planovarium - Study Time Alert");
    EXPECT_TRUE(message.text.startsWith("You have not scheduled enough Study Time to finish homework due "
                                        "today. You need to schedule at least "
                                        "1 hour and 30 minutes more Study Time today.\n\nStudy Time can be "
                                        "scheduled in Calendar Mode or Event "
                                        "Mode. To schedule Study Time:\n\n- Create a new event\n"))
        << message.text.toStdString();
}

TEST_F(Alerts, DueTomorrowMessage) {
    AddHomework("2009/10/15");
    const Message message = Click(1);
    EXPECT_EQ(message.title, "Planovarium - Homework Due Tomorrow");
    EXPECT_EQ(
        message.text,
        "You have homework due tomorrow.\n\nThe reminder button will disappear when you have finished your "
        "assignments and marked them as 'Done'. To do this:\n\n- Open the assignment\n- Click the 'Done' "
        "checkbox at the bottom\n- Click OK");
}

TEST_F(Alerts, DueTodayMessage) {
    AddHomework("2009/10/14");
    const Message message = Click(2);
    EXPECT_EQ(message.title, "Planovarium - Homework Due Today");
    EXPECT_TRUE(message.text.startsWith("You have homework due today.\n\nRemember to mark"));
}

TEST_F(Alerts, LateMessageHasATitleOfItsOwn) {
    AddHomework("2009/10/13");
    EXPECT_EQ(window->ButtonAlert[3]->text(), "Late Assignment");
    const Message message = Click(3);
    EXPECT_EQ(message.title, "Planovarium - Late Homework");
    EXPECT_TRUE(message.text.startsWith("You have one or more late assignments.\n\n"));
}

TEST_F(Alerts, FirstMessageOpensBesideTheMainWindowAndLaterOnesWhereItWasLeft) {
    AddHomework("2009/10/13");
    window->move(40, 30);
    QPoint first, second;
    WhenDialogOpens([&first](QWidget* dialog) {
        first = dialog->pos();
        dialog->move(333, 222);
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_EQ(first, window->pos() + QPoint(250, 150));
    EXPECT_FALSE(AlertDBFirstOpen);
    WhenDialogOpens([&second](QWidget* dialog) {
        second = dialog->pos();
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_EQ(second, QPoint(333, 222));
}

TEST_F(Alerts, CloseOfTheMessageOnlyHidesIt) {
    AddHomework("2009/10/13");
    WhenDialogOpens([](QWidget* dialog) { EXPECT_FALSE(dialog->close()); });
    ShowAlertMessage(*window, 3);
    EXPECT_TRUE(window->AlertDialog->isHidden());
}

TEST_F(Alerts, MessageIsModalOverTheMainWindow) {
    AddHomework("2009/10/13");
    WhenDialogOpens([this](QWidget* dialog) {
        EXPECT_TRUE(dialog->isModal());
        EXPECT_TRUE(ModalDialogIsOpen());
        EXPECT_EQ(dialog->parentWidget(), window.get());
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_FALSE(ModalDialogIsOpen());
}

TEST_F(Alerts, EscapeHidesTheMessage) {
    AddHomework("2009/10/13");
    WhenDialogOpens([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    ShowAlertMessage(*window, 3);
    EXPECT_TRUE(window->AlertDialog->isHidden());
}

TEST_F(Alerts, GridHasTheFocusAfterTheMessage) {
    AddHomework("2009/10/13");
    window->ButtonSelectTerm->setFocus();
    Click(3);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(Alerts, MessageCannotBeTypedInto) {
    AddHomework("2009/10/13");
    WhenDialogOpens([](QWidget* dialog) {
        auto* text = dialog->findChild<QPlainTextEdit*>("TextBoxAlert");
        EXPECT_TRUE(text->isReadOnly());
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
}
