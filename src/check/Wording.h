// Findings as lines of text, and the texts and numbers in them. JSON is in JsonReport.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"
#include "record/RecordFile.h"

/// Text from a file, in double quotes. Quotes, backslashes, invisible characters and bytes that are
/// not UTF-8 are escaped; text of more than 40 characters is cut.
std::string Quoted(std::string_view text);

/// A file name on one line. Invisible characters are escaped, all other bytes are unchanged.
std::string OneLine(std::string_view name);

/// A value as the writer writes it, or with all its digits if that would read back as another
/// value.
std::string ValueText(Single value);

/// A limit as text: the closest number on its passing side that a record can hold.
std::string HighestText(Single highest);
std::string LowestText(Single lowest);

/// The finding for a record that could not be read. `phaseCount` is how many phases it says it has.
Finding ErrorOf(const ReadFailure& failure, int phaseCount);

/// The line of a finding, with its line end; `coloured` colours the level for a terminal.
std::string TextLine(std::string_view name, const Finding& finding, bool coloured = false);

/// The line for a record that could not be read, without a line end.
std::string ErrorLine(std::string_view name, const ReadFailure& failure, int phaseCount);
