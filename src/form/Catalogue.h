// The form's catalogue: every control with its kind, its caption and its place as the form stands
// before it is loaded, the tool tips that loading gives them, and what a reader of the screen
// calls them. It names controls and knows none.
#pragma once

#include <span>
#include <string_view>

#include "form/CatalogueRow.h"

constexpr std::string_view FormCaption = "Edit Tephrex Record";
constexpr std::string_view CloseCaption = "Close";  // of Command1 and Command2, once loaded
constexpr std::string_view SaveCaption = "Save";
constexpr int FormWidth = 7665;  // the area inside the window's border
constexpr int FormHeight = 5970;

/// All 74 controls.
std::span<const CatalogueRow> Catalogue();

/// The tool tips; a control that is not here has none.
std::span<const NamedText> ToolTips();

/// The controls that a label stands beside; the text is the name of that label. The label of one
/// option counts for its whole group.
std::span<const NamedText> LabelsOf();

/// The names of the controls that have neither a label nor a caption to be called by.
std::span<const NamedText> SpokenNames();

/// What a screen reader says of the controls that have no tool tip to be described by.
std::span<const NamedText> SpokenDescriptions();
