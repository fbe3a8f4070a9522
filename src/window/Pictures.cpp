#include "window/Pictures.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCursor>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>

#include "window/LineBox.h"
#include "window/ListBox.h"
#include "window/ScreenText.h"

namespace {

constexpr QColor PaleCyan(192, 255, 255);
constexpr QColor PaleYellow(255, 255, 192);
constexpr QColor Greyed(112, 112, 112);

// The pale colours are the same on a dark desktop, so the text on them has to be dark.
QPalette PalePalette(QPalette palette, QColor back) {
    for (const auto role : {QPalette::Window, QPalette::Base}) {
        palette.setColor(role, back);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, Greyed);
    }
    return palette;
}

template <class ControlKind, class WidgetKind>
class PictureOf : public Picture {
public:
    explicit PictureOf(const Subject& subject)
        : PictureOf(subject, *new WidgetKind(subject.parent)) {}

protected:
    ControlKind& control;
    WidgetKind& widget;

private:
    PictureOf(const Subject& subject, WidgetKind& ownWidget)
        : Picture(subject, ownWidget),
          control(dynamic_cast<ControlKind&>(subject.control)),
          widget(ownWidget) {}
};

class FramePicture : public PictureOf<Frame, QGroupBox> {
public:
    using PictureOf::PictureOf;

    void Update() override {
        widget.setTitle(ToScreen(control.Caption()));
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setTitle(text);
        return {widget.minimumSizeHint().width(), widget.contentsMargins().top()};
    }
};

class LabelPicture : public PictureOf<Label, QLabel> {
public:
    explicit LabelPicture(const Subject& subject) : PictureOf(subject) {
        widget.setTextFormat(Qt::PlainText);
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
            // Of a long path the end tells more than the beginning.
            widget.setAccessibleName(caption);
            widget.setText(widget.fontMetrics().elidedText(caption, Qt::ElideLeft,
                                                           widget.contentsRect().width()));
        } else {
            widget.setText(caption);
        }
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(text);
        return widget.sizeHint();
    }

private:
    bool IsOutputField() const { return Row().look == Look::OutputField; }
};

class TextBoxPicture : public PictureOf<TextBox, LineBox> {
public:
    explicit TextBoxPicture(const Subject& subject) : PictureOf(subject) {
        widget.setAlignment(Qt::AlignCenter);
        connect(&widget, &LineBox::KeyPressed, this, [this] { TakeText(&TextBox::PressKey); });
        connect(&widget, &LineBox::Edited, this, [this] { TakeText(&TextBox::Edit); });
        connect(&widget, &LineBox::SelectionMoved, this,
                [this] { UserActs([this] { TakeSelection(); }); });
    }

    void Update() override {
        if (!ShowsText()) {
            widget.setText(ToScreen(control.Text()));
        }
        ShowSelection();
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

private:
    using Door = void (TextBox::*)(std::string_view, std::size_t);

    bool ShowsText() const { return widget.text() == ToScreen(control.Text()); }

    // Text that the user has left alone keeps the bytes that the control has for it.
    void TakeText(Door door) {
        UserActs([this, door] {
            const std::string text = ShowsText() ? control.Text() : FromScreen(widget.text());
            (control.*door)(text, BytePlace(text, widget.cursorPosition()));
            TakeSelection();
        });
    }

    // Widgets forget their selection when the focus leaves them; controls don't.
    void TakeSelection() {
        if (!widget.hasFocus() || !ShowsText()) {
            return;
        }
        const bool selected = widget.hasSelectedText();
        const int start = selected ? widget.selectionStart() : widget.cursorPosition();
        const int end = selected ? widget.selectionEnd() : start;
        const std::size_t first = BytePlace(control.Text(), start);
        control.Select(first, BytePlace(control.Text(), end) - first);
    }

    void ShowSelection() {
        const std::string& text = control.Text();
        const int start = ScreenPlace(text, control.SelStart());
        const int end = ScreenPlace(text, control.SelStart() + control.SelLength());
        if (widget.hasFocus() && end > start) {
            if (widget.selectionStart() != start || widget.selectionEnd() != end) {
                widget.setSelection(start, end - start);
            }
        } else if (widget.hasSelectedText() || widget.cursorPosition() != end) {
            widget.deselect();
            widget.setCursorPosition(end);
        }
    }
};

class ComboBoxPicture : public PictureOf<ComboBox, ListBox> {
public:
    explicit ComboBoxPicture(const Subject& subject) : PictureOf(subject) {
        widget.setPalette(PalePalette(widget.palette(), PaleYellow));
        widget.view()->setPalette(widget.palette());
        if (Row().look == Look::OwnPointer) {
            widget.setCursor(QCursor(QPixmap(":/window/down-32.xpm"), 12, 1));
        }
        connect(&widget, &ListBox::Picked, this, [this](int position) {
            UserActs([this, position] { control.Pick(static_cast<std::size_t>(position)); });
        });
        connect(&widget, &QComboBox::editTextChanged, this,
                [this] { UserActs([this] { TakeText(); }); });
    }

