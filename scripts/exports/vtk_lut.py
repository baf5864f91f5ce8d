import job
import vtk_colors
from vtkmodules.vtkCommonCore import vtkVersion
from vtkmodules.vtkIOLegacy import vtkStructuredPointsReader


def sample(name, file, values):
    reader = vtkStructuredPointsReader()
    reader.SetFileName(file)
    reader.Update()
    output = reader.GetOutput()
    about = output.GetFieldData().GetAbstractArray("about")
    if "Colormaps/" + name not in about.GetValue(0):
        raise SystemExit(f"{name}: the file does not say where it comes from")
    scalars = output.GetPointData().GetScalars()
    table = scalars.GetLookupTable()
    table.SetRange(scalars.GetRange())
    return vtk_colors.colors(table, values)


job.run("VTK " + vtkVersion.GetVTKVersion(), sample)
