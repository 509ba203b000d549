// The application object: the one place that a run-time error reaches which nothing has handled.
#include "core/start/Application.h"

#include "persistence/modIO.h"
#include "platform/MessageBoxes.h"

#include <cstdlib>

namespace {

bool ending = false; // a paint or a timer raises its error again while the box is open

} // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        EndOnError(error);
        return false;
    }
}

void Application::EndOnError(const std::exception& error) {
    if (ending) {
        return;
    }
    ending = true;
    ShowFatalError(FaultText(error));
    std::_Exit(EXIT_FAILURE);
}
