// The pop-up month of the editors.
#include "editors/picker/DatePicker.h"

#include "planner/dates/DateHelpers.h"
#include "planner/dates/DateTitles.h"
#include "planner/rows/Colors.h"
#include "toolkit/HelpTopics.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace {

using std::chrono::days;

constexpr int CalendarTopic = 895;

bool IsLeftPress(const QEvent* event) {
    return (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) &&
           static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
}

bool IsOpeningKey(const QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* const press = static_cast<const QKeyEvent*>(event);
    const int key = press->key();
    return !press->isAutoRepeat() && (key == Qt::Key_Space || key == Qt::Key_Down || key == Qt::Key_F4);
}

QString MonthPicture(bool up, bool pressed) {
    return QStringLiteral("picStashCalMonth%1%2.svg")
        .arg(up ? QStringLiteral("Right") : QStringLiteral("Left"),
             pressed ? QStringLiteral("Down") : QStringLiteral("Up"));
}

} // namespace

DatePicker::DatePicker(QWidget* dialog) : QFrame(dialog) {
    SetupCalendar();
    SetHelpTopic(this, CalendarTopic);
    hide();
    setEnabled(false);
    dialog->installEventFilter(this);
}

void DatePicker::AddField(bool target, QWidget* box, QWidget* button, std::function<Date()> date) {
    fields[target ? 1 : 0] = {box, button, std::move(date)};
    box->installEventFilter(this);
    button->installEventFilter(this);
    if (const auto* pushed = qobject_cast<QAbstractButton*>(button)) {
        connect(pushed, &QAbstractButton::clicked, this, [this, target] { OpenUnlessOpen(target); });
    }
}

void DatePicker::SetCalendarHeads(const std::string& startDayOfWeek) {
    HideCalendar();
    firstDayOfWeek = startDayOfWeek;
    const std::array<std::string_view, DaysPerWeek> heads = WeekdayHeads(startDayOfWeek);
    for (std::size_t column = 0; column < heads.size(); ++column) {
        LabelCalDay[column]->setText(FromStore(heads[column].substr(0, 1)));
        LabelCalDay[column]->setAccessibleName(FromStore(heads[column]));
    }
}

void DatePicker::ShowCalendar(bool target) {
    const Field& field = fields[target ? 1 : 0];
    DateTarget = target;
    PlaceBelow(field.box);
    Show(field.date());
    setEnabled(true);
    show();
    raise();
    TimerCalendar->stop();
    CalendarOpen = true;
    setFocus();
}

void DatePicker::HideCalendar() {
    if (isHidden()) {
        return;
    }
    ReleaseMonthButton();
    if (window()->focusWidget() == this) {
        fields[DateTarget ? 1 : 0].box->setFocus();
    }
    hide();
    setEnabled(false);
    TimerCalendar->start();
}

void DatePicker::UpdateCalendar() {
    CalendarDate = WithinCalendar(CalendarDate);
    TodayDate = Today();
    TomorrowDate = TodayDate + days{1};
    PreviousMonthDate = DateAddMulti(CalendarDate, 0, -1, 0);
    NextMonthDate = DateAddMulti(CalendarDate, 0, 1, 0);
    Cells = CellsOfMonth(CalendarDate, TodayDate, firstDayOfWeek);
    LabelMonth->setText(FromScreen(MonthTitle(CalendarDate)));
    setAccessibleName(FromScreen(FormatDate(CalendarDate, "Long Date")));
    PaintCells();
    PaintDayButton(picToday, LabelToday, QStringLiteral("picStashToday"), CalendarDate == TodayDate,
                   ColorBlack);
    PaintDayButton(picTomorrow, LabelTomorrow, QStringLiteral("picStashTomorrow"),
                   CalendarDate == TomorrowDate, ColorBlack);
    PreviousDate = CalendarDate;
    repaint(); // each step of a held button is seen
}

