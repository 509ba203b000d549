// frmAlert: a small window with one text and an OK button, which the alert buttons show.
#pragma once

#include "ui_frmAlert.h"

class frmAlert : public QDialog, public Ui::frmAlert {
    Q_OBJECT

public:
    explicit frmAlert(QWidget* parent);

protected:
    // Hides the window instead, so that it keeps its place.
    void closeEvent(QCloseEvent* event) override;
};
