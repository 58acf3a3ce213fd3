#include "panels/part_list.h"

#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

using Names = std::vector<std::string>;

void AddIf(const CheckBox& box, Names& names, std::initializer_list<const char*> more) {
  if (box.Value) {
    names.insert(names.end(), more.begin(), more.end());
  }
}

void AddCenterPanels(Names& names) {
  AddIf(Form3.Check9, names, {"deck"});
  AddIf(Form3.Check10, names, {"keel"});
  AddIf(Form3.Check8, names, {"sole1", "sole2"});
}

void AddChinePanels(Names& names) {
  for (int c = 1; c < NumChines; ++c) {
    names.push_back("chine" + std::to_string(c));
  }
}

void AddFlatParts(Names& names) {
  AddIf(Form3.Check7, names, {"stem"});
  names.insert(names.end(), {"transom", "bhead1", "bhead2", "bhead3"});
}

void AddFrames(Names& names) {
  for (int i = 0; i < FrameCount; ++i) {
    if (FrameInches(i) > 0) {
      names.push_back("frame" + std::to_string(i + 1));
    }
  }
}

Names AllParts(bool with_sheet) {
  Names names;
  AddFlatParts(names);
  AddCenterPanels(names);
  AddFrames(names);
  if (with_sheet) {
    names.push_back("4x8");
  }
  AddChinePanels(names);
  return names;
}

}  // namespace

Names DevelopedPanels() {
  Names names;
  AddCenterPanels(names);
  AddChinePanels(names);
  return names;
}

Names HandPlottedParts() {
  return AllParts(false);
}

Names ExportedParts() {
  return AllParts(true);
}
