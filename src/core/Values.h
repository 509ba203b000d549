// Conversion of the store's texts at the place of use, and the comparisons of texts.
// A text holds one byte a character: ISO-8859-1 with the letters of windows-1252 from 0x80 to 0x9F.
#pragma once

#include <optional>
#include <string>
#include <string_view>

inline constexpr int GreatestInt16 = 32767;
inline constexpr int LeastInt16 = -32768;

// The text that makes every reader of the store skip a record.
inline constexpr std::string_view DeletedRecord = "DELETED RECORD";

// True for "0" to "9".
constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// The text without the blanks (0x20 alone) at its ends, at its left end, at its right end.
std::string_view Trim(std::string_view text);
std::string_view LeftTrim(std::string_view text);
std::string_view RightTrim(std::string_view text);

// The number that a text holds: digits with an optional sign and point, blanks around them trimmed; nothing
// for any other text. "5." is 5 and ".5" a half, "." is no number.
std::optional<double> NumberIn(std::string_view text);

// The same, raising the run-time error where the text is no number.
double ToNumber(std::string_view text);

// The number as a 16-bit integer, halves to even; raises the run-time error beyond 16 bits.
int Int16Of(double number);

// The number as a 32-bit integer, halves to even; raises the run-time error beyond 32 bits.
int Int32Of(double number);

// The number in a text as a 16-bit integer; raises the run-time error where there is none or it does not fit.
int ToInt16(std::string_view text);

// The id in a text: a whole number of 16 bits, which may have a fraction of zeros and blanks around it;
// nothing for any other text.
std::optional<int> IdIn(std::string_view text);

// The colour in a text: a decimal 0xBBGGRR of 24 bits; raises the run-time error where there is none.
int ToColor(std::string_view text);

// "True" and "False" in any case; raises the run-time error at any other text.
bool IsTrue(std::string_view text);

// "True" or "False".
std::string BooleanText(bool value);

// The lower-case byte of an ASCII or Latin letter; any other byte unchanged.
unsigned char FoldByte(unsigned char byte);

// Copies the text with its letters folded; gives the place behind the copy.
char* CopyFolded(std::string_view text, char* to);

// Below, at or above 0 as the first text sorts before, with or after the second, letters folded.
int CompareFolded(std::string_view first, std::string_view second);

// True when the place in memory is one of the text's, or that behind its last character.
bool LiesIn(std::string_view text, const char* place);

// Gives the id of a new record from its kind's counter and raises the counter by one; raises the run-time
// error when the counter would pass 32767, so 32766 is the greatest id given out.
int NextId(int& counter);
