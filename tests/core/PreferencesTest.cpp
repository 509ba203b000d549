// Prefs.ini: what is read from each line, where reading ends, and the file byte for byte.
#include "core/Preferences.h"

#include "persistence/DataFolderTest.h"

#include "support/ChildProcess.h"

#include <cerrno>
#include <sys/syscall.h>

namespace fs = std::filesystem;

namespace {

constexpr ScreenSize Screen{1280, 1024};

class Preferences : public DataFolderTest {
protected:
    PreferenceValues Read(std::initializer_list<std::string> lines, ScreenSize screen = Screen) {
        SetDataFile("Prefs.ini", Lines(lines));
        return ReadPreferencesFile(screen);
    }
};

std::string CustomName(std::string_view category, std::string_view key) {
    return TypeTable.customname.Item(TypeRow(category, key));
}

std::string BackColor(std::string_view category, std::string_view key) {
    return TypeTable.backcolor.Item(TypeRow(category, key));
}

std::string ForeColor(std::string_view category, std::string_view key) {
    return TypeTable.forecolor.Item(TypeRow(category, key));
}

using Place = std::optional<int>;

// The lines of the file in front of the types, with the state and the places as given.
std::string FileStart(const std::string& state, const Texts& places) {
    return Lines({"[Window Position]", "FormMainState=" + state, "FormMainLocationX=" + places[0],
                  "FormMainLocationY=" + places[1], "FormMainSizeX=" + places[2],
                  "FormMainSizeY=" + places[3], ""});
}

} // namespace

TEST_F(Preferences, WithoutAFileAreTheDefaultsAndTheFileIsNotCreated) {
    const PreferenceValues values = ReadPreferencesFile(Screen);
    EXPECT_EQ(values.FormMainState, WindowState::Normal);
    EXPECT_EQ(values.FormMainLocationX, Place{});
    EXPECT_EQ(values.FormMainLocationY, Place{});
    EXPECT_EQ(values.FormMainSizeX, Place{});
    EXPECT_EQ(values.FormMainSizeY, Place{});
    EXPECT_EQ(values.ActiveTerm, "");
    EXPECT_EQ(values.StartDayofWeek, "Sunday");
    EXPECT_EQ(values.ShowTipsAtStartup, "Yes");
    EXPECT_EQ(values.AutoStart, "Tray");
    EXPECT_TRUE(values.AutoStartChecked);
    EXPECT_EQ(values.CurrentTip, 0);
    EXPECT_EQ(DataFile("Prefs.ini"), NoFile);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Preferences, OfAnEmptyFileAreTheDefaults) {
    const PreferenceValues values = Read({});
    EXPECT_EQ(values.StartDayofWeek, "Sunday");
    EXPECT_EQ(values.AutoStart, "Tray");
}

TEST_F(Preferences, AreReadFromAllTheirLines) {
    const PreferenceValues values =
        Read({"[Window Position]", "FormMainState=2", "FormMainLocationX=100", "FormMainLocationY=50",
              "FormMainSizeX=800", "FormMainSizeY=600", "", "[Options]", "ActiveTerm=Fall 2009",
              "StartDayofWeek=Saturday", "ShowTipsAtStartup=No", "AutoStart=Min", "CurrentTip=12"});
    EXPECT_EQ(values.FormMainState, WindowState::Maximized);
    EXPECT_EQ(values.FormMainLocationX, Place{100});
    EXPECT_EQ(values.FormMainLocationY, Place{50});
    EXPECT_EQ(values.FormMainSizeX, Place{800});
    EXPECT_EQ(values.FormMainSizeY, Place{600});
    EXPECT_EQ(values.ActiveTerm, "Fall 2009");
    EXPECT_EQ(values.StartDayofWeek, "Saturday");
    EXPECT_EQ(values.ShowTipsAtStartup, "No");
    EXPECT_EQ(values.AutoStart, "Min");
    EXPECT_TRUE(values.AutoStartChecked);
    EXPECT_EQ(values.CurrentTip, 12);
}

