// A program that shows the bare widgets of the form.

#include <QApplication>

#include "BareForm.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    BareForm form(1.0 / 11);  // as large as the editor in the usual font
    form.show();
    return QApplication::exec();
}
