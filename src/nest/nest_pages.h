#pragma once
// The sheets on paper, one to a page: the one description of a page for printer, PDF and tests.

#include "controls/print_job.h"

enum class NestFit {
  Print,  ///< the sheet's length between margins of a twentieth of the page, the sheet in the middle
  Prn,    ///< the sheet fills the page by its governing side, its frame in a colour of its own
};

/// The pages of the row of sheets, which paint the tables as they stand then. No pages for sheets
/// without a height or length.
PrintJob NestPages(NestFit fit);

/// "Prn?"
void Form2_Command9_Click();
/// "Print", behind a warning that the user may cancel.
void Form2_Command10_Click();
