#include "check/JsonReport.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "check/Wording.h"
#include "editing/Numbers.h"

namespace {

using Json = nlohmann::ordered_json;

std::string Dump(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// The number in the text, not rounded to a Single; other text is returned as it is.
Json NumberOf(const std::string& item) {
    double number = 0;
    if (FromDecimal(item, number) != Conversion::Number) {
        return item;
    }
    constexpr double exact = 1e15;
    return std::abs(number) < exact && std::trunc(number) == number
               ? Json(static_cast<std::int64_t>(number))
               : Json(number);
}

const char* NameOf(Level level) {
    return level == Level::Error ? "error" : level == Level::Invalid ? "invalid" : "warning";
}

}  // namespace

std::string JsonStart(std::string_view name) {
    return "{\"record\":" + Dump(std::string(name)) + ",\"findings\":[";
}

std::string JsonOf(const Finding& finding) {
    Json json{{"level", NameOf(finding.level)}};
    const auto add = [&json](const char* key, const auto& value, bool known) {
        if (known) {
            json[key] = value;
        }
    };
    add("line", finding.line, finding.line != 0);
    add("phase", finding.place.phase, finding.place.phase != 0);
    add("type", finding.type, !finding.type.empty());
    add("field", finding.field, !finding.field.empty());
    add("value", NumberOf(finding.value), !finding.value.empty());
    if (const auto& lowest = finding.passing.lowest) {
        json["lowest"] = NumberOf(LowestText(*lowest));
    }
    if (const auto& highest = finding.passing.highest) {
        json["highest"] = NumberOf(HighestText(*highest));
    }
    json["message"] = finding.message;
    return Dump(json);
}

std::string JsonEnd(int phaseCount, Verdict verdict) {
    const char* const status = verdict == Verdict::Passes    ? "passes"
                               : verdict == Verdict::Invalid ? "invalid"
                                                             : "unreadable";
    return "],\"phases\":" + std::to_string(phaseCount) + ",\"status\":\"" + status + "\"}\n";
}
