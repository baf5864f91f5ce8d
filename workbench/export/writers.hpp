/// The forms, each in a source of its own, which is named after it.
#pragma once

#include "workbench/export/Form.hpp"

namespace workbench {

extern Form const BlenderPy;
extern Form const Css;
extern Form const Csv;
extern Form const GdalTxt;
extern Form const Ggr;
extern Form const GmtCpt;
extern Form const Gnuplot;
extern Form const Gpl;
extern Form const GrassRules;
extern Form const ImagejLut;
extern Form const JsonForm;
extern Form const MplPy;
extern Form const ParaviewJson;
extern Form const QgisTxt;
extern Form const QgisXml;
extern Form const Svg;
extern Form const VtkLut;

}  // namespace workbench
