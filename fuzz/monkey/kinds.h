#pragma once
// How each kind of control is used: the hand for a control of that kind, with its name, its window and how
// often it acts against the others.

#include <functional>
#include <string>

#include "controls/file_lists.h"
#include "controls/grid.h"
#include "monkey/checked_surface.h"
#include "monkey/diary.h"
#include "monkey/hands.h"
#include "monkey/texts.h"

using TextOf = std::string (*)(Stream&);

struct Position {
  double x;
  double y;
};
using PositionOf = std::function<Position(Stream&)>;

/// A text, typed or pasted, and Enter one time in two.
Hand Box(const char* name, const Window& window, TextBox& box, int weight, TextOf text = NumberText);

/// A button, or a picture that is one.
Hand Button(const char* name, const Window& window, const Event<>& click, int weight);
Hand Check(const char* name, const Window& window, CheckBox& box, int weight);
Hand Option(const char* name, const Window& window, OptionButton& option, int weight);

/// A slider: a step, a page, or any place.
Hand Slider(const char* name, const Window& window, ScrollBar& bar, int weight);

/// The two arrows of a spinner.
Hand Spinner(const char* name, const Window& window, ScrollBar& bar, int weight);
Hand Files(const char* name, const Window& window, FileListBox& list, int weight);
Hand Folders(const char* name, const Window& window, DirListBox& list, int weight);
Hand Drive(const char* name, const Window& window, DriveListBox& list, int weight);

/// In the scale that the surface has now; now and then beyond it, or far away.
Position SomewhereOn(const CheckedSurface& surface, Stream& stream);

/// A node of the hull in the view that is checked, if there is one there.
Position OnNode(const CheckedSurface& surface, Stream& stream);

/// Drags, clicks, double clicks and moves of the mouse, each at places that `place` tells.
Hand Mouse(const char* name, const Window& window, PictureBox& picture, int weight, PositionOf place);

/// A picture that answers to clicks alone.
Hand Thumbnail(const char* name, const Window& window, PictureBox& picture, int weight);
Hand Keys(const char* name, Window& window, int weight);

/// The close box in the window's frame.
Hand CloseBox(const char* name, Window& window, int weight);

/// The grid, cell by cell, those of the headings too; and the box that floats over a cell.
Hand Cells(const char* name, const Window& window, Grid& grid, int weight);
Hand CellBoxTyping(const char* name, const Window& window, FloatingTextBox& box, int weight);
Hand CellBoxLeaving(const char* name, const Window& window, FloatingTextBox& box, int weight);

/// What comes from outside of the windows.
Hand Outside(const char* name, int weight, void (*act)(Stream&));

/// A list whose rows can be chosen; one that has none offers nothing.
template <class List>
Hand Rows(const char* name, const Window& window, List& list, int weight) {
  const auto offered = [&list] {
    if constexpr (requires { list.Visible; }) {
      return *list.Visible && !list.Rows().empty();
    } else {
      return !list.Rows().empty();
    }
  };
  return {name, &window, weight, offered, [&list](Stream& stream) {
            const int row = stream.Below(static_cast<int>(list.Rows().size()));
            Tell("row " + std::to_string(row) + " is chosen");
            list.SetListIndex(row);
          }};
}
