#pragma once
// What a handler hands to a printer, or to a writer of PDF files.

#include <functional>

#include "views/draw_surface.h"

/// Pages that paint themselves. A page sets its own scale, and takes the shape of the paper from the
/// surface's Width and Height.
struct PrintJob {
  int pages = 0;
  bool landscape = false;  ///< the pages fit better on paper that is wider than high
  std::function<void(int page, DrawSurface& surface)> paint;  ///< pages are numbered from 1
};
