// One running instance a user and a drive: who is first, and the conversation by which a second start asks it
// to come forward.
#pragma once

#include <functional>
#include <string>
#include <string_view>

// What both ends of the link have to say.
inline constexpr std::string_view LinkApplication = "Planovarium";
inline constexpr std::string_view LinkTopic = "Transfer Control";
inline constexpr std::string_view LinkCommand = "Take Control";

// True when this process is the user's first instance, and stays so until its end. What a dead process left
// is taken over.
bool ClaimFirstInstance();

// True unless another process holds the drive with this document folder, whoever runs it; then it is this
// process's until its end. Nothing is written there. Where the folder cannot be held, it is nobody's.
bool ClaimDrive(const std::string& folder);

enum class LinkResult {
    Accepted, // the first instance came forward
    Refused,  // it has a modal dialog open
    Failed    // there is none, or it did not answer within three seconds
};

// Sends the command to the first instance under the application word and the topic, and waits for its answer.
LinkResult SendLinkCommand(std::string_view application, std::string_view topic, std::string_view command);

// Opens the link and receives commands for the application word and the topic, as events are handled. The
// procedure answers true to accept. Gives false when no link could be opened.
bool ReceiveLinkCommands(std::string_view application, std::string_view topic,
                         std::function<bool(const std::string& command)> receive);
