# Colour map Colormaps/Glow, by telmbench VERSION
# Parameter glow = (1,0.6,0,1)
# Parameter center = 0.5
# Parameter inverted = no{no}{yes}
# Values from 0 to 1: 8 pieces; components from 0 to 1 are within 0.02000 of the map's
# Made by: telmbench export Colormaps/Glow --format blender-py --error 0.02
# Components are those of the map, as a screen shows them.
import bpy

NAME = "telmbench Glow"

INTERPOLATION = "LINEAR"
# Places from 0 to 1 with red, green, blue, alpha.
STOPS = [
    (0, (0, 0, 0, 1)),
    (0.125, (0.34375, 0.16875001788139343, 0, 1)),
    (0.25, (0.625, 0.32500001788139343, 0, 1)),
    (0.375, (0.84375, 0.4687500298023224, 0, 1)),
    (0.5, (1, 0.6000000238418579, 0, 1)),
    (0.625, (1, 0.71875, 0.15625, 1)),
    (0.75, (1, 0.8250000476837158, 0.375, 1)),
    (0.875, (1, 0.918749988079071, 0.65625, 1)),
    (1, (1, 1, 1, 1)),
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
