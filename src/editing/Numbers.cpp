#include "editing/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }

// Whether a number outside the range of its type is too large rather than too small: its first
// digit other than 0 is before the decimal point once the exponent is applied.
bool IsAtLeastOne(std::string_view digits) {
    const std::size_t exponentAt = std::min(digits.find_first_of("eE"), digits.size());
    const std::string_view mantissa = digits.substr(0, exponentAt);
    long exponent = 0;
    if (exponentAt < digits.size()) {
        std::string_view text = digits.substr(exponentAt + 1);
        text.remove_prefix(text.front() == '+' ? 1 : 0);
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (error == std::errc::result_out_of_range) {
            return text.front() != '-';
        }
    }
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
    return exponent > first - point;
}

template <class Number>
Conversion Convert(std::string_view text, Number& value) {
    value = 0;
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && IsSign(text.front())) {
        text.remove_prefix(1);
    }
    // from_chars also accepts a second minus and names such as "inf", which are not numbers here.
    if (text.empty() || !(IsDigit(text.front()) || text.front() == '.')) {
        return Conversion::NoNumber;
    }
    Number magnitude = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, magnitude);
    if (end != last) {
        return Conversion::NoNumber;
    }
    if (error == std::errc::result_out_of_range) {
        if (IsAtLeastOne(text)) {
            return Conversion::TooLarge;
        }
        magnitude = 0;
    }
    value = negative ? -magnitude : magnitude;
    return Conversion::Number;
}

// A number found at the start of a text, in the form that FromDecimal reads.
struct Decimal {
    std::string mantissa;  // sign, digits, at most one period, at least one digit; or empty
    std::string exponent;  // sign and digits, without the letter; or empty
};

// Reads a text from the front; each step consumes what it looks for, or nothing.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest(text) {}

    bool Take(std::string_view wanted) {
        if (wanted.empty() || !rest.starts_with(wanted)) {
            return false;
        }
        rest.remove_prefix(wanted.size());
        return true;
    }
    bool TakeSign(std::string& into) { return TakeIf(IsSign, into); }
    bool TakeDigit(std::string& into) { return TakeIf(IsDigit, into); }
    bool TakeLetter(std::string_view letters) {
        std::string dropped;
        return TakeIf([letters](char c) { return letters.find(c) != letters.npos; }, dropped);
    }

private:
    template <class Wanted>
    bool TakeIf(Wanted wanted, std::string& into) {
        if (rest.empty() || !wanted(rest.front())) {
            return false;
        }
        into += rest.front();
        rest.remove_prefix(1);
        return true;
    }

    std::string_view rest;
};

Decimal FindDecimal(std::string_view text, const Separators& separators) {
    Decimal found;
    Scanner scanner(text);
    while (scanner.Take(" ")) {
    }
    scanner.TakeSign(found.mantissa);
    bool digits = false;
    bool point = false;
    for (;;) {
        if (scanner.TakeDigit(found.mantissa)) {
            digits = true;
        } else if (!point && scanner.Take(separators.decimal)) {
            found.mantissa += '.';
            point = true;
        } else if (!digits || point || !scanner.Take(separators.thousands)) {
            break;
        }
    }
    if (!digits) {
        return {};
    }
    if (scanner.TakeLetter("EeDd")) {
        scanner.TakeSign(found.exponent);
        digits = false;
        while (scanner.TakeDigit(found.exponent)) {
            digits = true;
        }
        if (!digits) {
            found.exponent.clear();
        }
    }
    return found;
}

// The Single of a decimal text; nothing if it is too large or not a number.
std::optional<Single> ToSingle(std::string_view decimal) {
    // Half a step above the largest Single: a double from here on does not round to a finite one.
    constexpr double limit = 0x1.ffffffp127;
    double value = 0;
    if (FromDecimal(decimal, value) != Conversion::Number || std::abs(value) >= limit) {
        return std::nullopt;
    }
    return static_cast<Single>(value);
}

// The value of `prefix` and as much of `text`, at least `shortest` characters, as fits in a Single.
// A character more never makes the number smaller, so a binary search finds the end.
std::optional<Single> LongestThatFits(const std::string& prefix, std::string_view text,
                                      std::size_t shortest) {
    std::optional<Single> best;
    std::size_t longest = text.size();
    while (shortest <= longest) {
        const std::size_t length = shortest + (longest - shortest) / 2;
        if (const auto value = ToSingle(prefix + std::string(text.substr(0, length)))) {
            best = value;
            shortest = length + 1;
        } else {
            longest = length - 1;
        }
    }
    return best;
}

Single FitToSingle(const Decimal& number) {
    const std::string prefix = number.mantissa + 'e';
    if (!number.exponent.empty()) {
        if (const auto whole = ToSingle(prefix + number.exponent)) {
            return *whole;
        }
        if (number.exponent.front() != '-') {
            const std::size_t sign = IsSign(number.exponent.front()) ? 1 : 0;
            if (const auto part = LongestThatFits(prefix, number.exponent, sign + 1)) {
                return *part;
            }
        }
    }
    const std::size_t firstDigit = number.mantissa.find_first_of("0123456789");
    return LongestThatFits("", number.mantissa, firstDigit + 1).value_or(0.0F);
}

std::string PlainDigits(Single magnitude) {
    std::array<char, 64> digits{};  // the longest, a Single near 1E-45, takes 48
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), magnitude,
                                   std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

// A product of a Single and a power of ten this small is exact in a double, and so is its
// rounding, which takes a tie away from zero.
std::string RoundedDigits(Single magnitude, std::size_t decimals) {
    constexpr std::array<double, 3> scales{1, 10, 100};
    const double rounded = std::round(static_cast<double>(magnitude) * scales.at(decimals));
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded,
                                   std::chars_format::fixed);
    std::string digits(buffer.data(), end.ptr);
    if (digits.size() <= decimals) {
        digits.insert(0, decimals + 1 - digits.size(), '0');
    }
    if (decimals > 0) {
        digits.insert(digits.size() - decimals, 1, '.');
    }
    return digits;
}

}  // namespace

Conversion FromDecimal(std::string_view text, Single& value) { return Convert(text, value); }

Conversion FromDecimal(std::string_view text, double& value) { return Convert(text, value); }

Single ParseLeadingNumber(std::string_view text, const Separators& separators) {
    const Decimal number = FindDecimal(text, separators);
    if (number.mantissa.empty()) {
        return 0;
    }
    return FitToSingle(number);
}

std::string FormatNumber(Single number, Format format, const Separators& separators) {
    const Single magnitude = std::abs(number);
    std::string digits = format == Format::Plain
                             ? PlainDigits(magnitude)
                             : RoundedDigits(magnitude, static_cast<std::size_t>(format));
    if (const std::size_t point = digits.find('.'); point != std::string::npos) {
        digits.replace(point, 1, separators.decimal);
    }
    const bool negative = number < 0 && digits.find_first_of("123456789") != std::string::npos;
    return negative ? '-' + digits : digits;
}

std::optional<Integer> RoundToInteger(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max())) {
        return std::nullopt;
    }
    return static_cast<Integer>(rounded);
}
