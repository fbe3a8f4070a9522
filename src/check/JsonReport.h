// A record and its findings as one JSON object on one line, in pieces, so that a long report need
// not be in memory as a whole.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"

/// The object up to its first finding. Bytes of the name that are not UTF-8 become U+FFFD.
std::string JsonStart(std::string_view name);

/// A finding, without the comma between findings. Bytes that are not UTF-8 become U+FFFD.
std::string JsonOf(const Finding& finding);

/// The rest of the object, with the line end.
std::string JsonEnd(int phaseCount, Verdict verdict);
