// The windows' boxes that show what the rules have worked out.
#include "mainwindow/ShowBox.h"

#include "platform/PictureBox.h"
#include "platform/Text.h"

#include <QLineEdit>

void ShowBox(QLineEdit* box, const BoxText& shown) {
    box->setText(FromStore(shown.text));
    SetColor(box, QPalette::Base, shown.backcolor);
}
