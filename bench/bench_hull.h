#pragma once

#include <string>

#include "controls/forms.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

/// Starts the program anew and grows its built-in hull chine by chine to thirty.
inline void MakeThirtyChines() {
  StartProgram();
  for (int n = NumChines + 1; n <= MostChines; ++n) {
    Form1.Text3.Text = std::to_string(n);
  }
}
