// Message boxes of the toolkit.
#include "platform/MessageBoxes.h"

#include "toolkit/Modal.h"
#include "toolkit/Text.h"

#include <QMessageBox>

#include <array>

namespace {

struct ButtonSet {
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton first;
    QMessageBox::StandardButton escape;
};

// In the order of Buttons.
constexpr std::array<ButtonSet, 3> ButtonSets{{
    {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No},
    {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Cancel},
}};

// In the order of Icon.
constexpr std::array<QMessageBox::Icon, 3> Icons{QMessageBox::NoIcon, QMessageBox::Information,
                                                 QMessageBox::Warning};

Answer AnswerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

Answer MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title, Preset preset) {
    const ButtonSet& set = ButtonSets[static_cast<std::size_t>(buttons)];
    QMessageBox box(WindowOfNextDialog());
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(FromStore(title));
    box.setText(Breakable(FromStore(text)));
    box.setIcon(Icons[static_cast<std::size_t>(icon)]);
    box.setStandardButtons(set.shown);
    box.setDefaultButton(preset == Preset::No ? QMessageBox::No : set.first);
    box.setEscapeButton(set.escape);
    return AnswerOf(RunModally(box));
}

void ShowFatalError(std::string_view text) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Planovarium"), Breakable(FromStore(text)),
                    QMessageBox::Ok, WindowOfNextDialog());
    box.setTextFormat(Qt::PlainText);
    RunModally(box);
}
