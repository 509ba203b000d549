// The entry of the tests of the pictures: offscreen, with fixed fonts, at one scale for the whole process.
//   picture_tests [--scale=N] [--store]
#include "pictures/PictureOptions.h"
#include "toolkit/WindowStyle.h"

#include <QApplication>

#include <gtest/gtest.h>

int PictureScale = 1;
bool PicturesAreStored = false;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument.startsWith("--scale=")) {
            PictureScale = argument.mid(argument.indexOf('=') + 1).toInt();
        }
        PicturesAreStored = PicturesAreStored || argument == "--store";
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(PictureScale));
    qputenv("FONTCONFIG_FILE", PLANOVARIUM_FONTS);
    const QApplication application(argc, argv);
    ApplyProgramStyle();
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
