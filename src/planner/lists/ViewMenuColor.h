// The colour by which the view menus' panel and the marked days tell which word is chosen in ComboList.
#pragma once

#include <optional>
#include <string_view>

// Nothing for a word that leaves the colour as it is.
std::optional<int> ViewMenuColor(std::string_view comboList);
