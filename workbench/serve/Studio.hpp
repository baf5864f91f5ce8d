/// A network that a person works on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Json.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/picture/Image.hpp"
#include "workbench/serve/PluginWatch.hpp"
#include "workbench/serve/World.hpp"
#include "workbench/serve/describe.hpp"

namespace workbench {

/// What is asked for is not there.
class NotThere : public CallError {
public:
    using CallError::CallError;
};

/// What is asked for does not go with the present state.
class Conflict : public CallError {
public:
    using CallError::CallError;
};

/// A network, the changes that a person makes of it, and all that there is to see.
///
/// The state is the script: each change is one of its lines, also where it is
/// carried out on the living network, and undo puts an earlier text in its place.
///
/// Knows nothing of whoever asks. Errors: `CallError` for a change that cannot be
/// made, with the reason in the host's own words; nothing has changed then.
/// Threads: one at a time.
class Studio {
public:
    /// What a person starts with.
    struct Setup {
        SessionOptions session = {};
        std::string text;    ///< of the network
        std::string file;    ///< where the network came from, for the command and the title
        bool watch = false;  ///< load copies of the plug-ins, and look for changes
    };

    /// Throws `PluginError`, and `WorkError` if the text is no network.
    explicit Studio(Setup setup);

    /// Looks whether plug-ins have changed, and loads them anew; to be called now and
    /// then. Everything of theirs is let go of, and the network is made anew of its
    /// text. Plug-ins that do not load are told of in the state, and those before them
    /// stay in use. Without `Setup::watch` nothing happens.
    void look();

    /// Pictures are drawn up to this size.
    static constexpr int MaxPixelsASide = 4096;

    /// Counts the changes, from 1.
    std::uint64_t revision() const noexcept { return revision_; }

    /// All that the page shows, as JSON.
    std::string const& state();
    /// Makes a change, given as JSON. Gives the revision after it.
    std::uint64_t edit(std::string const& text);

    /// What a viewer shows.
    std::shared_ptr<Image const> picture(std::string const& viewer);
    /// Where the colour of a pixel comes from, as JSON.
    std::string probe(std::string const& viewer, int x, int y);
    /// The present map of an object: as a part of a page, and the icon that the
    /// object drew at its last update, as a PNG file.
    std::string glass(std::string const& object);
    std::string icon(std::string const& name);
    /// All entries as JSON, and the ramp of a map with its defaults as a PNG file.
    std::string const& catalogue();
    std::string ramp(std::string const& key);
    /// The network as the text of a script, and its name.
    std::string text() const { return world_->network().save(); }
    std::string const& title() const noexcept { return title_; }
    /// The command that makes the present picture. Throws `Conflict` if no settings
    /// of the file's network make it.
    std::string command() const;

private:
    struct Step {
        std::string label;
        std::string drag;  ///< steps of one drag have the same; empty for all others
        std::string text;  ///< of the other side of the step
    };
    struct Drawn {
        std::uint64_t content;
        std::shared_ptr<Image const> image;
    };

    Network& network() { return world_->network(); }
    Network const& network() const { return world_->network(); }

    void carryOut(Json const& change);
    void set(Json const& change);
    void reset(Json const& change);
    void move(Json const& change);
    void create(Json const& change);
    void remove(Json const& change);
    void exchange(Json const& change);
    void connect(Json const& change);
    void disconnect(Json const& change);
    void travel(std::vector<Step>& from, std::vector<Step>& to, char const* what);

    void setLiving(std::string const& path, std::string const& text);
    void rewrite(std::function<void(Script&)> const& change);
    void replaceNetwork(std::string const& text);
    void note(Step step, bool pictureMayDiffer);
    void noteChange();
    void noteNews();
    Orlo::ColormapPtr mapOfObject(std::string const& name);
    Refresh const& refresh();
    Json pluginsOf() const;
    void startWorld();
    void reload();
    bool tryWorld(std::vector<std::filesystem::path> const& plugins, std::string const& text);

    Setup setup_;
    std::string title_;
    std::vector<std::filesystem::path> plugins_;  ///< as they were named
    std::unique_ptr<PluginWatch> watch_;          ///< its copies outlive the world
    std::unique_ptr<World> world_;
    std::string loaded_;  ///< when the plug-ins were
    std::string error_;   ///< why the present plug-ins' files are not those in use
    std::uint64_t revision_ = 1;
    std::uint64_t content_ = 1;  ///< counts the changes that pictures may depend on
    std::vector<Step> undo_;
    std::vector<Step> redo_;
    std::optional<std::string> state_;
    std::optional<std::string> catalogue_;
    std::optional<Refresh> refresh_;
    std::map<std::string, std::string> ramps_;
    std::map<std::string, Drawn> drawn_;
};

}  // namespace workbench
