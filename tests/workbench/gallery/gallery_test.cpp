/// The command, run as a process.
#include <gmock/gmock.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/support/requiredEntries.hpp"
#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"
#include "workbench/gallery/html.hpp"

namespace {

using namespace tests;
using testing::HasSubstr;
using testing::Not;
using workbench::escapeHtml;
using workbench::readFile;
using workbench::writeFile;
using Json = nlohmann::ordered_json;

/// The line that one of the entries writes at each update.
constexpr char Talk[] = "we have colors: 61";

Json jsonOf(Lines arguments) {
    arguments.push_back("--json");
    return Json::parse(telmbench(arguments).out);
}

/// All occurrences of what stands between two texts.
Lines between(std::string const& text, std::string const& begin, std::string const& end) {
    Lines found;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        found.push_back(text.substr(at, text.find(end, at) - at));
    }
    return found;
}

/// The gallery of the plug-in, made once for all tests.
class Gallery : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = new TemporaryFolder;
        result_ = new ProcessResult(telmbench({"gallery", "-o", path("new/maps")}));
        page_ = new std::string(readFile(*folder_ / "new/maps/index.html"));
        catalogue_ = new Json(jsonOf({"catalogue"}));
    }
    static void TearDownTestSuite() {
        delete catalogue_;
        delete page_;
        delete result_;
        delete folder_;
    }

    static std::string path(std::string const& name) { return (*folder_ / name).string(); }

    static std::string sectionOf(std::string const& key) {
        Lines const found = between(*page_, "data-key=\"" + escapeHtml(key) + "\"", "</section>");
        EXPECT_EQ(found.size(), 1U) << key;
        return found.empty() ? "" : found.front();
    }

    static inline TemporaryFolder* folder_;
    static inline ProcessResult* result_;
    static inline std::string* page_;
    static inline Json* catalogue_;
};

TEST_F(Gallery, ListsWhatItWroteAndNothingElse) {
    EXPECT_EQ(result_->status, 0);
    Lines written = result_->outLines();
    ASSERT_EQ(written.size(), catalogue_->size() + 1);
    EXPECT_EQ(std::filesystem::path(written.back()), *folder_ / "new/maps/index.html");
    Lines names;
    for (std::string const& line : written)
        names.push_back(std::filesystem::path(line).filename().string());
    Lines present;
    for (auto const& each : std::filesystem::directory_iterator(*folder_ / "new/maps"))
        present.push_back(each.path().filename().string());
    EXPECT_THAT(present, testing::UnorderedElementsAreArray(names));
}

/// Neither progress, nor settings that an entry does not take.
TEST_F(Gallery, SaysNothingOnStandardErrorInAPipe) {
    EXPECT_THAT(result_->errLines(), testing::Each(Talk));
    EXPECT_THAT(result_->errLines(), Not(testing::IsEmpty()));
    EXPECT_THAT(*page_, Not(HasSubstr(Talk)));
}

TEST_F(Gallery, HasASectionForEachEntryInTheOrderOfTheCatalogue) {
    Lines keys;
    for (Json const& entry : *catalogue_)
        keys.push_back(entry["key"]);
    EXPECT_GE(keys.size(), requiredEntries.size());
    EXPECT_EQ(between(*page_, "data-key=\"", "\""), keys);
}

TEST_F(Gallery, SectionsHaveDescriptionAndTags) {
    for (Json const& entry : *catalogue_) {
        std::string const section = sectionOf(entry["key"]);
        std::string const description =
            entry["description"].is_null() ? "" : std::string(entry["description"]);
        EXPECT_THAT(section, HasSubstr(description.empty() ? "It has no description."
                                                           : ">" + escapeHtml(description) + "<"));
        Lines tags;
        for (Json const& tag : entry["tags"])
            tags.push_back(escapeHtml(std::string(tag)));
        EXPECT_EQ(between(section, "<li>", "</li>"), tags) << entry["key"];
    }
}

std::string cell(Json const& limit) {
    return limit.is_null() ? "–" : limit.is_string() ? std::string(limit) : limit.dump();
}

