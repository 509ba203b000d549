// The keys of every dialog of the editors: each field has one, none has two, and the captions still say the
// same words; F1 and the help button; names for who cannot see.
#include "editors/DialogsFixture.h"
#include "mainwindow/flows/TermFlow.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QWhatsThis>

#include <set>

namespace {

class DialogKeys : public DialogsTest {};

struct Caption {
    const char* control;
    const char* words;
};

// The key that a caption marks, or nothing.
QChar KeyOf(const QString& caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return key.isEmpty() ? QChar() : QChar(key[0].key());
}

// The label or the button that is so called, and what it says.
QString CaptionOf(const QObject* control) {
    return control->property("text").toString();
}

void ExpectCaptions(const QDialog& dialog, std::initializer_list<Caption> captions) {
    for (const auto& [name, words] : captions) {
        const auto* control = dialog.findChild<QWidget*>(QLatin1String(name));
        ASSERT_NE(control, nullptr) << name;
        EXPECT_EQ(WithoutMnemonics(CaptionOf(control)), words) << name;
        EXPECT_EQ(CaptionOf(control).remove(QLatin1Char('&')), words) << name;
    }
}

QLabel* LabelOf(const QDialog& dialog, const QWidget* input) {
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->buddy() == input) {
            return label;
        }
    }
    return nullptr;
}

// What is typed into: the box itself, or that of a combo. Nothing where no text is taken.
QWidget* TypedBoxOf(QWidget* input) {
    const auto* combo = qobject_cast<QComboBox*>(input);
    QWidget* const box = combo != nullptr ? combo->lineEdit() : input;
    const auto* line = qobject_cast<QLineEdit*>(box);
    const bool isOnlyRead = line != nullptr && line->isReadOnly();
    return input->isEnabled() && !isOnlyRead ? box : nullptr;
}

} // namespace

TEST_F(DialogKeys, NoKeyIsMarkedTwiceInADialog) {
    InEach([](const QDialog& dialog) {
        std::set<QChar> keys;
        for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
            const QChar key = KeyOf(CaptionOf(widget));
            if (!key.isNull() && qobject_cast<const QLineEdit*>(widget) == nullptr) {
                EXPECT_TRUE(keys.insert(key).second) << CaptionOf(widget).toStdString();
            }
        }
        EXPECT_GT(keys.size(), 3U);
    });
}

