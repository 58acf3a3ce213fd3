#pragma once
// Print jobs on paper: the system's print dialog, and a page of the printer for each of the job.

#include "controls/print_job.h"

class QPrinter;
class QWidget;

/// Asks which printer, over the parent, and prints; nothing if the user cancels.
void PrintWithDialog(const PrintJob& job, QWidget* parent);

/// All pages on this printer. False if it fails.
bool PrintOn(QPrinter& printer, const PrintJob& job);
