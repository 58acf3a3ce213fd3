#pragma once
// Parts laid out as a file says, by the acts of a user in the nesting window.

#include <string>

#include "batch/nest_layout.h"

/// Sets the sheets, then shows, places, flips and turns each part of the layout, and its copy. Expects a
/// hand plotting table just read, with no part shown. Ends at the first part that the table doesn't have
/// and gives its name; empty if all are there.
std::string LayOutParts(const NestLayout& layout);
