// Writes the pages of several stores into folders below the one given, for the tests in a browser.
#include "core/Module1.h"
#include "export/SamplePages.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: sample_pages FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
    const TemporaryDrive drive;
    ReadSampleDrive(drive.root / "drive");
    WritePages(folder / "sample");
    ResetStore();
    WritePages(folder / "empty");
    StoreRows(200);
    WritePages(folder / "rows");
    for (const int weeks : {1, 2, 6}) {
        StoreFullDays(weeks, 20);
        WritePages(folder / ("weeks" + std::to_string(weeks)));
    }
    return 0;
}
