// What records say of each other: ids that stand twice, and links to records that are not there.
#include "check/faults/LinkCheck.h"

#include "core/Values.h"
#include "persistence/FaultText.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/ClassLink.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace {

constexpr std::size_t IdIndex = 0; // the id is the first field of every kind

const TextList& IdsOf(const RecordFile& file) {
    return *file.fields[IdIndex].list;
}

bool IsDeleted(const ReadFile& read, int position) {
    return NameOf(read.file, position) == DeletedRecord;
}

void Tell(const ReadFile& read, std::string_view tag, int position, std::string fault,
          std::string_view meaning, Findings& findings) {
    Finding finding = FindingAt(read, FieldIndex(read.file, tag), position);
    finding.fault = std::move(fault);
    finding.meaning = meaning;
    findings.push_back(std::move(finding));
}

// The ids of the terms, those of deleted ones too.
std::set<int> TermIds() {
    std::set<int> ids;
    for (const std::string& text : Store.Term.id) {
        if (const std::optional<int> id = IdIn(text)) {
            ids.insert(*id);
        }
    }
    return ids;
}

bool HasLivingTerm(int id) {
    for (int position = 1, records = WholeRecords(Store.Term); position <= records; ++position) {
        if (IdIn(Store.Term.id.Item(position)) == id && Store.Term.name.Item(position) != DeletedRecord) {
            return true;
        }
    }
    return false;
}

std::set<int> SeriesIds(const ReadFile& events) {
    std::set<int> ids;
    for (int position = 1; position <= events.records; ++position) {
        const std::optional<int> id = IdIn(Store.EventRecord.id.Item(position));
        if (id && IsSeries(position)) {
            ids.insert(*id);
        }
    }
    return ids;
}

using LinkIds = std::pair<int, int>; // of a term and a class

std::set<LinkIds> ClassIds(bool deletedToo) {
    const ClassLists& classes = Store.ClassRecord;
    std::set<LinkIds> links;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        const std::optional<int> id = IdIn(classes.id.Item(position));
        const std::optional<int> term = IdIn(classes.term.Item(position));
        if (id && term && (deletedToo || classes.name.Item(position) != DeletedRecord)) {
            links.insert({*term, *id});
        }
    }
    return links;
}

// A deleted class keeps its assignments, one that has gone does not.
void TellAssignmentWithoutClass(const ReadFile& assignments, int position, bool deleted, Findings& findings) {
    const std::string id = QuotedBeginning(Store.Assignment.class_.Item(position));
    if (deleted) {
        Tell(assignments, "class", position, "the term's class with the id " + id + " is deleted",
             "The planner shows the assignment without its class.", findings);
    } else {
        Tell(assignments, "class", position, "the term has no class with the id " + id,
             "The planner shows the assignment without its class, and takes it out with the next change "
             "of the term.",
             findings);
    }
}

void TellFileWithoutTerm(const ReadFile& assignments, Findings& findings) {
    int living = 0;
    for (int position = 1; position <= assignments.records; ++position) {
        living += IsDeleted(assignments, position) ? 0 : 1;
    }
    if (living == 0) {
        return;
    }
    findings.push_back({.file = assignments.file.name,
                        .fault = "there is no term with the id " + std::to_string(ActiveTermID),
                        .meaning = "The planner shows none of the file's records (" + std::to_string(living) +
                                   "). A new term may be given the id, and then has them."});
}

void CheckParent(const ReadFile& events, const std::set<int>& series, int position, Findings& findings) {
    const std::string& parent = Store.EventRecord.parent_id.Item(position);
    const std::optional<int> id = IdIn(parent);
    if (!Trim(parent).empty() && (!id || !series.contains(*id))) {
        Tell(events, "parent_id", position, "there is no series with the id " + QuotedBeginning(parent),
             "The planner shows the event as a single one, and nothing removes it with its series.",
             findings);
    }
}

void CheckMeeting(const ReadFile& events, const std::set<LinkIds>& classes, int position,
                  Findings& findings) {
    const std::string& type = Store.EventRecord.type.Item(position);
    const std::string& reminder = Store.EventRecord.reminder.Item(position);
    if (!IsClassMeeting(type) || CompareFolded(reminder, "true") != 0) {
        return;
    }
    const std::optional<ClassLink> link = ClassLinkIn(type);
    if (!link || !classes.contains({link->term, link->class_})) {
        Tell(events, "type", position, "there is no class of the link " + QuotedBeginning(type),
             "The reminder of this event can never fire.", findings);
    }
}

} // namespace

void CheckIds(const ReadFile& read, Findings& findings) {
    const TextList& ids = IdsOf(read.file);
    std::unordered_map<int, int> positions;
    for (int position = 1; position <= read.records; ++position) {
        const std::optional<int> id = IdIn(ids.Item(position));
        if (!id) {
            if (NumberIn(ids.Item(position))) { // else the scan has stopped here
                Tell(read, "id", position,
                     QuotedBeginning(ids.Item(position)) + " is no whole number of 16 bits",
                     "No other record can name this one.", findings);
            }
            continue;
        }
        const auto [first, isNew] = positions.emplace(*id, position);
        if (!isNew) {
            Tell(read, "id", position,
                 "the id " + std::to_string(*id) + " is that of record " + std::to_string(first->second) +
                     " too",
                 "What names the id means both records, or only one of them.", findings);
        }
    }
}

void CheckClassLinks(const ReadFile& classes, Findings& findings) {
    const std::set<int> terms = TermIds();
    for (int position = 1; position <= classes.records; ++position) {
        const std::string& term = Store.ClassRecord.term.Item(position);
        const std::optional<int> id = IdIn(term);
        if (!IsDeleted(classes, position) && (!id || !terms.contains(*id))) {
            Tell(classes, "term", position, "there is no term with the id " + QuotedBeginning(term),
                 "The planner shows the class and its homework nowhere.", findings);
        }
    }
}

void CheckAssignmentLinks(const ReadFile& assignments, Findings& findings) {
    if (!HasLivingTerm(ActiveTermID)) {
        TellFileWithoutTerm(assignments, findings);
        return;
    }
    const std::set<LinkIds> living = ClassIds(false);
    const std::set<LinkIds> all = ClassIds(true);
    for (int position = 1; position <= assignments.records; ++position) {
        const std::optional<int> id = IdIn(Store.Assignment.class_.Item(position));
        const LinkIds link{ActiveTermID, id.value_or(0)};
        if (!IsDeleted(assignments, position) && (!id || !living.contains(link))) {
            TellAssignmentWithoutClass(assignments, position, id && all.contains(link), findings);
        }
    }
}

void CheckEventLinks(const ReadFile& events, Findings& findings) {
    const std::set<int> series = SeriesIds(events);
    const std::set<LinkIds> classes = ClassIds(false);
    for (int position = 1; position <= events.records; ++position) {
        if (!IsDeleted(events, position)) {
            CheckParent(events, series, position, findings);
            CheckMeeting(events, classes, position, findings);
        }
    }
}
