// The records that a command line names: files, all records of a folder, standard input.
#pragma once

#include <memory>
#include <streambuf>
#include <string>
#include <vector>

/// A record to check, or a name that cannot be read as a record.
struct RecordName {
    std::string name;
    std::string problem = {};  // why it cannot be read, for the user; empty if it can
};

/// The name of standard input.
constexpr const char* StandardInput = "-";

/// Lists the records of each name in turn. For a folder these are all files below it that end in
/// .rec, in any case, sorted by the bytes of their paths; links to folders are not followed. A file
/// that is missing or not regular, a folder that cannot be read and one without records are listed
/// with the problem.
std::vector<RecordName> ListRecords(const std::vector<std::string>& names);

/// Opens a record that was listed without a problem. Throws std::system_error on failure.
std::unique_ptr<std::streambuf> OpenRecord(const std::string& name);
