// User actions as text: a verb, the name of a control, and what is typed or picked there.
#pragma once

#include <map>
#include <sstream>

#include "TestForm.h"

struct UserAction {
    std::string verb, name, text;

    explicit UserAction(const std::string& line) {
        std::istringstream words(line);
        words >> verb >> name;
        std::getline(words >> std::ws, text);
        text = text == "\"\"" ? "" : text;  // how stories write an empty text
    }
};

/// Clicks a button, check box or option; throws at another control.
inline void Press(Control& control) {
    if (auto* const check = dynamic_cast<CheckBox*>(&control)) {
        check->Toggle();
    } else if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
        option->Choose();
    } else {
        dynamic_cast<CommandButton&>(control).Press();
    }
}

/// Performs an action as the user would; throws if there is no such verb or the control lacks it.
inline void Perform(Control& control, const std::string& verb, const std::string& text) {
    using Action = void (*)(Control&, const std::string&);
    static const std::map<std::string, Action> actions{
        {"key", [](auto& c, auto& t) { dynamic_cast<TextBox&>(c).PressKey(t); }},
        {"edit", [](auto& c, auto& t) { dynamic_cast<TextBox&>(c).Edit(t); }},
        {"type", [](auto& c, auto& t) { dynamic_cast<ComboBox&>(c).Type(t); }},
        {"pick",
         [](auto& c, auto& t) {
             auto& list = dynamic_cast<ComboBox&>(c);
             list.Pick(PositionOf(list, t));
         }},
        {"press", [](auto& c, auto&) { Press(c); }},
        {"focus", [](auto& c, auto&) { c.TakeFocus(); }},
        {"mouse", [](auto& c, auto&) { c.MoveMouse(); }}};
    actions.at(verb)(control, text);
}
