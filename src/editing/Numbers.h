// Numbers and their texts: what a text in a box or an item of a file stands for, and how a number
// is written into a box. Plain routines; they know no control and no file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/PhaseRecord.h"

/// The user's locale, as UTF-8; a separator can be several bytes long. An empty thousands
/// separator never occurs in a number.
struct Separators {
    std::string decimal = ".";
    std::string thousands = ",";
};

/// The value of the longest leading part of a text that is a number, 0 if there is none: blanks,
/// sign, digits with separators, exponent (E or D), blanks. A part too large for a Single is no
/// number, so a shorter one counts. Takes any bytes and never fails.
Single ParseLeadingNumber(std::string_view text, const Separators& separators);

/// The first three are the numbers of their decimals.
enum class Format {
    Whole = 0,        // "0": the nearest whole number, a tie away from zero
    OneDecimal = 1,   // "0.0"
    TwoDecimals = 2,  // "0.00"
    Plain,            // as many decimals as the number has; reads back as the same Single
};

/// The text of a finite number with the locale's decimal separator, without thousands separators.
/// A number that rounds to zero has no sign.
std::string FormatNumber(Single number, Format format, const Separators& separators);

/// The nearest whole number, a tie to the even neighbour; nothing if it does not fit 16 bits.
std::optional<Integer> RoundToInteger(double number);

enum class Conversion { Number, NoNumber, TooLarge };

/// Reads a whole text as sign, digits with at most one period, and exponent (E or e), whatever the
/// locale. `value` is 0 unless the result is Number; a number too small to tell from 0 is 0.
Conversion FromDecimal(std::string_view text, Single& value);
Conversion FromDecimal(std::string_view text, double& value);
