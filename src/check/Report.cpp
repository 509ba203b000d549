// What the check tells, as text for a person and as JSON for a program.
#include "check/Report.h"

#include "check/faults/FileAge.h"
#include "check/faults/FileRecords.h"
#include "core/Module1.h"
#include "core/TextFiles.h"
#include "persistence/FaultText.h"
#include "platform/CharacterSet.h"

#include <array>
#include <cstdio>

namespace {

// The place of the finding: "tasks.xml, line 14, record 2 "Buy paper", field date".
std::string PlaceOf(const Finding& finding) {
    std::string text = finding.file;
    if (finding.line != 0) {
        text += ", line " + std::to_string(finding.line);
    }
    if (finding.record != 0) {
        text += ", record " + std::to_string(finding.record);
    }
    if (!finding.name.empty()) {
        text += " " + QuotedBeginning(finding.name);
    }
    if (!finding.field.empty()) {
        text += ", field " + finding.field;
    }
    return text;
}

// --- JSON --------------------------------------------------------------------------------------------------

std::string JsonText(std::string_view text) {
    std::string json = "\"";
    for (const char character : Utf8(text)) {
        if (character == '"' || character == '\\') {
            json.append({'\\', character});
        } else if (static_cast<unsigned char>(character) < ' ') {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(character));
            json += code.data();
        } else {
            json += character;
        }
    }
    return json + "\"";
}

std::string Member(std::string_view name, const std::string& json) {
    return JsonText(name) + ": " + json;
}

std::string JsonList(const std::vector<std::string>& texts) {
    std::string json;
    for (const std::string& text : texts) {
        json += (json.empty() ? "" : ", ") + JsonText(text);
    }
    return "[" + json + "]";
}

std::string JsonOf(const Finding& finding) {
    return "    {" + Member("file", JsonText(finding.file)) + ", " +
           Member("line", std::to_string(finding.line)) + ", " +
           Member("record", std::to_string(finding.record)) + ", " + Member("name", JsonText(finding.name)) +
           ", " + Member("field", JsonText(finding.field)) + ", " + Member("fault", JsonText(finding.fault)) +
           ", " + Member("meaning", JsonText(finding.meaning)) + "}";
}

std::string JsonOf(const FileCopy& copy) {
    return "    {" + Member("file", JsonText(copy.file)) + ", " + Member("name", JsonText(copy.name)) + ", " +
           Member("generation", JsonText(copy.word)) + ", " +
           Member("written", JsonText(copy.written ? WrittenText(copy.written) : "")) + ", " +
           Member("readable", copy.readable ? "true" : "false") + ", " +
           Member("records", std::to_string(copy.records)) + ", " +
           Member("only_here", JsonList(copy.onlyHere)) + ", " +
           Member("only_in_present", JsonList(copy.onlyInPresent)) + ", " +
           Member("changed", std::to_string(copy.changed)) + "}";
}

template <class Row>
std::string JsonRows(const std::vector<Row>& rows) {
    std::string json;
    for (const Row& row : rows) {
        json += (json.empty() ? "\n" : ",\n") + JsonOf(row);
    }
    return json.empty() ? "[]" : "[" + json + "\n  ]";
}

std::string DifferenceText(const FileCopy& copy) {
    std::string text;
    if (!copy.onlyHere.empty()) {
        text += "; the present file lacks " + NamesText(copy.onlyHere);
    }
    if (!copy.onlyInPresent.empty()) {
        text += "; it lacks " + NamesText(copy.onlyInPresent) + " of the present file";
    }
    if (copy.changed > 0) {
        text += "; " + Counted(copy.changed, "record") + (copy.changed == 1 ? " differs" : " differ");
    }
    return text.empty() ? "; the same records as in the present file" : text;
}

} // namespace

std::string Utf8(std::string_view text) {
    std::string utf8;
    for (const char byte : text) {
        const char16_t character = CharacterOf(static_cast<unsigned char>(byte));
        if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0 | (character >> 6));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (character >> 12));
            utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return utf8;
}

std::string CheckText(const CheckResult& result) {
    std::string text;
    for (const Finding& finding : result.findings) {
        text += Utf8(PlaceOf(finding) + ": " + finding.fault + ". " + finding.meaning) + "\n";
    }
    const std::string looked = Utf8(PathText(DataFolder)) + ": " + Counted(result.files, "file") + " with " +
                               Counted(result.records, "record") + " read, ";
    const auto found = static_cast<int>(result.findings.size());
    return text + looked + (found == 0 ? "no fault found" : Counted(found, "fault") + " found") + ".\n";
}

std::string CheckJson(const CheckResult& result) {
    return "{\n  " + Member("data", JsonText(PathText(DataFolder))) + ",\n  " +
           Member("files", std::to_string(result.files)) + ",\n  " +
           Member("records", std::to_string(result.records)) + ",\n  " +
           Member("looked_at_all", result.lookedAtAll ? "true" : "false") + ",\n  " +
           Member("findings", JsonRows(result.findings)) + "\n}\n";
}

std::string CopiesText(const std::vector<FileCopy>& copies) {
    std::string text;
    std::string file;
    for (const FileCopy& copy : copies) {
        if (copy.file != file) {
            file = copy.file;
            text += file + "\n";
        }
        text += "  " + copy.word + ": " + copy.name + ", written " + WrittenText(copy.written) + ", ";
        text += copy.readable ? Utf8(Counted(copy.records, "record") + DifferenceText(copy))
                              : std::string("cannot be read");
        text += ".\n";
    }
    return text.empty() ? "There are no backups in " + Utf8(PathText(BackupFolder)) + ".\n" : text;
}

std::string CopiesJson(const std::vector<FileCopy>& copies) {
    return "{\n  " + Member("backups", JsonRows(copies)) + "\n}\n";
}
