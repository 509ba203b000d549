// The platform of the tests: a clock that they set, message boxes that answer from a queue and are
// remembered.
#include "support/ScriptedPlatform.h"

#include "platform/InstanceLink.h"
#include "platform/Process.h"
#include "platform/Sound.h"

#include <array>
#include <cstdlib>
#include <unistd.h>

ScriptedPlatform Script;

namespace {

namespace fs = std::filesystem;
using std::chrono::floor;

constexpr std::array<const char*, 12> MonthNames{"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};
constexpr std::array<const char*, 7> DayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                              "Thursday", "Friday", "Saturday"};

void NoteSync(const fs::path& path) {
    if (Script.whileSyncing) {
        Script.whileSyncing(path.filename().string());
    }
}

std::string Padded(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

void ResetScript() {
    Script = {};
    SetClock(2009, 10, 14);
}

void SetClock(int year, int month, int day, int hour, int minute, int second) {
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    Script.now = Moment{Date{date}} + std::chrono::hours{hour} + std::chrono::minutes{minute} +
                 std::chrono::seconds{second};
}

Moment Now() {
    Script.now += Script.lookTakes;
    return Script.now - Script.lookTakes;
}

Date Today() {
    return floor<std::chrono::days>(Now());
}

DateOrder LocaleDateOrder() {
    return Script.dateOrder;
}

// The forms of US English.
ScreenText FormatDate(Date date, std::string_view form) {
    const std::chrono::year_month_day parts{date};
    const int y = static_cast<int>(parts.year());
    const auto m = static_cast<std::size_t>(static_cast<unsigned>(parts.month())) - 1;
    const int d = static_cast<int>(static_cast<unsigned>(parts.day()));
    const std::string month = MonthNames[m];
    const std::string weekday = DayNames[std::chrono::weekday{date}.c_encoding()];
    if (form == "Long Date" && Script.wordyDates) {
        return {weekday + "-feira, " + std::to_string(d) + " de " + month + " de " + std::to_string(y)};
    }
    if (form == "Long Date") {
        return {weekday + ", " + month + " " + std::to_string(d) + ", " + std::to_string(y)};
    }
    if (form == "Medium Date") {
        return {Padded(d) + "-" + month.substr(0, 3) + "-" + Padded(y % 100)};
    }
    if (form == "Short Date") {
        return {std::to_string(m + 1) + "/" + std::to_string(d) + "/" + std::to_string(y)};
    }
    if (form == "dddd, mmm d") {
        return {weekday + ", " + month.substr(0, 3) + " " + std::to_string(d)};
    }
    if (form == "dddd, MMMM d") {
        return {weekday + ", " + month + " " + std::to_string(d)};
    }
    if (form == "MMMM") {
        return {month};
    }
    return {};
}

Answer MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title, Preset preset) {
    Script.boxes.push_back({std::string(title), std::string(text), buttons, icon, preset});
    if (Script.whileBoxIsOpen) {
        Script.whileBoxIsOpen(ShownBox(Script.boxes.back()));
    }
    if (Script.answers.empty()) {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
    const Answer answer = Script.answers.front();
    Script.answers.pop_front();
    return answer;
}

void ShowFatalError(std::string_view text) {
    Script.fatalErrors.emplace_back(text);
}

std::optional<fs::path> GetSaveFileName(const SaveQuestion& question) {
    Script.saveDialogs.push_back(question);
    if (Script.savePlaces.empty()) {
        return std::nullopt;
    }
    const fs::path place = Script.savePlaces.front();
    Script.savePlaces.pop_front();
    return place;
}

std::optional<int> ChooseColor(int color, CustomColors& custom) {
    Script.colorDialogs.push_back({color, custom});
    custom = Script.customColors;
    if (Script.colors.empty()) {
        return std::nullopt;
    }
    const std::optional<int> chosen = Script.colors.front();
    Script.colors.pop_front();
    return chosen;
}

bool ShowPrinter(PrintFields& fields) {
    Script.printDialogs.push_back(fields);
    fields.copies = Script.printCopies.value_or(fields.copies);
    return Script.printCopies.has_value();
}

void PrintPages(int pages, const std::function<void(QPainter& painter, const PrintArea& area)>& paint) {
    Script.printed.push_back({pages, paint});
}

void PlaySound(const std::filesystem::path& file) {
    Script.sounds.push_back(file);
}

void AddTrayIcon(std::string_view tip, TrayEvents events) {
    Script.trayTip = tip;
    Script.trayEvents = std::move(events);
}

void RemoveTrayIcon() {
    Script.trayTip.clear();
}

bool ClaimFirstInstance() {
    return true;
}

LinkResult SendLinkCommand(std::string_view, std::string_view, std::string_view) {
    return LinkResult::Failed;
}

bool ReceiveLinkCommands(std::string_view, std::string_view,
                         std::function<bool(const std::string& command)> receive) {
    Script.receiveLink = std::move(receive);
    return true;
}

long ProcessNumber() {
    return ::getpid();
}

bool ProcessExists(long number) {
    return number == ProcessNumber() || (number == Script.startedProcess && !Script.processes.empty());
}

std::string EnvironmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string{} : std::string(value);
}

void ShellOpen(std::string_view address) {
    Script.opened.emplace_back(address);
}

long StartProcess(const std::string& program, std::initializer_list<std::string> arguments) {
    Script.processes.push_back({program, arguments});
    return Script.startedProcess;
}

std::filesystem::path ProgramFile() {
    return Script.programFile;
}

std::filesystem::path StartupFolder() {
    return Script.startupFolder;
}

void OnTermination(const std::function<void()>&) {
}

bool SyncToDevice(std::FILE* file) {
    if (std::fflush(file) != 0 || ::fsync(::fileno(file)) != 0) {
        return false;
    }
    const fs::path opened = "/proc/self/fd/" + std::to_string(::fileno(file));
    std::error_code ignored;
    NoteSync(fs::read_symlink(opened, ignored));
    return true;
}

bool SyncFolder(const fs::path& folder) {
    NoteSync(folder);
    return fs::is_directory(folder);
}

ScreenSize PrimaryScreenSize() {
    return Script.screen;
}

WorkArea PrimaryWorkArea() {
    return Script.workArea;
}
