// Exact decimal numbers of any length, so that no grade and no shown figure hangs on a binary rounding.
#include "core/Decimal.h"

#include "core/RunTimeError.h"
#include "core/Values.h"

#include <algorithm>
#include <cstdlib>

namespace {

std::string WithoutZerosInFront(std::string figures) {
    figures.erase(0, std::min(figures.find_first_not_of('0'), figures.size()));
    return figures;
}

int CompareFigures(const std::string& first, const std::string& second) {
    if (first.size() != second.size()) {
        return first.size() < second.size() ? -1 : 1;
    }
    return first.compare(second);
}

int FigureFromEnd(const std::string& figures, std::size_t place) {
    return place < figures.size() ? figures[figures.size() - 1 - place] - '0' : 0;
}

// The sum of two figures at each place, each taken times its sign; the result is not negative.
std::string AddFigures(const std::string& first, const std::string& second, int signOfSecond) {
    const std::size_t length = std::max(first.size(), second.size()) + 1;
    std::string sum(length, '0');
    int carry = 0;
    for (std::size_t place = 0; place < length; ++place) {
        const int figure =
            FigureFromEnd(first, place) + signOfSecond * FigureFromEnd(second, place) + carry + 10;
        sum[length - 1 - place] = static_cast<char>('0' + figure % 10);
        carry = figure / 10 - 1;
    }
    return WithoutZerosInFront(std::move(sum));
}

std::string TimesFigures(const std::string& figures, int factor) {
    std::string product;
    int carry = 0;
    for (std::size_t place = 0; place < figures.size() || carry > 0; ++place) {
        carry += FigureFromEnd(figures, place) * factor;
        product.push_back(static_cast<char>('0' + carry % 10));
        carry /= 10;
    }
    std::ranges::reverse(product);
    return WithoutZerosInFront(std::move(product));
}

// The whole part of the quotient, by long division.
std::string DivideFigures(const std::string& dividend, const std::string& divisor) {
    std::string quotient;
    std::string rest;
    for (const char figure : dividend) {
        rest.push_back(figure);
        rest = WithoutZerosInFront(std::move(rest));
        char times = '0';
        for (; CompareFigures(rest, divisor) >= 0; ++times) {
            rest = AddFigures(rest, divisor, -1);
        }
        quotient.push_back(times);
    }
    return WithoutZerosInFront(std::move(quotient));
}

// The figures of the number as a whole number of the places.
std::string FiguresAt(const Decimal& number, int places) {
    return number.figures.empty()
               ? std::string{}
               : number.figures + std::string(static_cast<std::size_t>(places - number.scale), '0');
}

Decimal Signed(std::string figures, int scale, bool negative) {
    const bool zero = figures.empty();
    return {std::move(figures), scale, negative && !zero};
}

} // namespace

std::optional<Decimal> DecimalIn(std::string_view text) {
    if (!NumberIn(text)) {
        return std::nullopt;
    }
    const std::string_view number = Trim(text);
    const std::size_t point = number.find('.');
    const int scale = point == std::string_view::npos ? 0 : static_cast<int>(number.size() - point - 1);
    std::string figures;
    std::ranges::copy_if(number, std::back_inserter(figures), IsDigit);
    return Signed(WithoutZerosInFront(std::move(figures)), scale, number.starts_with('-'));
}

Decimal ToDecimal(std::string_view text) {
    const std::optional<Decimal> number = DecimalIn(text);
    if (!number) {
        throw RunTimeError("Not a number", text);
    }
    return *number;
}

Decimal DecimalOf(int number) {
    return Signed(WithoutZerosInFront(std::to_string(std::abs(number))), 0, number < 0);
}

Decimal Sum(const Decimal& first, const Decimal& second) {
    const int scale = std::max(first.scale, second.scale);
    const std::string a = FiguresAt(first, scale);
    const std::string b = FiguresAt(second, scale);
    if (first.negative == second.negative) {
        return Signed(AddFigures(a, b, 1), scale, first.negative);
    }
    return CompareFigures(a, b) >= 0 ? Signed(AddFigures(a, b, -1), scale, first.negative)
                                     : Signed(AddFigures(b, a, -1), scale, second.negative);
}

Decimal Product(const Decimal& number, int factor) {
    return Signed(TimesFigures(number.figures, std::abs(factor)), number.scale,
                  number.negative != (factor < 0));
}

Decimal Quotient(const Decimal& dividend, const Decimal& divisor, int places) {
    const int scale = std::max(dividend.scale, divisor.scale);
    const std::string a = FiguresAt(dividend, scale + places);
    const std::string b = FiguresAt(divisor, scale);
    // Twice the dividend and one divisor more, by twice the divisor: the whole part of that is the rounded
    // one.
    const std::string rounded = DivideFigures(AddFigures(TimesFigures(a, 2), b, 1), TimesFigures(b, 2));
    return Signed(rounded, places, dividend.negative != divisor.negative);
}

int Compare(const Decimal& first, const Decimal& second) {
    Decimal opposite = second;
    opposite.negative = !second.negative && Sign(second) != 0;
    return Sign(Sum(first, opposite));
}

int Sign(const Decimal& number) {
    if (number.figures.empty()) {
        return 0;
    }
    return number.negative ? -1 : 1;
}

std::string DecimalText(const Decimal& number) {
    const auto places = static_cast<std::size_t>(number.scale);
    std::string text = number.figures;
    if (text.size() <= places) {
        text.insert(0, places + 1 - text.size(), '0');
    }
    if (places > 0) {
        text.insert(text.size() - places, ".");
    }
    return number.negative ? "-" + text : text;
}

std::string ShortDecimalText(const Decimal& number) {
    std::string text = DecimalText(number);
    if (number.scale > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return text;
}
