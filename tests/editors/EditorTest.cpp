// The tests of the editors of assignments, tasks and events: a loaded window with a term of two classes, and
// the keys and presses that a student makes in a dialog.
#include "editors/EditorTest.h"

#include "core/DateText.h"
#include "mainwindow/flows/TermFlow.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QRadioButton>

namespace {

int ColorOf(const QWidget* widget, QPalette::ColorRole role) {
    return static_cast<int>(widget->palette().color(QPalette::Active, role).rgb() & 0xFFFFFF);
}

} // namespace

void EditorTest::SetUp() {
    WindowTest::SetUp();
    SetUpLoaded();
}

void EditorTest::SetUpLoaded() {
    LoadWindow();
    Store.Term.id.Add("1");
    Store.Term.name.Add("Fall 2009");
    Store.Term.start.Add("2009/09/01");
    Store.Term.end.Add("2009/12/20");
    AddClassRecord({.id = "4", .name = "Algebra"});
    AddClassRecord({.id = "7", .name = "History"});
    SetActiveTerm(*window, "Fall 2009");
    window->ClickedDate = DateValue("2009/10/20");
}

// The window is active in between, as a dialog that opens twice in a row would not become active again.
void EditorTest::ShowAlone(QDialog& dialog) {
    if (!dialog.isVisible() && QApplication::activeWindow() == nullptr) {
        MainWindow->activateWindow();
        ASSERT_TRUE(WaitUntil([] { return QApplication::activeWindow() == MainWindow; }));
    }
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(WaitUntil([&dialog] { return QApplication::activeWindow() == &dialog; }));
}

void EditorTest::Open(frmAssignment& dialog, const std::string& mode) {
    PrepareEditor(dialog, *window, mode);
    dialog.tempClassNameArray = ActiveClasses.name;
    dialog.tempAssignmentClassLinkArray = ActiveClasses.id;
    dialog.Fill();
    ShowAlone(dialog);
}

void EditorTest::Open(FrmTask& dialog, const std::string& mode) {
    PrepareEditor(dialog, *window, mode);
    dialog.Fill();
    ShowAlone(dialog);
}

void EditorTest::Open(frmEvent& dialog, const std::string& mode) {
    PrepareEditor(dialog, *window, mode);
    dialog.Fill();
    ShowAlone(dialog);
}

void EditorTest::GoTo(QWidget* widget) {
    widget->setFocus(Qt::TabFocusReason);
}

void EditorTest::Type(QComboBox* combo, const QString& text) {
    GoTo(combo);
    combo->lineEdit()->selectAll();
    QTest::keyClick(combo, Qt::Key_Delete);
    QTest::keyClicks(combo, text);
}

void EditorTest::Type(QLineEdit* box, const QString& text) {
    GoTo(box);
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

void EditorTest::Choose(QComboBox* combo, int row) {
    GoTo(combo);
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Home);
    for (int step = 0; step < row; ++step) {
        QTest::keyClick(combo->view(), Qt::Key_Down);
    }
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void EditorTest::Click(QWidget* widget) {
    // Check boxes and radio buttons are hit at their left ends only.
    const QPoint at =
        qobject_cast<QCheckBox*>(widget) != nullptr || qobject_cast<QRadioButton*>(widget) != nullptr
            ? QPoint(6, widget->height() / 2)
            : widget->rect().center();
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
}

void EditorTest::PressCloseBox(QDialog& dialog) {
    QCloseEvent close;
    QSpontaneKeyEvent::setSpontaneous(&close);
    qApp->notify(&dialog, &close);
    if (close.isAccepted()) {
        dialog.hide();
    }
}

void EditorTest::ExpectTopics(const QDialog& dialog,
                              std::initializer_list<std::pair<const char*, int>> numbers) {
    for (const auto& [name, number] : numbers) {
        const auto* control = dialog.findChild<QWidget*>(QLatin1String(name));
        ASSERT_NE(control, nullptr) << name;
        EXPECT_EQ(control->property("helpTopic").toInt(), number) << name;
    }
}

void EditorTest::ToggleByScreenReader(QCheckBox* box) {
    QAccessible::queryAccessibleInterface(box)->actionInterface()->doAction(
        QAccessibleActionInterface::toggleAction());
}

ShownBox EditorTest::Message(const std::string& text) {
    return {"Planovarium", text, Buttons::Ok, Icon::Information};
}

ShownBox EditorTest::Question(const std::string& text, Preset preset) {
    return {"Planovarium", text, Buttons::YesNo, Icon::Information, preset};
}

QWidget* EditorTest::Elsewhere(const QWidget* input) {
    return input->window()->findChild<QPlainTextEdit*>();
}

int BackColorOf(const QWidget* widget) {
    return ColorOf(widget, widget->backgroundRole());
}

int TextColorOf(const QWidget* widget) {
    return ColorOf(widget, QPalette::WindowText);
}

int BoxColorOf(const QLineEdit* box) {
    return ColorOf(box, QPalette::Base);
}
