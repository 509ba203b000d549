// The application object: the one place that a run-time error reaches which nothing has handled.
#pragma once

#include <QApplication>

class Application : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    // Shows the error box once and ends the process.
    bool notify(QObject* receiver, QEvent* event) override;

    // The same for an error raised outside of the events.
    static void EndOnError(const std::exception& error);
};
