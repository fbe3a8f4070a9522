// Converts the text of a box or of an item in a file to a number, and a number to the text of a
// box. Does not depend on controls or files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/PhaseRecord.h"

/// The separators of the user's locale, in UTF-8; each can be several bytes long. An empty
/// thousands separator matches nothing.
struct Separators {
    std::string decimal = ".";
    std::string thousands = ",";
};

/// The value of the longest leading part of a text that is a number, 0 if there is none: blanks,
/// sign, digits with separators, exponent (E or D), blanks. A part too large for a Single is
/// shortened until it fits. Accepts any bytes and never fails.
Single ParseLeadingNumber(std::string_view text, const Separators& separators);

/// The value of each of the first three is its number of decimals.
enum class Format {
    Whole = 0,        // "0": the nearest whole number, a tie away from zero
    OneDecimal = 1,   // "0.0"
    TwoDecimals = 2,  // "0.00"
    Plain,            // as many decimals as the number has; reads back as the same Single
};

/// The text of a finite number with the locale's decimal separator, without thousands separators.
/// A number that rounds to zero has no sign.
std::string FormatNumber(Single number, Format format, const Separators& separators);

/// The nearest whole number, a tie to the even neighbour; nothing if it does not fit in 16 bits.
std::optional<Integer> RoundToInteger(double number);

enum class Conversion { Number, NoNumber, TooLarge };

/// Reads a whole text as sign, digits with at most one period, and exponent (E or e), whatever the
/// locale. `value` is 0 unless the result is Number; a number too small for the type is 0.
Conversion FromDecimal(std::string_view text, Single& value);
Conversion FromDecimal(std::string_view text, double& value);
