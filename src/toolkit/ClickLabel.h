// A label that can be pressed with the mouse: the day cells, the mode bar's words, the buttons of the
// calendar.
#pragma once

#include <QLabel>

class ClickLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickLabel(QWidget* parent = nullptr);

    // Does what a left press and release over the label do.
    void Press();

signals:
    void Pressed(Qt::MouseButton button);
    void Released(Qt::MouseButton button);

    // A left press and release, both over the label.
    void Clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

// Colours of a label, 0xBBGGRR.
void SetLabelColors(QLabel* label, int forecolor, int backcolor);
void SetLabelForeColor(QLabel* label, int forecolor);
