/// A studio with a small network: what its tests share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "workbench/serve/Studio.hpp"

namespace workbench {

/// A bundle, its grid and field, a map, a slice and a legend in a scene, and two small
/// viewers: `Map` is `Colormaps/RedGreen`.
extern char const* const SmallNetwork;

/// A change, written with single quotes for double ones.
std::string quoted(std::string text);

class StudioTest : public testing::Test {
protected:
    std::uint64_t edit(std::string const& change) { return studio_.edit(quoted(change)); }

    /// What a change is refused with; empty if it is not.
    std::string refusal(std::string const& change);

    Json state() { return Json::parse(studio_.state()); }
    /// The node of that name; null if there is none.
    Json node(std::string const& name);
    /// The parameter of a node; null if there is none.
    Json parameter(std::string const& object, std::string const& name);

    /// Whether the living network draws what a new one of its text draws.
    void expectTextAndPicturesAgree();

    Studio studio_{{.text = SmallNetwork, .file = "folder/small.telm"}};
};

}  // namespace workbench
