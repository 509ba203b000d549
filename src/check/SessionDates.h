// The order of short dates in the language of the session, as the planner has it.
#pragma once

#include "platform/Formats.h"

#include <string_view>

// That of a locale such as "en_US" or "de", without a character set.
DateOrder DateOrderOf(std::string_view locale);

// That of the session, from its environment.
DateOrder SessionDateOrder();
