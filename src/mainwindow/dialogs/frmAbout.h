// frmAbout: what the program is, its version, and where its maker is found.
#pragma once

#include "ui_frmAbout.h"

#include <QPointer>

class frmAbout : public QDialog, public Ui::frmAbout {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent);

protected:
    // Enter and the blank press the description while the keys stand on it.
    void keyPressEvent(QKeyEvent* event) override;

    // Hides the window instead, so that it keeps its place.
    void closeEvent(QCloseEvent* event) override;
};

// The one dialog, made as it is first asked for; the main window owns it.
extern QPointer<frmAbout> AboutDialog;
