"""What a table of VTK maps numbers to."""
import numpy as np
from vtkmodules.util.numpy_support import numpy_to_vtk, vtk_to_numpy

COLOR_MODE_MAP_SCALARS = 1
ALL_COMPONENTS = -1


def colors(table, values):
    numbers = numpy_to_vtk(np.array(values), deep=True)
    mapped = table.MapScalars(numbers, COLOR_MODE_MAP_SCALARS, ALL_COMPONENTS)
    return vtk_to_numpy(mapped)[:, :3]
