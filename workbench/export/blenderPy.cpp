/// A Python script for Blender: a node group around a colour ramp, or, for maps that
/// have more stops than it takes, around a picture.
#include "workbench/export/notation.hpp"
#include "workbench/export/table.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

constexpr int MaxStops = 32;
constexpr int MaxColors = 256;

constexpr char Ramp[] = R"(
group = bpy.data.node_groups.new(NAME, "ShaderNodeTree")
group.inputs.new("NodeSocketFloat", "Value")
group.outputs.new("NodeSocketColor", "Color")
group.outputs.new("NodeSocketFloat", "Alpha")
source = group.nodes.new("NodeGroupInput")
target = group.nodes.new("NodeGroupOutput")
node = group.nodes.new("ShaderNodeValToRGB")
ramp = node.color_ramp
ramp.color_mode = "RGB"
ramp.interpolation = INTERPOLATION
while len(ramp.elements) > 1:
    ramp.elements.remove(ramp.elements[-1])
ramp.elements[0].position = STOPS[0][0]
ramp.elements[0].color = STOPS[0][1]
for place, color in STOPS[1:]:
    ramp.elements.new(place).color = color
group.links.new(source.outputs["Value"], node.inputs["Fac"])
group.links.new(node.outputs["Color"], target.inputs["Color"])
group.links.new(node.outputs["Alpha"], target.inputs["Alpha"])
)";

constexpr char Picture[] = R"(
image = bpy.data.images.new(NAME, len(COLORS), 1, alpha=True, float_buffer=True)
image.colorspace_settings.name = "Non-Color"
image.alpha_mode = "CHANNEL_PACKED"
image.pixels = [part for color in COLORS for part in color]
image.pack()
group = bpy.data.node_groups.new(NAME, "ShaderNodeTree")
group.inputs.new("NodeSocketFloat", "Value")
group.outputs.new("NodeSocketColor", "Color")
group.outputs.new("NodeSocketFloat", "Alpha")
source = group.nodes.new("NodeGroupInput")
target = group.nodes.new("NodeGroupOutput")
place = group.nodes.new("ShaderNodeCombineXYZ")
node = group.nodes.new("ShaderNodeTexImage")
node.image = image
node.interpolation = "Closest"
node.extension = "EXTEND"
group.links.new(source.outputs["Value"], place.inputs["X"])
group.links.new(place.outputs["Vector"], node.inputs["Vector"])
group.links.new(node.outputs["Color"], target.inputs["Color"])
group.links.new(node.outputs["Alpha"], target.inputs["Alpha"])
)";

std::string tuple(Orlo::rgba_float_t const& color) {
    return "(" + floatText(color, 4, ", ") + ")";
}

std::string rampOf(std::vector<Stop> const& stops, Model const& model, char const* interpolation) {
    std::string text = "\nINTERPOLATION = \"" + std::string(interpolation) +
                       "\"\n# Places from 0 to 1 with red, green, blue, alpha.\nSTOPS = [\n";
    for (Stop const& stop : stops)
        text += "    (" + shortestText(model.part(stop.value)) + ", " + tuple(stop.color) + "),\n";
    return text + "]\n" + Ramp;
}

std::string pictureOf(Model const& model) {
    std::string text = "\n# Red, green, blue, alpha at even places from 0 to 1.\nCOLORS = [\n";
    for (Orlo::rgba_float_t const& color : evenColors(model, MaxColors))
        text += "    " + tuple(color) + ",\n";
    return text + "]\n" + Picture;
}

std::string write(Model const& model) {
    std::string const head = comment(model, 0, "# ") +
                             "# Components are those of the map, as a screen shows them.\n"
                             "import bpy\n\nNAME = \"telmbench " +
                             plainName(model) + "\"\n";
    std::vector<Stop> const stops = formStops(model);
    if (stops.size() > MaxStops)
        return head + pictureOf(model);
    return head + rampOf(stops, model, model.isClasses() ? "CONSTANT" : "LINEAR");
}

}  // namespace

constinit Form const BlenderPy{.name = "blender-py",
                               .program = "Blender",
                               .ending = ".py",
                               .alpha = true,
                               .values = false,
                               .maxStops = MaxStops,
                               .tableSize = MaxColors,
                               .write = write};

}  // namespace workbench
