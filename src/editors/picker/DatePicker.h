// The pop-up month of the editors: a panel that opens over the dialog below a date box. The date boxes are
// not typed into; this is the only way to change a date.
//
// A dialog makes one as its child, names its date fields with AddField, calls SetCalendarHeads each time it
// opens, and writes the date to the field and its box when DatePicked comes, where DateTarget tells which
// field it is. What it has to say about the date it says at PickClosed.
#pragma once

#include "planner/dates/MonthGrid.h"
#include "toolkit/DayLabels.h"

#include <QFrame>
#include <QTimer>

#include <array>
#include <functional>
#include <string>

class DatePicker : public QFrame {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* dialog);

    // Lets a press on the date box or on its small button open the panel for that target, and the keys Space,
    // Down and F4 on the box, all unless they are disabled. The procedure gives the date that the field has.
    // A dialog with one field names it true.
    void AddField(bool target, QWidget* box, QWidget* button, std::function<Date()> date);

    // Closes the panel, and writes the heads of the columns from the first day of the week on.
    void SetCalendarHeads(const std::string& startDayOfWeek);

    // Opens the panel below the target's box on the target's date.
    void ShowCalendar(bool target);

    // Closes the panel. For 100 ms more CalendarOpen holds, so that the press on a date box that closed it
    // does not open it again.
    void HideCalendar();

    // Shows CalendarDate, moved within the dates of the calendar.
    void UpdateCalendar();

    // --- Controls; the panel is picCalendar itself ---
    QWidget* picCalMonthName = nullptr;
    ClickLabel* LabelMonth = nullptr;
    PictureBox *picCalMonthDown = nullptr, *picCalMonthUp = nullptr;
    ClickLabel *LabelCalMonthDown = nullptr, *LabelCalMonthUp = nullptr;
    QFrame* LabelCalDayBG = nullptr;
    std::array<ClickLabel*, DaysPerWeek> LabelCalDay{};
    std::array<ClickLabel*, MonthCells> LabelCalDate{};
    TileBorder* LabelCalTileBorder = nullptr;
    PictureBox *picToday = nullptr, *picTomorrow = nullptr;
    ClickLabel *LabelToday = nullptr, *LabelTomorrow = nullptr;
    QTimer *TimerButton = nullptr, *TimerCalendar = nullptr;

    // --- State ---
    Date CalendarDate{}; // its month is shown, its day is marked
    Date PreviousDate{}; // CalendarDate at the last redraw
    std::array<MonthCell, MonthCells> Cells{};
    Date TodayDate{}, TomorrowDate{}, PreviousMonthDate{}, NextMonthDate{}; // as of the last redraw
    bool DateTarget = true;                                                 // the field that is being set
    bool CalendarOpen = false;                                              // until 100 ms after the closing
    bool MouseUpFlag = true;                                                // the month button was let go
    bool MonthUp = false; // the held month button steps forward

signals:
    // A day was chosen.
    void DatePicked(Date date);

    // The panel has closed after that.
    void PickClosed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Field {
        QWidget* box = nullptr;
        QWidget* button = nullptr;
        std::function<Date()> date;
    };

    void SetupCalendar();
    void SetupTimers();
    QWidget* BuildMonthName();
    PictureBox* BuildMonthButton(ClickLabel*& label, bool up);
    void PlaceBelow(const QWidget* box);
    void OpenUnlessOpen(bool target);
    bool FieldEvent(bool target, const QEvent* event);
    void PaintCells();
    void Show(Date date);
    void Pick(Date date);
    void StepMonth();
    void PressMonthButton(bool up);
    void ReleaseMonthButton();

    std::array<Field, 2> fields; // by target
    std::string firstDayOfWeek{"Sunday"};
};
