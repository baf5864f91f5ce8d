#include "workbench/export/modelOf.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "runtime/quartz/text.hpp"
#include "workbench/common/clamp.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/export/doubles.hpp"
#include "workbench/picture/domain.hpp"

namespace workbench {

using Orlo::rgba_float_t;

namespace {

/// Colours closer than this are one colour: a screen of 16 bits shows no more.
constexpr double LeastStep = 1.0 / 65536;

using Lookup = std::function<rgba_float_t(double)>;

/// Finds the first doubles behind the edges of a map.
class EdgeFinder {
public:
    EdgeFinder(Lookup const& look, double error) : look_(look), large_(error / 2) {}

    /// Looks between neighbours of a row of evenly spaced values.
    std::vector<double> find(Interval const& range, int cells) {
        edges_.clear();
        double a = range.min;
        rgba_float_t atA = look_(a);
        for (int i = 1; i <= cells; ++i) {
            double const b = i == cells ? range.max : range.at(i, cells);
            rgba_float_t const atB = look_(b);
            if (a < b)
                search(a, atA, b, atB);
            a = b;
            atA = atB;
        }
        return edges_;
    }

private:
    void search(double a, rgba_float_t const& atA, double b, rgba_float_t const& atB) {
        bool const isLarge = shownDifference(atA, atB) > large_;
        if (nextDouble(a) >= b) {
            if (isLarge)
                note(b);
            return;
        }
        double const middle = middleDouble(a, b);
        rgba_float_t const atMiddle = look_(middle);
        if (isLarge || shownDifference(atA, atMiddle) > large_) {
            search(a, atA, middle, atMiddle);
            search(middle, atMiddle, b, atB);
        } else if (shownDifference(atA, atB) > LeastStep) {
            searchSmall(a, atA, b, atB);
        }
    }

    /// An edge that is too small to tell from a slope by its height is one if
    /// there are two colours and nothing between them.
    void searchSmall(double a, rgba_float_t const& atA, double b, rgba_float_t const& atB) {
        while (nextDouble(a) < b) {
            double const middle = middleDouble(a, b);
            rgba_float_t const color = look_(middle);
            if (color == atA)
                a = middle;
            else if (color == atB)
                b = middle;
            else
                return;
        }
        note(b);
    }

    void note(double edge) {
        edges_.push_back(edge);
        if (edges_.size() >= MaxPieces)
            throw WorkError("the map has more than " + std::to_string(MaxPieces) +
                            " edges, too many to be written; set its parameters so that it "
                            "changes less often");
    }

    Lookup const& look_;
    double large_;
    std::vector<double> edges_;
};

/// Divides what lies between two edges into lines.
class LineFitter {
public:
    LineFitter(Lookup const& look, double error, int tries)
        : look_(look), error_(0.85 * error), tries_(tries) {}

    /// The doubles from `from` to `last`; the next edge is at `to`.
    std::vector<Piece> fit(double from, double last, double to) {
        pieces_.clear();
        rgba_float_t const start = look_(from);
        if (isFlat(from, start, last))
            return {{from, to, start, start}};
        divide(from, last);
        merge();
        pieces_.back().to = to;
        return std::move(pieces_);
    }

private:
    bool isFlat(double from, rgba_float_t const& color, double last) const {
        return everywhere(from, last, [&](double value) {
            return shownDifference(look_(value), color) <= LeastStep;
        });
    }

    bool fits(double from, rgba_float_t const& start, double last, rgba_float_t const& end) const {
        return everywhere(from, last, [&](double value) {
            double const part = (value - from) / (last - from);
            return shownDifference(look_(value), between(start, end, part)) <= error_;
        });
    }

    /// Whether something holds at all scalars tried between two: evenly spaced
    /// ones, and ones that crowd at both ends.
    template <class Holds>
    bool everywhere(double from, double last, Holds const& holds) const {
        constexpr int Crowded = 60;
        double const width = last - from;
        for (int i = 1; i < tries_; ++i)
            if (!holds(from + width * i / tries_))
                return false;
        double part = width / tries_;
        for (int i = 0; i < Crowded; ++i, part /= 2)
            if (!holds(from + part) || !holds(last - part))
                return false;
        return holds(last);
    }

