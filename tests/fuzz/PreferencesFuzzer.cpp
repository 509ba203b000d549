// Any bytes given as Prefs.ini are read without a message, and what was read survives a write.
#include "FuzzedDrive.h"

#include "core/Preferences.h"

#include <cstdint>

namespace {

const TemporaryDrive Drive;
constexpr ScreenSize Screen{3840, 2160};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SetUpDrive();
    SetDataFile("Prefs.ini", std::string(data, data + size));
    const PreferenceValues read = ReadPreferencesFile(Screen);
    Require(Script.boxes.empty());
    Require(TypeTable.customname.Count() == TypeRows && TypeTable.backcolor.Count() == TypeRows);
    WritePreferencesFile(read);
    const TypeTableLists types = TypeTable;
    SetDefaultTypeTable();
    const PreferenceValues again = ReadPreferencesFile(Screen);
    Require(again.FormMainState == read.FormMainState && again.ActiveTerm == read.ActiveTerm);
    Require(again.StartDayofWeek == read.StartDayofWeek && again.AutoStart == read.AutoStart);
    Require(again.ShowTipsAtStartup == read.ShowTipsAtStartup && again.CurrentTip == read.CurrentTip);
    Require(read.FormMainState == WindowState::Maximized || again.FormMainSizeX == read.FormMainSizeX);
    Require(TypeTable.customname == types.customname && TypeTable.forecolor == types.forecolor &&
            TypeTable.backcolor == types.backcolor);
    return 0;
}
