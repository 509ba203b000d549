// The windows' boxes that show what the rules have worked out.
#include "mainwindow/panels/ShowBox.h"

#include "toolkit/PictureBox.h"
#include "toolkit/Text.h"

#include <QLineEdit>

void ShowBox(QLineEdit* box, const BoxText& shown) {
    box->setText(FromStore(shown.text));
    SetColor(box, QPalette::Base, shown.backcolor);
}
