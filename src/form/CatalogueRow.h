// What the catalogue of a form says of a control: its kind, its caption and its place. The rows of
// this form are in Catalogue.
#pragma once

#include <string_view>

enum class ControlKind {
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
    AnyText,      // a text box: not only for a number
    OpenPicture,  // a button: hidden until loading, an opening folder in place of a caption
    OwnPointer,   // the mouse has a pointer of its own over it
};

/// Places are in twips, counted from the top left corner of the frame, or of the form where
/// `frame` is empty.
struct CatalogueRow {
    std::string_view name;
    ControlKind kind;
    std::string_view frame;
    std::string_view caption;  // of a combo box: the text in its box
    int left;
    int top;
    int width;
    int height;
    int tab;
    Look look = Look::Usual;
};

/// A text for a control that is named.
struct NamedText {
    std::string_view control;
    std::string_view text;
};
