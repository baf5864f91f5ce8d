# Colour map Colormaps/HypoxiaLegend, by telmbench VERSION
# A colormap specifically useful for Bathymetric and topographic displays, providing bluish colors for low values and green/yellow/brownish tones for large values.
# Values from 0 to 7: 7 pieces of one colour each, exactly as in the map
# Made by: telmbench export Colormaps/HypoxiaLegend --format blender-py --range 0,7
# Components are those of the map, as a screen shows them.
import bpy

NAME = "telmbench HypoxiaLegend"

INTERPOLATION = "CONSTANT"
# Places from 0 to 1 with red, green, blue, alpha.
STOPS = [
    (0, (0.20000000298023224, 0.5, 0, 1)),
    (0.07142857142857142, (0, 1, 0, 1)),
    (0.21428571428571427, (1, 1, 0, 1)),
    (0.35714285714285715, (0.8999999761581421, 0.5, 0, 1)),
    (0.5, (0.6000000238418579, 0.15000000596046448, 0.10000000149011612, 1)),
    (0.6428571428571429, (0.800000011920929, 0.800000011920929, 0.8999999761581421, 1)),
    (0.7857142857142857, (0.5, 0, 0.5, 1)),
]

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
