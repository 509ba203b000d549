// The program's message boxes as they stand on the screen: its own pictures, plain buttons, and texts that
// are broken into lines however long a name in them is.
#include "platform/MessageBoxes.h"

#include "support/ChildProcess.h"
#include "toolkit/ProgramStyle.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const std::string LongName(200, 'W');
const QString NoWidth(QChar(0x200B));

using Expectations = std::function<void(QMessageBox&)>;

// An application can be made once in a process, so each box has a process of its own.
bool HoldsFor(const std::function<void()>& show, const Expectations& expect) {
    return SucceedsInChild([&] {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        int count = 1;
        char name[] = "boxes";
        char* arguments[] = {name, nullptr};
        const QApplication application(count, arguments);
        QApplication::setStyle(NewProgramStyle());
        QApplication::setPalette(ProgramPalette());
        QTimer poll;
        bool seen = false;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible() && !seen) {
                seen = true;
                expect(*box);
                box->done(QMessageBox::No);
            }
        });
        poll.start(1);
        show();
        EXPECT_TRUE(seen);
    });
}

class StyleWithPictures : public QProxyStyle {
public:
    StyleWithPictures() : QProxyStyle(QStringLiteral("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    QIcon standardIcon(StandardPixmap /*standard*/, const QStyleOption* /*option*/,
                       const QWidget* /*widget*/) const override {
        return QIcon(QStringLiteral(":/icons/boxWarning.svg"));
    }
};

QLabel* TextLabel(const QMessageBox& box) {
    return box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

QImage OurPicture(const char* name, const QSize& size) {
    return QIcon(QStringLiteral(":/icons/") + QLatin1String(name)).pixmap(size).toImage();
}

void ExpectPicture(const QMessageBox& box, const char* name) {
    const QPixmap shown = box.iconPixmap();
    EXPECT_FALSE(shown.isNull());
    EXPECT_EQ(shown.toImage(), OurPicture(name, shown.deviceIndependentSize().toSize())) << name;
}

} // namespace

TEST(MessageBoxes, HaveThePicturesOfThisProgram) {
    EXPECT_TRUE(HoldsFor([] { MsgBox("A", Buttons::Ok, Icon::Information); },
                         [](QMessageBox& box) { ExpectPicture(box, "boxInformation.svg"); }));
    EXPECT_TRUE(HoldsFor([] { MsgBox("A", Buttons::Ok, Icon::Exclamation); },
                         [](QMessageBox& box) { ExpectPicture(box, "boxWarning.svg"); }));
    EXPECT_TRUE(
        HoldsFor([] { ShowFatalError("A"); }, [](QMessageBox& box) { ExpectPicture(box, "boxError.svg"); }));
}

// The buttons of dialogs have pictures on desktops whose theme wants them, which the one of these tests does
// not: here the style that the program's stands on wants them.
TEST(MessageBoxes, HavePlainButtonsWhereTheDesktopWantsPictures) {
    EXPECT_TRUE(HoldsFor(
        [] {
            qobject_cast<QProxyStyle*>(QApplication::style())->setBaseStyle(new StyleWithPictures);
            MsgBox("A", Buttons::YesNoCancel, Icon::Information);
        },
        [](QMessageBox& box) {
            EXPECT_EQ(box.buttons().size(), 3);
            for (const QAbstractButton* button : box.buttons()) {
                EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
            }
            StyleWithPictures otherStyle;
            QDialogButtonBox others;
            others.setStyle(&otherStyle);
            others.setStandardButtons(QDialogButtonBox::Yes);
            EXPECT_FALSE(others.button(QDialogButtonBox::Yes)->icon().isNull()) << "in that style they have";
        }));
}

TEST(MessageBoxes, BreakAnyNameIntoLinesWithinTheScreen) {
    const std::string text = "Are you sure you want to Delete '" + LongName +
                             "'? If you have assignments for '" + LongName + "', they will also be Deleted.";
    const Expectations expect = [&text](QMessageBox& box) {
        const QLabel* label = TextLabel(box);
        EXPECT_EQ(label->text().remove(NoWidth).toStdString(), text);
        EXPECT_LT(box.width(), box.screen()->availableGeometry().width());
        EXPECT_LE(label->heightForWidth(label->width()), label->height());
        EXPECT_LE(label->minimumSizeHint().width(), label->width()) << "no word is wider than the label";
    };
    EXPECT_TRUE(HoldsFor([&text] { MsgBox(text, Buttons::YesNo, Icon::Information); }, expect));
    EXPECT_TRUE(HoldsFor([&text] { ShowFatalError(text); }, expect));
}

TEST(MessageBoxes, BreakNoWordOfALanguage) {
    const std::string text = "The responsibilities of your Grundstuecksverkehr";
    EXPECT_TRUE(HoldsFor([&text] { MsgBox(text, Buttons::Ok, Icon::Information); },
                         [&text](QMessageBox& box) { EXPECT_EQ(box.text().toStdString(), text); }));
}

TEST(MessageBoxes, ShowShortTextsAsTheyAre) {
    EXPECT_TRUE(HoldsFor([] { MsgBox("Delete <b>this</b> class & all?", Buttons::YesNo, Icon::Information); },
                         [](QMessageBox& box) {
                             EXPECT_EQ(box.text(), "Delete <b>this</b> class & all?");
                             EXPECT_EQ(TextLabel(box)->textFormat(), Qt::PlainText);
                         }));
}
