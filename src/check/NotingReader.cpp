#include "check/NotingReader.h"

std::string_view NotingReader::Text() {
    const std::string_view text = in.Text();
    NoteDropped();
    if (place.phase > 0 && place.item == ItemPlace::EmptyLine) {
        endOfBlock(place.phase - 1);
    }
    Remember();
    if (place != ItemPlace{0, ItemPlace::Reference}) {
        notes.CompareLabel(place, text);
    }
    return text;
}

void NotingReader::SkipNumber() {
    in.SkipNumber();
    NoteDropped();
    Remember();
    notes.ComparePhaseNumber(place, in.Item());
}

void NotingReader::EndBlock(int block) {
    NoteDropped();
    endOfBlock(block);
}

void NotingReader::CompareNumber(double value, bool isWhole) {
    NoteDropped();
    Remember();
    notes.CompareNumber(place, in.Item(), value, isWhole);
}

// Whether text was dropped after a closing quote is known only once the next item has been read.
void NotingReader::NoteDropped() {
    if (std::exchange(afterQuote, false) && in.Dropped()) {
        notes.NoteDropped(quoted);
    }
}

void NotingReader::Remember() {
    notes.SetLine(place.item, in.Line());
    afterQuote = in.Quoted();
    quoted = place;
}
