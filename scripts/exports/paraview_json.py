import job
import vtk_colors
from paraview import simple


def sample(name, file, values):
    simple.ImportPresets(filename=file)
    # What a preset does not name stays as it was: begin with everything set.
    lut = simple.GetColorTransferFunction("sampled")
    lut.RGBPoints = [0, 1, 0, 0, 1, 0, 0, 1]
    lut.ColorSpace = "Lab"
    lut.Discretize = 1
    lut.InterpretValuesAsCategories = 1
    lut.Annotations = ["0.5", "half"]
    lut.NanColor = [0.1, 0.9, 0.1]
    lut.UseBelowRangeColor = 0
    if not lut.ApplyPreset("telmbench " + name, False):
        raise SystemExit(f"{name}: ParaView does not take the preset")
    lut.UpdateVTKObjects()
    table = lut.GetClientSideObject()
    table.Build()
    return vtk_colors.colors(table, values)


job.run("ParaView " + simple.GetParaViewSourceVersion().split()[-1], sample)
