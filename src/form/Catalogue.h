// The catalogue of the form: every control with its kind, caption and place before the form is
// loaded, the tool tips set on loading, and the names and descriptions for screen readers. It
// refers to controls only by name.
#pragma once

#include <span>
#include <string_view>

#include "form/CatalogueRow.h"

constexpr std::string_view FormCaption = "Edit Tephrex Record";
constexpr std::string_view CloseCaption = "Close";  // of Command1 and Command2, once loaded
constexpr std::string_view SaveCaption = "Save";
constexpr int FormWidth = 7665;  // in twips, inside the window's border
constexpr int FormHeight = 5970;

/// All 74 controls.
std::span<const CatalogueRow> Catalogue();

/// The tool tips; a control that is not here has none.
std::span<const NamedText> ToolTips();

/// The controls that have a label beside them, each with the name of that label. The label of one
/// option is for its whole group.
std::span<const NamedText> ControlLabels();

/// The accessible names of the controls that have neither a label nor a caption.
std::span<const NamedText> AccessibleNames();

/// The accessible descriptions of controls that have no tool tip.
std::span<const NamedText> AccessibleDescriptions();
