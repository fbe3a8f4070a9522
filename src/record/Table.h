// The table of fixed size, with checked bounds, that holds the phases and flows of a record.
// What the elements mean is in PhaseRecord.
#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>

/// Elements 0 to Last, numbered as the record numbers them. Every access is checked: an index
/// outside 0 to Last throws std::out_of_range, and nothing is read or written.
template <class Element, int Last>
class Table {
public:
    Element& operator[](int index) { return elements[Checked(index)]; }
    const Element& operator[](int index) const { return elements[Checked(index)]; }

    /// Sets every element, element 0 too, to its zero value.
    void Clear() { elements.fill(Element{}); }

    friend bool operator==(const Table&, const Table&) = default;

private:
    static std::size_t Checked(int index) {
        if (index < 0 || index > Last) {
            throw std::out_of_range("Subscript out of range");
        }
        return static_cast<std::size_t>(index);
    }

    std::array<Element, static_cast<std::size_t>(Last) + 1> elements{};
};
