// The form's catalogue: every control with its kind, its caption and its place as the form stands
// before it is loaded, the tool tips that loading gives them, and what a reader of the screen
// calls them. It names controls and knows none.
#pragma once

#include <span>
#include <string_view>

enum class Kind {
    Frame,
    Label,
    TextBox,
    ComboBox,
    CheckBox,
    OptionButton,
    CommandButton,
    CommonDialog,
};

/// Where a control departs from the look of its kind.
enum class Look {
    Usual,
    LeftAligned,  // a label; labels are right-aligned otherwise
    OutputField,  // a label: centred in a border, pale cyan
    DisabledAtStart,
    OpenPicture,  // a button: hidden until loading, an opening folder in place of a caption
    OwnPointer,   // the mouse has a pointer of its own over it
};

/// Places are in twips, counted from the top left corner of the frame, or of the form where
/// `frame` is empty.
struct CatalogueRow {
    std::string_view name;
    Kind kind;
    std::string_view frame;
    std::string_view caption;  // of a combo box: the text in its box
    int left;
    int top;
    int width;
    int height;
    int tab;
    Look look = Look::Usual;
};

constexpr std::string_view FormCaption = "Edit Tephrex Record";
constexpr int FormWidth = 7665;  // the area inside the window's border
constexpr int FormHeight = 5970;

/// All 74 controls.
std::span<const CatalogueRow> Catalogue();

struct NamedText {
    std::string_view control;
    std::string_view text;
};

/// The tool tips; a control that is not here has none.
std::span<const NamedText> ToolTips();

/// The controls that a label stands beside; the text is the name of that label.
std::span<const NamedText> LabelsOf();

/// The names of the controls that have neither a label nor a caption to be called by.
std::span<const NamedText> SpokenNames();
