#pragma once
// Print jobs as PDF files. This header names no toolkit: it is the command line program's one way to one.

#include <string>

#include "controls/print_job.h"

/// The bytes of a PDF file with the pages of the job on letter paper, upright or lying as the job says;
/// empty if it has no pages or they can't be painted. Dated by the program's clock: under a fixed one the
/// same job gives the same bytes. Needs no display.
std::string PdfOfPages(const PrintJob& job);
