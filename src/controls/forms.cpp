#include "controls/forms.h"

#include <memory>

MainWindow Form1;
NestingWindow Form2;
SaveWindow Form3;
OpenWindow Form4;
OffsetsWindow Form5;

namespace {

template <class Form>
void Reset(Form& form) {
  std::destroy_at(&form);
  std::construct_at(&form);
}

}  // namespace

void ResetForms() {
  Reset(Form1);
  Reset(Form2);
  Reset(Form3);
  Reset(Form4);
  Reset(Form5);
}
