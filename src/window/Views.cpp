#include "window/Views.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionGroupBox>
#include <algorithm>

#include "window/Access.h"
#include "window/BoxViews.h"
#include "window/LargeMarks.h"
#include "window/ScreenText.h"

namespace {

constexpr QColor PaleCyan(192, 255, 255);

class FrameView : public ViewOf<Frame, QGroupBox> {
public:
    using ViewOf::ViewOf;

    void Update() override {
        widget.setTitle(ToScreen(control.Caption()));
        View::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setTitle(text);
        QStyleOptionGroupBox option;
        option.initFrom(&widget);
        option.text = text;
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        const QRect title = widget.style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                           QStyle::SC_GroupBoxLabel, &widget);
        return {widget.minimumSizeHint().width(), title.bottom() + 1};
    }
};

class LabelView : public ViewOf<Label, QLabel> {
public:
    explicit LabelView(const ViewParts& parts) : ViewOf(parts) {
        const bool left = Row().look == Look::LeftAligned;
        widget.setAlignment(Qt::AlignVCenter | (left ? Qt::AlignLeft : Qt::AlignRight));
        if (IsOutputField()) {
            widget.setAlignment(Qt::AlignCenter);
            widget.setFrameStyle(QFrame::Box | QFrame::Plain);
            widget.setPalette(PalePalette(widget.palette(), PaleCyan));
            widget.setAutoFillBackground(true);
        }
    }

    void Update() override {
        const QString caption = ToScreen(control.Caption());
        if (IsOutputField()) {
            // The end of a long path matters more than its beginning.
            SetSpokenName(widget, caption);
            widget.setText(widget.fontMetrics().elidedText(caption, Qt::ElideLeft,
                                                           widget.contentsRect().width()));
        } else {
            widget.setText(caption);
        }
        NameBuddy(widget);
        View::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(text);
        return widget.sizeHint();
    }

private:
    bool IsOutputField() const { return Row().look == Look::OutputField; }
};

class CheckBoxView : public ViewOf<CheckBox, QCheckBox> {
public:
    explicit CheckBoxView(const ViewParts& parts) : ViewOf(parts) {
        EnlargeMark(widget);
        widget.setLayoutDirection(Qt::RightToLeft);  // the box comes after its caption
        connect(&widget, &QCheckBox::toggled, this, [this](bool checked) {
            if (checked != (control.Value() == 1)) {
                OnUserAction([this] { control.Toggle(); });
            }
        });
    }

    void Update() override {
        const QString caption = ToScreen(control.Caption());
        widget.setText(Shown(caption));
        SetSpokenName(widget, caption);
        widget.setChecked(control.Value() == 1);
        View::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(Shown(text));
        return widget.sizeHint();
    }

private:
    // A left-to-right mark keeps a colon at the end of the caption in the right-to-left widget.
    static QString Shown(const QString& caption) { return caption + QChar(0x200E); }
};

// The arrow keys choose the previous or next option, as in an auto-exclusive group of the toolkit.
class OptionWidget : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up: Choose(&QWidget::previousInFocusChain, Qt::BacktabFocusReason); break;
            case Qt::Key_Right:
            case Qt::Key_Down: Choose(&QWidget::nextInFocusChain, Qt::TabFocusReason); break;
            default: QRadioButton::keyPressEvent(event);
        }
    }

private:
    // The focus chain is a ring, so the first option follows the last.
    void Choose(QWidget* (QWidget::*neighbour)() const, Qt::FocusReason reason) {
        const auto isOption = [this](QWidget* widget) {
            return widget->parentWidget() == parentWidget() && widget->isEnabled() &&
                   qobject_cast<QRadioButton*>(widget) != nullptr;
        };
        QWidget* next = this;
        do {
            next = (next->*neighbour)();
        } while (!isOption(next));
        next->setFocus(reason);
        qobject_cast<QRadioButton*>(next)->click();
    }
};

class OptionButtonView : public ViewOf<OptionButton, OptionWidget> {
public:
    explicit OptionButtonView(const ViewParts& parts) : ViewOf(parts) {
        EnlargeMark(widget);
        widget.setAutoExclusive(false);  // or the Tab key would reach only one of the group
        connect(&widget, &QRadioButton::toggled, this, [this](bool checked) {
            if (checked != control.Value()) {
                OnUserAction([this] { control.Choose(); });
            }
        });
    }

    void Update() override {
        widget.setText(ToScreen(control.Caption()));
        SetSpokenName(widget, widget.text());
        widget.setChecked(control.Value());
        View::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(text);
        return widget.sizeHint();
    }
};

class CommandButtonView : public ViewOf<CommandButton, QPushButton> {
public:
    explicit CommandButtonView(const ViewParts& parts) : ViewOf(parts) {
        widget.setAutoDefault(true);  // Enter presses the button that has the focus
        if (Row().look == Look::OpenIcon) {
            ShowIcon();
        }
        connect(&widget, &QPushButton::clicked, this,
                [this] { OnUserAction([this] { control.Press(); }); });
    }

    void Update() override {
        widget.setText(ToScreen(control.Caption()));
        View::Update();
    }

    QSize SizeWith(const QString& text) override {
        const int border = 2 * widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        const QSize inside = widget.fontMetrics().size(Qt::TextShowMnemonic, text);
        return inside + QSize(2 * border, border);
    }

private:
    void ShowIcon() {
        QIcon icon;
        for (const int size : {16, 20, 24, 32}) {
            icon.addFile(QString(":/window/open-%1.xpm").arg(size), {size, size});
        }
        const int size = std::max(widget.iconSize().width(), widget.fontMetrics().ascent() * 4 / 3);
        if (size > 32) {
            icon.addPixmap(QPixmap(":/window/open-32.xpm").scaled(2 * size, 2 * size));
        }
        widget.setIcon(icon);
        widget.setIconSize({size, size});
    }
};

}  // namespace

std::unique_ptr<View> NewView(const ViewParts& parts) {
    switch (parts.row.kind) {
        case ControlKind::Frame: return std::make_unique<FrameView>(parts);
        case ControlKind::Label: return std::make_unique<LabelView>(parts);
        case ControlKind::TextBox: return std::make_unique<TextBoxView>(parts);
        case ControlKind::ComboBox: return std::make_unique<ComboBoxView>(parts);
        case ControlKind::CheckBox: return std::make_unique<CheckBoxView>(parts);
        case ControlKind::OptionButton: return std::make_unique<OptionButtonView>(parts);
        case ControlKind::CommandButton: return std::make_unique<CommandButtonView>(parts);
        case ControlKind::CommonDialog: break;
    }
    return nullptr;
}
