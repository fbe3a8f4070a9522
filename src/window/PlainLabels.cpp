#include "window/PlainLabels.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>

#include "window/ScreenText.h"

namespace {

// Puts stand-ins into the file name if the text is a question of the toolkit's file dialog.
QString Shown(const QString& text) {
    for (const QString& question :
         {QFileDialog::tr("'%1' is write protected.\nDo you want to delete it anyway?"),
          QFileDialog::tr("Are you sure you want to delete '%1'?")}) {
        const QString front = question.section("%1", 0, 0);
        const QString back = question.section("%1", 1);
        const qsizetype length = text.size() - front.size() - back.size();
        if (length >= 0 && text.startsWith(front) && text.endsWith(back)) {
            return front + NameInMessage(text.mid(front.size(), length)) + back;
        }
    }
    return text;
}

// A label is polished once, before it is first shown. Later texts are then plain, too.
class PlainLabels : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Polish) {
            auto* const label = qobject_cast<QLabel*>(watched);
            if (label != nullptr && label->textFormat() == Qt::AutoText) {
                label->setTextFormat(Qt::PlainText);
                label->setText(Shown(label->text()));
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

void KeepLabelsPlain(QObject& owner) { qApp->installEventFilter(new PlainLabels(&owner)); }
