// What the views on the grid share.
#include "mainwindow/grid/ViewParts.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/GridLayout.h"
#include "planner/dates/DateTitles.h"
#include "toolkit/Text.h"

#include <QSignalBlocker>

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

void HideColumnTitles(frmMain& window) {
    for (PictureBox* header : window.picColHeader) {
        header->hide();
    }
}

void PlaceScrollBar(frmMain& window) {
    const int width = ScrollStripWidth / UnitsPerPixel;
    window.VSGridScroll->setGeometry(window.picGrid->width() - width, 0, width, window.picGrid->height());
    window.VSGridScroll->show();
}

// Silent, since a fill is under way that shows what the bar then says.
void frmMain::SetGridScroll() {
    const GridScroll scroll = GridScrollFor(RowCount, RowsVisible);
    const QSignalBlocker silence(VSGridScroll);
    VSGridScroll->setEnabled(scroll.enabled);
    VSGridScroll->setRange(1, scroll.greatest);
    VSGridScroll->setPageStep(scroll.largeStep);
    FirstRow = VSGridScroll->value();
}
