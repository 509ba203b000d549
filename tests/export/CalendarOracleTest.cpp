// The pages of random months through random templates, against a walk that looks each day up anew. Its
// templates are lists of what their lines mean, so that it reads no command.
#include "core/DateText.h"
#include "core/Values.h"
#include "export/PageLinesOf.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>

using namespace std::chrono_literals;

namespace {

using Texts = std::vector<std::string>;
using std::chrono::days;

// --- Random templates and months -----------------------------------------------------------------

enum class Meaning { Header, Row, Line, Footer, Nothing, Written };

struct TemplateLine {
    Meaning meaning = Meaning::Written;
    int number = 0;   // of a row or a line
    std::string text; // as it stands in the template
};

TemplateLine RandomLine(int tag) {
    switch (*rc::gen::weightedElement<int>({{1, 0}, {2, 1}, {5, 2}, {1, 3}, {1, 4}, {30, 5}})) {
    case 0:
        return {Meaning::Header, 0, "`header`"};
    case 1: {
        const int week = *rc::gen::inRange(0, 6);
        return {Meaning::Row, week, "<!-- `row " + std::to_string(week) + "` -->"};
    }
    case 2: {
        const int line = *rc::gen::inRange(0, 23);
        return {Meaning::Line, line, "`line " + std::to_string(line) + "`"};
    }
    case 3:
        return {Meaning::Footer, 0, "`footer`"};
    case 4:
        return {Meaning::Nothing, 0,
                *rc::gen::element<std::string>("`row 6`", "`row`", "`line`", "`line x`")};
    default: {
        std::string text = "[" + std::to_string(tag) + "]";
        for (int pieces = *rc::gen::inRange(0, 4); pieces > 0; --pieces) {
            text += *rc::gen::element<std::string>(" ~", " ~`", " `~", " xredbg", " xwhite1",
                                                   " class=xwhite2", " class=xwhite3", " xwhite4", " td");
        }
        return {Meaning::Written, 0, text};
    }
    }
}

std::vector<TemplateLine> RandomTemplate() {
    std::vector<TemplateLine> lines{{Meaning::Header, 0, "`header`"}, {Meaning::Row, 2, "`row 2`"}};
    for (int tag = 1, count = *rc::gen::inRange(10, 120); tag <= count; ++tag) {
        lines.push_back(RandomLine(tag));
    }
    return lines;
}

std::string RandomDate() {
    return *rc::gen::weightedOneOf<std::string>(
        {{12, rc::gen::map(rc::gen::inRange(-24, 30),
                           [](int n) { return StoredDate(Date{2009y / 10 / 14} + days{n}); })},
         {12, rc::gen::just<std::string>("2009/10/14")},
         {1, rc::gen::element<std::string>("someday", "", "//")}});
}

std::string RandomBoolean() {
    return *rc::gen::element<std::string>("True", "False");
}

std::string RandomName() {
    return *rc::gen::element<std::string>("", "Essay", "A much longer description ~ `row 1` xredbg",
                                          "DELETED RECORD");
}

void StoreRandomRecords() {
    ResetStore();
    AddClassRecord({.id = "1", .name = "Introduction to Algebra"});
    ActiveTermID = 1;
    for (int n = *rc::gen::inRange(0, 40); n > 0; --n) {
        AddAssignmentRecord({.class_ = *rc::gen::element<std::string>("1", "2"),
                             .date = RandomDate(),
                             .desc = RandomName(),
                             .time_left = *rc::gen::element<std::string>("00 : 00", "01 : 05", "12 : 30"),
                             .done = RandomBoolean()});
        AddTaskRecord({.date = RandomDate(),
                       .desc = RandomName(),
                       .date_exists = RandomBoolean(),
                       .type = *rc::gen::element<std::string>("None", "School", "Gone"),
                       .priority = *rc::gen::element<std::string>("None", "High"),
                       .done = RandomBoolean()});
        AddEventRecord({.date = RandomDate(),
                        .time = *rc::gen::element<std::string>("09:00 AM", "None"),
                        .desc = RandomName(),
                        .type = *rc::gen::element<std::string>("None", "Study Time", "TermID1-ClassID1",
                                                               "TermID2-ClassID1"),
                        .recurrence = *rc::gen::element<std::string>("None", "Day"),
                        .repeat_daily = "TFTTTFF"});
    }
}

// --- The days, each looked up anew ---------------------------------------------------------------

struct Day {
    Texts lines;
    std::string total = "&nbsp;";
    bool black = true;
};

bool IsOn(const std::string& date, Date day) {
    return IsDate(date) && DateValue(date) == day;
}

std::string Link(const std::string& title, const std::string& text, std::size_t limit) {
    return "<a title=\"" + title + "\" href=\"#top\">" + text.substr(0, limit) + "</a>";
}

std::string Clock(int minutes) {
    const std::string rest = std::to_string(minutes % 60);
    return std::to_string(minutes / 60) + ":" + (rest.size() == 1 ? "0" : "") + rest;
}

Day HomeworkOf(Date date) {
    const AssignmentLists& lists = Store.Assignment;
    Day day;
    int sum = 0;
    for (const bool done : {false, true}) {
        for (int i = 1; i <= lists.id.Count(); ++i) {
            if (lists.desc.Item(i) == "DELETED RECORD" || !IsOn(lists.date.Item(i), date) ||
                (lists.done.Item(i) == "True") != done) {
                continue;
            }
            const std::string& text = lists.time_left.Item(i);
            const int minutes = std::stoi(text.substr(0, 2)) * 60 + std::stoi(text.substr(5));
            sum += done ? 0 : minutes;
            const std::string class_ = lists.class_.Item(i) == "1" ? "Introduction to Algebra" : "";
            const std::string title = "Reading: " + lists.desc.Item(i);
            day.lines.push_back(
                done ? "&nbsp;<font color=\"Silver\">0:00</font>&nbsp;" + Link(title + " (Done)", class_, 14)
                     : "&nbsp;" + Clock(minutes) + "&nbsp;" +
                           Link(title + " (" + Clock(minutes) + " Study Time Left)", class_, 14));
        }
    }
    if (sum != 0) {
        day.total = "&nbsp;" + Clock(sum) + "&nbsp;Study Left";
        day.black = false;
    }
    return day;
}

Day TasksOf(Date date) {
    const TaskLists& lists = Store.TaskRecord;
    Day day;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        if (lists.desc.Item(i) == "DELETED RECORD" || lists.date_exists.Item(i) == "False" ||
            !IsOn(lists.date.Item(i), date)) {
            continue;
        }
        const bool done = lists.done.Item(i) == "True";
        const std::string name = lists.desc.Item(i).empty() ? "New Task" : lists.desc.Item(i);
        day.black = day.black && done;
        day.lines.push_back("&nbsp;" + Link((lists.type.Item(i) == "School" ? "School: " : "") + name +
                                                (lists.priority.Item(i) == "High" ? " - High Priority" : "") +
                                                (done ? " - Done" : " - 0% Complete"),
                                            name, 20));
    }
    return day;
}

