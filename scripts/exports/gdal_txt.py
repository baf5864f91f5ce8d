import job
import numpy as np
from osgeo import gdal

gdal.UseExceptions()


def sample(name, file, values):
    data = gdal.GetDriverByName("GTiff").Create("/vsimem/data.tif", len(values), 1, 1,
                                                gdal.GDT_Float64)
    data.GetRasterBand(1).SetNoDataValue(float("nan"))
    data.GetRasterBand(1).WriteArray(np.array([values]))
    data = None
    picture = gdal.DEMProcessing("/vsimem/picture.tif", "/vsimem/data.tif", "color-relief",
                                 colorFilename=file)
    return picture.ReadAsArray().reshape(3, -1).T


job.run("GDAL " + gdal.VersionInfo("RELEASE_NAME"), sample)
