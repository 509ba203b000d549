// The study timer's arithmetic: the time run so far, split and written out.
#include "mainwindow/state/StudyTimerClock.h"

#include "planner/dates/DateHelpers.h"

#include <cmath>

namespace {

constexpr double SecondsPerHour = 3600;
constexpr double SecondsPerMinute = 60;

double SecondsBetween(Moment start, Moment end) {
    return static_cast<double>((end - start).count());
}

std::string WholePart(double value) {
    return TwoDigits(static_cast<std::int64_t>(value));
}

} // namespace

void BankTimer(StudyTimerClock& timer, Moment now) {
    timer.TimerBanked += SecondsBetween(timer.TimerStart, now);
}

void TickTimer(StudyTimerClock& timer, Moment now) {
    timer.TimerElapsedNow = SecondsBetween(timer.TimerStart, now);
    const double total = timer.TimerBanked + timer.TimerElapsedNow;
    timer.TimerHours = std::trunc(total / SecondsPerHour);
    const double rest = total - timer.TimerHours * SecondsPerHour;
    timer.TimerMinutes = std::trunc(rest / SecondsPerMinute);
    timer.TimerSeconds = rest - timer.TimerMinutes * SecondsPerMinute;
}

void ResetTimer(StudyTimerClock& timer) {
    timer.TimerHours = 0;
    timer.TimerMinutes = 0;
    timer.TimerSeconds = 0;
    timer.TimerBanked = 0;
}

std::string TimerText(const StudyTimerClock& timer) {
    const std::string hours = WholePart(timer.TimerHours);
    const std::string minutes = WholePart(timer.TimerMinutes);
    if (timer.ShowSeconds) {
        return hours + ":" + minutes + ":" + WholePart(timer.TimerSeconds);
    }
    const bool odd = std::fmod(timer.TimerSeconds, 2) != 0;
    return hours + (odd ? " " : ":") + minutes;
}
