// The records of any bytes of a kind, and how two of them differ.
#include "check/faults/FileRecords.h"

#include "check/faults/DataFiles.h"
#include "persistence/FaultText.h"

#include <unordered_map>

namespace {

constexpr std::size_t NamesShown = 3;

std::string AllOf(const RecordFile& file, int position) {
    std::string all;
    for (const RecordField& field : file.fields) {
        all.append(field.list->Item(position)).push_back('\0');
    }
    return all;
}

// The names of those records of the first whose ids the second lacks.
std::vector<std::string> Lacking(const std::vector<RecordTexts>& first,
                                 const std::unordered_map<std::string, const RecordTexts*>& second) {
    std::vector<std::string> names;
    for (const RecordTexts& record : first) {
        if (!second.contains(record.id)) {
            names.push_back(record.name);
        }
    }
    return names;
}

std::unordered_map<std::string, const RecordTexts*> ById(const std::vector<RecordTexts>& records) {
    std::unordered_map<std::string, const RecordTexts*> byId;
    for (const RecordTexts& record : records) {
        byId.emplace(record.id, &record);
    }
    return byId;
}

} // namespace

std::vector<RecordTexts> RecordsIn(const RecordFile& file, std::string_view bytes) {
    std::vector<TextList> kept;
    for (const RecordField& field : file.fields) {
        kept.push_back(std::move(*field.list));
    }
    const int counter = *file.nextId;
    const ReadFile read = ReadBytes(file, bytes);
    const TextList& ids = *file.fields.front().list;
    std::vector<RecordTexts> records;
    for (int position = 1; position <= read.records; ++position) {
        records.push_back({ids.Item(position), NameOf(file, position), AllOf(file, position)});
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
        *file.fields[i].list = std::move(kept[i]);
    }
    *file.nextId = counter;
    return records;
}

Difference Differ(const std::vector<RecordTexts>& first, const std::vector<RecordTexts>& second) {
    const auto inFirst = ById(first);
    const auto inSecond = ById(second);
    Difference difference{Lacking(first, inSecond), Lacking(second, inFirst)};
    for (const RecordTexts& record : first) {
        const auto other = inSecond.find(record.id);
        difference.changed += other != inSecond.end() && other->second->all != record.all ? 1 : 0;
    }
    return difference;
}

std::string NamesText(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), NamesShown); ++i) {
        text += (i > 0 ? ", " : "") + QuotedBeginning(names[i]);
    }
    return names.size() <= NamesShown ? text
                                      : text + " and " + std::to_string(names.size() - NamesShown) + " more";
}
