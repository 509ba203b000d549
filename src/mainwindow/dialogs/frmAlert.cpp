// frmAlert: a small window with one text and an OK button, which the alert buttons show.
#include "mainwindow/dialogs/frmAlert.h"

#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"

#include <QCloseEvent>

frmAlert::frmAlert(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    SetColor(TextBoxAlert, QPalette::Base, PanelColor); // it is only read
    connect(ButtonOK, &QPushButton::clicked, this, &QDialog::hide);
}

void frmAlert::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}
