#include "monkey/kinds.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <vector>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_case.h"
#include "controls/form1.h"
#include "hull/hull_model.h"
#include "monkey/sandbox.h"
#include "views/view.h"

namespace fs = std::filesystem;

namespace {

/// A character after the other, or pasted; then Enter, one time in two.
void Type(TextBox& box, const std::string& text, bool enter, Stream& stream) {
  const bool by_letters = text.size() < 12 && stream.OneIn(2);
  Tell((by_letters ? "types " : "takes ") + Quoted(text) + (enter ? " and Enter" : ""));
  for (std::size_t n = 1; by_letters && n <= text.size(); ++n) {
    box.KeyPress(static_cast<unsigned char>(text[n - 1]));
    box.Text = text.substr(0, n);
  }
  box.Text = text;
  if (enter) {
    box.KeyPress(EnterKey);
  }
}

void MoveBar(ScrollBar& bar, int value) {
  Tell("goes from " + std::to_string(bar.Value()) + " to " + std::to_string(value));
  bar.SetValue(value);
}

std::vector<std::string> HullsIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code failed;
  for (const auto& entry : fs::directory_iterator(folder, failed)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file() && LowerCase(name).ends_with(".tvh")) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

double Huge(Stream& stream) {
  return std::pow(10.0, stream.Between(3, 308)) * (stream.OneIn(2) ? 1 : -1);
}

std::string Words(const Position& at) {
  return "(" + PlainText(at.x) + ", " + PlainText(at.y) + ")";
}

/// Only the left button clicks.
void Release(PictureBox& picture, int button, const Position& at) {
  picture.MouseUp(button, at.x, at.y);
  if (button == 1) {
    picture.Click();
  }
}

/// Down, some moves, up. Now and then the clock ticks meanwhile, and a part of it is missing, as when
/// the button went down or up elsewhere.
void Drag(PictureBox& picture, const PositionOf& place, Stream& stream) {
  const int button = stream.OneIn(4) ? 2 : 1;
  const Position from = place(stream);
  Tell(std::string(button == 1 ? "left" : "right") + " drag from " + Words(from));
  if (!stream.OneIn(20)) {
    picture.MouseDown(button, from.x, from.y);
  }
  Position at = from;
  for (int moves = stream.Below(3); moves >= 0; --moves) {
    at = place(stream);
    Tell("to " + Words(at));
    picture.MouseMove(button, at.x, at.y);
  }
  if (stream.OneIn(50)) {
    Tell("(the clock ticks)");
    Form1.Timer1();
  }
  if (!stream.OneIn(20)) {
    Release(picture, button, at);
  }
}

void Press(PictureBox& picture, const PositionOf& place, bool twice, Stream& stream) {
  const int button = stream.OneIn(4) ? 2 : 1;
  const Position at = place(stream);
  Tell((twice ? "double click at " : "click at ") + Words(at));
  picture.MouseDown(button, at.x, at.y);
  Release(picture, button, at);
  if (twice) {
    picture.DblClick();
    picture.MouseUp(button, at.x, at.y);
  }
}

}  // namespace

Hand Box(const char* name, const Window& window, TextBox& box, int weight, TextOf text) {
  return {name, &window, weight, nullptr, [&box, text](Stream& stream) {
            const std::string typed = text(stream);
            Type(box, typed, stream.OneIn(2), stream);
          }};
}

Hand Button(const char* name, const Window& window, const Event<>& click, int weight) {
  return {name, &window, weight, nullptr, [&click](Stream&) {
            Tell("is clicked");
            click();
          }};
}

Hand Check(const char* name, const Window& window, CheckBox& box, int weight) {
  return {name, &window, weight, nullptr, [&box](Stream&) {
            Tell(box.Value ? "is unchecked" : "is checked");
            box.Value = !box.Value;
          }};
}

Hand Option(const char* name, const Window& window, OptionButton& option, int weight) {
  return {name, &window, weight, nullptr, [&option](Stream&) {
            Tell("is chosen");
            option.Value = true;
          }};
}

Hand Slider(const char* name, const Window& window, ScrollBar& bar, int weight) {
  return {name, &window, weight, [&bar] { return *bar.Visible; },
          [&bar](Stream& stream) {
            constexpr int steps[] = {-10, -1, 1, 10};
            const int place = bar.Low() + stream.Below(bar.High() - bar.Low() + 1);
            MoveBar(bar, stream.OneIn(2) ? bar.Value() + stream.Of(steps) : place);
          }};
}

Hand Spinner(const char* name, const Window& window, ScrollBar& bar, int weight) {
  return {name, &window, weight, nullptr,
          [&bar](Stream& stream) { MoveBar(bar, bar.Value() + (stream.OneIn(2) ? 1 : -1)); }};
}

