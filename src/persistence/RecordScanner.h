// The scan of a record file's bytes into the lists of its kind, and what it meets on its way.
#pragma once

#include "persistence/modIO.h"

struct LineRange {
    int first = 0; // from 1 on
    int last = 0;  // 0 for a record that is not closed
};

struct TaggedLines {
    std::string tag;
    LineRange lines;
};

// What the scan is at, or was when it met a fault.
enum class ScanStep { Header, Root, Tag, Field, Value, End };

// Where in the file everything stands. The lines are those of the file as it is, from 1 on.
struct ScanTrace {
    ScanStep step = ScanStep::Header;
    int line = 0;                               // the first one of what the scan is at
    std::string tag;                            // of the field that it is at
    std::vector<std::vector<LineRange>> values; // of each of the file's fields, those of its values
    std::vector<LineRange> records;             // from their opening to their closing tags
    std::vector<TaggedLines> dropped;           // the fields of no known tag
    std::vector<TaggedLines> swallowing;        // the known fields that run over the tag of a record
    int rootClosed = 0;                         // the line of the root's last closing tag; 0 for none
    int lastLine = 0;                           // the last one that was read and is not blank
};

// Adds the records behind those that the lists hold and raises the id counter. Tells the counts of the lists
// without a record that is open as it goes on, and, where a trace is given, where everything stands. Gives
// whether the file came to its end with its root closed and no record open; raises the run-time error at a
// fault.
bool ScanRecords(const RecordFile& file, std::string_view bytes, std::vector<int>& finished,
                 ScanTrace* trace = nullptr);
