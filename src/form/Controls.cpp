#include "form/Controls.h"

#include <algorithm>
#include <stdexcept>

#include "shell/Services.h"

Control* Form::Find(std::string_view name) const {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [name](const Control* each) { return each->Name() == name; });
    return found == controls.end() ? nullptr : *found;
}

Control::Control(Form& owner, std::string_view ownName) : form(owner), name(ownName) {
    form.controls.push_back(this);
}

void Control::TakeFocus() {
    if (!AcceptsUserActions() || form.active == this) {
        return;
    }
    form.active = this;
    OnFocus();
}

void Control::MoveMouse() {
    if (AcceptsUserActions()) {
        Raise(MouseMove);
    }
}

void CommandButton::Press() {
    if (AcceptsUserActions()) {
        Raise(Click);
    }
}

void CheckBox::SetValue(int newValue) {
    if (Assign(value, newValue == 1 ? 1 : 0)) {
        Raise(Click);
    }
}

void CheckBox::Toggle() {
    if (AcceptsUserActions()) {
        SetValue(1 - value);
    }
}

OptionButton::OptionButton(Form& owner, std::string_view ownName, Group& ownGroup)
    : CaptionedControl(owner, ownName), group(ownGroup) {
    group.push_back(this);
}

void OptionButton::SetValue(bool newValue) {
    if (!Assign(value, newValue) || !value) {
        return;
    }
    for (OptionButton* other : group) {
        if (other != this) {
            other->SetValue(false);
        }
    }
    Raise(Click);
}

void OptionButton::Choose() {
    if (AcceptsUserActions()) {
        SetValue(true);
    }
}

void TextBox::SetText(std::string_view newText) { ReplaceText(newText, AtEnd); }

void TextBox::Select(std::size_t start, std::size_t length) {
    start = std::min(start, text.size());
    Assign(selStart, start);
    Assign(selLength, std::min(length, text.size() - start));
}

void TextBox::PressKey(std::string_view newText, std::size_t caret) {
    if (AcceptsUserActions()) {
        Raise(KeyPress);
        ReplaceText(newText, caret);
    }
}

void TextBox::Edit(std::string_view newText, std::size_t caret) {
    if (AcceptsUserActions()) {
        ReplaceText(newText, caret);
    }
}

void TextBox::ReplaceText(std::string_view newText, std::size_t caret) {
    if (Assign(text, newText)) {
        Select(caret, 0);
        Raise(Change);
    }
}

void ComboBox::AddItem(std::string entry) {
    entries.push_back(std::move(entry));
    NotifyObserver();
}

void ComboBox::RemoveItem(std::size_t position) {
    if (position >= entries.size()) {
        throw std::out_of_range("Invalid list position");
    }
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
    NotifyObserver();
}

void ComboBox::Clear() {
    if (!entries.empty()) {
        entries.clear();
        NotifyObserver();
    }
    SetText("");
}

void ComboBox::Pick(std::size_t position) {
    if (AcceptsUserActions() && position < entries.size()) {
        SetText(entries[position]);
        Raise(Click);
    }
}

void ComboBox::Type(std::string_view newText) {
    if (AcceptsUserActions()) {
        SetText(newText);
    }
}

bool CommonDialog::ShowOpen(FileDialogs& dialogs) { return dialogs.AskOpen(*this) || !CancelError; }

bool CommonDialog::ShowSave(FileDialogs& dialogs) { return dialogs.AskSave(*this) || !CancelError; }
