// The error path of a routine: a run-time failure inside it ends it, is told to the user, and
// goes no further.
#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "form/RecordEdit.h"

/// Runs the whole body of a routine. False if a failure ended it; what it did until then stays.
template <class Body>
bool WithErrorPath(RecordEdit& form, std::string_view routine, Body body) {
    try {
        body();
        return true;
    } catch (const std::exception& failure) {
        form.ShowMessage("RecordEdit " + std::string(routine) + " error: \r\n" + failure.what(),
                         MessageIcon::Information);
        return false;
    }
}
