#include "window/Mirror.h"

#include <algorithm>

#include "window/Picture.h"

Mirror::Act::~Act() {
    if (--mirror.depth == 0) {
        mirror.BringUpToDate();
    }
}

void Mirror::Mark(Picture& picture) {
    if (std::find(marked.begin(), marked.end(), &picture) != marked.end()) {
        return;
    }
    if (marked.empty() && depth == 0 && !updating) {
        QMetaObject::invokeMethod(this, &Mirror::BringUpToDate, Qt::QueuedConnection);
    }
    marked.push_back(&picture);
}

void Mirror::BringUpToDate() {
    if (updating) {
        return;  // the loop below is running and comes to the new marks by itself
    }
    updating = true;
    // The focus leaves a widget that becomes disabled, and marks more by what it sets off.
    while (!marked.empty()) {
        Picture& picture = *marked.front();
        marked.pop_front();
        picture.Update();
    }
    updating = false;
}
