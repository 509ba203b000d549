// An entry of the mode bar: the ground behind a picture and its word, which shows where the pointer is and
// which mode is the active one.
#pragma once

#include "toolkit/PictureBox.h"

class ClickLabel;

class ModeBarEntry : public QWidget {
    Q_OBJECT

public:
    // The entry takes the picture and the word, which may be missing. Its tip holds for both.
    ModeBarEntry(PictureBox* picture, ClickLabel* word, const QString& tip);

    void ShowActive(bool active);

    bool IsActive() const { return isActive; }

signals:
    // A left press and release, both over the entry, but beside its picture and its word.
    void Clicked();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool isActive = false;
};
