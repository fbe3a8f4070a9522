// The controls of a form as the handlers see them: properties, events and user actions. They depend
// neither on a toolkit nor on the purpose of the form.
//
// Code sets properties through setters, which work in any state of the control. User actions
// (PressKey, Edit, Pick, Toggle and so on) are ignored by a disabled or hidden control. An event is
// raised inside the call that causes it, after the new value is stored.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Control;
class FileDialogs;

using Event = std::function<void()>;

/// The controls of one form, its focus and its one observer.
class Form {
public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// In the order in which they were declared.
    const std::vector<Control*>& Controls() const { return controls; }
    /// The control of that name, null if there is none.
    Control* Find(std::string_view name) const;
    /// The control that has the focus, null if none has it.
    Control* ActiveControl() const { return active; }

    /// Called with each control that has changed, before the event of the change is raised.
    std::function<void(Control&)> Observer;
    /// Raised when the form is unloaded.
    Event Unload;

private:
    friend class Control;
    std::vector<Control*> controls;
    Control* active = nullptr;
};

class Control {
public:
    /// Joins the form, which must outlive it. The name must be unique in the form.
    Control(Form& owner, std::string_view ownName);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    const std::string& Name() const { return name; }

    bool Enabled() const { return enabled; }
    void SetEnabled(bool value) { Assign(enabled, value); }
    bool Visible() const { return visible; }
    void SetVisible(bool value) { Assign(visible, value); }
    const std::string& ToolTipText() const { return toolTipText; }
    void SetToolTipText(std::string_view value) { Assign(toolTipText, value); }

    /// Whether the control accepts user actions: it is enabled and visible.
    bool AcceptsUserActions() const { return enabled && visible; }
    /// User action: the focus moves to this control. Does nothing if it is there already.
    void TakeFocus();
    /// User action: the mouse moves over this control.
    void MoveMouse();

    Event MouseMove;

protected:
    /// Stores a new value and notifies the observer. Does nothing and returns false if the property
    /// already has it.
    template <class Property, class Value>
    bool Assign(Property& property, const Value& value) {
        if (property == value) {
            return false;
        }
        property = value;
        NotifyObserver();
        return true;
    }
    void NotifyObserver() {
        if (form.Observer) {
            form.Observer(*this);
        }
    }
    static void Raise(const Event& event) {
        if (event) {
            event();
        }
    }
    virtual void OnFocus() {}

    Form& form;

private:
    std::string name;
    bool enabled = true;
    bool visible = true;
    std::string toolTipText;
};

/// A control with a caption.
class CaptionedControl : public Control {
public:
    using Control::Control;
    const std::string& Caption() const { return caption; }
    void SetCaption(std::string_view value) { Assign(caption, value); }

private:
    std::string caption;
};

class Label : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
};

class Frame : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
};

class CommandButton : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    Event Click;

    /// User action: presses the button.
    void Press();
};

/// `Value` is 0 (clear) or 1 (checked).
class CheckBox : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    Event Click;

    int Value() const { return value; }
    /// Anything but 1 clears the box. Raises Click if the box changes.
    void SetValue(int newValue);
    /// User action: toggles the box.
    void Toggle();

private:
    int value = 0;
};

/// One of a group; selecting it clears the others of the group.
class OptionButton : public CaptionedControl {
public:
    using Group = std::vector<OptionButton*>;

    /// Joins the group, which must outlive the option.
    OptionButton(Form& owner, std::string_view ownName, Group& ownGroup);
    Event Click;

    bool Value() const { return value; }
    /// True selects the option and raises Click if it was not selected. False only clears it.
    void SetValue(bool newValue);
    /// User action: chooses the option.
    void Choose();

private:
    Group& group;
    bool value = false;
};

/// A line of text. Selections are measured in bytes of `Text`; one of length 0 is the insertion
/// point.
class TextBox : public Control {
public:
    using Control::Control;
    Event Change;
    Event GotFocus;
    Event KeyPress;

    const std::string& Text() const { return text; }
    /// Stores the text, moves the insertion point to its end and raises Change; does nothing if
    /// the text is the same.
    void SetText(std::string_view newText);

    std::size_t SelStart() const { return selStart; }
    std::size_t SelLength() const { return selLength; }
    /// Selects; the part outside the text is cut off. Works for code and user alike, raises
    /// nothing.
    void Select(std::size_t start, std::size_t length);

    static constexpr std::size_t AtEnd = static_cast<std::size_t>(-1);
    /// User action: a key press results in this text, with the insertion point at byte `caret`.
    /// Raises KeyPress, then Change if the text differs.
    void PressKey(std::string_view newText, std::size_t caret = AtEnd);
    /// User action: edits the text without a key (pasted, dropped, undone). Raises Change if the
    /// text differs.
    void Edit(std::string_view newText, std::size_t caret = AtEnd);

private:
    void OnFocus() override { Raise(GotFocus); }
    void ReplaceText(std::string_view newText, std::size_t caret);

    std::string text;
    std::size_t selStart = 0;
    std::size_t selLength = 0;
};

/// A drop-down list with a box that can hold any text, even one that is not an entry.
class ComboBox : public Control {
public:
    using Control::Control;
    Event Click;

    const std::string& Text() const { return text; }
    /// Changes the text of the box and nothing else; raises nothing.
    void SetText(std::string_view newText) { Assign(text, newText); }

    const std::vector<std::string>& Entries() const { return entries; }
    /// Adds an entry at the end.
    void AddItem(std::string entry);
    /// Removes the entry at a position counted from 0; throws std::out_of_range if there is none.
    void RemoveItem(std::size_t position);
    /// Removes all entries and empties the box.
    void Clear();

    /// User action: picks the entry at a position counted from 0. The box takes its text, then
    /// Click is raised. A position that the list does not have is ignored.
    void Pick(std::size_t position);
    /// User action: types into the box. Raises nothing.
    void Type(std::string_view newText);

private:
    std::string text;
    std::vector<std::string> entries;
};

/// The dialog for file names, and the settings of the help viewer. One object is used for all
/// calls: a property that is not set again keeps its last value.
class CommonDialog : public Control {
public:
    using Control::Control;

    static constexpr int MustExist = 4096;  // only a file that exists can be chosen
    static constexpr int AskBeforeReplacing = 2;
    static constexpr int ShowTopic = 1;  // help: show the topic `HelpContext`
    static constexpr int Quit = 2;       // help: close the viewer

    std::string DialogTitle;
    std::string Filter;  // pairs of description and pattern, each followed by a vertical bar
    int FilterIndex = 1;
    int Flags = 0;
    bool CancelError = false;  // true: Cancel makes ShowOpen and ShowSave return false
    std::string DefaultExt;    // added to a name given without one
    std::string FileName;      // offered when the dialog opens, chosen when it closes
    std::string InitDir;
    std::string HelpFile;
    int HelpContext = 0;
    int HelpCommand = 0;

    /// Shows the dialog. False if it failed or was cancelled; always true without `CancelError`.
    [[nodiscard]] bool ShowOpen(FileDialogs& dialogs);
    [[nodiscard]] bool ShowSave(FileDialogs& dialogs);
};
