// frmTip, the tip of the day.
#include "mainwindow/dialogs/frmTip.h"

#include "editors/EditorParts.h"
#include "mainwindow/dialogs/TipTexts.h"
#include "toolkit/Text.h"

#include <QCloseEvent>

namespace {

constexpr int PictureSize = 56;
constexpr double TitleScale = 1.3; // of the dialog's own letters

} // namespace

QPointer<frmTip> TipDialog;

frmTip::frmTip(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    picTip->setPixmap(QIcon(QStringLiteral(":/icons/picTip.svg")).pixmap(PictureSize));
    QFont title = LabelTitle->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * TitleScale);
    LabelTitle->setFont(title);
    PanelTip->setBackgroundRole(QPalette::Base);
    PanelTip->setAutoFillBackground(true);
    SetHelpTopics({{CheckBoxShowTips, 841}, {ButtonNextTip, 842}, {ButtonClose, 843}, {PanelTip, 844}});
    connect(ButtonNextTip, &QPushButton::clicked, this, &frmTip::NextTip);
    connect(ButtonClose, &QPushButton::clicked, this, &QDialog::hide);
    connect(CheckBoxShowTips, &QCheckBox::toggled, this,
            [this](bool checked) { ShowTips = checked ? "Yes" : "No"; });
}

void frmTip::NextTip() {
    LabelTip->setText(FromStore(TipText(CurrentTip)));
    CurrentTip = NumberAfter(CurrentTip);
}

void frmTip::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    CheckBoxShowTips->setChecked(true);
    ShowTips = "Yes";
    ButtonNextTip->setFocus();
    NextTip();
}

void frmTip::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}
