// What is said of a value that does not convert: where in which file it stands. It is looked for only when a
// conversion has failed, by the place in memory of the text that the conversion was given.
#include "persistence/FaultText.h"

#include "persistence/modIO.h"

#include "core/RunTimeError.h"
#include "core/Values.h"

namespace {

constexpr std::string_view Advice =
    "Copies of the last good files, where there are any, lie in the Backup folder. The program plancheck "
    "beside the planner tells more of the fault and gets a copy back.";

std::string PlaceText(const RecordFile& file, const RecordField& field, int position) {
    std::string text = "\n\nFile: " + file.name + "\nRecord: " + std::to_string(position);
    if (position <= file.named->Count()) {
        text += ", " + QuotedBeginning(file.named->Item(position));
    }
    text.append("\nField: ").append(field.tag);
    text += "\nValue: " + QuotedBeginning(field.list->Item(position));
    return text.append("\n\n").append(Advice);
}

// Empty where the place is in no text of the store.
std::string PlaceText(const char* place) {
    for (const RecordFile& file : RecordFiles()) {
        for (const RecordField& field : file.fields) {
            for (int position = 1; position <= field.list->Count(); ++position) {
                if (LiesIn(field.list->Item(position), place)) {
                    return PlaceText(file, field, position);
                }
            }
        }
    }
    return {};
}

} // namespace

std::string QuotedBeginning(std::string_view text) {
    constexpr std::size_t GreatestShownLength = 80;
    const std::size_t length = std::min(text.find_first_of("\r\n"), GreatestShownLength);
    const bool whole = length >= text.size();
    return "\"" + std::string(text.substr(0, length)) + (whole ? "\"" : "...\"");
}

std::string FaultText(const std::exception& error) {
    const auto* fault = dynamic_cast<const RunTimeError*>(&error);
    return error.what() + (fault == nullptr ? std::string{} : PlaceText(fault->place));
}
