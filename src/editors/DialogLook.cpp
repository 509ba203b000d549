// What the dialogs of the editors look like beyond the program's style.
#include "editors/DialogLook.h"

#include "planner/dates/DateHelpers.h"
#include "platform/Formats.h"
#include "toolkit/ProgramStyle.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QToolTip>

namespace {

constexpr int NameCharacters = 16; // that a combo of names has room for at least
constexpr int DateMargin = 14;     // pixels of a date box beside its text: frame, margins and the cursor

int RoomForName(const QComboBox* combo) {
    QStyleOptionComboBox option;
    option.initFrom(combo);
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
        .width();
}

// Shows the name where there is no room for it.
void ShowNameTip(const QHelpEvent& event, QWidget* widget, const QString& name, int room) {
    const bool cut = widget->fontMetrics().horizontalAdvance(name) > room;
    QToolTip::showText(event.globalPos(), cut ? PlainTip(name) : QString(), widget);
}

class NameTips : public QObject {
public:
    explicit NameTips(QComboBox* owner) : QObject(owner), combo(owner) {
        combo->installEventFilter(this);
        combo->view()->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) {
            return false;
        }
        const auto& help = *static_cast<QHelpEvent*>(event);
        if (watched == combo) {
            ShowNameTip(help, combo, combo->currentText(), RoomForName(combo));
        } else {
            const QModelIndex row = combo->view()->indexAt(help.pos());
            ShowNameTip(help, combo->view()->viewport(), row.data().toString(),
                        combo->view()->visualRect(row).width());
        }
        return true;
    }

private:
    QComboBox* combo;
};

// A press on a separator in the list of the combo.
class SeparatorPresses : public QObject {
public:
    explicit SeparatorPresses(QComboBox* owner) : QObject(owner), combo(owner) {
        combo->view()->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonRelease) {
            return false;
        }
        const QModelIndex row = combo->view()->indexAt(static_cast<QMouseEvent*>(event)->pos());
        if (!row.isValid() || row.flags().testFlag(Qt::ItemIsEnabled)) {
            return false;
        }
        combo->hidePopup();
        combo->setCurrentIndex(0);
        emit combo->activated(0);
        return true;
    }

private:
    QComboBox* combo;
};

// Pixels of the longest date, whichever weekday falls on whichever month: that of the longest month's longest
// weekday, the months being compared on one weekday.
int LongestDate(const QFontMetrics& metrics) {
    using namespace std::chrono;
    const auto width = [&metrics](Date date) {
        return metrics.horizontalAdvance(FromScreen(FormatDate(date, "Long Date")));
    };
    // With two digits of the day, as the six behind it.
    const auto firstDate = [](unsigned number) { return Date{year{2009} / month{number} / day{22}}; };
    const auto wednesday = [](Date date) { return date + (Wednesday - weekday{date}); };
    Date longest = firstDate(1);
    for (unsigned number = 2; number <= 12; ++number) {
        if (width(wednesday(firstDate(number))) > width(wednesday(longest))) {
            longest = firstDate(number);
        }
    }
    int pixels = 0;
    for (int later = 0; later < DaysPerWeek; ++later) {
        pixels = std::max(pixels, width(longest + days{later}));
    }
    return pixels;
}

// Follows the width of a label with a height that has room for its lines.
class LineKeeper : public QObject {
public:
    explicit LineKeeper(QLabel* owner) : QObject(owner), label(owner) { label->installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            label->setMinimumHeight(label->heightForWidth(label->width()));
        }
        return false;
    }

private:
    QLabel* label;
};

} // namespace

void SetupNames(QComboBox* combo) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(NameCharacters);
    KeepListNarrow(combo);
    new NameTips(combo);
}

void SetupSeparators(QComboBox* combo) {
    new SeparatorPresses(combo);
}

void MarkSeparators(QComboBox* combo, const QString& text) {
    const auto* const rows = qobject_cast<QStandardItemModel*>(combo->model());
    for (QStandardItem* row : rows->findItems(text)) {
        row->setEnabled(false);
    }
}

void SetupDateBoxes(std::initializer_list<DateBox> boxes) {
    const int longest = LongestDate(boxes.begin()->box->fontMetrics());
    for (const DateBox& date : boxes) {
        date.box->setMinimumWidth(longest + DateMargin);
        date.button->setIcon(ProgramIcon(QStringLiteral("picButtonDate.svg")));
        date.button->setToolTip(date.button->accessibleName());
    }
}

void KeepLines(const QWidget* dialog) {
    for (QLabel* label : dialog->findChildren<QLabel*>()) {
        if (label->wordWrap()) {
            new LineKeeper(label);
        }
    }
}
