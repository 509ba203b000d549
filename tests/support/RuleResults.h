// What the rules make of the store: the lists, the marks, the totals, the alerts, the reminders, the grades.
#pragma once

#include <string>

// All of it as one text, which two stores of the same records have alike. The store is left as it was. The
// clock has to stand; raises what the rules raise.
std::string RuleResults();
