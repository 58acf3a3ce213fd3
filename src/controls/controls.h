#pragma once
// The contract of controls: each is state plus events. A face (the window program, the command line
// program, a test) shows the state and passes the user's acts in; a handler reads and sets the
// state and never knows which face there is.

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "controls/property.h"
#include "views/draw_surface.h"

/// The codes of the keys that handlers answer to.
enum KeyCode {
  NoKey = 0,
  EnterKey = 13,
  EscapeKey = 27,
  LeftKey = 37,
  UpKey = 38,
  RightKey = 39,
  DownKey = 40
};

struct Label {
  explicit Label(std::string caption = {}) : Caption(std::move(caption)) {}
  Property<std::string> Caption;
};

struct TextBox {
  explicit TextBox(std::string text = {}) : Text(Change, std::move(text)) {}
  Event<> Change;
  /// A character was typed, told by its code.
  Event<int> KeyPress;
  /// The face's slot: the keyboard goes here.
  Event<> SetFocus;
  Property<std::string> Text;
};

struct CheckBox {
  explicit CheckBox(std::string caption, bool checked = false)
      : Caption(std::move(caption)), Value(Click, checked) {}
  Property<std::string> Caption;
  Event<> Click;
  Property<bool> Value;
};

/// One of a group: choosing it takes the choice from the others. Click comes to the chosen one only.
class OptionButton {
 public:
  OptionButton(std::string caption, std::vector<OptionButton*> others)
      : Caption(std::move(caption)), Value(changed_) {
    changed_ = [this, group = std::move(others)] {
      if (Value) {
        for (OptionButton* other : group) {
          other->Value = false;
        }
        Click();
      }
    };
  }
  Property<std::string> Caption;
  Event<> Click;

 private:
  Event<> changed_;

 public:
  Property<bool> Value;
};

struct CommandButton {
  explicit CommandButton(std::string caption = {}) : Caption(std::move(caption)) {}
  Property<std::string> Caption;
  Event<> Click;
  /// The face's slot: the keyboard goes here.
  Event<> SetFocus;
};

struct MenuItem {
  Event<> Click;
  Property<bool> Checked;
  Property<bool> Enabled{true};
};

/// The ends may be reversed (Min above Max). The value can lie outside of them, because setting Min
/// never moves it; a face must not bring it back by itself.
class ScrollBar {
 public:
  static constexpr int SmallChange = 1;

  ScrollBar(int min, int max, int value) : min_(min), max_(max), value_(value) {}

  Event<> Change;
  /// The face's slot: put the ends and the value on the screen.
  Event<> Show;
  Property<bool> Visible;

  int Min() const { return min_; }
  /// Never moves the value.
  void SetMin(int min);

  int Max() const { return max_; }
  /// A value beyond the new end is brought to the nearer of the two ends, which raises Change.
  void SetMax(int max);

  int Value() const { return value_; }
  /// A value outside of the two ends is a failed statement; the value it has raises nothing.
  void SetValue(int value);

  int Low() const { return min_ < max_ ? min_ : max_; }
  int High() const { return min_ < max_ ? max_ : min_; }

 private:
  int min_;
  int max_;
  int value_;
};

/// A drop-down list: the user's choice shows in its edit line.
class ComboBox {
 public:
  Event<> Click;
  explicit ComboBox(std::string text = {}) : Text(std::move(text)) {}

  Property<bool> Visible;
  Property<std::string> Text;
  /// The face's slot: put the rows on the screen.
  Event<> Show;

  const std::vector<std::string>& Rows() const { return rows_; }
  /// Replaces all rows and takes the choice away; the edit line stays.
  void SetRows(std::vector<std::string> rows);

  /// The chosen row from 0, -1 for none.
  int ListIndex() const { return list_index_; }
  /// Chooses a row, shows it in the edit line and raises Click. A row that isn't there is a failed
  /// statement.
  void SetListIndex(int row);

 private:
  std::vector<std::string> rows_;
  int list_index_ = -1;
};

/// A list that is always open.
class ListBox {
 public:
  Event<> Click;
  /// The face's slot: put the rows and the choice on the screen.
  Event<> Show;

  const std::vector<std::string>& Rows() const { return rows_; }
  void AddItem(std::string row);
  void Clear();

  /// The chosen row from 0, -1 for none.
  int ListIndex() const { return list_index_; }
  /// Chooses a row and raises Click, also for the row that was chosen. A row that isn't there is a
  /// failed statement.
  void SetListIndex(int row);

 private:
  std::vector<std::string> rows_;
  int list_index_ = -1;
};

/// A picture with the mouse over it. Handlers draw on its surface by `->` and `*`; a face puts its
/// own surface in place of the empty one. The mouse comes in the surface's coordinates, with the
/// button's number: 1 left, 2 right, 0 none.
class PictureBox {
 public:
  PictureBox& operator=(DrawSurface* surface) {
    surface_ = surface;
    return *this;
  }
  DrawSurface* operator->() const { return surface_; }
  DrawSurface& operator*() const { return *surface_; }

  /// Fires the paint handler at once.
  Event<> Refresh;
  /// The face's slot: what was drawn goes to the screen now, in the middle of a long handler.
  Event<> ShowNow;
  Event<> Click;
  Event<> DblClick;
  Event<int, double, double> MouseDown;
  Event<int, double, double> MouseMove;
  Event<int, double, double> MouseUp;

 private:
  DrawSurface no_surface_;
  DrawSurface* surface_ = &no_surface_;
};

/// Where a window goes on the screen.
enum class Place { Centre, TopLeft, BottomRight };

/// What all windows have.
struct Window {
  explicit Window(std::string caption) : Caption(std::move(caption)) {}

  Property<std::string> Caption;
  Property<bool> Visible;
  /// The face's slot: before all others on the screen, also if the user made it small.
  Event<> ToFront;
  /// Shows the window, or brings the one that is open to the front.
  void Open() {
    Visible = true;
    ToFront();
  }
  /// Whether the window holds its contents: from its first use until its Unload.
  bool Loaded = false;
  /// The face's slot: moves the window on the screen.
  Event<Place> Move;
  /// The face's slot: shows the hourglass while a handler works.
  Property<bool> Busy;
  /// The user, or a handler, wants the window gone; its handler may refuse by setting the flag.
  Event<bool&> QueryUnload;
  /// The window is gone, with what it held.
  Event<> Unload;
  /// The window sees a key before its controls do; a handler that uses it up sets it to NoKey.
  Event<int&> KeyDown;
};

/// Panels are numbered from 1 to 7.
struct StatusBar {
  std::array<Property<std::string>, 8> Panels;
};
