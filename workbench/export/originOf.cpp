#include "workbench/export/originOf.hpp"

namespace workbench {

namespace {

/// An argument as a shell takes it.
std::string quoted(std::string const& argument) {
    constexpr char Harmless[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./,=:+";
    if (!argument.empty() && argument.find_first_not_of(Harmless) == std::string::npos)
        return argument;
    std::string text = "'";
    for (char const letter : argument)
        text += letter == '\'' ? "'\\''" : std::string(1, letter);
    return text + "'";
}

std::string presentText(Orlo::VParameter const& parameter) {
    Orlo::ValuePtr const& value = parameter.ownValue();
    return value ? value->text() : std::string();
}

}  // namespace

Origin originOf(Session const& session, MapObject const& subject, std::string const& maker,
                std::vector<std::string> const& command) {
    Origin origin{.key = subject.key(), .label = subject.map().getLabel(), .maker = maker};
    origin.description = session.find(subject.key())->get(Orlo::VCreatorBase::Description);
    for (Orlo::SlotPtr const& slot : subject.object().slots())
        if (slot->isInput())
            origin.parameters.emplace_back(slot->name(), presentText(*slot->ownParameter()));
    for (std::string const& word : command)
        origin.command += (origin.command.empty() ? "" : " ") + quoted(word);
    return origin;
}

}  // namespace workbench
