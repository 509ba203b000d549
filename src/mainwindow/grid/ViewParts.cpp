// The texts over the view.
#include "mainwindow/grid/ViewParts.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "planner/dates/DateTitles.h"
#include "toolkit/Text.h"

void ShowTopTitles(frmMain& window, const QString& top) {
    window.LabelTop->setText(top);
    window.LabelInfoTitle->setText(FromScreen(DayTitle(window.ClickedDate)));
}

void ShowTopTitlesOfDay(frmMain& window, const char* words) {
    ShowTopTitles(window, QLatin1String(words) + FromScreen(FormatDate(window.ClickedDate, "Long Date")));
}

void ShowTopTitlesOfTerm(frmMain& window, const char* dayWords, const char* termWords) {
    if (!ActiveTermIsLiving()) {
        ShowTopTitles(window, {});
    } else if (window.CurrentFilter().comboDateRange == "Day") {
        ShowTopTitlesOfDay(window, dayWords);
    } else {
        ShowTopTitles(window, QLatin1String(termWords) + FromStore(ActiveTermName));
    }
}
