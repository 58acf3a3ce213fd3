#include "hull/rescaling.h"

#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

void Scale(std::initializer_list<OffsetTable*> tables, double factor) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = 0; k < Bulkheads; ++k) {
      for (OffsetTable* table : tables) {
        (*table)(c, k) *= factor;
      }
    }
  }
}

/// `reference` is the size that the hull has now. Where it is 0 the division is skipped and the
/// entered number itself is the factor. Scaling the length shows the new places of the bulkheads.
void Rescale(const char* prompt, double reference, std::initializer_list<OffsetTable*> tables,
             bool scales_length) {
  const double size = std::abs(NumberOf(InputBox(prompt, "ReScale", FixedText(reference, 3))));
  if (size == 0 || !HasValue(size)) {
    return;
  }
  if (scales_length) {
    Form1.Text1[4].Text = PlainText(size);
  }
  double factor = size;
  Store(factor, size / reference);
  Scale(tables, factor);
  if (scales_length) {
    for (int k = 1; k <= 3; ++k) {
      Form1.Text1[static_cast<std::size_t>(k)].Text = PlainText(OffZ(1, k));
    }
  }
  Form1.Refresh();
}

}  // namespace

void dummy12_Click() {
  Rescale("Enter a new hull length:", HullMaxZ, {&OffX, &OffY, &OffZ}, true);
}

void dummy18_Click() {
  Rescale("Enter a new maximum beam:", MaxHalfBeam, {&OffX}, false);
}

void dummy19_Click() {
  Rescale("Enter a new maximum height:", HullMaxY, {&OffY}, false);
}

void dummy88_Click() {
  Rescale("Enter a new hull length:", HullMaxZ, {&OffZ}, true);
}
