#include "window/Scale.h"

#include <algorithm>

#include "editing/Entries.h"
#include "form/Catalogue.h"
#include "rules/EruptionTypes.h"
#include "window/ScreenText.h"

namespace {

constexpr double UsualScale = 96.0 / 1440;

// What code and user bring to the texts of the catalogue: the widest, where the eye can tell.
constexpr NamedText LaterTexts[]{
    {"Command1", "Close"},
    {"Command2", "Save"},
    {"labPhases", "500"},
    {"chkCald", CalderaCaption},
    {"chkCald", DiatremeCaption},
    {"labSlide4", VentCaption},
    {"labSlide4", FrequencyCaption},
    {"cmbPhase", NoPhaseText},
    {"cmbPhase", "Phase 500"},
    {"cmbType", "Vulcanian/Surtseyan"},
    {"cmbType", "Fumarolic/Phreatic"},
    {"cmbStyle", VallesEntry},
    {"cmbStyle", MazamaEntry},
    {"cmbDown", LeftEntry},
    {"cmbDown", RightEntry},
    {"cmbFlow", "Flow 100 Duration"},
    {"txtLoc", "123.00"},
    {"txtStr", "2.00"},
    {"txtWind", "-50.00"},
    {"txtPart", "49.99999"},
    {"txtBurst", "32767"},
    {"txtCtop", "123.00"},
    {"txtCbase", "123.00"},
    {"txtMag", "20"},
    {"txtDip", "-10"},
    {"txtErode", "32767"},
    {"txtLava", "1800.0"},
    {"txtSlide1", "11"},
    {"txtSlide2", "11"},
    {"txtSlide3", "40"},
    {"txtSlide4", "11"},
    {"txtSlide5", "9"},
    {"txtSlide6", "11"},
    {"txtMap1", "640"},
    {"txtMap2", "-1.00"},
    {"txtMap3", "-4.00"},
    {"txtMap4", "-4.00"},
};

// Of a frame it is the strip above the first control in it, where the frame has its title.
int Headroom(const CatalogueRow& row) {
    int room = row.height;
    for (const CatalogueRow& other : Catalogue()) {
        if (row.kind == Kind::Frame && other.frame == row.name) {
            room = std::min(room, other.top);
        }
    }
    return room;
}

bool Covers(const CatalogueRow& upper, const CatalogueRow& lower) {
    return upper.frame == lower.frame && upper.tab > lower.tab && upper.kind != Kind::Label &&
           upper.left > lower.left && upper.left < lower.left + lower.width &&
           upper.top < lower.top + lower.height && lower.top < upper.top + upper.height;
}

}  // namespace

int CoveredWidth(const CatalogueRow& row) {
    int covered = 0;
    for (const CatalogueRow& other : Catalogue()) {
        if (row.kind != Kind::Label && Covers(other, row)) {
            covered = std::max(covered, row.left + row.width - other.left);
        }
    }
    return covered;
}

QStringList TextsToFit(const CatalogueRow& row) {
    QStringList texts{ToScreen(row.caption)};
    for (const NamedText& later : LaterTexts) {
        if (later.control == row.name) {
            texts += ToScreen(later.text);
        }
    }
    return texts;
}

double FittingScale(const Views& views) {
    double scale = UsualScale;
    for (const auto& view : views) {
        const CatalogueRow& row = view->Row();
        const double width = row.width - CoveredWidth(row);
        const double height = Headroom(row);
        for (const QString& text : TextsToFit(row)) {
            const QSize size = view->SizeWith(text);
            scale = std::max({scale, size.width() / width, size.height() / height});
        }
    }
    return scale;
}
