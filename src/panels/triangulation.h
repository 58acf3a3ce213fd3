#pragma once
// Each panel as a chain of triangles between the 13 stations, of which only the true lengths of the
// edges are kept: a sheet that bends keeps its lengths, so the flat shape follows from them alone.

#include "panels/pattern_file.h"

/// The panel between two neighbouring chines, from HullPts.
TriangleEdges OpenPanel(int chine);

/// The panel across the centre line on one chine: its lower edge is the chine's mirror image.
TriangleEdges MirroredPanel(int chine);

/// Writes the triangle files: "chine1.tri" on, then keel, deck and soles as asked for in Form3.
void WriteTriFiles();
