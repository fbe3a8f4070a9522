#include "record/RecordFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include "record/ItemReader.h"

namespace {

constexpr std::size_t WriteSize = 16384;

constexpr std::string_view Comma = ",";
constexpr std::string_view LineEnd = "\r\n";

char* WriteDigits(char* to, char* end, Single item) {
    const Single unsignedZero = item == 0 ? 0 : item;
    end = std::to_chars(to, end, unsignedZero, std::chars_format::general, SignificantDigits).ptr;
    std::replace(to, end, 'e', 'E');
    return end;
}

// Collects items and writes them to a stream in large pieces. Each item is added with the separator
// or line end after it.
class LineWriter {
public:
    explicit LineWriter(std::streambuf& stream) : target(stream) {}

    void Add(std::string_view item, std::string_view after) {
        text += '"';
        text += item;
        text += '"';
        End(after);
    }
    void Add(Integer item, std::string_view after) {
        AddDigits(after, [item](char* to, char* end) { return std::to_chars(to, end, item).ptr; });
    }
    void Add(Single item, std::string_view after) {
        AddDigits(after, [item](char* to, char* end) { return WriteDigits(to, end, item); });
    }
    void End(std::string_view after) {
        text += after;
        if (text.size() >= WriteSize) {
            Flush();
        }
    }
    void Flush() {
        const auto size = static_cast<std::streamsize>(text.size());
        if (target.sputn(text.data(), size) != size) {
            throw std::runtime_error("Disk full");
        }
        text.clear();
    }

private:
    template <class Digits>
    void AddDigits(std::string_view after, Digits digits) {
        std::array<char, 24> item{};
        char* const end = digits(item.data(), item.data() + item.size() - after.size());
        text.append(item.data(), std::copy(after.begin(), after.end(), end));
        End("");
    }

    std::streambuf& target;
    std::string text;
};

void WritePhase(LineWriter& out, Integer number, const PhaseRecord& phase, const FlowRow& flows) {
    out.End(LineEnd);
    out.Add(PhaseLabel, Comma);
    out.Add(number, LineEnd);
    ForEachField(phase, [&out](auto index, const auto& value) {
        constexpr std::size_t next = index + 1;
        constexpr bool endsLine =
            next == PhaseFields.size() || PhaseFields[next].line != PhaseFields[index].line;
        out.Add(value, endsLine ? LineEnd : Comma);
    });
    if (HasFlows(phase)) {
        for (int j = 1; j <= phase.burstCount; ++j) {
            out.Add(flows[j], LineEnd);
        }
    }
}

void WriteLines(LineWriter& out, const EditorState& state) {
    out.Add(ReferenceLabel, Comma);
    out.Add(std::string_view(state.StratFile), LineEnd);
    out.Add(PhaseCountLabel, Comma);
    out.Add(state.LoadedPhaseCount, Comma);
    out.Add(state.RecordScale, LineEnd);
    for (Integer i = 1; i <= state.LoadedPhaseCount; ++i) {
        WritePhase(out, i, state.LoadedPhases[i], state.LoadedFlows[i]);
    }
    out.Flush();
}

ReadResult NotOpened(std::string reason) {
    return {ReadFailure{.reason = std::move(reason), .line = 0, .place = {}, .device = false}};
}

}  // namespace

ReadResult ReadRecord(std::streambuf& source, EditorState& state) {
    try {
        ItemReader in(source);
        ItemPlace place;
        return ReadRecordWith(in, state, place);
    } catch (const std::exception& error) {  // no memory for the reader
        return NotOpened(error.what());
    }
}

ReadResult ReadRecordFile(const std::string& path, EditorState& state) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        // Opening a pipe would wait for a writer.
        return NotOpened(error ? error.message() : "not a regular file");
    }
    std::filebuf file;
    if (file.open(path, std::ios::in | std::ios::binary) == nullptr) {
        return NotOpened(std::generic_category().message(errno));
    }
    return ReadRecord(file, state);
}

std::string ItemText(Single number) {
    std::array<char, 24> digits{};
    return {digits.data(), WriteDigits(digits.data(), digits.data() + digits.size(), number)};
}

bool IsStorable(std::string_view reference) {
    return reference.find('"') == reference.npos && reference.size() <= LongestItem;
}

bool WriteRecord(std::streambuf& target, const EditorState& state) {
    try {
        LineWriter out(target);
        WriteLines(out, state);
        return target.pubsync() == 0;
    } catch (const std::exception&) {
        return false;
    }
}

bool WriteRecordFile(const std::string& path, const EditorState& state) {
    if (!IsStorable(state.StratFile)) {
        return false;
    }
    std::error_code error;
    if (std::filesystem::is_fifo(path, error)) {
        return false;  // opening it would wait for a reader
    }
    std::filebuf file;
    if (file.open(path, std::ios::out | std::ios::trunc | std::ios::binary) == nullptr) {
        return false;
    }
    const bool written = WriteRecord(file, state);
    return file.close() != nullptr && written;
}
