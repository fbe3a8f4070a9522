// What a form shows and holds at one moment, and the changes since another as stories write them.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include "UserActions.h"
#include "editing/Fields.h"

using Items = std::vector<std::string>;

/// The shortest text of a Single.
inline std::string NumberText(double number) {
    std::array<char, 64> text{};
    char* const begin = text.data();
    return {begin, std::to_chars(begin, begin + text.size(), static_cast<Single>(number)).ptr};
}

inline std::string Joined(const Items& items, const std::string& between) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : between) + item;
    return text;
}

class Snapshot {
public:
    Snapshot(const RecordEdit& form, std::string itsFolder)
        : state(std::make_unique<EditorState>(form)), folder(std::move(itsFolder)) {
        for (const Control* control : form.Controls()) {
            enabled.emplace_back(control->Name(), control->Enabled());
            Add(*control);
        }
        Add("focus", form.ActiveControl() == nullptr ? "nowhere" : form.ActiveControl()->Name());
        Add("FormFilling", form.FormFilling ? "true" : "false");
        Add("CurPhase", std::to_string(form.CurPhase));
        Add("CurType", std::to_string(form.CurType));
        Add("EditPhaseCount", std::to_string(form.EditPhaseCount));
        Add("LoadedPhaseCount", std::to_string(form.LoadedPhaseCount));
        Add("RecordScale", std::to_string(form.RecordScale));
        Add("RecFile", form.RecFile);
        Add("StratFile", form.StratFile);
        Add("EditStratFile", form.EditStratFile);
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            if (file.is_regular_file()) {
                facts.emplace_back("writes " + file.path().filename().string(),
                                   ReadBytes(file.path()));
            }
        }
    }

    /// What has changed, in lines of items: first controls turned on and off, then other facts,
    /// then each phase.
    std::vector<Items> ChangesSince(const Snapshot& before) const {
        std::vector<Items> lines{Turned(before), {}};
        const std::set<std::pair<std::string, std::string>> old(before.facts.begin(),
                                                                before.facts.end());
        for (const auto& fact : facts) {
            if (!old.contains(fact)) {
                const bool file = fact.first.starts_with("writes ");
                lines.back().push_back(fact.first + (file ? "" : ' ' + fact.second));
            }
        }
        const EditorState &a = *before.state, &b = *state;
        for (int n = 0; n <= MaxPhases; ++n) {
            lines.push_back(OfPhase("edited " + std::to_string(n), a.EditPhases[n], b.EditPhases[n],
                                    a.EditFlows[n], b.EditFlows[n]));
            lines.push_back(OfPhase("loaded " + std::to_string(n), a.LoadedPhases[n],
                                    b.LoadedPhases[n], a.LoadedFlows[n], b.LoadedFlows[n]));
        }
        std::erase_if(lines, [](const Items& items) { return items.empty(); });
        return lines;
    }

    /// A text as stories write it: on one line, without the folder of the test.
    static std::string Shown(const std::string& text, const std::string& folder) {
        return text.empty()     ? "\"\""
               : text == folder ? "the folder"
                                : Replaced(Replaced(text, folder, ""), "\r\n", "\\r\\n");
    }

private:
    void Add(const std::string& name, const std::string& value) {
        facts.emplace_back(name, Shown(value, folder));
    }

    void Add(const Control& control) {
        const std::string& name = control.Name();
        if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
            const std::size_t size = box->Text().size();
            Add(name, box->Text());
            Add(name + " selects", box->SelStart() == size    ? "nothing"
                                   : box->SelLength() == size ? "all"
                                                              : "a part");
        } else if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
            Add(name, list->Text());
            Add(name + " lists", EntriesOf(*list));
        } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
            Add(name, option->Value() ? "chosen" : "not chosen");
        } else if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control)) {
            const auto* check = dynamic_cast<const CheckBox*>(&control);
            Add(name, check == nullptr ? "" : check->Value() == 1 ? "checked" : "clear");
            Add(name + (check == nullptr ? "" : " reads"), captioned->Caption());
        }
        Add(name + " tip", control.ToolTipText());
        Add(name + " shown", control.Visible() ? "yes" : "no");
    }

    // Of more than two numbered entries the first and the last.
    static std::string EntriesOf(const ComboBox& list) {
        const Items& entries = list.Entries();
        const bool numbered = entries.size() > 2 && entries[0].find('1') != std::string::npos;
        return entries.empty() ? "nothing"
               : numbered      ? entries.front() + " to " + entries.back()
                               : Joined(entries, ", ");
    }

    // A box that changes together with its label is listed by the name they share.
    Items Turned(const Snapshot& before) const {
        Items items;
        for (const bool on : {false, true}) {
            std::set<std::string> turned;
            for (std::size_t i = 0; i < enabled.size(); ++i) {
                if (enabled[i].second == on && before.enabled[i].second != on) {
                    turned.insert(enabled[i].first);
                }
            }
            std::string names;
            for (const auto& [name, now] : enabled) {
                const std::string rest = name.substr(3);
                const bool pair = turned.contains("lab" + rest) && turned.contains("txt" + rest);
                if (turned.contains(name) && !(pair && name.starts_with("lab"))) {
                    names += ' ' + (pair && name.starts_with("txt") ? rest : name);
                }
            }
            if (!names.empty()) items.push_back((on ? "on" : "off") + names);
        }
        return items;
    }

    // Neighbouring flows that get the same duration share an item.
    static Items OfPhase(const std::string& head, const PhaseRecord& before, const PhaseRecord& now,
                         const FlowRow& flowsBefore, const FlowRow& flows) {
        if (before == now && flowsBefore == flows) {
            return {};  // as for nearly every phase
        }
        Items items{head};
        if (before != now && now == PhaseRecord{}) {
            items.emplace_back("cleared");
        } else {
            for (const PhaseField& field : PhaseFields) {
                if (ValueOf(now, field) != ValueOf(before, field)) {
                    items.push_back(std::string(field.name) + ' ' +
                                    NumberText(ValueOf(now, field)));
                }
            }
        }
        const auto changed = [&](int j) { return flowsBefore[j] != flows[j]; };
        for (int last = 0; last <= MaxFlows; ++last) {
            if (const int first = last; changed(first)) {
                while (last < MaxFlows && changed(last + 1) && flows[last + 1] == flows[first]) {
                    ++last;
                }
                items.push_back("flow " + std::to_string(first) +
                                (last > first ? '-' + std::to_string(last) : "") + ' ' +
                                NumberText(flows[first]));
            }
        }
        return items;
    }

    std::vector<std::pair<std::string, std::string>> facts;  // name and value; of a file its bytes
    std::vector<std::pair<std::string, bool>> enabled;
    std::unique_ptr<EditorState> state;
    std::string folder;
};
