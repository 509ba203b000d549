// What the fuzzers of files share: a drive in memory.
#pragma once

#include "Require.h"

#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

// A fresh platform and store, in the folders of the drive.
inline void SetUpDrive() {
    ResetScript();
    ResetStore();
    Require(SetupFolders());
}
