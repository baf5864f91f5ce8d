/// `telmbench run`: a saved network executed, and its picture.
#include <cstdio>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/network/Network.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/session/Session.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench run HypsometricSlice.telm -o slice.png
      What the viewer Viewer1 of the network shows.
  telmbench run HypsometricSlice.telm --set FieldSlice.orientation=Z -o z.png
      The same with a parameter changed.
  telmbench run HypsometricSlice.telm --set 'Camera.zoom{Viewer1}=30' -o near.png
      With a value that holds in one viewer, which goes before the plain one.
  telmbench run HypsometricSlice.telm --set GlobalTime.value='0.5[0,1]@0.1' --save later.telm
      Writes the network as it then stands; all other lines stay as they are.

A line that cannot be carried out is reported; the rest is carried out all the
same, and the exit status is 1.)";

/// More complaints than these say nothing new.
constexpr std::size_t MaxComplaints = 50;

struct Arguments {
    std::string network;
    std::vector<std::string> settings;
    std::string viewer = "Viewer1";
    std::string picture;
    std::string saved;
};

void checkArguments(Arguments const& given) {
    if (given.picture.empty() && given.saved.empty())
        throw CallError("nothing to do; -o FILE draws the picture, --save FILE writes the network");
    if (given.picture == given.saved)
        throw CallError("the picture and the network cannot both be written to " +
                        inQuotes(given.picture));
}

Script readScript(std::string const& file) {
    std::string const text = readFile(pathOf(file));
    try {
        return Script::read(text);
    } catch (WorkError const& error) {
        throw WorkError("the network " + inQuotes(file) + " " + error.what());
    }
}

void applySetting(Network& network, std::string const& setting) {
    std::size_t const sign = setting.find('=');
    if (sign == std::string::npos)
        throw CallError("the setting " + inQuotes(setting) +
                        " is not of the form OBJECT.NAME=TEXT");
    network.set(setting.substr(0, sign), setting.substr(sign + 1));
}

void report(std::string const& file, std::vector<Complaint> const& complaints) {
    for (std::size_t i = 0; i < complaints.size() && i < MaxComplaints; ++i)
        std::fprintf(stderr, "telmbench: %s\n", reportOf(pathOf(file), complaints[i]).c_str());
    if (complaints.size() > MaxComplaints)
        std::fprintf(stderr, "telmbench: %s: and %zu more like these\n", file.c_str(),
                     complaints.size() - MaxComplaints);
}

Orlo::ObjectPtr findViewer(Network const& network, std::string const& name) {
    std::vector<std::string> const viewers = network.viewers();
    Orlo::ObjectPtr const object = network.findObject(name);
    if (object && isViewer(*object))
        return object;
    throw CallError("there is no viewer " + inQuotes(name) +
                    suggestion(name, viewers, "; the network has none of that name"));
}

Image draw(Network& network, std::string const& viewer) {
    Orlo::ObjectPtr const object = findViewer(network, viewer);
    Progress progress("drawing " + viewer);
    return render(*object, network.pool(viewer), [&](double part) { progress.show(part); });
}

void run(SessionOptions const& common, Arguments const& given) {
    checkArguments(given);
    Script const script = readScript(given.network);
    Session const session(common);
    NodeCreators const kinds;
    Network network;
    network.execute(script);
    report(given.network, network.complaints());
    for (std::string const& setting : given.settings)
        applySetting(network, setting);
    if (!given.picture.empty())
        writePng(pathOf(given.picture), draw(network, given.viewer));
    if (!given.saved.empty())
        writeFile(pathOf(given.saved), network.save());
    if (anyFailure(network.complaints()))
        throw WorkError("parts of " + inQuotes(given.network) +
                        " could not be carried out; all the rest was");
}

}  // namespace

void addRun(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command =
        program.add_subcommand("run", "Carry a saved network out, draw it, save it");
    auto const given = std::make_shared<Arguments>();
    command->add_option("NETWORK", given->network, "The saved network")->required();
    command
        ->add_option("--set", given->settings,
                     "Set a value, as OBJECT.NAME=TEXT or OBJECT.NAME{CONTEXT}=TEXT")
        ->allow_extra_args(false);
    command->add_option("--viewer", given->viewer, "The viewer to draw")
        ->type_name("NAME")
        ->capture_default_str();
    command->add_option("-o", given->picture, "The picture to write")->type_name("FILE");
    command->add_option("--save", given->saved, "Write the network as it then stands")
        ->type_name("FILE");
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
