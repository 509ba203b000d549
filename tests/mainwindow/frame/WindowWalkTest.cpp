// A student who does anything at all with the main window: mouse, keys, wheel, sizes, refreshes. Whatever
// that is, the grid, the small calendar and the titles show what a full refresh shows.
// Every run takes ShortWalk steps of each seed; with PLANOVARIUM_LONG_WALK set it takes LongWalk, three times
// 5,000.
#include "core/DateText.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include <QApplication>
#include <QWheelEvent>

#include <random>

namespace {

constexpr int ShortWalk = 250;
constexpr int LongWalk = 5000;

int StepsOfWalk() {
    return qEnvironmentVariableIsSet("PLANOVARIUM_LONG_WALK") ? LongWalk : ShortWalk;
}

using Look = std::vector<std::string>; // what is seen, a line a thing

std::string LineOf(const DrawnItem& item) {
    std::string line = std::to_string(static_cast<int>(item.kind));
    for (const int number : {item.left, item.top, item.width, item.height, item.color}) {
        line += " " + std::to_string(number);
    }
    return line + " " + item.text.toStdString();
}

void AddSurface(Look& look, const PictureBox& surface) {
    for (const DrawnItem& item : surface.Drawn()) {
        look.push_back(LineOf(item));
    }
}

class WindowWalk : public GridTest, public testing::WithParamInterface<unsigned> {
protected:
    void SetUp() override {
        GridTest::SetUp();
        dice.seed(GetParam());
        QObject::connect(&popupWatch, &QTimer::timeout, &popupWatch, [] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                popup->close();
            }
        });
        popupWatch.start(1);
        FillStore();
    }

    int Roll(int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); }

    std::string AnyDate() {
        const auto date = Today() + std::chrono::days{Roll(90) - 45};
        return StoredDate(date);
    }

    void FillStore() {
        for (int i = 0; i < 60; ++i) {
            const std::string number = std::to_string(i);
            AddAssignmentRecord({.date = AnyDate(),
                                 .desc = "A" + number,
                                 .priority = Roll(3) == 0 ? "True" : "False",
                                 .done = Roll(2) == 0 ? "True" : "False",
                                 .reminder = Roll(3) == 0 ? "True" : "False"});
            AddTaskRecord({.date = AnyDate(), .desc = "T" + number, .done = Roll(2) == 0 ? "True" : "False"});
            AddEventRecord({.date = AnyDate(),
                            .time = Roll(2) == 0 ? "09:30 AM" : "02:00 PM",
                            .duration = std::to_string(1 + Roll(4)) + " Hours",
                            .desc = "E" + number});
        }
        Refresh();
    }

    Look Titles() const {
        Look look;
        for (const QLabel* label :
             {static_cast<const QLabel*>(window->LabelMonth), static_cast<const QLabel*>(window->LabelTop),
              static_cast<const QLabel*>(window->LabelInfoTitle)}) {
            look.push_back(label->text().toStdString());
        }
        for (const PictureBox* header : window->picColHeader) {
            if (header->isVisible()) {
                AddSurface(look, *header);
            }
        }
        return look;
    }

    Look SmallCalendar() const {
        Look look;
        for (const ClickLabel* day : window->LabelCalDate) {
            look.push_back(day->text().toStdString() + " " +
                           day->palette().color(QPalette::Window).name().toStdString() + " " +
                           day->palette().color(QPalette::WindowText).name().toStdString() +
                           (day->font().bold() ? " bold" : ""));
        }
        for (const ClickLabel* word : {window->LabelToday, window->LabelTomorrow}) {
            look.push_back(word->palette().color(QPalette::WindowText).name().toStdString());
        }
        const QRect frame = window->LabelCalTileBorder->geometry();
        look.push_back(window->LabelCalTileBorder->isHidden()
                           ? "no frame"
                           : std::to_string(frame.x()) + " " + std::to_string(frame.y()));
        return look;
    }

    // A row that was opened had its number painted over twice, the second time as it was before; those four
    // things are taken away.
    Look Grid() const {
        Look look;
        AddSurface(look, *window->picGrid);
        const std::vector<DrawnItem>& drawn = window->picGrid->Drawn();
        while (look.size() >= 4 && drawn[look.size() - 4].color == ColorBlack &&
               drawn[look.size() - 2].color == ColorWhite && drawn[look.size() - 1].color == ColorBlack &&
               drawn[look.size() - 1].text == drawn[look.size() - 3].text) {
            look.resize(look.size() - 4);
        }
        return look;
    }

    void TakeStep();
    void ClickAnywhere();
    void PressAKey();
    void TurnTheWheel();
    void ChangeARecord();

    std::mt19937 dice;
    QTimer popupWatch;
};

