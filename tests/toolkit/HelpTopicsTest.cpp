// What's-this texts from the file of the program's folder.
#include "toolkit/HelpTopics.h"

#include "support/WindowTest.h"

#include <fstream>

namespace {

class HelpTopics : public WindowTest {
protected:
    void WriteTopics(const std::string& text) {
        std::ofstream(drive / "Planovarium" / "HelpTopics.txt", std::ios::binary) << text;
    }

    QWidget control;
};

} // namespace

TEST_F(HelpTopics, TopicGivesTheControlItsNumberAndItsText) {
    WriteTopics("# of the list\n\n112\tChooses a range.\n113\tAnother.\n");
    SetHelpTopic(&control, 112);
    EXPECT_EQ(control.property("helpTopic").toInt(), 112);
    EXPECT_EQ(control.whatsThis(), "<p>Chooses a range.</p>");
}

TEST_F(HelpTopics, TextIsPlainWhateverItHolds) {
    WriteTopics("9\tA < B & <b>C</b>\r\n");
    SetHelpTopic(&control, 9);
    EXPECT_EQ(control.whatsThis(), "<p>A &lt; B &amp; &lt;b&gt;C&lt;/b&gt;</p>");
}

TEST_F(HelpTopics, MissingNumberTakesTheTextAway) {
    WriteTopics("5\tFive\n");
    SetHelpTopic(&control, 5);
    SetHelpTopic(&control, 6);
    EXPECT_EQ(control.property("helpTopic").toInt(), 6);
    EXPECT_EQ(control.whatsThis(), "");
}

TEST_F(HelpTopics, LinesThatAreNoTopicsAreSkipped) {
    WriteTopics("#5\tFive\nsix\tSix\n7 Seven\n8\n");
    for (const int topic : {5, 6, 7, 8}) {
        SetHelpTopic(&control, topic);
        EXPECT_EQ(control.whatsThis(), "") << topic;
    }
}

TEST_F(HelpTopics, MissingFileShowsNothing) {
    SetHelpTopic(&control, 112);
    EXPECT_EQ(control.property("helpTopic").toInt(), 112);
    EXPECT_EQ(control.whatsThis(), "");
}