TEST_F(Preferences, AreReadWithoutSectionLinesAndInAnyOrder) {
    const PreferenceValues values =
        Read({"EventCN_Home=Den", "CurrentTip=3", "anything", "FormMainSizeX=900", "ActiveTerm=Fall"});
    EXPECT_EQ(values.CurrentTip, 3);
    EXPECT_EQ(values.FormMainSizeX, Place{900});
    EXPECT_EQ(values.ActiveTerm, "Fall");
    EXPECT_EQ(CustomName("Event", "Home"), "Den");
}

TEST_F(Preferences, SkipLinesWhoseKeyHasOtherLettersOrBlanksInFront) {
    const PreferenceValues values =
        Read({"activeterm=a", " ActiveTerm=b", "ActiveTerm =c", "StartDayOfWeek=Monday"});
    EXPECT_EQ(values.ActiveTerm, "");
    EXPECT_EQ(values.StartDayofWeek, "Sunday");
}

TEST_F(Preferences, TakeAllThatStandsBehindTheKey) {
    EXPECT_EQ(Read({"ActiveTerm= Fall = 2009 "}).ActiveTerm, " Fall = 2009 ");
    EXPECT_EQ(Read({"ActiveTerm=Fall", "ActiveTerm="}).ActiveTerm, "");
}

TEST_F(Preferences, ReadLoneLineFeedsAndALastLineWithoutAnEnd) {
    SetDataFile("Prefs.ini", "ActiveTerm=Fall\nCurrentTip=7");
    const PreferenceValues values = ReadPreferencesFile(Screen);
    EXPECT_EQ(values.ActiveTerm, "Fall");
    EXPECT_EQ(values.CurrentTip, 7);
}

TEST_F(Preferences, TakeAnyStateButTwoForNormal) {
    EXPECT_EQ(Read({"FormMainState=2"}).FormMainState, WindowState::Maximized);
    for (const std::string state : {"0", "1", "3", "", " 2", "2.0", "maximized"}) {
        EXPECT_EQ(Read({"FormMainState=2", "FormMainState=" + state}).FormMainState, WindowState::Normal)
            << state;
    }
}

TEST_F(Preferences, TakeAnyOtherStartDayForMonday) {
    for (const std::string day : {"Sunday", "Monday", "Saturday"}) {
        EXPECT_EQ(Read({"StartDayofWeek=" + day}).StartDayofWeek, day);
    }
    for (const std::string day : {"Tuesday", "sunday", "Sunday ", ""}) {
        EXPECT_EQ(Read({"StartDayofWeek=" + day}).StartDayofWeek, "Monday") << day;
    }
    EXPECT_EQ(Read({"CurrentTip=1"}).StartDayofWeek, "Sunday");
}

TEST_F(Preferences, TakeAnythingButNoForShowingTips) {
    EXPECT_EQ(Read({"ShowTipsAtStartup=No"}).ShowTipsAtStartup, "No");
    for (const std::string tips : {"Yes", "maybe", "no", "No ", ""}) {
        EXPECT_EQ(Read({"ShowTipsAtStartup=" + tips}).ShowTipsAtStartup, "Yes") << tips;
    }
}

TEST_F(Preferences, KeepTheLastGoodStartModeWithNoItemCheckedAfterABadOne) {
    for (const std::string mode : {"Full", "Min", "Tray", "No"}) {
        EXPECT_EQ(Read({"AutoStart=" + mode}).AutoStart, mode);
        EXPECT_TRUE(Read({"AutoStart=" + mode}).AutoStartChecked);
    }
    for (const std::string mode : {"Normal", "full", "", "Tray "}) {
        EXPECT_EQ(Read({"AutoStart=" + mode}).AutoStart, "Tray") << mode;
        EXPECT_FALSE(Read({"AutoStart=" + mode}).AutoStartChecked) << mode;
        EXPECT_EQ(Read({"AutoStart=Min", "AutoStart=" + mode}).AutoStart, "Min") << mode;
        EXPECT_TRUE(Read({"AutoStart=" + mode, "AutoStart=No"}).AutoStartChecked) << mode;
    }
}

