/// A choice among words.
#pragma once

#include <cstddef>
#include <string>

#include "host/pointers/StringList.hpp"
#include "host/pointers/StrongPtr.hpp"

namespace Orlo {

/// A list of words of which one may be selected.
class QUARTZ_API VEnumSelection : public Nucleo::StringList {
public:
    /// An empty list, nothing selected.
    VEnumSelection();
    ~VEnumSelection() override;

    /// Index of the selected word, or -1. An index beyond the list selects none.
    int selection = -1;
};

/// A counted pointer to a selection; copies share it.
///
/// Threads: a value that others may read is never changed; a new selection is
/// made instead. Errors: an empty `Enum` equals no word and selects none.
class QUARTZ_API Enum : public Nucleo::StrongPtr<VEnumSelection, Nucleo::StringList> {
public:
    using Selection = Nucleo::StrongPtr<VEnumSelection, Nucleo::StringList>;

    /// Without any words.
    Enum();
    Enum(Selection const& words);

    /// Appends a word. The first word of a list becomes the selected one.
    Enum& addCase(char const* word);
    Enum& addCase(std::string const& word);

    /// Whether a word is selected.
    bool hasSelection() const;
    /// Whether the given word is the selected one.
    bool Equal(std::string const& word) const;
    /// Whether both select the same word, or both none.
    bool operator==(Enum const& other) const;

    /// The selected word, or the empty text.
    std::string selected() const;

    /// The same words with another one selected. An unknown word gives an empty
    /// `Enum`.
    Enum select(std::string const& word) const;
};

}  // namespace Orlo
