#include "form/RecordEdit.h"

#include <algorithm>
#include <stdexcept>

#include "form/Catalogue.h"
#include "shell/PathText.h"

namespace {

bool IsOfKind(const Control& control, ControlKind kind) {
    switch (kind) {
        case ControlKind::Frame: return dynamic_cast<const Frame*>(&control) != nullptr;
        case ControlKind::Label: return dynamic_cast<const Label*>(&control) != nullptr;
        case ControlKind::TextBox: return dynamic_cast<const TextBox*>(&control) != nullptr;
        case ControlKind::ComboBox: return dynamic_cast<const ComboBox*>(&control) != nullptr;
        case ControlKind::CheckBox: return dynamic_cast<const CheckBox*>(&control) != nullptr;
        case ControlKind::OptionButton:
            return dynamic_cast<const OptionButton*>(&control) != nullptr;
        case ControlKind::CommandButton:
            return dynamic_cast<const CommandButton*>(&control) != nullptr;
        case ControlKind::CommonDialog:
            return dynamic_cast<const CommonDialog*>(&control) != nullptr;
    }
    return false;
}

void LayOut(Control& control, const CatalogueRow& row) {
    if (auto* const box = dynamic_cast<ComboBox*>(&control)) {
        box->SetText(row.caption);
    } else if (auto* const captioned = dynamic_cast<CaptionedControl*>(&control)) {
        captioned->SetCaption(row.caption);
    }
    control.SetEnabled(row.look != Look::DisabledAtStart);
    control.SetVisible(row.look != Look::OpenIcon);
}

// A control without a row, or a row without a control of its kind, is a mistake in the program.
void Require(bool holds, std::string_view name) {
    if (!holds) {
        throw std::logic_error("The form and its catalogue differ in " + std::string(name));
    }
}

}  // namespace

RecordEdit::RecordEdit() {
    for (const Control* control : Controls()) {
        const auto isItsRow = [control](const auto& row) { return row.name == control->Name(); };
        Require(std::ranges::any_of(Catalogue(), isItsRow), control->Name());
    }
    for (const CatalogueRow& row : Catalogue()) {
        Control* const control = Find(row.name);
        Require(control != nullptr && IsOfKind(*control, row.kind), row.name);
        LayOut(*control, row);
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
