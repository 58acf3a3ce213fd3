#include "program/handlers.h"

#include "controls/forms.h"
#include "hull/bulkhead_boxes.h"
#include "hull/chine_count.h"
#include "hydro/results.h"
#include "hydro/waterline.h"
#include "panels/save_and_create.h"
#include "panels/save_dialog.h"
#include "program/menus.h"
#include "program/session.h"
#include "views/node_editing.h"
#include "views/repaint.h"
#include "views/spin_view.h"
#include "views/view_choice.h"

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
  Form1.KeyDown = Form_KeyDown;
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
  BindViews();
  BindMenus();
  BindForm3();
}
