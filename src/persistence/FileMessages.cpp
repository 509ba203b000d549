// The messages for files and folders that fail, and the flag that a failure clears.
#include "persistence/modIO.h"

#include "platform/MessageBoxes.h"

namespace {

constexpr std::string_view Advice = "\n\nDo not continue working. Exit and restart Planovarium. "
                                    "If the error continues, see the Help for more information.";

} // namespace

void ShowFileError(std::string_view fileName, std::string_view action) {
    std::string text = "Error ";
    text.append(action).append(" the file: ").append(fileName).append(Advice);
    // The title says reading for both actions, and is meant to.
    MsgBox(text, Buttons::Ok, Icon::Exclamation, "Planovarium - File Read Error");
    for (const RecordFile& file : RecordFiles()) {
        if (fileName.starts_with(file.kind)) {
            FileWrittenFlags.*file.written = false;
        }
    }
}

void ShowDirectoryError() {
    MsgBox("Error creating or changing the File Directory." + std::string(Advice), Buttons::Ok,
           Icon::Exclamation, "Planovarium - Directory Error");
}
