#include "program/handlers.h"

#include "controls/forms.h"
#include "hull/bulkhead_boxes.h"
#include "hull/chine_count.h"
#include "hull/figures.h"
#include "hull/offsets_table.h"
#include "hull/open_dialog.h"
#include "hydro/results.h"
#include "hydro/waterline.h"
#include "nest/nest_editing.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "nest/nest_table.h"
#include "nest/nest_view.h"
#include "panels/save_and_create.h"
#include "panels/save_dialog.h"
#include "program/menus.h"
#include "program/session.h"
#include "views/node_editing.h"
#include "views/repaint.h"
#include "views/spin_view.h"
#include "views/view_choice.h"
#include "views/vrml.h"

namespace {

void BindForm1() {
  Form1.Refresh = Form_Paint;
  Form1.Text3.Change = Text3_Change;
  Form1.VScroll1.Change = VScroll1_Change;
  Form1.HScroll1.Change = HScroll1_Change;
  Form1.Combo1.Click = Combo1_Click;
  for (std::size_t i = 0; i < Form1.Text1.size(); ++i) {
    Form1.Text1[i].KeyPress = [i](int key) { Text1_KeyPress(static_cast<int>(i), key); };
  }
  Form1.Timer1 = Timer1_Timer;
  Form1.QueryUnload = Form_QueryUnload;
}

void BindViews() {
  Form1.Picture2.Refresh = Picture2_Paint;
  Form1.Picture2.MouseDown = Picture2_MouseDown;
  Form1.Picture2.MouseMove = Picture2_MouseMove;
  Form1.Picture2.MouseUp = Picture2_MouseUp;
  Form1.Picture2.DblClick = Picture2_DblClick;
  for (std::size_t i = 0; i < Form1.Picture1.size(); ++i) {
    Form1.Picture1[i].Click = [i] { Picture1_Click(static_cast<int>(i)); };
  }
  Form1.Picture3.Click = Picture3_Click;
  Form1.Command1.Click = Command1_Click;
  Form1.Command5.Click = Command5_Click;
  Form1.Command6.Click = Command6_Click;
  Form1.Command2.Click = Command2_Click;
  Form1.KeyDown = Form_KeyDown;
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
  Form2.Unload = Form2_Unload;
  Form2.KeyDown = Form2_KeyDown;
  Form2.Resize = Form2_Resize;
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
  Form3.Unload = Form3_Unload;
  Form3.KeyDown = Form3_KeyDown;
  Form3.GotFocus = Form3_GotFocus;
  Form3.File1.Click = Form3_File1_Click;
  Form3.Dir1.Change = Form3_Dir1_Change;
  Form3.Drive1.Change = Form3_Drive1_Change;
  Form3.Text1.KeyPress = Form3_Text1_KeyPress;
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
  Form3.Command2.Click = Form3_Command2_Click;
  Form3.Command3.Click = Form3_Command3_Click;
}

void BindFigures() {
  for (std::size_t i = 0; i < Form4.Picture2.size(); ++i) {
    Form4.Picture2[i].Click = [i] { Form4_Picture2_Click(static_cast<int>(i)); };
  }
  Form4.Text3.Change = Form4_Text3_Change;
  Form4.VScroll2.Change = Form4_VScroll2_Change;
  Form4.Text8.Change = Form4_Text8_Change;
  Form4.Command5.Click = Form4_Command5_Click;
  Form4.Command6.Click = Form4_Command6_Click;
  Form4.Command7.Click = Form4_Command7_Click;
}

void BindRigAndBallast() {
  for (const NumberBox& box : RigNumbers()) {
    box.box->Change = [box] { RigBox_Change(box); };
  }
  for (const NumberBox& box : BallastNumbers()) {
    box.box->Change = [box] { BallastBox_Change(box); };
  }
  for (Event<>* click : {&Form4.Rig.Click, &Form4.Option1.Click, &Form4.Option2.Click}) {
    *click = [] { Form1.Picture2.Refresh(); };
  }
}

void BindForm4() {
  Form4.QueryUnload = Form4_QueryUnload;
  Form4.File1.Click = Form4_File1_Click;
  Form4.Dir1.Change = Form4_Dir1_Change;
  Form4.Drive1.Change = Form4_Drive1_Change;
  Form4.Command1.Click = Form4_Command1_Click;
  BindFigures();
  BindRigAndBallast();
}

void BindForm5() {
  Form5.Unload = Form5_Unload;
  Form5.Grid1.Click = Form5_Grid1_Click;
  Form5.Text1.Change = Form5_Text1_Change;
  Form5.Text1.KeyPress = Form5_Text1_KeyPress;
  Form5.Text1.LostFocus = Form5_Text1_LostFocus;
}

}  // namespace

void BindHandlers() {
  BindForm1();
  BindViews();
  BindMenus();
  BindForm2();
  BindForm3();
  BindForm4();
  BindForm5();
}
