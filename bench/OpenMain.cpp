// The editor, which opens the record named on its command line, if there is one.

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
