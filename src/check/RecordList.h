// The records that a command line names: files, all records of a folder, standard input.
#pragma once

#include <memory>
#include <streambuf>
#include <string>
#include <vector>

/// A record to check, or a name under which there is none to be read.
struct RecordName {
    std::string name;
    std::string problem = {};  // why it cannot be read, in words for the user; empty if it can
};

/// The name of standard input.
constexpr const char* StandardInput = "-";

/// Lists the records of each name in turn. Those of a folder are all files below it that end in
/// .rec, in any case, by the bytes of their paths; links to folders are not followed. What is no
/// regular file, a folder that cannot be listed and one without records are listed with the
/// problem.
std::vector<RecordName> ListRecords(const std::vector<std::string>& names);

/// Opens a record that was listed without a problem. Throws std::system_error.
std::unique_ptr<std::streambuf> OpenRecord(const std::string& name);
