/// Random requests to the live page's handler.
///
/// The input is a list of requests, one a line: a target behind `GET `, or a change
/// behind `POST `; any other line is taken as a whole request of odd parts. Whatever
/// they ask, each gets one answer with a proper status, a change that is refused
/// leaves everything as it was, and the network's text is read back as it is.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/require.hpp"
#include "workbench/serve/Handler.hpp"

using namespace workbench;

namespace {

constexpr char SmallNetwork[] =
    "# TelmScript Preliminiary Experimental \n"
    "# Expecting Implicitly created object: \n"
    "# CameraControl Camera\n"
    "# Expecting procedurally object:  DefaultScene\n"
    "# Expecting procedurally object:  Viewer1\n"
    "Viewer1.size=\"9x7\"\n"
    "CreateBundle/RadialScalarField Bundle\n"
    "Bundle.gridsize=\"4\"\n"
    "Strand/Grid Grid\n"
    "Strand/Scalarfield Field\n"
    "Colormaps/Hypsometric Map\n"
    "Display/OrthoSlice Slice\n"
    "Legend/ColorLegend Legend\n"
    "DefaultScene.Slice.renderable=>Slice\n"
    "DefaultScene.Legend.renderable=>Legend\n"
    "Field.grid=>Grid\n"
    "Grid.spacetime=>Bundle\n"
    "Slice.scalarfield=>Field\n"
    "Slice.colormap=>Map\n"
    "Legend.colormap=>Map\n"
    "Viewer1.scene=>DefaultScene\n";

constexpr char Prefix[] = "/s/";

/// What takes long in the hands of anybody is no fault of the handler: large grids
/// and pictures, and many colours.
bool isDear(std::string_view text) {
    return text.find("size") != std::string_view::npos ||
           text.find("Number of") != std::string_view::npos ||
           text.find("MaxDist") != std::string_view::npos ||
           text.find("\\u") != std::string_view::npos;
}

Request requestOf(std::string const& line) {
    Request request{.method = "GET",
                    .target = Prefix,
                    .host = "127.0.0.1:1",
                    .origin = std::nullopt,
                    .contentType = "application/json",
                    .body = ""};
    if (line.starts_with("GET ")) {
        request.target += line.substr(4);
    } else if (line.starts_with("POST ")) {
        request.method = "POST";
        request.target += "edit";
        request.body = line.substr(5);
    } else {
        request.target = line;
        request.origin = line;
    }
    return request;
}

bool isKnown(unsigned status) {
    for (unsigned const each : {200U, 204U, 400U, 403U, 404U, 405U, 409U, 415U, 500U})
        if (status == each)
            return true;
    return false;
}

void ask(Studio& studio, Handler& handler, std::string const& line) {
    std::uint64_t const revision = studio.revision();
    std::string const before = studio.text();
    Request const request = requestOf(line);
    std::optional<Response> const response = handler.answer(request, true);
    require(response && isKnown(response->status), "no answer, or one of no known status", line);
    require(response->status == 204 || !response->type.empty(), "an answer of no type", line);
    if (request.method != "POST" || response->status != 200) {
        require(studio.revision() == revision, "a request that changes nothing did", line);
        require(studio.text() == before, "the text changed", line);
    }
}

/// One studio for all inputs, as a fuzzer counts what runs in libraries, which must
/// stay in the process for that.
Studio& freshStudio() {
    static Studio& studio = *new Studio({.text = SmallNetwork, .file = "fuzz.telm"});
    try {
        for (;;)
            studio.edit(R"({"do":"undo"})");
    } catch (CallError const&) {  // nothing is left of the input before
    }
    require(studio.text() == SmallNetwork, "changes cannot all be undone", studio.text());
    return studio;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Studio& studio = freshStudio();
    Handler handler(studio, "s", 1);
    std::string_view rest(reinterpret_cast<char const*>(data), size);
    for (int i = 0; i < 40 && !rest.empty(); ++i) {
        std::string const line(rest.substr(0, rest.find('\n')));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (!isDear(line))
            ask(studio, handler, line);
    }
    require(Script::read(studio.text()).write() == studio.text(), "the text is no script", "");
    require(!studio.state().empty(), "no state", "");
    static_cast<void>(handler.answer(requestOf("GET pixels?viewer=Viewer1"), true));
    return 0;
}
