// The dialog for choosing a colour, as it stands on the screen.
#include "platform/ColorDialog.h"

#include "support/ChildProcess.h"
#include "toolkit/Modal.h"
#include "toolkit/PictureBox.h"

#include <QApplication>
#include <QColorDialog>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr int Orange = 0x10A0F0;

// An application can be made once in a process, so each dialog has a process of its own. The answer is given
// as soon as the dialog is open.
bool HoldsFor(const std::function<void()>& choose, const std::function<void(QColorDialog&)>& answer) {
    return SucceedsInChild([&] {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        int count = 1;
        char name[] = "colours";
        char* arguments[] = {name, nullptr};
        const QApplication application(count, arguments);
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->isVisible()) {
                poll.stop();
                answer(*dialog);
            }
        });
        poll.start(1);
        choose();
        EXPECT_FALSE(poll.isActive()) << "no dialog has opened";
    });
}

} // namespace

TEST(ColorDialog, OpensOnTheColorAndGivesTheOneThatIsChosen) {
    EXPECT_TRUE(HoldsFor(
        [] {
            CustomColors custom = NoCustomColors;
            EXPECT_EQ(ChooseColor(Orange, custom), 0x332211);
        },
        [](QColorDialog& dialog) {
            EXPECT_EQ(dialog.currentColor(), ToQColor(Orange));
            dialog.setCurrentColor(QColor(0x11, 0x22, 0x33));
            dialog.accept();
        }));
}

TEST(ColorDialog, GivesNothingWhenCancelled) {
    EXPECT_TRUE(HoldsFor(
        [] {
            CustomColors custom = NoCustomColors;
            EXPECT_EQ(ChooseColor(Orange, custom), std::nullopt);
        },
        [](QColorDialog& dialog) {
            dialog.setCurrentColor(Qt::black);
            dialog.reject();
        }));
}

TEST(ColorDialog, CountsAsAModalDialogAsLongAsItIsOpen) {
    EXPECT_TRUE(HoldsFor(
        [] {
            CustomColors custom = NoCustomColors;
            EXPECT_FALSE(ModalDialogIsOpen());
            ChooseColor(Orange, custom);
            EXPECT_FALSE(ModalDialogIsOpen());
        },
        [](QColorDialog& dialog) {
            EXPECT_TRUE(ModalDialogIsOpen());
            dialog.reject();
        }));
}

TEST(ColorDialog, OffersTheCustomColorsAndTakesThemBackAlsoWhenCancelled) {
    EXPECT_TRUE(HoldsFor(
        [] {
            CustomColors custom = NoCustomColors;
            custom[0] = 0x010203;
            custom[15] = 0x040506;
            ChooseColor(Orange, custom);
            CustomColors expected = NoCustomColors;
            expected[0] = 0x010203;
            expected[7] = 0x0000FF;
            expected[15] = 0x040506;
            EXPECT_EQ(custom, expected);
        },
        [](QColorDialog& dialog) {
            EXPECT_EQ(QColorDialog::customColor(0), QColor(3, 2, 1));
            EXPECT_EQ(QColorDialog::customColor(15), QColor(6, 5, 4));
            EXPECT_EQ(QColorDialog::customColor(7), QColor(Qt::white));
            QColorDialog::setCustomColor(7, Qt::red);
            dialog.reject();
        }));
}
