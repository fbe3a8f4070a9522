// Any bytes as a record file. What was read can be written, and reading and writing that again
// gives the same bytes, however small the pieces in which they are read.

#include <algorithm>
#include <cstdint>
#include <memory>
#include <sstream>

#include "Require.h"
#include "record/RecordFile.h"

namespace {

// Gives its bytes in pieces of at most `longest`.
class Pieces : public std::streambuf {
public:
    Pieces(std::string_view bytes, std::size_t longest) : rest(bytes), piece(longest) {}

protected:
    std::streamsize xsgetn(char* to, std::streamsize size) override {
        const std::size_t length = std::min(piece, static_cast<std::size_t>(size));
        const std::string_view given = rest.substr(0, length);
        std::copy(given.begin(), given.end(), to);
        rest.remove_prefix(given.size());
        return static_cast<std::streamsize>(given.size());
    }

private:
    std::string_view rest;
    std::size_t piece;
};

// Reads into a state that all inputs share: making a new one takes longer than reading.
bool Read(std::string_view bytes, std::size_t piece, EditorState& state) {
    state.LoadedPhases.Clear();
    state.LoadedFlows.Clear();
    state.StratFile.clear();
    state.LoadedPhaseCount = state.RecordScale = 0;
    Pieces source(bytes, piece);
    return static_cast<bool>(ReadRecord(source, state));
}

bool Same(const EditorState& a, const EditorState& b) {
    bool same = a.StratFile == b.StratFile && a.LoadedPhaseCount == b.LoadedPhaseCount &&
                a.RecordScale == b.RecordScale;
    for (int i = 1; same && i <= a.LoadedPhaseCount; ++i) {
        same = a.LoadedPhases[i] == b.LoadedPhases[i] && a.LoadedFlows[i] == b.LoadedFlows[i];
    }
    return same;
}

std::string Written(const EditorState& state) {
    std::stringbuf target;
    Require(WriteRecord(target, state), "what was read can be written");
    return target.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto state = std::make_unique<EditorState>();
    static const auto again = std::make_unique<EditorState>();
    const std::string bytes(data, data + size);
    const bool succeeded = Read(bytes, size + 1, *state);
    Require(Read(bytes, 1 + size % 7, *again) == succeeded && Same(*state, *again),
            "pieces make no difference");
    Require(state->LoadedPhaseCount >= 0 && state->LoadedPhaseCount <= MaxPhases, "count in range");
    if (!succeeded) {
        return 0;
    }
    if (state->StratFile.find('"') != std::string::npos) {
        Require(!WriteRecordFile("/dev/null", *state), "a quote cannot be written");
        return 0;
    }
    const std::string written = Written(*state);
    Require(Read(written, 1 + size % 1000, *again), "what was written can be read");
    Require(again->StratFile == state->StratFile, "the reference is kept");
    Require(Written(*again) == written, "the second writing equals the first");
    return 0;
}
