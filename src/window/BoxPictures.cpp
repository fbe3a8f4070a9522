#include "window/BoxPictures.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QLineEdit>
#include <QPixmap>

#include "window/ScreenText.h"

namespace {

constexpr QColor PaleYellow(255, 255, 192);

}  // namespace

TextBoxPicture::TextBoxPicture(const Subject& subject) : PictureOf(subject) {
    widget.setAlignment(Qt::AlignCenter);
    connect(&widget, &LineBox::KeyPressed, this, [this] { TakeText(By::Key); });
    connect(&widget, &LineBox::Edited, this, [this] { TakeText(By::OtherMeans); });
    connect(&widget, &LineBox::SelectionMoved, this, [this] {
        if (ShowsText()) {  // or the edit of which this is a part is told in a moment
            UserActs([this] { TakeSelection(); });
        }
    });
}

void TextBoxPicture::Update() {
    if (!ShowsText()) {
        widget.setText(ToScreen(control.Text()));
    }
    ShowSelection();
    Picture::Update();
}

bool TextBoxPicture::ShowsText() const { return widget.text() == ToScreen(control.Text()); }

// Text that the user has left alone keeps the bytes that the control has for it.
void TextBoxPicture::TakeText(By means) {
    UserActs([this, means] {
        const std::string text = ShowsText() ? control.Text() : FromScreen(widget.text());
        const std::size_t caret = BytePlace(text, widget.cursorPosition());
        if (means == By::Key) {
            control.PressKey(text, caret);
        } else {
            control.Edit(text, caret);
        }
        TakeSelection();
    });
}

// A widget forgets its selection when the focus leaves it; a control does not.
void TextBoxPicture::TakeSelection() {
    if (!widget.hasFocus() || !ShowsText()) {
        return;
    }
    const bool selected = widget.hasSelectedText();
    const int start = selected ? widget.selectionStart() : widget.cursorPosition();
    const int end = selected ? widget.selectionEnd() : start;
    const std::size_t first = BytePlace(control.Text(), start);
    control.Select(first, BytePlace(control.Text(), end) - first);
}

void TextBoxPicture::ShowSelection() {
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

ComboBoxPicture::ComboBoxPicture(const Subject& subject) : PictureOf(subject) {
    QPalette pale = PalePalette(widget.palette(), PaleYellow);
    widget.setPalette(pale);  // the frame shows the focus in the desktop's colour
    pale.setColor(QPalette::Highlight, QColor(0, 84, 147));
    pale.setColor(QPalette::HighlightedText, Qt::white);
    widget.view()->setPalette(pale);
    widget.lineEdit()->setPalette(pale);
    if (Row().look == Look::OwnPointer) {
        const QCursor hand(QPixmap(":/window/down-32.xpm"), 12, 1);
        widget.setCursor(hand);
        widget.lineEdit()->setCursor(hand);  // which has a pointer of its own otherwise
    }
    connect(&widget, &ListBox::Picked, this, &ComboBoxPicture::TakePick);
    connect(&widget, &QComboBox::editTextChanged, this, &ComboBoxPicture::TakeText);
}

void ComboBoxPicture::Update() {
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

bool ComboBoxPicture::ShowsText() const { return widget.currentText() == ToScreen(control.Text()); }

void ComboBoxPicture::TakeText() {
    if (!ShowsText()) {
        UserActs([this] { control.Type(FromScreen(widget.currentText())); });
    }
}

void ComboBoxPicture::TakePick(int position) {
    UserActs([this, position] { control.Pick(static_cast<std::size_t>(position)); });
}
