#include "panels/save_dialog.h"

#include <array>
#include <cmath>
#include <optional>

#include "base/clock.h"
#include "base/files.h"
#include "base/number_text.h"
#include "base/platform.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "hull/hull_model.h"

namespace {

constexpr const char* SettingsFile = "hull.dat";

/// The check boxes in the order of the settings file.
std::array<CheckBox*, 10> SettingsBoxes() {
  return {&Form3.Check1, &Form3.Check3, &Form3.Check4, &Form3.Check5, &Form3.Check6,
          &Form3.Check2, &Form3.Check7, &Form3.Check8, &Form3.Check9, &Form3.Check10};
}

/// The first so many characters of a UTF-8 text, never a part of one.
std::string FirstCharacters(const std::string& text, int count) {
  const auto starts_character = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  std::size_t end = 0;
  while (end < text.size() && (count > 0 || !starts_character(text[end]))) {
    count -= starts_character(text[end]) ? 1 : 0;
    ++end;
  }
  return text.substr(0, end);
}

void FillBoxes() {
  for (int i = 0; i < FrameCount; ++i) {
    Form3.FrameText[static_cast<std::size_t>(i)].Text = FrameBoxText(i);
  }
  Form3.Text1.Text = HullFileName;
  Form3.Text2.Text = HullDesigner;
  Form3.Text3.Text = HullInfo;
  Form3.Text4.Text = HullContact;
  Form3.Text5.Text = HullDate;
}

}  // namespace

void Dummy4_Click() {
  PitchAngle = 0;
  ApplyPitch();
  if (!Form3.Loaded) {
    Form3_Load();
  }
  FillBoxes();
  Form3.Visible = true;
  Form3.ShowModal();
  Form3.File1.Refresh();
  Form3.Text1.Text = HullFileName;
}

void Form3_Load() {
  Form3.Loaded = true;
  Form3.Move(Place::Centre);
  Form3.Label3.Caption = Form3.Dir1.Path;
  ReadSaveSettings();
  if (Form3.Text6.Text->empty()) {
    Form3.Text6.Text = Form3.Dir1.Path;
  }
  Form3.Visible = true;
  Form3.Command1.SetFocus();
}

void Form3_Unload() {
  if (Form3.Loaded) {
    WriteSaveSettings();
    Form3.Loaded = false;
    Form3.Visible = false;
  }
}

void Form3_File1_Click() {
  if (!Form3.File1.FileName->empty()) {
    HullFileName = ChosenPath(Form3.Dir1, Form3.File1);
    Form3.Text1.Text = HullFileName;
  }
}

void Form3_Dir1_Change() {
  Form3.File1.Path = Form3.Dir1.Path;
  Form3.Label3.Caption = Form3.Dir1.Path;
}

void Form3_Drive1_Change() {
  Form3.Dir1.Path = Form3.Drive1.Drive;
}

void Form3_Command2_Click() {
  Form1.StatusBar1.Panels[1] = "Working on..." + HullFileName;
  Form1.Refresh();
  Form3.File1.Refresh();
  Form3.Visible = false;
}

void Form3_Command3_Click() {
  Form3.Text5.Text = DateText();
}

void Form3_Text1_KeyPress(int key) {
  if (key == EnterKey) {
    Form3.Command1.Click();
  }
}

void Form3_KeyDown(int& key) {
  if (key == EscapeKey) {
    key = NoKey;
    Form3.Command2.Click();
  }
}

void Form3_GotFocus() {
  Form3.Command1.SetFocus();
}

void Form3_Text1_Change() {
  const std::string typed = Form3.Text1.Text;
  const std::size_t dot = typed.find('.');
  Form3.Text1.Text = (dot == std::string::npos ? FirstCharacters(typed, 8) : typed.substr(0, dot)) + ".tvh";
  HullFileName = WithOwnSeparators(Form3.Text1.Text);
}

void Form3_Text2_Change() {
  HullDesigner = Form3.Text2.Text;
}

void Form3_Text3_Change() {
  HullInfo = Form3.Text3.Text;
}

void Form3_Text4_Change() {
  HullContact = Form3.Text4.Text;
}

void Form3_Text5_Change() {
  HullDate = Form3.Text5.Text;
}

void Form3_Text6_Change() {
  ExportPath = WithOwnSeparators(Form3.Text6.Text);
  if (ExportPath.empty() || ExportPath.back() != PathSeparator) {
    ExportPath += PathSeparator;
  }
}

void FrameText_Change(int index) {
  const auto i = static_cast<std::size_t>(index);
  const double z = std::abs(NumberOf(*Form3.FrameText[i].Text));
  if (HasValue(z)) {
    FrameZ[i] = z;
  }
}

void ReadSaveSettings() {
  const std::optional<std::string> text = ReadTextFile(FindFile(SettingsFile));
  if (!text) {
    return;
  }
  TextReader in(*text);
  std::string_view item;
  for (CheckBox* box : SettingsBoxes()) {
    if (in.ReadItem(item)) {
      const double number = NumberOf(item);
      box->Value = HasValue(number) ? number != 0 : *box->Value;
    }
  }
  if (in.ReadItem(item)) {
    Form3.Text6.Text = std::string(item);
  }
}

void WriteSaveSettings() {
  std::string out;
  for (const CheckBox* box : SettingsBoxes()) {
    PutLine(out, PrintText(box->Value ? 1 : 0));
  }
  PutLine(out, *Form3.Text6.Text);
  WriteTextFile(SettingsFile, out);
}