TEST_F(DialogKeys, EveryFieldIsReachedByTheKeyOfItsLabel) {
    InEach([](QDialog& dialog) {
        for (QWidget* input : Inputs(dialog)) {
            const QLabel* label = LabelOf(dialog, input);
            ASSERT_NE(label, nullptr) << input->objectName().toStdString();
            const QChar key = KeyOf(label->text());
            ASSERT_FALSE(key.isNull()) << label->text().toStdString();
            if (input->isEnabled()) {
                QTest::keyClick(&dialog, static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
                EXPECT_EQ(dialog.focusWidget(), input) << label->text().toStdString();
            }
        }
    });
}

TEST_F(DialogKeys, KeysOfButtonsAndTicksPressThem) {
    Open(*AssignmentDialog, "New");
    QTest::keyClick(AssignmentDialog, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(WaitUntil([] { return AssignmentDialog->CheckboxReminder->isChecked(); }));
    AssignmentDialog->hide();
    OpenTerm();
    QTest::keyClick(TermDialog, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(WaitUntil([] { return TermDialog->TextBoxClassName->isEnabled(); }));
}

TEST_F(DialogKeys, CaptionsAreTheToldWordsWithoutTheMarksOfTheKeys) {
    MakeAllDialogs(*window);
    Open(*AssignmentDialog, "New");
    ExpectCaptions(*AssignmentDialog, {{"LabelClass", "Fall 2009 Classes "},
                                       {"LabelDateDue", "Due Date"},
                                       {"CheckBoxPriority", "High Priority"},
                                       {"LabelDescription", "Description"},
                                       {"LabelEstTime", "Estimated Time"},
                                       {"LabelPercentComplete", "% Complete"},
                                       {"LabelTimeLeft", "Time Left"},
                                       {"LabelScore", "Final Score"},
                                       {"LabelTotal", "Total Possible"},
                                       {"LabelPercent", "Percent"},
                                       {"LabelGrade", "Grade"},
                                       {"CheckboxReminder", "Reminder"},
                                       {"LabelRemDate", "Reminder Date"},
                                       {"LabelRemTime", "Reminder Time"},
                                       {"LabelNotes", "Notes"},
                                       {"ButtonCancel", "Cancel"},
                                       {"ButtonDelete", "Delete"}});
    ExpectCaptions(*TaskDialog, {{"LabelDescription", "Description"},
                                 {"LabelDeadline", "Date"},
                                 {"LabelPriority", "Priority"},
                                 {"LabelPercentComplete", "% Complete"},
                                 {"CheckboxReminder", "Reminder"},
                                 {"LabelRemDate", "Reminder Date"},
                                 {"LabelRemTime", "Reminder Time"},
                                 {"LabelNotes", "Notes"},
                                 {"ButtonCancel", "Cancel"},
                                 {"ButtonDelete", "Delete"}});
    ExpectCaptions(*TermDialog, {{"LabelTermName", "Term Name"},
                                 {"LabelTermStart", "Start Date"},
                                 {"LabelTermEnd", "End Date"},
                                 {"LabelClassList", "Class List"},
                                 {"ButtonAddClass", "Add Class"},
                                 {"ButtonEditClass", "Edit Class"},
                                 {"LabelClassName", "Class Name"},
                                 {"LabelCredits", "Credits"},
                                 {"LabelNotes", "Notes"},
                                 {"ButtonCancel", "Cancel"},
                                 {"ButtonDelete", "Delete"},
                                 {"ButtonCancelClass", "Cancel"},
                                 {"ButtonDeleteClass", "Delete"}});
    OpenEvent();
    ExpectCaptions(*EventDialog, {{"LabelEvent", "Description"},
                                  {"LabelDate", "Date"},
                                  {"LabelDuration", "Length"},
                                  {"CheckboxReminder", "Reminder"},
                                  {"LabelRemTime", "Time Before Event"},
                                  {"LabelRecur", "Recurring:"},
                                  {"ButtonOpenRecur", "Change"},
                                  {"LabelNotes", "Notes"},
                                  {"ButtonCancel", "Cancel"},
                                  {"ButtonDelete", "Delete"}});
    ExpectCaptions(*RecurrenceDialog, {{"LabelRecurrence", "Recurrence:"},
                                       {"RadioRepeatNone", "None"},
                                       {"RadioRepeatDaily", "Daily"},
                                       {"RadioRepeatMonthly", "Monthly"},
                                       {"RadioRepeatYearly", "Yearly"},
                                       {"CheckBoxMonday", "Monday"},
                                       {"CheckBoxTuesday", "Tuesday"},
                                       {"CheckBoxWednesday", "Wednesday"},
                                       {"CheckBoxThursday", "Thursday"},
                                       {"CheckBoxFriday", "Friday"},
                                       {"CheckBoxSaturday", "Saturday"},
                                       {"CheckBoxSunday", "Sunday"},
                                       {"RadioMonthlyThisDate", "The 20th of every month"},
                                       {"RadioMonthlyUser", "The Third Tuesday of every month"},
                                       {"RadioYearlyThisDate", "The 20th of every October"},
                                       {"RadioYearlyUser", "The Third Tuesday of every October"},
                                       {"CheckboxRepeatEndDate", "Set End Date"},
                                       {"LabelRepeatEndDate", "No End Date"},
                                       {"ButtonOK", "OK"},
                                       {"ButtonCancel", "Cancel"}});
    EXPECT_EQ(RecurrenceDialog->windowTitle(), "Event Recurrence");
    EXPECT_EQ(TermDialog->GroupClassSchedule->title(), "Class Schedule");
    ExpectCaptions(*TermChooser, {{"LabelTermList", "Term Name"},
                                  {"ButtonActive", "Change the Term"},
                                  {"ButtonEdit", "Edit this Term's Classes"},
                                  {"ButtonNew", "Start a New Term with New Classes"},
                                  {"ButtonCancel", "Cancel"}});
}

TEST_F(DialogKeys, TermsNameMarksNoKeyOfItsOwn) {
    Store.Term.name.Replace(1, "R&D");
    SetActiveTerm(*window, "R&D");
    Open(*AssignmentDialog, "New");
    EXPECT_EQ(WithoutMnemonics(AssignmentDialog->LabelClass->text()), "R&D Classes ");
    EXPECT_EQ(KeyOf(AssignmentDialog->LabelClass->text()), QChar('C'));
    EXPECT_EQ(AssignmentDialog->ComboClassNameList->accessibleName(), "R&D Classes");
}

// Enter presses the default button, which any button becomes that has the focus.
TEST_F(DialogKeys, EnterBelongsToTheButtonThatHasTheFocus) {
    InEach([](QDialog& dialog) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->isEnabled()) {
                GoTo(button);
                EXPECT_TRUE(button->isDefault()) << button->objectName().toStdString();
            }
        }
    });
}

