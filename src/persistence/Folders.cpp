// The folders of the drive: where they are, and entering the one that holds the data.
#include "persistence/modIO.h"

#include "core/TextFiles.h"
#include "platform/MessageBoxes.h"
#include "platform/Process.h"

#include <system_error>

namespace {

void CreateWhereMissing(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::exists(folder, error)) {
        return;
    }
    std::filesystem::create_directory(folder, error);
    if (error) {
        throw RunTimeError("Folder cannot be created", PathText(folder));
    }
    SyncFolder(folder.parent_path());
}

// The path of the data folder names its drive where the system has drives, so one change does for both.
bool DataFolderEntered() {
    try {
        ChangeToDataFolder();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace

bool SetupFolders() {
    HelpFile = std::filesystem::path(EnvironmentValue(ProgramFolderVariable)) / "Help" / "index.html";
    DocumentFolder = std::filesystem::path(EnvironmentValue(DocumentFolderVariable)) / "Planovarium";
    DataFolder = DocumentFolder / "Data";
    BackupFolder = DataFolder / "Backup";
    for (const std::filesystem::path& folder : {DocumentFolder, DataFolder, BackupFolder}) {
        CreateWhereMissing(folder);
    }
    if (!DataFolderEntered()) {
        MsgBox("Error creating Planovarium Data Directory\n\n"
               "Please restart Planovarium. If the error continues, please contact Planovarium Software.",
               Buttons::Ok, Icon::Exclamation, "Planovarium - Directory Error");
        return false;
    }
    return true;
}

bool EnterDataFolder() {
    if (!DataFolderEntered()) {
        ShowDirectoryError();
        return false;
    }
    return true;
}
