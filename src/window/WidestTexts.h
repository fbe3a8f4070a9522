// The texts that the form must have room for. Their size on the screen is in FormScale.
#pragma once

#include <QStringList>
#include <unordered_map>

struct RecordEdit;
class Control;

/// For each control of the catalogue, all texts that it can show or the widest of them: the
/// caption, the entries of a list, the ends of a range, the limits of a number. Paths are left out,
/// as they can have any length.
std::unordered_map<const Control*, QStringList> TextsToFit(const RecordEdit& form);
