#include "check/RecordList.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "check/FileSource.h"

namespace {

namespace fs = std::filesystem;

bool HasRecordExtension(const std::string& name) {
    constexpr std::string_view ending = ".rec";
    return name.size() >= ending.size() &&
           std::equal(ending.begin(), ending.end(), name.end() - ending.size(), [](char a, char b) {
               return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b);
           });
}

RecordName File(std::string name, const fs::file_status& status, const std::error_code& error) {
    if (!fs::exists(status)) {
        return {
            std::move(name),
            (error ? error : std::make_error_code(std::errc::no_such_file_or_directory)).message()};
    }
    return {std::move(name), fs::is_regular_file(status) ? "" : "not a regular file"};
}

// Collects the records of a folder and all folders below it. Subfolders are listed later, so that
// only one folder is open at a time, however deep they are.
class FolderWalk {
public:
    explicit FolderWalk(std::string top) { folders.push_back(std::move(top)); }

    std::vector<RecordName> Run() {
        while (!folders.empty()) {
            const std::string folder = std::exchange(folders.back(), {});
            folders.pop_back();
            List(folder);
        }
        std::sort(found.begin(), found.end(),
                  [](const RecordName& a, const RecordName& b) { return a.name < b.name; });
        return std::move(found);
    }

private:
    void List(const std::string& folder) {
        std::error_code error;
        for (fs::directory_iterator at(folder, error), end; !error && at != end;
             at.increment(error)) {
            Take(*at);
        }
        if (error) {
            found.push_back({folder, error.message()});
        }
    }

    void Take(const fs::directory_entry& entry) {
        const std::string& name = entry.path().native();
        std::error_code error;
        const bool isLink = entry.is_symlink(error);
        if (!isLink && entry.is_directory(error)) {
            folders.push_back(name);
        } else if (HasRecordExtension(name)) {
            const fs::file_status status = entry.status(error);
            if (!fs::is_directory(status)) {
                found.push_back(File(name, status, error));
            }
        }
    }

    std::vector<std::string> folders;
    std::vector<RecordName> found;
};

}  // namespace

std::vector<RecordName> ListRecords(const std::vector<std::string>& names) {
    std::vector<RecordName> records;
    for (const std::string& name : names) {
        std::error_code error;
        const fs::file_status status = name == StandardInput
                                           ? fs::file_status(fs::file_type::regular)
                                           : fs::status(name, error);
        if (!fs::is_directory(status)) {
            records.push_back(File(name, status, error));
            continue;
        }
        std::vector<RecordName> found = FolderWalk(name).Run();
        if (found.empty()) {
            found.push_back({name, "there is no record in this folder"});
        }
        std::move(found.begin(), found.end(), std::back_inserter(records));
    }
    return records;
}

// Does not wait on a file that has become a pipe since it was listed.
std::unique_ptr<std::streambuf> OpenRecord(const std::string& name) {
    if (name == StandardInput) {
        return std::make_unique<FileSource>(STDIN_FILENO);
    }
    const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (file < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return std::make_unique<FileSource>(file);
}
