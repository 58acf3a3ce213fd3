#include "monkey/hands.h"

#include <utility>

#include "controls/forms.h"
#include "monkey/diary.h"
#include "monkey/faces.h"
#include "monkey/kinds.h"
#include "monkey/sandbox.h"
#include "monkey/texts.h"
#include "program/menus.h"

namespace {

/// How often a hand acts. What fills the hull, or paints, is the work of a session; what writes forty
/// files is rare, because it is slow.
constexpr int Often = 40;
constexpr int Usual = 8;
constexpr int Seldom = 2;
constexpr int Hardly = 1;

/// How often an item of the menus acts. The waterline is on only until the next edit, so that what needs
/// it has to come soon.
int WeightOf(const MenuItem& item) {
  const std::pair<const MenuItem*, int> others[] = {{&Form1.EnterHeel, 2 * Often},
                                                    {&Form1.EnterWaterline, 2 * Usual},
                                                    {&Form1.displacement, Usual},
                                                    {&Form1.EnterPitch, Seldom},
                                                    {&Form1.dummy6, Seldom}};
  for (const auto& [other, weight] : others) {
    if (other == &item) {
      return weight;
    }
  }
  return Usual;
}

void AddMenuItems(std::vector<Hand>& hands) {
  for (const MenuRow& row : Form1Menus()) {
    if (row.item != nullptr) {
      MenuItem& item = *row.item;
      hands.push_back({std::string("menu ") + row.caption, &Form1, WeightOf(item),
                       [&item] { return *item.Enabled; }, [&item](Stream&) { item.Click(); }});
    }
  }
}

void AddForm1(std::vector<Hand>& hands) {
  MainWindow& f = Form1;
  hands.insert(hands.end(), {
                                Box("Form1.Text1(0)", f, f.Text1[0], Seldom),
                                Box("Form1.Text1(1)", f, f.Text1[1], Seldom),
                                Box("Form1.Text1(2)", f, f.Text1[2], Seldom),
                                Box("Form1.Text1(3)", f, f.Text1[3], Seldom),
                                Box("Form1.Text1(4)", f, f.Text1[4], Seldom),
                                Box("Form1.Text3", f, f.Text3, Seldom,
                                    [](Stream& stream) {
                                      return stream.OneIn(4) ? NumberText(stream)
                                                             : std::to_string(2 + stream.Below(8));
                                    }),
                                Spinner("Form1.VScroll1", f, f.VScroll1, Usual),
                                Slider("Form1.HScroll1", f, f.HScroll1, 4 * Often),
                                Rows("Form1.Combo1", f, f.Combo1, Usual),
                                Button("Form1.Command1", f, f.Command1.Click, Usual),
                                Button("Form1.Command5", f, f.Command5.Click, Usual),
                                Button("Form1.Command6", f, f.Command6.Click, Usual),
                                Button("Form1.Command2", f, f.Command2.Click, Hardly),
                                Thumbnail("Form1.Picture1(0)", f, f.Picture1[0], Usual),
                                Thumbnail("Form1.Picture1(1)", f, f.Picture1[1], Usual),
                                Thumbnail("Form1.Picture1(2)", f, f.Picture1[2], Usual),
                                Mouse("Form1.Picture2 around a node", f, f.Picture2, 2 * Often,
                                      [](Stream& stream) { return OnNode(MainPicture, stream); }),
                                Mouse("Form1.Picture2", f, f.Picture2, 2 * Often,
                                      [](Stream& stream) { return SomewhereOn(MainPicture, stream); }),
                                Thumbnail("Form1.Picture3", f, f.Picture3, Usual),
                                Keys("Form1", f, Usual),
                                CloseBox("Form1", f, Hardly),
                            });
}

void AddForm2(std::vector<Hand>& hands) {
  NestingWindow& f = Form2;
  hands.insert(hands.end(), {
                                Rows("Form2.List1", f, f.List1, Often),
                                Button("Form2.Command1", f, f.Command1.Click, Usual),
                                Button("Form2.Command2", f, f.Command2.Click, Usual),
                                Button("Form2.Command3", f, f.Command3.Click, Usual),
                                Button("Form2.Command4", f, f.Command4.Click, Usual),
                                Button("Form2.Command5", f, f.Command5.Click, Usual),
                                Button("Form2.Command6", f, f.Command6.Click, Usual),
                                Button("Form2.Command7", f, f.Command7.Click, Usual),
                                Button("Form2.Command8", f, f.Command8.Click, Seldom),
                                Button("Form2.Command9", f, f.Command9.Click, Seldom),
                                Button("Form2.Command10", f, f.Command10.Click, Seldom),
                                Option("Form2.Option1", f, f.Option1, Seldom),
                                Option("Form2.Option2", f, f.Option2, Seldom),
                                Option("Form2.Option3", f, f.Option3, Seldom),
                                Box("Form2.Text1", f, f.Text1, Seldom),
                                Box("Form2.Text2", f, f.Text2, Seldom),
                                Check("Form2.Check1", f, f.Check1, Seldom),
                                Check("Form2.Check2", f, f.Check2, Usual),
                                Mouse("Form2.Picture1", f, f.Picture1, Often,
                                      [](Stream& stream) { return SomewhereOn(SheetPicture, stream); }),
                                Button("Form2.Image3", f, f.Image3.Click, Usual),
                                Button("Form2.Image4", f, f.Image4.Click, Usual),
                                Keys("Form2", f, Usual),
                                CloseBox("Form2", f, Hardly),
                            });
}

void AddForm3(std::vector<Hand>& hands) {
  SaveWindow& f = Form3;
  static const char* const frames[] = {"Form3.FrameText(0)", "Form3.FrameText(1)", "Form3.FrameText(2)",
                                       "Form3.FrameText(3)", "Form3.FrameText(4)", "Form3.FrameText(5)",
                                       "Form3.FrameText(6)", "Form3.FrameText(7)"};
  for (std::size_t i = 0; i < f.FrameText.size(); ++i) {
    hands.push_back(Box(frames[i], f, f.FrameText[i], Usual));
  }
  hands.insert(hands.end(), {
                                Box("Form3.Text1", f, f.Text1, Usual, FileNameText),
                                Files("Form3.File1", f, f.File1, Usual),
                                Folders("Form3.Dir1", f, f.Dir1, Usual),
                                Drive("Form3.Drive1", f, f.Drive1, Hardly),
                                Box("Form3.Text2", f, f.Text2, Usual, OddText),
                                Box("Form3.Text3", f, f.Text3, Usual, OddText),
                                Box("Form3.Text4", f, f.Text4, Usual, OddText),
                                Box("Form3.Text5", f, f.Text5, Usual, OddText),
                                Button("Form3.Command3", f, f.Command3.Click, Usual),
                                Box("Form3.Text6", f, f.Text6, Usual, SomeExportPath),
                                Check("Form3.Check1", f, f.Check1, Seldom),
                                Check("Form3.Check2", f, f.Check2, Usual),
                                Check("Form3.Check3", f, f.Check3, Usual),
                                Check("Form3.Check4", f, f.Check4, Usual),
                                Check("Form3.Check5", f, f.Check5, Usual),
                                Check("Form3.Check6", f, f.Check6, Usual),
                                Check("Form3.Check7", f, f.Check7, Usual),
                                Check("Form3.Check8", f, f.Check8, Usual),
                                Check("Form3.Check9", f, f.Check9, Usual),
                                Check("Form3.Check10", f, f.Check10, Usual),
                                Button("Form3.Command1", f, f.Command1.Click, 2 * Usual),
                                Button("Form3.Command2", f, f.Command2.Click, Seldom),
                                Button("Form3, to which the keyboard comes,", f, f.GotFocus, Hardly),
                                Keys("Form3", f, Usual),
                                CloseBox("Form3", f, Hardly),
                            });
}

void AddForm4(std::vector<Hand>& hands) {
  OpenWindow& f = Form4;
  static const char* const figures[] = {"Form4.Picture2(0)", "Form4.Picture2(1)", "Form4.Picture2(2)",
                                        "Form4.Picture2(3)", "Form4.Picture2(4)", "Form4.Picture2(5)",
                                        "Form4.Picture2(6)", "Form4.Picture2(7)", "Form4.Picture2(8)"};
  for (std::size_t i = 0; i < f.Picture2.size(); ++i) {
    hands.push_back(Thumbnail(figures[i], f, f.Picture2[i], Seldom));
  }
  hands.insert(hands.end(), {
                                Files("Form4.File1", f, f.File1, Often),
                                Folders("Form4.Dir1", f, f.Dir1, Usual),
                                Drive("Form4.Drive1", f, f.Drive1, Hardly),
                                Button("Form4.Command1", f, f.Command1.Click, Usual),
                                Box("Form4.Text3", f, f.Text3, Seldom),
                                Spinner("Form4.VScroll2", f, f.VScroll2, Usual),
                                Box("Form4.Text8", f, f.Text8, Seldom),
                                Button("Form4.Command5", f, f.Command5.Click, Usual),
                                Button("Form4.Command6", f, f.Command6.Click, Usual),
                                Button("Form4.Command7", f, f.Command7.Click, Usual),
                                Box("Form4.Text2", f, f.Text2, Usual),
                                Box("Form4.Text4", f, f.Text4, Usual),
                                Box("Form4.Text10", f, f.Text10, Usual),
                                Box("Form4.Text5", f, f.Text5, Usual),
                                Box("Form4.Text9", f, f.Text9, Usual),
                                Box("Form4.Text6", f, f.Text6, Usual),
                                Box("Form4.Text7", f, f.Text7, Usual),
                                Option("Form4.Option1", f, f.Option1, Usual),
                                Option("Form4.Option2", f, f.Option2, Usual),
                                Check("Form4.Rig", f, f.Rig, Usual),
                                Box("Form4.Text11", f, f.Text11, Seldom),
                                Box("Form4.Text12", f, f.Text12, Seldom),
                                Box("Form4.Text13", f, f.Text13, Seldom),
                                CloseBox("Form4", f, Hardly),
                            });
}

void AddForm5(std::vector<Hand>& hands) {
  OffsetsWindow& f = Form5;
  hands.insert(hands.end(), {
                                Cells("Form5.Grid1", f, f.Grid1, Often),
                                CellBoxTyping("Form5.Text1", f, f.Text1, Often),
                                CellBoxLeaving("Form5.Text1", f, f.Text1, Usual),
                                CloseBox("Form5", f, Hardly),
                            });
}

void AddWorld(std::vector<Hand>& hands) {
  hands.insert(hands.end(), {
                                Outside("the clock", Usual,
                                        [](Stream&) {
                                          Tell("ticks");
                                          Form1.Timer1();
                                        }),
                                Outside("the desk:", Seldom, ResizeWindows),
                                Outside("the disk:", Seldom, MeddleWithFiles),
                                Hand{"the power", nullptr, 2 * Seldom, [] { return !Form3.Visible; },
                                     [](Stream&) {
                                       Tell("fails right after the clock ticked");
                                       Form1.Timer1();
                                       ProgramEnded = true;
                                     }},
                            });
}

bool Offered(const Hand& hand) {
  if (Form3.Visible && hand.window != &Form3 && hand.window != nullptr) {
    return false;
  }
  return (hand.window == nullptr || *hand.window->Visible) && (hand.offered == nullptr || hand.offered());
}

}  // namespace

const std::vector<Hand>& Hands() {
  static const std::vector<Hand> hands = [] {
    std::vector<Hand> all;
    AddMenuItems(all);
    AddForm1(all);
    AddForm2(all);
    AddForm3(all);
    AddForm4(all);
    AddForm5(all);
    AddWorld(all);
    return all;
  }();
  return hands;
}

void ActOnce(Stream& stream) {
  std::vector<const Hand*> offered;
  int weight = 0;
  for (const Hand& hand : Hands()) {
    if (Offered(hand)) {
      offered.push_back(&hand);
      weight += hand.weight;
    }
  }
  int place = stream.Below(weight);
  for (const Hand* hand : offered) {
    place -= hand->weight;
    if (place < 0) {
      Tell(hand->name);
      hand->act(stream);
      return;
    }
  }
}
