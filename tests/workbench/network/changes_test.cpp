/// Values changed in a network, and the lines that say so.
#include "tests/workbench/network/NetworkTest.hpp"
#include "workbench/nodes/Viewer.hpp"

namespace workbench {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> linesThatDiffer(std::string const& before, std::string const& after) {
    std::vector<std::string> differing;
    Script const a = Script::read(before);
    Script const b = Script::read(after);
    std::size_t i = 0;
    for (Line const& line : b.lines) {
        bool const same = i < a.lines.size() && a.lines[i].text == line.text;
        bool const isNew = !same && b.lines.size() > a.lines.size();
        if (!same)
            differing.push_back((isNew ? "+" : "!") + line.text);
        if (!isNew || same)
            ++i;
    }
    return differing;
}

struct Change {
    char const* place;
    char const* text;
    char const* line;  ///< the one line that differs; with a plus, a new one; empty: none
};

Change const Changes[] = {
    {"Camera.zoom", "60", "!Camera.zoom=\"60\""},
    {"Camera.zoom{Viewer1}", "60", "!Camera.zoom{Viewer1}=\"60\""},
    {"Camera.zoom{Viewer2}", "60", "+Camera.zoom{Viewer2}=\"60\""},
    {"Camera.zoom", "45.0", ""},
    {"Camera.options", "Orthographic", "!Camera.options=\" Orthographic\""},
    {"Camera.speed", "0.5", "!Camera.speed=\"0.5\""},
    {"FieldSlice.mode", "Smooth", "!FieldSlice.mode=\"Smooth{Discrete}{Interpolated}{Smooth}\""},
    {"FieldSlice.mode", "Interpolated", ""},
    {"FieldSlice.position", "0.5", "+FieldSlice.position=\"0.5\""},
    {"Hypsometric_for_FieldSlice_colormap.options", "inverse",
     "+Hypsometric_for_FieldSlice_colormap.options=\" inverse\""},
    {"Hypsometric_for_FieldSlice_colormap.options", " -inverse", ""},
    {"GlobalTime.value", "0.5[0,1]@0.1", "!GlobalTime.value=\"0.5[0,1]@0.1\""},
    {"Viewer1.size", "640x480", "!Viewer1.size=\"640x480\""},
    {"theGrid.gridname", "a@b", "!theGrid.gridname=\"a@b\""},
    {"Camera.qTelm::Net::x", "7", "!Camera.qTelm::Net::x=\"7\""},
    {"Camera.qTelm::Net::x", "412", ""},
    {"WebTelm.active", "true", "!WebTelm.active=\"true\""},
    {"Camera.bounds", "[{0,0,0};{1,1,1}]", "!Camera.bounds=\"[{0,0,0};{1,1,1}]\""},
};

TEST_F(NetworkTest, WritesExactlyTheLineThatAChangeConcerns) {
    std::string const before = example("HypsometricSlice.telm");
    for (Change const& each : Changes) {
        Network network;
        network.execute(Script::read(before));
        network.set(each.place, each.text);
        std::vector<std::string> expected;
        if (*each.line != '\0')
            expected.push_back(each.line);
        EXPECT_EQ(linesThatDiffer(before, network.save()), expected) << each.place;
    }
}

TEST_F(NetworkTest, ReadsAChangeBackFromWhatItSaves) {
    std::string const before = example("HypsometricSlice.telm");
    for (Change const& each : Changes) {
        Network network;
        network.execute(Script::read(before));
        network.set(each.place, each.text);
        Network again;
        again.execute(Script::read(network.save()));
        EXPECT_THAT(reports(again), IsEmpty());
        EXPECT_EQ(again.save(), network.save());
        if (!isAttribute(valuePathOf(each.place)->name)) {
            EXPECT_EQ(valueOf(again, each.place), valueOf(network, each.place)) << each.place;
        }
    }
}

TEST_F(NetworkTest, AdvancesTheGlobalTimeWithEachChange) {
    execute("Create/GlobalTime T\n");
    auto const age = [&] {
        return network_.object("T")->slot("value")->ownParameter()->ownValue()->ageable()->age();
    };
    Nucleo::Ageable::Stamp const first = age();
    network_.set("T.value", "0.1[0,1]@0.1");
    Nucleo::Ageable::Stamp const second = age();
    network_.set("T.value", "0.2[0,1]@0.1");
    EXPECT_LT(first, second);
    EXPECT_LT(second, age());
}

struct BadChange {
    char const* place;
    std::string text;
    char const* reason;
};

TEST_F(NetworkTest, RefusesABadChangeAndLeavesTheNetworkAsItWas) {
    BadChange const cases[] = {
        {"Camera", "1", "is no place of a value"},
        {"Camera.zoom{", "1", "is no place of a value"},
        {"Camra.zoom", "1", "there is no object 'Camra'; did you mean 'Camera'"},
        {"Camera.zom", "1", "did you mean 'zoom'?"},
        {"Camera.zoom", "wide", "the text 'wide' is no value"},
        {"Camera.zoom{Viewr1}", "1", "there is no context 'Viewr1'; did you mean 'Viewer1'"},
        {"Camera.status", "1", "has no parameter 'status'"},
        {"Camera.qTelm::Net::x", "left", "is no number"},
        {"Nobody.qTelm::Net::x", "1", "there is no object 'Nobody'"},
        {"UserColors.color1", "(1,1,1,1)", "the object 'UserColors' could not be created"},
        {"qTelmMainWindow.title", "two\nlines", "cannot stand in a saved network"},
        {"qTelmMainWindow.title", std::string(1 << 20, 'x'), "cannot stand in a saved network"},
        {"FieldSlice.colormap", "red", "the text 'red' is no value of the parameter 'colormap'"},
        {"Hypsometric_for_FieldSlice_colormap.options", " sideways", "is no value"},
    };
    std::string const first = example("HypsometricSlice.telm");
    network_.execute(Script::read(first));
    Network second;
    second.execute(Script::read(example("UserColorsRuler.telm")));
    for (BadChange const& each : cases) {
        bool const ofSecond = std::string(each.place).starts_with("UserColors");
        Network& network = ofSecond ? second : network_;
        std::string const before = network.save();
        try {
            network.set(each.place, each.text);
            ADD_FAILURE() << each.place << " was taken";
        } catch (CallError const& error) {
            EXPECT_THAT(error.what(), HasSubstr(each.reason));
        }
        EXPECT_EQ(network.save(), before);
    }
}

TEST_F(NetworkTest, KeepsWhatItCouldNotCarryOutWhenItSaves) {
    std::string const text =
        "# TelmScript Preliminiary Experimental \nnonsense\nColormaps/UserColors U\n"
        "U.color1=\"(1,0,0,1)\"\nCreate/GlobalTime T\nT.x=>U";
    network_.execute(Script::read(text));
    EXPECT_EQ(network_.save(), text);
}

TEST_F(NetworkTest, ShowsAChangeInThePicture) {
    network_.execute(Script::read(example("HypsometricSlice.telm")));
    network_.set("Viewer1.size", "120x80");
    auto const picture = [&] {
        Image const image = render(*network_.object("Viewer1"), network_.pool("Viewer1"));
        std::vector<Rgba8> pixels;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                pixels.push_back(image.at(x, y));
        return pixels;
    };
    auto const before = picture();
    ASSERT_EQ(before.size(), 120U * 80U);
    EXPECT_EQ(picture(), before) << "the same network gives the same picture";
    network_.set("Hypsometric_for_FieldSlice_colormap.options", "inverse");
    EXPECT_NE(picture(), before);
    network_.set("Hypsometric_for_FieldSlice_colormap.options", "-inverse");
    EXPECT_EQ(picture(), before);
    network_.set("Camera.zoom", "20");
    EXPECT_EQ(picture(), before) << "the viewer has a value of its own";
    network_.set("Camera.zoom{Viewer1}", "20");
    EXPECT_NE(picture(), before);
}

}  // namespace
}  // namespace workbench
