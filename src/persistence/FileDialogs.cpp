// The messages for files and folders that fail, and the flags that a failure clears.
#include "persistence/modIO.h"

#include "platform/MessageBoxes.h"

#include <array>

namespace {

struct FlaggedFile {
    std::string_view start; // of the file's name
    bool FileFlags::*written;
};

constexpr std::array<FlaggedFile, 5> FlaggedFiles{{
    {"terms", &FileFlags::terms},
    {"classes", &FileFlags::classes},
    {"assignments", &FileFlags::assignments},
    {"tasks", &FileFlags::tasks},
    {"events", &FileFlags::events},
}};

constexpr std::string_view Advice = "\n\nDo not continue working. Exit and restart Planovarium. "
                                    "If the error continues, see the Help for more information.";

} // namespace

void ShowFileError(std::string_view fileName, std::string_view action) {
    std::string text = "Error ";
    text.append(action).append(" the file: ").append(fileName).append(Advice);
    // The title says reading for both actions, and is meant to.
    MsgBox(text, Buttons::Ok, Icon::Exclamation, "Planovarium - File Read Error");
    if (bool* written = WrittenFlag(fileName)) {
        *written = false;
    }
}

void ShowDirectoryError() {
    MsgBox("Error creating or changing the File Directory." + std::string(Advice), Buttons::Ok,
           Icon::Exclamation, "Planovarium - Directory Error");
}

bool* WrittenFlag(std::string_view fileName) {
    for (const FlaggedFile& file : FlaggedFiles) {
        if (fileName.starts_with(file.start)) {
            return &(FileWrittenFlags.*file.written);
        }
    }
    return nullptr;
}
