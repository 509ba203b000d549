// One running instance a user: who is first, and the conversation by which a second start asks it to come
// forward.
#pragma once

#include <functional>
#include <string>
#include <string_view>

// What both ends of the link have to say.
inline constexpr std::string_view LinkApplication = "Planovarium";
inline constexpr std::string_view LinkTopic = "Transfer Control";
inline constexpr std::string_view LinkCommand = "Take Control";

// True when this process is the first instance, and stays so until its end. What a dead process left is taken
// over.
bool ClaimFirstInstance();

enum class LinkResult {
    Accepted, // the first instance came forward
    Refused,  // it has a modal dialog open
    Failed    // it did not answer within three seconds
};

// Sends the command to the first instance under the application word and the topic, and waits for its answer.
LinkResult SendLinkCommand(std::string_view application, std::string_view topic, std::string_view command);

// Starts to receive commands for the application word and the topic. The procedure answers true to accept.
// Gives false when no link could be opened.
bool ReceiveLinkCommands(std::string_view application, std::string_view topic,
                         std::function<bool(const std::string& command)> receive);