TEST_F(DialogKeys, F1EntersTheWhatsThisMode) {
    InEach([](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_F1);
        EXPECT_EQ(QWhatsThis::inWhatsThisMode(), &dialog != RecurrenceDialog) << "which has no topics";
        QWhatsThis::leaveWhatsThisMode();
    });
}

TEST_F(DialogKeys, EnterOnTheHelpButtonPressesItAndNotOk) {
    InEach([](QDialog& dialog) {
        auto* help = dialog.findChild<QToolButton*>(QStringLiteral("picHelp"));
        if (&dialog == RecurrenceDialog) {
            EXPECT_EQ(help, nullptr) << "it has no topics";
            return;
        }
        GoTo(help);
        QTest::keyClick(help, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
    });
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(DialogKeys, BoxesTakeOnlyWhatTheFilesCanHold) {
    InEach([](QDialog& dialog) {
        for (QWidget* input : Inputs(dialog)) {
            if (QWidget* const box = TypedBoxOf(input)) {
                QMetaObject::invokeMethod(box, "clear");
                QKeyEvent typed(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u4E2D"));
                QCoreApplication::sendEvent(box, &typed);
                EXPECT_EQ(box->property(box->metaObject()->userProperty().name()).toString(), "?")
                    << input->objectName().toStdString();
            }
        }
    });
}

// --- Screen readers ----------------------------------------------------------------------------------------

TEST_F(DialogKeys, EveryControlThatTakesTheFocusHasANameAndARole) {
    InEach([](QDialog& dialog) {
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            const bool taken = widget->isVisible() && widget->focusPolicy() != Qt::NoFocus &&
                               !widget->objectName().startsWith(QLatin1String("qt_")) &&
                               qobject_cast<QComboBox*>(widget->parentWidget()) == nullptr;
            if (!taken) {
                continue;
            }
            const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(spoken, nullptr) << widget->objectName().toStdString();
            EXPECT_FALSE(spoken->text(QAccessible::Name).trimmed().isEmpty())
                << widget->objectName().toStdString();
            EXPECT_NE(spoken->role(), QAccessible::Client) << widget->objectName().toStdString();
            EXPECT_FALSE(spoken->text(QAccessible::Name).contains(QLatin1Char('&')))
                << widget->objectName().toStdString();
        }
    });
}

TEST_F(DialogKeys, DateButtonsAndHelpHaveNamesTipsAndIcons) {
    InEach([](QDialog& dialog) {
        for (const QToolButton* button : dialog.findChildren<QToolButton*>()) {
            EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
            EXPECT_FALSE(button->icon().isNull()) << button->objectName().toStdString();
            EXPECT_TRUE(button->toolTip().startsWith(button->accessibleName()))
                << button->objectName().toStdString();
        }
    });
}
