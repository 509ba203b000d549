// Short sounds.
#pragma once

#include <filesystem>

// Lets the sound file be heard and does not wait, neither for its end nor for the machine's sound service.
// While one is heard another is not begun. Where nothing can be heard nothing is told.
void PlaySound(const std::filesystem::path& file);
