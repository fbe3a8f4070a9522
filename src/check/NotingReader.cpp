#include "check/NotingReader.h"

std::string_view NotingReader::Text() {
    const std::string_view text = in.Text();
    Settle();
    if (place.phase > 0 && place.item == ItemPlace::EmptyLine) {
        endOfBlock(place.phase - 1);
    }
    Watch();
    if (place != ItemPlace{0, ItemPlace::Reference}) {
        notes.CompareLabel(place, text);
    }
    return text;
}

void NotingReader::SkipNumber() {
    in.SkipNumber();
    Settle();
    Watch();
    notes.ComparePhaseNumber(place, in.Item());
}

void NotingReader::EndBlock(int block) {
    Settle();
    endOfBlock(block);
}

void NotingReader::Look(double value, bool isWhole) {
    Settle();
    Watch();
    notes.CompareNumber(place, in.Item(), value, isWhole);
}

// What came after the closing quote is known once the next item has been read, whenever that is.
void NotingReader::Settle() {
    if (std::exchange(afterQuote, false) && in.Dropped()) {
        notes.NoteDropped(quoted);
    }
}

void NotingReader::Watch() {
    notes.SetLine(place.item, in.Line());
    afterQuote = in.Quoted();
    quoted = place;
}
