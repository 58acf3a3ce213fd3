#include "batch/nest_placing.h"

#include "base/number_text.h"
#include "controls/forms.h"
#include "nest/nest_editing.h"
#include "nest/nest_model.h"

namespace {

int FindPart(const std::string& name) {
  for (int p = 1; p <= NestPartCount; ++p) {
    if (IsSameName(NestName(p), name)) {
      return p;
    }
  }
  return 0;
}

void PlaceSelected(const NestPlacing& placing) {
  const NestInstance& instance = NestInstances[static_cast<std::size_t>(NestCopySelected)];
  instance.pos_x(NestCurrent) = placing.x;
  instance.pos_y(NestCurrent) = placing.y;
  if (placing.flip) {
    Form2.Command1.Click();
  }
  if (placing.turn != 0) {
    RotateSelected(placing.turn);
  }
}

void LayOutPart(int p, const NestPartLayout& layout) {
  Form2.List1.SetListIndex(p - 1);
  PlaceSelected(layout.part);
  if (layout.copy) {
    Form2.Command5.Click();
    NestCopySelected = 1;
    PlaceSelected(*layout.copy);
    NestCopySelected = 0;
  }
}

void SetSheets(const NestLayout& layout) {
  Form2.Option1.Value = layout.sheets == 3;
  Form2.Option2.Value = layout.sheets == 4;
  Form2.Option3.Value = layout.sheets == 5;
  Form2.Text1.Text = PlainText(layout.height);
  Form2.Text2.Text = PlainText(layout.length);
}

}  // namespace

std::string LayOutParts(const NestLayout& layout) {
  SetSheets(layout);
  for (const NestPartLayout& part : layout.parts) {
    const int p = FindPart(part.name);
    if (p == 0) {
      return part.name;
    }
    LayOutPart(p, part);
  }
  return {};
}
