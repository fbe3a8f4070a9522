#include "window/FormScale.h"

#include <algorithm>
#include <cmath>

#include "form/Catalogue.h"
#include "window/WidestTexts.h"

namespace {

constexpr double UsualScale = 96.0 / 1440;

// The height available for the text; in a frame, that of the strip above its topmost control.
int Headroom(const CatalogueRow& row) {
    int room = row.height;
    for (const CatalogueRow& other : Catalogue()) {
        if (row.kind == ControlKind::Frame && other.frame == row.name) {
            room = std::min(room, other.top);
        }
    }
    return room;
}

bool Covers(const CatalogueRow& upper, const CatalogueRow& lower) {
    return upper.frame == lower.frame && upper.tab > lower.tab &&
           upper.kind != ControlKind::Label && upper.left > lower.left &&
           upper.left < lower.left + lower.width && upper.top < lower.top + lower.height &&
           lower.top < upper.top + upper.height;
}

// Borders and arrows can grow with the height, so a larger scale can require a still larger one. As
// the controls are wider than they are high, this converges quickly; the limit is for styles where
// it does not.
double ScaleToFit(View& view, const QString& text, double scale) {
    constexpr int maxRounds = 8;
    const CatalogueRow& row = view.Row();
    const double width = row.width - CoveredWidth(row);
    const double height = Headroom(row);
    for (int round = 0; round < maxRounds; ++round) {
        view.Widget().resize(ToPixels(row.width, scale), ToPixels(row.height, scale));
        const QSize size = view.SizeWith(text);
        const double needed = std::max(size.width() / width, size.height() / height);
        if (needed <= scale) {
            break;
        }
        scale = needed;
    }
    return scale;
}

}  // namespace

int ToPixels(int twips, double scale) { return static_cast<int>(std::lround(twips * scale)); }

int CoveredWidth(const CatalogueRow& row) {
    int covered = 0;
    for (const CatalogueRow& other : Catalogue()) {
        if (row.kind != ControlKind::Label && Covers(other, row)) {
            covered = std::max(covered, row.left + row.width - other.left);
        }
    }
    return covered;
}

double FittingScale(const Views& views, const RecordEdit& form) {
    const auto texts = TextsToFit(form);
    double scale = UsualScale;
    for (const auto& view : views) {
        for (const QString& text : texts.at(&view->ShownControl())) {
            scale = ScaleToFit(*view, text, scale);
        }
    }
    return scale;
}
