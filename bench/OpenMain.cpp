// The editor, with the record open that its command line names, if it names one.

#include <QApplication>

#include "WindowForm.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto editor = std::make_unique<WindowForm>();
    if (argc > 1) {
        editor->Open(argv[1]);
    }
    return QApplication::exec();
}
