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

// The toolkit's widgets are built without exceptions: an error that passes through one leaves the widget's
// guard of itself behind. The program ends at such an error; a test that expects it goes on.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QtSharedPointer::ExternalRefCountData::getAndRef";
}
