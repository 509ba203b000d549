// The labels of a small month: heads, days, the frame around today, the buttons for today and tomorrow.
#pragma once

#include "toolkit/ClickLabel.h"
#include "toolkit/PictureBox.h"

#include <QFrame>

#include <span>

class QGridLayout;

inline constexpr SurfaceFont DayFont{Face::Title, 8.25, false};

// A pressable text in the middle of its place.
ClickLabel* CentredLabel(const SurfaceFont& font);

// Makes the labels, seven to a row of the grid: the heads in the row given, the days in those below.
void BuildDayLabels(QGridLayout* grid, int row, std::span<ClickLabel*> heads, std::span<ClickLabel*> days);

// A picture of that size with the word over it, which is pressed as a button.
PictureBox* DayButton(const char* word, QSize size, ClickLabel*& label);

// Text and colours (0xBBGGRR) of a day label, bold or not.
void PaintDayLabel(ClickLabel* label, const QString& text, int forecolor, int backcolor, bool bold);

// The button for today or for tomorrow: its word red and bold on the pressed picture while that day is shown,
// else plain in the colour on the other one.
void PaintDayButton(PictureBox* button, ClickLabel* label, const QString& picture, bool shown,
                    int plainColor);

// A frame, one pixel larger on each side than the label that it surrounds, which it follows wherever it is
// put.
class TileBorder : public QFrame {
    Q_OBJECT

public:
    explicit TileBorder(QWidget* parent);

    // Shows the frame in front of all, around the label; hides it when there is none.
    void Surround(QWidget* label);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow();

    QWidget* tile = nullptr;
};
