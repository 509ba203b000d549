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

// The toolkit keeps 16 bytes of a guarded pointer to a window that is already being destroyed; where such a
// pointer is made has not been found yet.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QtSharedPointer::ExternalRefCountData::getAndRef";
}
