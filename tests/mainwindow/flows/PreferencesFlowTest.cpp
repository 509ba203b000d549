// The main window put where the preferences say, and its place handed back at the shutdown.
#include "mainwindow/flows/PreferencesFlow.h"
#include "core/Module1.h"
#include "core/TypeTable.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/frame/BringForward.h"
#include "mainwindow/frame/Load.h"
#include "mainwindow/frame/Unload.h"
#include "support/WindowTest.h"

namespace {

class WindowPlace : public WindowTest {
protected:
    void Load(const std::string& preferences) {
        WriteData("Prefs.ini", preferences);
        LoadWindow();
    }

    // The first lines of Prefs.ini after a shutdown: the state and the four places.
    std::string WrittenPlace() {
        Unload(*window);
        const std::string text = ReadData("Prefs.ini");
        return text.substr(0, text.find("\n\n"));
    }
};

class TypesAtTheLoad : public WindowTest {};

std::string PlaceLines(const std::string& state, const std::array<const char*, 4>& places) {
    return "[Window Position]\nFormMainState=" + state + "\nFormMainLocationX=" + places[0] +
           "\nFormMainLocationY=" + places[1] + "\nFormMainSizeX=" + places[2] +
           "\nFormMainSizeY=" + places[3];
}

constexpr QSize DesignSize{780, 575};

} // namespace

TEST_F(WindowPlace, IsTheOneOfThePreferences) {
    Load("FormMainState=0\nFormMainLocationX=100\nFormMainLocationY=60\nFormMainSizeX=900\n"
         "FormMainSizeY=700\n");
    EXPECT_EQ(window->pos(), QPoint(100, 60));
    EXPECT_EQ(window->size(), QSize(900, 700));
    EXPECT_FALSE(window->isMaximized());
}

TEST_F(TypesAtTheLoad, HaveTheNamesAndColoursOfThePreferencesAndTheDefaultsBesideThem) {
    WriteData("Prefs.ini", "TaskCN_School=University\nTaskBC_School=255\nEventFC_Work=65280\n");
    LoadWindow();
    const int school = TypeRow("Task", "School");
    EXPECT_EQ(TypeTable.category.Count(), 27);
    EXPECT_EQ(TypeTable.customname.Item(school), "University");
    EXPECT_EQ(TypeTable.backcolor.Item(school), "255");
    EXPECT_EQ(TypeTable.forecolor.Item(school), "0");
    EXPECT_EQ(TypeTable.forecolor.Item(TypeRow("Event", "Work")), "65280");
    EXPECT_EQ(TypeTable.customname.Item(TypeRow("Event", "Study Time")), "Study Time");
    Unload(*window);
    EXPECT_NE(ReadData("Prefs.ini").find("\nTaskCN_School=University\n"), std::string::npos);
}

TEST_F(WindowPlace, WithoutPreferencesHasTheDesignSize) {
    LoadWindow();
    EXPECT_EQ(window->size(), DesignSize);
}

TEST_F(WindowPlace, OnAScreenSmallerThanTheSavedSizeHasTheDesignSize) {
    Script.screen = {800, 600};
    Load("FormMainSizeX=900\nFormMainSizeY=700\n");
    EXPECT_EQ(window->size(), DesignSize);
}

TEST_F(WindowPlace, SidesThatAreNotSavedStayAsDesigned) {
    Load("FormMainLocationX=100\nFormMainLocationY=0\nFormMainSizeX=0\nFormMainSizeY=700\n");
    EXPECT_EQ(window->x(), 100);
    EXPECT_EQ(window->size(), QSize(DesignSize.width(), 700));
}

TEST_F(WindowPlace, CannotBeSmallerThanTheDesignSize) {
    Load("FormMainSizeX=300\nFormMainSizeY=200\n");
    EXPECT_EQ(window->size(), DesignSize);
    window->resize(10, 10);
    EXPECT_EQ(window->size(), DesignSize);
}

