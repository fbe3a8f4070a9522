// All that can be seen of a form at one moment, and what has changed between two, in words.
#pragma once

#include <algorithm>
#include <charconv>
#include <map>

#include "Doors.h"
#include "editing/Fields.h"

inline const std::map<std::string, FieldMember> NamedFields = [] {
    std::map<std::string, FieldMember> fields;
    for (const PhaseField& field : PhaseFields) {
        fields.emplace(field.name, field.member);
    }
    return fields;
}();

inline std::string NumberText(double number) {
    std::array<char, 64> text{};
    char* const begin = text.data();
    return {begin, std::to_chars(begin, begin + text.size(), static_cast<Single>(number)).ptr};
}

inline std::string Joined(const Items& items, const std::string& between) {
    std::string text;
    for (const std::string& item : items) {
        text += (text.empty() ? "" : between) + item;
    }
    return text;
}

class Snapshot {
public:
    Snapshot(const RecordEdit& form, std::string itsFolder)
        : state(std::make_unique<EditorState>(form)), folder(std::move(itsFolder)) {
        for (const Control* control : form.Controls()) {
            enabled.emplace_back(control->Name(), control->Enabled());
            Look(*control);
        }
        ofControls = facts.size();
        const Control* const focus = form.ActiveControl();
        Note("focus", focus == nullptr ? "nowhere" : focus->Name());
        Note("libraries", form.pathHelper && form.settingsStore ? "in use" : "released");
        Note("FormFilling", form.FormFilling ? "true" : "false");
        Note("CurPhase", std::to_string(form.CurPhase));
        Note("CurType", std::to_string(form.CurType));
        Note("EditPhaseCount", std::to_string(form.EditPhaseCount));
        Note("LoadedPhaseCount", std::to_string(form.LoadedPhaseCount));
        Note("RecordScale", std::to_string(form.RecordScale));
        Note("RecFile", form.RecFile);
        Note("StratFile", form.StratFile);
        Note("EditStratFile", form.EditStratFile);
        Note("DataPath", form.DataPath);
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            if (file.is_regular_file()) {
                files[file.path().filename()] = ReadBytes(file.path());
            }
        }
    }

    /// What `now` has and this has not, a line of items for each kind of change.
    std::vector<Items> ChangesTo(const Snapshot& now) const {
        std::vector<Items> lines{Turned(now, false), Turned(now, true), {}, {}};
        for (std::size_t i = 0; i < facts.size(); ++i) {
            if (now.facts[i] != facts[i]) {
                const auto& [name, value] = now.facts[i];
                const bool tip = name.ends_with(" tip");
                Items& line = tip ? lines.emplace_back() : lines[i < ofControls ? 2 : 3];
                line.push_back(name + ' ' + value);
            }
        }
        const EditorState &a = *state, &b = *now.state;
        for (int n = 0; n <= MaxPhases; ++n) {
            lines.push_back(OfPhase("edited " + std::to_string(n), a.EditPhases[n], b.EditPhases[n],
                                    a.EditFlows[n], b.EditFlows[n]));
            lines.push_back(OfPhase("loaded " + std::to_string(n), a.LoadedPhases[n],
                                    b.LoadedPhases[n], a.LoadedFlows[n], b.LoadedFlows[n]));
        }
        for (const auto& [name, bytes] : now.files) {
            if (!files.contains(name) || files.at(name) != bytes) {
                lines.push_back({"writes " + name});
            }
        }
        std::erase_if(lines, [](const Items& items) { return items.empty(); });
        return lines;
    }

    /// A text on one line and without the folder of the test; a story can write all of it.
    static std::string Shown(const std::string& text, const std::string& folder = "//") {
        std::string shown;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const std::string_view rest = std::string_view(text).substr(at);
            if (rest.starts_with(folder) && rest != folder) {
                at += folder.size() - 1;
            } else if (const auto byte = static_cast<unsigned char>(rest.front());
                       byte < 0x20 || byte == 0xFF) {
                std::array<char, 5> hex{};
                std::snprintf(hex.data(), hex.size(), "\\x%02X", unsigned{byte});
                shown += hex.data();
            } else {
                shown += rest.front();
            }
        }
        return text.empty() ? "\"\"" : text == folder ? "the folder" : shown;
    }

