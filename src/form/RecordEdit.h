// The form: its controls, its state and its services, available to every handler. What the controls
// do is in the handlers, where they are placed is in the catalogue.
#pragma once

#include <memory>
#include <string>

#include "editing/Numbers.h"
#include "form/Controls.h"
#include "record/EditorState.h"
#include "rules/FlowDurations.h"
#include "shell/Services.h"

constexpr std::string_view ApplicationTitle = "TephrexEdit";

/// About half a megabyte, like EditorState: create it on the heap.
struct RecordEdit : Form, EditorState {
    /// Sets up every control from the catalogue, as it is before loading; no event has a handler
    /// yet. Throws std::logic_error if the controls and the catalogue differ.
    RecordEdit();

    Frame Frame1{*this, "Frame1"};
    Frame Frame2{*this, "Frame2"};
    Frame Frame3{*this, "Frame3"};
    Frame Frame4{*this, "Frame4"};
    CommandButton Command1{*this, "Command1"};
    CommandButton Command2{*this, "Command2"};
    CommandButton cmdHelp{*this, "cmdHelp"};
    CommonDialog CD1{*this, "CD1"};

    // File
    Label Label1{*this, "Label1"};
    Label Label2{*this, "Label2"};
    Label Label3{*this, "Label3"};
    Label labRecfile{*this, "labRecfile"};
    Label labPhases{*this, "labPhases"};
    CommandButton cmdChange{*this, "cmdChange"};
    TextBox txtTopFile{*this, "txtTopFile"};
    CommandButton cmdOpen{*this, "cmdOpen"};
    Label labScale{*this, "labScale"};
    OptionButton::Group scaleOptions;
    OptionButton optLarge{*this, "optLarge", scaleOptions};
    OptionButton optNormal{*this, "optNormal", scaleOptions};
    OptionButton optSmall{*this, "optSmall", scaleOptions};

    // Primary Parameters
    Label Label4{*this, "Label4"};
    ComboBox cmbPhase{*this, "cmbPhase"};
    Label labLoc{*this, "labLoc"};
    Label labStr{*this, "labStr"};
    Label labWind{*this, "labWind"};
    Label labPart{*this, "labPart"};
    ComboBox cmbStyle{*this, "cmbStyle"};
    Label labCbase{*this, "labCbase"};
    Label labCtop{*this, "labCtop"};
    Label labBurst{*this, "labBurst"};
    CheckBox chkCald{*this, "chkCald"};
    CheckBox chkDirected{*this, "chkDirected"};
    CheckBox chkBurst{*this, "chkBurst"};
    Label labMag{*this, "labMag"};
    Label labDip{*this, "labDip"};
    TextBox txtMag{*this, "txtMag"};
    ComboBox cmbType{*this, "cmbType"};
    Label Label5{*this, "Label5"};
    TextBox txtLoc{*this, "txtLoc"};
    TextBox txtStr{*this, "txtStr"};
    TextBox txtWind{*this, "txtWind"};
    TextBox txtPart{*this, "txtPart"};
    TextBox txtBurst{*this, "txtBurst"};
    TextBox txtCtop{*this, "txtCtop"};
    TextBox txtCbase{*this, "txtCbase"};
    TextBox txtDip{*this, "txtDip"};
    Label labErode{*this, "labErode"};
    TextBox txtErode{*this, "txtErode"};
    CommandButton cmdDelete{*this, "cmdDelete"};
    ComboBox cmbDown{*this, "cmbDown"};
    CommandButton cmdAdd{*this, "cmdAdd"};
    ComboBox cmbFlow{*this, "cmbFlow"};
    TextBox txtLava{*this, "txtLava"};
    CommandButton cmdReset{*this, "cmdReset"};

    // Advanced Parameters
    Label labSlide1{*this, "labSlide1"};
    Label labSlide2{*this, "labSlide2"};
    Label labSlide3{*this, "labSlide3"};
    Label labSlide4{*this, "labSlide4"};
    Label labSlide5{*this, "labSlide5"};
    Label labSlide6{*this, "labSlide6"};
    TextBox txtSlide1{*this, "txtSlide1"};
    TextBox txtSlide2{*this, "txtSlide2"};
    TextBox txtSlide3{*this, "txtSlide3"};
    TextBox txtSlide4{*this, "txtSlide4"};
    TextBox txtSlide5{*this, "txtSlide5"};
    TextBox txtSlide6{*this, "txtSlide6"};

    // Mapping Parameters
    Label labMap1{*this, "labMap1"};
    Label labMap2{*this, "labMap2"};
    Label labMap3{*this, "labMap3"};
    Label labMap4{*this, "labMap4"};
    TextBox txtMap1{*this, "txtMap1"};
    TextBox txtMap2{*this, "txtMap2"};
    TextBox txtMap3{*this, "txtMap3"};
    TextBox txtMap4{*this, "txtMap4"};

    Services services;
    std::unique_ptr<PathHelper> pathHelper;        // from Form_Load to Form_Unload
    std::unique_ptr<SettingsStore> settingsStore;  // the same
    Separators separators;                         // of the user's locale
    RandomSource random = NewRandomSource();

    /// The phase shown and its flows; elements 0, which are not part of the record, if none is
    /// shown.
    PhaseRecord& CurrentPhase() { return EditPhases[CurPhase]; }
    FlowRow& CurrentFlows() { return EditFlows[CurPhase]; }

    /// The number in a box, and the text of a number for a box, in the user's locale.
    Single NumberIn(const TextBox& box) const;
    std::string TextOf(Single number, Format format) const;

    /// The text to show for a path, shortened: that of the path helper, or the path itself if there
    /// is no path helper.
    std::string ShownPath(const std::string& path) const;

    /// Shows a modal message, with lines that end in CR LF, and returns when the user has closed
    /// it.
    void ShowMessage(const std::string& text, MessageIcon icon) const;
};

/// A text box or a label as a member of any form.
using BoxMember = TextBox RecordEdit::*;
using LabelMember = Label RecordEdit::*;
