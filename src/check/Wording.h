// Findings in words: the lines of the text form, and the texts and numbers in them.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"
#include "record/RecordFile.h"

/// A text from a file in double quotes: what cannot be seen is escaped, and after 40 characters it
/// is cut.
std::string Quoted(std::string_view text);

/// A name of a file on one line: what cannot be seen is escaped, all else is as it is.
std::string OneLine(std::string_view name);

/// A value that was read, as the writer writes it or, where that is another value, with all its
/// digits.
std::string ValueText(Single value);

/// The last number on the passing side of a limit that a record can have, as text: one that reads
/// back to a value that passes.
std::string HighestText(Single highest);
std::string LowestText(Single lowest);

/// What was wrong with a record that could not be read, `phaseCount` being what was read of it.
Finding ErrorOf(const ReadFailure& failure, int phaseCount);

/// The line of a finding, with its line end.
std::string TextLine(std::string_view name, const Finding& finding, bool coloured = false);

/// The line for a record that could not be read, without a line end.
std::string ErrorLine(std::string_view name, const ReadFailure& failure, int phaseCount);