constexpr std::array WalkKeys{Qt::Key_Up,       Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,  Qt::Key_PageUp,
                              Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,  Qt::Key_Return, Qt::Key_1,
                              Qt::Key_3,        Qt::Key_5,    Qt::Key_8,    Qt::Key_H,      Qt::Key_T,
                              Qt::Key_E,        Qt::Key_Menu};

void WindowWalk::ClickAnywhere() {
    const QList<QWidget*> targets{window->picGrid, window->picGrid, window->picGrid,
                                  window->PictureBoxCalendar};
    QWidget* target = targets.at(Roll(static_cast<int>(targets.size())));
    const QPoint point(Roll(target->width()), Roll(target->height()));
    QWidget* hit = target->childAt(point);
    QWidget* pressed = hit == nullptr ? target : hit;
    QTest::mouseClick(pressed, Roll(4) == 0 ? Qt::RightButton : Qt::LeftButton, {},
                      pressed->mapFrom(target, point));
}

void WindowWalk::PressAKey() {
    const Qt::Key key = WalkKeys.at(static_cast<std::size_t>(Roll(static_cast<int>(WalkKeys.size()))));
    const bool moves = key <= Qt::Key_PageDown && key >= Qt::Key_Home;
    QTest::keyClick(window->picGrid, key, moves && Roll(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
}

void WindowWalk::TurnTheWheel() {
    const QPoint point(Roll(window->picGrid->width()), Roll(window->picGrid->height()));
    QWheelEvent turned(point, window->picGrid->mapToGlobal(point), {}, {0, (Roll(7) - 3) * 120}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window.get(), &turned);
}

// As an editor's flow does it.
void WindowWalk::ChangeARecord() {
    const int index = 1 + Roll(60);
    Store.Assignment.date.Replace(index, AnyDate());
    Store.TaskRecord.done.Replace(index, Roll(2) == 0 ? "True" : "False");
    Store.EventRecord.date.Replace(index, AnyDate());
    window->RefreshFor(ReasonNewRecord);
}

void WindowWalk::TakeStep() {
    constexpr std::array modes{Mode::Calendar, Mode::Homework, Mode::Events, Mode::Tasks,
                               Mode::StudySessions};
    switch (Roll(16)) {
    case 0:
    case 1:
        return ChooseMode(*window, modes.at(static_cast<std::size_t>(Roll(static_cast<int>(modes.size())))));
    case 2:
    case 3:
        return TurnTheWheel();
    case 4:
        window->resize(780 + Roll(400), 575 + Roll(300));
        return QCoreApplication::processEvents();
    case 5:
        return ChangeARecord();
    case 6: {
        QComboBox* combo = Roll(2) == 0 ? window->ComboList : window->ComboDateRange;
        return combo->isVisible() ? combo->setCurrentIndex(Roll(combo->count())) : void();
    }
    case 7:
        return ChooseStartDayOfWeek(*window, Roll(2) == 0 ? "Sunday" : "Monday");
    case 8:
        return window->VSGridScroll->setValue(1 + Roll(std::max(window->VSGridScroll->maximum(), 1)));
    case 9:
    case 10:
    case 11:
        return PressAKey();
    default:
        return ClickAnywhere();
    }
}

} // namespace

TEST_P(WindowWalk, WhatIsSeenIsWhatAFullRefreshShows) {
    std::array<int, ModeCount + 1> visits{};
    const int steps = StepsOfWalk();
    for (int step = 1; step <= steps && !HasFailure(); ++step) {
        TakeStep();
        if (QApplication::activePopupWidget() != nullptr) {
            QApplication::activePopupWidget()->close();
        }
        const Look titles = Titles();
        const Look calendar = SmallCalendar();
        const Look painted = Grid();
        window->RefreshFor(ReasonNewRecord);
        const Look fresh = Grid();
        const std::string where = "step " + std::to_string(step) + " in mode " +
                                  std::to_string(static_cast<int>(window->CurrentMode()));
        EXPECT_EQ(titles, Titles()) << where;
        EXPECT_EQ(calendar, SmallCalendar()) << where;
        EXPECT_EQ(painted, fresh) << where;
        ++visits.at(static_cast<std::size_t>(window->CurrentMode()));
    }
    for (const Mode mode : {Mode::Calendar, Mode::Homework, Mode::Events, Mode::Tasks}) {
        EXPECT_GT(visits.at(static_cast<std::size_t>(mode)), steps / 20);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, WindowWalk, testing::Values(1U, 20091014U, 777U));
