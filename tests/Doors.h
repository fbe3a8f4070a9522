// The acts of a user in words: a verb, the name of a control, and a text for it.
#pragma once

#include <map>

#include "TestForm.h"

struct Act {
    std::string told;  // the whole of it
    std::string verb, name, text;

    explicit Act(const std::string& act) : told(act) {
        std::istringstream words(act);
        words >> verb >> name;
        std::getline(words >> std::ws, text);
    }
};

using Items = std::vector<std::string>;

inline Items WordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// What a story writes for characters that it cannot show: \x and two digits for a byte, a tilde and
// a number behind a character that stands there as often, two quotes for no text at all.
inline std::string Unwritten(std::string text) {
    for (std::size_t at = 0; (at = text.find("\\x", at)) != std::string::npos; ++at) {
        text.replace(at, 4, 1, static_cast<char>(std::stoi(text.substr(at + 2, 2), nullptr, 16)));
    }
    for (std::size_t at = 0; (at = text.find('~')) != std::string::npos;) {
        std::size_t digits = 0;
        const std::size_t times = std::stoul(text.substr(at + 1, 3), &digits);
        text.replace(at, digits + 1, times - 1, text[at - 1]);
    }
    return text == "\"\"" ? "" : text;
}

template <class Kind>
Kind& As(Control& control) {
    return dynamic_cast<Kind&>(control);
}

/// Does what a user does at one control.
inline void Do(Control& control, const std::string& verb, const std::string& text) {
    using Door = void (*)(Control&, const std::string&);
    static const std::map<std::string, Door> doors{
        {"key", [](Control& c, const std::string& t) { As<TextBox>(c).PressKey(t); }},
        {"edit", [](Control& c, const std::string& t) { As<TextBox>(c).Edit(t); }},
        {"type", [](Control& c, const std::string& t) { As<ComboBox>(c).Type(t); }},
        {"pick",
         [](Control& c, const std::string& t) {
             As<ComboBox>(c).Pick(PositionOf(As<ComboBox>(c), t));
         }},
        {"toggle", [](Control& c, const std::string&) { As<CheckBox>(c).Toggle(); }},
        {"choose", [](Control& c, const std::string&) { As<OptionButton>(c).Choose(); }},
        {"press", [](Control& c, const std::string&) { As<CommandButton>(c).Press(); }},
        {"focus", [](Control& c, const std::string&) { c.TakeFocus(); }},
        {"mouse", [](Control& c, const std::string&) { c.MoveMouse(); }}};
    doors.at(verb)(control, Unwritten(text));
}