Day EventsOf(Date date) {
    const EventLists& lists = Store.EventRecord;
    Day day;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        if (!IsDate(lists.date.Item(i)) || lists.type.Item(i) == "TermID2-ClassID1" ||
            !EventOccursOn(date, i)) {
            continue;
        }
        const std::string time = lists.time.Item(i) == "None" ? "" : "09:00AM ";
        const std::string& key = lists.type.Item(i);
        const std::string type = key == "None" ? "" : key == "Study Time" ? key : "Introduction to Algebra";
        const std::string& desc = lists.desc.Item(i);
        const std::string title = !type.empty() && !desc.empty() ? type + " - " + desc : type + desc;
        const std::string name = desc.empty() ? type : desc;
        day.lines.push_back(
            "&nbsp;" + time +
            Link(time + (title.empty() ? "New Event" : title), name.empty() ? "New Event" : name, 9));
    }
    return day;
}

// --- The page, line by line ----------------------------------------------------------------------

std::string Replaced(const std::string& text, const std::string& from, const std::string& to,
                     int most = 1000) {
    std::string result;
    std::size_t at = 0;
    while (at < text.size()) {
        if (most > 0 && text.compare(at, from.size(), from) == 0) {
            result += to;
            at += from.size();
            --most;
        } else {
            result += text[at++];
        }
    }
    return result;
}

struct Walk {
    CalendarPage page;
    ExportedMonth month;
    Meaning section = Meaning::Written;
    int week = -1, line = 0, column = 0;
    std::size_t header = 0;

    [[nodiscard]] bool IsHomework() const { return page == CalendarPage::Homework; }

    [[nodiscard]] Date DateOf(int inColumn) const { return month.firstCell + days{7 * week + inColumn}; }

    [[nodiscard]] Day DayOf(Date date) const {
        Day day = IsHomework()                  ? HomeworkOf(date)
                  : page == CalendarPage::Tasks ? TasksOf(date)
                                                : EventsOf(date);
        day.lines.resize(std::min<std::size_t>(day.lines.size(), 20));
        return day;
    }

    [[nodiscard]] int Height() const {
        int height = week < 0 ? 0 : 5;
        for (int c = 0; c < 7 && week >= 0; ++c) {
            height = std::max(height, static_cast<int>(DayOf(DateOf(c)).lines.size()));
        }
        return height;
    }

