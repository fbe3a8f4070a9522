#include "record/RecordFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "record/ItemReader.h"

namespace {

constexpr std::size_t Piece = 16384;

// The lines of a phase block that hold its fields, in the order of the file, which is not quite
// the declared one: burstFlag stands behind burstCount. The reader and the writer share it.
template <class Phase, class Line>
void ForEachLine(Phase& p, Line&& line) {
    line(p.ventLocation, p.eruptionType, p.strength, p.wind);
    line(p.massFlux, p.calderaFlag, p.directedFlag, p.calderaStyle);
    line(p.scarpTop, p.scarpBase, p.burstCount, p.burstFlag);
    line(p.tectonicKind, p.faultMagnitude, p.faultDip, p.faultDownSide, p.erosionCycles);
    line(p.flowLength, p.craterSize, p.position3D, p.ventPosition, p.growth, p.speed);
    line(p.midRadius, p.depositAngle, p.leftAngle, p.rightAngle);
}

void ReadPhase(ItemReader& in, PhaseRecord& phase, FlowRow& flows) {
    in.Text();  // the empty line
    in.Text();  // the literal
    in.SkipNumber();
    ForEachLine(phase, [&in](auto&... fields) { (in.Read(fields), ...); });
    if (HasFlows(phase)) {
        for (int j = 1; j <= phase.burstCount; ++j) {
            in.Read(flows[j]);
        }
    }
}

void ReadItems(ItemReader& in, EditorState& state) {
    in.Text();
    state.StratFile = in.Text();
    in.Text();
    Integer count = 0;
    in.Read(count);
    if (count < 0 || count > MaxPhases) {
        throw ReadError("Phase count out of range");
    }
    state.LoadedPhaseCount = count;
    in.Read(state.RecordScale);
    for (int i = 1; i <= state.LoadedPhaseCount; ++i) {
        ReadPhase(in, state.LoadedPhases[i], state.LoadedFlows[i]);
    }
}

// Builds lines of items and hands them to a stream, a piece at a time.
class LineWriter {
public:
    explicit LineWriter(std::streambuf& stream) : target(stream) {}

    template <class... Items>
    void Line(const Items&... items) {
        [[maybe_unused]] const std::size_t start = text.size();
        ((Separate(start), Add(items)), ...);
        text += "\r\n";
        if (text.size() >= Piece) {
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
    void Separate(std::size_t lineStart) {
        if (text.size() > lineStart) {
            text += ',';
        }
    }
    void Add(std::string_view item) {
        text += '"';
        text += item;
        text += '"';
    }
    void Add(Integer item) {
        std::array<char, 8> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), item);
        text.append(digits.data(), end.ptr);
    }
    void Add(Single item) {
        std::array<char, 24> digits{};
        const Single unsignedZero = item == 0 ? 0 : item;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), unsignedZero,
                                       std::chars_format::general, 7);
        std::replace(digits.data(), end.ptr, 'e', 'E');
        text.append(digits.data(), end.ptr);
    }

    std::streambuf& target;
    std::string text;
};

void WriteLines(LineWriter& out, const EditorState& state) {
    out.Line("Stratigraphic file:", std::string_view(state.StratFile));
    out.Line("Recorded phases", state.LoadedPhaseCount, state.RecordScale);
    for (Integer i = 1; i <= state.LoadedPhaseCount; ++i) {
        const PhaseRecord& phase = state.LoadedPhases[i];
        out.Line();
        out.Line("Record Phase: ", i);
        ForEachLine(phase, [&out](const auto&... fields) { out.Line(fields...); });
        if (HasFlows(phase)) {
            for (int j = 1; j <= phase.burstCount; ++j) {
                out.Line(state.LoadedFlows[i][j]);
            }
        }
    }
    out.Flush();
}

}  // namespace

bool ReadRecord(std::streambuf& source, EditorState& state) {
    try {
        ItemReader in(source);
        ReadItems(in, state);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool ReadRecordFile(const std::string& path, EditorState& state) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return false;  // opening a pipe would wait for somebody to write into it
    }
    std::filebuf file;
    return file.open(path, std::ios::in | std::ios::binary) != nullptr && ReadRecord(file, state);
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
    if (state.StratFile.find('"') != std::string::npos || state.StratFile.size() > LongestItem) {
        return false;
    }
    std::error_code error;
    if (std::filesystem::is_fifo(path, error)) {
        return false;  // opening it would wait for somebody to read from it
    }
    std::filebuf file;
    if (file.open(path, std::ios::out | std::ios::trunc | std::ios::binary) == nullptr) {
        return false;
    }
    const bool written = WriteRecord(file, state);
    return file.close() != nullptr && written;
}
