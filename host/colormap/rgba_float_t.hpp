/// Colours as values.
#pragma once

#include <cstddef>

namespace Tessar {

/// `N` values of type `T` in a row.
template <class T, std::size_t N>
struct FixedArray {
    T values[N];

    constexpr T& operator[](std::size_t i) noexcept { return values[i]; }
    constexpr T const& operator[](std::size_t i) const noexcept { return values[i]; }
    static constexpr std::size_t size() noexcept { return N; }

    friend constexpr bool operator==(FixedArray const&, FixedArray const&) = default;
};

template <class T, std::size_t N>
struct Vector : FixedArray<T, N> {};

template <std::size_t Rows, std::size_t Columns, class T>
struct Matrix : Vector<T, Rows * Columns> {};

template <std::size_t N, class T>
struct Column : Matrix<N, 1, T> {};

/// The domain of colours without, and with, an alpha.
struct RGB {};
struct RGBA : RGB {};

/// Operations of a domain's vectors over the array that holds them.
template <class Domain, class Array>
struct DomainFunctions {};

/// The operations of colours with alpha: names for the four components.
template <class Array>
struct DomainFunctions<RGBA, Array> {
    constexpr float red() const noexcept { return component(0); }
    constexpr float green() const noexcept { return component(1); }
    constexpr float blue() const noexcept { return component(2); }
    constexpr float alpha() const noexcept { return component(3); }

private:
    constexpr float component(std::size_t i) const noexcept;
};

/// A vector of a domain: the array, the domain as a tag, its operations.
template <class Array, class Domain, class T>
struct DomainVector : Array, DomainFunctions<Domain, Array> {
    constexpr DomainVector() noexcept : Array{} {}

    template <class... Components>
    requires(sizeof...(Components) ==
             Array::size()) constexpr DomainVector(Components... components) noexcept
        : Array{{{{static_cast<T>(components)...}}}} {}

    friend constexpr bool operator==(DomainVector const& a, DomainVector const& b) noexcept {
        return static_cast<Array const&>(a) == static_cast<Array const&>(b);
    }
};

template <class Array>
constexpr float DomainFunctions<RGBA, Array>::component(std::size_t i) const noexcept {
    return static_cast<DomainVector<Array, RGBA, float> const&>(*this)[i];
}

template <class Domain, class T>
struct Coordinates;

template <class T>
struct Coordinates<RGBA, T> {
    using vector = DomainVector<Column<4, T>, RGBA, T>;
};

/// A colour: red, green, blue, alpha, each a 32-bit float, nominally 0 to 1.
/// Components outside that range are legal and mean what they say.
using rgba_float_t = Coordinates<RGBA, float>::vector;

static_assert(sizeof(rgba_float_t) == 4 * sizeof(float));

}  // namespace Tessar
