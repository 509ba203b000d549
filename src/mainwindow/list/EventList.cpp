// The list of events. Events mode shows the schedule of a day instead; the list is part of the design all the
// same.
#include "core/Module1.h"
#include "core/RowLists.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListRows.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/rows/RowTexts.h"
#include "toolkit/Text.h"

GridRow EventGridRow(int row) {
    const EventLists& store = Store.EventRecord;
    const int position = EventRows.Item(row);
    return {EventRowForeColor.Item(row),
            EventRowBackColor.Item(row),
            {NameCell(store.desc.Item(position), EventName(position)), TextCell(EventRowType.Item(row)),
             DateCell(EventRowDate.Item(row)), TimeCell(store.time.Item(position)),
             TextCell(ShownChoice(store.recurrence.Item(position)))}};
}

void frmMain::LayoutEventList() {
    LayoutList(*this, ListKind::Events);
}

void frmMain::FillEventList() {
    ShowTopTitlesOfDay(*this, "Events for ");
    SelectEventRows(CurrentFilter());
    SortEventRows(CurrentSort());
    ShowList(*this, ListKind::Events);
}
