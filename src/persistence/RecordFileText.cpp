// Record files as text: the tags, and all that a kind's lists hold.
#include "persistence/RecordFileText.h"

#include "core/DateText.h"
#include "core/FetchAhead.h"

#include <algorithm>

namespace {

constexpr std::string_view Header = R"(<?xml version="1.0" encoding="ISO-8859-1"?>)";
constexpr std::string_view Indentation = "  ";
constexpr std::string_view NoDate = "//";
constexpr std::size_t BlockSize = 65536; // bytes gathered before they are written

// A text that is no date comes out three times, once for the year, the month and the day each. A text of
// slashes is what an empty date became, and stays as it is so that the file does not grow from run to run.
std::string FormattedDate(const std::string& text) {
    if (const std::optional<Date> date = DateIn(text)) {
        return StoredDate(*date);
    }
    if (text.find_first_not_of('/') == std::string::npos) {
        return std::string(NoDate);
    }
    return text + "/" + text + "/" + text;
}

} // namespace

std::string OpeningTag(std::string_view tag) {
    return std::string("<").append(tag).append(">");
}

std::string ClosingTag(std::string_view tag) {
    return std::string("</").append(tag).append(">");
}

std::vector<FieldFrame> FramesOf(const std::vector<RecordField>& fields, std::string_view before,
                                 std::string_view behind) {
    std::vector<FieldFrame> frames;
    frames.reserve(fields.size());
    for (const RecordField& field : fields) {
        frames.push_back(
            {std::string(before).append(OpeningTag(field.tag)), ClosingTag(field.tag).append(behind)});
    }
    return frames;
}

std::string WithSlashes(std::string_view date) {
    std::string text(date);
    std::ranges::replace_if(
        text, [](char character) { return character == '.' || character == '-'; }, '/');
    return text;
}

void WriteRecords(OutputFile& output, const RecordFile& file, int records) {
    const std::vector<FieldFrame> frames = FramesOf(file.fields, Indentation, LineEnd);
    const std::string recordStart = OpeningTag(file.record).append(LineEnd);
    const std::string recordEnd = ClosingTag(file.record).append(LineEnd);
    std::string block(Header);
    block.append(LineEnd).append(OpeningTag(file.root)).append(LineEnd);
    for (int position = 1; position <= records; ++position) {
        block.append(recordStart);
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const TextList& values = *file.fields[i].list;
            const std::string& value = values.Item(position);
            FetchAhead(values, position);
            block.append(frames[i].opening);
            if (file.fields[i].rule == FieldRule::DateText) {
                block.append(FormattedDate(value));
            } else {
                block.append(value);
            }
            block.append(frames[i].closing);
        }
        block.append(recordEnd);
        if (block.size() >= BlockSize) {
            WriteBytes(output, block);
            block.clear();
        }
    }
    WriteBytes(output, block.append(ClosingTag(file.root)).append(LineEnd));
}
