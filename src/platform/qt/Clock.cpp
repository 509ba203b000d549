// The clock, from the operating system: local wall time.
#include "platform/Clock.h"

#include <QDateTime>

namespace {

constexpr qint64 EpochJulianDay = 2440588; // 1970-01-01

} // namespace

Moment Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 daysSinceEpoch = now.date().toJulianDay() - EpochJulianDay;
    const int secondOfDay = QTime(0, 0).secsTo(now.time());
    return Moment{std::chrono::days{daysSinceEpoch}} + std::chrono::seconds{secondOfDay};
}

Date Today() {
    return std::chrono::floor<std::chrono::days>(Now());
}
