// The toolkit's dialog for choosing a colour, which is the desktop's own where it has one.
#include "platform/ColorDialog.h"

#include "toolkit/Modal.h"
#include "toolkit/PictureBox.h"

#include <QColorDialog>

namespace {

int NumberOf(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

} // namespace

std::optional<int> ChooseColor(int color, CustomColors& custom) {
    for (std::size_t slot = 0; slot < custom.size(); ++slot) {
        QColorDialog::setCustomColor(static_cast<int>(slot), ToQColor(custom[slot]));
    }
    QColorDialog dialog(ToQColor(color), WindowOfNextDialog());
    const int answer = RunModally(dialog);
    for (std::size_t slot = 0; slot < custom.size(); ++slot) {
        custom[slot] = NumberOf(QColorDialog::customColor(static_cast<int>(slot)));
    }
    return answer == QDialog::Accepted ? std::optional(NumberOf(dialog.selectedColor())) : std::nullopt;
}
