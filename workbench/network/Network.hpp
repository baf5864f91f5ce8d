/// A network of objects, made from a saved one.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/object/VObject.hpp"
#include "workbench/network/Dependencies.hpp"
#include "workbench/network/Script.hpp"
#include "workbench/network/report.hpp"

namespace workbench {

/// The objects of a saved network, and the text that it came from.
///
/// Owner: holds its objects and the value pools of its contexts; it must go
/// before the plug-ins that made the objects do. Threads: [host].
class Network : public Nucleo::Intercube {
public:
    Network() = default;
    Network(Network const&) = delete;
    Network& operator=(Network const&) = delete;
    ~Network() override = default;

    /// Executes a script, line by line. A line that cannot be executed is
    /// complained of and passed by; what depends on an object that could not be
    /// made is only counted. The script becomes the one that `save` writes.
    void execute(Script const& script);

    /// What could not be executed, in the order of the lines.
    std::vector<Complaint> const& complaints() const noexcept { return complaints_; }

    /// The object of that name. Throws `CallError` with the nearest names if
    /// there is none.
    Orlo::ObjectPtr object(std::string const& name) const;
    /// The object of that name, or empty.
    Orlo::ObjectPtr findObject(std::string const& name) const;
    /// Whether an object of that name could not be made.
    bool isMissing(std::string const& name) const { return missing_.contains(name); }
    /// The names of all objects, in alphabetical order.
    std::vector<std::string> names() const;
    /// The names of all viewers, in alphabetical order.
    std::vector<std::string> viewers() const;
    /// The value pool of a context, made when it is asked for first.
    Orlo::PoolPtr pool(std::string const& context);
    /// The contexts that were asked for so far, in alphabetical order.
    std::vector<std::string> contexts() const;
    /// Whether an object reads another one, also by way of others.
    bool dependsOn(Orlo::VObject const& consumer, Orlo::VObject const& provider) const {
        return dependencies_.dependsOn(consumer, provider);
    }
    /// An attribute of the network editor, such as `qTelm::Net::x`; empty if it
    /// was never set.
    std::string attribute(std::string const& object, std::string const& name) const;

    /// Changes the value at a place such as `Camera.zoom`, `Camera.zoom{Viewer1}`
    /// or `Camera.qTelm::Net::x`, and the lines that say so. Throws `CallError`
    /// for an unknown place (with the nearest names) and for a text that does
    /// not parse; nothing has changed then.
    void set(std::string const& path, std::string const& text);

    /// Why a viewer shows less than the script asks for, once it was drawn: what
    /// is missing in the objects that it sees, and in those that they read, each
    /// with the line concerned. What `complaints` tells already is left out.
    std::vector<Complaint> faultsBehind(std::string const& viewer) const;

    /// The network as it now stands, line by line.
    Script const& script() const noexcept { return script_; }
    /// The same as the text of a script.
    std::string save() const { return script_.write(); }

private:
    /// An object that could not be made.
    struct Missing {
        std::size_t line;       ///< where it should have been made
        std::size_t concerned;  ///< further lines that need it
    };

    void execute(Line const& line);
    /// Whether the line needs an object that could not be made; counts it then.
    bool needsMissing(Meaning const& meaning);
    void reportMissing();
    void noteFailure(Meaning const& meaning);
    void remarkOnContexts();
    void checkSetups();
    void remark(std::string const& text);

    // One for each form of line; they throw what stands in their way.
    void apply(ExpectedLine const& line);
    void apply(DeletionLine const& line);
    void apply(CreationLine const& line);
    void apply(ParameterLine const& line);
    void apply(PropertyLine const& line);
    void apply(NoteLine const& line);
    void apply(AttributeLine const& line);
    void apply(ConnectionLine const& line);
    void apply(SetupLine const& line);
    void apply(UnreadableLine const& line);
    void apply(BlankLine const&) {}
    void apply(CommentLine const&) {}
    void apply(BannerLine const&) {}
    void apply(AnnouncementLine const&) {}

    void noteSight(Orlo::ObjectPtr const& made);
    void keep(Orlo::VObject& subject, ParameterLine const& line);
    void remarkOnKept(Orlo::VObject const& subject, std::string const& name,
                      std::vector<std::string> const& known);
    std::vector<std::string> knownParameters(Orlo::VObject const& object) const;
    void setText(Orlo::VObject& subject, std::string const& name, std::string const& text,
                 Orlo::PoolPtr const& context);
    std::size_t lineOf(std::string const& object, std::string const& parameter) const;
    void setAttribute(ValuePath const& path, std::string const& text);
    void setValue(ValuePath const& path, std::string const& text);
    Orlo::PoolPtr knownPool(std::string const& context);

    Script script_;
    Dependencies dependencies_;
    std::vector<Orlo::WeakObjectPtr> viewers_;
    std::map<std::string, Orlo::PoolPtr> pools_;
    std::map<std::string, Orlo::ObjectPtr> objects_;
    std::map<std::string, std::map<std::string, std::string>> attributes_;
    std::map<std::string, Missing> missing_;
    std::map<std::string, std::set<std::string>> kept_;           ///< unknown parameters, by object
    std::set<std::pair<std::string, std::string>> failedInputs_;  ///< object and input
    std::size_t line_ = 0;                                        ///< the one that is executed
    std::vector<Complaint> complaints_;
};

}  // namespace workbench
