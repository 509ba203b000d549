// The user's forms of dates and times, from the locale of the desktop session.
#include "platform/Formats.h"

#include <QDate>
#include <QLocale>
#include <QTime>

#include <array>

namespace {

using std::chrono::year_month_day;

struct DateForm {
    std::string_view name;
    const char* pattern;
};

constexpr std::array<DateForm, 7> DateForms{{
    {"Medium Date", "dd-MMM-yy"},
    {"dddd, mmm d", "dddd, MMM d"},
    {"dddd, MMMM d", "dddd, MMMM d"},
    {"dddd", "dddd"},
    {"mmm", "MMM"},
    {"MMMM", "MMMM"},
    {"d", "d"},
}};

// A program without a language of its own speaks US English, not the C locale's mixture.
QLocale UserLocale() {
    const QLocale system = QLocale::system();
    const bool none = system.language() == QLocale::C || system.name() == QLatin1String("C");
    return none ? QLocale(QLocale::English, QLocale::UnitedStates) : system;
}

QDate ToQDate(Date date) {
    const year_month_day parts{date};
    return QDate(static_cast<int>(parts.year()), static_cast<int>(static_cast<unsigned>(parts.month())),
                 static_cast<int>(static_cast<unsigned>(parts.day())));
}

// The locale's short pattern with four digits of the year.
QString ShortPattern(const QLocale& locale) {
    QString pattern = locale.dateFormat(QLocale::ShortFormat);
    if (!pattern.contains(QLatin1String("yyyy"))) {
        pattern.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return pattern;
}

} // namespace

DateOrder LocaleDateOrder() {
    const QString pattern = UserLocale().dateFormat(QLocale::ShortFormat);
    const qsizetype dayAt = pattern.indexOf(QLatin1Char('d'));
    const qsizetype monthAt = pattern.indexOf(QLatin1Char('M'));
    const qsizetype yearAt = pattern.indexOf(QLatin1Char('y'));
    if (yearAt < monthAt && yearAt < dayAt) {
        return DateOrder::YearMonthDay;
    }
    return dayAt < monthAt ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
}

ScreenText FormatDate(Date date, std::string_view form) {
    const QLocale locale = UserLocale();
    const QDate day = ToQDate(date);
    if (form == "Long Date") {
        return {locale.toString(day, QLocale::LongFormat).toStdString()};
    }
    if (form == "Short Date") {
        return {locale.toString(day, ShortPattern(locale)).toStdString()};
    }
    for (const DateForm& known : DateForms) {
        if (known.name == form) {
            return {locale.toString(day, QLatin1String(known.pattern)).toStdString()};
        }
    }
    return {};
}

// The same in every language, so that a time that an editor has rewritten reads back as a time.
ScreenText FormatTime(TimeOfDay time, std::string_view) {
    const QTime clock = QTime::fromMSecsSinceStartOfDay(static_cast<int>(time.count()) * 1000);
    return {QLocale::c().toString(clock, QStringLiteral("hh:mm AP")).toStdString()};
}
