// The user's forms of dates, from the locale of the desktop session.
#include "platform/Formats.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <array>

namespace {

using std::chrono::year_month_day;

struct DateForm {
    std::string_view name;
    const char* pattern;
};

constexpr std::array<DateForm, 4> DateForms{{
    {"Medium Date", "dd-MMM-yy"},
    {"dddd, mmm d", "dddd, MMM d"},
    {"dddd, MMMM d", "dddd, MMMM d"},
    {"MMMM", "MMMM"},
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

// The fields of the locale's short pattern, in their order: 'd', 'M' and 'y'.
QString ShortFields(const QString& pattern) {
    QString fields;
    for (const QChar character : pattern) {
        if (QLatin1String("dMy").contains(character) && !fields.contains(character)) {
            fields.append(character);
        }
    }
    return fields;
}

// The locale's short pattern in a form that reads back: four digits of the year, and nothing between the
// fields or around them but the separator. Some locales add blanks, words, marks of direction or a point at
// the end.
QString ShortPattern(const QLocale& locale) {
    const QString pattern = locale.dateFormat(QLocale::ShortFormat);
    QStringList fields;
    for (const QChar field : ShortFields(pattern)) {
        const bool padded = pattern.count(field) > 1;
        fields.append(field == QLatin1Char('y') ? QString(4, field) : QString(padded ? 2 : 1, field));
    }
    const QRegularExpressionMatch separator = QRegularExpression(QStringLiteral("[/.-]")).match(pattern);
    return fields.join(separator.hasMatch() ? separator.captured() : QStringLiteral("/"));
}

} // namespace

DateOrder LocaleDateOrder() {
    const QString fields = ShortFields(UserLocale().dateFormat(QLocale::ShortFormat));
    if (fields.startsWith(QLatin1Char('y'))) {
        return DateOrder::YearMonthDay;
    }
    return fields.startsWith(QLatin1Char('d')) ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
}

ScreenText FormatDate(Date date, std::string_view form) {
    const QLocale locale = UserLocale();
    const QDate day = ToQDate(date);
    if (form == "Long Date") {
        return {locale.toString(day, QLocale::LongFormat).toStdString()};
    }
    if (form == "Short Date") {
        return {QLocale::c().toString(day, ShortPattern(locale)).toStdString()}; // ASCII digits
    }
    for (const DateForm& known : DateForms) {
        if (known.name == form) {
            return {locale.toString(day, QLatin1String(known.pattern)).toStdString()};
        }
    }
    return {};
}
