// When files were written.
#pragma once

#include "platform/Clock.h"

#include <filesystem>
#include <optional>
#include <string>

// The local time at which the file was written last; nothing where that is not known.
std::optional<Moment> WrittenAt(const std::filesystem::path& path);

// "2026-11-22 14:03", or "an unknown day".
std::string WrittenText(std::optional<Moment> moment);

// "3 days", "2 hours", "5 minutes", from then to the present.
std::string AgeText(Moment then, Moment now);
