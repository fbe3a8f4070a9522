#include "record/RecordFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "editing/Numbers.h"

namespace {

constexpr std::size_t LongestItem = 65535;
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

struct ReadError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Cuts a stream into items. It looks no further ahead than the piece in which an item ends, and
// what stands behind an item is taken only when the next one is asked for.
class ItemReader {
public:
    explicit ItemReader(std::streambuf& stream) : source(stream), buffer(LongestItem + 2 * Piece) {}

    // An item of any kind, as text; the view holds until the next item is read.
    std::string_view Text() {
        std::string_view item = Next(Comma | LineEnd);
        if (behind == Behind::Separator) {
            item.remove_suffix(item.size() - (item.find_last_not_of(' ') + 1));
        }
        return item;
    }
    void SkipNumber() { Next(Comma | LineEnd | Blank); }

    // An item that is no number gives 0.
    void Read(Single& value) {
        if (!ReadInPlace(value)) {
            Convert(value);
        }
    }
    void Read(Integer& value) {
        if (ReadInPlace(value)) {
            return;
        }
        double number = 0;
        Convert(number);
        const auto rounded = RoundToInteger(number);
        if (!rounded) {
            throw ReadError("Overflow");
        }
        value = *rounded;
    }

private:
    enum Kind : unsigned char { Plain = 0, Comma = 1, LineEnd = 2, Blank = 4, Quote = 8 };

    static constexpr std::array<unsigned char, 256> Kinds = [] {
        std::array<unsigned char, 256> kinds{};
        kinds[','] = Comma;
        kinds['\r'] = kinds['\n'] = LineEnd;
        kinds[' '] = Blank;
        kinds['"'] = Quote;
        return kinds;
    }();

    // What still stands between the last item and the next.
    enum class Behind { Nothing, Separator, Rest };

    bool Is(std::size_t position, unsigned kinds) const {
        return (Kinds[static_cast<unsigned char>(buffer[position])] & kinds) != 0;
    }

    // A number as files mostly have it, up to the next separator in the buffer, needs no second
    // look. False, and nothing taken, for any other item.
    template <class Number>
    bool ReadInPlace(Number& value) {
        PassBehind();
        Number number = 0;
        const auto [stop, error] = std::from_chars(buffer.data() + at, buffer.data() + end, number);
        const auto after = static_cast<std::size_t>(stop - buffer.data());
        const bool plain = error == std::errc{} && std::isfinite(number) && after < end &&
                           Is(after, Comma | LineEnd);
        if (plain) {
            value = number;
            at = after;
            behind = Behind::Separator;
        }
        return plain;
    }

    template <class Number>
    void Convert(Number& value) {
        Number number = 0;
        if (FromDecimal(Next(Comma | LineEnd | Blank), number) == Conversion::TooLarge) {
            throw ReadError("Overflow");
        }
        value = number;
    }

    std::string_view Next(unsigned ends) {
        PassBehind();
        SkipWhile([this] { return Is(at, Blank); });
        if (!More()) {
            throw ReadError("Input past end of file");
        }
        const bool quoted = Is(at, Quote);
        if (quoted) {
            ++at;
        }
        const std::size_t length = Measure(quoted ? unsigned{Quote} : ends);
        const std::string_view item(buffer.data() + at, length);
        at += length;
        behind = quoted ? Behind::Rest : Behind::Separator;
        return item;
    }

    // Takes what belongs to the last item: blanks and one comma or line end; behind a closing
    // quote anything up to there.
    void PassBehind() {
        if (behind == Behind::Rest) {
            at += at < end ? 1 : 0;
            SkipWhile([this] { return !Is(at, Comma | LineEnd); });
        } else if (behind == Behind::Separator) {
            SkipWhile([this] { return Is(at, Blank); });
        }
        if (std::exchange(behind, Behind::Nothing) == Behind::Nothing || !More()) {
            return;
        }
        const char separator = buffer[at];
        if (Is(at, Comma | LineEnd)) {
            ++at;
        }
        if (separator == '\r' && More() && buffer[at] == '\n') {
            ++at;
        }
    }

    // However much there is to skip, it belongs to one item, and an item has an end.
    template <class Condition>
    void SkipWhile(Condition condition) {
        for (std::size_t skipped = 0; More() && condition(); ++at) {
            if (++skipped > LongestItem) {
                throw ReadError("Item too long");
            }
        }
    }

    // The length of the item at `at`, which ends before a character of these kinds or with the
    // stream.
    std::size_t Measure(unsigned ends) {
        std::size_t length = 0;
        do {
            while (at + length < end && !Is(at + length, ends)) {
                ++length;
            }
            if (length > LongestItem) {
                throw ReadError("Item too long");
            }
        } while (at + length == end && Refill());
        return length;
    }

    bool More() { return at < end || Refill(); }

    // Brings in another piece behind what is not yet taken; false at the end of the stream, which
    // stays the end even if the stream has more to give after a fault.
    bool Refill() {
        if (ended) {
            return false;
        }
        std::memmove(buffer.data(), buffer.data() + at, end - at);
        end -= at;
        at = 0;
        const std::streamsize got = source.sgetn(buffer.data() + end, Piece);
        ended = got <= 0;
        end += ended ? 0 : static_cast<std::size_t>(got);
        return !ended;
    }

    std::streambuf& source;
    std::vector<char> buffer;
    std::size_t at = 0;
    std::size_t end = 0;
    bool ended = false;
    Behind behind = Behind::Nothing;
};

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
