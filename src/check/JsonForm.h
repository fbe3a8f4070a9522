// A record and its findings as one JSON object on one line, in three pieces, so that no more than a
// finding has to be held at a time.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"

/// The object up to its first finding; bytes of the name that are no UTF-8 are replaced.
std::string JsonStart(std::string_view name);

/// A finding, without the comma to the next.
std::string JsonOf(const Finding& finding);

/// The rest, with the line end.
std::string JsonEnd(int phaseCount, Verdict verdict);
