#include "window/BoxViews.h"

#include <QCursor>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPixmap>

#include "window/ScreenText.h"

namespace {

constexpr QColor PaleYellow(255, 255, 192);

}  // namespace

TextBoxView::TextBoxView(const ViewParts& parts) : ViewOf(parts) {
    widget.setAlignment(Qt::AlignCenter);
    if (Row().look != Look::AnyText) {
        widget.SetDecimalSign(parts.separators.decimal);
    }
    connect(&widget, &LineBox::KeyPressed, this,
            [this] { OnUserAction([this] { ForwardKey(); }); });
    connect(&widget, &LineBox::Edited, this, [this] { OnUserAction([this] { ForwardEdit(); }); });
    connect(&widget, &LineBox::TextSet, this, [this] { OnTextSet([this] { ForwardKey(); }); });
    connect(&widget, &LineBox::SelectionMoved, this, [this] {
        if (ShowsText()) {  // otherwise an edit caused the move, and its signal follows
            OnUserAction([this] { ForwardSelection(); });
        }
    });
}

void TextBoxView::Update() {
    if (!ShowsText()) {
        widget.setText(ToScreen(control.Text()));
    }
    ShowSelection();
    View::Update();
}

// Tabbing into a box does not count as working in it.
bool TextBoxView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) {
            RememberLastBox();
        }
    }
    return View::eventFilter(watched, event);
}

bool TextBoxView::ShowsText() const { return widget.text() == ToScreen(control.Text()); }

void TextBoxView::ForwardKey() {
    RememberLastBox();
    const std::string text = ShownText();
    control.PressKey(text, BytePlace(text, widget.cursorPosition()));
}

void TextBoxView::ForwardEdit() {
    RememberLastBox();
    const std::string text = ShownText();
    control.Edit(text, BytePlace(text, widget.cursorPosition()));
    ForwardSelection();
}

// An unchanged text keeps the control's bytes, which need not be UTF-8.
std::string TextBoxView::ShownText() const {
    return ShowsText() ? control.Text() : FromScreen(widget.text());
}

// The widget loses its selection with the focus; the control keeps it.
void TextBoxView::ForwardSelection() {
    if (!widget.hasFocus() || !ShowsText()) {
        return;
    }
    const bool selected = widget.hasSelectedText();
    const int start = selected ? widget.selectionStart() : widget.cursorPosition();
    const int end = selected ? widget.selectionEnd() : start;
    const std::size_t first = BytePlace(control.Text(), start);
    control.Select(first, BytePlace(control.Text(), end) - first);
}

void TextBoxView::ShowSelection() {
    const std::string& text = control.Text();
    const int start = ScreenPlace(text, control.SelStart());
    const int end = ScreenPlace(text, control.SelStart() + control.SelLength());
    if (widget.hasFocus() && end > start) {
        if (widget.selectionStart() != start || widget.selectionEnd() != end) {
            widget.setSelection(start, end - start);
        }
    } else if (widget.hasSelectedText() || widget.cursorPosition() != end) {
        widget.setCursorPosition(end);  // deselects, too
    }
}

ComboBoxView::ComboBoxView(const ViewParts& parts) : ViewOf(parts) {
    QPalette pale = PalePalette(widget.palette(), PaleYellow);
    widget.setPalette(pale);  // the frame keeps the desktop's highlight to show the focus
    pale.setColor(QPalette::Highlight, QColor(0, 84, 147));
    pale.setColor(QPalette::HighlightedText, Qt::white);
    widget.SetTextPalette(pale);
    if (Row().look == Look::CustomPointer) {
        const QCursor hand(QPixmap(":/window/down-32.xpm"), 12, 1);
        widget.setCursor(hand);
        widget.lineEdit()->setCursor(hand);  // otherwise it would show the text cursor
    }
    connect(&widget, &ListBox::Picked, this, &ComboBoxView::ForwardPick);
    connect(&widget, &QComboBox::editTextChanged, this, &ComboBoxView::ForwardText);
}

void ComboBoxView::Update() {
    QStringList entries;
    for (const std::string& entry : control.Entries()) {
        entries += ToScreen(entry);
    }
    widget.SetEntries(entries);
    if (!ShowsText()) {
        widget.setEditText(ToScreen(control.Text()));
    }
    View::Update();
}

bool ComboBoxView::ShowsText() const { return widget.currentText() == ToScreen(control.Text()); }

void ComboBoxView::ForwardText() {
    if (!ShowsText()) {
        OnTextSet([this] { control.Type(FromScreen(widget.currentText())); });
    }
}

void ComboBoxView::ForwardPick(int position) {
    OnUserAction([this, position] { control.Pick(static_cast<std::size_t>(position)); });
}
