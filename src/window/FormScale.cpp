#include "window/FormScale.h"

#include <algorithm>
#include <cmath>

#include "form/Catalogue.h"
#include "window/WidestTexts.h"

namespace {

constexpr double UsualScale = 96.0 / 1440;

// Of a frame it is the strip above the first control in it, where the frame has its title.
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

// Borders and arrows can grow with the height, so that a larger scale asks for one larger still. As
// the controls are wider than high, that soon comes to an end; with any other style it is cut
// short.
double ScaleToFit(View& view, const QString& text, double scale) {
    constexpr int mostRounds = 8;
    const CatalogueRow& row = view.Row();
    const double width = row.width - CoveredWidth(row);
    const double height = Headroom(row);
    for (int round = 0; round < mostRounds; ++round) {
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
        for (const QString& text : texts.at(&view->Original())) {
            scale = ScaleToFit(*view, text, scale);
        }
    }
    return scale;
}
