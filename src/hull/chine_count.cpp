#include "hull/chine_count.h"

#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

void ExtrapolateChine(int n) {
  for (int k = 0; k < Bulkheads; ++k) {
    for (OffsetTable* table : {&OffX, &OffY, &OffZ}) {
      OffsetTable& of = *table;
      of(n, k) = of(NumChines, k) + (of(NumChines, k) - of(NumChines - 1, k));
    }
  }
}

}  // namespace

void VScroll1_Change() {
  Form1.Text3.Text = PlainText(Form1.VScroll1.Value());
}

void Text3_Change() {
  const double typed = NumberOf(*Form1.Text3.Text);
  if (typed > MostChines || typed < 2) {
    // Setting the text runs this handler again, with a number that fits.
    Form1.Text3.Text = typed > MostChines ? "30" : "2";
    return;
  }
  const double rounded = RoundHalfEven(typed);
  if (!HasValue(rounded)) {
    return;
  }
  const int n = static_cast<int>(rounded);
  if (n > NumChines && n > 3 && OffX(n, 0) == 0) {
    ExtrapolateChine(n);
  }
  NumChines = n;
  Form1.Refresh();
  Form1.Picture2.Refresh();
}