    void divide(double from, double last) {
        rgba_float_t const start = look_(from), end = look_(last);
        double const middle = from + (last - from) / 2;
        bool const isShort = middle <= from || middle >= last;
        if (isShort || fits(from, start, last, end)) {
            pieces_.push_back({from, last, start, end, !pieces_.empty()});
            if (pieces_.size() > 4 * MaxPieces)
                throw WorkError(
                    "the map bends too often to be written in lines; set its "
                    "parameters so that it changes less, or allow a larger --error");
            return;
        }
        divide(from, middle);
        divide(middle, last);
    }

    /// Takes neighbours together where one line serves both.
    void merge() {
        std::vector<Piece> merged;
        for (Piece const& piece : pieces_) {
            if (!merged.empty() &&
                fits(merged.back().from, merged.back().start, piece.to, piece.end)) {
                merged.back().to = piece.to;
                merged.back().end = piece.end;
            } else {
                merged.push_back(piece);
            }
        }
        pieces_ = std::move(merged);
    }

    Lookup const& look_;
    double error_;
    int tries_;  ///< evenly spaced scalars for each line
    std::vector<Piece> pieces_;
};

std::vector<Piece> piecesOf(Lookup const& look, Interval const& range, double error, int cells,
                            int tries) {
    std::vector<double> edges = EdgeFinder(look, error).find(range, cells);
    edges.insert(edges.begin(), range.min);
    LineFitter fitter(look, error, tries);
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        bool const isLast = i + 1 == edges.size();
        double const to = isLast ? range.max : edges[i + 1];
        std::vector<Piece> const more = fitter.fit(edges[i], isLast ? to : previousDouble(to), to);
        pieces.insert(pieces.end(), more.begin(), more.end());
    }
    return pieces;
}

/// Whether the pieces answer as the map does, at values that are as evenly spread
/// as can be and stand in no row.
bool holds(Model const& model, Lookup const& look, double error) {
    constexpr int Tries = 1 << 15;
    constexpr double GoldenPart = 0.6180339887498949;
    double place = 0.5;
    for (int i = 0; i < Tries; ++i) {
        place += GoldenPart;
        place -= std::floor(place);
        double const value = model.range.at(place);
        if (shownDifference(look(value), colorAt(model, value)) > error)
            return false;
    }
    return true;
}

/// Looks ever closer until no edge and no bend of the map is passed over.
void takeToPieces(Model& model, Lookup const& look, double error, int entries) {
    constexpr int MinCells = 4096, MaxCells = 1 << 20;
    int cells = std::max(MinCells, 4 * std::clamp(entries, 1, MaxCells / 4));
    for (int tries = 64; tries <= 16384; tries *= 4) {
        model.pieces = piecesOf(look, model.range, error, cells, tries);
        if (model.pieces.size() > MaxPieces)
            throw WorkError("the map takes more than " + std::to_string(MaxPieces) +
                            " pieces, too many to be written; set its parameters so that it "
                            "changes less, or allow a larger --error");
        model.error = model.isClasses() ? 0.0 : error;
        if (holds(model, look, std::max(model.error, LeastStep)))
            return;
        cells = std::min(8 * cells, MaxCells);
    }
    throw WorkError(
        "the map changes too often to be taken to pieces; set its parameters so that "
        "it changes less");
}

/// The value that a map looks up for one of the range.
class Scale {
public:
    Scale(Interval const& range, Interval const& domain) : range_(range), domain_(domain) {}

