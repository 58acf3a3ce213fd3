#include "controls/controls.h"

void ScrollBar::SetMax(int max) {
  max_ = max;
  const int value = Value_;
  if (value > High()) {
    Value_ = High();
  } else if (*Min > max_ && value < Low()) {
    Value_ = Low();
  }
}

void ScrollBar::SetValue(int value) {
  if (value >= Low() && value <= High()) {
    Value_ = value;
  }
}
