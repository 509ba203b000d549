// Over which window a dialog or box opens, and which has the focus when it has closed.
#include "editors/FrmTask.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/WindowFlow.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"
#include "toolkit/Modal.h"

#include <QApplication>
#include <QDialog>

namespace {

class DialogFocus : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
    }

    // As between a box that has gone and the window behind it.
    static void LeaveNoWindowActive() { QApplication::setActiveWindow(nullptr); }
};

} // namespace

TEST_F(DialogFocus, DialogOpensOverTheActiveWindow) {
    EXPECT_EQ(WindowOfNextDialog(), window.get());
}

TEST_F(DialogFocus, BoxThatFollowsAnotherOpensOverTheDialogThatIsOpen) {
    WhenDialogOpens([](QWidget* editor) {
        LeaveNoWindowActive();
        EXPECT_EQ(WindowOfNextDialog(), editor);
        editor->hide();
    });
    NewTask(*window);
}

TEST_F(DialogFocus, BoxBehindAClosingDialogOpensOverTheMainWindow) {
    QDialog closing(window.get());
    closing.show();
    closing.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&closing));
    closing.hide();
    LeaveNoWindowActive();
    EXPECT_EQ(WindowOfNextDialog(), window.get());
}

TEST_F(DialogFocus, BoxBehindAHiddenMainWindowHasNoWindowBehindIt) {
    HideWindows(*window);
    EXPECT_EQ(WindowOfNextDialog(), nullptr);
}

TEST_F(DialogFocus, WindowBehindADialogIsActiveWhenItHasClosed) {
    WhenDialogOpens([](QWidget* editor) {
        LeaveNoWindowActive();
        editor->hide();
    });
    window->picGrid->setFocus();
    NewTask(*window);
    EXPECT_TRUE(WaitUntil([this] { return window->isActiveWindow(); }));
    EXPECT_TRUE(window->picGrid->hasFocus());
}
