// The check of a whole drive: every record file and the preferences as the planner would read them.
#pragma once

#include "check/faults/Finding.h"
#include "platform/Clock.h"

// What was looked at, and what was found.
struct CheckResult {
    Findings findings;
    int files = 0;
    int records = 0;
    bool lookedAtAll = true; // false where a file or the folder could not be read
};

// Reads the files of DataFolder, one after the other, and changes none. The store holds what the last ones
// held. The moment is that from which ages are counted.
CheckResult CheckDrive(Moment now);