    /// Halves of any two finite numbers have a finite difference.
    double operator()(double value) const {
        if (range_ == domain_)
            return value;
        return domain_.at((value * 0.5 - range_.min * 0.5) / (range_.max * 0.5 - range_.min * 0.5));
    }

private:
    Interval range_, domain_;
};

/// The colour to be written for one of the map.
rgba_float_t written(rgba_float_t const& color, Sampling const& sampling) {
    rgba_float_t result = shown(color);
    for (std::size_t i = 0; sampling.beyond && i < color.size(); ++i)
        if (std::isfinite(color[i]))
            result[i] = color[i];
    if (!sampling.alpha)
        result[3] = 1.0F;
    return result;
}

/// As few levels as keep the error, as even steps from 0 to 1.
rgba_float_t inLevels(rgba_float_t color, double error) {
    double const levels = std::ceil(0.5 / error - 1e-9);
    for (std::size_t i = 0; i < color.size(); ++i)
        color[i] = static_cast<float>(std::round(color[i] * levels) / levels);
    return color;
}

/// A wider range has no thousandfold.
constexpr double MaxWidth = 1e300;

/// Values outside the range, as parts of it. Tables leave theirs where a number
/// fits no integer, which is too far out to be looked at.
constexpr double Outside[] = {1e-15, 1e-9, 1e-6, 1e-3, 0.01, 0.03,  0.1,   0.26,
                              0.51,  1.0,  2.0,  5.0,  17.0, 100.0, 1000.0};

/// What the map does outside its range.
void lookOutside(Model& model, Lookup const& look, double error) {
    double const width = model.range.max - model.range.min;
    model.below = look(model.range.min - 1e-6 * width);
    model.above = look(model.range.max + 1e-6 * width);
    model.missing = look(std::nan(""));
    auto const differs = [&](double value, rgba_float_t const& color) {
        return std::isfinite(value) && shownDifference(look(value), color) > error;
    };
    model.changesBelow = std::ranges::any_of(
        Outside, [&](double part) { return differs(model.range.min - part * width, model.below); });
    model.changesAbove = std::ranges::any_of(
        Outside, [&](double part) { return differs(model.range.max + part * width, model.above); });
}

/// What the map's components do within its range.
void lookInside(Model& model, Orlo::Colormap const& map, Scale const& scale) {
    constexpr int Cells = 4096;
    float const first = shown(map.getColor(scale(model.range.min)))[3];
    for (int i = 0; i <= Cells; ++i) {
        rgba_float_t const color = map.getColor(scale(model.range.at(i, Cells)));
        rgba_float_t const visible = shown(color);
        for (std::size_t k = 0; k < 3; ++k)
            model.goesBeyond = model.goesBeyond || color[k] != visible[k];
        bool const isPlain = visible[3] == first && (first == 0.0F || first == 1.0F);
        model.alphaTells = model.alphaTells || !isPlain;
        model.isOpaque = model.isOpaque && visible[3] == 1.0F;
    }
}

}  // namespace

rgba_float_t shown(rgba_float_t const& color) noexcept {
    rgba_float_t result;
    for (std::size_t i = 0; i < color.size(); ++i)
        result[i] = static_cast<float>(clampToUnit(color[i]));
    return result;
}

double shownDifference(rgba_float_t const& a, rgba_float_t const& b) noexcept {
    double greatest = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        greatest = std::max(greatest, std::abs(clampToUnit(a[i]) - clampToUnit(b[i])));
    return greatest;
}

Model modelOf(Orlo::Colormap const& map, Sampling const& sampling) {
    Interval const domain = domainOf(map);
    if (!(domain.min < domain.max))
        throw WorkError("the map's lower end is not below its upper end");
    Interval const range = sampling.range.value_or(domain);
    if (!(range.max - range.min <= MaxWidth))
        throw CallError("the range from " + Orlo::numberText(range.min) + " to " +
                        Orlo::numberText(range.max) + " is too wide; it may be 1e300");
    Model model{.range = range, .hasAlpha = sampling.alpha};
    Scale const scale(model.range, domain);
    Lookup const look = [&](double value) { return written(map.getColor(scale(value)), sampling); };
    lookInside(model, map, scale);
    takeToPieces(model, look, sampling.error, map.getSize());
    if (sampling.steps && !model.isClasses()) {
        Lookup const level = [&](double value) {
            return inLevels(shown(look(value)), sampling.error);
        };
        takeToPieces(model, level, sampling.error, map.getSize());
        model.error = sampling.error;
    }
    lookOutside(model, look, sampling.error);
    return model;
}

}  // namespace workbench
