// The planner and the check on the same damaged drives: what the planner fails at, the check has told, with
// the same file, record and field; what the check calls sound, the planner reads and shows.
#include "check/CheckedDrive.h"

#include "core/Preferences.h"
#include "core/TextFiles.h"
#include "export/CalendarDays.h"
#include "export/ListPages.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/RowSorts.h"
#include "support/RuleResults.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <set>

namespace {

constexpr unsigned Seed = 20091014;
constexpr int LongestRecord = 28; // lines, that of an event

#ifdef __SANITIZE_ADDRESS__
constexpr int RandomDrives = 40;
constexpr std::size_t JunkStep = 20;
#else
constexpr int RandomDrives = 600;
constexpr std::size_t JunkStep = 4;
#endif

constexpr std::array<const char*, 6> Files{"terms.xml", "classes.xml", "assignments_1.xml",
                                           "tasks.xml", "events.xml",  "Prefs.ini"};

const std::vector<std::string> Junk{"",
                                    " ",
                                    "soon",
                                    "2009/02/30",
                                    "99999",
                                    "-1",
                                    "1.5",
                                    "True",
                                    "x",
                                    "None",
                                    "Day",
                                    "Month",
                                    "25:00",
                                    "Last",
                                    "32767",
                                    "99 : xx",
                                    "5 Days",
                                    "DELETED RECORD",
                                    "TermID1-ClassID9",
                                    "2009/10/14 25:00:00"};

// How the planner fails: what its box names, or nothing.
struct Failure {
    std::string file;
    int record = 0;
    std::string field;
    std::string text;
};

// What stands behind the word on a line of the text; empty where there is none.
std::string Behind(const std::string& text, const std::string& word) {
    const std::size_t at = text.find("\n" + word);
    if (at == std::string::npos) {
        return {};
    }
    const std::size_t from = at + 1 + word.size();
    return text.substr(from, text.find('\n', from) - from);
}

Failure FailureIn(const std::string& text) {
    const std::string record = Behind(text, "Record: ");
    return {Behind(text, "File: "), record.empty() ? 0 : std::stoi(record), Behind(text, "Field: "), text};
}

// The pages of all lists and of the days of the month.
void MakePages() {
    for (const ListPage page : {ListPage::Homework, ListPage::StudySessions, ListPage::Tasks,
                                ListPage::Reminders, ListPage::Events}) {
        AddListPage(page, "INSERT\r\n", [](std::string_view) {});
    }
    const Date firstCell = Today() - std::chrono::days{20};
    HomeworkDays(firstCell);
    TaskDays(firstCell);
    EventDays(firstCell);
}

// Chooses the term, reads its assignments and shows all of it.
void ShowTerm(const std::string& name) {
    ChooseActiveTerm(name);
    if (ActiveTermIsLiving()) {
        ReadAssignments();
    }
    RuleResults();
    SelectHomeworkRows({"All", "All", Today(), false});
    SortHomeworkRows({static_cast<int>(HomeworkColumn::Score), Ascending});
    MakePages();
}

// Starts the planner on the drive and shows each term; gives the error that would end it, where one does.
std::vector<Failure> RunPlanner() {
    ResetStore();
    ReadTermsAndClasses();
    ReadTasks();
    ReadEvents();
    const PreferenceValues values = ReadPreferencesFile(Script.screen);
    std::vector<Failure> failures;
    std::set<std::string> names(Store.Term.name.begin(), Store.Term.name.end());
    names.insert(values.ActiveTerm);
    for (const std::string& name : names) {
        try {
            ShowTerm(name);
        } catch (const std::exception& error) {
            failures.push_back(FailureIn(FaultText(error)));
        }
    }
    return failures;
}

// The line with another value, its tags as they are.
std::string WithValue(const std::string& line, const std::string& value) {
    const std::size_t opened = line.find_first_of(">=");
    const std::size_t closed = line.rfind("</");
    if (opened == std::string::npos) {
        return line + value;
    }
    return line.substr(0, opened + 1) + value +
           (closed == std::string::npos || closed <= opened ? "" : line.substr(closed));
}

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::string_view rest = bytes; const std::optional<std::string_view> line = TakeLine(rest);) {
        lines.emplace_back(*line);
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

// Other records go by such a line, so a fault of it shows in them.
bool IsOfOtherRecords(const std::string& line) {
    return line.starts_with("  <id>") || line.starts_with("  <name>");
}

int LinesBefore(const std::string& bytes, std::size_t place) {
    return static_cast<int>(
        std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
}

struct Damage {
    std::string bytes;
    int line; // where the fault was put, from 1 on
};

// One fault in one file; most of them are a value.
Damage Damaged(const std::string& bytes, std::mt19937& random) {
    std::vector<std::string> lines = LinesOf(bytes);
    const std::size_t at = random() % lines.size();
    const int line = static_cast<int>(at) + 1;
    switch (random() % 10) {
    case 0:
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
        return {Joined(lines), line};
    case 1:
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), std::string(lines[at]));
        return {Joined(lines), line};
    case 2: {
        const std::size_t end = random() % bytes.size();
        return {bytes.substr(0, end), LinesBefore(bytes, end) + 1};
    }
    case 3: {
        std::string flipped = bytes;
        const std::size_t place = random() % flipped.size();
        flipped[place] ^= static_cast<char>(1U << (random() % 7));
        return {flipped, LinesBefore(bytes, place) + 1};
    }
    default:
        lines[at] = WithValue(lines[at], Junk[random() % Junk.size()]);
        return {Joined(lines), line};
    }
}

