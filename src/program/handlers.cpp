#include "program/handlers.h"

#include <utility>

#include "controls/forms.h"
#include "hull/chine_count.h"
#include "hull/chine_spline.h"
#include "hull/rescaling.h"
#include "hydro/heel.h"
#include "hydro/results.h"
#include "hydro/waterline.h"
#include "hydro/waterline_search.h"
#include "nest/nest_editing.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "nest/nest_table.h"
#include "nest/nest_view.h"
#include "panels/save_and_create.h"
#include "panels/save_dialog.h"

namespace {

void BindForm1() {
  Form1.Refresh = RecomputeHull;
  Form1.Text3.Change = Text3_Change;
  Form1.VScroll1.Change = VScroll1_Change;
  Form1.HScroll1.Change = HScroll1_Change;
  Form1.Combo1.Click = Combo1_Click;
}

void BindMenus() {
  const std::pair<MenuItem*, void (*)()> items[] = {
      {&Form1.Dummy4, Dummy4_Click},
      {&Form1.displacement, displacement_Click},
      {&Form1.EnterWaterline, EnterWaterline_Click},
      {&Form1.Contours, Contours_Click},
      {&Form1.EnterPitch, EnterPitch_Click},
      {&Form1.EnterHeel, EnterHeel_Click},
      {&Form1.Freshwater, Freshwater_Click},
      {&Form1.Seawater, Seawater_Click},
      {&Form1.dummy12, dummy12_Click},
      {&Form1.dummy18, dummy18_Click},
      {&Form1.dummy19, dummy19_Click},
      {&Form1.dummy88, dummy88_Click},
  };
  for (const auto& [item, handler] : items) {
    item->Click = handler;
  }
}

void BindForm2Picture() {
  Form2.Picture1.Refresh = Form2_Picture1_Paint;
  Form2.Picture1.MouseDown = Form2_Picture1_MouseDown;
  Form2.Picture1.MouseMove = Form2_Picture1_MouseMove;
  Form2.Picture1.MouseUp = Form2_Picture1_MouseUp;
  Form2.Image3.Click = Form2_Image3_Click;
  Form2.Image4.Click = Form2_Image4_Click;
}

void BindForm2() {
  Form1.dummy15.Click = dummy15_Click;
  Form2.Unload = Form2_Unload;
  Form2.KeyDown = Form2_KeyDown;
  Form2.List1.Click = Form2_List1_Click;
  Form2.Command1.Click = Form2_Command1_Click;
  Form2.Command2.Click = Form2_Command2_Click;
  Form2.Command3.Click = Form2_Command3_Click;
  Form2.Command4.Click = Form2_Command4_Click;
  Form2.Command5.Click = Form2_Command5_Click;
  Form2.Command6.Click = Form2_Command6_Click;
  Form2.Command7.Click = Form2_Command7_Click;
  Form2.Command8.Click = Form2_Command8_Click;
  Form2.Command9.Click = Form2_Command9_Click;
  Form2.Command10.Click = Form2_Command10_Click;
  for (OptionButton* option : {&Form2.Option1, &Form2.Option2, &Form2.Option3}) {
    option->Click = Form2_Sheets_Change;
  }
  Form2.Text1.Change = Form2_Sheets_Change;
  Form2.Text2.Change = Form2_Sheets_Change;
  Form2.Check1.Click = Form2_Check1_Click;
  Form2.Check2.Click = [] { Form2.Picture1.Refresh(); };
  BindForm2Picture();
}

void BindForm3() {
  Form3.Text1.Change = Form3_Text1_Change;
  Form3.Text2.Change = Form3_Text2_Change;
  Form3.Text3.Change = Form3_Text3_Change;
  Form3.Text4.Change = Form3_Text4_Change;
  Form3.Text5.Change = Form3_Text5_Change;
  Form3.Text6.Change = Form3_Text6_Change;
  for (std::size_t i = 0; i < Form3.FrameText.size(); ++i) {
    Form3.FrameText[i].Change = [i] { FrameText_Change(static_cast<int>(i)); };
  }
  Form3.Command1.Click = SaveAndCreate;
}

}  // namespace

void BindHandlers() {
  BindForm1();
  BindMenus();
  BindForm2();
  BindForm3();
}
