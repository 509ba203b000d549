// The Study Sessions list.
#include "core/Module1.h"
#include "core/RowLists.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/rows/RowTexts.h"

GridRow StudyGridRow(int row) {
    const AssignmentLists& store = Store.Assignment;
    const StudySessionLists& log = Store.StudySessionRecord;
    const int position = HomeworkRows.Item(row);
    return {RowForeColor.Item(row),
            RowBackColor.Item(row),
            {NameCell(RowClass.Item(row)), TrimmedCell(store.type.Item(position)),
             NameCell(store.desc.Item(position), AssignmentName(position)),
             PriorityCell(store.priority.Item(position)), ClockCell(log.time.Item(StudyRowTime.Item(row))),
             DateCell(log.date.Item(StudyRowDate.Item(row))), DateCell(store.date.Item(position))}};
}

void frmMain::LayoutStudyGrid() {
    LayoutList(*this, ListKind::StudySessions);
}

void frmMain::FillStudyList() {
    ShowTopTitlesOfTerm(*this, "Study on ", "Study for ");
    const StudySessionBoxes boxes = SelectStudyRows(CurrentFilter());
    SortStudyRows(CurrentSort());
    ShowBox(TextBoxStudySessions, boxes.TextBoxStudySessions);
    ShowBox(TextboxStudyTime, boxes.TextboxStudyTime);
    ShowList(*this, ListKind::StudySessions);
}
