// The what's-this texts of all windows: whatever the student points at, and whatever has the keys, says what
// it is for.
#include "core/Module1.h"
#include "editors/frmRecurrence.h"
#include "mainwindow/modes/Modes.h"
#include "reminders/frmReminders.h"
#include "support/WindowTest.h"
#include "toolkit/ClickLabel.h"

#include <QApplication>
#include <QDialog>
#include <QWhatsThis>

#include <set>

namespace {

class WhatsThis : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        std::filesystem::copy_file(std::filesystem::path(PLANOVARIUM_SOURCE_DIR) /
                                       "drive/Planovarium/HelpTopics.txt",
                                   drive / "Planovarium" / "HelpTopics.txt");
        WriteData("terms.xml", TermsFile({{}}));
        LoadWindow();
    }
};

bool IsControl(const QWidget* widget) {
    return widget->inherits("QAbstractButton") || widget->inherits("QComboBox") ||
           widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
           widget->inherits("QScrollBar") || widget->inherits("PictureBox") ||
           widget->inherits("ClickLabel") || widget->focusPolicy() != Qt::NoFocus;
}

// The text that the student gets at the widget: its own, or that of what it stands in.
QString TextAt(const QWidget* widget) {
    for (const QWidget* at = widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
        if (!at->whatsThis().isEmpty()) {
            return at->whatsThis();
        }
    }
    return {};
}

QString NameOf(const QWidget* widget) {
    QString name;
    for (const QWidget* at = widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
        name += at->metaObject()->className() + (" \"" + at->objectName() + at->accessibleName() + "\" in ");
    }
    return name + widget->window()->metaObject()->className();
}

// The program's own windows, without menus and the toolkit's helpers.
std::vector<QWidget*> Windows() {
    std::vector<QWidget*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (QLatin1String(widget->metaObject()->className())
                .startsWith(QLatin1String("frm"), Qt::CaseInsensitive)) {
            windows.push_back(widget);
        }
    }
    return windows;
}

std::vector<QWidget*> ControlsOf(const QWidget* window) {
    std::vector<QWidget*> controls;
    for (QWidget* child : window->findChildren<QWidget*>()) {
        if (child->window() == window && IsControl(child)) {
            controls.push_back(child);
        }
    }
    return controls;
}

} // namespace

TEST_F(WhatsThis, EveryControlOfEveryDialogHasAText) {
    MakeAllDialogs(*window);
    std::set<std::string> seen;
    for (const QWidget* dialog : Windows()) {
        if (dialog == window.get()) {
            continue;
        }
        seen.insert(dialog->metaObject()->className());
        for (const QWidget* control : ControlsOf(dialog)) {
            EXPECT_NE(TextAt(control), "") << NameOf(control).toStdString();
        }
    }
    EXPECT_EQ(seen,
              (std::set<std::string>{"FrmTask", "frmAbout", "frmAlert", "frmAssignment", "frmColors",
                                     "frmColorsName", "frmCourseSchedule", "frmEvent", "frmGPA",
                                     "frmRecurrence", "frmReminders", "frmSelectCourseSchedule", "frmTip"}));
}

TEST_F(WhatsThis, EveryControlOfTheMainWindowHasATextInEachMode) {
    for (QPushButton* alert : window->ButtonAlert) {
        alert->show();
    }
    for (const auto& enter : {&ShowCalendarMode, &ShowHomeworkMode, &ShowEventMode, &ShowTaskMode,
                              &ShowStudySessionsMode, &ShowReminderMode}) {
        enter(*window);
        int controls = 0;
        for (const QWidget* control : ControlsOf(window.get())) {
            if (control->isVisible() && !control->inherits("QMenuBar") &&
                !control->parentWidget()->inherits("QMenuBar")) {
                EXPECT_NE(TextAt(control), "")
                    << window->ModeCaption << ": " << NameOf(control).toStdString();
                ++controls;
            }
        }
        EXPECT_GT(controls, 70) << window->ModeCaption;
    }
}

// The toolkit looks for the text in what the control stands in, for the mouse and for the keys.
TEST_F(WhatsThis, KeyShowsTheTextOfWhatAControlStandsIn) {
    window->ButtonSelectTerm->setFocus();
    QTest::keyClick(window->ButtonSelectTerm, Qt::Key_F1, Qt::ShiftModifier);
    const auto shown = [] {
        for (const QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->inherits("QWhatsThat")) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(WaitUntil(shown));
    QWhatsThis::hideText();
}
