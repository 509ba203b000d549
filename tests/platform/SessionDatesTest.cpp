// The order of dates that a program without the toolkit takes from the session is the planner's.
#include "check/SessionDates.h"

#include "support/ChildProcess.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

// The variables of a session, each "" for one that is not set.
struct Session {
    const char* all;
    const char* time;
    const char* language;
};

constexpr Session Sessions[] = {
    {"", "", "de_DE.UTF-8"},
    {"", "", "en_US.UTF-8"},
    {"", "", "en_GB.UTF-8"},
    {"", "", "sv_SE.UTF-8"},
    {"", "", "ja_JP.UTF-8"},
    {"", "", "fr_CA.UTF-8"},
    {"", "", "C"},
    {"", "", "C.UTF-8"},
    {"", "", ""},
    {"C", "de_DE", "de_DE"},
    {"", "sv_SE", "en_US.UTF-8"},
    {"hu_HU", "en_US", "en_US"},
    {"", "C", "de_DE.UTF-8"},
    {"", "en_GB", "C"},
    {"", "", "ca_ES@valencia"},
    {"POSIX", "", "sv_SE.UTF-8"},
    {"", "", "es_PR.ISO-8859-1"},
    {"", "de_DE.UTF-8@euro", "zh_CN"},
};

void SetOrClear(const char* name, const char* value) {
    if (*value == '\0') {
        ::unsetenv(name);
    } else {
        ::setenv(name, value, 1);
    }
}

// The first of the fields of a short date, as the toolkit forms it.
DateOrder OrderOf(const QString& pattern) {
    for (const QChar character : pattern) {
        if (character == QLatin1Char('y')) {
            return DateOrder::YearMonthDay;
        }
        if (character == QLatin1Char('d')) {
            return DateOrder::DayMonthYear;
        }
        if (character == QLatin1Char('M')) {
            return DateOrder::MonthDayYear;
        }
    }
    return DateOrder::MonthDayYear;
}

} // namespace

TEST(SessionDates, AreThoseOfThePlannerInEverySession) {
    for (const Session& session : Sessions) {
        EXPECT_TRUE(SucceedsInChild([&session] {
            for (const char* name : {"LC_NUMERIC", "LC_MEASUREMENT", "LANGUAGE"}) {
                ::unsetenv(name);
            }
            SetOrClear("LC_ALL", session.all);
            SetOrClear("LC_TIME", session.time);
            SetOrClear("LANG", session.language);
            EXPECT_EQ(SessionDateOrder(), LocaleDateOrder())
                << session.all << "," << session.time << "," << session.language;
        }));
    }
}

TEST(SessionDates, AreThoseOfTheToolkitInEveryLanguageAndCountry) {
    for (const QLocale& any :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const QString name = any.name();
        if (any.language() != QLocale::C) {
            EXPECT_EQ(DateOrderOf(name.toStdString()),
                      OrderOf(QLocale(name).dateFormat(QLocale::ShortFormat)))
                << name.toStdString();
        }
    }
}
