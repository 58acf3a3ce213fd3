#pragma once
// The windows as plain sets of controls. They exist whether or not a face shows them.

#include "controls/form1.h"
#include "controls/form2.h"
#include "controls/form3.h"
#include "controls/form4.h"
#include "controls/form5.h"

/// Puts every control of every window back to its state at the start of the program, with empty
/// slots.
void ResetForms();
