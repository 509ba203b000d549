// The answers of the toolkit's message boxes: which button Enter presses, and which one Escape.
#include "platform/MessageBoxes.h"

#include "support/ChildProcess.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

struct Box {
    Buttons buttons;
    Preset preset;
};

// The answer that the box gives to the key.
Answer AnswerTo(Qt::Key key, const Box& shown) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [key] {
        if (QWidget* box = QApplication::activeModalWidget()) {
            QWidget* target = box->focusWidget() != nullptr ? box->focusWidget() : box;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(target, &press);
        }
    });
    poll.start(1);
    return MsgBox("Now?", shown.buttons, Icon::Information, BoxTitle, shown.preset);
}

// Each in a process of its own, with an application of the toolkit.
bool Answers(Qt::Key key, const Box& shown, Answer expected) {
    return SucceedsInChild([&] {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        int argc = 0;
        const QApplication application(argc, nullptr);
        EXPECT_EQ(AnswerTo(key, shown), expected);
    });
}

constexpr Box Plain{Buttons::Ok, Preset::First};
constexpr Box Question{Buttons::YesNo, Preset::First};
constexpr Box Loss{Buttons::YesNo, Preset::No};
constexpr Box Choice{Buttons::YesNoCancel, Preset::First};
constexpr Box LossChoice{Buttons::YesNoCancel, Preset::No};

} // namespace

TEST(BoxAnswers, EnterPressesTheFirstButton) {
    EXPECT_TRUE(Answers(Qt::Key_Return, Plain, Answer::Ok));
    EXPECT_TRUE(Answers(Qt::Key_Return, Question, Answer::Yes));
    EXPECT_TRUE(Answers(Qt::Key_Return, Choice, Answer::Yes));
}

TEST(BoxAnswers, EnterPressesNoWhereYesDestroysSomething) {
    EXPECT_TRUE(Answers(Qt::Key_Return, Loss, Answer::No));
    EXPECT_TRUE(Answers(Qt::Key_Return, LossChoice, Answer::No));
}

TEST(BoxAnswers, EscapeIsNoOrCancelWhereThereIsOne) {
    EXPECT_TRUE(Answers(Qt::Key_Escape, Plain, Answer::Ok));
    EXPECT_TRUE(Answers(Qt::Key_Escape, Question, Answer::No));
    EXPECT_TRUE(Answers(Qt::Key_Escape, Loss, Answer::No));
    EXPECT_TRUE(Answers(Qt::Key_Escape, Choice, Answer::Cancel));
    EXPECT_TRUE(Answers(Qt::Key_Escape, LossChoice, Answer::Cancel));
}
