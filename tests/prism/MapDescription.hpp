/// What is to be true of one catalogue entry, as a table.
///
/// Each entry has one description, in `tests/prism/tinctures/`, in the file that
/// bears its source's name. The tests beside this header walk over the
/// catalogue, hold every entry against its description, and fail for an entry
/// that has none or whose rows are incomplete. A new map therefore needs a
/// description and nothing else.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/colormap/rgba_float_t.hpp"
#include "tests/support/objects.hpp"

namespace tests {

/// What the creator passes on. An empty text means that the key is not set.
struct CreatorRow {
    std::string category = "Colormaps";  ///< empty where the name holds the folder
    int order = 0;
    std::vector<std::string> preferences = {};  ///< in alphabetical order; none: no set at all
    std::string todo = "todo";
    std::string description = {};
    std::string tags = {};
    std::string source = {};
    std::string date = "Mar 22 2024";
};

/// A parameter as a fresh object has it.
struct ParameterRow {
    std::string name;
    std::string type;  ///< as `Nucleo::Typename` gives it
    std::string defaultText;
    int expertLevel = 0;
    std::vector<Setting> properties = {};  ///< such as "min" and its text
};

enum class Makes {
    WhenNone,              ///< a map is made when none stands in the output
    WhenParameterChanged,  ///< also when its parameter has changed
    Always,                ///< every update makes one
};

enum class Age {
    Touched,            ///< the update makes the map the youngest of all
    Kept,               ///< the map keeps the age of its making
    Raised,             ///< the map takes the age of the slots if that is later
    RaisedThenTouched,  ///< the former before it is offered, the touch behind
};

/// What happens to a map of another class that stands in the output.
enum class Foreign {
    OfferedBack,      ///< left alone and offered back
    DrawnAndTouched,  ///< drawn, touched and offered back
    Raised,           ///< its age is raised, nothing else
    Replaced,
};

/// How the update departs from the common path.
struct CycleRow {
    Makes makes = Makes::WhenNone;
    bool publishesEarly = false;  ///< a new map is offered before the parameters are read
    bool dropsCache = true;
    bool drawsIcon = true;
    Age age = Age::Touched;
    bool publishesAtEnd = true;
    Foreign foreign = Foreign::OfferedBack;
    bool ownMustUpdate = false;
    /// The parameters as an update reads them, where that is not their order.
    std::vector<std::string> reads = {};
    /// A setting that changes the map, for what is to be seen of a change.
    std::vector<Setting> change = {};
};

/// The texts of `help`; empty where it is inherited. An empty long text means
/// the short one, so does an empty link.
struct HelpRow {
    std::string shortText;
    std::string link = {};
    std::string longText = {};
};

/// One lookup: the rule that it shows, the parameters that are set first, the
/// scalar, and the colour that must come out, exactly.
struct LookupRow {
    std::string rule;
    std::vector<Setting> settings;
    double scalar;
    Tessar::rgba_float_t colour;
};

struct MapDescription {
    std::string name;
    CreatorRow creator;
    std::vector<ParameterRow> parameters;
    int size;  ///< `getSize` after the first update with default parameters
    CycleRow cycle;
    HelpRow help;
    std::vector<LookupRow> lookups;

    /// The catalogue key.
    std::string key() const {
        return creator.category.empty() ? name : creator.category + "/" + name;
    }
};

/// All descriptions, in no particular order.
std::vector<MapDescription> const& describedMaps();

/// Enters a description: `DescribedMap const glow{{.name = "Glow", ...}};`
struct DescribedMap {
    explicit DescribedMap(MapDescription description);
};

/// The bands of a table's rows, as lookups: row k is reached by the scalar k/N,
/// and by the scalars just inside both of its edges.
std::vector<LookupRow> bandsOf(std::vector<Tessar::rgba_float_t> const& table);

/// The edges of a table's rows, as lookups: the two neighbouring numbers between
/// which the place in the table, rising or falling with the scalar and truncated,
/// gets from one row to the next.
std::vector<LookupRow> edgesOf(std::vector<Tessar::rgba_float_t> const& table,
                               std::vector<Setting> const& settings,
                               std::function<double(double)> const& place);

/// The bands and the edges of a map under the table rule.
std::vector<LookupRow> rowsOf(std::vector<Tessar::rgba_float_t> const& table);

/// One list behind another.
std::vector<LookupRow> operator+(std::vector<LookupRow> first,
                                 std::vector<LookupRow> const& second);

/// A test's name made of a text: letters and digits stay.
std::string testName(std::string const& text);

std::ostream& operator<<(std::ostream& out, MapDescription const& map);

}  // namespace tests
