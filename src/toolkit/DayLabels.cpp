// The labels of a small month: heads, days, the frame around today, the buttons for today and tomorrow.
#include "toolkit/DayLabels.h"

#include "toolkit/Pressable.h"
#include "toolkit/WindowColors.h"

#include <QEvent>
#include <QGridLayout>

namespace {

constexpr int DaysInRow = 7;
constexpr int HeadHeight = 16;
constexpr int DayHeight = 18;

void SetLabelBold(QLabel* label, bool bold) {
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
}

} // namespace

ClickLabel* CentredLabel(const SurfaceFont& font) {
    auto* label = new ClickLabel;
    label->setAlignment(Qt::AlignCenter);
    label->setFont(ToQFont(font));
    return label;
}

void BuildDayLabels(QGridLayout* grid, int row, std::span<ClickLabel*> heads, std::span<ClickLabel*> days) {
    int column = 0;
    for (ClickLabel*& head : heads) {
        head = CentredLabel(DayFont);
        head->setFixedHeight(HeadHeight);
        DescribeAs(head, QAccessible::StaticText);
        grid->addWidget(head, row, column++);
    }
    int place = 0;
    for (ClickLabel*& day : days) {
        day = CentredLabel(DayFont);
        day->setFixedHeight(DayHeight);
        DescribeAs(day, QAccessible::Button);
        grid->addWidget(day, row + 1 + place / DaysInRow, place % DaysInRow);
        ++place;
    }
}

PictureBox* DayButton(const char* word, QSize size, ClickLabel*& label) {
    auto* button = new PictureBox;
    button->setFixedSize(size);
    label = CentredLabel(DayFont);
    DescribeAs(label, QAccessible::Button);
    label->setText(QLatin1String(word));
    label->setAccessibleName(QLatin1String(word));
    auto* layout = new QVBoxLayout(button);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    return button;
}

void PaintDayLabel(ClickLabel* label, const QString& text, int forecolor, int backcolor, bool bold) {
    SetLabelColors(label, forecolor, backcolor);
    SetLabelBold(label, bold);
    label->setText(text);
    DescribeChosen(label, bold);
}

void PaintDayButton(PictureBox* button, ClickLabel* label, const QString& picture, bool shown,
                    int plainColor) {
    SetLabelForeColor(label, shown ? MarkedDayColor : plainColor);
    SetLabelBold(label, shown);
    DescribeChosen(label, shown);
    button->ShowPicture(picture + (shown ? QStringLiteral("Down.svg") : QStringLiteral("Up.svg")));
}

TileBorder::TileBorder(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::Box);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    SetColor(this, QPalette::WindowText, BarColor);
    hide();
}

void TileBorder::Surround(QWidget* label) {
    if (tile != nullptr) {
        tile->removeEventFilter(this);
    }
    tile = label;
    setVisible(tile != nullptr);
    if (tile != nullptr) {
        tile->installEventFilter(this);
        Follow();
        raise();
    }
}

bool TileBorder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tile && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
        Follow();
    }
    return QFrame::eventFilter(watched, event);
}

void TileBorder::Follow() {
    setGeometry(tile->geometry().adjusted(-1, -1, 1, 1));
}
