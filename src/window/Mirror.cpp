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
        return;  // the loop below is running and comes to the new marks by itself
    }
    updating = true;
    // The focus leaves a widget that becomes disabled, and marks more by what it sets off. It goes
    // to the widget of an enabled control: so those come first.
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
