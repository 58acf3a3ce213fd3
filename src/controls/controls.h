#pragma once
// The contract of controls: each is state plus events. A face (the window program, the command line
// program, a test) shows the state and passes the user's acts in; a handler reads and sets the
// state and never knows which face there is.

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "controls/property.h"

struct Label {
  Property<std::string> Caption;
};

struct TextBox {
  explicit TextBox(std::string text = {}) : Text(Change, std::move(text)) {}
  Event<> Change;
  Property<std::string> Text;
};

struct CheckBox {
  explicit CheckBox(bool checked = false) : Value(Click, checked) {}
  Event<> Click;
  Property<bool> Value;
};

/// One of a pair: choosing it takes the choice from the other. Click comes to the chosen one only.
class OptionButton {
 public:
  explicit OptionButton(OptionButton* other) : Value(changed_) {
    changed_ = [this, other] {
      if (Value) {
        other->Value = false;
        Click();
      }
    };
  }
  Event<> Click;

 private:
  Event<> changed_;

 public:
  Property<bool> Value;
};

struct CommandButton {
  Event<> Click;
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

/// A list of the files of one folder; what the user's click leaves chosen.
struct FileListBox {
  Event<> Click;
  Property<std::string> FileName;
  /// Reads the folder anew.
  Event<> Refresh;
};

/// Panels are numbered from 1 to 7.
struct StatusBar {
  std::array<Property<std::string>, 8> Panels;
};