private:
    void Note(const std::string& name, const std::string& value) {
        facts.emplace_back(name, Shown(value, folder));
    }

    void Look(const Control& control) {
        const std::string& name = control.Name();
        if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
            const std::size_t size = box->Text().size();
            Note(name, box->Text());
            Note(name + " selects", box->SelStart() == size    ? "nothing"
                                    : box->SelLength() == size ? "all"
                                                               : "a part");
        } else if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
            Note(name, list->Text());
            Note(name + " lists", EntriesOf(*list));
        } else if (const auto* dialog = dynamic_cast<const CommonDialog*>(&control)) {
            Note("dialog filter", dialog->Filter);
            Note("dialog adds", dialog->DefaultExt);
            Note("dialog type", std::to_string(dialog->FilterIndex));
            Note("dialog flags", std::to_string(dialog->Flags));
            Note("dialog tells a cancel", dialog->CancelError ? "yes" : "no");
            Note("dialog folder", dialog->InitDir);
            Note("help topic", dialog->HelpFile + ' ' + std::to_string(dialog->HelpContext));
        } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
            Note(name, option->Value() ? "chosen" : "not chosen");
        } else {
            const auto* check = dynamic_cast<const CheckBox*>(&control);
            Note(name, check == nullptr ? "" : check->Value() == 1 ? "checked" : "clear");
            Note(name + (check == nullptr ? "" : " reads"),
                 dynamic_cast<const CaptionedControl&>(control).Caption());
        }
        Note(name + " tip", control.ToolTipText());
        Note(name + " shown", control.Visible() ? "yes" : "no");
    }

    // Many entries that are numbered are told by the first and the last.
    static std::string EntriesOf(const ComboBox& list) {
        const Items& entries = list.Entries();
        const bool numbered = entries.size() > 2 && entries[0].find('1') != std::string::npos;
        return entries.empty() ? "nothing"
               : numbered      ? entries.front() + " to " + entries.back()
                               : Joined(entries, ", ");
    }

    // The controls turned on or off; a box and its label that go together by the name they share.
    Items Turned(const Snapshot& now, bool on) const {
        std::map<std::string, bool> turned;
        for (std::size_t i = 0; i < enabled.size(); ++i) {
            turned[enabled[i].first] = enabled[i] != now.enabled[i] && now.enabled[i].second == on;
        }
        std::string names;
        for (const auto& [name, before] : enabled) {
            const std::string rest = name.substr(3), box = "txt" + rest;
            const bool pair = turned["lab" + rest] && turned[box];
            if (turned[name] && !(pair && name.starts_with("lab"))) {
                names += ' ' + (pair && name == box ? rest : name);
            }
        }
        return names.empty() ? Items{} : Items{(on ? "on" : "off") + names};
    }

    // Flows next to each other that get the same duration are told together.
    static Items OfPhase(const std::string& head, const PhaseRecord& before, const PhaseRecord& now,
                         const FlowRow& flowsBefore, const FlowRow& flows) {
        if (before == now && flowsBefore == flows) {
            return {};  // as nearly all are
        }
        Items items{head};
        for (const auto& field : NamedFields) {
            const auto in = [&field](const PhaseRecord& phase) {
                return std::visit([&](auto each) -> double { return phase.*each; }, field.second);
            };
            if (in(before) != in(now) && now != PhaseRecord{}) {
                items.push_back(field.first + ' ' + NumberText(in(now)));
            }
        }
        if (before != now && now == PhaseRecord{}) {
            items.emplace_back("cleared");
        }
        for (int first = 0, last = 0; first <= MaxFlows; first = last + 1) {
            const auto joins = [&](int j) {
                return j <= MaxFlows && flowsBefore[j] != flows[j] && flows[j] == flows[first];
            };
            for (last = first; joins(first) && joins(last + 1);) {
                ++last;
            }
            if (joins(first)) {
                items.push_back("flow " + std::to_string(first) +
                                (last > first ? '-' + std::to_string(last) : "") + ' ' +
                                NumberText(flows[first]));
            }
        }
        return items;
    }

    std::vector<std::pair<std::string, std::string>> facts;  // the same names each time
    std::size_t ofControls = 0;
    std::vector<std::pair<std::string, bool>> enabled;
    std::map<std::string, std::string> files;
    std::unique_ptr<EditorState> state;
    std::string folder;
};
