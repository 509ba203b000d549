// What mouse and keys must not do in any window.
#include "toolkit/InputRules.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QStyleHints>

#include <optional>
#include <utility>

namespace {

struct Press {
    QPoint at;        // on the screen
    quint64 time = 0; // in milliseconds, as the event has it
};

std::optional<Press> lastPress;    // unless a key came after it
std::optional<Press> openingPress; // the one that opened what was opened last
bool releaseIsDropped = false;     // that of a press that was dropped

bool IsSecondOf(const Press& first, const Press& next) {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    return next.time - first.time < static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
           (next.at - first.at).manhattanLength() <= hints.mouseDoubleClickDistance();
}

bool TakesPress(const QMouseEvent& event) {
    const Press press{event.globalPosition().toPoint(), event.timestamp()};
    releaseIsDropped = openingPress && IsSecondOf(*openingPress, press);
    if (!releaseIsDropped) {
        lastPress = press;
    }
    return releaseIsDropped;
}

// In a box of several lines Enter held down makes lines.
bool TakesKey(const QObject* watched, const QKeyEvent& event) {
    lastPress.reset();
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return isEnter && event.isAutoRepeat() && watched->isWidgetType() &&
           qobject_cast<const QPlainTextEdit*>(watched) == nullptr;
}

// The wheel goes on to what scrolls behind the combo.
bool TakesWheel(const QObject* watched, QEvent* event) {
    const auto* const combo = qobject_cast<const QComboBox*>(watched);
    if (combo == nullptr || combo->hasFocus()) {
        return false;
    }
    event->ignore();
    return true;
}

// The wheel does not give a combo the focus either.
void TakeWheelFocus(QObject* watched) {
    auto* const combo = qobject_cast<QComboBox*>(watched);
    if (combo != nullptr && combo->focusPolicy() == Qt::WheelFocus) {
        combo->setFocusPolicy(Qt::StrongFocus);
    }
}

class InputRules : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return TakesPress(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return std::exchange(releaseIsDropped, false);
        case QEvent::KeyPress:
            return TakesKey(watched, *static_cast<QKeyEvent*>(event));
        case QEvent::Wheel:
            return TakesWheel(watched, event);
        case QEvent::Polish:
            TakeWheelFocus(watched);
            return false;
        default:
            return false;
        }
    }
};

} // namespace

void InstallInputRules(QCoreApplication& application) {
    application.installEventFilter(new InputRules(&application));
}

void DropDoubleClick() {
    openingPress = lastPress;
}
