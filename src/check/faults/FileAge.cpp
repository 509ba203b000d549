// When files were written.
#include "check/faults/FileAge.h"

#include "check/faults/Finding.h"
#include "core/DateText.h"

#include <algorithm>
#include <ctime>
#include <sys/stat.h>

namespace {

constexpr std::size_t MinutesEnd = 16; // of "2026/11/22 14:03:00"

} // namespace

std::optional<Moment> WrittenAt(const std::filesystem::path& path) {
    struct stat state {};

    std::tm local{};
    if (::stat(path.c_str(), &state) != 0 || ::localtime_r(&state.st_mtim.tv_sec, &local) == nullptr) {
        return std::nullopt;
    }
    const std::chrono::year_month_day day{std::chrono::year{local.tm_year + 1900},
                                          std::chrono::month{static_cast<unsigned>(local.tm_mon) + 1},
                                          std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
    return Moment{Date{day}} + std::chrono::hours{local.tm_hour} + std::chrono::minutes{local.tm_min} +
           std::chrono::seconds{local.tm_sec};
}

std::string WrittenText(std::optional<Moment> moment) {
    if (!moment) {
        return "an unknown day";
    }
    std::string text = StoredMoment(*moment).substr(0, MinutesEnd);
    std::ranges::replace(text, '/', '-');
    return text;
}

std::string AgeText(Moment then, Moment now) {
    const auto age = std::max(now - then, std::chrono::seconds{0});
    if (age >= std::chrono::days{1}) {
        return Counted(std::chrono::floor<std::chrono::days>(age).count(), "day");
    }
    if (age >= std::chrono::hours{1}) {
        return Counted(std::chrono::floor<std::chrono::hours>(age).count(), "hour");
    }
    return Counted(std::chrono::floor<std::chrono::minutes>(age).count(), "minute");
}
