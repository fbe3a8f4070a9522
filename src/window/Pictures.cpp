#include "window/Pictures.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "window/Access.h"
#include "window/BoxPictures.h"
#include "window/ScreenText.h"

namespace {

constexpr QColor PaleCyan(192, 255, 255);

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
            NameAloud(widget, caption);
            widget.setText(widget.fontMetrics().elidedText(caption, Qt::ElideLeft,
                                                           widget.contentsRect().width()));
        } else {
            widget.setText(caption);
        }
        if (widget.buddy() != nullptr) {
            NameAloud(*widget.buddy(), caption);
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
        NameAloud(widget, caption);
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
        NameAloud(widget, widget.text());
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
        if (Row().look == Look::OpenPicture) {
            QIcon icon;
            for (const int size : {16, 20, 24, 32}) {
                icon.addFile(QString(":/window/open-%1.xpm").arg(size), {size, size});
            }
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
