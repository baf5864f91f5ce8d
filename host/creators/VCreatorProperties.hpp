/// The properties of a catalogue entry.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

#include "host/pointers/import.hpp"

namespace Orlo {

/// One text for each key that is set; the text may be empty.
class LATTICE_API VCreatorPropertyElements {
public:
    /// The keys, by their index in the array.
    enum Key : unsigned {
        Category = 0,
        Name = 1,
        Description = 3,
        Todo = 6,
        Tags = 10,
        Source = 11,
        Date = 12,
        KeyCount = 13,
        AllKeys = 4294967295u,
    };

    /// The text of a key, empty if it is not set.
    std::string const& get(Key key) const { return elements_.at(key); }
    bool isSet(Key key) const { return set_.test(key); }

protected:
    [[gnu::noinline]] void set(std::size_t key, std::string_view text) {
        elements_.at(key) = text;
        set_.set(key);
    }

private:
    std::array<std::string, KeyCount> elements_;
    std::bitset<KeyCount> set_;
};

/// A property list that others can be folded into.
class LATTICE_API VCreatorPropertyBase : public VCreatorPropertyElements {
public:
    VCreatorPropertyBase();
    VCreatorPropertyBase(VCreatorPropertyBase const&);
    VCreatorPropertyBase& operator=(VCreatorPropertyBase const&);
    ~VCreatorPropertyBase();

    /// Takes over all keys that the argument has set.
    VCreatorPropertyBase& assign(VCreatorPropertyBase const& other);

    /// The full key of the entry: category, separator, name; the name alone if
    /// there is no category.
    std::string keyname(char const* separator) const;
};

/// A list with the one key `K` set.
template <unsigned K>
class VCreatorProperty : public VCreatorPropertyBase {
public:
    explicit VCreatorProperty(std::string_view text) { set(K, text); }
};

/// A list with no key of its own.
template <>
class VCreatorProperty<VCreatorPropertyElements::AllKeys> : public VCreatorPropertyBase {};

/// The whole list of an entry.
class VCreatorProperties : public VCreatorProperty<VCreatorPropertyElements::AllKeys> {
public:
    VCreatorProperties() = default;

    /// Folds single properties into one list, in their order.
    template <unsigned... Keys>
    explicit VCreatorProperties(VCreatorProperty<Keys> const&... properties) {
        (static_cast<void>(assign(properties)), ...);
    }
};

using CategoryIs = VCreatorProperty<VCreatorPropertyElements::Category>;
using NameIs = VCreatorProperty<VCreatorPropertyElements::Name>;
using DescriptionIs = VCreatorProperty<VCreatorPropertyElements::Description>;
using TodoIs = VCreatorProperty<VCreatorPropertyElements::Todo>;
using TagsAre = VCreatorProperty<VCreatorPropertyElements::Tags>;
using SourceIs = VCreatorProperty<VCreatorPropertyElements::Source>;
using DateIs = VCreatorProperty<VCreatorPropertyElements::Date>;

}  // namespace Orlo
