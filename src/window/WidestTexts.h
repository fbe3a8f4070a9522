// The texts for which the form must have room. How large they are on the screen is in Scale.
#pragma once

#include <QStringList>
#include <unordered_map>

struct RecordEdit;
class Control;

/// For each control of the catalogue the texts that it shows at its start and later, or the widest
/// of them: all entries of a list, the ends of a range, the limits of a number. Paths, of any
/// length, are not among them.
std::unordered_map<const Control*, QStringList> TextsToFit(const RecordEdit& form);
