// What the layouts and the fills of all lists share.
#include "mainwindow/frmMain.h"

void frmMain::LayoutHomeworkGrid() {
}

void frmMain::FillHomeworkList() {
}

void frmMain::LayoutStudyGrid() {
}

void frmMain::FillStudyList() {
}

void frmMain::LayoutTaskGrid() {
}

void frmMain::FillTaskList() {
}

void frmMain::LayoutReminderGrid() {
}

void frmMain::FillReminderList() {
}

void frmMain::LayoutEventList() {
}

void frmMain::FillEventList() {
}

void frmMain::HighlightRow(int /*row*/, bool /*on*/) {
}