TEST_F(WindowPlace, OfAMaximizedWindowIsKeptForItsNormalSize) {
    Load("FormMainState=2\nFormMainLocationX=100\nFormMainSizeX=790\n");
    EXPECT_TRUE(window->isMaximized());
    EXPECT_EQ(window->normalGeometry().size(), QSize(790, DesignSize.height()));
    EXPECT_EQ(window->normalGeometry().x(), 100);
}

TEST_F(WindowPlace, MinimizedOfThePreferencesIsNormal) {
    Load("FormMainState=1\n");
    EXPECT_EQ(window->windowState() & ~Qt::WindowActive, Qt::WindowNoState);
}

TEST_F(WindowPlace, IsWrittenInPixels) {
    LoadWindow();
    window->move(120, 80);
    window->resize(850, 640);
    EXPECT_EQ(WrittenPlace(), PlaceLines("0", {"120", "80", "850", "640"}));
}

TEST_F(WindowPlace, OfAHiddenWindowIsWrittenAsItWas) {
    Load("FormMainLocationX=100\nFormMainLocationY=60\nFormMainSizeX=790\nFormMainSizeY=590\n");
    HideWindows(*window);
    EXPECT_EQ(WrittenPlace(), PlaceLines("0", {"100", "60", "790", "590"}));
}

TEST_F(WindowPlace, OfAWindowThatWasNeverShownIsWrittenAsItWasRead) {
    WriteData("Prefs.ini", "FormMainLocationX=100\nFormMainLocationY=60\nFormMainSizeX=790\n");
    window = std::make_unique<frmMain>();
    MainWindow = window.get();
    ASSERT_TRUE(LoadPlanner(*window));
    ShowAtStart(*window, "Startup Folder");
    ASSERT_FALSE(window->isVisible());
    EXPECT_EQ(WrittenPlace(), PlaceLines("0", {"100", "60", "790", "575"}));
}

TEST_F(WindowPlace, OfAMaximizedOrMinimizedWindowIsWrittenAsZeros) {
    LoadWindow();
    window->setWindowState(Qt::WindowMaximized);
    EXPECT_EQ(WrittenPlace(), PlaceLines("2", {"0", "0", "0", "0"}));
    window->setWindowState(Qt::WindowMinimized);
    WritePreferences(*window);
    EXPECT_TRUE(ReadData("Prefs.ini").starts_with(PlaceLines("1", {"0", "0", "0", "0"})));
}

TEST_F(WindowPlace, OfAMaximizedWindowThatIsMinimizedIsThatOfAMinimizedOne) {
    LoadWindow();
    window->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    EXPECT_EQ(WrittenPlace(), PlaceLines("1", {"0", "0", "0", "0"}));
}

TEST_F(WindowPlace, ThatALaterReadWouldStopAtIsWrittenAsZero) {
    LoadWindow();
    window->move(2185, 2184);
    EXPECT_EQ(WrittenPlace(), PlaceLines("0", {"0", "2184", "780", "575"}));
}

TEST_F(WindowPlace, LeavesASideWhereItIsOfWhichAZeroIsSaved) {
    LoadWindow();
    window->move(70, 80);
    window->resize(900, 700);
    const auto read = [this](const std::string& preferences) {
        WriteData("Prefs.ini", preferences);
        ReadPreferences(*window);
        return QRect(window->pos(), window->size());
    };
    EXPECT_EQ(read("FormMainLocationX=100\nFormMainLocationY=0\nFormMainSizeX=0\nFormMainSizeY=650\n"),
              QRect(100, 80, 900, 650));
    EXPECT_EQ(read("FormMainLocationX=0\nFormMainLocationY=90\nFormMainSizeX=850\nFormMainSizeY=0\n"),
              QRect(100, 90, 850, 650));
    EXPECT_EQ(read("FormMainLocationX=0\nFormMainLocationY=0\nFormMainSizeX=0\nFormMainSizeY=0\n"),
              QRect(100, 90, 850, 650));
}
