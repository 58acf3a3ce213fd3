#pragma once
// Lettering on patterns, drawn with the stroke font "pedit.fnt".
//
// The font file has one record a stroke, its fields parted by line ends or commas: the character
// (quotation marks are taken off), the count of points, and that many pairs x, y in eighths of a
// character cell. A character may have several strokes.

#include <string>
#include <string_view>

/// Appends the strokes of a text in pen 1: `size` inches from one character to the next, turned by
/// `angle` degrees, starting at (x0, y0). Letter case doesn't count. Without a font file it shows
/// "Missing pedit.fnt, can't output characters" in panel 1 and appends nothing.
void PlotText(std::string& out, std::string_view text, double size, double angle, double x0, double y0);
