// What the tests of the record files share: a fresh drive with its folders, an empty store, and files made of
// lines.
#pragma once

#include "core/Module1.h"
#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

class DataFolderTest : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        ASSERT_TRUE(SetupFolders());
    }

    TemporaryDrive drive;
};

inline const std::string Header = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";

// The lines, each with carriage return and line feed behind it.
inline std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

// A file with the header and the root around what stands between them.
inline std::string FileOf(const std::string& root, const std::string& body) {
    return Lines({Header, "<" + root + ">"}) + body + Lines({"</" + root + ">"});
}

inline ShownBox FileErrorBox(const std::string& file, const std::string& action) {
    return {"Planovarium - File Read Error",
            "Error " + action + " the file: " + file +
                "\n\nDo not continue working. Exit and restart Planovarium. If the error continues, see the "
                "Help for "
                "more information.",
            Buttons::Ok, Icon::Exclamation};
}

inline ShownBox DirectoryErrorBox() {
    return {"Planovarium - Directory Error",
            "Error creating or changing the File Directory.\n\nDo not continue working. Exit and restart "
            "Planovarium. If the error continues, see the Help for more information.",
            Buttons::Ok, Icon::Exclamation};
}

using Boxes = std::vector<ShownBox>;
using Texts = std::vector<std::string>;
