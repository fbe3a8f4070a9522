#include "form/Catalogue.h"

#include <algorithm>
#include <array>

namespace {

// clang-format off

//   name           kind                 frame      caption                   left    top  width height  tab
constexpr std::array<CatalogueRow, 74> Rows{{
    // the form itself
    {"Frame1",      ControlKind::Frame,         "",        "File",                    120,     0,  5055,  1695,   0},
    {"Frame2",      ControlKind::Frame,         "",        "Primary Parameters",      120,  1800,  5055,  4095,   4},
    {"Command1",    ControlKind::CommandButton, "",        "Cancel",                 5400,  5040,  2055,   255,  39},
    {"Command2",    ControlKind::CommandButton, "",        "OK",                     6600,  5520,   855,   255,  40, Look::DisabledAtStart},
    {"cmdHelp",     ControlKind::CommandButton, "",        "Help",                   5400,  5520,   855,   255,  46},
    {"Frame3",      ControlKind::Frame,         "",        "Advanced Parameters",    5280,     0,  2295,  2775,  51},
    {"Frame4",      ControlKind::Frame,         "",        "Mapping Parameters",     5280,  2880,  2295,  1935,  52},
    {"CD1",         ControlKind::CommonDialog,  "",        "",                          0,     0,     0,     0,   0},

    // File
    {"Label1",      ControlKind::Label,         "Frame1",  "File opened:",            360,   360,  1095,   255,   1},
    {"Label2",      ControlKind::Label,         "Frame1",  "Straticgraphic File:",    120,   720,  1335,   255,   2},
    {"Label3",      ControlKind::Label,         "Frame1",  "Number of phases:",       120,  1080,  2055,   255,   3, Look::LeftAligned},
    {"labRecfile",  ControlKind::Label,         "Frame1",  "",                       1560,   360,  3255,   255,  34, Look::OutputField},
    {"labPhases",   ControlKind::Label,         "Frame1",  "",                       1560,  1080,  1695,   255,  35, Look::OutputField},
    {"cmdChange",   ControlKind::CommandButton, "Frame1",  "Stratigraphic File",     3360,  1080,  1455,   255,  38},
    {"txtTopFile",  ControlKind::TextBox,       "Frame1",  "",                       1560,   720,  3255,   285,  44, Look::AnyText},
    {"cmdOpen",     ControlKind::CommandButton, "Frame1",  "",                        100,   280,   375,   375,  45, Look::OpenIcon},
    {"labScale",    ControlKind::Label,         "Frame1",  "Scale:",                  840,  1380,   615,   255,  47},
    {"optLarge",    ControlKind::OptionButton,  "Frame1",  "Large",                  1560,  1380,   735,   255,  48},
    {"optNormal",   ControlKind::OptionButton,  "Frame1",  "Normal",                 2280,  1380,   855,   255,  49},
    {"optSmall",    ControlKind::OptionButton,  "Frame1",  "Small",                  3240,  1380,   855,   255,  50},

    // Primary Parameters
    {"Label4",      ControlKind::Label,         "Frame2",  "Record phase to edit:",   120,   360,  1695,   255,   5},
    {"cmbPhase",    ControlKind::ComboBox,      "Frame2",  "Select Phase",           1920,   320,  1335,   315,   6},
    {"labLoc",      ControlKind::Label,         "Frame2",  "Vent location:",          720,  1080,  1095,   255,   7},
    {"labStr",      ControlKind::Label,         "Frame2",  "Strength:",               840,  1440,   975,   255,   8},
    {"labWind",     ControlKind::Label,         "Frame2",  "Wind:",                   480,  1800,  1335,   255,   9},
    {"labPart",     ControlKind::Label,         "Frame2",  "Mass Flux:",              240,  2160,  1575,   255,  10},
    {"cmbStyle",    ControlKind::ComboBox,      "Frame2",  "Caldera Style",          2760,  2160,  2055,   315,  11},
    {"labCbase",    ControlKind::Label,         "Frame2",  "Scarp base:",            3240,  2880,   855,   255,  12},
    {"labCtop",     ControlKind::Label,         "Frame2",  "Scarp top:",              720,  2880,  1095,   255,  13},
    {"labBurst",    ControlKind::Label,         "Frame2",  "Number of bursts:",       240,  2520,  1575,   255,  14},
    {"chkCald",     ControlKind::CheckBox,      "Frame2",  "Caldera:",               3840,  1800,   975,   255,  15},
    {"chkDirected", ControlKind::CheckBox,      "Frame2",  "Directed:",              3760,  1440,  1050,   255,  16},
    {"chkBurst",    ControlKind::CheckBox,      "Frame2",  "Explosive bursts:",      3240,  1080,  1575,   255,  17},
    {"labMag",      ControlKind::Label,         "Frame2",  "Fault magnitude:",        600,  3240,  1215,   255,  18},
    {"labDip",      ControlKind::Label,         "Frame2",  "Fault dip: ",            3360,  3240,   735,   255,  19},
    {"txtMag",      ControlKind::TextBox,       "Frame2",  "",                       1920,  3240,   735,   285,  20},
    {"cmbType",     ControlKind::ComboBox,      "Frame2",  "Select Parameters",      1920,   680,  1935,   315,  21},
    {"Label5",      ControlKind::Label,         "Frame2",  "Eruption Type:",          480,   720,  1335,   255,  22},
    {"txtLoc",      ControlKind::TextBox,       "Frame2",  "",                       1920,  1080,   735,   285,  23},
    {"txtStr",      ControlKind::TextBox,       "Frame2",  "",                       1920,  1440,   735,   285,  24},
    {"txtWind",     ControlKind::TextBox,       "Frame2",  "",                       1920,  1800,   735,   285,  25},
    {"txtPart",     ControlKind::TextBox,       "Frame2",  "",                       1920,  2160,   735,   285,  26},
    {"txtBurst",    ControlKind::TextBox,       "Frame2",  "",                       1920,  2520,   735,   285,  27},
    {"txtCtop",     ControlKind::TextBox,       "Frame2",  "",                       1920,  2880,   735,   285,  28},
    {"txtCbase",    ControlKind::TextBox,       "Frame2",  "",                       4200,  2880,   615,   285,  29},
    {"txtDip",      ControlKind::TextBox,       "Frame2",  "",                       4200,  3240,   615,   285,  30},
    {"labErode",    ControlKind::Label,         "Frame2",  "Erosion duration:",       240,  3600,  1575,   255,  31},
    {"txtErode",    ControlKind::TextBox,       "Frame2",  "",                       1920,  3600,   735,   285,  32},
    {"cmdDelete",   ControlKind::CommandButton, "Frame2",  "Delete",                 4080,   360,   735,   255,  33},
    {"cmbDown",     ControlKind::ComboBox,      "Frame2",  "Down Side",              2760,  3600,  2055,   315,  36, Look::CustomPointer},
    {"cmdAdd",      ControlKind::CommandButton, "Frame2",  "Add",                    3360,   360,   615,   255,  37},
    {"cmbFlow",     ControlKind::ComboBox,      "Frame2",  "Flow Duration",          2760,  2520,  1515,   315,  41},
    {"txtLava",     ControlKind::TextBox,       "Frame2",  "",                       4200,  2520,   615,   315,  42},
    {"cmdReset",    ControlKind::CommandButton, "Frame2",  "Reset",                  4080,   720,   735,   255,  43},

    // Advanced Parameters
    {"labSlide1",   ControlKind::Label,         "Frame3",  "Flow length:",            480,   480,   855,   255,  53},
    {"txtSlide1",   ControlKind::TextBox,       "Frame3",  "",                       1440,   480,   495,   285,  54},
    {"labSlide3",   ControlKind::Label,         "Frame3",  "3D Position:",            480,   840,   855,   255,  55},
    {"txtSlide3",   ControlKind::TextBox,       "Frame3",  "",                       1440,   840,   495,   285,  56},
    {"labSlide5",   ControlKind::Label,         "Frame3",  "Growth:",                 720,  1200,   615,   255,  57},
    {"txtSlide5",   ControlKind::TextBox,       "Frame3",  "",                       1440,  1200,   495,   285,  58},
    {"labSlide2",   ControlKind::Label,         "Frame3",  "Crater Size:",            480,  1560,   855,   255,  59},
    {"labSlide4",   ControlKind::Label,         "Frame3",  "Vent Position:",          240,  1920,  1095,   255,  60},
    {"labSlide6",   ControlKind::Label,         "Frame3",  "Speed:",                  480,  2280,   855,   255,  61},
    {"txtSlide2",   ControlKind::TextBox,       "Frame3",  "",                       1440,  1560,   495,   285,  62},
    {"txtSlide4",   ControlKind::TextBox,       "Frame3",  "",                       1440,  1920,   495,   285,  63},
    {"txtSlide6",   ControlKind::TextBox,       "Frame3",  "",                       1440,  2280,   495,   285,  64},

    // Mapping Parameters
    {"txtMap1",     ControlKind::TextBox,       "Frame4",  "",                       1440,   360,   495,   285,  65},
    {"txtMap3",     ControlKind::TextBox,       "Frame4",  "",                       1440,  1080,   495,   285,  66},
    {"txtMap2",     ControlKind::TextBox,       "Frame4",  "",                       1440,   720,   495,   285,  67},
    {"txtMap4",     ControlKind::TextBox,       "Frame4",  "",                       1440,  1440,   495,   285,  68},
    {"labMap1",     ControlKind::Label,         "Frame4",  "Mid Radius:",             480,   360,   855,   255,  69},
    {"labMap2",     ControlKind::Label,         "Frame4",  "Deposit Angle:",          240,   720,  1095,   255,  70},
    {"labMap3",     ControlKind::Label,         "Frame4",  "Left Angle:",             480,  1080,   855,   255,  71},
    {"labMap4",     ControlKind::Label,         "Frame4",  "Right Angle:",            360,  1440,   975,   255,  72},
}};

constexpr std::array<NamedText, 41> Tips{{
    {"labRecfile", "Currently opened recorder file"},
    {"txtTopFile", "Stratigraphic file, delete to remove"},
    {"labPhases",  "Number of recorded phases"},
    {"cmdOpen",    "Open a record file for editing"},
    {"cmdChange",  "Select another stratigraphic file"},
    {"cmbPhase",   "Select record phase to edit"},
    {"cmdAdd",     "Add a new phase after the currently selected phase"},
    {"cmdDelete",  "Remove the currently selected phase"},
    {"cmdReset",   "Go back to original settings"},
    {"cmbType",    "Select a new eruption type for current phase"},
    {"cmbStyle",   "Select the caldera style"},
    {"cmbDown",    "Select the fault side to be thrown down"},
    {"chkBurst",   "Edit the number of bursts"},
    {"chkDirected", "Check to make a directed blast"},
    {"chkCald",    "Check to make a caldera"},
    {"txtLoc",     "Edit the vent location"},
    {"txtStr",     "Edit the eruption strength"},
    {"txtWind",    "Edit the wind direction (+/-) and speed"},
    {"txtPart",    "Edit the number of erupted particles"},
    {"txtBurst",   "Edit the number of bursts in this phase"},
    {"txtCtop",    "Edit the top location of the collapse scarp"},
    {"txtCbase",   "Edit the base location of the collapse scarp"},
    {"txtMag",     "Edit the fault magnitude (0-5)"},
    {"txtDip",     "Edit the dip direction (+/-) and slope (0 = vertical)"},
    {"txtErode",   "Edit the number of erosive cycles"},
    {"txtSlide1",  "Edit the average length of lava flows (1-11)"},
    {"txtSlide2",  "Edit the crater size (1-11)"},
    {"txtSlide3",  "Edit the 3D position (0-40)"},
    {"txtSlide4",  "Edit the caldera vent position/phreatic explosion frequency (1-11)"},
    {"txtSlide5",  "Edit the period over which the explosive eruption grows"},
    {"txtSlide6",  "Edit the simulation speed for this phase"},
    {"Command1",   "Close editor without any changes applied"},
    {"Command2",   "Apply/save changes"},
    {"Frame1",     "Select record, associated topographic file, and scale"},
    {"Frame2",     "Primary parameter value ranges dependent upon eruption type"},
    {"Frame3",     "Numerical values of advanced parameter sliders"},
    {"Frame4",     "Numerical values set to zero for random calculation, otherwise specify"},
    {"txtMap1",    "Edit the average deposit radius"},
    {"txtMap2",    "Edit the pyroclastic deposit skewness"},
    {"txtMap3",    "Edit the lava flow left skewness"},
    {"txtMap4",    "Edit the lava flow right skewness"},
}};

constexpr std::array<NamedText, 26> Labels{{
    {"labRecfile", "Label1"},
    {"labPhases",  "Label3"},
    {"optLarge",   "labScale"},
    {"txtTopFile", "Label2"},
    {"cmbPhase",   "Label4"},
    {"cmbType",    "Label5"},
    {"txtLoc",     "labLoc"},
    {"txtStr",     "labStr"},
    {"txtWind",    "labWind"},
    {"txtPart",    "labPart"},
    {"txtBurst",   "labBurst"},
    {"txtCtop",    "labCtop"},
    {"txtCbase",   "labCbase"},
    {"txtMag",     "labMag"},
    {"txtDip",     "labDip"},
    {"txtErode",   "labErode"},
    {"txtSlide1",  "labSlide1"},
    {"txtSlide2",  "labSlide2"},
    {"txtSlide3",  "labSlide3"},
    {"txtSlide4",  "labSlide4"},
    {"txtSlide5",  "labSlide5"},
    {"txtSlide6",  "labSlide6"},
    {"txtMap1",    "labMap1"},
    {"txtMap2",    "labMap2"},
    {"txtMap3",    "labMap3"},
    {"txtMap4",    "labMap4"},
}};

constexpr std::array<NamedText, 5> Names{{
    {"cmdOpen",    "Open"},
    {"cmbStyle",   "Caldera style"},
    {"cmbDown",    "Side thrown down"},
    {"cmbFlow",    "Lava flow"},
    {"txtLava",    "Flow duration"},
}};

constexpr std::array<NamedText, 6> Descriptions{{
    {"cmbFlow",    "Select the lava flow to edit"},
    {"txtLava",    "Edit the duration of the selected lava flow"},
    {"cmdHelp",    "Show the help on this editor"},
    {"optLarge",   "Set the map of this record to the large scale"},
    {"optNormal",  "Set the map of this record to the normal scale"},
    {"optSmall",   "Set the map of this record to the small scale"},
}};

// clang-format on

constexpr const CatalogueRow* FindRow(std::string_view name) {
    const auto* const found = std::find_if(
        Rows.begin(), Rows.end(), [name](const CatalogueRow& row) { return row.name == name; });
    return found == Rows.end() ? nullptr : found;
}

consteval bool NamesDiffer() {
    return std::all_of(Rows.begin(), Rows.end(),
                       [](const CatalogueRow& row) { return FindRow(row.name) == &row; });
}
static_assert(NamesDiffer(), "each control has one row");

consteval bool AllExist(std::span<const NamedText> names) {
    return std::all_of(names.begin(), names.end(),
                       [](const NamedText& each) { return FindRow(each.control) != nullptr; });
}
static_assert(AllExist(Tips) && AllExist(Labels) && AllExist(Names) && AllExist(Descriptions),
              "each text is for a control with a row");
static_assert(std::all_of(Labels.begin(), Labels.end(),
                          [](const NamedText& row) {
                              const CatalogueRow* const label = FindRow(row.text);
                              return label != nullptr && label->kind == ControlKind::Label;
                          }),
              "each control is labelled by a Label with a row");

consteval bool HasAccessibleName(const CatalogueRow& row) {
    const auto isForRow = [&row](const NamedText& each) { return each.control == row.name; };
    const bool edited = row.kind == ControlKind::TextBox || row.kind == ControlKind::ComboBox;
    const bool captioned =
        !edited && (row.kind != ControlKind::CommandButton || !row.caption.empty());
    return captioned || std::any_of(Labels.begin(), Labels.end(), isForRow) ||
           std::any_of(Names.begin(), Names.end(), isForRow);
}
static_assert(std::all_of(Rows.begin(), Rows.end(), HasAccessibleName),
              "a control without a caption has a label or an accessible name");

}  // namespace

std::span<const CatalogueRow> Catalogue() { return Rows; }

std::span<const NamedText> ToolTips() { return Tips; }

std::span<const NamedText> ControlLabels() { return Labels; }

std::span<const NamedText> AccessibleNames() { return Names; }

std::span<const NamedText> AccessibleDescriptions() { return Descriptions; }