    [[nodiscard]] std::string Grey(std::string text) const {
        const std::chrono::year_month_day shown{month.firstCell + days{20}};
        const std::chrono::year_month_day date{DateOf(column)};
        for (int n = 1; n <= (IsHomework() ? 4 : 3) && date.month() != shown.month(); ++n) {
            text = Replaced(text, "xwhite" + std::to_string(n), "xgray" + std::to_string(n));
        }
        return text;
    }

    void Filled(std::string& text, const std::string& mark, const std::string& by) {
        column += text.find(mark) == std::string::npos ? 0 : 1;
        text = Replaced(text, mark, by, 1);
    }

    std::string Head(std::string text) {
        const Day day = DayOf(DateOf(column));
        text = Grey(day.black ? Replaced(text, "xredbg", "xblackbg") : text);
        if (IsHomework()) {
            text = Replaced(text, "~`", day.total, 1);
        }
        const std::chrono::year_month_day date{DateOf(column)};
        Filled(text, IsHomework() ? "`~" : "~", std::to_string(static_cast<unsigned>(date.day())));
        return text;
    }

    std::string TextOf(std::string text) {
        const Texts lines = DayOf(DateOf(column)).lines;
        if (line == Height() - 1) {
            text = Replaced(text, IsHomework() ? "class=xwhite3" : "class=xwhite2",
                            IsHomework() ? "class=xwhite4" : "class=xwhite3");
        }
        text = Grey(text);
        const auto at = static_cast<std::size_t>(line);
        Filled(text, "~", at < lines.size() ? lines[at] : "&nbsp;");
        return text;
    }

    std::string HeaderText(const std::string& text) {
        if (text.find('~') == std::string::npos) {
            return text;
        }
        Texts texts{"October 2009 Homework Calendar", "Created on Wednesday, October 14, 2009"};
        if (!IsHomework()) {
            texts[0] =
                page == CalendarPage::Tasks ? "October 2009 Task Calendar" : "October 2009 Event Calendar";
        }
        Texts names{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
        std::rotate(names.begin(), std::ranges::find(names, month.startDayOfWeek), names.end());
        texts.insert(texts.end(), names.begin(), names.end());
        texts.resize(std::max(texts.size(), header + 1));
        return Replaced(text, "~", texts[header++], 1);
    }

    // What the line comes to; nothing for a line that is not written.
    std::string Step(const TemplateLine& next) {
        if (next.meaning == Meaning::Nothing) {
            return "";
        }
        if (next.meaning != Meaning::Written) {
            section = next.meaning;
            column = 0;
            header = next.meaning == Meaning::Header ? 0 : header;
            (next.meaning == Meaning::Row ? week : line) = next.number;
            return "";
        }
        if (section == Meaning::Header) {
            return HeaderText(next.text) + "\n";
        }
        if (section == Meaning::Line && line >= Height()) {
            return "";
        }
        const bool filled = column < 7 && (section == Meaning::Row || section == Meaning::Line);
        return (!filled ? next.text : section == Meaning::Row ? Head(next.text) : TextOf(next.text)) + "\n";
    }
};

TEST(CalendarOracle, AgreesOnRandomMonthsThroughRandomTemplates) {
    EXPECT_TRUE(rc::check([] {
        ResetScript();
        StoreRandomRecords();
        const auto page =
            *rc::gen::element(CalendarPage::Homework, CalendarPage::Tasks, CalendarPage::Events);
        const auto start = *rc::gen::element<std::string>("Sunday", "Monday", "Saturday");
        Walk walk{page, {Today(), FirstCellDate(Today(), start), start}};
        std::string text;
        std::string expected;
        for (const TemplateLine& line : RandomTemplate()) {
            text += line.text + *rc::gen::element<std::string>("\n", "\r\n");
            expected += walk.Step(line);
        }
        RC_ASSERT(LinesOf(page, walk.month, text) == expected);
    }));
    ResetStore();
}

TEST(CalendarOracle, AFullTemplateWritesEachOrdinaryLineOnceAndNoCommand) {
    EXPECT_TRUE(rc::check([] {
        ResetScript();
        StoreRandomRecords();
        std::string text = "`header`\n[head]\n";
        int last = 0;
        for (int week = 0; week < 6; ++week) {
            text += "`row " + std::to_string(week) + "`\n[" + std::to_string(++last) + "]\n";
            for (int line = 0; line < 5; ++line) {
                text += "`line " + std::to_string(line) + "`\n[" + std::to_string(++last) + "]\n";
            }
        }
        const std::string page =
            LinesOf(CalendarPage::Tasks, {Today(), FirstCellDate(Today(), "Monday"), "Monday"},
                    text + "`footer`\n[foot]");
        std::string expected = "[head]\n";
        for (int n = 1; n <= last; ++n) {
            expected += "[" + std::to_string(n) + "]\n";
        }
        RC_ASSERT(page == expected + "[foot]\n");
    }));
    ResetStore();
}

} // namespace
