// Random user actions on the form, and what must hold after each. The choices come from a seeded
// generator or from the bytes of a fuzzer.
#pragma once

#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "UserActions.h"
#include "editing/Fields.h"
#include "rules/Activation.h"

/// A whole number from 0 to `below` - 1.
using Choices = std::function<std::size_t(std::size_t below)>;

/// The number in an environment variable, or the fallback if it is not set.
inline unsigned long FromEnvironment(const char* name, unsigned long fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : std::strtoul(text, nullptr, 10);
}

class RandomUser {
public:
    RandomUser(RecordEdit& theForm, TestPlatform& thePlatform, const TempFolder& theFolder,
               Choices theChoices)
        : form(theForm), platform(thePlatform), folder(theFolder), choose(std::move(theChoices)) {
        std::filesystem::create_symlink("/dev/full", folder / "full.rec");
        std::filesystem::copy_file(TEPHREX_DATA "/TephrexDemo.rec", folder / "a.rec");
        for (Control* control : form.Controls()) {
            if (control != &form.Command1) {  // that one ends the program
                controls.push_back(control);
            }
        }
    }

    /// Performs one action and returns it as a story writes it.
    std::string Act() {
        platform.messages.clear();
        platform.answers.clear();
        Control& control = *controls[choose(controls.size())];
        const auto [verb, text] = ActionFor(control);
        const Control* const displays[] = {&form.cmbPhase, &form.cmbType, &form.cmdAdd,
                                           &form.cmdDelete, &form.cmdReset};
        displayed =
            control.AcceptsUserActions() && (verb == "pick" || verb == "press") &&
            std::find(std::begin(displays), std::end(displays), &control) != std::end(displays);
        Perform(control, verb, text);
        for (const Message& message : platform.messages) {
            readDataFailed |= message.text.starts_with("RecordEdit ReadData error");
        }
        return verb + ' ' + control.Name() + ' ' + text;
    }

    /// Prepares the answer to the next dialog, perhaps a damaged file.
    void PrepareAnswer() {
        if (choose(4) == 0) Damage();
        if (choose(8) != 0) platform.answers.push_back(folder / OneOf(Names));
    }

    /// Which invariant does not hold now; empty if all do.
    std::string Broken() {
        const int count = form.EditPhaseCount;
        if (count < 0 || count > MaxPhases || form.LoadedPhaseCount < 0 ||
            form.LoadedPhaseCount > MaxPhases) {
            return "count";
        }
        if (form.CurPhase < 0 || form.CurPhase > (readDataFailed ? int{MaxPhases} : count)) {
            return "CurPhase";
        }
        if (form.cmbPhase.Entries().size() != static_cast<std::size_t>(count)) {
            return "list of phases";
        }
        if (form.cmbFlow.Entries().size() > MaxFlows || form.FormFilling) {
            return "list of flows or guard";
        }
        return BrokenRange() + BrokenActivation();
    }

private:
    template <class Texts>
    std::string OneOf(const Texts& texts) {
        return std::string(texts[choose(std::size(texts))]);
    }

    // A random verb and text for the control. Also prepares the answer to the dialog of a button.
    std::pair<std::string, std::string> ActionFor(const Control& control) {
        if (choose(16) == 0) return {choose(2) == 0 ? "mouse" : "focus", ""};
        if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
            const std::string typed = box->Text() + "0123456789.,-+eE x\"\xff"[choose(19)];
            return {choose(4) == 0 ? "edit" : "key", choose(2) == 0 ? OneOf(Numbers) : typed};
        }
        if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
            if (list->Entries().empty() || choose(4) == 0) {
                return {"type", choose(2) == 0 ? "Phase " + OneOf(Numbers) : "Flow 2 Duration"};
            }
            return {"pick", OneOf(list->Entries())};
        }
        if (dynamic_cast<const CommandButton*>(&control) != nullptr) {
            PrepareAnswer();
            return {"press", ""};
        }
        const bool button = dynamic_cast<const CheckBox*>(&control) != nullptr ||
                            dynamic_cast<const OptionButton*>(&control) != nullptr;
        return {button ? "press" : "mouse", ""};
    }

    // Writes broken.rec: a.rec with one byte changed, or cut off there.
    void Damage() {
        std::string bytes = ReadBytes(folder / "a.rec");
        if (!bytes.empty()) {
            const std::size_t at = choose(bytes.size());
            bytes[at] = "0159,-\r\n \""[choose(10)];
            WriteBytes(folder / "broken.rec", choose(4) == 0 ? bytes.substr(0, at) : bytes);
        }
    }

    std::string BrokenRange() {
        for (const FieldBox& row : FieldBoxes) {
            const TextBox& box = form.*row.box;
            const FieldRange& range = row.field.range;
            const Single value = form.NumberIn(box);
            if (range.rule == FieldRange::Between &&
                (value < range.low || value > range.high ||
                 box.Text() != form.TextOf(value, row.rewritten))) {
                return "range of " + box.Name() + " with " + box.Text();
            }
        }
        return "";
    }

    // After a display the activation rules have nothing left to change.
    std::string BrokenActivation() {
        if (!displayed || !platform.messages.empty()) return "";
        std::vector<bool> before;
        for (const Control* control : form.Controls()) before.push_back(control->Enabled());
        DataActivate(form, form.CurType);
        std::string broken;
        for (std::size_t i = 0; i < before.size(); ++i) {
            const Control& control = *form.Controls()[i];
            broken += control.Enabled() == before[i] ? "" : "activation of " + control.Name();
        }
        return broken;
    }

    static constexpr std::string_view Numbers[] = {"",      "0",    "1",   "0.3", "0.5", "0.6",
                                                   "2.5",   "12",   "-7",  "99",  "101", "600",
                                                   "32768", "1e39", "abc", "none"};
    static constexpr std::string_view Names[] = {"a.rec",    "b.rec",    "broken.rec",
                                                 "full.rec", "no/a.rec", "c\".rec"};

    RecordEdit& form;
    TestPlatform& platform;
    const TempFolder& folder;
    Choices choose;
    std::vector<Control*> controls;
    bool displayed = false;       // whether the last action displayed a phase
    bool readDataFailed = false;  // then CurPhase can be beyond the count
};
