// Random acts of a user through the controls' doors, and what must hold after each of them. The
// acts come out of a source of choices: a seeded generator, or the bytes of a fuzzer.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TestForm.h"
#include "editing/Fields.h"
#include "rules/Activation.h"

/// A whole number from 0 to `below` - 1.
using Choices = std::function<std::size_t(std::size_t below)>;

class User {
public:
    User(RecordEdit& theForm, TestPlatform& thePlatform, const TempFolder& theFolder,
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

    /// Does one act and tells what it was.
    std::string Act() {
        platform.messages.clear();
        platform.answers.clear();
        Control* const control = controls[choose(controls.size())];
        const std::string did = control->Name() + ' ' + On(*control);
        for (const Message& message : platform.messages) {
            readDataFailed |= message.text.starts_with("RecordEdit ReadData error");
        }
        return did;
    }

    /// What does not hold now, in words; empty if all does.
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
    std::string On(Control& control) {
        if (choose(16) == 0) {
            control.MoveMouse();
            control.TakeFocus();
            return "focus";
        }
        if (auto* const box = dynamic_cast<TextBox*>(&control)) {
            return OnText(*box);
        }
        if (auto* const list = dynamic_cast<ComboBox*>(&control)) {
            return OnList(*list);
        }
        if (auto* const check = dynamic_cast<CheckBox*>(&control)) {
            check->Toggle();
        } else if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
            option->Choose();
        } else if (auto* const button = dynamic_cast<CommandButton*>(&control)) {
            return OnButton(*button);
        }
        return "click";
    }

    std::string OnText(TextBox& box) {
        std::string text =
            choose(2) == 0 ? Number() : box.Text() + "0123456789.,-+eE x\"\xff"[choose(19)];
        if (choose(4) == 0) {
            box.Edit(text);
            return "edit " + text;
        }
        box.PressKey(text, choose(4));
        return "key " + text;
    }

    std::string Number() {
        static constexpr std::array<std::string_view, 16> texts{
            "",   "0",  "1",   "0.3", "0.5",   "0.6",  "2.5", "12",
            "-7", "99", "101", "600", "32768", "1e39", "abc", "none"};
        return std::string(texts[choose(texts.size())]);
    }

    std::string OnList(ComboBox& list) {
        if (choose(4) == 0) {
            const std::string text =
                choose(2) == 0 ? "Phase " + std::to_string(choose(20)) : "Flow 2 Duration";
            list.Type(text);
            return "type " + text;
        }
        const std::size_t entry = list.Entries().empty() ? 0 : choose(list.Entries().size());
        displayed = list.OpenToUser() && !list.Entries().empty() &&
                    (&list == &form.cmbPhase || &list == &form.cmbType);
        list.Pick(entry);
        return "pick " + std::to_string(entry);
    }

    std::string OnButton(CommandButton& button) {
        std::string answer = "cancel";
        if (choose(8) != 0) {
            static constexpr std::array<std::string_view, 6> names{
                "a.rec", "b.rec", "broken.rec", "full.rec", "no/a.rec", "c\".rec"};
            answer = folder / std::string(names[choose(names.size())]);
            platform.answers.push_back(answer);
        }
        if (&button == &form.cmdOpen && choose(4) == 0) {
            Damage();
        }
        displayed = button.OpenToUser() && (&button == &form.cmdAdd || &button == &form.cmdDelete ||
                                            &button == &form.cmdReset);
        button.Press();
        return "press, " + answer;
    }

    // A file with one byte of another file changed, or cut off behind it.
    void Damage() {
        std::string bytes = ReadBytes(folder / "a.rec");
        if (!bytes.empty()) {
            const std::size_t at = choose(bytes.size());
            bytes[at] = "0159,-\r\n \""[choose(10)];
            WriteBytes(folder / "broken.rec", choose(4) == 0 ? bytes.substr(0, at) : bytes);
        }
    }

    std::string BrokenRange() {
        for (const Field& field : Fields) {
            const TextBox& box = form.*field.box;
            const Single value = form.NumberIn(box);
            if (field.rule.kind == Rule::Range &&
                (value < field.rule.low || value > field.rule.high ||
                 box.Text() != form.TextOf(value, field.rewritten))) {
                return "range of " + box.Name() + " with " + box.Text();
            }
        }
        return "";
    }

    // After a display the rules have nothing left to change.
    std::string BrokenActivation() {
        const bool failed = !platform.messages.empty();
        if (!std::exchange(displayed, false) || failed) {
            return "";
        }
        std::vector<bool> before;
        for (const Control* control : form.Controls()) {
            before.push_back(control->Enabled());
        }
        DataActivate(form, form.CurType);
        for (std::size_t i = 0; i < before.size(); ++i) {
            if (form.Controls()[i]->Enabled() != before[i]) {
                return "activation of " + form.Controls()[i]->Name();
            }
        }
        return "";
    }

    RecordEdit& form;
    TestPlatform& platform;
    const TempFolder& folder;
    Choices choose;
    std::vector<Control*> controls;
    bool displayed = false;
    bool readDataFailed = false;
};
