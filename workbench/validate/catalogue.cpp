/// The catalogue: keys, what entries say of themselves, and what they make.
#include <algorithm>
#include <set>

#include "host/creators/interface_token.hpp"
#include "workbench/session/entries.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

void entries(Trial& trial) {
    withPlugin(trial, [](Host&) { require(!catalogue().empty(), "it brings no entry"); });
}

/// What is wrong with a text that stands on one line for people; empty if nothing is.
std::string problemOf(std::string const& text) {
    if (!isUtf8(text))
        return "is no UTF-8: " + inQuotes(text);
    if (std::ranges::any_of(text, [](unsigned char c) { return c < 32 || c == 127; }))
        return "has control characters: " + inQuotes(text);
    return {};
}

void requireReadable(std::string const& what, std::string const& text) {
    std::string const problem = problemOf(text);
    require(problem.empty(), what + " " + problem);
}

void keys(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        std::string const key = entry->keyname("/");
        requireReadable("the key", key);
        std::size_t const slash = key.rfind('/');
        require(slash != std::string::npos && slash > 0, "the key names no folder");
        require(slash + 1 < key.size(), "the key names nothing in its folder");
        for (std::string const& part : {key.substr(0, slash), key.substr(slash + 1)})
            require(part.front() != ' ' && part.back() != ' ',
                    "a part of the key has blanks around it");
        require(key.find("//") == std::string::npos, "a folder of the key has no name");
    });
}

void unique(Trial& trial) {
    std::set<std::string> seen;
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        require(seen.insert(entry->keyname("/")).second, "two entries have this key");
    });
}

void creates(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        std::string const key = entry->keyname("/");
        ObjectPtr const object = create(findCreator(key), "one");
        require(bool(object), "it makes no object");
        require(object->Name() == "one",
                "asked for an object named 'one', it makes " + inQuotes(object->Name()));
        require(object->type_key() == key,
                "its object says that it is a " + inQuotes(object->type_key()));
        require(entry->instances().size() == 1, "the entry does not know its object");
        require(create(entry)->Name() == entry->name(),
                "an object without a name is not called after its entry");
    });
}

void wrongKeys(Trial& trial) {
    constexpr std::size_t Megabyte = 1 << 20;
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        std::string const key = entry->keyname("/");
        std::string other = key;
        std::ranges::transform(other, other.begin(), [](unsigned char c) {
            return std::islower(c) != 0 ? std::toupper(c) : std::tolower(c);
        });
        for (std::string const& wrong : {std::string(), key + '\0', key + "/", "/" + key, " " + key,
                                         other, std::string(Megabyte, 'x')})
            require(!findCreator(wrong), "the key " + inQuotes(wrong) + " finds an entry too");
    });
}

void preferences(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        PreferencesPtr const own = entry->preferences();
        if (own)
            for (std::string const& word : own->words()) {
                requireReadable("a preference", word);
                require(!word.empty(), "a preference is the empty word");
            }
        ObjectPtr const object =
            create(entry, "", PreferencesPtr(new VCreationPreferences("of the judge")));
        require(object->preferences() && object->preferences()->contains("of the judge"),
                "an object made with a preference does not have it");
        if (own)
            for (std::string const& word : own->words())
                require(object->preferences()->contains(word),
                        "its object lacks the entry's preference " + inQuotes(word));
    });
}

void texts(Trial& trial) {
    using Key = VCreatorPropertyElements::Key;
    constexpr struct {
        Key key;
        char const* what;
    } All[] = {{Key::Category, "the category"},
               {Key::Name, "the name"},
               {Key::Description, "the description"},
               {Key::Todo, "the to-do note"},
               {Key::Tags, "the tags"},
               {Key::Source, "the source"},
               {Key::Date, "the date"}};
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        for (auto const& each : All)
            requireReadable(each.what, entry->get(each.key));
        require(entry->isSet(Key::Name), "it has no name");
        for (std::string const& tag : tagsOf(*entry))
            require(!tag.empty(), "one of the tags is empty");
        require(entry->token() != nullptr && std::string(entry->token()) == InterfaceToken,
                "it was built against another interface: " +
                    inQuotes(entry->token() == nullptr ? "" : entry->token()));
    });
}

void help(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        ObjectPtr const object = create(entry);
        for (int const kind : {0, 1, 2, 3, -1, 2147483647}) {
            auto const type = static_cast<VObject::HelpType>(kind);
            std::string const text = object->help(type);
            require(isUtf8(text), "help " + std::to_string(kind) + " is no UTF-8");
            require(object->help(type) == text,
                    "help " + std::to_string(kind) + " is another one the second time");
        }
    });
}

void offers(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const& entry, ObjectPtr const&) {
        std::vector<WeakInputCreatorPtr> const all = inputCreators(typeid(ColormapPtr));
        require(std::ranges::any_of(all,
                                    [&](WeakInputCreatorPtr const& each) {
                                        return each.controlBlock() == entry.controlBlock();
                                    }),
                "its objects publish maps, but it is not offered where a map is wanted");
    });
}

}  // namespace

std::vector<Test> catalogueTests() {
    return {
        {"catalogue/entries",
         "A plug-in brings entries for the host's catalogue.",
         {"file/loads"},
         entries},
        {"catalogue/keys",
         "A key is a folder and a name, with a slash between them, readable and on one line.",
         {"file/loads"},
         keys},
        {"catalogue/unique", "No two entries have one key.", {"file/loads"}, unique},
        {"catalogue/creates",
         "The entry found by its key makes an object of that key, with the name that it is given, "
         "or else that of the entry.",
         {"file/loads"},
         creates},
        {"catalogue/wrong-keys",
         "A key that is almost right finds nothing.",
         {"file/loads"},
         wrongKeys},
        {"catalogue/preferences",
         "An object has the preferences that it is made with and those of its entry.",
         {"catalogue/creates"},
         preferences},
        {"catalogue/texts",
         "What an entry says of itself is UTF-8 on one line, and it was built against this "
         "interface.",
         {"file/loads"},
         texts},
        {"catalogue/help",
         "Help has an answer for every number, the same each time.",
         {"catalogue/creates"},
         help},
        {"catalogue/offers",
         "Entries whose objects publish maps are offered where maps are wanted.",
         {"catalogue/creates"},
         offers},
    };
}

}  // namespace workbench::validate
