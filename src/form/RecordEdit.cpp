#include "form/RecordEdit.h"

#include <stdexcept>

#include "form/Catalogue.h"
#include "shell/PathText.h"

namespace {

void LayOut(RecordEdit& form, const CatalogueRow& row) {
    Control* const control = form.Find(row.name);
    if (control == nullptr) {
        throw std::logic_error("The form lacks " + std::string(row.name));
    }
    if (auto* const box = dynamic_cast<ComboBox*>(control)) {
        box->SetText(row.caption);
    } else if (auto* const captioned = dynamic_cast<CaptionedControl*>(control)) {
        captioned->SetCaption(row.caption);
    }
    control->SetEnabled(row.look != Look::DisabledAtStart);
    control->SetVisible(row.look != Look::OpenPicture);
}

}  // namespace

RecordEdit::RecordEdit() {
    for (const CatalogueRow& row : Catalogue()) {
        LayOut(*this, row);
    }
}

Single RecordEdit::NumberIn(const TextBox& box) const {
    return ParseLeadingNumber(box.Text(), separators);
}

std::string RecordEdit::TextOf(Single number, Format format) const {
    return FormatNumber(number, format, separators);
}

std::string RecordEdit::ShownPath(const std::string& path) const {
    return ShortenPath(pathHelper ? pathHelper->DisplayPath(path, 0) : path);
}

void RecordEdit::ShowMessage(const std::string& text, MessageIcon icon) const {
    services.messages->Show(text, icon, ApplicationTitle);
}
