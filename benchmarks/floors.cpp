#include "benchmarks/floors.hpp"

#include <utility>

namespace benchmarks {

namespace {

class TableLookup : public Lookup {
public:
    explicit TableLookup(Colors table) : table_(std::move(table)) {}
    Tessar::rgba_float_t getColor(double value) const override { return row(table_, value); }

private:
    Colors table_;
};

}  // namespace

std::unique_ptr<Lookup> makeTableLookup(Colors table) {
    return std::make_unique<TableLookup>(std::move(table));
}

namespace {

class EmptyLookup : public Lookup {
public:
    Tessar::rgba_float_t getColor(double) const override { return {}; }
};

}  // namespace

std::unique_ptr<Lookup> makeEmptyLookup() {
    return std::make_unique<EmptyLookup>();
}

}  // namespace benchmarks
