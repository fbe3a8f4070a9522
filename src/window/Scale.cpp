#include "window/Scale.h"

#include <algorithm>

#include "form/Catalogue.h"
#include "window/WidestTexts.h"

namespace {

constexpr double UsualScale = 96.0 / 1440;

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

double FittingScale(const Views& views, const RecordEdit& form) {
    const auto texts = TextsToFit(form);
    double scale = UsualScale;
    for (const auto& view : views) {
        const CatalogueRow& row = view->Row();
        const double width = row.width - CoveredWidth(row);
        const double height = Headroom(row);
        for (const QString& text : texts.at(&view->Original())) {
            const QSize size = view->SizeWith(text);
            scale = std::max({scale, size.width() / width, size.height() / height});
        }
    }
    return scale;
}
