// The fixture of the tests of the reminder window.
#include "reminders/RemindersTest.h"

#include "mainwindow/flows/TermFlow.h"
#include "toolkit/grid/ListScroll.h"

#include <filesystem>

namespace {

constexpr const char* Due = "2009/10/14 09:00:00";
constexpr const char* TmpEnding = ".tmp";

} // namespace

void RemindersTest::SetUp() {
    WindowTest::SetUp();
    WriteData("terms.xml",
              TermsFile({{}, {.id = 2, .name = "Spring 2010", .start = "2010/01/04", .end = "2010/05/20"}}));
    LoadWindow();
    SetActiveTerm(*window, "Fall 2009");
    AddClassRecord({.id = "1", .name = "Algebra", .forecolor = "255", .backcolor = "65280"});
    AddClassRecord({.id = "2", .name = "History"});
    list = ReminderListWindow;
    NoteSaves();
}

void RemindersTest::NoteSaves() {
    Script.whileSyncing = [this](const std::string& name) {
        if (name.ends_with(TmpEnding)) {
            saved.push_back(name.substr(0, name.size() - std::string(TmpEnding).size()));
        }
    };
}

void RemindersTest::AddDueTask(const std::string& desc) {
    AddTaskRecord({.desc = desc, .reminder = "True", .reminder_alarm = Due});
}

void RemindersTest::AddDueHomework(const std::string& desc) {
    AddAssignmentRecord({.desc = desc, .reminder = "True", .reminderalarm = Due});
}

void RemindersTest::AddDueEvent(const std::string& desc, const std::string& type) {
    AddEventRecord({.desc = desc, .type = type, .reminder = "True", .reminder_alarm = Due});
}

void RemindersTest::AddDueSeries() {
    AddArmedEvent({.date = "2009/10/01", .desc = "Run", .recurrence = "Day", .repeat_daily = "TTTTTTT"});
}

void RemindersTest::Tick() const {
    FireTimer(list->TimerReminders);
}

void RemindersTest::QuietTick() {
    Tick();
    saved.clear();
    Script.sounds.clear();
}

std::vector<std::string> RemindersTest::Standing() const {
    std::vector<std::string> standing;
    for (int row = 1; row <= list->ReminderIds.Count(); ++row) {
        standing.push_back(list->ReminderModes.Item(row) + " " + list->ReminderIds.Item(row));
    }
    return standing;
}

std::string RemindersTest::Selected() const {
    return list->ReminderSelectedRow == 0
               ? std::string{}
               : Standing().at(static_cast<std::size_t>(list->ReminderSelectedRow - 1));
}

void RemindersTest::Select(const std::string& item) const {
    const std::vector<std::string> standing = Standing();
    const auto found = std::ranges::find(standing, item);
    ASSERT_NE(found, standing.end()) << item;
    const int row = static_cast<int>(found - standing.begin()) + 1;
    ShowRow(*list, row);
    ClickRow(row);
    ASSERT_EQ(Selected(), item);
}

QPoint RemindersTest::PointOfRow(int row) const {
    return {list->picGrid->width() / 2,
            (RowTop(PlaceOfRow(row, list->FirstRow)) + RowUnits / 2) / UnitsPerPixel};
}

void RemindersTest::ClickRow(int row) const {
    QTest::mouseClick(list->picGrid, Qt::LeftButton, {}, PointOfRow(row));
}

void RemindersTest::PointAt(int row) const {
    const QPoint point = PointOfRow(row);
    QMouseEvent moved(QEvent::MouseMove, point, list->picGrid->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(list->picGrid, &moved);
}

void RemindersTest::ClickTitle(ReminderListColumn column) const {
    list->picColHeader[static_cast<std::size_t>(column)]->Press();
}

void RemindersTest::Press(int key) const {
    QTest::keyClick(list->picGrid, static_cast<Qt::Key>(key));
}

void RemindersTest::Click(QPushButton* button) {
    QTest::mouseClick(button, Qt::LeftButton);
}

RemindersTest::FailingFile::FailingFile(std::filesystem::path file) : inTheWay(std::move(file)) {
    inTheWay += TmpEnding;
    std::filesystem::create_directories(inTheWay / "in the way");
}

RemindersTest::FailingFile::~FailingFile() {
    std::filesystem::remove_all(inTheWay);
}
