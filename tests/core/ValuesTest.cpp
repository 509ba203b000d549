// Conversion of the store's texts and their comparison.
#include "core/Values.h"
#include "core/RunTimeError.h"
#include "core/TextList.h"

#include <gtest/gtest.h>

TEST(Numbers, AreDigitsWithSignAndPoint) {
    EXPECT_EQ(NumberIn("12"), 12);
    EXPECT_EQ(NumberIn(" -3.5 "), -3.5);
    EXPECT_EQ(NumberIn("+7"), 7);
    EXPECT_EQ(NumberIn("5."), 5);
    EXPECT_EQ(NumberIn(".5"), 0.5);
    for (const char* none :
         {"", " ", ".", "-", "+", "1e5", "0x10", "1 2", "--1", "1.2.3", "inf", "nan", "12a"}) {
        EXPECT_FALSE(NumberIn(none).has_value()) << none;
        EXPECT_THROW(ToNumber(none), RunTimeError) << none;
    }
}

TEST(Numbers, OfAnyLengthKeepTheirValue) {
    EXPECT_EQ(NumberIn("999999999"), 999999999.0);
    EXPECT_EQ(NumberIn("2147483648"), 2147483648.0);
    EXPECT_EQ(NumberIn("4294967297"), 4294967297.0); // 1, had it 32 bits
    EXPECT_EQ(NumberIn("9999999999"), 9999999999.0);
    EXPECT_EQ(NumberIn("18446744073709551617"), 18446744073709551617.0);
    EXPECT_FALSE(IdIn("4294967297").has_value());
    EXPECT_THROW(ToColor("4294967297"), RunTimeError);
    EXPECT_THROW(ToInt16("4294967297"), RunTimeError);
}

TEST(Numbers, RoundHalvesToEvenAndOverflowBeyondSixteenBits) {
    EXPECT_EQ(ToInt16("2.5"), 2);
    EXPECT_EQ(ToInt16("3.5"), 4);
    EXPECT_EQ(ToInt16("-2.5"), -2);
    EXPECT_EQ(ToInt16("32767.4"), 32767);
    EXPECT_THROW(ToInt16("32767.5"), RunTimeError);
    EXPECT_EQ(ToInt16("-32768"), -32768);
    EXPECT_THROW(ToInt16("-32769"), RunTimeError);
    EXPECT_THROW(ToInt16("999999999999999999999999999999"), RunTimeError);
}

TEST(Numbers, OfThirtyTwoBitsRoundAndOverflowAlike) {
    EXPECT_EQ(Int32Of(100000.5), 100000);
    EXPECT_EQ(Int32Of(-2147483648.0), -2147483647 - 1);
    EXPECT_THROW(Int32Of(2147483647.5), RunTimeError);
    EXPECT_THROW(Int32Of(1e300), RunTimeError);
}

TEST(Numbers, IdsAreWholeNumbersOfSixteenBits) {
    EXPECT_EQ(IdIn("7"), 7);
    EXPECT_EQ(IdIn("00032767"), 32767);
    EXPECT_EQ(IdIn("32767"), 32767);
    EXPECT_EQ(IdIn(" 12.0 "), 12);
    EXPECT_EQ(IdIn("-1"), -1);
    EXPECT_EQ(IdIn("-32768"), -32768);
    for (const char* none : {"", "32768", "99999", "1.5", "-32769", "one", "1 2"}) {
        EXPECT_FALSE(IdIn(none).has_value()) << none;
    }
}

TEST(Numbers, ColorsHaveTwentyFourBits) {
    EXPECT_EQ(ToColor("16777215"), 0xFFFFFF);
    EXPECT_THROW(ToColor("16777216"), RunTimeError);
    EXPECT_THROW(ToColor(""), RunTimeError);
    EXPECT_THROW(ToColor("-1"), RunTimeError);
}

TEST(Booleans, AreTrueAndFalseInAnyCase) {
    EXPECT_TRUE(IsTrue("True"));
    EXPECT_TRUE(IsTrue("tRUE"));
    EXPECT_FALSE(IsTrue("False"));
    EXPECT_FALSE(IsTrue("FALSE"));
    for (const char* none : {"", "1", "Yes", "True ", "Tru"}) {
        EXPECT_THROW(IsTrue(none), RunTimeError) << none;
    }
    EXPECT_EQ(BooleanText(true), "True");
    EXPECT_EQ(BooleanText(false), "False");
}

TEST(Texts, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(LeftTrim("  a "), "a ");
    EXPECT_EQ(RightTrim(" a  "), " a");
}

TEST(Texts, CompareWithAsciiAndLatinLettersFolded) {
    EXPECT_EQ(CompareFolded("Algebra", "aLGEBRA"), 0);
    EXPECT_EQ(CompareFolded("\xC4rger", "\xE4RGER"), 0);
    EXPECT_EQ(CompareFolded("\x8A", "\x9A"), 0);
    EXPECT_EQ(CompareFolded("\x9F", "\xFF"), 0);
    EXPECT_NE(CompareFolded("\xD7", "\xF7"), 0); // multiplication and division sign are no letters
    EXPECT_NE(CompareFolded("\xDF", "\xFF"), 0);
    EXPECT_LT(CompareFolded("a", "B"), 0);
    EXPECT_LT(CompareFolded("ab", "abc"), 0);
    EXPECT_GT(CompareFolded("abc", "ab"), 0);
    EXPECT_LT(CompareFolded("", "a"), 0);
}

TEST(Ids, EndAt32766) {
    int counter = 32766;
    EXPECT_EQ(NextId(counter), 32766);
    EXPECT_EQ(counter, 32767);
    EXPECT_THROW(NextId(counter), RunTimeError);
    EXPECT_EQ(counter, 32767);
}

TEST(Lists, CountFromOne) {
    TextList list;
    list.Add("b");
    list.AddBefore("a", 1);
    list.AddAfter("c", 2);
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.Item(1), "a");
    EXPECT_EQ(list.Item(3), "c");
    list.Remove(2);
    EXPECT_EQ(list.Item(2), "c");
    list.Replace(2, "z");
    EXPECT_EQ(list.Item(2), "z");
}

TEST(Lists, KeepTheOrderAroundWhatIsInsertedAndRemoved) {
    TextList list;
    for (const char* text : {"a", "b", "c"}) {
        list.Add(text);
    }
    list.AddAfter("B", 2);
    list.Remove(2); // which is how a record is changed in its place
    EXPECT_EQ(list.values, (std::vector<std::string>{"a", "B", "c"}));
    list.AddBefore("x", 3);
    EXPECT_EQ(list.values, (std::vector<std::string>{"a", "B", "x", "c"}));
}

TEST(Lists, APositionOutsideIsAnError) {
    TextList list;
    EXPECT_THROW(list.Item(0), RunTimeError);
    EXPECT_THROW(list.Item(1), RunTimeError);
    EXPECT_THROW(list.Remove(1), RunTimeError);
    EXPECT_THROW(list.AddBefore("a", 1), RunTimeError);
    list.Add("a");
    EXPECT_THROW(list.AddAfter("b", 2), RunTimeError);
    EXPECT_THROW(list.Replace(-1, "b"), RunTimeError);
}
