// The error path of a routine: an exception inside it ends it, is reported to the user and goes no
// further.
#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "form/RecordEdit.h"

/// Runs the body of the routine named `routine`. False if an exception ended it; what it did before
/// is not undone.
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
