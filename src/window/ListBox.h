// A drop-down list with an editable box. Only an entry chosen in the open list counts as picked. It
// does not depend on the controls of the form. It draws its arrow within its contents margins.
#pragma once

#include <QComboBox>

class QStringListModel;
class TextLine;

class ListBox : public QComboBox {
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent);

    /// Replaces the entries if they differ. The text in the box is then undefined.
    void SetEntries(const QStringList& shown);

    /// The smallest size that shows the whole text, with the arrow and the borders that the box has
    /// at its current size. Resizes the line in the box.
    QSize SizeFor(const QString& shown);

    /// Sets the palette of the text and of the open list.
    void SetTextPalette(const QPalette& palette);

    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user picked this entry, counted from 0, in the open list: by click, Enter or an
    /// assistive technology.
    void Picked(int position);

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void PickIfJustClosed(int position);
    void PickIfSelectedExternally();

    TextLine* line;
    QStringListModel* entries;
    QPalette textPalette;
    bool justClosed = false;  // the list closed, without a key press or loss of focus since
};
