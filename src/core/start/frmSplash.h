// frmSplash, the picture on the screen while the planner loads; a second instance hands over to the first
// with it.
#pragma once

#include <QWidget>

class frmSplash : public QWidget {
    Q_OBJECT

public:
    frmSplash();

    // Set before the splash is loaded: true makes its load hand over to the running instance.
    bool PreviousFound = false;

    // Hands over where an earlier instance was found, and otherwise shows the picture at once. Gives false
    // when the process has nothing more to do.
    bool LoadSplash();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void HandOver();
};
