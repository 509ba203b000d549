// The records of the tests that cut files: every kind, and every field with what its editor would write.
#pragma once

#include "persistence/modIO.h"

#include <functional>
#include <string>
#include <vector>

struct CutKind {
    std::string name;
    std::function<RecordFile()> file;
};

inline const std::vector<CutKind> CutKinds{
    {"Terms", TermFile}, {"Classes", ClassFile}, {"Assignments", AssignmentFile},
    {"Tasks", TaskFile}, {"Events", EventFile},
};

// Fills an empty store with so many records of each kind, the first term being active.
void FillCutDrive(int records);
