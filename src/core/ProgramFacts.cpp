// What the program says of itself.
#include "core/ProgramFacts.h"

namespace {

constexpr std::string_view HomeSite = PLANOVARIUM_HOME_SITE;
constexpr std::string_view HomeworkHelpSite = PLANOVARIUM_HOMEWORK_HELP_SITE;

} // namespace

std::string_view ProgramVersion() {
    return PLANOVARIUM_VERSION;
}

std::string HomePage() {
    return std::string(HomeSite) + "/";
}

std::string ContactPage() {
    return std::string(HomeSite) + "/contactus.html";
}

std::string HomeworkHelpPage() {
    return HomeworkHelpSite.empty() ? "" : std::string(HomeworkHelpSite) + "/index.html";
}