TEST_F(Preferences, EndAtACurrentTipThatIsNoNumber) {
    for (const std::string tip : {"three", "", "40000"}) {
        const PreferenceValues values = Read({"ActiveTerm=Fall", "CurrentTip=" + tip, "AutoStart=No"});
        EXPECT_EQ(values.CurrentTip, 0) << tip;
        EXPECT_EQ(values.ActiveTerm, "Fall");
        EXPECT_EQ(values.AutoStart, "Tray");
    }
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Preferences, KeepTheNumberOfATipThatThereIsNot) {
    for (const int tip : {-32768, -3, 31, 32767}) {
        const PreferenceValues values = Read({"CurrentTip=" + std::to_string(tip), "AutoStart=No"});
        EXPECT_EQ(values.CurrentTip, tip);
        EXPECT_EQ(values.AutoStart, "No");
    }
}

TEST_F(Preferences, EndAtASizeThatIsNoNumber) {
    const PreferenceValues values = Read({"FormMainLocationX=10", "FormMainSizeX=abc", "FormMainSizeY=600",
                                          "ActiveTerm=Fall", "TaskCN_Home=Chores"});
    EXPECT_EQ(values.FormMainLocationX, Place{10});
    EXPECT_EQ(values.FormMainSizeX, Place{});
    EXPECT_EQ(values.FormMainSizeY, Place{});
    EXPECT_EQ(values.ActiveTerm, "");
    EXPECT_EQ(CustomName("Task", "Home"), "");
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Preferences, IgnoreAPlaceThatDoesNotLieAboveZeroAndBelowTheScreensSize) {
    for (const std::string key : {"FormMainLocationX=", "FormMainSizeX="}) {
        for (const std::string pixels : {"0", "-5", "1280", "1281", "2184", "32767", "0.5"}) {
            const PreferenceValues values = Read({key + pixels, "CurrentTip=1"});
            EXPECT_EQ(values.FormMainLocationX, Place{}) << key << pixels;
            EXPECT_EQ(values.FormMainSizeX, Place{}) << key << pixels;
            EXPECT_EQ(values.CurrentTip, 1) << "the read goes on";
        }
    }
    EXPECT_EQ(Read({"FormMainLocationX=1"}).FormMainLocationX, Place{1});
    EXPECT_EQ(Read({"FormMainSizeX=1279"}).FormMainSizeX, Place{1279});
}

TEST_F(Preferences, MeasureTheVerticalPlacesByTheScreensHeight) {
    EXPECT_EQ(Read({"FormMainLocationY=1023"}).FormMainLocationY, Place{1023});
    EXPECT_EQ(Read({"FormMainLocationY=1024"}).FormMainLocationY, Place{});
    EXPECT_EQ(Read({"FormMainSizeY=1023"}).FormMainSizeY, Place{1023});
    EXPECT_EQ(Read({"FormMainSizeY=1024"}).FormMainSizeY, Place{});
}

TEST_F(Preferences, KeepTheLastPlaceThatCounts) {
    EXPECT_EQ(Read({"FormMainSizeX=900", "FormMainSizeX=0"}).FormMainSizeX, Place{900});
    EXPECT_EQ(Read({"FormMainSizeX=900", "FormMainSizeX=910"}).FormMainSizeX, Place{910});
}

TEST_F(Preferences, RoundAPlaceToTheNearestPixelHalvesToEven) {
    EXPECT_EQ(Read({"FormMainLocationX= 100.4 "}).FormMainLocationX, Place{100});
    EXPECT_EQ(Read({"FormMainLocationX=100.5"}).FormMainLocationX, Place{100});
    EXPECT_EQ(Read({"FormMainLocationX=101.5"}).FormMainLocationX, Place{102});
}

TEST_F(Preferences, EndAtAPlaceAbove2184PixelsOnAScreenThatHasIt) {
    constexpr ScreenSize WideScreen{3840, 2400};
    for (const std::string key :
         {"FormMainLocationX=", "FormMainLocationY=", "FormMainSizeX=", "FormMainSizeY="}) {
        EXPECT_EQ(Read({key + "2184", "CurrentTip=5"}, WideScreen).CurrentTip, 5);
        EXPECT_EQ(Read({key + "2185", "CurrentTip=5"}, WideScreen).CurrentTip, 0) << key;
    }
    EXPECT_EQ(Read({"FormMainSizeX=2184"}, WideScreen).FormMainSizeX, Place{2184});
    EXPECT_EQ(Read({"FormMainSizeX=2185"}, WideScreen).FormMainSizeX, Place{});
    EXPECT_EQ(Read({"FormMainSizeX=32768", "CurrentTip=5"}).CurrentTip, 0) << "16 bits end on every screen";
}

