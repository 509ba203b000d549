// What the fuzzers of files share: a drive in memory, and requirements that stop the fuzzer where they fail.
#pragma once

#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <cstdlib>

// Stops the fuzzer, which then keeps the bytes that led here.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// A fresh platform and store, in the folders of the drive.
inline void SetUpDrive() {
    ResetScript();
    ResetStore();
    Require(SetupFolders());
}