Hand Files(const char* name, const Window& window, FileListBox& list, int weight) {
  return {name, &window, weight, nullptr, [&list](Stream& stream) {
            const std::vector<std::string> names = HullsIn(list.Path);
            if (names.empty()) {
              Tell("is empty");
              return;
            }
            const std::string chosen = stream.Of(names);
            Tell(Quoted(chosen) + " is chosen");
            list.FileName = chosen;
            list.Click();
          }};
}

Hand Folders(const char* name, const Window& window, DirListBox& list, int weight) {
  return {name, &window, weight, nullptr, [&list](Stream& stream) {
            const std::string folder = SomeFolder(stream);
            Tell(Quoted(fs::path(folder).filename().string()) + " is opened");
            list.Path = folder;
          }};
}

Hand Drive(const char* name, const Window& window, DriveListBox& list, int weight) {
  return {name, &window, weight, nullptr, [&list](Stream&) {
            Tell("is chosen");
            list.Drive = SandboxDrive();
          }};
}

Position SomewhereOn(const CheckedSurface& surface, Stream& stream) {
  const double beyond = stream.OneIn(6) ? 2 : 0;
  const double u = stream.Between(-beyond, 1 + beyond);
  const double v = stream.Between(-beyond, 1 + beyond);
  if (stream.OneIn(8) && stream.IsOdd()) {
    return {Huge(stream), Huge(stream)};
  }
  // A scale may be too wide to be counted across; a face tells no place on it.
  const Position at{surface.left + u * (surface.right - surface.left),
                    surface.bottom + v * (surface.top - surface.bottom)};
  return HasValue(at.x) && HasValue(at.y) ? at : Position{0, 0};
}

Position OnNode(const CheckedSurface& surface, Stream& stream) {
  const View view = CheckedView();
  if (view == View::Spin) {
    return SomewhereOn(surface, stream);
  }
  const int chine = 1 + stream.Below(NumChines);
  const ViewPoint at = Form1.AutoSpline.Checked ? OffsetNode(AxesOf(view), chine, stream.Below(Bulkheads))
                                                : HullPoint(AxesOf(view), 1 + stream.Below(Stations), chine);
  return {at.u, at.v};
}

Hand Mouse(const char* name, const Window& window, PictureBox& picture, int weight, PositionOf place) {
  return {name, &window, weight, nullptr, [&picture, place = std::move(place)](Stream& stream) {
            const int what = stream.Below(8);
            if (what < 4) {
              Drag(picture, place, stream);
            } else if (what < 6) {
              const Position at = place(stream);
              Tell("the mouse moves to " + Words(at));
              picture.MouseMove(0, at.x, at.y);
            } else {
              Press(picture, place, what == 7, stream);
            }
          }};
}

Hand Thumbnail(const char* name, const Window& window, PictureBox& picture, int weight) {
  return Mouse(name, window, picture, weight, [](Stream& stream) {
    return Position{stream.Between(-10, 200), stream.Between(-10, 200)};
  });
}

Hand Keys(const char* name, Window& window, int weight) {
  return {name, &window, weight, nullptr, [&window](Stream& stream) {
            constexpr int keys[] = {LeftKey, UpKey, RightKey, DownKey, EnterKey, EscapeKey, 65, 0};
            int key = stream.Of(keys);
            Tell("key " + std::to_string(key));
            window.KeyDown(key);
          }};
}

Hand CloseBox(const char* name, Window& window, int weight) {
  return {name, &window, weight, nullptr, [&window](Stream&) {
            Tell("is closed");
            bool refuse = false;
            window.QueryUnload(refuse);
            if (!refuse) {
              window.Visible = false;
              window.Unload();
            }
          }};
}

Hand Cells(const char* name, const Window& window, Grid& grid, int weight) {
  return {name, &window, weight, nullptr, [&grid](Stream& stream) {
            const int row = stream.Below(grid.Rows() + 1);
            const int column = stream.Below(grid.Cols());
            Tell("cell " + std::to_string(row) + ", " + std::to_string(column) + " is clicked");
            grid.Select(row, column);
            grid.Click();
          }};
}

Hand CellBoxTyping(const char* name, const Window& window, FloatingTextBox& box, int weight) {
  return {name, &window, weight, [&box] { return *box.Visible; },
          [&box](Stream& stream) {
            const std::string typed = NumberText(stream);
            Type(box, typed, stream.OneIn(3), stream);
          }};
}

Hand CellBoxLeaving(const char* name, const Window& window, FloatingTextBox& box, int weight) {
  return {name, &window, weight, [&box] { return *box.Visible; },
          [&box](Stream& stream) {
            const HeldKeys held{stream.OneIn(5), !stream.OneIn(5), stream.OneIn(2)};
            Tell(std::string("is left") + (held.Tab ? " by Tab" : "") + (held.Shift ? " and Shift" : "") +
                 (held.LeftButton ? " with the mouse" : ""));
            box.LostFocus(held);
          }};
}

Hand Outside(const char* name, int weight, void (*act)(Stream&)) {
  return {name, nullptr, weight, nullptr, act};
}
