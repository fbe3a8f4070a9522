// A drop-down list with an editable box, in which only an entry chosen in the open list is a
// pick. It knows no control, and keeps its arrow within its contents margins.
#pragma once

#include <QComboBox>

class QStringListModel;
class TextLine;

class ListBox : public QComboBox {
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent);

    /// Takes over the entries if they are others. The text of the box is then undefined.
    void SetEntries(const QStringList& shown);

    /// The smallest size at which the box shows the whole of such a text, with the arrow and the
    /// borders that it has at its present size.
    QSize SizeFor(const QString& shown);

    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user picked this entry, by click or Enter, in the open list.
    void Picked(int position);

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void PickIfJustClosed(int position);
    void PickIfSelectedFromAfar();

    TextLine* line;
    QStringListModel* entries;
    bool justClosed = false;  // the list, and no key or loss of focus has come since
};
