// How a value of the store is shown in what is told of it.
#pragma once

#include <string>
#include <string_view>

// The beginning of the text's first line, in quotes.
std::string QuotedBeginning(std::string_view text);
