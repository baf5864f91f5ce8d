/// `telmbench run`: a saved network executed, and its picture.
#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/report.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/network/Network.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/nodes/Viewer.hpp"
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
    std::filesystem::path network;
    std::vector<std::string> settings;
    std::string viewer = "Viewer1";
    std::filesystem::path picture;
    std::filesystem::path saved;
};

void checkArguments(Arguments const& given, std::vector<std::filesystem::path> const& plugins) {
    if (given.picture.empty() && given.saved.empty())
        throw CallError("nothing to do; -o FILE draws the picture, --save FILE writes the network");
    if (given.picture == given.saved || isSameFile(given.picture, given.saved))
        throw CallError("the picture and the network cannot both be written to " +
                        inQuotes(textOf(given.picture), 1000));
    checkOutput(given.picture, {given.network});
    checkOutput(given.picture, plugins);
    checkOutput(given.saved, plugins);
}

Script readScript(std::filesystem::path const& file) {
    std::string const text = readFile(file);
    try {
        return Script::read(text);
    } catch (WorkError const& error) {
        throw WorkError("the network " + inQuotes(textOf(file), 1000) + " " + error.what());
    }
}

void applySetting(Network& network, std::string const& setting) {
    std::size_t const sign = setting.find('=');
    if (sign == std::string::npos)
        throw CallError("the setting " + inQuotes(setting) +
                        " is not of the form OBJECT.NAME=TEXT");
    network.set(setting.substr(0, sign), setting.substr(sign + 1));
}

void reportAll(std::filesystem::path const& file, std::vector<Complaint> const& complaints) {
    for (std::size_t i = 0; i < complaints.size() && i < MaxComplaints; ++i)
        report(reportOf(file, complaints[i]));
    if (complaints.size() > MaxComplaints)
        report(textOf(file) + ": and " + std::to_string(complaints.size() - MaxComplaints) +
               " more like these");
}

Orlo::ObjectPtr findViewer(Network const& network, std::string const& name) {
    std::vector<std::string> const viewers = network.viewers();
    Orlo::ObjectPtr const object = network.findObject(name);
    if (object && isViewer(*object))
        return object;
    std::string const problem = "there is no viewer " + inQuotes(name) +
                                suggestion(name, viewers, "; the network has none of that name");
    if (anyFailure(network.complaints()))
        throw WorkError(problem);  // the line that makes it may be one that failed
    throw CallError(problem);
}

Image draw(Network& network, std::string const& viewer) {
    Orlo::ObjectPtr const object = findViewer(network, viewer);
    Progress progress("drawing " + viewer);
    return render(*object, network.pool(viewer), [&](double part) { progress.show(part); });
}

void run(SessionOptions const& common, Arguments const& given) {
    checkArguments(given, pluginFiles(common.plugins));
    Script const script = readScript(given.network);
    OutputFiles output({given.picture, given.saved});
    Session const session(common);
    NodeCreators const kinds;
    Network network;
    network.execute(script);
    reportAll(given.network, network.complaints());
    for (std::string const& setting : given.settings)
        applySetting(network, setting);
    std::vector<Complaint> faults;
    if (!given.picture.empty()) {
        Image const picture = draw(network, given.viewer);
        faults = network.faultsBehind(given.viewer);
        reportAll(given.network, faults);
        output.write(given.picture, picture);
    }
    if (!given.saved.empty())
        output.write(given.saved, network.save());
    if (anyFailure(network.complaints()) || anyFailure(faults))
        throw WorkError("parts of " + inQuotes(textOf(given.network), 1000) +
                        " could not be carried out; all the rest was");
}

}  // namespace

void addRun(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command =
        program.add_subcommand("run", "Carry a saved network out, draw it, save it");
    auto const given = std::make_shared<Arguments>();
    addFile(*command, "NETWORK", given->network, "The saved network")->type_name("")->required();
    command
        ->add_option("--set", given->settings,
                     "Set a value, as OBJECT.NAME=TEXT or OBJECT.NAME{CONTEXT}=TEXT")
        ->allow_extra_args(false);
    command->add_option("--viewer", given->viewer, "The viewer to draw")
        ->type_name("NAME")
        ->capture_default_str();
    addFile(*command, "-o", given->picture, "The picture to write");
    addFile(*command, "--save", given->saved, "Write the network as it then stands");
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
