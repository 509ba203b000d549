// What's-this help: a control's topic by its number, and the text that the student is shown for it.
#include "toolkit/HelpTopics.h"

#include "platform/Process.h"

#include <QTextDocument>
#include <QVariant>
#include <QWidget>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace {

constexpr const char* TopicsFile = "HelpTopics.txt";

// The topics of the folder that they were read from: a window has dozens, and all stand in one file.
struct Topics {
    std::filesystem::path folder;
    std::map<int, std::string> texts;
};

Topics topics;

// A topic is a number, a tab and a text. Comments and empty lines have none of these.
void ReadTopic(const std::string& line) {
    int number = 0;
    const char* const end = line.data() + line.size();
    const auto [behind, error] = std::from_chars(line.data(), end, number);
    if (error == std::errc{} && behind != end && *behind == '\t') {
        topics.texts[number] = std::string(behind + 1, end);
    }
}

void ReadTopics(const std::filesystem::path& folder) {
    topics = {folder, {}};
    std::ifstream file(folder / TopicsFile, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        ReadTopic(line);
    }
}

} // namespace

void SetHelpTopic(QWidget* control, int topic) {
    const std::filesystem::path folder = EnvironmentValue(ProgramFolderVariable);
    if (topics.folder != folder) {
        ReadTopics(folder);
    }
    control->setProperty("helpTopic", topic);
    const auto found = topics.texts.find(topic);
    const QString text = found == topics.texts.end() ? QString() : QString::fromStdString(found->second);
    control->setWhatsThis(text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
}