TEST_F(Gallery, SectionsHaveTheParametersInTheirOrder) {
    for (Json const& entry : *catalogue_) {
        std::string const section = sectionOf(entry["key"]);
        Lines names;
        Json const description = jsonOf({"describe", entry["key"]});
        for (Json const& parameter : description["parameters"]) {
            names.push_back(escapeHtml(std::string(parameter["name"])));
            EXPECT_THAT(
                section,
                HasSubstr(names.back() + "</th><td>" + escapeHtml(std::string(parameter["type"])) +
                          "</td><td><code>" + escapeHtml(std::string(parameter["default"])) +
                          "</code></td><td class=\"number\">" + parameter["expertLevel"].dump() +
                          "</td>"));
            Json const& min = parameter["min"];
            EXPECT_THAT(section, HasSubstr("<td class=\"number\">" + cell(min) + "</td>"));
        }
        EXPECT_EQ(between(section, "<th scope=\"row\">", "</th>"), names) << entry["key"];
    }
}

/// A map that is not required may have none yet.
TEST_F(Gallery, MapsWithParametersAreShownWithSomeSet) {
    for (std::string_view const each : requiredEntries) {
        std::string const key(each);
        std::size_t const parameters = jsonOf({"describe", key}).at("parameters").size();
        Lines const variants =
            between(sectionOf(key), "<div class=\"row variant\">", "</div></div>");
        if (parameters == 0)
            EXPECT_EQ(variants.size(), 0U) << key;
        else
            EXPECT_GE(variants.size(), std::min<std::size_t>(parameters, 2)) << key;
    }
}

/// One map has parameters that change no colour.
TEST_F(Gallery, EverySettingShowsAnotherPicture) {
    for (Json const& entry : *catalogue_) {
        std::string const key = entry["key"];
        Lines const addresses = between(sectionOf(key), "src=\"data:", "\"");
        Lines const settings(addresses.begin() + 3, addresses.end());
        std::set<std::string> const different(settings.begin(), settings.end());
        EXPECT_EQ(different.size(), key == "Colormaps/BigColorMap" ? 1 : settings.size()) << key;
    }
}

TEST_F(Gallery, PicturesAreThoseOfRamp) {
    for (Json const& entry : *catalogue_) {
        std::string const key = entry["key"];
        std::string const name = "ramp-" + key.substr(key.find('/') + 1) + ".png";
        telmbench({"ramp", key, "--size", "1280x128", "-o", path("ramp.png")});
        EXPECT_TRUE(readFile(*folder_ / "new/maps" / name) == readFile(*folder_ / "ramp.png"))
            << key;
    }
}

TEST_F(Gallery, SettingsAreDrawnWithThem) {
    telmbench({"ramp", "Glow", "--set", "center=0.25", "--size", "1280x1", "-o", path("ramp.png")});
    EXPECT_THAT(sectionOf("Colormaps/Glow"),
                HasSubstr("src=\"data:image/png;base64," +
                          workbench::base64(readFile(*folder_ / "ramp.png")) +
                          "\" alt=\"Colormaps/Glow with center=0.25\""));
}

TEST_F(Gallery, NeedsNothingButItsOwnFolder) {
    std::filesystem::path const folder = *folder_ / "new/maps";
    for (char const* const attribute : {" src=\"", " href=\""})
        for (std::string const& address : between(*page_, attribute, "\""))
            EXPECT_TRUE(address.starts_with("data:image/png;base64,") ||
                        (address.starts_with('#') &&
                         page_->find(" id=\"" + address.substr(1) + "\"") != std::string::npos) ||
                        std::filesystem::exists(folder / address))
                << address;
    EXPECT_THAT(*page_, Not(HasSubstr("://")));
    EXPECT_THAT(*page_, Not(HasSubstr("@import")));
}

TEST_F(Gallery, IsTheSameEachTimeAndReplacesItsOwnFilesOnly) {
    TemporaryFolder const folder;
    writeFile(folder / "index.html", "old");
    writeFile(folder / "mine.txt", "mine");
    EXPECT_EQ(telmbench({"gallery", "-o", folder.path().string()}).status, 0);
    EXPECT_TRUE(readFile(folder / "index.html") == *page_);
    EXPECT_EQ(readFile(folder / "mine.txt"), "mine");
    EXPECT_EQ(folder.names().size(), catalogue_->size() + 2);
}

