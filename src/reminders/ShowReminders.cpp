// The ways in which the reminder window comes up: by itself, and by hand.
#include "core/Module1.h"
#include "platform/Process.h"
#include "platform/Screen.h"
#include "platform/Sound.h"
#include "reminders/frmReminders.h"

#include <QEvent>
#include <QWindow>

#include <filesystem>

namespace {

constexpr int EdgeDistance = 10; // pixels from the edges of the work area
constexpr const char* SoundName = "Reminder.wav";

bool HasFrame(const QWidget& window) {
    return window.windowHandle() != nullptr && !window.windowHandle()->frameMargins().isNull();
}

} // namespace

void frmReminders::ShowReminderWindow() {
    Show(false);
    PlaySound(std::filesystem::path(EnvironmentValue(ProgramFolderVariable)) / SoundName);
    ReminderShowWindow = false;
}

void frmReminders::ShowByHand() {
    Show(true);
    activateWindow();
}

void frmReminders::Show(bool withKeyboard) {
    setAttribute(Qt::WA_ShowWithoutActivating, !withKeyboard);
    if (RemindersDBFirstOpen) {
        RemindersDBFirstOpen = false;
        PlaceInCorner();
        waitsForFrame = !HasFrame(*this);
    }
    if (isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    waitsForScreen = !isVisible();
    show();
    raise();
}

void frmReminders::PlaceInCorner() {
    const WorkArea area = PrimaryWorkArea();
    const QSize size = frameGeometry().size();
    move(area.left + area.width - EdgeDistance - size.width(),
         area.top + area.height - EdgeDistance - size.height());
}

// A window manager gives the window its frame behind its first showing, and the frame counts. It puts a
// window that takes no keyboard behind the active one as it comes onto the screen.
bool frmReminders::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (waitsForFrame && isVisible() && HasFrame(*this)) {
        waitsForFrame = false;
        PlaceInCorner();
    }
    if (waitsForScreen && windowHandle() != nullptr && windowHandle()->isExposed()) {
        waitsForScreen = false;
        raise();
    }
    return done;
}
