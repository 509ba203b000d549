// The entry of the window tests: the offscreen platform, and no look or language of the user's.
#include "toolkit/InputRules.h"
#include "toolkit/WindowStyle.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    InstallInputRules(application);
    ApplyProgramStyle();
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