// True where a finding of the file, if there is one, is told at the line or within the record around it, or
// is of an id that two records have, which is told at the second.
bool IsToldNear(const Findings& findings, const std::string& file, int line) {
    const auto isOfFile = [&file](const Finding& finding) { return finding.file == file; };
    return std::ranges::none_of(findings, isOfFile) ||
           std::ranges::any_of(findings, [&](const Finding& finding) {
               return isOfFile(finding) && (std::abs(finding.line - line) <= LongestRecord ||
                                            finding.fault.find("is that of record") != std::string::npos);
           });
}

class Agreement : public CheckedDrive {
protected:
    Findings ExpectAgreement(const std::string& what) {
        Findings findings = Check().findings;
        const std::vector<Failure> failures = RunPlanner();
        for (const ShownBox& box : Script.boxes) {
            const std::string file = box.text.substr(24, box.text.find('\n') - 24);
            EXPECT_TRUE(std::ranges::any_of(findings, [&file](const Finding& f) { return f.file == file; }))
                << what << "\n"
                << box.text << Shown(findings);
        }
        for (const Failure& failure : failures) {
            EXPECT_FALSE(findings.empty()) << what << "\n" << failure.text;
            EXPECT_TRUE(failure.file.empty() ||
                        HasFinding(findings, failure.file, failure.record, failure.field))
                << what << "\n"
                << failure.text << "\n"
                << Shown(findings);
        }
        seenFailures += static_cast<int>(failures.size());
        seenBoxes += static_cast<int>(Script.boxes.size());
        seenSound += findings.empty() ? 1 : 0;
        Script.boxes.clear();
        return findings;
    }

    int seenFailures = 0;
    int seenBoxes = 0;
    int seenSound = 0;
};

} // namespace

TEST_F(Agreement, OnDrivesWithOneRandomFault) {
    std::mt19937 random(Seed);
    for (int drives = 0; drives < RandomDrives && !HasFailure(); ++drives) {
        const std::string file = Files[random() % Files.size()];
        const std::string sound = DataFile(file);
        const Damage damage = Damaged(sound, random);
        SetDataFile(file, damage.bytes);
        const Findings findings = ExpectAgreement(file + " as\n" + DataFile(file));
        EXPECT_TRUE(IsToldNear(findings, file, damage.line)) << "line " << damage.line << "\n"
                                                             << Shown(findings) << DataFile(file);
        SetDataFile(file, sound);
    }
    EXPECT_GT(seenFailures, RandomDrives / 40);
    EXPECT_GT(seenBoxes, RandomDrives / 50);
    EXPECT_GT(seenSound, RandomDrives / 20);
}

TEST_F(Agreement, OnDrivesWithSeveralRandomFaults) {
    std::mt19937 random(Seed + 1);
    for (int drives = 0; drives < RandomDrives / 3 && !HasFailure(); ++drives) {
        std::vector<std::string> sound;
        for (const char* file : Files) {
            sound.push_back(DataFile(file));
        }
        for (int faults = 0; faults < 3; ++faults) {
            const std::string file = Files[random() % Files.size()];
            SetDataFile(file, Damaged(DataFile(file) + "\r\n", random).bytes);
        }
        ExpectAgreement("several faults");
        for (std::size_t i = 0; i < Files.size(); ++i) {
            SetDataFile(Files[i], sound[i]);
        }
    }
}

// Each value of each record, one after the other, is some of the junk, and that of the next record another
// part.
TEST_F(Agreement, OnEachFieldOfEachRecordWithEachText) {
    for (const char* file : {"terms.xml", "classes.xml", "assignments_1.xml", "tasks.xml", "events.xml"}) {
        const std::string sound = DataFile(file);
        const std::vector<std::string> lines = LinesOf(sound);
        for (std::size_t at = 2; at < lines.size() && !HasFailure(); ++at) {
            if (!lines[at].starts_with("  <")) {
                continue;
            }
            for (std::size_t junk = at % JunkStep; junk < Junk.size(); junk += JunkStep) {
                std::vector<std::string> damaged = lines;
                damaged[at] = WithValue(lines[at], Junk[junk]);
                SetDataFile(file, Joined(damaged));
                const Findings findings = ExpectAgreement(std::string(file) + ": " + damaged[at]);
                const bool told = std::ranges::any_of(findings, [&](const Finding& finding) {
                    return finding.file == file && finding.line == static_cast<int>(at) + 1;
                });
                EXPECT_TRUE(told || findings.empty() || IsOfOtherRecords(lines[at])) << damaged[at] << "\n"
                                                                                     << Shown(findings);
            }
        }
        SetDataFile(file, sound);
    }
    EXPECT_GT(seenFailures, 200 / static_cast<int>(JunkStep));
}
