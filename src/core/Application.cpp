// The application object: the one place that a run-time error reaches which nothing has handled.
#include "core/Application.h"

#include "platform/MessageBoxes.h"

#include <cstdlib>

namespace {

bool ending = false; // a paint or a timer raises its error again while the box is open

} // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        EndOnError(error.what());
        return false;
    }
}

void Application::EndOnError(const char* text) {
    if (ending) {
        return;
    }
    ending = true;
    ShowFatalError(text);
    std::_Exit(EXIT_FAILURE);
}
