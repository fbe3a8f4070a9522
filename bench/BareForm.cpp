#include "BareForm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "form/Catalogue.h"

namespace {

QString ToText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QWidget* NewWidget(const CatalogueRow& row, QWidget* parent) {
    const QString caption = ToText(row.caption);
    switch (row.kind) {
        case ControlKind::Frame: return new QGroupBox(caption, parent);
        case ControlKind::Label: return new QLabel(caption, parent);
        case ControlKind::TextBox: return new QLineEdit(parent);
        case ControlKind::CheckBox: return new QCheckBox(caption, parent);
        case ControlKind::OptionButton: return new QRadioButton(caption, parent);
        case ControlKind::CommandButton: return new QPushButton(caption, parent);
        case ControlKind::ComboBox: {
            auto* const list = new QComboBox(parent);
            list->setEditable(true);
            list->setEditText(caption);
            return list;
        }
        case ControlKind::CommonDialog: break;
    }
    return nullptr;
}

}  // namespace

BareForm::BareForm(double scale) {
    const auto pixels = [scale](int twips) { return static_cast<int>(twips * scale); };
    for (const CatalogueRow& row : Catalogue()) {
        auto* const frame = findChild<QWidget*>(ToText(row.frame));
        QWidget* const widget = NewWidget(row, row.frame.empty() ? this : frame);
        if (widget == nullptr) {
            continue;
        }
        widget->setObjectName(ToText(row.name));
        widget->setGeometry(pixels(row.left), pixels(row.top), pixels(row.width),
                            pixels(row.height));
        if (auto* const box = qobject_cast<QLineEdit*>(widget)) {
            boxes.push_back(box);
        } else if (auto* const list = qobject_cast<QComboBox*>(widget)) {
            lists.push_back(list);
        }
    }
    setFixedSize(pixels(FormWidth), pixels(FormHeight));
}