TEST_F(Preferences, KeepAPlaceBehindTheMaximizedStateForTheNormalOne) {
    const PreferenceValues values = Read({"FormMainState=2", "FormMainLocationX=120", "FormMainSizeX=700"});
    EXPECT_EQ(values.FormMainState, WindowState::Maximized);
    EXPECT_EQ(values.FormMainLocationX, Place{120});
    EXPECT_EQ(values.FormMainSizeX, Place{700});
}

TEST_F(Preferences, LeaveTheDesignSizeOnAScreenSmallerThanTheSavedOne) {
    const PreferenceValues values = Read({"FormMainSizeX=1000", "FormMainSizeY=700"}, {800, 600});
    EXPECT_EQ(values.FormMainSizeX, Place{});
    EXPECT_EQ(values.FormMainSizeY, Place{});
}

TEST_F(Preferences, SplitTheNameOfATypeAtTheFirstEqualsSign) {
    Read({"TaskCN_Home=Chores=daily", "EventCN_Study Time=Library", "TaskCN_Idea", "TaskCN_=x"});
    EXPECT_EQ(CustomName("Task", "Home"), "Chores=daily");
    EXPECT_EQ(CustomName("Event", "Study Time"), "Library");
    EXPECT_EQ(CustomName("Event", "Home"), "");
}

TEST_F(Preferences, TakeALineWithoutEqualsSignForAnEmptyValue) {
    Read({"TaskCN_Home=Chores", "TaskCN_Home"});
    EXPECT_EQ(CustomName("Task", "Home"), "");
}

TEST_F(Preferences, ChangeNothingForATypeThatThereIsNot) {
    const TypeTableLists before = TypeTable;
    Read({"TaskBC_Nothing=5", "TaskCN_Holiday=x", "TaskBC_=5", "EventFC_study time=1", "EventBC_ Home=1"});
    EXPECT_EQ(TypeTable.customname, before.customname);
    EXPECT_EQ(TypeTable.backcolor, before.backcolor);
    EXPECT_EQ(TypeTable.forecolor, before.forecolor);
}

TEST_F(Preferences, TouchTheTypeOfTheirOwnCategoryOnlyAndKeepTheRows) {
    const TypeTableLists before = TypeTable;
    Read({"EventFC_Class=255", "TaskBC_Class=77"});
    EXPECT_EQ(ForeColor("Event", "Class"), "255");
    EXPECT_EQ(ForeColor("Task", "Class"), "0");
    EXPECT_EQ(BackColor("Task", "Class"), "77");
    EXPECT_EQ(BackColor("Event", "Class"), "9934841");
    EXPECT_EQ(TypeTable.key, before.key);
    EXPECT_EQ(TypeTable.category, before.category);
    EXPECT_EQ(TypeTable.forecolor.Count(), TypeRows);
}

TEST_F(Preferences, StoreAnEmptyColour) {
    Read({"EventBC_Home="});
    EXPECT_EQ(BackColor("Event", "Home"), "");
}

