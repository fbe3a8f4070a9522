// The controls of a form as the handlers see them: properties, the events that setting them
// raises, and the doors through which the user acts. Nothing here knows a toolkit, and nothing
// here knows what the form is for.
//
// Properties are set by code through setters, which no state of a control refuses. The user acts
// through the doors (PressKey, Edit, Pick, Toggle and so on), which a disabled or hidden control
// keeps shut. An event is raised inside the call that causes it, with the new value in place.
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
    /// The control of that name, null when there is none.
    Control* Find(std::string_view name) const;
    /// The control that has the focus, null when none has it.
    Control* ActiveControl() const { return active; }

    /// Told which control has just changed, before the event of the change is raised.
    std::function<void(Control&)> Observer;
    /// Raised when the form goes.
    Event Unload;

private:
    friend class Control;
    std::vector<Control*> controls;
    Control* active = nullptr;
};

class Control {
public:
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

    /// Whether the user's doors of this control are open.
    bool OpenToUser() const { return enabled && visible; }
    /// Door: the focus comes to this control. Nothing happens when it is here already.
    void TakeFocus();
    /// Door: the mouse moves over this control.
    void MoveMouse();

    Event MouseMove;

protected:
    /// Stores a new value and tells the observer; false, and nothing done, for the same value.
    template <class Property, class Value>
    bool Assign(Property& property, const Value& value) {
        if (property == value) {
            return false;
        }
        property = value;
        Tell();
        return true;
    }
    void Tell() {
        if (form.Observer) {
            form.Observer(*this);
        }
    }
    static void Raise(const Event& event) {
        if (event) {
            event();
        }
    }
    virtual void FocusCame() {}

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

    /// Door: the user presses the button.
    void Press();
};

/// `Value` is 0 clear or 1 checked.
class CheckBox : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    Event Click;

    int Value() const { return value; }
    /// Anything but 1 clears the box. Raises Click if the box changes.
    void SetValue(int newValue);
    /// Door: the user toggles the box.
    void Toggle();

private:
    int value = 0;
};

/// One of a group; selecting it takes the selection from the others of the group.
class OptionButton : public CaptionedControl {
public:
    using Group = std::vector<OptionButton*>;

    /// Joins the group, which the form keeps for as long as its options live.
    OptionButton(Form& owner, std::string_view ownName, Group& ownGroup);
    Event Click;

    bool Value() const { return value; }
    /// True selects the option and raises Click if it was not selected. False only clears it.
    void SetValue(bool newValue);
    /// Door: the user chooses the option.
    void Choose();

private:
    Group& group;
    bool value = false;
};

/// A line of text. Selections count in bytes of `Text`; no selection is one of length 0 at the
/// insertion point.
class TextBox : public Control {
public:
    using Control::Control;
    Event Change;
    Event GotFocus;
    Event KeyPress;

    const std::string& Text() const { return text; }
    /// A different text is stored, the insertion point goes behind it, and Change is raised.
    void SetText(std::string_view newText);

    std::size_t SelStart() const { return selStart; }
    std::size_t SelLength() const { return selLength; }
    /// Selects; what lies outside the text is cut off. For code and user alike, raises nothing.
    void Select(std::size_t start, std::size_t length);

    static constexpr std::size_t AtEnd = static_cast<std::size_t>(-1);
    /// Door: a key is pressed that leads to this text, with the insertion point at `caret`. Raises
    /// KeyPress, then Change if the text is another one.
    void PressKey(std::string_view newText, std::size_t caret = AtEnd);
    /// Door: the text is edited without a key (pasted, dropped, undone). Raises Change if the
    /// text is another one.
    void Edit(std::string_view newText, std::size_t caret = AtEnd);

private:
    void FocusCame() override { Raise(GotFocus); }
    void ReplaceText(std::string_view newText, std::size_t caret);

    std::string text;
    std::size_t selStart = 0;
    std::size_t selLength = 0;
};

/// A drop-down list with a box that can hold any text, also one that is no entry.
class ComboBox : public Control {
public:
    using Control::Control;
    Event Click;

    const std::string& Text() const { return text; }
    /// Changes the text of the box and nothing else; raises nothing.
    void SetText(std::string_view newText) { Assign(text, newText); }

    const std::vector<std::string>& Entries() const { return entries; }
    void AddItem(std::string entry);
    /// Removes the entry at a position counted from 0; std::out_of_range if there is none.
    void RemoveItem(std::size_t position);
    /// Removes all entries and empties the box.
    void Clear();

    /// Door: the user picks the entry at a position counted from 0. The box takes its text, then
    /// Click is raised. A position that the list does not have picks nothing.
    void Pick(std::size_t position);
    /// Door: the user types into the box. Raises nothing.
    void Type(std::string_view newText);

private:
    std::string text;
    std::vector<std::string> entries;
};

/// Asks for file names and fronts the help viewer. It is one object for all uses: a property that
/// is not set again keeps its last value.
class CommonDialog : public Control {
public:
    using Control::Control;

    static constexpr int MustExist = 4096;  // only a file that exists can be chosen
    static constexpr int AskBeforeReplacing = 2;
    static constexpr int ShowTopic = 1;  // help: show the topic `HelpContext`
    static constexpr int Quit = 2;       // help: close the viewer

    std::string DialogTitle;
    std::string Filter;  // pairs of description and pattern, each closed by a vertical bar
    int FilterIndex = 1;
    int Flags = 0;
    bool CancelError = false;  // true: leaving by Cancel is told to the caller
    std::string DefaultExt;    // added to a name given without one
    std::string FileName;      // offered when the dialog opens, chosen when it closes
    std::string InitDir;
    std::string HelpFile;
    int HelpContext = 0;
    int HelpCommand = 0;

    /// Shows the dialog. False: it failed or, with `CancelError`, was cancelled.
    [[nodiscard]] bool ShowOpen(FileDialogs& dialogs);
    [[nodiscard]] bool ShowSave(FileDialogs& dialogs);
};
