#include "Plain.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "editing/Fields.h"

namespace {

class Splitter {
public:
    explicit Splitter(std::string_view bytes) : rest(bytes.data()), end(rest + bytes.size()) {}

    std::string_view Next() {
        const char* const start = rest;
        while (rest != end && *rest != ',' && *rest != '\r') {
            ++rest;
        }
        const std::string_view item(start, static_cast<std::size_t>(rest - start));
        rest += rest == end ? 0 : *rest == '\r' ? 2 : 1;
        return item;
    }

    template <class... Numbers>
    void Read(Numbers&... numbers) {
        (ReadOne(numbers), ...);
    }

private:
    template <class Number>
    void ReadOne(Number& number) {
        const std::string_view item = Next();
        std::from_chars(item.data(), item.data() + item.size(), number);
    }

    const char* rest;
    const char* end;
};

class Buffer {
public:
    explicit Buffer(std::vector<char>& room)
        : start(room.data()), at(start), end(start + room.size()) {}

    template <class... Numbers>
    void Line(Numbers... numbers) {
        (Add(numbers), ...);
        at[-1] = '\r';
        *at++ = '\n';
    }
    void Text(std::string_view text) {
        std::memcpy(at, text.data(), text.size());
        at += text.size();
    }
    std::string_view Written() const { return {start, static_cast<std::size_t>(at - start)}; }

private:
    void Add(Single number) {
        at = std::to_chars(at, end, number, std::chars_format::general, 7).ptr;
        *at++ = ',';
    }
    void Add(Integer number) {
        at = std::to_chars(at, end, number).ptr;
        *at++ = ',';
    }

    char* start;
    char* at;
    char* end;
};

}  // namespace

void ReadPlainly(std::string_view bytes, EditorState& state) {
    Splitter in(bytes);
    in.Next();
    const std::string_view quoted = in.Next();
    state.StratFile = quoted.substr(1, quoted.size() - 2);
    in.Next();
    in.Read(state.LoadedPhaseCount, state.RecordScale);
    for (int i = 1; i <= state.LoadedPhaseCount; ++i) {
        PhaseRecord& p = state.LoadedPhases[i];
        in.Next();
        in.Next();
        in.Next();
        in.Read(p.ventLocation, p.eruptionType, p.strength, p.wind);
        in.Read(p.massFlux, p.calderaFlag, p.directedFlag, p.calderaStyle);
        in.Read(p.scarpTop, p.scarpBase, p.burstCount, p.burstFlag);
        in.Read(p.tectonicKind, p.faultMagnitude, p.faultDip, p.faultDownSide, p.erosionCycles);
        in.Read(p.flowLength, p.craterSize, p.position3D, p.ventPosition, p.growth, p.speed);
        in.Read(p.midRadius, p.depositAngle, p.leftAngle, p.rightAngle);
        FlowRow& flows = state.LoadedFlows[i];
        for (int j = 1; HasFlows(p) && j <= p.burstCount; ++j) {
            in.Read(flows[j]);
        }
    }
}

void WritePlainly(const std::string& path, const EditorState& state, std::vector<char>& buffer) {
    Buffer out(buffer);
    out.Text("\"Stratigraphic file:\",\"");
    out.Text(state.StratFile);
    out.Text("\"\r\n\"Recorded phases\",");
    out.Line(state.LoadedPhaseCount, state.RecordScale);
    for (Integer i = 1; i <= state.LoadedPhaseCount; ++i) {
        const PhaseRecord& p = state.LoadedPhases[i];
        out.Text("\r\n\"Record Phase: \",");
        out.Line(i);
        out.Line(p.ventLocation, p.eruptionType, p.strength, p.wind);
        out.Line(p.massFlux, p.calderaFlag, p.directedFlag, p.calderaStyle);
        out.Line(p.scarpTop, p.scarpBase, p.burstCount, p.burstFlag);
        out.Line(p.tectonicKind, p.faultMagnitude, p.faultDip, p.faultDownSide, p.erosionCycles);
        out.Line(p.flowLength, p.craterSize, p.position3D, p.ventPosition, p.growth, p.speed);
        out.Line(p.midRadius, p.depositAngle, p.leftAngle, p.rightAngle);
        const FlowRow& flows = state.LoadedFlows[i];
        for (int j = 1; HasFlows(p) && j <= p.burstCount; ++j) {
            out.Line(flows[j]);
        }
    }
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        throw std::runtime_error("Cannot write " + path);
    }
    std::fwrite(out.Written().data(), 1, out.Written().size(), file);
    std::fclose(file);
}

static_assert(ShownPhase().size() == FieldBoxes.size(), "a number for each box");

ShownPhase NumbersOf(const PhaseRecord& phase) {
    ShownPhase shown{};
    std::transform(FieldBoxes.begin(), FieldBoxes.end(), shown.begin(), [&phase](const auto& row) {
        return Shown{ValueOf(phase, row.field), row.shown == Format::TwoDecimals ? 2 : 0};
    });
    return shown;
}

Single ParsePlainly(std::string_view text) {
    Single number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string FormatPlainly(Shown shown) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), shown.number,
                                   std::chars_format::fixed, shown.decimals);
    return {digits.data(), end.ptr};
}

void ShowPlainly(ShownPhase& numbers, std::array<std::string, 20>& texts) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        texts[i] = FormatPlainly(numbers[i]);
        numbers[i].number = ParsePlainly(texts[i]);
    }
}

void ListFlowsPlainly(std::vector<std::string>& entries) {
    entries.clear();
    for (int i = 1; i <= MaxFlows; ++i) {
        entries.push_back("Flow " + std::to_string(i) + " Duration");
    }
}