TEST(GalleryElsewhere, WritesIntoAFolderWithAnyName) {
    TemporaryFolder const folder;
    std::filesystem::path const maps = folder / "m\xc3\xa4rz \xe5\x9c\xb0\xe5\x9b\xb3";
    ProcessResult const result =
        telmbench({"--plugin", fileBeside("odd_plugin.telm"), "gallery", "-o", textOf(maps)});
    EXPECT_EQ(result.status, 0);
    ASSERT_FALSE(result.outLines().empty());
    EXPECT_EQ(workbench::pathOf(result.outLines().back()), maps / "index.html");
    EXPECT_TRUE(std::filesystem::exists(maps / "index.html"));
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST(GalleryOfAnotherPlugin, ReadsNothingOfItsTexts) {
    TemporaryFolder const folder;
    ProcessResult const result = telmbench(
        {"--plugin", fileBeside("odd_plugin.telm"), "gallery", "-o", folder.path().string()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.names(),
              (Lines{"index.html", "ramp--glow-.png", "ramp-Glow.png", "ramp-gLOW-2.png"}));
    EXPECT_THAT(result.out, Not(HasSubstr("talk")));
    std::string const page = readFile(folder / "index.html");
    EXPECT_THAT(page, HasSubstr("&lt;/section&gt;&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt; "
                                "&amp; &quot;more&quot;"));
    EXPECT_THAT(page, HasSubstr("<th scope=\"row\">&lt;b&gt;odd&lt;/b&gt;</th>"));
    EXPECT_THAT(page, HasSubstr("<h2>&lt;glow&gt;</h2>"));
    EXPECT_THAT(page, HasSubstr("<dd>−2 to 4, and some that are no number</dd>"));
    for (char const* const part : {"<script", "<b>", ">nan", " nan", "talk of"})
        EXPECT_THAT(page, Not(HasSubstr(part)));
}

TEST(GalleryOfAnotherPlugin, LeavesSettingsOutThatItDoesNotTake) {
    TemporaryFolder const folder;
    Lines const messages = telmbench({"--plugin", fileBeside("odd_plugin.telm"), "gallery", "-o",
                                      folder.path().string()})
                               .errLines();
    EXPECT_THAT(messages, testing::Contains(testing::AllOf(
                              testing::StartsWith("telmbench: Colormaps/Glow: 'An early glow' is "
                                                  "left out: "),
                              HasSubstr("no parameter 'center'"))));
    EXPECT_THAT(readFile(folder / "index.html"), Not(HasSubstr("row variant")));
}

TEST(GalleryFailure, NamesTheCulpritAndWritesNothing) {
    TemporaryFolder const folder;
    writeFile(folder / "file", "a file");
    struct Case {
        Lines arguments;
        int status;
        std::string message;
    };
    std::string const file = (folder / "file").string();
    std::string const below = (folder / "file" / "below").string();
    std::string const fresh = (folder / "fresh").string();
    Case const cases[] = {
        {{"gallery"}, 2, "-o is required; 'telmbench gallery --help' tells how to call it"},
        {{"gallery", "-o", ""}, 2, "-o is given the empty text, which names no file"},
        {{"gallery", "-o", file}, 1, "cannot make the folder '" + file + "': "},
        {{"gallery", "-o", below}, 1, "cannot make the folder '" + below + "': "},
        {{"--plugin", file, "gallery", "-o", fresh}, 1, "the plug-in '" + file + "'"},
    };
    for (auto const& [arguments, status, message] : cases) {
        ProcessResult const result = telmbench(arguments);
        EXPECT_EQ(result.status, status) << message;
        EXPECT_EQ(result.out, "") << message;
        ASSERT_FALSE(result.errLines().empty()) << message;
        EXPECT_THAT(result.errLines().back(), testing::StartsWith("telmbench: " + message));
        EXPECT_EQ(folder.names(), Lines{"file"}) << message;
    }
}

TEST(GalleryFailure, LeavesAnOldPageThatItCannotReplace) {
    TemporaryFolder const folder;
    std::filesystem::create_directory(folder / "index.html");
    ProcessResult const result = telmbench({"gallery", "-o", folder.path().string()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.errLines().back(),
              "telmbench: cannot write '" + (folder / "index.html").string() + "': it is a folder");
}

}  // namespace
