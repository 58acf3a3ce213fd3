#pragma once
// "handplot.txt": the points of every part to mark out by hand with a rule, in decimal inches, in
// inches and eighths, and in millimetres. Nesting reads its parts from this table.

#include <string>
#include <string_view>

/// The rows of one part: each coordinate line that a hand plot marker of the pattern points at.
std::string HandPlotRows(std::string_view pattern);

/// A two-decimal text of inches in inches and eighths: "12.37" gives "12-3/8". The eighths run from
/// 0 to 8 and are neither reduced nor carried.
std::string InEighths(std::string_view inches);

/// Writes the table of all parts of the run from their pattern files.
void WriteHandPlot();

/// The hull's name in the title of such a table; empty if its first line is no title.
std::string HullOfHandPlot(std::string_view table);
