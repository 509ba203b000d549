// frmAbout: what the program is, its version, and where its maker is found.
#include "mainwindow/dialogs/frmAbout.h"

#include "core/ProgramFacts.h"
#include "editors/EditorParts.h"
#include "platform/Process.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace {

constexpr int PictureSize = 64;
constexpr double TitleScale = 1.4; // of the dialog's own letters
constexpr int DescriptionWidth = 320;

} // namespace

QPointer<frmAbout> AboutDialog;

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    picIcon->setPixmap(ProgramIcon(QStringLiteral("planovarium.svg")).pixmap(PictureSize));
    QFont title = lblTitle->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * TitleScale);
    lblTitle->setFont(title);
    lblTitle->setText(FromStore(ProgramTitle));
    lblVersion->setText(QStringLiteral("Version ") + FromStore(ProgramVersion()));
    DescribeAs(lblDescription, QAccessible::Button);
    lblDescription->setText(FromStore(ProgramDescription) +
                            QStringLiteral("\n\nFor questions, orders and upgrades, visit the website at ") +
                            FromStore(HomePage()));
    lblDescription->setMinimumWidth(DescriptionWidth);
    lblDescription->setCursor(Qt::PointingHandCursor);
    SetHelpTopics({{lblDescription, 851}, {cmdOK, 852}});
    connect(lblDescription, &ClickLabel::Clicked, this, [] { ShellOpen(HomePage()); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::hide);
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (presses && focusWidget() == lblDescription) {
        lblDescription->Press();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmAbout::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}
