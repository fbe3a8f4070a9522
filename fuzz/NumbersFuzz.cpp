// Parsing and formatting against slow models: one tries each prefix of a text, the other writes all
// digits of a number.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <regex>
#include <string>

#include "Require.h"
#include "editing/Numbers.h"

namespace {

struct Locale {
    Separators separators;
    std::regex number;  // its groups: sign, digits before and after the separator, exponent

    Locale(const char* decimal, const char* thousands) : separators{decimal, thousands} {
        const auto quoted = [](std::string text) { return text == "." ? "[.]" : text; };
        const std::string point = quoted(decimal);
        const std::string digit = *thousands == 0 ? "[0-9]" : "(?:[0-9]|" + quoted(thousands) + ")";
        number = " *([+-]?)(?=[0-9]|" + point + "[0-9])((?:[0-9]" + digit + "*)?)(?:" + point +
                 "([0-9]*))?(?:[EeDd]([+-]?[0-9]+))? *";
    }
};

const std::array<Locale, 6>& Locales() {
    static const std::array<Locale, 6> all{Locale{".", ","},      Locale{",", "."},
                                           Locale{",", "\u202F"}, Locale{"\u066B", "\u066C"},
                                           Locale{",", " "},      Locale{".", ""}};
    return all;
}

std::string OnlyDigits(std::string text) {
    std::erase_if(text, [](char c) { return c < '0' || c > '9'; });
    return text;
}

Single ModelOfParse(const std::string& text, const Locale& locale) {
    Single result = 0;
    for (std::size_t n = 1; n <= text.size(); ++n) {
        const std::string prefix = text.substr(0, n);
        if (std::smatch part; std::regex_match(prefix, part, locale.number)) {
            const std::string plain = part.str(1) + OnlyDigits(part.str(2)) + '.' +
                                      OnlyDigits(part.str(3)) + 'e' + part.str(4);
            const auto value = static_cast<Single>(std::strtod(plain.c_str(), nullptr));
            result = std::isfinite(value) ? value : result;
        }
    }
    return result;
}

template <class Number>
void CheckWholeText(const std::string& text, Number (*convert)(const char*, char**)) {
    static const std::regex item("[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([Ee][+-]?[0-9]+)?");
    const bool isNumber = std::regex_match(text, item);
    const Number expected = isNumber ? convert(text.c_str(), nullptr) : 0;
    const Conversion outcome = !isNumber                 ? Conversion::NoNumber
                               : std::isfinite(expected) ? Conversion::Number
                                                         : Conversion::TooLarge;
    Number value = 1;
    Require(FromDecimal(text, value) == outcome, "the result of converting a whole text");
    Require(value == (std::isfinite(expected) ? expected : 0), "the value of a whole text");
}

std::string ModelOfFormat(Single number, int decimals, const std::string& separator) {
    std::array<char, 256> all{};  // every decimal that a Single can have
    std::snprintf(all.data(), all.size(), "0%.149f", static_cast<double>(std::abs(number)));
    std::string text = all.data();
    const std::size_t point = text.find('.');
    text.erase(point, 1);
    const std::size_t kept = point + static_cast<std::size_t>(decimals);
    if (text[kept] >= '5') {
        const std::size_t last = text.find_last_not_of('9', kept - 1);
        ++text[last];
        std::fill(text.begin() + static_cast<std::ptrdiff_t>(last) + 1, text.end(), '0');
    }
    const bool zero = text.find_first_not_of('0') >= kept;
    text =
        text.substr(0, point) + (decimals == 0 ? "" : separator) + text.substr(point, kept - point);
    text.erase(0, std::min(text.find_first_not_of('0'), point - 1));
    return number < 0 && !zero ? '-' + text : text;
}

void CheckFormats(Single number, const Locale& locale) {
    const Separators& separators = locale.separators;
    for (const Format format : {Format::Whole, Format::OneDecimal, Format::TwoDecimals}) {
        const std::string text = FormatNumber(number, format, separators);
        Require(text == ModelOfFormat(number, static_cast<int>(format), separators.decimal),
                "a format rounds exactly");
        const Single back = ParseLeadingNumber(text, separators);
        Require(FormatNumber(back, format, separators) == text, "a second pass changes nothing");
    }
    const std::string plain = FormatNumber(number, Format::Plain, separators);
    Require(ParseLeadingNumber(plain, separators) == number, "plain reads back the same Single");
    Require(ModelOfParse(plain, locale) == number, "plain reads back the same in the model");
    Require(plain.find_first_of("eE") == plain.npos, "plain has no exponent");
    Require(plain.find(separators.decimal) == plain.npos || plain.back() != '0',
            "plain has no trailing zeros");
}

}  // namespace

// A byte for the locale, four for the number, the rest for the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::array<std::uint8_t, 1 + sizeof(Single)> head{};
    const std::size_t headSize = std::min(size, head.size());
    std::copy(data, data + headSize, head.begin());
    const std::string text(data + headSize, data + size);

    const Locale& locale = Locales()[head[0] % Locales().size()];
    Single number = 0;
    std::memcpy(&number, &head[1], sizeof number);
    if (std::isfinite(number)) {
        CheckFormats(number, locale);
    }
    Require(ParseLeadingNumber(text, locale.separators) == ModelOfParse(text, locale),
            "the longest prefix that is a number decides");
    CheckWholeText<Single>(text, std::strtof);
    CheckWholeText<double>(text, std::strtod);
    return 0;
}
