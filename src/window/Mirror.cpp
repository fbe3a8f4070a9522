#include "window/Mirror.h"

#include <algorithm>

Mirror::UserAction::~UserAction() {
    if (--mirror.depth == 0) {
        mirror.BringUpToDate();
    }
}

void Mirror::Mark(Mirrored& view) {
    if (std::find(marked.begin(), marked.end(), &view) != marked.end()) {
        return;
    }
    if (marked.empty() && depth == 0 && !updating) {
        QMetaObject::invokeMethod(this, &Mirror::BringUpToDate, Qt::QueuedConnection);
    }
    marked.push_back(&view);
}

void Mirror::BringUpToDate() {
    if (updating) {
        return;  // the loop below is running and will reach the new marks
    }
    updating = true;
    // Disabling a widget moves the focus to the widget of an enabled control, which must be enabled
    // by then: so enabled controls come first. The change of focus can mark more views.
    const auto enabled = [](const Mirrored* view) { return view->IsEnabled(); };
    while (!marked.empty()) {
        const auto found = std::find_if(marked.begin(), marked.end(), enabled);
        const auto next = found != marked.end() ? found : marked.begin();
        Mirrored& view = **next;
        marked.erase(next);
        view.Update();
    }
    updating = false;
}
