// The row lists: what the list, the day schedule and the menus show, one entry a row.
#include "core/RowLists.h"

NumberList HomeworkRows;
TextList RowClass;
NumberList RowForeColor;
NumberList RowBackColor;
TextList RowTimeLeft;
NumberList StudyRowTime;
NumberList StudyRowDate;

NumberList TaskRows;
NumberList TaskRowForeColor;
NumberList TaskRowBackColor;
TextList TaskRowType;

NumberList EventRows;
List<Date> EventRowDate;
NumberList EventRowForeColor;
NumberList EventRowBackColor;
TextList EventRowType;
NumberList EventBoxLeft;
NumberList EventBoxTop;
NumberList EventBoxWidth;
NumberList EventBoxHeight;
NumberList EventBoxColumn;

NumberList ReminderRows;
TextList ReminderRowKind;
TextList ReminderRowClass;
TextList ReminderRowType;
TextList ReminderRowText;
NumberList ReminderRowDays;
List<Date> ReminderRowDate;
NumberList ReminderRowForeColor;
NumberList ReminderRowBackColor;

int TaskCount = 0;
int TaskDoneCount = 0;
int TaskLeftCount = 0;
int UndatedTaskLeftCount = 0;
int EventClassCount = 0;
int EventOtherCount = 0;
int EventTotalCount = 0;
int ReminderHomeworkCount = 0;
int ReminderTaskCount = 0;
int ReminderEventCount = 0;
