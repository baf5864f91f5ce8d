/// The forms, each in a source of its own, which is named after it.
#pragma once

#include "workbench/export/Form.hpp"

namespace workbench {

extern Form const Csv;
extern Form const JsonForm;

}  // namespace workbench
