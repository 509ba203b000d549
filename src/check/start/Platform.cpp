// The platform of plancheck, beside that which needs no toolkit: the clock, the order of dates, and messages
// on the terminal.
#include "check/SessionDates.h"
#include "platform/Clock.h"
#include "platform/Formats.h"
#include "platform/MessageBoxes.h"

#include <cstdio>
#include <ctime>

Moment Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return Moment{std::chrono::seconds{now + local.tm_gmtoff}};
}

Date Today() {
    return std::chrono::floor<std::chrono::days>(Now());
}

DateOrder LocaleDateOrder() {
    return SessionDateOrder();
}

// Nothing that is checked shows a box; one that came up all the same would stand in the way of no answer.
Answer MsgBox(std::string_view text, Buttons buttons, Icon /*icon*/, std::string_view /*title*/,
              Preset /*preset*/) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}
