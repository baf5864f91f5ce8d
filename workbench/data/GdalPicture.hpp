/// Pictures written through GDAL.
#pragma once

#include <vector>

#include "workbench/data/GdalCall.hpp"

namespace workbench {

/// What a picture is of.
struct PictureSource {
    GDALDatasetH dataset;  ///< the size, the place on the earth and the metadata
    std::vector<Window> windows;
    bool isSparse;  ///< a file that can leave out blocks shall do so
};

/// Whether the writer of a form asks for the picture row by row.
bool isMadeOfRows(PictureForm form);

/// Writes a picture; as `DataGrid::write`.
void writePicture(PictureSource const& source, PictureOrder const& order, PixelSource& pixels,
                  Progressing const& progress);

}  // namespace workbench