TEST_F(Preferences, AreWrittenByteForByte) {
    Read({"TaskCN_Home=Chores=daily", "EventBC_Study Time=255"});
    WritePreferencesFile({.FormMainState = WindowState::Normal,
                          .FormMainLocationX = 250,
                          .FormMainLocationY = -3,
                          .FormMainSizeX = 780,
                          .FormMainSizeY = 575,
                          .ActiveTerm = "A < B & C",
                          .StartDayofWeek = "Monday",
                          .ShowTipsAtStartup = "No",
                          .AutoStart = "Full",
                          .CurrentTip = 30});
    EXPECT_EQ(
        DataFile("Prefs.ini"),
        FileStart("0", {"250", "-3", "780", "575"}) +
            Lines({"[Options]", "ActiveTerm=A < B & C", "StartDayofWeek=Monday", "ShowTipsAtStartup=No",
                   "AutoStart=Full", "CurrentTip=30", ""}) +
            Lines({"[Task Custom Names]", "TaskCN_School=", "TaskCN_Class=", "TaskCN_Home=Chores=daily",
                   "TaskCN_Personal=", "TaskCN_Friends=", "TaskCN_Family=", "TaskCN_Recreation=",
                   "TaskCN_Work=", "TaskCN_Project=", "TaskCN_Idea=", "TaskCN_Custom1=", "TaskCN_Custom2=",
                   "TaskCN_Custom3=", ""}) +
            Lines({"[Task Backcolors]", "TaskBC_School=10732766", "TaskBC_Class=9934841",
                   "TaskBC_Home=13035519", "TaskBC_Personal=11399151", "TaskBC_Friends=16580310",
                   "TaskBC_Family=12582847", "TaskBC_Recreation=16770995", "TaskBC_Work=11075583",
                   "TaskBC_Project=15262207", "TaskBC_Idea=13687085", "TaskBC_Custom1=16777215",
                   "TaskBC_Custom2=16777215", "TaskBC_Custom3=16777215", ""}) +
            Lines({"[Task Forecolors]", "TaskFC_School=0", "TaskFC_Class=0", "TaskFC_Home=0",
                   "TaskFC_Personal=0", "TaskFC_Friends=0", "TaskFC_Family=0", "TaskFC_Recreation=0",
                   "TaskFC_Work=0", "TaskFC_Project=0", "TaskFC_Idea=0", "TaskFC_Custom1=0",
                   "TaskFC_Custom2=0", "TaskFC_Custom3=0", ""}) +
            Lines({"[Event Custom Names]", "EventCN_Study Time=Study Time", "EventCN_Class=",
                   "EventCN_Birthday=", "EventCN_Holiday=", "EventCN_School=", "EventCN_Home=",
                   "EventCN_Personal=", "EventCN_Friends=", "EventCN_Family=", "EventCN_Recreation=",
                   "EventCN_Work=", "EventCN_Custom1=", "EventCN_Custom2=", "EventCN_Custom3=", ""}) +
            Lines({"[Event Backcolors]", "EventBC_Study Time=255", "EventBC_Class=9934841",
                   "EventBC_Birthday=15120870", "EventBC_Holiday=55807", "EventBC_School=10732766",
                   "EventBC_Home=13035519", "EventBC_Personal=11399151", "EventBC_Friends=16580310",
                   "EventBC_Family=12582847", "EventBC_Recreation=16770995", "EventBC_Work=11075583",
                   "EventBC_Custom1=16777215", "EventBC_Custom2=16777215", "EventBC_Custom3=16777215", ""}) +
            Lines({"[Event Forecolors]", "EventFC_Study Time=0", "EventFC_Class=0", "EventFC_Birthday=0",
                   "EventFC_Holiday=0", "EventFC_School=0", "EventFC_Home=0", "EventFC_Personal=0",
                   "EventFC_Friends=0", "EventFC_Family=0", "EventFC_Recreation=0", "EventFC_Work=0",
                   "EventFC_Custom1=0", "EventFC_Custom2=0", "EventFC_Custom3=0"}));
    EXPECT_EQ(DataFile("Prefs.ini.tmp"), NoFile);
}

TEST_F(Preferences, OfAWindowThatIsNotNormalAreWrittenWithPlacesOfZero) {
    const std::vector<std::pair<WindowState, std::string>> states{{WindowState::Minimized, "1"},
                                                                  {WindowState::Maximized, "2"}};
    for (const auto& [state, text] : states) {
        WritePreferencesFile({.FormMainState = state,
                              .FormMainLocationX = 10,
                              .FormMainLocationY = 20,
                              .FormMainSizeX = 800,
                              .FormMainSizeY = 600});
        EXPECT_TRUE(DataFile("Prefs.ini").starts_with(FileStart(text, {"0", "0", "0", "0"})));
    }
    const PreferenceValues values = ReadPreferencesFile(Screen);
    EXPECT_EQ(values.FormMainState, WindowState::Maximized);
    EXPECT_EQ(values.FormMainSizeX, Place{}) << "a later return to normal size uses the design place";
}

