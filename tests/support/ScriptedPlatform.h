// The platform of the tests: a clock that they set, message boxes that answer from a queue and are
// remembered.
#pragma once

#include "platform/Clock.h"
#include "platform/ColorDialog.h"
#include "platform/FileDialogs.h"
#include "platform/Formats.h"
#include "platform/MessageBoxes.h"
#include "platform/Printer.h"
#include "platform/Screen.h"
#include "platform/Tray.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

struct ShownBox {
    std::string title;
    std::string text;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    Preset preset = Preset::First;

    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

struct StartedProcess {
    std::string program;
    std::vector<std::string> arguments;
};

// The colour dialog as it was opened.
struct ShownColors {
    int color = 0;
    CustomColors custom = NoCustomColors;

    friend bool operator==(const ShownColors&, const ShownColors&) = default;
};

// What was sent to the printer: so many pages, each painted by the procedure.
struct PrintedPages {
    int pages = 0;
    std::function<void(QPainter& painter, const PrintArea& area)> paint;
};

struct ScriptedPlatform {
    Moment now{};
    std::chrono::seconds lookTakes{0}; // that pass with each look at the clock
    DateOrder dateOrder = DateOrder::MonthDayYear;
    bool wordyDates = false;     // long dates as languages of many words have them
    std::vector<ShownBox> boxes; // every box shown, in order
    std::deque<Answer> answers;  // given to the next boxes; a box without one answers Ok, or No to a question
    std::function<void(const ShownBox&)> whileBoxIsOpen;  // runs while a box is on the screen
    std::function<void(const std::string&)> whileSyncing; // runs as a file or folder of that name is synced
    std::vector<std::string> fatalErrors;
    std::vector<SaveQuestion> saveDialogs;
    std::deque<std::filesystem::path> savePlaces; // chosen in the next save dialogs; one without is cancelled
    std::vector<ShownColors> colorDialogs;
    std::deque<std::optional<int>> colors;      // chosen in the next colour dialogs; one without is cancelled
    CustomColors customColors = NoCustomColors; // which a colour dialog gives back
    std::vector<PrintFields> printDialogs;
    std::optional<int> printCopies; // asked for in the print dialog; without them it is cancelled
    std::vector<PrintedPages> printed;
    std::vector<std::filesystem::path> sounds; // asked for, in order
    std::vector<std::string> opened;           // addresses handed to the shell
    std::vector<StartedProcess> processes;
    long startedProcess = 4711; // number of the next one that is started; 0 where none can be
    std::string trayTip;        // empty while there is no icon
    TrayEvents trayEvents;
    std::function<bool(const std::string&)> receiveLink;
    std::filesystem::path programFile = "/drive/planovarium";
    std::filesystem::path startupFolder; // from which the desktop session starts programs
    ScreenSize screen{1280, 1024};
    WorkArea workArea{0, 0, 1280, 994};
};

extern ScriptedPlatform Script;

// A fresh platform whose clock stands at noon of 2009-10-14, a Wednesday.
void ResetScript();

// Sets the clock: SetClock(2009, 10, 14, 9, 30).
void SetClock(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
