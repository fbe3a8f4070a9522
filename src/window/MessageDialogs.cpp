#include "window/MessageDialogs.h"

#include <QMessageBox>

#include "window/ScreenText.h"

namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information: return QMessageBox::Information;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Stop: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void MessageDialogs::Show(const std::string& text, MessageIcon icon, std::string_view title) {
    const QString lines = ToScreen(text).replace(ToScreen("\r\n"), "\n");
    QMessageBox box(IconOf(icon), ToScreen(title), lines, QMessageBox::Ok, &parent);
    box.exec();
}