TEST_F(Preferences, AreWrittenWithZeroForEachPlaceAtWhichALaterReadWouldEnd) {
    WritePreferencesFile({.FormMainLocationX = 2185,
                          .FormMainLocationY = 2184,
                          .FormMainSizeX = 3000,
                          .FormMainSizeY = 40000});
    EXPECT_TRUE(DataFile("Prefs.ini").starts_with(FileStart("0", {"0", "2184", "0", "0"})));
    TypeTable.customname.Replace(TypeRow("Task", "Home"), "Chores");
    WritePreferencesFile({.FormMainLocationX = 3000, .FormMainSizeX = 2500});
    SetDefaultTypeTable();
    ReadPreferencesFile({3840, 2160});
    EXPECT_EQ(CustomName("Task", "Home"), "Chores");
}

TEST_F(Preferences, ReadBackAsTheyWereWritten) {
    TypeTable.customname.Replace(TypeRow("Event", "Custom1"), "Music\xE9");
    TypeTable.forecolor.Replace(TypeRow("Task", "Idea"), "16711680");
    const TypeTableLists written = TypeTable;
    WritePreferencesFile({.FormMainLocationX = 1,
                          .FormMainLocationY = 2,
                          .FormMainSizeX = 801,
                          .FormMainSizeY = 602,
                          .ActiveTerm = "Fall",
                          .StartDayofWeek = "Saturday",
                          .ShowTipsAtStartup = "No",
                          .AutoStart = "No",
                          .CurrentTip = 31});
    SetDefaultTypeTable();
    const PreferenceValues values = ReadPreferencesFile(Screen);
    EXPECT_EQ(values.FormMainLocationX, Place{1});
    EXPECT_EQ(values.FormMainLocationY, Place{2});
    EXPECT_EQ(values.FormMainSizeX, Place{801});
    EXPECT_EQ(values.FormMainSizeY, Place{602});
    EXPECT_EQ(values.ActiveTerm, "Fall");
    EXPECT_EQ(values.StartDayofWeek, "Saturday");
    EXPECT_EQ(values.ShowTipsAtStartup, "No");
    EXPECT_EQ(values.AutoStart, "No");
    EXPECT_EQ(values.CurrentTip, 31);
    EXPECT_EQ(TypeTable.customname, written.customname);
    EXPECT_EQ(TypeTable.forecolor, written.forecolor);
    EXPECT_EQ(TypeTable.backcolor, written.backcolor);
}

TEST_F(Preferences, ReplaceAWholeLongerFile) {
    SetDataFile("Prefs.ini", std::string(100000, 'x'));
    WritePreferencesFile({});
    EXPECT_TRUE(DataFile("Prefs.ini").ends_with("EventFC_Custom3=0\r\n"));
}

TEST_F(Preferences, AreReadAndWrittenInTheDataFolderWhateverFolderIsTheCurrentOne) {
    fs::current_path(drive.root);
    WritePreferencesFile({.CurrentTip = 4});
    fs::current_path(drive.root);
    EXPECT_EQ(ReadPreferencesFile(Screen).CurrentTip, 4);
    EXPECT_FALSE(fs::exists(drive.root / "Prefs.ini"));
}

TEST_F(Preferences, ThatCannotBeReadAreTheDefaultsWithoutAMessage) {
    fs::create_directory(DataFolder / "Prefs.ini");
    EXPECT_EQ(ReadPreferencesFile(Screen).AutoStart, "Tray");
    fs::current_path(drive.root);
    fs::rename(DataFolder, drive.root / "elsewhere");
    EXPECT_EQ(ReadPreferencesFile(Screen).AutoStart, "Tray");
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Preferences, ThatCannotBeWrittenRaiseTheErrorWithoutAMessage) {
    fs::create_symlink("/dev/full", DataFolder / "Prefs.ini");
    EXPECT_THROW(WritePreferencesFile({}), RunTimeError);
    fs::remove(DataFolder / "Prefs.ini");
    fs::create_directory(DataFolder / "Prefs.ini");
    EXPECT_THROW(WritePreferencesFile({}), RunTimeError);
    EXPECT_TRUE(SucceedsInChild([] {
        fs::remove(DataFolder / "Prefs.ini");
        FailSystemCall(SYS_fsync, EIO);
        EXPECT_THROW(WritePreferencesFile({}), RunTimeError);
    }));
    fs::current_path(drive.root);
    fs::rename(DataFolder, drive.root / "elsewhere");
    EXPECT_THROW(WritePreferencesFile({}), RunTimeError);
    EXPECT_EQ(Script.boxes, Boxes{});
}
