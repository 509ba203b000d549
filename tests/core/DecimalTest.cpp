// Exact decimal numbers.
#include "core/Decimal.h"
#include "core/RunTimeError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

std::string RoundTrip(std::string_view text) {
    return DecimalText(ToDecimal(text));
}

// The number as ten-thousandths, for an arithmetic in whole numbers beside the one under test.
Decimal TenThousandths(int number) {
    Decimal decimal = DecimalOf(number);
    decimal.scale = 4;
    return decimal;
}

} // namespace

TEST(Decimals, AreReadAsNumbersAre) {
    EXPECT_EQ(RoundTrip("85"), "85");
    EXPECT_EQ(RoundTrip(" 85.50 "), "85.50");
    EXPECT_EQ(RoundTrip("5."), "5");
    EXPECT_EQ(RoundTrip(".5"), "0.5");
    EXPECT_EQ(RoundTrip("+007.10"), "7.10");
    EXPECT_EQ(RoundTrip("-0.05"), "-0.05");
    EXPECT_EQ(RoundTrip("-0"), "0");
    for (const char* none : {"", " ", ".", "1 2", "1,5", "1e3", "0x10", "--1", "five", "1.2.3", "-"}) {
        EXPECT_FALSE(DecimalIn(none)) << none;
        EXPECT_THROW(ToDecimal(none), RunTimeError) << none;
    }
}

TEST(Decimals, LoseTheirLastZerosInTheShortForm) {
    EXPECT_EQ(ShortDecimalText(ToDecimal("7.50")), "7.5");
    EXPECT_EQ(ShortDecimalText(ToDecimal("7.00")), "7");
    EXPECT_EQ(ShortDecimalText(ToDecimal("700")), "700");
    EXPECT_EQ(ShortDecimalText(ToDecimal("0.00")), "0");
}

TEST(Decimals, OfAnyLengthStayExact) {
    const std::string nines(300, '9');
    EXPECT_EQ(DecimalText(Sum(ToDecimal(nines), ToDecimal("1"))), "1" + std::string(300, '0'));
    EXPECT_EQ(DecimalText(Sum(ToDecimal("1" + std::string(300, '0')), ToDecimal("-1"))), nines);
    EXPECT_EQ(DecimalText(Quotient(ToDecimal(nines), ToDecimal(nines), 2)), "1.00");
    const std::string small = "0." + std::string(200, '0') + "1";
    EXPECT_GT(Compare(ToDecimal("1"), Sum(ToDecimal("1"), ToDecimal("-" + small))), 0);
}

TEST(Decimals, AreDividedWithHalvesAwayFromZero) {
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("0.5"), DecimalOf(1), 0)), "1");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("1.5"), DecimalOf(1), 0)), "2");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("2.5"), DecimalOf(1), 0)), "3");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("-2.5"), DecimalOf(1), 0)), "-3");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("2.4999999999999999999"), DecimalOf(1), 0)), "2");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("2.675"), DecimalOf(1), 2)), "2.68");
    EXPECT_EQ(DecimalText(Quotient(DecimalOf(2), DecimalOf(3), 2)), "0.67");
    EXPECT_EQ(DecimalText(Quotient(DecimalOf(0), DecimalOf(-3), 2)), "0.00");
    EXPECT_EQ(DecimalText(Quotient(ToDecimal("-0.001"), DecimalOf(1), 2)), "0.00");
}

RC_GTEST_PROP(DecimalProperties, ReckonAsWholeNumbersDo, ()) {
    const int a = *rc::gen::inRange(-1'000'000, 1'000'000);
    const int b = *rc::gen::inRange(-1'000'000, 1'000'000);
    const int factor = *rc::gen::inRange(-100, 101);
    RC_ASSERT(Compare(Sum(TenThousandths(a), TenThousandths(b)), TenThousandths(a + b)) == 0);
    RC_ASSERT(Compare(Product(TenThousandths(a), factor), TenThousandths(a * factor)) == 0);
    RC_ASSERT(Compare(DecimalOf(a), DecimalOf(b)) == (a > b) - (a < b));
    RC_ASSERT(Compare(DecimalOf(a), TenThousandths(b)) == (10'000LL * a > b) - (10'000LL * a < b));
}

RC_GTEST_PROP(DecimalProperties, DivideToTheNearestWithHalvesAway, ()) {
    const int a = *rc::gen::inRange(-10'000, 10'000);
    const int b = *rc::gen::distinctFrom(rc::gen::inRange(-1'000, 1'000), 0);
    const int rounded = (2 * std::abs(a) + std::abs(b)) / (2 * std::abs(b)) * ((a < 0) != (b < 0) ? -1 : 1);
    RC_ASSERT(Quotient(DecimalOf(a), DecimalOf(b), 0) == DecimalOf(rounded));
}

RC_GTEST_PROP(DecimalProperties, ComeBackFromTheirText, (int number)) {
    RC_ASSERT(ToDecimal(DecimalText(TenThousandths(number % 1'000'000))) ==
              TenThousandths(number % 1'000'000));
}
