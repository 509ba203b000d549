// What plancheck is asked for on its command line.
#include "check/Commands.h"

#include "check/Drive.h"
#include "check/Report.h"
#include "check/Restore.h"
#include "check/faults/DataFiles.h"
#include "core/Values.h"
#include "platform/Clock.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view Usage =
    "plancheck looks for faults in the files of a planner's drive. It changes nothing unless told to.\n"
    "\n"
    "  plancheck [DRIVE]                               what is at fault, a line each\n"
    "  plancheck --backups [DRIVE]                     the backups of each file, and what each holds\n"
    "  plancheck --restore FILE GENERATION [DRIVE]     gets backup 1, 2 or 3 of a file back\n"
    "  plancheck --restore FILE waiting [DRIVE]        or what a save that was cut short left\n"
    "  plancheck --set-aside FILE RECORD [DRIVE]       takes one record out of a file, and keeps it\n"
    "  --json                                          tells the faults or the backups as JSON\n"
    "\n"
    "DRIVE is the drive, its folder for documents or the folder Data. Without it the drive's variables tell "
    "it,\n"
    "else the drive on which plancheck lies.\n"
    "It ends with 0 where nothing is at fault, 1 where something is, and 2 where it could not look.\n";

constexpr std::string_view CannotSee =
    "A planner that another user or another computer runs on this drive cannot be seen from here.\n";

struct Request {
    std::string_view command = "check";
    std::vector<std::string> operands{};
    std::string drive{};
    bool json = false;
    bool valid = true;
};

struct Command {
    std::string_view option;
    std::size_t operands;
};

constexpr std::array<Command, 4> Commands{{
    {"--backups", 0},
    {"--restore", 2},
    {"--set-aside", 2},
    {"--help", 0},
}};

// The words of the command line; not valid where they say nothing that is known.
Request RequestIn(const std::vector<std::string>& arguments) {
    Request request;
    std::size_t operands = 0;
    bool hasDrive = false;
    for (const std::string& argument : arguments) {
        const auto known = std::ranges::find(Commands, argument, &Command::option);
        if (argument == "--json") {
            request.json = true;
        } else if (known != Commands.end() && request.command == "check") {
            request.command = known->option;
            operands = known->operands;
        } else if (argument.starts_with("--")) {
            request.valid = false;
        } else if (request.operands.size() < operands) {
            request.operands.push_back(argument);
        } else {
            request.valid = request.valid && !hasDrive && !argument.empty();
            request.drive = argument;
            hasDrive = true;
        }
    }
    request.valid = request.valid && request.operands.size() == operands;
    return request;
}

int StatusOf(const CheckResult& result) {
    if (!result.lookedAtAll) {
        return FailedStatus;
    }
    return result.findings.empty() ? CleanStatus : FoundStatus;
}

CommandResult Check(bool json) {
    const CheckResult result = CheckDrive(Now());
    return {.status = StatusOf(result), .output = json ? CheckJson(result) : CheckText(result)};
}

CommandResult ShowBackups(bool json) {
    const DriveCopies all = AllCopies();
    return {.status = all.lookedAtAll ? CleanStatus : FailedStatus,
            .output = json ? CopiesJson(all.copies) : CopiesText(all.copies),
            .errors = all.lookedAtAll ? "" : "Not all of the backups could be read.\n"};
}

std::string KeptText(const ChangeResult& change) {
    std::string text;
    for (const std::string& name : change.kept) {
        text += "Kept in the folder Backup: " + name + ".\n";
    }
    return text;
}

// Makes the change unless the drive is in use, and checks again.
template <class Change>
CommandResult ChangeAndCheck(const std::string& fileName, std::string_view said, Change change) {
    const std::optional<RecordFile> file = RecordFileNamed(fileName);
    if (!file) {
        return {.errors = fileName + " is no record file of the planner.\n"};
    }
    if (const std::string why = WhyInUse(); !why.empty()) {
        return {.errors = why + "\n"};
    }
    const ChangeResult result = change(*file);
    if (!result.done) {
        return {.output = KeptText(result),
                .errors = std::string(CannotSee) + file->name +
                          " could not be replaced, and nothing is lost: " + Utf8(result.text) + ".\n"};
    }
    CommandResult checked = Check(false);
    checked.output =
        KeptText(result) + file->name + ": " + Utf8(result.text).append(said) + ".\n" + checked.output;
    checked.errors = CannotSee;
    return checked;
}

CommandResult Restore(const Request& request) {
    return ChangeAndCheck(request.operands[0], " is in its place now", [&request](const RecordFile& file) {
        return RestoreFile(file, request.operands[1]);
    });
}

CommandResult SetAside(const Request& request) {
    const std::optional<int> record = IdIn(request.operands[1]);
    return ChangeAndCheck(request.operands[0], " are taken out of it now", [&record](const RecordFile& file) {
        return SetRecordAside(file, record.value_or(0));
    });
}

} // namespace

CommandResult RunCommand(const std::vector<std::string>& arguments) {
    const Request request = RequestIn(arguments);
    if (!request.valid) {
        return {.errors = std::string(Usage)};
    }
    if (request.command == "--help") {
        return {.status = CleanStatus, .output = std::string(Usage)};
    }
    if (!FindDrive(request.drive)) {
        return {.errors = "There is no data of the planner" +
                          (request.drive.empty() ? std::string() : " in " + request.drive) +
                          ". Name the drive: plancheck DRIVE\n"};
    }
    if (request.command == "--restore") {
        return Restore(request);
    }
    if (request.command == "--set-aside") {
        return SetAside(request);
    }
    return request.command == "--backups" ? ShowBackups(request.json) : Check(request.json);
}
