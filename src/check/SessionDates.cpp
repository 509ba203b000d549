// The order of short dates in the language of the session, by its name alone. These are the orders of the
// planner's toolkit, which asks neither what is installed.
#include "check/SessionDates.h"

#include "platform/Process.h"

#include <initializer_list>

namespace {

// Each word has a blank on both sides.
constexpr std::string_view LanguagesWithYearFirst =
    " aa ab af ak an arn ba bgn blt bo brx bss byn cch ce cic ckb co cu cv dv dz eo eu fa gaa "
    "gez gn hu ii io iu ja jbo jgo kaj kcg ken kl ko kpe ku la lrc lt mg mgo mn moh mus myv mzn "
    "ne nqo nr nso nv ny oc osa prg ps quc rw sah scn sd sdh se si sid sma smj sms sn ss ssy st "
    "sv syr szl tig tn tpi trv ts ug ve vo wa wae wal wbp xh yue zh ";
constexpr std::string_view LanguagesWithMonthFirst = " ceb chr ee fil ks lkt or zu ";

// Those that differ from what their language has in other countries; all other ones have the day first.
constexpr std::string_view LocalesWithYearFirst = " az_IR en_CA en_SE en_ZA fr_CA uz_AF ";
constexpr std::string_view LocalesWithMonthFirst =
    " en en_AS en_BI en_GU en_MH en_MP en_PH en_PR en_UM en_US en_VI es_PA es_PR sd_IN ";
constexpr std::string_view LocalesWithDayFirst = " se_FI zh_HK zh_MO zh_SG ";

bool HasWord(std::string_view words, std::string_view word) {
    return words.find(" " + std::string(word) + " ") != std::string_view::npos;
}

// Without the character set and the variant: "en_US" of "en_US.UTF-8".
std::string BareName(const std::string& locale) {
    return locale.substr(0, locale.find_first_of(".@"));
}

// That of the first variable that is set.
std::string FirstName(std::initializer_list<const char*> variables) {
    for (const char* variable : variables) {
        if (const std::string value = EnvironmentValue(variable); !value.empty()) {
            return BareName(value);
        }
    }
    return {};
}

bool IsNoLanguage(const std::string& locale) {
    return locale.empty() || locale == "C" || locale == "POSIX";
}

} // namespace

DateOrder DateOrderOf(std::string_view locale) {
    const std::string_view language = locale.substr(0, locale.find('_'));
    if (HasWord(LocalesWithDayFirst, locale)) {
        return DateOrder::DayMonthYear;
    }
    if (HasWord(LocalesWithMonthFirst, locale)) {
        return DateOrder::MonthDayYear;
    }
    if (HasWord(LocalesWithYearFirst, locale) || HasWord(LanguagesWithYearFirst, language)) {
        return DateOrder::YearMonthDay;
    }
    return HasWord(LanguagesWithMonthFirst, language) ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
}

DateOrder SessionDateOrder() {
    if (IsNoLanguage(FirstName({"LC_ALL", "LC_NUMERIC", "LANG"}))) {
        return DateOrder::MonthDayYear; // a session without a language counts as US English
    }
    return DateOrderOf(FirstName({"LC_ALL", "LC_TIME", "LANG"}));
}
