// frmTip, the tip of the day.
#pragma once

#include "ui_frmTip.h"

#include <QPointer>

#include <string>

class frmTip : public QDialog, public Ui::frmTip {
    Q_OBJECT

public:
    explicit frmTip(QWidget* parent);

    int CurrentTip = 0;           // number of the tip to be shown next
    std::string ShowTips = "Yes"; // or "No": whether the next start is to show one

    // Shows the tip and moves on to the next number.
    void NextTip();

protected:
    // Each showing begins with a tip and with the box ticked.
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

// The one dialog, made as it is first asked for; the main window owns it.
extern QPointer<frmTip> TipDialog;
