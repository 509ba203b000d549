// Values that a record cannot have: each is tried with the planner's own conversion.
#include "check/faults/ValueCheck.h"

#include "check/faults/ValueRules.h"
#include "core/DateText.h"
#include "core/Decimal.h"
#include "core/Values.h"
#include "persistence/FaultText.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/DurationEntry.h"
#include "planner/lists/RowSorts.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/SeriesRule.h"

#include <algorithm>
#include <span>

namespace {

struct KindRules {
    std::string_view kind;
    std::span<const ValueRule> rules;
};

constexpr std::array<KindRules, 5> RulesOfKinds{{
    {"terms", TermRules},
    {"classes", ClassRules},
    {"assignments", AssignmentRules},
    {"tasks", TaskRules},
    {"events", EventRules},
}};

// What a text of the kind has to be, in the order of ValueKind.
constexpr auto Wanted = std::to_array<std::string_view>({
    "is neither True nor False",
    "is no date",
    "has a text that is no date",
    "is no date and time",
    "is no time of day",
    "is no length of time such as 00 : 30",
    "is no length such as 1.5 Hours",
    "is no time before such as 30 Minutes",
    "is no colour",
    "is no number",
    "is no percentage",
    "is no number of 16 bits",
});

static_assert(Wanted.size() == static_cast<std::size_t>(ValueKind::WholeNumber) + 1);

void ConvertAll(std::string_view dates) {
    while (TakeException(dates)) {
    }
}

// Raises what the planner raises.
void Convert(ValueKind kind, const std::string& text) {
    switch (kind) {
    case ValueKind::Flag:
        IsTrue(text);
        break;
    case ValueKind::DateOnly:
        DateValue(text);
        break;
    case ValueKind::DateList:
        ConvertAll(text);
        break;
    case ValueKind::DateAndTime:
        MomentValue(text);
        break;
    case ValueKind::Time:
        TimeValue(text);
        break;
    case ValueKind::Clock:
        ClockToMinutes(text);
        break;
    case ValueKind::Length:
        EventLength(text);
        break;
    case ValueKind::LeadTime:
        LeadOf(text);
        break;
    case ValueKind::Color:
        ToColor(text);
        break;
    case ValueKind::Points:
        if (!Trim(text).empty()) {
            ToDecimal(text);
        }
        break;
    case ValueKind::Percentage:
        GradeNumber(text);
        break;
    case ValueKind::WholeNumber:
        ToInt16(text);
        break;
    }
}

bool Converts(ValueKind kind, const std::string& text) {
    try {
        Convert(kind, text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

// What of the record decides whether a value of it is asked for. A flag that is none counts as not set.
struct RecordState {
    bool living = false;
    bool dated = false;
    bool armed = false;
    bool listed = false;
    bool series = false;
    bool ending = false;
};

struct StateFields {
    const TextList* dated = nullptr;
    const TextList* reminder = nullptr;
    const TextList* listed = nullptr;
    const TextList* recurrence = nullptr;
    const TextList* end = nullptr;
};

const TextList* ListOf(const RecordFile& file, std::string_view tag) {
    const std::size_t index = FieldIndex(file, tag);
    return index < file.fields.size() ? file.fields[index].list : nullptr;
}

StateFields StateFieldsOf(const RecordFile& file) {
    const TextList* listed = ListOf(file, "reminder_list");
    return {.dated = ListOf(file, "date_exists"),
            .reminder = ListOf(file, "reminder"),
            .listed = listed != nullptr ? listed : ListOf(file, "reminderlist"),
            .recurrence = ListOf(file, "recurrence"),
            .end = ListOf(file, "end")};
}

bool IsSet(const TextList* flags, int position) {
    return flags != nullptr && CompareFolded(flags->Item(position), "true") == 0;
}

RecordState StateOf(const RecordFile& file, const StateFields& fields, int position) {
    RecordState state{.living = file.named->Item(position) != DeletedRecord,
                      .dated = IsSet(fields.dated, position),
                      .armed = IsSet(fields.reminder, position),
                      .listed = IsSet(fields.listed, position)};
    if (fields.recurrence != nullptr) {
        state.series = RecurrenceIn(fields.recurrence->Item(position)) != Recurrence::None;
        state.ending = IsSet(fields.end, position);
    }
    return state;
}

bool IsAsked(Asked asked, const RecordState& state) {
    switch (asked) {
    case Asked::Always:
        return true;
    case Asked::Living:
        return state.living;
    case Asked::Dated:
        return state.dated;
    case Asked::Armed:
        return state.living && state.armed;
    case Asked::Series:
        return state.living && state.series;
    case Asked::Ending:
        return state.living && state.ending;
    case Asked::ArmedSeries:
        return state.living && state.series && state.armed;
    case Asked::StandingSeries:
        return state.living && state.series && (state.armed || state.listed);
    }
    return false;
}

void TellValue(const ReadFile& read, const ValueRule& rule, std::size_t field, int position,
               Findings& findings) {
    Finding finding = FindingAt(read, field, position);
    finding.fault = QuotedBeginning(read.file.fields[field].list->Item(position)) + " " +
                    std::string(Wanted[static_cast<std::size_t>(rule.kind)]);
    finding.meaning = "The planner ends with an error " + std::string(rule.where) + ".";
    findings.push_back(std::move(finding));
}

} // namespace

void CheckValues(const ReadFile& read, Findings& findings) {
    const auto rules = std::ranges::find(RulesOfKinds, read.file.kind, &KindRules::kind);
    const StateFields fields = StateFieldsOf(read.file);
    std::vector<std::size_t> indexes;
    for (const ValueRule& rule : rules->rules) {
        indexes.push_back(FieldIndex(read.file, rule.tag));
    }
    for (int position = 1; position <= read.records; ++position) {
        const RecordState state = StateOf(read.file, fields, position);
        for (std::size_t i = 0; i < indexes.size(); ++i) {
            const ValueRule& rule = rules->rules[i];
            if (IsAsked(rule.asked, state) &&
                !Converts(rule.kind, read.file.fields[indexes[i]].list->Item(position))) {
                TellValue(read, rule, indexes[i], position, findings);
            }
        }
    }
}
