// The fixture of the tests of the reminder window: a planner with a term and two classes at noon of
// 2009-10-14, whose ticks the tests let come.
#pragma once

#include "reminders/frmReminders.h"
#include "support/Reminders.h"
#include "support/WindowTest.h"
#include "toolkit/grid/ListPainting.h"

class RemindersTest : public WindowTest {
protected:
    void SetUp() override;

    // A record that fires at the next tick; it is named by its kind and number.
    static void AddDueTask(const std::string& desc = "Task");
    static void AddDueHomework(const std::string& desc = "Assignment");
    static void AddDueEvent(const std::string& desc = "Event", const std::string& type = "None");
    static void AddDueSeries();

    // Lets the timer's tick come.
    void Tick() const;

    // The same, with nothing asked of the sounds and files later that came with it.
    void QuietTick();

    // The rows as "mode id", in the order of the list.
    std::vector<std::string> Standing() const;

    // The item of the selected row in that form; empty for none.
    std::string Selected() const;

    // Selects the row of the item, so that its row is drawn framed.
    void Select(const std::string& item) const;

    void ClickRow(int row) const;
    void PointAt(int row) const;
    void ClickTitle(ReminderListColumn column) const;
    void Press(int key) const;
    static void Click(QPushButton* button);

    QPoint PointOfRow(int row) const;

    // Lets the saves from now on be noted below.
    void NoteSaves();

    // The files saved since the last quiet tick, in order.
    std::vector<std::string> saved;

    // Lets each save of that file fail until the guard goes.
    struct FailingFile {
        explicit FailingFile(std::filesystem::path file);
        ~FailingFile();
        std::filesystem::path inTheWay;
    };

    FailingFile LetFail(const std::string& name) const { return FailingFile(data / name); }

    frmReminders* list = nullptr;
};

using Texts = std::vector<std::string>;
