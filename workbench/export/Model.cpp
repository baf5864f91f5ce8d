#include "workbench/export/Model.hpp"

#include <algorithm>

#include "workbench/export/doubles.hpp"

namespace workbench {

using Orlo::rgba_float_t;

bool Model::isClasses() const noexcept {
    return std::ranges::all_of(pieces, &Piece::isFlat);
}

bool Model::hasEdges() const noexcept {
    return std::any_of(pieces.begin() + 1, pieces.end(),
                       [](Piece const& piece) { return !piece.joined; });
}

double Model::lastOf(Piece const& piece) const noexcept {
    return &piece == &pieces.back() ? piece.to : previousDouble(piece.to);
}

double Model::part(double value) const noexcept {
    return value == range.max ? 1.0 : (value - range.min) / (range.max - range.min);
}

std::size_t dropSlivers(Model& model, double minPart) {
    std::vector<Piece> kept;
    bool follows = true;  // the piece before has been kept
    for (Piece const& piece : model.pieces) {
        bool const isKept = model.part(piece.to) - model.part(piece.from) >= minPart;
        if (isKept) {
            kept.push_back(piece);
            kept.back().joined = piece.joined && follows;
        } else if (!kept.empty()) {
            kept.back().to = piece.to;
        }
        follows = isKept;
    }
    kept.front().from = model.range.min;
    std::size_t const gone = model.pieces.size() - kept.size();
    model.pieces = std::move(kept);
    return gone;
}

std::vector<Stop> stopsOf(Model const& model) {
    std::vector<Stop> stops;
    for (std::size_t i = 0; i < model.pieces.size(); ++i) {
        Piece const& piece = model.pieces[i];
        if (!piece.joined)
            stops.push_back({piece.from, piece.start});
        bool const goesOn = i + 1 < model.pieces.size() && model.pieces[i + 1].joined;
        double const last = goesOn ? piece.to : model.lastOf(piece);
        if (last > stops.back().value)  // a piece may be a single double
            stops.push_back({last, piece.end});
    }
    return stops;
}

std::vector<Stop> formStops(Model const& model) {
    if (!model.isClasses())
        return stopsOf(model);
    std::vector<Stop> stops;
    for (Piece const& piece : model.pieces)
        stops.push_back({piece.from, piece.start});
    return stops;
}

rgba_float_t between(rgba_float_t const& a, rgba_float_t const& b, double part) {
    rgba_float_t color;
    for (std::size_t i = 0; i < color.size(); ++i)
        color[i] = static_cast<float>(double{a[i]} * (1.0 - part) + double{b[i]} * part);
    return color;
}

rgba_float_t colorAt(Model const& model, double value) {
    if (!(value >= model.range.min))
        return value < model.range.min ? model.below : model.missing;
    if (value > model.range.max)
        return model.above;
    auto const next = std::ranges::upper_bound(model.pieces, value, {}, &Piece::from);
    Piece const& piece = *(next - 1);
    double const width = piece.to - piece.from;
    return piece.isFlat() || width == 0.0
               ? piece.start
               : between(piece.start, piece.end, (value - piece.from) / width);
}

}  // namespace workbench
