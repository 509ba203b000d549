// The study timer's arithmetic: the time run so far, split and written out.
#pragma once

#include "platform/Clock.h"

#include <string>

struct StudyTimerClock {
    Moment TimerStart{};        // when it last started
    double TimerElapsedNow = 0; // seconds since then
    double TimerBanked = 0;     // seconds of earlier runs since the last reset
    double TimerHours = 0;      // the split value shown
    double TimerMinutes = 0;
    double TimerSeconds = 0;
    bool ShowSeconds = true;
};

// Adds the seconds of the run that ends now to those banked.
void BankTimer(StudyTimerClock& timer, Moment now);

// Splits the banked seconds and those of the present run. They are taken from the clock, so a late tick loses
// nothing.
void TickTimer(StudyTimerClock& timer, Moment now);

// Sets what is shown and what is banked to nothing.
void ResetTimer(StudyTimerClock& timer);

// "HH:MM:SS", or "HH:MM" without seconds, its colon a blank in odd seconds. Each part is the last two digits.
std::string TimerText(const StudyTimerClock& timer);