    void Update() override {
        QStringList entries;
        for (const std::string& entry : control.Entries()) {
            entries += ToScreen(entry);
        }
        widget.SetEntries(entries);
        if (!ShowsText()) {
            widget.setEditText(ToScreen(control.Text()));
        }
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

private:
    bool ShowsText() const { return widget.currentText() == ToScreen(control.Text()); }

    void TakeText() {
        if (!ShowsText()) {
            control.Type(FromScreen(widget.currentText()));
        }
    }
};

class CheckBoxPicture : public PictureOf<CheckBox, QCheckBox> {
public:
    explicit CheckBoxPicture(const Subject& subject) : PictureOf(subject) {
        widget.setLayoutDirection(Qt::RightToLeft);  // the box stands behind its caption
        connect(&widget, &QCheckBox::toggled, this, [this](bool checked) {
            if (checked != (control.Value() == 1)) {
                UserActs([this] { control.Toggle(); });
            }
        });
    }

    void Update() override {
        const QString caption = ToScreen(control.Caption());
        widget.setText(Shown(caption));
        widget.setAccessibleName(caption);
        widget.setChecked(control.Value() == 1);
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(Shown(text));
        return widget.sizeHint();
    }

private:
    // The mark keeps a colon at the end of the caption, though the widget runs from right to left.
    static QString Shown(const QString& caption) { return caption + QChar(0x200E); }
};

class OptionButtonPicture : public PictureOf<OptionButton, QRadioButton> {
public:
    explicit OptionButtonPicture(const Subject& subject) : PictureOf(subject) {
        widget.setAutoExclusive(false);  // or the Tab key would reach one of the group only
        connect(&widget, &QRadioButton::toggled, this, [this](bool checked) {
            if (checked != control.Value()) {
                UserActs([this] { control.Choose(); });
            }
        });
    }

    void Update() override {
        widget.setText(ToScreen(control.Caption()));
        widget.setChecked(control.Value());
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override {
        widget.setText(text);
        return widget.sizeHint();
    }
};

class CommandButtonPicture : public PictureOf<CommandButton, QPushButton> {
public:
    explicit CommandButtonPicture(const Subject& subject) : PictureOf(subject) {
        widget.setAutoDefault(true);  // Enter presses the button that has the focus
        if (Row().look == Look::HiddenAtStart) {
            QIcon icon(":/window/open-16.xpm");
            icon.addFile(":/window/open-32.xpm");
            widget.setIcon(icon);
        }
        connect(&widget, &QPushButton::clicked, this,
                [this] { UserActs([this] { control.Press(); }); });
    }

    void Update() override {
        widget.setText(ToScreen(control.Caption()));
        Picture::Update();
    }

    QSize SizeWith(const QString& text) override {
        const int border = 2 * widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        const QSize inside = widget.fontMetrics().size(Qt::TextShowMnemonic, text);
        return inside + QSize(2 * border, border);
    }
};

}  // namespace

std::unique_ptr<Picture> NewPicture(const Subject& subject) {
    switch (subject.row.kind) {
        case Kind::Frame: return std::make_unique<FramePicture>(subject);
        case Kind::Label: return std::make_unique<LabelPicture>(subject);
        case Kind::TextBox: return std::make_unique<TextBoxPicture>(subject);
        case Kind::ComboBox: return std::make_unique<ComboBoxPicture>(subject);
        case Kind::CheckBox: return std::make_unique<CheckBoxPicture>(subject);
        case Kind::OptionButton: return std::make_unique<OptionButtonPicture>(subject);
        case Kind::CommandButton: return std::make_unique<CommandButtonPicture>(subject);
        case Kind::CommonDialog: break;
    }
    return nullptr;
}
