# Colour map Colormaps/RedGreen, by telmbench VERSION
# Parameter startcolor = (1,0,0,1)
# Parameter endcolor = (0,1,0,1)
# Parameter blend = 0
# Parameter multiplier = 0.5
# Values from 0 to 1: 6 pieces; components from 0 to 1 are within 0.02000 of the map's
# Made by: telmbench export Colormaps/RedGreen --format blender-py --error 0.02 --alpha
# Components are those of the map, as a screen shows them.
import bpy

NAME = "telmbench RedGreen"

INTERPOLATION = "LINEAR"
# Places from 0 to 1 with red, green, blue, alpha.
STOPS = [
    (0, (1, 0, 0, 1)),
    (0.125, (1, 0.15234375, 0, 1)),
    (0.3125, (0.98291015625, 0.44677734375, 0, 1)),
    (0.5, (0.75, 0.75, 0, 1)),
    (0.6875, (0.44677734375, 0.98291015625, 0, 1)),
    (0.875, (0.15234375, 1, 0, 1)),
    (1, (0, 1, 0, 1)),
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
