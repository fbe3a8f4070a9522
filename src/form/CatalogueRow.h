// The types of the catalogue: the row of a control, with its kind, caption and place. The rows are
// in Catalogue.
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

/// How a control differs from the usual look of its kind.
enum class Look {
    Usual,
    LeftAligned,  // a label; labels are right-aligned otherwise
    OutputField,  // a label: centred in a border, pale cyan
    DisabledAtStart,
    AnyText,   // a text box: not only for numbers
    OpenIcon,  // a button: hidden until loading, with an icon of an opening folder and no caption
    CustomPointer,  // the mouse pointer over it is a hand
};

/// Places and sizes are in twips, from the top left corner of the frame, or of the form if `frame`
/// is empty. `tab` is the place in the form's Tab order, from 0; of two controls that overlap, the
/// one with the higher `tab` is on top.
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

/// A text for the control of that name.
struct NamedText {
    std::string_view control;
    std::string_view text;
};