void DatePicker::PaintCells() {
    LabelCalTileBorder->Surround(nullptr);
    for (std::size_t index = 0; index < Cells.size(); ++index) {
        const MonthCell& cell = Cells[index];
        const int plain = cell.inMonth ? ColorInMonth : ColorOutMonth;
        PaintDayLabel(LabelCalDate[index], QString::number(cell.day),
                      cell.selected ? ColorSelectedText : plain,
                      cell.selected ? ColorSelectedCell : ColorCell, cell.selected);
        DescribeName(LabelCalDate[index], FromScreen(FormatDate(cell.date, "Long Date")));
        if (cell.today) {
            LabelCalTileBorder->Surround(LabelCalDate[index]);
        }
    }
}

// Within the dialog: below the box, or above it where there is no room below.
void DatePicker::PlaceBelow(const QWidget* box) {
    const QRect room = parentWidget()->rect();
    const QPoint corner = box->mapTo(parentWidget(), QPoint(0, 0));
    resize(sizeHint());
    int top = corner.y() + box->height() + 1;
    if (top + height() > room.height()) {
        top = corner.y() - height() - 1;
    }
    move(std::max(0, std::min(corner.x(), room.width() - width())),
         std::max(0, std::min(top, room.height() - height())));
}

void DatePicker::OpenUnlessOpen(bool target) {
    if (CalendarOpen) {
        HideCalendar();
    } else {
        ShowCalendar(target);
    }
}

bool DatePicker::FieldEvent(bool target, const QEvent* event) {
    if (!IsLeftPress(event) && !IsOpeningKey(event)) {
        return false;
    }
    OpenUnlessOpen(target);
    return true;
}

bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget()) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Hide) {
            HideCalendar();
        }
        return false;
    }
    for (const bool target : {false, true}) {
        const Field& field = fields[target ? 1 : 0];
        if (watched == field.box || (watched == field.button && IsLeftPress(event))) {
            const bool enabled = static_cast<QWidget*>(watched)->isEnabled(); // a filter is told in any case
            return enabled && FieldEvent(target, event);
        }
    }
    return QFrame::eventFilter(watched, event);
}

// From the date that was being chosen, as the panel itself stands behind all other controls.
bool DatePicker::focusNextPrevChild(bool next) {
    HideCalendar();
    return QFrame::focusNextPrevChild(next);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return Show(CalendarDate - days{1});
    case Qt::Key_Right:
        return Show(CalendarDate + days{1});
    case Qt::Key_Up:
        return Show(CalendarDate - days{DaysPerWeek});
    case Qt::Key_Down:
        return Show(CalendarDate + days{DaysPerWeek});
    case Qt::Key_PageUp:
        return Show(PreviousMonthDate);
    case Qt::Key_PageDown:
        return Show(NextMonthDate);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Pick(CalendarDate);
    default:
        HideCalendar();
    }
}

// A press between the days is not one on the dialog's background.
void DatePicker::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void DatePicker::focusOutEvent(QFocusEvent* /*event*/) {
    HideCalendar();
}

void DatePicker::Show(Date date) {
    CalendarDate = date;
    UpdateCalendar();
}

void DatePicker::Pick(Date date) {
    Show(date);
    emit DatePicked(CalendarDate);
    HideCalendar();
    emit PickClosed();
}

void DatePicker::StepMonth() {
    Show(MonthUp ? NextMonthDate : PreviousMonthDate);
}

void DatePicker::PressMonthButton(bool up) {
    (up ? picCalMonthUp : picCalMonthDown)->ShowPicture(MonthPicture(up, true));
    MouseUpFlag = false;
    MonthUp = up;
    StepMonth();
    TimerButton->start();
}

void DatePicker::ReleaseMonthButton() {
    MouseUpFlag = true;
    TimerButton->stop();
    picCalMonthUp->ShowPicture(MonthPicture(true, false));
    picCalMonthDown->ShowPicture(MonthPicture(false, false));
}
