/// The published object: a scalar goes in, a colour comes out.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "host/colormap/rgba_float_t.hpp"
#include "host/pointers/Ageable.hpp"
#include "host/pointers/Chunk.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// A colour with integer components: 3 or 4 of 8 or 16 bits.
using rgb8_t = std::array<std::uint8_t, 3>;
using rgba8_t = std::array<std::uint8_t, 4>;
using rgb16_t = std::array<std::uint16_t, 3>;
using rgba16_t = std::array<std::uint16_t, 4>;

/// Turns scalars, nominally 0 to 1, into colours.
///
/// Owner: counted; made on the heap by the object that publishes it and gone
/// with the last `StrongPtr`, which may be a consumer's, long after that object.
/// Threads: the lookups take no lock, allocate nothing and only read. The object
/// that publishes a map may rewrite its numbers in place, so that a lookup can
/// see old and new ones mixed for the length of one update; the age says when a
/// map has changed. Errors: none; every scalar has an answer, and components
/// outside 0 to 1 are legal.
class VELLUM_API Colormap : public Nucleo::ReferenceBase<Colormap>, public Nucleo::Ageable {
public:
    Colormap();
    Colormap(Colormap const&) = delete;
    Colormap& operator=(Colormap const&) = delete;
    ~Colormap() override;

    /// Lower and upper end of the lookup domain. [reader]
    virtual int getMin() const = 0;
    virtual int getMax() const = 0;
    /// How many distinct entries the map nominally has. [reader]
    virtual int getSize() const = 0;

    /// The colour of entry `i`, which is the scalar
    /// `getMin() + (getMax() - getMin()) * i / getSize()`: for a table map, row
    /// `i`. Components are clamped to 0..1 (NaN counts as 0), scaled to the
    /// integer's range and rounded to nearest. [reader]
    virtual rgb8_t getColorRGB(int i) const;
    virtual rgba8_t getColorRGBA(int i) const;
    virtual rgb16_t getColorRGB16(int i) const;
    virtual rgba16_t getColorRGBA16(int i) const;
    /// The same for a scalar. [reader]
    virtual rgba16_t getColor16(double value) const;

    /// The colour of a scalar: the lookup proper. [reader]
    virtual Tessar::rgba_float_t getColor(double value) const = 0;

    /// A text about the whole map. [reader]
    virtual std::string getLabel() const = 0;
    /// A number about the whole map. [reader]
    virtual std::intptr_t getExtra() const = 0;

    /// Room for what a consumer derives from this map. The map's owner empties
    /// it whenever the colours may have changed; nobody else does.
    Nucleo::StrongPtr<Nucleo::Chunk<double>, Nucleo::ChunkBase> cachedChunk;

    /// The time of the last update, from time-dependent objects; 0 elsewhere.
    double time = 0.0;
};

using Tessar::rgba_float_t;

using ColormapPtr = Nucleo::StrongPtr<Colormap, Colormap>;

}  // namespace Orlo
