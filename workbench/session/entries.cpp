#include "workbench/session/entries.hpp"

#include "runtime/quartz/text.hpp"

namespace workbench {

std::string nameIn(std::string const& key) {
    return key.substr(key.rfind('/') + 1);
}

std::vector<std::string> tagsOf(Orlo::VCreatorBase const& entry) {
    std::vector<std::string> tags;
    for (std::string_view const tag : Orlo::splitWords(entry.get(Orlo::VCreatorBase::Tags), ';'))
        tags.emplace_back(tag);
    return tags;
}

}  // namespace workbench
